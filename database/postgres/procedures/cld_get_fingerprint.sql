-- A text that changes with the days of the calendar: their rules' types, numbers and names, and their comments. Empty when
-- the calendar does not exist.
-- Returns 0; 7 a value is missing or out of range; 3 unknown currency.
CREATE PROCEDURE CldGetFingerprint(
  "ID1" integer DEFAULT NULL,
  "Year1" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Fingerprints" refcursor DEFAULT 'Fingerprints'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  fingerprint text;
BEGIN
  IF "ID1" IS NULL OR "Year1" IS NULL OR "Year1" NOT BETWEEN 1900 AND 3000 THEN
    "RETURN_VALUE" := 7;
    RETURN;
  END IF;
  IF NOT EXISTS (SELECT FROM DicCcy WHERE CcyID = "ID1" AND CcyType = 0) THEN
    "RETURN_VALUE" := 3;
    RETURN;
  END IF;

  -- A function in a cursor would run when its rows are fetched, with the rights of the caller.
  fingerprint := coalesce(CalendarFingerprint("ID1", "Year1"), '');
  OPEN "Fingerprints" FOR SELECT fingerprint AS "Fingerprint";
  "RETURN_VALUE" := 0;
END
$$;
