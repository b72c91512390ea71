#include "ferrowind/platform/values/conversion.h"

#include "tests/contract/services/services_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::Grid;
using platform::GridColumn;
using platform::RecordSet;
using platform::SharedServices;
using platform::Value;
using testing::ElementsAre;

class SharedServicesContract : public ServicesContract {
 protected:
  [[nodiscard]] Value Read(const std::string& section, const std::string& name,
                           const Value& default_value = {}) {
    return services->ReadSetting(section, name, {}, default_value);
  }
  std::shared_ptr<SharedServices> services = Create<SharedServices>(platform::kSharedServicesIdentifier);
};

TEST_F(SharedServicesContract, HasASettingsRoot) { EXPECT_FALSE(services->SettingsRoot().empty()); }

TEST_F(SharedServicesContract, GivesTheDefaultWithoutASetting) {
  EXPECT_EQ(Read("\\Tessaro\\Window", "Left", 12.5F), Value(12.5F));
  EXPECT_EQ(Read("\\Tessaro\\Window", "Left"), Value());
  services->WriteSetting("\\Tessaro\\Window", "Top", 1);
  EXPECT_EQ(Read("\\Tessaro\\Window", "Left", "none"), Value("none"));
}

TEST_F(SharedServicesContract, KeepsNumbers) {
  services->WriteSetting("\\A\\B", "Single", 1234.5F);
  services->WriteSetting("\\A\\B", "Negative", -15);
  EXPECT_EQ(platform::ToSingle(Read("\\A\\B", "Single")), 1234.5F);
  EXPECT_EQ(platform::ToInt32(Read("\\A\\B", "Negative")), -15);
}

TEST_F(SharedServicesContract, KeepsTextsAsTheyAre) {
  for (const std::string& text :
       {std::string("plain"), std::string(" outer blanks "), std::string("a;b=c,d\"e\\f"),
        std::string("line\nbreak"), std::string("\u795D\u65E5 \U0001F389"), std::string("@Invalid()"),
        std::string("12")}) {
    services->WriteSetting("\\A\\B", "Text", text);
    EXPECT_EQ(platform::ToText(Read("\\A\\B", "Text")), text);
  }
}

TEST_F(SharedServicesContract, ReplacesASetting) {
  services->WriteSetting("\\A\\B", "Left", 1);
  services->WriteSetting("\\A\\B", "Left", 2);
  EXPECT_EQ(platform::ToInt32(Read("\\A\\B", "Left")), 2);
}

TEST_F(SharedServicesContract, TakesASectionWithAndWithoutALeadingBackslashForTheSame) {
  services->WriteSetting("\\A\\B", "Left", 1);
  EXPECT_EQ(platform::ToInt32(Read("A\\B", "Left")), 1);
}

TEST_F(SharedServicesContract, TellsSectionsApart) {
  services->WriteSetting("\\A\\Window Calendars", "Left", 1);
  services->WriteSetting("\\A\\Window Holidays", "Left", 2);
  services->WriteSetting("\\A", "Left", 3);
  EXPECT_EQ(platform::ToInt32(Read("\\A\\Window Calendars", "Left")), 1);
  EXPECT_EQ(platform::ToInt32(Read("\\A\\Window Holidays", "Left")), 2);
  EXPECT_EQ(platform::ToInt32(Read("\\A", "Left")), 3);
}

TEST_F(SharedServicesContract, KeepsSettingsForOtherObjects) {
  services->WriteSetting("\\A\\B", "Left", 1);
  const auto other = Create<SharedServices>(platform::kSharedServicesIdentifier);
  EXPECT_EQ(platform::ToInt32(other->ReadSetting("\\A\\B", "Left", {}, {})), 1);
}

TEST_F(SharedServicesContract, TakesAnyTextToTrace) {
  for (const std::string& text : {std::string("Execute Procedure [CldGetMain]"), std::string("a\0b", 3),
                                  std::string("%s %n"), std::string("\xFF broken"), std::string()}) {
    EXPECT_NO_THROW(services->TraceMessage(text));
  }
}

