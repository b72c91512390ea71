-- procedure CldIUCelebrate writes
-- parameter @Name1 text
-- parameter @Comment text
-- parameter @TID1 int32
-- parameter @WD int16
-- parameter @D1 date
-- parameter @MY int16
-- parameter @MD int16
-- parameter @ID2 int32
-- parameter @Del int16
-- With Del sets the removal mark of the rule ID2, nothing else given. Otherwise updates the rule ID2 or, without ID2,
-- inserts a rule: a weekday rule (type 2) has WD; one of type 3 or 4 has D1, MY and MD. The type of a rule stays.
-- Returns 0; 7 a value is missing, out of range or too long; 4 unknown rule; 2 a rule of that name exists; 10 a removed rule
-- has that name.

SELECT 7 AS "@return"
WHERE :Del IS NOT NULL
  AND (:Del NOT IN (2, 4) OR :ID2 IS NULL
    OR :Name1 IS NOT NULL OR :Comment IS NOT NULL OR :TID1 IS NOT NULL OR :WD IS NOT NULL OR :D1 IS NOT NULL
    OR :MY IS NOT NULL OR :MD IS NOT NULL);

SELECT 7 AS "@return"
WHERE :Del IS NULL
  AND (:Name1 IS NULL OR trim(:Name1) = '' OR :TID1 IS NULL OR :TID1 NOT BETWEEN 2 AND 4
    OR FERROWIND_LENGTH(:Name1) > 200 OR FERROWIND_LENGTH(:Comment) > 4000
    OR :TID1 = 2 AND (:WD IS NULL OR :WD NOT BETWEEN 1 AND 7 OR :D1 IS NOT NULL OR :MY IS NOT NULL OR :MD IS NOT NULL)
    OR :TID1 <> 2 AND (:WD IS NOT NULL OR :D1 IS NULL OR :MY IS NOT CAST(strftime('%m', :D1) AS INTEGER)
      OR :MD IS NOT CAST(strftime('%d', :D1) AS INTEGER)));

SELECT 4 AS "@return"
WHERE :ID2 IS NOT NULL AND NOT EXISTS (SELECT 1 FROM CldHoliday WHERE ID2 = :ID2);

-- The built-in rule of type 1 is neither changed nor removed, and no rule changes its type.
SELECT 7 AS "@return" FROM CldHoliday WHERE ID2 = :ID2 AND TID1 IS NOT ifnull(:TID1, nullif(TID1, 1));

UPDATE CldHoliday SET Del = :Del WHERE ID2 = :ID2 AND :Del IS NOT NULL;

SELECT 0 AS "@return" WHERE :Del IS NOT NULL;

SELECT CASE Del WHEN 2 THEN 10 ELSE 2 END AS "@return" FROM CldHoliday WHERE Name1 = :Name1 AND ID2 IS NOT :ID2;

UPDATE CldHoliday SET Name1 = :Name1, Comment = :Comment, WD = :WD, D1 = :D1, MY = :MY, MD = :MD
WHERE ID2 = :ID2;

INSERT INTO CldHoliday (Name1, Comment, TID1, WD, D1, MY, MD)
SELECT :Name1, :Comment, :TID1, :WD, :D1, :MY, :MD WHERE :ID2 IS NULL;
