-- Whether the currency can be of that type (null: not be at all) and legal money until that day, given its calendars and its
-- book: only money has any, and calendars only for years that begin before its last day. One with conventions cannot go.
CREATE OR REPLACE FUNCTION CurrencyCanBe(currency integer, kind smallint, last_day date) RETURNS boolean
LANGUAGE sql STABLE
AS $$
  SELECT NOT EXISTS (SELECT FROM CldCalendar WHERE ID1 = currency AND Year1 > extract(year FROM last_day))
    AND (kind IS NOT DISTINCT FROM 0 OR NOT EXISTS (SELECT FROM CldCalendar WHERE ID1 = currency)
                                        AND NOT EXISTS (SELECT FROM CldBook WHERE ID1 = currency))
    AND (kind IS NOT NULL OR NOT EXISTS (SELECT FROM CldConvention WHERE currency IN (ID1, OtherID)))
$$;
