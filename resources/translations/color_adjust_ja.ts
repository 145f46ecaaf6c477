<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Color Adjustments</source>
        <translation>カラー調整</translation>
    </message>
    <message>
        <source>&amp;Adjust the colors</source>
        <translation>色を調整する(&amp;A)</translation>
    </message>
    <message>
        <source>Color balance</source>
        <translation>カラーバランス</translation>
    </message>
    <message>
        <source>Tone and saturation</source>
        <translation>階調と彩度</translation>
    </message>
    <message>
        <source>Re&amp;d</source>
        <translation>赤(&amp;D)</translation>
    </message>
    <message>
        <source>Gr&amp;een</source>
        <translation>緑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translation>青(&amp;B)</translation>
    </message>
    <message>
        <source>Brig&amp;htness</source>
        <translation>明るさ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Contrast</source>
        <translation>コントラスト(&amp;C)</translation>
    </message>
    <message>
        <source>Sa&amp;turation</source>
        <translation>彩度(&amp;T)</translation>
    </message>
    <message>
        <source>Ga&amp;mma</source>
        <translation>ガンマ(&amp;M)</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>ガンマ</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>The mark behind each slider is the value that changes nothing. The adjustments go with the print; the photo itself stays as it is.</source>
        <translation>各スライダーの後ろの印は、何も変えない値です。調整は印刷にだけ適用され、写真そのものは変わりません。</translation>
    </message>
    <message>
        <source>AdjustmentsEnabled</source>
        <translation>カラー調整</translation>
    </message>
    <message>
        <source>Reduce red by one</source>
        <translation>赤を1減らす</translation>
    </message>
    <message>
        <source>Increase red by one</source>
        <translation>赤を1増やす</translation>
    </message>
    <message>
        <source>Reduce green by one</source>
        <translation>緑を1減らす</translation>
    </message>
    <message>
        <source>Increase green by one</source>
        <translation>緑を1増やす</translation>
    </message>
    <message>
        <source>Reduce blue by one</source>
        <translation>青を1減らす</translation>
    </message>
    <message>
        <source>Increase blue by one</source>
        <translation>青を1増やす</translation>
    </message>
    <message>
        <source>Reduce brightness by one</source>
        <translation>明るさを1減らす</translation>
    </message>
    <message>
        <source>Increase brightness by one</source>
        <translation>明るさを1増やす</translation>
    </message>
    <message>
        <source>Reduce contrast by one</source>
        <translation>コントラストを1減らす</translation>
    </message>
    <message>
        <source>Increase contrast by one</source>
        <translation>コントラストを1増やす</translation>
    </message>
    <message>
        <source>Reduce saturation by one</source>
        <translation>彩度を1減らす</translation>
    </message>
    <message>
        <source>Increase saturation by one</source>
        <translation>彩度を1増やす</translation>
    </message>
    <message>
        <source>Reduce gamma by one</source>
        <translation>ガンマを1減らす</translation>
    </message>
    <message>
        <source>Increase gamma by one</source>
        <translation>ガンマを1増やす</translation>
    </message>
</context>
</TS>
