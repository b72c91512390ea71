-- A calendar database as version 7 of the schema had it, with a rule and a calendar that two calls have made. What upgrades from
-- there are tested on; it stays as it is.
PRAGMA application_id = 1181053559;
-- Rows stand before those that they refer to.
PRAGMA foreign_keys = OFF;
PRAGMA user_version = 7;
BEGIN TRANSACTION;
CREATE TABLE CldBook (
  ID1 INTEGER PRIMARY KEY REFERENCES DicCcy (CcyID),
  Publisher TEXT NOT NULL CHECK (typeof(Publisher) = 'text'),
  Document TEXT NOT NULL CHECK (typeof(Document) = 'text'),
  FromYear INTEGER CHECK (FromYear BETWEEN 1900 AND 3000 AND typeof(FromYear) = 'integer' OR FromYear IS NULL)
);
CREATE TABLE CldCalendar (
  ID1 INTEGER NOT NULL REFERENCES DicCcy (CcyID),
  Year1 INTEGER NOT NULL CHECK (Year1 BETWEEN 1900 AND 3000 AND typeof(Year1) = 'integer'),
  PRIMARY KEY (ID1, Year1)
) WITHOUT ROWID;
INSERT INTO "CldCalendar" VALUES(978,2026);
CREATE TABLE CldChainStart (
  ID1 INTEGER NOT NULL,
  Year1 INTEGER NOT NULL,
  EntryID INTEGER NOT NULL,
  Moment TEXT,
  Digest TEXT NOT NULL,
  PRIMARY KEY (ID1, Year1)
) WITHOUT ROWID;
INSERT INTO "CldChainStart" VALUES(0,2,0,NULL,'8a02d33671ddeab292a6893ef76839654da876e4f59d920b75d0a536c4965489');
INSERT INTO "CldChainStart" VALUES(0,3,0,NULL,'75e36d697bd3845d36249ff535a3a0ce9810b3b9e38b2f312d29044411e7b11b');
INSERT INTO "CldChainStart" VALUES(0,6,0,NULL,'e9bfd65ae870740037eb46f9d44a44fb4c766179d1ee7d02a678c7d6633b4c32');
CREATE TABLE CldConvention (
  ID1 INTEGER NOT NULL REFERENCES DicCcy (CcyID),
  OtherID INTEGER NOT NULL REFERENCES DicCcy (CcyID),
  SpotDays INTEGER CHECK (SpotDays BETWEEN 0 AND 2 AND typeof(SpotDays) = 'integer' OR SpotDays IS NULL),
  DollarStops INTEGER CHECK (DollarStops IN (0, 1) AND typeof(DollarStops) = 'integer' OR DollarStops IS NULL),
  PRIMARY KEY (ID1, OtherID),
  CHECK (ID1 <= OtherID),
  CHECK ((SpotDays IS NULL) = (ID1 = OtherID) AND (DollarStops IS NULL) = (ID1 <> OtherID))
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
WITH RECURSIVE Day (N) AS (SELECT 1 UNION ALL SELECT N + 1 FROM Day WHERE N < 365)
INSERT INTO CldDay SELECT 978, 2026, N, date('2026-01-01', (N - 1) || ' days'), 1, NULL, NULL FROM Day;
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
INSERT INTO "CldHistory" VALUES(1,'2026-11-23T15:15:08.391Z','root','CldIUCelebrate',NULL,NULL,'{"Name1" : "Sunday", "Comment" : null, "TID1" : 2, "WD" : 1, "D1" : null, "MY" : null, "MD" : null, "ID2" : null, "Del" : null}',0,1,1,'','4b3b792e7e3e669ea7206f3dbff88ab97fdb18c44513ca830abd4703b9e022a7');
INSERT INTO "CldHistory" VALUES(2,'2026-11-23T15:15:08.588Z','root','CldIUMain',978,2026,'{"ID1" : 978, "Year1" : 2026, "TID1" : null, "ID2" : null, "Day1" : null, "ODate" : null, "Comment" : null}',0,366,1,'','5b93719d957575540d77811c992c042123adf89b5256c6daf9bd567083b7b62a');
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
INSERT INTO "CldHistoryRow" VALUES(1,1,'CldHoliday',NULL,NULL,NULL,2,NULL,NULL,'{"Name1" : "Sunday", "Comment" : null, "TID1" : 2, "D1" : null, "MY" : null, "MD" : null, "WD" : 1, "Del" : null}');
INSERT INTO "CldHistoryRow" VALUES(2,1,'CldCalendar',978,2026,NULL,NULL,NULL,NULL,'{}');
CREATE TABLE CldHistoryStart (
  EntryID INTEGER PRIMARY KEY,
  Moment TEXT NOT NULL CHECK (Moment LIKE '____-__-__T__:__:__.___Z')
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
INSERT INTO "CldHoliday" VALUES(2,'Sunday',NULL,2,NULL,NULL,NULL,1,NULL);
CREATE TABLE CldHolidayType (
  TID1 INTEGER PRIMARY KEY,
  Description1 TEXT NOT NULL UNIQUE
);
INSERT INTO "CldHolidayType" VALUES(1,'Working day');
INSERT INTO "CldHolidayType" VALUES(2,'Holiday');
INSERT INTO "CldHolidayType" VALUES(3,'Celebration');
INSERT INTO "CldHolidayType" VALUES(4,'Holiday point');
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
CREATE TABLE CldSetting (
  FirstDay INTEGER NOT NULL CHECK (FirstDay BETWEEN 1 AND 7 AND typeof(FirstDay) = 'integer')
);
INSERT INTO "CldSetting" VALUES(1);
CREATE TABLE DicCcy (
  CcyID INTEGER PRIMARY KEY,
  Ccy TEXT NOT NULL UNIQUE,
  CcyType SMALLINT NOT NULL CHECK (CcyType IN (0, 1)),
  Name TEXT NOT NULL,
  LastDay DATE CHECK (LastDay IS date(LastDay, '0 days') AND LastDay >= '0001')
);
INSERT INTO "DicCcy" VALUES(8,'ALL',0,'Lek',NULL);
INSERT INTO "DicCcy" VALUES(12,'DZD',0,'Algerian Dinar',NULL);
INSERT INTO "DicCcy" VALUES(32,'ARS',0,'Argentine Peso',NULL);
INSERT INTO "DicCcy" VALUES(36,'AUD',0,'Australian Dollar',NULL);
INSERT INTO "DicCcy" VALUES(44,'BSD',0,'Bahamian Dollar',NULL);
INSERT INTO "DicCcy" VALUES(48,'BHD',0,'Bahraini Dinar',NULL);
INSERT INTO "DicCcy" VALUES(50,'BDT',0,'Taka',NULL);
INSERT INTO "DicCcy" VALUES(51,'AMD',0,'Armenian Dram',NULL);
INSERT INTO "DicCcy" VALUES(52,'BBD',0,'Barbados Dollar',NULL);
INSERT INTO "DicCcy" VALUES(60,'BMD',0,'Bermudian Dollar',NULL);
INSERT INTO "DicCcy" VALUES(64,'BTN',0,'Ngultrum',NULL);
INSERT INTO "DicCcy" VALUES(68,'BOB',0,'Boliviano',NULL);
INSERT INTO "DicCcy" VALUES(72,'BWP',0,'Pula',NULL);
INSERT INTO "DicCcy" VALUES(84,'BZD',0,'Belize Dollar',NULL);
INSERT INTO "DicCcy" VALUES(90,'SBD',0,'Solomon Islands Dollar',NULL);
INSERT INTO "DicCcy" VALUES(96,'BND',0,'Brunei Dollar',NULL);
INSERT INTO "DicCcy" VALUES(104,'MMK',0,'Kyat',NULL);
INSERT INTO "DicCcy" VALUES(108,'BIF',0,'Burundi Franc',NULL);
INSERT INTO "DicCcy" VALUES(116,'KHR',0,'Riel',NULL);
INSERT INTO "DicCcy" VALUES(124,'CAD',0,'Canadian Dollar',NULL);
INSERT INTO "DicCcy" VALUES(132,'CVE',0,'Cabo Verde Escudo',NULL);
INSERT INTO "DicCcy" VALUES(136,'KYD',0,'Cayman Islands Dollar',NULL);
INSERT INTO "DicCcy" VALUES(144,'LKR',0,'Sri Lanka Rupee',NULL);
INSERT INTO "DicCcy" VALUES(152,'CLP',0,'Chilean Peso',NULL);
INSERT INTO "DicCcy" VALUES(156,'CNY',0,'Yuan Renminbi',NULL);
INSERT INTO "DicCcy" VALUES(170,'COP',0,'Colombian Peso',NULL);
INSERT INTO "DicCcy" VALUES(174,'KMF',0,'Comorian Franc',NULL);
INSERT INTO "DicCcy" VALUES(188,'CRC',0,'Costa Rican Colon',NULL);
INSERT INTO "DicCcy" VALUES(191,'HRK',1,'Kuna','2022-12-31');
INSERT INTO "DicCcy" VALUES(192,'CUP',0,'Cuban Peso',NULL);
INSERT INTO "DicCcy" VALUES(203,'CZK',0,'Czech Koruna',NULL);
INSERT INTO "DicCcy" VALUES(208,'DKK',0,'Danish Krone',NULL);
INSERT INTO "DicCcy" VALUES(214,'DOP',0,'Dominican Peso',NULL);
INSERT INTO "DicCcy" VALUES(222,'SVC',0,'El Salvador Colon',NULL);
INSERT INTO "DicCcy" VALUES(230,'ETB',0,'Ethiopian Birr',NULL);
INSERT INTO "DicCcy" VALUES(232,'ERN',0,'Nakfa',NULL);
INSERT INTO "DicCcy" VALUES(238,'FKP',0,'Falkland Islands Pound',NULL);
INSERT INTO "DicCcy" VALUES(242,'FJD',0,'Fiji Dollar',NULL);
INSERT INTO "DicCcy" VALUES(262,'DJF',0,'Djibouti Franc',NULL);
INSERT INTO "DicCcy" VALUES(270,'GMD',0,'Dalasi',NULL);
INSERT INTO "DicCcy" VALUES(292,'GIP',0,'Gibraltar Pound',NULL);
INSERT INTO "DicCcy" VALUES(320,'GTQ',0,'Quetzal',NULL);
INSERT INTO "DicCcy" VALUES(324,'GNF',0,'Guinean Franc',NULL);
INSERT INTO "DicCcy" VALUES(328,'GYD',0,'Guyana Dollar',NULL);
INSERT INTO "DicCcy" VALUES(332,'HTG',0,'Gourde',NULL);
INSERT INTO "DicCcy" VALUES(340,'HNL',0,'Lempira',NULL);
INSERT INTO "DicCcy" VALUES(344,'HKD',0,'Hong Kong Dollar',NULL);
INSERT INTO "DicCcy" VALUES(348,'HUF',0,'Forint',NULL);
INSERT INTO "DicCcy" VALUES(352,'ISK',0,'Iceland Krona',NULL);
INSERT INTO "DicCcy" VALUES(356,'INR',0,'Indian Rupee',NULL);
INSERT INTO "DicCcy" VALUES(360,'IDR',0,'Rupiah',NULL);
INSERT INTO "DicCcy" VALUES(364,'IRR',0,'Iranian Rial',NULL);
INSERT INTO "DicCcy" VALUES(368,'IQD',0,'Iraqi Dinar',NULL);
INSERT INTO "DicCcy" VALUES(376,'ILS',0,'New Israeli Sheqel',NULL);
INSERT INTO "DicCcy" VALUES(388,'JMD',0,'Jamaican Dollar',NULL);
INSERT INTO "DicCcy" VALUES(392,'JPY',0,'Yen',NULL);
INSERT INTO "DicCcy" VALUES(396,'XAD',1,'Arab Accounting Dinar',NULL);
INSERT INTO "DicCcy" VALUES(398,'KZT',0,'Tenge',NULL);
INSERT INTO "DicCcy" VALUES(400,'JOD',0,'Jordanian Dinar',NULL);
INSERT INTO "DicCcy" VALUES(404,'KES',0,'Kenyan Shilling',NULL);
INSERT INTO "DicCcy" VALUES(408,'KPW',0,'North Korean Won',NULL);
INSERT INTO "DicCcy" VALUES(410,'KRW',0,'Won',NULL);
INSERT INTO "DicCcy" VALUES(414,'KWD',0,'Kuwaiti Dinar',NULL);
INSERT INTO "DicCcy" VALUES(417,'KGS',0,'Som',NULL);
INSERT INTO "DicCcy" VALUES(418,'LAK',0,'Lao Kip',NULL);
INSERT INTO "DicCcy" VALUES(422,'LBP',0,'Lebanese Pound',NULL);
INSERT INTO "DicCcy" VALUES(426,'LSL',0,'Loti',NULL);
INSERT INTO "DicCcy" VALUES(430,'LRD',0,'Liberian Dollar',NULL);
INSERT INTO "DicCcy" VALUES(434,'LYD',0,'Libyan Dinar',NULL);
INSERT INTO "DicCcy" VALUES(446,'MOP',0,'Pataca',NULL);
INSERT INTO "DicCcy" VALUES(454,'MWK',0,'Malawi Kwacha',NULL);
INSERT INTO "DicCcy" VALUES(458,'MYR',0,'Malaysian Ringgit',NULL);
INSERT INTO "DicCcy" VALUES(462,'MVR',0,'Rufiyaa',NULL);
INSERT INTO "DicCcy" VALUES(480,'MUR',0,'Mauritius Rupee',NULL);
INSERT INTO "DicCcy" VALUES(484,'MXN',0,'Mexican Peso',NULL);
INSERT INTO "DicCcy" VALUES(496,'MNT',0,'Tugrik',NULL);
INSERT INTO "DicCcy" VALUES(498,'MDL',0,'Moldovan Leu',NULL);
INSERT INTO "DicCcy" VALUES(504,'MAD',0,'Moroccan Dirham',NULL);
INSERT INTO "DicCcy" VALUES(512,'OMR',0,'Rial Omani',NULL);
INSERT INTO "DicCcy" VALUES(516,'NAD',0,'Namibia Dollar',NULL);
INSERT INTO "DicCcy" VALUES(524,'NPR',0,'Nepalese Rupee',NULL);
INSERT INTO "DicCcy" VALUES(530,'ANG',1,'Netherlands Antillean Guilder','2025-03-30');
INSERT INTO "DicCcy" VALUES(532,'XCG',0,'Caribbean Guilder',NULL);
INSERT INTO "DicCcy" VALUES(533,'AWG',0,'Aruban Florin',NULL);
INSERT INTO "DicCcy" VALUES(548,'VUV',0,'Vatu',NULL);
INSERT INTO "DicCcy" VALUES(554,'NZD',0,'New Zealand Dollar',NULL);
INSERT INTO "DicCcy" VALUES(558,'NIO',0,'Cordoba Oro',NULL);
INSERT INTO "DicCcy" VALUES(566,'NGN',0,'Naira',NULL);
INSERT INTO "DicCcy" VALUES(578,'NOK',0,'Norwegian Krone',NULL);
INSERT INTO "DicCcy" VALUES(586,'PKR',0,'Pakistan Rupee',NULL);
INSERT INTO "DicCcy" VALUES(590,'PAB',0,'Balboa',NULL);
INSERT INTO "DicCcy" VALUES(598,'PGK',0,'Kina',NULL);
INSERT INTO "DicCcy" VALUES(600,'PYG',0,'Guarani',NULL);
INSERT INTO "DicCcy" VALUES(604,'PEN',0,'Sol',NULL);
INSERT INTO "DicCcy" VALUES(608,'PHP',0,'Philippine Peso',NULL);
INSERT INTO "DicCcy" VALUES(634,'QAR',0,'Qatari Rial',NULL);
INSERT INTO "DicCcy" VALUES(643,'RUB',0,'Russian Ruble',NULL);
INSERT INTO "DicCcy" VALUES(646,'RWF',0,'Rwanda Franc',NULL);
INSERT INTO "DicCcy" VALUES(654,'SHP',0,'Saint Helena Pound',NULL);
INSERT INTO "DicCcy" VALUES(682,'SAR',0,'Saudi Riyal',NULL);
INSERT INTO "DicCcy" VALUES(690,'SCR',0,'Seychelles Rupee',NULL);
INSERT INTO "DicCcy" VALUES(694,'SLL',1,'Leone','2023-12-31');
INSERT INTO "DicCcy" VALUES(702,'SGD',0,'Singapore Dollar',NULL);
INSERT INTO "DicCcy" VALUES(704,'VND',0,'Dong',NULL);
INSERT INTO "DicCcy" VALUES(706,'SOS',0,'Somali Shilling',NULL);
INSERT INTO "DicCcy" VALUES(710,'ZAR',0,'Rand',NULL);
INSERT INTO "DicCcy" VALUES(728,'SSP',0,'South Sudanese Pound',NULL);
INSERT INTO "DicCcy" VALUES(748,'SZL',0,'Lilangeni',NULL);
INSERT INTO "DicCcy" VALUES(752,'SEK',0,'Swedish Krona',NULL);
INSERT INTO "DicCcy" VALUES(756,'CHF',0,'Swiss Franc',NULL);
INSERT INTO "DicCcy" VALUES(760,'SYP',0,'Syrian Pound',NULL);
INSERT INTO "DicCcy" VALUES(764,'THB',0,'Baht',NULL);
INSERT INTO "DicCcy" VALUES(776,'TOP',0,'Pa’anga',NULL);
INSERT INTO "DicCcy" VALUES(780,'TTD',0,'Trinidad and Tobago Dollar',NULL);
INSERT INTO "DicCcy" VALUES(784,'AED',0,'UAE Dirham',NULL);
INSERT INTO "DicCcy" VALUES(788,'TND',0,'Tunisian Dinar',NULL);
INSERT INTO "DicCcy" VALUES(800,'UGX',0,'Uganda Shilling',NULL);
INSERT INTO "DicCcy" VALUES(807,'MKD',0,'Denar',NULL);
INSERT INTO "DicCcy" VALUES(818,'EGP',0,'Egyptian Pound',NULL);
INSERT INTO "DicCcy" VALUES(826,'GBP',0,'Pound Sterling',NULL);
INSERT INTO "DicCcy" VALUES(834,'TZS',0,'Tanzanian Shilling',NULL);
INSERT INTO "DicCcy" VALUES(840,'USD',0,'US Dollar',NULL);
INSERT INTO "DicCcy" VALUES(858,'UYU',0,'Peso Uruguayo',NULL);
INSERT INTO "DicCcy" VALUES(860,'UZS',0,'Uzbekistan Sum',NULL);
INSERT INTO "DicCcy" VALUES(882,'WST',0,'Tala',NULL);
INSERT INTO "DicCcy" VALUES(886,'YER',0,'Yemeni Rial',NULL);
INSERT INTO "DicCcy" VALUES(901,'TWD',0,'New Taiwan Dollar',NULL);
INSERT INTO "DicCcy" VALUES(924,'ZWG',0,'Zimbabwe Gold',NULL);
INSERT INTO "DicCcy" VALUES(925,'SLE',0,'Leone',NULL);
INSERT INTO "DicCcy" VALUES(926,'VED',0,'Bolívar Soberano',NULL);
INSERT INTO "DicCcy" VALUES(927,'UYW',1,'Unidad Previsional',NULL);
INSERT INTO "DicCcy" VALUES(928,'VES',0,'Bolívar Soberano',NULL);
INSERT INTO "DicCcy" VALUES(929,'MRU',0,'Ouguiya',NULL);
INSERT INTO "DicCcy" VALUES(930,'STN',0,'Dobra',NULL);
INSERT INTO "DicCcy" VALUES(931,'CUC',1,'Peso Convertible','2021-06-30');
INSERT INTO "DicCcy" VALUES(932,'ZWL',1,'Zimbabwe Dollar','2024-08-31');
INSERT INTO "DicCcy" VALUES(933,'BYN',0,'Belarusian Ruble',NULL);
INSERT INTO "DicCcy" VALUES(934,'TMT',0,'Turkmenistan New Manat',NULL);
INSERT INTO "DicCcy" VALUES(936,'GHS',0,'Ghana Cedi',NULL);
INSERT INTO "DicCcy" VALUES(938,'SDG',0,'Sudanese Pound',NULL);
INSERT INTO "DicCcy" VALUES(940,'UYI',1,'Uruguay Peso en Unidades Indexadas (UI)',NULL);
INSERT INTO "DicCcy" VALUES(941,'RSD',0,'Serbian Dinar',NULL);
INSERT INTO "DicCcy" VALUES(943,'MZN',0,'Mozambique Metical',NULL);
INSERT INTO "DicCcy" VALUES(944,'AZN',0,'Azerbaijan Manat',NULL);
INSERT INTO "DicCcy" VALUES(946,'RON',0,'Romanian Leu',NULL);
INSERT INTO "DicCcy" VALUES(947,'CHE',1,'WIR Euro',NULL);
INSERT INTO "DicCcy" VALUES(948,'CHW',1,'WIR Franc',NULL);
INSERT INTO "DicCcy" VALUES(949,'TRY',0,'Turkish Lira',NULL);
INSERT INTO "DicCcy" VALUES(950,'XAF',0,'CFA Franc BEAC',NULL);
INSERT INTO "DicCcy" VALUES(951,'XCD',0,'East Caribbean Dollar',NULL);
INSERT INTO "DicCcy" VALUES(952,'XOF',0,'CFA Franc BCEAO',NULL);
INSERT INTO "DicCcy" VALUES(953,'XPF',0,'CFP Franc',NULL);
INSERT INTO "DicCcy" VALUES(955,'XBA',1,'Bond Markets Unit European Composite Unit (EURCO)',NULL);
INSERT INTO "DicCcy" VALUES(956,'XBB',1,'Bond Markets Unit European Monetary Unit (E.M.U.-6)',NULL);
INSERT INTO "DicCcy" VALUES(957,'XBC',1,'Bond Markets Unit European Unit of Account 9 (E.U.A.-9)',NULL);
INSERT INTO "DicCcy" VALUES(958,'XBD',1,'Bond Markets Unit European Unit of Account 17 (E.U.A.-17)',NULL);
INSERT INTO "DicCcy" VALUES(959,'XAU',1,'Gold',NULL);
INSERT INTO "DicCcy" VALUES(960,'XDR',1,'SDR (Special Drawing Right)',NULL);
INSERT INTO "DicCcy" VALUES(961,'XAG',1,'Silver',NULL);
INSERT INTO "DicCcy" VALUES(962,'XPT',1,'Platinum',NULL);
INSERT INTO "DicCcy" VALUES(963,'XTS',1,'Codes specifically reserved for testing purposes',NULL);
INSERT INTO "DicCcy" VALUES(964,'XPD',1,'Palladium',NULL);
INSERT INTO "DicCcy" VALUES(965,'XUA',1,'ADB Unit of Account',NULL);
INSERT INTO "DicCcy" VALUES(967,'ZMW',0,'Zambian Kwacha',NULL);
INSERT INTO "DicCcy" VALUES(968,'SRD',0,'Surinam Dollar',NULL);
INSERT INTO "DicCcy" VALUES(969,'MGA',0,'Malagasy Ariary',NULL);
INSERT INTO "DicCcy" VALUES(970,'COU',1,'Unidad de Valor Real',NULL);
INSERT INTO "DicCcy" VALUES(971,'AFN',0,'Afghani',NULL);
INSERT INTO "DicCcy" VALUES(972,'TJS',0,'Somoni',NULL);
INSERT INTO "DicCcy" VALUES(973,'AOA',0,'Kwanza',NULL);
INSERT INTO "DicCcy" VALUES(975,'BGN',1,'Bulgarian Lev','2025-12-31');
INSERT INTO "DicCcy" VALUES(976,'CDF',0,'Congolese Franc',NULL);
INSERT INTO "DicCcy" VALUES(977,'BAM',0,'Convertible Mark',NULL);
INSERT INTO "DicCcy" VALUES(978,'EUR',0,'Euro',NULL);
INSERT INTO "DicCcy" VALUES(979,'MXV',1,'Mexican Unidad de Inversion (UDI)',NULL);
INSERT INTO "DicCcy" VALUES(980,'UAH',0,'Hryvnia',NULL);
INSERT INTO "DicCcy" VALUES(981,'GEL',0,'Lari',NULL);
INSERT INTO "DicCcy" VALUES(984,'BOV',1,'Mvdol',NULL);
INSERT INTO "DicCcy" VALUES(985,'PLN',0,'Zloty',NULL);
INSERT INTO "DicCcy" VALUES(986,'BRL',0,'Brazilian Real',NULL);
INSERT INTO "DicCcy" VALUES(990,'CLF',1,'Unidad de Fomento',NULL);
INSERT INTO "DicCcy" VALUES(994,'XSU',1,'Sucre',NULL);
INSERT INTO "DicCcy" VALUES(997,'USN',1,'US Dollar (Next day)',NULL);
INSERT INTO "DicCcy" VALUES(999,'XXX',1,'The codes assigned for transactions where no currency is involved',NULL);
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
INSERT INTO "ProcedureCatalogue" VALUES('CldApplyPlan',1,'-- Makes the calendar of the currency ID1 for Year1 what Days says, and the calendar itself and the rules when they are
-- missing. Expected is the fingerprint of the calendar that the plan was made for, '''' when there was none. Days is a JSON
-- list of {"Name1", "TID1", "Comment", "Dates", "DayComment"}: the Dates get the rule of that name and type, with
-- DayComment as their comment; Comment is for a rule that is new. TID1 1 without Name1 makes ordinary working days, and
-- with DayComment working days by exception. Days that are not named stay as they are.
-- Returns 0; 7 a value is missing, out of range, too long or of another shape, or Days is over a megabyte; 3 unknown currency, or
-- one that gets no calendar of that year any more; 8 the calendar is another than expected; 2 a rule of that name has
-- another type; 10 a removed rule has that name.

SELECT 7 AS "@return"
WHERE :ID1 IS NULL OR :Year1 IS NULL OR :Year1 NOT BETWEEN 1900 AND 3000 OR :Expected IS NULL OR :Days IS NULL
  OR length(CAST(:Days AS BLOB)) > 1048576 OR instr(:Days, char(0)) > 0 OR NOT json_valid(:Days)
  -- SQLite cuts a text at this escape. What is left of doubled backslashes begins one.
  OR instr(replace(:Days, ''\\'', ''''), ''\u0000'') > 0;

SELECT 7 AS "@return" WHERE json_type(:Days) <> ''array'';

SELECT 7 AS "@return" FROM json_each(:Days) WHERE type <> ''object'' LIMIT 1;

-- Each member is one that an item has, once, and of its type.
SELECT 7 AS "@return"
FROM json_each(:Days) i, json_each(i.value) m
GROUP BY i.key
HAVING count(*) <> count(DISTINCT m.key)
  OR sum(CASE
    WHEN m.key = ''TID1'' THEN m.type = ''integer'' AND m.value BETWEEN 1 AND 4
    WHEN m.key = ''Dates'' THEN m.type = ''array''
    WHEN m.key IN (''Name1'', ''Comment'', ''DayComment'') THEN m.type = ''null'' OR m.type = ''text'' AND FERROWIND_IS_TEXT(m.value)
      AND length(m.value) <= iif(m.key = ''Name1'', 200, 4000)
    ELSE 0
  END) <> count(*)
LIMIT 1;

-- What an item cannot do without. Working days have no rule of their own that could have a comment.
SELECT 7 AS "@return"
FROM json_each(:Days)
WHERE json_type(value, ''$.TID1'') IS NULL OR json_type(value, ''$.Dates'') IS NULL
  OR trim(json_extract(value, ''$.Name1'')) = ''''
  OR json_extract(value, ''$.Name1'') IS NULL
    AND (json_extract(value, ''$.TID1'') <> 1 OR json_extract(value, ''$.Comment'') IS NOT NULL)
LIMIT 1;

-- Every date is a day of the year and stands there once.
SELECT 7 AS "@return"
FROM (
  SELECT count(*) AS Dates, count(DISTINCT d.value) AS Days,
    sum(d.type = ''text'' AND d.value IS date(d.value, ''0 days'') AND substr(d.value, 1, 4) = :Year1 || '''') AS DaysOfTheYear
  FROM json_each(:Days) i, json_each(i.value, ''$.Dates'') d
)
WHERE Days <> Dates OR DaysOfTheYear <> Dates;

-- A rule that is new gets its weekday, or its date, from its days; the built-in rule is the only one of its type.
WITH Item (Name1, TID1, Dates) AS (
  SELECT json_extract(value, ''$.Name1''), json_extract(value, ''$.TID1''), json_extract(value, ''$.Dates'') FROM json_each(:Days)
)
SELECT 7 AS "@return"
FROM Item i LEFT JOIN json_each(i.Dates) d
WHERE i.Name1 IS NOT NULL AND NOT EXISTS (SELECT 1 FROM CldHoliday h WHERE h.Name1 = i.Name1)
GROUP BY i.Name1 COLLATE FERROWIND_NAME, i.TID1
HAVING i.TID1 = 1 OR count(d.value) = 0 OR i.TID1 = 2 AND count(DISTINCT strftime(''%w'', d.value)) <> 1
LIMIT 1;

-- A calendar that is there already may be of a year after the last day: an upgrade has set that.
SELECT 3 AS "@return"
WHERE NOT EXISTS (
  SELECT 1 FROM DicCcy
  WHERE CcyID = :ID1 AND CcyType = 0
    AND (LastDay IS NULL OR LastDay >= :Year1 || ''-01-01''
      OR EXISTS (SELECT 1 FROM CldCalendar WHERE ID1 = :ID1 AND Year1 = :Year1)));

SELECT 8 AS "@return"
WHERE :Expected <> ifnull((SELECT Fingerprint FROM CalendarFingerprint WHERE ID1 = :ID1 AND Year1 = :Year1), '''');

-- The first name that the plan cannot have.
WITH Item (Place, Name1, TID1) AS (
  SELECT key, json_extract(value, ''$.Name1'') COLLATE FERROWIND_NAME, json_extract(value, ''$.TID1'') FROM json_each(:Days)
)
SELECT iif(h.Del = 2, 10, 2) AS "@return"
FROM Item i LEFT JOIN CldHoliday h ON h.Name1 = i.Name1
WHERE h.Del = 2 OR h.TID1 <> i.TID1
  OR h.ID2 IS NULL AND EXISTS (SELECT 1 FROM Item e WHERE e.Name1 = i.Name1 AND e.TID1 <> i.TID1 AND e.Place < i.Place)
ORDER BY i.Place
LIMIT 1;

INSERT INTO CldCalendar (ID1, Year1) VALUES (:ID1, :Year1) ON CONFLICT DO NOTHING;

INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1)
SELECT :ID1, :Year1, Day1, date(:Year1 || ''-01-01'', (Day1 - 1) || '' days''), 1
FROM YearDay
WHERE :Expected = '''' AND Day1 <= CAST(strftime(''%j'', :Year1 || ''-12-31'') AS INTEGER);

-- The rules that are missing, each by the first of its dates in the list.
WITH Day (Place, Name1, TID1, Comment, ODate) AS (
  SELECT 366 * i.key + d.key, json_extract(i.value, ''$.Name1'') COLLATE FERROWIND_NAME, json_extract(i.value, ''$.TID1''),
    json_extract(i.value, ''$.Comment''), d.value
  FROM json_each(:Days) i, json_each(i.value, ''$.Dates'') d
), NewRule AS (
  SELECT min(Place) AS Place, Name1, TID1, Comment, ODate
  FROM Day
  WHERE Name1 NOT IN (SELECT Name1 FROM CldHoliday)
  GROUP BY Name1
)
INSERT INTO CldHoliday (Name1, Comment, TID1, D1, MY, MD, WD)
SELECT r.Name1, r.Comment, r.TID1,
  iif(r.TID1 = 2, NULL, r.ODate),
  iif(r.TID1 = 2, NULL, CAST(strftime(''%m'', r.ODate) AS INTEGER)),
  iif(r.TID1 = 2, NULL, CAST(strftime(''%d'', r.ODate) AS INTEGER)),
  -- The weekday of the date, 0 for Sunday, counted from the setting''s first weekday.
  iif(r.TID1 = 2, (strftime(''%w'', r.ODate) + 8 - s.FirstDay) % 7 + 1, NULL)
FROM NewRule r, CldSetting s
ORDER BY r.Place;

-- Read once, and not again for each day of the year.
WITH Item (Dates, TID1, ID2, Comment) AS MATERIALIZED (
  SELECT json_extract(i.value, ''$.Dates''), json_extract(i.value, ''$.TID1''),
    CASE
      WHEN json_extract(i.value, ''$.Name1'') IS NOT NULL
        THEN (SELECT ID2 FROM CldHoliday WHERE Name1 = json_extract(i.value, ''$.Name1''))
      WHEN json_extract(i.value, ''$.DayComment'') IS NOT NULL THEN 1
    END,
    json_extract(i.value, ''$.DayComment'')
  FROM json_each(:Days) i
), Planned (Day1, TID1, ID2, Comment) AS MATERIALIZED (
  SELECT CAST(strftime(''%j'', d.value) AS INTEGER), i.TID1, i.ID2, i.Comment FROM Item i, json_each(i.Dates) d
)
UPDATE CldDay SET TID1 = p.TID1, ID2 = p.ID2, Comment = p.Comment
FROM Planned p
WHERE CldDay.ID1 = :ID1 AND CldDay.Year1 = :Year1 AND CldDay.Day1 = p.Day1
  AND (CldDay.TID1, CldDay.ID2, CldDay.Comment) IS NOT (p.TID1, p.ID2, p.Comment);
');
INSERT INTO "ProcedureCatalogue" VALUES('CldGetAsOf',0,'-- The days of one calendar, as CldGetMain gave them behind the last call at or before Moment, a UTC time written
-- YYYY-MM-DDTHH:MM:SSZ, with or without milliseconds; or behind the call of the entry EntryID of the history, 0 for before
-- all of them. Either of the two is given.
-- Returns 0; 7 a value is missing, out of range or malformed; 3 unknown currency; 9 the history does not reach back
-- to then; 5 there was no such calendar.

SELECT iif(length(:Moment) = 20 AND substr(:Moment, 20) = ''Z'', substr(:Moment, 1, 19) || ''.000Z'', :Moment) AS "@Moment";

SELECT CASE
    WHEN :ID1 IS NULL OR :Year1 IS NULL OR :Year1 NOT BETWEEN 1900 AND 3000 OR (:Moment IS NULL) = (:EntryID IS NULL)
      OR :Moment IS NOT strftime(''%Y-%m-%dT%H:%M:%fZ'', :Moment, ''0 days'') OR :EntryID < 0 THEN 7
    WHEN NOT EXISTS (SELECT 1 FROM CldCalendar WHERE ID1 = :ID1 AND Year1 = :Year1)
      AND NOT EXISTS (SELECT 1 FROM DicCcy WHERE CcyID = :ID1 AND CcyType = 0) THEN 3
    WHEN EXISTS (SELECT 1 FROM CldHistoryStart WHERE Moment > :Moment OR EntryID > :EntryID) THEN 9
    ELSE 0
  END AS "@Refusal",
  coalesce(:EntryID, (SELECT EntryID FROM CldHistory WHERE Moment <= :Moment ORDER BY EntryID DESC LIMIT 1), 0) AS "@EntryID";

SELECT :Refusal AS "@return" WHERE :Refusal <> 0;

-- The first call since then that made or removed the calendar tells whether it was there.
SELECT EntryID AS "@Replaced", OldRow IS NOT NULL AS "@WasThere"
FROM CldHistoryRow
WHERE TableName = ''CldCalendar'' AND ID1 = :ID1 AND Year1 = :Year1 AND EntryID > :EntryID
ORDER BY EntryID
LIMIT 1;

SELECT 5 AS "@return"
WHERE NOT ifnull(:WasThere, EXISTS (SELECT 1 FROM CldCalendar WHERE ID1 = :ID1 AND Year1 = :Year1));

-- A day and a rule were what the first call since then replaced, or what they are now. A day of a calendar that is not the
-- one of now was an ordinary working day, unless that calendar''s removal says otherwise.
WITH OldDay AS (
  SELECT Day1, OldRow, min(EntryID)
  FROM CldHistoryRow
  WHERE TableName = ''CldDay'' AND ID1 = :ID1 AND Year1 = :Year1
    AND EntryID > :EntryID AND (:Replaced IS NULL OR EntryID <= :Replaced)
  GROUP BY Day1
), OldRule AS (
  SELECT ID2, OldRow, min(EntryID) FROM CldHistoryRow WHERE TableName = ''CldHoliday'' AND EntryID > :EntryID GROUP BY ID2
), Day AS (
  SELECT n.Day1,
    CASE WHEN o.Day1 IS NOT NULL THEN json_extract(o.OldRow, ''$.TID1'') ELSE ifnull(d.TID1, 1) END AS TID1,
    CASE WHEN o.Day1 IS NOT NULL THEN json_extract(o.OldRow, ''$.ID2'') ELSE d.ID2 END AS ID2,
    CASE WHEN o.Day1 IS NOT NULL THEN json_extract(o.OldRow, ''$.Comment'') ELSE d.Comment END AS Comment
  FROM YearDay n
    LEFT JOIN OldDay o ON o.Day1 = n.Day1
    LEFT JOIN CldDay d ON d.ID1 = :ID1 AND d.Year1 = :Year1 AND d.Day1 = n.Day1 AND :Replaced IS NULL
  WHERE n.Day1 <= CAST(strftime(''%j'', :Year1 || ''-12-31'') AS INTEGER)
)
SELECT date(:Year1 || ''-01-01'', (d.Day1 - 1) || '' days'') AS "ODate DATE", d.TID1,
  CASE WHEN o.ID2 IS NOT NULL THEN json_extract(o.OldRow, ''$.Name1'') ELSE h.Name1 END AS Name1,
  CASE WHEN o.ID2 IS NOT NULL THEN json_extract(o.OldRow, ''$.Comment'') ELSE h.Comment END AS Comment2,
  d.Comment, d.ID2, d.Day1
FROM Day d
  LEFT JOIN OldRule o ON o.ID2 = d.ID2
  LEFT JOIN CldHoliday h ON h.ID2 = d.ID2
ORDER BY d.Day1;
');
INSERT INTO "ProcedureCatalogue" VALUES('CldGetBook',0,'-- The rule book of the currency ID1, without it all books; empty record sets when there is none. FromYear is the first year
-- that the book tells of, NULL when it tells of all.
-- Returns 0; 3 unknown currency.

SELECT 3 AS "@return"
WHERE :ID1 IS NOT NULL AND NOT EXISTS (SELECT 1 FROM DicCcy WHERE CcyID = :ID1 AND CcyType = 0);

SELECT b.ID1, b.Publisher, b.Document, f.Fingerprint, b.FromYear
FROM CldBook b JOIN BookFingerprint f ON f.ID1 = b.ID1
WHERE :ID1 IS NULL OR b.ID1 = :ID1
ORDER BY b.ID1;

SELECT ID1, Position, Name1, TID1, Expression, Comment, MovedName
FROM CldRecurrence
WHERE :ID1 IS NULL OR ID1 = :ID1
ORDER BY ID1, Position;
');
INSERT INTO "ProcedureCatalogue" VALUES('CldGetClosedDays',0,'-- Every calendar of these years with its days as a text, a character a day: 1 for closed, 0 for a working day; and the code of
-- its currency. IsPrepared is 0 of a calendar that is closed on weekends at most, because nobody has entered its holidays yet.
-- Rules has the numbers of the rules that close those days, in their order, with commas between; then what the rules are called.
-- Returns 0; 7 a year is missing or the years are no span.

SELECT 7 AS "@return" WHERE NOT ifnull(:FromYear <= :ToYear, 0);

SELECT k.ID1, k.Year1, (
  SELECT group_concat(IsClosed, '''')
  FROM (
    -- Texts, since joining numbers takes half as long again.
    SELECT CASE d.TID1 WHEN 1 THEN ''0'' ELSE ''1'' END AS IsClosed
    FROM CldDay d WHERE d.ID1 = k.ID1 AND d.Year1 = k.Year1 ORDER BY d.Day1
  )
) AS Days, c.Ccy, EXISTS (
  SELECT 1 FROM CldDay d WHERE d.ID1 = k.ID1 AND d.Year1 = k.Year1 AND d.ID2 IS NOT NULL AND d.TID1 > 2
) AS IsPrepared, ifnull((
  SELECT group_concat(ID2, '','')
  FROM (
    -- Closed days have a rule, which lets the index of those that have one do.
    SELECT d.ID2 FROM CldDay d
    WHERE d.ID1 = k.ID1 AND d.Year1 = k.Year1 AND d.ID2 IS NOT NULL AND d.TID1 <> 1 ORDER BY d.Day1
  )
), '''') AS Rules
FROM CldCalendar k JOIN DicCcy c ON c.CcyID = k.ID1
WHERE k.Year1 BETWEEN :FromYear AND :ToYear
ORDER BY k.ID1, k.Year1;

SELECT ID2, Name1 FROM CldHoliday ORDER BY ID2;
');
INSERT INTO "ProcedureCatalogue" VALUES('CldGetContent',0,'-- All that reviews look at: every calendar with the days that have a rule as one text, the rules, the heads of the rule
-- books and their rules, the currencies.

SELECT k.ID1, k.Year1, (
  SELECT FERROWIND_DAYS(d.Day1, d.TID1, d.ID2, d.Comment)
  FROM CldDay d
  WHERE d.ID1 = k.ID1 AND d.Year1 = k.Year1 AND d.ID2 IS NOT NULL
) AS Days
FROM CldCalendar k
ORDER BY k.ID1, k.Year1;

SELECT ID2, Name1, TID1, MY, MD, Del FROM CldHoliday ORDER BY ID2;

SELECT ID1, Publisher, Document, FromYear FROM CldBook ORDER BY ID1;

SELECT ID1, Position, Name1, TID1, Expression, Comment, MovedName FROM CldRecurrence ORDER BY ID1, Position;

SELECT CcyID, Ccy, CcyType, Name, LastDay FROM DicCcy ORDER BY CcyID;
');
INSERT INTO "ProcedureCatalogue" VALUES('CldGetConventions',0,'-- What the database says of the market''s conventions beside those that come with the program: of a pair of currencies the days
-- from trade to spot; of one currency, without OtherID and OtherCcy, whether a holiday of the dollar stops the count (1 or 0).

SELECT v.ID1, o.CcyID AS OtherID, c.Ccy, o.Ccy AS OtherCcy, v.SpotDays, v.DollarStops
FROM CldConvention v
  JOIN DicCcy c ON c.CcyID = v.ID1
  LEFT JOIN DicCcy o ON o.CcyID = v.OtherID AND v.OtherID <> v.ID1
ORDER BY v.ID1, v.OtherID;
');
INSERT INTO "ProcedureCatalogue" VALUES('CldGetCurrencies',0,'-- All currencies with their last days as legal money.

SELECT CcyID, Ccy, CcyType, Name, LastDay FROM DicCcy ORDER BY CcyID;
');
INSERT INTO "ProcedureCatalogue" VALUES('CldGetFingerprint',0,'-- What tells one content of a calendar from another; '''' for a calendar that does not exist. Whoever plans on what a
-- calendar holds reads this first and the days then, so that a change in between is found out.
-- Returns 0; 7 a value is missing or out of range; 3 unknown currency.

SELECT 7 AS "@return" WHERE :ID1 IS NULL OR :Year1 IS NULL OR :Year1 NOT BETWEEN 1900 AND 3000;

SELECT 3 AS "@return" WHERE NOT EXISTS (SELECT 1 FROM DicCcy WHERE CcyID = :ID1 AND CcyType = 0);

SELECT ifnull((SELECT Fingerprint FROM CalendarFingerprint WHERE ID1 = :ID1 AND Year1 = :Year1), '''') AS Fingerprint;
');
INSERT INTO "ProcedureCatalogue" VALUES('CldGetHistory',0,'-- The calls for the currency ID1 and the year Year1, whichever is given, the newest first; with Day1 those that changed
-- that day, or made or removed its calendar. Only entries before the entry Before, those of the user UserName, the entry
-- EntryID, and Count at most (100). Name1 is the name that the rule of the parameter ID2 had behind the call; KeepsRows 0
-- says that nothing can be put back: the call left everything as it was, or is older than what the history keeps.
-- Behind the entries comes who asks, and then what the call of the entry EntryID replaced besides days and calendars: each
-- row''s key, and its other columns before and behind the call as JSON, NULL where there was no such row.
-- Returns 0; 7 a value is out of range, or a day is given without its calendar.

SELECT 7 AS "@return"
WHERE :Count NOT BETWEEN 1 AND 10000 OR :Day1 IS NOT NULL AND (:ID1 IS NULL OR :Year1 IS NULL);

WITH Entry AS (
  SELECT EntryID, Moment, UserName, ProcedureName, ID1, Year1, Parameters, RowsChanged,
    CASE WHEN json_valid(Parameters) THEN json_extract(Parameters, ''$.ID2'') END AS ID2
  FROM CldHistory
  WHERE (:ID1 IS NULL OR ID1 = :ID1)
    AND (:Year1 IS NULL OR Year1 = :Year1)
    AND (:Before IS NULL OR EntryID < :Before)
    AND (:UserName IS NULL OR UserName = :UserName)
    AND (:EntryID IS NULL OR EntryID = :EntryID)
    AND (:Day1 IS NULL OR EntryID IN (
      SELECT EntryID FROM CldHistoryRow
      WHERE TableName = ''CldDay'' AND ID1 = :ID1 AND Year1 = :Year1 AND Day1 = :Day1
      UNION
      SELECT EntryID FROM CldHistoryRow WHERE TableName = ''CldCalendar'' AND ID1 = :ID1 AND Year1 = :Year1))
  ORDER BY EntryID DESC
  LIMIT ifnull(:Count, 100)
)
SELECT e.EntryID, e.Moment, e.UserName, e.ProcedureName, e.ID1, e.Year1, e.Parameters, e.RowsChanged,
  -- What the first call that changed the rule since then replaced, or what it is now.
  ifnull((
    SELECT json_extract(l.OldRow, ''$.Name1'')
    FROM CldHistoryRow l
    WHERE l.TableName = ''CldHoliday'' AND l.ID1 IS NULL AND l.Year1 IS NULL AND l.Day1 IS NULL AND l.ID2 = e.ID2
      AND l.Position IS NULL AND l.EntryID > e.EntryID
    ORDER BY l.EntryID
    LIMIT 1
  ), (SELECT h.Name1 FROM CldHoliday h WHERE h.ID2 = e.ID2)) AS Name1,
  EXISTS (SELECT 1 FROM CldHistoryRow r WHERE r.EntryID = e.EntryID) AS KeepsRows
FROM Entry e
ORDER BY e.EntryID DESC;

SELECT FERROWIND_USER() AS UserName;

WITH Replaced AS (
  SELECT r.TableName, r.ID1, r.ID2, r.Position, r.RowNumber, r.OldRow, min(l.EntryID), l.EntryID IS NULL AS IsStillSo,
    l.OldRow AS ReplacedSince
  FROM CldHistoryRow r
    LEFT JOIN CldHistoryRow l
      ON (l.TableName, l.ID1, l.Year1, l.Day1, l.ID2, l.Position) IS (r.TableName, r.ID1, NULL, NULL, r.ID2, r.Position)
        AND l.EntryID > r.EntryID
  WHERE r.EntryID = :EntryID AND r.TableName NOT IN (''CldCalendar'', ''CldDay'')
  GROUP BY r.RowNumber
)
SELECT TableName, ID1, ID2, Position, OldRow,
  CASE
    WHEN NOT IsStillSo THEN ReplacedSince
    WHEN TableName = ''CldHoliday'' THEN (
      SELECT json_object(''Name1'', Name1, ''Comment'', Comment, ''TID1'', TID1, ''D1'', D1, ''MY'', MY, ''MD'', MD, ''WD'', WD, ''Del'', Del)
      FROM CldHoliday h WHERE h.ID2 = r.ID2)
    WHEN TableName = ''DicCcy'' THEN (
      SELECT json_object(''Ccy'', Ccy, ''CcyType'', CcyType, ''Name'', Name, ''LastDay'', LastDay) FROM DicCcy c WHERE c.CcyID = r.ID1)
    WHEN TableName = ''CldBook'' THEN (
      SELECT json_object(''Publisher'', Publisher, ''Document'', Document, ''FromYear'', FromYear) FROM CldBook b WHERE b.ID1 = r.ID1)
    WHEN TableName = ''CldRecurrence'' THEN (
      SELECT json_object(''Name1'', Name1, ''TID1'', TID1, ''Expression'', Expression, ''Comment'', Comment, ''MovedName'', MovedName)
      FROM CldRecurrence e WHERE e.ID1 = r.ID1 AND e.Position = r.Position)
    WHEN TableName = ''CldConvention'' THEN (
      SELECT json_object(''SpotDays'', SpotDays, ''DollarStops'', DollarStops)
      FROM CldConvention v WHERE v.ID1 = r.ID1 AND v.OtherID = r.Position)
  END AS NewRow
FROM Replaced r
ORDER BY TableName, ID1, ID2, Position;
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
INSERT INTO "ProcedureCatalogue" VALUES('CldGetMarkedDays',0,'-- Every day that has a rule, working days by exception too, in the calendars of these years.
-- Returns 0; 7 a year is missing or the years are no span.

SELECT 7 AS "@return" WHERE NOT ifnull(:FromYear <= :ToYear, 0);

-- Calendar by calendar. The "+" keeps the span off the days, where it would be taken for the way to find them.
SELECT d.ID1, d.Year1, d.Day1, d.TID1, d.ID2, d.Comment
FROM CldCalendar k CROSS JOIN CldDay d ON d.ID1 = k.ID1 AND d.Year1 = k.Year1
WHERE +k.Year1 BETWEEN :FromYear AND :ToYear AND d.ID2 IS NOT NULL
ORDER BY k.ID1, k.Year1, d.Day1;
');
INSERT INTO "ProcedureCatalogue" VALUES('CldIUBook',1,'-- Replaces the rule book of the currency ID1 as a whole; without Publisher, Document and Rules removes it. Expected is
-- the fingerprint of the book that the caller saw, '''' when it saw none. Rules is a JSON list of
-- {"Name1", "TID1", "Expression", "Comment", "MovedName"}, the last two may be missing; whether the expressions make
-- sense is the caller''s concern. FromYear is the first year that the book tells of; without it the book tells of all years.
-- Returns 0; 7 a value is missing, too long or of another shape, Rules is over a megabyte, or there are more than 10,000
-- rules; 3 unknown currency; 8 the book is another than expected.

SELECT :Publisher IS NULL AND :Document IS NULL AND :Rules IS NULL AS "@Removes";

SELECT 7 AS "@return"
WHERE :ID1 IS NULL OR :Expected IS NULL
  OR NOT :Removes AND (:Publisher IS NULL OR :Document IS NULL OR :Rules IS NULL
    OR FERROWIND_LENGTH(:Publisher) > 200 OR FERROWIND_LENGTH(:Document) > 4000 OR length(CAST(:Rules AS BLOB)) > 1048576
    OR instr(:Rules, char(0)) > 0 OR NOT json_valid(:Rules)
    -- SQLite cuts a text at this escape. What is left of doubled backslashes begins one.
    OR instr(replace(:Rules, ''\\'', ''''), ''\u0000'') > 0)
  OR :FromYear IS NOT NULL AND (:Removes OR :FromYear NOT BETWEEN 1900 AND 3000);

SELECT 7 AS "@return" WHERE json_type(:Rules) <> ''array'' OR json_array_length(:Rules) > 10000;

SELECT 7 AS "@return" FROM json_each(:Rules) WHERE type <> ''object'' LIMIT 1;

-- Each member is one that a rule has, once, and of its type.
SELECT 7 AS "@return"
FROM json_each(:Rules) r, json_each(r.value) m
GROUP BY r.key
HAVING count(*) <> count(DISTINCT m.key)
  OR sum(CASE
    WHEN m.key = ''TID1'' THEN m.type = ''integer'' AND m.value BETWEEN 1 AND 4
    WHEN m.key IN (''Name1'', ''Expression'') THEN m.type = ''text'' AND trim(m.value) <> '''' AND FERROWIND_IS_TEXT(m.value)
      AND length(m.value) <= iif(m.key = ''Name1'', 200, 4000)
    WHEN m.key IN (''Comment'', ''MovedName'') THEN m.type = ''null'' OR m.type = ''text'' AND FERROWIND_IS_TEXT(m.value)
      AND length(m.value) <= iif(m.key = ''MovedName'', 200, 4000)
    ELSE 0
  END) <> count(*)
LIMIT 1;

-- What a rule cannot do without.
SELECT 7 AS "@return"
FROM json_each(:Rules)
WHERE json_type(value, ''$.Name1'') IS NULL OR json_type(value, ''$.TID1'') IS NULL OR json_type(value, ''$.Expression'') IS NULL
LIMIT 1;

SELECT 3 AS "@return" WHERE NOT EXISTS (SELECT 1 FROM DicCcy WHERE CcyID = :ID1 AND CcyType = 0);

SELECT 8 AS "@return" WHERE :Expected <> ifnull((SELECT Fingerprint FROM BookFingerprint WHERE ID1 = :ID1), '''');

DELETE FROM CldRecurrence WHERE ID1 = :ID1;

DELETE FROM CldBook WHERE ID1 = :ID1 AND :Removes;

SELECT 0 AS "@return" WHERE :Removes;

INSERT INTO CldBook (ID1, Publisher, Document, FromYear) VALUES (:ID1, :Publisher, :Document, :FromYear)
ON CONFLICT (ID1) DO UPDATE
SET Publisher = excluded.Publisher, Document = excluded.Document, FromYear = excluded.FromYear;

INSERT INTO CldRecurrence (ID1, Position, Name1, TID1, Expression, Comment, MovedName)
SELECT :ID1, key + 1, json_extract(value, ''$.Name1''), json_extract(value, ''$.TID1''), json_extract(value, ''$.Expression''),
  json_extract(value, ''$.Comment''), json_extract(value, ''$.MovedName'')
FROM json_each(:Rules);
');
INSERT INTO "ProcedureCatalogue" VALUES('CldIUCelebrate',1,'-- With Del sets the removal mark of the rule ID2, nothing else given. Otherwise updates the rule ID2 or, without ID2,
-- inserts a rule: a weekday rule (type 2) has WD; one of type 3 or 4 has D1, MY and MD. The type of a rule stays.
-- Returns 0; 7 a value is missing, out of range or too long; 4 unknown rule; 2 a rule of that name exists; 10 a removed rule
-- has that name.

SELECT 7 AS "@return"
WHERE :Del IS NOT NULL
  AND (:Del NOT IN (2, 4) OR :ID2 IS NULL
    OR :Name1 IS NOT NULL OR :Comment IS NOT NULL OR :TID1 IS NOT NULL OR :WD IS NOT NULL OR :D1 IS NOT NULL
    OR :MY IS NOT NULL OR :MD IS NOT NULL);

SELECT 7 AS "@return"
WHERE :Del IS NULL
  AND (:Name1 IS NULL OR trim(:Name1) = '''' OR :TID1 IS NULL OR :TID1 NOT BETWEEN 2 AND 4
    OR FERROWIND_LENGTH(:Name1) > 200 OR FERROWIND_LENGTH(:Comment) > 4000
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
INSERT INTO "ProcedureCatalogue" VALUES('CldIUConvention',1,'-- Says of the pair of the currencies CcyID and OtherID, in either order, that it settles SpotDays after the trade, 0 to 2; of the
-- currency CcyID, without OtherID, whether a holiday of the dollar stops the count, DollarStops 1 or 0. Without both takes back
-- what was said: what comes with the program holds again.
-- Returns 0; 7 a value is missing, out of range or not of such a convention; 3 unknown currency; 9 there is nothing to take back.

SELECT 7 AS "@return"
WHERE :CcyID IS NULL OR :OtherID = :CcyID
  OR :SpotDays IS NOT NULL AND (:SpotDays NOT BETWEEN 0 AND 2 OR :OtherID IS NULL)
  OR :DollarStops IS NOT NULL AND (:DollarStops NOT IN (0, 1) OR :OtherID IS NOT NULL);

SELECT min(:CcyID, ifnull(:OtherID, :CcyID)) AS "@First", max(:CcyID, ifnull(:OtherID, :CcyID)) AS "@Second";

SELECT 3 AS "@return" WHERE :First NOT IN (SELECT CcyID FROM DicCcy) OR :Second NOT IN (SELECT CcyID FROM DicCcy);

SELECT 9 AS "@return"
WHERE :SpotDays IS NULL AND :DollarStops IS NULL
  AND NOT EXISTS (SELECT 1 FROM CldConvention WHERE ID1 = :First AND OtherID = :Second);

DELETE FROM CldConvention
WHERE ID1 = :First AND OtherID = :Second AND :SpotDays IS NULL AND :DollarStops IS NULL;

INSERT INTO CldConvention (ID1, OtherID, SpotDays, DollarStops)
SELECT :First, :Second, :SpotDays, :DollarStops WHERE :SpotDays IS NOT NULL OR :DollarStops IS NOT NULL
ON CONFLICT (ID1, OtherID) DO UPDATE SET SpotDays = excluded.SpotDays, DollarStops = excluded.DollarStops;
');
INSERT INTO "ProcedureCatalogue" VALUES('CldIUCurrency',1,'-- Adds the currency CcyID or changes all of it. LastDay is its last day as legal money; without it, it is still.
-- Returns 0; 7 a value is missing, out of range or too long; 2 the code is another currency''s; 9 it has calendars of a year after its
-- last day, or has calendars or a book and would be no money any more.

SELECT 7 AS "@return"
WHERE :CcyID IS NULL OR :CcyID NOT BETWEEN 1 AND 999
  OR :Ccy IS NULL OR length(:Ccy) <> 3 OR :Ccy NOT GLOB ''[A-Z][A-Z][A-Z]''
  OR :CcyType IS NULL OR :CcyType NOT IN (0, 1)
  OR :Name IS NULL OR trim(:Name) = '''' OR FERROWIND_LENGTH(:Name) > 200;

SELECT 2 AS "@return" WHERE EXISTS (SELECT 1 FROM DicCcy WHERE Ccy = :Ccy AND CcyID <> :CcyID);

SELECT 9 AS "@return"
WHERE EXISTS (SELECT 1 FROM CldCalendar WHERE ID1 = :CcyID AND (:CcyType <> 0 OR Year1 || ''-01-01'' > :LastDay))
  OR :CcyType <> 0 AND EXISTS (SELECT 1 FROM CldBook WHERE ID1 = :CcyID);

INSERT INTO DicCcy (CcyID, Ccy, CcyType, Name, LastDay) VALUES (:CcyID, :Ccy, :CcyType, :Name, :LastDay)
ON CONFLICT (CcyID) DO UPDATE
SET Ccy = excluded.Ccy, CcyType = excluded.CcyType, Name = excluded.Name, LastDay = excluded.LastDay;
');
INSERT INTO "ProcedureCatalogue" VALUES('CldIUMain',1,'-- Without TID1 creates the calendar of the currency ID1 for Year1, every day an ordinary working day. With TID1 gives
-- days of the calendar the rule ID2 of that type: the day Day1, or for a weekday rule (type 2) without Day1 every day
-- of the year on its weekday. What a day carried before, its comment included, is replaced.
-- Returns 0; 7 a value is missing, out of range or too long; 3 unknown currency, or one that gets no calendar of that year any more;
-- 4 unknown rule (a removed one is not assigned either); 5 unknown calendar; 6 the calendar exists already.

-- The first reason against the call, or 0.
SELECT CASE
  WHEN :ID1 IS NULL OR :Year1 IS NULL OR :Year1 NOT BETWEEN 1900 AND 3000 OR FERROWIND_LENGTH(:Comment) > 4000 THEN 7
  -- Only money has calendars: the windows list no other currency that a calendar could stand under.
  WHEN c.CcyType IS NOT 0 THEN 3

  -- A new calendar. A value that only an assignment takes means that its TID1 was forgotten.
  WHEN :TID1 IS NULL
    AND (:ID2 IS NOT NULL OR :Day1 IS NOT NULL OR :ODate IS NOT NULL OR :Comment IS NOT NULL) THEN 7
  WHEN :TID1 IS NULL AND k.ID1 IS NOT NULL THEN 6
  WHEN :TID1 IS NULL THEN iif(c.LastDay < :Year1 || ''-01-01'', 3, 0)

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

INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1)
SELECT :ID1, :Year1, Day1, date(:Year1 || ''-01-01'', (Day1 - 1) || '' days''), 1
FROM YearDay
WHERE Day1 <= CAST(strftime(''%j'', :Year1 || ''-12-31'') AS INTEGER);
');
INSERT INTO "ProcedureCatalogue" VALUES('CldUndo',1,'-- Puts back what the call of that entry of the history changed, as a call of its own, which can be undone likewise. A rule
-- that the call added stays when something else uses it by now.
-- Returns 0; 7 no such entry; 9 the entry keeps no rows, or putting them back would lose what others did since: a row is
-- not as the call left it, its calendar was made or removed again, a rule that a day had is gone, a name is taken, a
-- calendar or a book would be of no legal money, or nothing is left to put back.

SELECT 7 AS "@return" WHERE NOT EXISTS (SELECT 1 FROM CldHistory WHERE EntryID = :EntryID);

-- This call is one for the same calendar.
SELECT ID1 AS "@ID1", Year1 AS "@Year1", total_changes() AS "@ChangesBefore" FROM CldHistory WHERE EntryID = :EntryID;

-- A calendar that was made or removed since is not the one that the call saw.
SELECT 9 AS "@return"
FROM CldHistoryRow r
  JOIN CldHistoryRow l ON l.TableName = ''CldCalendar'' AND l.ID1 = r.ID1 AND l.Year1 = r.Year1 AND l.EntryID > r.EntryID
WHERE r.EntryID = :EntryID
LIMIT 1;

-- How the call left a row is what the next call that changed it replaced. Both tell the columns in the same order.
WITH AsLeft AS (
  SELECT r.TableName, r.ID1, r.Year1, r.Day1, r.ID2, r.Position, l.OldRow, min(l.EntryID)
  FROM CldHistoryRow r JOIN CldHistoryRow l
    ON (l.TableName, l.ID1, l.Year1, l.Day1, l.ID2, l.Position) IS (r.TableName, r.ID1, r.Year1, r.Day1, r.ID2, r.Position)
      AND l.EntryID > r.EntryID
  WHERE r.EntryID = :EntryID
  GROUP BY r.RowNumber
  UNION ALL
  -- The days of a calendar that the call made. From its row to theirs, not through all days that were ever replaced.
  SELECT l.TableName, l.ID1, l.Year1, l.Day1, NULL, NULL, l.OldRow, min(l.EntryID)
  FROM CldHistoryRow r
    CROSS JOIN CldHistoryRow l ON l.TableName = ''CldDay'' AND l.ID1 = r.ID1 AND l.Year1 = r.Year1 AND l.EntryID > r.EntryID
  WHERE r.EntryID = :EntryID AND r.TableName = ''CldCalendar'' AND r.OldRow IS NULL
  GROUP BY l.Day1
), Now AS (
  SELECT CASE l.TableName
    WHEN ''CldDay'' THEN (
      SELECT json_array(TID1, ID2, Comment) FROM CldDay d WHERE d.ID1 = l.ID1 AND d.Year1 = l.Year1 AND d.Day1 = l.Day1)
    WHEN ''CldHoliday'' THEN (
      SELECT json_array(Name1, Comment, TID1, D1, MY, MD, WD, Del) FROM CldHoliday h WHERE h.ID2 = l.ID2)
    WHEN ''DicCcy'' THEN (SELECT json_array(Ccy, CcyType, Name, LastDay) FROM DicCcy c WHERE c.CcyID = l.ID1)
    WHEN ''CldBook'' THEN (SELECT json_array(Publisher, Document, FromYear) FROM CldBook b WHERE b.ID1 = l.ID1)
    WHEN ''CldRecurrence'' THEN (
      SELECT json_array(Name1, TID1, Expression, Comment, MovedName)
      FROM CldRecurrence e WHERE e.ID1 = l.ID1 AND e.Position = l.Position)
    WHEN ''CldConvention'' THEN (
      SELECT json_array(SpotDays, DollarStops) FROM CldConvention v WHERE v.ID1 = l.ID1 AND v.OtherID = l.Position)
  END AS Row,
  CASE l.TableName
    WHEN ''CldDay'' THEN json_extract(l.OldRow, ''$.TID1'', ''$.ID2'', ''$.Comment'')
    WHEN ''CldHoliday'' THEN
      json_extract(l.OldRow, ''$.Name1'', ''$.Comment'', ''$.TID1'', ''$.D1'', ''$.MY'', ''$.MD'', ''$.WD'', ''$.Del'')
    WHEN ''DicCcy'' THEN json_extract(l.OldRow, ''$.Ccy'', ''$.CcyType'', ''$.Name'', ''$.LastDay'')
    WHEN ''CldBook'' THEN json_extract(l.OldRow, ''$.Publisher'', ''$.Document'', ''$.FromYear'')
    WHEN ''CldRecurrence'' THEN json_extract(l.OldRow, ''$.Name1'', ''$.TID1'', ''$.Expression'', ''$.Comment'', ''$.MovedName'')
    WHEN ''CldConvention'' THEN json_extract(l.OldRow, ''$.SpotDays'', ''$.DollarStops'')
  END AS RowAsLeft
  FROM AsLeft l
)
SELECT 9 AS "@return" FROM Now WHERE Row IS NOT RowAsLeft LIMIT 1;

-- A rule that a day had is gone, unless it comes back with the day, or its number is another rule''s.
WITH Needed (ID2) AS (
  SELECT DISTINCT json_extract(OldRow, ''$.ID2'') FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = ''CldDay''
)
SELECT 9 AS "@return"
FROM Needed n
WHERE n.ID2 IS NOT NULL
  AND n.ID2 NOT IN (SELECT ID2 FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = ''CldHoliday'')
  AND (n.ID2 NOT IN (SELECT ID2 FROM CldHoliday)
    OR n.ID2 IN (
      SELECT ID2 FROM CldHistoryRow WHERE TableName = ''CldHoliday'' AND EntryID > :EntryID AND OldRow IS NULL))
LIMIT 1;

-- A name is another''s by now.
SELECT 9 AS "@return"
FROM CldHistoryRow r
WHERE r.EntryID = :EntryID
  AND (r.TableName = ''CldHoliday''
      AND EXISTS (SELECT 1 FROM CldHoliday h WHERE h.Name1 = json_extract(r.OldRow, ''$.Name1'') AND h.ID2 <> r.ID2)
    OR r.TableName = ''DicCcy''
      AND EXISTS (SELECT 1 FROM DicCcy c WHERE c.Ccy = json_extract(r.OldRow, ''$.Ccy'') AND c.CcyID <> r.ID1))
LIMIT 1;

INSERT INTO DicCcy (CcyID, Ccy, CcyType, Name, LastDay)
SELECT ID1, json_extract(OldRow, ''$.Ccy''), json_extract(OldRow, ''$.CcyType''), json_extract(OldRow, ''$.Name''),
  json_extract(OldRow, ''$.LastDay'')
FROM CldHistoryRow
WHERE EntryID = :EntryID AND TableName = ''DicCcy'' AND OldRow IS NOT NULL
ON CONFLICT (CcyID) DO UPDATE
SET Ccy = excluded.Ccy, CcyType = excluded.CcyType, Name = excluded.Name, LastDay = excluded.LastDay;

DELETE FROM DicCcy
WHERE CcyID IN (SELECT ID1 FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = ''DicCcy'' AND OldRow IS NULL)
  AND CcyID NOT IN (
    SELECT ID1 FROM CldCalendar UNION SELECT ID1 FROM CldBook UNION SELECT ID1 FROM CldConvention
    UNION SELECT OtherID FROM CldConvention);

-- A calendar and a book come back with their currency only.
SELECT 9 AS "@return"
FROM CldHistoryRow
WHERE EntryID = :EntryID AND TableName IN (''CldCalendar'', ''CldBook'') AND OldRow IS NOT NULL
  AND ID1 NOT IN (SELECT CcyID FROM DicCcy)
LIMIT 1;

INSERT INTO CldHoliday (ID2, Name1, Comment, TID1, D1, MY, MD, WD, Del)
SELECT ID2, json_extract(OldRow, ''$.Name1''), json_extract(OldRow, ''$.Comment''), json_extract(OldRow, ''$.TID1''),
  json_extract(OldRow, ''$.D1''), json_extract(OldRow, ''$.MY''), json_extract(OldRow, ''$.MD''), json_extract(OldRow, ''$.WD''),
  json_extract(OldRow, ''$.Del'')
FROM CldHistoryRow
WHERE EntryID = :EntryID AND TableName = ''CldHoliday'' AND OldRow IS NOT NULL
ON CONFLICT (ID2) DO UPDATE
SET Name1 = excluded.Name1, Comment = excluded.Comment, D1 = excluded.D1, MY = excluded.MY, MD = excluded.MD,
  WD = excluded.WD, Del = excluded.Del;

-- Calendars that the call removed come back, those that it made go.
INSERT INTO CldCalendar (ID1, Year1)
SELECT ID1, Year1 FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = ''CldCalendar'' AND OldRow IS NOT NULL;

INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1)
SELECT r.ID1, r.Year1, d.Day1, date(r.Year1 || ''-01-01'', (d.Day1 - 1) || '' days''), 1
FROM CldHistoryRow r JOIN YearDay d ON d.Day1 <= CAST(strftime(''%j'', r.Year1 || ''-12-31'') AS INTEGER)
WHERE r.EntryID = :EntryID AND r.TableName = ''CldCalendar'' AND r.OldRow IS NOT NULL;

UPDATE CldDay
SET TID1 = json_extract(r.OldRow, ''$.TID1''), ID2 = json_extract(r.OldRow, ''$.ID2''),
  Comment = json_extract(r.OldRow, ''$.Comment'')
FROM CldHistoryRow r
WHERE r.EntryID = :EntryID AND r.TableName = ''CldDay''
  AND CldDay.ID1 = r.ID1 AND CldDay.Year1 = r.Year1 AND CldDay.Day1 = r.Day1;

DELETE FROM CldDay
WHERE (ID1, Year1) IN (
  SELECT ID1, Year1 FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = ''CldCalendar'' AND OldRow IS NULL);

DELETE FROM CldCalendar
WHERE (ID1, Year1) IN (
  SELECT ID1, Year1 FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = ''CldCalendar'' AND OldRow IS NULL);

DELETE FROM CldHoliday
WHERE ID2 IN (SELECT ID2 FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = ''CldHoliday'' AND OldRow IS NULL)
  AND ID2 NOT IN (SELECT ID2 FROM CldDay WHERE ID2 IS NOT NULL);

INSERT INTO CldBook (ID1, Publisher, Document, FromYear)
SELECT ID1, json_extract(OldRow, ''$.Publisher''), json_extract(OldRow, ''$.Document''), json_extract(OldRow, ''$.FromYear'')
FROM CldHistoryRow
WHERE EntryID = :EntryID AND TableName = ''CldBook'' AND OldRow IS NOT NULL
ON CONFLICT (ID1) DO UPDATE
SET Publisher = excluded.Publisher, Document = excluded.Document, FromYear = excluded.FromYear;

INSERT INTO CldRecurrence (ID1, Position, Name1, TID1, Expression, Comment, MovedName)
SELECT ID1, Position, json_extract(OldRow, ''$.Name1''), json_extract(OldRow, ''$.TID1''), json_extract(OldRow, ''$.Expression''),
  json_extract(OldRow, ''$.Comment''), json_extract(OldRow, ''$.MovedName'')
FROM CldHistoryRow
WHERE EntryID = :EntryID AND TableName = ''CldRecurrence'' AND OldRow IS NOT NULL
ON CONFLICT (ID1, Position) DO UPDATE
SET Name1 = excluded.Name1, TID1 = excluded.TID1, Expression = excluded.Expression, Comment = excluded.Comment,
  MovedName = excluded.MovedName;

DELETE FROM CldRecurrence
WHERE (ID1, Position) IN (
  SELECT ID1, Position FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = ''CldRecurrence'' AND OldRow IS NULL);

DELETE FROM CldBook
WHERE ID1 IN (SELECT ID1 FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = ''CldBook'' AND OldRow IS NULL);

-- A convention comes back with its currencies only.
SELECT 9 AS "@return"
FROM CldHistoryRow
WHERE EntryID = :EntryID AND TableName = ''CldConvention'' AND OldRow IS NOT NULL
  AND (ID1 NOT IN (SELECT CcyID FROM DicCcy) OR Position NOT IN (SELECT CcyID FROM DicCcy))
LIMIT 1;

INSERT INTO CldConvention (ID1, OtherID, SpotDays, DollarStops)
SELECT ID1, Position, json_extract(OldRow, ''$.SpotDays''), json_extract(OldRow, ''$.DollarStops'')
FROM CldHistoryRow
WHERE EntryID = :EntryID AND TableName = ''CldConvention'' AND OldRow IS NOT NULL
ON CONFLICT (ID1, OtherID) DO UPDATE SET SpotDays = excluded.SpotDays, DollarStops = excluded.DollarStops;

DELETE FROM CldConvention
WHERE (ID1, OtherID) IN (
  SELECT ID1, Position FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = ''CldConvention'' AND OldRow IS NULL);

-- What came back is of money, and of no year after it.
SELECT 9 AS "@return"
FROM CldHistoryRow r
  JOIN DicCcy c ON c.CcyID = r.ID1
  LEFT JOIN CldCalendar k ON k.ID1 = r.ID1 AND (r.TableName = ''DicCcy'' OR r.TableName = ''CldCalendar'' AND k.Year1 = r.Year1)
  LEFT JOIN CldBook b ON b.ID1 = r.ID1 AND r.TableName IN (''DicCcy'', ''CldBook'')
WHERE r.EntryID = :EntryID
  AND (c.CcyType <> 0 AND (k.ID1 IS NOT NULL OR b.ID1 IS NOT NULL) OR c.LastDay < k.Year1 || ''-01-01'')
LIMIT 1;

SELECT 9 AS "@return" WHERE total_changes() = :ChangesBefore;
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
INSERT INTO "ProcedureParameter" VALUES('CldApplyPlan',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldApplyPlan',1,'@ID1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldApplyPlan',2,'@Year1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldApplyPlan',3,'@Expected','text','in');
INSERT INTO "ProcedureParameter" VALUES('CldApplyPlan',4,'@Days','text','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetAsOf',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldGetAsOf',1,'@ID1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetAsOf',2,'@Year1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetAsOf',3,'@Moment','text','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetAsOf',4,'@EntryID','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetBook',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldGetBook',1,'@ID1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetClosedDays',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldGetClosedDays',1,'@FromYear','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetClosedDays',2,'@ToYear','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetContent',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldGetConventions',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldGetCurrencies',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldGetFingerprint',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldGetFingerprint',1,'@ID1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetFingerprint',2,'@Year1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetHistory',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldGetHistory',1,'@ID1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetHistory',2,'@Year1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetHistory',3,'@Day1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetHistory',4,'@Before','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetHistory',5,'@Count','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetHistory',6,'@UserName','text','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetHistory',7,'@EntryID','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetMain',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldGetMain',1,'@ID1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetMain',2,'@Year1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetMarkedDays',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldGetMarkedDays',1,'@FromYear','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldGetMarkedDays',2,'@ToYear','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUBook',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldIUBook',1,'@ID1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUBook',2,'@Expected','text','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUBook',3,'@Publisher','text','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUBook',4,'@Document','text','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUBook',5,'@Rules','text','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUBook',6,'@FromYear','int32','in');
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
INSERT INTO "ProcedureParameter" VALUES('CldIUConvention',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldIUConvention',1,'@CcyID','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUConvention',2,'@OtherID','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUConvention',3,'@SpotDays','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUConvention',4,'@DollarStops','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUCurrency',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldIUCurrency',1,'@CcyID','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUCurrency',2,'@Ccy','text','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUCurrency',3,'@CcyType','int16','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUCurrency',4,'@Name','text','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUCurrency',5,'@LastDay','date','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',1,'@ID1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',2,'@Year1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',3,'@TID1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',4,'@ID2','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',5,'@Day1','int32','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',6,'@ODate','date','in');
INSERT INTO "ProcedureParameter" VALUES('CldIUMain',7,'@Comment','text','in');
INSERT INTO "ProcedureParameter" VALUES('CldUndo',0,'@RETURN_VALUE','int32','return');
INSERT INTO "ProcedureParameter" VALUES('CldUndo',1,'@EntryID','int32','in');
CREATE INDEX CldDayByDate ON CldDay (ODate);
CREATE INDEX CldDayWithRule ON CldDay (ID1, Year1, Day1, TID1, ID2, Comment) WHERE ID2 IS NOT NULL;
CREATE UNIQUE INDEX CldSettingHasOneRow ON CldSetting ((1));
CREATE UNIQUE INDEX CldHistoryByChain ON CldHistory (ifnull(ID1, 0), ifnull(Year1, 0), ChainPosition);
CREATE TRIGGER CldHistoryKeepsItsEntries BEFORE UPDATE ON CldHistory
BEGIN
  SELECT RAISE(ABORT, 'an entry of the history is not changed');
END;
CREATE TRIGGER CldHistoryLosesNoEntry BEFORE DELETE ON CldHistory
BEGIN
  SELECT RAISE(ABORT, 'an entry of the history is not removed');
END;
CREATE INDEX CldHistoryRowByKey ON CldHistoryRow (TableName, ID1, Year1, Day1, ID2, Position, EntryID);
CREATE TRIGGER CldHistoryRowKeepsItsRows BEFORE UPDATE ON CldHistoryRow
BEGIN
  SELECT RAISE(ABORT, 'a row of the history is not changed');
END;
CREATE TRIGGER CldHistoryRowLosesNoRow BEFORE DELETE ON CldHistoryRow
BEGIN
  SELECT RAISE(ABORT, 'a row of the history is not removed');
END;
CREATE UNIQUE INDEX CldHistoryStartHasOneRow ON CldHistoryStart ((1));
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
  SELECT FERROWIND_FINGERPRINT(b.Publisher, b.Document, b.FromYear, Name1, TID1, Expression, Comment, MovedName)
  FROM (
    SELECT 0 AS Position, NULL AS Name1, NULL AS TID1, NULL AS Expression, NULL AS Comment, NULL AS MovedName
    UNION ALL
    SELECT r.Position, r.Name1, r.TID1, r.Expression, r.Comment, r.MovedName FROM CldRecurrence r WHERE r.ID1 = b.ID1
    ORDER BY Position
  )
) AS Fingerprint
FROM CldBook b;
COMMIT;
