// A host without a display that has the control: lists the closed days of a calendar under the columns that
// its windows would show. usage: day_list sqlite:PATH CURRENCY YEAR

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <string>

#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/windowless/windowless_platform.h"
#include "ferrowind/control/calendar.h"
#include "ferrowind/platform/values/conversion.h"

using ferrowind::platform::RecordSet;

/// What the column shows in the row; columns that only windows can fill are empty.
std::string CellText(const ferrowind::GridField& column, const RecordSet& row) {
  if (column.Function()) return ferrowind::platform::ToTextOrEmpty(column.Function()(row));
  if (!row.FindField(column.FieldName())) return {};
  return ferrowind::platform::ToTextOrEmpty(row[column.FieldName()]);
}

/// A line of what `text_of` says of each column that shows.
template <typename TextOf>
void WriteLine(const ferrowind::GridFields& columns, const TextOf& text_of) {
  std::string line;
  const char* separator = "";
  for (std::int32_t i = 1; i <= columns.Count(); ++i) {
    const auto column = columns.LocalNames(i);
    if (!column->Visible()) continue;
    line += separator + text_of(*column);
    separator = "\t";
  }
  std::printf("%s\n", line.c_str());
}

int main(int argc, char** argv) try {
  if (argc != 4) {
    std::fputs("usage: day_list sqlite:PATH CURRENCY YEAR\n", stderr);
    return 2;
  }
  ferrowind::platform::EngineRegistry engines;
  engines.Register(ferrowind::sqlite::Engine::kScheme, std::make_shared<ferrowind::sqlite::Engine>());

  // What an operator would be told goes into the log of whoever started the program.
  const ferrowind::WindowlessPlatform surroundings(
      engines, argv[1],
      [](std::int32_t, const std::string& text) { std::fprintf(stderr, "%s\n", text.c_str()); });
  ferrowind::Calendar calendar(surroundings.Get());
  const auto columns = calendar.Headers();
  for (const char* hidden : {"DayOfYear", "DayOfMonth", "Month", "MonthName"}) {
    columns->LocalNames(hidden)->SetVisible(false);
  }
  columns->LocalNames("HolidayName")->SetCaption("Closed for");

  const auto connection = engines.EngineFor(argv[1]).Connect(argv[1]);
  const auto outcome = connection->Call("CldGetMain", {std::atoi(argv[2]), std::atoi(argv[3])});
  if (outcome.return_value != 0) {
    std::fprintf(stderr, "CldGetMain returns %d\n", static_cast<int>(outcome.return_value));
    return 1;
  }
  RecordSet& days = *outcome.record_sets.at(0);
  days.SetFilter("TID1 <> 1");
  WriteLine(*columns, [](const ferrowind::GridField& column) { return column.Caption(); });
  for (; !days.Eof(); days.MoveNext()) {
    WriteLine(*columns, [&days](const ferrowind::GridField& column) { return CellText(column, days); });
  }
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
