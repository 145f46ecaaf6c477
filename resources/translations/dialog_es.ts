<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>The display cannot be used: %1. Print with --no-dialog, or set DISPLAY to one that works.</source>
        <translation>La pantalla no se puede usar: %1. Imprima con --no-dialog o defina DISPLAY con una que funcione.</translation>
    </message>
    <message>
        <source>There is no display to show the dialog on. Print with --no-dialog, or set DISPLAY.</source>
        <translation>No hay pantalla para mostrar el diálogo. Imprima con --no-dialog o defina DISPLAY.</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impresión</translation>
    </message>
</context>
<context>
    <name>AuthInfo</name>
    <message>
        <source>The printer &quot;%1&quot; wants a name and a password, and was given none. Print again and sign in, or ask whoever looks after it.</source>
        <translation>La impresora «%1» pide un nombre y una contraseña y no los recibió. Imprima de nuevo e identifíquese, o pregunte a quien la administra.</translation>
    </message>
</context>
<context>
    <name>BackLines</name>
    <message>
        <source>Backprint line %1 cannot hold %2, which was left out. It takes the characters of an English keyboard except &quot;~&quot;, and &quot;©&quot;.</source>
        <translation>La línea %1 del dorso no puede contener %2, que se omitió. Admite los caracteres de un teclado inglés salvo «~», y «©».</translation>
    </message>
    <message>
        <source>Backprint line %1 is longer than %2 characters; what comes after them was left out (%3).</source>
        <translation>La línea %1 del dorso tiene más de %2 caracteres; se omitió lo que sigue (%3).</translation>
    </message>
</context>
<context>
    <name>Caption</name>
    <message>
        <source>File name</source>
        <translation>Nombre del archivo</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Fecha de captura</translation>
    </message>
    <message>
        <source>Year (4 digits)</source>
        <translation>Año (4 cifras)</translation>
    </message>
    <message>
        <source>Year (2 digits)</source>
        <translation>Año (2 cifras)</translation>
    </message>
    <message>
        <source>Month (2 digits)</source>
        <translation>Mes (2 cifras)</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Day (2 digits)</source>
        <translation>Día (2 cifras)</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
</context>
<context>
    <name>ColourManagement</name>
    <message>
        <source>Perceptual</source>
        <translation>Perceptual</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Colorimétrico relativo</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Colorimétrico absoluto</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The printer is told not to convert them again (%1).</source>
        <translation>Se indica a la impresora que no vuelva a convertirlos (%1).</translation>
    </message>
    <message>
        <source>No color profile of this printer is known. Choose one, or let the printer manage colors.</source>
        <translation>No se conoce ningún perfil de color de esta impresora. Elija uno o deje que la impresora gestione los colores.</translation>
    </message>
    <message>
        <source>colors for &quot;%1&quot;</source>
        <translation>colores para «%1»</translation>
    </message>
    <message>
        <source>The printer converts the colors: each photo goes to it in %1. No soft proof: only the printer knows what it makes of them.</source>
        <translation>La impresora convierte los colores: cada foto se le envía en %1. Sin prueba en pantalla: solo la impresora sabe qué hace con ellos.</translation>
    </message>
    <message>
        <source>This program converts the colors, from each photo&apos;s own to &quot;%1&quot;.</source>
        <translation>Este programa convierte los colores, de los propios de cada foto a «%1».</translation>
    </message>
    <message>
        <source>See that the printer&apos;s own color correction is off.</source>
        <translation>Compruebe que la corrección de color propia de la impresora esté desactivada.</translation>
    </message>
    <message>
        <source>Only the printer knows what it makes of the colors. Let this program manage them, for a profile, to see a soft proof.</source>
        <translation>Solo la impresora sabe qué hace con los colores. Deje que este programa los gestione, para un perfil, si quiere ver una prueba en pantalla.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say what its colors look like: with it there is no soft proof.</source>
        <translation>«%1» no indica qué aspecto tienen sus colores: con él no hay prueba en pantalla.</translation>
    </message>
    <message>
        <source>Soft proof with paper white</source>
        <translation>Prueba en pantalla con blanco del papel</translation>
    </message>
    <message>
        <source>Soft proof</source>
        <translation>Prueba en pantalla</translation>
    </message>
    <message>
        <source>pink cannot be printed</source>
        <translation>lo rosa no se puede imprimir</translation>
    </message>
    <message>
        <source>The color profile &quot;%1&quot; is being read. Wait a moment.</source>
        <translation>Se está leyendo el perfil de color «%1». Espere un momento.</translation>
    </message>
    <message>
        <source>The color profile &quot;%1&quot; cannot be read. Choose another one, or let the printer manage colors.</source>
        <translation>El perfil de color «%1» no se puede leer. Elija otro o deje que la impresora gestione los colores.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no color profile of a printer. Choose another one, or let the printer manage colors.</source>
        <translation>«%1» no es un perfil de color de impresora. Elija otro o deje que la impresora gestione los colores.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print photos of which a part is missing, too, without asking.</source>
        <translation>Imprimir también, sin preguntar, las fotos a las que les falta una parte.</translation>
    </message>
    <message>
        <source>Print on this queue.</source>
        <translation>Imprimir en esta cola.</translation>
    </message>
    <message>
        <source>Where no file is named, ask for photos in a window first.</source>
        <translation>Si no se indica ningún archivo, pedir primero las fotos en una ventana.</translation>
    </message>
    <message>
        <source>Set a printer option. Can be given several times.</source>
        <translation>Fijar una opción de la impresora. Puede repetirse.</translation>
    </message>
    <message>
        <source>Print this many copies, 1 to %1.</source>
        <translation>Imprimir este número de copias, de 1 a %1.</translation>
    </message>
    <message>
        <source>Print at once, and wait until the job has ended.</source>
        <translation>Imprimir enseguida y esperar a que termine el trabajo.</translation>
    </message>
    <message>
        <source>Write the options that would be sent, one KEY=VALUE a line, and send nothing.</source>
        <translation>Escribir las opciones que se enviarían, una KEY=VALUE por línea, y no enviar nada.</translation>
    </message>
    <message>
        <source>See &quot;halvern-print --help&quot;.</source>
        <translation>Véase «halvern-print --help».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no option: write KEY=VALUE, for example PageSize=A4.</source>
        <translation>«%1» no es una opción: escriba KEY=VALUE, por ejemplo PageSize=A4.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of copies: write a number from 1 to %2.</source>
        <translation>«%1» no es un número de copias: escriba un número de 1 a %2.</translation>
    </message>
    <message>
        <source>The queue&apos;s name is empty. &quot;lpstat -e&quot; lists the queues.</source>
        <translation>El nombre de la cola está vacío. «lpstat -e» muestra las colas.</translation>
    </message>
    <message>
        <source>Prints photos, with a preview and the printer&apos;s own pages of options.</source>
        <translation>Imprime fotos, con vista previa y las páginas de opciones propias de la impresora.</translation>
    </message>
    <message>
        <source>Print this text on the back of each picture. Can be given twice, for a first and a second line. A line holds 120 characters and placeholders such as [YYYY], which the printer replaces.</source>
        <translation>Imprimir este texto en el dorso de cada foto. Puede darse dos veces, para una primera y una segunda línea. Una línea admite 120 caracteres, incluidos marcadores como [YYYY], que la impresora sustituye.</translation>
    </message>
    <message>
        <source>The back of a picture takes %1 lines: give --backprint once or twice.</source>
        <translation>El dorso de una foto admite %1 líneas: indique --backprint una o dos veces.</translation>
    </message>
    <message>
        <source>Write what the printer has loaded, and how old that knowledge is.</source>
        <translation>Muestra qué papel tiene cargado la impresora y de cuándo es esa información.</translation>
    </message>
    <message>
        <source>With --list-papers: ask the printer first.</source>
        <translation>Con --list-papers: preguntar antes a la impresora.</translation>
    </message>
    <message>
        <source>--refresh goes with --list-papers.</source>
        <translation>--refresh se usa con --list-papers.</translation>
    </message>
    <message>
        <source>With --no-dialog: give a print server that goes silent after the job was sent this long; 60 seconds without it.</source>
        <translation>Con --no-dialog: esperar este tiempo a un servidor de impresión que enmudece tras enviar el trabajo; si no se indica, 60 segundos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time to wait: write a number of seconds from 1 to %2.</source>
        <translation>«%1» no es un tiempo de espera: escriba un número de segundos de 1 a %2.</translation>
    </message>
    <message>
        <source>Print these pages only, for example 1-3,7,12-.</source>
        <translation>Imprimir solo estas páginas, por ejemplo 1-3,7,12-.</translation>
    </message>
    <message>
        <source>Print the last page first.</source>
        <translation>Imprimir primero la última página.</translation>
    </message>
    <message>
        <source>Call the job this; without it, it is called like the first file.</source>
        <translation>Dar este nombre al trabajo; si no se indica, se llama como el primer archivo.</translation>
    </message>
    <message>
        <source>Write the pages, as they would be sent, into this PDF file, and send nothing.</source>
        <translation>Escribir las páginas, tal como se enviarían, en este archivo PDF y no enviar nada.</translation>
    </message>
    <message>
        <source>With --no-dialog: read the job back from the print server, and say what was added or changed.</source>
        <translation>Con --no-dialog: volver a leer el trabajo del servidor de impresión e indicar qué se añadió o cambió.</translation>
    </message>
    <message>
        <source>Start with this preset of the printer&apos;s. Without it the dialog starts with what you printed with last, and --no-dialog with your saved options.</source>
        <translation>Empezar con este preajuste de la impresora. Si no se indica, el diálogo empieza con lo último que usó para imprimir, y --no-dialog, con sus opciones guardadas.</translation>
    </message>
    <message>
        <source>Keep the queue&apos;s saved options, --preset and the options given here as a preset, and print nothing. Copies, pages and the text on the back are in it if they are given.</source>
        <translation>Guardar como preajuste las opciones guardadas de la cola, --preset y las opciones indicadas aquí, y no imprimir nada. Las copias, las páginas y el texto del dorso se incluyen si se indican.</translation>
    </message>
    <message>
        <source>Write the print server&apos;s queues, a line each.</source>
        <translation>Escribir las colas del servidor de impresión, una por línea.</translation>
    </message>
    <message>
        <source>Write the printer&apos;s options with their current and default value and their choices, a line each.</source>
        <translation>Escribir las opciones de la impresora con su valor actual, su valor predeterminado y los valores posibles, una por línea.</translation>
    </message>
    <message>
        <source>Write the names of the printer&apos;s presets, a line each.</source>
        <translation>Escribir los nombres de los preajustes de la impresora, uno por línea.</translation>
    </message>
    <message>
        <source>The name of the file to write is empty.</source>
        <translation>El nombre del archivo que se va a escribir está vacío.</translation>
    </message>
    <message>
        <source>--output writes a file, and does not go with --dry-run.</source>
        <translation>--output escribe un archivo y no se puede usar con --dry-run.</translation>
    </message>
    <message>
        <source>--verify goes with --no-dialog, and with nothing that sends no job.</source>
        <translation>--verify se usa con --no-dialog y no con opciones que no envían ningún trabajo.</translation>
    </message>
    <message>
        <source>--%1 prints no files: leave out the files and the options for printing.</source>
        <translation>--%1 no imprime archivos: quite los archivos y las opciones de impresión.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a preset that is always there. Choose another name.</source>
        <translation>«%1» es un preajuste que siempre existe. Elija otro nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a preset: write 1 to %2 characters.</source>
        <translation>«%1» no es un nombre de preajuste: escriba de 1 a %2 caracteres.</translation>
    </message>
    <message>
        <source>Turn the page: portrait or landscape; without it, as the photo.</source>
        <translation>Orientación de la página: portrait o landscape; si no se indica, como la foto.</translation>
    </message>
    <message>
        <source>Send several jobs in order, with at most this many photos each; without it, one job.</source>
        <translation>Enviar varios trabajos en orden, con esta cantidad de fotos como máximo en cada uno; si no se indica, un solo trabajo.</translation>
    </message>
    <message>
        <source>Show the dialog above another program&apos;s window: x11: and the window&apos;s number in hexadecimal digits.</source>
        <translation>Mostrar el diálogo sobre la ventana de otro programa: x11: y el número de la ventana en cifras hexadecimales.</translation>
    </message>
    <message>
        <source>When the dialog has closed, write what was chosen and what became of it to standard output, as JSON.</source>
        <translation>Cuando se haya cerrado el diálogo, escribir en la salida estándar, como JSON, qué se eligió y qué resultó.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of photos: write 1 or more.</source>
        <translation>«%1» no es un número de fotos: escriba 1 o más.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no orientation: write portrait or landscape.</source>
        <translation>«%1» no es una orientación: escriba portrait o landscape.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no place: write two numbers from 0 to 1, for example 0.5,0.5.</source>
        <translation>«%1» no es una posición: escriba dos números de 0 a 1, por ejemplo 0.5,0.5.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no window: write x11: and its number, for example x11:3c00007.</source>
        <translation>«%1» no indica ninguna ventana: escriba x11: y su número, por ejemplo x11:3c00007.</translation>
    </message>
    <message>
        <source>--parent and --result-json go with the dialog.</source>
        <translation>--parent y --result-json se usan con el diálogo.</translation>
    </message>
    <message>
        <source>%1 is one of the files to print. Write to another file with --output.</source>
        <translation>%1 es uno de los archivos que imprimir. Escriba en otro archivo con --output.</translation>
    </message>
    <message>
        <source>With --no-dialog: leave out files that cannot be read, or of which a part is missing, say which, and print the others.</source>
        <translation>Con --no-dialog: omitir los archivos que no se pueden leer o a los que les falta una parte, indicar cuáles e imprimir los demás.</translation>
    </message>
    <message>
        <source>Name at least one photo to print (JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF), or a folder of them.</source>
        <translation>Indique al menos una foto para imprimir (JPEG, PNG, TIFF, WebP, HEIF, AVIF o PDF) o una carpeta de fotos.</translation>
    </message>
    <message>
        <source>JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF files, or folders of them; each photo becomes a page. &quot;-&quot; is standard input, &quot;@NAME&quot; a text file with a file&apos;s name on each line.</source>
        <translation>Archivos JPEG, PNG, TIFF, WebP, HEIF, AVIF o PDF, o carpetas de ellos; cada foto es una página. «-» es la entrada estándar; «@NAME», un archivo de texto con un nombre de archivo por línea.</translation>
    </message>
    <message>
        <source>Standard input cannot be kept in a temporary file. Make room on the disk.</source>
        <translation>La entrada estándar no se puede guardar en un archivo temporal. Libere espacio en el disco.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no rendering intent: write perceptual, relative, saturation or absolute.</source>
        <translation>«%1» no es un propósito de representación: escriba perceptual, relative, saturation o absolute.</translation>
    </message>
    <message>
        <source>Use this print server; without it, CUPS_SERVER, client.conf or this computer&apos;s.</source>
        <translation>Usar este servidor de impresión; si no se indica, CUPS_SERVER, client.conf o el de este equipo.</translation>
    </message>
    <message>
        <source>Who converts the photos&apos; colors: printer, which is given sRGB, or dialog, for a color profile of the printer.</source>
        <translation>Quién convierte los colores de las fotos: printer (la impresora, que recibe sRGB) o dialog (el diálogo, para un perfil de color de la impresora).</translation>
    </message>
    <message>
        <source>Convert the colors for this ICC profile of the printer; without it, for the one that the printer comes with.</source>
        <translation>Convertir los colores para este perfil ICC de la impresora; si no se indica, para el que trae la impresora.</translation>
    </message>
    <message>
        <source>What becomes of colors that the printer cannot show: perceptual, relative, saturation or absolute; without it, perceptual.</source>
        <translation>Qué se hace con los colores que la impresora no puede reproducir: perceptual, relative, saturation o absolute; si no se indica, perceptual.</translation>
    </message>
    <message>
        <source>Convert the colors without black point compensation.</source>
        <translation>Convertir los colores sin compensación del punto negro.</translation>
    </message>
    <message>
        <source>With --list-printers, --list-options, --list-presets or --jobs: write JSON, with more details.</source>
        <translation>Con --list-printers, --list-options, --list-presets o --jobs: escribir JSON, con más detalles.</translation>
    </message>
    <message>
        <source>Write your jobs that have not ended, on the queue of --printer or on all, a line each.</source>
        <translation>Escribir sus trabajos sin terminar, en la cola de --printer o en todas, uno por línea.</translation>
    </message>
    <message>
        <source>With --jobs: those that have ended, too.</source>
        <translation>Con --jobs: también los terminados.</translation>
    </message>
    <message>
        <source>With --jobs: cancel this job.</source>
        <translation>Con --jobs: cancelar este trabajo.</translation>
    </message>
    <message>
        <source>With --jobs: hold this job.</source>
        <translation>Con --jobs: retener este trabajo.</translation>
    </message>
    <message>
        <source>With --jobs: let this held job go on.</source>
        <translation>Con --jobs: liberar este trabajo retenido.</translation>
    </message>
    <message>
        <source>With --jobs: print this job again, if the print server has kept its pages.</source>
        <translation>Con --jobs: imprimir de nuevo este trabajo, si el servidor de impresión ha conservado sus páginas.</translation>
    </message>
    <message>
        <source>With --jobs: give the printer the name and the password for which it holds this job.</source>
        <translation>Con --jobs: dar a la impresora el nombre y la contraseña por los que retiene este trabajo.</translation>
    </message>
    <message>
        <source>With --jobs: move this job to another queue; --to says which.</source>
        <translation>Con --jobs: mover este trabajo a otra cola; --to indica cuál.</translation>
    </message>
    <message>
        <source>With --jobs --move: the queue to move the job to.</source>
        <translation>Con --jobs --move: la cola a la que se mueve el trabajo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no print server: write its name or address, and a port where it is not 631, for example print.example.org:8631.</source>
        <translation>«%1» no es un servidor de impresión: escriba su nombre o dirección, y un puerto si no es el 631, por ejemplo print.example.org:8631.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; converts no colors: write printer or dialog.</source>
        <translation>«%1» no convierte colores: escriba printer o dialog.</translation>
    </message>
    <message>
        <source>--profile, --intent and --no-black-point go with --color-by dialog.</source>
        <translation>--profile, --intent y --no-black-point se usan con --color-by dialog.</translation>
    </message>
    <message>
        <source>--ended, --cancel, --hold, --release, --again, --sign-in, --move and --to go with --jobs.</source>
        <translation>--ended, --cancel, --hold, --release, --again, --sign-in, --move y --to se usan con --jobs.</translation>
    </message>
    <message>
        <source>Do one thing at a time: give one of --cancel, --hold, --release, --again and --sign-in, or --move and --to together.</source>
        <translation>Una cosa a la vez: indique --cancel, --hold, --release, --again o --sign-in, o bien --move y --to juntos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no job: write its number, as --jobs lists it.</source>
        <translation>«%1» no es un trabajo: escriba su número, tal como lo muestra --jobs.</translation>
    </message>
    <message>
        <source>--json goes with --list-printers, --list-options, --list-presets or --jobs.</source>
        <translation>--json se usa con --list-printers, --list-options, --list-presets o --jobs.</translation>
    </message>
    <message>
        <source>Where the spare room or the cut goes: 0,0 is left and top, 1,1 right and bottom. Can be given several times, for one photo after the other, as can the next three.</source>
        <translation>Posición de la foto donde sobra sitio o se recorta: 0,0 es arriba a la izquierda, 1,1 abajo a la derecha. Puede repetirse, para una foto tras otra, igual que las tres siguientes.</translation>
    </message>
    <message>
        <source>Print a part of the photo this much larger, 1 to %1.</source>
        <translation>Imprimir una parte de la foto ampliada tantas veces, de 1 a %1.</translation>
    </message>
    <message>
        <source>Turn the photo clockwise: 0, 90, 180 or 270 degrees.</source>
        <translation>Girar la foto en el sentido de las agujas del reloj: 0, 90, 180 o 270 grados.</translation>
    </message>
    <message>
        <source>Print the photo this often in each copy of the job, 1 to %1.</source>
        <translation>Imprimir la foto tantas veces en cada copia del trabajo, de 1 a %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no enlargement: write a number from 1 to %2.</source>
        <translation>«%1» no es una ampliación: escriba un número de 1 a %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no turn: write 0, 90, 180 or 270.</source>
        <translation>«%1» no es un giro: escriba 0, 90, 180 o 270.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no length: write millimeters from 0 to %2.</source>
        <translation>«%1» no es una longitud: escriba milímetros de 0 a %2.</translation>
    </message>
    <message>
        <source>Put several photos on a sheet: a layout&apos;s name, rows and columns such as 3x4, or a size such as 90x130mm.</source>
        <translation>Poner varias fotos en una hoja: el nombre de una disposición, filas y columnas, como 3x4, o un tamaño, como 90x130mm.</translation>
    </message>
    <message>
        <source>Write this under each photo. It holds placeholders: [F] file name, [T] title, [C] number, [DATE] date taken, [YYYY], [MM], [DD].</source>
        <translation>Escribir esto debajo de cada foto. Admite marcadores: [F] nombre del archivo, [T] título, [C] número, [DATE] fecha de captura, [YYYY], [MM], [DD].</translation>
    </message>
    <message>
        <source>Print each photo in this size, for example 100x150, 4x6in, or 50% of its own.</source>
        <translation>Imprimir cada foto en este tamaño, por ejemplo 100x150, 4x6in o 50% del suyo propio.</translation>
    </message>
    <message>
        <source>With --photo-size: so many millimeters from the sheet&apos;s left and top, for example 20,15.</source>
        <translation>Con --photo-size: a tantos milímetros de la izquierda y de arriba de la hoja, por ejemplo 20,15.</translation>
    </message>
    <message>
        <source>Leave so many millimeters free at the sheet&apos;s edges at least.</source>
        <translation>Dejar libres al menos tantos milímetros en los bordes de la hoja.</translation>
    </message>
    <message>
        <source>Leave a white border of so many millimeters around each photo.</source>
        <translation>Dejar un borde blanco de tantos milímetros alrededor de cada foto.</translation>
    </message>
    <message>
        <source>With --layout: each photo fills its own sheet.</source>
        <translation>Con --layout: cada foto llena su propia hoja.</translation>
    </message>
    <message>
        <source>The photos share sheets.</source>
        <translation>Las fotos comparten hojas.</translation>
    </message>
    <message>
        <source>Print marks that show where to cut.</source>
        <translation>Imprimir guías que muestran dónde cortar.</translation>
    </message>
    <message>
        <source>Print no such marks.</source>
        <translation>No imprimir esas guías.</translation>
    </message>
    <message>
        <source>Print a thin line around each photo.</source>
        <translation>Imprimir una línea fina alrededor de cada foto.</translation>
    </message>
    <message>
        <source>Print no such line.</source>
        <translation>No imprimir esa línea.</translation>
    </message>
    <message>
        <source>The caption is longer than %1 characters.</source>
        <translation>El pie de foto tiene más de %1 caracteres.</translation>
    </message>
    <message>
        <source>--%1 and --no-%1 do not go together.</source>
        <translation>--%1 y --no-%1 no se pueden usar juntos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size: write %2% to %3%.</source>
        <translation>«%1» no es un tamaño: escriba de %2% a %3%.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size: write millimeters such as 100x150, inches such as 4x6in, or 50%.</source>
        <translation>«%1» no es un tamaño: escriba milímetros, como 100x150, pulgadas, como 4x6in, o 50%.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no corner: write two lengths in millimeters, for example 20,15.</source>
        <translation>«%1» no es una esquina: escriba dos longitudes en milímetros, por ejemplo 20,15.</translation>
    </message>
    <message>
        <source>--corner goes with --photo-size and a width and a height.</source>
        <translation>--corner se usa con --photo-size y un ancho y un alto.</translation>
    </message>
    <message>
        <source>--photo-size with a width and a height does not go with --layout, which says how large the photos are. Leave one of them out.</source>
        <translation>--photo-size con un ancho y un alto no se puede combinar con --layout, que decide el tamaño de las fotos. Omita uno de los dos.</translation>
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
        <translation>Estado de salida:
  0  Impreso, o escrito lo que se pidió.
  1  Error; la salida de error estándar indica la causa.
  2  Uso incorrecto.
  3  El trabajo está en la cola y aún no había terminado.
  4  Cancelado: no se imprimió nada.
  5  El trabajo se envió, pero el servidor de impresión no dice cómo terminó.
  6  Con --verify: impreso, pero el servidor de impresión no lo tiene tal como se envió.
  7  Un servidor de impresión o una impresora pide un nombre y una contraseña, y no recibió los correctos.</translation>
    </message>
