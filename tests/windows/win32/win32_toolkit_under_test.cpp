#include <array>
#include <filesystem>
#include <fstream>
#include <utility>

#include <gtest/gtest.h>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/adapters/win32/controls/date_picker.h"
#include "ferrowind/adapters/win32/controls/shortcut.h"
#include "ferrowind/adapters/win32/controls/tool_bar.h"
#include "ferrowind/adapters/win32/controls/tree.h"
#include "ferrowind/adapters/win32/controls/window_text.h"
#include "ferrowind/adapters/win32/dates/date_words.h"
#include "ferrowind/adapters/win32/forms/win32_form.h"
#include "ferrowind/adapters/win32/forms/win32_toolkit.h"
#include "ferrowind/adapters/win32/grid/grid.h"
#include "ferrowind/adapters/win32/grid/grid_menu.h"
#include "ferrowind/adapters/win32/table/table.h"
#include "ferrowind/adapters/win32/year/year_texts.h"
#include "ferrowind/adapters/win32/year/year_view.h"

#include "tests/contract/toolkit/toolkit_under_test.h"
#include "tests/windows/win32/contract_layouts.h"
#include "tests/windows/win32/file_dialog.h"
#include "tests/windows/win32/input.h"

namespace ferrowind::contract {
namespace {

constexpr std::int32_t kPollMilliseconds = 10;
constexpr int kPolls = 1500;

/// The adapter's object behind a port.
template <typename Kind, typename Port>
Kind& As(Port& port) {
  return dynamic_cast<Kind&>(port);
}

HWND WindowOf(platform::Control& control) { return As<win32::ControlWindow>(control).Handle(); }
HWND WindowOf(platform::Form& form) { return As<win32::Win32Form>(form).Window().Handle(); }

/// Runs `action` out of the message loop as soon as `is_ready`; gives up, with `give_up`, when that takes too
/// long.
class WhenReady {
 public:
  WhenReady(platform::Toolkit& toolkit, std::function<bool()> is_ready, std::function<void()> action,
            std::function<void()> give_up)
      : toolkit_(toolkit),
        is_ready_(std::move(is_ready)),
        action_(std::move(action)),
        give_up_(std::move(give_up)) {
    Poll();
  }

 private:
  void Poll() {
    poll_ = toolkit_.After(kPollMilliseconds, [this] {
      if (is_ready_()) {
        action_();
      } else if (++polls_ > kPolls) {
        ADD_FAILURE() << "What the operator waited for did not appear";
        give_up_();
      } else {
        Poll();
      }
    });
  }

  platform::Toolkit& toolkit_;
  std::function<bool()> is_ready_;
  std::function<void()> action_;
  std::function<void()> give_up_;
  platform::Subscription poll_;
  int polls_ = 0;
};

class Win32ToolkitUnderTest : public ToolkitUnderTest {
 public:
  Win32ToolkitUnderTest() {
    // Away from where the windows open, so that nothing of them lies under it at once.
    MoveMouse({GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1});
  }

  [[nodiscard]] platform::Toolkit& Toolkit() override { return toolkit_; }
  [[nodiscard]] std::string AnimatedImage() override { return FERROWIND_ANIMATION; }

  void ShowModal(platform::Form& form, std::function<void()> operator_script) override {
    const WhenReady ready(
        toolkit_, [&] { return form.IsShown(); }, std::move(operator_script), [&] { form.Hide(); });
    form.ShowModal();
  }
  void CloseByFrame(platform::Form& form) override {
    SendMessageW(WindowOf(form), WM_SYSCOMMAND, SC_CLOSE, 0);
    HandleMessages();
  }
  void ResizeByFrame(platform::Form& form, float width, float height) override {
    const float pixels = 1 / toolkit_.TwipsPerPixelX();
    SetWindowPos(WindowOf(form), nullptr, 0, 0, static_cast<int>(width * pixels),
                 static_cast<int>(height * pixels), SWP_NOMOVE | SWP_NOZORDER);
    HandleMessages();
  }
  void Minimise(platform::Form& form) override {
    SendMessageW(WindowOf(form), WM_SYSCOMMAND, SC_MINIMIZE, 0);
    HandleMessages();
  }
  [[nodiscard]] bool IsMinimised(platform::Form& form) override { return IsIconic(WindowOf(form)) != 0; }
  void PressEnter(platform::Form& form) override {
    Activate(form);
    PressKey(VK_RETURN);
  }
  void PressEscape(platform::Form& form) override {
    Activate(form);
    PressKey(VK_ESCAPE);
  }

