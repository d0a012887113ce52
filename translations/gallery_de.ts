<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Gallery</name>
    <message>
        <source>Event helpers</source>
        <translation>Ereignishelfer</translation>
    </message>
    <message>
        <source>Advanced colour picker</source>
        <translation>Erweiterte Farbauswahl</translation>
    </message>
    <message>
        <source>Named palette</source>
        <translation>Benannte Palette</translation>
    </message>
    <message>
        <source>Pens and lines</source>
        <translation>Stifte und Linien</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>Walkthrough</source>
        <translation>Rundgang</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>Kombinationsfelder</translation>
    </message>
    <message>
        <source>Drop and drag</source>
        <translation>Ablegen und Ziehen</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>Formatierung</translation>
    </message>
    <message>
        <source>Frame over a window</source>
        <translation>Rahmen über einem Fenster</translation>
    </message>
    <message>
        <source>Labels and inputs</source>
        <translation>Beschriftungen und Eingaben</translation>
    </message>
    <message>
        <source>Selection frames</source>
        <translation>Auswahlrahmen</translation>
    </message>
    <message>
        <source>Tiles and title bars</source>
        <translation>Kacheln und Titelleisten</translation>
    </message>
    <message>
        <source>Widget renderer</source>
        <translation>Widget-Renderer</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Dateidialoge</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Taskleiste</translation>
    </message>
</context>
<context>
    <name>Gallery::AdvancedColorPickerPage</name>
    <message>
        <source>Click a colour to open its popup; the note takes the new colour while you choose.</source>
        <translation>Klicken Sie auf eine Farbe, um ihr Popup zu öffnen; der Zettel zeigt die neue Farbe schon beim Wählen.</translation>
    </message>
    <message>
        <source>Buy milk, feed the cat</source>
        <translation>Milch kaufen, Katze füttern</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinte</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Textmarker</translation>
    </message>
    <message>
        <source>Drag a colour from the palette to one of the twelve slots above it. The slots are shared: open another picker and find the colour there.</source>
        <translation>Ziehen Sie eine Farbe aus der Palette auf eines der zwölf Felder darüber. Die Felder sind allen gemeinsam: Öffnen Sie eine andere Auswahl und finden Sie die Farbe dort.</translation>
    </message>
    <message>
        <source>Opacity of the marker</source>
        <translation>Deckkraft des Textmarkers</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Random colours</source>
        <translation>Zufällige Farben</translation>
    </message>
    <message>
        <source>A colour that is set by the program makes no signal.</source>
        <translation>Eine vom Programm gesetzte Farbe löst kein Signal aus.</translation>
    </message>
    <message>
        <source>Open popup here</source>
        <translation>Popup hier öffnen</translation>
    </message>
</context>
<context>
    <name>Gallery::ComboBoxesPage</name>
    <message>
        <source>Combo boxes that are narrower than their items. Turn the wheel over the form, open the lists.</source>
        <translation>Kombinationsfelder, die schmaler sind als ihre Einträge. Drehen Sie das Mausrad über dem Formular, öffnen Sie die Listen.</translation>
    </message>
    <message>
        <source>Narrow box</source>
        <translation>Schmales Feld</translation>
    </message>
    <message>
        <source>Elided text and wide popup</source>
        <translation>Gekürzter Text und breites Popup</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>No wheel in a scrolling form</source>
        <translation>Kein Mausrad in einem rollenden Formular</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Box with separators</source>
        <translation>Feld mit Trennlinien</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Trennlinien</translation>
    </message>
    <message>
        <source>A preset with a rather long name</source>
        <translation>Eine Voreinstellung mit einem recht langen Namen</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>Ruhig</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nacht</translation>
    </message>
    <message>
        <source>Preset panel</source>
        <translation>Tafel mit Voreinstellungen</translation>
    </message>
    <message>
        <source>Wide popup</source>
        <translation>Breites Popup</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>Elide text</source>
        <translation>Text kürzen</translation>
    </message>
    <message>
        <source>Tool tip:</source>
        <translation>Tooltip:</translation>
    </message>
    <message>
        <source>Styled separators</source>
        <translation>Gestaltete Trennlinien</translation>
    </message>
    <message>
        <source>Preset icon</source>
        <translation>Symbol der Voreinstellung</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Kurz</translation>
    </message>
    <message>
        <source>An item whose text is much longer than the box</source>
        <translation>Ein Eintrag, dessen Text viel länger ist als das Feld</translation>
    </message>
    <message>
        <source>Another one that does not fit</source>
        <translation>Noch einer, der nicht hineinpasst</translation>
    </message>
