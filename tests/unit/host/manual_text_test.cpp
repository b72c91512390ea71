#include "host/admin/documents/manual_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ferrowind::host {
namespace {

using testing::ElementsAre;
using Kind = ManualBlock::Kind;

ManualBlock Paragraph(const char* text) { return {Kind::kParagraph, text}; }
ManualBlock Item(const char* tag, const char* text) { return {Kind::kItem, text, tag}; }

TEST(ManualText, JoinsTheLinesOfAParagraph) {
  EXPECT_THAT(ReadManual("Nothing is\nchanged.\n\nThe status is 1."),
              ElementsAre(Paragraph("Nothing is changed."), Paragraph("The status is 1.")));
}

TEST(ManualText, TakesALineOfCapitalsForAHeading) {
  EXPECT_THAT(ReadManual("EXIT STATUS\n  URL names\n  the database"),
              ElementsAre(ManualBlock{Kind::kHeading, "EXIT STATUS"}, Paragraph("URL names the database")));
}

TEST(ManualText, JoinsWhatStandsInTheColumnOfAnEntry) {
  EXPECT_THAT(ReadManual("  table  columns, for\n         people\n  no json  none"),
              ElementsAre(Item("table", "columns, for people"), Item("no json", "none")));
}

TEST(ManualText, EndsAListWithTextThatHasNoTag) {
  EXPECT_THAT(
      ReadManual("The list:\n  0  done\n     indeed\n  \"date\" has others\n  too"),
      ElementsAre(Paragraph("The list:"), Item("0", "done indeed"), Paragraph("\"date\" has others too")));
}

TEST(ManualText, KeepsTheLinesOfExamples) {
  EXPECT_THAT(ReadManual("EXAMPLES\n  call CldIUMain  \\\n      ID1=1\n\nMore is told."),
              ElementsAre(ManualBlock{Kind::kHeading, "EXAMPLES"},
                          ManualBlock{Kind::kVerbatim, "  call CldIUMain  \\"},
                          ManualBlock{Kind::kVerbatim, "      ID1=1"}, Paragraph("More is told.")));
}

}  // namespace
}  // namespace ferrowind::host
