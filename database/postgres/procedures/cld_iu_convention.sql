-- Says of the pair of the currencies CcyID and OtherID, in either order, that it settles SpotDays after the trade, 0 to 2; of the
-- currency CcyID, without OtherID, whether a holiday of the dollar stops the count, DollarStops 1 or 0. Without both takes back
-- what was said: what comes with the program holds again.
-- Returns 0; 7 a value is missing, out of range or not of such a convention; 3 unknown currency; 9 there is nothing to take back.
-- Locks as those who change the list of currencies do.
CREATE PROCEDURE CldIUConvention(
  "CcyID" integer DEFAULT NULL,
  "OtherID" integer DEFAULT NULL,
  "SpotDays" integer DEFAULT NULL,
  "DollarStops" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  removes boolean := "SpotDays" IS NULL AND "DollarStops" IS NULL;
  first_id integer := least("CcyID", "OtherID");
  second_id integer := greatest("CcyID", "OtherID");
  entry bigint;
  rows_changed bigint;
BEGIN
  IF "CcyID" IS NULL OR "OtherID" = "CcyID"
    OR "SpotDays" IS NOT NULL AND ("SpotDays" NOT BETWEEN 0 AND 2 OR "OtherID" IS NULL)
    OR "DollarStops" IS NOT NULL AND ("DollarStops" NOT IN (0, 1) OR "OtherID" IS NOT NULL)
  THEN
    "RETURN_VALUE" := 7;
    RETURN;
  END IF;

  PERFORM FROM CldHoliday WHERE ID2 = 1 FOR NO KEY UPDATE;
  IF NOT EXISTS (SELECT FROM DicCcy WHERE CcyID = first_id) OR NOT EXISTS (SELECT FROM DicCcy WHERE CcyID = second_id) THEN
    "RETURN_VALUE" := 3;
    RETURN;
  END IF;
  IF removes AND NOT EXISTS (SELECT FROM CldConvention WHERE ID1 = first_id AND OtherID = second_id) THEN
    "RETURN_VALUE" := 9;
    RETURN;
  END IF;

  entry := BeginEntry('CldIUConvention', NULL, NULL,
    json_build_object('CcyID', "CcyID", 'OtherID', "OtherID", 'SpotDays', "SpotDays", 'DollarStops', "DollarStops"));
  IF removes THEN
    DELETE FROM CldConvention WHERE ID1 = first_id AND OtherID = second_id;
  ELSE
    INSERT INTO CldConvention (ID1, OtherID, SpotDays, DollarStops) VALUES (first_id, second_id, "SpotDays", "DollarStops")
    ON CONFLICT (ID1, OtherID) DO UPDATE SET SpotDays = excluded.SpotDays, DollarStops = excluded.DollarStops;
  END IF;
  GET DIAGNOSTICS rows_changed = ROW_COUNT;
  PERFORM EndEntry(entry, rows_changed);
  "RETURN_VALUE" := 0;
END
$$;
