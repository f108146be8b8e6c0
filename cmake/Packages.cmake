# Debian packages, one for each part of what is installed: `cpack` in the build folder makes them.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME schedules)
set(CPACK_PACKAGE_VENDOR "Equipment Schedules")
set(CPACK_PACKAGE_CONTACT "Equipment Schedules <schedules@example.org>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/DebianFiles.cmake)

set(CPACK_COMPONENTS_ALL library development host)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each part has its own as the first line of its description
set(same_version "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(component_text "Equipment Schedules is a component for design applications: it shows tables
that list, for a set of equipment tags, the values of chosen data items.")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libschedules${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_RECOMMENDS fonts-liberation)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "component for equipment schedules in a design application
${component_text}
.
This package holds the library and its texts in English, German and French.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libschedules-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME} ${same_version}, qt6-base-dev (>= 6.4)")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "component for equipment schedules (development files)
${component_text}
.
This package holds the headers, what CMake and pkg-config need to find the
component, and the pages for developers of hosts.")

set(CPACK_DEBIAN_HOST_PACKAGE_NAME schedhost)
set(CPACK_DEBIAN_HOST_PACKAGE_SECTION science)
set(CPACK_DEBIAN_HOST_PACKAGE_SHLIBDEPS ON)
# Pictures and icons in SVG are read by plugins, which newer releases keep in a package of their own.
set(CPACK_DEBIAN_HOST_PACKAGE_DEPENDS "${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME} ${same_version}, libqt6sql6-sqlite, \
qt6-svg-plugins | libqt6svg6 (<< 6.7.2-5~)")
set(CPACK_DEBIAN_HOST_PACKAGE_RECOMMENDS "libqt6sql6-psql, fonts-liberation")
set(CPACK_COMPONENT_HOST_DESCRIPTION "program for equipment schedules
A program around the component for equipment schedules: it keeps tags and
their values in projects, shows and edits schedules of them, prints them and
writes them as workbooks, web pages and text.")

# The program's own library is found in the build folder, by its dependency above in the archive.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/bin)

include(CPack)
