<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Sharpness</source>
        <translation>シャープネス</translation>
    </message>
    <message>
        <source>&amp;Sharpen the pictures</source>
        <translation>写真をシャープにする(&amp;S)</translation>
    </message>
    <message>
        <source>R&amp;adius</source>
        <translation>半径(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Intensity</source>
        <translation>強さ(&amp;I)</translation>
    </message>
    <message>
        <source>Fine detail</source>
        <translation>細部</translation>
    </message>
    <message>
        <source>Broad edges</source>
        <translation>輪郭</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>強い</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>標準に戻す</translation>
    </message>
    <message>
        <source>The radius says how far from an edge the sharpening reaches, in printer dots; the intensity says how strong it is. Small prints and fine papers want a small radius.</source>
        <translation>半径は輪郭からどこまでシャープにするか（印刷ドット単位）、強さはその度合いです。小さなプリントや繊細な用紙には小さな半径が適しています。</translation>
    </message>
    <message>
        <source>Sharpening radius</source>
        <translation>シャープネスの半径</translation>
    </message>
    <message>
        <source>Sharpening intensity</source>
        <translation>シャープネスの強さ</translation>
    </message>
    <message>
        <source>Sharpening radius, in printer dots</source>
        <translation>シャープネスの半径（印刷ドット）</translation>
    </message>
    <message>
        <source>Reduce the radius by one</source>
        <translation>半径を1減らす</translation>
    </message>
    <message>
        <source>Increase the radius by one</source>
        <translation>半径を1増やす</translation>
    </message>
    <message>
        <source>Reduce the intensity by one</source>
        <translation>強さを1減らす</translation>
    </message>
    <message>
        <source>Increase the intensity by one</source>
        <translation>強さを1増やす</translation>
    </message>
    <message>
        <source>SharpnessEnabled</source>
        <translation>シャープネス</translation>
    </message>
    <message>
        <source>SharpnessRadius</source>
        <translation>シャープネスの半径</translation>
    </message>
    <message>
        <source>SharpnessIntensity</source>
        <translation>シャープネスの強さ</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
</context>
</TS>
