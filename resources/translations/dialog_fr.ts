<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
    <name>AuthInfo</name>
    <message>
        <source>The printer &quot;%1&quot; wants a name and a password, and was given none. Print again and sign in, or ask whoever looks after it.</source>
        <translation>L’imprimante « %1 » demande un nom et un mot de passe et ne les a pas reçus. Imprimez à nouveau et connectez-vous, ou adressez-vous à la personne qui la gère.</translation>
    </message>
</context>
<context>
    <name>BackLines</name>
    <message>
        <source>Backprint line %1 cannot hold %2, which was left out. It takes the characters of an English keyboard except &quot;~&quot;, and &quot;©&quot;.</source>
        <translation>La ligne %1 du dos ne peut pas contenir %2, qui a été omis. Elle accepte les caractères d’un clavier anglais sauf « ~ », ainsi que « © ».</translation>
    </message>
    <message>
        <source>Backprint line %1 is longer than %2 characters; what comes after them was left out (%3).</source>
        <translation>La ligne %1 du dos dépasse %2 caractères ; la suite a été omise (%3).</translation>
    </message>
</context>
<context>
    <name>Caption</name>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Date de prise de vue</translation>
    </message>
    <message>
        <source>Year (4 digits)</source>
        <translation>Année (4 chiffres)</translation>
    </message>
    <message>
        <source>Year (2 digits)</source>
        <translation>Année (2 chiffres)</translation>
    </message>
    <message>
        <source>Month (2 digits)</source>
        <translation>Mois (2 chiffres)</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Day (2 digits)</source>
        <translation>Jour (2 chiffres)</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
</context>
<context>
    <name>ColourManagement</name>
    <message>
        <source>Perceptual</source>
        <translation>Perceptif</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Colorimétrique relatif</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Colorimétrique absolu</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>The printer is told not to convert them again (%1).</source>
        <translation>L’imprimante reçoit l’ordre de ne pas les convertir à nouveau (%1).</translation>
    </message>
    <message>
        <source>No color profile of this printer is known. Choose one, or let the printer manage colors.</source>
        <translation>Aucun profil de couleurs n’est connu pour cette imprimante. Choisissez-en un ou laissez l’imprimante gérer les couleurs.</translation>
    </message>
    <message>
        <source>colors for &quot;%1&quot;</source>
        <translation>couleurs pour « %1 »</translation>
    </message>
    <message>
        <source>The printer converts the colors: each photo goes to it in %1. No soft proof: only the printer knows what it makes of them.</source>
        <translation>L’imprimante convertit les couleurs : chaque photo lui est envoyée en %1. Pas d’épreuvage écran : seule l’imprimante sait ce qu’elle en fait.</translation>
    </message>
    <message>
        <source>This program converts the colors, from each photo&apos;s own to &quot;%1&quot;.</source>
        <translation>Ce programme convertit les couleurs, de celles de chaque photo vers « %1 ».</translation>
    </message>
    <message>
        <source>See that the printer&apos;s own color correction is off.</source>
        <translation>Vérifiez que la correction des couleurs propre à l’imprimante est désactivée.</translation>
    </message>
    <message>
        <source>Only the printer knows what it makes of the colors. Let this program manage them, for a profile, to see a soft proof.</source>
        <translation>Seule l’imprimante sait ce qu’elle fait des couleurs. Laissez ce programme les gérer, pour un profil, si vous voulez un épreuvage écran.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say what its colors look like: with it there is no soft proof.</source>
        <translation>« %1 » n’indique pas l’aspect de ses couleurs : il ne permet pas d’épreuvage écran.</translation>
    </message>
    <message>
        <source>Soft proof with paper white</source>
        <translation>Épreuvage écran avec blanc du papier</translation>
    </message>
    <message>
        <source>Soft proof</source>
        <translation>Épreuvage écran</translation>
    </message>
    <message>
        <source>pink cannot be printed</source>
        <translation>le rose n’est pas imprimable</translation>
    </message>
    <message>
        <source>The color profile &quot;%1&quot; is being read. Wait a moment.</source>
        <translation>Lecture du profil de couleurs « %1 » en cours. Attendez un moment.</translation>
    </message>
    <message>
        <source>The color profile &quot;%1&quot; cannot be read. Choose another one, or let the printer manage colors.</source>
        <translation>Le profil de couleurs « %1 » ne peut pas être lu. Choisissez-en un autre ou laissez l’imprimante gérer les couleurs.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color profile of a printer. Choose another one, or let the printer manage colors.</source>
        <translation>« %1 » n’est pas un profil de couleurs d’imprimante. Choisissez-en un autre ou laissez l’imprimante gérer les couleurs.</translation>
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
        <source>Where no file is named, ask for photos in a window first.</source>
        <translation>Si aucun fichier n’est indiqué, demander d’abord les photos dans une fenêtre.</translation>
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
        <source>See &quot;halvern-print --help&quot;.</source>
        <translation>Voir « halvern-print --help ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no option: write KEY=VALUE, for example PageSize=A4.</source>
        <translation>« %1 » n’est pas une option : écrivez KEY=VALUE, par exemple PageSize=A4.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of copies: write a number from 1 to %2.</source>
        <translation>« %1 » n’est pas un nombre de copies : écrivez un nombre de 1 à %2.</translation>
    </message>
    <message>
        <source>The queue&apos;s name is empty. &quot;lpstat -e&quot; lists the queues.</source>
        <translation>Le nom de la file est vide. « lpstat -e » affiche les files.</translation>
    </message>
    <message>
        <source>Prints photos, with a preview and the printer&apos;s own pages of options.</source>
        <translation>Imprime des photos, avec un aperçu et les pages d’options propres à l’imprimante.</translation>
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
        <translation>Afficher ce qui est chargé dans l’imprimante et l’âge de cette information.</translation>
    </message>
    <message>
        <source>With --list-papers: ask the printer first.</source>
        <translation>Avec --list-papers : interroger d’abord l’imprimante.</translation>
    </message>
    <message>
        <source>--refresh goes with --list-papers.</source>
        <translation>--refresh s’emploie avec --list-papers.</translation>
    </message>
    <message>
        <source>With --no-dialog: give a print server that goes silent after the job was sent this long; 60 seconds without it.</source>
        <translation>Avec --no-dialog : attendre aussi longtemps un serveur d’impression qui se tait après l’envoi de la tâche ; sinon 60 secondes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time to wait: write a number of seconds from 1 to %2.</source>
        <translation>« %1 » n’est pas une durée d’attente : écrivez un nombre de secondes de 1 à %2.</translation>
    </message>
    <message>
        <source>Print these pages only, for example 1-3,7,12-.</source>
        <translation>Imprimer seulement ces pages, par exemple 1-3,7,12-.</translation>
    </message>
    <message>
        <source>Print the last page first.</source>
        <translation>Imprimer la dernière page en premier.</translation>
    </message>
    <message>
        <source>Call the job this; without it, it is called like the first file.</source>
        <translation>Donner ce nom à la tâche ; sinon, elle prend celui du premier fichier.</translation>
    </message>
    <message>
        <source>Write the pages, as they would be sent, into this PDF file, and send nothing.</source>
        <translation>Écrire les pages, telles qu’elles seraient envoyées, dans ce fichier PDF, sans rien envoyer.</translation>
    </message>
    <message>
        <source>With --no-dialog: read the job back from the print server, and say what was added or changed.</source>
        <translation>Avec --no-dialog : relire la tâche sur le serveur d’impression et dire ce qui a été ajouté ou modifié.</translation>
    </message>
    <message>
        <source>Start with this preset of the printer&apos;s. Without it the dialog starts with what you printed with last, and --no-dialog with your saved options.</source>
        <translation>Commencer avec ce préréglage de l’imprimante. Sans lui, le dialogue commence avec les réglages de votre dernière impression, et --no-dialog avec vos options enregistrées.</translation>
    </message>
    <message>
        <source>Keep the queue&apos;s saved options, --preset and the options given here as a preset, and print nothing. Copies, pages and the text on the back are in it if they are given.</source>
        <translation>Enregistrer comme préréglage les options enregistrées de la file, --preset et les options données ici, sans rien imprimer. Les copies, les pages et le texte au dos en font partie s’ils sont donnés.</translation>
    </message>
    <message>
        <source>Write the print server&apos;s queues, a line each.</source>
        <translation>Afficher les files du serveur d’impression, une par ligne.</translation>
    </message>
    <message>
        <source>Write the printer&apos;s options with their current and default value and their choices, a line each.</source>
        <translation>Afficher les options de l’imprimante avec leur valeur actuelle, leur valeur par défaut et leurs choix, une par ligne.</translation>
    </message>
    <message>
        <source>Write the names of the printer&apos;s presets, a line each.</source>
        <translation>Afficher les noms des préréglages de l’imprimante, un par ligne.</translation>
    </message>
    <message>
        <source>The name of the file to write is empty.</source>
        <translation>Le nom du fichier à écrire est vide.</translation>
    </message>
    <message>
        <source>--output writes a file, and does not go with --dry-run.</source>
        <translation>--output écrit un fichier et ne va pas avec --dry-run.</translation>
    </message>
    <message>
        <source>--verify goes with --no-dialog, and with nothing that sends no job.</source>
        <translation>--verify s’emploie avec --no-dialog, et jamais quand aucune tâche n’est envoyée.</translation>
    </message>
    <message>
        <source>--%1 prints no files: leave out the files and the options for printing.</source>
        <translation>--%1 n’imprime pas de fichiers : retirez les fichiers et les options d’impression.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a preset that is always there. Choose another name.</source>
        <translation>« %1 » est un préréglage toujours présent. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a preset: write 1 to %2 characters.</source>
        <translation>« %1 » n’est pas un nom de préréglage : écrivez de 1 à %2 caractères.</translation>
    </message>
    <message>
        <source>Turn the page: portrait or landscape; without it, as the photo.</source>
        <translation>Orientation de la page : portrait ou landscape ; sinon, comme la photo.</translation>
    </message>
    <message>
        <source>Send several jobs in order, with at most this many photos each; without it, one job.</source>
        <translation>Envoyer plusieurs tâches dans l’ordre, avec au plus ce nombre de photos chacune ; sinon, une seule tâche.</translation>
    </message>
    <message>
        <source>Show the dialog above another program&apos;s window: x11: and the window&apos;s number in hexadecimal digits.</source>
        <translation>Afficher le dialogue au-dessus de la fenêtre d’un autre programme : x11: et le numéro de la fenêtre en chiffres hexadécimaux.</translation>
    </message>
    <message>
        <source>When the dialog has closed, write what was chosen and what became of it to standard output, as JSON.</source>
        <translation>Une fois le dialogue fermé, écrire sur la sortie standard, en JSON, ce qui a été choisi et ce qu’il en est advenu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of photos: write 1 or more.</source>
        <translation>« %1 » n’est pas un nombre de photos : écrivez 1 ou plus.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no orientation: write portrait or landscape.</source>
        <translation>« %1 » n’est pas une orientation : écrivez portrait ou landscape.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no place: write two numbers from 0 to 1, for example 0.5,0.5.</source>
        <translation>« %1 » n’est pas une position : écrivez deux nombres de 0 à 1, par exemple 0.5,0.5.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no window: write x11: and its number, for example x11:3c00007.</source>
        <translation>« %1 » ne désigne aucune fenêtre : écrivez x11: et son numéro, par exemple x11:3c00007.</translation>
    </message>
    <message>
        <source>--parent and --result-json go with the dialog.</source>
        <translation>--parent et --result-json s’emploient avec le dialogue.</translation>
    </message>
    <message>
        <source>%1 is one of the files to print. Write to another file with --output.</source>
        <translation>%1 est l’un des fichiers à imprimer. Écrivez dans un autre fichier avec --output.</translation>
    </message>
    <message>
        <source>With --no-dialog: leave out files that cannot be read, or of which a part is missing, say which, and print the others.</source>
        <translation>Avec --no-dialog : omettre les fichiers illisibles ou dont une partie manque, dire lesquels, et imprimer les autres.</translation>
    </message>
    <message>
        <source>Name at least one photo to print (JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF), or a folder of them.</source>
        <translation>Nommez au moins une photo à imprimer (JPEG, PNG, TIFF, WebP, HEIF, AVIF ou PDF), ou un dossier de photos.</translation>
    </message>
    <message>
        <source>JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF files, or folders of them; each photo becomes a page. &quot;-&quot; is standard input, &quot;@NAME&quot; a text file with a file&apos;s name on each line.</source>
        <translation>Fichiers JPEG, PNG, TIFF, WebP, HEIF, AVIF ou PDF, ou dossiers de ceux-ci ; chaque photo devient une page. « - » est l’entrée standard, « @NAME » un fichier texte avec un nom de fichier par ligne.</translation>
    </message>
    <message>
        <source>Standard input cannot be kept in a temporary file. Make room on the disk.</source>
        <translation>L’entrée standard ne peut pas être conservée dans un fichier temporaire. Libérez de la place sur le disque.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no rendering intent: write perceptual, relative, saturation or absolute.</source>
        <translation>« %1 » n’est pas un mode de rendu : écrivez perceptual, relative, saturation ou absolute.</translation>
    </message>
    <message>
        <source>Use this print server; without it, CUPS_SERVER, client.conf or this computer&apos;s.</source>
        <translation>Utiliser ce serveur d’impression ; sinon CUPS_SERVER, client.conf ou celui de cet ordinateur.</translation>
    </message>
    <message>
        <source>Who converts the photos&apos; colors: printer, which is given sRGB, or dialog, for a color profile of the printer.</source>
        <translation>Qui convertit les couleurs des photos : printer (l’imprimante, qui reçoit du sRGB) ou dialog (le dialogue, pour un profil de couleurs de l’imprimante).</translation>
    </message>
    <message>
        <source>Convert the colors for this ICC profile of the printer; without it, for the one that the printer comes with.</source>
        <translation>Convertir les couleurs pour ce profil ICC de l’imprimante ; sinon, pour celui qui est fourni avec l’imprimante.</translation>
    </message>
    <message>
        <source>What becomes of colors that the printer cannot show: perceptual, relative, saturation or absolute; without it, perceptual.</source>
        <translation>Ce que deviennent les couleurs que l’imprimante ne peut pas rendre : perceptual, relative, saturation ou absolute ; sinon, perceptual.</translation>
    </message>
    <message>
        <source>Convert the colors without black point compensation.</source>
        <translation>Convertir les couleurs sans compensation du point noir.</translation>
    </message>
    <message>
        <source>With --list-printers, --list-options, --list-presets or --jobs: write JSON, with more details.</source>
        <translation>Avec --list-printers, --list-options, --list-presets ou --jobs : écrire du JSON, avec plus de détails.</translation>
    </message>
    <message>
        <source>Write your jobs that have not ended, on the queue of --printer or on all, a line each.</source>
        <translation>Afficher vos tâches non terminées, sur la file de --printer ou sur toutes, une par ligne.</translation>
    </message>
    <message>
        <source>With --jobs: those that have ended, too.</source>
        <translation>Avec --jobs : aussi celles qui sont terminées.</translation>
    </message>
    <message>
        <source>With --jobs: cancel this job.</source>
        <translation>Avec --jobs : annuler cette tâche.</translation>
    </message>
    <message>
        <source>With --jobs: hold this job.</source>
        <translation>Avec --jobs : retenir cette tâche.</translation>
    </message>
    <message>
        <source>With --jobs: let this held job go on.</source>
        <translation>Avec --jobs : libérer cette tâche retenue.</translation>
    </message>
    <message>
        <source>With --jobs: print this job again, if the print server has kept its pages.</source>
        <translation>Avec --jobs : réimprimer cette tâche, si le serveur d’impression a conservé ses pages.</translation>
    </message>
    <message>
        <source>With --jobs: give the printer the name and the password for which it holds this job.</source>
        <translation>Avec --jobs : donner à l’imprimante le nom et le mot de passe pour lesquels elle retient cette tâche.</translation>
    </message>
    <message>
        <source>With --jobs: move this job to another queue; --to says which.</source>
        <translation>Avec --jobs : déplacer cette tâche vers une autre file ; --to dit laquelle.</translation>
    </message>
    <message>
        <source>With --jobs --move: the queue to move the job to.</source>
        <translation>Avec --jobs --move : la file vers laquelle la tâche est déplacée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no print server: write its name or address, and a port where it is not 631, for example print.example.org:8631.</source>
        <translation>« %1 » n’est pas un serveur d’impression : écrivez son nom ou son adresse, et un port si ce n’est pas 631, par exemple print.example.org:8631.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; converts no colors: write printer or dialog.</source>
        <translation>« %1 » ne convertit pas les couleurs : écrivez printer ou dialog.</translation>
    </message>
    <message>
        <source>--profile, --intent and --no-black-point go with --color-by dialog.</source>
        <translation>--profile, --intent et --no-black-point s’emploient avec --color-by dialog.</translation>
    </message>
    <message>
        <source>--ended, --cancel, --hold, --release, --again, --sign-in, --move and --to go with --jobs.</source>
        <translation>--ended, --cancel, --hold, --release, --again, --sign-in, --move et --to s’emploient avec --jobs.</translation>
    </message>
    <message>
        <source>Do one thing at a time: give one of --cancel, --hold, --release, --again and --sign-in, or --move and --to together.</source>
        <translation>Une chose à la fois : donnez --cancel, --hold, --release, --again ou --sign-in, ou bien --move et --to ensemble.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no job: write its number, as --jobs lists it.</source>
        <translation>« %1 » n’est pas une tâche : écrivez son numéro, tel que --jobs l’affiche.</translation>
    </message>
    <message>
        <source>--json goes with --list-printers, --list-options, --list-presets or --jobs.</source>
        <translation>--json s’emploie avec --list-printers, --list-options, --list-presets ou --jobs.</translation>
    </message>
    <message>
        <source>Where the spare room or the cut goes: 0,0 is left and top, 1,1 right and bottom. Can be given several times, for one photo after the other, as can the next three.</source>
        <translation>Position de la photo là où il reste de la place ou là où l’on coupe : 0,0 est en haut à gauche, 1,1 en bas à droite. Peut être répété, pour une photo après l’autre, comme les trois suivants.</translation>
    </message>
    <message>
        <source>Print a part of the photo this much larger, 1 to %1.</source>
        <translation>Imprimer une partie de la photo agrandie d’autant, de 1 à %1.</translation>
    </message>
    <message>
        <source>Turn the photo clockwise: 0, 90, 180 or 270 degrees.</source>
        <translation>Tourner la photo dans le sens des aiguilles d’une montre : 0, 90, 180 ou 270 degrés.</translation>
    </message>
    <message>
        <source>Print the photo this often in each copy of the job, 1 to %1.</source>
        <translation>Imprimer la photo autant de fois dans chaque copie de la tâche, de 1 à %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no enlargement: write a number from 1 to %2.</source>
        <translation>« %1 » n’est pas un agrandissement : écrivez un nombre de 1 à %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no turn: write 0, 90, 180 or 270.</source>
        <translation>« %1 » n’est pas une rotation : écrivez 0, 90, 180 ou 270.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no length: write millimeters from 0 to %2.</source>
        <translation>« %1 » n’est pas une longueur : écrivez des millimètres de 0 à %2.</translation>
    </message>
    <message>
        <source>Put several photos on a sheet: a layout&apos;s name, rows and columns such as 3x4, or a size such as 90x130mm.</source>
        <translation>Mettre plusieurs photos sur une feuille : le nom d’une mise en page, des rangées et des colonnes, comme 3x4, ou une taille, comme 90x130mm.</translation>
    </message>
    <message>
        <source>Write this under each photo. It holds placeholders: [F] file name, [T] title, [C] number, [DATE] date taken, [YYYY], [MM], [DD].</source>
        <translation>Écrire ceci sous chaque photo. Repères possibles : [F] nom du fichier, [T] titre, [C] numéro, [DATE] date de prise de vue, [YYYY], [MM], [DD].</translation>
    </message>
    <message>
        <source>Print each photo in this size, for example 100x150, 4x6in, or 50% of its own.</source>
        <translation>Imprimer chaque photo dans cette taille, par exemple 100x150, 4x6in ou 50% de la sienne.</translation>
    </message>
    <message>
        <source>With --photo-size: so many millimeters from the sheet&apos;s left and top, for example 20,15.</source>
        <translation>Avec --photo-size : à autant de millimètres de la gauche et du haut de la feuille, par exemple 20,15.</translation>
    </message>
    <message>
        <source>Leave so many millimeters free at the sheet&apos;s edges at least.</source>
        <translation>Laisser libres au moins autant de millimètres aux bords de la feuille.</translation>
    </message>
    <message>
        <source>Leave a white border of so many millimeters around each photo.</source>
        <translation>Laisser un bord blanc d’autant de millimètres autour de chaque photo.</translation>
    </message>
    <message>
        <source>With --layout: each photo fills its own sheet.</source>
        <translation>Avec --layout : chaque photo remplit sa propre feuille.</translation>
    </message>
    <message>
        <source>The photos share sheets.</source>
        <translation>Les photos partagent des feuilles.</translation>
    </message>
    <message>
        <source>Print marks that show where to cut.</source>
        <translation>Imprimer des repères qui montrent où couper.</translation>
    </message>
    <message>
        <source>Print no such marks.</source>
        <translation>Ne pas imprimer ces repères.</translation>
    </message>
    <message>
        <source>Print a thin line around each photo.</source>
        <translation>Imprimer un filet fin autour de chaque photo.</translation>
    </message>
    <message>
        <source>Print no such line.</source>
        <translation>Ne pas imprimer ce filet.</translation>
    </message>
    <message>
        <source>The caption is longer than %1 characters.</source>
        <translation>La légende dépasse %1 caractères.</translation>
    </message>
    <message>
        <source>--%1 and --no-%1 do not go together.</source>
        <translation>--%1 et --no-%1 ne vont pas ensemble.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size: write %2% to %3%.</source>
        <translation>« %1 » n’est pas une taille : écrivez %2% à %3%.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size: write millimeters such as 100x150, inches such as 4x6in, or 50%.</source>
        <translation>« %1 » n’est pas une taille : écrivez des millimètres, comme 100x150, des pouces, comme 4x6in, ou 50%.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no corner: write two lengths in millimeters, for example 20,15.</source>
        <translation>« %1 » n’est pas un coin : écrivez deux longueurs en millimètres, par exemple 20,15.</translation>
    </message>
    <message>
        <source>--corner goes with --photo-size and a width and a height.</source>
        <translation>--corner s’emploie avec --photo-size, une largeur et une hauteur.</translation>
    </message>
    <message>
        <source>--photo-size with a width and a height does not go with --layout, which says how large the photos are. Leave one of them out.</source>
        <translation>--photo-size avec une largeur et une hauteur ne va pas avec --layout, qui fixe la taille des photos. Omettez l’un des deux.</translation>
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
        <translation>Code de sortie :
  0  Imprimé, ou ce qui était demandé a été écrit.
  1  Échec ; la sortie d’erreur dit pourquoi.
  2  Mauvais usage.
  3  La tâche est dans la file et n’était pas encore terminée.
  4  Annulé : rien n’a été imprimé.
  5  La tâche a été envoyée, mais le serveur d’impression ne dit pas comment elle s’est terminée.
  6  Avec --verify : imprimé, mais le serveur d’impression ne détient pas la tâche telle qu’elle a été envoyée.
  7  Un serveur d’impression ou une imprimante demande un nom et un mot de passe, et n’a pas reçu les bons.</translation>
    </message>
