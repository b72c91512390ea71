-- procedure CldApplyPlan writes
-- parameter @ID1 int32
-- parameter @Year1 int32
-- parameter @Expected text
-- parameter @Days text
-- Makes the calendar of the currency ID1 for Year1 what Days says, and the calendar itself and the rules when they are
-- missing. Expected is the fingerprint of the calendar that the plan was made for, '' when there was none. Days is a JSON
-- list of {"Name1", "TID1", "Comment", "Dates", "DayComment"}: the Dates get the rule of that name and type, with
-- DayComment as their comment; Comment is for a rule that is new. TID1 1 without Name1 makes ordinary working days, and
-- with DayComment working days by exception. Days that are not named stay as they are.
-- Returns 0; 7 a value is missing, out of range, too long or of another shape, or Days is over a megabyte; 3 unknown currency, or
-- one that gets no calendar of that year any more; 8 the calendar is another than expected; 2 a rule of that name has
-- another type; 10 a removed rule has that name.

SELECT 7 AS "@return"
WHERE :ID1 IS NULL OR :Year1 IS NULL OR :Year1 NOT BETWEEN 1900 AND 3000 OR :Expected IS NULL OR :Days IS NULL
  OR length(CAST(:Days AS BLOB)) > 1048576 OR instr(:Days, char(0)) > 0 OR NOT json_valid(:Days)
  -- SQLite cuts a text at this escape. What is left of doubled backslashes begins one.
  OR instr(replace(:Days, '\\', ''), '\u0000') > 0;

SELECT 7 AS "@return" WHERE json_type(:Days) <> 'array';

SELECT 7 AS "@return" FROM json_each(:Days) WHERE type <> 'object' LIMIT 1;

-- Each member is one that an item has, once, and of its type.
SELECT 7 AS "@return"
FROM json_each(:Days) i, json_each(i.value) m
GROUP BY i.key
HAVING count(*) <> count(DISTINCT m.key)
  OR sum(CASE
    WHEN m.key = 'TID1' THEN m.type = 'integer' AND m.value BETWEEN 1 AND 4
    WHEN m.key = 'Dates' THEN m.type = 'array'
    WHEN m.key IN ('Name1', 'Comment', 'DayComment') THEN m.type = 'null' OR m.type = 'text' AND FERROWIND_IS_TEXT(m.value)
      AND length(m.value) <= iif(m.key = 'Name1', 200, 4000)
    ELSE 0
  END) <> count(*)
LIMIT 1;

-- What an item cannot do without. Working days have no rule of their own that could have a comment.
SELECT 7 AS "@return"
FROM json_each(:Days)
WHERE json_type(value, '$.TID1') IS NULL OR json_type(value, '$.Dates') IS NULL
  OR trim(json_extract(value, '$.Name1')) = ''
  OR json_extract(value, '$.Name1') IS NULL
    AND (json_extract(value, '$.TID1') <> 1 OR json_extract(value, '$.Comment') IS NOT NULL)
LIMIT 1;

-- Every date is a day of the year and stands there once.
SELECT 7 AS "@return"
FROM (
  SELECT count(*) AS Dates, count(DISTINCT d.value) AS Days,
    sum(d.type = 'text' AND d.value IS date(d.value, '0 days') AND substr(d.value, 1, 4) = :Year1 || '') AS DaysOfTheYear
  FROM json_each(:Days) i, json_each(i.value, '$.Dates') d
)
WHERE Days <> Dates OR DaysOfTheYear <> Dates;

-- A rule that is new gets its weekday, or its date, from its days; the built-in rule is the only one of its type.
WITH Item (Name1, TID1, Dates) AS (
  SELECT json_extract(value, '$.Name1'), json_extract(value, '$.TID1'), json_extract(value, '$.Dates') FROM json_each(:Days)
)
SELECT 7 AS "@return"
FROM Item i LEFT JOIN json_each(i.Dates) d
WHERE i.Name1 IS NOT NULL AND NOT EXISTS (SELECT 1 FROM CldHoliday h WHERE h.Name1 = i.Name1)
GROUP BY i.Name1 COLLATE FERROWIND_NAME, i.TID1
HAVING i.TID1 = 1 OR count(d.value) = 0 OR i.TID1 = 2 AND count(DISTINCT strftime('%w', d.value)) <> 1
LIMIT 1;

