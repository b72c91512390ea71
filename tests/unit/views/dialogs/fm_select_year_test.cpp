#include "ferrowind/views/dialogs/fm_select_year.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_label.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/adapters/headless/headless_up_down.h"

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessForm;
using headless::HeadlessTextBox;
using headless::HeadlessUpDown;
using platform::ParameterType;
using platform::Value;
using testing::ComponentWorld;
using testing::RunInFreshThread;

constexpr std::int32_t kEuro = 978;

std::string YearIn(HeadlessForm& form) { return form.Part<HeadlessTextBox>("txtYear").Text(); }
void Type(HeadlessForm& form, const std::string& year) {
  form.Part<HeadlessTextBox>("txtYear").ReplaceText(year);
}
void Step(HeadlessForm& form, int steps) {
  auto& spinner = form.Part<HeadlessUpDown>("udYear");
  for (; steps > 0; --steps) spinner.StepUp();
  for (; steps < 0; ++steps) spinner.StepDown();
}
void Click(HeadlessForm& form, const std::string& button) { form.Part<HeadlessButton>(button).Click(); }
void Create(HeadlessForm& form) { Click(form, "cmdCreate"); }
void Cancel(HeadlessForm& form) { Click(form, "cmdCancel"); }

/// The dialog for the currency 978 on 15 January 2026.
struct SelectYearWorld : ComponentWorld {
  SelectYearWorld() {
    dialog.SetCcyID(kEuro);
    AnswerWith(0);
  }
  void AnswerWith(std::int32_t return_value) {
    world.commands.Forget("CldIUMain");
    world.commands.Answer("CldIUMain")
        .Takes("@ID1", ParameterType::kInt32)
        .Takes("@Year1", ParameterType::kInt32)
        .Returns(return_value);
  }
  [[nodiscard]] HeadlessForm& Form() const { return world.toolkit.FormNamed("fmSelectYear"); }
  void Show(const headless::ModalScript& play) {
    world.toolkit.ScriptModal("fmSelectYear", play);
    dialog.ShowModal();
  }
  fmSelectYear dialog{platform};
};

TEST(SelectYear, IsDesignedWithItsTextsAsAFixedDialogInTheMiddleOfTheScreen) {
  RunInFreshThread([] {
    SelectYearWorld year;
    const auto& design = year.Form().Design();
    EXPECT_EQ(year.dialog.Caption(), "Select year");
    EXPECT_EQ(design.border, platform::FormBorder::kFixedDialog);
    EXPECT_EQ(design.start, platform::FormStart::kCenterScreen);
    EXPECT_EQ(design.client_width, 3660);
    EXPECT_EQ(design.client_height, 1290);
    EXPECT_EQ(year.Form().Part<headless::HeadlessLabel>("lblCreate").Text(), "Create new calendar on ");
    EXPECT_EQ(year.Form().Part<HeadlessButton>("cmdCreate").Caption(), "Create");
    EXPECT_EQ(year.Form().Part<HeadlessButton>("cmdCancel").Caption(), "Cancel");
    EXPECT_EQ(year.Form().Part<HeadlessTextBox>("txtYear").MaxLength(), 4);
    EXPECT_TRUE(year.world.log.Contains("udYear.SetRange(1900, 3000, 1)"));
    EXPECT_EQ(year.Form().ControlNamed("pct").Name(), "pct");
  });
}

TEST(SelectYear, AFreshOneReadsZero) {
  RunInFreshThread([] {
    ComponentWorld component;
    const fmSelectYear dialog(component.platform);
    EXPECT_EQ(dialog.CcyID(), 0);
    EXPECT_EQ(dialog.Result(), 0);
    EXPECT_EQ(dialog.EnterYear(), 0);
  });
}

TEST(SelectYear, StartsAtTheCurrentYearFieldFirstAndThenTheSpinner) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.world.clock.SetToday(platform::Date(2031, 12, 31));
    year.world.log.Clear();
    year.Show([](HeadlessForm& form) {
      EXPECT_EQ(YearIn(form), "2031");
      EXPECT_EQ(form.Part<HeadlessUpDown>("udYear").Value(), 2031);
      EXPECT_EQ(form.FocusedControl(), "cmdCreate");
      Cancel(form);
    });
    EXPECT_THAT(year.world.log.Between("fmSelectYear.ShowModal()", "operator.cmdCancel.Click()"),
                ::testing::ElementsAre("fmSelectYear.ShowModal()", R"(txtYear.SetText("2031"))",
                                       "udYear.SetValue(2031)", R"(txtYear.SetText("2031"))",
                                       "operator.cmdCancel.Click()"));
  });
}

TEST(SelectYear, ACurrentYearBeyondTheSpinnersRangeIsReportedAndCanStillBeStored) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.world.clock.SetToday(platform::Date(3001, 1, 1));
    year.Show([](HeadlessForm& form) {
      EXPECT_EQ(YearIn(form), "3001");
      Create(form);
    });
    EXPECT_EQ(year.world.services->Reports().size(), 1u);
    EXPECT_EQ(year.dialog.EnterYear(), 3001);
  });
}