</context>
<context>
    <name>CupsSentences</name>
    <message>
        <source>The print server broke off the conversation. Try again; if it fails again, look into the print server&apos;s error log.</source>
        <translation>Le serveur d’impression a interrompu la conversation. Réessayez ; si cela échoue encore, consultez le journal d’erreurs du serveur d’impression.</translation>
    </message>
    <message>
        <source>The print server does not answer. Wait a moment and try again, or restart it.</source>
        <translation>Le serveur d’impression ne répond pas. Attendez un moment et réessayez, ou redémarrez-le.</translation>
    </message>
    <message>
        <source>The print server&apos;s answer does not end. Restart the print server, and try again.</source>
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
        <source>The print server at %1 cannot be reached. Start it, for example with &quot;systemctl start cups&quot;, and try again.</source>
        <translation>Le serveur d’impression %1 est injoignable. Démarrez-le, par exemple avec « systemctl start cups », et réessayez.</translation>
    </message>
    <message>
        <source>The print server at %1 cannot be reached. Is its name right, is it switched on, and is this computer on its network?</source>
        <translation>Le serveur d’impression %1 est injoignable. Son nom est-il juste, est-il allumé, et cet ordinateur est-il sur son réseau ?</translation>
    </message>
    <message>
        <source>The print server at %1 wants to talk in secret only, and no encryption could be agreed upon with it. Ask whoever looks after it.</source>
        <translation>Le serveur d’impression %1 n’accepte que des échanges chiffrés, et aucun chiffrement n’a pu être convenu avec lui. Adressez-vous à la personne qui le gère.</translation>
    </message>
    <message>
        <source>The certificate of the print server at %1 is not trusted, so nothing was sent to it. Try again to look at it once more, or ask whoever looks after the server.</source>
        <translation>Le certificat du serveur d’impression %1 n’est pas approuvé ; rien ne lui a donc été envoyé. Réessayez pour l’examiner encore une fois, ou adressez-vous à la personne qui gère le serveur.</translation>
    </message>
    <message>
        <source>The print server at %1 wants a name and a password for this, and was given none. Try again and sign in, or ask whoever looks after it.</source>
        <translation>Le serveur d’impression %1 demande pour cela un nom et un mot de passe et ne les a pas reçus. Réessayez et connectez-vous, ou adressez-vous à la personne qui le gère.</translation>
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
        <translation>%1 × %2 po</translation>
    </message>
</context>
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
        <source>&amp;Leave Them Out</source>
        <translation>&amp;Les omettre</translation>
    </message>
    <message>
        <source>&amp;Print All the Same</source>
        <translation>&amp;Imprimer quand même</translation>
    </message>
    <message>
        <source>Print without these files?</source>
        <translation>Imprimer sans ces fichiers ?</translation>
    </message>
    <message>
        <source>What is missing comes out gray, or smeared. Files that cannot be read are left out.</source>
        <translation>Ce qui manque sort gris ou brouillé. Les fichiers illisibles sont omis.</translation>
    </message>
    <message>
        <source>Files that cannot be read are left out.</source>
        <translation>Les fichiers illisibles sont omis.</translation>
    </message>
    <message>
        <source>&amp;Print the Others</source>
        <translation>&amp;Imprimer les autres</translation>
    </message>
</context>
<context>
    <name>DocumentKind</name>
    <message>
        <source>The application has sent an empty document. Print it once more from there.</source>
        <translation>L’application a envoyé un document vide. Imprimez-le encore une fois depuis celle-ci.</translation>
    </message>
    <message>
        <source>What the application has sent is no PDF, PostScript or picture. Export the document as a PDF file there, and print that.</source>
        <translation>Ce que l’application a envoyé n’est ni un PDF, ni du PostScript, ni une image. Exportez-y le document en fichier PDF et imprimez celui-ci.</translation>
    </message>
    <message>
        <source>The document ends in the middle: the application has not sent all of it. Print it once more from there.</source>
        <translation>Le document est incomplet : l’application n’a pas tout envoyé. Imprimez-le encore une fois depuis celle-ci.</translation>
    </message>
</context>
<context>
    <name>FrontEnd</name>
    <message>
        <source>&quot;halvern-print-portal --enable&quot; changes that for you.</source>
        <translation>« halvern-print-portal --enable » change cela pour vous.</translation>
    </message>
    <message>
        <source>It takes the first by file name. An administrator can put this one before &quot;%1&quot;: ln -s tessarin.portal %2/00-tessarin.portal</source>
        <translation>Il prend le premier par nom de fichier. Un administrateur peut placer celui-ci avant « %1 » : ln -s tessarin.portal %2/00-tessarin.portal</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>Impossible d’écrire « %1 » : %2.</translation>
    </message>
    <message>
        <source>The portal reads that when it starts: log in again, or run &quot;systemctl --user restart xdg-desktop-portal&quot;.</source>
        <translation>Le portail lit cela à son démarrage : reconnectez-vous ou lancez « systemctl --user restart xdg-desktop-portal ».</translation>
    </message>
    <message>
        <source>There is no portal on this computer: install xdg-desktop-portal.</source>
        <translation>Il n’y a pas de portail sur cet ordinateur : installez xdg-desktop-portal.</translation>
    </message>
    <message>
        <source>The portal (%1) does not know this program: there is no tessarin.portal in %2. Install it there.</source>
        <translation>Le portail (%1) ne connaît pas ce programme : il n’y a pas de tessarin.portal dans %2. Installez-le à cet endroit.</translation>
    </message>
    <message>
        <source>The portal (%1) chooses this program for printing.</source>
        <translation>Le portail (%1) choisit ce programme pour l’impression.</translation>
    </message>
    <message>
        <source>The portal (%1) prints with nothing, as &quot;%2&quot; says. %3</source>
        <translation>Le portail (%1) n’imprime avec aucun programme, comme l’indique « %2 ». %3</translation>
    </message>
    <message>
        <source>The portal (%1) chooses &quot;%2&quot; for printing. %3</source>
        <translation>Le portail (%1) choisit « %2 » pour l’impression. %3</translation>
    </message>
    <message>
        <source>Written into &quot;%1&quot;.</source>
        <translation>Inscrit dans « %1 ».</translation>
    </message>
    <message>
        <source>There is no line of this program&apos;s in &quot;%1&quot;.</source>
        <translation>Il n’y a aucune ligne de ce programme dans « %1 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed.</source>
        <translation>Impossible de supprimer « %1 ».</translation>
    </message>
    <message>
        <source>Taken out of &quot;%1&quot;.</source>
        <translation>Retiré de « %1 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>« %1 » ne peut pas être lu : %2.</translation>
    </message>
</context>
<context>
    <name>GivenOptions</name>
    <message>
        <source>The printer has no paper &quot;%1&quot;.</source>
        <translation>L’imprimante n’a pas de papier « %1 ».</translation>
    </message>
    <message>
        <source>The printer has no &quot;sides=%1&quot;. Leave it out, or use the printer&apos;s own option for two-sided printing.</source>
        <translation>L’imprimante ne connaît pas « sides=%1 ». Retirez-le, ou utilisez l’option de l’imprimante pour l’impression recto verso.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no way to scale. Write print-scaling=fit, fill or none.</source>
        <translation>« %1 » n’est pas un mode de mise à l’échelle. Écrivez print-scaling=fit, fill ou none.</translation>
    </message>
    <message>
        <source>&quot;%1=%2&quot; is not possible: the page is laid out before it is sent, one photo on each. Leave it out.</source>
        <translation>« %1=%2 » n’est pas possible : la page est composée avant l’envoi, une photo sur chacune. Retirez-le.</translation>
    </message>
    <message>
        <source>The number of copies is no option of the printer. Give it with --copies.</source>
        <translation>Le nombre de copies n’est pas une option de l’imprimante. Donnez-le avec --copies.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is set by the printer&apos;s own options here. &quot;lpoptions -p QUEUE -l&quot; lists them.</source>
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
    <message>
        <source>&quot;%1&quot; is no set of pages. Write page-set=all, odd or even.</source>
        <translation>« %1 » n’est pas un ensemble de pages. Écrivez page-set=all, odd ou even.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no order of pages. Write outputorder=normal or reverse.</source>
        <translation>« %1 » n’est pas un ordre de pages. Écrivez outputorder=normal ou reverse.</translation>
    </message>
</context>
<context>
    <name>HandedOptions</name>
    <message>
        <source>The application&apos;s settings</source>
        <translation>Réglages de l’application</translation>
    </message>
    <message>
        <source>Settings of %1</source>
        <translation>Réglages de %1</translation>
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
    <name>IppWords</name>
    <message>
        <source>Paper size</source>
        <translation>Format du papier</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Source du papier</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Type de papier</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Recto verso</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Bac de sortie</translation>
    </message>
    <message>
        <source>Best for</source>
        <translation>Optimisé pour</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>Mode de rendu</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Bord long</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Bord court</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>Automatic, black and white</source>
        <translation>Automatique, noir et blanc</translation>
    </message>
    <message>
        <source>Black only</source>
        <translation>Noir seulement</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Brouillon</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevée</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Face imprimée dessus</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Face imprimée dessous</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Graphiques</translation>
    </message>
    <message>
        <source>Text and graphics</source>
        <translation>Texte et graphiques</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perceptif</translation>
    </message>
    <message>
        <source>Relative</source>
        <translation>Relatif</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Absolute</source>
        <translation>Absolu</translation>
    </message>
