// What CldUndo does.

#include <cstdio>
#include <random>

#include <gmock/gmock.h>

#include "tests/contract/database/procedures_contract.h"
#include "tests/contract/database/random_calls.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::Value;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* kYear = R"([
  {"Name1": "Saturday", "TID1": 2, "Dates": ["2028-01-01", "2028-01-08", "2028-01-15"]},
  {"Name1": "Good Friday", "TID1": 4, "Dates": ["2028-04-14"], "DayComment": "letter"},
  {"TID1": 1, "Dates": ["2028-01-22"], "DayComment": "open"}])";

/// An undoable change of the content by one call.
struct Change {
  const char* what;
  const char* procedure;
  Arguments arguments;
};

/// Changes of a database that holds the year `kYear` of the euro, rules 2 and 3.
std::vector<Change> Changes() {
  const Value letter("another letter");
  const auto day = [&](int type, int rule, int number) {
    return Arguments{{"ID1", kEuro},     {"Year1", 2028},  {"TID1", type},
                     {"ID2", rule},      {"Day1", number}, {"ODate", Date(2028, 1, 1).AddDays(number - 1)},
                     {"Comment", letter}};
  };
  return {
      {"a new calendar", "CldIUMain", {{"ID1", kEuro}, {"Year1", 2029}}},
      {"a rule on an ordinary day", "CldIUMain", day(4, 3, 2)},
      {"a rule in place of another", "CldIUMain", day(4, 3, 1)},
      {"another comment", "CldIUMain", day(4, 3, 105)},
      {"an exception", "CldIUMain", day(1, 1, 105)},
      {"a rule in place of an exception", "CldIUMain", day(2, 2, 22)},
      {"a weekday", "CldIUMain", {{"ID1", kEuro}, {"Year1", 2028}, {"TID1", 2}, {"ID2", 2}}},
      {"a new weekday rule", "CldIUCelebrate", {{"Name1", "Sunday"}, {"TID1", 2}, {"WD", 1}}},
      {"a new name",
       "CldIUCelebrate",
       {{"ID2", 3},
        {"Name1", "Karfreitag"},
        {"Comment", "Comment"},
        {"TID1", 4},
        {"D1", Date(2029, 3, 30)},
        {"MY", 3},
        {"MD", 30}}},
      {"another spelling", "CldIUCelebrate", {{"ID2", 2}, {"Name1", " SATURDAY"}, {"TID1", 2}, {"WD", 6}}},
      {"a removal", "CldIUCelebrate", {{"ID2", 2}, {"Del", 2}}},
      {"a new currency",
       "CldIUCurrency",
       {{"CcyID", 998}, {"Ccy", "ZZZ"}, {"CcyType", 0}, {"Name", "Zed"}, {"LastDay", Date(2030, 6, 30)}}},
      {"a currency's last day",
       "CldIUCurrency",
       {{"CcyID", kEuro}, {"Ccy", "EUR"}, {"CcyType", 0}, {"Name", "New"}, {"LastDay", Date(2029, 6, 30)}}},
      {"a convention", "CldIUConvention", {{"CcyID", kEuro}, {"OtherID", kDollar}, {"SpotDays", 1}}},
  };
}

TEST_P(ProceduresContract, UndoPutsBackWhatACallChangedAndCanBeUndoneItself) {
  ASSERT_EQ(Apply(kEuro, 2028, kYear), 0);
  for (const auto& [what, procedure, arguments] : Changes()) {
    const auto before = Content();
    ASSERT_EQ(caller().Return(procedure, arguments), 0) << what;
    const auto after = Content();
    ASSERT_NE(after, before) << what;
    const auto entry = LastEntry();
    ASSERT_EQ(Undo(entry), 0) << what;
    EXPECT_EQ(Content(), before) << what;
    EXPECT_EQ(LastEntry(), entry + 1) << what;
    ASSERT_EQ(Undo(entry + 1), 0) << what;
    EXPECT_EQ(Content(), after) << what;
    ASSERT_EQ(Undo(entry + 2), 0) << what;
    EXPECT_EQ(Content(), before) << what;
    EXPECT_EQ(Undo(entry), 9) << what << " is undone already";
    EXPECT_EQ(Content(), before) << what;
  }
}

