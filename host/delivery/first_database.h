#pragma once

#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/delivery/delivered_calendars.h"

namespace ferrowind::host {

enum class DatabaseContent {
  /// Currencies, types, the built-in rule, the delivered rules and the delivered calendars.
  kDelivered,
  /// Currencies, types and the built-in rule.
  kEmpty,
};

/// Creates the database that `connection_string` names: for "sqlite:PATH" a file, which only its owner may
/// read and write; for "postgresql://..." what a calendar database consists of, in the empty database of that
/// name that the server has.
///
/// The database appears under its name only when it is whole, so that a host that was interrupted in its
/// first start finds none and starts over. `engines` must know the connection string's engine and be safe to
/// use on another thread; the calling thread's state of the component stays as it is. Fails with a
/// `platform::Failure` that names the database: when something exists there, which then stays as it is, and
/// when anything cannot be written; no database is there then. `observe` is called as the calendars are made,
/// on another thread, while the calling one waits.
void CreateFirstDatabase(const platform::EngineRegistry& engines, const std::string& connection_string,
                         DatabaseContent content, const CreationObserver& observe = {});

}  // namespace ferrowind::host
