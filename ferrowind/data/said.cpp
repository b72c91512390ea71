#include "ferrowind/data/said.h"

#include <optional>
#include <utility>

namespace ferrowind {

using platform::Phrase;

namespace {

std::vector<Phrase> AsTheyStand(const std::vector<std::string>& arguments) {
  return {arguments.begin(), arguments.end()};
}

}  // namespace

std::string Said(const platform::Platform& platform, const Phrase& phrase) {
  if (platform.words == nullptr) return phrase.InEnglish();
  return phrase.In([&](const std::string& text, const std::optional<std::int64_t>& number) {
    return platform.words->Translate(text, number);
  });
}

std::string Said(const platform::Platform& platform, const std::string& text,
                 const std::vector<std::string>& arguments) {
  return Said(platform, Phrase::Of(text, AsTheyStand(arguments)));
}

std::string SaidOfNumber(const platform::Platform& platform, std::int64_t number, const std::string& one,
                         const std::string& many, const std::vector<std::string>& arguments) {
  return Said(platform, Phrase::OfNumber(number, one, many, AsTheyStand(arguments)));
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