  void Wait(std::int32_t milliseconds) override {
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
    for (ULONGLONG now = GetTickCount64(); now < end; now = GetTickCount64()) {
      MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now), QS_ALLINPUT);
      HandleMessages();
    }
  }

  [[nodiscard]] std::optional<std::string> AskForFile(const std::optional<std::string>& name) override {
    return WithoutFolder(Ask(name, [&] {
      return toolkit_.ChooseFileToSave("Save the year", "EUR 2027",
                                       {{"PDF document", "pdf"}, {"PNG picture", "png"}});
    }));
  }
  [[nodiscard]] std::optional<std::string> AskForFileToRead(const std::optional<std::string>& name) override {
    return WithoutFolder(Ask(name, [&] {
      return toolkit_.ChooseFileToOpen("Open a list", "Lists of days", {"ics", "csv"});
    }));
  }

  void Click(platform::Button& button) override {
    // Another window may lie above it.
    if (IsWindowEnabled(WindowOf(button)) != 0) SetForegroundWindow(GetAncestor(WindowOf(button), GA_ROOT));
    HandleMessages();
    ClickMouse(MiddleOf(WindowOf(button)));
  }
  void TypeText(platform::TextBox& text_box, const std::string& text) override {
    const HWND box = WindowOf(text_box);
    if (GetFocus() != box) {
      text_box.SetFocus();
      HandleMessages();
      DWORD first = 0;
      DWORD end = 0;
      SendMessageW(box, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
      if (first == end) PressKey(VK_END);
    }
    DWORD first = 0;
    DWORD end = 0;
    SendMessageW(box, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
    if (first == end) PressKey(VK_END);
    TypeKeys(win32::ToWide(text));
  }
  void PressTextKeys(platform::Form& form, const std::string& text) override {
    Activate(form);
    TypeKeys(win32::ToWide(text));
  }
  void Choose(platform::DropDownList& list, const std::string& item) override {
    list.SetFocus();
    HandleMessages();
    TypeKeys(win32::ToWide(item).substr(0, 1));
  }
  void PickDate(platform::DatePicker& picker, const platform::Date& date) override {
    Retype(picker, win32::FormatDate(date, L"d MMMM"));
  }
  void TypeNoDate(platform::DatePicker& picker) override { Retype(picker, L"31 Foo"); }
  [[nodiscard]] bool ShowsRefusal(platform::DatePicker& picker) override {
    return As<win32::Win32DatePicker>(picker).ShowsRefusal();
  }
  void StepUp(platform::UpDown& up_down) override { Step(up_down, 1); }
  void StepDown(platform::UpDown& up_down) override { Step(up_down, 3); }

  void ClickNode(platform::Tree& tree, const std::string& key) override {
    ClickMouse(MiddleOf(WindowOf(tree), NodeArea(tree, key)));
  }
  void ToggleNode(platform::Tree& tree, const std::string& key) override {
    const RECT text = NodeArea(tree, key);
    // The mark stands somewhere before the text.
    TVHITTESTINFO place{};
    place.pt = {text.left, (text.top + text.bottom) / 2};
    do {
      --place.pt.x;
      SendMessageW(WindowOf(tree), TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&place));
    } while ((place.flags & TVHT_ONITEMBUTTON) == 0 && place.pt.x > 0);
    const LONG middle = place.pt.x - (text.bottom - text.top) / 4;
    ClickMouse(MiddleOf(WindowOf(tree), {middle, text.top, middle, text.bottom}));
  }

  void ClickTool(platform::ToolBar& tool_bar, const std::string& id) override {
    ClickMouse(MiddleOf(WindowOf(tool_bar), ToolArea(tool_bar, id)));
  }
  void PressShortcut(platform::Form& form, const std::string& shortcut) override {
    Activate(form);
    const auto press = win32::ReadShortcut(shortcut);
    ASSERT_TRUE(press);
    Held held;
    if (press->has_control) held.push_back(VK_CONTROL);
    if (press->has_shift) held.push_back(VK_SHIFT);
    if (press->has_alt) held.push_back(VK_MENU);
    PressKey(static_cast<WORD>(press->key), held);
  }
  void EnterTool(platform::ToolBar& tool_bar, const std::string& id) override {
    MoveMouse(MiddleOf(WindowOf(tool_bar), ToolArea(tool_bar, id)));
  }
  void LeaveTool(platform::ToolBar& tool_bar, const std::string& /*id*/) override {
    MoveMouse(MiddleOf(GetAncestor(WindowOf(tool_bar), GA_ROOT)));
    // The platform tells of it a moment later.
    Wait(kPollMilliseconds * 80);
  }
  void ShowPopupAndChoose(platform::ToolBar& tool_bar, const std::string& menu_id,
                          const std::string& tool_id) override {
    const int command = tool_id.empty() ? 0 : As<win32::Win32ToolBar>(tool_bar).CommandOf(tool_id);
    const WhenReady ready(
        toolkit_, [] { return OpenMenu() != nullptr; }, [&] { ChooseInMenu(static_cast<UINT>(command)); },
        [] { EndMenu(); });
    tool_bar.ShowPopupMenu(menu_id);
  }

  void ClickCell(platform::Table& table, const std::string& row, const std::string& column) override {
    ClickMouse(CellPlace(table, row, column));
  }
  void DoubleClickCell(platform::Table& table, const std::string& row, const std::string& column) override {
    DoubleClickMouse(CellPlace(table, row, column));
  }
  void ExtendToTableRow(platform::Table& table, const std::string& row) override {
    const auto& shown = As<win32::Win32Table>(table);
    ClickMouse(CellPlace(table, row, shown.Content().Columns().back().key), false, {VK_SHIFT});
  }
  void ClickBox(platform::Table& table, const std::string& row) override {
    HandleMessages();
    const auto& shown = As<win32::Win32Table>(table);
    ClickMouse(MiddleOf(WindowOf(table), shown.Geometry().BoxArea(shown.Content().RowOf(row))));
  }
  void ClickTableHeader(platform::Table& table, const std::string& column) override {
    HandleMessages();
    const auto& shown = As<win32::Win32Table>(table);
    ClickMouse(MiddleOf(WindowOf(table), shown.Geometry().HeaderArea(shown.Content().ColumnOf(column))));
  }
  void PressSpace(platform::Table& table) override {
    table.SetFocus();
    PressKey(VK_SPACE);
  }
  void PressCopy(platform::Table& table) override {
    table.SetFocus();
    PressKey('C', {VK_CONTROL});
  }
  [[nodiscard]] std::string ClipboardText() override {
    OpenClipboard(nullptr);
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    std::wstring text;
    if (memory != nullptr) {
      text = static_cast<const wchar_t*>(GlobalLock(memory));
      GlobalUnlock(memory);
    }
    CloseClipboard();
    std::erase(text, L'\r');
    return win32::FromWide(text);
  }

  void ClickRow(platform::Grid& grid, std::int32_t row, std::int32_t button) override {
    ClickMouse(RowPlace(grid, row), button == platform::kRightButton);
  }
  void ToggleRow(platform::Grid& grid, std::int32_t row) override {
    ClickMouse(RowPlace(grid, row), false, {VK_CONTROL});
  }
  void ExtendToRow(platform::Grid& grid, std::int32_t row) override {
    ClickMouse(RowPlace(grid, row), false, {VK_SHIFT});
  }
  void ToggleGroup(platform::Grid& grid, std::int32_t row) override { DoubleClickMouse(RowPlace(grid, row)); }
  void ClickHeader(platform::Grid& grid, const std::string& column_key) override {
    ClickMouse(HeaderPlace(grid, column_key));
  }
  void DragHeaderToGroups(platform::Grid& grid, const std::string& column_key) override {
    const RECT box = As<win32::Win32Grid>(grid).Geometry().BoxArea();
    DragMouse(HeaderPlace(grid, column_key),
              MiddleOf(WindowOf(grid), {box.right - 20, box.top, box.right, box.bottom}));
  }
  void DragGroupAway(platform::Grid& grid, std::int32_t position) override {
    const auto& geometry = As<win32::Win32Grid>(grid).Geometry();
    DragMouse(MiddleOf(WindowOf(grid), geometry.ChipArea(position)),
              MiddleOf(WindowOf(grid), geometry.RowsArea()));
  }
  void ToggleGroupByBox(platform::Grid& grid) override {
    grid.SetFocus();
    Settle();
    const WhenReady ready(
        toolkit_, [] { return OpenMenu() != nullptr; },
        [] { ChooseInMenu(static_cast<UINT>(win32::HeaderCommand::kToggleBox)); }, [] { EndMenu(); });
    PressKey(VK_DOWN, {VK_MENU});
  }
  [[nodiscard]] std::string CellText(platform::Grid& grid, std::int32_t row,
                                     const std::string& column_key) override {
    const auto& content = As<win32::Win32Grid>(grid).Content();
    return win32::FromWide(content.Cells().ShownText(content.Columns().ByKey(column_key).Index(),
                                                     content.RecordInRow(Place(row)).value()));
  }
  [[nodiscard]] std::string GroupText(platform::Grid& grid, std::int32_t row) override {
    const auto& content = As<win32::Win32Grid>(grid).Content();
    return win32::FromWide(content.LabelOf(content.Rows().RowAt(Place(row)).group));
  }
  [[nodiscard]] RowLook LookOf(platform::Grid& grid, std::int32_t row) override {
    const auto& content = As<win32::Win32Grid>(grid).Content();
    const auto look = content.LookOf(content.RecordInRow(Place(row)).value());
    return {look.fore_color, look.is_bold, look.is_struck_through};
  }

  void ClickDay(platform::YearView& view, const platform::YearCell& cell, std::int32_t button) override {
    ClickMouse(DayPlace(view, cell), button == platform::kRightButton);
  }
  void ToggleDay(platform::YearView& view, const platform::YearCell& cell) override {
    ClickMouse(DayPlace(view, cell), false, {VK_CONTROL});
  }
  void ExtendToDay(platform::YearView& view, const platform::YearCell& cell) override {
    ClickMouse(DayPlace(view, cell), false, {VK_SHIFT});
  }
  void DragDays(platform::YearView& view, const platform::YearCell& from,
                const platform::YearCell& to) override {
    // Both in sight, where the one does not scroll the other.
    static_cast<void>(DayPlace(view, to));
    const POINT start = DayPlace(view, from);
    const auto& shown = As<win32::Win32YearView>(view);
    DragMouse(start, MiddleOf(WindowOf(view), shown.AreaOf(shown.Days().PlaceOf(to).value())));
  }
  void PressDayKey(platform::YearView& view, DayKey key, bool extends) override {
    constexpr std::array kKeys = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_HOME, VK_END, VK_PRIOR, VK_NEXT};
    view.SetFocus();
    Settle();
    PressKey(static_cast<WORD>(kKeys.at(static_cast<std::size_t>(key))), extends ? Held{VK_SHIFT} : Held{});
  }
  void PressEnterOnDay(platform::YearView& view) override {
    view.SetFocus();
    PressKey(VK_RETURN);
  }
  void PressMenuKeyOnDay(platform::YearView& view) override {
    view.SetFocus();
    PressKey(VK_APPS);
  }
  [[nodiscard]] std::string DayText(platform::YearView& view, const platform::YearCell& cell) override {
    const auto& days = As<win32::Win32YearView>(view).Days();
    return win32::FromWide(win32::TextOfDay(days, days.PlaceOf(cell).value()));
  }

