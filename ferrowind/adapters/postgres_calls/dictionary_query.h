#pragma once

#include <string>

namespace ferrowind::postgres {

/// The failure that names the dictionary `name` when there is none of that name.
void RequireDictionary(const std::string& name);

/// Gives the rows of the dictionary `Ccy`, by the contract of `platform::Engine::ReadDictionary`.
inline constexpr const char* kReadCurrencies =
    "SELECT CcyID AS \"CcyID\", Ccy AS \"Ccy\", CcyType AS \"CcyType\", Name AS \"Name\" "
    "FROM ferrowind.DictionaryCcy ORDER BY Ccy COLLATE \"C\"";

}  // namespace ferrowind::postgres
