#pragma once

// The platform's headers, in the way in which this adapter takes them: without the macros that clash with
// names of the standard library.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef STRICT
#define STRICT
#endif

// The first one comes first, since the others build on it.
// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on