</context>
<context>
    <name>JobActions</name>
    <message>
        <source>The print server does not let you cancel this job. Ask whoever looks after it.</source>
        <translation>Le serveur d’impression ne vous laisse pas annuler cette tâche. Demandez à qui s’en occupe.</translation>
    </message>
    <message>
        <source>The print server does not let you resume &quot;%1&quot;. Ask whoever looks after it; the job waits meanwhile.</source>
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
    <name>JobInWords</name>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>not enough paper for %1</source>
        <translation>pas assez de papier pour %1</translation>
    </message>
    <message>
        <source>roll %1</source>
        <translation>rouleau %1</translation>
    </message>
    <message>
        <source>%1 roll %2</source>
        <translation>rouleau %1 %2</translation>
    </message>
    <message>
        <source>sheet: %1</source>
        <translation>feuille : %1</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 in</source>
        <translation>%1 po</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>two-sided: %1</source>
        <translation>recto verso : %1</translation>
    </message>
    <message>
        <source>pages %1 of %2</source>
        <translation>pages %1 sur %2</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 pages</translation>
    </message>
    <message>
        <source>last page first</source>
        <translation>dernière page en premier</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 copie</translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation>%1 copies</translation>
    </message>
    <message>
        <source>not collated</source>
        <translation>non assemblées</translation>
    </message>
    <message>
        <source>text on the back</source>
        <translation>texte au dos</translation>
    </message>
    <message>
        <source>with a banner page</source>
        <translation>avec une page de garde</translation>
    </message>
    <message>
        <source>held on the queue</source>
        <translation>retenue dans la file</translation>
    </message>
    <message>
        <source>%1 more settings changed</source>
        <translation>%1 autres réglages modifiés</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
    <message>
        <source>%1 borderless</source>
        <translation>%1 sans bordure</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 photos</translation>
    </message>
</context>
<context>
    <name>JobReadBack</name>
    <message>
        <source>The print server does not tell what it holds of job %1.</source>
        <translation>Le serveur d’impression ne dit pas ce qu’il détient de la tâche %1.</translation>
    </message>
    <message>
        <source>The print server holds job %1 exactly as it was sent.</source>
        <translation>Le serveur d’impression détient la tâche %1 exactement telle qu’elle a été envoyée.</translation>
    </message>
    <message>
        <source>%1 instead of %2</source>
        <translation>%1 au lieu de %2</translation>
    </message>
    <message>
        <source>without %1</source>
        <translation>sans %1</translation>
    </message>
    <message>
        <source>Added to job %1 by the print server or the queue: %2.</source>
        <translation>Ajouté à la tâche %1 par le serveur d’impression ou la file : %2.</translation>
    </message>
    <message>
        <source>Changed in job %1 by the print server: %2.</source>
        <translation>Modifié dans la tâche %1 par le serveur d’impression : %2.</translation>
    </message>
</context>
<context>
    <name>JobStatus</name>
    <message>
        <source>Job %1 waits for &quot;%2&quot;%3.</source>
        <translation>La tâche %1 attend « %2 »%3.</translation>
    </message>
    <message>
        <source>Job %1 is printing on &quot;%2&quot;%3.</source>
        <translation>La tâche %1 s’imprime sur « %2 »%3.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled on &quot;%2&quot;.</source>
        <translation>La tâche %1 sur « %2 » a été annulée.</translation>
    </message>
    <message>
        <source>Job %1 failed on &quot;%2&quot;%3. Print again; if it fails again, look into the print server&apos;s error log.</source>
        <translation>La tâche %1 a échoué sur « %2 »%3. Réimprimez ; si elle échoue encore, consultez le journal d’erreurs du serveur d’impression.</translation>
    </message>
    <message>
        <source>Printed: job %1 on &quot;%2&quot;.</source>
        <translation>Imprimé : tâche %1 sur « %2 ».</translation>
    </message>
    <message>
        <source>Job %1 waits because &quot;%2&quot; is paused%3.</source>
        <translation>La tâche %1 attend car « %2 » est en pause%3.</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot; because it was asked to wait%3.</source>
        <translation>La tâche %1 est retenue sur « %2 » car on lui a demandé d’attendre%3.</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot;%3.</source>
        <translation>La tâche %1 est retenue sur « %2 »%3.</translation>
    </message>
    <message>
        <source>Job %1 stopped on &quot;%2&quot;%3.</source>
        <translation>La tâche %1 s’est arrêtée sur « %2 »%3.</translation>
    </message>
    <message>
        <source>Job %1 has left the queue of &quot;%2&quot;. The print server keeps no record of how it ended.</source>
        <translation>La tâche %1 a quitté la file de « %2 ». Le serveur d’impression ne garde pas trace de sa fin.</translation>
    </message>
    <message>
        <source>&quot;%2&quot; is not on the print server any more, and job %1 with it. Look at the printer before you print again.</source>
        <translation>« %2 » n’est plus sur le serveur d’impression, et la tâche %1 non plus. Regardez l’imprimante avant de réimprimer.</translation>
    </message>
    <message>
        <source>The print server does not answer. Job %1 was sent to &quot;%2&quot;, and may be printed.</source>
        <translation>Le serveur d’impression ne répond pas. La tâche %1 a été envoyée à « %2 » et sera peut-être imprimée.</translation>
    </message>
    <message>
        <source>See to the printer and resume it with &quot;cupsenable %2&quot;, or cancel the job with &quot;cancel %2-%1&quot;.</source>
        <translation>Vérifiez l’imprimante et relancez-la avec « cupsenable %2 », ou annulez la tâche avec « cancel %2-%1 ».</translation>
    </message>
    <message>
        <source>Release it with &quot;lp -i %1 -H resume&quot;, or cancel it with &quot;cancel %2-%1&quot;.</source>
        <translation>Libérez-la avec « lp -i %1 -H resume » ou annulez-la avec « cancel %2-%1 ».</translation>
    </message>
    <message>
        <source>Print it again with &quot;lp -i %1 -H restart&quot;, or cancel it with &quot;cancel %2-%1&quot;.</source>
        <translation>Réimprimez-la avec « lp -i %1 -H restart » ou annulez-la avec « cancel %2-%1 ».</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot;: the printer wants a name and a password%3.</source>
        <translation>La tâche %1 est retenue sur « %2 » : l’imprimante demande un nom et un mot de passe%3.</translation>
    </message>
    <message>
        <source>Give them with &quot;halvern-print --jobs --sign-in %1&quot;, or cancel the job with &quot;cancel %2-%1&quot;.</source>
        <translation>Donnez-les avec « halvern-print --jobs --sign-in %1 », ou annulez la tâche avec « cancel %2-%1 ».</translation>
    </message>
</context>
<context>
    <name>JobSubmitter</name>
    <message>
        <source> Job %1 may still be on the queue of &quot;%2&quot; without its pages: cancel it there before you print again.</source>
        <translation> La tâche %1 est peut-être encore dans la file de « %2 » sans ses pages : annulez-la avant de réimprimer.</translation>
    </message>
    <message>
        <source>The print server gave the job no number. Look into its error log.</source>
        <translation>Le serveur d’impression n’a pas donné de numéro à la tâche. Consultez son journal d’erreurs.</translation>
    </message>
    <message>
        <source> A job without its pages may still be on the queue of &quot;%1&quot;: look there before you print again.</source>
        <translation> Une tâche sans ses pages se trouve peut-être encore dans la file de « %1 » : regardez-y avant d’imprimer à nouveau.</translation>
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
        <translation> po</translation>
    </message>
</context>
<context>
    <name>Layouts</name>
    <message>
        <source>&quot;%1&quot; is no number from %2 to %3.</source>
        <translation>« %1 » n’est pas un nombre de %2 à %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>« %1 » n’est ni true ni false.</translation>
    </message>
    <message>
        <source>A measure is not written as %1 numbers from 0 to %2.</source>
        <translation>Une mesure n’est pas écrite sous la forme de %1 nombres de 0 à %2.</translation>
    </message>
    <message>
        <source>A photo is not from %1 to %2 mm wide and high.</source>
        <translation>Une photo ne fait pas de %1 à %2 mm de large et de haut.</translation>
    </message>
    <message>
        <source>&quot;kind&quot; is none of grid, size, cells and pack.</source>
        <translation>« kind » n’est ni grid, ni size, ni cells, ni pack.</translation>
    </message>
    <message>
        <source>&quot;cells&quot; does not hold 1 to %1 places.</source>
        <translation>« cells » ne contient pas de 1 à %1 emplacements.</translation>
    </message>
    <message>
        <source>&quot;caption&quot; is longer than %1 characters.</source>
        <translation>« caption » dépasse %1 caractères.</translation>
    </message>
    <message>
        <source>&quot;scaling&quot; is neither fit nor fill.</source>
        <translation>« scaling » n’est ni fit ni fill.</translation>
    </message>
    <message>
        <source>%1 rows of %2</source>
        <translation>%1 rangées de %2</translation>
    </message>
    <message>
        <source>Photos of %1 × %2 %3</source>
        <translation>Photos de %1 × %2 %3</translation>
    </message>
    <message>
        <source>It is no layout: &quot;schema&quot; is not &quot;%1&quot;.</source>
        <translation>Ce n’est pas une mise en page : « schema » n’est pas « %1 ».</translation>
    </message>
    <message>
        <source>It is of another version of this program.</source>
        <translation>Il vient d’une autre version de ce programme.</translation>
    </message>
    <message>
        <source>It has no &quot;name&quot;.</source>
        <translation>Il n’a pas de « name ».</translation>
    </message>
    <message>
        <source>The layout takes %1 × %2 mm, and this paper has %3 × %4 mm to print on. Choose a larger paper, one without margins, or another layout.</source>
        <translation>La mise en page prend %1 × %2 mm, et ce papier offre %3 × %4 mm imprimables. Choisissez un papier plus grand, un papier sans marges ou une autre mise en page.</translation>
    </message>
    <message>
        <source>So many photos would be smaller than %1 mm on this paper. Choose fewer rows or columns, or a larger paper.</source>
        <translation>Autant de photos feraient moins de %1 mm sur ce papier. Choisissez moins de rangées ou de colonnes, ou un papier plus grand.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Le fichier est trop grand.</translation>
    </message>
    <message>
        <source>It is no JSON object: %1.</source>
        <translation>Ce n’est pas un objet JSON : %1.</translation>
    </message>
    <message>
        <source>There is another layout &quot;%1&quot;.</source>
        <translation>Il y a une autre mise en page « %1 ».</translation>
    </message>
    <message>
        <source>The layout %1 was left out. %2</source>
        <translation>La mise en page %1 a été ignorée. %2</translation>
    </message>
    <message>
        <source>There is no layout &quot;%1&quot;. There are: %2; and rows x columns, such as 3x4, and sizes, such as 90x130mm.</source>
        <translation>Il n’y a pas de mise en page « %1 ». Il y a : %2 ; et aussi rangées x colonnes, comme 3x4, et des tailles, comme 90x130mm.</translation>
    </message>
    <message>
        <source>Write a name with letters or numbers.</source>
        <translation>Écrivez un nom avec des lettres ou des chiffres.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a layout that is always there. Choose another name.</source>
        <translation>« %1 » est une mise en page qui existe toujours. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Le dossier %1 ne peut pas être créé.</translation>
    </message>
    <message>
        <source>The layout could not be kept in %1. %2</source>
        <translation>La mise en page n’a pas pu être enregistrée dans %1. %2</translation>
    </message>
    <message>
        <source>Only layouts of your own can be deleted.</source>
        <translation>Seules vos propres mises en page peuvent être supprimées.</translation>
    </message>
    <message>
        <source>%1 could not be deleted. %2</source>
        <translation>%1 n’a pas pu être supprimé. %2</translation>
    </message>
    <message>
        <source>Not every photo fits on this paper. Choose a smaller size.</source>
        <translation>Toutes les photos ne tiennent pas sur ce papier. Choisissez une taille plus petite.</translation>
    </message>
    <message>
        <source>All photos are left out. Include at least one of them.</source>
        <translation>Toutes les photos sont omises. Incluez-en au moins une.</translation>
    </message>
    <message>
        <source>The file %1 holds something else already. Choose another name, or take the file away.</source>
        <translation>Le fichier %1 contient déjà autre chose. Choisissez un autre nom, ou enlevez le fichier.</translation>
    </message>
    <message>
        <source>These are %1 photos on all sheets, and a job takes %2. Choose fewer photos, or fewer copies of each.</source>
        <translation>Cela fait %1 photos sur l’ensemble des feuilles, et une tâche en prend %2. Choisissez moins de photos, ou moins d’exemplaires de chacune.</translation>
    </message>
    <message>
        <source>With margins of %1 mm nothing is left of this paper. Choose smaller margins, or a larger paper.</source>
        <translation>Avec des marges de %1 mm, il ne reste rien de ce papier. Choisissez des marges plus petites, ou un papier plus grand.</translation>
    </message>
    <message>
        <source>A photo of %1 × %2 mm at %3, %4 mm is not all on what can be printed of this page: %5 × %6 mm at %7, %8 mm. Choose a smaller size, another place, or another paper.</source>
        <translation>Une photo de %1 × %2 mm à %3, %4 mm n’est pas entièrement dans ce qui peut être imprimé de cette page : %5 × %6 mm à %7, %8 mm. Choisissez une taille plus petite, un autre emplacement ou un autre papier.</translation>
    </message>
    <message>
        <source>There is one sheet only, and none with an even number. Choose all sheets, or more photos.</source>
        <translation>Il n’y a qu’une feuille, et aucune de numéro pair. Choisissez toutes les feuilles, ou plus de photos.</translation>
    </message>
</context>
<context>
    <name>ListJobs</name>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>La tâche %1 a été annulée.</translation>
    </message>
    <message>
        <source>Job %1 is held.</source>
        <translation>La tâche %1 est retenue.</translation>
    </message>
    <message>
        <source>Job %1 was released.</source>
        <translation>La tâche %1 a été libérée.</translation>
    </message>
    <message>
        <source>Job %1 is printed again.</source>
        <translation>La tâche %1 est réimprimée.</translation>
    </message>
    <message>
        <source>Job %1 has what the printer asks for.</source>
        <translation>La tâche %1 a ce que demande l’imprimante.</translation>
    </message>
    <message>
        <source>Job %1 was moved to &quot;%2&quot;.</source>
        <translation>La tâche %1 a été déplacée vers « %2 ».</translation>
    </message>
    <message>
        <source>You have no job %1 on the print server. --jobs --ended lists yours.</source>
        <translation>Vous n’avez pas de tâche %1 sur le serveur d’impression. --jobs --ended affiche les vôtres.</translation>
    </message>
    <message>
        <source>You have no jobs there.</source>
        <translation>Vous n’y avez aucune tâche.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyée</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>You have no job %1 on &quot;%2&quot;. --jobs --ended lists yours.</source>
        <translation>Vous n’avez pas de tâche %1 sur « %2 ». --jobs --ended affiche les vôtres.</translation>
    </message>
