#pragma once

#include <string>

namespace ferrowind {

/// Which rules the Holidays window lists: with the removed ones or without. Rules of type 1 are never listed.
class HolidayFilter {
 public:
  /// `del_field` and `type_field` are the record-set fields of the removal mark and of the holiday type.
  /// Until the first `Toggle` there is no filter.
  HolidayFilter(std::string del_field, const std::string& type_field);

  /// Goes to the other state; the first time to the one that hides removed rules.
  void Toggle();
  /// The record-set filter of the state.
  [[nodiscard]] const std::string& Text() const { return text_; }
  /// What the button that leads to the other state reads.
  [[nodiscard]] const std::string& ButtonText() const { return button_text_; }

 private:
  std::string del_field_;
  std::string base_;
  std::string text_;
  std::string button_text_;
  /// Whether the next toggle shows the removed rules.
  bool shows_removed_next_ = false;
};

}  // namespace ferrowind
