# The documents that are installed: manual, list of changes, licence, and the pages of man(1).

# The manual as one page with its pictures inside; as it was written where pandoc is missing.
set(manual ${PROJECT_SOURCE_DIR}/docs/manual.zh_CN.md)
find_program(PANDOC pandoc)
if(PANDOC)
    set(page ${CMAKE_CURRENT_BINARY_DIR}/manual.zh_CN.html)
    file(GLOB pictures CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/pictures/*)
    add_custom_command(
        OUTPUT ${page}
        COMMAND
            ${PANDOC} --quiet --self-contained --resource-path=${PROJECT_SOURCE_DIR}/docs
            --from=gfm+east_asian_line_breaks --to=html5 --metadata=lang:zh-CN
            --metadata=pagetitle:操作手册 --output=${page} ${manual}
        DEPENDS ${manual} ${pictures}
        VERBATIM
    )
    add_custom_target(manual ALL DEPENDS ${page})
    set(manual ${page})
    install_system(FILES smscrm-manual.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
else()
    install(
        DIRECTORY ${PROJECT_SOURCE_DIR}/docs/pictures
        DESTINATION ${CMAKE_INSTALL_DOCDIR}
        COMPONENT common
    )
endif()
install(FILES ${manual} DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT common)
install(
    FILES ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_SOURCE_DIR}/LICENSE
    DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT portable
)
install(FILES README.txt DESTINATION . COMPONENT archive EXCLUDE_FROM_ALL)

# Under the names where the system's users look for them, packed without a time of packing.
find_program(GZIP gzip)
if(NOT GZIP OR CMAKE_CROSSCOMPILING OR SMSCRM_SANITIZE)
    return()
endif()
install_system(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)
install_system(
    FILES lintian-overrides
    DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
    RENAME smscrm
)

# add_packed(FOLDER NAME DEPENDS file... COMMAND command...): installs NAME.gz, which the command writes
# as NAME in the build folder.
function(add_packed folder name)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "DEPENDS;COMMAND")
    set(file ${CMAKE_CURRENT_BINARY_DIR}/${name})
    add_custom_command(
        OUTPUT ${file}.gz
        COMMAND ${arg_COMMAND}
        COMMAND ${GZIP} -9nkf ${file}
        DEPENDS ${arg_DEPENDS}
        VERBATIM
    )
    add_custom_target(packed_${name} ALL DEPENDS ${file}.gz)
    install_system(FILES ${file}.gz DESTINATION ${folder})
endfunction()

set(changes ${CMAKE_CURRENT_SOURCE_DIR}/changelog.sh ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
add_packed(
    ${CMAKE_INSTALL_DOCDIR} changelog
    DEPENDS ${changes}
    COMMAND sh ${changes} ${CMAKE_CURRENT_BINARY_DIR}/changelog
)

configure_file(smscrm.1.in smscrm.1.text @ONLY)
add_packed(
    ${CMAKE_INSTALL_MANDIR}/man1 smscrm.1
    DEPENDS smscrm.1.in
    COMMAND ${CMAKE_COMMAND} -E copy smscrm.1.text smscrm.1
)

# add_manual_page(PROGRAM SUMMARY SEE_ALSO [variable=value...]): what the program tells with --help.
function(add_manual_page program summary see_also)
    if(TARGET ${program})
        set(script ${CMAKE_CURRENT_SOURCE_DIR}/man_page.cmake)
        list(TRANSFORM ARGN PREPEND -D)
        add_packed(
            ${CMAKE_INSTALL_MANDIR}/man1 ${program}.1
            DEPENDS ${program} ${script}
            COMMAND
                ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:${program}> -DNAME=${program}
                -DSUMMARY=${summary} -DVERSION=${PROJECT_VERSION} -DDATE=${RELEASE_DATE}
                -DSEE_ALSO=${see_also} -DPAGE=${CMAKE_CURRENT_BINARY_DIR}/${program}.1 ${ARGN} -P ${script}
        )
    endif()
endfunction()
add_manual_page(smsdb "looks after the database of an office" "smscrm(1) smsgateway(1)" COMMANDS=ON)
add_manual_page(smsgateway "takes text messages to a mobile network" "smscrm(1) smsdb(1)")
