-- Adds the currency CcyID, or changes the one that is there. CcyType is 0 for money and 1 for what else has a code; LastDay
-- is the last day as legal money, empty for a currency that lives.
-- Returns 0; 7 a value is missing, out of range or too long; 2 another currency has the code; 9 it has calendars or a book that it
-- could not have then: those of a year after LastDay's, or of what is no money.
-- Whoever changes the list of currencies locks the built-in rule's row first, so such calls run one after the other.
CREATE PROCEDURE CldIUCurrency(
  "CcyID" integer DEFAULT NULL,
  "Ccy" text DEFAULT NULL,
  "CcyType" smallint DEFAULT NULL,
  "Name" text DEFAULT NULL,
  "LastDay" date DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  entry bigint;
  rows_changed bigint;
BEGIN
  IF num_nulls("CcyID", "Ccy", "CcyType", "Name") > 0 OR "CcyID" NOT BETWEEN 1 AND 999 OR "Ccy" !~ '^[A-Z]{3}$'
    OR "CcyType" NOT IN (0, 1) OR btrim("Name", ' ') = '' OR length("Name") > 200 OR "LastDay" NOT BETWEEN '0001-01-01' AND '9999-12-31'
  THEN
    "RETURN_VALUE" := 7;
    RETURN;
  END IF;

  PERFORM FROM CldHoliday WHERE ID2 = 1 FOR NO KEY UPDATE;
  PERFORM FROM DicCcy WHERE CcyID = "CcyID" FOR UPDATE;
  IF EXISTS (SELECT FROM DicCcy WHERE Ccy = "Ccy" AND CcyID <> "CcyID") THEN
    "RETURN_VALUE" := 2;
    RETURN;
  END IF;
  IF NOT CurrencyCanBe("CcyID", "CcyType", "LastDay") THEN
    "RETURN_VALUE" := 9;
    RETURN;
  END IF;

  entry := BeginEntry('CldIUCurrency', NULL, NULL,
    json_build_object('CcyID', "CcyID", 'Ccy', "Ccy", 'CcyType', "CcyType", 'Name', "Name", 'LastDay', "LastDay"));
  INSERT INTO DicCcy (CcyID, Ccy, CcyType, Name, LastDay) VALUES ("CcyID", "Ccy", "CcyType", "Name", "LastDay")
  ON CONFLICT (CcyID) DO UPDATE SET
    Ccy = excluded.Ccy, CcyType = excluded.CcyType, Name = excluded.Name, LastDay = excluded.LastDay;
  GET DIAGNOSTICS rows_changed = ROW_COUNT;
  PERFORM EndEntry(entry, rows_changed);
  "RETURN_VALUE" := 0;
END
$$;
