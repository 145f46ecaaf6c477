<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Color Matching</source>
        <translation>مطابقة الألوان</translation>
    </message>
    <message>
        <source>Colors are &amp;matched</source>
        <translation>مطابقة الألوان (&amp;M)</translation>
    </message>
    <message>
        <source>Where the colors are matched to the printer</source>
        <translation>أين تُطابَق الألوان مع الطابعة</translation>
    </message>
    <message>
        <source>As the printer is set up</source>
        <translation>كما ضُبطت الطابعة</translation>
    </message>
    <message>
        <source>Colors should be matched to the printer exactly once: by the program that sends the picture, if it knows the printer’s profile, or else by the printer.</source>
        <translation>ينبغي أن تُطابَق الألوان مع الطابعة مرة واحدة فقط: في البرنامج الذي يرسل الصورة إن كان يعرف ملف تعريف الطابعة، وإلا ففي الطابعة.</translation>
    </message>
    <message>
        <source>AP_ColorMatchingMode</source>
        <translation>مطابقة الألوان</translation>
    </message>
    <message>
        <source>By the Application</source>
        <translation>في التطبيق</translation>
    </message>
    <message>
        <source>By the Printer</source>
        <translation>في الطابعة</translation>
    </message>
</context>
</TS>
