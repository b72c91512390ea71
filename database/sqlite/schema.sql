-- The tables of a calendar database and the constraints that make a wrong row impossible. A column's declared type is
-- the type that readers get: SMALLINT a 16-bit and INTEGER a 32-bit number, TEXT a text, DATE a date, which is stored
-- as the text YYYY-MM-DD. FERROWIND_NAME compares names without regard to letter case and outer blanks; the engine
-- supplies it to every connection, and the function FERROWIND_FINGERPRINT, which gives a short text for rows.

-- "Ferw" marks the file as a calendar database; the version counts the changes of what follows here and of the
-- procedures. A change comes with a script in upgrade/ that brings older databases to the same state.
PRAGMA application_id = 0x46657277;
PRAGMA user_version = 8;

-- LastDay: the last day as legal money; NULL as long as it is.
CREATE TABLE DicCcy (
  CcyID INTEGER PRIMARY KEY,
  Ccy TEXT NOT NULL UNIQUE,
  CcyType SMALLINT NOT NULL CHECK (CcyType IN (0, 1)),
  Name TEXT NOT NULL,
  LastDay DATE CHECK (LastDay IS date(LastDay, '0 days') AND LastDay >= '0001')
);

CREATE TABLE CldHolidayType (
  TID1 INTEGER PRIMARY KEY,
  Description1 TEXT NOT NULL UNIQUE
);

-- A weekday rule (type 2) has WD alone; every other rule has a date, whose month and day stand in MY and MD as well.
-- Rule 1 is the one rule of type 1, has neither, and cannot be removed. Del: 2 removed, 4 restored.
CREATE TABLE CldHoliday (
  ID2 INTEGER PRIMARY KEY CHECK (ID2 BETWEEN 1 AND 2147483647),
  Name1 TEXT NOT NULL COLLATE FERROWIND_NAME UNIQUE CHECK (typeof(Name1) = 'text' AND trim(Name1) <> ''),
  Comment TEXT CHECK (typeof(Comment) IN ('text', 'null')),
  TID1 INTEGER NOT NULL REFERENCES CldHolidayType (TID1),
  D1 DATE CHECK (D1 IS date(D1, '0 days') AND D1 >= '0001'),
  MY SMALLINT CHECK (MY IS CAST(strftime('%m', D1) AS INTEGER)),
  MD SMALLINT CHECK (MD IS CAST(strftime('%d', D1) AS INTEGER)),
  WD SMALLINT CHECK (WD BETWEEN 1 AND 7 AND typeof(WD) = 'integer' OR WD IS NULL),
  Del SMALLINT CHECK (Del IN (2, 4) AND ID2 <> 1 OR Del IS NULL),
  UNIQUE (ID2, TID1),
  CHECK ((ID2 = 1) = (TID1 = 1)),
  CHECK ((TID1 = 2) = (WD IS NOT NULL)),
  CHECK ((TID1 IN (1, 2)) = (D1 IS NULL))
);

CREATE TABLE CldCalendar (
  ID1 INTEGER NOT NULL REFERENCES DicCcy (CcyID),
  Year1 INTEGER NOT NULL CHECK (Year1 BETWEEN 1900 AND 3000 AND typeof(Year1) = 'integer'),
  PRIMARY KEY (ID1, Year1)
) WITHOUT ROWID;

-- Day1 counts the days of the year and decides ODate. A day without a rule is an ordinary working day.
CREATE TABLE CldDay (
  ID1 INTEGER NOT NULL,
  Year1 INTEGER NOT NULL,
  Day1 INTEGER NOT NULL CHECK (Day1 BETWEEN 1 AND 366 AND typeof(Day1) = 'integer'),
  ODate DATE NOT NULL,
  TID1 INTEGER NOT NULL REFERENCES CldHolidayType (TID1),
  ID2 INTEGER,
  Comment TEXT CHECK (typeof(Comment) IN ('text', 'null')),
  PRIMARY KEY (ID1, Year1, Day1),
  FOREIGN KEY (ID1, Year1) REFERENCES CldCalendar (ID1, Year1),
  FOREIGN KEY (ID2, TID1) REFERENCES CldHoliday (ID2, TID1),
  CHECK (ODate IS date(Year1 || '-01-01', (Day1 - 1) || ' days') AND ODate <= Year1 || '-12-31'),
  CHECK (ID2 IS NOT NULL OR TID1 = 1)
) WITHOUT ROWID;

