<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Features</source>
        <translation>用紙と品質</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Two-Sided Printing</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>&amp;Feed</source>
        <translation>給紙方法(&amp;F)</translation>
    </message>
    <message>
        <source>Paper feed</source>
        <translation>給紙方法</translation>
    </message>
    <message>
        <source>S&amp;heet paper</source>
        <translation>カット紙(&amp;H)</translation>
    </message>
    <message>
        <source>Sheet paper</source>
        <translation>カット紙</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>ロール紙</translation>
    </message>
    <message>
        <source>Roll &amp;width</source>
        <translation>ロール幅(&amp;W)</translation>
    </message>
    <message>
        <source>Roll width</source>
        <translation>ロール幅</translation>
    </message>
    <message>
        <source>&amp;Surface</source>
        <translation>表面(&amp;S)</translation>
    </message>
    <message>
        <source>Surface of the roll</source>
        <translation>ロール紙の表面</translation>
    </message>
    <message>
        <source>The numbers are the surface codes of the paper.</source>
        <translation>数字は用紙の表面コードです。</translation>
    </message>
    <message>
        <source>O&amp;verspill</source>
        <translation>はみ出し量(&amp;V)</translation>
    </message>
    <message>
        <source>Overspill in millimetres</source>
        <translation>はみ出し量（ミリメートル）</translation>
    </message>
    <message>
        <source>How far the picture reaches beyond the edges of the roll, so that no white edge remains.</source>
        <translation>白いふちが残らないように、画像がロール紙の端からはみ出す量です。</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Reso&amp;lution</source>
        <translation>解像度(&amp;L)</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>&amp;Tone</source>
        <translation>色調(&amp;T)</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>色調</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>印刷面</translation>
    </message>
    <message>
        <source>Two-s&amp;ided</source>
        <translation>両面(&amp;I)</translation>
    </message>
    <message>
        <source>Two-sided printing</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>とじ</translation>
    </message>
    <message>
        <source>&amp;Binding margin</source>
        <translation>とじしろの位置(&amp;B)</translation>
    </message>
    <message>
        <source>Binding margin</source>
        <translation>とじしろの位置</translation>
    </message>
    <message>
        <source>Wi&amp;dth</source>
        <translation>幅(&amp;D)</translation>
    </message>
    <message>
        <source>Width of the binding margin in millimetres</source>
        <translation>とじしろの幅（ミリメートル）</translation>
    </message>
    <message>
        <source>How much of the page stays free for the binding.</source>
        <translation>とじるために空けておくページの幅です。</translation>
    </message>
    <message>
        <source>Two-sided printing needs cut sheets. The binding margin is the edge of the page as you see it on the screen; the picture keeps clear of it.</source>
        <translation>両面印刷にはカット紙が必要です。とじしろの位置は画面に見えるページの辺を指し、画像はその部分を避けて印刷されます。</translation>
    </message>
    <message>
        <source>The printer is being asked for its papers</source>
        <translation>プリンターに用紙を問い合わせています</translation>
    </message>
    <message>
        <source>Last updated %@</source>
        <translation>最終更新: %@</translation>
    </message>
    <message>
        <source>never</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>The sheet feed was not available when this page was made.</source>
        <translation>このページの作成時にカット紙給紙は使用できませんでした。</translation>
    </message>
    <message>
        <source>The printer has no cut sheets loaded.</source>
        <translation>プリンターにカット紙がセットされていません。</translation>
    </message>
    <message>
        <source>The printer has no paper roll loaded.</source>
        <translation>プリンターにロール紙がセットされていません。</translation>
    </message>
    <message>
        <source>Only for cut sheets. Choose the sheet feed first.</source>
        <translation>カット紙専用です。先に給紙方法でカット紙を選んでください。</translation>
    </message>
    <message>
        <source>Only for paper rolls. Choose the roll feed first.</source>
        <translation>ロール紙専用です。先に給紙方法でロール紙を選んでください。</translation>
    </message>
    <message>
        <source>No roll of this width has this surface.</source>
        <translation>この幅のロール紙にはこの表面がありません。</translation>
    </message>
    <message>
        <source>The chosen paper cannot be printed at this resolution.</source>
        <translation>選んだ用紙はこの解像度では印刷できません。</translation>
    </message>
    <message>
        <source>The loaded papers have one tone only.</source>
        <translation>セットされた用紙の色調は1種類です。</translation>
    </message>
    <message>
        <source>The loaded papers do not have this tone.</source>
        <translation>セットされた用紙にはこの色調がありません。</translation>
    </message>
    <message>
        <source>Two-sided printing needs cut sheets and a printer with a duplex unit.</source>
        <translation>両面印刷にはカット紙と両面ユニット付きのプリンターが必要です。</translation>
    </message>
    <message>
        <source>Choose two-sided printing first.</source>
        <translation>先に両面印刷を選んでください。</translation>
    </message>
    <message>
        <source>Choose a binding margin first.</source>
        <translation>先にとじしろの位置を選んでください。</translation>
    </message>
    <message>
        <source>The sheet is not turned over this edge.</source>
        <translation>用紙はこの辺では裏返されません。</translation>
    </message>
    <message>
        <source>Cut Sheet</source>
        <translation>カット紙</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>ロール紙</translation>
    </message>
    <message>
        <source>Long Edge</source>
        <translation>長辺とじ</translation>
    </message>
    <message>
        <source>Short Edge</source>
        <translation>短辺とじ</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>1 - Gloss</source>
        <translation>1 – 光沢</translation>
    </message>
    <message>
        <source>2 - Satin</source>
        <translation>2 – 半光沢</translation>
    </message>
    <message>
        <source>3 - Matte</source>
        <translation>3 – マット</translation>
    </message>
    <message>
        <source>4 - Thin Silk</source>
        <translation>4 – 薄手シルク</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Vivid</source>
        <translation>鮮やか</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>ソフト</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>暖色</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>寒色</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>セピア</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>白黒</translation>
    </message>
    <message>
        <source>Deep Black</source>
        <translation>深い黒</translation>
    </message>
    <message>
        <source>High Key</source>
        <translation>ハイキー</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>実寸</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>ページに合わせる</translation>
    </message>
    <message>
        <source>Fill Page</source>
        <translation>ページ全体</translation>
    </message>
    <message>
        <source>PaperFeed</source>
        <translation>給紙方法</translation>
    </message>
    <message>
        <source>PaperName</source>
        <translation>カット紙</translation>
    </message>
    <message>
        <source>PaperWidth</source>
        <translation>ロール幅</translation>
    </message>
    <message>
        <source>PaperSurface</source>
        <translation>表面</translation>
    </message>
    <message>
        <source>PaperTone</source>
        <translation>色調</translation>
    </message>
    <message>
        <source>Overspill</source>
        <translation>はみ出し量</translation>
    </message>
    <message>
        <source>BindingMargin</source>
        <translation>とじしろの位置</translation>
    </message>
    <message>
        <source>BindingWidth</source>
        <translation>とじしろの幅</translation>
    </message>
    <message>
        <source>ResizeOption</source>
        <translation>画像サイズ</translation>
    </message>
    <message>
        <source>TwoSided</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>両面ユニット</translation>
    </message>
    <message>
        <source>HalvernLastResolution</source>
        <translation>前回の解像度</translation>
    </message>
</context>
</TS>
