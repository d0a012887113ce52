<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Gallery</name>
    <message>
        <source>Advanced colour picker</source>
        <translation>Selettore di colore avanzato</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>Caselle combinate</translation>
    </message>
    <message>
        <source>Drop and drag</source>
        <translation>Rilascio e trascinamento</translation>
    </message>
    <message>
        <source>Event helpers</source>
        <translation>Aiuti per gli eventi</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Contagocce</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>Formattazione</translation>
    </message>
    <message>
        <source>Frame over a window</source>
        <translation>Cornice su una finestra</translation>
    </message>
    <message>
        <source>Labels and inputs</source>
        <translation>Etichette e campi</translation>
    </message>
    <message>
        <source>Named palette</source>
        <translation>Tavolozza con nomi</translation>
    </message>
    <message>
        <source>Pens and lines</source>
        <translation>Penne e linee</translation>
    </message>
    <message>
        <source>Selection frames</source>
        <translation>Cornici di selezione</translation>
    </message>
    <message>
        <source>Tiles and title bars</source>
        <translation>Riquadri e barre del titolo</translation>
    </message>
    <message>
        <source>Walkthrough</source>
        <translation>Visita guidata</translation>
    </message>
    <message>
        <source>Widget renderer</source>
        <translation>Rendering dei widget</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Finestre di dialogo dei file</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Barra delle applicazioni</translation>
    </message>
</context>
<context>
    <name>Gallery::AdvancedColorPickerPage</name>
    <message>
        <source>Click a colour to open its popup; the note takes the new colour while you choose.</source>
        <translation>Fai clic su un colore per aprire la sua finestra; il biglietto prende il nuovo colore mentre scegli.</translation>
    </message>
    <message>
        <source>Buy milk, feed the cat</source>
        <translation>Comprare il latte, nutrire il gatto</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Inchiostro</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Evidenziatore</translation>
    </message>
    <message>
        <source>Drag a colour from the palette to one of the twelve slots above it. The slots are shared: open another picker and find the colour there.</source>
        <translation>Trascina un colore dalla tavolozza su una delle dodici caselle sopra di essa. Le caselle sono condivise: apri un altro selettore e troverai lì il colore.</translation>
    </message>
    <message>
        <source>Opacity of the marker</source>
        <translation>Opacità dell&apos;evidenziatore</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>Random colours</source>
        <translation>Colori casuali</translation>
    </message>
    <message>
        <source>A colour that is set by the program makes no signal.</source>
        <translation>Un colore impostato dal programma non emette alcun segnale.</translation>
    </message>
    <message>
        <source>Open popup here</source>
        <translation>Apri la finestra qui</translation>
    </message>
</context>
<context>
    <name>Gallery::ComboBoxesPage</name>
    <message>
        <source>Combo boxes that are narrower than their items. Turn the wheel over the form, open the lists.</source>
        <translation>Caselle combinate più strette delle loro voci. Gira la rotellina sul modulo, apri gli elenchi.</translation>
    </message>
    <message>
        <source>Narrow box</source>
        <translation>Casella stretta</translation>
    </message>
    <message>
        <source>Elided text and wide popup</source>
        <translation>Testo abbreviato ed elenco largo</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Riga %1</translation>
    </message>
    <message>
        <source>No wheel in a scrolling form</source>
        <translation>Niente rotellina in un modulo a scorrimento</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Taglia</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>Box with separators</source>
        <translation>Casella con separatori</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Separatori</translation>
    </message>
    <message>
        <source>A preset with a rather long name</source>
        <translation>Una preimpostazione dal nome piuttosto lungo</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Preimpostazioni</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>Calmo</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Luminoso</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Notte</translation>
    </message>
    <message>
        <source>Preset panel</source>
        <translation>Pannello delle preimpostazioni</translation>
    </message>
    <message>
        <source>Wide popup</source>
        <translation>Elenco largo</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Rotellina del mouse</translation>
    </message>
    <message>
        <source>Elide text</source>
        <translation>Abbrevia il testo</translation>
    </message>
    <message>
        <source>Tool tip:</source>
        <translation>Suggerimento:</translation>
    </message>
    <message>
        <source>Styled separators</source>
        <translation>Separatori con stile</translation>
    </message>
    <message>
        <source>Preset icon</source>
        <translation>Icona della preimpostazione</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Breve</translation>
    </message>
    <message>
        <source>An item whose text is much longer than the box</source>
        <translation>Una voce il cui testo è molto più lungo della casella</translation>
    </message>
    <message>
        <source>Another one that does not fit</source>
        <translation>Un&apos;altra che non ci sta</translation>
    </message>
