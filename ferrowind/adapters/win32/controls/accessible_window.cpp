#include "ferrowind/adapters/win32/controls/accessible_window.h"

#include <functional>
#include <optional>
#include <utility>

#include <objbase.h>
#include <oleacc.h>

#include "ferrowind/adapters/win32/base/run_guarded.h"
#include "ferrowind/adapters/windows/com_object.h"
#include "ferrowind/adapters/windows/com_pointer.h"
#include "ferrowind/adapters/windows/counted_object.h"

namespace ferrowind::win32 {
namespace {

using windows::ComPointer;

/// Goes through the numbers of parts.
class PartNumbers final : public windows::ComObject<windows::CountedObject, IEnumVARIANT> {
 public:
  explicit PartNumbers(std::vector<LONG> numbers) : numbers_(std::move(numbers)) {}

  HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* numbers, ULONG* fetched) override {
    ULONG given = 0;
    for (; given < count && place_ < numbers_.size(); ++given, ++place_) {
      V_VT(&numbers[given]) = VT_I4;
      V_I4(&numbers[given]) = numbers_[place_];
    }
    if (fetched != nullptr) *fetched = given;
    return given == count ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
    const bool has_all = count <= numbers_.size() - place_;
    place_ = has_all ? place_ + count : numbers_.size();
    return has_all ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Reset() override {
    place_ = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** other) override {
    if (other == nullptr) return E_POINTER;
    *other = nullptr;
    RunGuarded("accessible parts", [&] {
      auto* copy = new PartNumbers(numbers_);
      copy->place_ = place_;
      *other = copy;
    });
    return *other != nullptr ? S_OK : E_OUTOFMEMORY;
  }

 private:
  std::vector<LONG> numbers_;
  std::size_t place_ = 0;
};

HRESULT GiveText(const std::wstring& text, BSTR* given) {
  if (text.empty()) return S_FALSE;
  *given = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  return *given != nullptr ? S_OK : E_OUTOFMEMORY;
}

HRESULT GiveNumber(LONG number, VARIANT* given) {
  V_VT(given) = VT_I4;
  V_I4(given) = number;
  return S_OK;
}

/// The object that assistive programs hold. The window itself is told of by the platform, its parts by their
/// numbers.
class AccessibleObject final : public windows::ComObject<windows::CountedObject, IAccessible> {
 public:
  explicit AccessibleObject(std::shared_ptr<const AccessibleWindow::Link> link) : link_(std::move(link)) {
    CreateStdAccessibleObject(link_->window, OBJID_CLIENT, __uuidof(IAccessible), standard_.ReceiveAny());
  }