</context>
<context>
    <name>CupsSentences</name>
    <message>
        <source>The print server broke off the conversation. Try again; if it fails again, look into the print server&apos;s error log.</source>
        <translation>El servidor de impresión interrumpió la conversación. Inténtelo de nuevo; si vuelve a fallar, consulte el registro de errores del servidor de impresión.</translation>
    </message>
    <message>
        <source>The print server does not answer. Wait a moment and try again, or restart it.</source>
        <translation>El servidor de impresión no responde. Espere un momento e inténtelo de nuevo, o reinícielo.</translation>
    </message>
    <message>
        <source>The print server&apos;s answer does not end. Restart the print server, and try again.</source>
        <translation>La respuesta del servidor de impresión no termina. Reinicie el servidor de impresión e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The printer is not on the print server any more. Choose another one.</source>
        <translation>La impresora ya no está en el servidor de impresión. Elija otra.</translation>
    </message>
    <message>
        <source>The printer does not accept jobs at the moment. Choose another one, or let it accept jobs (cupsaccept).</source>
        <translation>La impresora no acepta trabajos por ahora. Elija otra o haga que los acepte (cupsaccept).</translation>
    </message>
    <message>
        <source>The print server does not allow you to do this. Ask whoever looks after it.</source>
        <translation>El servidor de impresión no se lo permite. Pregunte a quien lo administra.</translation>
    </message>
    <message>
        <source>The print server reports: %1</source>
        <translation>El servidor de impresión informa: %1</translation>
    </message>
    <message>
        <source>The print server at %1 cannot be reached. Start it, for example with &quot;systemctl start cups&quot;, and try again.</source>
        <translation>No se puede contactar con el servidor de impresión %1. Inícielo, por ejemplo con «systemctl start cups», e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The print server at %1 cannot be reached. Is its name right, is it switched on, and is this computer on its network?</source>
        <translation>No se puede contactar con el servidor de impresión %1. ¿Es correcto su nombre, está encendido y está este equipo en su red?</translation>
    </message>
    <message>
        <source>The print server at %1 wants to talk in secret only, and no encryption could be agreed upon with it. Ask whoever looks after it.</source>
        <translation>El servidor de impresión %1 solo acepta conexiones cifradas, y no se pudo acordar ningún cifrado con él. Pregunte a quien lo administra.</translation>
    </message>
    <message>
        <source>The certificate of the print server at %1 is not trusted, so nothing was sent to it. Try again to look at it once more, or ask whoever looks after the server.</source>
        <translation>El certificado del servidor de impresión %1 no es de confianza, así que no se le envió nada. Inténtelo de nuevo para volver a mirarlo, o pregunte a quien administra el servidor.</translation>
    </message>
    <message>
        <source>The print server at %1 wants a name and a password for this, and was given none. Try again and sign in, or ask whoever looks after it.</source>
        <translation>El servidor de impresión %1 pide para esto un nombre y una contraseña y no los recibió. Inténtelo de nuevo e identifíquese, o pregunte a quien lo administra.</translation>
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
        <translation>%1 × %2 pulg.</translation>
    </message>
</context>
<context>
    <name>DamageQuestion</name>
    <message>
        <source>Print damaged photos?</source>
        <translation>¿Imprimir las fotos dañadas?</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Y %1 más.</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>&amp;Omitirlas</translation>
    </message>
    <message>
        <source>&amp;Print All the Same</source>
        <translation>&amp;Imprimir de todos modos</translation>
    </message>
    <message>
        <source>Print without these files?</source>
        <translation>¿Imprimir sin estos archivos?</translation>
    </message>
    <message>
        <source>What is missing comes out gray, or smeared. Files that cannot be read are left out.</source>
        <translation>Lo que falta sale gris o emborronado. Los archivos que no se pueden leer se omiten.</translation>
    </message>
    <message>
        <source>Files that cannot be read are left out.</source>
        <translation>Los archivos que no se pueden leer se omiten.</translation>
    </message>
    <message>
        <source>&amp;Print the Others</source>
        <translation>&amp;Imprimir los demás</translation>
    </message>
</context>
<context>
    <name>DocumentKind</name>
    <message>
        <source>The application has sent an empty document. Print it once more from there.</source>
        <translation>La aplicación ha enviado un documento vacío. Imprímalo desde ella otra vez.</translation>
    </message>
    <message>
        <source>What the application has sent is no PDF, PostScript or picture. Export the document as a PDF file there, and print that.</source>
        <translation>Lo que ha enviado la aplicación no es PDF, PostScript ni una imagen. Exporte allí el documento como archivo PDF e imprímalo.</translation>
    </message>
    <message>
        <source>The document ends in the middle: the application has not sent all of it. Print it once more from there.</source>
        <translation>El documento está incompleto: la aplicación no lo ha enviado entero. Imprímalo desde ella otra vez.</translation>
    </message>
</context>
<context>
    <name>FrontEnd</name>
    <message>
        <source>&quot;halvern-print-portal --enable&quot; changes that for you.</source>
        <translation>«halvern-print-portal --enable» lo cambia por usted.</translation>
    </message>
    <message>
        <source>It takes the first by file name. An administrator can put this one before &quot;%1&quot;: ln -s tessarin.portal %2/00-tessarin.portal</source>
        <translation>Toma el primero por nombre de archivo. Un administrador puede poner este antes de «%1»: ln -s tessarin.portal %2/00-tessarin.portal</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>«%1» no se puede escribir: %2.</translation>
    </message>
    <message>
        <source>The portal reads that when it starts: log in again, or run &quot;systemctl --user restart xdg-desktop-portal&quot;.</source>
        <translation>El portal lo lee al iniciarse: vuelva a iniciar la sesión o ejecute «systemctl --user restart xdg-desktop-portal».</translation>
    </message>
    <message>
        <source>There is no portal on this computer: install xdg-desktop-portal.</source>
        <translation>No hay ningún portal en este equipo: instale xdg-desktop-portal.</translation>
    </message>
    <message>
        <source>The portal (%1) does not know this program: there is no tessarin.portal in %2. Install it there.</source>
        <translation>El portal (%1) no conoce este programa: no hay ningún tessarin.portal en %2. Instálelo allí.</translation>
    </message>
    <message>
        <source>The portal (%1) chooses this program for printing.</source>
        <translation>El portal (%1) elige este programa para imprimir.</translation>
    </message>
    <message>
        <source>The portal (%1) prints with nothing, as &quot;%2&quot; says. %3</source>
        <translation>El portal (%1) no imprime con ningún programa, como indica «%2». %3</translation>
    </message>
    <message>
        <source>The portal (%1) chooses &quot;%2&quot; for printing. %3</source>
        <translation>El portal (%1) elige «%2» para imprimir. %3</translation>
    </message>
    <message>
        <source>Written into &quot;%1&quot;.</source>
        <translation>Escrito en «%1».</translation>
    </message>
    <message>
        <source>There is no line of this program&apos;s in &quot;%1&quot;.</source>
        <translation>En «%1» no hay ninguna línea de este programa.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed.</source>
        <translation>«%1» no se puede eliminar.</translation>
    </message>
    <message>
        <source>Taken out of &quot;%1&quot;.</source>
        <translation>Quitado de «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>«%1» no se puede leer: %2.</translation>
    </message>
</context>
<context>
    <name>GivenOptions</name>
    <message>
        <source>The printer has no paper &quot;%1&quot;.</source>
        <translation>La impresora no tiene el papel «%1».</translation>
    </message>
    <message>
        <source>The printer has no &quot;sides=%1&quot;. Leave it out, or use the printer&apos;s own option for two-sided printing.</source>
        <translation>La impresora no tiene «sides=%1». Quítelo o use la opción propia de la impresora para imprimir a doble cara.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no way to scale. Write print-scaling=fit, fill or none.</source>
        <translation>«%1» no es un modo de escala. Escriba print-scaling=fit, fill o none.</translation>
    </message>
    <message>
        <source>&quot;%1=%2&quot; is not possible: the page is laid out before it is sent, one photo on each. Leave it out.</source>
        <translation>«%1=%2» no es posible: la página se compone antes de enviarla, con una foto en cada una. Quítelo.</translation>
    </message>
    <message>
        <source>The number of copies is no option of the printer. Give it with --copies.</source>
        <translation>El número de copias no es una opción de la impresora. Indíquelo con --copies.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is set by the printer&apos;s own options here. &quot;lpoptions -p QUEUE -l&quot; lists them.</source>
        <translation>«%1» se elige aquí con las opciones propias de la impresora. «lpoptions -p QUEUE -l» las muestra.</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>¿Quiso decir %1?</translation>
    </message>
    <message>
        <source>It has: %1 and %2 more.</source>
        <translation>Hay: %1 y %2 más.</translation>
    </message>
    <message>
        <source>It has: %1.</source>
        <translation>Hay: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no set of pages. Write page-set=all, odd or even.</source>
        <translation>«%1» no es una selección de páginas. Escriba page-set=all, odd o even.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no order of pages. Write outputorder=normal or reverse.</source>
        <translation>«%1» no es un orden de páginas. Escriba outputorder=normal o reverse.</translation>
    </message>
</context>
<context>
    <name>HandedOptions</name>
    <message>
        <source>The application&apos;s settings</source>
        <translation>Ajustes de la aplicación</translation>
    </message>
    <message>
        <source>Settings of %1</source>
        <translation>Ajustes de %1</translation>
    </message>
</context>
<context>
    <name>IppOptions</name>
    <message>
        <source>The value of %1 is too long to send: it has %2 bytes, and %3 are possible. Shorten it.</source>
        <translation>El valor de %1 es demasiado largo: tiene %2 bytes y caben %3. Acórtelo.</translation>
    </message>
</context>
<context>
    <name>IppWords</name>
    <message>
        <source>Paper size</source>
        <translation>Tamaño de papel</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Origen del papel</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>A doble cara</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Bandeja de salida</translation>
    </message>
    <message>
        <source>Best for</source>
        <translation>Optimizado para</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>Propósito de representación</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Borde largo</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Borde corto</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Blanco y negro</translation>
    </message>
    <message>
        <source>Automatic, black and white</source>
        <translation>Automático, blanco y negro</translation>
    </message>
    <message>
        <source>Black only</source>
        <translation>Solo negro</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Borrador</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Cara impresa arriba</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Cara impresa abajo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>Text and graphics</source>
        <translation>Texto y gráficos</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perceptual</translation>
    </message>
    <message>
        <source>Relative</source>
        <translation>Relativo</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Absolute</source>
        <translation>Absoluto</translation>
    </message>
