# The resources of the shared library on Windows: the package description, the type library, the string table
# and the version record.
# Our toolchain files name the type library compiler; another toolchain has it on the path.
if(NOT RAVO_WIDL)
  find_program(RAVO_WIDL NAMES ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32-widl widl NO_CMAKE_FIND_ROOT_PATH REQUIRED)
endif()
set(ravo_package_folder ${CMAKE_CURRENT_SOURCE_DIR}/frame/package)
set(ravo_type_library ${ravo_generated}/RavoInterface.tlb)

add_custom_command(OUTPUT ${ravo_type_library}
  COMMAND ${RAVO_WIDL} -t -I${ravo_package_folder} -o ${ravo_type_library} ${ravo_package_folder}/RavoInterface.idl
  DEPENDS ${ravo_package_folder}/RavoInterface.idl ${ravo_package_folder}/description.h
  COMMENT "Making the type library" VERBATIM)

# The resource compiler does not tell what it read.
file(GLOB_RECURSE ravo_rows CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.inc)
set_source_files_properties(${ravo_package_folder}/RavoInterface.rc PROPERTIES
  INCLUDE_DIRECTORIES "${PROJECT_SOURCE_DIR};${ravo_generated}"
  OBJECT_DEPENDS "${ravo_type_library};${ravo_rows};${ravo_package_folder}/description.h;${ravo_generated}/ravo/frame/project_version.h")
target_sources(RavoInterface PRIVATE ${ravo_package_folder}/RavoInterface.rc)
