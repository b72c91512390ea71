#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/phrase.h"

// How long the texts may be that a calendar database takes. What it holds from before there were limits may
// be longer.

namespace ferrowind::platform {

/// Of names, in characters.
inline constexpr std::size_t kLongestName = 200;
/// Of what is said about something, in characters.
inline constexpr std::size_t kLongestComment = 4000;
/// Of a list that a procedure takes as one text: the rules of a book, the days of a plan. In bytes.
inline constexpr std::size_t kLongestList = 1048576;

/// How many characters (code points) the UTF-8 text has. Of a text that is none, every byte that continues no
/// character counts as one.
[[nodiscard]] FERROWIND_EXPORT std::size_t CharacterCount(std::string_view text);

/// What a text is, which says how long it may be.
enum class FERROWIND_EXPORT LimitedText : std::uint8_t {
  /// These as long as names may be: of a rule or a currency, of the day that a holiday moves to, of who
  /// publishes a book.
  kName,
  kMovedName,
  kPublisher,
  /// These as long as comments may be.
  kDocument,
  kExpression,
  kComment,
  kDayComment,
};

/// A sentence without a full stop, such as "The name has 201 characters; it may have 200 at most", when
/// `text` is longer than what it is may be; else nothing.
[[nodiscard]] FERROWIND_EXPORT std::optional<Phrase> TooLong(LimitedText what, std::string_view text);

}  // namespace ferrowind::platform
