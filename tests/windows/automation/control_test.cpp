// The control and its column maps, as hosts call them early and late.

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <objbase.h>
#include <oleauto.h>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/module.h"
#include "ferrowind/adapters/automation/owned_bstr.h"
#include "ferrowind/adapters/automation/variant_value.h"
#include "ferrowind/adapters/headless/headless_form.h"

#include "generated/ferrowind.h"
#include "tests/windows/automation/control_thread.h"
#include "tests/windows/automation/late_call.h"

namespace ferrowind::testing {
namespace {

using automation::ComPointer;
using automation::Module;
using automation::OwnedBstr;
using automation::OwnedVariant;
using automation::Utf8;
using automation::ValueOf;
using platform::Value;

constexpr HRESULT kComponentFailure = static_cast<HRESULT>(0x80040258);
constexpr HRESULT kDuplicateKey = static_cast<HRESULT>(0x800A01C9);
constexpr HRESULT kInvalidCall = static_cast<HRESULT>(0x800A0005);
constexpr HRESULT kOutOfRange = static_cast<HRESULT>(0x800A0009);
constexpr HRESULT kMismatch = static_cast<HRESULT>(0x800A000D);

ComPointer<_GridFields> HeadersOf(_Calendar& control) {
  ComPointer<_GridFields> map;
  EXPECT_EQ(control.get_Headers(map.Receive()), S_OK);
  return map;
}

ComPointer<_GridField> FieldOf(_GridFields& map, const Value& index) {
  OwnedVariant argument = automation::VariantOf(index);
  ComPointer<_GridField> field;
  EXPECT_EQ(map.LocalNames(argument.Address(), field.Receive()), S_OK);
  return field;
}

/// The error information of the thread, which this takes away.
void ExpectTold(const std::string& description) {
  ComPointer<IErrorInfo> information;
  ASSERT_EQ(GetErrorInfo(0, information.Receive()), S_OK);
  OwnedBstr told;
  OwnedBstr source;
  EXPECT_EQ(information->GetDescription(told.Address()), S_OK);
  EXPECT_EQ(information->GetSource(source.Address()), S_OK);
  EXPECT_EQ(told.Utf8(), description);
  EXPECT_EQ(source.Utf8(), "");
}

void ExpectFailureOf(const LateOutcome& outcome, HRESULT code, const std::string& description) {
  EXPECT_EQ(outcome.result, DISP_E_EXCEPTION);
  EXPECT_EQ(outcome.code, code);
  EXPECT_EQ(outcome.description, description);
  EXPECT_EQ(outcome.source, "");
}

TEST(EarlyBoundControl, HasAVersionOfFiveParts) {
  RunInApartment([] {
    OwnedVariant version;
    ASSERT_EQ(NewControl()->get_Version(version.Address()), S_OK);
    ASSERT_EQ(version.Type(), VT_ARRAY | VT_VARIANT);
    std::vector<Value> parts;
    LONG first = -1;
    LONG last = -1;
    ASSERT_EQ(SafeArrayGetLBound(V_ARRAY(&version.Get()), 1, &first), S_OK);
    ASSERT_EQ(SafeArrayGetUBound(V_ARRAY(&version.Get()), 1, &last), S_OK);
    EXPECT_EQ(first, 0);
    for (LONG i = first; i <= last; ++i) {
      OwnedVariant part;
      ASSERT_EQ(SafeArrayGetElement(V_ARRAY(&version.Get()), &i, part.Address()), S_OK);
      parts.push_back(ValueOf(part.Get()));
    }
    const std::vector<Value> expected = {"Ferrowind", std::int16_t{1}, std::int16_t{2}, std::int16_t{10}, {}};
    EXPECT_EQ(parts, expected);
  });
}

TEST(EarlyBoundControl, GivesItsMapsOnlyWhileNoWindowIsOpen) {
  RunInApartment([] {
    const auto control = NewControl();
    const auto before = HeadersOf(*control.Get());
    ASSERT_EQ(control->Show(), S_OK);
    ASSERT_TRUE(ControlWorld::OfThisThread().world.toolkit.FormNamed("fmCalendar").IsShown());
    ComPointer<_GridFields> map;
    EXPECT_EQ(control->get_Headers(map.Receive()), kComponentFailure);
    ExpectTold("Property is accessed only before show method");
    EXPECT_EQ(map, nullptr);
    VARIANT_BOOL is_closed = VARIANT_FALSE;
    EXPECT_EQ(control->ForceClosing(&is_closed), S_OK);
    EXPECT_EQ(is_closed, VARIANT_TRUE);
    EXPECT_EQ(HeadersOf(*control.Get()), before);
  });
}

TEST(EarlyBoundControl, GivesAColumnAsTheSameObjectEachTime) {
  RunInApartment([] {
    const auto map = HeadersOf(*NewControl().Get());
    const auto field = FieldOf(*map.Get(), "FULLDATE");
    EXPECT_EQ(FieldOf(*map.Get(), 1), field);
    OwnedVariant by_field = automation::VariantOf("odate");
    ComPointer<_GridField> same;
    ASSERT_EQ(map->Fields(by_field.Address(), same.Receive()), S_OK);
    EXPECT_EQ(same, field);
  });
}

TEST(EarlyBoundControl, ToleratesNullForWhatIsGivenBack) {
  RunInApartment([] {
    const auto control = NewControl();
    const auto map = HeadersOf(*control.Get());
    const auto field = FieldOf(*map.Get(), 1);
    EXPECT_EQ(control->get_Headers(nullptr), E_POINTER);
    EXPECT_EQ(control->get_Version(nullptr), E_POINTER);
    EXPECT_EQ(control->ForceClosing(nullptr), E_POINTER);
    EXPECT_EQ(map->get_Count(nullptr), E_POINTER);
    EXPECT_EQ(map->LocalNames(nullptr, nullptr), E_POINTER);
    EXPECT_EQ(field->get_Caption(nullptr), E_POINTER);
    EXPECT_EQ(field->put_Caption(nullptr), S_OK);
    EXPECT_EQ(ValueLate(*field.Get(), L"Caption"), Value(""));
  });
}

TEST(EarlyBoundControl, IsNotAPartOfAnotherObject) {
  RunInApartment([] {
    const auto factory = NewFactory();
    void* object = &object;
    EXPECT_EQ(factory->CreateInstance(factory.Get(), __uuidof(IUnknown), &object), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(object, nullptr);
  });
}

TEST(EarlyBoundControl, SaysWhatClassesItsObjectsAre) {
  RunInApartment([] {
    const auto control = NewControl();
    ComPointer<IProvideClassInfo2> of_control;
    ComPointer<IProvideClassInfo2> of_map;
    ASSERT_EQ(control.As(of_control), S_OK);
    ASSERT_EQ(HeadersOf(*control.Get()).As(of_map), S_OK);
    GUID events{};
    EXPECT_EQ(of_control->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
    EXPECT_TRUE(IsEqualGUID(events, __uuidof(__Calendar)));
    EXPECT_EQ(of_map->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), E_FAIL);
    ComPointer<ITypeInfo> info;
    ASSERT_EQ(of_control->GetClassInfo(info.Receive()), S_OK);
    OwnedBstr name;
    ASSERT_EQ(info->GetDocumentation(MEMBERID_NIL, name.Address(), nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(name.Utf8(), "Calendar");
  });
}

TEST(LateBoundControl, FillsInWhatIsLeftOut) {
  RunInApartment([] {
    const auto map = HeadersOf(*NewControl().Get());
    EXPECT_EQ(CallLate(*map.Get(), L"add", Late("Short"), Late("F1")).result, S_OK);
    EXPECT_EQ(CallLate(*map.Get(), L"Add", Late("Gap"), Late("F2"), LeftOut(), Late(false)).result, S_OK);
    EXPECT_EQ(CallLateNamed(*map.Get(), DISPATCH_METHOD, L"Add", {L"Visible", L"FieldName", L"LocalName"},
                            Late(false), Late("F3"), Late("Named"))
                  .result,
              S_OK);
    const auto described = [&map](const char* name) {
      const auto field = FieldOf(*map.Get(), name);
      return std::vector<Value>{ValueLate(*field.Get(), L"FieldName"), ValueLate(*field.Get(), L"Caption"),
                                ValueLate(*field.Get(), L"Visible")};
    };
    EXPECT_EQ(described("Short"), (std::vector<Value>{"F1", "None name", true}));
    EXPECT_EQ(described("Gap"), (std::vector<Value>{"F2", "None name", false}));
    EXPECT_EQ(described("Named"), (std::vector<Value>{"F3", "None name", false}));
  });
}

TEST(LateBoundControl, FollowsReferencesAsDeepAsScriptsPassThem) {
  RunInApartment([] {
    const auto map = HeadersOf(*NewControl().Get());
    OwnedBstr name("MonthName");
    LateArgument text;
    V_VT(text.Address()) = VT_BSTR | VT_BYREF;
    V_BSTRREF(text.Address()) = name.Address();
    LateArgument inner = ReferenceTo(text);
    LateArgument outer = ReferenceTo(inner);
    const LateOutcome outcome = CallLate(*map.Get(), L"LocalNames", outer);
    ASSERT_EQ(outcome.result, S_OK) << outcome.description;
    ASSERT_EQ(outcome.value.Type(), VT_DISPATCH);
    EXPECT_EQ(ValueLate(*V_DISPATCH(&outcome.value.Get()), L"Caption"), Value("Month name"));
  });
}

TEST(LateBoundControl, RefusesAReferenceToItself) {
  RunInApartment([] {
    const auto map = HeadersOf(*NewControl().Get());
    LateArgument endless;
    V_VT(endless.Address()) = VT_VARIANT | VT_BYREF;
    V_VARIANTREF(endless.Address()) = endless.Address();
    const LateOutcome outcome = CallLate(*map.Get(), L"LocalNames", endless);
    EXPECT_EQ(outcome.result, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(outcome.wrong_argument, 0U);
  });
}

TEST(LateBoundControl, AnswersWrongCallsWithThePlatformsResults) {
  RunInApartment([] {
    const auto control = NewControl();
    const auto map = HeadersOf(*control.Get());
    const auto field = FieldOf(*map.Get(), 1);
    EXPECT_EQ(CallLate(*control.Get(), L"Hide").result, DISP_E_UNKNOWNNAME);
    EXPECT_EQ(CallLate(*control.Get(), L"Show", Late(1)).result, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(CallLate(*map.Get(), L"LocalNames").result, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(CallLate(*map.Get(), L"Add", Late("One")).result, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(CallLateNamed(*map.Get(), DISPATCH_METHOD, L"Add", {L"Colour"}, Late("One")).result,
              DISP_E_UNKNOWNNAME);
    EXPECT_EQ(CallLateNamed(*map.Get(), DISPATCH_METHOD, L"Add", {L"LocalName"}, Late("A"), Late("B")).result,
              DISP_E_PARAMNOTFOUND);
    EXPECT_EQ(PutLate(*field.Get(), L"Index", Late(2)).result, DISP_E_MEMBERNOTFOUND);
    const LateOutcome wrong_type =
        CallLate(*map.Get(), L"Add", Late("A"), Late("B"), Late("C"), Late("maybe"));
    EXPECT_EQ(wrong_type.result, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(wrong_type.wrong_argument, 0U);
    LONG count = 0;
    EXPECT_EQ(map->get_Count(&count), S_OK);
    EXPECT_EQ(count, 9);
  });
}

TEST(LateBoundControl, HasNoMembersButItsOwn) {
  RunInApartment([] {
    const auto control = NewControl();
    // The first slots of every interface, with which a script could count references.
    for (DISPID member : {0x60000000, 0x60000001, 0x60000002, 0x60010000, 0x60010003, 0, 1}) {
      DISPPARAMS none{};
      OwnedVariant result;
      EXPECT_EQ(control->Invoke(member, GUID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none,
                                result.Address(), nullptr, nullptr),
                DISP_E_MEMBERNOTFOUND)
          << member;
    }
  });
}

TEST(LateBoundControl, TellsFailuresOfPropertiesToHostsThatWantThem) {
  RunInApartment([] {
    const auto control = NewControl();
    ASSERT_EQ(control->Show(), S_OK);
    ExpectFailureOf(CallLate(*control.Get(), L"Headers"), kComponentFailure,
                    "Property is accessed only before show method");
    DISPPARAMS none{};
    EXPECT_EQ(control->Invoke(0x68030001, GUID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                              nullptr, nullptr, nullptr),
              DISP_E_EXCEPTION);
    EXPECT_EQ(control->Invoke(0x60030002, GUID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr,
                              nullptr, nullptr),
              S_OK);
    // The map is released, although nobody has taken it.
    EXPECT_EQ(control->Invoke(0x68030001, GUID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                              nullptr, nullptr, nullptr),
              S_OK);
  });
  EXPECT_EQ(Module::Get().Held(), 0);
}

TEST(LateBoundControl, TellsFailuresByNumberAndText) {
  RunInApartment([] {
    const auto map = HeadersOf(*NewControl().Get());
    const auto field = FieldOf(*map.Get(), 1);
    ExpectFailureOf(PutLate(*field.Get(), L"LocalName", Late("Other")), kComponentFailure,
                    "It's constant field");
    ExpectFailureOf(CallLate(*map.Get(), L"Add", Late("fulldate"), Late("New")), kDuplicateKey,
                    "This key is already associated with an element of this collection");
    ExpectFailureOf(CallLate(*map.Get(), L"Fields", Late("none")), kInvalidCall,
                    "Invalid procedure call or argument");
    ExpectFailureOf(CallLate(*map.Get(), L"Fields", Late(10)), kOutOfRange, "Subscript out of range");
    ExpectFailureOf(CallLate(*map.Get(), L"Fields", LeftOut()), kMismatch, "Type mismatch");
    ASSERT_EQ(CallLate(*map.Get(), L"Add", Late("Mine"), Late("F1")).result, S_OK);
    ExpectFailureOf(CallLate(*map.Get(), L"RemoveByLocalIndex", Late("Mine")), kComponentFailure,
                    "It's constant header");
  });
}

TEST(LateBoundControl, EnumeratesTheColumnsThatThereWere) {
  RunInApartment([] {
    const auto map = HeadersOf(*NewControl().Get());
    DISPPARAMS none{};
    OwnedVariant result;
    ASSERT_EQ(map->Invoke(DISPID_NEWENUM, GUID_NULL, LOCALE_USER_DEFAULT,
                          DISPATCH_METHOD | DISPATCH_PROPERTYGET, &none, result.Address(), nullptr, nullptr),
              S_OK);
    ComPointer<IEnumVARIANT> columns;
    ASSERT_EQ(V_UNKNOWN(&result.Get())->QueryInterface(__uuidof(*columns.Get()), columns.ReceiveAny()), S_OK);
    ASSERT_EQ(CallLate(*map.Get(), L"Add", Late("Later"), Late("F1")).result, S_OK);
    std::vector<std::string> names;
    OwnedVariant column;
    while (columns->Next(1, column.Address(), nullptr) == S_OK) {
      names.push_back(*ValueLate(*V_DISPATCH(&column.Get()), L"LocalName").If<std::string>());
      column = {};
    }
    const std::vector<std::string> expected = {"FullDate",    "HolidayType", "HolidayName",
                                               "Description", "Comment",     "DayOfYear",
                                               "DayOfMonth",  "Month",       "MonthName"};
    EXPECT_EQ(names, expected);
  });
}

TEST(Control, LeavesNothingBehindAfterAThousandCycles) {
  RunInApartment([] {
    ASSERT_EQ(Module::Get().Held(), 0);
    for (int i = 0; i < 1000; ++i) {
      const auto control = NewControl();
      const auto map = HeadersOf(*control.Get());
      const auto field = FieldOf(*map.Get(), 1);
      ASSERT_EQ(control->Show(), S_OK);
      ASSERT_GT(Module::Get().Held(), 0);
      VARIANT_BOOL is_closed = VARIANT_FALSE;
      ASSERT_EQ(control->ForceClosing(&is_closed), S_OK);
      ASSERT_EQ(is_closed, VARIANT_TRUE);
    }
    EXPECT_EQ(Module::Get().Held(), 0);
  });
}

TEST(Control, ClosesItsWindowWhenItIsReleased) {
  RunInApartment([] {
    auto control = NewControl();
    ASSERT_EQ(control->Show(), S_OK);
    // What a window that closes stores.
    const auto stored_place = [] {
      constexpr const char* kSection =
          "\\Tessaro\\Calendar\\7E34C663-43BF-11d6-8AE5-0050228F1EE8\\Window Calendars";
      return ControlWorld::OfThisThread().world.services->Setting(kSection, "Left");
    };
    EXPECT_FALSE(stored_place().has_value());
    control.Reset();
    EXPECT_TRUE(stored_place().has_value());
    EXPECT_EQ(Module::Get().Held(), 0);
  });
}

TEST(Control, LeavesItsMapsToHostsThatHoldThem) {
  RunInApartment([] {
    auto control = NewControl();
    auto map = HeadersOf(*control.Get());
    auto field = FieldOf(*map.Get(), 1);
    control.Reset();
    EXPECT_EQ(ValueLate(*map.Get(), L"Count"), Value(9));
    map.Reset();
    EXPECT_EQ(ValueLate(*field.Get(), L"Caption"), Value("Date"));
    field.Reset();
    EXPECT_EQ(Module::Get().Held(), 0);
  });
}

}  // namespace
}  // namespace ferrowind::testing
