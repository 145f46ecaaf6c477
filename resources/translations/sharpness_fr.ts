<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Sharpness</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>&amp;Sharpen the pictures</source>
        <translation>Rendre les images plus &amp;nettes</translation>
    </message>
    <message>
        <source>R&amp;adius</source>
        <translation>R&amp;ayon</translation>
    </message>
    <message>
        <source>&amp;Intensity</source>
        <translation>&amp;Intensité</translation>
    </message>
    <message>
        <source>Fine detail</source>
        <translation>Détails fins</translation>
    </message>
    <message>
        <source>Broad edges</source>
        <translation>Contours larges</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Forte</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Valeurs par défaut</translation>
    </message>
    <message>
        <source>The radius says how far from an edge the sharpening reaches, in printer dots; the intensity says how strong it is. Small prints and fine papers want a small radius.</source>
        <translation>Le rayon indique jusqu’où la netteté s’étend autour d’un contour, en points d’impression ; l’intensité indique sa force. Les petits tirages et les papiers fins demandent un petit rayon.</translation>
    </message>
    <message>
        <source>Sharpening radius</source>
        <translation>Rayon de netteté</translation>
    </message>
    <message>
        <source>Sharpening intensity</source>
        <translation>Intensité de netteté</translation>
    </message>
    <message>
        <source>Sharpening radius, in printer dots</source>
        <translation>Rayon de netteté, en points d’impression</translation>
    </message>
    <message>
        <source>Reduce the radius by one</source>
        <translation>Diminuer le rayon de un</translation>
    </message>
    <message>
        <source>Increase the radius by one</source>
        <translation>Augmenter le rayon de un</translation>
    </message>
    <message>
        <source>Reduce the intensity by one</source>
        <translation>Diminuer l’intensité de un</translation>
    </message>
    <message>
        <source>Increase the intensity by one</source>
        <translation>Augmenter l’intensité de un</translation>
    </message>
    <message>
        <source>SharpnessEnabled</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>SharpnessRadius</source>
        <translation>Rayon de netteté</translation>
    </message>
    <message>
        <source>SharpnessIntensity</source>
        <translation>Intensité de netteté</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
</context>
</TS>
