#include "ferrowind/adapters/postgres/content_target.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/table_keys.h"
#include "ferrowind/adapters/postgres/table_locks.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/failure.h"

#include "database/seed/embedded_sql.h"

namespace ferrowind::postgres {
namespace {

using platform::Failure;

constexpr const char* kSchema = "ferrowind";

/// Appends the value that it is called with as the text form of COPY has it.
struct CopyText {
  std::string& line;

  void operator()(std::monostate) const { line += "\\N"; }
  void operator()(platform::Date date) const { line += date.ToIso(); }
  void operator()(const std::string& text) const {
    for (const char c : text) {
      switch (c) {
        case '\0':
          throw Failure(platform::failure_number::kInvalidArgument,
                        "A text holds the character NUL, which no text on a server can hold");
        case '\\':
          line += "\\\\";
          break;
        case '\t':
          line += "\\t";
          break;
        case '\n':
          line += "\\n";
          break;
        case '\r':
          line += "\\r";
          break;
        default:
          line += c;
      }
    }
  }
  void operator()(std::int16_t number) const { line += std::to_string(number); }
  void operator()(std::int32_t number) const { line += std::to_string(number); }
  void operator()(std::int64_t number) const { line += std::to_string(number); }
  template <typename Other>
  void operator()(const Other& /*value*/) const {
    throw platform::TypeMismatch();
  }
};

/// Sends rows by COPY, many at a time. When there are so many that heeding the table's keys row by row takes
/// longer than making them anew, they are away meanwhile.
class CopyWriter : public content::RowWriter {
 public:
  CopyWriter(ServerConnection& connection, const content::Table& table, std::int64_t rows)
      : connection_(connection) {
    if (rows >= kMany) keys_.emplace(connection_, std::string(table.name));
    const std::string sql = std::string("COPY ") + kSchema + "." + std::string(table.name) + " (" +
                            ColumnList(table) + ") FROM STDIN";
    connection_.BeginCopy(sql, PGRES_COPY_IN);
  }

  void Add(const content::Row& row) override {
    platform::WithFailuresOnly([&] {
      bool is_first = true;
      for (const platform::Value& value : row) {
        if (!is_first) lines_ += '\t';
        std::visit(CopyText{lines_}, value.Get());
        is_first = false;
      }
      lines_ += '\n';
      if (lines_.size() >= kEnough) Send();
    });
  }

  void Finish() override {
    platform::WithFailuresOnly([&] {
      Send();
      if (PQputCopyEnd(connection_.Get(), nullptr) != 1) throw LinkFailure(connection_.Get());
      const QueryResult result = connection_.TakeAnswer();
      if (PQresultStatus(result.get()) != PGRES_COMMAND_OK) throw Refusal(result.get());
      while (connection_.TakeAnswer()) {
      }
      if (keys_) keys_->PutBack();
    });
  }

 private:
  static constexpr std::size_t kEnough = std::size_t{64} * 1024;
  static constexpr std::int64_t kMany = 2000;

  void Send() {
    if (PQputCopyData(connection_.Get(), lines_.data(), static_cast<int>(lines_.size())) != 1) {
      throw LinkFailure(connection_.Get());
    }
    // Else what a server does not take is kept here, however much.
    connection_.AwaitSent();
    lines_.clear();
  }

  /// With the place that the server names: "COPY cldday, line 5".
  Failure Refusal(const PGresult* result) const {
    const Failure failure = ResultFailure(connection_.Get(), result);
    const char* const context = PQresultErrorField(result, PG_DIAG_CONTEXT);
    if (context == nullptr) return failure;
    const std::string_view place(context);
    return Introduced(std::string(place.substr(0, place.find(':'))) + ": ", failure);
  }

