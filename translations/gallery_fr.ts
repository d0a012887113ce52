<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Gallery</name>
    <message>
        <source>Advanced colour picker</source>
        <translation>Sélecteur de couleur avancé</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>Listes déroulantes</translation>
    </message>
    <message>
        <source>Drop and drag</source>
        <translation>Déposer et glisser</translation>
    </message>
    <message>
        <source>Event helpers</source>
        <translation>Aides pour les événements</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>Mise en forme</translation>
    </message>
    <message>
        <source>Frame over a window</source>
        <translation>Cadre sur une fenêtre</translation>
    </message>
    <message>
        <source>Labels and inputs</source>
        <translation>Libellés et saisies</translation>
    </message>
    <message>
        <source>Named palette</source>
        <translation>Palette nommée</translation>
    </message>
    <message>
        <source>Pens and lines</source>
        <translation>Stylos et lignes</translation>
    </message>
    <message>
        <source>Selection frames</source>
        <translation>Cadres de sélection</translation>
    </message>
    <message>
        <source>Tiles and title bars</source>
        <translation>Tuiles et barres de titre</translation>
    </message>
    <message>
        <source>Walkthrough</source>
        <translation>Visite guidée</translation>
    </message>
    <message>
        <source>Widget renderer</source>
        <translation>Rendu de widgets</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Boîtes de dialogue de fichiers</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Barre des tâches</translation>
    </message>
</context>
<context>
    <name>Gallery::AdvancedColorPickerPage</name>
    <message>
        <source>Click a colour to open its popup; the note takes the new colour while you choose.</source>
        <translation>Cliquez sur une couleur pour ouvrir son menu ; la note prend la nouvelle couleur pendant que vous choisissez.</translation>
    </message>
    <message>
        <source>Buy milk, feed the cat</source>
        <translation>Acheter du lait, nourrir le chat</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Encre</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Surligneur</translation>
    </message>
    <message>
        <source>Drag a colour from the palette to one of the twelve slots above it. The slots are shared: open another picker and find the colour there.</source>
        <translation>Faites glisser une couleur de la palette vers l&apos;une des douze cases situées au-dessus. Les cases sont partagées : ouvrez un autre sélecteur et vous y retrouverez la couleur.</translation>
    </message>
    <message>
        <source>Opacity of the marker</source>
        <translation>Opacité du surligneur</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Random colours</source>
        <translation>Couleurs aléatoires</translation>
    </message>
    <message>
        <source>A colour that is set by the program makes no signal.</source>
        <translation>Une couleur définie par le programme n&apos;émet aucun signal.</translation>
    </message>
    <message>
        <source>Open popup here</source>
        <translation>Ouvrir le menu ici</translation>
    </message>
</context>
<context>
    <name>Gallery::ComboBoxesPage</name>
    <message>
        <source>Combo boxes that are narrower than their items. Turn the wheel over the form, open the lists.</source>
        <translation>Des listes déroulantes plus étroites que leurs éléments. Tournez la molette au-dessus du formulaire, ouvrez les listes.</translation>
    </message>
    <message>
        <source>Narrow box</source>
        <translation>Liste étroite</translation>
    </message>
    <message>
        <source>Elided text and wide popup</source>
        <translation>Texte abrégé et liste large</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>No wheel in a scrolling form</source>
        <translation>Pas de molette dans un formulaire défilant</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Box with separators</source>
        <translation>Liste avec séparateurs</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Séparateurs</translation>
    </message>
    <message>
        <source>A preset with a rather long name</source>
        <translation>Un préréglage au nom plutôt long</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>Calme</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Lumineux</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nuit</translation>
    </message>
    <message>
        <source>Preset panel</source>
        <translation>Panneau de préréglages</translation>
    </message>
    <message>
        <source>Wide popup</source>
        <translation>Liste large</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Molette de la souris</translation>
    </message>
    <message>
        <source>Elide text</source>
        <translation>Abréger le texte</translation>
    </message>
    <message>
        <source>Tool tip:</source>
        <translation>Infobulle :</translation>
    </message>
    <message>
        <source>Styled separators</source>
        <translation>Séparateurs stylisés</translation>
    </message>
    <message>
        <source>Preset icon</source>
        <translation>Icône du préréglage</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Court</translation>
    </message>
    <message>
        <source>An item whose text is much longer than the box</source>
        <translation>Un élément dont le texte est bien plus long que la liste</translation>
    </message>
    <message>
        <source>Another one that does not fit</source>
        <translation>Un autre qui n&apos;entre pas</translation>
    </message>
