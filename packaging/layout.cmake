# Read by cpack for every package: a system package has the launcher, an archive is a folder to be
# unpacked anywhere.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(CPACK_COMPONENTS_ALL common system)
else()
    set(CPACK_COMPONENTS_ALL common portable archive)
    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
endif()

# Every file is as old as the release: the same sources make the same package whenever they do.
execute_process(
    COMMAND date --utc --date=${CPACK_SMSCRM_RELEASE_DATE} +%s
    OUTPUT_VARIABLE time
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY
)
set(ENV{SOURCE_DATE_EPOCH} ${time})
