-- A calendar database as version 7 of the schema had it, with a rule and a calendar that two calls have made, for a database that
-- is empty; run in one transaction. What upgrades from there are tested on; it stays as it is.

-- The roles of a calendar database, which all databases of a server share. Nobody logs in as one of them: an operator's
-- login is a member of ferrowind_operator, a report's of ferrowind_reader. Everything belongs to ferrowind_owner; whoever
-- creates the database becomes its member, to check and change it.

DO $$
DECLARE
  wanted text;
BEGIN
  FOREACH wanted IN ARRAY ARRAY['ferrowind_owner', 'ferrowind_operator', 'ferrowind_reader'] LOOP
    IF NOT EXISTS (SELECT FROM pg_roles WHERE rolname = wanted) THEN
      BEGIN
        EXECUTE format('CREATE ROLE %I NOLOGIN', wanted);
      EXCEPTION WHEN duplicate_object OR unique_violation THEN
        NULL;  -- Another database was being created at the same time.
      END;
    END IF;
  END LOOP;
  -- Whoever creates a role is, on servers from version 16, a member that may only make others members.
  IF NOT pg_has_role('ferrowind_owner', CASE WHEN current_setting('server_version_num')::integer >= 160000
                                             THEN 'SET' ELSE 'MEMBER' END) THEN
    BEGIN
      EXECUTE format('GRANT ferrowind_owner TO %I', current_user);
    EXCEPTION WHEN insufficient_privilege THEN
      RAISE insufficient_privilege USING MESSAGE = format(
        '%I is no member of ferrowind_owner, and making it one takes a superuser: GRANT ferrowind_owner TO %1$I',
        current_user);
    END;
  END IF;
END $$;

-- The tables of a calendar database and the constraints that make a wrong row impossible. A column's type is the type
-- that readers get: smallint a 16-bit and integer a 32-bit number, text, date. Everything is in one schema.

CREATE SCHEMA ferrowind AUTHORIZATION ferrowind_owner;
SET LOCAL ROLE ferrowind_owner;
SET LOCAL search_path = ferrowind, pg_temp;

-- One row: how often what follows here, a procedure or a right has changed. A change comes with a script in upgrade/ that
-- brings older databases to the same state.
CREATE TABLE SchemaVersion (
  Version integer NOT NULL CHECK (Version >= 1)
);
CREATE UNIQUE INDEX SchemaVersionHasOneRow ON SchemaVersion ((1));
INSERT INTO SchemaVersion (Version) VALUES (7);

-- LastDay: the last day as legal money; null for a currency that lives.
CREATE TABLE DicCcy (
  CcyID integer PRIMARY KEY,
  Ccy text COLLATE "C" NOT NULL UNIQUE,
  CcyType smallint NOT NULL CHECK (CcyType IN (0, 1)),
  Name text NOT NULL,
  LastDay date CHECK (LastDay BETWEEN '0001-01-01' AND '9999-12-31')
);

CREATE TABLE CldHolidayType (
  TID1 integer PRIMARY KEY,
  Description1 text NOT NULL UNIQUE
);

-- What two names have in common that differ in letter case and outer blanks alone, short enough for an index whatever the
-- name's length. The letters are those of U+0041 to U+052F that have a small form, each above that form: the order of the
-- server's locale must not matter, so lower() is for the basic Latin letters only.
CREATE FUNCTION NameKey(name text) RETURNS bytea
LANGUAGE sql IMMUTABLE STRICT PARALLEL SAFE
AS $$
  SELECT sha256(convert_to(
    CASE WHEN octet_length(name) = length(name) THEN lower(btrim(name, ' ') COLLATE "C")
      ELSE translate(lower(btrim(name, ' ') COLLATE "C"),
        'µÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞĀĂĄĆĈĊČĎĐĒĔĖĘĚĜĞĠĢĤĦĨĪĬĮĲĴĶĹĻĽĿŁŃ'
        'ŅŇŊŌŎŐŒŔŖŘŚŜŞŠŢŤŦŨŪŬŮŰŲŴŶŸŹŻŽſƁƂƄƆƇƉƊƋƎƏƐƑƓƔƖƗƘƜƝƟƠƢƤƦƧƩƬƮƯƱƲƳƵƷ'
        'ƸƼǄǅǇǈǊǋǍǏǑǓǕǗǙǛǞǠǢǤǦǨǪǬǮǱǲǴǶǷǸǺǼǾȀȂȄȆȈȊȌȎȐȒȔȖȘȚȜȞȠȢȤȦȨȪȬȮȰȲȺȻȽȾ'
        'ɁɃɄɅɆɈɊɌɎͅͰͲͶͿΆΈΉΊΌΎΏΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩΪΫςϏϐϑϕϖϘϚϜϞϠϢϤϦϨϪϬ'
        'ϮϰϱϴϵϷϹϺϽϾϿЀЁЂЃЄЅІЇЈЉЊЋЌЍЎЏАБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯѠѢѤѦѨ'
        'ѪѬѮѰѲѴѶѸѺѼѾҀҊҌҎҐҒҔҖҘҚҜҞҠҢҤҦҨҪҬҮҰҲҴҶҸҺҼҾӀӁӃӅӇӉӋӍӐӒӔӖӘӚӜӞӠӢӤӦӨӪӬӮӰ'
        'ӲӴӶӸӺӼӾԀԂԄԆԈԊԌԎԐԒԔԖԘԚԜԞԠԢԤԦԨԪԬԮ',
        'μàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþāăąćĉċčďđēĕėęěĝğġģĥħĩīĭįĳĵķĺļľŀłń'
        'ņňŋōŏőœŕŗřśŝşšţťŧũūŭůűųŵŷÿźżžsɓƃƅɔƈɖɗƌǝəɛƒɠɣɩɨƙɯɲɵơƣƥʀƨʃƭʈưʊʋƴƶʒ'
        'ƹƽǆǆǉǉǌǌǎǐǒǔǖǘǚǜǟǡǣǥǧǩǫǭǯǳǳǵƕƿǹǻǽǿȁȃȅȇȉȋȍȏȑȓȕȗșțȝȟƞȣȥȧȩȫȭȯȱȳⱥȼƚⱦ'
        'ɂƀʉʌɇɉɋɍɏιͱͳͷϳάέήίόύώαβγδεζηθικλμνξοπρστυφχψωϊϋσϗβθφπϙϛϝϟϡϣϥϧϩϫϭ'
        'ϯκρθεϸϲϻͻͼͽѐёђѓєѕіїјљњћќѝўџабвгдежзийклмнопрстуфхцчшщъыьэюяѡѣѥѧѩ'
        'ѫѭѯѱѳѵѷѹѻѽѿҁҋҍҏґғҕҗҙқҝҟҡңҥҧҩҫҭүұҳҵҷҹһҽҿӏӂӄӆӈӊӌӎӑӓӕӗәӛӝӟӡӣӥӧөӫӭӯӱ'
        'ӳӵӷӹӻӽӿԁԃԅԇԉԋԍԏԑԓԕԗԙԛԝԟԡԣԥԧԩԫԭԯ')
    END, 'UTF8'))
$$;

-- A weekday rule (type 2) has WD alone; every other rule has a date, whose month and day stand in MY and MD as well.
-- Rule 1 is the one rule of type 1, has neither, and cannot be removed. Del: 2 removed, 4 restored.
CREATE TABLE CldHoliday (
  ID2 integer PRIMARY KEY CHECK (ID2 >= 1),
  Name1 text NOT NULL CHECK (btrim(Name1, ' ') <> ''),
  Comment text,
  TID1 integer NOT NULL REFERENCES CldHolidayType (TID1),
  D1 date CHECK (D1 BETWEEN '0001-01-01' AND '9999-12-31'),
  MY smallint CHECK (MY IS NOT DISTINCT FROM extract(month FROM D1)),
  MD smallint CHECK (MD IS NOT DISTINCT FROM extract(day FROM D1)),
  WD smallint CHECK (WD BETWEEN 1 AND 7),
  Del smallint CHECK (Del IS NULL OR Del IN (2, 4) AND ID2 <> 1),
  UNIQUE (ID2, TID1),
  CHECK ((ID2 = 1) = (TID1 = 1)),
  CHECK ((TID1 = 2) = (WD IS NOT NULL)),
  CHECK ((TID1 IN (1, 2)) = (D1 IS NULL))
);
CREATE UNIQUE INDEX CldHolidayNamesDiffer ON CldHoliday (NameKey(Name1));

CREATE TABLE CldCalendar (
  ID1 integer NOT NULL REFERENCES DicCcy (CcyID),
  Year1 integer NOT NULL CHECK (Year1 BETWEEN 1900 AND 3000),
  PRIMARY KEY (ID1, Year1)
);

-- Day1 counts the days of the year and decides ODate. A day without a rule is an ordinary working day.
CREATE TABLE CldDay (
  ID1 integer NOT NULL,
  Year1 integer NOT NULL,
  Day1 integer NOT NULL CHECK (Day1 BETWEEN 1 AND 366),
  ODate date NOT NULL,
  TID1 integer NOT NULL REFERENCES CldHolidayType (TID1),
  ID2 integer,
  Comment text,
  PRIMARY KEY (ID1, Year1, Day1),
  FOREIGN KEY (ID1, Year1) REFERENCES CldCalendar (ID1, Year1),
  FOREIGN KEY (ID2, TID1) REFERENCES CldHoliday (ID2, TID1),
  CHECK (ODate = make_date(Year1, 1, 1) + (Day1 - 1) AND extract(year FROM ODate) = Year1),
  CHECK (ID2 IS NOT NULL OR TID1 = 1)
);
CREATE INDEX CldDayByDate ON CldDay (ODate);
-- Which days have a rule, when a rule is to go.
CREATE INDEX CldDayByRule ON CldDay (ID2) WHERE ID2 IS NOT NULL;

-- The rule book of a currency: which document its calendars follow, the first year that it tells of (null: it tells of all),
-- and the rules that make a year's days, in the order of the book. The grammar of an expression is the callers' business.
CREATE TABLE CldBook (
  ID1 integer PRIMARY KEY REFERENCES DicCcy (CcyID),
  Publisher text NOT NULL,
  Document text NOT NULL,
  FromYear integer CHECK (FromYear BETWEEN 1900 AND 3000)
);

CREATE TABLE CldRecurrence (
  ID1 integer NOT NULL REFERENCES CldBook (ID1),
  Position integer NOT NULL CHECK (Position >= 1),
  Name1 text NOT NULL CHECK (btrim(Name1, ' ') <> ''),
  TID1 integer NOT NULL REFERENCES CldHolidayType (TID1),
  Expression text NOT NULL CHECK (btrim(Expression, ' ') <> ''),
  Comment text,
  MovedName text,
  PRIMARY KEY (ID1, Position)
);

-- What an administrator says of the market's conventions beside those that are delivered: of a pair of currencies, whose numbers
-- ascend, the days from trade to spot; of one currency, OtherID being itself, whether a holiday of the dollar stops the count.
CREATE TABLE CldConvention (
  ID1 integer NOT NULL REFERENCES DicCcy (CcyID),
  OtherID integer NOT NULL REFERENCES DicCcy (CcyID),
  SpotDays integer CHECK (SpotDays BETWEEN 0 AND 2),
  DollarStops integer CHECK (DollarStops IN (0, 1)),
  PRIMARY KEY (ID1, OtherID),
  CHECK (ID1 <= OtherID),
  CHECK ((SpotDays IS NULL) = (ID1 = OtherID) AND (DollarStops IS NULL) = (ID1 <> OtherID))
);

-- One row. FirstDay: the weekday that a week begins with, 1 Sunday to 7 Saturday.
CREATE TABLE CldSetting (
  FirstDay integer NOT NULL CHECK (FirstDay BETWEEN 1 AND 7)
);
CREATE UNIQUE INDEX CldSettingHasOneRow ON CldSetting ((1));

