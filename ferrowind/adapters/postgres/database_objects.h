#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/chain/seal.h"
#include "ferrowind/adapters/content/schema_upgrade.h"
#include "ferrowind/platform/database/engine.h"

namespace ferrowind::postgres {

/// Makes the existing empty database that `connection_string` names a calendar database: roles that the
/// server does not have yet, the schema `ferrowind` with tables, procedures and views, currencies, holiday
/// types, the built-in rule and the setting. Then calls `fill`, when there is one, with an engine through
/// which it may add more; whatever connection string that engine is given, it works in this creation, and
/// only until `fill` returns.
///
/// All of it is one transaction: a creation that fails or is killed leaves the database and the server's
/// roles as they were; only when the connection is lost while it is committed, that is not known, and the
/// failure a `content::DoubtfulOutcome`. The login must be allowed to create roles (unless they exist) and
/// own the database, or be a superuser. A database that is not empty or does not store texts as UTF-8 is a
/// failure. Once `is_stopped` says so, the creation fails, whatever it waits for, unless it is being
/// committed. Fails only with `platform::Failure`, and with what `fill` throws.
void CreateDatabaseObjects(const std::string& connection_string,
                           const std::function<void(std::shared_ptr<platform::Engine> engine)>& fill = {},
                           const std::function<bool()>& is_stopped = {});

/// A failure that names the login unless it has the rights of ferrowind_owner, and when the database is none
/// of calendars.
void RequireAdministratorOf(const std::string& connection_string);

/// The problems of the calendar database, each a sentence that says what and where, and for what surrounds
/// the schema also what to do; none when it is sound: the schema is this program's version, and everything in
/// it, every right and owner is what the delivered scripts make of an empty database; nothing outside reaches
/// into it or gives more rights; every calendar is a currency's and has all days of its year with their
/// dates, and every day's rule exists and is of the day's type. What should be is known to the program;
/// nothing of it comes from the server. Nobody has changed the history, and the tables are what it makes of
/// them (adapters/chain); with a seal, the history up to it is what was sealed. Changes nothing, which the
/// server ensures. The login must have the rights of ferrowind_owner. A database that cannot be read is a
/// `platform::Failure`, and so is one that is being upgraded for more than 5 seconds; it says by whom.
[[nodiscard]] std::vector<std::string> CheckDatabase(const std::string& connection_string,
                                                     const std::optional<chain::Seal>& seal = {});

/// What on the server puts stored changes in danger although the database is sound, a sentence without a full
/// stop for each. A server that cannot be asked is a `platform::Failure`.
[[nodiscard]] std::vector<std::string> SettingsInDoubt(const std::string& connection_string);

/// Seals the history of the calendar database as it is now, when every changing call that is at work has
/// ended; calls that come meanwhile wait for that. One that does not end within 5 seconds is a
/// `platform::Failure` that says whose it is, as are a database that cannot be read and one of another
/// version. The login must have the rights of ferrowind_owner.
[[nodiscard]] chain::SealedHistory SealDatabase(const std::string& connection_string);

/// The texts of the calendar database that are longer than its procedures take, a sentence without a full
/// stop for each. It is sound all the same: they are from before there were limits. The login must have the
/// rights of ferrowind_owner. A database that cannot be read is a `platform::Failure`.
[[nodiscard]] std::vector<std::string> LongTexts(const std::string& connection_string);

/// Brings the calendar database to this program's version: schema, procedures and rights, and the server's
/// roles. All of it is one transaction, so an upgrade that fails or is killed leaves the database as it was;
/// others see it before or after. A database of this version is left alone. The login must be one that could
/// create the database. A newer database, and one that cannot be changed, are a `platform::Failure`; when
/// somebody does not let go of the tables within 5 seconds, it says who (table_locks.h). `is_stopped` as for
/// `CreateDatabaseObjects`.
content::UpgradeOutcome UpgradeDatabase(const std::string& connection_string,
                                        const std::function<bool()>& is_stopped = {});

}  // namespace ferrowind::postgres
