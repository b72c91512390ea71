-- The moment that a text in the form of the history's names; null when it names none.
CREATE OR REPLACE FUNCTION MomentFrom(moment text) RETURNS timestamptz
LANGUAGE plpgsql STABLE
AS $$
BEGIN
  -- Without backslashes, which mean something else in a session of other settings.
  IF moment ~ '^[0-9]{4}-[0-9]{2}-[0-9]{2}T([01][0-9]|2[0-3]):[0-5][0-9]:[0-5][0-9]([.][0-9]{3})?Z$' THEN
    RETURN moment::timestamptz;
  END IF;
  RETURN NULL;
EXCEPTION
  -- No such day.
  WHEN data_exception THEN
    RETURN NULL;
END
$$;
