// What CldGetFingerprint and CldApplyPlan do.

#include <gmock/gmock.h>

#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::Value;
using ::testing::Contains;
using ::testing::Not;
using ::testing::SizeIs;

// The fields of CldGetMain by position.
constexpr std::size_t kTID1 = 1;
constexpr std::size_t kName1 = 2;
constexpr std::size_t kComment2 = 3;
constexpr std::size_t kComment = 4;
constexpr std::size_t kID2 = 5;

constexpr const char* kGoodFriday =
    R"([{"Name1": "Good Friday", "TID1": 4, "Comment": "Friday before Easter Sunday", "Dates": ["2028-04-14"]}])";

std::string Item(const std::string& name, int type, const std::string& dates) {
  return R"([{"Name1": ")" + name + R"(", "TID1": )" + std::to_string(type) + R"(, "Dates": [)" + dates +
         "]}]";
}

// CldGetFingerprint
// ------------------------------------------------------------------------------------------------------

TEST_P(ProceduresContract, ACalendarThatDoesNotExistHasAnEmptyFingerprint) {
  EXPECT_EQ(Fingerprint(kEuro, 2028), "");
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  EXPECT_NE(Fingerprint(kEuro, 2028), "");
  EXPECT_EQ(Fingerprint(kEuro, 2029), "");
  EXPECT_EQ(Fingerprint(kDollar, 2028), "");
}

TEST_P(ProceduresContract, AFingerprintFollowsTheDaysAndTheNamesOfTheirRules) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  const auto first = AddDatedRule("First", 3, Date(2028, 1, 5));
  const auto second = AddDatedRule("Second", 3, Date(2028, 1, 6));
  const auto assign = [&](int type, int rule, int day, const Value& comment) {
    ASSERT_EQ(caller().Return("CldIUMain", {{"ID1", kEuro},
                                            {"Year1", 2028},
                                            {"TID1", type},
                                            {"ID2", rule},
                                            {"Day1", day},
                                            {"ODate", Date(2028, 1, 1).AddDays(day - 1)},
                                            {"Comment", comment}}),
              0);
  };
  std::vector<std::string> seen = {Fingerprint(kEuro, 2028)};
  const auto is_another = [&] {
    const auto fingerprint = Fingerprint(kEuro, 2028);
    EXPECT_THAT(seen, Not(Contains(fingerprint)));
    seen.push_back(fingerprint);
  };
  assign(3, first, 5, {});
  is_another();
  assign(3, first, 5, "");
  is_another();
  assign(3, first, 5, "Comment");
  is_another();
  assign(3, second, 5, "Comment");
  is_another();
  assign(1, 1, 5, "Comment");
  is_another();
  assign(3, first, 6, "Comment");
  is_another();
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", first},
                                               {"Name1", "Renamed"},
                                               {"TID1", 3},
                                               {"D1", Date(2028, 1, 5)},
                                               {"MY", 1},
                                               {"MD", 5}}),
            0);
  is_another();
}

TEST_P(ProceduresContract, AFingerprintIsTheSameForTheSameDays) {
  ASSERT_EQ(Apply(kEuro, 2028, kGoodFriday), 0);
  const auto marked = Fingerprint(kEuro, 2028);
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"TID1": 1, "Dates": ["2028-04-14"]}])"), 0);
  EXPECT_NE(Fingerprint(kEuro, 2028), marked);
  ASSERT_EQ(Apply(kEuro, 2028, kGoodFriday), 0);
  EXPECT_EQ(Fingerprint(kEuro, 2028), marked);
  ASSERT_EQ(Apply(kDollar, 2028, kGoodFriday), 0);
  EXPECT_EQ(Fingerprint(kDollar, 2028), marked);
}

TEST_P(ProceduresContract, AFingerprintIsRefusedLikeTheDays) {
  for (const Arguments& arguments :
       {Arguments{}, Arguments{{"ID1", kEuro}}, Arguments{{"Year1", 2028}},
        Arguments{{"ID1", kEuro}, {"Year1", 1899}}, Arguments{{"ID1", kEuro}, {"Year1", 3001}}}) {
    EXPECT_EQ(caller().Return("CldGetFingerprint", arguments), 7);
  }
  EXPECT_EQ(caller().Return("CldGetFingerprint", {{"ID1", kNoCurrency}, {"Year1", 2028}}), 3);
  EXPECT_EQ(caller().Return("CldGetFingerprint", {{"ID1", kGold}, {"Year1", 2028}}), 3);
}