</context>
<context>
    <name>Gallery::DropAndDragPage</name>
    <message>
        <source>Drop files from a file manager: one observer takes pictures, the other texts, and each hears of everything that is dropped. Drag the panel by any point, its button included: what was dragged is not clicked.</source>
        <translation>Rilascia dei file da un gestore di file: un osservatore prende le immagini, l&apos;altro i testi, e ciascuno viene a sapere di tutto ciò che è rilasciato. Trascina il pannello da qualsiasi punto, pulsante compreso: ciò che è stato trascinato non viene premuto.</translation>
    </message>
    <message>
        <source>Pictures are welcome</source>
        <translation>Le immagini sono benvenute</translation>
    </message>
    <message>
        <source>Texts are welcome</source>
        <translation>I testi sono benvenuti</translation>
    </message>
    <message>
        <source>Drop pictures or texts here</source>
        <translation>Rilascia qui immagini o testi</translation>
    </message>
    <message>
        <source>Drag me anywhere</source>
        <translation>Trascinami da dove vuoi</translation>
    </message>
    <message>
        <source>Click me</source>
        <translation>Fai clic su di me</translation>
    </message>
</context>
<context>
    <name>Gallery::EventHelpersPage</name>
    <message>
        <source>Scribble on the pad: the lamps below show the signals that the helpers make of its events. Without propagation the signals still come, but the pad itself sees no mouse any more.</source>
        <translation>Scarabocchia sul blocco: le luci qui sotto mostrano i segnali che gli aiuti ricavano dai suoi eventi. Senza propagazione i segnali arrivano ancora, ma il blocco stesso non vede più il mouse.</translation>
    </message>
    <message>
        <source>Scribble here</source>
        <translation>Scarabocchia qui</translation>
    </message>
    <message>
        <source>Events go on to the pad</source>
        <translation>Gli eventi arrivano al blocco</translation>
    </message>
    <message>
        <source>Hover events</source>
        <translation>Eventi di passaggio</translation>
    </message>
    <message>
        <source>Moves without a button</source>
        <translation>Movimenti senza pulsante</translation>
    </message>
    <message>
        <source>Wipe the pad</source>
        <translation>Pulisci il blocco</translation>
    </message>
    <message>
        <source>Drop it here</source>
        <translation>Rilascialo qui</translation>
    </message>
    <message>
        <source>Drag this text</source>
        <translation>Trascina questo testo</translation>
    </message>
    <message>
        <source>Drop field is guarded</source>
        <translation>L&apos;area di rilascio è protetta</translation>
    </message>
    <message>
        <source>Window stays on top</source>
        <translation>La finestra resta in primo piano</translation>
    </message>
</context>
<context>
    <name>Gallery::EyedropperPage</name>
    <message>
        <source>Press the button, then click into the picture: the button takes the colour under the cursor. Any key picks as well; a click elsewhere ends it without a colour.</source>
        <translation>Premi il pulsante, poi fai clic nell&apos;immagine: il pulsante prende il colore sotto il cursore. Va bene anche un tasto qualsiasi; un clic altrove termina senza colore.</translation>
    </message>
    <message>
        <source>Pick a colour from the picture</source>
        <translation>Preleva un colore dall&apos;immagine</translation>
    </message>
    <message>
        <source>Button shows the colour</source>
        <translation>Il pulsante mostra il colore</translation>
    </message>
    <message>
        <source>Picture is the target</source>
        <translation>L&apos;immagine è la destinazione</translation>
    </message>
    <message>
        <source>Frame round the picture</source>
        <translation>Cornice attorno all&apos;immagine</translation>
    </message>
    <message>
        <source>Pick without the button</source>
        <translation>Preleva senza il pulsante</translation>
    </message>
    <message>
        <source>The program waits for the colour.</source>
        <translation>Il programma aspetta il colore.</translation>
    </message>
