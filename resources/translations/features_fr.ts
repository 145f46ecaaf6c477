<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Features</source>
        <translation>Papier et qualité</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Two-Sided Printing</source>
        <translation>Recto verso</translation>
    </message>
    <message>
        <source>&amp;Feed</source>
        <translation>&amp;Alimentation</translation>
    </message>
    <message>
        <source>Paper feed</source>
        <translation>Alimentation du papier</translation>
    </message>
    <message>
        <source>S&amp;heet paper</source>
        <translation>&amp;Feuilles</translation>
    </message>
    <message>
        <source>Sheet paper</source>
        <translation>Papier en feuilles</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Rouleau de papier</translation>
    </message>
    <message>
        <source>Roll &amp;width</source>
        <translation>&amp;Largeur</translation>
    </message>
    <message>
        <source>Roll width</source>
        <translation>Largeur du rouleau</translation>
    </message>
    <message>
        <source>&amp;Surface</source>
        <translation>&amp;Surface</translation>
    </message>
    <message>
        <source>Surface of the roll</source>
        <translation>Surface du rouleau</translation>
    </message>
    <message>
        <source>The numbers are the surface codes of the paper.</source>
        <translation>Les chiffres sont les codes de surface du papier.</translation>
    </message>
    <message>
        <source>O&amp;verspill</source>
        <translation>&amp;Débord</translation>
    </message>
    <message>
        <source>Overspill in millimetres</source>
        <translation>Débord en millimètres</translation>
    </message>
    <message>
        <source>How far the picture reaches beyond the edges of the roll, so that no white edge remains.</source>
        <translation>Ce dont l’image dépasse les bords du rouleau, pour qu’aucun liseré blanc ne reste.</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Reso&amp;lution</source>
        <translation>Résolut&amp;ion</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>&amp;Tone</source>
        <translation>&amp;Tonalité</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Tonalité</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Faces</translation>
    </message>
    <message>
        <source>Two-s&amp;ided</source>
        <translation>Re&amp;cto verso</translation>
    </message>
    <message>
        <source>Two-sided printing</source>
        <translation>Impression recto verso</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>Reliure</translation>
    </message>
    <message>
        <source>&amp;Binding margin</source>
        <translation>&amp;Marge de reliure</translation>
    </message>
    <message>
        <source>Binding margin</source>
        <translation>Marge de reliure</translation>
    </message>
    <message>
        <source>Wi&amp;dth</source>
        <translation>Lar&amp;geur</translation>
    </message>
    <message>
        <source>Width of the binding margin in millimetres</source>
        <translation>Largeur de la marge de reliure en millimètres</translation>
    </message>
    <message>
        <source>How much of the page stays free for the binding.</source>
        <translation>La partie de la page laissée libre pour la reliure.</translation>
    </message>
    <message>
        <source>Two-sided printing needs cut sheets. The binding margin is the edge of the page as you see it on the screen; the picture keeps clear of it.</source>
        <translation>Le recto verso demande des feuilles. La marge de reliure est le bord de la page telle que vous la voyez à l’écran ; l’image la laisse libre.</translation>
    </message>
    <message>
        <source>The printer is being asked for its papers</source>
        <translation>Les papiers sont demandés à l’imprimante</translation>
    </message>
    <message>
        <source>Last updated %@</source>
        <translation>Dernière mise à jour : %@</translation>
    </message>
    <message>
        <source>never</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source>The sheet feed was not available when this page was made.</source>
        <translation>L’alimentation en feuilles n’était pas disponible quand cette page a été créée.</translation>
    </message>
    <message>
        <source>The printer has no cut sheets loaded.</source>
        <translation>L’imprimante ne contient pas de feuilles.</translation>
    </message>
    <message>
        <source>The printer has no paper roll loaded.</source>
        <translation>L’imprimante ne contient pas de rouleau.</translation>
    </message>
    <message>
        <source>Only for cut sheets. Choose the sheet feed first.</source>
        <translation>Pour les feuilles seulement. Choisissez d’abord l’alimentation en feuilles.</translation>
    </message>
    <message>
        <source>Only for paper rolls. Choose the roll feed first.</source>
        <translation>Pour les rouleaux seulement. Choisissez d’abord l’alimentation par rouleau.</translation>
    </message>
    <message>
        <source>No roll of this width has this surface.</source>
        <translation>Aucun rouleau de cette largeur n’a cette surface.</translation>
    </message>
    <message>
        <source>The chosen paper cannot be printed at this resolution.</source>
        <translation>Le papier choisi ne s’imprime pas à cette résolution.</translation>
    </message>
    <message>
        <source>The loaded papers have one tone only.</source>
        <translation>Les papiers chargés n’ont qu’une tonalité.</translation>
    </message>
    <message>
        <source>The loaded papers do not have this tone.</source>
        <translation>Les papiers chargés n’ont pas cette tonalité.</translation>
    </message>
    <message>
        <source>Two-sided printing needs cut sheets and a printer with a duplex unit.</source>
        <translation>Le recto verso demande des feuilles et une imprimante avec unité recto verso.</translation>
    </message>
    <message>
        <source>Choose two-sided printing first.</source>
        <translation>Choisissez d’abord le recto verso.</translation>
    </message>
    <message>
        <source>Choose a binding margin first.</source>
        <translation>Choisissez d’abord une marge de reliure.</translation>
    </message>
    <message>
        <source>The sheet is not turned over this edge.</source>
        <translation>La feuille n’est pas retournée sur ce bord.</translation>
    </message>
    <message>
        <source>Cut Sheet</source>
        <translation>Feuille</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rouleau</translation>
    </message>
    <message>
        <source>Long Edge</source>
        <translation>Bord long</translation>
    </message>
    <message>
        <source>Short Edge</source>
        <translation>Bord court</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>1 - Gloss</source>
        <translation>1 – Brillant</translation>
    </message>
    <message>
        <source>2 - Satin</source>
        <translation>2 – Satiné</translation>
    </message>
    <message>
        <source>3 - Matte</source>
        <translation>3 – Mat</translation>
    </message>
    <message>
        <source>4 - Thin Silk</source>
        <translation>4 – Soie fine</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Vivid</source>
        <translation>Vif</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Doux</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Chaud</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>Froid</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>Sépia</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>Deep Black</source>
        <translation>Noir profond</translation>
    </message>
    <message>
        <source>High Key</source>
        <translation>High key</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>Ajuster à la page</translation>
    </message>
    <message>
        <source>Fill Page</source>
        <translation>Remplir la page</translation>
    </message>
    <message>
        <source>PaperFeed</source>
        <translation>Alimentation du papier</translation>
    </message>
    <message>
        <source>PaperName</source>
        <translation>Papier en feuilles</translation>
    </message>
    <message>
        <source>PaperWidth</source>
        <translation>Largeur du rouleau</translation>
    </message>
    <message>
        <source>PaperSurface</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>PaperTone</source>
        <translation>Tonalité</translation>
    </message>
    <message>
        <source>Overspill</source>
        <translation>Débord</translation>
    </message>
    <message>
        <source>BindingMargin</source>
        <translation>Marge de reliure</translation>
    </message>
    <message>
        <source>BindingWidth</source>
        <translation>Largeur de la marge</translation>
    </message>
    <message>
        <source>ResizeOption</source>
        <translation>Taille de l’image</translation>
    </message>
    <message>
        <source>TwoSided</source>
        <translation>Recto verso</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Unité recto verso</translation>
    </message>
    <message>
        <source>HalvernLastResolution</source>
        <translation>Dernière résolution</translation>
    </message>
</context>
</TS>
