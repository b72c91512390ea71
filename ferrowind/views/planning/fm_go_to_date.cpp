#include "ferrowind/views/planning/fm_go_to_date.h"

#include <utility>

#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/platform/toolkit/button.h"
#include "ferrowind/views/common/close_dialog.h"
#include "ferrowind/views/planning/day_text.h"

namespace ferrowind {
namespace {

using platform::Button;
using platform::ControlKind;
using platform::ControlOf;

platform::FormDesign Design() {
  return {
      .name = "fmGoToDate",
      .caption = "Go to date",
      .border = platform::FormBorder::kClosableDialog,
      .start = platform::FormStart::kCenterOwner,
      .client_width = 4800,
      .client_height = 1700,
      .controls = {
          {ControlKind::kLabel, "lblDate", "Date"},
          {.kind = ControlKind::kTextBox, .name = "txtDate", .takes_typing = true},
          {ControlKind::kLabel, "lblMeaning"},
          {.kind = ControlKind::kButton, .name = "cmdGo", .text = "Go", .is_default_button = true},
          {.kind = ControlKind::kButton, .name = "cmdCancel", .text = "Cancel", .is_cancel_button = true}}};
}

}  // namespace

fmGoToDate::fmGoToDate(const platform::Platform& platform, const platform::Date& start, Objection objection)
    : platform_(platform),
      start_(start),
      objection_(std::move(objection)),
      form_(platform.toolkit.CreateForm(Said(platform, Design()))),
      text_(ControlOf<platform::TextBox>(*form_, "txtDate")),
      meaning_(ControlOf<platform::Label>(*form_, "lblMeaning")) {
  const auto handler = [this](void (fmGoToDate::*member)()) {
    return [this, member] { RunHandler(platform_, [&] { (this->*member)(); }); };
  };
  subscriptions_.push_back(text_.OnChange(handler(&fmGoToDate::ShowMeaning)));
  subscriptions_.push_back(ControlOf<Button>(*form_, "cmdGo").OnClick(handler(&fmGoToDate::Go)));
  subscriptions_.push_back(ControlOf<Button>(*form_, "cmdCancel").OnClick(handler(&fmGoToDate::Close)));
  text_.SetText(platform.locale.DateText(start));
}

void fmGoToDate::ShowModal() {
  text_.SetFocus();
  text_.SelectAll();
  form_->ShowModal();
}

platform::DateReading fmGoToDate::Read() const {
  return platform_.locale.ReadDate(text_.Text(), start_.Year());
}

void fmGoToDate::ShowMeaning() {
  const auto reading = Read();
  meaning_.SetText(reading.date ? DayText(platform_.locale, *reading.date) : reading.refusal);
}

void fmGoToDate::Go() {
  const auto reading = Read();
  if (!reading.date) return Refuse(reading.refusal);
  if (const std::string why = objection_(*reading.date); !why.empty()) return Refuse(why);
  chosen_ = reading.date;
  Close();
}

void fmGoToDate::Refuse(const std::string& why) {
  meaning_.SetText(why);
  platform_.toolkit.Beep();
  text_.SetFocus();
  text_.SelectAll();
}

void fmGoToDate::Close() { CloseDialog(platform_.toolkit, *form_); }

}  // namespace ferrowind
