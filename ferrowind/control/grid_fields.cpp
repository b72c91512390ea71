#include "ferrowind/control/grid_fields.h"

#include "ferrowind/control/component_error.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind {
namespace {

void RequireConstant(const GridField& field) {
  if (!field.IsConst()) throw platform::Failure(kComponentError, "It's constant header");
}

}  // namespace

void GridFields::Add(const std::string& LocalName, const std::string& FieldName, const std::string& Caption,
                     const bool& Visible) {
  auto field = std::make_shared<GridField>();
  field->SetLocalName(LocalName);
  field->SetFieldName(FieldName);
  field->SetCaption(Caption);
  field->SetVisible(Visible);
  local_names_.Append(LocalName, field);
  field_names_.Append(FieldName, field);
}

std::shared_ptr<GridField> GridFields::LocalNames(const platform::Value& LocalIndex) const {
  return local_names_.At(LocalIndex);
}

std::shared_ptr<GridField> GridFields::Fields(const platform::Value& FieldIndex) const {
  return field_names_.At(FieldIndex);
}

void GridFields::RemoveByLocalIndex(const platform::Value& LocalIndex) {
  RequireConstant(*local_names_.At(LocalIndex));
  local_names_.Remove(LocalIndex);
  local_names_.Remove(LocalIndex);
}

void GridFields::RemoveByFieldIndex(const platform::Value& FieldIndex) {
  RequireConstant(*field_names_.At(FieldIndex));
  field_names_.Remove(FieldIndex);
}

void GridFields::Clear() {
  const std::int32_t count = local_names_.Count();
  for (Columns* columns : {&local_names_, &field_names_}) {
    for (std::int32_t i = 0; i < count; ++i) {
      if (!columns->At(1)->IsConst()) columns->Remove(1);
    }
  }
}

void GridFields::EventGridField_GetIndex(std::string& TmpLocalName, std::int32_t& TmpIndex) const {
  for (std::int32_t i = 1; i <= local_names_.Count(); ++i) {
    if (local_names_.At(i)->LocalName() == TmpLocalName) {
      TmpIndex = i;
      return;
    }
  }
}

}  // namespace ferrowind
