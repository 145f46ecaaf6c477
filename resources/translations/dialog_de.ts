<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>The display cannot be used: %1. Print with --no-dialog, or set DISPLAY to one that works.</source>
        <translation>Der Bildschirm ist nicht benutzbar: %1. Drucken Sie mit --no-dialog oder setzen Sie DISPLAY auf einen, der geht.</translation>
    </message>
    <message>
        <source>There is no display to show the dialog on. Print with --no-dialog, or set DISPLAY.</source>
        <translation>Es gibt keinen Bildschirm für den Dialog. Drucken Sie mit --no-dialog oder setzen Sie DISPLAY.</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drucken</translation>
    </message>
</context>
<context>
    <name>AuthInfo</name>
    <message>
        <source>The printer &quot;%1&quot; wants a name and a password, and was given none. Print again and sign in, or ask whoever looks after it.</source>
        <translation>Der Drucker „%1“ verlangt einen Namen und ein Passwort und hat keine bekommen. Drucken Sie erneut und melden Sie sich an, oder fragen Sie, wer ihn verwaltet.</translation>
    </message>
</context>
<context>
    <name>BackLines</name>
    <message>
        <source>Backprint line %1 cannot hold %2, which was left out. It takes the characters of an English keyboard except &quot;~&quot;, and &quot;©&quot;.</source>
        <translation>Zeile %1 der Rückseite kann %2 nicht enthalten; das wurde weggelassen. Möglich sind die Zeichen einer englischen Tastatur außer „~“ sowie „©“.</translation>
    </message>
    <message>
        <source>Backprint line %1 is longer than %2 characters; what comes after them was left out (%3).</source>
        <translation>Zeile %1 der Rückseite ist länger als %2 Zeichen; was danach kommt, wurde weggelassen (%3).</translation>
    </message>
</context>
<context>
    <name>Caption</name>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <source>Year (4 digits)</source>
        <translation>Jahr (4 Ziffern)</translation>
    </message>
    <message>
        <source>Year (2 digits)</source>
        <translation>Jahr (2 Ziffern)</translation>
    </message>
    <message>
        <source>Month (2 digits)</source>
        <translation>Monat (2 Ziffern)</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Day (2 digits)</source>
        <translation>Tag (2 Ziffern)</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
</context>
<context>
    <name>ColourManagement</name>
    <message>
        <source>Perceptual</source>
        <translation>Perzeptiv</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Relativ farbmetrisch</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Absolut farbmetrisch</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The printer is told not to convert them again (%1).</source>
        <translation>Dem Drucker wird gesagt, dass er sie nicht noch einmal umwandeln soll (%1).</translation>
    </message>
    <message>
        <source>No color profile of this printer is known. Choose one, or let the printer manage colors.</source>
        <translation>Für diesen Drucker ist kein Farbprofil bekannt. Wählen Sie eines oder lassen Sie den Drucker die Farben verwalten.</translation>
    </message>
    <message>
        <source>colors for &quot;%1&quot;</source>
        <translation>Farben für „%1“</translation>
    </message>
    <message>
        <source>The printer converts the colors: each photo goes to it in %1. No soft proof: only the printer knows what it makes of them.</source>
        <translation>Der Drucker wandelt die Farben um: Jedes Foto geht in %1 an ihn. Kein Softproof: Nur der Drucker weiß, was er daraus macht.</translation>
    </message>
    <message>
        <source>This program converts the colors, from each photo&apos;s own to &quot;%1&quot;.</source>
        <translation>Dieses Programm wandelt die Farben um, aus den eigenen jedes Fotos in „%1“.</translation>
    </message>
    <message>
        <source>See that the printer&apos;s own color correction is off.</source>
        <translation>Achten Sie darauf, dass die eigene Farbkorrektur des Druckers aus ist.</translation>
    </message>
    <message>
        <source>Only the printer knows what it makes of the colors. Let this program manage them, for a profile, to see a soft proof.</source>
        <translation>Nur der Drucker weiß, was er aus den Farben macht. Lassen Sie dieses Programm sie für ein Profil verwalten, um einen Softproof zu sehen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say what its colors look like: with it there is no soft proof.</source>
        <translation>„%1“ gibt nicht an, wie seine Farben aussehen: Damit gibt es keinen Softproof.</translation>
    </message>
    <message>
        <source>Soft proof with paper white</source>
        <translation>Softproof mit Papierweiß</translation>
    </message>
    <message>
        <source>Soft proof</source>
        <translation>Softproof</translation>
    </message>
    <message>
        <source>pink cannot be printed</source>
        <translation>Rosa ist nicht druckbar</translation>
    </message>
    <message>
        <source>The color profile &quot;%1&quot; is being read. Wait a moment.</source>
        <translation>Das Farbprofil „%1“ wird gelesen. Warten Sie einen Moment.</translation>
    </message>
    <message>
        <source>The color profile &quot;%1&quot; cannot be read. Choose another one, or let the printer manage colors.</source>
        <translation>Das Farbprofil „%1“ lässt sich nicht lesen. Wählen Sie ein anderes oder lassen Sie den Drucker die Farben verwalten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color profile of a printer. Choose another one, or let the printer manage colors.</source>
        <translation>„%1“ ist kein Farbprofil eines Druckers. Wählen Sie ein anderes oder lassen Sie den Drucker die Farben verwalten.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print photos of which a part is missing, too, without asking.</source>
        <translation>Auch Fotos, von denen ein Teil fehlt, ohne Rückfrage drucken.</translation>
    </message>
    <message>
        <source>Print on this queue.</source>
        <translation>Auf dieser Warteschlange drucken.</translation>
    </message>
    <message>
        <source>Where no file is named, ask for photos in a window first.</source>
        <translation>Wenn keine Datei genannt ist, zuerst in einem Fenster nach den Fotos fragen.</translation>
    </message>
    <message>
        <source>Set a printer option. Can be given several times.</source>
        <translation>Eine Druckeroption setzen. Mehrfach möglich.</translation>
    </message>
    <message>
        <source>Print this many copies, 1 to %1.</source>
        <translation>So viele Exemplare drucken, 1 bis %1.</translation>
    </message>
    <message>
        <source>Print at once, and wait until the job has ended.</source>
        <translation>Sofort drucken und warten, bis der Auftrag beendet ist.</translation>
    </message>
    <message>
        <source>Write the options that would be sent, one KEY=VALUE a line, and send nothing.</source>
        <translation>Die Optionen ausgeben, die gesendet würden, je Zeile KEY=VALUE, und nichts senden.</translation>
    </message>
    <message>
        <source>See &quot;halvern-print --help&quot;.</source>
        <translation>Siehe „halvern-print --help“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no option: write KEY=VALUE, for example PageSize=A4.</source>
        <translation>„%1“ ist keine Option: Schreiben Sie KEY=VALUE, zum Beispiel PageSize=A4.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of copies: write a number from 1 to %2.</source>
        <translation>„%1“ ist keine Anzahl: Schreiben Sie eine Zahl von 1 bis %2.</translation>
    </message>
    <message>
        <source>The queue&apos;s name is empty. &quot;lpstat -e&quot; lists the queues.</source>
        <translation>Der Name der Warteschlange ist leer. „lpstat -e“ zeigt die Warteschlangen.</translation>
    </message>
    <message>
        <source>Prints photos, with a preview and the printer&apos;s own pages of options.</source>
        <translation>Druckt Fotos, mit Vorschau und den eigenen Optionsseiten des Druckers.</translation>
    </message>
    <message>
        <source>Print this text on the back of each picture. Can be given twice, for a first and a second line. A line holds 120 characters and placeholders such as [YYYY], which the printer replaces.</source>
        <translation>Diesen Text auf die Rückseite jedes Bildes drucken. Zweimal möglich, für eine erste und eine zweite Zeile. Eine Zeile fasst 120 Zeichen und Platzhalter wie [YYYY], die der Drucker ersetzt.</translation>
    </message>
    <message>
        <source>The back of a picture takes %1 lines: give --backprint once or twice.</source>
        <translation>Auf die Rückseite eines Bildes passen %1 Zeilen: Geben Sie --backprint ein- oder zweimal an.</translation>
    </message>
    <message>
        <source>Write what the printer has loaded, and how old that knowledge is.</source>
        <translation>Ausgeben, was im Drucker eingelegt ist und wie alt dieses Wissen ist.</translation>
    </message>
    <message>
        <source>With --list-papers: ask the printer first.</source>
        <translation>Mit --list-papers: zuerst den Drucker fragen.</translation>
    </message>
    <message>
        <source>--refresh goes with --list-papers.</source>
        <translation>--refresh gehört zu --list-papers.</translation>
    </message>
    <message>
        <source>With --no-dialog: give a print server that goes silent after the job was sent this long; 60 seconds without it.</source>
        <translation>Mit --no-dialog: so lange auf einen Druckserver warten, der nach dem Senden des Auftrags verstummt; sonst 60 Sekunden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time to wait: write a number of seconds from 1 to %2.</source>
        <translation>„%1“ ist keine Wartezeit: Schreiben Sie eine Zahl von Sekunden von 1 bis %2.</translation>
    </message>
    <message>
        <source>Print these pages only, for example 1-3,7,12-.</source>
        <translation>Nur diese Seiten drucken, zum Beispiel 1-3,7,12-.</translation>
    </message>
    <message>
        <source>Print the last page first.</source>
        <translation>Die letzte Seite zuerst drucken.</translation>
    </message>
    <message>
        <source>Call the job this; without it, it is called like the first file.</source>
        <translation>Den Auftrag so nennen; sonst heißt er wie die erste Datei.</translation>
    </message>
    <message>
        <source>Write the pages, as they would be sent, into this PDF file, and send nothing.</source>
        <translation>Die Seiten, wie sie gesendet würden, in diese PDF-Datei schreiben und nichts senden.</translation>
    </message>
    <message>
        <source>With --no-dialog: read the job back from the print server, and say what was added or changed.</source>
        <translation>Mit --no-dialog: den Auftrag vom Druckserver zurücklesen und sagen, was hinzugefügt oder geändert wurde.</translation>
    </message>
    <message>
        <source>Start with this preset of the printer&apos;s. Without it the dialog starts with what you printed with last, and --no-dialog with your saved options.</source>
        <translation>Mit dieser Voreinstellung des Druckers beginnen. Ohne sie beginnt der Dialog mit dem, womit Sie zuletzt gedruckt haben, und --no-dialog mit Ihren gespeicherten Optionen.</translation>
    </message>
    <message>
        <source>Keep the queue&apos;s saved options, --preset and the options given here as a preset, and print nothing. Copies, pages and the text on the back are in it if they are given.</source>
        <translation>Die gespeicherten Optionen der Warteschlange, --preset und die hier angegebenen Optionen als Voreinstellung speichern und nichts drucken. Exemplare, Seiten und der Text auf der Rückseite gehören dazu, wenn sie angegeben sind.</translation>
    </message>
    <message>
        <source>Write the print server&apos;s queues, a line each.</source>
        <translation>Die Warteschlangen des Druckservers ausgeben, je Zeile eine.</translation>
    </message>
    <message>
        <source>Write the printer&apos;s options with their current and default value and their choices, a line each.</source>
        <translation>Die Optionen des Druckers mit aktuellem Wert, Vorgabe und Auswahlmöglichkeiten ausgeben, je Zeile eine.</translation>
    </message>
    <message>
        <source>Write the names of the printer&apos;s presets, a line each.</source>
        <translation>Die Namen der Voreinstellungen des Druckers ausgeben, je Zeile einen.</translation>
    </message>
    <message>
        <source>The name of the file to write is empty.</source>
        <translation>Der Name der zu schreibenden Datei ist leer.</translation>
    </message>
    <message>
        <source>--output writes a file, and does not go with --dry-run.</source>
        <translation>--output schreibt eine Datei und passt nicht zu --dry-run.</translation>
    </message>
    <message>
        <source>--verify goes with --no-dialog, and with nothing that sends no job.</source>
        <translation>--verify gehört zu --no-dialog und passt zu nichts, was keinen Auftrag sendet.</translation>
    </message>
    <message>
        <source>--%1 prints no files: leave out the files and the options for printing.</source>
        <translation>--%1 druckt keine Dateien: Lassen Sie die Dateien und die Optionen zum Drucken weg.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a preset that is always there. Choose another name.</source>
        <translation>„%1“ ist eine Voreinstellung, die es immer gibt. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a preset: write 1 to %2 characters.</source>
        <translation>„%1“ ist kein Name für eine Voreinstellung: Schreiben Sie 1 bis %2 Zeichen.</translation>
    </message>
    <message>
        <source>Turn the page: portrait or landscape; without it, as the photo.</source>
        <translation>Die Ausrichtung der Seite: portrait oder landscape; sonst wie das Foto.</translation>
    </message>
    <message>
        <source>Send several jobs in order, with at most this many photos each; without it, one job.</source>
        <translation>Mehrere Aufträge der Reihe nach senden, mit höchstens so vielen Fotos je Auftrag; sonst einen Auftrag.</translation>
    </message>
    <message>
        <source>Show the dialog above another program&apos;s window: x11: and the window&apos;s number in hexadecimal digits.</source>
        <translation>Den Dialog über dem Fenster eines anderen Programms zeigen: x11: und die Nummer des Fensters in hexadezimalen Ziffern.</translation>
    </message>
    <message>
        <source>When the dialog has closed, write what was chosen and what became of it to standard output, as JSON.</source>
        <translation>Wenn der Dialog geschlossen ist, als JSON auf die Standardausgabe schreiben, was gewählt wurde und was daraus geworden ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of photos: write 1 or more.</source>
        <translation>„%1“ ist keine Anzahl von Fotos: Schreiben Sie 1 oder mehr.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no orientation: write portrait or landscape.</source>
        <translation>„%1“ ist keine Ausrichtung: Schreiben Sie portrait oder landscape.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no place: write two numbers from 0 to 1, for example 0.5,0.5.</source>
        <translation>„%1“ ist keine Lage: Schreiben Sie zwei Zahlen von 0 bis 1, zum Beispiel 0.5,0.5.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no window: write x11: and its number, for example x11:3c00007.</source>
        <translation>„%1“ nennt kein Fenster: Schreiben Sie x11: und seine Nummer, zum Beispiel x11:3c00007.</translation>
    </message>
    <message>
        <source>--parent and --result-json go with the dialog.</source>
        <translation>--parent und --result-json gehören zum Dialog.</translation>
    </message>
    <message>
        <source>%1 is one of the files to print. Write to another file with --output.</source>
        <translation>%1 ist eine der zu druckenden Dateien. Schreiben Sie mit --output in eine andere Datei.</translation>
    </message>
    <message>
        <source>With --no-dialog: leave out files that cannot be read, or of which a part is missing, say which, and print the others.</source>
        <translation>Mit --no-dialog: Dateien weglassen, die nicht lesbar sind oder von denen ein Teil fehlt, sagen, welche, und die anderen drucken.</translation>
    </message>
    <message>
        <source>Name at least one photo to print (JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF), or a folder of them.</source>
        <translation>Nennen Sie mindestens ein Foto (JPEG, PNG, TIFF, WebP, HEIF, AVIF oder PDF) oder einen Ordner mit Fotos.</translation>
    </message>
    <message>
        <source>JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF files, or folders of them; each photo becomes a page. &quot;-&quot; is standard input, &quot;@NAME&quot; a text file with a file&apos;s name on each line.</source>
        <translation>JPEG-, PNG-, TIFF-, WebP-, HEIF-, AVIF- oder PDF-Dateien oder Ordner mit solchen; jedes Foto wird eine Seite. „-“ ist die Standardeingabe, „@NAME“ eine Textdatei mit einem Dateinamen je Zeile.</translation>
    </message>
    <message>
        <source>Standard input cannot be kept in a temporary file. Make room on the disk.</source>
        <translation>Die Standardeingabe kann nicht in einer temporären Datei abgelegt werden. Schaffen Sie Platz auf der Festplatte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no rendering intent: write perceptual, relative, saturation or absolute.</source>
        <translation>„%1“ ist keine Renderpriorität: Schreiben Sie perceptual, relative, saturation oder absolute.</translation>
    </message>
    <message>
        <source>Use this print server; without it, CUPS_SERVER, client.conf or this computer&apos;s.</source>
        <translation>Diesen Druckserver verwenden; sonst CUPS_SERVER, client.conf oder den dieses Computers.</translation>
    </message>
    <message>
        <source>Who converts the photos&apos; colors: printer, which is given sRGB, or dialog, for a color profile of the printer.</source>
        <translation>Wer die Farben der Fotos umwandelt: printer (der Drucker, der sRGB bekommt) oder dialog (der Dialog, für ein Farbprofil des Druckers).</translation>
    </message>
    <message>
        <source>Convert the colors for this ICC profile of the printer; without it, for the one that the printer comes with.</source>
        <translation>Die Farben für dieses ICC-Profil des Druckers umwandeln; sonst für das, das der Drucker mitbringt.</translation>
    </message>
    <message>
        <source>What becomes of colors that the printer cannot show: perceptual, relative, saturation or absolute; without it, perceptual.</source>
        <translation>Was aus Farben wird, die der Drucker nicht wiedergeben kann: perceptual, relative, saturation oder absolute; sonst perceptual.</translation>
    </message>
    <message>
        <source>Convert the colors without black point compensation.</source>
        <translation>Die Farben ohne Schwarzpunktkompensation umwandeln.</translation>
    </message>
    <message>
        <source>With --list-printers, --list-options, --list-presets or --jobs: write JSON, with more details.</source>
        <translation>Mit --list-printers, --list-options, --list-presets oder --jobs: JSON ausgeben, mit mehr Einzelheiten.</translation>
    </message>
    <message>
        <source>Write your jobs that have not ended, on the queue of --printer or on all, a line each.</source>
        <translation>Ihre noch nicht beendeten Aufträge ausgeben, in der Warteschlange von --printer oder in allen, je Zeile einen.</translation>
    </message>
    <message>
        <source>With --jobs: those that have ended, too.</source>
        <translation>Mit --jobs: auch die beendeten.</translation>
    </message>
    <message>
        <source>With --jobs: cancel this job.</source>
        <translation>Mit --jobs: diesen Auftrag abbrechen.</translation>
    </message>
    <message>
        <source>With --jobs: hold this job.</source>
        <translation>Mit --jobs: diesen Auftrag zurückhalten.</translation>
    </message>
    <message>
        <source>With --jobs: let this held job go on.</source>
        <translation>Mit --jobs: diesen zurückgehaltenen Auftrag freigeben.</translation>
    </message>
    <message>
        <source>With --jobs: print this job again, if the print server has kept its pages.</source>
        <translation>Mit --jobs: diesen Auftrag erneut drucken, wenn der Druckserver seine Seiten aufbewahrt hat.</translation>
    </message>
    <message>
        <source>With --jobs: give the printer the name and the password for which it holds this job.</source>
        <translation>Mit --jobs: dem Drucker den Namen und das Passwort geben, derentwegen er diesen Auftrag zurückhält.</translation>
    </message>
    <message>
        <source>With --jobs: move this job to another queue; --to says which.</source>
        <translation>Mit --jobs: diesen Auftrag in eine andere Warteschlange verschieben; --to sagt, in welche.</translation>
    </message>
    <message>
        <source>With --jobs --move: the queue to move the job to.</source>
        <translation>Mit --jobs --move: die Warteschlange, in die der Auftrag verschoben wird.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no print server: write its name or address, and a port where it is not 631, for example print.example.org:8631.</source>
        <translation>„%1“ ist kein Druckserver: Schreiben Sie seinen Namen oder seine Adresse und einen Port, wenn es nicht 631 ist, zum Beispiel print.example.org:8631.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; converts no colors: write printer or dialog.</source>
        <translation>„%1“ wandelt keine Farben um: Schreiben Sie printer oder dialog.</translation>
    </message>
    <message>
        <source>--profile, --intent and --no-black-point go with --color-by dialog.</source>
        <translation>--profile, --intent und --no-black-point gehören zu --color-by dialog.</translation>
    </message>
    <message>
        <source>--ended, --cancel, --hold, --release, --again, --sign-in, --move and --to go with --jobs.</source>
        <translation>--ended, --cancel, --hold, --release, --again, --sign-in, --move und --to gehören zu --jobs.</translation>
    </message>
    <message>
        <source>Do one thing at a time: give one of --cancel, --hold, --release, --again and --sign-in, or --move and --to together.</source>
        <translation>Eines nach dem anderen: Geben Sie --cancel, --hold, --release, --again oder --sign-in an, oder --move und --to zusammen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no job: write its number, as --jobs lists it.</source>
        <translation>„%1“ ist kein Auftrag: Schreiben Sie seine Nummer, wie --jobs sie auflistet.</translation>
    </message>
    <message>
        <source>--json goes with --list-printers, --list-options, --list-presets or --jobs.</source>
        <translation>--json gehört zu --list-printers, --list-options, --list-presets oder --jobs.</translation>
    </message>
    <message>
        <source>Where the spare room or the cut goes: 0,0 is left and top, 1,1 right and bottom. Can be given several times, for one photo after the other, as can the next three.</source>
        <translation>Die Lage des Fotos, wo Platz frei bleibt oder abgeschnitten wird: 0,0 ist links oben, 1,1 rechts unten. Mehrfach möglich, für ein Foto nach dem anderen, ebenso wie die nächsten drei.</translation>
    </message>
    <message>
        <source>Print a part of the photo this much larger, 1 to %1.</source>
        <translation>Einen Teil des Fotos so viel größer drucken, 1 bis %1.</translation>
    </message>
    <message>
        <source>Turn the photo clockwise: 0, 90, 180 or 270 degrees.</source>
        <translation>Das Foto im Uhrzeigersinn drehen: 0, 90, 180 oder 270 Grad.</translation>
    </message>
    <message>
        <source>Print the photo this often in each copy of the job, 1 to %1.</source>
        <translation>Das Foto in jedem Exemplar des Auftrags so oft drucken, 1 bis %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no enlargement: write a number from 1 to %2.</source>
        <translation>„%1“ ist keine Vergrößerung: Schreiben Sie eine Zahl von 1 bis %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no turn: write 0, 90, 180 or 270.</source>
        <translation>„%1“ ist keine Drehung: Schreiben Sie 0, 90, 180 oder 270.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no length: write millimeters from 0 to %2.</source>
        <translation>„%1“ ist keine Länge: Schreiben Sie Millimeter von 0 bis %2.</translation>
    </message>
    <message>
        <source>Put several photos on a sheet: a layout&apos;s name, rows and columns such as 3x4, or a size such as 90x130mm.</source>
        <translation>Mehrere Fotos auf ein Blatt setzen: der Name eines Layouts, Reihen und Spalten, etwa 3x4, oder eine Größe, etwa 90x130mm.</translation>
    </message>
    <message>
        <source>Write this under each photo. It holds placeholders: [F] file name, [T] title, [C] number, [DATE] date taken, [YYYY], [MM], [DD].</source>
        <translation>Dies unter jedes Foto schreiben. Platzhalter sind möglich: [F] Dateiname, [T] Titel, [C] Nummer, [DATE] Aufnahmedatum, [YYYY], [MM], [DD].</translation>
    </message>
    <message>
        <source>Print each photo in this size, for example 100x150, 4x6in, or 50% of its own.</source>
        <translation>Jedes Foto in dieser Größe drucken, zum Beispiel 100x150, 4x6in oder 50% seiner eigenen.</translation>
    </message>
    <message>
        <source>With --photo-size: so many millimeters from the sheet&apos;s left and top, for example 20,15.</source>
        <translation>Mit --photo-size: so viele Millimeter vom linken und oberen Rand des Blattes, zum Beispiel 20,15.</translation>
    </message>
    <message>
        <source>Leave so many millimeters free at the sheet&apos;s edges at least.</source>
        <translation>Am Rand des Blattes mindestens so viele Millimeter frei lassen.</translation>
    </message>
    <message>
        <source>Leave a white border of so many millimeters around each photo.</source>
        <translation>Um jedes Foto einen weißen Rand von so vielen Millimetern lassen.</translation>
    </message>
    <message>
        <source>With --layout: each photo fills its own sheet.</source>
        <translation>Mit --layout: Jedes Foto füllt ein eigenes Blatt.</translation>
    </message>
    <message>
        <source>The photos share sheets.</source>
        <translation>Die Fotos teilen sich Blätter.</translation>
    </message>
    <message>
        <source>Print marks that show where to cut.</source>
        <translation>Marken drucken, die zeigen, wo zu schneiden ist.</translation>
    </message>
    <message>
        <source>Print no such marks.</source>
        <translation>Keine solchen Marken drucken.</translation>
    </message>
    <message>
        <source>Print a thin line around each photo.</source>
        <translation>Um jedes Foto eine dünne Linie drucken.</translation>
    </message>
    <message>
        <source>Print no such line.</source>
        <translation>Keine solche Linie drucken.</translation>
    </message>
    <message>
        <source>The caption is longer than %1 characters.</source>
        <translation>Die Beschriftung ist länger als %1 Zeichen.</translation>
    </message>
    <message>
        <source>--%1 and --no-%1 do not go together.</source>
        <translation>--%1 und --no-%1 gehen nicht zusammen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size: write %2% to %3%.</source>
        <translation>„%1“ ist keine Größe: Schreiben Sie %2% bis %3%.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size: write millimeters such as 100x150, inches such as 4x6in, or 50%.</source>
        <translation>„%1“ ist keine Größe: Schreiben Sie Millimeter, etwa 100x150, Zoll, etwa 4x6in, oder 50%.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no corner: write two lengths in millimeters, for example 20,15.</source>
        <translation>„%1“ ist keine Ecke: Schreiben Sie zwei Längen in Millimetern, zum Beispiel 20,15.</translation>
    </message>
    <message>
        <source>--corner goes with --photo-size and a width and a height.</source>
        <translation>--corner gehört zu --photo-size mit einer Breite und einer Höhe.</translation>
    </message>
    <message>
        <source>--photo-size with a width and a height does not go with --layout, which says how large the photos are. Leave one of them out.</source>
        <translation>--photo-size mit einer Breite und einer Höhe geht nicht zusammen mit --layout, das die Größe der Fotos bestimmt. Lassen Sie eines von beiden weg.</translation>
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
        <translation>Exit-Status:
  0  Gedruckt, oder ausgegeben, was verlangt war.
  1  Fehlgeschlagen; die Standardfehlerausgabe sagt, warum.
  2  Falscher Aufruf.
  3  Der Auftrag ist in der Warteschlange und war noch nicht beendet.
  4  Abgebrochen: Es wurde nichts gedruckt.
  5  Der Auftrag wurde gesendet, aber der Druckserver sagt nicht, wie er endete.
  6  Mit --verify: gedruckt, aber beim Druckserver lag der Auftrag nicht so vor, wie er gesendet wurde.
  7  Ein Druckserver oder ein Drucker verlangt einen Namen und ein Passwort und hat nicht die richtigen bekommen.</translation>
    </message>
