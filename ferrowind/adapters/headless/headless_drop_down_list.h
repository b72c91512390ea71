#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/headless/headless_control.h"
#include "ferrowind/platform/toolkit/drop_down_list.h"

namespace ferrowind::headless {

class HeadlessDropDownList : public HeadlessControl<platform::DropDownList> {
 public:
  using HeadlessControl::HeadlessControl;

  void AddItem(const std::string& text, std::int32_t item_data) override;
  [[nodiscard]] std::int32_t Count() const override { return static_cast<std::int32_t>(items_.size()); }
  [[nodiscard]] std::string ItemText(std::int32_t position) const override { return ItemAt(position).text; }
  [[nodiscard]] std::int32_t ItemData(std::int32_t position) const override { return ItemAt(position).data; }
  [[nodiscard]] std::int32_t Chosen() const override { return chosen_; }
  void Choose(std::int32_t position) override;
  [[nodiscard]] platform::Subscription OnChoice(std::function<void()> handler) override {
    return choice_.Subscribe(std::move(handler));
  }

  /// The operator opens the list and chooses the first item of that text; script error when there is none.
  void ChooseByOperator(const std::string& text);

 private:
  struct Item {
    std::string text;
    std::int32_t data;
  };

  [[nodiscard]] const Item& ItemAt(std::int32_t position) const;
  void ChangeChoice(std::int32_t position);

  std::vector<Item> items_;
  std::int32_t chosen_ = -1;
  platform::Signal<> choice_;
};

}  // namespace ferrowind::headless
