# What makes a fault in memory end the program instead of steering it; tests/hardening.cmake looks for
# it. The sanitizers find more, and a copy of a function's check is of no use to them.
set(hardened "$<AND:$<PLATFORM_ID:Linux>,$<CONFIG:Release>,$<NOT:$<BOOL:${SMSCRM_SANITIZE}>>>")

# One interface target carries every flag; every target of the project links it.
add_library(smscrm_options INTERFACE)
target_include_directories(smscrm_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(
    smscrm_options
    INTERFACE $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall;-Wextra;-Wpedantic;-Wconversion;-Wshadow>
              $<$<AND:$<CXX_COMPILER_ID:GNU,Clang>,$<BOOL:${SMSCRM_WERROR}>>:-Werror>
              $<$<CXX_COMPILER_ID:MSVC>:/utf-8>
              $<$<BOOL:${SMSCRM_SANITIZE}>:-fsanitize=address,undefined;-fno-sanitize-recover=all;-fno-omit-frame-pointer>
              $<$<BOOL:${SMSCRM_FUZZ}>:-fsanitize=fuzzer-no-link>
              $<${hardened}:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>
)
target_link_options(
    smscrm_options
    INTERFACE $<$<BOOL:${SMSCRM_SANITIZE}>:-fsanitize=address,undefined> $<${hardened}:LINKER:-z,relro,-z,now>
)
target_compile_definitions(
    smscrm_options
    INTERFACE QT_NO_CAST_FROM_ASCII
              QT_NO_CAST_TO_ASCII
              QT_NO_FOREACH
              QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
              QT_STRICT_ITERATORS
)

# For qt_add_resources: a program does not tell when its pictures were last touched, so that the same
# sources make the same program.
set(resource_options --format-version 1)

# smscrm_share_headers(TARGET link...): lets a target take the compiled headers of the floors that it
# links, with the screens' where one of them has those.
function(smscrm_share_headers target)
    set(owner "")
    foreach(link ${ARGN})
        if(TARGET ${link})
            get_target_property(floor ${link} smscrm_headers)
            if(floor AND NOT owner STREQUAL smscrm_platform_widgets)
                set(owner ${floor})
            endif()
        endif()
    endforeach()
    if(owner AND SMSCRM_COMPILED_HEADERS)
        set_target_properties(${target} PROPERTIES smscrm_headers ${owner})
        target_precompile_headers(${target} REUSE_FROM ${owner})
    endif()
endfunction()

# smscrm_library(NAME [HEADERS header...] SOURCES file... LINKS target...): a floor as a static library
# smscrm_NAME. HEADERS are those of the toolkit that it compiles once for all floors above.
function(smscrm_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;SOURCES;LINKS")
    add_library(smscrm_${name} STATIC ${arg_SOURCES})
    target_link_libraries(smscrm_${name} PUBLIC smscrm_options ${arg_LINKS})
    if(arg_HEADERS AND SMSCRM_COMPILED_HEADERS)
        set_target_properties(smscrm_${name} PROPERTIES smscrm_headers smscrm_${name})
        target_precompile_headers(smscrm_${name} PRIVATE ${arg_HEADERS})
    else()
        smscrm_share_headers(smscrm_${name} ${arg_LINKS})
    endif()
endfunction()

# smscrm_program(NAME SOURCES file... LINKS target...): an executable in bin/.
function(smscrm_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE smscrm_options ${arg_LINKS})
    smscrm_share_headers(${name} ${arg_LINKS})
endfunction()

# What every test's surroundings hold.
set(smscrm_test_environment
    LC_ALL=C.UTF-8
    LANGUAGE=en
    LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/sanitizer-leaks.txt:print_suppressions=0
    QT_LOGGING_RULES=*.debug=false
)

# smscrm_test(NAME SOURCES file... LINKS target...): a Qt Test program, run headless by CTest.
# The time limit is a watchdog against a hang, not a measure of speed.
function(smscrm_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE smscrm_options Qt6::Test ${arg_LINKS})
    smscrm_share_headers(${name} ${arg_LINKS})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(
        ${name} PROPERTIES TIMEOUT 120
                           ENVIRONMENT "QT_QPA_PLATFORM=offscreen;${smscrm_test_environment}"
    )
endfunction()
