#pragma once

#include <functional>
#include <optional>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/services/clock.h"

#include "host/delivery/delivery.h"

namespace ferrowind::host {

/// What a new database has beside currencies, types and the built-in rule.
struct FirstContent {
  /// Nothing; otherwise the delivered rule books and the calendars of two years.
  bool is_empty = false;
  /// The first of these years; the running one without.
  std::optional<int> first_year;
};

/// Creates the database that `connection_string` names: for "sqlite:PATH" a file, which only its owner may
/// read and write; for "postgresql://..." what a calendar database consists of, in the empty database of that
/// name that the server has. Returns what was delivered into it, nothing for an empty one.
///
/// The database appears under its name only when it is whole, so that a host that was interrupted in its
/// first start finds none and starts over. `engines` must know the connection string's engine and be safe to
/// use on another thread; the calling thread's state of the component stays as it is. Fails with a
/// `platform::Failure` that names the database: when something exists there, which then stays as it is, and
/// when anything cannot be written; no database is there then. `clock` tells the running year. `observe` is
/// called as the calendars are made, on another thread, while the calling one waits. Once `is_stopped`, which
/// any thread may call, says so, a creation on a server fails, whatever it waits for.
std::optional<Delivery> CreateFirstDatabase(const platform::EngineRegistry& engines,
                                            const std::string& connection_string,
                                            const platform::Clock& clock, const FirstContent& content = {},
                                            const DeliveryObserver& observe = {},
                                            const std::function<bool()>& is_stopped = {});

}  // namespace ferrowind::host
