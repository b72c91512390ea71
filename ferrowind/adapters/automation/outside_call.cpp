#include "ferrowind/adapters/automation/outside_call.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include <objbase.h>
#include <oleauto.h>

#include "ferrowind/adapters/automation/native_failure.h"
#include "ferrowind/adapters/automation/text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::automation {
namespace {

using platform::Failure;

constexpr std::int32_t kNoSuchMember = 438;

/// What an object raised, owned.
class Raised {
 public:
  ~Raised() {
    for (BSTR text : {exception_.bstrSource, exception_.bstrDescription, exception_.bstrHelpFile}) {
      SysFreeString(text);
    }
  }
  Raised() = default;
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

  [[nodiscard]] EXCEPINFO* Address() { return &exception_; }
  [[nodiscard]] Failure As(const std::string& member) {
    if (exception_.pfnDeferredFillIn != nullptr) exception_.pfnDeferredFillIn(&exception_);
    const std::string description = Utf8OfBstr(exception_.bstrDescription);
    const std::int32_t number = exception_.wCode != 0 ? exception_.wCode : NumberOf(exception_.scode);
    return {number, member + ": " + (description.empty() ? "it failed without a description" : description)};
  }

 private:
  /// The platform's own failures have small numbers.
  static std::int32_t NumberOf(SCODE code) {
    return HRESULT_FACILITY(code) == FACILITY_CONTROL ? HRESULT_CODE(code) : code;
  }

  EXCEPINFO exception_{};
};

}  // namespace

OutsideCall::OutsideCall(ComPointer<IDispatch> object, std::string name)
    : object_(std::move(object)), name_(std::move(name)) {}

OutsideCall OutsideCall::Create(const std::string& programmatic_identifier) {
  CLSID class_id{};
  ComPointer<IDispatch> object;
  HRESULT outcome = CLSIDFromProgID(Utf16(programmatic_identifier).c_str(), &class_id);
  if (SUCCEEDED(outcome)) {
    outcome = CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                               __uuidof(*object.Get()), object.ReceiveAny());
  }
  if (FAILED(outcome)) {
    throw Failure(platform::failure_number::kCannotCreateObject,
                  programmatic_identifier + " cannot be created: " + NativeFailure(outcome).Description());
  }
  return {std::move(object), programmatic_identifier};
}

bool OutsideCall::IsRegistered(const std::string& programmatic_identifier) {
  CLSID class_id{};
  return SUCCEEDED(CLSIDFromProgID(Utf16(programmatic_identifier).c_str(), &class_id));
}

OwnedVariant OutsideCall::Call(const char* member, std::vector<OwnedVariant> arguments) const {
  const DISPID identifier = IdentifierOf(member);
  std::vector<VARIANT> passed;
  // The last one comes first.
  std::for_each(arguments.rbegin(), arguments.rend(),
                [&passed](const OwnedVariant& argument) { passed.push_back(argument.Get()); });
  DISPPARAMS parameters{passed.data(), nullptr, static_cast<UINT>(passed.size()), 0};
  OwnedVariant result;
  Raised raised;
  const HRESULT outcome =
      object_->Invoke(identifier, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                      &parameters, result.Address(), raised.Address(), nullptr);
  if (outcome == DISP_E_EXCEPTION) throw raised.As(Named(member));
  if (FAILED(outcome)) throw Failure(outcome, Named(member) + ": " + NativeFailure(outcome).Description());
  return result;
}

OutsideCall OutsideCall::ObjectOf(const char* member, std::vector<OwnedVariant> arguments) const {
  OwnedVariant result = Call(member, std::move(arguments));
  ComPointer<IDispatch> object;
  const bool may_be_object = result.Type() == VT_DISPATCH || result.Type() == VT_UNKNOWN;
  IUnknown* const held = may_be_object ? V_UNKNOWN(&result.Get()) : nullptr;
  if (held == nullptr || FAILED(held->QueryInterface(__uuidof(*object.Get()), object.ReceiveAny()))) {
    throw Failure(platform::failure_number::kObjectNotSet, Named(member) + " gave no object");
  }
  return {std::move(object), Named(member)};
}

DISPID OutsideCall::IdentifierOf(const char* member) const {
  if (!object_) throw Failure(platform::failure_number::kObjectNotSet, name_ + " is no object");
  std::wstring name = Utf16(member);
  LPOLESTR names = name.data();
  DISPID identifier = DISPID_UNKNOWN;
  if (FAILED(object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &identifier))) {
    throw Failure(kNoSuchMember, Named(member) + ": the object has no such member");
  }
  return identifier;
}

}  // namespace ferrowind::automation
