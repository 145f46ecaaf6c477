<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PaperFeed</source>
        <translation>Paper feed</translation>
    </message>
    <message>
        <source>PaperName</source>
        <translation>Sheet paper</translation>
    </message>
    <message>
        <source>PaperWidth</source>
        <translation>Roll width</translation>
    </message>
    <message>
        <source>PaperSurface</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>PaperTone</source>
        <translation>Tone</translation>
    </message>
    <message>
        <source>BindingMargin</source>
        <translation>Binding margin</translation>
    </message>
    <message>
        <source>BindingWidth</source>
        <translation>Width of the binding margin</translation>
    </message>
    <message>
        <source>ResizeOption</source>
        <translation>Picture size</translation>
    </message>
    <message>
        <source>TwoSided</source>
        <translation>Two-sided printing</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Duplex unit</translation>
    </message>
    <message>
        <source>HalvernLastResolution</source>
        <translation>Last resolution</translation>
    </message>
</context>
</TS>
