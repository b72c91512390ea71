#include "tests/contract/toolkit/qt/contract_layouts.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include "ferrowind/adapters/qt/controls/date_field.h"
#include "ferrowind/adapters/qt/controls/tree_view.h"
#include "ferrowind/adapters/qt/controls/up_down_arrows.h"
#include "ferrowind/adapters/qt/grid/grid_widget.h"
#include "ferrowind/adapters/qt/table/table_view.h"
#include "ferrowind/adapters/qt/year/year_widget.h"

namespace ferrowind::contract {
namespace {

template <typename Widget>
Widget* Named(const char* name) {
  auto* widget = new Widget;
  widget->setObjectName(QLatin1String(name));
  return widget;
}

void BuildContract(QDialog& window) {
  auto* layout = new QVBoxLayout(&window);
  layout->addWidget(Named<QToolBar>("ssatbTools"));
  layout->addWidget(Named<QLineEdit>("txtText"));
  layout->addWidget(Named<QLineEdit>("txtOther"));
  auto* view = Named<QPlainTextEdit>("txtView");
  view->setMaximumHeight(40);
  layout->addWidget(view);
  layout->addWidget(Named<QPushButton>("cmdPush"));
  layout->addWidget(Named<QLabel>("lblText"));
  layout->addWidget(Named<QComboBox>("cmbList"));
  layout->addWidget(Named<qt::DateField>("dtpDay"));
  layout->addWidget(Named<qt::UpDownArrows>("udNumber"));
  auto* frame = Named<QGroupBox>("fraBox");
  (new QVBoxLayout(frame))->addWidget(Named<QLineEdit>("txtInside"));
  layout->addWidget(frame);
  layout->addWidget(Named<QFrame>("pctArea"));
  auto* splitter = Named<QSplitter>("sssp");
  splitter->addWidget(Named<qt::TreeView>("tvNodes"));
  splitter->addWidget(Named<qt::GridWidget>("gexRows"));
  splitter->addWidget(Named<qt::GridWidget>("gexRanges"));
  auto* year = Named<qt::YearWidget>("yvYear");
  // A form of this layout can be made as small as the contracts do.
  year->setMinimumSize(1, 1);
  splitter->addWidget(year);
  splitter->setSizes({200, 600, 300, 600});
  layout->addWidget(splitter, 1);
  layout->addWidget(Named<QLabel>("anim"));
  layout->addWidget(Named<QStatusBar>("sbLine"));
}

void BuildFixed(QDialog& window) {
  auto* layout = new QVBoxLayout(&window);
  layout->addWidget(Named<QLineEdit>("txtText"));
  for (const char* name : {"cmdFirst", "cmdOk", "cmdCancel"}) layout->addWidget(Named<QPushButton>(name));
}

void BuildTables(QDialog& window) {
  auto* layout = new QVBoxLayout(&window);
  layout->addWidget(Named<qt::TableView>("tblRows"));
  layout->addWidget(Named<qt::TableView>("tblCells"));
  layout->addWidget(Named<QPushButton>("cmdOk"));
}

void BuildClosable(QDialog& window) { (new QVBoxLayout(&window))->addWidget(Named<QPushButton>("cmdOk")); }

}  // namespace

qt::FormLayouts ContractLayouts() {
  qt::FormLayouts layouts;
  layouts.Add("fmContract", BuildContract);
  layouts.Add("fmContractFixed", BuildFixed);
  layouts.Add("fmContractClosable", BuildClosable);
  layouts.Add("fmContractTables", BuildTables);
  return layouts;
}

}  // namespace ferrowind::contract
