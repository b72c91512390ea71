#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace ferrowind::win32 {

/// Finds the row whose text begins with what the operator types, letters that follow each other at once
/// together.
class TypeAhead {
 public:
  /// Whether a letter of now continues what was typed just before.
  [[nodiscard]] bool IsTyping() const;
  /// The row, from `current` on and around, whose text begins so; nothing when none does. One letter again
  /// and again goes from one such row to the next.
  [[nodiscard]] std::optional<std::size_t> Type(wchar_t letter, std::size_t current, std::size_t rows,
                                                const std::function<std::wstring(std::size_t)>& text_of);
  void Forget() { typed_.clear(); }

 private:
  std::wstring typed_;
  unsigned long long last_ = 0;
};

}  // namespace ferrowind::win32