CREATE INDEX CldDayByDate ON CldDay (ODate);
-- The days that have a rule, with all that reviews look at, so that they read no other days.
CREATE INDEX CldDayWithRule ON CldDay (ID1, Year1, Day1, TID1, ID2, Comment) WHERE ID2 IS NOT NULL;

-- The rule book of a currency: whose document it follows, the first year that it tells of (NULL: it tells of all), and in
-- their order the recurring rules from which the plan of a year is made. Expression says on which dates; MovedName is the
-- name of a day that a holiday was moved to.
CREATE TABLE CldBook (
  ID1 INTEGER PRIMARY KEY REFERENCES DicCcy (CcyID),
  Publisher TEXT NOT NULL CHECK (typeof(Publisher) = 'text'),
  Document TEXT NOT NULL CHECK (typeof(Document) = 'text'),
  FromYear INTEGER CHECK (FromYear BETWEEN 1900 AND 3000 AND typeof(FromYear) = 'integer' OR FromYear IS NULL)
);
CREATE TABLE CldRecurrence (
  ID1 INTEGER NOT NULL REFERENCES CldBook (ID1),
  Position INTEGER NOT NULL CHECK (Position >= 1 AND typeof(Position) = 'integer'),
  Name1 TEXT NOT NULL CHECK (typeof(Name1) = 'text' AND trim(Name1) <> ''),
  TID1 INTEGER NOT NULL REFERENCES CldHolidayType (TID1),
  Expression TEXT NOT NULL CHECK (typeof(Expression) = 'text' AND trim(Expression) <> ''),
  Comment TEXT CHECK (typeof(Comment) IN ('text', 'null')),
  MovedName TEXT CHECK (typeof(MovedName) IN ('text', 'null')),
  PRIMARY KEY (ID1, Position)
) WITHOUT ROWID;

-- What an administrator says of the market's conventions beside those that are delivered: of a pair of currencies, whose numbers
-- ascend, the days from trade to spot; of one currency, OtherID being itself, whether a holiday of the dollar stops the count.
CREATE TABLE CldConvention (
  ID1 INTEGER NOT NULL REFERENCES DicCcy (CcyID),
  OtherID INTEGER NOT NULL REFERENCES DicCcy (CcyID),
  SpotDays INTEGER CHECK (SpotDays BETWEEN 0 AND 2 AND typeof(SpotDays) = 'integer' OR SpotDays IS NULL),
  DollarStops INTEGER CHECK (DollarStops IN (0, 1) AND typeof(DollarStops) = 'integer' OR DollarStops IS NULL),
  PRIMARY KEY (ID1, OtherID),
  CHECK (ID1 <= OtherID),
  CHECK ((SpotDays IS NULL) = (ID1 = OtherID) AND (DollarStops IS NULL) = (ID1 <> OtherID))
) WITHOUT ROWID;

-- One row. FirstDay: the weekday that a week begins with, 1 Sunday to 7 Saturday.
CREATE TABLE CldSetting (
  FirstDay INTEGER NOT NULL CHECK (FirstDay BETWEEN 1 AND 7 AND typeof(FirstDay) = 'integer')
);
CREATE UNIQUE INDEX CldSettingHasOneRow ON CldSetting ((1));

