#include "tests/contract/database/procedure_caller.h"

#include <stdexcept>

#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::contract {

platform::CallOutcome ProcedureCaller::Call(const std::string& procedure, const Arguments& arguments) {
  const auto connection_string = database_.ConnectionStringFor(procedure);
  auto& open = connections_[connection_string];
  if (open.calls_left == 0) {
    open.connection = database_.Engine().Connect(connection_string);
    open.calls_left = calls_per_connection_;
  }
  --open.calls_left;
  auto outcome = CallOver(*open.connection, procedure, arguments);
  if (open.calls_left == 0) open.connection.reset();
  return outcome;
}

platform::CallOutcome CallOver(platform::Connection& connection, const std::string& procedure,
                               const Arguments& arguments) {
  const auto parameters = connection.DescribeProcedure(procedure);
  std::vector<platform::Value> inputs(parameters.size() - 1);
  for (const auto& [name, value] : arguments) {
    bool is_known = false;
    for (const auto& parameter : parameters) {
      if (parameter.position == 0 || parameter.name != "@" + name) continue;
      inputs[static_cast<std::size_t>(parameter.position) - 1] = ConvertForParameter(parameter, value);
      is_known = true;
    }
    if (!is_known) throw std::logic_error(procedure + " has no parameter " + name);
  }
  return connection.Call(procedure, inputs);
}

std::vector<std::string> FieldsOf(const platform::RecordSet& record_set) {
  std::vector<std::string> fields;
  for (std::size_t field = 0; field < record_set.FieldCount(); ++field)
    fields.push_back(record_set.FieldName(field));
  return fields;
}

std::vector<Row> RowsOf(const platform::RecordSet& record_set) {
  std::vector<Row> rows;
  for (std::size_t row = 0; row < record_set.RowCount(); ++row) {
    rows.emplace_back();
    for (std::size_t field = 0; field < record_set.FieldCount(); ++field) {
      rows.back().push_back(record_set.Cell(record_set.BookmarkAt(row), field));
    }
  }
  return rows;
}

Row ColumnOf(const platform::RecordSet& record_set, const std::string& field) {
  Row column;
  const std::size_t position = record_set.FieldNamed(field);
  for (auto& row : RowsOf(record_set)) column.push_back(row[position]);
  return column;
}

std::string FailureTextOf(const std::function<void()>& body) {
  try {
    body();
  } catch (const platform::Failure& failure) {
    return failure.Description();
  }
  return "";
}

}  // namespace ferrowind::contract

namespace ferrowind::platform {

void PrintTo(const Value& value, std::ostream* stream) {
  *stream << "type " << value.Get().index() << " ";
  if (value.IsObject()) {
    *stream << "object";
  } else {
    *stream << '"' << ToTextOrEmpty(value).substr(0, 200) << '"';
  }
}

}  // namespace ferrowind::platform
