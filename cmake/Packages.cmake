# Debian packages: `scripts/build release && cpack --preset release` leaves them in build/release/packages. One for each
# install component, with the shared libraries. packaging/debian holds what every package says of itself.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "Brivane <packages@brivane.example>")
set(CPACK_PACKAGE_VENDOR Brivane)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CPACK_PACKAGE_CONTACT}")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The libraries are found among the packages that are made, not among those that are installed.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
    WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL "")
find_program(GZIP_PROGRAM gzip REQUIRED)
string(TIMESTAMP packaged "%a, %d %b %Y %H:%M:%S +0000" UTC)

# brivane_package(COMPONENT NAME SECTION SUMMARY MORE [DEPENDS]): the package of an install component.
function(brivane_package component name section summary more)
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_COMPONENT_${upper}_DESCRIPTION "${summary}\n${more}" PARENT_SCOPE)
  if(ARGN)
    set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${ARGN}" PARENT_SCOPE)
  endif()
  set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)

  set(about ${PROJECT_BINARY_DIR}/about/${name})
  configure_file(${PROJECT_SOURCE_DIR}/packaging/debian/changelog.in ${about}/changelog @ONLY)
  execute_process(COMMAND ${GZIP_PROGRAM} -9nf ${about}/changelog COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${about}/changelog.gz ${PROJECT_SOURCE_DIR}/packaging/debian/copyright
          DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${name} COMPONENT ${component})
  if(section STREQUAL "libs")
    file(WRITE ${about}/triggers "activate-noawait ldconfig\n")
    string(REGEX REPLACE "[0-9]+$" "" library ${name})
    file(WRITE ${about}/shlibs "${library} ${PROJECT_VERSION_MAJOR} ${name} (= ${PROJECT_VERSION})\n")
    set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA ${about}/triggers ${about}/shlibs PARENT_SCOPE)
  endif()
endfunction()

set(same "(= ${PROJECT_VERSION})")
brivane_package(runtime libbrivane-vrijekolom1 libs "controls that edit a free column of a loan file"
  "The logic of the controls and a toolkit without a screen, as a shared library.")
brivane_package(development libbrivane-vrijekolom-dev libdevel "headers and build files of libbrivane-vrijekolom"
  "What a program that embeds the controls is compiled with: headers, and what CMake\nand pkg-config know the libraries by."
  "libbrivane-vrijekolom1 ${same}, libbrivane-vrijekolom-qt1 ${same}, qt6-base-dev")
brivane_package(documents libbrivane-vrijekolom-doc doc "documents of libbrivane-vrijekolom"
  "How the controls are embedded, what they ask of a host, and why they are as\nthey are: pages, and a reference of the public headers.")
if(TARGET reference)
  configure_file(packaging/debian/doc-base.in ${PROJECT_BINARY_DIR}/about/doc-base @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/about/doc-base DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc-base
          RENAME libbrivane-vrijekolom-doc COMPONENT documents)
endif()
brivane_package(tools vrijekolom-replay utils "plays sessions of the free column controls"
  "Reads a document of what a person did and what the host held, plays it on the\ncontrols, and prints what they did.")
if(BRIVANE_QT)
  brivane_package(runtime_qt libbrivane-vrijekolom-qt1 libs "controls that edit a free column, as Qt widgets"
    "The widgets of the controls, for programs on Qt 6."
    "libbrivane-vrijekolom1 ${same}, fonts-liberation")  # as wide as Arial: without either words are cut off
  if(BRIVANE_DESIGNER)
    brivane_package(designer libbrivane-vrijekolom-designer libdevel "free column widgets in Qt Designer"
      "The plugin by which Qt Designer, and what loads its forms, knows the widgets of\nlibbrivane-vrijekolom-qt1."
      "libbrivane-vrijekolom-qt1 ${same}")
    set(CPACK_DEBIAN_DESIGNER_PACKAGE_SUGGESTS "designer-qt6, libbrivane-vrijekolom-dev")
  endif()
  brivane_package(host dossier misc "loan files with free columns"
    "The reference host of the free column controls: an application that keeps loan\nfiles and edits their free columns."
    "libqt6sql6-sqlite")
  set(CPACK_DEBIAN_HOST_PACKAGE_RECOMMENDS "fonts-liberation, libqt6sql6-psql")
endif()
set(CPACK_DEBIAN_DOCUMENTS_PACKAGE_ARCHITECTURE all)
include(CPack)
