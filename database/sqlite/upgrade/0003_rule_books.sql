-- From version 2 to version 3: rule books, the rows that calls replaced, the last days of currencies.

-- SQLite adds a column behind the text of the table alone; this way the table is to the letter what a new database has.
PRAGMA defer_foreign_keys = ON;
CREATE TABLE OldDicCcy AS SELECT CcyID, Ccy, CcyType, Name FROM DicCcy;
DROP TABLE DicCcy;
CREATE TABLE DicCcy (
  CcyID INTEGER PRIMARY KEY,
  Ccy TEXT NOT NULL UNIQUE,
  CcyType SMALLINT NOT NULL CHECK (CcyType IN (0, 1)),
  Name TEXT NOT NULL,
  LastDay DATE CHECK (LastDay IS date(LastDay, '0 days') AND LastDay >= '0001')
);
INSERT INTO DicCcy (CcyID, Ccy, CcyType, Name) SELECT CcyID, Ccy, CcyType, Name FROM OldDicCcy;
DROP TABLE OldDicCcy;

-- What the list of the currencies that are legal money says now.
UPDATE DicCcy SET Ccy = 'XCG', Name = 'Caribbean Guilder'
WHERE CcyID = 532 AND Ccy = 'ANG' AND NOT EXISTS (SELECT 1 FROM DicCcy WHERE Ccy = 'XCG');
INSERT INTO DicCcy (CcyID, Ccy, CcyType, Name) SELECT 530, 'ANG', 1, 'Netherlands Antillean Guilder'
WHERE NOT EXISTS (SELECT 1 FROM DicCcy WHERE CcyID = 530 OR Ccy = 'ANG');
INSERT INTO DicCcy (CcyID, Ccy, CcyType, Name) SELECT 924, 'ZWG', 0, 'Zimbabwe Gold'
WHERE NOT EXISTS (SELECT 1 FROM DicCcy WHERE CcyID = 924 OR Ccy = 'ZWG');
INSERT INTO DicCcy (CcyID, Ccy, CcyType, Name) SELECT 396, 'XAD', 1, 'Arab Accounting Dinar'
WHERE NOT EXISTS (SELECT 1 FROM DicCcy WHERE CcyID = 396 OR Ccy = 'XAD');
UPDATE DicCcy SET LastDay = '2021-06-30' WHERE CcyID = 931 AND Ccy = 'CUC';
UPDATE DicCcy SET LastDay = '2022-12-31' WHERE CcyID = 191 AND Ccy = 'HRK';
UPDATE DicCcy SET LastDay = '2023-12-31' WHERE CcyID = 694 AND Ccy = 'SLL';
UPDATE DicCcy SET LastDay = '2024-08-31' WHERE CcyID = 932 AND Ccy = 'ZWL';
UPDATE DicCcy SET LastDay = '2025-03-30' WHERE Ccy = 'ANG';
UPDATE DicCcy SET LastDay = '2025-12-31' WHERE CcyID = 975 AND Ccy = 'BGN';
-- A currency stays money in the dictionary as long as it has calendars: the windows show none without it.
UPDATE DicCcy SET CcyType = 1
WHERE LastDay IS NOT NULL AND NOT EXISTS (SELECT 1 FROM CldCalendar WHERE CldCalendar.ID1 = DicCcy.CcyID);

CREATE INDEX CldDayByDate ON CldDay (ODate);

CREATE TABLE CldBook (
  ID1 INTEGER PRIMARY KEY REFERENCES DicCcy (CcyID),
  Publisher TEXT NOT NULL CHECK (typeof(Publisher) = 'text'),
  Document TEXT NOT NULL CHECK (typeof(Document) = 'text')
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

CREATE TABLE CldHistoryStart (
  EntryID INTEGER PRIMARY KEY,
  Moment TEXT NOT NULL CHECK (Moment LIKE '____-__-__T__:__:__.___Z')
);
CREATE UNIQUE INDEX CldHistoryStartHasOneRow ON CldHistoryStart ((1));

-- Nobody knows what the calls up to now replaced.
INSERT INTO CldHistoryStart (EntryID, Moment)
SELECT ifnull(max(EntryID), 0), strftime('%Y-%m-%dT%H:%M:%fZ', 'now') FROM CldHistory;

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
  SELECT FERROWIND_FINGERPRINT(b.Publisher, b.Document, Name1, TID1, Expression, Comment, MovedName)
  FROM (
    SELECT 0 AS Position, NULL AS Name1, NULL AS TID1, NULL AS Expression, NULL AS Comment, NULL AS MovedName
    UNION ALL
    SELECT r.Position, r.Name1, r.TID1, r.Expression, r.Comment, r.MovedName FROM CldRecurrence r WHERE r.ID1 = b.ID1
    ORDER BY Position
  )
) AS Fingerprint
FROM CldBook b;
