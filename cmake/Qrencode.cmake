# libqrencode for the program `ravo`, as the target `ravo_qrencode`: the distribution's library, or for Windows the same
# version built from the distribution's source package. There is no target if neither is there; `ravo qr` then writes texts
# alone.
include_guard(GLOBAL)
include(PackagedSources)

function(ravo_build_qrencode source)
  file(STRINGS ${source}/CMakeLists.txt version REGEX "^project\\(QRencode VERSION")
  string(REGEX MATCH "([0-9]+)\\.([0-9]+)\\.([0-9]+)" version "${version}")
  ravo_build_package(ravo_qrencode ${source} bitstream.c mask.c mmask.c mqrspec.c qrencode.c qrinput.c qrspec.c rsecc.c split.c)
  target_compile_definitions(ravo_qrencode PRIVATE HAVE_STRDUP=1 STATIC_IN_RELEASE=static VERSION="${version}"
    MAJOR_VERSION=${CMAKE_MATCH_1} MINOR_VERSION=${CMAKE_MATCH_2} MICRO_VERSION=${CMAKE_MATCH_3})
endfunction()

if(WIN32)
  ravo_find_package_source(RAVO_QRENCODE_SOURCE qrencode.c qrencode)
  if(RAVO_QRENCODE_SOURCE)
    ravo_build_qrencode(${RAVO_QRENCODE_SOURCE})
    set(RAVO_QRENCODE_LICENCE ${RAVO_QRENCODE_SOURCE}/COPYING)
  endif()
else()
  find_library(RAVO_QRENCODE_LIBRARY qrencode)
  find_path(RAVO_QRENCODE_HEADERS qrencode.h)
  if(RAVO_QRENCODE_LIBRARY AND RAVO_QRENCODE_HEADERS)
    add_library(ravo_qrencode INTERFACE)
    target_link_libraries(ravo_qrencode INTERFACE ${RAVO_QRENCODE_LIBRARY})
  endif()
endif()