  // No program asks for these: the interface is called by its slots.
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*info*/, LCID /*locale*/, ITypeInfo** /*given*/) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*iid*/, LPOLESTR* /*names*/, UINT /*count*/,
                                          LCID /*locale*/, DISPID* /*ids*/) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID /*member*/, REFIID /*iid*/, LCID /*locale*/, WORD /*flags*/,
                                   DISPPARAMS* /*parameters*/, VARIANT* /*result*/, EXCEPINFO* /*exception*/,
                                   UINT* /*argument*/) override {
    return E_NOTIMPL;
  }

  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
    return standard_ ? standard_->get_accParent(parent) : E_FAIL;
  }
  HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override {
    return Asked(count, [&](AccessibleParts& parts) {
      *count = parts.PartCount();
      return S_OK;
    });
  }
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT part, IDispatch** child) override {
    if (child == nullptr) return E_POINTER;
    *child = nullptr;
    return AskedOf(part, child, [](AccessibleParts&, LONG) { return S_FALSE; });
  }
  HRESULT STDMETHODCALLTYPE get_accName(VARIANT part, BSTR* name) override {
    return AskedOf(part, name, [&](AccessibleParts& parts, LONG number) {
      return number != 0 ? GiveText(parts.PartAt(number).name, name) : GiveText(WindowName(), name);
    });
  }
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT part, BSTR* value) override {
    return AskedOf(part, value, [&](AccessibleParts& parts, LONG number) {
      return number != 0 ? GiveText(parts.PartAt(number).value, value) : S_FALSE;
    });
  }
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT part, BSTR* description) override {
    return AskedOf(part, description, [&](AccessibleParts& parts, LONG number) {
      return GiveText(number != 0 ? parts.PartAt(number).description : parts.WindowDescription(),
                      description);
    });
  }
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT part, VARIANT* role) override {
    return AskedOf(part, role, [&](AccessibleParts& parts, LONG number) {
      return GiveNumber(number != 0 ? parts.PartAt(number).role : parts.WindowRole(), role);
    });
  }
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT part, VARIANT* state) override {
    return AskedOf(part, state, [&](AccessibleParts& parts, LONG number) {
      if (number == 0) return standard_ ? standard_->get_accState(part, state) : E_FAIL;
      LONG states = parts.PartAt(number).state;
      if (HasFocus() && parts.CurrentPart() == number) states |= STATE_SYSTEM_FOCUSED;
      if (!IsInSight(parts.PartAt(number).area)) states |= STATE_SYSTEM_OFFSCREEN;
      return GiveNumber(states, state);
    });
  }
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT /*part*/, BSTR* /*help*/) override { return S_FALSE; }
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* /*file*/, VARIANT /*part*/, LONG* /*topic*/) override {
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT /*part*/, BSTR* /*shortcut*/) override {
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* part) override {
    return Asked(part, [&](AccessibleParts& parts) {
      V_VT(part) = VT_EMPTY;
      return HasFocus() ? GiveNumber(parts.CurrentPart(), part) : S_FALSE;
    });
  }
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* selected) override {
    return Asked(selected, [&](AccessibleParts& parts) {
      V_VT(selected) = VT_EMPTY;
      std::vector<LONG> numbers = parts.SelectedParts();
      if (numbers.empty()) return S_FALSE;
      if (numbers.size() == 1) return GiveNumber(numbers.front(), selected);
      V_VT(selected) = VT_UNKNOWN;
      V_UNKNOWN(selected) = new PartNumbers(std::move(numbers));
      return S_OK;
    });
  }
  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT /*part*/, BSTR* /*action*/) override {
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT part) override {
    return AskedOf(part, this, [&](AccessibleParts& parts, LONG number) {
      if ((flags & SELFLAG_TAKEFOCUS) != 0) SetFocus(link_->window);
      if (number != 0 && (flags & (SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)) != 0) parts.ChoosePart(number);
      return S_OK;
    });
  }
  HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                        VARIANT part) override {
    if (top == nullptr || width == nullptr || height == nullptr) return E_POINTER;
    return AskedOf(part, left, [&](AccessibleParts& parts, LONG number) {
      if (number == 0) return standard_ ? standard_->accLocation(left, top, width, height, part) : E_FAIL;
      RECT area = parts.PartAt(number).area;
      MapWindowPoints(link_->window, nullptr, reinterpret_cast<POINT*>(&area), 2);
      *left = area.left;
      *top = area.top;
      *width = area.right - area.left;
      *height = area.bottom - area.top;
      return S_OK;
    });
  }
  HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override {
    return AskedOf(start, end, [&](AccessibleParts& parts, LONG number) {
      V_VT(end) = VT_EMPTY;
      const auto next = NextOf(parts, direction, number);
      if (!next) return number == 0 && standard_ ? standard_->accNavigate(direction, start, end) : S_FALSE;
      return GiveNumber(*next, end);
    });
  }
  HRESULT STDMETHODCALLTYPE accHitTest(LONG x, LONG y, VARIANT* part) override {
    return Asked(part, [&](AccessibleParts& parts) {
      V_VT(part) = VT_EMPTY;
      POINT client{x, y};
      ScreenToClient(link_->window, &client);
      RECT room{};
      GetClientRect(link_->window, &room);
      if (PtInRect(&room, client) == 0) return S_FALSE;
      return GiveNumber(parts.PartUnder(client), part);
    });
  }
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT /*part*/) override { return DISP_E_MEMBERNOTFOUND; }
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT /*part*/, BSTR /*name*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT /*part*/, BSTR /*value*/) override { return E_NOTIMPL; }

 private:
  /// Asks the parts, unless the window is gone. Nothing is thrown.
  HRESULT Asked(const void* result, const std::function<HRESULT(AccessibleParts&)>& ask) const {
    if (result == nullptr) return E_POINTER;
    if (link_->parts == nullptr) return CO_E_OBJNOTCONNECTED;
    HRESULT answer = E_FAIL;
    RunGuarded("accessible parts", [&] { answer = ask(*link_->parts); });
    return answer;
  }
  /// The same of one part, or of the window where that is what is asked about.
  HRESULT AskedOf(const VARIANT& part, const void* result,
                  const std::function<HRESULT(AccessibleParts&, LONG)>& ask) const {
    return Asked(result, [&](AccessibleParts& parts) {
      if (V_VT(&part) != VT_I4) return E_INVALIDARG;
      const LONG number = V_I4(&part);
      return number >= 0 && number <= parts.PartCount() ? ask(parts, number) : E_INVALIDARG;
    });
  }
  [[nodiscard]] bool HasFocus() const {
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    GetGUIThreadInfo(GetWindowThreadProcessId(link_->window, nullptr), &thread);
    return thread.hwndFocus == link_->window;
  }
  [[nodiscard]] bool IsInSight(const RECT& area) const {
    RECT room{};
    RECT seen{};
    GetClientRect(link_->window, &room);
    return IntersectRect(&seen, &room, &area) != 0;
  }
  [[nodiscard]] std::wstring WindowName() const {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(link_->window)), L'\0');
    GetWindowTextW(link_->window, text.data(), static_cast<int>(text.size()) + 1);
    return text;
  }
  static std::optional<LONG> NextOf(const AccessibleParts& parts, LONG direction, LONG number) {
    const LONG count = parts.PartCount();
    if (number == 0) {
      if (direction == NAVDIR_FIRSTCHILD && count > 0) return 1;
      if (direction == NAVDIR_LASTCHILD && count > 0) return count;
      return std::nullopt;
    }
    if (direction == NAVDIR_NEXT && number < count) return number + 1;
    if (direction == NAVDIR_PREVIOUS && number > 1) return number - 1;
    return std::nullopt;
  }

  std::shared_ptr<const AccessibleWindow::Link> link_;
  ComPointer<IAccessible> standard_;
};

}  // namespace

