# Cross-building for Windows with Debian's MinGW-w64 and running what was built under Wine. The file that includes this
# one says for which machine: x86_64 or i686.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${MINGW_MACHINE})
set(mingw_triplet ${MINGW_MACHINE}-w64-mingw32)
set(CMAKE_C_COMPILER ${mingw_triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${mingw_triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw_triplet}-windres)
set(BRIVANE_WIDL ${mingw_triplet}-widl CACHE STRING "The compiler of interface definitions")

set(CMAKE_FIND_ROOT_PATH /usr/${mingw_triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The compiler's libraries go into each program, so that nothing has to stand beside it.
foreach(kind IN ITEMS EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static")
endforeach()

# What the component library does not use stays out of it, function by function, although whole folders are compiled as
# one source.
set(CMAKE_CXX_FLAGS_INIT "-ffunction-sections -fdata-sections")
string(APPEND CMAKE_SHARED_LINKER_FLAGS_INIT " -Wl,--gc-sections")

# WIN32_LEAN_AND_MEAN is left to the sources: OLE headers come with the whole of windows.h.
add_compile_definitions(UNICODE _UNICODE NOMINMAX WINVER=0x0601 _WIN32_WINNT=0x0601)
