<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>The display cannot be used: %1. Print with --no-dialog, or set DISPLAY to one that works.</source>
        <translation>تعذّر استخدام الشاشة: %1. اطبع بالخيار ⁨--no-dialog⁩، أو اضبط DISPLAY على شاشة تعمل.</translation>
    </message>
    <message>
        <source>There is no display to show the dialog on. Print with --no-dialog, or set DISPLAY.</source>
        <translation>لا توجد شاشة لعرض مربع الحوار. اطبع بالخيار ⁨--no-dialog⁩، أو اضبط DISPLAY.</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>الطباعة</translation>
    </message>
</context>
<context>
    <name>AuthInfo</name>
    <message>
        <source>The printer &quot;%1&quot; wants a name and a password, and was given none. Print again and sign in, or ask whoever looks after it.</source>
        <translation>تطلب الطابعة «⁨%1⁩» اسمًا وكلمة مرور، ولم تُعطَ أيًّا منهما. اطبع مرة أخرى وسجّل الدخول، أو اسأل المسؤول عنها.</translation>
    </message>
</context>
<context>
    <name>BackLines</name>
    <message>
        <source>Backprint line %1 cannot hold %2, which was left out. It takes the characters of an English keyboard except &quot;~&quot;, and &quot;©&quot;.</source>
        <translation>لا يتسع السطر %1 على ظهر الصورة للمحتوى %2، فحُذف منه. يقبل السطر أحرف لوحة المفاتيح الإنجليزية ما عدا «~»، ويقبل «©».</translation>
    </message>
    <message>
        <source>Backprint line %1 is longer than %2 characters; what comes after them was left out (%3).</source>
        <translation>السطر %1 على ظهر الصورة أطول من الحد، وهو %2 من الأحرف؛ حُذف ما بعده (%3).</translation>
    </message>
</context>
<context>
    <name>Caption</name>
    <message>
        <source>File name</source>
        <translation>اسم الملف</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>تاريخ الالتقاط</translation>
    </message>
    <message>
        <source>Year (4 digits)</source>
        <translation>السنة (4 أرقام)</translation>
    </message>
    <message>
        <source>Year (2 digits)</source>
        <translation>السنة (رقمان)</translation>
    </message>
    <message>
        <source>Month (2 digits)</source>
        <translation>الشهر (رقمان)</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>الشهر</translation>
    </message>
    <message>
        <source>Day (2 digits)</source>
        <translation>اليوم (رقمان)</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>اليوم</translation>
    </message>
</context>
<context>
    <name>ColourManagement</name>
    <message>
        <source>Perceptual</source>
        <translation>إدراكي</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>قياس لوني نسبي</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>تشبّع</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>قياس لوني مطلق</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>The printer is told not to convert them again (%1).</source>
        <translation>يُطلب من الطابعة ألا تحوّلها مرة أخرى (%1).</translation>
    </message>
    <message>
        <source>No color profile of this printer is known. Choose one, or let the printer manage colors.</source>
        <translation>لا يُعرف ملف تعريف ألوان لهذه الطابعة. اختر واحدًا، أو دع الطابعة تدير الألوان.</translation>
    </message>
    <message>
        <source>colors for &quot;%1&quot;</source>
        <translation>ألوان من أجل «⁨%1⁩»</translation>
    </message>
    <message>
        <source>The printer converts the colors: each photo goes to it in %1. No soft proof: only the printer knows what it makes of them.</source>
        <translation>تحوّل الطابعة الألوان: تُرسَل إليها كل صورة بصيغة %1. لا بروفة على الشاشة: الطابعة وحدها تعرف ما تصنعه بها.</translation>
    </message>
    <message>
        <source>This program converts the colors, from each photo&apos;s own to &quot;%1&quot;.</source>
        <translation>يحوّل هذا البرنامج الألوان من ألوان كل صورة إلى «⁨%1⁩».</translation>
    </message>
    <message>
        <source>See that the printer&apos;s own color correction is off.</source>
        <translation>تأكد من أن تصحيح الألوان في الطابعة نفسها متوقف.</translation>
    </message>
    <message>
        <source>Only the printer knows what it makes of the colors. Let this program manage them, for a profile, to see a soft proof.</source>
        <translation>الطابعة وحدها تعرف ما تصنعه بالألوان. دع هذا البرنامج يديرها وفق ملف تعريف لترى بروفة على الشاشة.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say what its colors look like: with it there is no soft proof.</source>
        <translation>لا يصف «⁨%1⁩» شكل ألوانه: لا بروفة على الشاشة معه.</translation>
    </message>
    <message>
        <source>Soft proof with paper white</source>
        <translation>بروفة على الشاشة ببياض الورق</translation>
    </message>
    <message>
        <source>Soft proof</source>
        <translation>بروفة على الشاشة</translation>
    </message>
    <message>
        <source>pink cannot be printed</source>
        <translation>ما يظهر ورديًّا لا يمكن طباعته</translation>
    </message>
    <message>
        <source>The color profile &quot;%1&quot; is being read. Wait a moment.</source>
        <translation>تجري قراءة ملف تعريف الألوان «⁨%1⁩». انتظر لحظة.</translation>
    </message>
    <message>
        <source>The color profile &quot;%1&quot; cannot be read. Choose another one, or let the printer manage colors.</source>
        <translation>تعذّرت قراءة ملف تعريف الألوان «⁨%1⁩». اختر غيره، أو دع الطابعة تدير الألوان.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color profile of a printer. Choose another one, or let the printer manage colors.</source>
        <translation>ليس «⁨%1⁩» ملف تعريف ألوان لطابعة. اختر غيره، أو دع الطابعة تدير الألوان.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print photos of which a part is missing, too, without asking.</source>
        <translation>اطبع أيضًا الصور التي ينقصها جزء، بلا سؤال.</translation>
    </message>
    <message>
        <source>Print on this queue.</source>
        <translation>اطبع على قائمة الانتظار هذه.</translation>
    </message>
    <message>
        <source>Where no file is named, ask for photos in a window first.</source>
        <translation>إن لم يُذكر ملف، فاسأل أولًا عن الصور في نافذة.</translation>
    </message>
    <message>
        <source>Set a printer option. Can be given several times.</source>
        <translation>اضبط خيارًا للطابعة. يمكن إعطاؤه أكثر من مرة.</translation>
    </message>
    <message>
        <source>Print this many copies, 1 to %1.</source>
        <translation>عدد النسخ المطبوعة، من 1 إلى %1.</translation>
    </message>
    <message>
        <source>Print at once, and wait until the job has ended.</source>
        <translation>اطبع حالًا، وانتظر حتى تنتهي المهمة.</translation>
    </message>
    <message>
        <source>Write the options that would be sent, one KEY=VALUE a line, and send nothing.</source>
        <translation>اكتب الخيارات التي كانت ستُرسَل، خيار KEY=VALUE في كل سطر، ولا ترسل شيئًا.</translation>
    </message>
    <message>
        <source>See &quot;halvern-print --help&quot;.</source>
        <translation>انظر «⁨halvern-print --help⁩».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no option: write KEY=VALUE, for example PageSize=A4.</source>
        <translation>ليس «⁨%1⁩» خيارًا: اكتب KEY=VALUE، مثل PageSize=A4.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of copies: write a number from 1 to %2.</source>
        <translation>ليس «⁨%1⁩» عدد نسخ: اكتب رقمًا من 1 إلى %2.</translation>
    </message>
    <message>
        <source>The queue&apos;s name is empty. &quot;lpstat -e&quot; lists the queues.</source>
        <translation>اسم قائمة الانتظار فارغ. يسرد «⁨lpstat -e⁩» القوائم.</translation>
    </message>
    <message>
        <source>Prints photos, with a preview and the printer&apos;s own pages of options.</source>
        <translation>يطبع الصور، مع معاينة وصفحات الخيارات الخاصة بالطابعة.</translation>
    </message>
    <message>
        <source>Print this text on the back of each picture. Can be given twice, for a first and a second line. A line holds 120 characters and placeholders such as [YYYY], which the printer replaces.</source>
        <translation>اطبع هذا النص على ظهر كل صورة. يمكن إعطاؤه مرتين، لسطر أول وسطر ثانٍ. يتسع السطر لعدد 120 من الأحرف ولعناصر نائبة مثل [YYYY] تستبدلها الطابعة.</translation>
    </message>
    <message>
        <source>The back of a picture takes %1 lines: give --backprint once or twice.</source>
        <translation>أقصى عدد لأسطر ظهر الصورة %1: أعطِ ⁨--backprint⁩ مرة أو مرتين.</translation>
    </message>
    <message>
        <source>Write what the printer has loaded, and how old that knowledge is.</source>
        <translation>اكتب ما هو محمّل في الطابعة، ومتى عُرف ذلك.</translation>
    </message>
    <message>
        <source>With --list-papers: ask the printer first.</source>
        <translation>مع ⁨--list-papers⁩: اسأل الطابعة أولًا.</translation>
    </message>
    <message>
        <source>--refresh goes with --list-papers.</source>
        <translation>يُستخدم ⁨--refresh⁩ مع ⁨--list-papers⁩.</translation>
    </message>
    <message>
        <source>With --no-dialog: give a print server that goes silent after the job was sent this long; 60 seconds without it.</source>
        <translation>مع ⁨--no-dialog⁩: أمهل خادم الطباعة هذه المدة إن سكت بعد إرسال المهمة؛ وبدونه 60 ثانية.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time to wait: write a number of seconds from 1 to %2.</source>
        <translation>ليس «⁨%1⁩» مدة انتظار: اكتب عدد ثوانٍ من 1 إلى %2.</translation>
    </message>
    <message>
        <source>Print these pages only, for example 1-3,7,12-.</source>
        <translation>اطبع هذه الصفحات فقط، مثل ⁨1-3,7,12-⁩.</translation>
    </message>
    <message>
        <source>Print the last page first.</source>
        <translation>اطبع الصفحة الأخيرة أولًا.</translation>
    </message>
    <message>
        <source>Call the job this; without it, it is called like the first file.</source>
        <translation>سمِّ المهمة بهذا الاسم؛ وبدونه تُسمى باسم الملف الأول.</translation>
    </message>
    <message>
        <source>Write the pages, as they would be sent, into this PDF file, and send nothing.</source>
        <translation>اكتب الصفحات، كما كانت ستُرسَل، في ملف PDF هذا، ولا ترسل شيئًا.</translation>
    </message>
    <message>
        <source>With --no-dialog: read the job back from the print server, and say what was added or changed.</source>
        <translation>مع ⁨--no-dialog⁩: اقرأ المهمة من خادم الطباعة بعد إرسالها، واذكر ما أُضيف أو تغيّر.</translation>
    </message>
    <message>
        <source>Start with this preset of the printer&apos;s. Without it the dialog starts with what you printed with last, and --no-dialog with your saved options.</source>
        <translation>ابدأ بهذا الإعداد المسبق للطابعة. وبدونه يبدأ مربع الحوار بما طبعت به آخر مرة، ويبدأ ⁨--no-dialog⁩ بخياراتك المحفوظة.</translation>
    </message>
    <message>
        <source>Keep the queue&apos;s saved options, --preset and the options given here as a preset, and print nothing. Copies, pages and the text on the back are in it if they are given.</source>
        <translation>احفظ الخيارات المحفوظة لقائمة الانتظار و⁨--preset⁩ والخيارات المعطاة هنا إعدادًا مسبقًا، ولا تطبع شيئًا. يشمل النسخ والصفحات والنص على الظهر إن أُعطيت.</translation>
    </message>
    <message>
        <source>Write the print server&apos;s queues, a line each.</source>
        <translation>اكتب قوائم الانتظار في خادم الطباعة، واحدة في كل سطر.</translation>
    </message>
    <message>
        <source>Write the printer&apos;s options with their current and default value and their choices, a line each.</source>
        <translation>اكتب خيارات الطابعة مع قيمها الحالية والافتراضية واختياراتها، واحدًا في كل سطر.</translation>
    </message>
    <message>
        <source>Write the names of the printer&apos;s presets, a line each.</source>
        <translation>اكتب أسماء الإعدادات المسبقة للطابعة، واحدًا في كل سطر.</translation>
    </message>
    <message>
        <source>The name of the file to write is empty.</source>
        <translation>اسم الملف المطلوب كتابته فارغ.</translation>
    </message>
    <message>
        <source>--output writes a file, and does not go with --dry-run.</source>
        <translation>يكتب ⁨--output⁩ ملفًا، ولا يجتمع مع ⁨--dry-run⁩.</translation>
    </message>
    <message>
        <source>--verify goes with --no-dialog, and with nothing that sends no job.</source>
        <translation>يُستخدم ⁨--verify⁩ مع ⁨--no-dialog⁩، ولا يجتمع مع ما لا يرسل مهمة.</translation>
    </message>
    <message>
        <source>--%1 prints no files: leave out the files and the options for printing.</source>
        <translation>لا يطبع ⁨--%1⁩ ملفات: احذف الملفات وخيارات الطباعة.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a preset that is always there. Choose another name.</source>
        <translation>«⁨%1⁩» إعداد مسبق موجود دائمًا. اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a preset: write 1 to %2 characters.</source>
        <translation>ليس «⁨%1⁩» اسم إعداد مسبق: اكتب من 1 إلى %2 من الأحرف.</translation>
    </message>
    <message>
        <source>Turn the page: portrait or landscape; without it, as the photo.</source>
        <translation>أدِر الصفحة: portrait أو landscape؛ وبدونه كالصورة.</translation>
    </message>
    <message>
        <source>Send several jobs in order, with at most this many photos each; without it, one job.</source>
        <translation>أرسل عدة مهام بالترتيب، في كل منها هذا العدد من الصور على الأكثر؛ وبدونه مهمة واحدة.</translation>
    </message>
    <message>
        <source>Show the dialog above another program&apos;s window: x11: and the window&apos;s number in hexadecimal digits.</source>
        <translation>اعرض مربع الحوار فوق نافذة برنامج آخر: ⁨x11:⁩ ثم رقم النافذة بأرقام ست عشرية.</translation>
    </message>
    <message>
        <source>When the dialog has closed, write what was chosen and what became of it to standard output, as JSON.</source>
        <translation>عند إغلاق مربع الحوار، اكتب ما اختير وما آل إليه في الخرج القياسي بصيغة JSON.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of photos: write 1 or more.</source>
        <translation>ليس «⁨%1⁩» عدد صور: اكتب 1 أو أكثر.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no orientation: write portrait or landscape.</source>
        <translation>ليس «⁨%1⁩» اتجاهًا: اكتب portrait أو landscape.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no place: write two numbers from 0 to 1, for example 0.5,0.5.</source>
        <translation>ليس «⁨%1⁩» موضعًا: اكتب رقمين من 0 إلى 1، مثل ⁨0.5,0.5⁩.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no window: write x11: and its number, for example x11:3c00007.</source>
        <translation>لا يسمّي «⁨%1⁩» نافذة: اكتب ⁨x11:⁩ ورقمها، مثل ⁨x11:3c00007⁩.</translation>
    </message>
    <message>
        <source>--parent and --result-json go with the dialog.</source>
        <translation>يُستخدم ⁨--parent⁩ و⁨--result-json⁩ مع مربع الحوار.</translation>
    </message>
    <message>
        <source>%1 is one of the files to print. Write to another file with --output.</source>
        <translation>⁨%1⁩ من الملفات المطلوب طباعتها. اكتب إلى ملف آخر بالخيار ⁨--output⁩.</translation>
    </message>
    <message>
        <source>With --no-dialog: leave out files that cannot be read, or of which a part is missing, say which, and print the others.</source>
        <translation>مع ⁨--no-dialog⁩: تجاوز الملفات التي تتعذر قراءتها أو ينقصها جزء، واذكرها، واطبع الباقي.</translation>
    </message>
    <message>
        <source>Name at least one photo to print (JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF), or a folder of them.</source>
        <translation>اذكر صورة واحدة على الأقل للطباعة (JPEG أو PNG أو TIFF أو WebP أو HEIF أو AVIF أو PDF)، أو مجلد صور.</translation>
    </message>
    <message>
        <source>JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF files, or folders of them; each photo becomes a page. &quot;-&quot; is standard input, &quot;@NAME&quot; a text file with a file&apos;s name on each line.</source>
        <translation>ملفات JPEG أو PNG أو TIFF أو WebP أو HEIF أو AVIF أو PDF، أو مجلدات منها؛ تصبح كل صورة صفحة. «-» هو الدخل القياسي، و«⁨@NAME⁩» ملف نصي في كل سطر منه اسم ملف.</translation>
    </message>
    <message>
        <source>Standard input cannot be kept in a temporary file. Make room on the disk.</source>
        <translation>تعذّر حفظ الدخل القياسي في ملف مؤقت. أفسح مكانًا على القرص.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no rendering intent: write perceptual, relative, saturation or absolute.</source>
        <translation>ليس «⁨%1⁩» هدف عرض لوني: اكتب perceptual أو relative أو saturation أو absolute.</translation>
    </message>
    <message>
        <source>Use this print server; without it, CUPS_SERVER, client.conf or this computer&apos;s.</source>
        <translation>استخدم خادم الطباعة هذا؛ وبدونه CUPS_SERVER أو client.conf أو خادم هذا الحاسوب.</translation>
    </message>
    <message>
        <source>Who converts the photos&apos; colors: printer, which is given sRGB, or dialog, for a color profile of the printer.</source>
        <translation>من يحوّل ألوان الصور: printer، وتُعطى الطابعة sRGB، أو dialog، وفق ملف تعريف ألوان للطابعة.</translation>
    </message>
    <message>
        <source>Convert the colors for this ICC profile of the printer; without it, for the one that the printer comes with.</source>
        <translation>حوّل الألوان وفق ملف تعريف ICC هذا للطابعة؛ وبدونه وفق الملف المرفق بها.</translation>
    </message>
    <message>
        <source>What becomes of colors that the printer cannot show: perceptual, relative, saturation or absolute; without it, perceptual.</source>
        <translation>ما يصير إليه لون لا تستطيع الطابعة إظهاره: perceptual أو relative أو saturation أو absolute؛ وبدونه perceptual.</translation>
    </message>
    <message>
        <source>Convert the colors without black point compensation.</source>
        <translation>حوّل الألوان بلا تعويض النقطة السوداء.</translation>
    </message>
    <message>
        <source>With --list-printers, --list-options, --list-presets or --jobs: write JSON, with more details.</source>
        <translation>مع ⁨--list-printers⁩ أو ⁨--list-options⁩ أو ⁨--list-presets⁩ أو ⁨--jobs⁩: اكتب JSON بتفاصيل أكثر.</translation>
    </message>
    <message>
        <source>Write your jobs that have not ended, on the queue of --printer or on all, a line each.</source>
        <translation>اكتب مهامك التي لم تنتهِ، على قائمة الانتظار في ⁨--printer⁩ أو عليها كلها، واحدة في كل سطر.</translation>
    </message>
    <message>
        <source>With --jobs: those that have ended, too.</source>
        <translation>مع ⁨--jobs⁩: المهام المنتهية أيضًا.</translation>
    </message>
    <message>
        <source>With --jobs: cancel this job.</source>
        <translation>مع ⁨--jobs⁩: ألغِ هذه المهمة.</translation>
    </message>
    <message>
        <source>With --jobs: hold this job.</source>
        <translation>مع ⁨--jobs⁩: احتجز هذه المهمة.</translation>
    </message>
    <message>
        <source>With --jobs: let this held job go on.</source>
        <translation>مع ⁨--jobs⁩: دع هذه المهمة المحتجزة تستمر.</translation>
    </message>
    <message>
        <source>With --jobs: print this job again, if the print server has kept its pages.</source>
        <translation>مع ⁨--jobs⁩: اطبع هذه المهمة مرة أخرى، إن كان خادم الطباعة قد احتفظ بصفحاتها.</translation>
    </message>
    <message>
        <source>With --jobs: give the printer the name and the password for which it holds this job.</source>
        <translation>مع ⁨--jobs⁩: أعطِ الطابعة الاسم وكلمة المرور اللذين تحتجز هذه المهمة من أجلهما.</translation>
    </message>
    <message>
        <source>With --jobs: move this job to another queue; --to says which.</source>
        <translation>مع ⁨--jobs⁩: انقل هذه المهمة إلى قائمة انتظار أخرى يحددها ⁨--to⁩.</translation>
    </message>
    <message>
        <source>With --jobs --move: the queue to move the job to.</source>
        <translation>مع ⁨--jobs --move⁩: قائمة الانتظار التي تُنقل إليها المهمة.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no print server: write its name or address, and a port where it is not 631, for example print.example.org:8631.</source>
        <translation>ليس «⁨%1⁩» خادم طباعة: اكتب اسمه أو عنوانه، ومنفذًا إن لم يكن 631، مثل ⁨print.example.org:8631⁩.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; converts no colors: write printer or dialog.</source>
        <translation>لا يحوّل «⁨%1⁩» الألوان: اكتب printer أو dialog.</translation>
    </message>
    <message>
        <source>--profile, --intent and --no-black-point go with --color-by dialog.</source>
        <translation>تُستخدم ⁨--profile⁩ و⁨--intent⁩ و⁨--no-black-point⁩ مع ⁨--color-by dialog⁩.</translation>
    </message>
    <message>
        <source>--ended, --cancel, --hold, --release, --again, --sign-in, --move and --to go with --jobs.</source>
        <translation>تُستخدم ⁨--ended⁩ و⁨--cancel⁩ و⁨--hold⁩ و⁨--release⁩ و⁨--again⁩ و⁨--sign-in⁩ و⁨--move⁩ و⁨--to⁩ مع ⁨--jobs⁩.</translation>
    </message>
    <message>
        <source>Do one thing at a time: give one of --cancel, --hold, --release, --again and --sign-in, or --move and --to together.</source>
        <translation>افعل شيئًا واحدًا في كل مرة: أعطِ واحدًا من ⁨--cancel⁩ و⁨--hold⁩ و⁨--release⁩ و⁨--again⁩ و⁨--sign-in⁩، أو ⁨--move⁩ و⁨--to⁩ معًا.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no job: write its number, as --jobs lists it.</source>
        <translation>ليس «⁨%1⁩» مهمة: اكتب رقمها كما يسرده ⁨--jobs⁩.</translation>
    </message>
    <message>
        <source>--json goes with --list-printers, --list-options, --list-presets or --jobs.</source>
        <translation>يُستخدم ⁨--json⁩ مع ⁨--list-printers⁩ أو ⁨--list-options⁩ أو ⁨--list-presets⁩ أو ⁨--jobs⁩.</translation>
    </message>
    <message>
        <source>Where the spare room or the cut goes: 0,0 is left and top, 1,1 right and bottom. Can be given several times, for one photo after the other, as can the next three.</source>
        <translation>أين يقع الفراغ الزائد أو القص: ⁨0,0⁩ يسارًا وأعلى، و1,1 يمينًا وأسفل. يمكن إعطاؤه أكثر من مرة، لصورة بعد أخرى، وكذلك الثلاثة التالية.</translation>
    </message>
    <message>
        <source>Print a part of the photo this much larger, 1 to %1.</source>
        <translation>اطبع جزءًا من الصورة مكبَّرًا بهذا القدر، من 1 إلى %1.</translation>
    </message>
    <message>
        <source>Turn the photo clockwise: 0, 90, 180 or 270 degrees.</source>
        <translation>أدِر الصورة مع عقارب الساعة: 0 أو 90 أو 180 أو 270 درجة.</translation>
    </message>
    <message>
        <source>Print the photo this often in each copy of the job, 1 to %1.</source>
        <translation>اطبع الصورة بهذا العدد في كل نسخة من المهمة، من 1 إلى %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no enlargement: write a number from 1 to %2.</source>
        <translation>ليس «⁨%1⁩» تكبيرًا: اكتب رقمًا من 1 إلى %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no turn: write 0, 90, 180 or 270.</source>
        <translation>ليس «⁨%1⁩» تدويرًا: اكتب 0 أو 90 أو 180 أو 270.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no length: write millimeters from 0 to %2.</source>
        <translation>ليس «⁨%1⁩» طولًا: اكتب ميليمترات من 0 إلى %2.</translation>
    </message>
    <message>
        <source>Put several photos on a sheet: a layout&apos;s name, rows and columns such as 3x4, or a size such as 90x130mm.</source>
        <translation>ضع عدة صور على ورقة: اسم تخطيط، أو صفوف وأعمدة مثل ⁨3x4⁩، أو مقاس مثل ⁨90x130mm⁩.</translation>
    </message>
    <message>
        <source>Write this under each photo. It holds placeholders: [F] file name, [T] title, [C] number, [DATE] date taken, [YYYY], [MM], [DD].</source>
        <translation>اكتب هذا تحت كل صورة. ويقبل عناصر نائبة: [F] اسم الملف، [T] العنوان، [C] الرقم، [DATE] تاريخ الالتقاط، و[YYYY] و[MM] و[DD].</translation>
    </message>
    <message>
        <source>Print each photo in this size, for example 100x150, 4x6in, or 50% of its own.</source>
        <translation>اطبع كل صورة بهذا المقاس، مثل ⁨100x150⁩ أو ⁨4x6in⁩، أو ⁨50%⁩ من مقاسها.</translation>
    </message>
    <message>
        <source>With --photo-size: so many millimeters from the sheet&apos;s left and top, for example 20,15.</source>
        <translation>مع ⁨--photo-size⁩: بعدد الميليمترات هذا من يسار الورقة وأعلاها، مثل ⁨20,15⁩.</translation>
    </message>
    <message>
        <source>Leave so many millimeters free at the sheet&apos;s edges at least.</source>
        <translation>اترك هذا العدد من الميليمترات على الأقل خاليًا عند حواف الورقة.</translation>
    </message>
    <message>
        <source>Leave a white border of so many millimeters around each photo.</source>
        <translation>اترك إطارًا أبيض بهذا العدد من الميليمترات حول كل صورة.</translation>
    </message>
    <message>
        <source>With --layout: each photo fills its own sheet.</source>
        <translation>مع ⁨--layout⁩: تملأ كل صورة ورقتها.</translation>
    </message>
    <message>
        <source>The photos share sheets.</source>
        <translation>تتشارك الصور الأوراق.</translation>
    </message>
    <message>
        <source>Print marks that show where to cut.</source>
        <translation>اطبع علامات تبيّن موضع القص.</translation>
    </message>
    <message>
        <source>Print no such marks.</source>
        <translation>لا تطبع هذه العلامات.</translation>
    </message>
    <message>
        <source>Print a thin line around each photo.</source>
        <translation>اطبع خطًّا رفيعًا حول كل صورة.</translation>
    </message>
    <message>
        <source>Print no such line.</source>
        <translation>لا تطبع هذا الخط.</translation>
    </message>
    <message>
        <source>The caption is longer than %1 characters.</source>
        <translation>شرح الصورة أطول من الحد، وهو %1 من الأحرف.</translation>
    </message>
    <message>
        <source>--%1 and --no-%1 do not go together.</source>
        <translation>لا يجتمع ⁨--%1⁩ و⁨--no-%1⁩.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size: write %2% to %3%.</source>
        <translation>ليس «⁨%1⁩» مقاسًا: اكتب من ⁨%2%⁩ إلى ⁨%3%⁩.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size: write millimeters such as 100x150, inches such as 4x6in, or 50%.</source>
        <translation>ليس «⁨%1⁩» مقاسًا: اكتب ميليمترات مثل ⁨100x150⁩، أو بوصات مثل ⁨4x6in⁩، أو ⁨50%⁩.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no corner: write two lengths in millimeters, for example 20,15.</source>
        <translation>ليس «⁨%1⁩» زاوية: اكتب طولين بالميليمتر، مثل ⁨20,15⁩.</translation>
    </message>
    <message>
        <source>--corner goes with --photo-size and a width and a height.</source>
        <translation>يُستخدم ⁨--corner⁩ مع ⁨--photo-size⁩ وعرض وارتفاع.</translation>
    </message>
    <message>
        <source>--photo-size with a width and a height does not go with --layout, which says how large the photos are. Leave one of them out.</source>
        <translation>لا يجتمع ⁨--photo-size⁩ بعرض وارتفاع مع ⁨--layout⁩ الذي يحدد حجم الصور. اترك أحدهما.</translation>
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
        <translation>حالة الخروج:
  0  تمت الطباعة، أو كُتب المطلوب.
  1  فشل؛ السبب في خرج الأخطاء القياسي.
  2  استخدام خاطئ.
  3  المهمة على قائمة الانتظار، ولم تنتهِ بعد.
  4  أُلغيت: لم يُطبع شيء.
  5  أُرسلت المهمة، لكن خادم الطباعة لا يخبر كيف انتهت.
  6  مع ⁨--verify⁩: طُبعت، لكن خادم الطباعة لا يحفظها كما أُرسلت.
  7  يطلب خادم طباعة أو طابعة اسمًا وكلمة مرور، ولم يُعطَ الصحيحين.</translation>
    </message>