-- An entry for every call of a procedure that writes and returned 0, added by the engine in the call's own transaction:
-- when (UTC), the operating system's user, what was called with which values (a JSON object with every parameter by name,
-- null for none), and how many rows of other tables it added or changed. ID1 and Year1 name the calendar that the call was
-- for, when it was for one. Entries are only ever added. Little is checked and computed here, because every connection
-- compiles what stands here anew.
-- Entries that are for the same calendar, those that are for the same rule book and those that are for neither are chained:
-- ChainPosition counts them, Previous is the Hash of the one before, empty for none, and Hash is over all of the entry and
-- its rows (README.md).
CREATE TABLE CldHistory (
  EntryID INTEGER PRIMARY KEY,
  Moment TEXT NOT NULL CHECK (Moment LIKE '____-__-__T__:__:__.___Z'),
  UserName TEXT NOT NULL,
  ProcedureName TEXT NOT NULL,
  ID1 INTEGER,
  Year1 INTEGER,
  Parameters TEXT NOT NULL,
  ReturnValue INTEGER NOT NULL,
  RowsChanged INTEGER NOT NULL,
  ChainPosition INTEGER NOT NULL,
  Previous TEXT NOT NULL,
  Hash TEXT NOT NULL
);
CREATE UNIQUE INDEX CldHistoryByChain ON CldHistory (ifnull(ID1, 0), ifnull(Year1, 0), ChainPosition);
CREATE TRIGGER CldHistoryKeepsItsEntries BEFORE UPDATE ON CldHistory
BEGIN
  SELECT RAISE(ABORT, 'an entry of the history is not changed');
END;
CREATE TRIGGER CldHistoryLosesNoEntry BEFORE DELETE ON CldHistory
BEGIN
  SELECT RAISE(ABORT, 'an entry of the history is not removed');
END;

-- The rows of other tables that a call replaced, so that it can be undone and every calendar shown as it was. A row stands
-- here by its key: ID1 alone for DicCcy (its CcyID) and CldBook; ID1 and Year1 for CldCalendar, with Day1 for CldDay; ID2 for
-- CldHoliday; ID1 and Position for CldRecurrence and CldConvention (its OtherID). OldRow is a JSON object of the other columns by name, without ODate; NULL
-- when there was no such row. NewRow is what the call left, in the same form. A call has one row for a key, and none for what
-- it left as it was. Days that come with a new calendar have none of their own: NewRow of the calendar has those of them
-- with a rule or a comment, by number. Nor have ordinary working days that go with their calendar. The engine adds the rows
-- behind the entry; like entries, they are only ever added.
CREATE TABLE CldHistoryRow (
  EntryID INTEGER NOT NULL REFERENCES CldHistory (EntryID),
  RowNumber INTEGER NOT NULL CHECK (RowNumber >= 1),
  TableName TEXT NOT NULL,
  ID1 INTEGER,
  Year1 INTEGER,
  Day1 INTEGER,
  ID2 INTEGER,
  Position INTEGER,
  OldRow TEXT,
  NewRow TEXT,
  PRIMARY KEY (EntryID, RowNumber)
) WITHOUT ROWID;
CREATE INDEX CldHistoryRowByKey ON CldHistoryRow (TableName, ID1, Year1, Day1, ID2, Position, EntryID);
CREATE TRIGGER CldHistoryRowKeepsItsRows BEFORE UPDATE ON CldHistoryRow
BEGIN
  SELECT RAISE(ABORT, 'a row of the history is not changed');
END;
CREATE TRIGGER CldHistoryRowLosesNoRow BEFORE DELETE ON CldHistoryRow
BEGIN
  SELECT RAISE(ABORT, 'a row of the history is not removed');
END;

-- The entries up to EntryID, all before Moment, keep no rows: a version that did not wrote them. No row in a database that
-- has kept them from its beginning.
CREATE TABLE CldHistoryStart (
  EntryID INTEGER PRIMARY KEY,
  Moment TEXT NOT NULL CHECK (Moment LIKE '____-__-__T__:__:__.___Z')
);
CREATE UNIQUE INDEX CldHistoryStartHasOneRow ON CldHistoryStart ((1));

