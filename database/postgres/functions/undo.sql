-- The parts of CldUndo, which holds the locks on everything that they read and write.

-- Of each row that the entry changed and that was changed again, the first later change. Calendars are left out; the days of
-- one that the entry created, which have no row in it, are there.
CREATE OR REPLACE FUNCTION NextChanges(entry bigint) RETURNS SETOF CldHistoryRow
LANGUAGE sql STABLE
AS $$
  SELECT DISTINCT ON (TableName, ID1, Year1, Day1, ID2, Position) *
  FROM (
    SELECT later.* FROM CldHistoryRow mine JOIN CldHistoryRow later
      ON later.ID1 = mine.ID1 AND later.Year1 = mine.Year1 AND later.Day1 = mine.Day1
    WHERE mine.EntryID = entry AND later.EntryID > entry
    UNION ALL
    SELECT later.* FROM CldHistoryRow mine JOIN CldHistoryRow later
      ON later.ID1 = mine.ID1 AND later.Year1 = mine.Year1 AND later.Day1 IS NOT NULL
    WHERE mine.EntryID = entry AND later.EntryID > entry AND mine.TableName = 'CldCalendar' AND mine.OldRow IS NULL
    UNION ALL
    SELECT later.* FROM CldHistoryRow mine JOIN CldHistoryRow later ON later.ID2 = mine.ID2
    WHERE mine.EntryID = entry AND later.EntryID > entry
    UNION ALL
    SELECT later.* FROM CldHistoryRow mine JOIN CldHistoryRow later
      ON later.ID1 = mine.ID1 AND later.TableName = mine.TableName
        AND coalesce(later.Position, 0) = coalesce(mine.Position, 0)
    WHERE mine.EntryID = entry AND later.EntryID > entry AND mine.Year1 IS NULL AND later.Year1 IS NULL
  ) AS later
  ORDER BY TableName, ID1, Year1, Day1, ID2, Position, EntryID
$$;

-- Whether what the entry changed can be put back: all of it is as the entry left it, and fits to what there is besides.
CREATE OR REPLACE FUNCTION CanBeUndone(entry bigint) RETURNS boolean
LANGUAGE sql STABLE
AS $$
  SELECT NOT EXISTS (
    -- What the entry left is what the next change replaced. A column that is not in an old row did not exist then, and is null.
    SELECT FROM NextChanges(entry) AS next
    WHERE jsonb_strip_nulls(next.OldRow::jsonb) IS DISTINCT FROM jsonb_strip_nulls(ContentNow(next)::jsonb)
  ) AND NOT EXISTS (
    -- A calendar that came or went since.
    SELECT FROM CldHistoryRow later
      JOIN CldHistoryRow mine ON mine.EntryID = entry AND mine.ID1 = later.ID1 AND mine.Year1 = later.Year1
    WHERE later.EntryID > entry AND later.Day1 IS NULL
  ) AND NOT EXISTS (
    -- A day's rule that does not exist any more, or is another one under the same number.
    SELECT FROM CldHistoryRow mine
    WHERE mine.EntryID = entry AND mine.TableName = 'CldDay' AND mine.OldRow ->> 'ID2' IS NOT NULL
      AND (NOT EXISTS (SELECT FROM CldHoliday WHERE ID2 = (mine.OldRow ->> 'ID2')::integer)
          AND NOT EXISTS (SELECT FROM CldHistoryRow rule WHERE rule.EntryID = entry
                          AND rule.ID2 = (mine.OldRow ->> 'ID2')::integer AND rule.OldRow IS NOT NULL)
        OR EXISTS (SELECT FROM CldHistoryRow rule WHERE rule.EntryID > entry
                   AND rule.ID2 = (mine.OldRow ->> 'ID2')::integer AND rule.OldRow IS NULL))
  ) AND NOT EXISTS (
    SELECT FROM CldHistoryRow mine JOIN CldHoliday h
      ON NameKey(h.Name1) = NameKey(mine.OldRow ->> 'Name1') AND h.ID2 <> mine.ID2
    WHERE mine.EntryID = entry AND mine.TableName = 'CldHoliday'
  ) AND NOT EXISTS (
    SELECT FROM CldHistoryRow mine JOIN DicCcy c ON c.Ccy = mine.OldRow ->> 'Ccy' AND c.CcyID <> mine.ID1
    WHERE mine.EntryID = entry AND mine.TableName = 'DicCcy'
  ) AND NOT EXISTS (
    -- A currency that would not be what its calendars and its book need.
    SELECT FROM CldHistoryRow mine
    WHERE mine.EntryID = entry AND mine.TableName = 'DicCcy'
      AND NOT CurrencyCanBe(mine.ID1, (mine.OldRow ->> 'CcyType')::smallint, (mine.OldRow ->> 'LastDay')::date)
  ) AND NOT EXISTS (
    SELECT FROM CldHistoryRow mine LEFT JOIN DicCcy c ON c.CcyID = mine.ID1
    WHERE mine.EntryID = entry AND mine.OldRow IS NOT NULL
      AND (mine.TableName IN ('CldCalendar', 'CldBook') AND (c.CcyID IS NULL OR c.CcyType <> 0)
        OR mine.TableName = 'CldCalendar' AND mine.Year1 > extract(year FROM c.LastDay))
  ) AND NOT EXISTS (
    -- A convention whose currencies are not all there any more.
    SELECT FROM CldHistoryRow mine
    WHERE mine.EntryID = entry AND mine.TableName = 'CldConvention' AND mine.OldRow IS NOT NULL
      AND (SELECT count(*) FROM DicCcy WHERE CcyID IN (mine.ID1, mine.Position)) < CASE mine.Position WHEN mine.ID1 THEN 1 ELSE 2 END
  ) AND EXISTS (
    -- Something does change: a rule that the entry added stays when a day has it that stays.
    SELECT FROM CldHistoryRow mine
    WHERE mine.EntryID = entry
      AND NOT (mine.TableName = 'CldHoliday' AND mine.OldRow IS NULL
        AND EXISTS (SELECT FROM CldDay WHERE ID2 = mine.ID2))
  )
