# brivane_library(NAME sources...): a static library that is included from the root of the tree.
function(brivane_library name)
  add_library(${name} STATIC ${ARGN})
  target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:include/brivane>)
  target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:brivane_warnings>)
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  set_property(GLOBAL APPEND PROPERTY BRIVANE_LIBRARIES ${name})
endfunction()

# brivane_logic_library(NAME sources...): the same under the strict warnings of the logic folders.
function(brivane_logic_library name)
  brivane_library(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:brivane_strict_warnings>)
endfunction()

# brivane_test(NAME LIBS libs... SOURCES sources... [SLOW]): a GoogleTest program, one ctest entry for each test case.
# SLOW: more than a few seconds; `./test --quick` leaves it out. Cross-built, a program is one entry: Wine takes a
# second to start one. Those of a folder that sets `windows_test_lock` run one at a time.
function(brivane_test name)
  cmake_parse_arguments(arg "SLOW" "" "LIBS;SOURCES" ${ARGN})
  set(properties ENVIRONMENT QT_QPA_PLATFORM=offscreen)
  if(arg_SLOW)
    list(APPEND properties LABELS slow)
  endif()
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE brivane_warnings GTest::gtest_main GTest::gmock ${arg_LIBS})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME windows.${name} COMMAND ${name})
    list(APPEND properties TIMEOUT 300)
    if(windows_test_lock)
      list(APPEND properties RESOURCE_LOCK ${windows_test_lock})
    endif()
    set_tests_properties(windows.${name} PROPERTIES ${properties})
    return()
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 PROPERTIES ${properties})
endfunction()
