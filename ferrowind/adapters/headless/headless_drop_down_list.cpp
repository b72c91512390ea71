#include "ferrowind/adapters/headless/headless_drop_down_list.h"

#include <algorithm>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

void HeadlessDropDownList::AddItem(const std::string& text, std::int32_t item_data) {
  core_.Record("AddItem", {text, item_data});
  items_.push_back({text, item_data});
}

void HeadlessDropDownList::Choose(std::int32_t position) {
  core_.Record("Choose", {position});
  if (position < -1 || position >= Count()) throw platform::SubscriptOutOfRange();
  const auto keep = core_.Keep();
  ChangeChoice(position);
}

void HeadlessDropDownList::ChooseByOperator(const std::string& text) {
  const auto keep = core_.BeginAction("ChooseByOperator", {text});
  const auto found =
      std::find_if(items_.begin(), items_.end(), [&](const Item& item) { return item.text == text; });
  if (found == items_.end()) core_.RaiseScriptError("The list " + Name() + " has no item " + text);
  core_.TakeFocus();
  ChangeChoice(static_cast<std::int32_t>(found - items_.begin()));
}

const HeadlessDropDownList::Item& HeadlessDropDownList::ItemAt(std::int32_t position) const {
  if (position < 0 || position >= Count()) throw platform::SubscriptOutOfRange();
  return items_[static_cast<std::size_t>(position)];
}

void HeadlessDropDownList::ChangeChoice(std::int32_t position) {
  if (position == chosen_) return;
  chosen_ = position;
  choice_.Emit();
}

}  // namespace ferrowind::headless
