<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Features</source>
        <translation>Papel y calidad</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Two-Sided Printing</source>
        <translation>A doble cara</translation>
    </message>
    <message>
        <source>&amp;Feed</source>
        <translation>&amp;Alimentación</translation>
    </message>
    <message>
        <source>Paper feed</source>
        <translation>Alimentación del papel</translation>
    </message>
    <message>
        <source>S&amp;heet paper</source>
        <translation>&amp;Hojas</translation>
    </message>
    <message>
        <source>Sheet paper</source>
        <translation>Papel en hojas</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Rollo de papel</translation>
    </message>
    <message>
        <source>Roll &amp;width</source>
        <translation>A&amp;ncho</translation>
    </message>
    <message>
        <source>Roll width</source>
        <translation>Ancho del rollo</translation>
    </message>
    <message>
        <source>&amp;Surface</source>
        <translation>&amp;Superficie</translation>
    </message>
    <message>
        <source>Surface of the roll</source>
        <translation>Superficie del rollo</translation>
    </message>
    <message>
        <source>The numbers are the surface codes of the paper.</source>
        <translation>Los números son los códigos de superficie del papel.</translation>
    </message>
    <message>
        <source>O&amp;verspill</source>
        <translation>Des&amp;bordamiento</translation>
    </message>
    <message>
        <source>Overspill in millimetres</source>
        <translation>Desbordamiento en milímetros</translation>
    </message>
    <message>
        <source>How far the picture reaches beyond the edges of the roll, so that no white edge remains.</source>
        <translation>Lo que la imagen sobresale de los bordes del rollo, para que no quede un borde blanco.</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Reso&amp;lution</source>
        <translation>Reso&amp;lución</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>&amp;Tone</source>
        <translation>&amp;Tono</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Caras</translation>
    </message>
    <message>
        <source>Two-s&amp;ided</source>
        <translation>Doble &amp;cara</translation>
    </message>
    <message>
        <source>Two-sided printing</source>
        <translation>Impresión a doble cara</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>Encuadernación</translation>
    </message>
    <message>
        <source>&amp;Binding margin</source>
        <translation>&amp;Margen</translation>
    </message>
    <message>
        <source>Binding margin</source>
        <translation>Margen de encuadernación</translation>
    </message>
    <message>
        <source>Wi&amp;dth</source>
        <translation>Anch&amp;ura</translation>
    </message>
    <message>
        <source>Width of the binding margin in millimetres</source>
        <translation>Anchura del margen de encuadernación en milímetros</translation>
    </message>
    <message>
        <source>How much of the page stays free for the binding.</source>
        <translation>La parte de la página que queda libre para la encuadernación.</translation>
    </message>
    <message>
        <source>Two-sided printing needs cut sheets. The binding margin is the edge of the page as you see it on the screen; the picture keeps clear of it.</source>
        <translation>La impresión a doble cara requiere hojas sueltas. El margen de encuadernación es el borde de la página tal como se ve en la pantalla; la imagen lo deja libre.</translation>
    </message>
    <message>
        <source>The printer is being asked for its papers</source>
        <translation>Se consultan los papeles de la impresora</translation>
    </message>
    <message>
        <source>Last updated %@</source>
        <translation>Última actualización: %@</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>The sheet feed was not available when this page was made.</source>
        <translation>La alimentación de hojas no estaba disponible cuando se creó esta página.</translation>
    </message>
    <message>
        <source>The printer has no cut sheets loaded.</source>
        <translation>La impresora no tiene hojas cargadas.</translation>
    </message>
    <message>
        <source>The printer has no paper roll loaded.</source>
        <translation>La impresora no tiene ningún rollo cargado.</translation>
    </message>
    <message>
        <source>Only for cut sheets. Choose the sheet feed first.</source>
        <translation>Solo para hojas. Elija primero la alimentación de hojas.</translation>
    </message>
    <message>
        <source>Only for paper rolls. Choose the roll feed first.</source>
        <translation>Solo para rollos. Elija primero la alimentación por rollo.</translation>
    </message>
    <message>
        <source>No roll of this width has this surface.</source>
        <translation>Ningún rollo de este ancho tiene esta superficie.</translation>
    </message>
    <message>
        <source>The chosen paper cannot be printed at this resolution.</source>
        <translation>El papel elegido no se imprime a esta resolución.</translation>
    </message>
    <message>
        <source>The loaded papers have one tone only.</source>
        <translation>Los papeles cargados solo tienen un tono.</translation>
    </message>
    <message>
        <source>The loaded papers do not have this tone.</source>
        <translation>Los papeles cargados no tienen este tono.</translation>
    </message>
    <message>
        <source>Two-sided printing needs cut sheets and a printer with a duplex unit.</source>
        <translation>La doble cara requiere hojas y una impresora con unidad dúplex.</translation>
    </message>
    <message>
        <source>Choose two-sided printing first.</source>
        <translation>Elija primero la impresión a doble cara.</translation>
    </message>
    <message>
        <source>Choose a binding margin first.</source>
        <translation>Elija primero un margen de encuadernación.</translation>
    </message>
    <message>
        <source>The sheet is not turned over this edge.</source>
        <translation>La hoja no se gira por este borde.</translation>
    </message>
    <message>
        <source>Cut Sheet</source>
        <translation>Hoja suelta</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rollo</translation>
    </message>
    <message>
        <source>Long Edge</source>
        <translation>Borde largo</translation>
    </message>
    <message>
        <source>Short Edge</source>
        <translation>Borde corto</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>1 - Gloss</source>
        <translation>1 – Brillante</translation>
    </message>
    <message>
        <source>2 - Satin</source>
        <translation>2 – Satinado</translation>
    </message>
    <message>
        <source>3 - Matte</source>
        <translation>3 – Mate</translation>
    </message>
    <message>
        <source>4 - Thin Silk</source>
        <translation>4 – Seda fina</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Vivid</source>
        <translation>Vivo</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Suave</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Cálido</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>Frío</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Blanco y negro</translation>
    </message>
    <message>
        <source>Deep Black</source>
        <translation>Negro profundo</translation>
    </message>
    <message>
        <source>High Key</source>
        <translation>Clave alta</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>Ajustar a la página</translation>
    </message>
    <message>
        <source>Fill Page</source>
        <translation>Llenar la página</translation>
    </message>
    <message>
        <source>PaperFeed</source>
        <translation>Alimentación del papel</translation>
    </message>
    <message>
        <source>PaperName</source>
        <translation>Papel en hojas</translation>
    </message>
    <message>
        <source>PaperWidth</source>
        <translation>Ancho del rollo</translation>
    </message>
    <message>
        <source>PaperSurface</source>
        <translation>Superficie</translation>
    </message>
    <message>
        <source>PaperTone</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Overspill</source>
        <translation>Desbordamiento</translation>
    </message>
    <message>
        <source>BindingMargin</source>
        <translation>Margen de encuadernación</translation>
    </message>
    <message>
        <source>BindingWidth</source>
        <translation>Anchura del margen</translation>
    </message>
    <message>
        <source>ResizeOption</source>
        <translation>Tamaño de la imagen</translation>
    </message>
    <message>
        <source>TwoSided</source>
        <translation>Doble cara</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Unidad dúplex</translation>
    </message>
    <message>
        <source>HalvernLastResolution</source>
        <translation>Última resolución</translation>
    </message>
</context>
</TS>