TEST(SelectYear, CreateStoresTheCurrencyAndTheYearInThisOrderAsIntegers) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.Show(Create);
    ASSERT_EQ(year.world.commands.Calls().size(), 1u);
    EXPECT_EQ(year.world.commands.Calls()[0].procedure, "CldIUMain");
    EXPECT_EQ(year.world.commands.Calls()[0].parameters,
              (std::vector<std::pair<std::string, Value>>{{"@ID1", kEuro}, {"@Year1", 2026}}));
    EXPECT_EQ(year.dialog.Result(), 0);
    EXPECT_EQ(year.dialog.EnterYear(), 2026);
    EXPECT_EQ(year.dialog.CcyID(), kEuro);
    EXPECT_EQ(year.world.toolkit.BeepCount(), 0);
  });
}

TEST(SelectYear, CreateStoresThenHidesLetsPendingEventsRunAndUnloads) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.Show(Create);
    EXPECT_THAT(
        year.world.log.Between(R"(services.TraceMessage(".Parameters(0).Value = 0"))",
                               "fmSelectYear.Unload()"),
        ::testing::ElementsAre(R"(services.TraceMessage(".Parameters(0).Value = 0"))", "fmSelectYear.Hide()",
                               "toolkit.ProcessPendingEvents()", "fmSelectYear.Unload()"));
    EXPECT_TRUE(year.Form().HasUnloaded());
  });
}

TEST(SelectYear, CancelStoresNothingAndReadsOne) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.Show(Cancel);
    EXPECT_TRUE(year.world.commands.Calls().empty());
    EXPECT_EQ(year.dialog.Result(), 1);
    EXPECT_EQ(year.dialog.EnterYear(), 0);
    EXPECT_THAT(year.world.log.Between("operator.cmdCancel.Click()", "fmSelectYear.Unload()"),
                ::testing::ElementsAre("operator.cmdCancel.Click()", "fmSelectYear.Hide()",
                                       "toolkit.ProcessPendingEvents()", "fmSelectYear.Unload()"));
  });
}

TEST(SelectYear, EscapeIsCancel) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.Show([](HeadlessForm& form) { form.PressEscape(); });
    EXPECT_TRUE(year.world.commands.Calls().empty());
    EXPECT_EQ(year.dialog.Result(), 1);
  });
}

TEST(SelectYear, EnterIsCreateFromTheYearField) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.Show([](HeadlessForm& form) {
      Type(form, "2040");
      form.PressEnter();
    });
    EXPECT_EQ(year.world.commands.Calls().at(0).Parameter("@Year1"), Value(2040));
    EXPECT_EQ(year.dialog.EnterYear(), 2040);
  });
}

TEST(SelectYear, ItsFrameDoesNotCloseIt) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.Show([](HeadlessForm& form) {
      EXPECT_FALSE(form.CloseByOperator());
      Cancel(form);
    });
  });
}

TEST(SelectYear, ThreeStepsUpGiveTheThirdYearToCome) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.Show([](HeadlessForm& form) {
      Step(form, 3);
      EXPECT_EQ(YearIn(form), "2029");
      Step(form, -1);
      EXPECT_EQ(YearIn(form), "2028");
      Create(form);
    });
    EXPECT_EQ(year.dialog.EnterYear(), 2028);
  });
}

TEST(SelectYear, AStepReplacesATypedYearByTheSpinnersOwn) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.Show([](HeadlessForm& form) {
      Type(form, "2050");
      Step(form, 1);
      EXPECT_EQ(YearIn(form), "2027");
      Type(form, "1999");
      Step(form, -1);
      EXPECT_EQ(YearIn(form), "2026");
      Cancel(form);
    });
  });
}

TEST(SelectYear, TheSpinnerStopsAt1900AndAt3000) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.Show([](HeadlessForm& form) {
      Step(form, -200);
      EXPECT_EQ(YearIn(form), "1900");
      Step(form, 1200);
      EXPECT_EQ(YearIn(form), "3000");
      Cancel(form);
    });
  });
}

TEST(SelectYear, ATypedYearOutsideTheSpinnersRangeIsStoredUnchecked) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.Show([](HeadlessForm& form) {
      Type(form, "77");
      Create(form);
    });
    EXPECT_EQ(year.world.commands.Calls().at(0).Parameter("@Year1"), Value(77));
    EXPECT_EQ(year.dialog.EnterYear(), 77);
  });
}

TEST(SelectYear, ACalendarThatIsNotStoredBeepsAndReadsLikeOneThatIs) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.AnswerWith(6);
    year.Show([](HeadlessForm& form) {
      Type(form, "2027");
      Create(form);
    });
    EXPECT_EQ(year.world.toolkit.BeepCount(), 1);
    EXPECT_EQ(year.dialog.Result(), 0);
    EXPECT_EQ(year.dialog.EnterYear(), 2027);
    EXPECT_TRUE(year.Form().HasUnloaded());
    EXPECT_TRUE(year.SeenByOperator().empty());
  });
}

