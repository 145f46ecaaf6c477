<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Features</source>
        <translation>Papier und Qualität</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Two-Sided Printing</source>
        <translation>Beidseitiger Druck</translation>
    </message>
    <message>
        <source>&amp;Feed</source>
        <translation>&amp;Zufuhr</translation>
    </message>
    <message>
        <source>Paper feed</source>
        <translation>Papierzufuhr</translation>
    </message>
    <message>
        <source>S&amp;heet paper</source>
        <translation>&amp;Blattpapier</translation>
    </message>
    <message>
        <source>Sheet paper</source>
        <translation>Blattpapier</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Papierrolle</translation>
    </message>
    <message>
        <source>Roll &amp;width</source>
        <translation>Ro&amp;llenbreite</translation>
    </message>
    <message>
        <source>Roll width</source>
        <translation>Rollenbreite</translation>
    </message>
    <message>
        <source>&amp;Surface</source>
        <translation>&amp;Oberfläche</translation>
    </message>
    <message>
        <source>Surface of the roll</source>
        <translation>Oberfläche der Rolle</translation>
    </message>
    <message>
        <source>The numbers are the surface codes of the paper.</source>
        <translation>Die Zahlen sind die Oberflächencodes des Papiers.</translation>
    </message>
    <message>
        <source>O&amp;verspill</source>
        <translation>&amp;Überstand</translation>
    </message>
    <message>
        <source>Overspill in millimetres</source>
        <translation>Überstand in Millimetern</translation>
    </message>
    <message>
        <source>How far the picture reaches beyond the edges of the roll, so that no white edge remains.</source>
        <translation>So weit reicht das Bild über die Ränder der Rolle hinaus, damit kein weißer Rand bleibt.</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Reso&amp;lution</source>
        <translation>&amp;Auflösung</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>&amp;Tone</source>
        <translation>&amp;Ton</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Two-s&amp;ided</source>
        <translation>Beid&amp;seitig</translation>
    </message>
    <message>
        <source>Two-sided printing</source>
        <translation>Beidseitiger Druck</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>Bindung</translation>
    </message>
    <message>
        <source>&amp;Binding margin</source>
        <translation>&amp;Heftrand</translation>
    </message>
    <message>
        <source>Binding margin</source>
        <translation>Heftrand</translation>
    </message>
    <message>
        <source>Wi&amp;dth</source>
        <translation>Bre&amp;ite</translation>
    </message>
    <message>
        <source>Width of the binding margin in millimetres</source>
        <translation>Breite des Heftrands in Millimetern</translation>
    </message>
    <message>
        <source>How much of the page stays free for the binding.</source>
        <translation>So viel von der Seite bleibt für die Bindung frei.</translation>
    </message>
    <message>
        <source>Two-sided printing needs cut sheets. The binding margin is the edge of the page as you see it on the screen; the picture keeps clear of it.</source>
        <translation>Beidseitig gedruckt wird auf Einzelblättern. Der Heftrand ist die Kante der Seite, wie Sie sie auf dem Bildschirm sehen; das Bild lässt ihn frei.</translation>
    </message>
    <message>
        <source>The printer is being asked for its papers</source>
        <translation>Der Drucker wird nach seinen Papieren gefragt</translation>
    </message>
    <message>
        <source>Last updated %@</source>
        <translation>Zuletzt aktualisiert: %@</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>The sheet feed was not available when this page was made.</source>
        <translation>Die Einzelblattzufuhr stand nicht zur Verfügung, als diese Seite angelegt wurde.</translation>
    </message>
    <message>
        <source>The printer has no cut sheets loaded.</source>
        <translation>Im Drucker liegen keine Einzelblätter.</translation>
    </message>
    <message>
        <source>The printer has no paper roll loaded.</source>
        <translation>Im Drucker liegt keine Papierrolle.</translation>
    </message>
    <message>
        <source>Only for cut sheets. Choose the sheet feed first.</source>
        <translation>Nur für Einzelblätter. Wählen Sie zuerst die Blattzufuhr.</translation>
    </message>
    <message>
        <source>Only for paper rolls. Choose the roll feed first.</source>
        <translation>Nur für Papierrollen. Wählen Sie zuerst die Rollenzufuhr.</translation>
    </message>
    <message>
        <source>No roll of this width has this surface.</source>
        <translation>Keine Rolle dieser Breite hat diese Oberfläche.</translation>
    </message>
    <message>
        <source>The chosen paper cannot be printed at this resolution.</source>
        <translation>Das gewählte Papier kann nicht in dieser Auflösung bedruckt werden.</translation>
    </message>
    <message>
        <source>The loaded papers have one tone only.</source>
        <translation>Die eingelegten Papiere haben nur einen Ton.</translation>
    </message>
    <message>
        <source>The loaded papers do not have this tone.</source>
        <translation>Die eingelegten Papiere haben diesen Ton nicht.</translation>
    </message>
    <message>
        <source>Two-sided printing needs cut sheets and a printer with a duplex unit.</source>
        <translation>Beidseitiger Druck braucht Einzelblätter und einen Drucker mit Wendeeinheit.</translation>
    </message>
    <message>
        <source>Choose two-sided printing first.</source>
        <translation>Wählen Sie zuerst den beidseitigen Druck.</translation>
    </message>
    <message>
        <source>Choose a binding margin first.</source>
        <translation>Wählen Sie zuerst einen Heftrand.</translation>
    </message>
    <message>
        <source>The sheet is not turned over this edge.</source>
        <translation>Das Blatt wird nicht über diese Kante gewendet.</translation>
    </message>
    <message>
        <source>Cut Sheet</source>
        <translation>Einzelblatt</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Long Edge</source>
        <translation>Lange Kante</translation>
    </message>
    <message>
        <source>Short Edge</source>
        <translation>Kurze Kante</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>1 - Gloss</source>
        <translation>1 – Glänzend</translation>
    </message>
    <message>
        <source>2 - Satin</source>
        <translation>2 – Seidenglanz</translation>
    </message>
    <message>
        <source>3 - Matte</source>
        <translation>3 – Matt</translation>
    </message>
    <message>
        <source>4 - Thin Silk</source>
        <translation>4 – Seide, dünn</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Vivid</source>
        <translation>Kräftig</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Weich</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Warm</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>Kühl</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>Deep Black</source>
        <translation>Tiefschwarz</translation>
    </message>
    <message>
        <source>High Key</source>
        <translation>High Key</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>An Seite anpassen</translation>
    </message>
    <message>
        <source>Fill Page</source>
        <translation>Seite füllen</translation>
    </message>
    <message>
        <source>PaperFeed</source>
        <translation>Papierzufuhr</translation>
    </message>
    <message>
        <source>PaperName</source>
        <translation>Blattpapier</translation>
    </message>
    <message>
        <source>PaperWidth</source>
        <translation>Rollenbreite</translation>
    </message>
    <message>
        <source>PaperSurface</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>PaperTone</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Overspill</source>
        <translation>Überstand</translation>
    </message>
    <message>
        <source>BindingMargin</source>
        <translation>Heftrand</translation>
    </message>
    <message>
        <source>BindingWidth</source>
        <translation>Breite des Heftrands</translation>
    </message>
    <message>
        <source>ResizeOption</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>TwoSided</source>
        <translation>Beidseitiger Druck</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Duplexeinheit</translation>
    </message>
    <message>
        <source>HalvernLastResolution</source>
        <translation>Letzte Auflösung</translation>
    </message>
</context>
</TS>