-- An entry for every call of a procedure that changes something and returned 0, added by the procedure itself, so in the
-- call's own transaction: when, which login, what was called with which values (every parameter by name, null for none), and
-- how many rows of other tables it added or changed. ID1 and Year1 name the calendar that the call was for, when it was for
-- one. Nobody but the owner has a right on it, and only procedures act as the owner: entries are only ever added. (A call
-- adds its entry first, because the rows below refer to it, and counts its rows at its end; nobody else sees it before.)
-- Entries that are for the same calendar, those that are for the same rule book and those that are for neither are chained:
-- ChainPosition counts them, Previous is the Hash of the one before, empty for none, and Hash is over all of the entry
-- and its rows (functions/history_entry.sql).
CREATE TABLE CldHistory (
  EntryID bigint GENERATED BY DEFAULT AS IDENTITY PRIMARY KEY,
  Moment timestamptz(3) NOT NULL DEFAULT clock_timestamp(),
  UserName text NOT NULL DEFAULT session_user,
  ProcedureName text NOT NULL,
  ID1 integer,
  Year1 integer,
  Parameters json NOT NULL,
  ReturnValue integer NOT NULL,
  RowsChanged bigint NOT NULL CHECK (RowsChanged >= 0),
  ChainPosition integer NOT NULL CHECK (ChainPosition >= 1),
  Previous text COLLATE "C" NOT NULL,
  Hash text COLLATE "C" NOT NULL
);
CREATE UNIQUE INDEX CldHistoryByChain ON CldHistory (coalesce(ID1, 0), coalesce(Year1, 0), ChainPosition);

-- No row in a database whose every change kept its rows. In one that is older: its last entry without them, 0 for none, and
-- the moment from which on rows are kept.
CREATE TABLE CldHistoryStart (
  EntryID bigint NOT NULL CHECK (EntryID >= 0),
  Moment timestamptz(3) NOT NULL
);
CREATE UNIQUE INDEX CldHistoryStartHasOneRow ON CldHistoryStart ((1));

-- What the rows that a call changed were before it, one for each; triggers keep them (functions/kept_rows.sql). The key of
-- the row stands in the columns ID1 (also a currency's CcyID) to Position (also a convention's OtherID), and OldRow is a JSON object of its other columns;
-- null when there was no such row. NewRow is what the call left, in the same form. The days of a calendar that the call
-- created have none: NewRow of the calendar has those of them with a rule or a comment, by number. Of one that it removed
-- those that had neither a rule nor a comment have none: they were ordinary working days.
CREATE TABLE CldHistoryRow (
  EntryID bigint NOT NULL REFERENCES CldHistory (EntryID),
  RowNumber integer NOT NULL CHECK (RowNumber >= 1),
  TableName text COLLATE "C" NOT NULL,
  ID1 integer,
  Year1 integer,
  Day1 integer,
  ID2 integer,
  Position integer,
  OldRow json,
  NewRow json,
  PRIMARY KEY (EntryID, RowNumber),
  -- Each table's key, whole and nothing else.
  CHECK (num_nulls(TableName, ID1, Year1, Day1, ID2, Position) = CASE TableName WHEN 'CldDay' THEN 2
    WHEN 'CldCalendar' THEN 3 WHEN 'CldRecurrence' THEN 3 WHEN 'CldHoliday' THEN 4 WHEN 'CldBook' THEN 4
    WHEN 'DicCcy' THEN 4 WHEN 'CldConvention' THEN 3 ELSE -1 END),
  CHECK ((ID1 IS NULL) = (TableName = 'CldHoliday')),
  CHECK ((Year1 IS NOT NULL) = (TableName IN ('CldCalendar', 'CldDay'))),
  CHECK ((Position IS NOT NULL) = (TableName IN ('CldRecurrence', 'CldConvention')))
);
CREATE INDEX CldHistoryRowByKey ON CldHistoryRow (ID1, Year1, Day1, EntryID);
CREATE INDEX CldHistoryRowByRule ON CldHistoryRow (ID2, EntryID) WHERE ID2 IS NOT NULL;

-- What was there when the entries began to be chained: a digest of each part of it, which is a calendar (ID1 and Year1), a
-- rule book (ID1), or a whole table (neither; then Year1 is its number). 0 stands for none. EntryID is the last entry before,
-- Moment that of the upgrade; null in a database that has chained its entries from the first on.
CREATE TABLE CldChainStart (
  ID1 integer NOT NULL,
  Year1 integer NOT NULL,
  EntryID bigint NOT NULL CHECK (EntryID >= 0),
  Moment timestamptz(3),
  Digest text COLLATE "C" NOT NULL,
  PRIMARY KEY (ID1, Year1)
);

-- A day of a plan that a call applies: Item is the number of the plan's item that names it, ID2 the rule that it gets.
CREATE TYPE PlannedDay AS (
  Item integer,
  Name1 text,
  TID1 integer,
  ID2 integer,
  RuleComment text,
  DayComment text,
  Day1 integer
);

-- The dictionary, as operators read it.
CREATE VIEW DictionaryCcy AS SELECT CcyID, Ccy, CcyType, Name FROM DicCcy;

-- What others may read of the calendars.
CREATE VIEW CalendarList AS
SELECT c.Ccy, k.Year1 AS Year
FROM CldCalendar k JOIN DicCcy c ON c.CcyID = k.ID1;

CREATE VIEW CalendarDay AS
SELECT c.Ccy, d.Year1 AS Year, d.ODate AS Date, d.TID1 = 1 AS IsWorkingDay, t.Description1 AS Type, h.Name1 AS Rule, d.Comment
FROM CldDay d
  JOIN DicCcy c ON c.CcyID = d.ID1
  JOIN CldHolidayType t ON t.TID1 = d.TID1
  LEFT JOIN CldHoliday h ON h.ID2 = d.ID2;

-- A value as it goes into a hash, so that no two lists of values give the same text: its length in bytes, a colon and itself,
-- or a dash for null. The server puts it in place of its calls, which it can as long as nothing in it is more volatile than it
-- says. What a call costs is then looking up the functions that are left in the statement: it takes values as they are, since a
-- conversion in front of it would stand in each place of the value.
CREATE OR REPLACE FUNCTION HashField(value anyelement) RETURNS text
LANGUAGE sql STABLE
AS $$
  SELECT concat(CASE WHEN value IS NULL THEN '-' END, octet_length(value::text), CASE WHEN value IS NOT NULL THEN ':' END, value)
$$;

-- The entry of the call that is at work. A call that changes something begins it when it has its locks, so that entries which
-- changed the same rows are numbered in the order of their changes, and ends it behind its last change. Calls that the locks
-- let run at the same time are of different chains; the unique index refuses one that saw an older end of its chain.

CREATE OR REPLACE FUNCTION BeginEntry(procedure_name text, of_currency integer, of_year integer, parameters json)
RETURNS bigint
LANGUAGE plpgsql
AS $$
DECLARE
  entry bigint;
BEGIN
  INSERT INTO CldHistory (ProcedureName, ID1, Year1, Parameters, ReturnValue, RowsChanged, ChainPosition, Previous, Hash)
  SELECT procedure_name, of_currency, of_year, parameters, 0, 0, coalesce(last.ChainPosition, 0) + 1, coalesce(last.Hash, ''), ''
  FROM (SELECT) AS this LEFT JOIN (
    SELECT ChainPosition, Hash FROM CldHistory
    WHERE coalesce(ID1, 0) = coalesce(of_currency, 0) AND coalesce(Year1, 0) = coalesce(of_year, 0)
    ORDER BY ChainPosition DESC LIMIT 1) AS last ON true
  RETURNING EntryID INTO entry;
  PERFORM set_config('ferrowind.entry', entry::text, true);
  RETURN entry;
END
$$;

-- The hash is over the columns of the entry in front of Hash, in their order, and those of its rows in theirs. The engine of a
-- file computes the same of the same content. It stands in the statement that writes it, since one that is prepared once is
-- several times as fast as a function that the server plans anew in each call.
-- Whoever listens is told once the call is done, and not what it did: anyone who may connect may listen, and may raise the
-- same notification. Who changed what is asked of CldGetHistory, which is for operators alone.
CREATE OR REPLACE FUNCTION EndEntry(entry bigint, rows_changed bigint) RETURNS void
LANGUAGE plpgsql
AS $$
BEGIN
  UPDATE CldHistory ended SET RowsChanged = rows_changed, Hash = encode(sha256(convert_to(
    HashField(EntryID) || HashField(to_char(Moment AT TIME ZONE 'UTC', 'YYYY-MM-DD"T"HH24:MI:SS.MS"Z"'))
    || HashField(UserName) || HashField(ProcedureName) || HashField(ID1) || HashField(Year1)
    || HashField(Parameters) || HashField(ReturnValue) || HashField(rows_changed)
    || HashField(ChainPosition) || HashField(Previous)
    || coalesce((
      SELECT string_agg(
        HashField(RowNumber) || HashField(TableName) || HashField(ID1) || HashField(Year1)
        || HashField(Day1) || HashField(ID2) || HashField(Position) || HashField(OldRow)
        || HashField(NewRow), '' ORDER BY RowNumber)
      FROM CldHistoryRow WHERE CldHistoryRow.EntryID = ended.EntryID), ''), 'UTF8')), 'hex')
  WHERE EntryID = entry;
  NOTIFY ferrowind_change;
  PERFORM set_config('ferrowind.entry', '', true);
END
$$;

-- Null outside calls: what an administrator changes by hand, and what a copy writes, belongs to no entry.
CREATE OR REPLACE FUNCTION EntryAtWork() RETURNS bigint
LANGUAGE sql STABLE
AS $$
  SELECT nullif(current_setting('ferrowind.entry', true), '')::bigint
$$;

-- What a row holds besides its key, as CldHistoryRow.OldRow keeps it.

CREATE OR REPLACE FUNCTION CurrencyContent(code text, kind smallint, name text, last_day date) RETURNS json
LANGUAGE sql STABLE
AS $$
  SELECT json_build_object('Ccy', code, 'CcyType', kind, 'Name', name, 'LastDay', last_day)
$$;

CREATE OR REPLACE FUNCTION RuleContent(name text, comment text, rule_type integer, day date, month smallint,
  day_of_month smallint, weekday smallint, removal smallint)
RETURNS json
LANGUAGE sql STABLE
AS $$
  SELECT json_build_object('Name1', name, 'Comment', comment, 'TID1', rule_type, 'D1', day, 'MY', month, 'MD', day_of_month,
    'WD', weekday, 'Del', removal)
$$;

CREATE OR REPLACE FUNCTION DayContent(rule_type integer, rule integer, comment text) RETURNS json
LANGUAGE sql STABLE
AS $$
  SELECT json_build_object('TID1', rule_type, 'ID2', rule, 'Comment', comment)
$$;

CREATE OR REPLACE FUNCTION BookContent(publisher text, document text, from_year integer) RETURNS json
LANGUAGE sql STABLE
AS $$
  SELECT json_build_object('Publisher', publisher, 'Document', document, 'FromYear', from_year)
$$;

CREATE OR REPLACE FUNCTION RecurrenceContent(name text, rule_type integer, expression text, comment text, moved_name text)
RETURNS json
LANGUAGE sql STABLE
AS $$
  SELECT json_build_object('Name1', name, 'TID1', rule_type, 'Expression', expression, 'Comment', comment,
    'MovedName', moved_name)
$$;

CREATE OR REPLACE FUNCTION ConventionContent(spot_days integer, dollar_stops integer) RETURNS json
LANGUAGE sql STABLE
AS $$
  SELECT json_build_object('SpotDays', spot_days, 'DollarStops', dollar_stops)
$$;

-- What the row whose key `kept` names holds now; null when there is none.
CREATE OR REPLACE FUNCTION ContentNow(kept CldHistoryRow) RETURNS json
LANGUAGE sql STABLE
AS $$
  SELECT CASE kept.TableName
    WHEN 'CldDay' THEN
      (SELECT DayContent(TID1, ID2, Comment) FROM CldDay
       WHERE ID1 = kept.ID1 AND Year1 = kept.Year1 AND Day1 = kept.Day1)
    WHEN 'CldCalendar' THEN
      (SELECT json_build_object() FROM CldCalendar WHERE ID1 = kept.ID1 AND Year1 = kept.Year1)
    WHEN 'CldHoliday' THEN
      (SELECT RuleContent(Name1, Comment, TID1, D1, MY, MD, WD, Del) FROM CldHoliday WHERE ID2 = kept.ID2)
    WHEN 'CldBook' THEN
      (SELECT BookContent(Publisher, Document, FromYear) FROM CldBook WHERE ID1 = kept.ID1)
    WHEN 'CldRecurrence' THEN
      (SELECT RecurrenceContent(Name1, TID1, Expression, Comment, MovedName) FROM CldRecurrence
       WHERE ID1 = kept.ID1 AND Position = kept.Position)
    WHEN 'CldConvention' THEN
      (SELECT ConventionContent(SpotDays, DollarStops) FROM CldConvention
       WHERE ID1 = kept.ID1 AND OtherID = kept.Position)
    WHEN 'DicCcy' THEN
      (SELECT CurrencyContent(Ccy, CcyType, Name, LastDay) FROM DicCcy WHERE CcyID = kept.ID1)
  END
