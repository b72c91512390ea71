<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ferrowind</name>
    <message>
        <source> but for %1</source>
        <translation> außer %1</translation>
    </message>
    <message>
        <source>"%1" is %2 in %3 and %4 in %5: a celebration has one date</source>
        <translation>„%1“ ist %2 in %3 und %4 in %5: Ein Festtag hat ein Datum</translation>
    </message>
    <message>
        <source>"%1" is %2 in %3 and %4 in %5: a name has one kind</source>
        <translation>„%1“ ist %2 in %3 und %4 in %5: Ein Name hat eine Art</translation>
    </message>
    <message>
        <source>"%1" is %2: a celebration has one date</source>
        <translation>„%1“ ist %2: Ein Festtag hat ein Datum</translation>
    </message>
    <message>
        <source>"%1" is %2: a name has one kind</source>
        <translation>„%1“ ist %2: Ein Name hat eine Art</translation>
    </message>
    <message>
        <source>"%1" is no year from %2 to %3</source>
        <translation>„%1“ ist kein Jahr von %2 bis %3</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>%1 %2 of %3 %4</source>
        <translation>%1 %2 im %3 %4</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (%2) asks for the table %3, and there is none of that name</source>
        <translation>%1 (%2) braucht die Tabelle %3, und es gibt keine dieses Namens</translation>
    </message>
    <message>
        <source>%1 (%2) has no name</source>
        <translation>%1 (%2) hat keinen Namen</translation>
    </message>
    <message>
        <source>%1 (%2) has the name of the built-in rule "%3", which no book can have</source>
        <translation>%1 (%2) hat den Namen der eingebauten Regel „%3“, den kein Regelwerk verwenden kann</translation>
    </message>
    <message>
        <source>%1 (%2) is a day between holidays, so its kind is point</source>
        <translation>%1 (%2) ist ein Tag zwischen Feiertagen, also ist seine Art point</translation>
    </message>
    <message>
        <source>%1 (%2) is each week on a weekday, so its kind is weekday</source>
        <translation>%1 (%2) ist jede Woche an einem Wochentag, also ist seine Art weekday</translation>
    </message>
    <message>
        <source>%1 (%2) is not on the same date each year, so its kind is point</source>
        <translation>%1 (%2) ist nicht jedes Jahr am selben Datum, also ist seine Art point</translation>
    </message>
    <message>
        <source>%1 (%2) is of the kind weekday, so its expression is "weekday" and a weekday</source>
        <translation>%1 (%2) ist von der Art weekday, also ist sein Ausdruck „weekday“ und ein Wochentag</translation>
    </message>
    <message>
        <source>%1 (%2) is on no day of any year</source>
        <translation>%1 (%2) fällt in keinem Jahr auf einen Tag</translation>
    </message>
    <message>
        <source>%1 (%2) moves off a %3 to the nearest %3, which is the same day</source>
        <translation>%1 (%2) weicht von %3 auf den nächstgelegenen %3 aus, also auf denselben Tag</translation>
    </message>
    <message>
        <source>%1 (%2) moves off a %3, a working day, and takes its name along, so its kind is point</source>
        <translation>%1 (%2) weicht von %3, einem Arbeitstag, aus und nimmt seinen Namen mit, also ist seine Art point</translation>
    </message>
    <message>
        <source>%1 (%2) names its moved day, but does not move</source>
        <translation>%1 (%2) benennt seinen verschobenen Tag, wird aber nicht verschoben</translation>
    </message>
    <message>
        <source>%1 (%2) neither moves nor is dropped: it is a working day, a weekday, a day between holidays or unknown</source>
        <translation>%1 (%2) wird weder verschoben noch fällt es aus: Es ist ein Arbeitstag, ein Wochentag, ein Tag zwischen Feiertagen oder unbekannt</translation>
    </message>
    <message>
        <source>%1 (%2) says the same as %3</source>
        <translation>%1 (%2) sagt dasselbe wie %3</translation>
    </message>
    <message>
        <source>%1 (a move stands before else, from and to)</source>
        <translation>%1 (eine Verschiebung steht vor else, from und to)</translation>
    </message>
    <message>
        <source>%1 (moved day)</source>
        <translation>%1 (verschobener Tag)</translation>
    </message>
    <message>
        <source>%1 (redone)</source>
        <translation>%1 (wiederholt)</translation>
    </message>
    <message>
        <source>%1 (undone)</source>
        <translation>%1 (rückgängig gemacht)</translation>
    </message>
    <message>
        <source>%1 - today</source>
        <translation>%1 – heute</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n others</source>
        <translation><numerusform>%1 und eine weitere</numerusform><numerusform>%1 und %n weitere</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 and entered in %n rule books</source>
        <translation><numerusform>%1, und in %n Regelwerk eingetragen</numerusform><numerusform>%1, und in %n Regelwerke eingetragen</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 and entered in %n rule books.</source>
        <translation><numerusform>%1, und in %n Regelwerk eingetragen.</numerusform><numerusform>%1, und in %n Regelwerke eingetragen.</numerusform></translation>
    </message>
    <message>
        <source>%1 as far as known; %2</source>
        <translation>%1, soweit bekannt; %2</translation>
    </message>
    <message>
        <source>%1 as it was after: %2 — %3, %4</source>
        <translation>%1, wie er war nach: %2 — %3, %4</translation>
    </message>
    <message>
        <source>%1 as it was at: %2</source>
        <translation>%1, wie er war am: %2</translation>
    </message>
    <message>
        <source>%1 as of %2</source>
        <translation>%1, Stand %2</translation>
    </message>
    <message>
        <source>%1 assigned</source>
        <translation>%1 zugewiesen</translation>
    </message>
    <message>
        <source>%1 can be %2 or %3. Write the name of the month.</source>
        <translation>%1 kann %2 oder %3 sein. Schreiben Sie den Namen des Monats.</translation>
    </message>
    <message>
        <source>%1 cannot be judged in full. %2.</source>
        <translation>%1 kann nicht vollständig beurteilt werden. %2.</translation>
    </message>
    <message>
        <source>%1 cannot be planned in full. %2.</source>
        <translation>%1 kann nicht vollständig geplant werden. %2.</translation>
    </message>
    <message>
        <source>%1 changed this calendar, %2: %3.</source>
        <translation>%1 hat diesen Kalender geändert, %2: %3.</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 erledigt</translation>
    </message>
    <message>
        <source>%1 from %2 to %3</source>
        <translation>%1 von %2 auf %3</translation>
    </message>
    <message>
        <source>%1 has an unusual number of holidays beside its weekends: %2, and %3 in the other years.</source>
        <translation>%1 hat neben den Wochenenden ungewöhnlich viele oder wenige Feiertage: %2, in den anderen Jahren %3.</translation>
    </message>
    <message>
        <source>%1 has holidays, and no rule book tells whether they are right.</source>
        <translation>%1 hat Feiertage, und kein Regelwerk sagt, ob sie stimmen.</translation>
    </message>
    <message>
        <source>%1 has no book, so nothing tells what its calendars should be</source>
        <translation>%1 hat kein Regelwerk, also sagt nichts, wie die Kalender aussehen sollen</translation>
    </message>
    <message>
        <source>%1 has no book, so nothing tells what its calendars should be.</source>
        <translation>%1 hat kein Regelwerk, also sagt nichts, wie die Kalender aussehen sollen.</translation>
    </message>
    <message>
        <source>%1 has no calendar for %2, the running year.</source>
        <translation>%1 hat keinen Kalender für %2, das laufende Jahr.</translation>
    </message>
    <message>
        <source>%1 has no calendar for %2.</source>
        <translation>%1 hat keinen Kalender für %2.</translation>
    </message>
    <message>
        <source>%1 has no calendar.</source>
        <translation>%1 hat keinen Kalender.</translation>
    </message>
    <message>
        <source>%1 has no calendars: it is no money</source>
        <translation>%1 hat keine Kalender: Es ist kein Zahlungsmittel</translation>
    </message>
    <message>
        <source>%1 has no closed day.</source>
        <translation>%1 hat keinen geschlossenen Tag.</translation>
    </message>
    <message>
        <source>%1 has no rule book</source>
        <translation>%1 hat kein Regelwerk</translation>
    </message>
    <message>
        <source>%1 has no rule book yet, so that nothing can be planned for it. Say who publishes its holidays and where, add its rules, and save them.</source>
        <translation>%1 hat noch kein Regelwerk, also kann dafür nichts geplant werden. Geben Sie an, wer die Feiertage wo veröffentlicht, fügen Sie die Regeln hinzu und speichern Sie.</translation>
    </message>
    <message>
        <source>%1 has no weekends: no weekday holiday closes any of its days.</source>
        <translation>%1 hat keine Wochenenden: Kein wöchentlicher Feiertag schließt einen der Tage.</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>%1 is %2.</source>
        <translation>%1 ist %2.</translation>
    </message>
    <message>
        <source>%1 is a %2.</source>
        <translation>%1 ist ein %2.</translation>
    </message>
    <message>
        <source>%1 is a %2; moved to %3</source>
        <translation>%1 ist ein %2; verschoben auf %3</translation>
    </message>
    <message>
        <source>%1 is a rule for one weekday of every week. Take another name.</source>
        <translation>%1 ist eine Regel für einen Wochentag jeder Woche. Nehmen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>%1 is a rule that opens days. Take another name.</source>
        <translation>%1 ist eine Regel, die Tage öffnet. Nehmen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>%1 is as in the list now%2.</source>
        <translation>%1 ist jetzt wie in der Liste%2.</translation>
    </message>
    <message>
        <source>%1 is as it was before.</source>
        <translation>%1 ist wieder, wie es vorher war.</translation>
    </message>
    <message>
        <source>%1 is as planned now%2.</source>
        <translation>%1 ist jetzt wie geplant%2.</translation>
    </message>
    <message>
        <source>%1 is as planned.</source>
        <translation>%1 ist wie geplant.</translation>
    </message>
    <message>
        <source>%1 is closed on weekends only.</source>
        <translation>%1 ist nur an Wochenenden geschlossen.</translation>
    </message>
    <message>
        <source>%1 is made%2.</source>
        <translation>%1 ist angelegt%2.</translation>
    </message>
    <message>
        <source>%1 is money until %2</source>
        <translation>%1 ist Zahlungsmittel bis %2</translation>
    </message>
    <message>
        <source>%1 is no date expression: at %2, %3 is expected</source>
        <translation>%1 ist kein Datumsausdruck: Bei %2 wird %3 erwartet</translation>
    </message>
    <message>
        <source>%1 is no money</source>
        <translation>%1 ist kein Zahlungsmittel</translation>
    </message>
    <message>
        <source>%1 is not observed on a closed day: %2</source>
        <translation>%1 wird an einem geschlossenen Tag nicht begangen: %2</translation>
    </message>
    <message>
        <source>%1 is on %2 each year. Take another name for another day.</source>
        <translation>%1 ist jedes Jahr am %2. Nehmen Sie für einen anderen Tag einen anderen Namen.</translation>
    </message>
    <message>
        <source>%1 is on this day too: %2</source>
        <translation>%1 ist auch an diesem Tag: %2</translation>
    </message>
    <message>
        <source>%1 is taken by %2; moved to %3</source>
        <translation>%1 ist durch %2 belegt; verschoben auf %3</translation>
    </message>
    <message>
        <source>%1 is there already. Is it to be replaced?</source>
        <translation>%1 gibt es schon. Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>%1 moved from here to %2</source>
        <translation>%1 ist von hier auf %2 verschoben</translation>
    </message>
    <message>
        <source>%1 not tried</source>
        <translation>%1 nicht versucht</translation>
    </message>
    <message>
        <source>%1 of %2 currencies for %3</source>
        <translation>%1 von %2 Währungen für %3</translation>
    </message>
    <message>
        <source>%1 of %2 days</source>
        <translation>%1 von %2 Tagen</translation>
    </message>
    <message>
        <source>%1 of %2 rules</source>
        <translation>%1 von %2 Regeln</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rules</source>
        <translation><numerusform>%1 von %n Regel</numerusform><numerusform>%1 von %n Regeln</numerusform></translation>
    </message>
    <message>
        <source>%1 of the table %2</source>
        <translation>%1 der Tabelle %2</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 auf %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>%1 refused</source>
        <translation>%1 abgelehnt</translation>
    </message>
    <message>
        <source>%1 removed this calendar, %2: %3.</source>
        <translation>%1 hat diesen Kalender entfernt, %2: %3.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else meanwhile. It is left as it is; look at its days again.</source>
        <translation>%1 wurde inzwischen von jemand anderem geändert. Es bleibt, wie es ist; sehen Sie sich die Tage noch einmal an.</translation>
    </message>
    <message>
        <source>%1 was changed meanwhile; nothing was changed in it, and its plan is made anew.</source>
        <translation>%1 wurde inzwischen geändert; nichts darin wurde geändert, und der Plan wird neu erstellt.</translation>
    </message>
    <message>
        <source>%1 was not tried.</source>
        <translation>%1 wurde nicht versucht.</translation>
    </message>
    <message>
        <source>%1%2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 days after</source>
        <translation><numerusform>%1, %2 Tag danach</numerusform><numerusform>%1, %2 Tage danach</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 days before</source>
        <translation><numerusform>%1, %2 Tag davor</numerusform><numerusform>%1, %2 Tage davor</numerusform></translation>
    </message>
    <message>
        <source>%1, %2 of them weekends</source>
        <translation>%1, davon %2 Wochenendtage</translation>
    </message>
    <message>
        <source>%1, %2,</source>
        <translation>%1, %2,</translation>
    </message>
    <message>
        <source>%1, %2: %3.</source>
        <translation>%1, %2: %3.</translation>
    </message>
    <message>
        <source>%1, %2: why it is what it is cannot be read.</source>
        <translation>%1, %2: Warum der Tag so ist, kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1, and entered in no rule book.</source>
        <translation>%1, und in kein Regelwerk eingetragen.</translation>
    </message>
    <message>
        <source>%1, closed</source>
        <translation>%1, geschlossen</translation>
    </message>
    <message>
        <source>%1, from %2 on</source>
        <translation>%1, ab %2</translation>
    </message>
    <message>
        <source>%1, next year</source>
        <translation>%1, nächstes Jahr</translation>
    </message>
    <message>
        <source>%1, only in %2</source>
        <translation>%1, nur in %2</translation>
    </message>
    <message>
        <source>%1, only on %2</source>
        <translation>%1, nur wenn %2</translation>
    </message>
    <message>
        <source>%1, so it has no calendar of %2</source>
        <translation>%1, also gibt es keinen Kalender von %2</translation>
    </message>
    <message>
        <source>%1, this year</source>
        <translation>%1, dieses Jahr</translation>
    </message>
    <message>
        <source>%1, until %2</source>
        <translation>%1, bis %2</translation>
    </message>
    <message>
        <source>%1, which the table %2 does not reach</source>
        <translation>%1, bis wohin die Tabelle %2 nicht reicht</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 %3.</source>
        <translation>%1: %2 %3.</translation>
    </message>
    <message>
        <source>%1: %2 (%3 returned %4)</source>
        <translation>%1: %2 (%3 gab %4 zurück)</translation>
    </message>
    <message>
        <source>%1: %2 gave only %3 of its %4 record sets</source>
        <translation>%1: %2 gab nur %3 von %4 Datensatzgruppen</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n days are not as planned.</source>
        <translation><numerusform>%1: %n Tag ist nicht wie geplant.</numerusform><numerusform>%1: %n Tage sind nicht wie geplant.</numerusform></translation>
    </message>
    <message>
        <source>%1: the call failed</source>
        <translation>%1: Der Aufruf ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1: the database did not do what was asked. What is shown may be out of date.</source>
        <translation>%1: Die Datenbank hat nicht getan, was verlangt war. Was zu sehen ist, kann veraltet sein.</translation>
    </message>
    <message>
        <source>%1: weekends only</source>
        <translation>%1: nur Wochenenden</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1; a working %2</source>
        <translation>%1; ein %2, an dem gearbeitet wird</translation>
    </message>
    <message>
        <source>%1; now open by exception: %2</source>
        <translation>%1; jetzt ausnahmsweise geöffnet: %2</translation>
    </message>
    <message>
        <source>%1; unchanged: %2</source>
        <translation>%1; unverändert: %2</translation>
    </message>
    <message>
        <source>%1; weekends only: %2</source>
        <translation>%1; nur Wochenenden: %2</translation>
    </message>
    <message>
        <source>%2 %1</source>
        <translation>%2. %1</translation>
    </message>
    <message>
        <source>%3 %2 %1</source>
        <translation>%3. %2 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n by exception</source>
        <translation><numerusform>%n als Ausnahme</numerusform><numerusform>%n als Ausnahme</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n calendars are as planned%1.</source>
        <translation><numerusform>%n Kalender ist wie geplant%1.</numerusform><numerusform>%n Kalender sind wie geplant%1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n calendars cannot be planned.</source>
        <translation><numerusform>%n Kalender kann nicht geplant werden.</numerusform><numerusform>%n Kalender können nicht geplant werden.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n calendars: %1.</source>
        <translation><numerusform>%n Kalender: %1.</numerusform><numerusform>%n Kalender: %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n change nothing</source>
        <translation><numerusform>%n ändert nichts</numerusform><numerusform>%n ändern nichts</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n changes are undone</source>
        <translation><numerusform>%n Änderung ist rückgängig gemacht</numerusform><numerusform>%n Änderungen sind rückgängig gemacht</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n closed days keep their names, which the list calls otherwise.</source>
        <translation><numerusform>%n geschlossener Tag behält seinen Namen; die Liste nennt ihn anders.</numerusform><numerusform>%n geschlossene Tage behalten ihre Namen; die Liste nennt sie anders.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n closed days that the rule book does not have</source>
        <translation><numerusform>%n geschlossener Tag, den das Regelwerk nicht hat</numerusform><numerusform>%n geschlossene Tage, die das Regelwerk nicht hat</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies</source>
        <translation><numerusform>%n Währung</numerusform><numerusform>%n Währungen</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies are closed on weekends only in %2: %1.</source>
        <translation><numerusform>%n Währung ist %2 nur an Wochenenden geschlossen: %1.</numerusform><numerusform>%n Währungen sind %2 nur an Wochenenden geschlossen: %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no book, so nothing tells what their calendars should be: %1.</source>
        <translation><numerusform>%n Währung hat kein Regelwerk, also sagt nichts, wie die Kalender aussehen sollen: %1.</numerusform><numerusform>%n Währungen haben kein Regelwerk, also sagt nichts, wie die Kalender aussehen sollen: %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no calendar for %2, the running year: %1.</source>
        <translation><numerusform>%n Währung hat keinen Kalender für %2, das laufende Jahr: %1.</numerusform><numerusform>%n Währungen haben keinen Kalender für %2, das laufende Jahr: %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no calendar for %2: %1.</source>
        <translation><numerusform>%n Währung hat keinen Kalender für %2: %1.</numerusform><numerusform>%n Währungen haben keinen Kalender für %2: %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no closed day in %2: %1.</source>
        <translation><numerusform>%n Währung hat %2 keinen geschlossenen Tag: %1.</numerusform><numerusform>%n Währungen haben %2 keinen geschlossenen Tag: %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no holidays in %1, the running year.</source>
        <translation><numerusform>%n Währung hat keine Feiertage in %1, dem laufenden Jahr.</numerusform><numerusform>%n Währungen haben keine Feiertage in %1, dem laufenden Jahr.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no holidays in %1, which begins %2.</source>
        <translation><numerusform>%n Währung hat keine Feiertage in %1, das %2 beginnt.</numerusform><numerusform>%n Währungen haben keine Feiertage in %1, das %2 beginnt.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no weekends in %2, for no weekday holiday closes any day: %1.</source>
        <translation><numerusform>%n Währung hat %2 keine Wochenenden, denn kein wöchentlicher Feiertag schließt einen Tag: %1.</numerusform><numerusform>%n Währungen haben %2 keine Wochenenden, denn kein wöchentlicher Feiertag schließt einen Tag: %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation><numerusform>%n Tag</numerusform><numerusform>%n Tage</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days after</source>
        <translation><numerusform>%n Tag danach</numerusform><numerusform>%n Tage danach</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days are closed now</source>
        <translation><numerusform>%n Tag ist jetzt geschlossen</numerusform><numerusform>%n Tage sind jetzt geschlossen</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days are not as planned.</source>
        <translation><numerusform>%n Tag ist nicht wie geplant.</numerusform><numerusform>%n Tage sind nicht wie geplant.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days are working days by exception now</source>
        <translation><numerusform>%n Tag ist jetzt Ausnahme-Arbeitstag</numerusform><numerusform>%n Tage sind jetzt Ausnahme-Arbeitstage</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days before</source>
        <translation><numerusform>%n Tag davor</numerusform><numerusform>%n Tage davor</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days of %1</source>
        <translation><numerusform>%n Tag von %1</numerusform><numerusform>%n Tage von %1</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days of %1 are written to %2.</source>
        <translation><numerusform>%n Tag von %1 ist in %2 geschrieben.</numerusform><numerusform>%n Tage von %1 sind in %2 geschrieben.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days of the plans of %1 change:</source>
        <translation><numerusform>%n Tag der Pläne von %1 ändert sich:</numerusform><numerusform>%n Tage der Pläne von %1 ändern sich:</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days selected, %1 of them closed</source>
        <translation><numerusform>%n Tag ausgewählt, %1 davon geschlossen</numerusform><numerusform>%n Tage ausgewählt, %1 davon geschlossen</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days set</source>
        <translation><numerusform>%n Tag gesetzt</numerusform><numerusform>%n Tage gesetzt</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days take it</source>
        <translation><numerusform>%n Tag bekommt sie</numerusform><numerusform>%n Tage bekommen sie</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days that are left out</source>
        <translation><numerusform>%n Tag, der ausgelassen ist</numerusform><numerusform>%n Tage, die ausgelassen sind</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days were changed.</source>
        <translation><numerusform>%n Tag wurde geändert.</numerusform><numerusform>%n Tage wurden geändert.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days whose rules stand in the way</source>
        <translation><numerusform>%n Tag, dessen Regel im Weg steht</numerusform><numerusform>%n Tage, deren Regeln im Weg stehen</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days will be closed</source>
        <translation><numerusform>%n Tag wird geschlossen</numerusform><numerusform>%n Tage werden geschlossen</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n errors</source>
        <translation><numerusform>%n Fehler</numerusform><numerusform>%n Fehler</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n have it</source>
        <translation><numerusform>%n hat sie</numerusform><numerusform>%n haben sie</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n holidays</source>
        <translation><numerusform>%n Feiertag</numerusform><numerusform>%n Feiertage</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation><numerusform>%n weiterer</numerusform><numerusform>%n weitere</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n more faults.</source>
        <translation><numerusform>%n weiterer Mangel.</numerusform><numerusform>%n weitere Mängel.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n notes</source>
        <translation><numerusform>%n Hinweis</numerusform><numerusform>%n Hinweise</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n plans lack dates that are not known yet.</source>
        <translation><numerusform>In %n Plan fehlen Daten, die noch nicht bekannt sind.</numerusform><numerusform>In %n Plänen fehlen Daten, die noch nicht bekannt sind.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n rules</source>
        <translation><numerusform>%n Regel</numerusform><numerusform>%n Regeln</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n rules for %1</source>
        <translation><numerusform>%n Regel für %1</numerusform><numerusform>%n Regeln für %1</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n stay as holidays or exceptions</source>
        <translation><numerusform>%n bleibt Feiertag oder Ausnahme</numerusform><numerusform>%n bleiben Feiertage oder Ausnahmen</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation><numerusform>%n Warnung</numerusform><numerusform>%n Warnungen</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n weekend days</source>
        <translation><numerusform>%n Wochenendtag</numerusform><numerusform>%n Wochenendtage</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days</source>
        <translation><numerusform>%n Arbeitstag</numerusform><numerusform>%n Arbeitstage</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days by exception</source>
        <translation><numerusform>%n Ausnahme-Arbeitstag</numerusform><numerusform>%n Ausnahme-Arbeitstage</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days by exception have a reason.</source>
        <translation><numerusform>%n Ausnahme-Arbeitstag hat einen Grund.</numerusform><numerusform>%n Ausnahme-Arbeitstage haben einen Grund.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days by exception that have a reason will be closed.</source>
        <translation><numerusform>%n Ausnahme-Arbeitstag, der einen Grund hat, wird geschlossen.</numerusform><numerusform>%n Ausnahme-Arbeitstage, die einen Grund haben, werden geschlossen.</numerusform></translation>
    </message>
    <message>
        <source>&amp;Clear Sorting</source>
        <translation>Sortierung auf&amp;heben</translation>
    </message>
    <message>
        <source>&amp;Close calendars</source>
        <translation>Kalender &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>Alle au&amp;fklappen</translation>
    </message>
    <message>
        <source>&amp;Group by This Column</source>
        <translation>Nach dieser Spalte &amp;gruppieren</translation>
    </message>
    <message>
        <source>&amp;Open calendars</source>
        <translation>Kalender ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Ungroup</source>
        <translation>Gruppierung &amp;lösen</translation>
    </message>
    <message>
        <source>A calendar's year is 1900 to 3000.</source>
        <translation>Das Jahr eines Kalenders ist 1900 bis 3000.</translation>
    </message>
    <message>
        <source>A day between two holidays</source>
        <translation>Ein Tag zwischen zwei Feiertagen</translation>
    </message>
    <message>
        <source>A day that is not known yet</source>
        <translation>Ein Tag, der noch nicht bekannt ist</translation>
    </message>
    <message>
        <source>A later change is of the same, or the history does not reach there</source>
        <translation>Eine spätere Änderung betrifft dasselbe, oder der Verlauf reicht nicht so weit</translation>
    </message>
    <message>
        <source>A list is imported for one currency at a time.</source>
        <translation>Eine Liste wird immer für eine Währung importiert.</translation>
    </message>
    <message>
        <source>A new holiday point, on the days that are closed here.</source>
        <translation>Ein neuer Einzelfeiertag, an den Tagen, die hier geschlossen werden.</translation>
    </message>
    <message>
        <source>A plan from now on for: %1.</source>
        <translation>Künftig geplant: %1.</translation>
    </message>
    <message>
        <source>A removed rule has that name: it can be restored</source>
        <translation>Eine entfernte Regel hat diesen Namen: Sie kann wiederhergestellt werden</translation>
    </message>
    <message>
        <source>A text file names no currencies, so it can be of one alone</source>
        <translation>Eine Textdatei nennt keine Währungen, also kann sie nur von einer sein</translation>
    </message>
    <message>
        <source>A value is missing or out of range</source>
        <translation>Ein Wert fehlt oder liegt außerhalb der Grenzen</translation>
    </message>
    <message>
        <source>A weekday near a date</source>
        <translation>Ein Wochentag bei einem Datum</translation>
    </message>
    <message>
        <source>A weekday of a month</source>
        <translation>Ein Wochentag eines Monats</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add the rule %1</source>
        <translation>Regel %1 hinzufügen</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <source>Added the currency %1 (%2)</source>
        <translation>Währung %1 (%2) hinzugefügt</translation>
    </message>
    <message>
        <source>Added the currency %1 (%2), no money</source>
        <translation>Währung %1 (%2) hinzugefügt, kein Zahlungsmittel</translation>
    </message>
    <message>
        <source>Added the rule %1</source>
        <translation>Regel %1 hinzugefügt</translation>
    </message>
    <message numerus="yes">
        <source>Added the rule book of %1: %n rules</source>
        <translation><numerusform>Regelwerk von %1 hinzugefügt: %n Regel</numerusform><numerusform>Regelwerk von %1 hinzugefügt: %n Regeln</numerusform></translation>
    </message>
    <message>
        <source>Address of the database</source>
        <translation>Adresse der Datenbank</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>All calendars</source>
        <translation>Alle Kalender</translation>
    </message>
    <message>
        <source>All calendars are as planned, as far as it is published</source>
        <translation>Alle Kalender sind wie geplant, soweit es veröffentlicht ist</translation>
    </message>
    <message>
        <source>All calendars together</source>
        <translation>Alle Kalender zusammen</translation>
    </message>
    <message>
        <source>All days</source>
        <translation>Alle Tage</translation>
    </message>
    <message>
        <source>All rules</source>
        <translation>Alle Regeln</translation>
    </message>
    <message>
        <source>An ordinary working day%1</source>
        <translation>Ein gewöhnlicher Arbeitstag%1</translation>
    </message>
    <message>
        <source>Applied the plan</source>
        <translation>Plan angewendet</translation>
    </message>
    <message>
        <source>Applied the plan of %1</source>
        <translation>Plan von %1 angewendet</translation>
    </message>
    <message numerus="yes">
        <source>Applied the plans of %n calendars</source>
        <translation><numerusform>Pläne von %n Kalender angewendet</numerusform><numerusform>Pläne von %n Kalendern angewendet</numerusform></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Apply the plan</source>
        <translation>Plan anwenden</translation>
    </message>
    <message>
        <source>Apply the plan of %1</source>
        <translation>Plan von %1 anwenden</translation>
    </message>
    <message>
        <source>Applying the plan of %1</source>
        <translation>Anwenden des Plans von %1</translation>
    </message>
    <message>
        <source>Applying the plan of %1, %2 of %3.</source>
        <translation>Der Plan von %1 wird angewendet, %2 von %3.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>As %1</source>
        <translation>Wie %1</translation>
    </message>
    <message>
        <source>As it was before</source>
        <translation>Wie zuvor</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>Zuweisen</translation>
    </message>
    <message>
        <source>Assign %1</source>
        <translation>%1 zuweisen</translation>
    </message>
    <message>
        <source>Assign %1 to %2</source>
        <translation>%1 zu %2 zuweisen</translation>
    </message>
    <message>
        <source>Assign holiday</source>
        <translation>Feiertag zuweisen</translation>
    </message>
    <message>
        <source>Assign holiday, %1</source>
        <translation>Feiertag zuweisen, %1</translation>
    </message>
    <message>
        <source>Assign these rules?</source>
        <translation>Diese Regeln zuweisen?</translation>
    </message>
    <message>
        <source>Assigned %1</source>
        <translation>%1 zugewiesen</translation>
    </message>
    <message>
        <source>Assigned %1 to %2</source>
        <translation>%1 zu %2 zugewiesen</translation>
    </message>
    <message numerus="yes">
        <source>Assigned %1 to %n days of %2</source>
        <translation><numerusform>%1 zu %n Tag von %2 zugewiesen</numerusform><numerusform>%1 zu %n Tagen von %2 zugewiesen</numerusform></translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Back office</source>
        <translation>Back-Office</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Between %1 and %2</source>
        <translation>Zwischen %1 und %2</translation>
    </message>
    <message>
        <source>Between two holidays</source>
        <translation>Zwischen zwei Feiertagen</translation>
    </message>
    <message>
        <source>Book: %1</source>
        <translation>Regelwerk: %1</translation>
    </message>
    <message>
        <source>Business-day calendars</source>
        <translation>Geschäftstagskalender</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>By Easter Sunday</source>
        <translation>Nach Ostersonntag</translation>
    </message>
    <message>
        <source>By Orthodox Easter Sunday</source>
        <translation>Nach orthodoxem Ostersonntag</translation>
    </message>
    <message>
        <source>By a table of dates</source>
        <translation>Nach einer Datumstabelle</translation>
    </message>
    <message>
        <source>C&amp;ollapse All</source>
        <translation>Alle &amp;zuklappen</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Calendar %1</source>
        <translation>Kalender %1</translation>
    </message>
    <message>
        <source>Calendar at a moment</source>
        <translation>Kalender zu einem Zeitpunkt</translation>
    </message>
    <message>
        <source>Calendar at...</source>
        <translation>Stand am ...</translation>
    </message>
    <message>
        <source>Calendar files</source>
        <translation>Kalenderdateien</translation>
    </message>
    <message>
        <source>Calendar then</source>
        <translation>Stand damals</translation>
    </message>
    <message>
        <source>Calendars of this user</source>
        <translation>Kalender dieses Benutzers</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message>
        <source>Celebration</source>
        <translation>Festtag</translation>
    </message>
    <message>
        <source>Celebrations</source>
        <translation>Festtage</translation>
    </message>
    <message>
        <source>Changed the rule %1</source>
        <translation>Regel %1 geändert</translation>
    </message>
    <message numerus="yes">
        <source>Changed the rule book of %1: %n rules</source>
        <translation><numerusform>Regelwerk von %1 geändert: %n Regel</numerusform><numerusform>Regelwerk von %1 geändert: %n Regeln</numerusform></translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Geändert: %1</translation>
    </message>
    <message>
        <source>Changes of mine</source>
        <translation>Meine Änderungen</translation>
    </message>
    <message>
        <source>Choose a day</source>
        <translation>Einen Tag wählen</translation>
    </message>
    <message>
        <source>Choose a day (Alt+Down)</source>
        <translation>Einen Tag wählen (Alt+Abwärtspfeil)</translation>
    </message>
    <message>
        <source>Choose a day: here stands why it is open or closed.</source>
        <translation>Wählen Sie einen Tag: Hier steht, warum er geöffnet oder geschlossen ist.</translation>
    </message>
    <message>
        <source>Choose a list</source>
        <translation>Liste wählen</translation>
    </message>
    <message>
        <source>Choose the file of the list.</source>
        <translation>Wählen Sie die Datei der Liste.</translation>
    </message>
    <message>
        <source>Choose when it is, or write an expression such as 12-25 or easter-2</source>
        <translation>Wählen Sie, wann er ist, oder schreiben Sie einen Ausdruck wie 12-25 oder easter-2</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Wählen ...</translation>
    </message>
    <message>
        <source>Click to turn the order, drag to move, Delete to remove</source>
        <translation>Klicken kehrt die Reihenfolge um, Ziehen verschiebt, Entf entfernt</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close days</source>
        <translation>Tage schließen</translation>
    </message>
    <message>
        <source>Close selected days as ...</source>
        <translation>Ausgewählte Tage schließen als ...</translation>
    </message>
    <message>
        <source>Closed %1 as %2</source>
        <translation>%1 geschlossen als %2</translation>
    </message>
    <message>
        <source>Closed days get the list's</source>
        <translation>Geschlossene Tage erhalten die der Liste</translation>
    </message>
    <message>
        <source>Closed days keep theirs</source>
        <translation>Geschlossene Tage behalten ihre</translation>
    </message>
    <message>
        <source>Closes the selected days that are open, as a holiday that was announced for once</source>
        <translation>Schließt die ausgewählten geöffneten Tage als einmalig angekündigten Feiertag</translation>
    </message>
    <message>
        <source>Closing days of %1</source>
        <translation>Schließen von Tagen in %1</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Convention of %1</source>
        <translation>Konvention von %1</translation>
    </message>
    <message>
        <source>Created the calendar</source>
        <translation>Kalender angelegt</translation>
    </message>
    <message>
        <source>Created the calendar %1</source>
        <translation>Kalender %1 angelegt</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>Währungen</translation>
    </message>
    <message>
        <source>Currencies and calendars</source>
        <translation>Währungen und Kalender</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Währung</translation>
    </message>
    <message>
        <source>Currency %1</source>
        <translation>Währung %1</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Day of the %1 equinox %2 at UTC%3</source>
        <translation>Tag der %1-Tagundnachtgleiche %2 bei UTC%3</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezember</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>Weicht ab</translation>
    </message>
    <message numerus="yes">
        <source>Differs by %n days</source>
        <translation><numerusform>Weicht an %n Tag ab</numerusform><numerusform>Weicht an %n Tagen ab</numerusform></translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abwärts</translation>
    </message>
    <message>
        <source>Drag a column header here to group by that column</source>
        <translation>Ziehen Sie eine Spaltenüberschrift hierher, um nach ihr zu gruppieren</translation>
    </message>
    <message>
        <source>EUR, USD or ALL</source>
        <translation>EUR, USD oder ALL</translation>
    </message>
    <message>
        <source>Easter Sunday %1</source>
        <translation>Ostersonntag %1</translation>
    </message>
    <message>
        <source>Edit the rule %1</source>
        <translation>Regel %1 bearbeiten</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Every %1</source>
        <translation>Jeder %1</translation>
    </message>
    <message>
        <source>Every day is as in the list.</source>
        <translation>Jeder Tag ist wie in der Liste.</translation>
    </message>
    <message>
        <source>Every day is as planned.</source>
        <translation>Jeder Tag ist wie geplant.</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>Jede Woche</translation>
    </message>
    <message>
        <source>Everybody</source>
        <translation>Alle Personen</translation>
    </message>
    <message>
        <source>Everything stayed as it was.</source>
        <translation>Alles blieb, wie es war.</translation>
    </message>
    <message>
        <source>Except</source>
        <translation>Ausnahme setzen</translation>
    </message>
    <message>
        <source>Except %1</source>
        <translation>Ausnahme für %1</translation>
    </message>
    <message>
        <source>Except %1, %2</source>
        <translation>Ausnahme für %1, %2</translation>
    </message>
    <message>
        <source>Except all selected days from the holiday list, with one message</source>
        <translation>Nimmt alle ausgewählten Tage mit einer gemeinsamen Meldung von der Feiertagsliste aus</translation>
    </message>
    <message>
        <source>Except days</source>
        <translation>Tage ausnehmen</translation>
    </message>
    <message>
        <source>Except days with message ...</source>
        <translation>Ausnahme mit Meldung ...</translation>
    </message>
    <message>
        <source>Except selected days with message ...</source>
        <translation>Ausgewählte Tage mit Meldung ausnehmen ...</translation>
    </message>
    <message>
        <source>Except, %1</source>
        <translation>Ausnahme setzen, %1</translation>
    </message>
    <message>
        <source>Excepted</source>
        <translation>Ausnahme gesetzt</translation>
    </message>
    <message>
        <source>Excepted %1</source>
        <translation>Ausnahme gesetzt: %1</translation>
    </message>
    <message>
        <source>Excepted %1, %2</source>
        <translation>Ausnahme gesetzt: %1, %2</translation>
    </message>
    <message>
        <source>Excepted %1: %2</source>
        <translation>Ausnahme gesetzt für %1: %2</translation>
    </message>
    <message>
        <source>Excepted, %1</source>
        <translation>Ausnahme gesetzt, %1</translation>
    </message>
    <message>
        <source>Excepting days of %1</source>
        <translation>Ausnehmen von Tagen in %1</translation>
    </message>
    <message>
        <source>Exception</source>
        <translation>Ausnahme</translation>
    </message>
    <message>
        <source>Exceptions</source>
        <translation>Ausnahmen</translation>
    </message>
    <message>
        <source>Export as</source>
        <translation>Exportieren als</translation>
    </message>
    <message>
        <source>Export calendars</source>
        <translation>Kalender exportieren</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportieren ...</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Ausdruck</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>Ferrowind calendar</source>
        <translation>Ferrowind-Kalender</translation>
    </message>
    <message>
        <source>Fifth</source>
        <translation>Fünfter</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Suchen ...</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>Findings of the review: %1</source>
        <translation>Befunde der Prüfung: %1</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Erster</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation>Vierter</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>From Saturday to Friday, from Sunday to Monday</source>
        <translation>Von Samstag auf Freitag, von Sonntag auf Montag</translation>
    </message>
    <message>
        <source>From Sunday to Monday</source>
        <translation>Von Sonntag auf Montag</translation>
    </message>
    <message>
        <source>From year</source>
        <translation>Ab Jahr</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>Go to a date, of this or another year</source>
        <translation>Zu einem Datum gehen, in diesem oder einem anderen Jahr</translation>
    </message>
    <message>
        <source>Go to date</source>
        <translation>Gehe zu Datum</translation>
    </message>
    <message>
        <source>Go to date...</source>
        <translation>Gehe zu Datum ...</translation>
    </message>
    <message>
        <source>Group by</source>
        <translation>Gruppieren nach</translation>
    </message>
    <message>
        <source>Group, level %1, %2</source>
        <translation>Gruppe, Ebene %1, %2</translation>
    </message>
    <message>
        <source>Grouped by %1</source>
        <translation>Gruppiert nach %1</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Hide (%1)</source>
        <translation>Ausblenden (%1)</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>History of the day...</source>
        <translation>Verlauf des Tages ...</translation>
    </message>
    <message>
        <source>History...</source>
        <translation>Verlauf ...</translation>
    </message>
    <message>
        <source>Holds since</source>
        <translation>Gilt seit</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Feiertag</translation>
    </message>
    <message>
        <source>Holiday calendars of currencies</source>
        <translation>Feiertagskalender von Währungen</translation>
    </message>
    <message>
        <source>Holiday point</source>
        <translation>Einzelfeiertag</translation>
    </message>
    <message>
        <source>Holiday points</source>
        <translation>Einzelfeiertage</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Feiertage</translation>
    </message>
    <message>
        <source>Holidays, weekends and working days by exception</source>
        <translation>Feiertage, Wochenenden und Ausnahme-Arbeitstage</translation>
    </message>
    <message>
        <source>How many are closed</source>
        <translation>Wie viele geschlossen sind</translation>
    </message>
    <message>
        <source>Import a list</source>
        <translation>Liste importieren</translation>
    </message>
    <message>
        <source>Import of %1: %2</source>
        <translation>Import von %1: %2</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importieren ...</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>In %1</translation>
    </message>
    <message>
        <source>It belongs to the book of %1, not to that of %2</source>
        <translation>Sie gehört zum Regelwerk von %1, nicht zu dem von %2</translation>
    </message>
    <message>
        <source>It belongs to the books of %1, not to that of %2</source>
        <translation>Sie gehört zu den Regelwerken von %1, nicht zu dem von %2</translation>
    </message>
    <message>
        <source>It falls on a %1</source>
        <translation>Er fällt auf %1</translation>
    </message>
    <message>
        <source>It goes to its own date, not to %1</source>
        <translation>Sie geht auf ihr eigenes Datum, nicht auf %1</translation>
    </message>
    <message>
        <source>It has no date, so that nothing is assigned</source>
        <translation>Sie hat kein Datum, also wird nichts zugewiesen</translation>
    </message>
    <message>
        <source>It is dated for %1, on %2</source>
        <translation>Sie ist für %1 datiert, auf %2</translation>
    </message>
    <message>
        <source>It is not observed</source>
        <translation>Er wird nicht begangen</translation>
    </message>
    <message>
        <source>It moves to the next free day</source>
        <translation>Er rückt auf den nächsten freien Tag</translation>
    </message>
    <message>
        <source>It stands on %1 already</source>
        <translation>Sie steht schon auf %1</translation>
    </message>
    <message>
        <source>It stays there</source>
        <translation>Er bleibt dort</translation>
    </message>
    <message>
        <source>It was changed meanwhile</source>
        <translation>Es wurde inzwischen geändert</translation>
    </message>
    <message>
        <source>Item %1 of the list</source>
        <translation>Eintrag %1 der Liste</translation>
    </message>
    <message>
        <source>Its weekday is %1, and the day is a %2</source>
        <translation>Ihr Wochentag ist %1, und der Tag ist ein %2</translation>
    </message>
    <message>
        <source>JSON files</source>
        <translation>JSON-Dateien</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Beibehalten</translation>
    </message>
    <message>
        <source>Known ones</source>
        <translation>Bekannte</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Letzter</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>List only the rules of the calendar's currency</source>
        <translation>Nur die Regeln der Währung des Kalenders auflisten</translation>
    </message>
    <message>
        <source>Lists of days</source>
        <translation>Listen von Tagen</translation>
    </message>
    <message>
        <source>Look at</source>
        <translation>Zu beachten</translation>
    </message>
    <message>
        <source>Lose them</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Makes a calendar as a list of days in a file</source>
        <translation>Macht einen Kalender so, wie eine Liste von Tagen in einer Datei ist</translation>
    </message>
    <message>
        <source>Makes the selected days working days by exception, with one reason</source>
        <translation>Macht die ausgewählten Tage mit einem gemeinsamen Grund zu Ausnahme-Arbeitstagen</translation>
    </message>
    <message>
        <source>Makes the selected days working days by exception, without a reason</source>
        <translation>Macht die ausgewählten Tage ohne Begründung zu Ausnahme-Arbeitstagen</translation>
    </message>
    <message>
        <source>March</source>
        <translation>März</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Me</source>
        <translation>Ich</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlt</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name at least one currency, such as EUR, or ALL</source>
        <translation>Nennen Sie mindestens eine Währung wie EUR, oder ALL</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>New calendar</source>
        <translation>Neuer Kalender</translation>
    </message>
    <message>
        <source>New calendar %1</source>
        <translation>Neuer Kalender %1</translation>
    </message>
    <message numerus="yes">
        <source>Next try in %n seconds</source>
        <translation><numerusform>Nächster Versuch in %n Sekunde</numerusform><numerusform>Nächster Versuch in %n Sekunden</numerusform></translation>
    </message>
    <message>
        <source>Next year</source>
        <translation>Nächstes Jahr</translation>
    </message>
    <message>
        <source>No calendar</source>
        <translation>Kein Kalender</translation>
    </message>
    <message>
        <source>No calendar, or not prepared</source>
        <translation>Kein Kalender oder nicht vorbereitet</translation>
    </message>
    <message>
        <source>No currency has a calendar of %1</source>
        <translation>Keine Währung hat einen Kalender für %1</translation>
    </message>
    <message>
        <source>No day will be closed.</source>
        <translation>Kein Tag wird geschlossen.</translation>
    </message>
    <message>
        <source>No file was written. %1.</source>
        <translation>Es wurde keine Datei geschrieben. %1.</translation>
    </message>
    <message>
        <source>No money then</source>
        <translation>Dann kein Zahlungsmittel</translation>
    </message>
    <message>
        <source>No plan any more for: %1.</source>
        <translation>Nicht mehr geplant: %1.</translation>
    </message>
    <message>
        <source>No reason is given for the exception.</source>
        <translation>Für die Ausnahme ist kein Grund angegeben.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Not compared</source>
        <translation>Nicht verglichen</translation>
    </message>
    <message>
        <source>Not in the list</source>
        <translation>Nicht in der Liste</translation>
    </message>
    <message>
        <source>Not in the rule book: %1</source>
        <translation>Nicht im Regelwerk: %1</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Not prepared</source>
        <translation>Nicht vorbereitet</translation>
    </message>
    <message>
        <source>Not prepared: none of its days is closed</source>
        <translation>Nicht vorbereitet: Kein Tag ist geschlossen</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Nothing but weekends is added; "All days" shows them.</source>
        <translation>Nur Wochenenden kommen hinzu; „Alle Tage“ zeigt sie.</translation>
    </message>
    <message>
        <source>Nothing changes.</source>
        <translation>Nichts ändert sich.</translation>
    </message>
    <message>
        <source>Nothing could be read</source>
        <translation>Nichts konnte gelesen werden</translation>
    </message>
    <message>
        <source>Nothing is changed.</source>
        <translation>Nichts ist geändert.</translation>
    </message>
    <message>
        <source>Nothing is closed in %1 %2 yet. Prepare it now?</source>
        <translation>In %1 %2 ist noch nichts geschlossen. Jetzt vorbereiten?</translation>
    </message>
    <message>
        <source>Nothing is known: %1</source>
        <translation>Nichts ist bekannt: %1</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>Nichts zu beachten.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>Of %1 faults the first %2 are told.</source>
        <translation>Von %1 Fehlern werden die ersten %2 genannt.</translation>
    </message>
    <message>
        <source>Off a weekend it moves to Monday</source>
        <translation>Vom Wochenende rückt er auf Montag</translation>
    </message>
    <message>
        <source>On a closed day</source>
        <translation>An einem geschlossenen Tag</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>Einmal</translation>
    </message>
    <message>
        <source>Once, on %1</source>
        <translation>Einmal, am %1</translation>
    </message>
    <message>
        <source>Only %1 is on show.</source>
        <translation>Nur %1 ist zu sehen.</translation>
    </message>
    <message>
        <source>Only rules of this currency</source>
        <translation>Nur Regeln dieser Währung</translation>
    </message>
    <message>
        <source>Open calendars</source>
        <translation>Kalender öffnen</translation>
    </message>
    <message numerus="yes">
        <source>Open together on %n days</source>
        <translation><numerusform>Gemeinsam geöffnet an %n Tag</numerusform><numerusform>Gemeinsam geöffnet an %n Tagen</numerusform></translation>
    </message>
    <message>
        <source>Orthodox Easter Sunday %1</source>
        <translation>Orthodoxer Ostersonntag %1</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF-Dateien</translation>
    </message>
    <message>
        <source>PNG pictures</source>
        <translation>PNG-Bilder</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>Teilweise</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Plan of %1</source>
        <translation>Plan von %1</translation>
    </message>
    <message>
        <source>Plan year...</source>
        <translation>Jahr planen ...</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>Plan: %1</translation>
    </message>
    <message numerus="yes">
        <source>Plans of %n calendars</source>
        <translation><numerusform>Plan von %n Kalender</numerusform><numerusform>Pläne von %n Kalendern</numerusform></translation>
    </message>
    <message>
        <source>Prepare</source>
        <translation>Vorbereiten</translation>
    </message>
    <message>
        <source>Prepare all for %1...</source>
        <translation>Alle für %1 vorbereiten ...</translation>
    </message>
    <message>
        <source>Prepare all...</source>
        <translation>Alle vorbereiten ...</translation>
    </message>
    <message>
        <source>Prepared</source>
        <translation>Vorbereitet</translation>
    </message>
    <message numerus="yes">
        <source>Prepared %1: %n days</source>
        <translation><numerusform>%1 vorbereitet: %n Tag</numerusform><numerusform>%1 vorbereitet: %n Tage</numerusform></translation>
    </message>
    <message>
        <source>Prepared as published</source>
        <translation>Vorbereitet, soweit veröffentlicht</translation>
    </message>
    <message>
        <source>Prepared: %1, %2.</source>
        <translation>Vorbereitet: %1, %2.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Previous year</source>
        <translation>Voriges Jahr</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken ...</translation>
    </message>
    <message>
        <source>Prints the year</source>
        <translation>Druckt das Jahr</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Herausgeber</translation>
    </message>
    <message>
        <source>Readiness</source>
        <translation>Bereitschaft</translation>
    </message>
    <message>
        <source>Reading a calendar of %1 as of %2</source>
        <translation>Lesen eines Kalenders von %1, Stand %2</translation>
    </message>
    <message>
        <source>Reading a calendar of %1 as the entry %2 of the history left it</source>
        <translation>Lesen eines Kalenders von %1, wie ihn der Eintrag %2 des Verlaufs hinterließ</translation>
    </message>
    <message>
        <source>Reading the book of %1</source>
        <translation>Lesen des Regelwerks von %1</translation>
    </message>
    <message>
        <source>Reading the books</source>
        <translation>Lesen der Regelwerke</translation>
    </message>
    <message>
        <source>Reading the calendar %1 %2</source>
        <translation>Lesen des Kalenders %1 %2</translation>
    </message>
    <message>
        <source>Reading the calendars and the rule books</source>
        <translation>Lesen der Kalender und der Regelwerke</translation>
    </message>
    <message>
        <source>Reading the currencies</source>
        <translation>Lesen der Währungen</translation>
    </message>
    <message>
        <source>Reading the days of all calendars</source>
        <translation>Lesen der Tage aller Kalender</translation>
    </message>
    <message>
        <source>Reading the entry %1 of the history</source>
        <translation>Lesen des Eintrags %1 des Verlaufs</translation>
    </message>
    <message>
        <source>Reading the first day of the week</source>
        <translation>Lesen des ersten Tags der Woche</translation>
    </message>
    <message>
        <source>Reading the history</source>
        <translation>Lesen des Verlaufs</translation>
    </message>
    <message>
        <source>Reading the history of %1</source>
        <translation>Lesen des Verlaufs von %1</translation>
    </message>
    <message>
        <source>Reading the rules</source>
        <translation>Lesen der Regeln</translation>
    </message>
    <message>
        <source>Reading whether a calendar was changed</source>
        <translation>Lesen, ob ein Kalender geändert wurde</translation>
    </message>
    <message>
        <source>Reads the calendars and plans them anew</source>
        <translation>Liest die Kalender neu und plant sie neu</translation>
    </message>
    <message>
        <source>Reads the calendars anew</source>
        <translation>Liest die Kalender neu</translation>
    </message>
    <message>
        <source>Reads the history anew</source>
        <translation>Liest den Verlauf neu</translation>
    </message>
    <message>
        <source>Reason: %1</source>
        <translation>Grund: %1</translation>
    </message>
    <message>
        <source>Redid: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>Removed %1</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <source>Removed the convention of %1</source>
        <translation>Konvention von %1 entfernt</translation>
    </message>
    <message>
        <source>Removed the rule %1</source>
        <translation>Regel %1 entfernt</translation>
    </message>
    <message>
        <source>Removed the rule book of %1</source>
        <translation>Regelwerk von %1 entfernt</translation>
    </message>
    <message>
        <source>Removing the book of %1</source>
        <translation>Entfernen des Regelwerks von %1</translation>
    </message>
    <message>
        <source>Renamed the currency %1 (%2) to %3 (%4)</source>
        <translation>Währung %1 (%2) umbenannt in %3 (%4)</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>Ersetzt</translation>
    </message>
    <message>
        <source>Restore %1</source>
        <translation>%1 wiederherstellen</translation>
    </message>
    <message>
        <source>Restored %1</source>
        <translation>%1 wiederhergestellt</translation>
    </message>
    <message>
        <source>Restored the rule %1</source>
        <translation>Regel %1 wiederhergestellt</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Rule %1</source>
        <translation>Regel %1</translation>
    </message>
    <message>
        <source>Rule book</source>
        <translation>Regelwerk</translation>
    </message>
    <message>
        <source>Rule book of %1</source>
        <translation>Regelwerk von %1</translation>
    </message>
    <message>
        <source>Rule book of %1, rule %2</source>
        <translation>Regelwerk von %1, Regel %2</translation>
    </message>
    <message>
        <source>Rule book...</source>
        <translation>Regelwerk ...</translation>
    </message>
    <message>
        <source>Rule: %1</source>
        <translation>Regel: %1</translation>
    </message>
    <message>
        <source>Same day</source>
        <translation>Derselbe Tag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>Als PDF speichern ...</translation>
    </message>
    <message>
        <source>Save as picture</source>
        <translation>Als Bild speichern</translation>
    </message>
    <message>
        <source>Save as picture...</source>
        <translation>Als Bild speichern ...</translation>
    </message>
    <message>
        <source>Save the rule book of %1</source>
        <translation>Regelwerk von %1 speichern</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>Saved the rule book of %1</source>
        <translation>Regelwerk von %1 gespeichert</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Zweiter</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message numerus="yes">
        <source>Set the convention of %1: %n business days to spot</source>
        <translation><numerusform>Konvention von %1 gesetzt: %n Werktag bis zur Valuta</numerusform><numerusform>Konvention von %1 gesetzt: %n Arbeitstage bis zur Valuta</numerusform></translation>
    </message>
    <message>
        <source>Set the convention of %1: holidays of the dollar do not stop the count to spot</source>
        <translation>Konvention von %1 gesetzt: Feiertage des Dollars halten die Zählung bis zur Valuta nicht an</translation>
    </message>
    <message>
        <source>Set the convention of %1: holidays of the dollar stop the count to spot</source>
        <translation>Konvention von %1 gesetzt: Feiertage des Dollars halten die Zählung bis zur Valuta an</translation>
    </message>
    <message>
        <source>Set the currency %1 (%2)</source>
        <translation>Währung %1 (%2) gesetzt</translation>
    </message>
    <message>
        <source>Set the currency %1 (%2), money until %3</source>
        <translation>Währung %1 (%2) gesetzt, Zahlungsmittel bis %3</translation>
    </message>
    <message>
        <source>Set the currency %1 (%2), no money</source>
        <translation>Währung %1 (%2) gesetzt, kein Zahlungsmittel</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Soll sein</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 zeigen</translation>
    </message>
    <message>
        <source>Show %1 as it was at this moment:</source>
        <translation>%1 zeigen, Stand dieses Zeitpunkts:</translation>
    </message>
    <message>
        <source>Show Group &amp;Panel</source>
        <translation>Grup&amp;penleiste zeigen</translation>
    </message>
    <message>
        <source>Show older</source>
        <translation>Ältere zeigen</translation>
    </message>
    <message>
        <source>Show only the days that have what is typed</source>
        <translation>Nur die Tage zeigen, die das Getippte enthalten</translation>
    </message>
    <message>
        <source>Show only the rules that have what is typed</source>
        <translation>Nur die Regeln zeigen, die das Getippte enthalten</translation>
    </message>
    <message>
        <source>Show or hide the year at a glance beside the days</source>
        <translation>Das Jahr im Überblick neben den Tagen zeigen oder ausblenden</translation>
    </message>
    <message>
        <source>Show or hide why the day is what it is</source>
        <translation>Zeigen oder ausblenden, warum der Tag so ist, wie er ist</translation>
    </message>
    <message>
        <source>Show the rules</source>
        <translation>Regeln zeigen</translation>
    </message>
    <message>
        <source>Shows by which rules the days of the currency are planned</source>
        <translation>Zeigt, nach welchen Regeln die Tage der Währung geplant werden</translation>
    </message>
    <message>
        <source>Shows the days that stay as they are and all weekends, too</source>
        <translation>Zeigt auch die Tage, die bleiben, wie sie sind, und alle Wochenenden</translation>
    </message>
    <message>
        <source>Shows the year after</source>
        <translation>Zeigt das Jahr danach</translation>
    </message>
    <message>
        <source>Shows the year before</source>
        <translation>Zeigt das Jahr davor</translation>
    </message>
    <message>
        <source>Shows where the calendar differs from what it should be</source>
        <translation>Zeigt, wo der Kalender von dem abweicht, was er sein soll</translation>
    </message>
    <message>
        <source>Shows who changed the calendar and when, and undoes changes</source>
        <translation>Zeigt, wer den Kalender wann geändert hat, und macht Änderungen rückgängig</translation>
    </message>
    <message>
        <source>Shows who changed the day and when</source>
        <translation>Zeigt, wer den Tag wann geändert hat</translation>
    </message>
    <message>
        <source>Shows years of this and other currencies, and prints and saves them</source>
        <translation>Zeigt Jahre dieser und anderer Währungen, druckt und speichert sie</translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation>&amp;Aufsteigend sortieren</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>A&amp;bsteigend sortieren</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Nach %1 sortieren</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %1 of %n calendars; the others are as they were.</source>
        <translation><numerusform>Nach %1 von %n Kalender angehalten; die anderen sind, wie sie waren.</numerusform><numerusform>Nach %1 von %n Kalendern angehalten; die anderen sind, wie sie waren.</numerusform></translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabellen</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>Textdateien</translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation>Text: %1</translation>
    </message>
    <message>
        <source>That is undone already (%1, %2).</source>
        <translation>Das ist schon rückgängig gemacht (%1, %2).</translation>
    </message>
    <message>
        <source>The Calendars window is busy.</source>
        <translation>Das Kalenderfenster ist beschäftigt.</translation>
    </message>
    <message>
        <source>The book closes no weekday: without a rule of the kind weekday each Saturday and Sunday would be a working day</source>
        <translation>Das Regelwerk schließt keinen Wochentag: Ohne eine Regel der Art weekday wären alle Samstage und Sonntage Arbeitstage</translation>
    </message>
    <message>
        <source>The book holds from %1 on, which is not %2</source>
        <translation>Das Regelwerk gilt ab %1, und das ist nicht %2</translation>
    </message>
    <message>
        <source>The book holds since "%1", which is no year</source>
        <translation>Das Regelwerk gilt seit „%1“, und das ist kein Jahr</translation>
    </message>
    <message>
        <source>The book names no document</source>
        <translation>Das Regelwerk nennt kein Dokument</translation>
    </message>
    <message>
        <source>The book names no publisher</source>
        <translation>Das Regelwerk nennt keinen Herausgeber</translation>
    </message>
    <message>
        <source>The book of %1 cannot be read: %2</source>
        <translation>Das Regelwerk von %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The book of %1 cannot be used: %2</source>
        <translation>Das Regelwerk von %1 ist nicht verwendbar: %2</translation>
    </message>
    <message>
        <source>The book of %1 cannot be used: %2.</source>
        <translation>Das Regelwerk von %1 ist nicht verwendbar: %2.</translation>
    </message>
    <message>
        <source>The book of %1 does not close each %2</source>
        <translation>Das Regelwerk von %1 schließt nicht jeden %2</translation>
    </message>
    <message>
        <source>The book of %1 has it on %2</source>
        <translation>Das Regelwerk von %1 hat ihn am %2</translation>
    </message>
    <message numerus="yes">
        <source>The book of %1 holds from %2 on, and calendars of earlier years are compared with no plan.</source>
        <translation><numerusform>Das Regelwerk von %1 gilt ab %2, und ein Kalender eines früheren Jahres wird mit keinem Plan verglichen.</numerusform><numerusform>Das Regelwerk von %1 gilt ab %2, und Kalender früherer Jahre werden mit keinem Plan verglichen.</numerusform></translation>
    </message>
    <message>
        <source>The book of %1 holds from %2 on, so it does not tell what %3 should be</source>
        <translation>Das Regelwerk von %1 gilt ab %2, also sagt es nicht, was %3 sein soll</translation>
    </message>
    <message>
        <source>The book of %1 is saved. Its calendars stay as they are until their years are planned again.</source>
        <translation>Das Regelwerk von %1 ist gespeichert. Die Kalender bleiben, wie sie sind, bis ihre Jahre neu geplant werden.</translation>
    </message>
    <message>
        <source>The calendar exists already</source>
        <translation>Den Kalender gibt es schon</translation>
    </message>
    <message>
        <source>The celebration %1.</source>
        <translation>Der Festtag %1.</translation>
    </message>
    <message>
        <source>The clock was set forward then, and never showed this time.</source>
        <translation>Die Uhr wurde damals vorgestellt und zeigte diese Zeit nie.</translation>
    </message>
    <message>
        <source>The comment has %1 characters; it may have %2 at most</source>
        <translation>Der Kommentar hat %1 Zeichen; höchstens %2 sind erlaubt</translation>
    </message>
    <message>
        <source>The comment of the days has %1 characters; it may have %2 at most</source>
        <translation>Der Kommentar der Tage hat %1 Zeichen; höchstens %2 sind erlaubt</translation>
    </message>
    <message>
        <source>The database could not be read: %1</source>
        <translation>Die Datenbank konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The database does not know the calendar</source>
        <translation>Die Datenbank kennt den Kalender nicht</translation>
    </message>
    <message>
        <source>The database does not know the currency</source>
        <translation>Die Datenbank kennt die Währung nicht</translation>
    </message>
    <message>
        <source>The database does not know the rule</source>
        <translation>Die Datenbank kennt die Regel nicht</translation>
    </message>
    <message>
        <source>The database gives the days of a calendar in a form that this program does not know, at byte %1 of their text</source>
        <translation>Die Datenbank gibt die Tage eines Kalenders in einer Form, die dieses Programm nicht kennt, bei Byte %1 des Textes</translation>
    </message>
    <message>
        <source>The database refused it, with the number %1</source>
        <translation>Die Datenbank hat es mit der Nummer %1 abgelehnt</translation>
    </message>
    <message>
        <source>The date of %1 in %2 is not known: %3</source>
        <translation>Das Datum von %1 in %2 ist nicht bekannt: %3</translation>
    </message>
    <message>
        <source>The dates of this year are not known yet</source>
        <translation>Die Daten dieses Jahres sind noch nicht bekannt</translation>
    </message>
    <message>
        <source>The day is a working day by exception, and would be closed</source>
        <translation>Der Tag ist Ausnahme-Arbeitstag und würde geschlossen</translation>
    </message>
    <message>
        <source>The default database</source>
        <translation>Die Standarddatenbank</translation>
    </message>
    <message>
        <source>The document has %1 characters; it may have %2 at most</source>
        <translation>Das Dokument hat %1 Zeichen; höchstens %2 sind erlaubt</translation>
    </message>
    <message>
        <source>The expression has %1 characters; it may have %2 at most</source>
        <translation>Der Ausdruck hat %1 Zeichen; höchstens %2 sind erlaubt</translation>
    </message>
    <message>
        <source>The first is %1</source>
        <translation>Der erste ist %1</translation>
    </message>
    <message>
        <source>The history does not keep what was there before: the call is older than its upgrade.</source>
        <translation>Der Verlauf enthält nicht, was vorher da war: Der Aufruf ist älter als die Aktualisierung.</translation>
    </message>
    <message>
        <source>The history does not reach back so far.</source>
        <translation>Der Verlauf reicht nicht so weit zurück.</translation>
    </message>
    <message>
        <source>The history has no entry %1.</source>
        <translation>Der Verlauf hat keinen Eintrag %1.</translation>
    </message>
    <message>
        <source>The holiday point %1.</source>
        <translation>Der Einzelfeiertag %1.</translation>
    </message>
    <message>
        <source>The last year is before the first one.</source>
        <translation>Das letzte Jahr liegt vor dem ersten.</translation>
    </message>
    <message>
        <source>The list has %1 bytes; it may have %2 at most</source>
        <translation>Die Liste hat %1 Bytes; höchstens %2 sind erlaubt</translation>
    </message>
    <message>
        <source>The name has %1 characters; it may have %2 at most</source>
        <translation>Der Name hat %1 Zeichen; höchstens %2 sind erlaubt</translation>
    </message>
    <message>
        <source>The name of the file tells its format and ends in .ics, .csv, .json or .txt</source>
        <translation>Der Name der Datei bestimmt ihr Format und endet auf .ics, .csv, .json oder .txt</translation>
    </message>
    <message>
        <source>The name of the moved day has %1 characters; it may have %2 at most</source>
        <translation>Der Name des verschobenen Tages hat %1 Zeichen; höchstens %2 sind erlaubt</translation>
    </message>
    <message>
        <source>The newest change of %1 is "%2" (%3, %4). Undo that first.</source>
        <translation>Die neueste Änderung von %1 ist „%2“ (%3, %4). Machen Sie die zuerst rückgängig.</translation>
    </message>
    <message>
        <source>The newest change of the same is "%1" (%2, %3). Undo that first.</source>
        <translation>Die neueste Änderung desselben ist „%1“ (%2, %3). Machen Sie die zuerst rückgängig.</translation>
    </message>
    <message>
        <source>The plan does not know this year's dates of %1</source>
        <translation>Der Plan kennt die diesjährigen Daten von %1 nicht</translation>
    </message>
    <message>
        <source>The plans of %1 stay as they are.</source>
        <translation>Die Pläne von %1 bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>The publisher has %1 characters; it may have %2 at most</source>
        <translation>Der Herausgeber hat %1 Zeichen; höchstens %2 sind erlaubt</translation>
    </message>
    <message>
        <source>The review has found nothing</source>
        <translation>Die Prüfung hat nichts gefunden</translation>
    </message>
    <message>
        <source>The rule "%1" is %2, and the plan needs %3 of that name; rename it before</source>
        <translation>Die Regel „%1“ ist %2, und der Plan braucht %3 dieses Namens; benennen Sie sie vorher um</translation>
    </message>
    <message>
        <source>The rule "%1" is removed; restore it before</source>
        <translation>Die Regel „%1“ ist entfernt; stellen Sie sie vorher wieder her</translation>
    </message>
    <message>
        <source>The rule %1 is removed. Restore it in the list of rules, or take another name.</source>
        <translation>Die Regel %1 ist entfernt. Stellen Sie sie in der Liste der Regeln wieder her, oder nehmen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The rule %1, "%2": %3</source>
        <translation>Die Regel %1, „%2“: %3</translation>
    </message>
    <message>
        <source>The rule %1: %2</source>
        <translation>Die Regel %1: %2</translation>
    </message>
    <message>
        <source>The rule book of %1 does not get the days, so that the board will call them differences. %2.</source>
        <translation>Das Regelwerk von %1 bekommt die Tage nicht, also nennt die Übersicht sie Abweichungen. %2.</translation>
    </message>
    <message>
        <source>The rule book of %1 does not get the holiday, so that the board will call it a difference. %2.</source>
        <translation>Das Regelwerk von %1 bekommt den Feiertag nicht, also nennt ihn die Übersicht eine Abweichung. %2.</translation>
    </message>
    <message>
        <source>The rule book of %1 has changes that are not saved. Lose them?</source>
        <translation>Das Regelwerk von %1 hat Änderungen, die nicht gespeichert sind. Verwerfen?</translation>
    </message>
    <message numerus="yes">
        <source>The rule book of %1 has got %n days.</source>
        <translation><numerusform>Das Regelwerk von %1 hat %n Tag bekommen.</numerusform><numerusform>Das Regelwerk von %1 hat %n Tage bekommen.</numerusform></translation>
    </message>
    <message>
        <source>The same date each year</source>
        <translation>Dasselbe Datum jedes Jahr</translation>
    </message>
    <message>
        <source>The server does not answer. Nothing can be read or changed until it does.</source>
        <translation>Der Server antwortet nicht. Bis dahin kann nichts gelesen oder geändert werden.</translation>
    </message>
    <message>
        <source>The year cannot be read: %1</source>
        <translation>Das Jahr kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>There is a rule of that name already</source>
        <translation>Es gibt schon eine Regel dieses Namens</translation>
    </message>
    <message>
        <source>There is no %1 in %2.</source>
        <translation>Es gibt keinen %1 in %2.</translation>
    </message>
    <message>
        <source>There is no %1: the month has %2 days.</source>
        <translation>Es gibt keinen %1: Der Monat hat %2 Tage.</translation>
    </message>
    <message>
        <source>There is no calendar %1 %2, so nothing is known of its days</source>
        <translation>Es gibt keinen Kalender %1 %2, also ist über seine Tage nichts bekannt</translation>
    </message>
    <message>
        <source>There is no calendar and no rule book</source>
        <translation>Es gibt keinen Kalender und kein Regelwerk</translation>
    </message>
    <message>
        <source>There is no calendar and no rule book.</source>
        <translation>Es gibt keinen Kalender und kein Regelwerk.</translation>
    </message>
    <message>
        <source>There is no calendar.</source>
        <translation>Es gibt keinen Kalender.</translation>
    </message>
    <message>
        <source>There is no change of %1 of yours to undo.</source>
        <translation>Von Ihnen gibt es keine Änderung von %1, die rückgängig zu machen wäre.</translation>
    </message>
    <message>
        <source>There is no currency %1</source>
        <translation>Es gibt keine Währung %1</translation>
    </message>
    <message>
        <source>There is no day %1.</source>
        <translation>Es gibt keinen Tag %1.</translation>
    </message>
    <message>
        <source>There is no such calendar</source>
        <translation>Es gibt keinen solchen Kalender</translation>
    </message>
    <message>
        <source>There now</source>
        <translation>Jetzt dort</translation>
    </message>
    <message>
        <source>There now: %1</source>
        <translation>Jetzt dort: %1</translation>
    </message>
    <message>
        <source>There was no such calendar then.</source>
        <translation>Damals gab es keinen solchen Kalender.</translation>
    </message>
    <message>
        <source>Third</source>
        <translation>Dritter</translation>
    </message>
    <message>
        <source>This calendar was changed since it was read.</source>
        <translation>Dieser Kalender wurde geändert, seit er gelesen wurde.</translation>
    </message>
    <message>
        <source>This calendar was removed.</source>
        <translation>Dieser Kalender wurde entfernt.</translation>
    </message>
    <message>
        <source>This cannot be imported, and nothing was changed.</source>
        <translation>Das kann nicht importiert werden, und nichts wurde geändert.</translation>
    </message>
    <message>
        <source>This cannot be undone: a later change is of the same, or the history does not keep what was there before.</source>
        <translation>Das kann nicht rückgängig gemacht werden: Eine spätere Änderung betrifft dasselbe, oder der Verlauf enthält nicht, was vorher da war.</translation>
    </message>
    <message>
        <source>This is no date. Write a day and a month without a year, such as %1 or %2.</source>
        <translation>Das ist kein Datum. Schreiben Sie Tag und Monat ohne Jahr, zum Beispiel %1 oder %2.</translation>
    </message>
    <message>
        <source>This is no date. Write one such as %1 or %2 %3.</source>
        <translation>Das ist kein Datum. Schreiben Sie eines wie %1 oder %2 %3.</translation>
    </message>
    <message>
        <source>This is no time. Write one such as 14:05 or 14:05:31.</source>
        <translation>Das ist keine Uhrzeit. Schreiben Sie eine wie 14:05 oder 14:05:31.</translation>
    </message>
    <message>
        <source>This moment is still to come.</source>
        <translation>Dieser Zeitpunkt kommt erst noch.</translation>
    </message>
    <message>
        <source>This text has %1 characters; %2 at most can be stored.</source>
        <translation>Dieser Text hat %1 Zeichen; höchstens %2 können gespeichert werden.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>To be changed (%1): %2</source>
        <translation>Zu ändern (%1): %2</translation>
    </message>
    <message>
        <source>To be changed: %1</source>
        <translation>Zu ändern: %1</translation>
    </message>
    <message>
        <source>To be removed (%1): %2</source>
        <translation>Zu entfernen (%1): %2</translation>
    </message>
    <message>
        <source>To be removed: %1</source>
        <translation>Zu entfernen: %1</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Try now</source>
        <translation>Jetzt versuchen</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Type what the holiday is called, or choose one that is known.</source>
        <translation>Schreiben Sie, wie der Feiertag heißt, oder wählen Sie einen bekannten.</translation>
    </message>
    <message>
        <source>Undid a change</source>
        <translation>Eine Änderung rückgängig gemacht</translation>
    </message>
    <message>
        <source>Undid a change of %1</source>
        <translation>Eine Änderung von %1 rückgängig gemacht</translation>
    </message>
    <message numerus="yes">
        <source>Undid the changes of %n calendars</source>
        <translation><numerusform>Änderungen von %n Kalender rückgängig gemacht</numerusform><numerusform>Änderungen von %n Kalendern rückgängig gemacht</numerusform></translation>
    </message>
    <message>
        <source>Undid: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo a change</source>
        <translation>Eine Änderung rückgängig machen</translation>
    </message>
    <message>
        <source>Undo a change of %1</source>
        <translation>Eine Änderung von %1 rückgängig machen</translation>
    </message>
    <message numerus="yes">
        <source>Undo in %1: %2, and the %n other changes that were made in the same step?</source>
        <translation><numerusform>In %1 rückgängig machen: %2, und die %n andere Änderung desselben Schritts?</numerusform><numerusform>In %1 rückgängig machen: %2, und die %n anderen Änderungen desselben Schritts?</numerusform></translation>
    </message>
    <message>
        <source>Undo in %1: %2?</source>
        <translation>In %1 rückgängig machen: %2?</translation>
    </message>
    <message>
        <source>Undoes the last change that was made in a year planner, in all its calendars and rule books</source>
        <translation>Macht die letzte Änderung, die in einem Jahresplaner gemacht wurde, in allen ihren Kalendern und Regelwerken rückgängig</translation>
    </message>
    <message>
        <source>Undoes your last change of this calendar</source>
        <translation>Macht Ihre letzte Änderung dieses Kalenders rückgängig</translation>
    </message>
    <message>
        <source>Undoing "%1"</source>
        <translation>Rückgängigmachen von „%1“</translation>
    </message>
    <message>
        <source>Undoing in %1: %2</source>
        <translation>Rückgängigmachen in %1: %2</translation>
    </message>
    <message>
        <source>Undoing the entry %1</source>
        <translation>Rückgängigmachen des Eintrags %1</translation>
    </message>
    <message>
        <source>Undoing the plan</source>
        <translation>Rückgängigmachen des Plans</translation>
    </message>
    <message>
        <source>Undoing the plan of %1, %2 of %3.</source>
        <translation>Der Plan von %1 wird rückgängig gemacht, %2 von %3.</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Wochentag</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Wochentage</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Wochenende</translation>
    </message>
    <message>
        <source>Weekends only</source>
        <translation>Nur Wochenenden</translation>
    </message>
    <message>
        <source>Weekends only: %1</source>
        <translation>Nur Wochenenden: %1</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>What cannot be read in the list will stand here</source>
        <translation>Was in der Liste nicht lesbar ist, steht dann hier</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>Was geschieht</translation>
    </message>
    <message>
        <source>What is to be known</source>
        <translation>Was zu wissen ist</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Was falsch ist</translation>
    </message>
    <message>
        <source>What stands here may be out of date, for the database could not be read: %1</source>
        <translation>Was hier steht, kann veraltet sein, denn die Datenbank konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>What the list would change is shown before anything is changed.</source>
        <translation>Was die Liste ändern würde, wird gezeigt, bevor etwas geändert wird.</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Was getan wurde</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>When moved</source>
        <translation>Wenn verschoben</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Wer</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Warum</translation>
    </message>
    <message>
        <source>Working day</source>
        <translation>Arbeitstag</translation>
    </message>
    <message>
        <source>Working day by exception</source>
        <translation>Ausnahme-Arbeitstag</translation>
    </message>
    <message>
        <source>Writes calendars to a file for other programs</source>
        <translation>Schreibt Kalender für andere Programme in eine Datei</translation>
    </message>
    <message>
        <source>Writes the year into a PNG file</source>
        <translation>Schreibt das Jahr in eine PNG-Datei</translation>
    </message>
    <message>
        <source>Writes the year into a file for reading and printing</source>
        <translation>Schreibt das Jahr in eine Datei zum Lesen und Drucken</translation>
    </message>
    <message>
        <source>Writing the book of %1</source>
        <translation>Schreiben des Regelwerks von %1</translation>
    </message>
    <message>
        <source>Written by hand</source>
        <translation>Von Hand geschrieben</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Year plan</source>
        <translation>Jahresplan</translation>
    </message>
    <message>
        <source>Year plan...</source>
        <translation>Jahresplan ...</translation>
    </message>
    <message>
        <source>Year planner</source>
        <translation>Jahresplaner</translation>
    </message>
    <message>
        <source>Year planner - %1</source>
        <translation>Jahresplaner – %1</translation>
    </message>
    <message>
        <source>Year planner...</source>
        <translation>Jahresplaner ...</translation>
    </message>
    <message>
        <source>a %1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>a UTC offset -12:00 to +14:00</source>
        <translation>ein UTC-Versatz -12:00 bis +14:00</translation>
    </message>
    <message>
        <source>a celebration</source>
        <translation>ein Festtag</translation>
    </message>
    <message>
        <source>a comma or the end</source>
        <translation>ein Komma oder das Ende</translation>
    </message>
    <message>
        <source>a date such as 05-18, easter or 4th Thursday of 11</source>
        <translation>ein Datum wie 05-18, easter oder 4th Thursday of 11</translation>
    </message>
    <message>
        <source>a date such as 12-25, easter-2 or 1st Monday of 05</source>
        <translation>ein Datum wie 12-25, easter-2 oder 1st Monday of 05</translation>
    </message>
    <message>
        <source>a date that follows at most %1 weekdays</source>
        <translation>ein Datum, das höchstens %1 Wochentagen folgt</translation>
    </message>
    <message>
        <source>a day between two holidays</source>
        <translation>ein Tag zwischen zwei Feiertagen</translation>
    </message>
    <message>
        <source>a day of the month</source>
        <translation>ein Tag des Monats</translation>
    </message>
    <message>
        <source>a day of the table %1</source>
        <translation>ein Tag der Tabelle %1</translation>
    </message>
    <message>
        <source>a day that is not known yet</source>
        <translation>ein Tag, der noch nicht bekannt ist</translation>
    </message>
    <message>
        <source>a holiday point</source>
        <translation>ein Einzelfeiertag</translation>
    </message>
    <message>
        <source>a later call changed the same, or the history does not reach there</source>
        <translation>ein späterer Aufruf hat dasselbe geändert, oder der Verlauf reicht nicht so weit</translation>
    </message>
    <message>
        <source>a month 01 to 12</source>
        <translation>ein Monat 01 bis 12</translation>
    </message>
    <message>
        <source>a month 01 to 12 (a date is MM-DD or YYYY-MM-DD)</source>
        <translation>ein Monat 01 bis 12 (ein Datum ist MM-DD oder YYYY-MM-DD)</translation>
    </message>
    <message>
        <source>a move, else not observed, from, to, only, not or the end</source>
        <translation>eine Verschiebung, else not observed, from, to, only, not oder das Ende</translation>
    </message>
    <message>
        <source>a new calendar, %1</source>
        <translation>ein neuer Kalender, %1</translation>
    </message>
    <message>
        <source>a number of days up to %1</source>
        <translation>eine Zahl von Tagen bis %1</translation>
    </message>
    <message>
        <source>a point</source>
        <translation>ein Einzelfeiertag</translation>
    </message>
    <message>
        <source>a removed rule has that name</source>
        <translation>eine entfernte Regel hat diesen Namen</translation>
    </message>
    <message>
        <source>a rule without a name</source>
        <translation>eine Regel ohne Namen</translation>
    </message>
    <message>
        <source>a value is missing, malformed or out of range</source>
        <translation>ein Wert fehlt, ist falsch geschrieben oder liegt außerhalb der Grenzen</translation>
    </message>
    <message>
        <source>a weekday</source>
        <translation>ein Wochentag</translation>
    </message>
    <message>
        <source>a weekday holiday</source>
        <translation>ein wöchentlicher Feiertag</translation>
    </message>
    <message>
        <source>a weekday or free day</source>
        <translation>ein Wochentag oder free day</translation>
    </message>
    <message>
        <source>a weekday or taken</source>
        <translation>ein Wochentag oder taken</translation>
    </message>
    <message>
        <source>a weekday, next or previous</source>
        <translation>ein Wochentag, next oder previous</translation>
    </message>
    <message>
        <source>a working day</source>
        <translation>ein Arbeitstag</translation>
    </message>
    <message>
        <source>a working day%1</source>
        <translation>ein Arbeitstag%1</translation>
    </message>
    <message>
        <source>a year %1 to %2</source>
        <translation>ein Jahr %1 bis %2</translation>
    </message>
    <message>
        <source>a year from %1 on</source>
        <translation>ein Jahr ab %1</translation>
    </message>
    <message>
        <source>add</source>
        <translation>hinzufügen</translation>
    </message>
    <message>
        <source>after</source>
        <translation>nach</translation>
    </message>
    <message>
        <source>after or before</source>
        <translation>after oder before</translation>
    </message>
    <message>
        <source>all closed: %1</source>
        <translation>alle geschlossen: %1</translation>
    </message>
    <message>
        <source>all open</source>
        <translation>alle geöffnet</translation>
    </message>
    <message>
        <source>another holiday</source>
        <translation>einen anderen Feiertag</translation>
    </message>
    <message>
        <source>as in the list%1</source>
        <translation>wie in der Liste%1</translation>
    </message>
    <message>
        <source>as planned%1</source>
        <translation>wie geplant%1</translation>
    </message>
    <message>
        <source>as planned: %1</source>
        <translation>wie geplant: %1</translation>
    </message>
    <message>
        <source>ascending</source>
        <translation>aufsteigend</translation>
    </message>
    <message>
        <source>autumnal</source>
        <translation>Herbst</translation>
    </message>
    <message>
        <source>before</source>
        <translation>vor</translation>
    </message>
    <message>
        <source>celebration</source>
        <translation>Festtag</translation>
    </message>
    <message>
        <source>certain years</source>
        <translation>bestimmten Jahren</translation>
    </message>
    <message>
        <source>closed: %1</source>
        <translation>geschlossen: %1</translation>
    </message>
    <message>
        <source>code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>collapsed</source>
        <translation>zugeklappt</translation>
    </message>
    <message>
        <source>comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>dates</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>days to spot</source>
        <translation>Tage bis zur Valuta</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>absteigend</translation>
    </message>
    <message>
        <source>document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>eight</source>
        <translation>acht</translation>
    </message>
    <message>
        <source>eleven</source>
        <translation>elf</translation>
    </message>
    <message>
        <source>ever</source>
        <translation>jemals</translation>
    </message>
    <message>
        <source>every %1</source>
        <translation>jeder %1</translation>
    </message>
    <message>
        <source>exception</source>
        <translation>Ausnahme</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>aufgeklappt</translation>
    </message>
    <message>
        <source>fifth</source>
        <translation>fünfte</translation>
    </message>
    <message>
        <source>first</source>
        <translation>erste</translation>
    </message>
    <message>
        <source>five</source>
        <translation>fünf</translation>
    </message>
    <message>
        <source>for a reason that this program does not know</source>
        <translation>aus einem Grund, den dieses Programm nicht kennt</translation>
    </message>
    <message>
        <source>four</source>
        <translation>vier</translation>
    </message>
    <message>
        <source>fourth</source>
        <translation>vierte</translation>
    </message>
    <message numerus="yes">
        <source>gets them as dates of their own</source>
        <translation><numerusform>bekommt ihn als eigenes Datum</numerusform><numerusform>bekommt sie als eigene Daten</numerusform></translation>
    </message>
    <message>
        <source>has something else there, and stays as it is</source>
        <translation>hat dort etwas anderes und bleibt, wie es ist</translation>
    </message>
    <message>
        <source>has the day already</source>
        <translation>hat den Tag schon</translation>
    </message>
    <message>
        <source>holiday point</source>
        <translation>Einzelfeiertag</translation>
    </message>
    <message numerus="yes">
        <source>in %n days</source>
        <translation><numerusform>in %n Tag</numerusform><numerusform>in %n Tagen</numerusform></translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>unvollständig</translation>
    </message>
    <message>
        <source>is %1 and should be %2</source>
        <translation>ist %1 und soll %2 sein</translation>
    </message>
    <message>
        <source>is %1, which is on a %2 in every other year</source>
        <translation>ist %1, in jedem anderen Jahr an einem %2</translation>
    </message>
    <message>
        <source>is %1, whose date is %2</source>
        <translation>ist %1, dessen Datum %2 ist</translation>
    </message>
    <message>
        <source>is a working day by exception, "%1", where the plan has %2</source>
        <translation>ist Ausnahme-Arbeitstag, „%1“, wo der Plan %2 hat</translation>
    </message>
    <message>
        <source>is a working day by exception, without a reason</source>
        <translation>ist Ausnahme-Arbeitstag, ohne Grund</translation>
    </message>
    <message>
        <source>is a working day by exception, without a reason, and should be %1</source>
        <translation>ist Ausnahme-Arbeitstag, ohne Grund, und soll %1 sein</translation>
    </message>
    <message>
        <source>is closed</source>
        <translation>ist geschlossen</translation>
    </message>
    <message>
        <source>is closed, but the rule book has %1 there</source>
        <translation>ist geschlossen, aber das Regelwerk hat dort %1</translation>
    </message>
    <message>
        <source>is closed; the exception goes</source>
        <translation>ist geschlossen; die Ausnahme entfällt</translation>
    </message>
    <message>
        <source>is closed; the exception goes, which has opened nothing</source>
        <translation>ist geschlossen; die Ausnahme entfällt, die nichts geöffnet hat</translation>
    </message>
    <message>
        <source>it exists already</source>
        <translation>es gibt ihn schon</translation>
    </message>
    <message>
        <source>it was changed meanwhile</source>
        <translation>es wurde inzwischen geändert</translation>
    </message>
    <message>
        <source>keep</source>
        <translation>behalten</translation>
    </message>
    <message>
        <source>kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>last</source>
        <translation>letzte</translation>
    </message>
    <message>
        <source>last day as money</source>
        <translation>letzter Tag als Zahlungsmittel</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>line %1 of %2</source>
        <translation>Zeile %1 von %2</translation>
    </message>
    <message>
        <source>minutes 00 to 59</source>
        <translation>Minuten 00 bis 59</translation>
    </message>
    <message>
        <source>money</source>
        <translation>Zahlungsmittel</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>name of a moved day</source>
        <translation>Name eines verschobenen Tages</translation>
    </message>
    <message>
        <source>nine</source>
        <translation>neun</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>no calendar</source>
        <translation>kein Kalender</translation>
    </message>
    <message>
        <source>no calendar is made</source>
        <translation>kein Kalender wird angelegt</translation>
    </message>
    <message>
        <source>no calendar of %1</source>
        <translation>kein Kalender von %1</translation>
    </message>
    <message>
        <source>no day</source>
        <translation>kein Tag</translation>
    </message>
    <message>
        <source>no day set</source>
        <translation>kein Tag gesetzt</translation>
    </message>
    <message>
        <source>no money</source>
        <translation>kein Zahlungsmittel</translation>
    </message>
    <message>
        <source>no plan</source>
        <translation>kein Plan</translation>
    </message>
    <message>
        <source>no warnings</source>
        <translation>keine Warnungen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>not prepared</source>
        <translation>nicht vorbereitet</translation>
    </message>
    <message>
        <source>not prepared: %1</source>
        <translation>nicht vorbereitet: %1</translation>
    </message>
    <message>
        <source>nothing: there is no such calendar. Prepare the year first</source>
        <translation>nichts: Es gibt keinen solchen Kalender. Bereiten Sie zuerst das Jahr vor</translation>
    </message>
    <message>
        <source>of an unknown type</source>
        <translation>von unbekannter Art</translation>
    </message>
    <message>
        <source>on %1</source>
        <translation>am %1</translation>
    </message>
    <message>
        <source>on or after</source>
        <translation>am oder nach</translation>
    </message>
    <message>
        <source>on or before</source>
        <translation>am oder vor</translation>
    </message>
    <message>
        <source>on the day itself</source>
        <translation>am Tag selbst</translation>
    </message>
    <message>
        <source>one</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>one of 1st, 2nd, 3rd, 4th, 5th and last</source>
        <translation>1st, 2nd, 3rd, 4th, 5th oder last</translation>
    </message>
    <message>
        <source>one of on or after, after, on or before and before</source>
        <translation>on or after, after, on or before oder before</translation>
    </message>
    <message>
        <source>only, not or the end</source>
        <translation>only, not oder das Ende</translation>
    </message>
    <message>
        <source>open as far as known</source>
        <translation>geöffnet, soweit bekannt</translation>
    </message>
    <message numerus="yes">
        <source>open together on %n days</source>
        <translation><numerusform>gemeinsam geöffnet an %n Tag</numerusform><numerusform>gemeinsam geöffnet an %n Tagen</numerusform></translation>
    </message>
    <message>
        <source>publisher</source>
        <translation>Herausgeber</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>remove</source>
        <translation>entfernen</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>entfernt</translation>
    </message>
    <message>
        <source>replace</source>
        <translation>ersetzen</translation>
    </message>
    <message>
        <source>rule %1</source>
        <translation>Regel %1</translation>
    </message>
    <message>
        <source>second</source>
        <translation>zweite</translation>
    </message>
    <message>
        <source>seven</source>
        <translation>sieben</translation>
    </message>
    <message>
        <source>should be %1: %2</source>
        <translation>soll %1 sein: %2</translation>
    </message>
    <message>
        <source>should be an ordinary working day%1</source>
        <translation>soll ein gewöhnlicher Arbeitstag sein%1</translation>
    </message>
    <message>
        <source>since</source>
        <translation>seit</translation>
    </message>
    <message>
        <source>six</source>
        <translation>sechs</translation>
    </message>
    <message>
        <source>something else has that name already</source>
        <translation>etwas anderes hat diesen Namen schon</translation>
    </message>
    <message>
        <source>sorted ascending</source>
        <translation>aufsteigend sortiert</translation>
    </message>
    <message>
        <source>sorted descending</source>
        <translation>absteigend sortiert</translation>
    </message>
    <message numerus="yes">
        <source>stays as it is: differences on the board</source>
        <translation><numerusform>bleibt, wie es ist: eine Abweichung in der Übersicht</numerusform><numerusform>bleibt, wie es ist: Abweichungen in der Übersicht</numerusform></translation>
    </message>
    <message>
        <source>stays as it is: it is closed already</source>
        <translation>bleibt, wie es ist: Es ist schon geschlossen</translation>
    </message>
    <message>
        <source>stays open</source>
        <translation>bleibt geöffnet</translation>
    </message>
    <message>
        <source>stopped by holidays of the dollar</source>
        <translation>von Feiertagen des Dollars angehalten</translation>
    </message>
    <message>
        <source>ten</source>
        <translation>zehn</translation>
    </message>
    <message>
        <source>the %1</source>
        <translation>dem %1</translation>
    </message>
    <message>
        <source>the %1 %2 of %3 %4</source>
        <translation>dem %1 %2 im %3 %4</translation>
    </message>
    <message>
        <source>the book has no day of that year yet</source>
        <translation>das Regelwerk hat noch keinen Tag dieses Jahres</translation>
    </message>
    <message>
        <source>the currency is unknown, or is no money in that year</source>
        <translation>die Währung ist unbekannt oder in diesem Jahr kein Zahlungsmittel</translation>
    </message>
    <message>
        <source>the day of the %1 equinox %2 at UTC%3</source>
        <translation>dem Tag der %1-Tagundnachtgleiche %2 bei UTC%3</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>das Ende</translation>
    </message>
    <message>
        <source>the end of at most %1 moves</source>
        <translation>das Ende von höchstens %1 Verschiebungen</translation>
    </message>
    <message>
        <source>the name of a table</source>
        <translation>der Name einer Tabelle</translation>
    </message>
    <message>
        <source>the name of a table, of letters, digits and single hyphens,</source>
        <translation>der Name einer Tabelle, aus Buchstaben, Ziffern und einzelnen Bindestrichen,</translation>
    </message>
    <message>
        <source>the next %1</source>
        <translation>den nächsten %1</translation>
    </message>
    <message>
        <source>the next free day</source>
        <translation>den nächsten freien Tag</translation>
    </message>
    <message>
        <source>the previous %1</source>
        <translation>den vorigen %1</translation>
    </message>
    <message>
        <source>the previous free day</source>
        <translation>den vorigen freien Tag</translation>
    </message>
    <message>
        <source>the table %1 reaches from %2 to %3</source>
        <translation>die Tabelle %1 reicht von %2 bis %3</translation>
    </message>
    <message>
        <source>there is no such calendar</source>
        <translation>es gibt keinen solchen Kalender</translation>
    </message>
    <message>
        <source>there is no such rule</source>
        <translation>es gibt keine solche Regel</translation>
    </message>
    <message>
        <source>there is no table %1</source>
        <translation>es gibt keine Tabelle %1</translation>
    </message>
    <message>
        <source>there is no type %1 of rules</source>
        <translation>es gibt keine Regelart %1</translation>
    </message>
    <message>
        <source>third</source>
        <translation>dritte</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>diesem Computer</translation>
    </message>
    <message>
        <source>three</source>
        <translation>drei</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>to year</source>
        <translation>bis Jahr</translation>
    </message>
    <message>
        <source>to, only, not or the end</source>
        <translation>to, only, not oder das Ende</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>morgen</translation>
    </message>
    <message>
        <source>twelve</source>
        <translation>zwölf</translation>
    </message>
    <message>
        <source>two</source>
        <translation>zwei</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>vernal</source>
        <translation>Frühlings</translation>
    </message>
    <message>
        <source>weekday</source>
        <translation>Wochentag</translation>
    </message>
    <message>
        <source>weekend</source>
        <translation>Wochenende</translation>
    </message>
    <message>
        <source>weekend, closed</source>
        <translation>Wochenende, geschlossen</translation>
    </message>
    <message>
        <source>working day</source>
        <translation>Arbeitstag</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
