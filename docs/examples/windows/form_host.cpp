// A host in C++ whose window the control is placed on, as a form's designer does it: activated in place, told
// the window's size each time it changes, and of 16 by 16 pixels whatever it is told. A click on the window
// shows the calendars.
//   form_host [run]    with `run` the form is not designed but runs, and the control is invisible

#include <cstdio>
#include <string_view>

#include <windows.h>
#include <comdef.h>
#include <olectl.h>

#include "ferrowind.h"

namespace {

_COM_SMARTPTR_TYPEDEF(_Calendar, __uuidof(_Calendar));
_COM_SMARTPTR_TYPEDEF(IOleObject, __uuidof(IOleObject));
_COM_SMARTPTR_TYPEDEF(IOleInPlaceObject, __uuidof(IOleInPlaceObject));
_COM_SMARTPTR_TYPEDEF(IPersistStreamInit, __uuidof(IPersistStreamInit));

void Check(HRESULT result) {
  if (FAILED(result)) throw _com_error(result);
}

/// The place on the window that the control is given. It lives as long as the program: its references are not
/// counted.
class Site final : public IOleClientSite, public IOleInPlaceSite, public IDispatch {
 public:
  Site(HWND window, bool is_running) : window_(window), is_running_(is_running) {}

  void Place() {
    Check(control_.CreateInstance(__uuidof(Calendar)));
    object_ = control_;
    Check(object_->SetClientSite(this));
    Check(IPersistStreamInitPtr(control_)->InitNew());
    Check(object_->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, this, 0, window_, nullptr));
    in_place_ = control_;
    Tell("placed");
  }
  void Resize() {
    if (!in_place_) return;
    const RECT client = ClientArea();
    Check(in_place_->SetObjectRects(&client, &client));
    Tell("resized");
  }
  void ShowCalendars() { Check(control_->Show()); }
  void Remove() {
    Check(object_->Close(OLECLOSE_NOSAVE));
    Check(object_->SetClientSite(nullptr));
    in_place_ = nullptr;
    object_ = nullptr;
    control_ = nullptr;
    std::printf("removed\n");
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    *object = nullptr;
    if (iid == __uuidof(IUnknown) || iid == __uuidof(IOleClientSite))
      *object = static_cast<IOleClientSite*>(this);
    if (iid == __uuidof(IOleWindow) || iid == __uuidof(IOleInPlaceSite))
      *object = static_cast<IOleInPlaceSite*>(this);
    if (iid == __uuidof(IDispatch)) *object = static_cast<IDispatch*>(this);
    return *object != nullptr ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }

  HRESULT STDMETHODCALLTYPE SaveObject() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
  HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override {
    *window = window_;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnUIActivate() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                             LPRECT position, LPRECT clip, LPOLEINPLACEFRAMEINFO) override {
    *frame = nullptr;
    *document = nullptr;
    *position = ClientArea();
    *clip = *position;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return E_NOTIMPL; }
  /// The control's answer to a size that it does not have: it is given the one that it asks for.
  HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT position) override {
    const RECT client = ClientArea();
    return in_place_ ? in_place_->SetObjectRects(position, &client) : S_OK;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                   EXCEPINFO*, UINT*) override {
    if (member != DISPID_AMBIENT_USERMODE) return DISP_E_MEMBERNOTFOUND;
    *result = _variant_t(is_running_).Detach();
    return S_OK;
  }

 private:
  [[nodiscard]] RECT ClientArea() const {
    RECT area{};
    GetClientRect(window_, &area);
    return area;
  }
  void Tell(const char* what) const {
    HWND window = nullptr;
    Check(in_place_->GetWindow(&window));
    RECT own{};
    RECT form{};
    GetWindowRect(window, &own);
    GetWindowRect(window_, &form);
    std::printf("%s in a window of %ld by %ld: %ld by %ld pixels, %s\n", what, form.right - form.left,
                form.bottom - form.top, own.right - own.left, own.bottom - own.top,
                IsWindowVisible(window) != FALSE ? "visible" : "invisible");
  }

  HWND window_;
  bool is_running_;
  _CalendarPtr control_;
  IOleObjectPtr object_;
  IOleInPlaceObjectPtr in_place_;
};

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM w_param, LPARAM l_param) {
  auto* const site = reinterpret_cast<Site*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  try {
    if (message == WM_SIZE && site != nullptr) site->Resize();
    if (message == WM_LBUTTONUP && site != nullptr) site->ShowCalendars();
    if (message == WM_DESTROY && site != nullptr) {
      site->Remove();
      PostQuitMessage(0);
    }
  } catch (const _com_error& error) {
    std::printf("0x%08lX\n", static_cast<unsigned long>(error.Error()));
    PostQuitMessage(1);
  }
  return DefWindowProcW(window, message, w_param, l_param);
}

int Run(bool is_running) {
  WNDCLASSW form{};
  form.lpfnWndProc = &Procedure;
  form.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  form.hCursor = LoadCursor(nullptr, IDC_ARROW);
  form.lpszClassName = L"FormHost";
  RegisterClassW(&form);
  const HWND window =
      CreateWindowW(form.lpszClassName, L"A form", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CW_USEDEFAULT,
                    CW_USEDEFAULT, 400, 300, nullptr, nullptr, nullptr, nullptr);
  Site site(window, is_running);
  site.Place();
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&site));
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return static_cast<int>(message.wParam);
}

}  // namespace

int main(int argc, char** argv) {
  // What it tells is seen when it happens, wherever it goes.
  std::setvbuf(stdout, nullptr, _IONBF, 0);
  Check(OleInitialize(nullptr));
  int status = 1;
  try {
    status = Run(argc > 1 && std::string_view(argv[1]) == "run");
  } catch (const _com_error& error) {
    std::printf("0x%08lX\n", static_cast<unsigned long>(error.Error()));
  }
  OleUninitialize();
  return status;
}