$$;

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

-- Whether `given` is a JSON list of objects of which each has a known name of `shape` once at most and with a value of that
-- kind: "text", "text?" (may be missing or null), "type" (a rule's type, 1 to 4) or "list". May fail with a data exception on
-- what is no such list.
CREATE OR REPLACE FUNCTION IsListOfObjects(given json, shape json) RETURNS boolean
LANGUAGE sql STABLE
AS $$
  SELECT json_typeof(given) = 'array' AND coalesce(bool_and(item.is_fit), true)
  FROM (
    SELECT count(field.name) = count(DISTINCT field.name)
      AND coalesce(bool_and(CASE json_typeof(field.value)
        WHEN 'string' THEN shape ->> field.name IN ('text', 'text?')
        WHEN 'number' THEN shape ->> field.name = 'type' AND field.value::text IN ('1', '2', '3', '4')
        WHEN 'array' THEN shape ->> field.name = 'list'
        WHEN 'null' THEN shape ->> field.name = 'text?'
      END IS TRUE), true)
      AND count(field.name) FILTER (WHERE shape ->> field.name NOT LIKE '%?')
        = (SELECT count(*) FROM json_each_text(shape) AS wanted WHERE wanted.value NOT LIKE '%?')
      AS is_fit
    FROM json_array_elements(given) WITH ORDINALITY AS list (value, n)
      LEFT JOIN json_each(list.value) AS field (name, value) ON true
    GROUP BY list.n
  ) AS item
$$;

-- The days of the plan `days` for the year, in their order, or null when the text is no plan for that year; nothing that a
-- text can hold makes it fail. An item without dates has one row without Day1.
CREATE OR REPLACE FUNCTION PlannedDays(days text, of_year integer) RETURNS PlannedDay[]
LANGUAGE plpgsql STABLE
AS $$
DECLARE
  largest_size constant integer := 1048576;
  plan json;
  is_fit boolean;
  planned PlannedDay[];
BEGIN
  IF octet_length(days) > largest_size THEN
    RETURN NULL;
  END IF;
  plan := days::json;
  IF NOT IsListOfObjects(plan,
    '{"Name1": "text?", "TID1": "type", "Comment": "text?", "DayComment": "text?", "Dates": "list"}')
  THEN
    RETURN NULL;
  END IF;

  SELECT
    coalesce(bool_and(date.n IS NULL OR year.day IS NOT NULL), true) AND count(year.day) = count(DISTINCT year.day),
    coalesce(array_agg(ROW(item.n, item.value ->> 'Name1', item.value ->> 'TID1', NULL, item.value ->> 'Comment',
      item.value ->> 'DayComment', year.day)::PlannedDay ORDER BY item.n, date.n), '{}')
  INTO is_fit, planned
  FROM json_array_elements(plan) WITH ORDINALITY AS item (value, n)
    LEFT JOIN json_array_elements(item.value -> 'Dates') WITH ORDINALITY AS date (value, n) ON true
    LEFT JOIN (
      SELECT day, to_char(make_date(of_year, 1, 1) + (day - 1), 'YYYY-MM-DD') AS text
      FROM generate_series(1, make_date(of_year + 1, 1, 1) - make_date(of_year, 1, 1)) AS day
    ) AS year ON json_typeof(date.value) = 'string' AND year.text = date.value #>> '{}';
  RETURN CASE WHEN is_fit THEN planned END;
EXCEPTION
  -- No JSON, a character or a number that the server does not have, and lists within lists without end.
  WHEN data_exception OR program_limit_exceeded THEN
    RETURN NULL;
END
$$;

-- The rules of a book, by position, or null when the text is no list of rules; nothing that a text can hold makes it fail.
CREATE OR REPLACE FUNCTION BookRules(of_currency integer, rules text) RETURNS CldRecurrence[]
LANGUAGE plpgsql STABLE
AS $$
DECLARE
  most_rules constant integer := 10000;
  list json;
BEGIN
  list := rules::json;
  IF NOT IsListOfObjects(list,
      '{"Name1": "text", "TID1": "type", "Expression": "text", "Comment": "text?", "MovedName": "text?"}')
    OR json_array_length(list) > most_rules
    OR EXISTS (SELECT FROM json_array_elements(list) AS rule
               WHERE btrim(rule ->> 'Name1', ' ') = '' OR btrim(rule ->> 'Expression', ' ') = ''
                 OR length(rule ->> 'Name1') > 200 OR length(rule ->> 'MovedName') > 200
                 OR length(rule ->> 'Expression') > 4000 OR length(rule ->> 'Comment') > 4000)
  THEN
    RETURN NULL;
  END IF;
  RETURN (
    SELECT coalesce(array_agg(ROW(of_currency, n, rule ->> 'Name1', rule ->> 'TID1', rule ->> 'Expression',
      rule ->> 'Comment', rule ->> 'MovedName')::CldRecurrence ORDER BY n), '{}')
    FROM json_array_elements(list) WITH ORDINALITY AS given (rule, n));
EXCEPTION
  WHEN data_exception OR program_limit_exceeded THEN
    RETURN NULL;
END
$$;

-- Texts that two contents have in common when, and as good as only when, they are equal. SHA-256, because a server that
-- keeps to the rules for federal cryptography refuses MD5.

CREATE OR REPLACE FUNCTION CalendarFingerprint(of_currency integer, of_year integer) RETURNS text
LANGUAGE sql STABLE
AS $$
  SELECT encode(sha256(convert_to(
    string_agg(concat_ws(',', d.TID1, d.ID2, quote_nullable(h.Name1), quote_nullable(d.Comment)), ';' ORDER BY d.Day1),
    'UTF8')), 'hex')
  FROM CldDay d LEFT JOIN CldHoliday h ON h.ID2 = d.ID2
  WHERE d.ID1 = of_currency AND d.Year1 = of_year
$$;

CREATE OR REPLACE FUNCTION BookFingerprint(of_currency integer) RETURNS text
LANGUAGE sql STABLE
AS $$
  SELECT encode(sha256(convert_to(concat_ws(';', quote_literal(b.Publisher), quote_literal(b.Document), b.FromYear,
    (SELECT string_agg(concat_ws(',', r.TID1, quote_literal(r.Name1), quote_literal(r.Expression), quote_nullable(r.Comment),
       quote_nullable(r.MovedName)), ';' ORDER BY r.Position)
     FROM CldRecurrence r WHERE r.ID1 = b.ID1)), 'UTF8')), 'hex')
  FROM CldBook b
  WHERE b.ID1 = of_currency
$$;

-- The moment that a text in the form of the history's names; null when it names none.
CREATE OR REPLACE FUNCTION MomentFrom(moment text) RETURNS timestamptz
LANGUAGE plpgsql STABLE
AS $$
BEGIN
  -- Without backslashes, which mean something else in a session of other settings.
  IF moment ~ '^[0-9]{4}-[0-9]{2}-[0-9]{2}T([01][0-9]|2[0-3]):[0-5][0-9]:[0-5][0-9]([.][0-9]{3})?Z$' THEN
    RETURN moment::timestamptz;
  END IF;
  RETURN NULL;
EXCEPTION
  -- No such day.
  WHEN data_exception THEN
    RETURN NULL;
END
$$;

-- Whether the currency can be of that type (null: not be at all) and legal money until that day, given its calendars and its
-- book: only money has any, and calendars only for years that begin before its last day. One with conventions cannot go.
CREATE OR REPLACE FUNCTION CurrencyCanBe(currency integer, kind smallint, last_day date) RETURNS boolean
LANGUAGE sql STABLE
AS $$
  SELECT NOT EXISTS (SELECT FROM CldCalendar WHERE ID1 = currency AND Year1 > extract(year FROM last_day))
    AND (kind IS NOT DISTINCT FROM 0 OR NOT EXISTS (SELECT FROM CldCalendar WHERE ID1 = currency)
                                        AND NOT EXISTS (SELECT FROM CldBook WHERE ID1 = currency))
    AND (kind IS NOT NULL OR NOT EXISTS (SELECT FROM CldConvention WHERE currency IN (ID1, OtherID)))
$$;

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

-- Questions about business days, as ferrowind/business_days answers them. They are for readers and fail with a state of the
-- class WD: WD001 a day that the answer depends on is not prepared, WD002 everything is closed for a year, or in the month that
-- must not be left, WD003 there is no calendar of that currency, WD004 no such question. Their plans are made once: the server would
-- otherwise make one for each question, which takes longer than to answer it.

-- The numbers of the currencies, each once, in their order. Refuses what no question can be about.
CREATE OR REPLACE FUNCTION AskedCalendars(ccys text[], day date) RETURNS integer[]
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  ids integer[];
  missing text[];
BEGIN
  IF day NOT BETWEEN '0001-01-01' AND '9999-12-31' THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004', MESSAGE = format('%s is not between 0001-01-01 and 9999-12-31', day);
  END IF;
  SELECT array_agg(CcyID ORDER BY place), array_agg(code ORDER BY place) FILTER (WHERE CcyID IS NULL) INTO ids, missing
  FROM (SELECT code, min(place) AS place FROM unnest(ccys) WITH ORDINALITY AS given (code, place) GROUP BY code) AS asked
    LEFT JOIN DicCcy ON Ccy = code AND EXISTS (SELECT FROM CldDay WHERE ID1 = CcyID);
  IF missing IS NOT NULL THEN
    RAISE EXCEPTION USING ERRCODE = 'WD003', MESSAGE = format('There is no calendar of %s', coalesce(missing[1], 'null'));
  ELSIF ids IS NULL THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004', MESSAGE = 'A joint calendar needs at least one currency';
  END IF;
  RETURN ids;
END
$$;

-- The days from `first` on to `last` of the same year, which may be the earlier one, that are not closed: open for all, or not
-- known of all. A year that is closed on weekends at most is not known, since nobody has entered its holidays, as
-- CldGetClosedDays tells; that is looked at once for all of its days. They come in that order, since each is looked up when the
-- one before was taken; whoever needs few limits them, and no more are.
CREATE OR REPLACE FUNCTION DaysNotClosed(ids integer[], first date, last date) RETURNS TABLE (day date, is_known boolean)
LANGUAGE sql STABLE PARALLEL SAFE
AS $$
  SELECT series.day, state.is_known
  FROM (
    SELECT first + CASE WHEN last < first THEN -1 ELSE 1 END * generate_series(0, abs(last - first)) AS day
  ) AS series CROSS JOIN LATERAL (
    SELECT count(*) = cardinality(ids) AND (
      SELECT count(*) = cardinality(ids) FROM unnest(ids) AS id
      -- In order, so that the server stops at the first one, mostly New Year's Day, and does not take in the year.
      WHERE (SELECT TID1 FROM CldDay WHERE ID1 = id AND Year1 = extract(year FROM first)::integer AND TID1 > 2
             ORDER BY Day1 LIMIT 1) IS NOT NULL
    ) AS is_known, bool_and(TID1 = 1) AS is_open
    FROM CldDay
    WHERE ID1 = ANY (ids) AND Year1 = extract(year FROM first)::integer AND Day1 = extract(doy FROM series.day)::integer
  ) AS state
  WHERE state.is_open OR NOT state.is_known
$$;

-- Names the first of the currencies whose day nobody has prepared.
CREATE OR REPLACE FUNCTION FailNotPrepared(ids integer[], day date) RETURNS void
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
BEGIN
  RAISE EXCEPTION USING ERRCODE = 'WD001', MESSAGE = format('%s %s is not prepared', (
    SELECT Ccy FROM unnest(ids) WITH ORDINALITY AS asked (id, place) JOIN DicCcy ON CcyID = id
    WHERE NOT EXISTS (SELECT FROM CldDay WHERE ID1 = id AND Year1 = extract(year FROM day)::integer AND TID1 > 2)
    ORDER BY place LIMIT 1), extract(year FROM day));
END
$$;

CREATE OR REPLACE FUNCTION FailNoBusinessDay(ids integer[], place text) RETURNS void
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
BEGIN
  RAISE EXCEPTION USING ERRCODE = 'WD002', MESSAGE = format('no business day of %s %s', (
    SELECT string_agg(Ccy, '+' ORDER BY n) FROM unnest(ids) WITH ORDINALITY AS asked (id, n) JOIN DicCcy ON CcyID = id), place);
END
$$;

-- Whether the day is open for all.
CREATE OR REPLACE FUNCTION IsOpenDay(ids integer[], day date) RETURNS boolean
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  is_open boolean;
  is_prepared boolean;
BEGIN
  SELECT bool_and(TID1 = 1), count(*) = cardinality(ids) INTO is_open, is_prepared
  FROM CldDay
  WHERE ID1 = ANY (ids) AND Year1 = extract(year FROM day)::integer AND Day1 = extract(doy FROM day)::integer
    AND (SELECT entered.TID1 FROM CldDay AS entered
         WHERE entered.ID1 = CldDay.ID1 AND entered.Year1 = CldDay.Year1 AND entered.TID1 > 2
         ORDER BY entered.Day1 LIMIT 1) IS NOT NULL;
  IF NOT is_prepared THEN
    PERFORM FailNotPrepared(ids, day);
  END IF;
  RETURN is_open;
END
$$;

-- The first business day from `first` on to `last` of the same year, which may be the earlier one; null when there is none.
CREATE OR REPLACE FUNCTION FirstBusinessDay(ids integer[], first date, last date) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  found_day date;
  is_prepared boolean;
BEGIN
  SELECT day, is_known INTO found_day, is_prepared FROM DaysNotClosed(ids, first, last) LIMIT 1;
  IF NOT is_prepared THEN
    PERFORM FailNotPrepared(ids, found_day);
  END IF;
  RETURN found_day;
END
$$;

-- The count-th business day after the day, before it when count is negative.
CREATE OR REPLACE FUNCTION CountedBusinessDay(ids integer[], day date, count integer) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  longest_search constant integer := 366;
  step constant integer := sign(count);
  first date := day + step;
  last date;
  reached date := day;
  found_day date;
  is_prepared boolean;
BEGIN
  -- Year by year, and no further than needed.
  WHILE count <> 0 AND abs(first - reached) <= longest_search LOOP
    last := CASE step WHEN 1 THEN make_date(extract(year FROM first)::integer, 12, 31)
                      ELSE make_date(extract(year FROM first)::integer, 1, 1) END;
    FOR found_day, is_prepared IN SELECT d.day, d.is_known FROM DaysNotClosed(ids, first, last) AS d LIMIT abs(count::bigint) LOOP
      EXIT WHEN abs(found_day - reached) > longest_search;
      IF NOT is_prepared THEN
        PERFORM FailNotPrepared(ids, found_day);
      END IF;
      reached := found_day;
      count := count - step;
    END LOOP;
    first := last + step;
  END LOOP;
  IF count <> 0 THEN
    PERFORM FailNoBusinessDay(ids, format('within a year %s %s', CASE step WHEN 1 THEN 'after' ELSE 'before' END, reached::text));
  END IF;
  RETURN reached;
END
$$;

-- The first business day from the day on to `preferred`, else the first one back to `other`: the ends of what must not be left.
CREATE OR REPLACE FUNCTION BusinessDayWithin(ids integer[], day date, preferred date, other date) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  found_day date := coalesce(FirstBusinessDay(ids, day, preferred), FirstBusinessDay(ids, day, other));
BEGIN
  IF found_day IS NULL THEN
    PERFORM FailNoBusinessDay(ids, format('from %s to %s', least(preferred, other)::text, greatest(preferred, other)::text));
  END IF;
  RETURN found_day;
END
$$;

CREATE OR REPLACE FUNCTION LastDayOfMonth(day date) RETURNS date
LANGUAGE sql IMMUTABLE PARALLEL SAFE
AS $$
  SELECT make_date(extract(year FROM day)::integer, extract(month FROM day)::integer, 1)
    + make_interval(months => 1) - make_interval(days => 1)
$$;

-- The day when it is a business day, else where the convention moves it.
CREATE OR REPLACE FUNCTION AdjustedDay(ids integer[], day date, convention text) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  wanted constant text := upper(convention COLLATE "C");
  first_of_month constant date := day - (extract(day FROM day)::integer - 1);
  last_of_month constant date := LastDayOfMonth(day);
  is_late constant boolean := extract(day FROM day) > 15;
BEGIN
  IF wanted IN ('UNADJUSTED', 'NONE') THEN
    RETURN day;
  ELSIF wanted NOT IN ('FOLLOWING', 'F', 'MODIFIEDFOLLOWING', 'MF', 'MODIFIEDFOLLOWINGBIMONTHLY', 'MFBM', 'PRECEDING', 'P',
                       'MODIFIEDPRECEDING', 'MP', 'NEAREST', 'N') THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004', MESSAGE = format('"%s" is no convention: Following, ModifiedFollowing, '
      'ModifiedFollowingBimonthly, Preceding, ModifiedPreceding, Nearest, Unadjusted', convention);
  END IF;
  IF IsOpenDay(ids, day) THEN
    RETURN day;
  END IF;
  RETURN CASE
    WHEN wanted IN ('FOLLOWING', 'F') THEN CountedBusinessDay(ids, day, 1)
    WHEN wanted IN ('MODIFIEDFOLLOWING', 'MF') THEN BusinessDayWithin(ids, day, last_of_month, first_of_month)
    WHEN wanted IN ('MODIFIEDFOLLOWINGBIMONTHLY', 'MFBM') THEN BusinessDayWithin(ids, day,
      CASE WHEN is_late THEN last_of_month ELSE first_of_month + 14 END,
      CASE WHEN is_late THEN first_of_month + 15 ELSE first_of_month END)
    WHEN wanted IN ('PRECEDING', 'P') THEN CountedBusinessDay(ids, day, -1)
    WHEN wanted IN ('MODIFIEDPRECEDING', 'MP') THEN BusinessDayWithin(ids, day, first_of_month, last_of_month)
    ELSE CountedBusinessDay(ids, day, CASE WHEN extract(dow FROM day) IN (0, 1) THEN 1 ELSE -1 END)
  END;
