<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Color Matching</source>
        <translation>Igualación de color</translation>
    </message>
    <message>
        <source>Colors are &amp;matched</source>
        <translation>&amp;Igualar los colores</translation>
    </message>
    <message>
        <source>Where the colors are matched to the printer</source>
        <translation>Dónde se igualan los colores con la impresora</translation>
    </message>
    <message>
        <source>As the printer is set up</source>
        <translation>Según la configuración de la impresora</translation>
    </message>
    <message>
        <source>Colors should be matched to the printer exactly once: by the program that sends the picture, if it knows the printer’s profile, or else by the printer.</source>
        <translation>Los colores deben igualarse con la impresora una sola vez: en el programa que envía la imagen, si conoce el perfil de la impresora, o si no en la impresora.</translation>
    </message>
    <message>
        <source>AP_ColorMatchingMode</source>
        <translation>Igualación de color</translation>
    </message>
    <message>
        <source>By the Application</source>
        <translation>En la aplicación</translation>
    </message>
    <message>
        <source>By the Printer</source>
        <translation>En la impresora</translation>
    </message>
</context>
</TS>
