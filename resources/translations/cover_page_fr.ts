<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Cover Page</source>
        <translation>Page de garde</translation>
    </message>
    <message>
        <source>This printer prints no cover page, because a page of job details would use up a sheet of photo paper.</source>
        <translation>Cette imprimante n’imprime pas de page de garde, car une page d’informations sur la tâche consommerait une feuille de papier photo.</translation>
    </message>
    <message>
        <source>AP_CoverPage</source>
        <translation>Page de garde</translation>
    </message>
</context>
</TS>
