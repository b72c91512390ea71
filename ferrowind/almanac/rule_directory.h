#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "ferrowind/almanac/rule_book.h"

namespace ferrowind::almanac {

/// A holiday rule that calendars take their days from.
struct KnownRule {
  std::int32_t id = 0;
  std::string name;
  RuleKind kind = RuleKind::kWorkingDay;
  /// The date of a celebration, 1 to 12 and 1 to 31; 0 of any other kind.
  int month = 0;
  int day = 0;
  /// A removed rule stays on the days that have it, and is given to no other.
  bool is_removed = false;
};

/// What a name is known by in the database, where letter case and outer blanks make no other name of it: two
/// names are one when their keys are the same.
[[nodiscard]] std::string NameKey(std::string_view name);

/// The holiday rules of a database, by number and by name.
class RuleDirectory {
 public:
  explicit RuleDirectory(std::vector<KnownRule> rules);

  [[nodiscard]] const std::vector<KnownRule>& All() const { return rules_; }
  /// Null when there is no such rule. Pointers are valid as long as the directory lives.
  [[nodiscard]] const KnownRule* Find(std::int32_t id) const;
  /// The rule of that name, without regard to letter case and outer blanks; null when there is none.
  [[nodiscard]] const KnownRule* FindNamed(std::string_view name) const;

 private:
  std::vector<KnownRule> rules_;
  std::unordered_map<std::int32_t, std::size_t> by_id_;
  std::unordered_map<std::string, std::size_t> by_name_;
};

}  // namespace ferrowind::almanac
