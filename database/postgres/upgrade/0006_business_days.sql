-- From version 5 to version 6: business days.

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

-- The history keeps its rows, too.
ALTER TABLE CldHistoryRow
  DROP CONSTRAINT cldhistoryrow_check,
  DROP CONSTRAINT cldhistoryrow_check3,
  ADD CONSTRAINT cldhistoryrow_check
    CHECK (num_nulls(TableName, ID1, Year1, Day1, ID2, Position) = CASE TableName WHEN 'CldDay' THEN 2
      WHEN 'CldCalendar' THEN 3 WHEN 'CldRecurrence' THEN 3 WHEN 'CldHoliday' THEN 4 WHEN 'CldBook' THEN 4
      WHEN 'DicCcy' THEN 4 WHEN 'CldConvention' THEN 3 ELSE -1 END),
  ADD CONSTRAINT cldhistoryrow_check3 CHECK ((Position IS NOT NULL) = (TableName IN ('CldRecurrence', 'CldConvention')));

-- The statement that ends an entry computes its hash itself, of values of any type.
DROP FUNCTION IF EXISTS EntryHash(CldHistory, bigint), HashField(text);
