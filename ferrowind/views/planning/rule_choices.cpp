#include "ferrowind/views/planning/rule_choices.h"

#include <array>
#include <utility>

#include "ferrowind/almanac/anchor.h"
#include "ferrowind/almanac/expression_error.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"

namespace ferrowind {
namespace {

using almanac::ClosedDayChoice;
using almanac::DateForm;
using almanac::ExpressionChoices;
using almanac::Relation;
using platform::ControlKind;

constexpr std::int32_t kByHand = -1;
/// Stands for no first or last year.
constexpr std::int32_t kNoYear = 0;
constexpr std::int32_t kMostDaysOffset = 70;
/// Years beyond these are written by hand; a list of all would be long.
constexpr int kFirstListedYear = 1950;
constexpr int kLastListedYear = 2100;

constexpr const char* kForm = "cmbForm";
constexpr const char* kOrdinal = "cmbOrdinal";
constexpr const char* kOffset = "cmbOffset";
constexpr const char* kTable = "cmbTable";
constexpr const char* kWeekday = "cmbWeekday";
constexpr const char* kRelation = "cmbRelation";
constexpr const char* kDay = "cmbDay";
constexpr const char* kMonth = "cmbMonth";
constexpr const char* kYear = "cmbYear";
constexpr const char* kClosedDay = "cmbClosedDay";
constexpr const char* kFrom = "cmbFrom";
constexpr const char* kTo = "cmbTo";
constexpr std::array kLists{kForm, kOrdinal, kOffset, kTable,     kWeekday, kRelation,
                            kDay,  kMonth,   kYear,   kClosedDay, kFrom,    kTo};

template <typename Choice>
struct ChoiceText {
  Choice choice;
  const char* text;
};

//: said
constexpr std::array kForms{ChoiceText<DateForm>{DateForm::kSameDate, "The same date each year"},
                            ChoiceText<DateForm>{DateForm::kNthWeekday, "A weekday of a month"},
                            ChoiceText<DateForm>{DateForm::kWeekdayByDate, "A weekday near a date"},
                            ChoiceText<DateForm>{DateForm::kEaster, "By Easter Sunday"},
                            ChoiceText<DateForm>{DateForm::kOrthodoxEaster, "By Orthodox Easter Sunday"},
                            ChoiceText<DateForm>{DateForm::kTable, "By a table of dates"},
                            ChoiceText<DateForm>{DateForm::kOnce, "Once"},
                            ChoiceText<DateForm>{DateForm::kEveryWeekday, "Every week"}};

//: said
constexpr std::array kClosedDays{
    ChoiceText<ClosedDayChoice>{ClosedDayChoice::kStays, "It stays there"},
    ChoiceText<ClosedDayChoice>{ClosedDayChoice::kNextFreeDay, "It moves to the next free day"},
    ChoiceText<ClosedDayChoice>{ClosedDayChoice::kNextMonday, "Off a weekend it moves to Monday"},
    ChoiceText<ClosedDayChoice>{ClosedDayChoice::kFridayOrMonday,
                                "From Saturday to Friday, from Sunday to Monday"},
    ChoiceText<ClosedDayChoice>{ClosedDayChoice::kMondayAfterSunday, "From Sunday to Monday"},
    ChoiceText<ClosedDayChoice>{ClosedDayChoice::kNotObserved, "It is not observed"}};

//: said
constexpr std::array kOrdinals{
    ChoiceText<int>{1, "First"}, ChoiceText<int>{2, "Second"},
    ChoiceText<int>{3, "Third"}, ChoiceText<int>{4, "Fourth"},
    ChoiceText<int>{5, "Fifth"}, ChoiceText<int>{almanac::NthWeekday::kLast, "Last"}};

//: said
constexpr std::array kRelations{ChoiceText<Relation>{Relation::kOnOrAfter, "on or after"},
                                ChoiceText<Relation>{Relation::kAfter, "after"},
                                ChoiceText<Relation>{Relation::kOnOrBefore, "on or before"},
                                ChoiceText<Relation>{Relation::kBefore, "before"}};

/// Whether the form asks for what the list has. The list of forms itself is always there.
bool IsAskedFor(const char* list, std::int32_t form_data) {
  if (list == kForm) return true;
  if (form_data == kByHand) return false;
  const auto form = static_cast<DateForm>(form_data);
  const bool is_dated =
      form == DateForm::kSameDate || form == DateForm::kOnce || form == DateForm::kWeekdayByDate;
  if (list == kDay) return is_dated;
  if (list == kMonth) return is_dated || form == DateForm::kNthWeekday;
  if (list == kYear) return form == DateForm::kOnce;
  if (list == kOrdinal) return form == DateForm::kNthWeekday;
  if (list == kRelation) return form == DateForm::kWeekdayByDate;
  if (list == kTable) return form == DateForm::kTable;
  if (list == kOffset)
    return form == DateForm::kEaster || form == DateForm::kOrthodoxEaster || form == DateForm::kTable;
  if (list == kWeekday) {
    return form == DateForm::kNthWeekday || form == DateForm::kWeekdayByDate ||
           form == DateForm::kEveryWeekday;
  }
  if (list == kClosedDay) return form != DateForm::kEveryWeekday;
  return form != DateForm::kOnce;
}

}  // namespace

std::vector<platform::ControlDesign> RuleChoices::Controls() {
  std::vector<platform::ControlDesign> controls{{ControlKind::kLabel, "lblForm", "When"}};
  for (const char* list : kLists) {
    if (list == kClosedDay) controls.push_back({ControlKind::kLabel, "lblClosedDay", "On a closed day"});
    if (list == kFrom) controls.push_back({ControlKind::kLabel, "lblFrom", "From"});
    if (list == kTo) controls.push_back({ControlKind::kLabel, "lblTo", "to"});
    controls.push_back({ControlKind::kDropDownList, list});
  }
  return controls;
}

RuleChoices::RuleChoices(const platform::Platform& platform, platform::Form& form,
                         const almanac::DateTables& tables, std::function<void()> on_choice)
    : platform_(platform), form_(form), on_choice_(std::move(on_choice)) {
  FillLists(tables);
  Show(std::nullopt);
  for (const char* list : kLists)
    subscriptions_.push_back(List(list).OnChoice([this] { RunHandler(platform_, [this] { Chose(); }); }));
}

platform::DropDownList& RuleChoices::List(const char* name) const {
  return platform::ControlOf<platform::DropDownList>(form_, name);
}

void RuleChoices::Add(const char* list, const std::string& text, std::int32_t data) const {
  List(list).AddItem(text, data);
}

void RuleChoices::FillLists(const almanac::DateTables& tables) {
  const auto add_all = [this](const char* list, const auto& choices) {
    for (const auto& [choice, text] : choices)
      Add(list, Said(platform_, text), static_cast<std::int32_t>(choice));
  };
  Add(kForm, Said(platform_, "Written by hand"), kByHand);
  add_all(kForm, kForms);
  add_all(kOrdinal, kOrdinals);
  add_all(kRelation, kRelations);
  add_all(kClosedDay, kClosedDays);
  // Monday first, as holidays are mostly on the days of the week that work.
  for (int i = 0; i < 7; ++i) Add(kWeekday, platform_.locale.WeekdayName((i + 1) % 7 + 1), (i + 1) % 7 + 1);
  for (int day = 1; day <= 31; ++day) Add(kDay, std::to_string(day), day);
  for (int month = 1; month <= 12; ++month) Add(kMonth, platform_.locale.MonthName(month), month);
  Add(kFrom, Said(platform_, "ever"), kNoYear);
  Add(kTo, Said(platform_, "ever"), kNoYear);
  for (int year = kFirstListedYear; year <= kLastListedYear; ++year) {
    for (const char* list : {kYear, kFrom, kTo}) Add(list, std::to_string(year), year);
  }
  for (int days = -kMostDaysOffset; days <= kMostDaysOffset; ++days) {
    if (days < 0) Add(kOffset, SaidOfNumber(platform_, -days, "%n day before", "%n days before"), days);
    if (days == 0) Add(kOffset, Said(platform_, "on the day itself"), days);
    if (days > 0) Add(kOffset, SaidOfNumber(platform_, days, "%n day after", "%n days after"), days);
  }
  for (const almanac::DateTable& table : tables.All()) {
    Add(kTable, table.name, static_cast<std::int32_t>(table_names_.size()));
    table_names_.push_back(table.name);
  }
}

std::int32_t RuleChoices::Chosen(const char* list) const {
  const platform::DropDownList& items = List(list);
  return items.Chosen() < 0 ? 0 : items.ItemData(items.Chosen());
}

bool RuleChoices::Choose(const char* list, std::int32_t data) {
  platform::DropDownList& items = List(list);
  for (std::int32_t i = 0; i < items.Count(); ++i) {
    if (items.ItemData(i) != data) continue;
    items.Choose(i);
    return true;
  }
  return false;
}

bool RuleChoices::ChooseTable(const std::string& name) {
  for (std::size_t i = 0; i < table_names_.size(); ++i) {
    if (table_names_[i] == name) return Choose(kTable, static_cast<std::int32_t>(i));
  }
  // Of a form without a table any will do.
  return name.empty() && (table_names_.empty() || Choose(kTable, 0));
}

bool RuleChoices::ShowChoices(const ExpressionChoices& choices) {
  const auto data = [](auto choice) { return static_cast<std::int32_t>(choice); };
  // What the form does not ask for is ready for one that does.
  const int year = choices.form == DateForm::kOnce ? choices.year : platform_.clock.Today().Year();
  return Choose(kForm, data(choices.form)) && Choose(kOrdinal, choices.ordinal) &&
         Choose(kOffset, choices.offset) && ChooseTable(choices.table) && Choose(kWeekday, choices.weekday) &&
         Choose(kRelation, data(choices.relation)) && Choose(kDay, choices.day) &&
         Choose(kMonth, choices.month) && Choose(kYear, year) &&
         Choose(kClosedDay, data(choices.on_closed_day)) && Choose(kFrom, choices.from.value_or(kNoYear)) &&
         Choose(kTo, choices.to.value_or(kNoYear));
}

bool RuleChoices::ChooseFor(const std::optional<almanac::DateExpression>& expression) {
  is_showing_ = true;
  const auto choices = expression ? ExpressionChoices::Of(*expression) : std::nullopt;
  const bool is_said = choices && ShowChoices(*choices);
  if (!is_said) Choose(kForm, kByHand);
  is_showing_ = false;
  return is_said;
}

void RuleChoices::Show(const std::optional<almanac::DateExpression>& expression) {
  ChooseFor(expression);
  ShowListsOfForm();
}

void RuleChoices::ShowWhileWriting(const std::optional<almanac::DateExpression>& expression) {
  if (ChooseFor(expression)) return ShowListsOfForm();
  EnableLists(false);
}

void RuleChoices::EnableLists(bool is_enabled) {
  for (const char* list : kLists) {
    if (list != kForm) List(list).SetEnabled(is_enabled);
  }
}

void RuleChoices::ShowListsOfForm() {
  const std::int32_t form = Chosen(kForm);
  EnableLists(true);
  for (const char* list : kLists) List(list).SetVisible(IsAskedFor(list, form));
  form_.ControlNamed("lblClosedDay").SetVisible(IsAskedFor(kClosedDay, form));
  form_.ControlNamed("lblFrom").SetVisible(IsAskedFor(kFrom, form));
  form_.ControlNamed("lblTo").SetVisible(IsAskedFor(kTo, form));
}

std::optional<std::string> RuleChoices::Expression() const {
  const std::int32_t form = Chosen(kForm);
  if (form == kByHand) return std::nullopt;
  const auto year_of = [this, form](const char* list) -> std::optional<int> {
    const std::int32_t year = Chosen(list);
    if (year == kNoYear || !IsAskedFor(list, form)) return std::nullopt;
    return year;
  };
  ExpressionChoices choices;
  choices.form = static_cast<DateForm>(form);
  choices.ordinal = Chosen(kOrdinal);
  choices.offset = Chosen(kOffset);
  if (!table_names_.empty()) choices.table = table_names_[static_cast<std::size_t>(Chosen(kTable))];
  choices.weekday = Chosen(kWeekday);
  choices.relation = static_cast<Relation>(Chosen(kRelation));
  choices.day = Chosen(kDay);
  choices.month = Chosen(kMonth);
  choices.year = Chosen(kYear);
  choices.on_closed_day = static_cast<ClosedDayChoice>(Chosen(kClosedDay));
  choices.from = year_of(kFrom);
  choices.to = year_of(kTo);
  return choices.ToText();
}

void RuleChoices::Chose() {
  if (is_showing_) return;
  ShowListsOfForm();
  on_choice_();
}

}  // namespace ferrowind
