<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Gallery</name>
    <message>
        <source>Advanced colour picker</source>
        <translation>Selector de color avanzado</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>Cuadros combinados</translation>
    </message>
    <message>
        <source>Drop and drag</source>
        <translation>Soltar y arrastrar</translation>
    </message>
    <message>
        <source>Event helpers</source>
        <translation>Ayudantes de eventos</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Cuentagotas</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Frame over a window</source>
        <translation>Marco sobre una ventana</translation>
    </message>
    <message>
        <source>Labels and inputs</source>
        <translation>Etiquetas y entradas</translation>
    </message>
    <message>
        <source>Named palette</source>
        <translation>Paleta con nombres</translation>
    </message>
    <message>
        <source>Pens and lines</source>
        <translation>Plumas y líneas</translation>
    </message>
    <message>
        <source>Selection frames</source>
        <translation>Marcos de selección</translation>
    </message>
    <message>
        <source>Tiles and title bars</source>
        <translation>Mosaicos y barras de título</translation>
    </message>
    <message>
        <source>Walkthrough</source>
        <translation>Recorrido guiado</translation>
    </message>
    <message>
        <source>Widget renderer</source>
        <translation>Representación de widgets</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Cuadros de diálogo de archivos</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Barra de tareas</translation>
    </message>
</context>
<context>
    <name>Gallery::AdvancedColorPickerPage</name>
    <message>
        <source>Click a colour to open its popup; the note takes the new colour while you choose.</source>
        <translation>Haga clic en un color para abrir su ventana emergente; la nota toma el color nuevo mientras elige.</translation>
    </message>
    <message>
        <source>Buy milk, feed the cat</source>
        <translation>Comprar leche, alimentar al gato</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinta</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Marcador</translation>
    </message>
    <message>
        <source>Drag a colour from the palette to one of the twelve slots above it. The slots are shared: open another picker and find the colour there.</source>
        <translation>Arrastre un color de la paleta a una de las doce casillas que hay encima. Las casillas son compartidas: abra otro selector y encontrará el color allí.</translation>
    </message>
    <message>
        <source>Opacity of the marker</source>
        <translation>Opacidad del marcador</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Random colours</source>
        <translation>Colores aleatorios</translation>
    </message>
    <message>
        <source>A colour that is set by the program makes no signal.</source>
        <translation>Un color fijado por el programa no emite ninguna señal.</translation>
    </message>
    <message>
        <source>Open popup here</source>
        <translation>Abrir la ventana aquí</translation>
    </message>
</context>
<context>
    <name>Gallery::ComboBoxesPage</name>
    <message>
        <source>Combo boxes that are narrower than their items. Turn the wheel over the form, open the lists.</source>
        <translation>Cuadros combinados más estrechos que sus elementos. Gire la rueda sobre el formulario, abra las listas.</translation>
    </message>
    <message>
        <source>Narrow box</source>
        <translation>Cuadro estrecho</translation>
    </message>
    <message>
        <source>Elided text and wide popup</source>
        <translation>Texto abreviado y lista ancha</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Fila %1</translation>
    </message>
    <message>
        <source>No wheel in a scrolling form</source>
        <translation>Sin rueda en un formulario con desplazamiento</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Box with separators</source>
        <translation>Cuadro con separadores</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Separadores</translation>
    </message>
    <message>
        <source>A preset with a rather long name</source>
        <translation>Un ajuste con un nombre bastante largo</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>Tranquilo</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Luminoso</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noche</translation>
    </message>
    <message>
        <source>Preset panel</source>
        <translation>Panel de ajustes</translation>
    </message>
    <message>
        <source>Wide popup</source>
        <translation>Lista ancha</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Rueda del ratón</translation>
    </message>
    <message>
        <source>Elide text</source>
        <translation>Abreviar el texto</translation>
    </message>
    <message>
        <source>Tool tip:</source>
        <translation>Sugerencia:</translation>
    </message>
    <message>
        <source>Styled separators</source>
        <translation>Separadores con estilo</translation>
    </message>
    <message>
        <source>Preset icon</source>
        <translation>Icono del ajuste</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Corto</translation>
    </message>
    <message>
        <source>An item whose text is much longer than the box</source>
        <translation>Un elemento cuyo texto es mucho más largo que el cuadro</translation>
    </message>
    <message>
        <source>Another one that does not fit</source>
        <translation>Otro que no cabe</translation>
    </message>
