-- The holiday rules of an office with five currencies. TID1 2: every week on the weekday WD, counted from Sunday (1); 3:
-- every year on the same date; 4: a holiday point, whose date differs from year to year, D1 being one of its dates. MY and
-- MD are the month and the day of D1. Rule 1 belongs to every database and is not here.

-- The days of a weekend.
INSERT INTO CldHoliday (ID2, Name1, Comment, TID1, D1, MY, MD, WD, Del) VALUES
(2, 'Saturday', 'Weekend', 2, NULL, NULL, NULL, 7, NULL),
(3, 'Sunday', 'Weekend', 2, NULL, NULL, NULL, 1, NULL);

-- Days that several calendars share.
INSERT INTO CldHoliday (ID2, Name1, Comment, TID1, D1, MY, MD, WD, Del) VALUES
(4, 'New Year''s Day', '1 January', 3, '2026-01-01', 1, 1, NULL, NULL),
(5, 'Good Friday', 'Friday before Easter Sunday', 4, '2026-04-03', 4, 3, NULL, NULL),
(6, 'Easter Monday', 'Monday after Easter Sunday', 4, '2026-04-06', 4, 6, NULL, NULL),
(7, 'Labour Day (1 May)', '1 May', 3, '2026-05-01', 5, 1, NULL, NULL),
(8, 'Christmas Day', '25 December', 3, '2026-12-25', 12, 25, NULL, NULL),
(9, 'St Stephen''s Day', '26 December', 3, '2026-12-26', 12, 26, NULL, NULL);

-- United States of America.
INSERT INTO CldHoliday (ID2, Name1, Comment, TID1, D1, MY, MD, WD, Del) VALUES
(10, 'Birthday of Martin Luther King, Jr.', 'Third Monday in January', 4, '2026-01-19', 1, 19, NULL, NULL),
(11, 'Washington''s Birthday', 'Third Monday in February', 4, '2026-02-16', 2, 16, NULL, NULL),
(12, 'Memorial Day', 'Last Monday in May', 4, '2026-05-25', 5, 25, NULL, NULL),
(13, 'Juneteenth National Independence Day', '19 June', 3, '2026-06-19', 6, 19, NULL, NULL),
(14, 'Independence Day', '4 July', 3, '2026-07-04', 7, 4, NULL, NULL),
(15, 'Independence Day (observed)', 'The Monday, when 4 July is a Sunday', 4, '2027-07-05', 7, 5, NULL, NULL),
(16, 'Labor Day (September)', 'First Monday in September', 4, '2026-09-07', 9, 7, NULL, NULL),
(17, 'Columbus Day', 'Second Monday in October', 4, '2026-10-12', 10, 12, NULL, NULL),
(18, 'Veterans Day', '11 November', 3, '2026-11-11', 11, 11, NULL, NULL),
(19, 'Thanksgiving Day', 'Fourth Thursday in November', 4, '2026-11-26', 11, 26, NULL, NULL);

-- England and Wales.
INSERT INTO CldHoliday (ID2, Name1, Comment, TID1, D1, MY, MD, WD, Del) VALUES
(20, 'Early May bank holiday', 'First Monday in May', 4, '2026-05-04', 5, 4, NULL, NULL),
(21, 'Spring bank holiday', 'Last Monday in May', 4, '2026-05-25', 5, 25, NULL, NULL),
(22, 'Summer bank holiday', 'Last Monday in August', 4, '2026-08-31', 8, 31, NULL, NULL),
(23, 'Christmas Day (substitute day)', 'First free weekday, when 25 December is on a weekend', 4, '2027-12-27', 12, 27, NULL, NULL),
(24, 'Boxing Day', '26 December', 3, '2026-12-26', 12, 26, NULL, NULL),
(25, 'Boxing Day (substitute day)', 'First free weekday, when 26 December is on a weekend', 4, '2026-12-28', 12, 28, NULL, NULL);

-- Japan.
INSERT INTO CldHoliday (ID2, Name1, Comment, TID1, D1, MY, MD, WD, Del) VALUES
(26, 'Bank holiday (2 January)', '2 January', 3, '2026-01-02', 1, 2, NULL, NULL),
(27, 'Bank holiday (3 January)', '3 January', 3, '2026-01-03', 1, 3, NULL, NULL),
(28, 'Coming of Age Day', 'Second Monday in January', 4, '2026-01-12', 1, 12, NULL, NULL),
(29, 'National Foundation Day', '11 February', 3, '2026-02-11', 2, 11, NULL, NULL),
(30, 'The Emperor''s Birthday', '23 February', 3, '2026-02-23', 2, 23, NULL, NULL),
(31, 'Vernal Equinox Day', 'Day of the March equinox in Japan', 4, '2026-03-20', 3, 20, NULL, NULL),
(32, 'Showa Day', '29 April', 3, '2026-04-29', 4, 29, NULL, NULL),
(33, 'Constitution Memorial Day', '3 May', 3, '2026-05-03', 5, 3, NULL, NULL),
(34, 'Greenery Day', '4 May', 3, '2026-05-04', 5, 4, NULL, NULL),
(35, 'Children''s Day', '5 May', 3, '2026-05-05', 5, 5, NULL, NULL),
(36, 'Marine Day', 'Third Monday in July', 4, '2026-07-20', 7, 20, NULL, NULL),
(37, 'Mountain Day', '11 August', 3, '2026-08-11', 8, 11, NULL, NULL),
(38, 'Respect for the Aged Day', 'Third Monday in September', 4, '2026-09-21', 9, 21, NULL, NULL),
(39, 'Autumnal Equinox Day', 'Day of the September equinox in Japan', 4, '2026-09-23', 9, 23, NULL, NULL),
(40, 'Sports Day', 'Second Monday in October', 4, '2026-10-12', 10, 12, NULL, NULL),
(41, 'Culture Day', '3 November', 3, '2026-11-03', 11, 3, NULL, NULL),
(42, 'Labor Thanksgiving Day', '23 November', 3, '2026-11-23', 11, 23, NULL, NULL),
(43, 'Bank holiday (31 December)', '31 December', 3, '2026-12-31', 12, 31, NULL, NULL),
(44, 'Substitute Holiday', 'First day after a national holiday on a Sunday that is none itself', 4, '2026-05-06', 5, 6, NULL, NULL),
(45, 'Citizens'' Holiday', 'A day between two national holidays', 4, '2026-09-22', 9, 22, NULL, NULL);

-- Switzerland (Zurich).
INSERT INTO CldHoliday (ID2, Name1, Comment, TID1, D1, MY, MD, WD, Del) VALUES
(46, 'Berchtold''s Day', '2 January', 3, '2026-01-02', 1, 2, NULL, NULL),
(47, 'Ascension Day', '39 days after Easter Sunday', 4, '2026-05-14', 5, 14, NULL, NULL),
(48, 'Whit Monday', '50 days after Easter Sunday', 4, '2026-05-25', 5, 25, NULL, NULL),
(49, 'Swiss National Day', '1 August', 3, '2026-08-01', 8, 1, NULL, NULL);