 private:
  static void Activate(platform::Form& form) {
    SetForegroundWindow(WindowOf(form));
    Settle();
  }
  static std::uint32_t Place(std::int32_t row) { return static_cast<std::uint32_t>(row) - 1; }
  static POINT RowPlace(platform::Grid& grid, std::int32_t row) {
    HandleMessages();
    return MiddleOf(WindowOf(grid), As<win32::Win32Grid>(grid).Geometry().RowArea(Place(row)));
  }
  static POINT HeaderPlace(platform::Grid& grid, const std::string& column_key) {
    HandleMessages();
    return MiddleOf(WindowOf(grid),
                    As<win32::Win32Grid>(grid).Geometry().HeaderArea(grid.ColumnByKey(column_key).Index()));
  }
  static POINT CellPlace(platform::Table& table, const std::string& row, const std::string& column) {
    HandleMessages();
    const auto& shown = As<win32::Win32Table>(table);
    return MiddleOf(WindowOf(table),
                    shown.Geometry().CellArea(shown.Content().RowOf(row), shown.Content().ColumnOf(column)));
  }
  static POINT DayPlace(platform::YearView& view, const platform::YearCell& cell) {
    HandleMessages();
    auto& shown = As<win32::Win32YearView>(view);
    const auto place = shown.Days().PlaceOf(cell).value();
    shown.BringIntoSight(place);
    return MiddleOf(WindowOf(view), shown.AreaOf(place));
  }
  static void Retype(platform::DatePicker& picker, const std::wstring& text) {
    picker.SetFocus();
    HandleMessages();
    SendMessageW(WindowOf(picker), EM_SETSEL, 0, -1);
    TypeKeys(text);
  }
  /// Clicks at so many quarters of the height.
  static void Step(platform::UpDown& up_down, int quarters) {
    RECT area{};
    GetClientRect(WindowOf(up_down), &area);
    const LONG y = area.bottom * quarters / 4;
    ClickMouse(MiddleOf(WindowOf(up_down), {area.left, y, area.right, y}));
  }
  static RECT NodeArea(platform::Tree& tree, const std::string& key) {
    HandleMessages();
    RECT area{};
    *reinterpret_cast<HTREEITEM*>(&area) = As<win32::Win32Tree>(tree).ItemOf(key);
    SendMessageW(WindowOf(tree), TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&area));
    return area;
  }
  static RECT ToolArea(platform::ToolBar& tool_bar, const std::string& id) {
    HandleMessages();
    RECT area{};
    SendMessageW(WindowOf(tool_bar), TB_GETRECT,
                 static_cast<WPARAM>(As<win32::Win32ToolBar>(tool_bar).CommandOf(id)),
                 reinterpret_cast<LPARAM>(&area));
    return area;
  }
  static HWND OpenMenu() {
    const HWND menu = FindWindowW(L"#32768", nullptr);
    return menu != nullptr && IsWindowVisible(menu) != 0 ? menu : nullptr;
  }
  static void ChooseInMenu(UINT command) {
    constexpr UINT kAskForMenu = 0x01E1;
    const auto menu = reinterpret_cast<HMENU>(SendMessageW(OpenMenu(), kAskForMenu, 0, 0));
    for (int place = 0; command != 0 && place < GetMenuItemCount(menu); ++place) {
      if (GetMenuItemID(menu, place) != command) continue;
      RECT item{};
      GetMenuItemRect(nullptr, menu, static_cast<UINT>(place), &item);
      SendClickToMenu({(item.left + item.right) / 2, (item.top + item.bottom) / 2});
      return;
    }
    EndMenu();
  }
  /// The menu's own message loop is to handle it.
  static void SendClickToMenu(POINT screen) {
    SetCursorPos(screen.x, screen.y);
    INPUT inputs[2]{};
    for (INPUT& input : inputs) input.type = INPUT_MOUSE;
    inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(2, inputs, sizeof(INPUT));
  }

  /// Answers a question for a file, in a folder where "days.ics" is.
  std::optional<std::string> Ask(const std::optional<std::string>& name,
                                 const std::function<std::optional<std::string>()>& ask) {
    const auto turn_down = [&] { PostMessageW(FrontDialog(), WM_COMMAND, IDCANCEL, 0); };
    bool is_answered = false;
    std::vector<platform::Subscription> looks;
    // Once answered it goes, or tells why it does not take the answer.
    std::function<void()> turn_down_what_is_left = [&] {
      if (!is_answered && FrontDialog() != nullptr) turn_down();
      if (!is_answered) looks.push_back(toolkit_.After(kPollMilliseconds * 50, turn_down_what_is_left));
    };
    const WhenReady ready(
        toolkit_, [&] { return FrontDialog() != nullptr; },
        [&] {
          if (!name) return turn_down();
          TypeFileName(FrontDialog(), (folder_ / *name).wstring());
          PostMessageW(FrontDialog(), WM_COMMAND, IDOK, 0);
          looks.push_back(toolkit_.After(kPollMilliseconds * 50, turn_down_what_is_left));
        },
        turn_down);
    auto answer = ask();
    is_answered = true;
    return answer;
  }
  static std::optional<std::string> WithoutFolder(const std::optional<std::string>& path) {
    if (!path) return std::nullopt;
    return win32::FromWide(std::filesystem::path(win32::ToWide(*path)).filename().wstring());
  }

  /// A folder with the file "days.ics".
  [[nodiscard]] static std::filesystem::path MakeFolder() {
    auto folder = std::filesystem::temp_directory_path() / "ferrowind_toolkit_contract";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "days.ics") << "BEGIN:VCALENDAR";
    return folder;
  }

  std::filesystem::path folder_ = MakeFolder();
  win32::Win32Toolkit toolkit_{ContractLayouts()};
};

}  // namespace

std::unique_ptr<ToolkitUnderTest> MakeToolkitUnderTest() { return std::make_unique<Win32ToolkitUnderTest>(); }

}  // namespace ferrowind::contract
