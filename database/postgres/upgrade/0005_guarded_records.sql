-- From version 4 to version 5: records are guarded.

-- The entries of the history are chained; this is what was there before.
CREATE TABLE CldChainStart (
  ID1 integer NOT NULL,
  Year1 integer NOT NULL,
  EntryID bigint NOT NULL CHECK (EntryID >= 0),
  Moment timestamptz(3),
  Digest text COLLATE "C" NOT NULL,
  PRIMARY KEY (ID1, Year1)
);

-- What chains them is computed by the program, which fills the table ChainedEntry before.
ALTER TABLE CldHistory ADD ChainPosition integer CHECK (ChainPosition >= 1);
ALTER TABLE CldHistory ADD Previous text COLLATE "C";
ALTER TABLE CldHistory ADD Hash text COLLATE "C";
UPDATE CldHistory h SET ChainPosition = c.ChainPosition, Previous = c.Previous, Hash = c.Hash
FROM ChainedEntry c WHERE c.EntryID = h.EntryID;
DROP TABLE ChainedEntry;
ALTER TABLE CldHistory ALTER ChainPosition SET NOT NULL;
ALTER TABLE CldHistory ALTER Previous SET NOT NULL;
ALTER TABLE CldHistory ALTER Hash SET NOT NULL;
CREATE UNIQUE INDEX CldHistoryByChain ON CldHistory (coalesce(ID1, 0), coalesce(Year1, 0), ChainPosition);

ALTER TABLE CldHistoryRow ADD NewRow json;
