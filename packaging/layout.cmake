# Read by cpack for every package: a system package has the launcher, an archive is a folder to be
# unpacked anywhere.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(CPACK_COMPONENTS_ALL common system)
else()
    set(CPACK_COMPONENTS_ALL common portable archive)
    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
endif()
