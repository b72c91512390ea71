#include "ferrowind/data/too_long_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/json_value.h"
#include "ferrowind/platform/values/text_limits.h"

namespace ferrowind {
namespace {

using platform::JsonValue;
using platform::kLongestList;
using platform::LimitedText;
using platform::Phrase;

/// A parameter, or a member of what stands in a list.
struct LimitedField {
  std::string_view name;
  LimitedText what;
};

constexpr std::array kFields{
    LimitedField{"Name1", LimitedText::kName},          LimitedField{"Name", LimitedText::kName},
    LimitedField{"MovedName", LimitedText::kMovedName}, LimitedField{"Publisher", LimitedText::kPublisher},
    LimitedField{"Document", LimitedText::kDocument},   LimitedField{"Expression", LimitedText::kExpression},
    LimitedField{"Comment", LimitedText::kComment},     LimitedField{"DayComment", LimitedText::kDayComment},
};

/// How much of a name is told before the sentence about the text beside it.
constexpr std::size_t kToldBytes = 60;

std::optional<Phrase> TooLongField(std::string_view name, std::string_view text) {
  const auto* const field = std::find_if(kFields.begin(), kFields.end(), [&](const LimitedField& known) {
    return platform::CompareIgnoringCase(known.name, name) == 0;
  });
  return field == kFields.end() ? std::nullopt : platform::TooLong(field->what, text);
}

std::optional<Phrase> TooLongInItem(const JsonValue& item, std::size_t position) {
  for (std::size_t i = 0; i < item.names.size(); ++i) {
    if (item.items[i].kind != JsonValue::Kind::kText) continue;
    auto told = TooLongField(item.names[i], item.items[i].text);
    if (!told) continue;
    const JsonValue* const name = item.Find("Name1");
    const bool has_short_name =
        name != nullptr && name->kind == JsonValue::Kind::kText && name->text.size() <= kToldBytes;
    return Phrase::Of(
        "%1: %2",
        {has_short_name ? Phrase(name->text) : Phrase::Of("Item %1 of the list", {std::to_string(position)}),
         std::move(*told)});
  }
  return std::nullopt;
}

std::optional<Phrase> TooLongList(std::string_view text) {
  if (text.size() > kLongestList) {
    return Phrase::Of("The list has %1 bytes; it may have %2 at most",
                      {std::to_string(text.size()), std::to_string(kLongestList)});
  }
  const auto list = platform::ReadJson(text);
  if (!list || list->kind != JsonValue::Kind::kList) return std::nullopt;
  for (std::size_t i = 0; i < list->items.size(); ++i) {
    if (auto told = TooLongInItem(list->items[i], i + 1)) return told;
  }
  return std::nullopt;
}

bool IsList(const std::string& name) {
  return platform::CompareIgnoringCase(name, "Rules") == 0 ||
         platform::CompareIgnoringCase(name, "Days") == 0;
}

}  // namespace

std::optional<Phrase> TooLongText(const SourceValues& parameters) {
  for (std::int32_t i = 1; i <= parameters.Count(); ++i) {
    const auto cell = parameters.Values(i);
    const auto* const text = cell ? cell->Value.If<std::string>() : nullptr;
    if (text == nullptr) continue;
    if (auto told = IsList(cell->Name) ? TooLongList(*text) : TooLongField(cell->Name, *text)) return told;
  }
  return std::nullopt;
}

}  // namespace ferrowind
