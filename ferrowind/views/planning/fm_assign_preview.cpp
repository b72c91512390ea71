#include "ferrowind/views/planning/fm_assign_preview.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/views/common/close_dialog.h"
#include "ferrowind/views/planning/day_text.h"

namespace ferrowind {
namespace {

using planning::AssignmentLine;
using platform::Button;
using platform::CellMark;
using platform::ControlKind;
using platform::ControlOf;

platform::FormDesign Design() {
  return {
      .name = "fmAssignPreview",
      .caption = "Assign these rules?",
      .border = platform::FormBorder::kSizable,
      .start = platform::FormStart::kCenterOwner,
      .client_width = 11400,
      .client_height = 6600,
      .controls = {
          // The buttons first, so that Enter presses one of them.
          {ControlKind::kLabel, "lblSummary"},
          {.kind = ControlKind::kButton, .name = "cmdAssign", .text = "Assign", .is_default_button = true},
          {.kind = ControlKind::kButton, .name = "cmdCancel", .text = "Cancel", .is_cancel_button = true},
          {ControlKind::kTable, "tblPreview"},
          {ControlKind::kTextView, "txtDetails"}}};
}

std::string DayOf(const platform::Locale& locale, const AssignmentLine& line) {
  return line.day ? DayText(locale, *line.day) : line.days;
}

std::string Joined(const std::vector<std::string>& warnings) {
  std::string joined;
  for (const std::string& warning : warnings) joined += (joined.empty() ? "" : " ") + warning + ".";
  return joined;
}

CellMark MarkOf(const AssignmentLine& line) {
  if (!line.warnings.empty()) return CellMark::kWarning;
  return line.changes ? CellMark::kAdded : CellMark::kKept;
}

/// "3 rules for EUR 2028; 2 change nothing; 1 warning."
std::string Summary(const platform::Platform& platform, const std::string& calendar,
                    const std::vector<AssignmentLine>& lines) {
  const auto idle = std::count_if(lines.begin(), lines.end(), [](const auto& line) { return !line.changes; });
  std::int64_t warnings = 0;
  for (const AssignmentLine& line : lines) warnings += static_cast<std::int64_t>(line.warnings.size());
  std::string text = SaidOfNumber(platform, static_cast<std::int64_t>(lines.size()), "%n rule for %1",
                                  "%n rules for %1", {calendar});
  if (idle > 0) text += "; " + SaidOfNumber(platform, idle, "%n changes nothing", "%n change nothing");
  return text + "; " +
         (warnings == 0 ? Said(platform, "no warnings")
                        : SaidOfNumber(platform, warnings, "%n warning", "%n warnings")) +
         ".";
}

}  // namespace

fmAssignPreview::fmAssignPreview(const platform::Platform& platform, const std::string& calendar,
                                 std::vector<AssignmentLine> lines)
    : platform_(platform),
      lines_(std::move(lines)),
      form_(platform.toolkit.CreateForm(Said(platform, Design()))),
      table_(ControlOf<platform::Table>(*form_, "tblPreview")),
      details_(ControlOf<platform::TextView>(*form_, "txtDetails")) {
  const auto subscribe = [this](platform::Subscription subscription) {
    subscriptions_.push_back(std::move(subscription));
  };
  subscribe(table_.OnCurrentChange([this] { RunHandler(platform_, [this] { TellOfCurrentLine(); }); }));
  subscribe(ControlOf<Button>(*form_, "cmdAssign").OnClick([this] {
    RunHandler(platform_, [this] { Close(true); });
  }));
  subscribe(ControlOf<Button>(*form_, "cmdCancel").OnClick([this] {
    RunHandler(platform_, [this] { Close(false); });
  }));
  Fill(calendar);
}

void fmAssignPreview::Fill(const std::string& calendar) {
  ControlOf<platform::Label>(*form_, "lblSummary").SetText(Summary(platform_, calendar, lines_));
  const auto said = [this](const char* text) { return Said(platform_, text); };
  table_.SetColumns({{.key = "Rule", .caption = said("Rule")},
                     {.key = "Day", .caption = said("Day")},
                     {.key = "Now", .caption = said("There now")},
                     {.key = "Warnings", .caption = said("Look at"), .stretches = true}});
  std::vector<platform::TableRow> rows;
  std::string first_warned;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const AssignmentLine& line = lines_[i];
    const std::string key = std::to_string(i);
    if (first_warned.empty() && !line.warnings.empty()) first_warned = key;
    rows.push_back({.key = key,
                    .cells = {{.text = line.rule, .mark = MarkOf(line)},
                              {.text = DayOf(platform_.locale, line)},
                              {.text = line.now},
                              {.text = Joined(line.warnings)}}});
  }
  table_.SetRows(rows);
  if (!first_warned.empty()) {
    table_.SetCurrentRow(first_warned);
    // Enter alone goes on only for who has nothing to look at.
    ControlOf<Button>(*form_, "cmdCancel").SetFocus();
  }
  TellOfCurrentLine();
}

void fmAssignPreview::TellOfCurrentLine() {
  const auto current = table_.CurrentRow();
  if (!current) return details_.SetText("");
  const AssignmentLine& line = lines_.at(std::stoul(*current));
  std::string text = line.rule + ": " + DayOf(platform_.locale, line);
  if (!line.now.empty()) text += "\n" + Said(platform_, "There now: %1", {line.now});
  for (const std::string& warning : line.warnings) text += "\n" + warning + ".";
  if (line.warnings.empty()) {
    text += "\n" + Said(platform_, line.changes ? "Nothing to look at." : "Nothing changes.");
  }
  details_.SetText(text);
}

void fmAssignPreview::ShowModal() { form_->ShowModal(); }

void fmAssignPreview::Close(bool is_confirmed) {
  is_confirmed_ = is_confirmed;
  CloseDialog(platform_.toolkit, *form_);
}

}  // namespace ferrowind
