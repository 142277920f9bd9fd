# Libraries for the program `ravo` that Windows has no packages of: the distribution's source packages, which scripts/setup
# unpacks into the user's cache, are built static and with hidden symbols.
include_guard(GLOBAL)

# ravo_find_package_source(VARIABLE FILE FOLDER): the folder of a source package in the cache that has this file.
function(ravo_find_package_source variable file folder)
  set(cache $ENV{RAVO_CACHE})
  if(NOT cache AND DEFINED ENV{XDG_CACHE_HOME})
    set(cache $ENV{XDG_CACHE_HOME}/ravo)
  elseif(NOT cache)
    set(cache $ENV{HOME}/.cache/ravo)
  endif()
  find_path(${variable} ${file} PATHS ${cache}/${folder} NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
endfunction()

# ravo_build_package(TARGET FOLDER SOURCE...): a static library of the sources.
function(ravo_build_package target folder)
  list(TRANSFORM ARGN PREPEND ${folder}/)
  add_library(${target} STATIC ${ARGN})
  set_target_properties(${target} PROPERTIES C_VISIBILITY_PRESET hidden UNITY_BUILD OFF)
  target_compile_options(${target} PRIVATE -w)
  target_include_directories(${target} SYSTEM PUBLIC ${folder})
endfunction()
