-- From version 1 to version 2: changes are recorded.

CREATE TABLE CldHistory (
  EntryID INTEGER PRIMARY KEY,
  Moment TEXT NOT NULL CHECK (Moment LIKE '____-__-__T__:__:__.___Z'),
  UserName TEXT NOT NULL,
  ProcedureName TEXT NOT NULL,
  ID1 INTEGER,
  Year1 INTEGER,
  Parameters TEXT NOT NULL,
  ReturnValue INTEGER NOT NULL,
  RowsChanged INTEGER NOT NULL
);
CREATE TRIGGER CldHistoryKeepsItsEntries BEFORE UPDATE ON CldHistory
BEGIN
  SELECT RAISE(ABORT, 'an entry of the history is not changed');
END;
CREATE TRIGGER CldHistoryLosesNoEntry BEFORE DELETE ON CldHistory
BEGIN
  SELECT RAISE(ABORT, 'an entry of the history is not removed');
END;
