# The files of libravo that `cmake --install` copies, in the components c_runtime and c_development, with those by
# which CMake and pkg-config find it.
include(CMakePackageConfigHelpers)

install(TARGETS ravo_c
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT c_runtime
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT c_runtime NAMELINK_COMPONENT c_development
  # ravo.lib serves every compiler.
  ARCHIVE EXCLUDE_FROM_ALL DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT c_import)
install(FILES ${PROJECT_SOURCE_DIR}/c/ravo.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT c_development)
install(FILES ${PROJECT_SOURCE_DIR}/bindings/csharp/Ravo.cs DESTINATION ${CMAKE_INSTALL_DATADIR}/libravo/csharp COMPONENT c_development)
set(library ${CMAKE_INSTALL_LIBDIR}/libravo.so)
if(WIN32)
  set(library ${CMAKE_INSTALL_BINDIR}/ravo.dll)
  install(FILES ${ravo_import_library} ${PROJECT_SOURCE_DIR}/c/generated/ravo.def
    DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT c_development)
endif()

set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/libravo)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/libravo-config.cmake.in ${PROJECT_BINARY_DIR}/libravo-config.cmake
  INSTALL_DESTINATION ${folder} NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/libravo-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/libravo-config.cmake ${PROJECT_BINARY_DIR}/libravo-config-version.cmake
  DESTINATION ${folder} COMPONENT c_development)

# An installed copy can be moved: the file finds its prefix from its own place.
file(RELATIVE_PATH prefix /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" prefix "${prefix}")
configure_file(${PROJECT_SOURCE_DIR}/cmake/libravo.pc.in ${PROJECT_BINARY_DIR}/libravo.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/libravo.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT c_development)
