<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>DamageQuestion</name>
    <message>
        <source>Print damaged photos?</source>
        <translation>Imprimer les photos endommagées ?</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Et %1 de plus.</translation>
    </message>
    <message>
        <source>What is missing comes out gray, or smeared.</source>
        <translation>Ce qui manque sort gris ou brouillé.</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>&amp;Les omettre</translation>
    </message>
    <message>
        <source>&amp;Print All the Same</source>
        <translation>&amp;Imprimer quand même</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print photos of which a part is missing, too, without asking.</source>
        <translation>Imprimer aussi, sans demander, les photos dont une partie manque.</translation>
    </message>
    <message>
        <source>Print on this queue.</source>
        <translation>Imprimer sur cette file.</translation>
    </message>
    <message>
        <source>Set a printer option. Can be given several times.</source>
        <translation>Définir une option d’imprimante. Peut être répété.</translation>
    </message>
    <message>
        <source>Print this many copies, 1 to %1.</source>
        <translation>Imprimer ce nombre de copies, de 1 à %1.</translation>
    </message>
    <message>
        <source>Print at once, and wait until the job has ended.</source>
        <translation>Imprimer tout de suite et attendre la fin de la tâche.</translation>
    </message>
    <message>
        <source>Write the options that would be sent, one KEY=VALUE a line, and send nothing.</source>
        <translation>Écrire les options qui seraient envoyées, une KEY=VALUE par ligne, sans rien envoyer.</translation>
    </message>
    <message>
        <source>See "halvern-print --help".</source>
        <translation>Voir « halvern-print --help ».</translation>
    </message>
    <message>
        <source>"%1" is no option: write KEY=VALUE, for example PageSize=A4.</source>
        <translation>« %1 » n’est pas une option : écrivez KEY=VALUE, par exemple PageSize=A4.</translation>
    </message>
    <message>
        <source>"%1" is no number of copies: write a number from 1 to %2.</source>
        <translation>« %1 » n’est pas un nombre de copies : écrivez un nombre de 1 à %2.</translation>
    </message>
    <message>
        <source>Name at least one photo to print (JPEG, PNG, TIFF or PDF).</source>
        <translation>Nommez au moins une photo à imprimer (JPEG, PNG, TIFF ou PDF).</translation>
    </message>
    <message>
        <source>The queue's name is empty. "lpstat -e" lists the queues.</source>
        <translation>Le nom de la file est vide. « lpstat -e » affiche les files.</translation>
    </message>
    <message>
        <source>Prints photos, with a preview and the printer's own pages of options.</source>
        <translation>Imprime des photos, avec un aperçu et les pages d’options propres à l’imprimante.</translation>
    </message>
    <message>
        <source>JPEG, PNG, TIFF or PDF files; each photo becomes a page.</source>
        <translation>Fichiers JPEG, PNG, TIFF ou PDF ; chaque photo devient une page.</translation>
    </message>
    <message>
        <source>Print this text on the back of each picture. Can be given twice, for a first and a second line. A line holds 120 characters and placeholders such as [YYYY], which the printer replaces.</source>
        <translation>Imprimer ce texte au dos de chaque photo. Peut être donné deux fois, pour une première et une deuxième ligne. Une ligne contient 120 caractères, y compris des repères comme [YYYY], que l’imprimante remplace.</translation>
    </message>
    <message>
        <source>The back of a picture takes %1 lines: give --backprint once or twice.</source>
        <translation>Le dos d’une photo reçoit %1 lignes : donnez --backprint une ou deux fois.</translation>
    </message>
    <message>
        <source>Write what the printer has loaded, and how old that knowledge is.</source>
        <translation>Afficher ce qui est chargé dans l'imprimante et l'âge de cette information.</translation>
    </message>
    <message>
        <source>With --list-papers: ask the printer first.</source>
        <translation>Avec --list-papers : interroger d'abord l'imprimante.</translation>
    </message>
    <message>
        <source>--refresh goes with --list-papers.</source>
        <translation>--refresh s'emploie avec --list-papers.</translation>
    </message>
    <message>
        <source>--list-papers prints no files: leave out the files and the options for printing.</source>
        <translation>--list-papers n'imprime aucun fichier : omettez les fichiers et les options d'impression.</translation>
    </message>
    <message>
        <source>With --no-dialog: give a print server that goes silent after the job was sent this long; 60 seconds without it.</source>
        <translation>Avec --no-dialog : attendre aussi longtemps un serveur d’impression qui se tait après l’envoi de la tâche ; sinon 60 secondes.</translation>
    </message>
    <message>
        <source>"%1" is no time to wait: write a number of seconds from 1 to %2.</source>
        <translation>« %1 » n’est pas une durée d’attente : écrivez un nombre de secondes de 1 à %2.</translation>
    </message>
    <message>
        <source>Exit status:
  0  Printed, or written what was asked for.
  1  Failed; standard error says why.
  2  Wrong usage.
  3  The job is on the queue, and had not ended yet.
  4  Cancelled: nothing was printed.
  5  The job was sent, but the print server does not answer: the outcome is not known.</source>
        <translation>Code de sortie :
  0  Imprimé, ou écrit ce qui était demandé.
  1  Échec ; la sortie d’erreur dit pourquoi.
  2  Mauvais usage.
  3  La tâche est dans la file et n’était pas encore terminée.
  4  Annulé : rien n’a été imprimé.
  5  La tâche a été envoyée, mais le serveur d’impression ne répond pas : l’issue est inconnue.</translation>
    </message>
