// Times calls for another program: for each number on standard input, the milliseconds that so many calls
// take, of `CldGetMain` (read) or of `CldIUMain` (change). It is built with the component's database adapter,
// with one without protections and with one whose history has no chain (bench/CMakeLists.txt).
// usage: timed_calls read|change URL

#include <chrono>
#include <cstdio>
#include <exception>
#include <iostream>
#include <memory>
#include <string>

#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/engine_registry.h"

#include "bench/calendar_calls.h"
#include "bench/measurement.h"
#include "host/session/procedure_session.h"

namespace {

void Read(int /*number*/) {
  ferrowind::bench::KeepResult(
      ferrowind::bench::ReadCalendar(ferrowind::bench::kEuro, ferrowind::bench::kYear));
}

void AnswerNumbers(void (*call)(int number)) {
  int number = 0;
  for (int calls = 0; std::cin >> calls;) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < calls; ++i) call(number++);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    std::cout << time.count() << std::endl;
  }
}

}  // namespace

int main(int argc, char** argv) {
  const std::string calls = argc == 3 ? argv[1] : "";
  if (calls != "read" && calls != "change") return 2;
  try {
    ferrowind::platform::EngineRegistry engines;
    engines.Register(ferrowind::sqlite::Engine::kScheme, std::make_shared<ferrowind::sqlite::Engine>());
    engines.Register(ferrowind::postgres::Engine::kScheme, std::make_shared<ferrowind::postgres::Engine>());
    ferrowind::host::RunWithDatabase(
        engines, argv[2], [&] { AnswerNumbers(calls == "read" ? Read : ferrowind::bench::MarkAnotherDay); });
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
    return 1;
  }
}
