-- From version 5 to version 6: business days.

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
