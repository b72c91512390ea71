-- Makes the days that the plan names what they should be: gives them their rules, or makes them ordinary working days. Days
-- is a JSON list of objects; Dates are dates of the year, each once in the whole list, as "2028-04-14":
--   {"Name1": "Good Friday", "TID1": 4, "Comment": ..., "Dates": [...]}   that rule, which is added with the comment when
--                                                                       there is none of that name
--   {"TID1": 1, "Dates": [...]}                                         an ordinary working day
--   {"TID1": 1, "DayComment": "...", "Dates": [...]}                    an exception by the built-in rule
-- DayComment is the comment that the days get. A calendar that does not exist is created. Expected is the calendar's
-- fingerprint (CldGetFingerprint), empty without a calendar.
-- Returns 0; 7 a value is missing, out of range or too long, or Days is no such list; 3 unknown currency, or no legal money any more
-- when a new calendar's year begins; 8 the calendar is another than expected; 10 a removed rule has the name of one of the
-- plan; 2 a rule of another type has it.
-- Locks are taken in one order everywhere: the built-in rule's row for all rules, the currency's, the calendar's.
CREATE PROCEDURE CldApplyPlan(
  "ID1" integer DEFAULT NULL,
  "Year1" integer DEFAULT NULL,
  "Expected" text DEFAULT NULL,
  "Days" text DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  plan PlannedDay[];
  first_date date;
  last_day date;
  calendar_exists boolean;
  refusal integer;
  entry bigint;
  rows_changed bigint;
  day_count bigint;
BEGIN
  "RETURN_VALUE" := 7;
  IF num_nulls("ID1", "Year1", "Expected", "Days") > 0 OR "Year1" NOT BETWEEN 1900 AND 3000 THEN
    RETURN;
  END IF;
  first_date := make_date("Year1", 1, 1);
  plan := PlannedDays("Days", "Year1");
  IF plan IS NULL
    OR EXISTS (SELECT FROM unnest(plan) WHERE CASE WHEN Name1 IS NULL THEN TID1 <> 1 OR RuleComment IS NOT NULL
                                              ELSE btrim(Name1, ' ') = '' END
                 OR length(Name1) > 200 OR length(RuleComment) > 4000 OR length(DayComment) > 4000)
  THEN
    RETURN;
  END IF;

  PERFORM FROM CldHoliday WHERE ID2 = 1 FOR NO KEY UPDATE;

  -- A rule that is to be added takes its date or weekday from its days.
  IF EXISTS (
    SELECT FROM unnest(plan) AS p
    WHERE p.Name1 IS NOT NULL AND NOT EXISTS (SELECT FROM CldHoliday h WHERE NameKey(h.Name1) = NameKey(p.Name1))
    GROUP BY NameKey(p.Name1), p.TID1
    HAVING p.TID1 = 1 OR count(p.Day1) = 0
      OR p.TID1 = 2 AND count(DISTINCT extract(dow FROM first_date + (p.Day1 - 1))) > 1
  ) THEN
    RETURN;
  END IF;

  -- Whoever creates a calendar locks its currency, so that nobody else creates it meanwhile.
  SELECT LastDay INTO last_day FROM DicCcy WHERE CcyID = "ID1" AND CcyType = 0 FOR NO KEY UPDATE;
  IF NOT FOUND THEN
    "RETURN_VALUE" := 3;
    RETURN;
  END IF;
  PERFORM FROM CldCalendar WHERE ID1 = "ID1" AND Year1 = "Year1" FOR NO KEY UPDATE;
  calendar_exists := FOUND;
  IF NOT calendar_exists AND extract(year FROM last_day) < "Year1" THEN
    "RETURN_VALUE" := 3;
    RETURN;
  END IF;

  IF "Expected" <> coalesce(CalendarFingerprint("ID1", "Year1"), '') THEN
    "RETURN_VALUE" := 8;
    RETURN;
  END IF;

  SELECT CASE h.Del WHEN 2 THEN 10 ELSE 2 END INTO refusal
  FROM unnest(plan) AS p
    JOIN (
      SELECT DISTINCT ON (NameKey(Name1)) NameKey(Name1) AS key, TID1 FROM unnest(plan) ORDER BY NameKey(Name1), Item
    ) AS named ON named.key = NameKey(p.Name1)
    LEFT JOIN CldHoliday h ON NameKey(h.Name1) = named.key
  WHERE h.Del = 2 OR p.TID1 <> coalesce(h.TID1, named.TID1)
  ORDER BY p.Item LIMIT 1;
  IF FOUND THEN
    "RETURN_VALUE" := refusal;
    RETURN;
  END IF;

  entry := BeginEntry('CldApplyPlan', "ID1", "Year1",
    json_build_object('ID1', "ID1", 'Year1', "Year1", 'Expected', "Expected", 'Days', "Days"));

  INSERT INTO CldHoliday (ID2, Name1, Comment, TID1, WD, D1, MY, MD)
  SELECT (SELECT max(ID2) FROM CldHoliday) + row_number() OVER (ORDER BY n), Name1, RuleComment, TID1,
    CASE TID1 WHEN 2 THEN (extract(dow FROM day)::integer + 8 - FirstDay) % 7 + 1 END,
    CASE WHEN TID1 <> 2 THEN day END,
    CASE WHEN TID1 <> 2 THEN extract(month FROM day) END,
    CASE WHEN TID1 <> 2 THEN extract(day FROM day) END
  FROM CldSetting, (
    SELECT DISTINCT ON (NameKey(p.Name1)) p.n, p.Name1, p.TID1, p.RuleComment, first_date + (p.Day1 - 1) AS day
    FROM unnest(plan) WITH ORDINALITY AS p (Item, Name1, TID1, ID2, RuleComment, DayComment, Day1, n)
    WHERE p.Day1 IS NOT NULL AND p.Name1 IS NOT NULL
      AND NOT EXISTS (SELECT FROM CldHoliday h WHERE NameKey(h.Name1) = NameKey(p.Name1))
    ORDER BY NameKey(p.Name1), p.n
  ) AS missing;
  GET DIAGNOSTICS rows_changed = ROW_COUNT;

  SELECT array_agg(ROW(p.Item, p.Name1, p.TID1,
    CASE WHEN p.Name1 IS NOT NULL THEN h.ID2 WHEN p.DayComment IS NOT NULL THEN 1 END,
    p.RuleComment, p.DayComment, p.Day1)::PlannedDay)
  INTO plan
  FROM unnest(plan) AS p LEFT JOIN CldHoliday h ON NameKey(h.Name1) = NameKey(p.Name1);

  IF calendar_exists THEN
    UPDATE CldDay d SET TID1 = p.TID1, ID2 = p.ID2, Comment = p.DayComment
    FROM unnest(plan) AS p
    WHERE d.ID1 = "ID1" AND d.Year1 = "Year1" AND d.Day1 = p.Day1
      AND (d.TID1, d.ID2, d.Comment) IS DISTINCT FROM (p.TID1, p.ID2, p.DayComment);
  ELSE
    INSERT INTO CldCalendar (ID1, Year1) VALUES ("ID1", "Year1");
    rows_changed := rows_changed + 1;
    INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1, ID2, Comment)
    SELECT "ID1", "Year1", day, first_date + (day - 1), coalesce(p.TID1, 1), p.ID2, p.DayComment
    FROM generate_series(1, make_date("Year1" + 1, 1, 1) - first_date) AS day LEFT JOIN unnest(plan) AS p ON p.Day1 = day;
  END IF;
  GET DIAGNOSTICS day_count = ROW_COUNT;

  PERFORM EndEntry(entry, rows_changed + day_count);
  "RETURN_VALUE" := 0;
END
$$;
