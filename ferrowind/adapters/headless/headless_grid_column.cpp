#include "ferrowind/adapters/headless/headless_grid_column.h"

#include <algorithm>

#include "ferrowind/adapters/grid_engine/value_order.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

void HeadlessGridValueList::Add(const platform::Value& value, const std::string& text) {
  log_.Record(CallText(object_, "Add", {value, text}));
  pairs_.emplace_back(value, text);
}

std::string HeadlessGridValueList::TextOf(const platform::Value& value) const {
  if (auto text = FindText(value)) return *std::move(text);
  throw platform::Failure(platform::failure_number::kElementNotFound,
                          "The value list has no value " + ArgumentText(value));
}

std::optional<std::string> HeadlessGridValueList::FindText(const platform::Value& value) const {
  const auto found = std::find_if(pairs_.begin(), pairs_.end(), [&](const auto& pair) {
    return grid_engine::SameValue(pair.first, value);
  });
  if (found == pairs_.end()) return std::nullopt;
  return found->second;
}

HeadlessGridColumn::HeadlessGridColumn(Context context, std::int16_t index, std::string key,
                                       std::string caption)
    : context_(std::move(context)),
      index_(index),
      key_(std::move(key)),
      caption_(std::move(caption)),
      object_(context_.grid_name + ".Columns(" + key_ + ")") {}

void HeadlessGridColumn::SetCaption(const std::string& caption) {
  Record("SetCaption", {caption});
  caption_ = caption;
}

void HeadlessGridColumn::SetBoundField(const std::string& field) {
  Record("SetBoundField", {field});
  bound_field_ = field;
}

void HeadlessGridColumn::SetVisible(bool visible) {
  Record("SetVisible", {visible});
  visible_ = visible;
}

void HeadlessGridColumn::SetGroupable(std::int32_t groupable) {
  Record("SetGroupable", {groupable});
  groupable_ = groupable;
}

void HeadlessGridColumn::SetUnbound(bool unbound) {
  Record("SetUnbound", {unbound});
  unbound_ = unbound;
  context_.cells_changed();
}

void HeadlessGridColumn::SetHasValueList(bool has_value_list) {
  Record("SetHasValueList", {has_value_list});
  if (has_value_list == HasValueList()) return;
  if (has_value_list) {
    value_list_.emplace(context_.log, object_ + ".ValueList");
  } else {
    value_list_.reset();
  }
}

void HeadlessGridColumn::Record(const std::string& method, const std::vector<platform::Value>& arguments) {
  context_.log.Record(CallText(object_, method, arguments));
}

}  // namespace ferrowind::headless
