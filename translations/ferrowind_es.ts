<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ferrowind</name>
    <message>
        <source> but for %1</source>
        <translation> salvo %1</translation>
    </message>
    <message>
        <source>"%1" is %2 in %3 and %4 in %5: a celebration has one date</source>
        <translation>«%1» es %2 en %3 y %4 en %5: un festivo fijo tiene una sola fecha</translation>
    </message>
    <message>
        <source>"%1" is %2 in %3 and %4 in %5: a name has one kind</source>
        <translation>«%1» es %2 en %3 y %4 en %5: un nombre tiene un solo tipo</translation>
    </message>
    <message>
        <source>"%1" is %2: a celebration has one date</source>
        <translation>«%1» es %2: un festivo fijo tiene una sola fecha</translation>
    </message>
    <message>
        <source>"%1" is %2: a name has one kind</source>
        <translation>«%1» es %2: un nombre tiene un solo tipo</translation>
    </message>
    <message>
        <source>"%1" is no year from %2 to %3</source>
        <translation>«%1» no es un año de %2 a %3</translation>
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
        <translation>%1 %2 de %3 de %4</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (%2) asks for the table %3, and there is none of that name</source>
        <translation>%1 (%2) pide la tabla %3, y no hay ninguna con ese nombre</translation>
    </message>
    <message>
        <source>%1 (%2) has no name</source>
        <translation>%1 (%2) no tiene nombre</translation>
    </message>
    <message>
        <source>%1 (%2) has the name of the built-in rule "%3", which no book can have</source>
        <translation>%1 (%2) tiene el nombre de la regla integrada «%3», que ningún reglamento puede tener</translation>
    </message>
    <message>
        <source>%1 (%2) is a day between holidays, so its kind is point</source>
        <translation>%1 (%2) es un día entre festivos, así que su tipo es point</translation>
    </message>
    <message>
        <source>%1 (%2) is each week on a weekday, so its kind is weekday</source>
        <translation>%1 (%2) es cada semana un día de la semana, así que su tipo es weekday</translation>
    </message>
    <message>
        <source>%1 (%2) is not on the same date each year, so its kind is point</source>
        <translation>%1 (%2) no cae cada año en la misma fecha, así que su tipo es point</translation>
    </message>
    <message>
        <source>%1 (%2) is of the kind weekday, so its expression is "weekday" and a weekday</source>
        <translation>%1 (%2) es de tipo weekday, así que su expresión es «weekday» y un día de la semana</translation>
    </message>
    <message>
        <source>%1 (%2) is on no day of any year</source>
        <translation>%1 (%2) no cae en ningún día de ningún año</translation>
    </message>
    <message>
        <source>%1 (%2) moves off a %3 to the nearest %3, which is the same day</source>
        <translation>%1 (%2) pasa de %3 al %3 más cercano, que es el mismo día</translation>
    </message>
    <message>
        <source>%1 (%2) moves off a %3, a working day, and takes its name along, so its kind is point</source>
        <translation>%1 (%2) deja un %3, día hábil, y se lleva su nombre, así que su tipo es point</translation>
    </message>
    <message>
        <source>%1 (%2) names its moved day, but does not move</source>
        <translation>%1 (%2) nombra su día trasladado, pero no se traslada</translation>
    </message>
    <message>
        <source>%1 (%2) neither moves nor is dropped: it is a working day, a weekday, a day between holidays or unknown</source>
        <translation>%1 (%2) ni se traslada ni se suprime: es un día hábil, un día de la semana, un día entre festivos o desconocido</translation>
    </message>
    <message>
        <source>%1 (%2) says the same as %3</source>
        <translation>%1 (%2) dice lo mismo que %3</translation>
    </message>
    <message>
        <source>%1 (a move stands before else, from and to)</source>
        <translation>%1 (un traslado va antes de else, from y to)</translation>
    </message>
    <message>
        <source>%1 (moved day)</source>
        <translation>%1 (día trasladado)</translation>
    </message>
    <message>
        <source>%1 (redone)</source>
        <translation>%1 (rehecho)</translation>
    </message>
    <message>
        <source>%1 (undone)</source>
        <translation>%1 (deshecho)</translation>
    </message>
    <message>
        <source>%1 - today</source>
        <translation>%1 – hoy</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n others</source>
        <translation><numerusform>%1 y %n más</numerusform><numerusform>%1 y %n más</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 and entered in %n rule books</source>
        <translation><numerusform>%1, e inscrito en %n reglamento</numerusform><numerusform>%1, e inscrito en %n reglamentos</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 and entered in %n rule books.</source>
        <translation><numerusform>%1, e inscrito en %n reglamento.</numerusform><numerusform>%1, e inscrito en %n reglamentos.</numerusform></translation>
    </message>
    <message>
        <source>%1 as far as known; %2</source>
        <translation>%1 hasta donde se sabe; %2</translation>
    </message>
    <message>
        <source>%1 as it was after: %2 — %3, %4</source>
        <translation>%1 tal como quedó tras: %2 — %3, %4</translation>
    </message>
    <message>
        <source>%1 as it was at: %2</source>
        <translation>%1 tal como estaba el: %2</translation>
    </message>
    <message>
        <source>%1 as of %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1 assigned</source>
        <translation>%1 asignadas</translation>
    </message>
    <message>
        <source>%1 can be %2 or %3. Write the name of the month.</source>
        <translation>%1 puede ser %2 o %3. Escriba el nombre del mes.</translation>
    </message>
    <message>
        <source>%1 cannot be judged in full. %2.</source>
        <translation>%1 no puede juzgarse por completo. %2.</translation>
    </message>
    <message>
        <source>%1 cannot be planned in full. %2.</source>
        <translation>%1 no puede planificarse por completo. %2.</translation>
    </message>
    <message>
        <source>%1 changed this calendar, %2: %3.</source>
        <translation>%1 modificó este calendario, %2: %3.</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 hechas</translation>
    </message>
    <message>
        <source>%1 from %2 to %3</source>
        <translation>%1 del %2 al %3</translation>
    </message>
    <message>
        <source>%1 has an unusual number of holidays beside its weekends: %2, and %3 in the other years.</source>
        <translation>%1 tiene un número inusual de festivos aparte de los fines de semana: %2, y %3 en los demás años.</translation>
    </message>
    <message>
        <source>%1 has holidays, and no rule book tells whether they are right.</source>
        <translation>%1 tiene festivos, y ningún reglamento dice si son correctos.</translation>
    </message>
    <message>
        <source>%1 has no book, so nothing tells what its calendars should be</source>
        <translation>%1 no tiene reglamento, así que nada dice cómo deberían ser sus calendarios</translation>
    </message>
    <message>
        <source>%1 has no book, so nothing tells what its calendars should be.</source>
        <translation>%1 no tiene reglamento, así que nada dice cómo deberían ser sus calendarios.</translation>
    </message>
    <message>
        <source>%1 has no calendar for %2, the running year.</source>
        <translation>%1 no tiene calendario para %2, el año en curso.</translation>
    </message>
    <message>
        <source>%1 has no calendar for %2.</source>
        <translation>%1 no tiene calendario para %2.</translation>
    </message>
    <message>
        <source>%1 has no calendar.</source>
        <translation>%1 no tiene calendario.</translation>
    </message>
    <message>
        <source>%1 has no calendars: it is no money</source>
        <translation>%1 no tiene calendarios: no es moneda de curso</translation>
    </message>
    <message>
        <source>%1 has no closed day.</source>
        <translation>%1 no tiene ningún día cerrado.</translation>
    </message>
    <message>
        <source>%1 has no rule book</source>
        <translation>%1 no tiene reglamento</translation>
    </message>
    <message>
        <source>%1 has no rule book yet, so that nothing can be planned for it. Say who publishes its holidays and where, add its rules, and save them.</source>
        <translation>%1 aún no tiene reglamento, así que no se puede planificar nada. Indique quién publica sus festivos y dónde, añada sus reglas y guárdelas.</translation>
    </message>
    <message>
        <source>%1 has no weekends: no weekday holiday closes any of its days.</source>
        <translation>%1 no tiene fines de semana: ningún festivo semanal cierra sus días.</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>%1 is %2.</source>
        <translation>%1 es %2.</translation>
    </message>
    <message>
        <source>%1 is a %2.</source>
        <translation>%1 es un %2.</translation>
    </message>
    <message>
        <source>%1 is a %2; moved to %3</source>
        <translation>%1 es un %2; trasladado al %3</translation>
    </message>
    <message>
        <source>%1 is a rule for one weekday of every week. Take another name.</source>
        <translation>%1 es una regla para un día de cada semana. Use otro nombre.</translation>
    </message>
    <message>
        <source>%1 is a rule that opens days. Take another name.</source>
        <translation>%1 es una regla que abre días. Use otro nombre.</translation>
    </message>
    <message>
        <source>%1 is as in the list now%2.</source>
        <translation>%1 ya está como en la lista%2.</translation>
    </message>
    <message>
        <source>%1 is as it was before.</source>
        <translation>%1 está como antes.</translation>
    </message>
    <message>
        <source>%1 is as planned now%2.</source>
        <translation>%1 ya está conforme al plan%2.</translation>
    </message>
    <message>
        <source>%1 is as planned.</source>
        <translation>%1 está conforme al plan.</translation>
    </message>
    <message>
        <source>%1 is closed on weekends only.</source>
        <translation>%1 solo cierra los fines de semana.</translation>
    </message>
    <message>
        <source>%1 is made%2.</source>
        <translation>%1 está creado%2.</translation>
    </message>
    <message>
        <source>%1 is money until %2</source>
        <translation>%1 es moneda de curso hasta el %2</translation>
    </message>
    <message>
        <source>%1 is no date expression: at %2, %3 is expected</source>
        <translation>%1 no es una expresión de fecha: en %2 se espera %3</translation>
    </message>
    <message>
        <source>%1 is no money</source>
        <translation>%1 no es moneda de curso</translation>
    </message>
    <message>
        <source>%1 is not observed on a closed day: %2</source>
        <translation>%1 no se observa en un día cerrado: %2</translation>
    </message>
    <message>
        <source>%1 is on %2 each year. Take another name for another day.</source>
        <translation>%1 es el %2 cada año. Use otro nombre para otro día.</translation>
    </message>
    <message>
        <source>%1 is on this day too: %2</source>
        <translation>%1 cae también en este día: %2</translation>
    </message>
    <message>
        <source>%1 is taken by %2; moved to %3</source>
        <translation>%1 está ocupado por %2; trasladado al %3</translation>
    </message>
    <message>
        <source>%1 is there already. Is it to be replaced?</source>
        <translation>%1 ya existe. ¿Reemplazar el archivo?</translation>
    </message>
    <message>
        <source>%1 moved from here to %2</source>
        <translation>%1 se trasladó de aquí al %2</translation>
    </message>
    <message>
        <source>%1 not tried</source>
        <translation>%1 sin intentar</translation>
    </message>
    <message>
        <source>%1 of %2 currencies for %3</source>
        <translation>%1 de %2 divisas para %3</translation>
    </message>
    <message>
        <source>%1 of %2 days</source>
        <translation>%1 de %2 días</translation>
    </message>
    <message>
        <source>%1 of %2 rules</source>
        <translation>%1 de %2 reglas</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rules</source>
        <translation><numerusform>%1 de %n regla</numerusform><numerusform>%1 de %n reglas</numerusform></translation>
    </message>
    <message>
        <source>%1 of the table %2</source>
        <translation>%1 de la tabla %2</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>%1 refused</source>
        <translation>%1 rechazadas</translation>
    </message>
    <message>
        <source>%1 removed this calendar, %2: %3.</source>
        <translation>%1 eliminó este calendario, %2: %3.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else meanwhile. It is left as it is; look at its days again.</source>
        <translation>Otra persona modificó %1 entretanto. Queda como está; mire de nuevo sus días.</translation>
    </message>
    <message>
        <source>%1 was changed meanwhile; nothing was changed in it, and its plan is made anew.</source>
        <translation>%1 fue modificado entretanto; no se cambió nada en él, y su plan se rehace.</translation>
    </message>
    <message>
        <source>%1 was not tried.</source>
        <translation>%1 no se intentó.</translation>
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
        <translation><numerusform>%1, %2 día después</numerusform><numerusform>%1, %2 días después</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 days before</source>
        <translation><numerusform>%1, %2 día antes</numerusform><numerusform>%1, %2 días antes</numerusform></translation>
    </message>
    <message>
        <source>%1, %2 of them weekends</source>
        <translation>%1, de ellos %2 de fin de semana</translation>
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
        <translation>%1, %2: no se puede leer por qué es así.</translation>
    </message>
    <message>
        <source>%1, and entered in no rule book.</source>
        <translation>%1, y no inscrito en ningún reglamento.</translation>
    </message>
    <message>
        <source>%1, closed</source>
        <translation>%1, cerrado</translation>
    </message>
    <message>
        <source>%1, from %2 on</source>
        <translation>%1, desde %2</translation>
    </message>
    <message>
        <source>%1, next year</source>
        <translation>%1, año próximo</translation>
    </message>
    <message>
        <source>%1, only in %2</source>
        <translation>%1, solo en %2</translation>
    </message>
    <message>
        <source>%1, only on %2</source>
        <translation>%1, solo si es %2</translation>
    </message>
    <message>
        <source>%1, so it has no calendar of %2</source>
        <translation>%1, así que no tiene calendario de %2</translation>
    </message>
    <message>
        <source>%1, this year</source>
        <translation>%1, este año</translation>
    </message>
    <message>
        <source>%1, until %2</source>
        <translation>%1, hasta %2</translation>
    </message>
    <message>
        <source>%1, which the table %2 does not reach</source>
        <translation>%1, adonde no llega la tabla %2</translation>
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
        <translation>%1: %2 (%3 devolvió %4)</translation>
    </message>
    <message>
        <source>%1: %2 gave only %3 of its %4 record sets</source>
        <translation>%1: %2 dio solo %3 de sus %4 conjuntos de registros</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n days are not as planned.</source>
        <translation><numerusform>%1: %n día no está conforme al plan.</numerusform><numerusform>%1: %n días no están conformes al plan.</numerusform></translation>
    </message>
    <message>
        <source>%1: the call failed</source>
        <translation>%1: la llamada falló</translation>
    </message>
    <message>
        <source>%1: the database did not do what was asked. What is shown may be out of date.</source>
        <translation>%1: la base de datos no hizo lo que se pidió. Lo mostrado puede estar desfasado.</translation>
    </message>
    <message>
        <source>%1: weekends only</source>
        <translation>%1: solo fines de semana</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1; a working %2</source>
        <translation>%1; un %2 laborable</translation>
    </message>
    <message>
        <source>%1; now open by exception: %2</source>
        <translation>%1; ahora abierto por excepción: %2</translation>
    </message>
    <message>
        <source>%1; unchanged: %2</source>
        <translation>%1; sin cambios: %2</translation>
    </message>
    <message>
        <source>%1; weekends only: %2</source>
        <translation>%1; solo fines de semana: %2</translation>
    </message>
    <message>
        <source>%2 %1</source>
        <translation>%2 de %1</translation>
    </message>
    <message>
        <source>%3 %2 %1</source>
        <translation>%3 de %2 de %1</translation>
    </message>
    <message numerus="yes">
        <source>%n by exception</source>
        <translation><numerusform>%n por excepción</numerusform><numerusform>%n por excepción</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n calendars are as planned%1.</source>
        <translation><numerusform>%n calendario está conforme al plan%1.</numerusform><numerusform>%n calendarios están conformes al plan%1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n calendars cannot be planned.</source>
        <translation><numerusform>%n calendario no puede planificarse.</numerusform><numerusform>%n calendarios no pueden planificarse.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n calendars: %1.</source>
        <translation><numerusform>%n calendario: %1.</numerusform><numerusform>%n calendarios: %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n change nothing</source>
        <translation><numerusform>%n no cambia nada</numerusform><numerusform>%n no cambian nada</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n changes are undone</source>
        <translation><numerusform>%n cambio se ha deshecho</numerusform><numerusform>%n cambios se han deshecho</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n closed days keep their names, which the list calls otherwise.</source>
        <translation><numerusform>%n día cerrado conserva su nombre; la lista lo llama de otro modo.</numerusform><numerusform>%n días cerrados conservan sus nombres; la lista los llama de otro modo.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n closed days that the rule book does not have</source>
        <translation><numerusform>%n día cerrado que el reglamento no tiene</numerusform><numerusform>%n días cerrados que el reglamento no tiene</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies</source>
        <translation><numerusform>%n divisa</numerusform><numerusform>%n divisas</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies are closed on weekends only in %2: %1.</source>
        <translation><numerusform>%n divisa solo cierra los fines de semana en %2: %1.</numerusform><numerusform>%n divisas solo cierran los fines de semana en %2: %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no book, so nothing tells what their calendars should be: %1.</source>
        <translation><numerusform>%n divisa no tiene reglamento, así que nada dice cómo deberían ser sus calendarios: %1.</numerusform><numerusform>%n divisas no tienen reglamento, así que nada dice cómo deberían ser sus calendarios: %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no calendar for %2, the running year: %1.</source>
        <translation><numerusform>%n divisa no tiene calendario para %2, el año en curso: %1.</numerusform><numerusform>%n divisas no tienen calendario para %2, el año en curso: %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no calendar for %2: %1.</source>
        <translation><numerusform>%n divisa no tiene calendario para %2: %1.</numerusform><numerusform>%n divisas no tienen calendario para %2: %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no closed day in %2: %1.</source>
        <translation><numerusform>%n divisa no tiene ningún día cerrado en %2: %1.</numerusform><numerusform>%n divisas no tienen ningún día cerrado en %2: %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no holidays in %1, the running year.</source>
        <translation><numerusform>%n divisa no tiene festivos en %1, el año en curso.</numerusform><numerusform>%n divisas no tienen festivos en %1, el año en curso.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no holidays in %1, which begins %2.</source>
        <translation><numerusform>%n divisa no tiene festivos en %1, que empieza %2.</numerusform><numerusform>%n divisas no tienen festivos en %1, que empieza %2.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no weekends in %2, for no weekday holiday closes any day: %1.</source>
        <translation><numerusform>%n divisa no tiene fines de semana en %2, pues ningún festivo semanal cierra un día: %1.</numerusform><numerusform>%n divisas no tienen fines de semana en %2, pues ningún festivo semanal cierra un día: %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation><numerusform>%n día</numerusform><numerusform>%n días</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days after</source>
        <translation><numerusform>%n día después</numerusform><numerusform>%n días después</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days are closed now</source>
        <translation><numerusform>%n día está cerrado ahora</numerusform><numerusform>%n días están cerrados ahora</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days are not as planned.</source>
        <translation><numerusform>%n día no está conforme al plan.</numerusform><numerusform>%n días no están conformes al plan.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days are working days by exception now</source>
        <translation><numerusform>%n día es hábil por excepción ahora</numerusform><numerusform>%n días son hábiles por excepción ahora</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days before</source>
        <translation><numerusform>%n día antes</numerusform><numerusform>%n días antes</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days of %1</source>
        <translation><numerusform>%n día de %1</numerusform><numerusform>%n días de %1</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days of %1 are written to %2.</source>
        <translation><numerusform>%n día de %1 se ha escrito en %2.</numerusform><numerusform>%n días de %1 se han escrito en %2.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days of the plans of %1 change:</source>
        <translation><numerusform>%n día de los planes de %1 cambia:</numerusform><numerusform>%n días de los planes de %1 cambian:</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days selected, %1 of them closed</source>
        <translation><numerusform>%n día seleccionado, %1 cerrado</numerusform><numerusform>%n días seleccionados, %1 cerrados</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days set</source>
        <translation><numerusform>%n día fijado</numerusform><numerusform>%n días fijados</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days take it</source>
        <translation><numerusform>%n día la toma</numerusform><numerusform>%n días la toman</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days that are left out</source>
        <translation><numerusform>%n día que se deja fuera</numerusform><numerusform>%n días que se dejan fuera</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days were changed.</source>
        <translation><numerusform>Se ha cambiado %n día.</numerusform><numerusform>Se han cambiado %n días.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days whose rules stand in the way</source>
        <translation><numerusform>%n día cuya regla lo impide</numerusform><numerusform>%n días cuyas reglas lo impiden</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days will be closed</source>
        <translation><numerusform>%n día se cerrará</numerusform><numerusform>%n días se cerrarán</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n errors</source>
        <translation><numerusform>%n error</numerusform><numerusform>%n errores</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n have it</source>
        <translation><numerusform>%n ya la tiene</numerusform><numerusform>%n ya la tienen</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n holidays</source>
        <translation><numerusform>%n festivo</numerusform><numerusform>%n festivos</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation><numerusform>%n más</numerusform><numerusform>%n más</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n more faults.</source>
        <translation><numerusform>%n defecto más.</numerusform><numerusform>%n defectos más.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n notes</source>
        <translation><numerusform>%n nota</numerusform><numerusform>%n notas</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n plans lack dates that are not known yet.</source>
        <translation><numerusform>A %n plan le faltan fechas que aún no se conocen.</numerusform><numerusform>A %n planes les faltan fechas que aún no se conocen.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n rules</source>
        <translation><numerusform>%n regla</numerusform><numerusform>%n reglas</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n rules for %1</source>
        <translation><numerusform>%n regla para %1</numerusform><numerusform>%n reglas para %1</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n stay as holidays or exceptions</source>
        <translation><numerusform>%n queda como festivo o excepción</numerusform><numerusform>%n quedan como festivos o excepciones</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation><numerusform>%n advertencia</numerusform><numerusform>%n advertencias</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n weekend days</source>
        <translation><numerusform>%n día de fin de semana</numerusform><numerusform>%n días de fin de semana</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days</source>
        <translation><numerusform>%n día hábil</numerusform><numerusform>%n días hábiles</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days by exception</source>
        <translation><numerusform>%n día hábil por excepción</numerusform><numerusform>%n días hábiles por excepción</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days by exception have a reason.</source>
        <translation><numerusform>%n día hábil por excepción tiene un motivo.</numerusform><numerusform>%n días hábiles por excepción tienen un motivo.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days by exception that have a reason will be closed.</source>
        <translation><numerusform>Se cerrará %n día hábil por excepción que tiene un motivo.</numerusform><numerusform>Se cerrarán %n días hábiles por excepción que tienen un motivo.</numerusform></translation>
    </message>
    <message>
        <source>&amp;Clear Sorting</source>
        <translation>&amp;Quitar orden</translation>
    </message>
    <message>
        <source>&amp;Close calendars</source>
        <translation>&amp;Cerrar calendarios</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>&amp;Expandir todo</translation>
    </message>
    <message>
        <source>&amp;Group by This Column</source>
        <translation>&amp;Agrupar por esta columna</translation>
    </message>
    <message>
        <source>&amp;Open calendars</source>
        <translation>&amp;Abrir calendarios</translation>
    </message>
    <message>
        <source>&amp;Ungroup</source>
        <translation>&amp;Desagrupar</translation>
    </message>
    <message>
        <source>A calendar's year is 1900 to 3000.</source>
        <translation>El año de un calendario va de 1900 a 3000.</translation>
    </message>
    <message>
        <source>A day between two holidays</source>
        <translation>Un día entre dos festivos</translation>
    </message>
    <message>
        <source>A day that is not known yet</source>
        <translation>Un día que aún no se conoce</translation>
    </message>
    <message>
        <source>A later change is of the same, or the history does not reach there</source>
        <translation>Un cambio posterior afecta a lo mismo, o el historial no llega tan atrás</translation>
    </message>
    <message>
        <source>A list is imported for one currency at a time.</source>
        <translation>Una lista se importa para una sola divisa cada vez.</translation>
    </message>
    <message>
        <source>A new holiday point, on the days that are closed here.</source>
        <translation>Un festivo puntual nuevo, en los días que se cierran aquí.</translation>
    </message>
    <message>
        <source>A plan from now on for: %1.</source>
        <translation>Desde ahora con plan: %1.</translation>
    </message>
    <message>
        <source>A removed rule has that name: it can be restored</source>
        <translation>Una regla eliminada tiene ese nombre: se puede restaurar</translation>
    </message>
    <message>
        <source>A text file names no currencies, so it can be of one alone</source>
        <translation>Un archivo de texto no nombra divisas, así que solo puede ser de una</translation>
    </message>
    <message>
        <source>A value is missing or out of range</source>
        <translation>Falta un valor o está fuera de rango</translation>
    </message>
    <message>
        <source>A weekday near a date</source>
        <translation>Un día de la semana junto a una fecha</translation>
    </message>
    <message>
        <source>A weekday of a month</source>
        <translation>Un día de la semana de un mes</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add the rule %1</source>
        <translation>Añadir la regla %1</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Añadido</translation>
    </message>
    <message>
        <source>Added the currency %1 (%2)</source>
        <translation>Divisa %1 (%2) añadida</translation>
    </message>
    <message>
        <source>Added the currency %1 (%2), no money</source>
        <translation>Divisa %1 (%2) añadida, sin curso</translation>
    </message>
    <message>
        <source>Added the rule %1</source>
        <translation>Regla %1 añadida</translation>
    </message>
    <message numerus="yes">
        <source>Added the rule book of %1: %n rules</source>
        <translation><numerusform>Reglamento de %1 añadido: %n regla</numerusform><numerusform>Reglamento de %1 añadido: %n reglas</numerusform></translation>
    </message>
    <message>
        <source>Address of the database</source>
        <translation>Dirección de la base de datos</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>All calendars</source>
        <translation>Todos los calendarios</translation>
    </message>
    <message>
        <source>All calendars are as planned, as far as it is published</source>
        <translation>Todos los calendarios están conformes al plan, hasta donde está publicado</translation>
    </message>
    <message>
        <source>All calendars together</source>
        <translation>Todos los calendarios juntos</translation>
    </message>
    <message>
        <source>All days</source>
        <translation>Todos los días</translation>
    </message>
    <message>
        <source>All rules</source>
        <translation>Todas las reglas</translation>
    </message>
    <message>
        <source>An ordinary working day%1</source>
        <translation>Un día hábil corriente%1</translation>
    </message>
    <message>
        <source>Applied the plan</source>
        <translation>Plan aplicado</translation>
    </message>
    <message>
        <source>Applied the plan of %1</source>
        <translation>Plan de %1 aplicado</translation>
    </message>
    <message numerus="yes">
        <source>Applied the plans of %n calendars</source>
        <translation><numerusform>Planes de %n calendario aplicados</numerusform><numerusform>Planes de %n calendarios aplicados</numerusform></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Apply the plan</source>
        <translation>Aplicar el plan</translation>
    </message>
    <message>
        <source>Apply the plan of %1</source>
        <translation>Aplicar el plan de %1</translation>
    </message>
    <message>
        <source>Applying the plan of %1</source>
        <translation>Aplicación del plan de %1</translation>
    </message>
    <message>
        <source>Applying the plan of %1, %2 of %3.</source>
        <translation>Aplicando el plan de %1, %2 de %3.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>As %1</source>
        <translation>Como %1</translation>
    </message>
    <message>
        <source>As it was before</source>
        <translation>Como antes</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>Asignar</translation>
    </message>
    <message>
        <source>Assign %1</source>
        <translation>Asignar %1</translation>
    </message>
    <message>
        <source>Assign %1 to %2</source>
        <translation>Asignar %1 a %2</translation>
    </message>
    <message>
        <source>Assign holiday</source>
        <translation>Asignar festivo</translation>
    </message>
    <message>
        <source>Assign holiday, %1</source>
        <translation>Asignar festivo, %1</translation>
    </message>
    <message>
        <source>Assign these rules?</source>
        <translation>¿Asignar estas reglas?</translation>
    </message>
    <message>
        <source>Assigned %1</source>
        <translation>%1 asignada</translation>
    </message>
    <message>
        <source>Assigned %1 to %2</source>
        <translation>%1 asignada a %2</translation>
    </message>
    <message numerus="yes">
        <source>Assigned %1 to %n days of %2</source>
        <translation><numerusform>%1 asignada a %n día de %2</numerusform><numerusform>%1 asignada a %n días de %2</numerusform></translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Back office</source>
        <translation>Back-office</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Between %1 and %2</source>
        <translation>Entre %1 y %2</translation>
    </message>
    <message>
        <source>Between two holidays</source>
        <translation>Entre dos festivos</translation>
    </message>
    <message>
        <source>Book: %1</source>
        <translation>Reglamento: %1</translation>
    </message>
    <message>
        <source>Business-day calendars</source>
        <translation>Calendarios de días hábiles</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Por</translation>
    </message>
    <message>
        <source>By Easter Sunday</source>
        <translation>Según el Domingo de Pascua</translation>
    </message>
    <message>
        <source>By Orthodox Easter Sunday</source>
        <translation>Según la Pascua ortodoxa</translation>
    </message>
    <message>
        <source>By a table of dates</source>
        <translation>Según una tabla de fechas</translation>
    </message>
    <message>
        <source>C&amp;ollapse All</source>
        <translation>Contraer &amp;todo</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Calendar %1</source>
        <translation>Calendario %1</translation>
    </message>
    <message>
        <source>Calendar at a moment</source>
        <translation>Calendario en un momento</translation>
    </message>
    <message>
        <source>Calendar at...</source>
        <translation>Calendario a fecha...</translation>
    </message>
    <message>
        <source>Calendar files</source>
        <translation>Archivos de calendario</translation>
    </message>
    <message>
        <source>Calendar then</source>
        <translation>Calendario de entonces</translation>
    </message>
    <message>
        <source>Calendars of this user</source>
        <translation>Calendarios de este usuario</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>No se puede leer</translation>
    </message>
    <message>
        <source>Celebration</source>
        <translation>Festivo fijo</translation>
    </message>
    <message>
        <source>Celebrations</source>
        <translation>Festivos fijos</translation>
    </message>
    <message>
        <source>Changed the rule %1</source>
        <translation>Regla %1 modificada</translation>
    </message>
    <message numerus="yes">
        <source>Changed the rule book of %1: %n rules</source>
        <translation><numerusform>Reglamento de %1 modificado: %n regla</numerusform><numerusform>Reglamento de %1 modificado: %n reglas</numerusform></translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Modificado: %1</translation>
    </message>
    <message>
        <source>Changes of mine</source>
        <translation>Cambios míos</translation>
    </message>
    <message>
        <source>Choose a day</source>
        <translation>Elegir un día</translation>
    </message>
    <message>
        <source>Choose a day (Alt+Down)</source>
        <translation>Elegir un día (Alt+Abajo)</translation>
    </message>
    <message>
        <source>Choose a day: here stands why it is open or closed.</source>
        <translation>Elija un día: aquí se explica por qué está abierto o cerrado.</translation>
    </message>
    <message>
        <source>Choose a list</source>
        <translation>Elegir una lista</translation>
    </message>
    <message>
        <source>Choose the file of the list.</source>
        <translation>Elija el archivo de la lista.</translation>
    </message>
    <message>
        <source>Choose when it is, or write an expression such as 12-25 or easter-2</source>
        <translation>Elija cuándo es, o escriba una expresión como 12-25 o easter-2</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Elegir...</translation>
    </message>
    <message>
        <source>Click to turn the order, drag to move, Delete to remove</source>
        <translation>Clic invierte el orden, arrastrar mueve, Supr quita</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close days</source>
        <translation>Cerrar días</translation>
    </message>
    <message>
        <source>Close selected days as ...</source>
        <translation>Cerrar los días seleccionados como...</translation>
    </message>
    <message>
        <source>Closed %1 as %2</source>
        <translation>%1 cerrado como %2</translation>
    </message>
    <message>
        <source>Closed days get the list's</source>
        <translation>Los días cerrados toman los de la lista</translation>
    </message>
    <message>
        <source>Closed days keep theirs</source>
        <translation>Los días cerrados conservan los suyos</translation>
    </message>
    <message>
        <source>Closes the selected days that are open, as a holiday that was announced for once</source>
        <translation>Cierra los días abiertos seleccionados, como festivo anunciado una sola vez</translation>
    </message>
    <message>
        <source>Closing days of %1</source>
        <translation>Cierre de días de %1</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Convention of %1</source>
        <translation>Convención de %1</translation>
    </message>
    <message>
        <source>Created the calendar</source>
        <translation>Calendario creado</translation>
    </message>
    <message>
        <source>Created the calendar %1</source>
        <translation>Calendario %1 creado</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>Divisas</translation>
    </message>
    <message>
        <source>Currencies and calendars</source>
        <translation>Divisas y calendarios</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Divisa</translation>
    </message>
    <message>
        <source>Currency %1</source>
        <translation>Divisa %1</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Day of the %1 equinox %2 at UTC%3</source>
        <translation>Día del equinoccio de %1 %2 en UTC%3</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Días</translation>
    </message>
    <message>
        <source>December</source>
        <translation>diciembre</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>Difiere</translation>
    </message>
    <message numerus="yes">
        <source>Differs by %n days</source>
        <translation><numerusform>Difiere en %n día</numerusform><numerusform>Difiere en %n días</numerusform></translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Drag a column header here to group by that column</source>
        <translation>Arrastre aquí el encabezado de una columna para agrupar por ella</translation>
    </message>
    <message>
        <source>EUR, USD or ALL</source>
        <translation>EUR, USD o ALL</translation>
    </message>
    <message>
        <source>Easter Sunday %1</source>
        <translation>Domingo de Pascua %1</translation>
    </message>
    <message>
        <source>Edit the rule %1</source>
        <translation>Editar la regla %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Every %1</source>
        <translation>Cada %1</translation>
    </message>
    <message>
        <source>Every day is as in the list.</source>
        <translation>Cada día está como en la lista.</translation>
    </message>
    <message>
        <source>Every day is as planned.</source>
        <translation>Todos los días están conformes al plan.</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>Cada semana</translation>
    </message>
    <message>
        <source>Everybody</source>
        <translation>Todas las personas</translation>
    </message>
    <message>
        <source>Everything stayed as it was.</source>
        <translation>Todo quedó como estaba.</translation>
    </message>
    <message>
        <source>Except</source>
        <translation>Exceptuar</translation>
    </message>
    <message>
        <source>Except %1</source>
        <translation>Exceptuar %1</translation>
    </message>
    <message>
        <source>Except %1, %2</source>
        <translation>Exceptuar %1, %2</translation>
    </message>
    <message>
        <source>Except all selected days from the holiday list, with one message</source>
        <translation>Exceptúa todos los días seleccionados de la lista de festivos, con un solo mensaje</translation>
    </message>
    <message>
        <source>Except days</source>
        <translation>Exceptuar días</translation>
    </message>
    <message>
        <source>Except days with message ...</source>
        <translation>Exceptuar días con mensaje...</translation>
    </message>
    <message>
        <source>Except selected days with message ...</source>
        <translation>Exceptuar los días seleccionados con mensaje...</translation>
    </message>
    <message>
        <source>Except, %1</source>
        <translation>Exceptuar, %1</translation>
    </message>
    <message>
        <source>Excepted</source>
        <translation>Exceptuado</translation>
    </message>
    <message>
        <source>Excepted %1</source>
        <translation>Exceptuado %1</translation>
    </message>
    <message>
        <source>Excepted %1, %2</source>
        <translation>Exceptuado %1, %2</translation>
    </message>
    <message>
        <source>Excepted %1: %2</source>
        <translation>Exceptuado %1: %2</translation>
    </message>
    <message>
        <source>Excepted, %1</source>
        <translation>Exceptuado, %1</translation>
    </message>
    <message>
        <source>Excepting days of %1</source>
        <translation>Excepción de días de %1</translation>
    </message>
    <message>
        <source>Exception</source>
        <translation>Excepción</translation>
    </message>
    <message>
        <source>Exceptions</source>
        <translation>Excepciones</translation>
    </message>
    <message>
        <source>Export as</source>
        <translation>Exportar como</translation>
    </message>
    <message>
        <source>Export calendars</source>
        <translation>Exportar calendarios</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportar...</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expresión</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febrero</translation>
    </message>
    <message>
        <source>Ferrowind calendar</source>
        <translation>Calendario Ferrowind</translation>
    </message>
    <message>
        <source>Fifth</source>
        <translation>Quinto</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Buscar...</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Hallazgo</translation>
    </message>
    <message>
        <source>Findings of the review: %1</source>
        <translation>Hallazgos de la revisión: %1</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Primero</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation>Cuarto</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>viernes</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>From Saturday to Friday, from Sunday to Monday</source>
        <translation>Del sábado al viernes, del domingo al lunes</translation>
    </message>
    <message>
        <source>From Sunday to Monday</source>
        <translation>Del domingo al lunes</translation>
    </message>
    <message>
        <source>From year</source>
        <translation>Desde el año</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Ir</translation>
    </message>
    <message>
        <source>Go to a date, of this or another year</source>
        <translation>Ir a una fecha, de este u otro año</translation>
    </message>
    <message>
        <source>Go to date</source>
        <translation>Ir a la fecha</translation>
    </message>
    <message>
        <source>Go to date...</source>
        <translation>Ir a la fecha...</translation>
    </message>
    <message>
        <source>Group by</source>
        <translation>Agrupar por</translation>
    </message>
    <message>
        <source>Group, level %1, %2</source>
        <translation>Grupo, nivel %1, %2</translation>
    </message>
    <message>
        <source>Grouped by %1</source>
        <translation>Agrupado por %1</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Hide (%1)</source>
        <translation>Ocultar (%1)</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>History of the day...</source>
        <translation>Historial del día...</translation>
    </message>
    <message>
        <source>History...</source>
        <translation>Historial...</translation>
    </message>
    <message>
        <source>Holds since</source>
        <translation>Rige desde</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Festivo</translation>
    </message>
    <message>
        <source>Holiday calendars of currencies</source>
        <translation>Calendarios de festivos de divisas</translation>
    </message>
    <message>
        <source>Holiday point</source>
        <translation>Festivo puntual</translation>
    </message>
    <message>
        <source>Holiday points</source>
        <translation>Festivos puntuales</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Festivos</translation>
    </message>
    <message>
        <source>Holidays, weekends and working days by exception</source>
        <translation>Festivos, fines de semana y días hábiles por excepción</translation>
    </message>
    <message>
        <source>How many are closed</source>
        <translation>Cuántas cierran</translation>
    </message>
    <message>
        <source>Import a list</source>
        <translation>Importar una lista</translation>
    </message>
    <message>
        <source>Import of %1: %2</source>
        <translation>Importación de %1: %2</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importar...</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>En %1</translation>
    </message>
    <message>
        <source>It belongs to the book of %1, not to that of %2</source>
        <translation>Pertenece al reglamento de %1, no al de %2</translation>
    </message>
    <message>
        <source>It belongs to the books of %1, not to that of %2</source>
        <translation>Pertenece a los reglamentos de %1, no al de %2</translation>
    </message>
    <message>
        <source>It falls on a %1</source>
        <translation>Cae en %1</translation>
    </message>
    <message>
        <source>It goes to its own date, not to %1</source>
        <translation>Va a su propia fecha, no al %1</translation>
    </message>
    <message>
        <source>It has no date, so that nothing is assigned</source>
        <translation>No tiene fecha, así que no se asigna nada</translation>
    </message>
    <message>
        <source>It is dated for %1, on %2</source>
        <translation>Está fechada para %1, el %2</translation>
    </message>
    <message>
        <source>It is not observed</source>
        <translation>No se observa</translation>
    </message>
    <message>
        <source>It moves to the next free day</source>
        <translation>Pasa al siguiente día libre</translation>
    </message>
    <message>
        <source>It stands on %1 already</source>
        <translation>Ya está el %1</translation>
    </message>
    <message>
        <source>It stays there</source>
        <translation>Se queda ahí</translation>
    </message>
    <message>
        <source>It was changed meanwhile</source>
        <translation>Se modificó entretanto</translation>
    </message>
    <message>
        <source>Item %1 of the list</source>
        <translation>Elemento %1 de la lista</translation>
    </message>
    <message>
        <source>Its weekday is %1, and the day is a %2</source>
        <translation>Su día de la semana es %1, y el día es un %2</translation>
    </message>
    <message>
        <source>JSON files</source>
        <translation>Archivos JSON</translation>
    </message>
    <message>
        <source>January</source>
        <translation>enero</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julio</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junio</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Conservado</translation>
    </message>
    <message>
        <source>Known ones</source>
        <translation>Conocidos</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Último</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Línea %1</translation>
    </message>
    <message>
        <source>List only the rules of the calendar's currency</source>
        <translation>Listar solo las reglas de la divisa del calendario</translation>
    </message>
    <message>
        <source>Lists of days</source>
        <translation>Listas de días</translation>
    </message>
    <message>
        <source>Look at</source>
        <translation>A revisar</translation>
    </message>
    <message>
        <source>Lose them</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Makes a calendar as a list of days in a file</source>
        <translation>Deja un calendario como una lista de días de un archivo</translation>
    </message>
    <message>
        <source>Makes the selected days working days by exception, with one reason</source>
        <translation>Hace hábiles por excepción los días seleccionados, con un solo motivo</translation>
    </message>
    <message>
        <source>Makes the selected days working days by exception, without a reason</source>
        <translation>Convierte los días seleccionados en días hábiles por excepción, sin motivo</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mayo</translation>
    </message>
    <message>
        <source>Me</source>
        <translation>Yo</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Falta</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lunes</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Name at least one currency, such as EUR, or ALL</source>
        <translation>Indique al menos una divisa, como EUR, o ALL</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Nombres</translation>
    </message>
    <message>
        <source>New calendar</source>
        <translation>Calendario nuevo</translation>
    </message>
    <message>
        <source>New calendar %1</source>
        <translation>Calendario nuevo %1</translation>
    </message>
    <message numerus="yes">
        <source>Next try in %n seconds</source>
        <translation><numerusform>Próximo intento en %n segundo</numerusform><numerusform>Próximo intento en %n segundos</numerusform></translation>
    </message>
    <message>
        <source>Next year</source>
        <translation>Año siguiente</translation>
    </message>
    <message>
        <source>No calendar</source>
        <translation>Sin calendario</translation>
    </message>
    <message>
        <source>No calendar, or not prepared</source>
        <translation>Sin calendario o sin preparar</translation>
    </message>
    <message>
        <source>No currency has a calendar of %1</source>
        <translation>Ninguna divisa tiene calendario de %1</translation>
    </message>
    <message>
        <source>No day will be closed.</source>
        <translation>No se cerrará ningún día.</translation>
    </message>
    <message>
        <source>No file was written. %1.</source>
        <translation>No se ha escrito ningún archivo. %1.</translation>
    </message>
    <message>
        <source>No money then</source>
        <translation>Sin curso entonces</translation>
    </message>
    <message>
        <source>No plan any more for: %1.</source>
        <translation>Ya sin plan: %1.</translation>
    </message>
    <message>
        <source>No reason is given for the exception.</source>
        <translation>La excepción no tiene motivo.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Not compared</source>
        <translation>Sin comparar</translation>
    </message>
    <message>
        <source>Not in the list</source>
        <translation>No está en la lista</translation>
    </message>
    <message>
        <source>Not in the rule book: %1</source>
        <translation>No está en el reglamento: %1</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Not prepared</source>
        <translation>Sin preparar</translation>
    </message>
    <message>
        <source>Not prepared: none of its days is closed</source>
        <translation>Sin preparar: ninguno de sus días está cerrado</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Nothing but weekends is added; "All days" shows them.</source>
        <translation>Solo se añaden fines de semana; «Todos los días» los muestra.</translation>
    </message>
    <message>
        <source>Nothing changes.</source>
        <translation>No cambia nada.</translation>
    </message>
    <message>
        <source>Nothing could be read</source>
        <translation>No se pudo leer nada</translation>
    </message>
    <message>
        <source>Nothing is changed.</source>
        <translation>No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>Nothing is closed in %1 %2 yet. Prepare it now?</source>
        <translation>Aún no hay nada cerrado en %1 %2. ¿Prepararlo ahora?</translation>
    </message>
    <message>
        <source>Nothing is known: %1</source>
        <translation>No se sabe nada: %1</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>Nada que revisar.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>No se cambió nada.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>noviembre</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octubre</translation>
    </message>
    <message>
        <source>Of %1 faults the first %2 are told.</source>
        <translation>De %1 errores se indican los %2 primeros.</translation>
    </message>
    <message>
        <source>Off a weekend it moves to Monday</source>
        <translation>Del fin de semana pasa al lunes</translation>
    </message>
    <message>
        <source>On a closed day</source>
        <translation>En un día cerrado</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>Una vez</translation>
    </message>
    <message>
        <source>Once, on %1</source>
        <translation>Una vez, el %1</translation>
    </message>
    <message>
        <source>Only %1 is on show.</source>
        <translation>Solo se muestra %1.</translation>
    </message>
    <message>
        <source>Only rules of this currency</source>
        <translation>Solo reglas de esta divisa</translation>
    </message>
    <message>
        <source>Open calendars</source>
        <translation>Abrir calendarios</translation>
    </message>
    <message numerus="yes">
        <source>Open together on %n days</source>
        <translation><numerusform>Abiertas a la vez %n día</numerusform><numerusform>Abiertas a la vez %n días</numerusform></translation>
    </message>
    <message>
        <source>Orthodox Easter Sunday %1</source>
        <translation>Domingo de Pascua ortodoxa %1</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>Archivos PDF</translation>
    </message>
    <message>
        <source>PNG pictures</source>
        <translation>Imágenes PNG</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>En parte</translation>
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
        <translation>Planificar año...</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>Plan: %1</translation>
    </message>
    <message numerus="yes">
        <source>Plans of %n calendars</source>
        <translation><numerusform>Plan de %n calendario</numerusform><numerusform>Planes de %n calendarios</numerusform></translation>
    </message>
    <message>
        <source>Prepare</source>
        <translation>Preparar</translation>
    </message>
    <message>
        <source>Prepare all for %1...</source>
        <translation>Preparar todo para %1...</translation>
    </message>
    <message>
        <source>Prepare all...</source>
        <translation>Preparar todo...</translation>
    </message>
    <message>
        <source>Prepared</source>
        <translation>Preparado</translation>
    </message>
    <message numerus="yes">
        <source>Prepared %1: %n days</source>
        <translation><numerusform>%1 preparado: %n día</numerusform><numerusform>%1 preparado: %n días</numerusform></translation>
    </message>
    <message>
        <source>Prepared as published</source>
        <translation>Preparado según lo publicado</translation>
    </message>
    <message>
        <source>Prepared: %1, %2.</source>
        <translation>Preparado: %1, %2.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Previous year</source>
        <translation>Año anterior</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimir...</translation>
    </message>
    <message>
        <source>Prints the year</source>
        <translation>Imprime el año</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Readiness</source>
        <translation>Preparación</translation>
    </message>
    <message>
        <source>Reading a calendar of %1 as of %2</source>
        <translation>Lectura de un calendario de %1 a %2</translation>
    </message>
    <message>
        <source>Reading a calendar of %1 as the entry %2 of the history left it</source>
        <translation>Lectura de un calendario de %1 tal como lo dejó la entrada %2 del historial</translation>
    </message>
    <message>
        <source>Reading the book of %1</source>
        <translation>Lectura del reglamento de %1</translation>
    </message>
    <message>
        <source>Reading the books</source>
        <translation>Lectura de los reglamentos</translation>
    </message>
    <message>
        <source>Reading the calendar %1 %2</source>
        <translation>Lectura del calendario %1 %2</translation>
    </message>
    <message>
        <source>Reading the calendars and the rule books</source>
        <translation>Lectura de los calendarios y los reglamentos</translation>
    </message>
    <message>
        <source>Reading the currencies</source>
        <translation>Lectura de las divisas</translation>
    </message>
    <message>
        <source>Reading the days of all calendars</source>
        <translation>Lectura de los días de todos los calendarios</translation>
    </message>
    <message>
        <source>Reading the entry %1 of the history</source>
        <translation>Lectura de la entrada %1 del historial</translation>
    </message>
    <message>
        <source>Reading the first day of the week</source>
        <translation>Lectura del primer día de la semana</translation>
    </message>
    <message>
        <source>Reading the history</source>
        <translation>Lectura del historial</translation>
    </message>
    <message>
        <source>Reading the history of %1</source>
        <translation>Lectura del historial de %1</translation>
    </message>
    <message>
        <source>Reading the rules</source>
        <translation>Lectura de las reglas</translation>
    </message>
    <message>
        <source>Reading whether a calendar was changed</source>
        <translation>Lectura de si se modificó un calendario</translation>
    </message>
    <message>
        <source>Reads the calendars and plans them anew</source>
        <translation>Vuelve a leer los calendarios y a planificarlos</translation>
    </message>
    <message>
        <source>Reads the calendars anew</source>
        <translation>Vuelve a leer los calendarios</translation>
    </message>
    <message>
        <source>Reads the history anew</source>
        <translation>Vuelve a leer el historial</translation>
    </message>
    <message>
        <source>Reason: %1</source>
        <translation>Motivo: %1</translation>
    </message>
    <message>
        <source>Redid: %1</source>
        <translation>Rehecho: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Eliminar %1</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Removed %1</source>
        <translation>%1 eliminada</translation>
    </message>
    <message>
        <source>Removed the convention of %1</source>
        <translation>Convención de %1 eliminada</translation>
    </message>
    <message>
        <source>Removed the rule %1</source>
        <translation>Regla %1 eliminada</translation>
    </message>
    <message>
        <source>Removed the rule book of %1</source>
        <translation>Reglamento de %1 eliminado</translation>
    </message>
    <message>
        <source>Removing the book of %1</source>
        <translation>Eliminación del reglamento de %1</translation>
    </message>
    <message>
        <source>Renamed the currency %1 (%2) to %3 (%4)</source>
        <translation>Divisa %1 (%2) renombrada a %3 (%4)</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>Sustituido</translation>
    </message>
    <message>
        <source>Restore %1</source>
        <translation>Restaurar %1</translation>
    </message>
    <message>
        <source>Restored %1</source>
        <translation>%1 restaurada</translation>
    </message>
    <message>
        <source>Restored the rule %1</source>
        <translation>Regla %1 restaurada</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regla</translation>
    </message>
    <message>
        <source>Rule %1</source>
        <translation>Regla %1</translation>
    </message>
    <message>
        <source>Rule book</source>
        <translation>Reglamento</translation>
    </message>
    <message>
        <source>Rule book of %1</source>
        <translation>Reglamento de %1</translation>
    </message>
    <message>
        <source>Rule book of %1, rule %2</source>
        <translation>Reglamento de %1, regla %2</translation>
    </message>
    <message>
        <source>Rule book...</source>
        <translation>Reglamento...</translation>
    </message>
    <message>
        <source>Rule: %1</source>
        <translation>Regla: %1</translation>
    </message>
    <message>
        <source>Same day</source>
        <translation>Mismo día</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sábado</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>Guardar como PDF...</translation>
    </message>
    <message>
        <source>Save as picture</source>
        <translation>Guardar como imagen</translation>
    </message>
    <message>
        <source>Save as picture...</source>
        <translation>Guardar como imagen...</translation>
    </message>
    <message>
        <source>Save the rule book of %1</source>
        <translation>Guardar el reglamento de %1</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Guardado como %1</translation>
    </message>
    <message>
        <source>Saved the rule book of %1</source>
        <translation>Reglamento de %1 guardado</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Segundo</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septiembre</translation>
    </message>
    <message numerus="yes">
        <source>Set the convention of %1: %n business days to spot</source>
        <translation><numerusform>Convención de %1 definida: %n día hábil hasta el spot</numerusform><numerusform>Convención de %1 definida: %n días hábiles hasta el spot</numerusform></translation>
    </message>
    <message>
        <source>Set the convention of %1: holidays of the dollar do not stop the count to spot</source>
        <translation>Convención de %1 definida: los festivos del dólar no detienen la cuenta hasta el spot</translation>
    </message>
    <message>
        <source>Set the convention of %1: holidays of the dollar stop the count to spot</source>
        <translation>Convención de %1 definida: los festivos del dólar detienen la cuenta hasta el spot</translation>
    </message>
    <message>
        <source>Set the currency %1 (%2)</source>
        <translation>Divisa %1 (%2) definida</translation>
    </message>
    <message>
        <source>Set the currency %1 (%2), money until %3</source>
        <translation>Divisa %1 (%2) definida, de curso hasta el %3</translation>
    </message>
    <message>
        <source>Set the currency %1 (%2), no money</source>
        <translation>Divisa %1 (%2) definida, sin curso</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Debería ser</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Mostrar %1</translation>
    </message>
    <message>
        <source>Show %1 as it was at this moment:</source>
        <translation>Mostrar %1 tal como estaba en este momento:</translation>
    </message>
    <message>
        <source>Show Group &amp;Panel</source>
        <translation>Mostrar &amp;panel de grupos</translation>
    </message>
    <message>
        <source>Show older</source>
        <translation>Ver anteriores</translation>
    </message>
    <message>
        <source>Show only the days that have what is typed</source>
        <translation>Mostrar solo los días que contienen lo escrito</translation>
    </message>
    <message>
        <source>Show only the rules that have what is typed</source>
        <translation>Mostrar solo las reglas que contienen lo escrito</translation>
    </message>
    <message>
        <source>Show or hide the year at a glance beside the days</source>
        <translation>Mostrar u ocultar el año de un vistazo junto a los días</translation>
    </message>
    <message>
        <source>Show or hide why the day is what it is</source>
        <translation>Mostrar u ocultar por qué el día es como es</translation>
    </message>
    <message>
        <source>Show the rules</source>
        <translation>Mostrar las reglas</translation>
    </message>
    <message>
        <source>Shows by which rules the days of the currency are planned</source>
        <translation>Muestra con qué reglas se planifican los días de la divisa</translation>
    </message>
    <message>
        <source>Shows the days that stay as they are and all weekends, too</source>
        <translation>Muestra también los días que quedan como están y todos los fines de semana</translation>
    </message>
    <message>
        <source>Shows the year after</source>
        <translation>Muestra el año siguiente</translation>
    </message>
    <message>
        <source>Shows the year before</source>
        <translation>Muestra el año anterior</translation>
    </message>
    <message>
        <source>Shows where the calendar differs from what it should be</source>
        <translation>Muestra en qué difiere el calendario de lo que debería ser</translation>
    </message>
    <message>
        <source>Shows who changed the calendar and when, and undoes changes</source>
        <translation>Muestra quién modificó el calendario y cuándo, y deshace cambios</translation>
    </message>
    <message>
        <source>Shows who changed the day and when</source>
        <translation>Muestra quién modificó el día y cuándo</translation>
    </message>
    <message>
        <source>Shows years of this and other currencies, and prints and saves them</source>
        <translation>Muestra, imprime y guarda años de esta y otras divisas</translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation>&amp;Orden ascendente</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>Orden de&amp;scendente</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Ordenar por %1</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %1 of %n calendars; the others are as they were.</source>
        <translation><numerusform>Detenido tras %1 de %n calendario; los demás están como estaban.</numerusform><numerusform>Detenido tras %1 de %n calendarios; los demás están como estaban.</numerusform></translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domingo</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tablas</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>Archivos de texto</translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation>Texto: %1</translation>
    </message>
    <message>
        <source>That is undone already (%1, %2).</source>
        <translation>Eso ya está deshecho (%1, %2).</translation>
    </message>
    <message>
        <source>The Calendars window is busy.</source>
        <translation>La ventana de calendarios está ocupada.</translation>
    </message>
    <message>
        <source>The book closes no weekday: without a rule of the kind weekday each Saturday and Sunday would be a working day</source>
        <translation>El reglamento no cierra ningún día de la semana: sin una regla de tipo weekday todos los sábados y domingos serían hábiles</translation>
    </message>
    <message>
        <source>The book holds from %1 on, which is not %2</source>
        <translation>El reglamento rige desde %1, que no es %2</translation>
    </message>
    <message>
        <source>The book holds since "%1", which is no year</source>
        <translation>El reglamento rige desde «%1», que no es un año</translation>
    </message>
    <message>
        <source>The book names no document</source>
        <translation>El reglamento no nombra ningún documento</translation>
    </message>
    <message>
        <source>The book names no publisher</source>
        <translation>El reglamento no nombra ningún editor</translation>
    </message>
    <message>
        <source>The book of %1 cannot be read: %2</source>
        <translation>El reglamento de %1 no se puede leer: %2</translation>
    </message>
    <message>
        <source>The book of %1 cannot be used: %2</source>
        <translation>El reglamento de %1 no se puede usar: %2</translation>
    </message>
    <message>
        <source>The book of %1 cannot be used: %2.</source>
        <translation>El reglamento de %1 no se puede usar: %2.</translation>
    </message>
    <message>
        <source>The book of %1 does not close each %2</source>
        <translation>El reglamento de %1 no cierra cada %2</translation>
    </message>
    <message>
        <source>The book of %1 has it on %2</source>
        <translation>El reglamento de %1 lo tiene el %2</translation>
    </message>
    <message numerus="yes">
        <source>The book of %1 holds from %2 on, and calendars of earlier years are compared with no plan.</source>
        <translation><numerusform>El reglamento de %1 rige desde %2, y un calendario de un año anterior no se compara con ningún plan.</numerusform><numerusform>El reglamento de %1 rige desde %2, y los calendarios de años anteriores no se comparan con ningún plan.</numerusform></translation>
    </message>
    <message>
        <source>The book of %1 holds from %2 on, so it does not tell what %3 should be</source>
        <translation>El reglamento de %1 rige desde %2, así que no dice cómo debería ser %3</translation>
    </message>
    <message>
        <source>The book of %1 is saved. Its calendars stay as they are until their years are planned again.</source>
        <translation>El reglamento de %1 está guardado. Sus calendarios quedan como están hasta que se planifiquen de nuevo sus años.</translation>
    </message>
    <message>
        <source>The calendar exists already</source>
        <translation>El calendario ya existe</translation>
    </message>
    <message>
        <source>The celebration %1.</source>
        <translation>El festivo fijo %1.</translation>
    </message>
    <message>
        <source>The clock was set forward then, and never showed this time.</source>
        <translation>El reloj se adelantó entonces y nunca marcó esta hora.</translation>
    </message>
    <message>
        <source>The comment has %1 characters; it may have %2 at most</source>
        <translation>El comentario tiene %1 caracteres; puede tener %2 como máximo</translation>
    </message>
    <message>
        <source>The comment of the days has %1 characters; it may have %2 at most</source>
        <translation>El comentario de los días tiene %1 caracteres; puede tener %2 como máximo</translation>
    </message>
    <message>
        <source>The database could not be read: %1</source>
        <translation>No se pudo leer la base de datos: %1</translation>
    </message>
    <message>
        <source>The database does not know the calendar</source>
        <translation>La base de datos no conoce el calendario</translation>
    </message>
    <message>
        <source>The database does not know the currency</source>
        <translation>La base de datos no conoce la divisa</translation>
    </message>
    <message>
        <source>The database does not know the rule</source>
        <translation>La base de datos no conoce la regla</translation>
    </message>
    <message>
        <source>The database gives the days of a calendar in a form that this program does not know, at byte %1 of their text</source>
        <translation>La base de datos da los días de un calendario en una forma que este programa no conoce, en el byte %1 de su texto</translation>
    </message>
    <message>
        <source>The database refused it, with the number %1</source>
        <translation>La base de datos lo rechazó, con el número %1</translation>
    </message>
    <message>
        <source>The date of %1 in %2 is not known: %3</source>
        <translation>No se conoce la fecha de %1 en %2: %3</translation>
    </message>
    <message>
        <source>The dates of this year are not known yet</source>
        <translation>Aún no se conocen las fechas de este año</translation>
    </message>
    <message>
        <source>The day is a working day by exception, and would be closed</source>
        <translation>El día es hábil por excepción y se cerraría</translation>
    </message>
    <message>
        <source>The default database</source>
        <translation>La base de datos predeterminada</translation>
    </message>
    <message>
        <source>The document has %1 characters; it may have %2 at most</source>
        <translation>El documento tiene %1 caracteres; puede tener %2 como máximo</translation>
    </message>
    <message>
        <source>The expression has %1 characters; it may have %2 at most</source>
        <translation>La expresión tiene %1 caracteres; puede tener %2 como máximo</translation>
    </message>
    <message>
        <source>The first is %1</source>
        <translation>El primero es %1</translation>
    </message>
    <message>
        <source>The history does not keep what was there before: the call is older than its upgrade.</source>
        <translation>El historial no guarda lo que había antes: la llamada es anterior a su actualización.</translation>
    </message>
    <message>
        <source>The history does not reach back so far.</source>
        <translation>El historial no llega tan atrás.</translation>
    </message>
    <message>
        <source>The history has no entry %1.</source>
        <translation>El historial no tiene la entrada %1.</translation>
    </message>
    <message>
        <source>The holiday point %1.</source>
        <translation>El festivo puntual %1.</translation>
    </message>
    <message>
        <source>The last year is before the first one.</source>
        <translation>El último año es anterior al primero.</translation>
    </message>
    <message>
        <source>The list has %1 bytes; it may have %2 at most</source>
        <translation>La lista tiene %1 bytes; puede tener %2 como máximo</translation>
    </message>
    <message>
        <source>The name has %1 characters; it may have %2 at most</source>
        <translation>El nombre tiene %1 caracteres; puede tener %2 como máximo</translation>
    </message>
    <message>
        <source>The name of the file tells its format and ends in .ics, .csv, .json or .txt</source>
        <translation>El nombre del archivo indica su formato y termina en .ics, .csv, .json o .txt</translation>
    </message>
    <message>
        <source>The name of the moved day has %1 characters; it may have %2 at most</source>
        <translation>El nombre del día trasladado tiene %1 caracteres; puede tener %2 como máximo</translation>
    </message>
    <message>
        <source>The newest change of %1 is "%2" (%3, %4). Undo that first.</source>
        <translation>El cambio más reciente de %1 es «%2» (%3, %4). Deshaga antes ese.</translation>
    </message>
    <message>
        <source>The newest change of the same is "%1" (%2, %3). Undo that first.</source>
        <translation>El cambio más reciente de lo mismo es «%1» (%2, %3). Deshaga antes ese.</translation>
    </message>
    <message>
        <source>The plan does not know this year's dates of %1</source>
        <translation>El plan no conoce las fechas de %1 de este año</translation>
    </message>
    <message>
        <source>The plans of %1 stay as they are.</source>
        <translation>Los planes de %1 quedan como están.</translation>
    </message>
    <message>
        <source>The publisher has %1 characters; it may have %2 at most</source>
        <translation>El editor tiene %1 caracteres; puede tener %2 como máximo</translation>
    </message>
    <message>
        <source>The review has found nothing</source>
        <translation>La revisión no ha encontrado nada</translation>
    </message>
    <message>
        <source>The rule "%1" is %2, and the plan needs %3 of that name; rename it before</source>
        <translation>La regla «%1» es %2, y el plan necesita %3 con ese nombre; cámbiele antes el nombre</translation>
    </message>
    <message>
        <source>The rule "%1" is removed; restore it before</source>
        <translation>La regla «%1» está eliminada; restáurela antes</translation>
    </message>
    <message>
        <source>The rule %1 is removed. Restore it in the list of rules, or take another name.</source>
        <translation>La regla %1 está eliminada. Restáurela en la lista de reglas, o use otro nombre.</translation>
    </message>
    <message>
        <source>The rule %1, "%2": %3</source>
        <translation>La regla %1, «%2»: %3</translation>
    </message>
    <message>
        <source>The rule %1: %2</source>
        <translation>La regla %1: %2</translation>
    </message>
    <message>
        <source>The rule book of %1 does not get the days, so that the board will call them differences. %2.</source>
        <translation>El reglamento de %1 no recibe los días, así que el panel los llamará diferencias. %2.</translation>
    </message>
    <message>
        <source>The rule book of %1 does not get the holiday, so that the board will call it a difference. %2.</source>
        <translation>El reglamento de %1 no recibe el festivo, así que el panel lo llamará diferencia. %2.</translation>
    </message>
    <message>
        <source>The rule book of %1 has changes that are not saved. Lose them?</source>
        <translation>El reglamento de %1 tiene cambios sin guardar. ¿Descartarlos?</translation>
    </message>
    <message numerus="yes">
        <source>The rule book of %1 has got %n days.</source>
        <translation><numerusform>El reglamento de %1 ha recibido %n día.</numerusform><numerusform>El reglamento de %1 ha recibido %n días.</numerusform></translation>
    </message>
    <message>
        <source>The same date each year</source>
        <translation>La misma fecha cada año</translation>
    </message>
    <message>
        <source>The server does not answer. Nothing can be read or changed until it does.</source>
        <translation>El servidor no responde. Hasta entonces no se puede leer ni cambiar nada.</translation>
    </message>
    <message>
        <source>The year cannot be read: %1</source>
        <translation>No se puede leer el año: %1</translation>
    </message>
    <message>
        <source>There is a rule of that name already</source>
        <translation>Ya hay una regla con ese nombre</translation>
    </message>
    <message>
        <source>There is no %1 in %2.</source>
        <translation>No hay %1 en %2.</translation>
    </message>
    <message>
        <source>There is no %1: the month has %2 days.</source>
        <translation>No hay %1: el mes tiene %2 días.</translation>
    </message>
    <message>
        <source>There is no calendar %1 %2, so nothing is known of its days</source>
        <translation>No hay calendario %1 %2, así que no se sabe nada de sus días</translation>
    </message>
    <message>
        <source>There is no calendar and no rule book</source>
        <translation>No hay calendario ni reglamento</translation>
    </message>
    <message>
        <source>There is no calendar and no rule book.</source>
        <translation>No hay calendario ni reglamento.</translation>
    </message>
    <message>
        <source>There is no calendar.</source>
        <translation>No hay calendario.</translation>
    </message>
    <message>
        <source>There is no change of %1 of yours to undo.</source>
        <translation>No hay ningún cambio suyo de %1 que deshacer.</translation>
    </message>
    <message>
        <source>There is no currency %1</source>
        <translation>No hay divisa %1</translation>
    </message>
    <message>
        <source>There is no day %1.</source>
        <translation>No hay día %1.</translation>
    </message>
    <message>
        <source>There is no such calendar</source>
        <translation>No hay tal calendario</translation>
    </message>
    <message>
        <source>There now</source>
        <translation>Ahí ahora</translation>
    </message>
    <message>
        <source>There now: %1</source>
        <translation>Ahí ahora: %1</translation>
    </message>
    <message>
        <source>There was no such calendar then.</source>
        <translation>Entonces no había tal calendario.</translation>
    </message>
    <message>
        <source>Third</source>
        <translation>Tercero</translation>
    </message>
    <message>
        <source>This calendar was changed since it was read.</source>
        <translation>Este calendario se modificó desde que se leyó.</translation>
    </message>
    <message>
        <source>This calendar was removed.</source>
        <translation>Este calendario fue eliminado.</translation>
    </message>
    <message>
        <source>This cannot be imported, and nothing was changed.</source>
        <translation>Esto no se puede importar, y no se ha cambiado nada.</translation>
    </message>
    <message>
        <source>This cannot be undone: a later change is of the same, or the history does not keep what was there before.</source>
        <translation>Esto no se puede deshacer: un cambio posterior afecta a lo mismo, o el historial no guarda lo que había antes.</translation>
    </message>
    <message>
        <source>This is no date. Write a day and a month without a year, such as %1 or %2.</source>
        <translation>Esto no es una fecha. Escriba un día y un mes sin año, como %1 o %2.</translation>
    </message>
    <message>
        <source>This is no date. Write one such as %1 or %2 %3.</source>
        <translation>Esto no es una fecha. Escriba una como %1 o %2 %3.</translation>
    </message>
    <message>
        <source>This is no time. Write one such as 14:05 or 14:05:31.</source>
        <translation>Esto no es una hora. Escriba una como 14:05 o 14:05:31.</translation>
    </message>
    <message>
        <source>This moment is still to come.</source>
        <translation>Este momento aún está por venir.</translation>
    </message>
    <message>
        <source>This text has %1 characters; %2 at most can be stored.</source>
        <translation>Este texto tiene %1 caracteres; se pueden guardar %2 como máximo.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>jueves</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>To be changed (%1): %2</source>
        <translation>Por cambiar (%1): %2</translation>
    </message>
    <message>
        <source>To be changed: %1</source>
        <translation>Por cambiar: %1</translation>
    </message>
    <message>
        <source>To be removed (%1): %2</source>
        <translation>Por eliminar (%1): %2</translation>
    </message>
    <message>
        <source>To be removed: %1</source>
        <translation>Por eliminar: %1</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Try now</source>
        <translation>Probar ahora</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>martes</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Type what the holiday is called, or choose one that is known.</source>
        <translation>Escriba cómo se llama el festivo, o elija uno conocido.</translation>
    </message>
    <message>
        <source>Undid a change</source>
        <translation>Un cambio deshecho</translation>
    </message>
    <message>
        <source>Undid a change of %1</source>
        <translation>Un cambio de %1 deshecho</translation>
    </message>
    <message numerus="yes">
        <source>Undid the changes of %n calendars</source>
        <translation><numerusform>Cambios de %n calendario deshechos</numerusform><numerusform>Cambios de %n calendarios deshechos</numerusform></translation>
    </message>
    <message>
        <source>Undid: %1</source>
        <translation>Deshecho: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Undo a change</source>
        <translation>Deshacer un cambio</translation>
    </message>
    <message>
        <source>Undo a change of %1</source>
        <translation>Deshacer un cambio de %1</translation>
    </message>
    <message numerus="yes">
        <source>Undo in %1: %2, and the %n other changes that were made in the same step?</source>
        <translation><numerusform>¿Deshacer en %1: %2, y %n cambio más del mismo paso?</numerusform><numerusform>¿Deshacer en %1: %2, y %n cambios más del mismo paso?</numerusform></translation>
    </message>
    <message>
        <source>Undo in %1: %2?</source>
        <translation>¿Deshacer en %1: %2?</translation>
    </message>
    <message>
        <source>Undoes the last change that was made in a year planner, in all its calendars and rule books</source>
        <translation>Deshace el último cambio hecho en un planificador anual, en todos sus calendarios y reglamentos</translation>
    </message>
    <message>
        <source>Undoes your last change of this calendar</source>
        <translation>Deshace su último cambio de este calendario</translation>
    </message>
    <message>
        <source>Undoing "%1"</source>
        <translation>Deshaciendo «%1»</translation>
    </message>
    <message>
        <source>Undoing in %1: %2</source>
        <translation>Deshaciendo en %1: %2</translation>
    </message>
    <message>
        <source>Undoing the entry %1</source>
        <translation>Deshaciendo la entrada %1</translation>
    </message>
    <message>
        <source>Undoing the plan</source>
        <translation>Deshaciendo el plan</translation>
    </message>
    <message>
        <source>Undoing the plan of %1, %2 of %3.</source>
        <translation>Deshaciendo el plan de %1, %2 de %3.</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>miércoles</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Día de la semana</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Festivos semanales</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>Fin de semana</translation>
    </message>
    <message>
        <source>Weekends only</source>
        <translation>Solo fines de semana</translation>
    </message>
    <message>
        <source>Weekends only: %1</source>
        <translation>Solo fines de semana: %1</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>What cannot be read in the list will stand here</source>
        <translation>Aquí aparecerá lo que no se pueda leer en la lista</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>Qué ocurre</translation>
    </message>
    <message>
        <source>What is to be known</source>
        <translation>Lo que conviene saber</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Qué está mal</translation>
    </message>
    <message>
        <source>What stands here may be out of date, for the database could not be read: %1</source>
        <translation>Lo mostrado puede estar desfasado, pues no se pudo leer la base de datos: %1</translation>
    </message>
    <message>
        <source>What the list would change is shown before anything is changed.</source>
        <translation>Lo que la lista cambiaría se muestra antes de cambiar nada.</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Qué se hizo</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>When moved</source>
        <translation>Si se traslada</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Quién</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Por qué</translation>
    </message>
    <message>
        <source>Working day</source>
        <translation>Día hábil</translation>
    </message>
    <message>
        <source>Working day by exception</source>
        <translation>Día hábil por excepción</translation>
    </message>
    <message>
        <source>Writes calendars to a file for other programs</source>
        <translation>Escribe calendarios en un archivo para otros programas</translation>
    </message>
    <message>
        <source>Writes the year into a PNG file</source>
        <translation>Escribe el año en un archivo PNG</translation>
    </message>
    <message>
        <source>Writes the year into a file for reading and printing</source>
        <translation>Escribe el año en un archivo para leer e imprimir</translation>
    </message>
    <message>
        <source>Writing the book of %1</source>
        <translation>Escritura del reglamento de %1</translation>
    </message>
    <message>
        <source>Written by hand</source>
        <translation>Escrita a mano</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Year plan</source>
        <translation>Plan anual</translation>
    </message>
    <message>
        <source>Year plan...</source>
        <translation>Plan anual...</translation>
    </message>
    <message>
        <source>Year planner</source>
        <translation>Planificador anual</translation>
    </message>
    <message>
        <source>Year planner - %1</source>
        <translation>Planificador anual – %1</translation>
    </message>
    <message>
        <source>Year planner...</source>
        <translation>Planificador anual...</translation>
    </message>
    <message>
        <source>a %1</source>
        <translation>un %1</translation>
    </message>
    <message>
        <source>a UTC offset -12:00 to +14:00</source>
        <translation>un desfase UTC de -12:00 a +14:00</translation>
    </message>
    <message>
        <source>a celebration</source>
        <translation>un festivo fijo</translation>
    </message>
    <message>
        <source>a comma or the end</source>
        <translation>una coma o el final</translation>
    </message>
    <message>
        <source>a date such as 05-18, easter or 4th Thursday of 11</source>
        <translation>una fecha como 05-18, easter o 4th Thursday of 11</translation>
    </message>
    <message>
        <source>a date such as 12-25, easter-2 or 1st Monday of 05</source>
        <translation>una fecha como 12-25, easter-2 o 1st Monday of 05</translation>
    </message>
    <message>
        <source>a date that follows at most %1 weekdays</source>
        <translation>una fecha que siga como máximo a %1 días de la semana</translation>
    </message>
    <message>
        <source>a day between two holidays</source>
        <translation>un día entre dos festivos</translation>
    </message>
    <message>
        <source>a day of the month</source>
        <translation>un día del mes</translation>
    </message>
    <message>
        <source>a day of the table %1</source>
        <translation>un día de la tabla %1</translation>
    </message>
    <message>
        <source>a day that is not known yet</source>
        <translation>un día que aún no se conoce</translation>
    </message>
    <message>
        <source>a holiday point</source>
        <translation>un festivo puntual</translation>
    </message>
    <message>
        <source>a later call changed the same, or the history does not reach there</source>
        <translation>una llamada posterior cambió lo mismo, o el historial no llega tan atrás</translation>
    </message>
    <message>
        <source>a month 01 to 12</source>
        <translation>un mes de 01 a 12</translation>
    </message>
    <message>
        <source>a month 01 to 12 (a date is MM-DD or YYYY-MM-DD)</source>
        <translation>un mes de 01 a 12 (una fecha es MM-DD o YYYY-MM-DD)</translation>
    </message>
    <message>
        <source>a move, else not observed, from, to, only, not or the end</source>
        <translation>un traslado, else not observed, from, to, only, not o el final</translation>
    </message>
    <message>
        <source>a new calendar, %1</source>
        <translation>un calendario nuevo, %1</translation>
    </message>
    <message>
        <source>a number of days up to %1</source>
        <translation>un número de días hasta %1</translation>
    </message>
    <message>
        <source>a point</source>
        <translation>un festivo puntual</translation>
    </message>
    <message>
        <source>a removed rule has that name</source>
        <translation>una regla eliminada tiene ese nombre</translation>
    </message>
    <message>
        <source>a rule without a name</source>
        <translation>una regla sin nombre</translation>
    </message>
    <message>
        <source>a value is missing, malformed or out of range</source>
        <translation>falta un valor, está mal formado o fuera de rango</translation>
    </message>
    <message>
        <source>a weekday</source>
        <translation>un día de la semana</translation>
    </message>
    <message>
        <source>a weekday holiday</source>
        <translation>un festivo semanal</translation>
    </message>
    <message>
        <source>a weekday or free day</source>
        <translation>un día de la semana o free day</translation>
    </message>
    <message>
        <source>a weekday or taken</source>
        <translation>un día de la semana o taken</translation>
    </message>
    <message>
        <source>a weekday, next or previous</source>
        <translation>un día de la semana, next o previous</translation>
    </message>
    <message>
        <source>a working day</source>
        <translation>un día hábil</translation>
    </message>
    <message>
        <source>a working day%1</source>
        <translation>un día hábil%1</translation>
    </message>
    <message>
        <source>a year %1 to %2</source>
        <translation>un año de %1 a %2</translation>
    </message>
    <message>
        <source>a year from %1 on</source>
        <translation>un año desde %1</translation>
    </message>
    <message>
        <source>add</source>
        <translation>añadir</translation>
    </message>
    <message>
        <source>after</source>
        <translation>después del</translation>
    </message>
    <message>
        <source>after or before</source>
        <translation>after o before</translation>
    </message>
    <message>
        <source>all closed: %1</source>
        <translation>todas cerradas: %1</translation>
    </message>
    <message>
        <source>all open</source>
        <translation>todas abiertas</translation>
    </message>
    <message>
        <source>another holiday</source>
        <translation>otro festivo</translation>
    </message>
    <message>
        <source>as in the list%1</source>
        <translation>como en la lista%1</translation>
    </message>
    <message>
        <source>as planned%1</source>
        <translation>conforme al plan%1</translation>
    </message>
    <message>
        <source>as planned: %1</source>
        <translation>conforme al plan: %1</translation>
    </message>
    <message>
        <source>ascending</source>
        <translation>ascendente</translation>
    </message>
    <message>
        <source>autumnal</source>
        <translation>otoño</translation>
    </message>
    <message>
        <source>before</source>
        <translation>antes del</translation>
    </message>
    <message>
        <source>celebration</source>
        <translation>festivo fijo</translation>
    </message>
    <message>
        <source>certain years</source>
        <translation>ciertos años</translation>
    </message>
    <message>
        <source>closed: %1</source>
        <translation>cerradas: %1</translation>
    </message>
    <message>
        <source>code</source>
        <translation>código</translation>
    </message>
    <message>
        <source>collapsed</source>
        <translation>contraído</translation>
    </message>
    <message>
        <source>comment</source>
        <translation>comentario</translation>
    </message>
    <message>
        <source>date</source>
        <translation>fecha</translation>
    </message>
    <message>
        <source>dates</source>
        <translation>fechas</translation>
    </message>
    <message>
        <source>days to spot</source>
        <translation>días hasta el spot</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>descendente</translation>
    </message>
    <message>
        <source>document</source>
        <translation>documento</translation>
    </message>
    <message>
        <source>eight</source>
        <translation>ocho</translation>
    </message>
    <message>
        <source>eleven</source>
        <translation>once</translation>
    </message>
    <message>
        <source>ever</source>
        <translation>siempre</translation>
    </message>
    <message>
        <source>every %1</source>
        <translation>cada %1</translation>
    </message>
    <message>
        <source>exception</source>
        <translation>excepción</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>expandido</translation>
    </message>
    <message>
        <source>fifth</source>
        <translation>quinto</translation>
    </message>
    <message>
        <source>first</source>
        <translation>primer</translation>
    </message>
    <message>
        <source>five</source>
        <translation>cinco</translation>
    </message>
    <message>
        <source>for a reason that this program does not know</source>
        <translation>por una razón que este programa no conoce</translation>
    </message>
    <message>
        <source>four</source>
        <translation>cuatro</translation>
    </message>
    <message>
        <source>fourth</source>
        <translation>cuarto</translation>
    </message>
    <message numerus="yes">
        <source>gets them as dates of their own</source>
        <translation><numerusform>lo recibe como fecha propia</numerusform><numerusform>los recibe como fechas propias</numerusform></translation>
    </message>
    <message>
        <source>has something else there, and stays as it is</source>
        <translation>tiene ahí otra cosa, y queda como está</translation>
    </message>
    <message>
        <source>has the day already</source>
        <translation>ya tiene el día</translation>
    </message>
    <message>
        <source>holiday point</source>
        <translation>festivo puntual</translation>
    </message>
    <message numerus="yes">
        <source>in %n days</source>
        <translation><numerusform>en %n día</numerusform><numerusform>en %n días</numerusform></translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>incompleto</translation>
    </message>
    <message>
        <source>is %1 and should be %2</source>
        <translation>es %1 y debería ser %2</translation>
    </message>
    <message>
        <source>is %1, which is on a %2 in every other year</source>
        <translation>es %1, que en los demás años cae en %2</translation>
    </message>
    <message>
        <source>is %1, whose date is %2</source>
        <translation>es %1, cuya fecha es el %2</translation>
    </message>
    <message>
        <source>is a working day by exception, "%1", where the plan has %2</source>
        <translation>es hábil por excepción, «%1», donde el plan tiene %2</translation>
    </message>
    <message>
        <source>is a working day by exception, without a reason</source>
        <translation>es hábil por excepción, sin motivo</translation>
    </message>
    <message>
        <source>is a working day by exception, without a reason, and should be %1</source>
        <translation>es hábil por excepción, sin motivo, y debería ser %1</translation>
    </message>
    <message>
        <source>is closed</source>
        <translation>está cerrado</translation>
    </message>
    <message>
        <source>is closed, but the rule book has %1 there</source>
        <translation>está cerrado, pero el reglamento tiene ahí %1</translation>
    </message>
    <message>
        <source>is closed; the exception goes</source>
        <translation>está cerrado; la excepción desaparece</translation>
    </message>
    <message>
        <source>is closed; the exception goes, which has opened nothing</source>
        <translation>está cerrado; desaparece la excepción, que no abrió nada</translation>
    </message>
    <message>
        <source>it exists already</source>
        <translation>ya existe</translation>
    </message>
    <message>
        <source>it was changed meanwhile</source>
        <translation>se modificó entretanto</translation>
    </message>
    <message>
        <source>keep</source>
        <translation>conservar</translation>
    </message>
    <message>
        <source>kind</source>
        <translation>tipo</translation>
    </message>
    <message>
        <source>last</source>
        <translation>último</translation>
    </message>
    <message>
        <source>last day as money</source>
        <translation>último día de curso</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>línea %1</translation>
    </message>
    <message>
        <source>line %1 of %2</source>
        <translation>línea %1 de %2</translation>
    </message>
    <message>
        <source>minutes 00 to 59</source>
        <translation>minutos de 00 a 59</translation>
    </message>
    <message>
        <source>money</source>
        <translation>de curso</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>name of a moved day</source>
        <translation>nombre de un día trasladado</translation>
    </message>
    <message>
        <source>nine</source>
        <translation>nueve</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>no calendar</source>
        <translation>sin calendario</translation>
    </message>
    <message>
        <source>no calendar is made</source>
        <translation>no se crea ningún calendario</translation>
    </message>
    <message>
        <source>no calendar of %1</source>
        <translation>sin calendario de %1</translation>
    </message>
    <message>
        <source>no day</source>
        <translation>ningún día</translation>
    </message>
    <message>
        <source>no day set</source>
        <translation>ningún día fijado</translation>
    </message>
    <message>
        <source>no money</source>
        <translation>sin curso</translation>
    </message>
    <message>
        <source>no plan</source>
        <translation>sin plan</translation>
    </message>
    <message>
        <source>no warnings</source>
        <translation>sin advertencias</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>not prepared</source>
        <translation>sin preparar</translation>
    </message>
    <message>
        <source>not prepared: %1</source>
        <translation>sin preparar: %1</translation>
    </message>
    <message>
        <source>nothing: there is no such calendar. Prepare the year first</source>
        <translation>nada: no hay tal calendario. Prepare antes el año</translation>
    </message>
    <message>
        <source>of an unknown type</source>
        <translation>de un tipo desconocido</translation>
    </message>
    <message>
        <source>on %1</source>
        <translation>el %1</translation>
    </message>
    <message>
        <source>on or after</source>
        <translation>a partir del</translation>
    </message>
    <message>
        <source>on or before</source>
        <translation>a más tardar el</translation>
    </message>
    <message>
        <source>on the day itself</source>
        <translation>el día mismo</translation>
    </message>
    <message>
        <source>one</source>
        <translation>un</translation>
    </message>
    <message>
        <source>one of 1st, 2nd, 3rd, 4th, 5th and last</source>
        <translation>uno de 1st, 2nd, 3rd, 4th, 5th y last</translation>
    </message>
    <message>
        <source>one of on or after, after, on or before and before</source>
        <translation>uno de on or after, after, on or before y before</translation>
    </message>
    <message>
        <source>only, not or the end</source>
        <translation>only, not o el final</translation>
    </message>
    <message>
        <source>open as far as known</source>
        <translation>abiertas hasta donde se sabe</translation>
    </message>
    <message numerus="yes">
        <source>open together on %n days</source>
        <translation><numerusform>abiertas a la vez %n día</numerusform><numerusform>abiertas a la vez %n días</numerusform></translation>
    </message>
    <message>
        <source>publisher</source>
        <translation>editor</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rechazado</translation>
    </message>
    <message>
        <source>remove</source>
        <translation>eliminar</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>eliminado</translation>
    </message>
    <message>
        <source>replace</source>
        <translation>sustituir</translation>
    </message>
    <message>
        <source>rule %1</source>
        <translation>regla %1</translation>
    </message>
    <message>
        <source>second</source>
        <translation>segundo</translation>
    </message>
    <message>
        <source>seven</source>
        <translation>siete</translation>
    </message>
    <message>
        <source>should be %1: %2</source>
        <translation>debería ser %1: %2</translation>
    </message>
    <message>
        <source>should be an ordinary working day%1</source>
        <translation>debería ser un día hábil corriente%1</translation>
    </message>
    <message>
        <source>since</source>
        <translation>desde</translation>
    </message>
    <message>
        <source>six</source>
        <translation>seis</translation>
    </message>
    <message>
        <source>something else has that name already</source>
        <translation>otra cosa ya tiene ese nombre</translation>
    </message>
    <message>
        <source>sorted ascending</source>
        <translation>orden ascendente</translation>
    </message>
    <message>
        <source>sorted descending</source>
        <translation>orden descendente</translation>
    </message>
    <message numerus="yes">
        <source>stays as it is: differences on the board</source>
        <translation><numerusform>queda como está: diferencia en el panel</numerusform><numerusform>queda como está: diferencias en el panel</numerusform></translation>
    </message>
    <message>
        <source>stays as it is: it is closed already</source>
        <translation>queda como está: ya está cerrado</translation>
    </message>
    <message>
        <source>stays open</source>
        <translation>queda abierto</translation>
    </message>
    <message>
        <source>stopped by holidays of the dollar</source>
        <translation>lo detienen los festivos del dólar</translation>
    </message>
    <message>
        <source>ten</source>
        <translation>diez</translation>
    </message>
    <message>
        <source>the %1</source>
        <translation>el %1</translation>
    </message>
    <message>
        <source>the %1 %2 of %3 %4</source>
        <translation>el %1 %2 de %3 de %4</translation>
    </message>
    <message>
        <source>the book has no day of that year yet</source>
        <translation>el reglamento aún no tiene ningún día de ese año</translation>
    </message>
    <message>
        <source>the currency is unknown, or is no money in that year</source>
        <translation>la divisa es desconocida, o no es de curso ese año</translation>
    </message>
    <message>
        <source>the day of the %1 equinox %2 at UTC%3</source>
        <translation>el día del equinoccio de %1 %2 en UTC%3</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>el final</translation>
    </message>
    <message>
        <source>the end of at most %1 moves</source>
        <translation>el final de como máximo %1 traslados</translation>
    </message>
    <message>
        <source>the name of a table</source>
        <translation>el nombre de una tabla</translation>
    </message>
    <message>
        <source>the name of a table, of letters, digits and single hyphens,</source>
        <translation>el nombre de una tabla, de letras, cifras y guiones sueltos,</translation>
    </message>
    <message>
        <source>the next %1</source>
        <translation>siguiente %1</translation>
    </message>
    <message>
        <source>the next free day</source>
        <translation>siguiente día libre</translation>
    </message>
    <message>
        <source>the previous %1</source>
        <translation>anterior %1</translation>
    </message>
    <message>
        <source>the previous free day</source>
        <translation>anterior día libre</translation>
    </message>
    <message>
        <source>the table %1 reaches from %2 to %3</source>
        <translation>la tabla %1 llega de %2 a %3</translation>
    </message>
    <message>
        <source>there is no such calendar</source>
        <translation>no hay tal calendario</translation>
    </message>
    <message>
        <source>there is no such rule</source>
        <translation>no hay tal regla</translation>
    </message>
    <message>
        <source>there is no table %1</source>
        <translation>no hay tabla %1</translation>
    </message>
    <message>
        <source>there is no type %1 of rules</source>
        <translation>no hay tipo %1 de reglas</translation>
    </message>
    <message>
        <source>third</source>
        <translation>tercer</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>este equipo</translation>
    </message>
    <message>
        <source>three</source>
        <translation>tres</translation>
    </message>
    <message>
        <source>to</source>
        <translation>a</translation>
    </message>
    <message>
        <source>to year</source>
        <translation>hasta el año</translation>
    </message>
    <message>
        <source>to, only, not or the end</source>
        <translation>to, only, not o el final</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>mañana</translation>
    </message>
    <message>
        <source>twelve</source>
        <translation>doce</translation>
    </message>
    <message>
        <source>two</source>
        <translation>dos</translation>
    </message>
    <message>
        <source>type</source>
        <translation>tipo</translation>
    </message>
    <message>
        <source>vernal</source>
        <translation>primavera</translation>
    </message>
    <message>
        <source>weekday</source>
        <translation>día de la semana</translation>
    </message>
    <message>
        <source>weekend</source>
        <translation>fin de semana</translation>
    </message>
    <message>
        <source>weekend, closed</source>
        <translation>fin de semana, cerrado</translation>
    </message>
    <message>
        <source>working day</source>
        <translation>día hábil</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
