-- From version 7 to version 8: a cross counts the days that each of its currencies takes against the dollar, and the dollar counts
-- its weekdays. Every upgrade replaces the functions; those whose form has changed would stay beside the new ones. Databases from before
-- version 6 have none of them.
DROP FUNCTION IF EXISTS PairTerms(text), NearSpot(date, boolean, integer, integer[], integer[], integer[]),
  SpotFrom(date, integer, integer[], integer[]);
