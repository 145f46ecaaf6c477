<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Format du papier</translation>
    </message>
    <message>
        <source>4 x 6 in (102 x 152 mm)</source>
        <translation>4 x 6 po (102 x 152 mm)</translation>
    </message>
    <message>
        <source>4 x 6 in, borderless</source>
        <translation>4 x 6 po, sans bords</translation>
    </message>
    <message>
        <source>5 x 7 in (127 x 178 mm)</source>
        <translation>5 x 7 po (127 x 178 mm)</translation>
    </message>
    <message>
        <source>8 x 10 in (203 x 254 mm)</source>
        <translation>8 x 10 po (203 x 254 mm)</translation>
    </message>
    <message>
        <source>Postcard (100 x 148 mm)</source>
        <translation>Carte postale (100 x 148 mm)</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>Lettre US</translation>
    </message>
    <message>
        <source>Roll 127 x 88.9 mm</source>
        <translation>Rouleau 127 x 88.9 mm</translation>
    </message>
    <message>
        <source>Roll 127 x 127 mm</source>
        <translation>Rouleau 127 x 127 mm</translation>
    </message>
    <message>
        <source>Roll 127 x 177.8 mm</source>
        <translation>Rouleau 127 x 177.8 mm</translation>
    </message>
    <message>
        <source>Roll 152.4 x 101.6 mm</source>
        <translation>Rouleau 152.4 x 101.6 mm</translation>
    </message>
    <message>
        <source>Roll 152.4 x 152.4 mm</source>
        <translation>Rouleau 152.4 x 152.4 mm</translation>
    </message>
    <message>
        <source>Roll 152.4 x 203.2 mm</source>
        <translation>Rouleau 152.4 x 203.2 mm</translation>
    </message>
    <message>
        <source>Roll 203.2 x 152.4 mm</source>
        <translation>Rouleau 203.2 x 152.4 mm</translation>
    </message>
    <message>
        <source>Roll 203.2 x 254 mm</source>
        <translation>Rouleau 203.2 x 254 mm</translation>
    </message>
    <message>
        <source>Roll 203.2 x 304.8 mm</source>
        <translation>Rouleau 203.2 x 304.8 mm</translation>
    </message>
    <message>
        <source>Roll 210 x 148 mm</source>
        <translation>Rouleau 210 x 148 mm</translation>
    </message>
    <message>
        <source>Roll 210 x 297 mm</source>
        <translation>Rouleau 210 x 297 mm</translation>
    </message>
    <message>
        <source>Roll 254 x 203.2 mm</source>
        <translation>Rouleau 254 x 203.2 mm</translation>
    </message>
    <message>
        <source>Roll 254 x 304.8 mm</source>
        <translation>Rouleau 254 x 304.8 mm</translation>
    </message>
    <message>
        <source>Roll 254 x 381 mm</source>
        <translation>Rouleau 254 x 381 mm</translation>
    </message>
    <message>
        <source>Roll 304.8 x 203.2 mm</source>
        <translation>Rouleau 304.8 x 203.2 mm</translation>
    </message>
    <message>
        <source>Roll 304.8 x 304.8 mm</source>
        <translation>Rouleau 304.8 x 304.8 mm</translation>
    </message>
    <message>
        <source>Roll 304.8 x 457.2 mm</source>
        <translation>Rouleau 304.8 x 457.2 mm</translation>
    </message>
    <message>
        <source>As Loaded</source>
        <translation>Papier chargé</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Niveaux de gris</translation>
    </message>
</context>
</TS>
