# Checks that programs were built so that a fault in memory ends them. Run with:
# cmake -DREADELF=<program> -DBUILD=<build folder> -DPROGRAMS=<file,...> -P tests/hardening.cmake
cmake_minimum_required(VERSION 3.25)

string(REPLACE "," ";" PROGRAMS "${PROGRAMS}")
foreach(program ${PROGRAMS})
    execute_process(
        COMMAND ${READELF} --wide --program-headers --dynamic --dyn-syms ${program}
        OUTPUT_VARIABLE told COMMAND_ERROR_IS_FATAL ANY
    )
    foreach(sign " GNU_RELRO " "FLAGS.* BIND_NOW" "FLAGS_1.* PIE" " __stack_chk_fail@")
        if(NOT told MATCHES "${sign}")
            message(SEND_ERROR "${program} was built without what shows as \"${sign}\"")
        endif()
    endforeach()
endforeach()

# A fortified function leaves no trace in a program that calls it in no doubtful place.
file(STRINGS ${BUILD}/compile_commands.json commands REGEX "\"command\": .* -Wconversion ")
if(NOT commands)
    message(FATAL_ERROR "${BUILD}/compile_commands.json names no source")
endif()
list(FILTER commands EXCLUDE REGEX " -D_FORTIFY_SOURCE=2 ")
foreach(command ${commands})
    message(SEND_ERROR "compiled without -D_FORTIFY_SOURCE=2: ${command}")
endforeach()
