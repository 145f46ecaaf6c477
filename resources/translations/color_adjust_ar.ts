<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Color Adjustments</source>
        <translation>ضبط الألوان</translation>
    </message>
    <message>
        <source>&amp;Adjust the colors</source>
        <translation>ضبط الألوان (&amp;A)</translation>
    </message>
    <message>
        <source>Color balance</source>
        <translation>توازن الألوان</translation>
    </message>
    <message>
        <source>Tone and saturation</source>
        <translation>الدرجات والتشبّع</translation>
    </message>
    <message>
        <source>Re&amp;d</source>
        <translation>أحمر (&amp;D)</translation>
    </message>
    <message>
        <source>Gr&amp;een</source>
        <translation>أخضر (&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translation>أزرق (&amp;B)</translation>
    </message>
    <message>
        <source>Brig&amp;htness</source>
        <translation>الإضاءة (&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Contrast</source>
        <translation>التباين (&amp;C)</translation>
    </message>
    <message>
        <source>Sa&amp;turation</source>
        <translation>التشبّع (&amp;T)</translation>
    </message>
    <message>
        <source>Ga&amp;mma</source>
        <translation>غاما (&amp;M)</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>أحمر</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>أزرق</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>الإضاءة</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>التباين</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>التشبّع</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>غاما</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>سماوي</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>أرجواني</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>أصفر</translation>
    </message>
    <message>
        <source>The mark behind each slider is the value that changes nothing. The adjustments go with the print; the photo itself stays as it is.</source>
        <translation>العلامة خلف كل شريط تمرير هي القيمة التي لا تغيّر شيئًا. يخص الضبط المطبوع وحده؛ وتبقى الصورة نفسها كما هي.</translation>
    </message>
    <message>
        <source>AdjustmentsEnabled</source>
        <translation>ضبط الألوان</translation>
    </message>
    <message>
        <source>Reduce red by one</source>
        <translation>إنقاص الأحمر بواحد</translation>
    </message>
    <message>
        <source>Increase red by one</source>
        <translation>زيادة الأحمر بواحد</translation>
    </message>
    <message>
        <source>Reduce green by one</source>
        <translation>إنقاص الأخضر بواحد</translation>
    </message>
    <message>
        <source>Increase green by one</source>
        <translation>زيادة الأخضر بواحد</translation>
    </message>
    <message>
        <source>Reduce blue by one</source>
        <translation>إنقاص الأزرق بواحد</translation>
    </message>
    <message>
        <source>Increase blue by one</source>
        <translation>زيادة الأزرق بواحد</translation>
    </message>
    <message>
        <source>Reduce brightness by one</source>
        <translation>إنقاص الإضاءة بواحد</translation>
    </message>
    <message>
        <source>Increase brightness by one</source>
        <translation>زيادة الإضاءة بواحد</translation>
    </message>
    <message>
        <source>Reduce contrast by one</source>
        <translation>إنقاص التباين بواحد</translation>
    </message>
    <message>
        <source>Increase contrast by one</source>
        <translation>زيادة التباين بواحد</translation>
    </message>
    <message>
        <source>Reduce saturation by one</source>
        <translation>إنقاص التشبّع بواحد</translation>
    </message>
    <message>
        <source>Increase saturation by one</source>
        <translation>زيادة التشبّع بواحد</translation>
    </message>
    <message>
        <source>Reduce gamma by one</source>
        <translation>إنقاص غاما بواحد</translation>
    </message>
    <message>
        <source>Increase gamma by one</source>
        <translation>زيادة غاما بواحد</translation>
    </message>
</context>
</TS>
