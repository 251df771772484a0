# brivane_library(NAME sources...): a static library that is included from the root of the tree.
function(brivane_library name)
  add_library(${name} STATIC ${ARGN})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE brivane_warnings)
  target_compile_features(${name} PUBLIC cxx_std_20)
  brivane_with_symbols(${name})
  set_target_properties(${name} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  if(NOT EMSCRIPTEN)
    set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  endif()
endfunction()

# brivane_public_headers(NAME headers...): what who embeds the library may include of it. All other headers stay here.
function(brivane_public_headers name)
  list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  set_property(TARGET ${name} APPEND PROPERTY BRIVANE_PUBLIC_HEADERS ${ARGN})
endfunction()

# brivane_logic_library(NAME sources...): the same under the strict warnings of the logic folders.
function(brivane_logic_library name)
  brivane_library(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE brivane_strict_warnings)
endfunction()

# What only tests: it is compiled more often than it runs for long.
add_library(brivane_quick_to_compile INTERFACE)
if(EMSCRIPTEN)
  # A test that waits puts aside all that stands on its stack, which is large without any optimization.
  target_compile_options(brivane_quick_to_compile INTERFACE -O1)
else()
  target_compile_options(brivane_quick_to_compile INTERFACE $<$<CONFIG:Release>:-O0>)
endif()
if(NOT WIN32 AND NOT EMSCRIPTEN)
  # As Qt wants it; headers are precompiled for one way alone.
  target_compile_options(brivane_quick_to_compile INTERFACE -fPIC)
endif()

# brivane_test(NAME LIBS libs... SOURCES sources... [SLOW] [SHARDS number]): a GoogleTest program, one ctest entry; `./test`
# counts its test cases. SLOW: more than a few seconds; `./test --quick` leaves it out. SHARDS: so many entries, each with
# its part of the cases, so that they run side by side. Those of a folder that sets `windows_test_lock` run one at a time.
function(brivane_test name)
  cmake_parse_arguments(arg "SLOW" "SHARDS" "LIBS;SOURCES" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE brivane_warnings GTest::gtest_main GTest::gmock ${arg_LIBS})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  if(arg_SLOW)
    # The longest first, so that nothing waits for them in the end.
    set(properties LABELS slow COST 100)
  else()
    target_link_libraries(${name} PRIVATE brivane_quick_to_compile)
    brivane_precompile(${name})
    set(properties)
  endif()
  # Ends one that hangs; many times what any takes, for a machine that does much else.
  list(APPEND properties TIMEOUT 900)
  if(windows_test_lock)
    list(APPEND properties RESOURCE_LOCK ${windows_test_lock})
  endif()
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME windows.${name} COMMAND ${name})
    set_tests_properties(windows.${name} PROPERTIES ${properties})
  elseif(arg_SHARDS)
    math(EXPR last "${arg_SHARDS} - 1")
    foreach(shard RANGE ${last})
      add_test(NAME ${name}.${shard} COMMAND ${name})
      set_tests_properties(${name}.${shard} PROPERTIES ${properties}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;GTEST_TOTAL_SHARDS=${arg_SHARDS};GTEST_SHARD_INDEX=${shard}")
    endforeach()
  else()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES ${properties} ENVIRONMENT QT_QPA_PLATFORM=offscreen)
  endif()
endfunction()
