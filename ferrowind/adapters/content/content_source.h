#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/adapters/content/content_table.h"
#include "ferrowind/platform/values/value.h"

/// What the engines show of a calendar database to whoever copies it. Every method of these classes fails
/// with a `platform::Failure`; all objects of one database are used by one thread.
namespace ferrowind::content {

/// A value for each column of the table.
using Row = std::vector<platform::Value>;

/// In which order rows come.
enum class RowOrder {
  kByKey,
  /// The one that costs least.
  kAny,
};

/// Gives rows one after the other.
class RowReader {
 public:
  virtual ~RowReader() = default;
  /// Puts the next row into `row`; false, and `row` is left as it is, behind the last one.
  [[nodiscard]] virtual bool Next(Row& row) = 0;
};

/// Takes rows one after the other.
class RowWriter {
 public:
  virtual ~RowWriter() = default;
  virtual void Add(const Row& row) = 0;
  /// To be called behind the last row; the rows are in the table only then. A writer that is destroyed
  /// without it leaves a database that takes nothing more.
  virtual void Finish() = 0;
};

/// The content of a calendar database, which stays the same for as long as the object lives.
class Source {
 public:
  virtual ~Source() = default;
  /// What failures call the database.
  [[nodiscard]] virtual std::string Name() = 0;
  /// A text that two sources have in common when, and only when, they are the same database.
  [[nodiscard]] virtual std::string Identity() = 0;
  [[nodiscard]] virtual std::int64_t CountRows(const Table& table) = 0;
  /// All rows. One reader at a time, and nothing else of the source is used before it is destroyed.
  [[nodiscard]] virtual std::unique_ptr<RowReader> Rows(const Table& table, RowOrder order) = 0;
};

/// A calendar database that content can be written into, in a transaction. As a source it shows what has been
/// written.
class Target : public Source {
 public:
  /// Keeps every other writer out until the transaction ends. Called before anything but `Name` and
  /// `Identity`.
  virtual void KeepOthersOut() = 0;
  /// What the database would hold if it had just been created; null when it has. Lives as long as the target.
  [[nodiscard]] virtual Source* Delivered() = 0;
  /// Removes all rows.
  virtual void Clear(const Table& table) = 0;
  /// Takes the rows of `table`, which is empty; about `rows` of them are to come. One writer at a time, and
  /// nothing else of the target is used before it has finished.
  [[nodiscard]] virtual std::unique_ptr<RowWriter> Writer(const Table& table, std::int64_t rows) = 0;
};

}  // namespace ferrowind::content
