<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ferrowind</name>
    <message>
        <source> but for %1</source>
        <translation> sauf %1</translation>
    </message>
    <message>
        <source>"%1" is %2 in %3 and %4 in %5: a celebration has one date</source>
        <translation>« %1 » est %2 dans %3 et %4 dans %5 : une fête fixe a une seule date</translation>
    </message>
    <message>
        <source>"%1" is %2 in %3 and %4 in %5: a name has one kind</source>
        <translation>« %1 » est %2 dans %3 et %4 dans %5 : un nom a un seul type</translation>
    </message>
    <message>
        <source>"%1" is %2: a celebration has one date</source>
        <translation>« %1 » est %2 : une fête fixe a une seule date</translation>
    </message>
    <message>
        <source>"%1" is %2: a name has one kind</source>
        <translation>« %1 » est %2 : un nom a un seul type</translation>
    </message>
    <message>
        <source>"%1" is no year from %2 to %3</source>
        <translation>« %1 » n’est pas une année de %2 à %3</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>%1 %2 of %3 %4</source>
        <translation>%1 %2 de %3 %4</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (%2) asks for the table %3, and there is none of that name</source>
        <translation>%1 (%2) demande la table %3, et il n’y en a pas de ce nom</translation>
    </message>
    <message>
        <source>%1 (%2) has no name</source>
        <translation>%1 (%2) n’a pas de nom</translation>
    </message>
    <message>
        <source>%1 (%2) has the name of the built-in rule "%3", which no book can have</source>
        <translation>%1 (%2) a le nom de la règle intégrée « %3 », qu’aucun recueil ne peut avoir</translation>
    </message>
    <message>
        <source>%1 (%2) is a day between holidays, so its kind is point</source>
        <translation>%1 (%2) est un jour entre deux fériés, son type est donc point</translation>
    </message>
    <message>
        <source>%1 (%2) is each week on a weekday, so its kind is weekday</source>
        <translation>%1 (%2) est chaque semaine un jour de semaine, son type est donc weekday</translation>
    </message>
    <message>
        <source>%1 (%2) is not on the same date each year, so its kind is point</source>
        <translation>%1 (%2) n’est pas à la même date chaque année, son type est donc point</translation>
    </message>
    <message>
        <source>%1 (%2) is of the kind weekday, so its expression is "weekday" and a weekday</source>
        <translation>%1 (%2) est de type weekday, son expression est donc « weekday » et un jour de semaine</translation>
    </message>
    <message>
        <source>%1 (%2) is on no day of any year</source>
        <translation>%1 (%2) ne tombe aucun jour d’aucune année</translation>
    </message>
    <message>
        <source>%1 (%2) moves off a %3 to the nearest %3, which is the same day</source>
        <translation>%1 (%2) passe de %3 au %3 le plus proche, qui est le même jour</translation>
    </message>
    <message>
        <source>%1 (%2) moves off a %3, a working day, and takes its name along, so its kind is point</source>
        <translation>%1 (%2) quitte un %3, jour ouvré, et emporte son nom, son type est donc point</translation>
    </message>
    <message>
        <source>%1 (%2) names its moved day, but does not move</source>
        <translation>%1 (%2) nomme son jour déplacé, mais ne se déplace pas</translation>
    </message>
    <message>
        <source>%1 (%2) neither moves nor is dropped: it is a working day, a weekday, a day between holidays or unknown</source>
        <translation>%1 (%2) n’est ni déplacé ni supprimé : c’est un jour ouvré, un jour de semaine, un jour entre deux fériés ou inconnu</translation>
    </message>
    <message>
        <source>%1 (%2) says the same as %3</source>
        <translation>%1 (%2) dit la même chose que %3</translation>
    </message>
    <message>
        <source>%1 (a move stands before else, from and to)</source>
        <translation>%1 (un déplacement se place avant else, from et to)</translation>
    </message>
    <message>
        <source>%1 (moved day)</source>
        <translation>%1 (jour déplacé)</translation>
    </message>
    <message>
        <source>%1 (redone)</source>
        <translation>%1 (rétabli)</translation>
    </message>
    <message>
        <source>%1 (undone)</source>
        <translation>%1 (annulé)</translation>
    </message>
    <message>
        <source>%1 - today</source>
        <translation>%1 – aujourd’hui</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n others</source>
        <translation><numerusform>%1 et %n autre</numerusform><numerusform>%1 et %n autres</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 and entered in %n rule books</source>
        <translation><numerusform>%1 et inscrit dans %n recueil de règles</numerusform><numerusform>%1 et inscrit dans %n recueils de règles</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 and entered in %n rule books.</source>
        <translation><numerusform>%1 et inscrit dans %n recueil de règles.</numerusform><numerusform>%1 et inscrit dans %n recueils de règles.</numerusform></translation>
    </message>
    <message>
        <source>%1 as far as known; %2</source>
        <translation>%1 pour ce qui est connu ; %2</translation>
    </message>
    <message>
        <source>%1 as it was after: %2 — %3, %4</source>
        <translation>%1 tel qu’après : %2 — %3, %4</translation>
    </message>
    <message>
        <source>%1 as it was at: %2</source>
        <translation>%1 tel qu’au : %2</translation>
    </message>
    <message>
        <source>%1 as of %2</source>
        <translation>%1 au %2</translation>
    </message>
    <message>
        <source>%1 assigned</source>
        <translation>%1 affectées</translation>
    </message>
    <message>
        <source>%1 can be %2 or %3. Write the name of the month.</source>
        <translation>%1 peut être %2 ou %3. Écrivez le nom du mois.</translation>
    </message>
    <message>
        <source>%1 cannot be judged in full. %2.</source>
        <translation>%1 ne peut être jugé en entier. %2.</translation>
    </message>
    <message>
        <source>%1 cannot be planned in full. %2.</source>
        <translation>%1 ne peut être planifié en entier. %2.</translation>
    </message>
    <message>
        <source>%1 changed this calendar, %2: %3.</source>
        <translation>%1 a modifié ce calendrier, %2 : %3.</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 faites</translation>
    </message>
    <message>
        <source>%1 from %2 to %3</source>
        <translation>%1 du %2 au %3</translation>
    </message>
    <message>
        <source>%1 has an unusual number of holidays beside its weekends: %2, and %3 in the other years.</source>
        <translation>%1 a un nombre inhabituel de fériés hors week-ends : %2, et %3 les autres années.</translation>
    </message>
    <message>
        <source>%1 has holidays, and no rule book tells whether they are right.</source>
        <translation>%1 a des fériés, et aucun recueil de règles ne dit s’ils sont justes.</translation>
    </message>
    <message>
        <source>%1 has no book, so nothing tells what its calendars should be</source>
        <translation>%1 n’a pas de recueil, rien ne dit donc ce que ses calendriers devraient être</translation>
    </message>
    <message>
        <source>%1 has no book, so nothing tells what its calendars should be.</source>
        <translation>%1 n’a pas de recueil, rien ne dit donc ce que ses calendriers devraient être.</translation>
    </message>
    <message>
        <source>%1 has no calendar for %2, the running year.</source>
        <translation>%1 n’a pas de calendrier pour %2, l’année en cours.</translation>
    </message>
    <message>
        <source>%1 has no calendar for %2.</source>
        <translation>%1 n’a pas de calendrier pour %2.</translation>
    </message>
    <message>
        <source>%1 has no calendar.</source>
        <translation>%1 n’a pas de calendrier.</translation>
    </message>
    <message>
        <source>%1 has no calendars: it is no money</source>
        <translation>%1 n’a pas de calendriers : ce n’est pas une monnaie</translation>
    </message>
    <message>
        <source>%1 has no closed day.</source>
        <translation>%1 n’a aucun jour fermé.</translation>
    </message>
    <message>
        <source>%1 has no rule book</source>
        <translation>%1 n’a pas de recueil de règles</translation>
    </message>
    <message>
        <source>%1 has no rule book yet, so that nothing can be planned for it. Say who publishes its holidays and where, add its rules, and save them.</source>
        <translation>%1 n’a pas encore de recueil de règles, rien ne peut donc être planifié. Indiquez qui publie ses fériés et où, ajoutez ses règles et enregistrez.</translation>
    </message>
    <message>
        <source>%1 has no weekends: no weekday holiday closes any of its days.</source>
        <translation>%1 n’a pas de week-ends : aucun férié hebdomadaire ne ferme de jour.</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 dans %2</translation>
    </message>
    <message>
        <source>%1 is %2.</source>
        <translation>%1 est %2.</translation>
    </message>
    <message>
        <source>%1 is a %2.</source>
        <translation>%1 est un %2.</translation>
    </message>
    <message>
        <source>%1 is a %2; moved to %3</source>
        <translation>%1 est un %2 ; déplacé au %3</translation>
    </message>
    <message>
        <source>%1 is a rule for one weekday of every week. Take another name.</source>
        <translation>%1 est une règle pour un jour de chaque semaine. Prenez un autre nom.</translation>
    </message>
    <message>
        <source>%1 is a rule that opens days. Take another name.</source>
        <translation>%1 est une règle qui ouvre des jours. Prenez un autre nom.</translation>
    </message>
    <message>
        <source>%1 is as in the list now%2.</source>
        <translation>%1 est maintenant comme dans la liste%2.</translation>
    </message>
    <message>
        <source>%1 is as it was before.</source>
        <translation>%1 est tel qu’avant.</translation>
    </message>
    <message>
        <source>%1 is as planned now%2.</source>
        <translation>%1 est maintenant conforme au plan%2.</translation>
    </message>
    <message>
        <source>%1 is as planned.</source>
        <translation>%1 est conforme au plan.</translation>
    </message>
    <message>
        <source>%1 is closed on weekends only.</source>
        <translation>%1 n’est fermé que les week-ends.</translation>
    </message>
    <message>
        <source>%1 is made%2.</source>
        <translation>%1 est créé%2.</translation>
    </message>
    <message>
        <source>%1 is money until %2</source>
        <translation>%1 est une monnaie jusqu’au %2</translation>
    </message>
    <message>
        <source>%1 is no date expression: at %2, %3 is expected</source>
        <translation>%1 n’est pas une expression de date : à %2, il faut %3</translation>
    </message>
    <message>
        <source>%1 is no money</source>
        <translation>%1 n’est pas une monnaie</translation>
    </message>
    <message>
        <source>%1 is not observed on a closed day: %2</source>
        <translation>%1 n’est pas observé un jour fermé : %2</translation>
    </message>
    <message>
        <source>%1 is on %2 each year. Take another name for another day.</source>
        <translation>%1 est le %2 chaque année. Prenez un autre nom pour un autre jour.</translation>
    </message>
    <message>
        <source>%1 is on this day too: %2</source>
        <translation>%1 tombe aussi ce jour : %2</translation>
    </message>
    <message>
        <source>%1 is taken by %2; moved to %3</source>
        <translation>%1 est pris par %2 ; déplacé au %3</translation>
    </message>
    <message>
        <source>%1 is there already. Is it to be replaced?</source>
        <translation>%1 existe déjà. Faut-il le remplacer ?</translation>
    </message>
    <message>
        <source>%1 moved from here to %2</source>
        <translation>%1 a été déplacé d’ici au %2</translation>
    </message>
    <message>
        <source>%1 not tried</source>
        <translation>%1 non tentées</translation>
    </message>
    <message>
        <source>%1 of %2 currencies for %3</source>
        <translation>%1 devises sur %2 pour %3</translation>
    </message>
    <message>
        <source>%1 of %2 days</source>
        <translation>%1 jours sur %2</translation>
    </message>
    <message>
        <source>%1 of %2 rules</source>
        <translation>%1 règles sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rules</source>
        <translation><numerusform>%1 règle sur %n</numerusform><numerusform>%1 règles sur %n</numerusform></translation>
    </message>
    <message>
        <source>%1 of the table %2</source>
        <translation>%1 de la table %2</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>%1 refused</source>
        <translation>%1 refusées</translation>
    </message>
    <message>
        <source>%1 removed this calendar, %2: %3.</source>
        <translation>%1 a supprimé ce calendrier, %2 : %3.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else meanwhile. It is left as it is; look at its days again.</source>
        <translation>%1 a été modifié entre-temps par quelqu’un d’autre. Il reste tel quel ; regardez de nouveau ses jours.</translation>
    </message>
    <message>
        <source>%1 was changed meanwhile; nothing was changed in it, and its plan is made anew.</source>
        <translation>%1 a été modifié entre-temps ; rien n’y a été changé, et son plan est refait.</translation>
    </message>
    <message>
        <source>%1 was not tried.</source>
        <translation>%1 n’a pas été tenté.</translation>
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
        <translation><numerusform>%1, %2 jour après</numerusform><numerusform>%1, %2 jours après</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 days before</source>
        <translation><numerusform>%1, %2 jour avant</numerusform><numerusform>%1, %2 jours avant</numerusform></translation>
    </message>
    <message>
        <source>%1, %2 of them weekends</source>
        <translation>%1, dont %2 de week-end</translation>
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
        <translation>%1, %2 : la raison ne peut être lue.</translation>
    </message>
    <message>
        <source>%1, and entered in no rule book.</source>
        <translation>%1, inscrit dans aucun recueil de règles.</translation>
    </message>
    <message>
        <source>%1, closed</source>
        <translation>%1, fermé</translation>
    </message>
    <message>
        <source>%1, from %2 on</source>
        <translation>%1, à partir de %2</translation>
    </message>
    <message>
        <source>%1, next year</source>
        <translation>%1, année prochaine</translation>
    </message>
    <message>
        <source>%1, only in %2</source>
        <translation>%1, seulement en %2</translation>
    </message>
    <message>
        <source>%1, only on %2</source>
        <translation>%1, seulement si c’est %2</translation>
    </message>
    <message>
        <source>%1, so it has no calendar of %2</source>
        <translation>%1, il n’a donc pas de calendrier de %2</translation>
    </message>
    <message>
        <source>%1, this year</source>
        <translation>%1, cette année</translation>
    </message>
    <message>
        <source>%1, until %2</source>
        <translation>%1, jusqu’en %2</translation>
    </message>
    <message>
        <source>%1, which the table %2 does not reach</source>
        <translation>%1, que la table %2 n’atteint pas</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1: %2 %3.</source>
        <translation>%1 : %2 %3.</translation>
    </message>
    <message>
        <source>%1: %2 (%3 returned %4)</source>
        <translation>%1 : %2 (%3 a rendu %4)</translation>
    </message>
    <message>
        <source>%1: %2 gave only %3 of its %4 record sets</source>
        <translation>%1 : %2 n’a donné que %3 de ses %4 jeux d’enregistrements</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1 : %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n days are not as planned.</source>
        <translation><numerusform>%1 : %n jour n’est pas conforme au plan.</numerusform><numerusform>%1 : %n jours ne sont pas conformes au plan.</numerusform></translation>
    </message>
    <message>
        <source>%1: the call failed</source>
        <translation>%1 : l’appel a échoué</translation>
    </message>
    <message>
        <source>%1: the database did not do what was asked. What is shown may be out of date.</source>
        <translation>%1 : la base de données n’a pas fait ce qui était demandé. L’affichage peut être périmé.</translation>
    </message>
    <message>
        <source>%1: weekends only</source>
        <translation>%1 : week-ends seulement</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1 ; %2</translation>
    </message>
    <message>
        <source>%1; a working %2</source>
        <translation>%1 ; un %2 travaillé</translation>
    </message>
    <message>
        <source>%1; now open by exception: %2</source>
        <translation>%1 ; ouvert par exception : %2</translation>
    </message>
    <message>
        <source>%1; unchanged: %2</source>
        <translation>%1 ; inchangés : %2</translation>
    </message>
    <message>
        <source>%1; weekends only: %2</source>
        <translation>%1 ; week-ends seulement : %2</translation>
    </message>
    <message>
        <source>%2 %1</source>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>%3 %2 %1</source>
        <translation>%3 %2 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n by exception</source>
        <translation><numerusform>%n par exception</numerusform><numerusform>%n par exception</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n calendars are as planned%1.</source>
        <translation><numerusform>%n calendrier est conforme au plan%1.</numerusform><numerusform>%n calendriers sont conformes au plan%1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n calendars cannot be planned.</source>
        <translation><numerusform>%n calendrier ne peut être planifié.</numerusform><numerusform>%n calendriers ne peuvent être planifiés.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n calendars: %1.</source>
        <translation><numerusform>%n calendrier : %1.</numerusform><numerusform>%n calendriers : %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n change nothing</source>
        <translation><numerusform>%n ne change rien</numerusform><numerusform>%n ne changent rien</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n changes are undone</source>
        <translation><numerusform>%n modification est annulée</numerusform><numerusform>%n modifications sont annulées</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n closed days keep their names, which the list calls otherwise.</source>
        <translation><numerusform>%n jour fermé garde son nom ; la liste l'appelle autrement.</numerusform><numerusform>%n jours fermés gardent leurs noms ; la liste les appelle autrement.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n closed days that the rule book does not have</source>
        <translation><numerusform>%n jour fermé que le recueil n’a pas</numerusform><numerusform>%n jours fermés que le recueil n’a pas</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies</source>
        <translation><numerusform>%n devise</numerusform><numerusform>%n devises</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies are closed on weekends only in %2: %1.</source>
        <translation><numerusform>%n devise n’est fermée que les week-ends en %2 : %1.</numerusform><numerusform>%n devises ne sont fermées que les week-ends en %2 : %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no book, so nothing tells what their calendars should be: %1.</source>
        <translation><numerusform>%n devise n’a pas de recueil, rien ne dit donc ce que ses calendriers devraient être : %1.</numerusform><numerusform>%n devises n’ont pas de recueil, rien ne dit donc ce que leurs calendriers devraient être : %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no calendar for %2, the running year: %1.</source>
        <translation><numerusform>%n devise n’a pas de calendrier pour %2, l’année en cours : %1.</numerusform><numerusform>%n devises n’ont pas de calendrier pour %2, l’année en cours : %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no calendar for %2: %1.</source>
        <translation><numerusform>%n devise n’a pas de calendrier pour %2 : %1.</numerusform><numerusform>%n devises n’ont pas de calendrier pour %2 : %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no closed day in %2: %1.</source>
        <translation><numerusform>%n devise n’a aucun jour fermé en %2 : %1.</numerusform><numerusform>%n devises n’ont aucun jour fermé en %2 : %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no holidays in %1, the running year.</source>
        <translation><numerusform>%n devise n’a pas de fériés en %1, l’année en cours.</numerusform><numerusform>%n devises n’ont pas de fériés en %1, l’année en cours.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no holidays in %1, which begins %2.</source>
        <translation><numerusform>%n devise n’a pas de fériés en %1, qui commence %2.</numerusform><numerusform>%n devises n’ont pas de fériés en %1, qui commence %2.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no weekends in %2, for no weekday holiday closes any day: %1.</source>
        <translation><numerusform>%n devise n’a pas de week-ends en %2, car aucun férié hebdomadaire ne ferme de jour : %1.</numerusform><numerusform>%n devises n’ont pas de week-ends en %2, car aucun férié hebdomadaire ne ferme de jour : %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation><numerusform>%n jour</numerusform><numerusform>%n jours</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days after</source>
        <translation><numerusform>%n jour après</numerusform><numerusform>%n jours après</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days are closed now</source>
        <translation><numerusform>%n jour est maintenant fermé</numerusform><numerusform>%n jours sont maintenant fermés</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days are not as planned.</source>
        <translation><numerusform>%n jour n’est pas conforme au plan.</numerusform><numerusform>%n jours ne sont pas conformes au plan.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days are working days by exception now</source>
        <translation><numerusform>%n jour est maintenant ouvré par exception</numerusform><numerusform>%n jours sont maintenant ouvrés par exception</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days before</source>
        <translation><numerusform>%n jour avant</numerusform><numerusform>%n jours avant</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days of %1</source>
        <translation><numerusform>%n jour de %1</numerusform><numerusform>%n jours de %1</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days of %1 are written to %2.</source>
        <translation><numerusform>%n jour de %1 est écrit dans %2.</numerusform><numerusform>%n jours de %1 sont écrits dans %2.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days of the plans of %1 change:</source>
        <translation><numerusform>%n jour des plans de %1 change :</numerusform><numerusform>%n jours des plans de %1 changent :</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days selected, %1 of them closed</source>
        <translation><numerusform>%n jour sélectionné, dont %1 fermé</numerusform><numerusform>%n jours sélectionnés, dont %1 fermés</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days set</source>
        <translation><numerusform>%n jour fixé</numerusform><numerusform>%n jours fixés</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days take it</source>
        <translation><numerusform>%n jour la prend</numerusform><numerusform>%n jours la prennent</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days that are left out</source>
        <translation><numerusform>%n jour laissé de côté</numerusform><numerusform>%n jours laissés de côté</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days were changed.</source>
        <translation><numerusform>%n jour a été modifié.</numerusform><numerusform>%n jours ont été modifiés.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days whose rules stand in the way</source>
        <translation><numerusform>%n jour dont la règle fait obstacle</numerusform><numerusform>%n jours dont les règles font obstacle</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days will be closed</source>
        <translation><numerusform>%n jour sera fermé</numerusform><numerusform>%n jours seront fermés</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n errors</source>
        <translation><numerusform>%n erreur</numerusform><numerusform>%n erreurs</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n have it</source>
        <translation><numerusform>%n l’a déjà</numerusform><numerusform>%n l’ont déjà</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n holidays</source>
        <translation><numerusform>%n férié</numerusform><numerusform>%n fériés</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation><numerusform>%n de plus</numerusform><numerusform>%n de plus</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n more faults.</source>
        <translation><numerusform>%n autre défaut.</numerusform><numerusform>%n autres défauts.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n notes</source>
        <translation><numerusform>%n note</numerusform><numerusform>%n notes</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n plans lack dates that are not known yet.</source>
        <translation><numerusform>Il manque à %n plan des dates pas encore connues.</numerusform><numerusform>Il manque à %n plans des dates pas encore connues.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n rules</source>
        <translation><numerusform>%n règle</numerusform><numerusform>%n règles</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n rules for %1</source>
        <translation><numerusform>%n règle pour %1</numerusform><numerusform>%n règles pour %1</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n stay as holidays or exceptions</source>
        <translation><numerusform>%n reste férié ou exception</numerusform><numerusform>%n restent fériés ou exceptions</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation><numerusform>%n avertissement</numerusform><numerusform>%n avertissements</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n weekend days</source>
        <translation><numerusform>%n jour de week-end</numerusform><numerusform>%n jours de week-end</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days</source>
        <translation><numerusform>%n jour ouvré</numerusform><numerusform>%n jours ouvrés</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days by exception</source>
        <translation><numerusform>%n jour ouvré par exception</numerusform><numerusform>%n jours ouvrés par exception</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days by exception have a reason.</source>
        <translation><numerusform>%n jour ouvré par exception a un motif.</numerusform><numerusform>%n jours ouvrés par exception ont un motif.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days by exception that have a reason will be closed.</source>
        <translation><numerusform>%n jour ouvré par exception qui a un motif sera fermé.</numerusform><numerusform>%n jours ouvrés par exception qui ont un motif seront fermés.</numerusform></translation>
    </message>
    <message>
        <source>&amp;Clear Sorting</source>
        <translation>&amp;Supprimer le tri</translation>
    </message>
    <message>
        <source>&amp;Close calendars</source>
        <translation>&amp;Fermer les calendriers</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>Tout &amp;développer</translation>
    </message>
    <message>
        <source>&amp;Group by This Column</source>
        <translation>&amp;Grouper par cette colonne</translation>
    </message>
    <message>
        <source>&amp;Open calendars</source>
        <translation>&amp;Ouvrir les calendriers</translation>
    </message>
    <message>
        <source>&amp;Ungroup</source>
        <translation>Dégr&amp;ouper</translation>
    </message>
    <message>
        <source>A calendar's year is 1900 to 3000.</source>
        <translation>L’année d’un calendrier va de 1900 à 3000.</translation>
    </message>
    <message>
        <source>A day between two holidays</source>
        <translation>Un jour entre deux fériés</translation>
    </message>
    <message>
        <source>A day that is not known yet</source>
        <translation>Un jour pas encore connu</translation>
    </message>
    <message>
        <source>A later change is of the same, or the history does not reach there</source>
        <translation>Une modification ultérieure porte sur la même chose, ou l’historique ne remonte pas si loin</translation>
    </message>
    <message>
        <source>A list is imported for one currency at a time.</source>
        <translation>Une liste est importée pour une seule devise à la fois.</translation>
    </message>
    <message>
        <source>A new holiday point, on the days that are closed here.</source>
        <translation>Un nouveau férié ponctuel, aux jours fermés ici.</translation>
    </message>
    <message>
        <source>A plan from now on for: %1.</source>
        <translation>Planifié désormais : %1.</translation>
    </message>
    <message>
        <source>A removed rule has that name: it can be restored</source>
        <translation>Une règle supprimée porte ce nom : elle peut être restaurée</translation>
    </message>
    <message>
        <source>A text file names no currencies, so it can be of one alone</source>
        <translation>Un fichier texte ne nomme pas de devise, il ne peut donc en contenir qu'une</translation>
    </message>
    <message>
        <source>A value is missing or out of range</source>
        <translation>Une valeur manque ou est hors limites</translation>
    </message>
    <message>
        <source>A weekday near a date</source>
        <translation>Un jour de semaine près d’une date</translation>
    </message>
    <message>
        <source>A weekday of a month</source>
        <translation>Un jour de semaine d’un mois</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add the rule %1</source>
        <translation>Ajouter la règle %1</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Ajouté</translation>
    </message>
    <message>
        <source>Added the currency %1 (%2)</source>
        <translation>Devise %1 (%2) ajoutée</translation>
    </message>
    <message>
        <source>Added the currency %1 (%2), no money</source>
        <translation>Devise %1 (%2) ajoutée, pas une monnaie</translation>
    </message>
    <message>
        <source>Added the rule %1</source>
        <translation>Règle %1 ajoutée</translation>
    </message>
    <message numerus="yes">
        <source>Added the rule book of %1: %n rules</source>
        <translation><numerusform>Recueil de %1 ajouté : %n règle</numerusform><numerusform>Recueil de %1 ajouté : %n règles</numerusform></translation>
    </message>
    <message>
        <source>Address of the database</source>
        <translation>Adresse de la base de données</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>All calendars</source>
        <translation>Tous les calendriers</translation>
    </message>
    <message>
        <source>All calendars are as planned, as far as it is published</source>
        <translation>Tous les calendriers sont conformes au plan, dans la mesure de ce qui est publié</translation>
    </message>
    <message>
        <source>All calendars together</source>
        <translation>Tous les calendriers ensemble</translation>
    </message>
    <message>
        <source>All days</source>
        <translation>Tous les jours</translation>
    </message>
    <message>
        <source>All rules</source>
        <translation>Toutes les règles</translation>
    </message>
    <message>
        <source>An ordinary working day%1</source>
        <translation>Un jour ouvré ordinaire%1</translation>
    </message>
    <message>
        <source>Applied the plan</source>
        <translation>Plan appliqué</translation>
    </message>
    <message>
        <source>Applied the plan of %1</source>
        <translation>Plan de %1 appliqué</translation>
    </message>
    <message numerus="yes">
        <source>Applied the plans of %n calendars</source>
        <translation><numerusform>Plans de %n calendrier appliqués</numerusform><numerusform>Plans de %n calendriers appliqués</numerusform></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Apply the plan</source>
        <translation>Appliquer le plan</translation>
    </message>
    <message>
        <source>Apply the plan of %1</source>
        <translation>Appliquer le plan de %1</translation>
    </message>
    <message>
        <source>Applying the plan of %1</source>
        <translation>Application du plan de %1</translation>
    </message>
    <message>
        <source>Applying the plan of %1, %2 of %3.</source>
        <translation>Application du plan de %1, %2 sur %3.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>avril</translation>
    </message>
    <message>
        <source>As %1</source>
        <translation>Comme %1</translation>
    </message>
    <message>
        <source>As it was before</source>
        <translation>Comme avant</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>Affecter</translation>
    </message>
    <message>
        <source>Assign %1</source>
        <translation>Affecter %1</translation>
    </message>
    <message>
        <source>Assign %1 to %2</source>
        <translation>Affecter %1 à %2</translation>
    </message>
    <message>
        <source>Assign holiday</source>
        <translation>Affecter un férié</translation>
    </message>
    <message>
        <source>Assign holiday, %1</source>
        <translation>Affecter un férié, %1</translation>
    </message>
    <message>
        <source>Assign these rules?</source>
        <translation>Affecter ces règles ?</translation>
    </message>
    <message>
        <source>Assigned %1</source>
        <translation>%1 affectée</translation>
    </message>
    <message>
        <source>Assigned %1 to %2</source>
        <translation>%1 affectée à %2</translation>
    </message>
    <message numerus="yes">
        <source>Assigned %1 to %n days of %2</source>
        <translation><numerusform>%1 affectée à %n jour de %2</numerusform><numerusform>%1 affectée à %n jours de %2</numerusform></translation>
    </message>
    <message>
        <source>August</source>
        <translation>août</translation>
    </message>
    <message>
        <source>Back office</source>
        <translation>Back-office</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Between %1 and %2</source>
        <translation>Entre %1 et %2</translation>
    </message>
    <message>
        <source>Between two holidays</source>
        <translation>Entre deux fériés</translation>
    </message>
    <message>
        <source>Book: %1</source>
        <translation>Recueil : %1</translation>
    </message>
    <message>
        <source>Business-day calendars</source>
        <translation>Calendriers de jours ouvrés</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Par</translation>
    </message>
    <message>
        <source>By Easter Sunday</source>
        <translation>Selon le dimanche de Pâques</translation>
    </message>
    <message>
        <source>By Orthodox Easter Sunday</source>
        <translation>Selon la Pâques orthodoxe</translation>
    </message>
    <message>
        <source>By a table of dates</source>
        <translation>Selon une table de dates</translation>
    </message>
    <message>
        <source>C&amp;ollapse All</source>
        <translation>Tout &amp;réduire</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Calendar %1</source>
        <translation>Calendrier %1</translation>
    </message>
    <message>
        <source>Calendar at a moment</source>
        <translation>Calendrier à un moment</translation>
    </message>
    <message>
        <source>Calendar at...</source>
        <translation>Calendrier au...</translation>
    </message>
    <message>
        <source>Calendar files</source>
        <translation>Fichiers de calendrier</translation>
    </message>
    <message>
        <source>Calendar then</source>
        <translation>Calendrier d’alors</translation>
    </message>
    <message>
        <source>Calendars of this user</source>
        <translation>Calendriers de cet utilisateur</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Illisible</translation>
    </message>
    <message>
        <source>Celebration</source>
        <translation>Fête fixe</translation>
    </message>
    <message>
        <source>Celebrations</source>
        <translation>Fêtes fixes</translation>
    </message>
    <message>
        <source>Changed the rule %1</source>
        <translation>Règle %1 modifiée</translation>
    </message>
    <message numerus="yes">
        <source>Changed the rule book of %1: %n rules</source>
        <translation><numerusform>Recueil de %1 modifié : %n règle</numerusform><numerusform>Recueil de %1 modifié : %n règles</numerusform></translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Modifié : %1</translation>
    </message>
    <message>
        <source>Changes of mine</source>
        <translation>Mes modifications</translation>
    </message>
    <message>
        <source>Choose a day</source>
        <translation>Choisir un jour</translation>
    </message>
    <message>
        <source>Choose a day (Alt+Down)</source>
        <translation>Choisir un jour (Alt+Bas)</translation>
    </message>
    <message>
        <source>Choose a day: here stands why it is open or closed.</source>
        <translation>Choisissez un jour : ici s’affiche pourquoi il est ouvert ou fermé.</translation>
    </message>
    <message>
        <source>Choose a list</source>
        <translation>Choisir une liste</translation>
    </message>
    <message>
        <source>Choose the file of the list.</source>
        <translation>Choisissez le fichier de la liste.</translation>
    </message>
    <message>
        <source>Choose when it is, or write an expression such as 12-25 or easter-2</source>
        <translation>Choisissez quand il a lieu, ou écrivez une expression comme 12-25 ou easter-2</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Choisir...</translation>
    </message>
    <message>
        <source>Click to turn the order, drag to move, Delete to remove</source>
        <translation>Cliquer inverse l’ordre, glisser déplace, Suppr enlève</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close days</source>
        <translation>Fermer des jours</translation>
    </message>
    <message>
        <source>Close selected days as ...</source>
        <translation>Fermer les jours sélectionnés comme...</translation>
    </message>
    <message>
        <source>Closed %1 as %2</source>
        <translation>%1 fermé comme %2</translation>
    </message>
    <message>
        <source>Closed days get the list's</source>
        <translation>Les jours fermés prennent ceux de la liste</translation>
    </message>
    <message>
        <source>Closed days keep theirs</source>
        <translation>Les jours fermés gardent les leurs</translation>
    </message>
    <message>
        <source>Closes the selected days that are open, as a holiday that was announced for once</source>
        <translation>Ferme les jours ouverts sélectionnés, comme férié annoncé une seule fois</translation>
    </message>
    <message>
        <source>Closing days of %1</source>
        <translation>Fermeture de jours de %1</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Convention of %1</source>
        <translation>Convention de %1</translation>
    </message>
    <message>
        <source>Created the calendar</source>
        <translation>Calendrier créé</translation>
    </message>
    <message>
        <source>Created the calendar %1</source>
        <translation>Calendrier %1 créé</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>Devises</translation>
    </message>
    <message>
        <source>Currencies and calendars</source>
        <translation>Devises et calendriers</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Devise</translation>
    </message>
    <message>
        <source>Currency %1</source>
        <translation>Devise %1</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Day of the %1 equinox %2 at UTC%3</source>
        <translation>Jour de l’équinoxe %1 %2 à UTC%3</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Jours</translation>
    </message>
    <message>
        <source>December</source>
        <translation>décembre</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>Diffère</translation>
    </message>
    <message numerus="yes">
        <source>Differs by %n days</source>
        <translation><numerusform>Diffère de %n jour</numerusform><numerusform>Diffère de %n jours</numerusform></translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Drag a column header here to group by that column</source>
        <translation>Faites glisser ici l’en-tête d’une colonne pour grouper par elle</translation>
    </message>
    <message>
        <source>EUR, USD or ALL</source>
        <translation>EUR, USD ou ALL</translation>
    </message>
    <message>
        <source>Easter Sunday %1</source>
        <translation>Dimanche de Pâques %1</translation>
    </message>
    <message>
        <source>Edit the rule %1</source>
        <translation>Modifier la règle %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Every %1</source>
        <translation>Chaque %1</translation>
    </message>
    <message>
        <source>Every day is as in the list.</source>
        <translation>Chaque jour est comme dans la liste.</translation>
    </message>
    <message>
        <source>Every day is as planned.</source>
        <translation>Chaque jour est conforme au plan.</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>Chaque semaine</translation>
    </message>
    <message>
        <source>Everybody</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Everything stayed as it was.</source>
        <translation>Tout est resté tel quel.</translation>
    </message>
    <message>
        <source>Except</source>
        <translation>Excepter</translation>
    </message>
    <message>
        <source>Except %1</source>
        <translation>Excepter %1</translation>
    </message>
    <message>
        <source>Except %1, %2</source>
        <translation>Excepter %1, %2</translation>
    </message>
    <message>
        <source>Except all selected days from the holiday list, with one message</source>
        <translation>Excepte tous les jours sélectionnés de la liste des fériés, avec un seul message</translation>
    </message>
    <message>
        <source>Except days</source>
        <translation>Excepter des jours</translation>
    </message>
    <message>
        <source>Except days with message ...</source>
        <translation>Excepter des jours avec message...</translation>
    </message>
    <message>
        <source>Except selected days with message ...</source>
        <translation>Excepter les jours sélectionnés avec message...</translation>
    </message>
    <message>
        <source>Except, %1</source>
        <translation>Excepter, %1</translation>
    </message>
    <message>
        <source>Excepted</source>
        <translation>Exception faite</translation>
    </message>
    <message>
        <source>Excepted %1</source>
        <translation>Exception faite : %1</translation>
    </message>
    <message>
        <source>Excepted %1, %2</source>
        <translation>Exception faite : %1, %2</translation>
    </message>
    <message>
        <source>Excepted %1: %2</source>
        <translation>Exception faite pour %1 : %2</translation>
    </message>
    <message>
        <source>Excepted, %1</source>
        <translation>Exception faite, %1</translation>
    </message>
    <message>
        <source>Excepting days of %1</source>
        <translation>Exception de jours de %1</translation>
    </message>
    <message>
        <source>Exception</source>
        <translation>Exception</translation>
    </message>
    <message>
        <source>Exceptions</source>
        <translation>Exceptions</translation>
    </message>
    <message>
        <source>Export as</source>
        <translation>Exporter sous</translation>
    </message>
    <message>
        <source>Export calendars</source>
        <translation>Exporter des calendriers</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exporter...</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expression</translation>
    </message>
    <message>
        <source>February</source>
        <translation>février</translation>
    </message>
    <message>
        <source>Ferrowind calendar</source>
        <translation>Calendrier Ferrowind</translation>
    </message>
    <message>
        <source>Fifth</source>
        <translation>Cinquième</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Rechercher...</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Constat</translation>
    </message>
    <message>
        <source>Findings of the review: %1</source>
        <translation>Constats de la revue : %1</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Premier</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation>Quatrième</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>vendredi</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>From Saturday to Friday, from Sunday to Monday</source>
        <translation>Du samedi au vendredi, du dimanche au lundi</translation>
    </message>
    <message>
        <source>From Sunday to Monday</source>
        <translation>Du dimanche au lundi</translation>
    </message>
    <message>
        <source>From year</source>
        <translation>De l'année</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Aller</translation>
    </message>
    <message>
        <source>Go to a date, of this or another year</source>
        <translation>Aller à une date, de cette année ou d’une autre</translation>
    </message>
    <message>
        <source>Go to date</source>
        <translation>Aller à la date</translation>
    </message>
    <message>
        <source>Go to date...</source>
        <translation>Aller à la date...</translation>
    </message>
    <message>
        <source>Group by</source>
        <translation>Grouper par</translation>
    </message>
    <message>
        <source>Group, level %1, %2</source>
        <translation>Groupe, niveau %1, %2</translation>
    </message>
    <message>
        <source>Grouped by %1</source>
        <translation>Groupé par %1</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Hide (%1)</source>
        <translation>Masquer (%1)</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>History of the day...</source>
        <translation>Historique du jour...</translation>
    </message>
    <message>
        <source>History...</source>
        <translation>Historique...</translation>
    </message>
    <message>
        <source>Holds since</source>
        <translation>Vaut depuis</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Férié</translation>
    </message>
    <message>
        <source>Holiday calendars of currencies</source>
        <translation>Calendriers des fériés par devise</translation>
    </message>
    <message>
        <source>Holiday point</source>
        <translation>Férié ponctuel</translation>
    </message>
    <message>
        <source>Holiday points</source>
        <translation>Fériés ponctuels</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Fériés</translation>
    </message>
    <message>
        <source>Holidays, weekends and working days by exception</source>
        <translation>Jours fériés, week-ends et jours ouvrés par exception</translation>
    </message>
    <message>
        <source>How many are closed</source>
        <translation>Combien sont fermés</translation>
    </message>
    <message>
        <source>Import a list</source>
        <translation>Importer une liste</translation>
    </message>
    <message>
        <source>Import of %1: %2</source>
        <translation>Importation de %1 : %2</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importer...</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>Dans %1</translation>
    </message>
    <message>
        <source>It belongs to the book of %1, not to that of %2</source>
        <translation>Elle appartient au recueil de %1, non à celui de %2</translation>
    </message>
    <message>
        <source>It belongs to the books of %1, not to that of %2</source>
        <translation>Elle appartient aux recueils de %1, non à celui de %2</translation>
    </message>
    <message>
        <source>It falls on a %1</source>
        <translation>Il tombe un %1</translation>
    </message>
    <message>
        <source>It goes to its own date, not to %1</source>
        <translation>Elle va à sa propre date, non au %1</translation>
    </message>
    <message>
        <source>It has no date, so that nothing is assigned</source>
        <translation>Elle n’a pas de date, rien n’est donc affecté</translation>
    </message>
    <message>
        <source>It is dated for %1, on %2</source>
        <translation>Elle est datée pour %1, le %2</translation>
    </message>
    <message>
        <source>It is not observed</source>
        <translation>Il n’est pas observé</translation>
    </message>
    <message>
        <source>It moves to the next free day</source>
        <translation>Il passe au prochain jour libre</translation>
    </message>
    <message>
        <source>It stands on %1 already</source>
        <translation>Elle est déjà le %1</translation>
    </message>
    <message>
        <source>It stays there</source>
        <translation>Il y reste</translation>
    </message>
    <message>
        <source>It was changed meanwhile</source>
        <translation>Cela a été modifié entre-temps</translation>
    </message>
    <message>
        <source>Item %1 of the list</source>
        <translation>Élément %1 de la liste</translation>
    </message>
    <message>
        <source>Its weekday is %1, and the day is a %2</source>
        <translation>Son jour de semaine est %1, et ce jour est un %2</translation>
    </message>
    <message>
        <source>JSON files</source>
        <translation>Fichiers JSON</translation>
    </message>
    <message>
        <source>January</source>
        <translation>janvier</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juillet</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Conservé</translation>
    </message>
    <message>
        <source>Known ones</source>
        <translation>Connus</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Dernier</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>List only the rules of the calendar's currency</source>
        <translation>Ne lister que les règles de la devise du calendrier</translation>
    </message>
    <message>
        <source>Lists of days</source>
        <translation>Listes de jours</translation>
    </message>
    <message>
        <source>Look at</source>
        <translation>À voir</translation>
    </message>
    <message>
        <source>Lose them</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Makes a calendar as a list of days in a file</source>
        <translation>Rend un calendrier conforme à une liste de jours d'un fichier</translation>
    </message>
    <message>
        <source>Makes the selected days working days by exception, with one reason</source>
        <translation>Rend les jours sélectionnés ouvrés par exception, avec un seul motif</translation>
    </message>
    <message>
        <source>Makes the selected days working days by exception, without a reason</source>
        <translation>Fait des jours sélectionnés des jours ouvrés par exception, sans motif</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Me</source>
        <translation>Moi</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Manque</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lundi</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name at least one currency, such as EUR, or ALL</source>
        <translation>Indiquez au moins une devise, comme EUR, ou ALL</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Noms</translation>
    </message>
    <message>
        <source>New calendar</source>
        <translation>Nouveau calendrier</translation>
    </message>
    <message>
        <source>New calendar %1</source>
        <translation>Nouveau calendrier %1</translation>
    </message>
    <message numerus="yes">
        <source>Next try in %n seconds</source>
        <translation><numerusform>Prochain essai dans %n seconde</numerusform><numerusform>Prochain essai dans %n secondes</numerusform></translation>
    </message>
    <message>
        <source>Next year</source>
        <translation>Année suivante</translation>
    </message>
    <message>
        <source>No calendar</source>
        <translation>Pas de calendrier</translation>
    </message>
    <message>
        <source>No calendar, or not prepared</source>
        <translation>Pas de calendrier, ou pas préparé</translation>
    </message>
    <message>
        <source>No currency has a calendar of %1</source>
        <translation>Aucune devise n’a de calendrier de %1</translation>
    </message>
    <message>
        <source>No day will be closed.</source>
        <translation>Aucun jour ne sera fermé.</translation>
    </message>
    <message>
        <source>No file was written. %1.</source>
        <translation>Aucun fichier n'a été écrit. %1.</translation>
    </message>
    <message>
        <source>No money then</source>
        <translation>Plus une monnaie</translation>
    </message>
    <message>
        <source>No plan any more for: %1.</source>
        <translation>N’est plus planifié : %1.</translation>
    </message>
    <message>
        <source>No reason is given for the exception.</source>
        <translation>L’exception n’a pas de motif.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Not compared</source>
        <translation>Non comparé</translation>
    </message>
    <message>
        <source>Not in the list</source>
        <translation>Pas dans la liste</translation>
    </message>
    <message>
        <source>Not in the rule book: %1</source>
        <translation>Pas dans le recueil : %1</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Not prepared</source>
        <translation>Non préparé</translation>
    </message>
    <message>
        <source>Not prepared: none of its days is closed</source>
        <translation>Non préparé : aucun de ses jours n’est fermé</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Nothing but weekends is added; "All days" shows them.</source>
        <translation>Seuls des week-ends s’ajoutent ; « Tous les jours » les affiche.</translation>
    </message>
    <message>
        <source>Nothing changes.</source>
        <translation>Rien ne change.</translation>
    </message>
    <message>
        <source>Nothing could be read</source>
        <translation>Rien n’a pu être lu</translation>
    </message>
    <message>
        <source>Nothing is changed.</source>
        <translation>Rien n’est modifié.</translation>
    </message>
    <message>
        <source>Nothing is closed in %1 %2 yet. Prepare it now?</source>
        <translation>Rien n’est encore fermé dans %1 %2. Le préparer maintenant ?</translation>
    </message>
    <message>
        <source>Nothing is known: %1</source>
        <translation>Rien n’est connu : %1</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>Rien à voir.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octobre</translation>
    </message>
    <message>
        <source>Of %1 faults the first %2 are told.</source>
        <translation>Sur %1 erreurs, les %2 premières sont indiquées.</translation>
    </message>
    <message>
        <source>Off a weekend it moves to Monday</source>
        <translation>Du week-end il passe au lundi</translation>
    </message>
    <message>
        <source>On a closed day</source>
        <translation>Un jour fermé</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>Une fois</translation>
    </message>
    <message>
        <source>Once, on %1</source>
        <translation>Une fois, le %1</translation>
    </message>
    <message>
        <source>Only %1 is on show.</source>
        <translation>Seul %1 est affiché.</translation>
    </message>
    <message>
        <source>Only rules of this currency</source>
        <translation>Seulement les règles de cette devise</translation>
    </message>
    <message>
        <source>Open calendars</source>
        <translation>Ouvrir les calendriers</translation>
    </message>
    <message numerus="yes">
        <source>Open together on %n days</source>
        <translation><numerusform>Ouverts ensemble %n jour</numerusform><numerusform>Ouverts ensemble %n jours</numerusform></translation>
    </message>
    <message>
        <source>Orthodox Easter Sunday %1</source>
        <translation>Dimanche de Pâques orthodoxe %1</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>Fichiers PDF</translation>
    </message>
    <message>
        <source>PNG pictures</source>
        <translation>Images PNG</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>En partie</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Plan of %1</source>
        <translation>Plan de %1</translation>
    </message>
    <message>
        <source>Plan year...</source>
        <translation>Planifier l’année...</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>Plan : %1</translation>
    </message>
    <message numerus="yes">
        <source>Plans of %n calendars</source>
        <translation><numerusform>Plan de %n calendrier</numerusform><numerusform>Plans de %n calendriers</numerusform></translation>
    </message>
    <message>
        <source>Prepare</source>
        <translation>Préparer</translation>
    </message>
    <message>
        <source>Prepare all for %1...</source>
        <translation>Tout préparer pour %1...</translation>
    </message>
    <message>
        <source>Prepare all...</source>
        <translation>Tout préparer...</translation>
    </message>
    <message>
        <source>Prepared</source>
        <translation>Préparé</translation>
    </message>
    <message numerus="yes">
        <source>Prepared %1: %n days</source>
        <translation><numerusform>%1 préparé : %n jour</numerusform><numerusform>%1 préparé : %n jours</numerusform></translation>
    </message>
    <message>
        <source>Prepared as published</source>
        <translation>Préparé selon le publié</translation>
    </message>
    <message>
        <source>Prepared: %1, %2.</source>
        <translation>Préparé : %1, %2.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Previous year</source>
        <translation>Année précédente</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimer...</translation>
    </message>
    <message>
        <source>Prints the year</source>
        <translation>Imprime l’année</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>Readiness</source>
        <translation>État de préparation</translation>
    </message>
    <message>
        <source>Reading a calendar of %1 as of %2</source>
        <translation>Lecture d’un calendrier de %1 au %2</translation>
    </message>
    <message>
        <source>Reading a calendar of %1 as the entry %2 of the history left it</source>
        <translation>Lecture d’un calendrier de %1 tel que l’entrée %2 de l’historique l’a laissé</translation>
    </message>
    <message>
        <source>Reading the book of %1</source>
        <translation>Lecture du recueil de %1</translation>
    </message>
    <message>
        <source>Reading the books</source>
        <translation>Lecture des recueils</translation>
    </message>
    <message>
        <source>Reading the calendar %1 %2</source>
        <translation>Lecture du calendrier %1 %2</translation>
    </message>
    <message>
        <source>Reading the calendars and the rule books</source>
        <translation>Lecture des calendriers et des recueils de règles</translation>
    </message>
    <message>
        <source>Reading the currencies</source>
        <translation>Lecture des devises</translation>
    </message>
    <message>
        <source>Reading the days of all calendars</source>
        <translation>Lecture des jours de tous les calendriers</translation>
    </message>
    <message>
        <source>Reading the entry %1 of the history</source>
        <translation>Lecture de l’entrée %1 de l’historique</translation>
    </message>
    <message>
        <source>Reading the first day of the week</source>
        <translation>Lecture du premier jour de la semaine</translation>
    </message>
    <message>
        <source>Reading the history</source>
        <translation>Lecture de l’historique</translation>
    </message>
    <message>
        <source>Reading the history of %1</source>
        <translation>Lecture de l’historique de %1</translation>
    </message>
    <message>
        <source>Reading the rules</source>
        <translation>Lecture des règles</translation>
    </message>
    <message>
        <source>Reading whether a calendar was changed</source>
        <translation>Lecture si un calendrier a été modifié</translation>
    </message>
    <message>
        <source>Reads the calendars and plans them anew</source>
        <translation>Relit les calendriers et les replanifie</translation>
    </message>
    <message>
        <source>Reads the calendars anew</source>
        <translation>Relit les calendriers</translation>
    </message>
    <message>
        <source>Reads the history anew</source>
        <translation>Relit l’historique</translation>
    </message>
    <message>
        <source>Reason: %1</source>
        <translation>Motif : %1</translation>
    </message>
    <message>
        <source>Redid: %1</source>
        <translation>Rétabli : %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Supprimer %1</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Removed %1</source>
        <translation>%1 supprimée</translation>
    </message>
    <message>
        <source>Removed the convention of %1</source>
        <translation>Convention de %1 supprimée</translation>
    </message>
    <message>
        <source>Removed the rule %1</source>
        <translation>Règle %1 supprimée</translation>
    </message>
    <message>
        <source>Removed the rule book of %1</source>
        <translation>Recueil de règles de %1 supprimé</translation>
    </message>
    <message>
        <source>Removing the book of %1</source>
        <translation>Suppression du recueil de %1</translation>
    </message>
    <message>
        <source>Renamed the currency %1 (%2) to %3 (%4)</source>
        <translation>Devise %1 (%2) renommée en %3 (%4)</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>Remplacé</translation>
    </message>
    <message>
        <source>Restore %1</source>
        <translation>Restaurer %1</translation>
    </message>
    <message>
        <source>Restored %1</source>
        <translation>%1 restaurée</translation>
    </message>
    <message>
        <source>Restored the rule %1</source>
        <translation>Règle %1 restaurée</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Règle</translation>
    </message>
    <message>
        <source>Rule %1</source>
        <translation>Règle %1</translation>
    </message>
    <message>
        <source>Rule book</source>
        <translation>Recueil de règles</translation>
    </message>
    <message>
        <source>Rule book of %1</source>
        <translation>Recueil de règles de %1</translation>
    </message>
    <message>
        <source>Rule book of %1, rule %2</source>
        <translation>Recueil de règles de %1, règle %2</translation>
    </message>
    <message>
        <source>Rule book...</source>
        <translation>Recueil de règles...</translation>
    </message>
    <message>
        <source>Rule: %1</source>
        <translation>Règle : %1</translation>
    </message>
    <message>
        <source>Same day</source>
        <translation>Même jour</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>samedi</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>Enregistrer en PDF...</translation>
    </message>
    <message>
        <source>Save as picture</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>Save as picture...</source>
        <translation>Enregistrer l’image...</translation>
    </message>
    <message>
        <source>Save the rule book of %1</source>
        <translation>Enregistrer le recueil de %1</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Enregistré sous %1</translation>
    </message>
    <message>
        <source>Saved the rule book of %1</source>
        <translation>Recueil de %1 enregistré</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Deuxième</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septembre</translation>
    </message>
    <message numerus="yes">
        <source>Set the convention of %1: %n business days to spot</source>
        <translation><numerusform>Convention de %1 définie : %n jour ouvré jusqu’au spot</numerusform><numerusform>Convention de %1 définie : %n jours ouvrés jusqu’au spot</numerusform></translation>
    </message>
    <message>
        <source>Set the convention of %1: holidays of the dollar do not stop the count to spot</source>
        <translation>Convention de %1 définie : les fériés du dollar n’arrêtent pas le décompte jusqu’au spot</translation>
    </message>
    <message>
        <source>Set the convention of %1: holidays of the dollar stop the count to spot</source>
        <translation>Convention de %1 définie : les fériés du dollar arrêtent le décompte jusqu’au spot</translation>
    </message>
    <message>
        <source>Set the currency %1 (%2)</source>
        <translation>Devise %1 (%2) définie</translation>
    </message>
    <message>
        <source>Set the currency %1 (%2), money until %3</source>
        <translation>Devise %1 (%2) définie, monnaie jusqu’au %3</translation>
    </message>
    <message>
        <source>Set the currency %1 (%2), no money</source>
        <translation>Devise %1 (%2) définie, pas une monnaie</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Devrait être</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Afficher %1</translation>
    </message>
    <message>
        <source>Show %1 as it was at this moment:</source>
        <translation>Afficher %1 tel qu’à ce moment :</translation>
    </message>
    <message>
        <source>Show Group &amp;Panel</source>
        <translation>Afficher le &amp;panneau de groupes</translation>
    </message>
    <message>
        <source>Show older</source>
        <translation>Plus anciens</translation>
    </message>
    <message>
        <source>Show only the days that have what is typed</source>
        <translation>N’afficher que les jours qui contiennent le texte saisi</translation>
    </message>
    <message>
        <source>Show only the rules that have what is typed</source>
        <translation>N’afficher que les règles qui contiennent le texte saisi</translation>
    </message>
    <message>
        <source>Show or hide the year at a glance beside the days</source>
        <translation>Afficher ou masquer l’aperçu de l’année à côté des jours</translation>
    </message>
    <message>
        <source>Show or hide why the day is what it is</source>
        <translation>Afficher ou masquer pourquoi le jour est ce qu’il est</translation>
    </message>
    <message>
        <source>Show the rules</source>
        <translation>Afficher les règles</translation>
    </message>
    <message>
        <source>Shows by which rules the days of the currency are planned</source>
        <translation>Affiche les règles selon lesquelles les jours de la devise sont planifiés</translation>
    </message>
    <message>
        <source>Shows the days that stay as they are and all weekends, too</source>
        <translation>Affiche aussi les jours qui restent tels quels et tous les week-ends</translation>
    </message>
    <message>
        <source>Shows the year after</source>
        <translation>Affiche l’année d’après</translation>
    </message>
    <message>
        <source>Shows the year before</source>
        <translation>Affiche l’année d’avant</translation>
    </message>
    <message>
        <source>Shows where the calendar differs from what it should be</source>
        <translation>Affiche où le calendrier diffère de ce qu’il devrait être</translation>
    </message>
    <message>
        <source>Shows who changed the calendar and when, and undoes changes</source>
        <translation>Affiche qui a modifié le calendrier et quand, et annule des modifications</translation>
    </message>
    <message>
        <source>Shows who changed the day and when</source>
        <translation>Affiche qui a modifié le jour et quand</translation>
    </message>
    <message>
        <source>Shows years of this and other currencies, and prints and saves them</source>
        <translation>Affiche, imprime et enregistre des années de cette devise et d’autres</translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation>Tri &amp;croissant</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>Tri décro&amp;issant</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Trier par %1</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %1 of %n calendars; the others are as they were.</source>
        <translation><numerusform>Arrêt après %1 calendrier sur %n ; les autres restent tels quels.</numerusform><numerusform>Arrêt après %1 calendriers sur %n ; les autres restent tels quels.</numerusform></translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>dimanche</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tableaux</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>Fichiers texte</translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation>Texte : %1</translation>
    </message>
    <message>
        <source>That is undone already (%1, %2).</source>
        <translation>C’est déjà annulé (%1, %2).</translation>
    </message>
    <message>
        <source>The Calendars window is busy.</source>
        <translation>La fenêtre des calendriers est occupée.</translation>
    </message>
    <message>
        <source>The book closes no weekday: without a rule of the kind weekday each Saturday and Sunday would be a working day</source>
        <translation>Le recueil ne ferme aucun jour de semaine : sans règle de type weekday, tous les samedis et dimanches seraient ouvrés</translation>
    </message>
    <message>
        <source>The book holds from %1 on, which is not %2</source>
        <translation>Le recueil vaut à partir de %1, qui n’est pas %2</translation>
    </message>
    <message>
        <source>The book holds since "%1", which is no year</source>
        <translation>Le recueil vaut depuis « %1 », qui n’est pas une année</translation>
    </message>
    <message>
        <source>The book names no document</source>
        <translation>Le recueil ne nomme aucun document</translation>
    </message>
    <message>
        <source>The book names no publisher</source>
        <translation>Le recueil ne nomme aucun éditeur</translation>
    </message>
    <message>
        <source>The book of %1 cannot be read: %2</source>
        <translation>Le recueil de %1 ne peut être lu : %2</translation>
    </message>
    <message>
        <source>The book of %1 cannot be used: %2</source>
        <translation>Le recueil de %1 est inutilisable : %2</translation>
    </message>
    <message>
        <source>The book of %1 cannot be used: %2.</source>
        <translation>Le recueil de %1 est inutilisable : %2.</translation>
    </message>
    <message>
        <source>The book of %1 does not close each %2</source>
        <translation>Le recueil de %1 ne ferme pas chaque %2</translation>
    </message>
    <message>
        <source>The book of %1 has it on %2</source>
        <translation>Le recueil de %1 l’a le %2</translation>
    </message>
    <message numerus="yes">
        <source>The book of %1 holds from %2 on, and calendars of earlier years are compared with no plan.</source>
        <translation><numerusform>Le recueil de %1 vaut à partir de %2 ; un calendrier d’une année antérieure n’est comparé à aucun plan.</numerusform><numerusform>Le recueil de %1 vaut à partir de %2 ; les calendriers des années antérieures ne sont comparés à aucun plan.</numerusform></translation>
    </message>
    <message>
        <source>The book of %1 holds from %2 on, so it does not tell what %3 should be</source>
        <translation>Le recueil de %1 vaut à partir de %2, il ne dit donc pas ce que %3 devrait être</translation>
    </message>
    <message>
        <source>The book of %1 is saved. Its calendars stay as they are until their years are planned again.</source>
        <translation>Le recueil de %1 est enregistré. Ses calendriers restent tels quels jusqu’à ce que leurs années soient replanifiées.</translation>
    </message>
    <message>
        <source>The calendar exists already</source>
        <translation>Le calendrier existe déjà</translation>
    </message>
    <message>
        <source>The celebration %1.</source>
        <translation>La fête fixe %1.</translation>
    </message>
    <message>
        <source>The clock was set forward then, and never showed this time.</source>
        <translation>L’horloge a alors été avancée et n’a jamais indiqué cette heure.</translation>
    </message>
    <message>
        <source>The comment has %1 characters; it may have %2 at most</source>
        <translation>Le commentaire a %1 caractères ; %2 au plus sont permis</translation>
    </message>
    <message>
        <source>The comment of the days has %1 characters; it may have %2 at most</source>
        <translation>Le commentaire des jours a %1 caractères ; %2 au plus sont permis</translation>
    </message>
    <message>
        <source>The database could not be read: %1</source>
        <translation>La base de données n’a pu être lue : %1</translation>
    </message>
    <message>
        <source>The database does not know the calendar</source>
        <translation>La base de données ne connaît pas le calendrier</translation>
    </message>
    <message>
        <source>The database does not know the currency</source>
        <translation>La base de données ne connaît pas la devise</translation>
    </message>
    <message>
        <source>The database does not know the rule</source>
        <translation>La base de données ne connaît pas la règle</translation>
    </message>
    <message>
        <source>The database gives the days of a calendar in a form that this program does not know, at byte %1 of their text</source>
        <translation>La base de données donne les jours d’un calendrier sous une forme que ce programme ne connaît pas, à l’octet %1 de leur texte</translation>
    </message>
    <message>
        <source>The database refused it, with the number %1</source>
        <translation>La base de données l’a refusé, avec le numéro %1</translation>
    </message>
    <message>
        <source>The date of %1 in %2 is not known: %3</source>
        <translation>La date de %1 en %2 n’est pas connue : %3</translation>
    </message>
    <message>
        <source>The dates of this year are not known yet</source>
        <translation>Les dates de cette année ne sont pas encore connues</translation>
    </message>
    <message>
        <source>The day is a working day by exception, and would be closed</source>
        <translation>Le jour est ouvré par exception et serait fermé</translation>
    </message>
    <message>
        <source>The default database</source>
        <translation>La base de données par défaut</translation>
    </message>
    <message>
        <source>The document has %1 characters; it may have %2 at most</source>
        <translation>Le document a %1 caractères ; %2 au plus sont permis</translation>
    </message>
    <message>
        <source>The expression has %1 characters; it may have %2 at most</source>
        <translation>L’expression a %1 caractères ; %2 au plus sont permis</translation>
    </message>
    <message>
        <source>The first is %1</source>
        <translation>Le premier est %1</translation>
    </message>
    <message>
        <source>The history does not keep what was there before: the call is older than its upgrade.</source>
        <translation>L’historique ne garde pas ce qu’il y avait avant : l’appel est antérieur à sa mise à niveau.</translation>
    </message>
    <message>
        <source>The history does not reach back so far.</source>
        <translation>L’historique ne remonte pas si loin.</translation>
    </message>
    <message>
        <source>The history has no entry %1.</source>
        <translation>L’historique n’a pas d’entrée %1.</translation>
    </message>
    <message>
        <source>The holiday point %1.</source>
        <translation>Le férié ponctuel %1.</translation>
    </message>
    <message>
        <source>The last year is before the first one.</source>
        <translation>La dernière année précède la première.</translation>
    </message>
    <message>
        <source>The list has %1 bytes; it may have %2 at most</source>
        <translation>La liste a %1 octets ; %2 au plus sont permis</translation>
    </message>
    <message>
        <source>The name has %1 characters; it may have %2 at most</source>
        <translation>Le nom a %1 caractères ; %2 au plus sont permis</translation>
    </message>
    <message>
        <source>The name of the file tells its format and ends in .ics, .csv, .json or .txt</source>
        <translation>Le nom du fichier indique son format et se termine par .ics, .csv, .json ou .txt</translation>
    </message>
    <message>
        <source>The name of the moved day has %1 characters; it may have %2 at most</source>
        <translation>Le nom du jour déplacé a %1 caractères ; %2 au plus sont permis</translation>
    </message>
    <message>
        <source>The newest change of %1 is "%2" (%3, %4). Undo that first.</source>
        <translation>La dernière modification de %1 est « %2 » (%3, %4). Annulez d’abord celle-ci.</translation>
    </message>
    <message>
        <source>The newest change of the same is "%1" (%2, %3). Undo that first.</source>
        <translation>La dernière modification de la même chose est « %1 » (%2, %3). Annulez d’abord celle-ci.</translation>
    </message>
    <message>
        <source>The plan does not know this year's dates of %1</source>
        <translation>Le plan ne connaît pas les dates de %1 de cette année</translation>
    </message>
    <message>
        <source>The plans of %1 stay as they are.</source>
        <translation>Les plans de %1 restent tels quels.</translation>
    </message>
    <message>
        <source>The publisher has %1 characters; it may have %2 at most</source>
        <translation>L’éditeur a %1 caractères ; %2 au plus sont permis</translation>
    </message>
    <message>
        <source>The review has found nothing</source>
        <translation>La revue n’a rien trouvé</translation>
    </message>
    <message>
        <source>The rule "%1" is %2, and the plan needs %3 of that name; rename it before</source>
        <translation>La règle « %1 » est %2, et le plan veut %3 de ce nom ; renommez-la d’abord</translation>
    </message>
    <message>
        <source>The rule "%1" is removed; restore it before</source>
        <translation>La règle « %1 » est supprimée ; restaurez-la d’abord</translation>
    </message>
    <message>
        <source>The rule %1 is removed. Restore it in the list of rules, or take another name.</source>
        <translation>La règle %1 est supprimée. Restaurez-la dans la liste des règles, ou prenez un autre nom.</translation>
    </message>
    <message>
        <source>The rule %1, "%2": %3</source>
        <translation>La règle %1, « %2 » : %3</translation>
    </message>
    <message>
        <source>The rule %1: %2</source>
        <translation>La règle %1 : %2</translation>
    </message>
    <message>
        <source>The rule book of %1 does not get the days, so that the board will call them differences. %2.</source>
        <translation>Le recueil de %1 ne reçoit pas les jours, le tableau y verra donc des différences. %2.</translation>
    </message>
    <message>
        <source>The rule book of %1 does not get the holiday, so that the board will call it a difference. %2.</source>
        <translation>Le recueil de %1 ne reçoit pas le férié, le tableau y verra donc une différence. %2.</translation>
    </message>
    <message>
        <source>The rule book of %1 has changes that are not saved. Lose them?</source>
        <translation>Le recueil de %1 a des modifications non enregistrées. Les abandonner ?</translation>
    </message>
    <message numerus="yes">
        <source>The rule book of %1 has got %n days.</source>
        <translation><numerusform>Le recueil de %1 a reçu %n jour.</numerusform><numerusform>Le recueil de %1 a reçu %n jours.</numerusform></translation>
    </message>
    <message>
        <source>The same date each year</source>
        <translation>La même date chaque année</translation>
    </message>
    <message>
        <source>The server does not answer. Nothing can be read or changed until it does.</source>
        <translation>Le serveur ne répond pas. D’ici là rien ne peut être lu ni modifié.</translation>
    </message>
    <message>
        <source>The year cannot be read: %1</source>
        <translation>L’année ne peut être lue : %1</translation>
    </message>
    <message>
        <source>There is a rule of that name already</source>
        <translation>Il y a déjà une règle de ce nom</translation>
    </message>
    <message>
        <source>There is no %1 in %2.</source>
        <translation>Il n’y a pas de %1 en %2.</translation>
    </message>
    <message>
        <source>There is no %1: the month has %2 days.</source>
        <translation>Il n’y a pas de %1 : le mois a %2 jours.</translation>
    </message>
    <message>
        <source>There is no calendar %1 %2, so nothing is known of its days</source>
        <translation>Il n’y a pas de calendrier %1 %2, rien n’est donc connu de ses jours</translation>
    </message>
    <message>
        <source>There is no calendar and no rule book</source>
        <translation>Il n’y a ni calendrier ni recueil de règles</translation>
    </message>
    <message>
        <source>There is no calendar and no rule book.</source>
        <translation>Il n’y a ni calendrier ni recueil de règles.</translation>
    </message>
    <message>
        <source>There is no calendar.</source>
        <translation>Il n’y a pas de calendrier.</translation>
    </message>
    <message>
        <source>There is no change of %1 of yours to undo.</source>
        <translation>Il n’y a aucune modification de %1 de vous à annuler.</translation>
    </message>
    <message>
        <source>There is no currency %1</source>
        <translation>Il n’y a pas de devise %1</translation>
    </message>
    <message>
        <source>There is no day %1.</source>
        <translation>Il n’y a pas de jour %1.</translation>
    </message>
    <message>
        <source>There is no such calendar</source>
        <translation>Il n’y a pas un tel calendrier</translation>
    </message>
    <message>
        <source>There now</source>
        <translation>Là maintenant</translation>
    </message>
    <message>
        <source>There now: %1</source>
        <translation>Là maintenant : %1</translation>
    </message>
    <message>
        <source>There was no such calendar then.</source>
        <translation>Il n’y avait pas alors un tel calendrier.</translation>
    </message>
    <message>
        <source>Third</source>
        <translation>Troisième</translation>
    </message>
    <message>
        <source>This calendar was changed since it was read.</source>
        <translation>Ce calendrier a été modifié depuis qu’il a été lu.</translation>
    </message>
    <message>
        <source>This calendar was removed.</source>
        <translation>Ce calendrier a été supprimé.</translation>
    </message>
    <message>
        <source>This cannot be imported, and nothing was changed.</source>
        <translation>Ceci ne peut pas être importé, et rien n'a été modifié.</translation>
    </message>
    <message>
        <source>This cannot be undone: a later change is of the same, or the history does not keep what was there before.</source>
        <translation>Ceci ne peut être annulé : une modification ultérieure porte sur la même chose, ou l’historique ne garde pas ce qu’il y avait avant.</translation>
    </message>
    <message>
        <source>This is no date. Write a day and a month without a year, such as %1 or %2.</source>
        <translation>Ce n’est pas une date. Écrivez un jour et un mois sans année, comme %1 ou %2.</translation>
    </message>
    <message>
        <source>This is no date. Write one such as %1 or %2 %3.</source>
        <translation>Ce n’est pas une date. Écrivez-en une comme %1 ou %2 %3.</translation>
    </message>
    <message>
        <source>This is no time. Write one such as 14:05 or 14:05:31.</source>
        <translation>Ce n’est pas une heure. Écrivez-en une comme 14:05 ou 14:05:31.</translation>
    </message>
    <message>
        <source>This moment is still to come.</source>
        <translation>Ce moment est encore à venir.</translation>
    </message>
    <message>
        <source>This text has %1 characters; %2 at most can be stored.</source>
        <translation>Ce texte a %1 caractères ; %2 au plus peuvent être enregistrés.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>jeudi</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>To be changed (%1): %2</source>
        <translation>À modifier (%1) : %2</translation>
    </message>
    <message>
        <source>To be changed: %1</source>
        <translation>À modifier : %1</translation>
    </message>
    <message>
        <source>To be removed (%1): %2</source>
        <translation>À supprimer (%1) : %2</translation>
    </message>
    <message>
        <source>To be removed: %1</source>
        <translation>À supprimer : %1</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Try now</source>
        <translation>Essayer maintenant</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>mardi</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Type what the holiday is called, or choose one that is known.</source>
        <translation>Écrivez le nom du férié, ou choisissez-en un connu.</translation>
    </message>
    <message>
        <source>Undid a change</source>
        <translation>Une modification annulée</translation>
    </message>
    <message>
        <source>Undid a change of %1</source>
        <translation>Une modification de %1 annulée</translation>
    </message>
    <message numerus="yes">
        <source>Undid the changes of %n calendars</source>
        <translation><numerusform>Modifications de %n calendrier annulées</numerusform><numerusform>Modifications de %n calendriers annulées</numerusform></translation>
    </message>
    <message>
        <source>Undid: %1</source>
        <translation>Annulé : %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Défaire</translation>
    </message>
    <message>
        <source>Undo a change</source>
        <translation>Annuler une modification</translation>
    </message>
    <message>
        <source>Undo a change of %1</source>
        <translation>Annuler une modification de %1</translation>
    </message>
    <message numerus="yes">
        <source>Undo in %1: %2, and the %n other changes that were made in the same step?</source>
        <translation><numerusform>Annuler dans %1 : %2, et %n autre modification de la même étape ?</numerusform><numerusform>Annuler dans %1 : %2, et %n autres modifications de la même étape ?</numerusform></translation>
    </message>
    <message>
        <source>Undo in %1: %2?</source>
        <translation>Annuler dans %1 : %2 ?</translation>
    </message>
    <message>
        <source>Undoes the last change that was made in a year planner, in all its calendars and rule books</source>
        <translation>Annule la dernière modification faite dans un planificateur annuel, dans tous ses calendriers et recueils de règles</translation>
    </message>
    <message>
        <source>Undoes your last change of this calendar</source>
        <translation>Annule votre dernière modification de ce calendrier</translation>
    </message>
    <message>
        <source>Undoing "%1"</source>
        <translation>Annulation de « %1 »</translation>
    </message>
    <message>
        <source>Undoing in %1: %2</source>
        <translation>Annulation dans %1 : %2</translation>
    </message>
    <message>
        <source>Undoing the entry %1</source>
        <translation>Annulation de l’entrée %1</translation>
    </message>
    <message>
        <source>Undoing the plan</source>
        <translation>Annulation du plan</translation>
    </message>
    <message>
        <source>Undoing the plan of %1, %2 of %3.</source>
        <translation>Annulation du plan de %1, %2 sur %3.</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>mercredi</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Jour de semaine</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Jours de semaine</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Week-end</translation>
    </message>
    <message>
        <source>Weekends only</source>
        <translation>Week-ends seulement</translation>
    </message>
    <message>
        <source>Weekends only: %1</source>
        <translation>Week-ends seulement : %1</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>What cannot be read in the list will stand here</source>
        <translation>Ce qui est illisible dans la liste s'affichera ici</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>Ce qui se passe</translation>
    </message>
    <message>
        <source>What is to be known</source>
        <translation>Ce qu'il faut savoir</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Ce qui est faux</translation>
    </message>
    <message>
        <source>What stands here may be out of date, for the database could not be read: %1</source>
        <translation>Ce qui est affiché peut être périmé, car la base de données n’a pu être lue : %1</translation>
    </message>
    <message>
        <source>What the list would change is shown before anything is changed.</source>
        <translation>Ce que la liste changerait est montré avant tout changement.</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Ce qui a été fait</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quand</translation>
    </message>
    <message>
        <source>When moved</source>
        <translation>Si déplacé</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Qui</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Pourquoi</translation>
    </message>
    <message>
        <source>Working day</source>
        <translation>Jour ouvré</translation>
    </message>
    <message>
        <source>Working day by exception</source>
        <translation>Jour ouvré par exception</translation>
    </message>
    <message>
        <source>Writes calendars to a file for other programs</source>
        <translation>Écrit des calendriers dans un fichier pour d'autres programmes</translation>
    </message>
    <message>
        <source>Writes the year into a PNG file</source>
        <translation>Écrit l’année dans un fichier PNG</translation>
    </message>
    <message>
        <source>Writes the year into a file for reading and printing</source>
        <translation>Écrit l’année dans un fichier à lire et imprimer</translation>
    </message>
    <message>
        <source>Writing the book of %1</source>
        <translation>Écriture du recueil de %1</translation>
    </message>
    <message>
        <source>Written by hand</source>
        <translation>Écrite à la main</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Year plan</source>
        <translation>Plan annuel</translation>
    </message>
    <message>
        <source>Year plan...</source>
        <translation>Plan annuel...</translation>
    </message>
    <message>
        <source>Year planner</source>
        <translation>Planificateur annuel</translation>
    </message>
    <message>
        <source>Year planner - %1</source>
        <translation>Planificateur annuel – %1</translation>
    </message>
    <message>
        <source>Year planner...</source>
        <translation>Planificateur annuel...</translation>
    </message>
    <message>
        <source>a %1</source>
        <translation>un %1</translation>
    </message>
    <message>
        <source>a UTC offset -12:00 to +14:00</source>
        <translation>un décalage UTC de -12:00 à +14:00</translation>
    </message>
    <message>
        <source>a celebration</source>
        <translation>une fête fixe</translation>
    </message>
    <message>
        <source>a comma or the end</source>
        <translation>une virgule ou la fin</translation>
    </message>
    <message>
        <source>a date such as 05-18, easter or 4th Thursday of 11</source>
        <translation>une date comme 05-18, easter ou 4th Thursday of 11</translation>
    </message>
    <message>
        <source>a date such as 12-25, easter-2 or 1st Monday of 05</source>
        <translation>une date comme 12-25, easter-2 ou 1st Monday of 05</translation>
    </message>
    <message>
        <source>a date that follows at most %1 weekdays</source>
        <translation>une date qui suit au plus %1 jours de semaine</translation>
    </message>
    <message>
        <source>a day between two holidays</source>
        <translation>un jour entre deux fériés</translation>
    </message>
    <message>
        <source>a day of the month</source>
        <translation>un jour du mois</translation>
    </message>
    <message>
        <source>a day of the table %1</source>
        <translation>un jour de la table %1</translation>
    </message>
    <message>
        <source>a day that is not known yet</source>
        <translation>un jour pas encore connu</translation>
    </message>
    <message>
        <source>a holiday point</source>
        <translation>un férié ponctuel</translation>
    </message>
    <message>
        <source>a later call changed the same, or the history does not reach there</source>
        <translation>un appel ultérieur a modifié la même chose, ou l’historique ne remonte pas si loin</translation>
    </message>
    <message>
        <source>a month 01 to 12</source>
        <translation>un mois de 01 à 12</translation>
    </message>
    <message>
        <source>a month 01 to 12 (a date is MM-DD or YYYY-MM-DD)</source>
        <translation>un mois de 01 à 12 (une date est MM-DD ou YYYY-MM-DD)</translation>
    </message>
    <message>
        <source>a move, else not observed, from, to, only, not or the end</source>
        <translation>un déplacement, else not observed, from, to, only, not ou la fin</translation>
    </message>
    <message>
        <source>a new calendar, %1</source>
        <translation>un nouveau calendrier, %1</translation>
    </message>
    <message>
        <source>a number of days up to %1</source>
        <translation>un nombre de jours jusqu’à %1</translation>
    </message>
    <message>
        <source>a point</source>
        <translation>un férié ponctuel</translation>
    </message>
    <message>
        <source>a removed rule has that name</source>
        <translation>une règle supprimée porte ce nom</translation>
    </message>
    <message>
        <source>a rule without a name</source>
        <translation>une règle sans nom</translation>
    </message>
    <message>
        <source>a value is missing, malformed or out of range</source>
        <translation>une valeur manque, est mal formée ou hors limites</translation>
    </message>
    <message>
        <source>a weekday</source>
        <translation>un jour de semaine</translation>
    </message>
    <message>
        <source>a weekday holiday</source>
        <translation>un férié hebdomadaire</translation>
    </message>
    <message>
        <source>a weekday or free day</source>
        <translation>un jour de semaine ou free day</translation>
    </message>
    <message>
        <source>a weekday or taken</source>
        <translation>un jour de semaine ou taken</translation>
    </message>
    <message>
        <source>a weekday, next or previous</source>
        <translation>un jour de semaine, next ou previous</translation>
    </message>
    <message>
        <source>a working day</source>
        <translation>un jour ouvré</translation>
    </message>
    <message>
        <source>a working day%1</source>
        <translation>un jour ouvré%1</translation>
    </message>
    <message>
        <source>a year %1 to %2</source>
        <translation>une année de %1 à %2</translation>
    </message>
    <message>
        <source>a year from %1 on</source>
        <translation>une année à partir de %1</translation>
    </message>
    <message>
        <source>add</source>
        <translation>ajouter</translation>
    </message>
    <message>
        <source>after</source>
        <translation>après</translation>
    </message>
    <message>
        <source>after or before</source>
        <translation>after ou before</translation>
    </message>
    <message>
        <source>all closed: %1</source>
        <translation>tous fermés : %1</translation>
    </message>
    <message>
        <source>all open</source>
        <translation>tous ouverts</translation>
    </message>
    <message>
        <source>another holiday</source>
        <translation>un autre férié</translation>
    </message>
    <message>
        <source>as in the list%1</source>
        <translation>comme dans la liste%1</translation>
    </message>
    <message>
        <source>as planned%1</source>
        <translation>conforme au plan%1</translation>
    </message>
    <message>
        <source>as planned: %1</source>
        <translation>conforme au plan : %1</translation>
    </message>
    <message>
        <source>ascending</source>
        <translation>croissant</translation>
    </message>
    <message>
        <source>autumnal</source>
        <translation>d’automne</translation>
    </message>
    <message>
        <source>before</source>
        <translation>avant</translation>
    </message>
    <message>
        <source>celebration</source>
        <translation>fête fixe</translation>
    </message>
    <message>
        <source>certain years</source>
        <translation>certaines années</translation>
    </message>
    <message>
        <source>closed: %1</source>
        <translation>fermés : %1</translation>
    </message>
    <message>
        <source>code</source>
        <translation>code</translation>
    </message>
    <message>
        <source>collapsed</source>
        <translation>réduit</translation>
    </message>
    <message>
        <source>comment</source>
        <translation>commentaire</translation>
    </message>
    <message>
        <source>date</source>
        <translation>date</translation>
    </message>
    <message>
        <source>dates</source>
        <translation>dates</translation>
    </message>
    <message>
        <source>days to spot</source>
        <translation>jours jusqu’au spot</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>décroissant</translation>
    </message>
    <message>
        <source>document</source>
        <translation>document</translation>
    </message>
    <message>
        <source>eight</source>
        <translation>huit</translation>
    </message>
    <message>
        <source>eleven</source>
        <translation>onze</translation>
    </message>
    <message>
        <source>ever</source>
        <translation>toujours</translation>
    </message>
    <message>
        <source>every %1</source>
        <translation>chaque %1</translation>
    </message>
    <message>
        <source>exception</source>
        <translation>exception</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>développé</translation>
    </message>
    <message>
        <source>fifth</source>
        <translation>cinquième</translation>
    </message>
    <message>
        <source>first</source>
        <translation>premier</translation>
    </message>
    <message>
        <source>five</source>
        <translation>cinq</translation>
    </message>
    <message>
        <source>for a reason that this program does not know</source>
        <translation>pour une raison que ce programme ne connaît pas</translation>
    </message>
    <message>
        <source>four</source>
        <translation>quatre</translation>
    </message>
    <message>
        <source>fourth</source>
        <translation>quatrième</translation>
    </message>
    <message numerus="yes">
        <source>gets them as dates of their own</source>
        <translation><numerusform>le reçoit comme date propre</numerusform><numerusform>les reçoit comme dates propres</numerusform></translation>
    </message>
    <message>
        <source>has something else there, and stays as it is</source>
        <translation>y a autre chose, et reste tel quel</translation>
    </message>
    <message>
        <source>has the day already</source>
        <translation>a déjà le jour</translation>
    </message>
    <message>
        <source>holiday point</source>
        <translation>férié ponctuel</translation>
    </message>
    <message numerus="yes">
        <source>in %n days</source>
        <translation><numerusform>dans %n jour</numerusform><numerusform>dans %n jours</numerusform></translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>incomplet</translation>
    </message>
    <message>
        <source>is %1 and should be %2</source>
        <translation>est %1 et devrait être %2</translation>
    </message>
    <message>
        <source>is %1, which is on a %2 in every other year</source>
        <translation>est %1, qui tombe un %2 toutes les autres années</translation>
    </message>
    <message>
        <source>is %1, whose date is %2</source>
        <translation>est %1, dont la date est le %2</translation>
    </message>
    <message>
        <source>is a working day by exception, "%1", where the plan has %2</source>
        <translation>est ouvré par exception, « %1 », là où le plan a %2</translation>
    </message>
    <message>
        <source>is a working day by exception, without a reason</source>
        <translation>est ouvré par exception, sans motif</translation>
    </message>
    <message>
        <source>is a working day by exception, without a reason, and should be %1</source>
        <translation>est ouvré par exception, sans motif, et devrait être %1</translation>
    </message>
    <message>
        <source>is closed</source>
        <translation>est fermé</translation>
    </message>
    <message>
        <source>is closed, but the rule book has %1 there</source>
        <translation>est fermé, mais le recueil y a %1</translation>
    </message>
    <message>
        <source>is closed; the exception goes</source>
        <translation>est fermé ; l’exception disparaît</translation>
    </message>
    <message>
        <source>is closed; the exception goes, which has opened nothing</source>
        <translation>est fermé ; l’exception disparaît, qui n’a rien ouvert</translation>
    </message>
    <message>
        <source>it exists already</source>
        <translation>cela existe déjà</translation>
    </message>
    <message>
        <source>it was changed meanwhile</source>
        <translation>cela a été modifié entre-temps</translation>
    </message>
    <message>
        <source>keep</source>
        <translation>garder</translation>
    </message>
    <message>
        <source>kind</source>
        <translation>type</translation>
    </message>
    <message>
        <source>last</source>
        <translation>dernier</translation>
    </message>
    <message>
        <source>last day as money</source>
        <translation>dernier jour comme monnaie</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>ligne %1</translation>
    </message>
    <message>
        <source>line %1 of %2</source>
        <translation>ligne %1 sur %2</translation>
    </message>
    <message>
        <source>minutes 00 to 59</source>
        <translation>des minutes de 00 à 59</translation>
    </message>
    <message>
        <source>money</source>
        <translation>monnaie</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>name of a moved day</source>
        <translation>nom d’un jour déplacé</translation>
    </message>
    <message>
        <source>nine</source>
        <translation>neuf</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>no calendar</source>
        <translation>pas de calendrier</translation>
    </message>
    <message>
        <source>no calendar is made</source>
        <translation>aucun calendrier n’est créé</translation>
    </message>
    <message>
        <source>no calendar of %1</source>
        <translation>pas de calendrier de %1</translation>
    </message>
    <message>
        <source>no day</source>
        <translation>aucun jour</translation>
    </message>
    <message>
        <source>no day set</source>
        <translation>aucun jour fixé</translation>
    </message>
    <message>
        <source>no money</source>
        <translation>pas une monnaie</translation>
    </message>
    <message>
        <source>no plan</source>
        <translation>pas de plan</translation>
    </message>
    <message>
        <source>no warnings</source>
        <translation>aucun avertissement</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>not prepared</source>
        <translation>non préparé</translation>
    </message>
    <message>
        <source>not prepared: %1</source>
        <translation>non préparés : %1</translation>
    </message>
    <message>
        <source>nothing: there is no such calendar. Prepare the year first</source>
        <translation>rien : il n’y a pas un tel calendrier. Préparez d’abord l’année</translation>
    </message>
    <message>
        <source>of an unknown type</source>
        <translation>d’un type inconnu</translation>
    </message>
    <message>
        <source>on %1</source>
        <translation>le %1</translation>
    </message>
    <message>
        <source>on or after</source>
        <translation>à partir du</translation>
    </message>
    <message>
        <source>on or before</source>
        <translation>au plus tard le</translation>
    </message>
    <message>
        <source>on the day itself</source>
        <translation>le jour même</translation>
    </message>
    <message>
        <source>one</source>
        <translation>un</translation>
    </message>
    <message>
        <source>one of 1st, 2nd, 3rd, 4th, 5th and last</source>
        <translation>l’un de 1st, 2nd, 3rd, 4th, 5th et last</translation>
    </message>
    <message>
        <source>one of on or after, after, on or before and before</source>
        <translation>l’un de on or after, after, on or before et before</translation>
    </message>
    <message>
        <source>only, not or the end</source>
        <translation>only, not ou la fin</translation>
    </message>
    <message>
        <source>open as far as known</source>
        <translation>ouverts pour ce qui est connu</translation>
    </message>
    <message numerus="yes">
        <source>open together on %n days</source>
        <translation><numerusform>ouverts ensemble %n jour</numerusform><numerusform>ouverts ensemble %n jours</numerusform></translation>
    </message>
    <message>
        <source>publisher</source>
        <translation>éditeur</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>remove</source>
        <translation>supprimer</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>supprimé</translation>
    </message>
    <message>
        <source>replace</source>
        <translation>remplacer</translation>
    </message>
    <message>
        <source>rule %1</source>
        <translation>règle %1</translation>
    </message>
    <message>
        <source>second</source>
        <translation>deuxième</translation>
    </message>
    <message>
        <source>seven</source>
        <translation>sept</translation>
    </message>
    <message>
        <source>should be %1: %2</source>
        <translation>devrait être %1 : %2</translation>
    </message>
    <message>
        <source>should be an ordinary working day%1</source>
        <translation>devrait être un jour ouvré ordinaire%1</translation>
    </message>
    <message>
        <source>since</source>
        <translation>depuis</translation>
    </message>
    <message>
        <source>six</source>
        <translation>six</translation>
    </message>
    <message>
        <source>something else has that name already</source>
        <translation>autre chose porte déjà ce nom</translation>
    </message>
    <message>
        <source>sorted ascending</source>
        <translation>tri croissant</translation>
    </message>
    <message>
        <source>sorted descending</source>
        <translation>tri décroissant</translation>
    </message>
    <message numerus="yes">
        <source>stays as it is: differences on the board</source>
        <translation><numerusform>reste tel quel : différence au tableau</numerusform><numerusform>reste tel quel : différences au tableau</numerusform></translation>
    </message>
    <message>
        <source>stays as it is: it is closed already</source>
        <translation>reste tel quel : il est déjà fermé</translation>
    </message>
    <message>
        <source>stays open</source>
        <translation>reste ouvert</translation>
    </message>
    <message>
        <source>stopped by holidays of the dollar</source>
        <translation>arrêté par les fériés du dollar</translation>
    </message>
    <message>
        <source>ten</source>
        <translation>dix</translation>
    </message>
    <message>
        <source>the %1</source>
        <translation>le %1</translation>
    </message>
    <message>
        <source>the %1 %2 of %3 %4</source>
        <translation>le %1 %2 de %3 %4</translation>
    </message>
    <message>
        <source>the book has no day of that year yet</source>
        <translation>le recueil n’a encore aucun jour de cette année</translation>
    </message>
    <message>
        <source>the currency is unknown, or is no money in that year</source>
        <translation>la devise est inconnue, ou n’est pas une monnaie cette année-là</translation>
    </message>
    <message>
        <source>the day of the %1 equinox %2 at UTC%3</source>
        <translation>le jour de l’équinoxe %1 %2 à UTC%3</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>la fin</translation>
    </message>
    <message>
        <source>the end of at most %1 moves</source>
        <translation>la fin d’au plus %1 déplacements</translation>
    </message>
    <message>
        <source>the name of a table</source>
        <translation>le nom d’une table</translation>
    </message>
    <message>
        <source>the name of a table, of letters, digits and single hyphens,</source>
        <translation>le nom d’une table, de lettres, chiffres et traits d’union isolés,</translation>
    </message>
    <message>
        <source>the next %1</source>
        <translation>prochain %1</translation>
    </message>
    <message>
        <source>the next free day</source>
        <translation>prochain jour libre</translation>
    </message>
    <message>
        <source>the previous %1</source>
        <translation>précédent %1</translation>
    </message>
    <message>
        <source>the previous free day</source>
        <translation>précédent jour libre</translation>
    </message>
    <message>
        <source>the table %1 reaches from %2 to %3</source>
        <translation>la table %1 va de %2 à %3</translation>
    </message>
    <message>
        <source>there is no such calendar</source>
        <translation>il n’y a pas un tel calendrier</translation>
    </message>
    <message>
        <source>there is no such rule</source>
        <translation>il n’y a pas une telle règle</translation>
    </message>
    <message>
        <source>there is no table %1</source>
        <translation>il n’y a pas de table %1</translation>
    </message>
    <message>
        <source>there is no type %1 of rules</source>
        <translation>il n’y a pas de type %1 de règles</translation>
    </message>
    <message>
        <source>third</source>
        <translation>troisième</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>cet ordinateur</translation>
    </message>
    <message>
        <source>three</source>
        <translation>trois</translation>
    </message>
    <message>
        <source>to</source>
        <translation>à</translation>
    </message>
    <message>
        <source>to year</source>
        <translation>à l'année</translation>
    </message>
    <message>
        <source>to, only, not or the end</source>
        <translation>to, only, not ou la fin</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>demain</translation>
    </message>
    <message>
        <source>twelve</source>
        <translation>douze</translation>
    </message>
    <message>
        <source>two</source>
        <translation>deux</translation>
    </message>
    <message>
        <source>type</source>
        <translation>type</translation>
    </message>
    <message>
        <source>vernal</source>
        <translation>de printemps</translation>
    </message>
    <message>
        <source>weekday</source>
        <translation>jour de semaine</translation>
    </message>
    <message>
        <source>weekend</source>
        <translation>week-end</translation>
    </message>
    <message>
        <source>weekend, closed</source>
        <translation>week-end, fermé</translation>
    </message>
    <message>
        <source>working day</source>
        <translation>jour ouvré</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
