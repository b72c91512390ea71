// The objects of the host's product family, as good and as bad as hosts have them.

#include <cstdint>
#include <functional>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <oaidl.h>

#include "ferrowind/adapters/automation/com_object.h"
#include "ferrowind/adapters/automation/outside_call.h"
#include "ferrowind/adapters/automation/outside_dictionary.h"
#include "ferrowind/adapters/automation/outside_objects.h"
#include "ferrowind/adapters/automation/outside_record_set.h"
#include "ferrowind/adapters/automation/outside_shared_services.h"
#include "ferrowind/adapters/automation/owned_variant.h"
#include "ferrowind/adapters/automation/text.h"
#include "ferrowind/adapters/automation/variant_value.h"

#include "tests/support/expect_failure.h"
#include "tests/windows/automation/control_thread.h"

namespace ferrowind::testing {
namespace {

using automation::ComPointer;
using automation::CopyOfRecordSet;
using automation::OutsideCall;
using automation::OutsideDictionary;
using automation::OutsideObjects;
using automation::OutsideSharedServices;
using automation::OwnedVariant;
using automation::ValueOf;
using automation::VariantOf;
using platform::Value;

/// An object that is known by the names of its members, which a test writes down.
class Scripted : public automation::ComObject<IDispatch> {
 public:
  /// Gets the arguments from the first to the last; what it returns is the call's.
  using Member = std::function<HRESULT(DISPPARAMS& arguments, VARIANT& result, EXCEPINFO& exception)>;
  using Members = std::map<std::wstring, Member>;
  explicit Scripted(Members members) : members_(std::move(members)) {}

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, OLECHAR** names, UINT, LCID, DISPID* found) override {
    const auto member = members_.find(names[0]);
    if (member == members_.end()) return DISP_E_UNKNOWNNAME;
    *found = static_cast<DISPID>(std::distance(members_.begin(), member)) + 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT* result,
                                   EXCEPINFO* exception, UINT*) override {
    return std::next(members_.begin(), member - 1)->second(*arguments, *result, *exception);
  }

