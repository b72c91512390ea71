-- The triggers that keep what a call replaces and leaves, so that no procedure can forget it. A row that a statement leaves as it was is
-- not kept, and no call changes a row twice.

-- The arguments: the table's name as CldHistoryRow spells it; the columns there that its key goes into; its key; what a row
-- holds besides; and which of the removed rows are kept.
CREATE OR REPLACE FUNCTION KeepOldRows() RETURNS trigger
LANGUAGE plpgsql SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  entry bigint := EntryAtWork();
  kept integer;
BEGIN
  IF entry IS NULL THEN
    RETURN NULL;
  END IF;
  SELECT coalesce(max(RowNumber), 0) INTO kept FROM CldHistoryRow WHERE EntryID = entry;
  EXECUTE format(
    'INSERT INTO CldHistoryRow (EntryID, RowNumber, TableName, %s, OldRow, NewRow)'
    ' SELECT $1, $2 + row_number() OVER (ORDER BY %s), $3, %2$s, '
    || CASE TG_OP
      WHEN 'INSERT' THEN 'NULL, %s FROM new_rows'
      WHEN 'DELETE' THEN '%s, NULL FROM old_rows WHERE %s'
      ELSE 'old.content, new.content FROM (SELECT %2$s, %s AS content FROM old_rows) AS old'
        ' JOIN (SELECT %2$s, %3$s AS content FROM new_rows) AS new USING (%2$s)'
        ' WHERE old.content::text <> new.content::text' END,
    TG_ARGV[1], TG_ARGV[2], TG_ARGV[3], TG_ARGV[4])
  USING entry, kept, TG_ARGV[0];
  RETURN NULL;
END
$$;

-- The days that come with a new calendar are told by its row.
CREATE OR REPLACE FUNCTION KeepNewDays() RETURNS trigger
LANGUAGE plpgsql SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  UPDATE CldHistoryRow kept SET NewRow = ('{' || calendar.days || '}')::json
  FROM (
    SELECT ID1, Year1, string_agg(format('"%s" : %s', Day1, DayContent(TID1, ID2, Comment)), ', ' ORDER BY Day1) AS days
    FROM new_rows WHERE ID2 IS NOT NULL OR Comment IS NOT NULL GROUP BY ID1, Year1
  ) AS calendar
  WHERE kept.EntryID = EntryAtWork() AND kept.TableName = 'CldCalendar'
    AND kept.ID1 = calendar.ID1 AND kept.Year1 = calendar.Year1;
  RETURN NULL;
END
$$;
CREATE OR REPLACE TRIGGER KeepNewDays AFTER INSERT ON CldDay REFERENCING NEW TABLE AS new_rows FOR EACH STATEMENT
EXECUTE FUNCTION KeepNewDays();

-- Of a calendar nothing but its being there can change. Days come with their calendar, whose row tells of it, and go with
-- it; then those that were ordinary working days are not kept.
DO $$
DECLARE
  of record;
BEGIN
  FOR of IN VALUES
    ('DicCcy', 'ID1', 'CcyID', 'CurrencyContent(Ccy, CcyType, Name, LastDay)', 'true', '{INSERT,UPDATE,DELETE}'::text[]),
    ('CldHoliday', 'ID2', 'ID2', 'RuleContent(Name1, Comment, TID1, D1, MY, MD, WD, Del)', 'true', '{INSERT,UPDATE,DELETE}'),
    ('CldBook', 'ID1', 'ID1', 'BookContent(Publisher, Document, FromYear)', 'true', '{INSERT,UPDATE,DELETE}'),
    ('CldRecurrence', 'ID1, Position', 'ID1, Position', 'RecurrenceContent(Name1, TID1, Expression, Comment, MovedName)',
      'true', '{INSERT,UPDATE,DELETE}'),
    ('CldConvention', 'ID1, Position', 'ID1, OtherID', 'ConventionContent(SpotDays, DollarStops)', 'true', '{INSERT,UPDATE,DELETE}'),
    ('CldCalendar', 'ID1, Year1', 'ID1, Year1', 'json_build_object()', 'true', '{INSERT,DELETE}'),
    ('CldDay', 'ID1, Year1, Day1', 'ID1, Year1, Day1', 'DayContent(TID1, ID2, Comment)',
      'ID2 IS NOT NULL OR Comment IS NOT NULL', '{UPDATE,DELETE}')
  LOOP
    FOR i IN 1 .. cardinality(of.column6) LOOP
      EXECUTE format(
        'CREATE OR REPLACE TRIGGER KeepOn%s AFTER %s ON %s REFERENCING %s FOR EACH STATEMENT'
        ' EXECUTE FUNCTION KeepOldRows(%L, %L, %L, %L, %L)',
        initcap(of.column6[i]), of.column6[i], of.column1,
        CASE of.column6[i] WHEN 'INSERT' THEN 'NEW TABLE AS new_rows' WHEN 'DELETE' THEN 'OLD TABLE AS old_rows'
          ELSE 'OLD TABLE AS old_rows NEW TABLE AS new_rows' END,
        of.column1, of.column2, of.column3, of.column4, of.column5);
    END LOOP;
  END LOOP;
END
$$;