</context>
<context>
    <name>CupsSentences</name>
    <message>
        <source>The print server broke off the conversation. Try again; if it fails again, look into the print server&apos;s error log.</source>
        <translation>Der Druckserver hat das Gespräch abgebrochen. Versuchen Sie es erneut; wenn es wieder misslingt, sehen Sie in das Fehlerprotokoll des Druckservers.</translation>
    </message>
    <message>
        <source>The print server does not answer. Wait a moment and try again, or restart it.</source>
        <translation>Der Druckserver antwortet nicht. Warten Sie einen Moment und versuchen Sie es erneut, oder starten Sie ihn neu.</translation>
    </message>
    <message>
        <source>The print server&apos;s answer does not end. Restart the print server, and try again.</source>
        <translation>Die Antwort des Druckservers nimmt kein Ende. Starten Sie den Druckserver neu und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The printer is not on the print server any more. Choose another one.</source>
        <translation>Der Drucker ist nicht mehr auf dem Druckserver. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The printer does not accept jobs at the moment. Choose another one, or let it accept jobs (cupsaccept).</source>
        <translation>Der Drucker nimmt zurzeit keine Aufträge an. Wählen Sie einen anderen oder lassen Sie ihn Aufträge annehmen (cupsaccept).</translation>
    </message>
    <message>
        <source>The print server does not allow you to do this. Ask whoever looks after it.</source>
        <translation>Der Druckserver erlaubt Ihnen das nicht. Fragen Sie, wer ihn verwaltet.</translation>
    </message>
    <message>
        <source>The print server reports: %1</source>
        <translation>Der Druckserver meldet: %1</translation>
    </message>
    <message>
        <source>The print server at %1 cannot be reached. Start it, for example with &quot;systemctl start cups&quot;, and try again.</source>
        <translation>Der Druckserver unter %1 ist nicht erreichbar. Starten Sie ihn, zum Beispiel mit „systemctl start cups“, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The print server at %1 cannot be reached. Is its name right, is it switched on, and is this computer on its network?</source>
        <translation>Der Druckserver unter %1 ist nicht erreichbar. Stimmt sein Name, ist er eingeschaltet, und ist dieser Computer in seinem Netz?</translation>
    </message>
    <message>
        <source>The print server at %1 wants to talk in secret only, and no encryption could be agreed upon with it. Ask whoever looks after it.</source>
        <translation>Der Druckserver unter %1 will nur verschlüsselt sprechen, und es kam keine Verschlüsselung mit ihm zustande. Fragen Sie, wer ihn verwaltet.</translation>
    </message>
    <message>
        <source>The certificate of the print server at %1 is not trusted, so nothing was sent to it. Try again to look at it once more, or ask whoever looks after the server.</source>
        <translation>Dem Zertifikat des Druckservers unter %1 wird nicht vertraut; deshalb wurde ihm nichts gesendet. Versuchen Sie es erneut, um es noch einmal anzusehen, oder fragen Sie, wer den Server verwaltet.</translation>
    </message>
    <message>
        <source>The print server at %1 wants a name and a password for this, and was given none. Try again and sign in, or ask whoever looks after it.</source>
        <translation>Der Druckserver unter %1 verlangt dafür einen Namen und ein Passwort und hat keine bekommen. Versuchen Sie es erneut und melden Sie sich an, oder fragen Sie, wer ihn verwaltet.</translation>
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
        <translation>%1 × %2 Zoll</translation>
    </message>
</context>
<context>
    <name>DamageQuestion</name>
    <message>
        <source>Print damaged photos?</source>
        <translation>Beschädigte Fotos drucken?</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Und %1 weitere.</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>&amp;Weglassen</translation>
    </message>
    <message>
        <source>&amp;Print All the Same</source>
        <translation>&amp;Trotzdem drucken</translation>
    </message>
    <message>
        <source>Print without these files?</source>
        <translation>Ohne diese Dateien drucken?</translation>
    </message>
    <message>
        <source>What is missing comes out gray, or smeared. Files that cannot be read are left out.</source>
        <translation>Was fehlt, wird grau oder verschmiert gedruckt. Dateien, die nicht lesbar sind, werden weggelassen.</translation>
    </message>
    <message>
        <source>Files that cannot be read are left out.</source>
        <translation>Dateien, die nicht lesbar sind, werden weggelassen.</translation>
    </message>
    <message>
        <source>&amp;Print the Others</source>
        <translation>&amp;Andere drucken</translation>
    </message>
</context>
<context>
    <name>DocumentKind</name>
    <message>
        <source>The application has sent an empty document. Print it once more from there.</source>
        <translation>Die Anwendung hat ein leeres Dokument gesendet. Drucken Sie es dort noch einmal.</translation>
    </message>
    <message>
        <source>What the application has sent is no PDF, PostScript or picture. Export the document as a PDF file there, and print that.</source>
        <translation>Was die Anwendung gesendet hat, ist weder PDF noch PostScript noch ein Bild. Exportieren Sie das Dokument dort als PDF-Datei und drucken Sie diese.</translation>
    </message>
    <message>
        <source>The document ends in the middle: the application has not sent all of it. Print it once more from there.</source>
        <translation>Das Dokument endet mittendrin: Die Anwendung hat nicht alles gesendet. Drucken Sie es dort noch einmal.</translation>
    </message>
</context>
<context>
    <name>FrontEnd</name>
    <message>
        <source>&quot;halvern-print-portal --enable&quot; changes that for you.</source>
        <translation>„halvern-print-portal --enable“ ändert das für Sie.</translation>
    </message>
    <message>
        <source>It takes the first by file name. An administrator can put this one before &quot;%1&quot;: ln -s tessarin.portal %2/00-tessarin.portal</source>
        <translation>Es nimmt das erste nach Dateinamen. Wer den Rechner verwaltet, kann dieses vor „%1“ setzen: ln -s tessarin.portal %2/00-tessarin.portal</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The portal reads that when it starts: log in again, or run &quot;systemctl --user restart xdg-desktop-portal&quot;.</source>
        <translation>Das Portal liest das beim Start: Melden Sie sich neu an oder führen Sie „systemctl --user restart xdg-desktop-portal“ aus.</translation>
    </message>
    <message>
        <source>There is no portal on this computer: install xdg-desktop-portal.</source>
        <translation>Auf diesem Rechner gibt es kein Portal: Installieren Sie xdg-desktop-portal.</translation>
    </message>
    <message>
        <source>The portal (%1) does not know this program: there is no tessarin.portal in %2. Install it there.</source>
        <translation>Das Portal (%1) kennt dieses Programm nicht: In %2 gibt es kein tessarin.portal. Installieren Sie es dort.</translation>
    </message>
    <message>
        <source>The portal (%1) chooses this program for printing.</source>
        <translation>Das Portal (%1) wählt dieses Programm zum Drucken.</translation>
    </message>
    <message>
        <source>The portal (%1) prints with nothing, as &quot;%2&quot; says. %3</source>
        <translation>Das Portal (%1) druckt mit keinem Programm; so steht es in „%2“. %3</translation>
    </message>
    <message>
        <source>The portal (%1) chooses &quot;%2&quot; for printing. %3</source>
        <translation>Das Portal (%1) wählt „%2“ zum Drucken. %3</translation>
    </message>
    <message>
        <source>Written into &quot;%1&quot;.</source>
        <translation>In „%1“ eingetragen.</translation>
    </message>
    <message>
        <source>There is no line of this program&apos;s in &quot;%1&quot;.</source>
        <translation>In „%1“ steht keine Zeile dieses Programms.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed.</source>
        <translation>„%1“ kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Taken out of &quot;%1&quot;.</source>
        <translation>Aus „%1“ entfernt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>GivenOptions</name>
    <message>
        <source>The printer has no paper &quot;%1&quot;.</source>
        <translation>Der Drucker hat kein Papier „%1“.</translation>
    </message>
    <message>
        <source>The printer has no &quot;sides=%1&quot;. Leave it out, or use the printer&apos;s own option for two-sided printing.</source>
        <translation>Der Drucker kennt „sides=%1“ nicht. Lassen Sie es weg, oder nehmen Sie die eigene Option des Druckers für beidseitigen Druck.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no way to scale. Write print-scaling=fit, fill or none.</source>
        <translation>„%1“ ist keine Art zu skalieren. Schreiben Sie print-scaling=fit, fill oder none.</translation>
    </message>
    <message>
        <source>&quot;%1=%2&quot; is not possible: the page is laid out before it is sent, one photo on each. Leave it out.</source>
        <translation>„%1=%2“ ist nicht möglich: Die Seite wird vor dem Senden angelegt, mit einem Foto auf jeder. Lassen Sie es weg.</translation>
    </message>
    <message>
        <source>The number of copies is no option of the printer. Give it with --copies.</source>
        <translation>Die Zahl der Kopien ist keine Option des Druckers. Geben Sie sie mit --copies an.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is set by the printer&apos;s own options here. &quot;lpoptions -p QUEUE -l&quot; lists them.</source>
        <translation>„%1“ wird hier mit den eigenen Optionen des Druckers gewählt. „lpoptions -p QUEUE -l“ listet sie auf.</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>Meinten Sie %1?</translation>
    </message>
    <message>
        <source>It has: %1 and %2 more.</source>
        <translation>Es gibt: %1 und %2 weitere.</translation>
    </message>
    <message>
        <source>It has: %1.</source>
        <translation>Es gibt: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no set of pages. Write page-set=all, odd or even.</source>
        <translation>„%1“ ist keine Seitenauswahl. Schreiben Sie page-set=all, odd oder even.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no order of pages. Write outputorder=normal or reverse.</source>
        <translation>„%1“ ist keine Reihenfolge der Seiten. Schreiben Sie outputorder=normal oder reverse.</translation>
    </message>
</context>
<context>
    <name>HandedOptions</name>
    <message>
        <source>The application&apos;s settings</source>
        <translation>Einstellungen der Anwendung</translation>
    </message>
    <message>
        <source>Settings of %1</source>
        <translation>Einstellungen von %1</translation>
    </message>
</context>
<context>
    <name>IppOptions</name>
    <message>
        <source>The value of %1 is too long to send: it has %2 bytes, and %3 are possible. Shorten it.</source>
        <translation>Der Wert von %1 ist zu lang: Er hat %2 Bytes, möglich sind %3. Kürzen Sie ihn.</translation>
    </message>