TEST_P(ProceduresContract, UndoPutsBackWhatAnyOfManyRandomCallsChanged) {
  const auto seed = std::random_device()();
  RecordProperty("seed", std::to_string(seed));
  std::printf("The calls come from the seed %u\n", seed);
  RandomCalls calls(caller(), seed);
  auto before = Content();
  int undone = 0;
  for (int call = 0; call < 80; ++call) {
    const auto entry = LastEntry();
    calls.Make();
    if (LastEntry() == entry) continue;
    const auto after = Content();
    const int outcome = Undo(entry + 1);
    ASSERT_EQ(outcome, after == before ? 9 : 0) << "call " << call;
    if (outcome != 0) continue;
    ASSERT_EQ(Content(), before) << "call " << call;
    ASSERT_EQ(Undo(entry + 2), 0) << "call " << call;
    before = after;
    ++undone;
  }
  // What was undone and done again is as it was after the last call.
  EXPECT_EQ(Content(), before);
  EXPECT_GT(undone, 10);
}

TEST_P(ProceduresContract, UndoPutsBackAWholePlan) {
  const auto empty = Content();
  ASSERT_EQ(Apply(kEuro, 2028, kYear), 0);
  const auto first = LastEntry();
  const auto planned = Content();
  ASSERT_EQ(Apply(kEuro, 2028, R"([
    {"Name1": "Saturday", "TID1": 2, "Dates": ["2028-01-01", "2028-01-22", "2028-01-29"], "DayComment": "c"},
    {"Name1": "Easter Monday", "TID1": 4, "Dates": ["2028-04-17"]},
    {"TID1": 1, "Dates": ["2028-04-14", "2028-01-15"]},
    {"TID1": 1, "Dates": ["2028-01-08"], "DayComment": "exception"}])"),
            0);
  const auto second = LastEntry();
  const auto changed = Content();
  ASSERT_EQ(Undo(second), 0);
  EXPECT_EQ(Content(), planned);
  ASSERT_EQ(Undo(first), 0);
  EXPECT_EQ(Content(), empty);
  ASSERT_EQ(Undo(LastEntry()), 0);
  EXPECT_EQ(Content(), planned);
  ASSERT_EQ(Undo(second + 1), 9) << "the calendar was made again since";
  ASSERT_EQ(Apply(kEuro, 2028, R"([
    {"Name1": "Saturday", "TID1": 2, "Dates": ["2028-01-01", "2028-01-22", "2028-01-29"], "DayComment": "c"},
    {"Name1": "Easter Monday", "TID1": 4, "Dates": ["2028-04-17"]},
    {"TID1": 1, "Dates": ["2028-04-14", "2028-01-15"]},
    {"TID1": 1, "Dates": ["2028-01-08"], "DayComment": "exception"}])"),
            0);
  EXPECT_EQ(Content(), changed);
}

TEST_P(ProceduresContract, UndoPutsBackABook) {
  constexpr const char* kFirst = R"([
    {"Name1": "A", "TID1": 3, "Expression": "01-01", "Comment": "c", "MovedName": "m"},
    {"Name1": "B", "TID1": 4, "Expression": "easter"}, {"Name1": "C", "TID1": 4, "Expression": "easter+1"}])";
  const auto empty = Content();
  ASSERT_EQ(StoreBook(kEuro, kFirst, 2015), 0);
  const auto first = Content();
  ASSERT_EQ(StoreBook(kEuro, R"([{"Name1": "B", "TID1": 4, "Expression": "easter"}])", 2016), 0);
  const auto second = Content();
  const auto fingerprint = (*caller().Call("CldGetBook", {{"ID1", kEuro}}).record_sets.at(0))["Fingerprint"];
  ASSERT_EQ(caller().Return("CldIUBook", {{"ID1", kEuro}, {"Expected", fingerprint}}), 0);
  const auto entry = LastEntry();
  ASSERT_EQ(Undo(entry), 0);
  EXPECT_EQ(Content(), second);
  ASSERT_EQ(Undo(entry - 1), 0);
  EXPECT_EQ(Content(), first);
  ASSERT_EQ(Undo(entry - 2), 0);
  EXPECT_EQ(Content(), empty);
  ASSERT_EQ(Undo(LastEntry()), 0);
  EXPECT_EQ(Content(), first);
  EXPECT_EQ(Undo(entry), 9);
  EXPECT_EQ(Content(), first);
}

