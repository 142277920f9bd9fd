# The library as users get it: installed into a folder of the build tree, then used by a separate project.
# Instrumented builds are only for our own tests.
if(RAVO_SANITIZE OR RAVO_COVERAGE OR NOT RAVO_INSTALL)
  return()
endif()
set(ravo_consumers ${CMAKE_CURRENT_LIST_DIR})
set(work ${PROJECT_BINARY_DIR}/consumers)
set(prefix ${work}/prefix)
add_test(NAME consumers.install COMMAND ${CMAKE_COMMAND} -DBUILD=${PROJECT_BINARY_DIR} -DPREFIX=${prefix}
  -P ${CMAKE_CURRENT_LIST_DIR}/install.cmake)
set_tests_properties(consumers.install PROPERTIES FIXTURES_SETUP ravo_installed COST 40)

set(tools -DCMAKE_BUILD_TYPE=Release -DCONSUMER_RUNTIME=${PROJECT_BINARY_DIR}/bin)
if(CMAKE_TOOLCHAIN_FILE)
  list(APPEND tools -DCMAKE_TOOLCHAIN_FILE=${CMAKE_TOOLCHAIN_FILE})
else()
  list(APPEND tools -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER} -DCMAKE_C_COMPILER=${CMAKE_C_COMPILER})
endif()
set(program ./consumer${CMAKE_EXECUTABLE_SUFFIX})

function(ravo_consumer name)
  add_test(NAME consumers.${name} COMMAND ${ravo_consumers}/consume ${work}/${name} ${tools} ${ARGN}
    -- ${CMAKE_CROSSCOMPILING_EMULATOR} ${program})
  set_tests_properties(consumers.${name} PROPERTIES ${ravo_test_properties} FIXTURES_REQUIRED ravo_installed COST 25)
endfunction()

foreach(way package pkgconfig)
  ravo_consumer(${way}.static -DCONSUMER_WAY=${way} -DCONSUMER_PREFIX=${prefix} -DCONSUMER_STATIC=ON)
  if(BUILD_SHARED_LIBS)
    ravo_consumer(${way}.shared -DCONSUMER_WAY=${way} -DCONSUMER_PREFIX=${prefix})
  endif()
endforeach()
# The whole library again, without optimization: shared here, static for Windows. It takes long, so one
# compiler each is enough.
if(CMAKE_CXX_COMPILER_ID STREQUAL Clang OR RAVO_WINDOWS_BITS EQUAL 32)
  set(subproject_static OFF)
  if(WIN32)
    set(subproject_static ON)
  endif()
  ravo_consumer(subproject -DCONSUMER_WAY=subproject -DCONSUMER_CHECKOUT=${PROJECT_SOURCE_DIR} -DCONSUMER_STATIC=${subproject_static}
    -DCMAKE_BUILD_TYPE=Debug -DCMAKE_UNITY_BUILD=ON)
endif()

# Code that must not compile, each with a twin that does, against the installed library.
file(GLOB refused CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/refused/*.cpp)
set(compile ${CMAKE_CXX_COMPILER} -std=c++20 -fsyntax-only -Werror=unused-result -I${prefix}/${CMAKE_INSTALL_INCLUDEDIR})
set(reason_money_from_double "could not convert|no viable conversion")
set(reason_money_to_double "cannot convert|no viable conversion")
set(reason_malformed_identifier "malformed identifier|constant expression")
set(reason_ignored_answer "nodiscard")
set(reason_bytes_for_text "could not convert|no viable conversion|no matching function|no known conversion|cannot convert")
set(reason_private_header "decimal.h: No such file|'ravo/runtime/decimal.h' file not found")
set(reason_private_machine "machine.h: No such file|'ravo/platform/machine.h' file not found")
foreach(source ${refused})
  cmake_path(GET source STEM case)
  add_test(NAME consumers.refused.${case} COMMAND ${compile} -DREFUSED ${source})
  set_tests_properties(consumers.refused.${case} PROPERTIES PASS_REGULAR_EXPRESSION "error: [^\n]*(${reason_${case}})")
  add_test(NAME consumers.accepted.${case} COMMAND ${compile} ${source})
  set_tests_properties(consumers.refused.${case} consumers.accepted.${case} PROPERTIES FIXTURES_REQUIRED ravo_installed)
  if(NOT DEFINED reason_${case})
    message(FATAL_ERROR "${source}: say with which words a compiler refuses it")
  endif()
endforeach()

# Each public header alone, once for each system.
if(NOT RAVO_WINDOWS_BITS EQUAL 64)
  ravo_find_python(python)
  add_test(NAME consumers.public_headers
    COMMAND ${python} -B ${CMAKE_CURRENT_LIST_DIR}/public_headers.py ${prefix}/${CMAKE_INSTALL_INCLUDEDIR} ${CMAKE_CXX_COMPILER})
  set_tests_properties(consumers.public_headers PROPERTIES FIXTURES_REQUIRED ravo_installed)
endif()
