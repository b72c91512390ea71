#include "ferrowind/views/planning/finding_lines.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <set>
#include <utility>

#include "ferrowind/data/said.h"
#include "ferrowind/views/planning/readiness_words.h"

namespace ferrowind {
namespace {

using almanac::Finding;
using almanac::FindingLevel;
using almanac::FindingSubject;
using almanac::Readiness;
using almanac::YearReadiness;
using planning::Currency;
using planning::CurrencyReadiness;
using planning::ReadinessReport;

/// What is said of several currencies alike.
enum class Alike { kNothing, kNoCalendar, kNoCalendarNow, kNoClosedDay, kWeekendsOnly, kNoWeekends, kNoBook };

/// Finds what a report holds of the currency and the year of a finding.
class Report {
 public:
  explicit Report(const ReadinessReport& report) : report_(report) {
    for (const CurrencyReadiness& currency : report.currencies) {
      by_code_.emplace(currency.currency.code, &currency);
    }
  }

  /// Null of what is about the whole database.
  [[nodiscard]] const CurrencyReadiness* CurrencyOf(const Finding& finding) const {
    const auto found = by_code_.find(finding.currency);
    return found == by_code_.end() ? nullptr : found->second;
  }

  /// The year of a calendar without holidays of which the finding tells a day; null of other findings.
  [[nodiscard]] const YearReadiness* EmptyYearOf(const Finding& finding) const {
    const CurrencyReadiness* const currency = CurrencyOf(finding);
    if (finding.subject != FindingSubject::kDiffersFromPlan || currency == nullptr) return nullptr;
    for (const YearReadiness& year : currency->years) {
      const bool is_empty =
          year.readiness == Readiness::kNotPrepared || year.readiness == Readiness::kWeekendsOnly;
      if (year.year == finding.year && is_empty) return &year;
    }
    return nullptr;
  }

  [[nodiscard]] Alike AlikeOf(const Finding& finding) const {
    if (const YearReadiness* const empty = EmptyYearOf(finding)) {
      return empty->readiness == Readiness::kWeekendsOnly ? Alike::kWeekendsOnly : Alike::kNoClosedDay;
    }
    if (finding.subject == FindingSubject::kMissingYear) {
      return finding.year == report_.today.Year() ? Alike::kNoCalendarNow : Alike::kNoCalendar;
    }
    if (finding.subject == FindingSubject::kNoWeekends) return Alike::kNoWeekends;
    if (finding.subject == FindingSubject::kNoBook) return Alike::kNoBook;
    return Alike::kNothing;
  }

 private:
  const ReadinessReport& report_;
  std::map<std::string, const CurrencyReadiness*> by_code_;
};

std::string CodesOf(const FindingLine& line) {
  std::string codes;
  for (const Currency& currency : line.currencies) {
    codes += (codes.empty() ? "" : ", ") + planning::UnmistakableCode(currency);
  }
  return codes;
}

std::string SentenceOfSeveral(const platform::Platform& platform, Alike alike, const FindingLine& line) {
  const std::string codes = CodesOf(line);
  const std::string year = line.year ? std::to_string(*line.year) : std::string();
  //: says 1 2
  const auto say = [&](const char* one, const char* many) {
    return SaidOfNumber(platform, static_cast<std::int64_t>(line.currencies.size()), one, many,
                        {codes, year});
  };
  switch (alike) {
    case Alike::kNoCalendar:
      return say("%n currency has no calendar for %2: %1.", "%n currencies have no calendar for %2: %1.");
    case Alike::kNoCalendarNow:
      return say("%n currency has no calendar for %2, the running year: %1.",
                 "%n currencies have no calendar for %2, the running year: %1.");
    case Alike::kNoClosedDay:
      return say("%n currency has no closed day in %2: %1.", "%n currencies have no closed day in %2: %1.");
    case Alike::kWeekendsOnly:
      return say("%n currency is closed on weekends only in %2: %1.",
                 "%n currencies are closed on weekends only in %2: %1.");
    case Alike::kNoWeekends:
      return say("%n currency has no weekends in %2, for no weekday holiday closes any day: %1.",
                 "%n currencies have no weekends in %2, for no weekday holiday closes any day: %1.");
    case Alike::kNoBook:
      return say("%n currency has no book, so nothing tells what its calendars should be: %1.",
                 "%n currencies have no book, so nothing tells what their calendars should be: %1.");
    case Alike::kNothing:
      break;
  }
  return {};
}

/// Lines that grow with each finding of which the same is to be said.
class Lines {
 public:
  Lines(const platform::Platform& platform, const ReadinessReport& report)
      : platform_(platform), words_(platform, report), report_(report) {}

