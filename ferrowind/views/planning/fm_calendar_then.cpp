#include "ferrowind/views/planning/fm_calendar_then.h"

#include <utility>

#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/history_store.h"
#include "ferrowind/planning/history_words.h"
#include "ferrowind/planning/moment_text.h"
#include "ferrowind/planning/one_line.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/views/planning/day_text.h"

namespace ferrowind {
namespace {

using planning::HistoryEntry;
using planning::PastCalendar;
using planning::PastDay;
using platform::ControlKind;
using platform::ControlOf;

constexpr const char* kClose = "ID_CloseThen";

platform::FormDesign Design() {
  return {.name = "fmCalendarThen",
          .caption = "Calendar then",
          .border = platform::FormBorder::kSizable,
          .start = platform::FormStart::kAsPlaced,
          .client_width = 10800,
          .client_height = 8400,
          .closes_by_escape = true,
          .controls = {
              {ControlKind::kToolBar, "tbThen"},
              {ControlKind::kLabel, "lblThen"},
              {.kind = ControlKind::kTable, .name = "tblDays", .selects_many = true, .sorts = true},
              {.kind = ControlKind::kButton, .name = "cmdClose", .text = "Close", .is_cancel_button = true}}};
}

HistoryEntry RequireEntry(std::int32_t id) {
  auto found = planning::LoadEntry(id);
  if (!found || !found->entry.currency || !found->entry.year) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "The history has no entry " + std::to_string(id) + " of a calendar");
  }
  return std::move(found->entry);
}

platform::TableRow RowOf(const PastDay& day, const platform::Platform& platform) {
  const bool is_ordinary = !day.rule && day.comment.empty();
  const auto tone = is_ordinary ? platform::CellTone::kQuiet : platform::CellTone::kNormal;
  return {.key = day.date.ToIso(),
          .cells = {
              {.text = DayText(platform.locale, day.date), .tone = tone, .order = day.date.Serial()},
              {.text = day.rule ? planning::OneLine(day.name) : Said(platform, "Working day"), .tone = tone},
              {.text = planning::OneLine(day.comment), .tone = tone}}};
}

}  // namespace

struct fmCalendarThen::Creatable : fmCalendarThen {
  explicit Creatable(const PlanningContext& surroundings) : fmCalendarThen(surroundings) {}
};

std::shared_ptr<fmCalendarThen> fmCalendarThen::Create(const PlanningContext& context, std::int32_t entry) {
  auto window = std::make_shared<Creatable>(context);
  window->ShowBehind(entry);
  window->Connect();
  return window;
}

std::shared_ptr<fmCalendarThen> fmCalendarThen::CreateAsOf(const PlanningContext& context,
                                                           const planning::CalendarKey& calendar,
                                                           const std::string& moment) {
  auto window = std::make_shared<Creatable>(context);
  window->ShowAsOf(calendar, moment);
  window->Connect();
  return window;
}

std::string fmCalendarThen::NameFor(std::int32_t entry) { return "fmCalendarThen " + std::to_string(entry); }

std::string fmCalendarThen::NameFor(const planning::CalendarKey& calendar, const std::string& moment) {
  return "fmCalendarThen " + std::to_string(calendar.first) + " " + std::to_string(calendar.second) + " " +
         moment;
}

std::string fmCalendarThen::WhyEmpty(const platform::Platform& platform, PastCalendar::State state) {
  switch (state) {
    case PastCalendar::State::kNotThere:
      return Said(platform, "There was no such calendar then.");
    case PastCalendar::State::kNotKept:
      return Said(platform, "The history does not reach back so far.");
    case PastCalendar::State::kThere:
      break;
  }
  return {};
}

