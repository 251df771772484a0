# The reference: what each public header declares, and the pages that go with it, as web pages in build/NAME/reference/html.
# It is built where Doxygen is; a build without it goes on without. tests/build/check_reference.py holds it to its rules.
find_program(DOXYGEN_PROGRAM doxygen)
find_program(AWK_PROGRAM awk)
mark_as_advanced(DOXYGEN_PROGRAM AWK_PROGRAM)
if(NOT DOXYGEN_PROGRAM OR NOT AWK_PROGRAM)
  message(STATUS "The reference is left out: there is no doxygen, or no awk")
  return()
endif()

set(reference_dir ${PROJECT_BINARY_DIR}/reference)
set(reference_source ${PROJECT_SOURCE_DIR}/packaging/reference)
set(reference_headers "")
get_property(libraries GLOBAL PROPERTY BRIVANE_EMBEDDED)
foreach(library IN LISTS libraries)
  get_target_property(headers ${library} HEADER_SET)
  list(APPEND reference_headers ${headers})
endforeach()
set(pages ${reference_source}/start.md)
foreach(page IN ITEMS contract embedding-with-qt without-a-toolkit-of-ours host-in-an-afternoon host-kit replay typing interface)
  list(APPEND pages ${PROJECT_SOURCE_DIR}/docs/${page}.md)
endforeach()
list(TRANSFORM pages REPLACE ".*/" "" OUTPUT_VARIABLE reference_pages)
list(JOIN reference_pages " " reference_pages)
string(PREPEND reference_pages " ")
string(APPEND reference_pages " ")
list(TRANSFORM pages REPLACE "(.+)" "\"\\1\"" OUTPUT_VARIABLE quoted_pages)
list(TRANSFORM reference_headers REPLACE "(.+)" "\"\\1\"" OUTPUT_VARIABLE quoted_headers)
list(JOIN quoted_pages " " reference_input)
list(JOIN quoted_headers " " quoted_headers)
string(APPEND reference_input " \"${reference_source}/rooms.dox\" ${quoted_headers}")

configure_file(${reference_source}/Doxyfile.in ${reference_dir}/Doxyfile @ONLY)
file(GLOB rules CONFIGURE_DEPENDS ${reference_source}/*)
add_custom_command(OUTPUT ${reference_dir}/html/index.html
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${reference_dir}/html
  COMMAND ${DOXYGEN_PROGRAM} Doxyfile
  WORKING_DIRECTORY ${reference_dir}
  DEPENDS ${reference_headers} ${pages} ${rules} ${reference_dir}/Doxyfile
  COMMENT "Reference" VERBATIM)
add_custom_target(reference ALL DEPENDS ${reference_dir}/html/index.html)
if(BRIVANE_INSTALL)
  include(GNUInstallDirs)
  install(DIRECTORY ${reference_dir}/html/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/reference COMPONENT documents OPTIONAL)
  # For a reference of one's own that leads to this one (TAGFILES).
  install(FILES ${reference_dir}/brivane-vrijekolom.tag DESTINATION ${CMAKE_INSTALL_DOCDIR}/reference
          COMPONENT documents OPTIONAL)
endif()
