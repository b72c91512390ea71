#include <nlohmann/json.hpp>
#include <ostream>

#include "ferrowind/platform/values/conversion.h"

#include "host/admin/outcome_writer.h"

namespace ferrowind::host {
namespace {

using Json = nlohmann::ordered_json;

struct ToJson {
  Json operator()(std::monostate) const { return nullptr; }
  Json operator()(const platform::Value::Object&) const { return nullptr; }
  Json operator()(const platform::Date& date) const { return date.ToIso(); }
  template <typename Plain>
  Json operator()(const Plain& value) const {
    return value;
  }
};

Json CellJson(const platform::RecordSet& rows, std::size_t row, std::size_t field) {
  return std::visit(ToJson(), rows.Cell(rows.BookmarkAt(row), field).Get());
}

Json RecordSetJson(const platform::RecordSet& rows) {
  Json fields = Json::array();
  for (std::size_t field = 0; field < rows.FieldCount(); ++field) fields.push_back(rows.FieldName(field));
  Json row_list = Json::array();
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    Json cells = Json::array();
    for (std::size_t field = 0; field < rows.FieldCount(); ++field) {
      cells.push_back(CellJson(rows, i, field));
    }
    row_list.push_back(std::move(cells));
  }
  Json record_set;
  record_set["fields"] = std::move(fields);
  record_set["rows"] = std::move(row_list);
  return record_set;
}

Json RecordSetsJson(const RecordSets& record_sets) {
  Json results = Json::array();
  for (const auto& rows : record_sets) results.push_back(RecordSetJson(*rows));
  return results;
}

void WriteLine(const Json& document, std::ostream& out) {
  // Bytes that are no UTF-8 cannot stand in JSON; they become U+FFFD.
  out << document.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace

void WriteJson(const ProcedureOutcome& outcome, std::ostream& out) {
  Json document;
  document["return"] = outcome.return_value;
  document["results"] = RecordSetsJson(outcome.record_sets);
  WriteLine(document, out);
}

void WriteJsonRows(const RecordSets& record_sets, std::ostream& out) {
  Json document;
  document["results"] = RecordSetsJson(record_sets);
  WriteLine(document, out);
}

void WriteJsonList(const platform::RecordSet& rows, std::ostream& out) {
  Json list = Json::array();
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    Json object = Json::object();
    for (std::size_t field = 0; field < rows.FieldCount(); ++field) {
      object[rows.FieldName(field)] = CellJson(rows, i, field);
    }
    list.push_back(std::move(object));
  }
  WriteLine(list, out);
}

}  // namespace ferrowind::host