-- A calendar that is there already may be of a year after the last day: an upgrade has set that.
SELECT 3 AS "@return"
WHERE NOT EXISTS (
  SELECT 1 FROM DicCcy
  WHERE CcyID = :ID1 AND CcyType = 0
    AND (LastDay IS NULL OR LastDay >= :Year1 || '-01-01'
      OR EXISTS (SELECT 1 FROM CldCalendar WHERE ID1 = :ID1 AND Year1 = :Year1)));

SELECT 8 AS "@return"
WHERE :Expected <> ifnull((SELECT Fingerprint FROM CalendarFingerprint WHERE ID1 = :ID1 AND Year1 = :Year1), '');

-- The first name that the plan cannot have.
WITH Item (Place, Name1, TID1) AS (
  SELECT key, json_extract(value, '$.Name1') COLLATE FERROWIND_NAME, json_extract(value, '$.TID1') FROM json_each(:Days)
)
SELECT iif(h.Del = 2, 10, 2) AS "@return"
FROM Item i LEFT JOIN CldHoliday h ON h.Name1 = i.Name1
WHERE h.Del = 2 OR h.TID1 <> i.TID1
  OR h.ID2 IS NULL AND EXISTS (SELECT 1 FROM Item e WHERE e.Name1 = i.Name1 AND e.TID1 <> i.TID1 AND e.Place < i.Place)
ORDER BY i.Place
LIMIT 1;

INSERT INTO CldCalendar (ID1, Year1) VALUES (:ID1, :Year1) ON CONFLICT DO NOTHING;

INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1)
SELECT :ID1, :Year1, Day1, date(:Year1 || '-01-01', (Day1 - 1) || ' days'), 1
FROM YearDay
WHERE :Expected = '' AND Day1 <= CAST(strftime('%j', :Year1 || '-12-31') AS INTEGER);

-- The rules that are missing, each by the first of its dates in the list.
WITH Day (Place, Name1, TID1, Comment, ODate) AS (
  SELECT 366 * i.key + d.key, json_extract(i.value, '$.Name1') COLLATE FERROWIND_NAME, json_extract(i.value, '$.TID1'),
    json_extract(i.value, '$.Comment'), d.value
  FROM json_each(:Days) i, json_each(i.value, '$.Dates') d
), NewRule AS (
  SELECT min(Place) AS Place, Name1, TID1, Comment, ODate
  FROM Day
  WHERE Name1 NOT IN (SELECT Name1 FROM CldHoliday)
  GROUP BY Name1
)
INSERT INTO CldHoliday (Name1, Comment, TID1, D1, MY, MD, WD)
SELECT r.Name1, r.Comment, r.TID1,
  iif(r.TID1 = 2, NULL, r.ODate),
  iif(r.TID1 = 2, NULL, CAST(strftime('%m', r.ODate) AS INTEGER)),
  iif(r.TID1 = 2, NULL, CAST(strftime('%d', r.ODate) AS INTEGER)),
  -- The weekday of the date, 0 for Sunday, counted from the setting's first weekday.
  iif(r.TID1 = 2, (strftime('%w', r.ODate) + 8 - s.FirstDay) % 7 + 1, NULL)
FROM NewRule r, CldSetting s
ORDER BY r.Place;

-- Read once, and not again for each day of the year.
WITH Item (Dates, TID1, ID2, Comment) AS MATERIALIZED (
  SELECT json_extract(i.value, '$.Dates'), json_extract(i.value, '$.TID1'),
    CASE
      WHEN json_extract(i.value, '$.Name1') IS NOT NULL
        THEN (SELECT ID2 FROM CldHoliday WHERE Name1 = json_extract(i.value, '$.Name1'))
      WHEN json_extract(i.value, '$.DayComment') IS NOT NULL THEN 1
    END,
    json_extract(i.value, '$.DayComment')
  FROM json_each(:Days) i
), Planned (Day1, TID1, ID2, Comment) AS MATERIALIZED (
  SELECT CAST(strftime('%j', d.value) AS INTEGER), i.TID1, i.ID2, i.Comment FROM Item i, json_each(i.Dates) d
)
UPDATE CldDay SET TID1 = p.TID1, ID2 = p.ID2, Comment = p.Comment
FROM Planned p
WHERE CldDay.ID1 = :ID1 AND CldDay.Year1 = :Year1 AND CldDay.Day1 = p.Day1
  AND (CldDay.TID1, CldDay.ID2, CldDay.Comment) IS NOT (p.TID1, p.ID2, p.Comment);
