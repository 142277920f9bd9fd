# Expat for the program `ravo`, as the target `ravo_expat`: the distribution's library, or for Windows the same version
# built from the distribution's source package, which scripts/setup unpacks into the user's cache. There is no target
# if neither is there; the program then reads documents with its own scanner alone.
include_guard(GLOBAL)

function(ravo_find_expat_source variable)
  set(cache $ENV{RAVO_CACHE})
  if(NOT cache AND DEFINED ENV{XDG_CACHE_HOME})
    set(cache $ENV{XDG_CACHE_HOME}/ravo)
  elseif(NOT cache)
    set(cache $ENV{HOME}/.cache/ravo)
  endif()
  find_path(${variable} xmlparse.c PATHS ${cache}/expat/expat/lib NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
endfunction()

function(ravo_build_expat source)
  set(place ${PROJECT_BINARY_DIR}/expat)
  file(CONFIGURE OUTPUT ${place}/expat_config.h CONTENT
    "#define BYTEORDER 1234\n#define XML_CONTEXT_BYTES 1024\n#define XML_DTD 1\n#define XML_GE 1\n#define XML_NS 1\n")
  add_library(ravo_expat STATIC ${source}/xmlparse.c ${source}/xmlrole.c ${source}/xmltok.c)
  set_target_properties(ravo_expat PROPERTIES C_VISIBILITY_PRESET hidden UNITY_BUILD OFF)
  target_compile_definitions(ravo_expat PUBLIC XML_STATIC)
  target_compile_options(ravo_expat PRIVATE -w)
  target_include_directories(ravo_expat SYSTEM PRIVATE ${place} PUBLIC ${source})
endfunction()

if(WIN32)
  ravo_find_expat_source(RAVO_EXPAT_SOURCE)
  if(RAVO_EXPAT_SOURCE)
    ravo_build_expat(${RAVO_EXPAT_SOURCE})
  endif()
else()
  find_package(EXPAT QUIET)
  if(EXPAT_FOUND)
    add_library(ravo_expat INTERFACE)
    target_link_libraries(ravo_expat INTERFACE EXPAT::EXPAT)
  endif()
endif()