</context>
<context>
    <name>JobActions</name>
    <message>
        <source>The print server does not let you cancel this job. Ask whoever looks after it.</source>
        <translation>El servidor de impresión no le permite cancelar este trabajo. Pregunte a quien lo administra.</translation>
    </message>
    <message>
        <source>The print server does not let you resume &quot;%1&quot;. Ask whoever looks after it; the job waits meanwhile.</source>
        <translation>El servidor de impresión no le permite reanudar «%1». Pregunte a quien lo administra; el trabajo espera mientras tanto.</translation>
    </message>
    <message>
        <source>The print server does not let you release the job. Ask whoever looks after it; the job waits meanwhile.</source>
        <translation>El servidor de impresión no le permite liberar el trabajo. Pregunte a quien lo administra; el trabajo espera mientras tanto.</translation>
    </message>
    <message>
        <source>The print server does not let you print the job again. Ask whoever looks after it.</source>
        <translation>El servidor de impresión no le permite imprimir de nuevo el trabajo. Pregunte a quien lo administra.</translation>
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
        <translation>el papel no alcanza para %1</translation>
    </message>
    <message>
        <source>roll %1</source>
        <translation>rollo de %1</translation>
    </message>
    <message>
        <source>%1 roll %2</source>
        <translation>rollo %1 de %2</translation>
    </message>
    <message>
        <source>sheet: %1</source>
        <translation>hoja: %1</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 in</source>
        <translation>%1 pulg.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>two-sided: %1</source>
        <translation>a doble cara: %1</translation>
    </message>
    <message>
        <source>pages %1 of %2</source>
        <translation>páginas %1 de %2</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 páginas</translation>
    </message>
    <message>
        <source>last page first</source>
        <translation>la última página primero</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 copia</translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation>%1 copias</translation>
    </message>
    <message>
        <source>not collated</source>
        <translation>sin intercalar</translation>
    </message>
    <message>
        <source>text on the back</source>
        <translation>texto en el dorso</translation>
    </message>
    <message>
        <source>with a banner page</source>
        <translation>con portada</translation>
    </message>
    <message>
        <source>held on the queue</source>
        <translation>retenido en la cola</translation>
    </message>
    <message>
        <source>%1 more settings changed</source>
        <translation>otros %1 ajustes cambiados</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
    <message>
        <source>%1 borderless</source>
        <translation>%1 sin bordes</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 fotos</translation>
    </message>
</context>
<context>
    <name>JobReadBack</name>
    <message>
        <source>The print server does not tell what it holds of job %1.</source>
        <translation>El servidor de impresión no comunica qué tiene del trabajo %1.</translation>
    </message>
    <message>
        <source>The print server holds job %1 exactly as it was sent.</source>
        <translation>El servidor de impresión tiene el trabajo %1 exactamente como se envió.</translation>
    </message>
    <message>
        <source>%1 instead of %2</source>
        <translation>%1 en lugar de %2</translation>
    </message>
    <message>
        <source>without %1</source>
        <translation>sin %1</translation>
    </message>
    <message>
        <source>Added to job %1 by the print server or the queue: %2.</source>
        <translation>Añadido al trabajo %1 por el servidor de impresión o la cola: %2.</translation>
    </message>
    <message>
        <source>Changed in job %1 by the print server: %2.</source>
        <translation>Cambiado en el trabajo %1 por el servidor de impresión: %2.</translation>
    </message>
</context>
<context>
    <name>JobStatus</name>
    <message>
        <source>Job %1 waits for &quot;%2&quot;%3.</source>
        <translation>El trabajo %1 espera a «%2»%3.</translation>
    </message>
    <message>
        <source>Job %1 is printing on &quot;%2&quot;%3.</source>
        <translation>El trabajo %1 se está imprimiendo en «%2»%3.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled on &quot;%2&quot;.</source>
        <translation>El trabajo %1 en «%2» fue cancelado.</translation>
    </message>
    <message>
        <source>Job %1 failed on &quot;%2&quot;%3. Print again; if it fails again, look into the print server&apos;s error log.</source>
        <translation>El trabajo %1 falló en «%2»%3. Imprima otra vez; si vuelve a fallar, consulte el registro de errores del servidor de impresión.</translation>
    </message>
    <message>
        <source>Printed: job %1 on &quot;%2&quot;.</source>
        <translation>Impreso: trabajo %1 en «%2».</translation>
    </message>
    <message>
        <source>Job %1 waits because &quot;%2&quot; is paused%3.</source>
        <translation>El trabajo %1 espera porque «%2» está en pausa%3.</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot; because it was asked to wait%3.</source>
        <translation>El trabajo %1 está retenido en «%2» porque se le pidió esperar%3.</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot;%3.</source>
        <translation>El trabajo %1 está retenido en «%2»%3.</translation>
    </message>
    <message>
        <source>Job %1 stopped on &quot;%2&quot;%3.</source>
        <translation>El trabajo %1 se detuvo en «%2»%3.</translation>
    </message>
    <message>
        <source>Job %1 has left the queue of &quot;%2&quot;. The print server keeps no record of how it ended.</source>
        <translation>El trabajo %1 ha salido de la cola de «%2». El servidor de impresión no guarda cómo terminó.</translation>
    </message>
    <message>
        <source>&quot;%2&quot; is not on the print server any more, and job %1 with it. Look at the printer before you print again.</source>
        <translation>«%2» ya no está en el servidor de impresión, ni el trabajo %1. Mire la impresora antes de volver a imprimir.</translation>
    </message>
    <message>
        <source>The print server does not answer. Job %1 was sent to &quot;%2&quot;, and may be printed.</source>
        <translation>El servidor de impresión no responde. El trabajo %1 se envió a «%2» y quizá se imprima.</translation>
    </message>
    <message>
        <source>See to the printer and resume it with &quot;cupsenable %2&quot;, or cancel the job with &quot;cancel %2-%1&quot;.</source>
        <translation>Revise la impresora y reanúdela con «cupsenable %2», o cancele el trabajo con «cancel %2-%1».</translation>
    </message>
    <message>
        <source>Release it with &quot;lp -i %1 -H resume&quot;, or cancel it with &quot;cancel %2-%1&quot;.</source>
        <translation>Libérelo con «lp -i %1 -H resume» o cancélelo con «cancel %2-%1».</translation>
    </message>
    <message>
        <source>Print it again with &quot;lp -i %1 -H restart&quot;, or cancel it with &quot;cancel %2-%1&quot;.</source>
        <translation>Imprímalo otra vez con «lp -i %1 -H restart» o cancélelo con «cancel %2-%1».</translation>
    </message>
    <message>
        <source>Job %1 is held on &quot;%2&quot;: the printer wants a name and a password%3.</source>
        <translation>El trabajo %1 está retenido en «%2»: la impresora pide un nombre y una contraseña%3.</translation>
    </message>
    <message>
        <source>Give them with &quot;halvern-print --jobs --sign-in %1&quot;, or cancel the job with &quot;cancel %2-%1&quot;.</source>
        <translation>Indíquelos con «halvern-print --jobs --sign-in %1» o cancele el trabajo con «cancel %2-%1».</translation>
    </message>
</context>
<context>
    <name>JobSubmitter</name>
    <message>
        <source> Job %1 may still be on the queue of &quot;%2&quot; without its pages: cancel it there before you print again.</source>
        <translation> Quizá el trabajo %1 siga en la cola de «%2» sin sus páginas: cancélelo allí antes de volver a imprimir.</translation>
    </message>
    <message>
        <source>The print server gave the job no number. Look into its error log.</source>
        <translation>El servidor de impresión no dio número al trabajo. Consulte su registro de errores.</translation>
    </message>
    <message>
        <source> A job without its pages may still be on the queue of &quot;%1&quot;: look there before you print again.</source>
        <translation> Puede que en la cola de «%1» siga un trabajo sin sus páginas: mire allí antes de volver a imprimir.</translation>
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
        <translation> pulg.</translation>
    </message>
</context>
<context>
    <name>Layouts</name>
    <message>
        <source>&quot;%1&quot; is no number from %2 to %3.</source>
        <translation>«%1» no es un número de %2 a %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>«%1» no es ni true ni false.</translation>
    </message>
    <message>
        <source>A measure is not written as %1 numbers from 0 to %2.</source>
        <translation>Una medida no está escrita como %1 números de 0 a %2.</translation>
    </message>
    <message>
        <source>A photo is not from %1 to %2 mm wide and high.</source>
        <translation>Una foto no mide de %1 a %2 mm de ancho y de alto.</translation>
    </message>
    <message>
        <source>&quot;kind&quot; is none of grid, size, cells and pack.</source>
        <translation>«kind» no es ninguno de grid, size, cells y pack.</translation>
    </message>
    <message>
        <source>&quot;cells&quot; does not hold 1 to %1 places.</source>
        <translation>«cells» no contiene de 1 a %1 lugares.</translation>
    </message>
    <message>
        <source>&quot;caption&quot; is longer than %1 characters.</source>
        <translation>«caption» tiene más de %1 caracteres.</translation>
    </message>
    <message>
        <source>&quot;scaling&quot; is neither fit nor fill.</source>
        <translation>«scaling» no es ni fit ni fill.</translation>
    </message>
    <message>
        <source>%1 rows of %2</source>
        <translation>%1 filas de %2</translation>
    </message>
    <message>
        <source>Photos of %1 × %2 %3</source>
        <translation>Fotos de %1 × %2 %3</translation>
    </message>
    <message>
        <source>It is no layout: &quot;schema&quot; is not &quot;%1&quot;.</source>
        <translation>No es una disposición: «schema» no es «%1».</translation>
    </message>
    <message>
        <source>It is of another version of this program.</source>
        <translation>Es de otra versión de este programa.</translation>
    </message>
    <message>
        <source>It has no &quot;name&quot;.</source>
        <translation>No tiene «name».</translation>
    </message>
    <message>
        <source>The layout takes %1 × %2 mm, and this paper has %3 × %4 mm to print on. Choose a larger paper, one without margins, or another layout.</source>
        <translation>La disposición ocupa %1 × %2 mm y en este papel se puede imprimir en %3 × %4 mm. Elija un papel más grande, uno sin márgenes u otra disposición.</translation>
    </message>
    <message>
        <source>So many photos would be smaller than %1 mm on this paper. Choose fewer rows or columns, or a larger paper.</source>
        <translation>Tantas fotos serían de menos de %1 mm en este papel. Elija menos filas o columnas, o un papel más grande.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Es demasiado grande.</translation>
    </message>
    <message>
        <source>It is no JSON object: %1.</source>
        <translation>No es un objeto JSON: %1.</translation>
    </message>
    <message>
        <source>There is another layout &quot;%1&quot;.</source>
        <translation>Hay otra disposición «%1».</translation>
    </message>
    <message>
        <source>The layout %1 was left out. %2</source>
        <translation>Se omitió la disposición %1. %2</translation>
    </message>
    <message>
        <source>There is no layout &quot;%1&quot;. There are: %2; and rows x columns, such as 3x4, and sizes, such as 90x130mm.</source>
        <translation>No hay ninguna disposición «%1». Hay: %2; además, filas x columnas, como 3x4, y tamaños, como 90x130mm.</translation>
    </message>
    <message>
        <source>Write a name with letters or numbers.</source>
        <translation>Escriba un nombre con letras o números.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a layout that is always there. Choose another name.</source>
        <translation>«%1» es una disposición que siempre existe. Elija otro nombre.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>The layout could not be kept in %1. %2</source>
        <translation>No se pudo guardar la disposición en %1. %2</translation>
    </message>
    <message>
        <source>Only layouts of your own can be deleted.</source>
        <translation>Solo se pueden eliminar las disposiciones propias.</translation>
    </message>
    <message>
        <source>%1 could not be deleted. %2</source>
        <translation>No se pudo eliminar %1. %2</translation>
    </message>
    <message>
        <source>Not every photo fits on this paper. Choose a smaller size.</source>
        <translation>No todas las fotos caben en este papel. Elija un tamaño más pequeño.</translation>
    </message>
    <message>
        <source>All photos are left out. Include at least one of them.</source>
        <translation>Todas las fotos están omitidas. Incluya al menos una.</translation>
    </message>
    <message>
        <source>The file %1 holds something else already. Choose another name, or take the file away.</source>
        <translation>El archivo %1 ya contiene otra cosa. Elija otro nombre o quite el archivo.</translation>
    </message>
    <message>
        <source>These are %1 photos on all sheets, and a job takes %2. Choose fewer photos, or fewer copies of each.</source>
        <translation>En todas las hojas serían %1 fotos, y un trabajo admite %2. Elija menos fotos o menos copias de cada una.</translation>
    </message>
    <message>
        <source>With margins of %1 mm nothing is left of this paper. Choose smaller margins, or a larger paper.</source>
        <translation>Con márgenes de %1 mm no queda nada de este papel. Elija márgenes más pequeños o un papel más grande.</translation>
    </message>
    <message>
        <source>A photo of %1 × %2 mm at %3, %4 mm is not all on what can be printed of this page: %5 × %6 mm at %7, %8 mm. Choose a smaller size, another place, or another paper.</source>
        <translation>Una foto de %1 × %2 mm en %3, %4 mm no queda entera en lo que se puede imprimir de esta página: %5 × %6 mm en %7, %8 mm. Elija un tamaño menor, otro lugar u otro papel.</translation>
    </message>
    <message>
        <source>There is one sheet only, and none with an even number. Choose all sheets, or more photos.</source>
        <translation>Solo hay una hoja, y ninguna con número par. Elija todas las hojas o más fotos.</translation>
    </message>
</context>
<context>
    <name>ListJobs</name>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>El trabajo %1 se canceló.</translation>
    </message>
    <message>
        <source>Job %1 is held.</source>
        <translation>El trabajo %1 está retenido.</translation>
    </message>
    <message>
        <source>Job %1 was released.</source>
        <translation>El trabajo %1 se liberó.</translation>
    </message>
    <message>
        <source>Job %1 is printed again.</source>
        <translation>El trabajo %1 se imprime de nuevo.</translation>
    </message>
    <message>
        <source>Job %1 has what the printer asks for.</source>
        <translation>El trabajo %1 tiene lo que pide la impresora.</translation>
    </message>
    <message>
        <source>Job %1 was moved to &quot;%2&quot;.</source>
        <translation>El trabajo %1 se movió a «%2».</translation>
    </message>
    <message>
        <source>You have no job %1 on the print server. --jobs --ended lists yours.</source>
        <translation>No tiene ningún trabajo %1 en el servidor de impresión. --jobs --ended muestra los suyos.</translation>
    </message>
    <message>
        <source>You have no jobs there.</source>
        <translation>No tiene ningún trabajo allí.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>You have no job %1 on &quot;%2&quot;. --jobs --ended lists yours.</source>
        <translation>No tiene ningún trabajo %1 en «%2». --jobs --ended muestra los suyos.</translation>
    </message>
</context>
<context>
    <name>ListPapers</name>
    <message>
        <source>The printer &quot;%1&quot; was asked, but has not reported its papers. Look into the print server&apos;s error log.</source>
        <translation>Se preguntó a la impresora «%1», pero no ha comunicado sus papeles. Consulte el registro de errores del servidor de impresión.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not report its papers: it has no Halvern driver.</source>
        <translation>La impresora «%1» no comunica sus papeles: no tiene un controlador de Halvern.</translation>
    </message>
    <message>
        <source>Asking &quot;%1&quot; ...</source>
        <translation>Preguntando a «%1»...</translation>
    </message>
    <message>
        <source>Waiting for &quot;%1&quot;%2 ...</source>
        <translation>Esperando a «%1»%2...</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is busy with another job. Ask again when that has ended.</source>
        <translation>La impresora «%1» está ocupada con otro trabajo. Vuelva a preguntar cuando haya terminado.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not work at the moment%2, and the question was taken back. Resume the printer (cupsenable) and ask again.</source>
        <translation>La impresora «%1» no funciona en este momento%2 y se ha retirado la consulta. Reanude la impresora (cupsenable) y vuelva a preguntar.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not answer%2. See to the printer and ask again.</source>
        <translation>La impresora «%1» no pudo responder%2. Revise la impresora y vuelva a preguntar.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not accept jobs and cannot be asked. Let it accept them (cupsaccept) and ask again.</source>
        <translation>La impresora «%1» no acepta trabajos y no se le puede preguntar. Permita que los acepte (cupsaccept) y vuelva a preguntar.</translation>
    </message>
    <message>
        <source>The print server refused the question to &quot;%1&quot;. Look into its error log.</source>
        <translation>El servidor de impresión rechazó la consulta a «%1». Consulte su registro de errores.</translation>
    </message>
    <message>
        <source>The list of papers that &quot;%1&quot; reported cannot be read (%2).</source>
        <translation>No se puede leer la lista de papeles que comunicó «%1» (%2).</translation>
    </message>
    <message>
        <source>No papers are loaded.</source>
        <translation>No hay papel cargado.</translation>
    </message>
    <message>
        <source>The printer has not said yet what is loaded.</source>
        <translation>La impresora aún no ha dicho qué tiene cargado.</translation>
    </message>
    <message>
        <source>Ask it with --refresh.</source>
        <translation>Pregúntele con --refresh.</translation>
    </message>
    <message>
        <source>The question to &quot;%1&quot; could not be processed%2 and was taken back. See to the printer, look into the print server&apos;s error log, and ask again.</source>
        <translation>La consulta a «%1» no se pudo procesar%2 y se ha retirado. Revise la impresora, consulte el registro de errores del servidor de impresión y vuelva a preguntar.</translation>
    </message>
    <message>
        <source>The question to &quot;%1&quot; was held%2 and has been cancelled. See to the printer and ask again.</source>
        <translation>La consulta a «%1» quedó retenida%2 y se ha cancelado. Revise la impresora y vuelva a preguntar.</translation>
    </message>
    <message>
        <source>The question to &quot;%1&quot; was cancelled. Ask again.</source>
        <translation>La consulta a «%1» se canceló. Vuelva a preguntar.</translation>
    </message>
    <message>
        <source>The print server does not answer; job %1 may still be on the queue (cancel %2-%1).</source>
        <translation>El servidor de impresión no responde; el trabajo %1 puede seguir en la cola (cancel %2-%1).</translation>
    </message>
    <message>
        <source>Look into the print server&apos;s error log, and ask again.</source>
        <translation>Consulte el registro de errores del servidor de impresión y vuelva a preguntar.</translation>
    </message>
