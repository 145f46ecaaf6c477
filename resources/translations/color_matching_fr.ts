<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Color Matching</source>
        <translation>Correspondance des couleurs</translation>
    </message>
    <message>
        <source>Colors are &amp;matched</source>
        <translation>Couleurs &amp;adaptées</translation>
    </message>
    <message>
        <source>Where the colors are matched to the printer</source>
        <translation>Où les couleurs sont adaptées à l’imprimante</translation>
    </message>
    <message>
        <source>As the printer is set up</source>
        <translation>Selon le réglage de l’imprimante</translation>
    </message>
    <message>
        <source>Colors should be matched to the printer exactly once: by the program that sends the picture, if it knows the printer’s profile, or else by the printer.</source>
        <translation>Les couleurs ne doivent être adaptées à l’imprimante qu’une seule fois : par le programme qui envoie l’image s’il connaît le profil de l’imprimante, sinon par l’imprimante.</translation>
    </message>
    <message>
        <source>AP_ColorMatchingMode</source>
        <translation>Correspondance des couleurs</translation>
    </message>
    <message>
        <source>By the Application</source>
        <translation>Par l’application</translation>
    </message>
    <message>
        <source>By the Printer</source>
        <translation>Par l’imprimante</translation>
    </message>
</context>
</TS>