</context>
<context>
    <name>Gallery::FileDialogsPage</name>
    <message>
        <source>Each button calls the function of its name and shows what comes back: the result, string by string, and the filter that was written back. On Windows getOpen() shows the dialog of the system, which takes files and folders together.</source>
        <translation>Ogni pulsante chiama la funzione che porta il suo nome e mostra ciò che ne torna: il risultato, stringa per stringa, e il filtro riscritto. Su Windows getOpen() mostra la finestra di dialogo del sistema, che accetta insieme file e cartelle.</translation>
    </message>
    <message>
        <source>This disc is read-only: nothing can be written to it.</source>
        <translation>Questo disco è di sola lettura: non vi si può scrivere nulla.</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;Risultato</translation>
    </message>
    <message>
        <source>Nothing was asked yet</source>
        <translation>Non è stato ancora chiesto nulla</translation>
    </message>
    <message>
        <source>Choose something</source>
        <translation>Scegli qualcosa</translation>
    </message>
    <message>
        <source>Images (*.jpg *.png);;Texts (*.txt *.md);;All files (*)</source>
        <translation>Immagini (*.jpg *.png);;Testi (*.txt *.md);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>getOpen(): files</source>
        <translation>getOpen(): file</translation>
    </message>
    <message>
        <source>getOpen(): folders</source>
        <translation>getOpen(): cartelle</translation>
    </message>
    <message>
        <source>getOpen(): several</source>
        <translation>getOpen(): più di uno</translation>
    </message>
    <message>
        <source>An empty list</source>
        <translation>Un elenco vuoto</translation>
    </message>
    <message>
        <source>Filter written back: %1</source>
        <translation>Filtro riscritto: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::FormattingPage</name>
    <message>
        <source>Format the sample with the two strips. Their icons come from the page&apos;s style sheet, which selects the buttons by their property &quot;styleTag&quot;.</source>
        <translation>Formatta l&apos;esempio con le due barre. Le loro icone vengono dal foglio di stile della pagina, che seleziona i pulsanti in base alla proprietà «styleTag».</translation>
    </message>
    <message>
        <source>The quick brown fox jumps over the lazy dog, and the dog, being lazy, lets it jump as often as it likes.</source>
        <translation>La veloce volpe marrone salta sopra il cane pigro, e il cane, da pigro, la lascia saltare quante volte vuole.</translation>
    </message>
    <message>
        <source>Plain font</source>
        <translation>Carattere semplice</translation>
    </message>
    <message>
        <source>The program sets a font: a signal for each toggle that changes.</source>
        <translation>Il programma imposta un carattere: un segnale per ogni pulsante che cambia.</translation>
    </message>
    <message>
        <source>Set to left</source>
        <translation>Imposta a sinistra</translation>
    </message>
    <message>
        <source>The program checks a button: no signal, and the sample stays as it is.</source>
        <translation>Il programma seleziona un pulsante: nessun segnale, e l&apos;esempio resta com&apos;è.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Attivo</translation>
    </message>
