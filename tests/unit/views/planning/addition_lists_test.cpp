// Several additions of a window as one.
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"
#include "ferrowind/views/planning/calendars_addition.h"
#include "ferrowind/views/planning/calendars_addition_list.h"
#include "ferrowind/views/planning/holidays_addition.h"
#include "ferrowind/views/planning/holidays_addition_list.h"

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using ::testing::ElementsAre;
using testing::RunInFreshThread;
using Texts = std::vector<std::string>;

class FakeCalendarsAddition : public CalendarsAddition {
 public:
  FakeCalendarsAddition(std::string name, Texts& told, bool fails = false)
      : name_(std::move(name)), told_(told), fails_(fails) {}
  void DaysShown() override { Tell("DaysShown"); }
  bool RunTool(const std::string& id) override {
    Tell("RunTool " + id);
    return id == "ID_" + name_;
  }

 private:
  void Tell(const std::string& what) {
    told_.push_back(name_ + " " + what);
    if (fails_) throw platform::Failure(1, name_ + " fails");
  }

  std::string name_;
  Texts& told_;
  bool fails_;
};

class FakeHolidaysAddition : public HolidaysAddition {
 public:
  FakeHolidaysAddition(std::string name, Texts& told, bool agrees, bool fails = false)
      : name_(std::move(name)), told_(told), agrees_(agrees), fails_(fails) {}
  [[nodiscard]] std::string Caption(const std::string& given) override {
    if (fails_) throw platform::Failure(1, name_ + " fails");
    return given + name_;
  }
  [[nodiscard]] bool BeforeAssign(const std::vector<platform::ChosenRule>&) override {
    told_.push_back(name_);
    if (fails_) throw platform::Failure(1, name_ + " fails");
    return agrees_;
  }

 private:
  std::string name_;
  Texts& told_;
  bool agrees_;
  bool fails_;
};

template <typename List, typename Addition, typename... Arguments>
void AddTo(typename List::Additions& additions, Arguments&&... arguments) {
  additions.push_back(std::make_unique<Addition>(std::forward<Arguments>(arguments)...));
}

TEST(CalendarsAdditionList, TellsEachInTurnAlsoBehindOneThatFails) {
  RunInFreshThread([] {
    testing::ComponentWorld component;
    Texts told;
    CalendarsAdditionList::Additions additions;
    AddTo<CalendarsAdditionList, FakeCalendarsAddition>(additions, "a", told, true);
    AddTo<CalendarsAdditionList, FakeCalendarsAddition>(additions, "b", told);
    CalendarsAdditionList list(std::move(additions));
    list.DaysShown();
    EXPECT_THAT(told, ElementsAre("a DaysShown", "b DaysShown"));
    EXPECT_EQ(component.SeenByOperator().size(), 1u);
  });
}

TEST(CalendarsAdditionList, AsksForAToolUntilOneHasIt) {
  Texts told;
  CalendarsAdditionList::Additions additions;
  for (const char* name : {"a", "b", "c"})
    AddTo<CalendarsAdditionList, FakeCalendarsAddition>(additions, name, told);
  CalendarsAdditionList list(std::move(additions));
  EXPECT_TRUE(list.RunTool("ID_b"));
  EXPECT_THAT(told, ElementsAre("a RunTool ID_b", "b RunTool ID_b"));
  EXPECT_FALSE(list.RunTool("ID_d"));
}

TEST(HolidaysAdditionList, HandsTheCaptionFromOneToTheNext) {
  RunInFreshThread([] {
    testing::ComponentWorld component;
    Texts told;
    HolidaysAdditionList::Additions additions;
    AddTo<HolidaysAdditionList, FakeHolidaysAddition>(additions, "a", told, true);
    AddTo<HolidaysAdditionList, FakeHolidaysAddition>(additions, "b", told, true, true);
    AddTo<HolidaysAdditionList, FakeHolidaysAddition>(additions, "c", told, true);
    HolidaysAdditionList list(std::move(additions));
    EXPECT_EQ(list.Caption("given "), "given ac");
  });
}

TEST(HolidaysAdditionList, LetsRulesBeAssignedWhenAllAgree) {
  Texts told;
  HolidaysAdditionList::Additions additions;
  AddTo<HolidaysAdditionList, FakeHolidaysAddition>(additions, "a", told, true);
  AddTo<HolidaysAdditionList, FakeHolidaysAddition>(additions, "b", told, true);
  HolidaysAdditionList list(std::move(additions));
  EXPECT_TRUE(list.BeforeAssign({}));
  EXPECT_THAT(told, ElementsAre("a", "b"));
}

TEST(HolidaysAdditionList, AsksNobodyBehindOneThatSaysNoOrFails) {
  for (const bool fails : {false, true}) {
    RunInFreshThread([fails] {
      testing::ComponentWorld component;
      Texts told;
      HolidaysAdditionList::Additions additions;
      AddTo<HolidaysAdditionList, FakeHolidaysAddition>(additions, "a", told, fails, fails);
      AddTo<HolidaysAdditionList, FakeHolidaysAddition>(additions, "b", told, true);
      HolidaysAdditionList list(std::move(additions));
      EXPECT_FALSE(list.BeforeAssign({}));
      EXPECT_THAT(told, ElementsAre("a"));
    });
  }
}

}  // namespace
}  // namespace ferrowind