</context>
<context>
    <name>fmAddHoliday</name>
    <message>
        <source>Full date</source>
        <translation>Volles Datum</translation>
    </message>
</context>
<context>
    <name>fmAssignPreview</name>
    <message>
        <source>The current rule</source>
        <translation>Die aktuelle Regel</translation>
    </message>
    <message>
        <source>What each rule would do</source>
        <translation>Was jede Regel bewirken würde</translation>
    </message>
</context>
<context>
    <name>fmCalendar</name>
    <message>
        <source>Currencies and calendars</source>
        <translation>Währungen und Kalender</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>The same day in the years around</source>
        <translation>Derselbe Tag in den Jahren ringsum</translation>
    </message>
    <message>
        <source>Which days</source>
        <translation>Welche Tage</translation>
    </message>
    <message>
        <source>Why the day is what it is</source>
        <translation>Warum der Tag so ist, wie er ist</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
</context>
<context>
    <name>fmCalendarThen</name>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
</context>
<context>
    <name>fmCloseDays</name>
    <message>
        <source>What will happen</source>
        <translation>Was geschehen wird</translation>
    </message>
</context>
<context>
    <name>fmEnterHolidays</name>
    <message>
        <source>Holidays</source>
        <translation>Feiertage</translation>
    </message>
    <message>
        <source>Which rules</source>
        <translation>Welche Regeln</translation>
    </message>
