#include "ferrowind/planning/history_words.h"

#include <map>

#include <gmock/gmock.h>

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind::planning {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const CurrencyList kCurrencies({{978, "EUR", "Euro", true, {}},
                                {840, "USD", "US Dollar", true, {}},
                                {8, "ALL", "Lek", true, {}}});

HistoryEntry Entry(const std::string& procedure, const std::string& parameters, const std::string& rule = "",
                   int rows_changed = 1) {
  HistoryEntry entry;
  entry.id = 100;
  entry.procedure = procedure;
  entry.parameters = parameters;
  entry.rule = rule;
  entry.rows_changed = rows_changed;
  return entry;
}

HistoryEntry OfCalendar(HistoryEntry entry) {
  entry.currency = 978;
  entry.year = 2028;
  return entry;
}

/// Told without a database: no entry is found, and what the entry replaced is `rows`.
std::string Told(const HistoryEntry& entry, const std::vector<ReplacedRow>& rows = {}) {
  std::string sentence;
  testing::RunInFreshThread([&] {
    const testing::ComponentWorld component;
    const HistoryWords words(
        kCurrencies, [](std::int32_t) { return std::nullopt; },
        [](const platform::Date& day) { return AttachedPlatform().locale.LongDayText(day); },
        [&](std::int32_t) { return rows; });
    sentence = words.Tell(entry).Sentence();
  });
  return sentence;
}

TEST(HistoryWords, TellANewCalendar) {
  EXPECT_EQ(Told(OfCalendar(Entry("CldIUMain", R"({"ID1" : 978, "Year1" : 2028, "TID1" : null})", "", 367))),
            "Created the calendar EUR 2028");
}

TEST(HistoryWords, TellTheRuleAndTheDayThatItWasAssignedTo) {
  EXPECT_EQ(Told(OfCalendar(Entry("CldIUMain",
                                  R"({"ID1" : 978, "Year1" : 2028, "TID1" : 4, "ID2" : 3, "Day1" : 105,
                                      "ODate" : "2028-04-14", "Comment" : null})",
                                  "Good Friday"))),
            "Assigned Good Friday to Friday 14 April 2028");
  EXPECT_EQ(
      Told(OfCalendar(Entry(
          "CldIUMain", R"({"ID1" : 978, "Year1" : 2028, "TID1" : 2, "ID2" : 2, "Day1" : 1})", "Sunday"))),
      "Assigned Sunday to Saturday 1 January 2028");
}

TEST(HistoryWords, TellHowManyDaysAWeekdayRuleClosed) {
  const char* const parameters =
      R"({"ID1" : 978, "Year1" : 2028, "TID1" : 2, "ID2" : 2, "Day1" : null, "ODate" : null})";
  EXPECT_EQ(Told(OfCalendar(Entry("CldIUMain", parameters, "Sunday", 52))),
            "Assigned Sunday to 52 days of 2028");
  EXPECT_EQ(Told(OfCalendar(Entry("CldIUMain", parameters, "Sunday", 1))),
            "Assigned Sunday to 1 day of 2028");
}

TEST(HistoryWords, TellAnExceptionAndItsReason) {
  EXPECT_EQ(
      Told(OfCalendar(Entry(
          "CldIUMain",
          R"({"ID1" : 978, "Year1" : 2028, "TID1" : 1, "ID2" : 1, "Day1" : 366, "Comment" : "Audit"})"))),
      "Excepted Sunday 31 December 2028: Audit");
  EXPECT_EQ(Told(OfCalendar(Entry(
                "CldIUMain",
                R"({"ID1" : 978, "Year1" : 2028, "TID1" : 1, "ID2" : 1, "Day1" : 60, "Comment" : null})"))),
            "Excepted Tuesday 29 February 2028");
}

