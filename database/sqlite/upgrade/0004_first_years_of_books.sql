-- From version 3 to version 4: a book says since when it holds.

-- Rebuilt, so that the table is to the letter what a new database has.
PRAGMA defer_foreign_keys = ON;
CREATE TABLE OldCldBook AS SELECT ID1, Publisher, Document FROM CldBook;
DROP VIEW BookFingerprint;
DROP TABLE CldBook;
CREATE TABLE CldBook (
  ID1 INTEGER PRIMARY KEY REFERENCES DicCcy (CcyID),
  Publisher TEXT NOT NULL CHECK (typeof(Publisher) = 'text'),
  Document TEXT NOT NULL CHECK (typeof(Document) = 'text'),
  FromYear INTEGER CHECK (FromYear BETWEEN 1900 AND 3000 AND typeof(FromYear) = 'integer' OR FromYear IS NULL)
);
INSERT INTO CldBook (ID1, Publisher, Document) SELECT ID1, Publisher, Document FROM OldCldBook;
DROP TABLE OldCldBook;

CREATE VIEW BookFingerprint AS
SELECT b.ID1, (
  SELECT FERROWIND_FINGERPRINT(b.Publisher, b.Document, b.FromYear, Name1, TID1, Expression, Comment, MovedName)
  FROM (
    SELECT 0 AS Position, NULL AS Name1, NULL AS TID1, NULL AS Expression, NULL AS Comment, NULL AS MovedName
    UNION ALL
    SELECT r.Position, r.Name1, r.TID1, r.Expression, r.Comment, r.MovedName FROM CldRecurrence r WHERE r.ID1 = b.ID1
    ORDER BY Position
  )
) AS Fingerprint
FROM CldBook b;