</context>
<context>
    <name>ListPapers</name>
    <message>
        <source>The printer &quot;%1&quot; was asked, but has not reported its papers. Look into the print server&apos;s error log.</source>
        <translation>L’imprimante « %1 » a été interrogée, mais n’a pas communiqué ses papiers. Consultez le journal d’erreurs du serveur d’impression.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not report its papers: it has no Halvern driver.</source>
        <translation>L’imprimante « %1 » ne communique pas ses papiers : elle n’a pas de pilote Halvern.</translation>
    </message>
    <message>
        <source>Asking &quot;%1&quot; ...</source>
        <translation>Interrogation de « %1 »...</translation>
    </message>
    <message>
        <source>Waiting for &quot;%1&quot;%2 ...</source>
        <translation>Attente de « %1 »%2...</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is busy with another job. Ask again when that has ended.</source>
        <translation>L’imprimante « %1 » traite une autre tâche. Interrogez-la à nouveau quand celle-ci sera terminée.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not work at the moment%2, and the question was taken back. Resume the printer (cupsenable) and ask again.</source>
        <translation>L’imprimante « %1 » ne fonctionne pas pour le moment%2 et la demande a été retirée. Relancez l’imprimante (cupsenable) et recommencez.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not answer%2. See to the printer and ask again.</source>
        <translation>L’imprimante « %1 » n’a pas pu répondre%2. Vérifiez l’imprimante et recommencez.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not accept jobs and cannot be asked. Let it accept them (cupsaccept) and ask again.</source>
        <translation>L’imprimante « %1 » n’accepte pas de tâches et ne peut pas être interrogée. Faites-la en accepter (cupsaccept) et recommencez.</translation>
    </message>
    <message>
        <source>The print server refused the question to &quot;%1&quot;. Look into its error log.</source>
        <translation>Le serveur d’impression a refusé la demande à « %1 ». Consultez son journal d’erreurs.</translation>
    </message>
    <message>
        <source>The list of papers that &quot;%1&quot; reported cannot be read (%2).</source>
        <translation>La liste de papiers communiquée par « %1 » est illisible (%2).</translation>
    </message>
    <message>
        <source>No papers are loaded.</source>
        <translation>Aucun papier n’est chargé.</translation>
    </message>
    <message>
        <source>The printer has not said yet what is loaded.</source>
        <translation>L’imprimante n’a pas encore dit ce qui est chargé.</translation>
    </message>
    <message>
        <source>Ask it with --refresh.</source>
        <translation>Interrogez-la avec --refresh.</translation>
    </message>
    <message>
        <source>The question to &quot;%1&quot; could not be processed%2 and was taken back. See to the printer, look into the print server&apos;s error log, and ask again.</source>
        <translation>La demande à « %1 » n’a pas pu être traitée%2 et a été retirée. Vérifiez l’imprimante, consultez le journal d’erreurs du serveur d’impression et recommencez.</translation>
    </message>
    <message>
        <source>The question to &quot;%1&quot; was held%2 and has been cancelled. See to the printer and ask again.</source>
        <translation>La demande à « %1 » a été retenue%2 et annulée. Vérifiez l’imprimante et recommencez.</translation>
    </message>
    <message>
        <source>The question to &quot;%1&quot; was cancelled. Ask again.</source>
        <translation>La demande à « %1 » a été annulée. Recommencez.</translation>
    </message>
    <message>
        <source>The print server does not answer; job %1 may still be on the queue (cancel %2-%1).</source>
        <translation>Le serveur d’impression ne répond pas ; la tâche %1 est peut-être encore dans la file (cancel %2-%1).</translation>
    </message>
    <message>
        <source>Look into the print server&apos;s error log, and ask again.</source>
        <translation>Consultez le journal d’erreurs du serveur d’impression et recommencez.</translation>
    </message>
</context>
<context>
    <name>Listings</name>
    <message>
        <source>%1 (default): %2 %3</source>
        <translation>%1 (par défaut) : %2 %3</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <translation>%1 : %2 %3</translation>
    </message>
    <message>
        <source>The print server has no printers.</source>
        <translation>Le serveur d’impression n’a aucune imprimante.</translation>
    </message>
    <message>
        <source>%1 (from your saved options)</source>
        <translation>%1 (de vos options enregistrées)</translation>
    </message>
    <message>
        <source>Saved the preset &quot;%1&quot; of &quot;%2&quot;.</source>
        <translation>Préréglage « %1 » de « %2 » enregistré.</translation>
    </message>
    <message>
        <source>%1 (installed in the printer) &quot;%2&quot;: %3</source>
        <translation>%1 (installé dans l’imprimante) « %2 » : %3</translation>
    </message>
    <message>
        <source>%1 (default not known) &quot;%2&quot;: %3</source>
        <translation>%1 (par défaut inconnu) « %2 » : %3</translation>
    </message>
    <message>
        <source>%1 (default %2) &quot;%3&quot;: %4</source>
        <translation>%1 (par défaut %2) « %3 » : %4</translation>
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
        <translation>L’imprimante « %1 » a été trouvée sur le réseau, mais le serveur d’impression ne peut pas l’utiliser : %2</translation>
    </message>
</context>
<context>
    <name>LoginWords</name>
    <message>
        <source>The print server at %1 wants to know who you are.</source>
        <translation>Le serveur d’impression %1 veut savoir qui vous êtes.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; wants a name and a password of its own; the print server at %2 hands them on to it.</source>
        <translation>L’imprimante « %1 » demande un nom et un mot de passe à elle ; le serveur d’impression %2 les lui transmet.</translation>
    </message>
    <message>
        <source>That name or password was wrong.</source>
        <translation>Ce nom ou ce mot de passe était faux.</translation>
    </message>
    <message>
        <source>The connection to %1 is not encrypted: others could read the password on its way.</source>
        <translation>La connexion à %1 n’est pas chiffrée : d’autres pourraient lire le mot de passe en chemin.</translation>
    </message>
    <message>
        <source>It shows none.</source>
        <translation>Il n’en montre aucun.</translation>
    </message>
    <message>
        <source>It shows now: %1</source>
        <translation>Il montre maintenant : %1</translation>
    </message>
    <message>
        <source>The print server at %1 cannot prove who it is, and was never seen before.</source>
        <translation>Le serveur d’impression %1 ne peut pas prouver qui il est, et n’a jamais été vu auparavant.</translation>
    </message>
    <message>
        <source>The print server at %1 has another certificate than before. It may have been renewed, or somebody else may be answering in its place.</source>
        <translation>Le serveur d’impression %1 a un autre certificat qu’auparavant. Il a peut-être été renouvelé, ou quelqu’un d’autre répond peut-être à sa place.</translation>
    </message>
    <message>
        <source>It had: %1</source>
        <translation>Il avait : %1</translation>
    </message>
    <message>
        <source>The print server at %1 encrypted before, and does not any more. It may have been set up anew, or somebody else may be answering in its place. What you print there could be read on its way.</source>
        <translation>Le serveur d’impression %1 chiffrait auparavant et ne le fait plus. Il a peut-être été reconfiguré, ou quelqu’un d’autre répond peut-être à sa place. Ce que vous y imprimez pourrait être lu en chemin.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>The output could not be written: %1.</source>
        <translation>La sortie n’a pas pu être écrite : %1.</translation>
    </message>
</context>
<context>
    <name>PageChoice</name>
    <message>
        <source>There is no page %1: there is one page only.</source>
        <translation>Il n’y a pas de page %1 : il n’y a qu’une page.</translation>
    </message>
    <message>
        <source>There is no page %1: the first page is 1.</source>
        <translation>Il n’y a pas de page %1 : la première page est 1.</translation>
    </message>
    <message>
        <source>There is no page %1: the pages are 1 to %2.</source>
        <translation>Il n’y a pas de page %1 : les pages vont de 1 à %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends before it begins. Write %2-%3.</source>
        <translation>« %1 » finit avant de commencer. Écrivez %2-%3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page. Write numbers and ranges, for example 1-3, 7, 12-.</source>
        <translation>« %1 » n’est pas une page. Écrivez des nombres et des intervalles, par exemple 1-3, 7, 12-.</translation>
    </message>
    <message>
        <source>The chosen pages were left out because they cannot be read, or not whole. Choose others.</source>
        <translation>Les pages choisies ont été omises parce qu’elles ne peuvent pas être lues, ou pas entièrement. Choisissez-en d’autres.</translation>
    </message>
</context>
<context>
    <name>PageFit</name>
    <message>
        <source>The paper size &quot;%1&quot; is wider than the roll (%2).</source>
        <translation>Le format de papier « %1 » est plus large que le rouleau (%2).</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is larger than the paper &quot;%2&quot;.</source>
        <translation>Le format de papier « %1 » est plus grand que le papier « %2 ».</translation>
    </message>
</context>
<context>
    <name>PageRenderer</name>
    <message>
        <source>The pages could not be written. Make room on the disk and try again.</source>
        <translation>Les pages n’ont pas pu être écrites. Libérez de la place sur le disque et réessayez.</translation>
    </message>
</context>
<context>
    <name>PageStream</name>
    <message>
        <source>The computer is too busy to prepare the pages. Close something and try again.</source>
        <translation>L’ordinateur est trop occupé pour préparer les pages. Fermez quelque chose et réessayez.</translation>
    </message>
</context>
<context>
    <name>PaperSizes</name>
    <message>
        <source>For the loaded paper</source>
        <translation>Pour le papier chargé</translation>
    </message>
    <message>
        <source>Used last</source>
        <translation>Utilisés en dernier</translation>
    </message>
    <message>
        <source>Your sizes</source>
        <translation>Vos formats</translation>
    </message>
    <message>
        <source>Photo sizes</source>
        <translation>Formats photo</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rouleau</translation>
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
        <translation>Autres formats</translation>
    </message>
</context>
<context>
    <name>PaperTable</name>
    <message>
        <source>just now</source>
        <translation>à l’instant</translation>
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
    <name>PhotoProblem</name>
    <message>
        <source>&quot;%1&quot; is damaged and cannot be read. Export it from your photo program again.</source>
        <translation>« %1 » est endommagé et illisible. Exportez-le à nouveau depuis votre logiciel de photo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: a part of the picture is missing. Copy it from the camera again, or export it again.</source>
        <translation>« %1 » est endommagé : une partie de l’image manque. Copiez-le à nouveau depuis l’appareil photo ou exportez-le à nouveau.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to print. Make a copy with fewer pixels and print that.</source>
        <translation>« %1 » est trop grande pour être imprimée. Imprimez une copie avec moins de pixels.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked with a password. Save a copy without one and print that.</source>
        <translation>« %1 » est protégé par un mot de passe. Imprimez une copie sans mot de passe.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed meanwhile. Open it again.</source>
        <translation>« %1 » a changé entre-temps. Ouvrez-le à nouveau.</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;. Check its name.</source>
        <translation>Il n’y a pas de fichier « %1 ». Vérifiez son nom.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened. Check that you may read it.</source>
        <translation>« %1 » ne peut pas être ouvert. Vérifiez que vous avez le droit de le lire.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Copy it from the camera again.</source>
        <translation>« %1 » est vide. Copiez-le à nouveau depuis l’appareil photo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be printed. Use a JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF file.</source>
        <translation>« %1 » n’est pas une image imprimable. Utilisez un fichier JPEG, PNG, TIFF, WebP, HEIF, AVIF ou PDF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is camera RAW, which has to be developed before it can be printed. Export it as JPEG or TIFF from your photo program and print that.</source>
        <translation>« %1 » est un fichier RAW d’appareil photo, à développer avant l’impression. Exportez-le en JPEG ou en TIFF depuis votre logiciel de photo et imprimez ce fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of a kind that cannot be read here. Export it as JPEG, or as TIFF with 8 or 16 bits, from your photo program and print that.</source>
        <translation>« %1 » est d’un type illisible ici. Exportez-le en JPEG, ou en TIFF à 8 ou 16 bits, depuis votre logiciel de photo et imprimez ce fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; made the program that reads photos fail: it is damaged, or made to do harm. Export it from your photo program again.</source>
        <translation>« %1 » a fait échouer le programme qui lit les photos : le fichier est endommagé ou conçu pour nuire. Exportez-le à nouveau depuis votre logiciel de photo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read: it is damaged, or made to do harm. Export it from your photo program again.</source>
        <translation>« %1 » est trop long à lire : le fichier est endommagé ou conçu pour nuire. Exportez-le à nouveau depuis votre logiciel de photo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: the program that reads photos, halvern-decode, is not installed beside this one or cannot be started. Install the dialog again.</source>
        <translation>« %1 » est illisible : le programme qui lit les photos, halvern-decode, n’est pas installé à côté de celui-ci ou ne peut pas être lancé. Réinstallez le dialogue.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder without photos. Name one that holds photos, or photos.</source>
        <translation>« %1 » est un dossier sans photos. Nommez-en un qui contient des photos, ou des photos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an HDR picture, which is brighter than paper can be. Export it as JPEG without HDR from your photo program and print that.</source>
        <translation>« %1 » est une image HDR, plus lumineuse que le papier ne peut l’être. Exportez-la en JPEG sans HDR depuis votre logiciel de photo et imprimez ce fichier.</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>The printer&apos;s own pages (%1) offer nothing for this printer. You can print without them.</source>
        <translation>Les pages propres à l’imprimante (%1) n’offrent rien pour celle-ci. Vous pouvez imprimer sans elles.</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the pages &quot;%1&quot;, which is no name of a bundle. You can print without them.</source>
        <translation>La description de l’imprimante demande les pages « %1 », ce qui n’est pas un nom valable. Vous pouvez imprimer sans elles.</translation>
    </message>
    <message>
        <source>The printer&apos;s own pages (%1) are not installed. You can print without them; install the printer&apos;s software to have them.</source>
        <translation>Les pages propres à l’imprimante (%1) ne sont pas installées. Vous pouvez imprimer sans elles ; installez le logiciel de l’imprimante pour les avoir.</translation>
    </message>
    <message>
        <source>The printer&apos;s own pages (%1) cannot be loaded: %2. You can print without them; install the printer&apos;s software again to have them.</source>
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
    <message>
        <source>%1 cannot be looked at</source>
        <translation>%1 ne peut pas être examiné</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 appartient à un autre utilisateur</translation>
    </message>
    <message>
        <source>%1 can be changed by other users</source>
        <translation>%1 peut être modifié par d’autres utilisateurs</translation>
    </message>
</context>
<context>
    <name>PortalProgram</name>
    <message>
        <source>Say whether the desktop&apos;s portal would choose this program for printing, and if not, why.</source>
        <translation>Dire si le portail du bureau choisirait ce programme pour l’impression et, sinon, pourquoi.</translation>
    </message>
    <message>
        <source>Have the desktop&apos;s portal choose this program for printing, by a line in your portals.conf.</source>
        <translation>Faire choisir ce programme par le portail du bureau pour l’impression, par une ligne dans votre portals.conf.</translation>
    </message>
    <message>
        <source>Take that line away again.</source>
        <translation>Retirer cette ligne.</translation>
    </message>
    <message>
        <source>Shows the print dialog for applications that print by the desktop&apos;s portal. The desktop starts it by itself.</source>
        <translation>Affiche le dialogue d’impression pour les applications qui impriment par le portail du bureau. Le bureau le lance de lui-même.</translation>
    </message>
    <message>
        <source>Wrong usage. See &quot;halvern-print-portal --help&quot;.</source>
        <translation>Mauvais usage. Voir « halvern-print-portal --help ».</translation>
    </message>
    <message>
        <source>There is no display to show the dialog on. Start this program in a desktop&apos;s session, or set DISPLAY.</source>
        <translation>Aucun écran pour afficher le dialogue. Lancez ce programme dans une session de bureau ou définissez DISPLAY.</translation>
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
    <name>PpdModel</name>
    <message>
        <source>An option without a name or a value cannot be set.</source>
        <translation>Une option sans nom ou sans valeur ne peut pas être définie.</translation>
    </message>
    <message>
        <source>The printer has no page size &quot;%1&quot;. Choose one from the list.</source>
        <translation>L’imprimante n’a pas de format « %1 ». Choisissez-en un dans la liste.</translation>
    </message>
    <message>
        <source>The printer cannot take the page size &quot;%1&quot;. Choose one from the list.</source>
        <translation>L’imprimante n’accepte pas le format « %1 ». Choisissez-en un dans la liste.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go together with &quot;%2&quot;. Change that first.</source>
        <translation>« %1 » ne va pas avec « %2 ». Changez d’abord cela.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is part of the printer&apos;s equipment, and is set by whoever installed the printer.</source>
        <translation>« %1 » fait partie de l’équipement de l’imprimante et est réglé par la personne qui l’a installée.</translation>
    </message>
    <message>
        <source>The printer&apos;s equipment does not allow &quot;%1&quot;: whoever installed the printer has set &quot;%2&quot;.</source>
        <translation>L’équipement de l’imprimante ne permet pas « %1 » : la personne qui l’a installée a réglé « %2 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no choice &quot;%2&quot;.</source>
        <translation>« %1 » n’a pas le choix « %2 ».</translation>
    </message>
    <message>
        <source>The printer has no option &quot;%1&quot;.</source>
        <translation>L’imprimante n’a pas d’option « %1 ».</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Format de papier</translation>
    </message>
    <message>
        <source>The printer&apos;s own defaults do not go together with what is chosen elsewhere. Put the options back one by one.</source>
        <translation>Les valeurs par défaut de l’imprimante ne vont pas avec ce qui est choisi ailleurs. Rétablissez les options une par une.</translation>
    </message>
    <message>
        <source>not with what the printer has loaded</source>
        <translation>pas avec ce qui est chargé dans l’imprimante</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>pas avec %1</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 in</source>
        <translation>%1 po</translation>
    </message>
    <message>
        <source>A job carries one choice of &quot;%1&quot;, and not &quot;%2&quot; together. Take one away before you choose another.</source>
        <translation>Une tâche ne porte qu’un choix de « %1 », et non « %2 » ensemble. Retirez-en un avant d’en choisir un autre.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>It holds no presets of this program.</source>
        <translation>Le fichier ne contient pas de préréglages de ce programme.</translation>
    </message>
    <message>
        <source>It was written by a newer version of this program.</source>
        <translation>Le fichier a été écrit par une version plus récente de ce programme.</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>Valeurs par défaut de l’imprimante</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Derniers réglages</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Le fichier est trop grand.</translation>
    </message>
    <message>
        <source>There are %1 presets already. Delete one first.</source>
        <translation>Il y a déjà %1 préréglages. Supprimez-en d’abord un.</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; is not there any more.</source>
        <translation>Le préréglage « %1 » n’existe plus.</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; cannot be read, and %2 cannot be moved away. %3</source>
        <translation>Les préréglages de « %1 » sont illisibles, et %2 ne peut pas être mis de côté. %3</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; could not be read, and begin anew. What was there is in %2. %3</source>
        <translation>Les préréglages de « %1 » étaient illisibles et repartent de zéro. Ce qu’il y avait est dans %2. %3</translation>
    </message>
    <message>
        <source>The presets in %1 cannot be used. %2</source>
        <translation>Les préréglages de %1 sont inutilisables. %2</translation>
    </message>
    <message>
        <source>Some presets in %1 cannot be read and are left alone.</source>
        <translation>Certains préréglages de %1 sont illisibles et restent tels quels.</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; could not be written to %2. %3</source>
        <translation>Les préréglages de « %1 » n’ont pas pu être écrits dans %2. %3</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>Le dossier ne peut pas être créé.</translation>
    </message>
    <message>
        <source>Another program holds the lock %1.</source>
        <translation>Un autre programme détient le verrou %1.</translation>
    </message>
    <message>
        <source>It would be too large.</source>
        <translation>Le fichier serait trop grand.</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already. Choose another name.</source>
        <translation>Il y a déjà un préréglage « %1 ». Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>No presets were read from %1. %2</source>
        <translation>Aucun préréglage n’a été lu dans %1. %2</translation>
    </message>
    <message>
        <source>There is none in it that can be read.</source>
        <translation>Le fichier ne contient aucun préréglage lisible.</translation>
    </message>
    <message>
        <source>Some presets in %1 cannot be read and were left out.</source>
        <translation>Certains préréglages de %1 sont illisibles et ont été omis.</translation>
    </message>
    <message>
        <source>The presets could not be written to %1. %2</source>
        <translation>Les préréglages n’ont pas pu être écrits dans %1. %2</translation>
    </message>
    <message>
        <source>The printer has no option &quot;%1&quot;.</source>
        <translation>L’imprimante n’a pas d’option « %1 ».</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Et %1 de plus.</translation>
    </message>
    <message>
        <source>Not all of &quot;%1&quot; can be had now.</source>
        <translation>Une partie de « %1 » n’est pas possible pour le moment.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the presets.</source>
        <translation>La mémoire ne suffit pas pour lire les préréglages.</translation>
    </message>
