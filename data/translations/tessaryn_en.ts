<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Board</name>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 roll</numerusform>
            <numerusform>%1 rolls</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 points made</source>
        <translation>
            <numerusform>%1 point made</numerusform>
            <numerusform>%1 points made</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Laboratory</name>
    <message numerus="yes">
        <source>at most %1 rolls</source>
        <translation>
            <numerusform>at most %1 roll</numerusform>
            <numerusform>at most %1 rolls</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %1 hands</source>
        <translation>
            <numerusform>at most %1 hand</numerusform>
            <numerusform>at most %1 hands</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions each, %2.</source>
        <translation>
            <numerusform>%1 session each, %2.</numerusform>
            <numerusform>%1 sessions each, %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions (%2)</source>
        <translation>
            <numerusform>%1 session (%2)</numerusform>
            <numerusform>%1 sessions (%2)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>At the table: session %1 of %2, %3 rolls to %4</source>
        <translation>
            <numerusform>At the table: session %1 of %2, %3 roll to %4</numerusform>
            <numerusform>At the table: session %1 of %2, %3 rolls to %4</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Plates</name>
    <message numerus="yes">
        <source>%1 Bets:</source>
        <translation>
            <numerusform>%1 Bet:</numerusform>
            <numerusform>%1 Bets:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message numerus="yes">
        <source>%1 players selected</source>
        <translation>
            <numerusform>%1 player selected</numerusform>
            <numerusform>%1 players selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RollChart</name>
    <message numerus="yes">
        <source>%1 values are no rolls</source>
        <translation>
            <numerusform>%1 value is no roll</numerusform>
            <numerusform>%1 values are no rolls</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::BankrollGraphScreen</name>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 roll</numerusform>
            <numerusform>%1 rolls</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::Board</name>
    <message numerus="yes">
        <source>%1 notes:</source>
        <translation>
            <numerusform>%1 note:</numerusform>
            <numerusform>%1 notes:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::FindReplaceScreen</name>
    <message numerus="yes">
        <source>%1 replaced</source>
        <translation>
            <numerusform>%1 replaced</numerusform>
            <numerusform>%1 replaced</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::PayoffPage</name>
    <message numerus="yes">
        <source>%1 points made</source>
        <translation>
            <numerusform>%1 point made</numerusform>
            <numerusform>%1 points made</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 line wins</source>
        <translation>
            <numerusform>%1 line win</numerusform>
            <numerusform>%1 line wins</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 different points</source>
        <translation>
            <numerusform>%1 different point</numerusform>
            <numerusform>%1 different points</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::RollFilesWindow</name>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 roll</numerusform>
            <numerusform>%1 rolls</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls counted ...</source>
        <translation>
            <numerusform>%1 roll counted ...</numerusform>
            <numerusform>%1 rolls counted ...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %1 rolls</source>
        <translation>
            <numerusform>The only roll: %1</numerusform>
            <numerusform>All %1 rolls</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 selected rolls</source>
        <translation>
            <numerusform>The %1 selected roll</numerusform>
            <numerusform>The %1 selected rolls</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsHistogram</name>
    <message numerus="yes">
        <source>%1 sessions</source>
        <translation>
            <numerusform>%1 session</numerusform>
            <numerusform>%1 sessions</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsLogScreen</name>
    <message numerus="yes">
        <source>%1 sessions</source>
        <translation>
            <numerusform>%1 session</numerusform>
            <numerusform>%1 sessions</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopTrial</name>
    <message numerus="yes">
        <source>%1 rolls in %2 s</source>
        <translation>
            <numerusform>%1 roll in %2 s</numerusform>
            <numerusform>%1 rolls in %2 s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (line %2, %3 times)</source>
        <translation>
            <numerusform>%1 (line %2, %3 time)</numerusform>
            <numerusform>%1 (line %2, %3 times)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Run before: %1, %2 rolls</source>
        <translation>
            <numerusform>Run before: %1, %2 roll</numerusform>
            <numerusform>Run before: %1, %2 rolls</numerusform>
        </translation>
    </message>
</context>
</TS>
