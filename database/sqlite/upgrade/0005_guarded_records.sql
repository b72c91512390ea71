-- From version 4 to version 5: records are guarded.

-- The entries of the history are chained; this is what was there before.
CREATE TABLE CldChainStart (
  ID1 INTEGER NOT NULL,
  Year1 INTEGER NOT NULL,
  EntryID INTEGER NOT NULL,
  Moment TEXT,
  Digest TEXT NOT NULL,
  PRIMARY KEY (ID1, Year1)
) WITHOUT ROWID;

-- The days that have a rule, with all that reviews look at, so that they read no other days.
CREATE INDEX CldDayWithRule ON CldDay (ID1, Year1, Day1, TID1, ID2, Comment) WHERE ID2 IS NOT NULL;

-- Rebuilt, so that the tables are to the letter what a new database has. What chains the entries is computed by the program,
-- which fills the table ChainedEntry before.
PRAGMA defer_foreign_keys = ON;
CREATE TABLE OldCldHistory AS SELECT * FROM CldHistory;
CREATE TABLE OldCldHistoryRow AS SELECT * FROM CldHistoryRow;
DROP TABLE CldHistoryRow;
DROP TABLE CldHistory;
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
INSERT INTO CldHistory
SELECT h.EntryID, h.Moment, h.UserName, h.ProcedureName, h.ID1, h.Year1, h.Parameters, h.ReturnValue, h.RowsChanged,
  c.ChainPosition, c.Previous, c.Hash
FROM OldCldHistory h JOIN ChainedEntry c ON c.EntryID = h.EntryID;
DROP TABLE OldCldHistory;
DROP TABLE ChainedEntry;
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
INSERT INTO CldHistoryRow
SELECT EntryID, RowNumber, TableName, ID1, Year1, Day1, ID2, Position, OldRow, NULL FROM OldCldHistoryRow;
DROP TABLE OldCldHistoryRow;
