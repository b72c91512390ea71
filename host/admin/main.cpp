#include <iostream>
#include <memory>

#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/engine.h"

#include "host/admin/command_line.h"

int main(int argc, char** argv) {
  ferrowind::platform::EngineRegistry engines;
  engines.Register(ferrowind::sqlite::Engine::kScheme, std::make_shared<ferrowind::sqlite::Engine>());
  for (const char* scheme :
       {ferrowind::postgres::Engine::kScheme, ferrowind::postgres::Engine::kShortScheme}) {
    engines.Register(scheme, std::make_shared<ferrowind::postgres::Engine>());
  }
  return static_cast<int>(ferrowind::host::RunCommandLine({argv + (argc > 0 ? 1 : 0), argv + argc}, engines,
                                                          std::cout, std::cerr));
}
