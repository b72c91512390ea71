#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <windows.h>
#include <gtest/gtest.h>
#include <ocidl.h>
#include <olectl.h>
#include <oleidl.h>

#include "ferrowind/adapters/automation/com_object.h"
#include "ferrowind/adapters/automation/com_pointer.h"

#include "generated/ferrowind.h"

namespace ferrowind::testing {

/// A form of a host with a place for a control, which writes down what the control tells it.
class FormContainer : public automation::ComObject<IOleClientSite, IOleInPlaceSite, IDispatch> {
 public:
  FormContainer() { MakeWindow(); }

  /// The names of what was called, in order.
  std::vector<std::string> told;
  /// Where the control is to be, larger than it is.
  RECT position{10, 20, 110, 70};
  RECT clip{0, 0, 300, 200};
  /// Nothing for a container that does not tell.
  std::optional<bool> is_user_mode;
  /// What is run, and answered, while the container is told of that name.
  std::string reaction_to;
  std::function<HRESULT()> reaction;
  /// What the control made of `position`.
  RECT corrected{};

  [[nodiscard]] HWND Window() const { return window_; }
  void MakeWindow() {
    window_ = CreateWindowExW(0, L"STATIC", L"Form", WS_POPUP | WS_VISIBLE, 100, 100, 300, 200, nullptr,
                              nullptr, nullptr, nullptr);
    EXPECT_NE(window_, nullptr);
  }
  void CloseWindow() { EXPECT_TRUE(DestroyWindow(std::exchange(window_, nullptr))); }

  HRESULT STDMETHODCALLTYPE SaveObject() override { return Told("SaveObject"); }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
  HRESULT STDMETHODCALLTYPE ShowObject() override { return Told("ShowObject"); }
  HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return Told("OnShowWindow"); }
  HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override {
    *window = window_;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override { return Told("CanInPlaceActivate"); }
  HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return Told("OnInPlaceActivate"); }
  HRESULT STDMETHODCALLTYPE OnUIActivate() override { return Told("OnUIActivate"); }
  HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                             LPRECT place, LPRECT visible,
                                             LPOLEINPLACEFRAMEINFO information) override {
    *frame = nullptr;
    *document = nullptr;
    *place = position;
    *visible = clip;
    information->fMDIApp = FALSE;
    return Told("GetWindowContext");
  }
  HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override { return Told("OnUIDeactivate"); }
  HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return Told("OnInPlaceDeactivate"); }
  HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT place) override {
    corrected = *place;
    return Told("OnPosRectChange");
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                   EXCEPINFO*, UINT*) override {
    if (member != DISPID_AMBIENT_USERMODE || !is_user_mode) return DISP_E_MEMBERNOTFOUND;
    V_VT(result) = VT_BOOL;
    V_BOOL(result) = *is_user_mode ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
  }

 protected:
  ~FormContainer() override {
    if (window_ != nullptr) DestroyWindow(window_);
  }

 private:
  HRESULT Told(const std::string& what) {
    told.push_back(what);
    return what == reaction_to ? reaction() : S_OK;
  }

  HWND window_ = nullptr;
};

[[nodiscard]] inline automation::ComPointer<FormContainer> NewFormContainer() {
  automation::ComPointer<FormContainer> container;
  container.Attach(new FormContainer);
  return container;
}

/// Another interface of an object, which must have it.
template <typename Interface, typename Object>
[[nodiscard]] automation::ComPointer<Interface> As(const automation::ComPointer<Object>& object) {
  automation::ComPointer<Interface> other;
  EXPECT_EQ(object.As(other), S_OK);
  return other;
}

}  // namespace ferrowind::testing
