<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Backprint</source>
        <translation>裏面印刷</translation>
    </message>
    <message>
        <source>Enter up to two lines of text to appear on the back side of the picture.</source>
        <translation>写真の裏面に入れる文字を2行まで入力してください。</translation>
    </message>
    <message>
        <source>Line &amp;1</source>
        <translation>1行目(&amp;1)</translation>
    </message>
    <message>
        <source>Line &amp;2</source>
        <translation>2行目(&amp;2)</translation>
    </message>
    <message>
        <source>Print the first line</source>
        <translation>1行目を印刷する</translation>
    </message>
    <message>
        <source>Print the second line</source>
        <translation>2行目を印刷する</translation>
    </message>
    <message>
        <source>Text of the first line</source>
        <translation>1行目の文字</translation>
    </message>
    <message>
        <source>Text of the second line</source>
        <translation>2行目の文字</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り%1文字</translation>
    </message>
    <message>
        <source>P&amp;laceholder</source>
        <translation>差し込み項目(&amp;L)</translation>
    </message>
    <message>
        <source>Placeholder to insert</source>
        <translation>差し込む項目</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>挿入(&amp;I)</translation>
    </message>
    <message>
        <source>Insert the placeholder at the cursor</source>
        <translation>カーソル位置に項目を挿入</translation>
    </message>
    <message>
        <source>The printer replaces each placeholder when it prints the picture.</source>
        <translation>差し込み項目は、印刷時に写真ごとの内容に置き換えられます。</translation>
    </message>
    <message>
        <source>So long a line is printed in very small letters.</source>
        <translation>これほど長い行は、とても小さい文字で印刷されます。</translation>
    </message>
    <message>
        <source>Nothing is printed on the back.</source>
        <translation>裏面には何も印刷されません。</translation>
    </message>
    <message>
        <source>Preview of the back of the picture</source>
        <translation>写真の裏面のプレビュー</translation>
    </message>
    <message>
        <source>Keep a &amp;diagnostic log</source>
        <translation>診断ログを記録する(&amp;D)</translation>
    </message>
    <message>
        <source>[YYYY]</source>
        <translation>年（4桁）</translation>
    </message>
    <message>
        <source>[YY]</source>
        <translation>年（2桁）</translation>
    </message>
    <message>
        <source>[DD]</source>
        <translation>日（2桁）</translation>
    </message>
    <message>
        <source>[D]</source>
        <translation>日</translation>
    </message>
    <message>
        <source>[MM]</source>
        <translation>月（2桁）</translation>
    </message>
    <message>
        <source>[M]</source>
        <translation>月</translation>
    </message>
    <message>
        <source>[C]</source>
        <translation>通し番号</translation>
    </message>
    <message>
        <source>[F]</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>[P]</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>[U]</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>CVP1</source>
        <translation>裏面の1行目</translation>
    </message>
    <message>
        <source>CVP2</source>
        <translation>裏面の2行目</translation>
    </message>
    <message>
        <source>EnableCVP1</source>
        <translation>裏面の1行目を印刷</translation>
    </message>
    <message>
        <source>EnableCVP2</source>
        <translation>裏面の2行目を印刷</translation>
    </message>
    <message>
        <source>DebugLog</source>
        <translation>診断ログ</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
</context>
</TS>
