# Installation: headers, libraries and the CMake package.

include(CMakePackageConfigHelpers)

set(COMMONUI_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/CommonUI")

install(TARGETS CommonUI EXPORT CommonUITargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} NAMELINK_COMPONENT Development
    FILE_SET sdk DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/CommonUI
    FILE_SET implementation DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/CommonUI)

install(EXPORT CommonUITargets NAMESPACE CommonUI:: FILE CommonUITargets.cmake
    DESTINATION ${COMMONUI_PACKAGE_DIR})

configure_package_config_file(
    "${PROJECT_SOURCE_DIR}/cmake/CommonUIConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/CommonUIConfig.cmake"
    INSTALL_DESTINATION ${COMMONUI_PACKAGE_DIR})
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/CommonUIConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/CommonUIConfig.cmake"
    "${PROJECT_BINARY_DIR}/CommonUIConfigVersion.cmake"
    "${PROJECT_SOURCE_DIR}/cmake/FindMOSSGATE.cmake"
    DESTINATION ${COMMONUI_PACKAGE_DIR})
