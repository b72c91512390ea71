#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "ferrowind/almanac/date_expression.h"

namespace ferrowind::host {

/// Is called with the number of calendars that are finished, and of all; what it throws ends the work.
using DeliveryObserver = std::function<void(std::size_t done, std::size_t total)>;

/// The last year that the calendars of a new database can begin with; the first is that of the delivered
/// books.
inline constexpr int kLastDeliverableYear = almanac::kLastYear - 1;

/// What a new database was delivered with.
struct Delivery {
  /// The codes of the currencies that have a rule book, and a calendar of each of the years.
  std::vector<std::string> currencies;
  int first_year = 0;
  int last_year = 0;
  /// What the calendars lack, because nobody has announced it yet: a sentence without a full stop for each.
  std::vector<std::string> unknown;
};

/// Stores the delivered rule books in the calling thread's database, which must know their currencies and
/// have no book, and makes the calendars of `first_year` and the next year as they plan them. A year that
/// not all books tell of is a `platform::Failure` before anything is made; whatever else fails is one that
/// names the book or calendar, and what was made before it stays.
[[nodiscard]] Delivery Deliver(int first_year, const DeliveryObserver& observe = {});

}  // namespace ferrowind::host
