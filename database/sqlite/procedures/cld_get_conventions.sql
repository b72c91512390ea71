-- procedure CldGetConventions reads
-- What the database says of the market's conventions beside those that come with the program: of a pair of currencies the days
-- from trade to spot; of one currency, without OtherID and OtherCcy, whether a holiday of the dollar stops the count (1 or 0).

SELECT v.ID1, o.CcyID AS OtherID, c.Ccy, o.Ccy AS OtherCcy, v.SpotDays, v.DollarStops
FROM CldConvention v
  JOIN DicCcy c ON c.CcyID = v.ID1
  LEFT JOIN DicCcy o ON o.CcyID = v.OtherID AND v.OtherID <> v.ID1
ORDER BY v.ID1, v.OtherID;
