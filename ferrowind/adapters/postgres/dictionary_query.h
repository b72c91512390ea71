#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::postgres {

/// The failure that names the dictionary `name` when there is none of that name.
void RequireDictionary(const std::string& name);

/// The rows of the dictionary `Ccy`, by the contract of `platform::Engine::ReadDictionary`.
[[nodiscard]] std::shared_ptr<platform::RecordSet> ReadCurrencies(ServerConnection& connection);

}  // namespace ferrowind::postgres
