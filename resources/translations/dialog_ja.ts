<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>DamageQuestion</name>
    <message>
        <source>Print damaged photos?</source>
        <translation>破損した写真を印刷しますか?</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>ほか %1 件。</translation>
    </message>
    <message>
        <source>What is missing comes out gray, or smeared.</source>
        <translation>欠けている部分は灰色または乱れて印刷されます。</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>除外する(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Print All the Same</source>
        <translation>そのまま印刷(&amp;P)</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print photos of which a part is missing, too, without asking.</source>
        <translation>一部が欠けている写真も確認せずに印刷します。</translation>
    </message>
    <message>
        <source>Print on this queue.</source>
        <translation>このキューで印刷します。</translation>
    </message>
    <message>
        <source>Set a printer option. Can be given several times.</source>
        <translation>プリンターのオプションを設定します。複数指定できます。</translation>
    </message>
    <message>
        <source>Print this many copies, 1 to %1.</source>
        <translation>印刷する部数 (1～%1)。</translation>
    </message>
    <message>
        <source>Print at once, and wait until the job has ended.</source>
        <translation>すぐに印刷し、ジョブが終わるまで待ちます。</translation>
    </message>
    <message>
        <source>Write the options that would be sent, one KEY=VALUE a line, and send nothing.</source>
        <translation>送信されるオプションを 1 行に 1 つ KEY=VALUE で出力し、何も送信しません。</translation>
    </message>
    <message>
        <source>See "halvern-print --help".</source>
        <translation>「halvern-print --help」をご覧ください。</translation>
    </message>
    <message>
        <source>"%1" is no option: write KEY=VALUE, for example PageSize=A4.</source>
        <translation>「%1」はオプションではありません。PageSize=A4 のように KEY=VALUE で指定してください。</translation>
    </message>
    <message>
        <source>"%1" is no number of copies: write a number from 1 to %2.</source>
        <translation>「%1」は部数ではありません。1 から %2 までの数を指定してください。</translation>
    </message>
    <message>
        <source>Name at least one photo to print (JPEG, PNG, TIFF or PDF).</source>
        <translation>印刷する写真を 1 枚以上指定してください (JPEG、PNG、TIFF、PDF)。</translation>
    </message>
    <message>
        <source>The queue's name is empty. "lpstat -e" lists the queues.</source>
        <translation>キューの名前が空です。「lpstat -e」でキューの一覧が見られます。</translation>
    </message>
    <message>
        <source>Prints photos, with a preview and the printer's own pages of options.</source>
        <translation>プレビューとプリンター固有の設定ページを使って写真を印刷します。</translation>
    </message>
    <message>
        <source>JPEG, PNG, TIFF or PDF files; each photo becomes a page.</source>
        <translation>JPEG、PNG、TIFF、PDF ファイル。写真 1 枚が 1 ページになります。</translation>
    </message>
    <message>
        <source>Print this text on the back of each picture. Can be given twice, for a first and a second line. A line holds 120 characters and placeholders such as [YYYY], which the printer replaces.</source>
        <translation>この文字列を各写真の裏面に印刷します。2 回まで指定でき、1 行目と 2 行目になります。1 行は 120 文字までで、[YYYY] などの差し込み項目はプリンターが置き換えます。</translation>
    </message>
    <message>
        <source>The back of a picture takes %1 lines: give --backprint once or twice.</source>
        <translation>写真の裏面に入るのは %1 行です。--backprint は 1 回か 2 回指定してください。</translation>
    </message>
    <message>
        <source>Write what the printer has loaded, and how old that knowledge is.</source>
        <translation>プリンターにセットされている用紙と、その情報の古さを表示します。</translation>
    </message>
    <message>
        <source>With --list-papers: ask the printer first.</source>
        <translation>--list-papers と併用: 先にプリンターに問い合わせます。</translation>
    </message>
    <message>
        <source>--refresh goes with --list-papers.</source>
        <translation>--refresh は --list-papers と一緒に使います。</translation>
    </message>
    <message>
        <source>--list-papers prints no files: leave out the files and the options for printing.</source>
        <translation>--list-papers はファイルを印刷しません。ファイルと印刷用のオプションを省いてください。</translation>
    </message>
    <message>
        <source>With --no-dialog: give a print server that goes silent after the job was sent this long; 60 seconds without it.</source>
        <translation>--no-dialog と共に: ジョブの送信後に応答しなくなったプリントサーバーを待つ秒数。省略時は 60 秒。</translation>
    </message>
    <message>
        <source>"%1" is no time to wait: write a number of seconds from 1 to %2.</source>
        <translation>「%1」は待ち時間ではありません。1 から %2 までの秒数を指定してください。</translation>
    </message>
    <message>
        <source>Exit status:
  0  Printed, or written what was asked for.
  1  Failed; standard error says why.
  2  Wrong usage.
  3  The job is on the queue, and had not ended yet.
  4  Cancelled: nothing was printed.
  5  The job was sent, but the print server does not answer: the outcome is not known.</source>
        <translation>終了ステータス:
  0  印刷した、または求められたものを出力した。
  1  失敗。理由は標準エラーに出力。
  2  使い方の誤り。
  3  ジョブはキューにあり、まだ終わっていない。
  4  キャンセル: 何も印刷していない。
  5  ジョブは送信したが、プリントサーバーが応答せず、結果は不明。</translation>
    </message>
</context>
<context>
    <name>JobStatus</name>
    <message>
        <source>Job %1 waits for "%2"%3.</source>
        <translation>ジョブ %1 は「%2」を待っています%3。</translation>
    </message>
    <message>
        <source>Job %1 is printing on "%2"%3.</source>
        <translation>ジョブ %1 を「%2」で印刷しています%3。</translation>
    </message>
    <message>
        <source>Job %1 was cancelled on "%2".</source>
        <translation>「%2」のジョブ %1 はキャンセルされました。</translation>
    </message>
    <message>
        <source>Job %1 failed on "%2"%3. Print again; if it fails again, look into the print server's error log.</source>
        <translation>ジョブ %1 は「%2」で失敗しました%3。もう一度印刷してください。再び失敗する場合は、プリントサーバーのエラーログをご覧ください。</translation>
    </message>
    <message>
        <source>Printed: job %1 on "%2".</source>
        <translation>印刷しました: 「%2」のジョブ %1。</translation>
    </message>
    <message>
        <source>Job %1 waits because "%2" is paused%3.</source>
        <translation>「%2」が一時停止中のため、ジョブ %1 は待っています%3。</translation>
    </message>
    <message>
        <source>Job %1 is held on "%2" because it was asked to wait%3.</source>
        <translation>ジョブ %1 は待機の指定により「%2」で保留されています%3。</translation>
    </message>
    <message>
        <source>Job %1 is held on "%2"%3.</source>
        <translation>ジョブ %1 は「%2」で保留されています%3。</translation>
    </message>
    <message>
        <source>Job %1 stopped on "%2"%3.</source>
        <translation>ジョブ %1 は「%2」で停止しました%3。</translation>
    </message>
    <message>
        <source>Job %1 has left the queue of "%2". The print server keeps no record of how it ended.</source>
        <translation>ジョブ %1 は「%2」のキューを出ました。プリントサーバーは終了の記録を残していません。</translation>
    </message>
    <message>
        <source>"%2" is not on the print server any more, and job %1 with it. Look at the printer before you print again.</source>
        <translation>「%2」はプリントサーバーになくなり、ジョブ %1 も失われました。もう一度印刷する前にプリンターをご確認ください。</translation>
    </message>
    <message>
        <source>The print server does not answer. Job %1 was sent to "%2", and may be printed.</source>
        <translation>プリントサーバーが応答しません。ジョブ %1 は「%2」に送信済みで、印刷される可能性があります。</translation>
    </message>
    <message>
        <source>See to the printer and resume it with "cupsenable %2", or cancel the job with "cancel %2-%1".</source>
        <translation>プリンターを確認して「cupsenable %2」で再開するか、「cancel %2-%1」でジョブをキャンセルしてください。</translation>
    </message>
    <message>
        <source>Release it with "lp -i %1 -H resume", or cancel it with "cancel %2-%1".</source>
        <translation>「lp -i %1 -H resume」で再開するか、「cancel %2-%1」でキャンセルしてください。</translation>
    </message>
    <message>
        <source>Print it again with "lp -i %1 -H restart", or cancel it with "cancel %2-%1".</source>
        <translation>「lp -i %1 -H restart」でもう一度印刷するか、「cancel %2-%1」でキャンセルしてください。</translation>
    </message>
</context>
<context>
    <name>StateReasons</name>
    <message>
        <source>out of paper</source>
        <translation>用紙切れ</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>用紙残りわずか</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>紙づまり</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>ドアが開いています</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>not connected or switched off</source>
        <translation>未接続または電源オフ</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>一時停止しています</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>電源オフ</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>トナー残りわずか</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>トナー切れ</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>インク残りわずか</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>インク切れ</translation>
    </message>
    <message>
        <source>the waste tank is nearly full</source>
        <translation>廃液タンクがもうすぐいっぱいです</translation>
    </message>
    <message>
        <source>the waste tank is full</source>
        <translation>廃液タンクがいっぱいです</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>排紙トレイがいっぱいです</translation>
    </message>
    <message>
        <source>does not answer</source>
        <translation>応答がありません</translation>
    </message>
    <message>
        <source>its driver is not installed</source>
        <translation>ドライバーがインストールされていません</translation>
    </message>
    <message>
        <source>its driver is not installed safely</source>
        <translation>ドライバーが安全にインストールされていません</translation>
    </message>
    <message>
        <source>needs attention</source>
        <translation>確認が必要です</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>The printer's own pages (%1) offer nothing for this printer. You can print without them.</source>
        <translation>プリンター固有のページ (%1) には、このプリンター用の設定がありません。なしでも印刷できます。</translation>
    </message>
    <message>
        <source>The printer's description asks for the pages "%1", which is no name of a bundle. You can print without them.</source>
        <translation>プリンターの記述が求めるページ「%1」は正しい名前ではありません。なしでも印刷できます。</translation>
    </message>
    <message>
        <source>The printer's own pages (%1) are not installed. You can print without them; install the printer's software to have them.</source>
        <translation>プリンター固有のページ (%1) がインストールされていません。なしでも印刷できます。使うにはプリンターのソフトウェアをインストールしてください。</translation>
    </message>
    <message>
        <source>The printer's own pages (%1) cannot be loaded: %2. You can print without them; install the printer's software again to have them.</source>
        <translation>プリンター固有のページ (%1) を読み込めません: %2。なしでも印刷できます。使うにはプリンターのソフトウェアを再インストールしてください。</translation>
    </message>
    <message>
        <source>they name no module</source>
        <translation>モジュールの指定がありません</translation>
    </message>
    <message>
        <source>the module is of another kind</source>
        <translation>モジュールの種類が違います</translation>
    </message>
    <message>
        <source>they belong to something else</source>
        <translation>別のもの用です</translation>
    </message>
</context>
<context>
    <name>PpdModel</name>
    <message>
        <source>An option without a name or a value cannot be set.</source>
        <translation>名前か値のないオプションは設定できません。</translation>
    </message>
    <message>
        <source>The printer has no page size "%1". Choose one from the list.</source>
        <translation>プリンターに用紙サイズ「%1」はありません。一覧から選んでください。</translation>
    </message>
    <message>
        <source>The printer cannot take the page size "%1". Choose one from the list.</source>
        <translation>プリンターは用紙サイズ「%1」を使えません。一覧から選んでください。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>"%1" does not go together with "%2". Change that first.</source>
        <translation>「%1」は「%2」と一緒に使えません。先にそちらを変えてください。</translation>
    </message>
    <message>
        <source>"%1" is part of the printer's equipment, and is set by whoever installed the printer.</source>
        <translation>「%1」はプリンターの装備の一部で、プリンターを設定した人が決めます。</translation>
    </message>
    <message>
        <source>The printer's equipment does not allow "%1": whoever installed the printer has set "%2".</source>
        <translation>プリンターの装備では「%1」は使えません。設定した人が「%2」としています。</translation>
    </message>
    <message>
        <source>"%1" has no choice "%2".</source>
        <translation>「%1」に「%2」という選択肢はありません。</translation>
    </message>
    <message>
        <source>The printer has no option "%1".</source>
        <translation>プリンターに「%1」というオプションはありません。</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>用紙サイズ</translation>
    </message>
</context>
<context>
    <name>halvern::BatchPrint</name>
    <message>
        <source>With --print-damaged it is printed all the same.</source>
        <translation>--print-damaged を指定すると、そのまま印刷します。</translation>
    </message>
    <message>
        <source>Changed to fit: %1=%2</source>
        <translation>合わせて変更しました: %1=%2</translation>
    </message>
    <message>
        <source>Cancelled: nothing was printed.</source>
        <translation>キャンセルしました。何も印刷していません。</translation>
    </message>
    <message>
        <source>Job %1 stays on the queue; "cancel %2-%1" takes it away.</source>
        <translation>ジョブ %1 はキューに残ります。「cancel %2-%1」で取り除けます。</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>警告: %1</translation>
    </message>
    <message>
        <source>With "-o PageSize=%1" it fits.</source>
        <translation>「-o PageSize=%1」なら収まります。</translation>
    </message>
</context>
<context>
    <name>halvern::DialogSession</name>
    <message>
        <source>A saved setting was left out. %1</source>
        <translation>保存された設定を 1 つ使いませんでした。%1</translation>
    </message>
</context>
<context>
    <name>halvern::MessageBar</name>
    <message>
        <source>Close the message</source>
        <translation>メッセージを閉じる</translation>
    </message>
    <message>
        <source>Previous message</source>
        <translation>前のメッセージ</translation>
    </message>
    <message>
        <source>Next message</source>
        <translation>次のメッセージ</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>halvern::OptionsPage</name>
    <message>
        <source>More options follow...</source>
        <translation>続きがあります...</translation>
    </message>
    <message>
        <source>Set by whoever installed the printer.</source>
        <translation>プリンターを設定した人が決めたものです。</translation>
    </message>
    <message>
        <source>%1 (the printer's default)</source>
        <translation>%1 (プリンターの既定値)</translation>
    </message>
</context>
<context>
    <name>halvern::SummaryPage</name>
    <message>
        <source>Fit</source>
        <translation>全体を収める</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>ページを満たす</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>実際のサイズ</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>Photo size</source>
        <translation>写真のサイズ</translation>
    </message>
    <message>
        <source>Printed area</source>
        <translation>印刷範囲</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ数</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>その他のオプション</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>%1 more are on the page of options.</source>
        <translation>ほか%1件はオプションのページにあります。</translation>
    </message>
    <message>
        <source>Off: %1</source>
        <translation>オフ: %1</translation>
    </message>
</context>
<context>
    <name>halvern::PaperPage</name>
    <message>
        <source>P&amp;aper size:</source>
        <translation>用紙サイズ(&amp;A):</translation>
    </message>
    <message>
        <source>As the photo</source>
        <translation>写真に合わせる</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>向き(&amp;I):</translation>
    </message>
    <message>
        <source>Fit the whole photo on the page</source>
        <translation>写真全体をページに収める</translation>
    </message>
    <message>
        <source>Fill the page, cut what is over</source>
        <translation>ページを満たし、はみ出す部分を切る</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>実際のサイズ</translation>
    </message>
    <message>
        <source>Photo si&amp;ze:</source>
        <translation>写真のサイズ(&amp;Z):</translation>
    </message>
</context>
<context>
    <name>halvern::PanelDeck</name>
    <message>
        <source>Pages of options</source>
        <translation>設定のページ</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>その他の設定</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
</context>
<context>
    <name>halvern::PreviewWidget</name>
    <message>
        <source>A part of this photo is missing</source>
        <translation>この写真の一部が欠けています</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 × %2 in</source>
        <translation>%1 × %2 インチ</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Drag the photo to choose what is cut away</source>
        <translation>写真をドラッグして切る部分を選べます</translation>
    </message>
    <message>
        <source>part of the photo is cut away</source>
        <translation>写真の一部が切れます</translation>
    </message>
    <message>
        <source>Show at 1:1</source>
        <translation>等倍（1:1）で表示</translation>
    </message>
    <message>
        <source>Show a screen pixel for each printer dot (double-click the photo, or press Z in the preview)</source>
        <translation>プリンターの1ドットを画面の1ピクセルで表示します（写真をダブルクリックするか、プレビューで Z キー）</translation>
    </message>
    <message>
        <source>1:1, a screen pixel for each printer dot (%1 dpi)</source>
        <translation>1:1、プリンターの1ドットが画面の1ピクセル（%1 dpi）</translation>
    </message>
    <message>
        <source>The printer's adjustments, approximated on the screen</source>
        <translation>プリンターの調整を画面で近似表示しています</translation>
    </message>
    <message>
        <source>Sharpening shows at 1:1</source>
        <translation>シャープネスは 1:1 で確認できます</translation>
    </message>
    <message>
        <source>Reading the photo...</source>
        <translation>写真を読み込んでいます...</translation>
    </message>
</context>
<context>
    <name>halvern::PrintDialog</name>
    <message>
        <source>%1, page %2</source>
        <translation>%1、%2 ページ</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>前の写真</translation>
    </message>
    <message>
        <source>Next photo</source>
        <translation>次の写真</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>プリンター(&amp;R):</translation>
    </message>
    <message>
        <source>C&amp;opies:</source>
        <translation>部数(&amp;O):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Looking for printers...</source>
        <translation>プリンターを探しています...</translation>
    </message>
    <message>
        <source>The print server has no default printer. Name one with --printer.</source>
        <translation>プリントサーバーに既定のプリンターがありません。--printer で指定してください。</translation>
    </message>
    <message>
        <source>The print server has no printers. Add one in the system's settings.</source>
        <translation>プリントサーバーにプリンターがありません。システムの設定で追加してください。</translation>
    </message>
    <message>
        <source>The print server has no printer "%1". Choose another one.</source>
        <translation>プリントサーバーに「%1」というプリンターはありません。別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>There is no photo to print.</source>
        <translation>印刷する写真がありません。</translation>
    </message>
    <message>
        <source>Reading the photo...</source>
        <translation>写真を読み込んでいます...</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 を印刷</translation>
    </message>
    <message>
        <source>%1 of %2  ·  %3</source>
        <translation>%1 / %2  ·  %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>To make that possible, this was changed too: %1</source>
        <translation>それに合わせて、次の設定も変更しました: %1</translation>
    </message>
    <message>
        <source>To go with what the printer has, this was changed: %1</source>
        <translation>プリンターにあるものに合わせて、次のように変更しました: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Preparing the pages...</source>
        <translation>ページを準備しています...</translation>
    </message>
    <message>
        <source>Job %1 was sent to "%2".</source>
        <translation>ジョブ %1 を「%2」に送りました。</translation>
    </message>
    <message>
        <source>Choose a printer and a paper size, look at the preview, and press Print. The list on the left of the options has the printer's own pages.</source>
        <translation>プリンターと用紙サイズを選び、プレビューを確認して「印刷」を押してください。設定の左の一覧に、プリンター固有のページがあります。</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>キャンセルしています...</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>ジョブをキャンセル</translation>
    </message>
    <message>
        <source>Asking the print server to cancel job %1...</source>
        <translation>プリントサーバーにジョブ %1 のキャンセルを依頼しています...</translation>
    </message>
    <message>
        <source>No answer from the print server.</source>
        <translation>プリントサーバーから応答がありません。</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>部単位</translation>
    </message>
    <message>
        <source>Whole sets one after the other: 1, 2, 3, 1, 2, 3</source>
        <translation>一部ずつそろえて印刷: 1, 2, 3, 1, 2, 3</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>%1 を使う</translation>
    </message>
    <message>
        <source>The printer cannot do what was chosen, so this stays: %1</source>
        <translation>選ばれた内容はこのプリンターでは使えないため、次のままにします: %1</translation>
    </message>
</context>
<context>
    <name>halvern::PrintRun</name>
    <message>
        <source>No temporary file can be made: %1. Make room on the disk and try again.</source>
        <translation>一時ファイルを作れません: %1。ディスクの空きを増やして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Sending the job...</source>
        <translation>ジョブを送っています...</translation>
    </message>
    <message>
        <source>Preparing the pages...</source>
        <translation>ページを準備しています...</translation>
    </message>
    <message>
        <source>Cancelled: nothing was printed.</source>
        <translation>キャンセルしました。何も印刷していません。</translation>
    </message>
    <message>
        <source>Nothing was printed. %1</source>
        <translation>何も印刷していません。%1</translation>
    </message>
    <message>
        <source>The print server does not answer. Job %1 is cancelled as soon as it does, if this window is still open.</source>
        <translation>プリントサーバーが応答しません。このウィンドウが開いていれば、応答があり次第ジョブ %1 をキャンセルします。</translation>
    </message>
    <message>
        <source>Job %1 was sent to "%2", but the print server has not answered for %3 seconds: whether it was printed is not known. Look at the printer before you print again.</source>
        <translation>ジョブ %1 は「%2」に送信しましたが、プリントサーバーが %3 秒間応答していません。印刷されたかどうかは不明です。もう一度印刷する前にプリンターをご確認ください。</translation>
    </message>
</context>
<context>
    <name>ListPapers</name>
    <message>
        <source>The printer "%1" was asked, but has not reported its papers. Look into the print server's error log.</source>
        <translation>プリンター「%1」に問い合わせましたが、用紙の情報が届きませんでした。プリントサーバーのエラーログを確認してください。</translation>
    </message>
    <message>
        <source>The printer "%1" does not report its papers: it has no Halvern driver.</source>
        <translation>プリンター「%1」は用紙の情報を知らせません。Halvern のドライバーではありません。</translation>
    </message>
    <message>
        <source>Asking "%1" ...</source>
        <translation>「%1」に問い合わせています...</translation>
    </message>
    <message>
        <source>Waiting for "%1"%2 ...</source>
        <translation>「%1」を待っています%2...</translation>
    </message>
    <message>
        <source>The printer "%1" is busy with another job. Ask again when that has ended.</source>
        <translation>プリンター「%1」は別のジョブを処理しています。終わってからもう一度問い合わせてください。</translation>
    </message>
    <message>
        <source>The printer "%1" does not work at the moment%2, and the question was taken back. Resume the printer (cupsenable) and ask again.</source>
        <translation>プリンター「%1」は現在動作していないため%2、問い合わせを取り消しました。プリンターを再開して (cupsenable) もう一度問い合わせてください。</translation>
    </message>
    <message>
        <source>The printer "%1" could not answer%2. See to the printer and ask again.</source>
        <translation>プリンター「%1」は応答できませんでした%2。プリンターを確認して、もう一度問い合わせてください。</translation>
    </message>
    <message>
        <source>The printer "%1" does not accept jobs and cannot be asked. Let it accept them (cupsaccept) and ask again.</source>
        <translation>プリンター「%1」はジョブを受け付けていないため、問い合わせできません。受け付けるようにして (cupsaccept) もう一度問い合わせてください。</translation>
    </message>
    <message>
        <source>The print server refused the question to "%1". Look into its error log.</source>
        <translation>プリントサーバーが「%1」への問い合わせを拒否しました。エラーログを確認してください。</translation>
    </message>
    <message>
        <source>The list of papers that "%1" reported cannot be read (%2).</source>
        <translation>「%1」から届いた用紙の一覧を読み取れません (%2)。</translation>
    </message>
    <message>
        <source>No papers are loaded.</source>
        <translation>用紙はセットされていません。</translation>
    </message>
    <message>
        <source>The printer has not said yet what is loaded.</source>
        <translation>セットされている用紙の情報がまだ届いていません。</translation>
    </message>
    <message>
        <source>Ask it with --refresh.</source>
        <translation>--refresh で問い合わせてください。</translation>
    </message>
    <message>
        <source>The question to "%1" could not be processed%2 and was taken back. See to the printer, look into the print server's error log, and ask again.</source>
        <translation>「%1」への問い合わせは処理できなかったため%2、取り消しました。プリンターとプリントサーバーのエラーログを確認して、もう一度問い合わせてください。</translation>
    </message>
    <message>
        <source>The question to "%1" was held%2 and has been cancelled. See to the printer and ask again.</source>
        <translation>「%1」への問い合わせは保留されたため%2、取り消しました。プリンターを確認して、もう一度問い合わせてください。</translation>
    </message>
    <message>
        <source>The question to "%1" was cancelled. Ask again.</source>
        <translation>「%1」への問い合わせはキャンセルされました。もう一度問い合わせてください。</translation>
    </message>
    <message>
        <source>The print server does not answer; job %1 may still be on the queue (cancel %2-%1).</source>
        <translation>プリントサーバーが応答しません。ジョブ %1 がキューに残っている可能性があります (cancel %2-%1)。</translation>
    </message>
    <message>
        <source>Look into the print server's error log, and ask again.</source>
        <translation>プリントサーバーのエラーログを確認して、もう一度問い合わせてください。</translation>
    </message>
</context>
<context>
    <name>JobActions</name>
    <message>
        <source>The print server does not let you cancel this job. Ask whoever looks after it.</source>
        <translation>プリントサーバーはこのジョブのキャンセルを許可していません。管理者にお尋ねください。</translation>
    </message>
    <message>
        <source>The print server does not let you resume "%1". Ask whoever looks after it; the job waits meanwhile.</source>
        <translation>プリントサーバーは「%1」の再開を許可していません。管理者にお尋ねください。その間ジョブは待っています。</translation>
    </message>
    <message>
        <source>The print server does not let you release the job. Ask whoever looks after it; the job waits meanwhile.</source>
        <translation>プリントサーバーはジョブの再開を許可していません。管理者にお尋ねください。その間ジョブは待っています。</translation>
    </message>
    <message>
        <source>The print server does not let you print the job again. Ask whoever looks after it.</source>
        <translation>プリントサーバーはジョブの再印刷を許可していません。管理者にお尋ねください。</translation>
    </message>
</context>
<context>
    <name>JobSubmitter</name>
    <message>
        <source> Job %1 may still be on the queue of "%2" without its pages: cancel it there before you print again.</source>
        <translation> ジョブ %1 がページのないまま「%2」のキューに残っている可能性があります。もう一度印刷する前にキャンセルしてください。</translation>
    </message>
    <message>
        <source>The print server gave the job no number. Look into its error log.</source>
        <translation>プリントサーバーがジョブに番号を付けませんでした。エラーログをご覧ください。</translation>
    </message>
</context>
<context>
    <name>halvern::RunBar</name>
    <message>
        <source>Progress of the print job</source>
        <translation>印刷ジョブの進み具合</translation>
    </message>
    <message>
        <source>Resume Printer</source>
        <translation>プリンターを再開</translation>
    </message>
    <message>
        <source>Release Job</source>
        <translation>ジョブを再開</translation>
    </message>
    <message>
        <source>Print Job Again</source>
        <translation>もう一度印刷</translation>
    </message>
</context>
<context>
    <name>GivenOptions</name>
    <message>
        <source>The printer has no paper "%1".</source>
        <translation>プリンターに「%1」という用紙はありません。</translation>
    </message>
    <message>
        <source>The printer has no "sides=%1". Leave it out, or use the printer's own option for two-sided printing.</source>
        <translation>プリンターに「sides=%1」はありません。省くか、プリンター自身の両面印刷オプションを使ってください。</translation>
    </message>
    <message>
        <source>"%1" is no way to scale. Write print-scaling=fit, fill or none.</source>
        <translation>「%1」という拡大縮小の方法はありません。print-scaling=fit、fill、none のいずれかを書いてください。</translation>
    </message>
    <message>
        <source>"%1=%2" is not possible: the page is laid out before it is sent, one photo on each. Leave it out.</source>
        <translation>「%1=%2」は使えません。ページは送信前に 1 枚ずつ配置されます。省いてください。</translation>
    </message>
    <message>
        <source>The number of copies is no option of the printer. Give it with --copies.</source>
        <translation>部数はプリンターのオプションではありません。--copies で指定してください。</translation>
    </message>
    <message>
        <source>"%1" is set by the printer's own options here. "lpoptions -p QUEUE -l" lists them.</source>
        <translation>「%1」はプリンター自身のオプションで指定します。「lpoptions -p QUEUE -l」で一覧できます。</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>%1 のことですか？</translation>
    </message>
    <message>
        <source>It has: %1 and %2 more.</source>
        <translation>次のものがあります: %1、ほか %2 件。</translation>
    </message>
    <message>
        <source>It has: %1.</source>
        <translation>次のものがあります: %1。</translation>
    </message>
</context>
<context>
    <name>halvern::Stepper</name>
    <message>
        <source>Increase</source>
        <translation>増やす</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>減らす</translation>
    </message>
</context>
<context>
    <name>PageFit</name>
    <message>
        <source>The paper size "%1" is wider than the roll (%2).</source>
        <translation>用紙サイズ「%1」はロール紙 (%2) の幅を超えています。</translation>
    </message>
    <message>
        <source>The paper size "%1" is larger than the paper "%2".</source>
        <translation>用紙サイズ「%1」は用紙「%2」より大きくなっています。</translation>
    </message>
</context>
<context>
    <name>StartingOptions</name>
    <message>
        <source>The printer "%1" prints no text on the back of a picture. Leave --backprint out, or choose another printer.</source>
        <translation>プリンター「%1」は写真の裏面に文字を印刷できません。--backprint を外すか、別のプリンターを選んでください。</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterChoice</name>
    <message>
        <source>Your default printer "%1" is none of the print server's. "%2" was chosen instead.</source>
        <translation>既定のプリンター「%1」はプリントサーバーにありません。代わりに「%2」を選びました。</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Does not accept jobs</source>
        <translation>ジョブを受け付けません</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>ネットワークで見つかりました</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>確認が必要です</translation>
    </message>
    <message>
        <source>The print server has no printers. Add one, for example with lpadmin.</source>
        <translation>プリントサーバーにプリンターがありません。lpadmin などで追加してください。</translation>
    </message>
    <message>
        <source>The print server has no printer "%1". It has: %2.</source>
        <translation>プリントサーバーに「%1」というプリンターはありません。使えるプリンター: %2。</translation>
    </message>
    <message>
        <source>The print server has no printer "%1". It has: %2, and %3 more (lpstat -e).</source>
        <translation>プリントサーバーに「%1」というプリンターはありません。あるもの: %2、ほか %3 台 (lpstat -e)。</translation>
    </message>
</context>
<context>
    <name>QueuePpd</name>
    <message>
        <source>The printer "%1" has no description on the print server. Install it with a driver, or choose another printer.</source>
        <translation>プリンター「%1」の記述がプリントサーバーにありません。ドライバー付きで設定するか、別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>The description of the printer "%1" is damaged: %2. Install its driver again, or choose another printer.</source>
        <translation>プリンター「%1」の記述が壊れています: %2。ドライバーを再インストールするか、別のプリンターを選んでください。</translation>
    </message>
</context>
<context>
    <name>PpdLookup</name>
    <message>
        <source>%1 must be a number from %2 to %3.</source>
        <translation>%1 は %2 から %3 までの数にしてください。</translation>
    </message>
    <message>
        <source>%1 must have %2 to %3 characters.</source>
        <translation>%1 は %2～%3 文字にしてください。</translation>
    </message>
</context>
<context>
    <name>CupsSentences</name>
    <message>
        <source>The print server broke off the conversation. Try again; if it fails again, look into the print server's error log.</source>
        <translation>プリントサーバーとの通信が途中で切れました。もう一度お試しください。再び失敗する場合は、プリントサーバーのエラーログをご確認ください。</translation>
    </message>
    <message>
        <source>The print server does not answer. Wait a moment and try again, or restart it.</source>
        <translation>プリントサーバーが応答しません。少し待ってからもう一度試すか、再起動してください。</translation>
    </message>
    <message>
        <source>The print server's answer does not end. Restart the print server, and try again.</source>
        <translation>プリントサーバーの応答が終わりません。プリントサーバーを再起動して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The printer is not on the print server any more. Choose another one.</source>
        <translation>そのプリンターはもうプリントサーバーにありません。別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>The printer does not accept jobs at the moment. Choose another one, or let it accept jobs (cupsaccept).</source>
        <translation>プリンターは今ジョブを受け付けていません。別のプリンターを選ぶか、受け付けを許可してください (cupsaccept)。</translation>
    </message>
    <message>
        <source>The print server does not allow you to do this. Ask whoever looks after it.</source>
        <translation>プリントサーバーで許可されていません。管理者にお尋ねください。</translation>
    </message>
    <message>
        <source>The print server reports: %1</source>
        <translation>プリントサーバーからの報告: %1</translation>
    </message>
    <message>
        <source>The print server at %1 cannot be reached. Start it, for example with "systemctl start cups", and try again.</source>
        <translation>プリントサーバー %1 に接続できません。「systemctl start cups」などで起動して、もう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>PageRenderer</name>
    <message>
        <source>The print job could not be written to a temporary file. Make room on the disk and try again.</source>
        <translation>印刷ジョブを一時ファイルに書き込めませんでした。ディスクの空きを増やして、もう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>PhotoProblem</name>
    <message>
        <source>"%1" is damaged and cannot be read. Export it from your photo program again.</source>
        <translation>「%1」は壊れていて読めません。写真ソフトからもう一度書き出してください。</translation>
    </message>
    <message>
        <source>"%1" is damaged: a part of the picture is missing. Copy it from the camera again, or export it again.</source>
        <translation>「%1」は破損しています: 画像の一部が欠けています。カメラからもう一度コピーするか、もう一度書き出してください。</translation>
    </message>
    <message>
        <source>"%1" is too large to print. Make a copy with fewer pixels and print that.</source>
        <translation>「%1」は大きすぎて印刷できません。画素数を減らしたコピーを印刷してください。</translation>
    </message>
    <message>
        <source>"%1" is not a picture that can be printed. Use a JPEG, PNG, TIFF or PDF file.</source>
        <translation>「%1」は印刷できる画像ではありません。JPEG、PNG、TIFF、PDF のファイルをお使いください。</translation>
    </message>
    <message>
        <source>"%1" is locked with a password. Save a copy without one and print that.</source>
        <translation>「%1」はパスワードで保護されています。パスワードなしのコピーを印刷してください。</translation>
    </message>
    <message>
        <source>"%1" has changed meanwhile. Open it again.</source>
        <translation>「%1」は途中で変わりました。もう一度開いてください。</translation>
    </message>
    <message>
        <source>There is no file "%1". Check its name.</source>
        <translation>「%1」というファイルはありません。名前を確認してください。</translation>
    </message>
    <message>
        <source>"%1" is a folder. Name the photos in it, for example *.jpg.</source>
        <translation>「%1」はフォルダーです。*.jpg のように中の写真を指定してください。</translation>
    </message>
    <message>
        <source>"%1" cannot be opened. Check that you may read it.</source>
        <translation>「%1」を開けません。読み取りの権限を確認してください。</translation>
    </message>
    <message>
        <source>"%1" is empty. Copy it from the camera again.</source>
        <translation>「%1」は空です。カメラからもう一度コピーしてください。</translation>
    </message>
</context>
<context>
    <name>IppOptions</name>
    <message>
        <source>The value of %1 is too long to send: it has %2 bytes, and %3 are possible. Shorten it.</source>
        <translation>%1 の値が長すぎて送れません: %2 バイトあり、上限は %3 です。短くしてください。</translation>
    </message>
</context>
<context>
    <name>BackLines</name>
    <message>
        <source>Backprint line %1 cannot hold %2, which was left out. It takes the characters of an English keyboard except "~", and "©".</source>
        <translation>裏面の %1 行目には %2 を入れられないため、省きました。使えるのは、「~」を除く英語キーボードの文字と「©」です。</translation>
    </message>
    <message>
        <source>Backprint line %1 is longer than %2 characters; what comes after them was left out (%3).</source>
        <translation>裏面の %1 行目は %2 文字を超えています。それより後の文字は省きました (%3)。</translation>
    </message>
</context>
<context>
    <name>PaperTable</name>
    <message>
        <source>just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 分前</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 時間前</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 日前</translation>
    </message>
    <message>
        <source>%1: last updated never</source>
        <translation>%1: 最終更新 なし</translation>
    </message>
    <message>
        <source>%1: last updated %2 (%3)</source>
        <translation>%1: 最終更新 %2 (%3)</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>ロール</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>カット紙</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>面質</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Tones</source>
        <translation>トーン</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>The display cannot be used: %1. Print with --no-dialog, or set DISPLAY to one that works.</source>
        <translation>画面を使用できません: %1。--no-dialog で印刷するか、DISPLAY に使える画面を設定してください。</translation>
    </message>
    <message>
        <source>There is no display to show the dialog on. Print with --no-dialog, or set DISPLAY.</source>
        <translation>ダイアログを表示する画面がありません。--no-dialog で印刷するか、DISPLAY を設定してください。</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>The output could not be written: %1.</source>
        <translation>出力を書き込めませんでした: %1</translation>
    </message>
</context>
</TS>
