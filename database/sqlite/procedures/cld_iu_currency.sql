-- procedure CldIUCurrency writes
-- parameter @CcyID int32
-- parameter @Ccy text
-- parameter @CcyType int16
-- parameter @Name text
-- parameter @LastDay date
-- Adds the currency CcyID or changes all of it. LastDay is its last day as legal money; without it, it is still.
-- Returns 0; 7 a value is missing, out of range or too long; 2 the code is another currency's; 9 it has calendars of a year after its
-- last day, or has calendars or a book and would be no money any more.

SELECT 7 AS "@return"
WHERE :CcyID IS NULL OR :CcyID NOT BETWEEN 1 AND 999
  OR :Ccy IS NULL OR length(:Ccy) <> 3 OR :Ccy NOT GLOB '[A-Z][A-Z][A-Z]'
  OR :CcyType IS NULL OR :CcyType NOT IN (0, 1)
  OR :Name IS NULL OR trim(:Name) = '' OR FERROWIND_LENGTH(:Name) > 200;

SELECT 2 AS "@return" WHERE EXISTS (SELECT 1 FROM DicCcy WHERE Ccy = :Ccy AND CcyID <> :CcyID);

SELECT 9 AS "@return"
WHERE EXISTS (SELECT 1 FROM CldCalendar WHERE ID1 = :CcyID AND (:CcyType <> 0 OR Year1 || '-01-01' > :LastDay))
  OR :CcyType <> 0 AND EXISTS (SELECT 1 FROM CldBook WHERE ID1 = :CcyID);

INSERT INTO DicCcy (CcyID, Ccy, CcyType, Name, LastDay) VALUES (:CcyID, :Ccy, :CcyType, :Name, :LastDay)
ON CONFLICT (CcyID) DO UPDATE
SET Ccy = excluded.Ccy, CcyType = excluded.CcyType, Name = excluded.Name, LastDay = excluded.LastDay;
