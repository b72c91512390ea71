#include "ferrowind/adapters/postgres_calls/sql_text.h"

namespace ferrowind::postgres {
namespace {

void AppendDoubling(std::string_view text, std::string_view doubled, std::string& quoted) {
  for (const char c : text) {
    if (doubled.find(c) != std::string_view::npos) quoted += c;
    quoted += c;
  }
}

}  // namespace

std::string Literal(std::string_view text) {
  // Only in this form does a backslash mean the same to every server.
  std::string quoted = text.find('\\') == std::string_view::npos ? "'" : " E'";
  AppendDoubling(text, "'\\", quoted);
  return quoted + '\'';
}

std::string Identifier(std::string_view name) {
  std::string quoted = "\"";
  AppendDoubling(name, "\"", quoted);
  return quoted + '"';
}

}  // namespace ferrowind::postgres
