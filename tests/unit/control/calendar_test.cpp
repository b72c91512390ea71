#include "ferrowind/control/calendar.h"

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_label.h"
#include "ferrowind/adapters/headless/headless_shared_services.h"
#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/data/module_state.h"

#include "tests/support/expect_failure.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/control/fake_control_surroundings.h"

namespace ferrowind {
namespace {

using headless::World;
using platform::Failure;
using platform::Value;
using testing::CalendarOfFakeWindows;
using testing::ExpectFailure;
using testing::FakeSite;
using testing::FakeWindow;
using testing::RunInFreshThread;

constexpr std::int32_t kComponentErrorNumber = -2147220904;
constexpr const char* kTooLate = "Property is accessed only before show method";

struct ControlWorld {
  ControlWorld() {
    world.dictionary->SetCurrencies({{978, "EUR"}});
    world.commands.Answer("CldAllInfo")
        .Gives({"ID1", "Year1"}, {{978, 2026}})
        .Gives({"TID1", "Description1"},
               {{1, "Working day"}, {2, "Holiday"}, {3, "Celebration"}, {4, "Holiday point"}});
  }
  [[nodiscard]] headless::HeadlessForm& Window() const { return world.toolkit.FormNamed("fmCalendar"); }
  World world;
  platform::Platform platform = world.Platform();
};

void ExpectMapsClosed(Calendar& calendar) {
  ExpectFailure([&] { static_cast<void>(calendar.Headers()); }, kComponentErrorNumber, kTooLate);
  ExpectFailure([&] { static_cast<void>(calendar.HolidayHeaders()); }, kComponentErrorNumber, kTooLate);
}

// Start
// ---------------------------------------------------------------------------------------------------------

TEST(Calendar, FillsBothMapsWithNineConstantColumns) {
  RunInFreshThread([] {
    ControlWorld control;
    Calendar calendar(control.platform);
    for (const auto& map : {calendar.Headers(), calendar.HolidayHeaders()}) {
      ASSERT_EQ(map->Count(), 9);
      for (std::int32_t i = 1; i <= 9; ++i) EXPECT_TRUE(map->Fields(i)->IsConst());
    }
    EXPECT_EQ(calendar.Headers()->Fields(1)->FieldName(), "ODate");
    EXPECT_EQ(calendar.HolidayHeaders()->Fields(1)->FieldName(), "Name1");
  });
}

TEST(Calendar, GivesTheSameMapsEachTimeAndEachControlItsOwn) {
  RunInFreshThread([] {
    ControlWorld control;
    Calendar first(control.platform);
    Calendar second(control.platform);
    EXPECT_EQ(first.Headers(), first.Headers());
    EXPECT_EQ(first.HolidayHeaders(), first.HolidayHeaders());
    EXPECT_NE(first.Headers(), first.HolidayHeaders());
    EXPECT_NE(first.Headers(), second.Headers());
  });
}

TEST(Calendar, CreatesTheDictionaryObjectOncePerThreadAndNeverReleasesIt) {
  RunInFreshThread([] {
    ControlWorld control;
    { const Calendar first(control.platform); }
    EXPECT_NE(Module().dictionary, nullptr);
    const Calendar second(control.platform);
    EXPECT_EQ(control.world.log.CountOf(R"(objects.CreateObject("TessaroDicInProc.DictionaryClass"))"), 1u);
  });
}

TEST(Calendar, ShowsThatTheDictionaryObjectCannotBeCreatedAndGoesOn) {
  RunInFreshThread([] {
    ControlWorld control;
    control.world.objects.RegisterFailing(platform::kDictionaryIdentifier,
                                          Failure(462, "Server unavailable"));
    Calendar calendar(control.platform);
    EXPECT_THAT(control.world.log.StartingWith("services."),
                ::testing::ElementsAre(
                    R"(services.ShowMessage("Error activate dictionary object. Error Number 462.\r\n)"
                    R"(Server unavailable", 1, 1, 1, none, "", True, True))"));
    EXPECT_EQ(control.world.services->Messages().at(0).text,
              "Error activate dictionary object. Error Number 462.\r\nServer unavailable");
    EXPECT_EQ(Module().dictionary, nullptr);
    EXPECT_EQ(calendar.Headers()->Count(), 9);
    EXPECT_EQ(calendar.HolidayHeaders()->Count(), 9);
  });
}

TEST(Calendar, TriesTheDictionaryObjectAgainForTheNextControl) {
  RunInFreshThread([] {
    ControlWorld control;
    control.world.faults.FailAtCall(1);
    const Calendar first(control.platform);
    EXPECT_EQ(Module().dictionary, nullptr);
    const Calendar second(control.platform);
    EXPECT_NE(Module().dictionary, nullptr);
  });
}

TEST(Calendar, TriesTheDictionaryObjectAgainWhenItIsShown) {
  RunInFreshThread([] {
    ControlWorld control;
    const auto make = [&control] { return control.world.dictionary; };
    control.world.objects.RegisterFailing(platform::kDictionaryIdentifier,
                                          Failure(462, "Server unavailable"));
    Calendar calendar(control.platform);
    calendar.Show();
    EXPECT_FALSE(control.world.log.Contains("fmCalendar.Show()"));
    EXPECT_EQ(control.world.services->Messages().back().text, "Tessaro Calendar. Can't load currency");

    control.world.objects.Register(platform::kDictionaryIdentifier, make);
    calendar.Show();
    EXPECT_TRUE(control.Window().IsShown());
    EXPECT_EQ(Module().dictionary, control.world.dictionary);
  });
}

TEST(Calendar, ADictionaryMakerThatThrowsWhatIsNoExceptionIsShownAsAnyFailure) {
  RunInFreshThread([] {
    ControlWorld control;
    control.world.objects.Register(platform::kDictionaryIdentifier,
                                   []() -> std::shared_ptr<platform::OutsideObject> { throw 42; });
    const Calendar calendar(control.platform);
    EXPECT_EQ(control.world.services->Messages().at(0).text,
              "Error activate dictionary object. Error Number 51.\r\nInternal error: an exception that "
              "tells nothing of itself");
  });
}

/// Has neither a connection string nor currencies.
class EmptyDictionary : public platform::Dictionary {
 public:
  std::string dic_ConnectionString() override { return {}; }
  std::shared_ptr<platform::RecordSet> dic_GetDicRecByFilter(const std::string& /*name*/,
                                                             const std::string& /*filter*/) override {
    return nullptr;
  }
};

TEST(Calendar, ADictionaryWithoutARecordSetIsAFailedStart) {
  RunInFreshThread([] {
    ControlWorld control;
    control.world.objects.Register(platform::kDictionaryIdentifier,
                                   [] { return std::make_shared<EmptyDictionary>(); });
    Calendar calendar(control.platform);
    calendar.Show();
    EXPECT_EQ(control.world.services->Messages().back().text, "Tessaro Calendar. Can't load currency");
    EXPECT_THAT(control.world.services->Traces(),
                ::testing::Contains("Failure 91: The dictionary object gave no record set of currencies"));
  });
}

TEST(Calendar, TellsOfSharedServicesThatCannotBeCreatedByADialogOfItsOwn) {
  RunInFreshThread([] {
    ControlWorld control;
    control.world.objects.Unregister(platform::kDictionaryIdentifier);
    control.world.objects.Unregister(platform::kSharedServicesIdentifier);
    Calendar calendar(control.platform);
    std::string caption;
    std::string text;
    control.world.toolkit.ScriptModal("fmMessage", [&](headless::HeadlessForm& dialog) {
      caption = dialog.Caption();
      text = dialog.Part<headless::HeadlessLabel>("lblMessage").Text();
      dialog.Part<headless::HeadlessButton>("cmdOk").Click();
    });
    calendar.Show();
    EXPECT_EQ(caption, "Ferrowind");
    EXPECT_EQ(text, "The calendars cannot be opened. There is no object Tessaro.SharedServices to create");
    EXPECT_FALSE(control.world.log.Contains("fmCalendar.Show()"));
    EXPECT_TRUE(calendar.ForceClosing());
  });
}

TEST(Calendar, RefusesSurroundingsThatWouldBeGoneAtOnce) {
  EXPECT_TRUE((std::is_constructible_v<Calendar, const platform::Platform&>));
  EXPECT_FALSE((std::is_constructible_v<Calendar, platform::Platform>));
  EXPECT_FALSE((std::is_constructible_v<Calendar, const platform::Platform>));
}

TEST(Calendar, VersionHasFiveElementsOfWhichTheLastIsEmpty) {
  const auto version = Calendar::Version();
  ASSERT_EQ(version.size(), 5u);
  EXPECT_EQ(version[0], Value("Ferrowind"));
  EXPECT_EQ(version[1], Value(std::int16_t{1}));
  EXPECT_EQ(version[2], Value(std::int16_t{2}));
  EXPECT_EQ(version[3], Value(std::int16_t{10}));
  EXPECT_TRUE(version[4].IsEmpty());
}

// Show
// ----------------------------------------------------------------------------------------------------------

TEST(Calendar, ShowHandsOverTheDayMapFirstAndShowsTheWindowThatIsReady) {
  RunInFreshThread([] {
    ControlWorld control;
    CalendarOfFakeWindows calendar(control.platform);
    const auto headers = calendar.Headers();
    const auto holiday_headers = calendar.HolidayHeaders();
    calendar.Show();
    ASSERT_EQ(calendar.windows.size(), 1u);
    const auto window = calendar.windows[0].lock();
    EXPECT_EQ(window->headers, headers);
    EXPECT_EQ(window->holiday_headers, holiday_headers);
    EXPECT_EQ(window->show_count, 1);
  });
}

TEST(Calendar, ShowTwiceOpensOneWindowAndDoesNotBringItForward) {
  RunInFreshThread([] {
    ControlWorld control;
    CalendarOfFakeWindows calendar(control.platform);
    calendar.Show();
    calendar.Show();
    ASSERT_EQ(calendar.windows.size(), 1u);
    EXPECT_EQ(calendar.windows[0].lock()->show_count, 1);
  });
}

TEST(Calendar, KeepsTheWindowBeforeItsInitSoThatTheMapsAreClosedThen) {
  RunInFreshThread([] {
    ControlWorld control;
    CalendarOfFakeWindows calendar(control.platform);
    bool has_run = false;
    calendar.prepare = [&](FakeWindow& window) {
      window.on_init = [&] {
        has_run = true;
        ExpectMapsClosed(calendar);
        calendar.Show();
      };
    };
    calendar.Show();
    EXPECT_TRUE(has_run);
    EXPECT_EQ(calendar.windows.size(), 1u);
  });
}

TEST(Calendar, AWindowThatIsNotReadyIsNotShownAndKeptUntilItReportsItsClosing) {
  RunInFreshThread([] {
    ControlWorld control;
    CalendarOfFakeWindows calendar(control.platform);
    calendar.prepare = [](FakeWindow& window) { window.is_ready = false; };
    calendar.Show();
    calendar.Show();
    ASSERT_EQ(calendar.windows.size(), 1u);
    EXPECT_EQ(calendar.windows[0].lock()->show_count, 0);
    ExpectMapsClosed(calendar);

    calendar.windows[0].lock()->closing.Emit();
    EXPECT_TRUE(calendar.windows[0].expired());
    EXPECT_EQ(calendar.Headers()->Count(), 9);
    calendar.Show();
    EXPECT_EQ(calendar.windows.size(), 2u);
  });
}

TEST(Calendar, AWindowThatReportsItsClosingWhileItStartsLivesUntilItsInitHasReturned) {
  RunInFreshThread([] {
    ControlWorld control;
    CalendarOfFakeWindows calendar(control.platform);
    bool lived_on = false;
    calendar.prepare = [&](FakeWindow& window) {
      window.is_ready = false;
      window.on_init = [&] {
        calendar.windows[0].lock()->closing.Emit();
        lived_on = !calendar.windows[0].expired();
      };
    };
    calendar.Show();
    EXPECT_TRUE(lived_on);
    EXPECT_TRUE(calendar.windows[0].expired());
    EXPECT_EQ(calendar.Headers()->Count(), 9);
  });
}

TEST(Calendar, AWindowWhoseInitFailsWithAFailureIsReportedAndNotShown) {
  RunInFreshThread([] {
    ControlWorld control;
    CalendarOfFakeWindows calendar(control.platform);
    calendar.prepare = [](FakeWindow& window) { window.on_init = [] { throw Failure(5, "Init"); }; };
    calendar.Show();
    EXPECT_EQ(control.world.services->Reports(), (std::vector<headless::ReportedError>{{5, "Init"}}));
    EXPECT_EQ(calendar.windows[0].lock()->show_count, 0);
  });
}

TEST(Calendar, AWindowThatCannotBeMadeIsReportedAndTheControlStaysUsable) {
  RunInFreshThread([] {
    ControlWorld control;
    Calendar calendar(control.platform);
    control.world.faults.FailAtCall(1);
    calendar.Show();
    EXPECT_EQ(control.world.faults.FailedCall(), "toolkit.CreateForm");
    EXPECT_EQ(control.world.services->Reports().size(), 1u);
    EXPECT_EQ(calendar.Headers()->Count(), 9);
    calendar.Show();
    EXPECT_TRUE(control.Window().IsShown());
  });
}

TEST(Calendar, OpensTheRealWindowBesideTheHostsOwn) {
  RunInFreshThread([] {
    ControlWorld control;
    Calendar calendar(control.platform);
    calendar.Show();
    EXPECT_TRUE(control.Window().IsShown());
    EXPECT_EQ(control.world.log.CountOf("fmCalendar.Show()"), 1u);
    EXPECT_FALSE(control.world.log.Contains("fmCalendar.ShowModal()"));
    ExpectMapsClosed(calendar);
  });
}

TEST(Calendar, AFailedStartOfTheRealWindowLeavesTheControlReadyForTheNextShow) {
  RunInFreshThread([] {
    ControlWorld control;
    Calendar calendar(control.platform);
    const auto headers = calendar.Headers();
    control.world.commands.Forget("CldAllInfo");
    calendar.Show();
    EXPECT_FALSE(control.world.log.Contains("fmCalendar.Show()"));
    EXPECT_EQ(calendar.Headers(), headers);
    calendar.Show();
    EXPECT_EQ(control.world.toolkit.CountOfForms("fmCalendar"), 2u);
  });
}

// A host that destroys the control from a handler
// -------------------------------------------------------------------------------------------------------

TEST(Calendar, IsDestroyedByAHandlerWhileItsWindowStarts) {
  for (const bool is_ready : {true, false}) {
    RunInFreshThread([is_ready] {
      ControlWorld control;
      auto calendar = std::make_unique<CalendarOfFakeWindows>(control.platform);
      std::shared_ptr<FakeWindow> window;
      calendar->prepare = [&](FakeWindow& made) {
        window = calendar->windows[0].lock();
        made.is_ready = is_ready;
        made.on_init = [&] { calendar.reset(); };
      };
      calendar->Show();
      EXPECT_EQ(window->force_closing_count, 1);
      EXPECT_EQ(window->show_count, 0);
      EXPECT_EQ(window.use_count(), 1);
    });
  }
}

TEST(Calendar, IsDestroyedByAHandlerWhileItsWindowCloses) {
  for (const bool agrees : {true, false}) {
    RunInFreshThread([agrees] {
      ControlWorld control;
      auto calendar = std::make_unique<CalendarOfFakeWindows>(control.platform);
      std::shared_ptr<FakeWindow> window;
      calendar->prepare = [&](FakeWindow& made) {
        window = calendar->windows[0].lock();
        made.agrees_to_close = agrees;
        made.on_force_closing = [&] { calendar.reset(); };
      };
      calendar->Show();
      EXPECT_EQ(calendar->ForceClosing(), agrees);
      EXPECT_EQ(calendar, nullptr);
      EXPECT_EQ(window.use_count(), 1);
    });
  }
}

/// A host whose services are the end of the control.
class EndingServices : public headless::HeadlessSharedServices {
 public:
  EndingServices(headless::CallLog& log, std::function<void()> end)
      : HeadlessSharedServices(log), end_(std::move(end)) {}
  void WriteSetting(const std::string& section, const std::string& name, const Value& value) override {
    HeadlessSharedServices::WriteSetting(section, name, value);
    end_();
  }
  std::int32_t ShowMessage(const std::string& text, std::int32_t style, std::int32_t buttons,
                           std::int32_t default_button, platform::Form* owner, const std::string& title,
                           bool modal, bool on_top) override {
    const auto answer = HeadlessSharedServices::ShowMessage(text, style, buttons, default_button, owner,
                                                            title, modal, on_top);
    end_();
    return answer;
  }