</context>
<context>
    <name>Listings</name>
    <message>
        <source>%1 (default): %2 %3</source>
        <translation>%1 (predeterminada): %2 %3</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <translation>%1: %2 %3</translation>
    </message>
    <message>
        <source>The print server has no printers.</source>
        <translation>El servidor de impresión no tiene impresoras.</translation>
    </message>
    <message>
        <source>%1 (from your saved options)</source>
        <translation>%1 (de sus opciones guardadas)</translation>
    </message>
    <message>
        <source>Saved the preset &quot;%1&quot; of &quot;%2&quot;.</source>
        <translation>Se guardó el preajuste «%1» de «%2».</translation>
    </message>
    <message>
        <source>%1 (installed in the printer) &quot;%2&quot;: %3</source>
        <translation>%1 (instalado en la impresora) «%2»: %3</translation>
    </message>
    <message>
        <source>%1 (default not known) &quot;%2&quot;: %3</source>
        <translation>%1 (predeterminado: desconocido) «%2»: %3</translation>
    </message>
    <message>
        <source>%1 (default %2) &quot;%3&quot;: %4</source>
        <translation>%1 (predeterminado: %2) «%3»: %4</translation>
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
        <translation>La impresora «%1» se encontró en la red, pero el servidor de impresión no puede usarla: %2</translation>
    </message>
</context>
<context>
    <name>LoginWords</name>
    <message>
        <source>The print server at %1 wants to know who you are.</source>
        <translation>El servidor de impresión %1 quiere saber quién es usted.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; wants a name and a password of its own; the print server at %2 hands them on to it.</source>
        <translation>La impresora «%1» pide un nombre y una contraseña propios; el servidor de impresión %2 se los transmite.</translation>
    </message>
    <message>
        <source>That name or password was wrong.</source>
        <translation>Ese nombre o esa contraseña no eran correctos.</translation>
    </message>
    <message>
        <source>The connection to %1 is not encrypted: others could read the password on its way.</source>
        <translation>La conexión con %1 no está cifrada: otros podrían leer la contraseña por el camino.</translation>
    </message>
    <message>
        <source>It shows none.</source>
        <translation>No muestra ninguno.</translation>
    </message>
    <message>
        <source>It shows now: %1</source>
        <translation>Ahora muestra: %1</translation>
    </message>
    <message>
        <source>The print server at %1 cannot prove who it is, and was never seen before.</source>
        <translation>El servidor de impresión %1 no puede demostrar quién es y no se había visto nunca.</translation>
    </message>
    <message>
        <source>The print server at %1 has another certificate than before. It may have been renewed, or somebody else may be answering in its place.</source>
        <translation>El servidor de impresión %1 tiene otro certificado que antes. Puede que se haya renovado, o que otro esté respondiendo en su lugar.</translation>
    </message>
    <message>
        <source>It had: %1</source>
        <translation>Tenía: %1</translation>
    </message>
    <message>
        <source>The print server at %1 encrypted before, and does not any more. It may have been set up anew, or somebody else may be answering in its place. What you print there could be read on its way.</source>
        <translation>El servidor de impresión %1 cifraba antes y ya no lo hace. Puede que se haya configurado de nuevo, o que otro esté respondiendo en su lugar. Lo que imprima en él podría leerse por el camino.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>The output could not be written: %1.</source>
        <translation>No se pudo escribir la salida: %1.</translation>
    </message>
</context>
<context>
    <name>PageChoice</name>
    <message>
        <source>There is no page %1: there is one page only.</source>
        <translation>No existe la página %1: solo hay una página.</translation>
    </message>
    <message>
        <source>There is no page %1: the first page is 1.</source>
        <translation>No existe la página %1: la primera página es la 1.</translation>
    </message>
    <message>
        <source>There is no page %1: the pages are 1 to %2.</source>
        <translation>No existe la página %1: las páginas van de la 1 a la %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends before it begins. Write %2-%3.</source>
        <translation>«%1» termina antes de empezar. Escriba %2-%3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page. Write numbers and ranges, for example 1-3, 7, 12-.</source>
        <translation>«%1» no es una página. Escriba números e intervalos, por ejemplo 1-3, 7, 12-.</translation>
    </message>
    <message>
        <source>The chosen pages were left out because they cannot be read, or not whole. Choose others.</source>
        <translation>Las páginas elegidas se omitieron porque no se pueden leer, o no enteras. Elija otras.</translation>
    </message>
</context>
<context>
    <name>PageFit</name>
    <message>
        <source>The paper size &quot;%1&quot; is wider than the roll (%2).</source>
        <translation>El tamaño de papel «%1» es más ancho que el rollo (%2).</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is larger than the paper &quot;%2&quot;.</source>
        <translation>El tamaño de papel «%1» es mayor que el papel «%2».</translation>
    </message>
</context>
<context>
    <name>PageRenderer</name>
    <message>
        <source>The pages could not be written. Make room on the disk and try again.</source>
        <translation>Las páginas no se pudieron escribir. Libere espacio en el disco e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>PageStream</name>
    <message>
        <source>The computer is too busy to prepare the pages. Close something and try again.</source>
        <translation>El equipo está demasiado ocupado para preparar las páginas. Cierre algo e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>PaperSizes</name>
    <message>
        <source>For the loaded paper</source>
        <translation>Para el papel cargado</translation>
    </message>
    <message>
        <source>Used last</source>
        <translation>Usados recientemente</translation>
    </message>
    <message>
        <source>Your sizes</source>
        <translation>Sus tamaños</translation>
    </message>
    <message>
        <source>Photo sizes</source>
        <translation>Tamaños de foto</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rollo</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>US</source>
        <translation>EE. UU.</translation>
    </message>
    <message>
        <source>Other sizes</source>
        <translation>Otros tamaños</translation>
    </message>
</context>
<context>
    <name>PaperTable</name>
    <message>
        <source>just now</source>
        <translation>ahora mismo</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>hace %1 min</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>hace %1 h</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>hace %1 días</translation>
    </message>
    <message>
        <source>%1: last updated never</source>
        <translation>%1: nunca actualizado</translation>
    </message>
    <message>
        <source>%1: last updated %2 (%3)</source>
        <translation>%1: última actualización %2 (%3)</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rollo</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Hoja</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Superficie</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Tones</source>
        <translation>Tonos</translation>
    </message>
</context>
<context>
    <name>PhotoProblem</name>
    <message>
        <source>&quot;%1&quot; is damaged and cannot be read. Export it from your photo program again.</source>
        <translation>«%1» está dañado y no se puede leer. Expórtelo de nuevo desde su programa de fotos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: a part of the picture is missing. Copy it from the camera again, or export it again.</source>
        <translation>«%1» está dañado: falta una parte de la imagen. Vuelva a copiarlo de la cámara o a exportarlo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to print. Make a copy with fewer pixels and print that.</source>
        <translation>«%1» es demasiado grande para imprimirla. Imprima una copia con menos píxeles.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked with a password. Save a copy without one and print that.</source>
        <translation>«%1» está protegido con contraseña. Imprima una copia sin contraseña.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed meanwhile. Open it again.</source>
        <translation>«%1» ha cambiado mientras tanto. Ábralo de nuevo.</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;. Check its name.</source>
        <translation>No existe el archivo «%1». Compruebe el nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened. Check that you may read it.</source>
        <translation>«%1» no se puede abrir. Compruebe que tiene permiso de lectura.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Copy it from the camera again.</source>
        <translation>«%1» está vacío. Cópielo de nuevo desde la cámara.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture that can be printed. Use a JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF file.</source>
        <translation>«%1» no es una imagen imprimible. Use un archivo JPEG, PNG, TIFF, WebP, HEIF, AVIF o PDF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is camera RAW, which has to be developed before it can be printed. Export it as JPEG or TIFF from your photo program and print that.</source>
        <translation>«%1» es un archivo RAW de cámara, que hay que revelar antes de imprimirlo. Expórtelo como JPEG o TIFF desde su programa de fotos e imprima ese archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of a kind that cannot be read here. Export it as JPEG, or as TIFF with 8 or 16 bits, from your photo program and print that.</source>
        <translation>«%1» es de un tipo que aquí no se puede leer. Expórtelo como JPEG, o como TIFF de 8 o 16 bits, desde su programa de fotos e imprima ese archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; made the program that reads photos fail: it is damaged, or made to do harm. Export it from your photo program again.</source>
        <translation>«%1» hizo fallar el programa que lee las fotos: está dañado o hecho para causar daño. Expórtelo de nuevo desde su programa de fotos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read: it is damaged, or made to do harm. Export it from your photo program again.</source>
        <translation>«%1» tarda demasiado en leerse: está dañado o hecho para causar daño. Expórtelo de nuevo desde su programa de fotos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: the program that reads photos, halvern-decode, is not installed beside this one or cannot be started. Install the dialog again.</source>
        <translation>«%1» no se puede leer: el programa que lee las fotos, halvern-decode, no está instalado junto a este o no se puede iniciar. Reinstale el diálogo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder without photos. Name one that holds photos, or photos.</source>
        <translation>«%1» es una carpeta sin fotos. Indique una que contenga fotos, o fotos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an HDR picture, which is brighter than paper can be. Export it as JPEG without HDR from your photo program and print that.</source>
        <translation>«%1» es una imagen HDR, más luminosa de lo que puede ser el papel. Expórtela como JPEG sin HDR desde su programa de fotos e imprima ese archivo.</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>The printer&apos;s own pages (%1) offer nothing for this printer. You can print without them.</source>
        <translation>Las páginas propias de la impresora (%1) no ofrecen nada para esta. Puede imprimir sin ellas.</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the pages &quot;%1&quot;, which is no name of a bundle. You can print without them.</source>
        <translation>La descripción de la impresora pide las páginas «%1», que no es un nombre válido. Puede imprimir sin ellas.</translation>
    </message>
    <message>
        <source>The printer&apos;s own pages (%1) are not installed. You can print without them; install the printer&apos;s software to have them.</source>
        <translation>Las páginas propias de la impresora (%1) no están instaladas. Puede imprimir sin ellas; instale el software de la impresora para tenerlas.</translation>
    </message>
    <message>
        <source>The printer&apos;s own pages (%1) cannot be loaded: %2. You can print without them; install the printer&apos;s software again to have them.</source>
        <translation>Las páginas propias de la impresora (%1) no se pueden cargar: %2. Puede imprimir sin ellas; reinstale el software de la impresora para tenerlas.</translation>
    </message>
    <message>
        <source>they name no module</source>
        <translation>no indican ningún módulo</translation>
    </message>
    <message>
        <source>the module is of another kind</source>
        <translation>el módulo es de otro tipo</translation>
    </message>
    <message>
        <source>they belong to something else</source>
        <translation>pertenecen a otra cosa</translation>
    </message>
    <message>
        <source>%1 cannot be looked at</source>
        <translation>%1 no se puede examinar</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 pertenece a otro usuario</translation>
    </message>
    <message>
        <source>%1 can be changed by other users</source>
        <translation>%1 pueden cambiarlo otros usuarios</translation>
    </message>
</context>
<context>
    <name>PortalProgram</name>
    <message>
        <source>Say whether the desktop&apos;s portal would choose this program for printing, and if not, why.</source>
        <translation>Indicar si el portal del escritorio elegiría este programa para imprimir y, si no, por qué.</translation>
    </message>
    <message>
        <source>Have the desktop&apos;s portal choose this program for printing, by a line in your portals.conf.</source>
        <translation>Hacer que el portal del escritorio elija este programa para imprimir, con una línea en su portals.conf.</translation>
    </message>
    <message>
        <source>Take that line away again.</source>
        <translation>Quitar de nuevo esa línea.</translation>
    </message>
    <message>
        <source>Shows the print dialog for applications that print by the desktop&apos;s portal. The desktop starts it by itself.</source>
        <translation>Muestra el diálogo de impresión para las aplicaciones que imprimen a través del portal del escritorio. El escritorio lo inicia por sí mismo.</translation>
    </message>
    <message>
        <source>Wrong usage. See &quot;halvern-print-portal --help&quot;.</source>
        <translation>Uso incorrecto. Véase «halvern-print-portal --help».</translation>
    </message>
    <message>
        <source>There is no display to show the dialog on. Start this program in a desktop&apos;s session, or set DISPLAY.</source>
        <translation>No hay pantalla para mostrar el diálogo. Inicie este programa en una sesión de escritorio o defina DISPLAY.</translation>
    </message>
</context>
<context>
    <name>PpdLookup</name>
    <message>
        <source>%1 must be a number from %2 to %3.</source>
        <translation>%1 debe ser un número de %2 a %3.</translation>
    </message>
    <message>
        <source>%1 must have %2 to %3 characters.</source>
        <translation>%1 debe tener de %2 a %3 caracteres.</translation>
    </message>
</context>
<context>
    <name>PpdModel</name>
    <message>
        <source>An option without a name or a value cannot be set.</source>
        <translation>No se puede fijar una opción sin nombre o sin valor.</translation>
    </message>
    <message>
        <source>The printer has no page size &quot;%1&quot;. Choose one from the list.</source>
        <translation>La impresora no tiene el tamaño «%1». Elija uno de la lista.</translation>
    </message>
    <message>
        <source>The printer cannot take the page size &quot;%1&quot;. Choose one from the list.</source>
        <translation>La impresora no admite el tamaño «%1». Elija uno de la lista.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go together with &quot;%2&quot;. Change that first.</source>
        <translation>«%1» no es compatible con «%2». Cambie eso primero.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is part of the printer&apos;s equipment, and is set by whoever installed the printer.</source>
        <translation>«%1» forma parte del equipo de la impresora y lo establece quien la instaló.</translation>
    </message>
    <message>
        <source>The printer&apos;s equipment does not allow &quot;%1&quot;: whoever installed the printer has set &quot;%2&quot;.</source>
        <translation>El equipo de la impresora no permite «%1»: quien la instaló estableció «%2».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no choice &quot;%2&quot;.</source>
        <translation>«%1» no tiene la opción «%2».</translation>
    </message>
    <message>
        <source>The printer has no option &quot;%1&quot;.</source>
        <translation>La impresora no tiene la opción «%1».</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Tamaño de papel</translation>
    </message>
    <message>
        <source>The printer&apos;s own defaults do not go together with what is chosen elsewhere. Put the options back one by one.</source>
        <translation>Los valores predeterminados de la impresora no son compatibles con lo elegido en otros lugares. Restablezca las opciones una por una.</translation>
    </message>
    <message>
        <source>not with what the printer has loaded</source>
        <translation>no con lo que la impresora tiene cargado</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>no con %1</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 in</source>
        <translation>%1 pulg.</translation>
    </message>
    <message>
        <source>A job carries one choice of &quot;%1&quot;, and not &quot;%2&quot; together. Take one away before you choose another.</source>
        <translation>Un trabajo lleva un solo valor de «%1», y no «%2» juntos. Quite uno antes de elegir otro.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>It holds no presets of this program.</source>
        <translation>No contiene preajustes de este programa.</translation>
    </message>
    <message>
        <source>It was written by a newer version of this program.</source>
        <translation>Lo escribió una versión más reciente de este programa.</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>Valores de la impresora</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Última impresión</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Es demasiado grande.</translation>
    </message>
    <message>
        <source>There are %1 presets already. Delete one first.</source>
        <translation>Ya hay %1 preajustes. Elimine uno primero.</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; is not there any more.</source>
        <translation>El preajuste «%1» ya no existe.</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; cannot be read, and %2 cannot be moved away. %3</source>
        <translation>Los preajustes de «%1» no se pueden leer, y %2 no se puede apartar. %3</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; could not be read, and begin anew. What was there is in %2. %3</source>
        <translation>Los preajustes de «%1» no se pudieron leer y se empieza de nuevo. Lo que había está en %2. %3</translation>
    </message>
    <message>
        <source>The presets in %1 cannot be used. %2</source>
        <translation>Los preajustes de %1 no se pueden usar. %2</translation>
    </message>
    <message>
        <source>Some presets in %1 cannot be read and are left alone.</source>
        <translation>Algunos preajustes de %1 no se pueden leer y se dejan como están.</translation>
    </message>
    <message>
        <source>The presets of &quot;%1&quot; could not be written to %2. %3</source>
        <translation>Los preajustes de «%1» no se pudieron escribir en %2. %3</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>No se puede crear la carpeta.</translation>
    </message>
    <message>
        <source>Another program holds the lock %1.</source>
        <translation>Otro programa tiene el bloqueo %1.</translation>
    </message>
    <message>
        <source>It would be too large.</source>
        <translation>Sería demasiado grande.</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already. Choose another name.</source>
        <translation>Ya hay un preajuste «%1». Elija otro nombre.</translation>
    </message>
    <message>
        <source>No presets were read from %1. %2</source>
        <translation>No se leyó ningún preajuste de %1. %2</translation>
    </message>
    <message>
        <source>There is none in it that can be read.</source>
        <translation>No hay en él ninguno que se pueda leer.</translation>
    </message>
    <message>
        <source>Some presets in %1 cannot be read and were left out.</source>
        <translation>Algunos preajustes de %1 no se pueden leer y se omitieron.</translation>
    </message>
    <message>
        <source>The presets could not be written to %1. %2</source>
        <translation>Los preajustes no se pudieron escribir en %1. %2</translation>
    </message>
    <message>
        <source>The printer has no option &quot;%1&quot;.</source>
        <translation>La impresora no tiene la opción «%1».</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Y %1 más.</translation>
    </message>
    <message>
        <source>Not all of &quot;%1&quot; can be had now.</source>
        <translation>No todo lo de «%1» está disponible ahora.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the presets.</source>
        <translation>No hay memoria suficiente para leer los preajustes.</translation>
    </message>
