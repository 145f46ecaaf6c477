<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Color Adjustments</source>
        <translation>Réglage des couleurs</translation>
    </message>
    <message>
        <source>&amp;Adjust the colors</source>
        <translation>&amp;Ajuster les couleurs</translation>
    </message>
    <message>
        <source>Color balance</source>
        <translation>Balance des couleurs</translation>
    </message>
    <message>
        <source>Tone and saturation</source>
        <translation>Tons et saturation</translation>
    </message>
    <message>
        <source>Re&amp;d</source>
        <translation>Rou&amp;ge</translation>
    </message>
    <message>
        <source>Gr&amp;een</source>
        <translation>V&amp;ert</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translation>&amp;Bleu</translation>
    </message>
    <message>
        <source>Brig&amp;htness</source>
        <translation>&amp;Luminosité</translation>
    </message>
    <message>
        <source>&amp;Contrast</source>
        <translation>&amp;Contraste</translation>
    </message>
    <message>
        <source>Sa&amp;turation</source>
        <translation>Sa&amp;turation</translation>
    </message>
    <message>
        <source>Ga&amp;mma</source>
        <translation>Ga&amp;mma</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
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
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>The mark behind each slider is the value that changes nothing. The adjustments go with the print; the photo itself stays as it is.</source>
        <translation>Le repère derrière chaque curseur est la valeur qui ne change rien. Les réglages ne concernent que le tirage ; la photo elle-même reste intacte.</translation>
    </message>
    <message>
        <source>AdjustmentsEnabled</source>
        <translation>Réglage des couleurs</translation>
    </message>
    <message>
        <source>Reduce red by one</source>
        <translation>Diminuer le rouge de un</translation>
    </message>
    <message>
        <source>Increase red by one</source>
        <translation>Augmenter le rouge de un</translation>
    </message>
    <message>
        <source>Reduce green by one</source>
        <translation>Diminuer le vert de un</translation>
    </message>
    <message>
        <source>Increase green by one</source>
        <translation>Augmenter le vert de un</translation>
    </message>
    <message>
        <source>Reduce blue by one</source>
        <translation>Diminuer le bleu de un</translation>
    </message>
    <message>
        <source>Increase blue by one</source>
        <translation>Augmenter le bleu de un</translation>
    </message>
    <message>
        <source>Reduce brightness by one</source>
        <translation>Diminuer la luminosité de un</translation>
    </message>
    <message>
        <source>Increase brightness by one</source>
        <translation>Augmenter la luminosité de un</translation>
    </message>
    <message>
        <source>Reduce contrast by one</source>
        <translation>Diminuer le contraste de un</translation>
    </message>
    <message>
        <source>Increase contrast by one</source>
        <translation>Augmenter le contraste de un</translation>
    </message>
    <message>
        <source>Reduce saturation by one</source>
        <translation>Diminuer la saturation de un</translation>
    </message>
    <message>
        <source>Increase saturation by one</source>
        <translation>Augmenter la saturation de un</translation>
    </message>
    <message>
        <source>Reduce gamma by one</source>
        <translation>Diminuer le gamma de un</translation>
    </message>
    <message>
        <source>Increase gamma by one</source>
        <translation>Augmenter le gamma de un</translation>
    </message>
</context>
</TS>