-- What was there when the entries began to be chained: a digest of each part of it, which is a calendar (ID1 and Year1), a
-- rule book (ID1), or a whole table (neither; then Year1 is its number). 0 stands for none. EntryID is the last entry before,
-- Moment that of the upgrade; NULL in a database that has chained its entries from the first on.
CREATE TABLE CldChainStart (
  ID1 INTEGER NOT NULL,
  Year1 INTEGER NOT NULL,
  EntryID INTEGER NOT NULL,
  Moment TEXT,
  Digest TEXT NOT NULL,
  PRIMARY KEY (ID1, Year1)
) WITHOUT ROWID;

-- What others read of the calendars. No column has a collation that their programs would have to know.
CREATE VIEW CalendarList AS
SELECT c.Ccy, k.Year1 AS Year
FROM CldCalendar k JOIN DicCcy c ON c.CcyID = k.ID1;

CREATE VIEW CalendarDay AS
SELECT c.Ccy, d.Year1 AS Year, d.ODate AS Date, d.TID1 = 1 AS IsWorkingDay, t.Description1 AS Type,
  h.Name1 COLLATE BINARY AS Rule, d.Comment
FROM CldDay d
  JOIN DicCcy c ON c.CcyID = d.ID1
  JOIN CldHolidayType t ON t.TID1 = d.TID1
  LEFT JOIN CldHoliday h ON h.ID2 = d.ID2;

-- What several procedures need. A calendar's fingerprint is another when its days, or the names of their rules, are others.
CREATE VIEW YearDay AS
WITH RECURSIVE Number (Day1) AS (
  SELECT 1
  UNION ALL
  SELECT Day1 + 1 FROM Number WHERE Day1 < 366
)
SELECT Day1 FROM Number;

CREATE VIEW CalendarFingerprint AS
SELECT k.ID1, k.Year1, (
  SELECT FERROWIND_FINGERPRINT(Day1, TID1, ID2, Name1, Comment)
  FROM (
    SELECT d.Day1, d.TID1, d.ID2, h.Name1, d.Comment
    FROM CldDay d LEFT JOIN CldHoliday h ON h.ID2 = d.ID2
    WHERE d.ID1 = k.ID1 AND d.Year1 = k.Year1 AND (d.ID2 IS NOT NULL OR d.Comment IS NOT NULL)
    ORDER BY d.Day1
  )
) AS Fingerprint
FROM CldCalendar k;

CREATE VIEW BookFingerprint AS
SELECT b.ID1, (
  SELECT FERROWIND_FINGERPRINT(b.Publisher, b.Document, b.FromYear, Name1, TID1, Expression, Comment, MovedName)
  FROM (
    SELECT 0 AS Position, NULL AS Name1, NULL AS TID1, NULL AS Expression, NULL AS Comment, NULL AS MovedName
    UNION ALL
    SELECT r.Position, r.Name1, r.TID1, r.Expression, r.Comment, r.MovedName FROM CldRecurrence r WHERE r.ID1 = b.ID1
    ORDER BY Position
  )
) AS Fingerprint
FROM CldBook b;

-- The stored procedures, which the engine finds and runs from here. A body is a script of SQL statements.
CREATE TABLE ProcedureCatalogue (
  Name TEXT NOT NULL COLLATE NOCASE PRIMARY KEY,
  Writes INTEGER NOT NULL CHECK (Writes IN (0, 1)),
  Body TEXT NOT NULL
) WITHOUT ROWID;

-- Position 0 is the return value; the inputs count from 1.
CREATE TABLE ProcedureParameter (
  ProcedureName TEXT NOT NULL COLLATE NOCASE REFERENCES ProcedureCatalogue (Name),
  Position INTEGER NOT NULL CHECK (Position >= 0),
  Name TEXT NOT NULL COLLATE NOCASE CHECK (Name GLOB '@?*'),
  Type TEXT NOT NULL CHECK (Type IN ('int16', 'int32', 'text', 'date')),
  Direction TEXT NOT NULL CHECK (Direction = CASE Position WHEN 0 THEN 'return' ELSE 'in' END),
  PRIMARY KEY (ProcedureName, Position),
  UNIQUE (ProcedureName, Name)
) WITHOUT ROWID;