TEST_F(SharedServicesContract, ReturnsOnceAMessageIsAnswered) {
  services->ShowMessage("Tessaro Calendar. Can't remove holiday", 3, 1, 1, nullptr, "", true, true);
  services->ShowMessage("<b>Error</b> & more", 1, 1, 1, nullptr, "Title", true, true);
  EXPECT_THAT(under_test->AnsweredTexts(),
              ElementsAre("Tessaro Calendar. Can't remove holiday", "<b>Error</b> & more"));
}

TEST_F(SharedServicesContract, ReportsAFailureWithItsNumberAndText) {
  services->ReportError(-2147220904, "Property is accessed only before show method");
  const auto texts = under_test->AnsweredTexts();
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_NE(texts[0].find("Property is accessed only before show method"), std::string::npos) << texts[0];
  EXPECT_NE(texts[0].find("-2147220904"), std::string::npos) << texts[0];
}

class GridServicesContract : public SharedServicesContract {
 protected:
  GridServicesContract() {
    AddColumn("Type", "TID1");
    AddColumn("Name", "Name1");
  }
  void AddColumn(const std::string& key, const std::string& field) { AddColumn(key, field, grid); }
  static void AddColumn(const std::string& key, const std::string& field, Grid& to) {
    to.AddColumn(key + " caption", 0, 1, key).SetBoundField(field);
  }
  void ShowSample() {
    grid.HoldColumns();
    grid.AttachRecords(
        std::make_shared<RecordSet>(std::vector<std::string>{"TID1", "Name1"},
                                    std::vector<std::vector<Value>>{{2, "b"}, {1, "c"}, {3, "a"}}));
    grid.Rebind();
  }
  [[nodiscard]] std::vector<RecordSet::Bookmark> Bookmarks() const {
    std::vector<RecordSet::Bookmark> bookmarks;
    for (std::int32_t row = 1; row <= grid.RowCount(); ++row) bookmarks.push_back(grid.RowBookmark(row));
    return bookmarks;
  }
  Grid& grid = under_test->Grid();
};

TEST_F(GridServicesContract, SortByOneColumnAlone) {
  ShowSample();
  services->SortGridByColumn(platform::kSortAscending, grid, grid.ColumnByKey("Type"));
  EXPECT_THAT(Bookmarks(), ElementsAre(2, 1, 3));
  services->SortGridByColumn(platform::kSortDescending, grid, grid.ColumnByKey("Name"));
  EXPECT_THAT(Bookmarks(), ElementsAre(2, 1, 3));
  EXPECT_EQ(grid.SortKeys().Count(), 1);
  EXPECT_EQ(grid.ColumnByKey("Name").SortOrder(), platform::kSortDescending);
  EXPECT_EQ(grid.ColumnByKey("Type").SortOrder(), platform::kSortNone);
}

TEST_F(GridServicesContract, SortByNothingInTheOrderNone) {
  ShowSample();
  services->SortGridByColumn(platform::kSortAscending, grid, grid.ColumnByKey("Type"));
  services->SortGridByColumn(platform::kSortNone, grid, grid.ColumnByKey("Type"));
  EXPECT_THAT(Bookmarks(), ElementsAre(1, 2, 3));
  EXPECT_EQ(grid.ColumnByKey("Type").SortOrder(), platform::kSortNone);
}

