#include "ferrowind/data/said.h"

#include <optional>
#include <utility>

namespace ferrowind {
namespace {

std::string Filled(const std::string& text, const std::vector<std::string>& arguments,
                   const std::optional<std::int64_t>& number) {
  std::string filled;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char next = text[i] == '%' && i + 1 < text.size() ? text[i + 1] : '\0';
    const auto argument = static_cast<std::size_t>(next - '1');
    if (next == 'n' && number) {
      filled += std::to_string(*number);
      ++i;
    } else if (next >= '1' && next <= '9' && argument < arguments.size()) {
      filled += arguments[argument];
      ++i;
    } else {
      filled += text[i];
    }
  }
  return filled;
}

std::optional<std::string> Translated(const platform::Platform& platform, const std::string& text,
                                      const std::optional<std::int64_t>& number) {
  if (platform.words == nullptr || text.empty()) return std::nullopt;
  return platform.words->Translate(text, number);
}

}  // namespace

std::string Said(const platform::Platform& platform, const std::string& text,
                 const std::vector<std::string>& arguments) {
  return Filled(Translated(platform, text, std::nullopt).value_or(text), arguments, std::nullopt);
}

std::string SaidOfNumber(const platform::Platform& platform, std::int64_t number, const std::string& one,
                         const std::string& many, const std::vector<std::string>& arguments) {
  const auto translated = Translated(platform, many, number);
  return Filled(translated.value_or(number == 1 ? one : many), arguments, number);
}

platform::FormDesign Said(const platform::Platform& platform, platform::FormDesign design) {
  design.caption = Said(platform, design.caption);
  for (auto& control : design.controls) control.text = Said(platform, control.text);
  return design;
}

platform::ToolDesign Said(const platform::Platform& platform, platform::ToolDesign tool) {
  tool.caption = Said(platform, tool.caption);
  tool.description = Said(platform, tool.description);
  return tool;
}

}  // namespace ferrowind
