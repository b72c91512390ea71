#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "ferrowind/adapters/content/content_source.h"
#include "ferrowind/adapters/sqlite/database_handle.h"

namespace ferrowind::sqlite {

/// Adds rows to `table`, which `database` must outlive the writer for.
[[nodiscard]] std::unique_ptr<content::RowWriter> RowWriterOf(const DatabaseHandle& database,
                                                              const content::Table& table);

/// The content of an open database, in the transaction that is open there.
class FileSource : public content::Source {
 public:
  /// `database` must outlive the source.
  explicit FileSource(DatabaseHandle& database) : database_(database) {}

  [[nodiscard]] std::string Name() override;
  [[nodiscard]] std::string Identity() override;
  [[nodiscard]] std::int64_t CountRows(const content::Table& table) override;
  [[nodiscard]] std::unique_ptr<content::RowReader> Rows(const content::Table& table,
                                                         content::RowOrder order) override;

 private:
  DatabaseHandle& database_;
};

/// An open database that content goes into, in the writing transaction that is open there.
class FileTarget : public content::Target {
 public:
  /// `database` must outlive the target.
  FileTarget(DatabaseHandle& database, bool is_new)
      : database_(database), content_(database), is_new_(is_new) {}

  [[nodiscard]] std::string Name() override { return content_.Name(); }
  [[nodiscard]] std::string Identity() override { return content_.Identity(); }
  [[nodiscard]] std::int64_t CountRows(const content::Table& table) override {
    return content_.CountRows(table);
  }
  [[nodiscard]] std::unique_ptr<content::RowReader> Rows(const content::Table& table,
                                                         content::RowOrder order) override {
    return content_.Rows(table, order);
  }
  /// The transaction does.
  void KeepOthersOut() override {}
  [[nodiscard]] content::Source* Delivered() override;
  void Clear(const content::Table& table) override;
  [[nodiscard]] std::unique_ptr<content::RowWriter> Writer(const content::Table& table,
                                                           std::int64_t rows) override;

 private:
  /// A new database in memory.
  struct DeliveredContent {
    DeliveredContent();
    DatabaseHandle database;
    FileSource content;
  };

  DatabaseHandle& database_;
  FileSource content_;
  bool is_new_;
  std::unique_ptr<DeliveredContent> delivered_;
};

}  // namespace ferrowind::sqlite
