set(MINGW_MACHINE i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
