#include <filesystem>
#include <fstream>
#include <functional>
#include <random>

#include "tests/contract/toolkit/toolkit_contract.h"

namespace ferrowind::contract {
namespace {

using platform::DayShape;
using platform::DayTint;
using platform::PageFile;
using platform::Subscription;
using platform::YearCell;
using platform::YearContent;
using platform::YearView;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
namespace failure_number = platform::failure_number;

YearContent ContentOf(int year, const std::vector<std::string>& calendars) {
  YearContent content;
  content.year = year;
  for (const auto& key : calendars) {
    auto& calendar = content.calendars.emplace_back();
    calendar.key = key;
    calendar.caption = key;
    calendar.ordinary = "working day";
    calendar.days = {{105, {DayTint::kRed, DayShape::kSquare, "C"}, "Good Friday, closed"}};
  }
  content.legend = {{{DayTint::kRed, DayShape::kSquare, "C"}, "Celebration"}};
  content.notes = {{105, "Good Friday"}};
  return content;
}

/// A folder of the test's own.
class TemporaryFolder {
 public:
  TemporaryFolder() { std::filesystem::create_directory(path_); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }
  [[nodiscard]] std::string File(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_ = std::filesystem::temp_directory_path() /
                                ("year_view_contract_" + std::to_string(std::random_device()()));
};

class YearViewContract : public ToolkitContract {
 protected:
  [[nodiscard]] std::vector<Subscription> NoteEverything() {
    std::vector<Subscription> subscriptions;
    subscriptions.push_back(view.OnCurrentChange(Note("current")));
    subscriptions.push_back(view.OnSelectionChange(Note("selection")));
    subscriptions.push_back(view.OnActivate(Note("activate")));
    subscriptions.push_back(view.OnMenuAsked(Note("menu")));
    return subscriptions;
  }