</context>
<context>
    <name>PrintRun</name>
    <message>
        <source>less than a minute left</source>
        <translation>queda menos de un minuto</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>quedan unos %1 minutos</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>quedan unas %1 horas</translation>
    </message>
    <message>
        <source>Sending the photo...</source>
        <translation>Enviando la foto...</translation>
    </message>
    <message>
        <source>Paused: %1 of %2 photos are sent.</source>
        <translation>En pausa: se han enviado %1 de %2 fotos.</translation>
    </message>
    <message>
        <source>Sending photo %1 of %2</source>
        <translation>Enviando la foto %1 de %2</translation>
    </message>
</context>
<context>
    <name>PrinterActions</name>
    <message>
        <source>&amp;Resume</source>
        <translation>Rea&amp;nudar</translation>
    </message>
    <message>
        <source>&amp;Accept Jobs</source>
        <translation>Aceptar traba&amp;jos</translation>
    </message>
    <message>
        <source>Re&amp;lease</source>
        <translation>&amp;Liberar</translation>
    </message>
    <message>
        <source>The print server does not let you do that with &quot;%1&quot;. Ask whoever looks after it.</source>
        <translation>El servidor de impresión no le permite hacer eso con «%1». Pregunte a quien lo administra.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Ready</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Does not accept jobs</source>
        <translation>No acepta trabajos</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Encontrada en la red</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Requiere atención</translation>
    </message>
    <message>
        <source>The print server has no printers. Add one, for example with lpadmin.</source>
        <translation>El servidor de impresión no tiene impresoras. Añada una, por ejemplo con lpadmin.</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot;. It has: %2.</source>
        <translation>El servidor de impresión no tiene la impresora «%1». Tiene: %2.</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot;. It has: %2, and %3 more (lpstat -e).</source>
        <translation>El servidor de impresión no tiene la impresora «%1». Tiene: %2 y %3 más (lpstat -e).</translation>
    </message>
    <message>
        <source>The print server has no default printer. Name one with --printer.</source>
        <translation>El servidor de impresión no tiene impresora predeterminada. Indique una con --printer.</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>La impresora no responde</translation>
    </message>
</context>
<context>
    <name>PrinterReport</name>
    <message>
        <source>The printer&apos;s answer about itself is too long to be true, and was not read.</source>
        <translation>La respuesta de la impresora sobre sí misma es demasiado larga para ser cierta y no se leyó.</translation>
    </message>
    <message>
        <source>The printer does not tell strangers what is in it.</source>
        <translation>La impresora no dice a desconocidos lo que contiene.</translation>
    </message>
    <message>
        <source>The printer does not answer. Is it switched on, and in this network?</source>
        <translation>La impresora no responde. ¿Está encendida y en esta red?</translation>
    </message>
    <message>
        <source>The printer does not say what is in it.</source>
        <translation>La impresora no dice lo que contiene.</translation>
    </message>
</context>
<context>
    <name>QueuePpd</name>
    <message>
        <source>The description of the printer &quot;%1&quot; is damaged: %2. Install its driver again, or choose another printer.</source>
        <translation>La descripción de la impresora «%1» está dañada: %2. Reinstale su controlador o elija otra impresora.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no description on the print server, and does not tell by itself what it can do. Install it with a driver, or choose another printer.</source>
        <translation>La impresora «%1» no tiene descripción en el servidor y no indica por sí misma lo que puede hacer. Instálela con un controlador o elija otra.</translation>
    </message>
</context>
<context>
    <name>RefilledTray</name>
    <message>
        <source>&quot;%1&quot; has other paper now.</source>
        <translation>«%1» tiene ahora otro papel.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has other paper now, and the page follows: %2.</source>
        <translation>«%1» tiene ahora otro papel y la página lo sigue: %2.</translation>
    </message>
    <message>
        <source>Its kind, %1, could not be chosen: the paper type is still &quot;%2&quot;.</source>
        <translation>Su clase, %1, no se ha podido elegir: el tipo de papel sigue siendo «%2».</translation>
    </message>
</context>
<context>
    <name>ReviewSwitch</name>
    <message>
        <source>Re&amp;view before printing</source>
        <translation>Revi&amp;sar antes de imprimir</translation>
    </message>
    <message>
        <source>Shows the pages as the application has made them, before they go to the printer</source>
        <translation>Muestra las páginas tal como las hizo la aplicación, antes de que vayan a la impresora</translation>
    </message>
</context>
<context>
    <name>SecretStore</name>
    <message>
        <source>Printing on %1</source>
        <translation>Impresión en %1</translation>
    </message>
</context>
<context>
    <name>ServerCertificate</name>
    <message>
        <source>a certificate whose file cannot be read any more</source>
        <translation>un certificado cuyo archivo ya no se puede leer</translation>
    </message>
</context>
<context>
    <name>SheetWords</name>
    <message>
        <source>1 sheet</source>
        <translation>1 hoja</translation>
    </message>
    <message>
        <source>%1 sheets</source>
        <translation>%1 hojas</translation>
    </message>
    <message>
        <source>photos in %1 × %2 mm</source>
        <translation>fotos de %1 × %2 mm</translation>
    </message>
    <message>
        <source>with captions</source>
        <translation>con pies de foto</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>con guías de corte</translation>
    </message>
    <message>
        <source>white border %1 mm</source>
        <translation>borde blanco de %1 mm</translation>
    </message>
    <message>
        <source>Sheet %1: %2, %3 x %4 mm at %5, %6 mm</source>
        <translation>Hoja %1: %2, %3 x %4 mm en %5, %6 mm</translation>
    </message>
</context>
<context>
    <name>StartingOptions</name>
    <message>
        <source>The printer &quot;%1&quot; prints no text on the back of a picture. Leave --backprint out, or choose another printer.</source>
        <translation>La impresora «%1» no imprime texto en el dorso de las fotos. Quite --backprint o elija otra impresora.</translation>
    </message>
</context>
<context>
    <name>StateReasons</name>
    <message>
        <source>out of paper</source>
        <translation>sin papel</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>queda poco papel</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>atasco de papel</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>hay una puerta abierta</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>la tapa está abierta</translation>
    </message>
    <message>
        <source>not connected or switched off</source>
        <translation>desconectada o apagada</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>conectando</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pausa</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>pausando</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>apagada</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>queda poco tóner</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>sin tóner</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>queda poca tinta</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>sin tinta</translation>
    </message>
    <message>
        <source>the waste tank is nearly full</source>
        <translation>el depósito de residuos está casi lleno</translation>
    </message>
    <message>
        <source>the waste tank is full</source>
        <translation>el depósito de residuos está lleno</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>la bandeja de salida está llena</translation>
    </message>
    <message>
        <source>does not answer</source>
        <translation>no responde</translation>
    </message>
    <message>
        <source>its driver is not installed</source>
        <translation>su controlador no está instalado</translation>
    </message>
    <message>
        <source>its driver is not installed safely</source>
        <translation>su controlador no está instalado de forma segura</translation>
    </message>
    <message>
        <source>needs attention</source>
        <translation>necesita atención</translation>
    </message>
    <message>
        <source>Load paper.</source>
        <translation>Cargue papel.</translation>
    </message>
    <message>
        <source>Load the paper that the job wants.</source>
        <translation>Cargue el papel que pide el trabajo.</translation>
    </message>
    <message>
        <source>Load paper soon.</source>
        <translation>Cargue papel pronto.</translation>
    </message>
    <message>
        <source>Take the jammed paper out.</source>
        <translation>Saque el papel atascado.</translation>
    </message>
    <message>
        <source>a paper tray is missing</source>
        <translation>falta una bandeja de papel</translation>
    </message>
    <message>
        <source>Push the paper tray in.</source>
        <translation>Introduzca la bandeja de papel.</translation>
    </message>
    <message>
        <source>the output tray is missing</source>
        <translation>falta la bandeja de salida</translation>
    </message>
    <message>
        <source>Put the output tray in.</source>
        <translation>Coloque la bandeja de salida.</translation>
    </message>
    <message>
        <source>Empty the output tray.</source>
        <translation>Vacíe la bandeja de salida.</translation>
    </message>
    <message>
        <source>the output tray is nearly full</source>
        <translation>la bandeja de salida está casi llena</translation>
    </message>
    <message>
        <source>Empty the output tray soon.</source>
        <translation>Vacíe pronto la bandeja de salida.</translation>
    </message>
    <message>
        <source>Close the printer&apos;s door; the job goes on then.</source>
        <translation>Cierre la puerta de la impresora; el trabajo continuará.</translation>
    </message>
    <message>
        <source>Close the cover; the job goes on then.</source>
        <translation>Cierre la tapa; el trabajo continuará.</translation>
    </message>
    <message>
        <source>something is open</source>
        <translation>hay algo abierto</translation>
    </message>
    <message>
        <source>Close what is open; the job goes on then.</source>
        <translation>Cierre lo que esté abierto; el trabajo continuará.</translation>
    </message>
    <message>
        <source>Switch the printer on and look at its cable or network.</source>
        <translation>Encienda la impresora y compruebe su cable o su red.</translation>
    </message>
    <message>
        <source>Resume it, or ask whoever has paused it.</source>
        <translation>Reanúdela o pregunte a quien la ha pausado.</translation>
    </message>
    <message>
        <source>holds new jobs</source>
        <translation>retiene los trabajos nuevos</translation>
    </message>
    <message>
        <source>Release it, and new jobs are printed.</source>
        <translation>Libérela y se imprimirán los trabajos nuevos.</translation>
    </message>
    <message>
        <source>Switch the printer on.</source>
        <translation>Encienda la impresora.</translation>
    </message>
    <message>
        <source>Have new toner at hand.</source>
        <translation>Tenga a mano tóner nuevo.</translation>
    </message>
    <message>
        <source>Put new toner in.</source>
        <translation>Ponga tóner nuevo.</translation>
    </message>
    <message>
        <source>Have new ink at hand.</source>
        <translation>Tenga a mano tinta nueva.</translation>
    </message>
    <message>
        <source>Put new ink in.</source>
        <translation>Ponga tinta nueva.</translation>
    </message>
    <message>
        <source>an ink cartridge is missing</source>
        <translation>falta un cartucho de tinta</translation>
    </message>
    <message>
        <source>Put the missing cartridge in.</source>
        <translation>Ponga el cartucho que falta.</translation>
    </message>
    <message>
        <source>Have a new waste tank at hand.</source>
        <translation>Tenga a mano un depósito de residuos nuevo.</translation>
    </message>
    <message>
        <source>Put a new waste tank in.</source>
        <translation>Ponga un depósito de residuos nuevo.</translation>
    </message>
    <message>
        <source>too hot</source>
        <translation>demasiado caliente</translation>
    </message>
    <message>
        <source>Let the printer cool down.</source>
        <translation>Deje que la impresora se enfríe.</translation>
    </message>
    <message>
        <source>warming up</source>
        <translation>calentando</translation>
    </message>
    <message>
        <source>the drum is nearly worn out</source>
        <translation>el tambor está casi gastado</translation>
    </message>
    <message>
        <source>Have a new drum at hand.</source>
        <translation>Tenga a mano un tambor nuevo.</translation>
    </message>
    <message>
        <source>the drum is worn out</source>
        <translation>el tambor está gastado</translation>
    </message>
    <message>
        <source>Put a new drum in.</source>
        <translation>Ponga un tambor nuevo.</translation>
    </message>
    <message>
        <source>developer is low</source>
        <translation>queda poco revelador</translation>
    </message>
    <message>
        <source>Have new developer at hand.</source>
        <translation>Tenga a mano revelador nuevo.</translation>
    </message>
    <message>
        <source>out of developer</source>
        <translation>sin revelador</translation>
    </message>
    <message>
        <source>Put new developer in.</source>
        <translation>Ponga revelador nuevo.</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>limpiando</translation>
    </message>
    <message>
        <source>no room for more jobs</source>
        <translation>no hay sitio para más trabajos</translation>
    </message>
    <message>
        <source>Wait until jobs are printed, or cancel some.</source>
        <translation>Espere a que se impriman trabajos o cancele algunos.</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>deteniéndose</translation>
    </message>
    <message>
        <source>Install the printer&apos;s driver.</source>
        <translation>Instale el controlador de la impresora.</translation>
    </message>
    <message>
        <source>Install the printer&apos;s driver anew.</source>
        <translation>Reinstale el controlador de la impresora.</translation>
    </message>
    <message>
        <source>Look at the printer&apos;s own display.</source>
        <translation>Mire la pantalla de la propia impresora.</translation>
    </message>
</context>
<context>
    <name>Stepper</name>
    <message>
        <source>Increase</source>
        <translation>Aumentar</translation>
    </message>
    <message>
        <source>Decrease</source>
        <translation>Reducir</translation>
    </message>
</context>
<context>
    <name>Supply</name>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Photo black</source>
        <translation>Negro foto</translation>
    </message>
    <message>
        <source>Matte black</source>
        <translation>Negro mate</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Gris claro</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>Cian claro</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>Magenta claro</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Waste tank</source>
        <translation>Depósito de residuos</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinta</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Consumible</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>full</source>
        <translation>lleno</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, nearly full</source>
        <translation>%1, casi lleno</translation>
    </message>
    <message>
        <source>%1 full</source>
        <translation>%1 lleno</translation>
    </message>
    <message>
        <source>%1, low</source>
        <translation>%1, queda poco</translation>
    </message>
    <message>
        <source>%1 is full</source>
        <translation>%1: lleno</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1: vacío</translation>
    </message>
    <message>
        <source>%1 is nearly full (%2)</source>
        <translation>%1: casi lleno (%2)</translation>
    </message>
    <message>
        <source>%1 is low (%2)</source>
        <translation>%1: queda poco (%2)</translation>
    </message>
</context>
<context>
    <name>TerminalQuestions</name>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>Send it all the same? [y/N]</source>
        <translation>¿Enviar de todos modos? [sí/N]</translation>
    </message>
    <message>
        <source>Name [%1]:</source>
        <translation>Nombre [%1]:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Trust it from now on? [y/N]</source>
        <translation>¿Confiar a partir de ahora? [sí/N]</translation>
    </message>
</context>
<context>
    <name>TrayWords</name>
    <message>
        <source>Main tray</source>
        <translation>Bandeja principal</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Bandeja fotográfica</translation>
    </message>
    <message>
        <source>Second tray</source>
        <translation>Segunda bandeja</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Bandeja superior</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Bandeja central</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Bandeja inferior</translation>
    </message>
    <message>
        <source>Rear feed</source>
        <translation>Alimentación trasera</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Bandeja lateral</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Alimentación manual</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>Bandeja auxiliar</translation>
    </message>
    <message>
        <source>Large tray</source>
        <translation>Bandeja de gran capacidad</translation>
    </message>
    <message>
        <source>Envelope feed</source>
        <translation>Alimentación de sobres</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Bandeja de discos</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rollo</translation>
    </message>
    <message>
        <source>Second roll</source>
        <translation>Segundo rollo</translation>
    </message>
    <message>
        <source>Plain paper</source>
        <translation>Papel normal</translation>
    </message>
    <message>
        <source>Thin paper</source>
        <translation>Papel fino</translation>
    </message>
    <message>
        <source>Heavy paper</source>
        <translation>Papel grueso</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Papel para inyección de tinta</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>Papel estucado</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Papel con membrete</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Papel de calidad</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Papel fotográfico</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Papel fotográfico brillante</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Papel fotográfico de alto brillo</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Papel fotográfico semibrillante</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Papel fotográfico satinado</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Papel fotográfico mate</translation>
    </message>
    <message>
        <source>Photo film</source>
        <translation>Película fotográfica</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Cartulina</translation>
    </message>
    <message>
        <source>Envelopes</source>
        <translation>Sobres</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Transparencies</source>
        <translation>Transparencias</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Discos</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Bandeja %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rollo %1</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Bandeja</translation>
    </message>
