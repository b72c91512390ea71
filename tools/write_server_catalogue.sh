#!/usr/bin/env bash
# Writes database/postgres/check/catalogue.tsv, which the check of a database compares with, anew: after a change of the
# schema, the rights or the form of a routine. What has changed in it is to be read before it is committed.
# usage: tools/with_postgres.sh tools/write_server_catalogue.sh FERROWINDCTL
set -euo pipefail

if [ $# -ne 1 ] || [ -z "${FERROWIND_POSTGRES:-}" ]; then
  printf 'usage: tools/with_postgres.sh %s FERROWINDCTL\n' "${BASH_SOURCE[0]}" >&2
  exit 2
fi
folder=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../database/postgres/check" && pwd)
database=${FERROWIND_POSTGRES%postgres}catalogue
psql=(psql -X -q -A -t -v ON_ERROR_STOP=1)

"${psql[@]}" "$FERROWIND_POSTGRES" -c 'CREATE DATABASE catalogue'
"$1" init "$database" --empty >&2
# The texts of routines, which have lines, are those of the scripts.
"${psql[@]}" "$database" -c 'SET search_path = pg_catalog, pg_temp' -c "COPY (
  SELECT object || E'\t' || property || E'\t' || value
  FROM ($(cat -- "$folder/objects.sql")) AS fact (object, property, value)
  WHERE property <> 'text'
) TO STDOUT (FORMAT csv, QUOTE E'\x01', DELIMITER E'\x02')" >"$folder/catalogue.tsv.new"
mv -- "$folder/catalogue.tsv.new" "$folder/catalogue.tsv"
"${psql[@]}" "$FERROWIND_POSTGRES" -c 'DROP DATABASE catalogue'