// CldApplyPlan
// -----------------------------------------------------------------------------------------------------------

TEST_P(ProceduresContract, APlanCreatesTheCalendarTheRulesAndTheDays) {
  ASSERT_EQ(Apply(kEuro, 2028, R"([
    {"Name1": "Saturday", "TID1": 2, "Comment": "Weekend", "Dates": ["2028-01-08", "2028-01-01"]},
    {"Name1": "New Year's Day", "TID1": 3, "Dates": ["2028-01-02"], "DayComment": "Bank's letter \"7\""},
    {"Name1": "Good Friday", "TID1": 4, "Comment": null, "Dates": ["2028-04-14", "2028-04-15"]},
    {"TID1": 1, "Dates": ["2028-02-29"], "DayComment": "Open by decree"},
    {"TID1": 1, "Name1": null, "Dates": ["2028-03-01"]}])"),
            0);
  ASSERT_THAT(Days(2028), SizeIs(366));
  EXPECT_EQ(DayOn(Date(2028, 1, 1)), (Row{Date(2028, 1, 1), 2, "Saturday", "Weekend", {}, 2, 1}));
  EXPECT_EQ(DayOn(Date(2028, 1, 2)),
            (Row{Date(2028, 1, 2), 3, "New Year's Day", {}, "Bank's letter \"7\"", 3, 2}));
  EXPECT_EQ(DayOn(Date(2028, 1, 3)), (Row{Date(2028, 1, 3), 1, {}, {}, {}, {}, 3}));
  EXPECT_EQ(DayOn(Date(2028, 1, 8))[kID2], Value(2));
  EXPECT_EQ(DayOn(Date(2028, 1, 15))[kID2], Value()) << "only the dates that are given";
  EXPECT_EQ(DayOn(Date(2028, 2, 29)),
            (Row{Date(2028, 2, 29), 1, "Working day by exception", {}, "Open by decree", 1, 60}));
  EXPECT_EQ(DayOn(Date(2028, 3, 1)), (Row{Date(2028, 3, 1), 1, {}, {}, {}, {}, 61}));
  EXPECT_EQ(DayOn(Date(2028, 4, 15))[kName1], Value("Good Friday"));
  const auto small = [](int number) { return Value(static_cast<std::int16_t>(number)); };
  EXPECT_EQ(Rules().at(1), (Row{2, "Saturday", "Weekend", 2, {}, {}, {}, small(7), {}}));
  EXPECT_EQ(Rules().at(2), (Row{3, "New Year's Day", {}, 3, Date(2028, 1, 2), small(1), small(2), {}, {}}));
  EXPECT_EQ(Rules().at(3), (Row{4, "Good Friday", {}, 4, Date(2028, 4, 14), small(4), small(14), {}, {}}));
  EXPECT_THAT(Rules(), SizeIs(4));
}

TEST_P(ProceduresContract, AnEmptyPlanCreatesTheCalendarAndNothingElse) {
  ASSERT_EQ(Apply(kEuro, 2026, "[]"), 0);
  const auto planned = Days(2026);
  ASSERT_EQ(CreateCalendar(kDollar, 2026), 0);
  EXPECT_EQ(planned,
            RowsOf(*caller().Call("CldGetMain", {{"ID1", kDollar}, {"Year1", 2026}}).record_sets.at(0)));
}

TEST_P(ProceduresContract, APlanTakesTheRuleOfThatNameAndTypeWhateverItsCaseAndBlanks) {
  const auto rule = AddDatedRule("Good Friday", 4, Date(2026, 4, 3));
  const auto before = Rules();
  ASSERT_EQ(Apply(kEuro, 2028, Item("  GOOD friday ", 4, R"("2028-04-14")")), 0);
  EXPECT_EQ(Rules(), before);
  EXPECT_EQ(DayOn(Date(2028, 4, 14))[kID2], Value(rule));
}

TEST_P(ProceduresContract, ARuleThatAPlanNamesTwiceIsAddedOnce) {
  ASSERT_EQ(Apply(kEuro, 2028, R"([
    {"Name1": "Bridge", "TID1": 4, "Comment": "First", "Dates": ["2028-05-26"], "DayComment": "Friday"},
    {"Name1": "BRIDGE", "TID1": 4, "Comment": "Second", "Dates": ["2028-04-14"], "DayComment": "April"}])"),
            0);
  ASSERT_THAT(Rules(), SizeIs(2));
  EXPECT_EQ(Rules().back().at(1), Value("Bridge"));
  EXPECT_EQ(Rules().back().at(2), Value("First"));
  EXPECT_EQ(Rules().back().at(4), Value(Date(2028, 5, 26)));
  EXPECT_EQ(DayOn(Date(2028, 4, 14))[kComment], Value("April"));
  EXPECT_EQ(DayOn(Date(2028, 5, 26))[kComment], Value("Friday"));
}

