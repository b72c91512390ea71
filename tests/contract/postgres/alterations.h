#pragma once

#include <string>
#include <vector>

namespace ferrowind::contract {

/// A statement that alters one object of a calendar database, or one role of its server.
struct Alteration {
  /// As a sentence of the check names it, such as "table cldday" or "routine entryatwork()".
  std::string object;
  std::string sql;
};

/// Every object that the catalogues of the database name, altered in every way that its kind allows, in
/// rounds: the alterations of one round have nothing to do with each other.
[[nodiscard]] std::vector<std::vector<Alteration>> AlterationsOf(const std::string& database);

/// What is done to roles and logins of the server, which outlives the database: the same, and how each is
/// taken back.
struct RoleAlteration {
  std::string object;
  std::string sql;
  std::string undo;
};
[[nodiscard]] std::vector<std::vector<RoleAlteration>> RoleAlterations(const std::string& database,
                                                                       const std::string& login);

}  // namespace ferrowind::contract
