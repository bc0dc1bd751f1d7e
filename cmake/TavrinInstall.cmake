# SPDX-License-Identifier: Apache-2.0
# What an installation holds: the libraries with their public headers and a package
# configuration, the programs with manual and completions, the grammar of maps, and the licence.

include(CMakePackageConfigHelpers)

set(TAVRIN_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/Tavrin")

# One file of targets a component, so that a host loads only what it asks for.
install(TARGETS TavrinCore EXPORT TavrinCoreTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(EXPORT TavrinCoreTargets NAMESPACE Tavrin:: DESTINATION "${TAVRIN_PACKAGE_DIR}")
install(FILES "${CMAKE_BINARY_DIR}/include/Tavrin/CoreExport.h"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/Tavrin")

if(TARGET TavrinWidgets)
  install(TARGETS TavrinWidgets EXPORT TavrinWidgetsTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
  install(EXPORT TavrinWidgetsTargets NAMESPACE Tavrin:: DESTINATION "${TAVRIN_PACKAGE_DIR}")
  install(FILES "${CMAKE_BINARY_DIR}/include/Tavrin/WidgetsExport.h"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/Tavrin")
  # It finds Core beside it, wherever the tree is moved to.
  set_target_properties(TavrinWidgets PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()

# The programs find the library beside them, wherever the tree is moved to.
file(RELATIVE_PATH library_dir "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
foreach(program IN ITEMS tavrin tavrin-reader)
  if(TARGET ${program})
    set_target_properties(${program} PROPERTIES INSTALL_RPATH "$ORIGIN/${library_dir}")
    install(TARGETS ${program} RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
  endif()
endforeach()
if(TARGET tavrin_documents)
  set(manuals "${CMAKE_BINARY_DIR}/manuals")
  install(DIRECTORY "${manuals}/man/" DESTINATION "${CMAKE_INSTALL_MANDIR}")
  foreach(shell IN ITEMS bash-completion zsh fish)
    install(DIRECTORY "${manuals}/${shell}" DESTINATION "${CMAKE_INSTALL_DATADIR}")
  endforeach()
endif()

configure_package_config_file(cmake/TavrinConfig.cmake.in "${CMAKE_BINARY_DIR}/TavrinConfig.cmake"
  INSTALL_DESTINATION "${TAVRIN_PACKAGE_DIR}" NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${CMAKE_BINARY_DIR}/TavrinConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES
  "${CMAKE_BINARY_DIR}/TavrinConfig.cmake"
  "${CMAKE_BINARY_DIR}/TavrinConfigVersion.cmake"
  DESTINATION "${TAVRIN_PACKAGE_DIR}")
if(NOT BUILD_SHARED_LIBS)
  # A static library leaves it to the host to link the engine.
  install(FILES cmake/FindMuPDF.cmake DESTINATION "${TAVRIN_PACKAGE_DIR}")
endif()

install(FILES samples/spec.dtd DESTINATION "${CMAKE_INSTALL_DATADIR}/tavrin")
install(FILES samples/icccm.xml samples/slepc.xml samples/theora.xml
  DESTINATION "${CMAKE_INSTALL_DATADIR}/tavrin/maps")
install(FILES LICENSE NOTICE DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/tavrin")
