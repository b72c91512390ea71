// Operators who create calendars one after the other in one program, as a host with many windows would, until
// standard input ends. What becomes of each call is a line: "done YEAR", or "failed" and the text. usage:
// working_operators URI FIRST_YEAR
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/data/source_values.h"
#include "ferrowind/platform/database/engine_registry.h"

#include "host/session/procedure_session.h"

namespace {

using ferrowind::SourceValues;

constexpr int kOperators = 16;
constexpr int kLastYear = 3000;
constexpr int kEuro = 978;
/// Between two calls of an operator.
constexpr std::chrono::milliseconds kPause{100};
/// After one that has failed, of which the operator reads why.
constexpr std::chrono::seconds kPauseOfReading{1};

class Report {
 public:
  void Say(const std::string& line) {
    const std::lock_guard lock(mutex_);
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
  }

 private:
  std::mutex mutex_;
};

std::string LineOf(const ferrowind::host::ProcedureOutcome& outcome, int year) {
  if (outcome.failure) return "failed " + outcome.failure->Description();
  if (outcome.return_value != 0)
    return "failed with the return value " + std::to_string(outcome.return_value);
  return "done " + std::to_string(year);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: working_operators URI FIRST_YEAR\n");
    return 2;
  }
  const std::string uri = argv[1];
  const int first_year = std::atoi(argv[2]);
  ferrowind::platform::EngineRegistry engines;
  engines.Register(ferrowind::postgres::Engine::kScheme, std::make_shared<ferrowind::postgres::Engine>());
  Report report;
  std::atomic<bool> is_over = false;
  std::vector<std::thread> operators;
  for (int number = 0; number < kOperators; ++number) {
    operators.emplace_back([&, number] {
      ferrowind::host::RunWithDatabase(engines, uri, [&] {
        for (int year = first_year + number; year <= kLastYear && !is_over; year += kOperators) {
          SourceValues values;
          values.Add("ID1", kEuro);
          values.Add("Year1", year);
          const auto outcome = ferrowind::host::CallProcedure("CldIUMain", values);
          report.Say(LineOf(outcome, year));
          if (outcome.failure) std::this_thread::sleep_for(kPauseOfReading);
          std::this_thread::sleep_for(kPause);
        }
      });
    });
  }
  while (std::getchar() != EOF) {
  }
  is_over = true;
  for (auto& one : operators) one.join();
  return 0;
}
