<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Backprint</source>
        <translation>Impresión del reverso</translation>
    </message>
    <message>
        <source>Enter up to two lines of text to appear on the back side of the picture.</source>
        <translation>Escriba hasta dos líneas de texto que aparecerán en el reverso de la foto.</translation>
    </message>
    <message>
        <source>Line &amp;1</source>
        <translation>Línea &amp;1</translation>
    </message>
    <message>
        <source>Line &amp;2</source>
        <translation>Línea &amp;2</translation>
    </message>
    <message>
        <source>Print the first line</source>
        <translation>Imprimir la primera línea</translation>
    </message>
    <message>
        <source>Print the second line</source>
        <translation>Imprimir la segunda línea</translation>
    </message>
    <message>
        <source>Text of the first line</source>
        <translation>Texto de la primera línea</translation>
    </message>
    <message>
        <source>Text of the second line</source>
        <translation>Texto de la segunda línea</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>quedan %1</translation>
    </message>
    <message>
        <source>P&amp;laceholder</source>
        <translation>&amp;Marcador</translation>
    </message>
    <message>
        <source>Placeholder to insert</source>
        <translation>Marcador que se va a insertar</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insertar</translation>
    </message>
    <message>
        <source>Insert the placeholder at the cursor</source>
        <translation>Insertar el marcador en el cursor</translation>
    </message>
    <message>
        <source>The printer replaces each placeholder when it prints the picture.</source>
        <translation>La impresora sustituye cada marcador al imprimir la foto.</translation>
    </message>
    <message>
        <source>So long a line is printed in very small letters.</source>
        <translation>Una línea tan larga se imprime con letras muy pequeñas.</translation>
    </message>
    <message>
        <source>Nothing is printed on the back.</source>
        <translation>No se imprime nada en el reverso.</translation>
    </message>
    <message>
        <source>Preview of the back of the picture</source>
        <translation>Vista previa del reverso de la foto</translation>
    </message>
    <message>
        <source>Keep a &amp;diagnostic log</source>
        <translation>Guardar un re&amp;gistro de diagnóstico</translation>
    </message>
    <message>
        <source>[YYYY]</source>
        <translation>Año (4 cifras)</translation>
    </message>
    <message>
        <source>[YY]</source>
        <translation>Año (2 cifras)</translation>
    </message>
    <message>
        <source>[DD]</source>
        <translation>Día (2 cifras)</translation>
    </message>
    <message>
        <source>[D]</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>[MM]</source>
        <translation>Mes (2 cifras)</translation>
    </message>
    <message>
        <source>[M]</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>[C]</source>
        <translation>Contador</translation>
    </message>
    <message>
        <source>[F]</source>
        <translation>Nombre del archivo</translation>
    </message>
    <message>
        <source>[P]</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>[U]</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>CVP1</source>
        <translation>Texto del reverso, línea 1</translation>
    </message>
    <message>
        <source>CVP2</source>
        <translation>Texto del reverso, línea 2</translation>
    </message>
    <message>
        <source>EnableCVP1</source>
        <translation>Imprimir la línea 1 del reverso</translation>
    </message>
    <message>
        <source>EnableCVP2</source>
        <translation>Imprimir la línea 2 del reverso</translation>
    </message>
    <message>
        <source>DebugLog</source>
        <translation>Registro de diagnóstico</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
</TS>
