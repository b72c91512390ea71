#include "ferrowind/views/planning/rule_book_tool.h"

namespace ferrowind {
namespace {

constexpr const char* kTool = "ID_RuleBook";

}  // namespace

platform::WindowParts RuleBookTool::Parts() {
  return {.tools = {{.id = kTool,
                     .caption = "Rule book...",
                     .category = "Planning",
                     .description = "Shows by which rules the days of the currency are planned",
                     .shortcut = "Ctrl+B"}},
          .bar = {kTool}};
}

bool RuleBookTool::RunTool(const std::string& id) {
  if (id != kTool) return false;
  if (const auto currency = scene_.ChosenCurrency()) context_.windows.OpenRuleBook(*currency);
  return true;
}

}  // namespace ferrowind