fmCalendarThen::fmCalendarThen(const PlanningContext& context)
    : platform_(context.platform), form_(platform_.toolkit.CreateForm(Said(platform_, Design()))) {
  ControlOf<platform::ToolBar>(*form_, "tbThen")
      .AddTool(
          {.id = kClose, .caption = Said(platform_, "Close"), .category = "History", .shortcut = "Ctrl+W"});
  ControlOf<platform::Table>(*form_, "tblDays")
      .SetColumns({{.key = "Date", .caption = Said(platform_, "Date")},
                   {.key = "Day", .caption = Said(platform_, "Day"), .stretches = true},
                   {.key = "Comment", .caption = Said(platform_, "Comment"), .stretches = true}});
}

void fmCalendarThen::ShowBehind(std::int32_t entry) {
  const HistoryEntry then = RequireEntry(entry);
  const auto currencies = planning::CurrencyList::Load();
  const planning::HistoryWords words(currencies, planning::FindEntry);
  const std::string calendar = words.Calendar(then);
  const std::string moment = planning::ExactMomentText(platform_.locale, then.moment);
  form_->SetCaption(Said(platform_, "%1 as of %2", {calendar, moment}));
  ControlOf<platform::Label>(*form_, "lblThen")
      .SetText(Said(platform_, "%1 as it was after: %2 \u2014 %3, %4",
                    {calendar, words.Tell(then).Sentence(), then.user, moment}));
  ShowDays(planning::LoadCalendarBehind(*then.currency, *then.year, then.id));
}

void fmCalendarThen::ShowAsOf(const planning::CalendarKey& calendar, const std::string& moment) {
  const auto& [currency, year] = calendar;
  const std::string name =
      planning::CalendarName(planning::CurrencyList::Load().FindOrNumber(currency), year);
  const std::string when = planning::ExactMomentText(platform_.locale, moment);
  form_->SetCaption(Said(platform_, "%1 as of %2", {name, when}));
  ControlOf<platform::Label>(*form_, "lblThen").SetText(Said(platform_, "%1 as it was at: %2", {name, when}));
  ShowDays(planning::LoadCalendarAsOf(currency, year, moment));
}

void fmCalendarThen::ShowDays(const PastCalendar& past) {
  auto& days = ControlOf<platform::Table>(*form_, "tblDays");
  days.SetEmptyText(WhyEmpty(platform_, past.state));
  std::vector<platform::TableRow> rows;
  for (const PastDay& day : past.days) rows.push_back(RowOf(day, platform_));
  days.SetRows(rows);
}

void fmCalendarThen::Connect() {
  const auto handler = [weak = weak_from_this()](void (fmCalendarThen::*member)()) {
    return [weak, member] {
      if (const auto self = weak.lock()) RunHandler(self->platform_, [&] { ((*self).*member)(); });
    };
  };
  subscriptions_.push_back(form_->OnLoad(handler(&fmCalendarThen::Form_Load)));
  const auto query_unload = handler(&fmCalendarThen::Form_QueryUnload);
  subscriptions_.push_back(form_->OnCloseQuery([query_unload](bool& is_refused) {
    if (!is_refused) query_unload();
  }));
  const auto close = handler(&fmCalendarThen::CloseByButton);
  subscriptions_.push_back(
      ControlOf<platform::ToolBar>(*form_, "tbThen").OnToolClick([close](const std::string&) { close(); }));
  subscriptions_.push_back(
      ControlOf<platform::Button>(*form_, "cmdClose").OnClick(handler(&fmCalendarThen::CloseByButton)));
}

void fmCalendarThen::ShowInFront() {
  form_->Show();
  form_->Raise();
}

bool fmCalendarThen::Close() { return form_->Unload(); }

void fmCalendarThen::CloseByButton() { (void)Close(); }

void fmCalendarThen::Form_Load() {
  placement_.Restore(platform_.toolkit, *form_);
  ControlOf<platform::Table>(*form_, "tblDays").SetFocus();
}

void fmCalendarThen::Form_QueryUnload() {
  has_closed_ = true;
  placement_.Save(*form_);
}

}  // namespace ferrowind