</context>
<context>
    <name>Gallery::DropAndDragPage</name>
    <message>
        <source>Drop files from a file manager: one observer takes pictures, the other texts, and each hears of everything that is dropped. Drag the panel by any point, its button included: what was dragged is not clicked.</source>
        <translation>Suelte archivos desde un gestor de archivos: un observador toma las imágenes, el otro los textos, y cada uno se entera de todo lo que se suelta. Arrastre el panel por cualquier punto, incluido su botón: lo que se ha arrastrado no se pulsa.</translation>
    </message>
    <message>
        <source>Pictures are welcome</source>
        <translation>Las imágenes son bienvenidas</translation>
    </message>
    <message>
        <source>Texts are welcome</source>
        <translation>Los textos son bienvenidos</translation>
    </message>
    <message>
        <source>Drop pictures or texts here</source>
        <translation>Suelte aquí imágenes o textos</translation>
    </message>
    <message>
        <source>Drag me anywhere</source>
        <translation>Arrástreme por cualquier sitio</translation>
    </message>
    <message>
        <source>Click me</source>
        <translation>Haga clic en mí</translation>
    </message>
</context>
<context>
    <name>Gallery::EventHelpersPage</name>
    <message>
        <source>Scribble on the pad: the lamps below show the signals that the helpers make of its events. Without propagation the signals still come, but the pad itself sees no mouse any more.</source>
        <translation>Garabatee en el bloc: las lámparas de abajo muestran las señales que los ayudantes crean a partir de sus eventos. Sin propagación las señales siguen llegando, pero el propio bloc ya no ve el ratón.</translation>
    </message>
    <message>
        <source>Scribble here</source>
        <translation>Garabatee aquí</translation>
    </message>
    <message>
        <source>Events go on to the pad</source>
        <translation>Los eventos llegan al bloc</translation>
    </message>
    <message>
        <source>Hover events</source>
        <translation>Eventos de paso del ratón</translation>
    </message>
    <message>
        <source>Moves without a button</source>
        <translation>Movimientos sin botón</translation>
    </message>
    <message>
        <source>Wipe the pad</source>
        <translation>Limpiar el bloc</translation>
    </message>
    <message>
        <source>Drop it here</source>
        <translation>Suéltelo aquí</translation>
    </message>
    <message>
        <source>Drag this text</source>
        <translation>Arrastre este texto</translation>
    </message>
    <message>
        <source>Drop field is guarded</source>
        <translation>El campo de destino está protegido</translation>
    </message>
    <message>
        <source>Window stays on top</source>
        <translation>La ventana queda siempre visible</translation>
    </message>
</context>
<context>
    <name>Gallery::EyedropperPage</name>
    <message>
        <source>Press the button, then click into the picture: the button takes the colour under the cursor. Any key picks as well; a click elsewhere ends it without a colour.</source>
        <translation>Pulse el botón y haga clic en la imagen: el botón toma el color que hay bajo el cursor. También sirve cualquier tecla; un clic en otro sitio termina sin color.</translation>
    </message>
    <message>
        <source>Pick a colour from the picture</source>
        <translation>Tomar un color de la imagen</translation>
    </message>
    <message>
        <source>Button shows the colour</source>
        <translation>El botón muestra el color</translation>
    </message>
    <message>
        <source>Picture is the target</source>
        <translation>La imagen es el destino</translation>
    </message>
    <message>
        <source>Frame round the picture</source>
        <translation>Marco alrededor de la imagen</translation>
    </message>
    <message>
        <source>Pick without the button</source>
        <translation>Tomar sin el botón</translation>
    </message>
    <message>
        <source>The program waits for the colour.</source>
        <translation>El programa espera el color.</translation>
    </message>
