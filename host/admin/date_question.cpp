#include "host/admin/date_question.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <system_error>
#include <utility>

#include "ferrowind/business_days/convention.h"
#include "ferrowind/business_days/currency_codes.h"
#include "ferrowind/business_days/currency_pair.h"
#include "ferrowind/business_days/day_failures.h"
#include "ferrowind/business_days/joint_calendar.h"
#include "ferrowind/business_days/tenor.h"
#include "ferrowind/platform/values/date.h"

#include "host/admin/currency_numbers.h"
#include "host/admin/plan_arguments.h"
#include "host/admin/procedure_arguments.h"

namespace ferrowind::host {
namespace {

using business_days::BusinessCalendar;
using business_days::BusinessDays;
using business_days::DayState;
using business_days::JointCalendar;
using business_days::Tenor;
using business_days::ValueDates;
using std::chrono::days;
using std::chrono::sys_days;
using Words = std::vector<std::string>;

// Reading
// -----------------------------------------------------------------------------------------------------------

sys_days ReadSysDay(const std::string& text) {
  const platform::Date date = ReadDay(text);
  return std::chrono::year(date.Year()) / date.Month() / date.Day();
}

std::int32_t ReadCount(const std::string& text) {
  std::int32_t count = 0;
  const char* const end = text.data() + text.size();
  const auto [read_to, error] = std::from_chars(text.data(), end, count);
  if (error != std::errc() || read_to != end) throw ArgumentError("\"" + text + "\" is no number of days");
  return count;
}

business_days::Convention ReadConvention(const std::string& text) {
  const auto convention = business_days::ConventionNamed(text);
  if (convention) return *convention;
  throw ArgumentError("\"" + text +
                      "\" is no convention: it is Following, ModifiedFollowing, ModifiedFollowingBimonthly, "
                      "Preceding, ModifiedPreceding, Nearest or Unadjusted");
}

platform::Date DateOf(sys_days day) {
  const std::chrono::year_month_day date(day);
  return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day()))};
}

// Answering
// -----------------------------------------------------------------------------------------------------------

/// What a question is asked of.
struct Asked {
  const loading::LoadedDays& days;
  const DateAnswering& answering;
};

/// The closed days of several calendars.
class PassedDays {
 public:
  PassedDays(std::vector<BusinessCalendar> members, const Asked& asked)
      : members_(std::move(members)), names_(asked.days.names), is_wanted_(asked.answering.tells_why) {}

  /// Those from `first` to `last`, behind all that were added before.
  void AddBetween(sys_days first, sys_days last) {
    if (!is_wanted_) return;
    for (sys_days day = first; day <= last; day += days(1)) {
      PassedDay passed{day, {}};
      for (const BusinessCalendar& member : members_) {
        if (member.State(day) == DayState::kClosed) {
          passed.closures.push_back({member.Code(), names_.Of(member.Code(), day)});
        }
      }
      if (!passed.closures.empty()) passed_.push_back(std::move(passed));
    }
  }
  [[nodiscard]] std::vector<PassedDay> Take() { return std::move(passed_); }

 private:
  std::vector<BusinessCalendar> members_;
  const loading::DayNames& names_;
  bool is_wanted_;
  std::vector<PassedDay> passed_;
};

/// The closed days behind `from` and before `to`, whichever is the earlier one.
void AddInside(PassedDays& passed, sys_days from, sys_days to) {
  passed.AddBetween(std::min(from, to) + days(1), std::max(from, to) - days(1));
}

JointCalendar CalendarsIn(const std::string& codes, const Asked& asked) {
  return asked.days.calendars.Joint(business_days::ReadCurrencyCodes(codes));
}

DateAnswer DateAnswerOf(sys_days day, PassedDays& passed) {
  return {DateOf(day).ToIso(), false, ExitStatus::kDone, passed.Take()};
}

std::string WhoLacks(const JointCalendar& calendars, sys_days day) {
  try {
    (void)calendars.IsBusinessDay(day);
    return "";
  } catch (const business_days::NotPrepared& failure) {
    return failure.Description();
  }
}

DateAnswer Is(const Words& words, const Asked& asked) {
  const JointCalendar calendars = CalendarsIn(words[1], asked);
  const sys_days day = ReadSysDay(words[2]);
  PassedDays passed(calendars.Members(), asked);
  passed.AddBetween(day, day);
  switch (calendars.State(day)) {
    case DayState::kOpen:
      return {"open"};
    case DayState::kClosed:
      return {"closed", false, ExitStatus::kClosed, passed.Take()};
    default:
      return {"not prepared", false, ExitStatus::kNotPrepared, passed.Take(), WhoLacks(calendars, day)};
  }
}

