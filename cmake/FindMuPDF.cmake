# SPDX-License-Identifier: Apache-2.0
# Finds MuPDF and what its static archive needs, as MuPDF::MuPDF.
#
# The archive is linked into Tavrin; none of these names reaches a host's link line
# unless Tavrin itself is static.

find_path(MuPDF_INCLUDE_DIR mupdf/fitz.h)
find_library(MuPDF_LIBRARY mupdf)
find_library(MuPDF_THIRD_LIBRARY mupdf-third)

set(mupdf_dependencies "")
foreach(name freetype harfbuzz mujs gumbo openjp2 jbig2dec jpeg z m)
  find_library(MuPDF_${name}_LIBRARY ${name})
  mark_as_advanced(MuPDF_${name}_LIBRARY)
  list(APPEND mupdf_dependencies "${MuPDF_${name}_LIBRARY}")
endforeach()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(MuPDF REQUIRED_VARS
  MuPDF_LIBRARY MuPDF_INCLUDE_DIR MuPDF_freetype_LIBRARY MuPDF_harfbuzz_LIBRARY
  MuPDF_mujs_LIBRARY MuPDF_gumbo_LIBRARY MuPDF_openjp2_LIBRARY MuPDF_jbig2dec_LIBRARY
  MuPDF_jpeg_LIBRARY)
mark_as_advanced(MuPDF_INCLUDE_DIR MuPDF_LIBRARY MuPDF_THIRD_LIBRARY)

if(MuPDF_FOUND AND NOT TARGET MuPDF::MuPDF)
  add_library(MuPDF::MuPDF INTERFACE IMPORTED)
  target_include_directories(MuPDF::MuPDF SYSTEM INTERFACE "${MuPDF_INCLUDE_DIR}")
  target_link_libraries(MuPDF::MuPDF INTERFACE "${MuPDF_LIBRARY}" "${MuPDF_THIRD_LIBRARY}" ${mupdf_dependencies})
endif()
