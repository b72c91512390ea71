// The same random calls, seeded, on a file and on a server.

#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"
#include "tests/contract/postgres/postgres_database.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::Value;

constexpr int kCalls = 2000;
/// A call is as good on a connection that others used before it, and a new one costs a server more than a
/// call.
constexpr int kCallsPerConnection = 20;
constexpr unsigned kSeed = 20261121;
constexpr const char* kRightFingerprint = "the right one";

bool IsChanging(const std::string& procedure) {
  return procedure == "CldApplyPlan" || procedure == "CldUndo" || procedure.starts_with("CldIU");
}

/// Makes calls, most of which can succeed, and a good part of which are wrong in one of the ways there are.
class CallMaker {
 public:
  /// `entries` is the number of entries in the history so far.
  void Learn(int entries) { entries_ = entries; }

  Arguments Next(std::string& procedure) {
    switch (Pick(19)) {
      case 18:
        procedure = "CldIUConvention";
        return Convention();
      case 8:
      case 9:
      case 10:
        procedure = "CldApplyPlan";
        return Plan();
      case 11:
      case 12:
        procedure = "CldUndo";
        // Mostly one of the last calls, which nobody has overwritten yet.
        return {{"EntryID", Sometimes(20)  ? 100000
                            : Sometimes(3) ? 1 + Pick(entries_ + 1)
                                           : entries_ - Pick(4)}};
      case 13:
        procedure = "CldIUBook";
        return Book();
      case 14:
        procedure = "CldIUCurrency";
        return CurrencyValues();
      case 15:
        procedure = "CldGetHistory";
        return {{"ID1", Sometimes(3) ? Value() : Currency()},
                {"Year1", Sometimes(3) ? Value() : Value(Year())},
                {"Day1", Sometimes(2) ? Value() : Value(1 + Pick(367))},
                {"Before", Sometimes(3) ? Value(1 + Pick(entries_ + 1)) : Value()},
                {"Count", Sometimes(20) ? Value(Pick(2) * 10001) : Value(1 + Pick(50))}};
      case 16:
        procedure = Sometimes(2) ? "CldGetClosedDays" : "CldGetMarkedDays";
        return {{"FromYear", Sometimes(20) ? Value() : Value(Year())}, {"ToYear", Year()}};
      case 17:
        procedure = Sometimes(3) ? "CldGetConventions" : Sometimes(2) ? "CldGetBook" : "CldGetCurrencies";
        if (procedure == "CldGetBook") return {{"ID1", Sometimes(3) ? Value() : Currency()}};
        return {};
      case 0:
        procedure = "CldAllInfo";
        return {};
      case 1:
        procedure = "CldGetMain";
        return {{"ID1", Currency()}, {"Year1", Year()}};
      case 2:
        procedure = "CldIUMain";
        return {{"ID1", Currency()}, {"Year1", Year()}};
      case 3:
      case 4:
        procedure = "CldIUMain";
        return Assignment();
      case 5:
        procedure = "CldIUCelebrate";
        return {{"ID2", Rule()}, {"Del", Sometimes(20) ? 3 : 2 + 2 * Pick(2)}};
      default:
        procedure = "CldIUCelebrate";
        return RuleValues();
    }
  }

