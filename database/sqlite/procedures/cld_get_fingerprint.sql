-- procedure CldGetFingerprint reads
-- parameter @ID1 int32
-- parameter @Year1 int32
-- What tells one content of a calendar from another; '' for a calendar that does not exist. Whoever plans on what a
-- calendar holds reads this first and the days then, so that a change in between is found out.
-- Returns 0; 7 a value is missing or out of range; 3 unknown currency.

SELECT 7 AS "@return" WHERE :ID1 IS NULL OR :Year1 IS NULL OR :Year1 NOT BETWEEN 1900 AND 3000;

SELECT 3 AS "@return" WHERE NOT EXISTS (SELECT 1 FROM DicCcy WHERE CcyID = :ID1 AND CcyType = 0);

SELECT ifnull((SELECT Fingerprint FROM CalendarFingerprint WHERE ID1 = :ID1 AND Year1 = :Year1), '') AS Fingerprint;