</context>
<context>
    <name>fmAddHoliday</name>
    <message>
        <source>Full date</source>
        <translation>Date complète</translation>
    </message>
</context>
<context>
    <name>fmAssignPreview</name>
    <message>
        <source>The current rule</source>
        <translation>La règle courante</translation>
    </message>
    <message>
        <source>What each rule would do</source>
        <translation>Ce que chaque règle ferait</translation>
    </message>
</context>
<context>
    <name>fmCalendar</name>
    <message>
        <source>Currencies and calendars</source>
        <translation>Devises et calendriers</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Jours</translation>
    </message>
    <message>
        <source>The same day in the years around</source>
        <translation>Le même jour des années voisines</translation>
    </message>
    <message>
        <source>Which days</source>
        <translation>Quels jours</translation>
    </message>
    <message>
        <source>Why the day is what it is</source>
        <translation>Pourquoi le jour est ce qu’il est</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
</context>
<context>
    <name>fmCalendarThen</name>
    <message>
        <source>Days</source>
        <translation>Jours</translation>
    </message>
</context>
<context>
    <name>fmCloseDays</name>
    <message>
        <source>What will happen</source>
        <translation>Ce qui va se passer</translation>
    </message>
</context>
<context>
    <name>fmEnterHolidays</name>
    <message>
        <source>Holidays</source>
        <translation>Fériés</translation>
    </message>
    <message>
        <source>Which rules</source>
        <translation>Quelles règles</translation>
    </message>
