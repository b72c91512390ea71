#include "bench/operators.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <stdexcept>
#include <thread>
#include <vector>

#include <stdlib.h>

#include "bench/calendar_calls.h"
#include "host/session/procedure_session.h"

namespace ferrowind::bench {
namespace {

/// Out of ten calls. The remaining one reads all info.
constexpr int kReadings = 6;
constexpr int kMarkings = 3;

/// The load generator's scripts, each with how often it comes. A script is one message to the server, which
/// is the fewest round trips that there are.
struct Script {
  const char* name;
  int weight;
  const char* text;
};
constexpr std::array<Script, 3> kScripts = {{
    {"read", kReadings,
     "\\set currency 840 + 138 * random(0, 1)\n"
     "\\set year random(2026, 2027)\n"
     "BEGIN\\; CALL ferrowind.CldGetMain(:currency, :year)\\; FETCH ALL FROM \"Days\"\\; COMMIT;\n"},
    {"mark", kMarkings,
     "\\set currency 840 + 138 * random(0, 1)\n"
     "\\set year random(2026, 2027)\n"
     "\\set day random(1, 365)\n"
     "BEGIN\\; CALL ferrowind.CldIUMain(:currency, :year, 1, 1, :day, NULL, 'Stock-taking')\\; COMMIT;\n"},
    {"info", 10 - kReadings - kMarkings,
     "BEGIN\\; CALL ferrowind.CldAllInfo()\\; FETCH ALL FROM \"Calendars\"\\; FETCH ALL FROM \"Types\"\\; "
     "FETCH ALL FROM \"Rules\"\\; FETCH ALL FROM \"Setting\"\\; COMMIT;\n"},
}};
static_assert(kDollar == 840 && kEuro == 840 + 138 && kYear == 2026);

void MakeCalls(unsigned seed, int calls) {
  std::mt19937 random(seed);
  const auto pick = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
  for (int i = 0; i < calls; ++i) {
    const int currency = pick(2) == 0 ? kEuro : kDollar;
    const int year = kYear + pick(2);
    const int kind = pick(10);
    if (kind < kReadings) {
      KeepResult(ReadCalendar(currency, year));
    } else if (kind < kReadings + kMarkings) {
      MarkDay(currency, year, 1 + pick(365));
    } else {
      ReadAllInfo();
    }
  }
}

/// A folder with the load generator's scripts.
class ScriptFolder {
 public:
  ScriptFolder() {
    if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("cannot make " + path_);
    for (const auto& script : kScripts) std::ofstream(File(script)) << script.text;
  }
  ScriptFolder(const ScriptFolder&) = delete;
  ScriptFolder& operator=(const ScriptFolder&) = delete;
  ~ScriptFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] std::string Arguments() const {
    std::string arguments;
    for (const auto& script : kScripts) {
      arguments += " -f '" + File(script) + "@" + std::to_string(script.weight) + "'";
    }
    return arguments;
  }

 private:
  [[nodiscard]] std::string File(const Script& script) const { return path_ + "/" + script.name; }

  std::string path_ = std::filesystem::temp_directory_path() / "ferrowind-bench-XXXXXX";
};

std::string OutputOf(const std::string& command) {
  FILE* const pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) throw std::runtime_error("cannot run pgbench");
  std::string output;
  std::array<char, 4096> buffer;
  while (const std::size_t size = fread(buffer.data(), 1, buffer.size(), pipe))
    output.append(buffer.data(), size);
  if (pclose(pipe) != 0) throw std::runtime_error("pgbench failed: " + output);
  return output;
}

}  // namespace

void CreateCalendarsOfOperators() {
  CreateCalendarWithWeekends(kEuro, kYear + 1);
  for (const int year : {kYear, kYear + 1}) CreateCalendarWithWeekends(kDollar, year);
}

double WorkOfOperators(const platform::EngineRegistry& engines, const std::string& uri, int calls) {
  std::vector<std::thread> operators;
  std::vector<std::exception_ptr> thrown(kOperators);
  const auto start = std::chrono::steady_clock::now();
  for (unsigned number = 0; number < kOperators; ++number) {
    operators.emplace_back([&, number] {
      try {
        host::RunWithDatabase(engines, uri, [&] { MakeCalls(number, calls / kOperators); });
      } catch (...) {
        thrown[number] = std::current_exception();
      }
    });
  }
  for (auto& one : operators) one.join();
  const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
  for (const auto& exception : thrown) {
    if (exception) std::rethrow_exception(exception);
  }
  return time.count() / (calls / kOperators * kOperators);
}

double WorkOfLoadGenerator(const std::string& uri, int calls) {
  const ScriptFolder scripts;
  const std::string operators = std::to_string(kOperators);
  // A thread for each, since a thread that connects does nothing else meanwhile.
  const std::string output =
      OutputOf("pgbench -n -C -c " + operators + " -j " + operators + " -t " +
               std::to_string(calls / kOperators) + scripts.Arguments() + " '" + uri + "' 2>&1");
  // With -C this rate counts the connecting in.
  constexpr const char* kRate = "\ntps = ";
  const auto at = output.find(kRate);
  if (at == std::string::npos || output.find("number of failed transactions: 0 ") == std::string::npos) {
    throw std::runtime_error("pgbench did not make its calls: " + output);
  }
  return 1000 / std::stod(output.substr(at + std::string_view(kRate).size()));
}

}  // namespace ferrowind::bench
