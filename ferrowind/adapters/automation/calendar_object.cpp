#include "ferrowind/adapters/automation/calendar_object.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>

#include "ferrowind/adapters/automation/native_failure.h"
#include "ferrowind/adapters/automation/owned_variant.h"
#include "ferrowind/adapters/automation/variant_value.h"

namespace ferrowind::automation {
namespace {

void GiveMap(std::shared_ptr<GridFields> map, ComPointer<GridFieldsObject>& object, _GridFields** to) {
  if (!object) object.Attach(new GridFieldsObject(std::move(map)));
  RequireSuccess(object.CopyTo(to));
}

template <std::size_t kSize>
OwnedVariant ArrayOf(const std::array<platform::Value, kSize>& values) {
  std::array<OwnedVariant, kSize> made;
  std::transform(values.begin(), values.end(), made.begin(), &VariantOf);
  OwnedVariant result;
  V_ARRAY(result.Address()) = SafeArrayCreateVector(VT_VARIANT, 0, kSize);
  if (V_ARRAY(result.Address()) == nullptr) throw std::bad_alloc();
  V_VT(result.Address()) = VT_ARRAY | VT_VARIANT;
  VARIANT* elements = nullptr;
  RequireSuccess(SafeArrayAccessData(V_ARRAY(result.Address()), reinterpret_cast<void**>(&elements)));
  for (auto& each : made) *elements++ = each.Release();
  RequireSuccess(SafeArrayUnaccessData(V_ARRAY(result.Address())));
  return result;
}

}  // namespace

CalendarObject::CalendarObject(std::shared_ptr<Surroundings> surroundings)
    : EventSource({__uuidof(::Calendar), __uuidof(_Calendar), __uuidof(__Calendar)}),
      surroundings_(std::move(surroundings)),
      calendar_(surroundings_->Get()) {}

HRESULT CalendarObject::ForceClosing(VARIANT_BOOL* closed) {
  if (closed == nullptr) return E_POINTER;
  *closed = VARIANT_FALSE;
  return Guard([&] { *closed = calendar_.ForceClosing() ? VARIANT_TRUE : VARIANT_FALSE; });
}

HRESULT CalendarObject::Show() {
  return Guard([&] { calendar_.Show(); });
}

HRESULT CalendarObject::get_Headers(_GridFields** map) {
  if (map == nullptr) return E_POINTER;
  *map = nullptr;
  return Guard([&] { GiveMap(calendar_.Headers(), headers_, map); });
}

HRESULT CalendarObject::get_HolidayHeaders(_GridFields** map) {
  if (map == nullptr) return E_POINTER;
  *map = nullptr;
  return Guard([&] { GiveMap(calendar_.HolidayHeaders(), holiday_headers_, map); });
}

HRESULT CalendarObject::get_Version(VARIANT* parts) {
  if (parts == nullptr) return E_POINTER;
  VariantInit(parts);
  return Guard([&] { *parts = ArrayOf(Calendar::Version()).Release(); });
}

}  // namespace ferrowind::automation
