#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ferrowind/platform/values/value.h"

namespace ferrowind::headless {

/// The calls that all headless objects of one test received, in the order in which they came.
///
/// An entry reads `OBJECT.METHOD(ARGUMENTS)`:
/// - OBJECT is the name of a control or form ("gexCalendar", "fmMessage"), or a part of one:
/// `gexCalendar.SortKeys`,
///   `gexCalendar.GroupKeys`, `gexCalendar.Columns(KEY)`, `gexCalendar.Columns(KEY).ValueList`; or one of
///   "toolkit", "objects", "dictionary", "services", "command", "cursor".
/// - METHOD is the port's name of it.
/// - ARGUMENTS are separated by ", ". A text stands between double quotes as it is, save that a line feed
/// reads `\n` and a
///   carriage return `\r`; a number reads in decimal, a truth value True or False, a date YYYY-MM-DD, an
///   empty value `empty`, a record set `records 3 rows` (those that pass its filter) or `none`. A form, a
///   control or a column reads as its bare name, an absent one as `none`; a list of texts reads `[a, b]`.
///
/// What the operator does is recorded with "operator." in front: `operator.cmdOk.Click()`.
///
/// Recorded are all methods that change something or ask the surroundings for something, each before it takes
/// effect, so that one that fails is recorded, too. Not recorded are queries of a form's, control's or grid's
/// own state, and subscriptions. `LockUpdates` that found another lock on reads `toolkit.LockUpdates(sssp)
/// refused`.
class CallLog {
 public:
  void Record(std::string call) { calls_.push_back(std::move(call)); }
  void Clear() { calls_.clear(); }

  [[nodiscard]] const std::vector<std::string>& Calls() const { return calls_; }
  /// The number of calls so far: a mark for `Since`.
  [[nodiscard]] std::size_t Size() const { return calls_.size(); }
  /// The calls from the mark on.
  [[nodiscard]] std::vector<std::string> Since(std::size_t mark) const;
  /// The 0-based position of the first entry that is exactly `call`, looking from `from` on; nothing when
  /// there is none.
  [[nodiscard]] std::optional<std::size_t> PositionOf(std::string_view call, std::size_t from = 0) const;
  [[nodiscard]] bool Contains(std::string_view call) const { return PositionOf(call).has_value(); }
  /// How many entries are exactly `call`.
  [[nodiscard]] std::size_t CountOf(std::string_view call) const;
  /// The entries that begin with `prefix`, such as "gexCalendar." for all calls of one control.
  [[nodiscard]] std::vector<std::string> StartingWith(std::string_view prefix) const;
  /// The entries that contain `part`.
  [[nodiscard]] std::vector<std::string> Containing(std::string_view part) const;
  /// The entries from the first that is `first` to the next that is `last`, both included; empty when either
  /// is missing.
  [[nodiscard]] std::vector<std::string> Between(std::string_view first, std::string_view last) const;

 private:
  std::vector<std::string> calls_;
};

/// One argument as entries of a `CallLog` write it.
[[nodiscard]] std::string ArgumentText(const platform::Value& value);
/// `[a, b]`.
[[nodiscard]] std::string ArgumentText(const std::vector<std::string>& texts);
/// An entry of a `CallLog`.
[[nodiscard]] std::string CallText(std::string_view object, std::string_view method,
                                   const std::vector<platform::Value>& arguments = {});

}  // namespace ferrowind::headless
