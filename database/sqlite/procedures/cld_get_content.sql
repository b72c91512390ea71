-- procedure CldGetContent reads
-- All that reviews look at: every calendar with the days that have a rule as one text, the rules, the heads of the rule
-- books and their rules, the currencies.

SELECT k.ID1, k.Year1, (
  SELECT FERROWIND_DAYS(d.Day1, d.TID1, d.ID2, d.Comment)
  FROM CldDay d
  WHERE d.ID1 = k.ID1 AND d.Year1 = k.Year1 AND d.ID2 IS NOT NULL
) AS Days
FROM CldCalendar k
ORDER BY k.ID1, k.Year1;

SELECT ID2, Name1, TID1, MY, MD, Del FROM CldHoliday ORDER BY ID2;

SELECT ID1, Publisher, Document, FromYear FROM CldBook ORDER BY ID1;

SELECT ID1, Position, Name1, TID1, Expression, Comment, MovedName FROM CldRecurrence ORDER BY ID1, Position;

SELECT CcyID, Ccy, CcyType, Name, LastDay FROM DicCcy ORDER BY CcyID;
