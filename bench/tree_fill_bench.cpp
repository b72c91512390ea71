// Filling the tree of currencies and their calendars through its port, against the same items in a bare
// QTreeWidget.

#include <QApplication>
#include <QIcon>
#include <QTreeWidget>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/adapters/qt/controls/qt_tree.h"
#include "ferrowind/adapters/qt/look/tree_images.h"

#include "bench/measurement.h"

namespace ferrowind::bench {
namespace {

constexpr int kCurrencies = 180;
constexpr int kFirstYear = 1990;
constexpr int kYears = 60;
constexpr double kLimit = 1.5;

std::string Joined(const char* letter, int number) {
  return std::string(letter).append(std::to_string(number));
}

void FillThroughPort(qt::QtTree& tree) {
  tree.Clear();
  for (int currency = 1; currency <= kCurrencies; ++currency) {
    tree.AddRoot({Joined("K", currency), Joined("C", currency), "Currency"});
  }
  for (int currency = 1; currency <= kCurrencies; ++currency) {
    const std::string parent = Joined("K", currency);
    for (int year = kFirstYear; year < kFirstYear + kYears; ++year) {
      const std::string text = std::to_string(year);
      tree.AddChild(parent, {parent + "_" + text, text, "Calendar"});
    }
  }
}

void FillBareWidget(QTreeWidget& tree, const QIcon& currency_icon, const QIcon& calendar_icon) {
  tree.clear();
  std::vector<QTreeWidgetItem*> currencies;
  for (int currency = 1; currency <= kCurrencies; ++currency) {
    auto* item = new QTreeWidgetItem(&tree);
    item->setText(0, QString::fromStdString(Joined("C", currency)));
    item->setIcon(0, currency_icon);
    currencies.push_back(item);
  }
  for (QTreeWidgetItem* parent : currencies) {
    for (int year = kFirstYear; year < kFirstYear + kYears; ++year) {
      auto* item = new QTreeWidgetItem(parent);
      item->setText(0, QString::fromStdString(std::to_string(year)));
      item->setIcon(0, calendar_icon);
    }
  }
}

/// Both sides are on show, and each run ends with the tree painted.
void Run(const Benchmark& benchmark) {
  qt::TreeView view;
  view.setObjectName(QStringLiteral("tvCalendar"));
  qt::QtTree tree(view);
  QTreeWidget bare;
  bare.setHeaderHidden(true);
  for (QWidget* widget : {static_cast<QWidget*>(&view), static_cast<QWidget*>(&bare)}) {
    widget->resize(220, 600);
    widget->show();
  }
  const QIcon currency_icon = qt::TreeImage("Currency");
  const QIcon calendar_icon = qt::TreeImage("Calendar");
  benchmark.Compare("tree fill, 180 currencies of 60 years", kLimit,
                    {.run =
                         [&] {
                           FillThroughPort(tree);
                           view.viewport()->repaint();
                           KeepResult(static_cast<std::size_t>(tree.Count()));
                         }},
                    {.run = [&] {
                      FillBareWidget(bare, currency_icon, calendar_icon);
                      bare.viewport()->repaint();
                      KeepResult(static_cast<std::size_t>(bare.topLevelItemCount()));
                    }});
}

}  // namespace
}  // namespace ferrowind::bench

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return ferrowind::bench::RunBenchmark(argc, argv, ferrowind::bench::Run);
}
