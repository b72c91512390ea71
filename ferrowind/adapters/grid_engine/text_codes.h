#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace ferrowind::grid_engine {

/// Gives texts numbers, equal texts the same one, and then each number its place in the alphabet.
///
/// Columns repeat few texts many times; so a text is hashed where it is met and folded and compared once for
/// all its repetitions.
class TextCodes {
 public:
  TextCodes();

  /// The number of the text, counted from 0 in the order of first meeting. The text must outlive this object.
  [[nodiscard]] std::uint32_t NumberOf(std::string_view text);

  /// For each number the place of its text, counted from 0 without gaps; texts that differ in letter case
  /// alone share a place.
  [[nodiscard]] std::vector<std::uint32_t> Places() const;

 private:
  struct Slot {
    std::size_t hash = 0;
    std::uint32_t number_plus_one = 0;
  };

  void Grow();

  std::vector<Slot> slots_;
  std::vector<std::string_view> texts_;
  std::vector<std::size_t> hashes_;
};

}  // namespace ferrowind::grid_engine
