<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Color Adjustments</source>
        <translation>Farbanpassung</translation>
    </message>
    <message>
        <source>&amp;Adjust the colors</source>
        <translation>Farben &amp;anpassen</translation>
    </message>
    <message>
        <source>Color balance</source>
        <translation>Farbbalance</translation>
    </message>
    <message>
        <source>Tone and saturation</source>
        <translation>Tonwerte und Sättigung</translation>
    </message>
    <message>
        <source>Re&amp;d</source>
        <translation>Ro&amp;t</translation>
    </message>
    <message>
        <source>Gr&amp;een</source>
        <translation>&amp;Grün</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translation>&amp;Blau</translation>
    </message>
    <message>
        <source>Brig&amp;htness</source>
        <translation>&amp;Helligkeit</translation>
    </message>
    <message>
        <source>&amp;Contrast</source>
        <translation>&amp;Kontrast</translation>
    </message>
    <message>
        <source>Sa&amp;turation</source>
        <translation>Sättig&amp;ung</translation>
    </message>
    <message>
        <source>Ga&amp;mma</source>
        <translation>Ga&amp;mma</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>The mark behind each slider is the value that changes nothing. The adjustments go with the print; the photo itself stays as it is.</source>
        <translation>Die Marke hinter jedem Regler ist der Wert, der nichts ändert. Die Anpassungen gelten nur für den Druck; das Foto selbst bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>AdjustmentsEnabled</source>
        <translation>Farbanpassung</translation>
    </message>
    <message>
        <source>Reduce red by one</source>
        <translation>Rot um eins verringern</translation>
    </message>
    <message>
        <source>Increase red by one</source>
        <translation>Rot um eins erhöhen</translation>
    </message>
    <message>
        <source>Reduce green by one</source>
        <translation>Grün um eins verringern</translation>
    </message>
    <message>
        <source>Increase green by one</source>
        <translation>Grün um eins erhöhen</translation>
    </message>
    <message>
        <source>Reduce blue by one</source>
        <translation>Blau um eins verringern</translation>
    </message>
    <message>
        <source>Increase blue by one</source>
        <translation>Blau um eins erhöhen</translation>
    </message>
    <message>
        <source>Reduce brightness by one</source>
        <translation>Helligkeit um eins verringern</translation>
    </message>
    <message>
        <source>Increase brightness by one</source>
        <translation>Helligkeit um eins erhöhen</translation>
    </message>
    <message>
        <source>Reduce contrast by one</source>
        <translation>Kontrast um eins verringern</translation>
    </message>
    <message>
        <source>Increase contrast by one</source>
        <translation>Kontrast um eins erhöhen</translation>
    </message>
    <message>
        <source>Reduce saturation by one</source>
        <translation>Sättigung um eins verringern</translation>
    </message>
    <message>
        <source>Increase saturation by one</source>
        <translation>Sättigung um eins erhöhen</translation>
    </message>
    <message>
        <source>Reduce gamma by one</source>
        <translation>Gamma um eins verringern</translation>
    </message>
    <message>
        <source>Increase gamma by one</source>
        <translation>Gamma um eins erhöhen</translation>
    </message>
</context>
</TS>
