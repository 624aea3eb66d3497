# Debian packages, made by ./make-packages: the application with the desk platform, and the tools.
set(CPACK_PACKAGE_NAME veskar)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "")
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL tv tools)
set(CPACK_DEB_COMPONENT_INSTALL ON)
# So that what is configured during the installation gets the final prefix.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_TV_PACKAGE_NAME veskar)
set(CPACK_DEBIAN_TV_PACKAGE_SECTION misc)
# The toolkit loads its Wayland engine and its own theme; the fonts are those of the scripts that every TV has.
set(CPACK_DEBIAN_TV_PACKAGE_DEPENDS
    "dbus-daemon, fontconfig, fonts-noto-core, fonts-noto-ui-core, libelementary-data, libevas1-engines-wayland, weston")
set(CPACK_DEBIAN_TV_PACKAGE_RECOMMENDS "fonts-noto-cjk, fonts-noto-color-emoji, veskar-tools")
set(CPACK_DEBIAN_TV_PACKAGE_SUGGESTS 
    "locales-all, novnc, speech-dispatcher, tigervnc-standalone-server, websockify, xauth")
set(CPACK_DEBIAN_TV_DESCRIPTION "screen dialogues of a television's access module
Shows what a television's conditional-access service has to ask or tell the
viewer: messages, lists, pictures, PIN entries and progress, over the running
programme.
.
With it comes a television on a desk: a compositor module with the remote
control's keys, settings, a number pad, and veskar-tv, which starts all of it
for one command.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME veskar-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION misc)
# The Python module; what records and tests with it is not everybody's.
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS python3)
set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS veskar)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SUGGESTS "python3-jeepney, python3-pytest")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "middleware, remote control and settings for veskar
Command-line programs beside a television's screen dialogues: veskar-mw asks
for a screen and prints the viewer's answer, veskar-remote presses keys, waits
for screens and saves them as pictures, veskar-setting changes settings. The
Python module veskar_tv drives all of it from tests.")

foreach(component tv tools)
    string(TOUPPER ${component} upper)
    set(documents share/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    install(FILES copyright DESTINATION ${documents} COMPONENT ${component})
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz
        DESTINATION ${documents} COMPONENT ${component} OPTIONAL)
endforeach()

include(CPack)
