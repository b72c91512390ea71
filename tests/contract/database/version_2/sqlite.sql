-- A calendar database as version 2 of the schema had it, empty. What upgrades from there are tested on; it stays as it is.
PRAGMA application_id = 1181053559;
-- Rows stand before those that they refer to.
PRAGMA foreign_keys = OFF;
PRAGMA user_version = 2;
BEGIN TRANSACTION;
CREATE TABLE CldCalendar (
  ID1 INTEGER NOT NULL REFERENCES DicCcy (CcyID),
  Year1 INTEGER NOT NULL CHECK (Year1 BETWEEN 1900 AND 3000 AND typeof(Year1) = 'integer'),
  PRIMARY KEY (ID1, Year1)
) WITHOUT ROWID;
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
INSERT INTO "CldHoliday" VALUES(1,'Working day by exception',NULL,1,NULL,NULL,NULL,NULL,NULL);
CREATE TABLE CldHolidayType (
  TID1 INTEGER PRIMARY KEY,
  Description1 TEXT NOT NULL UNIQUE
);
INSERT INTO "CldHolidayType" VALUES(1,'Working day');
INSERT INTO "CldHolidayType" VALUES(2,'Holiday');
INSERT INTO "CldHolidayType" VALUES(3,'Celebration');
INSERT INTO "CldHolidayType" VALUES(4,'Holiday point');
CREATE TABLE CldSetting (
  FirstDay INTEGER NOT NULL CHECK (FirstDay BETWEEN 1 AND 7 AND typeof(FirstDay) = 'integer')
);
INSERT INTO "CldSetting" VALUES(1);
CREATE TABLE DicCcy (
  CcyID INTEGER PRIMARY KEY,
  Ccy TEXT NOT NULL UNIQUE,
  CcyType SMALLINT NOT NULL CHECK (CcyType IN (0, 1)),
  Name TEXT NOT NULL
);
INSERT INTO "DicCcy" VALUES(8,'ALL',0,'Lek');
INSERT INTO "DicCcy" VALUES(12,'DZD',0,'Algerian Dinar');
INSERT INTO "DicCcy" VALUES(32,'ARS',0,'Argentine Peso');
INSERT INTO "DicCcy" VALUES(36,'AUD',0,'Australian Dollar');
INSERT INTO "DicCcy" VALUES(44,'BSD',0,'Bahamian Dollar');
INSERT INTO "DicCcy" VALUES(48,'BHD',0,'Bahraini Dinar');
INSERT INTO "DicCcy" VALUES(50,'BDT',0,'Taka');
INSERT INTO "DicCcy" VALUES(51,'AMD',0,'Armenian Dram');
INSERT INTO "DicCcy" VALUES(52,'BBD',0,'Barbados Dollar');
INSERT INTO "DicCcy" VALUES(60,'BMD',0,'Bermudian Dollar');
INSERT INTO "DicCcy" VALUES(64,'BTN',0,'Ngultrum');
INSERT INTO "DicCcy" VALUES(68,'BOB',0,'Boliviano');
INSERT INTO "DicCcy" VALUES(72,'BWP',0,'Pula');
INSERT INTO "DicCcy" VALUES(84,'BZD',0,'Belize Dollar');
INSERT INTO "DicCcy" VALUES(90,'SBD',0,'Solomon Islands Dollar');
INSERT INTO "DicCcy" VALUES(96,'BND',0,'Brunei Dollar');
INSERT INTO "DicCcy" VALUES(104,'MMK',0,'Kyat');
INSERT INTO "DicCcy" VALUES(108,'BIF',0,'Burundi Franc');
INSERT INTO "DicCcy" VALUES(116,'KHR',0,'Riel');
INSERT INTO "DicCcy" VALUES(124,'CAD',0,'Canadian Dollar');
INSERT INTO "DicCcy" VALUES(132,'CVE',0,'Cabo Verde Escudo');
INSERT INTO "DicCcy" VALUES(136,'KYD',0,'Cayman Islands Dollar');
INSERT INTO "DicCcy" VALUES(144,'LKR',0,'Sri Lanka Rupee');
INSERT INTO "DicCcy" VALUES(152,'CLP',0,'Chilean Peso');
INSERT INTO "DicCcy" VALUES(156,'CNY',0,'Yuan Renminbi');
INSERT INTO "DicCcy" VALUES(170,'COP',0,'Colombian Peso');
INSERT INTO "DicCcy" VALUES(174,'KMF',0,'Comorian Franc');
INSERT INTO "DicCcy" VALUES(188,'CRC',0,'Costa Rican Colon');
INSERT INTO "DicCcy" VALUES(191,'HRK',0,'Kuna');
INSERT INTO "DicCcy" VALUES(192,'CUP',0,'Cuban Peso');
INSERT INTO "DicCcy" VALUES(203,'CZK',0,'Czech Koruna');
INSERT INTO "DicCcy" VALUES(208,'DKK',0,'Danish Krone');
INSERT INTO "DicCcy" VALUES(214,'DOP',0,'Dominican Peso');
INSERT INTO "DicCcy" VALUES(222,'SVC',0,'El Salvador Colon');
INSERT INTO "DicCcy" VALUES(230,'ETB',0,'Ethiopian Birr');
INSERT INTO "DicCcy" VALUES(232,'ERN',0,'Nakfa');
INSERT INTO "DicCcy" VALUES(238,'FKP',0,'Falkland Islands Pound');
INSERT INTO "DicCcy" VALUES(242,'FJD',0,'Fiji Dollar');
INSERT INTO "DicCcy" VALUES(262,'DJF',0,'Djibouti Franc');
INSERT INTO "DicCcy" VALUES(270,'GMD',0,'Dalasi');
INSERT INTO "DicCcy" VALUES(292,'GIP',0,'Gibraltar Pound');
INSERT INTO "DicCcy" VALUES(320,'GTQ',0,'Quetzal');
INSERT INTO "DicCcy" VALUES(324,'GNF',0,'Guinean Franc');
INSERT INTO "DicCcy" VALUES(328,'GYD',0,'Guyana Dollar');
INSERT INTO "DicCcy" VALUES(332,'HTG',0,'Gourde');
INSERT INTO "DicCcy" VALUES(340,'HNL',0,'Lempira');
INSERT INTO "DicCcy" VALUES(344,'HKD',0,'Hong Kong Dollar');
INSERT INTO "DicCcy" VALUES(348,'HUF',0,'Forint');
INSERT INTO "DicCcy" VALUES(352,'ISK',0,'Iceland Krona');
INSERT INTO "DicCcy" VALUES(356,'INR',0,'Indian Rupee');
INSERT INTO "DicCcy" VALUES(360,'IDR',0,'Rupiah');
INSERT INTO "DicCcy" VALUES(364,'IRR',0,'Iranian Rial');
INSERT INTO "DicCcy" VALUES(368,'IQD',0,'Iraqi Dinar');
INSERT INTO "DicCcy" VALUES(376,'ILS',0,'New Israeli Sheqel');
INSERT INTO "DicCcy" VALUES(388,'JMD',0,'Jamaican Dollar');
INSERT INTO "DicCcy" VALUES(392,'JPY',0,'Yen');
INSERT INTO "DicCcy" VALUES(398,'KZT',0,'Tenge');
INSERT INTO "DicCcy" VALUES(400,'JOD',0,'Jordanian Dinar');
INSERT INTO "DicCcy" VALUES(404,'KES',0,'Kenyan Shilling');
INSERT INTO "DicCcy" VALUES(408,'KPW',0,'North Korean Won');
INSERT INTO "DicCcy" VALUES(410,'KRW',0,'Won');
INSERT INTO "DicCcy" VALUES(414,'KWD',0,'Kuwaiti Dinar');
INSERT INTO "DicCcy" VALUES(417,'KGS',0,'Som');
INSERT INTO "DicCcy" VALUES(418,'LAK',0,'Lao Kip');
INSERT INTO "DicCcy" VALUES(422,'LBP',0,'Lebanese Pound');
INSERT INTO "DicCcy" VALUES(426,'LSL',0,'Loti');
INSERT INTO "DicCcy" VALUES(430,'LRD',0,'Liberian Dollar');
INSERT INTO "DicCcy" VALUES(434,'LYD',0,'Libyan Dinar');
INSERT INTO "DicCcy" VALUES(446,'MOP',0,'Pataca');
INSERT INTO "DicCcy" VALUES(454,'MWK',0,'Malawi Kwacha');
INSERT INTO "DicCcy" VALUES(458,'MYR',0,'Malaysian Ringgit');
INSERT INTO "DicCcy" VALUES(462,'MVR',0,'Rufiyaa');
INSERT INTO "DicCcy" VALUES(480,'MUR',0,'Mauritius Rupee');
INSERT INTO "DicCcy" VALUES(484,'MXN',0,'Mexican Peso');
INSERT INTO "DicCcy" VALUES(496,'MNT',0,'Tugrik');
INSERT INTO "DicCcy" VALUES(498,'MDL',0,'Moldovan Leu');
INSERT INTO "DicCcy" VALUES(504,'MAD',0,'Moroccan Dirham');
INSERT INTO "DicCcy" VALUES(512,'OMR',0,'Rial Omani');
INSERT INTO "DicCcy" VALUES(516,'NAD',0,'Namibia Dollar');
INSERT INTO "DicCcy" VALUES(524,'NPR',0,'Nepalese Rupee');
INSERT INTO "DicCcy" VALUES(532,'ANG',0,'Netherlands Antillean Guilder');
INSERT INTO "DicCcy" VALUES(533,'AWG',0,'Aruban Florin');
INSERT INTO "DicCcy" VALUES(548,'VUV',0,'Vatu');
INSERT INTO "DicCcy" VALUES(554,'NZD',0,'New Zealand Dollar');
INSERT INTO "DicCcy" VALUES(558,'NIO',0,'Cordoba Oro');
INSERT INTO "DicCcy" VALUES(566,'NGN',0,'Naira');
INSERT INTO "DicCcy" VALUES(578,'NOK',0,'Norwegian Krone');
INSERT INTO "DicCcy" VALUES(586,'PKR',0,'Pakistan Rupee');
INSERT INTO "DicCcy" VALUES(590,'PAB',0,'Balboa');
INSERT INTO "DicCcy" VALUES(598,'PGK',0,'Kina');
INSERT INTO "DicCcy" VALUES(600,'PYG',0,'Guarani');
INSERT INTO "DicCcy" VALUES(604,'PEN',0,'Sol');
INSERT INTO "DicCcy" VALUES(608,'PHP',0,'Philippine Peso');
INSERT INTO "DicCcy" VALUES(634,'QAR',0,'Qatari Rial');
INSERT INTO "DicCcy" VALUES(643,'RUB',0,'Russian Ruble');
INSERT INTO "DicCcy" VALUES(646,'RWF',0,'Rwanda Franc');
INSERT INTO "DicCcy" VALUES(654,'SHP',0,'Saint Helena Pound');
INSERT INTO "DicCcy" VALUES(682,'SAR',0,'Saudi Riyal');
INSERT INTO "DicCcy" VALUES(690,'SCR',0,'Seychelles Rupee');
INSERT INTO "DicCcy" VALUES(694,'SLL',0,'Leone');
INSERT INTO "DicCcy" VALUES(702,'SGD',0,'Singapore Dollar');
INSERT INTO "DicCcy" VALUES(704,'VND',0,'Dong');
INSERT INTO "DicCcy" VALUES(706,'SOS',0,'Somali Shilling');
INSERT INTO "DicCcy" VALUES(710,'ZAR',0,'Rand');
INSERT INTO "DicCcy" VALUES(728,'SSP',0,'South Sudanese Pound');
INSERT INTO "DicCcy" VALUES(748,'SZL',0,'Lilangeni');
INSERT INTO "DicCcy" VALUES(752,'SEK',0,'Swedish Krona');
INSERT INTO "DicCcy" VALUES(756,'CHF',0,'Swiss Franc');
INSERT INTO "DicCcy" VALUES(760,'SYP',0,'Syrian Pound');
INSERT INTO "DicCcy" VALUES(764,'THB',0,'Baht');
INSERT INTO "DicCcy" VALUES(776,'TOP',0,'Pa’anga');
INSERT INTO "DicCcy" VALUES(780,'TTD',0,'Trinidad and Tobago Dollar');
INSERT INTO "DicCcy" VALUES(784,'AED',0,'UAE Dirham');
INSERT INTO "DicCcy" VALUES(788,'TND',0,'Tunisian Dinar');
INSERT INTO "DicCcy" VALUES(800,'UGX',0,'Uganda Shilling');
INSERT INTO "DicCcy" VALUES(807,'MKD',0,'Denar');
INSERT INTO "DicCcy" VALUES(818,'EGP',0,'Egyptian Pound');
INSERT INTO "DicCcy" VALUES(826,'GBP',0,'Pound Sterling');
INSERT INTO "DicCcy" VALUES(834,'TZS',0,'Tanzanian Shilling');
INSERT INTO "DicCcy" VALUES(840,'USD',0,'US Dollar');
INSERT INTO "DicCcy" VALUES(858,'UYU',0,'Peso Uruguayo');
INSERT INTO "DicCcy" VALUES(860,'UZS',0,'Uzbekistan Sum');
INSERT INTO "DicCcy" VALUES(882,'WST',0,'Tala');
INSERT INTO "DicCcy" VALUES(886,'YER',0,'Yemeni Rial');
INSERT INTO "DicCcy" VALUES(901,'TWD',0,'New Taiwan Dollar');
INSERT INTO "DicCcy" VALUES(925,'SLE',0,'Leone');
INSERT INTO "DicCcy" VALUES(926,'VED',0,'Bolívar Soberano');
INSERT INTO "DicCcy" VALUES(927,'UYW',1,'Unidad Previsional');
INSERT INTO "DicCcy" VALUES(928,'VES',0,'Bolívar Soberano');
INSERT INTO "DicCcy" VALUES(929,'MRU',0,'Ouguiya');
INSERT INTO "DicCcy" VALUES(930,'STN',0,'Dobra');
INSERT INTO "DicCcy" VALUES(931,'CUC',0,'Peso Convertible');
INSERT INTO "DicCcy" VALUES(932,'ZWL',0,'Zimbabwe Dollar');
INSERT INTO "DicCcy" VALUES(933,'BYN',0,'Belarusian Ruble');
INSERT INTO "DicCcy" VALUES(934,'TMT',0,'Turkmenistan New Manat');
INSERT INTO "DicCcy" VALUES(936,'GHS',0,'Ghana Cedi');
INSERT INTO "DicCcy" VALUES(938,'SDG',0,'Sudanese Pound');
INSERT INTO "DicCcy" VALUES(940,'UYI',1,'Uruguay Peso en Unidades Indexadas (UI)');
INSERT INTO "DicCcy" VALUES(941,'RSD',0,'Serbian Dinar');
INSERT INTO "DicCcy" VALUES(943,'MZN',0,'Mozambique Metical');
INSERT INTO "DicCcy" VALUES(944,'AZN',0,'Azerbaijan Manat');
INSERT INTO "DicCcy" VALUES(946,'RON',0,'Romanian Leu');
INSERT INTO "DicCcy" VALUES(947,'CHE',1,'WIR Euro');
INSERT INTO "DicCcy" VALUES(948,'CHW',1,'WIR Franc');
INSERT INTO "DicCcy" VALUES(949,'TRY',0,'Turkish Lira');
INSERT INTO "DicCcy" VALUES(950,'XAF',0,'CFA Franc BEAC');
INSERT INTO "DicCcy" VALUES(951,'XCD',0,'East Caribbean Dollar');
INSERT INTO "DicCcy" VALUES(952,'XOF',0,'CFA Franc BCEAO');
INSERT INTO "DicCcy" VALUES(953,'XPF',0,'CFP Franc');
INSERT INTO "DicCcy" VALUES(955,'XBA',1,'Bond Markets Unit European Composite Unit (EURCO)');
INSERT INTO "DicCcy" VALUES(956,'XBB',1,'Bond Markets Unit European Monetary Unit (E.M.U.-6)');
INSERT INTO "DicCcy" VALUES(957,'XBC',1,'Bond Markets Unit European Unit of Account 9 (E.U.A.-9)');
INSERT INTO "DicCcy" VALUES(958,'XBD',1,'Bond Markets Unit European Unit of Account 17 (E.U.A.-17)');
INSERT INTO "DicCcy" VALUES(959,'XAU',1,'Gold');
INSERT INTO "DicCcy" VALUES(960,'XDR',1,'SDR (Special Drawing Right)');
INSERT INTO "DicCcy" VALUES(961,'XAG',1,'Silver');
INSERT INTO "DicCcy" VALUES(962,'XPT',1,'Platinum');
INSERT INTO "DicCcy" VALUES(963,'XTS',1,'Codes specifically reserved for testing purposes');
INSERT INTO "DicCcy" VALUES(964,'XPD',1,'Palladium');
INSERT INTO "DicCcy" VALUES(965,'XUA',1,'ADB Unit of Account');
INSERT INTO "DicCcy" VALUES(967,'ZMW',0,'Zambian Kwacha');
INSERT INTO "DicCcy" VALUES(968,'SRD',0,'Surinam Dollar');
INSERT INTO "DicCcy" VALUES(969,'MGA',0,'Malagasy Ariary');
INSERT INTO "DicCcy" VALUES(970,'COU',1,'Unidad de Valor Real');
INSERT INTO "DicCcy" VALUES(971,'AFN',0,'Afghani');
INSERT INTO "DicCcy" VALUES(972,'TJS',0,'Somoni');
INSERT INTO "DicCcy" VALUES(973,'AOA',0,'Kwanza');
INSERT INTO "DicCcy" VALUES(975,'BGN',0,'Bulgarian Lev');
INSERT INTO "DicCcy" VALUES(976,'CDF',0,'Congolese Franc');
INSERT INTO "DicCcy" VALUES(977,'BAM',0,'Convertible Mark');
INSERT INTO "DicCcy" VALUES(978,'EUR',0,'Euro');
INSERT INTO "DicCcy" VALUES(979,'MXV',1,'Mexican Unidad de Inversion (UDI)');
INSERT INTO "DicCcy" VALUES(980,'UAH',0,'Hryvnia');
INSERT INTO "DicCcy" VALUES(981,'GEL',0,'Lari');
INSERT INTO "DicCcy" VALUES(984,'BOV',1,'Mvdol');
INSERT INTO "DicCcy" VALUES(985,'PLN',0,'Zloty');
INSERT INTO "DicCcy" VALUES(986,'BRL',0,'Brazilian Real');
INSERT INTO "DicCcy" VALUES(990,'CLF',1,'Unidad de Fomento');
INSERT INTO "DicCcy" VALUES(994,'XSU',1,'Sucre');
INSERT INTO "DicCcy" VALUES(997,'USN',1,'US Dollar (Next day)');
INSERT INTO "DicCcy" VALUES(999,'XXX',1,'The codes assigned for transactions where no currency is involved');
CREATE TABLE ProcedureCatalogue (
  Name TEXT NOT NULL COLLATE NOCASE PRIMARY KEY,
  Writes INTEGER NOT NULL CHECK (Writes IN (0, 1)),
  Body TEXT NOT NULL
) WITHOUT ROWID;
INSERT INTO "ProcedureCatalogue" VALUES('CldAllInfo',0,'-- What the windows need before a calendar is chosen: calendars, holiday types, holiday rules, first weekday.

SELECT ID1, Year1 FROM CldCalendar ORDER BY ID1, Year1;

SELECT TID1, Description1 FROM CldHolidayType ORDER BY TID1;

SELECT ID2, Name1, Comment, TID1, D1, MY, MD, WD, Del FROM CldHoliday ORDER BY ID2;

SELECT FirstDay FROM CldSetting;
');
INSERT INTO "ProcedureCatalogue" VALUES('CldGetMain',0,'-- The days of one calendar.
-- Returns 0; 7 a value is missing or out of range; 3 unknown currency; 5 unknown calendar.

SELECT CASE
    WHEN :ID1 IS NULL OR :Year1 IS NULL OR :Year1 NOT BETWEEN 1900 AND 3000 THEN 7
    WHEN NOT EXISTS (SELECT 1 FROM DicCcy WHERE CcyID = :ID1 AND CcyType = 0) THEN 3
    ELSE 5
  END AS "@return"
WHERE NOT EXISTS (SELECT 1 FROM CldCalendar WHERE ID1 = :ID1 AND Year1 = :Year1);

SELECT d.ODate, d.TID1, h.Name1, h.Comment AS Comment2, d.Comment, d.ID2, d.Day1
FROM CldDay d LEFT JOIN CldHoliday h ON h.ID2 = d.ID2
WHERE d.ID1 = :ID1 AND d.Year1 = :Year1
ORDER BY d.Day1;
');
INSERT INTO "ProcedureCatalogue" VALUES('CldIUCelebrate',1,'-- With Del sets the removal mark of the rule ID2, nothing else given. Otherwise updates the rule ID2 or, without ID2,
-- inserts a rule: a weekday rule (type 2) has WD; one of type 3 or 4 has D1, MY and MD. The type of a rule stays.
-- Returns 0; 7 a value is missing or out of range; 4 unknown rule; 2 a rule of that name exists; 10 a removed rule
-- has that name.

SELECT 7 AS "@return"
WHERE :Del IS NOT NULL
  AND (:Del NOT IN (2, 4) OR :ID2 IS NULL
    OR :Name1 IS NOT NULL OR :Comment IS NOT NULL OR :TID1 IS NOT NULL OR :WD IS NOT NULL OR :D1 IS NOT NULL
    OR :MY IS NOT NULL OR :MD IS NOT NULL);

SELECT 7 AS "@return"
WHERE :Del IS NULL
  AND (:Name1 IS NULL OR trim(:Name1) = '''' OR :TID1 IS NULL OR :TID1 NOT BETWEEN 2 AND 4
    OR :TID1 = 2 AND (:WD IS NULL OR :WD NOT BETWEEN 1 AND 7 OR :D1 IS NOT NULL OR :MY IS NOT NULL OR :MD IS NOT NULL)
    OR :TID1 <> 2 AND (:WD IS NOT NULL OR :D1 IS NULL OR :MY IS NOT CAST(strftime(''%m'', :D1) AS INTEGER)
      OR :MD IS NOT CAST(strftime(''%d'', :D1) AS INTEGER)));

SELECT 4 AS "@return"
WHERE :ID2 IS NOT NULL AND NOT EXISTS (SELECT 1 FROM CldHoliday WHERE ID2 = :ID2);

-- The built-in rule of type 1 is neither changed nor removed, and no rule changes its type.
SELECT 7 AS "@return" FROM CldHoliday WHERE ID2 = :ID2 AND TID1 IS NOT ifnull(:TID1, nullif(TID1, 1));

UPDATE CldHoliday SET Del = :Del WHERE ID2 = :ID2 AND :Del IS NOT NULL;

SELECT 0 AS "@return" WHERE :Del IS NOT NULL;

SELECT CASE Del WHEN 2 THEN 10 ELSE 2 END AS "@return" FROM CldHoliday WHERE Name1 = :Name1 AND ID2 IS NOT :ID2;

UPDATE CldHoliday SET Name1 = :Name1, Comment = :Comment, WD = :WD, D1 = :D1, MY = :MY, MD = :MD
WHERE ID2 = :ID2;

INSERT INTO CldHoliday (Name1, Comment, TID1, WD, D1, MY, MD)
SELECT :Name1, :Comment, :TID1, :WD, :D1, :MY, :MD WHERE :ID2 IS NULL;
');
INSERT INTO "ProcedureCatalogue" VALUES('CldIUMain',1,'-- Without TID1 creates the calendar of the currency ID1 for Year1, every day an ordinary working day. With TID1 gives
-- days of the calendar the rule ID2 of that type: the day Day1, or for a weekday rule (type 2) without Day1 every day
-- of the year on its weekday. What a day carried before, its comment included, is replaced.
-- Returns 0; 7 a value is missing or out of range; 3 unknown currency; 4 unknown rule (a removed one is not assigned
-- either); 5 unknown calendar; 6 the calendar exists already.

-- The first reason against the call, or 0.
SELECT CASE
  WHEN :ID1 IS NULL OR :Year1 IS NULL OR :Year1 NOT BETWEEN 1900 AND 3000 THEN 7
  -- Only money has calendars: the windows list no other currency that a calendar could stand under.
  WHEN c.CcyType IS NOT 0 THEN 3

  -- A new calendar. A value that only an assignment takes means that its TID1 was forgotten.
  WHEN :TID1 IS NULL
    AND (:ID2 IS NOT NULL OR :Day1 IS NOT NULL OR :ODate IS NOT NULL OR :Comment IS NOT NULL) THEN 7
  WHEN :TID1 IS NULL THEN iif(k.ID1 IS NULL, 0, 6)

  -- An assignment. Only a weekday rule may leave out the day, and then the date as well; a dated rule needs both.
  WHEN :TID1 NOT BETWEEN 1 AND 4
    OR :ID2 IS NULL
    OR :Day1 IS NULL AND (:TID1 <> 2 OR :ODate IS NOT NULL)
    OR :ODate IS NULL AND :TID1 IN (3, 4)
    OR :Day1 NOT BETWEEN 1 AND CAST(strftime(''%j'', :Year1 || ''-12-31'') AS INTEGER)
    OR :ODate <> date(:Year1 || ''-01-01'', (:Day1 - 1) || '' days'') THEN 7
  WHEN k.ID1 IS NULL THEN 5
  WHEN h.ID2 IS NULL OR h.Del = 2 THEN 4
  WHEN h.TID1 <> :TID1 THEN 7
  ELSE 0
END AS "@Refusal",
-- Of a weekday rule, 0 for Sunday to 6 for Saturday: its WD counts from the setting''s first weekday.
CAST((h.WD - 1 + s.FirstDay - 1) % 7 AS TEXT) AS "@Weekday"
FROM CldSetting s
LEFT JOIN DicCcy c ON c.CcyID = :ID1
LEFT JOIN CldCalendar k ON k.ID1 = :ID1 AND k.Year1 = :Year1
LEFT JOIN CldHoliday h ON h.ID2 = :ID2;

SELECT ifnull(:Refusal, 7) AS "@return" WHERE :Refusal IS NOT 0;

-- The assignment; a calendar that is new has no days yet.
UPDATE CldDay SET TID1 = :TID1, ID2 = :ID2, Comment = :Comment
WHERE ID1 = :ID1 AND Year1 = :Year1 AND Day1 BETWEEN ifnull(:Day1, 1) AND ifnull(:Day1, 366)
  -- Exceptions and dated rules stand above weekday rules.
  AND (:Day1 IS NOT NULL OR strftime(''%w'', ODate) = :Weekday AND (TID1 = 2 OR ID2 IS NULL));

SELECT 0 AS "@return" WHERE :TID1 IS NOT NULL;

-- The new calendar.
INSERT INTO CldCalendar (ID1, Year1) VALUES (:ID1, :Year1);

WITH RECURSIVE DayOfYear (Day1, ODate) AS (
  SELECT 1, date(:Year1 || ''-01-01'')
  UNION ALL
  SELECT Day1 + 1, date(ODate, ''1 day'') FROM DayOfYear WHERE ODate < :Year1 || ''-12-31''
)
INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1)
SELECT :ID1, :Year1, Day1, ODate, 1 FROM DayOfYear;
');
CREATE TABLE ProcedureParameter (
  ProcedureName TEXT NOT NULL COLLATE NOCASE REFERENCES ProcedureCatalogue (Name),
  Position INTEGER NOT NULL CHECK (Position >= 0),
  Name TEXT NOT NULL COLLATE NOCASE CHECK (Name GLOB '@?*'),
  Type TEXT NOT NULL CHECK (Type IN ('int16', 'int32', 'text', 'date')),
  Direction TEXT NOT NULL CHECK (Direction = CASE Position WHEN 0 THEN 'return' ELSE 'in' END),
  PRIMARY KEY (ProcedureName, Position),
  UNIQUE (ProcedureName, Name)
) WITHOUT ROWID;
INSERT INTO "ProcedureParameter" VALUES('CldAllInfo',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldGetMain',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldGetMain',1,'@ID1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetMain',2,'@Year1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUCelebrate',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldIUCelebrate',1,'@Name1','text','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUCelebrate',2,'@Comment','text','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUCelebrate',3,'@TID1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUCelebrate',4,'@WD','int16','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUCelebrate',5,'@D1','date','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUCelebrate',6,'@MY','int16','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUCelebrate',7,'@MD','int16','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUCelebrate',8,'@ID2','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUCelebrate',9,'@Del','int16','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',1,'@ID1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',2,'@Year1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',3,'@TID1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',4,'@ID2','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',5,'@Day1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',6,'@ODate','date','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',7,'@Comment','text','in');
CREATE TRIGGER CldHistoryKeepsItsEntries BEFORE UPDATE ON CldHistory
BEGIN
  SELECT RAISE(ABORT, 'an entry of the history is not changed');
END;
CREATE TRIGGER CldHistoryLosesNoEntry BEFORE DELETE ON CldHistory
BEGIN
  SELECT RAISE(ABORT, 'an entry of the history is not removed');
END;
CREATE UNIQUE INDEX CldSettingHasOneRow ON CldSetting ((1));
COMMIT;
