#include "ferrowind/almanac/rule_directory.h"

#include <utility>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::almanac {

std::string NameKey(std::string_view name) {
  const std::size_t first = name.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return platform::FoldCase(name.substr(first, name.find_last_not_of(' ') - first + 1));
}

RuleDirectory::RuleDirectory(std::vector<KnownRule> rules) : rules_(std::move(rules)) {
  for (std::size_t i = 0; i < rules_.size(); ++i) {
    by_id_.emplace(rules_[i].id, i);
    by_name_.emplace(NameKey(rules_[i].name), i);
  }
}

const KnownRule* RuleDirectory::Find(std::int32_t id) const {
  const auto found = by_id_.find(id);
  return found == by_id_.end() ? nullptr : &rules_[found->second];
}

const KnownRule* RuleDirectory::FindNamed(std::string_view name) const {
  const auto found = by_name_.find(NameKey(name));
  return found == by_name_.end() ? nullptr : &rules_[found->second];
}

}  // namespace ferrowind::almanac
