<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Cover Page</source>
        <translation>表紙</translation>
    </message>
    <message>
        <source>This printer prints no cover page, because a page of job details would use up a sheet of photo paper.</source>
        <translation>ジョブ情報のページに写真用紙を1枚使うことになるため、このプリンターは表紙を印刷しません。</translation>
    </message>
    <message>
        <source>AP_CoverPage</source>
        <translation>表紙</translation>
    </message>
</context>
</TS>
