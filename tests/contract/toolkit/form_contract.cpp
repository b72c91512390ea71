#include <limits>
#include <utility>

#include "tests/contract/toolkit/toolkit_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Form;
using platform::Subscription;
using testing::ElementsAre;
using testing::IsEmpty;
namespace failure_number = platform::failure_number;

class FormContract : public ToolkitContract {
 protected:
  [[nodiscard]] std::shared_ptr<Form> NewForm() { return toolkit.CreateForm(ContractForm()); }
};

TEST_F(FormContract, BearsTheNamesAndTextsOfItsDesign) {
  EXPECT_EQ(form->Name(), "fmContract");
  EXPECT_EQ(form->Caption(), "Contract");
  EXPECT_EQ(The<platform::Label>("lblText").Text(), "A label");
  EXPECT_EQ(The<platform::Button>("cmdPush").Caption(), "Push");
  EXPECT_EQ(The<platform::TextBox>("txtText").Text(), "First text");
  EXPECT_EQ(form->ControlNamed("gexRows").Name(), "gexRows");
}

TEST_F(FormContract, HasEveryControlOfItsDesignAsItsKind) {
  EXPECT_NO_THROW(static_cast<void>(The<platform::Grid>("gexRows")));
  EXPECT_NO_THROW(static_cast<void>(The<platform::Tree>("tvNodes")));
  EXPECT_NO_THROW(static_cast<void>(The<platform::ToolBar>("ssatbTools")));
  EXPECT_NO_THROW(static_cast<void>(The<platform::StatusBar>("sbLine")));
  EXPECT_NO_THROW(static_cast<void>(The<platform::Animation>("anim")));
  EXPECT_NO_THROW(static_cast<void>(The<platform::DatePicker>("dtpDay")));
  EXPECT_NO_THROW(static_cast<void>(The<platform::UpDown>("udNumber")));
  EXPECT_NO_THROW(static_cast<void>(The<platform::DropDownList>("cmbList")));
  for (const char* name : {"fraBox", "pctArea", "sssp"}) EXPECT_EQ(form->ControlNamed(name).Name(), name);
}

TEST_F(FormContract, NamesTheControlAndItselfWhenThereIsNoSuchControl) {
  ExpectFailure(failure_number::kElementNotFound, "txtNone",
                [&] { static_cast<void>(form->ControlNamed("txtNone")); });
  ExpectFailure(failure_number::kElementNotFound, "fmContract",
                [&] { static_cast<void>(form->ControlNamed("txtNone")); });
}

TEST_F(FormContract, TakesAControlOfAnotherKindForNone) {
  ExpectFailure(failure_number::kElementNotFound, "lblText",
                [&] { static_cast<void>(The<platform::Grid>("lblText")); });
}

TEST_F(FormContract, HasNoControlThatItsDesignLeavesOut) {
  platform::FormDesign design = ContractForm();
  std::erase_if(design.controls, [](const auto& control) {
    return control.name == "txtOther" || control.name == "tvNodes" || control.name == "txtInside";
  });
  const auto smaller = toolkit.CreateForm(design);
  smaller->Show();
  for (const char* name : {"txtOther", "tvNodes", "txtInside"}) {
    ExpectFailure(failure_number::kElementNotFound, name,
                  [&] { static_cast<void>(smaller->ControlNamed(name)); });
  }
  for (const auto& control : design.controls)
    EXPECT_NO_THROW(static_cast<void>(smaller->ControlNamed(control.name)));
}

TEST_F(FormContract, CannotBeMadeWithoutALayout) {
  try {
    static_cast<void>(toolkit.CreateForm(FormWithoutLayout()));
    ADD_FAILURE() << "A form without a layout was made";
  } catch (const platform::Failure& failure) {
    EXPECT_NE(failure.Description().find("fmNowhere"), std::string::npos) << failure.Description();
  }
}

TEST_F(FormContract, ComesBackFromBeingMinimisedWhenRaised) {
  under_test->Minimise(*form);
  ASSERT_TRUE(under_test->IsMinimised(*form));
  form->Raise();
  EXPECT_FALSE(under_test->IsMinimised(*form));
  EXPECT_TRUE(form->IsShown());
}