</context>
<context>
    <name>PrintRun</name>
    <message>
        <source>less than a minute left</source>
        <translation>reste moins d’une minute</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>reste environ %1 minutes</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>reste environ %1 heures</translation>
    </message>
    <message>
        <source>Sending the photo...</source>
        <translation>Envoi de la photo…</translation>
    </message>
    <message>
        <source>Paused: %1 of %2 photos are sent.</source>
        <translation>En pause : %1 photos sur %2 sont envoyées.</translation>
    </message>
    <message>
        <source>Sending photo %1 of %2</source>
        <translation>Envoi de la photo %1 sur %2</translation>
    </message>
</context>
<context>
    <name>PrinterActions</name>
    <message>
        <source>&amp;Resume</source>
        <translation>Rela&amp;ncer</translation>
    </message>
    <message>
        <source>&amp;Accept Jobs</source>
        <translation>Accepter les tâc&amp;hes</translation>
    </message>
    <message>
        <source>Re&amp;lease</source>
        <translation>Déblo&amp;quer</translation>
    </message>
    <message>
        <source>The print server does not let you do that with &quot;%1&quot;. Ask whoever looks after it.</source>
        <translation>Le serveur d’impression ne vous autorise pas à faire cela avec « %1 ». Adressez-vous à la personne qui le gère.</translation>
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
        <source>The print server has no printer &quot;%1&quot;. It has: %2.</source>
        <translation>Le serveur d’impression n’a pas d’imprimante « %1 ». Il a : %2.</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot;. It has: %2, and %3 more (lpstat -e).</source>
        <translation>Le serveur d’impression n’a pas d’imprimante « %1 ». Il a : %2 et %3 de plus (lpstat -e).</translation>
    </message>
    <message>
        <source>The print server has no default printer. Name one with --printer.</source>
        <translation>Le serveur d’impression n’a pas d’imprimante par défaut. Indiquez-en une avec --printer.</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>L’imprimante ne répond pas</translation>
    </message>
</context>
<context>
    <name>PrinterReport</name>
    <message>
        <source>The printer&apos;s answer about itself is too long to be true, and was not read.</source>
        <translation>La réponse de l’imprimante sur elle-même est trop longue pour être vraie et n’a pas été lue.</translation>
    </message>
    <message>
        <source>The printer does not tell strangers what is in it.</source>
        <translation>L’imprimante ne dit pas aux inconnus ce qu’elle contient.</translation>
    </message>
    <message>
        <source>The printer does not answer. Is it switched on, and in this network?</source>
        <translation>L’imprimante ne répond pas. Est-elle allumée et sur ce réseau ?</translation>
    </message>
    <message>
        <source>The printer does not say what is in it.</source>
        <translation>L’imprimante ne dit pas ce qu’elle contient.</translation>
    </message>
</context>
<context>
    <name>QueuePpd</name>
    <message>
        <source>The description of the printer &quot;%1&quot; is damaged: %2. Install its driver again, or choose another printer.</source>
        <translation>La description de l’imprimante « %1 » est endommagée : %2. Réinstallez son pilote ou choisissez une autre imprimante.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no description on the print server, and does not tell by itself what it can do. Install it with a driver, or choose another printer.</source>
        <translation>L’imprimante « %1 » n’a pas de description sur le serveur et ne dit pas d’elle-même ce qu’elle sait faire. Installez-la avec un pilote ou choisissez-en une autre.</translation>
    </message>
</context>
<context>
    <name>RefilledTray</name>
    <message>
        <source>&quot;%1&quot; has other paper now.</source>
        <translation>« %1 » contient maintenant un autre papier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has other paper now, and the page follows: %2.</source>
        <translation>« %1 » contient maintenant un autre papier, et la page le suit : %2.</translation>
    </message>
    <message>
        <source>Its kind, %1, could not be chosen: the paper type is still &quot;%2&quot;.</source>
        <translation>Son type, %1, n’a pas pu être choisi : le type de papier est toujours « %2 ».</translation>
    </message>
</context>
<context>
    <name>ReviewSwitch</name>
    <message>
        <source>Re&amp;view before printing</source>
        <translation>Véri&amp;fier avant l’impression</translation>
    </message>
    <message>
        <source>Shows the pages as the application has made them, before they go to the printer</source>
        <translation>Affiche les pages telles que l’application les a faites, avant leur envoi à l’imprimante</translation>
    </message>
</context>
<context>
    <name>SecretStore</name>
    <message>
        <source>Printing on %1</source>
        <translation>Impression sur %1</translation>
    </message>
</context>
<context>
    <name>ServerCertificate</name>
    <message>
        <source>a certificate whose file cannot be read any more</source>
        <translation>un certificat dont le fichier ne peut plus être lu</translation>
    </message>
</context>
<context>
    <name>SheetWords</name>
    <message>
        <source>1 sheet</source>
        <translation>1 feuille</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>%1 feuilles</translation>
    </message>
    <message>
        <source>photos in %1 × %2 mm</source>
        <translation>photos de %1 × %2 mm</translation>
    </message>
    <message>
        <source>with captions</source>
        <translation>avec légendes</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>avec repères de coupe</translation>
    </message>
    <message>
        <source>white border %1 mm</source>
        <translation>bord blanc de %1 mm</translation>
    </message>
    <message>
        <source>Sheet %1: %2, %3 x %4 mm at %5, %6 mm</source>
        <translation>Feuille %1 : %2, %3 x %4 mm à %5, %6 mm</translation>
    </message>
</context>
<context>
    <name>StartingOptions</name>
    <message>
        <source>The printer &quot;%1&quot; prints no text on the back of a picture. Leave --backprint out, or choose another printer.</source>
        <translation>L’imprimante « %1 » n’imprime pas de texte au dos des photos. Retirez --backprint ou choisissez une autre imprimante.</translation>
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
    <message>
        <source>Load paper.</source>
        <translation>Chargez du papier.</translation>
    </message>
    <message>
        <source>Load the paper that the job wants.</source>
        <translation>Chargez le papier que demande la tâche.</translation>
    </message>
    <message>
        <source>Load paper soon.</source>
        <translation>Chargez bientôt du papier.</translation>
    </message>
    <message>
        <source>Take the jammed paper out.</source>
        <translation>Retirez le papier coincé.</translation>
    </message>
    <message>
        <source>a paper tray is missing</source>
        <translation>un bac à papier manque</translation>
    </message>
    <message>
        <source>Push the paper tray in.</source>
        <translation>Insérez le bac à papier.</translation>
    </message>
    <message>
        <source>the output tray is missing</source>
        <translation>le bac de sortie manque</translation>
    </message>
    <message>
        <source>Put the output tray in.</source>
        <translation>Mettez le bac de sortie en place.</translation>
    </message>
    <message>
        <source>Empty the output tray.</source>
        <translation>Videz le bac de sortie.</translation>
    </message>
    <message>
        <source>the output tray is nearly full</source>
        <translation>le bac de sortie est presque plein</translation>
    </message>
    <message>
        <source>Empty the output tray soon.</source>
        <translation>Videz bientôt le bac de sortie.</translation>
    </message>
    <message>
        <source>Close the printer&apos;s door; the job goes on then.</source>
        <translation>Fermez la porte de l’imprimante ; la tâche continuera.</translation>
    </message>
    <message>
        <source>Close the cover; the job goes on then.</source>
        <translation>Fermez le capot ; la tâche continuera.</translation>
    </message>
    <message>
        <source>something is open</source>
        <translation>quelque chose est ouvert</translation>
    </message>
    <message>
        <source>Close what is open; the job goes on then.</source>
        <translation>Fermez ce qui est ouvert ; la tâche continuera.</translation>
    </message>
    <message>
        <source>Switch the printer on and look at its cable or network.</source>
        <translation>Allumez l’imprimante et vérifiez son câble ou son réseau.</translation>
    </message>
    <message>
        <source>Resume it, or ask whoever has paused it.</source>
        <translation>Relancez-la ou demandez à la personne qui l’a mise en pause.</translation>
    </message>
    <message>
        <source>holds new jobs</source>
        <translation>retient les nouvelles tâches</translation>
    </message>
    <message>
        <source>Release it, and new jobs are printed.</source>
        <translation>Débloquez-la et les nouvelles tâches seront imprimées.</translation>
    </message>
    <message>
        <source>Switch the printer on.</source>
        <translation>Allumez l’imprimante.</translation>
    </message>
    <message>
        <source>Have new toner at hand.</source>
        <translation>Gardez du toner neuf à portée de main.</translation>
    </message>
    <message>
        <source>Put new toner in.</source>
        <translation>Mettez du toner neuf.</translation>
    </message>
    <message>
        <source>Have new ink at hand.</source>
        <translation>Gardez de l’encre neuve à portée de main.</translation>
    </message>
    <message>
        <source>Put new ink in.</source>
        <translation>Mettez de l’encre neuve.</translation>
    </message>
    <message>
        <source>an ink cartridge is missing</source>
        <translation>une cartouche d’encre manque</translation>
    </message>
    <message>
        <source>Put the missing cartridge in.</source>
        <translation>Mettez la cartouche manquante.</translation>
    </message>
    <message>
        <source>Have a new waste tank at hand.</source>
        <translation>Gardez un bac de récupération neuf à portée de main.</translation>
    </message>
    <message>
        <source>Put a new waste tank in.</source>
        <translation>Mettez un bac de récupération neuf.</translation>
    </message>
    <message>
        <source>too hot</source>
        <translation>trop chaude</translation>
    </message>
    <message>
        <source>Let the printer cool down.</source>
        <translation>Laissez l’imprimante refroidir.</translation>
    </message>
    <message>
        <source>warming up</source>
        <translation>préchauffage</translation>
    </message>
    <message>
        <source>the drum is nearly worn out</source>
        <translation>le tambour est presque usé</translation>
    </message>
    <message>
        <source>Have a new drum at hand.</source>
        <translation>Gardez un tambour neuf à portée de main.</translation>
    </message>
    <message>
        <source>the drum is worn out</source>
        <translation>le tambour est usé</translation>
    </message>
    <message>
        <source>Put a new drum in.</source>
        <translation>Mettez un tambour neuf.</translation>
    </message>
    <message>
        <source>developer is low</source>
        <translation>peu de développeur</translation>
    </message>
    <message>
        <source>Have new developer at hand.</source>
        <translation>Gardez du développeur neuf à portée de main.</translation>
    </message>
    <message>
        <source>out of developer</source>
        <translation>plus de développeur</translation>
    </message>
    <message>
        <source>Put new developer in.</source>
        <translation>Mettez du développeur neuf.</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>nettoyage</translation>
    </message>
    <message>
        <source>no room for more jobs</source>
        <translation>pas de place pour d’autres tâches</translation>
    </message>
    <message>
        <source>Wait until jobs are printed, or cancel some.</source>
        <translation>Attendez que des tâches soient imprimées ou annulez-en.</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>arrêt en cours</translation>
    </message>
    <message>
        <source>Install the printer&apos;s driver.</source>
        <translation>Installez le pilote de l’imprimante.</translation>
    </message>
    <message>
        <source>Install the printer&apos;s driver anew.</source>
        <translation>Réinstallez le pilote de l’imprimante.</translation>
    </message>
    <message>
        <source>Look at the printer&apos;s own display.</source>
        <translation>Regardez l’écran de l’imprimante.</translation>
    </message>
</context>
<context>
    <name>Stepper</name>
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
    <name>Supply</name>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Photo black</source>
        <translation>Noir photo</translation>
    </message>
    <message>
        <source>Matte black</source>
        <translation>Noir mat</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Gris clair</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>Cyan clair</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>Magenta clair</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Waste tank</source>
        <translation>Bac de récupération</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Encre</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Consommable</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>full</source>
        <translation>plein</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, nearly full</source>
        <translation>%1, presque plein</translation>
    </message>
    <message>
        <source>%1 full</source>
        <translation>%1 plein</translation>
    </message>
    <message>
        <source>%1, low</source>
        <translation>%1, reste peu</translation>
    </message>
    <message>
        <source>%1 is full</source>
        <translation>%1 : plein</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 : vide</translation>
    </message>
    <message>
        <source>%1 is nearly full (%2)</source>
        <translation>%1 : presque plein (%2)</translation>
    </message>
    <message>
        <source>%1 is low (%2)</source>
        <translation>%1 : reste peu (%2)</translation>
    </message>
</context>
<context>
    <name>TerminalQuestions</name>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>Send it all the same? [y/N]</source>
        <translation>L’envoyer quand même ? [oui/N]</translation>
    </message>
    <message>
        <source>Name [%1]:</source>
        <translation>Nom [%1] :</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>Trust it from now on? [y/N]</source>
        <translation>L’approuver désormais ? [oui/N]</translation>
    </message>
