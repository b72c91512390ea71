-- procedure CldGetBook reads
-- parameter @ID1 int32
-- The rule book of the currency ID1, without it all books; empty record sets when there is none. FromYear is the first year
-- that the book tells of, NULL when it tells of all.
-- Returns 0; 3 unknown currency.

SELECT 3 AS "@return"
WHERE :ID1 IS NOT NULL AND NOT EXISTS (SELECT 1 FROM DicCcy WHERE CcyID = :ID1 AND CcyType = 0);

SELECT b.ID1, b.Publisher, b.Document, f.Fingerprint, b.FromYear
FROM CldBook b JOIN BookFingerprint f ON f.ID1 = b.ID1
WHERE :ID1 IS NULL OR b.ID1 = :ID1
ORDER BY b.ID1;

SELECT ID1, Position, Name1, TID1, Expression, Comment, MovedName
FROM CldRecurrence
WHERE :ID1 IS NULL OR ID1 = :ID1
ORDER BY ID1, Position;
