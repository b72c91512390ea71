-- From version 6 to version 7: on files CldGetClosedDays reads less. Nothing differs on servers, but for the number, which is the
-- same for all engines.
DO $$ BEGIN END $$;