</context>
<context>
    <name>JobStatus</name>
    <message>
        <source>Job %1 waits for "%2"%3.</source>
        <translation>La tâche %1 attend « %2 »%3.</translation>
    </message>
    <message>
        <source>Job %1 is printing on "%2"%3.</source>
        <translation>La tâche %1 s’imprime sur « %2 »%3.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled on "%2".</source>
        <translation>La tâche %1 sur « %2 » a été annulée.</translation>
    </message>
    <message>
        <source>Job %1 failed on "%2"%3. Print again; if it fails again, look into the print server's error log.</source>
        <translation>La tâche %1 a échoué sur « %2 »%3. Réimprimez ; si elle échoue encore, consultez le journal d’erreurs du serveur d’impression.</translation>
    </message>
    <message>
        <source>Printed: job %1 on "%2".</source>
        <translation>Imprimé : tâche %1 sur « %2 ».</translation>
    </message>
    <message>
        <source>Job %1 waits because "%2" is paused%3.</source>
        <translation>La tâche %1 attend car « %2 » est en pause%3.</translation>
    </message>
    <message>
        <source>Job %1 is held on "%2" because it was asked to wait%3.</source>
        <translation>La tâche %1 est retenue sur « %2 » car on lui a demandé d’attendre%3.</translation>
    </message>
    <message>
        <source>Job %1 is held on "%2"%3.</source>
        <translation>La tâche %1 est retenue sur « %2 »%3.</translation>
    </message>
    <message>
        <source>Job %1 stopped on "%2"%3.</source>
        <translation>La tâche %1 s’est arrêtée sur « %2 »%3.</translation>
    </message>
    <message>
        <source>Job %1 has left the queue of "%2". The print server keeps no record of how it ended.</source>
        <translation>La tâche %1 a quitté la file de « %2 ». Le serveur d’impression ne garde pas trace de sa fin.</translation>
    </message>
    <message>
        <source>"%2" is not on the print server any more, and job %1 with it. Look at the printer before you print again.</source>
        <translation>« %2 » n’est plus sur le serveur d’impression, et la tâche %1 non plus. Regardez l’imprimante avant de réimprimer.</translation>
    </message>
    <message>
        <source>The print server does not answer. Job %1 was sent to "%2", and may be printed.</source>
        <translation>Le serveur d’impression ne répond pas. La tâche %1 a été envoyée à « %2 » et sera peut-être imprimée.</translation>
    </message>
    <message>
        <source>See to the printer and resume it with "cupsenable %2", or cancel the job with "cancel %2-%1".</source>
        <translation>Vérifiez l’imprimante et relancez-la avec « cupsenable %2 », ou annulez la tâche avec « cancel %2-%1 ».</translation>
    </message>
    <message>
        <source>Release it with "lp -i %1 -H resume", or cancel it with "cancel %2-%1".</source>
        <translation>Libérez-la avec « lp -i %1 -H resume » ou annulez-la avec « cancel %2-%1 ».</translation>
    </message>
    <message>
        <source>Print it again with "lp -i %1 -H restart", or cancel it with "cancel %2-%1".</source>
        <translation>Réimprimez-la avec « lp -i %1 -H restart » ou annulez-la avec « cancel %2-%1 ».</translation>
    </message>
