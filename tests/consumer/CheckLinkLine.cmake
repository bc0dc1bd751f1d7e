# SPDX-License-Identifier: Apache-2.0
# A host of Core alone links no windows, and neither of the engines behind the library.
file(READ "${BUILD_FILE}" statements)
string(REGEX MATCH "\nbuild ${PROGRAM}:[^#]* LINK_LIBRARIES = [^\n]*" statement "${statements}")
string(REGEX MATCH "LINK_LIBRARIES = .*" link_lines "${statement}")
if(NOT link_lines MATCHES "libTavrinCore")
  message(FATAL_ERROR "The host does not link Core: ${link_lines}")
endif()
if(link_lines MATCHES "Widgets|mupdf|xml2")
  message(FATAL_ERROR "The host links more than it asked for: ${link_lines}")
endif()