</context>
<context>
    <name>Gallery::DropAndDragPage</name>
    <message>
        <source>Drop files from a file manager: one observer takes pictures, the other texts, and each hears of everything that is dropped. Drag the panel by any point, its button included: what was dragged is not clicked.</source>
        <translation>Déposez des fichiers depuis un gestionnaire de fichiers : un observateur prend les images, l&apos;autre les textes, et chacun est informé de tout ce qui est déposé. Faites glisser le panneau par n&apos;importe quel point, son bouton compris : ce qui a été glissé n&apos;est pas cliqué.</translation>
    </message>
    <message>
        <source>Pictures are welcome</source>
        <translation>Les images sont les bienvenues</translation>
    </message>
    <message>
        <source>Texts are welcome</source>
        <translation>Les textes sont les bienvenus</translation>
    </message>
    <message>
        <source>Drop pictures or texts here</source>
        <translation>Déposez ici des images ou des textes</translation>
    </message>
    <message>
        <source>Drag me anywhere</source>
        <translation>Faites-moi glisser n&apos;importe où</translation>
    </message>
    <message>
        <source>Click me</source>
        <translation>Cliquez-moi</translation>
    </message>
</context>
<context>
    <name>Gallery::EventHelpersPage</name>
    <message>
        <source>Scribble on the pad: the lamps below show the signals that the helpers make of its events. Without propagation the signals still come, but the pad itself sees no mouse any more.</source>
        <translation>Griffonnez sur le bloc : les lampes ci-dessous montrent les signaux que les aides tirent de ses événements. Sans propagation, les signaux arrivent toujours, mais le bloc lui-même ne voit plus la souris.</translation>
    </message>
    <message>
        <source>Scribble here</source>
        <translation>Griffonnez ici</translation>
    </message>
    <message>
        <source>Events go on to the pad</source>
        <translation>Le bloc reçoit les événements</translation>
    </message>
    <message>
        <source>Hover events</source>
        <translation>Événements de survol</translation>
    </message>
    <message>
        <source>Moves without a button</source>
        <translation>Déplacements sans bouton</translation>
    </message>
    <message>
        <source>Wipe the pad</source>
        <translation>Effacer le bloc</translation>
    </message>
    <message>
        <source>Drop it here</source>
        <translation>Déposez-le ici</translation>
    </message>
    <message>
        <source>Drag this text</source>
        <translation>Faites glisser ce texte</translation>
    </message>
    <message>
        <source>Drop field is guarded</source>
        <translation>La zone de dépôt est protégée</translation>
    </message>
    <message>
        <source>Window stays on top</source>
        <translation>La fenêtre reste au premier plan</translation>
    </message>
</context>
<context>
    <name>Gallery::EyedropperPage</name>
    <message>
        <source>Press the button, then click into the picture: the button takes the colour under the cursor. Any key picks as well; a click elsewhere ends it without a colour.</source>
        <translation>Appuyez sur le bouton, puis cliquez dans l&apos;image : le bouton prend la couleur sous le curseur. Une touche du clavier convient aussi ; un clic ailleurs y met fin sans couleur.</translation>
    </message>
    <message>
        <source>Pick a colour from the picture</source>
        <translation>Prélever une couleur dans l&apos;image</translation>
    </message>
    <message>
        <source>Button shows the colour</source>
        <translation>Le bouton montre la couleur</translation>
    </message>
    <message>
        <source>Picture is the target</source>
        <translation>L&apos;image est la cible</translation>
    </message>
    <message>
        <source>Frame round the picture</source>
        <translation>Cadre autour de l&apos;image</translation>
    </message>
    <message>
        <source>Pick without the button</source>
        <translation>Prélever sans le bouton</translation>
    </message>
    <message>
        <source>The program waits for the colour.</source>
        <translation>Le programme attend la couleur.</translation>
    </message>
