# What makes a fault in memory end the program instead of steering it; tests/hardening.cmake looks for
# it. The sanitizers find more, and a copy of a function's check is of no use to them.
set(hardened "$<AND:$<PLATFORM_ID:Linux>,$<CONFIG:Release>,$<NOT:$<BOOL:${SMSCRM_SANITIZE}>>>")

# One interface target carries every flag; every target of the project links it.
add_library(smscrm_options INTERFACE)
target_include_directories(smscrm_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(
    smscrm_options
    INTERFACE $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall;-Wextra;-Wpedantic;-Wconversion;-Wshadow;-Werror>
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

# smscrm_library(NAME SOURCES file... LINKS target...): a floor as a static library smscrm_NAME.
function(smscrm_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_library(smscrm_${name} STATIC ${arg_SOURCES})
    target_link_libraries(smscrm_${name} PUBLIC smscrm_options ${arg_LINKS})
endfunction()

# smscrm_program(NAME SOURCES file... LINKS target...): an executable in bin/.
function(smscrm_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE smscrm_options ${arg_LINKS})
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
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(
        ${name} PROPERTIES TIMEOUT 120
                           ENVIRONMENT "QT_QPA_PLATFORM=offscreen;${smscrm_test_environment}"
    )
endfunction()