</context>
<context>
    <name>Gallery::DropAndDragPage</name>
    <message>
        <source>Drop files from a file manager: one observer takes pictures, the other texts, and each hears of everything that is dropped. Drag the panel by any point, its button included: what was dragged is not clicked.</source>
        <translation>Legen Sie Dateien aus einer Dateiverwaltung ab: Ein Beobachter nimmt Bilder, der andere Texte, und jeder erfährt von allem, was abgelegt wird. Ziehen Sie die Tafel an einem beliebigen Punkt, auch an ihrem Knopf: Was gezogen wurde, wird nicht angeklickt.</translation>
    </message>
    <message>
        <source>Pictures are welcome</source>
        <translation>Bilder sind willkommen</translation>
    </message>
    <message>
        <source>Texts are welcome</source>
        <translation>Texte sind willkommen</translation>
    </message>
    <message>
        <source>Drop pictures or texts here</source>
        <translation>Bilder oder Texte hier ablegen</translation>
    </message>
    <message>
        <source>Drag me anywhere</source>
        <translation>Ziehen Sie mich irgendwohin</translation>
    </message>
    <message>
        <source>Click me</source>
        <translation>Klicken Sie mich an</translation>
    </message>
</context>
<context>
    <name>Gallery::EventHelpersPage</name>
    <message>
        <source>Scribble on the pad: the lamps below show the signals that the helpers make of its events. Without propagation the signals still come, but the pad itself sees no mouse any more.</source>
        <translation>Kritzeln Sie auf dem Block: Die Lampen darunter zeigen die Signale, die die Helfer aus seinen Ereignissen machen. Werden die Ereignisse nicht weitergereicht, kommen die Signale noch immer, doch der Block selbst spürt keine Maus mehr.</translation>
    </message>
    <message>
        <source>Scribble here</source>
        <translation>Hier kritzeln</translation>
    </message>
    <message>
        <source>Events go on to the pad</source>
        <translation>Ereignisse erreichen den Block</translation>
    </message>
    <message>
        <source>Hover events</source>
        <translation>Schwebe-Ereignisse</translation>
    </message>
    <message>
        <source>Moves without a button</source>
        <translation>Bewegungen ohne Taste</translation>
    </message>
    <message>
        <source>Wipe the pad</source>
        <translation>Block abwischen</translation>
    </message>
    <message>
        <source>Drop it here</source>
        <translation>Hier ablegen</translation>
    </message>
    <message>
        <source>Drag this text</source>
        <translation>Diesen Text ziehen</translation>
    </message>
    <message>
        <source>Drop field is guarded</source>
        <translation>Ablagefeld ist geschützt</translation>
    </message>
    <message>
        <source>Window stays on top</source>
        <translation>Fenster bleibt im Vordergrund</translation>
    </message>
</context>
<context>
    <name>Gallery::EyedropperPage</name>
    <message>
        <source>Press the button, then click into the picture: the button takes the colour under the cursor. Any key picks as well; a click elsewhere ends it without a colour.</source>
        <translation>Drücken Sie den Knopf und klicken Sie dann in das Bild: Der Knopf nimmt die Farbe unter dem Zeiger an. Auch jede Taste wählt; ein Klick daneben endet ohne Farbe.</translation>
    </message>
    <message>
        <source>Pick a colour from the picture</source>
        <translation>Farbe aus dem Bild wählen</translation>
    </message>
    <message>
        <source>Button shows the colour</source>
        <translation>Knopf zeigt die Farbe</translation>
    </message>
    <message>
        <source>Picture is the target</source>
        <translation>Bild ist das Ziel</translation>
    </message>
    <message>
        <source>Frame round the picture</source>
        <translation>Rahmen um das Bild</translation>
    </message>
    <message>
        <source>Pick without the button</source>
        <translation>Ohne den Knopf wählen</translation>
    </message>
    <message>
        <source>The program waits for the colour.</source>
        <translation>Das Programm wartet auf die Farbe.</translation>
    </message>
