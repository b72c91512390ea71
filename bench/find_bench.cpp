// Leaving out the rows of a grid by each letter that is typed, against the table view over a filtering proxy
// that Qt brings.

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "ferrowind/adapters/headless/headless_locale.h"
#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/adapters/qt/forms/qt_toolkit.h"
#include "ferrowind/views/planning/find_bar.h"

#include "bench/grid_peers.h"
#include "bench/grid_rows.h"
#include "bench/measurement.h"

namespace ferrowind::bench {
namespace {

constexpr std::size_t kRows = 100000;

/// What is typed letter by letter: names that many rows have, few have, and none has.
const std::vector<std::string> kTyped = {"telephone", "client number 4711", "spot eur", "zebra"};

/// A window with a grid and the bar above it.
class OurRows {
 public:
  OurRows() {
    form_->Show();
    const auto records = DealRows(kRows);
    for (std::size_t field = 0; field < records->FieldCount(); ++field) {
      const std::string& name = records->FieldName(field);
      grid_.AddColumn(name, 0, 1, name);
      grid_.ColumnByKey(name).SetBoundField(name);
    }
    grid_.HoldColumns();
    grid_.AttachRecords(records);
    grid_.Rebind();
    bar_.Open();
    QCoreApplication::processEvents();
  }

  void Type(const std::string& text) { text_.SetText(text); }
  [[nodiscard]] std::int32_t RowCount() const { return grid_.RowCount(); }

 private:
  headless::World world_;
  platform::Platform platform_ = world_.Platform();
  qt::QtToolkit toolkit_;
  std::shared_ptr<platform::Form> form_ = toolkit_.CreateForm([] {
    platform::FormDesign design{.name = "fmEnterHolidays",
                                .caption = "Rules",
                                .client_width = 12000,
                                .client_height = 7500,
                                .controls = {{platform::ControlKind::kGrid, "gexHolidays"}}};
    for (auto& control : FindBar::Controls()) design.controls.push_back(std::move(control));
    return design;
  }());
  platform::Grid& grid_ = platform::ControlOf<platform::Grid>(*form_, "gexHolidays");
  platform::TextBox& text_ = platform::ControlOf<platform::TextBox>(*form_, "txtFind");
  FindBar bar_{platform_,
               *form_,
               grid_,
               {.count = "%1 of %2 deals",
                .kinds = {{"All deals"}},
                .names = {.of_date = [](const platform::Date& date) { return date.ToIso(); }}}};
};

/// The same rows as one writes it first.
class PeerRows {
 public:
  PeerRows() {
    model_.SetRecords(DealRows(kRows));
    proxy_.setSourceModel(&model_);
    proxy_.setFilterKeyColumn(-1);
    proxy_.setFilterCaseSensitivity(Qt::CaseInsensitive);
    view_.setModel(&proxy_);
    view_.resize(800, 500);
    view_.show();
    QCoreApplication::processEvents();
  }

  void Type(const std::string& text) { proxy_.setFilterFixedString(QString::fromStdString(text)); }
  [[nodiscard]] int RowCount() const { return proxy_.rowCount(); }

 private:
  RecordTableModel model_;
  QSortFilterProxyModel proxy_;
  QTableView view_;
};

template <typename Rows>
void TypeLetterByLetter(Rows& rows, const std::string& text) {
  for (std::size_t length = 1; length <= text.size(); ++length) rows.Type(text.substr(0, length));
}

void Run(const Benchmark& benchmark) {
  OurRows ours;
  PeerRows peer;
  for (const std::string& text : kTyped) {
    ours.Type(text);
    peer.Type(text);
    // Several words are looked for in any order by one side, and as they stand by the other.
    const bool is_one_word = text.find(' ') == std::string::npos;
    if (is_one_word && ours.RowCount() != peer.RowCount()) {
      throw std::logic_error("The two find different rows");
    }
    benchmark.Compare("find: \"" + text + "\" letter by letter in 100000 rows", 0.1,
                      {[&] { TypeLetterByLetter(ours, text); }, [&] { ours.Type(""); }},
                      {[&] { TypeLetterByLetter(peer, text); }, [&] { peer.Type(""); }}, 3);
  }
}

}  // namespace
}  // namespace ferrowind::bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int qt_argc = 1;
  const QApplication application(qt_argc, argv);
  return ferrowind::bench::RunBenchmark(argc, argv, ferrowind::bench::Run);
}
