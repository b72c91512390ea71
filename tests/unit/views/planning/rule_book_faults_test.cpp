// The rule book window while its surroundings fail, and while it is closed under a question.
#include <memory>
#include <string>

#include <gmock/gmock.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_drop_down_list.h"
#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_table.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/views/planning/fm_rule_book.h"

#include "tests/support/fault_scenario.h"
#include "tests/unit/planning/memory_planning_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessForm;
using planning::kDollar;
using planning::kEuro;
using testing::FailEachCall;
using testing::FaultScenario;
using testing::RunInFreshThread;
using ::testing::SizeIs;

constexpr const char* kTyped = "typed by the operator";

/// EUR and USD have a book of two rules each, the first without a comment.
class StoredBooks : public planning::MemoryPlanningWorld {
 public:
  StoredBooks() {
    static_cast<void>(SharedServicesObject());
    GiveBook(kEuro, "EUR", "point | Good Friday | easter-2 |\n");
    GiveBook(kDollar, "USD", "celebration | Independence Day | 07-04 |\n");
  }

  void Open() {
    window = fmRuleBook::Create({platform, tables, windows}, kEuro);
    window->ShowInFront();
  }
  void OpenAndType() {
    Open();
    Comment().ReplaceText(kTyped);
  }
  /// The next question is answered by that button, if it is asked.
  void AnswerQuestion(const char* button) {
    world.toolkit.ScriptModal("fmMessage", [button](HeadlessForm& question) {
      question.Part<headless::HeadlessButton>(button).Click();
    });
  }
  void ChooseDollar() { List().ChooseByOperator("USD - US Dollar"); }
  void Save() { Form().Part<headless::HeadlessButton>("cmdSave").Click(); }

  [[nodiscard]] HeadlessForm& Form() const { return world.toolkit.FormNamed("fmRuleBook"); }
  [[nodiscard]] headless::HeadlessTextBox& Comment() const {
    return Form().Part<headless::HeadlessTextBox>("txtComment");
  }
  [[nodiscard]] headless::HeadlessDropDownList& List() const {
    return Form().Part<headless::HeadlessDropDownList>("cmbCurrency");
  }
  [[nodiscard]] bool CanSave() const { return Form().ControlNamed("cmdSave").Enabled(); }
  [[nodiscard]] std::string ChosenCode() const { return List().ItemText(List().Chosen()).substr(0, 3); }
  [[nodiscard]] static std::string StoredComment() {
    return planning::LoadBook(kEuro, "EUR", {})->book->rules.front().comment;
  }

  almanac::DateTables tables;
  PlanningWindows windows{platform, tables};
  std::shared_ptr<fmRuleBook> window;
};

TEST(RuleBookFaults, AtAnyCallOfOpeningGiveAWindowOrAReport) {
  FailEachCall<StoredBooks>(
      {.arrange = [](StoredBooks& books) { EXPECT_TRUE(books.windows.CloseAll()); },
       .act =
           [](StoredBooks& books) { RunHandler(books.platform, [&] { books.windows.OpenRuleBook(kEuro); }); },
       .look =
           [](StoredBooks& books) {
             books.windows.OpenRuleBook(kEuro);
             ASSERT_TRUE(books.Form().IsShown());
             EXPECT_THAT(books.Form().Part<headless::HeadlessTable>("tblRules").RowKeys(), SizeIs(2));
           },
       .is_silent = testing::IsPassedOverAtOpening},
      20);
}

TEST(RuleBookFaults, AtAnyCallOfShowingAnotherBookLeaveTheWholeOfOne) {
  FailEachCall<StoredBooks>({.arrange = [](StoredBooks& books) { books.OpenAndType(); },
                             .act =
                                 [](StoredBooks& books) {
                                   books.AnswerQuestion("cmdOk");
                                   books.ChooseDollar();
                                 },
                             .look =
                                 [](StoredBooks& books) {
                                   ASSERT_TRUE(books.Form().IsShown());
                                   const std::string code = books.ChosenCode();
                                   EXPECT_EQ(books.Form().Caption(), "Rule book of " + code);
                                   EXPECT_EQ(books.Comment().Text(), code == "EUR" ? kTyped : "");
                                   EXPECT_EQ(books.CanSave(), code == "EUR");
                                 }},
                            10);
}

