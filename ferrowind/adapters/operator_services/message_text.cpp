#include "ferrowind/adapters/operator_services/message_text.h"

#include <array>
#include <cstdio>

namespace ferrowind {
namespace {

std::string NumberText(std::int32_t number) {
  std::string text = std::to_string(number);
  if (number >= 0 && number <= 0xFFFF) return text;
  std::array<char, 16> hexadecimal{};
  std::snprintf(hexadecimal.data(), hexadecimal.size(), "0x%08X", static_cast<unsigned>(number));
  return text + " (" + hexadecimal.data() + ")";
}

}  // namespace

std::string FailureReport(std::int32_t number, const std::string& description) {
  return "Error " + NumberText(number) + ".\n" + description;
}

}  // namespace ferrowind