</context>
<context>
    <name>IppWords</name>
    <message>
        <source>Paper size</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Papierquelle</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Papiersorte</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Beidseitig</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Ausgabefach</translation>
    </message>
    <message>
        <source>Best for</source>
        <translation>Am besten für</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>Renderpriorität</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Lange Kante</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Kurze Kante</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>Automatic, black and white</source>
        <translation>Automatisch, schwarzweiß</translation>
    </message>
    <message>
        <source>Black only</source>
        <translation>Nur Schwarz</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Bedruckte Seite oben</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Bedruckte Seite unten</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>Text and graphics</source>
        <translation>Text und Grafik</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perzeptiv</translation>
    </message>
    <message>
        <source>Relative</source>
        <translation>Relativ</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Absolute</source>
        <translation>Absolut</translation>
    </message>
</context>
<context>
    <name>JobActions</name>
    <message>
        <source>The print server does not let you cancel this job. Ask whoever looks after it.</source>
        <translation>Der Druckserver lässt Sie diesen Auftrag nicht abbrechen. Fragen Sie, wer ihn betreut.</translation>
    </message>
    <message>
        <source>The print server does not let you resume &quot;%1&quot;. Ask whoever looks after it; the job waits meanwhile.</source>
        <translation>Der Druckserver lässt Sie „%1“ nicht fortsetzen. Fragen Sie, wer ihn betreut; der Auftrag wartet so lange.</translation>
    </message>
    <message>
        <source>The print server does not let you release the job. Ask whoever looks after it; the job waits meanwhile.</source>
        <translation>Der Druckserver lässt Sie den Auftrag nicht freigeben. Fragen Sie, wer ihn betreut; der Auftrag wartet so lange.</translation>
    </message>
    <message>
        <source>The print server does not let you print the job again. Ask whoever looks after it.</source>
        <translation>Der Druckserver lässt Sie den Auftrag nicht erneut drucken. Fragen Sie, wer ihn betreut.</translation>
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
        <translation>nicht genug Papier für %1</translation>
    </message>
    <message>
        <source>roll %1</source>
        <translation>Rolle %1</translation>
    </message>
    <message>
        <source>%1 roll %2</source>
        <translation>Rolle %2, %1</translation>
    </message>
    <message>
        <source>sheet: %1</source>
        <translation>Blatt: %1</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 in</source>
        <translation>%1 Zoll</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>two-sided: %1</source>
        <translation>beidseitig: %1</translation>
    </message>
    <message>
        <source>pages %1 of %2</source>
        <translation>Seiten %1 von %2</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 Seiten</translation>
    </message>
    <message>
        <source>last page first</source>
        <translation>letzte Seite zuerst</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 Exemplar</translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation>%1 Exemplare</translation>
    </message>
    <message>
        <source>not collated</source>
        <translation>nicht sortiert</translation>
    </message>
    <message>
        <source>text on the back</source>
        <translation>Text auf der Rückseite</translation>
    </message>
    <message>
        <source>with a banner page</source>
        <translation>mit einem Deckblatt</translation>
    </message>
    <message>
        <source>held on the queue</source>
        <translation>in der Warteschlange zurückgehalten</translation>
    </message>
    <message>
        <source>%1 more settings changed</source>
        <translation>%1 weitere Einstellungen geändert</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
    <message>
        <source>%1 borderless</source>
        <translation>%1 randlos</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 Fotos</translation>
    </message>
</context>
<context>
    <name>JobReadBack</name>
    <message>
        <source>The print server does not tell what it holds of job %1.</source>
        <translation>Der Druckserver sagt nicht, wie Auftrag %1 bei ihm vorliegt.</translation>
    </message>
    <message>
        <source>The print server holds job %1 exactly as it was sent.</source>
        <translation>Beim Druckserver liegt Auftrag %1 genau so vor, wie er gesendet wurde.</translation>
    </message>
    <message>
        <source>%1 instead of %2</source>
        <translation>%1 statt %2</translation>
    </message>
    <message>
        <source>without %1</source>
        <translation>ohne %1</translation>
    </message>
    <message>
        <source>Added to job %1 by the print server or the queue: %2.</source>
        <translation>Vom Druckserver oder von der Warteschlange zu Auftrag %1 hinzugefügt: %2.</translation>
    </message>
    <message>
        <source>Changed in job %1 by the print server: %2.</source>
        <translation>Vom Druckserver in Auftrag %1 geändert: %2.</translation>
    </message>
</context>
<context>
    <name>JobStatus</name>
    <message>
        <source>Job %1 waits for &quot;%2&quot;%3.</source>
        <translation>Auftrag %1 wartet auf „%2“%3.</translation>
    </message>
    <message>
        <source>Job %1 is printing on &quot;%2&quot;%3.</source>
        <translation>Auftrag %1 wird auf „%2“ gedruckt%3.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled on &quot;%2&quot;.</source>
        <translation>Auftrag %1 auf „%2“ wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Job %1 failed on &quot;%2&quot;%3. Print again; if it fails again, look into the print server&apos;s error log.</source>
        <translation>Auftrag %1 ist auf „%2“ fehlgeschlagen%3. Drucken Sie erneut; wenn es wieder fehlschlägt, sehen Sie im Fehlerprotokoll des Druckservers nach.</translation>
    </message>
    <message>
        <source>Printed: job %1 on &quot;%2&quot;.</source>
        <translation>Gedruckt: Auftrag %1 auf „%2“.</translation>
    </message>
    <message>
        <source>Job %1 waits because &quot;%2&quot; is paused%3.</source>
        <translation>Auftrag %1 wartet, weil „%2“ angehalten ist%3.</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot; because it was asked to wait%3.</source>
        <translation>Auftrag %1 ist auf „%2“ zurückgehalten, weil er warten soll%3.</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot;%3.</source>
        <translation>Auftrag %1 ist auf „%2“ zurückgehalten%3.</translation>
    </message>
    <message>
        <source>Job %1 stopped on &quot;%2&quot;%3.</source>
        <translation>Auftrag %1 ist auf „%2“ stehen geblieben%3.</translation>
    </message>
    <message>
        <source>Job %1 has left the queue of &quot;%2&quot;. The print server keeps no record of how it ended.</source>
        <translation>Auftrag %1 hat die Warteschlange von „%2“ verlassen. Der Druckserver bewahrt nicht auf, wie er geendet hat.</translation>
    </message>
    <message>
        <source>&quot;%2&quot; is not on the print server any more, and job %1 with it. Look at the printer before you print again.</source>
        <translation>„%2“ ist nicht mehr auf dem Druckserver und Auftrag %1 mit ihm. Sehen Sie am Drucker nach, bevor Sie erneut drucken.</translation>
    </message>
    <message>
        <source>The print server does not answer. Job %1 was sent to &quot;%2&quot;, and may be printed.</source>
        <translation>Der Druckserver antwortet nicht. Auftrag %1 wurde an „%2“ gesendet und wird vielleicht gedruckt.</translation>
    </message>
    <message>
        <source>See to the printer and resume it with &quot;cupsenable %2&quot;, or cancel the job with &quot;cancel %2-%1&quot;.</source>
        <translation>Sehen Sie nach dem Drucker und setzen Sie ihn mit „cupsenable %2“ fort oder brechen Sie den Auftrag mit „cancel %2-%1“ ab.</translation>
    </message>
    <message>
        <source>Release it with &quot;lp -i %1 -H resume&quot;, or cancel it with &quot;cancel %2-%1&quot;.</source>
        <translation>Geben Sie ihn mit „lp -i %1 -H resume“ frei oder brechen Sie ihn mit „cancel %2-%1“ ab.</translation>
    </message>
    <message>
        <source>Print it again with &quot;lp -i %1 -H restart&quot;, or cancel it with &quot;cancel %2-%1&quot;.</source>
        <translation>Drucken Sie ihn mit „lp -i %1 -H restart“ erneut oder brechen Sie ihn mit „cancel %2-%1“ ab.</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot;: the printer wants a name and a password%3.</source>
        <translation>Auftrag %1 ist auf „%2“ zurückgehalten: Der Drucker verlangt einen Namen und ein Passwort%3.</translation>
    </message>
    <message>
        <source>Give them with &quot;halvern-print --jobs --sign-in %1&quot;, or cancel the job with &quot;cancel %2-%1&quot;.</source>
        <translation>Geben Sie beides mit „halvern-print --jobs --sign-in %1“ an oder brechen Sie den Auftrag mit „cancel %2-%1“ ab.</translation>
    </message>
</context>
<context>
    <name>JobSubmitter</name>
    <message>
        <source> Job %1 may still be on the queue of &quot;%2&quot; without its pages: cancel it there before you print again.</source>
        <translation> Auftrag %1 ist vielleicht noch ohne seine Seiten in der Warteschlange von „%2“: Brechen Sie ihn dort ab, bevor Sie erneut drucken.</translation>
    </message>
    <message>
        <source>The print server gave the job no number. Look into its error log.</source>
        <translation>Der Druckserver hat dem Auftrag keine Nummer gegeben. Sehen Sie in seinem Fehlerprotokoll nach.</translation>
    </message>
    <message>
        <source> A job without its pages may still be on the queue of &quot;%1&quot;: look there before you print again.</source>
        <translation> Ein Auftrag ohne seine Seiten kann noch in der Warteschlange von „%1“ sein: Sehen Sie dort nach, bevor Sie noch einmal drucken.</translation>
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
        <translation> Zoll</translation>
    </message>
</context>
<context>
    <name>Layouts</name>
    <message>
        <source>&quot;%1&quot; is no number from %2 to %3.</source>
        <translation>„%1“ ist keine Zahl von %2 bis %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>„%1“ ist weder true noch false.</translation>
    </message>
    <message>
        <source>A measure is not written as %1 numbers from 0 to %2.</source>
        <translation>Ein Maß ist nicht als %1 Zahlen von 0 bis %2 geschrieben.</translation>
    </message>
    <message>
        <source>A photo is not from %1 to %2 mm wide and high.</source>
        <translation>Ein Foto ist nicht %1 bis %2 mm breit und hoch.</translation>
    </message>
    <message>
        <source>&quot;kind&quot; is none of grid, size, cells and pack.</source>
        <translation>„kind“ ist keines von grid, size, cells und pack.</translation>
    </message>
    <message>
        <source>&quot;cells&quot; does not hold 1 to %1 places.</source>
        <translation>„cells“ enthält nicht 1 bis %1 Plätze.</translation>
    </message>
    <message>
        <source>&quot;caption&quot; is longer than %1 characters.</source>
        <translation>„caption“ ist länger als %1 Zeichen.</translation>
    </message>
    <message>
        <source>&quot;scaling&quot; is neither fit nor fill.</source>
        <translation>„scaling“ ist weder fit noch fill.</translation>
    </message>
    <message>
        <source>%1 rows of %2</source>
        <translation>%1 Reihen zu %2</translation>
    </message>
    <message>
        <source>Photos of %1 × %2 %3</source>
        <translation>Fotos von %1 × %2 %3</translation>
    </message>
    <message>
        <source>It is no layout: &quot;schema&quot; is not &quot;%1&quot;.</source>
        <translation>Es ist kein Layout: „schema“ ist nicht „%1“.</translation>
    </message>
    <message>
        <source>It is of another version of this program.</source>
        <translation>Es ist von einer anderen Version dieses Programms.</translation>
    </message>
    <message>
        <source>It has no &quot;name&quot;.</source>
        <translation>„name“ fehlt.</translation>
    </message>
    <message>
        <source>The layout takes %1 × %2 mm, and this paper has %3 × %4 mm to print on. Choose a larger paper, one without margins, or another layout.</source>
        <translation>Das Layout braucht %1 × %2 mm, und auf diesem Papier sind %3 × %4 mm bedruckbar. Wählen Sie ein größeres Papier, eines ohne Ränder oder ein anderes Layout.</translation>
    </message>
    <message>
        <source>So many photos would be smaller than %1 mm on this paper. Choose fewer rows or columns, or a larger paper.</source>
        <translation>So viele Fotos wären auf diesem Papier kleiner als %1 mm. Wählen Sie weniger Reihen oder Spalten oder ein größeres Papier.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Es ist keine Datei.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Die Datei ist zu groß.</translation>
    </message>
    <message>
        <source>It is no JSON object: %1.</source>
        <translation>Es ist kein JSON-Objekt: %1.</translation>
    </message>
    <message>
        <source>There is another layout &quot;%1&quot;.</source>
        <translation>Es gibt ein anderes Layout „%1“.</translation>
    </message>
    <message>
        <source>The layout %1 was left out. %2</source>
        <translation>Das Layout %1 wurde ausgelassen. %2</translation>
    </message>
    <message>
        <source>There is no layout &quot;%1&quot;. There are: %2; and rows x columns, such as 3x4, and sizes, such as 90x130mm.</source>
        <translation>Es gibt kein Layout „%1“. Es gibt: %2; außerdem Reihen x Spalten, etwa 3x4, und Größen, etwa 90x130mm.</translation>
    </message>
    <message>
        <source>Write a name with letters or numbers.</source>
        <translation>Schreiben Sie einen Namen mit Buchstaben oder Ziffern.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a layout that is always there. Choose another name.</source>
        <translation>„%1“ ist ein Layout, das es immer gibt. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The layout could not be kept in %1. %2</source>
        <translation>Das Layout konnte nicht in %1 gespeichert werden. %2</translation>
    </message>
    <message>
        <source>Only layouts of your own can be deleted.</source>
        <translation>Nur eigene Layouts können gelöscht werden.</translation>
    </message>
    <message>
        <source>%1 could not be deleted. %2</source>
        <translation>%1 konnte nicht gelöscht werden. %2</translation>
    </message>
    <message>
        <source>Not every photo fits on this paper. Choose a smaller size.</source>
        <translation>Nicht jedes Foto passt auf dieses Papier. Wählen Sie eine kleinere Größe.</translation>
    </message>
    <message>
        <source>All photos are left out. Include at least one of them.</source>
        <translation>Alle Fotos sind weggelassen. Nehmen Sie mindestens eines davon auf.</translation>
    </message>
    <message>
        <source>The file %1 holds something else already. Choose another name, or take the file away.</source>
        <translation>In der Datei %1 steht schon etwas anderes. Wählen Sie einen anderen Namen, oder entfernen Sie die Datei.</translation>
    </message>
    <message>
        <source>These are %1 photos on all sheets, and a job takes %2. Choose fewer photos, or fewer copies of each.</source>
        <translation>Auf allen Blättern zusammen wären es %1 Fotos, ein Auftrag fasst %2. Wählen Sie weniger Fotos oder weniger Exemplare von jedem.</translation>
    </message>
    <message>
        <source>With margins of %1 mm nothing is left of this paper. Choose smaller margins, or a larger paper.</source>
        <translation>Bei Rändern von %1 mm bleibt von diesem Papier nichts übrig. Wählen Sie kleinere Ränder oder ein größeres Papier.</translation>
    </message>
    <message>
        <source>A photo of %1 × %2 mm at %3, %4 mm is not all on what can be printed of this page: %5 × %6 mm at %7, %8 mm. Choose a smaller size, another place, or another paper.</source>
        <translation>Ein Foto von %1 × %2 mm bei %3, %4 mm liegt nicht ganz in dem, was auf dieser Seite bedruckt werden kann: %5 × %6 mm bei %7, %8 mm. Wählen Sie eine kleinere Größe, einen anderen Platz oder ein anderes Papier.</translation>
    </message>
    <message>
        <source>There is one sheet only, and none with an even number. Choose all sheets, or more photos.</source>
        <translation>Es gibt nur ein Blatt und keines mit gerader Nummer. Wählen Sie alle Blätter oder mehr Fotos.</translation>
    </message>
</context>
<context>
    <name>ListJobs</name>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>Auftrag %1 wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Job %1 is held.</source>
        <translation>Auftrag %1 wird zurückgehalten.</translation>
    </message>
    <message>
        <source>Job %1 was released.</source>
        <translation>Auftrag %1 wurde freigegeben.</translation>
    </message>
    <message>
        <source>Job %1 is printed again.</source>
        <translation>Auftrag %1 wird erneut gedruckt.</translation>
    </message>
    <message>
        <source>Job %1 has what the printer asks for.</source>
        <translation>Auftrag %1 hat, was der Drucker verlangt.</translation>
    </message>
    <message>
        <source>Job %1 was moved to &quot;%2&quot;.</source>
        <translation>Auftrag %1 wurde nach „%2“ verschoben.</translation>
    </message>
    <message>
        <source>You have no job %1 on the print server. --jobs --ended lists yours.</source>
        <translation>Sie haben keinen Auftrag %1 auf dem Druckserver. --jobs --ended listet Ihre auf.</translation>
    </message>
    <message>
        <source>You have no jobs there.</source>
        <translation>Sie haben dort keine Aufträge.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>You have no job %1 on &quot;%2&quot;. --jobs --ended lists yours.</source>
        <translation>Sie haben keinen Auftrag %1 auf „%2“. --jobs --ended listet Ihre auf.</translation>
    </message>
