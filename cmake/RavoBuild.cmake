# The compile options of all targets: language level, release by default, warnings, sanitizers.
include_guard(GLOBAL)

# A project that includes this one sets its own build type.
if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

find_package(Threads REQUIRED)

# Compile options of our own targets, never propagated to a consumer.
function(ravo_own_target target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF C_STANDARD 11 C_EXTENSIONS OFF
    C_VISIBILITY_PRESET hidden CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wundef
    # Sources compiled together shadow each other's names by chance.
    $<$<NOT:$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>:-Wshadow>
    $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual>
    $<$<CXX_COMPILER_ID:Clang>:-Wreserved-identifier>
    # GCC 12 sees overlapping copies in std::basic_string's operator+ where there are none (GCC bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
  # For Windows, GCC assumes that an inline function preserves the registers that its own copy does, although
  # the linker may keep another source's copy, compiled with other options.
  if(MINGW)
    target_compile_options(${target} PRIVATE -fno-ipa-ra)
  endif()
  if(RAVO_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(RAVO_BUILD_FUZZ)
    # Every object reports its branches to the fuzzer; other programs ignore that.
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
  if(RAVO_COVERAGE)
    target_compile_options(${target} PRIVATE -fprofile-instr-generate -fcoverage-mapping)
    target_link_options(${target} PRIVATE -fprofile-instr-generate)
  endif()
  if(RAVO_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=${RAVO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${RAVO_SANITIZE})
  endif()
endfunction()

# Makes the headers of a header-only package of the distribution available to cross compilers too: all of
# /usr/include would give them the wrong C library.
function(ravo_packaged_headers target folder)
  if(NOT EXISTS /usr/include/${folder})
    message(FATAL_ERROR "/usr/include/${folder} is missing: scripts/setup run installs what the build needs")
  endif()
  set(place ${PROJECT_BINARY_DIR}/packaged-headers)
  file(MAKE_DIRECTORY ${place})
  if(NOT EXISTS ${place}/${folder})
    file(CREATE_LINK /usr/include/${folder} ${place}/${folder} SYMBOLIC)
  endif()
  target_include_directories(${target} SYSTEM PRIVATE ${place})
endfunction()

# Finds the Python of the host (not of the target), preferring the distribution's own to a shim in the path.
function(ravo_find_python variable)
  find_program(RAVO_PYTHON NAMES python3 HINTS /usr/bin NO_CMAKE_FIND_ROOT_PATH)
  if(NOT RAVO_PYTHON)
    message(FATAL_ERROR "python3 is missing: scripts/setup check installs what the tests need")
  endif()
  set(${variable} ${RAVO_PYTHON} PARENT_SCOPE)
endfunction()

# The shared run-time libraries of the compiler for Windows.
function(ravo_runtime_files variable)
  set(files)
  foreach(name libstdc++-6 libgcc_s_dw2-1 libgcc_s_seh-1 libwinpthread-1)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}.dll OUTPUT_VARIABLE file
      OUTPUT_STRIP_TRAILING_WHITESPACE)
    # The compiler returns the bare name for a library that it lacks: the other width has another way of
    # unwinding.
    if(IS_ABSOLUTE "${file}")
      list(APPEND files ${file})
    endif()
  endforeach()
  set(${variable} ${files} PARENT_SCOPE)
endfunction()

# The libraries are copied beside our programs: exceptions cross the border of the library, so it and its
# users share one copy.
function(ravo_copy_runtime folder)
  if(MINGW)
    ravo_runtime_files(files)
    foreach(file ${files})
      cmake_path(GET file FILENAME name)
      configure_file(${file} ${folder}/${name} COPYONLY)
    endforeach()
  endif()
endfunction()