</context>
<context>
    <name>StateReasons</name>
    <message>
        <source>out of paper</source>
        <translation>plus de papier</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>peu de papier</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>bourrage papier</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>une porte est ouverte</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>le capot est ouvert</translation>
    </message>
    <message>
        <source>not connected or switched off</source>
        <translation>non connectée ou éteinte</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>connexion</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pause</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>mise en pause</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>éteinte</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>peu d’encre en poudre</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>plus d’encre en poudre</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>peu d’encre</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>plus d’encre</translation>
    </message>
    <message>
        <source>the waste tank is nearly full</source>
        <translation>le bac de récupération est presque plein</translation>
    </message>
    <message>
        <source>the waste tank is full</source>
        <translation>le bac de récupération est plein</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>le bac de sortie est plein</translation>
    </message>
    <message>
        <source>does not answer</source>
        <translation>ne répond pas</translation>
    </message>
    <message>
        <source>its driver is not installed</source>
        <translation>son pilote n’est pas installé</translation>
    </message>
    <message>
        <source>its driver is not installed safely</source>
        <translation>son pilote n’est pas installé de façon sûre</translation>
    </message>
    <message>
        <source>needs attention</source>
        <translation>demande votre attention</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>The printer's own pages (%1) offer nothing for this printer. You can print without them.</source>
        <translation>Les pages propres à l’imprimante (%1) n’offrent rien pour celle-ci. Vous pouvez imprimer sans elles.</translation>
    </message>
    <message>
        <source>The printer's description asks for the pages "%1", which is no name of a bundle. You can print without them.</source>
        <translation>La description de l’imprimante demande les pages « %1 », ce qui n’est pas un nom valable. Vous pouvez imprimer sans elles.</translation>
    </message>
    <message>
        <source>The printer's own pages (%1) are not installed. You can print without them; install the printer's software to have them.</source>
        <translation>Les pages propres à l’imprimante (%1) ne sont pas installées. Vous pouvez imprimer sans elles ; installez le logiciel de l’imprimante pour les avoir.</translation>
    </message>
    <message>
        <source>The printer's own pages (%1) cannot be loaded: %2. You can print without them; install the printer's software again to have them.</source>
        <translation>Les pages propres à l’imprimante (%1) ne peuvent pas être chargées : %2. Vous pouvez imprimer sans elles ; réinstallez le logiciel de l’imprimante pour les avoir.</translation>
    </message>
    <message>
        <source>they name no module</source>
        <translation>elles ne nomment aucun module</translation>
    </message>
    <message>
        <source>the module is of another kind</source>
        <translation>le module est d’un autre type</translation>
    </message>
    <message>
        <source>they belong to something else</source>
        <translation>elles appartiennent à autre chose</translation>
    </message>
</context>
<context>
    <name>PpdModel</name>
    <message>
        <source>An option without a name or a value cannot be set.</source>
        <translation>Une option sans nom ou sans valeur ne peut pas être définie.</translation>
    </message>
    <message>
        <source>The printer has no page size "%1". Choose one from the list.</source>
        <translation>L’imprimante n’a pas de format « %1 ». Choisissez-en un dans la liste.</translation>
    </message>
    <message>
        <source>The printer cannot take the page size "%1". Choose one from the list.</source>
        <translation>L’imprimante n’accepte pas le format « %1 ». Choisissez-en un dans la liste.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>"%1" does not go together with "%2". Change that first.</source>
        <translation>« %1 » ne va pas avec « %2 ». Changez d’abord cela.</translation>
    </message>
    <message>
        <source>"%1" is part of the printer's equipment, and is set by whoever installed the printer.</source>
        <translation>« %1 » fait partie de l’équipement de l’imprimante et est réglé par la personne qui l’a installée.</translation>
    </message>
    <message>
        <source>The printer's equipment does not allow "%1": whoever installed the printer has set "%2".</source>
        <translation>L’équipement de l’imprimante ne permet pas « %1 » : la personne qui l’a installée a réglé « %2 ».</translation>
    </message>
    <message>
        <source>"%1" has no choice "%2".</source>
        <translation>« %1 » n’a pas le choix « %2 ».</translation>
    </message>
    <message>
        <source>The printer has no option "%1".</source>
        <translation>L’imprimante n’a pas d’option « %1 ».</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Format de papier</translation>
    </message>
</context>
<context>
    <name>halvern::BatchPrint</name>
    <message>
        <source>With --print-damaged it is printed all the same.</source>
        <translation>Avec --print-damaged, il est imprimé quand même.</translation>
    </message>
    <message>
        <source>Changed to fit: %1=%2</source>
        <translation>Adapté : %1=%2</translation>
    </message>
    <message>
        <source>Cancelled: nothing was printed.</source>
        <translation>Annulé : rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>Job %1 stays on the queue; "cancel %2-%1" takes it away.</source>
        <translation>La tâche %1 reste dans la file ; « cancel %2-%1 » l’enlève.</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Attention : %1</translation>
    </message>
    <message>
        <source>With "-o PageSize=%1" it fits.</source>
        <translation>Avec « -o PageSize=%1 », cela convient.</translation>
    </message>
</context>
<context>
    <name>halvern::DialogSession</name>
    <message>
        <source>A saved setting was left out. %1</source>
        <translation>Un réglage enregistré a été ignoré. %1</translation>
    </message>