</context>
<context>
    <name>Gallery::FileDialogsPage</name>
    <message>
        <source>Each button calls the function of its name and shows what comes back: the result, string by string, and the filter that was written back. On Windows getOpen() shows the dialog of the system, which takes files and folders together.</source>
        <translation>Jeder Knopf ruft die Funktion seines Namens auf und zeigt, was zurückkommt: das Ergebnis, Zeichenkette für Zeichenkette, und den zurückgeschriebenen Filter. Unter Windows zeigt getOpen() den Dialog des Systems, der Dateien und Ordner zugleich nimmt.</translation>
    </message>
    <message>
        <source>This disc is read-only: nothing can be written to it.</source>
        <translation>Diese Disc ist schreibgeschützt: Auf sie kann nichts geschrieben werden.</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;Ergebnis</translation>
    </message>
    <message>
        <source>Nothing was asked yet</source>
        <translation>Noch nichts gefragt</translation>
    </message>
    <message>
        <source>Choose something</source>
        <translation>Wählen Sie etwas</translation>
    </message>
    <message>
        <source>Images (*.jpg *.png);;Texts (*.txt *.md);;All files (*)</source>
        <translation>Bilder (*.jpg *.png);;Texte (*.txt *.md);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>getOpen(): files</source>
        <translation>getOpen(): Dateien</translation>
    </message>
    <message>
        <source>getOpen(): folders</source>
        <translation>getOpen(): Ordner</translation>
    </message>
    <message>
        <source>getOpen(): several</source>
        <translation>getOpen(): mehrere</translation>
    </message>
    <message>
        <source>An empty list</source>
        <translation>Eine leere Liste</translation>
    </message>
    <message>
        <source>Filter written back: %1</source>
        <translation>Zurückgeschriebener Filter: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::FormattingPage</name>
    <message>
        <source>Format the sample with the two strips. Their icons come from the page&apos;s style sheet, which selects the buttons by their property &quot;styleTag&quot;.</source>
        <translation>Formatieren Sie das Beispiel mit den beiden Leisten. Ihre Symbole stammen aus dem Stylesheet der Seite, das die Knöpfe nach ihrer Eigenschaft „styleTag“ auswählt.</translation>
    </message>
    <message>
        <source>The quick brown fox jumps over the lazy dog, and the dog, being lazy, lets it jump as often as it likes.</source>
        <translation>Der flinke braune Fuchs springt über den faulen Hund, und der Hund, faul wie er ist, lässt ihn springen, so oft er will.</translation>
    </message>
    <message>
        <source>Plain font</source>
        <translation>Einfache Schrift</translation>
    </message>
    <message>
        <source>The program sets a font: a signal for each toggle that changes.</source>
        <translation>Das Programm setzt eine Schrift: ein Signal für jeden Schalter, der sich ändert.</translation>
    </message>
    <message>
        <source>Set to left</source>
        <translation>Auf linksbündig setzen</translation>
    </message>
    <message>
        <source>The program checks a button: no signal, and the sample stays as it is.</source>
        <translation>Das Programm wählt einen Knopf: kein Signal, und das Beispiel bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
