-- What a row holds besides its key, as CldHistoryRow.OldRow keeps it.

CREATE OR REPLACE FUNCTION CurrencyContent(code text, kind smallint, name text, last_day date) RETURNS json
LANGUAGE sql STABLE
AS $$
  SELECT json_build_object('Ccy', code, 'CcyType', kind, 'Name', name, 'LastDay', last_day)
$$;

CREATE OR REPLACE FUNCTION RuleContent(name text, comment text, rule_type integer, day date, month smallint,
  day_of_month smallint, weekday smallint, removal smallint)
RETURNS json
LANGUAGE sql STABLE
AS $$
  SELECT json_build_object('Name1', name, 'Comment', comment, 'TID1', rule_type, 'D1', day, 'MY', month, 'MD', day_of_month,
    'WD', weekday, 'Del', removal)
$$;

CREATE OR REPLACE FUNCTION DayContent(rule_type integer, rule integer, comment text) RETURNS json
LANGUAGE sql STABLE
AS $$
  SELECT json_build_object('TID1', rule_type, 'ID2', rule, 'Comment', comment)
$$;

CREATE OR REPLACE FUNCTION BookContent(publisher text, document text, from_year integer) RETURNS json
LANGUAGE sql STABLE
AS $$
  SELECT json_build_object('Publisher', publisher, 'Document', document, 'FromYear', from_year)
$$;

CREATE OR REPLACE FUNCTION RecurrenceContent(name text, rule_type integer, expression text, comment text, moved_name text)
RETURNS json
LANGUAGE sql STABLE
AS $$
  SELECT json_build_object('Name1', name, 'TID1', rule_type, 'Expression', expression, 'Comment', comment,
    'MovedName', moved_name)
$$;

CREATE OR REPLACE FUNCTION ConventionContent(spot_days integer, dollar_stops integer) RETURNS json
LANGUAGE sql STABLE
AS $$
  SELECT json_build_object('SpotDays', spot_days, 'DollarStops', dollar_stops)
$$;

-- What the row whose key `kept` names holds now; null when there is none.
CREATE OR REPLACE FUNCTION ContentNow(kept CldHistoryRow) RETURNS json
LANGUAGE sql STABLE
AS $$
  SELECT CASE kept.TableName
    WHEN 'CldDay' THEN
      (SELECT DayContent(TID1, ID2, Comment) FROM CldDay
       WHERE ID1 = kept.ID1 AND Year1 = kept.Year1 AND Day1 = kept.Day1)
    WHEN 'CldCalendar' THEN
      (SELECT json_build_object() FROM CldCalendar WHERE ID1 = kept.ID1 AND Year1 = kept.Year1)
    WHEN 'CldHoliday' THEN
      (SELECT RuleContent(Name1, Comment, TID1, D1, MY, MD, WD, Del) FROM CldHoliday WHERE ID2 = kept.ID2)
    WHEN 'CldBook' THEN
      (SELECT BookContent(Publisher, Document, FromYear) FROM CldBook WHERE ID1 = kept.ID1)
    WHEN 'CldRecurrence' THEN
      (SELECT RecurrenceContent(Name1, TID1, Expression, Comment, MovedName) FROM CldRecurrence
       WHERE ID1 = kept.ID1 AND Position = kept.Position)
    WHEN 'CldConvention' THEN
      (SELECT ConventionContent(SpotDays, DollarStops) FROM CldConvention
       WHERE ID1 = kept.ID1 AND OtherID = kept.Position)
    WHEN 'DicCcy' THEN
      (SELECT CurrencyContent(Ccy, CcyType, Name, LastDay) FROM DicCcy WHERE CcyID = kept.ID1)
  END
$$;
