<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>مقاس الورق</translation>
    </message>
    <message>
        <source>4 x 6 in (102 x 152 mm)</source>
        <translation>⁨4 x 6⁩ بوصة (⁨102 x 152⁩ مم)</translation>
    </message>
    <message>
        <source>4 x 6 in, borderless</source>
        <translation>⁨4 x 6⁩ بوصة، بلا حواف</translation>
    </message>
    <message>
        <source>5 x 7 in (127 x 178 mm)</source>
        <translation>⁨5 x 7⁩ بوصة (⁨127 x 178⁩ مم)</translation>
    </message>
    <message>
        <source>8 x 10 in (203 x 254 mm)</source>
        <translation>⁨8 x 10⁩ بوصة (⁨203 x 254⁩ مم)</translation>
    </message>
    <message>
        <source>Postcard (100 x 148 mm)</source>
        <translation>بطاقة بريدية (⁨100 x 148⁩ مم)</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>رسالة أمريكي</translation>
    </message>
    <message>
        <source>Roll 127 x 88.9 mm</source>
        <translation>لفافة ⁨127 x 88.9⁩ مم</translation>
    </message>
    <message>
        <source>Roll 127 x 127 mm</source>
        <translation>لفافة ⁨127 x 127⁩ مم</translation>
    </message>
    <message>
        <source>Roll 127 x 177.8 mm</source>
        <translation>لفافة ⁨127 x 177.8⁩ مم</translation>
    </message>
    <message>
        <source>Roll 152.4 x 101.6 mm</source>
        <translation>لفافة ⁨152.4 x 101.6⁩ مم</translation>
    </message>
    <message>
        <source>Roll 152.4 x 152.4 mm</source>
        <translation>لفافة ⁨152.4 x 152.4⁩ مم</translation>
    </message>
    <message>
        <source>Roll 152.4 x 203.2 mm</source>
        <translation>لفافة ⁨152.4 x 203.2⁩ مم</translation>
    </message>
    <message>
        <source>Roll 203.2 x 152.4 mm</source>
        <translation>لفافة ⁨203.2 x 152.4⁩ مم</translation>
    </message>
    <message>
        <source>Roll 203.2 x 254 mm</source>
        <translation>لفافة ⁨203.2 x 254⁩ مم</translation>
    </message>
    <message>
        <source>Roll 203.2 x 304.8 mm</source>
        <translation>لفافة ⁨203.2 x 304.8⁩ مم</translation>
    </message>
    <message>
        <source>Roll 210 x 148 mm</source>
        <translation>لفافة ⁨210 x 148⁩ مم</translation>
    </message>
    <message>
        <source>Roll 210 x 297 mm</source>
        <translation>لفافة ⁨210 x 297⁩ مم</translation>
    </message>
    <message>
        <source>Roll 254 x 203.2 mm</source>
        <translation>لفافة ⁨254 x 203.2⁩ مم</translation>
    </message>
    <message>
        <source>Roll 254 x 304.8 mm</source>
        <translation>لفافة ⁨254 x 304.8⁩ مم</translation>
    </message>
    <message>
        <source>Roll 254 x 381 mm</source>
        <translation>لفافة ⁨254 x 381⁩ مم</translation>
    </message>
    <message>
        <source>Roll 304.8 x 203.2 mm</source>
        <translation>لفافة ⁨304.8 x 203.2⁩ مم</translation>
    </message>
    <message>
        <source>Roll 304.8 x 304.8 mm</source>
        <translation>لفافة ⁨304.8 x 304.8⁩ مم</translation>
    </message>
    <message>
        <source>Roll 304.8 x 457.2 mm</source>
        <translation>لفافة ⁨304.8 x 457.2⁩ مم</translation>
    </message>
    <message>
        <source>As Loaded</source>
        <translation>كما هو محمّل</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>ألوان</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>تدرج الرمادي</translation>
    </message>
</context>
</TS>
