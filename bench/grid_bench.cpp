// The Qt grid, with sorting and grouping, against what Qt brings: a table view over a sorting proxy, and a
// tree view.

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <QTreeView>
#include <cstdint>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

#include "ferrowind/adapters/qt/grid/grid_model.h"
#include "ferrowind/adapters/qt/grid/grid_view.h"
#include "ferrowind/adapters/qt/grid/qt_grid.h"

#include "bench/grid_peers.h"
#include "bench/grid_rows.h"
#include "bench/measurement.h"

namespace ferrowind::bench {
namespace {

constexpr QSize kWindow(1280, 720);
constexpr std::size_t kManyRows = 1000000;
constexpr double kMegabyte = 1024.0 * 1024.0;

/// Whether a widget has been painted.
class PaintWitness final : public QObject {
 public:
  explicit PaintWitness(QWidget& widget) { widget.installEventFilter(this); }
  [[nodiscard]] bool HasSeenPaint() const { return has_seen_paint_; }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    has_seen_paint_ = has_seen_paint_ || event->type() == QEvent::Paint;
    return false;
  }

 private:
  bool has_seen_paint_ = false;
};

/// Has all that is due laid out, and all rows painted once.
void Paint(QAbstractItemView& view) {
  const PaintWitness witness(*view.viewport());
  view.viewport()->update();
  QCoreApplication::processEvents();
  if (!witness.HasSeenPaint()) throw std::runtime_error("The rows were not painted");
}

/// Our grid in a window, as the windows of the component use it.
class OurGrid {
 public:
  explicit OurGrid(const platform::RecordSet& like) {
    widget_.setObjectName("grid");
    widget_.resize(kWindow);
    grid_ = std::make_unique<qt::QtGrid>(widget_);
    for (std::size_t field = 0; field < like.FieldCount(); ++field) {
      const std::string& name = like.FieldName(field);
      grid_->AddColumn(name, 0, 1, name);
      grid_->ColumnByKey(name).SetBoundField(name);
    }
    widget_.show();
    QCoreApplication::processEvents();
  }

  void Refill(const std::shared_ptr<platform::RecordSet>& records) {
    grid_->HoldColumns();
    grid_->AttachRecords(records);
    grid_->Rebind();
    grid_->SortKeys().Add(kDealClient, platform::kSortAscending, 0);
    grid_->SortKeys().Add(kDealDate, platform::kSortDescending, 0);
    grid_->GroupKeys().Add(kDealDesk, platform::kSortAscending, 0);
    grid_->GroupKeys().Add(kDealCurrency, platform::kSortAscending, 0);
    grid_->Refresh(true);
    Paint(View());
  }

  qt::QtGrid& Grid() { return *grid_; }
  qt::GridView& View() { return widget_.View(); }

 private:
  qt::GridWidget widget_;
  std::unique_ptr<qt::QtGrid> grid_;
};

class SortedTable {
 public:
  SortedTable() : proxy_(kDealClient - 1, kDealDate - 1) {
    proxy_.setSourceModel(&model_);
    view_.setModel(&proxy_);
    view_.resize(kWindow);
    view_.show();
    QCoreApplication::processEvents();
  }

  void Refill(const std::shared_ptr<platform::RecordSet>& records) {
    model_.SetRecords(records);
    proxy_.sort(0);
    Paint(view_);
  }

 private:
  RecordTableModel model_;
  TwoColumnSort proxy_;
  QTableView view_;
};

void CompareRefill(const Benchmark& benchmark, std::size_t rows, double limit, std::size_t runs) {
  const auto records = DealRows(rows);
  OurGrid ours(*records);
  SortedTable peer;
  benchmark.Compare("grid: refill, sort, group and paint " + std::to_string(rows) + " rows", limit,
                    {[&] { ours.Refill(records->Clone()); }}, {[&] { peer.Refill(records->Clone()); }}, runs);
}

void CompareExpanding(const Benchmark& benchmark, OurGrid& ours) {
  const grid_engine::GroupId top{0, 1};
  constexpr int kDesks = 8;
  constexpr int kCurrencies = 20;
  GroupedTreeModel model(kDesks, kCurrencies, static_cast<int>(kManyRows) / kDesks / kCurrencies,
                         kDealColumns);
  QTreeView tree;
  tree.setModel(&model);
  tree.setUniformRowHeights(true);
  tree.resize(kWindow);
  // The groups, not the rows: marking a million rows as expanded takes the tree minutes.
  tree.expandToDepth(1);
  tree.show();
  Paint(tree);
  const QModelIndex group = model.index(1, 0);
  benchmark.Compare("grid: expand a top group again until laid out, 1000000 rows", 0.01,
                    {[&] {
                       ours.View().SetExpanded(top, true);
                       (void)ours.View().indexAt(QPoint(1, 1));
                     },
                     [&] {
                       ours.View().SetExpanded(top, false);
                       Paint(ours.View());
                     }},
                    {[&] {
                       tree.expand(group);
                       (void)tree.indexAt(QPoint(1, 1));
                     },
                     [&] {
                       tree.collapse(group);
                       Paint(tree);
                     }});
}

void CompareSelecting(const Benchmark& benchmark, OurGrid& ours) {
  ours.Grid().SetMultiSelect(true);
  const Contender repaint{[&] { Paint(ours.View()); }};
  benchmark.Compare("grid: select all until painted, 1000000 rows, against a full repaint", 3,
                    {[&] {
                       ours.View().selectAll();
                       Paint(ours.View());
                     },
                     [&] {
                       ours.View().clearSelection();
                       Paint(ours.View());
                     }},
                    repaint);
  benchmark.Compare("grid: clear the selection until painted, 1000000 rows, against a full repaint", 3,
                    {[&] {
                       ours.View().clearSelection();
                       Paint(ours.View());
                     },
                     [&] {
                       ours.View().selectAll();
                       Paint(ours.View());
                     }},
                    repaint);
}

/// A line of /proc/self/status that holds kilobytes, in megabytes.
double StatusMegabytes(const std::string& name) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kilobytes = 0;
    if (word == name + ":" && status >> kilobytes) return kilobytes * 1024 / kMegabyte;
  }
  throw std::runtime_error("/proc/self/status does not tell " + name);
}

void MeasureManyRows(const Benchmark& benchmark) {
  const auto records = DealRows(kManyRows);
  OurGrid ours(*records);
  // From here on the high-water mark is that of the grid.
  std::ofstream("/proc/self/clear_refs") << "5";
  const double before = StatusMegabytes("VmRSS");
  ours.Refill(records);
  benchmark.Report({"grid: peak memory over the record set, 1000000 rows, against 250 MB",
                    StatusMegabytes("VmHWM") - before, 250, "MB", 1});
  CompareExpanding(benchmark, ours);
  CompareSelecting(benchmark, ours);
}

void Run(const Benchmark& benchmark) {
  // First, while no memory was used and freed that would hide what the grid takes.
  MeasureManyRows(benchmark);
  CompareRefill(benchmark, 366, 0.5, 31);
  CompareRefill(benchmark, 10000, 0.3, 15);
  CompareRefill(benchmark, 100000, 0.1, 3);
  CompareRefill(benchmark, kManyRows, 0.04, 1);
}

}  // namespace
}  // namespace ferrowind::bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int qt_argc = 1;
  const QApplication application(qt_argc, argv);
  return ferrowind::bench::RunBenchmark(argc, argv, ferrowind::bench::Run);
}
