// A host without windows: says how many days of a calendar are closed. usage: console_host sqlite:PATH
// CURRENCY YEAR

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>

#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/values/conversion.h"

int main(int argc, char** argv) try {
  if (argc != 4) {
    std::fputs("usage: console_host sqlite:PATH CURRENCY YEAR\n", stderr);
    return 2;
  }
  ferrowind::platform::EngineRegistry engines;
  engines.Register(ferrowind::sqlite::Engine::kScheme, std::make_shared<ferrowind::sqlite::Engine>());

  const auto connection = engines.EngineFor(argv[1]).Connect(argv[1]);
  const auto outcome = connection->Call("CldGetMain", {std::atoi(argv[2]), std::atoi(argv[3])});
  if (outcome.return_value != 0) {
    std::fprintf(stderr, "CldGetMain returns %d\n", static_cast<int>(outcome.return_value));
    return 1;
  }
  constexpr int kWorkingDay = 1;
  int closed = 0;
  ferrowind::platform::RecordSet& days = *outcome.record_sets.at(0);
  for (; !days.Eof(); days.MoveNext()) {
    if (ferrowind::platform::ToInt32(days["TID1"]) != kWorkingDay) ++closed;
  }
  std::printf("%d days are closed\n", closed);
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
