#include "ferrowind/adapters/odbc/signature_query.h"

#include <cstdint>
#include <memory>
#include <vector>

#include "ferrowind/adapters/postgres_calls/sql_state.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::odbc {
namespace {

/// A row per parameter, in their order; one of null without parameters. How many procedures there are of the
/// name stands in each.
constexpr const char* kSignatureQuery =
    "SELECT count(*) OVER (PARTITION BY coalesce(t.place, 1)) AS procedures,"
    " p.proargnames[t.place] AS name, p.proargmodes[t.place]::text AS mode, t.type::bigint AS type"
    " FROM pg_catalog.pg_proc p"
    " LEFT JOIN LATERAL (SELECT u.type, u.place::integer FROM"
    "   unnest(coalesce(p.proallargtypes, p.proargtypes::oid[])) WITH ORDINALITY AS u(type, place)) t ON true"
    " WHERE p.proname = ? AND p.prokind = 'p'"
    " AND p.pronamespace = pg_catalog.to_regnamespace('ferrowind')"
    " ORDER BY p.oid, t.place";

std::shared_ptr<platform::RecordSet> Ask(ServerLink& link, const std::string& procedure,
                                         const std::string& folded) {
  try {
    return link.Query(kSignatureQuery, {folded});
  } catch (const platform::Failure& failure) {
    throw postgres::Introduced("The procedure " + procedure + " cannot be looked up: ", failure);
  }
}

}  // namespace

postgres::ProcedureSignature ReadSignature(ServerLink& link, const std::string& name) {
  const auto rows = Ask(link, name, postgres::CatalogueName(name));
  if (rows->Eof()) throw postgres::MissingProcedure(name, link.DatabaseName());
  std::vector<postgres::DeclaredParameter> declared;
  for (; !rows->Eof(); rows->MoveNext()) {
    if ((*rows)["procedures"] != platform::Value(std::int64_t{1})) {
      throw postgres::AmbiguousProcedure(name, link.DatabaseName());
    }
    const auto* const type = (*rows)["type"].If<std::int64_t>();
    if (type == nullptr) continue;
    declared.push_back({platform::ToTextOrEmpty((*rows)["name"]), platform::ToTextOrEmpty((*rows)["mode"]),
                        static_cast<std::uint32_t>(*type)});
  }
  return postgres::SignatureOf(name, declared);
}

}  // namespace ferrowind::odbc
