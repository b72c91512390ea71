#include "host/delivery/delivery.h"

#include <utility>

#include "ferrowind/almanac/planner.h"
#include "ferrowind/almanac/rule_directory.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/year_preparation.h"
#include "ferrowind/platform/values/failure.h"

#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"

namespace ferrowind::host {
namespace {

constexpr int kYears = 2;

void RequireBooksOf(int year, const std::vector<almanac::NamedBook>& books) {
  for (const almanac::NamedBook& named : books) {
    if (named.book.HoldsIn(year)) continue;
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "The delivered rule books hold from " + std::to_string(*named.book.since) +
                                " on, so there are no calendars of " + std::to_string(year) + " to deliver");
  }
}

/// Makes the calendar of the year. What the plan lacks is added to `unknown`.
void MakeCalendar(const planning::Currency& currency, int year, const almanac::Planner& planner,
                  std::vector<std::string>& unknown) {
  // The calendar before has brought new rules.
  const almanac::RuleDirectory rules(planning::LoadRules().rules);
  const planning::YearPreparation preparation(currency, year, planner, rules);
  preparation.Apply(almanac::ExceptionHandling::kOverwrite);
  for (const platform::Phrase& sentence : preparation.Plan().Incomplete()) {
    unknown.push_back(preparation.Name() + ": " + sentence.InEnglish());
  }
}

}  // namespace

Delivery Deliver(int first_year, const DeliveryObserver& observe) {
  std::vector<almanac::NamedBook> books = DeliveredBooks();
  RequireBooksOf(first_year, books);
  const auto currencies = planning::CurrencyList::Load();
  for (const almanac::NamedBook& named : books) {
    planning::StoreBook(currencies.Named(named.name).id, named.name, "", named.book);
  }

  Delivery delivery;
  delivery.first_year = first_year;
  delivery.last_year = first_year + kYears - 1;
  std::size_t done = 0;
  const std::size_t total = books.size() * kYears;
  for (almanac::NamedBook& named : books) {
    const almanac::Planner planner(std::move(named.book), DeliveredDateTables());
    for (int year = delivery.first_year; year <= delivery.last_year; ++year) {
      if (observe) observe(done++, total);
      MakeCalendar(currencies.Named(named.name), year, planner, delivery.unknown);
    }
    delivery.currencies.push_back(named.name);
  }
  return delivery;
}

}  // namespace ferrowind::host
