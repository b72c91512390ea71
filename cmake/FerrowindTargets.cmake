# How every target of this repository is built: C++20, includes from the repository's root, warnings, the preset's
# sanitizers. Headers of other projects are system headers and keep their own warnings.

# For those who change the sources. Whoever only builds them may have a newer compiler with warnings of its own.
option(FERROWIND_WARNINGS_AS_ERRORS "Let a warning of the compiler end the build" OFF)
set(FERROWIND_LINKER "" CACHE STRING "Linker of the programs, as -fuse-ld= takes it; empty for the compiler's own")

add_library(ferrowind_build_options INTERFACE)
target_compile_features(ferrowind_build_options INTERFACE cxx_std_20)
target_compile_options(ferrowind_build_options INTERFACE
  -fPIC -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual -Wformat=2
  $<$<BOOL:${FERROWIND_WARNINGS_AS_ERRORS}>:-Werror>)
# While it optimises, GCC follows values into the standard library's inlined code and reports accesses there that cannot
# happen, others in each release of its own. Clang and the sanitizers look for most of these faults without that.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(ferrowind_build_options INTERFACE
    -Wno-array-bounds -Wno-free-nonheap-object -Wno-maybe-uninitialized -Wno-restrict -Wno-stringop-overflow
    -Wno-stringop-overread)
  # A module with symbols that are to be unique in the process is never unloaded.
  target_compile_options(ferrowind_build_options INTERFACE -fno-gnu-unique)
endif()
if(FERROWIND_LINKER)
  target_link_options(ferrowind_build_options INTERFACE -fuse-ld=${FERROWIND_LINKER})
endif()
if(FERROWIND_SANITIZE)
  target_compile_options(ferrowind_build_options INTERFACE
    -fsanitize=${FERROWIND_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(ferrowind_build_options INTERFACE -fsanitize=${FERROWIND_SANITIZE})
endif()
if(FERROWIND_FUZZ)
  target_compile_options(ferrowind_build_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined)
  target_link_options(ferrowind_build_options INTERFACE -fsanitize=address,undefined)
endif()
set(CMAKE_CXX_EXTENSIONS OFF)
# Every object may become a part of a shared library (so -fPIC, also above programs, which share precompiled headers with the
# libraries), the house's own or a plug-in of a host, which then shows only what is marked (ferrowind/export.h).
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
include(FerrowindPrecompiled)

# ferrowind_add_library(NAME SOURCES a.cpp ... [PUBLIC_HEADERS a.h ...] [HEADERS b.h ...] [DEPENDS target ...]
#                       [PRIVATE_DEPENDS target ...] [PRECOMPILED set])
# One leaf of the house: target ferrowind_NAME. Public headers are those that hosts include; they are installed, and mark
# with FERROWIND_EXPORT what hosts use. The set of precompiled headers is `standard` unless said.
function(ferrowind_add_library name)
  cmake_parse_arguments(ARG "" "PRECOMPILED" "SOURCES;PUBLIC_HEADERS;HEADERS;DEPENDS;PRIVATE_DEPENDS" ${ARGN})
  set(target ferrowind_${name})
  if(ARG_SOURCES)
    add_library(${target} STATIC ${ARG_SOURCES})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_link_libraries(${target} PUBLIC ${ARG_DEPENDS} PRIVATE ferrowind_build_options ${ARG_PRIVATE_DEPENDS})
    if(NOT ARG_PRECOMPILED)
      set(ARG_PRECOMPILED standard)
    endif()
    ferrowind_use_precompiled(${target} ${ARG_PRECOMPILED})
  else()
    add_library(${target} INTERFACE)
    target_include_directories(${target} INTERFACE ${PROJECT_SOURCE_DIR})
    target_compile_features(${target} INTERFACE cxx_std_20)
    target_link_libraries(${target} INTERFACE ${ARG_DEPENDS})
  endif()
  list(TRANSFORM ARG_PUBLIC_HEADERS PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  set_property(TARGET ${target} PROPERTY FERROWIND_PUBLIC_HEADERS ${ARG_PUBLIC_HEADERS})
endfunction()

# ferrowind_add_executable(NAME SOURCES a.cpp ... [DEPENDS target ...] [PRECOMPILED set])
# Without PRECOMPILED nothing is.
function(ferrowind_add_executable name)
  cmake_parse_arguments(ARG "" "PRECOMPILED" "SOURCES;DEPENDS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE ferrowind_build_options ${ARG_DEPENDS})
  if(ARG_PRECOMPILED)
    ferrowind_use_precompiled(${name} ${ARG_PRECOMPILED})
  endif()
endfunction()

# ferrowind_add_test(NAME LABEL label SOURCES a.cpp ... [DEPENDS target ...] [ENVIRONMENT VAR=value ...] [TIMEOUT s]
#                    [PRECOMPILED set])
# A GoogleTest program, registered with CTest under its own name and the label that `./test LABEL` selects. The set of
# precompiled headers is `test` unless said.
function(ferrowind_add_test name)
  cmake_parse_arguments(ARG "" "LABEL;PRECOMPILED;TIMEOUT" "SOURCES;DEPENDS;ENVIRONMENT" ${ARGN})
  if(NOT ARG_PRECOMPILED)
    set(ARG_PRECOMPILED test)
  endif()
  ferrowind_add_executable(${name}
    SOURCES ${ARG_SOURCES} DEPENDS ${ARG_DEPENDS} GTest::gmock GTest::gtest_main PRECOMPILED ${ARG_PRECOMPILED})
  add_test(NAME ${name} COMMAND ${name})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 300)
  endif()
  set_tests_properties(${name} PROPERTIES LABELS ${ARG_LABEL} TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT "${ARG_ENVIRONMENT}")
endfunction()