TEST(HistoryWords, TellAPlanByItsDays) {
  EXPECT_EQ(Told(OfCalendar(Entry("CldApplyPlan",
                                  R"({"Expected" : "", "Days" : "[)"
                                  R"({\"Name1\": \"A\", \"TID1\": 3, \"Dates\": [\"2028-01-05\"]}, )"
                                  R"({\"TID1\": 1, \"Dates\": [\"2028-01-06\", \"2028-01-07\"]}]"})"))),
            "Prepared EUR 2028: 3 days");
  EXPECT_EQ(Told(OfCalendar(Entry("CldApplyPlan", R"({"Expected" : "", "Days" : "[]"})"))),
            "Prepared EUR 2028: 0 days");
}

TEST(HistoryWords, TellDaysThatGotOneHolidayOrOneReasonTogether) {
  const auto told = [](const std::string& item, const std::string& expected) {
    std::string escaped;
    for (const char character : item)
      escaped += character == '"' ? std::string("\\\"") : std::string(1, character);
    return Told(OfCalendar(
        Entry("CldApplyPlan", R"({"Expected" : ")" + expected + R"(", "Days" : "[)" + escaped + R"(]"})")));
  };
  const std::string mourning = R"({"Name1":"Mourning","TID1":4,"Dates":["2028-05-05"]})";
  EXPECT_EQ(told(mourning, "f1"), "Closed Friday 5 May 2028 as Mourning");
  EXPECT_EQ(told(R"({"Name1":"Rest","TID1":3,"Dates":["2028-05-05","2028-05-08"]})", "f1"),
            "Closed 2 days of EUR 2028 as Rest");
  EXPECT_EQ(told(mourning, ""), "Prepared EUR 2028: 1 day") << "it made the calendar";
  EXPECT_EQ(told(R"({"Name1":"Sunday","TID1":2,"Dates":["2028-05-07"]})", "f1"), "Prepared EUR 2028: 1 day");
  EXPECT_EQ(told(R"({"TID1":1,"Dates":["2028-05-05"],"DayComment":"Audit"})", "f1"),
            "Excepted Friday 5 May 2028: Audit");
  EXPECT_EQ(told(R"({"TID1":1,"Dates":["2028-05-05","2028-05-08"],"DayComment":""})", "f1"),
            "Excepted 2 days of EUR 2028");
  EXPECT_EQ(told(R"({"TID1":1,"Dates":["2028-05-05"]})", "f1"), "Prepared EUR 2028: 1 day")
      << "an ordinary working day is no exception";
}

TEST(HistoryWords, TellWhatBecameOfARule) {
  EXPECT_EQ(Told(Entry("CldIUCelebrate", R"({"Name1" : "Sunday", "TID1" : 2, "WD" : 1, "ID2" : null})")),
            "Added the rule Sunday");
  EXPECT_EQ(Told(Entry("CldIUCelebrate", R"({"Name1" : "Rest", "TID1" : 2, "WD" : 1, "ID2" : 2})", "Rest")),
            "Changed the rule Rest");
  EXPECT_EQ(Told(Entry("CldIUCelebrate", R"({"Name1" : null, "ID2" : 2, "Del" : 2})", "Rest")),
            "Removed the rule Rest");
  EXPECT_EQ(Told(Entry("CldIUCelebrate", R"({"Name1" : null, "ID2" : 2, "Del" : 4})", "Rest")),
            "Restored the rule Rest");
}

TEST(HistoryWords, TellWhatBecameOfARuleBook) {
  HistoryEntry entry =
      Entry("CldIUBook", R"({"ID1" : 840, "Expected" : "", "Publisher" : "Fed", "Document" : "d",
                             "Rules" : "[{\"Name1\": \"A\"}, {\"Name1\": \"B\"}]"})");
  entry.currency = 840;
  EXPECT_EQ(Told(entry), "Added the rule book of USD: 2 rules");
  entry.parameters = R"({"ID1" : 840, "Expected" : "f1", "Rules" : "[{\"Name1\": \"A\"}]"})";
  EXPECT_EQ(Told(entry), "Changed the rule book of USD: 1 rule");
  entry.parameters = R"({"ID1" : 840, "Expected" : "f1", "Publisher" : null, "Rules" : null})";
  EXPECT_EQ(Told(entry), "Removed the rule book of USD");
  entry.currency = 77;
  EXPECT_EQ(Told(entry), "Removed the rule book of 77");
}