TEST_P(ProceduresContract, APlanReplacesWhatTheNamedDaysCarriedAndLeavesTheOthers) {
  ASSERT_EQ(Apply(kEuro, 2028, R"([
    {"Name1": "A", "TID1": 3, "Dates": ["2028-01-01", "2028-01-02", "2028-01-03"], "DayComment": "old"},
    {"TID1": 1, "Dates": ["2028-01-04", "2028-01-05"], "DayComment": "exception"}])"),
            0);
  ASSERT_EQ(Apply(kEuro, 2028, R"([
    {"Name1": "B", "TID1": 4, "Dates": ["2028-01-02", "2028-01-05"]},
    {"TID1": 1, "Dates": ["2028-01-03"]}])"),
            0);
  EXPECT_EQ(DayOn(Date(2028, 1, 1)), (Row{Date(2028, 1, 1), 3, "A", {}, "old", 2, 1}));
  EXPECT_EQ(DayOn(Date(2028, 1, 2)), (Row{Date(2028, 1, 2), 4, "B", {}, {}, 3, 2}));
  EXPECT_EQ(DayOn(Date(2028, 1, 3)), (Row{Date(2028, 1, 3), 1, {}, {}, {}, {}, 3}));
  EXPECT_EQ(DayOn(Date(2028, 1, 4))[kComment], Value("exception"));
  EXPECT_EQ(DayOn(Date(2028, 1, 5)), (Row{Date(2028, 1, 5), 4, "B", {}, {}, 3, 5}));
}

TEST_P(ProceduresContract, AnExceptionOfAPlanMayDoWithoutAReasonWhenItIsNamed) {
  ASSERT_EQ(Apply(kEuro, 2028, Item("working day BY exception", 1, R"("2028-01-04")")), 0);
  EXPECT_EQ(DayOn(Date(2028, 1, 4)), (Row{Date(2028, 1, 4), 1, "Working day by exception", {}, {}, 1, 4}));
}

TEST_P(ProceduresContract, AWeekdayRuleOfAPlanCountsFromTheFirstWeekday) {
  database().SetFirstDay(2);
  ASSERT_EQ(Apply(kEuro, 2028, Item("Saturday", 2, R"("2028-01-01", "2028-01-08")")), 0);
  EXPECT_EQ(Rules().back().at(7), Value(std::int16_t{6}));
  ASSERT_EQ(Apply(kEuro, 2028, Item("Sunday", 2, R"("2028-01-02")")), 0);
  EXPECT_EQ(Rules().back().at(7), Value(std::int16_t{7}));
}

TEST_P(ProceduresContract, ARuleThatStandsIsNotAskedForItsWeekdayOrDate) {
  AddWeekdayRule("Sunday", 1);
  AddDatedRule("A", 3, Date(2026, 1, 1));
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"Name1": "Sunday", "TID1": 2, "Dates": ["2028-01-03", "2028-01-04"]},
                                   {"Name1": "A", "TID1": 3, "Dates": []}])"),
            0);
  EXPECT_EQ(DayOn(Date(2028, 1, 3))[kName1], Value("Sunday"));
}

TEST_P(ProceduresContract, APlanForAnotherContentChangesNothing) {
  ASSERT_EQ(Apply(kEuro, 2028, "[]"), 0);
  const auto stale = Fingerprint(kEuro, 2028);
  ASSERT_EQ(Apply(kEuro, 2028, kGoodFriday), 0);
  const auto before = Content();
  const auto entry = LastEntry();
  const Value days(R"([{"Name1": "New", "TID1": 3, "Dates": ["2028-01-01"]}])");
  for (const std::string& expected : {stale, std::string(), std::string("something else")}) {
    EXPECT_EQ(caller().Return("CldApplyPlan",
                              {{"ID1", kEuro}, {"Year1", 2028}, {"Expected", expected}, {"Days", days}}),
              8);
  }
  EXPECT_EQ(
      caller().Return("CldApplyPlan", {{"ID1", kEuro}, {"Year1", 2029}, {"Expected", stale}, {"Days", "[]"}}),
      8);
  EXPECT_EQ(Content(), before);
  EXPECT_EQ(LastEntry(), entry);
}

