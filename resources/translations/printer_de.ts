<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>4 x 6 in (102 x 152 mm)</source>
        <translation>4 x 6 Zoll (102 x 152 mm)</translation>
    </message>
    <message>
        <source>4 x 6 in, borderless</source>
        <translation>4 x 6 Zoll, randlos</translation>
    </message>
    <message>
        <source>5 x 7 in (127 x 178 mm)</source>
        <translation>5 x 7 Zoll (127 x 178 mm)</translation>
    </message>
    <message>
        <source>8 x 10 in (203 x 254 mm)</source>
        <translation>8 x 10 Zoll (203 x 254 mm)</translation>
    </message>
    <message>
        <source>Postcard (100 x 148 mm)</source>
        <translation>Postkarte (100 x 148 mm)</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>US-Letter</translation>
    </message>
    <message>
        <source>Roll 127 x 88.9 mm</source>
        <translation>Rolle 127 x 88.9 mm</translation>
    </message>
    <message>
        <source>Roll 127 x 127 mm</source>
        <translation>Rolle 127 x 127 mm</translation>
    </message>
    <message>
        <source>Roll 127 x 177.8 mm</source>
        <translation>Rolle 127 x 177.8 mm</translation>
    </message>
    <message>
        <source>Roll 152.4 x 101.6 mm</source>
        <translation>Rolle 152.4 x 101.6 mm</translation>
    </message>
    <message>
        <source>Roll 152.4 x 152.4 mm</source>
        <translation>Rolle 152.4 x 152.4 mm</translation>
    </message>
    <message>
        <source>Roll 152.4 x 203.2 mm</source>
        <translation>Rolle 152.4 x 203.2 mm</translation>
    </message>
    <message>
        <source>Roll 203.2 x 152.4 mm</source>
        <translation>Rolle 203.2 x 152.4 mm</translation>
    </message>
    <message>
        <source>Roll 203.2 x 254 mm</source>
        <translation>Rolle 203.2 x 254 mm</translation>
    </message>
    <message>
        <source>Roll 203.2 x 304.8 mm</source>
        <translation>Rolle 203.2 x 304.8 mm</translation>
    </message>
    <message>
        <source>Roll 210 x 148 mm</source>
        <translation>Rolle 210 x 148 mm</translation>
    </message>
    <message>
        <source>Roll 210 x 297 mm</source>
        <translation>Rolle 210 x 297 mm</translation>
    </message>
    <message>
        <source>Roll 254 x 203.2 mm</source>
        <translation>Rolle 254 x 203.2 mm</translation>
    </message>
    <message>
        <source>Roll 254 x 304.8 mm</source>
        <translation>Rolle 254 x 304.8 mm</translation>
    </message>
    <message>
        <source>Roll 254 x 381 mm</source>
        <translation>Rolle 254 x 381 mm</translation>
    </message>
    <message>
        <source>Roll 304.8 x 203.2 mm</source>
        <translation>Rolle 304.8 x 203.2 mm</translation>
    </message>
    <message>
        <source>Roll 304.8 x 304.8 mm</source>
        <translation>Rolle 304.8 x 304.8 mm</translation>
    </message>
    <message>
        <source>Roll 304.8 x 457.2 mm</source>
        <translation>Rolle 304.8 x 457.2 mm</translation>
    </message>
    <message>
        <source>As Loaded</source>
        <translation>Wie eingelegt</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Graustufen</translation>
    </message>
</context>
</TS>