</context>
<context>
    <name>TraysInWords</name>
    <message>
        <source>%1 mm wide</source>
        <translation>%1 mm de ancho</translation>
    </message>
    <message>
        <source>%1 in wide</source>
        <translation>%1 pulg. de ancho</translation>
    </message>
    <message>
        <source>not loaded: needs %1 in the tray</source>
        <translation>no está cargado: necesita %1 en la bandeja</translation>
    </message>
    <message>
        <source>not loaded: needs %1 in &quot;%2&quot;</source>
        <translation>no está cargado: necesita %1 en «%2»</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is not in &quot;%2&quot;, but in &quot;%3&quot;.</source>
        <translation>El tamaño de papel «%1» no está en «%2», sino en «%3».</translation>
    </message>
    <message>
        <source>The paper size &quot;%1&quot; is not loaded. There is &quot;%2&quot; in &quot;%3&quot;.</source>
        <translation>El tamaño de papel «%1» no está cargado. En «%3» hay «%2».</translation>
    </message>
    <message>
        <source>The paper type is &quot;%1&quot;, but in &quot;%2&quot; there is &quot;%3&quot;.</source>
        <translation>El tipo de papel es «%1», pero en «%2» hay «%3».</translation>
    </message>
</context>
<context>
    <name>UserJobs</name>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Waiting: the printer is paused</source>
        <translation>En espera: la impresora está en pausa</translation>
    </message>
    <message>
        <source>Held: the printer wants a name and a password</source>
        <translation>Retenido: la impresora pide un nombre y una contraseña</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>Retenido</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Impreso</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>The print server does not let you cancel job %1. Ask whoever looks after it.</source>
        <translation>El servidor de impresión no le permite cancelar el trabajo %1. Pregunte a quien lo administra.</translation>
    </message>
    <message>
        <source>The print server does not let you hold job %1. Ask whoever looks after it.</source>
        <translation>El servidor de impresión no le permite retener el trabajo %1. Pregunte a quien lo administra.</translation>
    </message>
    <message>
        <source>The print server does not let you release job %1. Ask whoever looks after it.</source>
        <translation>El servidor de impresión no le permite liberar el trabajo %1. Pregunte a quien lo administra.</translation>
    </message>
    <message>
        <source>The print server does not let you print job %1 again. Ask whoever looks after it.</source>
        <translation>El servidor de impresión no le permite imprimir de nuevo el trabajo %1. Pregunte a quien lo administra.</translation>
    </message>
    <message>
        <source>The print server does not let you sign in for job %1. Ask whoever looks after it.</source>
        <translation>El servidor de impresión no le permite identificarse para el trabajo %1. Pregunte a quien lo administra.</translation>
    </message>
    <message>
        <source>The print server does not let you move job %1 to another printer. Ask whoever looks after it.</source>
        <translation>El servidor de impresión no le permite mover el trabajo %1 a otra impresora. Pregunte a quien lo administra.</translation>
    </message>
    <message>
        <source>Job %1 or the printer &quot;%2&quot; is not on the print server any more.</source>
        <translation>El trabajo %1 o la impresora «%2» ya no está en el servidor de impresión.</translation>
    </message>
    <message>
        <source>Job %1 is not on the print server any more.</source>
        <translation>El trabajo %1 ya no está en el servidor de impresión.</translation>
    </message>
    <message>
        <source>That cannot be done with job %1 as it is now: it may have gone on or ended, or the print server has not kept its pages.</source>
        <translation>Eso no se puede hacer con el trabajo %1 tal como está: puede que haya continuado o terminado, o que el servidor de impresión no haya conservado sus páginas.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>halvern::AccessDialogs</name>
    <message>
        <source>Trust this print server?</source>
        <translation>¿Confiar en este servidor de impresión?</translation>
    </message>
    <message>
        <source>&amp;Trust It from Now On</source>
        <translation>&amp;Confiar a partir de ahora</translation>
    </message>
</context>
<context>
    <name>halvern::BatchPrint</name>
    <message>
        <source>With --print-damaged it is printed all the same.</source>
        <translation>Con --print-damaged se imprime de todos modos.</translation>
    </message>
    <message>
        <source>Changed to fit: %1=%2</source>
        <translation>Adaptado: %1=%2</translation>
    </message>
    <message>
        <source>Cancelled: nothing was printed.</source>
        <translation>Cancelado: no se imprimió nada.</translation>
    </message>
    <message>
        <source>Job %1 stays on the queue; &quot;cancel %2-%1&quot; takes it away.</source>
        <translation>El trabajo %1 sigue en la cola; «cancel %2-%1» lo quita.</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Aviso: %1</translation>
    </message>
    <message>
        <source>With &quot;-o PageSize=%1&quot; it fits.</source>
        <translation>Con «-o PageSize=%1» cabe.</translation>
    </message>
    <message>
        <source>With --skip-broken the others are printed.</source>
        <translation>Con --skip-broken se imprimen los demás.</translation>
    </message>
    <message>
        <source>None of the files can be printed.</source>
        <translation>No se puede imprimir ninguno de los archivos.</translation>
    </message>
    <message>
        <source>Stopped, but the print server does not answer: a part of the job may still be on the queue &quot;%1&quot;. Look at it before you print again.</source>
        <translation>Detenido, pero el servidor de impresión no responde: puede que una parte del trabajo siga en la cola «%1». Mírela antes de volver a imprimir.</translation>
    </message>
</context>
<context>
    <name>halvern::CaptionRow</name>
    <message>
        <source>None; for example [C]  [F]</source>
        <translation>Ninguno; por ejemplo [C]  [F]</translation>
    </message>
    <message>
        <source>Caption under each photo</source>
        <translation>Pie debajo de cada foto</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Marcador</translation>
    </message>
    <message>
        <source>I&amp;nsert</source>
        <translation>I&amp;nsertar</translation>
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
        <translation>Compensar el punto negro</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>Propósito de representación</translation>
    </message>
    <message>
        <source>The photo&apos;s darkest tone becomes the paper&apos;s darkest</source>
        <translation>El tono más oscuro de la foto pasa a ser el más oscuro del papel</translation>
    </message>
    <message>
        <source>The printer&apos;s own: none is known</source>
        <translation>Perfil de la impresora: no se conoce ninguno</translation>
    </message>
    <message>
        <source>The printer&apos;s own: %1</source>
        <translation>Perfil de la impresora: %1</translation>
    </message>
    <message>
        <source>Another file...</source>
        <translation>Otro archivo...</translation>
    </message>
    <message>
        <source>Soft proof</source>
        <translation>Prueba en pantalla</translation>
    </message>
    <message>
        <source>Paper white</source>
        <translation>Blanco del papel</translation>
    </message>
    <message>
        <source>Gamut warning</source>
        <translation>Aviso de gama</translation>
    </message>
    <message>
        <source>The printer manages colors</source>
        <translation>La impresora gestiona los colores</translation>
    </message>
    <message>
        <source>This program manages colors</source>
        <translation>Este programa gestiona los colores</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Color profile</source>
        <translation>Perfil de color</translation>
    </message>
    <message>
        <source>What becomes of colors that the printer cannot show</source>
        <translation>Qué se hace con los colores que la impresora no puede reproducir</translation>
    </message>
    <message>
        <source>The preview shows the paper&apos;s own white and the deepest black on it</source>
        <translation>La vista previa muestra el blanco del papel y el negro más profundo sobre él</translation>
    </message>
    <message>
        <source>The preview paints over in pink what the printer cannot show</source>
        <translation>La vista previa cubre de rosa lo que la impresora no puede reproducir</translation>
    </message>
    <message>
        <source>The preview shows what the photo will look like on paper</source>
        <translation>La vista previa muestra cómo se verá la foto en papel</translation>
    </message>
    <message>
        <source>Choose a Color Profile</source>
        <translation>Elegir un perfil de color</translation>
    </message>
    <message>
        <source>Color profiles (*.icc *.icm *.ICC *.ICM);;All files (*)</source>
        <translation>Perfiles de color (*.icc *.icm *.ICC *.ICM);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>halvern::CropEditor</name>
    <message>
        <source>%1 pixels per inch: it will look soft</source>
        <translation>%1 píxeles por pulgada: se verá borrosa</translation>
    </message>
    <message>
        <source>%1 pixels per inch</source>
        <translation>%1 píxeles por pulgada</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centrar</translation>
    </message>
    <message>
        <source>Put the frame in the middle (C)</source>
        <translation>Poner el marco en el centro (C)</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Turn the photo clockwise (R)</source>
        <translation>Girar la foto en el sentido de las agujas del reloj (R)</translation>
    </message>
    <message>
        <source>As Large As Can Be</source>
        <translation>Lo más grande posible</translation>
    </message>
    <message>
        <source>Show as much of the photo as can be (0)</source>
        <translation>Mostrar la mayor parte posible de la foto (0)</translation>
    </message>
    <message>
        <source>Same for All</source>
        <translation>Igual para todas</translation>
    </message>
    <message>
        <source>Crop and turn all photos like this one</source>
        <translation>Recortar y girar todas las fotos como esta</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Back to the sheet (Esc)</source>
        <translation>Volver a la hoja (Esc)</translation>
    </message>
    <message>
        <source>%1 % of the photo</source>
        <translation>%1 % de la foto</translation>
    </message>
</context>
<context>
    <name>halvern::CustomField</name>
    <message>
        <source>Other value...</source>
        <translation>Otro valor...</translation>
    </message>
    <message>
        <source>%1: other value</source>
        <translation>%1: otro valor</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>pulg.</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
</context>
<context>
    <name>halvern::CustomPaperRow</name>
    <message>
        <source>Width of the paper</source>
        <translation>Ancho del papel</translation>
    </message>
    <message>
        <source>Height of the paper</source>
        <translation>Altura del papel</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>Co&amp;nservar</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>pulg.</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>Unidad de longitud</translation>
    </message>
    <message>
        <source>Name, to find it again</source>
        <translation>Nombre, para volver a encontrarlo</translation>
    </message>
    <message>
        <source>Name of this paper size</source>
        <translation>Nombre de este tamaño de papel</translation>
    </message>
    <message>
        <source>From %1 to %2 %3</source>
        <translation>De %1 a %2 %3</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>Ol&amp;vidar</translation>
    </message>
    <message>
        <source>As &amp;Long as the Photo</source>
        <translation>Tan &amp;largo como la foto</translation>
    </message>
    <message>
        <source>As &amp;High as the Photo</source>
        <translation>Tan a&amp;lto como la foto</translation>
    </message>
</context>
<context>
    <name>halvern::DialogSession</name>
    <message>
        <source>No printer is chosen. Choose one from the list.</source>
        <translation>No hay ninguna impresora elegida. Elija una de la lista.</translation>
    </message>
    <message>
        <source>Nothing is known of the printer &quot;%1&quot; yet. Wait for it, or choose another one.</source>
        <translation>Aún no se sabe nada de la impresora «%1». Espérela o elija otra.</translation>
    </message>
    <message>
        <source>The photos are still being read. Wait a moment.</source>
        <translation>Aún se están leyendo las fotos. Espere un momento.</translation>
    </message>
    <message>
        <source>There is no photo to print. Open the dialog with one.</source>
        <translation>No hay ninguna foto que imprimir. Abra el diálogo con una.</translation>
    </message>
    <message>
        <source>All photos are left out. Include at least one of them.</source>
        <translation>Todas las fotos están omitidas. Incluya al menos una.</translation>
    </message>
    <message>
        <source>All photos are cropped and turned like &quot;%1&quot; now.</source>
        <translation>Ahora todas las fotos están recortadas y giradas como «%1».</translation>
    </message>
    <message>
        <source>1 photo was moved.</source>
        <translation>Se movió 1 foto.</translation>
    </message>
    <message>
        <source>%1 photos were moved.</source>
        <translation>Se movieron %1 fotos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was taken out.</source>
        <translation>Se quitó «%1».</translation>
    </message>
    <message>
        <source>%1 photos were taken out.</source>
        <translation>Se quitaron %1 fotos.</translation>
    </message>
    <message>
        <source>All photos are printed now.</source>
        <translation>Ahora se imprimen todas las fotos.</translation>
    </message>
    <message>
        <source>%1 of %2 photos are printed now.</source>
        <translation>Ahora se imprimen %1 de %2 fotos.</translation>
    </message>
    <message>
        <source>The layout was changed.</source>
        <translation>Se cambió la disposición.</translation>
    </message>
    <message>
        <source>The photo&apos;s size or place was changed.</source>
        <translation>Se cambió el tamaño o el lugar de la foto.</translation>
    </message>
</context>
<context>
    <name>halvern::DocumentSpool</name>
    <message>
        <source>The document cannot be read: %1. Print it once more from its application.</source>
        <translation>El documento no se puede leer: %1. Imprímalo otra vez desde su aplicación.</translation>
    </message>
    <message>
        <source>There is no room for the document: %1. Make room on the disk, and print it once more.</source>
        <translation>No hay espacio para el documento: %1. Libere espacio en el disco e imprímalo otra vez.</translation>
    </message>
    <message>
        <source>No file can be made for the document in &quot;%1&quot;. Make sure that you may write there, and print it once more.</source>
        <translation>No se puede crear un archivo para el documento en «%1». Compruebe que tiene permiso de escritura allí e imprímalo otra vez.</translation>
    </message>
    <message>
        <source>The application has gone before its document was whole. Print it once more.</source>
        <translation>La aplicación se cerró antes de que su documento llegara entero. Imprímalo otra vez.</translation>
    </message>
    <message>
        <source>The computer is too busy to take the document. Close something, and print it once more.</source>
        <translation>El equipo está demasiado ocupado para recibir el documento. Cierre algo e imprímalo otra vez.</translation>
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
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Page of the help</source>
        <translation>Página de la ayuda</translation>
    </message>
    <message>
        <source>Search the help (%1)</source>
        <translation>Buscar en la ayuda (%1)</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Buscar en la ayuda</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 encontrados</translation>
    </message>
    <message>
        <source>Help - %1</source>
        <translation>Ayuda - %1</translation>
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
        <translation>%1, en %2</translation>
    </message>
</context>
<context>
    <name>halvern::JobPage</name>
    <message>
        <source>At once</source>
        <translation>Enseguida</translation>
    </message>
    <message>
        <source>When somebody releases it</source>
        <translation>Cuando alguien lo libere</translation>
    </message>
    <message>
        <source>By day, from 6:00</source>
        <translation>De día, desde las 6:00</translation>
    </message>
    <message>
        <source>In the evening, from 18:00</source>
        <translation>Por la tarde, desde las 18:00</translation>
    </message>
    <message>
        <source>At night, from 18:00</source>
        <translation>Por la noche, desde las 18:00</translation>
    </message>
    <message>
        <source>In the second shift, from 16:00</source>
        <translation>En el segundo turno, desde las 16:00</translation>
    </message>
    <message>
        <source>In the third shift, from 0:00</source>
        <translation>En el tercer turno, desde las 0:00</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>En fin de semana</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>No clasificado</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidencial</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Clasificado</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secreto</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Alto secreto</translation>
    </message>
    <message>
        <source>1 waits longest, 100 goes first</source>
        <translation>1 espera más tiempo, 100 va primero</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>Pr&amp;iority:</source>
        <translation>Pr&amp;ioridad:</translation>
    </message>
    <message>
        <source>Print &amp;when:</source>
        <translation>Imprimir c&amp;uándo:</translation>
    </message>
    <message>
        <source>Page &amp;before:</source>
        <translation>Página a&amp;ntes:</translation>
    </message>
    <message>
        <source>Page &amp;after:</source>
        <translation>Página d&amp;espués:</translation>
    </message>
    <message>
        <source>Print when</source>
        <translation>Cuándo imprimir</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>At a time of day</source>
        <translation>A una hora determinada</translation>
    </message>
    <message>
        <source>Pages before and after the job are decided on the page &quot;%1&quot;.</source>
        <translation>Las páginas antes y después del trabajo se eligen en la página «%1».</translation>
    </message>
</context>
<context>
    <name>halvern::JobRows</name>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
</context>
<context>
    <name>halvern::JobsButton</name>
    <message>
        <source>Jobs...</source>
        <translation>Trabajos...</translation>
    </message>
    <message>
        <source>Your jobs on this printer</source>
        <translation>Sus trabajos en esta impresora</translation>
    </message>
</context>
<context>
    <name>halvern::JobsWindow</name>
    <message>
        <source>Show jobs that have ended</source>
        <translation>Mostrar los trabajos terminados</translation>
    </message>
    <message>
        <source>Your Jobs on %1</source>
        <translation>Sus trabajos en %1</translation>
    </message>
    <message>
        <source>Your jobs</source>
        <translation>Sus trabajos</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancelar trabajo</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retener</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Liberar</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>Imprimir de nuevo</translation>
    </message>
    <message>
        <source>Sign In...</source>
        <translation>Identificarse...</translation>
    </message>
    <message>
        <source>Move To</source>
        <translation>Mover a</translation>
    </message>
    <message>
        <source>Asking the print server...</source>
        <translation>Preguntando al servidor de impresión...</translation>
    </message>
    <message>
        <source>You have no jobs on this printer.</source>
        <translation>No tiene trabajos en esta impresora.</translation>
    </message>
    <message>
        <source>The print server has no other printer</source>
        <translation>El servidor de impresión no tiene otra impresora</translation>
    </message>