</context>
<context>
    <name>Gallery::FileDialogsPage</name>
    <message>
        <source>Each button calls the function of its name and shows what comes back: the result, string by string, and the filter that was written back. On Windows getOpen() shows the dialog of the system, which takes files and folders together.</source>
        <translation>Cada botón llama a la función de su nombre y muestra lo que devuelve: el resultado, cadena a cadena, y el filtro que se escribió de vuelta. En Windows, getOpen() muestra el cuadro de diálogo del sistema, que acepta archivos y carpetas a la vez.</translation>
    </message>
    <message>
        <source>This disc is read-only: nothing can be written to it.</source>
        <translation>Este disco es de solo lectura: no se puede escribir nada en él.</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;Resultado</translation>
    </message>
    <message>
        <source>Nothing was asked yet</source>
        <translation>Aún no se ha preguntado nada</translation>
    </message>
    <message>
        <source>Choose something</source>
        <translation>Elija algo</translation>
    </message>
    <message>
        <source>Images (*.jpg *.png);;Texts (*.txt *.md);;All files (*)</source>
        <translation>Imágenes (*.jpg *.png);;Textos (*.txt *.md);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>getOpen(): files</source>
        <translation>getOpen(): archivos</translation>
    </message>
    <message>
        <source>getOpen(): folders</source>
        <translation>getOpen(): carpetas</translation>
    </message>
    <message>
        <source>getOpen(): several</source>
        <translation>getOpen(): varios</translation>
    </message>
    <message>
        <source>An empty list</source>
        <translation>Una lista vacía</translation>
    </message>
    <message>
        <source>Filter written back: %1</source>
        <translation>Filtro devuelto: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::FormattingPage</name>
    <message>
        <source>Format the sample with the two strips. Their icons come from the page&apos;s style sheet, which selects the buttons by their property &quot;styleTag&quot;.</source>
        <translation>Dé formato a la muestra con las dos barras. Sus iconos provienen de la hoja de estilo de la página, que selecciona los botones por su propiedad «styleTag».</translation>
    </message>
    <message>
        <source>The quick brown fox jumps over the lazy dog, and the dog, being lazy, lets it jump as often as it likes.</source>
        <translation>El veloz zorro marrón salta sobre el perro perezoso, y el perro, por perezoso, le deja saltar tantas veces como quiera.</translation>
    </message>
    <message>
        <source>Plain font</source>
        <translation>Fuente normal</translation>
    </message>
    <message>
        <source>The program sets a font: a signal for each toggle that changes.</source>
        <translation>El programa fija una fuente: una señal por cada botón que cambia.</translation>
    </message>
    <message>
        <source>Set to left</source>
        <translation>Fijar a la izquierda</translation>
    </message>
    <message>
        <source>The program checks a button: no signal, and the sample stays as it is.</source>
        <translation>El programa marca un botón: ninguna señal, y la muestra queda como está.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
</context>
<context>
    <name>Gallery::FrameOverWindowPage</name>
    <message>
        <source>The window below goes on living while the frame lies over it. In edit mode the mouse moves the frame; otherwise it reaches the window.</source>
        <translation>La ventana de abajo sigue viva mientras el marco está sobre ella. En el modo de edición el ratón mueve el marco; si no, llega a la ventana.</translation>
    </message>
    <message>
        <source>Type here while edit mode is off</source>
        <translation>Escriba aquí sin el modo de edición</translation>
    </message>
    <message>
        <source>Press here while edit mode is off</source>
        <translation>Pulse aquí sin el modo de edición</translation>
    </message>
    <message>
        <source>A window with its own life</source>
        <translation>Una ventana con vida propia</translation>
    </message>
    <message>
        <source>From %1 %, %2 %: %3 % wide, %4 % high</source>
        <comment>position and size of the frame</comment>
        <translation>Desde %1 %, %2 %: %3 % de ancho, %4 % de alto</translation>
    </message>
    <message>
        <source>Edit mode</source>
        <translation>Modo de edición</translation>
    </message>
    <message>
        <source>Keep the ratio</source>
        <translation>Mantener la proporción</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Área de trabajo</translation>
    </message>
    <message>
        <source>Veil</source>
        <translation>Velo</translation>
    </message>
</context>
<context>
    <name>Gallery::GalleryHint</name>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Never again</source>
        <translation>Nunca más</translation>
    </message>