</context>
<context>
    <name>ListPapers</name>
    <message>
        <source>The printer &quot;%1&quot; was asked, but has not reported its papers. Look into the print server&apos;s error log.</source>
        <translation>Der Drucker „%1“ wurde gefragt, hat seine Papiere aber nicht gemeldet. Sehen Sie im Fehlerprotokoll des Druckservers nach.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not report its papers: it has no Halvern driver.</source>
        <translation>Der Drucker „%1“ meldet seine Papiere nicht: Er hat keinen Halvern-Treiber.</translation>
    </message>
    <message>
        <source>Asking &quot;%1&quot; ...</source>
        <translation>„%1“ wird gefragt ...</translation>
    </message>
    <message>
        <source>Waiting for &quot;%1&quot;%2 ...</source>
        <translation>Warten auf „%1“%2 ...</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is busy with another job. Ask again when that has ended.</source>
        <translation>Der Drucker „%1“ bearbeitet einen anderen Auftrag. Fragen Sie noch einmal, wenn dieser beendet ist.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not work at the moment%2, and the question was taken back. Resume the printer (cupsenable) and ask again.</source>
        <translation>Der Drucker „%1“ arbeitet zurzeit nicht%2, und die Anfrage wurde zurückgenommen. Setzen Sie den Drucker fort (cupsenable) und fragen Sie noch einmal.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not answer%2. See to the printer and ask again.</source>
        <translation>Der Drucker „%1“ konnte nicht antworten%2. Sehen Sie nach dem Drucker und fragen Sie noch einmal.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not accept jobs and cannot be asked. Let it accept them (cupsaccept) and ask again.</source>
        <translation>Der Drucker „%1“ nimmt keine Aufträge an und kann nicht gefragt werden. Lassen Sie ihn Aufträge annehmen (cupsaccept) und fragen Sie noch einmal.</translation>
    </message>
    <message>
        <source>The print server refused the question to &quot;%1&quot;. Look into its error log.</source>
        <translation>Der Druckserver hat die Anfrage an „%1“ abgelehnt. Sehen Sie in seinem Fehlerprotokoll nach.</translation>
    </message>
    <message>
        <source>The list of papers that &quot;%1&quot; reported cannot be read (%2).</source>
        <translation>Die Papierliste, die „%1“ gemeldet hat, ist nicht lesbar (%2).</translation>
    </message>
    <message>
        <source>No papers are loaded.</source>
        <translation>Es ist kein Papier eingelegt.</translation>
    </message>
    <message>
        <source>The printer has not said yet what is loaded.</source>
        <translation>Der Drucker hat noch nicht gemeldet, was eingelegt ist.</translation>
    </message>
    <message>
        <source>Ask it with --refresh.</source>
        <translation>Fragen Sie ihn mit --refresh.</translation>
    </message>
    <message>
        <source>The question to &quot;%1&quot; could not be processed%2 and was taken back. See to the printer, look into the print server&apos;s error log, and ask again.</source>
        <translation>Die Anfrage an „%1“ konnte nicht verarbeitet werden%2 und wurde zurückgenommen. Sehen Sie nach dem Drucker und im Fehlerprotokoll des Druckservers nach, und fragen Sie noch einmal.</translation>
    </message>
    <message>
        <source>The question to &quot;%1&quot; was held%2 and has been cancelled. See to the printer and ask again.</source>
        <translation>Die Anfrage an „%1“ wurde angehalten%2 und ist abgebrochen worden. Sehen Sie nach dem Drucker und fragen Sie noch einmal.</translation>
    </message>
    <message>
        <source>The question to &quot;%1&quot; was cancelled. Ask again.</source>
        <translation>Die Anfrage an „%1“ wurde abgebrochen. Fragen Sie noch einmal.</translation>
    </message>
    <message>
        <source>The print server does not answer; job %1 may still be on the queue (cancel %2-%1).</source>
        <translation>Der Druckserver antwortet nicht; Auftrag %1 ist vielleicht noch in der Warteschlange (cancel %2-%1).</translation>
    </message>
    <message>
        <source>Look into the print server&apos;s error log, and ask again.</source>
        <translation>Sehen Sie im Fehlerprotokoll des Druckservers nach, und fragen Sie noch einmal.</translation>
    </message>
</context>
<context>
    <name>Listings</name>
    <message>
        <source>%1 (default): %2 %3</source>
        <translation>%1 (Standarddrucker): %2 %3</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <translation>%1: %2 %3</translation>
    </message>
    <message>
        <source>The print server has no printers.</source>
        <translation>Der Druckserver hat keine Drucker.</translation>
    </message>
    <message>
        <source>%1 (from your saved options)</source>
        <translation>%1 (aus Ihren gespeicherten Optionen)</translation>
    </message>
    <message>
        <source>Saved the preset &quot;%1&quot; of &quot;%2&quot;.</source>
        <translation>Voreinstellung „%1“ von „%2“ gespeichert.</translation>
    </message>
    <message>
        <source>%1 (installed in the printer) &quot;%2&quot;: %3</source>
        <translation>%1 (im Drucker eingebaut) „%2“: %3</translation>
    </message>
    <message>
        <source>%1 (default not known) &quot;%2&quot;: %3</source>
        <translation>%1 (Vorgabe nicht bekannt) „%2“: %3</translation>
    </message>
    <message>
        <source>%1 (default %2) &quot;%3&quot;: %4</source>
        <translation>%1 (Vorgabe %2) „%3“: %4</translation>
    </message>
</context>
<context>
    <name>Lists</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>LocalQueue</name>
    <message>
        <source>The printer &quot;%1&quot; was found on the network, but the print server cannot use it: %2</source>
        <translation>Der Drucker „%1“ wurde im Netz gefunden, aber der Druckserver kann ihn nicht verwenden: %2</translation>
    </message>
</context>
<context>
    <name>LoginWords</name>
    <message>
        <source>The print server at %1 wants to know who you are.</source>
        <translation>Der Druckserver unter %1 will wissen, wer Sie sind.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; wants a name and a password of its own; the print server at %2 hands them on to it.</source>
        <translation>Der Drucker „%1“ verlangt einen eigenen Namen und ein eigenes Passwort; der Druckserver unter %2 gibt sie an ihn weiter.</translation>
    </message>
    <message>
        <source>That name or password was wrong.</source>
        <translation>Dieser Name oder dieses Passwort war falsch.</translation>
    </message>
    <message>
        <source>The connection to %1 is not encrypted: others could read the password on its way.</source>
        <translation>Die Verbindung zu %1 ist nicht verschlüsselt: Andere könnten das Passwort unterwegs lesen.</translation>
    </message>
    <message>
        <source>It shows none.</source>
        <translation>Er zeigt keines.</translation>
    </message>
    <message>
        <source>It shows now: %1</source>
        <translation>Er zeigt jetzt: %1</translation>
    </message>
    <message>
        <source>The print server at %1 cannot prove who it is, and was never seen before.</source>
        <translation>Der Druckserver unter %1 kann nicht beweisen, wer er ist, und wurde noch nie gesehen.</translation>
    </message>
    <message>
        <source>The print server at %1 has another certificate than before. It may have been renewed, or somebody else may be answering in its place.</source>
        <translation>Der Druckserver unter %1 hat ein anderes Zertifikat als zuvor. Vielleicht wurde es erneuert, vielleicht antwortet aber jemand anders an seiner Stelle.</translation>
    </message>
    <message>
        <source>It had: %1</source>
        <translation>Er hatte: %1</translation>
    </message>
    <message>
        <source>The print server at %1 encrypted before, and does not any more. It may have been set up anew, or somebody else may be answering in its place. What you print there could be read on its way.</source>
        <translation>Der Druckserver unter %1 hat bisher verschlüsselt und tut es nicht mehr. Vielleicht wurde er neu eingerichtet, vielleicht antwortet aber jemand anders an seiner Stelle. Was Sie dort drucken, könnte unterwegs mitgelesen werden.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>The output could not be written: %1.</source>
        <translation>Die Ausgabe konnte nicht geschrieben werden: %1.</translation>
    </message>
</context>
<context>
    <name>PageChoice</name>
    <message>
        <source>There is no page %1: there is one page only.</source>
        <translation>Es gibt keine Seite %1: Es gibt nur eine Seite.</translation>
    </message>
    <message>
        <source>There is no page %1: the first page is 1.</source>
        <translation>Es gibt keine Seite %1: Die erste Seite ist 1.</translation>
    </message>
    <message>
        <source>There is no page %1: the pages are 1 to %2.</source>
        <translation>Es gibt keine Seite %1: Die Seiten sind 1 bis %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends before it begins. Write %2-%3.</source>
        <translation>„%1“ endet, bevor es beginnt. Schreiben Sie %2-%3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page. Write numbers and ranges, for example 1-3, 7, 12-.</source>
        <translation>„%1“ ist keine Seite. Schreiben Sie Zahlen und Bereiche, zum Beispiel 1-3, 7, 12-.</translation>
    </message>
    <message>
        <source>The chosen pages were left out because they cannot be read, or not whole. Choose others.</source>
        <translation>Die gewählten Seiten wurden weggelassen, weil sie nicht oder nicht vollständig gelesen werden können. Wählen Sie andere.</translation>
    </message>
</context>
<context>
    <name>PageFit</name>
    <message>
        <source>The paper size &quot;%1&quot; is wider than the roll (%2).</source>
        <translation>Das Papierformat „%1“ ist breiter als die Rolle (%2).</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is larger than the paper &quot;%2&quot;.</source>
        <translation>Das Papierformat „%1“ ist größer als das Papier „%2“.</translation>
    </message>
</context>
<context>
    <name>PageRenderer</name>
    <message>
        <source>The pages could not be written. Make room on the disk and try again.</source>
        <translation>Die Seiten konnten nicht geschrieben werden. Schaffen Sie Platz auf der Festplatte und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>PageStream</name>
    <message>
        <source>The computer is too busy to prepare the pages. Close something and try again.</source>
        <translation>Der Rechner ist zu beschäftigt, um die Seiten vorzubereiten. Schließen Sie etwas und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>PaperSizes</name>
    <message>
        <source>For the loaded paper</source>
        <translation>Für das eingelegte Papier</translation>
    </message>
    <message>
        <source>Used last</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Your sizes</source>
        <translation>Ihre Formate</translation>
    </message>
    <message>
        <source>Photo sizes</source>
        <translation>Fotoformate</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>US</source>
        <translation>US</translation>
    </message>
    <message>
        <source>Other sizes</source>
        <translation>Andere Formate</translation>
    </message>
</context>
<context>
    <name>PaperTable</name>
    <message>
        <source>just now</source>
        <translation>gerade eben</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>vor %1 min</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>vor %1 h</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>vor %1 Tagen</translation>
    </message>
    <message>
        <source>%1: last updated never</source>
        <translation>%1: nie aktualisiert</translation>
    </message>
    <message>
        <source>%1: last updated %2 (%3)</source>
        <translation>%1: zuletzt aktualisiert %2 (%3)</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Tones</source>
        <translation>Tonwerte</translation>
    </message>
</context>
<context>
    <name>PhotoProblem</name>
    <message>
        <source>&quot;%1&quot; is damaged and cannot be read. Export it from your photo program again.</source>
        <translation>„%1“ ist beschädigt und nicht lesbar. Exportieren Sie die Datei erneut aus Ihrem Fotoprogramm.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: a part of the picture is missing. Copy it from the camera again, or export it again.</source>
        <translation>„%1“ ist beschädigt: Ein Teil des Bildes fehlt. Kopieren Sie die Datei erneut von der Kamera oder exportieren Sie sie erneut.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to print. Make a copy with fewer pixels and print that.</source>
        <translation>„%1“ ist zu groß zum Drucken. Drucken Sie eine Kopie mit weniger Pixeln.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked with a password. Save a copy without one and print that.</source>
        <translation>„%1“ ist mit einem Passwort geschützt. Drucken Sie eine Kopie ohne Passwort.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed meanwhile. Open it again.</source>
        <translation>„%1“ hat sich inzwischen geändert. Öffnen Sie die Datei erneut.</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;. Check its name.</source>
        <translation>Es gibt keine Datei „%1“. Prüfen Sie den Namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened. Check that you may read it.</source>
        <translation>„%1“ kann nicht geöffnet werden. Prüfen Sie, ob Sie die Datei lesen dürfen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Copy it from the camera again.</source>
        <translation>„%1“ ist leer. Kopieren Sie die Datei erneut von der Kamera.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be printed. Use a JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF file.</source>
        <translation>„%1“ ist kein druckbares Bild. Verwenden Sie eine JPEG-, PNG-, TIFF-, WebP-, HEIF-, AVIF- oder PDF-Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is camera RAW, which has to be developed before it can be printed. Export it as JPEG or TIFF from your photo program and print that.</source>
        <translation>„%1“ ist eine RAW-Datei einer Kamera und muss vor dem Drucken entwickelt werden. Exportieren Sie sie aus Ihrem Fotoprogramm als JPEG oder TIFF und drucken Sie diese Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of a kind that cannot be read here. Export it as JPEG, or as TIFF with 8 or 16 bits, from your photo program and print that.</source>
        <translation>„%1“ ist von einer Art, die hier nicht lesbar ist. Exportieren Sie die Datei aus Ihrem Fotoprogramm als JPEG oder als TIFF mit 8 oder 16 Bit und drucken Sie diese.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; made the program that reads photos fail: it is damaged, or made to do harm. Export it from your photo program again.</source>
        <translation>„%1“ hat das Programm, das Fotos liest, zum Absturz gebracht: Die Datei ist beschädigt oder soll Schaden anrichten. Exportieren Sie sie erneut aus Ihrem Fotoprogramm.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read: it is damaged, or made to do harm. Export it from your photo program again.</source>
        <translation>Das Lesen von „%1“ dauert zu lange: Die Datei ist beschädigt oder soll Schaden anrichten. Exportieren Sie sie erneut aus Ihrem Fotoprogramm.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: the program that reads photos, halvern-decode, is not installed beside this one or cannot be started. Install the dialog again.</source>
        <translation>„%1“ ist nicht lesbar: Das Programm halvern-decode, das Fotos liest, ist nicht neben diesem installiert oder lässt sich nicht starten. Installieren Sie den Dialog neu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder without photos. Name one that holds photos, or photos.</source>
        <translation>„%1“ ist ein Ordner ohne Fotos. Nennen Sie einen mit Fotos oder einzelne Fotos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an HDR picture, which is brighter than paper can be. Export it as JPEG without HDR from your photo program and print that.</source>
        <translation>„%1“ ist ein HDR-Bild und heller, als Papier sein kann. Exportieren Sie es aus Ihrem Fotoprogramm als JPEG ohne HDR und drucken Sie diese Datei.</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>The printer&apos;s own pages (%1) offer nothing for this printer. You can print without them.</source>
        <translation>Die eigenen Seiten des Druckers (%1) bieten für diesen Drucker nichts. Sie können ohne sie drucken.</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the pages &quot;%1&quot;, which is no name of a bundle. You can print without them.</source>
        <translation>Die Beschreibung des Druckers verlangt die Seiten „%1“; das ist kein gültiger Name. Sie können ohne sie drucken.</translation>
    </message>
    <message>
        <source>The printer&apos;s own pages (%1) are not installed. You can print without them; install the printer&apos;s software to have them.</source>
        <translation>Die eigenen Seiten des Druckers (%1) sind nicht installiert. Sie können ohne sie drucken; installieren Sie die Software des Druckers, um sie zu haben.</translation>
    </message>
    <message>
        <source>The printer&apos;s own pages (%1) cannot be loaded: %2. You can print without them; install the printer&apos;s software again to have them.</source>
        <translation>Die eigenen Seiten des Druckers (%1) lassen sich nicht laden: %2. Sie können ohne sie drucken; installieren Sie die Software des Druckers neu, um sie zu haben.</translation>
    </message>
    <message>
        <source>they name no module</source>
        <translation>sie nennen kein Modul</translation>
    </message>
    <message>
        <source>the module is of another kind</source>
        <translation>das Modul ist von anderer Art</translation>
    </message>
    <message>
        <source>they belong to something else</source>
        <translation>sie gehören zu etwas anderem</translation>
    </message>
    <message>
        <source>%1 cannot be looked at</source>
        <translation>%1 kann nicht untersucht werden</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>%1 can be changed by other users</source>
        <translation>%1 kann von anderen Benutzern geändert werden</translation>
    </message>
</context>
<context>
    <name>PortalProgram</name>
    <message>
        <source>Say whether the desktop&apos;s portal would choose this program for printing, and if not, why.</source>
        <translation>Sagen, ob das Portal des Desktops dieses Programm zum Drucken wählen würde, und wenn nicht, warum.</translation>
    </message>
    <message>
        <source>Have the desktop&apos;s portal choose this program for printing, by a line in your portals.conf.</source>
        <translation>Das Portal des Desktops dieses Programm zum Drucken wählen lassen, durch eine Zeile in Ihrer portals.conf.</translation>
    </message>
    <message>
        <source>Take that line away again.</source>
        <translation>Diese Zeile wieder entfernen.</translation>
    </message>
    <message>
        <source>Shows the print dialog for applications that print by the desktop&apos;s portal. The desktop starts it by itself.</source>
        <translation>Zeigt den Druckdialog für Anwendungen, die über das Portal des Desktops drucken. Der Desktop startet dieses Programm von selbst.</translation>
    </message>
    <message>
        <source>Wrong usage. See &quot;halvern-print-portal --help&quot;.</source>
        <translation>Falscher Aufruf. Siehe „halvern-print-portal --help“.</translation>
    </message>
    <message>
        <source>There is no display to show the dialog on. Start this program in a desktop&apos;s session, or set DISPLAY.</source>
        <translation>Es gibt keinen Bildschirm für den Dialog. Starten Sie dieses Programm in der Sitzung eines Desktops oder setzen Sie DISPLAY.</translation>
    </message>
</context>
<context>
    <name>PpdLookup</name>
    <message>
        <source>%1 must be a number from %2 to %3.</source>
        <translation>%1 muss eine Zahl von %2 bis %3 sein.</translation>
    </message>
    <message>
        <source>%1 must have %2 to %3 characters.</source>
        <translation>%1 muss %2 bis %3 Zeichen haben.</translation>
    </message>
