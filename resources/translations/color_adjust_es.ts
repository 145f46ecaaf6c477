<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Color Adjustments</source>
        <translation>Ajustes de color</translation>
    </message>
    <message>
        <source>&amp;Adjust the colors</source>
        <translation>&amp;Ajustar los colores</translation>
    </message>
    <message>
        <source>Color balance</source>
        <translation>Equilibrio de color</translation>
    </message>
    <message>
        <source>Tone and saturation</source>
        <translation>Tono y saturación</translation>
    </message>
    <message>
        <source>Re&amp;d</source>
        <translation>Ro&amp;jo</translation>
    </message>
    <message>
        <source>Gr&amp;een</source>
        <translation>V&amp;erde</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translation>A&amp;zul</translation>
    </message>
    <message>
        <source>Brig&amp;htness</source>
        <translation>Bri&amp;llo</translation>
    </message>
    <message>
        <source>&amp;Contrast</source>
        <translation>&amp;Contraste</translation>
    </message>
    <message>
        <source>Sa&amp;turation</source>
        <translation>Sa&amp;turación</translation>
    </message>
    <message>
        <source>Ga&amp;mma</source>
        <translation>Ga&amp;mma</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
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
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>The mark behind each slider is the value that changes nothing. The adjustments go with the print; the photo itself stays as it is.</source>
        <translation>La marca detrás de cada deslizador es el valor que no cambia nada. Los ajustes solo afectan a la copia impresa; la foto queda como está.</translation>
    </message>
    <message>
        <source>AdjustmentsEnabled</source>
        <translation>Ajustes de color</translation>
    </message>
    <message>
        <source>Reduce red by one</source>
        <translation>Reducir el rojo en uno</translation>
    </message>
    <message>
        <source>Increase red by one</source>
        <translation>Aumentar el rojo en uno</translation>
    </message>
    <message>
        <source>Reduce green by one</source>
        <translation>Reducir el verde en uno</translation>
    </message>
    <message>
        <source>Increase green by one</source>
        <translation>Aumentar el verde en uno</translation>
    </message>
    <message>
        <source>Reduce blue by one</source>
        <translation>Reducir el azul en uno</translation>
    </message>
    <message>
        <source>Increase blue by one</source>
        <translation>Aumentar el azul en uno</translation>
    </message>
    <message>
        <source>Reduce brightness by one</source>
        <translation>Reducir el brillo en uno</translation>
    </message>
    <message>
        <source>Increase brightness by one</source>
        <translation>Aumentar el brillo en uno</translation>
    </message>
    <message>
        <source>Reduce contrast by one</source>
        <translation>Reducir el contraste en uno</translation>
    </message>
    <message>
        <source>Increase contrast by one</source>
        <translation>Aumentar el contraste en uno</translation>
    </message>
    <message>
        <source>Reduce saturation by one</source>
        <translation>Reducir la saturación en uno</translation>
    </message>
    <message>
        <source>Increase saturation by one</source>
        <translation>Aumentar la saturación en uno</translation>
    </message>
    <message>
        <source>Reduce gamma by one</source>
        <translation>Reducir la gamma en uno</translation>
    </message>
    <message>
        <source>Increase gamma by one</source>
        <translation>Aumentar la gamma en uno</translation>
    </message>
</context>
</TS>
