<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AboutScreen</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>A craps table to play at, and to test betting systems on.</source>
        <translation>Ein Craps-Tisch zum Spielen und zum Erproben von Wettsystemen.</translation>
    </message>
    <message>
        <source>About Tessaryn</source>
        <translation>Über Tessaryn</translation>
    </message>
    <message>
        <source>Programs:  %1
Data:  %2</source>
        <translation>Programme:  %1
Daten:  %2</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3: see LICENSE.</source>
        <translation>Freie Software unter der GNU General Public License, Version 3: siehe LICENSE.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
</context>
<context>
    <name>BankrollGraph</name>
    <message>
        <source>rolls</source>
        <translation>Würfe</translation>
    </message>
    <message>
        <source>No rolls</source>
        <translation>Keine Würfe</translation>
    </message>
    <message>
        <source>Rolls %1 to %2</source>
        <translation>Würfe %1 bis %2</translation>
    </message>
    <message>
        <source>High:  %1  Current:  %2  Low:  %3</source>
        <translation>Hoch:  %1  Aktuell:  %2  Tief:  %3</translation>
    </message>
    <message>
        <source>%1 roll avg</source>
        <translation>Mittel über %1 Würfe</translation>
    </message>
    <message>
        <source>All rolls avg</source>
        <translation>Mittel über alle Würfe</translation>
    </message>
</context>
<context>
    <name>BetButtons</name>
    <message>
        <source>Undo bet</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Repeat bets</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Full odds</source>
        <translation>Volle Odds</translation>
    </message>
</context>
<context>
    <name>BetFacts</name>
    <message>
        <source>one-roll bet</source>
        <translation>Wette für einen Wurf</translation>
    </message>
    <message>
        <source>stays up until it is decided</source>
        <translation>bleibt liegen, bis sie entschieden ist</translation>
    </message>
    <message>
        <source>a contract: it stays up until it is decided</source>
        <translation>gebunden: bleibt liegen, bis sie entschieden ist</translation>
    </message>
    <message>
        <source>on the line: decided by the come-out or by the point</source>
        <translation>auf der Line: entschieden durch das Come-out oder den Point</translation>
    </message>
    <message>
        <source>odds behind %1</source>
        <translation>Odds hinter %1</translation>
    </message>
    <message>
        <source>goes on over several rolls</source>
        <translation>läuft über mehrere Würfe</translation>
    </message>
    <message>
        <source>%1 before 7</source>
        <translation>%1 vor 7</translation>
    </message>
    <message>
        <source>7 before %1</source>
        <translation>7 vor %1</translation>
    </message>
    <message>
        <source>7 or 11 on the come-out, then the point before 7</source>
        <translation>7 oder 11 beim Come-out, danach der Point vor 7</translation>
    </message>
    <message>
        <source>2, 3 or 12 on the come-out, then 7 before the point</source>
        <translation>2, 3 oder 12 beim Come-out, danach 7 vor dem Point</translation>
    </message>
    <message>
        <source>7 or 11 on the next roll, then its number before 7</source>
        <translation>7 oder 11 beim nächsten Wurf, danach ihre Zahl vor 7</translation>
    </message>
    <message>
        <source>2, 3 or 12 on the next roll, then 7 before its number</source>
        <translation>2, 3 oder 12 beim nächsten Wurf, danach 7 vor ihrer Zahl</translation>
    </message>
    <message>
        <source>%1 or 3 on the come-out, then 7 before the point; %2 is barred</source>
        <translation>%1 oder 3 beim Come-out, danach 7 vor dem Point; %2 ist gesperrt</translation>
    </message>
    <message>
        <source>%1 or 3 on the next roll, then 7 before its number; %2 is barred</source>
        <translation>%1 oder 3 beim nächsten Wurf, danach 7 vor ihrer Zahl; %2 ist gesperrt</translation>
    </message>
    <message>
        <source>the point before 7</source>
        <translation>der Point vor 7</translation>
    </message>
    <message>
        <source>7 before the point</source>
        <translation>7 vor dem Point</translation>
    </message>
    <message>
        <source>%1 on the next roll</source>
        <translation>%1 beim nächsten Wurf</translation>
    </message>
    <message>
        <source>any other roll</source>
        <translation>jeder andere Wurf</translation>
    </message>
    <message>
        <source>any other roll, but not on %1</source>
        <translation>jeder andere Wurf, aber nicht bei %1</translation>
    </message>
    <message>
        <source>%1 as a pair, before 7 and before any other %1</source>
        <translation>%1 als Pasch, vor 7 und vor jeder anderen %1</translation>
    </message>
    <message>
        <source>7, or %1 that is no pair</source>
        <translation>7, oder %1 ohne Pasch</translation>
    </message>
    <message>
        <source>all of %1 before 7</source>
        <translation>alle von %1 vor 7</translation>
    </message>
    <message>
        <source>7 before the last of them</source>
        <translation>7 vor der letzten davon</translation>
    </message>
    <message>
        <source>four rolls without a 7</source>
        <translation>vier Würfe ohne eine 7</translation>
    </message>
    <message>
        <source>7 within the four rolls</source>
        <translation>7 in den vier Würfen</translation>
    </message>
    <message>
        <source>a point, and 7 on the very next roll</source>
        <translation>ein Point, und 7 gleich beim nächsten Wurf</translation>
    </message>
    <message>
        <source>7 on the come-out, or a point and 7 on the very next roll</source>
        <translation>7 beim Come-out, oder ein Point und 7 gleich beim nächsten Wurf</translation>
    </message>
    <message>
        <source>anything else</source>
        <translation>alles andere</translation>
    </message>
    <message>
        <source>%1 points or more, made before the seven-out</source>
        <translation>%1 Points oder mehr, erzielt vor dem Seven-out</translation>
    </message>
    <message>
        <source>%1 passes or more before the seven-out</source>
        <translation>%1 Passes oder mehr vor dem Seven-out</translation>
    </message>
    <message>
        <source>%1 different points or more, made before the seven-out</source>
        <translation>%1 verschiedene Points oder mehr, erzielt vor dem Seven-out</translation>
    </message>
    <message>
        <source>a seven-out with fewer</source>
        <translation>ein Seven-out mit weniger</translation>
    </message>
    <message>
        <source>half each as Any Craps and Eleven</source>
        <translation>je die Hälfte als Any Craps und Eleven</translation>
    </message>
    <message>
        <source>a quarter each as Two, Three, Eleven and Twelve</source>
        <translation>je ein Viertel als Two, Three, Eleven und Twelve</translation>
    </message>
    <message>
        <source>a fifth each as Two, Three, Seven, Eleven and Twelve</source>
        <translation>je ein Fünftel als Two, Three, Seven, Eleven und Twelve</translation>
    </message>
    <message>
        <source>%1% of the bet, charged as it is made</source>
        <translation>%1 % des Einsatzes, fällig beim Setzen</translation>
    </message>
    <message>
        <source>%1% of the bet, charged when it wins</source>
        <translation>%1 % des Einsatzes, fällig beim Gewinn</translation>
    </message>
    <message>
        <source>%1% of the win, charged as it is made</source>
        <translation>%1 % des Gewinns, fällig beim Setzen</translation>
    </message>
    <message>
        <source>%1% of the win, charged when it wins</source>
        <translation>%1 % des Gewinns, fällig beim Gewinn</translation>
    </message>
    <message>
        <source>vig: %1</source>
        <translation>Vig: %1</translation>
    </message>
    <message>
        <source>pays %1</source>
        <translation>zahlt %1</translation>
    </message>
    <message>
        <source>minimum %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>may still be bet: %1</source>
        <translation>noch möglich: %1</translation>
    </message>
    <message>
        <source>edge %1%</source>
        <translation>Hausvorteil %1 %</translation>
    </message>
    <message>
        <source>edge %1% a roll</source>
        <translation>Hausvorteil %1 % je Wurf</translation>
    </message>
    <message>
        <source>not now: %1</source>
        <translation>jetzt nicht: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Wins on: %1</source>
        <translation>Gewinnt bei: %1</translation>
    </message>
    <message>
        <source>Loses on: %1</source>
        <translation>Verliert bei: %1</translation>
    </message>
    <message>
        <source>Pays: %1</source>
        <translation>Zahlt: %1</translation>
    </message>
    <message>
        <source>Next roll: wins %1, loses %2 in 36</source>
        <translation>Nächster Wurf: gewinnt %1, verliert %2 von 36</translation>
    </message>
    <message>
        <source>Off on the next roll; working it would win %1, lose %2 in 36</source>
        <translation>Beim nächsten Wurf OFF; arbeitend gewänne er %1, verlöre %2 von 36</translation>
    </message>
    <message>
        <source>House edge: %1% of the bet</source>
        <translation>Hausvorteil: %1 % des Einsatzes</translation>
    </message>
    <message>
        <source>House edge: %1% of the bet, a roll</source>
        <translation>Hausvorteil: %1 % des Einsatzes je Wurf</translation>
    </message>
    <message>
        <source>The dice in force never decide it</source>
        <translation>Die geltenden Würfel entscheiden sie nie</translation>
    </message>
    <message>
        <source>Decided after %1 rolls on average</source>
        <translation>Im Mittel nach %1 Würfen entschieden</translation>
    </message>
    <message>
        <source>Vig: %1</source>
        <translation>Vig: %1</translation>
    </message>
</context>
<context>
    <name>Board</name>
    <message>
        <source>Next click: call a bet ON. A right click ends this</source>
        <translation>Nächster Klick: Einsatz ON rufen. Rechtsklick beendet es</translation>
    </message>
    <message>
        <source>Next click: call a bet OFF. A right click ends this</source>
        <translation>Nächster Klick: Einsatz OFF rufen. Rechtsklick beendet es</translation>
    </message>
    <message>
        <source>Next click: buy a Place bet. A right click ends this</source>
        <translation>Nächster Klick: Place-Einsatz kaufen. Rechtsklick beendet es</translation>
    </message>
    <message>
        <source>Next click: remove a bet. A right click ends this</source>
        <translation>Nächster Klick: Einsatz entfernen. Rechtsklick beendet es</translation>
    </message>
    <message>
        <source>Next click: take a bet to move it. A right click ends this</source>
        <translation>Nächster Klick: Einsatz zum Verschieben nehmen. Rechtsklick beendet es</translation>
    </message>
    <message>
        <source>Next click: put the bet down. A right click ends this</source>
        <translation>Nächster Klick: Einsatz ablegen. Rechtsklick beendet es</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), point stays %5.</source>
        <translation>Wurf %1: %2 (%3-%4), Point bleibt %5.</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), the point is %2.</source>
        <translation>Wurf %1: %2 (%3-%4), der Point ist %2.</translation>
    </message>
    <message>
        <source>point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), point made.</source>
        <translation>Wurf %1: %2 (%3-%4), Point erzielt.</translation>
    </message>
    <message>
        <source>point made</source>
        <translation>Point erzielt</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), seven-out.</source>
        <translation>Wurf %1: %2 (%3-%4), Seven-out.</translation>
    </message>
    <message>
        <source>seven-out</source>
        <translation>Seven-out</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), natural.</source>
        <translation>Wurf %1: %2 (%3-%4), Natural.</translation>
    </message>
    <message>
        <source>natural</source>
        <translation>Natural</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), craps.</source>
        <translation>Wurf %1: %2 (%3-%4), Craps.</translation>
    </message>
    <message>
        <source>craps</source>
        <translation>Craps</translation>
    </message>
    <message>
        <source>hard</source>
        <translation>hard</translation>
    </message>
    <message>
        <source>easy</source>
        <translation>easy</translation>
    </message>
    <message>
        <source>TWO</source>
        <translation>ZWEI</translation>
    </message>
    <message>
        <source>THREE</source>
        <translation>DREI</translation>
    </message>
    <message>
        <source>FOUR</source>
        <translation>VIER</translation>
    </message>
    <message>
        <source>FIVE</source>
        <translation>FÜNF</translation>
    </message>
    <message>
        <source>SIX</source>
        <translation>SECHS</translation>
    </message>
    <message>
        <source>SEVEN</source>
        <translation>SIEBEN</translation>
    </message>
    <message>
        <source>EIGHT</source>
        <translation>ACHT</translation>
    </message>
    <message>
        <source>NINE</source>
        <translation>NEUN</translation>
    </message>
    <message>
        <source>TEN</source>
        <translation>ZEHN</translation>
    </message>
    <message>
        <source>ELEVEN</source>
        <translation>ELF</translation>
    </message>
    <message>
        <source>TWELVE</source>
        <translation>ZWÖLF</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Hand %1</source>
        <translation>Hand %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 Wurf</numerusform>
            <numerusform>%1 Würfe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 points made</source>
        <translation>
            <numerusform>%1 Point erzielt</numerusform>
            <numerusform>%1 Points erzielt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Spielen</translation>
    </message>
    <message>
        <source>&amp;Watch a system</source>
        <translation>System &amp;beobachten</translation>
    </message>
    <message>
        <source>&amp;Study results</source>
        <translation>&amp;Ergebnisse auswerten</translation>
    </message>
    <message>
        <source>&amp;Float all</source>
        <translation>Alle &amp;frei stellen</translation>
    </message>
    <message>
        <source>&amp;Close all instruments</source>
        <translation>Alle Instrumente s&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Key in bet amounts</source>
        <translation>Einsätze per Tastatur ein&amp;geben</translation>
    </message>
    <message>
        <source>&amp;Buy a Place bet</source>
        <translation>Place-Einsatz &amp;kaufen</translation>
    </message>
    <message>
        <source>Call a bet &amp;ON</source>
        <translation>Einsatz &amp;ON rufen</translation>
    </message>
    <message>
        <source>Call a bet O&amp;FF</source>
        <translation>Einsatz O&amp;FF rufen</translation>
    </message>
    <message>
        <source>Call all bets O&amp;N</source>
        <translation>Alle Einsätze O&amp;N rufen</translation>
    </message>
    <message>
        <source>&amp;Call all bets OFF</source>
        <translation>Alle Einsätze OFF &amp;rufen</translation>
    </message>
    <message>
        <source>&amp;Take full odds</source>
        <translation>Volle Odd&amp;s nehmen</translation>
    </message>
    <message>
        <source>&amp;Lay full odds</source>
        <translation>Volle Odds &amp;legen</translation>
    </message>
    <message>
        <source>&amp;Remove a bet</source>
        <translation>Einsatz &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Move a bet</source>
        <translation>Einsatz &amp;verschieben</translation>
    </message>
    <message>
        <source>Remove &amp;all bets</source>
        <translation>&amp;Alle Einsätze entfernen</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Spiel</translation>
    </message>
    <message>
        <source>&amp;Players</source>
        <translation>&amp;Mitspieler</translation>
    </message>
    <message>
        <source>&amp;Bets</source>
        <translation>&amp;Einsätze</translation>
    </message>
    <message>
        <source>&amp;Dice</source>
        <translation>&amp;Würfel</translation>
    </message>
    <message>
        <source>A&amp;uto-Bet</source>
        <translation>A&amp;uto-Bet</translation>
    </message>
    <message>
        <source>Stat&amp;istics</source>
        <translation>Stat&amp;istik</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Roll the dice</source>
        <translation>&amp;Würfeln</translation>
    </message>
    <message>
        <source>&amp;Pass the dice</source>
        <translation>Würfel weiterge&amp;ben</translation>
    </message>
    <message>
        <source>Roll your &amp;own numbers</source>
        <translation>&amp;Eigene Zahlen würfeln</translation>
    </message>
    <message>
        <source>Start &amp;Turbo-Roll</source>
        <translation>&amp;Turbo-Roll starten</translation>
    </message>
    <message>
        <source>Set Auto-Roll time &amp;delay ...</source>
        <translation>Auto-Roll-&amp;Pause einstellen ...</translation>
    </message>
    <message>
        <source>Set Auto-&amp;Stop ...</source>
        <translation>Auto-&amp;Stopp einstellen ...</translation>
    </message>
    <message>
        <source>Open pro&amp;bability file ...</source>
        <translation>Wa&amp;hrscheinlichkeitsdatei öffnen ...</translation>
    </message>
    <message>
        <source>Per&amp;centage dice</source>
        <translation>Prozentwü&amp;rfel</translation>
    </message>
    <message>
        <source>Pla&amp;y a dice roll file ...</source>
        <translation>Würfeldatei &amp;abspielen ...</translation>
    </message>
    <message>
        <source>R&amp;ecord a dice roll file ...</source>
        <translation>Würfeldatei auf&amp;zeichnen ...</translation>
    </message>
    <message>
        <source>C&amp;lose the dice roll file</source>
        <translation>Würfeldatei s&amp;chließen</translation>
    </message>
    <message>
        <source>Dice roll &amp;files</source>
        <translation>Würfel&amp;dateien</translation>
    </message>
    <message>
        <source>Percentage dice ed&amp;itor</source>
        <translation>Editor &amp;für Prozentwürfel</translation>
    </message>
    <message>
        <source>Stop t&amp;he dice roll file</source>
        <translation>Würfeldatei anha&amp;lten</translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation>&amp;Neu ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>Speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>&amp;Recent games</source>
        <translation>Zu&amp;letzt gespielt</translation>
    </message>
    <message>
        <source>&amp;Files in use ...</source>
        <translation>Benutzte &amp;Dateien ...</translation>
    </message>
    <message>
        <source>So&amp;und</source>
        <translation>&amp;Ton</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Keys and mouse</source>
        <translation>&amp;Tasten und Maus</translation>
    </message>
    <message>
        <source>&amp;About Tessaryn</source>
        <translation>Ü&amp;ber Tessaryn</translation>
    </message>
    <message>
        <source>&amp;Add ...</source>
        <translation>&amp;Hinzufügen ...</translation>
    </message>
    <message>
        <source>&amp;Rename ...</source>
        <translation>&amp;Umbenennen ...</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>Um&amp;setzen</translation>
    </message>
    <message>
        <source>R&amp;emove ...</source>
        <translation>&amp;Entfernen ...</translation>
    </message>
    <message>
        <source>A&amp;TM ...</source>
        <translation>&amp;Geldautomat ...</translation>
    </message>
    <message>
        <source>Auto-&amp;Play ...</source>
        <translation>Auto-&amp;Play ...</translation>
    </message>
    <message>
        <source>&amp;Open script ...</source>
        <translation>Skript ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>&amp;Active</source>
        <translation>&amp;Aktiv</translation>
    </message>
    <message>
        <source>&amp;Initialize</source>
        <translation>&amp;Initialisieren</translation>
    </message>
    <message>
        <source>&amp;Stop auto-betting</source>
        <translation>Auto-Bet an&amp;halten</translation>
    </message>
    <message>
        <source>Assign a &amp;hot-key ...</source>
        <translation>&amp;Tastenkürzel zuweisen ...</translation>
    </message>
    <message>
        <source>Auto-Bet &amp;workshop</source>
        <translation>Auto-Bet-&amp;Werkstatt</translation>
    </message>
    <message>
        <source>Hot-&amp;keys</source>
        <translation>Tasten&amp;kürzel</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Zusammenfassung</translation>
    </message>
    <message>
        <source>&amp;Hands</source>
        <translation>Hän&amp;de</translation>
    </message>
    <message>
        <source>Bet &amp;results</source>
        <translation>&amp;Einsatzergebnisse</translation>
    </message>
    <message>
        <source>Bet &amp;trends</source>
        <translation>Einsatz&amp;verläufe</translation>
    </message>
    <message>
        <source>R&amp;oll totals</source>
        <translation>&amp;Würfelsummen</translation>
    </message>
    <message>
        <source>Roll &amp;frequencies</source>
        <translation>Würfel&amp;häufigkeiten</translation>
    </message>
    <message>
        <source>&amp;Bankroll graph</source>
        <translation>&amp;Bankroll-Kurve</translation>
    </message>
    <message>
        <source>&amp;CheckStacks</source>
        <translation>&amp;CheckStacks</translation>
    </message>
    <message>
        <source>Sessions &amp;Log</source>
        <translation>Sessions-&amp;Log</translation>
    </message>
    <message>
        <source>&amp;Events Log</source>
        <translation>E&amp;reignis-Log</translation>
    </message>
    <message>
        <source>L&amp;aboratory</source>
        <translation>L&amp;abor</translation>
    </message>
    <message>
        <source>View %1</source>
        <translation>Ansicht %1</translation>
    </message>
    <message>
        <source>Bet &amp;amounts</source>
        <translation>Ei&amp;nsatzbeträge</translation>
    </message>
    <message>
        <source>&amp;Flash the bets</source>
        <translation>Einsätze &amp;blinken lassen</translation>
    </message>
    <message>
        <source>&amp;Proposition bets</source>
        <translation>Proposition-&amp;Einsätze</translation>
    </message>
    <message>
        <source>&amp;Move, zoom and rotate</source>
        <translation>Ver&amp;schieben, zoomen und drehen</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Rotate by 30 degrees</source>
        <translation>&amp;Um 30 Grad drehen</translation>
    </message>
    <message>
        <source>&amp;Whole table</source>
        <translation>Ganzer &amp;Tisch</translation>
    </message>
    <message>
        <source>&amp;Left end</source>
        <translation>&amp;Linkes Ende</translation>
    </message>
    <message>
        <source>Ri&amp;ght end</source>
        <translation>&amp;Rechtes Ende</translation>
    </message>
    <message>
        <source>R&amp;estore view</source>
        <translation>Ansicht &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Save view</source>
        <translation>Ansicht &amp;merken</translation>
    </message>
    <message>
        <source>Arra&amp;nge</source>
        <translation>Anor&amp;dnen</translation>
    </message>
    <message>
        <source>Lang&amp;uage</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>&amp;Undo bet</source>
        <translation>Einsatz &amp;zurücknehmen</translation>
    </message>
    <message>
        <source>R&amp;edo bet</source>
        <translation>Einsatz wieder&amp;herstellen</translation>
    </message>
    <message>
        <source>Re&amp;peat bets</source>
        <translation>Einsätze &amp;wiederholen</translation>
    </message>
    <message>
        <source>Full o&amp;dds</source>
        <translation>Volle O&amp;dds</translation>
    </message>
    <message>
        <source>&amp;Help for this screen</source>
        <translation>&amp;Hilfe zu diesem Fenster</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Search the help</source>
        <translation>Hilfe durch&amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Settle each roll on one sheet</source>
        <translation>&amp;Jeden Wurf auf einem Blatt abrechnen</translation>
    </message>
    <message>
        <source>L&amp;uck</source>
        <translation>&amp;Glück</translation>
    </message>
