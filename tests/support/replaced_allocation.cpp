// The allocation functions of the whole program. All forms without an alignment are replaced: memory from one
// that was left to the compiler's runtime would come back to a deallocation of this file, which knows nothing
// of it. The aligned forms pair among themselves.
#include "tests/support/replaced_allocation.h"

#include <cstdlib>
#include <new>

namespace ferrowind::testing {

void (*before_allocation)(std::size_t size) = nullptr;

}  // namespace ferrowind::testing

namespace {

void* Allocate(std::size_t size) {
  if (ferrowind::testing::before_allocation != nullptr) ferrowind::testing::before_allocation(size);
  if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

void* AllocateOrNull(std::size_t size) noexcept {
  try {
    return Allocate(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

}  // namespace

void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return AllocateOrNull(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return AllocateOrNull(size); }

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
