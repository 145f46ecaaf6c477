<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
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
    <name>AuthInfo</name>
    <message>
        <source>The printer &quot;%1&quot; wants a name and a password, and was given none. Print again and sign in, or ask whoever looks after it.</source>
        <translation>プリンター「%1」には名前とパスワードが必要ですが、渡されませんでした。もう一度印刷してサインインするか、管理者にお尋ねください。</translation>
    </message>
</context>
<context>
    <name>BackLines</name>
    <message>
        <source>Backprint line %1 cannot hold %2, which was left out. It takes the characters of an English keyboard except &quot;~&quot;, and &quot;©&quot;.</source>
        <translation>裏面の %1 行目には %2 を入れられないため、省きました。使えるのは、「~」を除く英語キーボードの文字と「©」です。</translation>
    </message>
    <message>
        <source>Backprint line %1 is longer than %2 characters; what comes after them was left out (%3).</source>
        <translation>裏面の %1 行目は %2 文字を超えています。それより後の文字は省きました (%3)。</translation>
    </message>
</context>
<context>
    <name>Caption</name>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>撮影日</translation>
    </message>
    <message>
        <source>Year (4 digits)</source>
        <translation>年 (4 桁)</translation>
    </message>
    <message>
        <source>Year (2 digits)</source>
        <translation>年 (2 桁)</translation>
    </message>
    <message>
        <source>Month (2 digits)</source>
        <translation>月 (2 桁)</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Day (2 digits)</source>
        <translation>日 (2 桁)</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
</context>
<context>
    <name>ColourManagement</name>
    <message>
        <source>Perceptual</source>
        <translation>知覚的</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>相対的な色域を維持</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>絶対的な色域を維持</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The printer is told not to convert them again (%1).</source>
        <translation>プリンターには、もう一度変換しないように指示します (%1)。</translation>
    </message>
    <message>
        <source>No color profile of this printer is known. Choose one, or let the printer manage colors.</source>
        <translation>このプリンターのカラープロファイルが見つかりません。プロファイルを選ぶか、色の管理をプリンターに任せてください。</translation>
    </message>
    <message>
        <source>colors for &quot;%1&quot;</source>
        <translation>「%1」用の色</translation>
    </message>
    <message>
        <source>The printer converts the colors: each photo goes to it in %1. No soft proof: only the printer knows what it makes of them.</source>
        <translation>プリンターが色を変換します。どの写真も %1 で送られます。仕上がりの色はプリンターにしか分からないため、ソフトプルーフはできません。</translation>
    </message>
    <message>
        <source>This program converts the colors, from each photo&apos;s own to &quot;%1&quot;.</source>
        <translation>このプログラムが、各写真の色を「%1」に変換します。</translation>
    </message>
    <message>
        <source>See that the printer&apos;s own color correction is off.</source>
        <translation>プリンター自身の色補正がオフになっていることを確認してください。</translation>
    </message>
    <message>
        <source>Only the printer knows what it makes of the colors. Let this program manage them, for a profile, to see a soft proof.</source>
        <translation>仕上がりの色はプリンターにしか分かりません。ソフトプルーフを見るには、プロファイルを選び、色の管理をこのプログラムに任せてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say what its colors look like: with it there is no soft proof.</source>
        <translation>「%1」には色の見え方の情報がないため、ソフトプルーフはできません。</translation>
    </message>
    <message>
        <source>Soft proof with paper white</source>
        <translation>用紙の白を含むソフトプルーフ</translation>
    </message>
    <message>
        <source>Soft proof</source>
        <translation>ソフトプルーフ</translation>
    </message>
    <message>
        <source>pink cannot be printed</source>
        <translation>ピンクの部分は印刷できません</translation>
    </message>
    <message>
        <source>The color profile &quot;%1&quot; is being read. Wait a moment.</source>
        <translation>カラープロファイル「%1」を読み込んでいます。少しお待ちください。</translation>
    </message>
    <message>
        <source>The color profile &quot;%1&quot; cannot be read. Choose another one, or let the printer manage colors.</source>
        <translation>カラープロファイル「%1」を読み込めません。別のプロファイルを選ぶか、色の管理をプリンターに任せてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color profile of a printer. Choose another one, or let the printer manage colors.</source>
        <translation>「%1」はプリンターのカラープロファイルではありません。別のプロファイルを選ぶか、色の管理をプリンターに任せてください。</translation>
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
        <source>Where no file is named, ask for photos in a window first.</source>
        <translation>ファイルが指定されていない場合は、最初にウィンドウで写真をたずねます。</translation>
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
        <source>See &quot;halvern-print --help&quot;.</source>
        <translation>「halvern-print --help」をご覧ください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no option: write KEY=VALUE, for example PageSize=A4.</source>
        <translation>「%1」はオプションではありません。PageSize=A4 のように KEY=VALUE で指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of copies: write a number from 1 to %2.</source>
        <translation>「%1」は部数ではありません。1 から %2 までの数を指定してください。</translation>
    </message>
    <message>
        <source>The queue&apos;s name is empty. &quot;lpstat -e&quot; lists the queues.</source>
        <translation>キューの名前が空です。「lpstat -e」でキューの一覧が見られます。</translation>
    </message>
    <message>
        <source>Prints photos, with a preview and the printer&apos;s own pages of options.</source>
        <translation>プレビューとプリンター固有の設定ページを使って写真を印刷します。</translation>
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
        <source>With --no-dialog: give a print server that goes silent after the job was sent this long; 60 seconds without it.</source>
        <translation>--no-dialog と共に: ジョブの送信後に応答しなくなったプリントサーバーを待つ秒数。省略時は 60 秒。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time to wait: write a number of seconds from 1 to %2.</source>
        <translation>「%1」は待ち時間ではありません。1 から %2 までの秒数を指定してください。</translation>
    </message>
    <message>
        <source>Print these pages only, for example 1-3,7,12-.</source>
        <translation>1-3,7,12- のように指定したページだけを印刷します。</translation>
    </message>
    <message>
        <source>Print the last page first.</source>
        <translation>最後のページから印刷します。</translation>
    </message>
    <message>
        <source>Call the job this; without it, it is called like the first file.</source>
        <translation>ジョブの名前。省略時は最初のファイルの名前になります。</translation>
    </message>
    <message>
        <source>Write the pages, as they would be sent, into this PDF file, and send nothing.</source>
        <translation>送信されるとおりのページをこの PDF ファイルに書き込み、何も送信しません。</translation>
    </message>
    <message>
        <source>With --no-dialog: read the job back from the print server, and say what was added or changed.</source>
        <translation>--no-dialog と併用: プリントサーバーからジョブを読み戻し、追加または変更されたものを知らせます。</translation>
    </message>
    <message>
        <source>Start with this preset of the printer&apos;s. Without it the dialog starts with what you printed with last, and --no-dialog with your saved options.</source>
        <translation>プリンターのこのプリセットで始めます。省略時、ダイアログは前回の印刷で使った設定で、--no-dialog は保存されたオプションで始めます。</translation>
    </message>
    <message>
        <source>Keep the queue&apos;s saved options, --preset and the options given here as a preset, and print nothing. Copies, pages and the text on the back are in it if they are given.</source>
        <translation>キューの保存されたオプション、--preset、ここで指定したオプションをプリセットとして保存し、何も印刷しません。部数、ページ、裏面の文字は、指定した場合に含まれます。</translation>
    </message>
    <message>
        <source>Write the print server&apos;s queues, a line each.</source>
        <translation>プリントサーバーのキューを 1 行に 1 つ出力します。</translation>
    </message>
    <message>
        <source>Write the printer&apos;s options with their current and default value and their choices, a line each.</source>
        <translation>プリンターのオプションを、現在の値、既定値、選択肢とともに 1 行に 1 つ出力します。</translation>
    </message>
    <message>
        <source>Write the names of the printer&apos;s presets, a line each.</source>
        <translation>プリンターのプリセットの名前を 1 行に 1 つ出力します。</translation>
    </message>
    <message>
        <source>The name of the file to write is empty.</source>
        <translation>書き込むファイルの名前が空です。</translation>
    </message>
    <message>
        <source>--output writes a file, and does not go with --dry-run.</source>
        <translation>--output はファイルを書き込むため、--dry-run と一緒には使えません。</translation>
    </message>
    <message>
        <source>--verify goes with --no-dialog, and with nothing that sends no job.</source>
        <translation>--verify は --no-dialog と一緒に使います。ジョブを送信しないオプションとは使えません。</translation>
    </message>
    <message>
        <source>--%1 prints no files: leave out the files and the options for printing.</source>
        <translation>--%1 はファイルを印刷しません。ファイルと印刷用のオプションを省いてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a preset that is always there. Choose another name.</source>
        <translation>「%1」は最初から用意されているプリセットです。別の名前にしてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a preset: write 1 to %2 characters.</source>
        <translation>「%1」はプリセットの名前に使えません。1～%2 文字で指定してください。</translation>
    </message>
    <message>
        <source>Turn the page: portrait or landscape; without it, as the photo.</source>
        <translation>ページの向き: portrait または landscape。省略時は写真に合わせます。</translation>
    </message>
    <message>
        <source>Send several jobs in order, with at most this many photos each; without it, one job.</source>
        <translation>1 件あたり最大この枚数の写真で、複数のジョブを順に送信します。省略時は 1 件のジョブになります。</translation>
    </message>
    <message>
        <source>Show the dialog above another program&apos;s window: x11: and the window&apos;s number in hexadecimal digits.</source>
        <translation>別のプログラムのウィンドウの上にダイアログを表示します: x11: に続けて 16 進数のウィンドウ番号。</translation>
    </message>
    <message>
        <source>When the dialog has closed, write what was chosen and what became of it to standard output, as JSON.</source>
        <translation>ダイアログが閉じたら、選んだ内容とその結果を JSON で標準出力に書き出します。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of photos: write 1 or more.</source>
        <translation>「%1」は写真の枚数ではありません。1 以上を指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no orientation: write portrait or landscape.</source>
        <translation>「%1」は向きではありません。portrait か landscape を指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no place: write two numbers from 0 to 1, for example 0.5,0.5.</source>
        <translation>「%1」は位置ではありません。0.5,0.5 のように 0 から 1 までの数を 2 つ指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no window: write x11: and its number, for example x11:3c00007.</source>
        <translation>「%1」はウィンドウを示していません。x11:3c00007 のように x11: とその番号を指定してください。</translation>
    </message>
    <message>
        <source>--parent and --result-json go with the dialog.</source>
        <translation>--parent と --result-json はダイアログと一緒に使います。</translation>
    </message>
    <message>
        <source>%1 is one of the files to print. Write to another file with --output.</source>
        <translation>%1 は印刷するファイルの 1 つです。--output で別のファイルを指定してください。</translation>
    </message>
    <message>
        <source>With --no-dialog: leave out files that cannot be read, or of which a part is missing, say which, and print the others.</source>
        <translation>--no-dialog と併用: 読めないファイルや一部が欠けているファイルを省いて知らせ、残りを印刷します。</translation>
    </message>
    <message>
        <source>Name at least one photo to print (JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF), or a folder of them.</source>
        <translation>印刷する写真を 1 枚以上、または写真のフォルダーを指定してください (JPEG、PNG、TIFF、WebP、HEIF、AVIF、PDF)。</translation>
    </message>
    <message>
        <source>JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF files, or folders of them; each photo becomes a page. &quot;-&quot; is standard input, &quot;@NAME&quot; a text file with a file&apos;s name on each line.</source>
        <translation>JPEG、PNG、TIFF、WebP、HEIF、AVIF、PDF ファイル、またはそのフォルダー。写真 1 枚が 1 ページになります。「-」は標準入力、「@NAME」は 1 行に 1 つファイル名を書いたテキストファイルです。</translation>
    </message>
    <message>
        <source>Standard input cannot be kept in a temporary file. Make room on the disk.</source>
        <translation>標準入力を一時ファイルに保存できません。ディスクの空きを増やしてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no rendering intent: write perceptual, relative, saturation or absolute.</source>
        <translation>「%1」はレンダリングインテントではありません。perceptual、relative、saturation、absolute のいずれかを指定してください。</translation>
    </message>
    <message>
        <source>Use this print server; without it, CUPS_SERVER, client.conf or this computer&apos;s.</source>
        <translation>このプリントサーバーを使います。省略時は CUPS_SERVER、client.conf、またはこのコンピューターのものを使います。</translation>
    </message>
    <message>
        <source>Who converts the photos&apos; colors: printer, which is given sRGB, or dialog, for a color profile of the printer.</source>
        <translation>写真の色を変換する側: printer (プリンター。sRGB で受け取ります) または dialog (ダイアログ。プリンターのカラープロファイルに変換します)。</translation>
    </message>
    <message>
        <source>Convert the colors for this ICC profile of the printer; without it, for the one that the printer comes with.</source>
        <translation>色をプリンターのこの ICC プロファイルに変換します。省略時はプリンターに付属のプロファイルに変換します。</translation>
    </message>
    <message>
        <source>What becomes of colors that the printer cannot show: perceptual, relative, saturation or absolute; without it, perceptual.</source>
        <translation>プリンターで再現できない色の扱い: perceptual、relative、saturation、absolute のいずれか。省略時は perceptual。</translation>
    </message>
    <message>
        <source>Convert the colors without black point compensation.</source>
        <translation>黒点の補正なしで色を変換します。</translation>
    </message>
    <message>
        <source>With --list-printers, --list-options, --list-presets or --jobs: write JSON, with more details.</source>
        <translation>--list-printers、--list-options、--list-presets、--jobs と併用: より詳しい内容を JSON で出力します。</translation>
    </message>
    <message>
        <source>Write your jobs that have not ended, on the queue of --printer or on all, a line each.</source>
        <translation>--printer のキュー、またはすべてのキューにある、終わっていない自分のジョブを 1 行に 1 つ出力します。</translation>
    </message>
    <message>
        <source>With --jobs: those that have ended, too.</source>
        <translation>--jobs と併用: 終わったジョブも出力します。</translation>
    </message>
    <message>
        <source>With --jobs: cancel this job.</source>
        <translation>--jobs と併用: このジョブをキャンセルします。</translation>
    </message>
    <message>
        <source>With --jobs: hold this job.</source>
        <translation>--jobs と併用: このジョブを保留します。</translation>
    </message>
    <message>
        <source>With --jobs: let this held job go on.</source>
        <translation>--jobs と併用: 保留中のこのジョブを再開します。</translation>
    </message>
    <message>
        <source>With --jobs: print this job again, if the print server has kept its pages.</source>
        <translation>--jobs と併用: プリントサーバーにページが残っていれば、このジョブをもう一度印刷します。</translation>
    </message>
    <message>
        <source>With --jobs: give the printer the name and the password for which it holds this job.</source>
        <translation>--jobs と併用: このジョブが保留される原因の名前とパスワードをプリンターに渡します。</translation>
    </message>
    <message>
        <source>With --jobs: move this job to another queue; --to says which.</source>
        <translation>--jobs と併用: このジョブを --to で指定したキューに移します。</translation>
    </message>
    <message>
        <source>With --jobs --move: the queue to move the job to.</source>
        <translation>--jobs --move と併用: ジョブの移動先のキュー。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no print server: write its name or address, and a port where it is not 631, for example print.example.org:8631.</source>
        <translation>「%1」はプリントサーバーではありません。print.example.org:8631 のように、名前かアドレスと、631 以外ならポートを指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; converts no colors: write printer or dialog.</source>
        <translation>「%1」は色を変換しません。printer か dialog を指定してください。</translation>
    </message>
    <message>
        <source>--profile, --intent and --no-black-point go with --color-by dialog.</source>
        <translation>--profile、--intent、--no-black-point は --color-by dialog と一緒に使います。</translation>
    </message>
    <message>
        <source>--ended, --cancel, --hold, --release, --again, --sign-in, --move and --to go with --jobs.</source>
        <translation>--ended、--cancel、--hold、--release、--again、--sign-in、--move、--to は --jobs と一緒に使います。</translation>
    </message>
    <message>
        <source>Do one thing at a time: give one of --cancel, --hold, --release, --again and --sign-in, or --move and --to together.</source>
        <translation>一度にできるのは 1 つです。--cancel、--hold、--release、--again、--sign-in のどれか、または --move と --to の組を指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no job: write its number, as --jobs lists it.</source>
        <translation>「%1」はジョブではありません。--jobs で表示される番号を指定してください。</translation>
    </message>
    <message>
        <source>--json goes with --list-printers, --list-options, --list-presets or --jobs.</source>
        <translation>--json は --list-printers、--list-options、--list-presets、--jobs と一緒に使います。</translation>
    </message>
    <message>
        <source>Where the spare room or the cut goes: 0,0 is left and top, 1,1 right and bottom. Can be given several times, for one photo after the other, as can the next three.</source>
        <translation>余白や切る部分がある場合の写真の位置: 0,0 は左上、1,1 は右下。複数指定でき、写真の順に使います。次の 3 つも同様です。</translation>
    </message>
    <message>
        <source>Print a part of the photo this much larger, 1 to %1.</source>
        <translation>写真の一部をこの倍率に拡大して印刷します (1～%1)。</translation>
    </message>
    <message>
        <source>Turn the photo clockwise: 0, 90, 180 or 270 degrees.</source>
        <translation>写真を時計回りに回転します: 0、90、180、270 度。</translation>
    </message>
    <message>
        <source>Print the photo this often in each copy of the job, 1 to %1.</source>
        <translation>ジョブの 1 部ごとに写真を印刷する回数 (1～%1)。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no enlargement: write a number from 1 to %2.</source>
        <translation>「%1」は拡大率ではありません。1 から %2 までの数を指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no turn: write 0, 90, 180 or 270.</source>
        <translation>「%1」は回転角度ではありません。0、90、180、270 のどれかを指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no length: write millimeters from 0 to %2.</source>
        <translation>「%1」は長さではありません。0 から %2 までのミリメートルを指定してください。</translation>
    </message>
    <message>
        <source>Put several photos on a sheet: a layout&apos;s name, rows and columns such as 3x4, or a size such as 90x130mm.</source>
        <translation>1 枚の用紙に複数の写真を並べます: レイアウトの名前、3x4 のような行数と列数、または 90x130mm のようなサイズ。</translation>
    </message>
    <message>
        <source>Write this under each photo. It holds placeholders: [F] file name, [T] title, [C] number, [DATE] date taken, [YYYY], [MM], [DD].</source>
        <translation>各写真の下に書く文字列。差し込み項目が使えます: [F] ファイル名、[T] タイトル、[C] 番号、[DATE] 撮影日、[YYYY]、[MM]、[DD]。</translation>
    </message>
    <message>
        <source>Print each photo in this size, for example 100x150, 4x6in, or 50% of its own.</source>
        <translation>各写真をこのサイズで印刷します。例: 100x150、4x6in、元のサイズの 50%。</translation>
    </message>
    <message>
        <source>With --photo-size: so many millimeters from the sheet&apos;s left and top, for example 20,15.</source>
        <translation>--photo-size と併用: 用紙の左と上からの距離 (ミリメートル)。例: 20,15。</translation>
    </message>
    <message>
        <source>Leave so many millimeters free at the sheet&apos;s edges at least.</source>
        <translation>用紙の端に最低限あける余白 (ミリメートル)。</translation>
    </message>
    <message>
        <source>Leave a white border of so many millimeters around each photo.</source>
        <translation>各写真の周りに付ける白フチの幅 (ミリメートル)。</translation>
    </message>
    <message>
        <source>With --layout: each photo fills its own sheet.</source>
        <translation>--layout と併用: 1 枚の用紙に同じ写真を並べます。</translation>
    </message>
    <message>
        <source>The photos share sheets.</source>
        <translation>1 枚の用紙に違う写真も並べます。</translation>
    </message>
    <message>
        <source>Print marks that show where to cut.</source>
        <translation>切る位置を示すトンボを印刷します。</translation>
    </message>
    <message>
        <source>Print no such marks.</source>
        <translation>トンボを印刷しません。</translation>
    </message>
    <message>
        <source>Print a thin line around each photo.</source>
        <translation>各写真の周りに細い線を印刷します。</translation>
    </message>
    <message>
        <source>Print no such line.</source>
        <translation>細い線を印刷しません。</translation>
    </message>
    <message>
        <source>The caption is longer than %1 characters.</source>
        <translation>キャプションが %1 文字を超えています。</translation>
    </message>
    <message>
        <source>--%1 and --no-%1 do not go together.</source>
        <translation>--%1 と --no-%1 は一緒に使えません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size: write %2% to %3%.</source>
        <translation>「%1」はサイズではありません。%2% から %3% までを指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size: write millimeters such as 100x150, inches such as 4x6in, or 50%.</source>
        <translation>「%1」はサイズではありません。100x150 のようなミリメートル、4x6in のようなインチ、または 50% のように指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no corner: write two lengths in millimeters, for example 20,15.</source>
        <translation>「%1」は角の位置ではありません。20,15 のように 2 つの長さをミリメートルで指定してください。</translation>
    </message>
    <message>
        <source>--corner goes with --photo-size and a width and a height.</source>
        <translation>--corner は、幅と高さを指定した --photo-size と一緒に使います。</translation>
    </message>
    <message>
        <source>--photo-size with a width and a height does not go with --layout, which says how large the photos are. Leave one of them out.</source>
        <translation>幅と高さを指定した --photo-size は、写真の大きさを決める --layout と一緒には使えません。どちらかを省いてください。</translation>
    </message>
    <message>
        <source>Exit status:
  0  Printed, or written what was asked for.
  1  Failed; standard error says why.
  2  Wrong usage.
  3  The job is on the queue, and had not ended yet.
  4  Cancelled: nothing was printed.
  5  The job was sent, but the print server does not tell how it ended.
  6  With --verify: printed, but not held by the print server as it was sent.
  7  A print server or a printer wants a name and a password, and was not given the right ones.</source>
        <translation>終了ステータス:
  0  印刷したか、求められた内容を出力しました。
  1  失敗しました。理由は標準エラー出力に示します。
  2  使い方の誤りです。
  3  ジョブはキューにあり、まだ終わっていませんでした。
  4  キャンセルしました。何も印刷していません。
  5  ジョブは送信しましたが、どう終わったかをプリントサーバーが伝えません。
  6  --verify と併用: 印刷しましたが、プリントサーバーにあるジョブは送信したものと違います。
  7  プリントサーバーまたはプリンターに名前とパスワードが必要ですが、正しいものが渡されませんでした。</translation>
    </message>
