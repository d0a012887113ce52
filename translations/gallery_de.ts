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
</context>
<context>
    <name>Gallery::PageList</name>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
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
    <name>Gallery::SignalLog</name>
    <message>
        <source>Signals appear here.</source>
        <translation>Hier erscheinen Signale.</translation>
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
        <source>Left lamp</source>
        <translation>Linke Lampe</translation>
    </message>
    <message>
        <source>Right lamp</source>
        <translation>Rechte Lampe</translation>
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
        <source>Left lamp is shown</source>
        <translation>Linke Lampe ist zu sehen</translation>
    </message>
    <message>
        <source>Right lamp is shown</source>
        <translation>Rechte Lampe ist zu sehen</translation>
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
</TS>