</context>
<context>
    <name>PpdModel</name>
    <message>
        <source>An option without a name or a value cannot be set.</source>
        <translation>Eine Option ohne Namen oder Wert kann nicht gesetzt werden.</translation>
    </message>
    <message>
        <source>The printer has no page size &quot;%1&quot;. Choose one from the list.</source>
        <translation>Der Drucker hat kein Papierformat „%1“. Wählen Sie eines aus der Liste.</translation>
    </message>
    <message>
        <source>The printer cannot take the page size &quot;%1&quot;. Choose one from the list.</source>
        <translation>Der Drucker kann das Papierformat „%1“ nicht verwenden. Wählen Sie eines aus der Liste.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go together with &quot;%2&quot;. Change that first.</source>
        <translation>„%1“ passt nicht zu „%2“. Ändern Sie das zuerst.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is part of the printer&apos;s equipment, and is set by whoever installed the printer.</source>
        <translation>„%1“ gehört zur Ausstattung des Druckers und wird bei dessen Einrichtung festgelegt.</translation>
    </message>
    <message>
        <source>The printer&apos;s equipment does not allow &quot;%1&quot;: whoever installed the printer has set &quot;%2&quot;.</source>
        <translation>„%1“ ist mit der Ausstattung des Druckers nicht möglich: Bei der Einrichtung wurde „%2“ festgelegt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no choice &quot;%2&quot;.</source>
        <translation>„%1“ kennt die Auswahl „%2“ nicht.</translation>
    </message>
    <message>
        <source>The printer has no option &quot;%1&quot;.</source>
        <translation>Der Drucker hat keine Option „%1“.</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>The printer&apos;s own defaults do not go together with what is chosen elsewhere. Put the options back one by one.</source>
        <translation>Die Vorgaben des Druckers passen nicht zu dem, was sonst gewählt ist. Setzen Sie die Optionen einzeln zurück.</translation>
    </message>
    <message>
        <source>not with what the printer has loaded</source>
        <translation>nicht mit dem, was im Drucker eingelegt ist</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>nicht mit %1</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 in</source>
        <translation>%1 Zoll</translation>
    </message>
    <message>
        <source>A job carries one choice of &quot;%1&quot;, and not &quot;%2&quot; together. Take one away before you choose another.</source>
        <translation>Ein Auftrag nimmt von „%1“ nur eine Auswahl mit, und nicht „%2“ zusammen. Nehmen Sie eine weg, bevor Sie eine andere wählen.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>It holds no presets of this program.</source>
        <translation>Die Datei enthält keine Voreinstellungen dieses Programms.</translation>
    </message>
    <message>
        <source>It was written by a newer version of this program.</source>
        <translation>Die Datei wurde von einer neueren Version dieses Programms geschrieben.</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>Druckervorgaben</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Es ist keine Datei.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Die Datei ist zu groß.</translation>
    </message>
    <message>
        <source>There are %1 presets already. Delete one first.</source>
        <translation>Es gibt schon %1 Voreinstellungen. Löschen Sie zuerst eine.</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; is not there any more.</source>
        <translation>Die Voreinstellung „%1“ gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; cannot be read, and %2 cannot be moved away. %3</source>
        <translation>Die Voreinstellungen von „%1“ sind nicht lesbar, und %2 lässt sich nicht beiseitelegen. %3</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; could not be read, and begin anew. What was there is in %2. %3</source>
        <translation>Die Voreinstellungen von „%1“ waren nicht lesbar und beginnen neu. Was da war, ist in %2. %3</translation>
    </message>
    <message>
        <source>The presets in %1 cannot be used. %2</source>
        <translation>Die Voreinstellungen in %1 sind nicht verwendbar. %2</translation>
    </message>
    <message>
        <source>Some presets in %1 cannot be read and are left alone.</source>
        <translation>Einige Voreinstellungen in %1 sind nicht lesbar und bleiben unberührt.</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; could not be written to %2. %3</source>
        <translation>Die Voreinstellungen von „%1“ konnten nicht nach %2 geschrieben werden. %3</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>Der Ordner kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Another program holds the lock %1.</source>
        <translation>Ein anderes Programm hält die Sperre %1.</translation>
    </message>
    <message>
        <source>It would be too large.</source>
        <translation>Die Datei würde zu groß.</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already. Choose another name.</source>
        <translation>Es gibt schon eine Voreinstellung „%1“. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>No presets were read from %1. %2</source>
        <translation>Aus %1 wurden keine Voreinstellungen gelesen. %2</translation>
    </message>
    <message>
        <source>There is none in it that can be read.</source>
        <translation>Darin ist keine lesbare Voreinstellung.</translation>
    </message>
    <message>
        <source>Some presets in %1 cannot be read and were left out.</source>
        <translation>Einige Voreinstellungen in %1 sind nicht lesbar und wurden ausgelassen.</translation>
    </message>
    <message>
        <source>The presets could not be written to %1. %2</source>
        <translation>Die Voreinstellungen konnten nicht nach %1 geschrieben werden. %2</translation>
    </message>
    <message>
        <source>The printer has no option &quot;%1&quot;.</source>
        <translation>Der Drucker hat keine Option „%1“.</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Und %1 weitere.</translation>
    </message>
    <message>
        <source>Not all of &quot;%1&quot; can be had now.</source>
        <translation>Nicht alles aus „%1“ ist jetzt möglich.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the presets.</source>
        <translation>Der Speicher reicht nicht, um die Voreinstellungen zu lesen.</translation>
    </message>
</context>
<context>
    <name>PrintRun</name>
    <message>
        <source>less than a minute left</source>
        <translation>noch weniger als eine Minute</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>noch etwa %1 Minuten</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>noch etwa %1 Stunden</translation>
    </message>
    <message>
        <source>Sending the photo...</source>
        <translation>Foto wird gesendet ...</translation>
    </message>
    <message>
        <source>Paused: %1 of %2 photos are sent.</source>
        <translation>Angehalten: %1 von %2 Fotos sind gesendet.</translation>
    </message>
    <message>
        <source>Sending photo %1 of %2</source>
        <translation>Foto %1 von %2 wird gesendet</translation>
    </message>
</context>
<context>
    <name>PrinterActions</name>
    <message>
        <source>&amp;Resume</source>
        <translation>F&amp;ortsetzen</translation>
    </message>
    <message>
        <source>&amp;Accept Jobs</source>
        <translation>A&amp;ufträge annehmen</translation>
    </message>
    <message>
        <source>Re&amp;lease</source>
        <translation>Freigebe&amp;n</translation>
    </message>
    <message>
        <source>The print server does not let you do that with &quot;%1&quot;. Ask whoever looks after it.</source>
        <translation>Der Druckserver erlaubt Ihnen das bei „%1“ nicht. Fragen Sie, wer ihn verwaltet.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Does not accept jobs</source>
        <translation>Nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Druckt</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Im Netz gefunden</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Braucht Hilfe</translation>
    </message>
    <message>
        <source>The print server has no printers. Add one, for example with lpadmin.</source>
        <translation>Der Druckserver hat keine Drucker. Richten Sie einen ein, zum Beispiel mit lpadmin.</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot;. It has: %2.</source>
        <translation>Der Druckserver hat keinen Drucker „%1“. Er hat: %2.</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot;. It has: %2, and %3 more (lpstat -e).</source>
        <translation>Der Druckserver hat keinen Drucker „%1“. Er hat: %2 und %3 weitere (lpstat -e).</translation>
    </message>
    <message>
        <source>The print server has no default printer. Name one with --printer.</source>
        <translation>Der Druckserver hat keinen Standarddrucker. Nennen Sie einen mit --printer.</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>Der Drucker antwortet nicht</translation>
    </message>
</context>
<context>
    <name>PrinterReport</name>
    <message>
        <source>The printer&apos;s answer about itself is too long to be true, and was not read.</source>
        <translation>Die Auskunft des Druckers über sich selbst ist zu lang, um wahr zu sein, und wurde nicht gelesen.</translation>
    </message>
    <message>
        <source>The printer does not tell strangers what is in it.</source>
        <translation>Der Drucker sagt Fremden nicht, was in ihm ist.</translation>
    </message>
    <message>
        <source>The printer does not answer. Is it switched on, and in this network?</source>
        <translation>Der Drucker antwortet nicht. Ist er eingeschaltet und in diesem Netz?</translation>
    </message>
    <message>
        <source>The printer does not say what is in it.</source>
        <translation>Der Drucker sagt nicht, was in ihm ist.</translation>
    </message>
</context>
<context>
    <name>QueuePpd</name>
    <message>
        <source>The description of the printer &quot;%1&quot; is damaged: %2. Install its driver again, or choose another printer.</source>
        <translation>Die Beschreibung des Druckers „%1“ ist beschädigt: %2. Installieren Sie den Treiber neu oder wählen Sie einen anderen Drucker.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no description on the print server, and does not tell by itself what it can do. Install it with a driver, or choose another printer.</source>
        <translation>Der Drucker „%1“ hat auf dem Druckserver keine Beschreibung und sagt nicht selbst, was er kann. Richten Sie ihn mit einem Treiber ein oder wählen Sie einen anderen.</translation>
    </message>
</context>
<context>
    <name>RefilledTray</name>
    <message>
        <source>&quot;%1&quot; has other paper now.</source>
        <translation>In „%1“ ist jetzt anderes Papier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has other paper now, and the page follows: %2.</source>
        <translation>In „%1“ ist jetzt anderes Papier, und die Seite folgt ihm: %2.</translation>
    </message>
    <message>
        <source>Its kind, %1, could not be chosen: the paper type is still &quot;%2&quot;.</source>
        <translation>Dessen Art, %1, war nicht zu wählen: Die Papierart ist weiterhin „%2“.</translation>
    </message>
</context>
<context>
    <name>ReviewSwitch</name>
    <message>
        <source>Re&amp;view before printing</source>
        <translation>Vor dem Drucken prü&amp;fen</translation>
    </message>
    <message>
        <source>Shows the pages as the application has made them, before they go to the printer</source>
        <translation>Zeigt die Seiten, wie die Anwendung sie erstellt hat, bevor sie zum Drucker gehen</translation>
    </message>
</context>
<context>
    <name>SecretStore</name>
    <message>
        <source>Printing on %1</source>
        <translation>Drucken auf %1</translation>
    </message>
</context>
<context>
    <name>ServerCertificate</name>
    <message>
        <source>a certificate whose file cannot be read any more</source>
        <translation>ein Zertifikat, dessen Datei nicht mehr gelesen werden kann</translation>
    </message>
</context>
<context>
    <name>SheetWords</name>
    <message>
        <source>1 sheet</source>
        <translation>1 Blatt</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>%1 Blätter</translation>
    </message>
    <message>
        <source>photos in %1 × %2 mm</source>
        <translation>Fotos in %1 × %2 mm</translation>
    </message>
    <message>
        <source>with captions</source>
        <translation>mit Beschriftung</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>mit Schnittmarken</translation>
    </message>
    <message>
        <source>white border %1 mm</source>
        <translation>weißer Rand %1 mm</translation>
    </message>
    <message>
        <source>Sheet %1: %2, %3 x %4 mm at %5, %6 mm</source>
        <translation>Blatt %1: %2, %3 x %4 mm bei %5, %6 mm</translation>
    </message>
</context>
<context>
    <name>StartingOptions</name>
    <message>
        <source>The printer &quot;%1&quot; prints no text on the back of a picture. Leave --backprint out, or choose another printer.</source>
        <translation>Der Drucker „%1“ druckt keinen Text auf die Rückseite. Lassen Sie --backprint weg oder wählen Sie einen anderen Drucker.</translation>
    </message>
</context>
<context>
    <name>StateReasons</name>
    <message>
        <source>out of paper</source>
        <translation>kein Papier</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>wenig Papier</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>Papierstau</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>eine Klappe ist offen</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>die Abdeckung ist offen</translation>
    </message>
    <message>
        <source>not connected or switched off</source>
        <translation>nicht verbunden oder ausgeschaltet</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>verbindet</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>wird angehalten</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>wenig Toner</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>kein Toner</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>wenig Tinte</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>keine Tinte</translation>
    </message>
    <message>
        <source>the waste tank is nearly full</source>
        <translation>der Resttank ist fast voll</translation>
    </message>
    <message>
        <source>the waste tank is full</source>
        <translation>der Resttank ist voll</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>das Ausgabefach ist voll</translation>
    </message>
    <message>
        <source>does not answer</source>
        <translation>antwortet nicht</translation>
    </message>
    <message>
        <source>its driver is not installed</source>
        <translation>sein Treiber ist nicht installiert</translation>
    </message>
    <message>
        <source>its driver is not installed safely</source>
        <translation>sein Treiber ist nicht sicher installiert</translation>
    </message>
    <message>
        <source>needs attention</source>
        <translation>braucht Aufmerksamkeit</translation>
    </message>
    <message>
        <source>Load paper.</source>
        <translation>Legen Sie Papier ein.</translation>
    </message>
    <message>
        <source>Load the paper that the job wants.</source>
        <translation>Legen Sie das Papier ein, das der Auftrag braucht.</translation>
    </message>
    <message>
        <source>Load paper soon.</source>
        <translation>Legen Sie bald Papier nach.</translation>
    </message>
    <message>
        <source>Take the jammed paper out.</source>
        <translation>Nehmen Sie das gestaute Papier heraus.</translation>
    </message>
    <message>
        <source>a paper tray is missing</source>
        <translation>ein Papierfach fehlt</translation>
    </message>
    <message>
        <source>Push the paper tray in.</source>
        <translation>Schieben Sie das Papierfach ein.</translation>
    </message>
    <message>
        <source>the output tray is missing</source>
        <translation>das Ausgabefach fehlt</translation>
    </message>
    <message>
        <source>Put the output tray in.</source>
        <translation>Setzen Sie das Ausgabefach ein.</translation>
    </message>
    <message>
        <source>Empty the output tray.</source>
        <translation>Leeren Sie das Ausgabefach.</translation>
    </message>
    <message>
        <source>the output tray is nearly full</source>
        <translation>das Ausgabefach ist fast voll</translation>
    </message>
    <message>
        <source>Empty the output tray soon.</source>
        <translation>Leeren Sie bald das Ausgabefach.</translation>
    </message>
    <message>
        <source>Close the printer&apos;s door; the job goes on then.</source>
        <translation>Schließen Sie die Klappe des Druckers; dann geht der Auftrag weiter.</translation>
    </message>
    <message>
        <source>Close the cover; the job goes on then.</source>
        <translation>Schließen Sie die Abdeckung; dann geht der Auftrag weiter.</translation>
    </message>
    <message>
        <source>something is open</source>
        <translation>etwas ist offen</translation>
    </message>
    <message>
        <source>Close what is open; the job goes on then.</source>
        <translation>Schließen Sie, was offen ist; dann geht der Auftrag weiter.</translation>
    </message>
    <message>
        <source>Switch the printer on and look at its cable or network.</source>
        <translation>Schalten Sie den Drucker ein und prüfen Sie sein Kabel oder Netz.</translation>
    </message>
    <message>
        <source>Resume it, or ask whoever has paused it.</source>
        <translation>Setzen Sie ihn fort oder fragen Sie, wer ihn angehalten hat.</translation>
    </message>
    <message>
        <source>holds new jobs</source>
        <translation>hält neue Aufträge zurück</translation>
    </message>
    <message>
        <source>Release it, and new jobs are printed.</source>
        <translation>Geben Sie ihn frei; dann werden neue Aufträge gedruckt.</translation>
    </message>
    <message>
        <source>Switch the printer on.</source>
        <translation>Schalten Sie den Drucker ein.</translation>
    </message>
    <message>
        <source>Have new toner at hand.</source>
        <translation>Halten Sie neuen Toner bereit.</translation>
    </message>
    <message>
        <source>Put new toner in.</source>
        <translation>Setzen Sie neuen Toner ein.</translation>
    </message>
    <message>
        <source>Have new ink at hand.</source>
        <translation>Halten Sie neue Tinte bereit.</translation>
    </message>
    <message>
        <source>Put new ink in.</source>
        <translation>Setzen Sie neue Tinte ein.</translation>
    </message>
    <message>
        <source>an ink cartridge is missing</source>
        <translation>eine Tintenpatrone fehlt</translation>
    </message>
    <message>
        <source>Put the missing cartridge in.</source>
        <translation>Setzen Sie die fehlende Patrone ein.</translation>
    </message>
    <message>
        <source>Have a new waste tank at hand.</source>
        <translation>Halten Sie einen neuen Resttank bereit.</translation>
    </message>
    <message>
        <source>Put a new waste tank in.</source>
        <translation>Setzen Sie einen neuen Resttank ein.</translation>
    </message>
    <message>
        <source>too hot</source>
        <translation>zu heiß</translation>
    </message>
    <message>
        <source>Let the printer cool down.</source>
        <translation>Lassen Sie den Drucker abkühlen.</translation>
    </message>
    <message>
        <source>warming up</source>
        <translation>wärmt auf</translation>
    </message>
    <message>
        <source>the drum is nearly worn out</source>
        <translation>die Trommel ist fast verbraucht</translation>
    </message>
    <message>
        <source>Have a new drum at hand.</source>
        <translation>Halten Sie eine neue Trommel bereit.</translation>
    </message>
    <message>
        <source>the drum is worn out</source>
        <translation>die Trommel ist verbraucht</translation>
    </message>
    <message>
        <source>Put a new drum in.</source>
        <translation>Setzen Sie eine neue Trommel ein.</translation>
    </message>
    <message>
        <source>developer is low</source>
        <translation>wenig Entwickler</translation>
    </message>
    <message>
        <source>Have new developer at hand.</source>
        <translation>Halten Sie neuen Entwickler bereit.</translation>
    </message>
    <message>
        <source>out of developer</source>
        <translation>kein Entwickler</translation>
    </message>
    <message>
        <source>Put new developer in.</source>
        <translation>Setzen Sie neuen Entwickler ein.</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>reinigt sich</translation>
    </message>
    <message>
        <source>no room for more jobs</source>
        <translation>kein Platz für weitere Aufträge</translation>
    </message>
    <message>
        <source>Wait until jobs are printed, or cancel some.</source>
        <translation>Warten Sie, bis Aufträge gedruckt sind, oder brechen Sie einige ab.</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>hält an</translation>
    </message>
    <message>
        <source>Install the printer&apos;s driver.</source>
        <translation>Installieren Sie den Treiber des Druckers.</translation>
    </message>
    <message>
        <source>Install the printer&apos;s driver anew.</source>
        <translation>Installieren Sie den Treiber des Druckers neu.</translation>
    </message>
    <message>
        <source>Look at the printer&apos;s own display.</source>
        <translation>Sehen Sie auf die Anzeige des Druckers.</translation>
    </message>
</context>
<context>
    <name>Stepper</name>
    <message>
        <source>Increase</source>
        <translation>Erhöhen</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Verringern</translation>
    </message>
</context>
<context>
    <name>Supply</name>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Photo black</source>
        <translation>Fotoschwarz</translation>
    </message>
    <message>
        <source>Matte black</source>
        <translation>Mattschwarz</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Hellgrau</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>Hellcyan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>Hellmagenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Waste tank</source>
        <translation>Resttank</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinte</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Verbrauchsmaterial</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>full</source>
        <translation>voll</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, nearly full</source>
        <translation>%1, fast voll</translation>
    </message>
    <message>
        <source>%1 full</source>
        <translation>%1 voll</translation>
    </message>
    <message>
        <source>%1, low</source>
        <translation>%1, wenig</translation>
    </message>
    <message>
        <source>%1 is full</source>
        <translation>%1: voll</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1: leer</translation>
    </message>
    <message>
        <source>%1 is nearly full (%2)</source>
        <translation>%1: fast voll (%2)</translation>
    </message>
    <message>
        <source>%1 is low (%2)</source>
        <translation>%1: wenig (%2)</translation>
    </message>
</context>
<context>
    <name>TerminalQuestions</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>Send it all the same? [y/N]</source>
        <translation>Trotzdem senden? [ja/N]</translation>
    </message>
    <message>
        <source>Name [%1]:</source>
        <translation>Name [%1]:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Trust it from now on? [y/N]</source>
        <translation>Ab jetzt vertrauen? [ja/N]</translation>
    </message>
