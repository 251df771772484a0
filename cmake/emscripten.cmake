# Cross-building for browsers with Debian's emscripten. Its linker runs programs of node that look for acorn, which Debian
# has where a node from elsewhere does not look.
# Linked as one program, what never fails is known across libraries, and its callers need not catch anything.
set(CMAKE_CXX_FLAGS_INIT "-fexceptions -flto")
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)
set_property(GLOBAL PROPERTY RULE_LAUNCH_LINK "${CMAKE_COMMAND} -E env NODE_PATH=/usr/share/nodejs")