</context>
<context>
    <name>Gallery::LabelsAndInputsPage</name>
    <message>
        <source>Drag the handle beside the column to narrow it: labels and the line edit elide their texts and tell the whole of them in tool tips. The line edit shows all of it while you edit.</source>
        <translation>Arrastre el tirador junto a la columna para estrecharla: las etiquetas y el campo de texto abrevian su contenido y lo muestran completo en una sugerencia. El campo lo muestra completo mientras se edita.</translation>
    </message>
    <message>
        <source>A file name that is much too long for a column as narrow as this one.txt</source>
        <translation>Un nombre de archivo demasiado largo para una columna tan estrecha.txt</translation>
    </message>
    <message>
        <source>Mixed directions: %1, elided in order</source>
        <translation>Direcciones mezcladas: %1, abreviado en orden</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Corto</translation>
    </message>
    <message>
        <source>Drag the handle at the edge of this field.</source>
        <translation>Arrastre el tirador del borde de este campo.</translation>
    </message>
    <message>
        <source>Press here, with any button</source>
        <translation>Pulse aquí, con cualquier botón</translation>
    </message>
    <message>
        <source>Clipped text</source>
        <translation>Texto abreviado</translation>
    </message>
    <message>
        <source>A text that is shown whole while you edit it, and elided while you do not</source>
        <translation>Un texto que se muestra completo mientras se edita y abreviado cuando no</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Labels report presses</source>
        <translation>Las etiquetas avisan al pulsarlas</translation>
    </message>
    <message>
        <source>Labels elide their texts</source>
        <translation>Las etiquetas abrevian sus textos</translation>
    </message>
    <message>
        <source>at the end</source>
        <translation>al final</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>en el medio</translation>
    </message>
    <message>
        <source>at the beginning</source>
        <translation>al principio</translation>
    </message>
    <message>
        <source>Elide</source>
        <translation>Abreviar</translation>
    </message>
    <message>
        <source>What do you think of it?</source>
        <translation>¿Qué le parece?</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Texto de ayuda</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Digits at most</source>
        <translation>Dígitos como máximo</translation>
    </message>
</context>
<context>
    <name>Gallery::MainWindow</name>
    <message>
        <source>KQtUi gallery</source>
        <translation>Galería de KQtUi</translation>
    </message>
    <message>
        <source>&amp;Find a page</source>
        <translation>&amp;Buscar una página</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Dark palette</source>
        <translation>Paleta &amp;oscura</translation>
    </message>
    <message>
        <source>&amp;Right to left</source>
        <translation>De &amp;derecha a izquierda</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Idioma: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::NamedPalettePage</name>
    <message>
        <source>Click the button: a default colour, forty named colours, and a dialog behind &quot;More...&quot;.</source>
        <translation>Haga clic en el botón: un color predeterminado, cuarenta colores con nombre y un cuadro de diálogo tras «Más...».</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>While its popup is open the picker&apos;s property &quot;pressed&quot; is true: the page&apos;s style sheet gives it a thick border then.</source>
        <translation>Mientras la paleta está abierta, la propiedad «pressed» del selector es verdadera: la hoja de estilo de la página le da entonces un borde grueso.</translation>
    </message>
    <message>
        <source>Colorized</source>
        <translation>Coloreado</translation>
    </message>
    <message>
        <source>Dark popup</source>
        <translation>Paleta oscura</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Make it the default</source>
        <translation>Hacerlo predeterminado</translation>
    </message>
    <message>
        <source>The popup&apos;s &quot;Default&quot; button chooses this colour from now on.</source>
        <translation>El botón «Predeterminado» de la paleta elige este color a partir de ahora.</translation>
    </message>
</context>
<context>
    <name>Gallery::Page</name>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Señales</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Title or component</source>
        <translation>Título o componente</translation>
    </message>
</context>
<context>
    <name>Gallery::PensAndLinesPage</name>
    <message>
        <source>Pens, lines and opacity: each group draws what its boxes say.</source>
        <translation>Plumas, líneas y opacidad: cada grupo dibuja lo que dicen sus cuadros.</translation>
    </message>
    <message>
        <source>Pen picker</source>
        <translation>Selector de pluma</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>Estilo de línea</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Ancho de línea</translation>
    </message>
    <message>
        <source>Line style and line width</source>
        <translation>Estilo y ancho de línea</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Opacity adapter</source>
        <translation>Adaptador de opacidad</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>Valor: %1</translation>
    </message>
    <message>
        <source>Slider with a zero tick</source>
        <translation>Control deslizante con marca de cero</translation>
    </message>
    <message>
        <source>Coloured tick</source>
        <translation>Marca de color</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
</context>
<context>
    <name>Gallery::SelectionFramesPage</name>
    <message>
        <source>Drag the frames, their corners and their sides. The small picture is what the frames are rendered to, with its alpha.</source>
        <translation>Arrastre los marcos, sus esquinas y sus lados. La imagen pequeña es el resultado de representar los marcos, con su canal alfa.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Región</translation>
    </message>
    <message>
        <source>Holiday by the sea</source>
        <translation>Vacaciones junto al mar</translation>
    </message>
    <message>
        <source>Picture keeps its ratio</source>
        <translation>La imagen mantiene su proporción</translation>
    </message>
    <message>
        <source>Region keeps its ratio</source>
        <translation>La región mantiene su proporción</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Área de trabajo</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Relleno</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
