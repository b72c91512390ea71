#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"
#include "host/admin/outcome_writer.h"

/// `ferrowindctl currency`: the currencies that a database knows. Each command prints what it did to `out`.
/// What is refused, or cannot be done, is a `platform::Failure` that says why, and nothing is changed then.
/// Codes may be written in any letter case. On a server only an administrator may change currencies.
namespace ferrowind::host {

struct CurrencyListCommand {
  std::string url;
  OutputFormat format = OutputFormat::kTable;

  /// Number, code, kind, name and last day of all of them, ordered by code. The kind is "money", "past" for
  /// money of the past, and "other" for what never was money.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

struct CurrencyAddCommand {
  std::string url;
  std::string code;
  std::int32_t number = 0;
  std::string name;
  /// A unit of account, a metal or a fund, of which there are no calendars.
  bool is_no_money = false;

  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

struct CurrencyRenameCommand {
  std::string url;
  std::string code;
  std::optional<std::string> new_name;
  std::optional<std::string> new_code;

  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

struct CurrencyRetireCommand {
  std::string url;
  std::string code;
  /// YYYY-MM-DD.
  std::string last_day;

  /// A currency that has calendars or a rule book stays money of the past, which windows show; any other
  /// leaves their lists.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

}  // namespace ferrowind::host