</context>
<context>
    <name>Gallery::FrameOverWindowPage</name>
    <message>
        <source>The window below goes on living while the frame lies over it. In edit mode the mouse moves the frame; otherwise it reaches the window.</source>
        <translation>Das Fenster unten lebt weiter, während der Rahmen darüber liegt. Im Bearbeitungsmodus bewegt die Maus den Rahmen; sonst erreicht sie das Fenster.</translation>
    </message>
    <message>
        <source>Type here while edit mode is off</source>
        <translation>Hier tippen, solange der Bearbeitungsmodus aus ist</translation>
    </message>
    <message>
        <source>Press here while edit mode is off</source>
        <translation>Hier drücken, solange der Bearbeitungsmodus aus ist</translation>
    </message>
    <message>
        <source>A window with its own life</source>
        <translation>Ein Fenster mit Eigenleben</translation>
    </message>
    <message>
        <source>From %1 %, %2 %: %3 % wide, %4 % high</source>
        <comment>position and size of the frame</comment>
        <translation>Ab %1 %, %2 %: %3 % breit, %4 % hoch</translation>
    </message>
    <message>
        <source>Edit mode</source>
        <translation>Bearbeitungsmodus</translation>
    </message>
    <message>
        <source>Keep the ratio</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Arbeitsbereich</translation>
    </message>
    <message>
        <source>Veil</source>
        <translation>Schleier</translation>
    </message>
</context>
<context>
    <name>Gallery::GalleryHint</name>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Jetzt nicht</translation>
    </message>
    <message>
        <source>Never again</source>
        <translation>Nie wieder</translation>
    </message>
</context>
<context>
    <name>Gallery::LabelsAndInputsPage</name>
    <message>
        <source>Drag the handle beside the column to narrow it: labels and the line edit elide their texts and tell the whole of them in tool tips. The line edit shows all of it while you edit.</source>
        <translation>Ziehen Sie am Griff neben der Spalte, um sie schmaler zu machen: Die Beschriftungen und das Eingabefeld kürzen ihre Texte und nennen sie vollständig in Tooltips. Das Eingabefeld zeigt alles, während Sie es bearbeiten.</translation>
    </message>
    <message>
        <source>A file name that is much too long for a column as narrow as this one.txt</source>
        <translation>Ein Dateiname, der für eine so schmale Spalte wie diese viel zu lang ist.txt</translation>
    </message>
    <message>
        <source>Mixed directions: %1, elided in order</source>
        <translation>Gemischte Richtungen: %1, in Lesefolge gekürzt</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Kurz</translation>
    </message>
    <message>
        <source>Drag the handle at the edge of this field.</source>
        <translation>Ziehen Sie am Griff am Rand dieses Feldes.</translation>
    </message>
    <message>
        <source>Press here, with any button</source>
        <translation>Hier drücken, mit beliebiger Maustaste</translation>
    </message>
    <message>
        <source>Clipped text</source>
        <translation>Gekürzter Text</translation>
    </message>
    <message>
        <source>A text that is shown whole while you edit it, and elided while you do not</source>
        <translation>Ein Text, der beim Bearbeiten vollständig zu sehen ist und sonst gekürzt</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Labels report presses</source>
        <translation>Beschriftungen melden Mausdrücke</translation>
    </message>
    <message>
        <source>Labels elide their texts</source>
        <translation>Beschriftungen kürzen ihre Texte</translation>
    </message>
    <message>
        <source>at the end</source>
        <translation>am Ende</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>in der Mitte</translation>
    </message>
    <message>
        <source>at the beginning</source>
        <translation>am Anfang</translation>
    </message>
    <message>
        <source>Elide</source>
        <translation>Kürzen</translation>
    </message>
    <message>
        <source>What do you think of it?</source>
        <translation>Was halten Sie davon?</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Digits at most</source>
        <translation>Stellen höchstens</translation>
    </message>
</context>
<context>
    <name>Gallery::MainWindow</name>
    <message>
        <source>KQtUi gallery</source>
        <translation>KQtUi-Galerie</translation>
    </message>
    <message>
        <source>&amp;Find a page</source>
        <translation>Seite &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Dark palette</source>
        <translation>&amp;Dunkle Farben</translation>
    </message>
    <message>
        <source>&amp;Right to left</source>
        <translation>Von &amp;rechts nach links</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Sprache: %1</translation>
    </message>