TEST_F(FormContract, StaysHiddenWhenRaised) {
  const auto other = NewForm();
  other->Raise();
  EXPECT_FALSE(other->IsShown());
  form->Hide();
  form->Raise();
  EXPECT_FALSE(form->IsShown());
}

TEST_F(FormContract, IsNeitherLoadedNorShownWhenMade) {
  const auto other = NewForm();
  const Subscription loaded = other->OnLoad(Note("load"));
  EXPECT_FALSE(other->IsShown());
  other->Load();
  EXPECT_THAT(notes, ElementsAre("load"));
  EXPECT_FALSE(other->IsShown());
}

TEST_F(FormContract, IsLoadedOnceHoweverOftenItIsAsked) {
  const auto other = NewForm();
  const Subscription loaded = other->OnLoad(Note("load"));
  other->Load();
  other->Load();
  other->Show();
  other->Hide();
  other->Show();
  EXPECT_THAT(notes, ElementsAre("load"));
}

TEST_F(FormContract, IsLoadedBeforeItIsShown) {
  const auto other = NewForm();
  bool was_shown = true;
  const Subscription loaded = other->OnLoad([&] { was_shown = other->IsShown(); });
  other->Show();
  EXPECT_FALSE(was_shown);
  EXPECT_TRUE(other->IsShown());
}

TEST_F(FormContract, IsNotShownWhenItUnloadsInItsOwnLoadHandler) {
  const auto other = NewForm();
  const Subscription loaded = other->OnLoad([&] { other->Unload(); });
  other->Show();
  EXPECT_FALSE(other->IsShown());
}

TEST_F(FormContract, CanBeHiddenAndShownAgain) {
  form->Hide();
  EXPECT_FALSE(form->IsShown());
  form->Show();
  EXPECT_TRUE(form->IsShown());
}

TEST_F(FormContract, AsksItsHandlersBeforeItUnloads) {
  bool was_shown = false;
  const Subscription query = form->OnCloseQuery([&](bool& cancel) {
    EXPECT_FALSE(cancel);
    was_shown = form->IsShown();
  });
  EXPECT_TRUE(form->Unload());
  EXPECT_TRUE(was_shown);
  EXPECT_FALSE(form->IsShown());
}

TEST_F(FormContract, StaysOpenWhenAHandlerRefuses) {
  const Subscription query = form->OnCloseQuery([](bool& cancel) { cancel = true; });
  EXPECT_FALSE(form->Unload());
  EXPECT_TRUE(form->IsShown());
}

TEST_F(FormContract, CanBeClosedAfterARefusal) {
  bool refuse = true;
  const Subscription query = form->OnCloseQuery([&](bool& cancel) { cancel = refuse; });
  EXPECT_FALSE(form->Unload());
  refuse = false;
  EXPECT_TRUE(form->Unload());
}

TEST_F(FormContract, IsUnloadedOnceHoweverOftenItIsAsked) {
  const Subscription query = form->OnCloseQuery([&](bool&) { notes.push_back("query"); });
  EXPECT_TRUE(form->Unload());
  EXPECT_TRUE(form->Unload());
  EXPECT_THAT(notes, ElementsAre("query"));
}

