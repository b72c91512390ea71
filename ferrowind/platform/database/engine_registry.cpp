#include "ferrowind/platform/database/engine_registry.h"

#include <algorithm>

#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::platform {
namespace {

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

/// Whether `text` is written as the scheme of a URI. Anything else in front of a colon may be part of a
/// password.
bool IsScheme(const std::string& text) {
  return !text.empty() && IsLetter(text.front()) && std::all_of(text.begin(), text.end(), [](char c) {
    return IsLetter(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
  });
}

/// What an engine of settings is registered under, which is no scheme.
std::string EntryOfKeyword(const std::string& keyword) { return FoldCase(Trim(keyword)) + '='; }

void Enter(std::vector<std::pair<std::string, std::shared_ptr<Engine>>>& engines, std::string entry,
           std::shared_ptr<Engine> engine) {
  std::erase_if(engines, [&](const auto& registered) { return registered.first == entry; });
  engines.emplace_back(std::move(entry), std::move(engine));
}

}  // namespace

void EngineRegistry::Register(std::string scheme, std::shared_ptr<Engine> engine) {
  if (!engine) {
    throw Failure(failure_number::kInvalidArgument,
                  "No database engine was given for connection strings of the scheme \"" + scheme + ":\"");
  }
  Enter(engines_, FoldCase(scheme), std::move(engine));
}

void EngineRegistry::RegisterKeyword(const std::string& keyword, std::shared_ptr<Engine> engine) {
  if (!engine) {
    throw Failure(failure_number::kInvalidArgument,
                  "No database engine was given for connection strings of the keyword \"" + keyword + "=\"");
  }
  Enter(engines_, EntryOfKeyword(keyword), std::move(engine));
}

Engine& EngineRegistry::EngineFor(const std::string& connection_string) const {
  const auto find = [this](const std::string& entry) {
    return std::find_if(engines_.begin(), engines_.end(),
                        [&](const auto& registered) { return registered.first == entry; });
  };
  // Of a keyword alone, its engine says what is missing.
  const auto of_settings = find(EntryOfKeyword(connection_string.substr(0, connection_string.find('='))));
  if (of_settings != engines_.end()) return *of_settings->second;
  const auto colon = connection_string.find(':');
  const std::string scheme = connection_string.substr(0, colon);
  if (colon == std::string::npos || !IsScheme(scheme)) {
    throw Failure(failure_number::kInvalidArgument,
                  "The connection string has no scheme such as \"sqlite:\" in front");
  }
  const auto found = find(FoldCase(scheme));
  if (found == engines_.end()) {
    throw Failure(failure_number::kInvalidArgument,
                  "There is no database engine for connection strings of the scheme \"" + scheme + ":\"");
  }
  return *found->second;
}

}  // namespace ferrowind::platform
