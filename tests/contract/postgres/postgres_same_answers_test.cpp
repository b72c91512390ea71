// The same random calls, seeded, on a file and on a server.

#include <memory>
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

/// Makes calls, most of which can succeed, and a good part of which are wrong in one of the ways there are.
class CallMaker {
 public:
  Arguments Next(std::string& procedure) {
    switch (Pick(8)) {
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
};

/// Calls over a connection that is replaced by a new one from time to time.
class SteadyCaller {
 public:
  explicit SteadyCaller(DatabaseUnderTest& database) : database_(database) {}

  platform::CallOutcome Call(const std::string& procedure, const Arguments& arguments = {}) {
    if (calls_++ % kCallsPerConnection == 0) {
      connection_ = database_.Engine().Connect(database_.ConnectionString());
    }
    return CallOver(*connection_, procedure, arguments);
  }

 private:
  DatabaseUnderTest& database_;
  std::unique_ptr<platform::Connection> connection_;
  int calls_ = 0;
};

std::vector<std::vector<Row>> AllRows(const platform::CallOutcome& outcome) {
  std::vector<std::vector<Row>> rows;
  for (const auto& record_set : outcome.record_sets) rows.push_back(RowsOf(*record_set));
  return rows;
}

TEST(PostgresAndSqlite, GiveTheSameAnswersToTheSameCallsAndEndWithTheSameTables) {
  SqliteDatabase file;
  PostgresDatabase server;
  SteadyCaller on_file(file);
  SteadyCaller on_server(server);
  CallMaker maker;
  std::vector<int> counts(11);
  for (int i = 0; i < kCalls; ++i) {
    if (i % 100 == 0) {
      file.SetFirstDay(1 + i / 100 % 7);
      server.SetFirstDay(1 + i / 100 % 7);
    }
    std::string procedure;
    const Arguments arguments = maker.Next(procedure);
    const auto expected = on_file.Call(procedure, arguments);
    const auto given = on_server.Call(procedure, arguments);
    ASSERT_EQ(given.return_value, expected.return_value)
        << "call " << i << " of " << procedure << " " << ::testing::PrintToString(arguments);
    ASSERT_EQ(AllRows(given), AllRows(expected)) << "call " << i << " of " << procedure;
    ++counts.at(static_cast<std::size_t>(given.return_value));
  }
  for (const std::size_t value : {0U, 2U, 3U, 4U, 5U, 6U, 7U, 10U}) {
    EXPECT_GT(counts[value], 0) << "no call returned " << value;
  }

  const auto info = on_file.Call("CldAllInfo");
  ASSERT_EQ(AllRows(on_server.Call("CldAllInfo")), AllRows(info));
  for (const auto& calendar : RowsOf(*info.record_sets.at(0))) {
    const Arguments arguments = {{"ID1", calendar.at(0)}, {"Year1", calendar.at(1)}};
    EXPECT_EQ(AllRows(on_server.Call("CldGetMain", arguments)),
              AllRows(on_file.Call("CldGetMain", arguments)));
  }
  EXPECT_TRUE(server.IsSound());
}

}  // namespace
}  // namespace ferrowind::contract