</context>
<context>
    <name>Gallery::NamedPalettePage</name>
    <message>
        <source>Click the button: a default colour, forty named colours, and a dialog behind &quot;More...&quot;.</source>
        <translation>Klicken Sie auf den Knopf: eine Standardfarbe, vierzig benannte Farben und hinter „Mehr ...“ ein Dialog.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>While its popup is open the picker&apos;s property &quot;pressed&quot; is true: the page&apos;s style sheet gives it a thick border then.</source>
        <translation>Solange das Popup offen ist, ist die Eigenschaft „pressed“ wahr: Das Stylesheet der Seite gibt dem Knopf dann einen dicken Rand.</translation>
    </message>
    <message>
        <source>Colorized</source>
        <translation>Eingefärbt</translation>
    </message>
    <message>
        <source>Dark popup</source>
        <translation>Dunkles Popup</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Make it the default</source>
        <translation>Zum Standard machen</translation>
    </message>
    <message>
        <source>The popup&apos;s &quot;Default&quot; button chooses this colour from now on.</source>
        <translation>Der Knopf „Standard“ des Popups wählt von nun an diese Farbe.</translation>
    </message>
</context>
<context>
    <name>Gallery::Page</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Title or component</source>
        <translation>Titel oder Bauteil</translation>
    </message>
</context>
<context>
    <name>Gallery::PensAndLinesPage</name>
    <message>
        <source>Pens, lines and opacity: each group draws what its boxes say.</source>
        <translation>Stifte, Linien und Deckkraft: Jede Gruppe zeichnet, was ihre Felder sagen.</translation>
    </message>
    <message>
        <source>Pen picker</source>
        <translation>Stiftauswahl</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>Linienart</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>Line style and line width</source>
        <translation>Linienart und Linienbreite</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Opacity adapter</source>
        <translation>Deckkraft-Adapter</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>Wert: %1</translation>
    </message>
    <message>
        <source>Slider with a zero tick</source>
        <translation>Schieber mit Nullstrich</translation>
    </message>
    <message>
        <source>Coloured tick</source>
        <translation>Farbiger Strich</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
</context>
<context>
    <name>Gallery::SelectionFramesPage</name>
    <message>
        <source>Drag the frames, their corners and their sides. The small picture is what the frames are rendered to, with its alpha.</source>
        <translation>Ziehen Sie die Rahmen, ihre Ecken und ihre Seiten. Das kleine Bild ist das, was aus den Rahmen gezeichnet wird, mit seinem Alphakanal.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Holiday by the sea</source>
        <translation>Urlaub am Meer</translation>
    </message>
    <message>
        <source>Picture keeps its ratio</source>
        <translation>Bild behält sein Seitenverhältnis</translation>
    </message>
    <message>
        <source>Region keeps its ratio</source>
        <translation>Bereich behält sein Seitenverhältnis</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Arbeitsbereich</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Durchsichtigkeit</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Umriss</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
</context>
<context>
    <name>Gallery::SignalLog</name>
    <message>
        <source>Signals appear here.</source>
        <translation>Hier erscheinen Signale.</translation>
    </message>