</context>
<context>
    <name>fmAddHoliday</name>
    <message>
        <source>Full date</source>
        <translation>Fecha completa</translation>
    </message>
</context>
<context>
    <name>fmAssignPreview</name>
    <message>
        <source>The current rule</source>
        <translation>La regla actual</translation>
    </message>
    <message>
        <source>What each rule would do</source>
        <translation>Lo que haría cada regla</translation>
    </message>
</context>
<context>
    <name>fmCalendar</name>
    <message>
        <source>Currencies and calendars</source>
        <translation>Divisas y calendarios</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Días</translation>
    </message>
    <message>
        <source>The same day in the years around</source>
        <translation>El mismo día en los años cercanos</translation>
    </message>
    <message>
        <source>Which days</source>
        <translation>Qué días</translation>
    </message>
    <message>
        <source>Why the day is what it is</source>
        <translation>Por qué el día es como es</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
</context>
<context>
    <name>fmCalendarThen</name>
    <message>
        <source>Days</source>
        <translation>Días</translation>
    </message>
</context>
<context>
    <name>fmCloseDays</name>
    <message>
        <source>What will happen</source>
        <translation>Lo que ocurrirá</translation>
    </message>
</context>
<context>
    <name>fmEnterHolidays</name>
    <message>
        <source>Holidays</source>
        <translation>Festivos</translation>
    </message>
    <message>
        <source>Which rules</source>
        <translation>Qué reglas</translation>
    </message>