</context>
<context>
    <name>Gallery::FrameOverWindowPage</name>
    <message>
        <source>The window below goes on living while the frame lies over it. In edit mode the mouse moves the frame; otherwise it reaches the window.</source>
        <translation>La finestra sottostante continua a vivere mentre la cornice la copre. In modalità modifica il mouse sposta la cornice; altrimenti raggiunge la finestra.</translation>
    </message>
    <message>
        <source>Type here while edit mode is off</source>
        <translation>Scrivi qui fuori dalla modalità modifica</translation>
    </message>
    <message>
        <source>Press here while edit mode is off</source>
        <translation>Premi qui fuori dalla modalità modifica</translation>
    </message>
    <message>
        <source>A window with its own life</source>
        <translation>Una finestra con vita propria</translation>
    </message>
    <message>
        <source>From %1 %, %2 %: %3 % wide, %4 % high</source>
        <comment>position and size of the frame</comment>
        <translation>Da %1 %, %2 %: larga %3 %, alta %4 %</translation>
    </message>
    <message>
        <source>Edit mode</source>
        <translation>Modalità modifica</translation>
    </message>
    <message>
        <source>Keep the ratio</source>
        <translation>Mantieni le proporzioni</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Area di lavoro</translation>
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
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Non ora</translation>
    </message>
    <message>
        <source>Never again</source>
        <translation>Mai più</translation>
    </message>
</context>
<context>
    <name>Gallery::LabelsAndInputsPage</name>
    <message>
        <source>Drag the handle beside the column to narrow it: labels and the line edit elide their texts and tell the whole of them in tool tips. The line edit shows all of it while you edit.</source>
        <translation>Trascina la maniglia accanto alla colonna per stringerla: le etichette e il campo di testo abbreviano i loro testi e li mostrano per intero nei suggerimenti. Il campo lo mostra tutto durante la modifica.</translation>
    </message>
    <message>
        <source>A file name that is much too long for a column as narrow as this one.txt</source>
        <translation>Un nome di file troppo lungo per una colonna stretta come questa.txt</translation>
    </message>
    <message>
        <source>Mixed directions: %1, elided in order</source>
        <translation>Direzioni miste: %1, abbreviato in ordine</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Breve</translation>
    </message>
    <message>
        <source>Drag the handle at the edge of this field.</source>
        <translation>Trascina la maniglia sul bordo di questo campo.</translation>
    </message>
    <message>
        <source>Press here, with any button</source>
        <translation>Premi qui, con qualsiasi pulsante</translation>
    </message>
    <message>
        <source>Clipped text</source>
        <translation>Testo abbreviato</translation>
    </message>
    <message>
        <source>A text that is shown whole while you edit it, and elided while you do not</source>
        <translation>Un testo mostrato per intero durante la modifica e abbreviato altrimenti</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Labels report presses</source>
        <translation>Le etichette segnalano i clic</translation>
    </message>
    <message>
        <source>Labels elide their texts</source>
        <translation>Le etichette abbreviano i testi</translation>
    </message>
    <message>
        <source>at the end</source>
        <translation>alla fine</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>al centro</translation>
    </message>
    <message>
        <source>at the beginning</source>
        <translation>all&apos;inizio</translation>
    </message>
    <message>
        <source>Elide</source>
        <translation>Abbrevia</translation>
    </message>
    <message>
        <source>What do you think of it?</source>
        <translation>Che cosa ne pensi?</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Segnaposto</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Digits at most</source>
        <translation>Cifre al massimo</translation>
    </message>
</context>
<context>
    <name>Gallery::MainWindow</name>
    <message>
        <source>KQtUi gallery</source>
        <translation>Galleria di KQtUi</translation>
    </message>
    <message>
        <source>&amp;Find a page</source>
        <translation>&amp;Trova una pagina</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Dark palette</source>
        <translation>Tavolozza &amp;scura</translation>
    </message>
    <message>
        <source>&amp;Right to left</source>
        <translation>Da &amp;destra a sinistra</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Lingua</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Lingua: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::NamedPalettePage</name>
    <message>
        <source>Click the button: a default colour, forty named colours, and a dialog behind &quot;More...&quot;.</source>
        <translation>Fai clic sul pulsante: un colore predefinito, quaranta colori con un nome e una finestra di dialogo dietro «Altro...».</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>While its popup is open the picker&apos;s property &quot;pressed&quot; is true: the page&apos;s style sheet gives it a thick border then.</source>
        <translation>Finché la tavolozza è aperta, la proprietà «pressed» del selettore è vera: il foglio di stile della pagina gli dà allora un bordo spesso.</translation>
    </message>
    <message>
        <source>Colorized</source>
        <translation>Colorato</translation>
    </message>
    <message>
        <source>Dark popup</source>
        <translation>Tavolozza scura</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>Make it the default</source>
        <translation>Rendi predefinito</translation>
    </message>
    <message>
        <source>The popup&apos;s &quot;Default&quot; button chooses this colour from now on.</source>
        <translation>Il pulsante «Predefinito» della tavolozza sceglie d&apos;ora in poi questo colore.</translation>
    </message>