</context>
<context>
    <name>Gallery::FileDialogsPage</name>
    <message>
        <source>Each button calls the function of its name and shows what comes back: the result, string by string, and the filter that was written back. On Windows getOpen() shows the dialog of the system, which takes files and folders together.</source>
        <translation>Chaque bouton appelle la fonction de son nom et montre ce qui en revient : le résultat, chaîne par chaîne, et le filtre qui a été réécrit. Sous Windows, getOpen() montre la boîte de dialogue du système, qui accepte à la fois fichiers et dossiers.</translation>
    </message>
    <message>
        <source>This disc is read-only: nothing can be written to it.</source>
        <translation>Ce disque est en lecture seule : rien ne peut y être écrit.</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;Résultat</translation>
    </message>
    <message>
        <source>Nothing was asked yet</source>
        <translation>Rien n&apos;a encore été demandé</translation>
    </message>
    <message>
        <source>Choose something</source>
        <translation>Choisissez quelque chose</translation>
    </message>
    <message>
        <source>Images (*.jpg *.png);;Texts (*.txt *.md);;All files (*)</source>
        <translation>Images (*.jpg *.png);;Textes (*.txt *.md);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>getOpen(): files</source>
        <translation>getOpen() : fichiers</translation>
    </message>
    <message>
        <source>getOpen(): folders</source>
        <translation>getOpen() : dossiers</translation>
    </message>
    <message>
        <source>getOpen(): several</source>
        <translation>getOpen() : plusieurs</translation>
    </message>
    <message>
        <source>An empty list</source>
        <translation>Une liste vide</translation>
    </message>
    <message>
        <source>Filter written back: %1</source>
        <translation>Filtre réécrit : %1</translation>
    </message>
</context>
<context>
    <name>Gallery::FormattingPage</name>
    <message>
        <source>Format the sample with the two strips. Their icons come from the page&apos;s style sheet, which selects the buttons by their property &quot;styleTag&quot;.</source>
        <translation>Mettez l&apos;exemple en forme avec les deux barres. Leurs icônes viennent de la feuille de style de la page, qui sélectionne les boutons par leur propriété « styleTag ».</translation>
    </message>
    <message>
        <source>The quick brown fox jumps over the lazy dog, and the dog, being lazy, lets it jump as often as it likes.</source>
        <translation>Le vif renard brun saute par-dessus le chien paresseux, et le chien, étant paresseux, le laisse sauter autant qu&apos;il veut.</translation>
    </message>
    <message>
        <source>Plain font</source>
        <translation>Police simple</translation>
    </message>
    <message>
        <source>The program sets a font: a signal for each toggle that changes.</source>
        <translation>Le programme définit une police : un signal pour chaque bouton qui change.</translation>
    </message>
    <message>
        <source>Set to left</source>
        <translation>Aligner à gauche</translation>
    </message>
    <message>
        <source>The program checks a button: no signal, and the sample stays as it is.</source>
        <translation>Le programme coche un bouton : aucun signal, et l&apos;exemple reste tel quel.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
