<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Cover Page</source>
        <translation>Portada</translation>
    </message>
    <message>
        <source>This printer prints no cover page, because a page of job details would use up a sheet of photo paper.</source>
        <translation>Esta impresora no imprime portada, porque una página con los datos del trabajo gastaría una hoja de papel fotográfico.</translation>
    </message>
    <message>
        <source>AP_CoverPage</source>
        <translation>Portada</translation>
    </message>
</context>
</TS>
