#include "ferrowind/adapters/sqlite/wait_budget.h"

#include <algorithm>
#include <thread>

namespace ferrowind::sqlite {
namespace {

using std::chrono::milliseconds;
using std::chrono::nanoseconds;
using Clock = std::chrono::steady_clock;

constexpr milliseconds kLongestMoment{50};

}  // namespace

milliseconds WaitBudget::Left() const { return std::chrono::ceil<milliseconds>(left_); }

bool WaitBudget::WaitAMoment(int attempts) {
  if (left_ <= nanoseconds::zero()) return false;
  const nanoseconds moment =
      std::min<nanoseconds>(kLongestMoment, milliseconds(1 + 5 * std::min(attempts, 10)));
  const auto start = Clock::now();
  std::this_thread::sleep_for(std::min(moment, left_));
  // A sleep may take longer than asked for.
  left_ = std::max(nanoseconds::zero(), left_ - (Clock::now() - start));
  return true;
}

}  // namespace ferrowind::sqlite
