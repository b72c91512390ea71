#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/headless/call_log.h"
#include "ferrowind/platform/services/dictionary.h"

namespace ferrowind::headless {

/// A dictionary whose tables the test fills.
class HeadlessDictionary : public platform::Dictionary {
 public:
  /// `log` must outlive the dictionary.
  explicit HeadlessDictionary(CallLog& log) : log_(log) {}

  [[nodiscard]] std::string dic_ConnectionString() override;
  [[nodiscard]] std::shared_ptr<platform::RecordSet> dic_GetDicRecByFilter(
      const std::string& name, const std::string& filter) override;

  /// "scripted:" at first.
  void SetConnectionString(std::string connection_string) {
    connection_string_ = std::move(connection_string);
  }
  /// The rows of a dictionary, in its own order. A table set before is replaced; null removes it.
  void SetTable(const std::string& name, std::shared_ptr<platform::RecordSet> rows);
  /// The dictionary "Ccy" with these currencies in their order, each `CcyID`, `Ccy` and, where it is no
  /// currency, 1.
  struct Currency {
    std::int32_t id;
    std::string code;
    std::int16_t type = 0;
  };
  void SetCurrencies(const std::vector<Currency>& currencies);

 private:
  CallLog& log_;
  std::string connection_string_ = "scripted:";
  std::map<std::string, std::shared_ptr<platform::RecordSet>> tables_;
};

}  // namespace ferrowind::headless
