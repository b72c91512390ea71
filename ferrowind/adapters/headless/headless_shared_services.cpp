#include "ferrowind/adapters/headless/headless_shared_services.h"

#include <algorithm>

#include "ferrowind/adapters/headless/headless_grid.h"
#include "ferrowind/platform/toolkit/form.h"
#include "ferrowind/platform/toolkit/grid.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {
namespace {

using platform::Grid;
using platform::GridColumn;
using platform::Value;

/// A leading backslash changes nothing.
std::string PathOf(const std::string& section) {
  return section.starts_with('\\') ? section.substr(1) : section;
}

std::string GridCall(const std::string& method, const Grid& grid, const Value& argument) {
  return "services." + method + "(" + grid.Name() + ", " + ArgumentText(argument) + ")";
}

std::string ShownText(GridColumn& column, const Value& value) {
  const std::string plain = value.IsObject() ? std::string() : platform::ToTextOrEmpty(value);
  if (column.ValueList() == nullptr) return plain;
  try {
    return column.ValueList()->TextOf(value);
  } catch (const platform::Failure&) {
    return plain;  // A value without a text of its own is shown as it is.
  }
}

}  // namespace

std::string HeadlessSharedServices::SettingsRoot() {
  log_.Record(CallText("services", "SettingsRoot"));
  return kSettingsRoot;
}

Value HeadlessSharedServices::ReadSetting(const std::string& section, const std::string& name,
                                          const Value& user, const Value& default_value) {
  log_.Record(CallText("services", "ReadSetting", {section, name, user, default_value}));
  return Setting(section, name).value_or(default_value);
}

void HeadlessSharedServices::WriteSetting(const std::string& section, const std::string& name,
                                          const Value& value) {
  log_.Record(CallText("services", "WriteSetting", {section, name, value}));
  PutSetting(section, name, value);
}

void HeadlessSharedServices::TraceMessage(const std::string& text) {
  log_.Record(CallText("services", "TraceMessage", {text}));
  traces_.push_back(text);
}

std::int32_t HeadlessSharedServices::ShowMessage(const std::string& text, std::int32_t style,
                                                 std::int32_t buttons, std::int32_t default_button,
                                                 platform::Form* owner, const std::string& title, bool modal,
                                                 bool on_top) {
  std::string call = "services.ShowMessage(";
  for (const Value& argument : {Value(text), Value(style), Value(buttons), Value(default_button)}) {
    call += ArgumentText(argument) + ", ";
  }
  const std::string owner_name = owner == nullptr ? std::string() : owner->Name();
  call += owner == nullptr ? "none" : owner_name;
  for (const Value& argument : {Value(title), Value(modal), Value(on_top)})
    call += ", " + ArgumentText(argument);
  log_.Record(call + ")");
  messages_.push_back({text, style, buttons, default_button, owner_name, title, modal, on_top});
  return 1;
}

void HeadlessSharedServices::ReportError(std::int32_t number, const std::string& description) {
  log_.Record(CallText("services", "ReportError", {number, description}));
  reports_.push_back({number, description});
}

void HeadlessSharedServices::SortGridByColumn(std::int32_t sort_order, Grid& grid, GridColumn& column) {
  log_.Record("services.SortGridByColumn(" + ArgumentText(sort_order) + ", " + grid.Name() + ", " +
              column.Key() + ")");
  grid.SortKeys().Clear();
  grid.SortKeys().Add(column.Index(), sort_order, 0);
  grid.Refresh(false);
}

