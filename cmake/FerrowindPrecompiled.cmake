# Headers of other projects that most sources include, compiled once instead of once a source. The house's own headers
# are never among them: a change of one would compile everything anew.
#
# Only a help for those who build often, so off unless a preset asks for it. Every source includes what it uses: the
# check architecture_release_build compiles without them.

option(FERROWIND_PRECOMPILE "Compile the headers of other projects once" OFF)

set(ferrowind_precompiled_standard
  <algorithm> <array> <charconv> <chrono> <cmath> <cstddef> <cstdint> <exception> <filesystem> <functional> <limits> <map>
  <memory> <optional> <set> <span> <string> <string_view> <utility> <variant> <vector>)
set(ferrowind_precompiled_qt
  <QApplication> <QEvent> <QKeyEvent> <QLabel> <QLineEdit> <QMouseEvent> <QObject> <QPainter> <QPointer> <QPushButton>
  <QString> <QTableView> <QWidget>)
set(ferrowind_precompiled_test <gmock/gmock.h> <gtest/gtest.h>)

# ferrowind_precompiled_set(NAME HEADERS <a> ... [DEPENDS target ...])
# A set of headers, compiled with the options of every target of the house.
function(ferrowind_precompiled_set name)
  cmake_parse_arguments(ARG "" "" "HEADERS;DEPENDS" ${ARGN})
  set(source ${PROJECT_BINARY_DIR}/precompiled/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "// Compiled for its precompiled headers alone.\n")
  add_library(ferrowind_precompiled_${name} OBJECT EXCLUDE_FROM_ALL ${source})
  target_link_libraries(ferrowind_precompiled_${name} PRIVATE ferrowind_build_options ${ARG_DEPENDS})
  target_precompile_headers(ferrowind_precompiled_${name} PRIVATE ${ARG_HEADERS})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # The same headers make the same file, by which the compiler's cache knows it again.
    target_compile_options(ferrowind_precompiled_${name} PRIVATE "SHELL:-Xclang -fno-pch-timestamp")
  endif()
endfunction()

# ferrowind_use_precompiled(TARGET SET): standard, qt, test or qt_test. The sets are made on their first use, with the flags of
# that folder. Tests have other flags than what they test, so with FERROWIND_IN_TESTS the first two are sets of their own.
function(ferrowind_use_precompiled target set)
  if(NOT FERROWIND_PRECOMPILE)
    return()
  endif()
  set(name ${set})
  if(FERROWIND_IN_TESTS AND NOT set MATCHES "test")
    set(name ${set}_of_tests)
  endif()
  if(NOT TARGET ferrowind_precompiled_${name})
    set(headers ${ferrowind_precompiled_standard})
    set(depends "")
    if(set MATCHES "qt")
      list(APPEND headers ${ferrowind_precompiled_qt})
      list(APPEND depends Qt6::Widgets)
    endif()
    if(set MATCHES "test")
      list(APPEND headers ${ferrowind_precompiled_test})
      list(APPEND depends GTest::gmock)
    endif()
    ferrowind_precompiled_set(${name} HEADERS ${headers} DEPENDS ${depends})
  endif()
  target_precompile_headers(${target} REUSE_FROM ferrowind_precompiled_${name})
endfunction()