TEST(HistoryWords, TellWhatBecameOfACurrency) {
  EXPECT_EQ(
      Told(Entry("CldIUCurrency",
                 R"({"CcyID" : 752, "Ccy" : "SEK", "CcyType" : 0, "Name" : "Krona", "LastDay" : null})")),
      "Set the currency SEK (Krona)");
  EXPECT_EQ(Told(Entry("CldIUCurrency", R"({"CcyID" : 191, "Ccy" : "HRK", "CcyType" : 0, "Name" : "Kuna",
                                            "LastDay" : "2022-12-31"})")),
            "Set the currency HRK (Kuna), money until Saturday 31 December 2022");
  EXPECT_EQ(
      Told(Entry("CldIUCurrency",
                 R"({"CcyID" : 959, "Ccy" : "XAU", "CcyType" : 1, "Name" : "Gold", "LastDay" : null})")),
      "Set the currency XAU (Gold), no money");
}

TEST(HistoryWords, TellACurrencyThatIsNewFromOneThatHasAnotherName) {
  const auto entry =
      Entry("CldIUCurrency",
            R"({"CcyID" : 991, "Ccy" : "QAB", "CcyType" : 0, "Name" : "Krone", "LastDay" : null})");
  const auto row = [](const std::string& before) {
    return ReplacedRow{"DicCcy", 991, {}, {}, before, R"({"Ccy" : "QAB", "CcyType" : 0, "Name" : "Krone"})"};
  };
  EXPECT_EQ(Told(entry, {row("")}), "Added the currency QAB (Krone)");
  EXPECT_EQ(Told(entry, {row(R"({"Ccy" : "QAA", "CcyType" : 0, "Name" : "Crown"})")}),
            "Renamed the currency QAA (Crown) to QAB (Krone)");
  EXPECT_EQ(Told(entry, {row(R"({"Ccy" : "QAB", "CcyType" : 1, "Name" : "Krone"})")}),
            "Set the currency QAB (Krone)");
  EXPECT_EQ(
      Told(Entry("CldIUCurrency",
                 R"({"CcyID" : 991, "Ccy" : "QAB", "CcyType" : 1, "Name" : "Krone", "LastDay" : null})"),
           {row("")}),
      "Added the currency QAB (Krone), no money");
}

TEST(HistoryWords, TellAConventionOfTheMarket) {
  const auto told = [](const std::string& values) {
    return Told(Entry("CldIUConvention", R"({"CcyID" : 978, )" + values + "}"));
  };
  EXPECT_EQ(told(R"("OtherID" : 840, "SpotDays" : 1, "DollarStops" : null)"),
            "Set the convention of EUR/USD: 1 business day to spot");
  EXPECT_EQ(told(R"("OtherID" : 840, "SpotDays" : 0, "DollarStops" : null)"),
            "Set the convention of EUR/USD: 0 business days to spot");
  EXPECT_EQ(told(R"("OtherID" : 8, "SpotDays" : null, "DollarStops" : null)"),
            "Removed the convention of EUR/ALL (Lek)");
  EXPECT_EQ(told(R"("OtherID" : null, "SpotDays" : null, "DollarStops" : 1)"),
            "Set the convention of EUR: holidays of the dollar stop the count to spot");
  EXPECT_EQ(told(R"("OtherID" : null, "SpotDays" : null, "DollarStops" : 0)"),
            "Set the convention of EUR: holidays of the dollar do not stop the count to spot");
}

