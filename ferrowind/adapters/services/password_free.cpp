#include "ferrowind/adapters/services/password_free.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace ferrowind {
namespace {

constexpr std::string_view kHidden = "***";
constexpr std::string_view kBlanks = " \t\r\n";

/// The user part of a URI ends at the last "@" before its path, for a password may hold one itself.
std::string WithoutUriPasswords(const std::string& text) {
  std::string free;
  std::size_t done = 0;
  for (std::size_t at = text.find("://"); at != std::string::npos; at = text.find("://", done)) {
    const std::size_t authority = at + 3;
    const std::size_t blank = std::min(text.find_first_of(" \t\r\n\"'", authority), text.size());
    const std::size_t path = std::min(text.find_first_of("/?#", authority), blank);
    const std::size_t host_by_path = text.rfind('@', path);
    // A password may also hold a slash that somebody forgot to encode.
    const bool is_in_authority =
        host_by_path != std::string::npos && host_by_path >= authority && host_by_path < path;
    const std::size_t host = is_in_authority ? host_by_path : text.rfind('@', blank);
    const std::size_t colon = text.find(':', authority);
    free.append(text, done, authority - done);
    done = authority;
    if (host == std::string::npos || host < authority || host >= blank || colon >= host) continue;
    free.append(text, authority, colon + 1 - authority).append(kHidden);
    done = host;
  }
  return free.append(text, done);
}

bool EndsInKeyword(const std::string& folded, std::size_t end) {
  constexpr std::array<std::string_view, 2> kKeywords = {"password", "pwd"};
  return std::any_of(kKeywords.begin(), kKeywords.end(), [&](std::string_view keyword) {
    return end >= keyword.size() && folded.compare(end - keyword.size(), keyword.size(), keyword) == 0;
  });
}

std::size_t EndOfValue(const std::string& text, std::size_t begin) {
  if (begin < text.size() && (text[begin] == '\'' || text[begin] == '"')) {
    const char quote = text[begin];
    for (std::size_t at = begin + 1; at < text.size(); ++at) {
      if (text[at] == '\\') {
        ++at;
      } else if (text[at] == quote) {
        return at + 1;
      }
    }
    return text.size();
  }
  return std::min(text.find_first_of(" \t\r\n&;", begin), text.size());
}

std::string WithoutKeywordPasswords(const std::string& text) {
  std::string folded = text;
  std::transform(folded.begin(), folded.end(), folded.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  std::string free;
  std::size_t done = 0;
  for (std::size_t at = text.find('='); at != std::string::npos;
       at = text.find('=', std::max(at + 1, done))) {
    const std::size_t last = at == 0 ? std::string::npos : text.find_last_not_of(kBlanks, at - 1);
    if (last == std::string::npos || !EndsInKeyword(folded, last + 1)) continue;
    const std::size_t value = std::min(text.find_first_not_of(kBlanks, at + 1), text.size());
    free.append(text, done, value - done).append(value < text.size() ? kHidden : "");
    done = EndOfValue(text, value);
  }
  return free.append(text, done);
}

}  // namespace

std::string PasswordFree(const std::string& text) {
  return WithoutKeywordPasswords(WithoutUriPasswords(text));
}

}  // namespace ferrowind
