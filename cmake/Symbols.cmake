# The debug symbols of what is shipped for Windows: functions and lines, in a file of their own beside a library without
# them. The root of the tree is /brivane in them, on whatever machine they were compiled.

# brivane_with_symbols(TARGET): compiles with symbols, where they are taken out again.
function(brivane_with_symbols target)
  if(MINGW)
    target_compile_options(${target} PRIVATE -g1 -ffile-prefix-map=${PROJECT_SOURCE_DIR}=/brivane)
  endif()
endfunction()

# brivane_part_from_symbols(TARGET): NAME.dll loses its symbols to NAME.dll.debug, which it names. Neither tells when.
function(brivane_part_from_symbols target)
  set(library $<TARGET_FILE:${target}>)
  set(objcopy ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0 ${CMAKE_OBJCOPY})
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${objcopy} --only-keep-debug ${library} ${library}.debug
    COMMAND ${objcopy} --strip-all --add-gnu-debuglink=${library}.debug ${library}
    VERBATIM)
endfunction()