</context>
<context>
    <name>TrayWords</name>
    <message>
        <source>Main tray</source>
        <translation>Bac principal</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Bac photo</translation>
    </message>
    <message>
        <source>Second tray</source>
        <translation>Deuxième bac</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Bac supérieur</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Bac du milieu</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Bac inférieur</translation>
    </message>
    <message>
        <source>Rear feed</source>
        <translation>Alimentation arrière</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Bac latéral</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Alimentation manuelle</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>Bac auxiliaire</translation>
    </message>
    <message>
        <source>Large tray</source>
        <translation>Bac grande capacité</translation>
    </message>
    <message>
        <source>Envelope feed</source>
        <translation>Alimentation d’enveloppes</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Plateau à disques</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rouleau</translation>
    </message>
    <message>
        <source>Second roll</source>
        <translation>Deuxième rouleau</translation>
    </message>
    <message>
        <source>Plain paper</source>
        <translation>Papier ordinaire</translation>
    </message>
    <message>
        <source>Thin paper</source>
        <translation>Papier fin</translation>
    </message>
    <message>
        <source>Heavy paper</source>
        <translation>Papier épais</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Papier jet d’encre</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>Papier couché</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Papier à en-tête</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Papier de qualité</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Papier photo</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Papier photo brillant</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Papier photo très brillant</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Papier photo semi-brillant</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Papier photo satiné</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Papier photo mat</translation>
    </message>
    <message>
        <source>Photo film</source>
        <translation>Film photo</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Envelopes</source>
        <translation>Enveloppes</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Transparencies</source>
        <translation>Transparents</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Disques</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Bac %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rouleau %1</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Bac</translation>
    </message>
</context>
<context>
    <name>TraysInWords</name>
    <message>
        <source>%1 mm wide</source>
        <translation>%1 mm de large</translation>
    </message>
    <message>
        <source>%1 in wide</source>
        <translation>%1 po de large</translation>
    </message>
    <message>
        <source>not loaded: needs %1 in the tray</source>
        <translation>non chargé : demande %1 dans le bac</translation>
    </message>
    <message>
        <source>not loaded: needs %1 in &quot;%2&quot;</source>
        <translation>non chargé : demande %1 dans « %2 »</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is not in &quot;%2&quot;, but in &quot;%3&quot;.</source>
        <translation>Le format de papier « %1 » n’est pas dans « %2 », mais dans « %3 ».</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is not loaded. There is &quot;%2&quot; in &quot;%3&quot;.</source>
        <translation>Le format de papier « %1 » n’est pas chargé. Il y a « %2 » dans « %3 ».</translation>
    </message>
    <message>
        <source>The paper type is &quot;%1&quot;, but in &quot;%2&quot; there is &quot;%3&quot;.</source>
        <translation>Le type de papier est « %1 », mais « %2 » contient « %3 ».</translation>
    </message>
</context>
<context>
    <name>UserJobs</name>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Waiting: the printer is paused</source>
        <translation>En attente : l’imprimante est en pause</translation>
    </message>
    <message>
        <source>Held: the printer wants a name and a password</source>
        <translation>Retenue : l’imprimante demande un nom et un mot de passe</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>Retenue</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>En cours d’impression</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêtée</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulée</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échouée</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Imprimée</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>The print server does not let you cancel job %1. Ask whoever looks after it.</source>
        <translation>Le serveur d’impression ne vous autorise pas à annuler la tâche %1. Adressez-vous à la personne qui le gère.</translation>
    </message>
    <message>
        <source>The print server does not let you hold job %1. Ask whoever looks after it.</source>
        <translation>Le serveur d’impression ne vous autorise pas à retenir la tâche %1. Adressez-vous à la personne qui le gère.</translation>
    </message>
    <message>
        <source>The print server does not let you release job %1. Ask whoever looks after it.</source>
        <translation>Le serveur d’impression ne vous autorise pas à libérer la tâche %1. Adressez-vous à la personne qui le gère.</translation>
    </message>
    <message>
        <source>The print server does not let you print job %1 again. Ask whoever looks after it.</source>
        <translation>Le serveur d’impression ne vous autorise pas à réimprimer la tâche %1. Adressez-vous à la personne qui le gère.</translation>
    </message>
    <message>
        <source>The print server does not let you sign in for job %1. Ask whoever looks after it.</source>
        <translation>Le serveur d’impression ne vous autorise pas à vous connecter pour la tâche %1. Adressez-vous à la personne qui le gère.</translation>
    </message>
    <message>
        <source>The print server does not let you move job %1 to another printer. Ask whoever looks after it.</source>
        <translation>Le serveur d’impression ne vous autorise pas à déplacer la tâche %1 vers une autre imprimante. Adressez-vous à la personne qui le gère.</translation>
    </message>
    <message>
        <source>Job %1 or the printer &quot;%2&quot; is not on the print server any more.</source>
        <translation>La tâche %1 ou l’imprimante « %2 » n’est plus sur le serveur d’impression.</translation>
    </message>
    <message>
        <source>Job %1 is not on the print server any more.</source>
        <translation>La tâche %1 n’est plus sur le serveur d’impression.</translation>
    </message>
    <message>
        <source>That cannot be done with job %1 as it is now: it may have gone on or ended, or the print server has not kept its pages.</source>
        <translation>C’est impossible avec la tâche %1 dans son état actuel : elle a peut-être repris ou pris fin, ou le serveur d’impression n’a pas conservé ses pages.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>halvern::AccessDialogs</name>
    <message>
        <source>Trust this print server?</source>
        <translation>Approuver ce serveur d’impression ?</translation>
    </message>
    <message>
        <source>&amp;Trust It from Now On</source>
        <translation>L’&amp;approuver désormais</translation>
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
        <source>Job %1 stays on the queue; &quot;cancel %2-%1&quot; takes it away.</source>
        <translation>La tâche %1 reste dans la file ; « cancel %2-%1 » l’enlève.</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Attention : %1</translation>
    </message>
    <message>
        <source>With &quot;-o PageSize=%1&quot; it fits.</source>
        <translation>Avec « -o PageSize=%1 », cela convient.</translation>
    </message>
    <message>
        <source>With --skip-broken the others are printed.</source>
        <translation>Avec --skip-broken, les autres sont imprimés.</translation>
    </message>
    <message>
        <source>None of the files can be printed.</source>
        <translation>Aucun des fichiers ne peut être imprimé.</translation>
    </message>
    <message>
        <source>Stopped, but the print server does not answer: a part of the job may still be on the queue &quot;%1&quot;. Look at it before you print again.</source>
        <translation>Arrêté, mais le serveur d’impression ne répond pas : une partie de la tâche est peut-être encore dans la file « %1 ». Vérifiez-la avant de réimprimer.</translation>
    </message>
</context>
<context>
    <name>halvern::CaptionRow</name>
    <message>
        <source>None; for example [C]  [F]</source>
        <translation>Aucune ; par exemple [C]  [F]</translation>
    </message>
    <message>
        <source>Caption under each photo</source>
        <translation>Légende sous chaque photo</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Repère</translation>
    </message>
    <message>
        <source>I&amp;nsert</source>
        <translation>In&amp;sérer</translation>
    </message>
</context>
<context>
    <name>halvern::ChoiceList</name>
    <message>
        <source>%1; %2</source>
        <translation>%1 ; %2</translation>
    </message>
</context>
<context>
    <name>halvern::ColourRow</name>
    <message>
        <source>Compensate the black point</source>
        <translation>Compenser le point noir</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>Mode de rendu</translation>
    </message>
    <message>
        <source>The photo&apos;s darkest tone becomes the paper&apos;s darkest</source>
        <translation>Le ton le plus sombre de la photo devient le plus sombre du papier</translation>
    </message>
    <message>
        <source>The printer&apos;s own: none is known</source>
        <translation>Profil de l’imprimante : aucun n’est connu</translation>
    </message>
    <message>
        <source>The printer&apos;s own: %1</source>
        <translation>Profil de l’imprimante : %1</translation>
    </message>
    <message>
        <source>Another file...</source>
        <translation>Autre fichier…</translation>
    </message>
    <message>
        <source>Soft proof</source>
        <translation>Épreuvage écran</translation>
    </message>
    <message>
        <source>Paper white</source>
        <translation>Blanc du papier</translation>
    </message>
    <message>
        <source>Gamut warning</source>
        <translation>Alerte de gamme</translation>
    </message>
    <message>
        <source>The printer manages colors</source>
        <translation>L’imprimante gère les couleurs</translation>
    </message>
    <message>
        <source>This program manages colors</source>
        <translation>Ce programme gère les couleurs</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Color profile</source>
        <translation>Profil de couleurs</translation>
    </message>
    <message>
        <source>What becomes of colors that the printer cannot show</source>
        <translation>Ce que deviennent les couleurs que l’imprimante ne peut pas rendre</translation>
    </message>
    <message>
        <source>The preview shows the paper&apos;s own white and the deepest black on it</source>
        <translation>L’aperçu montre le blanc du papier et le noir le plus profond sur celui-ci</translation>
    </message>
    <message>
        <source>The preview paints over in pink what the printer cannot show</source>
        <translation>L’aperçu recouvre de rose ce que l’imprimante ne peut pas rendre</translation>
    </message>
    <message>
        <source>The preview shows what the photo will look like on paper</source>
        <translation>L’aperçu montre l’aspect de la photo sur papier</translation>
    </message>
    <message>
        <source>Choose a Color Profile</source>
        <translation>Choisir un profil de couleurs</translation>
    </message>
    <message>
        <source>Color profiles (*.icc *.icm *.ICC *.ICM);;All files (*)</source>
        <translation>Profils de couleurs (*.icc *.icm *.ICC *.ICM);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>halvern::CropEditor</name>
    <message>
        <source>%1 pixels per inch: it will look soft</source>
        <translation>%1 pixels par pouce : l’image paraîtra floue</translation>
    </message>
    <message>
        <source>%1 pixels per inch</source>
        <translation>%1 pixels par pouce</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recadrer</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centrer</translation>
    </message>
    <message>
        <source>Put the frame in the middle (C)</source>
        <translation>Mettre le cadre au milieu (C)</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Tourner</translation>
    </message>
    <message>
        <source>Turn the photo clockwise (R)</source>
        <translation>Tourner la photo dans le sens des aiguilles d’une montre (R)</translation>
    </message>
    <message>
        <source>As Large As Can Be</source>
        <translation>Le plus grand possible</translation>
    </message>
    <message>
        <source>Show as much of the photo as can be (0)</source>
        <translation>Montrer la plus grande partie possible de la photo (0)</translation>
    </message>
    <message>
        <source>Same for All</source>
        <translation>Idem pour toutes</translation>
    </message>
    <message>
        <source>Crop and turn all photos like this one</source>
        <translation>Recadrer et tourner toutes les photos comme celle-ci</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Back to the sheet (Esc)</source>
        <translation>Retour à la feuille (Échap)</translation>
    </message>
    <message>
        <source>%1 % of the photo</source>
        <translation>%1 % de la photo</translation>
    </message>
</context>
<context>
    <name>halvern::CustomField</name>
    <message>
        <source>Other value...</source>
        <translation>Autre valeur…</translation>
    </message>
    <message>
        <source>%1: other value</source>
        <translation>%1 : autre valeur</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>po</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
</context>
<context>
    <name>halvern::CustomPaperRow</name>
    <message>
        <source>Width of the paper</source>
        <translation>Largeur du papier</translation>
    </message>
    <message>
        <source>Height of the paper</source>
        <translation>Hauteur du papier</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Conserver</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>po</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>Unité de longueur</translation>
    </message>
    <message>
        <source>Name, to find it again</source>
        <translation>Nom, pour le retrouver</translation>
    </message>
    <message>
        <source>Name of this paper size</source>
        <translation>Nom de ce format de papier</translation>
    </message>
    <message>
        <source>From %1 to %2 %3</source>
        <translation>De %1 à %2 %3</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>Oub&amp;lier</translation>
    </message>
    <message>
        <source>As &amp;Long as the Photo</source>
        <translation>Aussi lo&amp;ng que la photo</translation>
    </message>
    <message>
        <source>As &amp;High as the Photo</source>
        <translation>Aussi &amp;haut que la photo</translation>
    </message>
</context>
<context>
    <name>halvern::DialogSession</name>
    <message>
        <source>No printer is chosen. Choose one from the list.</source>
        <translation>Aucune imprimante n’est choisie. Choisissez-en une dans la liste.</translation>
    </message>
    <message>
        <source>Nothing is known of the printer &quot;%1&quot; yet. Wait for it, or choose another one.</source>
        <translation>On ne sait encore rien de l’imprimante « %1 ». Attendez-la ou choisissez-en une autre.</translation>
    </message>
    <message>
        <source>The photos are still being read. Wait a moment.</source>
        <translation>La lecture des photos n’est pas terminée. Attendez un moment.</translation>
    </message>
    <message>
        <source>There is no photo to print. Open the dialog with one.</source>
        <translation>Il n’y a aucune photo à imprimer. Ouvrez le dialogue avec une photo.</translation>
    </message>
    <message>
        <source>All photos are left out. Include at least one of them.</source>
        <translation>Toutes les photos sont omises. Incluez-en au moins une.</translation>
    </message>
    <message>
        <source>All photos are cropped and turned like &quot;%1&quot; now.</source>
        <translation>Toutes les photos sont maintenant cadrées et tournées comme «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>1 photo was moved.</source>
        <translation>1 photo a été déplacée.</translation>
    </message>
    <message>
        <source>%1 photos were moved.</source>
        <translation>%1 photos ont été déplacées.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was taken out.</source>
        <translation>«&#xa0;%1&#xa0;» a été retirée.</translation>
    </message>
    <message>
        <source>%1 photos were taken out.</source>
        <translation>%1 photos ont été retirées.</translation>
    </message>
    <message>
        <source>All photos are printed now.</source>
        <translation>Toutes les photos sont maintenant imprimées.</translation>
    </message>
    <message>
        <source>%1 of %2 photos are printed now.</source>
        <translation>%1 photos sur %2 sont maintenant imprimées.</translation>
    </message>
    <message>
        <source>The layout was changed.</source>
        <translation>La disposition a été changée.</translation>
    </message>
    <message>
        <source>The photo&apos;s size or place was changed.</source>
        <translation>La taille ou la place de la photo a été changée.</translation>
    </message>
</context>
<context>
    <name>halvern::DocumentSpool</name>
    <message>
        <source>The document cannot be read: %1. Print it once more from its application.</source>
        <translation>Le document est illisible : %1. Imprimez-le encore une fois depuis son application.</translation>
    </message>
    <message>
        <source>There is no room for the document: %1. Make room on the disk, and print it once more.</source>
        <translation>Il n’y a pas de place pour le document : %1. Libérez de la place sur le disque et imprimez-le encore une fois.</translation>
    </message>
    <message>
        <source>No file can be made for the document in &quot;%1&quot;. Make sure that you may write there, and print it once more.</source>
        <translation>Impossible de créer un fichier pour le document dans « %1 ». Vérifiez que vous pouvez y écrire et imprimez-le encore une fois.</translation>
    </message>
    <message>
        <source>The application has gone before its document was whole. Print it once more.</source>
        <translation>L’application a disparu avant que son document soit complet. Imprimez-le encore une fois.</translation>
    </message>
    <message>
        <source>The computer is too busy to take the document. Close something, and print it once more.</source>
        <translation>L’ordinateur est trop occupé pour recevoir le document. Fermez quelque chose et imprimez-le encore une fois.</translation>
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
        <translation>Aide</translation>
    </message>
    <message>
        <source>Page of the help</source>
        <translation>Page de l’aide</translation>
    </message>
    <message>
        <source>Search the help (%1)</source>
        <translation>Chercher dans l’aide (%1)</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Chercher dans l’aide</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Trouvé</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 trouvés</translation>
    </message>
    <message>
        <source>Help - %1</source>
        <translation>Aide - %1</translation>
    </message>
</context>
<context>
    <name>halvern::HitList</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1, dans %2</translation>
    </message>
