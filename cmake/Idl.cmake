# Debian's Wine brings the imports and the system's own type library (packages libwine-dev and libwine).
set(BRIVANE_WIDL_INCLUDE /usr/include/wine/wine/windows CACHE PATH "Imports of interface definitions")
set(BRIVANE_WIDL_LIBRARIES /usr/lib/x86_64-linux-gnu/wine/x86_64-windows CACHE PATH "Folder with stdole2.tlb")

# brivane_compile_idl(FILE FOLDER): NAME_idl.h and NAME.tlb of an interface definition, in the folder.
function(brivane_compile_idl file folder)
  get_filename_component(name ${file} NAME_WE)
  get_filename_component(source_dir ${file} DIRECTORY)  # the header says which file it was made of
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(machine --win64)
  else()
    set(machine --win32)
  endif()
  # The compiler leaves the time in the description: always the same one, so that the library can be built again.
  set(widl ${CMAKE_COMMAND} -E env WIDL_TIME_OVERRIDE=0 ${BRIVANE_WIDL} -I${BRIVANE_WIDL_INCLUDE} -L${BRIVANE_WIDL_LIBRARIES} ${machine})
  add_custom_command(OUTPUT ${folder}/${name}.tlb ${folder}/${name}_idl.h
    COMMAND ${widl} -t -o ${folder}/${name}.tlb ${name}.idl
    COMMAND ${widl} -h -o ${folder}/${name}_idl.h ${name}.idl
    WORKING_DIRECTORY ${source_dir} DEPENDS ${file} VERBATIM)
endfunction()
