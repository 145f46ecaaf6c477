<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Cover Page</source>
        <translation>صفحة الغلاف</translation>
    </message>
    <message>
        <source>This printer prints no cover page, because a page of job details would use up a sheet of photo paper.</source>
        <translation>لا تطبع هذه الطابعة صفحة غلاف، لأن صفحة بتفاصيل المهمة تستهلك ورقة من ورق الصور.</translation>
    </message>
    <message>
        <source>AP_CoverPage</source>
        <translation>صفحة الغلاف</translation>
    </message>
</context>
</TS>
