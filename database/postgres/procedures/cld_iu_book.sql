-- Replaces the rule book of the currency ID1, rules and all; without Publisher, Document and Rules removes it. Rules is a
-- JSON list of {"Name1": "Good Friday", "TID1": 4, "Expression": "easter-2"} with "Comment" and "MovedName" where there are
-- any; the callers know what an expression is. Expected is the book's fingerprint (CldGetBook), empty without a book.
-- FromYear is the first year that the book tells of; without it the book tells of all years.
-- Returns 0; 7 a value is missing or too long, or Rules is no such list, has more than 10,000 rules or is over a megabyte; 3
-- unknown currency; 8 the book is another than expected.
-- Whoever changes a book locks its currency first.
CREATE PROCEDURE CldIUBook(
  "ID1" integer DEFAULT NULL,
  "Expected" text DEFAULT NULL,
  "Publisher" text DEFAULT NULL,
  "Document" text DEFAULT NULL,
  "Rules" text DEFAULT NULL,
  "FromYear" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  is_removal constant boolean := num_nonnulls("Publisher", "Document", "Rules") = 0;
  rules CldRecurrence[] := '{}';
  entry bigint;
  row_count bigint;
  rows_changed bigint := 0;
BEGIN
  "RETURN_VALUE" := 7;
  IF "ID1" IS NULL OR "Expected" IS NULL OR num_nonnulls("Publisher", "Document", "Rules") IN (1, 2)
    OR "FromYear" IS NOT NULL AND (is_removal OR "FromYear" NOT BETWEEN 1900 AND 3000)
    OR length("Publisher") > 200 OR length("Document") > 4000 OR octet_length("Rules") > 1048576
  THEN
    RETURN;
  END IF;
  IF NOT is_removal THEN
    rules := BookRules("ID1", "Rules");
    IF rules IS NULL THEN
      RETURN;
    END IF;
  END IF;

  PERFORM FROM DicCcy WHERE CcyID = "ID1" AND CcyType = 0 FOR NO KEY UPDATE;
  IF NOT FOUND THEN
    "RETURN_VALUE" := 3;
    RETURN;
  END IF;
  IF "Expected" <> coalesce(BookFingerprint("ID1"), '') THEN
    "RETURN_VALUE" := 8;
    RETURN;
  END IF;

  entry := BeginEntry('CldIUBook', "ID1", NULL,
    json_build_object('ID1', "ID1", 'Expected', "Expected", 'Publisher', "Publisher", 'Document', "Document",
      'Rules', "Rules", 'FromYear', "FromYear"));
  DELETE FROM CldRecurrence WHERE ID1 = "ID1" AND Position > cardinality(rules);
  GET DIAGNOSTICS row_count = ROW_COUNT;
  rows_changed := rows_changed + row_count;
  IF is_removal THEN
    DELETE FROM CldBook WHERE ID1 = "ID1";
  ELSE
    INSERT INTO CldBook AS b (ID1, Publisher, Document, FromYear) VALUES ("ID1", "Publisher", "Document", "FromYear")
    ON CONFLICT (ID1) DO UPDATE SET
      Publisher = excluded.Publisher, Document = excluded.Document, FromYear = excluded.FromYear
    WHERE b IS DISTINCT FROM excluded;
  END IF;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  rows_changed := rows_changed + row_count;
  INSERT INTO CldRecurrence AS r SELECT * FROM unnest(rules)
  ON CONFLICT (ID1, Position) DO UPDATE SET
    Name1 = excluded.Name1, TID1 = excluded.TID1, Expression = excluded.Expression, Comment = excluded.Comment,
    MovedName = excluded.MovedName
  WHERE r IS DISTINCT FROM excluded;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  PERFORM EndEntry(entry, rows_changed + row_count);
  "RETURN_VALUE" := 0;
END
$$;
