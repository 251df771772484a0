# The package that find_package() and pkg-config find: headers in include/brivane, the libraries, and what tells where
# they are. Parts that were not built are left out, and the package says so to who asks for them.
#
# Components: runtime and runtime_qt (the shared libraries), development (all else that is compiled and linked with),
# designer (the plugin for Qt Designer), documents, tools (the replay tool), host (the reference host).
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/BrivaneVrijeKolom)

# brivane_install_part(PART TARGET RUNTIME_COMPONENT DESCRIPTION REQUIRES): a library, its public headers, and what
# find_package() and pkg-config know it by.
function(brivane_install_part part target runtime description requires)
  install(TARGETS ${target} EXPORT ${part}
          FILE_SET HEADERS COMPONENT development
          LIBRARY COMPONENT ${runtime} OPTIONAL NAMELINK_COMPONENT development
          ARCHIVE COMPONENT development OPTIONAL)
  install(EXPORT ${part} NAMESPACE Brivane:: FILE ${part}Targets.cmake DESTINATION ${package_dir} COMPONENT development)
  get_target_property(name ${target} OUTPUT_NAME)
  # The package works wherever it is moved to.
  cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE up)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/package.pc.in ${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endfunction()

brivane_install_part(VrijeKolom brivane_embedding runtime "${PROJECT_DESCRIPTION}" "")
brivane_install_part(HostKit brivane_embedding_hostkit development "${PROJECT_DESCRIPTION}, checks for a host of one's own"
                     "brivane-vrijekolom = ${PROJECT_VERSION}")
if(BRIVANE_SESSION)
  brivane_install_part(Session brivane_embedding_session development
                       "${PROJECT_DESCRIPTION}, sessions on a host of one's own from a file"
                       "brivane-vrijekolom-hostkit = ${PROJECT_VERSION}")
endif()
if(BRIVANE_QT)
  brivane_install_part(Qt brivane_embedding_qt runtime_qt "${PROJECT_DESCRIPTION}, as Qt widgets"
                       "brivane-vrijekolom = ${PROJECT_VERSION}, Qt6Widgets >= 6.4")
endif()
if(BRIVANE_DESIGNER)
  # Where Qt has its plugins below its own prefix; elsewhere QT_PLUGIN_PATH leads there.
  set(designer_dir ${QT6_INSTALL_PLUGINS}/designer)
  install(TARGETS brivane_designer LIBRARY DESTINATION ${designer_dir} COMPONENT designer OPTIONAL)
  if(BUILD_SHARED_LIBS AND NOT BRIVANE_PACKAGES)
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${designer_dir}
               OUTPUT_VARIABLE to_library)
    set_target_properties(brivane_designer PROPERTIES INSTALL_RPATH "$ORIGIN/${to_library}")
  endif()
endif()

# A host ships those that it wants with its own.
set(translations_dir ${CMAKE_INSTALL_DATADIR}/brivane-vrijekolom/translations)
get_property(translations GLOBAL PROPERTY BRIVANE_TRANSLATIONS)
install(FILES ${translations} DESTINATION ${translations_dir} COMPONENT development OPTIONAL)

configure_package_config_file(cmake/BrivaneVrijeKolomConfig.cmake.in BrivaneVrijeKolomConfig.cmake
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(BrivaneVrijeKolomConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/BrivaneVrijeKolomConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/BrivaneVrijeKolomConfigVersion.cmake
        DESTINATION ${package_dir} COMPONENT development)
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documents)
install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documents)

# The manual pages of what is started by name.
find_program(GZIP_PROGRAM gzip)
function(brivane_install_manual program component)
  if(GZIP_PROGRAM)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/linux/${program}.1 ${PROJECT_BINARY_DIR}/${program}.1 COPYONLY)
    execute_process(COMMAND ${GZIP_PROGRAM} -9nf ${PROJECT_BINARY_DIR}/${program}.1 COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${PROJECT_BINARY_DIR}/${program}.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${component})
  endif()
endfunction()
if(BRIVANE_PROGRAMS)
  brivane_install_manual(vrijekolom-replay tools)
  if(BRIVANE_QT)
    brivane_install_manual(dossier host)
  endif()
endif()