TEST(HistoryWords, LeaveAsItStandsWhatTheyCannotRead) {
  for (const auto& [procedure, parameters] : std::vector<std::pair<std::string, std::string>>{
           {"CldIUEverything", R"({"ID1" : 978})"},
           {"CldIUMain", "{"},
           {"CldIUMain", ""},
           {"CldIUMain", "[]"},
           {"CldIUMain", R"({"TID1" : "4"})"},
           {"CldIUMain", R"({"TID1" : 1, "Year1" : 2028, "Day1" : 367})"},
           {"CldIUMain", R"({"TID1" : 1, "Year1" : 99999, "Day1" : 3})"},
           {"CldIUMain", R"({"TID1" : 1, "Year1" : 2028, "Day1" : 3.5})"},
           {"CldIUMain", R"({"TID1" : 4, "Year1" : 2028, "Day1" : 3, "ID2" : 17})"},
           {"CldApplyPlan", R"({"Days" : "no list"})"},
           {"CldApplyPlan", R"({"Days" : "[1]"})"},
           {"CldApplyPlan", R"({"Expected" : "f", "Days" : "[{\"Name1\":\"A\",\"TID1\":4,\"Dates\":[3]}]"})"},
           {"CldApplyPlan", R"({"Expected" : "f", "Days" : "[{\"Name1\":\"A\",\"TID1\":4}]"})"},
           {"CldIUCelebrate", R"({"ID2" : 2, "Del" : 2})"},
           {"CldIUCelebrate", R"({"Name1" : null})"},
           {"CldIUBook", R"({"Expected" : "", "Rules" : "{}"})"},
           {"CldIUCurrency", R"({"Ccy" : "HRK", "CcyType" : 0, "Name" : "Kuna", "LastDay" : "never"})"},
           {"CldUndo", R"({"EntryID" : 99})"},
           {"CldUndo", R"({"EntryID" : "one"})"}}) {
    EXPECT_EQ(Told(Entry(procedure, parameters)), procedure + " " + parameters);
  }
}

TEST(HistoryWords, KeepToOneLine) {
  EXPECT_EQ(Told(Entry("CldIUCelebrate", R"({"Name1" : "New\nYear\u0007"})")), "Added the rule New Year ");
}

class HistoryOfUndos : public ::testing::Test {
 protected:
  HistoryOfUndos() {
    Add(1, Entry("CldIUCelebrate", R"({"Name1" : "Sunday"})"));
    for (int id = 2; id <= 5; ++id) {
      Add(id, Entry("CldUndo", R"({"EntryID" : )" + std::to_string(id - 1) + "}"));
    }
  }

  void Add(int id, HistoryEntry entry) {
    entry.id = id;
    entries_[id] = std::move(entry);
  }

  [[nodiscard]] ToldEntry Tell(int id) const {
    return HistoryWords(kCurrencies,
                        [this](std::int32_t wanted) -> std::optional<HistoryEntry> {
                          const auto found = entries_.find(wanted);
                          if (found == entries_.end()) return std::nullopt;
                          return found->second;
                        })
        .Tell(entries_.at(id));
  }

  std::map<int, HistoryEntry> entries_;
};

TEST_F(HistoryOfUndos, TellsUndosAndRedosByWhatTheyAreOf) {
  testing::RunInFreshThread([&] {
    const testing::ComponentWorld component;
    EXPECT_EQ(Tell(1).Sentence(), "Added the rule Sunday");
    EXPECT_EQ(Tell(2).Sentence(), "Undid: Added the rule Sunday");
    EXPECT_EQ(Tell(3).Sentence(), "Redid: Added the rule Sunday");
    EXPECT_EQ(Tell(4).Sentence(), "Undid: Added the rule Sunday");
    EXPECT_EQ(Tell(5).Sentence(), "Redid: Added the rule Sunday");
    EXPECT_EQ(Tell(5).first, 1);
    EXPECT_TRUE(Tell(3).IsDoing());
    EXPECT_FALSE(Tell(4).IsDoing());
  });
}

TEST_F(HistoryOfUndos, EndsWithWhatTellsNothingOlder) {
  Add(2, Entry("CldUndo", R"({"EntryID" : 2})"));
  Add(3, Entry("CldUndo", R"({"EntryID" : 4})"));
  EXPECT_EQ(Tell(2).Sentence(), R"(CldUndo {"EntryID" : 2})");
  EXPECT_EQ(Tell(3).Sentence(), R"(CldUndo {"EntryID" : 4})");
}

TEST(HistoryWords, TellDaysAsTheyAreAskedTo) {
  testing::RunInFreshThread([] {
    const testing::ComponentWorld component;
    const HistoryWords words(
        kCurrencies, [](std::int32_t) { return std::nullopt; },
        [](const platform::Date& day) { return day.ToIso(); });
    EXPECT_EQ(words.Tell(Entry("CldIUMain", R"({"Year1" : 2028, "TID1" : 1, "Day1" : 105})")).Sentence(),
              "Excepted 2028-04-14");
  });
}

TEST(HistoryWords, NameTheCalendar) {
  const HistoryWords words(kCurrencies, [](std::int32_t) { return std::nullopt; });
  HistoryEntry of_lek = OfCalendar({});
  of_lek.currency = 8;
  EXPECT_EQ(words.Calendar(of_lek), "ALL (Lek) 2028");
  EXPECT_EQ(words.Calendar(OfCalendar({})), "EUR 2028");
  EXPECT_EQ(words.Calendar({}), "");
}

}  // namespace
}  // namespace ferrowind::planning
