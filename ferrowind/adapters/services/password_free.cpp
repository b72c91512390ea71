#include "ferrowind/adapters/services/password_free.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace ferrowind {
namespace {

constexpr std::string_view kHidden = "***";
constexpr std::string_view kBlanks = " \t\r\n";

/// Each of these gives the place where something secret may begin, or npos.
std::size_t SecretOfUri(const std::string& text) {
  const std::size_t scheme = text.find("://");
  if (scheme == std::string::npos) return std::string::npos;
  const std::size_t authority = scheme + 3;
  const std::size_t encoded = text.find('%', authority);
  const std::size_t host = text.rfind('@');
  const std::size_t colon = text.find(':', authority);
  const bool has_password = host != std::string::npos && colon < host;
  return std::min(encoded, has_password ? colon + 1 : std::string::npos);
}

bool EndsInKeyword(const std::string& folded, std::size_t end) {
  constexpr std::array<std::string_view, 5> kKeywords = {"password", "pwd", "secret", "scram_client_key",
                                                         "scram_server_key"};
  return std::any_of(kKeywords.begin(), kKeywords.end(), [&](std::string_view keyword) {
    return end >= keyword.size() && folded.compare(end - keyword.size(), keyword.size(), keyword) == 0;
  });
}

std::size_t SecretOfKeyword(const std::string& text) {
  std::string folded = text;
  std::transform(folded.begin(), folded.end(), folded.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  for (std::size_t at = text.find('='); at != std::string::npos; at = text.find('=', at + 1)) {
    const std::size_t last = at == 0 ? std::string::npos : text.find_last_not_of(kBlanks, at - 1);
    if (last != std::string::npos && EndsInKeyword(folded, last + 1)) {
      return text.find_first_not_of(kBlanks, at + 1);
    }
  }
  return std::string::npos;
}

}  // namespace

std::string PasswordFree(const std::string& text) {
  const std::size_t secret = std::min(SecretOfUri(text), SecretOfKeyword(text));
  return secret < text.size() ? text.substr(0, secret) + std::string(kHidden) : text;
}

}  // namespace ferrowind