</context>
<context>
    <name>halvern::KeepLayoutRow</name>
    <message>
        <source>&amp;Keep</source>
        <translation>Conser&amp;var</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Olvidar</translation>
    </message>
    <message>
        <source>Name, to find it again</source>
        <translation>Nombre, para volver a encontrarla</translation>
    </message>
    <message>
        <source>Name of the layout</source>
        <translation>Nombre de la disposición</translation>
    </message>
</context>
<context>
    <name>halvern::LayoutPage</name>
    <message>
        <source>Rows</source>
        <translation>Filas</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Width of each photo</source>
        <translation>Ancho de cada foto</translation>
    </message>
    <message>
        <source>Height of each photo</source>
        <translation>Alto de cada foto</translation>
    </message>
    <message>
        <source>&amp;Each photo fills its own sheet</source>
        <translation>&amp;Cada foto llena su propia hoja</translation>
    </message>
    <message>
        <source>Margin of the sheet</source>
        <translation>Margen de la hoja</translation>
    </message>
    <message>
        <source>White border</source>
        <translation>Borde blanco</translation>
    </message>
    <message>
        <source>Thin l&amp;ine</source>
        <translation>Línea &amp;fina</translation>
    </message>
    <message>
        <source>Copies of this photo</source>
        <translation>Copias de esta foto</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>Recortar...</translation>
    </message>
    <message>
        <source>Same Crop for All</source>
        <translation>Mismo recorte para todas</translation>
    </message>
    <message>
        <source>&amp;Layout:</source>
        <translation>Di&amp;sposición:</translation>
    </message>
    <message>
        <source>Photo si&amp;ze:</source>
        <translation>&amp;Tamaño de la foto:</translation>
    </message>
    <message>
        <source>Pl&amp;ace:</source>
        <translation>&amp;Lugar:</translation>
    </message>
    <message>
        <source>&amp;Margin:</source>
        <translation>&amp;Margen:</translation>
    </message>
    <message>
        <source>White &amp;border:</source>
        <translation>Borde &amp;blanco:</translation>
    </message>
    <message>
        <source>&amp;Caption:</source>
        <translation>Pi&amp;e de foto:</translation>
    </message>
    <message>
        <source>T&amp;his photo:</source>
        <translation>Est&amp;a foto:</translation>
    </message>
    <message>
        <source>As my la&amp;yout:</source>
        <translation>Como m&amp;i disposición:</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposición</translation>
    </message>
    <message>
        <source>rows of</source>
        <translation>filas de</translation>
    </message>
    <message>
        <source> copies</source>
        <translation> copias</translation>
    </message>
    <message>
        <source>One photo on each page</source>
        <translation>Una foto en cada página</translation>
    </message>
    <message>
        <source>Rows and columns</source>
        <translation>Filas y columnas</translation>
    </message>
    <message>
        <source>Photos of one size</source>
        <translation>Fotos de un mismo tamaño</translation>
    </message>
    <message>
        <source>Make the page %1 mm long, as the photos need</source>
        <translation>Hacer la página de %1 mm de largo, como necesitan las fotos</translation>
    </message>
    <message>
        <source> copy</source>
        <translation> copia</translation>
    </message>
    <message>
        <source>Cu&amp;t marks</source>
        <translation>G&amp;uías de corte</translation>
    </message>
</context>
<context>
    <name>halvern::LoginDialog</name>
    <message>
        <source>Send it &amp;all the same</source>
        <translation>&amp;Enviar de todos modos</translation>
    </message>
    <message>
        <source>&amp;Remember it in the keyring</source>
        <translation>&amp;Recordar en el llavero</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Identificarse</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>C&amp;ontraseña:</translation>
    </message>
    <message>
        <source>&amp;Sign In</source>
        <translation>&amp;Identificarse</translation>
    </message>
</context>
<context>
    <name>halvern::MessageBar</name>
    <message>
        <source>Close the message</source>
        <translation>Cerrar el mensaje</translation>
    </message>
    <message>
        <source>Previous message</source>
        <translation>Mensaje anterior</translation>
    </message>
    <message>
        <source>Next message</source>
        <translation>Mensaje siguiente</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>halvern::Notices</name>
    <message>
        <source>Printing</source>
        <translation>Impresión</translation>
    </message>
    <message>
        <source>Printing from %1</source>
        <translation>Impresión desde %1</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>halvern::OptionDelegate</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>also sets %1</source>
        <translation>también pone %1</translation>
    </message>
