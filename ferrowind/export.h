#pragma once

/// @file
/// What the component shows of itself.

/// Marks what programs outside of the component may use. Everything else is compiled with hidden visibility,
/// and cannot be seen from outside of the shared library that it is part of.
///
/// A class is marked as a whole: its members, and what dynamic_cast and exceptions know it by, which has to
/// be the same on both sides of a library's edge.
#define FERROWIND_EXPORT __attribute__((visibility("default")))