$$;

-- Puts everything back. How many rows that were is returned.
CREATE OR REPLACE FUNCTION PutBack(entry bigint) RETURNS bigint
LANGUAGE plpgsql
AS $$
DECLARE
  row_count bigint;
  changed bigint := 0;
BEGIN
  INSERT INTO DicCcy (CcyID, Ccy, CcyType, Name, LastDay)
  SELECT kept.ID1, old.*
  FROM CldHistoryRow kept, json_to_record(kept.OldRow) AS old ("Ccy" text, "CcyType" smallint, "Name" text, "LastDay" date)
  WHERE kept.EntryID = entry AND kept.TableName = 'DicCcy' AND kept.OldRow IS NOT NULL
  ON CONFLICT (CcyID) DO UPDATE SET
    Ccy = excluded.Ccy, CcyType = excluded.CcyType, Name = excluded.Name, LastDay = excluded.LastDay;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  changed := changed + row_count;

  INSERT INTO CldHoliday (ID2, Name1, Comment, TID1, D1, MY, MD, WD, Del)
  SELECT kept.ID2, old.*
  FROM CldHistoryRow kept, json_to_record(kept.OldRow) AS old ("Name1" text, "Comment" text, "TID1" integer, "D1" date,
    "MY" smallint, "MD" smallint, "WD" smallint, "Del" smallint)
  WHERE kept.EntryID = entry AND kept.TableName = 'CldHoliday' AND kept.OldRow IS NOT NULL
  ON CONFLICT (ID2) DO UPDATE SET
    Name1 = excluded.Name1, Comment = excluded.Comment, D1 = excluded.D1, MY = excluded.MY, MD = excluded.MD,
    WD = excluded.WD, Del = excluded.Del;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  changed := changed + row_count;

  INSERT INTO CldBook (ID1, Publisher, Document, FromYear)
  SELECT kept.ID1, old.*
  FROM CldHistoryRow kept, json_to_record(kept.OldRow) AS old ("Publisher" text, "Document" text, "FromYear" integer)
  WHERE kept.EntryID = entry AND kept.TableName = 'CldBook' AND kept.OldRow IS NOT NULL
  ON CONFLICT (ID1) DO UPDATE SET
    Publisher = excluded.Publisher, Document = excluded.Document, FromYear = excluded.FromYear;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  changed := changed + row_count;

  INSERT INTO CldRecurrence (ID1, Position, Name1, TID1, Expression, Comment, MovedName)
  SELECT kept.ID1, kept.Position, old.*
  FROM CldHistoryRow kept, json_to_record(kept.OldRow) AS old ("Name1" text, "TID1" integer, "Expression" text,
    "Comment" text, "MovedName" text)
  WHERE kept.EntryID = entry AND kept.TableName = 'CldRecurrence' AND kept.OldRow IS NOT NULL
  ON CONFLICT (ID1, Position) DO UPDATE SET
    Name1 = excluded.Name1, TID1 = excluded.TID1, Expression = excluded.Expression, Comment = excluded.Comment,
    MovedName = excluded.MovedName;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  changed := changed + row_count;

  INSERT INTO CldConvention (ID1, OtherID, SpotDays, DollarStops)
  SELECT kept.ID1, kept.Position, old.*
  FROM CldHistoryRow kept, json_to_record(kept.OldRow) AS old ("SpotDays" integer, "DollarStops" integer)
  WHERE kept.EntryID = entry AND kept.TableName = 'CldConvention' AND kept.OldRow IS NOT NULL
  ON CONFLICT (ID1, OtherID) DO UPDATE SET SpotDays = excluded.SpotDays, DollarStops = excluded.DollarStops;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  changed := changed + row_count;

  UPDATE CldDay d SET TID1 = (kept.OldRow ->> 'TID1')::integer, ID2 = (kept.OldRow ->> 'ID2')::integer,
    Comment = kept.OldRow ->> 'Comment'
  FROM CldHistoryRow kept
  WHERE kept.EntryID = entry AND kept.TableName = 'CldDay'
    AND d.ID1 = kept.ID1 AND d.Year1 = kept.Year1 AND d.Day1 = kept.Day1;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  changed := changed + row_count;

  INSERT INTO CldCalendar (ID1, Year1)
  SELECT kept.ID1, kept.Year1 FROM CldHistoryRow kept
  WHERE kept.EntryID = entry AND kept.TableName = 'CldCalendar' AND kept.OldRow IS NOT NULL;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  changed := changed + row_count;
  INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1, ID2, Comment)
  SELECT kept.ID1, kept.Year1, n, make_date(kept.Year1, 1, 1) + (n - 1), coalesce((day.OldRow ->> 'TID1')::integer, 1),
    (day.OldRow ->> 'ID2')::integer, day.OldRow ->> 'Comment'
  FROM CldHistoryRow kept
    CROSS JOIN LATERAL generate_series(1, make_date(kept.Year1 + 1, 1, 1) - make_date(kept.Year1, 1, 1)) AS n
    LEFT JOIN CldHistoryRow day ON day.EntryID = entry AND day.TableName = 'CldDay'
      AND day.ID1 = kept.ID1 AND day.Year1 = kept.Year1 AND day.Day1 = n
  WHERE kept.EntryID = entry AND kept.TableName = 'CldCalendar' AND kept.OldRow IS NOT NULL;
  GET DIAGNOSTICS row_count = ROW_COUNT;

  RETURN changed + row_count + TakeAway(entry);