</context>
<context>
    <name>CupsSentences</name>
    <message>
        <source>The print server broke off the conversation. Try again; if it fails again, look into the print server&apos;s error log.</source>
        <translation>قطع خادم الطباعة الاتصال. أعد المحاولة؛ فإن فشلت ثانية، فانظر في سجل أخطاء الخادم.</translation>
    </message>
    <message>
        <source>The print server does not answer. Wait a moment and try again, or restart it.</source>
        <translation>لا يجيب خادم الطباعة. انتظر لحظة ثم أعد المحاولة، أو أعد تشغيله.</translation>
    </message>
    <message>
        <source>The print server&apos;s answer does not end. Restart the print server, and try again.</source>
        <translation>لا تنتهي إجابة خادم الطباعة. أعد تشغيله، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The printer is not on the print server any more. Choose another one.</source>
        <translation>لم تعد الطابعة على خادم الطباعة. اختر غيرها.</translation>
    </message>
    <message>
        <source>The printer does not accept jobs at the moment. Choose another one, or let it accept jobs (cupsaccept).</source>
        <translation>لا تقبل الطابعة المهام حاليًا. اختر غيرها، أو اجعلها تقبل المهام (cupsaccept).</translation>
    </message>
    <message>
        <source>The print server does not allow you to do this. Ask whoever looks after it.</source>
        <translation>لا يسمح لك خادم الطباعة بهذا. اسأل المسؤول عنه.</translation>
    </message>
    <message>
        <source>The print server reports: %1</source>
        <translation>يفيد خادم الطباعة: %1</translation>
    </message>
    <message>
        <source>The print server at %1 cannot be reached. Start it, for example with &quot;systemctl start cups&quot;, and try again.</source>
        <translation>تعذّر الوصول إلى خادم الطباعة على %1. شغّله، مثلًا بالأمر «⁨systemctl start cups⁩»، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The print server at %1 cannot be reached. Is its name right, is it switched on, and is this computer on its network?</source>
        <translation>تعذّر الوصول إلى خادم الطباعة على %1. هل اسمه صحيح، وهل هو مشغَّل، وهل هذا الحاسوب على شبكته؟</translation>
    </message>
    <message>
        <source>The print server at %1 wants to talk in secret only, and no encryption could be agreed upon with it. Ask whoever looks after it.</source>
        <translation>لا يقبل خادم الطباعة على %1 إلا اتصالًا مشفّرًا، وتعذّر الاتفاق معه على تشفير. اسأل المسؤول عنه.</translation>
    </message>
    <message>
        <source>The certificate of the print server at %1 is not trusted, so nothing was sent to it. Try again to look at it once more, or ask whoever looks after the server.</source>
        <translation>شهادة خادم الطباعة على %1 غير موثوقة، فلم يُرسَل إليه شيء. أعد المحاولة لتراها مرة أخرى، أو اسأل المسؤول عن الخادم.</translation>
    </message>
    <message>
        <source>The print server at %1 wants a name and a password for this, and was given none. Try again and sign in, or ask whoever looks after it.</source>
        <translation>يطلب خادم الطباعة على %1 اسمًا وكلمة مرور لهذا، ولم يُعطَ أيًّا منهما. أعد المحاولة وسجّل الدخول، أو اسأل المسؤول عنه.</translation>
    </message>
</context>
<context>
    <name>CustomPaper</name>
    <message>
        <source>%1 × %2 mm</source>
        <translation>⁨%1 x %2⁩ مم</translation>
    </message>
    <message>
        <source>%1 × %2 in</source>
        <translation>⁨%1 x %2⁩ بوصة</translation>
    </message>
