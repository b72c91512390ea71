#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/adapters/win32/forms/win32_toolkit.h"
#include "ferrowind/adapters/win32/grid/grid.h"
#include "ferrowind/platform/toolkit/form.h"

namespace ferrowind::win32 {
namespace {

using platform::RecordSet;
using platform::Value;

/// A form with a grid of two columns.
class LaidOutGrid {
 public:
  LaidOutGrid() {
    form_->Show();
    for (const char* key : {"Name", "Note"}) Grid().AddColumn(key, 0, 1, key).SetBoundField(key);
  }

  [[nodiscard]] Win32Grid& Grid() { return platform::ControlOf<Win32Grid>(*form_, "gexRows"); }
  void Attach(const std::string& name) {
    Grid().HoldColumns();
    Grid().AttachRecords(std::make_shared<RecordSet>(std::vector<std::string>{"Name", "Note"},
                                                     std::vector<std::vector<Value>>{{name, "n"}}));
    Grid().Rebind();
  }
  [[nodiscard]] LONG WidthOf(std::int16_t column) { return Grid().Geometry().WidthOf(column); }

 private:
  static FormLayouts Layouts() {
    FormLayouts layouts;
    layouts.Add("fmGrid", {.places = {{.name = "gexRows", .stretch = 1}}});
    return layouts;
  }

  Win32Toolkit toolkit_{Layouts()};
  std::shared_ptr<platform::Form> form_ =
      toolkit_.CreateForm({.name = "fmGrid",
                           .client_width = 6000,
                           .client_height = 3000,
                           .controls = {{platform::ControlKind::kGrid, "gexRows"}}});
};

TEST(Win32GridLayout, KeepsOrderAndWidths) {
  LaidOutGrid grid;
  grid.Attach("A name that is longer than its caption");
  const LONG fitted = grid.WidthOf(1);
  grid.Grid().MoveColumnBehind("Name", "Note");
  LaidOutGrid other;
  ASSERT_TRUE(other.Grid().RestoreLayout(grid.Grid().SaveLayout()));
  EXPECT_EQ(other.Grid().ColumnOrder(), (std::vector<std::string>{"Note", "Name"}));
  other.Attach("Short");
  EXPECT_EQ(other.WidthOf(1), fitted) << "what is arranged is not fitted anew";
}

TEST(Win32GridLayout, OfAGridThatNeverHadRecordsLetsThemFitTheColumns) {
  LaidOutGrid empty;
  LaidOutGrid other;
  ASSERT_TRUE(other.Grid().RestoreLayout(empty.Grid().SaveLayout()));
  other.Attach("A name that is longer than its caption");
  LaidOutGrid without_layout;
  without_layout.Attach("A name that is longer than its caption");
  EXPECT_EQ(other.WidthOf(1), without_layout.WidthOf(1));
}

TEST(Win32GridLayout, FitsColumnsToBoldTextsAsWell) {
  LaidOutGrid plain;
  plain.Attach("A name that is longer than its caption");
  LaidOutGrid bold;
  bold.Grid().AddFormat({.key = "bold", .column_key = "Note", .compared = Value("n"), .bold = true});
  bold.Attach("A name that is longer than its caption");
  EXPECT_GT(bold.WidthOf(1), plain.WidthOf(1));
}

TEST(Win32GridLayout, OfAnotherGridChangesNothing) {
  LaidOutGrid grid;
  const std::string before = grid.Grid().SaveLayout();
  EXPECT_FALSE(grid.Grid().RestoreLayout(
      R"({"columns":[{"key":"Alien","visible":true,"width":50}],"gridLayout":1,"groups":[],"sort":[]})"));
  EXPECT_FALSE(grid.Grid().RestoreLayout("[]"));
  EXPECT_EQ(grid.Grid().SaveLayout(), before);
}

}  // namespace
}  // namespace ferrowind::win32