</context>
<context>
    <name>fmHistory</name>
    <message>
        <source>Changes</source>
        <translation>Modifications</translation>
    </message>
    <message>
        <source>What the change replaced</source>
        <translation>Ce que la modification a remplacé</translation>
    </message>
</context>
<context>
    <name>fmImport</name>
    <message>
        <source>What is wrong in the list</source>
        <translation>Ce qui est faux dans la liste</translation>
    </message>
</context>
<context>
    <name>fmMessage</name>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
</context>
<context>
    <name>fmReadiness</name>
    <message>
        <source>Findings of the review</source>
        <translation>Constats de la revue</translation>
    </message>
    <message>
        <source>Readiness of the currencies</source>
        <translation>État de préparation des devises</translation>
    </message>
</context>
<context>
    <name>fmRuleBook</name>
    <message>
        <source>Before or after the date</source>
        <translation>Avant ou après la date</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Days before or after</source>
        <translation>Jours avant ou après</translation>
    </message>
    <message>
        <source>Days of the rule in ten years</source>
        <translation>Jours de la règle sur dix ans</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Règle</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Règles</translation>
    </message>
    <message>
        <source>Table of dates</source>
        <translation>Table de dates</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Jour de semaine</translation>
    </message>
    <message>
        <source>Which one of the month</source>
        <translation>Le quantième du mois</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
</context>
<context>
    <name>fmSelectYear</name>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
</context>
<context>
    <name>fmYearPlan</name>
    <message>
        <source>Days that differ from the plan</source>
        <translation>Jours qui diffèrent du plan</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Ce qui a été fait</translation>
    </message>
</context>
<context>
    <name>fmYearPlanner</name>
    <message>
        <source>Codes of currencies, such as EUR USD, or ALL</source>
        <translation>Codes de devises, comme EUR USD, ou ALL</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
</context>
</TS>
