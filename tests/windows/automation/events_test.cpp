// Hosts that listen to a column, whatever they do meanwhile.

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <oaidl.h>
#include <ocidl.h>
#include <olectl.h>

#include "ferrowind/adapters/automation/com_object.h"
#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/module.h"
#include "ferrowind/adapters/automation/text.h"

#include "generated/ferrowind.h"
#include "tests/windows/automation/control_thread.h"
#include "tests/windows/automation/late_call.h"

namespace ferrowind::testing {
namespace {

using automation::ComPointer;
using automation::Module;
using platform::Value;

/// A host's handler of `GetIndex`.
class Listener : public automation::ComObject<IDispatch> {
 public:
  using Handler = std::function<HRESULT(BSTR& local_name, LONG& index)>;
  explicit Listener(Handler handler) : handler_(std::move(handler)) {}

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*,
                                   EXCEPINFO*, UINT*) override {
    EXPECT_EQ(member, 1);
    EXPECT_EQ(arguments->cArgs, 2U);
    EXPECT_EQ(V_VT(&arguments->rgvarg[1]), VT_BSTR | VT_BYREF);
    EXPECT_EQ(V_VT(&arguments->rgvarg[0]), VT_I4 | VT_BYREF);
    return handler_(*V_BSTRREF(&arguments->rgvarg[1]), *V_I4REF(&arguments->rgvarg[0]));
  }

