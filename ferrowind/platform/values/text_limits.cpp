#include "ferrowind/platform/values/text_limits.h"

#include <algorithm>
#include <string>

namespace ferrowind::platform {
namespace {

//: said
const char* SentenceFor(LimitedText what) {
  switch (what) {
    case LimitedText::kName:
      return "The name has %1 characters; it may have %2 at most";
    case LimitedText::kMovedName:
      return "The name of the moved day has %1 characters; it may have %2 at most";
    case LimitedText::kPublisher:
      return "The publisher has %1 characters; it may have %2 at most";
    case LimitedText::kDocument:
      return "The document has %1 characters; it may have %2 at most";
    case LimitedText::kExpression:
      return "The expression has %1 characters; it may have %2 at most";
    case LimitedText::kComment:
      return "The comment has %1 characters; it may have %2 at most";
    case LimitedText::kDayComment:
      return "The comment of the days has %1 characters; it may have %2 at most";
  }
  return "";
}

std::size_t LongestOf(LimitedText what) {
  return what <= LimitedText::kPublisher ? kLongestName : kLongestComment;
}

}  // namespace

std::size_t CharacterCount(std::string_view text) {
  const auto begins_one = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; };
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), begins_one));
}

std::optional<Phrase> TooLong(LimitedText what, std::string_view text) {
  const std::size_t count = CharacterCount(text);
  if (count <= LongestOf(what)) return std::nullopt;
  return Phrase::Of(SentenceFor(what), {std::to_string(count), std::to_string(LongestOf(what))});
}

}  // namespace ferrowind::platform
