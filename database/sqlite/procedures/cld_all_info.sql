-- procedure CldAllInfo reads
-- What the windows need before a calendar is chosen: calendars, holiday types, holiday rules, first weekday.

SELECT ID1, Year1 FROM CldCalendar ORDER BY ID1, Year1;

SELECT TID1, Description1 FROM CldHolidayType ORDER BY TID1;

SELECT ID2, Name1, Comment, TID1, D1, MY, MD, WD, Del FROM CldHoliday ORDER BY ID2;

SELECT FirstDay FROM CldSetting;