 private:
  Handler handler_;
};

ComPointer<IDispatch> NewListener(Listener::Handler handler) {
  ComPointer<IDispatch> listener;
  listener.Attach(new Listener(std::move(handler)));
  return listener;
}

ComPointer<IConnectionPoint> EventsOf(_GridField& field) {
  ComPointer<IConnectionPointContainer> container;
  ComPointer<IConnectionPoint> point;
  EXPECT_EQ(field.QueryInterface(__uuidof(*container.Get()), container.ReceiveAny()), S_OK);
  EXPECT_EQ(container->FindConnectionPoint(__uuidof(__GridField), point.Receive()), S_OK);
  return point;
}

DWORD Connect(_GridField& field, Listener::Handler handler) {
  DWORD cookie = 0;
  EXPECT_EQ(EventsOf(field)->Advise(NewListener(std::move(handler)).Get(), &cookie), S_OK);
  return cookie;
}

struct Host {
  ComPointer<_Calendar> control = NewControl();
  ComPointer<_GridFields> map;
  ComPointer<_GridField> field;
  Host() {
    EXPECT_EQ(control->get_Headers(map.Receive()), S_OK);
    Refind();
  }
  void Refind() {
    LateArgument first = Late(3);
    EXPECT_EQ(map->LocalNames(first.Address(), field.Receive()), S_OK);
  }
  [[nodiscard]] LONG Index() const {
    LONG index = -1;
    EXPECT_EQ(field->get_Index(&index), S_OK);
    return index;
  }
};

TEST(ColumnEvents, TheIndexIsWhatAListenerAnswers) {
  RunInApartment([] {
    Host host;
    EXPECT_EQ(host.Index(), 0);
    std::string asked_for;
    const DWORD cookie = Connect(*host.field.Get(), [&asked_for](BSTR& local_name, LONG& index) {
      asked_for = automation::Utf8OfBstr(local_name);
      EXPECT_EQ(index, 0);
      index = 7;
      return S_OK;
    });
    EXPECT_EQ(host.Index(), 7);
    EXPECT_EQ(asked_for, "HolidayName");
    EXPECT_EQ(EventsOf(*host.field.Get())->Unadvise(cookie), S_OK);
    EXPECT_EQ(host.Index(), 0);
    EXPECT_EQ(EventsOf(*host.field.Get())->Unadvise(cookie), CONNECT_E_NOCONNECTION);
  });
}

TEST(ColumnEvents, AListenerMayChangeTheNameAndTheNextOneSeesIt) {
  RunInApartment([] {
    Host host;
    Connect(*host.field.Get(), [](BSTR& local_name, LONG&) {
      return SysReAllocString(&local_name, L"Renamed") ? S_OK : E_OUTOFMEMORY;
    });
    Connect(*host.field.Get(), [](BSTR& local_name, LONG& index) {
      index = automation::Utf8OfBstr(local_name) == "Renamed" ? 2 : 1;
      return S_OK;
    });
    EXPECT_EQ(host.Index(), 2);
    EXPECT_EQ(ValueLate(*host.field.Get(), L"LocalName"), Value("HolidayName"));
  });
}

TEST(ColumnEvents, AListenerThatFailsHasAnsweredNothing) {
  RunInApartment([] {
    Host host;
    Connect(*host.field.Get(), [](BSTR&, LONG&) { return E_FAIL; });
    EXPECT_EQ(host.Index(), 0);
    Connect(*host.field.Get(), [](BSTR&, LONG& index) {
      index = 4;
      return S_OK;
    });
    EXPECT_EQ(host.Index(), 4);
  });
}

TEST(ColumnEvents, StayConnectedWhileTheMapHasTheColumn) {
  RunInApartment([] {
    Host host;
    Connect(*host.field.Get(), [](BSTR&, LONG& index) {
      index = 5;
      return S_OK;
    });
    host.field.Reset();
    host.Refind();
    EXPECT_EQ(host.Index(), 5);
  });
}

TEST(ColumnEvents, EverythingMayBeReleasedInsideOne) {
  RunInApartment([] {
    auto host = std::make_unique<Host>();
    _GridField* const field = host->field.Get();
    Connect(*field, [&host](BSTR&, LONG& index) {
      index = 6;
      host.reset();
      return S_OK;
    });
    LONG index = -1;
    EXPECT_EQ(field->get_Index(&index), S_OK);
    EXPECT_EQ(index, 6);
    EXPECT_EQ(Module::Get().Held(), 0);
  });
}

TEST(ColumnEvents, AListenerMayLeaveInsideOne) {
  RunInApartment([] {
    Host host;
    DWORD cookie = 0;
    cookie = Connect(*host.field.Get(), [&](BSTR&, LONG& index) {
      index += 1;
      return EventsOf(*host.field.Get())->Unadvise(cookie);
    });
    EXPECT_EQ(host.Index(), 1);
    EXPECT_EQ(host.Index(), 0);
  });
}

TEST(ColumnEvents, PointsAndConnectionsAreEnumerated) {
  RunInApartment([] {
    Host host;
    const DWORD cookie = Connect(*host.field.Get(), [](BSTR&, LONG&) { return S_OK; });
    ComPointer<IConnectionPointContainer> container;
    ASSERT_EQ(host.field.As(container), S_OK);
    ComPointer<IEnumConnectionPoints> points;
    ASSERT_EQ(container->EnumConnectionPoints(points.Receive()), S_OK);
    ComPointer<IConnectionPoint> point;
    ULONG count = 0;
    ASSERT_EQ(points->Next(1, point.Receive(), &count), S_OK);
    EXPECT_EQ(count, 1U);
    IID events{};
    EXPECT_EQ(point->GetConnectionInterface(&events), S_OK);
    EXPECT_TRUE(IsEqualIID(events, __uuidof(__GridField)));
    EXPECT_EQ(points->Next(1, point.Receive(), &count), S_FALSE);
    ComPointer<IEnumConnections> connections;
    ASSERT_EQ(EventsOf(*host.field.Get())->EnumConnections(connections.Receive()), S_OK);
    CONNECTDATA connection{};
    ASSERT_EQ(connections->Next(1, &connection, &count), S_OK);
    EXPECT_EQ(connection.dwCookie, cookie);
    connection.pUnk->Release();
    EXPECT_EQ(connections->Next(1, &connection, &count), S_FALSE);
  });
}

TEST(ControlEvents, AreThereForHostsThatConnectToNone) {
  RunInApartment([] {
    const auto control = NewControl();
    ComPointer<IConnectionPointContainer> container;
    ComPointer<IConnectionPoint> point;
    ASSERT_EQ(control.As(container), S_OK);
    EXPECT_EQ(container->FindConnectionPoint(__uuidof(__Calendar), point.Receive()), S_OK);
    EXPECT_EQ(container->FindConnectionPoint(__uuidof(__GridField), point.Receive()), CONNECT_E_NOCONNECTION);
  });
}

}  // namespace
}  // namespace ferrowind::testing
