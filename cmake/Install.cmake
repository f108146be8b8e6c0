# What is installed, in three parts: the library that runs, what a host is built with, and the reference host.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(data_dir ${CMAKE_INSTALL_DATADIR}/schedules)
set(config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Schedules)

install(
    TARGETS Schedules
    EXPORT SchedulesTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
            COMPONENT library
            NAMELINK_COMPONENT development
    FILE_SET HEADERS
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/schedules
        COMPONENT development)
install(
    DIRECTORY ${PROJECT_BINARY_DIR}/bin/languages/
    DESTINATION ${data_dir}/languages
    COMPONENT library
    FILES_MATCHING
    PATTERN *.qm)

install(
    EXPORT SchedulesTargets
    NAMESPACE Schedules::
    DESTINATION ${config_dir}
    COMPONENT development)
configure_package_config_file(
    ${PROJECT_SOURCE_DIR}/cmake/SchedulesConfig.cmake.in ${PROJECT_BINARY_DIR}/SchedulesConfig.cmake
    INSTALL_DESTINATION ${config_dir}
    PATH_VARS data_dir)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/SchedulesConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(
    FILES ${PROJECT_BINARY_DIR}/SchedulesConfig.cmake ${PROJECT_BINARY_DIR}/SchedulesConfigVersion.cmake
    DESTINATION ${config_dir}
    COMPONENT development)

file(RELATIVE_PATH prefix_from_pkgconfig ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(${PROJECT_SOURCE_DIR}/cmake/Schedules.pc.in ${PROJECT_BINARY_DIR}/Schedules.pc @ONLY)
install(
    FILES ${PROJECT_BINARY_DIR}/Schedules.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)

file(GLOB pages CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/*.md)
install(
    FILES ${pages}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libschedules-dev
    COMPONENT development)

if(SCHEDULES_HOST)
    # From any prefix the program finds the library that is installed with it.
    file(RELATIVE_PATH library_from_program ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(schedhost PROPERTIES INSTALL_RPATH $ORIGIN/${library_from_program})
    install(TARGETS schedhost RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT host)
    install(
        DIRECTORY ${PROJECT_BINARY_DIR}/bin/samples ${PROJECT_BINARY_DIR}/bin/help
        DESTINATION ${data_dir}
        COMPONENT host)

    set(packaging ${PROJECT_SOURCE_DIR}/packaging)
    install(
        FILES ${packaging}/schedhost.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications
        COMPONENT host)
    install(
        FILES ${packaging}/schedhost.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
        COMPONENT host)
    install(
        FILES ${packaging}/schedhost.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
        COMPONENT host)
    install(
        FILES ${packaging}/schedhost.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
        COMPONENT host)
    install(
        FILES ${packaging}/schedhost.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        RENAME schedhost
        COMPONENT host)
endif()