 private:
  std::function<void()> end_;
};

TEST(Calendar, IsDestroyedWhileItsRealWindowStoresItsPlace) {
  RunInFreshThread([] {
    ControlWorld control;
    std::unique_ptr<Calendar> calendar;
    const auto services =
        std::make_shared<EndingServices>(control.world.log, [&calendar] { calendar.reset(); });
    control.world.objects.Register(platform::kSharedServicesIdentifier, [services] { return services; });
    calendar = std::make_unique<Calendar>(control.platform);
    calendar->Show();
    const auto window = control.Window().shared_from_this();
    ASSERT_TRUE(window->IsShown());
    EXPECT_TRUE(calendar->ForceClosing());
    EXPECT_EQ(calendar, nullptr);
    EXPECT_TRUE(window->HasUnloaded());
  });
}

TEST(Calendar, IsDestroyedWhileItTellsThatItsRealWindowCannotBeOpened) {
  RunInFreshThread([] {
    ControlWorld control;
    control.world.commands.Forget("CldAllInfo");
    std::unique_ptr<Calendar> calendar;
    const auto services =
        std::make_shared<EndingServices>(control.world.log, [&calendar] { calendar.reset(); });
    control.world.objects.Register(platform::kSharedServicesIdentifier, [services] { return services; });
    calendar = std::make_unique<Calendar>(control.platform);
    calendar->Show();
    EXPECT_EQ(calendar, nullptr);
    EXPECT_EQ(services->Messages().size(), 1u);
    EXPECT_FALSE(control.world.log.Contains("fmCalendar.Show()"));
  });
}

// Closing
// -------------------------------------------------------------------------------------------------------

TEST(Calendar, ForceClosingWithoutAWindowIsTrue) {
  RunInFreshThread([] {
    ControlWorld control;
    Calendar calendar(control.platform);
    EXPECT_TRUE(calendar.ForceClosing());
  });
}

TEST(Calendar, ForceClosingDropsTheWindowThatAgrees) {
  for (const bool reports_closing : {true, false}) {
    RunInFreshThread([reports_closing] {
      ControlWorld control;
      CalendarOfFakeWindows calendar(control.platform);
      calendar.prepare = [&](FakeWindow& window) { window.reports_closing = reports_closing; };
      const auto headers = calendar.Headers();
      calendar.Show();
      EXPECT_TRUE(calendar.ForceClosing());
      EXPECT_TRUE(calendar.windows[0].expired());
      EXPECT_EQ(calendar.Headers(), headers);
      EXPECT_TRUE(calendar.ForceClosing());
    });
  }
}

TEST(Calendar, ForceClosingKeepsTheWindowThatRefuses) {
  RunInFreshThread([] {
    ControlWorld control;
    CalendarOfFakeWindows calendar(control.platform);
    calendar.prepare = [](FakeWindow& window) { window.agrees_to_close = false; };
    calendar.Show();
    EXPECT_FALSE(calendar.ForceClosing());
    EXPECT_FALSE(calendar.ForceClosing());
    EXPECT_EQ(calendar.windows[0].lock()->force_closing_count, 2);
    ExpectMapsClosed(calendar);
    calendar.windows[0].lock()->agrees_to_close = true;
    EXPECT_TRUE(calendar.ForceClosing());
  });
}

TEST(Calendar, TheMapsAreReadableAgainAfterClosingAndTheSameObjects) {
  RunInFreshThread([] {
    ControlWorld control;
    Calendar calendar(control.platform);
    const auto headers = calendar.Headers();
    const auto holiday_headers = calendar.HolidayHeaders();
    calendar.Show();
    ExpectMapsClosed(calendar);
    control.Window().CloseByOperator();
    EXPECT_EQ(calendar.Headers(), headers);
    EXPECT_EQ(calendar.HolidayHeaders(), holiday_headers);
  });
}

TEST(Calendar, ShowOpensANewWindowAfterTheOperatorClosedTheFirst) {
  RunInFreshThread([] {
    ControlWorld control;
    Calendar calendar(control.platform);
    calendar.Show();
    control.Window().CloseByOperator();
    calendar.Show();
    EXPECT_EQ(control.world.toolkit.CountOfForms("fmCalendar"), 2u);
    EXPECT_TRUE(control.Window().IsShown());
  });
}

TEST(Calendar, AMapObtainedBeforeShowReachesTheOpenWindow) {
  RunInFreshThread([] {
    ControlWorld control;
    CalendarOfFakeWindows calendar(control.platform);
    const auto headers = calendar.Headers();
    calendar.Show();
    headers->LocalNames("FullDate")->SetFieldName("OtherDate");
    EXPECT_EQ(calendar.windows[0].lock()->headers->LocalNames("FullDate")->FieldName(), "OtherDate");
  });
}

TEST(Calendar, DestroyingItClosesItsWindow) {
  RunInFreshThread([] {
    ControlWorld control;
    {
      Calendar calendar(control.platform);
      calendar.Show();
      control.world.log.Clear();
    }
    EXPECT_EQ(control.world.log.CountOf("fmCalendar.Unload()"), 1u);
    EXPECT_FALSE(control.world.log.StartingWith("services.SaveGridLayout").empty());
  });
}

TEST(Calendar, CanBeDestroyedWhileItsWindowRefuses) {
  RunInFreshThread([] {
    ControlWorld control;
    std::weak_ptr<FakeWindow> window;
    {
      CalendarOfFakeWindows calendar(control.platform);
      calendar.prepare = [](FakeWindow& fake) { fake.agrees_to_close = false; };
      calendar.Show();
      window = calendar.windows[0];
      EXPECT_FALSE(window.expired());
    }
    EXPECT_TRUE(window.expired());
  });
}

TEST(Calendar, AFailureOfTheClosingDoesNotLeaveItsDestructor) {
  RunInFreshThread([] {
    ControlWorld control;
    {
      CalendarOfFakeWindows calendar(control.platform);
      calendar.prepare = [](FakeWindow& window) {
        window.on_force_closing = [] { throw Failure(5, "Closing"); };
      };
      calendar.Show();
    }
    EXPECT_EQ(control.world.services->Reports(), (std::vector<headless::ReportedError>{{5, "Closing"}}));
  });
}

TEST(Calendar, CanBeDestroyedByTheHostWhenItsWindowCloses) {
  RunInFreshThread([] {
    ControlWorld control;
    auto calendar = std::make_unique<CalendarOfFakeWindows>(control.platform);
    calendar->Show();
    const auto window = calendar->windows[0].lock();
    calendar.reset();
    window->closing.Emit();
    EXPECT_EQ(window->force_closing_count, 1);
  });
}

// Size
// ----------------------------------------------------------------------------------------------------------

TEST(Calendar, SnapsBackToSixteenPixelsOfTheHorizontalFactorAfterAnyResize) {
  RunInFreshThread([] {
    ControlWorld control;
    control.world.toolkit.SetTwipsPerPixelX(12);
    FakeSite site;
    const Calendar calendar(control.platform, &site);
    site.ResizeByHost(900, 30);
    EXPECT_EQ(site.now, std::pair(192.0F, 192.0F));
    site.ResizeByHost(0, 0);
    EXPECT_EQ(site.now, std::pair(192.0F, 192.0F));
  });
}

TEST(Calendar, TakesTheFactorOfTheScreenAtEachResize) {
  RunInFreshThread([] {
    ControlWorld control;
    FakeSite site;
    const Calendar calendar(control.platform, &site);
    site.ResizeByHost(900, 30);
    EXPECT_EQ(site.now, std::pair(240.0F, 240.0F));
    control.world.toolkit.SetTwipsPerPixelX(7.5F);
    site.ResizeByHost(900, 30);
    EXPECT_EQ(site.now, std::pair(120.0F, 120.0F));
  });
}

TEST(Calendar, APlaceThatCannotBeResizedIsReportedAndDoesNotReachTheHostsEvents) {
  RunInFreshThread([] {
    ControlWorld control;
    FakeSite site;
    const Calendar calendar(control.platform, &site);
    site.is_stuck = true;
    site.ResizeByHost(900, 30);
    EXPECT_EQ(control.world.services->Reports().size(), 1u);
  });
}

TEST(Calendar, LeavesItsPlaceAloneOnceItIsDestroyed) {
  RunInFreshThread([] {
    ControlWorld control;
    FakeSite site;
    { const Calendar calendar(control.platform, &site); }
    site.ResizeByHost(900, 30);
    EXPECT_TRUE(site.sizes.empty());
  });
}

}  // namespace
}  // namespace ferrowind