</context>
<context>
    <name>halvern::MessageBar</name>
    <message>
        <source>Close the message</source>
        <translation>Fermer le message</translation>
    </message>
    <message>
        <source>Previous message</source>
        <translation>Message précédent</translation>
    </message>
    <message>
        <source>Next message</source>
        <translation>Message suivant</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>halvern::OptionsPage</name>
    <message>
        <source>More options follow...</source>
        <translation>D’autres options suivent...</translation>
    </message>
    <message>
        <source>Set by whoever installed the printer.</source>
        <translation>Réglé par la personne qui a installé l’imprimante.</translation>
    </message>
    <message>
        <source>%1 (the printer's default)</source>
        <translation>%1 (valeur de l’imprimante)</translation>
    </message>
</context>
<context>
    <name>halvern::SummaryPage</name>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Format du papier</translation>
    </message>
    <message>
        <source>Photo size</source>
        <translation>Taille de la photo</translation>
    </message>
    <message>
        <source>Printed area</source>
        <translation>Surface imprimée</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Autres options</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>%1 more are on the page of options.</source>
        <translation>%1 autres se trouvent sur la page des options.</translation>
    </message>
    <message>
        <source>Off: %1</source>
        <translation>Désactivé : %1</translation>
    </message>
</context>
<context>
    <name>halvern::PaperPage</name>
    <message>
        <source>P&amp;aper size:</source>
        <translation>Format du p&amp;apier :</translation>
    </message>
    <message>
        <source>As the photo</source>
        <translation>Comme la photo</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>Or&amp;ientation :</translation>
    </message>
    <message>
        <source>Fit the whole photo on the page</source>
        <translation>Toute la photo sur la page</translation>
    </message>
    <message>
        <source>Fill the page, cut what is over</source>
        <translation>Remplir la page, couper ce qui dépasse</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Photo si&amp;ze:</source>
        <translation>&amp;Taille de la photo :</translation>
    </message>
</context>
<context>
    <name>halvern::PanelDeck</name>
    <message>
        <source>Pages of options</source>
        <translation>Pages d’options</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Autres options</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>halvern::PreviewWidget</name>
    <message>
        <source>A part of this photo is missing</source>
        <translation>Une partie de cette photo manque</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 × %2 in</source>
        <translation>%1 × %2 po</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Drag the photo to choose what is cut away</source>
        <translation>Faites glisser la photo pour choisir ce qui est coupé</translation>
    </message>
    <message>
        <source>part of the photo is cut away</source>
        <translation>une partie de la photo est coupée</translation>
    </message>
    <message>
        <source>Show at 1:1</source>
        <translation>Afficher à l’échelle 1:1</translation>
    </message>
    <message>
        <source>Show a screen pixel for each printer dot (double-click the photo, or press Z in the preview)</source>
        <translation>Afficher un pixel d’écran par point d’impression (double-clic sur la photo, ou Z dans l’aperçu)</translation>
    </message>
    <message>
        <source>1:1, a screen pixel for each printer dot (%1 dpi)</source>
        <translation>1:1, un pixel d’écran par point d’impression (%1 ppp)</translation>
    </message>
    <message>
        <source>The printer's adjustments, approximated on the screen</source>
        <translation>Réglages de l’imprimante, approchés à l’écran</translation>
    </message>
    <message>
        <source>Sharpening shows at 1:1</source>
        <translation>La netteté se voit à 1:1</translation>
    </message>
    <message>
        <source>Reading the photo...</source>
        <translation>Lecture de la photo…</translation>
    </message>
</context>
<context>
    <name>halvern::PrintDialog</name>
    <message>
        <source>%1, page %2</source>
        <translation>%1, page %2</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>Photo précédente</translation>
    </message>
    <message>
        <source>Next photo</source>
        <translation>Photo suivante</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Imp&amp;rimante :</translation>
    </message>
    <message>
        <source>C&amp;opies:</source>
        <translation>C&amp;opies :</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Im&amp;primer</translation>
    </message>
    <message>
        <source>Looking for printers...</source>
        <translation>Recherche d’imprimantes…</translation>
    </message>
    <message>
        <source>The print server has no default printer. Name one with --printer.</source>
        <translation>Le serveur d'impression n'a pas d'imprimante par défaut. Indiquez-en une avec --printer.</translation>
    </message>
    <message>
        <source>The print server has no printers. Add one in the system's settings.</source>
        <translation>Le serveur d’impression n’a aucune imprimante. Ajoutez-en une dans les réglages du système.</translation>
    </message>
    <message>
        <source>The print server has no printer "%1". Choose another one.</source>
        <translation>Le serveur d’impression n’a pas d’imprimante « %1 ». Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>There is no photo to print.</source>
        <translation>Il n’y a pas de photo à imprimer.</translation>
    </message>
    <message>
        <source>Reading the photo...</source>
        <translation>Lecture de la photo…</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
    </message>
    <message>
        <source>%1 of %2  ·  %3</source>
        <translation>%1 sur %2  ·  %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>To make that possible, this was changed too: %1</source>
        <translation>Pour que ce soit possible, ceci a changé aussi : %1</translation>
    </message>
    <message>
        <source>To go with what the printer has, this was changed: %1</source>
        <translation>Pour convenir à ce que contient l&apos;imprimante, ceci a été modifié : %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Ann&amp;uler la modification</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Preparing the pages...</source>
        <translation>Préparation des pages…</translation>
    </message>
    <message>
        <source>Job %1 was sent to "%2".</source>
        <translation>La tâche %1 a été envoyée à « %2 ».</translation>
    </message>
    <message>
        <source>Choose a printer and a paper size, look at the preview, and press Print. The list on the left of the options has the printer's own pages.</source>
        <translation>Choisissez une imprimante et un format de papier, regardez l’aperçu et cliquez sur Imprimer. La liste à gauche des options contient les pages propres à l’imprimante.</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Annulation…</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annuler la tâche</translation>
    </message>
    <message>
        <source>Asking the print server to cancel job %1...</source>
        <translation>Demande d’annulation de la tâche %1 au serveur d’impression...</translation>
    </message>
    <message>
        <source>No answer from the print server.</source>
        <translation>Pas de réponse du serveur d’impression.</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Assembler</translation>
    </message>
    <message>
        <source>Whole sets one after the other: 1, 2, 3, 1, 2, 3</source>
        <translation>Jeux complets l’un après l’autre : 1, 2, 3, 1, 2, 3</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>Utiliser %1</translation>
    </message>
    <message>
        <source>The printer cannot do what was chosen, so this stays: %1</source>
        <translation>L’imprimante ne peut pas faire ce qui a été choisi ; il en reste donc à : %1</translation>
    </message>
</context>
<context>
    <name>halvern::PrintRun</name>
    <message>
        <source>No temporary file can be made: %1. Make room on the disk and try again.</source>
        <translation>Impossible de créer un fichier temporaire : %1. Libérez de la place sur le disque et réessayez.</translation>
    </message>
    <message>
        <source>Sending the job...</source>
        <translation>Envoi de la tâche…</translation>
    </message>
    <message>
        <source>Preparing the pages...</source>
        <translation>Préparation des pages…</translation>
    </message>
    <message>
        <source>Cancelled: nothing was printed.</source>
        <translation>Annulé : rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>Nothing was printed. %1</source>
        <translation>Rien n’a été imprimé. %1</translation>
    </message>
    <message>
        <source>The print server does not answer. Job %1 is cancelled as soon as it does, if this window is still open.</source>
        <translation>Le serveur d’impression ne répond pas. La tâche %1 sera annulée dès qu’il répondra, si cette fenêtre est encore ouverte.</translation>
    </message>
    <message>
        <source>Job %1 was sent to "%2", but the print server has not answered for %3 seconds: whether it was printed is not known. Look at the printer before you print again.</source>
        <translation>La tâche %1 a été envoyée à « %2 », mais le serveur d’impression ne répond plus depuis %3 secondes : on ne sait pas si elle a été imprimée. Regardez l’imprimante avant de réimprimer.</translation>
    </message>
</context>
<context>
    <name>ListPapers</name>
    <message>
        <source>The printer "%1" was asked, but has not reported its papers. Look into the print server's error log.</source>
        <translation>L'imprimante « %1 » a été interrogée, mais n'a pas communiqué ses papiers. Consultez le journal d'erreurs du serveur d'impression.</translation>
    </message>
    <message>
        <source>The printer "%1" does not report its papers: it has no Halvern driver.</source>
        <translation>L'imprimante « %1 » ne communique pas ses papiers : elle n'a pas de pilote Halvern.</translation>
    </message>
    <message>
        <source>Asking "%1" ...</source>
        <translation>Interrogation de « %1 »...</translation>
    </message>
    <message>
        <source>Waiting for "%1"%2 ...</source>
        <translation>Attente de « %1 »%2...</translation>
    </message>
    <message>
        <source>The printer "%1" is busy with another job. Ask again when that has ended.</source>
        <translation>L'imprimante « %1 » traite une autre tâche. Interrogez-la à nouveau quand celle-ci sera terminée.</translation>
    </message>
    <message>
        <source>The printer "%1" does not work at the moment%2, and the question was taken back. Resume the printer (cupsenable) and ask again.</source>
        <translation>L'imprimante « %1 » ne fonctionne pas pour le moment%2 et la demande a été retirée. Relancez l'imprimante (cupsenable) et recommencez.</translation>
    </message>
    <message>
        <source>The printer "%1" could not answer%2. See to the printer and ask again.</source>
        <translation>L'imprimante « %1 » n'a pas pu répondre%2. Vérifiez l'imprimante et recommencez.</translation>
    </message>
    <message>
        <source>The printer "%1" does not accept jobs and cannot be asked. Let it accept them (cupsaccept) and ask again.</source>
        <translation>L'imprimante « %1 » n'accepte pas de tâches et ne peut pas être interrogée. Faites-la en accepter (cupsaccept) et recommencez.</translation>
    </message>
    <message>
        <source>The print server refused the question to "%1". Look into its error log.</source>
        <translation>Le serveur d'impression a refusé la demande à « %1 ». Consultez son journal d'erreurs.</translation>
    </message>
    <message>
        <source>The list of papers that "%1" reported cannot be read (%2).</source>
        <translation>La liste de papiers communiquée par « %1 » est illisible (%2).</translation>
    </message>
    <message>
        <source>No papers are loaded.</source>
        <translation>Aucun papier n'est chargé.</translation>
    </message>
    <message>
        <source>The printer has not said yet what is loaded.</source>
        <translation>L'imprimante n'a pas encore dit ce qui est chargé.</translation>
    </message>
    <message>
        <source>Ask it with --refresh.</source>
        <translation>Interrogez-la avec --refresh.</translation>
    </message>
    <message>
        <source>The question to "%1" could not be processed%2 and was taken back. See to the printer, look into the print server's error log, and ask again.</source>
        <translation>La demande à « %1 » n'a pas pu être traitée%2 et a été retirée. Vérifiez l'imprimante, consultez le journal d'erreurs du serveur d'impression et recommencez.</translation>
    </message>
    <message>
        <source>The question to "%1" was held%2 and has been cancelled. See to the printer and ask again.</source>
        <translation>La demande à « %1 » a été retenue%2 et annulée. Vérifiez l'imprimante et recommencez.</translation>
    </message>
    <message>
        <source>The question to "%1" was cancelled. Ask again.</source>
        <translation>La demande à « %1 » a été annulée. Recommencez.</translation>
    </message>
    <message>
        <source>The print server does not answer; job %1 may still be on the queue (cancel %2-%1).</source>
        <translation>Le serveur d'impression ne répond pas ; la tâche %1 est peut-être encore dans la file (cancel %2-%1).</translation>
    </message>
    <message>
        <source>Look into the print server's error log, and ask again.</source>
        <translation>Consultez le journal d'erreurs du serveur d'impression et recommencez.</translation>
    </message>
</context>
<context>
    <name>JobActions</name>
    <message>
        <source>The print server does not let you cancel this job. Ask whoever looks after it.</source>
        <translation>Le serveur d’impression ne vous laisse pas annuler cette tâche. Demandez à qui s’en occupe.</translation>
    </message>
    <message>
        <source>The print server does not let you resume "%1". Ask whoever looks after it; the job waits meanwhile.</source>
        <translation>Le serveur d’impression ne vous laisse pas relancer « %1 ». Demandez à qui s’en occupe ; la tâche attend entre-temps.</translation>
    </message>
    <message>
        <source>The print server does not let you release the job. Ask whoever looks after it; the job waits meanwhile.</source>
        <translation>Le serveur d’impression ne vous laisse pas libérer la tâche. Demandez à qui s’en occupe ; la tâche attend entre-temps.</translation>
    </message>
    <message>
        <source>The print server does not let you print the job again. Ask whoever looks after it.</source>
        <translation>Le serveur d’impression ne vous laisse pas réimprimer la tâche. Demandez à qui s’en occupe.</translation>
    </message>
</context>
<context>
    <name>JobSubmitter</name>
    <message>
        <source> Job %1 may still be on the queue of "%2" without its pages: cancel it there before you print again.</source>
        <translation> La tâche %1 est peut-être encore dans la file de « %2 » sans ses pages : annulez-la avant de réimprimer.</translation>
    </message>
    <message>
        <source>The print server gave the job no number. Look into its error log.</source>
        <translation>Le serveur d’impression n’a pas donné de numéro à la tâche. Consultez son journal d’erreurs.</translation>
    </message>
</context>
<context>
    <name>halvern::RunBar</name>
    <message>
        <source>Progress of the print job</source>
        <translation>Progression de la tâche</translation>
    </message>
    <message>
        <source>Resume Printer</source>
        <translation>Relancer l’imprimante</translation>
    </message>
    <message>
        <source>Release Job</source>
        <translation>Libérer la tâche</translation>
    </message>
    <message>
        <source>Print Job Again</source>
        <translation>Réimprimer la tâche</translation>
    </message>
</context>
<context>
    <name>GivenOptions</name>
    <message>
        <source>The printer has no paper "%1".</source>
        <translation>L’imprimante n’a pas de papier « %1 ».</translation>
    </message>
    <message>
        <source>The printer has no "sides=%1". Leave it out, or use the printer's own option for two-sided printing.</source>
        <translation>L’imprimante ne connaît pas « sides=%1 ». Retirez-le, ou utilisez l’option de l’imprimante pour l’impression recto verso.</translation>
    </message>
    <message>
        <source>"%1" is no way to scale. Write print-scaling=fit, fill or none.</source>
        <translation>« %1 » n’est pas un mode de mise à l’échelle. Écrivez print-scaling=fit, fill ou none.</translation>
    </message>
    <message>
        <source>"%1=%2" is not possible: the page is laid out before it is sent, one photo on each. Leave it out.</source>
        <translation>« %1=%2 » n’est pas possible : la page est composée avant l’envoi, une photo sur chacune. Retirez-le.</translation>
    </message>
    <message>
        <source>The number of copies is no option of the printer. Give it with --copies.</source>
        <translation>Le nombre de copies n’est pas une option de l’imprimante. Donnez-le avec --copies.</translation>
    </message>
    <message>
        <source>"%1" is set by the printer's own options here. "lpoptions -p QUEUE -l" lists them.</source>
        <translation>« %1 » se choisit ici avec les options de l’imprimante. « lpoptions -p QUEUE -l » les affiche.</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>Vouliez-vous dire %1 ?</translation>
    </message>
    <message>
        <source>It has: %1 and %2 more.</source>
        <translation>Il y a : %1 et %2 de plus.</translation>
    </message>
    <message>
        <source>It has: %1.</source>
        <translation>Il y a : %1.</translation>
    </message>
</context>
<context>
    <name>halvern::Stepper</name>
    <message>
        <source>Increase</source>
        <translation>Augmenter</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Diminuer</translation>
    </message>
</context>
<context>
    <name>PageFit</name>
    <message>
        <source>The paper size "%1" is wider than the roll (%2).</source>
        <translation>Le format de papier « %1 » est plus large que le rouleau (%2).</translation>
    </message>
    <message>
        <source>The paper size "%1" is larger than the paper "%2".</source>
        <translation>Le format de papier « %1 » est plus grand que le papier « %2 ».</translation>
    </message>
</context>
<context>
    <name>StartingOptions</name>
    <message>
        <source>The printer "%1" prints no text on the back of a picture. Leave --backprint out, or choose another printer.</source>
        <translation>L’imprimante « %1 » n’imprime pas de texte au dos des photos. Retirez --backprint ou choisissez une autre imprimante.</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterChoice</name>
    <message>
        <source>Your default printer "%1" is none of the print server's. "%2" was chosen instead.</source>
        <translation>Votre imprimante par défaut « %1 » n’est pas sur le serveur d’impression. « %2 » a été choisie à la place.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Ready</source>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Does not accept jobs</source>
        <translation>N’accepte pas de tâches</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprime</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Trouvée sur le réseau</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Demande votre attention</translation>
    </message>
    <message>
        <source>The print server has no printers. Add one, for example with lpadmin.</source>
        <translation>Le serveur d’impression n’a aucune imprimante. Ajoutez-en une, par exemple avec lpadmin.</translation>
    </message>
    <message>
        <source>The print server has no printer "%1". It has: %2.</source>
        <translation>Le serveur d’impression n’a pas d’imprimante « %1 ». Il a : %2.</translation>
    </message>
    <message>
        <source>The print server has no printer "%1". It has: %2, and %3 more (lpstat -e).</source>
        <translation>Le serveur d’impression n’a pas d’imprimante « %1 ». Il a : %2 et %3 de plus (lpstat -e).</translation>
    </message>
</context>
<context>
    <name>QueuePpd</name>
    <message>
        <source>The printer "%1" has no description on the print server. Install it with a driver, or choose another printer.</source>
        <translation>L’imprimante « %1 » n’a pas de description sur le serveur. Installez-la avec un pilote ou choisissez-en une autre.</translation>
    </message>
    <message>
        <source>The description of the printer "%1" is damaged: %2. Install its driver again, or choose another printer.</source>
        <translation>La description de l’imprimante « %1 » est endommagée : %2. Réinstallez son pilote ou choisissez une autre imprimante.</translation>
    </message>
</context>
<context>
    <name>PpdLookup</name>
    <message>
        <source>%1 must be a number from %2 to %3.</source>
        <translation>%1 doit être un nombre de %2 à %3.</translation>
    </message>
    <message>
        <source>%1 must have %2 to %3 characters.</source>
        <translation>%1 doit avoir de %2 à %3 caractères.</translation>
    </message>
</context>
<context>
    <name>CupsSentences</name>
    <message>
        <source>The print server broke off the conversation. Try again; if it fails again, look into the print server's error log.</source>
        <translation>Le serveur d’impression a interrompu la conversation. Réessayez ; si cela échoue encore, consultez le journal d’erreurs du serveur d’impression.</translation>
    </message>
    <message>
        <source>The print server does not answer. Wait a moment and try again, or restart it.</source>
        <translation>Le serveur d’impression ne répond pas. Attendez un moment et réessayez, ou redémarrez-le.</translation>
    </message>
    <message>
        <source>The print server's answer does not end. Restart the print server, and try again.</source>
        <translation>La réponse du serveur d’impression ne se termine pas. Redémarrez le serveur d’impression et réessayez.</translation>
    </message>
    <message>
        <source>The printer is not on the print server any more. Choose another one.</source>
        <translation>L’imprimante n’est plus sur le serveur d’impression. Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>The printer does not accept jobs at the moment. Choose another one, or let it accept jobs (cupsaccept).</source>
        <translation>L’imprimante n’accepte pas de tâches pour le moment. Choisissez-en une autre ou autorisez-la (cupsaccept).</translation>
    </message>
    <message>
        <source>The print server does not allow you to do this. Ask whoever looks after it.</source>
        <translation>Le serveur d’impression ne vous y autorise pas. Adressez-vous à la personne qui le gère.</translation>
    </message>
    <message>
        <source>The print server reports: %1</source>
        <translation>Le serveur d’impression signale : %1</translation>
    </message>
    <message>
        <source>The print server at %1 cannot be reached. Start it, for example with "systemctl start cups", and try again.</source>
        <translation>Le serveur d’impression %1 est injoignable. Démarrez-le, par exemple avec « systemctl start cups », et réessayez.</translation>
    </message>
</context>
<context>
    <name>PageRenderer</name>
    <message>
        <source>The print job could not be written to a temporary file. Make room on the disk and try again.</source>
        <translation>La tâche n’a pas pu être écrite dans un fichier temporaire. Libérez de la place sur le disque et réessayez.</translation>
    </message>
</context>
<context>
    <name>PhotoProblem</name>
    <message>
        <source>"%1" is damaged and cannot be read. Export it from your photo program again.</source>
        <translation>« %1 » est endommagé et illisible. Exportez-le à nouveau depuis votre logiciel de photo.</translation>
    </message>
    <message>
        <source>"%1" is damaged: a part of the picture is missing. Copy it from the camera again, or export it again.</source>
        <translation>« %1 » est endommagé : une partie de l’image manque. Copiez-le à nouveau depuis l’appareil photo ou exportez-le à nouveau.</translation>
    </message>
    <message>
        <source>"%1" is too large to print. Make a copy with fewer pixels and print that.</source>
        <translation>« %1 » est trop grande pour être imprimée. Imprimez une copie avec moins de pixels.</translation>
    </message>
    <message>
        <source>"%1" is not a picture that can be printed. Use a JPEG, PNG, TIFF or PDF file.</source>
        <translation>« %1 » n’est pas une image imprimable. Utilisez un fichier JPEG, PNG, TIFF ou PDF.</translation>
    </message>
    <message>
        <source>"%1" is locked with a password. Save a copy without one and print that.</source>
        <translation>« %1 » est protégé par un mot de passe. Imprimez une copie sans mot de passe.</translation>
    </message>
    <message>
        <source>"%1" has changed meanwhile. Open it again.</source>
        <translation>« %1 » a changé entre-temps. Ouvrez-le à nouveau.</translation>
    </message>
    <message>
        <source>There is no file "%1". Check its name.</source>
        <translation>Il n’y a pas de fichier « %1 ». Vérifiez son nom.</translation>
    </message>
    <message>
        <source>"%1" is a folder. Name the photos in it, for example *.jpg.</source>
        <translation>« %1 » est un dossier. Nommez les photos qu’il contient, par exemple *.jpg.</translation>
    </message>
    <message>
        <source>"%1" cannot be opened. Check that you may read it.</source>
        <translation>« %1 » ne peut pas être ouvert. Vérifiez que vous avez le droit de le lire.</translation>
    </message>
    <message>
        <source>"%1" is empty. Copy it from the camera again.</source>
        <translation>« %1 » est vide. Copiez-le à nouveau depuis l’appareil photo.</translation>
    </message>
</context>
<context>
    <name>IppOptions</name>
    <message>
        <source>The value of %1 is too long to send: it has %2 bytes, and %3 are possible. Shorten it.</source>
        <translation>La valeur de %1 est trop longue : %2 octets, %3 au plus. Raccourcissez-la.</translation>
    </message>
</context>
<context>
    <name>BackLines</name>
    <message>
        <source>Backprint line %1 cannot hold %2, which was left out. It takes the characters of an English keyboard except "~", and "©".</source>
        <translation>La ligne %1 du dos ne peut pas contenir %2, qui a été omis. Elle accepte les caractères d’un clavier anglais sauf « ~ », ainsi que « © ».</translation>
    </message>
    <message>
        <source>Backprint line %1 is longer than %2 characters; what comes after them was left out (%3).</source>
        <translation>La ligne %1 du dos dépasse %2 caractères ; la suite a été omise (%3).</translation>
    </message>
</context>
<context>
    <name>PaperTable</name>
    <message>
        <source>just now</source>
        <translation>à l'instant</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>il y a %1 min</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>il y a %1 h</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>il y a %1 jours</translation>
    </message>
    <message>
        <source>%1: last updated never</source>
        <translation>%1 : jamais mis à jour</translation>
    </message>
    <message>
        <source>%1: last updated %2 (%3)</source>
        <translation>%1 : dernière mise à jour %2 (%3)</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rouleau</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Feuille</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Tones</source>
        <translation>Tons</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>The display cannot be used: %1. Print with --no-dialog, or set DISPLAY to one that works.</source>
        <translation>L’écran est inutilisable : %1. Imprimez avec --no-dialog ou définissez DISPLAY sur un écran qui fonctionne.</translation>
    </message>
    <message>
        <source>There is no display to show the dialog on. Print with --no-dialog, or set DISPLAY.</source>
        <translation>Aucun écran pour afficher le dialogue. Imprimez avec --no-dialog ou définissez DISPLAY.</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>The output could not be written: %1.</source>
        <translation>La sortie n'a pas pu être écrite : %1.</translation>
    </message>
</context>
</TS>