</context>
<context>
    <name>Gallery::Page</name>
    <message>
        <source>Properties</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Pulisci</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Segnali</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Codice</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
</context>
<context>
    <name>Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Title or component</source>
        <translation>Titolo o componente</translation>
    </message>
</context>
<context>
    <name>Gallery::PensAndLinesPage</name>
    <message>
        <source>Pens, lines and opacity: each group draws what its boxes say.</source>
        <translation>Penne, linee e opacità: ogni gruppo disegna ciò che dicono le sue caselle.</translation>
    </message>
    <message>
        <source>Pen picker</source>
        <translation>Selettore di penna</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>Stile di linea</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Spessore di linea</translation>
    </message>
    <message>
        <source>Line style and line width</source>
        <translation>Stile e spessore di linea</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacità</translation>
    </message>
    <message>
        <source>Opacity adapter</source>
        <translation>Adattatore di opacità</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>Valore: %1</translation>
    </message>
    <message>
        <source>Slider with a zero tick</source>
        <translation>Cursore con tacca dello zero</translation>
    </message>
    <message>
        <source>Coloured tick</source>
        <translation>Tacca colorata</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Attivo</translation>
    </message>
</context>
<context>
    <name>Gallery::SelectionFramesPage</name>
    <message>
        <source>Drag the frames, their corners and their sides. The small picture is what the frames are rendered to, with its alpha.</source>
        <translation>Trascina le cornici, i loro angoli e i loro lati. L&apos;immagine piccola è ciò che si ottiene dalle cornici, con il suo canale alfa.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regione</translation>
    </message>
    <message>
        <source>Holiday by the sea</source>
        <translation>Vacanza al mare</translation>
    </message>
    <message>
        <source>Picture keeps its ratio</source>
        <translation>L&apos;immagine mantiene le proporzioni</translation>
    </message>
    <message>
        <source>Region keeps its ratio</source>
        <translation>La regione mantiene le proporzioni</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Area di lavoro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Trasparenza</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Riempimento</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Carattere</translation>
    </message>
</context>
<context>
    <name>Gallery::SignalLog</name>
    <message>
        <source>Signals appear here.</source>
        <translation>I segnali appaiono qui.</translation>
    </message>
