-- With Del sets the removal mark of the rule ID2, nothing else given. Otherwise updates the rule ID2 or, without ID2,
-- inserts a rule: a weekday rule (type 2) has WD; one of type 3 or 4 has D1, MY and MD. The type of a rule stays.
-- Returns 0; 7 a value is missing, out of range or too long; 4 unknown rule; 2 a rule of that name exists; 10 a removed rule
-- has that name.
-- Whoever changes a rule locks the row of the built-in rule first, which itself never changes: so such calls run one
-- after the other, and of two that bring the same name the second one finds the first one's rule.
CREATE PROCEDURE CldIUCelebrate(
  "Name1" text DEFAULT NULL,
  "Comment" text DEFAULT NULL,
  "TID1" integer DEFAULT NULL,
  "WD" smallint DEFAULT NULL,
  "D1" date DEFAULT NULL,
  "MY" smallint DEFAULT NULL,
  "MD" smallint DEFAULT NULL,
  "ID2" integer DEFAULT NULL,
  "Del" smallint DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  rule CldHoliday;
  namesake CldHoliday;
  entry bigint;
  rows_changed bigint;
BEGIN
  "RETURN_VALUE" := 7;
  IF "Del" IS NOT NULL THEN
    IF "Del" NOT IN (2, 4) OR "ID2" IS NULL
      OR num_nonnulls("Name1", "Comment", "TID1", "WD", "D1", "MY", "MD") > 0
    THEN
      RETURN;
    END IF;
  ELSIF "Name1" IS NULL OR btrim("Name1", ' ') = '' OR "TID1" IS NULL OR "TID1" NOT BETWEEN 2 AND 4
    OR length("Name1") > 200 OR length("Comment") > 4000
  THEN
    RETURN;
  ELSIF "TID1" = 2 THEN
    IF "WD" IS NULL OR "WD" NOT BETWEEN 1 AND 7 OR num_nonnulls("D1", "MY", "MD") > 0 THEN
      RETURN;
    END IF;
  ELSIF "WD" IS NOT NULL OR "D1" IS NULL
    OR "MY" IS DISTINCT FROM extract(month FROM "D1") OR "MD" IS DISTINCT FROM extract(day FROM "D1")
  THEN
    RETURN;
  END IF;

  PERFORM FROM CldHoliday WHERE ID2 = 1 FOR NO KEY UPDATE;

  IF "ID2" IS NOT NULL THEN
    SELECT * INTO rule FROM CldHoliday WHERE ID2 = "ID2";
    IF NOT FOUND THEN
      "RETURN_VALUE" := 4;
      RETURN;
    END IF;
    -- The built-in rule of type 1 is neither changed nor removed, and no rule changes its type.
    IF rule.TID1 = 1 OR rule.TID1 <> "TID1" THEN
      RETURN;
    END IF;
  END IF;

  IF "Del" IS NULL THEN
    SELECT * INTO namesake FROM CldHoliday
    WHERE NameKey(Name1) = NameKey("Name1") AND ID2 IS DISTINCT FROM "ID2";
    IF FOUND THEN
      "RETURN_VALUE" := CASE namesake.Del WHEN 2 THEN 10 ELSE 2 END;
      RETURN;
    END IF;
  END IF;

  entry := BeginEntry('CldIUCelebrate', NULL, NULL,
    json_build_object('Name1', "Name1", 'Comment', "Comment", 'TID1', "TID1", 'WD', "WD", 'D1', "D1", 'MY', "MY", 'MD', "MD",
      'ID2', "ID2", 'Del', "Del"));
  IF "Del" IS NOT NULL THEN
    UPDATE CldHoliday SET Del = "Del" WHERE ID2 = "ID2";
  ELSIF "ID2" IS NOT NULL THEN
    UPDATE CldHoliday SET Name1 = "Name1", Comment = "Comment", WD = "WD", D1 = "D1", MY = "MY", MD = "MD"
    WHERE ID2 = "ID2";
  ELSE
    INSERT INTO CldHoliday (ID2, Name1, Comment, TID1, WD, D1, MY, MD)
    SELECT max(ID2) + 1, "Name1", "Comment", "TID1", "WD", "D1", "MY", "MD" FROM CldHoliday;
  END IF;
  GET DIAGNOSTICS rows_changed = ROW_COUNT;
  PERFORM EndEntry(entry, rows_changed);
  "RETURN_VALUE" := 0;
END
$$;
