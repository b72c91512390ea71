#include "ferrowind/adapters/odbc/server_link.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

#include "ferrowind/adapters/odbc/result_reader.h"
#include "ferrowind/adapters/odbc/wide_text.h"
#include "ferrowind/adapters/postgres_calls/answer_size.h"
#include "ferrowind/adapters/postgres_calls/sql_state.h"

namespace ferrowind::odbc {
namespace {

using platform::Failure;

constexpr std::string_view kReporter = "ODBC";

/// The interface takes whole numbers in the place of addresses.
SQLPOINTER Number(std::uintptr_t number) { return reinterpret_cast<SQLPOINTER>(number); }

Failure NoHandle() {
  return postgres::FailureOfState("HY001", "There is no memory for a connection",
                                  "the driver manager gives no handle", kReporter);
}

/// A text that is bound as the input of a statement, for as long as that is run.
class BoundText {
 public:
  BoundText(const StatementHandle& statement, SQLUSMALLINT number, std::string_view text)
      : wide_(ToWide(text)), length_(static_cast<SQLLEN>((wide_.size() - 1) * sizeof(SQLWCHAR))) {
    // A column of no characters is none.
    const SQLULEN characters = wide_.size() > 1 ? wide_.size() - 1 : 1;
    is_bound_ =
        SQL_SUCCEEDED(SQLBindParameter(statement.Get(), number, SQL_PARAM_INPUT, SQL_C_WCHAR,
                                       SQL_WLONGVARCHAR, characters, 0, wide_.data(), length_, &length_));
  }
  BoundText(const BoundText&) = delete;
  BoundText& operator=(const BoundText&) = delete;
  ~BoundText() = default;

  [[nodiscard]] bool IsBound() const { return is_bound_; }

 private:
  WideText wide_;
  SQLLEN length_;
  bool is_bound_ = false;
};

bool HasColumns(const StatementHandle& statement) {
  SQLSMALLINT count = 0;
  if (!SQL_SUCCEEDED(SQLNumResultCols(statement.Get(), &count))) throw FetchTrouble{DiagnosticOf(statement)};
  return count > 0;
}

Answer ReadAnswer(const StatementHandle& statement, AnswerRoom& room) {
  try {
    return ReadRecordSet(statement, room);
  } catch (const Failure& failure) {
    return failure;
  }
}

/// Of a statement on `database` that was run, whose first result answered `answer`. One that never ends is
/// the last.
std::vector<Answer> ReadAnswers(const StatementHandle& statement, SQLRETURN answer,
                                const std::string& database) {
  std::vector<Answer> answers;
  AnswerRoom room;
  for (; answer != SQL_NO_DATA; answer = SQLMoreResults(statement.Get())) {
    if (!SQL_SUCCEEDED(answer)) throw FetchTrouble{DiagnosticOf(statement)};
    if (!HasColumns(statement)) continue;
    try {
      answers.push_back(ReadAnswer(statement, room));
    } catch (const AnswerWithoutEnd&) {
      answers.emplace_back(postgres::TooLargeAnswer(database, kReporter));
      break;
    }
  }
  return answers;
}

}  // namespace

std::shared_ptr<platform::RecordSet> RowsOf(const Answer& answer) {
  if (const auto* const failure = std::get_if<Failure>(&answer)) throw Failure(*failure);
  return std::get<std::shared_ptr<platform::RecordSet>>(answer);
}

ServerLink::ServerLink(const ConnectionString& connection)
    : database_name_(connection.DatabaseName()),
      call_timeout_(connection.CallTimeout()),
      environment_(nullptr) {
  if (!environment_ ||
      !SQL_SUCCEEDED(SQLSetEnvAttr(environment_.Get(), SQL_ATTR_ODBC_VERSION, Number(SQL_OV_ODBC3), 0))) {
    throw NoHandle();
  }
  connection_ = ConnectionHandle(environment_.Get());
  if (!connection_) throw NoHandle();
  const auto seconds = std::chrono::ceil<std::chrono::seconds>(call_timeout_).count();
  // A driver that knows no such limit has one of its own.
  SQLSetConnectAttrW(connection_.Get(), SQL_ATTR_LOGIN_TIMEOUT, Number(static_cast<std::uintptr_t>(seconds)),
                     0);
  WideText text = ToWide(connection.ForDriver());
  if (!SQL_SUCCEEDED(SQLDriverConnectW(connection_.Get(), nullptr, text.data(), SQL_NTS, nullptr, 0, nullptr,
                                       SQL_DRIVER_NOPROMPT))) {
    throw ConnectFailure(database_name_, DiagnosticOf(connection_));
  }
  static_cast<void>(Run("SET statement_timeout = '" + std::to_string(StatementTimeout().count()) + "ms'"));
}

std::vector<Answer> ServerLink::Run(const std::string& statements, const std::vector<std::string>& inputs) {
  const StatementHandle statement(connection_.Get());
  if (!statement) throw Failed(DiagnosticOf(connection_));
  // They are bound by their addresses.
  std::vector<std::unique_ptr<BoundText>> bound;
  for (const std::string& input : inputs) {
    bound.push_back(
        std::make_unique<BoundText>(statement, static_cast<SQLUSMALLINT>(bound.size() + 1), input));
    if (!bound.back()->IsBound()) throw Failed(DiagnosticOf(statement));
  }
  WideText text = ToWide(statements);
  const SQLRETURN answer = SQLExecDirectW(statement.Get(), text.data(), SQL_NTS);
  try {
    return ReadAnswers(statement, answer, database_name_);
  } catch (const FetchTrouble& trouble) {
    throw Failed(trouble.diagnostic);
  }
}

std::shared_ptr<platform::RecordSet> ServerLink::Query(const std::string& statement,
                                                       const std::vector<std::string>& inputs) {
  const auto answers = Run(statement, inputs);
  if (!answers.empty()) return RowsOf(answers.front());
  throw StatementFailure(database_name_, {"08P01", "no rows where some were asked for"});
}

void ServerLink::Undo() noexcept {
  if (!is_alive_) return;
  try {
    static_cast<void>(Run("ROLLBACK"));
  } catch (...) {
    // Then nobody knows in which state the connection is.
    is_alive_ = false;
  }
}

Failure ServerLink::Failed(const Diagnostic& diagnostic) {
  Failure failure = StatementFailure(database_name_, diagnostic);
  SQLUINTEGER is_dead = SQL_CD_FALSE;
  const bool is_told = SQL_SUCCEEDED(
      SQLGetConnectAttrW(connection_.Get(), SQL_ATTR_CONNECTION_DEAD, &is_dead, sizeof(is_dead), nullptr));
  if ((is_told && is_dead == SQL_CD_TRUE) || IsOfLostConnection(failure)) is_alive_ = false;
  return failure;
}

}  // namespace ferrowind::odbc
