<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <source>What is missing comes out gray, or smeared.</source>
        <translation>Was fehlt, wird grau oder verschmiert gedruckt.</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>&amp;Weglassen</translation>
    </message>
    <message>
        <source>&amp;Print All the Same</source>
        <translation>&amp;Trotzdem drucken</translation>
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
        <source>See "halvern-print --help".</source>
        <translation>Siehe „halvern-print --help“.</translation>
    </message>
    <message>
        <source>"%1" is no option: write KEY=VALUE, for example PageSize=A4.</source>
        <translation>„%1“ ist keine Option: Schreiben Sie KEY=VALUE, zum Beispiel PageSize=A4.</translation>
    </message>
    <message>
        <source>"%1" is no number of copies: write a number from 1 to %2.</source>
        <translation>„%1“ ist keine Anzahl: Schreiben Sie eine Zahl von 1 bis %2.</translation>
    </message>
    <message>
        <source>Name at least one photo to print (JPEG, PNG, TIFF or PDF).</source>
        <translation>Nennen Sie mindestens ein Foto (JPEG, PNG, TIFF oder PDF).</translation>
    </message>
    <message>
        <source>The queue's name is empty. "lpstat -e" lists the queues.</source>
        <translation>Der Name der Warteschlange ist leer. „lpstat -e“ zeigt die Warteschlangen.</translation>
    </message>
    <message>
        <source>Prints photos, with a preview and the printer's own pages of options.</source>
        <translation>Druckt Fotos, mit Vorschau und den eigenen Optionsseiten des Druckers.</translation>
    </message>
    <message>
        <source>JPEG, PNG, TIFF or PDF files; each photo becomes a page.</source>
        <translation>JPEG-, PNG-, TIFF- oder PDF-Dateien; jedes Foto wird eine Seite.</translation>
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
        <source>--list-papers prints no files: leave out the files and the options for printing.</source>
        <translation>--list-papers druckt keine Dateien: Lassen Sie die Dateien und die Optionen zum Drucken weg.</translation>
    </message>
    <message>
        <source>With --no-dialog: give a print server that goes silent after the job was sent this long; 60 seconds without it.</source>
        <translation>Mit --no-dialog: so lange auf einen Druckserver warten, der nach dem Senden des Auftrags verstummt; sonst 60 Sekunden.</translation>
    </message>
    <message>
        <source>"%1" is no time to wait: write a number of seconds from 1 to %2.</source>
        <translation>„%1“ ist keine Wartezeit: Schreiben Sie eine Zahl von Sekunden von 1 bis %2.</translation>
    </message>
    <message>
        <source>Exit status:
  0  Printed, or written what was asked for.
  1  Failed; standard error says why.
  2  Wrong usage.
  3  The job is on the queue, and had not ended yet.
  4  Cancelled: nothing was printed.
  5  The job was sent, but the print server does not answer: the outcome is not known.</source>
        <translation>Rückgabewert:
  0  Gedruckt, oder ausgegeben, was verlangt war.
  1  Fehlgeschlagen; die Standardfehlerausgabe sagt, warum.
  2  Falscher Aufruf.
  3  Der Auftrag ist in der Warteschlange und noch nicht beendet.
  4  Abgebrochen: Es wurde nichts gedruckt.
  5  Der Auftrag wurde gesendet, aber der Druckserver antwortet nicht: Der Ausgang ist unbekannt.</translation>
    </message>
