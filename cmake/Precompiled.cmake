# Precompiled headers for the tests. Reading headers is most of what a test costs to compile, so the test programs share
# those of GoogleTest, and of Qt where they drive it. No source may count on them: the sanitizers' preset does without.
set(brivane_test_headers
  <algorithm> <array> <cstdint> <functional> <memory> <optional> <string> <string_view> <vector>
  <gmock/gmock.h> <gtest/gtest.h>)
set(brivane_qt_test_headers ${brivane_test_headers} <QApplication> <QLabel> <QLineEdit> <QMouseEvent> <QString>)

# brivane_reaches(TARGET RESULT): the names of all that a target links, and of what that links.
function(brivane_reaches target result)
  set(reached "")
  set(waiting ${target})
  while(NOT waiting STREQUAL "")
    list(POP_FRONT waiting next)
    list(APPEND reached ${next})
    if(NOT TARGET ${next})
      continue()  # known in the folder where it was found, and not here
    endif()
    foreach(property IN ITEMS LINK_LIBRARIES INTERFACE_LINK_LIBRARIES)
      get_target_property(linked ${next} ${property})
      if(linked)
        list(FILTER linked INCLUDE REGEX "^[A-Za-z0-9_:-]+$")
        list(REMOVE_ITEM linked ${reached})
        list(APPEND waiting ${linked})
      endif()
    endforeach()
    list(REMOVE_DUPLICATES waiting)
  endwhile()
  set(${result} "${reached}" PARENT_SCOPE)
endfunction()

# brivane_precompiled(KIND libraries...): the target that makes the headers of a kind.
function(brivane_precompiled kind)
  if(NOT TARGET brivane_precompiled_${kind})
    set(source ${PROJECT_BINARY_DIR}/precompiled_${kind}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "")
    add_library(brivane_precompiled_${kind} OBJECT ${source})
    target_link_libraries(brivane_precompiled_${kind} PRIVATE brivane_warnings brivane_quick_to_compile ${ARGN})
    target_precompile_headers(brivane_precompiled_${kind} PRIVATE ${brivane_${kind}_headers})
  endif()
endfunction()

# brivane_precompile(TARGET): a test program reuses the headers of its kind.
function(brivane_precompile target)
  brivane_reaches(${target} reached)
  if("Qt6::Widgets" IN_LIST reached)
    brivane_precompiled(qt_test GTest::gmock Qt6::Widgets)
    target_precompile_headers(${target} REUSE_FROM brivane_precompiled_qt_test)
  else()
    brivane_precompiled(test GTest::gmock)
    target_precompile_headers(${target} REUSE_FROM brivane_precompiled_test)
  endif()
endfunction()
