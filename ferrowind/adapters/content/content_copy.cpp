#include "ferrowind/adapters/content/content_copy.h"

#include <algorithm>
#include <string>

#include "ferrowind/adapters/content/content_comparison.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::content {
namespace {

using platform::Failure;

Failure Refusal(const std::string& text) { return {platform::failure_number::kInvalidArgument, text}; }

Failure At(const std::string& place, const Failure& failure) {
  return {failure.Number(), place + ": " + failure.Description()};
}

/// What the target holds beyond a new database, in words; empty when that is nothing.
std::string Holdings(Target& target, Source& delivered) {
  std::string holdings;
  for (const Table& table : Tables()) {
    if (!FirstDifference(target, delivered, table)) continue;
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
    for (const Table& table : Tables()) total_ += 2 * source_.CountRows(table);
    const auto& tables = Tables();
    std::for_each(tables.rbegin(), tables.rend(), [&](const Table& table) { target_.Clear(table); });
    for (const Table& table : tables) Write(table);
    for (const Table& table : tables) Compare(table);
  }

 private:
  void Write(const Table& table) {
    const std::string name(table.name);
    const auto rows = source_.Rows(table);
    const auto writer = target_.Writer(table);
    Row row;
    std::int64_t position = 0;
    while (rows->Next(row)) {
      ++position;
      try {
        writer->Add(row);
      } catch (const Failure& failure) {
        throw At(name + ", row " + std::to_string(position), failure);
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

  /// Not at every row: an observer may take longer than a row.
  void Advance(CopyProgress::Step step, const Table& table) {
    constexpr std::int64_t kRowsBetween = 128;
    if (++done_ % kRowsBetween == 0 && observe_) observe_({step, table.rows, done_, total_});
  }

  Source& source_;
  Target& target_;
  const CopyObserver& observe_;
  std::int64_t done_ = 0;
  std::int64_t total_ = 0;
};

}  // namespace

void CopyContent(Source& source, Target& target, const CopyObserver& observe) {
  if (source.Identity() == target.Identity()) {
    throw Refusal(target.Name() + " cannot be copied to itself");
  }
  RefuseFullTarget(target);
  Copy(source, target, observe).Run();
}

}  // namespace ferrowind::content
