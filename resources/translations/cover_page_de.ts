<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Cover Page</source>
        <translation>Deckblatt</translation>
    </message>
    <message>
        <source>This printer prints no cover page, because a page of job details would use up a sheet of photo paper.</source>
        <translation>Dieser Drucker druckt kein Deckblatt, weil eine Seite mit Auftragsdaten ein Blatt Fotopapier verbrauchen würde.</translation>
    </message>
    <message>
        <source>AP_CoverPage</source>
        <translation>Deckblatt</translation>
    </message>
</context>
</TS>
