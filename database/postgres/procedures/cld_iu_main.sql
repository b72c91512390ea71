-- Without TID1 creates the calendar of the currency ID1 for Year1, every day an ordinary working day. With TID1 gives
-- days of the calendar the rule ID2 of that type: the day Day1, or for a weekday rule (type 2) without Day1 every day
-- of the year on its weekday. What a day carried before, its comment included, is replaced.
-- Returns 0; 7 a value is missing, out of range or too long; 3 unknown currency, or for a new calendar one that is no legal money any
-- more when its year begins; 4 unknown rule (a removed one is not assigned either); 5 unknown calendar; 6 the calendar
-- exists already.
-- Whoever changes a calendar's days locks the calendar's row first, and whoever creates a calendar its currency's before, so
-- that two calls for one calendar run one after the other and never wait for each other in turns.
CREATE PROCEDURE CldIUMain(
  "ID1" integer DEFAULT NULL,
  "Year1" integer DEFAULT NULL,
  "TID1" integer DEFAULT NULL,
  "ID2" integer DEFAULT NULL,
  "Day1" integer DEFAULT NULL,
  "ODate" date DEFAULT NULL,
  "Comment" text DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  calendar_exists boolean;
  first_date date;
  last_day date;
  rule CldHoliday;
  weekday integer;
  entry bigint;
  rows_changed bigint;
BEGIN
  "RETURN_VALUE" := 7;
  IF "ID1" IS NULL OR "Year1" IS NULL OR "Year1" NOT BETWEEN 1900 AND 3000
    OR length("Comment") > 4000
  THEN
    RETURN;
  END IF;
  first_date := make_date("Year1", 1, 1);

  -- Only money has calendars: the windows list no other currency that a calendar could stand under.
  IF "TID1" IS NULL THEN
    SELECT LastDay INTO last_day FROM DicCcy WHERE CcyID = "ID1" AND CcyType = 0 FOR NO KEY UPDATE;
  ELSE
    PERFORM FROM DicCcy WHERE CcyID = "ID1" AND CcyType = 0;
  END IF;
  IF NOT FOUND THEN
    "RETURN_VALUE" := 3;
    RETURN;
  END IF;

  PERFORM FROM CldCalendar WHERE ID1 = "ID1" AND Year1 = "Year1" FOR NO KEY UPDATE;
  calendar_exists := FOUND;

  IF "TID1" IS NULL THEN
    -- A value that only an assignment takes means that its TID1 was forgotten.
    IF "ID2" IS NOT NULL OR "Day1" IS NOT NULL OR "ODate" IS NOT NULL OR "Comment" IS NOT NULL THEN
      RETURN;
    END IF;
    IF calendar_exists THEN
      "RETURN_VALUE" := 6;
      RETURN;
    END IF;
    IF extract(year FROM last_day) < "Year1" THEN
      "RETURN_VALUE" := 3;
      RETURN;
    END IF;
  ELSE
    -- An assignment. Only a weekday rule may leave out the day, and then the date as well; a dated rule needs both.
    IF "TID1" NOT BETWEEN 1 AND 4
      OR "ID2" IS NULL
      OR "Day1" IS NULL AND ("TID1" <> 2 OR "ODate" IS NOT NULL)
      OR "ODate" IS NULL AND "TID1" IN (3, 4)
      OR "Day1" NOT BETWEEN 1 AND make_date("Year1" + 1, 1, 1) - first_date
    THEN
      RETURN;
    END IF;
    IF "ODate" <> first_date + ("Day1" - 1) THEN
      RETURN;
    END IF;

    IF NOT calendar_exists THEN
      "RETURN_VALUE" := 5;
      RETURN;
    END IF;

    -- Nobody removes or changes the rule meanwhile; whoever does so now is waited for. The built-in rule is never removed,
    -- and its row is what others lock who then wait for calendars.
    IF "ID2" = 1 THEN
      SELECT * INTO rule FROM CldHoliday WHERE ID2 = 1 FOR KEY SHARE;
    ELSE
      SELECT * INTO rule FROM CldHoliday WHERE ID2 = "ID2" AND Del IS DISTINCT FROM 2 FOR SHARE;
    END IF;
    IF NOT FOUND THEN
      "RETURN_VALUE" := 4;
      RETURN;
    END IF;
    IF rule.TID1 <> "TID1" THEN
      RETURN;
    END IF;
  END IF;

  entry := BeginEntry('CldIUMain', "ID1", "Year1",
    json_build_object('ID1', "ID1", 'Year1', "Year1", 'TID1', "TID1", 'ID2', "ID2", 'Day1', "Day1", 'ODate', "ODate",
      'Comment', "Comment"));
  IF "TID1" IS NULL THEN
    INSERT INTO CldCalendar (ID1, Year1) VALUES ("ID1", "Year1");
    INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1)
    SELECT "ID1", "Year1", day, first_date + (day - 1), 1
    FROM generate_series(1, make_date("Year1" + 1, 1, 1) - first_date) AS day;
  ELSIF "Day1" IS NOT NULL THEN
    UPDATE CldDay SET TID1 = "TID1", ID2 = "ID2", Comment = "Comment"
    WHERE ID1 = "ID1" AND Year1 = "Year1" AND Day1 = "Day1";
  ELSE
    -- 0 for Sunday to 6 for Saturday: the rule's WD counts from the setting's first weekday.
    SELECT (rule.WD - 1 + FirstDay - 1) % 7 INTO weekday FROM CldSetting;
    UPDATE CldDay SET TID1 = "TID1", ID2 = "ID2", Comment = "Comment"
    WHERE ID1 = "ID1" AND Year1 = "Year1" AND extract(dow FROM ODate) = weekday
      -- Exceptions and dated rules stand above weekday rules.
      AND (TID1 = 2 OR ID2 IS NULL);
  END IF;
  GET DIAGNOSTICS rows_changed = ROW_COUNT;
  -- A new calendar is a row beside its days.
  PERFORM EndEntry(entry, rows_changed + CASE WHEN "TID1" IS NULL THEN 1 ELSE 0 END);
  "RETURN_VALUE" := 0;
END
$$;
