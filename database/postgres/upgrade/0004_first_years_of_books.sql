-- From version 3 to version 4: a book says since when it holds.

ALTER TABLE CldBook ADD FromYear integer CHECK (FromYear BETWEEN 1900 AND 3000);

-- The new one takes one argument more.
DROP FUNCTION IF EXISTS BookContent(text, text);