END
$$;

-- Whether the day is open for the currency, for all of several.
CREATE OR REPLACE FUNCTION IsBusinessDay(ccys text[], day date) RETURNS boolean
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN IsOpenDay(AskedCalendars(ccys, day), day);
END
$$;

CREATE OR REPLACE FUNCTION IsBusinessDay(ccy text, day date) RETURNS boolean
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN IsBusinessDay(ARRAY[ccy], day);
END
$$;

-- The count-th business day after the day, before it when count is negative; with 0 the day as it is.
CREATE OR REPLACE FUNCTION AddBusinessDays(ccys text[], day date, count integer) RETURNS date
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN CountedBusinessDay(AskedCalendars(ccys, day), day, count);
END
$$;

CREATE OR REPLACE FUNCTION AddBusinessDays(ccy text, day date, count integer) RETURNS date
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN AddBusinessDays(ARRAY[ccy], day, count);
END
$$;

-- The day when it is a business day, else where the convention moves it.
CREATE OR REPLACE FUNCTION AdjustDate(ccys text[], day date, convention text) RETURNS date
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN AdjustedDay(AskedCalendars(ccys, day), day, convention);
END
$$;

CREATE OR REPLACE FUNCTION AdjustDate(ccy text, day date, convention text) RETURNS date
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN AdjustDate(ARRAY[ccy], day, convention);
END
$$;

-- The market's conventions that come with the program, as database/seed/market_conventions.txt has them. What the database says
-- (CldConvention) holds in their place. They are expressions, which the server makes part of the one that asks, and no rows to
-- look up.

-- The days from trade to spot of the pair; null when they are as usual.
CREATE OR REPLACE FUNCTION DeliveredSpotDays(base text, quote text) RETURNS integer
LANGUAGE sql IMMUTABLE PARALLEL SAFE
AS $$
  SELECT CASE least(base, quote) || greatest(base, quote)
    WHEN 'CADUSD' THEN 1
    WHEN 'TRYUSD' THEN 1
    WHEN 'PHPUSD' THEN 1
    WHEN 'RUBUSD' THEN 1
    WHEN 'KZTUSD' THEN 1
    WHEN 'PKRUSD' THEN 1
    WHEN 'COPUSD' THEN 0
  END
$$;

-- Whether a holiday of the dollar stops the count for the currency, 1 or 0.
CREATE OR REPLACE FUNCTION DeliveredDollarStops(ccy text) RETURNS integer
LANGUAGE sql IMMUTABLE PARALLEL SAFE
AS $$
  SELECT CASE WHEN ccy IN ('ARS', 'CLP', 'MXN') THEN 1 ELSE 0 END
$$;

-- On which days trades in a currency pair settle, as ValueDates of ferrowind/business_days tells.

-- What a pair, "EURUSD" or "EUR/USD", is counted by: the days to spot, the currencies whose business days count, those that are
-- open on a trade date, and those that are open where a trade settles. Whether they have calendars is not looked at; a currency
-- that there is not is null.
CREATE OR REPLACE FUNCTION PairTerms(pair text, OUT name text, OUT codes text[], OUT spot_days integer, OUT counting integer[],
                                     OUT trading integer[], OUT settlement integer[])
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  letters constant text := upper(pair COLLATE "C");
  base constant text := left(letters, 3);
  quote constant text := right(letters, 3);
  base_id integer;
  quote_id integer;
  dollar_id integer;
  base_stops integer;
  quote_stops integer;
BEGIN
  IF letters !~ '^[A-Z]{3}/?[A-Z]{3}$' THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004', MESSAGE = format('"%s" is no currency pair, which is written EURUSD or EUR/USD', pair);
  ELSIF base = quote THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004', MESSAGE = format('"%s" has the same currency twice', pair);
  END IF;
  name := base || '/' || quote;
  codes := ARRAY[base, quote, 'USD'];

  SELECT max(CcyID) FILTER (WHERE Ccy = base), max(CcyID) FILTER (WHERE Ccy = quote), max(CcyID) FILTER (WHERE Ccy = 'USD')
  INTO base_id, quote_id, dollar_id FROM DicCcy WHERE Ccy = ANY (codes);
  SELECT max(SpotDays), max(DollarStops) FILTER (WHERE ID1 = base_id), max(DollarStops) FILTER (WHERE ID1 = quote_id)
  INTO spot_days, base_stops, quote_stops
  FROM CldConvention
  WHERE ID1 IN (base_id, quote_id) AND OtherID IN (base_id, quote_id);
  spot_days := coalesce(spot_days, DeliveredSpotDays(base, quote), 2);
  trading := ARRAY[base_id, quote_id];
  settlement := CASE WHEN 'USD' IN (base, quote) THEN trading ELSE trading || dollar_id END;
  counting := array_remove(trading, dollar_id);
  IF 1 IN (coalesce(base_stops, DeliveredDollarStops(base)), coalesce(quote_stops, DeliveredDollarStops(quote))) THEN
    counting := counting || dollar_id;
  END IF;
END
$$;

-- The spot date when it, and all that it depends on, lies within a week of the trade date and in the same year, and all of its
-- days are known: nearly always, by a single look at the days. Null when it does not, or anything is missing. Of each currency
-- a number has a bit for each of these days, the trade date's first, which is set when the day is closed. A day behind them
-- passes for open: a search that reaches one ends there, and is given up.
CREATE OR REPLACE FUNCTION NearSpot(trade_date date, trade_date_stays boolean, spot_days integer, counting integer[],
                                    trading integer[], settlement integer[]) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  last_seen constant integer := 7;
  of_year constant integer := extract(year FROM trade_date);
  first constant integer := extract(doy FROM trade_date);
  closed integer[];
  is_known boolean;
  day_count bigint;
  started integer := 0;
  id integer;
  days_left integer;
  reached integer;
  spot integer;