END
$$;

-- Removes what the entry added, as far as nothing else uses it. How many rows that were is returned.
CREATE OR REPLACE FUNCTION TakeAway(entry bigint) RETURNS bigint
LANGUAGE plpgsql
AS $$
DECLARE
  row_count bigint;
  changed bigint := 0;
BEGIN
  DELETE FROM CldDay USING CldHistoryRow kept
  WHERE kept.EntryID = entry AND kept.TableName = 'CldCalendar' AND kept.OldRow IS NULL
    AND CldDay.ID1 = kept.ID1 AND CldDay.Year1 = kept.Year1;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  changed := changed + row_count;
  DELETE FROM CldCalendar USING CldHistoryRow kept
  WHERE kept.EntryID = entry AND kept.TableName = 'CldCalendar' AND kept.OldRow IS NULL
    AND CldCalendar.ID1 = kept.ID1 AND CldCalendar.Year1 = kept.Year1;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  changed := changed + row_count;

  DELETE FROM CldHoliday USING CldHistoryRow kept
  WHERE kept.EntryID = entry AND kept.TableName = 'CldHoliday' AND kept.OldRow IS NULL AND CldHoliday.ID2 = kept.ID2
    AND NOT EXISTS (SELECT FROM CldDay WHERE CldDay.ID2 = kept.ID2);
  GET DIAGNOSTICS row_count = ROW_COUNT;
  changed := changed + row_count;

  DELETE FROM CldRecurrence USING CldHistoryRow kept
  WHERE kept.EntryID = entry AND kept.TableName = 'CldRecurrence' AND kept.OldRow IS NULL
    AND CldRecurrence.ID1 = kept.ID1 AND CldRecurrence.Position = kept.Position;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  changed := changed + row_count;
  DELETE FROM CldBook USING CldHistoryRow kept
  WHERE kept.EntryID = entry AND kept.TableName = 'CldBook' AND kept.OldRow IS NULL AND CldBook.ID1 = kept.ID1;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  changed := changed + row_count;

  DELETE FROM CldConvention USING CldHistoryRow kept
  WHERE kept.EntryID = entry AND kept.TableName = 'CldConvention' AND kept.OldRow IS NULL
    AND CldConvention.ID1 = kept.ID1 AND CldConvention.OtherID = kept.Position;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  changed := changed + row_count;

  DELETE FROM DicCcy USING CldHistoryRow kept
  WHERE kept.EntryID = entry AND kept.TableName = 'DicCcy' AND kept.OldRow IS NULL AND DicCcy.CcyID = kept.ID1;
  GET DIAGNOSTICS row_count = ROW_COUNT;
  RETURN changed + row_count;
END
$$;
