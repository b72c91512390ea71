// The grid of the native windows, with sorting and grouping, against the list view that the platform brings,
// sorted by its texts.

#include <memory>
#include <string>

#include <windows.h>

#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/adapters/win32/forms/form_layout.h"
#include "ferrowind/adapters/win32/forms/win32_toolkit.h"
#include "ferrowind/platform/toolkit/form.h"
#include "ferrowind/platform/toolkit/form_design.h"
#include "ferrowind/platform/toolkit/grid.h"

#include "bench/grid_rows.h"
#include "bench/measurement.h"
#include "bench/windows/paint_now.h"
#include "bench/windows/virtual_list.h"

namespace ferrowind::bench {
namespace {

constexpr int kWidth = 1280;
constexpr int kHeight = 720;
constexpr const char* kFormName = "fmBench";
constexpr const char* kGridName = "gexRows";

win32::FormLayouts BenchLayouts() {
  win32::FormLayouts layouts;
  layouts.Add(kFormName, {.places = {{.name = kGridName, .stretch = 1}}});
  return layouts;
}

/// Our grid in a window, as the windows of the component use it.
class OurGrid {
 public:
  explicit OurGrid(const platform::RecordSet& like) {
    form_->SetWidth(toolkit_.TwipsPerPixelX() * kWidth);
    form_->SetHeight(toolkit_.TwipsPerPixelX() * kHeight);
    for (std::size_t field = 0; field < like.FieldCount(); ++field) {
      const std::string& name = like.FieldName(field);
      grid_.AddColumn(name, 0, 1, name);
      grid_.ColumnByKey(name).SetBoundField(name);
    }
    form_->Show();
    toolkit_.ProcessPendingEvents();
  }

  void Refill(const std::shared_ptr<platform::RecordSet>& records) {
    grid_.HoldColumns();
    grid_.AttachRecords(records);
    grid_.Rebind();
    grid_.SortKeys().Add(kDealClient, platform::kSortAscending, 0);
    grid_.SortKeys().Add(kDealDate, platform::kSortDescending, 0);
    grid_.GroupKeys().Add(kDealDesk, platform::kSortAscending, 0);
    grid_.GroupKeys().Add(kDealCurrency, platform::kSortAscending, 0);
    grid_.Refresh(true);
    PaintNow(window_);
  }

 private:
  win32::Win32Toolkit toolkit_{BenchLayouts()};
  std::shared_ptr<platform::Form> form_ =
      toolkit_.CreateForm({.name = kFormName, .controls = {{platform::ControlKind::kGrid, kGridName}}});
  platform::Grid& grid_ = platform::ControlOf<platform::Grid>(*form_, kGridName);
  HWND window_ = dynamic_cast<win32::ControlWindow&>(static_cast<platform::Control&>(grid_)).Handle();
};

void Run(const Benchmark& benchmark) {
  constexpr std::size_t kRows = 100000;
  constexpr std::size_t kRuns = 3;
  const auto records = DealRows(kRows);
  OurGrid ours(*records);
  VirtualList peer(*records, kWidth, kHeight);
  benchmark.Compare("native grid: refill, sort, group and paint 100000 rows", 0.2,
                    {[&] { ours.Refill(records->Clone()); }},
                    {[&] { peer.Refill(records->Clone(), kDealClient - 1, kDealDate - 1); }}, kRuns);
}

}  // namespace
}  // namespace ferrowind::bench

int main(int argc, char** argv) { return ferrowind::bench::RunBenchmark(argc, argv, ferrowind::bench::Run); }
