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
INSERT INTO SchemaVersion (Version) VALUES (8);

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