</context>
<context>
    <name>Gallery::TaskbarPage</name>
    <message>
        <source>Move the slider or press a button, and look at the taskbar or dock of your desktop: that begins an operation. Below stands what was asked for, and what is seen of it where.</source>
        <translation>Bewegen Sie den Schieber oder drücken Sie einen Knopf und sehen Sie auf die Taskleiste oder das Dock Ihres Desktops: Damit beginnt ein Vorgang. Darunter steht, was verlangt wurde und was davon wo zu sehen ist.</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Windows</translation>
    </message>
    <message>
        <source>The button of this window in the taskbar fills: green while the operation runs, yellow when it is paused, red when it was stopped. A busy one has a light that runs through it.</source>
        <translation>Der Knopf dieses Fensters in der Taskleiste füllt sich: grün, während der Vorgang läuft, gelb, wenn er pausiert, rot, wenn er abgebrochen wurde. Ist er von unbestimmter Dauer, läuft ein Licht hindurch.</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>Linux</translation>
    </message>
    <message>
        <source>The entry of this application has a bar, in docks that know its desktop file and show progress: those of KDE Plasma and Ubuntu, Dash to Dock, Plank and others. Busy is an empty bar, paused looks like running, and what was stopped asks for attention.</source>
        <translation>Der Eintrag dieser Anwendung bekommt einen Balken, in Docks, die ihre Desktop-Datei kennen und Fortschritt zeigen: denen von KDE Plasma und Ubuntu, Dash to Dock, Plank und anderen. Unbestimmte Dauer ist ein leerer Balken, eine Pause sieht aus wie Laufen, und ein Abbruch bittet um Aufmerksamkeit.</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>Anderswo</translation>
    </message>
    <message>
        <source>Nothing is seen.</source>
        <translation>Nichts ist zu sehen.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>End the operation</source>
        <translation>Vorgang beenden</translation>
    </message>
    <message>
        <source>Desktop file</source>
        <translation>Desktop-Datei</translation>
    </message>
    <message>
        <source>There is no operation.</source>
        <translation>Es gibt keinen Vorgang.</translation>
    </message>
    <message>
        <source>The indicator is hidden.</source>
        <translation>Die Anzeige ist verborgen.</translation>
    </message>
    <message>
        <source>The operation was stopped.</source>
        <translation>Der Vorgang wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The operation is paused.</source>
        <translation>Der Vorgang pausiert.</translation>
    </message>
    <message>
        <source>The operation runs; how far it is nobody knows.</source>
        <translation>Der Vorgang läuft; wie weit er ist, weiß niemand.</translation>
    </message>
    <message>
        <source>The operation runs.</source>
        <translation>Der Vorgang läuft.</translation>
    </message>
</context>
<context>
    <name>Gallery::TilesPage</name>
    <message>
        <source>Tiles with a star, a play button and a duration over a picture; and a panel whose title bar can be dragged, detached and closed.</source>
        <translation>Kacheln mit einem Stern, einem Abspielknopf und einer Dauer über einem Bild; dazu eine Tafel, deren Titelleiste sich ziehen, ablösen und schließen lässt.</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Sonnenaufgang</translation>
    </message>
    <message>
        <source>Noon</source>
        <translation>Mittag</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Sonnenuntergang</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nacht</translation>
    </message>
    <message>
        <source>Pin playlist</source>
        <translation>Wiedergabeliste anheften</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <translation>Wiedergabeliste lösen</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>Sterne</translation>
    </message>
    <message>
        <source>Play buttons</source>
        <translation>Abspielknöpfe</translation>
    </message>
    <message>
        <source>Clips can be played</source>
        <translation>Clips sind abspielbar</translation>
    </message>
    <message>
        <source>Styled as floating</source>
        <translation>Als schwebend gestaltet</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>Tafel zeigen</translation>
    </message>
</context>
<context>
    <name>Gallery::Tour</name>
    <message>
        <source>Welcome to the gallery</source>
        <translation>Willkommen in der Galerie</translation>
    </message>
    <message>
        <source>Every family of components has a page of its own, and all of them are alive. The tour shows you around in a minute.</source>
        <translation>Jede Familie von Bauteilen hat ihre eigene Seite, und alle sind lebendig. Der Rundgang zeigt Ihnen in einer Minute alles.</translation>
    </message>
    <message>
        <source>Find a page</source>
        <translation>Eine Seite finden</translation>
    </message>
    <message>
        <source>Type part of a title. The arrow keys move through the pages that are left.</source>
        <translation>Tippen Sie einen Teil des Titels. Mit den Pfeiltasten gehen Sie durch die übrigen Seiten.</translation>
    </message>
    <message>
        <source>Dark, and from right to left</source>
        <translation>Dunkel und von rechts nach links</translation>
    </message>
    <message>
        <source>These two switches are one target: the frame goes round both. This hint stays clear of the filter, so that you can go on typing.</source>
        <translation>Diese beiden Schalter sind ein Ziel: Der Rahmen umgibt sie beide. Dieser Hinweis lässt das Filterfeld frei, damit Sie weiter tippen können.</translation>
    </message>
    <message>
        <source>In your language</source>
        <translation>In Ihrer Sprache</translation>
    </message>
    <message>
        <source>The texts change at once, those of this hint as well. Clicking what a hint points at takes you on, just as Next does.</source>
        <translation>Die Texte wechseln sofort, auch die dieses Hinweises. Ein Klick auf das, worauf ein Hinweis zeigt, führt weiter, so wie Weiter.</translation>
    </message>
    <message>
        <source>Open a page</source>
        <translation>Eine Seite öffnen</translation>
    </message>
    <message>
        <source>Choose &quot;Walkthrough&quot; in the list. The last hint waits for that page to be opened.</source>
        <translation>Wählen Sie „Rundgang“ in der Liste. Der letzte Hinweis wartet, bis diese Seite geöffnet wird.</translation>
    </message>
    <message>
        <source>How the tour works</source>
        <translation>Wie der Rundgang funktioniert</translation>
    </message>
    <message>
        <source>A walkthrough is a machine of named states. Here you see another one at work, and can drive it yourself.</source>
        <translation>Ein Rundgang ist eine Maschine aus benannten Zuständen. Hier sehen Sie eine andere bei der Arbeit und können sie selbst steuern.</translation>
    </message>