</context>
<context>
    <name>CupsSentences</name>
    <message>
        <source>The print server broke off the conversation. Try again; if it fails again, look into the print server&apos;s error log.</source>
        <translation>プリントサーバーとの通信が途中で切れました。もう一度お試しください。再び失敗する場合は、プリントサーバーのエラーログをご確認ください。</translation>
    </message>
    <message>
        <source>The print server does not answer. Wait a moment and try again, or restart it.</source>
        <translation>プリントサーバーが応答しません。少し待ってからもう一度試すか、再起動してください。</translation>
    </message>
    <message>
        <source>The print server&apos;s answer does not end. Restart the print server, and try again.</source>
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
        <source>The print server at %1 cannot be reached. Start it, for example with &quot;systemctl start cups&quot;, and try again.</source>
        <translation>プリントサーバー %1 に接続できません。「systemctl start cups」などで起動して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The print server at %1 cannot be reached. Is its name right, is it switched on, and is this computer on its network?</source>
        <translation>プリントサーバー %1 に接続できません。名前は正しいか、電源は入っているか、このコンピューターが同じネットワークにあるかをご確認ください。</translation>
    </message>
    <message>
        <source>The print server at %1 wants to talk in secret only, and no encryption could be agreed upon with it. Ask whoever looks after it.</source>
        <translation>プリントサーバー %1 は暗号化された通信しか受け付けませんが、暗号化の方式が合いませんでした。管理者にお尋ねください。</translation>
    </message>
    <message>
        <source>The certificate of the print server at %1 is not trusted, so nothing was sent to it. Try again to look at it once more, or ask whoever looks after the server.</source>
        <translation>プリントサーバー %1 の証明書は信頼されていないため、何も送っていません。もう一度試して証明書を確認するか、サーバーの管理者にお尋ねください。</translation>
    </message>
    <message>
        <source>The print server at %1 wants a name and a password for this, and was given none. Try again and sign in, or ask whoever looks after it.</source>
        <translation>プリントサーバー %1 でこれを行うには名前とパスワードが必要ですが、渡されませんでした。もう一度試してサインインするか、管理者にお尋ねください。</translation>
    </message>
</context>
<context>
    <name>CustomPaper</name>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 × %2 in</source>
        <translation>%1 × %2 インチ</translation>
    </message>
