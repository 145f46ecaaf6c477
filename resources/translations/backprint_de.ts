<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Backprint</source>
        <translation>Rückseitendruck</translation>
    </message>
    <message>
        <source>Enter up to two lines of text to appear on the back side of the picture.</source>
        <translation>Geben Sie bis zu zwei Zeilen Text für die Rückseite des Bildes ein.</translation>
    </message>
    <message>
        <source>Line &amp;1</source>
        <translation>Zeile &amp;1</translation>
    </message>
    <message>
        <source>Line &amp;2</source>
        <translation>Zeile &amp;2</translation>
    </message>
    <message>
        <source>Print the first line</source>
        <translation>Erste Zeile drucken</translation>
    </message>
    <message>
        <source>Print the second line</source>
        <translation>Zweite Zeile drucken</translation>
    </message>
    <message>
        <source>Text of the first line</source>
        <translation>Text der ersten Zeile</translation>
    </message>
    <message>
        <source>Text of the second line</source>
        <translation>Text der zweiten Zeile</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>P&amp;laceholder</source>
        <translation>&amp;Platzhalter</translation>
    </message>
    <message>
        <source>Placeholder to insert</source>
        <translation>Einzufügender Platzhalter</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>E&amp;infügen</translation>
    </message>
    <message>
        <source>Insert the placeholder at the cursor</source>
        <translation>Platzhalter an der Schreibmarke einfügen</translation>
    </message>
    <message>
        <source>The printer replaces each placeholder when it prints the picture.</source>
        <translation>Der Drucker ersetzt jeden Platzhalter, wenn er das Bild druckt.</translation>
    </message>
    <message>
        <source>So long a line is printed in very small letters.</source>
        <translation>Eine so lange Zeile wird in sehr kleiner Schrift gedruckt.</translation>
    </message>
    <message>
        <source>Nothing is printed on the back.</source>
        <translation>Auf die Rückseite wird nichts gedruckt.</translation>
    </message>
    <message>
        <source>Preview of the back of the picture</source>
        <translation>Vorschau der Bildrückseite</translation>
    </message>
    <message>
        <source>Keep a &amp;diagnostic log</source>
        <translation>Dia&amp;gnoseprotokoll führen</translation>
    </message>
    <message>
        <source>[YYYY]</source>
        <translation>Jahr (vierstellig)</translation>
    </message>
    <message>
        <source>[YY]</source>
        <translation>Jahr (zweistellig)</translation>
    </message>
    <message>
        <source>[DD]</source>
        <translation>Tag (zweistellig)</translation>
    </message>
    <message>
        <source>[D]</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>[MM]</source>
        <translation>Monat (zweistellig)</translation>
    </message>
    <message>
        <source>[M]</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>[C]</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>[F]</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>[P]</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>[U]</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>CVP1</source>
        <translation>Rückseitentext, Zeile 1</translation>
    </message>
    <message>
        <source>CVP2</source>
        <translation>Rückseitentext, Zeile 2</translation>
    </message>
    <message>
        <source>EnableCVP1</source>
        <translation>Rückseitenzeile 1 drucken</translation>
    </message>
    <message>
        <source>EnableCVP2</source>
        <translation>Rückseitenzeile 2 drucken</translation>
    </message>
    <message>
        <source>DebugLog</source>
        <translation>Diagnoseprotokoll</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
</TS>
