# SPDX-License-Identifier: Apache-2.0
# Compiles the translations and puts them into a target as a resource. scripts/translations
# brings them up to date with the sources.
function(tavrin_add_translations target)
  set(folder "${CMAKE_BINARY_DIR}/translations")
  set(ts_files)
  set(listing)
  foreach(language IN LISTS ARGN)
    list(APPEND ts_files "${PROJECT_SOURCE_DIR}/translations/tavrin_${language}.ts")
    string(APPEND listing "    <file>tavrin_${language}.qm</file>\n")
  endforeach()
  set_source_files_properties(${ts_files} PROPERTIES OUTPUT_LOCATION "${folder}")
  qt_add_translation(qm_files ${ts_files})
  file(CONFIGURE OUTPUT "${folder}/translations.qrc" CONTENT
    "<RCC>\n  <qresource prefix=\"/tavrin/translations\">\n${listing}  </qresource>\n</RCC>\n")
  set(resource "${folder}/qrc_translations.cpp")
  add_custom_command(OUTPUT "${resource}"
    COMMAND Qt6::rcc --name tavrin_translations --output "${resource}" "${folder}/translations.qrc"
    DEPENDS "${folder}/translations.qrc" ${qm_files}
    VERBATIM)
  target_sources(${target} PRIVATE "${resource}")
endfunction()
