#pragma once

/// <windows.h> with Automation as this library needs it: without the macros that rename our own members. Include this
/// before any header of COM.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <oaidl.h>
#include <ocidl.h>
#include <ole2.h>
#include <oleauto.h>
#include <olectl.h>
#include <windows.h>

// The interfaces of COM have no virtual destructor: an object goes when its count of references does.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

#undef MessageBox
#undef FindText
#undef GetObject
#undef Yield
