#include "ferrowind/views/planning/exchange_tools.h"

#include <gtest/gtest.h>

#include "tests/unit/views/planning/memory_calendars.h"

namespace ferrowind {
namespace {

using headless::HeadlessTextBox;
using testing::MemoryCalendars;
using testing::RunInFreshThread;

std::string TypedIn(MemoryCalendars& calendars, const std::string& form, const std::string& box) {
  return calendars.world.toolkit.FormNamed(form).Part<HeadlessTextBox>(box).Text();
}

TEST(ExchangeTools, ProposeTheCalendarOnShow) {
  RunInFreshThread([] {
    MemoryCalendars calendars;
    calendars.OpenAt(2028);
    calendars.Tools().ClickTool("ID_Import");
    EXPECT_EQ(TypedIn(calendars, "fmImport", "txtCurrency"), "EUR");
    EXPECT_EQ(TypedIn(calendars, "fmImport", "txtYear"), "2028");
    calendars.Form().PressShortcut("Ctrl+S");
    EXPECT_EQ(TypedIn(calendars, "fmExport", "txtCurrencies"), "EUR");
    EXPECT_EQ(TypedIn(calendars, "fmExport", "txtFirst"), "2028");
    EXPECT_EQ(TypedIn(calendars, "fmExport", "txtLast"), "2028");
    EXPECT_TRUE(calendars.windows.CloseAll());
  });
}

TEST(ExchangeTools, ProposeNoCurrencyWhileNoCalendarIsOnShow) {
  RunInFreshThread([] {
    MemoryCalendars calendars;
    calendars.Open();
    calendars.Form().PressShortcut("Ctrl+O");
    EXPECT_EQ(TypedIn(calendars, "fmImport", "txtCurrency"), "");
    calendars.Tools().ClickTool("ID_Export");
    EXPECT_EQ(TypedIn(calendars, "fmExport", "txtCurrencies"), "");
    EXPECT_TRUE(calendars.windows.CloseAll());
  });
}

}  // namespace
}  // namespace ferrowind
