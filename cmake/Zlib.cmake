# zlib for the program `ravo`, as the target `ravo_zlib`: the distribution's library, or for Windows the same version built
# from the distribution's source package. There is no target if neither is there; `ravo` then writes no PNG and opens no
# containers.
include_guard(GLOBAL)
include(PackagedSources)

if(WIN32)
  ravo_find_package_source(RAVO_ZLIB_SOURCE inflate.c zlib)
  if(RAVO_ZLIB_SOURCE)
    ravo_build_package(ravo_zlib ${RAVO_ZLIB_SOURCE} adler32.c compress.c crc32.c deflate.c inffast.c inflate.c inftrees.c
      trees.c uncompr.c zutil.c)
    set(RAVO_ZLIB_LICENCE ${RAVO_ZLIB_SOURCE}/LICENSE)
  endif()
else()
  find_package(ZLIB QUIET)
  if(ZLIB_FOUND)
    add_library(ravo_zlib INTERFACE)
    target_link_libraries(ravo_zlib INTERFACE ZLIB::ZLIB)
  endif()
endif()