</context>
<context>
    <name>Gallery::SignalLog</name>
    <message>
        <source>Signals appear here.</source>
        <translation>Las señales aparecen aquí.</translation>
    </message>
</context>
<context>
    <name>Gallery::TaskbarPage</name>
    <message>
        <source>Move the slider or press a button, and look at the taskbar or dock of your desktop: that begins an operation. Below stands what was asked for, and what is seen of it where.</source>
        <translation>Mueva el control deslizante o pulse un botón y mire la barra de tareas o el dock de su escritorio: así empieza una operación. Debajo figura lo que se ha pedido y qué se ve de ello y dónde.</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Windows</translation>
    </message>
    <message>
        <source>The button of this window in the taskbar fills: green while the operation runs, yellow when it is paused, red when it was stopped. A busy one has a light that runs through it.</source>
        <translation>El botón de esta ventana en la barra de tareas se llena: verde mientras la operación avanza, amarillo si está en pausa, rojo si se ha detenido. Si está ocupada, lo recorre una luz.</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>Linux</translation>
    </message>
    <message>
        <source>The entry of this application has a bar, in docks that know its desktop file and show progress: those of KDE Plasma and Ubuntu, Dash to Dock, Plank and others. Busy is an empty bar, paused looks like running, and what was stopped asks for attention.</source>
        <translation>La entrada de esta aplicación muestra una barra en los docks que conocen su archivo de escritorio y muestran el progreso: los de KDE Plasma y Ubuntu, Dash to Dock, Plank y otros. Ocupada es una barra vacía, en pausa parece en marcha, y lo detenido pide atención.</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>En otros sistemas</translation>
    </message>
    <message>
        <source>Nothing is seen.</source>
        <translation>No se ve nada.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>End the operation</source>
        <translation>Terminar la operación</translation>
    </message>
    <message>
        <source>Desktop file</source>
        <translation>Archivo de escritorio</translation>
    </message>
    <message>
        <source>There is no operation.</source>
        <translation>No hay ninguna operación.</translation>
    </message>
    <message>
        <source>The indicator is hidden.</source>
        <translation>El indicador está oculto.</translation>
    </message>
    <message>
        <source>The operation was stopped.</source>
        <translation>La operación se ha detenido.</translation>
    </message>
    <message>
        <source>The operation is paused.</source>
        <translation>La operación está en pausa.</translation>
    </message>
    <message>
        <source>The operation runs; how far it is nobody knows.</source>
        <translation>La operación está en marcha; nadie sabe por dónde va.</translation>
    </message>
    <message>
        <source>The operation runs.</source>
        <translation>La operación está en marcha.</translation>
    </message>
</context>
<context>
    <name>Gallery::TilesPage</name>
    <message>
        <source>Tiles with a star, a play button and a duration over a picture; and a panel whose title bar can be dragged, detached and closed.</source>
        <translation>Mosaicos con una estrella, un botón de reproducción y una duración sobre una imagen; y un panel cuya barra de título se puede arrastrar, desanclar y cerrar.</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Amanecer</translation>
    </message>
    <message>
        <source>Noon</source>
        <translation>Mediodía</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Atardecer</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noche</translation>
    </message>
    <message>
        <source>Pin playlist</source>
        <translation>Anclar la lista de reproducción</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <translation>Desanclar la lista de reproducción</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>Estrellas</translation>
    </message>
    <message>
        <source>Play buttons</source>
        <translation>Botones de reproducción</translation>
    </message>
    <message>
        <source>Clips can be played</source>
        <translation>Los clips se pueden reproducir</translation>
    </message>
    <message>
        <source>Styled as floating</source>
        <translation>Con estilo flotante</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>Mostrar el panel</translation>
    </message>
