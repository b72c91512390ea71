-- The rules of a book, by position, or null when the text is no list of rules; nothing that a text can hold makes it fail.
CREATE OR REPLACE FUNCTION BookRules(of_currency integer, rules text) RETURNS CldRecurrence[]
LANGUAGE plpgsql STABLE
AS $$
DECLARE
  most_rules constant integer := 10000;
  list json;
BEGIN
  list := rules::json;
  IF NOT IsListOfObjects(list,
      '{"Name1": "text", "TID1": "type", "Expression": "text", "Comment": "text?", "MovedName": "text?"}')
    OR json_array_length(list) > most_rules
    OR EXISTS (SELECT FROM json_array_elements(list) AS rule
               WHERE btrim(rule ->> 'Name1', ' ') = '' OR btrim(rule ->> 'Expression', ' ') = ''
                 OR length(rule ->> 'Name1') > 200 OR length(rule ->> 'MovedName') > 200
                 OR length(rule ->> 'Expression') > 4000 OR length(rule ->> 'Comment') > 4000)
  THEN
    RETURN NULL;
  END IF;
  RETURN (
    SELECT coalesce(array_agg(ROW(of_currency, n, rule ->> 'Name1', rule ->> 'TID1', rule ->> 'Expression',
      rule ->> 'Comment', rule ->> 'MovedName')::CldRecurrence ORDER BY n), '{}')
    FROM json_array_elements(list) WITH ORDINALITY AS given (rule, n));
EXCEPTION
  WHEN data_exception OR program_limit_exceeded THEN
    RETURN NULL;
END
$$;
