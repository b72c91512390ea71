// Takes the input for the parameters of procedures: as JSON, which a database file's procedures read as well,
// and as arguments NAME=VALUE, one a line. Whatever it is, it is refused, or a database that took it is in
// order.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/engine.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/json_value.h"

#include "fuzz/expectation.h"
#include "fuzz/scratch_folder.h"
#include "host/admin/procedure_arguments.h"

namespace {

using ferrowind::fuzz::Expect;
using ferrowind::platform::Connection;
using ferrowind::platform::Failure;
using ferrowind::platform::JsonValue;
using ferrowind::platform::ParameterDescription;
using ferrowind::platform::ReadJson;
using ferrowind::platform::Value;

constexpr std::size_t kDeepest = 100;

void ExpectSound(const JsonValue& value, std::size_t depth) {
  Expect(depth <= kDeepest + 1, "what nests too deep is refused");
  const bool is_object = value.kind == JsonValue::Kind::kObject;
  Expect(value.names.size() == (is_object ? value.items.size() : 0), "every member has a name");
  Expect(value.text.find('\0') == std::string::npos, "no text has NUL in it");
  for (const JsonValue& item : value.items) ExpectSound(item, depth + 1);
}

/// A new database file.
class Database {
 public:
  Database() : path_(folder_.File("parameters.db")) {
    ferrowind::sqlite::CreateDatabase(path_);
    connection_ = ferrowind::sqlite::Engine().Connect("sqlite:" + path_);
  }

  /// What the procedure returns, or nothing when it fails.
  std::optional<std::int32_t> Call(const std::string& procedure, const std::vector<Value>& inputs) {
    try {
      static_cast<void>(connection_->DescribeProcedure(procedure));
      return connection_->Call(procedure, inputs).return_value;
    } catch (const Failure&) {
      return std::nullopt;
    }
  }

  std::vector<ParameterDescription> Parameters(const std::string& procedure) {
    return connection_->DescribeProcedure(procedure);
  }

  void ExpectInOrder() {
    const auto problems = ferrowind::sqlite::CheckDatabase(path_);
    Expect(problems.empty(), problems.empty() ? "" : problems.front().c_str());
  }

 private:
  ferrowind::fuzz::ScratchFolder folder_;
  std::string path_;
  std::unique_ptr<Connection> connection_;
};

/// True when the database has changed.
bool TryJson(Database& database, const std::string& text) {
  const auto json = ReadJson(text);
  if (json) ExpectSound(*json, 0);
  // Of a calendar and a book that are not there.
  const auto planned = database.Call("CldApplyPlan", {840, 2027, "", text});
  const auto stored = database.Call("CldIUBook", {840, "", "publisher", "document", text, {}});
  for (const auto& outcome : {planned, stored}) {
    Expect(outcome != 0 || (json && json->kind == JsonValue::Kind::kList), "a procedure takes lists alone");
  }
  if (planned != 0 && stored != 0) return false;
  database.ExpectInOrder();
  return true;
}

void TryArguments(Database& database, const std::string& text) {
  std::istringstream lines(text);
  std::vector<std::string> arguments;
  for (std::string line; std::getline(lines, line);) arguments.push_back(line);
  for (const char* const procedure : {"CldIUMain", "CldIUCelebrate", "CldGetHistory"}) {
    try {
      const auto values = ferrowind::host::ReadArguments(arguments, database.Parameters(procedure));
      Expect(static_cast<std::size_t>(values.Count()) == arguments.size(), "every argument gives a value");
    } catch (const ferrowind::host::ArgumentError& error) {
      Expect(*error.what() != '\0', "a refusal says why");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  static auto database = std::make_unique<Database>();
  TryArguments(*database, text);
  // Each input finds a database without a plan and a book.
  if (TryJson(*database, text)) database = std::make_unique<Database>();
  return 0;
}