TEST_P(ProceduresContract, UndoStepsBackCallByCallAndForthAgain) {
  ASSERT_EQ(Apply(kEuro, 2028, kYear), 0);
  const auto first = LastEntry();
  std::vector<std::vector<Row>> states = {Content()};
  for (const auto& change : Changes()) {
    ASSERT_EQ(caller().Return(change.procedure, change.arguments), 0) << change.what;
    states.push_back(Content());
  }
  const auto last = LastEntry();
  for (auto entry = last; entry > first; --entry) {
    ASSERT_EQ(Content(), states.at(static_cast<std::size_t>(entry - first)));
    ASSERT_EQ(Undo(entry), 0) << entry - first;
  }
  ASSERT_EQ(Content(), states.front());
  for (auto entry = LastEntry(), state = 1; entry > last; --entry, ++state) {
    ASSERT_EQ(Undo(entry), 0) << state;
    ASSERT_EQ(Content(), states.at(static_cast<std::size_t>(state)));
  }
}

TEST_P(ProceduresContract, UndoLeavesWhatOtherCallsChangedMeanwhile) {
  ASSERT_EQ(Apply(kEuro, 2028, kYear), 0);
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"TID1": 1, "Dates": ["2028-01-01"]}])"), 0);
  const auto entry = LastEntry();
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"TID1": 1, "Dates": ["2028-01-08"]}])"), 0);
  ASSERT_EQ(Apply(kDollar, 2028, kYear), 0);
  ASSERT_EQ(Undo(entry), 0);
  EXPECT_EQ(DayOn(Date(2028, 1, 1)).at(2), Value("Saturday"));
  EXPECT_EQ(DayOn(Date(2028, 1, 8)).at(2), Value());
  EXPECT_NE(Fingerprint(kDollar, 2028), "");
}

TEST_P(ProceduresContract, UndoIsRefusedWhenALaterCallChangedTheSame) {
  ASSERT_EQ(Apply(kEuro, 2028, kYear), 0);
  const auto created = LastEntry();
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"TID1": 1, "Dates": ["2028-01-01", "2028-01-08"]}])"), 0);
  const auto opened = LastEntry();
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"TID1": 1, "Dates": ["2028-01-08"], "DayComment": "why"}])"), 0);
  const auto excepted = LastEntry();
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"Name1", "Sunday"}, {"TID1", 2}, {"WD", 1}}), 0);
  const auto rule_entry = LastEntry();
  const auto rule = *Rules().back().at(0).If<std::int32_t>();
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", rule}, {"Name1", "Dimanche"}, {"TID1", 2}, {"WD", 1}}),
            0);
  const auto before = Content();
  const auto newest = LastEntry();
  EXPECT_EQ(Undo(created), 9);
  EXPECT_EQ(Undo(opened), 9);
  EXPECT_EQ(Undo(rule_entry), 9);
  EXPECT_EQ(Content(), before);
  EXPECT_EQ(LastEntry(), newest);
  EXPECT_EQ(Undo(excepted), 0);
  EXPECT_EQ(Undo(opened), 0);
  EXPECT_EQ(Undo(created), 0);
  EXPECT_EQ(Fingerprint(kEuro, 2028), "");
}