</context>
<context>
    <name>Gallery::Tour</name>
    <message>
        <source>Welcome to the gallery</source>
        <translation>Le damos la bienvenida a la galería</translation>
    </message>
    <message>
        <source>Every family of components has a page of its own, and all of them are alive. The tour shows you around in a minute.</source>
        <translation>Cada familia de componentes tiene su propia página, y todos están vivos. El recorrido se la enseña en un minuto.</translation>
    </message>
    <message>
        <source>Find a page</source>
        <translation>Buscar una página</translation>
    </message>
    <message>
        <source>Type part of a title. The arrow keys move through the pages that are left.</source>
        <translation>Escriba parte de un título. Las teclas de flecha recorren las páginas que quedan.</translation>
    </message>
    <message>
        <source>Dark, and from right to left</source>
        <translation>Oscuro, y de derecha a izquierda</translation>
    </message>
    <message>
        <source>These two switches are one target: the frame goes round both. This hint stays clear of the filter, so that you can go on typing.</source>
        <translation>Estos dos botones son un solo destino: el marco los rodea a ambos. Esta ayuda no tapa el filtro, para que pueda seguir escribiendo.</translation>
    </message>
    <message>
        <source>In your language</source>
        <translation>En su idioma</translation>
    </message>
    <message>
        <source>The texts change at once, those of this hint as well. Clicking what a hint points at takes you on, just as Next does.</source>
        <translation>Los textos cambian al instante, también los de esta ayuda. Un clic en lo que señala una ayuda le lleva adelante, igual que Siguiente.</translation>
    </message>
    <message>
        <source>Open a page</source>
        <translation>Abrir una página</translation>
    </message>
    <message>
        <source>Choose &quot;Walkthrough&quot; in the list. The last hint waits for that page to be opened.</source>
        <translation>Elija «Recorrido guiado» en la lista. La última ayuda espera a que se abra esa página.</translation>
    </message>
    <message>
        <source>How the tour works</source>
        <translation>Cómo funciona el recorrido</translation>
    </message>
    <message>
        <source>A walkthrough is a machine of named states. Here you see another one at work, and can drive it yourself.</source>
        <translation>Un recorrido guiado es una máquina de estados con nombre. Aquí ve otra en marcha y puede manejarla usted mismo.</translation>
    </message>
</context>
<context>
    <name>Gallery::WalkthroughPage</name>
    <message>
        <source>One target</source>
        <translation>Un destino</translation>
    </message>
    <message>
        <source>Press the button, or Next.</source>
        <translation>Pulse el botón, o Siguiente.</translation>
    </message>
    <message>
        <source>Two targets</source>
        <translation>Dos destinos</translation>
    </message>
    <message>
        <source>Hide one with the switches: the frame follows. Hide both, and the hint goes.</source>
        <translation>Oculte uno con las casillas: el marco lo sigue. Oculte los dos y la ayuda desaparece.</translation>
    </message>
    <message>
        <source>A small tour of its own. Start it, hide its targets, or enter a state by double-clicking it: the lists show the machine&apos;s groups, and what each hint still waits for.</source>
        <translation>Un pequeño recorrido aparte. Inícielo, oculte sus destinos o entre en un estado con un doble clic: las listas muestran los grupos de la máquina y lo que cada ayuda aún espera.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>First lamp</source>
        <translation>Primera lámpara</translation>
    </message>
    <message>
        <source>Second lamp</source>
        <translation>Segunda lámpara</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Active state</source>
        <translation>Estado activo</translation>
    </message>
    <message>
        <source>Groups and states</source>
        <translation>Grupos y estados</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Unmet conditions</source>
        <translation>Condiciones sin cumplir</translation>
    </message>
    <message>
        <source>Waits for</source>
        <translation>Espera a</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Ayudas</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Iniciar el recorrido</translation>
    </message>
    <message>
        <source>Stop the tour</source>
        <translation>Detener el recorrido</translation>
    </message>
    <message>
        <source>Hints enabled</source>
        <translation>Ayudas activadas</translation>
    </message>
    <message>
        <source>Save is shown</source>
        <translation>Guardar está visible</translation>
    </message>
    <message>
        <source>First lamp is shown</source>
        <translation>La primera lámpara está visible</translation>
    </message>
    <message>
        <source>Second lamp is shown</source>
        <translation>La segunda lámpara está visible</translation>
    </message>
    <message>
        <source>Hints avoid the list of hints</source>
        <translation>Las ayudas evitan su lista</translation>
    </message>
    <message>
        <source>entered %1</source>
        <translation>entró en %1</translation>
    </message>
</context>
<context>
    <name>Gallery::WidgetRendererPage</name>
    <message>
        <source>The widgets are drawn into the picture beside them, and cut out of their window. Cut out, they still answer to the mouse.</source>
        <translation>Los widgets se dibujan en la imagen contigua y se recortan de su ventana. Aun recortados, siguen respondiendo al ratón.</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>Componer</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>Devolver</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Botón</translation>
    </message>
    <message>
        <source>Check box</source>
        <translation>Casilla</translation>
    </message>
</context>
</TS>
