# Checks that what smsgateway says goes through texts::tr, so that it is translated. Run with:
# cmake -DROOT=<source folder> -P tests/wrapped.cmake
cmake_minimum_required(VERSION 3.25)

# Two English words in a text of the program, or any text that goes straight to a person.
set(spoken "u\"[^\"]*[a-z][a-z]+ [a-z]+|(complain|fail|drop|write_line|line_refused)\\(u?\"[^\"]*[a-z]")
# Statements, names in the store, what others say, and the line that programs wait for.
set(unspoken "u\"(SELECT|INSERT|UPDATE|DELETE|CREATE) |u\"not now\"|(pair|startsWith|contains)\\(u\"|u\"listening on ")

set(faults "")
file(GLOB files RELATIVE ${ROOT} ${ROOT}/gateway/*.cpp)
list(REMOVE_ITEM files gateway/status_views.cpp) # speaks Chinese to people, English to Prometheus
foreach(file ${files})
    file(STRINGS ${ROOT}/${file} lines REGEX "${spoken}")
    foreach(line ${lines})
        if(NOT line MATCHES "${unspoken}")
            string(APPEND faults "\n${file}: ${line}")
        endif()
    endforeach()
endforeach()
if(NOT files OR faults)
    message(FATAL_ERROR "These are not translated:${faults}")
endif()
