<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="nl">
<context>
    <name>Brivane</name>
    <message>
        <extracomment>ExpectAmount</extracomment>
        <source>Vul een bedrag in, bijvoorbeeld 1.234,56.</source>
        <translation>Enter an amount, for example 1.234,56.</translation>
    </message>
    <message>
        <extracomment>AmountDecimals</extracomment>
        <source>Een bedrag heeft ten hoogste twee cijfers achter de komma.</source>
        <translation>An amount has at most two digits after the comma.</translation>
    </message>
    <message>
        <extracomment>ExpectNumber</extracomment>
        <source>Vul een getal in, bijvoorbeeld 12,5.</source>
        <translation>Enter a number, for example 12,5.</translation>
    </message>
    <message>
        <extracomment>NumberDecimals</extracomment>
        <source>Een getal heeft ten hoogste vier cijfers achter de komma.</source>
        <translation>A number has at most four digits after the comma.</translation>
    </message>
    <message>
        <extracomment>ExpectWhole</extracomment>
        <source>Vul een geheel getal in, zonder cijfers achter de komma.</source>
        <translation>Enter a whole number, without digits after the comma.</translation>
    </message>
    <message>
        <extracomment>NumberTooLarge</extracomment>
        <source>Dit getal is te groot.</source>
        <translation>This number is too large.</translation>
    </message>
    <message>
        <extracomment>PointMisplaced</extracomment>
        <source>De punt staat niet tussen duizendtallen. Bedoelt u %1?</source>
        <translation>The point does not separate thousands. Do you mean %1?</translation>
    </message>
    <message>
        <extracomment>PointOrComma</extracomment>
        <source>Bedoelt u %1 of %2? Typ een komma voor de decimalen.</source>
        <translation>Do you mean %1 or %2? Type a comma before the decimals.</translation>
    </message>
    <message>
        <extracomment>ExpectDate</extracomment>
        <source>Vul een datum in als dd-mm-jjjj, bijvoorbeeld 1-4-2031.</source>
        <translation>Enter a date as dd-mm-yyyy, for example 1-4-2031.</translation>
    </message>
    <message>
        <extracomment>EarliestYear</extracomment>
        <source>Vul een jaar vanaf %1 in.</source>
        <translation>Enter a year from %1 on.</translation>
    </message>
    <message>
        <extracomment>NoSuchMonth</extracomment>
        <source>Maand %1 bestaat niet. %2</source>
        <translation>There is no month %1. %2</translation>
    </message>
    <message>
        <extracomment>NoSuchDay</extracomment>
        <source>%1 bestaat niet.</source>
        <translation>%1 does not exist.</translation>
    </message>
    <message>
        <extracomment>Day</extracomment>
        <source>%1 %2 %3</source>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <extracomment>DayOfWeek</extracomment>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <extracomment>January</extracomment>
        <source>januari</source>
        <translation>January</translation>
    </message>
    <message>
        <extracomment>February</extracomment>
        <source>februari</source>
        <translation>February</translation>
    </message>
    <message>
        <extracomment>March</extracomment>
        <source>maart</source>
        <translation>March</translation>
    </message>
    <message>
        <extracomment>April</extracomment>
        <source>april</source>
        <translation>April</translation>
    </message>
    <message>
        <extracomment>May</extracomment>
        <source>mei</source>
        <translation>May</translation>
    </message>
    <message>
        <extracomment>June</extracomment>
        <source>juni</source>
        <translation>June</translation>
    </message>
    <message>
        <extracomment>July</extracomment>
        <source>juli</source>
        <translation>July</translation>
    </message>
    <message>
        <extracomment>August</extracomment>
        <source>augustus</source>
        <translation>August</translation>
    </message>
    <message>
        <extracomment>September</extracomment>
        <source>september</source>
        <translation>September</translation>
    </message>
    <message>
        <extracomment>October</extracomment>
        <source>oktober</source>
        <translation>October</translation>
    </message>
    <message>
        <extracomment>November</extracomment>
        <source>november</source>
        <translation>November</translation>
    </message>
    <message>
        <extracomment>December</extracomment>
        <source>december</source>
        <translation>December</translation>
    </message>
    <message>
        <extracomment>Monday</extracomment>
        <source>maandag</source>
        <translation>Monday</translation>
    </message>
    <message>
        <extracomment>Tuesday</extracomment>
        <source>dinsdag</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <extracomment>Wednesday</extracomment>
        <source>woensdag</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <extracomment>Thursday</extracomment>
        <source>donderdag</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <extracomment>Friday</extracomment>
        <source>vrijdag</source>
        <translation>Friday</translation>
    </message>
    <message>
        <extracomment>Saturday</extracomment>
        <source>zaterdag</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <extracomment>Sunday</extracomment>
        <source>zondag</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <extracomment>DivideByZero</extracomment>
        <source>Delen door nul kan niet.</source>
        <translation>A number cannot be divided by zero.</translation>
    </message>
    <message>
        <extracomment>NumberAfterSign</extracomment>
        <source>Achter &quot;%1&quot; hoort een getal.</source>
        <translation>A number goes after &quot;%1&quot;.</translation>
    </message>
    <message>
        <extracomment>UnreadableSum</extracomment>
        <source>Deze som is niet te lezen. Typ bijvoorbeeld 10+5 of 1200/12.</source>
        <translation>This sum cannot be read. Type for example 10+5 or 1200/12.</translation>
    </message>
    <message>
        <extracomment>DateForNumber</extracomment>
        <source>Dit is een datum. Vul een getal in.</source>
        <translation>This is a date. Enter a number.</translation>
    </message>
    <message>
        <extracomment>SumTooLarge</extracomment>
        <source>De uitkomst van deze som is te groot.</source>
        <translation>The outcome of this sum is too large.</translation>
    </message>
    <message>
        <extracomment>NoStart</extracomment>
        <source>&quot;%1&quot; telt vanaf &quot;%2&quot;, en daar staat geen datum.</source>
        <translation>&quot;%1&quot; counts from &quot;%2&quot;, and there is no date there.</translation>
    </message>
    <message>
        <extracomment>PastCalendar</extracomment>
        <source>&quot;%1&quot; eindigt na het jaar 9999.</source>
        <translation>&quot;%1&quot; ends after the year 9999.</translation>
    </message>
    <message>
        <extracomment>OneColumn</extracomment>
        <source>Plak één kolom tegelijk.</source>
        <translation>Paste one column at a time.</translation>
    </message>
    <message>
        <extracomment>InLine</extracomment>
        <source>Regel %1: %2</source>
        <translation>Line %1: %2</translation>
    </message>
    <message>
        <extracomment>LineLeftOver</extracomment>
        <source>De laatste regel past niet meer in de rijen en is niet geplakt.</source>
        <translation>There is no row for the last line, and it was not pasted.</translation>
    </message>
    <message>
        <extracomment>LinesLeftOver</extracomment>
        <source>De laatste %1 regels passen niet meer in de rijen en zijn niet geplakt.</source>
        <translation>There are no rows for the last %1 lines, and they were not pasted.</translation>
    </message>
    <message>
        <extracomment>NotStored</extracomment>
        <source>Dit is niet bewaard. Enter probeert het opnieuw, Esc zet terug wat er stond.</source>
        <translation>This was not saved. Enter tries again, Esc puts back what was there.</translation>
    </message>
    <message>
        <extracomment>NotTaken</extracomment>
        <source>Niet overgenomen</source>
        <translation>Not taken over</translation>
    </message>
    <message>
        <extracomment>LeftInBox</extracomment>
        <source>In het vak &quot;%1&quot; staat nog &quot;%2&quot;. Dat is niet overgenomen, en het vak is nu niet te bereiken.</source>
        <translation>The box &quot;%1&quot; still holds &quot;%2&quot;. That was not taken over, and the box is out of reach now.</translation>
    </message>
    <message>
        <extracomment>LeftInSomeBox</extracomment>
        <source>In een vak staat nog &quot;%1&quot;. Dat is niet overgenomen, en het vak is nu niet te bereiken.</source>
        <translation>A box still holds &quot;%1&quot;. That was not taken over, and the box is out of reach now.</translation>
    </message>
    <message>
        <extracomment>DropQuestion</extracomment>
        <source>Wilt u wat daar getypt is laten vervallen?</source>
        <translation>Do you want to drop what was typed there?</translation>
    </message>
    <message>
        <extracomment>RowsNotStored</extracomment>
        <source>De wijzigingen in de rijen worden niet bewaard als u het venster sluit zonder op OK te drukken.</source>
        <translation>The changes in the rows are not saved when you close the window without pressing OK.</translation>
    </message>
    <message>
        <extracomment>AmountStays</extracomment>
        <source>Het bedrag van de eerste rij is bij het invullen al bewaard en blijft staan. De andere wijzigingen worden niet bewaard als u het venster sluit zonder op OK te drukken.</source>
        <translation>The amount of the first row was saved when it was entered, and stays. The other changes are not saved when you close the window without pressing OK.</translation>
    </message>
    <message>
        <extracomment>ValueStays</extracomment>
        <source>De waarde van de eerste rij is bij het invullen al bewaard en blijft staan. De andere wijzigingen worden niet bewaard als u het venster sluit zonder op OK te drukken.</source>
        <translation>The value of the first row was saved when it was entered, and stays. The other changes are not saved when you close the window without pressing OK.</translation>
    </message>
    <message>
        <extracomment>TypingToo</extracomment>
        <source>Dat geldt ook voor wat u nu aan het typen bent.</source>
        <translation>That goes for what you are typing now, too.</translation>
    </message>
    <message>
        <extracomment>CloseQuestion</extracomment>
        <source>Wilt u het sluiten?</source>
        <translation>Do you want to close it?</translation>
    </message>
    <message>
        <extracomment>RowPeriod</extracomment>
        <source>%1: %2 tot en met %3</source>
        <translation>%1: %2 up to and including %3</translation>
    </message>
    <message>
        <extracomment>TurnsAge</extracomment>
        <source>%1 wordt %2</source>
        <translation>%1 turns %2</translation>
    </message>
    <message>
        <extracomment>NothingOpen</extracomment>
        <source>Er is geen vrije kolom geopend.</source>
        <translation>No free column is open.</translation>
    </message>
    <message>
        <extracomment>FreeColumn</extracomment>
        <source>Vrije kolom</source>
        <translation>Free column</translation>
    </message>
    <message>
        <extracomment>Calendar</extracomment>
        <source>Kalender</source>
        <translation>Calendar</translation>
    </message>
    <message>
        <extracomment>CalendarKey</extracomment>
        <source>Kalender (F4)</source>
        <translation>Calendar (F4)</translation>
    </message>
    <message>
        <extracomment>Today</extracomment>
        <source>&amp;Vandaag</source>
        <translation>&amp;Today</translation>
    </message>
    <message>
        <extracomment>CalendarLocale</extracomment>
        <source>nl_NL</source>
        <translation>en_GB</translation>
    </message>
    <message>
        <extracomment>Help</extracomment>
        <source>Hulp</source>
        <translation>Help</translation>
    </message>
    <message>
        <extracomment>HelpOn</extracomment>
        <source>Help: %1</source>
        <translation>Help: %1</translation>
    </message>
    <message>
        <extracomment>Yes</extracomment>
        <source>&amp;Ja</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <extracomment>No</extracomment>
        <source>&amp;Nee</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <extracomment>Ok</extracomment>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <extracomment>Close</extracomment>
        <source>Sluiten</source>
        <translation>Close</translation>
    </message>
</context>
</TS>