DateAnswer Next(const Words& words, const Asked& asked) {
  const JointCalendar calendars = CalendarsIn(words[1], asked);
  const sys_days day = ReadSysDay(words[2]);
  const sys_days next = calendars.Next(day);
  PassedDays passed(calendars.Members(), asked);
  AddInside(passed, day, next);
  return DateAnswerOf(next, passed);
}

DateAnswer Previous(const Words& words, const Asked& asked) {
  const JointCalendar calendars = CalendarsIn(words[1], asked);
  const sys_days day = ReadSysDay(words[2]);
  const sys_days previous = calendars.Previous(day);
  PassedDays passed(calendars.Members(), asked);
  AddInside(passed, day, previous);
  return DateAnswerOf(previous, passed);
}

DateAnswer Adjust(const Words& words, const Asked& asked) {
  const JointCalendar calendars = CalendarsIn(words[1], asked);
  const sys_days day = ReadSysDay(words[2]);
  const sys_days adjusted = calendars.Adjust(day, ReadConvention(words[3]));
  PassedDays passed(calendars.Members(), asked);
  if (adjusted != day) passed.AddBetween(std::min(day, adjusted), std::max(day, adjusted));
  return DateAnswerOf(adjusted, passed);
}

DateAnswer Add(const Words& words, const Asked& asked) {
  const JointCalendar calendars = CalendarsIn(words[1], asked);
  const sys_days day = ReadSysDay(words[2]);
  const sys_days added = calendars.AddBusinessDays(day, ReadCount(words[3]));
  PassedDays passed(calendars.Members(), asked);
  AddInside(passed, day, added);
  return DateAnswerOf(added, passed);
}

DateAnswer Between(const Words& words, const Asked& asked) {
  const JointCalendar calendars = CalendarsIn(words[1], asked);
  const sys_days from = ReadSysDay(words[2]);
  const sys_days to = ReadSysDay(words[3]);
  const std::int32_t count = calendars.BusinessDaysBetween(from, to);
  PassedDays passed(calendars.Members(), asked);
  if (from < to) passed.AddBetween(from + days(1), to);
  if (to < from) passed.AddBetween(to, from - days(1));
  return {std::to_string(count), true, ExitStatus::kDone, passed.Take()};
}

DateAnswer MonthEnd(const Words& words, const Asked& asked) {
  const JointCalendar calendars = CalendarsIn(words[1], asked);
  const sys_days day = ReadSysDay(words[2]);
  const sys_days last = calendars.LastBusinessDayOfMonth(day);
  const std::chrono::year_month_day date(last);
  PassedDays passed(calendars.Members(), asked);
  passed.AddBetween(last + days(1), date.year() / date.month() / std::chrono::last);
  return DateAnswerOf(last, passed);
}

/// A pair's dates, and the days that are passed on the way to them.
class AskedPair {
 public:
  AskedPair(const std::string& pair, const Asked& asked)
      : dates_(business_days::ReadCurrencyPair(pair), asked.days.calendars, asked.days.conventions),
        closed_(asked.answering.closed_trade_date),
        passed_(dates_.Settlement().Members(), asked) {}

  [[nodiscard]] DateAnswer Spot(sys_days trade_date) {
    const sys_days spot = dates_.SpotDate(trade_date, closed_);
    passed_.AddBetween(trade_date, spot - days(1));
    return DateAnswerOf(spot, passed_);
  }

  [[nodiscard]] DateAnswer Value(sys_days trade_date, const Tenor& tenor) {
    const sys_days value = dates_.ValueDate(trade_date, tenor, closed_);
    if (tenor.unit == Tenor::Unit::kOvernight || tenor.unit == Tenor::Unit::kTomorrowNext) {
      passed_.AddBetween(trade_date, value - days(1));
      return DateAnswerOf(value, passed_);
    }
    const sys_days spot = dates_.SpotDate(trade_date, closed_);
    passed_.AddBetween(trade_date, spot - days(1));
    passed_.AddBetween(std::max(BeginOfClosedDaysBefore(value), spot + days(1)), value - days(1));
    // Only months and years go back from the end of a month.
    if (tenor.unit == Tenor::Unit::kMonths || tenor.unit == Tenor::Unit::kYears) AddClosedToMonthEnd(value);
    return DateAnswerOf(value, passed_);
  }

