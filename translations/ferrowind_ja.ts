<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ferrowind</name>
    <message>
        <source> but for %1</source>
        <translation>（%1を除く）</translation>
    </message>
    <message>
        <source>"%1" is %2 in %3 and %4 in %5: a celebration has one date</source>
        <translation>「%1」は%3では%2、%5では%4です。固定祝日の日付は一つです</translation>
    </message>
    <message>
        <source>"%1" is %2 in %3 and %4 in %5: a name has one kind</source>
        <translation>「%1」は%3では%2、%5では%4です。一つの名前の種類は一つです</translation>
    </message>
    <message>
        <source>"%1" is %2: a celebration has one date</source>
        <translation>「%1」は%2です。固定祝日の日付は一つです</translation>
    </message>
    <message>
        <source>"%1" is %2: a name has one kind</source>
        <translation>「%1」は%2です。一つの名前の種類は一つです</translation>
    </message>
    <message>
        <source>"%1" is no year from %2 to %3</source>
        <translation>「%1」は%2年から%3年までの年ではありません</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%2（%1）</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <translation>%3%2の%1</translation>
    </message>
    <message>
        <source>%1 %2 of %3 %4</source>
        <translation>%4年%3の%1%2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (%2) asks for the table %3, and there is none of that name</source>
        <translation>%1（%2）が求める表%3はありません</translation>
    </message>
    <message>
        <source>%1 (%2) has no name</source>
        <translation>%1（%2）に名前がありません</translation>
    </message>
    <message>
        <source>%1 (%2) has the name of the built-in rule "%3", which no book can have</source>
        <translation>%1（%2）の名前は組み込みの規則「%3」と同じで、規則集には使えません</translation>
    </message>
    <message>
        <source>%1 (%2) is a day between holidays, so its kind is point</source>
        <translation>%1（%2）は休日に挟まれた日なので、種類は point です</translation>
    </message>
    <message>
        <source>%1 (%2) is each week on a weekday, so its kind is weekday</source>
        <translation>%1（%2）は毎週の曜日なので、種類は weekday です</translation>
    </message>
    <message>
        <source>%1 (%2) is not on the same date each year, so its kind is point</source>
        <translation>%1（%2）は毎年同じ日付ではないので、種類は point です</translation>
    </message>
    <message>
        <source>%1 (%2) is of the kind weekday, so its expression is "weekday" and a weekday</source>
        <translation>%1（%2）の種類は weekday なので、式は「weekday」と曜日です</translation>
    </message>
    <message>
        <source>%1 (%2) is on no day of any year</source>
        <translation>%1（%2）に当たる日はどの年にもありません</translation>
    </message>
    <message>
        <source>%1 (%2) moves off a %3 to the nearest %3, which is the same day</source>
        <translation>%1（%2）は%3から最も近い%3へ移りますが、それは同じ日です</translation>
    </message>
    <message>
        <source>%1 (%2) moves off a %3, a working day, and takes its name along, so its kind is point</source>
        <translation>%1（%2）は営業日である%3から名前とともに移るので、種類は point です</translation>
    </message>
    <message>
        <source>%1 (%2) names its moved day, but does not move</source>
        <translation>%1（%2）は移動日の名前を持ちますが、移動しません</translation>
    </message>
    <message>
        <source>%1 (%2) neither moves nor is dropped: it is a working day, a weekday, a day between holidays or unknown</source>
        <translation>%1（%2）は移動も省略もされません。営業日、曜日、休日に挟まれた日、または不明な日です</translation>
    </message>
    <message>
        <source>%1 (%2) says the same as %3</source>
        <translation>%1（%2）は%3と同じ内容です</translation>
    </message>
    <message>
        <source>%1 (a move stands before else, from and to)</source>
        <translation>%1（移動は else、from、to の前に置きます）</translation>
    </message>
    <message>
        <source>%1 (moved day)</source>
        <translation>%1（移動日）</translation>
    </message>
    <message>
        <source>%1 (redone)</source>
        <translation>%1（やり直し済み）</translation>
    </message>
    <message>
        <source>%1 (undone)</source>
        <translation>%1（取り消し済み）</translation>
    </message>
    <message>
        <source>%1 - today</source>
        <translation>%1（今日）</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1と%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n others</source>
        <translation><numerusform>%1ほか%n件</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 and entered in %n rule books</source>
        <translation><numerusform>%1、%n冊の規則集に登録</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 and entered in %n rule books.</source>
        <translation><numerusform>%1、%n冊の規則集に登録。</numerusform></translation>
    </message>
    <message>
        <source>%1 as far as known; %2</source>
        <translation>%1（判明分のみ）；%2</translation>
    </message>
    <message>
        <source>%1 as it was after: %2 — %3, %4</source>
        <translation>%1（次の変更後）：%2 — %3、%4</translation>
    </message>
    <message>
        <source>%1 as it was at: %2</source>
        <translation>%1（次の時点）：%2</translation>
    </message>
    <message>
        <source>%1 as of %2</source>
        <translation>%1（%2時点）</translation>
    </message>
    <message>
        <source>%1 assigned</source>
        <translation>割り当て%1件</translation>
    </message>
    <message>
        <source>%1 can be %2 or %3. Write the name of the month.</source>
        <translation>%1は%2か%3です。月の名前を書いてください。</translation>
    </message>
    <message>
        <source>%1 cannot be judged in full. %2.</source>
        <translation>%1は完全には判定できません。%2。</translation>
    </message>
    <message>
        <source>%1 cannot be planned in full. %2.</source>
        <translation>%1は完全には計画できません。%2。</translation>
    </message>
    <message>
        <source>%1 changed this calendar, %2: %3.</source>
        <translation>%1がこのカレンダーを変更しました（%2）：%3。</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>完了%1件</translation>
    </message>
    <message>
        <source>%1 from %2 to %3</source>
        <translation>%1：%2→%3</translation>
    </message>
    <message>
        <source>%1 has an unusual number of holidays beside its weekends: %2, and %3 in the other years.</source>
        <translation>%1は週末以外の休日の数が通常と異なります：%2、ほかの年は%3。</translation>
    </message>
    <message>
        <source>%1 has holidays, and no rule book tells whether they are right.</source>
        <translation>%1には休日がありますが、正しいかを示す規則集がありません。</translation>
    </message>
    <message>
        <source>%1 has no book, so nothing tells what its calendars should be</source>
        <translation>%1には規則集がなく、カレンダーのあるべき姿がわかりません</translation>
    </message>
    <message>
        <source>%1 has no book, so nothing tells what its calendars should be.</source>
        <translation>%1には規則集がなく、カレンダーのあるべき姿がわかりません。</translation>
    </message>
    <message>
        <source>%1 has no calendar for %2, the running year.</source>
        <translation>%1には今年（%2年）のカレンダーがありません。</translation>
    </message>
    <message>
        <source>%1 has no calendar for %2.</source>
        <translation>%1には%2年のカレンダーがありません。</translation>
    </message>
    <message>
        <source>%1 has no calendar.</source>
        <translation>%1にはカレンダーがありません。</translation>
    </message>
    <message>
        <source>%1 has no calendars: it is no money</source>
        <translation>%1は通貨ではないため、カレンダーがありません</translation>
    </message>
    <message>
        <source>%1 has no closed day.</source>
        <translation>%1には休業日がありません。</translation>
    </message>
    <message>
        <source>%1 has no rule book</source>
        <translation>%1には規則集がありません</translation>
    </message>
    <message>
        <source>%1 has no rule book yet, so that nothing can be planned for it. Say who publishes its holidays and where, add its rules, and save them.</source>
        <translation>%1にはまだ規則集がなく、計画できません。休日の公表者と出典を示し、規則を追加して保存してください。</translation>
    </message>
    <message>
        <source>%1 has no weekends: no weekday holiday closes any of its days.</source>
        <translation>%1には週末がありません。曜日休日で休業となる日がありません。</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%2の%1</translation>
    </message>
    <message>
        <source>%1 is %2.</source>
        <translation>%1は%2です。</translation>
    </message>
    <message>
        <source>%1 is a %2.</source>
        <translation>%1は%2です。</translation>
    </message>
    <message>
        <source>%1 is a %2; moved to %3</source>
        <translation>%1は%2のため%3へ移動</translation>
    </message>
    <message>
        <source>%1 is a rule for one weekday of every week. Take another name.</source>
        <translation>%1は毎週の曜日の規則です。別の名前にしてください。</translation>
    </message>
    <message>
        <source>%1 is a rule that opens days. Take another name.</source>
        <translation>%1は日を営業とする規則です。別の名前にしてください。</translation>
    </message>
    <message>
        <source>%1 is as in the list now%2.</source>
        <translation>%1は一覧のとおりになりました%2。</translation>
    </message>
    <message>
        <source>%1 is as it was before.</source>
        <translation>%1は元のとおりです。</translation>
    </message>
    <message>
        <source>%1 is as planned now%2.</source>
        <translation>%1は計画どおりになりました%2。</translation>
    </message>
    <message>
        <source>%1 is as planned.</source>
        <translation>%1は計画どおりです。</translation>
    </message>
    <message>
        <source>%1 is closed on weekends only.</source>
        <translation>%1は週末だけ休業です。</translation>
    </message>
    <message>
        <source>%1 is made%2.</source>
        <translation>%1を作成しました%2。</translation>
    </message>
    <message>
        <source>%1 is money until %2</source>
        <translation>%1は%2まで通貨です</translation>
    </message>
    <message>
        <source>%1 is no date expression: at %2, %3 is expected</source>
        <translation>%1は日付の式ではありません。%2に%3が必要です</translation>
    </message>
    <message>
        <source>%1 is no money</source>
        <translation>%1は通貨ではありません</translation>
    </message>
    <message>
        <source>%1 is not observed on a closed day: %2</source>
        <translation>%1は休業日には実施されません：%2</translation>
    </message>
    <message>
        <source>%1 is on %2 each year. Take another name for another day.</source>
        <translation>%1は毎年%2です。ほかの日には別の名前にしてください。</translation>
    </message>
    <message>
        <source>%1 is on this day too: %2</source>
        <translation>%1もこの日です：%2</translation>
    </message>
    <message>
        <source>%1 is taken by %2; moved to %3</source>
        <translation>%1は%2と重なるため%3へ移動</translation>
    </message>
    <message>
        <source>%1 is there already. Is it to be replaced?</source>
        <translation>%1 は既にあります。置き換えますか。</translation>
    </message>
    <message>
        <source>%1 moved from here to %2</source>
        <translation>%1はここから%2へ移動しました</translation>
    </message>
    <message>
        <source>%1 not tried</source>
        <translation>未実行%1件</translation>
    </message>
    <message>
        <source>%1 of %2 currencies for %3</source>
        <translation>%3年：%2通貨中%1</translation>
    </message>
    <message>
        <source>%1 of %2 days</source>
        <translation>%2日中%1日</translation>
    </message>
    <message>
        <source>%1 of %2 rules</source>
        <translation>%2件中%1件</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rules</source>
        <translation><numerusform>%n件中%1件の規則</numerusform></translation>
    </message>
    <message>
        <source>%1 of the table %2</source>
        <translation>%1（表%2による）</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%2の%1</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1または%2</translation>
    </message>
    <message>
        <source>%1 refused</source>
        <translation>拒否%1件</translation>
    </message>
    <message>
        <source>%1 removed this calendar, %2: %3.</source>
        <translation>%1がこのカレンダーを削除しました（%2）：%3。</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else meanwhile. It is left as it is; look at its days again.</source>
        <translation>%1はその間にほかの人が変更しました。そのままにしますので、もう一度ご確認ください。</translation>
    </message>
    <message>
        <source>%1 was changed meanwhile; nothing was changed in it, and its plan is made anew.</source>
        <translation>%1はその間に変更されました。何も変更せず、計画を作り直します。</translation>
    </message>
    <message>
        <source>%1 was not tried.</source>
        <translation>%1は実行しませんでした。</translation>
    </message>
    <message>
        <source>%1%2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 days after</source>
        <translation><numerusform>%1の%2日後</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 days before</source>
        <translation><numerusform>%1の%2日前</numerusform></translation>
    </message>
    <message>
        <source>%1, %2 of them weekends</source>
        <translation>%1（うち週末%2日）</translation>
    </message>
    <message>
        <source>%1, %2,</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1, %2: %3.</source>
        <translation>%1、%2：%3。</translation>
    </message>
    <message>
        <source>%1, %2: why it is what it is cannot be read.</source>
        <translation>%1、%2：理由を読み取れません。</translation>
    </message>
    <message>
        <source>%1, and entered in no rule book.</source>
        <translation>%1、規則集には登録されません。</translation>
    </message>
    <message>
        <source>%1, closed</source>
        <translation>%1、休業</translation>
    </message>
    <message>
        <source>%1, from %2 on</source>
        <translation>%1（%2年から）</translation>
    </message>
    <message>
        <source>%1, next year</source>
        <translation>%1（来年）</translation>
    </message>
    <message>
        <source>%1, only in %2</source>
        <translation>%1（%2年のみ）</translation>
    </message>
    <message>
        <source>%1, only on %2</source>
        <translation>%1（%2のみ）</translation>
    </message>
    <message>
        <source>%1, so it has no calendar of %2</source>
        <translation>%1、そのため%2年のカレンダーはありません</translation>
    </message>
    <message>
        <source>%1, this year</source>
        <translation>%1（今年）</translation>
    </message>
    <message>
        <source>%1, until %2</source>
        <translation>%1（%2年まで）</translation>
    </message>
    <message>
        <source>%1, which the table %2 does not reach</source>
        <translation>%1（表%2の範囲外）</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: %2 %3.</source>
        <translation>%1：%2 %3。</translation>
    </message>
    <message>
        <source>%1: %2 (%3 returned %4)</source>
        <translation>%1：%2（%3の戻り値 %4）</translation>
    </message>
    <message>
        <source>%1: %2 gave only %3 of its %4 record sets</source>
        <translation>%1：%2のレコードセットは%4件中%3件だけでした</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1：%2。</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n days are not as planned.</source>
        <translation><numerusform>%1：%n日が計画と異なります。</numerusform></translation>
    </message>
    <message>
        <source>%1: the call failed</source>
        <translation>%1：呼び出しに失敗しました</translation>
    </message>
    <message>
        <source>%1: the database did not do what was asked. What is shown may be out of date.</source>
        <translation>%1：データベースが要求を実行しませんでした。表示は古いかもしれません。</translation>
    </message>
    <message>
        <source>%1: weekends only</source>
        <translation>%1：週末のみ</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1；%2</translation>
    </message>
    <message>
        <source>%1; a working %2</source>
        <translation>%1；%2の営業日</translation>
    </message>
    <message>
        <source>%1; now open by exception: %2</source>
        <translation>%1；現在は例外で営業：%2</translation>
    </message>
    <message>
        <source>%1; unchanged: %2</source>
        <translation>%1；変更なし：%2</translation>
    </message>
    <message>
        <source>%1; weekends only: %2</source>
        <translation>%1；週末のみ：%2</translation>
    </message>
    <message>
        <source>%2 %1</source>
        <translation>%1%2日</translation>
    </message>
    <message>
        <source>%3 %2 %1</source>
        <translation>%1年%2%3日</translation>
    </message>
    <message numerus="yes">
        <source>%n by exception</source>
        <translation><numerusform>例外%n日</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n calendars are as planned%1.</source>
        <translation><numerusform>%n件のカレンダーが計画どおりです%1。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n calendars cannot be planned.</source>
        <translation><numerusform>%n件のカレンダーは計画できません。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n calendars: %1.</source>
        <translation><numerusform>%n件のカレンダー：%1。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n change nothing</source>
        <translation><numerusform>%n件は変化なし</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n changes are undone</source>
        <translation><numerusform>%n件の変更を元に戻しました</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n closed days keep their names, which the list calls otherwise.</source>
        <translation><numerusform>%n日の休業日は名称を保ちます。一覧では別の名称です。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n closed days that the rule book does not have</source>
        <translation><numerusform>規則集にない休業日%n日</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies</source>
        <translation><numerusform>%n通貨</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies are closed on weekends only in %2: %1.</source>
        <translation><numerusform>%n通貨の%2年は週末だけ休業です: %1。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no book, so nothing tells what their calendars should be: %1.</source>
        <translation><numerusform>%n通貨に規則集がなく、カレンダーのあるべき姿がわかりません: %1。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no calendar for %2, the running year: %1.</source>
        <translation><numerusform>%n通貨に今年（%2年）のカレンダーがありません: %1。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no calendar for %2: %1.</source>
        <translation><numerusform>%n通貨に%2年のカレンダーがありません: %1。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no closed day in %2: %1.</source>
        <translation><numerusform>%n通貨に%2年の休業日がありません: %1。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no holidays in %1, the running year.</source>
        <translation><numerusform>%n通貨に今年（%1年）の休日がありません。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no holidays in %1, which begins %2.</source>
        <translation><numerusform>%n通貨に%1年の休日がありません（%2開始）。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n currencies have no weekends in %2, for no weekday holiday closes any day: %1.</source>
        <translation><numerusform>%n通貨に%2年の週末がありません（曜日休日で休業となる日がありません）: %1。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation><numerusform>%n日</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days after</source>
        <translation><numerusform>%n日後</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days are closed now</source>
        <translation><numerusform>%n日を休業にしました</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days are not as planned.</source>
        <translation><numerusform>%n日が計画と異なります。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days are working days by exception now</source>
        <translation><numerusform>%n日を例外の営業日にしました</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days before</source>
        <translation><numerusform>%n日前</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days of %1</source>
        <translation><numerusform>%1の%n日</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days of %1 are written to %2.</source>
        <translation><numerusform>%1の%n日を%2に書き込みました。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days of the plans of %1 change:</source>
        <translation><numerusform>%1の計画のうち%n日が変わります：</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days selected, %1 of them closed</source>
        <translation><numerusform>%n日を選択中、うち休業%1日</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days set</source>
        <translation><numerusform>%n日を設定</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days take it</source>
        <translation><numerusform>%n日に適用</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days that are left out</source>
        <translation><numerusform>除外した%n日</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days were changed.</source>
        <translation><numerusform>%n日を変更しました。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days whose rules stand in the way</source>
        <translation><numerusform>規則が妨げる%n日</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n days will be closed</source>
        <translation><numerusform>%n日を休業にします</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n errors</source>
        <translation><numerusform>エラー%n件</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n have it</source>
        <translation><numerusform>%n日は適用済み</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n holidays</source>
        <translation><numerusform>休日%n日</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation><numerusform>ほか%n件</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n more faults.</source>
        <translation><numerusform>ほかに%n件の誤り。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n notes</source>
        <translation><numerusform>メモ%n件</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n plans lack dates that are not known yet.</source>
        <translation><numerusform>%n件の計画に未定の日付があります。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n rules</source>
        <translation><numerusform>規則%n件</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n rules for %1</source>
        <translation><numerusform>%1への規則%n件</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n stay as holidays or exceptions</source>
        <translation><numerusform>%n日は休日または例外のまま</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation><numerusform>警告%n件</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n weekend days</source>
        <translation><numerusform>週末%n日</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days</source>
        <translation><numerusform>営業日%n日</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days by exception</source>
        <translation><numerusform>例外の営業日%n日</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days by exception have a reason.</source>
        <translation><numerusform>例外の営業日%n日に理由があります。</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n working days by exception that have a reason will be closed.</source>
        <translation><numerusform>理由のある例外の営業日%n日を休業にします。</numerusform></translation>
    </message>
    <message>
        <source>&amp;Clear Sorting</source>
        <translation>並べ替えを解除(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Close calendars</source>
        <translation>カレンダーを閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>すべて展開(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Group by This Column</source>
        <translation>この列でグループ化(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Open calendars</source>
        <translation>カレンダーを開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Ungroup</source>
        <translation>グループ解除(&amp;U)</translation>
    </message>
    <message>
        <source>A calendar's year is 1900 to 3000.</source>
        <translation>カレンダーの年は1900～3000です。</translation>
    </message>
    <message>
        <source>A day between two holidays</source>
        <translation>休日に挟まれた日</translation>
    </message>
    <message>
        <source>A day that is not known yet</source>
        <translation>まだわからない日</translation>
    </message>
    <message>
        <source>A later change is of the same, or the history does not reach there</source>
        <translation>後の変更が同じものに及ぶか、履歴がそこまで残っていません</translation>
    </message>
    <message>
        <source>A list is imported for one currency at a time.</source>
        <translation>一覧は一度に1通貨だけ取り込めます。</translation>
    </message>
    <message>
        <source>A new holiday point, on the days that are closed here.</source>
        <translation>ここで休業にする日の新しい個別休日。</translation>
    </message>
    <message>
        <source>A plan from now on for: %1.</source>
        <translation>新たに計画の対象：%1。</translation>
    </message>
    <message>
        <source>A removed rule has that name: it can be restored</source>
        <translation>削除された規則がその名前です。復元できます</translation>
    </message>
    <message>
        <source>A text file names no currencies, so it can be of one alone</source>
        <translation>テキストファイルには通貨名がないため、1通貨だけ書き出せます</translation>
    </message>
    <message>
        <source>A value is missing or out of range</source>
        <translation>値がないか、範囲外です</translation>
    </message>
    <message>
        <source>A weekday near a date</source>
        <translation>日付に近い曜日</translation>
    </message>
    <message>
        <source>A weekday of a month</source>
        <translation>月の第何曜日</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>処理</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Add the rule %1</source>
        <translation>規則%1を追加</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Added the currency %1 (%2)</source>
        <translation>通貨%1（%2）を追加しました</translation>
    </message>
    <message>
        <source>Added the currency %1 (%2), no money</source>
        <translation>通貨%1（%2）を追加しました。通貨ではない</translation>
    </message>
    <message>
        <source>Added the rule %1</source>
        <translation>規則%1を追加しました</translation>
    </message>
    <message numerus="yes">
        <source>Added the rule book of %1: %n rules</source>
        <translation><numerusform>%1の規則集を追加：規則%n件</numerusform></translation>
    </message>
    <message>
        <source>Address of the database</source>
        <translation>データベースのアドレス</translation>
    </message>
    <message>
        <source>After</source>
        <translation>変更後</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>All calendars</source>
        <translation>すべてのカレンダー</translation>
    </message>
    <message>
        <source>All calendars are as planned, as far as it is published</source>
        <translation>公表された限りで、すべてのカレンダーが計画どおりです</translation>
    </message>
    <message>
        <source>All calendars together</source>
        <translation>全カレンダーの合計</translation>
    </message>
    <message>
        <source>All days</source>
        <translation>すべての日</translation>
    </message>
    <message>
        <source>All rules</source>
        <translation>すべての規則</translation>
    </message>
    <message>
        <source>An ordinary working day%1</source>
        <translation>通常の営業日%1</translation>
    </message>
    <message>
        <source>Applied the plan</source>
        <translation>計画を適用しました</translation>
    </message>
    <message>
        <source>Applied the plan of %1</source>
        <translation>%1の計画を適用しました</translation>
    </message>
    <message numerus="yes">
        <source>Applied the plans of %n calendars</source>
        <translation><numerusform>%n件のカレンダーの計画を適用しました</numerusform></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Apply the plan</source>
        <translation>計画を適用</translation>
    </message>
    <message>
        <source>Apply the plan of %1</source>
        <translation>%1の計画を適用</translation>
    </message>
    <message>
        <source>Applying the plan of %1</source>
        <translation>%1の計画の適用</translation>
    </message>
    <message>
        <source>Applying the plan of %1, %2 of %3.</source>
        <translation>%1の計画を適用しています（%2/%3）。</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4月</translation>
    </message>
    <message>
        <source>As %1</source>
        <translation>%1として</translation>
    </message>
    <message>
        <source>As it was before</source>
        <translation>以前のとおり</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>割り当て</translation>
    </message>
    <message>
        <source>Assign %1</source>
        <translation>%1を割り当て</translation>
    </message>
    <message>
        <source>Assign %1 to %2</source>
        <translation>%1を%2に割り当て</translation>
    </message>
    <message>
        <source>Assign holiday</source>
        <translation>休日を割り当て</translation>
    </message>
    <message>
        <source>Assign holiday, %1</source>
        <translation>休日を割り当て、%1</translation>
    </message>
    <message>
        <source>Assign these rules?</source>
        <translation>これらの規則を割り当てますか？</translation>
    </message>
    <message>
        <source>Assigned %1</source>
        <translation>%1を割り当てました</translation>
    </message>
    <message>
        <source>Assigned %1 to %2</source>
        <translation>%1を%2に割り当てました</translation>
    </message>
    <message numerus="yes">
        <source>Assigned %1 to %n days of %2</source>
        <translation><numerusform>%1を%2年の%n日に割り当てました</numerusform></translation>
    </message>
    <message>
        <source>August</source>
        <translation>8月</translation>
    </message>
    <message>
        <source>Back office</source>
        <translation>バックオフィス</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>変更前</translation>
    </message>
    <message>
        <source>Between %1 and %2</source>
        <translation>%1と%2に挟まれた日</translation>
    </message>
    <message>
        <source>Between two holidays</source>
        <translation>休日に挟まれた日</translation>
    </message>
    <message>
        <source>Book: %1</source>
        <translation>規則集：%1</translation>
    </message>
    <message>
        <source>Business-day calendars</source>
        <translation>営業日カレンダー</translation>
    </message>
    <message>
        <source>By</source>
        <translation>変更者</translation>
    </message>
    <message>
        <source>By Easter Sunday</source>
        <translation>復活祭を基準</translation>
    </message>
    <message>
        <source>By Orthodox Easter Sunday</source>
        <translation>正教会の復活祭を基準</translation>
    </message>
    <message>
        <source>By a table of dates</source>
        <translation>日付表による</translation>
    </message>
    <message>
        <source>C&amp;ollapse All</source>
        <translation>すべて折りたたむ(&amp;O)</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Calendar %1</source>
        <translation>カレンダー%1</translation>
    </message>
    <message>
        <source>Calendar at a moment</source>
        <translation>ある時点のカレンダー</translation>
    </message>
    <message>
        <source>Calendar at...</source>
        <translation>時点を指定...</translation>
    </message>
    <message>
        <source>Calendar files</source>
        <translation>カレンダーファイル</translation>
    </message>
    <message>
        <source>Calendar then</source>
        <translation>当時のカレンダー</translation>
    </message>
    <message>
        <source>Calendars of this user</source>
        <translation>このユーザーのカレンダー</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>読み取れません</translation>
    </message>
    <message>
        <source>Celebration</source>
        <translation>固定祝日</translation>
    </message>
    <message>
        <source>Celebrations</source>
        <translation>固定祝日</translation>
    </message>
    <message>
        <source>Changed the rule %1</source>
        <translation>規則%1を変更しました</translation>
    </message>
    <message numerus="yes">
        <source>Changed the rule book of %1: %n rules</source>
        <translation><numerusform>%1の規則集を変更：規則%n件</numerusform></translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>変更：%1</translation>
    </message>
    <message>
        <source>Changes of mine</source>
        <translation>自分の変更</translation>
    </message>
    <message>
        <source>Choose a day</source>
        <translation>日を選ぶ</translation>
    </message>
    <message>
        <source>Choose a day (Alt+Down)</source>
        <translation>日を選ぶ (Alt+↓)</translation>
    </message>
    <message>
        <source>Choose a day: here stands why it is open or closed.</source>
        <translation>日を選ぶと、営業または休業の理由がここに表示されます。</translation>
    </message>
    <message>
        <source>Choose a list</source>
        <translation>一覧の選択</translation>
    </message>
    <message>
        <source>Choose the file of the list.</source>
        <translation>一覧のファイルを選んでください。</translation>
    </message>
    <message>
        <source>Choose when it is, or write an expression such as 12-25 or easter-2</source>
        <translation>いつかを選ぶか、12-25 や easter-2 のような式を書いてください</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>選択...</translation>
    </message>
    <message>
        <source>Click to turn the order, drag to move, Delete to remove</source>
        <translation>クリックで順序を反転、ドラッグで移動、Delete で削除</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Close days</source>
        <translation>休業にする</translation>
    </message>
    <message>
        <source>Close selected days as ...</source>
        <translation>選択した日を休業にする...</translation>
    </message>
    <message>
        <source>Closed %1 as %2</source>
        <translation>%1を%2として休業にしました</translation>
    </message>
    <message>
        <source>Closed days get the list's</source>
        <translation>休業日の名称を一覧のものにする</translation>
    </message>
    <message>
        <source>Closed days keep theirs</source>
        <translation>休業日の名称を保つ</translation>
    </message>
    <message>
        <source>Closes the selected days that are open, as a holiday that was announced for once</source>
        <translation>選択した営業中の日を、臨時に発表された休日として休業にします</translation>
    </message>
    <message>
        <source>Closing days of %1</source>
        <translation>%1の日の休業設定</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>コメント</translation>
    </message>
    <message>
        <source>Convention of %1</source>
        <translation>%1の慣行</translation>
    </message>
    <message>
        <source>Created the calendar</source>
        <translation>カレンダーを作成しました</translation>
    </message>
    <message>
        <source>Created the calendar %1</source>
        <translation>カレンダー%1を作成しました</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>通貨</translation>
    </message>
    <message>
        <source>Currencies and calendars</source>
        <translation>通貨とカレンダー</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>通貨</translation>
    </message>
    <message>
        <source>Currency %1</source>
        <translation>通貨%1</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Day of the %1 equinox %2 at UTC%3</source>
        <translation>%2年の%1の日（UTC%3）</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>日</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12月</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>相違</translation>
    </message>
    <message numerus="yes">
        <source>Differs by %n days</source>
        <translation><numerusform>%n日相違</numerusform></translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Drag a column header here to group by that column</source>
        <translation>ここに列見出しをドラッグすると、その列でグループ化します</translation>
    </message>
    <message>
        <source>EUR, USD or ALL</source>
        <translation>EUR、USDまたはALL</translation>
    </message>
    <message>
        <source>Easter Sunday %1</source>
        <translation>復活祭（%1）</translation>
    </message>
    <message>
        <source>Edit the rule %1</source>
        <translation>規則%1を編集</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Every %1</source>
        <translation>毎週%1</translation>
    </message>
    <message>
        <source>Every day is as in the list.</source>
        <translation>すべての日が一覧のとおりです。</translation>
    </message>
    <message>
        <source>Every day is as planned.</source>
        <translation>すべての日が計画どおりです。</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>毎週</translation>
    </message>
    <message>
        <source>Everybody</source>
        <translation>全員</translation>
    </message>
    <message>
        <source>Everything stayed as it was.</source>
        <translation>すべて元のままです。</translation>
    </message>
    <message>
        <source>Except</source>
        <translation>例外にする</translation>
    </message>
    <message>
        <source>Except %1</source>
        <translation>%1を例外にする</translation>
    </message>
    <message>
        <source>Except %1, %2</source>
        <translation>%1を例外にする、%2</translation>
    </message>
    <message>
        <source>Except all selected days from the holiday list, with one message</source>
        <translation>選択したすべての日を、一つのメッセージで休日一覧から除外します</translation>
    </message>
    <message>
        <source>Except days</source>
        <translation>例外にする</translation>
    </message>
    <message>
        <source>Except days with message ...</source>
        <translation>メッセージ付きで例外にする...</translation>
    </message>
    <message>
        <source>Except selected days with message ...</source>
        <translation>選択した日をメッセージ付きで例外にする...</translation>
    </message>
    <message>
        <source>Except, %1</source>
        <translation>例外にする、%1</translation>
    </message>
    <message>
        <source>Excepted</source>
        <translation>例外にしました</translation>
    </message>
    <message>
        <source>Excepted %1</source>
        <translation>%1を例外にしました</translation>
    </message>
    <message>
        <source>Excepted %1, %2</source>
        <translation>%1を例外にしました、%2</translation>
    </message>
    <message>
        <source>Excepted %1: %2</source>
        <translation>%1を例外にしました：%2</translation>
    </message>
    <message>
        <source>Excepted, %1</source>
        <translation>例外にしました、%1</translation>
    </message>
    <message>
        <source>Excepting days of %1</source>
        <translation>%1の日の例外設定</translation>
    </message>
    <message>
        <source>Exception</source>
        <translation>例外</translation>
    </message>
    <message>
        <source>Exceptions</source>
        <translation>例外</translation>
    </message>
    <message>
        <source>Export as</source>
        <translation>形式を指定して書き出し</translation>
    </message>
    <message>
        <source>Export calendars</source>
        <translation>カレンダーの書き出し</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>書き出し...</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>式</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2月</translation>
    </message>
    <message>
        <source>Ferrowind calendar</source>
        <translation>Ferrowind カレンダー</translation>
    </message>
    <message>
        <source>Fifth</source>
        <translation>第5</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>検索...</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>指摘</translation>
    </message>
    <message>
        <source>Findings of the review: %1</source>
        <translation>点検の指摘：%1</translation>
    </message>
    <message>
        <source>First</source>
        <translation>第1</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation>第4</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>From</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>From Saturday to Friday, from Sunday to Monday</source>
        <translation>土曜日は金曜日へ、日曜日は月曜日へ</translation>
    </message>
    <message>
        <source>From Sunday to Monday</source>
        <translation>日曜日は月曜日へ</translation>
    </message>
    <message>
        <source>From year</source>
        <translation>開始年</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Go to a date, of this or another year</source>
        <translation>今年または別の年の日付へ移動</translation>
    </message>
    <message>
        <source>Go to date</source>
        <translation>日付へ移動</translation>
    </message>
    <message>
        <source>Go to date...</source>
        <translation>日付へ移動...</translation>
    </message>
    <message>
        <source>Group by</source>
        <translation>グループ化</translation>
    </message>
    <message>
        <source>Group, level %1, %2</source>
        <translation>グループ、レベル%1、%2</translation>
    </message>
    <message>
        <source>Grouped by %1</source>
        <translation>%1でグループ化</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隠す</translation>
    </message>
    <message>
        <source>Hide (%1)</source>
        <translation>隠す (%1)</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>History of the day...</source>
        <translation>この日の履歴...</translation>
    </message>
    <message>
        <source>History...</source>
        <translation>履歴...</translation>
    </message>
    <message>
        <source>Holds since</source>
        <translation>適用開始</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>休日</translation>
    </message>
    <message>
        <source>Holiday calendars of currencies</source>
        <translation>通貨別の休日カレンダー</translation>
    </message>
    <message>
        <source>Holiday point</source>
        <translation>個別休日</translation>
    </message>
    <message>
        <source>Holiday points</source>
        <translation>個別休日</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>休日</translation>
    </message>
    <message>
        <source>Holidays, weekends and working days by exception</source>
        <translation>休日、週末、例外の営業日</translation>
    </message>
    <message>
        <source>How many are closed</source>
        <translation>休業の数</translation>
    </message>
    <message>
        <source>Import a list</source>
        <translation>一覧の取り込み</translation>
    </message>
    <message>
        <source>Import of %1: %2</source>
        <translation>%1の取り込み: %2</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>取り込み...</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>%1で</translation>
    </message>
    <message>
        <source>It belongs to the book of %1, not to that of %2</source>
        <translation>%2ではなく%1の規則集に属します</translation>
    </message>
    <message>
        <source>It belongs to the books of %1, not to that of %2</source>
        <translation>%2ではなく%1の規則集に属します</translation>
    </message>
    <message>
        <source>It falls on a %1</source>
        <translation>%1に当たります</translation>
    </message>
    <message>
        <source>It goes to its own date, not to %1</source>
        <translation>%1ではなく固有の日付になります</translation>
    </message>
    <message>
        <source>It has no date, so that nothing is assigned</source>
        <translation>日付がないので、何も割り当てません</translation>
    </message>
    <message>
        <source>It is dated for %1, on %2</source>
        <translation>%1年用で、日付は%2です</translation>
    </message>
    <message>
        <source>It is not observed</source>
        <translation>実施しない</translation>
    </message>
    <message>
        <source>It moves to the next free day</source>
        <translation>次の空いた日へ移動</translation>
    </message>
    <message>
        <source>It stands on %1 already</source>
        <translation>すでに%1にあります</translation>
    </message>
    <message>
        <source>It stays there</source>
        <translation>そのまま</translation>
    </message>
    <message>
        <source>It was changed meanwhile</source>
        <translation>その間に変更されました</translation>
    </message>
    <message>
        <source>Item %1 of the list</source>
        <translation>一覧の項目%1</translation>
    </message>
    <message>
        <source>Its weekday is %1, and the day is a %2</source>
        <translation>曜日は%1ですが、その日は%2です</translation>
    </message>
    <message>
        <source>JSON files</source>
        <translation>JSONファイル</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1月</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7月</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6月</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>維持</translation>
    </message>
    <message>
        <source>Known ones</source>
        <translation>既存のもの</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>最終</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>%1行目</translation>
    </message>
    <message>
        <source>List only the rules of the calendar's currency</source>
        <translation>このカレンダーの通貨の規則だけを表示</translation>
    </message>
    <message>
        <source>Lists of days</source>
        <translation>日付の一覧</translation>
    </message>
    <message>
        <source>Look at</source>
        <translation>要確認</translation>
    </message>
    <message>
        <source>Lose them</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Makes a calendar as a list of days in a file</source>
        <translation>ファイルの日付一覧のとおりにカレンダーを直します</translation>
    </message>
    <message>
        <source>Makes the selected days working days by exception, with one reason</source>
        <translation>選択した日を、一つの理由で例外の営業日にします</translation>
    </message>
    <message>
        <source>Makes the selected days working days by exception, without a reason</source>
        <translation>選択した日を理由なしで例外の営業日にします</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3月</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5月</translation>
    </message>
    <message>
        <source>Me</source>
        <translation>自分</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Name at least one currency, such as EUR, or ALL</source>
        <translation>EUR のような通貨を一つ以上、または ALL を指定してください</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>New calendar</source>
        <translation>新しいカレンダー</translation>
    </message>
    <message>
        <source>New calendar %1</source>
        <translation>新しいカレンダー%1</translation>
    </message>
    <message numerus="yes">
        <source>Next try in %n seconds</source>
        <translation><numerusform>%n秒後に再試行</numerusform></translation>
    </message>
    <message>
        <source>Next year</source>
        <translation>翌年</translation>
    </message>
    <message>
        <source>No calendar</source>
        <translation>カレンダーなし</translation>
    </message>
    <message>
        <source>No calendar, or not prepared</source>
        <translation>カレンダーなし、または未準備</translation>
    </message>
    <message>
        <source>No currency has a calendar of %1</source>
        <translation>%1年のカレンダーを持つ通貨はありません</translation>
    </message>
    <message>
        <source>No day will be closed.</source>
        <translation>休業にする日はありません。</translation>
    </message>
    <message>
        <source>No file was written. %1.</source>
        <translation>ファイルは書き込まれていません。%1。</translation>
    </message>
    <message>
        <source>No money then</source>
        <translation>通貨ではない</translation>
    </message>
    <message>
        <source>No plan any more for: %1.</source>
        <translation>計画の対象外に：%1。</translation>
    </message>
    <message>
        <source>No reason is given for the exception.</source>
        <translation>例外の理由がありません。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Not compared</source>
        <translation>未比較</translation>
    </message>
    <message>
        <source>Not in the list</source>
        <translation>一覧にありません</translation>
    </message>
    <message>
        <source>Not in the rule book: %1</source>
        <translation>規則集にありません: %1</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Not prepared</source>
        <translation>未準備</translation>
    </message>
    <message>
        <source>Not prepared: none of its days is closed</source>
        <translation>未準備：休業日がありません</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Nothing but weekends is added; "All days" shows them.</source>
        <translation>追加は週末だけです。「すべての日」で表示します。</translation>
    </message>
    <message>
        <source>Nothing changes.</source>
        <translation>変化はありません。</translation>
    </message>
    <message>
        <source>Nothing could be read</source>
        <translation>何も読み取れませんでした</translation>
    </message>
    <message>
        <source>Nothing is changed.</source>
        <translation>何も変更していません。</translation>
    </message>
    <message>
        <source>Nothing is closed in %1 %2 yet. Prepare it now?</source>
        <translation>%1 %2にはまだ休業日がありません。今準備しますか？</translation>
    </message>
    <message>
        <source>Nothing is known: %1</source>
        <translation>何もわかりません：%1</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>確認事項はありません。</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>何も変更されませんでした。</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11月</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10月</translation>
    </message>
    <message>
        <source>Of %1 faults the first %2 are told.</source>
        <translation>%1件の誤りのうち最初の%2件を示します。</translation>
    </message>
    <message>
        <source>Off a weekend it moves to Monday</source>
        <translation>週末なら月曜日へ移動</translation>
    </message>
    <message>
        <source>On a closed day</source>
        <translation>休業日の場合</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>一回のみ</translation>
    </message>
    <message>
        <source>Once, on %1</source>
        <translation>一回のみ、%1</translation>
    </message>
    <message>
        <source>Only %1 is on show.</source>
        <translation>%1だけを表示しています。</translation>
    </message>
    <message>
        <source>Only rules of this currency</source>
        <translation>この通貨の規則のみ</translation>
    </message>
    <message>
        <source>Open calendars</source>
        <translation>カレンダーを開く</translation>
    </message>
    <message numerus="yes">
        <source>Open together on %n days</source>
        <translation><numerusform>共通の営業日%n日</numerusform></translation>
    </message>
    <message>
        <source>Orthodox Easter Sunday %1</source>
        <translation>正教会の復活祭（%1）</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF ファイル</translation>
    </message>
    <message>
        <source>PNG pictures</source>
        <translation>PNG 画像</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>一部</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>計画</translation>
    </message>
    <message>
        <source>Plan of %1</source>
        <translation>%1の計画</translation>
    </message>
    <message>
        <source>Plan year...</source>
        <translation>年を計画...</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>計画：%1</translation>
    </message>
    <message numerus="yes">
        <source>Plans of %n calendars</source>
        <translation><numerusform>%n件のカレンダーの計画</numerusform></translation>
    </message>
    <message>
        <source>Prepare</source>
        <translation>準備</translation>
    </message>
    <message>
        <source>Prepare all for %1...</source>
        <translation>%1年をすべて準備...</translation>
    </message>
    <message>
        <source>Prepare all...</source>
        <translation>すべて準備...</translation>
    </message>
    <message>
        <source>Prepared</source>
        <translation>準備済み</translation>
    </message>
    <message numerus="yes">
        <source>Prepared %1: %n days</source>
        <translation><numerusform>%1を準備：%n日</numerusform></translation>
    </message>
    <message>
        <source>Prepared as published</source>
        <translation>公表分まで準備済み</translation>
    </message>
    <message>
        <source>Prepared: %1, %2.</source>
        <translation>準備しました：%1、%2。</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Previous year</source>
        <translation>前年</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>印刷...</translation>
    </message>
    <message>
        <source>Prints the year</source>
        <translation>この年を印刷します</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>公表者</translation>
    </message>
    <message>
        <source>Readiness</source>
        <translation>準備状況</translation>
    </message>
    <message>
        <source>Reading a calendar of %1 as of %2</source>
        <translation>%1のカレンダー（%2時点）の読み取り</translation>
    </message>
    <message>
        <source>Reading a calendar of %1 as the entry %2 of the history left it</source>
        <translation>履歴の項目%2の直後の%1のカレンダーの読み取り</translation>
    </message>
    <message>
        <source>Reading the book of %1</source>
        <translation>%1の規則集の読み取り</translation>
    </message>
    <message>
        <source>Reading the books</source>
        <translation>規則集の読み取り</translation>
    </message>
    <message>
        <source>Reading the calendar %1 %2</source>
        <translation>カレンダー%1 %2の読み取り</translation>
    </message>
    <message>
        <source>Reading the calendars and the rule books</source>
        <translation>カレンダーと規則集の読み取り</translation>
    </message>
    <message>
        <source>Reading the currencies</source>
        <translation>通貨の読み取り</translation>
    </message>
    <message>
        <source>Reading the days of all calendars</source>
        <translation>全カレンダーの日の読み取り</translation>
    </message>
    <message>
        <source>Reading the entry %1 of the history</source>
        <translation>履歴の項目%1の読み取り</translation>
    </message>
    <message>
        <source>Reading the first day of the week</source>
        <translation>週の最初の日の読み取り</translation>
    </message>
    <message>
        <source>Reading the history</source>
        <translation>履歴の読み取り</translation>
    </message>
    <message>
        <source>Reading the history of %1</source>
        <translation>%1の履歴の読み取り</translation>
    </message>
    <message>
        <source>Reading the rules</source>
        <translation>規則の読み取り</translation>
    </message>
    <message>
        <source>Reading whether a calendar was changed</source>
        <translation>カレンダーの変更有無の読み取り</translation>
    </message>
    <message>
        <source>Reads the calendars and plans them anew</source>
        <translation>カレンダーを読み直し、計画し直します</translation>
    </message>
    <message>
        <source>Reads the calendars anew</source>
        <translation>カレンダーを読み直します</translation>
    </message>
    <message>
        <source>Reads the history anew</source>
        <translation>履歴を読み直します</translation>
    </message>
    <message>
        <source>Reason: %1</source>
        <translation>理由：%1</translation>
    </message>
    <message>
        <source>Redid: %1</source>
        <translation>やり直し：%1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1を削除</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Removed %1</source>
        <translation>%1を削除しました</translation>
    </message>
    <message>
        <source>Removed the convention of %1</source>
        <translation>%1の慣行を削除しました</translation>
    </message>
    <message>
        <source>Removed the rule %1</source>
        <translation>規則%1を削除しました</translation>
    </message>
    <message>
        <source>Removed the rule book of %1</source>
        <translation>%1の規則集を削除しました</translation>
    </message>
    <message>
        <source>Removing the book of %1</source>
        <translation>%1の規則集の削除</translation>
    </message>
    <message>
        <source>Renamed the currency %1 (%2) to %3 (%4)</source>
        <translation>通貨%1（%2）の名称を%3（%4）に変更しました</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>置換</translation>
    </message>
    <message>
        <source>Restore %1</source>
        <translation>%1を復元</translation>
    </message>
    <message>
        <source>Restored %1</source>
        <translation>%1を復元しました</translation>
    </message>
    <message>
        <source>Restored the rule %1</source>
        <translation>規則%1を復元しました</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>規則</translation>
    </message>
    <message>
        <source>Rule %1</source>
        <translation>規則%1</translation>
    </message>
    <message>
        <source>Rule book</source>
        <translation>規則集</translation>
    </message>
    <message>
        <source>Rule book of %1</source>
        <translation>%1の規則集</translation>
    </message>
    <message>
        <source>Rule book of %1, rule %2</source>
        <translation>%1の規則集、規則%2</translation>
    </message>
    <message>
        <source>Rule book...</source>
        <translation>規則集...</translation>
    </message>
    <message>
        <source>Rule: %1</source>
        <translation>規則：%1</translation>
    </message>
    <message>
        <source>Same day</source>
        <translation>同じ日</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>PDF として保存</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>PDF として保存...</translation>
    </message>
    <message>
        <source>Save as picture</source>
        <translation>画像として保存</translation>
    </message>
    <message>
        <source>Save as picture...</source>
        <translation>画像として保存...</translation>
    </message>
    <message>
        <source>Save the rule book of %1</source>
        <translation>%1の規則集を保存</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>%1として保存しました</translation>
    </message>
    <message>
        <source>Saved the rule book of %1</source>
        <translation>%1の規則集を保存しました</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>第2</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9月</translation>
    </message>
    <message numerus="yes">
        <source>Set the convention of %1: %n business days to spot</source>
        <translation><numerusform>%1の慣行を設定しました：スポットまで%n営業日</numerusform></translation>
    </message>
    <message>
        <source>Set the convention of %1: holidays of the dollar do not stop the count to spot</source>
        <translation>%1の慣行を設定しました：ドルの休日でスポットまでの計算は停止しない</translation>
    </message>
    <message>
        <source>Set the convention of %1: holidays of the dollar stop the count to spot</source>
        <translation>%1の慣行を設定しました：ドルの休日でスポットまでの計算を停止</translation>
    </message>
    <message>
        <source>Set the currency %1 (%2)</source>
        <translation>通貨%1（%2）を設定しました</translation>
    </message>
    <message>
        <source>Set the currency %1 (%2), money until %3</source>
        <translation>通貨%1（%2）を設定しました。%3まで通貨</translation>
    </message>
    <message>
        <source>Set the currency %1 (%2), no money</source>
        <translation>通貨%1（%2）を設定しました。通貨ではない</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>あるべき内容</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1を表示</translation>
    </message>
    <message>
        <source>Show %1 as it was at this moment:</source>
        <translation>%1のこの時点での状態を表示：</translation>
    </message>
    <message>
        <source>Show Group &amp;Panel</source>
        <translation>グループ欄を表示(&amp;P)</translation>
    </message>
    <message>
        <source>Show older</source>
        <translation>古い履歴を表示</translation>
    </message>
    <message>
        <source>Show only the days that have what is typed</source>
        <translation>入力した文字を含む日だけを表示</translation>
    </message>
    <message>
        <source>Show only the rules that have what is typed</source>
        <translation>入力した文字を含む規則だけを表示</translation>
    </message>
    <message>
        <source>Show or hide the year at a glance beside the days</source>
        <translation>日の横に年の一覧を表示または非表示</translation>
    </message>
    <message>
        <source>Show or hide why the day is what it is</source>
        <translation>この日の理由を表示または非表示</translation>
    </message>
    <message>
        <source>Show the rules</source>
        <translation>規則を表示</translation>
    </message>
    <message>
        <source>Shows by which rules the days of the currency are planned</source>
        <translation>この通貨の日を計画する規則を表示します</translation>
    </message>
    <message>
        <source>Shows the days that stay as they are and all weekends, too</source>
        <translation>変わらない日とすべての週末も表示します</translation>
    </message>
    <message>
        <source>Shows the year after</source>
        <translation>翌年を表示します</translation>
    </message>
    <message>
        <source>Shows the year before</source>
        <translation>前年を表示します</translation>
    </message>
    <message>
        <source>Shows where the calendar differs from what it should be</source>
        <translation>カレンダーがあるべき姿と異なる箇所を表示します</translation>
    </message>
    <message>
        <source>Shows who changed the calendar and when, and undoes changes</source>
        <translation>カレンダーを誰がいつ変更したかを表示し、変更を取り消します</translation>
    </message>
    <message>
        <source>Shows who changed the day and when</source>
        <translation>この日を誰がいつ変更したかを表示します</translation>
    </message>
    <message>
        <source>Shows years of this and other currencies, and prints and saves them</source>
        <translation>この通貨とほかの通貨の年を表示、印刷、保存します</translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation>昇順に並べ替え(&amp;A)</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>降順に並べ替え(&amp;D)</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>%1で並べ替え</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %1 of %n calendars; the others are as they were.</source>
        <translation><numerusform>%n件中%1件で停止しました。残りは元のままです。</numerusform></translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>表</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>テキストファイル</translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation>文字：%1</translation>
    </message>
    <message>
        <source>That is undone already (%1, %2).</source>
        <translation>それはすでに元に戻されています（%1、%2）。</translation>
    </message>
    <message>
        <source>The Calendars window is busy.</source>
        <translation>カレンダーのウィンドウは処理中です。</translation>
    </message>
    <message>
        <source>The book closes no weekday: without a rule of the kind weekday each Saturday and Sunday would be a working day</source>
        <translation>この規則集はどの曜日も休業にしません。種類 weekday の規則がないと、土曜日と日曜日がすべて営業日になります</translation>
    </message>
    <message>
        <source>The book holds from %1 on, which is not %2</source>
        <translation>この規則集は%1年から有効で、%2年は対象外です</translation>
    </message>
    <message>
        <source>The book holds since "%1", which is no year</source>
        <translation>この規則集の開始「%1」は年ではありません</translation>
    </message>
    <message>
        <source>The book names no document</source>
        <translation>この規則集に文書の指定がありません</translation>
    </message>
    <message>
        <source>The book names no publisher</source>
        <translation>この規則集に公表者の指定がありません</translation>
    </message>
    <message>
        <source>The book of %1 cannot be read: %2</source>
        <translation>%1の規則集を読み取れません：%2</translation>
    </message>
    <message>
        <source>The book of %1 cannot be used: %2</source>
        <translation>%1の規則集を使えません：%2</translation>
    </message>
    <message>
        <source>The book of %1 cannot be used: %2.</source>
        <translation>%1の規則集を使えません：%2。</translation>
    </message>
    <message>
        <source>The book of %1 does not close each %2</source>
        <translation>%1の規則集は毎週%2を休業にしません</translation>
    </message>
    <message>
        <source>The book of %1 has it on %2</source>
        <translation>%1の規則集では%2です</translation>
    </message>
    <message numerus="yes">
        <source>The book of %1 holds from %2 on, and calendars of earlier years are compared with no plan.</source>
        <translation><numerusform>%1の規則集は%2年から有効で、それより前の年のカレンダーは計画と比較しません。</numerusform></translation>
    </message>
    <message>
        <source>The book of %1 holds from %2 on, so it does not tell what %3 should be</source>
        <translation>%1の規則集は%2年から有効なので、%3のあるべき内容はわかりません</translation>
    </message>
    <message>
        <source>The book of %1 is saved. Its calendars stay as they are until their years are planned again.</source>
        <translation>%1の規則集を保存しました。カレンダーは、その年を計画し直すまで変わりません。</translation>
    </message>
    <message>
        <source>The calendar exists already</source>
        <translation>カレンダーはすでにあります</translation>
    </message>
    <message>
        <source>The celebration %1.</source>
        <translation>固定祝日%1。</translation>
    </message>
    <message>
        <source>The clock was set forward then, and never showed this time.</source>
        <translation>その時は時計が進められたため、この時刻は存在しません。</translation>
    </message>
    <message>
        <source>The comment has %1 characters; it may have %2 at most</source>
        <translation>コメントは%1文字です。最大%2文字です</translation>
    </message>
    <message>
        <source>The comment of the days has %1 characters; it may have %2 at most</source>
        <translation>日のコメントは%1文字です。最大%2文字です</translation>
    </message>
    <message>
        <source>The database could not be read: %1</source>
        <translation>データベースを読み取れませんでした：%1</translation>
    </message>
    <message>
        <source>The database does not know the calendar</source>
        <translation>データベースにそのカレンダーがありません</translation>
    </message>
    <message>
        <source>The database does not know the currency</source>
        <translation>データベースにその通貨がありません</translation>
    </message>
    <message>
        <source>The database does not know the rule</source>
        <translation>データベースにその規則がありません</translation>
    </message>
    <message>
        <source>The database gives the days of a calendar in a form that this program does not know, at byte %1 of their text</source>
        <translation>データベースのカレンダーの日の形式が、その文字列の%1バイト目でこのプログラムの知らないものです</translation>
    </message>
    <message>
        <source>The database refused it, with the number %1</source>
        <translation>データベースが番号%1で拒否しました</translation>
    </message>
    <message>
        <source>The date of %1 in %2 is not known: %3</source>
        <translation>%2年の%1の日付がわかりません：%3</translation>
    </message>
    <message>
        <source>The dates of this year are not known yet</source>
        <translation>この年の日付はまだわかりません</translation>
    </message>
    <message>
        <source>The day is a working day by exception, and would be closed</source>
        <translation>この日は例外の営業日で、休業になります</translation>
    </message>
    <message>
        <source>The default database</source>
        <translation>既定のデータベース</translation>
    </message>
    <message>
        <source>The document has %1 characters; it may have %2 at most</source>
        <translation>文書は%1文字です。最大%2文字です</translation>
    </message>
    <message>
        <source>The expression has %1 characters; it may have %2 at most</source>
        <translation>式は%1文字です。最大%2文字です</translation>
    </message>
    <message>
        <source>The first is %1</source>
        <translation>最初は%1です</translation>
    </message>
    <message>
        <source>The history does not keep what was there before: the call is older than its upgrade.</source>
        <translation>呼び出しが更新より前のため、以前の内容は履歴に残っていません。</translation>
    </message>
    <message>
        <source>The history does not reach back so far.</source>
        <translation>履歴はそこまで残っていません。</translation>
    </message>
    <message>
        <source>The history has no entry %1.</source>
        <translation>履歴に項目%1はありません。</translation>
    </message>
    <message>
        <source>The holiday point %1.</source>
        <translation>個別休日%1。</translation>
    </message>
    <message>
        <source>The last year is before the first one.</source>
        <translation>終了年が開始年より前です。</translation>
    </message>
    <message>
        <source>The list has %1 bytes; it may have %2 at most</source>
        <translation>一覧は%1バイトです。最大%2バイトです</translation>
    </message>
    <message>
        <source>The name has %1 characters; it may have %2 at most</source>
        <translation>名前は%1文字です。最大%2文字です</translation>
    </message>
    <message>
        <source>The name of the file tells its format and ends in .ics, .csv, .json or .txt</source>
        <translation>ファイル名が形式を表し、末尾は.ics、.csv、.json、.txtのいずれかです</translation>
    </message>
    <message>
        <source>The name of the moved day has %1 characters; it may have %2 at most</source>
        <translation>移動日の名前は%1文字です。最大%2文字です</translation>
    </message>
    <message>
        <source>The newest change of %1 is "%2" (%3, %4). Undo that first.</source>
        <translation>%1の最新の変更は「%2」（%3、%4）です。先にそれを取り消してください。</translation>
    </message>
    <message>
        <source>The newest change of the same is "%1" (%2, %3). Undo that first.</source>
        <translation>同じものの最新の変更は「%1」（%2、%3）です。先にそれを取り消してください。</translation>
    </message>
    <message>
        <source>The plan does not know this year's dates of %1</source>
        <translation>%1の今年の日付は計画にありません</translation>
    </message>
    <message>
        <source>The plans of %1 stay as they are.</source>
        <translation>%1の計画は変わりません。</translation>
    </message>
    <message>
        <source>The publisher has %1 characters; it may have %2 at most</source>
        <translation>公表者は%1文字です。最大%2文字です</translation>
    </message>
    <message>
        <source>The review has found nothing</source>
        <translation>点検での指摘はありません</translation>
    </message>
    <message>
        <source>The rule "%1" is %2, and the plan needs %3 of that name; rename it before</source>
        <translation>規則「%1」は%2ですが、計画には同名の%3が必要です。先に名前を変えてください</translation>
    </message>
    <message>
        <source>The rule "%1" is removed; restore it before</source>
        <translation>規則「%1」は削除されています。先に復元してください</translation>
    </message>
    <message>
        <source>The rule %1 is removed. Restore it in the list of rules, or take another name.</source>
        <translation>規則%1は削除されています。規則の一覧で復元するか、別の名前にしてください。</translation>
    </message>
    <message>
        <source>The rule %1, "%2": %3</source>
        <translation>規則%1「%2」：%3</translation>
    </message>
    <message>
        <source>The rule %1: %2</source>
        <translation>規則%1：%2</translation>
    </message>
    <message>
        <source>The rule book of %1 does not get the days, so that the board will call them differences. %2.</source>
        <translation>%1の規則集にはこれらの日が入らないため、一覧では相違と表示されます。%2。</translation>
    </message>
    <message>
        <source>The rule book of %1 does not get the holiday, so that the board will call it a difference. %2.</source>
        <translation>%1の規則集にはこの休日が入らないため、一覧では相違と表示されます。%2。</translation>
    </message>
    <message>
        <source>The rule book of %1 has changes that are not saved. Lose them?</source>
        <translation>%1の規則集に保存していない変更があります。破棄しますか？</translation>
    </message>
    <message numerus="yes">
        <source>The rule book of %1 has got %n days.</source>
        <translation><numerusform>%1の規則集に%n日を登録しました。</numerusform></translation>
    </message>
    <message>
        <source>The same date each year</source>
        <translation>毎年同じ日付</translation>
    </message>
    <message>
        <source>The server does not answer. Nothing can be read or changed until it does.</source>
        <translation>サーバーが応答しません。応答するまで読み取りも変更もできません。</translation>
    </message>
    <message>
        <source>The year cannot be read: %1</source>
        <translation>年を読み取れません：%1</translation>
    </message>
    <message>
        <source>There is a rule of that name already</source>
        <translation>その名前の規則はすでにあります</translation>
    </message>
    <message>
        <source>There is no %1 in %2.</source>
        <translation>%2に%1はありません。</translation>
    </message>
    <message>
        <source>There is no %1: the month has %2 days.</source>
        <translation>%1はありません。その月は%2日までです。</translation>
    </message>
    <message>
        <source>There is no calendar %1 %2, so nothing is known of its days</source>
        <translation>カレンダー%1 %2がないので、その日は何もわかりません</translation>
    </message>
    <message>
        <source>There is no calendar and no rule book</source>
        <translation>カレンダーも規則集もありません</translation>
    </message>
    <message>
        <source>There is no calendar and no rule book.</source>
        <translation>カレンダーも規則集もありません。</translation>
    </message>
    <message>
        <source>There is no calendar.</source>
        <translation>カレンダーがありません。</translation>
    </message>
    <message>
        <source>There is no change of %1 of yours to undo.</source>
        <translation>取り消せる%1への自分の変更はありません。</translation>
    </message>
    <message>
        <source>There is no currency %1</source>
        <translation>通貨%1はありません</translation>
    </message>
    <message>
        <source>There is no day %1.</source>
        <translation>%1日はありません。</translation>
    </message>
    <message>
        <source>There is no such calendar</source>
        <translation>そのカレンダーはありません</translation>
    </message>
    <message>
        <source>There now</source>
        <translation>現在の内容</translation>
    </message>
    <message>
        <source>There now: %1</source>
        <translation>現在の内容：%1</translation>
    </message>
    <message>
        <source>There was no such calendar then.</source>
        <translation>当時そのカレンダーはありませんでした。</translation>
    </message>
    <message>
        <source>Third</source>
        <translation>第3</translation>
    </message>
    <message>
        <source>This calendar was changed since it was read.</source>
        <translation>このカレンダーは読み取り後に変更されました。</translation>
    </message>
    <message>
        <source>This calendar was removed.</source>
        <translation>このカレンダーは削除されました。</translation>
    </message>
    <message>
        <source>This cannot be imported, and nothing was changed.</source>
        <translation>取り込めません。何も変更していません。</translation>
    </message>
    <message>
        <source>This cannot be undone: a later change is of the same, or the history does not keep what was there before.</source>
        <translation>取り消せません。後の変更が同じものに及ぶか、以前の内容が履歴に残っていません。</translation>
    </message>
    <message>
        <source>This is no date. Write a day and a month without a year, such as %1 or %2.</source>
        <translation>日付ではありません。%1や%2のように、年なしで月日を書いてください。</translation>
    </message>
    <message>
        <source>This is no date. Write one such as %1 or %2 %3.</source>
        <translation>日付ではありません。%1または%2 %3のように書いてください。</translation>
    </message>
    <message>
        <source>This is no time. Write one such as 14:05 or 14:05:31.</source>
        <translation>時刻ではありません。14:05 または 14:05:31 のように書いてください。</translation>
    </message>
    <message>
        <source>This moment is still to come.</source>
        <translation>この時点はまだ先です。</translation>
    </message>
    <message>
        <source>This text has %1 characters; %2 at most can be stored.</source>
        <translation>この文字列は%1文字です。保存できるのは最大%2文字です。</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>To be changed (%1): %2</source>
        <translation>変更対象（%1件）：%2</translation>
    </message>
    <message>
        <source>To be changed: %1</source>
        <translation>変更対象：%1</translation>
    </message>
    <message>
        <source>To be removed (%1): %2</source>
        <translation>削除対象（%1件）：%2</translation>
    </message>
    <message>
        <source>To be removed: %1</source>
        <translation>削除対象：%1</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Try now</source>
        <translation>今すぐ試す</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Type what the holiday is called, or choose one that is known.</source>
        <translation>休日の名前を入力するか、既存のものを選んでください。</translation>
    </message>
    <message>
        <source>Undid a change</source>
        <translation>変更を取り消しました</translation>
    </message>
    <message>
        <source>Undid a change of %1</source>
        <translation>%1の変更を取り消しました</translation>
    </message>
    <message numerus="yes">
        <source>Undid the changes of %n calendars</source>
        <translation><numerusform>%n件のカレンダーの変更を取り消しました</numerusform></translation>
    </message>
    <message>
        <source>Undid: %1</source>
        <translation>取り消し：%1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Undo a change</source>
        <translation>変更を取り消す</translation>
    </message>
    <message>
        <source>Undo a change of %1</source>
        <translation>%1の変更を取り消す</translation>
    </message>
    <message numerus="yes">
        <source>Undo in %1: %2, and the %n other changes that were made in the same step?</source>
        <translation><numerusform>%1の%2と、同じ操作で行った他の%n件の変更を取り消しますか？</numerusform></translation>
    </message>
    <message>
        <source>Undo in %1: %2?</source>
        <translation>%1で取り消しますか：%2？</translation>
    </message>
    <message>
        <source>Undoes the last change that was made in a year planner, in all its calendars and rule books</source>
        <translation>年間プランナーで最後に行った変更を、関係するすべてのカレンダーと規則集で元に戻します</translation>
    </message>
    <message>
        <source>Undoes your last change of this calendar</source>
        <translation>このカレンダーへの自分の最後の変更を取り消します</translation>
    </message>
    <message>
        <source>Undoing "%1"</source>
        <translation>「%1」の取り消し</translation>
    </message>
    <message>
        <source>Undoing in %1: %2</source>
        <translation>%1での取り消し：%2</translation>
    </message>
    <message>
        <source>Undoing the entry %1</source>
        <translation>項目%1の取り消し</translation>
    </message>
    <message>
        <source>Undoing the plan</source>
        <translation>計画の取り消し</translation>
    </message>
    <message>
        <source>Undoing the plan of %1, %2 of %3.</source>
        <translation>%1の計画を取り消しています（%2/%3）。</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>曜日</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>曜日休日</translation>
    </message>
    <message>
        <source>Weekend</source>
        <translation>週末</translation>
    </message>
    <message>
        <source>Weekends only</source>
        <translation>週末のみ</translation>
    </message>
    <message>
        <source>Weekends only: %1</source>
        <translation>週末のみ：%1</translation>
    </message>
    <message>
        <source>What</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>What cannot be read in the list will stand here</source>
        <translation>一覧で読めないものがここに表示されます</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>What is to be known</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>誤りの内容</translation>
    </message>
    <message>
        <source>What stands here may be out of date, for the database could not be read: %1</source>
        <translation>データベースを読み取れなかったため、表示は古いかもしれません：%1</translation>
    </message>
    <message>
        <source>What the list would change is shown before anything is changed.</source>
        <translation>一覧による変更は、実行前に表示されます。</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>実行した内容</translation>
    </message>
    <message>
        <source>When</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>When moved</source>
        <translation>移動時の名前</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>変更者</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>Working day</source>
        <translation>営業日</translation>
    </message>
    <message>
        <source>Working day by exception</source>
        <translation>例外の営業日</translation>
    </message>
    <message>
        <source>Writes calendars to a file for other programs</source>
        <translation>他のプログラムのためにカレンダーをファイルに書き出します</translation>
    </message>
    <message>
        <source>Writes the year into a PNG file</source>
        <translation>この年を PNG ファイルに書き出します</translation>
    </message>
    <message>
        <source>Writes the year into a file for reading and printing</source>
        <translation>この年を閲覧・印刷用のファイルに書き出します</translation>
    </message>
    <message>
        <source>Writing the book of %1</source>
        <translation>%1の規則集の書き込み</translation>
    </message>
    <message>
        <source>Written by hand</source>
        <translation>直接入力</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Year plan</source>
        <translation>年間計画</translation>
    </message>
    <message>
        <source>Year plan...</source>
        <translation>年間計画...</translation>
    </message>
    <message>
        <source>Year planner</source>
        <translation>年間プランナー</translation>
    </message>
    <message>
        <source>Year planner - %1</source>
        <translation>年間プランナー - %1</translation>
    </message>
    <message>
        <source>Year planner...</source>
        <translation>年間プランナー...</translation>
    </message>
    <message>
        <source>a %1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>a UTC offset -12:00 to +14:00</source>
        <translation>-12:00 から +14:00 までの UTC との時差</translation>
    </message>
    <message>
        <source>a celebration</source>
        <translation>固定祝日</translation>
    </message>
    <message>
        <source>a comma or the end</source>
        <translation>カンマまたは終わり</translation>
    </message>
    <message>
        <source>a date such as 05-18, easter or 4th Thursday of 11</source>
        <translation>05-18、easter、4th Thursday of 11 のような日付</translation>
    </message>
    <message>
        <source>a date such as 12-25, easter-2 or 1st Monday of 05</source>
        <translation>12-25、easter-2、1st Monday of 05 のような日付</translation>
    </message>
    <message>
        <source>a date that follows at most %1 weekdays</source>
        <translation>%1個以下の曜日に続く日付</translation>
    </message>
    <message>
        <source>a day between two holidays</source>
        <translation>休日に挟まれた日</translation>
    </message>
    <message>
        <source>a day of the month</source>
        <translation>月の日</translation>
    </message>
    <message>
        <source>a day of the table %1</source>
        <translation>表%1の日</translation>
    </message>
    <message>
        <source>a day that is not known yet</source>
        <translation>まだわからない日</translation>
    </message>
    <message>
        <source>a holiday point</source>
        <translation>個別休日</translation>
    </message>
    <message>
        <source>a later call changed the same, or the history does not reach there</source>
        <translation>後の呼び出しが同じものを変更したか、履歴がそこまで残っていません</translation>
    </message>
    <message>
        <source>a month 01 to 12</source>
        <translation>01 から 12 までの月</translation>
    </message>
    <message>
        <source>a month 01 to 12 (a date is MM-DD or YYYY-MM-DD)</source>
        <translation>01 から 12 までの月（日付は MM-DD または YYYY-MM-DD）</translation>
    </message>
    <message>
        <source>a move, else not observed, from, to, only, not or the end</source>
        <translation>移動、else not observed、from、to、only、not、または終わり</translation>
    </message>
    <message>
        <source>a new calendar, %1</source>
        <translation>新しいカレンダー、%1</translation>
    </message>
    <message>
        <source>a number of days up to %1</source>
        <translation>%1までの日数</translation>
    </message>
    <message>
        <source>a point</source>
        <translation>個別休日</translation>
    </message>
    <message>
        <source>a removed rule has that name</source>
        <translation>削除された規則がその名前です</translation>
    </message>
    <message>
        <source>a rule without a name</source>
        <translation>名前のない規則</translation>
    </message>
    <message>
        <source>a value is missing, malformed or out of range</source>
        <translation>値がないか、形式が誤りか、範囲外です</translation>
    </message>
    <message>
        <source>a weekday</source>
        <translation>曜日</translation>
    </message>
    <message>
        <source>a weekday holiday</source>
        <translation>曜日休日</translation>
    </message>
    <message>
        <source>a weekday or free day</source>
        <translation>曜日または free day</translation>
    </message>
    <message>
        <source>a weekday or taken</source>
        <translation>曜日または taken</translation>
    </message>
    <message>
        <source>a weekday, next or previous</source>
        <translation>曜日、next、または previous</translation>
    </message>
    <message>
        <source>a working day</source>
        <translation>営業日</translation>
    </message>
    <message>
        <source>a working day%1</source>
        <translation>営業日%1</translation>
    </message>
    <message>
        <source>a year %1 to %2</source>
        <translation>%1年から%2年までの年</translation>
    </message>
    <message>
        <source>a year from %1 on</source>
        <translation>%1年以降の年</translation>
    </message>
    <message>
        <source>add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>after</source>
        <translation>より後</translation>
    </message>
    <message>
        <source>after or before</source>
        <translation>after または before</translation>
    </message>
    <message>
        <source>all closed: %1</source>
        <translation>すべて休業：%1</translation>
    </message>
    <message>
        <source>all open</source>
        <translation>すべて営業</translation>
    </message>
    <message>
        <source>another holiday</source>
        <translation>別の休日</translation>
    </message>
    <message>
        <source>as in the list%1</source>
        <translation>一覧のとおり%1</translation>
    </message>
    <message>
        <source>as planned%1</source>
        <translation>計画どおり%1</translation>
    </message>
    <message>
        <source>as planned: %1</source>
        <translation>計画どおり：%1</translation>
    </message>
    <message>
        <source>ascending</source>
        <translation>昇順</translation>
    </message>
    <message>
        <source>autumnal</source>
        <translation>秋分</translation>
    </message>
    <message>
        <source>before</source>
        <translation>より前</translation>
    </message>
    <message>
        <source>celebration</source>
        <translation>固定祝日</translation>
    </message>
    <message>
        <source>certain years</source>
        <translation>特定の</translation>
    </message>
    <message>
        <source>closed: %1</source>
        <translation>休業：%1</translation>
    </message>
    <message>
        <source>code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>collapsed</source>
        <translation>折りたたみ</translation>
    </message>
    <message>
        <source>comment</source>
        <translation>コメント</translation>
    </message>
    <message>
        <source>date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>dates</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>days to spot</source>
        <translation>スポットまでの日数</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>降順</translation>
    </message>
    <message>
        <source>document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>eight</source>
        <translation>8</translation>
    </message>
    <message>
        <source>eleven</source>
        <translation>11</translation>
    </message>
    <message>
        <source>ever</source>
        <translation>常に</translation>
    </message>
    <message>
        <source>every %1</source>
        <translation>毎週%1</translation>
    </message>
    <message>
        <source>exception</source>
        <translation>例外</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>fifth</source>
        <translation>第5</translation>
    </message>
    <message>
        <source>first</source>
        <translation>第1</translation>
    </message>
    <message>
        <source>five</source>
        <translation>5</translation>
    </message>
    <message>
        <source>for a reason that this program does not know</source>
        <translation>このプログラムの知らない理由で</translation>
    </message>
    <message>
        <source>four</source>
        <translation>4</translation>
    </message>
    <message>
        <source>fourth</source>
        <translation>第4</translation>
    </message>
    <message numerus="yes">
        <source>gets them as dates of their own</source>
        <translation><numerusform>固有の日付として受け取ります</numerusform></translation>
    </message>
    <message>
        <source>has something else there, and stays as it is</source>
        <translation>別の内容があるため、そのままです</translation>
    </message>
    <message>
        <source>has the day already</source>
        <translation>すでにその日があります</translation>
    </message>
    <message>
        <source>holiday point</source>
        <translation>個別休日</translation>
    </message>
    <message numerus="yes">
        <source>in %n days</source>
        <translation><numerusform>%n日後に</numerusform></translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>不完全</translation>
    </message>
    <message>
        <source>is %1 and should be %2</source>
        <translation>は%1ですが、%2であるべきです</translation>
    </message>
    <message>
        <source>is %1, which is on a %2 in every other year</source>
        <translation>は%1ですが、ほかの年はすべて%2です</translation>
    </message>
    <message>
        <source>is %1, whose date is %2</source>
        <translation>は%1ですが、その日付は%2です</translation>
    </message>
    <message>
        <source>is a working day by exception, "%1", where the plan has %2</source>
        <translation>は例外の営業日「%1」ですが、計画では%2です</translation>
    </message>
    <message>
        <source>is a working day by exception, without a reason</source>
        <translation>は理由のない例外の営業日です</translation>
    </message>
    <message>
        <source>is a working day by exception, without a reason, and should be %1</source>
        <translation>は理由のない例外の営業日ですが、%1であるべきです</translation>
    </message>
    <message>
        <source>is closed</source>
        <translation>休業です</translation>
    </message>
    <message>
        <source>is closed, but the rule book has %1 there</source>
        <translation>休業ですが、規則集では%1です</translation>
    </message>
    <message>
        <source>is closed; the exception goes</source>
        <translation>休業です。例外はなくなります</translation>
    </message>
    <message>
        <source>is closed; the exception goes, which has opened nothing</source>
        <translation>休業です。何も開けていなかった例外はなくなります</translation>
    </message>
    <message>
        <source>it exists already</source>
        <translation>すでにあります</translation>
    </message>
    <message>
        <source>it was changed meanwhile</source>
        <translation>その間に変更されました</translation>
    </message>
    <message>
        <source>keep</source>
        <translation>維持</translation>
    </message>
    <message>
        <source>kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>last</source>
        <translation>最終</translation>
    </message>
    <message>
        <source>last day as money</source>
        <translation>通貨としての最終日</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>%1行目</translation>
    </message>
    <message>
        <source>line %1 of %2</source>
        <translation>%2の%1行目</translation>
    </message>
    <message>
        <source>minutes 00 to 59</source>
        <translation>00 から 59 までの分</translation>
    </message>
    <message>
        <source>money</source>
        <translation>通貨</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>name of a moved day</source>
        <translation>移動日の名前</translation>
    </message>
    <message>
        <source>nine</source>
        <translation>9</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>no calendar</source>
        <translation>カレンダーなし</translation>
    </message>
    <message>
        <source>no calendar is made</source>
        <translation>カレンダーは作成しません</translation>
    </message>
    <message>
        <source>no calendar of %1</source>
        <translation>%1のカレンダーなし</translation>
    </message>
    <message>
        <source>no day</source>
        <translation>日なし</translation>
    </message>
    <message>
        <source>no day set</source>
        <translation>設定した日なし</translation>
    </message>
    <message>
        <source>no money</source>
        <translation>通貨ではない</translation>
    </message>
    <message>
        <source>no plan</source>
        <translation>計画なし</translation>
    </message>
    <message>
        <source>no warnings</source>
        <translation>警告なし</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>not prepared</source>
        <translation>未準備</translation>
    </message>
    <message>
        <source>not prepared: %1</source>
        <translation>未準備：%1</translation>
    </message>
    <message>
        <source>nothing: there is no such calendar. Prepare the year first</source>
        <translation>何もしません。そのカレンダーがありません。先に年を準備してください</translation>
    </message>
    <message>
        <source>of an unknown type</source>
        <translation>種類不明</translation>
    </message>
    <message>
        <source>on %1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>on or after</source>
        <translation>以降</translation>
    </message>
    <message>
        <source>on or before</source>
        <translation>以前</translation>
    </message>
    <message>
        <source>on the day itself</source>
        <translation>当日</translation>
    </message>
    <message>
        <source>one</source>
        <translation>1</translation>
    </message>
    <message>
        <source>one of 1st, 2nd, 3rd, 4th, 5th and last</source>
        <translation>1st、2nd、3rd、4th、5th、last のいずれか</translation>
    </message>
    <message>
        <source>one of on or after, after, on or before and before</source>
        <translation>on or after、after、on or before、before のいずれか</translation>
    </message>
    <message>
        <source>only, not or the end</source>
        <translation>only、not、または終わり</translation>
    </message>
    <message>
        <source>open as far as known</source>
        <translation>判明分では営業</translation>
    </message>
    <message numerus="yes">
        <source>open together on %n days</source>
        <translation><numerusform>共通の営業日%n日</numerusform></translation>
    </message>
    <message>
        <source>publisher</source>
        <translation>公表者</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>拒否</translation>
    </message>
    <message>
        <source>remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>replace</source>
        <translation>置換</translation>
    </message>
    <message>
        <source>rule %1</source>
        <translation>規則%1</translation>
    </message>
    <message>
        <source>second</source>
        <translation>第2</translation>
    </message>
    <message>
        <source>seven</source>
        <translation>7</translation>
    </message>
    <message>
        <source>should be %1: %2</source>
        <translation>%1であるべき：%2</translation>
    </message>
    <message>
        <source>should be an ordinary working day%1</source>
        <translation>通常の営業日であるべき%1</translation>
    </message>
    <message>
        <source>since</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>six</source>
        <translation>6</translation>
    </message>
    <message>
        <source>something else has that name already</source>
        <translation>ほかのものがすでにその名前です</translation>
    </message>
    <message>
        <source>sorted ascending</source>
        <translation>昇順</translation>
    </message>
    <message>
        <source>sorted descending</source>
        <translation>降順</translation>
    </message>
    <message numerus="yes">
        <source>stays as it is: differences on the board</source>
        <translation><numerusform>そのまま：一覧では相違</numerusform></translation>
    </message>
    <message>
        <source>stays as it is: it is closed already</source>
        <translation>そのまま：すでに休業です</translation>
    </message>
    <message>
        <source>stays open</source>
        <translation>営業のまま</translation>
    </message>
    <message>
        <source>stopped by holidays of the dollar</source>
        <translation>ドルの休日で停止</translation>
    </message>
    <message>
        <source>ten</source>
        <translation>10</translation>
    </message>
    <message>
        <source>the %1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>the %1 %2 of %3 %4</source>
        <translation>%4年%3の%1%2</translation>
    </message>
    <message>
        <source>the book has no day of that year yet</source>
        <translation>その年の日が規則集にまだありません</translation>
    </message>
    <message>
        <source>the currency is unknown, or is no money in that year</source>
        <translation>通貨が不明か、その年には通貨ではありません</translation>
    </message>
    <message>
        <source>the day of the %1 equinox %2 at UTC%3</source>
        <translation>%2年の%1の日（UTC%3）</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>終わり</translation>
    </message>
    <message>
        <source>the end of at most %1 moves</source>
        <translation>終わり（移動は%1個まで）</translation>
    </message>
    <message>
        <source>the name of a table</source>
        <translation>表の名前</translation>
    </message>
    <message>
        <source>the name of a table, of letters, digits and single hyphens,</source>
        <translation>文字、数字、単独のハイフンからなる表の名前</translation>
    </message>
    <message>
        <source>the next %1</source>
        <translation>次の%1</translation>
    </message>
    <message>
        <source>the next free day</source>
        <translation>次の空いた日</translation>
    </message>
    <message>
        <source>the previous %1</source>
        <translation>前の%1</translation>
    </message>
    <message>
        <source>the previous free day</source>
        <translation>前の空いた日</translation>
    </message>
    <message>
        <source>the table %1 reaches from %2 to %3</source>
        <translation>表%1の範囲は%2～%3</translation>
    </message>
    <message>
        <source>there is no such calendar</source>
        <translation>そのカレンダーはありません</translation>
    </message>
    <message>
        <source>there is no such rule</source>
        <translation>その規則はありません</translation>
    </message>
    <message>
        <source>there is no table %1</source>
        <translation>表%1はありません</translation>
    </message>
    <message>
        <source>there is no type %1 of rules</source>
        <translation>規則の種類%1はありません</translation>
    </message>
    <message>
        <source>third</source>
        <translation>第3</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>このコンピューター</translation>
    </message>
    <message>
        <source>three</source>
        <translation>3</translation>
    </message>
    <message>
        <source>to</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>to year</source>
        <translation>終了年</translation>
    </message>
    <message>
        <source>to, only, not or the end</source>
        <translation>to、only、not、または終わり</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>明日</translation>
    </message>
    <message>
        <source>twelve</source>
        <translation>12</translation>
    </message>
    <message>
        <source>two</source>
        <translation>2</translation>
    </message>
    <message>
        <source>type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>vernal</source>
        <translation>春分</translation>
    </message>
    <message>
        <source>weekday</source>
        <translation>曜日</translation>
    </message>
    <message>
        <source>weekend</source>
        <translation>週末</translation>
    </message>
    <message>
        <source>weekend, closed</source>
        <translation>週末、休業</translation>
    </message>
    <message>
        <source>working day</source>
        <translation>営業日</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
</context>
<context>
    <name>fmAddHoliday</name>
    <message>
        <source>Full date</source>
        <translation>年月日</translation>
    </message>
</context>
<context>
    <name>fmAssignPreview</name>
    <message>
        <source>The current rule</source>
        <translation>現在の規則</translation>
    </message>
    <message>
        <source>What each rule would do</source>
        <translation>各規則の結果</translation>
    </message>
</context>
<context>
    <name>fmCalendar</name>
    <message>
        <source>Currencies and calendars</source>
        <translation>通貨とカレンダー</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>日</translation>
    </message>
    <message>
        <source>The same day in the years around</source>
        <translation>前後の年の同じ日</translation>
    </message>
    <message>
        <source>Which days</source>
        <translation>どの日</translation>
    </message>
    <message>
        <source>Why the day is what it is</source>
        <translation>この日の理由</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
</context>
<context>
    <name>fmCalendarThen</name>
    <message>
        <source>Days</source>
        <translation>日</translation>
    </message>
</context>
<context>
    <name>fmCloseDays</name>
    <message>
        <source>What will happen</source>
        <translation>行われる内容</translation>
    </message>
</context>
<context>
    <name>fmEnterHolidays</name>
    <message>
        <source>Holidays</source>
        <translation>休日</translation>
    </message>
    <message>
        <source>Which rules</source>
        <translation>どの規則</translation>
    </message>
</context>
<context>
    <name>fmHistory</name>
    <message>
        <source>Changes</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>What the change replaced</source>
        <translation>変更で置き換えられた内容</translation>
    </message>
</context>
<context>
    <name>fmImport</name>
    <message>
        <source>What is wrong in the list</source>
        <translation>一覧の誤り</translation>
    </message>
</context>
<context>
    <name>fmMessage</name>
    <message>
        <source>Question</source>
        <translation>質問</translation>
    </message>
</context>
<context>
    <name>fmReadiness</name>
    <message>
        <source>Findings of the review</source>
        <translation>点検の指摘</translation>
    </message>
    <message>
        <source>Readiness of the currencies</source>
        <translation>通貨の準備状況</translation>
    </message>
</context>
<context>
    <name>fmRuleBook</name>
    <message>
        <source>Before or after the date</source>
        <translation>日付の前か後か</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Days before or after</source>
        <translation>前後の日数</translation>
    </message>
    <message>
        <source>Days of the rule in ten years</source>
        <translation>規則の日（10年分）</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>規則</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>規則</translation>
    </message>
    <message>
        <source>Table of dates</source>
        <translation>日付表</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>曜日</translation>
    </message>
    <message>
        <source>Which one of the month</source>
        <translation>月の第何週</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
</context>
<context>
    <name>fmSelectYear</name>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
</context>
<context>
    <name>fmYearPlan</name>
    <message>
        <source>Days that differ from the plan</source>
        <translation>計画と異なる日</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>実行した内容</translation>
    </message>
</context>
<context>
    <name>fmYearPlanner</name>
    <message>
        <source>Codes of currencies, such as EUR USD, or ALL</source>
        <translation>EUR USD のような通貨コード、または ALL</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
</context>
</TS>