 private:
  int Pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  bool Sometimes(int one_in) { return Pick(one_in) == 0; }
  Value Currency() { return Value(Sometimes(20) ? 1 : Sometimes(20) ? 959 : Sometimes(2) ? 978 : 840); }
  int Year() { return Sometimes(25) ? 1899 : Sometimes(10) ? 2000 : 2024 + Pick(3); }
  Value Rule() { return Value(1 + Pick(14)); }
  std::string Text() {
    static const std::vector<std::string> texts = {
        "Day",    "DAY",       " day ",      "Größe", "GRÖßE", "Ωmega", "ωMEGA", "ΣΑΣ", "σας",  "Работа",
        "РАБОТА", "O'Brien--", "\"quoted\"", "",      "   ",   "祝日",  "ﬀ",     "İI",  "ıi",   "ǅ",
        "ǆ",      "tab\t",     "Tab\t",      "a\nb",  "ſet",   "SET",   "\\x41", "%_",  "ϑeta", "Θeta"};
    const std::string text = texts[static_cast<std::size_t>(Pick(static_cast<int>(texts.size())))];
    return Sometimes(3) ? text + std::to_string(Pick(5)) : text;
  }
  Arguments Assignment() {
    const int year = Year();
    const int type = Sometimes(15) ? Pick(7) : 1 + Pick(4);
    Arguments arguments = {{"ID1", Currency()},
                           {"Year1", year},
                           {"TID1", type},
                           {"ID2", type == 1 && !Sometimes(5) ? Value(1) : Rule()}};
    if (type == 2 && Sometimes(2)) return arguments;
    const int day = Sometimes(15) ? 366 + Pick(2) : 1 + Pick(365);
    if (!Sometimes(15)) arguments.emplace_back("Day1", day);
    if (type > 2 || Sometimes(3)) {
      arguments.emplace_back("ODate", Date(year, 1, 1).AddDays(day - (Sometimes(15) ? 2 : 1)));
    }
    if (Sometimes(2)) arguments.emplace_back("Comment", Text());
    return arguments;
  }
  /// The fingerprint that the call is right to expect, or another text.
  Value Expected() { return Value(Sometimes(8) ? (Sometimes(2) ? "" : "stale") : kRightFingerprint); }
  Arguments Plan() {
    const int year = Year();
    std::string items;
    int day = Pick(4);
    for (int item = Pick(4); item > 0; --item) {
      const int type = Sometimes(40) ? Pick(7) : 1 + Pick(4);
      items += items.empty() ? "" : ", ";
      items += R"({"TID1": )" + std::to_string(type);
      if (type != 1 || Sometimes(5)) items += R"(, "Name1": ")" + Name() + '"';
      if (type != 1 && Sometimes(2)) items += R"(, "Comment": "rule's")";
      if (Sometimes(2)) items += R"(, "DayComment": "day )" + std::to_string(Pick(3)) + '"';
      if (Sometimes(60)) items += R"(, "Other": null)";
      items += R"(, "Dates": [)";
      for (int date = Sometimes(15) ? 0 : 1 + Pick(3), step = type == 2 ? 7 : 3; date > 0; --date) {
        day += step;
        items += '"' + Date(year, 1, 1).AddDays(day).ToIso() + (date == 1 ? "\"" : "\", ");
      }
      day = Sometimes(40) ? 0 : day + 1;
      items += "]}";
    }
    return {{"ID1", Currency()}, {"Year1", year}, {"Expected", Expected()}, {"Days", "[" + items + "]"}};
  }
  std::string Name() { return "Plan " + std::to_string(Pick(8)); }
  Arguments Book() {
    Arguments arguments = {{"ID1", Currency()}, {"Expected", Expected()}};
    if (Sometimes(4)) return arguments;
    std::string rules;
    for (int rule = Pick(5); rule > 0; --rule) {
      rules += R"({"Name1": ")" + (Sometimes(30) ? " " : Name()) + R"(", "TID1": )" +
               std::to_string(1 + Pick(4)) + R"(, "Expression": "01-0)" + std::to_string(1 + Pick(9)) + '"' +
               (Sometimes(2) ? R"(, "Comment": "c")" : "") + "}" + (rule == 1 ? "" : ", ");
    }
    arguments.insert(arguments.end(),
                     {{"Publisher", "P"}, {"Document", Name()}, {"Rules", "[" + rules + "]"}});
    if (Sometimes(2)) arguments.emplace_back("FromYear", Sometimes(10) ? 1899 : 2014 + Pick(3));
    return arguments;
  }
  Arguments CurrencyValues() {
    const int number = Sometimes(8) ? 840 : 995 + Pick(6);
    return {{"CcyID", number},
            {"Ccy", number == 840   ? "USD"
                    : Sometimes(20) ? "zz"
                                    : "ZZ" + std::string(1, static_cast<char>('A' + Pick(5)))},
            {"CcyType", Sometimes(20)  ? 2
                        : Sometimes(3) ? 1
                                       : 0},
            {"Name", Name()},
            {"LastDay", Sometimes(3) ? Value(Date(2024 + Pick(3), 1, 1).AddDays(Pick(360))) : Value()}};
  }
  Arguments Convention() {
    const int number = Sometimes(2) ? 840 : 995 + Pick(6);
    const Value value = Sometimes(3) ? Value() : Value(Pick(Sometimes(8) ? 5 : 2));
    if (Sometimes(2)) return {{"CcyID", number}, {"DollarStops", value}};
    return {{"CcyID", number}, {"OtherID", Sometimes(8) ? number : 978}, {"SpotDays", value}};
  }
  Arguments RuleValues() {
    const int type = Sometimes(20) ? Pick(6) : 2 + Pick(3);
    Arguments arguments = {{"Name1", Text()}, {"TID1", type}};
    if (Sometimes(2)) arguments.emplace_back("Comment", Text());
    if (Sometimes(3)) arguments.emplace_back("ID2", Rule());
    if (type == 2 || Sometimes(20)) arguments.emplace_back("WD", Sometimes(15) ? 8 : 1 + Pick(7));
    if (type != 2 || Sometimes(20)) {
      const Date date = Date(2024, 1, 1).AddDays(Pick(1000));
      arguments.emplace_back("D1", date);
      arguments.emplace_back("MY", Sometimes(15) ? 1 : date.Month());
      if (!Sometimes(15)) arguments.emplace_back("MD", date.Day());
    }
    return arguments;
  }

  std::mt19937 random_{kSeed};
  int entries_ = 0;
};

