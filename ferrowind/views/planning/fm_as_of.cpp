#include "ferrowind/views/planning/fm_as_of.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/planning/local_moment.h"
#include "ferrowind/platform/database/history_moment.h"
#include "ferrowind/platform/toolkit/button.h"
#include "ferrowind/views/common/close_dialog.h"
#include "ferrowind/views/planning/day_text.h"
#include "ferrowind/views/planning/typed_time.h"

namespace ferrowind {
namespace {

using platform::Button;
using platform::ControlKind;
using platform::ControlOf;
using platform::Date;

constexpr std::size_t kDateLength = 10;

platform::FormDesign Design() {
  return {
      .name = "fmAsOf",
      .caption = "Calendar at a moment",
      .border = platform::FormBorder::kClosableDialog,
      .start = platform::FormStart::kCenterOwner,
      .client_width = 5400,
      .client_height = 2400,
      .controls = {
          {ControlKind::kLabel, "lblAsked"},
          {ControlKind::kLabel, "lblDate", "Date"},
          {.kind = ControlKind::kTextBox, .name = "txtDate", .takes_typing = true},
          {ControlKind::kLabel, "lblTime", "Time"},
          {.kind = ControlKind::kTextBox, .name = "txtTime", .takes_typing = true},
          {ControlKind::kLabel, "lblMeaning"},
          {.kind = ControlKind::kButton, .name = "cmdShow", .text = "Show", .is_default_button = true},
          {.kind = ControlKind::kButton, .name = "cmdCancel", .text = "Cancel", .is_cancel_button = true}}};
}

std::optional<Date> LocalDateOf(const std::string& moment) {
  return Date::FromIso(planning::LocalMoment(moment).substr(0, kDateLength));
}

/// Whether the minute of `moment` has not begun yet at `latest`.
bool IsToCome(const std::string& moment, const std::string& latest) {
  constexpr std::size_t kLengthToMinute = 16;
  return moment.compare(0, kLengthToMinute, latest, 0, kLengthToMinute) > 0;
}

}  // namespace

fmAsOf::fmAsOf(const platform::Platform& platform, const std::string& calendar, std::string start,
               Objection objection)
    : platform_(platform),
      start_(std::move(start)),
      objection_(std::move(objection)),
      form_(platform.toolkit.CreateForm(Said(platform, Design()))),
      date_(ControlOf<platform::TextBox>(*form_, "txtDate")),
      time_(ControlOf<platform::TextBox>(*form_, "txtTime")),
      meaning_(ControlOf<platform::Label>(*form_, "lblMeaning")) {
  const auto handler = [this](void (fmAsOf::*member)()) {
    return [this, member] { RunHandler(platform_, [&] { (this->*member)(); }); };
  };
  subscriptions_.push_back(date_.OnChange(handler(&fmAsOf::ShowMeaning)));
  subscriptions_.push_back(time_.OnChange(handler(&fmAsOf::ShowMeaning)));
  subscriptions_.push_back(ControlOf<Button>(*form_, "cmdShow").OnClick(handler(&fmAsOf::Choose)));
  subscriptions_.push_back(ControlOf<Button>(*form_, "cmdCancel").OnClick(handler(&fmAsOf::Close)));
  ControlOf<platform::Label>(*form_, "lblAsked")
      .SetText(Said(platform_, "Show %1 as it was at this moment:", {calendar}));
  if (const auto day = LocalDateOf(start_)) {
    date_.SetText(platform_.locale.DateText(*day));
    time_.SetText(planning::LocalMoment(start_).substr(kDateLength + 1));
  }
}

void fmAsOf::ShowModal() {
  date_.SetFocus();
  date_.SelectAll();
  form_->ShowModal();
}

fmAsOf::Reading fmAsOf::Read() const {
  const int year = LocalDateOf(start_).value_or(platform_.clock.Today()).Year();
  const auto date = platform_.locale.ReadDate(date_.Text(), year);
  if (!date.date) return {.meaning = date.refusal, .wrong = &date_};
  const auto time = ReadTime(time_.Text());
  if (!time) {
    return {.meaning = Said(platform_, "This is no time. Write one such as 14:05 or 14:05:31."),
            .wrong = &time_};
  }
  constexpr int kLastSecond = 59;
  const auto moment =
      planning::MomentOf({*date.date, time->hour, time->minute, time->second.value_or(kLastSecond)});
  if (!moment) {
    return {.meaning = Said(platform_, "The clock was set forward then, and never showed this time."),
            .wrong = &time_};
  }
  const std::string latest = std::max(platform::MomentNow(), start_);
  if (IsToCome(*moment, latest)) {
    return {.meaning = Said(platform_, "This moment is still to come."), .wrong = &date_};
  }
  const std::string local = planning::LocalMoment(*moment);
  return {.moment = std::min(*moment, latest),
          .meaning = DayText(platform_.locale, *date.date) + ", " + local.substr(kDateLength + 1)};
}

void fmAsOf::ShowMeaning() { meaning_.SetText(Read().meaning); }

void fmAsOf::Choose() {
  const Reading reading = Read();
  if (!reading.moment) return Refuse(reading.meaning, *reading.wrong);
  if (const std::string why = objection_(*reading.moment); !why.empty()) return Refuse(why, date_);
  chosen_ = reading.moment;
  Close();
}

void fmAsOf::Refuse(const std::string& why, platform::TextBox& field) {
  meaning_.SetText(why);
  platform_.toolkit.Beep();
  field.SetFocus();
  field.SelectAll();
}

void fmAsOf::Close() { CloseDialog(platform_.toolkit, *form_); }

}  // namespace ferrowind
