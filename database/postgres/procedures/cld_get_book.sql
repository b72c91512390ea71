-- The rule book of the currency ID1, or all books: their heads, with the fingerprint that CldIUBook expects and
-- the first year that the book tells of (null: it tells of all), and their rules.
-- Returns 0; 3 unknown currency.
CREATE PROCEDURE CldGetBook(
  "ID1" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Books" refcursor DEFAULT 'Books',
  INOUT "Rules" refcursor DEFAULT 'Rules'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  currencies integer[];
  fingerprints text[];
BEGIN
  IF "ID1" IS NOT NULL AND NOT EXISTS (SELECT FROM DicCcy WHERE CcyID = "ID1" AND CcyType = 0) THEN
    "RETURN_VALUE" := 3;
    RETURN;
  END IF;

  -- Fingerprints come first: of a book that changes just now they are the old ones, and CldIUBook refuses them. And a
  -- function in a cursor would run when its rows are fetched, with the rights of the caller.
  SELECT array_agg(ID1), array_agg(BookFingerprint(ID1)) INTO currencies, fingerprints
  FROM CldBook WHERE ID1 = coalesce("ID1", ID1);
  OPEN "Books" FOR
    SELECT b.ID1 AS "ID1", b.Publisher AS "Publisher", b.Document AS "Document", f.Fingerprint AS "Fingerprint",
      b.FromYear AS "FromYear"
    FROM CldBook b JOIN unnest(currencies, fingerprints) AS f (ID1, Fingerprint) ON f.ID1 = b.ID1 ORDER BY b.ID1;
  OPEN "Rules" FOR
    SELECT ID1 AS "ID1", Position AS "Position", Name1 AS "Name1", TID1 AS "TID1", Expression AS "Expression",
      Comment AS "Comment", MovedName AS "MovedName"
    FROM CldRecurrence WHERE ID1 = coalesce("ID1", ID1) ORDER BY ID1, Position;
  "RETURN_VALUE" := 0;
END
$$;