</context>
<context>
    <name>TrayWords</name>
    <message>
        <source>Main tray</source>
        <translation>Hauptfach</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Fotofach</translation>
    </message>
    <message>
        <source>Second tray</source>
        <translation>Zweites Fach</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Oberes Fach</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Mittleres Fach</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Unteres Fach</translation>
    </message>
    <message>
        <source>Rear feed</source>
        <translation>Hinterer Einzug</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Seitliches Fach</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Manueller Einzug</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>Zusatzfach</translation>
    </message>
    <message>
        <source>Large tray</source>
        <translation>Großraumfach</translation>
    </message>
    <message>
        <source>Envelope feed</source>
        <translation>Umschlageinzug</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Disc-Fach</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Second roll</source>
        <translation>Zweite Rolle</translation>
    </message>
    <message>
        <source>Plain paper</source>
        <translation>Normalpapier</translation>
    </message>
    <message>
        <source>Thin paper</source>
        <translation>Dünnes Papier</translation>
    </message>
    <message>
        <source>Heavy paper</source>
        <translation>Schweres Papier</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Inkjet-Papier</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>Beschichtetes Papier</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Briefpapier</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Feinpapier</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Fotopapier</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Glänzendes Fotopapier</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Hochglänzendes Fotopapier</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Halbglänzendes Fotopapier</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Seidenmattes Fotopapier</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Mattes Fotopapier</translation>
    </message>
    <message>
        <source>Photo film</source>
        <translation>Fotofilm</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Karton</translation>
    </message>
    <message>
        <source>Envelopes</source>
        <translation>Umschläge</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Transparencies</source>
        <translation>Folien</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Discs</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Fach %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rolle %1</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Fach</translation>
    </message>
</context>
<context>
    <name>TraysInWords</name>
    <message>
        <source>%1 mm wide</source>
        <translation>%1 mm breit</translation>
    </message>
    <message>
        <source>%1 in wide</source>
        <translation>%1 Zoll breit</translation>
    </message>
    <message>
        <source>not loaded: needs %1 in the tray</source>
        <translation>nicht eingelegt: braucht %1 im Fach</translation>
    </message>
    <message>
        <source>not loaded: needs %1 in &quot;%2&quot;</source>
        <translation>nicht eingelegt: braucht %1 in „%2“</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is not in &quot;%2&quot;, but in &quot;%3&quot;.</source>
        <translation>Das Papierformat „%1“ ist nicht in „%2“, sondern in „%3“.</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is not loaded. There is &quot;%2&quot; in &quot;%3&quot;.</source>
        <translation>Das Papierformat „%1“ ist nicht eingelegt. In „%3“ ist „%2“.</translation>
    </message>
    <message>
        <source>The paper type is &quot;%1&quot;, but in &quot;%2&quot; there is &quot;%3&quot;.</source>
        <translation>Die Papierart ist „%1“, in „%2“ liegt aber „%3“.</translation>
    </message>
</context>
<context>
    <name>UserJobs</name>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Waiting: the printer is paused</source>
        <translation>Wartet: Der Drucker ist angehalten</translation>
    </message>
    <message>
        <source>Held: the printer wants a name and a password</source>
        <translation>Zurückgehalten: Der Drucker verlangt einen Namen und ein Passwort</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>Zurückgehalten</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Wird gedruckt</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Gestoppt</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Gedruckt</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>The print server does not let you cancel job %1. Ask whoever looks after it.</source>
        <translation>Der Druckserver erlaubt Ihnen nicht, Auftrag %1 abzubrechen. Fragen Sie, wer ihn verwaltet.</translation>
    </message>
    <message>
        <source>The print server does not let you hold job %1. Ask whoever looks after it.</source>
        <translation>Der Druckserver erlaubt Ihnen nicht, Auftrag %1 zurückzuhalten. Fragen Sie, wer ihn verwaltet.</translation>
    </message>
    <message>
        <source>The print server does not let you release job %1. Ask whoever looks after it.</source>
        <translation>Der Druckserver erlaubt Ihnen nicht, Auftrag %1 freizugeben. Fragen Sie, wer ihn verwaltet.</translation>
    </message>
    <message>
        <source>The print server does not let you print job %1 again. Ask whoever looks after it.</source>
        <translation>Der Druckserver erlaubt Ihnen nicht, Auftrag %1 erneut zu drucken. Fragen Sie, wer ihn verwaltet.</translation>
    </message>
    <message>
        <source>The print server does not let you sign in for job %1. Ask whoever looks after it.</source>
        <translation>Der Druckserver erlaubt Ihnen nicht, sich für Auftrag %1 anzumelden. Fragen Sie, wer ihn verwaltet.</translation>
    </message>
    <message>
        <source>The print server does not let you move job %1 to another printer. Ask whoever looks after it.</source>
        <translation>Der Druckserver erlaubt Ihnen nicht, Auftrag %1 zu einem anderen Drucker zu verschieben. Fragen Sie, wer ihn verwaltet.</translation>
    </message>
    <message>
        <source>Job %1 or the printer &quot;%2&quot; is not on the print server any more.</source>
        <translation>Auftrag %1 oder der Drucker „%2“ ist nicht mehr auf dem Druckserver.</translation>
    </message>
    <message>
        <source>Job %1 is not on the print server any more.</source>
        <translation>Auftrag %1 ist nicht mehr auf dem Druckserver.</translation>
    </message>
    <message>
        <source>That cannot be done with job %1 as it is now: it may have gone on or ended, or the print server has not kept its pages.</source>
        <translation>Das geht mit Auftrag %1 in seinem jetzigen Zustand nicht: Vielleicht ist er weitergelaufen oder beendet, oder der Druckserver hat seine Seiten nicht aufbewahrt.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>halvern::AccessDialogs</name>
    <message>
        <source>Trust this print server?</source>
        <translation>Diesem Druckserver vertrauen?</translation>
    </message>
    <message>
        <source>&amp;Trust It from Now On</source>
        <translation>Ab &amp;jetzt vertrauen</translation>
    </message>
</context>
<context>
    <name>halvern::BatchPrint</name>
    <message>
        <source>With --print-damaged it is printed all the same.</source>
        <translation>Mit --print-damaged wird es trotzdem gedruckt.</translation>
    </message>
    <message>
        <source>Changed to fit: %1=%2</source>
        <translation>Passend geändert: %1=%2</translation>
    </message>
    <message>
        <source>Cancelled: nothing was printed.</source>
        <translation>Abgebrochen: Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>Job %1 stays on the queue; &quot;cancel %2-%1&quot; takes it away.</source>
        <translation>Auftrag %1 bleibt in der Warteschlange; „cancel %2-%1“ nimmt ihn weg.</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>With &quot;-o PageSize=%1&quot; it fits.</source>
        <translation>Mit „-o PageSize=%1“ passt es.</translation>
    </message>
    <message>
        <source>With --skip-broken the others are printed.</source>
        <translation>Mit --skip-broken werden die anderen gedruckt.</translation>
    </message>
    <message>
        <source>None of the files can be printed.</source>
        <translation>Keine der Dateien kann gedruckt werden.</translation>
    </message>
    <message>
        <source>Stopped, but the print server does not answer: a part of the job may still be on the queue &quot;%1&quot;. Look at it before you print again.</source>
        <translation>Gestoppt, aber der Druckserver antwortet nicht: Ein Teil des Auftrags ist vielleicht noch in der Warteschlange „%1“. Sehen Sie dort nach, bevor Sie erneut drucken.</translation>
    </message>
</context>
<context>
    <name>halvern::CaptionRow</name>
    <message>
        <source>None; for example [C]  [F]</source>
        <translation>Keine; zum Beispiel [C]  [F]</translation>
    </message>
    <message>
        <source>Caption under each photo</source>
        <translation>Beschriftung unter jedem Foto</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>I&amp;nsert</source>
        <translation>Ei&amp;nfügen</translation>
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
        <translation>Schwarzpunkt kompensieren</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>Renderpriorität</translation>
    </message>
    <message>
        <source>The photo&apos;s darkest tone becomes the paper&apos;s darkest</source>
        <translation>Der dunkelste Ton des Fotos wird zum dunkelsten des Papiers</translation>
    </message>
    <message>
        <source>The printer&apos;s own: none is known</source>
        <translation>Profil des Druckers: keines bekannt</translation>
    </message>
    <message>
        <source>The printer&apos;s own: %1</source>
        <translation>Profil des Druckers: %1</translation>
    </message>
    <message>
        <source>Another file...</source>
        <translation>Andere Datei ...</translation>
    </message>
    <message>
        <source>Soft proof</source>
        <translation>Softproof</translation>
    </message>
    <message>
        <source>Paper white</source>
        <translation>Papierweiß</translation>
    </message>
    <message>
        <source>Gamut warning</source>
        <translation>Farbumfang-Warnung</translation>
    </message>
    <message>
        <source>The printer manages colors</source>
        <translation>Der Drucker verwaltet die Farben</translation>
    </message>
    <message>
        <source>This program manages colors</source>
        <translation>Dieses Programm verwaltet die Farben</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Color profile</source>
        <translation>Farbprofil</translation>
    </message>
    <message>
        <source>What becomes of colors that the printer cannot show</source>
        <translation>Was aus Farben wird, die der Drucker nicht wiedergeben kann</translation>
    </message>
    <message>
        <source>The preview shows the paper&apos;s own white and the deepest black on it</source>
        <translation>Die Vorschau zeigt das Weiß des Papiers und das tiefste Schwarz darauf</translation>
    </message>
    <message>
        <source>The preview paints over in pink what the printer cannot show</source>
        <translation>Die Vorschau übermalt in Rosa, was der Drucker nicht wiedergeben kann</translation>
    </message>
    <message>
        <source>The preview shows what the photo will look like on paper</source>
        <translation>Die Vorschau zeigt, wie das Foto auf Papier aussehen wird</translation>
    </message>
    <message>
        <source>Choose a Color Profile</source>
        <translation>Farbprofil wählen</translation>
    </message>
    <message>
        <source>Color profiles (*.icc *.icm *.ICC *.ICM);;All files (*)</source>
        <translation>Farbprofile (*.icc *.icm *.ICC *.ICM);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>halvern::CropEditor</name>
    <message>
        <source>%1 pixels per inch: it will look soft</source>
        <translation>%1 Pixel pro Zoll: Es wird unscharf aussehen</translation>
    </message>
    <message>
        <source>%1 pixels per inch</source>
        <translation>%1 Pixel pro Zoll</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Zentrieren</translation>
    </message>
    <message>
        <source>Put the frame in the middle (C)</source>
        <translation>Den Rahmen in die Mitte setzen (C)</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Turn the photo clockwise (R)</source>
        <translation>Das Foto im Uhrzeigersinn drehen (R)</translation>
    </message>
    <message>
        <source>As Large As Can Be</source>
        <translation>So groß wie möglich</translation>
    </message>
    <message>
        <source>Show as much of the photo as can be (0)</source>
        <translation>So viel vom Foto zeigen wie möglich (0)</translation>
    </message>
    <message>
        <source>Same for All</source>
        <translation>Für alle gleich</translation>
    </message>
    <message>
        <source>Crop and turn all photos like this one</source>
        <translation>Alle Fotos wie dieses zuschneiden und drehen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Back to the sheet (Esc)</source>
        <translation>Zurück zum Blatt (Esc)</translation>
    </message>
    <message>
        <source>%1 % of the photo</source>
        <translation>%1 % des Fotos</translation>
    </message>
</context>
<context>
    <name>halvern::CustomField</name>
    <message>
        <source>Other value...</source>
        <translation>Anderer Wert ...</translation>
    </message>
    <message>
        <source>%1: other value</source>
        <translation>%1: anderer Wert</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
</context>
<context>
    <name>halvern::CustomPaperRow</name>
    <message>
        <source>Width of the paper</source>
        <translation>Breite des Papiers</translation>
    </message>
    <message>
        <source>Height of the paper</source>
        <translation>Höhe des Papiers</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Merken</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>Längeneinheit</translation>
    </message>
    <message>
        <source>Name, to find it again</source>
        <translation>Name zum Wiederfinden</translation>
    </message>
    <message>
        <source>Name of this paper size</source>
        <translation>Name dieses Papierformats</translation>
    </message>
    <message>
        <source>From %1 to %2 %3</source>
        <translation>Von %1 bis %2 %3</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Vergessen</translation>
    </message>
    <message>
        <source>As &amp;Long as the Photo</source>
        <translation>So la&amp;ng wie das Foto</translation>
    </message>
    <message>
        <source>As &amp;High as the Photo</source>
        <translation>So &amp;hoch wie das Foto</translation>
    </message>
</context>
<context>
    <name>halvern::DialogSession</name>
    <message>
        <source>No printer is chosen. Choose one from the list.</source>
        <translation>Es ist kein Drucker gewählt. Wählen Sie einen aus der Liste.</translation>
    </message>
    <message>
        <source>Nothing is known of the printer &quot;%1&quot; yet. Wait for it, or choose another one.</source>
        <translation>Vom Drucker „%1“ ist noch nichts bekannt. Warten Sie auf ihn oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The photos are still being read. Wait a moment.</source>
        <translation>Die Fotos werden noch gelesen. Warten Sie einen Moment.</translation>
    </message>
    <message>
        <source>There is no photo to print. Open the dialog with one.</source>
        <translation>Es gibt kein Foto zum Drucken. Öffnen Sie den Dialog mit einem.</translation>
    </message>
    <message>
        <source>All photos are left out. Include at least one of them.</source>
        <translation>Alle Fotos sind weggelassen. Nehmen Sie mindestens eines davon auf.</translation>
    </message>
    <message>
        <source>All photos are cropped and turned like &quot;%1&quot; now.</source>
        <translation>Alle Fotos sind jetzt wie „%1“ zugeschnitten und gedreht.</translation>
    </message>
    <message>
        <source>1 photo was moved.</source>
        <translation>1 Foto wurde verschoben.</translation>
    </message>
    <message>
        <source>%1 photos were moved.</source>
        <translation>%1 Fotos wurden verschoben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was taken out.</source>
        <translation>„%1“ wurde herausgenommen.</translation>
    </message>
    <message>
        <source>%1 photos were taken out.</source>
        <translation>%1 Fotos wurden herausgenommen.</translation>
    </message>
    <message>
        <source>All photos are printed now.</source>
        <translation>Jetzt werden alle Fotos gedruckt.</translation>
    </message>
    <message>
        <source>%1 of %2 photos are printed now.</source>
        <translation>Jetzt werden %1 von %2 Fotos gedruckt.</translation>
    </message>
    <message>
        <source>The layout was changed.</source>
        <translation>Die Anordnung wurde geändert.</translation>
    </message>
    <message>
        <source>The photo&apos;s size or place was changed.</source>
        <translation>Größe oder Ort des Fotos wurde geändert.</translation>
    </message>
</context>
<context>
    <name>halvern::DocumentSpool</name>
    <message>
        <source>The document cannot be read: %1. Print it once more from its application.</source>
        <translation>Das Dokument ist nicht lesbar: %1. Drucken Sie es noch einmal aus seiner Anwendung.</translation>
    </message>
    <message>
        <source>There is no room for the document: %1. Make room on the disk, and print it once more.</source>
        <translation>Für das Dokument ist kein Platz: %1. Schaffen Sie Platz auf der Festplatte und drucken Sie es noch einmal.</translation>
    </message>
    <message>
        <source>No file can be made for the document in &quot;%1&quot;. Make sure that you may write there, and print it once more.</source>
        <translation>In „%1“ kann keine Datei für das Dokument angelegt werden. Prüfen Sie, ob Sie dort schreiben dürfen, und drucken Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The application has gone before its document was whole. Print it once more.</source>
        <translation>Die Anwendung ist verschwunden, bevor ihr Dokument ganz da war. Drucken Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The computer is too busy to take the document. Close something, and print it once more.</source>
        <translation>Der Computer ist zu beschäftigt, um das Dokument anzunehmen. Schließen Sie etwas und drucken Sie es noch einmal.</translation>
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
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Page of the help</source>
        <translation>Seite der Hilfe</translation>
    </message>
    <message>
        <source>Search the help (%1)</source>
        <translation>Hilfe durchsuchen (%1)</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Hilfe durchsuchen</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>Help - %1</source>
        <translation>Hilfe - %1</translation>
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
        <translation>%1, in %2</translation>
    </message>
</context>
<context>
    <name>halvern::JobPage</name>
    <message>
        <source>At once</source>
        <translation>Sofort</translation>
    </message>
    <message>
        <source>When somebody releases it</source>
        <translation>Wenn ihn jemand freigibt</translation>
    </message>
    <message>
        <source>By day, from 6:00</source>
        <translation>Tagsüber, ab 6:00 Uhr</translation>
    </message>
    <message>
        <source>In the evening, from 18:00</source>
        <translation>Abends, ab 18:00 Uhr</translation>
    </message>
    <message>
        <source>At night, from 18:00</source>
        <translation>Nachts, ab 18:00 Uhr</translation>
    </message>
    <message>
        <source>In the second shift, from 16:00</source>
        <translation>In der zweiten Schicht, ab 16:00 Uhr</translation>
    </message>
    <message>
        <source>In the third shift, from 0:00</source>
        <translation>In der dritten Schicht, ab 0:00 Uhr</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Am Wochenende</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Nicht eingestuft</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Vertraulich</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Eingestuft</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Geheim</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Streng geheim</translation>
    </message>
    <message>
        <source>1 waits longest, 100 goes first</source>
        <translation>1 wartet am längsten, 100 kommt zuerst</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>Pr&amp;iority:</source>
        <translation>&amp;Priorität:</translation>
    </message>
    <message>
        <source>Print &amp;when:</source>
        <translation>&amp;Wann drucken:</translation>
    </message>
    <message>
        <source>Page &amp;before:</source>
        <translation>Seite da&amp;vor:</translation>
    </message>
    <message>
        <source>Page &amp;after:</source>
        <translation>Seite da&amp;nach:</translation>
    </message>
    <message>
        <source>Print when</source>
        <translation>Wann drucken</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>At a time of day</source>
        <translation>Zu einer Uhrzeit</translation>
    </message>
    <message>
        <source>Pages before and after the job are decided on the page &quot;%1&quot;.</source>
        <translation>Über Seiten vor und nach dem Auftrag entscheidet die Seite „%1“.</translation>
    </message>
</context>
<context>
    <name>halvern::JobRows</name>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
</context>
<context>
    <name>halvern::JobsButton</name>
    <message>
        <source>Jobs...</source>
        <translation>Aufträge ...</translation>
    </message>
    <message>
        <source>Your jobs on this printer</source>
        <translation>Ihre Aufträge auf diesem Drucker</translation>
    </message>