</context>
<context>
    <name>fmHistory</name>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>What the change replaced</source>
        <translation>Was die Änderung ersetzt hat</translation>
    </message>
</context>
<context>
    <name>fmImport</name>
    <message>
        <source>What is wrong in the list</source>
        <translation>Was in der Liste falsch ist</translation>
    </message>
</context>
<context>
    <name>fmMessage</name>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
</context>
<context>
    <name>fmReadiness</name>
    <message>
        <source>Findings of the review</source>
        <translation>Befunde der Prüfung</translation>
    </message>
    <message>
        <source>Readiness of the currencies</source>
        <translation>Bereitschaft der Währungen</translation>
    </message>
</context>
<context>
    <name>fmRuleBook</name>
    <message>
        <source>Before or after the date</source>
        <translation>Vor oder nach dem Datum</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Days before or after</source>
        <translation>Tage davor oder danach</translation>
    </message>
    <message>
        <source>Days of the rule in ten years</source>
        <translation>Tage der Regel in zehn Jahren</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Table of dates</source>
        <translation>Datumstabelle</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Wochentag</translation>
    </message>
    <message>
        <source>Which one of the month</source>
        <translation>Der wievielte im Monat</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
</context>
<context>
    <name>fmSelectYear</name>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
</context>
<context>
    <name>fmYearPlan</name>
    <message>
        <source>Days that differ from the plan</source>
        <translation>Tage, die vom Plan abweichen</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Was getan wurde</translation>
    </message>
</context>
<context>
    <name>fmYearPlanner</name>
    <message>
        <source>Codes of currencies, such as EUR USD, or ALL</source>
        <translation>Währungscodes wie EUR USD, oder ALL</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
</context>
</TS>
