# The files of the library that `cmake --install` copies, in the components runtime and development, with
# those by which CMake and pkg-config find it. The program installs itself (tools/ravo).
include(CMakePackageConfigHelpers)

set(ravo_package_folder_cmake ${CMAKE_INSTALL_LIBDIR}/cmake/RavoInterface)

# One file of targets per kind of library; both call it RavoInterface::RavoInterface.
function(ravo_install_library target kind)
  install(TARGETS ${target} EXPORT ravo_${kind}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
  install(EXPORT ravo_${kind} NAMESPACE RavoInterface:: FILE RavoInterface-${kind}.cmake
    DESTINATION ${ravo_package_folder_cmake} COMPONENT development)
endfunction()

if(BUILD_SHARED_LIBS)
  ravo_install_library(RavoInterface shared)
endif()
ravo_install_library(${ravo_static} static)

# The list of headers is determined at installation: the headers that the public ones include change with the
# sources.
install(CODE "set(ravo_source \"${PROJECT_SOURCE_DIR}\")
set(ravo_include \"${CMAKE_INSTALL_INCLUDEDIR}\")" COMPONENT development)
install(SCRIPT ${PROJECT_SOURCE_DIR}/cmake/InstallHeaders.cmake COMPONENT development)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/RavoInterfaceConfig.cmake.in
  ${PROJECT_BINARY_DIR}/RavoInterfaceConfig.cmake INSTALL_DESTINATION ${ravo_package_folder_cmake}
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/RavoInterfaceConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/RavoInterfaceConfig.cmake ${PROJECT_BINARY_DIR}/RavoInterfaceConfigVersion.cmake
  DESTINATION ${ravo_package_folder_cmake} COMPONENT development)

# The relative path from the folder of the .pc file to the prefix, so that an installed copy can be moved.
file(RELATIVE_PATH ravo_pc_prefix /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" ravo_pc_prefix "${ravo_pc_prefix}")
list(TRANSFORM ravo_system_libraries PREPEND -l OUTPUT_VARIABLE ravo_pc_private)
list(JOIN ravo_pc_private " " ravo_pc_private)
# Users of the static library call `pkg-config --static`; if no other library is installed, all users are.
set(ravo_pc_static_definition "Cflags.private: -DRAVO_STATIC")
if(NOT BUILD_SHARED_LIBS)
  set(ravo_pc_definition " -DRAVO_STATIC")
  set(ravo_pc_libraries " ${ravo_pc_private}")
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/ravointerface.pc.in ${PROJECT_BINARY_DIR}/ravointerface.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/ravointerface.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

# Programs for Windows need the compiler's shared run-time libraries too.
if(MINGW)
  ravo_runtime_files(ravo_runtime)
  install(FILES ${ravo_runtime} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
endif()