</context>
<context>
    <name>fmHistory</name>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>What the change replaced</source>
        <translation>Lo que el cambio sustituyó</translation>
    </message>
</context>
<context>
    <name>fmImport</name>
    <message>
        <source>What is wrong in the list</source>
        <translation>Qué está mal en la lista</translation>
    </message>
</context>
<context>
    <name>fmMessage</name>
    <message>
        <source>Question</source>
        <translation>Pregunta</translation>
    </message>
</context>
<context>
    <name>fmReadiness</name>
    <message>
        <source>Findings of the review</source>
        <translation>Hallazgos de la revisión</translation>
    </message>
    <message>
        <source>Readiness of the currencies</source>
        <translation>Preparación de las divisas</translation>
    </message>
</context>
<context>
    <name>fmRuleBook</name>
    <message>
        <source>Before or after the date</source>
        <translation>Antes o después de la fecha</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Days before or after</source>
        <translation>Días antes o después</translation>
    </message>
    <message>
        <source>Days of the rule in ten years</source>
        <translation>Días de la regla en diez años</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regla</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Reglas</translation>
    </message>
    <message>
        <source>Table of dates</source>
        <translation>Tabla de fechas</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Día de la semana</translation>
    </message>
    <message>
        <source>Which one of the month</source>
        <translation>Cuál del mes</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
</context>
<context>
    <name>fmSelectYear</name>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
</context>
<context>
    <name>fmYearPlan</name>
    <message>
        <source>Days that differ from the plan</source>
        <translation>Días que difieren del plan</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Qué se hizo</translation>
    </message>
</context>
<context>
    <name>fmYearPlanner</name>
    <message>
        <source>Codes of currencies, such as EUR USD, or ALL</source>
        <translation>Códigos de divisas, como EUR USD, o ALL</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
</context>
</TS>
