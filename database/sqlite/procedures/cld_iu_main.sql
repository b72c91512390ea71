-- procedure CldIUMain writes
-- parameter @ID1 int32
-- parameter @Year1 int32
-- parameter @TID1 int32
-- parameter @ID2 int32
-- parameter @Day1 int32
-- parameter @ODate date
-- parameter @Comment text
-- Without TID1 creates the calendar of the currency ID1 for Year1, every day an ordinary working day. With TID1 gives
-- days of the calendar the rule ID2 of that type: the day Day1, or for a weekday rule (type 2) without Day1 every day
-- of the year on its weekday. What a day carried before, its comment included, is replaced.
-- Returns 0; 7 a value is missing, out of range or too long; 3 unknown currency, or one that gets no calendar of that year any more;
-- 4 unknown rule (a removed one is not assigned either); 5 unknown calendar; 6 the calendar exists already.

-- The first reason against the call, or 0.
SELECT CASE
  WHEN :ID1 IS NULL OR :Year1 IS NULL OR :Year1 NOT BETWEEN 1900 AND 3000 OR FERROWIND_LENGTH(:Comment) > 4000 THEN 7
  -- Only money has calendars: the windows list no other currency that a calendar could stand under.
  WHEN c.CcyType IS NOT 0 THEN 3

  -- A new calendar. A value that only an assignment takes means that its TID1 was forgotten.
  WHEN :TID1 IS NULL
    AND (:ID2 IS NOT NULL OR :Day1 IS NOT NULL OR :ODate IS NOT NULL OR :Comment IS NOT NULL) THEN 7
  WHEN :TID1 IS NULL AND k.ID1 IS NOT NULL THEN 6
  WHEN :TID1 IS NULL THEN iif(c.LastDay < :Year1 || '-01-01', 3, 0)

  -- An assignment. Only a weekday rule may leave out the day, and then the date as well; a dated rule needs both.
  WHEN :TID1 NOT BETWEEN 1 AND 4
    OR :ID2 IS NULL
    OR :Day1 IS NULL AND (:TID1 <> 2 OR :ODate IS NOT NULL)
    OR :ODate IS NULL AND :TID1 IN (3, 4)
    OR :Day1 NOT BETWEEN 1 AND CAST(strftime('%j', :Year1 || '-12-31') AS INTEGER)
    OR :ODate <> date(:Year1 || '-01-01', (:Day1 - 1) || ' days') THEN 7
  WHEN k.ID1 IS NULL THEN 5
  WHEN h.ID2 IS NULL OR h.Del = 2 THEN 4
  WHEN h.TID1 <> :TID1 THEN 7
  ELSE 0
END AS "@Refusal",
-- Of a weekday rule, 0 for Sunday to 6 for Saturday: its WD counts from the setting's first weekday.
CAST((h.WD - 1 + s.FirstDay - 1) % 7 AS TEXT) AS "@Weekday"
FROM CldSetting s
LEFT JOIN DicCcy c ON c.CcyID = :ID1
LEFT JOIN CldCalendar k ON k.ID1 = :ID1 AND k.Year1 = :Year1
LEFT JOIN CldHoliday h ON h.ID2 = :ID2;

SELECT ifnull(:Refusal, 7) AS "@return" WHERE :Refusal IS NOT 0;

-- The assignment; a calendar that is new has no days yet.
UPDATE CldDay SET TID1 = :TID1, ID2 = :ID2, Comment = :Comment
WHERE ID1 = :ID1 AND Year1 = :Year1 AND Day1 BETWEEN ifnull(:Day1, 1) AND ifnull(:Day1, 366)
  -- Exceptions and dated rules stand above weekday rules.
  AND (:Day1 IS NOT NULL OR strftime('%w', ODate) = :Weekday AND (TID1 = 2 OR ID2 IS NULL));

SELECT 0 AS "@return" WHERE :TID1 IS NOT NULL;

-- The new calendar.
INSERT INTO CldCalendar (ID1, Year1) VALUES (:ID1, :Year1);

INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1)
SELECT :ID1, :Year1, Day1, date(:Year1 || '-01-01', (Day1 - 1) || ' days'), 1
FROM YearDay
WHERE Day1 <= CAST(strftime('%j', :Year1 || '-12-31') AS INTEGER);
