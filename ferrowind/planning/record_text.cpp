#include "ferrowind/planning/record_text.h"

#include <cstdint>

#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::planning {
namespace {

void AppendBytes(std::uint64_t number, std::size_t count, std::string& text) {
  char bytes[sizeof(number)];
  for (std::size_t i = 0; i < count; ++i) bytes[i] = static_cast<char>(number >> (8 * i) & 0xFF);
  text.append(bytes, count);
}

/// The type and what follows it, whose end is known from its beginning.
void AppendCell(const platform::Value& cell, std::string& text) {
  text += static_cast<char>(cell.Get().index());
  if (cell.IsEmpty()) return;
  if (const auto* const number = cell.If<std::int32_t>()) {
    return AppendBytes(static_cast<std::uint32_t>(*number), sizeof(*number), text);
  }
  const auto* const own = cell.If<std::string>();
  const std::string other = own == nullptr ? platform::ToText(cell) : std::string();
  const std::string& letters = own == nullptr ? other : *own;
  AppendBytes(letters.size(), sizeof(std::uint64_t), text);
  text += letters;
}

}  // namespace

void AppendRecords(const platform::RecordSet& rows, std::size_t first, std::size_t last, std::string& text) {
  for (std::size_t i = first; i < last; ++i) {
    const auto row = rows.BookmarkAt(i);
    // A row begins in another way than what follows the last one.
    text += '\n';
    for (std::size_t field = 0; field < rows.FieldCount(); ++field) AppendCell(rows.Cell(row, field), text);
  }
  text += '.';
}

}  // namespace ferrowind::planning