BEGIN
  SELECT count(*), ARRAY[coalesce(bit_or(1 << (Day1 - first)) FILTER (WHERE ID1 = settlement[1] AND TID1 <> 1), 0),
                         coalesce(bit_or(1 << (Day1 - first)) FILTER (WHERE ID1 = settlement[2] AND TID1 <> 1), 0),
                         coalesce(bit_or(1 << (Day1 - first)) FILTER (WHERE ID1 = settlement[3] AND TID1 <> 1), 0)],
    NOT EXISTS (
      SELECT FROM unnest(settlement) AS one (id)
      WHERE (SELECT entered.TID1 FROM CldDay AS entered WHERE entered.ID1 = one.id AND entered.Year1 = of_year AND entered.TID1 > 2
             ORDER BY entered.Day1 LIMIT 1) IS NULL)
  INTO day_count, closed, is_known
  FROM CldDay
  WHERE ID1 = ANY (settlement) AND Year1 = of_year AND Day1 BETWEEN first AND first + last_seen;
  IF NOT is_known OR day_count <> cardinality(settlement) * (last_seen + 1) THEN
    RETURN NULL;
  END IF;

  WHILE NOT trade_date_stays AND (closed[1] | closed[2]) >> started & 1 = 1 LOOP
    started := started + 1;
  END LOOP;
  spot := started;
  FOREACH id IN ARRAY counting LOOP
    reached := started;
    days_left := spot_days;
    WHILE days_left > 0 LOOP
      reached := reached + 1;
      days_left := days_left - 1 + (closed[array_position(settlement, id)] >> reached & 1);
    END LOOP;
    spot := greatest(spot, reached);
  END LOOP;
  WHILE (closed[1] | closed[2] | closed[3]) >> spot & 1 = 1 LOOP
    spot := spot + 1;
  END LOOP;
  RETURN CASE WHEN spot <= last_seen THEN trade_date + spot END;
END
$$;

-- Each currency counts for itself, and the later day holds.
CREATE OR REPLACE FUNCTION SpotFrom(started date, spot_days integer, counting integer[], settlement integer[]) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  spot date := started;
  id integer;
BEGIN
  FOREACH id IN ARRAY counting LOOP
    spot := greatest(spot, CountedBusinessDay(ARRAY[id], started, spot_days));
  END LOOP;
  RETURN AdjustedDay(settlement, spot, 'Following');
END
$$;

-- Months behind spot: from the last business day of a month to the last one of a month (end-end), else by Modified Following.
CREATE OR REPLACE FUNCTION MonthsAfterSpot(settlement integer[], spot date, months integer) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  same_day constant date := spot + make_interval(months => months);
  last_of_month constant date := LastDayOfMonth(same_day);
BEGIN
  IF FirstBusinessDay(settlement, LastDayOfMonth(spot), spot) = spot THEN
    RETURN BusinessDayWithin(settlement, last_of_month, last_of_month,
                             last_of_month - (extract(day FROM last_of_month)::integer - 1));
  END IF;
  RETURN AdjustedDay(settlement, same_day, 'ModifiedFollowing');
END
$$;

-- The n-th third Wednesday of March, June, September and December after the day.
CREATE OR REPLACE FUNCTION ThirdWednesdayAfter(day date, n integer) RETURNS date
LANGUAGE sql IMMUTABLE PARALLEL SAFE
AS $$
  SELECT wednesday
  FROM (
    SELECT first_day + 14 + (10 - extract(dow FROM first_day)::integer) % 7 AS wednesday
    FROM (
      SELECT (make_date(extract(year FROM day)::integer, 3, 1) + make_interval(months => 3 * quarter))::date AS first_day
      FROM generate_series(0, n + 4) AS quarter
    ) AS months
  ) AS wednesdays
  WHERE wednesday > day ORDER BY wednesday OFFSET n - 1 LIMIT 1
$$;

-- On which day a trade of that tenor settles. A trade date on which a currency of the pair is closed counts as the next day on
-- which both are open, unless it stays.
CREATE OR REPLACE FUNCTION PairValueDate(pair text, trade_date date, tenor text, trade_date_stays boolean) RETURNS date
LANGUAGE plpgsql STABLE PARALLEL SAFE
AS $$
DECLARE
  letters constant text := upper(tenor COLLATE "C");
  unit constant text := CASE
    WHEN letters IN ('ON', 'O/N') THEN 'ON'
    WHEN letters IN ('TN', 'T/N') THEN 'TN'
    WHEN letters IN ('SPOT', 'SP') THEN 'SPOT'
    WHEN letters IN ('SN', 'S/N') THEN 'SN'
    WHEN letters IN ('SW', 'S/W') THEN 'W'
    WHEN letters ~ '^IMM[1-4]$' THEN 'IMM'
    WHEN letters ~ '^0*[0-9]{1,5}[DWMY]$' THEN right(letters, 1) END;
  count constant integer := CASE
    WHEN letters ~ '^IMM' THEN right(letters, 1)::integer
    WHEN letters ~ '^[0-9]+.$' AND unit IS NOT NULL THEN left(letters, -1)::integer
    ELSE 1 END;
  -- A hundred years.
  most constant integer := CASE unit WHEN 'D' THEN 36525 WHEN 'W' THEN 5217 WHEN 'M' THEN 1200 WHEN 'Y' THEN 100 ELSE 4 END;
  terms record;
  started date := trade_date;
  overnight date;
  spot date;
BEGIN
  IF unit IS NULL OR count NOT BETWEEN 1 AND most THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004', MESSAGE = format('"%s" is no tenor: ON, TN, SPOT, SN, SW, IMM1 to IMM4, or a number of '
      'days, weeks, months or years up to 100 years, as 10D, 2W, 3M, 1Y', tenor);
  END IF;
  terms := PairTerms(pair);
  IF unit NOT IN ('ON', 'TN') AND trade_date BETWEEN '1900-01-01' AND '3000-12-31' THEN
    spot := NearSpot(trade_date, trade_date_stays, terms.spot_days, terms.counting, terms.trading, terms.settlement);
  END IF;
  IF spot IS NULL THEN
    PERFORM AskedCalendars(terms.codes, trade_date);
    IF NOT trade_date_stays THEN
      started := AdjustedDay(terms.trading, trade_date, 'Following');
    END IF;
    IF unit IN ('ON', 'TN') THEN
      overnight := CountedBusinessDay(terms.settlement, started, 1);
      IF unit = 'ON' THEN
        RETURN overnight;
      ELSIF terms.spot_days < 2 THEN
        RETURN CountedBusinessDay(terms.settlement, overnight, 1);
      END IF;
    END IF;
    spot := SpotFrom(started, terms.spot_days, terms.counting, terms.settlement);
  END IF;
  IF unit = 'TN' AND overnight >= spot THEN
    RAISE EXCEPTION USING ERRCODE = 'WD004',
      MESSAGE = format('%s has no TN on that day: its ON settles on the spot date already', terms.name);
  END IF;
  RETURN CASE unit
    WHEN 'SN' THEN CountedBusinessDay(terms.settlement, spot, 1)
    WHEN 'D' THEN AdjustedDay(terms.settlement, spot + count, 'Following')
    WHEN 'W' THEN AdjustedDay(terms.settlement, spot + 7 * count, 'Following')
    WHEN 'M' THEN MonthsAfterSpot(terms.settlement, spot, count)
    WHEN 'Y' THEN MonthsAfterSpot(terms.settlement, spot, 12 * count)
    WHEN 'IMM' THEN AdjustedDay(terms.settlement, ThirdWednesdayAfter(spot, count), 'Following')
    ELSE spot END;
END
$$;

CREATE OR REPLACE FUNCTION ValueDate(pair text, trade_date date, tenor text, trade_date_stays boolean DEFAULT false) RETURNS date
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN PairValueDate(pair, trade_date, tenor, trade_date_stays);
END
$$;

CREATE OR REPLACE FUNCTION SpotDate(pair text, trade_date date, trade_date_stays boolean DEFAULT false) RETURNS date
LANGUAGE plpgsql STABLE STRICT PARALLEL SAFE SECURITY DEFINER
SET search_path = ferrowind, pg_temp SET plan_cache_mode = force_generic_plan
AS $$
BEGIN
  RETURN PairValueDate(pair, trade_date, 'SPOT', trade_date_stays);
END
$$;

