# The files of the Debian package python3-ravo, for the distribution's own Python.
set(place lib/python3/dist-packages)
install(TARGETS ravo_python_module LIBRARY DESTINATION ${place}/ravo COMPONENT python)
install(DIRECTORY src/ravo/ DESTINATION ${place}/ravo COMPONENT python
  FILES_MATCHING PATTERN "*.py" PATTERN "*.pyi" PATTERN py.typed PATTERN __pycache__ EXCLUDE)

# What installers of packages of Python look for.
file(STRINGS pyproject.toml summary REGEX "^description = ")
string(REGEX REPLACE "^description = \"(.*)\"$" "\\1" summary "${summary}")
file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/METADATA CONTENT "Metadata-Version: 2.1
Name: ravo
Version: @PROJECT_VERSION@
Summary: @summary@
License: MIT
Requires-Python: >=3.11
" @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/METADATA DESTINATION ${place}/ravo-${PROJECT_VERSION}.dist-info COMPONENT python)

set(documents ${CMAKE_INSTALL_DATADIR}/doc/python3-ravo)
install(FILES README.md DESTINATION ${documents} COMPONENT python)
install(DIRECTORY examples DESTINATION ${documents} COMPONENT python PATTERN __pycache__ EXCLUDE)