  YearView& view = The<YearView>("yvYear");
};

TEST_F(YearViewContract, HasNoDayBeforeItHasAContent) {
  EXPECT_EQ(view.Current(), std::nullopt);
  EXPECT_THAT(view.Selected(), IsEmpty());
}

TEST_F(YearViewContract, BeginsOnTodayElseOnTheFirstOfJanuary) {
  const auto subscriptions = NoteEverything();
  YearContent content = ContentOf(2028, {"EUR"});
  content.today = 40;
  view.SetContent(content);
  EXPECT_EQ(view.Current(), (YearCell{"EUR", 40}));
  EXPECT_THAT(view.Selected(), ElementsAre(YearCell{"EUR", 40}));
  EXPECT_THAT(notes, ElementsAre("current", "selection"));
  view.SetContent(ContentOf(2028, {}));
  EXPECT_EQ(view.Current(), std::nullopt);
  view.SetContent(ContentOf(2028, {"USD"}));
  EXPECT_EQ(view.Current(), (YearCell{"USD", 1}));
}

TEST_F(YearViewContract, StaysWhereItIsWhenItsContentIsReplaced) {
  view.SetContent(ContentOf(2028, {"EUR", "USD"}));
  view.SetCurrent({"USD", 105});
  const auto subscriptions = NoteEverything();
  view.SetContent(ContentOf(2028, {"USD", "JPY"}));
  EXPECT_EQ(view.Current(), (YearCell{"USD", 105}));
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(YearViewContract, GoesToTheSameDateOfAnotherYear) {
  view.SetContent(ContentOf(2028, {"EUR"}));
  view.SetCurrent({"EUR", 61});
  const auto subscriptions = NoteEverything();
  view.SetContent(ContentOf(2029, {"EUR"}));
  EXPECT_EQ(view.Current(), (YearCell{"EUR", 60}));
  EXPECT_THAT(notes, ElementsAre("current", "selection"));
}

TEST_F(YearViewContract, RefusesContentThatIsNotAsDescribedAndKeepsTheOldOne) {
  view.SetContent(ContentOf(2028, {"EUR"}));
  YearContent twice = ContentOf(2028, {"USD", "USD"});
  ExpectFailure(failure_number::kInvalidArgument, "", [&] { view.SetContent(twice); });
  EXPECT_EQ(view.Current(), (YearCell{"EUR", 1}));
}

TEST_F(YearViewContract, GoesWhereTheProgramSays) {
  view.SetContent(ContentOf(2028, {"EUR", "USD"}));
  const auto subscriptions = NoteEverything();
  view.SetCurrent({"USD", 366});
  EXPECT_EQ(view.Current(), (YearCell{"USD", 366}));
  EXPECT_THAT(view.Selected(), ElementsAre(YearCell{"USD", 366}));
  view.SetCurrent({"USD", 366});
  EXPECT_THAT(notes, ElementsAre("current", "selection"));
}

TEST_F(YearViewContract, NamesADayThatIsNotOnShow) {
  view.SetContent(ContentOf(2027, {"EUR"}));
  ExpectFailure(failure_number::kElementNotFound, "366", [&] { view.SetCurrent({"EUR", 366}); });
  ExpectFailure(failure_number::kElementNotFound, "JPY", [&] { view.SetCurrent({"JPY", 1}); });
  EXPECT_EQ(view.Current(), (YearCell{"EUR", 1}));
}

TEST_F(YearViewContract, GoesToTheDayThatIsClicked) {
  view.SetContent(ContentOf(2028, {"EUR"}));
  const auto subscriptions = NoteEverything();
  under_test->ClickDay(view, {"EUR", 105}, platform::kLeftButton);
  EXPECT_EQ(view.Current(), (YearCell{"EUR", 105}));
  EXPECT_THAT(view.Selected(), ElementsAre(YearCell{"EUR", 105}));
  EXPECT_THAT(notes, ElementsAre("current", "selection"));
}

TEST_F(YearViewContract, SelectsSeveralDaysOneByOne) {
  view.SetContent(ContentOf(2028, {"EUR"}));
  under_test->ClickDay(view, {"EUR", 105}, platform::kLeftButton);
  under_test->ToggleDay(view, {"EUR", 108});
  EXPECT_THAT(view.Selected(), ElementsAre(YearCell{"EUR", 105}, YearCell{"EUR", 108}));
  const auto subscriptions = NoteEverything();
  under_test->ToggleDay(view, {"EUR", 105});
  EXPECT_EQ(view.Current(), (YearCell{"EUR", 105}));
  EXPECT_THAT(view.Selected(), ElementsAre(YearCell{"EUR", 108}));
  EXPECT_THAT(notes, ElementsAre("current", "selection"));
}

TEST_F(YearViewContract, SelectsARangeByShiftAndByDragging) {
  view.SetContent(ContentOf(2028, {"EUR"}));
  under_test->ClickDay(view, {"EUR", 105}, platform::kLeftButton);
  under_test->ExtendToDay(view, {"EUR", 107});
  EXPECT_THAT(view.Selected(), ElementsAre(YearCell{"EUR", 105}, YearCell{"EUR", 106}, YearCell{"EUR", 107}));
  under_test->DragDays(view, {"EUR", 111}, {"EUR", 110});
  EXPECT_THAT(view.Selected(), ElementsAre(YearCell{"EUR", 110}, YearCell{"EUR", 111}));
  EXPECT_EQ(view.Current(), (YearCell{"EUR", 110}));
}

TEST_F(YearViewContract, SelectsTheDaysOfSeveralCalendars) {
  view.SetContent(ContentOf(2028, {"EUR", "USD", "JPY"}));
  under_test->ClickDay(view, {"EUR", 105}, platform::kLeftButton);
  under_test->ExtendToDay(view, {"USD", 106});
  EXPECT_THAT(view.Selected(), ElementsAre(YearCell{"EUR", 105}, YearCell{"EUR", 106}, YearCell{"USD", 105},
                                           YearCell{"USD", 106}));
}

TEST_F(YearViewContract, GoesFromDayToDayByKeys) {
  view.SetContent(ContentOf(2028, {"EUR"}));
  view.SetCurrent({"EUR", 105});  // 14 April
  const auto press = [&](DayKey key) {
    under_test->PressDayKey(view, key, false);
    return view.Current()->day_of_year;
  };
  EXPECT_EQ(press(DayKey::kRight), 106);
  EXPECT_EQ(press(DayKey::kLeft), 105);
  EXPECT_EQ(press(DayKey::kDown), 112);
  EXPECT_EQ(press(DayKey::kUp), 105);
  EXPECT_EQ(press(DayKey::kPageDown), 135);
  EXPECT_EQ(press(DayKey::kPageUp), 105);
  EXPECT_EQ(press(DayKey::kHome), 92);
  EXPECT_EQ(press(DayKey::kEnd), 121);
}

TEST_F(YearViewContract, GoesBetweenCalendarsByKeys) {
  view.SetContent(ContentOf(2028, {"EUR", "USD"}));
  under_test->PressDayKey(view, DayKey::kDown, false);
  EXPECT_EQ(view.Current(), (YearCell{"USD", 1}));
  under_test->PressDayKey(view, DayKey::kDown, false);
  under_test->PressDayKey(view, DayKey::kUp, false);
  EXPECT_EQ(view.Current(), (YearCell{"EUR", 1}));
}

TEST_F(YearViewContract, SelectsARangeByKeys) {
  view.SetContent(ContentOf(2028, {"EUR"}));
  view.SetCurrent({"EUR", 105});
  under_test->PressDayKey(view, DayKey::kRight, true);
  under_test->PressDayKey(view, DayKey::kRight, true);
  EXPECT_THAT(view.Selected(), ElementsAre(YearCell{"EUR", 105}, YearCell{"EUR", 106}, YearCell{"EUR", 107}));
  under_test->PressDayKey(view, DayKey::kLeft, false);
  EXPECT_THAT(view.Selected(), ElementsAre(YearCell{"EUR", 106}));
}

TEST_F(YearViewContract, TellsWhenADayIsActivated) {
  view.SetContent(ContentOf(2028, {"EUR"}));
  const auto subscriptions = NoteEverything();
  under_test->PressEnterOnDay(view);
  EXPECT_THAT(notes, ElementsAre("activate"));
}

TEST_F(YearViewContract, AsksForTheMenuOfTheCurrentDay) {
  view.SetContent(ContentOf(2028, {"EUR"}));
  const auto subscriptions = NoteEverything();
  under_test->PressMenuKeyOnDay(view);
  EXPECT_THAT(notes, ElementsAre("menu"));
}

TEST_F(YearViewContract, AsksForTheMenuOfTheSelectionThatIsClicked) {
  view.SetContent(ContentOf(2028, {"EUR"}));
  under_test->DragDays(view, {"EUR", 105}, {"EUR", 107});
  under_test->ClickDay(view, {"EUR", 106}, platform::kRightButton);
  EXPECT_EQ(view.Selected().size(), 3U);
  EXPECT_EQ(view.Current(), (YearCell{"EUR", 106}));
  const auto subscriptions = NoteEverything();
  under_test->ClickDay(view, {"EUR", 120}, platform::kRightButton);
  EXPECT_THAT(view.Selected(), ElementsAre(YearCell{"EUR", 120}));
  EXPECT_THAT(notes, ElementsAre("current", "selection", "menu"));
}

TEST_F(YearViewContract, AsksForNoMenuWithoutADay) {
  const auto subscriptions = NoteEverything();
  under_test->PressMenuKeyOnDay(view);
  under_test->PressEnterOnDay(view);
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(YearViewContract, TellsAssistiveToolsOfEveryDay) {
  view.SetContent(ContentOf(2028, {"EUR"}));
  EXPECT_THAT(under_test->DayText(view, {"EUR", 105}), HasSubstr("2028"));
  EXPECT_THAT(under_test->DayText(view, {"EUR", 105}), HasSubstr(", Good Friday, closed"));
  EXPECT_THAT(under_test->DayText(view, {"EUR", 106}), HasSubstr(", working day"));
  view.SetContent(ContentOf(2028, {"EUR", "USD"}));
  EXPECT_THAT(under_test->DayText(view, {"USD", 106}), HasSubstr("USD, "));
}

TEST_F(YearViewContract, MayBeEmptiedByItsHandlers) {
  view.SetContent(ContentOf(2028, {"EUR"}));
  const Subscription changed = view.OnCurrentChange([&] {
    notes.push_back("current");
    if (view.Current()) view.SetContent(ContentOf(2028, {}));
  });
  under_test->ClickDay(view, {"EUR", 105}, platform::kLeftButton);
  EXPECT_EQ(view.Current(), std::nullopt);
  EXPECT_THAT(notes, ElementsAre("current", "current"));
}

TEST_F(YearViewContract, CallsNoHandlerWhoseSubscriptionWasDropped) {
  view.SetContent(ContentOf(2028, {"EUR"}));
  { const auto subscriptions = NoteEverything(); }
  under_test->ClickDay(view, {"EUR", 105}, platform::kRightButton);
  under_test->PressEnterOnDay(view);
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(YearViewContract, WritesItsPagesInPlaceOfAFile) {
  const TemporaryFolder folder;
  view.SetContent(ContentOf(2028, {"EUR"}));
  for (const PageFile kind : {PageFile::kPdf, PageFile::kPng}) {
    const std::string path = folder.File("year");
    std::ofstream(path) << "old";
    view.SavePages(kind, path, "EUR 2028");
    EXPECT_GT(std::filesystem::file_size(path), 10U);
  }
}

TEST_F(YearViewContract, NamesAFileThatCannotBeWritten) {
  const TemporaryFolder folder;
  view.SetContent(ContentOf(2028, {"EUR"}));
  for (const PageFile kind : {PageFile::kPdf, PageFile::kPng}) {
    const std::string path = folder.File("nowhere/year");
    ExpectFailure(failure_number::kInvalidArgument, path, [&] { view.SavePages(kind, path, "EUR 2028"); });
  }
}

}  // namespace
}  // namespace ferrowind::contract
