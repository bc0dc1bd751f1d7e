# SPDX-License-Identifier: Apache-2.0
# One language level and one set of warnings for every target of the project.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# What was compiled once is not compiled again, in whichever clone of the tree: paths count from its
# root, and headers by what they hold.
find_program(TAVRIN_CCACHE ccache DOC "Keeps what was compiled; empty for none")
set(TAVRIN_CCACHE_SETTINGS "CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}" CCACHE_NOHASHDIR=1
  CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime)
if(TAVRIN_CCACHE)
  foreach(language IN ITEMS C CXX)
    set(CMAKE_${language}_COMPILER_LAUNCHER
      "${CMAKE_COMMAND}" -E env ${TAVRIN_CCACHE_SETTINGS} "${TAVRIN_CCACHE}")
  endforeach()
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    # A header that was compiled elsewhere is as good, whatever its age.
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
  endif()
endif()

# With TAVRIN_UNITE_FOLDERS, which the presets for checks set, the sources of a folder are compiled as
# one, in a third of the time. So the names in their unnamed namespaces have to differ.
function(tavrin_unite_folders target)
  if(NOT TAVRIN_UNITE_FOLDERS)
    return()
  endif()
  get_target_property(sources ${target} SOURCES)
  get_target_property(directory ${target} SOURCE_DIR)
  foreach(source IN LISTS sources)
    cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY "${directory}" NORMALIZE OUTPUT_VARIABLE path)
    cmake_path(IS_PREFIX PROJECT_SOURCE_DIR "${path}" is_ours)
    cmake_path(IS_PREFIX CMAKE_BINARY_DIR "${path}" is_generated)
    if(path MATCHES "\\.cpp$" AND is_ours AND NOT is_generated)
      cmake_path(GET path PARENT_PATH folder)
      cmake_path(RELATIVE_PATH folder BASE_DIRECTORY "${PROJECT_SOURCE_DIR}")
      string(MAKE_C_IDENTIFIER "${folder}" group)
      set_source_files_properties("${source}" TARGET_DIRECTORY ${target} PROPERTIES UNITY_GROUP ${group})
    endif()
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()

add_library(tavrin_warnings INTERFACE)
target_compile_options(tavrin_warnings INTERFACE -Wall -Wextra -Wconversion -Wshadow)
if(TAVRIN_UNITE_FOLDERS AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # It takes a source that is compiled with others for a header.
  target_compile_options(tavrin_warnings INTERFACE -Wno-subobject-linkage)
endif()
if(TAVRIN_WERROR)
  target_compile_options(tavrin_warnings INTERFACE -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Once all is inlined, GCC 12 takes the payload of an empty std::optional for one that is read.
    target_compile_options(tavrin_warnings INTERFACE -Wno-error=maybe-uninitialized)
  endif()
endif()
# Our own sources say which bytes are text; what a host may do is left to it.
target_compile_definitions(tavrin_warnings INTERFACE
  QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
  QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH)

# Parsing Qt's headers takes longer than compiling what includes them. Sources include what they use
# all the same: scripts/lint reads them without.
set(TAVRIN_CORE_HEADERS <QHash> <QImage> <QRegularExpression> <QSet> <QStringList> <QUrl>
  <algorithm> <cmath> <functional> <map> <memory> <mutex> <optional> <utility> <vector>)
set(TAVRIN_WIDGETS_HEADERS ${TAVRIN_CORE_HEADERS}
  <QApplication> <QBoxLayout> <QLabel> <QLineEdit> <QMenu> <QPainter> <QScrollBar>
  <QStyledItemDelegate> <QTextLayout> <QTimer> <QToolButton>)

if(TAVRIN_SANITIZE)
  add_compile_options(-fsanitize=${TAVRIN_SANITIZE} -fno-omit-frame-pointer)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Instrumented code looks to GCC as if optional values were read unset; other builds still tell.
    add_compile_options(-Wno-maybe-uninitialized)
  endif()
  string(REPLACE "fuzzer-no-link" "" link_sanitizers "${TAVRIN_SANITIZE}")
  string(REGEX REPLACE ",+$" "" link_sanitizers "${link_sanitizers}")
  add_link_options(-fsanitize=${link_sanitizers})
  if(TAVRIN_SANITIZE MATCHES "undefined")
    # Qt ships without type information for its own classes; vptr checks would only report that.
    add_compile_options(-fno-sanitize=vptr -fno-sanitize-recover=all)
    add_link_options(-fno-sanitize=vptr)
  endif()
endif()