</context>
<context>
    <name>Gallery::FrameOverWindowPage</name>
    <message>
        <source>The window below goes on living while the frame lies over it. In edit mode the mouse moves the frame; otherwise it reaches the window.</source>
        <translation>La fenêtre ci-dessous continue de vivre pendant que le cadre la recouvre. En mode édition, la souris déplace le cadre ; sinon, elle atteint la fenêtre.</translation>
    </message>
    <message>
        <source>Type here while edit mode is off</source>
        <translation>Écrivez ici hors du mode édition</translation>
    </message>
    <message>
        <source>Press here while edit mode is off</source>
        <translation>Appuyez ici hors du mode édition</translation>
    </message>
    <message>
        <source>A window with its own life</source>
        <translation>Une fenêtre qui vit sa propre vie</translation>
    </message>
    <message>
        <source>From %1 %, %2 %: %3 % wide, %4 % high</source>
        <comment>position and size of the frame</comment>
        <translation>À partir de %1 %, %2 % : largeur %3 %, hauteur %4 %</translation>
    </message>
    <message>
        <source>Edit mode</source>
        <translation>Mode édition</translation>
    </message>
    <message>
        <source>Keep the ratio</source>
        <translation>Conserver les proportions</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Zone de travail</translation>
    </message>
    <message>
        <source>Veil</source>
        <translation>Voile</translation>
    </message>
</context>
<context>
    <name>Gallery::GalleryHint</name>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Never again</source>
        <translation>Plus jamais</translation>
    </message>
</context>
<context>
    <name>Gallery::LabelsAndInputsPage</name>
    <message>
        <source>Drag the handle beside the column to narrow it: labels and the line edit elide their texts and tell the whole of them in tool tips. The line edit shows all of it while you edit.</source>
        <translation>Faites glisser la poignée à côté de la colonne pour la rétrécir : les libellés et le champ de saisie abrègent leurs textes et les donnent en entier dans des infobulles. Le champ les montre en entier pendant la saisie.</translation>
    </message>
    <message>
        <source>A file name that is much too long for a column as narrow as this one.txt</source>
        <translation>Un nom de fichier beaucoup trop long pour une colonne aussi étroite.txt</translation>
    </message>
    <message>
        <source>Mixed directions: %1, elided in order</source>
        <translation>Sens mêlés : %1, abrégé dans l&apos;ordre</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Court</translation>
    </message>
    <message>
        <source>Drag the handle at the edge of this field.</source>
        <translation>Faites glisser la poignée au bord de ce champ.</translation>
    </message>
    <message>
        <source>Press here, with any button</source>
        <translation>Appuyez ici, avec n&apos;importe quel bouton</translation>
    </message>
    <message>
        <source>Clipped text</source>
        <translation>Texte abrégé</translation>
    </message>
    <message>
        <source>A text that is shown whole while you edit it, and elided while you do not</source>
        <translation>Un texte montré en entier pendant la saisie, et abrégé sinon</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Labels report presses</source>
        <translation>Les libellés signalent les clics</translation>
    </message>
    <message>
        <source>Labels elide their texts</source>
        <translation>Les libellés abrègent leurs textes</translation>
    </message>
    <message>
        <source>at the end</source>
        <translation>à la fin</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>au milieu</translation>
    </message>
    <message>
        <source>at the beginning</source>
        <translation>au début</translation>
    </message>
    <message>
        <source>Elide</source>
        <translation>Abréger</translation>
    </message>
    <message>
        <source>What do you think of it?</source>
        <translation>Qu&apos;en pensez-vous ?</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>Texte indicatif</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Digits at most</source>
        <translation>Chiffres au plus</translation>
    </message>
</context>
<context>
    <name>Gallery::MainWindow</name>
    <message>
        <source>KQtUi gallery</source>
        <translation>Galerie KQtUi</translation>
    </message>
    <message>
        <source>&amp;Find a page</source>
        <translation>&amp;Rechercher une page</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Dark palette</source>
        <translation>Palette &amp;sombre</translation>
    </message>
    <message>
        <source>&amp;Right to left</source>
        <translation>De &amp;droite à gauche</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>Langue : %1</translation>
    </message>
