#pragma once

/// <windows.h> as this project needs it: without the macros that rename our own members. Include this
/// instead of <windows.h>.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#undef MessageBox
#undef FindText
#undef GetObject
#undef Yield
