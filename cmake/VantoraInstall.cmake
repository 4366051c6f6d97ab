# What `cmake --install` puts where: the plug-in library, its C header, the reference host with
# its viewer folder, the documentation, and the files that let other projects find them (a CMake
# package and a pkg-config file). Everything below the prefix is placed relative to it, so the
# installed tree works wherever it is copied.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# The viewer folder the host hands to the library as its installation folder.
set(VANTORA_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/vantora-export)
set(VANTORA_INSTALL_DOCDIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/vantora-export)
set(VANTORA_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/VantoraExport)
# Where the loadable library lands: beside the programs on Windows, with the libraries elsewhere.
if(WIN32)
  set(VANTORA_INSTALL_MODULEDIR ${CMAKE_INSTALL_BINDIR})
else()
  set(VANTORA_INSTALL_MODULEDIR ${CMAKE_INSTALL_LIBDIR})
endif()
set(VANTORA_MODULE_FILE
  ${CMAKE_SHARED_LIBRARY_PREFIX}vantora_export${CMAKE_SHARED_LIBRARY_SUFFIX})
# The viewer folder the build makes for the reference host.
get_filename_component(vantora_viewer_folder ${VIEWER_BUNDLE} DIRECTORY)

# The library is loaded at run time by its hosts, never linked: no soname, no versioned links.
install(TARGETS vantora_export
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
install(FILES include/vantora/host.h ${PROJECT_BINARY_DIR}/include/vantora/version.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vantora COMPONENT development)
install(DIRECTORY ${vantora_viewer_folder}
  DESTINATION ${VANTORA_INSTALL_DATADIR} COMPONENT runtime)
install(FILES README.md LICENSE NOTICE DESTINATION ${VANTORA_INSTALL_DOCDIR} COMPONENT runtime)
install(DIRECTORY docs/ DESTINATION ${VANTORA_INSTALL_DOCDIR} COMPONENT runtime
  FILES_MATCHING PATTERN "*.md" PATTERN "*.ini")

# The package configuration finds everything relative to its own folder, for the same reason.
configure_package_config_file(cmake/VantoraExportConfig.cmake.in
  ${PROJECT_BINARY_DIR}/VantoraExportConfig.cmake
  INSTALL_DESTINATION ${VANTORA_INSTALL_CMAKEDIR}
  PATH_VARS CMAKE_INSTALL_INCLUDEDIR VANTORA_INSTALL_MODULEDIR CMAKE_INSTALL_BINDIR
            VANTORA_INSTALL_DATADIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VantoraExportConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VantoraExportConfig.cmake
              ${PROJECT_BINARY_DIR}/VantoraExportConfigVersion.cmake
  DESTINATION ${VANTORA_INSTALL_CMAKEDIR} COMPONENT development)

# pkg-config: the header's flags, and the module's and the viewer's places as variables, since a
# host loads the library instead of linking it.
# The prefix is found from the file's own place, as for the CMake package.
file(RELATIVE_PATH VANTORA_PC_TO_PREFIX /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" VANTORA_PC_TO_PREFIX "${VANTORA_PC_TO_PREFIX}")
configure_file(cmake/vantora-export.pc.in ${PROJECT_BINARY_DIR}/vantora-export.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vantora-export.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
