// Makes the input the answer of a server, and reads it. The first line has the columns as "NAME:TYPE", by the
// server's numbers of the types; each of the others is a row of cells as hexadecimal digits, "-" for null.
// Whatever it is, the rows are read as they are, or the failure names the column.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <libpq-fe.h>

#include "ferrowind/adapters/postgres/answer_parts.h"
#include "ferrowind/adapters/postgres/binary_value.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/utf8_validation.h"

#include "fuzz/expectation.h"

namespace {

using ferrowind::fuzz::Expect;
using ferrowind::platform::Failure;
using ferrowind::postgres::QueryResult;

std::vector<std::string> WordsOf(const std::string& line) {
  std::istringstream words(line);
  std::vector<std::string> found;
  for (std::string word; words >> word;) found.push_back(word);
  return found;
}

int Digit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  return c >= 'a' && c <= 'f' ? c - 'a' + 10 : 0;
}

std::string BytesOf(const std::string& digits) {
  std::string bytes;
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
    bytes += static_cast<char>(Digit(digits[i]) * 16 + Digit(digits[i + 1]));
  }
  return bytes;
}

/// Nothing when there are no columns.
QueryResult AnswerIn(const std::string& text) {
  std::istringstream lines(text);
  std::string line;
  std::getline(lines, line);
  std::vector<std::string> names;
  std::vector<PGresAttDesc> columns;
  for (const std::string& word : WordsOf(line)) {
    const auto colon = word.find(':');
    if (colon == std::string::npos) continue;
    // As libpq has it, a name ends at its NUL.
    names.emplace_back(word.substr(0, colon).c_str());
    columns.push_back(
        {nullptr, 0, 0, 1, static_cast<Oid>(std::strtoul(word.c_str() + colon + 1, nullptr, 10)), -1, -1});
  }
  if (columns.empty()) return nullptr;
  for (std::size_t i = 0; i < columns.size(); ++i) columns[i].name = names[i].data();
  QueryResult result(PQmakeEmptyPGresult(nullptr, PGRES_TUPLES_OK));
  PQsetResultAttrs(result.get(), static_cast<int>(columns.size()), columns.data());
  for (int row = 0; std::getline(lines, line); ++row) {
    const auto cells = WordsOf(line);
    for (std::size_t i = 0; i < columns.size(); ++i) {
      std::string bytes = i < cells.size() ? BytesOf(cells[i]) : "";
      const bool is_null = i < cells.size() && cells[i] == "-";
      PQsetvalue(result.get(), row, static_cast<int>(i), bytes.data(),
                 is_null ? -1 : static_cast<int>(bytes.size()));
    }
  }
  return result;
}

void TryRecordSet(const PGresult* answer) {
  try {
    const auto rows = ferrowind::postgres::ReadRecordSet(answer);
    Expect(rows->RowCount() == static_cast<std::size_t>(PQntuples(answer)), "every row is read");
    Expect(rows->FieldCount() == static_cast<std::size_t>(PQnfields(answer)), "every column is read");
    for (std::size_t row = 0; row < rows->RowCount(); ++row) {
      for (std::size_t field = 0; field < rows->FieldCount(); ++field) {
        const auto& cell = rows->Cell(rows->BookmarkAt(row), field);
        const bool is_null = PQgetisnull(answer, static_cast<int>(row), static_cast<int>(field)) != 0;
        Expect(cell.IsEmpty() == is_null, "a null is empty, and nothing else");
        Expect(ferrowind::platform::IsWellFormedUtf8(ferrowind::platform::ToTextOrEmpty(cell)),
               "every text is UTF-8");
      }
    }
  } catch (const Failure& failure) {
    Expect(failure.Description().starts_with("The column "), "a refusal names the column");
  }
}

void TryArrays(const PGresult* answer) {
  for (int column = 0; column < PQnfields(answer) && PQntuples(answer) > 0; ++column) {
    const auto size = static_cast<std::size_t>(PQgetlength(answer, 0, column));
    std::size_t bytes = 0;
    // On the heap, so that a read beyond the end is seen.
    const std::vector<char> cell(PQgetvalue(answer, 0, column), PQgetvalue(answer, 0, column) + size);
    for (const std::string& element : ferrowind::postgres::ReadArray(cell.data(), size))
      bytes += element.size();
    Expect(bytes <= size, "an array has no more than its bytes");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QueryResult answer = AnswerIn(std::string(data, data + size));
  if (!answer) return 0;
  TryRecordSet(answer.get());
  TryArrays(answer.get());
  const auto number = ferrowind::postgres::ReadWholeNumber(answer.get());
  if (number) {
    Expect(std::to_string(*number).size() <= static_cast<std::size_t>(PQgetlength(answer.get(), 0, 0)),
           "a number is what its cell says");
  }
  return 0;
}