</context>
<context>
    <name>Gallery::TaskbarPage</name>
    <message>
        <source>Move the slider or press a button, and look at the taskbar or dock of your desktop: that begins an operation. Below stands what was asked for, and what is seen of it where.</source>
        <translation>Sposta il cursore o premi un pulsante e guarda la barra delle applicazioni o la dock del tuo desktop: così inizia un&apos;operazione. Sotto sta ciò che è stato chiesto, e che cosa se ne vede e dove.</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Windows</translation>
    </message>
    <message>
        <source>The button of this window in the taskbar fills: green while the operation runs, yellow when it is paused, red when it was stopped. A busy one has a light that runs through it.</source>
        <translation>Il pulsante di questa finestra nella barra delle applicazioni si riempie: verde mentre l&apos;operazione è in corso, giallo se è in pausa, rosso se è stata interrotta. Se la durata è ignota, lo attraversa una luce.</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>Linux</translation>
    </message>
    <message>
        <source>The entry of this application has a bar, in docks that know its desktop file and show progress: those of KDE Plasma and Ubuntu, Dash to Dock, Plank and others. Busy is an empty bar, paused looks like running, and what was stopped asks for attention.</source>
        <translation>La voce di questa applicazione ha una barra, nelle dock che conoscono il suo file desktop e mostrano l&apos;avanzamento: quelle di KDE Plasma e Ubuntu, Dash to Dock, Plank e altre. La durata ignota è una barra vuota, la pausa sembra in corso, e ciò che è stato interrotto chiede attenzione.</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>Altrove</translation>
    </message>
    <message>
        <source>Nothing is seen.</source>
        <translation>Non si vede nulla.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>End the operation</source>
        <translation>Termina l&apos;operazione</translation>
    </message>
    <message>
        <source>Desktop file</source>
        <translation>File desktop</translation>
    </message>
    <message>
        <source>There is no operation.</source>
        <translation>Non c&apos;è alcuna operazione.</translation>
    </message>
    <message>
        <source>The indicator is hidden.</source>
        <translation>L&apos;indicatore è nascosto.</translation>
    </message>
    <message>
        <source>The operation was stopped.</source>
        <translation>L&apos;operazione è stata interrotta.</translation>
    </message>
    <message>
        <source>The operation is paused.</source>
        <translation>L&apos;operazione è in pausa.</translation>
    </message>
    <message>
        <source>The operation runs; how far it is nobody knows.</source>
        <translation>L&apos;operazione è in corso; a che punto sia nessuno lo sa.</translation>
    </message>
    <message>
        <source>The operation runs.</source>
        <translation>L&apos;operazione è in corso.</translation>
    </message>
</context>
<context>
    <name>Gallery::TilesPage</name>
    <message>
        <source>Tiles with a star, a play button and a duration over a picture; and a panel whose title bar can be dragged, detached and closed.</source>
        <translation>Riquadri con una stella, un pulsante di riproduzione e una durata sopra un&apos;immagine; e un pannello la cui barra del titolo si può trascinare, sganciare e chiudere.</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Alba</translation>
    </message>
    <message>
        <source>Noon</source>
        <translation>Mezzogiorno</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Tramonto</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Notte</translation>
    </message>
    <message>
        <source>Pin playlist</source>
        <translation>Aggancia la playlist</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <translation>Sgancia la playlist</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>Play buttons</source>
        <translation>Pulsanti di riproduzione</translation>
    </message>
    <message>
        <source>Clips can be played</source>
        <translation>I filmati sono riproducibili</translation>
    </message>
    <message>
        <source>Styled as floating</source>
        <translation>Con stile mobile</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>Mostra il pannello</translation>
    </message>
</context>
<context>
    <name>Gallery::Tour</name>
    <message>
        <source>Welcome to the gallery</source>
        <translation>Ti diamo il benvenuto nella galleria</translation>
    </message>
    <message>
        <source>Every family of components has a page of its own, and all of them are alive. The tour shows you around in a minute.</source>
        <translation>Ogni famiglia di componenti ha la sua pagina, e sono tutti vivi. La visita ti mostra tutto in un minuto.</translation>
    </message>
    <message>
        <source>Find a page</source>
        <translation>Trova una pagina</translation>
    </message>
    <message>
        <source>Type part of a title. The arrow keys move through the pages that are left.</source>
        <translation>Scrivi una parte del titolo. I tasti freccia scorrono le pagine rimaste.</translation>
    </message>
    <message>
        <source>Dark, and from right to left</source>
        <translation>Scuro, e da destra a sinistra</translation>
    </message>
    <message>
        <source>These two switches are one target: the frame goes round both. This hint stays clear of the filter, so that you can go on typing.</source>
        <translation>Questi due interruttori sono un&apos;unica destinazione: la cornice li circonda entrambi. Questo suggerimento non copre il filtro, così puoi continuare a scrivere.</translation>
    </message>
    <message>
        <source>In your language</source>
        <translation>Nella tua lingua</translation>
    </message>
    <message>
        <source>The texts change at once, those of this hint as well. Clicking what a hint points at takes you on, just as Next does.</source>
        <translation>I testi cambiano subito, anche quelli di questo suggerimento. Un clic su ciò che un suggerimento indica ti porta avanti, proprio come Avanti.</translation>
    </message>
    <message>
        <source>Open a page</source>
        <translation>Apri una pagina</translation>
    </message>
    <message>
        <source>Choose &quot;Walkthrough&quot; in the list. The last hint waits for that page to be opened.</source>
        <translation>Scegli «Visita guidata» nell&apos;elenco. L&apos;ultimo suggerimento aspetta che quella pagina venga aperta.</translation>
    </message>
    <message>
        <source>How the tour works</source>
        <translation>Come funziona la visita</translation>
    </message>
    <message>
        <source>A walkthrough is a machine of named states. Here you see another one at work, and can drive it yourself.</source>
        <translation>Una visita guidata è una macchina di stati con un nome. Qui ne vedi un&apos;altra al lavoro e puoi guidarla tu.</translation>
    </message>
