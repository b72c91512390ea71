-- From version 2 to version 3: rule books and plans, and what calls replace is kept, so that it can be put back.

ALTER TABLE DicCcy ADD LastDay date CHECK (LastDay BETWEEN '0001-01-01' AND '9999-12-31');

-- The list of the standard as it stands, unless an administrator has come first. The Caribbean guilder has the number of
-- the Netherlands Antillean one, and so its calendars; 530 is the last number of that country.
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
CREATE INDEX CldDayByRule ON CldDay (ID2) WHERE ID2 IS NOT NULL;

CREATE TABLE CldBook (
  ID1 integer PRIMARY KEY REFERENCES DicCcy (CcyID),
  Publisher text NOT NULL,
  Document text NOT NULL
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

CREATE TABLE CldHistoryStart (
  EntryID bigint NOT NULL CHECK (EntryID >= 0),
  Moment timestamptz(3) NOT NULL
);
CREATE UNIQUE INDEX CldHistoryStartHasOneRow ON CldHistoryStart ((1));
INSERT INTO CldHistoryStart (EntryID, Moment) SELECT coalesce(max(EntryID), 0), clock_timestamp() FROM CldHistory;

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
  PRIMARY KEY (EntryID, RowNumber),
  CHECK (num_nulls(TableName, ID1, Year1, Day1, ID2, Position) = CASE TableName WHEN 'CldDay' THEN 2
    WHEN 'CldCalendar' THEN 3 WHEN 'CldRecurrence' THEN 3 WHEN 'CldHoliday' THEN 4 WHEN 'CldBook' THEN 4
    WHEN 'DicCcy' THEN 4 ELSE -1 END),
  CHECK ((ID1 IS NULL) = (TableName = 'CldHoliday')),
  CHECK ((Year1 IS NOT NULL) = (TableName IN ('CldCalendar', 'CldDay'))),
  CHECK ((Position IS NOT NULL) = (TableName = 'CldRecurrence'))
);
CREATE INDEX CldHistoryRowByKey ON CldHistoryRow (ID1, Year1, Day1, EntryID);
CREATE INDEX CldHistoryRowByRule ON CldHistoryRow (ID2, EntryID) WHERE ID2 IS NOT NULL;

CREATE TYPE PlannedDay AS (
  Item integer,
  Name1 text,
  TID1 integer,
  ID2 integer,
  RuleComment text,
  DayComment text,
  Day1 integer
);
