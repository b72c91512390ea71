#include "ferrowind/almanac/rule_directory.h"

#include <utility>

#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::almanac {
namespace {

std::string NameKey(std::string_view name) { return platform::FoldCase(platform::Trim(std::string(name))); }

}  // namespace

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
