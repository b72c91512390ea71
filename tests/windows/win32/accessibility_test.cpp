#include <memory>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <oleacc.h>

#include "ferrowind/adapters/win32/forms/win32_form.h"
#include "ferrowind/adapters/win32/forms/win32_toolkit.h"
#include "ferrowind/adapters/win32/grid/grid.h"
#include "ferrowind/adapters/win32/table/table.h"
#include "ferrowind/adapters/win32/year/year_view.h"
#include "ferrowind/adapters/windows/com_pointer.h"

#include "tests/contract/toolkit/contract_forms.h"
#include "tests/windows/win32/contract_layouts.h"
#include "tests/windows/win32/input.h"

namespace ferrowind::win32 {
namespace {

using platform::RecordSet;
using platform::Value;
using testing::ElementsAre;
using windows::ComPointer;

VARIANT Number(LONG part) {
  VARIANT number{};
  V_VT(&number) = VT_I4;
  V_I4(&number) = part;
  return number;
}

std::wstring Taken(BSTR text) {
  if (text == nullptr) return {};
  std::wstring taken(text, SysStringLen(text));
  SysFreeString(text);
  return taken;
}

/// What an assistive program reads of a window's client area.
class Reader {
 public:
  explicit Reader(HWND window) {
    EXPECT_EQ(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                         object_.ReceiveAny()),
              S_OK);
  }

  [[nodiscard]] IAccessible* operator->() const { return object_.Get(); }
  [[nodiscard]] LONG Count() const {
    LONG count = -1;
    object_->get_accChildCount(&count);
    return count;
  }
  [[nodiscard]] std::wstring Name(LONG part) const {
    BSTR text = nullptr;
    object_->get_accName(Number(part), &text);
    return Taken(text);
  }
  [[nodiscard]] std::wstring Value(LONG part) const {
    BSTR text = nullptr;
    object_->get_accValue(Number(part), &text);
    return Taken(text);
  }
  [[nodiscard]] std::wstring Description(LONG part) const {
    BSTR text = nullptr;
    object_->get_accDescription(Number(part), &text);
    return Taken(text);
  }
  [[nodiscard]] LONG Role(LONG part) const {
    VARIANT role{};
    object_->get_accRole(Number(part), &role);
    return V_I4(&role);
  }
  [[nodiscard]] LONG State(LONG part) const {
    VARIANT state{};
    object_->get_accState(Number(part), &state);
    return V_I4(&state);
  }
  [[nodiscard]] LONG Focus() const {
    VARIANT part{};
    return object_->get_accFocus(&part) == S_OK ? V_I4(&part) : 0;
  }
  [[nodiscard]] std::vector<LONG> Selection() const {
    VARIANT selected{};
    object_->get_accSelection(&selected);
    if (V_VT(&selected) == VT_I4) return {V_I4(&selected)};
    std::vector<LONG> parts;
    if (V_VT(&selected) != VT_UNKNOWN) return parts;
    ComPointer<IUnknown> list;
    list.Attach(V_UNKNOWN(&selected));
    ComPointer<IEnumVARIANT> numbers;
    list->QueryInterface(IID_IEnumVARIANT, numbers.ReceiveAny());
    VARIANT number{};
    while (numbers->Next(1, &number, nullptr) == S_OK) parts.push_back(V_I4(&number));
    return parts;
  }
  /// The part in the middle of where that part is said to be.
  [[nodiscard]] LONG PartInTheMiddleOf(LONG part) const {
    LONG left = 0;
    LONG top = 0;
    LONG width = 0;
    LONG height = 0;
    object_->accLocation(&left, &top, &width, &height, Number(part));
    VARIANT under{};
    object_->accHitTest(left + width / 2, top + height / 2, &under);
    return V_I4(&under);
  }

 private:
  ComPointer<IAccessible> object_;
};

/// The parts of which a window's events tell, while it lives.
class Listener {
 public:
  explicit Listener(DWORD event)
      : hook_(SetWinEventHook(event, event, nullptr, &Listener::Note, GetCurrentProcessId(), 0,
                              WINEVENT_OUTOFCONTEXT)) {
    parts_.clear();
  }
  ~Listener() { UnhookWinEvent(hook_); }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  [[nodiscard]] static const std::vector<LONG>& Parts() {
    contract::Settle();
    return parts_;
  }

 private:
  static void CALLBACK Note(HWINEVENTHOOK /*hook*/, DWORD /*event*/, HWND /*window*/, LONG object, LONG part,
                            DWORD /*thread*/, DWORD /*time*/) {
    if (object == OBJID_CLIENT) parts_.push_back(part);
  }

