-- procedure CldIUBook writes
-- parameter @ID1 int32
-- parameter @Expected text
-- parameter @Publisher text
-- parameter @Document text
-- parameter @Rules text
-- parameter @FromYear int32
-- Replaces the rule book of the currency ID1 as a whole; without Publisher, Document and Rules removes it. Expected is
-- the fingerprint of the book that the caller saw, '' when it saw none. Rules is a JSON list of
-- {"Name1", "TID1", "Expression", "Comment", "MovedName"}, the last two may be missing; whether the expressions make
-- sense is the caller's concern. FromYear is the first year that the book tells of; without it the book tells of all years.
-- Returns 0; 7 a value is missing, too long or of another shape, Rules is over a megabyte, or there are more than 10,000
-- rules; 3 unknown currency; 8 the book is another than expected.

SELECT :Publisher IS NULL AND :Document IS NULL AND :Rules IS NULL AS "@Removes";

SELECT 7 AS "@return"
WHERE :ID1 IS NULL OR :Expected IS NULL
  OR NOT :Removes AND (:Publisher IS NULL OR :Document IS NULL OR :Rules IS NULL
    OR FERROWIND_LENGTH(:Publisher) > 200 OR FERROWIND_LENGTH(:Document) > 4000 OR length(CAST(:Rules AS BLOB)) > 1048576
    OR instr(:Rules, char(0)) > 0 OR NOT json_valid(:Rules)
    -- SQLite cuts a text at this escape. What is left of doubled backslashes begins one.
    OR instr(replace(:Rules, '\\', ''), '\u0000') > 0)
  OR :FromYear IS NOT NULL AND (:Removes OR :FromYear NOT BETWEEN 1900 AND 3000);

SELECT 7 AS "@return" WHERE json_type(:Rules) <> 'array' OR json_array_length(:Rules) > 10000;

SELECT 7 AS "@return" FROM json_each(:Rules) WHERE type <> 'object' LIMIT 1;

-- Each member is one that a rule has, once, and of its type.
SELECT 7 AS "@return"
FROM json_each(:Rules) r, json_each(r.value) m
GROUP BY r.key
HAVING count(*) <> count(DISTINCT m.key)
  OR sum(CASE
    WHEN m.key = 'TID1' THEN m.type = 'integer' AND m.value BETWEEN 1 AND 4
    WHEN m.key IN ('Name1', 'Expression') THEN m.type = 'text' AND trim(m.value) <> '' AND FERROWIND_IS_TEXT(m.value)
      AND length(m.value) <= iif(m.key = 'Name1', 200, 4000)
    WHEN m.key IN ('Comment', 'MovedName') THEN m.type = 'null' OR m.type = 'text' AND FERROWIND_IS_TEXT(m.value)
      AND length(m.value) <= iif(m.key = 'MovedName', 200, 4000)
    ELSE 0
  END) <> count(*)
LIMIT 1;

-- What a rule cannot do without.
SELECT 7 AS "@return"
FROM json_each(:Rules)
WHERE json_type(value, '$.Name1') IS NULL OR json_type(value, '$.TID1') IS NULL OR json_type(value, '$.Expression') IS NULL
LIMIT 1;

SELECT 3 AS "@return" WHERE NOT EXISTS (SELECT 1 FROM DicCcy WHERE CcyID = :ID1 AND CcyType = 0);

SELECT 8 AS "@return" WHERE :Expected <> ifnull((SELECT Fingerprint FROM BookFingerprint WHERE ID1 = :ID1), '');

DELETE FROM CldRecurrence WHERE ID1 = :ID1;

DELETE FROM CldBook WHERE ID1 = :ID1 AND :Removes;

SELECT 0 AS "@return" WHERE :Removes;

INSERT INTO CldBook (ID1, Publisher, Document, FromYear) VALUES (:ID1, :Publisher, :Document, :FromYear)
ON CONFLICT (ID1) DO UPDATE
SET Publisher = excluded.Publisher, Document = excluded.Document, FromYear = excluded.FromYear;

INSERT INTO CldRecurrence (ID1, Position, Name1, TID1, Expression, Comment, MovedName)
SELECT :ID1, key + 1, json_extract(value, '$.Name1'), json_extract(value, '$.TID1'), json_extract(value, '$.Expression'),
  json_extract(value, '$.Comment'), json_extract(value, '$.MovedName')
FROM json_each(:Rules);
