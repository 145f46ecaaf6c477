<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Backprint</source>
        <translation>Impression au dos</translation>
    </message>
    <message>
        <source>Enter up to two lines of text to appear on the back side of the picture.</source>
        <translation>Saisissez jusqu’à deux lignes de texte à faire figurer au dos de la photo.</translation>
    </message>
    <message>
        <source>Line &amp;1</source>
        <translation>Ligne &amp;1</translation>
    </message>
    <message>
        <source>Line &amp;2</source>
        <translation>Ligne &amp;2</translation>
    </message>
    <message>
        <source>Print the first line</source>
        <translation>Imprimer la première ligne</translation>
    </message>
    <message>
        <source>Print the second line</source>
        <translation>Imprimer la deuxième ligne</translation>
    </message>
    <message>
        <source>Text of the first line</source>
        <translation>Texte de la première ligne</translation>
    </message>
    <message>
        <source>Text of the second line</source>
        <translation>Texte de la deuxième ligne</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>reste %1</translation>
    </message>
    <message>
        <source>P&amp;laceholder</source>
        <translation>É&amp;lément variable</translation>
    </message>
    <message>
        <source>Placeholder to insert</source>
        <translation>Élément variable à insérer</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insérer</translation>
    </message>
    <message>
        <source>Insert the placeholder at the cursor</source>
        <translation>Insérer l’élément variable au curseur</translation>
    </message>
    <message>
        <source>The printer replaces each placeholder when it prints the picture.</source>
        <translation>L’imprimante remplace chaque élément variable lors de l’impression.</translation>
    </message>
    <message>
        <source>So long a line is printed in very small letters.</source>
        <translation>Une ligne aussi longue est imprimée en très petits caractères.</translation>
    </message>
    <message>
        <source>Nothing is printed on the back.</source>
        <translation>Rien n’est imprimé au dos.</translation>
    </message>
    <message>
        <source>Preview of the back of the picture</source>
        <translation>Aperçu du dos de la photo</translation>
    </message>
    <message>
        <source>Keep a &amp;diagnostic log</source>
        <translation>Tenir un journal de &amp;diagnostic</translation>
    </message>
    <message>
        <source>[YYYY]</source>
        <translation>Année (4 chiffres)</translation>
    </message>
    <message>
        <source>[YY]</source>
        <translation>Année (2 chiffres)</translation>
    </message>
    <message>
        <source>[DD]</source>
        <translation>Jour (2 chiffres)</translation>
    </message>
    <message>
        <source>[D]</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>[MM]</source>
        <translation>Mois (2 chiffres)</translation>
    </message>
    <message>
        <source>[M]</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>[C]</source>
        <translation>Compteur</translation>
    </message>
    <message>
        <source>[F]</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>[P]</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>[U]</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>CVP1</source>
        <translation>Texte au dos, ligne 1</translation>
    </message>
    <message>
        <source>CVP2</source>
        <translation>Texte au dos, ligne 2</translation>
    </message>
    <message>
        <source>EnableCVP1</source>
        <translation>Imprimer la ligne 1 au dos</translation>
    </message>
    <message>
        <source>EnableCVP2</source>
        <translation>Imprimer la ligne 2 au dos</translation>
    </message>
    <message>
        <source>DebugLog</source>
        <translation>Journal de diagnostic</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
</context>
</TS>
