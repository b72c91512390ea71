#include "ferrowind/adapters/sqlite/statement_limit.h"

#include <exception>
#include <utility>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/sqlite_failure.h"

namespace ferrowind::sqlite {
namespace {

/// A few microseconds, as long as cells are short; seconds, where each step is a function of a long text.
constexpr int kStepsBetweenLooks = 250;

}  // namespace

StatementLimit::StatementLimit(const DatabaseHandle& database, std::function<bool()> is_over)
    : database_(database), is_over_(std::move(is_over)) {
  if (is_over_) sqlite3_progress_handler(database_.Get(), kStepsBetweenLooks, IsOver, this);
}

StatementLimit::StatementLimit(const DatabaseHandle& database, std::chrono::milliseconds most)
    : StatementLimit(database, [end = std::chrono::steady_clock::now() + most] {
        return std::chrono::steady_clock::now() > end;
      }) {}

StatementLimit::~StatementLimit() { sqlite3_progress_handler(database_.Get(), 0, nullptr, nullptr); }

void StatementLimit::RequireTime() const {
  if (is_over_ && is_over_()) throw FailureBy(SQLITE_INTERRUPT, database_.Path());
}

int StatementLimit::IsOver(void* limit) noexcept {
  try {
    return static_cast<StatementLimit*>(limit)->is_over_() ? 1 : 0;
  } catch (const std::exception&) {
    return 1;
  }
}

}  // namespace ferrowind::sqlite
