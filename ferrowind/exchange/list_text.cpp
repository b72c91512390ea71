#include "ferrowind/exchange/list_text.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/exchange/listed_day.h"
#include "ferrowind/platform/values/text_limits.h"
#include "ferrowind/platform/values/utf8_text.h"
#include "ferrowind/platform/values/utf8_validation.h"

namespace ferrowind::exchange {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleMark = "\xFF\xFE";
constexpr std::string_view kBigMark = "\xFE\xFF";

[[noreturn]] void Refuse(std::size_t line, std::string text) { throw ListError({{line, std::move(text)}}); }

/// `bytes` are UTF-16 behind its mark.
std::string FromUtf16(std::string_view bytes, bool is_little) {
  std::string text;
  text.reserve(bytes.size());
  std::size_t line = 1;
  std::size_t place = 0;
  const auto next = [&]() -> std::uint32_t {
    if (place + 2 > bytes.size()) Refuse(line, "the text is UTF-16 and ends within a character");
    const auto first = static_cast<unsigned char>(bytes[place]);
    const auto second = static_cast<unsigned char>(bytes[place + 1]);
    place += 2;
    return is_little ? first | static_cast<std::uint32_t>(second) << 8U
                     : second | static_cast<std::uint32_t>(first) << 8U;
  };
  while (place < bytes.size()) {
    std::uint32_t code = next();
    if (code >= 0xD800 && code < 0xE000) {
      const std::uint32_t low = code < 0xDC00 ? next() : 0;
      if (low < 0xDC00 || low >= 0xE000) Refuse(line, "the text is UTF-16 with half a character in it");
      code = 0x10000 + ((code - 0xD800) << 10U) + (low - 0xDC00);
    }
    if (code == '\n') ++line;
    platform::AppendUtf8(code, text);
  }
  return text;
}

void RefuseOtherThanUtf8(const std::string& text) {
  std::size_t line = 1;
  for (std::size_t begin = 0; begin < text.size(); ++line) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    const std::string_view bytes = std::string_view(text).substr(begin, end - begin);
    if (bytes.find('\0') != std::string_view::npos) {
      Refuse(
          line,
          "there is a NUL character, as in a file that is no text, or is UTF-16 without a byte order mark; "
          "save it as UTF-8");
    }
    if (!platform::IsWellFormedUtf8(bytes)) {
      Refuse(line, "this is not UTF-8, but perhaps Latin-1 or Windows-1252; save it as UTF-8");
    }
    begin = end + 1;
  }
}

}  // namespace

std::string TextOfList(std::string bytes) {
  if (bytes.size() > kLongestList) {
    Refuse(0, "a list may have " + std::to_string(kLongestList / 1'000'000) +
                  " MB at most, and this one is longer");
  }
  if (bytes.starts_with(kLittleMark) || bytes.starts_with(kBigMark)) {
    bytes = FromUtf16(std::string_view(bytes).substr(kLittleMark.size()), bytes.starts_with(kLittleMark));
  } else if (bytes.starts_with(kUtf8Mark)) {
    bytes.erase(0, kUtf8Mark.size());
  }
  RefuseOtherThanUtf8(bytes);
  return bytes;
}

std::string TidyName(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  std::string name;
  while (true) {
    const std::size_t begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos) return name;
    text.remove_prefix(begin);
    const std::size_t end = std::min(text.find_first_of(kBlanks), text.size());
    if (!name.empty()) name += ' ';
    name += text.substr(0, end);
    text.remove_prefix(end);
  }
}

std::string FaultOfName(const std::string& name) {
  if (const std::size_t length = platform::CharacterCount(name); length > platform::kLongestName) {
    return "the name " + Quoted(name) + " has " + std::to_string(length) + " characters; it may have " +
           std::to_string(platform::kLongestName) + " at most";
  }
  const bool has_control = std::any_of(name.begin(), name.end(), [](char byte) {
    return static_cast<unsigned char>(byte) < ' ' || byte == '\x7F';
  });
  return has_control ? "the name " + Quoted(name) + " has a control character in it" : "";
}

}  // namespace ferrowind::exchange
