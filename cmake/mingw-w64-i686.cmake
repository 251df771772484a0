set(MINGW_MACHINE i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
# Sums are rounded to the width of a double at each step, as everywhere else: the processor's older arithmetic keeps more.
# What Windows calls comes with a stack for less than these registers need, which the compiler sees to.
string(APPEND CMAKE_CXX_FLAGS_INIT " -msse2 -mfpmath=sse -mstackrealign")
