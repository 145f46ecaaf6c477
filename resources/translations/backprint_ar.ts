<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Backprint</source>
        <translation>الطباعة الخلفية</translation>
    </message>
    <message>
        <source>Enter up to two lines of text to appear on the back side of the picture.</source>
        <translation>أدخل سطرًا أو سطرين من النص يظهران على ظهر الصورة.</translation>
    </message>
    <message>
        <source>Line &amp;1</source>
        <translation>السطر &amp;1</translation>
    </message>
    <message>
        <source>Line &amp;2</source>
        <translation>السطر &amp;2</translation>
    </message>
    <message>
        <source>Print the first line</source>
        <translation>طباعة السطر الأول</translation>
    </message>
    <message>
        <source>Print the second line</source>
        <translation>طباعة السطر الثاني</translation>
    </message>
    <message>
        <source>Text of the first line</source>
        <translation>نص السطر الأول</translation>
    </message>
    <message>
        <source>Text of the second line</source>
        <translation>نص السطر الثاني</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>الباقي: %1</translation>
    </message>
    <message>
        <source>P&amp;laceholder</source>
        <translation>عنصر نائب (&amp;L)</translation>
    </message>
    <message>
        <source>Placeholder to insert</source>
        <translation>العنصر النائب المطلوب إدراجه</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>إدراج (&amp;I)</translation>
    </message>
    <message>
        <source>Insert the placeholder at the cursor</source>
        <translation>إدراج العنصر النائب عند المؤشر</translation>
    </message>
    <message>
        <source>The printer replaces each placeholder when it prints the picture.</source>
        <translation>تستبدل الطابعة كل عنصر نائب عند طباعة الصورة.</translation>
    </message>
    <message>
        <source>So long a line is printed in very small letters.</source>
        <translation>يُطبع سطر بهذا الطول بحروف صغيرة جدًّا.</translation>
    </message>
    <message>
        <source>Nothing is printed on the back.</source>
        <translation>لا يُطبع شيء على الظهر.</translation>
    </message>
    <message>
        <source>Preview of the back of the picture</source>
        <translation>معاينة ظهر الصورة</translation>
    </message>
    <message>
        <source>Keep a &amp;diagnostic log</source>
        <translation>تسجيل سجل تشخيص (&amp;D)</translation>
    </message>
    <message>
        <source>[YYYY]</source>
        <translation>السنة (4 أرقام)</translation>
    </message>
    <message>
        <source>[YY]</source>
        <translation>السنة (رقمان)</translation>
    </message>
    <message>
        <source>[DD]</source>
        <translation>اليوم (رقمان)</translation>
    </message>
    <message>
        <source>[D]</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>[MM]</source>
        <translation>الشهر (رقمان)</translation>
    </message>
    <message>
        <source>[M]</source>
        <translation>الشهر</translation>
    </message>
    <message>
        <source>[C]</source>
        <translation>العدّاد</translation>
    </message>
    <message>
        <source>[F]</source>
        <translation>اسم الملف</translation>
    </message>
    <message>
        <source>[P]</source>
        <translation>الصفحة</translation>
    </message>
    <message>
        <source>[U]</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>CVP1</source>
        <translation>نص الظهر، السطر 1</translation>
    </message>
    <message>
        <source>CVP2</source>
        <translation>نص الظهر، السطر 2</translation>
    </message>
    <message>
        <source>EnableCVP1</source>
        <translation>طباعة السطر 1 على الظهر</translation>
    </message>
    <message>
        <source>EnableCVP2</source>
        <translation>طباعة السطر 2 على الظهر</translation>
    </message>
    <message>
        <source>DebugLog</source>
        <translation>سجل التشخيص</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
</context>
</TS>
