#include "host/desktop/database_name.h"

#include <algorithm>
#include <cctype>
#include <charconv>

#include "ferrowind/adapters/services/password_free.h"

namespace ferrowind::host {
namespace {

/// Removes from the front of `text`, and gives, what stands before `mark`; all of it when the mark is
/// missing.
std::string TakeBefore(std::string& text, const std::string& marks) {
  const auto end = std::min(text.find_first_of(marks), text.size());
  std::string taken = text.substr(0, end);
  text.erase(0, end);
  return taken;
}

/// "%41" as "A"; what is no such sequence stays as it is.
std::string Decoded(const std::string& text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    unsigned char byte = 0;
    if (text[i] == '%' && i + 2 < text.size()) {
      const auto end = std::from_chars(&text[i + 1], &text[i + 1] + 2, byte, 16);
      if (end.ec == std::errc() && end.ptr == &text[i + 1] + 2 && std::isprint(byte) != 0) {
        plain += static_cast<char>(byte);
        i += 2;
        continue;
      }
    }
    plain += text[i];
  }
  return plain;
}

std::string OfFile(const std::string& path) {
  const std::string name = path.substr(path.find_last_of('/') + 1);
  return name.empty() ? path : name;
}

/// The parts of "user@host:port/name?options", each of which may be missing.
std::string OfServer(std::string rest) {
  std::string authority = TakeBefore(rest, "/?");
  std::string name = rest.starts_with('/') ? Decoded(TakeBefore(rest.erase(0, 1), "?")) : "";
  if (const auto user_end = authority.find_last_of('@'); user_end != std::string::npos) {
    authority.erase(0, user_end + 1);
  }
  const bool is_bracketed = authority.starts_with('[');
  std::string host = TakeBefore(authority, is_bracketed ? "]" : ":");
  if (is_bracketed) host.erase(0, 1);
  if (name.empty()) name = "The default database";
  return name + " on " + (host.empty() ? "this computer" : Decoded(host));
}

}  // namespace

std::string DatabaseName(const std::string& connection_string) {
  std::string rest = connection_string;
  const std::string scheme = TakeBefore(rest, ":");
  if (scheme == "sqlite" && rest.size() > 1) return OfFile(rest.substr(1));
  if ((scheme == "postgresql" || scheme == "postgres") && rest.starts_with("://")) {
    return OfServer(rest.substr(3));
  }
  return PasswordFree(connection_string);
}

}  // namespace ferrowind::host
