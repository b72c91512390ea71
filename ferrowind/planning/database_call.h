#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/data/source_values.h"
#include "ferrowind/platform/database/command.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::planning {

/// That a procedure refused: it ran, returned another value than 0 and changed nothing.
class Refusal : public platform::Failure {
 public:
  /// `doing` says what the call was for ("Reading the calendar EUR 2028"), `why` the reason where it is known
  /// better than by the return value, else it is empty.
  Refusal(const std::string& doing, const std::string& procedure, std::int32_t return_value,
          const std::string& why = {});
  [[nodiscard]] std::int32_t ReturnValue() const noexcept { return return_value_; }

 private:
  std::int32_t return_value_;
};

/// The return values of the calendar procedures that callers look at.
namespace return_value {
inline constexpr std::int32_t kDone = 0;
inline constexpr std::int32_t kUnknownCurrency = 3;
inline constexpr std::int32_t kUnknownCalendar = 5;
inline constexpr std::int32_t kContentIsAnother = 8;
inline constexpr std::int32_t kChangedSince = 9;
}  // namespace return_value

/// What a call gave.
struct CallAnswer {
  std::int32_t return_value = return_value::kDone;
  /// In the order of the procedure; none unless it returned 0. Never null.
  std::vector<std::shared_ptr<platform::RecordSet>> record_sets;
};

/// Calls the procedure through the gateway, on the calling thread's database.
///
/// A return value that is neither 0 nor `expected` is a `Refusal`; a call that fails, or returns 0 with fewer
/// record sets than `least_record_sets`, is another `platform::Failure`. The description of both begins with
/// `doing`.
[[nodiscard]] CallAnswer CallDatabase(const std::string& doing, const std::string& procedure,
                                      const SourceValues& parameters, std::size_t least_record_sets = 0,
                                      std::initializer_list<std::int32_t> expected = {});

/// While it lives, the calls of the thread go over one connection; to be made for those that belong together.
/// Null, or a `platform::Failure`, as `platform::CommandFactory` says.
[[nodiscard]] std::shared_ptr<platform::SharedConnections> ShareConnections();

}  // namespace ferrowind::planning