  void Add(const Finding& finding) {
    const Alike alike = report_.AlikeOf(finding);
    const CurrencyReadiness* const currency = report_.CurrencyOf(finding);
    if (alike == Alike::kNothing || currency == nullptr) return AddAlone(finding, currency);
    const auto [place, is_new] = places_.try_emplace({alike, finding.year, finding.level}, lines_.size());
    if (is_new) {
      FindingLine line = LineOf(finding);
      line.key =
          "alike " + std::to_string(static_cast<int>(alike)) + " " + std::to_string(finding.year.value_or(0));
      const YearReadiness* const empty = report_.EmptyYearOf(finding);
      line.sentence =
          empty == nullptr ? Said(platform_, finding.sentence) : words_.Sentence(*currency, *empty);
      lines_.push_back(std::move(line));
    }
    auto& currencies = lines_[place->second].currencies;
    const auto is_this = [&](const Currency& known) { return known.id == currency->currency.id; };
    if (std::none_of(currencies.begin(), currencies.end(), is_this)) currencies.push_back(currency->currency);
  }

  [[nodiscard]] std::vector<FindingLine> Take() && {
    for (const auto& [what, place] : places_) {
      FindingLine& line = lines_[place];
      if (line.currencies.size() > 1) line.sentence = SentenceOfSeveral(platform_, what.alike, line);
    }
    return std::move(lines_);
  }

 private:
  /// What is the same of all findings of one line.
  struct What {
    Alike alike;
    std::optional<int> year;
    FindingLevel level;

    auto operator<=>(const What&) const = default;
  };

  static FindingLine LineOf(const Finding& finding) {
    return {.level = finding.level, .subject = finding.subject, .year = finding.year};
  }

  void AddAlone(const Finding& finding, const CurrencyReadiness* currency) {
    FindingLine line = LineOf(finding);
    if (currency != nullptr) line.currencies.push_back(currency->currency);
    line.sentence = Said(platform_, finding.sentence);
    // Two findings may say the same.
    line.key = finding.sentence.InEnglish();
    while (!keys_.insert(line.key).second) line.key += '\n';
    lines_.push_back(std::move(line));
  }

  const platform::Platform& platform_;
  const ReadinessWords words_;
  const Report report_;
  std::vector<FindingLine> lines_;
  std::map<What, std::size_t> places_;
  std::set<std::string> keys_;
};

}  // namespace

std::vector<FindingLine> FindingLines(const platform::Platform& platform, const ReadinessReport& report) {
  Lines lines(platform, report);
  for (const Finding& finding : report.review.findings) lines.Add(finding);
  return std::move(lines).Take();
}

std::string FindingsTitle(const platform::Platform& platform, const std::vector<FindingLine>& lines) {
  if (lines.empty()) return Said(platform, "The review has found nothing");
  std::array<int, 3> counts{};
  for (const FindingLine& line : lines) ++counts[static_cast<std::size_t>(line.level)];
  std::string list;
  //: says 2 3
  const auto add = [&](FindingLevel level, const char* one, const char* many) {
    const int count = counts[static_cast<std::size_t>(level)];
    if (count != 0) list += (list.empty() ? "" : ", ") + SaidOfNumber(platform, count, one, many);
  };
  add(FindingLevel::kError, "%n error", "%n errors");
  add(FindingLevel::kWarning, "%n warning", "%n warnings");
  add(FindingLevel::kNote, "%n note", "%n notes");
  return Said(platform, "Findings of the review: %1", {list});
}

std::string CurrenciesOf(const platform::Platform& platform, const FindingLine& line) {
  if (line.currencies.size() < 2) return CodesOf(line);
  return SaidOfNumber(platform, static_cast<std::int64_t>(line.currencies.size()), "%n currency",
                      "%n currencies");
}

std::string NamesOfSeveral(const FindingLine& line) {
  if (line.currencies.size() < 2) return {};
  std::string names;
  for (const Currency& currency : line.currencies) {
    names += (names.empty() ? "" : ", ") + currency.code + " " + currency.name;
  }
  return names;
}

}  // namespace ferrowind
