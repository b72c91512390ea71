#include "ferrowind/adapters/headless/script_errors.h"

#include <cstdlib>
#include <exception>
#include <iostream>

namespace ferrowind::headless {

ScriptErrors::~ScriptErrors() {
  // An exception on its way has told the test already.
  if (untold_.empty() || std::uncaught_exceptions() > 0) return;
  for (const auto& text : untold_) std::cerr << "Headless test script: " << text << '\n';
  std::abort();
}

void ScriptErrors::Raise(const std::string& text) {
  if (listener_) {
    listener_(text);
  } else {
    untold_.push_back(text);
  }
  throw ScriptError(text);
}

}  // namespace ferrowind::headless
