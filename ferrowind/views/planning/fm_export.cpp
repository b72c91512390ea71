#include "ferrowind/views/planning/fm_export.h"

#include <cstddef>
#include <cstdint>
#include <utility>

#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/exchange/list_file.h"
#include "ferrowind/exchange/list_format.h"
#include "ferrowind/exchange/list_in_format.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/listed_year.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/file_path.h"
#include "ferrowind/views/planning/typed_currencies.h"

namespace ferrowind {
namespace {

using exchange::ListFormat;
using platform::ControlKind;
using platform::ControlOf;

/// By their places in the list.
constexpr std::int32_t kHolidays = 0;
constexpr std::int32_t kAllDays = 1;

platform::FormDesign Design() {
  return {
      .name = "fmExport",
      .caption = "Export calendars",
      .border = platform::FormBorder::kSizable,
      .start = platform::FormStart::kAsPlaced,
      .client_width = 9000,
      .client_height = 3300,
      .closes_by_escape = true,
      .controls = {
          {ControlKind::kLabel, "lblCurrencies", "Currencies"},
          {ControlKind::kTextBox, "txtCurrencies"},
          {ControlKind::kLabel, "lblFirst", "From year"},
          {ControlKind::kTextBox, "txtFirst"},
          {ControlKind::kLabel, "lblLast", "to year"},
          {ControlKind::kTextBox, "txtLast"},
          {ControlKind::kLabel, "lblDays", "Days"},
          {ControlKind::kDropDownList, "cmbDays"},
          {ControlKind::kLabel, "lblOutcome"},
          {.kind = ControlKind::kButton, .name = "cmdExport", .text = "Export...", .is_default_button = true},
          {.kind = ControlKind::kButton, .name = "cmdClose", .text = "Close", .is_cancel_button = true}}};
}

/// The kinds of files that the list of so many currencies can be: plain text names none.
std::vector<platform::FileKind> KindsFor(const platform::Platform& platform, std::size_t currencies) {
  std::vector<platform::FileKind> kinds = {{Said(platform, "Calendar files"), "ics"},
                                           {Said(platform, "Tables"), "csv"},
                                           {Said(platform, "JSON files"), "json"}};
  if (currencies == 1) kinds.push_back({Said(platform, "Text files"), "txt"});
  return kinds;
}

std::string SuffixOf(const std::string& path) {
  const std::string suffix = platform::FileName(platform::FilePath(path).extension());
  return suffix.empty() ? suffix : suffix.substr(1);
}

}  // namespace

std::string fmExport::Wanted::Name() const {
  std::string name;
  // More names make no file's name that anybody reads.
  constexpr std::size_t kMostNamed = 3;
  if (currencies.size() > kMostNamed) {
    name = std::to_string(currencies.size());
  } else {
    for (const planning::Currency& currency : currencies) name += (name.empty() ? "" : " ") + currency.code;
  }
  name += " " + std::to_string(years.first);
  if (years.last != years.first) name += "-" + std::to_string(years.last);
  return name;
}

// Starting and closing
// ------------------------------------------------------------------------------------------------

std::shared_ptr<fmExport> fmExport::Create(const PlanningContext& context) {
  struct Creatable : fmExport {
    explicit Creatable(const PlanningContext& surroundings) : fmExport(surroundings) {}
  };
  auto window = std::make_shared<Creatable>(context);
  window->Connect();
  return window;
}

fmExport::fmExport(const PlanningContext& context)
    : context_(context),
      form_(context.platform.toolkit.CreateForm(Said(context.platform, Design()))),
      currencies_(ControlOf<platform::TextBox>(*form_, "txtCurrencies")),
      first_year_(ControlOf<platform::TextBox>(*form_, "txtFirst")),
      last_year_(ControlOf<platform::TextBox>(*form_, "txtLast")),
      days_(ControlOf<platform::DropDownList>(*form_, "cmbDays")),
      outcome_(ControlOf<platform::Label>(*form_, "lblOutcome")) {
  const platform::Platform& platform = context_.platform;
  days_.AddItem(Said(platform, "Holidays"), kHolidays);
  days_.AddItem(Said(platform, "Holidays, weekends and working days by exception"), kAllDays);
  days_.Choose(kHolidays);
  currencies_.SetPlaceholder(Said(platform, "EUR, USD or ALL"));
  Propose("", platform.clock.Today().Year());
}

void fmExport::Connect() {
  // A handler keeps the window alive while it runs: whoever opened it may drop it meanwhile.
  const auto handler = [weak = weak_from_this()](void (fmExport::*member)()) {
    return [weak, member] {
      if (const auto self = weak.lock()) RunHandler(self->context_.platform, [&] { ((*self).*member)(); });
    };
  };
  const auto on_click = [&](const char* name, void (fmExport::*command)()) {
    subscriptions_.push_back(ControlOf<platform::Button>(*form_, name).OnClick(handler(command)));
  };
  subscriptions_.push_back(form_->OnLoad(handler(&fmExport::Form_Load)));
  const auto query_unload = handler(&fmExport::Form_QueryUnload);
  subscriptions_.push_back(form_->OnCloseQuery([query_unload](bool& is_refused) {
    if (!is_refused) query_unload();
  }));
  on_click("cmdExport", &fmExport::Export);
  on_click("cmdClose", &fmExport::CloseByButton);
}

void fmExport::Propose(const std::string& currency, std::optional<int> year) {
  if (!currency.empty()) currencies_.SetText(currency);
  if (!year) return;
  first_year_.SetText(std::to_string(*year));
  last_year_.SetText(std::to_string(*year));
}

void fmExport::ShowInFront() {
  form_->Show();
  form_->Raise();
}

bool fmExport::Close() { return form_->Unload(); }

void fmExport::CloseByButton() { (void)Close(); }

void fmExport::Form_Load() {
  placement_.Restore(context_.platform.toolkit, *form_);
  currencies_.SetFocus();
}

void fmExport::Form_QueryUnload() {
  has_closed_ = true;
  placement_.Save(*form_);
}

// Doing
// ------------------------------------------------------------------------------------------------

std::optional<fmExport::Wanted> fmExport::Typed() {
  Wanted wanted;
  platform::TextBox* field = &first_year_;
  try {
    wanted.years.first = TypedYear(first_year_.Text());
    field = &last_year_;
    wanted.years.last = TypedYear(last_year_.Text());
    field = &currencies_;
    wanted.currencies = TypedCurrencies(currencies_.Text(), wanted.years.first);
  } catch (const TypingError& error) {
    Refuse(Said(context_.platform, "%1.", {error.Description()}), *field);
    return std::nullopt;
  }
  if (wanted.years.last < wanted.years.first) {
    Refuse(Said(context_.platform, "The last year is before the first one."), last_year_);
    return std::nullopt;
  }
  wanted.has_all = days_.Chosen() == kAllDays;
  return wanted;
}

void fmExport::Export() {
  outcome_.SetText("");
  try {
    if (const auto wanted = Typed()) Write(*wanted);
  } catch (const platform::Interruption&) {
    throw;
  } catch (const platform::Failure& failure) {
    TellFailure(failure.Description());
  }
}

fmExport::Content fmExport::Read(const Wanted& wanted) {
  const auto shared = planning::ShareConnections();
  Content content;
  // First, so that what changes meanwhile has a later one in the next file.
  content.revision = planning::RevisionFor(ListFormat::kICalendar);
  content.list = planning::ListCalendars(wanted.currencies, wanted.years, wanted.has_all);
  return content;
}

void fmExport::Write(const Wanted& wanted) {
  const platform::Platform& platform = context_.platform;
  // Read before the file is asked for: nobody chooses one for calendars that are not there.
  const Content content = Read(wanted);
  const auto kinds = KindsFor(platform, wanted.currencies.size());
  const auto path = platform.toolkit.ChooseFileToSave(Said(platform, "Export as"), wanted.Name(), kinds);
  if (!path || has_closed_) return;
  const auto format = exchange::FormatNamed(SuffixOf(*path));
  if (!format) {
    return TellFailure(
        Said(platform, "The name of the file tells its format and ends in .ics, .csv, .json or .txt"));
  }
  if (*format == ListFormat::kText && wanted.currencies.size() > 1) {
    return TellFailure(Said(platform, "A text file names no currencies, so it can be of one alone"));
  }
  exchange::WriteListFile(
      *path, exchange::WriteList(content.list, *format, context_.windows.CalendarFiles(), content.revision));
  outcome_.SetText(SaidOfNumber(platform, static_cast<std::int64_t>(content.list.days.size()),
                                "%n day of %1 is written to %2.", "%n days of %1 are written to %2.",
                                {wanted.Name(), *path}));
}

// Telling
// ------------------------------------------------------------------------------------------------

void fmExport::Refuse(const std::string& why, platform::TextBox& field) {
  outcome_.SetText(why);
  context_.platform.toolkit.Beep();
  field.SetFocus();
  field.SelectAll();
}

void fmExport::TellFailure(const std::string& why) {
  outcome_.SetText(Said(context_.platform, "No file was written. %1.", {why}));
  context_.platform.toolkit.Beep();
}

}  // namespace ferrowind
