#include "ferrowind/adapters/sqlite/content_source.h"

#include <system_error>

#include "ferrowind/adapters/sqlite/delivered_schema.h"
#include "ferrowind/adapters/sqlite/file_status.h"
#include "ferrowind/adapters/sqlite/result_reader.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

/// By key, which is how a file has them.
std::string SelectFrom(const content::Table& table) {
  return "SELECT " + content::ColumnList(table) + " FROM " + std::string(table.name) + " ORDER BY " +
         content::KeyList(table);
}

class StatementReader : public content::RowReader {
 public:
  StatementReader(const DatabaseHandle& database, const content::Table& table)
      : statement_(database, SelectFrom(table)), reader_(statement_) {}

  bool Next(content::Row& row) override {
    return platform::WithFailuresOnly([&] {
      if (!statement_.Step()) return false;
      row.clear();
      for (int column = 0; column < statement_.ColumnCount(); ++column) row.push_back(reader_.Cell(column));
      return true;
    });
  }

 private:
  Statement statement_;
  ResultReader reader_;
};

std::string InsertInto(const content::Table& table) {
  std::string sql =
      "INSERT INTO " + std::string(table.name) + " (" + content::ColumnList(table) + ") VALUES (";
  for (std::size_t i = 0; i < table.columns.size(); ++i) sql += i == 0 ? "?" : ", ?";
  return sql + ")";
}

class StatementWriter : public content::RowWriter {
 public:
  StatementWriter(const DatabaseHandle& database, const content::Table& table)
      : statement_(database, InsertInto(table)) {}

  void Add(const content::Row& row) override {
    platform::WithFailuresOnly([&] {
      int index = 0;
      for (const platform::Value& value : row) statement_.Bind(++index, value);
      statement_.Step();
      statement_.Reset();
    });
  }

  void Finish() override {}

 private:
  Statement statement_;
};

}  // namespace

std::unique_ptr<content::RowWriter> RowWriterOf(const DatabaseHandle& database, const content::Table& table) {
  return std::make_unique<StatementWriter>(database, table);
}

std::string FileSource::Name() { return "The database " + database_.Path(); }

std::string FileSource::Identity() {
  std::error_code error;
  const auto status = StatusBehindLinks(database_.Path(), error);
  if (!status) throw platform::Failure(error.value(), Name() + " is not there any more: " + error.message());
  return "file " + std::to_string(status->device) + " " + std::to_string(status->number);
}

std::int64_t FileSource::CountRows(const content::Table& table) {
  return platform::WithFailuresOnly([&] {
    Statement count(database_, "SELECT count(*) FROM " + std::string(table.name));
    return count.Step() ? count.Integer(0) : 0;
  });
}

std::unique_ptr<content::RowReader> FileSource::Rows(const content::Table& table,
                                                     content::RowOrder /*order*/) {
  return platform::WithFailuresOnly([&] { return std::make_unique<StatementReader>(database_, table); });
}

FileTarget::DeliveredContent::DeliveredContent() : database(DatabaseHandle::InMemory()), content(database) {
  FillWithDeliveredSchema(database);
}

content::Source* FileTarget::Delivered() {
  return platform::WithFailuresOnly([&]() -> content::Source* {
    if (is_new_) return nullptr;
    if (!delivered_) delivered_ = std::make_unique<DeliveredContent>();
    return &delivered_->content;
  });
}

void FileTarget::Clear(const content::Table& table) {
  platform::WithFailuresOnly([&] { database_.Execute(("DELETE FROM " + std::string(table.name)).c_str()); });
}

std::unique_ptr<content::RowWriter> FileTarget::Writer(const content::Table& table, std::int64_t /*rows*/) {
  return platform::WithFailuresOnly([&] { return RowWriterOf(database_, table); });
}

}  // namespace ferrowind::sqlite