</context>
<context>
    <name>JobStatus</name>
    <message>
        <source>Job %1 waits for "%2"%3.</source>
        <translation>Auftrag %1 wartet auf „%2“%3.</translation>
    </message>
    <message>
        <source>Job %1 is printing on "%2"%3.</source>
        <translation>Auftrag %1 wird auf „%2“ gedruckt%3.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled on "%2".</source>
        <translation>Auftrag %1 auf „%2“ wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Job %1 failed on "%2"%3. Print again; if it fails again, look into the print server's error log.</source>
        <translation>Auftrag %1 ist auf „%2“ fehlgeschlagen%3. Drucken Sie erneut; wenn es wieder fehlschlägt, sehen Sie im Fehlerprotokoll des Druckservers nach.</translation>
    </message>
    <message>
        <source>Printed: job %1 on "%2".</source>
        <translation>Gedruckt: Auftrag %1 auf „%2“.</translation>
    </message>
    <message>
        <source>Job %1 waits because "%2" is paused%3.</source>
        <translation>Auftrag %1 wartet, weil „%2“ angehalten ist%3.</translation>
    </message>
    <message>
        <source>Job %1 is held on "%2" because it was asked to wait%3.</source>
        <translation>Auftrag %1 ist auf „%2“ zurückgehalten, weil er warten soll%3.</translation>
    </message>
    <message>
        <source>Job %1 is held on "%2"%3.</source>
        <translation>Auftrag %1 ist auf „%2“ zurückgehalten%3.</translation>
    </message>
    <message>
        <source>Job %1 stopped on "%2"%3.</source>
        <translation>Auftrag %1 ist auf „%2“ stehen geblieben%3.</translation>
    </message>
    <message>
        <source>Job %1 has left the queue of "%2". The print server keeps no record of how it ended.</source>
        <translation>Auftrag %1 hat die Warteschlange von „%2“ verlassen. Der Druckserver bewahrt nicht auf, wie er geendet hat.</translation>
    </message>
    <message>
        <source>"%2" is not on the print server any more, and job %1 with it. Look at the printer before you print again.</source>
        <translation>„%2“ ist nicht mehr auf dem Druckserver und Auftrag %1 mit ihm. Sehen Sie am Drucker nach, bevor Sie erneut drucken.</translation>
    </message>
    <message>
        <source>The print server does not answer. Job %1 was sent to "%2", and may be printed.</source>
        <translation>Der Druckserver antwortet nicht. Auftrag %1 wurde an „%2“ gesendet und wird vielleicht gedruckt.</translation>
    </message>
    <message>
        <source>See to the printer and resume it with "cupsenable %2", or cancel the job with "cancel %2-%1".</source>
        <translation>Sehen Sie nach dem Drucker und setzen Sie ihn mit „cupsenable %2“ fort oder brechen Sie den Auftrag mit „cancel %2-%1“ ab.</translation>
    </message>
    <message>
        <source>Release it with "lp -i %1 -H resume", or cancel it with "cancel %2-%1".</source>
        <translation>Geben Sie ihn mit „lp -i %1 -H resume“ frei oder brechen Sie ihn mit „cancel %2-%1“ ab.</translation>
    </message>
    <message>
        <source>Print it again with "lp -i %1 -H restart", or cancel it with "cancel %2-%1".</source>
        <translation>Drucken Sie ihn mit „lp -i %1 -H restart“ erneut oder brechen Sie ihn mit „cancel %2-%1“ ab.</translation>
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
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>The printer's own pages (%1) offer nothing for this printer. You can print without them.</source>
        <translation>Die eigenen Seiten des Druckers (%1) bieten für diesen Drucker nichts. Sie können ohne sie drucken.</translation>
    </message>
    <message>
        <source>The printer's description asks for the pages "%1", which is no name of a bundle. You can print without them.</source>
        <translation>Die Beschreibung des Druckers verlangt die Seiten „%1“; das ist kein gültiger Name. Sie können ohne sie drucken.</translation>
    </message>
    <message>
        <source>The printer's own pages (%1) are not installed. You can print without them; install the printer's software to have them.</source>
        <translation>Die eigenen Seiten des Druckers (%1) sind nicht installiert. Sie können ohne sie drucken; installieren Sie die Software des Druckers, um sie zu haben.</translation>
    </message>
    <message>
        <source>The printer's own pages (%1) cannot be loaded: %2. You can print without them; install the printer's software again to have them.</source>
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
</context>
<context>
    <name>PpdModel</name>
    <message>
        <source>An option without a name or a value cannot be set.</source>
        <translation>Eine Option ohne Namen oder Wert kann nicht gesetzt werden.</translation>
    </message>
    <message>
        <source>The printer has no page size "%1". Choose one from the list.</source>
        <translation>Der Drucker hat kein Papierformat „%1“. Wählen Sie eines aus der Liste.</translation>
    </message>
    <message>
        <source>The printer cannot take the page size "%1". Choose one from the list.</source>
        <translation>Der Drucker kann das Papierformat „%1“ nicht verwenden. Wählen Sie eines aus der Liste.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>"%1" does not go together with "%2". Change that first.</source>
        <translation>„%1“ passt nicht zu „%2“. Ändern Sie das zuerst.</translation>
    </message>
    <message>
        <source>"%1" is part of the printer's equipment, and is set by whoever installed the printer.</source>
        <translation>„%1“ gehört zur Ausstattung des Druckers und wird bei dessen Einrichtung festgelegt.</translation>
    </message>
    <message>
        <source>The printer's equipment does not allow "%1": whoever installed the printer has set "%2".</source>
        <translation>„%1“ ist mit der Ausstattung des Druckers nicht möglich: Bei der Einrichtung wurde „%2“ festgelegt.</translation>
    </message>
    <message>
        <source>"%1" has no choice "%2".</source>
        <translation>„%1“ kennt die Auswahl „%2“ nicht.</translation>
    </message>
    <message>
        <source>The printer has no option "%1".</source>
        <translation>Der Drucker hat keine Option „%1“.</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Papierformat</translation>
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
        <source>Job %1 stays on the queue; "cancel %2-%1" takes it away.</source>
        <translation>Auftrag %1 bleibt in der Warteschlange; „cancel %2-%1“ nimmt ihn weg.</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>With "-o PageSize=%1" it fits.</source>
        <translation>Mit „-o PageSize=%1“ passt es.</translation>
    </message>
