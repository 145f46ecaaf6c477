<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>SharpnessEnabled</source>
        <translation>Sharpening</translation>
    </message>
    <message>
        <source>SharpnessRadius</source>
        <translation>Sharpening radius</translation>
    </message>
    <message>
        <source>SharpnessIntensity</source>
        <translation>Sharpening intensity</translation>
    </message>
</context>
</TS>
