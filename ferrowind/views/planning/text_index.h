#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ferrowind {

/// Texts, numbered from 0, that are searched again and again while an operator types what to look for.
class TextIndex {
 public:
  /// Takes the text of the next number.
  void Add(std::string_view text);
  [[nodiscard]] std::size_t Count() const { return ends_.size(); }

  /// Tells of every text whether it has all the words of `typed` in it, in any order, as words or parts of
  /// them, and without regard to letter case. Without a word all texts have. Valid until the next call.
  ///
  /// A search for more of the same is cheaper: letters added to those of the last call leave out texts that
  /// it found, and can find no others.
  [[nodiscard]] const std::vector<bool>& Having(std::string_view typed);

 private:
  void FindAll();
  [[nodiscard]] std::string_view Text(std::size_t number) const;
  void KeepThoseWith(std::string_view word);
  /// As `KeepThoseWith`, for when nearly all are still to be looked at.
  void KeepOfAllThoseWith(std::string_view word);

  /// Folded, each with a line break behind it, which no text has in it.
  std::string texts_;
  std::vector<std::size_t> ends_;
  std::vector<bool> found_;
  std::size_t found_count_ = 0;
  std::string last_typed_;
};

}  // namespace ferrowind
