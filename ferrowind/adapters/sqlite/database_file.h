#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/chain/seal.h"
#include "ferrowind/adapters/content/schema_upgrade.h"

namespace ferrowind::sqlite {

/// Makes a new calendar database at `path` (absolute or relative to the current folder), readable and
/// writable by its owner only: tables, procedures, currencies, holiday types, the built-in rule and the
/// setting. Then calls `fill`, when there is one, with the connection string of the database, through which
/// it may add more; it keeps no connection.
///
/// The file appears at `path` only when all of it is there and `fill` has returned, so a creation that fails
/// or is killed leaves no database behind (killed, it may leave a file PATH.creating-XXXXXX). Of two
/// creations at a time one fails. A file that exists and is not empty, and files left over beside a database
/// that is gone, are failures, and stay as they are. Fails only with `platform::Failure`, whose text names
/// the path, and with what `fill` throws.
void CreateDatabase(const std::string& path,
                    const std::function<void(const std::string& connection_string)>& fill = {});

/// The problems of the calendar database at `path`, each a sentence that says what and where; none when it is
/// sound: the schema is this program's version, the procedures are this program's, every calendar is a
/// currency's and has all days of its year with their dates, every day's rule exists and is of the day's
/// type, the file is intact, nobody has changed the history, and the tables are what it makes of them
/// (adapters/chain). With a seal, the history up to it is what was sealed. Changes nothing. A file that
/// cannot be read or is no calendar database is a `platform::Failure`.
[[nodiscard]] std::vector<std::string> CheckDatabase(const std::string& path,
                                                     const std::optional<chain::Seal>& seal = {});

/// Seals the history of the calendar database at `path` as it is now. A file that cannot be read, is no
/// calendar database or is of another version is a `platform::Failure`.
[[nodiscard]] chain::SealedHistory SealDatabase(const std::string& path);

/// The texts of the calendar database at `path` that are longer than its procedures take, a sentence without
/// a full stop for each. It is sound all the same: they are from before there were limits. A file that cannot
/// be read or is no calendar database is a `platform::Failure`.
[[nodiscard]] std::vector<std::string> LongTexts(const std::string& path);

/// Brings the calendar database at `path` to this program's version: schema and procedures. All of it is one
/// transaction, so an upgrade that fails or is killed leaves the database as it was; others see it before or
/// after. A database of this version is left alone, and so may be read-only. A newer one, and a file that
/// cannot be changed or is no calendar database, are a `platform::Failure`, and so is an upgrade that ends
/// because `is_stopped`, which it asks now and then, says so.
content::UpgradeOutcome UpgradeDatabase(const std::string& path,
                                        const std::function<bool()>& is_stopped = {});

/// The version of the schema of the calendar database at `path`. A file that cannot be read or is no calendar
/// database is a `platform::Failure`.
[[nodiscard]] std::int64_t ReadSchemaVersion(const std::string& path);

/// A failure that says what to do when the calendar database at `path` is of another version than this
/// program's. A file that cannot be read or is no calendar database is a `platform::Failure`, too.
void RequireThisVersion(const std::string& path);

}  // namespace ferrowind::sqlite
