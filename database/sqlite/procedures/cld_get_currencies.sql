-- procedure CldGetCurrencies reads
-- All currencies with their last days as legal money.

SELECT CcyID, Ccy, CcyType, Name, LastDay FROM DicCcy ORDER BY CcyID;