</context>
<context>
    <name>Gallery::NamedPalettePage</name>
    <message>
        <source>Click the button: a default colour, forty named colours, and a dialog behind &quot;More...&quot;.</source>
        <translation>Cliquez sur le bouton : une couleur par défaut, quarante couleurs nommées et une boîte de dialogue derrière « Plus... ».</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>While its popup is open the picker&apos;s property &quot;pressed&quot; is true: the page&apos;s style sheet gives it a thick border then.</source>
        <translation>Tant que sa palette est ouverte, la propriété « pressed » du sélecteur est vraie : la feuille de style de la page lui donne alors une bordure épaisse.</translation>
    </message>
    <message>
        <source>Colorized</source>
        <translation>Coloré</translation>
    </message>
    <message>
        <source>Dark popup</source>
        <translation>Palette sombre</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Make it the default</source>
        <translation>Définir par défaut</translation>
    </message>
    <message>
        <source>The popup&apos;s &quot;Default&quot; button chooses this colour from now on.</source>
        <translation>Le bouton « Par défaut » de la palette choisit désormais cette couleur.</translation>
    </message>
</context>
<context>
    <name>Gallery::Page</name>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Signaux</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Title or component</source>
        <translation>Titre ou composant</translation>
    </message>
</context>
<context>
    <name>Gallery::PensAndLinesPage</name>
    <message>
        <source>Pens, lines and opacity: each group draws what its boxes say.</source>
        <translation>Stylos, lignes et opacité : chaque groupe dessine ce que disent ses listes.</translation>
    </message>
    <message>
        <source>Pen picker</source>
        <translation>Sélecteur de stylo</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>Style de ligne</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Largeur de ligne</translation>
    </message>
    <message>
        <source>Line style and line width</source>
        <translation>Style et largeur de ligne</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Opacity adapter</source>
        <translation>Adaptateur d&apos;opacité</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>Valeur : %1</translation>
    </message>
    <message>
        <source>Slider with a zero tick</source>
        <translation>Curseur avec repère du zéro</translation>
    </message>
    <message>
        <source>Coloured tick</source>
        <translation>Repère coloré</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
</context>
<context>
    <name>Gallery::SelectionFramesPage</name>
    <message>
        <source>Drag the frames, their corners and their sides. The small picture is what the frames are rendered to, with its alpha.</source>
        <translation>Faites glisser les cadres, leurs coins et leurs côtés. La petite image est le rendu des cadres, avec son canal alpha.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Holiday by the sea</source>
        <translation>Vacances à la mer</translation>
    </message>
    <message>
        <source>Picture keeps its ratio</source>
        <translation>L&apos;image garde ses proportions</translation>
    </message>
    <message>
        <source>Region keeps its ratio</source>
        <translation>La zone garde ses proportions</translation>
    </message>
    <message>
        <source>Work rect</source>
        <translation>Zone de travail</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Transparence</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplissage</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
</context>
<context>
    <name>Gallery::SignalLog</name>
    <message>
        <source>Signals appear here.</source>
        <translation>Les signaux apparaissent ici.</translation>
    </message>