TEST_P(ProceduresContract, UndoOfANewCalendarIsRefusedWhenADayOfItWasChanged) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  const auto created = LastEntry();
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"TID1": 1, "Dates": ["2028-12-31"], "DayComment": "why"}])"), 0);
  EXPECT_EQ(Undo(created), 9);
  ASSERT_EQ(Undo(created + 1), 0);
  EXPECT_EQ(Undo(created), 0);
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  EXPECT_EQ(Undo(created), 9) << "a later call has made it again";
}

TEST_P(ProceduresContract, ARuleThatAnUndoneCallAddedStaysWhenSomethingElseUsesIt) {
  ASSERT_EQ(Apply(kEuro, 2028, kYear), 0);
  const auto entry = LastEntry();
  ASSERT_EQ(Apply(kDollar, 2028, R"([{"Name1": "Good Friday", "TID1": 4, "Dates": ["2028-04-14"]}])"), 0);
  ASSERT_EQ(Undo(entry), 0);
  EXPECT_EQ(Fingerprint(kEuro, 2028), "");
  ASSERT_THAT(Rules(), SizeIs(2));
  EXPECT_EQ(Rules().back().at(1), Value("Good Friday"));
  ASSERT_EQ(Undo(LastEntry()), 0);
  EXPECT_THAT(Rules(), SizeIs(3));
  EXPECT_EQ(DayOn(Date(2028, 1, 8)).at(2), Value("Saturday"));
}

TEST_P(ProceduresContract, UndoOfARuleInUseIsRefused) {
  const auto rule = AddDatedRule("Good Friday", 4, Date(2028, 4, 14));
  const auto entry = LastEntry();
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"Name1": "Good Friday", "TID1": 4, "Dates": ["2028-04-14"]}])"), 0);
  EXPECT_EQ(Undo(entry), 9);
  EXPECT_EQ(Rules().back().at(0), Value(rule));
}

TEST_P(ProceduresContract, UndoIsRefusedWhenTheRuleThatADayHadIsGone) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  AddDatedRule("Gone", 4, Date(2028, 4, 14));
  const auto added = LastEntry();
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"Name1": "Gone", "TID1": 4, "Dates": ["2028-04-14"]}])"), 0);
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"TID1": 1, "Dates": ["2028-04-14"]}])"), 0);
  const auto opened = LastEntry();
  ASSERT_EQ(Undo(added), 0);
  EXPECT_EQ(Undo(opened), 9);
  // Whatever number another rule gets.
  AddDatedRule("Another", 4, Date(2028, 4, 14));
  EXPECT_EQ(Undo(opened), 9);
  EXPECT_EQ(DayOn(Date(2028, 4, 14)).at(5), Value());
}

TEST_P(ProceduresContract, UndoIsRefusedWhenAnotherHasTheNameByNow) {
  const auto rule = AddDatedRule("First", 3, Date(2028, 1, 5));
  ASSERT_EQ(
      caller().Return(
          "CldIUCelebrate",
          {{"ID2", rule}, {"Name1", "Second"}, {"TID1", 3}, {"D1", Date(2028, 1, 5)}, {"MY", 1}, {"MD", 5}}),
      0);
  const auto renamed = LastEntry();
  AddDatedRule("  FIRST ", 3, Date(2028, 1, 6));
  EXPECT_EQ(Undo(renamed), 9);

  ASSERT_EQ(caller().Return("CldIUCurrency", {{"CcyID", 998}, {"Ccy", "ZZZ"}, {"CcyType", 0}, {"Name", "Z"}}),
            0);
  ASSERT_EQ(caller().Return("CldIUCurrency", {{"CcyID", 998}, {"Ccy", "ZZY"}, {"CcyType", 0}, {"Name", "Z"}}),
            0);
  const auto recoded = LastEntry();
  ASSERT_EQ(caller().Return("CldIUCurrency", {{"CcyID", 996}, {"Ccy", "ZZZ"}, {"CcyType", 0}, {"Name", "Z"}}),
            0);
  EXPECT_EQ(Undo(recoded), 9);
}