AccessibleWindow::AccessibleWindow(HWND window, AccessibleParts& parts)
    : link_(std::make_shared<Link>(Link{window, &parts})) {}

AccessibleWindow::~AccessibleWindow() { link_->parts = nullptr; }

LRESULT AccessibleWindow::Answer(WPARAM w_param) const {
  ComPointer<AccessibleObject> object;
  object.Attach(new AccessibleObject(link_));
  return LresultFromObject(__uuidof(IAccessible), w_param, object.Get());
}

void AccessibleWindow::TellCurrent() const {
  const LONG part = link_->parts->CurrentPart();
  if (GetFocus() == link_->window) NotifyWinEvent(EVENT_OBJECT_FOCUS, link_->window, OBJID_CLIENT, part);
}

void AccessibleWindow::TellSelection() const {
  const std::vector<LONG> selected = link_->parts->SelectedParts();
  const bool is_one = selected.size() == 1;
  NotifyWinEvent(is_one ? EVENT_OBJECT_SELECTION : EVENT_OBJECT_SELECTIONWITHIN, link_->window, OBJID_CLIENT,
                 is_one ? selected.front() : CHILDID_SELF);
}

void AccessibleWindow::TellContent() const {
  NotifyWinEvent(EVENT_OBJECT_REORDER, link_->window, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace ferrowind::win32
