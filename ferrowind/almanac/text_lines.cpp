#include "ferrowind/almanac/text_lines.h"

#include <algorithm>

#include "ferrowind/almanac/text_error.h"
#include "ferrowind/platform/values/utf8_validation.h"

namespace ferrowind::almanac {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

TextLines::TextLines(std::string_view text) : rest_(text) {
  if (rest_.starts_with(kByteOrderMark)) rest_.remove_prefix(kByteOrderMark.size());
}

bool TextLines::Next() {
  while (!rest_.empty()) {
    whole_line_ = rest_.substr(0, rest_.find('\n'));
    rest_.remove_prefix(std::min(whole_line_.size() + 1, rest_.size()));
    ++number_;
    line_ = WithoutOuterBlanks(whole_line_);
    if (!platform::IsWellFormedUtf8(whole_line_)) throw TextError(number_, 1, "the line is no UTF-8");
    if (line_.empty() || line_.front() == '#') continue;
    if (const auto control = FindControlCharacter(line_); control != std::string_view::npos) {
      throw TextError(number_, PlaceOf(line_.substr(control)), "the line holds a control character");
    }
    return true;
  }
  return false;
}

std::size_t TextLines::PlaceOf(std::string_view part) const {
  return static_cast<std::size_t>(part.data() - whole_line_.data()) + 1;
}

std::size_t FindControlCharacter(std::string_view text) {
  const auto is_control = [](char c) {
    return (static_cast<unsigned char>(c) < 0x20 && c != '\t') || c == 0x7F;
  };
  const auto found = std::find_if(text.begin(), text.end(), is_control);
  return found == text.end() ? std::string_view::npos : static_cast<std::size_t>(found - text.begin());
}

std::string_view WithoutOuterBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return text.substr(text.size());
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace ferrowind::almanac
