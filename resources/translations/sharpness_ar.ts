<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Sharpness</source>
        <translation>الحدة</translation>
    </message>
    <message>
        <source>&amp;Sharpen the pictures</source>
        <translation>زيادة حدة الصور (&amp;S)</translation>
    </message>
    <message>
        <source>R&amp;adius</source>
        <translation>نصف القطر (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Intensity</source>
        <translation>الشدة (&amp;I)</translation>
    </message>
    <message>
        <source>Fine detail</source>
        <translation>تفاصيل دقيقة</translation>
    </message>
    <message>
        <source>Broad edges</source>
        <translation>حواف عريضة</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>قوية</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>استعادة الافتراضي</translation>
    </message>
    <message>
        <source>The radius says how far from an edge the sharpening reaches, in printer dots; the intensity says how strong it is. Small prints and fine papers want a small radius.</source>
        <translation>يبيّن نصف القطر مدى وصول زيادة الحدة حول الحافة بنقاط الطابعة؛ وتبيّن الشدة قوتها. تناسب المطبوعات الصغيرة والورق الدقيق نصف قطر صغير.</translation>
    </message>
    <message>
        <source>Sharpening radius</source>
        <translation>نصف قطر زيادة الحدة</translation>
    </message>
    <message>
        <source>Sharpening intensity</source>
        <translation>شدة زيادة الحدة</translation>
    </message>
    <message>
        <source>Sharpening radius, in printer dots</source>
        <translation>نصف قطر زيادة الحدة، بنقاط الطابعة</translation>
    </message>
    <message>
        <source>Reduce the radius by one</source>
        <translation>إنقاص نصف القطر بواحد</translation>
    </message>
    <message>
        <source>Increase the radius by one</source>
        <translation>زيادة نصف القطر بواحد</translation>
    </message>
    <message>
        <source>Reduce the intensity by one</source>
        <translation>إنقاص الشدة بواحد</translation>
    </message>
    <message>
        <source>Increase the intensity by one</source>
        <translation>زيادة الشدة بواحد</translation>
    </message>
    <message>
        <source>SharpnessEnabled</source>
        <translation>زيادة الحدة</translation>
    </message>
    <message>
        <source>SharpnessRadius</source>
        <translation>نصف قطر زيادة الحدة</translation>
    </message>
    <message>
        <source>SharpnessIntensity</source>
        <translation>شدة زيادة الحدة</translation>
    </message>
    <message>
        <source>On</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>إيقاف</translation>
    </message>
</context>
</TS>