 private:
  Members members_;
};

ComPointer<IDispatch> NewScripted(Scripted::Members members) {
  ComPointer<IDispatch> object;
  object.Attach(new Scripted(std::move(members)));
  return object;
}

Scripted::Member Gives(const Value& value) {
  return [value](DISPPARAMS&, VARIANT& result, EXCEPINFO&) {
    result = VariantOf(value).Release();
    return S_OK;
  };
}

Scripted::Member GivesObject(std::function<ComPointer<IDispatch>(DISPPARAMS&)> make) {
  return [make = std::move(make)](DISPPARAMS& arguments, VARIANT& result, EXCEPINFO&) {
    V_VT(&result) = VT_DISPATCH;
    V_DISPATCH(&result) = make(arguments).Detach();
    return S_OK;
  };
}

Scripted::Member Raises(WORD code, SCODE scode, const char* description) {
  return [=](DISPPARAMS&, VARIANT&, EXCEPINFO& exception) {
    exception.wCode = code;
    exception.scode = scode;
    exception.bstrDescription = automation::NewBstr(description);
    return DISP_E_EXCEPTION;
  };
}

/// A record set of the fields `CcyID` and `Ccy` and as many rows.
ComPointer<IDispatch> NewRecords(int rows) {
  const auto row = std::make_shared<int>(0);
  const auto field = [row](const char* name, std::function<Value(int)> value) {
    return NewScripted({{L"Name", Gives(name)},
                        {L"Value", [row, value = std::move(value)](DISPPARAMS&, VARIANT& result, EXCEPINFO&) {
                           result = VariantOf(value(*row)).Release();
                           return S_OK;
                         }}});
  };
  const auto number = field("CcyID", [](int at) { return Value(std::int32_t{900 + at}); });
  const auto code = field("Ccy", [](int at) { return at == 0 ? Value("EUR") : Value(); });
  const auto item = [number, code](DISPPARAMS& arguments) {
    return V_I4(arguments.rgvarg) == 0 ? number : code;
  };
  const auto fields = NewScripted({{L"Count", Gives(2)}, {L"Item", GivesObject(item)}});
  return NewScripted({{L"Fields", GivesObject([fields](DISPPARAMS&) { return fields; })},
                      {L"EOF",
                       [row, rows](DISPPARAMS&, VARIANT& result, EXCEPINFO&) {
                         result = VariantOf(*row >= rows).Release();
                         return S_OK;
                       }},
                      {L"MoveNext", [row](DISPPARAMS&, VARIANT&, EXCEPINFO&) {
                         ++*row;
                         return S_OK;
                       }}});
}

OutsideCall Named(ComPointer<IDispatch> object) { return {std::move(object), "Object"}; }

TEST(OutsideDictionaryObject, IsAskedByTheNamesOfItsMembers) {
  RunInApartment([] {
    std::string asked_for;
    OutsideDictionary dictionary(Named(NewScripted({
        {L"dic_ConnectionString", Gives("Driver={x};Pwd=y")},
        {L"dic_GetDicRecByFilter", GivesObject([&asked_for](DISPPARAMS& arguments) {
           asked_for = automation::Utf8OfBstr(V_BSTR(&arguments.rgvarg[1])) + "|" +
                       automation::Utf8OfBstr(V_BSTR(&arguments.rgvarg[0]));
           return NewRecords(2);
         })},
    })));
    EXPECT_EQ(dictionary.dic_ConnectionString(), "Driver={x};Pwd=y");
    const auto records = dictionary.dic_GetDicRecByFilter("Ccy", "CcyType = 0");
    EXPECT_EQ(asked_for, "Ccy|CcyType = 0");
    ASSERT_EQ(records->RowCount(), 2U);
    EXPECT_EQ((*records)["ccyid"], Value(900));
    EXPECT_EQ((*records)["Ccy"], Value("EUR"));
    records->MoveNext();
    EXPECT_TRUE((*records)["Ccy"].IsEmpty());
  });
}

TEST(OutsideDictionaryObject, MayHaveNoRows) {
  RunInApartment([] {
    const auto records = CopyOfRecordSet(Named(NewRecords(0)));
    EXPECT_TRUE(records->Bof());
    EXPECT_TRUE(records->Eof());
    EXPECT_EQ(records->FieldCount(), 2U);
  });
}

TEST(OutsideDictionaryObject, ThatRaisesIsAFailureWithItsNumberAndText) {
  RunInApartment([] {
    OutsideDictionary by_code(Named(NewScripted({{L"dic_ConnectionString", Raises(1004, 0, "Not now")}})));
    ExpectFailure([&] { static_cast<void>(by_code.dic_ConnectionString()); }, 1004,
                  "Object.dic_ConnectionString: Not now");
    constexpr auto kPlatformFailure = static_cast<SCODE>(0x800A005B);
    OutsideDictionary by_result(
        Named(NewScripted({{L"dic_ConnectionString", Raises(0, kPlatformFailure, "No object")}})));
    ExpectFailure([&] { static_cast<void>(by_result.dic_ConnectionString()); }, 91);
  });
}

TEST(OutsideDictionaryObject, WithoutAMemberIsAFailureThatNamesIt) {
  RunInApartment([] {
    OutsideDictionary dictionary(Named(NewScripted({})));
    ExpectFailure([&] { static_cast<void>(dictionary.dic_ConnectionString()); }, 438,
                  "Object.dic_ConnectionString: the object has no such member");
  });
}

TEST(OutsideDictionaryObject, ThatGivesNoRecordSetIsAFailure) {
  RunInApartment([] {
    for (const Value& rubbish : {Value(), Value("rows"), Value(7)}) {
      OutsideDictionary dictionary(Named(NewScripted({{L"dic_GetDicRecByFilter", Gives(rubbish)}})));
      ExpectFailure([&] { static_cast<void>(dictionary.dic_GetDicRecByFilter("Ccy", "")); }, 91,
                    "Object.dic_GetDicRecByFilter gave no object");
    }
    OutsideDictionary nothing(
        Named(NewScripted({{L"dic_GetDicRecByFilter", GivesObject([](DISPPARAMS&) { return nullptr; })}})));
    ExpectFailure([&] { static_cast<void>(nothing.dic_GetDicRecByFilter("Ccy", "")); }, 91);
  });
}

TEST(OutsideDictionaryObject, ThatGivesNoTextAsConnectionIsAFailure) {
  RunInApartment([] {
    OutsideDictionary dictionary(Named(NewScripted({{L"dic_ConnectionString", Gives({})}})));
    ExpectFailure([&] { static_cast<void>(dictionary.dic_ConnectionString()); }, 94);
  });
}

TEST(OutsideDictionaryObject, WithARecordSetThatDoesNotEndIsAFailure) {
  RunInApartment([] {
    ExpectFailure([] { static_cast<void>(CopyOfRecordSet(Named(NewRecords(1'000'000)))); }, 6,
                  "The record set does not end");
  });
}

TEST(OutsideDictionaryObject, ThatNothingIsRegisteredForCannotBeCreated) {
  RunInApartment([] {
    EXPECT_FALSE(OutsideCall::IsRegistered("Tessaro.Nothing"));
    ExpectFailure([] { static_cast<void>(OutsideCall::Create("Tessaro.Nothing")); }, 429);
  });
}

TEST(OutsideSharedServicesObject, GetsItsArgumentsInTheirOrder) {
  RunInApartment([] {
    std::vector<std::string> calls;
    const auto noting = [&calls](const std::string& member, const Value& result) {
      return [&calls, member, result](DISPPARAMS& arguments, VARIANT& to, EXCEPINFO&) {
        std::string call = member;
        for (UINT i = arguments.cArgs; i-- > 0;) {
          const VARIANT& argument = arguments.rgvarg[i];
          const bool is_text = V_VT(&argument) == VT_BSTR;
          call +=
              " " + (is_text ? automation::Utf8OfBstr(V_BSTR(&argument)) : std::to_string(V_VT(&argument)));
        }
        calls.push_back(call);
        to = VariantOf(result).Release();
        return S_OK;
      };
    };
    headless::World own;
    OutsideSharedServices services(Named(NewScripted({{L"SettingsRoot", noting("root", "\\Root")},
                                                      {L"ReadSetting", noting("read", 12.5)},
                                                      {L"WriteSetting", noting("write", {})},
                                                      {L"TraceMessage", noting("trace", {})},
                                                      {L"ShowMessage", noting("show", {})},
                                                      {L"ReportError", noting("report", {})}})),
                                   own.services);
    EXPECT_EQ(services.SettingsRoot(), "\\Root");
    EXPECT_EQ(services.ReadSetting("S", "N", {}, 1.0F), Value(12.5));
    services.WriteSetting("S", "N", 2.0F);
    services.TraceMessage("line");
    EXPECT_EQ(services.ShowMessage("text", 3, 1, 1, nullptr, "", true, true), 1);
    services.ReportError(-1, "why");
    // Numbers are types: 10 is what was left out, 9 no object, 4 a single, 3 a whole number, 11 a boolean.
    const std::vector<std::string> expected = {
        "root", "read S N 10 4", "write S N 4", "trace line", "show text 3 3 3 9  11 11", "report 3 why"};
    EXPECT_EQ(calls, expected);
  });
}

TEST(OutsideObjectsOfAThread, OwnOnesStandInWhereNoneAreRegistered) {
  RunInApartment([] {
    headless::World own;
    OutsideObjects objects([&own] { return own.services; }, [&own] { return own.dictionary; });
    EXPECT_EQ(objects.CreateObject(platform::kSharedServicesIdentifier), own.services);
    EXPECT_EQ(objects.CreateObject(platform::kDictionaryIdentifier), own.dictionary);
    ExpectFailure([&] { static_cast<void>(objects.CreateObject("Tessaro.Other")); }, 429);
  });
}

}  // namespace
}  // namespace ferrowind::testing
