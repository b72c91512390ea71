// The control on a form of a host: where it is, what is seen of it, and containers that do as they like.

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include <windows.h>
#include <commctrl.h>
#include <gtest/gtest.h>
#include <ocidl.h>
#include <ole2.h>
#include <olectl.h>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/embedding/control_size.h"
#include "ferrowind/adapters/automation/module.h"

#include "generated/ferrowind.h"
#include "tests/windows/automation/control_thread.h"
#include "tests/windows/automation/form_container.h"
#include "tests/windows/automation/late_call.h"

namespace ferrowind::testing {
namespace {

using automation::ComPointer;
using automation::kControlPixels;
using automation::Module;
using Told = std::vector<std::string>;

/// Hundredths of a millimetre of 16 pixels where an inch has 96.
constexpr LONG kExtent = 423;

/// A control on a form.
struct Placed {
  Placed() { EXPECT_EQ(object->SetClientSite(form.Get()), S_OK); }
  /// Of a form that is being designed, or runs.
  explicit Placed(bool is_user_mode) {
    form->is_user_mode = is_user_mode;
    EXPECT_EQ(object->SetClientSite(form.Get()), S_OK);
  }
  ~Placed() {
    EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(object->SetClientSite(nullptr), S_OK);
  }
  Placed(const Placed&) = delete;
  Placed& operator=(const Placed&) = delete;

  [[nodiscard]] HRESULT Do(LONG verb) const {
    return object->DoVerb(verb, nullptr, form.Get(), 0, form->Window(), &form->position);
  }
  /// Null while the control is not active.
  [[nodiscard]] HWND Window() const {
    HWND window = nullptr;
    const HRESULT result = in_place->GetWindow(&window);
    EXPECT_EQ(result, window == nullptr ? E_FAIL : S_OK);
    return window;
  }
  /// In the form.
  [[nodiscard]] RECT Place() const {
    RECT place{};
    EXPECT_TRUE(GetWindowRect(Window(), &place));
    MapWindowPoints(nullptr, form->Window(), reinterpret_cast<POINT*>(&place), 2);
    return place;
  }

  ComPointer<FormContainer> form = NewFormContainer();
  ComPointer<_Calendar> control = NewControl();
  ComPointer<IOleObject> object = As<IOleObject>(control);
  ComPointer<IOleInPlaceObject> in_place = As<IOleInPlaceObject>(control);
};

void ExpectOwnSizeAt(const RECT& place, LONG left, LONG top) {
  EXPECT_EQ(place.left, left);
  EXPECT_EQ(place.top, top);
  EXPECT_EQ(place.right, left + kControlPixels);
  EXPECT_EQ(place.bottom, top + kControlPixels);
}

/// The colours of what the control draws over white.
std::vector<COLORREF> Drawn(const ComPointer<_Calendar>& control) {
  const HDC screen = GetDC(nullptr);
  const HDC context = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, kControlPixels, kControlPixels);
  ReleaseDC(nullptr, screen);
  const HGDIOBJ before = SelectObject(context, bitmap);
  PatBlt(context, 0, 0, kControlPixels, kControlPixels, WHITENESS);
  const RECTL bounds{0, 0, kControlPixels, kControlPixels};
  EXPECT_EQ(As<IViewObject2>(control)->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, context, &bounds,
                                            nullptr, nullptr, 0),
            S_OK);
  std::vector<COLORREF> colours;
  for (int y = 0; y < kControlPixels; ++y) {
    for (int x = 0; x < kControlPixels; ++x) colours.push_back(GetPixel(context, x, y));
  }
  SelectObject(context, before);
  DeleteObject(bitmap);
  DeleteDC(context);
  return colours;
}

bool IsBlank(const std::vector<COLORREF>& colours) {
  return std::all_of(colours.begin(), colours.end(),
                     [](COLORREF each) { return each == RGB(255, 255, 255); });
}