</context>
<context>
    <name>Core</name>
    <message>
        <source>Auto select</source>
        <translation>Automatisch wählen</translation>
    </message>
    <message>
        <source>X Flat - No Push</source>
        <translation>X flach - ohne Push</translation>
    </message>
    <message>
        <source>X Flat w/ Minor Push</source>
        <translation>X flach mit kleinem Push</translation>
    </message>
    <message>
        <source>X Flat w/ Color Push</source>
        <translation>X flach mit Farb-Push</translation>
    </message>
    <message>
        <source>X Flat - Single Odds</source>
        <translation>X flach - einfache Odds</translation>
    </message>
    <message>
        <source>Flat - Single Odds X</source>
        <translation>Flach - einfache Odds X</translation>
    </message>
    <message>
        <source>Rounded normally</source>
        <translation>Kaufmännisch gerundet</translation>
    </message>
    <message>
        <source>Rounded down</source>
        <translation>Abgerundet</translation>
    </message>
    <message>
        <source>Rounded up</source>
        <translation>Aufgerundet</translation>
    </message>
    <message>
        <source> Charge winning Buy bets only</source>
        <translation> Nur gewinnende Buy-Einsätze belasten</translation>
    </message>
    <message>
        <source> Charge all Buy bets</source>
        <translation> Alle Buy-Einsätze belasten</translation>
    </message>
    <message>
        <source> Charge winning Lay bets only</source>
        <translation> Nur gewinnende Lay-Einsätze belasten</translation>
    </message>
    <message>
        <source> Charge all Lay bets</source>
        <translation> Alle Lay-Einsätze belasten</translation>
    </message>
    <message>
        <source>No bets required to shoot</source>
        <translation>Zum Würfeln kein Einsatz nötig</translation>
    </message>
    <message>
        <source>Line bet required to shoot</source>
        <translation>Zum Würfeln ein Line-Einsatz nötig</translation>
    </message>
    <message>
        <source>Any bet required to shoot</source>
        <translation>Zum Würfeln irgendein Einsatz nötig</translation>
    </message>
    <message>
        <source> Actions not allowed</source>
        <translation> Unerlaubte Aktionen</translation>
    </message>
    <message>
        <source> Betting limits reached</source>
        <translation> Erreichte Einsatzgrenzen</translation>
    </message>
    <message>
        <source> Charges and/or change</source>
        <translation> Gebühren und Wechselgeld</translation>
    </message>
    <message>
        <source> Auto-bet messages normal play</source>
        <translation> Auto-Bet-Meldungen im normalen Spiel</translation>
    </message>
    <message>
        <source> Auto-bet messages turbo-roll</source>
        <translation> Auto-Bet-Meldungen im Turbo-Roll</translation>
    </message>
    <message>
        <source>Don&apos;t show any info</source>
        <translation>Keine Angaben zeigen</translation>
    </message>
    <message>
        <source>Show amounts only</source>
        <translation>Nur Beträge zeigen</translation>
    </message>
    <message>
        <source>Show names only</source>
        <translation>Nur Namen zeigen</translation>
    </message>
    <message>
        <source>Show names and amounts only</source>
        <translation>Nur Namen und Beträge zeigen</translation>
    </message>
    <message>
        <source>Show all info</source>
        <translation>Alle Angaben zeigen</translation>
    </message>
    <message>
        <source> Theoretical house vig</source>
        <translation> Theoretischer Hausvorteil</translation>
    </message>
    <message>
        <source> Total comp action</source>
        <translation> Gesamter Comp-Umsatz</translation>
    </message>
    <message>
        <source> Average comp action and time</source>
        <translation> Mittlerer Comp-Umsatz und Zeit</translation>
    </message>
    <message>
        <source> Seed normally</source>
        <translation> Normaler Startwert</translation>
    </message>
    <message>
        <source> User seed</source>
        <translation> Eigener Startwert</translation>
    </message>
    <message>
        <source> Manual</source>
        <translation> Von Hand</translation>
    </message>
    <message>
        <source> Auto w/ minor correction</source>
        <translation> Automatisch mit kleiner Korrektur</translation>
    </message>
    <message>
        <source> Auto w/ color correction</source>
        <translation> Automatisch mit Farbkorrektur</translation>
    </message>
    <message>
        <source> Thrown</source>
        <translation> Geworfen</translation>
    </message>
    <message>
        <source> Without motion</source>
        <translation> Ohne Bewegung</translation>
    </message>
    <message>
        <source> Thrown quickly</source>
        <translation> Schnell geworfen</translation>
    </message>
    <message>
        <source> Carry the bankroll forward</source>
        <translation> Bankroll übernehmen</translation>
    </message>
    <message>
        <source> Begin with this amount</source>
        <translation> Mit diesem Betrag beginnen</translation>
    </message>
    <message>
        <source> Ask for the amount</source>
        <translation> Nach dem Betrag fragen</translation>
    </message>
    <message>
        <source>0 by the change, 1 up, 2 down</source>
        <translation>0 nach dem Wechselgeld, 1 auf, 2 ab</translation>
    </message>
    <message>
        <source>minimum of bets 1 to 51</source>
        <translation>Mindesteinsatz der Wetten 1 bis 51</translation>
    </message>
    <message>
        <source>minimum of bets 52 to 93</source>
        <translation>Mindesteinsatz der Wetten 52 bis 93</translation>
    </message>
    <message>
        <source>table maximum</source>
        <translation>Tischmaximum</translation>
    </message>
    <message>
        <source>most a proposition may pay</source>
        <translation>Höchstauszahlung einer Proposition</translation>
    </message>
    <message>
        <source>ceiling of an odds bet</source>
        <translation>Obergrenze eines Odds-Einsatzes</translation>
    </message>
    <message>
        <source>ceiling of the Fire bet</source>
        <translation>Obergrenze der Fire-Wette</translation>
    </message>
    <message>
        <source>odds multiple on 4 and 10</source>
        <translation>Odds-Vielfaches auf 4 und 10</translation>
    </message>
    <message>
        <source>odds multiple on 5 and 9</source>
        <translation>Odds-Vielfaches auf 5 und 9</translation>
    </message>
    <message>
        <source>odds multiple on 6 and 8</source>
        <translation>Odds-Vielfaches auf 6 und 8</translation>
    </message>
    <message>
        <source>0 auto select, 1 to 5 the method</source>
        <translation>0 automatisch, 1 bis 5 das Verfahren</translation>
    </message>
    <message>
        <source>12 or 2, barred on the don&apos;t side</source>
        <translation>12 oder 2, auf der Don&apos;t-Seite gesperrt</translation>
    </message>
    <message>
        <source>Put bets</source>
        <translation>Put-Einsätze</translation>
    </message>
    <message>
        <source>0 none, 1 line bet, 2 any bet needed to shoot</source>
        <translation>0 keiner, 1 Line-Einsatz, 2 irgendein Einsatz zum Würfeln nötig</translation>
    </message>
    <message>
        <source>Big 6 and Big 8</source>
        <translation>Big 6 und Big 8</translation>
    </message>
    <message>
        <source>Midway bet</source>
        <translation>Midway-Wette</translation>
    </message>
    <message>
        <source>special propositions, bets 84 to 89</source>
        <translation>besondere Propositions, Wetten 84 bis 89</translation>
    </message>
    <message>
        <source>Fire bet</source>
        <translation>Fire-Wette</translation>
    </message>
    <message>
        <source>contract bets go back at a new session</source>
        <translation>gebundene Einsätze gehen bei neuer Session zurück</translation>
    </message>
    <message>
        <source>what the Field pays; Own once a row of it is another</source>
        <translation>was das Field zahlt; Own, sobald eine Zeile anders ist</translation>
    </message>
    <message>
        <source>a fraction, or with % a percentage</source>
        <translation>ein Bruch oder, mit %, ein Prozentsatz</translation>
    </message>
    <message>
        <source>0 normally, 1 down, 2 up</source>
        <translation>0 kaufmännisch, 1 ab, 2 auf</translation>
    </message>
    <message>
        <source>charge all Buy bets</source>
        <translation>alle Buy-Einsätze belasten</translation>
    </message>
    <message>
        <source>charge all Lay bets</source>
        <translation>alle Lay-Einsätze belasten</translation>
    </message>
    <message>
        <source>rolls per hour</source>
        <translation>Würfe je Stunde</translation>
    </message>
    <message>
        <source>0 fastest to 11; 12 Auto-Roll</source>
        <translation>0 am schnellsten bis 11; 12 Auto-Roll</translation>
    </message>
    <message>
        <source>seconds between Auto-Rolls</source>
        <translation>Sekunden zwischen Auto-Rolls</translation>
    </message>
    <message>
        <source>rolls, 0 never</source>
        <translation>Würfe, 0 nie</translation>
    </message>
    <message>
        <source>offered to a new player</source>
        <translation>wird neuen Spielern angeboten</translation>
    </message>
    <message>
        <source>the ATM works</source>
        <translation>der Geldautomat ist in Betrieb</translation>
    </message>
    <message>
        <source>amount of an ATM action that names none</source>
        <translation>Betrag am Geldautomaten ohne eigene Angabe</translation>
    </message>
    <message>
        <source>bits 1 refusals, 2 bankroll, 4 adjustments, 8 and 16 scripts</source>
        <translation>Bits: 1 Ablehnungen, 2 Bankroll, 4 Anpassungen, 8 und 16 Skripte</translation>
    </message>
    <message>
        <source>amounts below a dollar are written in cents</source>
        <translation>Beträge unter einem Dollar in Cent schreiben</translation>
    </message>
    <message>
        <source>checks of a bet are changed for the fewest; else they stay as they were bet</source>
        <translation>Jetons eines Einsatzes auf die wenigsten wechseln; sonst bleiben sie, wie gesetzt</translation>
    </message>
    <message>
        <source>the pointer goes to the default button of a box</source>
        <translation>der Zeiger springt zur Vorgabetaste eines Fensters</translation>
    </message>
    <message>
        <source>printing in colour</source>
        <translation>farbig drucken</translation>
    </message>
    <message>
        <source>how much the pointer tells</source>
        <translation>wie viel der Zeiger verrät</translation>
    </message>
    <message>
        <source>points: 9 small, 11 the desktop&apos;s own size, 13 large</source>
        <translation>Punkt: 9 klein, 11 Größe des Desktops, 13 groß</translation>
    </message>
    <message>
        <source>points</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>how the dice move</source>
        <translation>wie sich die Würfel bewegen</translation>
    </message>
    <message>
        <source>sound set, 0 none</source>
        <translation>Klangsatz, 0 keiner</translation>
    </message>
    <message>
        <source>sounds of scripts</source>
        <translation>Klänge von Skripten</translation>
    </message>
    <message>
        <source>silence</source>
        <translation>Stille</translation>
    </message>
    <message>
        <source>advantage: zeros are decisions</source>
        <translation>Vorteil: Nullen sind Entscheidungen</translation>
    </message>
    <message>
        <source>0 theoretical vig, 1 action, 2 action and time</source>
        <translation>0 theoretischer Hausvorteil, 1 Umsatz, 2 Umsatz und Zeit</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>comps ignore percentage dice</source>
        <translation>Comps lassen Prozentwürfel außer Acht</translation>
    </message>
    <message>
        <source>generator number less 1</source>
        <translation>Nummer des Generators weniger 1</translation>
    </message>
    <message>
        <source>the user is asked for seeds</source>
        <translation>der Benutzer wird nach Startwerten gefragt</translation>
    </message>
    <message>
        <source>a new session seeds again</source>
        <translation>eine neue Session setzt den Startwert neu</translation>
    </message>
    <message>
        <source>the Events Log&apos;s master switch</source>
        <translation>Hauptschalter des Ereignis-Logs</translation>
    </message>
    <message>
        <source>Events Log class</source>
        <translation>Klasse des Ereignis-Logs</translation>
    </message>
    <message>
        <source>a new session clears the log</source>
        <translation>eine neue Session leert das Log</translation>
    </message>
    <message>
        <source>the view follows the rolls</source>
        <translation>die Ansicht folgt den Würfen</translation>
    </message>
    <message>
        <source>what becomes of a winner, 0 manual</source>
        <translation>was aus einem Gewinner wird, 0 von Hand</translation>
    </message>
    <message>
        <source>what becomes of a loser, 0 manual</source>
        <translation>was aus einem Verlierer wird, 0 von Hand</translation>
    </message>
    <message>
        <source>amounts that pay whole</source>
        <translation>Beträge, die glatt zahlen</translation>
    </message>
    <message>
        <source>full odds on Pass Line and Come</source>
        <translation>volle Odds auf Pass Line und Come</translation>
    </message>
    <message>
        <source>full odds on Don&apos;t Pass and Don&apos;t Come</source>
        <translation>volle Odds auf Don&apos;t Pass und Don&apos;t Come</translation>
    </message>
    <message>
        <source>Place and Buy on a covered number come down</source>
        <translation>Place und Buy auf einer gedeckten Zahl kommen herunter</translation>
    </message>
    <message>
        <source>the seat won&apos;t shoot</source>
        <translation>der Platz würfelt nicht</translation>
    </message>
    <message>
        <source>bets without money</source>
        <translation>Einsätze ohne Geld</translation>
    </message>
    <message>
        <source>new session: 0 carry, 1 amount, 2 ask</source>
        <translation>neue Session: 0 übernehmen, 1 Betrag, 2 fragen</translation>
    </message>
    <message>
        <source>new session&apos;s bankroll</source>
        <translation>Bankroll der neuen Session</translation>
    </message>
    <message>
        <source>check denominations, ascending</source>
        <translation>Jetonwerte, aufsteigend</translation>
    </message>
    <message>
        <source>what a bet pays, as in 7 to 5</source>
        <translation>was ein Einsatz zahlt, etwa 7 to 5</translation>
    </message>
    <message>
        <source>Field by dice</source>
        <translation>Field nach Würfeln</translation>
    </message>
    <message>
        <source>7 Point 7</source>
        <translation>7 Point 7</translation>
    </message>
    <message>
        <source>Midway by dice</source>
        <translation>Midway nach Würfeln</translation>
    </message>
    <message>
        <source>by points made + 1</source>
        <translation>nach erzielten Points + 1</translation>
    </message>
    <message>
        <source>by line wins + 1</source>
        <translation>nach Line-Gewinnen + 1</translation>
    </message>
    <message>
        <source>by different points made</source>
        <translation>nach verschiedenen erzielten Points</translation>
    </message>
    <message>
        <source>works on the come-out; seat 0 the house</source>
        <translation>arbeitet beim Come-out; Platz 0 das Haus</translation>
    </message>
    <message>
        <source>counts towards comps</source>
        <translation>zählt für Comps</translation>
    </message>
    <message>
        <source>0 plus, 1 minus, 2 times, 3 divided by</source>
        <translation>0 plus, 1 minus, 2 mal, 3 geteilt durch</translation>
    </message>
    <message>
        <source>the value of the slot</source>
        <translation>der Wert des Fachs</translation>
    </message>
    <message>
        <source>0 dollars, 1 percent, 2 to 6 units of a check</source>
        <translation>0 Dollar, 1 Prozent, 2 bis 6 Einheiten eines Jetons</translation>
    </message>
    <message>
        <source> Take Bet and Winnings</source>
        <translation> Einsatz und Gewinn nehmen</translation>
    </message>
    <message>
        <source> Same Bet/Take Winnings</source>
        <translation> Gleicher Einsatz/Gewinn nehmen</translation>
    </message>
    <message>
        <source> Press 1 Unit</source>
        <translation> Um 1 Einheit erhöhen</translation>
    </message>
    <message>
        <source> Press Double</source>
        <translation> Verdoppeln</translation>
    </message>
    <message>
        <source> Parlay</source>
        <translation> Parlay</translation>
    </message>
    <message>
        <source> Same Bet</source>
        <translation> Gleicher Einsatz</translation>
    </message>
    <message>
        <source> Bet</source>
        <translation> Einsatz</translation>
    </message>
    <message>
        <source> No Bet/Take Remainder (if any)</source>
        <translation> Kein Einsatz/Rest nehmen (falls vorhanden)</translation>
    </message>
    <message>
        <source> Bet Remainder (if any)</source>
        <translation> Rest setzen (falls vorhanden)</translation>
    </message>
    <message>
        <source> Same Bet Plus 1 Unit</source>
        <translation> Gleicher Einsatz plus 1 Einheit</translation>
    </message>
    <message>
        <source> Double Bet</source>
        <translation> Doppelter Einsatz</translation>
    </message>
    <message>
        <source> Show as percentage</source>
        <translation> Als Prozentsatz zeigen</translation>
    </message>
    <message>
        <source> Show as +/- from true %</source>
        <translation> Als +/- vom wahren % zeigen</translation>
    </message>
    <message>
        <source> Show as # rolls out of:</source>
        <translation> Als Anzahl Würfe zeigen, von:</translation>
    </message>
    <message>
        <source> Show as +/- from true rolls out of:</source>
        <translation> Als +/- von den wahren Würfen zeigen, von:</translation>
    </message>
    <message>
        <source> About the 1-6 axis</source>
        <translation> Um die Achse 1-6</translation>
    </message>
    <message>
        <source> About the 2-5 axis</source>
        <translation> Um die Achse 2-5</translation>
    </message>
    <message>
        <source> About the 3-4 axis</source>
        <translation> Um die Achse 3-4</translation>
    </message>
    <message>
        <source>Fair dice</source>
        <translation>Faire Würfel</translation>
    </message>
    <message>
        <source>Shooter on the 1-6 axis, 10%</source>
        <translation>Werfer auf der Achse 1-6, 10 %</translation>
    </message>
    <message>
        <source>Loaded dice, 20% sixes</source>
        <translation>Gezinkte Würfel, 20 % Sechsen</translation>
    </message>
    <message>
        <source>18% sevens</source>
        <translation>18 % Siebener</translation>
    </message>
    <message>
        <source>15% sevens</source>
        <translation>15 % Siebener</translation>
    </message>
    <message>
        <source>Free Form Dice</source>
        <translation>Frei geformte Würfel</translation>
    </message>
    <message>
        <source>Percentage Dice</source>
        <translation>Prozentwürfel</translation>
    </message>
    <message>
        <source>&amp;11 basic numbers</source>
        <translation>&amp;11 Grundzahlen</translation>
    </message>
    <message>
        <source>&amp;36 combos (triangle)</source>
        <translation>&amp;36 Kombinationen (Dreieck)</translation>
    </message>
    <message>
        <source>3&amp;6 combos (box)</source>
        <translation>3&amp;6 Kombinationen (Kasten)</translation>
    </message>
    <message>
        <source>&amp;Individual dice faces</source>
        <translation>E&amp;inzelne Würfelseiten</translation>
    </message>
    <message>
        <source>Set 1st checkstack to #</source>
        <translation>1. CheckStack auf Nr. setzen</translation>
    </message>
    <message>
        <source>Set 2nd checkstack to #</source>
        <translation>2. CheckStack auf Nr. setzen</translation>
    </message>
    <message>
        <source>Set 3rd checkstack to #</source>
        <translation>3. CheckStack auf Nr. setzen</translation>
    </message>
    <message>
        <source>Set 4th checkstack to #</source>
        <translation>4. CheckStack auf Nr. setzen</translation>
    </message>
    <message>
        <source># Rolls</source>
        <translation>Anz. Würfe</translation>
    </message>
    <message>
        <source># Bets Decided</source>
        <translation>Anz. entschiedener Einsätze</translation>
    </message>
    <message>
        <source># Bets Won</source>
        <translation>Anz. gewonnener Einsätze</translation>
    </message>
    <message>
        <source># Bets Lost</source>
        <translation>Anz. verlorener Einsätze</translation>
    </message>
    <message>
        <source># Bets Won/Lost (Net)</source>
        <translation>Anz. gewonnen/verloren (netto)</translation>
    </message>
    <message>
        <source>$ Bets Decided (Handle)</source>
        <translation>$ entschiedene Einsätze (Umsatz)</translation>
    </message>
    <message>
        <source>$ Bets Won</source>
        <translation>$ gewonnene Einsätze</translation>
    </message>
    <message>
        <source>$ Bets Lost</source>
        <translation>$ verlorene Einsätze</translation>
    </message>
    <message>
        <source>$ Bets Won/Lost (Net)</source>
        <translation>$ gewonnen/verloren (netto)</translation>
    </message>
    <message>
        <source>% Won or Lost (HA)</source>
        <translation>% gewonnen oder verloren (HA)</translation>
    </message>
    <message>
        <source>Invested bankroll</source>
        <translation>Eingebrachte Bankroll</translation>
    </message>
    <message>
        <source>Ending bankroll</source>
        <translation>Bankroll am Ende</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Tief</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Spannweite</translation>
    </message>
    <message>
        <source>Variance</source>
        <translation>Varianz</translation>
    </message>
    <message>
        <source>Std Dev</source>
        <translation>Std.-Abw.</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Schiefe</translation>
    </message>
    <message>
        <source>Kurtosis</source>
        <translation>Kurtosis</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>Hände</translation>
    </message>
    <message>
        <source>Bet Results</source>
        <translation>Einsatzergebnisse</translation>
    </message>
    <message>
        <source>Bet Trends</source>
        <translation>Einsatzverläufe</translation>
    </message>
    <message>
        <source>Roll Totals</source>
        <translation>Würfelsummen</translation>
    </message>
    <message>
        <source>Roll Frequencies</source>
        <translation>Würfelhäufigkeiten</translation>
    </message>
    <message>
        <source>Current hand</source>
        <translation>Laufende Hand</translation>
    </message>
    <message>
        <source>Last hand</source>
        <translation>Letzte Hand</translation>
    </message>
    <message>
        <source>Current session</source>
        <translation>Diese Session</translation>
    </message>
    <message>
        <source>Last session</source>
        <translation>Letzte Session</translation>
    </message>
    <message>
        <source>All sessions</source>
        <translation>Alle Sessions</translation>
    </message>
    <message>
        <source>No bets selected</source>
        <translation>Keine Einsätze gewählt</translation>
    </message>
    <message>
        <source>Resolved</source>
        <translation>Entschieden</translation>
    </message>
    <message>
        <source>Tendered</source>
        <translation>Gesetzt</translation>
    </message>
    <message>
        <source>Average $</source>
        <translation>Mittel $</translation>
    </message>
    <message>
        <source>Avg # / hour</source>
        <translation>Anz. / Std (Mittel)</translation>
    </message>
    <message>
        <source>Avg $ / hour</source>
        <translation>Mittel $ / Stunde</translation>
    </message>
    <message>
        <source>Total #</source>
        <translation>Summe Anz.</translation>
    </message>
    <message>
        <source>Total $</source>
        <translation>Summe $</translation>
    </message>
    <message>
        <source>High $</source>
        <translation>Höchster $</translation>
    </message>
    <message>
        <source>Low $</source>
        <translation>Niedrigster $</translation>
    </message>
    <message>
        <source>Last $</source>
        <translation>Letzter $</translation>
    </message>
    <message>
        <source># rolls since last</source>
        <translation>Würfe seither</translation>
    </message>
    <message>
        <source>Last roll #</source>
        <translation>Letzter Wurf Nr.</translation>
    </message>
    <message>
        <source>Last roll $</source>
        <translation>Letzter Wurf $</translation>
    </message>
    <message>
        <source>Current #</source>
        <translation>Aktuell Anz.</translation>
    </message>
    <message>
        <source>Current $</source>
        <translation>Aktuell $</translation>
    </message>
    <message>
        <source>Prior roll #</source>
        <translation>Voriger Wurf Nr.</translation>
    </message>
    <message>
        <source>Prior roll $</source>
        <translation>Voriger Wurf $</translation>
    </message>
    <message>
        <source>Wagers #</source>
        <translation>Einsätze Anz.</translation>
    </message>
    <message>
        <source>Wagers $</source>
        <translation>Einsätze $</translation>
    </message>
    <message>
        <source>Wins #</source>
        <translation>Gewinne Anz.</translation>
    </message>
    <message>
        <source>Losses #</source>
        <translation>Verluste Anz.</translation>
    </message>
    <message>
        <source>Net $</source>
        <translation>Netto $</translation>
    </message>
    <message>
        <source>Net %</source>
        <translation>Netto %</translation>
    </message>
    <message>
        <source>Wagers</source>
        <translation>Einsätze</translation>
    </message>
    <message>
        <source>Wins</source>
        <translation>Gewinne</translation>
    </message>
    <message>
        <source>Losses</source>
        <translation>Verluste</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Netto</translation>
    </message>
    <message>
        <source>Expected value $</source>
        <translation>Erwartungswert $</translation>
    </message>
    <message>
        <source>in a row</source>
        <translation>in Folge</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Naturals</source>
        <translation>Naturals</translation>
    </message>
    <message>
        <source>c/o rolls</source>
        <translation>C/o-Würfe</translation>
    </message>
    <message>
        <source>passes</source>
        <translation>Passes</translation>
    </message>
    <message>
        <source>misses</source>
        <translation>Misses</translation>
    </message>
    <message>
        <source>Total rolls</source>
        <translation>Würfe gesamt</translation>
    </message>
    <message>
        <source>Total hands</source>
        <translation>Hände gesamt</translation>
    </message>
    <message>
        <source>Most rolls in a hand</source>
        <translation>Meiste Würfe in einer Hand</translation>
    </message>
    <message>
        <source>Most c/o rolls in a hand</source>
        <translation>Meiste C/o-Würfe in einer Hand</translation>
    </message>
    <message>
        <source>Most passes in a hand</source>
        <translation>Meiste Passes in einer Hand</translation>
    </message>
    <message>
        <source>Most misses in a hand</source>
        <translation>Meiste Misses in einer Hand</translation>
    </message>
    <message>
        <source>Avg rolls per hand</source>
        <translation>Mittel Würfe je Hand</translation>
    </message>
    <message>
        <source>Avg c/o rolls per hand</source>
        <translation>Mittel C/o-Würfe je Hand</translation>
    </message>
    <message>
        <source>Avg passes per hand</source>
        <translation>Mittel Passes je Hand</translation>
    </message>
    <message>
        <source>Avg misses per hand</source>
        <translation>Mittel Misses je Hand</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Total session rolls:</source>
        <translation>Würfe der Session:</translation>
    </message>
    <message>
        <source>Total rolls this selection:</source>
        <translation>Würfe dieser Auswahl:</translation>
    </message>
    <message>
        <source># rolls since last rolled:</source>
        <translation>Würfe seit dem letzten Mal:</translation>
    </message>
    <message>
        <source>Actual % rolled:</source>
        <translation>Tatsächlich gewürfelt %:</translation>
    </message>
    <message>
        <source>Skewed probable %:</source>
        <translation>Schiefe Wahrscheinlichkeit %:</translation>
    </message>
    <message>
        <source>True probable %:</source>
        <translation>Wahre Wahrscheinlichkeit %:</translation>
    </message>
    <message>
        <source>Average # of rolls to achieve:</source>
        <translation>Würfe im Mittel bis dahin:</translation>
    </message>
    <message>
        <source>Rolls to come again, and how often</source>
        <translation>Würfe bis zur Wiederkehr, und wie oft</translation>
    </message>
    <message>
        <source>Number %1</source>
        <translation>Zahl %1</translation>
    </message>
    <message>
        <source>Numbers %1</source>
        <translation>Zahlen %1</translation>
    </message>
    <message>
        <source>Any %1</source>
        <translation>Jede %1</translation>
    </message>
    <message>
        <source>Hard %1</source>
        <translation>Hard %1</translation>
    </message>
    <message>
        <source>Die %1, face %2</source>
        <translation>Würfel %1, Seite %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>language of the window</source>
        <translation>Sprache des Fensters</translation>
    </message>
    <message>
        <source>As at first</source>
        <translation>Wie zu Beginn</translation>
    </message>
    <message>
        <source>The table as it is when the program is started for the first time.</source>
        <translation>Der Tisch, wie er beim ersten Start des Programms ist.</translation>
    </message>
    <message>
        <source>3-4-5x odds, $10 table</source>
        <translation>3-4-5x Odds, 10-$-Tisch</translation>
    </message>
    <message>
        <source>The usual table of a large house: three times odds on 4 and 10, four on 5 and 9, five on 6 and 8.</source>
        <translation>Der übliche Tisch eines großen Hauses: dreifache Odds auf 4 und 10, vierfache auf 5 und 9, fünffache auf 6 und 8.</translation>
    </message>
    <message>
        <source>3-4-5x odds, $25 table</source>
        <translation>3-4-5x Odds, 25-$-Tisch</translation>
    </message>
    <message>
        <source>The same in the evening: a higher minimum, propositions from $5.</source>
        <translation>Derselbe am Abend: höheres Minimum, Propositions ab $5.</translation>
    </message>
    <message>
        <source>Double odds, $5 table</source>
        <translation>Doppelte Odds, 5-$-Tisch</translation>
    </message>
    <message>
        <source>A small house with double odds and every side bet.</source>
        <translation>Ein kleines Haus mit doppelten Odds und jeder Nebenwette.</translation>
    </message>
    <message>
        <source>Single odds, bar 2, $5 table</source>
        <translation>Einfache Odds, Bar 2, 5-$-Tisch</translation>
    </message>
    <message>
        <source>An old house: single odds, two aces barred, no Put bets.</source>
        <translation>Ein altes Haus: einfache Odds, zwei Einsen gesperrt, keine Put-Einsätze.</translation>
    </message>
    <message>
        <source>10x odds, $10 table</source>
        <translation>10x Odds, 10-$-Tisch</translation>
    </message>
    <message>
        <source>Ten times odds on every point, vig only when Buy and Lay bets win.</source>
        <translation>Zehnfache Odds auf jedem Point, Vig nur, wenn Buy- und Lay-Einsätze gewinnen.</translation>
    </message>
    <message>
        <source>20x odds, $5 table</source>
        <translation>20x Odds, 5-$-Tisch</translation>
    </message>
    <message>
        <source>Twenty times odds on every point, a low minimum.</source>
        <translation>Zwanzigfache Odds auf jedem Point, ein niedriges Minimum.</translation>
    </message>
    <message>
        <source>100x odds, $5 table</source>
        <translation>100x Odds, 5-$-Tisch</translation>
    </message>
    <message>
        <source>A hundred times odds on every point: what the house keeps is least here.</source>
        <translation>Hundertfache Odds auf jedem Point: was das Haus behält, ist hier am wenigsten.</translation>
    </message>
    <message>
        <source>At home, from a quarter</source>
        <translation>Zu Hause, ab 25 Cent</translation>
    </message>
    <message>
        <source>Checks of 25 cents to $25, bets from a quarter to $50.</source>
        <translation>Jetons von 25 Cent bis $25, Einsätze von 25 Cent bis $50.</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>unbenannt</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;All files (*)</source>
        <translation>Kommagetrennte Werte (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Export Picture</source>
        <translation>Bild exportieren</translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;All files (*)</source>
        <translation>PNG-Bilder (*.png);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>SVG drawings (*.svg);;All files (*)</source>
        <translation>SVG-Zeichnungen (*.svg);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF files (*.pdf);;All files (*)</source>
        <translation>PDF-Dateien (*.pdf);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open Events Log</source>
        <translation>Ereignis-Log öffnen</translation>
    </message>
    <message>
        <source>Events log file (*.txt);;All files (*)</source>
        <translation>Ereignis-Log-Datei (*.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Events Log As</source>
        <translation>Ereignis-Log speichern unter</translation>
    </message>
    <message>
        <source>Open Session File</source>
        <translation>Session-Datei öffnen</translation>
    </message>
    <message>
        <source>Session files (*.crp);;All files (*)</source>
        <translation>Session-Dateien (*.crp);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Session File As</source>
        <translation>Session-Datei speichern unter</translation>
    </message>
    <message>
        <source>Open Auto-Bet File</source>
        <translation>Auto-Bet-Datei öffnen</translation>
    </message>
    <message>
        <source>Auto-bet files (*.bet);;All files (*)</source>
        <translation>Auto-Bet-Dateien (*.bet);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Auto-Bet File As</source>
        <translation>Auto-Bet-Datei speichern unter</translation>
    </message>
    <message>
        <source>Select Auto-Bet File for Hot-Key</source>
        <translation>Auto-Bet-Datei für Tastenkürzel wählen</translation>
    </message>
    <message>
        <source>Open Probability File</source>
        <translation>Wahrscheinlichkeitsdatei öffnen</translation>
    </message>
    <message>
        <source>Probability file (*.prb);;All files (*)</source>
        <translation>Wahrscheinlichkeitsdatei (*.prb);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Probability File As</source>
        <translation>Wahrscheinlichkeitsdatei speichern unter</translation>
    </message>
    <message>
        <source>Open Dice Roll File  or  Enter Name For A New File</source>
        <translation>Würfeldatei öffnen  oder  Namen für eine neue eingeben</translation>
    </message>
    <message>
        <source>Dice roll file (*.rol);;All files (*)</source>
        <translation>Würfeldatei (*.rol);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Copy To Dice Roll File</source>
        <translation>In Würfeldatei kopieren</translation>
    </message>
    <message>
        <source>Copy To Roll File</source>
        <translation>In Würfeldatei kopieren</translation>
    </message>
    <message>
        <source>Copy Dice Rolls To Text File</source>
        <translation>Würfe in Textdatei kopieren</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>Textdateien (*.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Copy To Text File</source>
        <translation>In Textdatei kopieren</translation>
    </message>
    <message>
        <source>Paste From Dice Roll File</source>
        <translation>Aus Würfeldatei einfügen</translation>
    </message>
    <message>
        <source>Paste From Ascii/Text File</source>
        <translation>Aus ASCII-/Textdatei einfügen</translation>
    </message>
    <message>
        <source>RNG Seed</source>
        <translation>Startwert des Generators</translation>
    </message>
    <message>
        <source>Auto-bet files (*.bet);;Auto-bet &amp; text files (*.bet *.txt);;Text files (*.txt);;All files (*.*)</source>
        <translation>Auto-Bet-Dateien (*.bet);;Auto-Bet- und Textdateien (*.bet *.txt);;Textdateien (*.txt);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>Open House Rules</source>
        <translation>Hausregeln öffnen</translation>
    </message>
    <message>
        <source>House rules (*.txt);;All files (*)</source>
        <translation>Hausregeln (*.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save House Rules As</source>
        <translation>Hausregeln speichern unter</translation>
    </message>
    <message>
        <source>Save Laboratory Report As</source>
        <translation>Laborbericht speichern unter</translation>
    </message>
    <message>
        <source>Web pages (*.html);;All files (*)</source>
        <translation>Webseiten (*.html);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Dice Roll File</source>
        <translation>Würfeldatei</translation>
    </message>
    <message>
        <source>Record Dice Rolls During Game Play</source>
        <translation>Würfe während des Spiels aufzeichnen</translation>
    </message>
    <message>
        <source>Playback Dice Rolls During Game Play</source>
        <translation>Würfe während des Spiels abspielen</translation>
    </message>
    <message>
        <source>Record Dice Rolls</source>
        <translation>Würfe aufzeichnen</translation>
    </message>
    <message>
        <source>Print Dice Roll File</source>
        <translation>Würfeldatei drucken</translation>
    </message>
    <message>
        <source>Print Dice Rolls</source>
        <translation>Würfe drucken</translation>
    </message>
    <message>
        <source>Open Sessions Log</source>
        <translation>Sessions-Log öffnen</translation>
    </message>
    <message>
        <source>Sessions logs (*.slg);;All files (*)</source>
        <translation>Sessions-Logs (*.slg);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Sessions Log As</source>
        <translation>Sessions-Log speichern unter</translation>
    </message>
    <message>
        <source>Open Laboratory Experiment</source>
        <translation>Laborexperiment öffnen</translation>
    </message>
    <message>
        <source>Laboratory experiments (*.lab);;All files (*)</source>
        <translation>Laborexperimente (*.lab);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Laboratory Experiment As</source>
        <translation>Laborexperiment speichern unter</translation>
    </message>
    <message>
        <source>Save Sessions As</source>
        <translation>Sessions speichern unter</translation>
    </message>
    <message>
        <source>Sessions Logs (*.slg);;All files (*)</source>
        <translation>Sessions-Logs (*.slg);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Results As</source>
        <translation>Ergebnisse speichern unter</translation>
    </message>
    <message>
        <source>JSON (*.json);;All files (*)</source>
        <translation>JSON (*.json);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>Click a + to join</source>
        <translation>Auf ein + klicken, um mitzuspielen</translation>
    </message>
    <message>
        <source>Choose a check, click PASS LINE</source>
        <translation>Jeton wählen, PASS LINE anklicken</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Würfeln</translation>
    </message>
</context>
<context>
    <name>HelpFigures</name>
    <message>
        <source>as odds on the point</source>
        <translation>wie Odds auf dem Point</translation>
    </message>
    <message>
        <source>%1, less %2% vig</source>
        <translation>%1, weniger %2 % Vig</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Einsatz</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Zahlt</translation>
    </message>
    <message>
        <source>House edge</source>
        <translation>Hausvorteil</translation>
    </message>
    <message>
        <source>Edge a roll</source>
        <translation>Vorteil je Wurf</translation>
    </message>
    <message>
        <source>Rolls to a decision</source>
        <translation>Würfe bis zur Entscheidung</translation>
    </message>
    <message>
        <source>What comes</source>
        <translation>Was kommt</translation>
    </message>
    <message>
        <source>nothing, and stays</source>
        <translation>nichts, und bleibt</translation>
    </message>
    <message>
        <source>loses</source>
        <translation>verliert</translation>
    </message>
    <message>
        <source>loses in part</source>
        <translation>verliert zum Teil</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Haus</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Befehlszeile</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
</context>
<context>
    <name>Laboratory</name>
    <message>
        <source>Laboratory</source>
        <translation>Labor</translation>
    </message>
    <message numerus="yes">
        <source>At the table: session %1 of %2, %3 rolls to %4</source>
        <translation>
            <numerusform>Am Tisch: Session %1 von %2, %3 Wurf bis %4</numerusform>
            <numerusform>Am Tisch: Session %1 von %2, %3 Würfe bis %4</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: no session rolled the dice: %2</source>
        <translation>%1: keine Session hat gewürfelt: %2</translation>
    </message>
    <message>
        <source>%1: its script has errors: %2</source>
        <translation>%1: das Skript hat Fehler: %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1 ends a session at %2 on average: between %3 and %4, 95% sure.</source>
        <translation>%1 beendet eine Session im Mittel mit %2: zwischen %3 und %4, zu 95 % sicher.</translation>
    </message>
    <message>
        <source>%1 ends a session %2 better than %3 on the same dice: between %4 and %5, 95% sure.</source>
        <translation>%1 beendet eine Session um %2 besser als %3 mit denselben Würfeln: zwischen %4 und %5, zu 95 % sicher.</translation>
    </message>
    <message>
        <source>Neither is sure to be better: %1 less %2 is %3 a session, between %4 and %5.</source>
        <translation>Keines ist sicher besser: %1 weniger %2 ist %3 je Session, zwischen %4 und %5.</translation>
    </message>
    <message>
        <source>start %1</source>
        <translation>Beginn %1</translation>
    </message>
    <message>
        <source>goal +%1</source>
        <translation>Ziel +%1</translation>
    </message>
    <message>
        <source>loss limit -%1</source>
        <translation>Verlustgrenze -%1</translation>
    </message>
    <message numerus="yes">
        <source>at most %1 rolls</source>
        <translation>
            <numerusform>höchstens %1 Wurf</numerusform>
            <numerusform>höchstens %1 Würfe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %1 hands</source>
        <translation>
            <numerusform>höchstens %1 Hand</numerusform>
            <numerusform>höchstens %1 Hände</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions each, %2.</source>
        <translation>
            <numerusform>je %1 Session, %2.</numerusform>
            <numerusform>je %1 Sessions, %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 would give ±%2.</source>
        <translation>%1 ergäbe ±%2.</translation>
    </message>
    <message>
        <source>Goal reached</source>
        <translation>Ziel erreicht</translation>
    </message>
    <message>
        <source>Loss limit met</source>
        <translation>Verlustgrenze erreicht</translation>
    </message>
    <message>
        <source>Ruined</source>
        <translation>Ruiniert</translation>
    </message>
    <message>
        <source>Stopped by itself</source>
        <translation>Von selbst beendet</translation>
    </message>
    <message>
        <source>Ended ahead</source>
        <translation>Mit Gewinn beendet</translation>
    </message>
    <message>
        <source>Ended even</source>
        <translation>Ausgeglichen beendet</translation>
    </message>
    <message>
        <source>Ended behind</source>
        <translation>Mit Verlust beendet</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sessions</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Mean without luck</source>
        <translation>Mittelwert ohne Glück</translation>
    </message>
    <message>
        <source>Std Dev</source>
        <translation>Std.-Abw.</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Tief</translation>
    </message>
    <message>
        <source>5% quantile</source>
        <translation>5-%-Quantil</translation>
    </message>
    <message>
        <source>95% quantile</source>
        <translation>95-%-Quantil</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Mean drawdown</source>
        <translation>Mittlerer Rückgang</translation>
    </message>
    <message>
        <source>Ahead</source>
        <translation>Im Plus</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Mean rolls</source>
        <translation>Würfe im Mittel</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Maß</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>loss limit %1</source>
        <translation>Verlustgrenze %1</translation>
    </message>
    <message>
        <source>goal %1</source>
        <translation>Ziel %1</translation>
    </message>
    <message>
        <source># sessions</source>
        <translation>Anz. Sessions</translation>
    </message>
    <message>
        <source>Line: 1% to 99%.  Thick: 5% to 95%.  Box: the middle half, bar at the median.  Diamond: mean.</source>
        <translation>Linie: 1 % bis 99 %.  Dick: 5 % bis 95 %.  Kasten: mittlere Hälfte, Strich beim Median.  Raute: Mittelwert.</translation>
    </message>
    <message>
        <source>Only sessions with a most number of rolls are looked at on the way.</source>
        <translation>Nur Sessions mit einer Höchstzahl von Würfen werden unterwegs betrachtet.</translation>
    </message>
    <message>
        <source>Won or lost, $</source>
        <translation>Gewonnen oder verloren, $</translation>
    </message>
    <message>
        <source>Rolls.  Line: median.  Inner band: the middle half.  Outer band: 5% to 95%.</source>
        <translation>Würfe.  Linie: Median.  Inneres Band: mittlere Hälfte.  Äußeres Band: 5 % bis 95 %.</translation>
    </message>
    <message>
        <source>Result of a session, $</source>
        <translation>Ergebnis einer Session, $</translation>
    </message>
    <message>
        <source>Bankrolls on the way</source>
        <translation>Bankrolls unterwegs</translation>
    </message>
    <message>
        <source>How sessions end, with 95% bounds</source>
        <translation>Wie Sessions enden, mit 95-%-Grenzen</translation>
    </message>
    <message>
        <source>Nothing has been played yet.</source>
        <translation>Noch wurde nichts gespielt.</translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions (%2)</source>
        <translation>
            <numerusform>%1 Session (%2)</numerusform>
            <numerusform>%1 Sessions (%2)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: A %3</source>
        <translation>%1 bis %2: A %3</translation>
    </message>
    <message>
        <source>, B %1</source>
        <translation>, B %1</translation>
    </message>
    <message>
        <source>at most %1 hours</source>
        <translation>höchstens %1 Stunden</translation>
    </message>
    <message>
        <source>Price of the bets</source>
        <translation>Preis der Einsätze</translation>
    </message>
    <message>
        <source>less system</source>
        <translation>minus System</translation>
    </message>
    <message>
        <source>Mean difference</source>
        <translation>Mittlere Differenz</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Better, 95% sure</source>
        <translation>Besser, zu 95 % sicher</translation>
    </message>
    <message>
        <source>the first</source>
        <translation>das erste</translation>
    </message>
    <message>
        <source>the second</source>
        <translation>das zweite</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>Least bankroll</source>
        <translation>Kleinste Bankroll</translation>
    </message>
    <message>
        <source>Largest start of CheckStack %1</source>
        <translation>Größter Beginn von CheckStack %1</translation>
    </message>
    <message>
        <source>95% bounds</source>
        <translation>95-%-Grenzen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>%1: nothing keeps the ruined within %2.</source>
        <translation>%1: nichts hält die Ruinierten bei höchstens %2.</translation>
    </message>
    <message>
        <source>%1 needs a bankroll of %2, so that at most %3 are ruined: between %4 and %5, 95% sure.</source>
        <translation>%1 braucht eine Bankroll von %2, damit höchstens %3 ruiniert sind: zwischen %4 und %5, zu 95 % sicher.</translation>
    </message>
    <message>
        <source>%1: any start of the CheckStack keeps the ruined within %2.</source>
        <translation>%1: mit jedem Beginn des CheckStacks bleiben die Ruinierten bei höchstens %2.</translation>
    </message>
    <message>
        <source>%1: CheckStack %2 may start at %3, so that at most %4 are ruined: between %5 and %6, 95% sure.</source>
        <translation>%1: CheckStack %2 darf mit %3 beginnen, damit höchstens %4 ruiniert sind: zwischen %5 und %6, zu 95 % sicher.</translation>
    </message>
    <message>
        <source>No session was ruined.</source>
        <translation>Keine Session wurde ruiniert.</translation>
    </message>
    <message>
        <source>Ruined by then, share of sessions</source>
        <translation>Bis dahin ruiniert, Anteil der Sessions</translation>
    </message>
    <message>
        <source>Rolls.  Line: A.  Dashed: B.</source>
        <translation>Würfe.  Linie: A.  Gestrichelt: B.</translation>
    </message>
    <message>
        <source>Rolls.</source>
        <translation>Würfe.</translation>
    </message>
    <message>
        <source>Ruin over time</source>
        <translation>Ruin im Zeitverlauf</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Variation</translation>
    </message>
    <message>
        <source>Framed: the best.  Dotted: not sure to be worse than that.</source>
        <translation>Rahmen: das Beste.  Gepunktet: nicht sicher schlechter.</translation>
    </message>
    <message>
        <source>Framed: the best.</source>
        <translation>Rahmen: das Beste.</translation>
    </message>
    <message>
        <source>%1, with 95% bounds</source>
        <translation>%1, mit 95-%-Grenzen</translation>
    </message>
    <message>
        <source>Nothing was varied. Let a CheckStack start at several values, or vary a setting, and what comes of each stands here.</source>
        <translation>Nichts wurde variiert. Einen CheckStack mit mehreren Werten beginnen lassen oder eine Einstellung variieren; was jeder Wert bringt, steht dann hier.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: mean %2 ± %3, median %4, ruined %5</source>
        <translation>%1: Mittelwert %2 ± %3, Median %4, ruiniert %5</translation>
    </message>
</context>
<context>
    <name>LaboratorySetup</name>
    <message>
        <source>%1 %2: %3</source>
        <translation>%1 %2: %3</translation>
    </message>
</context>
<context>
    <name>PickList</name>
    <message>
        <source>Select &amp;All</source>
        <translation>Alle wä&amp;hlen</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;Keine wählen</translation>
    </message>
</context>
<context>
    <name>Plates</name>
    <message numerus="yes">
        <source>%1 Bets:</source>
        <translation>
            <numerusform>%1 Einsatz:</numerusform>
            <numerusform>%1 Einsätze:</numerusform>
        </translation>
    </message>
    <message>
        <source>Won:</source>
        <translation>Gewonnen:</translation>
    </message>
    <message>
        <source>Lost:</source>
        <translation>Verloren:</translation>
    </message>
    <message>
        <source>Even:</source>
        <translation>Gleich:</translation>
    </message>
    <message>
        <source>Rail:</source>
        <translation>Rail:</translation>
    </message>
    <message>
        <source>Bankroll:</source>
        <translation>Bankroll:</translation>
    </message>
    <message>
        <source>Bank:</source>
        <translation>Kasse:</translation>
    </message>
</context>
<context>
    <name>PrintHeading</name>
    <message>
        <source>Game file:  %1</source>
        <translation>Spieldatei:  %1</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>unbenannt</translation>
    </message>
    <message>
        <source>Player:  %1</source>
        <translation>Spieler:  %1</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>The pages are being made.</source>
        <translation>Die Seiten werden erstellt.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>The rows are being written.</source>
        <translation>Die Zeilen werden geschrieben.</translation>
    </message>
    <message>
        <source>The rows are being copied.</source>
        <translation>Die Zeilen werden kopiert.</translation>
    </message>
</context>
<context>
    <name>ProbabilityPicture</name>
    <message>
        <source>Die 1 down, die 2 across: % points from fair</source>
        <translation>Würfel 1 abwärts, 2 quer: %-Punkte gegen fair</translation>
    </message>
    <message>
        <source>Totals: filled as set, hatched fair</source>
        <translation>Summen: gefüllt wie eingestellt, schraffiert fair</translation>
    </message>
    <message>
        <source>How the dice differ from fair ones</source>
        <translation>Wie sich die Würfel von fairen unterscheiden</translation>
    </message>
</context>
<context>
    <name>ProbabilityTable</name>
    <message>
        <source>Probability</source>
        <translation>Wahrscheinlichkeit</translation>
    </message>
    <message>
        <source>Die 1</source>
        <translation>Würfel 1</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Summen</translation>
    </message>
    <message>
        <source>Die 2</source>
        <translation>Würfel 2</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Summe %1</translation>
    </message>
    <message>
        <source>Die 1 shows %1</source>
        <translation>Würfel 1 zeigt %1</translation>
    </message>
    <message>
        <source>Die 2 shows %1</source>
        <translation>Würfel 2 zeigt %1</translation>
    </message>
    <message>
        <source>Die 1 shows %1 and die 2 shows %2</source>
        <translation>Würfel 1 zeigt %1 und Würfel 2 zeigt %2</translation>
    </message>
    <message>
        <source>%1: %2, locked</source>
        <translation>%1: %2, gesperrt</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1 (nicht gespeichert)</translation>
    </message>
    <message>
        <source>Die %1</source>
        <translation>Würfel %1</translation>
    </message>
    <message>
        <source>Effectiveness %:</source>
        <translation>Wirksamkeit %:</translation>
    </message>
    <message>
        <source>Die %1, shooter&apos;s effectiveness in percent</source>
        <translation>Würfel %1, Wirksamkeit des Werfers in Prozent</translation>
    </message>
    <message>
        <source>Shooter&apos;s Effectiveness</source>
        <translation>Wirksamkeit des Werfers</translation>
    </message>
    <message>
        <source>In so many percent of the rolls a die turns about its axis, so that the two faces at the axis&apos; ends never show. All cells are unlocked first.</source>
        <translation>In so viel Prozent der Würfe dreht sich ein Würfel um seine Achse, sodass die zwei Seiten an ihren Enden nie oben liegen. Alle Felder werden zuerst entsperrt.</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Übernehmen</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>* beyond 2 standard errors</source>
        <translation>* mehr als 2 Standardfehler</translation>
    </message>
    <message>
        <source>PERCENT</source>
        <translation>PROZENT</translation>
    </message>
    <message>
        <source>Actual</source>
        <translation>Tatsächlich</translation>
    </message>
    <message>
        <source>Probable (skewed)</source>
        <translation>Wahrscheinlich (schief)</translation>
    </message>
    <message>
        <source>Probable</source>
        <translation>Wahrscheinlich</translation>
    </message>
    <message>
        <source>TIMES</source>
        <translation>MAL</translation>
    </message>
    <message>
        <source>rolls to come again</source>
        <translation>Würfe bis zur Wiederkehr</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Standard</translation>
    </message>
    <message>
        <source>&amp;Green</source>
        <translation>&amp;Grün</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translation>&amp;Blau</translation>
    </message>
    <message>
        <source>&amp;Red</source>
        <translation>&amp;Rot</translation>
    </message>
    <message>
        <source>G&amp;old</source>
        <translation>G&amp;old</translation>
    </message>
    <message>
        <source>&amp;Purple</source>
        <translation>&amp;Violett</translation>
    </message>
    <message>
        <source>&amp;Teal</source>
        <translation>B&amp;laugrün</translation>
    </message>
    <message>
        <source>Or&amp;ange</source>
        <translation>Or&amp;ange</translation>
    </message>
    <message>
        <source>Gr&amp;ey</source>
        <translation>Gra&amp;u</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>&amp;Weiß</translation>
    </message>
    <message>
        <source>Blac&amp;k</source>
        <translation>S&amp;chwarz</translation>
    </message>
    <message>
        <source>No players present</source>
        <translation>Keine Spieler am Tisch</translation>
    </message>
    <message>
        <source>No players selected</source>
        <translation>Keine Spieler gewählt</translation>
    </message>
    <message>
        <source>All players selected</source>
        <translation>Alle Spieler gewählt</translation>
    </message>
    <message numerus="yes">
        <source>%1 players selected</source>
        <translation>
            <numerusform>%1 Spieler gewählt</numerusform>
            <numerusform>%1 Spieler gewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, more than two standard errors off</source>
        <translation>%1, mehr als zwei Standardfehler daneben</translation>
    </message>
    <message>
        <source>A click on a heading, or Enter, sorts by the column</source>
        <translation>Klick auf eine Überschrift oder Enter sortiert nach der Spalte</translation>
    </message>
    <message>
        <source>Percentages</source>
        <translation>Prozentsätze</translation>
    </message>
    <message>
        <source>Skewed</source>
        <translation>Schief</translation>
    </message>
    <message>
        <source>&amp;11 basic numbers</source>
        <translation>&amp;11 Grundzahlen</translation>
    </message>
    <message>
        <source>&amp;21 distinguishable combos</source>
        <translation>&amp;21 unterscheidbare Kombinationen</translation>
    </message>
    <message>
        <source>&amp;36 unique combos</source>
        <translation>&amp;36 einzelne Kombinationen</translation>
    </message>
    <message>
        <source>&amp;Dice faces</source>
        <translation>&amp;Würfelseiten</translation>
    </message>
    <message>
        <source>Rolls that count</source>
        <translation>Würfe, die zählen</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Outcome of a roll</source>
        <translation>Ergebnis eines Wurfs</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Players who count</source>
        <translation>Spieler, die zählen</translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Einsätze</translation>
    </message>
    <message>
        <source>Bets that count</source>
        <translation>Einsätze, die zählen</translation>
    </message>
    <message>
        <source>Probabilities of the percentage dice, else of true dice</source>
        <translation>Wahrscheinlichkeiten der Prozentwürfel, sonst echter Würfel</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>&amp;Each bet in a row</source>
        <translation>&amp;Jeder Einsatz in einer Zeile</translation>
    </message>
    <message>
        <source>Use thousands &amp;separator</source>
        <translation>&amp;Tausendertrennzeichen</translation>
    </message>
    <message>
        <source>Font &amp;bold</source>
        <translation>Schrift &amp;fett</translation>
    </message>
    <message>
        <source>Font &amp;italic</source>
        <translation>Schrift &amp;kursiv</translation>
    </message>
    <message>
        <source>Display &amp;totals</source>
        <translation>&amp;Summen zeigen</translation>
    </message>
    <message>
        <source>&amp;Hide probability bars</source>
        <translation>&amp;Wahrscheinlichkeitsbalken verbergen</translation>
    </message>
    <message>
        <source>Graph &amp;background color ...</source>
        <translation>&amp;Hintergrundfarbe der Grafik ...</translation>
    </message>
    <message>
        <source>&amp;Graph bars color ...</source>
        <translation>&amp;Balkenfarbe der Grafik ...</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>The table below it has its figures</source>
        <translation>Die Tabelle darunter hat ihre Zahlen</translation>
    </message>
    <message>
        <source>Selected player</source>
        <translation>Gewählter Spieler</translation>
    </message>
    <message>
        <source>* more than two standard errors from the probable</source>
        <translation>* mehr als zwei Standardfehler vom Wahrscheinlichen</translation>
    </message>
</context>
<context>
    <name>RollChart</name>
    <message>
        <source>Distribution of the totals: %1</source>
        <translation>Verteilung der Summen: %1</translation>
    </message>
    <message>
        <source>%1: %2 of %3 rolls, %4%, fair dice %5%</source>
        <translation>%1: %2 von %3 Würfen, %4 %, faire Würfel %5 %</translation>
    </message>
    <message>
        <source>%1, more than two standard errors away</source>
        <translation>%1, mehr als zwei Standardfehler entfernt</translation>
    </message>
    <message numerus="yes">
        <source>%1 values are no rolls</source>
        <translation>
            <numerusform>%1 Wert ist kein Wurf</numerusform>
            <numerusform>%1 Werte sind keine Würfe</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RunControls</name>
    <message>
        <source>Stop &amp;Auto-Roll</source>
        <translation>&amp;Auto-Roll anhalten</translation>
    </message>
    <message>
        <source>Stop &amp;Turbo-Roll</source>
        <translation>&amp;Turbo-Roll anhalten</translation>
    </message>
    <message>
        <source>Start &amp;Auto-Roll</source>
        <translation>&amp;Auto-Roll starten</translation>
    </message>
    <message>
        <source>Start &amp;Turbo-Roll</source>
        <translation>&amp;Turbo-Roll starten</translation>
    </message>
    <message>
        <source>Auto-Roll</source>
        <translation>Auto-Roll</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Volles Tempo</translation>
    </message>
    <message>
        <source>%1 s a roll</source>
        <translation>%1 s/Wurf</translation>
    </message>
</context>
<context>
    <name>ScriptLexer</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Logic</source>
        <translation>Logik</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>Modifier</source>
        <translation>Bestimmung</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Sign</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Text in quotes</source>
        <translation>Text in Anführungszeichen</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Unknown word</source>
        <translation>Unbekanntes Wort</translation>
    </message>
</context>
<context>
    <name>Sounds</name>
    <message>
        <source>Missing sound files: %1</source>
        <translation>Fehlende Klangdateien: %1</translation>
    </message>
</context>
<context>
    <name>TableAccessible</name>
    <message>
        <source>%1, left end</source>
        <translation>%1, linkes Ende</translation>
    </message>
    <message>
        <source>%1, right end</source>
        <translation>%1, rechtes Ende</translation>
    </message>
    <message>
        <source>Seat %1, open</source>
        <translation>Platz %1, frei</translation>
    </message>
    <message>
        <source>Seat %1, %2</source>
        <translation>Platz %1, %2</translation>
    </message>
    <message>
        <source>Checks of %1 on %2</source>
        <translation>Jetons von %1 auf %2</translation>
    </message>
    <message>
        <source>Last roll</source>
        <translation>Letzter Wurf</translation>
    </message>
    <message>
        <source>Take down</source>
        <translation>Herunternehmen</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Setzen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Mitspielen</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4)</source>
        <translation>Wurf %1: %2 (%3-%4)</translation>
    </message>
    <message>
        <source>seven-out, the point was %1</source>
        <translation>Seven-out, der Point war %1</translation>
    </message>
    <message>
        <source>the point %1 is made</source>
        <translation>der Point %1 ist erzielt</translation>
    </message>
    <message>
        <source>the point is %1</source>
        <translation>der Point ist %1</translation>
    </message>
    <message>
        <source>the point stays %1</source>
        <translation>der Point bleibt %1</translation>
    </message>
    <message>
        <source>%1 won %2</source>
        <translation>%1 gewinnt %2</translation>
    </message>
    <message>
        <source>%1 lost %2</source>
        <translation>%1 verliert %2</translation>
    </message>
</context>
<context>
    <name>TableCommands</name>
    <message>
        <source>Carrying %1</source>
        <translation>%1 in der Hand</translation>
    </message>
    <message>
        <source>Moving %1</source>
        <translation>%1 wird umgesetzt</translation>
    </message>
    <message>
        <source>Next click: call a bet ON</source>
        <translation>Nächster Klick: Einsatz ON rufen</translation>
    </message>
    <message>
        <source>Next click: call a bet OFF</source>
        <translation>Nächster Klick: Einsatz OFF rufen</translation>
    </message>
    <message>
        <source>Next click: buy a Place bet</source>
        <translation>Nächster Klick: Place-Einsatz kaufen</translation>
    </message>
    <message>
        <source>Next click: remove a bet</source>
        <translation>Nächster Klick: Einsatz entfernen</translation>
    </message>
    <message>
        <source>Next click: take a bet to move it</source>
        <translation>Nächster Klick: Einsatz zum Verschieben nehmen</translation>
    </message>
    <message>
        <source>Click: bets %1</source>
        <translation>Klick: setzt %1</translation>
    </message>
    <message>
        <source>Drag: moves it, off the felt takes it down; Delete and a click too</source>
        <translation>Ziehen: verschiebt ihn, vom Tuch nimmt ihn herunter; auch Entf und Klick</translation>
    </message>
    <message>
        <source>Right click: rolls</source>
        <translation>Rechtsklick: würfelt</translation>
    </message>
    <message>
        <source>No bet has ridden in this session</source>
        <translation>In dieser Session lag noch kein Einsatz</translation>
    </message>
    <message>
        <source>Expected of the bets made: %1</source>
        <translation>Von den Einsätzen erwartet: %1</translation>
    </message>
    <message>
        <source>Came: %1</source>
        <translation>Gekommen: %1</translation>
    </message>
    <message>
        <source>Luck: %1, %2 standard deviations</source>
        <translation>Glück: %1, %2 Standardabweichungen</translation>
    </message>
    <message>
        <source>Rolls that were not counted: %1</source>
        <translation>Nicht gezählte Würfe: %1</translation>
    </message>
</context>
<context>
    <name>TableLayout</name>
    <message>
        <source>PAYS</source>
        <translation>ZAHLT</translation>
    </message>
    <message>
        <source>HOPS</source>
        <translation>HOPS</translation>
    </message>
    <message>
        <source>%1  PAIRS %2</source>
        <extracomment>On the felt: what a hop pays, and what a pair pays.</extracomment>
        <translation>%1  PASCHE %2</translation>
    </message>
    <message>
        <source>ONE ROLL</source>
        <translation>EIN WURF</translation>
    </message>
    <message>
        <source>HARDWAYS</source>
        <translation>HARDWAYS</translation>
    </message>
    <message>
        <source>SIDE BETS</source>
        <translation>NEBENWETTEN</translation>
    </message>
</context>
<context>
    <name>TableTouch</name>
    <message>
        <source>Bet %1</source>
        <translation>%1 setzen</translation>
    </message>
    <message>
        <source>Take down</source>
        <translation>Herunternehmen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Call ON</source>
        <translation>ON rufen</translation>
    </message>
    <message>
        <source>Call OFF</source>
        <translation>OFF rufen</translation>
    </message>
    <message>
        <source>Buy</source>
        <translation>Kaufen</translation>
    </message>
    <message>
        <source>Roll the dice</source>
        <translation>Würfeln</translation>
    </message>
</context>
<context>
    <name>ToolMenu</name>
    <message>
        <source>&amp;Print ...</source>
        <translation>&amp;Drucken ...</translation>
    </message>
    <message>
        <source>Print pre&amp;view ...</source>
        <translation>Druckvor&amp;schau ...</translation>
    </message>
    <message>
        <source>Save as P&amp;DF ...</source>
        <translation>&amp;Als PDF speichern ...</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>Alles &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Export table (CSV) ...</source>
        <translation>&amp;Tabelle exportieren (CSV) ...</translation>
    </message>
    <message>
        <source>Export p&amp;icture (PNG) ...</source>
        <translation>&amp;Bild exportieren (PNG) ...</translation>
    </message>
    <message>
        <source>Export drawin&amp;g (SVG) ...</source>
        <translation>&amp;Zeichnung exportieren (SVG) ...</translation>
    </message>
    <message>
        <source>Dock at the &amp;right</source>
        <translation>&amp;Rechts andocken</translation>
    </message>
    <message>
        <source>Dock &amp;below</source>
        <translation>&amp;Unten andocken</translation>
    </message>
    <message>
        <source>Dock at the &amp;left</source>
        <translation>&amp;Links andocken</translation>
    </message>
    <message>
        <source>&amp;Window of its own</source>
        <translation>&amp;Eigenes Fenster</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Output</source>
        <translation>&amp;Ausgabe</translation>
    </message>
    <message>
        <source>P&amp;lace</source>
        <translation>&amp;Platz</translation>
    </message>
</context>
<context>
    <name>tessaryn::AdjustEdit</name>
    <message>
        <source>%1: operator</source>
        <translation>%1: Rechenzeichen</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plus</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>minus</translation>
    </message>
    <message>
        <source>times</source>
        <translation>mal</translation>
    </message>
    <message>
        <source>divided by</source>
        <translation>geteilt durch</translation>
    </message>
    <message>
        <source>%1: amount</source>
        <translation>%1: Betrag</translation>
    </message>
    <message>
        <source>%1: unit</source>
        <translation>%1: Einheit</translation>
    </message>
    <message>
        <source>(number)</source>
        <translation>(Zahl)</translation>
    </message>
    <message>
        <source>dollars</source>
        <translation>Dollar</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>%1 units</source>
        <translation>%1er-Einheiten</translation>
    </message>
</context>
<context>
    <name>tessaryn::AdvantagePage</name>
    <message>
        <source>by the point</source>
        <translation>nach dem Point</translation>
    </message>
    <message>
        <source>in shares</source>
        <translation>in Anteilen</translation>
    </message>
    <message>
        <source>by its table</source>
        <translation>nach seiner Tabelle</translation>
    </message>
    <message>
        <source>Advantage</source>
        <translation>Vorteil</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Einsatz</translation>
    </message>
    <message>
        <source>EV/Roll</source>
        <translation>EW/Wurf</translation>
    </message>
    <message>
        <source>StDev/Roll</source>
        <translation>StdAbw/Wurf</translation>
    </message>
    <message>
        <source>EV/Dec</source>
        <translation>EW/Entsch.</translation>
    </message>
    <message>
        <source>StDev/Dec</source>
        <translation>StdAbw/Entsch.</translation>
    </message>
    <message>
        <source>EV/Hour</source>
        <translation>EW/Stunde</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Liegt</translation>
    </message>
    <message>
        <source>Up/Hour</source>
        <translation>Liegt/Stunde</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Rolls/Dec</source>
        <translation>Würfe/Entsch.</translation>
    </message>
    <message>
        <source>Time/Dec</source>
        <translation>Zeit/Entsch.</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Zahlt</translation>
    </message>
    <message>
        <source>EV and deviation in dollars on the bet amount. Up: what the player has on the table, and what it is expected to bring in an hour. Session: what was to be expected of the bets that this session decided.</source>
        <translation>Erwartungswert und Abweichung in Dollar auf den Einsatzbetrag. Liegt: was der Spieler auf dem Tisch hat und was es in einer Stunde erwarten lässt. Session: was von den Einsätzen zu erwarten war, die diese Session entschied.</translation>
    </message>
    <message>
        <source>Bet amount</source>
        <translation>Einsatzbetrag</translation>
    </message>
    <message>
        <source>Bet &amp;amount</source>
        <translation>Einsatz&amp;betrag</translation>
    </message>
    <message>
        <source>&amp;Player</source>
        <translation>&amp;Spieler</translation>
    </message>
    <message>
        <source>Sort &amp;by</source>
        <translation>S&amp;ortieren nach</translation>
    </message>
    <message>
        <source>&amp;Only bets that are up</source>
        <translation>&amp;Nur liegende Einsätze</translation>
    </message>
    <message>
        <source>Include &amp;zero outcomes</source>
        <translation>Nu&amp;llergebnisse mitzählen</translation>
    </message>
    <message>
        <source>Show &amp;misc data</source>
        <translation>&amp;Weitere Angaben</translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation>Am Tisch sind keine Spieler.</translation>
    </message>
    <message>
        <source>%1 has no bets up.</source>
        <translation>%1 hat keine Einsätze liegen.</translation>
    </message>
    <message>
        <source>At %1 rolls an hour the bets that %2 has up are expected to bring %3 an hour</source>
        <translation>Bei %1 Würfen je Stunde lassen die Einsätze von %2 %3 je Stunde erwarten</translation>
    </message>
    <message>
        <source> Odds are counted while a point is on, and Come and Don&apos;t Come bets are made while one is.</source>
        <translation> Odds zählen, solange ein Point steht; Come- und Don&apos;t-Come-Einsätze werden dann gemacht.</translation>
    </message>
    <message>
        <source> How far an hour strays from that is left out: what %1 has in common with the other bets can&apos;t be told.</source>
        <translation> Wie weit eine Stunde davon abweicht, fehlt: was %1 mit den anderen Einsätzen gemein hat, lässt sich nicht sagen.</translation>
    </message>
    <message>
        <source>No bet has been decided in this session.</source>
        <translation>In dieser Session wurde kein Einsatz entschieden.</translation>
    </message>
    <message>
        <source>This session decided %1 of bets: %2 was to be expected of them, %3 it came to.</source>
        <translation>Diese Session entschied %1 an Einsätzen: %2 war davon zu erwarten, %3 ist es geworden.</translation>
    </message>
    <message>
        <source>%1% of all</source>
        <translation>%1 % von allen</translation>
    </message>
    <message>
        <source>%1% of winners</source>
        <translation>%1 % von Gewinnern</translation>
    </message>
    <message>
        <source>Dice: %1. A roll takes %2. Buy vig: %3. Lay vig: %4. Bar: %5. %6</source>
        <translation>Würfel: %1. Ein Wurf dauert %2. Buy-Vig: %3. Lay-Vig: %4. Bar: %5. %6</translation>
    </message>
    <message>
        <source>percentage dice</source>
        <translation>Prozentwürfel</translation>
    </message>
    <message>
        <source>fair</source>
        <translation>fair</translation>
    </message>
    <message>
        <source>Rolls that leave a bet in place count as decisions.</source>
        <translation>Würfe, die einen Einsatz liegen lassen, zählen als Entscheidungen.</translation>
    </message>
    <message>
        <source>Only wins and losses count as decisions.</source>
        <translation>Nur Gewinne und Verluste zählen als Entscheidungen.</translation>
    </message>
    <message>
        <source>%1, give or take %2</source>
        <translation>%1, plus oder minus %2</translation>
    </message>
</context>
<context>
    <name>tessaryn::AmountSelector</name>
    <message>
        <source>Bet amount</source>
        <translation>Einsatzbetrag</translation>
    </message>
    <message>
        <source>Amount that a click bets</source>
        <translation>Betrag, den ein Klick setzt</translation>
    </message>
    <message>
        <source>The amount that a click bets</source>
        <translation>Der Betrag, den ein Klick setzt</translation>
    </message>
    <message>
        <source>Bet %1 a click</source>
        <translation>%1 je Klick setzen</translation>
    </message>
</context>
<context>
    <name>tessaryn::AtmScreen</name>
    <message>
        <source>ATM</source>
        <translation>Geldautomat</translation>
    </message>
    <message>
        <source>Bankroll:</source>
        <translation>Bankroll:</translation>
    </message>
    <message>
        <source>On the table:</source>
        <translation>Auf dem Tisch:</translation>
    </message>
    <message>
        <source>Rail:</source>
        <translation>Rail:</translation>
    </message>
    <message>
        <source>Drawn from the ATM:</source>
        <translation>Abgehoben:</translation>
    </message>
    <message>
        <source>Allow &amp;negative bankroll</source>
        <translation>&amp;Negative Bankroll erlauben</translation>
    </message>
    <message>
        <source>The ATM is switched off in the configuration.</source>
        <translation>Der Geldautomat ist in den Einstellungen abgeschaltet.</translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation>&amp;Betrag:</translation>
    </message>
    <message>
        <source>&amp;Withdraw</source>
        <translation>&amp;Abheben</translation>
    </message>
    <message>
        <source>&amp;Deposit</source>
        <translation>&amp;Einzahlen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>tessaryn::AutoPlayScreen</name>
    <message>
        <source>Auto-&amp;take full odds</source>
        <translation>Volle Odds automatisch &amp;nehmen</translation>
    </message>
    <message>
        <source>On Pass Line and Come, when a point is set and when the flat bet changes</source>
        <translation>Auf Pass Line und Come, wenn ein Point gesetzt wird und wenn sich der Grundeinsatz ändert</translation>
    </message>
    <message>
        <source>Auto-&amp;lay full odds</source>
        <translation>Volle Odds automatisch &amp;legen</translation>
    </message>
    <message>
        <source>On Don&apos;t Pass and Don&apos;t Come, when a point is set and when the flat bet changes</source>
        <translation>Auf Don&apos;t Pass und Don&apos;t Come, wenn ein Point gesetzt wird und wenn sich der Grundeinsatz ändert</translation>
    </message>
    <message>
        <source>Auto-&amp;down Place bets</source>
        <translation>Place-Einsätze automatisch &amp;herunter</translation>
    </message>
    <message>
        <source>Place and Buy bets on the number of a line or Come bet come down</source>
        <translation>Place- und Buy-Einsätze auf der Zahl eines Line- oder Come-Einsatzes kommen herunter</translation>
    </message>
    <message>
        <source>Auto-&amp;pass the dice</source>
        <translation>Würfel automatisch &amp;weitergeben</translation>
    </message>
    <message>
        <source>The player never shoots</source>
        <translation>Der Spieler würfelt nie</translation>
    </message>
    <message>
        <source>Place and Buy:</source>
        <translation>Place und Buy:</translation>
    </message>
    <message>
        <source>Do side, others:</source>
        <translation>Do-Seite, andere:</translation>
    </message>
    <message>
        <source>Don&apos;t side:</source>
        <translation>Don&apos;t-Seite:</translation>
    </message>
    <message>
        <source>Lay:</source>
        <translation>Lay:</translation>
    </message>
    <message>
        <source> Manual</source>
        <translation> Von Hand</translation>
    </message>
    <message>
        <source> Auto w/ minor correction</source>
        <translation> Automatisch mit kleiner Korrektur</translation>
    </message>
    <message>
        <source> Auto w/ color correction</source>
        <translation> Automatisch mit Farbkorrektur</translation>
    </message>
    <message>
        <source>Auto-Play</source>
        <translation>Auto-Play</translation>
    </message>
    <message>
        <source>Pla&amp;yer:</source>
        <translation>Spie&amp;ler:</translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation>Am Tisch sind keine Spieler.</translation>
    </message>
    <message>
        <source>Winning bets</source>
        <translation>Gewinnende Einsätze</translation>
    </message>
    <message>
        <source>Losing bets</source>
        <translation>Verlierende Einsätze</translation>
    </message>
    <message>
        <source>Bet amounts that pay whole</source>
        <translation>Beträge, die glatt zahlen</translation>
    </message>
    <message>
        <source>By the change</source>
        <translation>Nach dem Wechselgeld</translation>
    </message>
    <message>
        <source>Upward</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>Downward</source>
        <translation>Abwärts</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Work on come-out</source>
        <translation>Arbeiten beim Come-out</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alle wä&amp;hlen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>tessaryn::BankrollGraphScreen</name>
    <message>
        <source>Bankroll</source>
        <translation>Bankroll</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Modes, averages, colors, printing</source>
        <translation>Arten, Mittel, Farben, Druck</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Tief</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Reference line %1</source>
        <translation>Bezugslinie %1</translation>
    </message>
    <message>
        <source>Bankroll dif</source>
        <translation>Bankroll-Differenz</translation>
    </message>
    <message>
        <source>Graph up</source>
        <translation>Kurve nach oben</translation>
    </message>
    <message>
        <source>Graph down</source>
        <translation>Kurve nach unten</translation>
    </message>
    <message>
        <source>Smaller scale</source>
        <translation>Kleinerer Maßstab</translation>
    </message>
    <message>
        <source>- Scale</source>
        <translation>- Maßstab</translation>
    </message>
    <message>
        <source>Larger scale</source>
        <translation>Größerer Maßstab</translation>
    </message>
    <message>
        <source>Scale +</source>
        <translation>Maßstab +</translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation>Tempo eines Laufs</translation>
    </message>
    <message>
        <source>Start Turbo-Roll</source>
        <translation>Turbo-Roll starten</translation>
    </message>
    <message>
        <source>fast</source>
        <translation>schnell</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>langsam</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 Wurf</numerusform>
            <numerusform>%1 Würfe</numerusform>
        </translation>
    </message>
    <message>
        <source>@ %1 rolls/hr</source>
        <translation>bei %1 Würfen/Std</translation>
    </message>
    <message>
        <source>= %1 sim hrs</source>
        <translation>= %1 Sim.-Std</translation>
    </message>
    <message>
        <source>Rolls diff</source>
        <translation>Würfe-Differenz</translation>
    </message>
    <message>
        <source>Plot &amp;type</source>
        <translation>Ar&amp;t der Kurve</translation>
    </message>
    <message>
        <source>&amp;Page</source>
        <translation>&amp;Seite</translation>
    </message>
    <message>
        <source>&amp;Scroll</source>
        <translation>&amp;Laufend</translation>
    </message>
    <message>
        <source>Ad&amp;just scale</source>
        <translation>Maßstab an&amp;passen</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Von Hand</translation>
    </message>
    <message>
        <source>Auto-&amp;shift </source>
        <translation>Selbst&amp;tätig schieben </translation>
    </message>
    <message>
        <source>Auto-shift with &amp;expanding scale</source>
        <translation>Selbsttätig schieben, Maßstab &amp;wächst</translation>
    </message>
    <message>
        <source>Auto-shift with s&amp;nap-back scale</source>
        <translation>Selbsttätig schieben, Maßstab springt &amp;zurück</translation>
    </message>
    <message>
        <source>Display &amp;grid lines</source>
        <translation>&amp;Gitterlinien zeigen</translation>
    </message>
    <message>
        <source>Display &amp;reference lines</source>
        <translation>&amp;Bezugslinien zeigen</translation>
    </message>
    <message>
        <source>Display moving &amp;average</source>
        <translation>Gleiten&amp;des Mittel zeigen</translation>
    </message>
    <message>
        <source>Set &amp;moving average ...</source>
        <translation>Gleitendes &amp;Mittel einstellen ...</translation>
    </message>
    <message>
        <source>&amp;Players together</source>
        <translation>Spieler &amp;zusammen</translation>
    </message>
    <message>
        <source>Graph st&amp;yle</source>
        <translation>&amp;Linienart</translation>
    </message>
    <message>
        <source>&amp;Plain</source>
        <translation>&amp;Einfach</translation>
    </message>
    <message>
        <source>&amp;Striped</source>
        <translation>Ge&amp;streift</translation>
    </message>
    <message>
        <source>S&amp;olid</source>
        <translation>&amp;Gefüllt</translation>
    </message>
    <message>
        <source>Set &amp;color</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>&amp;Background ...</source>
        <translation>&amp;Hintergrund ...</translation>
    </message>
    <message>
        <source>&amp;Text ...</source>
        <translation>&amp;Text ...</translation>
    </message>
    <message>
        <source>&amp;Grid lines ...</source>
        <translation>&amp;Gitterlinien ...</translation>
    </message>
    <message>
        <source>&amp;Start of the session ...</source>
        <translation>&amp;Beginn der Session ...</translation>
    </message>
    <message>
        <source>Bank&amp;roll ...</source>
        <translation>Bank&amp;roll ...</translation>
    </message>
    <message>
        <source>&amp;Area under the bankroll ...</source>
        <translation>&amp;Fläche unter der Bankroll ...</translation>
    </message>
    <message>
        <source>&amp;Moving average ...</source>
        <translation>Gleitendes &amp;Mittel ...</translation>
    </message>
    <message>
        <source>Reference line &amp;1 ...</source>
        <translation>Bezugslinie &amp;1 ...</translation>
    </message>
    <message>
        <source>Reference line &amp;2 ...</source>
        <translation>Bezugslinie &amp;2 ...</translation>
    </message>
    <message>
        <source>&amp;Pointer ...</source>
        <translation>&amp;Zeiger ...</translation>
    </message>
    <message>
        <source>&amp;Default colors</source>
        <translation>&amp;Ausgangsfarben</translation>
    </message>
    <message>
        <source>Print &amp;now</source>
        <translation>&amp;Jetzt drucken</translation>
    </message>
    <message>
        <source>A&amp;uto-print</source>
        <translation>A&amp;utomatisch drucken</translation>
    </message>
    <message>
        <source>Grap&amp;hs on a page</source>
        <translation>&amp;Kurven je Seite</translation>
    </message>
    <message>
        <source>Set Auto-Roll time &amp;delay ...</source>
        <translation>Auto-&amp;Roll-Pause einstellen ...</translation>
    </message>
    <message>
        <source>Set Auto-St&amp;op ...</source>
        <translation>Auto-St&amp;opp einstellen ...</translation>
    </message>
    <message>
        <source>Show &amp;logged messages</source>
        <translation>&amp;Vermerkte Meldungen zeigen</translation>
    </message>
</context>
<context>
    <name>tessaryn::Board</name>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>The first steps aren&apos;t shown again</source>
        <translation>Die ersten Schritte werden nicht mehr gezeigt</translation>
    </message>
    <message>
        <source>ask me</source>
        <translation>fragen</translation>
    </message>
    <message>
        <source>leave the bet, take the winnings</source>
        <translation>Einsatz liegen lassen, Gewinn nehmen</translation>
    </message>
    <message>
        <source>POINT</source>
        <translation>POINT</translation>
    </message>
    <message>
        <source>COME-OUT</source>
        <translation>COME-OUT</translation>
    </message>
    <message>
        <source>Last roll</source>
        <translation>Letzter Wurf</translation>
    </message>
    <message>
        <source>When a bet wins:</source>
        <translation>Wenn ein Einsatz gewinnt:</translation>
    </message>
    <message>
        <source>Turbo-Roll</source>
        <translation>Turbo-Roll</translation>
    </message>
    <message>
        <source>Auto-Roll</source>
        <translation>Auto-Roll</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ON</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>Click an open position on the rail to add a player.</source>
        <translation>Klicken Sie auf einen freien Platz an der Rail, um einen Spieler hinzuzufügen.</translation>
    </message>
    <message>
        <source>No roll yet</source>
        <translation>Noch kein Wurf</translation>
    </message>
    <message>
        <source>LAST %1</source>
        <translation>LETZTE %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 notes:</source>
        <translation>
            <numerusform>%1 Hinweis:</numerusform>
            <numerusform>%1 Hinweise:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::CheckStackList</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Place %1 at the rail</source>
        <translation>%1 an die Rail legen</translation>
    </message>
</context>
<context>
    <name>tessaryn::CheckStackView</name>
    <message>
        <source>Value of CheckStack %1</source>
        <translation>Wert von CheckStack %1</translation>
    </message>
    <message>
        <source>Name of CheckStack %1</source>
        <translation>Name von CheckStack %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::CheckStacksScreen</name>
    <message>
        <source>CheckStacks</source>
        <translation>CheckStacks</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Undo, clipboard, deletions, the stacks on the table</source>
        <translation>Rückgängig, Zwischenablage, Löschen, die Stapel auf dem Tisch</translation>
    </message>
    <message>
        <source>On the table</source>
        <translation>Auf dem Tisch</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Und&amp;o	Ctrl+Z</source>
        <translation>&amp;Rückgängig	Ctrl+Z</translation>
    </message>
    <message>
        <source>&amp;Redo	Ctrl+Y</source>
        <translation>&amp;Wiederholen	Ctrl+Y</translation>
    </message>
    <message>
        <source>Cu&amp;t	Ctrl+X</source>
        <translation>&amp;Ausschneiden	Ctrl+X</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Kopieren	Ctrl+C</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>&amp;Einfügen	Ctrl+V</translation>
    </message>
    <message>
        <source>&amp;Delete	Del</source>
        <translation>&amp;Löschen	Del</translation>
    </message>
    <message>
        <source>Delete &amp;all</source>
        <translation>Alle&amp;s löschen</translation>
    </message>
    <message>
        <source>Delete all val&amp;ues</source>
        <translation>Alle Wer&amp;te löschen</translation>
    </message>
    <message>
        <source>Delete all &amp;names</source>
        <translation>Alle &amp;Namen löschen</translation>
    </message>
    <message>
        <source>&amp;Set visible checkstacks</source>
        <translation>Sichtbare &amp;CheckStacks wählen</translation>
    </message>
    <message>
        <source>Display &amp;zero values</source>
        <translation>N&amp;ullwerte zeigen</translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation>Schri&amp;ftgröße</translation>
    </message>
    <message>
        <source>&amp;Desktop&apos;s</source>
        <translation>Wie der &amp;Desktop</translation>
    </message>
    <message>
        <source>CheckStacks of %1</source>
        <translation>CheckStacks von %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>tessaryn::CompsPage</name>
    <message>
        <source>Total comp action</source>
        <translation>Gesamter Comp-Umsatz</translation>
    </message>
    <message>
        <source>Comp bets decided</source>
        <translation>Entschiedene Comp-Einsätze</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Würfe</translation>
    </message>
    <message>
        <source>Expected result</source>
        <translation>Erwartetes Ergebnis</translation>
    </message>
    <message>
        <source>Avg action x time</source>
        <translation>Mittlerer Umsatz x Zeit</translation>
    </message>
    <message>
        <source>Comp value</source>
        <translation>Comp-Wert</translation>
    </message>
    <message>
        <source>Comps so far</source>
        <translation>Comps bisher</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Bets figured in comps</source>
        <translation>Einsätze, die für Comps zählen</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Einsatz</translation>
    </message>
    <message>
        <source>Comps</source>
        <translation>Comps</translation>
    </message>
    <message>
        <source>Wagered</source>
        <translation>Gesetzt</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Erwartet</translation>
    </message>
    <message>
        <source>A double click or the space bar changes a bet.</source>
        <translation>Doppelklick oder Leertaste ändert einen Einsatz.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alle wählen</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Sortieren nach</translation>
    </message>
</context>
<context>
    <name>tessaryn::ConfigurationScreen</name>
    <message>
        <source>House</source>
        <translation>Haus</translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Einsätze</translation>
    </message>
    <message>
        <source>Payoffs</source>
        <translation>Auszahlungen</translation>
    </message>
    <message>
        <source>Advantage</source>
        <translation>Vorteil</translation>
    </message>
    <message>
        <source>Comps</source>
        <translation>Comps</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Tisch</translation>
    </message>
    <message>
        <source>Bankroll</source>
        <translation>Bankroll</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Probability</source>
        <translation>Wahrscheinlichkeit</translation>
    </message>
    <message>
        <source>Generator</source>
        <translation>Generator</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Misc</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Einstellungen suchen</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Reiter</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Not taken yet: %1. %2</source>
        <translation>Noch nicht übernommen: %1. %2</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Reiter</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>A double click or the space bar changes a bet. New players take this as they buy in.</source>
        <translation>Doppelklick oder Leertaste ändert einen Einsatz. Neue Spieler erhalten dies beim Einkauf.</translation>
    </message>
    <message>
        <source> - Yes</source>
        <translation> - Ja</translation>
    </message>
    <message>
        <source> - No</source>
        <translation> - Nein</translation>
    </message>
    <message>
        <source>Work on come-out roll</source>
        <translation>Beim Come-out arbeiten</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alle wählen</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Jetons</translation>
    </message>
    <message>
        <source>Restore default denominations</source>
        <translation>Ausgangswerte der Jetons wiederherstellen</translation>
    </message>
    <message>
        <source>Amount to add or subtract</source>
        <translation>Betrag zum Zu- oder Abrechnen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Zurechnen</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Abrechnen</translation>
    </message>
    <message>
        <source>Add or subtract</source>
        <translation>Zu- oder abrechnen</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation>Am Tisch sind keine Spieler.</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Stick person</source>
        <translation>Stickman</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Würfel</translation>
    </message>
    <message>
        <source>Wins</source>
        <translation>Gewinne</translation>
    </message>
    <message>
        <source>&lt; none &gt;</source>
        <translation>&lt; keine &gt;</translation>
    </message>
    <message>
        <source>Stick person 1</source>
        <translation>Stickman 1</translation>
    </message>
    <message>
        <source>&lt; random &gt;</source>
        <translation>&lt; zufällig &gt;</translation>
    </message>
    <message>
        <source>Try</source>
        <translation>Probe</translation>
    </message>
    <message>
        <source>Try: %1</source>
        <translation>Probe: %1</translation>
    </message>
    <message>
        <source>The program&apos;s sound files aren&apos;t there.</source>
        <translation>Die Klangdateien des Programms sind nicht da.</translation>
    </message>
    <message>
        <source>Rolls / hr</source>
        <translation>Würfe / Std</translation>
    </message>
    <message>
        <source>Rolls / min</source>
        <translation>Würfe / Min</translation>
    </message>
    <message>
        <source>Rolls / sec</source>
        <translation>Würfe / Sek</translation>
    </message>
    <message>
        <source>Hrs / roll</source>
        <translation>Std / Wurf</translation>
    </message>
    <message>
        <source>Mins / roll</source>
        <translation>Min / Wurf</translation>
    </message>
    <message>
        <source>Secs / roll</source>
        <translation>Sek / Wurf</translation>
    </message>
    <message>
        <source>How the rate is shown</source>
        <translation>Wie das Tempo gezeigt wird</translation>
    </message>
    <message>
        <source>Simulated roll rate</source>
        <translation>Simuliertes Wurftempo</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Grenzen</translation>
    </message>
    <message>
        <source>Odds</source>
        <translation>Odds</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Buy bets</source>
        <translation>Buy-Einsätze</translation>
    </message>
    <message>
        <source>Lay bets</source>
        <translation>Lay-Einsätze</translation>
    </message>
    <message>
        <source>Bets on the table</source>
        <translation>Einsätze auf dem Tisch</translation>
    </message>
    <message>
        <source>Stacks and amounts</source>
        <translation>Stapel und Beträge</translation>
    </message>
    <message>
        <source>New players</source>
        <translation>Neue Spieler</translation>
    </message>
    <message>
        <source>ATM</source>
        <translation>Geldautomat</translation>
    </message>
    <message>
        <source>All sounds</source>
        <translation>Alle Klänge</translation>
    </message>
    <message>
        <source>Messages to show</source>
        <translation>Gezeigte Meldungen</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Zeiger</translation>
    </message>
    <message>
        <source>Font size of the screens</source>
        <translation>Schriftgröße der Fenster</translation>
    </message>
    <message>
        <source>Dice on the table</source>
        <translation>Würfel auf dem Tisch</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Figure comps based on:</source>
        <translation>Comps berechnet nach:</translation>
    </message>
    <message>
        <source>For every new session:</source>
        <translation>Bei jeder neuen Session:</translation>
    </message>
    <message>
        <source>dollars</source>
        <translation>Dollar</translation>
    </message>
    <message>
        <source>x flat bet</source>
        <translation>x Grundeinsatz</translation>
    </message>
    <message>
        <source> Bar 12</source>
        <translation> Bar 12</translation>
    </message>
    <message>
        <source> Bar 2</source>
        <translation> Bar 2</translation>
    </message>
    <message>
        <source> Small</source>
        <translation> Klein</translation>
    </message>
    <message>
        <source> Medium</source>
        <translation> Mittel</translation>
    </message>
    <message>
        <source> Large</source>
        <translation> Groß</translation>
    </message>
    <message>
        <source>Minimum bet</source>
        <translation>Mindesteinsatz</translation>
    </message>
    <message>
        <source>Minimum prop bet</source>
        <translation>Mindesteinsatz Propositions</translation>
    </message>
    <message>
        <source>Maximum bet</source>
        <translation>Höchsteinsatz</translation>
    </message>
    <message>
        <source>Max prop bet payoff</source>
        <translation>Höchstauszahlung Propositions</translation>
    </message>
    <message>
        <source>Maximum odds bet</source>
        <translation>Höchster Odds-Einsatz</translation>
    </message>
    <message>
        <source>Odds on 4 and 10</source>
        <translation>Odds auf 4 und 10</translation>
    </message>
    <message>
        <source>Odds on 5 and 9</source>
        <translation>Odds auf 5 und 9</translation>
    </message>
    <message>
        <source>Odds on 6 and 8</source>
        <translation>Odds auf 6 und 8</translation>
    </message>
    <message>
        <source>Odds calculation</source>
        <translation>Odds-Berechnung</translation>
    </message>
    <message>
        <source>To shoot</source>
        <translation>Zum Würfeln</translation>
    </message>
    <message>
        <source>Don&apos;t side</source>
        <translation>Don&apos;t-Seite</translation>
    </message>
    <message>
        <source>Allow Put bets</source>
        <translation>Put-Einsätze erlauben</translation>
    </message>
    <message>
        <source>Return abandoned bets</source>
        <translation>Verlassene Einsätze zurückgeben</translation>
    </message>
    <message>
        <source>Vig</source>
        <translation>Vig</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Rundung</translation>
    </message>
    <message>
        <source>Buy vig</source>
        <translation>Buy-Vig</translation>
    </message>
    <message>
        <source>Lay vig</source>
        <translation>Lay-Vig</translation>
    </message>
    <message>
        <source>Big 6 and Big 8</source>
        <translation>Big 6 und Big 8</translation>
    </message>
    <message>
        <source>Midway bet</source>
        <translation>Midway-Wette</translation>
    </message>
    <message>
        <source>Special prop bets</source>
        <translation>Besondere Propositions</translation>
    </message>
    <message>
        <source>Fire bet</source>
        <translation>Fire-Wette</translation>
    </message>
    <message>
        <source>Max Fire bet</source>
        <translation>Höchste Fire-Wette</translation>
    </message>
    <message>
        <source>Auto-arrange checks</source>
        <translation>Jetons selbst ordnen</translation>
    </message>
    <message>
        <source>Use cents symbol below a dollar</source>
        <translation>Unter einem Dollar das Cent-Zeichen</translation>
    </message>
    <message>
        <source>First check</source>
        <translation>Erster Jeton</translation>
    </message>
    <message>
        <source>Second check</source>
        <translation>Zweiter Jeton</translation>
    </message>
    <message>
        <source>Third check</source>
        <translation>Dritter Jeton</translation>
    </message>
    <message>
        <source>Fourth check</source>
        <translation>Vierter Jeton</translation>
    </message>
    <message>
        <source>Fifth check</source>
        <translation>Fünfter Jeton</translation>
    </message>
    <message>
        <source>Allow negative bankroll</source>
        <translation>Negative Bankroll erlauben</translation>
    </message>
    <message>
        <source>At a new session</source>
        <translation>Bei einer neuen Session</translation>
    </message>
    <message>
        <source>New session&apos;s bankroll</source>
        <translation>Bankroll der neuen Session</translation>
    </message>
    <message>
        <source>Bankroll offered</source>
        <translation>Angebotene Bankroll</translation>
    </message>
    <message>
        <source>The ATM works</source>
        <translation>Der Geldautomat ist in Betrieb</translation>
    </message>
    <message>
        <source>Usual amount</source>
        <translation>Üblicher Betrag</translation>
    </message>
    <message>
        <source>Sounds of auto-bet scripts</source>
        <translation>Klänge von Auto-Bet-Skripten</translation>
    </message>
    <message>
        <source>Disable all sound</source>
        <translation>Alle Klänge abschalten</translation>
    </message>
    <message>
        <source>Info tips</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>Snap to the default button of a box</source>
        <translation>Zur Vorgabetaste springen</translation>
    </message>
    <message>
        <source>Print in colors</source>
        <translation>Farbig drucken</translation>
    </message>
    <message>
        <source>Use true probabilities</source>
        <translation>Wahre Wahrscheinlichkeiten verwenden</translation>
    </message>
    <message>
        <source>Comp rate</source>
        <translation>Comp-Satz</translation>
    </message>
</context>
<context>
    <name>tessaryn::EventsLogScreen</name>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Würfe</translation>
    </message>
    <message>
        <source>Rolls, passes and misses</source>
        <translation>Würfe, Passes und Misses</translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Einsätze</translation>
    </message>
    <message>
        <source>Wins and losses</source>
        <translation>Gewinne und Verluste</translation>
    </message>
    <message>
        <source>Wins</source>
        <translation>Gewinne</translation>
    </message>
    <message>
        <source>Losses</source>
        <translation>Verluste</translation>
    </message>
    <message>
        <source>Bankrolls</source>
        <translation>Bankrolls</translation>
    </message>
    <message>
        <source>CheckStacks</source>
        <translation>CheckStacks</translation>
    </message>
    <message>
        <source>Shooters and hands</source>
        <translation>Werfer und Hände</translation>
    </message>
    <message>
        <source>Sessions, players, scripts</source>
        <translation>Sessions, Spieler, Skripte</translation>
    </message>
    <message>
        <source>Lo&amp;g</source>
        <translation>Lo&amp;g</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>Speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>&amp;Look at another log ...</source>
        <translation>&amp;Anderes Log ansehen ...</translation>
    </message>
    <message>
        <source>&amp;Back to the table&apos;s log</source>
        <translation>&amp;Zurück zum Log des Tisches</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Suchen ...</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>Record &amp;events</source>
        <translation>Ereignisse auf&amp;zeichnen</translation>
    </message>
    <message>
        <source>&amp;Rolls</source>
        <translation>&amp;Würfe</translation>
    </message>
    <message>
        <source>&amp;Bet changes</source>
        <translation>&amp;Einsatzänderungen</translation>
    </message>
    <message>
        <source>Bets &amp;won</source>
        <translation>&amp;Gewonnene Einsätze</translation>
    </message>
    <message>
        <source>Bets &amp;lost</source>
        <translation>&amp;Verlorene Einsätze</translation>
    </message>
    <message>
        <source>CheckS&amp;tack changes</source>
        <translation>CheckS&amp;tack-Änderungen</translation>
    </message>
    <message>
        <source>&amp;Passes and misses</source>
        <translation>&amp;Passes und Misses</translation>
    </message>
    <message>
        <source>S&amp;hooter changes</source>
        <translation>Wechsel des Wer&amp;fers</translation>
    </message>
    <message>
        <source>Ban&amp;kroll changes</source>
        <translation>Ban&amp;kroll-Änderungen</translation>
    </message>
    <message>
        <source>Record &amp;all</source>
        <translation>&amp;Alles aufzeichnen</translation>
    </message>
    <message>
        <source>&amp;Deselect all</source>
        <translation>&amp;Nichts aufzeichnen</translation>
    </message>
    <message>
        <source>&amp;Clear log when new sessions start</source>
        <translation>&amp;Log bei neuer Session leeren</translation>
    </message>
    <message>
        <source>&amp;Scroll new rolls to the top</source>
        <translation>Neue Würfe nach &amp;oben</translation>
    </message>
    <message>
        <source>&amp;Follow the end</source>
        <translation>&amp;Dem Ende folgen</translation>
    </message>
    <message>
        <source>Fon&amp;t</source>
        <translation>Schr&amp;ift</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Fett</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>K&amp;leiner</translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation>&amp;Normal</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>&amp;Größer</translation>
    </message>
    <message>
        <source>In&amp;active</source>
        <translation>&amp;Inaktiv</translation>
    </message>
    <message>
        <source>Kind of lines shown</source>
        <translation>Art der gezeigten Zeilen</translation>
    </message>
    <message>
        <source>Player whose lines are shown</source>
        <translation>Spieler, dessen Zeilen gezeigt werden</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Suchtext</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation>Rückwärts suchen</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Halt</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Suche anhalten</translation>
    </message>
    <message>
        <source>All players</source>
        <translation>Alle Spieler</translation>
    </message>
    <message>
        <source>&amp;Active</source>
        <translation>&amp;Aktiv</translation>
    </message>
    <message>
        <source>Events are recorded</source>
        <translation>Ereignisse werden aufgezeichnet</translation>
    </message>
    <message>
        <source>Events are not recorded</source>
        <translation>Ereignisse werden nicht aufgezeichnet</translation>
    </message>
    <message>
        <source>Events Log (%1, only looked at)</source>
        <translation>Ereignis-Log (%1, nur angesehen)</translation>
    </message>
    <message>
        <source>Events Log</source>
        <translation>Ereignis-Log</translation>
    </message>
    <message>
        <source>Events Log (%1)</source>
        <translation>Ereignis-Log (%1)</translation>
    </message>
    <message>
        <source>No lines</source>
        <translation>Keine Zeilen</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Zeile %1 von %2</translation>
    </message>
    <message>
        <source>About line %1 of %2</source>
        <translation>Etwa Zeile %1 von %2</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Tessaryn Events Log</source>
        <translation>Tessaryn Ereignis-Log</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Print Events Log</source>
        <translation>Ereignis-Log drucken</translation>
    </message>
    <message>
        <source>%1 (%2% read)</source>
        <translation>%1 (%2 % gelesen)</translation>
    </message>
    <message>
        <source>Saving the log ...</source>
        <translation>Das Log wird gespeichert ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>tessaryn::EventsLogView</name>
    <message>
        <source>Lines of the Events Log</source>
        <translation>Zeilen des Ereignis-Logs</translation>
    </message>
    <message>
        <source>Line at the top</source>
        <translation>Oberste Zeile</translation>
    </message>
    <message>
        <source>Blanks to the left</source>
        <translation>Leerzeichen links</translation>
    </message>
    <message>
        <source>No such lines</source>
        <translation>Keine solchen Zeilen</translation>
    </message>
    <message>
        <source>The log is empty</source>
        <translation>Das Log ist leer</translation>
    </message>
</context>
<context>
    <name>tessaryn::FindReplaceScreen</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Replace &amp;by:</source>
        <translation>Ersetzen &amp;durch:</translation>
    </message>
    <message>
        <source>Find ne&amp;xt</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Replace &amp;all</source>
        <translation>&amp;Alle ersetzen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in the script.</source>
        <translation>&quot;%1&quot; steht nicht im Skript.</translation>
    </message>
    <message numerus="yes">
        <source>%1 replaced</source>
        <translation>
            <numerusform>%1 ersetzt</numerusform>
            <numerusform>%1 ersetzt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::GeneratorPage</name>
    <message>
        <source>Mersenne Twister, 32 bits a number, a number for each die. The usual choice.</source>
        <translation>Mersenne-Twister, 32 Bit je Zahl, eine Zahl je Würfel. Die übliche Wahl.</translation>
    </message>
    <message>
        <source>A second Mersenne Twister with a seeding of its own, a number for each die.</source>
        <translation>Ein zweiter Mersenne-Twister mit eigener Startwertbildung, eine Zahl je Würfel.</translation>
    </message>
    <message>
        <source>A plain congruence with 714,025 states: short, and good for comparing systems on poor dice. Its seeds end at 999,999.</source>
        <translation>Eine einfache Kongruenz mit 714.025 Zuständen: kurz, und gut, um Systeme mit schlechten Würfeln zu vergleichen. Ihre Startwerte enden bei 999.999.</translation>
    </message>
    <message>
        <source>One congruence whose numbers are shuffled through a table of 97.</source>
        <translation>Eine Kongruenz, deren Zahlen über eine Tafel von 97 gemischt werden.</translation>
    </message>
    <message>
        <source>Three congruences: two make the number, the third shuffles a table of 97.</source>
        <translation>Drei Kongruenzen: zwei bilden die Zahl, die dritte mischt eine Tafel von 97.</translation>
    </message>
    <message>
        <source>RNG #1 and RNG #5 by turns, a roll each.</source>
        <translation>RNG #1 und RNG #5 abwechselnd, je ein Wurf.</translation>
    </message>
    <message>
        <source>RNG #2 and RNG #4 by turns, a roll each.</source>
        <translation>RNG #2 und RNG #4 abwechselnd, je ein Wurf.</translation>
    </message>
    <message>
        <source>As RNG #1, both dice from one number.</source>
        <translation>Wie RNG #1, beide Würfel aus einer Zahl.</translation>
    </message>
    <message>
        <source>Random number generator</source>
        <translation>Zufallszahlengenerator</translation>
    </message>
    <message>
        <source>Random number &amp;generator:</source>
        <translation>Zufallszahlen&amp;generator:</translation>
    </message>
    <message>
        <source>Seed</source>
        <translation>Startwert</translation>
    </message>
    <message>
        <source> Seed normally</source>
        <translation> Normaler Startwert</translation>
    </message>
    <message>
        <source> User seed</source>
        <translation> Eigener Startwert</translation>
    </message>
    <message>
        <source>The clock gives each seed</source>
        <translation>Die Uhr gibt jeden Startwert</translation>
    </message>
    <message>
        <source>You are asked for each seed</source>
        <translation>Sie werden nach jedem Startwert gefragt</translation>
    </message>
    <message>
        <source> Re-seed new sessions</source>
        <translation> Neuer Startwert bei neuer Session</translation>
    </message>
    <message>
        <source>Seed RNG now</source>
        <translation>Startwert jetzt setzen</translation>
    </message>
    <message>
        <source>Last entered seed:</source>
        <translation>Zuletzt eingegebener Startwert:</translation>
    </message>
</context>
<context>
    <name>tessaryn::GraphView</name>
    <message>
        <source>Bankroll graph</source>
        <translation>Bankroll-Kurve</translation>
    </message>
    <message>
        <source>Roll %1:</source>
        <translation>Wurf %1:</translation>
    </message>
</context>
<context>
    <name>tessaryn::HelpWindow</name>
    <message>
        <source>en</source>
        <extracomment>The folder of the translated help pages: two small letters, as de or fr. Not a word.</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Show or hide the contents</source>
        <translation>Inhalt zeigen oder verbergen</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Kleinere Schrift</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Größere Schrift</translation>
    </message>
    <message>
        <source>Find in this page</source>
        <translation>Auf dieser Seite suchen</translation>
    </message>
    <message>
        <source>Print this page ...</source>
        <translation>Diese Seite drucken ...</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Hilfe durchsuchen</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Fundstellen</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>The one before</source>
        <translation>Die vorige</translation>
    </message>
    <message>
        <source>The next one</source>
        <translation>Die nächste</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Nothing was found for &quot;%1&quot;. Try fewer words, or the beginning of one.</source>
        <translation>Nichts gefunden zu &quot;%1&quot;. Weniger Wörter versuchen, oder nur den Anfang eines Worts.</translation>
    </message>
    <message>
        <source>The pages of the help aren&apos;t where the program is. They lie in the folder &quot;docs&quot; of its source and of its packages.</source>
        <translation>Die Hilfeseiten sind nicht dort, wo das Programm ist. Sie liegen im Ordner &quot;docs&quot; seiner Quellen und seiner Pakete.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>Nicht auf dieser Seite</translation>
    </message>
</context>
<context>
    <name>tessaryn::HotKeysScreen</name>
    <message>
        <source>Hot-Keys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Auto-Bet file</source>
        <translation>Auto-Bet-Datei</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>&amp;Taste:</translation>
    </message>
    <message>
        <source>Auto-Bet &amp;file:</source>
        <translation>Auto-Bet-&amp;Datei:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Select ...</source>
        <translation>&amp;Wählen ...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
</context>
<context>
    <name>tessaryn::HousePage</name>
    <message>
        <source>Houses</source>
        <translation>Häuser</translation>
    </message>
    <message>
        <source>What the house changes</source>
        <translation>Was das Haus ändert</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tisch</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Haus</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>&amp;Save rules as ...</source>
        <translation>&amp;Regeln speichern unter ...</translation>
    </message>
    <message>
        <source>&amp;Use this house</source>
        <translation>Dieses &amp;Haus verwenden</translation>
    </message>
    <message>
        <source>The table has these rules.</source>
        <translation>Der Tisch hat diese Regeln.</translation>
    </message>
</context>
<context>
    <name>tessaryn::JoinScreen</name>
    <message>
        <source>&amp;Join</source>
        <translation>&amp;Mitspielen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>How much would %1 like to buy-in for?</source>
        <translation>Mit wie viel möchte sich %1 einkaufen?</translation>
    </message>
</context>
<context>
    <name>tessaryn::LaboratoryScreen</name>
    <message>
        <source>Laboratory</source>
        <translation>Labor</translation>
    </message>
    <message>
        <source>Sessions played</source>
        <translation>Gespielte Sessions</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Ende</translation>
    </message>
    <message>
        <source>Ends the experiment with what is known</source>
        <translation>Beendet das Experiment mit dem, was bekannt ist</translation>
    </message>
    <message>
        <source>Comp&amp;are A</source>
        <translation>&amp;Vergleiche A</translation>
    </message>
    <message>
        <source>System A</source>
        <translation>System A</translation>
    </message>
    <message>
        <source>&amp;with B</source>
        <translation>&amp;mit B</translation>
    </message>
    <message>
        <source>System B</source>
        <translation>System B</translation>
    </message>
    <message>
        <source>Pages of the laboratory</source>
        <translation>Seiten des Labors</translation>
    </message>
    <message>
        <source>E&amp;xperiment</source>
        <translation>E&amp;xperiment</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Maße</translation>
    </message>
    <message>
        <source>Res&amp;ults</source>
        <translation>Er&amp;gebnisse</translation>
    </message>
    <message>
        <source>On the wa&amp;y</source>
        <translation>&amp;Unterwegs</translation>
    </message>
    <message>
        <source>E&amp;nds</source>
        <translation>Ausgä&amp;nge</translation>
    </message>
    <message>
        <source>All systems</source>
        <translation>Alle Systeme</translation>
    </message>
    <message>
        <source>All s&amp;ystems</source>
        <translation>A&amp;lle Systeme</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Number of the session</source>
        <translation>Nummer der Session</translation>
    </message>
    <message>
        <source>System of the session</source>
        <translation>System der Session</translation>
    </message>
    <message>
        <source>Play it at the &amp;table</source>
        <translation>Am &amp;Tisch spielen</translation>
    </message>
    <message>
        <source>Puts the session on the table in place of the game, to be watched roll by roll</source>
        <translation>Bringt die Session anstelle des Spiels an den Tisch, um sie Wurf für Wurf anzusehen</translation>
    </message>
    <message>
        <source>Re&amp;port ...</source>
        <translation>&amp;Bericht ...</translation>
    </message>
    <message>
        <source>of</source>
        <translation>von</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keines)</translation>
    </message>
    <message>
        <source>The first sessions are being played ...</source>
        <translation>Die ersten Sessions werden gespielt ...</translation>
    </message>
    <message>
        <source>What does a system bring over a whole session?</source>
        <translation>Was bringt ein System über eine ganze Session?</translation>
    </message>
    <message>
        <source>Add systems, say how sessions end, and run: each session has dice of its own, the same for every system.</source>
        <translation>Systeme hinzufügen, sagen, wie Sessions enden, und starten: jede Session hat eigene Würfel, dieselben für jedes System.</translation>
    </message>
    <message>
        <source>Pa&amp;use</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>C&amp;ontinue</source>
        <translation>F&amp;ortsetzen</translation>
    </message>
    <message>
        <source>&amp;Run %1</source>
        <translation>%1 sta&amp;rten</translation>
    </message>
    <message>
        <source>Tessaryn Laboratory</source>
        <translation>Tessaryn Labor</translation>
    </message>
    <message>
        <source>rank by</source>
        <translation>ordnen nach</translation>
    </message>
    <message>
        <source>What systems are ranked by</source>
        <translation>Wonach die Systeme geordnet werden</translation>
    </message>
    <message>
        <source>Pairs of systems</source>
        <translation>Systempaare</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Paare</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Variation</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Was gefunden wurde</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>Add a system</source>
        <translation>System hinzufügen</translation>
    </message>
    <message>
        <source>As command line</source>
        <translation>Als Befehlszeile</translation>
    </message>
    <message>
        <source>System of the sweep</source>
        <translation>System der Variation</translation>
    </message>
    <message>
        <source>Open ...</source>
        <translation>Öffnen ...</translation>
    </message>
    <message>
        <source>An experiment that was saved, here or by the command line: to look at, or to go on with</source>
        <translation>Ein Experiment, das hier oder von der Befehlszeile gespeichert wurde: zum Ansehen oder zum Fortsetzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>&amp;Experiment ...</source>
        <translation>&amp;Experiment ...</translation>
    </message>
    <message>
        <source>Sessions as &amp;CSV ...</source>
        <translation>Sessions als &amp;CSV ...</translation>
    </message>
    <message>
        <source>&amp;Sessions Log ...</source>
        <translation>&amp;Sessions-Log ...</translation>
    </message>
    <message>
        <source>Results as &amp;JSON ...</source>
        <translation>Ergebnisse als &amp;JSON ...</translation>
    </message>
    <message>
        <source>Copy as command &amp;line</source>
        <translation>Als &amp;Befehlszeile kopieren</translation>
    </message>
    <message>
        <source>Keeping every session would take %1 GB: take the mark there away, or play fewer.</source>
        <translation>Jede Session zu behalten würde %1 GB belegen: dort das Häkchen entfernen oder weniger spielen.</translation>
    </message>
    <message>
        <source>Looking, always on the same dice ...</source>
        <translation>Suche läuft, immer mit denselben Würfeln ...</translation>
    </message>
    <message>
        <source>%1 sessions for each value that is tried, seed %2.</source>
        <translation>%1 Sessions für jeden erprobten Wert, Startwert %2.</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Systeme</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Würfel</translation>
    </message>
    <message>
        <source>percentage dice, seed %1, the same for all</source>
        <translation>Prozentwürfel, Startwert %1, für alle gleich</translation>
    </message>
    <message>
        <source>RNG %1, seed %2, the same for all</source>
        <translation>RNG %1, Startwert %2, für alle gleich</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>%1 sessions in %2 s</source>
        <translation>%1 Sessions in %2 s</translation>
    </message>
    <message>
        <source>Experiment</source>
        <translation>Experiment</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Halt</translation>
    </message>
    <message>
        <source>&amp;Find it</source>
        <translation>Erm&amp;itteln</translation>
    </message>
    <message>
        <source>&amp;Go on to %1</source>
        <translation>&amp;Weiter bis %1</translation>
    </message>
    <message>
        <source>Plays more of the same experiment: four times as many sessions halve the bounds</source>
        <translation>Spielt mehr vom selben Experiment: viermal so viele Sessions halbieren den Abstand der Grenzen</translation>
    </message>
    <message>
        <source>The experiment is open without its single sessions, so there is no CSV and no Sessions Log of it: %1</source>
        <translation>Das Experiment ist ohne seine einzelnen Sessions geöffnet, daher gibt es davon weder CSV noch Sessions-Log: %1</translation>
    </message>
    <message>
        <source>Saved; it is kept up to date there from now on.</source>
        <translation>Gespeichert; ab jetzt wird es dort aktuell gehalten.</translation>
    </message>
    <message>
        <source>Saved: a line for each session and system.</source>
        <translation>Gespeichert: eine Zeile je Session und System.</translation>
    </message>
    <message>
        <source>this file is there already; choose another name</source>
        <translation>diese Datei gibt es schon; einen anderen Namen wählen</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>Saved: a Sessions Log for each system, numbered in their order.</source>
        <translation>Gespeichert: ein Sessions-Log je System, in deren Reihenfolge nummeriert.</translation>
    </message>
    <message>
        <source>There is no command line for this experiment.</source>
        <translation>Für dieses Experiment gibt es keine Befehlszeile.</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Kopiert: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::LaboratorySetup</name>
    <message>
        <source>Laboratory</source>
        <translation>Labor</translation>
    </message>
    <message>
        <source>Systems, all on the same dice</source>
        <translation>Systeme, alle mit denselben Würfeln</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Systeme</translation>
    </message>
    <message>
        <source>Add s&amp;cript ...</source>
        <translation>S&amp;kript hinzufügen ...</translation>
    </message>
    <message>
        <source>Add &amp;player&apos;s script</source>
        <translation>Skript des S&amp;pielers hinzufügen</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>En&amp;tfernen</translation>
    </message>
    <message>
        <source>Standing bets</source>
        <translation>Stehende Einsätze</translation>
    </message>
    <message>
        <source>Standing bets: passline=10, place6=12</source>
        <translation>Stehende Einsätze: passline=10, place6=12</translation>
    </message>
    <message>
        <source>Add &amp;bets</source>
        <translation>&amp;Einsätze hinzufügen</translation>
    </message>
    <message>
        <source>Stakes that CheckStacks start at</source>
        <translation>Beträge, mit denen CheckStacks beginnen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>Sessions and their ends</source>
        <translation>Sessions und ihre Enden</translation>
    </message>
    <message>
        <source>Sess&amp;ions</source>
        <translation>S&amp;essions</translation>
    </message>
    <message>
        <source>&amp;Start with $</source>
        <translation>&amp;Beginn mit $</translation>
    </message>
    <message>
        <source>Most r&amp;olls</source>
        <translation>&amp;Höchstens Würfe</translation>
    </message>
    <message>
        <source>any</source>
        <translation>beliebig</translation>
    </message>
    <message>
        <source>Most &amp;hands</source>
        <translation>Höchstens Hän&amp;de</translation>
    </message>
    <message>
        <source>&amp;Win goal $</source>
        <translation>Gewinn&amp;ziel $</translation>
    </message>
    <message>
        <source>&amp;Loss limit $</source>
        <translation>Verl&amp;ustgrenze $</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>sofort</translation>
    </message>
    <message>
        <source>after the hand</source>
        <translation>nach der Hand</translation>
    </message>
    <message>
        <source>when no contract bet is up any more</source>
        <translation>wenn kein gebundener Einsatz mehr liegt</translation>
    </message>
    <message>
        <source>&amp;Ends fall</source>
        <translation>Das Ende &amp;fällt</translation>
    </message>
    <message>
        <source>&amp;Known to ±$</source>
        <translation>&amp;Genau auf ±$</translation>
    </message>
    <message>
        <source>Stops as soon as each mean is known so well, 95% sure</source>
        <translation>Endet, sobald jeder Mittelwert so genau bekannt ist, zu 95 % sicher</translation>
    </message>
    <message>
        <source>Table and dice</source>
        <translation>Tisch und Würfel</translation>
    </message>
    <message>
        <source>See&amp;d</source>
        <translation>&amp;Startwert</translation>
    </message>
    <message>
        <source>The selected player has no script.</source>
        <translation>Der gewählte Spieler hat kein Skript.</translation>
    </message>
    <message>
        <source>There is nothing to play: add a script, or standing bets.</source>
        <translation>Es gibt nichts zu spielen: ein Skript oder stehende Einsätze hinzufügen.</translation>
    </message>
    <message>
        <source>Start with: must be from 0.01 to %1</source>
        <translation>Beginn mit: muss von 0.01 bis %1 sein</translation>
    </message>
    <message>
        <source>CheckStacks s&amp;tart at</source>
        <translation>&amp;CheckStacks beginnen mit</translation>
    </message>
    <message>
        <source>as the scripts have them; or 1=5,10,25; 2=5..50:5</source>
        <translation>wie in den Skripten; oder 1=5,10,25; 2=5..50:5</translation>
    </message>
    <message>
        <source>&amp;Vary settings</source>
        <translation>Einstellungen v&amp;ariieren</translation>
    </message>
    <message>
        <source>Settings that are varied</source>
        <translation>Variierte Einstellungen</translation>
    </message>
    <message>
        <source>none; or OddsCalcMethod=1,2,3; FieldPreset=...</source>
        <translation>keine; oder OddsCalcMethod=1,2,3; FieldPreset=...</translation>
    </message>
    <message>
        <source>Most hours</source>
        <translation>Höchstens Stunden</translation>
    </message>
    <message>
        <source>Of play, by the roll rate in the table&apos;s settings</source>
        <translation>Spielzeit, nach dem Wurftempo in den Einstellungen des Tisches</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>Kerne</translation>
    </message>
    <message>
        <source>How many play at a time; results are the same for any number</source>
        <translation>Wie viele zugleich spielen; die Ergebnisse sind bei jeder Zahl gleich</translation>
    </message>
    <message>
        <source>Other settings for all systems</source>
        <translation>Weitere Einstellungen für alle Systeme</translation>
    </message>
    <message>
        <source>other settings: SimRollRate=120; ...</source>
        <translation>weitere Einstellungen: SimRollRate=120; ...</translation>
    </message>
    <message>
        <source>Keep every session</source>
        <translation>Jede Session behalten</translation>
    </message>
    <message>
        <source>For CSV and Sessions Logs; takes 350 bytes of disk for each</source>
        <translation>Für CSV und Sessions-Logs; belegt je Session 350 Byte auf der Festplatte</translation>
    </message>
    <message>
        <source>What is asked</source>
        <translation>Was gefragt ist</translation>
    </message>
    <message>
        <source>What sessions bring</source>
        <translation>Was Sessions bringen</translation>
    </message>
    <message>
        <source>The least bankroll</source>
        <translation>Die kleinste Bankroll</translation>
    </message>
    <message>
        <source>The largest stake</source>
        <translation>Der größte Einsatz</translation>
    </message>
    <message>
        <source>Ruined at most</source>
        <translation>Höchstens ruiniert</translation>
    </message>
    <message>
        <source>CheckStack number</source>
        <translation>CheckStack-Nummer</translation>
    </message>
    <message>
        <source>The share of sessions that may be ruined</source>
        <translation>Der Anteil der Sessions, die ruiniert sein dürfen</translation>
    </message>
    <message>
        <source>Whose largest start is looked for</source>
        <translation>Dessen größter Beginn gesucht wird</translation>
    </message>
    <message>
        <source>Stakes</source>
        <translation>Beträge</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Weitere Einstellungen</translation>
    </message>
    <message>
        <source>Say how long a session may last: rolls, hands or hours.</source>
        <translation>Angeben, wie lange eine Session dauern darf: Würfe, Hände oder Stunden.</translation>
    </message>
    <message>
        <source>Rules and dice</source>
        <translation>Regeln und Würfel</translation>
    </message>
    <message>
        <source>Rules and dice of this table</source>
        <translation>Regeln und Würfel dieses Tisches</translation>
    </message>
    <message>
        <source>Rules and dice of a new table</source>
        <translation>Regeln und Würfel eines neuen Tisches</translation>
    </message>
    <message>
        <source>Rules and dice of the opened file</source>
        <translation>Regeln und Würfel der geöffneten Datei</translation>
    </message>
</context>
<context>
    <name>tessaryn::LooksPage</name>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Blaugrün</translation>
    </message>
    <message>
        <source>Burgundy</source>
        <translation>Burgunder</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Tan</source>
        <translation>Sandfarben</translation>
    </message>
    <message>
        <source>Cloth</source>
        <translation>Tuch</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tisch</translation>
    </message>
    <message>
        <source>Lettering</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Rail</source>
        <translation>Rail</translation>
    </message>
    <message>
        <source>Round the table</source>
        <translation>Um den Tisch</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Jetons</translation>
    </message>
    <message>
        <source>First check</source>
        <translation>Erster Jeton</translation>
    </message>
    <message>
        <source>Second check</source>
        <translation>Zweiter Jeton</translation>
    </message>
    <message>
        <source>Third check</source>
        <translation>Dritter Jeton</translation>
    </message>
    <message>
        <source>Fourth check</source>
        <translation>Vierter Jeton</translation>
    </message>
    <message>
        <source>Fifth check</source>
        <translation>Fünfter Jeton</translation>
    </message>
    <message>
        <source>&quot;$&quot; check</source>
        <translation>&quot;$&quot;-Jeton</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Würfel</translation>
    </message>
    <message>
        <source>First die</source>
        <translation>Erster Würfel</translation>
    </message>
    <message>
        <source>Second die</source>
        <translation>Zweiter Würfel</translation>
    </message>
    <message>
        <source>Pips</source>
        <translation>Augen</translation>
    </message>
    <message>
        <source>All as at first</source>
        <translation>Alles wie zu Beginn</translation>
    </message>
    <message>
        <source>Another color</source>
        <translation>Andere Farbe</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Struktur</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Spotlicht</translation>
    </message>
    <message>
        <source>Lettering in a font of my own</source>
        <translation>Beschriftung in eigener Schrift</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>Hell oder dunkel</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>No motion</source>
        <translation>Keine Bewegung</translation>
    </message>
    <message>
        <source>Notes in boxes</source>
        <translation>Hinweise in Fenstern</translation>
    </message>
</context>
<context>
    <name>tessaryn::LuckWindow</name>
    <message>
        <source>Luck</source>
        <translation>Glück</translation>
    </message>
    <message>
        <source>Expected: what the bets made cost or bring on average, under the rules and dice in force. Luck is what the dice gave beyond it. Price: what was given away, in percent of what was decided.</source>
        <translation>Erwartet: was die Einsätze im Mittel kosten oder bringen, nach den geltenden Regeln und Würfeln. Glück ist, was die Würfel darüber hinaus gaben. Preis: was hergegeben wurde, in Prozent des Entschiedenen.</translation>
    </message>
    <message>
        <source>Luck of the players</source>
        <translation>Glück der Spieler</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Erwartet</translation>
    </message>
    <message>
        <source>Came</source>
        <translation>Gekommen</translation>
    </message>
    <message>
        <source>Std. deviation</source>
        <translation>Std.-Abw.</translation>
    </message>
    <message>
        <source>Luck in std. dev.</source>
        <translation>Glück in Std.-Abw.</translation>
    </message>
    <message>
        <source>Decided</source>
        <translation>Entschieden</translation>
    </message>
    <message>
        <source>Price %</source>
        <translation>Preis %</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Würfe</translation>
    </message>
    <message>
        <source>Not counted</source>
        <translation>Nicht gezählt</translation>
    </message>
    <message>
        <source>Rolls with bets up that were counted, and rolls that were not: those of a Turbo-Roll are counted while this window is open.</source>
        <translation>Gezählte Würfe mit liegenden Einsätzen, und nicht gezählte: die eines Turbo-Rolls zählen, solange dieses Fenster offen ist.</translation>
    </message>
</context>
<context>
    <name>tessaryn::MainWindow</name>
    <message>
        <source>Tessaryn Turbo-Roll Stopped</source>
        <translation>Tessaryn Turbo-Roll angehalten</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Wurf %1</translation>
    </message>
    <message>
        <source>Come-out</source>
        <translation>Come-out</translation>
    </message>
    <message>
        <source>Point %1</source>
        <translation>Point %1</translation>
    </message>
    <message>
        <source>Shooter: %1</source>
        <translation>Werfer: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::MessageScreen</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>tessaryn::MovePanel</name>
    <message>
        <source>Move Table</source>
        <translation>Tisch verschieben</translation>
    </message>
    <message>
        <source>With Shift or Ctrl: to the window&apos;s border</source>
        <translation>Mit Umschalt oder Strg: bis zum Fensterrand</translation>
    </message>
    <message>
        <source>By 30 degrees; Shift 90, Ctrl 45, both 180</source>
        <translation>Um 30 Grad; Umschalt 90, Strg 45, beide 180</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Nach links</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Nach rechts</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>The table into the middle of the window</source>
        <translation>Den Tisch in die Mitte des Fensters</translation>
    </message>
    <message>
        <source>Turn clockwise</source>
        <translation>Im Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>Turn counterclockwise</source>
        <translation>Gegen den Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Shift: to the window&apos;s height; Ctrl: to its width; both: to the limit</source>
        <translation>Umschalt: auf Fensterhöhe; Strg: auf Fensterbreite; beide: bis zur Grenze</translation>
    </message>
</context>
<context>
    <name>tessaryn::NewSessionScreen</name>
    <message>
        <source>New Session</source>
        <translation>Neue Session</translation>
    </message>
    <message>
        <source>All bets are taken down and a new session starts.</source>
        <translation>Alle Einsätze werden heruntergenommen und eine neue Session beginnt.</translation>
    </message>
    <message>
        <source> Preserve dice roll file</source>
        <translation> Würfeldatei behalten</translation>
    </message>
    <message>
        <source> Rewind and playback</source>
        <translation> Zurückspulen und abspielen</translation>
    </message>
    <message>
        <source> Continue </source>
        <translation> Weiterlaufen </translation>
    </message>
    <message>
        <source> Preserve auto-bet scripts</source>
        <translation> Auto-Bet-Skripte behalten</translation>
    </message>
    <message>
        <source> Preserve previous sessions data</source>
        <translation> Daten früherer Sessions behalten</translation>
    </message>
    <message>
        <source> Preserve checkstacks</source>
        <translation> CheckStacks behalten</translation>
    </message>
    <message>
        <source> Preserve sessions logs</source>
        <translation> Sessions-Logs behalten</translation>
    </message>
</context>
<context>
    <name>tessaryn::PadGrid</name>
    <message>
        <source>Roll a %1</source>
        <translation>Eine %1 würfeln</translation>
    </message>
    <message>
        <source>Roll %1 and %2</source>
        <translation>%1 und %2 würfeln</translation>
    </message>
    <message>
        <source>First die %1</source>
        <translation>Erster Würfel %1</translation>
    </message>
    <message>
        <source>Second die %1</source>
        <translation>Zweiter Würfel %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::PayoffPage</name>
    <message>
        <source>Passline/Come (c.o.)</source>
        <translation>Pass Line/Come (c.o.)</translation>
    </message>
    <message>
        <source>Pass/Come %1</source>
        <translation>Pass/Come %1</translation>
    </message>
    <message>
        <source>Pass/Come %1 Odds</source>
        <translation>Pass/Come %1 Odds</translation>
    </message>
    <message>
        <source>Don&apos;t Pass/Come (c.o.)</source>
        <translation>Don&apos;t Pass/Come (c.o.)</translation>
    </message>
    <message>
        <source>DP/DC %1</source>
        <translation>DP/DC %1</translation>
    </message>
    <message>
        <source>DP/DC %1 Odds</source>
        <translation>DP/DC %1 Odds</translation>
    </message>
    <message>
        <source>Come-out 7</source>
        <translation>Sieben beim Come-out</translation>
    </message>
    <message>
        <source>Seven after the point</source>
        <translation>Sieben nach dem Point</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>%1 oder mehr</translation>
    </message>
    <message numerus="yes">
        <source>%1 points made</source>
        <translation>
            <numerusform>%1 Point erzielt</numerusform>
            <numerusform>%1 Points erzielt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 line wins</source>
        <translation>
            <numerusform>%1 Line-Gewinn</numerusform>
            <numerusform>%1 Line-Gewinne</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 different points</source>
        <translation>
            <numerusform>%1 verschiedener Point</numerusform>
            <numerusform>%1 verschiedene Points</numerusform>
        </translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Einsätze</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>7 Point 7</source>
        <translation>7 Point 7</translation>
    </message>
    <message>
        <source>Midway</source>
        <translation>Midway</translation>
    </message>
    <message>
        <source>Sharp Shooter</source>
        <translation>Sharp Shooter</translation>
    </message>
    <message>
        <source>Ride The Line</source>
        <translation>Ride The Line</translation>
    </message>
    <message>
        <source>Fire</source>
        <translation>Fire</translation>
    </message>
    <message>
        <source>&amp;Field w/ 2x on Two and Twelve</source>
        <translation>&amp;Field mit 2x auf Two und Twelve</translation>
    </message>
    <message>
        <source>&amp;Pass Line</source>
        <translation>&amp;Pass Line</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Pass (bar 12)</source>
        <translation>&amp;Don&apos;t Pass (Bar 12)</translation>
    </message>
    <message>
        <source>&amp;Crapless Craps Pass Line</source>
        <translation>&amp;Crapless Craps Pass Line</translation>
    </message>
    <message>
        <source>Place &amp;6</source>
        <translation>Place &amp;6</translation>
    </message>
    <message>
        <source>Place to &amp;Lose 8</source>
        <translation>Place to &amp;Lose 8</translation>
    </message>
    <message>
        <source>Buy &amp;10 (5 % vig)</source>
        <translation>Buy &amp;10 (5 % Vig)</translation>
    </message>
    <message>
        <source>Lay &amp;4 (5% vig on win only)</source>
        <translation>Lay &amp;4 (5 % Vig nur bei Gewinn)</translation>
    </message>
    <message>
        <source>H&amp;ard 8</source>
        <translation>H&amp;ard 8</translation>
    </message>
    <message>
        <source>&amp;Horn</source>
        <translation>&amp;Horn</translation>
    </message>
    <message>
        <source>&amp;World</source>
        <translation>&amp;World</translation>
    </message>
    <message>
        <source>H&amp;op 13</source>
        <translation>H&amp;op 13</translation>
    </message>
    <message>
        <source>&amp;Midway</source>
        <translation>&amp;Midway</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Einsatz</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Zahlt</translation>
    </message>
    <message>
        <source>to/for</source>
        <translation>to/for</translation>
    </message>
    <message>
        <source>Per</source>
        <translation>Je</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>to</source>
        <translation>to</translation>
    </message>
    <message>
        <source>for</source>
        <translation>for</translation>
    </message>
    <message>
        <source>not taken yet</source>
        <translation>noch nicht übernommen</translation>
    </message>
    <message>
        <source>originally %1</source>
        <translation>ursprünglich %1</translation>
    </message>
    <message>
        <source>Payoffs of</source>
        <translation>Auszahlungen von</translation>
    </message>
    <message>
        <source>Payoffs &amp;of</source>
        <translation>&amp;Auszahlungen von</translation>
    </message>
    <message>
        <source>Payoffs</source>
        <translation>Auszahlungen</translation>
    </message>
    <message>
        <source>Enter goes from number to number; t and f write the word between them.</source>
        <translation>Enter geht von Zahl zu Zahl; t und f schreiben das Wort dazwischen.</translation>
    </message>
    <message>
        <source>&amp;Set Field payoffs to</source>
        <translation>&amp;Field-Auszahlungen auf</translation>
    </message>
    <message>
        <source>&amp;Restore default payoffs</source>
        <translation>Ausgangswerte &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>Payoff of %1</source>
        <translation>Auszahlung von %1</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Bet or outcome</source>
        <translation>Einsatz oder Ergebnis</translation>
    </message>
</context>
<context>
    <name>tessaryn::PercentageDiceWindow</name>
    <message>
        <source>Percentage Dice</source>
        <translation>Prozentwürfel</translation>
    </message>
    <message>
        <source>Die 1 \ Die 2</source>
        <translation>Würfel 1 \ Würfel 2</translation>
    </message>
    <message>
        <source>Die 2</source>
        <translation>Würfel 2</translation>
    </message>
    <message>
        <source>Die 1</source>
        <translation>Würfel 1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Probability</source>
        <translation>Wahrscheinlichkeit</translation>
    </message>
    <message>
        <source>Probability file: %1</source>
        <translation>Wahrscheinlichkeitsdatei: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::PermissionsScreen</name>
    <message>
        <source>Auto-Bet Permissions</source>
        <translation>Auto-Bet-Rechte</translation>
    </message>
    <message>
        <source>%1&apos;s script may:</source>
        <translation>Das Skript von %1 darf:</translation>
    </message>
    <message>
        <source>act for &amp;other players</source>
        <translation>für &amp;andere Spieler handeln</translation>
    </message>
    <message>
        <source>start new &amp;sessions</source>
        <translation>neue &amp;Sessions beginnen</translation>
    </message>
    <message>
        <source>activate and deactivate &amp;probability files and dice roll files</source>
        <translation>&amp;Wahrscheinlichkeits- und Würfeldateien ein- und ausschalten</translation>
    </message>
</context>
<context>
    <name>tessaryn::PlayerChoice</name>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
</context>
<context>
    <name>tessaryn::ProbabilityPage</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>Speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Lock or unlock the cell	L</source>
        <translation>Feld &amp;sperren oder freigeben	L</translation>
    </message>
    <message>
        <source>&amp;Shooter&apos;s effectiveness ...</source>
        <translation>Wirksamkeit &amp;des Werfers ...</translation>
    </message>
    <message>
        <source>Ready &amp;dice</source>
        <translation>Fertige &amp;Würfel</translation>
    </message>
    <message>
        <source>E&amp;ven Out</source>
        <translation>&amp;Ausgleichen</translation>
    </message>
    <message>
        <source>Keeps this cell&apos;s value; what isn&apos;t locked shares the rest equally</source>
        <translation>Behält den Wert dieses Felds; was nicht gesperrt ist, teilt sich den Rest gleich</translation>
    </message>
    <message>
        <source>Nothing is free to share the rest.</source>
        <translation>Es ist nichts frei, um den Rest zu teilen.</translation>
    </message>
    <message>
        <source>&amp;Unlock All</source>
        <translation>Alle &amp;freigeben</translation>
    </message>
    <message>
        <source>Percentage dice in use</source>
        <translation>Prozentwürfel im Spiel</translation>
    </message>
    <message>
        <source>Number of rolls</source>
        <translation>Anzahl Würfe</translation>
    </message>
    <message>
        <source>%1: %2%, fair dice %3%</source>
        <translation>%1: %2 %, faire Würfel %3 %</translation>
    </message>
    <message>
        <source>. Locked: L unlocks it.</source>
        <translation>. Gesperrt: L gibt es frei.</translation>
    </message>
    <message>
        <source>. Type a value, L locks.</source>
        <translation>. Wert eingeben, L sperrt.</translation>
    </message>
    <message>
        <source>Nothing is free to take up the difference: the cell keeps its value.</source>
        <translation>Es ist nichts frei, um den Unterschied aufzunehmen: das Feld behält seinen Wert.</translation>
    </message>
</context>
<context>
    <name>tessaryn::ProbabilityTable</name>
    <message>
        <source>Probabilities of the dice</source>
        <translation>Wahrscheinlichkeiten der Würfel</translation>
    </message>
</context>
<context>
    <name>tessaryn::RollFilesWindow</name>
    <message>
        <source>&amp;New / Open ...</source>
        <translation>&amp;Neu / Öffnen ...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Copy To &amp;Roll File ...</source>
        <translation>In &amp;Würfeldatei kopieren ...</translation>
    </message>
    <message>
        <source>Copy To &amp;Text File ...</source>
        <translation>In &amp;Textdatei kopieren ...</translation>
    </message>
    <message>
        <source>Paste &amp;From Roll File ...</source>
        <translation>Aus Würfeldatei &amp;einfügen ...</translation>
    </message>
    <message>
        <source>Paste From Te&amp;xt File ...</source>
        <translation>Aus Te&amp;xtdatei einfügen ...</translation>
    </message>
    <message>
        <source>&amp;Print ...</source>
        <translation>&amp;Drucken ...</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>A&amp;usschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alle wä&amp;hlen</translation>
    </message>
    <message>
        <source>Dice Roll Files</source>
        <translation>Würfeldateien</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Highlight</source>
        <translation>&amp;Hervorheben</translation>
    </message>
    <message>
        <source>Font &amp;size</source>
        <translation>Schrift&amp;größe</translation>
    </message>
    <message>
        <source>&amp;As the screen</source>
        <translation>&amp;Wie das Fenster</translation>
    </message>
    <message>
        <source>Entering rolls, and their distribution</source>
        <translation>Eingabe von Würfen, und ihre Verteilung</translation>
    </message>
    <message>
        <source>Enter %1 and %2</source>
        <translation>%1 und %2 eingeben</translation>
    </message>
    <message>
        <source>Enters %1 and %2. In the list: type %1%2</source>
        <translation>Gibt %1 und %2 ein. In der Liste: %1%2 tippen</translation>
    </message>
    <message>
        <source> Type over</source>
        <translation> Überschreiben</translation>
    </message>
    <message>
        <source> Insert</source>
        <translation> Einfügen</translation>
    </message>
    <message>
        <source>Ran&amp;dom</source>
        <translation>&amp;Zufällig</translation>
    </message>
    <message>
        <source>&amp;Output format:</source>
        <translation>Ausgabe&amp;format:</translation>
    </message>
    <message>
        <source>Roll#, Die1, Die2 and Total stand for the values; all else is copied as it is</source>
        <translation>Roll#, Die1, Die2 und Total stehen für die Werte; alles andere wird so kopiert, wie es ist</translation>
    </message>
    <message>
        <source>■ Off</source>
        <translation>■ Aus</translation>
    </message>
    <message>
        <source>● Record</source>
        <translation>● Aufnahme</translation>
    </message>
    <message>
        <source>▶ Playback</source>
        <translation>▶ Wiedergabe</translation>
    </message>
    <message>
        <source>Recorder off</source>
        <translation>Rekorder aus</translation>
    </message>
    <message>
        <source>Record the game&apos;s rolls</source>
        <translation>Die Würfe des Spiels aufzeichnen</translation>
    </message>
    <message>
        <source>Play the file&apos;s rolls</source>
        <translation>Die Würfe der Datei abspielen</translation>
    </message>
    <message>
        <source>Next roll &amp;is roll #</source>
        <translation>Nächster &amp;Wurf ist Nr.</translation>
    </message>
    <message>
        <source>No file open</source>
        <translation>Keine Datei offen</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 Wurf</numerusform>
            <numerusform>%1 Würfe</numerusform>
        </translation>
    </message>
    <message>
        <source>Roll 12, 3 and 4: %1</source>
        <translation>Wurf 12, 3 und 4: %1</translation>
    </message>
    <message>
        <source>No die and no total in it</source>
        <translation>Weder Würfel noch Summe darin</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls counted ...</source>
        <translation>
            <numerusform>%1 Wurf gezählt ...</numerusform>
            <numerusform>%1 Würfe gezählt ...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %1 rolls</source>
        <translation>
            <numerusform>Nur %1 Wurf</numerusform>
            <numerusform>Alle %1 Würfe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 selected rolls</source>
        <translation>
            <numerusform>%1 ausgewählter Wurf</numerusform>
            <numerusform>Die %1 ausgewählten Würfe</numerusform>
        </translation>
    </message>
    <message>
        <source>Print Dice Rolls</source>
        <translation>Würfe drucken</translation>
    </message>
    <message>
        <source>Roll file:  %1</source>
        <translation>Würfeldatei:  %1</translation>
    </message>
    <message>
        <source>Rolls: %1</source>
        <translation>Würfe: %1</translation>
    </message>
    <message>
        <source>Number of rolls to be printed: %1</source>
        <translation>Anzahl zu druckender Würfe: %1</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, %2 ausgewählt</translation>
    </message>
    <message>
        <source>%1 · % · hatched: fair</source>
        <translation>%1 · % · schraffiert: fair</translation>
    </message>
</context>
<context>
    <name>tessaryn::RollList</name>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Nichts</translation>
    </message>
    <message>
        <source>&amp;Sevens</source>
        <translation>&amp;Siebener</translation>
    </message>
    <message>
        <source>&amp;Craps: 2, 3 and 12</source>
        <translation>&amp;Craps: 2, 3 und 12</translation>
    </message>
    <message>
        <source>&amp;Point numbers</source>
        <translation>&amp;Point-Zahlen</translation>
    </message>
    <message>
        <source>Si&amp;x and eight</source>
        <translation>Se&amp;chs und Acht</translation>
    </message>
    <message>
        <source>P&amp;airs</source>
        <translation>P&amp;asche</translation>
    </message>
    <message>
        <source>First roll shown</source>
        <translation>Erster gezeigter Wurf</translation>
    </message>
    <message>
        <source>No dice roll file is open.
File, New or Open begins.</source>
        <translation>Keine Würfeldatei ist offen.
Datei, Neu oder Öffnen beginnt.</translation>
    </message>
    <message>
        <source>end of file</source>
        <translation>Dateiende</translation>
    </message>
    <message>
        <source>No dice roll file is open</source>
        <translation>Keine Würfeldatei ist offen</translation>
    </message>
    <message>
        <source>Dice rolls, next roll %1 of %2</source>
        <translation>Würfe, nächster Wurf %1 von %2</translation>
    </message>
    <message>
        <source>%1, rolls %2 to %3 selected</source>
        <translation>%1, Würfe %2 bis %3 ausgewählt</translation>
    </message>
</context>
<context>
    <name>tessaryn::RollPad</name>
    <message>
        <source>&amp;Random Roll</source>
        <translation>&amp;Zufallswurf</translation>
    </message>
    <message>
        <source>Roll Your Own Numbers</source>
        <translation>Eigene Zahlen würfeln</translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation>Tempo eines Laufs</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Wurf %1</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Verbergen</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <translation>&amp;Anzeige</translation>
    </message>
    <message>
        <source>Roll &amp;counter</source>
        <translation>Wurf&amp;zähler</translation>
    </message>
    <message>
        <source>&amp;Turbo-Roll button</source>
        <translation>&amp;Turbo-Roll-Taste</translation>
    </message>
    <message>
        <source>&amp;Random button</source>
        <translation>&amp;Zufallstaste</translation>
    </message>
    <message>
        <source>Set Auto-Roll t&amp;ime delay ...</source>
        <translation>Auto-Roll-&amp;Pause einstellen ...</translation>
    </message>
    <message>
        <source>Set Auto-&amp;Stop ...</source>
        <translation>Auto-&amp;Stopp einstellen ...</translation>
    </message>
</context>
<context>
    <name>tessaryn::RunControls</name>
    <message>
        <source>R&amp;oll</source>
        <translation>&amp;Wurf</translation>
    </message>
    <message>
        <source>Pass dice</source>
        <translation>Weitergeben</translation>
    </message>
    <message>
        <source>Roll the dice (F2, or right click on the table)</source>
        <translation>Würfeln (F2 oder Rechtsklick auf den Tisch)</translation>
    </message>
    <message>
        <source>Pass the dice (P)</source>
        <translation>Die Würfel weitergeben (P)</translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation>Tempo eines Laufs</translation>
    </message>
    <message>
        <source>How fast a run goes: full speed on the left, Auto-Roll on the right</source>
        <translation>Wie schnell ein Lauf ist: links volles Tempo, rechts Auto-Roll</translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsHistogram</name>
    <message>
        <source># S e s s i o n s</source>
        <translation>A n z a h l   S e s s i o n s</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>Mittel</translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions</source>
        <translation>
            <numerusform>%1 Session</numerusform>
            <numerusform>%1 Sessions</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3, %4% at or below</source>
        <translation>%1 bis %2: %3, %4 % bis hierher</translation>
    </message>
    <message>
        <source>No sessions</source>
        <translation>Keine Sessions</translation>
    </message>
    <message>
        <source>Histogram of the sessions</source>
        <translation>Histogramm der Sessions</translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsLogScreen</name>
    <message>
        <source>Lo&amp;g</source>
        <translation>Lo&amp;g</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>N&amp;ew (all players)</source>
        <translation>N&amp;eu (alle Spieler)</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>Speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>&amp;Merge ...</source>
        <translation>&amp;Zusammenführen ...</translation>
    </message>
    <message>
        <source>&amp;Delete ...</source>
        <translation>&amp;Löschen ...</translation>
    </message>
    <message>
        <source>Delete a&amp;ll ...</source>
        <translation>&amp;Alle löschen ...</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Suchen ...</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>Set &amp;break-point ...</source>
        <translation>&amp;Grenzwert setzen ...</translation>
    </message>
    <message>
        <source>Graph bar &amp;width</source>
        <translation>&amp;Balkenbreite</translation>
    </message>
    <message>
        <source>&amp;Fine</source>
        <translation>&amp;Fein</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation>&amp;Mittel</translation>
    </message>
    <message>
        <source>&amp;Wide</source>
        <translation>&amp;Breit</translation>
    </message>
    <message>
        <source>&amp;Extra wide</source>
        <translation>&amp;Sehr breit</translation>
    </message>
    <message>
        <source>&amp;Normal curve</source>
        <translation>&amp;Normalkurve</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Maß</translation>
    </message>
    <message>
        <source> Histogram</source>
        <translation> Histogramm</translation>
    </message>
    <message>
        <source> Data</source>
        <translation> Daten</translation>
    </message>
    <message>
        <source>How much of the log has been read</source>
        <translation>Wie viel des Logs gelesen ist</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Net $</source>
        <translation>Netto $</translation>
    </message>
    <message>
        <source>Handle $</source>
        <translation>Umsatz $</translation>
    </message>
    <message>
        <source>Advantage %</source>
        <translation>Vorteil %</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>Gewonnen</translation>
    </message>
    <message>
        <source>Broke-even</source>
        <translation>Ausgeglichen</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>These sessions take part</source>
        <translation>Diese Sessions zählen</translation>
    </message>
    <message>
        <source>Leave out outliers</source>
        <translation>Ausreißer weglassen</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>standard deviations</source>
        <translation>Standardabweichungen</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Deviations</source>
        <translation>Abweichungen</translation>
    </message>
    <message>
        <source>Lowest value that takes part</source>
        <translation>Kleinster Wert, der zählt</translation>
    </message>
    <message>
        <source>Highest value that takes part</source>
        <translation>Größter Wert, der zählt</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>From, to</source>
        <translation>Von, bis</translation>
    </message>
    <message>
        <source>Searching ...</source>
        <translation>Suche läuft ...</translation>
    </message>
    <message>
        <source>The figures are not of this choice: the calculation was cancelled.</source>
        <translation>Die Zahlen sind nicht die dieser Wahl: die Berechnung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The statistics could not be calculated.</source>
        <translation>Die Statistik konnte nicht berechnet werden.</translation>
    </message>
    <message>
        <source>&amp;Calculate</source>
        <translation>&amp;Berechnen</translation>
    </message>
    <message>
        <source>no player</source>
        <translation>kein Spieler</translation>
    </message>
    <message>
        <source>Sessions Log (%1)</source>
        <translation>Sessions-Log (%1)</translation>
    </message>
    <message>
        <source>Near the middle one of the values, which is not known</source>
        <translation>Nahe der Mitte; welcher der Werte, ist nicht bekannt</translation>
    </message>
    <message>
        <source>Break-point: %1</source>
        <translation>Grenzwert: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions</source>
        <translation>
            <numerusform>%1 Session</numerusform>
            <numerusform>%1 Sessions</numerusform>
        </translation>
    </message>
    <message>
        <source>Statistic</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Tessaryn Sessions Log</source>
        <translation>Tessaryn Sessions-Log</translation>
    </message>
    <message>
        <source>Player:  %1</source>
        <translation>Spieler:  %1</translation>
    </message>
    <message>
        <source>Log:  %1</source>
        <translation>Log:  %1</translation>
    </message>
    <message>
        <source>Values from %1 to %2</source>
        <translation>Werte von %1 bis %2</translation>
    </message>
    <message>
        <source>Print Sessions Log Raw Data</source>
        <translation>Rohdaten des Sessions-Logs drucken</translation>
    </message>
    <message>
        <source>Print Sessions Log</source>
        <translation>Sessions-Log drucken</translation>
    </message>
    <message>
        <source>Number of sessions: %1</source>
        <translation>Anzahl Sessions: %1</translation>
    </message>
    <message>
        <source>Number of pages: %1</source>
        <translation>Anzahl Seiten: %1</translation>
    </message>
    <message>
        <source>Saving the log ...</source>
        <translation>Das Log wird gespeichert ...</translation>
    </message>
    <message>
        <source>Merging the logs ...</source>
        <translation>Die Logs werden zusammengeführt ...</translation>
    </message>
    <message>
        <source>Deleting sessions ...</source>
        <translation>Sessions werden gelöscht ...</translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsRows</name>
    <message>
        <source>Sessions</source>
        <translation>Sessions</translation>
    </message>
    <message>
        <source>Session at the top</source>
        <translation>Oberste Session</translation>
    </message>
    <message>
        <source>Session #</source>
        <translation>Session Nr.</translation>
    </message>
    <message>
        <source># Rolls</source>
        <translation>Anz. Würfe</translation>
    </message>
    <message>
        <source>Include</source>
        <translation>Zählen</translation>
    </message>
    <message>
        <source>Standard Deviations</source>
        <translation>Standardabweichungen</translation>
    </message>
    <message>
        <source>No sessions</source>
        <translation>Keine Sessions</translation>
    </message>
</context>
<context>
    <name>tessaryn::SettleBetScreen</name>
    <message>
        <source>&amp;Take Bet and Winnings</source>
        <translation>Einsatz und Gewinn &amp;nehmen</translation>
    </message>
    <message>
        <source>&amp;Same Bet - Take Winnings</source>
        <translation>&amp;Gleicher Einsatz - Gewinn nehmen</translation>
    </message>
    <message>
        <source>Press 1 &amp;Unit - Add $%1 to Bet</source>
        <translation>Erhöhen um 1 &amp;Einheit - $%1 zum Einsatz</translation>
    </message>
    <message>
        <source>Press - Add Winnings to &amp;Double Bet</source>
        <translation>Erhöhen - &amp;Doppelt mit dem Gewinn</translation>
    </message>
    <message>
        <source>Parlay - Add &amp;All Winnings to Bet</source>
        <translation>Parlay - &amp;Allen Gewinn zum Einsatz</translation>
    </message>
    <message>
        <source>Sa&amp;me Bet:</source>
        <translation>Gleicher Einsat&amp;z:</translation>
    </message>
    <message>
        <source>&amp;Bet:</source>
        <translation>E&amp;insatz:</translation>
    </message>
    <message>
        <source>&amp;No Bet/Take Remainder (if any)</source>
        <translation>Kein Einsatz/&amp;Rest nehmen (falls vorhanden)</translation>
    </message>
    <message>
        <source>&amp;Same Bet</source>
        <translation>&amp;Gleicher Einsatz</translation>
    </message>
    <message>
        <source>Bet &amp;Remainder (if any)</source>
        <translation>Rest &amp;setzen (falls vorhanden)</translation>
    </message>
    <message>
        <source>Same Bet Plus 1 &amp;Unit - Add $%1 to Bet</source>
        <translation>Gleicher Einsatz plus 1 &amp;Einheit - $%1 zum Einsatz</translation>
    </message>
    <message>
        <source>&amp;Double Bet</source>
        <translation>&amp;Doppelter Einsatz</translation>
    </message>
    <message>
        <source>Half of the bet wins:</source>
        <translation>Die Hälfte des Einsatzes gewinnt:</translation>
    </message>
    <message>
        <source>Half of the bet loses:</source>
        <translation>Die Hälfte des Einsatzes verliert:</translation>
    </message>
    <message>
        <source>A quarter of the bet wins:</source>
        <translation>Ein Viertel des Einsatzes gewinnt:</translation>
    </message>
    <message>
        <source>Three quarters of the bet lose:</source>
        <translation>Drei Viertel des Einsatzes verlieren:</translation>
    </message>
    <message>
        <source>A fifth of the bet wins:</source>
        <translation>Ein Fünftel des Einsatzes gewinnt:</translation>
    </message>
    <message>
        <source>Four fifths of the bet lose:</source>
        <translation>Vier Fünftel des Einsatzes verlieren:</translation>
    </message>
    <message>
        <source>Points made:</source>
        <translation>Erzielte Points:</translation>
    </message>
    <message>
        <source>Line wins:</source>
        <translation>Line-Gewinne:</translation>
    </message>
    <message>
        <source>Different points made:</source>
        <translation>Verschiedene erzielte Points:</translation>
    </message>
    <message>
        <source>Payoff at %1 for %2:</source>
        <translation>Auszahlung %1 for %2:</translation>
    </message>
    <message>
        <source>Payoff at %1 to %2:</source>
        <translation>Auszahlung %1 to %2:</translation>
    </message>
    <message>
        <source>Bet:</source>
        <translation>Einsatz:</translation>
    </message>
    <message>
        <source>Bet lost:</source>
        <translation>Verlorener Einsatz:</translation>
    </message>
    <message>
        <source>%1% vig:</source>
        <translation>%1 % Vig:</translation>
    </message>
    <message>
        <source>Net payoff:</source>
        <translation>Auszahlung netto:</translation>
    </message>
    <message>
        <source>Net loss:</source>
        <translation>Verlust netto:</translation>
    </message>
    <message>
        <source>Net payoff (rounded):</source>
        <translation>Auszahlung netto (gerundet):</translation>
    </message>
    <message>
        <source>Net loss (rounded):</source>
        <translation>Verlust netto (gerundet):</translation>
    </message>
    <message>
        <source>ODDS OFF</source>
        <translation>ODDS OFF</translation>
    </message>
    <message>
        <source>WINNER</source>
        <translation>GEWINNER</translation>
    </message>
    <message>
        <source>LOSER</source>
        <translation>VERLIERER</translation>
    </message>
    <message>
        <source>%1, bet %2</source>
        <translation>%1, Einsatz %2</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>The odds weren&apos;t working: nothing was won or lost.</source>
        <translation>Die Odds arbeiteten nicht: nichts wurde gewonnen oder verloren.</translation>
    </message>
    <message>
        <source>This bet is over. It comes down with every choice.</source>
        <translation>Dieser Einsatz ist beendet. Er kommt mit jeder Wahl herunter.</translation>
    </message>
    <message>
        <source>The same &amp;for the rest of this roll</source>
        <translation>Für den &amp;Rest dieses Wurfs ebenso</translation>
    </message>
    <message>
        <source>All other winners of this roll are treated alike</source>
        <translation>Alle anderen Gewinner dieses Wurfs werden ebenso behandelt</translation>
    </message>
    <message>
        <source>All other losers of this roll are treated alike</source>
        <translation>Alle anderen Verlierer dieses Wurfs werden ebenso behandelt</translation>
    </message>
    <message>
        <source>Don&apos;t as&amp;k again (Auto-Play, F3)</source>
        <translation>Nicht mehr &amp;fragen (Auto-Play, F3)</translation>
    </message>
    <message>
        <source>Becomes the player&apos;s choice on the Auto-Play screen</source>
        <translation>Wird zur Wahl des Spielers im Fenster Auto-Play</translation>
    </message>
</context>
<context>
    <name>tessaryn::SettleSheet</name>
    <message>
        <source>the point is set</source>
        <translation>der Point ist gesetzt</translation>
    </message>
    <message>
        <source>a natural</source>
        <translation>ein Natural</translation>
    </message>
    <message>
        <source>craps</source>
        <translation>Craps</translation>
    </message>
    <message>
        <source>seven-out</source>
        <translation>Seven-out</translation>
    </message>
    <message>
        <source>point made</source>
        <translation>Point erzielt</translation>
    </message>
    <message>
        <source>the point stays %1</source>
        <translation>der Point bleibt %1</translation>
    </message>
    <message>
        <source>Settle the roll</source>
        <translation>Wurf abrechnen</translation>
    </message>
    <message>
        <source>Roll %1: %2, %3</source>
        <translation>Wurf %1: %2, %3</translation>
    </message>
    <message>
        <source>Decided bets</source>
        <translation>Entschiedene Einsätze</translation>
    </message>
    <message>
        <source>%1 lost %2</source>
        <translation>%1 verliert %2</translation>
    </message>
    <message>
        <source>%1 won %2</source>
        <translation>%1 gewinnt %2</translation>
    </message>
    <message>
        <source>WINNER</source>
        <translation>GEWINNER</translation>
    </message>
    <message>
        <source>This bet is over. It comes down with every choice.</source>
        <translation>Dieser Einsatz ist beendet. Er kommt mit jeder Wahl herunter.</translation>
    </message>
    <message>
        <source>The odds weren&apos;t working: nothing was won or lost.</source>
        <translation>Die Odds arbeiteten nicht: nichts wurde gewonnen oder verloren.</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>Don&apos;t as&amp;k again: keep these choices (Auto-Play, F3)</source>
        <translation>Nicht mehr &amp;fragen: diese Wahl behalten (Auto-Play, F3)</translation>
    </message>
    <message>
        <source>Each player&apos;s first winner and first loser here become the choices of Auto-Play</source>
        <translation>Erster Gewinner und erster Verlierer jedes Spielers hier werden zur Wahl von Auto-Play</translation>
    </message>
    <message>
        <source>One &amp;at a time</source>
        <translation>&amp;Einzeln</translation>
    </message>
    <message>
        <source>All &amp;same</source>
        <translation>Alle &amp;gleich</translation>
    </message>
    <message>
        <source>The first winner&apos;s choice for all winners, the first loser&apos;s for all losers</source>
        <translation>Die Wahl des ersten Gewinners für alle Gewinner, die des ersten Verlierers für alle Verlierer</translation>
    </message>
    <message>
        <source>&amp;Done (Enter)</source>
        <translation>Fe&amp;rtig (Enter)</translation>
    </message>
    <message>
        <source>Bets decided: %1</source>
        <translation>Entschiedene Einsätze: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::SortChoice</name>
    <message>
        <source>Sort by</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>Table order</source>
        <translation>Folge des Tisches</translation>
    </message>
</context>
<context>
    <name>tessaryn::TableWidget</name>
    <message>
        <source>Craps table</source>
        <translation>Craps-Tisch</translation>
    </message>
    <message>
        <source>Bet amount</source>
        <translation>Einsatzbetrag</translation>
    </message>
</context>
<context>
    <name>tessaryn::ToolDock</name>
    <message>
        <source>Print, copy, place</source>
        <translation>Drucken, Kopieren, Platz</translation>
    </message>
    <message>
        <source>A window of its own</source>
        <translation>Eigenes Fenster</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>tessaryn::TurboPanel</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Halt</translation>
    </message>
    <message>
        <source>Turbo-Roll Active</source>
        <translation>Turbo-Roll läuft</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Würfe</translation>
    </message>
    <message>
        <source>Rolls a second</source>
        <translation>Würfe je Sekunde</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopEditor</name>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>%1  %2%</source>
        <translation>%1  %2 %</translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopSteps</name>
    <message>
        <source>&amp;Wait after each statement</source>
        <translation>Nach jeder Anweisung &amp;warten</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nächste</translation>
    </message>
    <message>
        <source>&amp;Go on</source>
        <translation>Weiter&amp;laufen</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>A&amp;nhalten</translation>
    </message>
    <message>
        <source>Statements carried out</source>
        <translation>Ausgeführte Anweisungen</translation>
    </message>
    <message>
        <source>Auto-Bet Steps</source>
        <translation>Auto-Bet-Schritte</translation>
    </message>
    <message>
        <source>Auto-Bet Steps (%1)</source>
        <translation>Auto-Bet-Schritte (%1)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Values: %1</source>
        <translation>Werte: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopTrial</name>
    <message>
        <source>Try it</source>
        <translation>Ausprobieren</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Würfe</translation>
    </message>
    <message>
        <source>rolls</source>
        <translation>Würfe</translation>
    </message>
    <message>
        <source>Tr&amp;y it</source>
        <translation>Auspr&amp;obieren</translation>
    </message>
    <message>
        <source>Same &amp;dice again</source>
        <translation>&amp;Dieselben Würfel noch einmal</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>The script runs on a copy of the table; the game stays as it is.</source>
        <translation>Das Skript läuft auf einer Kopie des Tisches; das Spiel bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>Bets of the trial</source>
        <translation>Einsätze der Probe</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Einsatz</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>Gewonnen</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Netto</translation>
    </message>
    <message>
        <source>Net %</source>
        <translation>Netto %</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>A&amp;nhalten</translation>
    </message>
    <message>
        <source>%1 of %2 bet</source>
        <translation>%1 von %2 gesetzt</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls in %2 s</source>
        <translation>
            <numerusform>%1 Wurf in %2 s</numerusform>
            <numerusform>%1 Würfe in %2 s</numerusform>
        </translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message numerus="yes">
        <source>%1 (line %2, %3 times)</source>
        <translation>
            <numerusform>%1 (Zeile %2, %3-mal)</numerusform>
            <numerusform>%1 (Zeile %2, %3-mal)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Run before: %1, %2 rolls</source>
        <translation>
            <numerusform>Lauf davor: %1, %2 Wurf</numerusform>
            <numerusform>Lauf davor: %1, %2 Würfe</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopWatch</name>
    <message>
        <source>Watch</source>
        <translation>Beobachten</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Zuvor</translation>
    </message>
    <message>
        <source>Add a name</source>
        <translation>Namen hinzufügen</translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopWindow</name>
    <message>
        <source>Logic</source>
        <translation>Logik</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>Modifiers</source>
        <translation>Bestimmungen</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>Sa&amp;mples</source>
        <translation>&amp;Beispiele</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;as ...</source>
        <translation>Speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>&amp;Print in colours ...</source>
        <translation>Farbig &amp;drucken ...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Suchen ...</translation>
    </message>
    <message>
        <source>&amp;Replace ...</source>
        <translation>&amp;Ersetzen ...</translation>
    </message>
    <message>
        <source>&amp;Copy to</source>
        <translation>&amp;Kopieren zu</translation>
    </message>
    <message>
        <source>&amp;Paste from</source>
        <translation>Ein&amp;fügen von</translation>
    </message>
    <message>
        <source>&amp;Words that go on</source>
        <translation>&amp;Wörter, die weiterführen</translation>
    </message>
    <message>
        <source>P&amp;ut in the proposal</source>
        <translation>&amp;Vorschlag einsetzen</translation>
    </message>
    <message>
        <source>&amp;Meaning of the word</source>
        <translation>&amp;Bedeutung des Worts</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Ausführen</translation>
    </message>
    <message>
        <source>&amp;Check script</source>
        <translation>Skript &amp;prüfen</translation>
    </message>
    <message>
        <source>&amp;Activate all scripts</source>
        <translation>&amp;Alle Skripte einschalten</translation>
    </message>
    <message>
        <source>Run &amp;one cycle</source>
        <translation>Einen &amp;Zyklus ausführen</translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <translation>&amp;Schritt</translation>
    </message>
    <message>
        <source>Run to the c&amp;ursor</source>
        <translation>Bis zum &amp;Cursor laufen</translation>
    </message>
    <message>
        <source>&amp;Break-point</source>
        <translation>&amp;Haltepunkt</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>A&amp;nhalten</translation>
    </message>
    <message>
        <source>Tr&amp;y it</source>
        <translation>Auspr&amp;obieren</translation>
    </message>
    <message>
        <source>&amp;Permissions ...</source>
        <translation>&amp;Rechte ...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;nsicht</translation>
    </message>
    <message>
        <source>Show &amp;steps</source>
        <translation>&amp;Schritte zeigen</translation>
    </message>
    <message>
        <source>&amp;Line numbers</source>
        <translation>&amp;Zeilennummern</translation>
    </message>
    <message>
        <source>Lists of &amp;words</source>
        <translation>&amp;Wortlisten</translation>
    </message>
    <message>
        <source>&amp;Auto-indent</source>
        <translation>&amp;Automatisch einrücken</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Jetzt: %1</translation>
    </message>
    <message>
        <source>P&amp;layer:</source>
        <translation>S&amp;pieler:</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>A&amp;ctive</source>
        <translation>A&amp;ktiv</translation>
    </message>
    <message>
        <source>Check Script</source>
        <translation>Skript prüfen</translation>
    </message>
    <message>
        <source>Run one cycle</source>
        <translation>Einen Zyklus ausführen</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Below the script</source>
        <translation>Unter dem Skript</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>Logged bets</source>
        <translation>Vermerkte Einsätze</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Words of the language</source>
        <translation>Wörter der Sprache</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Wort</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>Log &amp;my bets</source>
        <translation>&amp;Meine Einsätze vermerken</translation>
    </message>
    <message>
        <source>When they are made</source>
        <translation>Wenn sie gemacht werden</translation>
    </message>
    <message>
        <source>As they stand</source>
        <translation>Wie sie stehen</translation>
    </message>
    <message>
        <source>On the come-out</source>
        <translation>Beim Come-out</translation>
    </message>
    <message>
        <source>After a point</source>
        <translation>Nach einem Point</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Save ...</source>
        <translation>Speichern ...</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 Fehler</translation>
    </message>
    <message>
        <source>Auto-Bet</source>
        <translation>Auto-Bet</translation>
    </message>
    <message>
        <source>Nobody is at the table</source>
        <translation>Niemand ist am Tisch</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>unbenannt</translation>
    </message>
    <message>
        <source>Auto-Bet - %1 - %2</source>
        <translation>Auto-Bet - %1 - %2</translation>
    </message>
    <message>
        <source>%1, not saved</source>
        <translation>%1, nicht gespeichert</translation>
    </message>
    <message>
        <source>may act for other players</source>
        <translation>darf für andere Spieler handeln</translation>
    </message>
    <message>
        <source>may start sessions</source>
        <translation>darf Sessions beginnen</translation>
    </message>
    <message>
        <source>may use files of dice</source>
        <translation>darf Würfeldateien benutzen</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Anweisung</translation>
    </message>
    <message>
        <source>&amp;File ...</source>
        <translation>&amp;Datei ...</translation>
    </message>
    <message>
        <source>Ctrl+. puts in &quot;%1&quot;</source>
        <translation>Strg+. setzt &quot;%1&quot; ein</translation>
    </message>
    <message>
        <source>Problems (1)</source>
        <translation>Probleme (1)</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>Zu&amp;letzt benutzt</translation>
    </message>
    <message>
        <source>&amp;Counts of the lines</source>
        <translation>Zä&amp;hler der Zeilen</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Noch keine</translation>
    </message>
</context>
</TS>
