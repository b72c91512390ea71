#pragma once

#include <QComboBox>

#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/platform/toolkit/drop_down_list.h"

namespace ferrowind::qt {

class QtDropDownList : public QtControl<platform::DropDownList> {
 public:
  explicit QtDropDownList(QComboBox& box);

  void AddItem(const std::string& text, std::int32_t item_data) override;
  [[nodiscard]] std::int32_t Count() const override;
  [[nodiscard]] std::string ItemText(std::int32_t position) const override;
  [[nodiscard]] std::int32_t ItemData(std::int32_t position) const override;
  [[nodiscard]] std::int32_t Chosen() const override;
  void Choose(std::int32_t position) override;
  [[nodiscard]] platform::Subscription OnChoice(std::function<void()> handler) override;

 private:
  void RequirePosition(std::int32_t position) const;

  QComboBox& box_;
  platform::Signal<> chosen_;
};

}  // namespace ferrowind::qt