</context>
<context>
    <name>halvern::OptionFinder</name>
    <message>
        <source>Search options and printers (Ctrl+F)</source>
        <translation>Buscar opciones e impresoras (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search options and printers</source>
        <translation>Buscar opciones e impresoras</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Impresoras</translation>
    </message>
    <message>
        <source>%1 › %2</source>
        <translation>%1 › %2</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Buscando...</translation>
    </message>
    <message>
        <source>Nothing has this name.</source>
        <translation>Nada tiene este nombre.</translation>
    </message>
    <message>
        <source>The first %1 that were found</source>
        <translation>Los primeros %1 encontrados</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>Encontrados: %1</translation>
    </message>
</context>
<context>
    <name>halvern::OptionTree</name>
    <message>
        <source>Installed in the printer (set by whoever installed it)</source>
        <translation>Instalado en la impresora (lo establece quien la instaló)</translation>
    </message>
    <message>
        <source>%1 (the printer&apos;s default)</source>
        <translation>%1 (valor de la impresora)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Put back to the printer&apos;s default: %1</source>
        <translation>Restablecer el valor de la impresora: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Changed from the printer&apos;s default</source>
        <translation>Distinto del valor de la impresora</translation>
    </message>
    <message>
        <source>As the printer is set</source>
        <translation>Como esté ajustada la impresora</translation>
    </message>
</context>
<context>
    <name>halvern::OptionsPage</name>
    <message>
        <source>Show changed only</source>
        <translation>Mostrar solo lo cambiado</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Restablecer todo</translation>
    </message>
    <message>
        <source>Puts the options of this page back to the printer&apos;s defaults</source>
        <translation>Restablece las opciones de esta página a los valores de la impresora</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Nothing changed</source>
        <translation>Nada cambiado</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>Cambiadas: %1</translation>
    </message>
    <message>
        <source>Put Back to the Printer&apos;s Default</source>
        <translation>Restablecer el valor de la impresora</translation>
    </message>
</context>
<context>
    <name>halvern::OutputMenu</name>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>Print to a &amp;PDF File...</source>
        <translation>Imprimir en un archivo &amp;PDF...</translation>
    </message>
    <message>
        <source>&amp;Copy as Command</source>
        <translation>&amp;Copiar como comando</translation>
    </message>
    <message>
        <source>Print to a PDF File</source>
        <translation>Imprimir en un archivo PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Archivos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The command that prints this again is on the clipboard.</source>
        <translation>El comando que imprime esto de nuevo está en el portapapeles.</translation>
    </message>
    <message>
        <source>A file is being written still. Write the next one when it is there.</source>
        <translation>Aún se está escribiendo un archivo. Escriba el siguiente cuando este esté listo.</translation>
    </message>
    <message>
        <source>The command that prints this again is on the clipboard, without your PIN or password.</source>
        <translation>El comando que imprime esto de nuevo está en el portapapeles, sin su PIN ni su contraseña.</translation>
    </message>
    <message>
        <source>%1 is one of the files to print. Choose another name.</source>
        <translation>%1 es uno de los archivos que imprimir. Elija otro nombre.</translation>
    </message>
    <message>
        <source>That folder goes when this window is closed. Choose another one.</source>
        <translation>Esa carpeta desaparece al cerrar esta ventana. Elija otra.</translation>
    </message>
</context>
<context>
    <name>halvern::PageRangeRow</name>
    <message>
        <source>Last page &amp;first</source>
        <translation>La últi&amp;ma página primero</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Páginas que imprimir</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>Impares y pares</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>Solo impares</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>Solo pares</translation>
    </message>
    <message>
        <source>Odd or even pages</source>
        <translation>Páginas impares o pares</translation>
    </message>
    <message>
        <source>All %1, or for example 1-3, 5-</source>
        <translation>Todas (%1) o, por ejemplo, 1-3, 5-</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Página actual</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Which pages</source>
        <translation>Qué páginas</translation>
    </message>
    <message>
        <source>All, or for example 1-3, 5-</source>
        <translation>Todas o, por ejemplo, 1-3, 5-</translation>
    </message>
</context>
<context>
    <name>halvern::PanelDeck</name>
    <message>
        <source>Pages of options</source>
        <translation>Páginas de opciones</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Más opciones</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>About the Photo</source>
        <translation>Sobre la foto</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposición</translation>
    </message>
</context>
<context>
    <name>halvern::PaperPage</name>
    <message>
        <source>P&amp;aper size:</source>
        <translation>Tamaño del p&amp;apel:</translation>
    </message>
    <message>
        <source>As the photo</source>
        <translation>Como la foto</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>Or&amp;ientación:</translation>
    </message>
    <message>
        <source>Fit the whole photo on the page</source>
        <translation>Toda la foto en la página</translation>
    </message>
    <message>
        <source>Fill the page, cut what is over</source>
        <translation>Llenar la página, recortar lo que sobra</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>Photo si&amp;ze:</source>
        <translation>&amp;Tamaño de la foto:</translation>
    </message>
    <message>
        <source>Search by name or measures</source>
        <translation>Buscar por nombre o medidas</translation>
    </message>
    <message>
        <source>&amp;Borderless</source>
        <translation>Sin &amp;bordes</translation>
    </message>
    <message>
        <source>&amp;Two-sided:</source>
        <translation>A doble &amp;cara:</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pá&amp;ginas:</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Tamaño de papel</translation>
    </message>
    <message>
        <source>The printer does not have this paper size both with and without a margin.</source>
        <translation>La impresora no tiene este tamaño de papel en las dos formas, con margen y sin él.</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>&amp;Escala:</translation>
    </message>
    <message>
        <source>Loaded:</source>
        <translation>Cargado:</translation>
    </message>
    <message>
        <source>Co&amp;lors:</source>
        <translation>Colore&amp;s:</translation>
    </message>
</context>
<context>
    <name>halvern::PaperSizeList</name>
    <message>
        <source>Custom size...</source>
        <translation>Tamaño personalizado...</translation>
    </message>
</context>
<context>
    <name>halvern::PdfOutput</name>
    <message>
        <source>The file &quot;%1&quot; could not be written: %2.</source>
        <translation>No se pudo escribir el archivo «%1»: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no regular file. Name a file to write.</source>
        <translation>«%1» no es un archivo normal. Indique un archivo que escribir.</translation>
    </message>
    <message>
        <source>Cancelled: no file was written.</source>
        <translation>Cancelado: no se escribió ningún archivo.</translation>
    </message>
    <message>
        <source>No file was written. %1</source>
        <translation>No se escribió ningún archivo. %1</translation>
    </message>
    <message>
        <source>1 page was written to &quot;%1&quot;.</source>
        <translation>Se escribió 1 página en «%1».</translation>
    </message>
    <message>
        <source>%1 pages were written to &quot;%2&quot;.</source>
        <translation>Se escribieron %1 páginas en «%2».</translation>
    </message>
    <message>
        <source>The computer is too busy to write the file. Close something and try again.</source>
        <translation>El equipo está demasiado ocupado para escribir el archivo. Cierre algo e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoAdding</name>
    <message>
        <source>Add...</source>
        <translation>Añadir...</translation>
    </message>
    <message>
        <source>Add photos; they can be dropped on the window and pasted, too</source>
        <translation>Añadir fotos; también se pueden arrastrar a la ventana y pegar</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Add Photos</source>
        <translation>Añadir fotos</translation>
    </message>
    <message>
        <source>Choose Photos</source>
        <translation>Elegir fotos</translation>
    </message>
    <message>
        <source>The clipboard holds no photo. Copy a picture, or files of photos, first.</source>
        <translation>El portapapeles no contiene ninguna foto. Copie antes una imagen o archivos de fotos.</translation>
    </message>
    <message>
        <source>The picture cannot be kept in a temporary file. Make room on the disk.</source>
        <translation>La imagen no se puede guardar en un archivo temporal. Libere espacio en el disco.</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoListModel</name>
    <message>
        <source>%1, page %2</source>
        <translation>%1, página %2</translation>
    </message>
    <message>
        <source>Photo %1 of %2</source>
        <translation>Foto %1 de %2</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 copia</translation>
    </message>
    <message>
        <source>%1 copies</source>
        <translation>%1 copias</translation>
    </message>
    <message>
        <source>not printed</source>
        <translation>no se imprime</translation>
    </message>
    <message>
        <source>a part of it is missing</source>
        <translation>le falta una parte</translation>
    </message>
    <message>
        <source>Drag it to another place, or press Alt and an arrow key. Plus and minus change the copies, Space whether it is printed, Delete takes it out, Return crops it. More with a right click.</source>
        <translation>Arrástrela a otro lugar, o pulse Alt y una flecha. Más y menos cambian las copias; Espacio, si se imprime; Supr la quita; Intro la recorta. Más con el botón derecho.</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoLoader</name>
    <message>
        <source>&quot;%1&quot; cannot be read now: the computer is too busy. Close something and open it again.</source>
        <translation>«%1» no se puede leer ahora: el equipo está demasiado ocupado. Cierre algo y ábralo de nuevo.</translation>
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
        <translation>Adobe RGB, según la cámara</translation>
    </message>
    <message>
        <source>sRGB, as the file notes</source>
        <translation>sRGB, según el archivo</translation>
    </message>
    <message>
        <source>Not said; taken as sRGB</source>
        <translation>No se indica; se toma como sRGB</translation>
    </message>
    <message>
        <source>%1 x %2 pixels (%3 megapixels)</source>
        <translation>%1 x %2 píxeles (%3 megapíxeles)</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Archivo:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Carpeta:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>Problema:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamaño:</translation>
    </message>
    <message>
        <source>Colors:</source>
        <translation>Colores:</translation>
    </message>
    <message>
        <source>Taken:</source>
        <translation>Fecha de captura:</translation>
    </message>
    <message>
        <source>Camera:</source>
        <translation>Cámara:</translation>
    </message>
    <message>
        <source>Lens:</source>
        <translation>Objetivo:</translation>
    </message>
    <message>
        <source>Exposure:</source>
        <translation>Exposición:</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>Rating:</source>
        <translation>Valoración:</translation>
    </message>
    <message>
        <source>CMYK without a profile; taken as ideal inks</source>
        <translation>CMYK sin perfil; se toma como tintas ideales</translation>
    </message>
    <message>
        <source>Gray without a profile; taken as sRGB</source>
        <translation>Gris sin perfil; se toma como sRGB</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoPlaceRow</name>
    <message>
        <source>Away from the corner:</source>
        <translation>A esta distancia de la esquina:</translation>
    </message>
    <message>
        <source>From the left</source>
        <translation>Desde la izquierda</translation>
    </message>
    <message>
        <source>From the top</source>
        <translation>Desde arriba</translation>
    </message>
    <message>
        <source>Without it the photo is in the middle of the sheet</source>
        <translation>Si no se indica, la foto está en el centro de la hoja</translation>
    </message>
</context>
<context>
    <name>halvern::PhotoSizeRow</name>
    <message>
        <source>Width of the photo</source>
        <translation>Ancho de la foto</translation>
    </message>
    <message>
        <source>Height of the photo</source>
        <translation>Alto de la foto</translation>
    </message>
    <message>
        <source>As large as the page</source>
        <translation>Tan grande como la página</translation>
    </message>
    <message>
        <source>In</source>
        <translation>En</translation>
    </message>
    <message>
        <source>Of its own size</source>
        <translation>De su propio tamaño</translation>
    </message>
    <message>
        <source>Photo size</source>
        <translation>Tamaño de la foto</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Percent of its own size</source>
        <translation>Porcentaje de su propio tamaño</translation>
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
        <translation>Recortar...</translation>
    </message>
    <message>
        <source>Same Crop for All</source>
        <translation>Mismo recorte para todas</translation>
    </message>
    <message>
        <source>One More Copy</source>
        <translation>Una copia más</translation>
    </message>
    <message>
        <source>One Copy Less</source>
        <translation>Una copia menos</translation>
    </message>
    <message>
        <source>Copies...</source>
        <translation>Copias...</translation>
    </message>
    <message>
        <source>Print, or Not</source>
        <translation>Imprimir o no</translation>
    </message>
    <message>
        <source>Print Only These</source>
        <translation>Imprimir solo estas</translation>
    </message>
    <message>
        <source>Print All Photos</source>
        <translation>Imprimir todas las fotos</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Move Earlier</source>
        <translation>Mover antes</translation>
    </message>
    <message>
        <source>Move Later</source>
        <translation>Mover después</translation>
    </message>
    <message>
        <source>Move to the Start</source>
        <translation>Mover al principio</translation>
    </message>
    <message>
        <source>Move to the End</source>
        <translation>Mover al final</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 de %2 seleccionadas</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 fotos</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Copies of this photo:</source>
        <translation>Copias de esta foto:</translation>
    </message>
    <message>
        <source>Copies of each of the %1 photos:</source>
        <translation>Copias de cada una de las %1 fotos:</translation>
    </message>
</context>
<context>
    <name>halvern::PresetBar</name>
    <message>
        <source>From your saved options (lpoptions)</source>
        <translation>De sus opciones guardadas (lpoptions)</translation>
    </message>
    <message>
        <source>Made for a printer of the same model</source>
        <translation>Hecho para una impresora del mismo modelo</translation>
    </message>
    <message>
        <source>Nothing was printed here yet</source>
        <translation>Aquí aún no se ha impreso nada</translation>
    </message>
    <message>
        <source>Presets (*.json)</source>
        <translation>Preajustes (*.json)</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Preajuste</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Save, rename and more</source>
        <translation>Guardar, cambiar el nombre y más</translation>
    </message>
    <message>
        <source>Read from the file, and not applied yet: %1</source>
        <translation>Leídos del archivo y aún sin aplicar: %1</translation>
    </message>
    <message>
        <source>%1 – changed</source>
        <translation>%1 – cambiado</translation>
    </message>
    <message>
        <source>&amp;Save as New Preset...</source>
        <translation>&amp;Guardar como preajuste nuevo...</translation>
    </message>
    <message>
        <source>&amp;Import from File...</source>
        <translation>&amp;Importar de un archivo...</translation>
    </message>
    <message>
        <source>Export &amp;All to File...</source>
        <translation>Exportar &amp;todos a un archivo...</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Preajustes</translation>
    </message>
    <message>
        <source>&amp;Update &quot;%1&quot;</source>
        <translation>&amp;Actualizar «%1»</translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>&amp;Rename &quot;%1&quot;...</source>
        <translation>Cambiar el &amp;nombre de «%1»...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>Cambiar el &amp;nombre...</translation>
    </message>
    <message>
        <source>&amp;Delete &quot;%1&quot;</source>
        <translation>&amp;Eliminar «%1»</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>&amp;Export &quot;%1&quot; to File...</source>
        <translation>E&amp;xportar «%1» a un archivo...</translation>
    </message>
    <message>
        <source>&amp;Export to File...</source>
        <translation>E&amp;xportar a un archivo...</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; was deleted.</source>
        <translation>Se eliminó el preajuste «%1».</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Import Presets</source>
        <translation>Importar preajustes</translation>
    </message>
    <message>
        <source>Export Presets</source>
        <translation>Exportar preajustes</translation>
    </message>
</context>
<context>
    <name>halvern::PresetNameDialog</name>
    <message>
        <source>Save Preset</source>
        <translation>Guardar preajuste</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Cambiar el nombre del preajuste</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Cambiar el nombre</translation>
    </message>
    <message>
        <source>With the number of &amp;copies (%1)</source>
        <translation>Con el número de c&amp;opias (%1)</translation>
    </message>
    <message>
        <source>With the &amp;pages to print</source>
        <translation>Con las &amp;páginas que imprimir</translation>
    </message>
    <message>
        <source>With the &amp;text on the back</source>
        <translation>Con el &amp;texto del dorso</translation>
    </message>
    <message>
        <source>This name is always there. Choose another one.</source>
        <translation>Este nombre siempre existe. Elija otro.</translation>
    </message>
    <message>
        <source>There is a preset of this name. It will be replaced.</source>
        <translation>Ya hay un preajuste con este nombre. Se reemplazará.</translation>
    </message>
    <message>
        <source>There is a preset of this name. Choose another one.</source>
        <translation>Ya hay un preajuste con este nombre. Elija otro.</translation>
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
        <translation>«%1» no tiene el preajuste «%2».</translation>
    </message>
    <message>
        <source>It has: %1.</source>
        <translation>Hay: %1.</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>¿Quiso decir %1?</translation>
    </message>
</context>
<context>
    <name>halvern::PreviewSide</name>
    <message>
        <source>Previous photo</source>
        <translation>Foto anterior</translation>
    </message>
    <message>
        <source>Next photo</source>
        <translation>Foto siguiente</translation>
    </message>
    <message>
        <source>Reading the photo...</source>
        <translation>Leyendo la foto...</translation>
    </message>
    <message>
        <source>There is no photo to print.</source>
        <translation>No hay ninguna foto que imprimir.</translation>
    </message>
    <message>
        <source>No page is chosen.</source>
        <translation>No hay ninguna página elegida.</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <translation>%1, página %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>(front)</source>
        <translation>(cara)</translation>
    </message>
    <message>
        <source>(back)</source>
        <translation>(dorso)</translation>
    </message>
    <message>
        <source>Show the photos in a row, or not</source>
        <translation>Mostrar las fotos en una fila, o no</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>No se imprime</translation>
    </message>
</context>
<context>
    <name>halvern::PreviewWidget</name>
    <message>
        <source>A part of this photo is missing</source>
        <translation>Falta una parte de esta foto</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 × %2 in</source>
        <translation>%1 × %2 pulg.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Drag the photo to choose what is cut away</source>
        <translation>Arrastre la foto para elegir qué se recorta</translation>
    </message>
    <message>
        <source>part of the photo is cut away</source>
        <translation>se recorta parte de la foto</translation>
    </message>
    <message>
        <source>Show at 1:1</source>
        <translation>Mostrar a 1:1</translation>
    </message>
    <message>
        <source>Show a screen pixel for each printer dot (double-click the photo, or press Z in the preview)</source>
        <translation>Mostrar un píxel de pantalla por cada punto de impresión (doble clic en la foto, o Z en la vista previa)</translation>
    </message>
    <message>
        <source>1:1, a screen pixel for each printer dot (%1 dpi)</source>
        <translation>1:1, un píxel de pantalla por punto de impresión (%1 ppp)</translation>
    </message>
    <message>
        <source>The printer&apos;s adjustments, approximated on the screen</source>
        <translation>Ajustes de la impresora, aproximados en pantalla</translation>
    </message>
    <message>
        <source>Sharpening shows at 1:1</source>
        <translation>El enfoque se ve a 1:1</translation>
    </message>
    <message>
        <source>Reading the photo...</source>
        <translation>Leyendo la foto...</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Dorso</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Choose the part of the photo that is printed (press C in the preview)</source>
        <translation>Elegir la parte de la foto que se imprime (pulse C en la vista previa)</translation>
    </message>
    <message>
        <source>Show what is printed on the back of the picture</source>
        <translation>Mostrar lo que se imprime en el dorso de la foto</translation>
    </message>
    <message>
        <source>The back of the picture, as the printer writes on it</source>
        <translation>El dorso de la foto, tal como escribe en él la impresora</translation>
    </message>
    <message>
        <source>the edges are cut away</source>
        <translation>los bordes se cortan</translation>
    </message>
    <message>
        <source>The picture reaches %1 mm beyond each edge of the paper, so that nothing stays white: what is marked along the edges is cut away</source>
        <translation>La imagen sobresale %1 mm de cada borde del papel para que nada quede blanco: lo marcado en los bordes se corta</translation>
    </message>
</context>
<context>
    <name>halvern::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Imp&amp;resora:</translation>
    </message>
    <message>
        <source>C&amp;opies:</source>
        <translation>C&amp;opias:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Im&amp;primir</translation>
    </message>
    <message>
        <source>Looking for printers...</source>
        <translation>Buscando impresoras...</translation>
    </message>
    <message>
        <source>The print server has no printers. Add one in the system&apos;s settings.</source>
        <translation>El servidor de impresión no tiene impresoras. Añada una en los ajustes del sistema.</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot;. Choose another one.</source>
        <translation>El servidor de impresión no tiene la impresora «%1». Elija otra.</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>To make that possible, this was changed too: %1</source>
        <translation>Para hacerlo posible, también se ha cambiado: %1</translation>
    </message>
    <message>
        <source>To go with what the printer has, this was changed: %1</source>
        <translation>Para ajustarse a lo que tiene la impresora, se ha cambiado esto: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Preparing the pages...</source>
        <translation>Preparando las páginas...</translation>
    </message>
    <message>
        <source>Job %1 was sent to &quot;%2&quot;.</source>
        <translation>El trabajo %1 se envió a «%2».</translation>
    </message>
    <message>
        <source>Choose a printer and a paper size, look at the preview, and press Print. The list on the left of the options has the printer&apos;s own pages.</source>
        <translation>Elija una impresora y un tamaño de papel, mire la vista previa y pulse Imprimir. La lista a la izquierda de las opciones contiene las páginas propias de la impresora.</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Cancelando...</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancelar trabajo</translation>
    </message>
    <message>
        <source>Asking the print server to cancel job %1...</source>
        <translation>Pidiendo al servidor de impresión que cancele el trabajo %1...</translation>
    </message>
    <message>
        <source>No answer from the print server.</source>
        <translation>El servidor de impresión no responde.</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Intercalar</translation>
    </message>
    <message>
        <source>Whole sets one after the other: 1, 2, 3, 1, 2, 3</source>
        <translation>Juegos completos, uno tras otro: 1, 2, 3, 1, 2, 3</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>Usar %1</translation>
    </message>
    <message>
        <source>The printer cannot do what was chosen, so this stays: %1</source>
        <translation>La impresora no puede hacer lo que se eligió, así que se mantiene: %1</translation>
    </message>
    <message>
        <source>Search by name, place or model</source>
        <translation>Buscar por nombre, lugar o modelo</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>1 option was put back to the printer&apos;s default.</source>
        <translation>Se restableció 1 opción al valor de la impresora.</translation>
    </message>
    <message>
        <source>%1 options were put back to the printer&apos;s defaults.</source>
        <translation>Se restablecieron %1 opciones a los valores de la impresora.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was applied.</source>
        <translation>Se aplicó «%1».</translation>
    </message>
    <message>
        <source>Writing the file...</source>
        <translation>Escribiendo el archivo...</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>Preajuste:</translation>
    </message>
    <message>
        <source>An application</source>
        <translation>Una aplicación</translation>
    </message>
    <message>
        <source>The document is printed as it came. Its pages cannot be shown here.</source>
        <translation>El documento se imprime tal como llegó. Sus páginas no se pueden mostrar aquí.</translation>
    </message>
    <message>
        <source>Print - %1</source>
        <translation>Imprimir - %1</translation>
    </message>
    <message>
        <source>The application makes its pages afterwards, for this sheet.</source>
        <translation>La aplicación hace sus páginas después, para esta hoja.</translation>
    </message>
    <message>
        <source>Sign &amp;In...</source>
        <translation>Identi&amp;ficarse...</translation>
    </message>
    <message>
        <source>The print server has no printer &quot;%1&quot; any more. It was last seen on %2. Is it switched on, and on this network?</source>
        <translation>El servidor de impresión ya no tiene la impresora «%1». Se vio por última vez el %2. ¿Está encendida y en esta red?</translation>
    </message>
</context>
<context>
    <name>halvern::PrintRun</name>
    <message>
        <source>Cancelled: nothing was printed.</source>
        <translation>Cancelado: no se imprimió nada.</translation>
    </message>
    <message>
        <source>Nothing was printed. %1</source>
        <translation>No se imprimió nada. %1</translation>
    </message>
    <message>
        <source>The print server does not answer. Job %1 is cancelled as soon as it does, if this window is still open.</source>
        <translation>El servidor de impresión no responde. El trabajo %1 se cancelará en cuanto responda, si esta ventana sigue abierta.</translation>
    </message>
    <message>
        <source>Job %1 was sent to &quot;%2&quot;, but the print server has not answered for %3 seconds: whether it was printed is not known. Look at the printer before you print again.</source>
        <translation>El trabajo %1 se envió a «%2», pero el servidor de impresión no responde desde hace %3 segundos: no se sabe si se imprimió. Mire la impresora antes de volver a imprimir.</translation>
    </message>
    <message>
        <source>The document cannot be read any more: %1. Print it once more.</source>
        <translation>El documento ya no se puede leer: %1. Imprímalo otra vez.</translation>
    </message>
    <message>
        <source>%1 photos went out in %2 jobs; the others were not sent. %3</source>
        <translation>Se enviaron %1 fotos en %2 trabajos; las demás no se enviaron. %3</translation>
    </message>
    <message>
        <source>%1 photos were printed in %2 jobs, %3 to %4.</source>
        <translation>Se imprimieron %1 fotos en %2 trabajos, del %3 al %4.</translation>
    </message>
    <message>
        <source>The computer is too busy to send it. Close something and try again.</source>
        <translation>El equipo está demasiado ocupado para enviarlo. Cierre algo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Cancelled. Jobs that were printed before: %1.</source>
        <translation>Cancelado. Trabajos impresos antes: %1.</translation>
    </message>
    <message>
        <source>Stopped. These jobs are on the queue &quot;%1&quot; and stay there: %2.</source>
        <translation>Detenido. Estos trabajos están en la cola «%1» y siguen allí: %2.</translation>
    </message>
    <message>
        <source>Look at the printer before you print again.</source>
        <translation>Mire la impresora antes de volver a imprimir.</translation>
    </message>
    <message>
        <source>Cancelled. Sheets that were printed before: %1.</source>
        <translation>Cancelado. Hojas impresas antes: %1.</translation>
    </message>
</context>
<context>
    <name>halvern::PrintService</name>
    <message>
        <source>There is no session bus: %1.</source>
        <translation>No hay bus de sesión: %1.</translation>
    </message>
    <message>
        <source>Another halvern-print-portal runs in this session already.</source>
        <translation>Ya hay otro halvern-print-portal en marcha en esta sesión.</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterChoice</name>
    <message>
        <source>Your default printer &quot;%1&quot; is none of the print server&apos;s. &quot;%2&quot; was chosen instead.</source>
        <translation>Su impresora predeterminada «%1» no está en el servidor de impresión. Se eligió «%2» en su lugar.</translation>
    </message>
    <message>
        <source>The application remembers a printer &quot;%1&quot; that is none of the print server&apos;s. &quot;%2&quot; was chosen instead.</source>
        <translation>La aplicación recuerda una impresora «%1» que el servidor de impresión no tiene. En su lugar se eligió «%2».</translation>
    </message>
    <message>
        <source>There is not enough memory for the options of &quot;%1&quot;. Close something, and choose the printer again.</source>
        <translation>No hay memoria suficiente para las opciones de «%1». Cierre algo y vuelva a elegir la impresora.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server. Its options were read again.</source>
        <translation>«%1» se ha configurado de nuevo en el servidor de impresión. Sus opciones se han vuelto a leer.</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterPage</name>
    <message>
        <source>State:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>What to do:</source>
        <translation>Qué hacer:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>Desde:</translation>
    </message>
    <message>
        <source>Jobs ahead:</source>
        <translation>Trabajos por delante:</translation>
    </message>
    <message>
        <source>Printers in it:</source>
        <translation>Impresoras que incluye:</translation>
    </message>
    <message>
        <source>Supplies:</source>
        <translation>Consumibles:</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>not on the print server</source>
        <translation>no está en el servidor de impresión</translation>
    </message>
    <message>
        <source>Nothing is known of it yet.</source>
        <translation>Aún no se sabe nada de ella.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>The printer tells more of itself than can be shown here.</source>
        <translation>La impresora dice de sí misma más de lo que se puede mostrar aquí.</translation>
    </message>
    <message>
        <source>The printer does not say what is left of its ink or toner.</source>
        <translation>La impresora no dice cuánta tinta o tóner le queda.</translation>
    </message>
</context>
<context>
    <name>halvern::PrinterRows</name>
    <message>
        <source>Used last</source>
        <translation>Usadas recientemente</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Encontrada en la red</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Impresoras</translation>
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
        <translation>Progreso del trabajo</translation>
    </message>
    <message>
        <source>Resume Printer</source>
        <translation>Reanudar impresora</translation>
    </message>
    <message>
        <source>Release Job</source>
        <translation>Liberar trabajo</translation>
    </message>
    <message>
        <source>Print Job Again</source>
        <translation>Imprimir de nuevo</translation>
    </message>
    <message>
        <source>✓ as shown</source>
        <translation>✓ como se muestra</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
</context>
<context>
    <name>halvern::SearchPopup</name>
    <message>
        <source>Nothing here is called &quot;%1&quot;.</source>
        <translation>Aquí nada se llama «%1».</translation>
    </message>
</context>
<context>
    <name>halvern::SentJob</name>
    <message>
        <source>The document was not printed: the session ended before the print server had all of it. Print it once more.</source>
        <translation>El documento no se imprimió: la sesión terminó antes de que el servidor de impresión lo tuviera entero. Imprímalo otra vez.</translation>
    </message>
    <message>
        <source>Sign in for it in the list of jobs: &quot;Jobs...&quot; in the print dialog.</source>
        <translation>Identifíquese para él en la lista de trabajos: «Trabajos...» en el diálogo de impresión.</translation>
    </message>
</context>
<context>
    <name>halvern::SessionPresets</name>
    <message>
        <source>A saved setting was left out. %1</source>
        <translation>Se omitió un ajuste guardado. %1</translation>
    </message>
</context>
<context>
    <name>halvern::SummaryPage</name>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Tamaño del papel</translation>
    </message>
    <message>
        <source>Photo size</source>
        <translation>Tamaño de la foto</translation>
    </message>
    <message>
        <source>Printed area</source>
        <translation>Área impresa</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Más opciones</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Off: %1</source>
        <translation>Desactivado: %1</translation>
    </message>
    <message>
        <source>All other settings</source>
        <translation>Todos los demás ajustes</translation>
    </message>
    <message>
        <source>The options as they are sent</source>
        <translation>Las opciones tal como se envían</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>Cop&amp;iar</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Título del trabajo</translation>
    </message>
    <message>
        <source>printer&apos;s default: %1</source>
        <translation>valor de la impresora: %1</translation>
    </message>
    <message>
        <source>%1 more are in the list of all other settings.</source>
        <translation>Hay %1 más en la lista de todos los demás ajustes.</translation>
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
