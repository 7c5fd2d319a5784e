# What the programs without windows say to a Chinese user, see platform/program_language.h. After a
# change of their texts: cmake --build --preset debug --target translations, then fill what is new in
# resources/translations.
find_program(LRELEASE lrelease HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS})
find_program(LUPDATE lupdate HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS})
if(NOT LRELEASE)
    message(STATUS "smsdb and smsgateway are built to speak English alone: lrelease is missing")
endif()
if(LUPDATE)
    add_custom_target(translations)
endif()

# smscrm_translated(PROGRAM): gives the program what its folder's texts are in Chinese, and a test that
# none is missing.
function(smscrm_translated program)
    if(LRELEASE)
        set(texts ${CMAKE_SOURCE_DIR}/resources/translations/${program}_zh_CN.ts)
        set(compiled ${CMAKE_CURRENT_BINARY_DIR}/${program}_zh_CN.qm)
        add_custom_command(
            OUTPUT ${compiled}
            COMMAND ${LRELEASE} -silent ${texts} -qm ${compiled}
            DEPENDS ${texts}
            VERBATIM
        )
        set_source_files_properties(${compiled} PROPERTIES QT_RESOURCE_ALIAS ${program}_zh_CN.qm)
        qt_add_resources(
            ${program} ${program}_texts
            PREFIX /translations
            FILES ${compiled}
            OPTIONS ${resource_options}
        )
        target_link_libraries(${program} PRIVATE smscrm_qt_texts)
    endif()
    if(LUPDATE)
        set(check ${CMAKE_COMMAND} -DLUPDATE=${LUPDATE} -DROOT=${CMAKE_SOURCE_DIR} -DPROGRAM=${program}
                  -DFOLDER=${CMAKE_CURRENT_SOURCE_DIR} -DSCRATCH=${CMAKE_CURRENT_BINARY_DIR}
        )
        set(script ${CMAKE_SOURCE_DIR}/tests/translations.cmake)
        add_custom_target(translations_${program} COMMAND ${check} -DUPDATE=ON -P ${script} VERBATIM)
        add_dependencies(translations translations_${program})
        if(SMSCRM_TESTS)
            add_test(NAME translations_${program} COMMAND ${check} -P ${script})
        endif()
    endif()
endfunction()