</context>
<context>
    <name>halvern::JobPage</name>
    <message>
        <source>At once</source>
        <translation>Tout de suite</translation>
    </message>
    <message>
        <source>When somebody releases it</source>
        <translation>Quand quelqu’un la libère</translation>
    </message>
    <message>
        <source>By day, from 6:00</source>
        <translation>Le jour, à partir de 6 h</translation>
    </message>
    <message>
        <source>In the evening, from 18:00</source>
        <translation>Le soir, à partir de 18 h</translation>
    </message>
    <message>
        <source>At night, from 18:00</source>
        <translation>La nuit, à partir de 18 h</translation>
    </message>
    <message>
        <source>In the second shift, from 16:00</source>
        <translation>En deuxième équipe, à partir de 16 h</translation>
    </message>
    <message>
        <source>In the third shift, from 0:00</source>
        <translation>En troisième équipe, à partir de 0 h</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Le week-end</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Non classifié</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidentiel</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Classifié</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secret</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Très secret</translation>
    </message>
    <message>
        <source>1 waits longest, 100 goes first</source>
        <translation>1 attend le plus longtemps, 100 passe en premier</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre :</translation>
    </message>
    <message>
        <source>Pr&amp;iority:</source>
        <translation>Pr&amp;iorité :</translation>
    </message>
    <message>
        <source>Print &amp;when:</source>
        <translation>&amp;Quand imprimer :</translation>
    </message>
    <message>
        <source>Page &amp;before:</source>
        <translation>Page a&amp;vant :</translation>
    </message>
    <message>
        <source>Page &amp;after:</source>
        <translation>Page &amp;après :</translation>
    </message>
    <message>
        <source>Print when</source>
        <translation>Quand imprimer</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>At a time of day</source>
        <translation>À une heure précise</translation>
    </message>
    <message>
        <source>Pages before and after the job are decided on the page &quot;%1&quot;.</source>
        <translation>Les pages avant et après la tâche se choisissent à la page « %1 ».</translation>
    </message>
</context>
<context>
    <name>halvern::JobRows</name>
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyée</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
</context>
<context>
    <name>halvern::JobsButton</name>
    <message>
        <source>Jobs...</source>
        <translation>Tâches…</translation>
    </message>
    <message>
        <source>Your jobs on this printer</source>
        <translation>Vos tâches sur cette imprimante</translation>
    </message>
</context>
<context>
    <name>halvern::JobsWindow</name>
    <message>
        <source>Show jobs that have ended</source>
        <translation>Afficher les tâches terminées</translation>
    </message>
    <message>
        <source>Your Jobs on %1</source>
        <translation>Vos tâches sur %1</translation>
    </message>
    <message>
        <source>Your jobs</source>
        <translation>Vos tâches</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annuler la tâche</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retenir</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Libérer</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>Réimprimer</translation>
    </message>
    <message>
        <source>Sign In...</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>Move To</source>
        <translation>Déplacer vers</translation>
    </message>
    <message>
        <source>Asking the print server...</source>
        <translation>Interrogation du serveur d’impression…</translation>
    </message>
    <message>
        <source>You have no jobs on this printer.</source>
        <translation>Vous n’avez aucune tâche sur cette imprimante.</translation>
    </message>
    <message>
        <source>The print server has no other printer</source>
        <translation>Le serveur d’impression n’a pas d’autre imprimante</translation>
    </message>
</context>
<context>
    <name>halvern::KeepLayoutRow</name>
    <message>
        <source>&amp;Keep</source>
        <translation>Co&amp;nserver</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Oublier</translation>
    </message>
    <message>
        <source>Name, to find it again</source>
        <translation>Nom, pour la retrouver</translation>
    </message>
    <message>
        <source>Name of the layout</source>
        <translation>Nom de la mise en page</translation>
    </message>
</context>
<context>
    <name>halvern::LayoutPage</name>
    <message>
        <source>Rows</source>
        <translation>Rangées</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Width of each photo</source>
        <translation>Largeur de chaque photo</translation>
    </message>
    <message>
        <source>Height of each photo</source>
        <translation>Hauteur de chaque photo</translation>
    </message>
    <message>
        <source>&amp;Each photo fills its own sheet</source>
        <translation>Chaque photo remplit s&amp;a propre feuille</translation>
    </message>
    <message>
        <source>Margin of the sheet</source>
        <translation>Marge de la feuille</translation>
    </message>
    <message>
        <source>White border</source>
        <translation>Bord blanc</translation>
    </message>
    <message>
        <source>Thin l&amp;ine</source>
        <translation>Filet f&amp;in</translation>
    </message>
    <message>
        <source>Copies of this photo</source>
        <translation>Copies de cette photo</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>Recadrer…</translation>
    </message>
    <message>
        <source>Same Crop for All</source>
        <translation>Même cadrage pour toutes</translation>
    </message>
    <message>
        <source>&amp;Layout:</source>
        <translation>&amp;Mise en page :</translation>
    </message>
    <message>
        <source>Photo si&amp;ze:</source>
        <translation>&amp;Taille de la photo :</translation>
    </message>
    <message>
        <source>Pl&amp;ace:</source>
        <translation>Empla&amp;cement :</translation>
    </message>
    <message>
        <source>&amp;Margin:</source>
        <translation>Mar&amp;ge :</translation>
    </message>
    <message>
        <source>White &amp;border:</source>
        <translation>&amp;Bord blanc :</translation>
    </message>
    <message>
        <source>&amp;Caption:</source>
        <translation>&amp;Légende :</translation>
    </message>
    <message>
        <source>T&amp;his photo:</source>
        <translation>Cette p&amp;hoto :</translation>
    </message>
    <message>
        <source>As my la&amp;yout:</source>
        <translation>Comme ma mise &amp;en page :</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>rows of</source>
        <translation>rangées de</translation>
    </message>
    <message>
        <source> copies</source>
        <translation> copies</translation>
    </message>
    <message>
        <source>One photo on each page</source>
        <translation>Une photo sur chaque page</translation>
    </message>
    <message>
        <source>Rows and columns</source>
        <translation>Rangées et colonnes</translation>
    </message>
    <message>
        <source>Photos of one size</source>
        <translation>Photos d’une même taille</translation>
    </message>
    <message>
        <source>Make the page %1 mm long, as the photos need</source>
        <translation>Donner à la page %1 mm de long, comme il faut aux photos</translation>
    </message>
    <message>
        <source> copy</source>
        <translation> copie</translation>
    </message>
    <message>
        <source>Cu&amp;t marks</source>
        <translation>Repères &amp;de coupe</translation>
    </message>
</context>
<context>
    <name>halvern::LoginDialog</name>
    <message>
        <source>Send it &amp;all the same</source>
        <translation>L’&amp;envoyer quand même</translation>
    </message>
    <message>
        <source>&amp;Remember it in the keyring</source>
        <translation>&amp;Retenir dans le trousseau</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Mot de passe :</translation>
    </message>
    <message>
        <source>&amp;Sign In</source>
        <translation>&amp;Se connecter</translation>
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
    <name>halvern::Notices</name>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>Printing from %1</source>
        <translation>Impression depuis %1</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>halvern::OptionDelegate</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>also sets %1</source>
        <translation>règle aussi %1</translation>
    </message>