TEST(ControlOnAForm, IsOneObjectWhicheverInterfaceIsAskedFor) {
  RunInApartment([] {
    const Placed placed;
    const auto identity = As<IUnknown>(placed.control);
    EXPECT_EQ(As<IUnknown>(As<IViewObject>(placed.object)), identity);
    EXPECT_EQ(As<IUnknown>(As<IOleControl>(placed.in_place)), identity);
    EXPECT_EQ(As<IUnknown>(As<IQuickActivate>(placed.object)), identity);
    EXPECT_EQ(As<IUnknown>(As<IOleInPlaceActiveObject>(placed.object)), identity);
    EXPECT_EQ(As<IUnknown>(As<IPersist>(placed.object)), identity);
    EXPECT_EQ(As<_Calendar>(As<IPersistPropertyBag>(placed.object)), placed.control);
    ComPointer<IDataObject> none;
    EXPECT_EQ(placed.object.As(none), E_NOINTERFACE);
  });
}

TEST(ControlOnAForm, SaysWhatItIsBeforeItHasASite) {
  RunInApartment([] {
    const auto object = As<IOleObject>(NewControl());
    DWORD status = 0;
    EXPECT_EQ(object->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
    EXPECT_EQ(status, 132497U);
    CLSID class_id{};
    EXPECT_EQ(object->GetUserClassID(&class_id), S_OK);
    EXPECT_TRUE(IsEqualCLSID(class_id, __uuidof(::Calendar)));
    LPOLESTR title = nullptr;
    ASSERT_EQ(object->GetUserType(USERCLASSTYPE_FULL, &title), S_OK);
    EXPECT_STREQ(title, L"Ferrowind holiday calendars");
    CoTaskMemFree(title);
    IEnumOLEVERB* verbs = nullptr;
    EXPECT_EQ(object->EnumVerbs(&verbs), OLEOBJ_E_NOVERBS);
    EXPECT_EQ(object->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr), E_UNEXPECTED);
  });
}

