#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "ferrowind/platform/toolkit/grid_column.h"

namespace ferrowind::grid_content {

class StoredValueList final : public platform::GridValueList {
 public:
  /// `changed` is called after each addition.
  explicit StoredValueList(std::function<void()> changed) : changed_(std::move(changed)) {}

  void Add(const platform::Value& value, const std::string& text) override;
  [[nodiscard]] std::int32_t Count() const override { return count_; }
  [[nodiscard]] std::string TextOf(const platform::Value& value) const override;
  /// The text shown for `value`, or null when it is not in the list. Stays good as long as the list.
  [[nodiscard]] const std::string* Find(const platform::Value& value) const;
  [[nodiscard]] std::vector<std::string> Texts() const;

 private:
  struct ValueLess {
    bool operator()(const platform::Value& left, const platform::Value& right) const;
  };

  std::function<void()> changed_;
  std::int32_t count_ = 0;
  std::map<platform::Value, std::string, ValueLess> texts_;
};

/// A column of a grid, whoever shows it.
class StoredColumn final : public platform::GridColumn {
 public:
  /// Who keeps step with the column. All are called after the change.
  struct Listener {
    std::function<void(StoredColumn& column)> cells_changed;
    std::function<void(StoredColumn& column)> visibility_changed;
    std::function<void()> caption_changed;
    std::function<std::int32_t(const StoredColumn& column)> sort_order;
  };

  StoredColumn(Listener listener, std::int16_t index, std::string key, std::string caption)
      : listener_(std::move(listener)), index_(index), key_(std::move(key)), caption_(std::move(caption)) {}

  [[nodiscard]] const std::string& Key() const override { return key_; }
  [[nodiscard]] std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& caption) override;
  [[nodiscard]] std::int16_t Index() const override { return index_; }
  [[nodiscard]] std::string BoundField() const override { return bound_field_; }
  void SetBoundField(const std::string& field) override;
  [[nodiscard]] bool Visible() const override { return is_visible_; }
  void SetVisible(bool visible) override;
  void SetGroupable(std::int32_t groupable) override { is_groupable_ = groupable != 0; }
  [[nodiscard]] bool IsGroupable() const { return is_groupable_; }
  [[nodiscard]] bool Unbound() const override { return is_unbound_; }
  void SetUnbound(bool unbound) override;
  [[nodiscard]] bool HasValueList() const override { return value_list_ != nullptr; }
  void SetHasValueList(bool has_value_list) override;
  [[nodiscard]] platform::GridValueList* ValueList() override { return value_list_.get(); }
  [[nodiscard]] const StoredValueList* Values() const { return value_list_.get(); }
  [[nodiscard]] std::int32_t SortOrder() const override { return listener_.sort_order(*this); }

 private:
  Listener listener_;
  std::int16_t index_;
  std::string key_;
  std::string caption_;
  std::string bound_field_;
  bool is_visible_ = true;
  bool is_groupable_ = true;
  bool is_unbound_ = false;
  std::unique_ptr<StoredValueList> value_list_;
};

}  // namespace ferrowind::grid_content