TEST_P(ProceduresContract, UndoIsRefusedWhenACalendarWouldBeOfNoLiveMoney) {
  const auto retire = [&](const Value& last_day, int type) {
    return caller().Return(
        "CldIUCurrency",
        {{"CcyID", kEuro}, {"Ccy", "EUR"}, {"CcyType", type}, {"Name", "Euro"}, {"LastDay", last_day}});
  };
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  ASSERT_EQ(Undo(LastEntry()), 0);
  const auto removal = LastEntry();
  ASSERT_EQ(retire(Date(2027, 12, 31), 0), 0);
  EXPECT_EQ(Undo(removal), 9) << "the calendar would be of a year after its currency";
  ASSERT_EQ(retire({}, 0), 0);
  const auto revived = LastEntry();
  ASSERT_EQ(CreateCalendar(kEuro, 2029), 0);
  EXPECT_EQ(Undo(revived), 9) << "the currency would end before its calendar";
  ASSERT_EQ(Undo(LastEntry()), 0);
  ASSERT_EQ(retire({}, 1), 0);
  ASSERT_EQ(retire({}, 0), 0);
  const auto money = LastEntry();
  ASSERT_EQ(StoreBook(kEuro, "[]"), 0);
  EXPECT_EQ(Undo(money), 9) << "the book would be of no money";
}

TEST_P(ProceduresContract, UndoOfANewCurrencyIsRefusedWhenItIsInUse) {
  ASSERT_EQ(caller().Return("CldIUCurrency", {{"CcyID", 998}, {"Ccy", "ZZZ"}, {"CcyType", 0}, {"Name", "Z"}}),
            0);
  const auto added = LastEntry();
  ASSERT_EQ(CreateCalendar(998, 2028), 0);
  EXPECT_EQ(Undo(added), 9);
  ASSERT_EQ(Undo(LastEntry()), 0);
  ASSERT_EQ(StoreBook(998, "[]"), 0);
  EXPECT_EQ(Undo(added), 9);
  ASSERT_EQ(Undo(LastEntry()), 0);
  EXPECT_EQ(Undo(added), 0);
  EXPECT_EQ(CreateCalendar(998, 2028), 3);
}

TEST_P(ProceduresContract, UndoBringsNothingBackOfACurrencyThatIsGone) {
  ASSERT_EQ(caller().Return("CldIUCurrency", {{"CcyID", 998}, {"Ccy", "ZZZ"}, {"CcyType", 0}, {"Name", "Z"}}),
            0);
  const auto added = LastEntry();
  ASSERT_EQ(CreateCalendar(998, 2028), 0);
  ASSERT_EQ(Undo(LastEntry()), 0);
  const auto calendar_removed = LastEntry();
  ASSERT_EQ(StoreBook(998, "[]"), 0);
  ASSERT_EQ(Undo(LastEntry()), 0);
  const auto book_removed = LastEntry();
  ASSERT_EQ(Undo(added), 0);
  EXPECT_EQ(Undo(book_removed), 9);
  EXPECT_EQ(Undo(calendar_removed), 9);
  EXPECT_EQ(Undo(LastEntry()), 0) << "the currency comes back";
  EXPECT_EQ(Undo(book_removed), 0);
  EXPECT_EQ(Undo(calendar_removed), 0);
}

TEST_P(ProceduresContract, UndoOfWhatIsNoEntryIsRefused) {
  EXPECT_EQ(caller().Return("CldUndo"), 7);
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  for (const int entry : {0, -1, LastEntry() + 1, 2147483647}) EXPECT_EQ(Undo(entry), 7) << entry;
}

TEST_P(ProceduresContract, UndoOfACallThatChangedNothingIsRefused) {
  ASSERT_EQ(Apply(kEuro, 2028, kYear), 0);
  ASSERT_EQ(Apply(kEuro, 2028, kYear), 0);
  EXPECT_EQ(Undo(LastEntry()), 9);
}

}  // namespace
}  // namespace ferrowind::contract