</context>
<context>
    <name>halvern::OptionFinder</name>
    <message>
        <source>Search options and printers (Ctrl+F)</source>
        <translation>Rechercher des options et des imprimantes (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search options and printers</source>
        <translation>Rechercher des options et des imprimantes</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
    <message>
        <source>%1 › %2</source>
        <translation>%1 › %2</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Recherche…</translation>
    </message>
    <message>
        <source>Nothing has this name.</source>
        <translation>Rien ne porte ce nom.</translation>
    </message>
    <message>
        <source>The first %1 that were found</source>
        <translation>Les %1 premiers résultats</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>Résultats : %1</translation>
    </message>
</context>
<context>
    <name>halvern::OptionTree</name>
    <message>
        <source>Installed in the printer (set by whoever installed it)</source>
        <translation>Installé dans l’imprimante (réglé par la personne qui l’a installée)</translation>
    </message>
    <message>
        <source>%1 (the printer&apos;s default)</source>
        <translation>%1 (valeur par défaut de l’imprimante)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Put back to the printer&apos;s default: %1</source>
        <translation>Rétablir la valeur par défaut de l’imprimante : %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Changed from the printer&apos;s default</source>
        <translation>Diffère de la valeur par défaut de l’imprimante</translation>
    </message>
    <message>
        <source>As the printer is set</source>
        <translation>Selon le réglage de l’imprimante</translation>
    </message>
</context>
<context>
    <name>halvern::OptionsPage</name>
    <message>
        <source>Show changed only</source>
        <translation>Modifiées seulement</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Tout rétablir</translation>
    </message>
    <message>
        <source>Puts the options of this page back to the printer&apos;s defaults</source>
        <translation>Rétablit pour les options de cette page les valeurs par défaut de l’imprimante</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Nothing changed</source>
        <translation>Aucune modification</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>Modifications : %1</translation>
    </message>
    <message>
        <source>Put Back to the Printer&apos;s Default</source>
        <translation>Rétablir la valeur par défaut de l’imprimante</translation>
    </message>
</context>
<context>
    <name>halvern::OutputMenu</name>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Print to a &amp;PDF File...</source>
        <translation>Imprimer dans un fichier &amp;PDF…</translation>
    </message>
    <message>
        <source>&amp;Copy as Command</source>
        <translation>&amp;Copier comme commande</translation>
    </message>
    <message>
        <source>Print to a PDF File</source>
        <translation>Imprimer dans un fichier PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Fichiers PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The command that prints this again is on the clipboard.</source>
        <translation>La commande qui imprime cela à nouveau est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>A file is being written still. Write the next one when it is there.</source>
        <translation>Un fichier est encore en cours d’écriture. Écrivez le suivant quand celui-ci sera prêt.</translation>
    </message>
    <message>
        <source>The command that prints this again is on the clipboard, without your PIN or password.</source>
        <translation>La commande qui imprime cela à nouveau est dans le presse-papiers, sans votre PIN ni votre mot de passe.</translation>
    </message>
    <message>
        <source>%1 is one of the files to print. Choose another name.</source>
        <translation>%1 est l’un des fichiers à imprimer. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>That folder goes when this window is closed. Choose another one.</source>
        <translation>Ce dossier disparaît à la fermeture de cette fenêtre. Choisissez-en un autre.</translation>
    </message>
</context>
<context>
    <name>halvern::PageRangeRow</name>
    <message>
        <source>Last page &amp;first</source>
        <translation>&amp;Dernière page en premier</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Pages à imprimer</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>Paires et impaires</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>Impaires seulement</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>Paires seulement</translation>
    </message>
    <message>
        <source>Odd or even pages</source>
        <translation>Pages impaires ou paires</translation>
    </message>
    <message>
        <source>All %1, or for example 1-3, 5-</source>
        <translation>Toutes (%1), ou par exemple 1-3, 5-</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Page actuelle</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Which pages</source>
        <translation>Quelles pages</translation>
    </message>
    <message>
        <source>All, or for example 1-3, 5-</source>
        <translation>Toutes, ou par exemple 1-3, 5-</translation>
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
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>About the Photo</source>
        <translation>À propos de la photo</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Mise en page</translation>
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
    <message>
        <source>Search by name or measures</source>
        <translation>Rechercher par nom ou dimensions</translation>
    </message>
    <message>
        <source>&amp;Borderless</source>
        <translation>Sans &amp;bordure</translation>
    </message>
    <message>
        <source>&amp;Two-sided:</source>
        <translation>Recto &amp;verso :</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Page&amp;s :</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Format du papier</translation>
    </message>
    <message>
        <source>The printer does not have this paper size both with and without a margin.</source>
        <translation>L’imprimante n’a pas ce format de papier à la fois avec et sans marge.</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>Échell&amp;e :</translation>
    </message>
    <message>
        <source>Loaded:</source>
        <translation>Chargé :</translation>
    </message>
    <message>
        <source>Co&amp;lors:</source>
        <translation>Cou&amp;leurs :</translation>
    </message>
</context>
<context>
    <name>halvern::PaperSizeList</name>
    <message>
        <source>Custom size...</source>
        <translation>Format personnalisé…</translation>
    </message>
</context>
<context>
    <name>halvern::PdfOutput</name>
    <message>
        <source>The file &quot;%1&quot; could not be written: %2.</source>
        <translation>Le fichier « %1 » n’a pas pu être écrit : %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no regular file. Name a file to write.</source>
        <translation>« %1 » n’est pas un fichier ordinaire. Nommez un fichier à écrire.</translation>
    </message>
    <message>
        <source>Cancelled: no file was written.</source>
        <translation>Annulé : aucun fichier n’a été écrit.</translation>
    </message>
    <message>
        <source>No file was written. %1</source>
        <translation>Aucun fichier n’a été écrit. %1</translation>
    </message>
    <message>
        <source>1 page was written to &quot;%1&quot;.</source>
        <translation>1 page a été écrite dans « %1 ».</translation>
    </message>
    <message>
        <source>%1 pages were written to &quot;%2&quot;.</source>
        <translation>%1 pages ont été écrites dans « %2 ».</translation>
    </message>
    <message>
        <source>The computer is too busy to write the file. Close something and try again.</source>
        <translation>L’ordinateur est trop occupé pour écrire le fichier. Fermez quelque chose et réessayez.</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoAdding</name>
    <message>
        <source>Add...</source>
        <translation>Ajouter…</translation>
    </message>
    <message>
        <source>Add photos; they can be dropped on the window and pasted, too</source>
        <translation>Ajouter des photos ; on peut aussi les déposer dans la fenêtre ou les coller</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Add Photos</source>
        <translation>Ajouter des photos</translation>
    </message>
    <message>
        <source>Choose Photos</source>
        <translation>Choisir des photos</translation>
    </message>
    <message>
        <source>The clipboard holds no photo. Copy a picture, or files of photos, first.</source>
        <translation>Le presse-papiers ne contient pas de photo. Copiez d’abord une image ou des fichiers de photos.</translation>
    </message>
    <message>
        <source>The picture cannot be kept in a temporary file. Make room on the disk.</source>
        <translation>L’image ne peut pas être conservée dans un fichier temporaire. Libérez de la place sur le disque.</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoListModel</name>
    <message>
        <source>%1, page %2</source>
        <translation>%1, page %2</translation>
    </message>
    <message>
        <source>Photo %1 of %2</source>
        <translation>Photo %1 sur %2</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 copie</translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation>%1 copies</translation>
    </message>
    <message>
        <source>not printed</source>
        <translation>non imprimée</translation>
    </message>
    <message>
        <source>a part of it is missing</source>
        <translation>une partie manque</translation>
    </message>
    <message>
        <source>Drag it to another place, or press Alt and an arrow key. Plus and minus change the copies, Space whether it is printed, Delete takes it out, Return crops it. More with a right click.</source>
        <translation>Faites-la glisser ailleurs, ou appuyez sur Alt et une flèche. Plus et moins changent le nombre de copies, Espace si elle est imprimée, Suppr la retire, Entrée la recadre. Plus avec un clic droit.</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoLoader</name>
    <message>
        <source>&quot;%1&quot; cannot be read now: the computer is too busy. Close something and open it again.</source>
        <translation>« %1 » ne peut pas être lu maintenant : l’ordinateur est trop occupé. Fermez quelque chose et ouvrez-le à nouveau.</translation>
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
        <translation>Adobe RGB, d’après l’appareil photo</translation>
    </message>
    <message>
        <source>sRGB, as the file notes</source>
        <translation>sRGB, d’après le fichier</translation>
    </message>
    <message>
        <source>Not said; taken as sRGB</source>
        <translation>Non précisé ; pris comme sRGB</translation>
    </message>
    <message>
        <source>%1 x %2 pixels (%3 megapixels)</source>
        <translation>%1 x %2 pixels (%3 mégapixels)</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Fichier :</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Dossier :</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Type :</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>Problème :</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Taille :</translation>
    </message>
    <message>
        <source>Colors:</source>
        <translation>Couleurs :</translation>
    </message>
    <message>
        <source>Taken:</source>
        <translation>Prise de vue :</translation>
    </message>
    <message>
        <source>Camera:</source>
        <translation>Appareil photo :</translation>
    </message>
    <message>
        <source>Lens:</source>
        <translation>Objectif :</translation>
    </message>
    <message>
        <source>Exposure:</source>
        <translation>Exposition :</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Description :</translation>
    </message>
    <message>
        <source>Rating:</source>
        <translation>Note :</translation>
    </message>
    <message>
        <source>CMYK without a profile; taken as ideal inks</source>
        <translation>CMJN sans profil ; pris comme des encres idéales</translation>
    </message>
    <message>
        <source>Gray without a profile; taken as sRGB</source>
        <translation>Gris sans profil ; pris comme sRGB</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoPlaceRow</name>
    <message>
        <source>Away from the corner:</source>
        <translation>À distance du coin :</translation>
    </message>
    <message>
        <source>From the left</source>
        <translation>Depuis la gauche</translation>
    </message>
    <message>
        <source>From the top</source>
        <translation>Depuis le haut</translation>
    </message>
    <message>
        <source>Without it the photo is in the middle of the sheet</source>
        <translation>Sinon, la photo est au milieu de la feuille</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoSizeRow</name>
    <message>
        <source>Width of the photo</source>
        <translation>Largeur de la photo</translation>
    </message>
    <message>
        <source>Height of the photo</source>
        <translation>Hauteur de la photo</translation>
    </message>
    <message>
        <source>As large as the page</source>
        <translation>Aussi grande que la page</translation>
    </message>
    <message>
        <source>In</source>
        <translation>En</translation>
    </message>
    <message>
        <source>Of its own size</source>
        <translation>De sa propre taille</translation>
    </message>
    <message>
        <source>Photo size</source>
        <translation>Taille de la photo</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Percent of its own size</source>
        <translation>Pourcentage de sa propre taille</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoStrip</name>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>Recadrer…</translation>
    </message>
    <message>
        <source>Same Crop for All</source>
        <translation>Même cadrage pour toutes</translation>
    </message>
    <message>
        <source>One More Copy</source>
        <translation>Une copie de plus</translation>
    </message>
    <message>
        <source>One Copy Less</source>
        <translation>Une copie de moins</translation>
    </message>
    <message>
        <source>Copies...</source>
        <translation>Copies...</translation>
    </message>
    <message>
        <source>Print, or Not</source>
        <translation>Imprimer ou non</translation>
    </message>
    <message>
        <source>Print Only These</source>
        <translation>Imprimer seulement celles-ci</translation>
    </message>
    <message>
        <source>Print All Photos</source>
        <translation>Imprimer toutes les photos</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Move Earlier</source>
        <translation>Avancer</translation>
    </message>
    <message>
        <source>Move Later</source>
        <translation>Reculer</translation>
    </message>
    <message>
        <source>Move to the Start</source>
        <translation>Placer au début</translation>
    </message>
    <message>
        <source>Move to the End</source>
        <translation>Placer à la fin</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 sur %2 sélectionnées</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 photos</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Copies of this photo:</source>
        <translation>Copies de cette photo&#xa0;:</translation>
    </message>
    <message>
        <source>Copies of each of the %1 photos:</source>
        <translation>Copies de chacune des %1 photos&#xa0;:</translation>
    </message>
</context>
<context>
    <name>halvern::PresetBar</name>
    <message>
        <source>From your saved options (lpoptions)</source>
        <translation>De vos options enregistrées (lpoptions)</translation>
    </message>
    <message>
        <source>Made for a printer of the same model</source>
        <translation>Fait pour une imprimante du même modèle</translation>
    </message>
    <message>
        <source>Nothing was printed here yet</source>
        <translation>Rien n’a encore été imprimé ici</translation>
    </message>
    <message>
        <source>Presets (*.json)</source>
        <translation>Préréglages (*.json)</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Save, rename and more</source>
        <translation>Enregistrer, renommer et plus</translation>
    </message>
    <message>
        <source>Read from the file, and not applied yet: %1</source>
        <translation>Lu dans le fichier et pas encore appliqué : %1</translation>
    </message>
    <message>
        <source>%1 – changed</source>
        <translation>%1 – modifié</translation>
    </message>
    <message>
        <source>&amp;Save as New Preset...</source>
        <translation>&amp;Enregistrer comme nouveau préréglage…</translation>
    </message>
    <message>
        <source>&amp;Import from File...</source>
        <translation>&amp;Importer d’un fichier…</translation>
    </message>
    <message>
        <source>Export &amp;All to File...</source>
        <translation>Exporter &amp;tous vers un fichier…</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>&amp;Update &quot;%1&quot;</source>
        <translation>&amp;Mettre à jour « %1 »</translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation>&amp;Mettre à jour</translation>
    </message>
    <message>
        <source>&amp;Rename &quot;%1&quot;...</source>
        <translation>&amp;Renommer « %1 »…</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Renommer…</translation>
    </message>
    <message>
        <source>&amp;Delete &quot;%1&quot;</source>
        <translation>&amp;Supprimer « %1 »</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Export &quot;%1&quot; to File...</source>
        <translation>E&amp;xporter « %1 » vers un fichier…</translation>
    </message>
    <message>
        <source>&amp;Export to File...</source>
        <translation>E&amp;xporter vers un fichier…</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; was deleted.</source>
        <translation>Le préréglage « %1 » a été supprimé.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Ann&amp;uler la modification</translation>
    </message>
    <message>
        <source>Import Presets</source>
        <translation>Importer des préréglages</translation>
    </message>
    <message>
        <source>Export Presets</source>
        <translation>Exporter des préréglages</translation>
    </message>
</context>
<context>
    <name>halvern::PresetNameDialog</name>
    <message>
        <source>Save Preset</source>
        <translation>Enregistrer le préréglage</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Renommer le préréglage</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>With the number of &amp;copies (%1)</source>
        <translation>Avec le nombre de &amp;copies (%1)</translation>
    </message>
    <message>
        <source>With the &amp;pages to print</source>
        <translation>Avec les &amp;pages à imprimer</translation>
    </message>
    <message>
        <source>With the &amp;text on the back</source>
        <translation>Avec le &amp;texte au dos</translation>
    </message>
    <message>
        <source>This name is always there. Choose another one.</source>
        <translation>Ce nom existe toujours. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>There is a preset of this name. It will be replaced.</source>
        <translation>Il y a un préréglage de ce nom. Il sera remplacé.</translation>
    </message>
    <message>
        <source>There is a preset of this name. Choose another one.</source>
        <translation>Il y a un préréglage de ce nom. Choisissez-en un autre.</translation>
    </message>
</context>
<context>
    <name>halvern::Presets</name>
    <message>
        <source>%1 (from %2)</source>
        <translation>%1 (de %2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no preset &quot;%2&quot;.</source>
        <translation>« %1 » n’a pas de préréglage « %2 ».</translation>
    </message>
    <message>
        <source>It has: %1.</source>
        <translation>Il y a : %1.</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>Vouliez-vous dire %1 ?</translation>
    </message>
</context>
<context>
    <name>halvern::PreviewSide</name>
    <message>
        <source>Previous photo</source>
        <translation>Photo précédente</translation>
    </message>
    <message>
        <source>Next photo</source>
        <translation>Photo suivante</translation>
    </message>
    <message>
        <source>Reading the photo...</source>
        <translation>Lecture de la photo…</translation>
    </message>
    <message>
        <source>There is no photo to print.</source>
        <translation>Il n’y a pas de photo à imprimer.</translation>
    </message>
    <message>
        <source>No page is chosen.</source>
        <translation>Aucune page n’est choisie.</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <translation>%1, page %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>(front)</source>
        <translation>(recto)</translation>
    </message>
    <message>
        <source>(back)</source>
        <translation>(verso)</translation>
    </message>
    <message>
        <source>Show the photos in a row, or not</source>
        <translation>Afficher les photos en rangée, ou non</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Non imprimée</translation>
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
        <source>The printer&apos;s adjustments, approximated on the screen</source>
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
    <message>
        <source>Back</source>
        <translation>Dos</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recadrer</translation>
    </message>
    <message>
        <source>Choose the part of the photo that is printed (press C in the preview)</source>
        <translation>Choisir la partie de la photo à imprimer (touche C dans l’aperçu)</translation>
    </message>
    <message>
        <source>Show what is printed on the back of the picture</source>
        <translation>Montrer ce qui est imprimé au dos de la photo</translation>
    </message>
    <message>
        <source>The back of the picture, as the printer writes on it</source>
        <translation>Le dos de la photo, tel que l’imprimante l’écrit</translation>
    </message>
    <message>
        <source>the edges are cut away</source>
        <translation>les bords sont coupés</translation>
    </message>
    <message>
        <source>The picture reaches %1 mm beyond each edge of the paper, so that nothing stays white: what is marked along the edges is cut away</source>
        <translation>L’image dépasse chaque bord du papier de %1&#xa0;mm, pour que rien ne reste blanc&#xa0;: ce qui est marqué le long des bords est coupé</translation>
    </message>
</context>
<context>
    <name>halvern::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
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
        <source>The print server has no printers. Add one in the system&apos;s settings.</source>
        <translation>Le serveur d’impression n’a aucune imprimante. Ajoutez-en une dans les réglages du système.</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot;. Choose another one.</source>
        <translation>Le serveur d’impression n’a pas d’imprimante « %1 ». Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
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
        <translation>Pour convenir à ce que contient l’imprimante, ceci a été modifié : %1</translation>
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
        <source>Job %1 was sent to &quot;%2&quot;.</source>
        <translation>La tâche %1 a été envoyée à « %2 ».</translation>
    </message>
    <message>
        <source>Choose a printer and a paper size, look at the preview, and press Print. The list on the left of the options has the printer&apos;s own pages.</source>
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
    <message>
        <source>Search by name, place or model</source>
        <translation>Rechercher par nom, lieu ou modèle</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>1 option was put back to the printer&apos;s default.</source>
        <translation>1 option a été rétablie à la valeur par défaut de l’imprimante.</translation>
    </message>
    <message>
        <source>%1 options were put back to the printer&apos;s defaults.</source>
        <translation>%1 options ont été rétablies aux valeurs par défaut de l’imprimante.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was applied.</source>
        <translation>« %1 » a été appliqué.</translation>
    </message>
    <message>
        <source>Writing the file...</source>
        <translation>Écriture du fichier…</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>Préréglage :</translation>
    </message>
    <message>
        <source>An application</source>
        <translation>Une application</translation>
    </message>
    <message>
        <source>The document is printed as it came. Its pages cannot be shown here.</source>
        <translation>Le document est imprimé tel qu’il est arrivé. Ses pages ne peuvent pas être affichées ici.</translation>
    </message>
    <message>
        <source>Print - %1</source>
        <translation>Imprimer - %1</translation>
    </message>
    <message>
        <source>The application makes its pages afterwards, for this sheet.</source>
        <translation>L’application fait ses pages ensuite, pour cette feuille.</translation>
    </message>
    <message>
        <source>Sign &amp;In...</source>
        <translation>Conne&amp;xion…</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot; any more. It was last seen on %2. Is it switched on, and on this network?</source>
        <translation>Le serveur d’impression n’a plus d’imprimante « %1 ». Elle a été vue pour la dernière fois le %2. Est-elle allumée et sur ce réseau ?</translation>
    </message>
</context>
<context>
    <name>halvern::PrintRun</name>
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
        <source>Job %1 was sent to &quot;%2&quot;, but the print server has not answered for %3 seconds: whether it was printed is not known. Look at the printer before you print again.</source>
        <translation>La tâche %1 a été envoyée à « %2 », mais le serveur d’impression ne répond plus depuis %3 secondes : on ne sait pas si elle a été imprimée. Regardez l’imprimante avant de réimprimer.</translation>
    </message>
    <message>
        <source>The document cannot be read any more: %1. Print it once more.</source>
        <translation>Le document n’est plus lisible : %1. Imprimez-le encore une fois.</translation>
    </message>
    <message>
        <source>%1 photos went out in %2 jobs; the others were not sent. %3</source>
        <translation>%1 photos sont parties en %2 tâches ; les autres n’ont pas été envoyées. %3</translation>
    </message>
    <message>
        <source>%1 photos were printed in %2 jobs, %3 to %4.</source>
        <translation>%1 photos ont été imprimées en %2 tâches, de %3 à %4.</translation>
    </message>
    <message>
        <source>The computer is too busy to send it. Close something and try again.</source>
        <translation>L’ordinateur est trop occupé pour l’envoi. Fermez quelque chose et réessayez.</translation>
    </message>
    <message>
        <source>Cancelled. Jobs that were printed before: %1.</source>
        <translation>Annulé. Tâches déjà imprimées : %1.</translation>
    </message>
    <message>
        <source>Stopped. These jobs are on the queue &quot;%1&quot; and stay there: %2.</source>
        <translation>Arrêté. Ces tâches sont dans la file « %1 » et y restent : %2.</translation>
    </message>
    <message>
        <source>Look at the printer before you print again.</source>
        <translation>Regardez l’imprimante avant de réimprimer.</translation>
    </message>
    <message>
        <source>Cancelled. Sheets that were printed before: %1.</source>
        <translation>Annulé. Feuilles déjà imprimées : %1.</translation>
    </message>
</context>
<context>
    <name>halvern::PrintService</name>
    <message>
        <source>There is no session bus: %1.</source>
        <translation>Il n’y a pas de bus de session : %1.</translation>
    </message>
    <message>
        <source>Another halvern-print-portal runs in this session already.</source>
        <translation>Un autre halvern-print-portal tourne déjà dans cette session.</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterChoice</name>
    <message>
        <source>Your default printer &quot;%1&quot; is none of the print server&apos;s. &quot;%2&quot; was chosen instead.</source>
        <translation>Votre imprimante par défaut « %1 » n’est pas sur le serveur d’impression. « %2 » a été choisie à la place.</translation>
    </message>
    <message>
        <source>The application remembers a printer &quot;%1&quot; that is none of the print server&apos;s. &quot;%2&quot; was chosen instead.</source>
        <translation>L’application se souvient d’une imprimante « %1 » que le serveur d’impression n’a pas. « %2 » a été choisie à la place.</translation>
    </message>
    <message>
        <source>There is not enough memory for the options of &quot;%1&quot;. Close something, and choose the printer again.</source>
        <translation>La mémoire ne suffit pas pour les options de « %1 ». Fermez quelque chose et choisissez à nouveau l’imprimante.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server. Its options were read again.</source>
        <translation>« %1 » a été reconfigurée sur le serveur d’impression. Ses options ont été relues.</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterPage</name>
    <message>
        <source>State:</source>
        <translation>État :</translation>
    </message>
    <message>
        <source>What to do:</source>
        <translation>Que faire :</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>Depuis :</translation>
    </message>
    <message>
        <source>Jobs ahead:</source>
        <translation>Tâches en attente :</translation>
    </message>
    <message>
        <source>Printers in it:</source>
        <translation>Imprimantes incluses :</translation>
    </message>
    <message>
        <source>Supplies:</source>
        <translation>Consommables :</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>not on the print server</source>
        <translation>pas sur le serveur d’impression</translation>
    </message>
    <message>
        <source>Nothing is known of it yet.</source>
        <translation>On ne sait encore rien d’elle.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>The printer tells more of itself than can be shown here.</source>
        <translation>L’imprimante en dit plus sur elle-même qu’il n’est possible d’afficher ici.</translation>
    </message>
    <message>
        <source>The printer does not say what is left of its ink or toner.</source>
        <translation>L’imprimante ne dit pas ce qu’il lui reste d’encre ou de toner.</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterRows</name>
    <message>
        <source>Used last</source>
        <translation>Utilisées en dernier</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Trouvées sur le réseau</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
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
    <message>
        <source>✓ as shown</source>
        <translation>✓ comme affiché</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
</context>
<context>
    <name>halvern::SearchPopup</name>
    <message>
        <source>Nothing here is called &quot;%1&quot;.</source>
        <translation>Rien ici ne s’appelle « %1 ».</translation>
    </message>
</context>
<context>
    <name>halvern::SentJob</name>
    <message>
        <source>The document was not printed: the session ended before the print server had all of it. Print it once more.</source>
        <translation>Le document n’a pas été imprimé : la session s’est terminée avant que le serveur d’impression l’ait en entier. Imprimez-le encore une fois.</translation>
    </message>
    <message>
        <source>Sign in for it in the list of jobs: &quot;Jobs...&quot; in the print dialog.</source>
        <translation>Connectez-vous pour elle dans la liste des tâches : « Tâches… » dans le dialogue d’impression.</translation>
    </message>
</context>
<context>
    <name>halvern::SessionPresets</name>
    <message>
        <source>A saved setting was left out. %1</source>
        <translation>Un réglage enregistré a été ignoré. %1</translation>
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
        <source>Off: %1</source>
        <translation>Désactivé : %1</translation>
    </message>
    <message>
        <source>All other settings</source>
        <translation>Tous les autres réglages</translation>
    </message>
    <message>
        <source>The options as they are sent</source>
        <translation>Les options telles qu’elles sont envoyées</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Titre de la tâche</translation>
    </message>
    <message>
        <source>printer&apos;s default: %1</source>
        <translation>valeur par défaut de l’imprimante : %1</translation>
    </message>
    <message>
        <source>%1 more are in the list of all other settings.</source>
        <translation>La liste de tous les autres réglages en contient %1 de plus.</translation>
    </message>
</context>
<context>
    <name>halvern::SupplyBars</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>halvern::TrayRows</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
</TS>
