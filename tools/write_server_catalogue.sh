#!/usr/bin/env bash
# Writes database/postgres/check/catalogue.tsv and server_functions.tsv anew, with which the check of a database compares: after
# a change of the schema, the rights or the form of a routine, and where a routine uses another function of the server. What has
# changed in them is to be read before it is committed.
# usage: tools/write_server_catalogue.sh
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
if [ $# -gt 0 ]; then
  printf 'usage: tools/write_server_catalogue.sh\n' >&2
  exit 2
fi

# Started without a server it builds what it needs, and runs again beside one.
if [ -z "${FERROWIND_POSTGRES:-}" ]; then
  "$root/tools/install_packages.sh" build test
  "$root/tools/build.sh" release ferrowindctl -DBUILD_TESTING=OFF -DFERROWIND_BENCHMARKS=OFF
  exec "$root/tools/with_postgres.sh" "${BASH_SOURCE[0]}"
fi

folder=$root/database/postgres/check
database=${FERROWIND_POSTGRES%postgres}catalogue
psql=(psql -X -q -A -t -v ON_ERROR_STOP=1)
"${psql[@]}" "$FERROWIND_POSTGRES" -c 'CREATE DATABASE catalogue'
"$root/build/release/bin/ferrowindctl" init "$database" --empty >&2
# The texts of routines, which have lines, are those of the scripts. Nothing is quoted.
"${psql[@]}" "$database" -c 'SET search_path = pg_catalog, pg_temp' -c "COPY (
  SELECT object || E'\t' || property || E'\t' || value
  FROM ($(cat -- "$folder/objects.sql")) AS fact (object, property, value)
  WHERE property <> 'text'
) TO STDOUT (FORMAT csv, QUOTE E'\x01', DELIMITER E'\x02')" >"$folder/catalogue.tsv.new"
mv -- "$folder/catalogue.tsv.new" "$folder/catalogue.tsv"

# Functions of the server that scripts name in front of a bracket, and those whose rights the scripts take.
names=$(cat -- "$root"/database/postgres/{schema.sql,rights.sql,functions/*.sql,procedures/*.sql} |
  grep -o '[a-z_0-9]\+(' | tr -d '(' | sort -u | paste -s -d ' ')
"${psql[@]}" "$FERROWIND_POSTGRES" -c 'SET search_path = pg_catalog' -F $'\t' -c "
  SELECT p.oid::regprocedure, concat_ws(' ', l.lanname, p.prosrc, p.provolatile, p.proisstrict, p.prosecdef, p.proconfig)
  FROM pg_proc p JOIN pg_language l ON l.oid = p.prolang
  WHERE p.oid < 16384 AND p.pronamespace = 'pg_catalog'::regnamespace AND l.lanname = 'internal' AND p.prokind = 'f'
    AND p.proname = ANY (string_to_array('$names', ' '))
  ORDER BY p.oid::regprocedure::text COLLATE \"C\"" >"$folder/server_functions.tsv.new"
mv -- "$folder/server_functions.tsv.new" "$folder/server_functions.tsv"
