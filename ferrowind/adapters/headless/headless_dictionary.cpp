#include "ferrowind/adapters/headless/headless_dictionary.h"

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

std::string HeadlessDictionary::dic_ConnectionString() {
  log_.Record(CallText("dictionary", "dic_ConnectionString"));
  return connection_string_;
}

std::shared_ptr<platform::RecordSet> HeadlessDictionary::dic_GetDicRecByFilter(const std::string& name,
                                                                               const std::string& filter) {
  log_.Record(CallText("dictionary", "dic_GetDicRecByFilter", {name, filter}));
  const auto table = tables_.find(name);
  if (table == tables_.end()) {
    throw platform::Failure(platform::failure_number::kInvalidArgument, "There is no dictionary " + name);
  }
  auto rows = table->second->Clone();
  rows->SetFilter(filter);
  return rows;
}

void HeadlessDictionary::SetTable(const std::string& name, std::shared_ptr<platform::RecordSet> rows) {
  if (rows == nullptr) {
    tables_.erase(name);
  } else {
    tables_[name] = std::move(rows);
  }
}

void HeadlessDictionary::SetCurrencies(const std::vector<Currency>& currencies) {
  std::vector<std::vector<platform::Value>> rows;
  for (const Currency& currency : currencies) {
    rows.push_back({currency.id, currency.code, currency.type, "Name of " + currency.code});
  }
  SetTable("Ccy", std::make_shared<platform::RecordSet>(
                      std::vector<std::string>{"CcyID", "Ccy", "CcyType", "Name"}, std::move(rows)));
}

}  // namespace ferrowind::headless