TEST(RuleBookFaults, AtAnyCallOfSavingLoseNothingThatWasTyped) {
  FailEachCall<StoredBooks>({.arrange =
                                 [](StoredBooks& books) {
                                   StoredBooks::GiveBook(kEuro, "EUR", "point | Good Friday | easter-2 |\n");
                                   books.OpenAndType();
                                 },
                             .act = [](StoredBooks& books) { books.Save(); },
                             .look =
                                 [](StoredBooks& books) {
                                   EXPECT_EQ(books.Comment().Text(), kTyped);
                                   const std::string stored = StoredBooks::StoredComment();
                                   EXPECT_TRUE(stored.empty() || stored == kTyped) << stored;
                                   if (stored.empty()) {
                                     EXPECT_TRUE(books.CanSave());
                                   }
                                   if (!books.CanSave()) return;
                                   // What was stored although its answer was lost does not stand in the way.
                                   books.Comment().ReplaceText("more");
                                   books.Save();
                                   EXPECT_EQ(StoredBooks::StoredComment(), "more");
                                   EXPECT_FALSE(books.CanSave());
                                 }},
                            20);
}

TEST(RuleBookFaults, AtAnyCallOfClosingLetTheWindowCloseOrKeepWhatWasTyped) {
  FailEachCall<StoredBooks>({.arrange = [](StoredBooks& books) { books.OpenAndType(); },
                             .act =
                                 [](StoredBooks& books) {
                                   books.AnswerQuestion("cmdOk");
                                   static_cast<void>(books.Form().CloseByOperator());
                                 },
                             .look =
                                 [](StoredBooks& books) {
                                   EXPECT_EQ(books.window->IsOpen(), books.Form().IsShown());
                                   if (!books.window->IsOpen()) return;
                                   EXPECT_EQ(books.Comment().Text(), kTyped);
                                   books.AnswerQuestion("cmdOk");
                                   EXPECT_TRUE(books.Form().CloseByOperator());
                                 }},
                            5);
}

/// How the operator comes to be asked whether to lose what was typed.
using Asking = void (*)(StoredBooks& books);
constexpr Asking kAskings[] = {[](StoredBooks& books) { books.ChooseDollar(); },
                               [](StoredBooks& books) { static_cast<void>(books.Form().CloseByOperator()); }};

TEST(RuleBookQuestion, MayBeAnsweredAfterTheWindowWasDropped) {
  for (const Asking ask : kAskings) {
    for (const char* button : {"cmdOk", "cmdCancel"}) {
      RunInFreshThread([&] {
        StoredBooks books;
        books.OpenAndType();
        books.world.toolkit.ScriptModal("fmMessage", [&](HeadlessForm& question) {
          books.window.reset();
          question.Part<headless::HeadlessButton>(button).Click();
        });
        ask(books);
        EXPECT_THAT(testing::SeenByOperator(books.world.log), SizeIs(0));
        EXPECT_EQ(StoredBooks::StoredComment(), "");
      });
    }
  }
}

TEST(RuleBookQuestion, GoesWithTheWindowThatTheHostCloses) {
  RunInFreshThread([] {
    StoredBooks books;
    books.OpenAndType();
    books.world.toolkit.ScriptModal("fmMessage", [&](HeadlessForm& question) {
      // Closing asks as well.
      books.AnswerQuestion("cmdOk");
      EXPECT_TRUE(books.window->Close());
      EXPECT_FALSE(question.IsShown());
    });
    books.ChooseDollar();
    EXPECT_FALSE(books.window->IsOpen());
    EXPECT_THAT(testing::SeenByOperator(books.world.log), SizeIs(0));
  });
}

TEST(RuleBookQuestion, StaysWhileTheHostCannotCloseTheWindowThatIsClosing) {
  RunInFreshThread([] {
    StoredBooks books;
    books.OpenAndType();
    books.world.toolkit.ScriptModal("fmMessage", [&](HeadlessForm& question) {
      EXPECT_FALSE(books.window->Close());
      EXPECT_TRUE(question.IsShown());
      question.Part<headless::HeadlessButton>("cmdCancel").Click();
    });
    EXPECT_FALSE(books.Form().CloseByOperator());
    EXPECT_EQ(books.Comment().Text(), kTyped);
  });
}

}  // namespace
}  // namespace ferrowind
