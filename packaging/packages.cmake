# Installed documents, and the packages that CPack builds from an installation: Debian packages
# (scripts/package builds them with RAVO_DEBIAN) and archives for Windows.
option(RAVO_DEBIAN "Install documents in the layout of Debian packages" OFF)
set(RAVO_MAINTAINER "RavoInterface developers <developers@ravointerface.invalid>" CACHE STRING "Whom the packages name")

set(CPACK_PACKAGE_NAME RavoInterface)
set(CPACK_PACKAGE_VENDOR "RavoInterface developers")
set(CPACK_PACKAGE_CONTACT "${RAVO_MAINTAINER}")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_COMPONENTS_ALL runtime development tool)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_COMPONENT_TOOL_DEPENDS runtime)
set(CPACK_STRIP_FILES ON)

# The pages lie as in the checkout, so that their links work; the files that the commands of the pages name, with the program.
function(ravo_install_pages pages samples)
  install(FILES README.md README.cs.md CONTRIBUTING.md DESTINATION ${pages} COMPONENT development)
  install(DIRECTORY docs examples DESTINATION ${pages} COMPONENT development)
  install(DIRECTORY samples DESTINATION ${samples} COMPONENT tool)
endfunction()

if(RAVO_DEBIAN)
  include(packaging/debian.cmake)
else()
  install(FILES LICENSE CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
  ravo_install_pages(${CMAKE_INSTALL_DOCDIR} ${CMAKE_INSTALL_DOCDIR})
endif()
if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_SYSTEM_NAME windows-${RAVO_WINDOWS_BITS})
endif()
if(PROJECT_IS_TOP_LEVEL)
  include(CPack)
endif()