</context>
<context>
    <name>halvern::DialogSession</name>
    <message>
        <source>A saved setting was left out. %1</source>
        <translation>Eine gespeicherte Einstellung wurde ausgelassen. %1</translation>
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
    <name>halvern::OptionsPage</name>
    <message>
        <source>More options follow...</source>
        <translation>Weitere Optionen folgen ...</translation>
    </message>
    <message>
        <source>Set by whoever installed the printer.</source>
        <translation>Bei der Einrichtung des Druckers festgelegt.</translation>
    </message>
    <message>
        <source>%1 (the printer's default)</source>
        <translation>%1 (Vorgabe des Druckers)</translation>
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
        <source>%1 more are on the page of options.</source>
        <translation>%1 weitere stehen auf der Seite mit den Optionen.</translation>
    </message>
    <message>
        <source>Off: %1</source>
        <translation>Aus: %1</translation>
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
        <source>The printer's adjustments, approximated on the screen</source>
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
</context>
<context>
    <name>halvern::PrintDialog</name>
    <message>
        <source>%1, page %2</source>
        <translation>%1, Seite %2</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>Voriges Foto</translation>
    </message>
    <message>
        <source>Next photo</source>
        <translation>Nächstes Foto</translation>
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
        <source>The print server has no default printer. Name one with --printer.</source>
        <translation>Der Druckserver hat keinen Standarddrucker. Nennen Sie einen mit --printer.</translation>
    </message>
    <message>
        <source>The print server has no printers. Add one in the system's settings.</source>
        <translation>Der Druckserver hat keine Drucker. Richten Sie in den Systemeinstellungen einen ein.</translation>
    </message>
    <message>
        <source>The print server has no printer "%1". Choose another one.</source>
        <translation>Der Druckserver hat keinen Drucker „%1“. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>There is no photo to print.</source>
        <translation>Es gibt kein Foto zum Drucken.</translation>
    </message>
    <message>
        <source>Reading the photo...</source>
        <translation>Foto wird gelesen ...</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
    <message>
        <source>%1 of %2  ·  %3</source>
        <translation>%1 von %2  ·  %3</translation>
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
        <source>Job %1 was sent to "%2".</source>
        <translation>Auftrag %1 wurde an „%2“ gesendet.</translation>
    </message>
    <message>
        <source>Choose a printer and a paper size, look at the preview, and press Print. The list on the left of the options has the printer's own pages.</source>
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
</context>
<context>
    <name>halvern::PrintRun</name>
    <message>
        <source>No temporary file can be made: %1. Make room on the disk and try again.</source>
        <translation>Es kann keine temporäre Datei angelegt werden: %1. Schaffen Sie Platz auf der Festplatte und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Sending the job...</source>
        <translation>Auftrag wird gesendet ...</translation>
    </message>
    <message>
        <source>Preparing the pages...</source>
        <translation>Seiten werden vorbereitet ...</translation>
    </message>
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
        <source>Job %1 was sent to "%2", but the print server has not answered for %3 seconds: whether it was printed is not known. Look at the printer before you print again.</source>
        <translation>Auftrag %1 wurde an „%2“ gesendet, aber der Druckserver hat seit %3 Sekunden nicht geantwortet: Ob er gedruckt wurde, ist nicht bekannt. Sehen Sie am Drucker nach, bevor Sie erneut drucken.</translation>
    </message>
</context>
<context>
    <name>ListPapers</name>
    <message>
        <source>The printer "%1" was asked, but has not reported its papers. Look into the print server's error log.</source>
        <translation>Der Drucker „%1“ wurde gefragt, hat seine Papiere aber nicht gemeldet. Sehen Sie im Fehlerprotokoll des Druckservers nach.</translation>
    </message>
    <message>
        <source>The printer "%1" does not report its papers: it has no Halvern driver.</source>
        <translation>Der Drucker „%1“ meldet seine Papiere nicht: Er hat keinen Halvern-Treiber.</translation>
    </message>
    <message>
        <source>Asking "%1" ...</source>
        <translation>„%1“ wird gefragt ...</translation>
    </message>
    <message>
        <source>Waiting for "%1"%2 ...</source>
        <translation>Warten auf „%1“%2 ...</translation>
    </message>
    <message>
        <source>The printer "%1" is busy with another job. Ask again when that has ended.</source>
        <translation>Der Drucker „%1“ bearbeitet einen anderen Auftrag. Fragen Sie noch einmal, wenn dieser beendet ist.</translation>
    </message>
    <message>
        <source>The printer "%1" does not work at the moment%2, and the question was taken back. Resume the printer (cupsenable) and ask again.</source>
        <translation>Der Drucker „%1“ arbeitet zurzeit nicht%2, und die Anfrage wurde zurückgenommen. Setzen Sie den Drucker fort (cupsenable) und fragen Sie noch einmal.</translation>
    </message>
    <message>
        <source>The printer "%1" could not answer%2. See to the printer and ask again.</source>
        <translation>Der Drucker „%1“ konnte nicht antworten%2. Sehen Sie nach dem Drucker und fragen Sie noch einmal.</translation>
    </message>
    <message>
        <source>The printer "%1" does not accept jobs and cannot be asked. Let it accept them (cupsaccept) and ask again.</source>
        <translation>Der Drucker „%1“ nimmt keine Aufträge an und kann nicht gefragt werden. Lassen Sie ihn Aufträge annehmen (cupsaccept) und fragen Sie noch einmal.</translation>
    </message>
    <message>
        <source>The print server refused the question to "%1". Look into its error log.</source>
        <translation>Der Druckserver hat die Anfrage an „%1“ abgelehnt. Sehen Sie in seinem Fehlerprotokoll nach.</translation>
    </message>
    <message>
        <source>The list of papers that "%1" reported cannot be read (%2).</source>
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
        <source>The question to "%1" could not be processed%2 and was taken back. See to the printer, look into the print server's error log, and ask again.</source>
        <translation>Die Anfrage an „%1“ konnte nicht verarbeitet werden%2 und wurde zurückgenommen. Sehen Sie nach dem Drucker und im Fehlerprotokoll des Druckservers nach, und fragen Sie noch einmal.</translation>
    </message>
    <message>
        <source>The question to "%1" was held%2 and has been cancelled. See to the printer and ask again.</source>
        <translation>Die Anfrage an „%1“ wurde angehalten%2 und ist abgebrochen worden. Sehen Sie nach dem Drucker und fragen Sie noch einmal.</translation>
    </message>
    <message>
        <source>The question to "%1" was cancelled. Ask again.</source>
        <translation>Die Anfrage an „%1“ wurde abgebrochen. Fragen Sie noch einmal.</translation>
    </message>
    <message>
        <source>The print server does not answer; job %1 may still be on the queue (cancel %2-%1).</source>
        <translation>Der Druckserver antwortet nicht; Auftrag %1 ist vielleicht noch in der Warteschlange (cancel %2-%1).</translation>
    </message>
    <message>
        <source>Look into the print server's error log, and ask again.</source>
        <translation>Sehen Sie im Fehlerprotokoll des Druckservers nach, und fragen Sie noch einmal.</translation>
    </message>
</context>
<context>
    <name>JobActions</name>
    <message>
        <source>The print server does not let you cancel this job. Ask whoever looks after it.</source>
        <translation>Der Druckserver lässt Sie diesen Auftrag nicht abbrechen. Fragen Sie, wer ihn betreut.</translation>
    </message>
    <message>
        <source>The print server does not let you resume "%1". Ask whoever looks after it; the job waits meanwhile.</source>
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
    <name>JobSubmitter</name>
    <message>
        <source> Job %1 may still be on the queue of "%2" without its pages: cancel it there before you print again.</source>
        <translation> Auftrag %1 ist vielleicht noch ohne seine Seiten in der Warteschlange von „%2“: Brechen Sie ihn dort ab, bevor Sie erneut drucken.</translation>
    </message>
    <message>
        <source>The print server gave the job no number. Look into its error log.</source>
        <translation>Der Druckserver hat dem Auftrag keine Nummer gegeben. Sehen Sie in seinem Fehlerprotokoll nach.</translation>
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
</context>
<context>
    <name>GivenOptions</name>
    <message>
        <source>The printer has no paper "%1".</source>
        <translation>Der Drucker hat kein Papier „%1“.</translation>
    </message>
    <message>
        <source>The printer has no "sides=%1". Leave it out, or use the printer's own option for two-sided printing.</source>
        <translation>Der Drucker kennt „sides=%1“ nicht. Lassen Sie es weg, oder nehmen Sie die eigene Option des Druckers für beidseitigen Druck.</translation>
    </message>
    <message>
        <source>"%1" is no way to scale. Write print-scaling=fit, fill or none.</source>
        <translation>„%1“ ist keine Art zu skalieren. Schreiben Sie print-scaling=fit, fill oder none.</translation>
    </message>
    <message>
        <source>"%1=%2" is not possible: the page is laid out before it is sent, one photo on each. Leave it out.</source>
        <translation>„%1=%2“ ist nicht möglich: Die Seite wird vor dem Senden angelegt, mit einem Foto auf jeder. Lassen Sie es weg.</translation>
    </message>
    <message>
        <source>The number of copies is no option of the printer. Give it with --copies.</source>
        <translation>Die Zahl der Kopien ist keine Option des Druckers. Geben Sie sie mit --copies an.</translation>
    </message>
    <message>
        <source>"%1" is set by the printer's own options here. "lpoptions -p QUEUE -l" lists them.</source>
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
</context>
<context>
    <name>halvern::Stepper</name>
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
    <name>PageFit</name>
    <message>
        <source>The paper size "%1" is wider than the roll (%2).</source>
        <translation>Das Papierformat „%1“ ist breiter als die Rolle (%2).</translation>
    </message>
    <message>
        <source>The paper size "%1" is larger than the paper "%2".</source>
        <translation>Das Papierformat „%1“ ist größer als das Papier „%2“.</translation>
    </message>
</context>
<context>
    <name>StartingOptions</name>
    <message>
        <source>The printer "%1" prints no text on the back of a picture. Leave --backprint out, or choose another printer.</source>
        <translation>Der Drucker „%1“ druckt keinen Text auf die Rückseite. Lassen Sie --backprint weg oder wählen Sie einen anderen Drucker.</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterChoice</name>
    <message>
        <source>Your default printer "%1" is none of the print server's. "%2" was chosen instead.</source>
        <translation>Ihr Standarddrucker „%1“ ist keiner des Druckservers. Stattdessen wurde „%2“ gewählt.</translation>
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
        <source>The print server has no printer "%1". It has: %2.</source>
        <translation>Der Druckserver hat keinen Drucker „%1“. Er hat: %2.</translation>
    </message>
    <message>
        <source>The print server has no printer "%1". It has: %2, and %3 more (lpstat -e).</source>
        <translation>Der Druckserver hat keinen Drucker „%1“. Er hat: %2 und %3 weitere (lpstat -e).</translation>
    </message>
</context>
<context>
    <name>QueuePpd</name>
    <message>
        <source>The printer "%1" has no description on the print server. Install it with a driver, or choose another printer.</source>
        <translation>Der Drucker „%1“ hat auf dem Druckserver keine Beschreibung. Richten Sie ihn mit einem Treiber ein oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The description of the printer "%1" is damaged: %2. Install its driver again, or choose another printer.</source>
        <translation>Die Beschreibung des Druckers „%1“ ist beschädigt: %2. Installieren Sie den Treiber neu oder wählen Sie einen anderen Drucker.</translation>
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
    <name>CupsSentences</name>
    <message>
        <source>The print server broke off the conversation. Try again; if it fails again, look into the print server's error log.</source>
        <translation>Der Druckserver hat das Gespräch abgebrochen. Versuchen Sie es erneut; wenn es wieder misslingt, sehen Sie in das Fehlerprotokoll des Druckservers.</translation>
    </message>
    <message>
        <source>The print server does not answer. Wait a moment and try again, or restart it.</source>
        <translation>Der Druckserver antwortet nicht. Warten Sie einen Moment und versuchen Sie es erneut, oder starten Sie ihn neu.</translation>
    </message>
    <message>
        <source>The print server's answer does not end. Restart the print server, and try again.</source>
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
        <source>The print server at %1 cannot be reached. Start it, for example with "systemctl start cups", and try again.</source>
        <translation>Der Druckserver unter %1 ist nicht erreichbar. Starten Sie ihn, zum Beispiel mit „systemctl start cups“, und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>PageRenderer</name>
    <message>
        <source>The print job could not be written to a temporary file. Make room on the disk and try again.</source>
        <translation>Der Druckauftrag konnte nicht in eine temporäre Datei geschrieben werden. Schaffen Sie Platz auf der Festplatte und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>PhotoProblem</name>
    <message>
        <source>"%1" is damaged and cannot be read. Export it from your photo program again.</source>
        <translation>„%1“ ist beschädigt und nicht lesbar. Exportieren Sie die Datei erneut aus Ihrem Fotoprogramm.</translation>
    </message>
    <message>
        <source>"%1" is damaged: a part of the picture is missing. Copy it from the camera again, or export it again.</source>
        <translation>„%1“ ist beschädigt: Ein Teil des Bildes fehlt. Kopieren Sie die Datei erneut von der Kamera oder exportieren Sie sie erneut.</translation>
    </message>
    <message>
        <source>"%1" is too large to print. Make a copy with fewer pixels and print that.</source>
        <translation>„%1“ ist zu groß zum Drucken. Drucken Sie eine Kopie mit weniger Pixeln.</translation>
    </message>
    <message>
        <source>"%1" is not a picture that can be printed. Use a JPEG, PNG, TIFF or PDF file.</source>
        <translation>„%1“ ist kein druckbares Bild. Verwenden Sie eine JPEG-, PNG-, TIFF- oder PDF-Datei.</translation>
    </message>
    <message>
        <source>"%1" is locked with a password. Save a copy without one and print that.</source>
        <translation>„%1“ ist mit einem Passwort geschützt. Drucken Sie eine Kopie ohne Passwort.</translation>
    </message>
    <message>
        <source>"%1" has changed meanwhile. Open it again.</source>
        <translation>„%1“ hat sich inzwischen geändert. Öffnen Sie die Datei erneut.</translation>
    </message>
    <message>
        <source>There is no file "%1". Check its name.</source>
        <translation>Es gibt keine Datei „%1“. Prüfen Sie den Namen.</translation>
    </message>
    <message>
        <source>"%1" is a folder. Name the photos in it, for example *.jpg.</source>
        <translation>„%1“ ist ein Ordner. Nennen Sie die Fotos darin, zum Beispiel *.jpg.</translation>
    </message>
    <message>
        <source>"%1" cannot be opened. Check that you may read it.</source>
        <translation>„%1“ kann nicht geöffnet werden. Prüfen Sie, ob Sie die Datei lesen dürfen.</translation>
    </message>
    <message>
        <source>"%1" is empty. Copy it from the camera again.</source>
        <translation>„%1“ ist leer. Kopieren Sie die Datei erneut von der Kamera.</translation>
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
    <name>BackLines</name>
    <message>
        <source>Backprint line %1 cannot hold %2, which was left out. It takes the characters of an English keyboard except "~", and "©".</source>
        <translation>Zeile %1 der Rückseite kann %2 nicht enthalten; das wurde weggelassen. Möglich sind die Zeichen einer englischen Tastatur außer „~“ sowie „©“.</translation>
    </message>
    <message>
        <source>Backprint line %1 is longer than %2 characters; what comes after them was left out (%3).</source>
        <translation>Zeile %1 der Rückseite ist länger als %2 Zeichen; was danach kommt, wurde weggelassen (%3).</translation>
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
    <name>Main</name>
    <message>
        <source>The output could not be written: %1.</source>
        <translation>Die Ausgabe konnte nicht geschrieben werden: %1.</translation>
    </message>
</context>
</TS>
