#include "ferrowind/adapters/win32/controls/shortcut.h"

#include <map>
#include <string_view>

namespace ferrowind::win32 {
namespace {

const std::map<std::string_view, WPARAM>& NamedKeys() {
  static const std::map<std::string_view, WPARAM> keys = {
      {"Del", VK_DELETE}, {"Delete", VK_DELETE}, {"Ins", VK_INSERT},   {"Insert", VK_INSERT},
      {"Home", VK_HOME},  {"End", VK_END},       {"PgUp", VK_PRIOR},   {"PgDown", VK_NEXT},
      {"Left", VK_LEFT},  {"Right", VK_RIGHT},   {"Up", VK_UP},        {"Down", VK_DOWN},
      {"Esc", VK_ESCAPE}, {"Return", VK_RETURN}, {"Enter", VK_RETURN}, {"Space", VK_SPACE},
      {"Tab", VK_TAB},    {"Backspace", VK_BACK}};
  return keys;
}

std::optional<WPARAM> KeyNamed(std::string_view name) {
  const auto is_digit = [](char letter) { return letter >= '0' && letter <= '9'; };
  if (name.size() == 1) {
    const char letter = name[0] >= 'a' && name[0] <= 'z' ? static_cast<char>(name[0] - 'a' + 'A') : name[0];
    // These keys have the numbers of their letters.
    if (is_digit(letter) || (letter >= 'A' && letter <= 'Z')) return static_cast<WPARAM>(letter);
    return std::nullopt;
  }
  if (name[0] == 'F' && name.size() <= 3 && is_digit(name[1]) && is_digit(name.back())) {
    const int number = std::stoi(std::string(name.substr(1)));
    constexpr int kFunctionKeys = 24;
    if (number >= 1 && number <= kFunctionKeys) return static_cast<WPARAM>(VK_F1 + number - 1);
    return std::nullopt;
  }
  const auto found = NamedKeys().find(name);
  if (found == NamedKeys().end()) return std::nullopt;
  return found->second;
}

}  // namespace

std::optional<KeyPress> ReadShortcut(const std::string& text) {
  KeyPress press;
  std::string_view rest = text;
  const auto take = [&](std::string_view modifier) {
    if (!rest.starts_with(modifier)) return false;
    rest.remove_prefix(modifier.size());
    return true;
  };
  for (bool goes_on = true; goes_on;) {
    goes_on = false;
    if (take("Ctrl+")) goes_on = press.has_control = true;
    if (take("Shift+")) goes_on = press.has_shift = true;
    if (take("Alt+")) goes_on = press.has_alt = true;
  }
  if (rest.empty()) return std::nullopt;
  const auto key = KeyNamed(rest);
  if (!key) return std::nullopt;
  press.key = *key;
  return press;
}

KeyPress PressOf(WPARAM key) {
  const auto is_held = [](int modifier) { return GetKeyState(modifier) < 0; };
  return {key, is_held(VK_CONTROL), is_held(VK_SHIFT), is_held(VK_MENU)};
}

bool IsKeyOfText(const KeyPress& press) {
  if (!press.has_control || press.has_alt) return false;
  return std::wstring_view(L"ACVXYZ").find(static_cast<wchar_t>(press.key)) != std::wstring_view::npos;
}

}  // namespace ferrowind::win32