TEST_F(GridServicesContract, RestoreTheLayoutThatWasSaved) {
  ShowSample();
  grid.ColumnByKey("Name").SetVisible(false);
  grid.GroupKeys().Add(grid.ColumnByKey("Type").Index(), platform::kSortDescending, 0);
  grid.SortKeys().Add(grid.ColumnByKey("Name").Index(), platform::kSortAscending, 0);
  services->SaveGridLayout(grid, "Calendar\\Layout");
  grid.ColumnByKey("Name").SetVisible(true);
  grid.GroupKeys().Clear();
  grid.SortKeys().Clear();
  services->LoadGridLayout(grid, "Calendar\\Layout");
  EXPECT_FALSE(grid.ColumnByKey("Name").Visible());
  ASSERT_EQ(grid.GroupKeys().Count(), 1);
  EXPECT_EQ(grid.GroupKeys().Item(1)->ColIndex, grid.ColumnByKey("Type").Index());
  EXPECT_EQ(grid.GroupKeys().Item(1)->SortOrder, platform::kSortDescending);
  ASSERT_EQ(grid.SortKeys().Count(), 1);
  EXPECT_EQ(grid.ColumnByKey("Name").SortOrder(), platform::kSortAscending);
}

TEST_F(GridServicesContract, RestoreALayoutBeforeThereAreRecords) {
  grid.ColumnByKey("Name").SetVisible(false);
  services->SaveGridLayout(grid, "Calendar\\Layout");
  grid.ColumnByKey("Name").SetVisible(true);
  services->LoadGridLayout(grid, "Calendar\\Layout");
  EXPECT_FALSE(grid.ColumnByKey("Name").Visible());
}

TEST_F(GridServicesContract, LeaveAGridWithoutAStoredLayoutAsItIs) {
  ShowSample();
  grid.ColumnByKey("Name").SetVisible(false);
  services->LoadGridLayout(grid, "Calendar\\Nothing");
  EXPECT_FALSE(grid.ColumnByKey("Name").Visible());
  EXPECT_TRUE(grid.ColumnByKey("Type").Visible());
  EXPECT_THAT(Bookmarks(), ElementsAre(1, 2, 3));
}

TEST_F(GridServicesContract, LeaveAGridWithADamagedLayoutAsItIs) {
  ShowSample();
  grid.ColumnByKey("Name").SetVisible(false);
  services->SaveGridLayout(grid, "Calendar\\Layout");
  grid.ColumnByKey("Name").SetVisible(true);
  under_test->DamageLayout("Calendar\\Layout");
  EXPECT_NO_THROW(services->LoadGridLayout(grid, "Calendar\\Layout"));
  EXPECT_TRUE(grid.ColumnByKey("Name").Visible());
  EXPECT_THAT(Bookmarks(), ElementsAre(1, 2, 3));
}

TEST_F(GridServicesContract, StoreNoLayoutOfAGridWithoutColumns) {
  grid.ColumnByKey("Name").SetVisible(false);
  services->SaveGridLayout(grid, "Calendar\\Layout");
  grid.AttachRecords(nullptr);
  ASSERT_EQ(grid.ColumnCount(), 0);
  services->SaveGridLayout(grid, "Calendar\\Layout");
  AddColumn("Type", "TID1");
  AddColumn("Name", "Name1");
  services->LoadGridLayout(grid, "Calendar\\Layout");
  EXPECT_FALSE(grid.ColumnByKey("Name").Visible());
}

TEST_F(GridServicesContract, KeepAStoredLayoutThatTheGridNeverLoaded) {
  grid.ColumnByKey("Name").SetVisible(false);
  services->SaveGridLayout(grid, "Calendar\\Layout");
  for (int i = 0; i < 2; ++i) {
    Grid& other = under_test->AnotherGrid();
    AddColumn("Type", "TID1", other);
    AddColumn("Name", "Name1", other);
    services->LoadGridLayout(other, "Calendar\\Elsewhere");
    services->SaveGridLayout(other, "Calendar\\Layout");
  }
  grid.ColumnByKey("Name").SetVisible(true);
  services->LoadGridLayout(grid, "Calendar\\Layout");
  EXPECT_FALSE(grid.ColumnByKey("Name").Visible());
}