TEST(ControlOnAForm, ToleratesNullForWhatIsGivenBack) {
  RunInApartment([] {
    const Placed placed;
    EXPECT_EQ(placed.object->GetClientSite(nullptr), E_POINTER);
    EXPECT_EQ(placed.object->GetExtent(DVASPECT_CONTENT, nullptr), E_POINTER);
    EXPECT_EQ(placed.object->SetExtent(DVASPECT_CONTENT, nullptr), E_POINTER);
    EXPECT_EQ(placed.object->GetUserType(USERCLASSTYPE_FULL, nullptr), E_POINTER);
    EXPECT_EQ(placed.object->Advise(nullptr, nullptr), E_POINTER);
    EXPECT_EQ(placed.in_place->GetWindow(nullptr), E_POINTER);
    EXPECT_EQ(placed.in_place->SetObjectRects(nullptr, nullptr), E_POINTER);
    EXPECT_EQ(As<IViewObject2>(placed.control)->GetAdvise(nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(
        As<IViewObject2>(placed.control)
            ->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 0),
        E_INVALIDARG);
    EXPECT_EQ(As<IQuickActivate>(placed.control)->QuickActivate(nullptr, nullptr), E_POINTER);
  });
}

TEST(ControlOnAForm, IsActivatedInItsOwnSizeWhateverTheFormOffers) {
  RunInApartment([] {
    const Placed placed(false);
    ASSERT_EQ(placed.Do(OLEIVERB_INPLACEACTIVATE), S_OK);
    EXPECT_EQ(placed.form->told, (Told{"CanInPlaceActivate", "OnInPlaceActivate", "GetWindowContext",
                                       "OnPosRectChange", "ShowObject"}));
    EXPECT_EQ(GetParent(placed.Window()), placed.form->Window());
    ExpectOwnSizeAt(placed.Place(), 10, 20);
    ExpectOwnSizeAt(placed.form->corrected, 10, 20);
    placed.form->told.clear();
    EXPECT_EQ(placed.Do(OLEIVERB_SHOW), S_OK);
    EXPECT_EQ(placed.form->told, Told());
    EXPECT_EQ(placed.in_place->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(placed.form->told, Told{"OnInPlaceDeactivate"});
    EXPECT_EQ(placed.Window(), nullptr);
  });
}

TEST(ControlOnAForm, KeepsItsSize) {
  RunInApartment([] {
    const Placed placed(false);
    SIZEL size{};
    EXPECT_EQ(placed.object->GetExtent(DVASPECT_CONTENT, &size), S_OK);
    EXPECT_EQ(size.cx, kExtent);
    EXPECT_EQ(size.cy, kExtent);
    EXPECT_EQ(placed.object->SetExtent(DVASPECT_CONTENT, &size), S_OK);
    SIZEL larger{kExtent, 2 * kExtent};
    EXPECT_EQ(placed.object->SetExtent(DVASPECT_CONTENT, &larger), E_FAIL);
    EXPECT_EQ(As<IViewObject2>(placed.control)->GetExtent(DVASPECT_CONTENT, -1, nullptr, &size), S_OK);
    EXPECT_EQ(size.cy, kExtent);

    ASSERT_EQ(placed.Do(OLEIVERB_PRIMARY), S_OK);
    placed.form->told.clear();
    const RECT wide{30, 40, 200, 90};
    EXPECT_EQ(placed.in_place->SetObjectRects(&wide, &placed.form->clip), S_OK);
    ExpectOwnSizeAt(placed.Place(), 30, 40);
    ExpectOwnSizeAt(placed.form->corrected, 30, 40);
    EXPECT_EQ(placed.form->told, Told{"OnPosRectChange"});
    EXPECT_EQ(placed.in_place->SetObjectRects(&placed.form->corrected, &placed.form->clip), S_OK);
    EXPECT_EQ(placed.form->told, Told{"OnPosRectChange"});
    // Past the control.
    EXPECT_TRUE(SetWindowPos(placed.Window(), nullptr, 5, 6, 70, 80, SWP_NOZORDER));
    ExpectOwnSizeAt(placed.Place(), 5, 6);
  });
}

TEST(ControlOnAForm, KeepsItsSizeAgainstAFormThatInsists) {
  RunInApartment([] {
    const Placed placed(false);
    placed.form->reaction_to = "OnPosRectChange";
    placed.form->reaction = [&placed] {
      return placed.in_place->SetObjectRects(&placed.form->position, &placed.form->clip);
    };
    ASSERT_EQ(placed.Do(OLEIVERB_SHOW), S_OK);
    ExpectOwnSizeAt(placed.Place(), 10, 20);
  });
}

TEST(ControlOnAForm, IsSeenOnlyInsideOfItsClip) {
  RunInApartment([] {
    const Placed placed(false);
    ASSERT_EQ(placed.Do(OLEIVERB_SHOW), S_OK);
    RECT visible{};
    EXPECT_EQ(GetWindowRgnBox(placed.Window(), &visible), ERROR);
    const RECT position{30, 40, 46, 56};
    const RECT clip{0, 0, 40, 200};
    ASSERT_EQ(placed.in_place->SetObjectRects(&position, &clip), S_OK);
    EXPECT_EQ(GetWindowRgnBox(placed.Window(), &visible), SIMPLEREGION);
    EXPECT_EQ(visible.right, 10);
    EXPECT_EQ(visible.bottom, 16);
  });
}

TEST(ControlOnAForm, IsInvisibleAtRunTime) {
  RunInApartment([] {
    const Placed running(true);
    const Placed untold;
    ASSERT_EQ(running.Do(OLEIVERB_SHOW), S_OK);
    ASSERT_EQ(untold.Do(OLEIVERB_SHOW), S_OK);
    EXPECT_FALSE(IsWindowVisible(running.Window()));
    EXPECT_FALSE(IsWindowVisible(untold.Window()));
    EXPECT_TRUE(IsBlank(Drawn(running.control)));
  });
}

TEST(ControlOnAForm, IsAPictureWhereTheFormIsDesigned) {
  RunInApartment([] {
    const Placed placed(false);
    ASSERT_EQ(placed.Do(OLEIVERB_SHOW), S_OK);
    EXPECT_TRUE(IsWindowVisible(placed.Window()));
    const auto drawn = Drawn(placed.control);
    EXPECT_FALSE(IsBlank(drawn));
    UpdateWindow(placed.Window());
    const HDC context = GetDC(placed.Window());
    std::vector<COLORREF> shown;
    for (int y = 0; y < kControlPixels; ++y) shown.push_back(GetPixel(context, 4, y));
    ReleaseDC(placed.Window(), context);
    std::vector<COLORREF> expected;
    for (int y = 0; y < kControlPixels; ++y)
      expected.push_back(drawn[static_cast<std::size_t>(y * kControlPixels + 4)]);
    // The corners of the picture are not filled, but are those of no column in the middle, save at its ends.
    EXPECT_TRUE(std::equal(shown.begin() + 2, shown.end() - 1, expected.begin() + 2));
    EXPECT_EQ(placed.Do(OLEIVERB_HIDE), S_OK);
    EXPECT_FALSE(IsWindowVisible(placed.Window()));
    EXPECT_EQ(placed.Do(OLEIVERB_SHOW), S_OK);
    EXPECT_TRUE(IsWindowVisible(placed.Window()));
  });
}

/// What a container is told of a control's looks and end.
class Sink : public automation::ComObject<IAdviseSink> {
 public:
  int views = 0;
  int closes = 0;
  void STDMETHODCALLTYPE OnDataChange(FORMATETC*, STGMEDIUM*) override {}
  void STDMETHODCALLTYPE OnViewChange(DWORD, LONG) override { ++views; }
  void STDMETHODCALLTYPE OnRename(IMoniker*) override {}
  void STDMETHODCALLTYPE OnSave() override {}
  void STDMETHODCALLTYPE OnClose() override { ++closes; }
};

ComPointer<Sink> NewSink() {
  ComPointer<Sink> sink;
  sink.Attach(new Sink);
  return sink;
}

TEST(ControlOnAForm, FollowsTheFormFromDesignToRunTime) {
  RunInApartment([] {
    const Placed placed(false);
    const auto sink = NewSink();
    const auto control = As<IOleControl>(placed.control);
    ASSERT_EQ(As<IViewObject2>(placed.control)->SetAdvise(DVASPECT_CONTENT, 0, sink.Get()), S_OK);
    ASSERT_EQ(placed.Do(OLEIVERB_SHOW), S_OK);
    placed.form->is_user_mode = true;
    EXPECT_EQ(control->OnAmbientPropertyChange(DISPID_AMBIENT_BACKCOLOR), S_OK);
    EXPECT_TRUE(IsWindowVisible(placed.Window()));
    EXPECT_EQ(control->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE), S_OK);
    EXPECT_FALSE(IsWindowVisible(placed.Window()));
    EXPECT_EQ(sink->views, 1);
    placed.form->is_user_mode = false;
    EXPECT_EQ(control->OnAmbientPropertyChange(DISPID_UNKNOWN), S_OK);
    EXPECT_TRUE(IsWindowVisible(placed.Window()));
    EXPECT_EQ(sink->views, 2);
    EXPECT_EQ(As<IViewObject2>(placed.control)
                  ->SetAdvise(DVASPECT_CONTENT, ADVF_PRIMEFIRST | ADVF_ONLYONCE, sink.Get()),
              S_OK);
    EXPECT_EQ(sink->views, 3);
    placed.form->is_user_mode = true;
    EXPECT_EQ(control->OnAmbientPropertyChange(DISPID_UNKNOWN), S_OK);
    EXPECT_EQ(sink->views, 3);
  });
}

TEST(ControlOnAForm, TellsThatItCloses) {
  RunInApartment([] {
    const Placed placed;
    const auto sink = NewSink();
    DWORD connection = 0;
    EXPECT_EQ(placed.object->Unadvise(1), OLE_E_NOCONNECTION);
    ASSERT_EQ(placed.object->Advise(sink.Get(), &connection), S_OK);
    ASSERT_EQ(placed.Do(OLEIVERB_SHOW), S_OK);
    placed.form->told.clear();
    EXPECT_EQ(placed.object->Close(OLECLOSE_SAVEIFDIRTY), S_OK);
    EXPECT_EQ(sink->closes, 1);
    EXPECT_EQ(placed.form->told, Told{"OnInPlaceDeactivate"});
    EXPECT_EQ(placed.object->Unadvise(connection), S_OK);
    EXPECT_EQ(placed.object->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(sink->closes, 1);
  });
}

TEST(ControlOnAForm, AnswersVerbsThatItDoesNotHave) {
  RunInApartment([] {
    const Placed placed;
    EXPECT_EQ(placed.Do(OLEIVERB_OPEN), E_NOTIMPL);
    EXPECT_EQ(placed.Do(-99), E_NOTIMPL);
    EXPECT_EQ(placed.Window(), nullptr);
    EXPECT_EQ(placed.Do(7), OLEOBJ_S_INVALIDVERB);
    EXPECT_NE(placed.Window(), nullptr);
  });
}

TEST(ControlOnAForm, StaysInactiveWhereTheFormRefuses) {
  RunInApartment([] {
    for (const char* refusal : {"CanInPlaceActivate", "OnInPlaceActivate", "GetWindowContext"}) {
      SCOPED_TRACE(refusal);
      const Placed placed(false);
      placed.form->reaction_to = refusal;
      placed.form->reaction = [] { return E_ACCESSDENIED; };
      EXPECT_TRUE(FAILED(placed.Do(OLEIVERB_SHOW)));
      EXPECT_EQ(placed.Window(), nullptr);
      const bool was_begun = std::string(refusal) == "GetWindowContext";
      EXPECT_EQ(placed.form->told.back() == "OnInPlaceDeactivate", was_begun);
      placed.form->reaction_to.clear();
      EXPECT_EQ(placed.Do(OLEIVERB_SHOW), S_OK);
      EXPECT_NE(placed.Window(), nullptr);
    }
  });
}

TEST(ControlOnAForm, BearsAFormThatTakesItsSiteAwayMeanwhile) {
  RunInApartment([] {
    for (const char* moment : {"OnInPlaceActivate", "GetWindowContext", "OnPosRectChange"}) {
      SCOPED_TRACE(moment);
      const Placed placed(false);
      placed.form->reaction_to = moment;
      placed.form->reaction = [&placed] { return placed.object->SetClientSite(nullptr); };
      EXPECT_EQ(placed.Do(OLEIVERB_SHOW), E_FAIL);
      EXPECT_EQ(std::count(placed.form->told.begin(), placed.form->told.end(), "OnInPlaceDeactivate"), 1);
      EXPECT_EQ(placed.Window(), nullptr);
    }
  });
}

TEST(ControlOnAForm, BearsAFormThatTakesItsSiteAwayAtTheSightOfItsWindow) {
  RunInApartment([] {
    const Placed placed(false);
    const auto take_away = [](HWND window, UINT message, WPARAM w_param, LPARAM l_param, UINT_PTR,
                              DWORD_PTR object) -> LRESULT {
      if (message == WM_PARENTNOTIFY && LOWORD(w_param) == WM_CREATE) {
        EXPECT_EQ(reinterpret_cast<IOleObject*>(object)->SetClientSite(nullptr), S_OK);
      }
      return DefSubclassProc(window, message, w_param, l_param);
    };
    ASSERT_TRUE(SetWindowSubclass(placed.form->Window(), take_away, 1,
                                  reinterpret_cast<DWORD_PTR>(placed.object.Get())));
    EXPECT_EQ(placed.Do(OLEIVERB_SHOW), E_FAIL);
    EXPECT_EQ(placed.form->told,
              (Told{"CanInPlaceActivate", "OnInPlaceActivate", "GetWindowContext", "OnInPlaceDeactivate"}));
    EXPECT_EQ(placed.Window(), nullptr);
  });
}

TEST(ControlOnAForm, BearsItsLastReleaseFromAnyOfItsCalls) {
  RunInApartment([] {
    for (const char* moment :
         {"OnInPlaceActivate", "GetWindowContext", "OnPosRectChange", "ShowObject", "OnInPlaceDeactivate"}) {
      SCOPED_TRACE(moment);
      const auto form = NewFormContainer();
      auto control = NewControl();
      const auto alive = Module::Get().Held();
      IOleObject& object = *As<IOleObject>(control).Get();
      ASSERT_EQ(object.SetClientSite(form.Get()), S_OK);
      form->reaction_to = moment;
      form->reaction = [&control] {
        control.Reset();
        return S_OK;
      };
      static_cast<void>(object.DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr));
      if (control) {
        EXPECT_EQ(object.Close(OLECLOSE_NOSAVE), S_OK);
      }
      EXPECT_EQ(control, nullptr);
      EXPECT_EQ(Module::Get().Held(), alive - 1);
    }
  });
}

TEST(ControlOnAForm, OutlivesTheWindowOfItsForm) {
  RunInApartment([] {
    const Placed placed(false);
    ASSERT_EQ(placed.Do(OLEIVERB_SHOW), S_OK);
    placed.form->CloseWindow();
    EXPECT_EQ(placed.Window(), nullptr);
    EXPECT_EQ(placed.in_place->SetObjectRects(&placed.form->position, &placed.form->clip), S_OK);
    placed.form->MakeWindow();
    ASSERT_EQ(placed.Do(OLEIVERB_SHOW), S_OK);
    ExpectOwnSizeAt(placed.Place(), 10, 20);
  });
}

/// A container of a host that says everything in one call.
struct QuickContainer {
  ComPointer<FormContainer> form = NewFormContainer();
  QACONTAINER said{};
  QACONTROL answer{};

  explicit QuickContainer(DWORD flags) {
    said.cbSize = sizeof said;
    said.pClientSite = form.Get();
    said.dwAmbientFlags = flags;
    answer.cbSize = sizeof answer;
  }
};

TEST(QuicklyActivatedControl, TakesAllThatTheContainerSays) {
  RunInApartment([] {
    QuickContainer container(0);
    const auto listener = As<IUnknown>(NewControl());
    container.said.pUnkEventSink = listener.Get();
    const auto control = NewControl();
    const auto quick = As<IQuickActivate>(control);
    ASSERT_EQ(quick->QuickActivate(&container.said, &container.answer), S_OK);
    EXPECT_EQ(container.answer.dwMiscStatus, 132497U);
    EXPECT_NE(container.answer.dwEventCookie, 0U);
    EXPECT_FALSE(IsBlank(Drawn(control)));
    const auto object = As<IOleObject>(control);
    ComPointer<IOleClientSite> site;
    EXPECT_EQ(object->GetClientSite(site.Receive()), S_OK);
    EXPECT_EQ(site.Get(), container.form.Get());
    SIZEL size{};
    EXPECT_EQ(quick->GetContentExtent(&size), S_OK);
    EXPECT_EQ(size.cx, kExtent);
    size.cx = 9 * kExtent;
    EXPECT_EQ(quick->SetContentExtent(&size), E_FAIL);
    EXPECT_EQ(object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, nullptr, 0, nullptr, nullptr), S_OK);
    ComPointer<IConnectionPoint> events;
    ASSERT_EQ(
        As<IConnectionPointContainer>(control)->FindConnectionPoint(__uuidof(__Calendar), events.Receive()),
        S_OK);
    EXPECT_EQ(events->Unadvise(container.answer.dwEventCookie), S_OK);
    EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(object->SetClientSite(nullptr), S_OK);
  });
}

