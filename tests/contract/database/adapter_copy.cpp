// A module with a copy of the adapter of its own, as a plug-in is that was linked with the static libraries.
#include <exception>

#include "ferrowind/adapters/sqlite/engine.h"

/// The answer of a call on that database; -1 when it fails.
extern "C" __attribute__((visibility("default"))) int AskCopyOfAdapter(const char* connection_string) {
  try {
    ferrowind::sqlite::Engine engine;
    return engine.Connect(connection_string)->Call("CldGetMain", {978, 2026}).return_value;
  } catch (const std::exception&) {
    return -1;
  }
}
