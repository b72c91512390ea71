#include "ferrowind/adapters/sqlite/statement_limit.h"

#include <utility>

namespace ferrowind::sqlite {

StatementLimit::StatementLimit(const DatabaseHandle& database, std::function<bool()> is_over)
    : database_(database), is_over_(std::move(is_over)) {}

StatementLimit::StatementLimit(const DatabaseHandle& database, std::chrono::milliseconds /*most*/)
    : database_(database) {}

StatementLimit::~StatementLimit() = default;

void StatementLimit::RequireTime() const {}

}  // namespace ferrowind::sqlite
