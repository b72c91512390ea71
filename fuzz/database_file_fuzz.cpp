// Does to a sound database file what the input says, and then opens, checks, counts, copies and reads it,
// through every procedure that reads. Whatever was done, each of them ends, by an answer or a failure.
//
// The lines of an input are done in their order; what is none is left out:
//   at OFFSET DIGITS   these bytes, in hexadecimal, stand at that place
//   swap PAGE PAGE     two pages of 4096 bytes change places
//   cut SIZE           the file ends there
//   sql STATEMENT      the statement is run, by rights that no program gives

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <sqlite3.h>

#include "ferrowind/adapters/content/content_source.h"
#include "ferrowind/adapters/content/content_table.h"
#include "ferrowind/adapters/sqlite/database_content.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/values/failure.h"

#include "fuzz/expectation.h"
#include "fuzz/scratch_folder.h"

namespace {

using ferrowind::fuzz::Expect;
using ferrowind::platform::Failure;
using ferrowind::platform::Value;

constexpr std::size_t kPage = 4096;

/// The bytes of a database with a calendar, a rule, a book and a history.
std::string SoundFile(const ferrowind::fuzz::ScratchFolder& folder) {
  const std::string path = folder.File("sound.db");
  ferrowind::sqlite::CreateDatabase(path);
  {
    const auto connection = ferrowind::sqlite::Engine().Connect("sqlite:" + path);
    const auto call = [&](const std::string& procedure, const std::vector<Value>& inputs) {
      static_cast<void>(connection->DescribeProcedure(procedure));
      Expect(connection->Call(procedure, inputs).return_value == 0, "the sound file can be made");
    };
    call("CldApplyPlan",
         {978, 2028, "", R"([{"Name1": "Good Friday", "TID1": 4, "Dates": ["2028-04-14"]}])"});
    call("CldIUBook", {978, "", "p", "d", R"([{"Name1": "A", "TID1": 4, "Expression": "12-25"}])", {}});
  }
  // What belongs to it stood beside it until its last connection was closed.
  std::ifstream file(path, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(file), {}};
  folder.Empty();
  return bytes;
}

int RefuseOtherFiles(void*, int action, const char*, const char*, const char*, const char*) {
  const bool is_elsewhere = action == SQLITE_ATTACH || action == SQLITE_PRAGMA;
  return is_elsewhere ? SQLITE_DENY : SQLITE_OK;
}

/// Runs statements as whoever has the file can, without the time to make it large.
void RunStatements(const std::string& path, const std::vector<std::string>& statements) {
  sqlite3* opened = nullptr;
  sqlite3_open(path.c_str(), &opened);
  const std::unique_ptr<sqlite3, decltype(&sqlite3_close_v2)> database(opened, sqlite3_close_v2);
  sqlite3_exec(opened, "PRAGMA writable_schema = ON; PRAGMA journal_mode = MEMORY; PRAGMA synchronous = OFF",
               nullptr, nullptr, nullptr);
  sqlite3_limit(opened, SQLITE_LIMIT_LENGTH, 1000000);
  sqlite3_set_authorizer(opened, RefuseOtherFiles, nullptr);
  sqlite3_progress_handler(
      opened, 100000, [](void*) { return 1; }, nullptr);
  for (const std::string& statement : statements) {
    sqlite3_exec(opened, statement.c_str(), nullptr, nullptr, nullptr);
  }
}

void Overwrite(std::string& bytes, std::size_t offset, const std::string& digits) {
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2, ++offset) {
    const auto byte = static_cast<char>(std::strtol(digits.substr(i, 2).c_str(), nullptr, 16));
    if (!bytes.empty()) bytes[offset % bytes.size()] = byte;
  }
}

void SwapPages(std::string& bytes, std::size_t one, std::size_t other) {
  const std::size_t pages = bytes.size() / kPage;
  if (pages == 0) return;
  const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(one % pages * kPage);
  const auto target = bytes.begin() + static_cast<std::ptrdiff_t>(other % pages * kPage);
  if (begin != target) std::swap_ranges(begin, begin + kPage, target);
}

void MakeFile(const std::string& path, std::string bytes, const std::string& text) {
  std::istringstream lines(text);
  std::vector<std::string> statements;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string what;
    std::size_t number = 0;
    words >> what;
    if (what == "sql") {
      statements.push_back(line.substr(what.size()));
    } else if (what == "at" && words >> number) {
      std::string digits;
      words >> digits;
      Overwrite(bytes, number, digits);
    } else if (what == "swap" && words >> number) {
      std::size_t other = 0;
      words >> other;
      SwapPages(bytes, number, other);
    } else if (what == "cut" && words >> number) {
      bytes.resize(std::min(bytes.size(), number));
    }
  }
  ferrowind::fuzz::WriteFile(path, bytes);
  if (!statements.empty()) RunStatements(path, statements);
}

/// Whatever else than a failure comes out of it ends the program.
void Try(const std::function<void()>& work) {
  try {
    work();
  } catch (const Failure& failure) {
    Expect(!failure.Description().empty(), "a failure says what is wrong");
  }
}

void ReadThroughProcedures(const std::string& path) {
  ferrowind::sqlite::Engine engine(std::chrono::milliseconds(0), std::chrono::milliseconds(300));
  const std::pair<std::string, std::vector<Value>> calls[] = {
      {"CldAllInfo", {}},
      {"CldGetMain", {978, 2028}},
      {"CldGetBook", {978}},
      {"CldGetFingerprint", {978, 2028}},
      {"CldGetHistory", {{}, {}, {}, {}, 10, {}, {}}},
      {"CldGetHistory", {{}, {}, {}, {}, {}, {}, 1}},
      {"CldGetAsOf", {978, 2028, {}, 1}},
      {"CldGetClosedDays", {2028, 2028}},
      {"CldGetMarkedDays", {2028, 2028}},
      {"CldGetCurrencies", {}},
      {"CldGetConventions", {}},
  };
  for (const auto& [procedure, inputs] : calls) {
    Try([&, &name = procedure, &values = inputs] {
      const auto connection = engine.Connect("sqlite:" + path);
      static_cast<void>(connection->DescribeProcedure(name));
      static_cast<void>(connection->Call(name, values));
    });
  }
  Try([&] { static_cast<void>(engine.ReadDictionary("sqlite:" + path, "Ccy")); });
}

void ReadForCopy(const std::string& path) {
  Try([&] {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(1);
    const auto source =
        ferrowind::sqlite::OpenContent(path, [end] { return std::chrono::steady_clock::now() > end; });
    for (const auto& table : ferrowind::content::Tables()) {
      static_cast<void>(source->CountRows(table));
      const auto rows = source->Rows(table, ferrowind::content::RowOrder::kByKey);
      ferrowind::content::Row row;
      while (rows->Next(row)) {
      }
    }
  });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const ferrowind::fuzz::ScratchFolder folder;
  static const std::string sound = SoundFile(folder);
  const std::string path = folder.File("calendars.db");
  MakeFile(path, sound, std::string(data, data + size));
  Try([&] { static_cast<void>(ferrowind::sqlite::ReadSchemaVersion(path)); });
  Try([&] { static_cast<void>(ferrowind::sqlite::CheckDatabase(path)); });
  Try([&] { static_cast<void>(ferrowind::sqlite::ReadStatus(path)); });
  ReadThroughProcedures(path);
  ReadForCopy(path);
  folder.Empty();
  return 0;
}