  inline static std::vector<LONG> parts_;
  HWINEVENTHOOK hook_;
};

class AccessibilityTest : public testing::Test {
 protected:
  template <typename Kind>
  Kind& The(const std::string& name) {
    return dynamic_cast<Kind&>(form_->ControlNamed(name));
  }
  void Show(const platform::FormDesign& design) {
    form_ = toolkit_.CreateForm(design);
    form_->Show();
    contract::Settle();
  }

  Win32Toolkit toolkit_{contract::ContractLayouts()};
  std::shared_ptr<platform::Form> form_;
};

// Grids

class GridAccessibilityTest : public AccessibilityTest {
 protected:
  GridAccessibilityTest() {
    Show(contract::ContractForm());
    grid_ = &The<Win32Grid>("gexRows");
    for (const char* name : {"Type", "Name"}) {
      platform::GridColumn& column = grid_->AddColumn(name, 0, 1, name);
      column.SetBoundField(name);
      column.SetGroupable(1);
    }
    grid_->HoldColumns();
    grid_->AttachRecords(std::make_shared<RecordSet>(
        std::vector<std::string>{"Type", "Name"},
        std::vector<std::vector<Value>>{
            {"Holiday", "Easter"}, {"Holiday", "Christmas"}, {"Weekend", "Sunday"}}));
    grid_->Rebind();
    contract::Settle();
    reader_ = std::make_unique<Reader>(grid_->Handle());
  }
  void TearDown() override { reader_.reset(); }

  Win32Grid* grid_ = nullptr;
  std::unique_ptr<Reader> reader_;
};

TEST_F(GridAccessibilityTest, ReadsHeadersRowsAndCells) {
  EXPECT_EQ(reader_->Role(CHILDID_SELF), ROLE_SYSTEM_TABLE);
  EXPECT_EQ(reader_->Count(), 2 + 3 * 3);
  EXPECT_EQ(reader_->Name(1), L"Type");
  EXPECT_EQ(reader_->Role(1), ROLE_SYSTEM_COLUMNHEADER);
  EXPECT_EQ(reader_->Name(3), L"Type: Holiday, Name: Easter");
  EXPECT_EQ(reader_->Role(3), ROLE_SYSTEM_ROW);
  EXPECT_EQ(reader_->Name(5), L"Name");
  EXPECT_EQ(reader_->Value(5), L"Easter");
  EXPECT_EQ(reader_->Role(5), ROLE_SYSTEM_CELL);
  EXPECT_EQ(reader_->Value(11), L"Sunday");
}

TEST_F(GridAccessibilityTest, FindsThePartWhereItIs) {
  for (const LONG part : {1L, 2L, 4L, 5L, 11L}) EXPECT_EQ(reader_->PartInTheMiddleOf(part), part);
}

TEST_F(GridAccessibilityTest, TellsWhatIsCurrentAndSelected) {
  grid_->SetFocus();
  contract::Settle();
  const Listener focus(EVENT_OBJECT_FOCUS);
  grid_->SetCurrentRow(2);
  EXPECT_THAT(Listener::Parts(), ElementsAre(6));
  EXPECT_EQ(reader_->Focus(), 6);
  EXPECT_NE(reader_->State(6) & STATE_SYSTEM_FOCUSED, 0);
  EXPECT_NE(reader_->State(6) & STATE_SYSTEM_SELECTED, 0);
  EXPECT_EQ(reader_->State(3) & (STATE_SYSTEM_FOCUSED | STATE_SYSTEM_SELECTED), 0);
  EXPECT_THAT(reader_->Selection(), ElementsAre(6));
}

TEST_F(GridAccessibilityTest, TellsAllRowsThatAreSelected) {
  grid_->SetMultiSelect(true);
  grid_->SetCurrentRow(1);
  grid_->SetFocus();
  contract::PressKey(VK_DOWN, {VK_SHIFT});
  EXPECT_THAT(reader_->Selection(), ElementsAre(3, 6));
}

TEST_F(GridAccessibilityTest, LetsAnAssistiveProgramChooseARow) {
  EXPECT_EQ((*reader_)->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Number(9)), S_OK);
  EXPECT_EQ(grid_->CurrentRow(), 3);
}

TEST_F(GridAccessibilityTest, ReadsGroupsWithTheirState) {
  grid_->SetGroupByBoxVisible(true);
  grid_->GroupKeys().Add(1, platform::kSortAscending, 0);
  grid_->Refresh(false);
  EXPECT_EQ(reader_->Name(1), L"Group by: Type");
  EXPECT_EQ(reader_->Description(1), L"sorted ascending");
  EXPECT_EQ(reader_->Name(4), L"Type: Holiday (2)");
  EXPECT_EQ(reader_->Role(4), ROLE_SYSTEM_OUTLINEITEM);
  EXPECT_NE(reader_->State(4) & STATE_SYSTEM_EXPANDED, 0);
  grid_->CollapseAllGroups();
  EXPECT_NE(reader_->State(4) & STATE_SYSTEM_COLLAPSED, 0);
}

