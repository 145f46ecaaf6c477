<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Sharpness</source>
        <translation>Nitidez</translation>
    </message>
    <message>
        <source>&amp;Sharpen the pictures</source>
        <translation>&amp;Enfocar las imágenes</translation>
    </message>
    <message>
        <source>R&amp;adius</source>
        <translation>R&amp;adio</translation>
    </message>
    <message>
        <source>&amp;Intensity</source>
        <translation>&amp;Intensidad</translation>
    </message>
    <message>
        <source>Fine detail</source>
        <translation>Detalle fino</translation>
    </message>
    <message>
        <source>Broad edges</source>
        <translation>Bordes anchos</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Fuerte</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>The radius says how far from an edge the sharpening reaches, in printer dots; the intensity says how strong it is. Small prints and fine papers want a small radius.</source>
        <translation>El radio indica hasta dónde llega el enfoque alrededor de un borde, en puntos de impresión; la intensidad indica su fuerza. Las copias pequeñas y los papeles finos piden un radio pequeño.</translation>
    </message>
    <message>
        <source>Sharpening radius</source>
        <translation>Radio de enfoque</translation>
    </message>
    <message>
        <source>Sharpening intensity</source>
        <translation>Intensidad de enfoque</translation>
    </message>
    <message>
        <source>Sharpening radius, in printer dots</source>
        <translation>Radio de enfoque, en puntos de impresión</translation>
    </message>
    <message>
        <source>Reduce the radius by one</source>
        <translation>Reducir el radio en uno</translation>
    </message>
    <message>
        <source>Increase the radius by one</source>
        <translation>Aumentar el radio en uno</translation>
    </message>
    <message>
        <source>Reduce the intensity by one</source>
        <translation>Reducir la intensidad en uno</translation>
    </message>
    <message>
        <source>Increase the intensity by one</source>
        <translation>Aumentar la intensidad en uno</translation>
    </message>
    <message>
        <source>SharpnessEnabled</source>
        <translation>Enfoque</translation>
    </message>
    <message>
        <source>SharpnessRadius</source>
        <translation>Radio de enfoque</translation>
    </message>
    <message>
        <source>SharpnessIntensity</source>
        <translation>Intensidad de enfoque</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
</context>
</TS>