TEST_F(FormContract, AsksNobodyWhenItWasNeverLoaded) {
  const auto other = NewForm();
  const Subscription query = other->OnCloseQuery([&](bool&) { notes.push_back("query"); });
  EXPECT_TRUE(other->Unload());
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(FormContract, RefusesToUnloadWhileItIsClosingAlready) {
  bool inner = true;
  int queries = 0;
  const Subscription query = form->OnCloseQuery([&](bool&) {
    ++queries;
    inner = form->Unload();
  });
  EXPECT_TRUE(form->Unload());
  EXPECT_FALSE(inner);
  EXPECT_EQ(queries, 1);
}

TEST_F(FormContract, CanBeDroppedByItsOwnCloseHandler) {
  Subscription query = form->OnCloseQuery([&](bool&) {
    notes.push_back("query");
    form.reset();
  });
  Form& dropped = *form;
  EXPECT_TRUE(dropped.Unload());
  EXPECT_THAT(notes, ElementsAre("query"));
}

TEST_F(FormContract, StaysHiddenOnceItIsUnloaded) {
  const auto other = NewForm();
  const Subscription loaded = other->OnLoad(Note("load"));
  other->Show();
  other->Unload();
  other->Show();
  other->Load();
  EXPECT_FALSE(other->IsShown());
  EXPECT_THAT(notes, ElementsAre("load"));
}

TEST_F(FormContract, KeepsItsControlsAfterItIsUnloaded) {
  The<platform::TextBox>("txtText").SetText("still here");
  form->Unload();
  EXPECT_EQ(The<platform::TextBox>("txtText").Text(), "still here");
}

TEST_F(FormContract, RaisesNothingWhenItIsDroppedOpen) {
  auto other = NewForm();
  Subscription query = other->OnCloseQuery([&](bool&) { notes.push_back("query"); });
  other->Show();
  other.reset();
  toolkit.ProcessPendingEvents();
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(FormContract, CallsNoHandlerWhoseSubscriptionWasDropped) {
  const auto other = NewForm();
  other->OnLoad(Note("load")).Reset();
  other->OnCloseQuery([&](bool&) { notes.push_back("query"); }).Reset();
  other->Show();
  other->Unload();
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(FormContract, AsksItsHandlersWhenTheOperatorClosesIt) {
  bool refuse = true;
  const Subscription query = form->OnCloseQuery([&](bool& cancel) {
    notes.push_back("query");
    cancel = refuse;
  });
  under_test->CloseByFrame(*form);
  EXPECT_TRUE(form->IsShown());
  refuse = false;
  under_test->CloseByFrame(*form);
  EXPECT_FALSE(form->IsShown());
  EXPECT_THAT(notes, ElementsAre("query", "query"));
  EXPECT_TRUE(form->Unload());
  EXPECT_THAT(notes, ElementsAre("query", "query"));
}

TEST_F(FormContract, CanBeDroppedWhileTheOperatorClosesIt) {
  Subscription query = form->OnCloseQuery([&](bool&) {
    notes.push_back("query");
    form.reset();
  });
  under_test->CloseByFrame(*form);
  toolkit.ProcessPendingEvents();
  EXPECT_THAT(notes, ElementsAre("query"));
}

TEST_F(FormContract, TakesPlaceAndSizeInTwips) {
  form->SetLeft(1500);
  form->SetTop(750);
  form->SetWidth(9000);
  form->SetHeight(7500);
  EXPECT_EQ(form->Left(), 1500);
  EXPECT_EQ(form->Top(), 750);
  EXPECT_EQ(form->Width(), 9000);
  EXPECT_EQ(form->Height(), 7500);
  EXPECT_LE(form->InnerHeight(), form->Height());
  EXPECT_GT(form->InnerHeight(), 0);
}

TEST_F(FormContract, KeepsAPlaceBeyondTheScreen) {
  form->SetLeft(toolkit.Screen().width + 1500);
  EXPECT_EQ(form->Left(), toolkit.Screen().width + 1500);
}

TEST_F(FormContract, RefusesASizeThatIsNone) {
  const float width = form->Width();
  const float height = form->Height();
  for (const float size :
       {-15.0F, std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
    ExpectFailure(failure_number::kInvalidArgument, "", [&] { form->SetWidth(size); });
    ExpectFailure(failure_number::kInvalidArgument, "", [&] { form->SetHeight(size); });
  }
  EXPECT_EQ(form->Width(), width);
  EXPECT_EQ(form->Height(), height);
}

TEST_F(FormContract, TellsOfANewSize) {
  const Subscription resized = form->OnResize(Note("resize"));
  under_test->ResizeByFrame(*form, form->Width() + 1500, form->Height() + 750);
  toolkit.ProcessPendingEvents();
  EXPECT_FALSE(notes.empty());
  notes.clear();
  form->SetWidth(form->Width() - 1500);
  toolkit.ProcessPendingEvents();
  EXPECT_FALSE(notes.empty());
}

TEST_F(FormContract, TellsOfItsSizeWhenItIsFirstShown) {
  const auto other = NewForm();
  const Subscription resized = other->OnResize(Note("resize"));
  other->Show();
  toolkit.ProcessPendingEvents();
  EXPECT_FALSE(notes.empty());
}

TEST_F(FormContract, TakesANewCaption) {
  form->SetCaption("Another caption");
  EXPECT_EQ(form->Caption(), "Another caption");
}

}  // namespace
}  // namespace ferrowind::contract