</context>
<context>
    <name>halvern::JobsWindow</name>
    <message>
        <source>Show jobs that have ended</source>
        <translation>Beendete Aufträge zeigen</translation>
    </message>
    <message>
        <source>Your Jobs on %1</source>
        <translation>Ihre Aufträge auf %1</translation>
    </message>
    <message>
        <source>Your jobs</source>
        <translation>Ihre Aufträge</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Auftrag abbrechen</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Zurückhalten</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Freigeben</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>Erneut drucken</translation>
    </message>
    <message>
        <source>Sign In...</source>
        <translation>Anmelden ...</translation>
    </message>
    <message>
        <source>Move To</source>
        <translation>Verschieben nach</translation>
    </message>
    <message>
        <source>Asking the print server...</source>
        <translation>Der Druckserver wird gefragt ...</translation>
    </message>
    <message>
        <source>You have no jobs on this printer.</source>
        <translation>Sie haben keine Aufträge auf diesem Drucker.</translation>
    </message>
    <message>
        <source>The print server has no other printer</source>
        <translation>Der Druckserver hat keinen anderen Drucker</translation>
    </message>
</context>
<context>
    <name>halvern::KeepLayoutRow</name>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Merken</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Vergessen</translation>
    </message>
    <message>
        <source>Name, to find it again</source>
        <translation>Name, um es wiederzufinden</translation>
    </message>
    <message>
        <source>Name of the layout</source>
        <translation>Name des Layouts</translation>
    </message>
</context>
<context>
    <name>halvern::LayoutPage</name>
    <message>
        <source>Rows</source>
        <translation>Reihen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Width of each photo</source>
        <translation>Breite jedes Fotos</translation>
    </message>
    <message>
        <source>Height of each photo</source>
        <translation>Höhe jedes Fotos</translation>
    </message>
    <message>
        <source>&amp;Each photo fills its own sheet</source>
        <translation>&amp;Jedes Foto füllt ein eigenes Blatt</translation>
    </message>
    <message>
        <source>Margin of the sheet</source>
        <translation>Rand des Blattes</translation>
    </message>
    <message>
        <source>White border</source>
        <translation>Weißer Rand</translation>
    </message>
    <message>
        <source>Thin l&amp;ine</source>
        <translation>Dünne L&amp;inie</translation>
    </message>
    <message>
        <source>Copies of this photo</source>
        <translation>Exemplare dieses Fotos</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>Zuschneiden ...</translation>
    </message>
    <message>
        <source>Same Crop for All</source>
        <translation>Alle so zuschneiden</translation>
    </message>
    <message>
        <source>&amp;Layout:</source>
        <translation>&amp;Layout:</translation>
    </message>
    <message>
        <source>Photo si&amp;ze:</source>
        <translation>&amp;Größe des Fotos:</translation>
    </message>
    <message>
        <source>Pl&amp;ace:</source>
        <translation>Pl&amp;atz:</translation>
    </message>
    <message>
        <source>&amp;Margin:</source>
        <translation>&amp;Blattrand:</translation>
    </message>
    <message>
        <source>White &amp;border:</source>
        <translation>&amp;Weißer Rand:</translation>
    </message>
    <message>
        <source>&amp;Caption:</source>
        <translation>Beschrif&amp;tung:</translation>
    </message>
    <message>
        <source>T&amp;his photo:</source>
        <translation>Dieses F&amp;oto:</translation>
    </message>
    <message>
        <source>As my la&amp;yout:</source>
        <translation>Als mein La&amp;yout:</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>rows of</source>
        <translation>Reihen zu</translation>
    </message>
    <message>
        <source> copies</source>
        <translation> Exemplare</translation>
    </message>
    <message>
        <source>One photo on each page</source>
        <translation>Ein Foto auf jeder Seite</translation>
    </message>
    <message>
        <source>Rows and columns</source>
        <translation>Reihen und Spalten</translation>
    </message>
    <message>
        <source>Photos of one size</source>
        <translation>Fotos einer Größe</translation>
    </message>
    <message>
        <source>Make the page %1 mm long, as the photos need</source>
        <translation>Die Seite %1 mm lang machen, wie es die Fotos brauchen</translation>
    </message>
    <message>
        <source> copy</source>
        <translation> Exemplar</translation>
    </message>
    <message>
        <source>Cu&amp;t marks</source>
        <translation>&amp;Schnittmarken</translation>
    </message>
</context>
<context>
    <name>halvern::LoginDialog</name>
    <message>
        <source>Send it &amp;all the same</source>
        <translation>&amp;Trotzdem senden</translation>
    </message>
    <message>
        <source>&amp;Remember it in the keyring</source>
        <translation>&amp;Im Schlüsselbund merken</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>&amp;Sign In</source>
        <translation>Anmel&amp;den</translation>
    </message>
</context>
<context>
    <name>halvern::MessageBar</name>
    <message>
        <source>Close the message</source>
        <translation>Meldung schließen</translation>
    </message>
    <message>
        <source>Previous message</source>
        <translation>Vorige Meldung</translation>
    </message>
    <message>
        <source>Next message</source>
        <translation>Nächste Meldung</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>halvern::Notices</name>
    <message>
        <source>Printing</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Printing from %1</source>
        <translation>Drucken aus %1</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
</context>
<context>
    <name>halvern::OptionDelegate</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 auf %2</translation>
    </message>
    <message>
        <source>also sets %1</source>
        <translation>setzt auch %1</translation>
    </message>
</context>
<context>
    <name>halvern::OptionFinder</name>
    <message>
        <source>Search options and printers (Ctrl+F)</source>
        <translation>Optionen und Drucker suchen (Strg+F)</translation>
    </message>
    <message>
        <source>Search options and printers</source>
        <translation>Optionen und Drucker suchen</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>%1 › %2</source>
        <translation>%1 › %2</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Suche ...</translation>
    </message>
    <message>
        <source>Nothing has this name.</source>
        <translation>Nichts hat diesen Namen.</translation>
    </message>
    <message>
        <source>The first %1 that were found</source>
        <translation>Die ersten %1 Treffer</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
</context>
<context>
    <name>halvern::OptionTree</name>
    <message>
        <source>Installed in the printer (set by whoever installed it)</source>
        <translation>Im Drucker eingebaut (bei der Einrichtung festgelegt)</translation>
    </message>
    <message>
        <source>%1 (the printer&apos;s default)</source>
        <translation>%1 (Vorgabe des Druckers)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Put back to the printer&apos;s default: %1</source>
        <translation>Auf die Vorgabe des Druckers zurücksetzen: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Changed from the printer&apos;s default</source>
        <translation>Weicht von der Vorgabe des Druckers ab</translation>
    </message>
    <message>
        <source>As the printer is set</source>
        <translation>Wie am Drucker eingestellt</translation>
    </message>
</context>
<context>
    <name>halvern::OptionsPage</name>
    <message>
        <source>Show changed only</source>
        <translation>Nur geänderte zeigen</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Alle zurücksetzen</translation>
    </message>
    <message>
        <source>Puts the options of this page back to the printer&apos;s defaults</source>
        <translation>Setzt die Optionen dieser Seite auf die Vorgaben des Druckers zurück</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Nothing changed</source>
        <translation>Nichts geändert</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 geändert</translation>
    </message>
    <message>
        <source>Put Back to the Printer&apos;s Default</source>
        <translation>Auf die Vorgabe des Druckers zurücksetzen</translation>
    </message>
</context>
<context>
    <name>halvern::OutputMenu</name>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Print to a &amp;PDF File...</source>
        <translation>In eine &amp;PDF-Datei drucken ...</translation>
    </message>
    <message>
        <source>&amp;Copy as Command</source>
        <translation>Als &amp;Befehl kopieren</translation>
    </message>
    <message>
        <source>Print to a PDF File</source>
        <translation>In eine PDF-Datei drucken</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>The command that prints this again is on the clipboard.</source>
        <translation>Der Befehl, der dies wieder druckt, ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>A file is being written still. Write the next one when it is there.</source>
        <translation>Es wird noch eine Datei geschrieben. Schreiben Sie die nächste, wenn diese fertig ist.</translation>
    </message>
    <message>
        <source>The command that prints this again is on the clipboard, without your PIN or password.</source>
        <translation>Der Befehl, der dies wieder druckt, ist in der Zwischenablage, ohne Ihre PIN oder Ihr Passwort.</translation>
    </message>
    <message>
        <source>%1 is one of the files to print. Choose another name.</source>
        <translation>%1 ist eine der zu druckenden Dateien. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>That folder goes when this window is closed. Choose another one.</source>
        <translation>Dieser Ordner verschwindet, wenn dieses Fenster geschlossen wird. Wählen Sie einen anderen.</translation>
    </message>
</context>
<context>
    <name>halvern::PageRangeRow</name>
    <message>
        <source>Last page &amp;first</source>
        <translation>Let&amp;zte Seite zuerst</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Zu druckende Seiten</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>Gerade und ungerade</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>Nur ungerade</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>Nur gerade</translation>
    </message>
    <message>
        <source>Odd or even pages</source>
        <translation>Ungerade oder gerade Seiten</translation>
    </message>
    <message>
        <source>All %1, or for example 1-3, 5-</source>
        <translation>Alle %1, oder zum Beispiel 1-3, 5-</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Aktuelle Seite</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Which pages</source>
        <translation>Welche Seiten</translation>
    </message>
    <message>
        <source>All, or for example 1-3, 5-</source>
        <translation>Alle, oder zum Beispiel 1-3, 5-</translation>
    </message>
</context>
<context>
    <name>halvern::PanelDeck</name>
    <message>
        <source>Pages of options</source>
        <translation>Optionsseiten</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Weitere Optionen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>About the Photo</source>
        <translation>Über das Foto</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
</context>
<context>
    <name>halvern::PaperPage</name>
    <message>
        <source>P&amp;aper size:</source>
        <translation>P&amp;apierformat:</translation>
    </message>
    <message>
        <source>As the photo</source>
        <translation>Wie das Foto</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>Ausr&amp;ichtung:</translation>
    </message>
    <message>
        <source>Fit the whole photo on the page</source>
        <translation>Das ganze Foto auf die Seite einpassen</translation>
    </message>
    <message>
        <source>Fill the page, cut what is over</source>
        <translation>Die Seite füllen, Überstehendes abschneiden</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Photo si&amp;ze:</source>
        <translation>&amp;Größe des Fotos:</translation>
    </message>
    <message>
        <source>Search by name or measures</source>
        <translation>Nach Name oder Maßen suchen</translation>
    </message>
    <message>
        <source>&amp;Borderless</source>
        <translation>Rand&amp;los</translation>
    </message>
    <message>
        <source>&amp;Two-sided:</source>
        <translation>&amp;Beidseitig:</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Sei&amp;ten:</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>The printer does not have this paper size both with and without a margin.</source>
        <translation>Der Drucker hat dieses Papierformat nicht sowohl mit als auch ohne Rand.</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>&amp;Skalierung:</translation>
    </message>
    <message>
        <source>Loaded:</source>
        <translation>Eingelegt:</translation>
    </message>
    <message>
        <source>Co&amp;lors:</source>
        <translation>&amp;Farben:</translation>
    </message>
</context>
<context>
    <name>halvern::PaperSizeList</name>
    <message>
        <source>Custom size...</source>
        <translation>Eigenes Format ...</translation>
    </message>
</context>
<context>
    <name>halvern::PdfOutput</name>
    <message>
        <source>The file &quot;%1&quot; could not be written: %2.</source>
        <translation>Die Datei „%1“ konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no regular file. Name a file to write.</source>
        <translation>„%1“ ist keine gewöhnliche Datei. Nennen Sie eine Datei zum Schreiben.</translation>
    </message>
    <message>
        <source>Cancelled: no file was written.</source>
        <translation>Abgebrochen: Es wurde keine Datei geschrieben.</translation>
    </message>
    <message>
        <source>No file was written. %1</source>
        <translation>Es wurde keine Datei geschrieben. %1</translation>
    </message>
    <message>
        <source>1 page was written to &quot;%1&quot;.</source>
        <translation>1 Seite wurde in „%1“ geschrieben.</translation>
    </message>
    <message>
        <source>%1 pages were written to &quot;%2&quot;.</source>
        <translation>%1 Seiten wurden in „%2“ geschrieben.</translation>
    </message>
    <message>
        <source>The computer is too busy to write the file. Close something and try again.</source>
        <translation>Der Computer ist zu beschäftigt, um die Datei zu schreiben. Schließen Sie etwas und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoAdding</name>
    <message>
        <source>Add...</source>
        <translation>Hinzufügen ...</translation>
    </message>
    <message>
        <source>Add photos; they can be dropped on the window and pasted, too</source>
        <translation>Fotos hinzufügen; sie lassen sich auch ins Fenster ziehen und einfügen</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Add Photos</source>
        <translation>Fotos hinzufügen</translation>
    </message>
    <message>
        <source>Choose Photos</source>
        <translation>Fotos auswählen</translation>
    </message>
    <message>
        <source>The clipboard holds no photo. Copy a picture, or files of photos, first.</source>
        <translation>In der Zwischenablage ist kein Foto. Kopieren Sie zuerst ein Bild oder Fotodateien.</translation>
    </message>
    <message>
        <source>The picture cannot be kept in a temporary file. Make room on the disk.</source>
        <translation>Das Bild kann nicht in einer temporären Datei abgelegt werden. Schaffen Sie Platz auf der Festplatte.</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoListModel</name>
    <message>
        <source>%1, page %2</source>
        <translation>%1, Seite %2</translation>
    </message>
    <message>
        <source>Photo %1 of %2</source>
        <translation>Foto %1 von %2</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 Exemplar</translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation>%1 Exemplare</translation>
    </message>
    <message>
        <source>not printed</source>
        <translation>wird nicht gedruckt</translation>
    </message>
    <message>
        <source>a part of it is missing</source>
        <translation>ein Teil fehlt</translation>
    </message>
    <message>
        <source>Drag it to another place, or press Alt and an arrow key. Plus and minus change the copies, Space whether it is printed, Delete takes it out, Return crops it. More with a right click.</source>
        <translation>Ziehen Sie es an eine andere Stelle, oder drücken Sie Alt und eine Pfeiltaste. Plus und Minus ändern die Exemplare, die Leertaste, ob es gedruckt wird, Entf nimmt es heraus, die Eingabetaste schneidet es zu. Mehr mit einem Rechtsklick.</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoLoader</name>
    <message>
        <source>&quot;%1&quot; cannot be read now: the computer is too busy. Close something and open it again.</source>
        <translation>„%1“ ist jetzt nicht lesbar: Der Computer ist zu beschäftigt. Schließen Sie etwas und öffnen Sie die Datei erneut.</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoPage</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>1/%1 s</source>
        <translation>1/%1 s</translation>
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
        <translation>Adobe RGB, laut Kamera</translation>
    </message>
    <message>
        <source>sRGB, as the file notes</source>
        <translation>sRGB, laut Datei</translation>
    </message>
    <message>
        <source>Not said; taken as sRGB</source>
        <translation>Keine Angabe; gilt als sRGB</translation>
    </message>
    <message>
        <source>%1 x %2 pixels (%3 megapixels)</source>
        <translation>%1 x %2 Pixel (%3 Megapixel)</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Art:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>Problem:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>Colors:</source>
        <translation>Farben:</translation>
    </message>
    <message>
        <source>Taken:</source>
        <translation>Aufgenommen:</translation>
    </message>
    <message>
        <source>Camera:</source>
        <translation>Kamera:</translation>
    </message>
    <message>
        <source>Lens:</source>
        <translation>Objektiv:</translation>
    </message>
    <message>
        <source>Exposure:</source>
        <translation>Belichtung:</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Rating:</source>
        <translation>Bewertung:</translation>
    </message>
    <message>
        <source>CMYK without a profile; taken as ideal inks</source>
        <translation>CMYK ohne Profil; gilt als ideale Tinten</translation>
    </message>
    <message>
        <source>Gray without a profile; taken as sRGB</source>
        <translation>Grau ohne Profil; gilt als sRGB</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoPlaceRow</name>
    <message>
        <source>Away from the corner:</source>
        <translation>Von der Ecke entfernt:</translation>
    </message>
    <message>
        <source>From the left</source>
        <translation>Von links</translation>
    </message>
    <message>
        <source>From the top</source>
        <translation>Von oben</translation>
    </message>
    <message>
        <source>Without it the photo is in the middle of the sheet</source>
        <translation>Sonst ist das Foto in der Mitte des Blattes</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoSizeRow</name>
    <message>
        <source>Width of the photo</source>
        <translation>Breite des Fotos</translation>
    </message>
    <message>
        <source>Height of the photo</source>
        <translation>Höhe des Fotos</translation>
    </message>
    <message>
        <source>As large as the page</source>
        <translation>So groß wie die Seite</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
    <message>
        <source>Of its own size</source>
        <translation>Der eigenen Größe</translation>
    </message>
    <message>
        <source>Photo size</source>
        <translation>Größe des Fotos</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Percent of its own size</source>
        <translation>Prozent der eigenen Größe</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoStrip</name>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>Zuschneiden ...</translation>
    </message>
    <message>
        <source>Same Crop for All</source>
        <translation>Alle so zuschneiden</translation>
    </message>
    <message>
        <source>One More Copy</source>
        <translation>Ein Exemplar mehr</translation>
    </message>
    <message>
        <source>One Copy Less</source>
        <translation>Ein Exemplar weniger</translation>
    </message>
    <message>
        <source>Copies...</source>
        <translation>Exemplare ...</translation>
    </message>
    <message>
        <source>Print, or Not</source>
        <translation>Drucken oder nicht</translation>
    </message>
    <message>
        <source>Print Only These</source>
        <translation>Nur diese drucken</translation>
    </message>
    <message>
        <source>Print All Photos</source>
        <translation>Alle Fotos drucken</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>Herausnehmen</translation>
    </message>
    <message>
        <source>Move Earlier</source>
        <translation>Nach vorn</translation>
    </message>
    <message>
        <source>Move Later</source>
        <translation>Nach hinten</translation>
    </message>
    <message>
        <source>Move to the Start</source>
        <translation>An den Anfang</translation>
    </message>
    <message>
        <source>Move to the End</source>
        <translation>Ans Ende</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 von %2 ausgewählt</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 Fotos</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Copies of this photo:</source>
        <translation>Exemplare dieses Fotos:</translation>
    </message>
    <message>
        <source>Copies of each of the %1 photos:</source>
        <translation>Exemplare von jedem der %1 Fotos:</translation>
    </message>