</context>
<context>
    <name>DamageQuestion</name>
    <message>
        <source>Print damaged photos?</source>
        <translation>طباعة الصور التالفة؟</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>وغيرها: %1.</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>استبعادها (&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Print All the Same</source>
        <translation>طباعتها رغم ذلك (&amp;P)</translation>
    </message>
    <message>
        <source>Print without these files?</source>
        <translation>الطباعة بدون هذه الملفات؟</translation>
    </message>
    <message>
        <source>What is missing comes out gray, or smeared. Files that cannot be read are left out.</source>
        <translation>يظهر الناقص رماديًّا أو ملطّخًا. وتُستبعد الملفات التي تتعذر قراءتها.</translation>
    </message>
    <message>
        <source>Files that cannot be read are left out.</source>
        <translation>تُستبعد الملفات التي تتعذر قراءتها.</translation>
    </message>
    <message>
        <source>&amp;Print the Others</source>
        <translation>طباعة الباقي (&amp;P)</translation>
    </message>
</context>
<context>
    <name>DocumentKind</name>
    <message>
        <source>The application has sent an empty document. Print it once more from there.</source>
        <translation>أرسل التطبيق مستندًا فارغًا. اطبعه من هناك مرة أخرى.</translation>
    </message>
    <message>
        <source>What the application has sent is no PDF, PostScript or picture. Export the document as a PDF file there, and print that.</source>
        <translation>ما أرسله التطبيق ليس PDF ولا PostScript ولا صورة. صدّر المستند هناك إلى ملف PDF، واطبع ذلك الملف.</translation>
    </message>
    <message>
        <source>The document ends in the middle: the application has not sent all of it. Print it once more from there.</source>
        <translation>ينتهي المستند في منتصفه: لم يرسله التطبيق كاملًا. اطبعه من هناك مرة أخرى.</translation>
    </message>
</context>
<context>
    <name>FrontEnd</name>
    <message>
        <source>&quot;halvern-print-portal --enable&quot; changes that for you.</source>
        <translation>يغيّر «⁨halvern-print-portal --enable⁩» ذلك لك.</translation>
    </message>
    <message>
        <source>It takes the first by file name. An administrator can put this one before &quot;%1&quot;: ln -s tessarin.portal %2/00-tessarin.portal</source>
        <translation>تأخذ البوابة الأول بحسب اسم الملف. يمكن لمدير النظام تقديم هذا على «⁨%1⁩»: ⁨ln -s tessarin.portal %2/00-tessarin.portal⁩</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>تعذّرت كتابة «⁨%1⁩»: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The portal reads that when it starts: log in again, or run &quot;systemctl --user restart xdg-desktop-portal&quot;.</source>
        <translation>تقرأ البوابة ذلك عند بدئها: سجّل الدخول إلى الجلسة مجددًا، أو نفّذ «⁨systemctl --user restart xdg-desktop-portal⁩».</translation>
    </message>
    <message>
        <source>There is no portal on this computer: install xdg-desktop-portal.</source>
        <translation>لا توجد بوابة على هذا الحاسوب: ثبّت xdg-desktop-portal.</translation>
    </message>
    <message>
        <source>The portal (%1) does not know this program: there is no tessarin.portal in %2. Install it there.</source>
        <translation>لا تعرف البوابة (%1) هذا البرنامج: لا يوجد tessarin.portal في %2. ثبّته هناك.</translation>
    </message>
    <message>
        <source>The portal (%1) chooses this program for printing.</source>
        <translation>تختار البوابة (%1) هذا البرنامج للطباعة.</translation>
    </message>
    <message>
        <source>The portal (%1) prints with nothing, as &quot;%2&quot; says. %3</source>
        <translation>لا تطبع البوابة (%1) بأي برنامج، كما يقول «⁨%2⁩». %3</translation>
    </message>
    <message>
        <source>The portal (%1) chooses &quot;%2&quot; for printing. %3</source>
        <translation>تختار البوابة (%1) «⁨%2⁩» للطباعة. %3</translation>
    </message>
    <message>
        <source>Written into &quot;%1&quot;.</source>
        <translation>كُتب في «⁨%1⁩».</translation>
    </message>
    <message>
        <source>There is no line of this program&apos;s in &quot;%1&quot;.</source>
        <translation>لا يوجد سطر لهذا البرنامج في «⁨%1⁩».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed.</source>
        <translation>تعذّرت إزالة «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Taken out of &quot;%1&quot;.</source>
        <translation>أُزيل من «⁨%1⁩».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>تتعذر قراءة «⁨%1⁩»: %2.</translation>
    </message>
</context>
<context>
    <name>GivenOptions</name>
    <message>
        <source>The printer has no paper &quot;%1&quot;.</source>
        <translation>ليس في الطابعة ورق «⁨%1⁩».</translation>
    </message>
    <message>
        <source>The printer has no &quot;sides=%1&quot;. Leave it out, or use the printer&apos;s own option for two-sided printing.</source>
        <translation>ليس للطابعة «⁨sides=%1⁩». احذفه، أو استخدم خيار الطابعة للطباعة على الوجهين.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no way to scale. Write print-scaling=fit, fill or none.</source>
        <translation>ليس «⁨%1⁩» طريقة تحجيم. اكتب print-scaling=fit أو fill أو none.</translation>
    </message>
    <message>
        <source>&quot;%1=%2&quot; is not possible: the page is laid out before it is sent, one photo on each. Leave it out.</source>
        <translation>«%1=%2» غير ممكن: تُرتَّب الصفحة قبل إرسالها، صورة على كل صفحة. احذفه.</translation>
    </message>
    <message>
        <source>The number of copies is no option of the printer. Give it with --copies.</source>
        <translation>ليس عدد النسخ خيارًا للطابعة. أعطِه بالخيار ⁨--copies⁩.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is set by the printer&apos;s own options here. &quot;lpoptions -p QUEUE -l&quot; lists them.</source>
        <translation>تضبط «⁨%1⁩» هنا خيارات الطابعة نفسها. يسردها «⁨lpoptions -p QUEUE -l⁩».</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>هل تقصد %1؟</translation>
    </message>
    <message>
        <source>It has: %1 and %2 more.</source>
        <translation>لديها: %1، وعدد ما سواها %2.</translation>
    </message>
    <message>
        <source>It has: %1.</source>
        <translation>لديها: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no set of pages. Write page-set=all, odd or even.</source>
        <translation>ليس «⁨%1⁩» مجموعة صفحات. اكتب page-set=all أو odd أو even.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no order of pages. Write outputorder=normal or reverse.</source>
        <translation>ليس «⁨%1⁩» ترتيب صفحات. اكتب outputorder=normal أو reverse.</translation>
    </message>
</context>
<context>
    <name>HandedOptions</name>
    <message>
        <source>The application&apos;s settings</source>
        <translation>إعدادات التطبيق</translation>
    </message>
    <message>
        <source>Settings of %1</source>
        <translation>إعدادات %1</translation>
    </message>
</context>
<context>
    <name>IppOptions</name>
    <message>
        <source>The value of %1 is too long to send: it has %2 bytes, and %3 are possible. Shorten it.</source>
        <translation>قيمة %1 أطول من أن تُرسَل: حجمها %2 بايت، والممكن %3. اختصرها.</translation>
    </message>
</context>
<context>
    <name>IppWords</name>
    <message>
        <source>Paper size</source>
        <translation>مقاس الورق</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>مصدر الورق</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>نوع الورق</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>على الوجهين</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>اللون</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>الجودة</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>الدقة</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>درج الإخراج</translation>
    </message>
    <message>
        <source>Best for</source>
        <translation>الأفضل لـ</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>هدف العرض اللوني</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>متوقف</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>الحافة الطويلة</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>الحافة القصيرة</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>أبيض وأسود</translation>
    </message>
    <message>
        <source>Automatic, black and white</source>
        <translation>تلقائي، أبيض وأسود</translation>
    </message>
    <message>
        <source>Black only</source>
        <translation>أسود فقط</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>مسودة</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادية</translation>
    </message>
    <message>
        <source>High</source>
        <translation>عالية</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>الوجه إلى أعلى</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>الوجه إلى أسفل</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>رسوم</translation>
    </message>
    <message>
        <source>Text and graphics</source>
        <translation>نص ورسوم</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>إدراكي</translation>
    </message>
    <message>
        <source>Relative</source>
        <translation>نسبي</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>تشبّع</translation>
    </message>
    <message>
        <source>Absolute</source>
        <translation>مطلق</translation>
    </message>
</context>
<context>
    <name>JobActions</name>
    <message>
        <source>The print server does not let you cancel this job. Ask whoever looks after it.</source>
        <translation>لا يسمح لك خادم الطباعة بإلغاء هذه المهمة. اسأل المسؤول عنه.</translation>
    </message>
    <message>
        <source>The print server does not let you resume &quot;%1&quot;. Ask whoever looks after it; the job waits meanwhile.</source>
        <translation>لا يسمح لك خادم الطباعة باستئناف «⁨%1⁩». اسأل المسؤول عنه؛ والمهمة تنتظر إلى ذلك الحين.</translation>
    </message>
    <message>
        <source>The print server does not let you release the job. Ask whoever looks after it; the job waits meanwhile.</source>
        <translation>لا يسمح لك خادم الطباعة بإطلاق المهمة. اسأل المسؤول عنه؛ والمهمة تنتظر إلى ذلك الحين.</translation>
    </message>
    <message>
        <source>The print server does not let you print the job again. Ask whoever looks after it.</source>
        <translation>لا يسمح لك خادم الطباعة بطباعة المهمة مرة أخرى. اسأل المسؤول عنه.</translation>
    </message>
</context>
<context>
    <name>JobInWords</name>
    <message>
        <source>%1 × %2</source>
        <translation>⁨%1 x %2⁩</translation>
    </message>
    <message>
        <source>not enough paper for %1</source>
        <translation>ورق غير كافٍ لـ %1</translation>
    </message>
    <message>
        <source>roll %1</source>
        <translation>لفافة %1</translation>
    </message>
    <message>
        <source>%1 roll %2</source>
        <translation>لفافة %1 ⁨%2⁩</translation>
    </message>
    <message>
        <source>sheet: %1</source>
        <translation>ورقة: %1</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 مم</translation>
    </message>
    <message>
        <source>%1 in</source>
        <translation>%1 بوصة</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>two-sided: %1</source>
        <translation>على الوجهين: %1</translation>
    </message>
    <message>
        <source>pages %1 of %2</source>
        <translation>الصفحات ⁨%1⁩ من %2</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>الصفحات: %1</translation>
    </message>
    <message>
        <source>last page first</source>
        <translation>الصفحة الأخيرة أولًا</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>نسخة واحدة</translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation>النسخ: %1</translation>
    </message>
    <message>
        <source>not collated</source>
        <translation>نسخ غير مرتّبة</translation>
    </message>
    <message>
        <source>text on the back</source>
        <translation>نص على الظهر</translation>
    </message>
    <message>
        <source>with a banner page</source>
        <translation>مع صفحة فاصلة</translation>
    </message>
    <message>
        <source>held on the queue</source>
        <translation>محتجزة على قائمة الانتظار</translation>
    </message>
    <message>
        <source>%1 more settings changed</source>
        <translation>إعدادات أخرى متغيرة: %1</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 سم</translation>
    </message>
    <message>
        <source>%1 borderless</source>
        <translation>⁨%1⁩ بلا حواف</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>الصور: %1</translation>
    </message>
</context>
<context>
    <name>JobReadBack</name>
    <message>
        <source>The print server does not tell what it holds of job %1.</source>
        <translation>لا يخبر خادم الطباعة بما يحفظه من المهمة %1.</translation>
    </message>
    <message>
        <source>The print server holds job %1 exactly as it was sent.</source>
        <translation>يحفظ خادم الطباعة المهمة %1 كما أُرسلت تمامًا.</translation>
    </message>
    <message>
        <source>%1 instead of %2</source>
        <translation>⁨%1⁩ بدلًا من ⁨%2⁩</translation>
    </message>
    <message>
        <source>without %1</source>
        <translation>بدون %1</translation>
    </message>
    <message>
        <source>Added to job %1 by the print server or the queue: %2.</source>
        <translation>ما أضافه خادم الطباعة أو قائمة الانتظار إلى المهمة %1: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Changed in job %1 by the print server: %2.</source>
        <translation>ما غيّره خادم الطباعة في المهمة %1: ⁨%2⁩.</translation>
    </message>
</context>
<context>
    <name>JobStatus</name>
    <message>
        <source>Job %1 waits for &quot;%2&quot;%3.</source>
        <translation>تنتظر المهمة %1 على «⁨%2⁩»%3.</translation>
    </message>
    <message>
        <source>Job %1 is printing on &quot;%2&quot;%3.</source>
        <translation>تُطبع المهمة %1 على «⁨%2⁩»%3.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled on &quot;%2&quot;.</source>
        <translation>أُلغيت المهمة %1 على «⁨%2⁩».</translation>
    </message>
    <message>
        <source>Job %1 failed on &quot;%2&quot;%3. Print again; if it fails again, look into the print server&apos;s error log.</source>
        <translation>فشلت المهمة %1 على «⁨%2⁩»%3. اطبع مرة أخرى؛ فإن فشلت ثانية، فانظر في سجل أخطاء خادم الطباعة.</translation>
    </message>
    <message>
        <source>Printed: job %1 on &quot;%2&quot;.</source>
        <translation>تمت الطباعة: المهمة %1 على «⁨%2⁩».</translation>
    </message>
    <message>
        <source>Job %1 waits because &quot;%2&quot; is paused%3.</source>
        <translation>تنتظر المهمة %1 لأن «⁨%2⁩» متوقفة مؤقتًا%3.</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot; because it was asked to wait%3.</source>
        <translation>المهمة %1 محتجزة على «⁨%2⁩» لأنه طُلب منها الانتظار%3.</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot;%3.</source>
        <translation>المهمة %1 محتجزة على «⁨%2⁩»%3.</translation>
    </message>
    <message>
        <source>Job %1 stopped on &quot;%2&quot;%3.</source>
        <translation>توقفت المهمة %1 على «⁨%2⁩»%3.</translation>
    </message>
    <message>
        <source>Job %1 has left the queue of &quot;%2&quot;. The print server keeps no record of how it ended.</source>
        <translation>غادرت المهمة %1 قائمة انتظار «⁨%2⁩». لا يحتفظ خادم الطباعة بما يبيّن كيف انتهت.</translation>
    </message>
    <message>
        <source>&quot;%2&quot; is not on the print server any more, and job %1 with it. Look at the printer before you print again.</source>
        <translation>لم تعد «⁨%2⁩» على خادم الطباعة، ولا المهمة %1. انظر إلى الطابعة قبل أن تطبع مرة أخرى.</translation>
    </message>
    <message>
        <source>The print server does not answer. Job %1 was sent to &quot;%2&quot;, and may be printed.</source>
        <translation>لا يجيب خادم الطباعة. أُرسلت المهمة %1 إلى «⁨%2⁩»، وربما تُطبع.</translation>
    </message>
    <message>
        <source>See to the printer and resume it with &quot;cupsenable %2&quot;, or cancel the job with &quot;cancel %2-%1&quot;.</source>
        <translation>تفقّد الطابعة واستأنفها بالأمر «⁨cupsenable %2⁩»، أو ألغِ المهمة بالأمر «⁨cancel %2-%1⁩».</translation>
    </message>
    <message>
        <source>Release it with &quot;lp -i %1 -H resume&quot;, or cancel it with &quot;cancel %2-%1&quot;.</source>
        <translation>أطلقها بالأمر «⁨lp -i %1 -H resume⁩»، أو ألغها بالأمر «⁨cancel %2-%1⁩».</translation>
    </message>
    <message>
        <source>Print it again with &quot;lp -i %1 -H restart&quot;, or cancel it with &quot;cancel %2-%1&quot;.</source>
        <translation>اطبعها مرة أخرى بالأمر «⁨lp -i %1 -H restart⁩»، أو ألغها بالأمر «⁨cancel %2-%1⁩».</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot;: the printer wants a name and a password%3.</source>
        <translation>المهمة %1 محتجزة على «⁨%2⁩»: تطلب الطابعة اسمًا وكلمة مرور%3.</translation>
    </message>
    <message>
        <source>Give them with &quot;halvern-print --jobs --sign-in %1&quot;, or cancel the job with &quot;cancel %2-%1&quot;.</source>
        <translation>أعطِهما بالأمر «⁨halvern-print --jobs --sign-in %1⁩»، أو ألغِ المهمة بالأمر «⁨cancel %2-%1⁩».</translation>
    </message>
</context>
<context>
    <name>JobSubmitter</name>
    <message>
        <source> Job %1 may still be on the queue of &quot;%2&quot; without its pages: cancel it there before you print again.</source>
        <translation> قد تبقى المهمة %1 على قائمة انتظار «⁨%2⁩» بلا صفحاتها: ألغها هناك قبل أن تطبع مرة أخرى.</translation>
    </message>
    <message>
        <source>The print server gave the job no number. Look into its error log.</source>
        <translation>لم يُعطِ خادم الطباعة المهمة رقمًا. انظر في سجل أخطائه.</translation>
    </message>
    <message>
        <source> A job without its pages may still be on the queue of &quot;%1&quot;: look there before you print again.</source>
        <translation> قد تبقى مهمة بلا صفحاتها على قائمة انتظار «⁨%1⁩»: انظر هناك قبل أن تطبع مرة أخرى.</translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source> mm</source>
        <translation> مم</translation>
    </message>
    <message>
        <source> in</source>
        <translation> بوصة</translation>
    </message>
</context>
<context>
    <name>Layouts</name>
    <message>
        <source>&quot;%1&quot; is no number from %2 to %3.</source>
        <translation>ليس «⁨%1⁩» رقمًا من %2 إلى %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>ليس «⁨%1⁩» true ولا false.</translation>
    </message>
    <message>
        <source>A measure is not written as %1 numbers from 0 to %2.</source>
        <translation>قياس غير مكتوب بأرقام عددها %1 من 0 إلى %2.</translation>
    </message>
    <message>
        <source>A photo is not from %1 to %2 mm wide and high.</source>
        <translation>صورة عرضها وارتفاعها ليسا من %1 إلى %2 مم.</translation>
    </message>
    <message>
        <source>&quot;kind&quot; is none of grid, size, cells and pack.</source>
        <translation>ليس «⁨kind⁩» واحدًا من grid وsize وcells وpack.</translation>
    </message>
    <message>
        <source>&quot;cells&quot; does not hold 1 to %1 places.</source>
        <translation>لا يحتوي «⁨cells⁩» على عدد مواضع من 1 إلى %1.</translation>
    </message>
    <message>
        <source>&quot;caption&quot; is longer than %1 characters.</source>
        <translation>«⁨caption⁩» أطول من الحد، وهو %1 من الأحرف.</translation>
    </message>
    <message>
        <source>&quot;scaling&quot; is neither fit nor fill.</source>
        <translation>ليس «⁨scaling⁩» fit ولا fill.</translation>
    </message>
    <message>
        <source>%1 rows of %2</source>
        <translation>الصفوف: %1، في كل صف %2</translation>
    </message>
    <message>
        <source>Photos of %1 × %2 %3</source>
        <translation>صور ⁨%1 x %2⁩ %3</translation>
    </message>
    <message>
        <source>It is no layout: &quot;schema&quot; is not &quot;%1&quot;.</source>
        <translation>ليس تخطيطًا: ليس «⁨schema⁩» هو «⁨%1⁩».</translation>
    </message>
    <message>
        <source>It is of another version of this program.</source>
        <translation>هو من إصدار آخر لهذا البرنامج.</translation>
    </message>
    <message>
        <source>It has no &quot;name&quot;.</source>
        <translation>ليس فيه «⁨name⁩».</translation>
    </message>
    <message>
        <source>The layout takes %1 × %2 mm, and this paper has %3 × %4 mm to print on. Choose a larger paper, one without margins, or another layout.</source>
        <translation>يحتاج التخطيط إلى ⁨%1 x %2⁩ مم، ومساحة الطباعة على هذا الورق ⁨%3 x %4⁩ مم. اختر ورقًا أكبر، أو ورقًا بلا هوامش، أو تخطيطًا آخر.</translation>
    </message>
    <message>
        <source>So many photos would be smaller than %1 mm on this paper. Choose fewer rows or columns, or a larger paper.</source>
        <translation>صور بهذا العدد تكون أصغر من %1 مم على هذا الورق. اختر صفوفًا أو أعمدة أقل، أو ورقًا أكبر.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>ليس ملفًا.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>كبير جدًّا.</translation>
    </message>
    <message>
        <source>It is no JSON object: %1.</source>
        <translation>ليس كائن JSON: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>There is another layout &quot;%1&quot;.</source>
        <translation>يوجد تخطيط آخر «⁨%1⁩».</translation>
    </message>
    <message>
        <source>The layout %1 was left out. %2</source>
        <translation>استُبعد التخطيط %1. ⁨%2⁩</translation>
    </message>
    <message>
        <source>There is no layout &quot;%1&quot;. There are: %2; and rows x columns, such as 3x4, and sizes, such as 90x130mm.</source>
        <translation>لا يوجد تخطيط «⁨%1⁩». الموجود: %2؛ وصفوف × أعمدة، مثل ⁨3x4⁩، ومقاسات، مثل ⁨90x130mm⁩.</translation>
    </message>
    <message>
        <source>Write a name with letters or numbers.</source>
        <translation>اكتب اسمًا فيه حروف أو أرقام.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a layout that is always there. Choose another name.</source>
        <translation>«⁨%1⁩» تخطيط موجود دائمًا. اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>تعذّر إنشاء المجلد %1.</translation>
    </message>
    <message>
        <source>The layout could not be kept in %1. %2</source>
        <translation>تعذّر حفظ التخطيط في %1. ⁨%2⁩</translation>
    </message>
    <message>
        <source>Only layouts of your own can be deleted.</source>
        <translation>لا يمكن حذف غير التخطيطات الخاصة بك.</translation>
    </message>
    <message>
        <source>%1 could not be deleted. %2</source>
        <translation>تعذّر حذف %1. ⁨%2⁩</translation>
    </message>
    <message>
        <source>Not every photo fits on this paper. Choose a smaller size.</source>
        <translation>لا يتسع هذا الورق لكل الصور. اختر مقاسًا أصغر.</translation>
    </message>
    <message>
        <source>All photos are left out. Include at least one of them.</source>
        <translation>كل الصور مستبعدة. أدرج واحدة منها على الأقل.</translation>
    </message>
    <message>
        <source>The file %1 holds something else already. Choose another name, or take the file away.</source>
        <translation>الملف ⁨%1⁩ يحوي شيئًا آخر. اختر اسمًا آخر، أو أبعد الملف.</translation>
    </message>
    <message>
        <source>These are %1 photos on all sheets, and a job takes %2. Choose fewer photos, or fewer copies of each.</source>
        <translation>عدد الصور على كل الأوراق %1، والمهمة تتسع لـ %2. اختر صورًا أقل، أو نسخًا أقل من كل منها.</translation>
    </message>
    <message>
        <source>With margins of %1 mm nothing is left of this paper. Choose smaller margins, or a larger paper.</source>
        <translation>لا يبقى شيء من هذا الورق بهوامش قدرها %1 مم. اختر هوامش أصغر، أو ورقًا أكبر.</translation>
    </message>
    <message>
        <source>A photo of %1 × %2 mm at %3, %4 mm is not all on what can be printed of this page: %5 × %6 mm at %7, %8 mm. Choose a smaller size, another place, or another paper.</source>
        <translation>صورة بحجم %1 × %2 مم عند %3، %4 مم لا تقع كلها ضمن ما يمكن طباعته من هذه الصفحة: %5 × %6 مم عند %7، %8 مم. اختر حجمًا أصغر، أو موضعًا آخر، أو ورقًا آخر.</translation>
    </message>
    <message>
        <source>There is one sheet only, and none with an even number. Choose all sheets, or more photos.</source>
        <translation>هناك ورقة واحدة فقط، ولا ورقة ذات رقم زوجي. اختر كل الأوراق، أو صورًا أكثر.</translation>
    </message>
</context>
<context>
    <name>ListJobs</name>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>أُلغيت المهمة %1.</translation>
    </message>
    <message>
        <source>Job %1 is held.</source>
        <translation>المهمة %1 محتجزة.</translation>
    </message>
    <message>
        <source>Job %1 was released.</source>
        <translation>أُطلقت المهمة %1.</translation>
    </message>
    <message>
        <source>Job %1 is printed again.</source>
        <translation>تُطبع المهمة %1 مرة أخرى.</translation>
    </message>
    <message>
        <source>Job %1 has what the printer asks for.</source>
        <translation>لدى المهمة %1 ما تطلبه الطابعة.</translation>
    </message>
    <message>
        <source>Job %1 was moved to &quot;%2&quot;.</source>
        <translation>نُقلت المهمة %1 إلى «⁨%2⁩».</translation>
    </message>
    <message>
        <source>You have no job %1 on the print server. --jobs --ended lists yours.</source>
        <translation>ليست لك مهمة %1 على خادم الطباعة. يسرد ⁨--jobs --ended⁩ مهامك.</translation>
    </message>
    <message>
        <source>You have no jobs there.</source>
        <translation>ليست لك مهام هناك.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>الطابعة</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>أُرسلت</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>المهمة</translation>
    </message>
    <message>
        <source>You have no job %1 on &quot;%2&quot;. --jobs --ended lists yours.</source>
        <translation>ليست لك مهمة %1 على «⁨%2⁩». يسرد ⁨--jobs --ended⁩ مهامك.</translation>
    </message>
</context>
<context>
    <name>ListPapers</name>
    <message>
        <source>The printer &quot;%1&quot; was asked, but has not reported its papers. Look into the print server&apos;s error log.</source>
        <translation>سُئلت الطابعة «⁨%1⁩»، لكنها لم تُبلغ عن ورقها. انظر في سجل أخطاء خادم الطباعة.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not report its papers: it has no Halvern driver.</source>
        <translation>لا تُبلغ الطابعة «⁨%1⁩» عن ورقها: ليس لها مشغّل من Halvern.</translation>
    </message>
    <message>
        <source>Asking &quot;%1&quot; ...</source>
        <translation>جارٍ سؤال «⁨%1⁩»...</translation>
    </message>
    <message>
        <source>Waiting for &quot;%1&quot;%2 ...</source>
        <translation>بانتظار «⁨%1⁩»%2...</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is busy with another job. Ask again when that has ended.</source>
        <translation>الطابعة «⁨%1⁩» مشغولة بمهمة أخرى. اسأل مرة أخرى بعد انتهائها.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not work at the moment%2, and the question was taken back. Resume the printer (cupsenable) and ask again.</source>
        <translation>لا تعمل الطابعة «⁨%1⁩» حاليًا%2، وسُحب السؤال. استأنف الطابعة (cupsenable) واسأل مرة أخرى.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not answer%2. See to the printer and ask again.</source>
        <translation>لم تستطع الطابعة «⁨%1⁩» الإجابة%2. تفقّد الطابعة واسأل مرة أخرى.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not accept jobs and cannot be asked. Let it accept them (cupsaccept) and ask again.</source>
        <translation>لا تقبل الطابعة «⁨%1⁩» المهام ولا يمكن سؤالها. اجعلها تقبلها (cupsaccept) واسأل مرة أخرى.</translation>
    </message>
    <message>
        <source>The print server refused the question to &quot;%1&quot;. Look into its error log.</source>
        <translation>رفض خادم الطباعة السؤال الموجّه إلى «⁨%1⁩». انظر في سجل أخطائه.</translation>
    </message>
    <message>
        <source>The list of papers that &quot;%1&quot; reported cannot be read (%2).</source>
        <translation>تعذّرت قراءة قائمة الورق التي أبلغت عنها «⁨%1⁩» (%2).</translation>
    </message>
    <message>
        <source>No papers are loaded.</source>
        <translation>لا ورق محمّل.</translation>
    </message>
    <message>
        <source>The printer has not said yet what is loaded.</source>
        <translation>لم تقل الطابعة بعد ما المحمّل فيها.</translation>
    </message>
    <message>
        <source>Ask it with --refresh.</source>
        <translation>اسألها بالخيار ⁨--refresh⁩.</translation>
    </message>
    <message>
        <source>The question to &quot;%1&quot; could not be processed%2 and was taken back. See to the printer, look into the print server&apos;s error log, and ask again.</source>
        <translation>تعذّرت معالجة السؤال الموجّه إلى «⁨%1⁩»%2 وسُحب. تفقّد الطابعة، وانظر في سجل أخطاء خادم الطباعة، واسأل مرة أخرى.</translation>
    </message>
    <message>
        <source>The question to &quot;%1&quot; was held%2 and has been cancelled. See to the printer and ask again.</source>
        <translation>احتُجز السؤال الموجّه إلى «⁨%1⁩»%2 وأُلغي. تفقّد الطابعة واسأل مرة أخرى.</translation>
    </message>
    <message>
        <source>The question to &quot;%1&quot; was cancelled. Ask again.</source>
        <translation>أُلغي السؤال الموجّه إلى «⁨%1⁩». اسأل مرة أخرى.</translation>
    </message>
    <message>
        <source>The print server does not answer; job %1 may still be on the queue (cancel %2-%1).</source>
        <translation>لا يجيب خادم الطباعة؛ قد تبقى المهمة %1 على قائمة الانتظار (cancel %2-%1).</translation>
    </message>
    <message>
        <source>Look into the print server&apos;s error log, and ask again.</source>
        <translation>انظر في سجل أخطاء خادم الطباعة، واسأل مرة أخرى.</translation>
    </message>
</context>
<context>
    <name>Listings</name>
    <message>
        <source>%1 (default): %2 %3</source>
        <translation>%1 (الافتراضية): %2 ⁨%3⁩</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <translation>%1: %2 ⁨%3⁩</translation>
    </message>
    <message>
        <source>The print server has no printers.</source>
        <translation>ليس في خادم الطباعة طابعات.</translation>
    </message>
    <message>
        <source>%1 (from your saved options)</source>
        <translation>%1 (من خياراتك المحفوظة)</translation>
    </message>
    <message>
        <source>Saved the preset &quot;%1&quot; of &quot;%2&quot;.</source>
        <translation>حُفظ الإعداد المسبق «⁨%1⁩» للطابعة «⁨%2⁩».</translation>
    </message>
    <message>
        <source>%1 (installed in the printer) &quot;%2&quot;: %3</source>
        <translation>%1 (مثبّت في الطابعة) «⁨%2⁩»: %3</translation>
    </message>
    <message>
        <source>%1 (default not known) &quot;%2&quot;: %3</source>
        <translation>%1 (الافتراضي غير معروف) «⁨%2⁩»: %3</translation>
    </message>
    <message>
        <source>%1 (default %2) &quot;%3&quot;: %4</source>
        <translation>%1 (الافتراضي %2) «⁨%3⁩»: %4</translation>
    </message>
</context>
<context>
    <name>Lists</name>
    <message>
        <source>, </source>
        <translation>، </translation>
    </message>
</context>
<context>
    <name>LocalQueue</name>
    <message>
        <source>The printer &quot;%1&quot; was found on the network, but the print server cannot use it: %2</source>
        <translation>عُثر على الطابعة «⁨%1⁩» في الشبكة، لكن خادم الطباعة لا يستطيع استخدامها: %2</translation>
    </message>
</context>
<context>
    <name>LoginWords</name>
    <message>
        <source>The print server at %1 wants to know who you are.</source>
        <translation>يريد خادم الطباعة على %1 أن يعرف من أنت.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; wants a name and a password of its own; the print server at %2 hands them on to it.</source>
        <translation>تطلب الطابعة «⁨%1⁩» اسمًا وكلمة مرور خاصين بها؛ يسلّمهما إليها خادم الطباعة على %2.</translation>
    </message>
    <message>
        <source>That name or password was wrong.</source>
        <translation>كان الاسم أو كلمة المرور خطأ.</translation>
    </message>
    <message>
        <source>The connection to %1 is not encrypted: others could read the password on its way.</source>
        <translation>الاتصال بـ %1 غير مشفّر: قد يقرأ آخرون كلمة المرور في طريقها.</translation>
    </message>
    <message>
        <source>It shows none.</source>
        <translation>لا يعرض شهادة.</translation>
    </message>
    <message>
        <source>It shows now: %1</source>
        <translation>ما يعرضه الآن: %1</translation>
    </message>
    <message>
        <source>The print server at %1 cannot prove who it is, and was never seen before.</source>
        <translation>لا يستطيع خادم الطباعة على %1 إثبات هويته، ولم يُرَ من قبل.</translation>
    </message>
    <message>
        <source>The print server at %1 has another certificate than before. It may have been renewed, or somebody else may be answering in its place.</source>
        <translation>لخادم الطباعة على %1 شهادة غير السابقة. ربما جُدّدت، وربما يجيب غيره مكانه.</translation>
    </message>
    <message>
        <source>It had: %1</source>
        <translation>ما كان يعرضه: %1</translation>
    </message>
    <message>
        <source>The print server at %1 encrypted before, and does not any more. It may have been set up anew, or somebody else may be answering in its place. What you print there could be read on its way.</source>
        <translation>كان خادم الطباعة على %1 يشفّر الاتصال، ولم يعد يفعل. ربما أُعيد إعداده، وربما يجيب غيره مكانه. قد يُقرأ في الطريق ما تطبعه هناك.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>The output could not be written: %1.</source>
        <translation>تعذّرت كتابة الخرج: %1.</translation>
    </message>
</context>
<context>
    <name>PageChoice</name>
    <message>
        <source>There is no page %1: there is one page only.</source>
        <translation>لا توجد صفحة %1: توجد صفحة واحدة فقط.</translation>
    </message>
    <message>
        <source>There is no page %1: the first page is 1.</source>
        <translation>لا توجد صفحة %1: الصفحة الأولى هي 1.</translation>
    </message>
    <message>
        <source>There is no page %1: the pages are 1 to %2.</source>
        <translation>لا توجد صفحة %1: الصفحات من 1 إلى %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends before it begins. Write %2-%3.</source>
        <translation>ينتهي «⁨%1⁩» قبل أن يبدأ. اكتب ⁨%2-%3⁩.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page. Write numbers and ranges, for example 1-3, 7, 12-.</source>
        <translation>ليس «⁨%1⁩» صفحة. اكتب أرقامًا ومجالات، مثل ⁨1-3, 7, 12-⁩.</translation>
    </message>
    <message>
        <source>The chosen pages were left out because they cannot be read, or not whole. Choose others.</source>
        <translation>تُركت الصفحات المختارة لأن قراءتها متعذرة، كليًا أو جزئيًا. اختر غيرها.</translation>
    </message>
</context>
<context>
    <name>PageFit</name>
    <message>
        <source>The paper size &quot;%1&quot; is wider than the roll (%2).</source>
        <translation>مقاس الورق «⁨%1⁩» أعرض من اللفافة (%2).</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is larger than the paper &quot;%2&quot;.</source>
        <translation>مقاس الورق «⁨%1⁩» أكبر من الورق «⁨%2⁩».</translation>
    </message>
</context>
<context>
    <name>PageRenderer</name>
    <message>
        <source>The pages could not be written. Make room on the disk and try again.</source>
        <translation>تعذّرت كتابة الصفحات. أفسح مكانًا على القرص وأعد المحاولة.</translation>
    </message>
</context>
<context>
    <name>PageStream</name>
    <message>
        <source>The computer is too busy to prepare the pages. Close something and try again.</source>
        <translation>الحاسوب أشغل من أن يجهّز الصفحات. أغلق شيئًا وأعد المحاولة.</translation>
    </message>
</context>
<context>
    <name>PaperSizes</name>
    <message>
        <source>For the loaded paper</source>
        <translation>للورق المحمّل</translation>
    </message>
    <message>
        <source>Used last</source>
        <translation>المستخدم أخيرًا</translation>
    </message>
    <message>
        <source>Your sizes</source>
        <translation>مقاساتك</translation>
    </message>
    <message>
        <source>Photo sizes</source>
        <translation>مقاسات الصور</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>لفافة</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>US</source>
        <translation>أمريكي</translation>
    </message>
    <message>
        <source>Other sizes</source>
        <translation>مقاسات أخرى</translation>
    </message>
</context>
<context>
    <name>PaperTable</name>
    <message>
        <source>just now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>قبل %1 د</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>قبل %1 س</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>قبل %1 من الأيام</translation>
    </message>
    <message>
        <source>%1: last updated never</source>
        <translation>⁨%1⁩: لم يُحدَّث قط</translation>
    </message>
    <message>
        <source>%1: last updated %2 (%3)</source>
        <translation>⁨%1⁩: آخر تحديث ⁨%2⁩ (⁨%3⁩)</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>لفافة</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>الورقة</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>السطح</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>الدقة</translation>
    </message>
    <message>
        <source>Tones</source>
        <translation>التدرجات</translation>
    </message>
</context>
<context>
    <name>PhotoProblem</name>
    <message>
        <source>&quot;%1&quot; is damaged and cannot be read. Export it from your photo program again.</source>
        <translation>«⁨%1⁩» تالف ولا يمكن قراءته. صدّره من برنامج الصور مرة أخرى.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: a part of the picture is missing. Copy it from the camera again, or export it again.</source>
        <translation>«⁨%1⁩» تالف: جزء من الصورة ناقص. انسخه من الكاميرا مرة أخرى، أو صدّره مرة أخرى.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to print. Make a copy with fewer pixels and print that.</source>
        <translation>«⁨%1⁩» أكبر من أن يُطبع. اصنع نسخة أقل بكسلات واطبعها.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked with a password. Save a copy without one and print that.</source>
        <translation>«⁨%1⁩» مقفل بكلمة مرور. احفظ نسخة بدونها واطبعها.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed meanwhile. Open it again.</source>
        <translation>تغيّر «⁨%1⁩» في هذه الأثناء. افتحه مرة أخرى.</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;. Check its name.</source>
        <translation>لا يوجد ملف «⁨%1⁩». تحقق من اسمه.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened. Check that you may read it.</source>
        <translation>تعذّر فتح «⁨%1⁩». تحقق من أن لك إذن قراءته.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Copy it from the camera again.</source>
        <translation>«⁨%1⁩» فارغ. انسخه من الكاميرا مرة أخرى.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be printed. Use a JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF file.</source>
        <translation>ليس «⁨%1⁩» صورة يمكن طباعتها. استخدم ملف JPEG أو PNG أو TIFF أو WebP أو HEIF أو AVIF أو PDF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is camera RAW, which has to be developed before it can be printed. Export it as JPEG or TIFF from your photo program and print that.</source>
        <translation>«⁨%1⁩» ملف RAW من كاميرا، ويجب تحميضه قبل طباعته. صدّره بصيغة JPEG أو TIFF من برنامج الصور واطبع ذلك.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of a kind that cannot be read here. Export it as JPEG, or as TIFF with 8 or 16 bits, from your photo program and print that.</source>
        <translation>«⁨%1⁩» من نوع لا يمكن قراءته هنا. صدّره بصيغة JPEG، أو TIFF بعمق 8 أو 16 بت، من برنامج الصور واطبع ذلك.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; made the program that reads photos fail: it is damaged, or made to do harm. Export it from your photo program again.</source>
        <translation>أفشل «⁨%1⁩» البرنامج الذي يقرأ الصور: هو تالف، أو مصنوع للإضرار. صدّره من برنامج الصور مرة أخرى.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read: it is damaged, or made to do harm. Export it from your photo program again.</source>
        <translation>تستغرق قراءة «⁨%1⁩» وقتًا طويلًا جدًّا: هو تالف، أو مصنوع للإضرار. صدّره من برنامج الصور مرة أخرى.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: the program that reads photos, halvern-decode, is not installed beside this one or cannot be started. Install the dialog again.</source>
        <translation>تعذّرت قراءة «⁨%1⁩»: البرنامج الذي يقرأ الصور، halvern-decode، غير مثبّت بجانب هذا أو لا يمكن تشغيله. ثبّت مربع الحوار من جديد.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder without photos. Name one that holds photos, or photos.</source>
        <translation>«⁨%1⁩» مجلد بلا صور. اذكر مجلدًا فيه صور، أو اذكر صورًا.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an HDR picture, which is brighter than paper can be. Export it as JPEG without HDR from your photo program and print that.</source>
        <translation>«⁨%1⁩» صورة HDR، وهي أسطع مما يستطيعه الورق. صدّرها بصيغة JPEG بلا HDR من برنامج الصور واطبع ذلك.</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>The printer&apos;s own pages (%1) offer nothing for this printer. You can print without them.</source>
        <translation>لا تقدّم صفحات الطابعة الخاصة (%1) شيئًا لهذه الطابعة. يمكنك الطباعة بدونها.</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the pages &quot;%1&quot;, which is no name of a bundle. You can print without them.</source>
        <translation>يطلب وصف الطابعة الصفحات «⁨%1⁩»، وليس هذا اسم حزمة. يمكنك الطباعة بدونها.</translation>
    </message>
    <message>
        <source>The printer&apos;s own pages (%1) are not installed. You can print without them; install the printer&apos;s software to have them.</source>
        <translation>صفحات الطابعة الخاصة (%1) غير مثبّتة. يمكنك الطباعة بدونها؛ ثبّت برنامج الطابعة للحصول عليها.</translation>
    </message>
    <message>
        <source>The printer&apos;s own pages (%1) cannot be loaded: %2. You can print without them; install the printer&apos;s software again to have them.</source>
        <translation>تعذّر تحميل صفحات الطابعة الخاصة (%1): %2. يمكنك الطباعة بدونها؛ ثبّت برنامج الطابعة من جديد للحصول عليها.</translation>
    </message>
    <message>
        <source>they name no module</source>
        <translation>لا تسمّي وحدة برمجية</translation>
    </message>
    <message>
        <source>the module is of another kind</source>
        <translation>الوحدة البرمجية من نوع آخر</translation>
    </message>
    <message>
        <source>they belong to something else</source>
        <translation>تعود إلى شيء آخر</translation>
    </message>
    <message>
        <source>%1 cannot be looked at</source>
        <translation>يتعذر فحص ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>⁨%1⁩ يملكه مستخدم آخر</translation>
    </message>
    <message>
        <source>%1 can be changed by other users</source>
        <translation>⁨%1⁩ يستطيع مستخدمون آخرون تغييره</translation>
    </message>
</context>
<context>
    <name>PortalProgram</name>
    <message>
        <source>Say whether the desktop&apos;s portal would choose this program for printing, and if not, why.</source>
        <translation>قل هل كانت بوابة سطح المكتب ستختار هذا البرنامج للطباعة، وإن لم تكن فلماذا.</translation>
    </message>
    <message>
        <source>Have the desktop&apos;s portal choose this program for printing, by a line in your portals.conf.</source>
        <translation>اجعل بوابة سطح المكتب تختار هذا البرنامج للطباعة، بسطر في ملف portals.conf الخاص بك.</translation>
    </message>
    <message>
        <source>Take that line away again.</source>
        <translation>أزل ذلك السطر مرة أخرى.</translation>
    </message>
    <message>
        <source>Shows the print dialog for applications that print by the desktop&apos;s portal. The desktop starts it by itself.</source>
        <translation>يعرض مربع حوار الطباعة للتطبيقات التي تطبع عبر بوابة سطح المكتب. يشغّله سطح المكتب من نفسه.</translation>
    </message>
    <message>
        <source>Wrong usage. See &quot;halvern-print-portal --help&quot;.</source>
        <translation>استخدام خاطئ. انظر «⁨halvern-print-portal --help⁩».</translation>
    </message>
    <message>
        <source>There is no display to show the dialog on. Start this program in a desktop&apos;s session, or set DISPLAY.</source>
        <translation>لا توجد شاشة لعرض مربع الحوار. شغّل هذا البرنامج في جلسة سطح مكتب، أو اضبط DISPLAY.</translation>
    </message>
</context>
<context>
    <name>PpdLookup</name>
    <message>
        <source>%1 must be a number from %2 to %3.</source>
        <translation>يجب أن يكون %1 رقمًا من %2 إلى %3.</translation>
    </message>
    <message>
        <source>%1 must have %2 to %3 characters.</source>
        <translation>يجب أن يكون عدد أحرف %1 من %2 إلى %3.</translation>
    </message>
</context>
<context>
    <name>PpdModel</name>
    <message>
        <source>An option without a name or a value cannot be set.</source>
        <translation>لا يمكن ضبط خيار بلا اسم أو قيمة.</translation>
    </message>
    <message>
        <source>The printer has no page size &quot;%1&quot;. Choose one from the list.</source>
        <translation>ليس للطابعة مقاس ورق «⁨%1⁩». اختر واحدًا من القائمة.</translation>
    </message>
    <message>
        <source>The printer cannot take the page size &quot;%1&quot;. Choose one from the list.</source>
        <translation>لا تقبل الطابعة مقاس الورق «⁨%1⁩». اختر واحدًا من القائمة.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go together with &quot;%2&quot;. Change that first.</source>
        <translation>لا يجتمع «⁨%1⁩» مع «⁨%2⁩». غيّر ذاك أولًا.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is part of the printer&apos;s equipment, and is set by whoever installed the printer.</source>
        <translation>«⁨%1⁩» من تجهيزات الطابعة، ويضبطه من ثبّت الطابعة.</translation>
    </message>
    <message>
        <source>The printer&apos;s equipment does not allow &quot;%1&quot;: whoever installed the printer has set &quot;%2&quot;.</source>
        <translation>لا تسمح تجهيزات الطابعة بـ «⁨%1⁩»: ضبط من ثبّت الطابعة «⁨%2⁩».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no choice &quot;%2&quot;.</source>
        <translation>ليس في «⁨%1⁩» اختيار «⁨%2⁩».</translation>
    </message>
    <message>
        <source>The printer has no option &quot;%1&quot;.</source>
        <translation>ليس للطابعة خيار «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>مقاس الورق</translation>
    </message>
    <message>
        <source>The printer&apos;s own defaults do not go together with what is chosen elsewhere. Put the options back one by one.</source>
        <translation>لا تجتمع القيم الافتراضية للطابعة مع ما اختير في غيرها. أعد الخيارات واحدًا واحدًا.</translation>
    </message>
    <message>
        <source>not with what the printer has loaded</source>
        <translation>ليس مع ما هو محمّل في الطابعة</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>ليس مع %1</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 مم</translation>
    </message>
    <message>
        <source>%1 in</source>
        <translation>%1 بوصة</translation>
    </message>
    <message>
        <source>A job carries one choice of &quot;%1&quot;, and not &quot;%2&quot; together. Take one away before you choose another.</source>
        <translation>تحمل المهمة اختيارًا واحدًا من «⁨%1⁩»، ولا تجمع «⁨%2⁩» معًا. أزل واحدًا قبل أن تختار غيره.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>It holds no presets of this program.</source>
        <translation>ليست فيه إعدادات مسبقة لهذا البرنامج.</translation>
    </message>
    <message>
        <source>It was written by a newer version of this program.</source>
        <translation>كتبه إصدار أحدث من هذا البرنامج.</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>إعدادات الطابعة الافتراضية</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>المستخدم أخيرًا</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>ليس ملفًا.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>كبير جدًّا.</translation>
    </message>
    <message>
        <source>There are %1 presets already. Delete one first.</source>
        <translation>عدد الإعدادات المسبقة الموجودة %1. احذف واحدًا أولًا.</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; is not there any more.</source>
        <translation>لم يعد الإعداد المسبق «⁨%1⁩» موجودًا.</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; cannot be read, and %2 cannot be moved away. %3</source>
        <translation>تعذّرت قراءة الإعدادات المسبقة للطابعة «⁨%1⁩»، وتعذّر نقل %2 من مكانه. %3</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; could not be read, and begin anew. What was there is in %2. %3</source>
        <translation>تعذّرت قراءة الإعدادات المسبقة للطابعة «⁨%1⁩»، فبدأت من جديد. ما كان فيها موجود في %2. ⁨%3⁩</translation>
    </message>
    <message>
        <source>The presets in %1 cannot be used. %2</source>
        <translation>تعذّر استخدام الإعدادات المسبقة في %1. ⁨%2⁩</translation>
    </message>
    <message>
        <source>Some presets in %1 cannot be read and are left alone.</source>
        <translation>تعذّرت قراءة بعض الإعدادات المسبقة في %1، فتُركت كما هي.</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; could not be written to %2. %3</source>
        <translation>تعذّرت كتابة الإعدادات المسبقة للطابعة «⁨%1⁩» في %2. ⁨%3⁩</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>تعذّر إنشاء المجلد.</translation>
    </message>
    <message>
        <source>Another program holds the lock %1.</source>
        <translation>يمسك برنامج آخر القفل %1.</translation>
    </message>
    <message>
        <source>It would be too large.</source>
        <translation>سيكون كبيرًا جدًّا.</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already. Choose another name.</source>
        <translation>يوجد إعداد مسبق «⁨%1⁩» بالفعل. اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>No presets were read from %1. %2</source>
        <translation>لم تُقرأ إعدادات مسبقة من %1. ⁨%2⁩</translation>
    </message>
    <message>
        <source>There is none in it that can be read.</source>
        <translation>ليس فيه ما يمكن قراءته.</translation>
    </message>
    <message>
        <source>Some presets in %1 cannot be read and were left out.</source>
        <translation>تعذّرت قراءة بعض الإعدادات المسبقة في %1 فاستُبعدت.</translation>
    </message>
    <message>
        <source>The presets could not be written to %1. %2</source>
        <translation>تعذّرت كتابة الإعدادات المسبقة في %1. ⁨%2⁩</translation>
    </message>
    <message>
        <source>The printer has no option &quot;%1&quot;.</source>
        <translation>ليس للطابعة خيار «⁨%1⁩».</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>وغيرها: %1.</translation>
    </message>
    <message>
        <source>Not all of &quot;%1&quot; can be had now.</source>
        <translation>لا يتوفر الآن كل ما في «⁨%1⁩».</translation>
    </message>
    <message>
        <source>There is not enough memory to read the presets.</source>
        <translation>لا تكفي الذاكرة لقراءة الإعدادات المسبقة.</translation>
    </message>
</context>
<context>
    <name>PrintRun</name>
    <message>
        <source>less than a minute left</source>
        <translation>بقيت أقل من دقيقة</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>الدقائق الباقية نحو %1</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>الساعات الباقية نحو %1</translation>
    </message>
    <message>
        <source>Sending the photo...</source>
        <translation>جارٍ إرسال الصورة...</translation>
    </message>
    <message>
        <source>Paused: %1 of %2 photos are sent.</source>
        <translation>متوقف مؤقتًا: أُرسلت %1 من %2 من الصور.</translation>
    </message>
    <message>
        <source>Sending photo %1 of %2</source>
        <translation>جارٍ إرسال الصورة %1 من %2</translation>
    </message>
</context>
<context>
    <name>PrinterActions</name>
    <message>
        <source>&amp;Resume</source>
        <translation>استئناف (&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Accept Jobs</source>
        <translation>قبول المهام (&amp;J)</translation>
    </message>
    <message>
        <source>Re&amp;lease</source>
        <translation>إطلاق (&amp;D)</translation>
    </message>
    <message>
        <source>The print server does not let you do that with &quot;%1&quot;. Ask whoever looks after it.</source>
        <translation>لا يسمح لك خادم الطباعة بذلك مع «⁨%1⁩». اسأل المسؤول عنها.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Ready</source>
        <translation>جاهزة</translation>
    </message>
    <message>
        <source>Does not accept jobs</source>
        <translation>لا تقبل المهام</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>متوقفة مؤقتًا</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>الطباعة</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>عُثر عليها في الشبكة</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>تحتاج إلى انتباه</translation>
    </message>
    <message>
        <source>The print server has no printers. Add one, for example with lpadmin.</source>
        <translation>ليس في خادم الطباعة طابعات. أضف واحدة، مثلًا بالأمر lpadmin.</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot;. It has: %2.</source>
        <translation>ليس في خادم الطباعة طابعة «⁨%1⁩». فيه: %2.</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot;. It has: %2, and %3 more (lpstat -e).</source>
        <translation>ليس في خادم الطباعة طابعة «⁨%1⁩». فيه: %2، وعدد ما سواها %3 (lpstat -e).</translation>
    </message>
    <message>
        <source>The print server has no default printer. Name one with --printer.</source>
        <translation>ليس في خادم الطباعة طابعة افتراضية. سمِّ واحدة بالخيار ⁨--printer⁩.</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>لا تجيب الطابعة</translation>
    </message>
</context>
<context>
    <name>PrinterReport</name>
    <message>
        <source>The printer&apos;s answer about itself is too long to be true, and was not read.</source>
        <translation>إجابة الطابعة عن نفسها أطول من أن تُصدَّق، فلم تُقرأ.</translation>
    </message>
    <message>
        <source>The printer does not tell strangers what is in it.</source>
        <translation>لا تخبر الطابعة الغرباء بما فيها.</translation>
    </message>
    <message>
        <source>The printer does not answer. Is it switched on, and in this network?</source>
        <translation>لا تجيب الطابعة. هل هي مشغَّلة، وعلى هذه الشبكة؟</translation>
    </message>
    <message>
        <source>The printer does not say what is in it.</source>
        <translation>لا تقول الطابعة ما فيها.</translation>
    </message>
</context>
<context>
    <name>QueuePpd</name>
    <message>
        <source>The description of the printer &quot;%1&quot; is damaged: %2. Install its driver again, or choose another printer.</source>
        <translation>وصف الطابعة «⁨%1⁩» تالف: %2. ثبّت مشغّلها من جديد، أو اختر طابعة أخرى.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no description on the print server, and does not tell by itself what it can do. Install it with a driver, or choose another printer.</source>
        <translation>ليس للطابعة «⁨%1⁩» وصف على خادم الطباعة، ولا تخبر هي بما تستطيعه. ثبّتها مع مشغّل، أو اختر طابعة أخرى.</translation>
    </message>
</context>
<context>
    <name>RefilledTray</name>
    <message>
        <source>&quot;%1&quot; has other paper now.</source>
        <translation>في «⁨%1⁩» الآن ورق آخر.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has other paper now, and the page follows: %2.</source>
        <translation>في «⁨%1⁩» الآن ورق آخر، والصفحة تتبعه: %2.</translation>
    </message>
    <message>
        <source>Its kind, %1, could not be chosen: the paper type is still &quot;%2&quot;.</source>
        <translation>تعذّر اختيار نوعه، %1: ما زال نوع الورق «⁨%2⁩».</translation>
    </message>
</context>
<context>
    <name>ReviewSwitch</name>
    <message>
        <source>Re&amp;view before printing</source>
        <translation>مراجعة قبل الطباعة (&amp;V)</translation>
    </message>
    <message>
        <source>Shows the pages as the application has made them, before they go to the printer</source>
        <translation>يعرض الصفحات كما صنعها التطبيق، قبل ذهابها إلى الطابعة</translation>
    </message>
</context>
<context>
    <name>SecretStore</name>
    <message>
        <source>Printing on %1</source>
        <translation>الطباعة على %1</translation>
    </message>
</context>
<context>
    <name>ServerCertificate</name>
    <message>
        <source>a certificate whose file cannot be read any more</source>
        <translation>شهادة لم تعد قراءة ملفها ممكنة</translation>
    </message>
</context>
<context>
    <name>SheetWords</name>
    <message>
        <source>1 sheet</source>
        <translation>ورقة واحدة</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>الأوراق: %1</translation>
    </message>
    <message>
        <source>photos in %1 × %2 mm</source>
        <translation>صور بمقاس ⁨%1 x %2⁩ مم</translation>
    </message>
    <message>
        <source>with captions</source>
        <translation>مع شروح الصور</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>مع علامات القص</translation>
    </message>
    <message>
        <source>white border %1 mm</source>
        <translation>إطار أبيض %1 مم</translation>
    </message>
    <message>
        <source>Sheet %1: %2, %3 x %4 mm at %5, %6 mm</source>
        <translation>الورقة %1: ⁨%2⁩، ⁨%3 x %4⁩ مم عند ⁨%5, %6⁩ مم</translation>
    </message>
</context>
<context>
    <name>StartingOptions</name>
    <message>
        <source>The printer &quot;%1&quot; prints no text on the back of a picture. Leave --backprint out, or choose another printer.</source>
        <translation>لا تطبع الطابعة «⁨%1⁩» نصًّا على ظهر الصورة. احذف ⁨--backprint⁩، أو اختر طابعة أخرى.</translation>
    </message>
</context>
<context>
    <name>StateReasons</name>
    <message>
        <source>out of paper</source>
        <translation>نفد الورق</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>الورق قليل</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>انحشر الورق</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>باب مفتوح</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>الغطاء مفتوح</translation>
    </message>
    <message>
        <source>not connected or switched off</source>
        <translation>غير متصلة أو مطفأة</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>جارٍ الاتصال</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>متوقفة مؤقتًا</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>جارٍ الإيقاف المؤقت</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>مطفأة</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>مسحوق الحبر قليل</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>نفد مسحوق الحبر</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>الحبر قليل</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>نفد الحبر</translation>
    </message>
    <message>
        <source>the waste tank is nearly full</source>
        <translation>كاد خزان الفضلات يمتلئ</translation>
    </message>
    <message>
        <source>the waste tank is full</source>
        <translation>خزان الفضلات ممتلئ</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>درج الإخراج ممتلئ</translation>
    </message>
    <message>
        <source>does not answer</source>
        <translation>لا تجيب</translation>
    </message>
    <message>
        <source>its driver is not installed</source>
        <translation>مشغّلها غير مثبّت</translation>
    </message>
    <message>
        <source>its driver is not installed safely</source>
        <translation>مشغّلها غير مثبّت تثبيتًا آمنًا</translation>
    </message>
    <message>
        <source>needs attention</source>
        <translation>تحتاج إلى انتباه</translation>
    </message>
    <message>
        <source>Load paper.</source>
        <translation>حمّل الورق.</translation>
    </message>
    <message>
        <source>Load the paper that the job wants.</source>
        <translation>حمّل الورق الذي تطلبه المهمة.</translation>
    </message>
    <message>
        <source>Load paper soon.</source>
        <translation>حمّل الورق قريبًا.</translation>
    </message>
    <message>
        <source>Take the jammed paper out.</source>
        <translation>أخرج الورق المحشور.</translation>
    </message>
    <message>
        <source>a paper tray is missing</source>
        <translation>درج ورق غير موجود</translation>
    </message>
    <message>
        <source>Push the paper tray in.</source>
        <translation>أدخل درج الورق.</translation>
    </message>
    <message>
        <source>the output tray is missing</source>
        <translation>درج الإخراج غير موجود</translation>
    </message>
    <message>
        <source>Put the output tray in.</source>
        <translation>ركّب درج الإخراج.</translation>
    </message>
    <message>
        <source>Empty the output tray.</source>
        <translation>أفرغ درج الإخراج.</translation>
    </message>
    <message>
        <source>the output tray is nearly full</source>
        <translation>كاد درج الإخراج يمتلئ</translation>
    </message>
    <message>
        <source>Empty the output tray soon.</source>
        <translation>أفرغ درج الإخراج قريبًا.</translation>
    </message>
    <message>
        <source>Close the printer&apos;s door; the job goes on then.</source>
        <translation>أغلق باب الطابعة؛ تستمر المهمة بعدها.</translation>
    </message>
    <message>
        <source>Close the cover; the job goes on then.</source>
        <translation>أغلق الغطاء؛ تستمر المهمة بعدها.</translation>
    </message>
    <message>
        <source>something is open</source>
        <translation>شيء ما مفتوح</translation>
    </message>
    <message>
        <source>Close what is open; the job goes on then.</source>
        <translation>أغلق المفتوح؛ تستمر المهمة بعدها.</translation>
    </message>
    <message>
        <source>Switch the printer on and look at its cable or network.</source>
        <translation>شغّل الطابعة وانظر إلى كابلها أو شبكتها.</translation>
    </message>
    <message>
        <source>Resume it, or ask whoever has paused it.</source>
        <translation>استأنفها، أو اسأل من أوقفها.</translation>
    </message>
    <message>
        <source>holds new jobs</source>
        <translation>تحتجز المهام الجديدة</translation>
    </message>
    <message>
        <source>Release it, and new jobs are printed.</source>
        <translation>أطلقها، فتُطبع المهام الجديدة.</translation>
    </message>
    <message>
        <source>Switch the printer on.</source>
        <translation>شغّل الطابعة.</translation>
    </message>
    <message>
        <source>Have new toner at hand.</source>
        <translation>جهّز مسحوق حبر جديدًا.</translation>
    </message>
    <message>
        <source>Put new toner in.</source>
        <translation>ضع مسحوق حبر جديدًا.</translation>
    </message>
    <message>
        <source>Have new ink at hand.</source>
        <translation>جهّز حبرًا جديدًا.</translation>
    </message>
    <message>
        <source>Put new ink in.</source>
        <translation>ضع حبرًا جديدًا.</translation>
    </message>
    <message>
        <source>an ink cartridge is missing</source>
        <translation>خرطوشة حبر غير موجودة</translation>
    </message>
    <message>
        <source>Put the missing cartridge in.</source>
        <translation>ركّب الخرطوشة الناقصة.</translation>
    </message>
    <message>
        <source>Have a new waste tank at hand.</source>
        <translation>جهّز خزان فضلات جديدًا.</translation>
    </message>
    <message>
        <source>Put a new waste tank in.</source>
        <translation>ركّب خزان فضلات جديدًا.</translation>
    </message>
    <message>
        <source>too hot</source>
        <translation>ساخنة جدًّا</translation>
    </message>
    <message>
        <source>Let the printer cool down.</source>
        <translation>دع الطابعة تبرد.</translation>
    </message>
    <message>
        <source>warming up</source>
        <translation>جارٍ الإحماء</translation>
    </message>
    <message>
        <source>the drum is nearly worn out</source>
        <translation>كادت الأسطوانة تبلى</translation>
    </message>
    <message>
        <source>Have a new drum at hand.</source>
        <translation>جهّز أسطوانة جديدة.</translation>
    </message>
    <message>
        <source>the drum is worn out</source>
        <translation>الأسطوانة بالية</translation>
    </message>
    <message>
        <source>Put a new drum in.</source>
        <translation>ركّب أسطوانة جديدة.</translation>
    </message>
    <message>
        <source>developer is low</source>
        <translation>مادة الإظهار قليلة</translation>
    </message>
    <message>
        <source>Have new developer at hand.</source>
        <translation>جهّز مادة إظهار جديدة.</translation>
    </message>
    <message>
        <source>out of developer</source>
        <translation>نفدت مادة الإظهار</translation>
    </message>
    <message>
        <source>Put new developer in.</source>
        <translation>ضع مادة إظهار جديدة.</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>جارٍ التنظيف</translation>
    </message>
    <message>
        <source>no room for more jobs</source>
        <translation>لا مكان لمهام أخرى</translation>
    </message>
    <message>
        <source>Wait until jobs are printed, or cancel some.</source>
        <translation>انتظر حتى تُطبع مهام، أو ألغِ بعضها.</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>جارٍ التوقف</translation>
    </message>
    <message>
        <source>Install the printer&apos;s driver.</source>
        <translation>ثبّت مشغّل الطابعة.</translation>
    </message>
    <message>
        <source>Install the printer&apos;s driver anew.</source>
        <translation>ثبّت مشغّل الطابعة من جديد.</translation>
    </message>
    <message>
        <source>Look at the printer&apos;s own display.</source>
        <translation>انظر إلى شاشة الطابعة.</translation>
    </message>
</context>
<context>
    <name>Stepper</name>
    <message>
        <source>Increase</source>
        <translation>زيادة</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>إنقاص</translation>
    </message>
</context>
<context>
    <name>Supply</name>
    <message>
        <source>Black</source>
        <translation>أسود</translation>
    </message>
    <message>
        <source>Photo black</source>
        <translation>أسود للصور</translation>
    </message>
    <message>
        <source>Matte black</source>
        <translation>أسود مطفي</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>رمادي</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>رمادي فاتح</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>سماوي</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>سماوي فاتح</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>أرجواني</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>أرجواني فاتح</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>أصفر</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>أحمر</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>برتقالي</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>أزرق</translation>
    </message>
    <message>
        <source>Waste tank</source>
        <translation>خزان الفضلات</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>حبر</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>مستلزم</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>full</source>
        <translation>ممتلئ</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>فارغ</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, nearly full</source>
        <translation>%1، كاد يمتلئ</translation>
    </message>
    <message>
        <source>%1 full</source>
        <translation>ممتلئ %1</translation>
    </message>
    <message>
        <source>%1, low</source>
        <translation>%1، قليل</translation>
    </message>
    <message>
        <source>%1 is full</source>
        <translation>ممتلئ: %1</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>فارغ: %1</translation>
    </message>
    <message>
        <source>%1 is nearly full (%2)</source>
        <translation>كاد يمتلئ: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 is low (%2)</source>
        <translation>قليل: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>TerminalQuestions</name>
    <message>
        <source>yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>Send it all the same? [y/N]</source>
        <translation>الإرسال رغم ذلك؟ [y/N]</translation>
    </message>
    <message>
        <source>Name [%1]:</source>
        <translation>الاسم [%1]:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>كلمة المرور:</translation>
    </message>
    <message>
        <source>Trust it from now on? [y/N]</source>
        <translation>الوثوق به من الآن؟ [y/N]</translation>
    </message>
</context>
<context>
    <name>TrayWords</name>
    <message>
        <source>Main tray</source>
        <translation>الدرج الرئيسي</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>درج الصور</translation>
    </message>
    <message>
        <source>Second tray</source>
        <translation>الدرج الثاني</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>الدرج العلوي</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>الدرج الأوسط</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>الدرج السفلي</translation>
    </message>
    <message>
        <source>Rear feed</source>
        <translation>التغذية الخلفية</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>الدرج الجانبي</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>التغذية اليدوية</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>الدرج الالتفافي</translation>
    </message>
    <message>
        <source>Large tray</source>
        <translation>الدرج الكبير</translation>
    </message>
    <message>
        <source>Envelope feed</source>
        <translation>تغذية المظاريف</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>درج الأقراص</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>لفافة</translation>
    </message>
    <message>
        <source>Second roll</source>
        <translation>اللفافة الثانية</translation>
    </message>
    <message>
        <source>Plain paper</source>
        <translation>ورق عادي</translation>
    </message>
    <message>
        <source>Thin paper</source>
        <translation>ورق رقيق</translation>
    </message>
    <message>
        <source>Heavy paper</source>
        <translation>ورق ثقيل</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>ورق نفث الحبر</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>ورق مطلي</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>ورق مُروَّس</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>ورق فاخر</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>ورق صور</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>ورق صور لامع</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>ورق صور شديد اللمعان</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>ورق صور نصف لامع</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>ورق صور ساتان</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>ورق صور مطفي</translation>
    </message>
    <message>
        <source>Photo film</source>
        <translation>فيلم صور</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>ورق مقوّى</translation>
    </message>
    <message>
        <source>Envelopes</source>
        <translation>مظاريف</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ملصقات</translation>
    </message>
    <message>
        <source>Transparencies</source>
        <translation>شفافات</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>أقراص</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>الدرج %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>اللفافة %1</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>الدرج</translation>
    </message>
</context>
<context>
    <name>TraysInWords</name>
    <message>
        <source>%1 mm wide</source>
        <translation>العرض %1 مم</translation>
    </message>
    <message>
        <source>%1 in wide</source>
        <translation>العرض %1 بوصة</translation>
    </message>
    <message>
        <source>not loaded: needs %1 in the tray</source>
        <translation>غير محمّل: يلزم %1 في الدرج</translation>
    </message>
    <message>
        <source>not loaded: needs %1 in &quot;%2&quot;</source>
        <translation>غير محمّل: يلزم %1 في «⁨%2⁩»</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is not in &quot;%2&quot;, but in &quot;%3&quot;.</source>
        <translation>مقاس الورق «⁨%1⁩» ليس في «⁨%2⁩»، بل في «⁨%3⁩».</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is not loaded. There is &quot;%2&quot; in &quot;%3&quot;.</source>
        <translation>مقاس الورق «⁨%1⁩» غير محمّل. الموجود «⁨%2⁩» في «⁨%3⁩».</translation>
    </message>
    <message>
        <source>The paper type is &quot;%1&quot;, but in &quot;%2&quot; there is &quot;%3&quot;.</source>
        <translation>نوع الورق «⁨%1⁩»، لكن في «⁨%2⁩» يوجد «⁨%3⁩».</translation>
    </message>
</context>
<context>
    <name>UserJobs</name>
    <message>
        <source>Waiting</source>
        <translation>تنتظر</translation>
    </message>
    <message>
        <source>Waiting: the printer is paused</source>
        <translation>تنتظر: الطابعة متوقفة مؤقتًا</translation>
    </message>
    <message>
        <source>Held: the printer wants a name and a password</source>
        <translation>محتجزة: تطلب الطابعة اسمًا وكلمة مرور</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>محتجزة</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>الطباعة</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>متوقفة</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>ملغاة</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشلت</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>طُبعت</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>غير معروفة</translation>
    </message>
    <message>
        <source>The print server does not let you cancel job %1. Ask whoever looks after it.</source>
        <translation>لا يسمح لك خادم الطباعة بإلغاء المهمة %1. اسأل المسؤول عنه.</translation>
    </message>
    <message>
        <source>The print server does not let you hold job %1. Ask whoever looks after it.</source>
        <translation>لا يسمح لك خادم الطباعة باحتجاز المهمة %1. اسأل المسؤول عنه.</translation>
    </message>
    <message>
        <source>The print server does not let you release job %1. Ask whoever looks after it.</source>
        <translation>لا يسمح لك خادم الطباعة بإطلاق المهمة %1. اسأل المسؤول عنه.</translation>
    </message>
    <message>
        <source>The print server does not let you print job %1 again. Ask whoever looks after it.</source>
        <translation>لا يسمح لك خادم الطباعة بطباعة المهمة %1 مرة أخرى. اسأل المسؤول عنه.</translation>
    </message>
    <message>
        <source>The print server does not let you sign in for job %1. Ask whoever looks after it.</source>
        <translation>لا يسمح لك خادم الطباعة بتسجيل الدخول للمهمة %1. اسأل المسؤول عنه.</translation>
    </message>
    <message>
        <source>The print server does not let you move job %1 to another printer. Ask whoever looks after it.</source>
        <translation>لا يسمح لك خادم الطباعة بنقل المهمة %1 إلى طابعة أخرى. اسأل المسؤول عنه.</translation>
    </message>
    <message>
        <source>Job %1 or the printer &quot;%2&quot; is not on the print server any more.</source>
        <translation>لم تعد المهمة %1 أو الطابعة «⁨%2⁩» على خادم الطباعة.</translation>
    </message>
    <message>
        <source>Job %1 is not on the print server any more.</source>
        <translation>لم تعد المهمة %1 على خادم الطباعة.</translation>
    </message>
    <message>
        <source>That cannot be done with job %1 as it is now: it may have gone on or ended, or the print server has not kept its pages.</source>
        <translation>لا يمكن فعل ذلك بالمهمة %1 في حالها الآن: ربما استمرت أو انتهت، أو لم يحتفظ خادم الطباعة بصفحاتها.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
</context>
<context>
    <name>halvern::AccessDialogs</name>
    <message>
        <source>Trust this print server?</source>
        <translation>الوثوق بخادم الطباعة هذا؟</translation>
    </message>
    <message>
        <source>&amp;Trust It from Now On</source>
        <translation>الوثوق به من الآن (&amp;T)</translation>
    </message>
</context>
<context>
    <name>halvern::BatchPrint</name>
    <message>
        <source>With --print-damaged it is printed all the same.</source>
        <translation>بالخيار ⁨--print-damaged⁩ تُطبع رغم ذلك.</translation>
    </message>
    <message>
        <source>Changed to fit: %1=%2</source>
        <translation>تغيّر ليتلاءم: ⁨%1=%2⁩</translation>
    </message>
    <message>
        <source>Cancelled: nothing was printed.</source>
        <translation>أُلغيت: لم يُطبع شيء.</translation>
    </message>
    <message>
        <source>Job %1 stays on the queue; &quot;cancel %2-%1&quot; takes it away.</source>
        <translation>تبقى المهمة %1 على قائمة الانتظار؛ يزيلها «⁨cancel %2-%1⁩».</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>تحذير: %1</translation>
    </message>
    <message>
        <source>With &quot;-o PageSize=%1&quot; it fits.</source>
        <translation>يتسع له المقاس مع «⁨-o PageSize=%1⁩».</translation>
    </message>
    <message>
        <source>With --skip-broken the others are printed.</source>
        <translation>بالخيار ⁨--skip-broken⁩ تُطبع الأخرى.</translation>
    </message>
    <message>
        <source>None of the files can be printed.</source>
        <translation>لا يمكن طباعة أي من الملفات.</translation>
    </message>
    <message>
        <source>Stopped, but the print server does not answer: a part of the job may still be on the queue &quot;%1&quot;. Look at it before you print again.</source>
        <translation>توقفت، لكن خادم الطباعة لا يجيب: قد يبقى جزء من المهمة على قائمة الانتظار «⁨%1⁩». انظر إليها قبل أن تطبع مرة أخرى.</translation>
    </message>
</context>
<context>
    <name>halvern::CaptionRow</name>
    <message>
        <source>None; for example [C]  [F]</source>
        <translation>بلا؛ مثال: [C]  [F]</translation>
    </message>
    <message>
        <source>Caption under each photo</source>
        <translation>شرح تحت كل صورة</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>عنصر نائب</translation>
    </message>
    <message>
        <source>I&amp;nsert</source>
        <translation>إدراج (&amp;N)</translation>
    </message>
</context>
<context>
    <name>halvern::ChoiceList</name>
    <message>
        <source>%1; %2</source>
        <translation>⁨%1⁩؛ ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>halvern::ColourRow</name>
    <message>
        <source>Compensate the black point</source>
        <translation>تعويض النقطة السوداء</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>هدف العرض اللوني</translation>
    </message>
    <message>
        <source>The photo&apos;s darkest tone becomes the paper&apos;s darkest</source>
        <translation>تصير أغمق درجات الصورة أغمق درجات الورق</translation>
    </message>
    <message>
        <source>The printer&apos;s own: none is known</source>
        <translation>الخاص بالطابعة: لا يُعرف لها ملف</translation>
    </message>
    <message>
        <source>The printer&apos;s own: %1</source>
        <translation>الخاص بالطابعة: %1</translation>
    </message>
    <message>
        <source>Another file...</source>
        <translation>ملف آخر...</translation>
    </message>
    <message>
        <source>Soft proof</source>
        <translation>بروفة على الشاشة</translation>
    </message>
    <message>
        <source>Paper white</source>
        <translation>بياض الورق</translation>
    </message>
    <message>
        <source>Gamut warning</source>
        <translation>تحذير النطاق اللوني</translation>
    </message>
    <message>
        <source>The printer manages colors</source>
        <translation>الطابعة تدير الألوان</translation>
    </message>
    <message>
        <source>This program manages colors</source>
        <translation>هذا البرنامج يدير الألوان</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>الألوان</translation>
    </message>
    <message>
        <source>Color profile</source>
        <translation>ملف تعريف الألوان</translation>
    </message>
    <message>
        <source>What becomes of colors that the printer cannot show</source>
        <translation>ما تصير إليه الألوان التي لا تستطيع الطابعة إظهارها</translation>
    </message>
    <message>
        <source>The preview shows the paper&apos;s own white and the deepest black on it</source>
        <translation>تعرض المعاينة بياض الورق نفسه وأعمق سواد عليه</translation>
    </message>
    <message>
        <source>The preview paints over in pink what the printer cannot show</source>
        <translation>تغطي المعاينة بالوردي ما لا تستطيع الطابعة إظهاره</translation>
    </message>
    <message>
        <source>The preview shows what the photo will look like on paper</source>
        <translation>تعرض المعاينة شكل الصورة على الورق</translation>
    </message>
    <message>
        <source>Choose a Color Profile</source>
        <translation>اختيار ملف تعريف ألوان</translation>
    </message>
    <message>
        <source>Color profiles (*.icc *.icm *.ICC *.ICM);;All files (*)</source>
        <translation>ملفات تعريف الألوان (*.icc *.icm *.ICC *.ICM);;كل الملفات (*)</translation>
    </message>
</context>
<context>
    <name>halvern::CropEditor</name>
    <message>
        <source>%1 pixels per inch: it will look soft</source>
        <translation>%1 بكسل في البوصة: ستبدو غير حادة</translation>
    </message>
    <message>
        <source>%1 pixels per inch</source>
        <translation>%1 بكسل في البوصة</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>اقتصاص</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>توسيط</translation>
    </message>
    <message>
        <source>Put the frame in the middle (C)</source>
        <translation>ضع الإطار في الوسط (C)</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>تدوير</translation>
    </message>
    <message>
        <source>Turn the photo clockwise (R)</source>
        <translation>أدِر الصورة مع عقارب الساعة (R)</translation>
    </message>
    <message>
        <source>As Large As Can Be</source>
        <translation>أكبر ما يمكن</translation>
    </message>
    <message>
        <source>Show as much of the photo as can be (0)</source>
        <translation>أظهر أكبر قدر ممكن من الصورة (0)</translation>
    </message>
    <message>
        <source>Same for All</source>
        <translation>نفسه للكل</translation>
    </message>
    <message>
        <source>Crop and turn all photos like this one</source>
        <translation>اقتصاص كل الصور وتدويرها مثل هذه</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Back to the sheet (Esc)</source>
        <translation>العودة إلى الورقة (Esc)</translation>
    </message>
    <message>
        <source>%1 % of the photo</source>
        <translation>%1 % من الصورة</translation>
    </message>
</context>
<context>
    <name>halvern::CustomField</name>
    <message>
        <source>Other value...</source>
        <translation>قيمة أخرى...</translation>
    </message>
    <message>
        <source>%1: other value</source>
        <translation>⁨%1⁩: قيمة أخرى</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>مم</translation>
    </message>
    <message>
        <source>in</source>
        <translation>بوصة</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>نقطة</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>الوحدة</translation>
    </message>
</context>
<context>
    <name>halvern::CustomPaperRow</name>
    <message>
        <source>Width of the paper</source>
        <translation>عرض الورق</translation>
    </message>
    <message>
        <source>Height of the paper</source>
        <translation>ارتفاع الورق</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>احتفاظ (&amp;K)</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>مم</translation>
    </message>
    <message>
        <source>in</source>
        <translation>بوصة</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>وحدة الطول</translation>
    </message>
    <message>
        <source>Name, to find it again</source>
        <translation>اسم للعثور عليه لاحقًا</translation>
    </message>
    <message>
        <source>Name of this paper size</source>
        <translation>اسم مقاس الورق هذا</translation>
    </message>
    <message>
        <source>From %1 to %2 %3</source>
        <translation>من %1 إلى %2 %3</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>إزالة (&amp;F)</translation>
    </message>
    <message>
        <source>As &amp;Long as the Photo</source>
        <translation>بطول الصورة (&amp;L)</translation>
    </message>
    <message>
        <source>As &amp;High as the Photo</source>
        <translation>بارتفاع الصورة (&amp;H)</translation>
    </message>
</context>
<context>
    <name>halvern::DialogSession</name>
    <message>
        <source>No printer is chosen. Choose one from the list.</source>
        <translation>لم تُختر طابعة. اختر واحدة من القائمة.</translation>
    </message>
    <message>
        <source>Nothing is known of the printer &quot;%1&quot; yet. Wait for it, or choose another one.</source>
        <translation>لا يُعرف بعد شيء عن الطابعة «⁨%1⁩». انتظرها، أو اختر غيرها.</translation>
    </message>
    <message>
        <source>The photos are still being read. Wait a moment.</source>
        <translation>ما زالت الصور تُقرأ. انتظر لحظة.</translation>
    </message>
    <message>
        <source>There is no photo to print. Open the dialog with one.</source>
        <translation>لا توجد صورة للطباعة. افتح مربع الحوار مع صورة.</translation>
    </message>
    <message>
        <source>All photos are left out. Include at least one of them.</source>
        <translation>كل الصور مستبعدة. أدرج واحدة منها على الأقل.</translation>
    </message>
    <message>
        <source>All photos are cropped and turned like &quot;%1&quot; now.</source>
        <translation>كل الصور مقتصّة ومدوّرة الآن مثل «%1».</translation>
    </message>
    <message>
        <source>1 photo was moved.</source>
        <translation>نُقلت صورة واحدة.</translation>
    </message>
    <message>
        <source>%1 photos were moved.</source>
        <translation>نُقلت صور، عددها: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was taken out.</source>
        <translation>استُبعدت «%1».</translation>
    </message>
    <message>
        <source>%1 photos were taken out.</source>
        <translation>استُبعدت صور، عددها: %1.</translation>
    </message>
    <message>
        <source>All photos are printed now.</source>
        <translation>ستُطبع كل الصور الآن.</translation>
    </message>
    <message>
        <source>%1 of %2 photos are printed now.</source>
        <translation>الصور التي ستُطبع الآن: %1 من %2.</translation>
    </message>
    <message>
        <source>The layout was changed.</source>
        <translation>تم تغيير التخطيط.</translation>
    </message>
    <message>
        <source>The photo&apos;s size or place was changed.</source>
        <translation>تم تغيير حجم الصورة أو موضعها.</translation>
    </message>
</context>
<context>
    <name>halvern::DocumentSpool</name>
    <message>
        <source>The document cannot be read: %1. Print it once more from its application.</source>
        <translation>تعذّرت قراءة المستند: %1. اطبعه من تطبيقه مرة أخرى.</translation>
    </message>
    <message>
        <source>There is no room for the document: %1. Make room on the disk, and print it once more.</source>
        <translation>لا مكان للمستند: %1. أفسح مكانًا على القرص، واطبعه مرة أخرى.</translation>
    </message>
    <message>
        <source>No file can be made for the document in &quot;%1&quot;. Make sure that you may write there, and print it once more.</source>
        <translation>تعذّر إنشاء ملف للمستند في «⁨%1⁩». تأكد من أن لك إذن الكتابة هناك، واطبعه مرة أخرى.</translation>
    </message>
    <message>
        <source>The application has gone before its document was whole. Print it once more.</source>
        <translation>ذهب التطبيق قبل أن يكتمل مستنده. اطبعه مرة أخرى.</translation>
    </message>
    <message>
        <source>The computer is too busy to take the document. Close something, and print it once more.</source>
        <translation>الحاسوب أشغل من أن يستلم المستند. أغلق شيئًا، واطبعه مرة أخرى.</translation>
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
        <translation>المساعدة</translation>
    </message>
    <message>
        <source>Page of the help</source>
        <translation>صفحة المساعدة</translation>
    </message>
    <message>
        <source>Search the help (%1)</source>
        <translation>البحث في المساعدة (%1)</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>البحث في المساعدة</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>المحتويات</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>النتائج</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>تقدم</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>عُثر على %1</translation>
    </message>
    <message>
        <source>Help - %1</source>
        <translation>المساعدة - %1</translation>
    </message>
</context>
<context>
    <name>halvern::HitList</name>
    <message>
        <source>%1: %2</source>
        <translation>⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>⁨%1⁩، في ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>halvern::JobPage</name>
    <message>
        <source>At once</source>
        <translation>حالًا</translation>
    </message>
    <message>
        <source>When somebody releases it</source>
        <translation>حين يطلقها أحد</translation>
    </message>
    <message>
        <source>By day, from 6:00</source>
        <translation>نهارًا، من 6:00</translation>
    </message>
    <message>
        <source>In the evening, from 18:00</source>
        <translation>مساءً، من 18:00</translation>
    </message>
    <message>
        <source>At night, from 18:00</source>
        <translation>ليلًا، من 18:00</translation>
    </message>
    <message>
        <source>In the second shift, from 16:00</source>
        <translation>في الوردية الثانية، من 16:00</translation>
    </message>
    <message>
        <source>In the third shift, from 0:00</source>
        <translation>في الوردية الثالثة، من 0:00</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>في عطلة الأسبوع</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>قياسية</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>غير مصنّف</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>خصوصي</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>مصنّف</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>سري</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>سري للغاية</translation>
    </message>
    <message>
        <source>1 waits longest, 100 goes first</source>
        <translation>ينتظر 1 أطول مدة، ويذهب 100 أولًا</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>العنوان (&amp;T):</translation>
    </message>
    <message>
        <source>Pr&amp;iority:</source>
        <translation>الأولوية (&amp;I):</translation>
    </message>
    <message>
        <source>Print &amp;when:</source>
        <translation>وقت الطباعة (&amp;W):</translation>
    </message>
    <message>
        <source>Page &amp;before:</source>
        <translation>صفحة قبل المهمة (&amp;B):</translation>
    </message>
    <message>
        <source>Page &amp;after:</source>
        <translation>صفحة بعد المهمة (&amp;A):</translation>
    </message>
    <message>
        <source>Print when</source>
        <translation>وقت الطباعة</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>الوقت من اليوم</translation>
    </message>
    <message>
        <source>At a time of day</source>
        <translation>في وقت من اليوم</translation>
    </message>
    <message>
        <source>Pages before and after the job are decided on the page &quot;%1&quot;.</source>
        <translation>تُقرَّر الصفحات قبل المهمة وبعدها في الصفحة «⁨%1⁩».</translation>
    </message>
</context>
<context>
    <name>halvern::JobRows</name>
    <message>
        <source>Job</source>
        <translation>المهمة</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>أُرسلت</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>الرقم</translation>
    </message>
</context>
<context>
    <name>halvern::JobsButton</name>
    <message>
        <source>Jobs...</source>
        <translation>المهام...</translation>
    </message>
    <message>
        <source>Your jobs on this printer</source>
        <translation>مهامك على هذه الطابعة</translation>
    </message>
</context>
<context>
    <name>halvern::JobsWindow</name>
    <message>
        <source>Show jobs that have ended</source>
        <translation>عرض المهام المنتهية</translation>
    </message>
    <message>
        <source>Your Jobs on %1</source>
        <translation>مهامك على %1</translation>
    </message>
    <message>
        <source>Your jobs</source>
        <translation>مهامك</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>إلغاء المهمة</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>احتجاز</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>إطلاق</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>طباعة مرة أخرى</translation>
    </message>
    <message>
        <source>Sign In...</source>
        <translation>تسجيل الدخول...</translation>
    </message>
    <message>
        <source>Move To</source>
        <translation>نقل إلى</translation>
    </message>
    <message>
        <source>Asking the print server...</source>
        <translation>جارٍ سؤال خادم الطباعة...</translation>
    </message>
    <message>
        <source>You have no jobs on this printer.</source>
        <translation>ليست لك مهام على هذه الطابعة.</translation>
    </message>
    <message>
        <source>The print server has no other printer</source>
        <translation>ليس في خادم الطباعة طابعة أخرى</translation>
    </message>
</context>
<context>
    <name>halvern::KeepLayoutRow</name>
    <message>
        <source>&amp;Keep</source>
        <translation>احتفاظ (&amp;K)</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Name, to find it again</source>
        <translation>اسم للعثور عليه لاحقًا</translation>
    </message>
    <message>
        <source>Name of the layout</source>
        <translation>اسم التخطيط</translation>
    </message>
</context>
<context>
    <name>halvern::LayoutPage</name>
    <message>
        <source>Rows</source>
        <translation>الصفوف</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>الأعمدة</translation>
    </message>
    <message>
        <source>Width of each photo</source>
        <translation>عرض كل صورة</translation>
    </message>
    <message>
        <source>Height of each photo</source>
        <translation>ارتفاع كل صورة</translation>
    </message>
    <message>
        <source>&amp;Each photo fills its own sheet</source>
        <translation>تملأ كل صورة ورقتها (&amp;E)</translation>
    </message>
    <message>
        <source>Margin of the sheet</source>
        <translation>هامش الورقة</translation>
    </message>
    <message>
        <source>White border</source>
        <translation>إطار أبيض</translation>
    </message>
    <message>
        <source>Thin l&amp;ine</source>
        <translation>خط رفيع (&amp;I)</translation>
    </message>
    <message>
        <source>Copies of this photo</source>
        <translation>نسخ هذه الصورة</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>اقتصاص...</translation>
    </message>
    <message>
        <source>Same Crop for All</source>
        <translation>الاقتصاص نفسه للكل</translation>
    </message>
    <message>
        <source>&amp;Layout:</source>
        <translation>التخطيط (&amp;L):</translation>
    </message>
    <message>
        <source>Photo si&amp;ze:</source>
        <translation>حجم الصورة (&amp;Z):</translation>
    </message>
    <message>
        <source>Pl&amp;ace:</source>
        <translation>الموضع (&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Margin:</source>
        <translation>الهامش (&amp;M):</translation>
    </message>
    <message>
        <source>White &amp;border:</source>
        <translation>إطار أبيض (&amp;B):</translation>
    </message>
    <message>
        <source>&amp;Caption:</source>
        <translation>شرح الصورة (&amp;C):</translation>
    </message>
    <message>
        <source>T&amp;his photo:</source>
        <translation>هذه الصورة (&amp;H):</translation>
    </message>
    <message>
        <source>As my la&amp;yout:</source>
        <translation>كتخطيط خاص بي (&amp;Y):</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>التخطيط</translation>
    </message>
    <message>
        <source>rows of</source>
        <translation>صفوف، في كل صف</translation>
    </message>
    <message>
        <source> copies</source>
        <translation> نسخة</translation>
    </message>
    <message>
        <source>One photo on each page</source>
        <translation>صورة على كل صفحة</translation>
    </message>
    <message>
        <source>Rows and columns</source>
        <translation>صفوف وأعمدة</translation>
    </message>
    <message>
        <source>Photos of one size</source>
        <translation>صور بمقاس واحد</translation>
    </message>
    <message>
        <source>Make the page %1 mm long, as the photos need</source>
        <translation>جعل طول الصفحة %1 مم، بقدر حاجة الصور</translation>
    </message>
    <message>
        <source> copy</source>
        <translation> نسخة</translation>
    </message>
    <message>
        <source>Cu&amp;t marks</source>
        <translation>علامات القص (&amp;T)</translation>
    </message>
</context>
<context>
    <name>halvern::LoginDialog</name>
    <message>
        <source>Send it &amp;all the same</source>
        <translation>إرسال رغم ذلك (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remember it in the keyring</source>
        <translation>تذكّرها في حافظة المفاتيح (&amp;R)</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>الاسم (&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>كلمة المرور (&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Sign In</source>
        <translation>تسجيل الدخول (&amp;S)</translation>
    </message>
</context>
<context>
    <name>halvern::MessageBar</name>
    <message>
        <source>Close the message</source>
        <translation>إغلاق الرسالة</translation>
    </message>
    <message>
        <source>Previous message</source>
        <translation>الرسالة السابقة</translation>
    </message>
    <message>
        <source>Next message</source>
        <translation>الرسالة التالية</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
</context>
<context>
    <name>halvern::Notices</name>
    <message>
        <source>Printing</source>
        <translation>الطباعة</translation>
    </message>
    <message>
        <source>Printing from %1</source>
        <translation>الطباعة من %1</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>إظهار</translation>
    </message>
</context>
<context>
    <name>halvern::OptionDelegate</name>
    <message>
        <source>%1 to %2</source>
        <translation>من %1 إلى %2</translation>
    </message>
    <message>
        <source>also sets %1</source>
        <translation>يضبط أيضًا %1</translation>
    </message>
</context>
<context>
    <name>halvern::OptionFinder</name>
    <message>
        <source>Search options and printers (Ctrl+F)</source>
        <translation>البحث في الخيارات والطابعات (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search options and printers</source>
        <translation>البحث في الخيارات والطابعات</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>النتائج</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>الطابعات</translation>
    </message>
    <message>
        <source>%1 › %2</source>
        <translation>⁨%1⁩ › ⁨%2⁩</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>جارٍ البحث...</translation>
    </message>
    <message>
        <source>Nothing has this name.</source>
        <translation>لا شيء بهذا الاسم.</translation>
    </message>
    <message>
        <source>The first %1 that were found</source>
        <translation>أول ما عُثر عليه: %1</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>النتائج: %1</translation>
    </message>
</context>
<context>
    <name>halvern::OptionTree</name>
    <message>
        <source>Installed in the printer (set by whoever installed it)</source>
        <translation>المثبّت في الطابعة (يضبطه من ثبّتها)</translation>
    </message>
    <message>
        <source>%1 (the printer&apos;s default)</source>
        <translation>⁨%1⁩ (افتراضي الطابعة)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>⁨%1⁩ (⁨%2⁩)</translation>
    </message>
    <message>
        <source>Put back to the printer&apos;s default: %1</source>
        <translation>إعادة إلى افتراضي الطابعة: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Changed from the printer&apos;s default</source>
        <translation>متغيّر عن افتراضي الطابعة</translation>
    </message>
    <message>
        <source>As the printer is set</source>
        <translation>كما ضُبطت الطابعة</translation>
    </message>
</context>
<context>
    <name>halvern::OptionsPage</name>
    <message>
        <source>Show changed only</source>
        <translation>عرض المتغيّر فقط</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>إعادة تعيين الكل</translation>
    </message>
    <message>
        <source>Puts the options of this page back to the printer&apos;s defaults</source>
        <translation>يعيد خيارات هذه الصفحة إلى القيم الافتراضية للطابعة</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>Nothing changed</source>
        <translation>لم يتغير شيء</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>المتغيّر: %1</translation>
    </message>
    <message>
        <source>Put Back to the Printer&apos;s Default</source>
        <translation>إعادة إلى افتراضي الطابعة</translation>
    </message>
</context>
<context>
    <name>halvern::OutputMenu</name>
    <message>
        <source>More</source>
        <translation>المزيد</translation>
    </message>
    <message>
        <source>Print to a &amp;PDF File...</source>
        <translation>طباعة إلى ملف PDF (&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Copy as Command</source>
        <translation>نسخ كأمر (&amp;C)</translation>
    </message>
    <message>
        <source>Print to a PDF File</source>
        <translation>طباعة إلى ملف PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>ملفات PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The command that prints this again is on the clipboard.</source>
        <translation>الأمر الذي يطبع هذا مرة أخرى موجود في الحافظة.</translation>
    </message>
    <message>
        <source>A file is being written still. Write the next one when it is there.</source>
        <translation>ما زال ملف يُكتب. اكتب التالي بعد اكتماله.</translation>
    </message>
    <message>
        <source>The command that prints this again is on the clipboard, without your PIN or password.</source>
        <translation>الأمر الذي يطبع هذا مرة أخرى موجود في الحافظة، بدون رقمك السري أو كلمة مرورك.</translation>
    </message>
    <message>
        <source>%1 is one of the files to print. Choose another name.</source>
        <translation>⁨%1⁩ من الملفات المطلوب طباعتها. اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>That folder goes when this window is closed. Choose another one.</source>
        <translation>يزول هذا المجلد عند إغلاق هذه النافذة. اختر غيره.</translation>
    </message>
</context>
<context>
    <name>halvern::PageRangeRow</name>
    <message>
        <source>Last page &amp;first</source>
        <translation>الصفحة الأخيرة أولًا (&amp;F)</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>الصفحات المطلوب طباعتها</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>الفردية والزوجية</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>الفردية فقط</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>الزوجية فقط</translation>
    </message>
    <message>
        <source>Odd or even pages</source>
        <translation>الصفحات الفردية أو الزوجية</translation>
    </message>
    <message>
        <source>All %1, or for example 1-3, 5-</source>
        <translation>الكل (%1)، أو مثلًا ⁨1-3, 5-⁩</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>الصفحة الحالية</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>التحديد</translation>
    </message>
    <message>
        <source>Which pages</source>
        <translation>أي الصفحات</translation>
    </message>
    <message>
        <source>All, or for example 1-3, 5-</source>
        <translation>الكل، أو مثلًا ⁨1-3, 5-⁩</translation>
    </message>
</context>
<context>
    <name>halvern::PanelDeck</name>
    <message>
        <source>Pages of options</source>
        <translation>صفحات الخيارات</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>الصفحة</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>خيارات أخرى</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>الملخص</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>المعاينة</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>المهمة</translation>
    </message>
    <message>
        <source>About the Photo</source>
        <translation>عن الصورة</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>الطابعة</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>التخطيط</translation>
    </message>
</context>
<context>
    <name>halvern::PaperPage</name>
    <message>
        <source>P&amp;aper size:</source>
        <translation>مقاس الورق (&amp;A):</translation>
    </message>
    <message>
        <source>As the photo</source>
        <translation>كالصورة</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>عمودي</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>أفقي</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>الاتجاه (&amp;I):</translation>
    </message>
    <message>
        <source>Fit the whole photo on the page</source>
        <translation>ملاءمة الصورة كلها مع الصفحة</translation>
    </message>
    <message>
        <source>Fill the page, cut what is over</source>
        <translation>ملء الصفحة وقص الزائد</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>الحجم الفعلي</translation>
    </message>
    <message>
        <source>Photo si&amp;ze:</source>
        <translation>حجم الصورة (&amp;Z):</translation>
    </message>
    <message>
        <source>Search by name or measures</source>
        <translation>البحث بالاسم أو القياسات</translation>
    </message>
    <message>
        <source>&amp;Borderless</source>
        <translation>بلا حواف (&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Two-sided:</source>
        <translation>على الوجهين (&amp;T):</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>الصفحات (&amp;G):</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>مقاس الورق</translation>
    </message>
    <message>
        <source>The printer does not have this paper size both with and without a margin.</source>
        <translation>ليس للطابعة مقاس الورق هذا بهامش وبدونه معًا.</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>التحجيم (&amp;S):</translation>
    </message>
    <message>
        <source>Loaded:</source>
        <translation>المحمّل:</translation>
    </message>
    <message>
        <source>Co&amp;lors:</source>
        <translation>الألوان (&amp;C):</translation>
    </message>
</context>
<context>
    <name>halvern::PaperSizeList</name>
    <message>
        <source>Custom size...</source>
        <translation>مقاس مخصص...</translation>
    </message>
</context>
<context>
    <name>halvern::PdfOutput</name>
    <message>
        <source>The file &quot;%1&quot; could not be written: %2.</source>
        <translation>تعذّرت كتابة الملف «⁨%1⁩»: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no regular file. Name a file to write.</source>
        <translation>ليس «⁨%1⁩» ملفًا عاديًّا. اذكر ملفًا للكتابة.</translation>
    </message>
    <message>
        <source>Cancelled: no file was written.</source>
        <translation>أُلغي: لم يُكتب ملف.</translation>
    </message>
    <message>
        <source>No file was written. %1</source>
        <translation>لم يُكتب ملف. %1</translation>
    </message>
    <message>
        <source>1 page was written to &quot;%1&quot;.</source>
        <translation>كُتبت صفحة واحدة في «⁨%1⁩».</translation>
    </message>
    <message>
        <source>%1 pages were written to &quot;%2&quot;.</source>
        <translation>عدد الصفحات المكتوبة في «⁨%2⁩»: %1.</translation>
    </message>
    <message>
        <source>The computer is too busy to write the file. Close something and try again.</source>
        <translation>الحاسوب أشغل من أن يكتب الملف. أغلق شيئًا وأعد المحاولة.</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoAdding</name>
    <message>
        <source>Add...</source>
        <translation>إضافة...</translation>
    </message>
    <message>
        <source>Add photos; they can be dropped on the window and pasted, too</source>
        <translation>إضافة صور؛ ويمكن أيضًا إفلاتها على النافذة ولصقها</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Add Photos</source>
        <translation>إضافة صور</translation>
    </message>
    <message>
        <source>Choose Photos</source>
        <translation>اختيار الصور</translation>
    </message>
    <message>
        <source>The clipboard holds no photo. Copy a picture, or files of photos, first.</source>
        <translation>ليست في الحافظة صورة. انسخ صورة، أو ملفات صور، أولًا.</translation>
    </message>
    <message>
        <source>The picture cannot be kept in a temporary file. Make room on the disk.</source>
        <translation>تعذّر حفظ الصورة في ملف مؤقت. أفسح مكانًا على القرص.</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoListModel</name>
    <message>
        <source>%1, page %2</source>
        <translation>⁨%1⁩، الصفحة ⁨%2⁩</translation>
    </message>
    <message>
        <source>Photo %1 of %2</source>
        <translation>الصورة %1 من %2</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>نسخة واحدة</translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation>النسخ: %1</translation>
    </message>
    <message>
        <source>not printed</source>
        <translation>لا تُطبع</translation>
    </message>
    <message>
        <source>a part of it is missing</source>
        <translation>جزء منها مفقود</translation>
    </message>
    <message>
        <source>Drag it to another place, or press Alt and an arrow key. Plus and minus change the copies, Space whether it is printed, Delete takes it out, Return crops it. More with a right click.</source>
        <translation>اسحبها إلى موضع آخر، أو اضغط Alt مع أحد مفاتيح الأسهم. الزائد والناقص يغيّران عدد النسخ، والمسافة تحدد هل تُطبع، وDelete يستبعدها، وEnter يقتصّها. والمزيد بالنقر الأيمن.</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoLoader</name>
    <message>
        <source>&quot;%1&quot; cannot be read now: the computer is too busy. Close something and open it again.</source>
        <translation>لا يمكن قراءة «⁨%1⁩» الآن: الحاسوب مشغول جدًّا. أغلق شيئًا وافتحه مرة أخرى.</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoPage</name>
    <message>
        <source>%1 s</source>
        <translation>%1 ث</translation>
    </message>
    <message>
        <source>1/%1 s</source>
        <translation>⁨1/%1⁩ ث</translation>
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
        <translation>%1 مم</translation>
    </message>
    <message>
        <source>Adobe RGB, as the camera notes</source>
        <translation>Adobe RGB، كما تذكر الكاميرا</translation>
    </message>
    <message>
        <source>sRGB, as the file notes</source>
        <translation>sRGB، كما يذكر الملف</translation>
    </message>
    <message>
        <source>Not said; taken as sRGB</source>
        <translation>غير مذكورة؛ تُعدّ sRGB</translation>
    </message>
    <message>
        <source>%1 x %2 pixels (%3 megapixels)</source>
        <translation>⁨%1 x %2⁩ بكسل (%3 ميغابكسل)</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>الملف:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>المجلد:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>النوع:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>المشكلة:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>الحجم:</translation>
    </message>
    <message>
        <source>Colors:</source>
        <translation>الألوان:</translation>
    </message>
    <message>
        <source>Taken:</source>
        <translation>التُقطت:</translation>
    </message>
    <message>
        <source>Camera:</source>
        <translation>الكاميرا:</translation>
    </message>
    <message>
        <source>Lens:</source>
        <translation>العدسة:</translation>
    </message>
    <message>
        <source>Exposure:</source>
        <translation>التعريض:</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>العنوان:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>الوصف:</translation>
    </message>
    <message>
        <source>Rating:</source>
        <translation>التقييم:</translation>
    </message>
    <message>
        <source>CMYK without a profile; taken as ideal inks</source>
        <translation>CMYK بلا ملف تعريف؛ تُعدّ أحبارًا مثالية</translation>
    </message>
    <message>
        <source>Gray without a profile; taken as sRGB</source>
        <translation>رمادي بلا ملف تعريف؛ يُعدّ sRGB</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoPlaceRow</name>
    <message>
        <source>Away from the corner:</source>
        <translation>البعد عن الزاوية:</translation>
    </message>
    <message>
        <source>From the left</source>
        <translation>من اليسار</translation>
    </message>
    <message>
        <source>From the top</source>
        <translation>من الأعلى</translation>
    </message>
    <message>
        <source>Without it the photo is in the middle of the sheet</source>
        <translation>بدونه تكون الصورة في وسط الورقة</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoSizeRow</name>
    <message>
        <source>Width of the photo</source>
        <translation>عرض الصورة</translation>
    </message>
    <message>
        <source>Height of the photo</source>
        <translation>ارتفاع الصورة</translation>
    </message>
    <message>
        <source>As large as the page</source>
        <translation>بحجم الصفحة</translation>
    </message>
    <message>
        <source>In</source>
        <translation>ضمن</translation>
    </message>
    <message>
        <source>Of its own size</source>
        <translation>بحجمها الخاص</translation>
    </message>
    <message>
        <source>Photo size</source>
        <translation>حجم الصورة</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Percent of its own size</source>
        <translation>نسبة مئوية من حجمها الخاص</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoStrip</name>
    <message>
        <source>Photos</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>اقتصاص...</translation>
    </message>
    <message>
        <source>Same Crop for All</source>
        <translation>الاقتصاص نفسه للكل</translation>
    </message>
    <message>
        <source>One More Copy</source>
        <translation>نسخة إضافية</translation>
    </message>
    <message>
        <source>One Copy Less</source>
        <translation>نسخة أقل</translation>
    </message>
    <message>
        <source>Copies...</source>
        <translation>النسخ...</translation>
    </message>
    <message>
        <source>Print, or Not</source>
        <translation>طباعة أو عدمها</translation>
    </message>
    <message>
        <source>Print Only These</source>
        <translation>طباعة هذه فقط</translation>
    </message>
    <message>
        <source>Print All Photos</source>
        <translation>طباعة كل الصور</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>استبعاد</translation>
    </message>
    <message>
        <source>Move Earlier</source>
        <translation>نقل إلى الأمام</translation>
    </message>
    <message>
        <source>Move Later</source>
        <translation>نقل إلى الخلف</translation>
    </message>
    <message>
        <source>Move to the Start</source>
        <translation>نقل إلى البداية</translation>
    </message>
    <message>
        <source>Move to the End</source>
        <translation>نقل إلى النهاية</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>المحدد: %1 من %2</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>الصور: %1</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>النسخ</translation>
    </message>
    <message>
        <source>Copies of this photo:</source>
        <translation>نسخ هذه الصورة:</translation>
    </message>
    <message>
        <source>Copies of each of the %1 photos:</source>
        <translation>نسخ كل صورة من الصور المحددة (%1):</translation>
    </message>
</context>
<context>
    <name>halvern::PresetBar</name>
    <message>
        <source>From your saved options (lpoptions)</source>
        <translation>من خياراتك المحفوظة (lpoptions)</translation>
    </message>
    <message>
        <source>Made for a printer of the same model</source>
        <translation>صُنع لطابعة من الطراز نفسه</translation>
    </message>
    <message>
        <source>Nothing was printed here yet</source>
        <translation>لم يُطبع شيء هنا بعد</translation>
    </message>
    <message>
        <source>Presets (*.json)</source>
        <translation>الإعدادات المسبقة (*.json)</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>الإعداد المسبق</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Save, rename and more</source>
        <translation>حفظ وتغيير اسم وغير ذلك</translation>
    </message>
    <message>
        <source>Read from the file, and not applied yet: %1</source>
        <translation>قُرئ من الملف ولم يُطبَّق بعد: %1</translation>
    </message>
    <message>
        <source>%1 – changed</source>
        <translation>⁨%1⁩ – متغيّر</translation>
    </message>
    <message>
        <source>&amp;Save as New Preset...</source>
        <translation>حفظ كإعداد مسبق جديد (&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Import from File...</source>
        <translation>استيراد من ملف (&amp;I)...</translation>
    </message>
    <message>
        <source>Export &amp;All to File...</source>
        <translation>تصدير الكل إلى ملف (&amp;A)...</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>الإعدادات المسبقة</translation>
    </message>
    <message>
        <source>&amp;Update &quot;%1&quot;</source>
        <translation>تحديث «⁨%1⁩» (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation>تحديث (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Rename &quot;%1&quot;...</source>
        <translation>تغيير اسم «⁨%1⁩» (&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>تغيير الاسم (&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Delete &quot;%1&quot;</source>
        <translation>حذف «⁨%1⁩» (&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>حذف (&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Export &quot;%1&quot; to File...</source>
        <translation>تصدير «⁨%1⁩» إلى ملف (&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Export to File...</source>
        <translation>تصدير إلى ملف (&amp;E)...</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; was deleted.</source>
        <translation>حُذف الإعداد المسبق «⁨%1⁩».</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>تراجع (&amp;U)</translation>
    </message>
    <message>
        <source>Import Presets</source>
        <translation>استيراد إعدادات مسبقة</translation>
    </message>
    <message>
        <source>Export Presets</source>
        <translation>تصدير إعدادات مسبقة</translation>
    </message>
</context>
<context>
    <name>halvern::PresetNameDialog</name>
    <message>
        <source>Save Preset</source>
        <translation>حفظ إعداد مسبق</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>تغيير اسم إعداد مسبق</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>الاسم (&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>حفظ (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>تغيير الاسم (&amp;R)</translation>
    </message>
    <message>
        <source>With the number of &amp;copies (%1)</source>
        <translation>مع عدد النسخ (%1) (&amp;C)</translation>
    </message>
    <message>
        <source>With the &amp;pages to print</source>
        <translation>مع الصفحات المطلوب طباعتها (&amp;P)</translation>
    </message>
    <message>
        <source>With the &amp;text on the back</source>
        <translation>مع النص على الظهر (&amp;T)</translation>
    </message>
    <message>
        <source>This name is always there. Choose another one.</source>
        <translation>هذا الاسم موجود دائمًا. اختر غيره.</translation>
    </message>
    <message>
        <source>There is a preset of this name. It will be replaced.</source>
        <translation>يوجد إعداد مسبق بهذا الاسم. سيُستبدل.</translation>
    </message>
    <message>
        <source>There is a preset of this name. Choose another one.</source>
        <translation>يوجد إعداد مسبق بهذا الاسم. اختر غيره.</translation>
    </message>
</context>
<context>
    <name>halvern::Presets</name>
    <message>
        <source>%1 (from %2)</source>
        <translation>%1 (من %2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no preset &quot;%2&quot;.</source>
        <translation>ليس للطابعة «⁨%1⁩» إعداد مسبق «⁨%2⁩».</translation>
    </message>
    <message>
        <source>It has: %1.</source>
        <translation>لديها: %1.</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>هل تقصد %1؟</translation>
    </message>
</context>
<context>
    <name>halvern::PreviewSide</name>
    <message>
        <source>Previous photo</source>
        <translation>الصورة السابقة</translation>
    </message>
    <message>
        <source>Next photo</source>
        <translation>الصورة التالية</translation>
    </message>
    <message>
        <source>Reading the photo...</source>
        <translation>جارٍ قراءة الصورة...</translation>
    </message>
    <message>
        <source>There is no photo to print.</source>
        <translation>لا توجد صورة للطباعة.</translation>
    </message>
    <message>
        <source>No page is chosen.</source>
        <translation>لم تُختر صفحة.</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <translation>⁨%1⁩، الصفحة ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>(front)</source>
        <translation>(الوجه)</translation>
    </message>
    <message>
        <source>(back)</source>
        <translation>(الظهر)</translation>
    </message>
    <message>
        <source>Show the photos in a row, or not</source>
        <translation>إظهار الصور في صف أو إخفاؤها</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>لا تُطبع</translation>
    </message>
</context>
<context>
    <name>halvern::PreviewWidget</name>
    <message>
        <source>A part of this photo is missing</source>
        <translation>جزء من هذه الصورة ناقص</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>⁨%1 x %2⁩ مم</translation>
    </message>
    <message>
        <source>%1 × %2 in</source>
        <translation>⁨%1 x %2⁩ بوصة</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>المعاينة</translation>
    </message>
    <message>
        <source>Drag the photo to choose what is cut away</source>
        <translation>اسحب الصورة لتختار ما يُقص منها</translation>
    </message>
    <message>
        <source>part of the photo is cut away</source>
        <translation>يُقص جزء من الصورة</translation>
    </message>
    <message>
        <source>Show at 1:1</source>
        <translation>عرض بنسبة ⁨1:1⁩</translation>
    </message>
    <message>
        <source>Show a screen pixel for each printer dot (double-click the photo, or press Z in the preview)</source>
        <translation>عرض بكسل شاشة لكل نقطة طابعة (انقر الصورة مرتين، أو اضغط Z في المعاينة)</translation>
    </message>
    <message>
        <source>1:1, a screen pixel for each printer dot (%1 dpi)</source>
        <translation>⁨1:1⁩، بكسل شاشة لكل نقطة طابعة (%1 نقطة في البوصة)</translation>
    </message>
    <message>
        <source>The printer&apos;s adjustments, approximated on the screen</source>
        <translation>ضبط ألوان الطابعة، تقريبًا على الشاشة</translation>
    </message>
    <message>
        <source>Sharpening shows at 1:1</source>
        <translation>تظهر زيادة الحدة بنسبة ⁨1:1⁩</translation>
    </message>
    <message>
        <source>Reading the photo...</source>
        <translation>جارٍ قراءة الصورة...</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>الظهر</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>اقتصاص</translation>
    </message>
    <message>
        <source>Choose the part of the photo that is printed (press C in the preview)</source>
        <translation>اختيار الجزء المطبوع من الصورة (اضغط C في المعاينة)</translation>
    </message>
    <message>
        <source>Show what is printed on the back of the picture</source>
        <translation>عرض ما يُطبع على ظهر الصورة</translation>
    </message>
    <message>
        <source>The back of the picture, as the printer writes on it</source>
        <translation>ظهر الصورة، كما تكتب الطابعة عليه</translation>
    </message>
    <message>
        <source>the edges are cut away</source>
        <translation>تُقصّ الحواف</translation>
    </message>
    <message>
        <source>The picture reaches %1 mm beyond each edge of the paper, so that nothing stays white: what is marked along the edges is cut away</source>
        <translation>تمتد الصورة %1 مم خارج كل حافة من حواف الورق كي لا يبقى شيء أبيض: ما هو معلّم على الحواف يُقصّ</translation>
    </message>
</context>
<context>
    <name>halvern::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>الطباعة</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>الطابعة (&amp;R):</translation>
    </message>
    <message>
        <source>C&amp;opies:</source>
        <translation>النسخ (&amp;O):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>طباعة (&amp;P)</translation>
    </message>
    <message>
        <source>Looking for printers...</source>
        <translation>جارٍ البحث عن طابعات...</translation>
    </message>
    <message>
        <source>The print server has no printers. Add one in the system&apos;s settings.</source>
        <translation>ليس في خادم الطباعة طابعات. أضف واحدة من إعدادات النظام.</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot;. Choose another one.</source>
        <translation>ليس في خادم الطباعة طابعة «⁨%1⁩». اختر غيرها.</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>طباعة %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>To make that possible, this was changed too: %1</source>
        <translation>ليصبح ذلك ممكنًا، تغيّر هذا أيضًا: %1</translation>
    </message>
    <message>
        <source>To go with what the printer has, this was changed: %1</source>
        <translation>ليتلاءم مع ما في الطابعة، تغيّر هذا: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>تراجع (&amp;U)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Preparing the pages...</source>
        <translation>جارٍ تجهيز الصفحات...</translation>
    </message>
    <message>
        <source>Job %1 was sent to &quot;%2&quot;.</source>
        <translation>أُرسلت المهمة %1 إلى «⁨%2⁩».</translation>
    </message>
    <message>
        <source>Choose a printer and a paper size, look at the preview, and press Print. The list on the left of the options has the printer&apos;s own pages.</source>
        <translation>اختر طابعة ومقاس ورق، وانظر إلى المعاينة، ثم اضغط «طباعة». صفحات الطابعة الخاصة في القائمة بجانب الخيارات.</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>جارٍ الإلغاء...</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>إلغاء المهمة</translation>
    </message>
    <message>
        <source>Asking the print server to cancel job %1...</source>
        <translation>جارٍ الطلب من خادم الطباعة إلغاء المهمة %1...</translation>
    </message>
    <message>
        <source>No answer from the print server.</source>
        <translation>لا جواب من خادم الطباعة.</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>ترتيب النسخ</translation>
    </message>
    <message>
        <source>Whole sets one after the other: 1, 2, 3, 1, 2, 3</source>
        <translation>مجموعات كاملة واحدة بعد أخرى: ⁨1, 2, 3, 1, 2, 3⁩</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>استخدام %1</translation>
    </message>
    <message>
        <source>The printer cannot do what was chosen, so this stays: %1</source>
        <translation>لا تستطيع الطابعة ما اختير، فبقي هذا: %1</translation>
    </message>
    <message>
        <source>Search by name, place or model</source>
        <translation>البحث بالاسم أو المكان أو الطراز</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>الطابعة</translation>
    </message>
    <message>
        <source>1 option was put back to the printer&apos;s default.</source>
        <translation>أُعيد خيار واحد إلى افتراضي الطابعة.</translation>
    </message>
    <message>
        <source>%1 options were put back to the printer&apos;s defaults.</source>
        <translation>عدد الخيارات التي أُعيدت إلى افتراضي الطابعة: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was applied.</source>
        <translation>طُبّق «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Writing the file...</source>
        <translation>جارٍ كتابة الملف...</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>الإعداد المسبق:</translation>
    </message>
    <message>
        <source>An application</source>
        <translation>تطبيق</translation>
    </message>
    <message>
        <source>The document is printed as it came. Its pages cannot be shown here.</source>
        <translation>يُطبع المستند كما جاء. لا يمكن عرض صفحاته هنا.</translation>
    </message>
    <message>
        <source>Print - %1</source>
        <translation>طباعة - %1</translation>
    </message>
    <message>
        <source>The application makes its pages afterwards, for this sheet.</source>
        <translation>يصنع التطبيق صفحاته بعد ذلك، لهذه الورقة.</translation>
    </message>
    <message>
        <source>Sign &amp;In...</source>
        <translation>تسجيل الدخول (&amp;N)...</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot; any more. It was last seen on %2. Is it switched on, and on this network?</source>
        <translation>لم تعد الطابعة «⁨%1⁩» على خادم الطباعة. رُئيت آخر مرة في %2. هل هي مشغَّلة، وعلى هذه الشبكة؟</translation>
    </message>
</context>
<context>
    <name>halvern::PrintRun</name>
    <message>
        <source>Cancelled: nothing was printed.</source>
        <translation>أُلغيت: لم يُطبع شيء.</translation>
    </message>
    <message>
        <source>Nothing was printed. %1</source>
        <translation>لم يُطبع شيء. %1</translation>
    </message>
    <message>
        <source>The print server does not answer. Job %1 is cancelled as soon as it does, if this window is still open.</source>
        <translation>لا يجيب خادم الطباعة. تُلغى المهمة %1 حالما يجيب، إن بقيت هذه النافذة مفتوحة.</translation>
    </message>
    <message>
        <source>Job %1 was sent to &quot;%2&quot;, but the print server has not answered for %3 seconds: whether it was printed is not known. Look at the printer before you print again.</source>
        <translation>أُرسلت المهمة %1 إلى «⁨%2⁩»، لكن خادم الطباعة لم يجب منذ عدد ثوانٍ هو %3: لا يُعرف هل طُبعت. انظر إلى الطابعة قبل أن تطبع مرة أخرى.</translation>
    </message>
    <message>
        <source>The document cannot be read any more: %1. Print it once more.</source>
        <translation>لم تعد قراءة المستند ممكنة: %1. اطبعه مرة أخرى.</translation>
    </message>
    <message>
        <source>%1 photos went out in %2 jobs; the others were not sent. %3</source>
        <translation>عدد الصور المرسلة %1 في مهام عددها %2؛ ولم تُرسَل الأخرى. %3</translation>
    </message>
    <message>
        <source>%1 photos were printed in %2 jobs, %3 to %4.</source>
        <translation>عدد الصور المطبوعة %1 في مهام عددها %2، من %3 إلى %4.</translation>
    </message>
    <message>
        <source>The computer is too busy to send it. Close something and try again.</source>
        <translation>الحاسوب أشغل من أن يرسلها. أغلق شيئًا وأعد المحاولة.</translation>
    </message>
    <message>
        <source>Cancelled. Jobs that were printed before: %1.</source>
        <translation>أُلغي. المهام التي طُبعت من قبل: %1.</translation>
    </message>
    <message>
        <source>Stopped. These jobs are on the queue &quot;%1&quot; and stay there: %2.</source>
        <translation>توقف. هذه المهام على قائمة الانتظار «⁨%1⁩» وتبقى هناك: %2.</translation>
    </message>
    <message>
        <source>Look at the printer before you print again.</source>
        <translation>انظر إلى الطابعة قبل أن تطبع مرة أخرى.</translation>
    </message>
    <message>
        <source>Cancelled. Sheets that were printed before: %1.</source>
        <translation>أُلغيت. الأوراق التي طُبعت قبل ذلك: %1.</translation>
    </message>
</context>
<context>
    <name>halvern::PrintService</name>
    <message>
        <source>There is no session bus: %1.</source>
        <translation>لا يوجد ناقل جلسة: %1.</translation>
    </message>
    <message>
        <source>Another halvern-print-portal runs in this session already.</source>
        <translation>يعمل halvern-print-portal آخر في هذه الجلسة بالفعل.</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterChoice</name>
    <message>
        <source>Your default printer &quot;%1&quot; is none of the print server&apos;s. &quot;%2&quot; was chosen instead.</source>
        <translation>طابعتك الافتراضية «⁨%1⁩» ليست من طابعات خادم الطباعة. اختيرت «⁨%2⁩» بدلًا منها.</translation>
    </message>
    <message>
        <source>The application remembers a printer &quot;%1&quot; that is none of the print server&apos;s. &quot;%2&quot; was chosen instead.</source>
        <translation>يتذكّر التطبيق طابعة «⁨%1⁩» ليست من طابعات خادم الطباعة. اختيرت «⁨%2⁩» بدلًا منها.</translation>
    </message>
    <message>
        <source>There is not enough memory for the options of &quot;%1&quot;. Close something, and choose the printer again.</source>
        <translation>لا تكفي الذاكرة لخيارات «⁨%1⁩». أغلق شيئًا ثم اختر الطابعة من جديد.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server. Its options were read again.</source>
        <translation>أُعيد إعداد «⁨%1⁩» على خادم الطباعة، وأُعيدت قراءة خياراتها.</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterPage</name>
    <message>
        <source>State:</source>
        <translation>الحالة:</translation>
    </message>
    <message>
        <source>What to do:</source>
        <translation>المطلوب:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>منذ:</translation>
    </message>
    <message>
        <source>Jobs ahead:</source>
        <translation>مهام قبلك:</translation>
    </message>
    <message>
        <source>Printers in it:</source>
        <translation>الطابعات فيها:</translation>
    </message>
    <message>
        <source>Supplies:</source>
        <translation>المستلزمات:</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>⁨%1⁩ (⁨%2⁩)</translation>
    </message>
    <message>
        <source>not on the print server</source>
        <translation>ليست على خادم الطباعة</translation>
    </message>
    <message>
        <source>Nothing is known of it yet.</source>
        <translation>لا يُعرف عنها شيء بعد.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>The printer tells more of itself than can be shown here.</source>
        <translation>تقول الطابعة عن نفسها أكثر مما يمكن عرضه هنا.</translation>
    </message>
    <message>
        <source>The printer does not say what is left of its ink or toner.</source>
        <translation>لا تقول الطابعة ما بقي من حبرها أو مسحوقها.</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterRows</name>
    <message>
        <source>Used last</source>
        <translation>المستخدم أخيرًا</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>عُثر عليها في الشبكة</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>الطابعات</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>⁨%1⁩: ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>halvern::RunBar</name>
    <message>
        <source>Progress of the print job</source>
        <translation>تقدّم مهمة الطباعة</translation>
    </message>
    <message>
        <source>Resume Printer</source>
        <translation>استئناف الطابعة</translation>
    </message>
    <message>
        <source>Release Job</source>
        <translation>إطلاق المهمة</translation>
    </message>
    <message>
        <source>Print Job Again</source>
        <translation>طباعة المهمة مرة أخرى</translation>
    </message>
    <message>
        <source>✓ as shown</source>
        <translation>✓ كما هو معروض</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
</context>
<context>
    <name>halvern::SearchPopup</name>
    <message>
        <source>Nothing here is called &quot;%1&quot;.</source>
        <translation>لا شيء هنا اسمه «⁨%1⁩».</translation>
    </message>
</context>
<context>
    <name>halvern::SentJob</name>
    <message>
        <source>The document was not printed: the session ended before the print server had all of it. Print it once more.</source>
        <translation>لم يُطبع المستند: انتهت الجلسة قبل أن يصل كاملًا إلى خادم الطباعة. اطبعه مرة أخرى.</translation>
    </message>
    <message>
        <source>Sign in for it in the list of jobs: &quot;Jobs...&quot; in the print dialog.</source>
        <translation>سجّل الدخول من أجلها في قائمة المهام: «المهام...» في مربع حوار الطباعة.</translation>
    </message>
</context>
<context>
    <name>halvern::SessionPresets</name>
    <message>
        <source>A saved setting was left out. %1</source>
        <translation>استُبعد إعداد محفوظ. %1</translation>
    </message>
</context>
<context>
    <name>halvern::SummaryPage</name>
    <message>
        <source>Fit</source>
        <translation>ملاءمة</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>ملء</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>الحجم الفعلي</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>الطابعة</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>مقاس الورق</translation>
    </message>
    <message>
        <source>Photo size</source>
        <translation>حجم الصورة</translation>
    </message>
    <message>
        <source>Printed area</source>
        <translation>المساحة المطبوعة</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>النسخ</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>خيارات أخرى</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>Off: %1</source>
        <translation>متوقف: %1</translation>
    </message>
    <message>
        <source>All other settings</source>
        <translation>كل الإعدادات الأخرى</translation>
    </message>
    <message>
        <source>The options as they are sent</source>
        <translation>الخيارات كما تُرسَل</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>نسخ (&amp;Y)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>عنوان المهمة</translation>
    </message>
    <message>
        <source>printer&apos;s default: %1</source>
        <translation>افتراضي الطابعة: %1</translation>
    </message>
    <message>
        <source>%1 more are in the list of all other settings.</source>
        <translation>عدد ما سواها في قائمة كل الإعدادات الأخرى: %1.</translation>
    </message>
</context>
<context>
    <name>halvern::SupplyBars</name>
    <message>
        <source>%1: %2</source>
        <translation>⁨%1⁩: ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>halvern::TrayRows</name>
    <message>
        <source>%1: %2</source>
        <translation>⁨%1⁩: ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>RTL</translation>
    </message>
</context>
</TS>
