#include "ferrowind/adapters/qt/grid/header_menu.h"

#include <QAction>
#include <QMenu>

#include "ferrowind/adapters/grid_content/grid_operations.h"
#include "ferrowind/adapters/qt/grid/grid_content.h"
#include "ferrowind/adapters/qt/values/translated.h"

namespace ferrowind::qt {

QMenu* MakeHeaderMenu(QWidget* parent, const QObject* context, const GridContent& content,
                      grid_content::GridOperations& operations, int column,
                      const HeaderMenuActions& actions) {
  auto* menu = new QMenu(parent);
  menu->setObjectName(QStringLiteral("headerMenu"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto index = static_cast<std::int16_t>(column);
  const bool has_column = column >= 1 && column <= content.Columns().Count();
  const bool has_groups = content.GroupKeys().Count() > 0;
  const auto add = [&](const char* name, const QString& text, bool is_enabled, std::function<void()> run) {
    QAction* action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setEnabled(is_enabled);
    QObject::connect(action, &QAction::triggered, context, std::move(run));
    return action;
  };
  const auto add_order = [&](const char* name, const QString& text, std::int32_t order) {
    QAction* action =
        add(name, text, has_column, [&operations, index, order] { operations.Sort(index, order); });
    action->setCheckable(true);
    action->setChecked(has_column && content.SortKeys().OrderOf(index) == order);
  };
  add_order("sortAscending", Translated("Sort &Ascending"), platform::kSortAscending);
  add_order("sortDescending", Translated("Sort &Descending"), platform::kSortDescending);
  add("clearSorting", Translated("&Clear Sorting"),
      has_column && content.SortKeys().OrderOf(index) != platform::kSortNone,
      [&operations, index] { operations.Sort(index, platform::kSortNone); });
  menu->addSeparator();
  const std::int32_t position = has_column ? content.GroupKeys().PositionOf(index) : 0;
  add("groupByColumn", Translated("&Group by This Column"), operations.CanGroupBy(index) && position == 0,
      [&operations, index] { operations.GroupBy(index, 0); });
  add("ungroup", Translated("&Ungroup"), position > 0,
      [&operations, position] { operations.Ungroup(position); });
  menu->addSeparator();
  add("expandAll", Translated("&Expand All"), has_groups, actions.expand_all);
  add("collapseAll", Translated("C&ollapse All"), has_groups, actions.collapse_all);
  menu->addSeparator();
  const bool is_visible = actions.is_group_panel_visible;
  QAction* panel = add("showGroupPanel", Translated("Show Group &Panel"), true,
                       [show = actions.show_group_panel, is_visible] { show(!is_visible); });
  panel->setCheckable(true);
  panel->setChecked(is_visible);
  return menu;
}

}  // namespace ferrowind::qt
