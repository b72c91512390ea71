#include "ferrowind/adapters/sqlite/statement_limit.h"

#include <exception>
#include <utility>

#include <sqlite3.h>

namespace ferrowind::sqlite {
namespace {

/// Some ten microseconds, as long as cells are short.
constexpr int kStepsBetweenLooks = 1000;

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

int StatementLimit::IsOver(void* limit) noexcept {
  try {
    return static_cast<StatementLimit*>(limit)->is_over_() ? 1 : 0;
  } catch (const std::exception&) {
    return 1;
  }
}

}  // namespace ferrowind::sqlite