 private:
  [[nodiscard]] bool IsClosed(sys_days day) const {
    return dates_.Settlement().State(day) == DayState::kClosed;
  }
  [[nodiscard]] sys_days BeginOfClosedDaysBefore(sys_days day) const {
    while (IsClosed(day - days(1))) day -= days(1);
    return day;
  }
  /// When all days of the month behind `day` are closed.
  void AddClosedToMonthEnd(sys_days day) {
    const std::chrono::year_month_day date(day);
    const sys_days end = date.year() / date.month() / std::chrono::last;
    for (sys_days behind = day + days(1); behind <= end; behind += days(1)) {
      if (!IsClosed(behind)) return;
    }
    passed_.AddBetween(day + days(1), end);
  }

  ValueDates dates_;
  business_days::ClosedTradeDate closed_;
  PassedDays passed_;
};

DateAnswer Spot(const Words& words, const Asked& asked) {
  return AskedPair(words[1], asked).Spot(ReadSysDay(words[2]));
}

DateAnswer Value(const Words& words, const Asked& asked) {
  return AskedPair(words[1], asked).Value(ReadSysDay(words[2]), business_days::ReadTenor(words[3]));
}

struct Question {
  std::string_view name;
  std::string_view parts;
  std::size_t words;
  DateAnswer (*answer)(const Words& words, const Asked& asked);
};

constexpr Question kQuestions[] = {
    {"is", "CCY[,CCY...] DATE", 3, Is},
    {"next", "CCY[,CCY...] DATE", 3, Next},
    {"previous", "CCY[,CCY...] DATE", 3, Previous},
    {"adjust", "CCY[,CCY...] DATE CONVENTION", 4, Adjust},
    {"add", "CCY[,CCY...] DATE DAYS", 4, Add},
    {"between", "CCY[,CCY...] FROM TO", 4, Between},
    {"month-end", "CCY[,CCY...] DATE", 3, MonthEnd},
    {"spot", "PAIR DATE", 3, Spot},
    {"value", "PAIR DATE TENOR", 4, Value},
};

std::string NamesOfQuestions() {
  std::string names;
  for (const Question& question : kQuestions) {
    names.append(names.empty() ? "" : ", ").append(question.name);
  }
  return names;
}

}  // namespace

std::string PassedDay::Date() const { return DateOf(day).ToIso(); }

std::string PassedDay::Text() const {
  static constexpr const char* kWeekdays[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                              "Thursday", "Friday", "Saturday"};
  std::vector<std::pair<std::string, std::string>> currencies_by_name;
  for (const Closure& closure : closures) {
    const std::string name =
        closure.name.empty() ? kWeekdays[std::chrono::weekday(day).c_encoding()] : closure.name;
    const auto found =
        std::ranges::find(currencies_by_name, name, &std::pair<std::string, std::string>::first);
    if (found == currencies_by_name.end()) {
      currencies_by_name.emplace_back(name, closure.currency);
    } else {
      found->second += ", " + closure.currency;
    }
  }
  std::string text = Date();
  for (std::size_t i = 0; i < currencies_by_name.size(); ++i) {
    const auto& [name, currencies] = currencies_by_name[i];
    text.append(i == 0 ? " " : "; ").append(name).append(": ").append(currencies);
  }
  return text;
}

DateAnswer AnswerDateQuestion(const std::vector<std::string>& words, const loading::LoadedDays& days,
                              const DateAnswering& answering) {
  if (words.empty()) throw ArgumentError("There is no question: it is one of " + NamesOfQuestions());
  const auto* const question = std::ranges::find(kQuestions, words.front(), &Question::name);
  if (question == std::end(kQuestions)) {
    throw ArgumentError("\"" + words.front() + "\" is no question: it is one of " + NamesOfQuestions());
  }
  if (words.size() != question->words) {
    throw ArgumentError("expected is \"" + std::string(question->name) + ' ' + std::string(question->parts) +
                        '"');
  }
  std::vector<std::string> with_codes = words;
  with_codes[1] = WithCodes(words[1], [&](std::int32_t number) {
    const auto found = days.codes.find(number);
    if (found != days.codes.end()) return found->second;
    throw ArgumentError("There is no calendar of " + std::to_string(number));
  });
  return question->answer(with_codes, {days, answering});
}

}  // namespace ferrowind::host