TEST_F(GridServicesContract, ReplaceAStoredLayoutThatTheGridLoaded) {
  grid.ColumnByKey("Name").SetVisible(false);
  services->SaveGridLayout(grid, "Calendar\\Layout");
  Grid& other = under_test->AnotherGrid();
  AddColumn("Type", "TID1", other);
  AddColumn("Name", "Name1", other);
  services->LoadGridLayout(other, "\\Calendar\\Layout");
  other.ColumnByKey("Name").SetVisible(true);
  services->SaveGridLayout(other, "Calendar\\Layout");
  services->LoadGridLayout(grid, "Calendar\\Layout");
  EXPECT_TRUE(grid.ColumnByKey("Name").Visible());
}

TEST_F(GridServicesContract, StoreTheFirstLayoutOfAGridThatFoundNone) {
  services->LoadGridLayout(grid, "Calendar\\Layout");
  for (const bool visible : {false, true, false}) {
    grid.ColumnByKey("Name").SetVisible(visible);
    services->SaveGridLayout(grid, "Calendar\\Layout");
  }
  grid.ColumnByKey("Name").SetVisible(true);
  services->LoadGridLayout(grid, "Calendar\\Layout");
  EXPECT_FALSE(grid.ColumnByKey("Name").Visible());
}

TEST_F(GridServicesContract, ReplaceADamagedLayoutThatTheGridCouldNotLoad) {
  services->SaveGridLayout(grid, "Calendar\\Layout");
  under_test->DamageLayout("Calendar\\Layout");
  Grid& other = under_test->AnotherGrid();
  AddColumn("Type", "TID1", other);
  AddColumn("Name", "Name1", other);
  services->LoadGridLayout(other, "Calendar\\Layout");
  other.ColumnByKey("Name").SetVisible(false);
  services->SaveGridLayout(other, "Calendar\\Layout");
  services->LoadGridLayout(grid, "Calendar\\Layout");
  EXPECT_FALSE(grid.ColumnByKey("Name").Visible());
}

TEST_F(GridServicesContract, LoadALayoutOfOtherColumnsWithoutHarm) {
  AddColumn("Old", "Old1");
  grid.SortKeys().Add(grid.ColumnByKey("Old").Index(), platform::kSortAscending, 0);
  grid.ColumnByKey("Name").SetVisible(false);
  services->SaveGridLayout(grid, "Calendar\\Layout");
  grid.AttachRecords(nullptr);
  AddColumn("Name", "Name1");
  AddColumn("New", "New1");
  EXPECT_NO_THROW(services->LoadGridLayout(grid, "Calendar\\Layout"));
  EXPECT_FALSE(grid.ColumnByKey("Name").Visible());
  EXPECT_TRUE(grid.ColumnByKey("New").Visible());
  EXPECT_EQ(grid.SortKeys().Count(), 0);
}

TEST_F(GridServicesContract, CopyTheSelectedRow) {
  ShowSample();
  grid.SetCurrentRow(2);
  services->CopyGridRows(grid, false);
  EXPECT_NE(under_test->Clipboard().find("1\tc"), std::string::npos) << under_test->Clipboard();
  EXPECT_EQ(under_test->Clipboard().find("2\tb"), std::string::npos) << under_test->Clipboard();
  EXPECT_EQ(under_test->Clipboard().find("Type caption"), std::string::npos) << under_test->Clipboard();
}

TEST_F(GridServicesContract, CopyAllRowsWithoutASelectionUnderTheirCaptions) {
  ShowSample();
  GridColumn& type = grid.ColumnByKey("Type");
  type.SetHasValueList(true);
  type.ValueList()->Add(1, "Working day");
  services->CopyGridRows(grid, true);
  const std::string text = under_test->Clipboard();
  const auto captions = text.find("Type caption\tName caption");
  const auto first = text.find("2\tb");
  const auto second = text.find("Working day\tc");
  ASSERT_NE(captions, std::string::npos) << text;
  ASSERT_NE(first, std::string::npos) << text;
  ASSERT_NE(second, std::string::npos) << text;
  EXPECT_LT(captions, first);
  EXPECT_LT(first, second);
}

}  // namespace
}  // namespace ferrowind::contract