-- What the windows need before a calendar is chosen: calendars, holiday types, holiday rules, first weekday.
-- The cursors see the tables one moment after the other; none shows what another one must have.
CREATE PROCEDURE CldAllInfo(
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Calendars" refcursor DEFAULT 'Calendars',
  INOUT "Types" refcursor DEFAULT 'Types',
  INOUT "Rules" refcursor DEFAULT 'Rules',
  INOUT "Setting" refcursor DEFAULT 'Setting'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  OPEN "Calendars" FOR
    SELECT ID1 AS "ID1", Year1 AS "Year1" FROM CldCalendar ORDER BY ID1, Year1;
  OPEN "Types" FOR
    SELECT TID1 AS "TID1", Description1 AS "Description1" FROM CldHolidayType ORDER BY TID1;
  OPEN "Rules" FOR
    SELECT ID2 AS "ID2", Name1 AS "Name1", Comment AS "Comment", TID1 AS "TID1", D1 AS "D1", MY AS "MY", MD AS "MD",
      WD AS "WD", Del AS "Del"
    FROM CldHoliday ORDER BY ID2;
  OPEN "Setting" FOR
    SELECT FirstDay AS "FirstDay" FROM CldSetting;
  "RETURN_VALUE" := 0;
END
$$;

-- The days of one calendar.
-- Returns 0; 7 a value is missing or out of range; 3 unknown currency; 5 unknown calendar.
CREATE PROCEDURE CldGetMain(
  "ID1" integer DEFAULT NULL,
  "Year1" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Days" refcursor DEFAULT 'Days'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  OPEN "Days" SCROLL FOR
    SELECT d.ODate AS "ODate", d.TID1 AS "TID1", h.Name1 AS "Name1", h.Comment AS "Comment2", d.Comment AS "Comment",
      d.ID2 AS "ID2", d.Day1 AS "Day1"
    FROM CldDay d LEFT JOIN CldHoliday h ON h.ID2 = d.ID2
    WHERE d.ID1 = "ID1" AND d.Year1 = "Year1"
    ORDER BY d.Day1;

  -- Every calendar has days. Whether it is there is asked of the very rows that the caller gets: it may come or go between
  -- one statement and the next.
  MOVE NEXT FROM "Days";
  IF NOT FOUND THEN
    CLOSE "Days";
    "RETURN_VALUE" := CASE
      WHEN "ID1" IS NULL OR "Year1" IS NULL OR "Year1" NOT BETWEEN 1900 AND 3000 THEN 7
      WHEN NOT EXISTS (SELECT FROM DicCcy WHERE CcyID = "ID1" AND CcyType = 0) THEN 3
      ELSE 5
    END;
    RETURN;
  END IF;
  MOVE ABSOLUTE 0 FROM "Days";
  "RETURN_VALUE" := 0;
END
$$;

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

-- Puts back what the call of the entry EntryID of the history changed: days with their comments, rules, calendars, books,
-- currencies. That is a call like any other and can be undone in turn. A rule that the call added stays when something else
-- uses it by now.
-- Returns 0; 7 there is no such entry; 9 something of it is not as the call left it, or cannot be what it was any more, or
-- there is nothing that could be put back. Fails when the entry is a currency's and the caller no administrator.
-- Locks are taken in one order everywhere: the built-in rule's row for all rules, currencies, calendars, each by key; and
-- last the rules that are to go, so that nobody assigns them meanwhile.
CREATE PROCEDURE CldUndo(
  "EntryID" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  undone CldHistory;
  entry bigint;
BEGIN
  SELECT * INTO undone FROM CldHistory WHERE EntryID = "EntryID";
  IF NOT FOUND THEN
    "RETURN_VALUE" := 7;
    RETURN;
  END IF;

  IF EXISTS (SELECT FROM CldHistoryRow WHERE EntryID = "EntryID" AND TableName IN ('DicCcy', 'CldConvention'))
    AND NOT pg_has_role(session_user, 'ferrowind_owner', 'MEMBER')
  THEN
    RAISE insufficient_privilege USING MESSAGE = 'permission denied to change the list of currencies';
  END IF;

  PERFORM FROM CldHoliday WHERE ID2 = 1 FOR NO KEY UPDATE;
  PERFORM FROM DicCcy
  WHERE CcyID IN (SELECT ID1 FROM CldHistoryRow WHERE EntryID = "EntryID" AND TableName <> 'CldDay')
  ORDER BY CcyID FOR NO KEY UPDATE;
  PERFORM FROM CldCalendar
  WHERE (ID1, Year1) IN (SELECT ID1, Year1 FROM CldHistoryRow WHERE EntryID = "EntryID" AND Year1 IS NOT NULL)
  ORDER BY ID1, Year1 FOR UPDATE;
  PERFORM FROM CldHoliday
  WHERE ID2 IN (SELECT ID2 FROM CldHistoryRow WHERE EntryID = "EntryID" AND OldRow IS NULL)
  ORDER BY ID2 FOR UPDATE;

  IF NOT CanBeUndone("EntryID") THEN
    "RETURN_VALUE" := 9;
    RETURN;
  END IF;

  entry := BeginEntry('CldUndo', undone.ID1, undone.Year1, json_build_object('EntryID', "EntryID"));
  PERFORM EndEntry(entry, PutBack("EntryID"));
  "RETURN_VALUE" := 0;
END
$$;

-- Entries of the history, the newest first: all, or those of a currency ID1, of a year Year1, of one day's changes (Day1,
-- with both; the creation and the removal of its calendar are among them), before the entry Before, of the user UserName, or
-- the entry EntryID; at most Count, 100 when it is not given. Name1 is the name that the rule of the parameter ID2 had
-- behind the call; KeepsRows 0 says that nothing can be put back: the call left everything as it was, or is older than what
-- the history keeps. Behind them comes who asks, and then what the call of the entry EntryID replaced besides days and
-- calendars: each row's key, and its other columns before and behind the call as JSON, null where there was no such row.
-- Returns 0; 7 Day1 without its calendar, or Count out of range.
CREATE PROCEDURE CldGetHistory(
  "ID1" integer DEFAULT NULL,
  "Year1" integer DEFAULT NULL,
  "Day1" integer DEFAULT NULL,
  "Before" integer DEFAULT NULL,
  "Count" integer DEFAULT NULL,
  "UserName" text DEFAULT NULL,
  "EntryID" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Entries" refcursor DEFAULT 'Entries',
  INOUT "Asker" refcursor DEFAULT 'Asker',
  INOUT "Rows" refcursor DEFAULT 'Rows'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  replaced json;
BEGIN
  IF "Day1" IS NOT NULL AND ("ID1" IS NULL OR "Year1" IS NULL) OR "Count" NOT BETWEEN 1 AND 10000 THEN
    "RETURN_VALUE" := 7;
    RETURN;
  END IF;

  OPEN "Entries" FOR
    SELECT h.EntryID::integer AS "EntryID",
      to_char(h.Moment AT TIME ZONE 'UTC', 'YYYY-MM-DD"T"HH24:MI:SS.MS"Z"') AS "Moment", h.UserName AS "UserName",
      h.ProcedureName AS "ProcedureName", h.ID1 AS "ID1", h.Year1 AS "Year1", h.Parameters::text AS "Parameters",
      h.RowsChanged::integer AS "RowsChanged",
      -- What the first call that changed the rule since then replaced, or what it is now.
      coalesce((
        SELECT later.OldRow ->> 'Name1' FROM CldHistoryRow later
        WHERE later.ID2 = (h.Parameters ->> 'ID2')::integer AND later.EntryID > h.EntryID
        ORDER BY later.EntryID LIMIT 1
      ), (SELECT rule.Name1 FROM CldHoliday rule WHERE rule.ID2 = (h.Parameters ->> 'ID2')::integer)) AS "Name1",
      (EXISTS (SELECT FROM CldHistoryRow kept WHERE kept.EntryID = h.EntryID))::integer AS "KeepsRows"
    FROM CldHistory h
    WHERE ("ID1" IS NULL OR h.ID1 = "ID1") AND ("Year1" IS NULL OR h.Year1 = "Year1")
      AND ("Before" IS NULL OR h.EntryID < "Before")
      AND ("UserName" IS NULL OR h.UserName = "UserName")
      AND ("EntryID" IS NULL OR h.EntryID = "EntryID")
      AND ("Day1" IS NULL OR EXISTS (
        SELECT FROM CldHistoryRow r
        WHERE r.EntryID = h.EntryID AND r.ID1 = "ID1" AND r.Year1 = "Year1" AND (r.Day1 = "Day1" OR r.Day1 IS NULL)))
    ORDER BY h.EntryID DESC LIMIT coalesce("Count", 100);

  OPEN "Asker" FOR SELECT session_user::text AS "UserName";

  -- Looked up here, where the functions find the tables; a cursor's rows are fetched when the call is over.
  SELECT json_agg(json_build_object('TableName', kept.TableName, 'ID1', kept.ID1, 'ID2', kept.ID2, 'Position', kept.Position,
    'OldRow', kept.OldRow::text,
    'NewRow', CASE WHEN next.EntryID IS NULL THEN ContentNow(kept) ELSE next.OldRow END::text)
    ORDER BY kept.TableName, kept.ID1, kept.ID2, kept.Position)
  INTO replaced
  FROM CldHistoryRow kept
    LEFT JOIN NextChanges("EntryID") AS next ON next.TableName = kept.TableName
      AND (next.ID1, next.ID2, next.Position) IS NOT DISTINCT FROM (kept.ID1, kept.ID2, kept.Position)
  WHERE kept.EntryID = "EntryID" AND kept.TableName NOT IN ('CldCalendar', 'CldDay');
  OPEN "Rows" FOR
    SELECT * FROM json_to_recordset(coalesce(replaced, '[]')) AS kept ("TableName" text, "ID1" integer, "ID2" integer,
      "Position" integer, "OldRow" text, "NewRow" text);
  "RETURN_VALUE" := 0;
END
$$;

-- The days of the calendar as they were after the last call at or before Moment, which is UTC: "2026-11-21T19:28:57.647Z",
-- or without milliseconds; or after the call of the entry EntryID of the history, 0 for before all of them. Either of the two
-- is given. The names and comments of the rules are those of that time, too.
-- Returns 0; 7 a value is missing or out of range; 3 unknown currency; 9 the history does not reach back so far; 5 there was
-- no such calendar then.
CREATE PROCEDURE CldGetAsOf(
  "ID1" integer DEFAULT NULL,
  "Year1" integer DEFAULT NULL,
  "Moment" text DEFAULT NULL,
  "EntryID" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Days" refcursor DEFAULT 'Days'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  as_of timestamptz := MomentFrom("Moment");
  last_entry bigint;
  calendar_now boolean;
  change CldHistoryRow;
BEGIN
  IF "ID1" IS NULL OR "Year1" IS NULL OR "Year1" NOT BETWEEN 1900 AND 3000
    OR ("Moment" IS NULL) = ("EntryID" IS NULL) OR (as_of IS NULL) <> ("Moment" IS NULL) OR "EntryID" < 0
  THEN
    "RETURN_VALUE" := 7;
    RETURN;
  END IF;
  calendar_now := EXISTS (SELECT FROM CldCalendar WHERE ID1 = "ID1" AND Year1 = "Year1");
  IF NOT calendar_now AND NOT EXISTS (SELECT FROM DicCcy WHERE CcyID = "ID1" AND CcyType = 0) THEN
    "RETURN_VALUE" := 3;
    RETURN;
  END IF;
  IF EXISTS (SELECT FROM CldHistoryStart WHERE Moment > as_of OR EntryID > "EntryID") THEN
    "RETURN_VALUE" := 9;
    RETURN;
  END IF;

  -- What a row was then is what the first change since has replaced, or what it is now. A calendar that has gone since was
  -- there; what came to be under its number later is another.
  SELECT EntryID INTO last_entry FROM CldHistory WHERE Moment <= as_of ORDER BY EntryID DESC LIMIT 1;
  last_entry := coalesce("EntryID", last_entry, 0);
  SELECT * INTO change FROM CldHistoryRow
  WHERE ID1 = "ID1" AND Year1 = "Year1" AND Day1 IS NULL AND EntryID > last_entry ORDER BY EntryID LIMIT 1;
  IF FOUND AND change.OldRow IS NULL OR NOT FOUND AND NOT calendar_now THEN
    "RETURN_VALUE" := 5;
    RETURN;
  END IF;

  OPEN "Days" FOR
    WITH kept_day AS (
      SELECT DISTINCT ON (Day1) Day1, OldRow FROM CldHistoryRow
      WHERE ID1 = "ID1" AND Year1 = "Year1" AND Day1 IS NOT NULL
        AND EntryID > last_entry AND EntryID <= coalesce(change.EntryID, EntryID)
      ORDER BY Day1, EntryID
    ), kept_rule AS (
      SELECT DISTINCT ON (ID2) ID2, OldRow FROM CldHistoryRow
      WHERE ID2 IS NOT NULL AND EntryID > last_entry ORDER BY ID2, EntryID
    ), day AS (
      SELECT n AS Day1,
        CASE WHEN k.Day1 IS NOT NULL THEN (k.OldRow ->> 'TID1')::integer ELSE coalesce(d.TID1, 1) END AS TID1,
        CASE WHEN k.Day1 IS NOT NULL THEN (k.OldRow ->> 'ID2')::integer ELSE d.ID2 END AS ID2,
        CASE WHEN k.Day1 IS NOT NULL THEN k.OldRow ->> 'Comment' ELSE d.Comment END AS Comment
      FROM generate_series(1, make_date("Year1" + 1, 1, 1) - make_date("Year1", 1, 1)) AS n
        LEFT JOIN kept_day k ON k.Day1 = n
        LEFT JOIN CldDay d ON change.EntryID IS NULL AND d.ID1 = "ID1" AND d.Year1 = "Year1" AND d.Day1 = n
    )
    SELECT make_date("Year1", 1, 1) + (day.Day1 - 1) AS "ODate", day.TID1 AS "TID1",
      CASE WHEN k.ID2 IS NOT NULL THEN k.OldRow ->> 'Name1' ELSE h.Name1 END AS "Name1",
      CASE WHEN k.ID2 IS NOT NULL THEN k.OldRow ->> 'Comment' ELSE h.Comment END AS "Comment2",
      day.Comment AS "Comment", day.ID2 AS "ID2", day.Day1 AS "Day1"
    FROM day LEFT JOIN kept_rule k ON k.ID2 = day.ID2 LEFT JOIN CldHoliday h ON h.ID2 = day.ID2
    ORDER BY day.Day1;
  "RETURN_VALUE" := 0;
END
$$;

-- Of every calendar of the years FromYear to ToYear its days as a text: '1' for a closed day, '0' for a working day; and the code
-- of its currency. Rules has the numbers of the rules that close those days, in their order, with commas between; the second
-- record set tells what the rules are called. IsPrepared is 0 of a calendar that is closed on weekends at most, because nobody has entered its holidays yet.
-- Readers may call it, too.
-- Returns 0; 7 a value is missing, or the years are not in order.
CREATE PROCEDURE CldGetClosedDays(
  "FromYear" integer DEFAULT NULL,
  "ToYear" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Calendars" refcursor DEFAULT 'Calendars',
  INOUT "Rules" refcursor DEFAULT 'Rules'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  IF "FromYear" IS NULL OR "ToYear" IS NULL OR "FromYear" > "ToYear" THEN
    "RETURN_VALUE" := 7;
    RETURN;
  END IF;

  OPEN "Calendars" FOR
    SELECT ID1 AS "ID1", Year1 AS "Year1", Days AS "Days", Ccy AS "Ccy", IsPrepared AS "IsPrepared", Rules AS "Rules"
    FROM (
      SELECT ID1, Year1, string_agg(CASE TID1 WHEN 1 THEN '0' ELSE '1' END, '' ORDER BY Day1) AS Days,
        bool_or(TID1 > 2)::integer AS IsPrepared,
        coalesce(string_agg(ID2::text, ',' ORDER BY Day1) FILTER (WHERE TID1 <> 1), '') AS Rules
      FROM CldDay WHERE Year1 BETWEEN "FromYear" AND "ToYear" GROUP BY ID1, Year1
    ) AS calendar JOIN DicCcy ON CcyID = ID1
    ORDER BY ID1, Year1;
  OPEN "Rules" FOR SELECT ID2 AS "ID2", Name1 AS "Name1" FROM CldHoliday ORDER BY ID2;
  "RETURN_VALUE" := 0;
END
$$;

-- Every day of the years FromYear to ToYear that has a rule, whatever the calendar; exceptions are among them.
-- Returns 0; 7 a value is missing, or the years are not in order.
CREATE PROCEDURE CldGetMarkedDays(
  "FromYear" integer DEFAULT NULL,
  "ToYear" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Days" refcursor DEFAULT 'Days'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  IF "FromYear" IS NULL OR "ToYear" IS NULL OR "FromYear" > "ToYear" THEN
    "RETURN_VALUE" := 7;
    RETURN;
  END IF;

  OPEN "Days" FOR
    SELECT ID1 AS "ID1", Year1 AS "Year1", Day1 AS "Day1", TID1 AS "TID1", ID2 AS "ID2", Comment AS "Comment"
    FROM CldDay WHERE Year1 BETWEEN "FromYear" AND "ToYear" AND ID2 IS NOT NULL ORDER BY ID1, Year1, Day1;
  "RETURN_VALUE" := 0;
END
$$;

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

-- All currencies, those that are no legal money any more, and what else the standard has numbers for (CcyType 1).
CREATE PROCEDURE CldGetCurrencies(
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Currencies" refcursor DEFAULT 'Currencies'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  OPEN "Currencies" FOR
    SELECT CcyID AS "CcyID", Ccy AS "Ccy", CcyType AS "CcyType", Name AS "Name", LastDay AS "LastDay"
    FROM DicCcy ORDER BY CcyID;
  "RETURN_VALUE" := 0;
END
$$;

-- All that reviews look at: every calendar with the days that have a rule as one text, the rules, the heads of the rule
-- books and their rules, the currencies. In the text each day is "Day1,TID1,ID2,length:Comment", where the length counts
-- the bytes of the comment, and nothing stands between one day and the next.
-- Returns 0.
CREATE PROCEDURE CldGetContent(
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Calendars" refcursor DEFAULT 'Calendars',
  INOUT "Rules" refcursor DEFAULT 'Rules',
  INOUT "Books" refcursor DEFAULT 'Books',
  INOUT "Recurrences" refcursor DEFAULT 'Recurrences',
  INOUT "Currencies" refcursor DEFAULT 'Currencies'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  OPEN "Calendars" FOR
    SELECT k.ID1 AS "ID1", k.Year1 AS "Year1", coalesce(d.Days, '') AS "Days"
    FROM CldCalendar k LEFT JOIN (
      SELECT ID1, Year1, string_agg(
        Day1 || ',' || TID1 || ',' || ID2 || ',' || octet_length(coalesce(Comment, '')) || ':' || coalesce(Comment, ''),
        '' ORDER BY Day1) AS Days
      FROM CldDay WHERE ID2 IS NOT NULL GROUP BY ID1, Year1
    ) d ON d.ID1 = k.ID1 AND d.Year1 = k.Year1
    ORDER BY k.ID1, k.Year1;
  OPEN "Rules" FOR
    SELECT ID2 AS "ID2", Name1 AS "Name1", TID1 AS "TID1", MY AS "MY", MD AS "MD", Del AS "Del"
    FROM CldHoliday ORDER BY ID2;
  OPEN "Books" FOR
    SELECT ID1 AS "ID1", Publisher AS "Publisher", Document AS "Document", FromYear AS "FromYear"
    FROM CldBook ORDER BY ID1;
  OPEN "Recurrences" FOR
    SELECT ID1 AS "ID1", Position AS "Position", Name1 AS "Name1", TID1 AS "TID1", Expression AS "Expression",
      Comment AS "Comment", MovedName AS "MovedName"
    FROM CldRecurrence ORDER BY ID1, Position;
  OPEN "Currencies" FOR
    SELECT CcyID AS "CcyID", Ccy AS "Ccy", CcyType AS "CcyType", Name AS "Name", LastDay AS "LastDay"
    FROM DicCcy ORDER BY CcyID;
  "RETURN_VALUE" := 0;
END
$$;

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

-- What the database says of the market's conventions beside those that come with the program: of a pair of currencies the days
-- from trade to spot; of one currency, without OtherID and OtherCcy, whether a holiday of the dollar stops the count (1 or 0).
-- Readers may call it, too.
CREATE PROCEDURE CldGetConventions(
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Conventions" refcursor DEFAULT 'Conventions'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  OPEN "Conventions" FOR
    SELECT v.ID1 AS "ID1", o.CcyID AS "OtherID", c.Ccy AS "Ccy", o.Ccy AS "OtherCcy", v.SpotDays AS "SpotDays",
      v.DollarStops AS "DollarStops"
    FROM CldConvention v
      JOIN DicCcy c ON c.CcyID = v.ID1
      LEFT JOIN DicCcy o ON o.CcyID = v.OtherID AND v.OtherID <> v.ID1
    ORDER BY v.ID1, v.OtherID;
  "RETURN_VALUE" := 0;
END
$$;

-- What every calendar database holds, an empty one too. The currencies are delivered in a script of their own.

INSERT INTO CldHolidayType (TID1, Description1) VALUES
(1, 'Working day'),
(2, 'Holiday'),
(3, 'Celebration'),
(4, 'Holiday point');

INSERT INTO CldHoliday (ID2, Name1, TID1) VALUES (1, 'Working day by exception', 1);

INSERT INTO CldSetting (FirstDay) VALUES (1);

-- The currencies of ISO 4217 as amended by the end of 2025. CcyID is the standard's number; CcyType is 0 for the money of
-- a country or a monetary union and 1 for everything else in the standard: precious metals, bond-market units, funds and
-- index-linked units, supranational units of account, the codes for testing and for no currency, and money of the past,
-- which has a LastDay. ANG shared its number with XCG, its successor, and has one of its country instead (530).
-- Made by tools/make_currencies.py; change the tool, not this file.
INSERT INTO DicCcy (CcyID, Ccy, CcyType, Name, LastDay) VALUES
(784, 'AED', 0, 'UAE Dirham', NULL),
(971, 'AFN', 0, 'Afghani', NULL),
(8, 'ALL', 0, 'Lek', NULL),
(51, 'AMD', 0, 'Armenian Dram', NULL),
(530, 'ANG', 1, 'Netherlands Antillean Guilder', '2025-03-30'),
(973, 'AOA', 0, 'Kwanza', NULL),
(32, 'ARS', 0, 'Argentine Peso', NULL),
(36, 'AUD', 0, 'Australian Dollar', NULL),
(533, 'AWG', 0, 'Aruban Florin', NULL),
(944, 'AZN', 0, 'Azerbaijan Manat', NULL),
(977, 'BAM', 0, 'Convertible Mark', NULL),
(52, 'BBD', 0, 'Barbados Dollar', NULL),
(50, 'BDT', 0, 'Taka', NULL),
(975, 'BGN', 1, 'Bulgarian Lev', '2025-12-31'),
(48, 'BHD', 0, 'Bahraini Dinar', NULL),
(108, 'BIF', 0, 'Burundi Franc', NULL),
(60, 'BMD', 0, 'Bermudian Dollar', NULL),
(96, 'BND', 0, 'Brunei Dollar', NULL),
(68, 'BOB', 0, 'Boliviano', NULL),
(984, 'BOV', 1, 'Mvdol', NULL),
(986, 'BRL', 0, 'Brazilian Real', NULL),
(44, 'BSD', 0, 'Bahamian Dollar', NULL),
(64, 'BTN', 0, 'Ngultrum', NULL),
(72, 'BWP', 0, 'Pula', NULL),
(933, 'BYN', 0, 'Belarusian Ruble', NULL),
(84, 'BZD', 0, 'Belize Dollar', NULL),
(124, 'CAD', 0, 'Canadian Dollar', NULL),
(976, 'CDF', 0, 'Congolese Franc', NULL),
(947, 'CHE', 1, 'WIR Euro', NULL),
(756, 'CHF', 0, 'Swiss Franc', NULL),
(948, 'CHW', 1, 'WIR Franc', NULL),
(990, 'CLF', 1, 'Unidad de Fomento', NULL),
(152, 'CLP', 0, 'Chilean Peso', NULL),
(156, 'CNY', 0, 'Yuan Renminbi', NULL),
(170, 'COP', 0, 'Colombian Peso', NULL),
(970, 'COU', 1, 'Unidad de Valor Real', NULL),
(188, 'CRC', 0, 'Costa Rican Colon', NULL),
(931, 'CUC', 1, 'Peso Convertible', '2021-06-30'),
(192, 'CUP', 0, 'Cuban Peso', NULL),
(132, 'CVE', 0, 'Cabo Verde Escudo', NULL),
(203, 'CZK', 0, 'Czech Koruna', NULL),
(262, 'DJF', 0, 'Djibouti Franc', NULL),
(208, 'DKK', 0, 'Danish Krone', NULL),
(214, 'DOP', 0, 'Dominican Peso', NULL),
(12, 'DZD', 0, 'Algerian Dinar', NULL),
(818, 'EGP', 0, 'Egyptian Pound', NULL),
(232, 'ERN', 0, 'Nakfa', NULL),
(230, 'ETB', 0, 'Ethiopian Birr', NULL),
(978, 'EUR', 0, 'Euro', NULL),
(242, 'FJD', 0, 'Fiji Dollar', NULL),
(238, 'FKP', 0, 'Falkland Islands Pound', NULL),
(826, 'GBP', 0, 'Pound Sterling', NULL),
(981, 'GEL', 0, 'Lari', NULL),
(936, 'GHS', 0, 'Ghana Cedi', NULL),
(292, 'GIP', 0, 'Gibraltar Pound', NULL),
(270, 'GMD', 0, 'Dalasi', NULL),
(324, 'GNF', 0, 'Guinean Franc', NULL),
(320, 'GTQ', 0, 'Quetzal', NULL),
(328, 'GYD', 0, 'Guyana Dollar', NULL),
(344, 'HKD', 0, 'Hong Kong Dollar', NULL),
(340, 'HNL', 0, 'Lempira', NULL),
(191, 'HRK', 1, 'Kuna', '2022-12-31'),
(332, 'HTG', 0, 'Gourde', NULL),
(348, 'HUF', 0, 'Forint', NULL),
(360, 'IDR', 0, 'Rupiah', NULL),
(376, 'ILS', 0, 'New Israeli Sheqel', NULL),
(356, 'INR', 0, 'Indian Rupee', NULL),
(368, 'IQD', 0, 'Iraqi Dinar', NULL),
(364, 'IRR', 0, 'Iranian Rial', NULL),
(352, 'ISK', 0, 'Iceland Krona', NULL),
(388, 'JMD', 0, 'Jamaican Dollar', NULL),
(400, 'JOD', 0, 'Jordanian Dinar', NULL),
(392, 'JPY', 0, 'Yen', NULL),
(404, 'KES', 0, 'Kenyan Shilling', NULL),
(417, 'KGS', 0, 'Som', NULL),
(116, 'KHR', 0, 'Riel', NULL),
(174, 'KMF', 0, 'Comorian Franc', NULL),
(408, 'KPW', 0, 'North Korean Won', NULL),
(410, 'KRW', 0, 'Won', NULL),
(414, 'KWD', 0, 'Kuwaiti Dinar', NULL),
(136, 'KYD', 0, 'Cayman Islands Dollar', NULL),
(398, 'KZT', 0, 'Tenge', NULL),
(418, 'LAK', 0, 'Lao Kip', NULL),
(422, 'LBP', 0, 'Lebanese Pound', NULL),
(144, 'LKR', 0, 'Sri Lanka Rupee', NULL),
(430, 'LRD', 0, 'Liberian Dollar', NULL),
(426, 'LSL', 0, 'Loti', NULL),
(434, 'LYD', 0, 'Libyan Dinar', NULL),
(504, 'MAD', 0, 'Moroccan Dirham', NULL),
(498, 'MDL', 0, 'Moldovan Leu', NULL),
(969, 'MGA', 0, 'Malagasy Ariary', NULL),
(807, 'MKD', 0, 'Denar', NULL),
(104, 'MMK', 0, 'Kyat', NULL),
(496, 'MNT', 0, 'Tugrik', NULL),
(446, 'MOP', 0, 'Pataca', NULL),
(929, 'MRU', 0, 'Ouguiya', NULL),
(480, 'MUR', 0, 'Mauritius Rupee', NULL),
(462, 'MVR', 0, 'Rufiyaa', NULL),
(454, 'MWK', 0, 'Malawi Kwacha', NULL),
(484, 'MXN', 0, 'Mexican Peso', NULL),
(979, 'MXV', 1, 'Mexican Unidad de Inversion (UDI)', NULL),
(458, 'MYR', 0, 'Malaysian Ringgit', NULL),
(943, 'MZN', 0, 'Mozambique Metical', NULL),
(516, 'NAD', 0, 'Namibia Dollar', NULL),
(566, 'NGN', 0, 'Naira', NULL),
(558, 'NIO', 0, 'Cordoba Oro', NULL),
(578, 'NOK', 0, 'Norwegian Krone', NULL),
(524, 'NPR', 0, 'Nepalese Rupee', NULL),
(554, 'NZD', 0, 'New Zealand Dollar', NULL),
(512, 'OMR', 0, 'Rial Omani', NULL),
(590, 'PAB', 0, 'Balboa', NULL),
(604, 'PEN', 0, 'Sol', NULL),
(598, 'PGK', 0, 'Kina', NULL),
(608, 'PHP', 0, 'Philippine Peso', NULL),
(586, 'PKR', 0, 'Pakistan Rupee', NULL),
(985, 'PLN', 0, 'Zloty', NULL),
(600, 'PYG', 0, 'Guarani', NULL),
(634, 'QAR', 0, 'Qatari Rial', NULL),
(946, 'RON', 0, 'Romanian Leu', NULL),
(941, 'RSD', 0, 'Serbian Dinar', NULL),
(643, 'RUB', 0, 'Russian Ruble', NULL),
(646, 'RWF', 0, 'Rwanda Franc', NULL),
(682, 'SAR', 0, 'Saudi Riyal', NULL),
(90, 'SBD', 0, 'Solomon Islands Dollar', NULL),
(690, 'SCR', 0, 'Seychelles Rupee', NULL),
(938, 'SDG', 0, 'Sudanese Pound', NULL),
(752, 'SEK', 0, 'Swedish Krona', NULL),
(702, 'SGD', 0, 'Singapore Dollar', NULL),
(654, 'SHP', 0, 'Saint Helena Pound', NULL),
(925, 'SLE', 0, 'Leone', NULL),
(694, 'SLL', 1, 'Leone', '2023-12-31'),
(706, 'SOS', 0, 'Somali Shilling', NULL),
(968, 'SRD', 0, 'Surinam Dollar', NULL),
(728, 'SSP', 0, 'South Sudanese Pound', NULL),
(930, 'STN', 0, 'Dobra', NULL),
(222, 'SVC', 0, 'El Salvador Colon', NULL),
(760, 'SYP', 0, 'Syrian Pound', NULL),
(748, 'SZL', 0, 'Lilangeni', NULL),
(764, 'THB', 0, 'Baht', NULL),
(972, 'TJS', 0, 'Somoni', NULL),
(934, 'TMT', 0, 'Turkmenistan New Manat', NULL),
(788, 'TND', 0, 'Tunisian Dinar', NULL),
(776, 'TOP', 0, 'Pa’anga', NULL),
(949, 'TRY', 0, 'Turkish Lira', NULL),
(780, 'TTD', 0, 'Trinidad and Tobago Dollar', NULL),
(901, 'TWD', 0, 'New Taiwan Dollar', NULL),
(834, 'TZS', 0, 'Tanzanian Shilling', NULL),
(980, 'UAH', 0, 'Hryvnia', NULL),
(800, 'UGX', 0, 'Uganda Shilling', NULL),
(840, 'USD', 0, 'US Dollar', NULL),
(997, 'USN', 1, 'US Dollar (Next day)', NULL),
(940, 'UYI', 1, 'Uruguay Peso en Unidades Indexadas (UI)', NULL),
(858, 'UYU', 0, 'Peso Uruguayo', NULL),
(927, 'UYW', 1, 'Unidad Previsional', NULL),
(860, 'UZS', 0, 'Uzbekistan Sum', NULL),
(926, 'VED', 0, 'Bolívar Soberano', NULL),
(928, 'VES', 0, 'Bolívar Soberano', NULL),
(704, 'VND', 0, 'Dong', NULL),
(548, 'VUV', 0, 'Vatu', NULL),
(882, 'WST', 0, 'Tala', NULL),
(396, 'XAD', 1, 'Arab Accounting Dinar', NULL),
(950, 'XAF', 0, 'CFA Franc BEAC', NULL),
(961, 'XAG', 1, 'Silver', NULL),
(959, 'XAU', 1, 'Gold', NULL),
(955, 'XBA', 1, 'Bond Markets Unit European Composite Unit (EURCO)', NULL),
(956, 'XBB', 1, 'Bond Markets Unit European Monetary Unit (E.M.U.-6)', NULL),
(957, 'XBC', 1, 'Bond Markets Unit European Unit of Account 9 (E.U.A.-9)', NULL),
(958, 'XBD', 1, 'Bond Markets Unit European Unit of Account 17 (E.U.A.-17)', NULL),
(951, 'XCD', 0, 'East Caribbean Dollar', NULL),
(532, 'XCG', 0, 'Caribbean Guilder', NULL),
(960, 'XDR', 1, 'SDR (Special Drawing Right)', NULL),
(952, 'XOF', 0, 'CFA Franc BCEAO', NULL),
(964, 'XPD', 1, 'Palladium', NULL),
(953, 'XPF', 0, 'CFP Franc', NULL),
(962, 'XPT', 1, 'Platinum', NULL),
(994, 'XSU', 1, 'Sucre', NULL),
(963, 'XTS', 1, 'Codes specifically reserved for testing purposes', NULL),
(965, 'XUA', 1, 'ADB Unit of Account', NULL),
(999, 'XXX', 1, 'The codes assigned for transactions where no currency is involved', NULL),
(886, 'YER', 0, 'Yemeni Rial', NULL),
(710, 'ZAR', 0, 'Rand', NULL),
(967, 'ZMW', 0, 'Zambian Kwacha', NULL),
(924, 'ZWG', 0, 'Zimbabwe Gold', NULL),
(932, 'ZWL', 1, 'Zimbabwe Dollar', '2024-08-31');

-- Who may do what: operators call the procedures and read the dictionary, readers read the views of calendars and days, and
-- nobody else has any right. The procedures run with their owner's rights, so operators need none on a table. Which
-- currencies there are is decided by administrators, who are members of the owner: CldIUCurrency and CldIUConvention are for nobody else.
-- Downstream systems are readers: they get closed days and conventions by a call, and ask for business days and value dates. The
-- history names people: operators see it through CldGetHistory, to undo what went wrong, and no view of it is for readers.

REVOKE ALL ON SCHEMA ferrowind FROM PUBLIC;
REVOKE ALL ON ALL TABLES IN SCHEMA ferrowind FROM PUBLIC;
REVOKE ALL ON ALL ROUTINES IN SCHEMA ferrowind FROM PUBLIC;

GRANT USAGE ON SCHEMA ferrowind TO ferrowind_operator, ferrowind_reader;
GRANT EXECUTE ON PROCEDURE CldAllInfo, CldGetMain, CldIUMain, CldIUCelebrate, CldGetBook, CldIUBook, CldGetFingerprint,
  CldApplyPlan, CldUndo, CldGetHistory, CldGetAsOf, CldGetClosedDays, CldGetMarkedDays, CldGetCurrencies,
  CldGetContent, CldGetConventions
TO ferrowind_operator;
GRANT EXECUTE ON PROCEDURE CldGetClosedDays, CldGetConventions TO ferrowind_reader;
GRANT EXECUTE ON FUNCTION IsBusinessDay(text, date), IsBusinessDay(text[], date), AddBusinessDays(text, date, integer),
  AddBusinessDays(text[], date, integer), AdjustDate(text, date, text), AdjustDate(text[], date, text),
  SpotDate(text, date, boolean), ValueDate(text, date, text, boolean)
TO ferrowind_operator, ferrowind_reader;
GRANT SELECT ON DictionaryCcy TO ferrowind_operator;
GRANT SELECT ON CalendarList, CalendarDay TO ferrowind_reader;

-- The database itself belongs to whoever created it.
RESET ROLE;
DO $$
BEGIN
  EXECUTE format('REVOKE ALL ON DATABASE %I FROM PUBLIC', current_database());
  EXECUTE format('GRANT CONNECT ON DATABASE %I TO ferrowind_owner, ferrowind_operator, ferrowind_reader',
                 current_database());
END $$;
REVOKE ALL ON SCHEMA public FROM PUBLIC;

-- Anyone who may connect may otherwise fill the disk with large objects. Only a superuser can forbid it.
DO $$
BEGIN
  IF (SELECT rolsuper FROM pg_roles WHERE rolname = current_user) THEN
    REVOKE EXECUTE ON FUNCTION pg_catalog.lo_creat(integer), pg_catalog.lo_create(oid),
      pg_catalog.lo_from_bytea(oid, bytea) FROM PUBLIC;
  END IF;
END $$;

-- What is in it.
INSERT INTO ferrowind.cldchainstart VALUES (0, 2, 0, NULL, '8a02d33671ddeab292a6893ef76839654da876e4f59d920b75d0a536c4965489');
INSERT INTO ferrowind.cldchainstart VALUES (0, 3, 0, NULL, '75e36d697bd3845d36249ff535a3a0ce9810b3b9e38b2f312d29044411e7b11b');
INSERT INTO ferrowind.cldchainstart VALUES (0, 6, 0, NULL, 'e9bfd65ae870740037eb46f9d44a44fb4c766179d1ee7d02a678c7d6633b4c32');
INSERT INTO ferrowind.cldholiday VALUES (2, 'Sunday', NULL, 2, NULL, NULL, NULL, 1, NULL);
INSERT INTO ferrowind.cldcalendar VALUES (978, 2026);
INSERT INTO ferrowind.cldday SELECT 978, 2026, n, date '2026-01-01' + (n - 1), 1 FROM generate_series(1, 365) AS n;
INSERT INTO ferrowind.cldhistory VALUES (1, '2026-11-23 15:16:03.513+00', 'postgres', 'CldIUCelebrate', NULL, NULL, '{"Name1" : "Sunday", "Comment" : null, "TID1" : 2, "WD" : 1, "D1" : null, "MY" : null, "MD" : null, "ID2" : null, "Del" : null}', 0, 1, 1, '', '018124aab41de33af3e1755cec69a2c93bbe82a241cd8302b150da304c69f7b7');
INSERT INTO ferrowind.cldhistory VALUES (2, '2026-11-23 15:16:03.655+00', 'postgres', 'CldIUMain', 978, 2026, '{"ID1" : 978, "Year1" : 2026, "TID1" : null, "ID2" : null, "Day1" : null, "ODate" : null, "Comment" : null}', 0, 366, 1, '', '348a5914244511d009257d371c48d53eb2774ae8ec06047c495a5c2c37556b39');
INSERT INTO ferrowind.cldhistoryrow VALUES (1, 1, 'CldHoliday', NULL, NULL, NULL, 2, NULL, NULL, '{"Name1" : "Sunday", "Comment" : null, "TID1" : 2, "D1" : null, "MY" : null, "MD" : null, "WD" : 1, "Del" : null}');
INSERT INTO ferrowind.cldhistoryrow VALUES (2, 1, 'CldCalendar', 978, 2026, NULL, NULL, NULL, NULL, '{}');
SELECT setval('ferrowind.cldhistory_entryid_seq', 2, true);