</context>
<context>
    <name>Gallery::WalkthroughPage</name>
    <message>
        <source>One target</source>
        <translation>Una destinazione</translation>
    </message>
    <message>
        <source>Press the button, or Next.</source>
        <translation>Premi il pulsante, oppure Avanti.</translation>
    </message>
    <message>
        <source>Two targets</source>
        <translation>Due destinazioni</translation>
    </message>
    <message>
        <source>Hide one with the switches: the frame follows. Hide both, and the hint goes.</source>
        <translation>Nascondine una con gli interruttori: la cornice segue. Nascondile entrambe e il suggerimento sparisce.</translation>
    </message>
    <message>
        <source>A small tour of its own. Start it, hide its targets, or enter a state by double-clicking it: the lists show the machine&apos;s groups, and what each hint still waits for.</source>
        <translation>Una piccola visita a sé. Avviala, nascondi le sue destinazioni o entra in uno stato con un doppio clic: gli elenchi mostrano i gruppi della macchina e ciò che ogni suggerimento ancora aspetta.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>First lamp</source>
        <translation>Prima lampada</translation>
    </message>
    <message>
        <source>Second lamp</source>
        <translation>Seconda lampada</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>Active state</source>
        <translation>Stato attivo</translation>
    </message>
    <message>
        <source>Groups and states</source>
        <translation>Gruppi e stati</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Suggerimento</translation>
    </message>
    <message>
        <source>Unmet conditions</source>
        <translation>Condizioni non soddisfatte</translation>
    </message>
    <message>
        <source>Waits for</source>
        <translation>Aspetta</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Suggerimenti</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Avvia la visita</translation>
    </message>
    <message>
        <source>Stop the tour</source>
        <translation>Ferma la visita</translation>
    </message>
    <message>
        <source>Hints enabled</source>
        <translation>Suggerimenti attivi</translation>
    </message>
    <message>
        <source>Save is shown</source>
        <translation>Salva è visibile</translation>
    </message>
    <message>
        <source>First lamp is shown</source>
        <translation>La prima lampada è visibile</translation>
    </message>
    <message>
        <source>Second lamp is shown</source>
        <translation>La seconda lampada è visibile</translation>
    </message>
    <message>
        <source>Hints avoid the list of hints</source>
        <translation>I suggerimenti evitano il loro elenco</translation>
    </message>
    <message>
        <source>entered %1</source>
        <translation>entrato in %1</translation>
    </message>
</context>
<context>
    <name>Gallery::WidgetRendererPage</name>
    <message>
        <source>The widgets are drawn into the picture beside them, and cut out of their window. Cut out, they still answer to the mouse.</source>
        <translation>I widget vengono disegnati nell&apos;immagine accanto e ritagliati dalla loro finestra. Anche ritagliati, rispondono ancora al mouse.</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>Componi</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>Restituisci</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Pulsante</translation>
    </message>
    <message>
        <source>Check box</source>
        <translation>Casella di controllo</translation>
    </message>
</context>
</TS>
