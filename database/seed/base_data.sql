-- What every calendar database holds, an empty one too. The currencies are delivered in a script of their own.

INSERT INTO CldHolidayType (TID1, Description1) VALUES
(1, 'Working day'),
(2, 'Holiday'),
(3, 'Celebration'),
(4, 'Holiday point');

INSERT INTO CldHoliday (ID2, Name1, TID1) VALUES (1, 'Working day by exception', 1);

INSERT INTO CldSetting (FirstDay) VALUES (1);