</context>
<context>
    <name>Gallery::TaskbarPage</name>
    <message>
        <source>Move the slider or press a button, and look at the taskbar or dock of your desktop: that begins an operation. Below stands what was asked for, and what is seen of it where.</source>
        <translation>Déplacez le curseur ou appuyez sur un bouton, et regardez la barre des tâches ou le dock de votre bureau : une opération commence. Au-dessous figure ce qui a été demandé, et ce qu&apos;on en voit et où.</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Windows</translation>
    </message>
    <message>
        <source>The button of this window in the taskbar fills: green while the operation runs, yellow when it is paused, red when it was stopped. A busy one has a light that runs through it.</source>
        <translation>Le bouton de cette fenêtre dans la barre des tâches se remplit : en vert pendant l&apos;opération, en jaune si elle est en pause, en rouge si elle a été arrêtée. Si sa durée est inconnue, une lumière le parcourt.</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>Linux</translation>
    </message>
    <message>
        <source>The entry of this application has a bar, in docks that know its desktop file and show progress: those of KDE Plasma and Ubuntu, Dash to Dock, Plank and others. Busy is an empty bar, paused looks like running, and what was stopped asks for attention.</source>
        <translation>L&apos;entrée de cette application porte une barre, dans les docks qui connaissent son fichier de bureau et montrent la progression : ceux de KDE Plasma et d&apos;Ubuntu, Dash to Dock, Plank et d&apos;autres. Une durée inconnue donne une barre vide, une pause ressemble à la marche, et ce qui a été arrêté réclame l&apos;attention.</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>Ailleurs</translation>
    </message>
    <message>
        <source>Nothing is seen.</source>
        <translation>On ne voit rien.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>End the operation</source>
        <translation>Terminer l&apos;opération</translation>
    </message>
    <message>
        <source>Desktop file</source>
        <translation>Fichier de bureau</translation>
    </message>
    <message>
        <source>There is no operation.</source>
        <translation>Il n&apos;y a aucune opération.</translation>
    </message>
    <message>
        <source>The indicator is hidden.</source>
        <translation>L&apos;indicateur est masqué.</translation>
    </message>
    <message>
        <source>The operation was stopped.</source>
        <translation>L&apos;opération a été arrêtée.</translation>
    </message>
    <message>
        <source>The operation is paused.</source>
        <translation>L&apos;opération est en pause.</translation>
    </message>
    <message>
        <source>The operation runs; how far it is nobody knows.</source>
        <translation>L&apos;opération est en cours ; personne ne sait où elle en est.</translation>
    </message>
    <message>
        <source>The operation runs.</source>
        <translation>L&apos;opération est en cours.</translation>
    </message>
</context>
<context>
    <name>Gallery::TilesPage</name>
    <message>
        <source>Tiles with a star, a play button and a duration over a picture; and a panel whose title bar can be dragged, detached and closed.</source>
        <translation>Des tuiles avec une étoile, un bouton de lecture et une durée sur une image ; et un panneau dont la barre de titre peut être déplacée, détachée et fermée.</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation>Lever du soleil</translation>
    </message>
    <message>
        <source>Noon</source>
        <translation>Midi</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Coucher du soleil</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nuit</translation>
    </message>
    <message>
        <source>Pin playlist</source>
        <translation>Ancrer la liste de lecture</translation>
    </message>
    <message>
        <source>Unpin playlist</source>
        <translation>Détacher la liste de lecture</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>Étoiles</translation>
    </message>
    <message>
        <source>Play buttons</source>
        <translation>Boutons de lecture</translation>
    </message>
    <message>
        <source>Clips can be played</source>
        <translation>Les clips peuvent être lus</translation>
    </message>
    <message>
        <source>Styled as floating</source>
        <translation>Style flottant</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>Afficher le panneau</translation>
    </message>
</context>
<context>
    <name>Gallery::Tour</name>
    <message>
        <source>Welcome to the gallery</source>
        <translation>Bienvenue dans la galerie</translation>
    </message>
    <message>
        <source>Every family of components has a page of its own, and all of them are alive. The tour shows you around in a minute.</source>
        <translation>Chaque famille de composants a sa propre page, et tous sont bien vivants. La visite vous fait tout découvrir en une minute.</translation>
    </message>
    <message>
        <source>Find a page</source>
        <translation>Trouver une page</translation>
    </message>
    <message>
        <source>Type part of a title. The arrow keys move through the pages that are left.</source>
        <translation>Tapez une partie du titre. Les flèches du clavier parcourent les pages restantes.</translation>
    </message>
    <message>
        <source>Dark, and from right to left</source>
        <translation>Sombre, et de droite à gauche</translation>
    </message>
    <message>
        <source>These two switches are one target: the frame goes round both. This hint stays clear of the filter, so that you can go on typing.</source>
        <translation>Ces deux boutons forment une seule cible : le cadre les entoure tous les deux. Cette bulle n&apos;empiète pas sur le filtre, pour que vous puissiez continuer à écrire.</translation>
    </message>
    <message>
        <source>In your language</source>
        <translation>Dans votre langue</translation>
    </message>
    <message>
        <source>The texts change at once, those of this hint as well. Clicking what a hint points at takes you on, just as Next does.</source>
        <translation>Les textes changent aussitôt, ceux de cette bulle aussi. Un clic sur ce que désigne une bulle vous fait avancer, tout comme Suivant.</translation>
    </message>
    <message>
        <source>Open a page</source>
        <translation>Ouvrir une page</translation>
    </message>
    <message>
        <source>Choose &quot;Walkthrough&quot; in the list. The last hint waits for that page to be opened.</source>
        <translation>Choisissez « Visite guidée » dans la liste. La dernière bulle attend l&apos;ouverture de cette page.</translation>
    </message>
    <message>
        <source>How the tour works</source>
        <translation>Comment fonctionne la visite</translation>
    </message>
    <message>
        <source>A walkthrough is a machine of named states. Here you see another one at work, and can drive it yourself.</source>
        <translation>Une visite guidée est une machine à états nommés. En voici une autre au travail, que vous pouvez conduire vous-même.</translation>
    </message>
