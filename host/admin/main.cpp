#include <iostream>
#include <memory>

#include <unistd.h>

#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/sqlite/memory_limit.h"

#include "host/admin/command_line.h"
#include "host/admin/guarded_stream.h"
#include "host/session/private_arguments.h"
#include "host/session/standard_streams.h"

int main(int argc, char** argv) {
  ferrowind::host::HoldStandardStreams();
  const ferrowind::host::PrivateArguments arguments(argc, argv);
  ferrowind::sqlite::LimitMemoryOfProcess();
  ferrowind::platform::EngineRegistry engines;
  engines.Register(ferrowind::sqlite::Engine::kScheme, std::make_shared<ferrowind::sqlite::Engine>());
  for (const char* scheme :
       {ferrowind::postgres::Engine::kScheme, ferrowind::postgres::Engine::kShortScheme}) {
    engines.Register(scheme, std::make_shared<ferrowind::postgres::Engine>());
  }
  ferrowind::host::GuardedStream out(std::cout, isatty(STDOUT_FILENO) == 1);
  ferrowind::host::GuardedStream errors(std::cerr, true);
  errors << std::unitbuf;
  return static_cast<int>(ferrowind::host::RunCommandLine(arguments.BehindName(), engines, out, errors));
}
