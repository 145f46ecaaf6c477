<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Sharpness</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>&amp;Sharpen the pictures</source>
        <translation>Bilder &amp;schärfen</translation>
    </message>
    <message>
        <source>R&amp;adius</source>
        <translation>R&amp;adius</translation>
    </message>
    <message>
        <source>&amp;Intensity</source>
        <translation>&amp;Intensität</translation>
    </message>
    <message>
        <source>Fine detail</source>
        <translation>Feine Details</translation>
    </message>
    <message>
        <source>Broad edges</source>
        <translation>Breite Kanten</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Stark</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Standardwerte</translation>
    </message>
    <message>
        <source>The radius says how far from an edge the sharpening reaches, in printer dots; the intensity says how strong it is. Small prints and fine papers want a small radius.</source>
        <translation>Der Radius sagt, wie weit die Schärfung um eine Kante reicht, in Druckpunkten; die Intensität sagt, wie stark sie ist. Kleine Bilder und feine Papiere brauchen einen kleinen Radius.</translation>
    </message>
    <message>
        <source>Sharpening radius</source>
        <translation>Schärferadius</translation>
    </message>
    <message>
        <source>Sharpening intensity</source>
        <translation>Schärfeintensität</translation>
    </message>
    <message>
        <source>Sharpening radius, in printer dots</source>
        <translation>Schärferadius in Druckpunkten</translation>
    </message>
    <message>
        <source>Reduce the radius by one</source>
        <translation>Radius um eins verkleinern</translation>
    </message>
    <message>
        <source>Increase the radius by one</source>
        <translation>Radius um eins vergrößern</translation>
    </message>
    <message>
        <source>Reduce the intensity by one</source>
        <translation>Intensität um eins verkleinern</translation>
    </message>
    <message>
        <source>Increase the intensity by one</source>
        <translation>Intensität um eins vergrößern</translation>
    </message>
    <message>
        <source>SharpnessEnabled</source>
        <translation>Schärfung</translation>
    </message>
    <message>
        <source>SharpnessRadius</source>
        <translation>Schärferadius</translation>
    </message>
    <message>
        <source>SharpnessIntensity</source>
        <translation>Schärfeintensität</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
</TS>
