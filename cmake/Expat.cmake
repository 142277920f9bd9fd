# Expat for the program `ravo`, as the target `ravo_expat`: the distribution's library, or for Windows the same version
# built from the distribution's source package. There is no target if neither is there; the program then reads documents
# with its own scanner alone.
include_guard(GLOBAL)
include(PackagedSources)

function(ravo_build_expat source)
  set(place ${PROJECT_BINARY_DIR}/expat)
  file(CONFIGURE OUTPUT ${place}/expat_config.h CONTENT
    "#define BYTEORDER 1234\n#define XML_CONTEXT_BYTES 1024\n#define XML_DTD 1\n#define XML_GE 1\n#define XML_NS 1\n")
  ravo_build_package(ravo_expat ${source} xmlparse.c xmlrole.c xmltok.c)
  target_compile_definitions(ravo_expat PUBLIC XML_STATIC)
  target_include_directories(ravo_expat SYSTEM PRIVATE ${place})
endfunction()

if(WIN32)
  ravo_find_package_source(RAVO_EXPAT_SOURCE xmlparse.c expat/expat/lib)
  if(RAVO_EXPAT_SOURCE)
    ravo_build_expat(${RAVO_EXPAT_SOURCE})
    set(RAVO_EXPAT_LICENCE ${RAVO_EXPAT_SOURCE}/../COPYING)
  endif()
else()
  find_package(EXPAT QUIET)
  if(EXPAT_FOUND)
    add_library(ravo_expat INTERFACE)
    target_link_libraries(ravo_expat INTERFACE EXPAT::EXPAT)
  endif()
endif()