void HeadlessSharedServices::SaveGridLayout(Grid& grid, const std::string& section) {
  log_.Record(GridCall("SaveGridLayout", grid, section));
  if (grid.ColumnCount() == 0) return;
  auto* const headless_grid = dynamic_cast<HeadlessGrid*>(&grid);
  const bool is_known = headless_grid != nullptr && headless_grid->LayoutSections().contains(PathOf(section));
  if (!is_known && layouts_.contains(PathOf(section))) return;
  if (headless_grid != nullptr) headless_grid->LayoutSections().insert(PathOf(section));
  Layout layout;
  for (std::int32_t i = 1; i <= grid.ColumnCount(); ++i) {
    layout.visible[grid.ColumnAt(i).Key()] = grid.ColumnAt(i).Visible();
  }
  const auto keys_of = [&grid](const platform::GridKeyList& keys) {
    std::vector<LayoutKey> kept;
    for (std::int32_t i = 1; i <= keys.Count(); ++i) {
      const auto key = keys.Item(i);
      kept.push_back({grid.ColumnAt(key->ColIndex).Key(), key->SortOrder});
    }
    return kept;
  };
  layout.sorts = keys_of(grid.SortKeys());
  layout.groups = keys_of(grid.GroupKeys());
  layouts_[PathOf(section)] = std::move(layout);
}

void HeadlessSharedServices::LoadGridLayout(Grid& grid, const std::string& section) {
  log_.Record(GridCall("LoadGridLayout", grid, section));
  if (auto* const headless_grid = dynamic_cast<HeadlessGrid*>(&grid)) {
    headless_grid->LayoutSections().insert(PathOf(section));
  }
  const auto found = layouts_.find(PathOf(section));
  if (found == layouts_.end() || found->second.is_damaged) return;
  const Layout& layout = found->second;
  const auto column_of = [&grid](const std::string& key) -> GridColumn* {
    for (std::int32_t i = 1; i <= grid.ColumnCount(); ++i) {
      if (grid.ColumnAt(i).Key() == key) return &grid.ColumnAt(i);
    }
    return nullptr;
  };
  for (const auto& [key, visible] : layout.visible) {
    if (GridColumn* const column = column_of(key)) column->SetVisible(visible);
  }
  const auto restore = [&](const std::vector<LayoutKey>& from, platform::GridKeyList& to) {
    to.Clear();
    for (const LayoutKey& key : from) {
      if (GridColumn* const column = column_of(key.column)) to.Add(column->Index(), key.sort_order, 0);
    }
  };
  restore(layout.sorts, grid.SortKeys());
  restore(layout.groups, grid.GroupKeys());
  grid.Refresh(false);
}

void HeadlessSharedServices::CopyGridRows(Grid& grid, bool with_headers) {
  log_.Record(GridCall("CopyGridRows", grid, with_headers));
  std::vector<GridColumn*> columns;
  for (std::int32_t i = 1; i <= grid.ColumnCount(); ++i) {
    if (grid.ColumnAt(i).Visible()) columns.push_back(&grid.ColumnAt(i));
  }
  std::vector<std::int32_t> rows = grid.MarkedRows();
  if (rows.empty()) {
    for (std::int32_t row = 1; row <= grid.RowCount(); ++row) {
      if (grid.RowBookmark(row) != 0) rows.push_back(row);
    }
  }
  const auto append_line = [&](const auto& text_of) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
      clipboard_ += (i == 0 ? "" : "\t") + text_of(*columns[i]);
    }
    clipboard_ += '\n';
  };
  clipboard_.clear();
  if (with_headers) append_line([](GridColumn& column) { return column.Caption(); });
  for (const std::int32_t row : rows) {
    append_line([&](GridColumn& column) { return ShownText(column, grid.CellValue(row, column.Key())); });
  }
}

std::optional<Value> HeadlessSharedServices::Setting(const std::string& section,
                                                     const std::string& name) const {
  const auto found = settings_.find({PathOf(section), name});
  if (found == settings_.end()) return std::nullopt;
  return found->second;
}

void HeadlessSharedServices::PutSetting(const std::string& section, const std::string& name,
                                        const Value& value) {
  settings_.insert_or_assign({PathOf(section), name}, value);
}

void HeadlessSharedServices::DamageLayout(const std::string& section) {
  layouts_[PathOf(section)].is_damaged = true;
}

}  // namespace ferrowind::headless
