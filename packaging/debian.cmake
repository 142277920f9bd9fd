# Six Debian packages: libravointerface1, libravointerface-dev, libravo1, libravo-dev, ravo and python3-ravo. The dependencies of each are read
# from the binaries; each has the licence and both changelogs in its own folder of documents.
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SOURCE ravointerface)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The program's own library is not installed on the build machine.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/bin)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(ravo_debian_runtime libravointerface${PROJECT_VERSION_MAJOR})
set(ravo_debian_development libravointerface-dev)
set(ravo_debian_c_runtime libravo1)
set(ravo_debian_c_development libravo-dev)
set(ravo_debian_tool ravo)
set(ravo_debian_python python3-ravo)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_C_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_C_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS "python3 (>= 3.11)")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "Table names, captions, accounting rules and the support report of a modular
double-entry accounting suite for Czech businesses: the shared library.")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers, the static library, and the files by which CMake and pkg-config find
the library.")
set(CPACK_COMPONENT_C_RUNTIME_DESCRIPTION "What Czech bookkeeping checks and computes, for programs in every language:
the shared library with an interface in C.")
set(CPACK_COMPONENT_C_DEVELOPMENT_DESCRIPTION "The header, declarations for C#, and the files by which CMake and pkg-config
find the library.")
set(CPACK_COMPONENT_TOOL_DESCRIPTION "The library at the prompt: looks tables and captions up, checks accounts and
payment references, rounds money and writes the support report.")
set(CPACK_COMPONENT_PYTHON_DESCRIPTION "What Czech bookkeeping checks and computes, for Python: identifiers,
accounts, holidays, money, VAT, electronic invoices, encodings, and whole
columns of tables.")

# The changelog of the packages has one entry, that of the release; its date is that of the build.
string(TIMESTAMP ravo_debian_date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/debian/changelog.Debian CONTENT
"ravointerface (@PROJECT_VERSION@-1) unstable; urgency=medium

  * Release @PROJECT_VERSION@; changelog.gz says what is in it.

 -- @RAVO_MAINTAINER@  @ravo_debian_date@
" @ONLY)

# Strips the static library too; CPack strips the other files.
install(CODE "execute_process(COMMAND \"${CMAKE_STRIP}\" --strip-debug --enable-deterministic-archives
  \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/libRavoInterface.a\" COMMAND_ERROR_IS_FATAL ANY)"
  COMPONENT development)

# Documents are compressed as much as gzip can, and without a timestamp.
function(ravo_packed file packed)
  add_custom_command(OUTPUT ${packed} COMMAND sh -c "gzip -9nc <\"$1\" >\"$2\"" gzip ${file} ${packed} DEPENDS ${file} VERBATIM)
endfunction()
set(folder ${PROJECT_BINARY_DIR}/debian)
# The package that provides a shared library, and the trigger that updates the linker's cache when it is
# installed or removed.
function(ravo_debian_library component library version)
  string(TOUPPER ${component} upper)
  set(control ${PROJECT_BINARY_DIR}/debian/${component})
  file(WRITE ${control}/shlibs "${library} ${version} ${ravo_debian_${component}} (>= ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})\n")
  file(WRITE ${control}/triggers "activate-noawait ldconfig\n")
  set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA ${control}/shlibs ${control}/triggers PARENT_SCOPE)
endfunction()
ravo_debian_library(runtime libRavoInterface ${PROJECT_VERSION_MAJOR})
ravo_debian_library(c_runtime libravo 1)

# The modules are compiled when they are installed, and what was compiled goes with them.
file(CONFIGURE OUTPUT ${folder}/python/postinst CONTENT "#!/bin/sh
set -e
if command -v py3compile >/dev/null 2>&1; then py3compile -p @ravo_debian_python@; fi
" @ONLY)
file(CONFIGURE OUTPUT ${folder}/python/prerm CONTENT "#!/bin/sh
set -e
if command -v py3clean >/dev/null 2>&1; then py3clean -p @ravo_debian_python@; fi
" @ONLY)
file(CHMOD ${folder}/python/postinst ${folder}/python/prerm PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
  WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA ${folder}/python/postinst ${folder}/python/prerm)

ravo_packed(${folder}/changelog.Debian ${folder}/changelog.Debian.gz)
ravo_packed(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${folder}/changelog.gz)
ravo_packed(${PROJECT_BINARY_DIR}/pages/ravo.man ${folder}/ravo.1.gz)
file(MAKE_DIRECTORY ${folder}/cs)
ravo_packed(${PROJECT_BINARY_DIR}/pages/ravo.man-cs ${folder}/cs/ravo.1.gz)
add_custom_target(ravo_packed_documents ALL
  DEPENDS ${folder}/changelog.Debian.gz ${folder}/changelog.gz ${folder}/ravo.1.gz ${folder}/cs/ravo.1.gz)
add_dependencies(ravo_packed_documents ravo_all_pages)

foreach(component ${CPACK_COMPONENTS_ALL})
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${ravo_debian_${component}})
  set(documents ${CMAKE_INSTALL_DATADIR}/doc/${ravo_debian_${component}})
  install(FILES LICENSE DESTINATION ${documents} RENAME copyright COMPONENT ${component})
  install(FILES ${folder}/changelog.Debian.gz ${folder}/changelog.gz DESTINATION ${documents} COMPONENT ${component})
endforeach()
ravo_install_pages(${CMAKE_INSTALL_DATADIR}/doc/${ravo_debian_development} ${CMAKE_INSTALL_DATADIR}/doc/${ravo_debian_tool})
set(documents ${CMAKE_INSTALL_DATADIR}/doc/${ravo_debian_c_development})
install(FILES docs/libravo.md DESTINATION ${documents}/docs COMPONENT c_development)
install(DIRECTORY examples/c examples/csharp DESTINATION ${documents}/examples COMPONENT c_development)
install(FILES ${folder}/ravo.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
install(FILES ${folder}/cs/ravo.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/cs/man1 COMPONENT tool)
