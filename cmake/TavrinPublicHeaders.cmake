# SPDX-License-Identifier: Apache-2.0
# Names, beside a folder's sources, the headers that a host may include. Only these are
# installed; everything else of the folder is private.
function(tavrin_public_headers)
  cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR
    BASE_DIRECTORY "${PROJECT_SOURCE_DIR}/src/Tavrin" OUTPUT_VARIABLE folder)
  foreach(header IN LISTS ARGN)
    cmake_path(GET header PARENT_PATH subfolder)
    cmake_path(SET destination NORMALIZE "${CMAKE_INSTALL_INCLUDEDIR}/Tavrin/${folder}/${subfolder}")
    install(FILES "${header}" DESTINATION "${destination}" COMPONENT Development)
  endforeach()
endfunction()
