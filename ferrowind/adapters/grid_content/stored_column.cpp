#include "ferrowind/adapters/grid_content/stored_column.h"

#include "ferrowind/adapters/grid_engine/value_order.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::grid_content {

using platform::Value;

bool StoredValueList::ValueLess::operator()(const Value& left, const Value& right) const {
  const int order = grid_engine::CompareValues(left, right);
  if (order != 0) return order < 0;
  // Texts that differ in letter case alone are different values, though they sort alike.
  const auto* left_text = left.If<std::string>();
  const auto* right_text = right.If<std::string>();
  return left_text != nullptr && right_text != nullptr && *left_text < *right_text;
}

void StoredValueList::Add(const Value& value, const std::string& text) {
  texts_.emplace(value, text);
  ++count_;
  changed_();
}

std::string StoredValueList::TextOf(const Value& value) const {
  if (const std::string* text = Find(value)) return *text;
  const std::string named = value.IsObject() ? "of an object" : platform::ToTextOrEmpty(value);
  throw platform::Failure(platform::failure_number::kElementNotFound, "The value list has no value " + named);
}

const std::string* StoredValueList::Find(const Value& value) const {
  const auto found = texts_.find(value);
  return found == texts_.end() ? nullptr : &found->second;
}

std::vector<std::string> StoredValueList::Texts() const {
  std::vector<std::string> texts;
  for (const auto& [value, text] : texts_) texts.push_back(text);
  return texts;
}

void StoredColumn::SetCaption(const std::string& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  listener_.caption_changed();
}

void StoredColumn::SetBoundField(const std::string& field) {
  if (field == bound_field_) return;
  bound_field_ = field;
  listener_.cells_changed(*this);
}

void StoredColumn::SetVisible(bool visible) {
  if (visible == is_visible_) return;
  is_visible_ = visible;
  listener_.visibility_changed(*this);
}

void StoredColumn::SetUnbound(bool unbound) {
  if (unbound == is_unbound_) return;
  is_unbound_ = unbound;
  listener_.cells_changed(*this);
}

void StoredColumn::SetHasValueList(bool has_value_list) {
  if (has_value_list == HasValueList()) return;
  value_list_.reset();
  if (has_value_list) {
    value_list_ = std::make_unique<StoredValueList>([this] { listener_.cells_changed(*this); });
  }
  listener_.cells_changed(*this);
}

}  // namespace ferrowind::grid_content
