#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/business_days/value_dates.h"
#include "ferrowind/loading/loaded_days.h"

#include "host/admin/exit_status.h"

/// Questions about business days as people and programs write them, one word for each part:
/// "next EUR,USD 2026-12-25", "value EURUSD 2026-12-22 3M".
namespace ferrowind::host {

/// A closed day between what was asked for and the answer.
struct PassedDay {
  /// For whom it is closed.
  struct Closure {
    std::string currency;
    /// The holiday or weekend that it is; empty when that is not known.
    std::string name;
  };

  std::chrono::sys_days day;
  /// In the order of the question.
  std::vector<Closure> closures;

  /// "2026-04-03".
  [[nodiscard]] std::string Date() const;
  /// "2026-12-26 Boxing Day: GBP; St. Stephen's Day: EUR, CHF"; where no name is known the weekday stands.
  [[nodiscard]] std::string Text() const;
};

struct DateAnswer {
  /// "open", "2026-12-28" or "-3".
  std::string text;
  bool is_number = false;
  /// `kDone`, and of a day that is asked for `kClosed` and `kNotPrepared`.
  ExitStatus status = ExitStatus::kDone;
  /// Ascending.
  std::vector<PassedDay> passed = {};
  /// Of a day that is not prepared, for whom it is not.
  std::string remark = {};
};

/// How questions are to be answered.
struct DateAnswering {
  /// Whether the passed days are told.
  bool tells_why = false;
  business_days::ClosedTradeDate closed_trade_date = business_days::ClosedTradeDate::kCountsAsNext;
};

/// The first of `words` is the question, the others are its parts. An answer that depends on a day which
/// nobody has prepared is `business_days::NotPrepared`, except of "is", which answers that. Anything else
/// that cannot be answered is another exception, whose text says why.
[[nodiscard]] DateAnswer AnswerDateQuestion(const std::vector<std::string>& words,
                                            const loading::LoadedDays& days, const DateAnswering& answering);

}  // namespace ferrowind::host
