#include "ferrowind/adapters/operator_services/grid_services.h"

#include "ferrowind/adapters/grid_content/arrangeable_grid.h"
#include "ferrowind/platform/toolkit/grid_keys.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind {
namespace {

using grid_content::ArrangeableGrid;
using platform::Value;

constexpr const char* kLayoutName = "Layout";

/// A leading backslash changes nothing.
std::string PathOf(const std::string& section) {
  return section.starts_with('\\') ? section.substr(1) : section;
}

/// Empty when there is none.
Value StoredLayout(platform::SharedServices& services, const std::string& section) {
  return services.ReadSetting(section, kLayoutName, Value(), Value());
}

}  // namespace

void SortByColumn(std::int32_t sort_order, platform::Grid& grid, platform::GridColumn& column) {
  grid.SortKeys().Clear();
  if (sort_order != platform::kSortNone) grid.SortKeys().Add(column.Index(), sort_order, 0);
  grid.Refresh(false);
}

void StoreLayout(platform::Grid& grid, platform::SharedServices& services, const std::string& section) {
  auto* const arrangeable = dynamic_cast<ArrangeableGrid*>(&grid);
  if (arrangeable == nullptr) return;
  const std::string layout = arrangeable->SaveLayout();
  if (layout.empty()) return;
  const bool is_known = arrangeable->LayoutSections().contains(PathOf(section));
  if (!is_known && !StoredLayout(services, section).IsEmpty()) {
    services.TraceMessage("The layout of the grid " + grid.Name() + " in the settings was not loaded; kept");
    return;
  }
  services.WriteSetting(section, kLayoutName, layout);
  arrangeable->LayoutSections().insert(PathOf(section));
}

void RestoreLayout(platform::Grid& grid, platform::SharedServices& services, const std::string& section) {
  auto* const arrangeable = dynamic_cast<ArrangeableGrid*>(&grid);
  if (arrangeable == nullptr) return;
  const Value stored = StoredLayout(services, section);
  arrangeable->LayoutSections().insert(PathOf(section));
  if (stored.IsEmpty()) return;
  const auto* const layout = stored.If<std::string>();
  if (layout == nullptr || !arrangeable->RestoreLayout(*layout)) {
    services.TraceMessage("The layout of the grid " + grid.Name() +
                          " in the settings is damaged or not the grid's; ignored");
  }
}

void CopyRows(const platform::Grid& grid, bool with_headers) {
  if (const auto* const arrangeable = dynamic_cast<const ArrangeableGrid*>(&grid))
    arrangeable->CopyRows(with_headers);
}

}  // namespace ferrowind
