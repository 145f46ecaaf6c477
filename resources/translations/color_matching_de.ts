<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Color Matching</source>
        <translation>Farbangleichung</translation>
    </message>
    <message>
        <source>Colors are &amp;matched</source>
        <translation>&amp;Farben angleichen</translation>
    </message>
    <message>
        <source>Where the colors are matched to the printer</source>
        <translation>Wo die Farben an den Drucker angeglichen werden</translation>
    </message>
    <message>
        <source>As the printer is set up</source>
        <translation>Wie am Drucker eingestellt</translation>
    </message>
    <message>
        <source>Colors should be matched to the printer exactly once: by the program that sends the picture, if it knows the printer’s profile, or else by the printer.</source>
        <translation>Farben sollten genau einmal an den Drucker angeglichen werden: vom Programm, das das Bild sendet, wenn es das Druckerprofil kennt, sonst vom Drucker.</translation>
    </message>
    <message>
        <source>AP_ColorMatchingMode</source>
        <translation>Farbangleichung</translation>
    </message>
    <message>
        <source>By the Application</source>
        <translation>Durch das Programm</translation>
    </message>
    <message>
        <source>By the Printer</source>
        <translation>Durch den Drucker</translation>
    </message>
</context>
</TS>
