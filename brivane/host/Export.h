#pragma once

/// Marks what a shared library lets others link. All else in it is its own affair.
#if defined(__GNUC__) && !defined(_WIN32)
#define BRIVANE_API __attribute__((visibility("default")))
#else
#define BRIVANE_API
#endif