  ServerConnection& connection_;
  std::optional<SetAsideKeys> keys_;
  std::string lines_;
};

/// The rows of a small source, read once, so that they can be compared with another one on its connection.
class KeptContent : public content::Source {
 public:
  explicit KeptContent(content::Source& source) : name_(source.Name()), identity_(source.Identity()) {
    for (const content::Table& table : content::Tables()) {
      auto& kept = rows_[table.name];
      const auto reader = source.Rows(table, content::RowOrder::kByKey);
      for (content::Row row; reader->Next(row);) kept.push_back(row);
    }
  }

  std::string Name() override { return name_; }
  std::string Identity() override { return identity_; }
  std::int64_t CountRows(const content::Table& table) override {
    return static_cast<std::int64_t>(rows_.at(table.name).size());
  }
  std::unique_ptr<content::RowReader> Rows(const content::Table& table,
                                           content::RowOrder /*order*/) override {
    return std::make_unique<Reader>(rows_.at(table.name));
  }

 private:
  class Reader : public content::RowReader {
   public:
    explicit Reader(const std::vector<content::Row>& rows) : rows_(rows) {}
    bool Next(content::Row& row) override {
      if (next_ == rows_.size()) return false;
      row = rows_[next_++];
      return true;
    }

   private:
    const std::vector<content::Row>& rows_;
    std::size_t next_ = 0;
  };

  std::string name_;
  std::string identity_;
  std::map<std::string_view, std::vector<content::Row>> rows_;
};

}  // namespace

ServerTarget::ServerTarget(ServerConnection& connection, Kind kind)
    : connection_(connection), content_(connection, kSchema), kind_(kind) {}

void ServerTarget::KeepOthersOut() {
  // Nobody sees one that is new.
  if (kind_ == Kind::kNew) return;
  platform::WithFailuresOnly([&] { KeepOut(connection_, KeptOut::kEverybody); });
}

content::Source* ServerTarget::Delivered() {
  return platform::WithFailuresOnly([&]() -> content::Source* {
    if (kind_ == Kind::kNew) return nullptr;
    if (delivered_) return delivered_.get();
    // The delivered rows in tables that only this transaction has, and that hide those of the schema.
    std::string tables;
    for (const content::Table& table : content::Tables()) {
      const std::string name(table.name);
      tables += "CREATE TEMPORARY TABLE " + name + " (LIKE ferrowind." + name + ") ON COMMIT DROP;";
    }
    connection_.RunScript("SET LOCAL search_path = pg_temp;" + tables);
    connection_.RunScript(std::string(embedded::kBaseData));
    connection_.RunScript(std::string(embedded::kCurrencies));
    ServerSource content(connection_, "pg_temp");
    delivered_ = std::make_unique<KeptContent>(content);
    return delivered_.get();
  });
}

void ServerTarget::Clear(const content::Table& table) {
  platform::WithFailuresOnly(
      [&] { connection_.RunScript(std::string("DELETE FROM ") + kSchema + "." + std::string(table.name)); });
}

std::unique_ptr<content::RowWriter> ServerTarget::Writer(const content::Table& table, std::int64_t rows) {
  return platform::WithFailuresOnly([&] { return std::make_unique<CopyWriter>(connection_, table, rows); });
}

void ContinueIdentifiers(ServerConnection& connection) {
  // Not by setval, which would stay when the transaction is undone.
  connection.RunScript(R"sql(
DO $$
DECLARE
  identity record;
  last bigint;
BEGIN
  FOR identity IN
    SELECT a.attrelid::regclass AS of_table, a.attname AS name FROM pg_catalog.pg_attribute a
      JOIN pg_catalog.pg_class c ON c.oid = a.attrelid
    WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind = 'r' AND a.attidentity <> ''
  LOOP
    EXECUTE format('SELECT max(%I) FROM %s', identity.name, identity.of_table) INTO last;
    IF last IS NOT NULL THEN
      EXECUTE format('ALTER TABLE %s ALTER COLUMN %I RESTART WITH %s', identity.of_table, identity.name, last + 1);
    END IF;
  END LOOP;
END $$)sql");
}

}  // namespace ferrowind::postgres