/// The arguments of a call on the database of `caller`, whose fingerprints are its own.
Arguments Completed(ProcedureCaller& caller, const std::string& procedure, Arguments arguments) {
  for (auto& [name, value] : arguments) {
    if (name != "Expected" || value != Value(kRightFingerprint)) continue;
    value = Value("");
    const Arguments of = {{"ID1", arguments.at(0).second}};
    if (procedure == "CldIUBook") {
      const auto books = caller.Call("CldGetBook", of);
      if (books.return_value == 0 && !books.record_sets.at(0)->Eof())
        value = (*books.record_sets.at(0))["Fingerprint"];
    } else {
      const auto outcome = caller.Call("CldGetFingerprint",
                                       {{"ID1", arguments.at(0).second}, {"Year1", arguments.at(1).second}});
      if (outcome.return_value == 0) value = (*outcome.record_sets.at(0))["Fingerprint"];
    }
  }
  return arguments;
}

/// Of an entry what both engines write alike, of a replaced row its key; nothing of the user.
Row ComparableRowOfHistory(const Row& row) {
  if (row.size() == 1) return {};
  if (row.size() == 6) return {row.at(0), row.at(1), row.at(2), row.at(3)};
  return {row.at(0), row.at(3), row.at(4), row.at(5), row.at(8)};
}

/// The record sets without what is each engine's own: fingerprints, and in the history moments, users, the
/// fingerprints that were expected, and in what steps the rows were written.
std::vector<std::vector<Row>> ComparableRows(const std::string& procedure,
                                             const platform::CallOutcome& outcome) {
  std::vector<std::vector<Row>> rows;
  for (const auto& record_set : outcome.record_sets) {
    rows.push_back(RowsOf(*record_set));
    for (Row& row : rows.back()) {
      if (procedure == "CldGetBook" && row.size() == 5) row.erase(row.begin() + 3);
      if (procedure == "CldGetHistory") row = ComparableRowOfHistory(row);
    }
  }
  return rows;
}

TEST(PostgresAndSqlite, GiveTheSameAnswersToTheSameCallsAndEndWithTheSameTables) {
  SqliteDatabase file;
  PostgresDatabase server;
  ProcedureCaller on_file(file, kCallsPerConnection);
  ProcedureCaller on_server(server, kCallsPerConnection);
  CallMaker maker;
  int entries = 0;
  std::vector<int> counts(11);
  for (int i = 0; i < kCalls; ++i) {
    if (i % 100 == 0) {
      file.SetFirstDay(1 + i / 100 % 7);
      server.SetFirstDay(1 + i / 100 % 7);
    }
    std::string procedure;
    const Arguments arguments = maker.Next(procedure);
    const auto expected = on_file.Call(procedure, Completed(on_file, procedure, arguments));
    const auto given = on_server.Call(procedure, Completed(on_server, procedure, arguments));
    ASSERT_EQ(given.return_value, expected.return_value)
        << "call " << i << " of " << procedure << " " << ::testing::PrintToString(arguments);
    ASSERT_EQ(ComparableRows(procedure, given), ComparableRows(procedure, expected))
        << "call " << i << " of " << procedure;
    if (given.return_value == 0 && IsChanging(procedure)) maker.Learn(++entries);
    ++counts.at(static_cast<std::size_t>(given.return_value));
  }
  for (const std::size_t value : {0U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 9U, 10U}) {
    EXPECT_GT(counts[value], 0) << "no call returned " << value;
  }

  const auto same = [&](const std::string& procedure, const Arguments& arguments = {}) {
    EXPECT_EQ(ComparableRows(procedure, on_server.Call(procedure, arguments)),
              ComparableRows(procedure, on_file.Call(procedure, arguments)))
        << procedure;
  };
  EXPECT_GT(entries, kCalls / 5) << "most calls are refused";
  same("CldAllInfo");
  same("CldGetBook");
  same("CldGetCurrencies");
  same("CldGetHistory", {{"Count", 10000}});
  for (const auto& calendar : RowsOf(*on_file.Call("CldAllInfo").record_sets.at(0))) {
    same("CldGetMain", {{"ID1", calendar.at(0)}, {"Year1", calendar.at(1)}});
  }
  EXPECT_TRUE(server.IsSound());
}

}  // namespace
}  // namespace ferrowind::contract
