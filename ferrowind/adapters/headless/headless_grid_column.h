#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/headless/call_log.h"
#include "ferrowind/platform/toolkit/grid_column.h"

namespace ferrowind::headless {

class HeadlessGridValueList : public platform::GridValueList {
 public:
  /// `object` is the name of the list in the log; `log` must outlive the list.
  HeadlessGridValueList(CallLog& log, std::string object) : log_(log), object_(std::move(object)) {}

  void Add(const platform::Value& value, const std::string& text) override;
  [[nodiscard]] std::int32_t Count() const override { return static_cast<std::int32_t>(pairs_.size()); }
  [[nodiscard]] std::string TextOf(const platform::Value& value) const override;
  /// As `TextOf`; nothing for a value that is not in the list.
  [[nodiscard]] std::optional<std::string> FindText(const platform::Value& value) const;

 private:
  CallLog& log_;
  std::string object_;
  std::vector<std::pair<platform::Value, std::string>> pairs_;
};

class HeadlessGridColumn : public platform::GridColumn {
 public:
  /// What a column must know of its grid.
  struct Context {
    CallLog& log;
    std::string grid_name;
    /// The order of the column of that index among the sort keys.
    std::function<std::int32_t(std::int16_t index)> sort_order;
    /// The cells of the column are no longer what they were.
    std::function<void()> cells_changed;
  };

  HeadlessGridColumn(Context context, std::int16_t index, std::string key, std::string caption);

  [[nodiscard]] const std::string& Key() const override { return key_; }
  [[nodiscard]] std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& caption) override;
  [[nodiscard]] std::int16_t Index() const override { return index_; }
  [[nodiscard]] std::string BoundField() const override { return bound_field_; }
  void SetBoundField(const std::string& field) override;
  [[nodiscard]] bool Visible() const override { return visible_; }
  void SetVisible(bool visible) override;
  void SetGroupable(std::int32_t groupable) override;
  [[nodiscard]] bool Unbound() const override { return unbound_; }
  void SetUnbound(bool unbound) override;
  [[nodiscard]] bool HasValueList() const override { return value_list_.has_value(); }
  void SetHasValueList(bool has_value_list) override;
  [[nodiscard]] platform::GridValueList* ValueList() override {
    return value_list_ ? &*value_list_ : nullptr;
  }
  [[nodiscard]] std::int32_t SortOrder() const override { return context_.sort_order(index_); }

  /// What `SetGroupable` was given last; 0 at first.
  [[nodiscard]] std::int32_t Groupable() const { return groupable_; }
  [[nodiscard]] const HeadlessGridValueList* Values() const { return value_list_ ? &*value_list_ : nullptr; }

 private:
  void Record(const std::string& method, const std::vector<platform::Value>& arguments);

  Context context_;
  std::int16_t index_;
  std::string key_;
  std::string caption_;
  std::string object_;
  std::string bound_field_;
  bool visible_ = true;
  bool unbound_ = false;
  std::int32_t groupable_ = 0;
  std::optional<HeadlessGridValueList> value_list_;
};

}  // namespace ferrowind::headless
