-- A calendar database as version 2 of the schema had it, empty, for a database that is empty; run in one transaction. What
-- upgrades from there are tested on; it stays as it is.

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
INSERT INTO SchemaVersion (Version) VALUES (2);

CREATE TABLE DicCcy (
  CcyID integer PRIMARY KEY,
  Ccy text COLLATE "C" NOT NULL UNIQUE,
  CcyType smallint NOT NULL CHECK (CcyType IN (0, 1)),
  Name text NOT NULL
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

-- One row. FirstDay: the weekday that a week begins with, 1 Sunday to 7 Saturday.
CREATE TABLE CldSetting (
  FirstDay integer NOT NULL CHECK (FirstDay BETWEEN 1 AND 7)
);
CREATE UNIQUE INDEX CldSettingHasOneRow ON CldSetting ((1));

-- An entry for every call of a procedure that changes something and returned 0, added by the procedure itself, so in the
-- call's own transaction: when, which login, what was called with which values (every parameter by name, null for none), and
-- how many rows of other tables it added or changed. ID1 and Year1 name the calendar that the call was for, when it was for
-- one. Nobody but the owner has a right on it, and only procedures act as the owner: entries are only ever added.
CREATE TABLE CldHistory (
  EntryID bigint GENERATED BY DEFAULT AS IDENTITY PRIMARY KEY,
  Moment timestamptz(3) NOT NULL DEFAULT clock_timestamp(),
  UserName text NOT NULL DEFAULT session_user,
  ProcedureName text NOT NULL,
  ID1 integer,
  Year1 integer,
  Parameters json NOT NULL,
  ReturnValue integer NOT NULL,
  RowsChanged bigint NOT NULL CHECK (RowsChanged >= 0)
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

-- What the windows need before a calendar is chosen: calendars, holiday types, holiday rules, first weekday.
-- The cursors see the tables one moment after the other. Nothing that one of them refers to is ever deleted.
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
  IF NOT EXISTS (SELECT FROM CldCalendar WHERE ID1 = "ID1" AND Year1 = "Year1") THEN
    "RETURN_VALUE" := CASE
      WHEN "ID1" IS NULL OR "Year1" IS NULL OR "Year1" NOT BETWEEN 1900 AND 3000 THEN 7
      WHEN NOT EXISTS (SELECT FROM DicCcy WHERE CcyID = "ID1" AND CcyType = 0) THEN 3
      ELSE 5
    END;
    RETURN;
  END IF;

  OPEN "Days" FOR
    SELECT d.ODate AS "ODate", d.TID1 AS "TID1", h.Name1 AS "Name1", h.Comment AS "Comment2", d.Comment AS "Comment",
      d.ID2 AS "ID2", d.Day1 AS "Day1"
    FROM CldDay d LEFT JOIN CldHoliday h ON h.ID2 = d.ID2
    WHERE d.ID1 = "ID1" AND d.Year1 = "Year1"
    ORDER BY d.Day1;
  "RETURN_VALUE" := 0;
END
$$;

-- Without TID1 creates the calendar of the currency ID1 for Year1, every day an ordinary working day. With TID1 gives
-- days of the calendar the rule ID2 of that type: the day Day1, or for a weekday rule (type 2) without Day1 every day
-- of the year on its weekday. What a day carried before, its comment included, is replaced.
-- Returns 0; 7 a value is missing or out of range; 3 unknown currency; 4 unknown rule (a removed one is not assigned
-- either); 5 unknown calendar; 6 the calendar exists already.
-- Whoever changes a calendar's days locks the calendar's row first, so that two calls for one calendar run one after the
-- other and never wait for each other in turns.
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
  rule CldHoliday;
  weekday integer;
  rows_changed bigint;
BEGIN
  "RETURN_VALUE" := 7;
  IF "ID1" IS NULL OR "Year1" IS NULL OR "Year1" NOT BETWEEN 1900 AND 3000 THEN
    RETURN;
  END IF;
  first_date := make_date("Year1", 1, 1);

  -- Only money has calendars: the windows list no other currency that a calendar could stand under.
  IF NOT EXISTS (SELECT FROM DicCcy WHERE CcyID = "ID1" AND CcyType = 0) THEN
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
    -- Waits for a call that is creating the same calendar just now.
    INSERT INTO CldCalendar (ID1, Year1) VALUES ("ID1", "Year1") ON CONFLICT DO NOTHING;
    IF NOT FOUND THEN
      "RETURN_VALUE" := 6;
      RETURN;
    END IF;
    INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1)
    SELECT "ID1", "Year1", day, first_date + (day - 1), 1
    FROM generate_series(1, make_date("Year1" + 1, 1, 1) - first_date) AS day;
    GET DIAGNOSTICS rows_changed = ROW_COUNT;
    rows_changed := rows_changed + 1;
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

    SELECT * INTO rule FROM CldHoliday WHERE ID2 = "ID2" AND Del IS DISTINCT FROM 2;
    IF NOT FOUND THEN
      "RETURN_VALUE" := 4;
      RETURN;
    END IF;
    IF rule.TID1 <> "TID1" THEN
      RETURN;
    END IF;

    IF "Day1" IS NOT NULL THEN
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
  END IF;

  INSERT INTO CldHistory (ProcedureName, ID1, Year1, Parameters, ReturnValue, RowsChanged)
  VALUES ('CldIUMain', "ID1", "Year1",
    json_build_object('ID1', "ID1", 'Year1', "Year1", 'TID1', "TID1", 'ID2', "ID2", 'Day1', "Day1", 'ODate', "ODate",
      'Comment', "Comment"),
    0, rows_changed);
  "RETURN_VALUE" := 0;
END
$$;

-- With Del sets the removal mark of the rule ID2, nothing else given. Otherwise updates the rule ID2 or, without ID2,
-- inserts a rule: a weekday rule (type 2) has WD; one of type 3 or 4 has D1, MY and MD. The type of a rule stays.
-- Returns 0; 7 a value is missing or out of range; 4 unknown rule; 2 a rule of that name exists; 10 a removed rule
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
  rows_changed bigint;
BEGIN
  "RETURN_VALUE" := 7;
  IF "Del" IS NOT NULL THEN
    IF "Del" NOT IN (2, 4) OR "ID2" IS NULL
      OR num_nonnulls("Name1", "Comment", "TID1", "WD", "D1", "MY", "MD") > 0
    THEN
      RETURN;
    END IF;
  ELSIF "Name1" IS NULL OR btrim("Name1", ' ') = '' OR "TID1" IS NULL OR "TID1" NOT BETWEEN 2 AND 4 THEN
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

  IF "Del" IS NOT NULL THEN
    UPDATE CldHoliday SET Del = "Del" WHERE ID2 = "ID2";
  ELSE
    SELECT * INTO namesake FROM CldHoliday
    WHERE NameKey(Name1) = NameKey("Name1") AND ID2 IS DISTINCT FROM "ID2";
    IF FOUND THEN
      "RETURN_VALUE" := CASE namesake.Del WHEN 2 THEN 10 ELSE 2 END;
      RETURN;
    END IF;

    IF "ID2" IS NOT NULL THEN
      UPDATE CldHoliday SET Name1 = "Name1", Comment = "Comment", WD = "WD", D1 = "D1", MY = "MY", MD = "MD"
      WHERE ID2 = "ID2";
    ELSE
      INSERT INTO CldHoliday (ID2, Name1, Comment, TID1, WD, D1, MY, MD)
      SELECT max(ID2) + 1, "Name1", "Comment", "TID1", "WD", "D1", "MY", "MD" FROM CldHoliday;
    END IF;
  END IF;
  GET DIAGNOSTICS rows_changed = ROW_COUNT;

  INSERT INTO CldHistory (ProcedureName, Parameters, ReturnValue, RowsChanged)
  VALUES ('CldIUCelebrate',
    json_build_object('Name1', "Name1", 'Comment', "Comment", 'TID1', "TID1", 'WD', "WD", 'D1', "D1", 'MY', "MY", 'MD', "MD",
      'ID2', "ID2", 'Del', "Del"),
    0, rows_changed);
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

-- The currencies of ISO 4217. CcyID is the standard's number; CcyType is 0 for the money of a country or a monetary
-- union and 1 for everything else in the standard: precious metals, bond-market units, funds and index-linked units,
-- supranational units of account, and the codes for testing and for no currency.
-- Made by tools/make_currencies.py; change the tool, not this file.
INSERT INTO DicCcy (CcyID, Ccy, CcyType, Name) VALUES
(784, 'AED', 0, 'UAE Dirham'),
(971, 'AFN', 0, 'Afghani'),
(8, 'ALL', 0, 'Lek'),
(51, 'AMD', 0, 'Armenian Dram'),
(532, 'ANG', 0, 'Netherlands Antillean Guilder'),
(973, 'AOA', 0, 'Kwanza'),
(32, 'ARS', 0, 'Argentine Peso'),
(36, 'AUD', 0, 'Australian Dollar'),
(533, 'AWG', 0, 'Aruban Florin'),
(944, 'AZN', 0, 'Azerbaijan Manat'),
(977, 'BAM', 0, 'Convertible Mark'),
(52, 'BBD', 0, 'Barbados Dollar'),
(50, 'BDT', 0, 'Taka'),
(975, 'BGN', 0, 'Bulgarian Lev'),
(48, 'BHD', 0, 'Bahraini Dinar'),
(108, 'BIF', 0, 'Burundi Franc'),
(60, 'BMD', 0, 'Bermudian Dollar'),
(96, 'BND', 0, 'Brunei Dollar'),
(68, 'BOB', 0, 'Boliviano'),
(984, 'BOV', 1, 'Mvdol'),
(986, 'BRL', 0, 'Brazilian Real'),
(44, 'BSD', 0, 'Bahamian Dollar'),
(64, 'BTN', 0, 'Ngultrum'),
(72, 'BWP', 0, 'Pula'),
(933, 'BYN', 0, 'Belarusian Ruble'),
(84, 'BZD', 0, 'Belize Dollar'),
(124, 'CAD', 0, 'Canadian Dollar'),
(976, 'CDF', 0, 'Congolese Franc'),
(947, 'CHE', 1, 'WIR Euro'),
(756, 'CHF', 0, 'Swiss Franc'),
(948, 'CHW', 1, 'WIR Franc'),
(990, 'CLF', 1, 'Unidad de Fomento'),
(152, 'CLP', 0, 'Chilean Peso'),
(156, 'CNY', 0, 'Yuan Renminbi'),
(170, 'COP', 0, 'Colombian Peso'),
(970, 'COU', 1, 'Unidad de Valor Real'),
(188, 'CRC', 0, 'Costa Rican Colon'),
(931, 'CUC', 0, 'Peso Convertible'),
(192, 'CUP', 0, 'Cuban Peso'),
(132, 'CVE', 0, 'Cabo Verde Escudo'),
(203, 'CZK', 0, 'Czech Koruna'),
(262, 'DJF', 0, 'Djibouti Franc'),
(208, 'DKK', 0, 'Danish Krone'),
(214, 'DOP', 0, 'Dominican Peso'),
(12, 'DZD', 0, 'Algerian Dinar'),
(818, 'EGP', 0, 'Egyptian Pound'),
(232, 'ERN', 0, 'Nakfa'),
(230, 'ETB', 0, 'Ethiopian Birr'),
(978, 'EUR', 0, 'Euro'),
(242, 'FJD', 0, 'Fiji Dollar'),
(238, 'FKP', 0, 'Falkland Islands Pound'),
(826, 'GBP', 0, 'Pound Sterling'),
(981, 'GEL', 0, 'Lari'),
(936, 'GHS', 0, 'Ghana Cedi'),
(292, 'GIP', 0, 'Gibraltar Pound'),
(270, 'GMD', 0, 'Dalasi'),
(324, 'GNF', 0, 'Guinean Franc'),
(320, 'GTQ', 0, 'Quetzal'),
(328, 'GYD', 0, 'Guyana Dollar'),
(344, 'HKD', 0, 'Hong Kong Dollar'),
(340, 'HNL', 0, 'Lempira'),
(191, 'HRK', 0, 'Kuna'),
(332, 'HTG', 0, 'Gourde'),
(348, 'HUF', 0, 'Forint'),
(360, 'IDR', 0, 'Rupiah'),
(376, 'ILS', 0, 'New Israeli Sheqel'),
(356, 'INR', 0, 'Indian Rupee'),
(368, 'IQD', 0, 'Iraqi Dinar'),
(364, 'IRR', 0, 'Iranian Rial'),
(352, 'ISK', 0, 'Iceland Krona'),
(388, 'JMD', 0, 'Jamaican Dollar'),
(400, 'JOD', 0, 'Jordanian Dinar'),
(392, 'JPY', 0, 'Yen'),
(404, 'KES', 0, 'Kenyan Shilling'),
(417, 'KGS', 0, 'Som'),
(116, 'KHR', 0, 'Riel'),
(174, 'KMF', 0, 'Comorian Franc'),
(408, 'KPW', 0, 'North Korean Won'),
(410, 'KRW', 0, 'Won'),
(414, 'KWD', 0, 'Kuwaiti Dinar'),
(136, 'KYD', 0, 'Cayman Islands Dollar'),
(398, 'KZT', 0, 'Tenge'),
(418, 'LAK', 0, 'Lao Kip'),
(422, 'LBP', 0, 'Lebanese Pound'),
(144, 'LKR', 0, 'Sri Lanka Rupee'),
(430, 'LRD', 0, 'Liberian Dollar'),
(426, 'LSL', 0, 'Loti'),
(434, 'LYD', 0, 'Libyan Dinar'),
(504, 'MAD', 0, 'Moroccan Dirham'),
(498, 'MDL', 0, 'Moldovan Leu'),
(969, 'MGA', 0, 'Malagasy Ariary'),
(807, 'MKD', 0, 'Denar'),
(104, 'MMK', 0, 'Kyat'),
(496, 'MNT', 0, 'Tugrik'),
(446, 'MOP', 0, 'Pataca'),
(929, 'MRU', 0, 'Ouguiya'),
(480, 'MUR', 0, 'Mauritius Rupee'),
(462, 'MVR', 0, 'Rufiyaa'),
(454, 'MWK', 0, 'Malawi Kwacha'),
(484, 'MXN', 0, 'Mexican Peso'),
(979, 'MXV', 1, 'Mexican Unidad de Inversion (UDI)'),
(458, 'MYR', 0, 'Malaysian Ringgit'),
(943, 'MZN', 0, 'Mozambique Metical'),
(516, 'NAD', 0, 'Namibia Dollar'),
(566, 'NGN', 0, 'Naira'),
(558, 'NIO', 0, 'Cordoba Oro'),
(578, 'NOK', 0, 'Norwegian Krone'),
(524, 'NPR', 0, 'Nepalese Rupee'),
(554, 'NZD', 0, 'New Zealand Dollar'),
(512, 'OMR', 0, 'Rial Omani'),
(590, 'PAB', 0, 'Balboa'),
(604, 'PEN', 0, 'Sol'),
(598, 'PGK', 0, 'Kina'),
(608, 'PHP', 0, 'Philippine Peso'),
(586, 'PKR', 0, 'Pakistan Rupee'),
(985, 'PLN', 0, 'Zloty'),
(600, 'PYG', 0, 'Guarani'),
(634, 'QAR', 0, 'Qatari Rial'),
(946, 'RON', 0, 'Romanian Leu'),
(941, 'RSD', 0, 'Serbian Dinar'),
(643, 'RUB', 0, 'Russian Ruble'),
(646, 'RWF', 0, 'Rwanda Franc'),
(682, 'SAR', 0, 'Saudi Riyal'),
(90, 'SBD', 0, 'Solomon Islands Dollar'),
(690, 'SCR', 0, 'Seychelles Rupee'),
(938, 'SDG', 0, 'Sudanese Pound'),
(752, 'SEK', 0, 'Swedish Krona'),
(702, 'SGD', 0, 'Singapore Dollar'),
(654, 'SHP', 0, 'Saint Helena Pound'),
(925, 'SLE', 0, 'Leone'),
(694, 'SLL', 0, 'Leone'),
(706, 'SOS', 0, 'Somali Shilling'),
(968, 'SRD', 0, 'Surinam Dollar'),
(728, 'SSP', 0, 'South Sudanese Pound'),
(930, 'STN', 0, 'Dobra'),
(222, 'SVC', 0, 'El Salvador Colon'),
(760, 'SYP', 0, 'Syrian Pound'),
(748, 'SZL', 0, 'Lilangeni'),
(764, 'THB', 0, 'Baht'),
(972, 'TJS', 0, 'Somoni'),
(934, 'TMT', 0, 'Turkmenistan New Manat'),
(788, 'TND', 0, 'Tunisian Dinar'),
(776, 'TOP', 0, 'Pa’anga'),
(949, 'TRY', 0, 'Turkish Lira'),
(780, 'TTD', 0, 'Trinidad and Tobago Dollar'),
(901, 'TWD', 0, 'New Taiwan Dollar'),
(834, 'TZS', 0, 'Tanzanian Shilling'),
(980, 'UAH', 0, 'Hryvnia'),
(800, 'UGX', 0, 'Uganda Shilling'),
(840, 'USD', 0, 'US Dollar'),
(997, 'USN', 1, 'US Dollar (Next day)'),
(940, 'UYI', 1, 'Uruguay Peso en Unidades Indexadas (UI)'),
(858, 'UYU', 0, 'Peso Uruguayo'),
(927, 'UYW', 1, 'Unidad Previsional'),
(860, 'UZS', 0, 'Uzbekistan Sum'),
(926, 'VED', 0, 'Bolívar Soberano'),
(928, 'VES', 0, 'Bolívar Soberano'),
(704, 'VND', 0, 'Dong'),
(548, 'VUV', 0, 'Vatu'),
(882, 'WST', 0, 'Tala'),
(950, 'XAF', 0, 'CFA Franc BEAC'),
(961, 'XAG', 1, 'Silver'),
(959, 'XAU', 1, 'Gold'),
(955, 'XBA', 1, 'Bond Markets Unit European Composite Unit (EURCO)'),
(956, 'XBB', 1, 'Bond Markets Unit European Monetary Unit (E.M.U.-6)'),
(957, 'XBC', 1, 'Bond Markets Unit European Unit of Account 9 (E.U.A.-9)'),
(958, 'XBD', 1, 'Bond Markets Unit European Unit of Account 17 (E.U.A.-17)'),
(951, 'XCD', 0, 'East Caribbean Dollar'),
(960, 'XDR', 1, 'SDR (Special Drawing Right)'),
(952, 'XOF', 0, 'CFA Franc BCEAO'),
(964, 'XPD', 1, 'Palladium'),
(953, 'XPF', 0, 'CFP Franc'),
(962, 'XPT', 1, 'Platinum'),
(994, 'XSU', 1, 'Sucre'),
(963, 'XTS', 1, 'Codes specifically reserved for testing purposes'),
(965, 'XUA', 1, 'ADB Unit of Account'),
(999, 'XXX', 1, 'The codes assigned for transactions where no currency is involved'),
(886, 'YER', 0, 'Yemeni Rial'),
(710, 'ZAR', 0, 'Rand'),
(967, 'ZMW', 0, 'Zambian Kwacha'),
(932, 'ZWL', 0, 'Zimbabwe Dollar');

-- Who may do what: operators call the four procedures and read the dictionary, readers read the views of calendars and
-- days, and nobody else has any right. The procedures run with their owner's rights, so operators need none on a table.
-- The history names people: it is for administrators, who are members of the owner, and no view of it is for readers.

REVOKE ALL ON SCHEMA ferrowind FROM PUBLIC;
REVOKE ALL ON ALL TABLES IN SCHEMA ferrowind FROM PUBLIC;
REVOKE ALL ON ALL ROUTINES IN SCHEMA ferrowind FROM PUBLIC;

GRANT USAGE ON SCHEMA ferrowind TO ferrowind_operator, ferrowind_reader;
GRANT EXECUTE ON PROCEDURE CldAllInfo, CldGetMain, CldIUMain, CldIUCelebrate TO ferrowind_operator;
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