TEST(QuicklyActivatedControl, TakesNothingOfAContainerThatIsNotOne) {
  RunInApartment([] {
    QuickContainer container(QACONTAINER_USERMODE);
    const auto control = NewControl();
    const auto quick = As<IQuickActivate>(control);
    container.answer.cbSize = 4;
    EXPECT_EQ(quick->QuickActivate(&container.said, &container.answer), E_INVALIDARG);
    container.answer.cbSize = sizeof container.answer;
    // It is no listener, since it has no events to be called by.
    const auto no_listener = NewSink();
    container.said.pUnkEventSink = no_listener.Get();
    EXPECT_EQ(quick->QuickActivate(&container.said, &container.answer), CONNECT_E_CANNOTCONNECT);
    ComPointer<IOleClientSite> site;
    EXPECT_EQ(As<IOleObject>(control)->GetClientSite(site.Receive()), S_OK);
    EXPECT_EQ(site, nullptr);
  });
}

TEST(ControlOnAForm, LeavesNothingBehindAfterAThousandCycles) {
  RunInApartment([] {
    ASSERT_EQ(Module::Get().Held(), 0);
    const auto windows_before = [] {
      int count = 0;
      EnumThreadWindows(
          GetCurrentThreadId(),
          [](HWND, LPARAM counted) {
            ++*reinterpret_cast<int*>(counted);
            return TRUE;
          },
          reinterpret_cast<LPARAM>(&count));
      return count;
    };
    const int windows = windows_before();
    for (int i = 0; i < 1000; ++i) {
      const Placed placed(i % 2 == 0);
      ASSERT_EQ(placed.Do(OLEIVERB_SHOW), S_OK);
      ASSERT_EQ(placed.control->Show(), S_OK);
      const RECT wide{30, 40, 200, 90};
      ASSERT_EQ(placed.in_place->SetObjectRects(&wide, &wide), S_OK);
      // The others are released with their window open.
      VARIANT_BOOL is_closed = VARIANT_FALSE;
      if (i % 3 == 0) {
        ASSERT_EQ(placed.control->ForceClosing(&is_closed), S_OK);
      }
    }
    EXPECT_EQ(windows_before(), windows);
    EXPECT_EQ(Module::Get().Held(), 0);
  });
}

}  // namespace
}  // namespace ferrowind::testing
