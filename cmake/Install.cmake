# The package that find_package() and pkg-config find: headers in include/brivane, the libraries, and what tells where
# they are. Parts that were not built are left out, and the package says so to who asks for them.
#
# Components: runtime (programs and shared libraries), development (all else that is linked), documents, tools.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/BrivaneVrijeKolom)

# brivane_install_part(PART targets...): the libraries of a part, and what find_package() knows them by.
function(brivane_install_part part)
  install(TARGETS ${ARGN} EXPORT ${part}
          LIBRARY COMPONENT runtime OPTIONAL NAMELINK_COMPONENT development
          ARCHIVE COMPONENT development OPTIONAL
          RUNTIME COMPONENT runtime OPTIONAL)
  install(EXPORT ${part} NAMESPACE Brivane:: FILE ${part}Targets.cmake DESTINATION ${package_dir} COMPONENT development)
endfunction()

# brivane_pkg_config(NAME DESCRIPTION REQUIRES targets...): the same for pkg-config. The last library first, since each
# uses those before it.
function(brivane_pkg_config name description requires)
  set(libraries "")
  foreach(library IN LISTS ARGN)
    get_target_property(type ${library} TYPE)
    if(NOT type STREQUAL "INTERFACE_LIBRARY")
      list(PREPEND libraries -l${library})
    endif()
  endforeach()
  list(JOIN libraries " " libraries)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/package.pc.in ${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endfunction()

brivane_install_part(VrijeKolom ${core})
brivane_pkg_config(brivane-vrijekolom "${PROJECT_DESCRIPTION}" "" ${core})
install(DIRECTORY brivane DESTINATION include COMPONENT development
        FILES_MATCHING PATTERN "*.h" PATTERN "toolkits/qt" EXCLUDE PATTERN "toolkits/win32" EXCLUDE)
if(WIN32)
  install(DIRECTORY brivane/toolkits/win32 DESTINATION include/brivane/toolkits COMPONENT development FILES_MATCHING PATTERN "*.h")
endif()
if(BRIVANE_QT)
  brivane_install_part(Qt ${qt})
  brivane_pkg_config(brivane-vrijekolom-qt "${PROJECT_DESCRIPTION}, as Qt widgets"
                     "brivane-vrijekolom = ${PROJECT_VERSION}, Qt6Widgets >= 6.4" ${qt})
  install(DIRECTORY brivane/toolkits/qt DESTINATION include/brivane/toolkits COMPONENT development FILES_MATCHING PATTERN "*.h")
endif()

configure_package_config_file(cmake/BrivaneVrijeKolomConfig.cmake.in BrivaneVrijeKolomConfig.cmake
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(BrivaneVrijeKolomConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/BrivaneVrijeKolomConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/BrivaneVrijeKolomConfigVersion.cmake
        DESTINATION ${package_dir} COMPONENT development)
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documents)
install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documents)