</context>
<context>
    <name>halvern::PresetBar</name>
    <message>
        <source>From your saved options (lpoptions)</source>
        <translation>Aus Ihren gespeicherten Optionen (lpoptions)</translation>
    </message>
    <message>
        <source>Made for a printer of the same model</source>
        <translation>Für einen Drucker desselben Modells angelegt</translation>
    </message>
    <message>
        <source>Nothing was printed here yet</source>
        <translation>Hier wurde noch nichts gedruckt</translation>
    </message>
    <message>
        <source>Presets (*.json)</source>
        <translation>Voreinstellungen (*.json)</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Voreinstellung</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Save, rename and more</source>
        <translation>Speichern, umbenennen und mehr</translation>
    </message>
    <message>
        <source>Read from the file, and not applied yet: %1</source>
        <translation>Aus der Datei gelesen und noch nicht angewendet: %1</translation>
    </message>
    <message>
        <source>%1 – changed</source>
        <translation>%1 – geändert</translation>
    </message>
    <message>
        <source>&amp;Save as New Preset...</source>
        <translation>Als neue Voreinstellung &amp;speichern ...</translation>
    </message>
    <message>
        <source>&amp;Import from File...</source>
        <translation>Aus Datei &amp;importieren ...</translation>
    </message>
    <message>
        <source>Export &amp;All to File...</source>
        <translation>&amp;Alle in Datei exportieren ...</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>&amp;Update &quot;%1&quot;</source>
        <translation>„%1“ a&amp;ktualisieren</translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation>A&amp;ktualisieren</translation>
    </message>
    <message>
        <source>&amp;Rename &quot;%1&quot;...</source>
        <translation>„%1“ &amp;umbenennen ...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Umbenennen ...</translation>
    </message>
    <message>
        <source>&amp;Delete &quot;%1&quot;</source>
        <translation>„%1“ &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Export &quot;%1&quot; to File...</source>
        <translation>„%1“ in Datei &amp;exportieren ...</translation>
    </message>
    <message>
        <source>&amp;Export to File...</source>
        <translation>In Datei &amp;exportieren ...</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; was deleted.</source>
        <translation>Die Voreinstellung „%1“ wurde gelöscht.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Rü&amp;ckgängig</translation>
    </message>
    <message>
        <source>Import Presets</source>
        <translation>Voreinstellungen importieren</translation>
    </message>
    <message>
        <source>Export Presets</source>
        <translation>Voreinstellungen exportieren</translation>
    </message>
</context>
<context>
    <name>halvern::PresetNameDialog</name>
    <message>
        <source>Save Preset</source>
        <translation>Voreinstellung speichern</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Voreinstellung umbenennen</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>With the number of &amp;copies (%1)</source>
        <translation>Mit der Zahl der &amp;Exemplare (%1)</translation>
    </message>
    <message>
        <source>With the &amp;pages to print</source>
        <translation>Mit den zu druckenden Se&amp;iten</translation>
    </message>
    <message>
        <source>With the &amp;text on the back</source>
        <translation>Mit dem &amp;Text auf der Rückseite</translation>
    </message>
    <message>
        <source>This name is always there. Choose another one.</source>
        <translation>Diesen Namen gibt es immer. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>There is a preset of this name. It will be replaced.</source>
        <translation>Es gibt eine Voreinstellung dieses Namens. Sie wird ersetzt.</translation>
    </message>
    <message>
        <source>There is a preset of this name. Choose another one.</source>
        <translation>Es gibt eine Voreinstellung dieses Namens. Wählen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>halvern::Presets</name>
    <message>
        <source>%1 (from %2)</source>
        <translation>%1 (von %2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no preset &quot;%2&quot;.</source>
        <translation>„%1“ hat keine Voreinstellung „%2“.</translation>
    </message>
    <message>
        <source>It has: %1.</source>
        <translation>Es gibt: %1.</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>Meinten Sie %1?</translation>
    </message>
</context>
<context>
    <name>halvern::PreviewSide</name>
    <message>
        <source>Previous photo</source>
        <translation>Voriges Foto</translation>
    </message>
    <message>
        <source>Next photo</source>
        <translation>Nächstes Foto</translation>
    </message>
    <message>
        <source>Reading the photo...</source>
        <translation>Foto wird gelesen ...</translation>
    </message>
    <message>
        <source>There is no photo to print.</source>
        <translation>Es gibt kein Foto zum Drucken.</translation>
    </message>
    <message>
        <source>No page is chosen.</source>
        <translation>Es ist keine Seite gewählt.</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <translation>%1, Seite %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>(front)</source>
        <translation>(Vorderseite)</translation>
    </message>
    <message>
        <source>(back)</source>
        <translation>(Rückseite)</translation>
    </message>
    <message>
        <source>Show the photos in a row, or not</source>
        <translation>Die Fotos in einer Reihe zeigen oder nicht</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Wird nicht gedruckt</translation>
    </message>
</context>
<context>
    <name>halvern::PreviewWidget</name>
    <message>
        <source>A part of this photo is missing</source>
        <translation>Ein Teil dieses Fotos fehlt</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 × %2 in</source>
        <translation>%1 × %2 Zoll</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Drag the photo to choose what is cut away</source>
        <translation>Ziehen Sie das Foto, um zu wählen, was wegfällt</translation>
    </message>
    <message>
        <source>part of the photo is cut away</source>
        <translation>ein Teil des Fotos fällt weg</translation>
    </message>
    <message>
        <source>Show at 1:1</source>
        <translation>Im Maßstab 1:1 zeigen</translation>
    </message>
    <message>
        <source>Show a screen pixel for each printer dot (double-click the photo, or press Z in the preview)</source>
        <translation>Für jeden Druckpunkt einen Bildschirmpunkt zeigen (Doppelklick auf das Foto oder Z in der Vorschau)</translation>
    </message>
    <message>
        <source>1:1, a screen pixel for each printer dot (%1 dpi)</source>
        <translation>1:1, ein Bildschirmpunkt je Druckpunkt (%1 dpi)</translation>
    </message>
    <message>
        <source>The printer&apos;s adjustments, approximated on the screen</source>
        <translation>Anpassungen des Druckers, am Bildschirm angenähert</translation>
    </message>
    <message>
        <source>Sharpening shows at 1:1</source>
        <translation>Die Schärfung ist bei 1:1 zu sehen</translation>
    </message>
    <message>
        <source>Reading the photo...</source>
        <translation>Foto wird gelesen ...</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Rückseite</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Choose the part of the photo that is printed (press C in the preview)</source>
        <translation>Den Teil des Fotos wählen, der gedruckt wird (in der Vorschau C drücken)</translation>
    </message>
    <message>
        <source>Show what is printed on the back of the picture</source>
        <translation>Zeigen, was auf die Rückseite des Bildes gedruckt wird</translation>
    </message>
    <message>
        <source>The back of the picture, as the printer writes on it</source>
        <translation>Die Rückseite des Bildes, wie der Drucker sie beschriftet</translation>
    </message>
    <message>
        <source>the edges are cut away</source>
        <translation>die Kanten werden abgeschnitten</translation>
    </message>
    <message>
        <source>The picture reaches %1 mm beyond each edge of the paper, so that nothing stays white: what is marked along the edges is cut away</source>
        <translation>Das Bild reicht %1 mm über jede Kante des Papiers hinaus, damit nichts weiß bleibt: Was an den Kanten markiert ist, wird abgeschnitten</translation>
    </message>
</context>
<context>
    <name>halvern::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>D&amp;rucker:</translation>
    </message>
    <message>
        <source>C&amp;opies:</source>
        <translation>Ex&amp;emplare:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Looking for printers...</source>
        <translation>Suche Drucker ...</translation>
    </message>
    <message>
        <source>The print server has no printers. Add one in the system&apos;s settings.</source>
        <translation>Der Druckserver hat keine Drucker. Richten Sie in den Systemeinstellungen einen ein.</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot;. Choose another one.</source>
        <translation>Der Druckserver hat keinen Drucker „%1“. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>To make that possible, this was changed too: %1</source>
        <translation>Damit das möglich ist, wurde auch geändert: %1</translation>
    </message>
    <message>
        <source>To go with what the printer has, this was changed: %1</source>
        <translation>Damit es zu dem passt, was im Drucker ist, wurde geändert: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Rü&amp;ckgängig</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Preparing the pages...</source>
        <translation>Seiten werden vorbereitet ...</translation>
    </message>
    <message>
        <source>Job %1 was sent to &quot;%2&quot;.</source>
        <translation>Auftrag %1 wurde an „%2“ gesendet.</translation>
    </message>
    <message>
        <source>Choose a printer and a paper size, look at the preview, and press Print. The list on the left of the options has the printer&apos;s own pages.</source>
        <translation>Wählen Sie Drucker und Papierformat, prüfen Sie die Vorschau und drücken Sie „Drucken“. Die Liste links neben den Optionen enthält die eigenen Seiten des Druckers.</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Wird abgebrochen ...</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Auftrag abbrechen</translation>
    </message>
    <message>
        <source>Asking the print server to cancel job %1...</source>
        <translation>Der Druckserver wird gebeten, Auftrag %1 abzubrechen ...</translation>
    </message>
    <message>
        <source>No answer from the print server.</source>
        <translation>Keine Antwort vom Druckserver.</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Whole sets one after the other: 1, 2, 3, 1, 2, 3</source>
        <translation>Ganze Sätze nacheinander: 1, 2, 3, 1, 2, 3</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>%1 verwenden</translation>
    </message>
    <message>
        <source>The printer cannot do what was chosen, so this stays: %1</source>
        <translation>Der Drucker kann nicht, was gewählt war; deshalb bleibt es bei: %1</translation>
    </message>
    <message>
        <source>Search by name, place or model</source>
        <translation>Nach Name, Ort oder Modell suchen</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>1 option was put back to the printer&apos;s default.</source>
        <translation>1 Option wurde auf die Vorgabe des Druckers zurückgesetzt.</translation>
    </message>
    <message>
        <source>%1 options were put back to the printer&apos;s defaults.</source>
        <translation>%1 Optionen wurden auf die Vorgaben des Druckers zurückgesetzt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was applied.</source>
        <translation>„%1“ wurde angewendet.</translation>
    </message>
    <message>
        <source>Writing the file...</source>
        <translation>Datei wird geschrieben ...</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>Voreinstellung:</translation>
    </message>
    <message>
        <source>An application</source>
        <translation>Eine Anwendung</translation>
    </message>
    <message>
        <source>The document is printed as it came. Its pages cannot be shown here.</source>
        <translation>Das Dokument wird gedruckt, wie es gekommen ist. Seine Seiten können hier nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>Print - %1</source>
        <translation>Drucken - %1</translation>
    </message>
    <message>
        <source>The application makes its pages afterwards, for this sheet.</source>
        <translation>Die Anwendung erstellt ihre Seiten danach, für dieses Blatt.</translation>
    </message>
    <message>
        <source>Sign &amp;In...</source>
        <translation>An&amp;melden ...</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot; any more. It was last seen on %2. Is it switched on, and on this network?</source>
        <translation>Der Druckserver hat keinen Drucker „%1“ mehr. Er wurde zuletzt am %2 gesehen. Ist er eingeschaltet und in diesem Netz?</translation>
    </message>
</context>
<context>
    <name>halvern::PrintRun</name>
    <message>
        <source>Cancelled: nothing was printed.</source>
        <translation>Abgebrochen: Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>Nothing was printed. %1</source>
        <translation>Es wurde nichts gedruckt. %1</translation>
    </message>
    <message>
        <source>The print server does not answer. Job %1 is cancelled as soon as it does, if this window is still open.</source>
        <translation>Der Druckserver antwortet nicht. Auftrag %1 wird abgebrochen, sobald er es tut, falls dieses Fenster dann noch offen ist.</translation>
    </message>
    <message>
        <source>Job %1 was sent to &quot;%2&quot;, but the print server has not answered for %3 seconds: whether it was printed is not known. Look at the printer before you print again.</source>
        <translation>Auftrag %1 wurde an „%2“ gesendet, aber der Druckserver hat seit %3 Sekunden nicht geantwortet: Ob er gedruckt wurde, ist nicht bekannt. Sehen Sie am Drucker nach, bevor Sie erneut drucken.</translation>
    </message>
    <message>
        <source>The document cannot be read any more: %1. Print it once more.</source>
        <translation>Das Dokument ist nicht mehr lesbar: %1. Drucken Sie es noch einmal.</translation>
    </message>
    <message>
        <source>%1 photos went out in %2 jobs; the others were not sent. %3</source>
        <translation>%1 Fotos sind in %2 Aufträgen gesendet; die anderen wurden nicht gesendet. %3</translation>
    </message>
    <message>
        <source>%1 photos were printed in %2 jobs, %3 to %4.</source>
        <translation>%1 Fotos wurden in %2 Aufträgen gedruckt, %3 bis %4.</translation>
    </message>
    <message>
        <source>The computer is too busy to send it. Close something and try again.</source>
        <translation>Der Computer ist zu beschäftigt zum Senden. Schließen Sie etwas und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Cancelled. Jobs that were printed before: %1.</source>
        <translation>Abgebrochen. Vorher gedruckte Aufträge: %1.</translation>
    </message>
    <message>
        <source>Stopped. These jobs are on the queue &quot;%1&quot; and stay there: %2.</source>
        <translation>Gestoppt. Diese Aufträge sind in der Warteschlange „%1“ und bleiben dort: %2.</translation>
    </message>
    <message>
        <source>Look at the printer before you print again.</source>
        <translation>Sehen Sie am Drucker nach, bevor Sie noch einmal drucken.</translation>
    </message>
    <message>
        <source>Cancelled. Sheets that were printed before: %1.</source>
        <translation>Abgebrochen. Vorher gedruckte Blätter: %1.</translation>
    </message>
</context>
<context>
    <name>halvern::PrintService</name>
    <message>
        <source>There is no session bus: %1.</source>
        <translation>Es gibt keinen Sitzungsbus: %1.</translation>
    </message>
    <message>
        <source>Another halvern-print-portal runs in this session already.</source>
        <translation>In dieser Sitzung läuft schon ein anderes halvern-print-portal.</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterChoice</name>
    <message>
        <source>Your default printer &quot;%1&quot; is none of the print server&apos;s. &quot;%2&quot; was chosen instead.</source>
        <translation>Ihr Standarddrucker „%1“ ist keiner des Druckservers. Stattdessen wurde „%2“ gewählt.</translation>
    </message>
    <message>
        <source>The application remembers a printer &quot;%1&quot; that is none of the print server&apos;s. &quot;%2&quot; was chosen instead.</source>
        <translation>Die Anwendung erinnert sich an einen Drucker „%1“, den der Druckserver nicht hat. Stattdessen wurde „%2“ gewählt.</translation>
    </message>
    <message>
        <source>There is not enough memory for the options of &quot;%1&quot;. Close something, and choose the printer again.</source>
        <translation>Der Speicher reicht nicht für die Optionen von „%1“. Schließen Sie etwas und wählen Sie den Drucker noch einmal.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server. Its options were read again.</source>
        <translation>„%1“ wurde auf dem Druckserver neu eingerichtet. Seine Optionen wurden neu gelesen.</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterPage</name>
    <message>
        <source>State:</source>
        <translation>Zustand:</translation>
    </message>
    <message>
        <source>What to do:</source>
        <translation>Was zu tun ist:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>Seit:</translation>
    </message>
    <message>
        <source>Jobs ahead:</source>
        <translation>Aufträge davor:</translation>
    </message>
    <message>
        <source>Printers in it:</source>
        <translation>Drucker darin:</translation>
    </message>
    <message>
        <source>Supplies:</source>
        <translation>Vorräte:</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>not on the print server</source>
        <translation>nicht auf dem Druckserver</translation>
    </message>
    <message>
        <source>Nothing is known of it yet.</source>
        <translation>Noch ist nichts von ihm bekannt.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>The printer tells more of itself than can be shown here.</source>
        <translation>Der Drucker sagt mehr über sich, als hier gezeigt werden kann.</translation>
    </message>
    <message>
        <source>The printer does not say what is left of its ink or toner.</source>
        <translation>Der Drucker sagt nicht, wie viel Tinte oder Toner er noch hat.</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterRows</name>
    <message>
        <source>Used last</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Im Netz gefunden</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
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
        <translation>Fortschritt des Druckauftrags</translation>
    </message>
    <message>
        <source>Resume Printer</source>
        <translation>Drucker fortsetzen</translation>
    </message>
    <message>
        <source>Release Job</source>
        <translation>Auftrag freigeben</translation>
    </message>
    <message>
        <source>Print Job Again</source>
        <translation>Auftrag erneut drucken</translation>
    </message>
    <message>
        <source>✓ as shown</source>
        <translation>✓ wie angezeigt</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
</context>
<context>
    <name>halvern::SearchPopup</name>
    <message>
        <source>Nothing here is called &quot;%1&quot;.</source>
        <translation>Nichts hier heißt „%1“.</translation>
    </message>
</context>
<context>
    <name>halvern::SentJob</name>
    <message>
        <source>The document was not printed: the session ended before the print server had all of it. Print it once more.</source>
        <translation>Das Dokument wurde nicht gedruckt: Die Sitzung endete, bevor der Druckserver es ganz hatte. Drucken Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Sign in for it in the list of jobs: &quot;Jobs...&quot; in the print dialog.</source>
        <translation>Melden Sie sich dafür in der Liste der Aufträge an: „Aufträge ...“ im Druckdialog.</translation>
    </message>
</context>
<context>
    <name>halvern::SessionPresets</name>
    <message>
        <source>A saved setting was left out. %1</source>
        <translation>Eine gespeicherte Einstellung wurde ausgelassen. %1</translation>
    </message>
</context>
<context>
    <name>halvern::SummaryPage</name>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>Photo size</source>
        <translation>Größe des Fotos</translation>
    </message>
    <message>
        <source>Printed area</source>
        <translation>Bedruckte Fläche</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Weitere Optionen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Off: %1</source>
        <translation>Aus: %1</translation>
    </message>
    <message>
        <source>All other settings</source>
        <translation>Alle anderen Einstellungen</translation>
    </message>
    <message>
        <source>The options as they are sent</source>
        <translation>Die Optionen, wie sie gesendet werden</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Titel des Auftrags</translation>
    </message>
    <message>
        <source>printer&apos;s default: %1</source>
        <translation>Vorgabe des Druckers: %1</translation>
    </message>
    <message>
        <source>%1 more are in the list of all other settings.</source>
        <translation>%1 weitere stehen in der Liste aller anderen Einstellungen.</translation>
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
