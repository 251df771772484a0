set(MINGW_MACHINE x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
get_filename_component(wine ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine ABSOLUTE)
set(CMAKE_CROSSCOMPILING_EMULATOR ${wine})
