#include "ferrowind/adapters/automation/call_guard.h"

#include <cstdint>
#include <exception>
#include <new>
#include <string>

#include <oaidl.h>
#include <oleauto.h>

#include "ferrowind/adapters/automation/owned_bstr.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::automation {
namespace {

HRESULT ResultOf(std::int32_t number) {
  constexpr std::int32_t kLastOfPlatform = 0xFFFF;
  if (number < 0) return number;
  if (number == 0 || number > kLastOfPlatform) return E_FAIL;
  return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
}

void TellDescription(REFIID interface_id, const std::string& description) {
  const OwnedBstr text(description);
  ComPointer<ICreateErrorInfo> created;
  ComPointer<IErrorInfo> information;
  if (FAILED(CreateErrorInfo(created.Receive())) || FAILED(created.As(information))) return;
  created->SetGUID(interface_id);
  created->SetDescription(text.Get());
  SetErrorInfo(0, information.Get());
}

}  // namespace

HRESULT TellFailureBeingHandled(REFIID interface_id) noexcept {
  try {
    try {
      throw;
    } catch (const platform::Failure& failure) {
      TellDescription(interface_id, failure.Description());
      return ResultOf(failure.Number());
    } catch (const std::bad_alloc&) {
      return E_OUTOFMEMORY;
    } catch (const std::exception& other) {
      TellDescription(interface_id, other.what());
      return E_FAIL;
    }
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace ferrowind::automation
