#include "ferrowind/views/calendars/currency_tree.h"

#include <utility>

#include "ferrowind/data/action_scope.h"
#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/record_set_in.h"
#include "ferrowind/data/runtime_failure.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/views/calendars/node_key.h"
#include "ferrowind/views/common/update_lock.h"

namespace ferrowind {
namespace {

constexpr const char* kCurrencyImage = "Currency";
constexpr const char* kCalendarImage = "Calendar";

std::shared_ptr<platform::RecordSet> Currencies() {
  auto currencies = DictionaryObject().dic_GetDicRecByFilter("Ccy", "CcyType = 0");
  if (!currencies) {
    throw platform::Failure(platform::failure_number::kObjectNotSet,
                            "The dictionary object gave no record set of currencies");
  }
  return currencies;
}

/// The name of the current row's currency. A host's dictionary may lack it, which is no failure: the tree
/// then has one explanation less.
std::string CurrencyName(const platform::RecordSet& currencies) {
  std::string name;
  IgnoringFailure([&] {
    if (const auto field = currencies.FindField("Name"))
      name = platform::ToTextOrEmpty(currencies.Cell(currencies.CurrentBookmark(), *field));
  });
  return name;
}

}  // namespace

CurrencyTree::CurrencyTree(platform::Toolkit& toolkit, platform::Form& form, platform::Tree& tree,
                           std::function<void()> on_reload, platform::ActionObserver* observer)
    : toolkit_(toolkit), form_(form), tree_(tree), on_reload_(std::move(on_reload)), observer_(observer) {}

bool CurrencyTree::LoadCurrencies() {
  try {
    const auto currencies = Currencies();
    tree_.Clear();
    for (; !currencies->Eof(); currencies->MoveNext()) {
      tree_.AddRoot({node_key::OfCurrency(platform::ToText((*currencies)["CcyID"])),
                     platform::ToText((*currencies)["Ccy"]), kCurrencyImage, CurrencyName(*currencies)});
    }
    on_reload_();
    return true;
  } catch (...) {
    TraceFailureBeingHandled();
    TellFailedRead(observer_);
    return false;
  }
}

bool CurrencyTree::LoadCalendars() {
  try {
    std::shared_ptr<SourceValues> results;
    const std::int32_t answer = ExecProc("CldAllInfo", nullptr, results);
    TellRead(observer_, answer);
    if (answer != 0) return false;
    const auto calendars = RecordSetIn(results, "1");
    const auto holiday_types = RecordSetIn(results, "2");
    if (!calendars || !holiday_types) {
      TellIncompleteRead(observer_, "the calendars or the types of holidays");
      return false;
    }
    holiday_types_ = holiday_types;
    const std::size_t currency_field = calendars->FieldNamed("ID1");
    const std::size_t year_field = calendars->FieldNamed("Year1");
    for (; !calendars->Eof(); calendars->MoveNext()) {
      const auto row = calendars->CurrentBookmark();
      const std::string currency = platform::ToText(calendars->Cell(row, currency_field));
      const std::string year = platform::ToText(calendars->Cell(row, year_field));
      tree_.AddChild(node_key::OfCurrency(currency),
                     {node_key::OfCalendar(currency, year), year, kCalendarImage});
    }
    return true;
  } catch (...) {
    TraceFailureBeingHandled();
    TellFailedRead(observer_);
    return false;
  }
}

void CurrencyTree::SelectNode(std::int32_t currency_id, std::int32_t year, const std::string& key) {
  const auto first = tree_.First();
  if (!first) return;
  IgnoringFailure([&] {
    if (currency_id != 0 && year != 0) {
      tree_.Select(node_key::OfCalendar(platform::ToText(currency_id), platform::ToText(year)));
    } else {
      tree_.Select(key.empty() ? *first : key);
    }
  });
}

void CurrencyTree::SetAllExpanded(bool expanded) {
  const UpdateLock lock(toolkit_, form_);
  for (auto key = tree_.First(); key; key = tree_.NextSibling(*key)) {
    if (tree_.Expanded(*key) != expanded) tree_.SetExpanded(*key, expanded);
  }
}

}  // namespace ferrowind