</context>
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
        <source>&amp;Leave Them Out</source>
        <translation>除外する(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Print All the Same</source>
        <translation>そのまま印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Print without these files?</source>
        <translation>これらのファイルを除いて印刷しますか?</translation>
    </message>
    <message>
        <source>What is missing comes out gray, or smeared. Files that cannot be read are left out.</source>
        <translation>欠けている部分は灰色または乱れて印刷されます。読めないファイルは省きます。</translation>
    </message>
    <message>
        <source>Files that cannot be read are left out.</source>
        <translation>読めないファイルは省きます。</translation>
    </message>
    <message>
        <source>&amp;Print the Others</source>
        <translation>残りを印刷(&amp;P)</translation>
    </message>
</context>
<context>
    <name>DocumentKind</name>
    <message>
        <source>The application has sent an empty document. Print it once more from there.</source>
        <translation>アプリケーションから空の文書が送られました。アプリケーションからもう一度印刷してください。</translation>
    </message>
    <message>
        <source>What the application has sent is no PDF, PostScript or picture. Export the document as a PDF file there, and print that.</source>
        <translation>アプリケーションから送られたものは PDF、PostScript、画像のいずれでもありません。アプリケーションで文書を PDF ファイルに書き出し、それを印刷してください。</translation>
    </message>
    <message>
        <source>The document ends in the middle: the application has not sent all of it. Print it once more from there.</source>
        <translation>文書が途中で終わっています。アプリケーションから全体が送られていません。アプリケーションからもう一度印刷してください。</translation>
    </message>
</context>
<context>
    <name>FrontEnd</name>
    <message>
        <source>&quot;halvern-print-portal --enable&quot; changes that for you.</source>
        <translation>「halvern-print-portal --enable」で変更できます。</translation>
    </message>
    <message>
        <source>It takes the first by file name. An administrator can put this one before &quot;%1&quot;: ln -s tessarin.portal %2/00-tessarin.portal</source>
        <translation>ポータルはファイル名の順で最初のものを使います。管理者はこれを「%1」より前に置けます: ln -s tessarin.portal %2/00-tessarin.portal</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>「%1」に書き込めません: %2。</translation>
    </message>
    <message>
        <source>The portal reads that when it starts: log in again, or run &quot;systemctl --user restart xdg-desktop-portal&quot;.</source>
        <translation>ポータルは起動時にこれを読み込みます。ログインし直すか、「systemctl --user restart xdg-desktop-portal」を実行してください。</translation>
    </message>
    <message>
        <source>There is no portal on this computer: install xdg-desktop-portal.</source>
        <translation>このコンピューターにはポータルがありません。xdg-desktop-portal をインストールしてください。</translation>
    </message>
    <message>
        <source>The portal (%1) does not know this program: there is no tessarin.portal in %2. Install it there.</source>
        <translation>ポータル (%1) はこのプログラムを認識していません。%2 に tessarin.portal がありません。そこにインストールしてください。</translation>
    </message>
    <message>
        <source>The portal (%1) chooses this program for printing.</source>
        <translation>ポータル (%1) は印刷にこのプログラムを使います。</translation>
    </message>
    <message>
        <source>The portal (%1) prints with nothing, as &quot;%2&quot; says. %3</source>
        <translation>「%2」の指定により、ポータル (%1) は印刷にどのプログラムも使いません。%3</translation>
    </message>
    <message>
        <source>The portal (%1) chooses &quot;%2&quot; for printing. %3</source>
        <translation>ポータル (%1) は印刷に「%2」を使います。%3</translation>
    </message>
    <message>
        <source>Written into &quot;%1&quot;.</source>
        <translation>「%1」に書き込みました。</translation>
    </message>
    <message>
        <source>There is no line of this program&apos;s in &quot;%1&quot;.</source>
        <translation>「%1」にこのプログラムの行はありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed.</source>
        <translation>「%1」を削除できません。</translation>
    </message>
    <message>
        <source>Taken out of &quot;%1&quot;.</source>
        <translation>「%1」から取り除きました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>「%1」を読み込めません: %2。</translation>
    </message>
</context>
<context>
    <name>GivenOptions</name>
    <message>
        <source>The printer has no paper &quot;%1&quot;.</source>
        <translation>プリンターに「%1」という用紙はありません。</translation>
    </message>
    <message>
        <source>The printer has no &quot;sides=%1&quot;. Leave it out, or use the printer&apos;s own option for two-sided printing.</source>
        <translation>プリンターに「sides=%1」はありません。省くか、プリンター自身の両面印刷オプションを使ってください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no way to scale. Write print-scaling=fit, fill or none.</source>
        <translation>「%1」という拡大縮小の方法はありません。print-scaling=fit、fill、none のいずれかを書いてください。</translation>
    </message>
    <message>
        <source>&quot;%1=%2&quot; is not possible: the page is laid out before it is sent, one photo on each. Leave it out.</source>
        <translation>「%1=%2」は使えません。ページは送信前に 1 枚ずつ配置されます。省いてください。</translation>
    </message>
    <message>
        <source>The number of copies is no option of the printer. Give it with --copies.</source>
        <translation>部数はプリンターのオプションではありません。--copies で指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is set by the printer&apos;s own options here. &quot;lpoptions -p QUEUE -l&quot; lists them.</source>
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
    <message>
        <source>&quot;%1&quot; is no set of pages. Write page-set=all, odd or even.</source>
        <translation>「%1」というページの組はありません。page-set=all、odd、even のいずれかを書いてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no order of pages. Write outputorder=normal or reverse.</source>
        <translation>「%1」というページの順序はありません。outputorder=normal か reverse を書いてください。</translation>
    </message>
</context>
<context>
    <name>HandedOptions</name>
    <message>
        <source>The application&apos;s settings</source>
        <translation>アプリケーションの設定</translation>
    </message>
    <message>
        <source>Settings of %1</source>
        <translation>%1 の設定</translation>
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
    <name>IppWords</name>
    <message>
        <source>Paper size</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>給紙方法</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>用紙の種類</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>排紙トレイ</translation>
    </message>
    <message>
        <source>Best for</source>
        <translation>印刷対象</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>レンダリングインテント</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>長辺とじ</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>短辺とじ</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>白黒</translation>
    </message>
    <message>
        <source>Automatic, black and white</source>
        <translation>自動 (白黒)</translation>
    </message>
    <message>
        <source>Black only</source>
        <translation>黒のみ</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>下書き</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高品質</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>印刷面を上</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>印刷面を下</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>図</translation>
    </message>
    <message>
        <source>Text and graphics</source>
        <translation>文字と図</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>知覚的</translation>
    </message>
    <message>
        <source>Relative</source>
        <translation>相対的</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Absolute</source>
        <translation>絶対的</translation>
    </message>
</context>
<context>
    <name>JobActions</name>
    <message>
        <source>The print server does not let you cancel this job. Ask whoever looks after it.</source>
        <translation>プリントサーバーはこのジョブのキャンセルを許可していません。管理者にお尋ねください。</translation>
    </message>
    <message>
        <source>The print server does not let you resume &quot;%1&quot;. Ask whoever looks after it; the job waits meanwhile.</source>
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
    <name>JobInWords</name>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>not enough paper for %1</source>
        <translation>%1 には用紙の大きさが足りません</translation>
    </message>
    <message>
        <source>roll %1</source>
        <translation>ロール紙 %1</translation>
    </message>
    <message>
        <source>%1 roll %2</source>
        <translation>%1 ロール紙 %2</translation>
    </message>
    <message>
        <source>sheet: %1</source>
        <translation>カット紙: %1</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 in</source>
        <translation>%1 インチ</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>two-sided: %1</source>
        <translation>両面印刷: %1</translation>
    </message>
    <message>
        <source>pages %1 of %2</source>
        <translation>全 %2 ページ中 %1 ページ</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 ページ</translation>
    </message>
    <message>
        <source>last page first</source>
        <translation>最後のページから</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 部</translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation>%1 部</translation>
    </message>
    <message>
        <source>not collated</source>
        <translation>部単位で印刷しない</translation>
    </message>
    <message>
        <source>text on the back</source>
        <translation>裏面に文字</translation>
    </message>
    <message>
        <source>with a banner page</source>
        <translation>表紙付き</translation>
    </message>
    <message>
        <source>held on the queue</source>
        <translation>キューで保留</translation>
    </message>
    <message>
        <source>%1 more settings changed</source>
        <translation>ほか %1 件の設定を変更</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
    <message>
        <source>%1 borderless</source>
        <translation>%1 フチなし</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>写真 %1 枚</translation>
    </message>
</context>
<context>
    <name>JobReadBack</name>
    <message>
        <source>The print server does not tell what it holds of job %1.</source>
        <translation>プリントサーバーがジョブ %1 の内容を知らせません。</translation>
    </message>
    <message>
        <source>The print server holds job %1 exactly as it was sent.</source>
        <translation>プリントサーバーにあるジョブ %1 は、送信したものとまったく同じです。</translation>
    </message>
    <message>
        <source>%1 instead of %2</source>
        <translation>%1 (%2 の代わり)</translation>
    </message>
    <message>
        <source>without %1</source>
        <translation>%1 なし</translation>
    </message>
    <message>
        <source>Added to job %1 by the print server or the queue: %2.</source>
        <translation>プリントサーバーまたはキューがジョブ %1 に追加したもの: %2。</translation>
    </message>
    <message>
        <source>Changed in job %1 by the print server: %2.</source>
        <translation>プリントサーバーがジョブ %1 で変更したもの: %2。</translation>
    </message>
</context>
<context>
    <name>JobStatus</name>
    <message>
        <source>Job %1 waits for &quot;%2&quot;%3.</source>
        <translation>ジョブ %1 は「%2」を待っています%3。</translation>
    </message>
    <message>
        <source>Job %1 is printing on &quot;%2&quot;%3.</source>
        <translation>ジョブ %1 を「%2」で印刷しています%3。</translation>
    </message>
    <message>
        <source>Job %1 was cancelled on &quot;%2&quot;.</source>
        <translation>「%2」のジョブ %1 はキャンセルされました。</translation>
    </message>
    <message>
        <source>Job %1 failed on &quot;%2&quot;%3. Print again; if it fails again, look into the print server&apos;s error log.</source>
        <translation>ジョブ %1 は「%2」で失敗しました%3。もう一度印刷してください。再び失敗する場合は、プリントサーバーのエラーログをご覧ください。</translation>
    </message>
    <message>
        <source>Printed: job %1 on &quot;%2&quot;.</source>
        <translation>印刷しました: 「%2」のジョブ %1。</translation>
    </message>
    <message>
        <source>Job %1 waits because &quot;%2&quot; is paused%3.</source>
        <translation>「%2」が一時停止中のため、ジョブ %1 は待っています%3。</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot; because it was asked to wait%3.</source>
        <translation>ジョブ %1 は待機の指定により「%2」で保留されています%3。</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot;%3.</source>
        <translation>ジョブ %1 は「%2」で保留されています%3。</translation>
    </message>
    <message>
        <source>Job %1 stopped on &quot;%2&quot;%3.</source>
        <translation>ジョブ %1 は「%2」で停止しました%3。</translation>
    </message>
    <message>
        <source>Job %1 has left the queue of &quot;%2&quot;. The print server keeps no record of how it ended.</source>
        <translation>ジョブ %1 は「%2」のキューを出ました。プリントサーバーは終了の記録を残していません。</translation>
    </message>
    <message>
        <source>&quot;%2&quot; is not on the print server any more, and job %1 with it. Look at the printer before you print again.</source>
        <translation>「%2」はプリントサーバーになくなり、ジョブ %1 も失われました。もう一度印刷する前にプリンターをご確認ください。</translation>
    </message>
    <message>
        <source>The print server does not answer. Job %1 was sent to &quot;%2&quot;, and may be printed.</source>
        <translation>プリントサーバーが応答しません。ジョブ %1 は「%2」に送信済みで、印刷される可能性があります。</translation>
    </message>
    <message>
        <source>See to the printer and resume it with &quot;cupsenable %2&quot;, or cancel the job with &quot;cancel %2-%1&quot;.</source>
        <translation>プリンターを確認して「cupsenable %2」で再開するか、「cancel %2-%1」でジョブをキャンセルしてください。</translation>
    </message>
    <message>
        <source>Release it with &quot;lp -i %1 -H resume&quot;, or cancel it with &quot;cancel %2-%1&quot;.</source>
        <translation>「lp -i %1 -H resume」で再開するか、「cancel %2-%1」でキャンセルしてください。</translation>
    </message>
    <message>
        <source>Print it again with &quot;lp -i %1 -H restart&quot;, or cancel it with &quot;cancel %2-%1&quot;.</source>
        <translation>「lp -i %1 -H restart」でもう一度印刷するか、「cancel %2-%1」でキャンセルしてください。</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot;: the printer wants a name and a password%3.</source>
        <translation>ジョブ %1 は「%2」で保留されています。プリンターに名前とパスワードが必要です%3。</translation>
    </message>
    <message>
        <source>Give them with &quot;halvern-print --jobs --sign-in %1&quot;, or cancel the job with &quot;cancel %2-%1&quot;.</source>
        <translation>「halvern-print --jobs --sign-in %1」で入力するか、「cancel %2-%1」でジョブを取り消してください。</translation>
    </message>
</context>
<context>
    <name>JobSubmitter</name>
    <message>
        <source> Job %1 may still be on the queue of &quot;%2&quot; without its pages: cancel it there before you print again.</source>
        <translation> ジョブ %1 がページのないまま「%2」のキューに残っている可能性があります。もう一度印刷する前にキャンセルしてください。</translation>
    </message>
    <message>
        <source>The print server gave the job no number. Look into its error log.</source>
        <translation>プリントサーバーがジョブに番号を付けませんでした。エラーログをご覧ください。</translation>
    </message>
    <message>
        <source> A job without its pages may still be on the queue of &quot;%1&quot;: look there before you print again.</source>
        <translation> ページのないジョブが「%1」のキューに残っている可能性があります。もう一度プリントする前にご確認ください。</translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source> in</source>
        <translation> インチ</translation>
    </message>
</context>
<context>
    <name>Layouts</name>
    <message>
        <source>&quot;%1&quot; is no number from %2 to %3.</source>
        <translation>「%1」は %2 から %3 までの数ではありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>「%1」は true でも false でもありません。</translation>
    </message>
    <message>
        <source>A measure is not written as %1 numbers from 0 to %2.</source>
        <translation>寸法が 0 から %2 までの %1 個の数で書かれていません。</translation>
    </message>
    <message>
        <source>A photo is not from %1 to %2 mm wide and high.</source>
        <translation>写真の幅と高さが %1～%2 mm の範囲にありません。</translation>
    </message>
    <message>
        <source>&quot;kind&quot; is none of grid, size, cells and pack.</source>
        <translation>「kind」が grid、size、cells、pack のどれでもありません。</translation>
    </message>
    <message>
        <source>&quot;cells&quot; does not hold 1 to %1 places.</source>
        <translation>「cells」の数が 1～%1 の範囲にありません。</translation>
    </message>
    <message>
        <source>&quot;caption&quot; is longer than %1 characters.</source>
        <translation>「caption」が %1 文字を超えています。</translation>
    </message>
    <message>
        <source>&quot;scaling&quot; is neither fit nor fill.</source>
        <translation>「scaling」が fit でも fill でもありません。</translation>
    </message>
    <message>
        <source>%1 rows of %2</source>
        <translation>%1 行 × %2 列</translation>
    </message>
    <message>
        <source>Photos of %1 × %2 %3</source>
        <translation>%1 × %2 %3 の写真</translation>
    </message>
    <message>
        <source>It is no layout: &quot;schema&quot; is not &quot;%1&quot;.</source>
        <translation>レイアウトではありません:「schema」が「%1」ではありません。</translation>
    </message>
    <message>
        <source>It is of another version of this program.</source>
        <translation>このプログラムの別のバージョンのものです。</translation>
    </message>
    <message>
        <source>It has no &quot;name&quot;.</source>
        <translation>「name」がありません。</translation>
    </message>
    <message>
        <source>The layout takes %1 × %2 mm, and this paper has %3 × %4 mm to print on. Choose a larger paper, one without margins, or another layout.</source>
        <translation>このレイアウトには %1 × %2 mm 必要ですが、この用紙に印刷できるのは %3 × %4 mm です。より大きな用紙、余白なしの用紙、または別のレイアウトを選んでください。</translation>
    </message>
    <message>
        <source>So many photos would be smaller than %1 mm on this paper. Choose fewer rows or columns, or a larger paper.</source>
        <translation>この枚数では、この用紙上の写真が %1 mm より小さくなります。行か列を減らすか、より大きな用紙を選んでください。</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>ファイルではありません。</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>大きすぎます。</translation>
    </message>
    <message>
        <source>It is no JSON object: %1.</source>
        <translation>JSON オブジェクトではありません: %1。</translation>
    </message>
    <message>
        <source>There is another layout &quot;%1&quot;.</source>
        <translation>別のレイアウト「%1」があります。</translation>
    </message>
    <message>
        <source>The layout %1 was left out. %2</source>
        <translation>レイアウト %1 は使いませんでした。%2</translation>
    </message>
    <message>
        <source>There is no layout &quot;%1&quot;. There are: %2; and rows x columns, such as 3x4, and sizes, such as 90x130mm.</source>
        <translation>「%1」というレイアウトはありません。使えるもの: %2、3x4 のような行数と列数、90x130mm のようなサイズ。</translation>
    </message>
    <message>
        <source>Write a name with letters or numbers.</source>
        <translation>文字か数字を含む名前を入力してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a layout that is always there. Choose another name.</source>
        <translation>「%1」は最初から用意されているレイアウトです。別の名前にしてください。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>フォルダー %1 を作れません。</translation>
    </message>
    <message>
        <source>The layout could not be kept in %1. %2</source>
        <translation>レイアウトを %1 に保存できませんでした。%2</translation>
    </message>
    <message>
        <source>Only layouts of your own can be deleted.</source>
        <translation>削除できるのは自分のレイアウトだけです。</translation>
    </message>
    <message>
        <source>%1 could not be deleted. %2</source>
        <translation>%1 を削除できませんでした。%2</translation>
    </message>
    <message>
        <source>Not every photo fits on this paper. Choose a smaller size.</source>
        <translation>この用紙に収まらない写真があります。より小さなサイズを選んでください。</translation>
    </message>
    <message>
        <source>All photos are left out. Include at least one of them.</source>
        <translation>すべての写真が除外されています。少なくとも 1 枚を含めてください。</translation>
    </message>
    <message>
        <source>The file %1 holds something else already. Choose another name, or take the file away.</source>
        <translation>ファイル %1 にはすでに別の内容があります。別の名前にするか、ファイルを移動してください。</translation>
    </message>
    <message>
        <source>These are %1 photos on all sheets, and a job takes %2. Choose fewer photos, or fewer copies of each.</source>
        <translation>すべての用紙を合わせて写真が %1 枚になりますが、1 つのジョブに入るのは %2 枚までです。写真を減らすか、各写真の部数を減らしてください。</translation>
    </message>
    <message>
        <source>With margins of %1 mm nothing is left of this paper. Choose smaller margins, or a larger paper.</source>
        <translation>余白が %1 mm では、この用紙に印刷できる部分が残りません。余白を小さくするか、より大きな用紙を選んでください。</translation>
    </message>
    <message>
        <source>A photo of %1 × %2 mm at %3, %4 mm is not all on what can be printed of this page: %5 × %6 mm at %7, %8 mm. Choose a smaller size, another place, or another paper.</source>
        <translation>%3, %4 mm に置いた %1 × %2 mm の写真は、このページで印刷できる範囲 (%7, %8 mm から %5 × %6 mm) に収まりません。小さいサイズ、別の位置、または別の用紙を選んでください。</translation>
    </message>
    <message>
        <source>There is one sheet only, and none with an even number. Choose all sheets, or more photos.</source>
        <translation>用紙は 1 枚だけで、偶数枚目はありません。すべての用紙を選ぶか、写真を増やしてください。</translation>
    </message>
</context>
<context>
    <name>ListJobs</name>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>ジョブ %1 をキャンセルしました。</translation>
    </message>
    <message>
        <source>Job %1 is held.</source>
        <translation>ジョブ %1 を保留しました。</translation>
    </message>
    <message>
        <source>Job %1 was released.</source>
        <translation>ジョブ %1 を再開しました。</translation>
    </message>
    <message>
        <source>Job %1 is printed again.</source>
        <translation>ジョブ %1 をもう一度印刷します。</translation>
    </message>
    <message>
        <source>Job %1 has what the printer asks for.</source>
        <translation>ジョブ %1 に、プリンターが求めるものを渡しました。</translation>
    </message>
    <message>
        <source>Job %1 was moved to &quot;%2&quot;.</source>
        <translation>ジョブ %1 を「%2」に移しました。</translation>
    </message>
    <message>
        <source>You have no job %1 on the print server. --jobs --ended lists yours.</source>
        <translation>プリントサーバーに自分のジョブ %1 はありません。--jobs --ended で一覧が見られます。</translation>
    </message>
    <message>
        <source>You have no jobs there.</source>
        <translation>そこに自分のジョブはありません。</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ数</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>送信日時</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>You have no job %1 on &quot;%2&quot;. --jobs --ended lists yours.</source>
        <translation>「%2」に自分のジョブ %1 はありません。--jobs --ended で一覧が見られます。</translation>
    </message>
</context>
<context>
    <name>ListPapers</name>
    <message>
        <source>The printer &quot;%1&quot; was asked, but has not reported its papers. Look into the print server&apos;s error log.</source>
        <translation>プリンター「%1」に問い合わせましたが、用紙の情報が届きませんでした。プリントサーバーのエラーログを確認してください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not report its papers: it has no Halvern driver.</source>
        <translation>プリンター「%1」は用紙の情報を知らせません。Halvern のドライバーではありません。</translation>
    </message>
    <message>
        <source>Asking &quot;%1&quot; ...</source>
        <translation>「%1」に問い合わせています...</translation>
    </message>
    <message>
        <source>Waiting for &quot;%1&quot;%2 ...</source>
        <translation>「%1」を待っています%2...</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is busy with another job. Ask again when that has ended.</source>
        <translation>プリンター「%1」は別のジョブを処理しています。終わってからもう一度問い合わせてください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not work at the moment%2, and the question was taken back. Resume the printer (cupsenable) and ask again.</source>
        <translation>プリンター「%1」は現在動作していないため%2、問い合わせを取り消しました。プリンターを再開して (cupsenable) もう一度問い合わせてください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not answer%2. See to the printer and ask again.</source>
        <translation>プリンター「%1」は応答できませんでした%2。プリンターを確認して、もう一度問い合わせてください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not accept jobs and cannot be asked. Let it accept them (cupsaccept) and ask again.</source>
        <translation>プリンター「%1」はジョブを受け付けていないため、問い合わせできません。受け付けるようにして (cupsaccept) もう一度問い合わせてください。</translation>
    </message>
    <message>
        <source>The print server refused the question to &quot;%1&quot;. Look into its error log.</source>
        <translation>プリントサーバーが「%1」への問い合わせを拒否しました。エラーログを確認してください。</translation>
    </message>
    <message>
        <source>The list of papers that &quot;%1&quot; reported cannot be read (%2).</source>
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
        <source>The question to &quot;%1&quot; could not be processed%2 and was taken back. See to the printer, look into the print server&apos;s error log, and ask again.</source>
        <translation>「%1」への問い合わせは処理できなかったため%2、取り消しました。プリンターとプリントサーバーのエラーログを確認して、もう一度問い合わせてください。</translation>
    </message>
    <message>
        <source>The question to &quot;%1&quot; was held%2 and has been cancelled. See to the printer and ask again.</source>
        <translation>「%1」への問い合わせは保留されたため%2、取り消しました。プリンターを確認して、もう一度問い合わせてください。</translation>
    </message>
    <message>
        <source>The question to &quot;%1&quot; was cancelled. Ask again.</source>
        <translation>「%1」への問い合わせはキャンセルされました。もう一度問い合わせてください。</translation>
    </message>
    <message>
        <source>The print server does not answer; job %1 may still be on the queue (cancel %2-%1).</source>
        <translation>プリントサーバーが応答しません。ジョブ %1 がキューに残っている可能性があります (cancel %2-%1)。</translation>
    </message>
    <message>
        <source>Look into the print server&apos;s error log, and ask again.</source>
        <translation>プリントサーバーのエラーログを確認して、もう一度問い合わせてください。</translation>
    </message>
</context>
<context>
    <name>Listings</name>
    <message>
        <source>%1 (default): %2 %3</source>
        <translation>%1 (既定): %2 %3</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <translation>%1: %2 %3</translation>
    </message>
    <message>
        <source>The print server has no printers.</source>
        <translation>プリントサーバーにプリンターがありません。</translation>
    </message>
    <message>
        <source>%1 (from your saved options)</source>
        <translation>%1 (保存されたオプションから)</translation>
    </message>
    <message>
        <source>Saved the preset &quot;%1&quot; of &quot;%2&quot;.</source>
        <translation>「%2」のプリセット「%1」を保存しました。</translation>
    </message>
    <message>
        <source>%1 (installed in the printer) &quot;%2&quot;: %3</source>
        <translation>%1 (プリンターの装備)「%2」: %3</translation>
    </message>
    <message>
        <source>%1 (default not known) &quot;%2&quot;: %3</source>
        <translation>%1 (既定 不明)「%2」: %3</translation>
    </message>
    <message>
        <source>%1 (default %2) &quot;%3&quot;: %4</source>
        <translation>%1 (既定 %2)「%3」: %4</translation>
    </message>
</context>
<context>
    <name>Lists</name>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>LocalQueue</name>
    <message>
        <source>The printer &quot;%1&quot; was found on the network, but the print server cannot use it: %2</source>
        <translation>プリンター「%1」がネットワークで見つかりましたが、プリントサーバーで使えません: %2</translation>
    </message>
</context>
<context>
    <name>LoginWords</name>
    <message>
        <source>The print server at %1 wants to know who you are.</source>
        <translation>プリントサーバー %1 にサインインしてください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; wants a name and a password of its own; the print server at %2 hands them on to it.</source>
        <translation>プリンター「%1」には専用の名前とパスワードが必要です。プリントサーバー %2 がプリンターに渡します。</translation>
    </message>
    <message>
        <source>That name or password was wrong.</source>
        <translation>名前またはパスワードが違います。</translation>
    </message>
    <message>
        <source>The connection to %1 is not encrypted: others could read the password on its way.</source>
        <translation>%1 との接続は暗号化されていません。途中で他の人にパスワードを読まれるおそれがあります。</translation>
    </message>
    <message>
        <source>It shows none.</source>
        <translation>証明書が示されていません。</translation>
    </message>
    <message>
        <source>It shows now: %1</source>
        <translation>現在の証明書: %1</translation>
    </message>
    <message>
        <source>The print server at %1 cannot prove who it is, and was never seen before.</source>
        <translation>プリントサーバー %1 は身元を証明できず、これまでに接続したこともありません。</translation>
    </message>
    <message>
        <source>The print server at %1 has another certificate than before. It may have been renewed, or somebody else may be answering in its place.</source>
        <translation>プリントサーバー %1 の証明書が以前と違います。更新されたのかもしれませんが、別のものが代わりに応答しているおそれもあります。</translation>
    </message>
    <message>
        <source>It had: %1</source>
        <translation>以前の証明書: %1</translation>
    </message>
    <message>
        <source>The print server at %1 encrypted before, and does not any more. It may have been set up anew, or somebody else may be answering in its place. What you print there could be read on its way.</source>
        <translation>プリントサーバー %1 は以前は暗号化していましたが、今はしていません。設定し直されたのかもしれませんが、別のものが代わりに応答しているおそれもあります。印刷する内容が途中で読まれるおそれがあります。</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>The output could not be written: %1.</source>
        <translation>出力を書き込めませんでした: %1</translation>
    </message>
</context>
<context>
    <name>PageChoice</name>
    <message>
        <source>There is no page %1: there is one page only.</source>
        <translation>%1 ページはありません。全部で 1 ページだけです。</translation>
    </message>
    <message>
        <source>There is no page %1: the first page is 1.</source>
        <translation>%1 ページはありません。最初のページは 1 です。</translation>
    </message>
    <message>
        <source>There is no page %1: the pages are 1 to %2.</source>
        <translation>%1 ページはありません。ページは 1 から %2 までです。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends before it begins. Write %2-%3.</source>
        <translation>「%1」は終わりが始まりより前です。%2-%3 と書いてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page. Write numbers and ranges, for example 1-3, 7, 12-.</source>
        <translation>「%1」はページではありません。1-3, 7, 12- のように番号や範囲を書いてください。</translation>
    </message>
    <message>
        <source>The chosen pages were left out because they cannot be read, or not whole. Choose others.</source>
        <translation>選んだページは、読み取れないか一部が欠けているため除外されました。別のページを選んでください。</translation>
    </message>
</context>
<context>
    <name>PageFit</name>
    <message>
        <source>The paper size &quot;%1&quot; is wider than the roll (%2).</source>
        <translation>用紙サイズ「%1」はロール紙 (%2) の幅を超えています。</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is larger than the paper &quot;%2&quot;.</source>
        <translation>用紙サイズ「%1」は用紙「%2」より大きくなっています。</translation>
    </message>
</context>
<context>
    <name>PageRenderer</name>
    <message>
        <source>The pages could not be written. Make room on the disk and try again.</source>
        <translation>ページを書き込めませんでした。ディスクの空きを増やして、もう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>PageStream</name>
    <message>
        <source>The computer is too busy to prepare the pages. Close something and try again.</source>
        <translation>コンピューターの負荷が高く、ページを準備できません。何かを閉じて、もう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>PaperSizes</name>
    <message>
        <source>For the loaded paper</source>
        <translation>セットされた用紙用</translation>
    </message>
    <message>
        <source>Used last</source>
        <translation>最近使ったもの</translation>
    </message>
    <message>
        <source>Your sizes</source>
        <translation>登録したサイズ</translation>
    </message>
    <message>
        <source>Photo sizes</source>
        <translation>写真サイズ</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>ロール紙</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>US</source>
        <translation>米国</translation>
    </message>
    <message>
        <source>Other sizes</source>
        <translation>その他のサイズ</translation>
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
    <name>PhotoProblem</name>
    <message>
        <source>&quot;%1&quot; is damaged and cannot be read. Export it from your photo program again.</source>
        <translation>「%1」は壊れていて読めません。写真ソフトからもう一度書き出してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: a part of the picture is missing. Copy it from the camera again, or export it again.</source>
        <translation>「%1」は破損しています: 画像の一部が欠けています。カメラからもう一度コピーするか、もう一度書き出してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to print. Make a copy with fewer pixels and print that.</source>
        <translation>「%1」は大きすぎて印刷できません。画素数を減らしたコピーを印刷してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked with a password. Save a copy without one and print that.</source>
        <translation>「%1」はパスワードで保護されています。パスワードなしのコピーを印刷してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed meanwhile. Open it again.</source>
        <translation>「%1」は途中で変わりました。もう一度開いてください。</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;. Check its name.</source>
        <translation>「%1」というファイルはありません。名前を確認してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened. Check that you may read it.</source>
        <translation>「%1」を開けません。読み取りの権限を確認してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Copy it from the camera again.</source>
        <translation>「%1」は空です。カメラからもう一度コピーしてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be printed. Use a JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF file.</source>
        <translation>「%1」は印刷できる画像ではありません。JPEG、PNG、TIFF、WebP、HEIF、AVIF、PDF のファイルをお使いください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is camera RAW, which has to be developed before it can be printed. Export it as JPEG or TIFF from your photo program and print that.</source>
        <translation>「%1」はカメラの RAW ファイルで、印刷する前に現像が必要です。写真ソフトから JPEG か TIFF で書き出し、それを印刷してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of a kind that cannot be read here. Export it as JPEG, or as TIFF with 8 or 16 bits, from your photo program and print that.</source>
        <translation>「%1」はここでは読めない種類のファイルです。写真ソフトから JPEG、または 8 ビットか 16 ビットの TIFF で書き出し、それを印刷してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; made the program that reads photos fail: it is damaged, or made to do harm. Export it from your photo program again.</source>
        <translation>「%1」のために写真を読み込むプログラムが異常終了しました。ファイルが壊れているか、害を与えるように作られています。写真ソフトからもう一度書き出してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read: it is damaged, or made to do harm. Export it from your photo program again.</source>
        <translation>「%1」の読み込みに時間がかかりすぎます。ファイルが壊れているか、害を与えるように作られています。写真ソフトからもう一度書き出してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: the program that reads photos, halvern-decode, is not installed beside this one or cannot be started. Install the dialog again.</source>
        <translation>「%1」を読めません。写真を読み込むプログラム halvern-decode がこのプログラムと同じ場所にないか、起動できません。ダイアログを再インストールしてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder without photos. Name one that holds photos, or photos.</source>
        <translation>「%1」は写真のないフォルダーです。写真の入ったフォルダーか、写真を指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an HDR picture, which is brighter than paper can be. Export it as JPEG without HDR from your photo program and print that.</source>
        <translation>「%1」は HDR 画像で、用紙では表せない明るさです。写真ソフトから HDR なしの JPEG で書き出し、それを印刷してください。</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>The printer&apos;s own pages (%1) offer nothing for this printer. You can print without them.</source>
        <translation>プリンター固有のページ (%1) には、このプリンター用の設定がありません。なしでも印刷できます。</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the pages &quot;%1&quot;, which is no name of a bundle. You can print without them.</source>
        <translation>プリンターの記述が求めるページ「%1」は正しい名前ではありません。なしでも印刷できます。</translation>
    </message>
    <message>
        <source>The printer&apos;s own pages (%1) are not installed. You can print without them; install the printer&apos;s software to have them.</source>
        <translation>プリンター固有のページ (%1) がインストールされていません。なしでも印刷できます。使うにはプリンターのソフトウェアをインストールしてください。</translation>
    </message>
    <message>
        <source>The printer&apos;s own pages (%1) cannot be loaded: %2. You can print without them; install the printer&apos;s software again to have them.</source>
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
    <message>
        <source>%1 cannot be looked at</source>
        <translation>%1 を調べられません</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 は別のユーザーのものです</translation>
    </message>
    <message>
        <source>%1 can be changed by other users</source>
        <translation>%1 はほかのユーザーが変更できます</translation>
    </message>
</context>
<context>
    <name>PortalProgram</name>
    <message>
        <source>Say whether the desktop&apos;s portal would choose this program for printing, and if not, why.</source>
        <translation>デスクトップのポータルが印刷にこのプログラムを使うかどうか、使わない場合はその理由を示します。</translation>
    </message>
    <message>
        <source>Have the desktop&apos;s portal choose this program for printing, by a line in your portals.conf.</source>
        <translation>portals.conf に 1 行加えて、デスクトップのポータルが印刷にこのプログラムを使うようにします。</translation>
    </message>
    <message>
        <source>Take that line away again.</source>
        <translation>その行を取り除きます。</translation>
    </message>
    <message>
        <source>Shows the print dialog for applications that print by the desktop&apos;s portal. The desktop starts it by itself.</source>
        <translation>デスクトップのポータルで印刷するアプリケーションのために印刷ダイアログを表示します。デスクトップが自動的に起動します。</translation>
    </message>
    <message>
        <source>Wrong usage. See &quot;halvern-print-portal --help&quot;.</source>
        <translation>使い方の誤りです。「halvern-print-portal --help」をご覧ください。</translation>
    </message>
    <message>
        <source>There is no display to show the dialog on. Start this program in a desktop&apos;s session, or set DISPLAY.</source>
        <translation>ダイアログを表示する画面がありません。このプログラムをデスクトップのセッションで起動するか、DISPLAY を設定してください。</translation>
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
    <name>PpdModel</name>
    <message>
        <source>An option without a name or a value cannot be set.</source>
        <translation>名前か値のないオプションは設定できません。</translation>
    </message>
    <message>
        <source>The printer has no page size &quot;%1&quot;. Choose one from the list.</source>
        <translation>プリンターに用紙サイズ「%1」はありません。一覧から選んでください。</translation>
    </message>
    <message>
        <source>The printer cannot take the page size &quot;%1&quot;. Choose one from the list.</source>
        <translation>プリンターは用紙サイズ「%1」を使えません。一覧から選んでください。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go together with &quot;%2&quot;. Change that first.</source>
        <translation>「%1」は「%2」と一緒に使えません。先にそちらを変えてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is part of the printer&apos;s equipment, and is set by whoever installed the printer.</source>
        <translation>「%1」はプリンターの装備の一部で、プリンターを設定した人が決めます。</translation>
    </message>
    <message>
        <source>The printer&apos;s equipment does not allow &quot;%1&quot;: whoever installed the printer has set &quot;%2&quot;.</source>
        <translation>プリンターの装備では「%1」は使えません。設定した人が「%2」としています。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no choice &quot;%2&quot;.</source>
        <translation>「%1」に「%2」という選択肢はありません。</translation>
    </message>
    <message>
        <source>The printer has no option &quot;%1&quot;.</source>
        <translation>プリンターに「%1」というオプションはありません。</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>The printer&apos;s own defaults do not go together with what is chosen elsewhere. Put the options back one by one.</source>
        <translation>プリンターの既定値は、ほかで選んだ設定と一緒に使えません。オプションを 1 つずつ既定値に戻してください。</translation>
    </message>
    <message>
        <source>not with what the printer has loaded</source>
        <translation>プリンターにセットされているものでは使えません</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>%1 とは一緒に使えません</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 in</source>
        <translation>%1 インチ</translation>
    </message>
    <message>
        <source>A job carries one choice of &quot;%1&quot;, and not &quot;%2&quot; together. Take one away before you choose another.</source>
        <translation>1 つのジョブで指定できる「%1」の選択肢は 1 つだけで、「%2」を一緒には指定できません。別のものを選ぶ前に 1 つ外してください。</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>It holds no presets of this program.</source>
        <translation>このプログラムのプリセットが入っていません。</translation>
    </message>
    <message>
        <source>It was written by a newer version of this program.</source>
        <translation>このプログラムの新しいバージョンで書かれています。</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>プリンターの既定値</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>前回の設定</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>ファイルではありません。</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>大きすぎます。</translation>
    </message>
    <message>
        <source>There are %1 presets already. Delete one first.</source>
        <translation>プリセットはすでに %1 件あります。先に 1 つ削除してください。</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; is not there any more.</source>
        <translation>プリセット「%1」はもうありません。</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; cannot be read, and %2 cannot be moved away. %3</source>
        <translation>「%1」のプリセットを読み取れず、%2 を別の場所に移すこともできません。%3</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; could not be read, and begin anew. What was there is in %2. %3</source>
        <translation>「%1」のプリセットを読み取れなかったため、新しく作り直します。元の内容は %2 にあります。%3</translation>
    </message>
    <message>
        <source>The presets in %1 cannot be used. %2</source>
        <translation>%1 のプリセットは使えません。%2</translation>
    </message>
    <message>
        <source>Some presets in %1 cannot be read and are left alone.</source>
        <translation>%1 の一部のプリセットは読み取れないため、そのまま残します。</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; could not be written to %2. %3</source>
        <translation>「%1」のプリセットを %2 に書き込めませんでした。%3</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>フォルダーを作れません。</translation>
    </message>
    <message>
        <source>Another program holds the lock %1.</source>
        <translation>別のプログラムが %1 をロックしています。</translation>
    </message>
    <message>
        <source>It would be too large.</source>
        <translation>大きくなりすぎます。</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already. Choose another name.</source>
        <translation>プリセット「%1」はすでにあります。別の名前にしてください。</translation>
    </message>
    <message>
        <source>No presets were read from %1. %2</source>
        <translation>%1 からプリセットを読み込みませんでした。%2</translation>
    </message>
    <message>
        <source>There is none in it that can be read.</source>
        <translation>読み取れるものが入っていません。</translation>
    </message>
    <message>
        <source>Some presets in %1 cannot be read and were left out.</source>
        <translation>%1 の一部のプリセットは読み取れないため、省きました。</translation>
    </message>
    <message>
        <source>The presets could not be written to %1. %2</source>
        <translation>プリセットを %1 に書き込めませんでした。%2</translation>
    </message>
    <message>
        <source>The printer has no option &quot;%1&quot;.</source>
        <translation>プリンターに「%1」というオプションはありません。</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>ほか %1 件。</translation>
    </message>
    <message>
        <source>Not all of &quot;%1&quot; can be had now.</source>
        <translation>「%1」の一部は今は使えません。</translation>
    </message>
    <message>
        <source>There is not enough memory to read the presets.</source>
        <translation>プリセットを読み込むメモリが足りません。</translation>
    </message>
</context>
<context>
    <name>PrintRun</name>
    <message>
        <source>less than a minute left</source>
        <translation>残り 1 分未満</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>残り約 %1 分</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>残り約 %1 時間</translation>
    </message>
    <message>
        <source>Sending the photo...</source>
        <translation>写真を送っています...</translation>
    </message>
    <message>
        <source>Paused: %1 of %2 photos are sent.</source>
        <translation>一時停止中: %2 枚中 %1 枚の写真を送りました。</translation>
    </message>
    <message>
        <source>Sending photo %1 of %2</source>
        <translation>写真を送っています (%1/%2)</translation>
    </message>
</context>
<context>
    <name>PrinterActions</name>
    <message>
        <source>&amp;Resume</source>
        <translation>再開(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Accept Jobs</source>
        <translation>ジョブを受け付ける(&amp;J)</translation>
    </message>
    <message>
        <source>Re&amp;lease</source>
        <translation>保留を解除(&amp;D)</translation>
    </message>
    <message>
        <source>The print server does not let you do that with &quot;%1&quot;. Ask whoever looks after it.</source>
        <translation>プリントサーバーで「%1」に対する操作が許可されていません。管理者にお尋ねください。</translation>
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
        <source>The print server has no printer &quot;%1&quot;. It has: %2.</source>
        <translation>プリントサーバーに「%1」というプリンターはありません。使えるプリンター: %2。</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot;. It has: %2, and %3 more (lpstat -e).</source>
        <translation>プリントサーバーに「%1」というプリンターはありません。あるもの: %2、ほか %3 台 (lpstat -e)。</translation>
    </message>
    <message>
        <source>The print server has no default printer. Name one with --printer.</source>
        <translation>プリントサーバーに既定のプリンターがありません。--printer で指定してください。</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>プリンターが応答しません</translation>
    </message>
</context>
<context>
    <name>PrinterReport</name>
    <message>
        <source>The printer&apos;s answer about itself is too long to be true, and was not read.</source>
        <translation>プリンターからの情報が長すぎて正しいものとは思えないため、読みませんでした。</translation>
    </message>
    <message>
        <source>The printer does not tell strangers what is in it.</source>
        <translation>プリンターは、サインインなしでは中身の情報を知らせません。</translation>
    </message>
    <message>
        <source>The printer does not answer. Is it switched on, and in this network?</source>
        <translation>プリンターが応答しません。電源が入っていて、このネットワークにあるかをご確認ください。</translation>
    </message>
    <message>
        <source>The printer does not say what is in it.</source>
        <translation>プリンターは中身の情報を知らせません。</translation>
    </message>
</context>
<context>
    <name>QueuePpd</name>
    <message>
        <source>The description of the printer &quot;%1&quot; is damaged: %2. Install its driver again, or choose another printer.</source>
        <translation>プリンター「%1」の記述が壊れています: %2。ドライバーを再インストールするか、別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no description on the print server, and does not tell by itself what it can do. Install it with a driver, or choose another printer.</source>
        <translation>プリンター「%1」の記述がプリントサーバーになく、プリンター自身も機能を知らせません。ドライバー付きで設定するか、別のプリンターを選んでください。</translation>
    </message>
</context>
<context>
    <name>RefilledTray</name>
    <message>
        <source>&quot;%1&quot; has other paper now.</source>
        <translation>「%1」の用紙が変わりました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has other paper now, and the page follows: %2.</source>
        <translation>「%1」の用紙が変わったため、ページもそれに合わせました：%2</translation>
    </message>
    <message>
        <source>Its kind, %1, could not be chosen: the paper type is still &quot;%2&quot;.</source>
        <translation>その種類（%1）は選択できませんでした。用紙の種類は「%2」のままです。</translation>
    </message>
</context>
<context>
    <name>ReviewSwitch</name>
    <message>
        <source>Re&amp;view before printing</source>
        <translation>印刷前に確認(&amp;V)</translation>
    </message>
    <message>
        <source>Shows the pages as the application has made them, before they go to the printer</source>
        <translation>アプリケーションが作成したページを、プリンターに送る前に表示します</translation>
    </message>
</context>
<context>
    <name>SecretStore</name>
    <message>
        <source>Printing on %1</source>
        <translation>%1 での印刷</translation>
    </message>
</context>
<context>
    <name>ServerCertificate</name>
    <message>
        <source>a certificate whose file cannot be read any more</source>
        <translation>ファイルを読み取れなくなった証明書</translation>
    </message>
</context>
<context>
    <name>SheetWords</name>
    <message>
        <source>1 sheet</source>
        <translation>用紙 1 枚</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>用紙 %1 枚</translation>
    </message>
    <message>
        <source>photos in %1 × %2 mm</source>
        <translation>%1 × %2 mm の写真</translation>
    </message>
    <message>
        <source>with captions</source>
        <translation>キャプション付き</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>トンボ付き</translation>
    </message>
    <message>
        <source>white border %1 mm</source>
        <translation>白フチ %1 mm</translation>
    </message>
    <message>
        <source>Sheet %1: %2, %3 x %4 mm at %5, %6 mm</source>
        <translation>用紙 %1: %2、%3 x %4 mm、位置 %5, %6 mm</translation>
    </message>
</context>
<context>
    <name>StartingOptions</name>
    <message>
        <source>The printer &quot;%1&quot; prints no text on the back of a picture. Leave --backprint out, or choose another printer.</source>
        <translation>プリンター「%1」は写真の裏面に文字を印刷できません。--backprint を外すか、別のプリンターを選んでください。</translation>
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
    <message>
        <source>Load paper.</source>
        <translation>用紙をセットしてください。</translation>
    </message>
    <message>
        <source>Load the paper that the job wants.</source>
        <translation>ジョブに必要な用紙をセットしてください。</translation>
    </message>
    <message>
        <source>Load paper soon.</source>
        <translation>早めに用紙を補充してください。</translation>
    </message>
    <message>
        <source>Take the jammed paper out.</source>
        <translation>つまった用紙を取り除いてください。</translation>
    </message>
    <message>
        <source>a paper tray is missing</source>
        <translation>用紙トレイがありません</translation>
    </message>
    <message>
        <source>Push the paper tray in.</source>
        <translation>用紙トレイを差し込んでください。</translation>
    </message>
    <message>
        <source>the output tray is missing</source>
        <translation>排紙トレイがありません</translation>
    </message>
    <message>
        <source>Put the output tray in.</source>
        <translation>排紙トレイを取り付けてください。</translation>
    </message>
    <message>
        <source>Empty the output tray.</source>
        <translation>排紙トレイの用紙を取り出してください。</translation>
    </message>
    <message>
        <source>the output tray is nearly full</source>
        <translation>排紙トレイがもうすぐいっぱいです</translation>
    </message>
    <message>
        <source>Empty the output tray soon.</source>
        <translation>早めに排紙トレイの用紙を取り出してください。</translation>
    </message>
    <message>
        <source>Close the printer&apos;s door; the job goes on then.</source>
        <translation>プリンターのドアを閉じてください。ジョブが再開します。</translation>
    </message>
    <message>
        <source>Close the cover; the job goes on then.</source>
        <translation>カバーを閉じてください。ジョブが再開します。</translation>
    </message>
    <message>
        <source>something is open</source>
        <translation>どこかが開いています</translation>
    </message>
    <message>
        <source>Close what is open; the job goes on then.</source>
        <translation>開いているところを閉じてください。ジョブが再開します。</translation>
    </message>
    <message>
        <source>Switch the printer on and look at its cable or network.</source>
        <translation>プリンターの電源を入れ、ケーブルまたはネットワークを確認してください。</translation>
    </message>
    <message>
        <source>Resume it, or ask whoever has paused it.</source>
        <translation>再開するか、一時停止した人にお尋ねください。</translation>
    </message>
    <message>
        <source>holds new jobs</source>
        <translation>新しいジョブを保留しています</translation>
    </message>
    <message>
        <source>Release it, and new jobs are printed.</source>
        <translation>保留を解除すると、新しいジョブが印刷されます。</translation>
    </message>
    <message>
        <source>Switch the printer on.</source>
        <translation>プリンターの電源を入れてください。</translation>
    </message>
    <message>
        <source>Have new toner at hand.</source>
        <translation>新しいトナーを用意してください。</translation>
    </message>
    <message>
        <source>Put new toner in.</source>
        <translation>新しいトナーに交換してください。</translation>
    </message>
    <message>
        <source>Have new ink at hand.</source>
        <translation>新しいインクを用意してください。</translation>
    </message>
    <message>
        <source>Put new ink in.</source>
        <translation>新しいインクに交換してください。</translation>
    </message>
    <message>
        <source>an ink cartridge is missing</source>
        <translation>インクカートリッジがありません</translation>
    </message>
    <message>
        <source>Put the missing cartridge in.</source>
        <translation>足りないカートリッジを取り付けてください。</translation>
    </message>
    <message>
        <source>Have a new waste tank at hand.</source>
        <translation>新しい廃液タンクを用意してください。</translation>
    </message>
    <message>
        <source>Put a new waste tank in.</source>
        <translation>新しい廃液タンクに交換してください。</translation>
    </message>
    <message>
        <source>too hot</source>
        <translation>高温</translation>
    </message>
    <message>
        <source>Let the printer cool down.</source>
        <translation>プリンターが冷えるまでお待ちください。</translation>
    </message>
    <message>
        <source>warming up</source>
        <translation>ウォームアップ中</translation>
    </message>
    <message>
        <source>the drum is nearly worn out</source>
        <translation>ドラムの寿命が近づいています</translation>
    </message>
    <message>
        <source>Have a new drum at hand.</source>
        <translation>新しいドラムを用意してください。</translation>
    </message>
    <message>
        <source>the drum is worn out</source>
        <translation>ドラムの寿命です</translation>
    </message>
    <message>
        <source>Put a new drum in.</source>
        <translation>新しいドラムに交換してください。</translation>
    </message>
    <message>
        <source>developer is low</source>
        <translation>現像剤残りわずか</translation>
    </message>
    <message>
        <source>Have new developer at hand.</source>
        <translation>新しい現像剤を用意してください。</translation>
    </message>
    <message>
        <source>out of developer</source>
        <translation>現像剤切れ</translation>
    </message>
    <message>
        <source>Put new developer in.</source>
        <translation>新しい現像剤に交換してください。</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>クリーニング中</translation>
    </message>
    <message>
        <source>no room for more jobs</source>
        <translation>これ以上ジョブを受け取れません</translation>
    </message>
    <message>
        <source>Wait until jobs are printed, or cancel some.</source>
        <translation>ジョブの印刷が終わるのを待つか、いくつかキャンセルしてください。</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>Install the printer&apos;s driver.</source>
        <translation>プリンターのドライバーをインストールしてください。</translation>
    </message>
    <message>
        <source>Install the printer&apos;s driver anew.</source>
        <translation>プリンターのドライバーを再インストールしてください。</translation>
    </message>
    <message>
        <source>Look at the printer&apos;s own display.</source>
        <translation>プリンターの表示を確認してください。</translation>
    </message>
</context>
<context>
    <name>Stepper</name>
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
    <name>Supply</name>
    <message>
        <source>Black</source>
        <translation>ブラック</translation>
    </message>
    <message>
        <source>Photo black</source>
        <translation>フォトブラック</translation>
    </message>
    <message>
        <source>Matte black</source>
        <translation>マットブラック</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>グレー</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>ライトグレー</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>ライトシアン</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>ライトマゼンタ</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>イエロー</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>レッド</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>グリーン</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>ブルー</translation>
    </message>
    <message>
        <source>Waste tank</source>
        <translation>廃液タンク</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>インク</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>消耗品</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>full</source>
        <translation>いっぱい</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, nearly full</source>
        <translation>%1、もうすぐいっぱい</translation>
    </message>
    <message>
        <source>%1 full</source>
        <translation>%1 使用</translation>
    </message>
    <message>
        <source>%1, low</source>
        <translation>%1、残りわずか</translation>
    </message>
    <message>
        <source>%1 is full</source>
        <translation>%1: いっぱい</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1: なし</translation>
    </message>
    <message>
        <source>%1 is nearly full (%2)</source>
        <translation>%1: もうすぐいっぱい (%2)</translation>
    </message>
    <message>
        <source>%1 is low (%2)</source>
        <translation>%1: 残りわずか (%2)</translation>
    </message>
</context>
<context>
    <name>TerminalQuestions</name>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Send it all the same? [y/N]</source>
        <translation>それでも送りますか? [はい/N]</translation>
    </message>
    <message>
        <source>Name [%1]:</source>
        <translation>名前 [%1]:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
    </message>
    <message>
        <source>Trust it from now on? [y/N]</source>
        <translation>今後は信頼しますか? [はい/N]</translation>
    </message>
</context>
<context>
    <name>TrayWords</name>
    <message>
        <source>Main tray</source>
        <translation>メイントレイ</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>写真トレイ</translation>
    </message>
    <message>
        <source>Second tray</source>
        <translation>トレイ 2</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>上段トレイ</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>中段トレイ</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>下段トレイ</translation>
    </message>
    <message>
        <source>Rear feed</source>
        <translation>背面給紙</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>サイドトレイ</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>手差し</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>バイパストレイ</translation>
    </message>
    <message>
        <source>Large tray</source>
        <translation>大容量トレイ</translation>
    </message>
    <message>
        <source>Envelope feed</source>
        <translation>封筒フィーダー</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>ディスクトレイ</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>ロール</translation>
    </message>
    <message>
        <source>Second roll</source>
        <translation>ロール 2</translation>
    </message>
    <message>
        <source>Plain paper</source>
        <translation>普通紙</translation>
    </message>
    <message>
        <source>Thin paper</source>
        <translation>薄紙</translation>
    </message>
    <message>
        <source>Heavy paper</source>
        <translation>厚紙</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>インクジェット用紙</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>コート紙</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>レターヘッド</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>上質紙</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>写真用紙</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>光沢写真用紙</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>高光沢写真用紙</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>半光沢写真用紙</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>サテン写真用紙</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>マット写真用紙</translation>
    </message>
    <message>
        <source>Photo film</source>
        <translation>写真用フィルム</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>カード紙</translation>
    </message>
    <message>
        <source>Envelopes</source>
        <translation>封筒</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>Transparencies</source>
        <translation>OHP フィルム</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>トレイ %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>ロール %1</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>トレイ</translation>
    </message>
</context>
<context>
    <name>TraysInWords</name>
    <message>
        <source>%1 mm wide</source>
        <translation>幅 %1 mm</translation>
    </message>
    <message>
        <source>%1 in wide</source>
        <translation>幅 %1 インチ</translation>
    </message>
    <message>
        <source>not loaded: needs %1 in the tray</source>
        <translation>未セット: トレイに %1 が必要です</translation>
    </message>
    <message>
        <source>not loaded: needs %1 in &quot;%2&quot;</source>
        <translation>未セット:「%2」に %1 が必要です</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is not in &quot;%2&quot;, but in &quot;%3&quot;.</source>
        <translation>用紙サイズ「%1」は「%2」ではなく「%3」にあります。</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is not loaded. There is &quot;%2&quot; in &quot;%3&quot;.</source>
        <translation>用紙サイズ「%1」はセットされていません。「%3」にあるのは「%2」です。</translation>
    </message>
    <message>
        <source>The paper type is &quot;%1&quot;, but in &quot;%2&quot; there is &quot;%3&quot;.</source>
        <translation>用紙の種類は「%1」ですが、「%2」には「%3」が入っています。</translation>
    </message>
</context>
<context>
    <name>UserJobs</name>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Waiting: the printer is paused</source>
        <translation>待機中: プリンターが一時停止しています</translation>
    </message>
    <message>
        <source>Held: the printer wants a name and a password</source>
        <translation>保留中: プリンターに名前とパスワードが必要です</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>保留中</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセル済み</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>印刷済み</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>The print server does not let you cancel job %1. Ask whoever looks after it.</source>
        <translation>プリントサーバーでジョブ %1 のキャンセルが許可されていません。管理者にお尋ねください。</translation>
    </message>
    <message>
        <source>The print server does not let you hold job %1. Ask whoever looks after it.</source>
        <translation>プリントサーバーでジョブ %1 の保留が許可されていません。管理者にお尋ねください。</translation>
    </message>
    <message>
        <source>The print server does not let you release job %1. Ask whoever looks after it.</source>
        <translation>プリントサーバーでジョブ %1 の再開が許可されていません。管理者にお尋ねください。</translation>
    </message>
    <message>
        <source>The print server does not let you print job %1 again. Ask whoever looks after it.</source>
        <translation>プリントサーバーでジョブ %1 の再印刷が許可されていません。管理者にお尋ねください。</translation>
    </message>
    <message>
        <source>The print server does not let you sign in for job %1. Ask whoever looks after it.</source>
        <translation>プリントサーバーでジョブ %1 のサインインが許可されていません。管理者にお尋ねください。</translation>
    </message>
    <message>
        <source>The print server does not let you move job %1 to another printer. Ask whoever looks after it.</source>
        <translation>プリントサーバーでジョブ %1 を別のプリンターに移すことが許可されていません。管理者にお尋ねください。</translation>
    </message>
    <message>
        <source>Job %1 or the printer &quot;%2&quot; is not on the print server any more.</source>
        <translation>ジョブ %1 またはプリンター「%2」はもうプリントサーバーにありません。</translation>
    </message>
    <message>
        <source>Job %1 is not on the print server any more.</source>
        <translation>ジョブ %1 はもうプリントサーバーにありません。</translation>
    </message>
    <message>
        <source>That cannot be done with job %1 as it is now: it may have gone on or ended, or the print server has not kept its pages.</source>
        <translation>今の状態のジョブ %1 にはできません。先に進んだか終わったか、プリントサーバーにページが残っていない可能性があります。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>halvern::AccessDialogs</name>
    <message>
        <source>Trust this print server?</source>
        <translation>このプリントサーバーを信頼しますか?</translation>
    </message>
    <message>
        <source>&amp;Trust It from Now On</source>
        <translation>今後は信頼する(&amp;T)</translation>
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
        <source>Job %1 stays on the queue; &quot;cancel %2-%1&quot; takes it away.</source>
        <translation>ジョブ %1 はキューに残ります。「cancel %2-%1」で取り除けます。</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>警告: %1</translation>
    </message>
    <message>
        <source>With &quot;-o PageSize=%1&quot; it fits.</source>
        <translation>「-o PageSize=%1」なら収まります。</translation>
    </message>
    <message>
        <source>With --skip-broken the others are printed.</source>
        <translation>--skip-broken を付けると残りを印刷します。</translation>
    </message>
    <message>
        <source>None of the files can be printed.</source>
        <translation>印刷できるファイルがありません。</translation>
    </message>
    <message>
        <source>Stopped, but the print server does not answer: a part of the job may still be on the queue &quot;%1&quot;. Look at it before you print again.</source>
        <translation>停止しましたが、プリントサーバーが応答しません。ジョブの一部がキュー「%1」に残っている可能性があります。もう一度印刷する前にご確認ください。</translation>
    </message>
</context>
<context>
    <name>halvern::CaptionRow</name>
    <message>
        <source>None; for example [C]  [F]</source>
        <translation>なし。例: [C]  [F]</translation>
    </message>
    <message>
        <source>Caption under each photo</source>
        <translation>各写真の下のキャプション</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>差し込み項目</translation>
    </message>
    <message>
        <source>I&amp;nsert</source>
        <translation>挿入(&amp;N)</translation>
    </message>
</context>
<context>
    <name>halvern::ChoiceList</name>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
</context>
<context>
    <name>halvern::ColourRow</name>
    <message>
        <source>Compensate the black point</source>
        <translation>黒点を補正</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>レンダリングインテント</translation>
    </message>
    <message>
        <source>The photo&apos;s darkest tone becomes the paper&apos;s darkest</source>
        <translation>写真の最も暗い色を、用紙で最も暗い色に合わせます</translation>
    </message>
    <message>
        <source>The printer&apos;s own: none is known</source>
        <translation>プリンターのプロファイル: 見つかりません</translation>
    </message>
    <message>
        <source>The printer&apos;s own: %1</source>
        <translation>プリンターのプロファイル: %1</translation>
    </message>
    <message>
        <source>Another file...</source>
        <translation>別のファイル...</translation>
    </message>
    <message>
        <source>Soft proof</source>
        <translation>ソフトプルーフ</translation>
    </message>
    <message>
        <source>Paper white</source>
        <translation>用紙の白</translation>
    </message>
    <message>
        <source>Gamut warning</source>
        <translation>色域警告</translation>
    </message>
    <message>
        <source>The printer manages colors</source>
        <translation>プリンターが色を管理</translation>
    </message>
    <message>
        <source>This program manages colors</source>
        <translation>このプログラムが色を管理</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Color profile</source>
        <translation>カラープロファイル</translation>
    </message>
    <message>
        <source>What becomes of colors that the printer cannot show</source>
        <translation>プリンターで再現できない色の扱い</translation>
    </message>
    <message>
        <source>The preview shows the paper&apos;s own white and the deepest black on it</source>
        <translation>用紙そのものの白と、その用紙で出せる最も深い黒をプレビューに表示します</translation>
    </message>
    <message>
        <source>The preview paints over in pink what the printer cannot show</source>
        <translation>プリンターで再現できない部分をプレビューでピンクに塗ります</translation>
    </message>
    <message>
        <source>The preview shows what the photo will look like on paper</source>
        <translation>用紙に印刷した写真の見え方をプレビューに表示します</translation>
    </message>
    <message>
        <source>Choose a Color Profile</source>
        <translation>カラープロファイルを選択</translation>
    </message>
    <message>
        <source>Color profiles (*.icc *.icm *.ICC *.ICM);;All files (*)</source>
        <translation>カラープロファイル (*.icc *.icm *.ICC *.ICM);;すべてのファイル (*)</translation>
    </message>
</context>
<context>
    <name>halvern::CropEditor</name>
    <message>
        <source>%1 pixels per inch: it will look soft</source>
        <translation>1 インチあたり %1 ピクセル: ぼやけて見えます</translation>
    </message>
    <message>
        <source>%1 pixels per inch</source>
        <translation>1 インチあたり %1 ピクセル</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>トリミング</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>中央へ</translation>
    </message>
    <message>
        <source>Put the frame in the middle (C)</source>
        <translation>枠を中央に置きます (C)</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Turn the photo clockwise (R)</source>
        <translation>写真を時計回りに回転します (R)</translation>
    </message>
    <message>
        <source>As Large As Can Be</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Show as much of the photo as can be (0)</source>
        <translation>写真のできるだけ広い範囲を使います (0)</translation>
    </message>
    <message>
        <source>Same for All</source>
        <translation>すべてに適用</translation>
    </message>
    <message>
        <source>Crop and turn all photos like this one</source>
        <translation>すべての写真をこの写真と同じようにトリミングして回転します</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Back to the sheet (Esc)</source>
        <translation>用紙に戻ります (Esc)</translation>
    </message>
    <message>
        <source>%1 % of the photo</source>
        <translation>写真の %1 %</translation>
    </message>
</context>
<context>
    <name>halvern::CustomField</name>
    <message>
        <source>Other value...</source>
        <translation>その他の値...</translation>
    </message>
    <message>
        <source>%1: other value</source>
        <translation>%1: その他の値</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
</context>
<context>
    <name>halvern::CustomPaperRow</name>
    <message>
        <source>Width of the paper</source>
        <translation>用紙の幅</translation>
    </message>
    <message>
        <source>Height of the paper</source>
        <translation>用紙の高さ</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>登録(&amp;K)</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>長さの単位</translation>
    </message>
    <message>
        <source>Name, to find it again</source>
        <translation>後で見つけるための名前</translation>
    </message>
    <message>
        <source>Name of this paper size</source>
        <translation>この用紙サイズの名前</translation>
    </message>
    <message>
        <source>From %1 to %2 %3</source>
        <translation>%1～%2 %3</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>登録を解除(&amp;F)</translation>
    </message>
    <message>
        <source>As &amp;Long as the Photo</source>
        <translation>写真と同じ長さ(&amp;L)</translation>
    </message>
    <message>
        <source>As &amp;High as the Photo</source>
        <translation>写真と同じ高さ(&amp;H)</translation>
    </message>
</context>
<context>
    <name>halvern::DialogSession</name>
    <message>
        <source>No printer is chosen. Choose one from the list.</source>
        <translation>プリンターが選ばれていません。一覧から選んでください。</translation>
    </message>
    <message>
        <source>Nothing is known of the printer &quot;%1&quot; yet. Wait for it, or choose another one.</source>
        <translation>プリンター「%1」の情報がまだありません。待つか、別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>The photos are still being read. Wait a moment.</source>
        <translation>写真をまだ読み込んでいます。少しお待ちください。</translation>
    </message>
    <message>
        <source>There is no photo to print. Open the dialog with one.</source>
        <translation>印刷する写真がありません。写真を指定してダイアログを開いてください。</translation>
    </message>
    <message>
        <source>All photos are left out. Include at least one of them.</source>
        <translation>すべての写真が除外されています。少なくとも 1 枚を含めてください。</translation>
    </message>
    <message>
        <source>All photos are cropped and turned like &quot;%1&quot; now.</source>
        <translation>すべての写真を「%1」と同じ切り抜きと向きにしました。</translation>
    </message>
    <message>
        <source>1 photo was moved.</source>
        <translation>写真を 1 枚移動しました。</translation>
    </message>
    <message>
        <source>%1 photos were moved.</source>
        <translation>写真を %1 枚移動しました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was taken out.</source>
        <translation>「%1」を取り除きました。</translation>
    </message>
    <message>
        <source>%1 photos were taken out.</source>
        <translation>写真を %1 枚取り除きました。</translation>
    </message>
    <message>
        <source>All photos are printed now.</source>
        <translation>すべての写真を印刷します。</translation>
    </message>
    <message>
        <source>%1 of %2 photos are printed now.</source>
        <translation>%2 枚中 %1 枚の写真を印刷します。</translation>
    </message>
    <message>
        <source>The layout was changed.</source>
        <translation>レイアウトを変更しました。</translation>
    </message>
    <message>
        <source>The photo&apos;s size or place was changed.</source>
        <translation>写真のサイズまたは位置を変更しました。</translation>
    </message>
</context>
<context>
    <name>halvern::DocumentSpool</name>
    <message>
        <source>The document cannot be read: %1. Print it once more from its application.</source>
        <translation>文書を読めません: %1。元のアプリケーションからもう一度印刷してください。</translation>
    </message>
    <message>
        <source>There is no room for the document: %1. Make room on the disk, and print it once more.</source>
        <translation>文書を保存する空きがありません: %1。ディスクの空きを増やして、もう一度印刷してください。</translation>
    </message>
    <message>
        <source>No file can be made for the document in &quot;%1&quot;. Make sure that you may write there, and print it once more.</source>
        <translation>「%1」に文書のファイルを作れません。書き込みの権限を確認して、もう一度印刷してください。</translation>
    </message>
    <message>
        <source>The application has gone before its document was whole. Print it once more.</source>
        <translation>文書がすべて届く前にアプリケーションが終了しました。もう一度印刷してください。</translation>
    </message>
    <message>
        <source>The computer is too busy to take the document. Close something, and print it once more.</source>
        <translation>コンピューターの負荷が高く、文書を受け取れません。何か閉じてから、もう一度印刷してください。</translation>
    </message>
</context>
<context>
    <name>halvern::HelpWindow</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Page of the help</source>
        <translation>ヘルプのページ</translation>
    </message>
    <message>
        <source>Search the help (%1)</source>
        <translation>ヘルプを検索 (%1)</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>ヘルプを検索</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目次</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>見つかったもの</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 件見つかりました</translation>
    </message>
    <message>
        <source>Help - %1</source>
        <translation>ヘルプ - %1</translation>
    </message>
</context>
<context>
    <name>halvern::HitList</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>halvern::JobPage</name>
    <message>
        <source>At once</source>
        <translation>すぐに</translation>
    </message>
    <message>
        <source>When somebody releases it</source>
        <translation>手動で再開したとき</translation>
    </message>
    <message>
        <source>By day, from 6:00</source>
        <translation>日中 (6:00 から)</translation>
    </message>
    <message>
        <source>In the evening, from 18:00</source>
        <translation>夕方 (18:00 から)</translation>
    </message>
    <message>
        <source>At night, from 18:00</source>
        <translation>夜間 (18:00 から)</translation>
    </message>
    <message>
        <source>In the second shift, from 16:00</source>
        <translation>第 2 シフト (16:00 から)</translation>
    </message>
    <message>
        <source>In the third shift, from 0:00</source>
        <translation>第 3 シフト (0:00 から)</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>週末</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>機密指定なし</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>社外秘</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>機密</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>極秘</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>最高機密</translation>
    </message>
    <message>
        <source>1 waits longest, 100 goes first</source>
        <translation>1 が最も後、100 が最も先になります</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>タイトル(&amp;T):</translation>
    </message>
    <message>
        <source>Pr&amp;iority:</source>
        <translation>優先度(&amp;I):</translation>
    </message>
    <message>
        <source>Print &amp;when:</source>
        <translation>印刷する時期(&amp;W):</translation>
    </message>
    <message>
        <source>Page &amp;before:</source>
        <translation>前に付けるページ(&amp;B):</translation>
    </message>
    <message>
        <source>Page &amp;after:</source>
        <translation>後に付けるページ(&amp;A):</translation>
    </message>
    <message>
        <source>Print when</source>
        <translation>印刷する時期</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>At a time of day</source>
        <translation>時刻を指定</translation>
    </message>
    <message>
        <source>Pages before and after the job are decided on the page &quot;%1&quot;.</source>
        <translation>ジョブの前後に付けるページは「%1」のページで決めます。</translation>
    </message>
</context>
<context>
    <name>halvern::JobRows</name>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ数</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>送信日時</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>番号</translation>
    </message>
</context>
<context>
    <name>halvern::JobsButton</name>
    <message>
        <source>Jobs...</source>
        <translation>ジョブ...</translation>
    </message>
    <message>
        <source>Your jobs on this printer</source>
        <translation>このプリンターの自分のジョブ</translation>
    </message>
</context>
<context>
    <name>halvern::JobsWindow</name>
    <message>
        <source>Show jobs that have ended</source>
        <translation>終わったジョブも表示</translation>
    </message>
    <message>
        <source>Your Jobs on %1</source>
        <translation>%1 の自分のジョブ</translation>
    </message>
    <message>
        <source>Your jobs</source>
        <translation>自分のジョブ</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>ジョブをキャンセル</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>もう一度印刷</translation>
    </message>
    <message>
        <source>Sign In...</source>
        <translation>サインイン...</translation>
    </message>
    <message>
        <source>Move To</source>
        <translation>移動先</translation>
    </message>
    <message>
        <source>Asking the print server...</source>
        <translation>プリントサーバーに問い合わせています...</translation>
    </message>
    <message>
        <source>You have no jobs on this printer.</source>
        <translation>このプリンターに自分のジョブはありません。</translation>
    </message>
    <message>
        <source>The print server has no other printer</source>
        <translation>プリントサーバーに他のプリンターはありません</translation>
    </message>
</context>
<context>
    <name>halvern::KeepLayoutRow</name>
    <message>
        <source>&amp;Keep</source>
        <translation>登録(&amp;K)</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>登録を解除</translation>
    </message>
    <message>
        <source>Name, to find it again</source>
        <translation>名前 (後で見つけるため)</translation>
    </message>
    <message>
        <source>Name of the layout</source>
        <translation>レイアウトの名前</translation>
    </message>
</context>
<context>
    <name>halvern::LayoutPage</name>
    <message>
        <source>Rows</source>
        <translation>行数</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列数</translation>
    </message>
    <message>
        <source>Width of each photo</source>
        <translation>各写真の幅</translation>
    </message>
    <message>
        <source>Height of each photo</source>
        <translation>各写真の高さ</translation>
    </message>
    <message>
        <source>&amp;Each photo fills its own sheet</source>
        <translation>1 枚の用紙に同じ写真を並べる(&amp;E)</translation>
    </message>
    <message>
        <source>Margin of the sheet</source>
        <translation>用紙の余白</translation>
    </message>
    <message>
        <source>White border</source>
        <translation>白フチ</translation>
    </message>
    <message>
        <source>Thin l&amp;ine</source>
        <translation>細い線(&amp;I)</translation>
    </message>
    <message>
        <source>Copies of this photo</source>
        <translation>この写真の枚数</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>トリミング...</translation>
    </message>
    <message>
        <source>Same Crop for All</source>
        <translation>すべて同じトリミング</translation>
    </message>
    <message>
        <source>&amp;Layout:</source>
        <translation>レイアウト(&amp;L):</translation>
    </message>
    <message>
        <source>Photo si&amp;ze:</source>
        <translation>写真のサイズ(&amp;Z):</translation>
    </message>
    <message>
        <source>Pl&amp;ace:</source>
        <translation>位置(&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Margin:</source>
        <translation>余白(&amp;M):</translation>
    </message>
    <message>
        <source>White &amp;border:</source>
        <translation>白フチ(&amp;B):</translation>
    </message>
    <message>
        <source>&amp;Caption:</source>
        <translation>キャプション(&amp;C):</translation>
    </message>
    <message>
        <source>T&amp;his photo:</source>
        <translation>この写真(&amp;H):</translation>
    </message>
    <message>
        <source>As my la&amp;yout:</source>
        <translation>自分のレイアウトとして(&amp;Y):</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>rows of</source>
        <translation>行 ×</translation>
    </message>
    <message>
        <source> copies</source>
        <translation> 枚</translation>
    </message>
    <message>
        <source>One photo on each page</source>
        <translation>1 ページに写真 1 枚</translation>
    </message>
    <message>
        <source>Rows and columns</source>
        <translation>行と列</translation>
    </message>
    <message>
        <source>Photos of one size</source>
        <translation>同じサイズの写真</translation>
    </message>
    <message>
        <source>Make the page %1 mm long, as the photos need</source>
        <translation>写真に合わせてページの長さを %1 mm にする</translation>
    </message>
    <message>
        <source> copy</source>
        <translation> 枚</translation>
    </message>
    <message>
        <source>Cu&amp;t marks</source>
        <translation>トンボ(&amp;T)</translation>
    </message>
</context>
<context>
    <name>halvern::LoginDialog</name>
    <message>
        <source>Send it &amp;all the same</source>
        <translation>それでも送る(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remember it in the keyring</source>
        <translation>キーリングに保存(&amp;R)</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>サインイン</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Sign In</source>
        <translation>サインイン(&amp;S)</translation>
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
    <name>halvern::Notices</name>
    <message>
        <source>Printing</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Printing from %1</source>
        <translation>%1 からの印刷</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
</context>
<context>
    <name>halvern::OptionDelegate</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>also sets %1</source>
        <translation>次も変わります: %1</translation>
    </message>
</context>
<context>
    <name>halvern::OptionFinder</name>
    <message>
        <source>Search options and printers (Ctrl+F)</source>
        <translation>オプションとプリンターを検索 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search options and printers</source>
        <translation>オプションとプリンターを検索</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>検索結果</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>%1 › %2</source>
        <translation>%1 › %2</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>検索しています...</translation>
    </message>
    <message>
        <source>Nothing has this name.</source>
        <translation>この名前のものはありません。</translation>
    </message>
    <message>
        <source>The first %1 that were found</source>
        <translation>見つかったうちの最初の %1 件</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 件見つかりました</translation>
    </message>
</context>
<context>
    <name>halvern::OptionTree</name>
    <message>
        <source>Installed in the printer (set by whoever installed it)</source>
        <translation>プリンターの装備 (プリンターを設定した人が決めます)</translation>
    </message>
    <message>
        <source>%1 (the printer&apos;s default)</source>
        <translation>%1 (プリンターの既定値)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Put back to the printer&apos;s default: %1</source>
        <translation>プリンターの既定値に戻す: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Changed from the printer&apos;s default</source>
        <translation>プリンターの既定値から変更されています</translation>
    </message>
    <message>
        <source>As the printer is set</source>
        <translation>プリンターの設定に従う</translation>
    </message>
</context>
<context>
    <name>halvern::OptionsPage</name>
    <message>
        <source>Show changed only</source>
        <translation>変更した項目だけを表示</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>すべてリセット</translation>
    </message>
    <message>
        <source>Puts the options of this page back to the printer&apos;s defaults</source>
        <translation>このページのオプションをプリンターの既定値に戻します</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Nothing changed</source>
        <translation>変更なし</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>変更 %1 件</translation>
    </message>
    <message>
        <source>Put Back to the Printer&apos;s Default</source>
        <translation>プリンターの既定値に戻す</translation>
    </message>
</context>
<context>
    <name>halvern::OutputMenu</name>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Print to a &amp;PDF File...</source>
        <translation>PDF ファイルに印刷(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Copy as Command</source>
        <translation>コマンドとしてコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Print to a PDF File</source>
        <translation>PDF ファイルに印刷</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF ファイル (*.pdf)</translation>
    </message>
    <message>
        <source>The command that prints this again is on the clipboard.</source>
        <translation>同じ印刷をもう一度行うコマンドをクリップボードにコピーしました。</translation>
    </message>
    <message>
        <source>A file is being written still. Write the next one when it is there.</source>
        <translation>まだファイルを書き込んでいます。終わってから次のファイルを書き込んでください。</translation>
    </message>
    <message>
        <source>The command that prints this again is on the clipboard, without your PIN or password.</source>
        <translation>同じ印刷をもう一度行うコマンドを、PIN やパスワードを除いてクリップボードにコピーしました。</translation>
    </message>
    <message>
        <source>%1 is one of the files to print. Choose another name.</source>
        <translation>%1 は印刷するファイルの 1 つです。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>That folder goes when this window is closed. Choose another one.</source>
        <translation>このフォルダーはウィンドウを閉じると消えます。別のフォルダーを選んでください。</translation>
    </message>
</context>
<context>
    <name>halvern::PageRangeRow</name>
    <message>
        <source>Last page &amp;first</source>
        <translation>最後のページから(&amp;F)</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>印刷するページ</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>奇数と偶数</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>奇数のみ</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>偶数のみ</translation>
    </message>
    <message>
        <source>Odd or even pages</source>
        <translation>奇数ページまたは偶数ページ</translation>
    </message>
    <message>
        <source>All %1, or for example 1-3, 5-</source>
        <translation>全 %1 ページ、または 1-3, 5- など</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>現在のページ</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>選択範囲</translation>
    </message>
    <message>
        <source>Which pages</source>
        <translation>どのページを印刷するか</translation>
    </message>
    <message>
        <source>All, or for example 1-3, 5-</source>
        <translation>すべて、または 1-3, 5- など</translation>
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
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>About the Photo</source>
        <translation>写真の情報</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>レイアウト</translation>
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
    <message>
        <source>Search by name or measures</source>
        <translation>名前または寸法で検索</translation>
    </message>
    <message>
        <source>&amp;Borderless</source>
        <translation>フチなし(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Two-sided:</source>
        <translation>両面印刷(&amp;T):</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>ページ(&amp;G):</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>The printer does not have this paper size both with and without a margin.</source>
        <translation>プリンターのこの用紙サイズには、余白ありと余白なしの両方はありません。</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>拡大縮小(&amp;S):</translation>
    </message>
    <message>
        <source>Loaded:</source>
        <translation>セット済み:</translation>
    </message>
    <message>
        <source>Co&amp;lors:</source>
        <translation>色(&amp;C):</translation>
    </message>
</context>
<context>
    <name>halvern::PaperSizeList</name>
    <message>
        <source>Custom size...</source>
        <translation>カスタムサイズ...</translation>
    </message>
</context>
<context>
    <name>halvern::PdfOutput</name>
    <message>
        <source>The file &quot;%1&quot; could not be written: %2.</source>
        <translation>ファイル「%1」に書き込めませんでした: %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no regular file. Name a file to write.</source>
        <translation>「%1」は通常のファイルではありません。書き込むファイルを指定してください。</translation>
    </message>
    <message>
        <source>Cancelled: no file was written.</source>
        <translation>キャンセルしました。ファイルは書き込んでいません。</translation>
    </message>
    <message>
        <source>No file was written. %1</source>
        <translation>ファイルは書き込んでいません。%1</translation>
    </message>
    <message>
        <source>1 page was written to &quot;%1&quot;.</source>
        <translation>1 ページを「%1」に書き込みました。</translation>
    </message>
    <message>
        <source>%1 pages were written to &quot;%2&quot;.</source>
        <translation>%1 ページを「%2」に書き込みました。</translation>
    </message>
    <message>
        <source>The computer is too busy to write the file. Close something and try again.</source>
        <translation>コンピューターの負荷が高く、ファイルを書き込めません。何か閉じてから、もう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoAdding</name>
    <message>
        <source>Add...</source>
        <translation>追加...</translation>
    </message>
    <message>
        <source>Add photos; they can be dropped on the window and pasted, too</source>
        <translation>写真を追加します。ウィンドウへのドロップや貼り付けもできます</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Add Photos</source>
        <translation>写真の追加</translation>
    </message>
    <message>
        <source>Choose Photos</source>
        <translation>写真を選択</translation>
    </message>
    <message>
        <source>The clipboard holds no photo. Copy a picture, or files of photos, first.</source>
        <translation>クリップボードに写真がありません。先に画像か写真のファイルをコピーしてください。</translation>
    </message>
    <message>
        <source>The picture cannot be kept in a temporary file. Make room on the disk.</source>
        <translation>画像を一時ファイルに保存できません。ディスクの空きを増やしてください。</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoListModel</name>
    <message>
        <source>%1, page %2</source>
        <translation>%1、%2 ページ</translation>
    </message>
    <message>
        <source>Photo %1 of %2</source>
        <translation>写真 %1/%2</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 部</translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation>%1 部</translation>
    </message>
    <message>
        <source>not printed</source>
        <translation>印刷しません</translation>
    </message>
    <message>
        <source>a part of it is missing</source>
        <translation>一部が欠けています</translation>
    </message>
    <message>
        <source>Drag it to another place, or press Alt and an arrow key. Plus and minus change the copies, Space whether it is printed, Delete takes it out, Return crops it. More with a right click.</source>
        <translation>ドラッグするか、Alt キーと矢印キーで移動します。プラスとマイナスで部数、スペースで印刷の有無、Delete で取り除き、Enter で切り抜きます。その他は右クリックで選べます。</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoLoader</name>
    <message>
        <source>&quot;%1&quot; cannot be read now: the computer is too busy. Close something and open it again.</source>
        <translation>コンピューターの負荷が高く、「%1」を今は読めません。何か閉じてから、もう一度開いてください。</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoPage</name>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>1/%1 s</source>
        <translation>1/%1 秒</translation>
    </message>
    <message>
        <source>f/%1</source>
        <translation>f/%1</translation>
    </message>
    <message>
        <source>ISO %1</source>
        <translation>ISO %1</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Adobe RGB, as the camera notes</source>
        <translation>Adobe RGB (カメラの記録による)</translation>
    </message>
    <message>
        <source>sRGB, as the file notes</source>
        <translation>sRGB (ファイルの記録による)</translation>
    </message>
    <message>
        <source>Not said; taken as sRGB</source>
        <translation>指定なし (sRGB とみなします)</translation>
    </message>
    <message>
        <source>%1 x %2 pixels (%3 megapixels)</source>
        <translation>%1 x %2 ピクセル (%3 メガピクセル)</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>ファイル:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>フォルダー:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>種類:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>問題:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>サイズ:</translation>
    </message>
    <message>
        <source>Colors:</source>
        <translation>色:</translation>
    </message>
    <message>
        <source>Taken:</source>
        <translation>撮影日時:</translation>
    </message>
    <message>
        <source>Camera:</source>
        <translation>カメラ:</translation>
    </message>
    <message>
        <source>Lens:</source>
        <translation>レンズ:</translation>
    </message>
    <message>
        <source>Exposure:</source>
        <translation>露出:</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>タイトル:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>説明:</translation>
    </message>
    <message>
        <source>Rating:</source>
        <translation>評価:</translation>
    </message>
    <message>
        <source>CMYK without a profile; taken as ideal inks</source>
        <translation>プロファイルなしの CMYK (理想的なインクとみなします)</translation>
    </message>
    <message>
        <source>Gray without a profile; taken as sRGB</source>
        <translation>プロファイルなしのグレー (sRGB とみなします)</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoPlaceRow</name>
    <message>
        <source>Away from the corner:</source>
        <translation>角からの距離:</translation>
    </message>
    <message>
        <source>From the left</source>
        <translation>左から</translation>
    </message>
    <message>
        <source>From the top</source>
        <translation>上から</translation>
    </message>
    <message>
        <source>Without it the photo is in the middle of the sheet</source>
        <translation>指定しないと写真は用紙の中央になります</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoSizeRow</name>
    <message>
        <source>Width of the photo</source>
        <translation>写真の幅</translation>
    </message>
    <message>
        <source>Height of the photo</source>
        <translation>写真の高さ</translation>
    </message>
    <message>
        <source>As large as the page</source>
        <translation>ページと同じ大きさ</translation>
    </message>
    <message>
        <source>In</source>
        <translation>指定サイズ</translation>
    </message>
    <message>
        <source>Of its own size</source>
        <translation>元のサイズに対する割合</translation>
    </message>
    <message>
        <source>Photo size</source>
        <translation>写真のサイズ</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Percent of its own size</source>
        <translation>元のサイズに対する割合 (%)</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoStrip</name>
    <message>
        <source>Photos</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>トリミング...</translation>
    </message>
    <message>
        <source>Same Crop for All</source>
        <translation>すべて同じトリミング</translation>
    </message>
    <message>
        <source>One More Copy</source>
        <translation>1 部増やす</translation>
    </message>
    <message>
        <source>One Copy Less</source>
        <translation>1 部減らす</translation>
    </message>
    <message>
        <source>Copies...</source>
        <translation>部数...</translation>
    </message>
    <message>
        <source>Print, or Not</source>
        <translation>印刷する/しない</translation>
    </message>
    <message>
        <source>Print Only These</source>
        <translation>これらだけ印刷</translation>
    </message>
    <message>
        <source>Print All Photos</source>
        <translation>すべての写真を印刷</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>取り除く</translation>
    </message>
    <message>
        <source>Move Earlier</source>
        <translation>前へ移動</translation>
    </message>
    <message>
        <source>Move Later</source>
        <translation>後ろへ移動</translation>
    </message>
    <message>
        <source>Move to the Start</source>
        <translation>先頭へ移動</translation>
    </message>
    <message>
        <source>Move to the End</source>
        <translation>末尾へ移動</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%2 枚中 %1 枚を選択</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>写真 %1 枚</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Copies of this photo:</source>
        <translation>この写真の部数:</translation>
    </message>
    <message>
        <source>Copies of each of the %1 photos:</source>
        <translation>%1 枚の写真それぞれの部数:</translation>
    </message>
</context>
<context>
    <name>halvern::PresetBar</name>
    <message>
        <source>From your saved options (lpoptions)</source>
        <translation>保存されたオプションから (lpoptions)</translation>
    </message>
    <message>
        <source>Made for a printer of the same model</source>
        <translation>同じ機種のプリンター用に作成</translation>
    </message>
    <message>
        <source>Nothing was printed here yet</source>
        <translation>ここではまだ何も印刷していません</translation>
    </message>
    <message>
        <source>Presets (*.json)</source>
        <translation>プリセット (*.json)</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Save, rename and more</source>
        <translation>保存、名前の変更など</translation>
    </message>
    <message>
        <source>Read from the file, and not applied yet: %1</source>
        <translation>ファイルから読み込みました (まだ適用していません): %1</translation>
    </message>
    <message>
        <source>%1 – changed</source>
        <translation>%1 – 変更あり</translation>
    </message>
    <message>
        <source>&amp;Save as New Preset...</source>
        <translation>新しいプリセットとして保存(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Import from File...</source>
        <translation>ファイルから読み込む(&amp;I)...</translation>
    </message>
    <message>
        <source>Export &amp;All to File...</source>
        <translation>すべてファイルに書き出す(&amp;A)...</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>&amp;Update &quot;%1&quot;</source>
        <translation>「%1」を更新(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation>更新(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Rename &quot;%1&quot;...</source>
        <translation>「%1」の名前を変更(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>名前を変更(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Delete &quot;%1&quot;</source>
        <translation>「%1」を削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Export &quot;%1&quot; to File...</source>
        <translation>「%1」をファイルに書き出す(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Export to File...</source>
        <translation>ファイルに書き出す(&amp;E)...</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; was deleted.</source>
        <translation>プリセット「%1」を削除しました。</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Import Presets</source>
        <translation>プリセットの読み込み</translation>
    </message>
    <message>
        <source>Export Presets</source>
        <translation>プリセットの書き出し</translation>
    </message>
</context>
<context>
    <name>halvern::PresetNameDialog</name>
    <message>
        <source>Save Preset</source>
        <translation>プリセットの保存</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>プリセットの名前の変更</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前を変更(&amp;R)</translation>
    </message>
    <message>
        <source>With the number of &amp;copies (%1)</source>
        <translation>部数も含める (%1)(&amp;C)</translation>
    </message>
    <message>
        <source>With the &amp;pages to print</source>
        <translation>印刷するページも含める(&amp;P)</translation>
    </message>
    <message>
        <source>With the &amp;text on the back</source>
        <translation>裏面の文字も含める(&amp;T)</translation>
    </message>
    <message>
        <source>This name is always there. Choose another one.</source>
        <translation>この名前は最初から用意されています。別の名前にしてください。</translation>
    </message>
    <message>
        <source>There is a preset of this name. It will be replaced.</source>
        <translation>この名前のプリセットがあります。置き換えられます。</translation>
    </message>
    <message>
        <source>There is a preset of this name. Choose another one.</source>
        <translation>この名前のプリセットがあります。別の名前にしてください。</translation>
    </message>
</context>
<context>
    <name>halvern::Presets</name>
    <message>
        <source>%1 (from %2)</source>
        <translation>%1 (%2 より)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no preset &quot;%2&quot;.</source>
        <translation>「%1」にプリセット「%2」はありません。</translation>
    </message>
    <message>
        <source>It has: %1.</source>
        <translation>次のものがあります: %1。</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>%1 のことですか？</translation>
    </message>
</context>
<context>
    <name>halvern::PreviewSide</name>
    <message>
        <source>Previous photo</source>
        <translation>前の写真</translation>
    </message>
    <message>
        <source>Next photo</source>
        <translation>次の写真</translation>
    </message>
    <message>
        <source>Reading the photo...</source>
        <translation>写真を読み込んでいます...</translation>
    </message>
    <message>
        <source>There is no photo to print.</source>
        <translation>印刷する写真がありません。</translation>
    </message>
    <message>
        <source>No page is chosen.</source>
        <translation>ページが選ばれていません。</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <translation>%1、%2 ページ</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>(front)</source>
        <translation>(表)</translation>
    </message>
    <message>
        <source>(back)</source>
        <translation>(裏)</translation>
    </message>
    <message>
        <source>Show the photos in a row, or not</source>
        <translation>写真を一列に表示する/しない</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>印刷しません</translation>
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
        <source>The printer&apos;s adjustments, approximated on the screen</source>
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
    <message>
        <source>Back</source>
        <translation>裏面</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>トリミング</translation>
    </message>
    <message>
        <source>Choose the part of the photo that is printed (press C in the preview)</source>
        <translation>写真の印刷する部分を選びます (プレビューで C を押す)</translation>
    </message>
    <message>
        <source>Show what is printed on the back of the picture</source>
        <translation>写真の裏面に印刷する内容を表示します</translation>
    </message>
    <message>
        <source>The back of the picture, as the printer writes on it</source>
        <translation>プリンターが書き込む写真の裏面</translation>
    </message>
    <message>
        <source>the edges are cut away</source>
        <translation>端は切り落とされます</translation>
    </message>
    <message>
        <source>The picture reaches %1 mm beyond each edge of the paper, so that nothing stays white: what is marked along the edges is cut away</source>
        <translation>画像は白いふちが残らないように用紙の各端から %1 mm はみ出します。端の印の部分は切り落とされます</translation>
    </message>
</context>
<context>
    <name>halvern::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
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
        <source>The print server has no printers. Add one in the system&apos;s settings.</source>
        <translation>プリントサーバーにプリンターがありません。システムの設定で追加してください。</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot;. Choose another one.</source>
        <translation>プリントサーバーに「%1」というプリンターはありません。別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 を印刷</translation>
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
        <source>Job %1 was sent to &quot;%2&quot;.</source>
        <translation>ジョブ %1 を「%2」に送りました。</translation>
    </message>
    <message>
        <source>Choose a printer and a paper size, look at the preview, and press Print. The list on the left of the options has the printer&apos;s own pages.</source>
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
    <message>
        <source>Search by name, place or model</source>
        <translation>名前、場所、機種で検索</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>1 option was put back to the printer&apos;s default.</source>
        <translation>1 件のオプションをプリンターの既定値に戻しました。</translation>
    </message>
    <message>
        <source>%1 options were put back to the printer&apos;s defaults.</source>
        <translation>%1 件のオプションをプリンターの既定値に戻しました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was applied.</source>
        <translation>「%1」を適用しました。</translation>
    </message>
    <message>
        <source>Writing the file...</source>
        <translation>ファイルを書き込んでいます...</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>プリセット:</translation>
    </message>
    <message>
        <source>An application</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>The document is printed as it came. Its pages cannot be shown here.</source>
        <translation>文書は届いたまま印刷されます。ページをここに表示することはできません。</translation>
    </message>
    <message>
        <source>Print - %1</source>
        <translation>印刷 - %1</translation>
    </message>
    <message>
        <source>The application makes its pages afterwards, for this sheet.</source>
        <translation>アプリケーションはこのあと、この用紙に合わせてページを作成します。</translation>
    </message>
    <message>
        <source>Sign &amp;In...</source>
        <translation>サインイン(&amp;N)...</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot; any more. It was last seen on %2. Is it switched on, and on this network?</source>
        <translation>プリントサーバーに「%1」はもうありません。最後に確認できたのは %2 です。電源が入っていて、このネットワークにあるかをご確認ください。</translation>
    </message>
</context>
<context>
    <name>halvern::PrintRun</name>
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
        <source>Job %1 was sent to &quot;%2&quot;, but the print server has not answered for %3 seconds: whether it was printed is not known. Look at the printer before you print again.</source>
        <translation>ジョブ %1 は「%2」に送信しましたが、プリントサーバーが %3 秒間応答していません。印刷されたかどうかは不明です。もう一度印刷する前にプリンターをご確認ください。</translation>
    </message>
    <message>
        <source>The document cannot be read any more: %1. Print it once more.</source>
        <translation>文書を読めなくなりました: %1。もう一度印刷してください。</translation>
    </message>
    <message>
        <source>%1 photos went out in %2 jobs; the others were not sent. %3</source>
        <translation>%1 枚の写真を %2 件のジョブで送りました。残りは送っていません。%3</translation>
    </message>
    <message>
        <source>%1 photos were printed in %2 jobs, %3 to %4.</source>
        <translation>%1 枚の写真を %2 件のジョブ (%3 から %4) で印刷しました。</translation>
    </message>
    <message>
        <source>The computer is too busy to send it. Close something and try again.</source>
        <translation>コンピューターの負荷が高く、送信できません。何か閉じてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Cancelled. Jobs that were printed before: %1.</source>
        <translation>キャンセルしました。すでに印刷したジョブ: %1 件。</translation>
    </message>
    <message>
        <source>Stopped. These jobs are on the queue &quot;%1&quot; and stay there: %2.</source>
        <translation>停止しました。次のジョブはキュー「%1」に残っています: %2。</translation>
    </message>
    <message>
        <source>Look at the printer before you print again.</source>
        <translation>もう一度印刷する前にプリンターをご確認ください。</translation>
    </message>
    <message>
        <source>Cancelled. Sheets that were printed before: %1.</source>
        <translation>キャンセルしました。すでに印刷した用紙: %1 枚。</translation>
    </message>
</context>
<context>
    <name>halvern::PrintService</name>
    <message>
        <source>There is no session bus: %1.</source>
        <translation>セッションバスがありません: %1。</translation>
    </message>
    <message>
        <source>Another halvern-print-portal runs in this session already.</source>
        <translation>このセッションでは別の halvern-print-portal がすでに動作しています。</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterChoice</name>
    <message>
        <source>Your default printer &quot;%1&quot; is none of the print server&apos;s. &quot;%2&quot; was chosen instead.</source>
        <translation>既定のプリンター「%1」はプリントサーバーにありません。代わりに「%2」を選びました。</translation>
    </message>
    <message>
        <source>The application remembers a printer &quot;%1&quot; that is none of the print server&apos;s. &quot;%2&quot; was chosen instead.</source>
        <translation>アプリケーションが覚えているプリンター「%1」はプリントサーバーにありません。代わりに「%2」を選びました。</translation>
    </message>
    <message>
        <source>There is not enough memory for the options of &quot;%1&quot;. Close something, and choose the printer again.</source>
        <translation>「%1」のオプションのためのメモリが足りません。何かを閉じて、プリンターを選び直してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server. Its options were read again.</source>
        <translation>「%1」はプリントサーバーで設定し直されました。オプションを読み直しました。</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterPage</name>
    <message>
        <source>State:</source>
        <translation>状態:</translation>
    </message>
    <message>
        <source>What to do:</source>
        <translation>対処方法:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>開始日時:</translation>
    </message>
    <message>
        <source>Jobs ahead:</source>
        <translation>先のジョブ:</translation>
    </message>
    <message>
        <source>Printers in it:</source>
        <translation>含まれるプリンター:</translation>
    </message>
    <message>
        <source>Supplies:</source>
        <translation>消耗品:</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>not on the print server</source>
        <translation>プリントサーバーにありません</translation>
    </message>
    <message>
        <source>Nothing is known of it yet.</source>
        <translation>まだ情報がありません。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>The printer tells more of itself than can be shown here.</source>
        <translation>プリンターからの情報が多く、ここにすべては表示できません。</translation>
    </message>
    <message>
        <source>The printer does not say what is left of its ink or toner.</source>
        <translation>プリンターはインクやトナーの残量を知らせません。</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterRows</name>
    <message>
        <source>Used last</source>
        <translation>最近使ったもの</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>ネットワークで見つかりました</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
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
    <message>
        <source>✓ as shown</source>
        <translation>✓ 表示どおり</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
</context>
<context>
    <name>halvern::SearchPopup</name>
    <message>
        <source>Nothing here is called &quot;%1&quot;.</source>
        <translation>「%1」という名前のものはここにありません。</translation>
    </message>
</context>
<context>
    <name>halvern::SentJob</name>
    <message>
        <source>The document was not printed: the session ended before the print server had all of it. Print it once more.</source>
        <translation>文書は印刷されませんでした。プリントサーバーにすべて届く前にセッションが終わりました。もう一度印刷してください。</translation>
    </message>
    <message>
        <source>Sign in for it in the list of jobs: &quot;Jobs...&quot; in the print dialog.</source>
        <translation>印刷ダイアログの「ジョブ...」を開き、ジョブの一覧でサインインしてください。</translation>
    </message>
</context>
<context>
    <name>halvern::SessionPresets</name>
    <message>
        <source>A saved setting was left out. %1</source>
        <translation>保存された設定を 1 つ使いませんでした。%1</translation>
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
        <source>Off: %1</source>
        <translation>オフ: %1</translation>
    </message>
    <message>
        <source>All other settings</source>
        <translation>その他のすべての設定</translation>
    </message>
    <message>
        <source>The options as they are sent</source>
        <translation>送信されるとおりのオプション</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>コピー(&amp;Y)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>ジョブのタイトル</translation>
    </message>
    <message>
        <source>printer&apos;s default: %1</source>
        <translation>プリンターの既定値: %1</translation>
    </message>
    <message>
        <source>%1 more are in the list of all other settings.</source>
        <translation>ほか %1 件は「その他のすべての設定」の一覧にあります。</translation>
    </message>
</context>
<context>
    <name>halvern::SupplyBars</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>halvern::TrayRows</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
</TS>
