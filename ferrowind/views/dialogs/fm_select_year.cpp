#include "ferrowind/views/dialogs/fm_select_year.h"

#include <optional>

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
          {ControlKind::kTextBox, "txtYear"},
          {ControlKind::kUpDown, "udYear"},
          {ControlKind::kLabel, "lblCreate", "Create new calendar on "}}};
}

/// The year that the text stands for, or nothing when it holds no number.
std::optional<std::int32_t> YearIn(const std::string& text) {
  try {
    return platform::ToInt32(text);
  } catch (const platform::Failure&) {
    return std::nullopt;
  }
}

}  // namespace

fmSelectYear::fmSelectYear(const platform::Platform& platform)
    : platform_(platform),
      form_(platform.toolkit.CreateForm(Design())),
      year_field_(ControlOf<platform::TextBox>(*form_, "txtYear")),
      spinner_(ControlOf<platform::UpDown>(*form_, "udYear")) {
  year_field_.SetMaxLength(kYearDigits);
  spinner_.SetRange(kFirstYear, kLastYear, 1);
  loaded_ = form_->OnLoad([this] { RunHandler([this] { Load(); }); });
  spinner_changed_ = spinner_.OnChange([this] { RunHandler([this] { ShowSpinnerYear(); }); });
  create_clicked_ =
      ControlOf<Button>(*form_, "cmdCreate").OnClick([this] { RunHandler([this] { Create(); }); });
  cancel_clicked_ =
      ControlOf<Button>(*form_, "cmdCancel").OnClick([this] { RunHandler([this] { Cancel(); }); });
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

void fmSelectYear::Create() {
  const auto year = YearIn(year_field_.Text());
  if (!year) {
    platform_.toolkit.Beep();
    year_field_.SetFocus();
    year_field_.SelectAll();
    return;
  }
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
  if (ExecProc("CldIUMain", &params, results) != 0) platform_.toolkit.Beep();
}

void fmSelectYear::Cancel() {
  result_ = 1;
  CloseDialog(platform_.toolkit, *form_);
}

}  // namespace ferrowind
