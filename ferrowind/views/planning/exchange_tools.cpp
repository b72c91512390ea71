#include "ferrowind/views/planning/exchange_tools.h"

#include <optional>

#include "ferrowind/planning/currency_list.h"
#include "ferrowind/views/planning/currency_on_show.h"

namespace ferrowind {
namespace {

constexpr const char* kImport = "ID_Import";
constexpr const char* kExport = "ID_Export";

}  // namespace

platform::WindowParts ExchangeTools::Parts() {
  return {.tools = {{.id = kImport,
                     .caption = "Import...",
                     .category = "Planning",
                     .description = "Makes a calendar as a list of days in a file",
                     .shortcut = "Ctrl+O"},
                    {.id = kExport,
                     .caption = "Export...",
                     .category = "Planning",
                     .description = "Writes calendars to a file for other programs",
                     .shortcut = "Ctrl+S"}},
          .bar = {kImport, kExport}};
}

bool ExchangeTools::RunTool(const std::string& id) {
  if (id != kImport && id != kExport) return false;
  const auto calendar = scene_.OnShow();
  const std::string currency = calendar ? planning::WrittenFor(CurrencyOf(*calendar)) : "";
  const std::optional<int> year = calendar ? std::optional<int>(calendar->year) : std::nullopt;
  if (id == kImport) {
    context_.windows.OpenImport(currency, year);
  } else {
    context_.windows.OpenExport(currency, year);
  }
  return true;
}

}  // namespace ferrowind
