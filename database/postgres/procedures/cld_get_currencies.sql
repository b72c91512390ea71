-- All currencies, those that are no legal money any more, and what else the standard has numbers for (CcyType 1).
CREATE PROCEDURE CldGetCurrencies(
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Currencies" refcursor DEFAULT 'Currencies'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  OPEN "Currencies" FOR
    SELECT CcyID AS "CcyID", Ccy AS "Ccy", CcyType AS "CcyType", Name AS "Name", LastDay AS "LastDay"
    FROM DicCcy ORDER BY CcyID;
  "RETURN_VALUE" := 0;
END
$$;
