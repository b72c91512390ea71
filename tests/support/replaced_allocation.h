#pragma once

#include <cstddef>

namespace ferrowind::testing {

/// Called with the size in bytes of each piece of memory before it is taken by `new` in its unaligned forms,
/// in a program that replaced_allocation.cpp is part of; nothing is called while it is null. It must not
/// allocate. A std::bad_alloc that it throws is the failure of that allocation.
extern void (*before_allocation)(std::size_t size);

}  // namespace ferrowind::testing
