#pragma once

#include <functional>

#include "ferrowind/adapters/grid_content/grid_operations.h"

class QMenu;
class QObject;
class QWidget;

namespace ferrowind::qt {

class GridContent;

/// What the header menu does besides sorting and grouping.
struct HeaderMenuActions {
  std::function<void()> expand_all;
  std::function<void()> collapse_all;
  std::function<void(bool visible)> show_group_panel;
  bool is_group_panel_visible = false;
};

/// The menu of a column's header; `column` is its 1-based index, 0 for the header beside the columns. The
/// menu deletes itself when it closes.
[[nodiscard]] QMenu* MakeHeaderMenu(QWidget* parent, const QObject* context, const GridContent& content,
                                    grid_content::GridOperations& operations, int column,
                                    const HeaderMenuActions& actions);

}  // namespace ferrowind::qt