TEST_P(ProceduresContract, APlanWithARuleOfAnotherTypeChangesNothing) {
  AddDatedRule("Good Friday", 3, Date(2026, 4, 3));
  const auto before = Content();
  EXPECT_EQ(Apply(kEuro, 2028, R"([{"Name1": "New", "TID1": 3, "Dates": ["2028-01-01"]},
                                   {"Name1": "good friday", "TID1": 4, "Dates": ["2028-04-14"]}])"),
            2);
  EXPECT_EQ(Apply(kEuro, 2028, R"([{"Name1": "New", "TID1": 3, "Dates": ["2028-01-01"]},
                                   {"Name1": "new", "TID1": 4, "Dates": ["2028-04-14"]}])"),
            2);
  EXPECT_EQ(Apply(kEuro, 2028, Item("Good Friday", 1, R"("2028-01-01")")), 2);
  EXPECT_EQ(Apply(kEuro, 2028, Item("Working day by exception", 3, R"("2028-01-01")")), 2);
  EXPECT_EQ(Content(), before);
}

TEST_P(ProceduresContract, APlanWithARemovedRuleChangesNothing) {
  const auto rule = AddDatedRule("Good Friday", 4, Date(2026, 4, 3));
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", rule}, {"Del", 2}}), 0);
  const auto before = Content();
  EXPECT_EQ(Apply(kEuro, 2028, kGoodFriday), 10);
  EXPECT_EQ(Apply(kEuro, 2028, Item("Good Friday", 3, R"("2028-04-14")")), 10);
  EXPECT_EQ(Content(), before);
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", rule}, {"Del", 4}}), 0);
  EXPECT_EQ(Apply(kEuro, 2028, kGoodFriday), 0);
  EXPECT_EQ(DayOn(Date(2028, 4, 14))[kID2], Value(rule));
}

TEST_P(ProceduresContract, APlanIsForMoney) {
  for (const int currency : {kNoCurrency, kGold}) {
    EXPECT_EQ(caller().Return("CldApplyPlan",
                              {{"ID1", currency}, {"Year1", 2028}, {"Expected", ""}, {"Days", "[]"}}),
              3);
  }
}

TEST_P(ProceduresContract, APlanWithAValueMissingOrOutOfRangeIsRefused) {
  const Arguments whole = {{"ID1", kEuro}, {"Year1", 2028}, {"Expected", ""}, {"Days", "[]"}};
  for (std::size_t missing = 0; missing < whole.size(); ++missing) {
    Arguments arguments = whole;
    arguments[missing].second = {};
    EXPECT_EQ(caller().Return("CldApplyPlan", arguments), 7) << whole[missing].first;
  }
  for (const int year : {1899, 3001}) {
    Arguments arguments = whole;
    arguments[1].second = year;
    EXPECT_EQ(caller().Return("CldApplyPlan", arguments), 7) << year;
  }
  EXPECT_EQ(Fingerprint(kEuro, 2028), "");
}