</context>
<context>
    <name>Gallery::WalkthroughPage</name>
    <message>
        <source>One target</source>
        <translation>Une cible</translation>
    </message>
    <message>
        <source>Press the button, or Next.</source>
        <translation>Appuyez sur le bouton, ou sur Suivant.</translation>
    </message>
    <message>
        <source>Two targets</source>
        <translation>Deux cibles</translation>
    </message>
    <message>
        <source>Hide one with the switches: the frame follows. Hide both, and the hint goes.</source>
        <translation>Masquez-en une avec les cases à cocher : le cadre suit. Masquez les deux, et la bulle disparaît.</translation>
    </message>
    <message>
        <source>A small tour of its own. Start it, hide its targets, or enter a state by double-clicking it: the lists show the machine&apos;s groups, and what each hint still waits for.</source>
        <translation>Une petite visite à part. Démarrez-la, masquez ses cibles ou entrez dans un état par un double clic : les listes montrent les groupes de la machine et ce que chaque bulle attend encore.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>First lamp</source>
        <translation>Première lampe</translation>
    </message>
    <message>
        <source>Second lamp</source>
        <translation>Deuxième lampe</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Active state</source>
        <translation>État actif</translation>
    </message>
    <message>
        <source>Groups and states</source>
        <translation>Groupes et états</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Bulle</translation>
    </message>
    <message>
        <source>Unmet conditions</source>
        <translation>Conditions non remplies</translation>
    </message>
    <message>
        <source>Waits for</source>
        <translation>Attend</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Bulles</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>Démarrer la visite</translation>
    </message>
    <message>
        <source>Stop the tour</source>
        <translation>Arrêter la visite</translation>
    </message>
    <message>
        <source>Hints enabled</source>
        <translation>Bulles activées</translation>
    </message>
    <message>
        <source>Save is shown</source>
        <translation>Enregistrer est visible</translation>
    </message>
    <message>
        <source>First lamp is shown</source>
        <translation>La première lampe est visible</translation>
    </message>
    <message>
        <source>Second lamp is shown</source>
        <translation>La deuxième lampe est visible</translation>
    </message>
    <message>
        <source>Hints avoid the list of hints</source>
        <translation>Les bulles évitent leur liste</translation>
    </message>
    <message>
        <source>entered %1</source>
        <translation>%1 atteint</translation>
    </message>
</context>
<context>
    <name>Gallery::WidgetRendererPage</name>
    <message>
        <source>The widgets are drawn into the picture beside them, and cut out of their window. Cut out, they still answer to the mouse.</source>
        <translation>Les widgets sont dessinés dans l&apos;image voisine et découpés de leur fenêtre. Même découpés, ils répondent encore à la souris.</translation>
    </message>
    <message>
        <source>Compose</source>
        <translation>Composer</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>Restituer</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Bouton</translation>
    </message>
    <message>
        <source>Check box</source>
        <translation>Case à cocher</translation>
    </message>
</context>
</TS>
