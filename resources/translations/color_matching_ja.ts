<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Color Matching</source>
        <translation>カラーマッチング</translation>
    </message>
    <message>
        <source>Colors are &amp;matched</source>
        <translation>カラーマッチング(&amp;M)</translation>
    </message>
    <message>
        <source>Where the colors are matched to the printer</source>
        <translation>プリンターに色を合わせる場所</translation>
    </message>
    <message>
        <source>As the printer is set up</source>
        <translation>プリンターの設定どおり</translation>
    </message>
    <message>
        <source>Colors should be matched to the printer exactly once: by the program that sends the picture, if it knows the printer’s profile, or else by the printer.</source>
        <translation>プリンターへの色合わせは一度だけ行います。写真を送るアプリケーションがプリンターのプロファイルを知っていればアプリケーションで、そうでなければプリンターで行います。</translation>
    </message>
    <message>
        <source>AP_ColorMatchingMode</source>
        <translation>カラーマッチング</translation>
    </message>
    <message>
        <source>By the Application</source>
        <translation>アプリケーションで行う</translation>
    </message>
    <message>
        <source>By the Printer</source>
        <translation>プリンターで行う</translation>
    </message>
</context>
</TS>
