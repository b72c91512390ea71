#include "ferrowind/planning/database_review.h"

#include <gmock/gmock.h>

#include "tests/unit/planning/planning_world.h"

namespace ferrowind::planning {
namespace {

using almanac::Finding;
using almanac::FindingLevel;
using almanac::FindingSubject;
using platform::Date;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::RunInFreshThread;

class ReviewWorld : public PlanningWorld {
 public:
  ReviewWorld(Rows calendars, Rows books, Rows rules, const Rows& marked_days) {
    AnswerContent(std::move(calendars), marked_days, std::move(books), std::move(rules));
  }
};

std::vector<std::string> Texts(const DatabaseReview& review) {
  std::vector<std::string> texts;
  for (const Finding& finding : review.findings) {
    texts.push_back(std::string(almanac::TextOf(finding.level)) + " " + finding.sentence.InEnglish());
  }
  return texts;
}

const Rows kEuroBook = {{978, "ECB", "Closing days", "f", {}}};

const Rows kEuroRules = {{978, 1, "Sunday", 2, "weekday Sunday only 2020", {}, {}},
                         {978, 2, "Christmas Day", 3, "12-25", {}, {}}};

TEST(ReviewOfADatabase, JudgesEveryCalendarByItsBookWorstFirst) {
  RunInFreshThread([] {
    // Only EUR has a book, and HRK is no money any more.
    ReviewWorld component({{191, 2022}, {840, 2026}, {978, 2026}, {978, 2027}}, kEuroBook, kEuroRules,
                          {{191, 2022, 2, 2, 2, {}}, {840, 2026, 4, 2, 2, {}}, {978, 2026, 359, 3, 3, {}}});
    const DatabaseReview review = ReviewDatabase({}, Date(2026, 3, 1), 0);
    EXPECT_EQ(review.calendars, 4U);
    EXPECT_EQ(review.currencies, 3U);
    EXPECT_EQ(review.Worst(), FindingLevel::kError);
    EXPECT_THAT(
        Texts(review),
        ElementsAre("error EUR 2026 has no weekends: no weekday holiday closes any of its days.",
                    "error EUR 2027 has no weekends: no weekday holiday closes any of its days.",
                    "warning EUR: Saturday 25 December 2027 is a working day and should be Christmas Day (25 "
                    "December).",
                    "note HRK has no book, so nothing tells what its calendars should be.",
                    "note USD has no book, so nothing tells what its calendars should be."));
  });
}

TEST(ReviewOfADatabase, MissesYearsOfCurrenciesThatHaveABookOrACalendar) {
  RunInFreshThread([] {
    ReviewWorld component({{191, 2022}, {840, 2026}}, kEuroBook, kEuroRules,
                          {{191, 2022, 2, 2, 2, {}}, {840, 2026, 4, 2, 2, {}}});
    EXPECT_THAT(Texts(ReviewDatabase({}, Date(2026, 3, 1), {})),
                ElementsAre("error EUR has no calendar for 2026, the running year.",
                            "warning EUR has no calendar for 2027.", "warning USD has no calendar for 2027.",
                            "note HRK has no book, so nothing tells what its calendars should be.",
                            "note USD has no book, so nothing tells what its calendars should be."));
  });
}

TEST(ReviewOfADatabase, CallsItAnErrorThatThereIsNoCalendar) {
  RunInFreshThread([] {
    ReviewWorld component({}, {}, {}, {});
    const DatabaseReview review = ReviewDatabase({}, Date(2026, 3, 1), {});
    EXPECT_THAT(Texts(review), ElementsAre("error There is no calendar."));
    EXPECT_EQ(review.Worst(), FindingLevel::kError);
    EXPECT_EQ(review.calendars, 0U);
  });
}

TEST(ReviewOfADatabase, JudgesNothingByABookWithFaults) {
  RunInFreshThread([] {
    ReviewWorld component(
        {{978, 2026}}, kEuroBook,
        {{978, 1, "Sunday", 2, "weekday Sunday", {}, {}}, {978, 2, "Fair", 4, "table no-such-table", {}, {}}},
        {{978, 2026, 4, 2, 2, {}}});
    const DatabaseReview review = ReviewDatabase({}, Date(2026, 3, 1), 0);
    ASSERT_EQ(review.findings.size(), 1U);
    EXPECT_EQ(review.findings[0].subject, FindingSubject::kFaultyBook);
  });
}

}  // namespace
}  // namespace ferrowind::planning
