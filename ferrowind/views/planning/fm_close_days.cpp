#include "ferrowind/views/planning/fm_close_days.h"

#include <utility>

#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/planning/plan_words.h"
#include "ferrowind/platform/values/text_limits.h"
#include "ferrowind/views/common/close_dialog.h"
#include "ferrowind/views/planning/day_text.h"

namespace ferrowind {
namespace {

using planning::ClosingLine;
using platform::CellMark;
using platform::CellTone;
using platform::ControlKind;
using platform::ControlOf;

platform::FormDesign Design() {
  return {
      .name = "fmCloseDays",
      .caption = "Close days",
      .border = platform::FormBorder::kSizable,
      .start = platform::FormStart::kCenterOwner,
      .client_width = 11700,
      .client_height = 6300,
      .controls = {
          {ControlKind::kLabel, "lblName", "Holiday"},
          {.kind = ControlKind::kTextBox, .name = "txtName", .longest_text = platform::kLongestName},
          {ControlKind::kLabel, "lblKnown", "Known ones"},
          {ControlKind::kDropDownList, "cmbKnown"},
          {ControlKind::kLabel, "lblMeaning"},
          {.kind = ControlKind::kTable, .name = "tblDays", .selects_many = true},
          {ControlKind::kLabel, "lblSummary"},
          {.kind = ControlKind::kButton,
           .name = "cmdCloseDays",
           .text = "Close days",
           .is_default_button = true},
          {.kind = ControlKind::kButton, .name = "cmdCancel", .text = "Cancel", .is_cancel_button = true}}};
}

CellMark MarkOf(const ClosingLine& line) {
  if (line.kind == ClosingLine::Kind::kNoCalendar) return CellMark::kError;
  if (line.is_warning) return CellMark::kWarning;
  return line.is_taken.value_or(false) ? CellMark::kAdded : CellMark::kKept;
}

}  // namespace

fmCloseDays::fmCloseDays(const platform::Platform& platform, planning::HolidayClosing& closing)
    : platform_(platform),
      closing_(closing),
      form_(platform.toolkit.CreateForm(Said(platform, Design()))),
      name_(ControlOf<platform::TextBox>(*form_, "txtName")),
      known_(ControlOf<platform::DropDownList>(*form_, "cmbKnown")),
      meaning_(ControlOf<platform::Label>(*form_, "lblMeaning")),
      table_(ControlOf<platform::Table>(*form_, "tblDays")),
      summary_(ControlOf<platform::Label>(*form_, "lblSummary")),
      close_days_(ControlOf<platform::Button>(*form_, "cmdCloseDays")) {
  const auto handler = [this](void (fmCloseDays::*member)()) {
    return [this, member] { RunHandler(platform_, [&] { (this->*member)(); }); };
  };
  const auto subscribe = [this](platform::Subscription subscription) {
    subscriptions_.push_back(std::move(subscription));
  };
  FillKnownNames();
  table_.SetColumns({{.key = "Calendar", .caption = Said(platform_, "Calendar")},
                     {.key = "Day", .caption = Said(platform_, "Day")},
                     {.key = "Now", .caption = Said(platform_, "There now")},
                     {.key = "Becomes", .caption = Said(platform_, "What happens"), .stretches = true}});
  ShowAnew();
  subscribe(name_.OnChange(handler(&fmCloseDays::TakeName)));
  subscribe(known_.OnChoice(handler(&fmCloseDays::TakeKnownName)));
  const auto take_decisions = handler(&fmCloseDays::TakeDecisions);
  subscribe(table_.OnCheckChange([take_decisions](const std::string&, bool) { take_decisions(); }));
  subscribe(close_days_.OnClick(handler(&fmCloseDays::Confirm)));
  subscribe(ControlOf<platform::Button>(*form_, "cmdCancel").OnClick(handler(&fmCloseDays::Close)));
}

void fmCloseDays::ShowModal() {
  name_.SetFocus();
  form_->ShowModal();
}

void fmCloseDays::FillKnownNames() {
  std::int32_t position = 0;
  for (const std::string& name : closing_.KnownNames()) known_.AddItem(name, position++);
}

// What the operator decides
// ------------------------------------------------------------------------------------------------

void fmCloseDays::TakeName() {
  closing_.SetName(name_.Text());
  ShowAnew();
}

void fmCloseDays::TakeKnownName() {
  if (known_.Chosen() >= 0) name_.SetText(known_.ItemText(known_.Chosen()));
}

void fmCloseDays::TakeDecisions() {
  bool has_decided = false;
  for (const ClosingLine& line : closing_.Lines()) {
    if (!line.is_taken || table_.Checked(line.key) == *line.is_taken) continue;
    closing_.Take(line.key, !*line.is_taken);
    has_decided = true;
  }
  // Told for each of several rows that one action has changed, all of which are checked by the first time.
  if (has_decided) ShowAnew();
}

void fmCloseDays::Confirm() {
  is_confirmed_ = true;
  Close();
}

void fmCloseDays::Close() { CloseDialog(platform_.toolkit, *form_); }

// Showing
// ------------------------------------------------------------------------------------------------

void fmCloseDays::ShowAnew() {
  const auto lines = closing_.Lines();
  std::vector<platform::TableRow> rows;
  rows.reserve(lines.size());
  for (const ClosingLine& line : lines) rows.push_back(RowOf(line));
  table_.SetRows(rows);
  // A row that was there before has kept its box as it was.
  for (const ClosingLine& line : lines) {
    if (line.is_taken && table_.Checked(line.key) != *line.is_taken) {
      table_.SetChecked(line.key, *line.is_taken);
    }
  }
  meaning_.SetText(MeaningOfName());
  summary_.SetText(closing_.Summary());
  close_days_.SetEnabled(closing_.CanClose());
}

std::string fmCloseDays::MeaningOfName() const {
  const planning::HolidayName name = closing_.Name();
  if (!name.refusal.empty()) return name.refusal;
  if (name.is_new) return Said(platform_, "A new holiday point, on the days that are closed here.");
  return Said(platform_,
              name.kind == almanac::RuleKind::kCelebration ? "The celebration %1." : "The holiday point %1.",
              {name.name});
}

platform::TableRow fmCloseDays::RowOf(const ClosingLine& line) const {
  const bool is_day = line.kind == ClosingLine::Kind::kDay;
  const bool is_idle = is_day && !line.is_taken.value_or(false) && !line.is_warning;
  const auto cell = [&](std::string text) {
    return platform::TableCell{.text = std::move(text),
                               .tone = is_idle ? CellTone::kQuiet : CellTone::kNormal};
  };
  platform::TableRow row{.key = line.key, .checked = line.is_taken};
  row.cells.push_back(cell(line.calendar));
  if (is_day) {
    row.cells.push_back(cell(DayText(platform_.locale, *line.date)));
    row.cells.push_back(cell(line.now ? *line.now : Said(platform_, planning::kOrdinaryDay)));
  } else {
    row.cells.push_back(cell(line.kind == ClosingLine::Kind::kBook ? Said(platform_, "Rule book") : ""));
    row.cells.push_back(cell(""));
  }
  row.cells.push_back(cell(line.becomes));
  row.cells.back().mark = MarkOf(line);
  return row;
}

}  // namespace ferrowind
