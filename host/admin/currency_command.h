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
/// Codes may be written in any letter case, and the number of a currency instead. On a server only an
/// administrator may change currencies.
namespace ferrowind::host {

struct CurrencyListCommand {
  std::string url;
  OutputFormat format = OutputFormat::kTable;

  /// Number, code, kind, name and last day of all of them, ordered by code. The kind is what holds today:
  /// "money", "past" for money of the past, and "other" for what never was money.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

struct CurrencyAddCommand {
  std::string url;
  std::string code;
  /// 1 to 999.
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

  /// Until the last day is past the currency stays what it is. When it is past, one without calendars and
  /// rule book leaves the lists of the windows; another stays there. What never was money is refused.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

/// Takes back `CurrencyRetireCommand`, however long ago that was.
struct CurrencyRestoreCommand {
  std::string url;
  std::string code;

  /// A currency that has no last day is refused.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

}  // namespace ferrowind::host
