#include "ferrowind/views/dialogs/fm_select_year.h"

#include <optional>

#include "ferrowind/data/action_scope.h"
#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/views/common/close_dialog.h"

namespace ferrowind {
namespace {

using platform::Button;
using platform::ControlKind;
using platform::ControlOf;

constexpr std::int32_t kFirstYear = 1900;
constexpr std::int32_t kLastYear = 3000;
constexpr std::int32_t kYearDigits = 4;

platform::FormDesign Design() {
  return {
      .name = "fmSelectYear",
      .caption = "Select year",
      .border = platform::FormBorder::kFixedDialog,
      .start = platform::FormStart::kCenterScreen,
      .client_width = 3660,
      .client_height = 1290,
      .controls = {
          {.kind = ControlKind::kButton, .name = "cmdCreate", .text = "Create", .is_default_button = true},
          {.kind = ControlKind::kButton, .name = "cmdCancel", .text = "Cancel", .is_cancel_button = true},
          {ControlKind::kPanel, "pct"},
          {.kind = ControlKind::kTextBox, .name = "txtYear", .takes_typing = true},
          {ControlKind::kUpDown, "udYear"},
          {ControlKind::kLabel, "lblCreate", "Create new calendar on "},
          {ControlKind::kLabel, "lblRange", "A calendar's year is 1900 to 3000."}}};
}

/// The year that the text stands for, or nothing when it holds no number.
std::optional<std::int32_t> YearIn(const std::string& text) {
  try {
    return platform::ToInt32(text);
  } catch (const platform::Failure&) {
    return std::nullopt;
  }
}

/// Whether a year that a calendar can have begins with the text, so that it may just not be whole yet.
bool CanBecomeYear(const std::string& text) {
  std::int32_t lowest = 0;
  std::int32_t highest = 0;
  for (std::int32_t place = 0; place < kYearDigits; ++place) {
    const bool is_typed = place < static_cast<std::int32_t>(text.size());
    const char digit = is_typed ? text[static_cast<std::size_t>(place)] : '0';
    if (digit < '0' || digit > '9') return false;
    lowest = lowest * 10 + (digit - '0');
    highest = highest * 10 + (is_typed ? digit - '0' : 9);
  }
  return lowest <= kLastYear && highest >= kFirstYear && text.size() <= kYearDigits;
}

}  // namespace

fmSelectYear::fmSelectYear(const platform::Platform& platform)
    : platform_(platform),
      form_(platform.toolkit.CreateForm(Design())),
      year_field_(ControlOf<platform::TextBox>(*form_, "txtYear")),
      spinner_(ControlOf<platform::UpDown>(*form_, "udYear")),
      range_note_(ControlOf<platform::Label>(*form_, "lblRange")) {
  range_note_.SetVisible(false);
  year_field_.SetMaxLength(kYearDigits);
  spinner_.SetRange(kFirstYear, kLastYear, 1);
  loaded_ = form_->OnLoad([this] { RunHandler(platform_, [this] { Load(); }); });
  spinner_changed_ = spinner_.OnChange([this] { RunHandler(platform_, [this] { ShowSpinnerYear(); }); });
  year_changed_ = year_field_.OnChange(
      [this] { RunHandler(platform_, [this] { ShowNote(!CanBecomeYear(year_field_.Text())); }); });
  create_clicked_ =
      ControlOf<Button>(*form_, "cmdCreate").OnClick([this] { RunHandler(platform_, [this] { Create(); }); });
  cancel_clicked_ =
      ControlOf<Button>(*form_, "cmdCancel").OnClick([this] { RunHandler(platform_, [this] { Cancel(); }); });
}

std::string fmSelectYear::Caption() const { return form_->Caption(); }

void fmSelectYear::SetCaption(const std::string& caption) { form_->SetCaption(caption); }

void fmSelectYear::ShowModal() { form_->ShowModal(); }

void fmSelectYear::Load() {
  year_field_.SetText(platform::ToText(platform_.clock.Today().Year()));
  spinner_.SetValue(platform::ToInt32(year_field_.Text()));
}

// The spinner never reads the field: a year typed by hand gives way to the spinner's own at the next step, by
// intention.
void fmSelectYear::ShowSpinnerYear() { year_field_.SetText(platform::ToText(spinner_.Value())); }

void fmSelectYear::ShowNote(bool is_needed) {
  if (range_note_.Visible() != is_needed) range_note_.SetVisible(is_needed);
}

void fmSelectYear::Create() {
  const auto year = YearIn(year_field_.Text());
  if (!year) {
    ShowNote(true);
    platform_.toolkit.Beep();
    year_field_.SetFocus();
    year_field_.SelectAll();
    return;
  }
  creation_.emplace(platform_.action_observer, platform::ActionKind::kCreateCalendar, [&](auto& about) {
    about.currency = currency_;
    about.year = *year;
  });
  Store(*year);
  result_ = 0;
  year_ = *year;
  CloseDialog(platform_.toolkit, *form_);
}

void fmSelectYear::Store(std::int32_t year) {
  SourceValues params;
  params.Add("ID1", currency_id_);
  params.Add("Year1", year);
  std::shared_ptr<SourceValues> results;
  // A calendar that could not be stored is signalled by the beep alone and not found in the reloaded tree, by
  // intention.
  const std::int32_t answer = ExecProc("CldIUMain", &params, results);
  TellWrite(platform_.action_observer, {}, answer);
  has_created_ = answer == 0;
  if (!has_created_) platform_.toolkit.Beep();
}

void fmSelectYear::Cancel() {
  result_ = 1;
  CloseDialog(platform_.toolkit, *form_);
}

}  // namespace ferrowind
