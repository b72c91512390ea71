#include <CLI/CLI.hpp>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/admin/command_set.h"
#include "host/admin/documents/manual_page.h"
#include "host/admin/documents/program_outline.h"

namespace ferrowind::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

/// A program with a command "keep" and a group "list" with a command "all" in it.
class ProgramDocuments : public testing::Test {
 protected:
  ProgramDocuments() {
    program_.name("keeper");
    program_.description("Keeps \\ all.");
    program_.footer("FILES\n  keeper.conf  what it keeps");
    const auto nothing = [](const CommandSurroundings&) { return ExitStatus::kDone; };
    keep_ = &commands_.Add("keep", "Keep it", ".profile is kept", nothing);
    CLI::App& group = commands_.AddGroup("list", "List things", "All of them.");
    commands_.AddTo(group, "all", "List all", nothing);
  }

  [[nodiscard]] OutlinedCommand Outline() const { return OutlineOf(program_); }
  [[nodiscard]] OutlinedCommand Keep() const { return Outline().commands.at(0); }
  [[nodiscard]] std::string Page() const {
    std::ostringstream page;
    WriteManualPage(Outline(), {.version = "1.2", .date = "2026-11-22"}, page);
    return page.str();
  }

  CLI::App program_;
  CommandSet commands_{program_};
  CLI::App* keep_ = nullptr;
  std::string text_;
};

TEST_F(ProgramDocuments, OutlinesCommandsWithinGroups) {
  const OutlinedCommand outline = Outline();
  ASSERT_THAT(outline.commands, SizeIs(2));
  EXPECT_EQ(outline.commands[1].name, "list");
  ASSERT_THAT(outline.commands[1].commands, SizeIs(1));
  EXPECT_EQ(outline.commands[1].commands[0].description, "List all");
}

TEST_F(ProgramDocuments, TellsTheManualOfAGroupOnce) {
  const OutlinedCommand group = Outline().commands.at(1);
  EXPECT_EQ(group.manual, "All of them.");
  EXPECT_THAT(group.commands.at(0).manual, IsEmpty());
}

TEST_F(ProgramDocuments, OutlinesArgumentsInTheirOrder) {
  std::vector<std::string> files;
  keep_->add_option("URL", text_, "Where")->required();
  keep_->add_option("FILE", files, "What");
  const std::vector<OutlinedArgument> arguments = Keep().arguments;
  ASSERT_THAT(arguments, SizeIs(2));
  EXPECT_EQ(arguments[0].kind, ValueKind::kDatabase);
  EXPECT_TRUE(arguments[0].is_required);
  EXPECT_FALSE(arguments[0].is_repeated);
  EXPECT_EQ(arguments[1].kind, ValueKind::kFile);
  EXPECT_FALSE(arguments[1].is_required);
  EXPECT_TRUE(arguments[1].is_repeated);
}

TEST_F(ProgramDocuments, KnowsADatabaseOfAnotherName) {
  TakeDatabase(*keep_->add_option("FROM", text_, "From where"));
  keep_->add_option("TO", text_, "Until when");
  EXPECT_EQ(Keep().arguments.at(0).kind, ValueKind::kDatabase);
  EXPECT_EQ(Keep().arguments.at(1).kind, ValueKind::kAnything);
}

TEST_F(ProgramDocuments, OutlinesTheChoicesOfAnOption) {
  keep_->add_option("-f,--format", text_, "How")
      ->check(CLI::IsMember(std::set<std::string>{"csv", "json"}))
      ->option_text("FORMAT");
  bool flag = false;
  keep_->add_flag("--all", flag, "Everything");
  const std::vector<OutlinedOption> options = Keep().options;
  ASSERT_THAT(options, SizeIs(3));
  EXPECT_THAT(options[1].names, ElementsAre("-f", "--format"));
  EXPECT_EQ(options[1].value, "FORMAT");
  EXPECT_THAT(options[1].choices, ElementsAre("csv", "json"));
  EXPECT_THAT(options[2].value, IsEmpty());
}

TEST_F(ProgramDocuments, WritesWhatRoffWouldTakeForItsOwnAsText) {
  EXPECT_THAT(Page(), HasSubstr("keeps \\e all\n"));
  EXPECT_THAT(Page(), HasSubstr("\n\\&.profile is kept\n"));
  EXPECT_THAT(Page(), HasSubstr("\\fB\\-\\-help\\fR"));
}

TEST_F(ProgramDocuments, GivesThePageTheSectionsOfTheProgram) {
  EXPECT_THAT(Page(), HasSubstr("\n.SH FILES\n.TP\n\\fBkeeper.conf\\fR\nwhat it keeps\n"));
  EXPECT_THAT(Page(), HasSubstr("\n.SS \"list all\"\n"));
}

TEST_F(ProgramDocuments, TellsOfHelpOnce) {
  const std::string page = Page();
  EXPECT_THAT(page.substr(page.find(".SH COMMANDS")), Not(HasSubstr("\\-\\-help")));
}

}  // namespace
}  // namespace ferrowind::host
