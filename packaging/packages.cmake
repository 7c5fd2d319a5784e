# The packages that cpack makes: a .deb with the system layout, a .tar.gz with the portable one.
set(CPACK_PACKAGE_VENDOR "The smscrm authors")
set(CPACK_PACKAGE_CONTACT "The smscrm authors")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "short-message work of a small business")
set(CPACK_PACKAGE_DESCRIPTION
    "Customers, phrases, single and group messages with send times, received
messages and operators with rights, in Simplified Chinese, with a gateway
program and a tool that looks after the database."
)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_SOURCE_DIR}/layout.cmake)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE
)
set(CPACK_SMSCRM_RELEASE_DATE ${RELEASE_DATE})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is loaded at run time: the reader of the icons, which Debian 12 keeps with its library, and Chinese
# letters.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-svg-plugins | libqt6svg6, fonts-wqy-microhei | fonts-noto-cjk")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS xdg-utils)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "kannel, gammu-smsd, libdbd-sqlite3")
set(maintainer_scripts conffiles postinst prerm postrm)
if(TARGET smsgateway)
    list(TRANSFORM maintainer_scripts PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/debian/)
    set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${maintainer_scripts})
endif()
include(CPack)