TEST(SelectYear, ACallThatFailsBeepsAndLeavesTheFailurePending) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.world.commands.FailAt(headless::CommandStep::kExecute, platform::Failure(5, "database is locked"));
    year.Show(Create);
    EXPECT_EQ(year.world.toolkit.BeepCount(), 1);
    EXPECT_EQ(year.dialog.Result(), 0);
    EXPECT_EQ(Module().pending_failures[0].description, "database is locked");
    EXPECT_TRUE(year.SeenByOperator().empty());
  });
}

TEST(SelectYear, AFieldThatHoldsNoNumberIsRefusedBeforeAnythingIsStored) {
  for (const char* text : {"", "year", "20x6", "    ", "9e99"}) {
    RunInFreshThread([text] {
      SCOPED_TRACE(text);
      SelectYearWorld year;
      year.Show([&](HeadlessForm& form) {
        Type(form, text);
        Create(form);
        EXPECT_TRUE(form.IsShown());
        EXPECT_EQ(form.FocusedControl(), "txtYear");
        EXPECT_EQ(year.world.log.Calls().back(), "txtYear.SelectAll()");
        EXPECT_EQ(year.world.toolkit.BeepCount(), 1);
        form.Part<HeadlessTextBox>("txtYear").TypeText("2030");
        Create(form);
      });
      ASSERT_EQ(year.world.commands.Calls().size(), 1u);
      EXPECT_EQ(year.world.commands.Calls()[0].Parameter("@Year1"), Value(2030));
      EXPECT_EQ(year.world.toolkit.BeepCount(), 1);
    });
  }
}

bool ShowsRange(HeadlessForm& form) { return form.ControlNamed("lblRange").Visible(); }

TEST(SelectYear, TakesAYearThatIsTypedAtOnceInPlaceOfTheCurrentOne) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.Show([](HeadlessForm& form) {
      EXPECT_EQ(form.FocusedControl(), "cmdCreate");
      form.TypeText("2040");
      EXPECT_EQ(YearIn(form), "2040");
      form.PressEnter();
    });
    EXPECT_EQ(year.dialog.EnterYear(), 2040);
  });
}

TEST(SelectYear, ReplacesItsYearWhenTheOperatorGoesToTheField) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.Show([](HeadlessForm& form) {
      form.Part<HeadlessTextBox>("txtYear").TypeText("2041");
      EXPECT_EQ(YearIn(form), "2041");
      Cancel(form);
    });
  });
}

TEST(SelectYear, TellsTheRangeOfYearsWhileTheFieldHoldsAnotherOne) {
  for (const char* text : {"1800", "1899", "3001", "18", "0", "4", "31", "77", "year", "20x6", " 203"}) {
    RunInFreshThread([text] {
      SCOPED_TRACE(text);
      SelectYearWorld year;
      year.Show([&](HeadlessForm& form) {
        EXPECT_EQ(form.Part<headless::HeadlessLabel>("lblRange").Text(),
                  "A calendar's year is 1900 to 3000.");
        EXPECT_FALSE(ShowsRange(form));
        Type(form, text);
        EXPECT_TRUE(ShowsRange(form));
        Type(form, "1900");
        EXPECT_FALSE(ShowsRange(form));
        Cancel(form);
      });
    });
  }
}

TEST(SelectYear, TellsNoRangeForAYearOfItNorForItsBeginning) {
  for (const char* text : {"1900", "3000", "2027", "2", "1", "19", "30", "300", "3", ""}) {
    RunInFreshThread([text] {
      SCOPED_TRACE(text);
      SelectYearWorld year;
      year.Show([&](HeadlessForm& form) {
        Type(form, text);
        EXPECT_FALSE(ShowsRange(form));
        Cancel(form);
      });
    });
  }
}

TEST(SelectYear, TellsTheRangeWhenAFieldWithoutAYearIsRefused) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.Show([](HeadlessForm& form) {
      Type(form, "");
      Create(form);
      EXPECT_TRUE(ShowsRange(form));
      Step(form, 1);
      EXPECT_FALSE(ShowsRange(form));
      Cancel(form);
    });
  });
}

TEST(SelectYear, ARefusedFieldCanStillBeCancelled) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.Show([](HeadlessForm& form) {
      Type(form, "abcd");
      Create(form);
      Cancel(form);
    });
    EXPECT_EQ(year.dialog.Result(), 1);
    EXPECT_TRUE(year.world.commands.Calls().empty());
  });
}

TEST(SelectYear, ACaptionOfTheCallerTakesThePlaceOfItsOwn) {
  RunInFreshThread([] {
    SelectYearWorld year;
    year.dialog.SetCaption(year.dialog.Caption() + " EUR currency");
    EXPECT_EQ(year.Form().Caption(), "Select year EUR currency");
  });
}

}  // namespace
}  // namespace ferrowind
