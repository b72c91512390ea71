-- procedure CldIUConvention writes
-- parameter @CcyID int32
-- parameter @OtherID int32
-- parameter @SpotDays int32
-- parameter @DollarStops int32
-- Says of the pair of the currencies CcyID and OtherID, in either order, that it settles SpotDays after the trade, 0 to 2; of the
-- currency CcyID, without OtherID, whether a holiday of the dollar stops the count, DollarStops 1 or 0. Without both takes back
-- what was said: what comes with the program holds again.
-- Returns 0; 7 a value is missing, out of range or not of such a convention; 3 unknown currency; 9 there is nothing to take back.

SELECT 7 AS "@return"
WHERE :CcyID IS NULL OR :OtherID = :CcyID
  OR :SpotDays IS NOT NULL AND (:SpotDays NOT BETWEEN 0 AND 2 OR :OtherID IS NULL)
  OR :DollarStops IS NOT NULL AND (:DollarStops NOT IN (0, 1) OR :OtherID IS NOT NULL);

SELECT min(:CcyID, ifnull(:OtherID, :CcyID)) AS "@First", max(:CcyID, ifnull(:OtherID, :CcyID)) AS "@Second";

SELECT 3 AS "@return" WHERE :First NOT IN (SELECT CcyID FROM DicCcy) OR :Second NOT IN (SELECT CcyID FROM DicCcy);

SELECT 9 AS "@return"
WHERE :SpotDays IS NULL AND :DollarStops IS NULL
  AND NOT EXISTS (SELECT 1 FROM CldConvention WHERE ID1 = :First AND OtherID = :Second);

DELETE FROM CldConvention
WHERE ID1 = :First AND OtherID = :Second AND :SpotDays IS NULL AND :DollarStops IS NULL;

INSERT INTO CldConvention (ID1, OtherID, SpotDays, DollarStops)
SELECT :First, :Second, :SpotDays, :DollarStops WHERE :SpotDays IS NOT NULL OR :DollarStops IS NOT NULL
ON CONFLICT (ID1, OtherID) DO UPDATE SET SpotDays = excluded.SpotDays, DollarStops = excluded.DollarStops;
