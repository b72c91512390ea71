#pragma once

#include <cstdio>
#include <cstdlib>

namespace ferrowind::fuzz {

/// Ends the program, which the fuzzer reports as a crash of the current input, unless `holds`.
inline void Expect(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "Does not hold: %s\n", what);
  std::abort();
}

}  // namespace ferrowind::fuzz