TEST_F(GridAccessibilityTest, SaysThatAWindowIsGone) {
  form_.reset();
  contract::Settle();
  LONG count = 0;
  EXPECT_TRUE(FAILED((*reader_)->get_accChildCount(&count)));
  BSTR name = nullptr;
  EXPECT_TRUE(FAILED((*reader_)->get_accName(Number(1), &name)));
}

TEST_F(GridAccessibilityTest, RefusesPartsThatAreNot) {
  BSTR name = nullptr;
  EXPECT_EQ((*reader_)->get_accName(Number(12), &name), E_INVALIDARG);
  EXPECT_EQ((*reader_)->get_accName(Number(-1), &name), E_INVALIDARG);
}

// Tables

class TableAccessibilityTest : public AccessibilityTest {
 protected:
  TableAccessibilityTest() {
    Show(contract::ContractTables());
    for (const char* name : {"tblRows", "tblCells"}) {
      auto& table = The<Win32Table>(name);
      table.SetColumns({{"day", "Day"}, {"name", "Name"}});
      table.SetRows(
          {{.key = "a", .cells = {{.text = "1 May"}, {.text = "", .mark = platform::CellMark::kMissing}}},
           {.key = "b",
            .cells = {{.text = "2 May"}, {.text = "Late", .description = "It comes late."}},
            .checked = true}});
    }
  }
};

TEST_F(TableAccessibilityTest, ReadsMarksDescriptionsAndChecks) {
  const Reader reader(The<Win32Table>("tblRows").Handle());
  EXPECT_EQ(reader.Count(), 2 + 2 * 3);
  EXPECT_EQ(reader.Name(3), L"Day: 1 May, Name: Missing");
  EXPECT_EQ(reader.Value(5), L"Missing");
  EXPECT_EQ(reader.Description(6), L"It comes late.");
  EXPECT_NE(reader.State(6) & STATE_SYSTEM_CHECKED, 0);
  EXPECT_EQ(reader.State(3) & STATE_SYSTEM_CHECKED, 0);
}

TEST_F(TableAccessibilityTest, TellsTheRowOrTheCellThatIsCurrent) {
  auto& rows = The<Win32Table>("tblRows");
  rows.SetFocus();
  EXPECT_EQ(Reader(rows.Handle()).Focus(), 3);
  auto& cells = The<Win32Table>("tblCells");
  cells.SetFocus();
  cells.SetCurrentColumn("name");
  EXPECT_EQ(Reader(cells.Handle()).Focus(), 5);
}

TEST_F(TableAccessibilityTest, SaysWhyItIsEmpty) {
  auto& table = The<Win32Table>("tblRows");
  table.SetEmptyText("Nothing to do");
  const Reader reader(table.Handle());
  EXPECT_EQ(reader.Description(CHILDID_SELF), L"");
  table.SetRows({});
  EXPECT_EQ(reader.Description(CHILDID_SELF), L"Nothing to do");
}

// Years

TEST_F(AccessibilityTest, ReadsTheDaysOfAYear) {
  Show(contract::ContractForm());
  auto& view = The<Win32YearView>("yvYear");
  platform::YearContent content;
  content.year = 2028;
  auto& calendar = content.calendars.emplace_back();
  calendar.key = calendar.caption = "EUR";
  calendar.ordinary = "working day";
  calendar.days = {{105, {platform::DayTint::kRed, platform::DayShape::kSquare, "C"}, "Good Friday, closed"}};
  content.legend = {{{platform::DayTint::kRed, platform::DayShape::kSquare, "C"}, "Celebration"}};
  view.SetContent(content);
  view.SetFocus();
  contract::Settle();
  const Reader reader(view.Handle());
  EXPECT_EQ(reader.Count(), 366);
  EXPECT_EQ(reader.Description(CHILDID_SELF), L"C: Celebration");
  EXPECT_EQ(reader.Role(105), ROLE_SYSTEM_CELL);
  const std::wstring name = reader.Name(105);
  EXPECT_NE(name.find(L", Good Friday, closed"), std::wstring::npos);
  const Listener focus(EVENT_OBJECT_FOCUS);
  view.SetCurrent({"EUR", 105});
  EXPECT_THAT(Listener::Parts(), ElementsAre(105));
  EXPECT_EQ(reader.Focus(), 105);
  EXPECT_THAT(reader.Selection(), ElementsAre(105));
  EXPECT_EQ(reader.PartInTheMiddleOf(105), 105);
}

}  // namespace
}  // namespace ferrowind::win32
