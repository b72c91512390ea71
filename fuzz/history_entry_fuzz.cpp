// Makes the input an entry of the history, and tells it in words. Its lines: the procedure; its parameters;
// the table of a row that it replaced; that row before and behind; the days of the calendar before and
// behind, by their dates. Whatever it is, it is told in single lines, or as it stands.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/planning/entry_changes.h"
#include "ferrowind/planning/history_words.h"
#include "ferrowind/platform/values/utf8_validation.h"

#include "fuzz/expectation.h"

namespace {

using ferrowind::fuzz::Expect;
using ferrowind::planning::CurrencyList;
using ferrowind::planning::HistoryEntry;
using ferrowind::platform::Date;
using ferrowind::platform::ParameterType;
using ferrowind::platform::Value;
using Rows = std::vector<std::vector<Value>>;

struct Lines {
  std::string procedure;
  std::string parameters;
  std::string table;
  std::string before;
  std::string behind;
  std::string days_before;
  std::string days_behind;
};

Lines LinesOf(const std::string& text) {
  std::istringstream stream(text);
  std::array<std::string, 7> lines;
  for (std::string& line : lines) std::getline(stream, line);
  return {lines[0], lines[1], lines[2], lines[3], lines[4], lines[5], lines[6]};
}

/// The component in surroundings that answer as they are told.
class Surroundings {
 public:
  Surroundings() {
    ferrowind::AttachPlatform(platform_);
    ferrowind::EnsureDictionaryObject();
    static_cast<void>(ferrowind::SharedServicesObject());
  }

  void AnswerWith(const Lines& lines) {
    for (const char* const procedure : {"CldGetHistory", "CldGetAsOf", "CldAllInfo"}) {
      world_.commands.Forget(procedure);
    }
    world_.log.Clear();
    world_.commands.Answer("CldGetHistory")
        .Takes("@EntryID", ParameterType::kInt32)
        .Gives({"EntryID", "Moment", "UserName", "ProcedureName", "ID1", "Year1", "Parameters", "RowsChanged",
                "Name1", "KeepsRows"},
               {{7, "2026-11-22T10:00:00.000Z", "anna", lines.procedure, 978, 2028, lines.parameters, 1,
                 Value(), 1}})
        .Gives({"UserName"}, {{"anna"}})
        .Gives({"TableName", "ID1", "ID2", "Position", "OldRow", "NewRow"},
               {{lines.table, 978, 2, 1, lines.before, lines.behind}});
    for (const std::string* const days : {&lines.days_before, &lines.days_behind}) {
      world_.commands.Answer("CldGetAsOf")
          .Takes("@ID1", ParameterType::kInt32)
          .Takes("@Year1", ParameterType::kInt32)
          .Takes("@EntryID", ParameterType::kInt32)
          .Gives({"ODate", "TID1", "Name1", "Comment2", "Comment", "ID2", "Day1"}, DaysIn(*days));
    }
    world_.commands.Answer("CldAllInfo")
        .Gives({"ID1"}, {})
        .Gives({"TID1"}, {})
        .Gives({"ID2"}, {})
        .Gives({"FirstDay"}, {{1}});
  }

 private:
  /// A date with an "=" is a holiday, and what stands behind the sign its comment.
  static Rows DaysIn(const std::string& line) {
    Rows rows;
    std::istringstream words(line);
    for (std::string word; words >> word;) {
      const auto sign = word.find('=');
      const auto date = Date::FromIso(word.substr(0, sign));
      if (!date) continue;
      const bool is_holiday = sign != std::string::npos;
      rows.push_back({*date, is_holiday ? 4 : 1, is_holiday ? Value("Holiday") : Value(), Value(),
                      is_holiday ? Value(word.substr(sign + 1)) : Value(), is_holiday ? Value(2) : Value(),
                      1});
    }
    return rows;
  }

  ferrowind::headless::World world_;
  const ferrowind::platform::Platform platform_ = world_.Platform();
};

void ExpectLine(const std::string& line, bool input_is_text) {
  Expect(line.find('\n') == std::string::npos && line.find('\x1b') == std::string::npos,
         "a line is one line");
  Expect(!input_is_text || ferrowind::platform::IsWellFormedUtf8(line), "a text stays one");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Surroundings surroundings;
  const std::string text(data, data + size);
  const bool is_text = ferrowind::platform::IsWellFormedUtf8(text);
  const Lines lines = LinesOf(text);
  surroundings.AnswerWith(lines);
  const CurrencyList currencies({{978, "EUR", "Euro", true, {}}});
  HistoryEntry entry;
  entry.id = 7;
  entry.procedure = lines.procedure;
  entry.parameters = lines.parameters;
  entry.currency = 978;
  entry.year = 2028;
  entry.rule = "Good Friday";
  entry.rows_changed = 1;
  const ferrowind::planning::HistoryWords words(currencies, [&](std::int32_t id) {
    Expect(id < entry.id, "an entry undoes older ones alone");
    return std::optional<HistoryEntry>();
  });
  const auto told = words.Tell(entry);
  Expect(!told.Sentence().empty() || (lines.procedure + lines.parameters).empty(), "an entry is told");
  ExpectLine(told.Sentence(), is_text);
  for (const auto& change : LoadChanges(entry, currencies).changes) {
    Expect(!change.what.empty(), "a change is of something");
    ExpectLine(change.what, is_text);
    ExpectLine(change.before, is_text);
    ExpectLine(change.behind, is_text);
  }
  return 0;
}