</context>
<context>
    <name>Gallery::WalkthroughPage</name>
    <message>
        <source>One target</source>
        <translation>Ein Ziel</translation>
    </message>
    <message>
        <source>Press the button, or Next.</source>
        <translation>Drücken Sie die Schaltfläche oder Weiter.</translation>
    </message>
    <message>
        <source>Two targets</source>
        <translation>Zwei Ziele</translation>
    </message>
    <message>
        <source>Hide one with the switches: the frame follows. Hide both, and the hint goes.</source>
        <translation>Verbergen Sie eines mit den Schaltern: Der Rahmen folgt. Verbergen Sie beide, verschwindet der Hinweis.</translation>
    </message>
    <message>
        <source>A small tour of its own. Start it, hide its targets, or enter a state by double-clicking it: the lists show the machine&apos;s groups, and what each hint still waits for.</source>
        <translation>Ein kleiner eigener Rundgang. Starten Sie ihn, verbergen Sie seine Ziele oder betreten Sie einen Zustand mit einem Doppelklick: Die Listen zeigen die Gruppen der Maschine und worauf jeder Hinweis noch wartet.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>First lamp</source>
        <translation>Erste Lampe</translation>
    </message>
    <message>
        <source>Second lamp</source>
        <translation>Zweite Lampe</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Active state</source>
        <translation>Aktiver Zustand</translation>
    </message>
    <message>
        <source>Groups and states</source>
        <translation>Gruppen und Zustände</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Unmet conditions</source>
        <translation>Unerfüllte Bedingungen</translation>
    </message>
    <message>
        <source>Waits for</source>
        <translation>Wartet auf</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Rundgang starten</translation>
    </message>
    <message>
        <source>Stop the tour</source>
        <translation>Rundgang anhalten</translation>
    </message>
    <message>
        <source>Hints enabled</source>
        <translation>Hinweise eingeschaltet</translation>
    </message>
    <message>
        <source>Save is shown</source>
        <translation>Speichern ist zu sehen</translation>
    </message>
    <message>
        <source>First lamp is shown</source>
        <translation>Erste Lampe ist zu sehen</translation>
    </message>
    <message>
        <source>Second lamp is shown</source>
        <translation>Zweite Lampe ist zu sehen</translation>
    </message>
    <message>
        <source>Hints avoid the list of hints</source>
        <translation>Hinweise meiden ihre Liste</translation>
    </message>
    <message>
        <source>entered %1</source>
        <translation>%1 betreten</translation>
    </message>
</context>
<context>
    <name>Gallery::WidgetRendererPage</name>
    <message>
        <source>The widgets are drawn into the picture beside them, and cut out of their window. Cut out, they still answer to the mouse.</source>
        <translation>Die Widgets werden in das Bild daneben gezeichnet und aus ihrem Fenster ausgeschnitten. Auch ausgeschnitten reagieren sie noch auf die Maus.</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>Zusammensetzen</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>Zurückgeben</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Schaltfläche</translation>
    </message>
    <message>
        <source>Check box</source>
        <translation>Kontrollkästchen</translation>
    </message>
</context>
</TS>
