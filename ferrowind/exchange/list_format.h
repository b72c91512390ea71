#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace ferrowind::exchange {

enum class ListFormat : std::uint8_t { kICalendar, kCsv, kJson, kText };

/// "ics", "csv", "json" or "txt".
[[nodiscard]] std::string_view NameOf(ListFormat format);
/// In any letter case.
[[nodiscard]] std::optional<ListFormat> FormatNamed(std::string_view name);

/// The format of a list: iCalendar and JSON are known by how they begin, and what remains is a table when the
/// name of its file ends in ".csv" or ".tsv", or its first line names the column of dates, and text
/// otherwise.
[[nodiscard]] ListFormat FormatOf(std::string_view file_name, std::string_view text);

}  // namespace ferrowind::exchange
