#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ferrowind/adapters/content/content_source.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::content {

/// Rows in memory, by the name of their table.
using MemoryTables = std::map<std::string_view, std::vector<Row>>;

class MemoryReader : public RowReader {
 public:
  explicit MemoryReader(std::vector<Row> rows) : rows_(std::move(rows)) {}
  bool Next(Row& row) override {
    if (next_ == rows_.size()) return false;
    row = rows_[next_++];
    return true;
  }

 private:
  std::vector<Row> rows_;
  std::size_t next_ = 0;
};

class MemorySource : public Source {
 public:
  explicit MemorySource(std::string name, MemoryTables tables = {})
      : name_(std::move(name)), tables_(std::move(tables)) {}

  std::string Name() override { return name_; }
  std::string Identity() override { return name_; }
  std::int64_t CountRows(const Table& table) override {
    return static_cast<std::int64_t>(tables_[table.name].size());
  }
  std::unique_ptr<RowReader> Rows(const Table& table, RowOrder /*order*/) override {
    return std::make_unique<MemoryReader>(tables_[table.name]);
  }

 private:
  std::string name_;
  MemoryTables tables_;
};

/// Notes what is done to it. Can be told to refuse the rows of a table.
class MemoryTarget : public Target {
 public:
  MemoryTables tables;
  std::vector<std::string> log;
  std::string_view refused_table;
  /// Counted from 1; 0 refuses them all at the end.
  std::size_t refused_row = 0;

  MemoryTarget(std::string name, MemoryTables content, Source* delivered)
      : tables(std::move(content)), name_(std::move(name)), delivered_(delivered) {}

  std::string Name() override { return name_; }
  std::string Identity() override { return name_; }
  std::int64_t CountRows(const Table& table) override {
    return static_cast<std::int64_t>(tables[table.name].size());
  }
  std::unique_ptr<RowReader> Rows(const Table& table, RowOrder /*order*/) override {
    return std::make_unique<MemoryReader>(tables[table.name]);
  }
  void KeepOthersOut() override { log.emplace_back("keep others out"); }
  Source* Delivered() override { return delivered_; }
  void Clear(const Table& table) override {
    log.push_back("clear " + std::string(table.name));
    tables[table.name].clear();
  }
  std::unique_ptr<RowWriter> Writer(const Table& table, std::int64_t rows) override {
    log.push_back("write " + std::to_string(rows) + " " + std::string(table.name));
    return std::make_unique<MemoryWriter>(*this, table.name);
  }

 private:
  class MemoryWriter : public RowWriter {
   public:
    MemoryWriter(MemoryTarget& target, std::string_view table) : target_(target), table_(table) {}
    void Add(const Row& row) override {
      if (table_ == target_.refused_table && rows_.size() + 1 == target_.refused_row) {
        throw platform::Failure(4711, "refused");
      }
      rows_.push_back(row);
    }
    void Finish() override {
      if (table_ == target_.refused_table && target_.refused_row == 0)
        throw platform::Failure(4711, "refused");
      target_.tables[table_] = rows_;
    }

   private:
    MemoryTarget& target_;
    std::string_view table_;
    std::vector<Row> rows_;
  };

  std::string name_;
  Source* delivered_;
};

}  // namespace ferrowind::content
