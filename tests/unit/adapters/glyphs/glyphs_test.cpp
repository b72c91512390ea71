#include "ferrowind/adapters/glyphs/glyphs.h"

#include <gtest/gtest.h>

#include "ferrowind/adapters/glyphs/mark_glyphs.h"
#include "ferrowind/adapters/glyphs/tool_faces.h"
#include "ferrowind/adapters/glyphs/tree_glyphs.h"

namespace ferrowind::glyphs {
namespace {

/// How many steps the path has, all of which stay in the square.
std::size_t StepsInside(const GlyphPath& path) {
  for (const GlyphPath::Step& step : path.Steps()) {
    for (const Point& point : step.points) {
      EXPECT_GE(point.x, 0);
      EXPECT_LE(point.x, kSide);
      EXPECT_GE(point.y, 0);
      EXPECT_LE(point.y, kSide);
    }
  }
  return path.Steps().size();
}

void ExpectDrawn(const Glyph& glyph) {
  EXPECT_GT(StepsInside(glyph.lines) + StepsInside(glyph.solids) + StepsInside(glyph.accent_lines) +
                StepsInside(glyph.accent_solids),
            0U);
}

TEST(GlyphsTest, ToolsOfTheWindowsHaveFaces) {
  for (const char* const tool :
       {"ID_Refresh", "ID_New", "ID_Expand", "ID_Collapse", "ID_ShowHide", "ID_ExpandGrid", "ID_CollapseGrid",
        "ID_ExpSel", "ID_Copy", "ID_AssignSingle", "ID_AssignMany", "ID_Except", "ID_Except2", "ID_PlanYear",
        "ID_YearPlanner", "ID_History", "ID_Undo", "ID_Why"}) {
    SCOPED_TRACE(tool);
    const ToolFace* face = FindToolFace(tool);
    ASSERT_NE(face, nullptr);
    ExpectDrawn(face->glyph());
  }
  EXPECT_EQ(FindToolFace("ID_Refresh")->shortcut, "F5");
  EXPECT_EQ(FindToolFace("ID_Expand")->shortcut, "");
  EXPECT_EQ(FindToolFace("ID_Nowhere"), nullptr);
}

TEST(GlyphsTest, NodesAreToldFromEachOther) {
  ASSERT_NE(TreeGlyph("Currency"), nullptr);
  ASSERT_NE(TreeGlyph("Calendar"), nullptr);
  EXPECT_NE(TreeGlyph("Currency"), TreeGlyph("Calendar"));
  EXPECT_EQ(TreeGlyph("Nowhere"), nullptr);
}

TEST(GlyphsTest, MarksAreDrawnAndNoMarkIsNot) {
  for (auto mark = platform::CellMark::kPrepared; mark <= platform::CellMark::kToday;
       mark = static_cast<platform::CellMark>(static_cast<int>(mark) + 1))
    ExpectDrawn(MarkGlyph(mark));
  EXPECT_TRUE(MarkGlyph(platform::CellMark::kNone).lines.Steps().empty());
  EXPECT_TRUE(MarkGlyph(platform::CellMark::kNone).solids.Steps().empty());
}

TEST(GlyphsTest, LinesOfSmallPicturesAreNeverTooThin) {
  EXPECT_DOUBLE_EQ(LineWidthIn(kSide), kLineWidth);
  EXPECT_DOUBLE_EQ(LineWidthIn(kSide / 2), 2.5);
}

}  // namespace
}  // namespace ferrowind::glyphs
