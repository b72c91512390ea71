#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ferrowind/adapters/automation/event_source.h"
#include "ferrowind/control/grid_field.h"
#include "ferrowind/platform/events/subscription.h"

#include "generated/ferrowind.h"

namespace ferrowind::automation {

/// A column of a column map, as hosts see it.
class GridFieldObject : public EventSource<_GridField> {
 public:
  /// `field` is not null.
  explicit GridFieldObject(std::shared_ptr<GridField> field);

  /// Never null.
  [[nodiscard]] const std::shared_ptr<GridField>& Field() const { return field_; }

  HRESULT STDMETHODCALLTYPE get_FieldName(BSTR* value) override;
  HRESULT STDMETHODCALLTYPE put_FieldName(BSTR value) override;
  HRESULT STDMETHODCALLTYPE get_Visible(VARIANT_BOOL* value) override;
  HRESULT STDMETHODCALLTYPE put_Visible(VARIANT_BOOL value) override;
  HRESULT STDMETHODCALLTYPE get_Caption(BSTR* value) override;
  HRESULT STDMETHODCALLTYPE put_Caption(BSTR value) override;
  HRESULT STDMETHODCALLTYPE get_LocalName(BSTR* value) override;
  HRESULT STDMETHODCALLTYPE put_LocalName(BSTR value) override;
  HRESULT STDMETHODCALLTYPE get_Index(LONG* value) override;
  HRESULT STDMETHODCALLTYPE get_IsConst(VARIANT_BOOL* value) override;

 private:
  void RaiseGetIndex(std::string& local_name, std::int32_t& index) const;

  std::shared_ptr<GridField> field_;
  platform::Subscription asked_for_index_;
};

}  // namespace ferrowind::automation
