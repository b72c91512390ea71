#include "ferrowind/adapters/content/content_copy.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <numeric>
#include <string>
#include <vector>

#include "ferrowind/adapters/content/content_comparison.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::content {
namespace {

using platform::Failure;

Failure Refusal(const std::string& text) { return {platform::failure_number::kInvalidArgument, text}; }

Failure At(const std::string& place, const Failure& failure) {
  return {failure.Number(), place + ": " + failure.Description()};
}

/// The values of the key, each with a blank in front.
std::string KeyOf(const Table& table, const Row& row) {
  std::string key;
  for (std::size_t i = 0; i < table.key_size; ++i) key += " " + platform::ToTextOrEmpty(row[i]);
  return key;
}

/// What the target holds beyond a new database, in words; empty when that is nothing.
std::string Holdings(Target& target, Source& delivered) {
  std::string holdings;
  for (const Table& table : Tables()) {
    // Where the history begins follows from the other tables.
    if (table.name == "CldChainStart" || !FirstDifference(target, delivered, table)) continue;
    const std::int64_t count = target.CountRows(table);
    const bool has_more = count > delivered.CountRows(table);
    holdings += holdings.empty() ? "" : ", ";
    holdings += (has_more ? std::to_string(count) : std::string("changed")) + " " + std::string(table.rows);
  }
  return holdings;
}

void RefuseFullTarget(Target& target) {
  Source* const delivered = target.Delivered();
  if (delivered == nullptr) return;
  const std::string holdings = Holdings(target, *delivered);
  if (holdings.empty()) return;
  throw Refusal(target.Name() + " is not empty: it holds " + holdings +
                ". A copy goes into a database that holds what it was created with and nothing else");
}

class Copy {
 public:
  Copy(Source& source, Target& target, const CopyObserver& observe)
      : source_(source), target_(target), observe_(observe) {}

  void Run() {
    const auto& tables = Tables();
    std::vector<std::int64_t> counts;
    for (const Table& table : tables) counts.push_back(source_.CountRows(table));
    total_ = 2 * std::accumulate(counts.begin(), counts.end(), std::int64_t{0});
    std::for_each(tables.rbegin(), tables.rend(), [&](const Table& table) { target_.Clear(table); });
    for (std::size_t i = 0; i < tables.size(); ++i) Write(tables[i], counts[i]);
    for (const Table& table : tables) Compare(table);
  }

 private:
  void Write(const Table& table, std::int64_t count) {
    const std::string name(table.name);
    const auto rows = source_.Rows(table, RowOrder::kAny);
    const auto writer = target_.Writer(table, count);
    Row row;
    while (rows->Next(row)) {
      try {
        writer->Add(row);
      } catch (const Failure& failure) {
        throw At(name + ", row" + KeyOf(table, row), failure);
      }
      Advance(CopyProgress::Step::kCopying, table);
    }
    try {
      writer->Finish();
    } catch (const Failure& failure) {
      throw At(name, failure);
    }
  }

  void Compare(const Table& table) {
    const auto difference =
        FirstDifference(source_, target_, table, [&] { Advance(CopyProgress::Step::kComparing, table); });
    if (!difference) return;
    throw Refusal("The copy differs from the original in row " + std::to_string(*difference) + " of " +
                  std::string(table.name) + "; nothing was kept of it");
  }

  /// Not at every row: an observer may take longer than a row. But a single row may also be long.
  void Advance(CopyProgress::Step step, const Table& table) {
    constexpr std::int64_t kRowsBetween = 128;
    constexpr std::chrono::milliseconds kTimeBetween(50);
    const auto now = std::chrono::steady_clock::now();
    if ((++done_ % kRowsBetween != 0 && now - observed_ < kTimeBetween) || !observe_) return;
    observed_ = now;
    observe_({step, table.rows, done_, total_});
  }

  Source& source_;
  Target& target_;
  const CopyObserver& observe_;
  std::int64_t done_ = 0;
  std::int64_t total_ = 0;
  std::chrono::steady_clock::time_point observed_ = std::chrono::steady_clock::now();
};

}  // namespace

void CopyContent(Source& source, Target& target, const CopyObserver& observe) {
  if (source.Identity() == target.Identity()) {
    throw Refusal(target.Name() + " cannot be copied to itself");
  }
  target.KeepOthersOut();
  RefuseFullTarget(target);
  Copy(source, target, observe).Run();
}

}  // namespace ferrowind::content
