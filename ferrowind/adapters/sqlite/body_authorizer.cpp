#include "ferrowind/adapters/sqlite/body_authorizer.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include <sqlite3.h>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::sqlite {
namespace {

/// Several times as many as those of delivered bodies take.
constexpr int kMostStepsOfAStatement = 2000;

bool IsOneOf(const char* name, std::initializer_list<std::string_view> names) {
  return std::any_of(names.begin(), names.end(), [&](std::string_view candidate) {
    return platform::CompareIgnoringCase(name, candidate) == 0;
  });
}

/// The schema itself and the procedures are not data, and the history is the engine's to write.
bool IsDataTable(const char* table) {
  const std::string_view name(table);
  return platform::CompareIgnoringCase(name.substr(0, 7), "sqlite_") != 0 &&
         !IsOneOf(table, {"ProcedureCatalogue", "ProcedureParameter", "CldHistory", "CldHistoryRow",
                          "CldHistoryStart", "CldChainStart"});
}

/// Those that delivered bodies use or could. Each takes about as many steps as its arguments and its result
/// have bytes, so that the time of a call is looked at often enough; of printf, hex or randomblob, one call
/// can make what takes minutes.
bool IsFunctionForBodies(const char* name) {
  return IsOneOf(name, {"abs",
                        "avg",
                        "char",
                        "coalesce",
                        "count",
                        "date",
                        "glob",
                        "group_concat",
                        "ifnull",
                        "iif",
                        "instr",
                        "json",
                        "json_array",
                        "json_array_length",
                        "json_extract",
                        "json_group_array",
                        "json_group_object",
                        "json_object",
                        "json_quote",
                        "json_type",
                        "json_valid",
                        "julianday",
                        "length",
                        "like",
                        "likely",
                        "lower",
                        "max",
                        "min",
                        "nullif",
                        "replace",
                        "round",
                        "row_number",
                        "strftime",
                        "substr",
                        "sum",
                        "total",
                        "total_changes",
                        "trim",
                        "typeof",
                        "unicode",
                        "unlikely",
                        "upper",
                        "->",
                        "->>",
                        "changes",
                        "ferrowind_fingerprint",
                        "ferrowind_days",
                        "ferrowind_is_text",
                        "ferrowind_length",
                        "ferrowind_user"});
}

int AuthorizeReading(void* /*context*/, int action, const char* first, const char* second,
                     const char* /*schema*/, const char* /*trigger*/) {
  switch (action) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_RECURSIVE:
      return SQLITE_OK;
    case SQLITE_UPDATE:
      // SQLite asks for this when a statement takes a JSON text apart, and refuses a real change of it.
      return IsOneOf(first, {"sqlite_master"}) ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_FUNCTION:
      return IsFunctionForBodies(second) ? SQLITE_OK : SQLITE_DENY;
    default:
      return SQLITE_DENY;
  }
}

int AuthorizeWriting(void* context, int action, const char* first, const char* second, const char* schema,
                     const char* trigger) {
  switch (action) {
    case SQLITE_INSERT:
    case SQLITE_UPDATE:
    case SQLITE_DELETE:
      if (IsDataTable(first)) return SQLITE_OK;
      return AuthorizeReading(context, action, first, second, schema, trigger);
    default:
      return AuthorizeReading(context, action, first, second, schema, trigger);
  }
}

}  // namespace

BodyAuthorizer::BodyAuthorizer(const DatabaseHandle& database, bool may_write)
    : database_(database),
      most_steps_before_(sqlite3_limit(database_.Get(), SQLITE_LIMIT_VDBE_OP, kMostStepsOfAStatement)) {
  if (sqlite3_set_authorizer(database_.Get(), may_write ? AuthorizeWriting : AuthorizeReading, nullptr) !=
      SQLITE_OK) {
    throw database_.LastFailure();
  }
}

BodyAuthorizer::~BodyAuthorizer() {
  sqlite3_set_authorizer(database_.Get(), nullptr, nullptr);
  sqlite3_limit(database_.Get(), SQLITE_LIMIT_VDBE_OP, most_steps_before_);
}

}  // namespace ferrowind::sqlite