TEST_P(ProceduresContract, DaysOfAnotherShapeAreRefusedAndChangeNothing) {
  ASSERT_EQ(Apply(kEuro, 2027, "[]"), 0);
  ASSERT_EQ(Apply(kEuro, 2028, kGoodFriday), 0);
  const auto before = Content();
  const auto entry = LastEntry();
  for (const char* days : {
           "",
           " ",
           "null",
           "7",
           "\"text\"",
           "{}",
           "[",
           "[]]",
           "[null]",
           "[[]]",
           "[1]",
           "[{}]",
           "not JSON",
           R"({"Name1": "A", "TID1": 3, "Dates": ["2028-01-01"]})",
           R"([{"Name1": "A", "TID1": 3, "Dates": ["2028-01-01"]},])",
           R"([{"Name1": "A", "TID1": 3}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": null}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": "2028-01-01"}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": {"a": "2028-01-01"}}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": [1]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": [null]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": [["2028-01-01"]]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": ["2028-1-1"]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": ["2028-01-01 "]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": ["2028-01-01T00:00"]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": ["20280101"]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": ["2028-13-01"]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": ["2028-02-30"]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": ["2027-02-29"]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": ["now"]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": ["2027-12-31"]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": ["2029-01-01"]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": ["2028-01-01", "2028-01-01"]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": ["2028-01-01"]}, {"TID1": 1, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": []}])",
           R"([{"Name1": "A", "TID1": 2, "Dates": []}])",
           R"([{"Name1": "A", "TID1": 2, "Dates": ["2028-01-01", "2028-01-02"]}])",
           R"([{"Name1": "A", "TID1": 2, "Dates": ["2028-01-01"]},
               {"Name1": "a", "TID1": 2, "Dates": ["2028-01-02"]}])",
           R"([{"Name1": "A", "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "A", "TID1": 0, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "A", "TID1": 5, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "A", "TID1": 3.0, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "A", "TID1": "3", "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "A", "TID1": null, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "A", "TID1": 99999999999999999999, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "No built-in rule", "TID1": 1, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "", "TID1": 1, "Dates": ["2028-01-01"]}])",
           R"([{"TID1": 3, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": null, "TID1": 2, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "  ", "TID1": 3, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": 7, "TID1": 3, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": {"A": "B"}, "TID1": 3, "Dates": ["2028-01-01"]}])",
           R"([{"TID1": 1, "Comment": "for the day?", "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "A", "TID1": 3, "Comment": 7, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "A", "TID1": 3, "DayComment": ["x"], "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "A", "TID1": 3, "Unknown": null, "Dates": ["2028-01-01"]}])",
           R"([{"name1": "A", "TID1": 3, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "A", "TID1": 3, "Dates": ["2028-01-01"], "Dates": ["2028-01-02"]}])",
           R"([{"Name1": "A", "Name1": "B", "TID1": 3, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "A\u0000", "TID1": 3, "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "A", "TID1": 3, "Comment": "\ud800", "Dates": ["2028-01-01"]}])",
           R"([{"Name1": "A", "TID1": 3, "DayComment": "\udc00", "Dates": ["2028-01-01"]}])",
       }) {
    EXPECT_EQ(Apply(kEuro, 2028, days), 7) << days;
  }
  EXPECT_EQ(Content(), before);
  EXPECT_EQ(LastEntry(), entry);
}

TEST_P(ProceduresContract, DaysHaveAMegabyteAtMost) {
  constexpr std::size_t kMost = 1048576;
  const std::string start = R"([{"TID1": 1, "DayComment": "né", "Dates": ["2028-01-01"]})";
  // Bytes, not letters.
  const std::string most = start + std::string(kMost - start.size() - 1, ' ') + "]";
  EXPECT_EQ(Apply(kEuro, 2028, most + " "), 7);
  EXPECT_EQ(Fingerprint(kEuro, 2028), "");
  EXPECT_EQ(Apply(kEuro, 2028, most), 0);
  EXPECT_EQ(DayOn(Date(2028, 1, 1))[kComment], Value("né"));
  EXPECT_EQ(Apply(kEuro, 2029, std::string(kMost, '[')), 7);
}

TEST_P(ProceduresContract, EveryDayOfAYearCanHaveARuleOfItsOwn) {
  std::string days;
  for (int day = 0; day < 366; ++day) {
    const Date date = Date(2028, 1, 1).AddDays(day);
    days += R"(, {"Name1": "Rule )" + std::to_string(day) + R"(", "TID1": 4, "Dates": [")" + date.ToIso() +
            R"("]})";
  }
  days.front() = '[';
  ASSERT_EQ(Apply(kEuro, 2028, days + "]"), 0);
  ASSERT_THAT(Rules(), SizeIs(367));
  EXPECT_EQ(DayOn(Date(2028, 12, 31))[kName1], Value("Rule 365"));
  EXPECT_EQ(DayOn(Date(2028, 12, 31))[kTID1], Value(4));
  EXPECT_EQ(DayOn(Date(2028, 1, 1))[kComment2], Value());
}

TEST_P(ProceduresContract, APlanOfAYearAfterTheLastDayIsForACalendarThatIsThereAlready) {
  constexpr const char* kDays = R"([{"Name1": "A", "TID1": 3, "Comment": "c", "Dates": ["2028-01-03"]}])";
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  database().SetLastDay(kEuro, Date(2027, 12, 31));
  EXPECT_EQ(
      caller().Return("CldApplyPlan", {{"ID1", kEuro}, {"Year1", 2028}, {"Expected", ""}, {"Days", kDays}}),
      8);
  EXPECT_EQ(Apply(kEuro, 2028, kDays), 0);
  EXPECT_EQ(DayOn(Date(2028, 1, 3)).at(2), Value("A"));
  EXPECT_EQ(Apply(kEuro, 2029, "[]"), 3);
  database().SetLastDay(kEuro, {});
}

}  // namespace
}  // namespace ferrowind::contract
