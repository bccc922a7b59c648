<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_GB">
<context>
    <name>AboutBox</name>
    <message>
        <source>Licence of the icons</source>
        <translation>Lizenz der Symbole</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>An editor for the graphics of ZX Spectrum Next games: palettes, tiles, maps, sprites, animations and pictures.</source>
        <translation>Ein Editor für die Grafik von Spielen für den ZX Spectrum Next: Paletten, Tiles, Karten, Sprites, Animationen und Bilder.</translation>
    </message>
    <message>
        <source>Built with Qt %1. Icons by Lucide.</source>
        <translation>Erstellt mit Qt %1. Symbole von Lucide.</translation>
    </message>
</context>
<context>
    <name>AddOutputsDialog</name>
    <message>
        <source>Add Outputs</source>
        <translation>Ausgaben hinzufügen</translation>
    </message>
    <message>
        <source>Which assets does the game take?</source>
        <translation>Welche Assets übernimmt das Spiel?</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Asset</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Assets</source>
        <translation>Assets</translation>
    </message>
    <message>
        <source>The project&apos;s folder</source>
        <translation>Der Ordner des Projekts</translation>
    </message>
    <message>
        <source>A folder below the project&apos;s, with / between folders</source>
        <translation>Ein Ordner unter dem des Projekts, mit / zwischen den Ordnern</translation>
    </message>
    <message>
        <source>&amp;Source text</source>
        <translation>&amp;Quelltext</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Form of %1</source>
        <translation>Format von %1</translation>
    </message>
    <message>
        <source>The usual ones</source>
        <translation>Die üblichen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Add 1 Output</source>
        <translation>1 Ausgabe &amp;hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Add %Ln Outputs</source>
        <translation>
            <numerusform>%Ln Ausgabe &amp;hinzufügen</numerusform>
            <numerusform>%Ln Ausgaben &amp;hinzufügen</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>Exportiert: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Holds nothing yet</source>
        <translation>Enthält noch nichts</translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>Nicht möglich: %1</translation>
    </message>
    <message>
        <source>The project has no assets yet</source>
        <translation>Das Projekt hat noch keine Assets</translation>
    </message>
    <message>
        <source>Please tick what is to be exported</source>
        <translation>Bitte ankreuzen, was exportiert werden soll</translation>
    </message>
    <message numerus="yes">
        <source>A recipe can have %n outputs</source>
        <translation>
            <numerusform>Ein Rezept kann höchstens %n Ausgabe haben</numerusform>
            <numerusform>Ein Rezept kann höchstens %n Ausgaben haben</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AnimationControlWidget</name>
    <message>
        <source>Goto first frame</source>
        <translation>Zum ersten Frame</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Voriger Frame</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Pause playback</source>
        <translation>Wiedergabe pausieren</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Nächster Frame</translation>
    </message>
    <message>
        <source>Goto last frame</source>
        <translation>Zum letzten Frame</translation>
    </message>
    <message>
        <source>Add a frame</source>
        <translation>Frame hinzufügen</translation>
    </message>
    <message>
        <source>Delete current frame</source>
        <translation>Aktuellen Frame löschen</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Ping pong</source>
        <translation>Pingpong</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Frame %1 von %2</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationListWidget</name>
    <message>
        <source>Animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add a new animation</source>
        <translation>Eine neue Animation hinzufügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete the selected animation</source>
        <translation>Die ausgewählte Animation löschen</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Klonen</translation>
    </message>
    <message>
        <source>Copy the selected animation</source>
        <translation>Die ausgewählte Animation kopieren</translation>
    </message>
    <message numerus="yes">
        <source>%1
%n frame(s) [%2x%3]</source>
        <translation>
            <numerusform>%1
%n Frame [%2x%3]</numerusform>
            <numerusform>%1
%n Frames [%2x%3]</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no animations yet. Add below makes the first one.</source>
        <translation>Es gibt noch keine Animationen. „Hinzufügen“ unten legt die erste an.</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationToolBar</name>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>The name of the animation</source>
        <translation>Der Name der Animation</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>W:</source>
        <translation>B:</translation>
    </message>
    <message>
        <source>H:</source>
        <translation>H:</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Delay:</source>
        <translation>Verzögerung:</translation>
    </message>
    <message>
        <source>Set the delay between animation frames
0 = No Delay, 1 = 25fps, 2 = 12.5fps</source>
        <translation>Verzögerung zwischen den Frames der Animation
0 = keine, 1 = 25 fps, 2 = 12,5 fps</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationView</name>
    <message>
        <source>Animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>No animation selected</source>
        <translation>Keine Animation ausgewählt</translation>
    </message>
    <message>
        <source>Animation: %1</source>
        <translation>Animation: %1</translation>
    </message>
    <message>
        <source>Delete?</source>
        <translation>Löschen?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this animation?</source>
        <translation>Soll diese Animation wirklich entfernt werden?</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::EditorWidget</name>
    <message>
        <source>Onion Skin</source>
        <translation>Zwiebelschalen</translation>
    </message>
    <message>
        <source>Index:</source>
        <translation>Index:</translation>
    </message>
    <message>
        <source>The index in the selected cell</source>
        <translation>Der Index in der ausgewählten Zelle</translation>
    </message>
    <message>
        <source>Show the frame before faintly over this one</source>
        <translation>Den vorigen Frame schwach über diesem anzeigen</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::FrameEditorWidget</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>Cells of the frame</source>
        <translation>Zellen des Frames</translation>
    </message>
    <message>
        <source>Rotated</source>
        <translation>Gedreht</translation>
    </message>
    <message>
        <source>Flipped</source>
        <translation>Vertikal gespiegelt</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Horizontal gespiegelt</translation>
    </message>
    <message>
        <source>Index:	%1
Offset:	%2
Flip	%3
Mirror:	%4
Rotate:	%5</source>
        <translation>Index:	%1
Offset:	%2
Vertikal gespiegelt:	%3
Horizontal gespiegelt:	%4
Gedreht:	%5</translation>
    </message>
    <message>
        <source>Column %1, row %2, sprite %3</source>
        <translation>Spalte %1, Zeile %2, Sprite %3</translation>
    </message>
    <message>
        <source>Column %1, row %2, tile %3</source>
        <translation>Spalte %1, Zeile %2, Tile %3</translation>
    </message>
</context>
<context>
    <name>AssetChooser</name>
    <message>
        <source>No palettes</source>
        <translation>Keine Paletten</translation>
    </message>
    <message>
        <source>No tile sets</source>
        <translation>Keine Tilesets</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>There is a palette of this name already; choose it, or another name</source>
        <translation>Es gibt schon eine Palette dieses Namens; bitte diese oder einen anderen Namen wählen</translation>
    </message>
</context>
<context>
    <name>AssetKinds</name>
    <message>
        <source>Palettes</source>
        <translation>Paletten</translation>
    </message>
    <message>
        <source>Tile Sets</source>
        <translation>Tilesets</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Map Objects</source>
        <translation>Kartenobjekte</translation>
    </message>
    <message>
        <source>Sprite Banks</source>
        <translation>Spritebänke</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
</context>
<context>
    <name>BlockEditor::AnimationEditorWidget</name>
    <message>
        <source>Palette offset:</source>
        <translation>Paletten-Offset:</translation>
    </message>
    <message>
        <source>The palette offset of the selected cell</source>
        <translation>Der Paletten-Offset der ausgewählten Zelle</translation>
    </message>
    <message>
        <source>Update palette offsets to default values</source>
        <translation>Paletten-Offsets auf Standardwerte setzen</translation>
    </message>
</context>
<context>
    <name>BlockEditor::View</name>
    <message>
        <source>New Object</source>
        <translation>Neues Objekt</translation>
    </message>
</context>
<context>
    <name>BlockEditorToolBar</name>
    <message>
        <source>Set the frame width in tiles</source>
        <translation>Framebreite in Tiles festlegen</translation>
    </message>
    <message>
        <source>Set the frame height in tiles</source>
        <translation>Framehöhe in Tiles festlegen</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Horizontal Platform</source>
        <translation>Horizontale Plattform</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>How the game moves the animation</source>
        <translation>Wie das Spiel die Animation bewegt</translation>
    </message>
</context>
<context>
    <name>BlockSelectorWindow</name>
    <message>
        <source>Map Objects</source>
        <translation>Kartenobjekte</translation>
    </message>
    <message>
        <source>No active tile set</source>
        <translation>Kein aktives Tileset</translation>
    </message>
    <message>
        <source>The tile set has no map objects</source>
        <translation>Das Tileset hat keine Kartenobjekte</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Paint canvas</source>
        <translation>Zeichenfläche</translation>
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
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
</context>
<context>
    <name>CanvasKeys</name>
    <message>
        <source>Column %1, row %2, colour %3, %4</source>
        <translation>Spalte %1, Zeile %2, Farbe %3, %4</translation>
    </message>
</context>
<context>
    <name>CircleCanvasTool</name>
    <message>
        <source>Filled Circle</source>
        <translation>Gefüllter Kreis</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
</context>
<context>
    <name>ColourCyclesDialog</name>
    <message>
        <source>&amp;Add Selection</source>
        <translation>Auswahl &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Ranges of the palette whose colours go round</source>
        <translation>Bereiche der Palette, deren Farben umlaufen</translation>
    </message>
    <message>
        <source>How many frames of the machine&apos;s screen, fifty a second, pass from step to step</source>
        <translation>Wie viele Bilder des Bildschirms der Maschine, fünfzig in der Sekunde, von Schritt zu Schritt vergehen</translation>
    </message>
    <message>
        <source>To higher entries</source>
        <translation>Zu höheren Einträgen</translation>
    </message>
    <message>
        <source>To lower entries</source>
        <translation>Zu niedrigeren Einträgen</translation>
    </message>
    <message>
        <source>Where colours move</source>
        <translation>Wohin die Farben wandern</translation>
    </message>
    <message>
        <source>The colours of a range go round: each moves to the next entry, and the one that leaves at one end comes in at the other. Neither palette nor pictures change.</source>
        <translation>Die Farben eines Bereichs laufen um: Jede rückt zum nächsten Eintrag, und die am einen Ende hinausgeht, kommt am anderen herein. Weder Palette noch Bilder ändern sich.</translation>
    </message>
    <message>
        <source>First entry</source>
        <translation>Erster Eintrag</translation>
    </message>
    <message>
        <source>Last entry</source>
        <translation>Letzter Eintrag</translation>
    </message>
    <message>
        <source>Frames a step</source>
        <translation>Bilder je Schritt</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Colour Cycles of %1</source>
        <translation>Farbzyklen von %1</translation>
    </message>
    <message>
        <source>Colour Cycles</source>
        <translation>Farbzyklen</translation>
    </message>
    <message>
        <source>%1 to %2, to lower entries</source>
        <translation>%1 bis %2, zu niedrigeren Einträgen</translation>
    </message>
    <message>
        <source>%1 to %2, to higher entries</source>
        <translation>%1 bis %2, zu höheren Einträgen</translation>
    </message>
    <message>
        <source>%1 steps a second</source>
        <translation>%1 Schritte in der Sekunde</translation>
    </message>
    <message>
        <source>Lets the colours of the entries go round that are selected in the palette</source>
        <translation>Lässt die Farben der Einträge umlaufen, die in der Palette ausgewählt sind</translation>
    </message>
    <message>
        <source>Select two or more entries in the palette that are in no range yet</source>
        <translation>Wählen Sie in der Palette zwei oder mehr Einträge aus, die noch in keinem Bereich sind</translation>
    </message>
</context>
<context>
    <name>ColourCycling</name>
    <message>
        <source>&amp;Play Colour Cycles</source>
        <translation>&amp;Farbzyklen abspielen</translation>
    </message>
    <message>
        <source>Lets the colours of palettes&apos; ranges go round in all views; nothing is changed</source>
        <translation>Lässt die Farben der Bereiche von Paletten in allen Ansichten umlaufen; geändert wird nichts</translation>
    </message>
</context>
<context>
    <name>ColourEditor</name>
    <message>
        <source>Colour before</source>
        <translation>Vorige Farbe</translation>
    </message>
    <message>
        <source>Edited colour</source>
        <translation>Bearbeitete Farbe</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Layer 2 priority
If set, this colour will always appear on top</source>
        <translation>Layer-2-Priorität
Wenn gesetzt, liegt diese Farbe immer ganz oben</translation>
    </message>
    <message>
        <source>Apply the colour</source>
        <translation>Farbe übernehmen</translation>
    </message>
    <message>
        <source>Go back to the colour before</source>
        <translation>Zur vorigen Farbe zurück</translation>
    </message>
</context>
<context>
    <name>ColourPalette</name>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Index: %1
Transparent</source>
        <translation>Index: %1
Transparent</translation>
    </message>
    <message>
        <source>Index: %1</source>
        <translation>Index: %1</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Farbe %1, %2, transparent</translation>
    </message>
    <message>
        <source>Colour %1, %2, background</source>
        <translation>Farbe %1, %2, Hintergrund</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Farbe %1, %2</translation>
    </message>
</context>
<context>
    <name>ColourSelector</name>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Left button: foreground, right button: background</source>
        <translation>Linke Taste: Vordergrund, rechte Taste: Hintergrund</translation>
    </message>
    <message>
        <source>Transparent on maps</source>
        <translation>Transparent auf Karten</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Farbe %1, %2, transparent</translation>
    </message>
    <message>
        <source>Colour %1, %2, background</source>
        <translation>Farbe %1, %2, Hintergrund</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Farbe %1, %2</translation>
    </message>
</context>
<context>
    <name>CommandDesk</name>
    <message>
        <source>Your keyboard shortcuts could not be read. All commands have their usual keys.</source>
        <translation>Ihre Tastenkürzel konnten nicht gelesen werden. Alle Befehle haben ihre üblichen Tasten.</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>%1
%2 was kept aside under a name that ends in .bad.</source>
        <translation>%1
%2 wurde unter einem Namen aufgehoben, der auf .bad endet.</translation>
    </message>
    <message>
        <source>Your keyboard shortcuts could not be saved. They hold until you quit.</source>
        <translation>Ihre Tastenkürzel konnten nicht gespeichert werden. Sie gelten, bis Sie das Programm beenden.</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Zuletzt verwendete Projekte</translation>
    </message>
    <message>
        <source>Tile %1</source>
        <translation>Tile %1</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Command Palette</source>
        <translation>Befehlspalette</translation>
    </message>
    <message>
        <source>Type a few letters of a command, an asset or a tile</source>
        <translation>Einige Buchstaben eines Befehls, Assets oder Tiles eingeben</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>What matches</source>
        <translation>Treffer</translation>
    </message>
</context>
<context>
    <name>CommandPlaces</name>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Tool Bars</source>
        <translation>Werkzeugleisten</translation>
    </message>
    <message>
        <source>Map Editor</source>
        <translation>Karteneditor</translation>
    </message>
    <message>
        <source>Layers of the Map</source>
        <translation>Ebenen der Karte</translation>
    </message>
    <message>
        <source>Pixel Editors</source>
        <translation>Pixeleditoren</translation>
    </message>
    <message>
        <source>Animation Editors</source>
        <translation>Animationseditoren</translation>
    </message>
    <message>
        <source>List of Animations</source>
        <translation>Liste der Animationen</translation>
    </message>
    <message>
        <source>Tile Picker</source>
        <translation>Tile-Auswahl</translation>
    </message>
    <message>
        <source>Palette Editor</source>
        <translation>Paletteneditor</translation>
    </message>
    <message>
        <source>%1 ▸ %2</source>
        <translation>%1 ▸ %2</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
</context>
<context>
    <name>CreationDialog</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Please enter a name</source>
        <translation>Bitte einen Namen eingeben</translation>
    </message>
</context>
<context>
    <name>DeletionQuestion</name>
    <message>
        <source>1 animation</source>
        <translation>1 Animation</translation>
    </message>
    <message numerus="yes">
        <source>%n animations</source>
        <translation>
            <numerusform>%n Animation</numerusform>
            <numerusform>%n Animationen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 placed sprite</source>
        <translation>1 platziertes Sprite</translation>
    </message>
    <message numerus="yes">
        <source>%n placed sprites</source>
        <translation>
            <numerusform>%n platziertes Sprite</numerusform>
            <numerusform>%n platzierte Sprites</numerusform>
        </translation>
    </message>
    <message>
        <source>Lost with it: %1.</source>
        <translation>Damit verloren: %1.</translation>
    </message>
    <message>
        <source>1 placed animation</source>
        <translation>1 platzierte Animation</translation>
    </message>
    <message numerus="yes">
        <source>%n placed animations</source>
        <translation>
            <numerusform>%n platzierte Animation</numerusform>
            <numerusform>%n platzierte Animationen</numerusform>
        </translation>
    </message>
    <message>
        <source>Left without tiles: %1.</source>
        <translation>Danach ohne Tiles: %1.</translation>
    </message>
    <message>
        <source>No longer shown: %1 on 1 map.</source>
        <translation>Nicht mehr angezeigt: %1 auf 1 Karte.</translation>
    </message>
    <message numerus="yes">
        <source>No longer shown: %1 on %n maps.</source>
        <translation>
            <numerusform>Nicht mehr angezeigt: %1 auf %n Karte.</numerusform>
            <numerusform>Nicht mehr angezeigt: %1 auf %n Karten.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no undo for this.</source>
        <translation>Das kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation>%1 löschen?</translation>
    </message>
    <message>
        <source>Delete “%2” (%1)?</source>
        <translation>„%2“ (%1) löschen?</translation>
    </message>
</context>
<context>
    <name>DepthChooser</name>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 Bit, 256 Farben</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 Bit, 16 Farben</translation>
    </message>
</context>
<context>
    <name>DockTabs</name>
    <message>
        <source>Docks</source>
        <translation>Andockfenster</translation>
    </message>
</context>
<context>
    <name>DocumentTabView</name>
    <message>
        <source>Open documents</source>
        <translation>Geöffnete Dokumente</translation>
    </message>
    <message>
        <source>&amp;Close Tab</source>
        <translation>Tab s&amp;chließen</translation>
    </message>
    <message>
        <source>Close &amp;Other Tabs</source>
        <translation>&amp;Andere Tabs schließen</translation>
    </message>
    <message>
        <source>Scratch Image Editor</source>
        <translation>Skizzeneditor</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alles auswä&amp;hlen</translation>
    </message>
    <message>
        <source>C&amp;lear Selection</source>
        <translation>Auswahl au&amp;fheben</translation>
    </message>
</context>
<context>
    <name>EditRecorder</name>
    <message>
        <source>Edit Frames</source>
        <translation>Frames bearbeiten</translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>TEXT</source>
        <translation>TEXT</translation>
    </message>
    <message>
        <source>There is no asset “%1”</source>
        <translation>Es gibt kein Asset „%1“</translation>
    </message>
    <message>
        <source>“%1” is the name of several assets: use an id (%2)</source>
        <translation>„%1“ heißen mehrere Assets: Bitte eine ID angeben (%2)</translation>
    </message>
    <message>
        <source>quenmora-export --help tells what it understands</source>
        <translation>quenmora-export --help zeigt alle Optionen</translation>
    </message>
    <message>
        <source>Options of all forms:</source>
        <translation>Optionen aller Formate:</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>The project has no recipe; File &gt; Export Project in the editor makes one</source>
        <translation>Das Projekt hat kein Rezept; im Editor legt „Datei &gt; Projekt exportieren“ eins an</translation>
    </message>
    <message numerus="yes">
        <source>Interrupted: %n outputs were not looked at</source>
        <translation>
            <numerusform>Abgebrochen: %n Ausgabe wurde nicht geprüft</numerusform>
            <numerusform>Abgebrochen: %n Ausgaben wurden nicht geprüft</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no form “%1”</source>
        <translation>Es gibt kein Format „%1“</translation>
    </message>
    <message>
        <source>This is the project itself</source>
        <translation>Das ist das Projekt selbst</translation>
    </message>
    <message>
        <source>This file is exported, or exported from</source>
        <translation>Diese Datei ist Ziel oder Quelle des Exports</translation>
    </message>
    <message>
        <source>make cannot be told of “%1”: its name has characters that end names</source>
        <translation>„%1“ kann make nicht mitgeteilt werden: Der Name enthält Zeichen, die Namen beenden</translation>
    </message>
    <message>
        <source>What there was to say could not be written</source>
        <translation>Die Meldungen konnten nicht geschrieben werden</translation>
    </message>
    <message>
        <source>There is nothing in it that a picture could show</source>
        <translation>Darin ist nichts, was ein Bild zeigen könnte</translation>
    </message>
    <message>
        <source>No picture could be made</source>
        <translation>Es konnte kein Bild erzeugt werden</translation>
    </message>
</context>
<context>
    <name>ExportMessages</name>
    <message numerus="yes">
        <source>Exported %1 to %2 (%Ln bytes)</source>
        <translation>
            <numerusform>%1 nach %2 exportiert (%Ln Byte)</numerusform>
            <numerusform>%1 nach %2 exportiert (%Ln Bytes)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln bytes)</source>
        <translation>
            <numerusform>%1 (%Ln Byte)</numerusform>
            <numerusform>%1 (%Ln Bytes)</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported to %1: %2</source>
        <translation>Nach %1 exportiert: %2</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Exporting %1…</source>
        <translation>%1 wird exportiert…</translation>
    </message>
    <message>
        <source>Exporting the project…</source>
        <translation>Projekt wird exportiert…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Projekt exportieren</translation>
    </message>
</context>
<context>
    <name>ExportProjectDialog</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Projekt exportieren</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message>
        <source>Adds assets of the project</source>
        <translation>Fügt Assets des Projekts hinzu</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Bearbeiten…</translation>
    </message>
    <message>
        <source>Changes form, options and file</source>
        <translation>Ändert Format, Optionen und Datei</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Adds a copy, for another form or file</source>
        <translation>Fügt eine Kopie hinzu, für ein anderes Format oder eine andere Datei</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Takes it out of the recipe; its file stays</source>
        <translation>Nimmt sie aus dem Rezept; die Datei bleibt erhalten</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Ausgaben</translation>
    </message>
    <message>
        <source>The game takes nothing of this project yet.

Add palettes, tiles, maps with what is placed on them, sprites, animations and images, each in the form that the game loads. From then on one key writes all that has changed.</source>
        <translation>Das Spiel übernimmt noch nichts aus diesem Projekt.

Fügen Sie Paletten, Tiles, Karten mit allem, was darauf platziert ist, Sprites, Animationen und Bilder hinzu, jeweils in dem Format, das das Spiel lädt. Danach schreibt eine einzige Taste alles, was sich geändert hat.</translation>
    </message>
    <message>
        <source>&amp;Add Assets…</source>
        <translation>&amp;Assets hinzufügen…</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>E&amp;xportieren</translation>
    </message>
    <message>
        <source>Saves the recipe and writes what is new or changed</source>
        <translation>Speichert das Rezept und schreibt, was neu oder geändert ist</translation>
    </message>
    <message>
        <source>Saves the recipe beside the project and writes nothing else</source>
        <translation>Speichert das Rezept neben dem Projekt und schreibt sonst nichts</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>1 output</source>
        <translation>1 Ausgabe</translation>
    </message>
    <message numerus="yes">
        <source>%Ln outputs</source>
        <translation>
            <numerusform>%Ln Ausgabe</numerusform>
            <numerusform>%Ln Ausgaben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln Byte</numerusform>
            <numerusform>%Ln Bytes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln new</source>
        <translation>
            <numerusform>%Ln neu</numerusform>
            <numerusform>%Ln neu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln geändert</numerusform>
            <numerusform>%Ln geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unchanged</source>
        <translation>
            <numerusform>%Ln unverändert</numerusform>
            <numerusform>%Ln unverändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cannot be</source>
        <translation>
            <numerusform>%Ln nicht möglich</numerusform>
            <numerusform>%Ln nicht möglich</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln to be looked at</source>
        <translation>
            <numerusform>%Ln noch zu prüfen</numerusform>
            <numerusform>%Ln noch zu prüfen</numerusform>
        </translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Vorschau von %1</translation>
    </message>
</context>
<context>
    <name>ExportQuestion</name>
    <message>
        <source>Save the project first?</source>
        <translation>Das Projekt zuerst speichern?</translation>
    </message>
    <message>
        <source>The files for the game are written beside the project&apos;s file, and it has none yet.</source>
        <translation>Die Dateien für das Spiel werden neben der Projektdatei angelegt, und die gibt es noch nicht.</translation>
    </message>
    <message>
        <source>&amp;Save Project…</source>
        <translation>Projekt &amp;speichern…</translation>
    </message>
    <message>
        <source>The recipe of this project cannot be used:
%1</source>
        <translation>Das Rezept dieses Projekts kann nicht verwendet werden:
%1</translation>
    </message>
    <message>
        <source>Mend the file, or start with an empty recipe: the file is then kept as %1.</source>
        <translation>Reparieren Sie die Datei oder beginnen Sie mit einem leeren Rezept: Die Datei bleibt dann als %1 erhalten.</translation>
    </message>
    <message>
        <source>&amp;Start Anew</source>
        <translation>&amp;Neu beginnen</translation>
    </message>
    <message>
        <source>Another program changed the recipe of this project:
%1</source>
        <translation>Ein anderes Programm hat das Rezept dieses Projekts geändert:
%1</translation>
    </message>
    <message>
        <source>Saving it from here loses that change.</source>
        <translation>Wird es von hier gespeichert, geht diese Änderung verloren.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Projekt exportieren</translation>
    </message>
</context>
<context>
    <name>ExportReport</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 Byte</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln Byte</numerusform>
            <numerusform>%Ln Bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing to export: 1 file is unchanged in %1</source>
        <translation>Nichts zu exportieren: 1 Datei in %1 ist unverändert</translation>
    </message>
    <message numerus="yes">
        <source>Nothing to export: %Ln files are unchanged in %1</source>
        <translation>
            <numerusform>Nichts zu exportieren: %Ln Datei in %1 ist unverändert</numerusform>
            <numerusform>Nichts zu exportieren: %Ln Dateien in %1 sind unverändert</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>Exportiert: %1</translation>
    </message>
    <message>
        <source>Exported nothing</source>
        <translation>Nichts exportiert</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln unchanged</source>
        <translation>
            <numerusform>%1, %Ln unverändert</numerusform>
            <numerusform>%1, %Ln unverändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln failed</source>
        <translation>
            <numerusform>%1, %Ln fehlgeschlagen</numerusform>
            <numerusform>%1, %Ln fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 nach %2</translation>
    </message>
    <message>
        <source>%1, to %2</source>
        <translation>%1, nach %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Angehalten: %1</translation>
    </message>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… und %Ln weiterer</numerusform>
            <numerusform>… und %Ln weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExtrasFile</name>
    <message>
        <source>it is no file of at most 16 MiB</source>
        <translation>das ist keine Datei von höchstens 16 MiB</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>it holds no object</source>
        <translation>sie enthält kein Objekt</translation>
    </message>
</context>
<context>
    <name>FileImport</name>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… und %n weiterer</numerusform>
            <numerusform>… und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>The file could not be imported</source>
        <translation>Die Datei konnte nicht importiert werden</translation>
    </message>
    <message>
        <source>Some files could not be imported</source>
        <translation>Einige Dateien konnten nicht importiert werden</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Imported %1: %2</source>
        <translation>%1 importiert: %2</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>&amp;Zuletzt verwendet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As</source>
        <translation>Speichern &amp;unter</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importieren…</translation>
    </message>
    <message>
        <source>Looks at files of any kind, shows what they are, and makes assets of them</source>
        <translation>Untersucht Dateien jeder Art, zeigt, was sie sind, und macht Assets daraus</translation>
    </message>
    <message>
        <source>&amp;Export Project…</source>
        <translation>&amp;Projekt exportieren…</translation>
    </message>
    <message>
        <source>Export A&amp;gain</source>
        <translation>&amp;Erneut exportieren</translation>
    </message>
    <message>
        <source>Shows what the game takes of this project, in which forms and files, and writes it</source>
        <translation>Zeigt, was das Spiel aus diesem Projekt übernimmt, in welchen Formaten und Dateien, und schreibt es</translation>
    </message>
    <message>
        <source>Writes what has changed of the files for the game, without a dialog</source>
        <translation>Schreibt ohne Dialog, was sich an den Dateien für das Spiel geändert hat</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>Eins&amp;tellungen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Project file (*.quenmora)</source>
        <translation>Projektdatei (*.quenmora)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Files of the Next (*.pal *.npl *.nxp *.nxt *.til *.ch8 *.map *.nxm *.nxb *.spr *.nxi *.sl2 *.slr *.bin)</source>
        <translation>Dateien des Next (*.pal *.npl *.nxp *.nxt *.til *.ch8 *.map *.nxm *.nxb *.spr *.nxi *.sl2 *.slr *.bin)</translation>
    </message>
    <message>
        <source>Sprites of Aseprite (*.aseprite *.ase)</source>
        <translation>Sprites von Aseprite (*.aseprite *.ase)</translation>
    </message>
    <message>
        <source>Palettes (*.gpl *.pal *.act *.hex)</source>
        <translation>Paletten (*.gpl *.pal *.act *.hex)</translation>
    </message>
    <message>
        <source>Pictures (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Bilder (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>Maps and tile sets of Tiled (*.tmx *.tmj *.tsx *.tsj)</source>
        <translation>Karten und Tilesets von Tiled (*.tmx *.tmj *.tsx *.tsj)</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>“%1” has a character that file names cannot have everywhere</source>
        <translation>„%1“ enthält ein Zeichen, das in Dateinamen nicht überall erlaubt ist</translation>
    </message>
    <message>
        <source>“%1” ends in a dot or a space, which Windows takes away</source>
        <translation>„%1“ endet mit einem Punkt oder Leerzeichen, was Windows entfernt</translation>
    </message>
    <message>
        <source>Windows takes “%1” for a device</source>
        <translation>Windows hält „%1“ für ein Gerät</translation>
    </message>
    <message>
        <source>a name in it is longer than %1 bytes</source>
        <translation>Ein Name im Pfad ist länger als %1 Bytes</translation>
    </message>
</context>
<context>
    <name>FillCanvasTool</name>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
</context>
<context>
    <name>ForeignChange</name>
    <message>
        <source>File Changed</source>
        <translation>Datei geändert</translation>
    </message>
    <message>
        <source>Another program changed the file of this project:
%1</source>
        <translation>Ein anderes Programm hat die Datei dieses Projekts geändert:
%1</translation>
    </message>
    <message>
        <source>Load File opens it as it is now and drops your unsaved changes.</source>
        <translation>„Datei laden“ öffnet sie so, wie sie jetzt ist, und verwirft Ihre nicht gespeicherten Änderungen.</translation>
    </message>
    <message>
        <source>Load File opens it as it is now.</source>
        <translation>„Datei laden“ öffnet sie so, wie sie jetzt ist.</translation>
    </message>
    <message>
        <source>Keep Mine keeps the project as it is here; saving then replaces the file.</source>
        <translation>„Meine behalten“ lässt das Projekt, wie es hier ist; Speichern ersetzt dann die Datei.</translation>
    </message>
    <message>
        <source>&amp;Load File</source>
        <translation>Datei &amp;laden</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>Meine &amp;behalten</translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>the pixels of the file take more than %1</source>
        <translation>Die Pixel der Datei belegen mehr als %1</translation>
    </message>
    <message>
        <source>the pixels are damaged</source>
        <translation>Die Pixel sind beschädigt</translation>
    </message>
    <message>
        <source>Frame %1 has a picture for layer %2 of %3</source>
        <translation>Frame %1 hat ein Bild für Ebene %2 von %3</translation>
    </message>
    <message>
        <source>Its frames have more than %1 pictures of layers together</source>
        <translation>Die Frames haben zusammen mehr als %1 Bilder von Ebenen</translation>
    </message>
    <message>
        <source>%1: there are two pictures</source>
        <translation>%1: Es gibt zwei Bilder</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the picture is of an unknown kind, %1</source>
        <translation>Das Bild ist von unbekannter Art, %1</translation>
    </message>
    <message>
        <source>the picture is of another kind than the layer</source>
        <translation>Das Bild ist von anderer Art als die Ebene</translation>
    </message>
    <message>
        <source>the picture is that of frame %1, which has none or comes later</source>
        <translation>Das Bild ist das von Frame %1, der keins hat oder erst später kommt</translation>
    </message>
    <message>
        <source>a tile has %1 bits; only %2 can be read</source>
        <translation>Ein Tile hat %1 Bit; nur %2 können gelesen werden</translation>
    </message>
    <message>
        <source>the tiles are damaged</source>
        <translation>Die Tiles sind beschädigt</translation>
    </message>
    <message>
        <source>It has two tile sets of number %1, or more than %2</source>
        <translation>Die Datei hat zwei Tilesets mit der Nummer %1 oder mehr als %2</translation>
    </message>
    <message>
        <source>The tile set “%1” is in another file, and left out</source>
        <translation>Das Tileset „%1“ liegt in einer anderen Datei und wird ausgelassen</translation>
    </message>
    <message>
        <source>The tile set “%1” has %2 tiles of %3 × %4 pixels</source>
        <translation>Das Tileset „%1“ hat %2 Tiles mit %3 × %4 Pixeln</translation>
    </message>
    <message>
        <source>The tile set “%1”: %2</source>
        <translation>Das Tileset „%1“: %2</translation>
    </message>
    <message>
        <source>The layer “%1” has the tiles of a set that is not there</source>
        <translation>Die Ebene „%1“ hat die Tiles eines Tilesets, das nicht vorhanden ist</translation>
    </message>
    <message>
        <source>The layer “%1” has tile %2 of a set of %3</source>
        <translation>Die Ebene „%1“ hat Tile %2 eines Tilesets mit %3</translation>
    </message>
    <message>
        <source>Its layers have more than %1 million pixels in all frames together</source>
        <translation>Die Ebenen haben in allen Frames zusammen mehr als %1 Millionen Pixel</translation>
    </message>
    <message>
        <source>Frame %1, layer “%2”</source>
        <translation>Frame %1, Ebene „%2“</translation>
    </message>
    <message>
        <source>It is no Aseprite file</source>
        <translation>Das ist keine Aseprite-Datei</translation>
    </message>
    <message>
        <source>It is cut short: it has %1 of %2 bytes</source>
        <translation>Die Datei ist abgeschnitten: %1 von %2 Bytes sind vorhanden</translation>
    </message>
    <message>
        <source>It says that a pixel has %1 bits; it can have 8, 16 or 32</source>
        <translation>Laut Datei hat ein Pixel %1 Bit; möglich sind 8, 16 oder 32</translation>
    </message>
    <message>
        <source>It says that it has %1 frames of %2 × %3 pixels</source>
        <translation>Laut Datei hat sie %1 Frames mit %2 × %3 Pixeln</translation>
    </message>
    <message>
        <source>It has %1 frames of %2 × %3 pixels; at most %4 million pixels together can be read</source>
        <translation>Die Datei hat %1 Frames mit %2 × %3 Pixeln; insgesamt können höchstens %4 Millionen Pixel gelesen werden</translation>
    </message>
    <message>
        <source>Its pixels are not square, but %1 to %2: they become square</source>
        <translation>Die Pixel sind nicht quadratisch, sondern %1 zu %2: Sie werden quadratisch</translation>
    </message>
    <message>
        <source>It is cut short: frame %1 of %2 is not there</source>
        <translation>Die Datei ist abgeschnitten: Frame %1 von %2 fehlt</translation>
    </message>
    <message>
        <source>Frame %1 is damaged</source>
        <translation>Frame %1 ist beschädigt</translation>
    </message>
    <message>
        <source>Frame %1 is damaged: chunk %2 of %3 has a wrong size</source>
        <translation>Frame %1 ist beschädigt: Chunk %2 von %3 hat eine falsche Größe</translation>
    </message>
    <message>
        <source>Frame %1 is damaged: chunk %2 of %3 is cut short</source>
        <translation>Frame %1 ist beschädigt: Chunk %2 von %3 ist abgeschnitten</translation>
    </message>
    <message>
        <source>Its slices are left out</source>
        <translation>Slices werden ausgelassen</translation>
    </message>
    <message>
        <source>It has more than %1 layers</source>
        <translation>Die Datei hat mehr als %1 Ebenen</translation>
    </message>
    <message>
        <source>The reference layer “%1” is left out</source>
        <translation>Die Referenzebene „%1“ wird ausgelassen</translation>
    </message>
    <message>
        <source>The layer “%1” mixes its colours with those beneath: it is drawn as others are</source>
        <translation>Die Ebene „%1“ mischt ihre Farben mit denen darunter: Sie wird wie die anderen gezeichnet</translation>
    </message>
    <message>
        <source>The group “%1” is partly clear: that is done to each of its layers</source>
        <translation>Die Gruppe „%1“ ist teilweise transparent: Das gilt dann für jede ihrer Ebenen</translation>
    </message>
    <message>
        <source>The palette changes after frame %1, whose colours are taken</source>
        <translation>Die Palette ändert sich nach Frame %1, dessen Farben übernommen werden</translation>
    </message>
    <message>
        <source>Frame %1 has more than %2 palettes</source>
        <translation>Frame %1 hat mehr als %2 Paletten</translation>
    </message>
    <message>
        <source>Its palette has %1 colours; at most %2 can be read</source>
        <translation>Die Palette hat %1 Farben; höchstens %2 können gelesen werden</translation>
    </message>
    <message>
        <source>Its palette has %1 colours, of which it gives %2 to %3</source>
        <translation>Die Palette hat %1 Farben, von denen sie %2 bis %3 angibt</translation>
    </message>
    <message>
        <source>It has more than %1 tags</source>
        <translation>Die Datei hat mehr als %1 Tags</translation>
    </message>
    <message>
        <source>The tag “%1” is left out: it names frames %2 to %3 of %4</source>
        <translation>Das Tag „%1“ wird ausgelassen: Es nennt die Frames %2 bis %3 von %4</translation>
    </message>
    <message>
        <source>”, “</source>
        <translation>“, „</translation>
    </message>
    <message numerus="yes">
        <source>%n layers are hidden and left out, “%1” among them</source>
        <translation>
            <numerusform>%n Ebene ist ausgeblendet und wird ausgelassen, „%1“</numerusform>
            <numerusform>%n Ebenen sind ausgeblendet und werden ausgelassen, darunter „%1“</numerusform>
        </translation>
    </message>
    <message>
        <source>Hidden layers are left out: “%1”</source>
        <translation>Ausgeblendete Ebenen werden ausgelassen: „%1“</translation>
    </message>
    <message>
        <source>Its pixels are numbers of colours, and it has no palette</source>
        <translation>Die Pixel sind Farbnummern, aber es gibt keine Palette</translation>
    </message>
    <message>
        <source>It has pixels of colour %1, and its palette has %2 colours: they are black</source>
        <translation>Es gibt Pixel der Farbe %1, aber die Palette hat %2 Farben: Sie werden schwarz</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>It has no colours</source>
        <translation>Sie enthält keine Farben</translation>
    </message>
    <message>
        <source>“%1” is no colour, which is %2 numbers from 0 to 255</source>
        <translation>„%1“ ist keine Farbe; die besteht aus %2 Zahlen von 0 bis 255</translation>
    </message>
    <message>
        <source>“%1” stands where “%2” does</source>
        <translation>„%1“ steht dort, wo „%2“ hingehört</translation>
    </message>
    <message>
        <source>“%1” is no number of colours</source>
        <translation>„%1“ ist keine Anzahl von Farben</translation>
    </message>
    <message>
        <source>It says that it has %1 colours, and has %2</source>
        <translation>Sie soll %1 Farben haben, hat aber %2</translation>
    </message>
    <message>
        <source>“%1” is no colour of six hexadecimal digits</source>
        <translation>„%1“ ist keine Farbe aus sechs Hexadezimalziffern</translation>
    </message>
    <message>
        <source>It says that it has %1 colours; there is room for %2</source>
        <translation>Sie soll %1 Farben haben; Platz ist für %2</translation>
    </message>
    <message>
        <source>Its transparent index is %1, and it has %2 colours</source>
        <translation>Ihr transparenter Index ist %1, aber sie hat %2 Farben</translation>
    </message>
    <message>
        <source>It has %1; at most %2 can be read</source>
        <translation>Die Datei hat %1; höchstens %2 können gelesen werden</translation>
    </message>
    <message>
        <source>It is no palette of the forms .gpl, .pal (JASC), .hex or .act</source>
        <translation>Das ist keine Palette im Format .gpl, .pal (JASC), .hex oder .act</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>There is more of this kind</source>
        <translation>Es gibt weitere dieser Art</translation>
    </message>
    <message>
        <source>It is not there, or may not be read</source>
        <translation>Die Datei ist nicht vorhanden oder darf nicht gelesen werden</translation>
    </message>
    <message>
        <source>It could not be read: %1</source>
        <translation>Die Datei konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>its cells are written as “%1”, which cannot be read</source>
        <translation>Die Zellen sind als „%1“ kodiert, was nicht gelesen werden kann</translation>
    </message>
    <message>
        <source>its cells are packed as “%1”, which cannot be read</source>
        <translation>Die Zellen sind als „%1“ komprimiert, was nicht gelesen werden kann</translation>
    </message>
    <message>
        <source>cell %1 is no number of a tile</source>
        <translation>Zelle %1 ist keine Tile-Nummer</translation>
    </message>
    <message>
        <source>it has more than %1 cells</source>
        <translation>Sie hat mehr als %1 Zellen</translation>
    </message>
    <message>
        <source>“%1” is among the numbers of its cells</source>
        <translation>Unter den Nummern der Zellen ist „%1“</translation>
    </message>
    <message>
        <source>it has %1 of %2 cells</source>
        <translation>Sie hat %1 von %2 Zellen</translation>
    </message>
    <message>
        <source>its cells are damaged, or not %1</source>
        <translation>Die Zellen sind beschädigt, oder es sind nicht %1</translation>
    </message>
    <message>
        <source>Two tile sets begin with number %1</source>
        <translation>Zwei Tilesets beginnen mit Nummer %1</translation>
    </message>
    <message>
        <source>The tile set “%1” has animations of tiles that are not there</source>
        <translation>Das Tileset „%1“ hat Animationen von Tiles, die nicht vorhanden sind</translation>
    </message>
    <message>
        <source>The tile set “%1” says no size of its tiles</source>
        <translation>Das Tileset „%1“ nennt keine Größe seiner Tiles</translation>
    </message>
    <message>
        <source>The picture of the tile set “%1” has %2 of its %3 tiles</source>
        <translation>Das Bild des Tilesets „%1“ enthält %2 seiner %3 Tiles</translation>
    </message>
    <message>
        <source>The layer “%1” is partly clear: it becomes opaque</source>
        <translation>Die Ebene „%1“ ist teilweise transparent: Sie wird deckend</translation>
    </message>
    <message>
        <source>The layer “%1” is moved by parts of cells: it goes to the nearest</source>
        <translation>Die Ebene „%1“ ist um Teile von Zellen verschoben: Sie rückt zur nächsten Zelle</translation>
    </message>
    <message numerus="yes">
        <source>What shines through clear pixels of tiles above is lost, in %n cells</source>
        <translation>
            <numerusform>In %n Zelle geht verloren, was durch transparente Pixel darüberliegender Tiles scheint</numerusform>
            <numerusform>In %n Zellen geht verloren, was durch transparente Pixel darüberliegender Tiles scheint</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells have numbers that no tile set has: they become empty</source>
        <translation>
            <numerusform>%n Zelle hat eine Nummer, die in keinem Tileset vorkommt: Sie wird leer</numerusform>
            <numerusform>%n Zellen haben Nummern, die in keinem Tileset vorkommen: Sie werden leer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells of layers lie beyond the map: they are lost</source>
        <translation>
            <numerusform>%n Zelle von Ebenen liegt außerhalb der Karte: Sie geht verloren</numerusform>
            <numerusform>%n Zellen von Ebenen liegen außerhalb der Karte: Sie gehen verloren</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is not in the file&apos;s folder</source>
        <translation>„%1“ liegt nicht im Ordner der Datei</translation>
    </message>
    <message>
        <source>“%1” is not there</source>
        <translation>„%1“ ist nicht vorhanden</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>the pictures have more than %1 million pixels together</source>
        <translation>Die Bilder haben zusammen mehr als %1 Millionen Pixel</translation>
    </message>
    <message>
        <source>it is no picture that can be read</source>
        <translation>Das ist kein lesbares Bild</translation>
    </message>
    <message>
        <source>It has more than %1 million numbers; with cells written as Base64 it has fewer</source>
        <translation>Die Datei hat mehr als %1 Millionen Zahlen; mit Zellen in Base64 sind es weniger</translation>
    </message>
    <message>
        <source>It has more than %1 lists and objects</source>
        <translation>Die Datei hat mehr als %1 Listen und Objekte</translation>
    </message>
    <message>
        <source>Byte %1: %2</source>
        <translation>Byte %1: %2</translation>
    </message>
    <message>
        <source>there are too many groups in each other</source>
        <translation>Zu viele Gruppen sind ineinander verschachtelt</translation>
    </message>
    <message>
        <source>“%1” is “%2”, and can be %3 to %4</source>
        <translation>„%1“ ist „%2“, möglich sind %3 bis %4</translation>
    </message>
    <message>
        <source>“%1” is “%2”, which is no number that it can be</source>
        <translation>„%1“ ist „%2“, was keine mögliche Zahl ist</translation>
    </message>
    <message>
        <source>It is a map of the kind “%1”; only “orthogonal” ones can be read</source>
        <translation>Das ist eine Karte der Art „%1“; nur solche der Art „orthogonal“ können gelesen werden</translation>
    </message>
    <message>
        <source>It says no width and height</source>
        <translation>Breite und Höhe sind nicht angegeben</translation>
    </message>
    <message>
        <source>It has %1 × %2 cells; at most %3 million can be read</source>
        <translation>Die Karte hat %1 × %2 Zellen; höchstens %3 Millionen können gelesen werden</translation>
    </message>
    <message>
        <source>Its layers have more than %1 million cells together</source>
        <translation>Die Ebenen haben zusammen mehr als %1 Millionen Zellen</translation>
    </message>
    <message>
        <source>The layer “%1”: %2</source>
        <translation>Die Ebene „%1“: %2</translation>
    </message>
    <message>
        <source>The image layer “%1” is left out</source>
        <translation>Die Bildebene „%1“ wird ausgelassen</translation>
    </message>
    <message>
        <source>Objects made from templates lack what their template says</source>
        <translation>Objekten aus Vorlagen fehlt, was ihre Vorlage angibt</translation>
    </message>
    <message>
        <source>It has more than %1 objects</source>
        <translation>Die Datei hat mehr als %1 Objekte</translation>
    </message>
    <message>
        <source>Its objects have more than %1 properties</source>
        <translation>Die Objekte haben mehr als %1 Eigenschaften</translation>
    </message>
    <message>
        <source>It has more than %1 tile sets</source>
        <translation>Die Datei hat mehr als %1 Tilesets</translation>
    </message>
    <message>
        <source>Pictures inside the file cannot be read</source>
        <translation>In der Datei enthaltene Bilder können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Its tile sets have more than %1 pictures</source>
        <translation>Die Tilesets haben mehr als %1 Bilder</translation>
    </message>
    <message>
        <source>Its animations have more than %1 frames</source>
        <translation>Die Animationen haben mehr als %1 Frames</translation>
    </message>
    <message>
        <source>It is no XML in UTF-8</source>
        <translation>Das ist kein XML in UTF-8</translation>
    </message>
    <message>
        <source>It declares elements or entities of its own</source>
        <translation>Die Datei deklariert eigene Elemente oder Entitäten</translation>
    </message>
    <message>
        <source>An element has more than %1 attributes</source>
        <translation>Ein Element hat mehr als %1 Attribute</translation>
    </message>
    <message>
        <source>there is no element</source>
        <translation>Es gibt kein Element</translation>
    </message>
    <message>
        <source>there are too many elements in each other</source>
        <translation>Zu viele Elemente sind ineinander verschachtelt</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Create a backup when saving</source>
        <translation>Beim Speichern eine Sicherungskopie anlegen</translation>
    </message>
    <message>
        <source>Check for updates on startup</source>
        <translation>Beim Start nach Updates suchen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Monatlich</translation>
    </message>
    <message>
        <source>General Settings</source>
        <translation>Allgemeine Einstellungen</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Check frequency</source>
        <translation>Suchintervall</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>The guide is not installed</source>
        <translation>Die Anleitung ist nicht installiert</translation>
    </message>
    <message>
        <source>It comes with Quenmora&apos;s package.</source>
        <translation>Sie ist im Paket von Quenmora enthalten.</translation>
    </message>
    <message>
        <source>No program was found that shows the guide</source>
        <translation>Es wurde kein Programm gefunden, das die Anleitung zeigt</translation>
    </message>
    <message>
        <source>It is in this file: %1</source>
        <translation>Sie ist in dieser Datei: %1</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>Nach &amp;Updates suchen…</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>Command &amp;Palette…</source>
        <translation>Be&amp;fehlspalette…</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts…</source>
        <translation>&amp;Tastenkürzel…</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>An&amp;leitung</translation>
    </message>
    <message>
        <source>Opens the guide in your browser, at the page about what you work on</source>
        <translation>Öffnet die Anleitung im Browser auf der Seite über das, woran Sie arbeiten</translation>
    </message>
    <message>
        <source>&amp;Sample Project</source>
        <translation>Bei&amp;spielprojekt</translation>
    </message>
    <message>
        <source>Opens a small game to look at and to play with; saving makes a copy of your own</source>
        <translation>Öffnet ein kleines Spiel zum Ansehen und Ausprobieren; beim Speichern entsteht Ihre eigene Kopie</translation>
    </message>
</context>
<context>
    <name>ImageDialog</name>
    <message>
        <source>New Image</source>
        <translation>Neues Bild</translation>
    </message>
    <message>
        <source>Create a new image</source>
        <translation>Ein neues Bild anlegen</translation>
    </message>
    <message>
        <source>256x192 256 colours</source>
        <translation>256x192, 256 Farben</translation>
    </message>
    <message>
        <source>320x256 256 colours</source>
        <translation>320x256, 256 Farben</translation>
    </message>
    <message>
        <source>640x256 16 colours</source>
        <translation>640x256, 16 Farben</translation>
    </message>
    <message>
        <source>128x96 256 colours</source>
        <translation>128x96, 256 Farben</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Modus</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>An image needs a palette; please create a palette first</source>
        <translation>Ein Bild braucht eine Palette; bitte zuerst eine Palette anlegen</translation>
    </message>
</context>
<context>
    <name>ImageEditor::ImportDialog</name>
    <message>
        <source>Import Image</source>
        <translation>Bild importieren</translation>
    </message>
    <message>
        <source>Scale to fill the image</source>
        <translation>Auf Bildgröße skalieren</translation>
    </message>
    <message>
        <source>Keep the machine&apos;s colours</source>
        <translation>Farben des Next behalten</translation>
    </message>
    <message>
        <source>Keep transparent pixels</source>
        <translation>Transparente Pixel behalten</translation>
    </message>
    <message>
        <source>New palette of the picture&apos;s colours</source>
        <translation>Neue Palette aus den Farben der Vorlage</translation>
    </message>
    <message>
        <source>Import a picture</source>
        <translation>Ein Bild importieren</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has: those that the palette has stay exactly that, and scaling mixes no new ones</source>
        <translation>Jede Farbe der Vorlage ist eine, die der Next hat: Die, die es in der Palette gibt, bleiben genau so, und beim Skalieren entstehen keine Mischfarben</translation>
    </message>
    <message>
        <source>They get the transparent entry of the palette, and no colour does</source>
        <translation>Sie erhalten den transparenten Eintrag der Palette, Farben dagegen nie</translation>
    </message>
    <message>
        <source>The image is shown with it from now on; the palette that it had stays as it is</source>
        <translation>Das Bild wird künftig mit ihr angezeigt; seine bisherige Palette bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>&amp;Fewer colours</source>
        <translation>&amp;Weniger Farben</translation>
    </message>
    <message>
        <source>Picture %1 × %2, image %3 × %4</source>
        <translation>Vorlage %1 × %2, Bild %3 × %4</translation>
    </message>
    <message>
        <source>The picture cannot be used</source>
        <translation>Das Bild kann nicht verwendet werden</translation>
    </message>
</context>
<context>
    <name>ImageEditor::View</name>
    <message>
        <source>Swap Palette</source>
        <translation>Palette wechseln</translation>
    </message>
    <message>
        <source>Import Image</source>
        <translation>Bild importieren</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Bilder (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>Export Image</source>
        <translation>Bild exportieren</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg *.bmp)</source>
        <translation>Bilder (*.png *.xpm *.jpg *.bmp)</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Beim Exportieren der Daten ist ein Problem aufgetreten</translation>
    </message>
    <message>
        <source>Pictures are written as .png, .xpm, .jpg or .bmp files</source>
        <translation>Bilder werden als .png-, .xpm-, .jpg- oder .bmp-Dateien geschrieben</translation>
    </message>
    <message>
        <source>Scratch Image</source>
        <translation>Skizze</translation>
    </message>
    <message>
        <source>Paint here, or bring in a picture with Open among the tools</source>
        <translation>Malen Sie hier, oder holen Sie mit „Öffnen“ bei den Werkzeugen ein Bild herein</translation>
    </message>
</context>
<context>
    <name>ImageMenu</name>
    <message>
        <source>&amp;Image</source>
        <translation>B&amp;ild</translation>
    </message>
    <message>
        <source>&amp;New Image</source>
        <translation>&amp;Neues Bild</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>&amp;Palette wechseln</translation>
    </message>
</context>
<context>
    <name>ImportAgain</name>
    <message>
        <source>The image has no palette any more</source>
        <translation>Das Bild hat keine Palette mehr</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Erneut importieren</translation>
    </message>
    <message>
        <source>%1 is up to date</source>
        <translation>%1 ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>The file is neither a palette nor a picture that can be read</source>
        <translation>Die Datei ist weder eine Palette noch ein lesbares Bild</translation>
    </message>
    <message>
        <source>Such a file makes new assets, and cannot go into those that are there</source>
        <translation>Aus einer solchen Datei entstehen neue Assets; sie kann nicht in vorhandene übernommen werden</translation>
    </message>
    <message>
        <source>%1 was imported again</source>
        <translation>%1 wurde erneut importiert</translation>
    </message>
    <message>
        <source>What was made of it is not there any more</source>
        <translation>Was daraus entstanden ist, gibt es nicht mehr</translation>
    </message>
    <message>
        <source>The file is not there any more:
%1</source>
        <translation>Die Datei gibt es nicht mehr:
%1</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>%1 wird importiert…</translation>
    </message>
    <message>
        <source>%1 is up to date; new tiles: %2</source>
        <translation>%1 ist auf dem neuesten Stand; neue Tiles: %2</translation>
    </message>
    <message>
        <source>; pixels that took the nearest colour: %1</source>
        <translation>; Pixel, die die nächste Farbe erhielten: %1</translation>
    </message>
    <message>
        <source>The map has no tiles or no palette any more</source>
        <translation>Die Karte hat keine Tiles oder keine Palette mehr</translation>
    </message>
    <message numerus="yes">
        <source>The picture needs %n more tiles, and the tile set has room for %1</source>
        <translation>
            <numerusform>Das Bild braucht %n weiteres Tile, und das Tileset hat Platz für %1</numerusform>
            <numerusform>Das Bild braucht %n weitere Tiles, und das Tileset hat Platz für %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Resize Map</source>
        <translation>Kartengröße ändern</translation>
    </message>
    <message>
        <source>The sprites have no palette any more</source>
        <translation>Die Sprites haben keine Palette mehr</translation>
    </message>
    <message>
        <source>The picture is smaller than a sprite, which has 16 × 16 pixels</source>
        <translation>Das Bild ist kleiner als ein Sprite, das 16 × 16 Pixel hat</translation>
    </message>
    <message>
        <source>The picture holds more sprites than fit into a bank</source>
        <translation>Das Bild enthält mehr Sprites, als in eine Bank passen</translation>
    </message>
    <message>
        <source>%1 is up to date; sprites that are new: %2</source>
        <translation>%1 ist auf dem neuesten Stand; neue Sprites: %2</translation>
    </message>
    <message>
        <source>The map is too large to be brought up to date</source>
        <translation>Die Karte ist zu groß, um sie auf den neuesten Stand zu bringen</translation>
    </message>
</context>
<context>
    <name>ImportFileDialog</name>
    <message>
        <source>New palette</source>
        <translation>Neue Palette</translation>
    </message>
    <message>
        <source>New tile set</source>
        <translation>Neues Tileset</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>Neue Karte</translation>
    </message>
    <message>
        <source>New sprites</source>
        <translation>Neue Sprites</translation>
    </message>
    <message>
        <source>New map objects</source>
        <translation>Neue Kartenobjekte</translation>
    </message>
    <message>
        <source>New image</source>
        <translation>Neues Bild</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… und %n weiterer</numerusform>
            <numerusform>… und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>What the file is; first what it most probably is</source>
        <translation>Was die Datei ist; zuerst das Wahrscheinlichste</translation>
    </message>
    <message>
        <source>A new asset, or one of the project that takes it in, as one undo step</source>
        <translation>Ein neues Asset oder ein vorhandenes, das sie aufnimmt, in einem einzigen Rückgängig-Schritt</translation>
    </message>
    <message>
        <source>The number from which on those that are there are replaced, counted from 0</source>
        <translation>Die Nummer, ab der vorhandene ersetzt werden, ab 0 gezählt</translation>
    </message>
    <message>
        <source>Behind those that are there</source>
        <translation>Hinter den vorhandenen</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Art</translation>
    </message>
    <message>
        <source>In&amp;to</source>
        <translation>&amp;Ziel</translation>
    </message>
    <message>
        <source>&amp;From number</source>
        <translation>Ab N&amp;ummer</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Ti&amp;le set</source>
        <translation>Ti&amp;leset</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>Über&amp;springen</translation>
    </message>
    <message>
        <source>Leaves this file out and goes on with the next one</source>
        <translation>Lässt diese Datei aus und fährt mit der nächsten fort</translation>
    </message>
    <message>
        <source>Import (%1 of %2)</source>
        <translation>Importieren (%1 von %2)</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln bytes</source>
        <translation>
            <numerusform>%1, %Ln Byte</numerusform>
            <numerusform>%1, %Ln Bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>New tile set of blank tiles</source>
        <translation>Neues Tileset aus leeren Tiles</translation>
    </message>
    <message>
        <source>New palette of its own colours</source>
        <translation>Neue Palette aus den eigenen Farben</translation>
    </message>
    <message>
        <source>New palette of the standard colours</source>
        <translation>Neue Palette mit den Standardfarben</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>C&amp;ontinue…</source>
        <translation>&amp;Weiter…</translation>
    </message>
    <message>
        <source>What is asked next depends on the picture</source>
        <translation>Was als Nächstes gefragt wird, hängt vom Bild ab</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
    <message>
        <source>The project was closed meanwhile</source>
        <translation>Das Projekt wurde inzwischen geschlossen</translation>
    </message>
    <message>
        <source>There is nothing in the project into which it could go</source>
        <translation>Im Projekt gibt es nichts, was sie aufnehmen könnte</translation>
    </message>
</context>
<context>
    <name>ImportKeeper</name>
    <message>
        <source>The file could not be imported again</source>
        <translation>Die Datei konnte nicht erneut importiert werden</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Erneut importieren</translation>
    </message>
</context>
<context>
    <name>ImportNotice</name>
    <message>
        <source>Import Again</source>
        <translation>Erneut importieren</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>%1 changed since it was imported</source>
        <translation>%1 hat sich seit dem Import geändert</translation>
    </message>
    <message numerus="yes">
        <source>%n files changed since they were imported</source>
        <translation>
            <numerusform>%n Datei hat sich seit dem Import geändert</numerusform>
            <numerusform>%n Dateien haben sich seit dem Import geändert</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportPictureDialog</name>
    <message>
        <source>Import Picture</source>
        <translation>Bild importieren</translation>
    </message>
    <message>
        <source>&amp;Keep the machine&apos;s colours</source>
        <translation>Farben des Next &amp;behalten</translation>
    </message>
    <message>
        <source>Keep &amp;transparent pixels</source>
        <translation>&amp;Transparente Pixel behalten</translation>
    </message>
    <message>
        <source>&amp;Find colours and tiles for the whole picture</source>
        <translation>&amp;Farben und Tiles fürs ganze Bild suchen</translation>
    </message>
    <message>
        <source>Make tiles and a map of a picture</source>
        <translation>Aus einem Bild Tiles und eine Karte machen</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has, and stays exactly that</source>
        <translation>Jede Farbe des Bildes ist eine, die der Next hat, und bleibt genau so</translation>
    </message>
    <message>
        <source>They get index %1 of their tiles, which the map does not draw</source>
        <translation>Sie erhalten den Index %1 ihrer Tiles, den die Karte nicht zeichnet</translation>
    </message>
    <message>
        <source>Groups of 16 colours that suit all tiles as well as they can, and at most %1 tiles; else tiles are served as they come, and who comes last gets what is left</source>
        <translation>Gruppen von 16 Farben, die so gut wie möglich zu allen Tiles passen, und höchstens %1 Tiles; sonst werden die Tiles der Reihe nach bedient, und die letzten bekommen, was übrig ist</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Ordered pattern</source>
        <translation>Geordnetes Muster</translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation>Fehlerdiffusion</translation>
    </message>
    <message>
        <source>&amp;Dithering</source>
        <translation>&amp;Dithering</translation>
    </message>
    <message>
        <source>Reducing %1…</source>
        <translation>%1 wird reduziert…</translation>
    </message>
    <message>
        <source>Tiles: %1
Tiles that lose colours: %2</source>
        <translation>Tiles: %1
Tiles, die Farben verlieren: %2</translation>
    </message>
    <message>
        <source>Tiles: %1, for %2 different ones
Colours: %3, for %4 of the picture; groups: %5</source>
        <translation>Tiles: %1 für %2 verschiedene
Farben: %3 für %4 des Bildes; Gruppen: %5</translation>
    </message>
    <message>
        <source>Nothing is lost</source>
        <translation>Nichts geht verloren</translation>
    </message>
    <message>
        <source>Nothing is lost but shades between the colours that the machine has</source>
        <translation>Nur Abstufungen zwischen den Farben des Next gehen verloren</translation>
    </message>
    <message>
        <source>Of %1 cells, %2 lose colours and %3 show a tile that is like theirs</source>
        <translation>Von %1 Zellen verlieren %2 Farben, und %3 zeigen ein ähnliches Tile</translation>
    </message>
    <message>
        <source>; mean error: %1 levels</source>
        <translation>; mittlerer Fehler: %1 Stufen</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n different tiles, and a tile set has room for %1</source>
        <translation>
            <numerusform>Das Bild hat %n verschiedenes Tile, und ein Tileset hat Platz für %1</numerusform>
            <numerusform>Das Bild hat %n verschiedene Tiles, und ein Tileset hat Platz für %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportZXFontDialog</name>
    <message>
        <source>Import Spectrum Characters</source>
        <translation>Spectrum-Zeichen importieren</translation>
    </message>
    <message>
        <source>Import a ZX Spectrum font into tiles</source>
        <translation>Eine ZX-Spectrum-Schrift in Tiles importieren</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>D&amp;urchsuchen…</translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation>Da&amp;tei</translation>
    </message>
    <message>
        <source>&amp;First tile</source>
        <translation>&amp;Erstes Tile</translation>
    </message>
    <message>
        <source>Palette &amp;offset</source>
        <translation>Paletten-&amp;Offset</translation>
    </message>
    <message>
        <source>I&amp;nk</source>
        <translation>T&amp;inte</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Papier</translation>
    </message>
    <message>
        <source>Fonts (*.bin *.raw *.ch8)</source>
        <translation>Schriften (*.bin *.raw *.ch8)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>No characters</source>
        <translation>Keine Zeichen</translation>
    </message>
    <message>
        <source>Characters: %1, in tiles %2 to %3</source>
        <translation>Zeichen: %1, in den Tiles %2 bis %3</translation>
    </message>
    <message>
        <source>The tile set has no palette to take colours from</source>
        <translation>Das Tileset hat keine Palette, aus der Farben kommen könnten</translation>
    </message>
    <message>
        <source>Please choose a font file</source>
        <translation>Bitte eine Schriftdatei wählen</translation>
    </message>
    <message>
        <source>There is no character in this file, or it cannot be read</source>
        <translation>Diese Datei enthält keine Zeichen oder kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>Importing</name>
    <message>
        <source>%1 (sprites)</source>
        <translation>%1 (Sprites)</translation>
    </message>
    <message>
        <source>Import Map</source>
        <translation>Karte importieren</translation>
    </message>
    <message>
        <source>Import Tiles</source>
        <translation>Tiles importieren</translation>
    </message>
    <message>
        <source>Import Sprites</source>
        <translation>Sprites importieren</translation>
    </message>
    <message>
        <source>There is no number %1; the last one is %2</source>
        <translation>Es gibt keine Nummer %1; die letzte ist %2</translation>
    </message>
    <message>
        <source>There is room for %1, and %2 come in</source>
        <translation>Es ist Platz für %1, und %2 kommen hinzu</translation>
    </message>
    <message>
        <source>“%1” has %2 tiles, and the first number is for tile %3 (counted from 0)</source>
        <translation>„%1“ hat %2 Tiles, und die erste Zahl gilt für Tile %3 (ab 0 gezählt)</translation>
    </message>
    <message>
        <source>The sprites have indices above 15, and “%1” is a bank of 4 bits</source>
        <translation>Die Sprites haben Indizes über 15, und „%1“ ist eine 4-Bit-Bank</translation>
    </message>
    <message>
        <source>The asset into which it goes is not there any more, or is of another kind</source>
        <translation>Das Ziel-Asset gibt es nicht mehr, oder es ist von anderer Art</translation>
    </message>
    <message>
        <source>Choose the tile set whose tiles these are for</source>
        <translation>Bitte das Tileset wählen, für dessen Tiles dies gilt</translation>
    </message>
    <message>
        <source>Please enter a name</source>
        <translation>Bitte einen Namen eingeben</translation>
    </message>
    <message>
        <source>Import Animations</source>
        <translation>Animationen importieren</translation>
    </message>
    <message>
        <source>Animation %1</source>
        <translation>Animation %1</translation>
    </message>
    <message>
        <source>“%1”: frames have times of their own, and get the mean of them</source>
        <translation>„%1“: Die Frames haben eigene Zeiten und erhalten deren Mittelwert</translation>
    </message>
    <message>
        <source>“%1” is repeated for ever</source>
        <translation>„%1“ wird endlos wiederholt</translation>
    </message>
    <message numerus="yes">
        <source>The frames make %n sprites, which is more than there is room for</source>
        <translation>
            <numerusform>Die Frames ergeben %n Sprite, für das nicht genug Platz ist</numerusform>
            <numerusform>Die Frames ergeben %n Sprites, für die nicht genug Platz ist</numerusform>
        </translation>
    </message>
    <message>
        <source>Sprites alone go into a bank that is there; the animations are left out</source>
        <translation>In eine vorhandene Bank kommen nur Sprites; die Animationen werden ausgelassen</translation>
    </message>
    <message>
        <source>The frames have %1 pixels, and tiles are made of at most %2</source>
        <translation>Die Frames haben %1 Pixel, und Tiles entstehen aus höchstens %2</translation>
    </message>
    <message>
        <source>Frames that are left out: %1</source>
        <translation>Ausgelassene Frames: %1</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>How many colours the sprites have</source>
        <translation>Wie viele Farben die Sprites haben</translation>
    </message>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 Bit, 256 Farben</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 Bit, 16 Farben</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Frames</translation>
    </message>
    <message>
        <source>Which frames become tiles</source>
        <translation>Welche Frames zu Tiles werden</translation>
    </message>
    <message>
        <source>The first one, with a map</source>
        <translation>Der erste, mit Karte</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Aseprite file, for sprites with animations</source>
        <translation>Aseprite-Datei, für Sprites mit Animationen</translation>
    </message>
    <message>
        <source>Aseprite file, for tiles</source>
        <translation>Aseprite-Datei, für Tiles</translation>
    </message>
    <message>
        <source>Aseprite file, for an image</source>
        <translation>Aseprite-Datei, für ein Bild</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>Das ist keine Datei</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 ist leer</translation>
    </message>
    <message>
        <source>“%1” is no kind of file that is read here</source>
        <translation>„%1“ ist keine Dateiart, die hier gelesen wird</translation>
    </message>
    <message>
        <source>The file has a +3DOS header, which is skipped</source>
        <translation>Die Datei hat einen +3DOS-Kopf, der übersprungen wird</translation>
    </message>
    <message>
        <source>The smallest that holds the picture</source>
        <translation>Die kleinste, in die das Bild passt</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>The mode of the image</source>
        <translation>Der Modus des Bildes</translation>
    </message>
    <message>
        <source>The picture has %1 × %2 pixels, and what does not fit is cut off</source>
        <translation>Das Bild hat %1 × %2 Pixel; was nicht passt, wird abgeschnitten</translation>
    </message>
    <message>
        <source>Import Palette</source>
        <translation>Palette importieren</translation>
    </message>
    <message>
        <source>Colours that the Next does not have, and that become the nearest ones: %1 of %2</source>
        <translation>Farben, die der Next nicht hat und die zu den nächsten werden: %1 von %2</translation>
    </message>
    <message>
        <source>Colours for which there is no room: %1</source>
        <translation>Farben, für die kein Platz ist: %1</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>Dithering</translation>
    </message>
    <message>
        <source>How colours are shown for which there is no room</source>
        <translation>Wie Farben dargestellt werden, für die kein Platz ist</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Ordered pattern</source>
        <translation>Geordnetes Muster</translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation>Fehlerdiffusion</translation>
    </message>
    <message>
        <source>Palette of another program</source>
        <translation>Palette eines anderen Programms</translation>
    </message>
    <message>
        <source>First entry</source>
        <translation>Erster Eintrag</translation>
    </message>
    <message>
        <source>The entry that the first colour becomes</source>
        <translation>Der Eintrag, zu dem die erste Farbe wird</translation>
    </message>
    <message>
        <source>Scale to that size</source>
        <translation>Auf diese Größe skalieren</translation>
    </message>
    <message>
        <source>Makes the picture as large as the image</source>
        <translation>Macht die Vorlage so groß wie das Bild</translation>
    </message>
    <message>
        <source>Picture, for tiles and a map</source>
        <translation>Bilddatei, für Tiles und eine Karte</translation>
    </message>
    <message>
        <source>Picture, for sprites</source>
        <translation>Bilddatei, für Sprites</translation>
    </message>
    <message>
        <source>Picture, for an image</source>
        <translation>Bilddatei, für ein Bild</translation>
    </message>
    <message>
        <source>Picture, for its colours</source>
        <translation>Bilddatei, für ihre Farben</translation>
    </message>
    <message>
        <source>Palette, tiles, blocks and map of one name</source>
        <translation>Palette, Tiles, Blöcke und Karte gleichen Namens</translation>
    </message>
    <message>
        <source>Cells: %1 × %2, which show %3 different tiles</source>
        <translation>Zellen: %1 × %2, mit %3 verschiedenen Tiles</translation>
    </message>
    <message>
        <source>Placed sprites: %1</source>
        <translation>Platzierte Sprites: %1</translation>
    </message>
    <message>
        <source>Tiles: %1</source>
        <translation>Tiles: %1</translation>
    </message>
    <message>
        <source>Animations of tiles: %1</source>
        <translation>Animationen von Tiles: %1</translation>
    </message>
    <message>
        <source>Numbers: %1</source>
        <translation>Zahlen: %1</translation>
    </message>
    <message>
        <source>Sprites: %1</source>
        <translation>Sprites: %1</translation>
    </message>
    <message>
        <source>Animations: %1</source>
        <translation>Animationen: %1</translation>
    </message>
    <message>
        <source>Pixels: %1 × %2</source>
        <translation>Pixel: %1 × %2</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>Farben: %1</translation>
    </message>
    <message>
        <source>Tile %1 (counted from 0) has pixels of several palette offsets, and a tile has one</source>
        <translation>Tile %1 (ab 0 gezählt) hat Pixel mehrerer Paletten-Offsets, und ein Tile hat nur einen</translation>
    </message>
    <message>
        <source>Tiles that lose colours, since theirs are of several palette offsets: %1 of %2</source>
        <translation>Tiles, die Farben verlieren, weil sie mehrere Paletten-Offsets haben: %1 von %2</translation>
    </message>
    <message>
        <source>The file has %1 bytes, which is too much for this</source>
        <translation>Die Datei hat %1 Bytes, was hierfür zu viel ist</translation>
    </message>
    <message>
        <source>Several offsets</source>
        <translation>Mehrere Offsets</translation>
    </message>
    <message>
        <source>What becomes of tiles whose pixels are of several palette offsets, which a tile map cannot show</source>
        <translation>Was aus Tiles wird, deren Pixel mehrere Paletten-Offsets haben, was eine Tilemap nicht zeigen kann</translation>
    </message>
    <message>
        <source>The colours of the best one</source>
        <translation>Die Farben des besten</translation>
    </message>
    <message>
        <source>Nothing is imported</source>
        <translation>Nichts wird importiert</translation>
    </message>
    <message>
        <source>Of %1 pieces of 8 × 8 pixels, %2 lose colours and %3 get a tile that is like theirs; mean error: %4 levels</source>
        <translation>Von %1 Stücken mit 8 × 8 Pixeln verlieren %2 Farben, und %3 erhalten ein ähnliches Tile; mittlerer Fehler: %4 Stufen</translation>
    </message>
    <message>
        <source>Colours: %1, which %2 stand for; mean error: %3 levels</source>
        <translation>Farben: %1, dargestellt durch %2; mittlerer Fehler: %3 Stufen</translation>
    </message>
    <message>
        <source>Colours that the Next does not have become the nearest ones</source>
        <translation>Farben, die der Next nicht hat, werden zu den nächsten</translation>
    </message>
    <message>
        <source>Tiles that are not as large as the cells, and are cut or filled: %1</source>
        <translation>Tiles, die nicht so groß wie die Zellen sind und zerschnitten oder aufgefüllt werden: %1</translation>
    </message>
    <message>
        <source>Cells whose animations are left out, since there are more than %1: %2</source>
        <translation>Zellen, deren Animationen ausgelassen werden, weil es mehr als %1 gibt: %2</translation>
    </message>
    <message>
        <source>Animations whose frames have times of their own, and get the mean: %1</source>
        <translation>Animationen, deren Frames eigene Zeiten haben und den Mittelwert erhalten: %1</translation>
    </message>
    <message>
        <source>Objects that are no sprites, turned, scaled, hidden or too large, and are left out: %1</source>
        <translation>Objekte, die keine Sprites oder aber gedreht, skaliert, ausgeblendet oder zu groß sind und ausgelassen werden: %1</translation>
    </message>
    <message>
        <source>The cells of the map have %1 × %2 pixels, and tiles of the Next 8 × 8: only multiples of that can be cut</source>
        <translation>Die Zellen der Karte haben %1 × %2 Pixel, Tiles des Next 8 × 8: Nur Vielfache davon lassen sich zerschneiden</translation>
    </message>
    <message>
        <source>The map has no cells</source>
        <translation>Die Karte hat keine Zellen</translation>
    </message>
    <message>
        <source>That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most</source>
        <translation>Das ergibt eine Karte mit %1 × %2 Zellen; höchstens %3 je Seite und %4 insgesamt sind möglich</translation>
    </message>
    <message>
        <source>The map shows too many different tiles: of %1 × %2 pixels, %3 are the most</source>
        <translation>Die Karte zeigt zu viele verschiedene Tiles: Mit %1 × %2 Pixeln sind höchstens %3 möglich</translation>
    </message>
    <message>
        <source>Files that are left alone because they are not below the map&apos;s folder: %1</source>
        <translation>Dateien, die ausgelassen werden, weil sie nicht unter dem Ordner der Karte liegen: %1</translation>
    </message>
    <message>
        <source>Map of Tiled</source>
        <translation>Karte von Tiled</translation>
    </message>
    <message>
        <source>Read files outside its folder</source>
        <translation>Dateien außerhalb ihres Ordners lesen</translation>
    </message>
    <message>
        <source>Takes tile sets and pictures from wherever the map says that they are</source>
        <translation>Übernimmt Tilesets und Bilder von überall, wo sie laut Karte liegen</translation>
    </message>
    <message>
        <source>Import Image</source>
        <translation>Bild importieren</translation>
    </message>
    <message>
        <source>“%1” has %2 × %3 pixels, and the picture has %4 × %5</source>
        <translation>„%1“ hat %2 × %3 Pixel, das Bild aber %4 × %5</translation>
    </message>
    <message>
        <source>Choose the map on which these are placed</source>
        <translation>Wählen Sie die Karte, auf der diese platziert sind</translation>
    </message>
    <message>
        <source>What record %1 (counted from 0) shows is not in the project, where it is looked for by its place</source>
        <translation>Was Datensatz %1 (ab 0 gezählt) zeigt, ist nicht im Projekt, wo es nach seiner Stelle gesucht wird</translation>
    </message>
    <message>
        <source>Placed animations: %1</source>
        <translation>Platzierte Animationen: %1</translation>
    </message>
    <message>
        <source>The colours are left out, since other assets are drawn with the palette of “%1” as well</source>
        <translation>Die Farben werden ausgelassen, da mit der Palette von „%1“ auch andere Assets gezeichnet werden</translation>
    </message>
    <message>
        <source>Tile set of Tiled</source>
        <translation>Tileset von Tiled</translation>
    </message>
</context>
<context>
    <name>IndexSuffix</name>
    <message>
        <source> (index %1)</source>
        <translation> (Index %1)</translation>
    </message>
</context>
<context>
    <name>LayerAction</name>
    <message>
        <source>Scroll</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Horizontal spiegeln</translation>
    </message>
</context>
<context>
    <name>LayoutController</name>
    <message>
        <source>Next Dock</source>
        <translation>Nächstes Andockfenster</translation>
    </message>
    <message>
        <source>Previous Dock</source>
        <translation>Vorheriges Andockfenster</translation>
    </message>
    <message>
        <source>Next Dock Behind</source>
        <translation>Nächstes Andockfenster dahinter</translation>
    </message>
    <message>
        <source>Previous Dock Behind</source>
        <translation>Vorheriges Andockfenster dahinter</translation>
    </message>
</context>
<context>
    <name>LineCanvasTool</name>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>%2 - %1</source>
        <translation>%2 - %1</translation>
    </message>
    <message>
        <source>Its backup is from %1</source>
        <translation>Die Sicherungskopie ist vom %1</translation>
    </message>
    <message>
        <source>Open &amp;Backup</source>
        <translation>Sicherungs&amp;kopie öffnen</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>Could not import the font</source>
        <translation>Die Schrift konnte nicht importiert werden</translation>
    </message>
</context>
<context>
    <name>MapDialog</name>
    <message>
        <source> cells</source>
        <translation> Zellen</translation>
    </message>
    <message>
        <source>New Map</source>
        <translation>Neue Karte</translation>
    </message>
    <message>
        <source>Create a new map</source>
        <translation>Eine neue Karte anlegen</translation>
    </message>
    <message>
        <source>&amp;Tile set</source>
        <translation>&amp;Tileset</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Höhe</translation>
    </message>
    <message>
        <source>A map is made of the tiles of a tile set; please create a tile set first</source>
        <translation>Eine Karte besteht aus den Tiles eines Tilesets; bitte zuerst ein Tileset anlegen</translation>
    </message>
</context>
<context>
    <name>MapEditor::AnchorPad</name>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
</context>
<context>
    <name>MapEditor::CellDialog</name>
    <message>
        <source>Go to Cell</source>
        <translation>Gehe zu Zelle</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
</context>
<context>
    <name>MapEditor::CellTool</name>
    <message>
        <source>Place Animation</source>
        <translation>Animation platzieren</translation>
    </message>
</context>
<context>
    <name>MapEditor::DrawTool</name>
    <message>
        <source>Paint</source>
        <translation>Malen</translation>
    </message>
</context>
<context>
    <name>MapEditor::ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Export Map Data</source>
        <translation>Kartendaten exportieren</translation>
    </message>
    <message>
        <source>Export Tile Data</source>
        <translation>Tiledaten exportieren</translation>
    </message>
    <message>
        <source>Export Palette Data</source>
        <translation>Palettendaten exportieren</translation>
    </message>
    <message>
        <source>Export: %1</source>
        <translation>Export: %1</translation>
    </message>
    <message>
        <source>Files in %1</source>
        <translation>Dateien in %1</translation>
    </message>
    <message>
        <source>%1 (replaces this file)</source>
        <translation>%1 (ersetzt diese Datei)</translation>
    </message>
    <message>
        <source>Choose what to export</source>
        <translation>Bitte wählen, was exportiert werden soll</translation>
    </message>
</context>
<context>
    <name>MapEditor::FillTool</name>
    <message>
        <source>Bucket Fill</source>
        <translation>Füllen</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapCommands</name>
    <message>
        <source>Select Same &amp;Tile</source>
        <translation>Gleiche &amp;Tiles auswählen</translation>
    </message>
    <message>
        <source>Selects all cells that show the current tile</source>
        <translation>Wählt alle Zellen aus, die das aktuelle Tile zeigen</translation>
    </message>
    <message>
        <source>&amp;Replace Tile…</source>
        <translation>Tile er&amp;setzen…</translation>
    </message>
    <message>
        <source>Puts one tile in place of another, in the selection, the map or all maps of the tile set</source>
        <translation>Setzt ein Tile an die Stelle eines anderen: in der Auswahl, der Karte oder allen Karten des Tilesets</translation>
    </message>
    <message>
        <source>Edit Terrain&amp;s…</source>
        <translation>Terr&amp;ains bearbeiten…</translation>
    </message>
    <message>
        <source>Marks tiles whose borders match when they are painted</source>
        <translation>Markiert Tiles, deren Ränder beim Malen zueinander passen</translation>
    </message>
    <message>
        <source>Go to &amp;Cell…</source>
        <translation>&amp;Gehe zu Zelle…</translation>
    </message>
    <message>
        <source>Scrolls the map to a cell</source>
        <translation>Scrollt die Karte zu einer Zelle</translation>
    </message>
    <message>
        <source>&amp;Overview</source>
        <translation>&amp;Übersicht</translation>
    </message>
    <message>
        <source>Shows the whole map in a corner, with the part that is in view to drag</source>
        <translation>Zeigt in einer Ecke die ganze Karte mit dem sichtbaren Ausschnitt zum Ziehen</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapEditing</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Copy Cells</source>
        <translation>Zellen kopieren</translation>
    </message>
    <message>
        <source>Move Cells</source>
        <translation>Zellen verschieben</translation>
    </message>
    <message>
        <source>Sprite Properties</source>
        <translation>Sprite-Eigenschaften</translation>
    </message>
    <message>
        <source>Delete Sprite</source>
        <translation>Sprite löschen</translation>
    </message>
    <message>
        <source>Remove Animation</source>
        <translation>Animation entfernen</translation>
    </message>
    <message>
        <source>Add Rows</source>
        <translation>Zeilen hinzufügen</translation>
    </message>
    <message>
        <source>Add Columns</source>
        <translation>Spalten hinzufügen</translation>
    </message>
    <message>
        <source>Remove Rows</source>
        <translation>Zeilen entfernen</translation>
    </message>
    <message>
        <source>Remove Columns</source>
        <translation>Spalten entfernen</translation>
    </message>
    <message>
        <source>Resize Map</source>
        <translation>Kartengröße ändern</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapExport</name>
    <message>
        <source>Choose a directory to export anim into</source>
        <translation>Ordner wählen, in den die Animation exportiert wird</translation>
    </message>
    <message>
        <source>Exporting %1…</source>
        <translation>%1 wird exportiert…</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapGrid</name>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
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
        <source>Copy to new map</source>
        <translation>In neue Karte kopieren</translation>
    </message>
    <message>
        <source>Copy as Image</source>
        <translation>Als Bild kopieren</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapKeys</name>
    <message>
        <source>Column %1, row %2</source>
        <translation>Spalte %1, Zeile %2</translation>
    </message>
    <message>
        <source>tile %1</source>
        <translation>Tile %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>rotated</source>
        <translation>gedreht</translation>
    </message>
    <message>
        <source>flipped</source>
        <translation>vertikal gespiegelt</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>horizontal gespiegelt</translation>
    </message>
    <message>
        <source>palette offset %1</source>
        <translation>Paletten-Offset %1</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>sprite</source>
        <translation>Sprite</translation>
    </message>
    <message>
        <source>sprite %1</source>
        <translation>Sprite %1</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of what a cell shows</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>MapEditor::MapOverview</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Drag to scroll the map</source>
        <translation>Ziehen, um die Karte zu scrollen</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapToolPalette</name>
    <message>
        <source>Rotated</source>
        <translation>Gedreht</translation>
    </message>
    <message>
        <source>Flipped</source>
        <translation>Vertikal gespiegelt</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Horizontal gespiegelt</translation>
    </message>
    <message>
        <source>Random tiles of the stamp</source>
        <translation>Zufällige Tiles des Stempels</translation>
    </message>
    <message>
        <source>Bucket fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Filled rectangle</source>
        <translation>Gefülltes Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Filled ellipse</source>
        <translation>Gefüllte Ellipse</translation>
    </message>
    <message>
        <source>Paint terrain</source>
        <translation>Terrain malen</translation>
    </message>
</context>
<context>
    <name>MapEditor::PaintBar</name>
    <message>
        <source>Painting</source>
        <translation>Malen</translation>
    </message>
    <message>
        <source>Stamps</source>
        <translation>Stempel</translation>
    </message>
    <message>
        <source>Ctrl-drag tiles to make one</source>
        <translation>Mit Strg über Tiles ziehen</translation>
    </message>
    <message>
        <source>Stamps are made of tiles, by dragging with Ctrl in the tile picker, and of cells, by dragging with the Pick tool</source>
        <translation>Stempel entstehen aus Tiles, indem man mit Strg über die Tile-Auswahl zieht, und aus Zellen, indem man mit der Pipette zieht</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>Of the tile</source>
        <translation>Vom Tile</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Paletten-Offset</translation>
    </message>
    <message>
        <source>The palette offset of painted cells. Ctrl with a painting tool paints it alone, and with the right button brings back that of the tile</source>
        <translation>Der Paletten-Offset gemalter Zellen. Mit Strg malt ein Malwerkzeug nur ihn, und die rechte Taste stellt dann den des Tiles wieder her</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Terrain</translation>
    </message>
    <message>
        <source>What the terrain tool paints</source>
        <translation>Was das Terrainwerkzeug malt</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Edit Terrains…</source>
        <translation>Terrains bearbeiten…</translation>
    </message>
    <message>
        <source>Marks the tiles of terrains</source>
        <translation>Markiert die Tiles von Terrains</translation>
    </message>
    <message>
        <source>%1 × %2 cells</source>
        <translation>%1 × %2 Zellen</translation>
    </message>
    <message>
        <source>Stamp of %1</source>
        <translation>Stempel mit %1</translation>
    </message>
    <message>
        <source>%1, a stamp of %2</source>
        <translation>%1, ein Stempel mit %2</translation>
    </message>
    <message>
        <source>Name Stamp…</source>
        <translation>Stempel benennen…</translation>
    </message>
    <message>
        <source>Forget Stamp</source>
        <translation>Stempel vergessen</translation>
    </message>
    <message>
        <source>Name Stamp</source>
        <translation>Stempel benennen</translation>
    </message>
    <message>
        <source>A stamp with a name stays; without one it goes when others are used</source>
        <translation>Ein Stempel mit Namen bleibt erhalten; einer ohne verschwindet, wenn andere benutzt werden</translation>
    </message>
</context>
<context>
    <name>MapEditor::PaintDesk</name>
    <message>
        <source>Replace Tile</source>
        <translation>Tile ersetzen</translation>
    </message>
    <message>
        <source>Replace Tile in All Maps</source>
        <translation>Tile in allen Karten ersetzen</translation>
    </message>
    <message>
        <source>Choose a tile in the Tiles dock and paint here: the left button paints, the right one clears</source>
        <translation>Wählen Sie im Fenster „Tiles“ ein Tile und malen Sie hier: Die linke Taste malt, die rechte leert</translation>
    </message>
</context>
<context>
    <name>MapEditor::PasteTool</name>
    <message>
        <source>Picture of %1 × %2 cells; tiles to be added: %3</source>
        <translation>Bild mit %1 × %2 Zellen; hinzuzufügende Tiles: %3</translation>
    </message>
    <message>
        <source>; pixels that take the nearest colour: %1</source>
        <translation>; Pixel, die die nächste Farbe erhalten: %1</translation>
    </message>
    <message>
        <source>The picture is smaller than a tile, which has 8 × 8 pixels</source>
        <translation>Das Bild ist kleiner als ein Tile, das 8 × 8 Pixel hat</translation>
    </message>
    <message numerus="yes">
        <source>The picture needs %n more tiles, and the tile set has room for %1</source>
        <translation>
            <numerusform>Das Bild braucht %n weiteres Tile, und das Tileset hat Platz für %1</numerusform>
            <numerusform>Das Bild braucht %n weitere Tiles, und das Tileset hat Platz für %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Paste Picture</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Tiles added: %1</source>
        <translation>Hinzugefügte Tiles: %1</translation>
    </message>
    <message>
        <source>; pixels that took the nearest colour: %1</source>
        <translation>; Pixel, die die nächste Farbe erhielten: %1</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
</context>
<context>
    <name>MapEditor::PlaceAnimationTool</name>
    <message>
        <source>Place Animation</source>
        <translation>Animation platzieren</translation>
    </message>
</context>
<context>
    <name>MapEditor::PlaceSpriteTool</name>
    <message>
        <source>Place Sprite</source>
        <translation>Sprite platzieren</translation>
    </message>
    <message>
        <source>Move Sprite</source>
        <translation>Sprite verschieben</translation>
    </message>
</context>
<context>
    <name>MapEditor::ReplaceTileDialog</name>
    <message>
        <source>Replace Tile</source>
        <translation>Tile ersetzen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Durch</translation>
    </message>
    <message>
        <source>In the selection</source>
        <translation>In der Auswahl</translation>
    </message>
    <message>
        <source>In this map</source>
        <translation>In dieser Karte</translation>
    </message>
    <message>
        <source>In all maps of the tile set</source>
        <translation>In allen Karten des Tilesets</translation>
    </message>
    <message>
        <source>Tile </source>
        <translation>Tile </translation>
    </message>
    <message>
        <source>These are the same tile</source>
        <translation>Das ist zweimal dasselbe Tile</translation>
    </message>
</context>
<context>
    <name>MapEditor::ResizeDialog</name>
    <message>
        <source>Resize Map</source>
        <translation>Kartengröße ändern</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation>Anker</translation>
    </message>
    <message>
        <source> cells</source>
        <translation> Zellen</translation>
    </message>
    <message>
        <source>The whole map of %1×%2 cells is kept</source>
        <translation>Die ganze Karte mit %1×%2 Zellen bleibt erhalten</translation>
    </message>
    <message>
        <source>%1×%2 of %3×%4 cells are kept</source>
        <translation>%1×%2 von %3×%4 Zellen bleiben erhalten</translation>
    </message>
</context>
<context>
    <name>MapEditor::ShapeTool</name>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
</context>
<context>
    <name>MapEditor::SpriteProperties</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Start frame</source>
        <translation>Startframe</translation>
    </message>
    <message>
        <source>Initial delay</source>
        <translation>Anfangsverzögerung</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Wiederholverzögerung</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Paletten-Offset</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainDialog</name>
    <message>
        <source>Terrains</source>
        <translation>Terrains</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>The 4 cells beside</source>
        <translation>Die 4 Zellen daneben</translation>
    </message>
    <message>
        <source>All 8 cells around</source>
        <translation>Alle 8 Zellen ringsum</translation>
    </message>
    <message>
        <source>Which neighbours decide about the tile of a cell</source>
        <translation>Welche Nachbarn über das Tile einer Zelle entscheiden</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Looks at</source>
        <translation>Beachtet</translation>
    </message>
    <message>
        <source>Mark the middle of each tile of the terrain, and the sides and corners where it goes on. The right button takes marks away.</source>
        <translation>Markieren Sie die Mitte jedes Tiles des Terrains und die Seiten und Ecken, an denen es weitergeht. Die rechte Taste entfernt Markierungen.</translation>
    </message>
    <message>
        <source>Terrain %1</source>
        <translation>Terrain %1</translation>
    </message>
    <message>
        <source>Every terrain needs a name</source>
        <translation>Jedes Terrain braucht einen Namen</translation>
    </message>
    <message>
        <source>Turn tiles where none has the borders</source>
        <translation>Tiles drehen, wo keines die Ränder hat</translation>
    </message>
    <message>
        <source>Also takes tiles that have the borders when they are rotated, flipped or mirrored</source>
        <translation>Nimmt auch Tiles, die die Ränder gedreht oder gespiegelt haben</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainMarks</name>
    <message>
        <source>Marks of the terrain</source>
        <translation>Markierungen des Terrains</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainTool</name>
    <message>
        <source>Paint Terrain</source>
        <translation>Terrain malen</translation>
    </message>
</context>
<context>
    <name>MapEditor::ToolBar</name>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Tiles</translation>
    </message>
    <message>
        <source>Show or hide the tile layer</source>
        <translation>Tile-Ebene ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Show or hide the object layer</source>
        <translation>Objektebene ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>Show or hide the sprite layer</source>
        <translation>Sprite-Ebene ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Size in cells of the viewport</source>
        <translation>Größe des Sichtfensters in Zellen</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>Sichtfenster</translation>
    </message>
    <message>
        <source>Viewport width</source>
        <translation>Breite des Sichtfensters</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Viewport height</source>
        <translation>Höhe des Sichtfensters</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Tile index to be used as a background</source>
        <translation>Index des Tiles, das als Hintergrund dient</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Sets the transparency index of the tile set (0-15) or off</source>
        <translation>Legt den transparenten Index des Tilesets fest (0–15) oder schaltet ihn aus</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Einrasten</translation>
    </message>
    <message>
        <source>Sets the snap to grid size</source>
        <translation>Legt die Rasterweite zum Einrasten fest</translation>
    </message>
    <message>
        <source>Map size in tiles and bytes</source>
        <translation>Kartengröße in Tiles und Bytes</translation>
    </message>
</context>
<context>
    <name>MapEditor::View</name>
    <message numerus="yes">
        <source>%1x%2 (%n bytes)</source>
        <translation>
            <numerusform>%1x%2 (%n Byte)</numerusform>
            <numerusform>%1x%2 (%n Bytes)</numerusform>
        </translation>
    </message>
    <message>
        <source>Resize or export the map</source>
        <translation>Kartengröße ändern oder Karte exportieren</translation>
    </message>
    <message>
        <source>Resize Map…</source>
        <translation>Kartengröße ändern…</translation>
    </message>
    <message>
        <source>Export to Folder…</source>
        <translation>In Ordner exportieren…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>MapEditorPage</name>
    <message>
        <source>Render checker board beneath maps</source>
        <translation>Schachbrett unter Karten anzeigen</translation>
    </message>
    <message>
        <source>Enable grid line overlay</source>
        <translation>Rasterlinien einblenden</translation>
    </message>
    <message>
        <source>Map Editor</source>
        <translation>Karteneditor</translation>
    </message>
    <message>
        <source>Grid colour</source>
        <translation>Rasterfarbe</translation>
    </message>
    <message>
        <source>Alternate colour</source>
        <translation>Zweite Farbe</translation>
    </message>
    <message>
        <source>Grid size (in pixels)</source>
        <translation>Rasterweite (in Pixeln)</translation>
    </message>
    <message>
        <source>Default magnification</source>
        <translation>Standardvergrößerung</translation>
    </message>
</context>
<context>
    <name>MapMenu</name>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Karte</translation>
    </message>
    <message>
        <source>&amp;New Map</source>
        <translation>&amp;Neue Karte</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>NextTiles (*.nxm *.nxt *.nxp *.nxb)</source>
        <translation>NextTiles (*.nxm *.nxt *.nxp *.nxb)</translation>
    </message>
    <message>
        <source>Image files (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Bilddateien (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>Import Map Data</source>
        <translation>Kartendaten importieren</translation>
    </message>
    <message>
        <source>Export Map Data</source>
        <translation>Kartendaten exportieren</translation>
    </message>
    <message>
        <source>Map Data (*.map)</source>
        <translation>Kartendaten (*.map)</translation>
    </message>
    <message>
        <source>Exporting %1…</source>
        <translation>%1 wird exportiert…</translation>
    </message>
</context>
<context>
    <name>MapObjects</name>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
</context>
<context>
    <name>MapSpritesWindow</name>
    <message>
        <source>Map Sprites</source>
        <translation>Karten-Sprites</translation>
    </message>
    <message>
        <source>No sprites</source>
        <translation>Keine Sprites</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>Sprite bank</source>
        <translation>Spritebank</translation>
    </message>
    <message>
        <source>The sprite banks of the project</source>
        <translation>Die Spritebänke des Projekts</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>Warning!</source>
        <translation>Warnung!</translation>
    </message>
</context>
<context>
    <name>NextData</name>
    <message>
        <source>the table of animations</source>
        <translation>Tabelle der Animationen</translation>
    </message>
    <message>
        <source>their number</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>the place of “%1”</source>
        <translation>Position von „%1“</translation>
    </message>
    <message>
        <source>animation “%1”</source>
        <translation>Animation „%1“</translation>
    </message>
    <message>
        <source>the width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>the height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>the number of frames</source>
        <translation>Anzahl der Frames</translation>
    </message>
    <message>
        <source>the kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>the delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>it shows number %1, and %2 is the last one that fits</source>
        <translation>Sie zeigt Nummer %1; die höchste mögliche ist %2</translation>
    </message>
    <message>
        <source>it has the palette offset %1</source>
        <translation>Sie hat den Paletten-Offset %1</translation>
    </message>
    <message>
        <source>Animation “%1”, frame %2, column %3, row %4 (counted from 0): %5</source>
        <translation>Animation „%1“, Frame %2, Spalte %3, Zeile %4 (ab 0 gezählt): %5</translation>
    </message>
    <message>
        <source>number and places of the animations</source>
        <translation>Anzahl und Positionen der Animationen</translation>
    </message>
    <message>
        <source>animation %1 “%2”</source>
        <translation>Animation %1 „%2“</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>Frame %1</translation>
    </message>
    <message>
        <source>The animations do not lie in the file as its beginning says</source>
        <translation>Die Animationen liegen nicht so in der Datei, wie ihr Anfang angibt</translation>
    </message>
    <message>
        <source>Bytes behind the last animation that are left out: %1</source>
        <translation>Ausgelassene Bytes hinter der letzten Animation: %1</translation>
    </message>
    <message>
        <source>Animations of blocks</source>
        <translation>Animationen von Blöcken</translation>
    </message>
    <message>
        <source>Animations of sprites</source>
        <translation>Animationen von Sprites</translation>
    </message>
    <message>
        <source>it leads out of its folder</source>
        <translation>Der Pfad führt aus seinem Ordner hinaus</translation>
    </message>
    <message>
        <source>a folder or file in it has no name</source>
        <translation>Ein Ordner oder eine Datei im Pfad hat keinen Namen</translation>
    </message>
    <message>
        <source>There is no file name</source>
        <translation>Der Dateiname fehlt</translation>
    </message>
    <message>
        <source>it is not relative</source>
        <translation>Der Pfad ist nicht relativ</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>“%1” is %2, and the form %3 is for %4</source>
        <translation>„%1“ ist %2, und das Format %3 ist für %4</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>“%1” has %2 pixels, and this form %3</source>
        <translation>„%1“ hat %2 Pixel, dieses Format %3</translation>
    </message>
    <message>
        <source>“%1” has no palette that could stand in front</source>
        <translation>„%1“ hat keine Palette, die davorstehen könnte</translation>
    </message>
    <message>
        <source>“%1”: the pixel at %2, %3 has the index %4, and only those from %5 to %6 go with the first pixel</source>
        <translation>„%1“: Das Pixel bei %2, %3 hat den Index %4; zum ersten Pixel passen nur %5 bis %6</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and such a picture %2, or %3 or %4 with its palette</source>
        <translation>Die Datei hat %1 Bytes, ein solches Bild aber %2, oder mit Palette %3 oder %4</translation>
    </message>
    <message>
        <source>The file has one half of the picture, which becomes the upper one</source>
        <translation>Die Datei enthält eine Hälfte des Bildes; sie wird zur oberen</translation>
    </message>
    <message>
        <source>By rows</source>
        <translation>Zeilenweise</translation>
    </message>
    <message>
        <source>By columns</source>
        <translation>Spaltenweise</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>In which order the pixels follow each other</source>
        <translation>In welcher Reihenfolge die Pixel aufeinander folgen</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Paletten-Offset</translation>
    </message>
    <message>
        <source>The group of sixteen colours of all pixels, which comes from a register</source>
        <translation>Die Gruppe von sechzehn Farben für alle Pixel, die aus einem Register kommt</translation>
    </message>
    <message>
        <source>Palette in front</source>
        <translation>Palette davor</translation>
    </message>
    <message>
        <source>Writes the 512 bytes of the image&apos;s palette before the pixels</source>
        <translation>Schreibt die 512 Bytes der Palette des Bildes vor die Pixel</translation>
    </message>
    <message>
        <source>Two halves</source>
        <translation>Zwei Hälften</translation>
    </message>
    <message>
        <source>Writes the upper and the lower half into files of their own</source>
        <translation>Schreibt die obere und die untere Hälfte in eigene Dateien</translation>
    </message>
    <message>
        <source>Layer 2, 256 × 192, by rows</source>
        <translation>Layer 2, 256 × 192, zeilenweise</translation>
    </message>
    <message>
        <source>Layer 2, 320 × 256, by columns</source>
        <translation>Layer 2, 320 × 256, spaltenweise</translation>
    </message>
    <message>
        <source>Layer 2, 640 × 256, by columns, two pixels a byte</source>
        <translation>Layer 2, 640 × 256, spaltenweise, zwei Pixel pro Byte</translation>
    </message>
    <message>
        <source>LoRes, 128 × 96, by rows</source>
        <translation>LoRes, 128 × 96, zeilenweise</translation>
    </message>
    <message>
        <source>Layer 2, 256 × 192</source>
        <translation>Layer 2, 256 × 192</translation>
    </message>
    <message>
        <source>Layer 2, 320 × 256</source>
        <translation>Layer 2, 320 × 256</translation>
    </message>
    <message>
        <source>Layer 2, 640 × 256, two pixels a byte</source>
        <translation>Layer 2, 640 × 256, zwei Pixel pro Byte</translation>
    </message>
    <message>
        <source>LoRes, 128 × 96</source>
        <translation>LoRes, 128 × 96</translation>
    </message>
    <message>
        <source>screen %1, %2</source>
        <translation>Bildschirm %1, %2</translation>
    </message>
    <message>
        <source>“%1”: the cell in column %2, row %3 (counted from 0) %4</source>
        <translation>„%1“: Die Zelle in Spalte %2, Zeile %3 (ab 0 gezählt) %4</translation>
    </message>
    <message>
        <source>shows tile %1, and %2 is the last one that fits</source>
        <translation>zeigt Tile %1; das höchste mögliche ist %2</translation>
    </message>
    <message>
        <source>has the palette offset %1</source>
        <translation>hat den Paletten-Offset %1</translation>
    </message>
    <message>
        <source>is rotated or mirrored, which one byte does not tell</source>
        <translation>ist gedreht oder gespiegelt, was in einem Byte nicht gespeichert wird</translation>
    </message>
    <message>
        <source>has the palette offset %1, others have %2, and one byte does not tell them apart</source>
        <translation>hat den Paletten-Offset %1, andere haben %2, und ein Byte unterscheidet sie nicht</translation>
    </message>
    <message>
        <source>That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most</source>
        <translation>Das ergibt eine Karte mit %1 × %2 Zellen; höchstens %3 je Seite und %4 insgesamt sind möglich</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and a cell takes %2</source>
        <translation>Die Datei hat %1 Bytes, und eine Zelle belegt %2</translation>
    </message>
    <message>
        <source>Cells of the file that are outside the map: %1</source>
        <translation>Zellen der Datei, die außerhalb der Karte liegen: %1</translation>
    </message>
    <message>
        <source>Cells of the map that the file does not have, and that stay blank: %1</source>
        <translation>Zellen der Karte, die in der Datei fehlen und leer bleiben: %1</translation>
    </message>
    <message>
        <source>Half a cell at the end is left out</source>
        <translation>Eine halbe Zelle am Ende wird ausgelassen</translation>
    </message>
    <message>
        <source>In which order the cells of a screen follow each other</source>
        <translation>In welcher Reihenfolge die Zellen eines Bildschirms aufeinander folgen</translation>
    </message>
    <message>
        <source>Screen width</source>
        <translation>Bildschirmbreite</translation>
    </message>
    <message>
        <source>Cells across a screen into which the map is cut; 0 is the whole width</source>
        <translation>Breite in Zellen der Bildschirme, in die die Karte zerlegt wird; 0 ist die ganze Breite</translation>
    </message>
    <message>
        <source>Screen height</source>
        <translation>Bildschirmhöhe</translation>
    </message>
    <message>
        <source>Cells down a screen into which the map is cut; 0 is the whole height</source>
        <translation>Höhe in Zellen der Bildschirme, in die die Karte zerlegt wird; 0 ist die ganze Höhe</translation>
    </message>
    <message>
        <source>A file for each screen</source>
        <translation>Eine Datei je Bildschirm</translation>
    </message>
    <message>
        <source>Writes the screens into numbered files of their own</source>
        <translation>Schreibt die Bildschirme in eigene, nummerierte Dateien</translation>
    </message>
    <message>
        <source>Tile map, two bytes a cell</source>
        <translation>Tilemap, zwei Bytes pro Zelle</translation>
    </message>
    <message>
        <source>Tile map, one byte a cell</source>
        <translation>Tilemap, ein Byte pro Zelle</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Cells across the map; 0 is what most maps of so many cells have</source>
        <translation>Breite der Karte in Zellen; 0 ist die übliche bei so vielen Zellen</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Cells down the map; 0 is as far as the file goes</source>
        <translation>Höhe der Karte in Zellen; 0 reicht bis zum Ende der Datei</translation>
    </message>
    <message>
        <source>Cells across the screens into which the map was cut; 0 is the whole width</source>
        <translation>Breite in Zellen der Bildschirme, in die die Karte zerlegt wurde; 0 ist die ganze Breite</translation>
    </message>
    <message>
        <source>Cells down the screens into which the map was cut; 0 is the whole height</source>
        <translation>Höhe in Zellen der Bildschirme, in die die Karte zerlegt wurde; 0 ist die ganze Höhe</translation>
    </message>
    <message>
        <source>Bit 0</source>
        <translation>Bit 0</translation>
    </message>
    <message>
        <source>What the lowest bit of a cell&apos;s second byte says</source>
        <translation>Was das niedrigste Bit im zweiten Byte einer Zelle bedeutet</translation>
    </message>
    <message>
        <source>Tiles from 256 on</source>
        <translation>Tiles ab 256</translation>
    </message>
    <message>
        <source>The ULA&apos;s picture is in front: left out</source>
        <translation>Das ULA-Bild liegt davor: wird ausgelassen</translation>
    </message>
    <message>
        <source>The palette offset of all cells, which comes from a register</source>
        <translation>Der Paletten-Offset aller Zellen, der aus einem Register kommt</translation>
    </message>
    <message>
        <source>“%1” cannot be a label: those are a letter, then letters, digits and _, %2 at most</source>
        <translation>„%1“ kann kein Label sein: Erlaubt sind ein Buchstabe, dann Buchstaben, Ziffern und _, höchstens %2</translation>
    </message>
    <message>
        <source>“%1” cannot be a label: assemblers or C give it a meaning</source>
        <translation>„%1“ kann kein Label sein: Es hat in Assemblern oder C eine Bedeutung</translation>
    </message>
    <message>
        <source>The label “%1”, or a name made of it, is that of another output already</source>
        <translation>Das Label „%1“ oder ein daraus gebildeter Name gehört schon zu einer anderen Ausgabe</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 “%3”</source>
        <translation>%1 %2 „%3“</translation>
    </message>
    <message>
        <source>“%1”, %2: its %3 is not in the project</source>
        <translation>„%1“, %2: %3 fehlt im Projekt</translation>
    </message>
    <message>
        <source>the number of records</source>
        <translation>Anzahl der Datensätze</translation>
    </message>
    <message>
        <source>it</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>number of records</source>
        <translation>Anzahl der Datensätze</translation>
    </message>
    <message>
        <source>placed sprite</source>
        <translation>platziertes Sprite</translation>
    </message>
    <message>
        <source>sprite bank</source>
        <translation>Spritebank</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>the place of its bank</source>
        <translation>Position der Bank</translation>
    </message>
    <message>
        <source>16 times the palette offset, and the flags,</source>
        <translation>16 × Paletten-Offset plus Flags</translation>
    </message>
    <message>
        <source>the animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>the sprite</source>
        <translation>Sprite</translation>
    </message>
    <message>
        <source>the start frame</source>
        <translation>Startframe</translation>
    </message>
    <message>
        <source>the initial delay</source>
        <translation>Anfangsverzögerung</translation>
    </message>
    <message>
        <source>the repeat delay</source>
        <translation>Wiederholverzögerung</translation>
    </message>
    <message>
        <source>the place of the name</source>
        <translation>Position des Namens</translation>
    </message>
    <message>
        <source>names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>placed animation</source>
        <translation>platzierte Animation</translation>
    </message>
    <message>
        <source>the column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>the row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>the place of its block set</source>
        <translation>Position des Blocksets</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>Whether the names of sprites stand behind the records</source>
        <translation>Ob die Namen der Sprites hinter den Datensätzen stehen</translation>
    </message>
    <message>
        <source>Behind the records</source>
        <translation>Hinter den Datensätzen</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>Sprites placed on a map</source>
        <translation>Auf einer Karte platzierte Sprites</translation>
    </message>
    <message>
        <source>Animated blocks placed on a map</source>
        <translation>Auf einer Karte platzierte animierte Blöcke</translation>
    </message>
    <message>
        <source>Option %1: “%2” is not %3</source>
        <translation>Option %1: „%2“ ist ungültig; erwartet wird %3</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>eins von %1</translation>
    </message>
    <message>
        <source>There is no option “%1”, only %2</source>
        <translation>Es gibt keine Option „%1“, nur %2</translation>
    </message>
    <message>
        <source>“%1” would be C source and its header: another suffix is needed, as .c</source>
        <translation>„%1“ wäre C-Quelltext und zugleich dessen Header: Nötig ist eine andere Endung, etwa .c</translation>
    </message>
    <message>
        <source>“%1” has nothing to write in this form</source>
        <translation>„%1“ enthält nichts, was in diesem Format zu schreiben wäre</translation>
    </message>
    <message>
        <source>padding</source>
        <translation>Füllbytes</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>Quelltext</translation>
    </message>
    <message>
        <source>Bytes for incbin, or source text in the words of an assembler or of C</source>
        <translation>Bytes für incbin oder Quelltext für einen Assembler oder C</translation>
    </message>
    <message>
        <source>No, bytes</source>
        <translation>Nein, Bytes</translation>
    </message>
    <message>
        <source>sjasmplus, Zeus: db $12</source>
        <translation>sjasmplus, Zeus: db $12</translation>
    </message>
    <message>
        <source>z80asm, z88dk: defb $12</source>
        <translation>z80asm, z88dk: defb $12</translation>
    </message>
    <message>
        <source>GNU as: .byte 0x12</source>
        <translation>GNU as: .byte 0x12</translation>
    </message>
    <message>
        <source>C: an array and its header</source>
        <translation>C: ein Array und sein Header</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>The label of the bytes in source text; made from the asset&apos;s name when there is none</source>
        <translation>Das Label der Bytes im Quelltext; ohne Angabe wird es aus dem Namen des Assets gebildet</translation>
    </message>
    <message>
        <source>Pad to a multiple of</source>
        <translation>Auffüllen auf Vielfaches von</translation>
    </message>
    <message>
        <source>Adds zeros until the size is a multiple of so many bytes; 0 adds none</source>
        <translation>Fügt Nullen an, bis die Größe ein Vielfaches so vieler Bytes ist; 0 fügt keine an</translation>
    </message>
    <message>
        <source>Cut into files</source>
        <translation>In Dateien zerlegen</translation>
    </message>
    <message>
        <source>Numbered files that each fit into a page of 8 KiB or a bank of 16 KiB</source>
        <translation>Nummerierte Dateien, die jeweils in eine Seite von 8 KiB oder eine Bank von 16 KiB passen</translation>
    </message>
    <message>
        <source>No, one file</source>
        <translation>Nein, eine Datei</translation>
    </message>
    <message>
        <source>8 KiB each</source>
        <translation>Je 8 KiB</translation>
    </message>
    <message>
        <source>16 KiB each</source>
        <translation>Je 16 KiB</translation>
    </message>
    <message>
        <source>“%1” is no plain file name</source>
        <translation>„%1“ ist kein einfacher Dateiname</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and such a palette %2</source>
        <translation>Die Datei hat %1 Bytes, eine solche Palette aber %2</translation>
    </message>
    <message>
        <source>2 an entry, %1 in all</source>
        <translation>2 pro Eintrag, insgesamt %1</translation>
    </message>
    <message>
        <source>The file has %1 entries; the others stay as they are</source>
        <translation>Die Datei hat %1 Einträge; die übrigen bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>What the last byte holds of the transparent entry; $E3 for a palette without one</source>
        <translation>Was das letzte Byte vom transparenten Eintrag enthält; $E3 bei einer Palette ohne einen solchen</translation>
    </message>
    <message>
        <source>Its colour RRRGGGBB, for layers</source>
        <translation>Seine Farbe RRRGGGBB, für Ebenen</translation>
    </message>
    <message>
        <source>Its index, for sprites</source>
        <translation>Sein Index, für Sprites</translation>
    </message>
    <message>
        <source>Which of the sixteen groups of sixteen entries is written</source>
        <translation>Welche der sechzehn Gruppen von sechzehn Einträgen geschrieben wird</translation>
    </message>
    <message>
        <source>Palette, 9 bits a colour</source>
        <translation>Palette, 9 Bit pro Farbe</translation>
    </message>
    <message>
        <source>Palette, 9 bits a colour, and the transparency</source>
        <translation>Palette, 9 Bit pro Farbe, und die Transparenz</translation>
    </message>
    <message>
        <source>Palette, 8 bits a colour</source>
        <translation>Palette, 8 Bit pro Farbe</translation>
    </message>
    <message>
        <source>Sixteen colours of a palette, 9 bits each</source>
        <translation>Sechzehn Farben einer Palette, je 9 Bit</translation>
    </message>
    <message>
        <source>What the last byte says of the transparent entry</source>
        <translation>Was das letzte Byte über den transparenten Eintrag aussagt</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>Which of the sixteen groups of sixteen entries the colours become</source>
        <translation>Zu welcher der sechzehn Gruppen von sechzehn Einträgen die Farben werden</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Ab Nummer</translation>
    </message>
    <message>
        <source>The number of the first one, counted from 0</source>
        <translation>Die Nummer des ersten, ab 0 gezählt</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>How many are written; 0 is all from the first on</source>
        <translation>Wie viele geschrieben werden; 0 sind alle ab dem ersten</translation>
    </message>
    <message>
        <source>Options first and count: there are %1, and %2 from number %3 on are not</source>
        <translation>Optionen „Ab Nummer“ und „Anzahl“: Es gibt nur %1, nicht %2 ab Nummer %3</translation>
    </message>
    <message>
        <source>How many are read; 0 is all from the first on</source>
        <translation>Wie viele gelesen werden; 0 sind alle ab dem ersten</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and one of these takes %2</source>
        <translation>Die Datei hat %1 Bytes, und ein Element belegt %2</translation>
    </message>
    <message>
        <source>The file holds %1, and %2 go into an asset: choose which, with first and count</source>
        <translation>Die Datei enthält %1, und %2 passen in ein Asset: Bitte mit „Ab Nummer“ und „Anzahl“ auswählen</translation>
    </message>
    <message>
        <source>Bytes behind the last whole one that are left out: %1</source>
        <translation>Ausgelassene Bytes hinter dem letzten vollständigen Element: %1</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Die Datei ist leer</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and the largest that is read as it is %2</source>
        <translation>Die Datei hat %1 Bytes; höchstens %2 können direkt gelesen werden</translation>
    </message>
    <message>
        <source>There is no form “%1”</source>
        <translation>Es gibt kein Format „%1“</translation>
    </message>
    <message>
        <source>%1 is a form of %2, not of %3</source>
        <translation>%1 ist ein Format für %2, nicht für %3</translation>
    </message>
    <message>
        <source>“%1” is the file of another output as well</source>
        <translation>„%1“ ist auch die Datei einer anderen Ausgabe</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Die Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>The file is too large for a recipe</source>
        <translation>Die Datei ist zu groß für ein Rezept</translation>
    </message>
    <message>
        <source>The project no longer has %1 “%2” with the id %3, but another one of that name (%4)</source>
        <translation>Im Projekt gibt es %1 „%2“ mit der ID %3 nicht mehr, unter diesem Namen nur noch die ID %4</translation>
    </message>
    <message>
        <source>The project no longer has %1 “%2” with the id %3</source>
        <translation>Im Projekt gibt es %1 „%2“ mit der ID %3 nicht mehr</translation>
    </message>
    <message>
        <source>“%1” is the project or its recipe</source>
        <translation>„%1“ ist das Projekt oder sein Rezept</translation>
    </message>
    <message>
        <source>“%1” is written for “%2” already</source>
        <translation>„%1“ wird schon für „%2“ geschrieben</translation>
    </message>
    <message>
        <source>This is no JSON: %1</source>
        <translation>Das ist kein JSON: %1</translation>
    </message>
    <message>
        <source>This is no recipe: “%1” is missing</source>
        <translation>Das ist kein Rezept: „%1“ fehlt</translation>
    </message>
    <message>
        <source>The recipe is from a newer version of Quenmora</source>
        <translation>Das Rezept stammt von einer neueren Version von Quenmora</translation>
    </message>
    <message>
        <source>“%1” must be a list</source>
        <translation>„%1“ muss eine Liste sein</translation>
    </message>
    <message>
        <source>“%1” means nothing here</source>
        <translation>„%1“ hat hier keine Bedeutung</translation>
    </message>
    <message>
        <source>“%1” is there twice</source>
        <translation>„%1“ kommt zweimal vor</translation>
    </message>
    <message>
        <source>There are more than %1 outputs</source>
        <translation>Es gibt mehr als %1 Ausgaben</translation>
    </message>
    <message>
        <source>“%1” is the file of line %2 already</source>
        <translation>„%1“ ist schon die Datei von Zeile %2</translation>
    </message>
    <message>
        <source>“%1” is missing</source>
        <translation>„%1“ fehlt</translation>
    </message>
    <message>
        <source>“%1” must be a text</source>
        <translation>„%1“ muss ein Text sein</translation>
    </message>
    <message>
        <source>An output must be an object</source>
        <translation>Eine Ausgabe muss ein Objekt sein</translation>
    </message>
    <message>
        <source>There is no kind of asset “%1”</source>
        <translation>Es gibt keine Asset-Art „%1“</translation>
    </message>
    <message>
        <source>“%1” is no id</source>
        <translation>„%1“ ist keine ID</translation>
    </message>
    <message>
        <source>“%1” must be an object</source>
        <translation>„%1“ muss ein Objekt sein</translation>
    </message>
    <message>
        <source>%1 has no option “%2”</source>
        <translation>%1 hat keine Option „%2“</translation>
    </message>
    <message>
        <source>The option “%1” has a value of the wrong type</source>
        <translation>Die Option „%1“ hat einen Wert vom falschen Typ</translation>
    </message>
    <message>
        <source>“%1”, %2: %3 is %4, and %5 to %6 fit</source>
        <translation>„%1“, %2: %3 = %4, möglich sind %5 bis %6</translation>
    </message>
    <message>
        <source>a palette</source>
        <translation>eine Palette</translation>
    </message>
    <message>
        <source>a tile set</source>
        <translation>ein Tileset</translation>
    </message>
    <message>
        <source>a map</source>
        <translation>eine Karte</translation>
    </message>
    <message>
        <source>a block set</source>
        <translation>ein Blockset</translation>
    </message>
    <message>
        <source>a sprite bank</source>
        <translation>eine Spritebank</translation>
    </message>
    <message>
        <source>an image</source>
        <translation>ein Bild</translation>
    </message>
    <message>
        <source>“%1” is a bank of 8 bits: sprite %2 (counted from 0) has a pixel of index %3, and 4 bits hold 0 to 15</source>
        <translation>„%1“ ist eine 8-Bit-Bank: Sprite %2 (ab 0 gezählt) hat ein Pixel mit Index %3, und 4 Bit fassen 0 bis 15</translation>
    </message>
    <message>
        <source>Sprites, 8 bits a pixel</source>
        <translation>Sprites, 8 Bit pro Pixel</translation>
    </message>
    <message>
        <source>Sprites, 4 bits a pixel, packed</source>
        <translation>Sprites, 4 Bit pro Pixel, gepackt</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>How many bits of a pixel count</source>
        <translation>Wie viele Bits eines Pixels zählen</translation>
    </message>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 Bit, 256 Farben</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 Bit, 16 Farben</translation>
    </message>
    <message>
        <source>“%1” cannot be written: “%2” is a link that leads nowhere</source>
        <translation>„%1“ kann nicht geschrieben werden: „%2“ ist ein Link ohne Ziel</translation>
    </message>
    <message>
        <source>“%1” cannot be written: the link “%2” leads out of the folder</source>
        <translation>„%1“ kann nicht geschrieben werden: Der Link „%2“ führt aus dem Ordner hinaus</translation>
    </message>
    <message>
        <source>“%1” cannot be written: it is a folder</source>
        <translation>„%1“ kann nicht geschrieben werden: Das ist ein Ordner</translation>
    </message>
    <message>
        <source>“%1” cannot be written: “%2” is no folder</source>
        <translation>„%1“ kann nicht geschrieben werden: „%2“ ist kein Ordner</translation>
    </message>
    <message>
        <source>“%1”: tile %2 (counted from 0) has the value %3, and %4 to %5 fit</source>
        <translation>„%1“: Tile %2 (ab 0 gezählt) hat den Wert %3; möglich sind %4 bis %5</translation>
    </message>
    <message>
        <source>The file holds numbers of %1 tiles, and a tile set has at most %2</source>
        <translation>Die Datei enthält Zahlen für %1 Tiles, und ein Tileset hat höchstens %2</translation>
    </message>
    <message>
        <source>In which order the pixels of a tile follow each other</source>
        <translation>In welcher Reihenfolge die Pixel eines Tiles aufeinander folgen</translation>
    </message>
    <message>
        <source>How many bytes a value takes</source>
        <translation>Wie viele Bytes ein Wert belegt</translation>
    </message>
    <message>
        <source>One byte</source>
        <translation>Ein Byte</translation>
    </message>
    <message>
        <source>Two bytes</source>
        <translation>Zwei Bytes</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinte</translation>
    </message>
    <message>
        <source>The colour (0–15) of the pixels that are set; all others are clear</source>
        <translation>Die Farbe (0–15) der gesetzten Pixel; alle anderen sind transparent</translation>
    </message>
    <message>
        <source>Tiles, 4 bits a pixel</source>
        <translation>Tiles, 4 Bit pro Pixel</translation>
    </message>
    <message>
        <source>Tiles, 8 bits a pixel</source>
        <translation>Tiles, 8 Bit pro Pixel</translation>
    </message>
    <message>
        <source>Tiles, 1 bit a pixel</source>
        <translation>Tiles, 1 Bit pro Pixel</translation>
    </message>
    <message>
        <source>Attributes of tiles</source>
        <translation>Attribute von Tiles</translation>
    </message>
    <message>
        <source>Values of tiles</source>
        <translation>Werte von Tiles</translation>
    </message>
    <message>
        <source>The group of sixteen colours in which the tiles are shown</source>
        <translation>Die Gruppe von sechzehn Farben, in der die Tiles angezeigt werden</translation>
    </message>
    <message>
        <source>The colour (0–15) of the pixels that are set</source>
        <translation>Die Farbe (0–15) der gesetzten Pixel</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>The colour (0–15) of all others</source>
        <translation>Die Farbe (0–15) aller anderen</translation>
    </message>
    <message>
        <source>The tile that the first number is for, counted from 0</source>
        <translation>Das Tile, für das die erste Zahl gilt, ab 0 gezählt</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation>Der Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>The records do not lie in the file as its beginning says</source>
        <translation>Die Datensätze liegen nicht so in der Datei, wie ihr Anfang sagt</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Ranges of a palette whose colours go round</source>
        <translation>Bereiche einer Palette, deren Farben umlaufen</translation>
    </message>
</context>
<context>
    <name>NextDataImport</name>
    <message>
        <source>Some of the required files are missing</source>
        <translation>Einige der benötigten Dateien fehlen</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>%1 wird importiert…</translation>
    </message>
    <message>
        <source>Could not import the palette data</source>
        <translation>Die Palettendaten konnten nicht importiert werden</translation>
    </message>
    <message>
        <source>Could not import the tile data</source>
        <translation>Die Tile-Daten konnten nicht importiert werden</translation>
    </message>
    <message>
        <source>Could not import the map data</source>
        <translation>Die Kartendaten konnten nicht importiert werden</translation>
    </message>
</context>
<context>
    <name>NextSteps</name>
    <message>
        <source>This project is empty. Begin with:</source>
        <translation>Dieses Projekt ist leer. Beginnen Sie mit:</translation>
    </message>
    <message>
        <source>A map from a picture</source>
        <translation>Karte aus einem Bild</translation>
    </message>
    <message>
        <source>Cuts a picture into tiles and makes a palette, a tile set and a map of it</source>
        <translation>Zerlegt ein Bild in Tiles und macht daraus eine Palette, ein Tileset und eine Karte</translation>
    </message>
    <message>
        <source>Files that there are</source>
        <translation>Vorhandene Dateien</translation>
    </message>
    <message>
        <source>Looks at files of any kind, shows what they are, and makes assets of them</source>
        <translation>Untersucht Dateien jeder Art, zeigt, was sie sind, und macht Assets daraus</translation>
    </message>
    <message>
        <source>A new palette</source>
        <translation>Neue Palette</translation>
    </message>
    <message>
        <source>The colours that everything else is drawn with</source>
        <translation>Die Farben, mit denen alles andere gezeichnet wird</translation>
    </message>
    <message>
        <source>A new tile set</source>
        <translation>Neues Tileset</translation>
    </message>
    <message>
        <source>The tiles that maps are built from</source>
        <translation>Die Tiles, aus denen Karten gebaut werden</translation>
    </message>
    <message>
        <source>New sprites</source>
        <translation>Neue Sprites</translation>
    </message>
    <message>
        <source>A bank of sprites of 16 × 16 pixels</source>
        <translation>Eine Bank mit Sprites von 16 × 16 Pixeln</translation>
    </message>
</context>
<context>
    <name>NumberStepper</name>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>%1: previous</source>
        <translation>%1: zurück</translation>
    </message>
    <message>
        <source>%1: next</source>
        <translation>%1: weiter</translation>
    </message>
</context>
<context>
    <name>OptionFields</name>
    <message>
        <source>As it is</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Made from the name</source>
        <translation>Aus dem Namen gebildet</translation>
    </message>
</context>
<context>
    <name>OutputDialog</name>
    <message>
        <source>Edit Output</source>
        <translation>Ausgabe bearbeiten</translation>
    </message>
    <message>
        <source>Below the project&apos;s folder, with / between folders</source>
        <translation>Unter dem Ordner des Projekts, mit / zwischen den Ordnern</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Asset</translation>
    </message>
    <message>
        <source>&amp;Form</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation>Da&amp;tei</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The project no longer has this asset</source>
        <translation>Das Projekt hat dieses Asset nicht mehr</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes: %1</source>
        <translation>
            <numerusform>%Ln Byte: %1</numerusform>
            <numerusform>%Ln Bytes: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>Nicht möglich: %1</translation>
    </message>
    <message>
        <source>“%1” is the file of another output</source>
        <translation>„%1“ ist die Datei einer anderen Ausgabe</translation>
    </message>
</context>
<context>
    <name>OutputPreview</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln bytes)</source>
        <translation>
            <numerusform>%1 (%Ln Byte)</numerusform>
            <numerusform>%1 (%Ln Bytes)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PaintOptionsBar</name>
    <message>
        <source>Size of the brush: [ makes it smaller, ] larger</source>
        <translation>Pinselgröße: [ verkleinert, ] vergrößert</translation>
    </message>
    <message>
        <source>Size of the brush</source>
        <translation>Pinselgröße</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>PaintSettings</name>
    <message>
        <source>Connect &amp;Strokes</source>
        <translation>&amp;Striche verbinden</translation>
    </message>
    <message>
        <source>Draw without gaps, however fast the pointer moves</source>
        <translation>Ohne Lücken zeichnen, auch bei schnellen Zeigerbewegungen</translation>
    </message>
    <message>
        <source>&amp;Pixel Perfect Lines</source>
        <translation>&amp;Pixelgenaue Linien</translation>
    </message>
    <message>
        <source>Draw freehand lines of one pixel without corners</source>
        <translation>Freihandlinien von einem Pixel Breite ohne Ecken zeichnen</translation>
    </message>
    <message>
        <source>S&amp;hade</source>
        <translation>S&amp;chattieren</translation>
    </message>
    <message>
        <source>Step pixels along the colours between foreground and background: the left button towards the foreground, the right button towards the background</source>
        <translation>Pixel stufenweise entlang der Farben zwischen Vordergrund und Hintergrund ändern: linke Taste zum Vordergrund, rechte Taste zum Hintergrund</translation>
    </message>
    <message>
        <source>&amp;Round Brush</source>
        <translation>R&amp;under Pinsel</translation>
    </message>
    <message>
        <source>Draw with a round brush</source>
        <translation>Mit rundem Pinsel zeichnen</translation>
    </message>
    <message>
        <source>Mirror &amp;Left and Right</source>
        <translation>&amp;Links und rechts spiegeln</translation>
    </message>
    <message>
        <source>Draw on the left and on the right at once</source>
        <translation>Links und rechts zugleich zeichnen</translation>
    </message>
    <message>
        <source>Mirror &amp;Top and Bottom</source>
        <translation>&amp;Oben und unten spiegeln</translation>
    </message>
    <message>
        <source>Draw at the top and at the bottom at once</source>
        <translation>Oben und unten zugleich zeichnen</translation>
    </message>
</context>
<context>
    <name>PaletteColourCommand</name>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
</context>
<context>
    <name>PaletteDialog</name>
    <message>
        <source>New Palette</source>
        <translation>Neue Palette</translation>
    </message>
    <message>
        <source>Create a new palette</source>
        <translation>Eine neue Palette anlegen</translation>
    </message>
    <message>
        <source>Palette Name</source>
        <translation>Palettenname</translation>
    </message>
    <message>
        <source>Copy colours from current palette</source>
        <translation>Farben der aktuellen Palette kopieren</translation>
    </message>
    <message>
        <source>Use the default Next palette</source>
        <translation>Standardpalette des Next verwenden</translation>
    </message>
    <message>
        <source>Create a blank palette</source>
        <translation>Leere Palette anlegen</translation>
    </message>
    <message>
        <source>Palette names must be unique</source>
        <translation>Palettennamen müssen eindeutig sein</translation>
    </message>
    <message>
        <source>Palette name is required</source>
        <translation>Ein Palettenname ist erforderlich</translation>
    </message>
</context>
<context>
    <name>PaletteEditor</name>
    <message>
        <source>Darkens the selected colour(s)</source>
        <translation>Dunkelt die ausgewählte(n) Farbe(n) ab</translation>
    </message>
    <message>
        <source>Lightens the selected colour(s)</source>
        <translation>Hellt die ausgewählte(n) Farbe(n) auf</translation>
    </message>
    <message>
        <source>Create a gradient</source>
        <translation>Einen Verlauf erzeugen</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Abdunkeln</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aufhellen</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Verlauf</translation>
    </message>
</context>
<context>
    <name>PaletteGrid</name>
    <message>
        <source>Palette Grid Colour Chooser</source>
        <translation>Palettenraster zur Farbauswahl</translation>
    </message>
    <message>
        <source>Index %1: $%2</source>
        <translation>Index %1: $%2</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Farbe %1, %2, transparent</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Farbe %1, %2</translation>
    </message>
</context>
<context>
    <name>PaletteMenu</name>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>&amp;New Palette</source>
        <translation>&amp;Neue Palette</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>No Palette</source>
        <translation>Keine Palette</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>Import Palette</source>
        <translation>Palette importieren</translation>
    </message>
    <message>
        <source>Palette (*.pal *.npl)</source>
        <translation>Palette (*.pal *.npl)</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp)</source>
        <translation>Bilder (*.png *.bmp)</translation>
    </message>
    <message>
        <source>Export Palette</source>
        <translation>Palette exportieren</translation>
    </message>
</context>
<context>
    <name>PaletteNotice</name>
    <message>
        <source>There is no palette yet to show colours with.
Palette ▸ New Palette makes one.</source>
        <translation>Es gibt noch keine Palette, um Farben anzuzeigen.
Palette ▸ Neue Palette legt eine an.</translation>
    </message>
</context>
<context>
    <name>PaletteSelectorDialog</name>
    <message>
        <source>Swap Palette</source>
        <translation>Palette wechseln</translation>
    </message>
    <message>
        <source>Show with another palette</source>
        <translation>Mit einer anderen Palette anzeigen</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>There is no palette to choose; please create one first</source>
        <translation>Es gibt keine Palette zur Auswahl; bitte zuerst eine anlegen</translation>
    </message>
</context>
<context>
    <name>PaletteTools</name>
    <message>
        <source>Sort by &amp;Hue</source>
        <translation>Nach &amp;Farbton sortieren</translation>
    </message>
    <message>
        <source>Orders the selected entries from red over green to blue, greys first; pictures keep their look</source>
        <translation>Ordnet die ausgewählten Einträge von Rot über Grün nach Blau, Grautöne zuerst; Bilder sehen aus wie zuvor</translation>
    </message>
    <message>
        <source>Sort Palette</source>
        <translation>Palette sortieren</translation>
    </message>
    <message>
        <source>Sort by &amp;Brightness</source>
        <translation>Nach &amp;Helligkeit sortieren</translation>
    </message>
    <message>
        <source>Orders the selected entries from dark to light; pictures keep their look</source>
        <translation>Ordnet die ausgewählten Einträge von dunkel nach hell; Bilder sehen aus wie zuvor</translation>
    </message>
    <message>
        <source>Re&amp;verse</source>
        <translation>&amp;Umkehren</translation>
    </message>
    <message>
        <source>Puts the selected entries into the opposite order; pictures keep their look</source>
        <translation>Bringt die ausgewählten Einträge in die umgekehrte Reihenfolge; Bilder sehen aus wie zuvor</translation>
    </message>
    <message>
        <source>Reverse Palette</source>
        <translation>Palette umkehren</translation>
    </message>
    <message>
        <source>E&amp;xchange Ends</source>
        <translation>Enden &amp;tauschen</translation>
    </message>
    <message>
        <source>Lets the first and the last selected entry change places; pictures keep their look</source>
        <translation>Lässt den ersten und den letzten ausgewählten Eintrag die Plätze tauschen; Bilder sehen aus wie zuvor</translation>
    </message>
    <message>
        <source>Exchange Palette Entries</source>
        <translation>Paletteneinträge tauschen</translation>
    </message>
    <message>
        <source>&amp;Gradient in Machine Steps</source>
        <translation>&amp;Verlauf in Farbstufen des Next</translation>
    </message>
    <message>
        <source>Spreads the selection from its first to its last colour, each channel in the nearest of its eight levels</source>
        <translation>Bildet in der Auswahl einen Verlauf von ihrer ersten zu ihrer letzten Farbe, jeder Kanal in der nächsten seiner acht Stufen</translation>
    </message>
    <message>
        <source>Mark &amp;Unused Entries</source>
        <translation>Un&amp;benutzte Einträge markieren</translation>
    </message>
    <message>
        <source>Marks the entries that no pixel has</source>
        <translation>Markiert die Einträge, die kein Pixel hat</translation>
    </message>
    <message>
        <source>Mark E&amp;qual Entries</source>
        <translation>&amp;Gleiche Einträge markieren</translation>
    </message>
    <message>
        <source>Marks the entries whose colour others have, too</source>
        <translation>Markiert die Einträge, deren Farbe auch andere haben</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 Pixel</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pixels</source>
        <translation>
            <numerusform>%Ln Pixel</numerusform>
            <numerusform>%Ln Pixel</numerusform>
        </translation>
    </message>
    <message>
        <source>Select the entries that are to change places</source>
        <translation>Bitte die Einträge auswählen, die die Plätze tauschen sollen</translation>
    </message>
    <message>
        <source>Colour cycles whose entries are no longer next to each other were removed; undo brings them back</source>
        <translation>Farbzyklen, deren Einträge nicht mehr nebeneinander liegen, wurden entfernt; Rückgängig bringt sie zurück</translation>
    </message>
    <message>
        <source>The entries cannot change places: tiles and 4-bit sprites need theirs in their group of 16, and transparent entries, and those of tiles that are drawn with several palette offsets, must stay where they are</source>
        <translation>Die Einträge können nicht die Plätze tauschen: Tiles und 4-Bit-Sprites brauchen ihre Einträge in deren 16er-Gruppe, und transparente Einträge sowie die von Tiles, die mit mehreren Paletten-Offsets gezeichnet werden, müssen an ihrem Platz bleiben</translation>
    </message>
    <message>
        <source>Colour C&amp;ycles…</source>
        <translation>Farb&amp;zyklen…</translation>
    </message>
    <message>
        <source>Ranges of entries whose colours go round, so that water flows and fires burn</source>
        <translation>Bereiche von Einträgen, deren Farben umlaufen, damit Wasser fließt und Feuer brennen</translation>
    </message>
    <message>
        <source>Move Palette Entries</source>
        <translation>Paletteneinträge verschieben</translation>
    </message>
</context>
<context>
    <name>PaletteWindow</name>
    <message>
        <source>Palette Editor</source>
        <translation>Paletteneditor</translation>
    </message>
    <message>
        <source>No palette selected</source>
        <translation>Keine Palette ausgewählt</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>The palettes of the project</source>
        <translation>Die Paletten des Projekts</translation>
    </message>
    <message>
        <source>Rename, copy, delete or sort the palette</source>
        <translation>Palette umbenennen, kopieren, löschen oder sortieren</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>U&amp;mbenennen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Palette: %1</source>
        <translation>Palette: %1</translation>
    </message>
    <message>
        <source>All colours are black. Choose one and change it below, or bring in others with Palette ▸ Import.</source>
        <translation>Alle Farben sind schwarz. Wählen Sie eine und ändern Sie sie unten, oder holen Sie andere mit Palette ▸ Importieren.</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>It has %1 × %2 pixels; at most %3 × %3, or as many in another shape, can be read</source>
        <translation>Das Bild hat %1 × %2 Pixel; höchstens %3 × %3 oder ebenso viele in anderer Form können gelesen werden</translation>
    </message>
    <message>
        <source>Could not read the image file</source>
        <translation>Die Bilddatei konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>It is a pipe or a device, not a file</source>
        <translation>Das ist eine Pipe oder ein Gerät, keine Datei</translation>
    </message>
</context>
<context>
    <name>PictureImport</name>
    <message>
        <source>Tiles that lost colours: %1 of %2.
A tile shows 16 colours, and all of them together have 16 groups of 16. Reduce the colours of the picture, to 16 in each tile of 8 × 8 pixels and to fewer in all, and import it again.</source>
        <translation>Tiles, die Farben verloren haben: %1 von %2.
Ein Tile zeigt 16 Farben, und alle zusammen haben 16 Gruppen zu 16. Verringern Sie die Farben des Bildes auf 16 je Tile von 8 × 8 Pixeln und insgesamt auf weniger, und importieren Sie es erneut.</translation>
    </message>
    <message>
        <source>Cannot import the image as it would need more than 512 tiles
%1 required</source>
        <translation>Das Bild kann nicht importiert werden, da es mehr als 512 Tiles bräuchte
Erforderlich: %1</translation>
    </message>
    <message>
        <source>The image is smaller than a tile, which has 8 × 8 pixels</source>
        <translation>Das Bild ist kleiner als ein Tile, das 8 × 8 Pixel hat</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>%1 wird importiert…</translation>
    </message>
    <message>
        <source>The project was closed meanwhile</source>
        <translation>Das Projekt wurde inzwischen geschlossen</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
</context>
<context>
    <name>PicturePreview</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
</context>
<context>
    <name>PixelEditor</name>
    <message>
        <source>%1, %2  colour %3</source>
        <translation>%1, %2  Farbe %3</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Show how the picture will look</source>
        <translation>Zeigen, wie das Bild aussehen wird</translation>
    </message>
    <message>
        <source>Swap foreground and background</source>
        <translation>Vordergrund und Hintergrund tauschen</translation>
    </message>
    <message>
        <source>Smaller brush</source>
        <translation>Kleinerer Pinsel</translation>
    </message>
    <message>
        <source>Larger brush</source>
        <translation>Größerer Pinsel</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Farbe ersetzen</translation>
    </message>
    <message>
        <source>Gives pixels of the background colour the foreground colour, in the selection if there is one</source>
        <translation>Gibt Pixeln der Hintergrundfarbe die Vordergrundfarbe, innerhalb der Auswahl, falls es eine gibt</translation>
    </message>
    <message>
        <source>Brush from Selection</source>
        <translation>Pinsel aus Auswahl</translation>
    </message>
    <message>
        <source>Draws with what is selected, without its pixels of the background colour</source>
        <translation>Zeichnet mit dem Ausgewählten ohne dessen Pixel in der Hintergrundfarbe</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>What the preview shows</source>
        <translation>Was die Vorschau zeigt</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (Kopie)</translation>
    </message>
    <message>
        <source>New palette added: %1</source>
        <translation>Neue Palette hinzugefügt: %1</translation>
    </message>
    <message>
        <source>New tile set added: %1</source>
        <translation>Neues Tileset hinzugefügt: %1</translation>
    </message>
    <message>
        <source>New map added: %1</source>
        <translation>Neue Karte hinzugefügt: %1</translation>
    </message>
    <message>
        <source>New block set added: %1</source>
        <translation>Neues Blockset hinzugefügt: %1</translation>
    </message>
    <message>
        <source>New Sprite Bank Added</source>
        <translation>Neue Spritebank hinzugefügt</translation>
    </message>
</context>
<context>
    <name>ProjectActions</name>
    <message>
        <source>%1 (selection)</source>
        <translation>%1 (Auswahl)</translation>
    </message>
    <message>
        <source>Palette In Use</source>
        <translation>Palette in Benutzung</translation>
    </message>
    <message>
        <source>You may not delete this palette; it is used by one or more sprites, tiles or images</source>
        <translation>Diese Palette kann nicht gelöscht werden; Sprites, Tiles oder Bilder verwenden sie</translation>
    </message>
    <message>
        <source>Tile Set In Use</source>
        <translation>Tileset in Benutzung</translation>
    </message>
    <message>
        <source>You may not delete this Tile Set; it is used by one or more maps</source>
        <translation>Dieses Tileset kann nicht gelöscht werden; Karten verwenden es</translation>
    </message>
    <message>
        <source>Objects in use</source>
        <translation>Objekte in Benutzung</translation>
    </message>
    <message>
        <source>You may not delete these objects; they are in use by one or more maps</source>
        <translation>Diese Objekte können nicht gelöscht werden; Karten verwenden sie</translation>
    </message>
    <message>
        <source>The file is neither a palette nor a picture that can be read</source>
        <translation>Die Datei ist weder eine Palette noch ein lesbares Bild</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n colours; the palette takes the first %1 of them</source>
        <translation>
            <numerusform>Das Bild hat %n Farbe; die Palette übernimmt die ersten %1 davon</numerusform>
            <numerusform>Das Bild hat %n Farben; die Palette übernimmt die ersten %1 davon</numerusform>
        </translation>
    </message>
    <message>
        <source>New Palette for the Others</source>
        <translation>Neue Palette für die übrigen</translation>
    </message>
    <message>
        <source>%1, more</source>
        <translation>%1, weitere</translation>
    </message>
    <message>
        <source>Could not make sprites of the image file</source>
        <translation>Aus der Bilddatei konnten keine Sprites gemacht werden</translation>
    </message>
    <message>
        <source>Could not import the sprite data</source>
        <translation>Die Spritedaten konnten nicht importiert werden</translation>
    </message>
    <message>
        <source>Import Incomplete</source>
        <translation>Import unvollständig</translation>
    </message>
</context>
<context>
    <name>ProjectController</name>
    <message>
        <source>Opening %1…</source>
        <translation>%1 wird geöffnet…</translation>
    </message>
    <message>
        <source>Unable to create a new project</source>
        <translation>Es konnte kein neues Projekt angelegt werden</translation>
    </message>
    <message>
        <source>Recovering the project…</source>
        <translation>Projekt wird wiederhergestellt…</translation>
    </message>
    <message>
        <source>loading...</source>
        <translation>wird geladen...</translation>
    </message>
    <message>
        <source>Saving %1…</source>
        <translation>%1 wird gespeichert…</translation>
    </message>
    <message>
        <source>What is kept beside the project cannot be read: %1
The project itself is whole.
%2</source>
        <translation>Die Begleitdatei des Projekts kann nicht gelesen werden: %1
Das Projekt selbst ist in Ordnung.
%2</translation>
    </message>
    <message>
        <source>What is kept beside the project cannot be written: %1
%2</source>
        <translation>Die Begleitdatei des Projekts kann nicht geschrieben werden: %1
%2</translation>
    </message>
    <message>
        <source>Another program removed or renamed the file of this project, which saving writes again:
%1</source>
        <translation>Ein anderes Programm hat die Datei dieses Projekts entfernt oder umbenannt; Speichern schreibt sie neu:
%1</translation>
    </message>
    <message>
        <source>The file cannot be loaded, and the project stays as it is here: %1</source>
        <translation>Die Datei kann nicht geladen werden, und das Projekt bleibt, wie es hier ist: %1</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Save the changes to %1 before closing it?</source>
        <translation>Änderungen an %1 vor dem Schließen speichern?</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>Project file (*.quenmora)</source>
        <translation>Projektdatei (*.quenmora)</translation>
    </message>
    <message>
        <source>The sample project is not installed</source>
        <translation>Das Beispielprojekt ist nicht installiert</translation>
    </message>
</context>
<context>
    <name>ProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>Ein neues Projekt anlegen</translation>
    </message>
    <message>
        <source>Project &amp;name</source>
        <translation>Projekt&amp;name</translation>
    </message>
</context>
<context>
    <name>ProjectDocument</name>
    <message>
        <source>Failed to load tile image %1</source>
        <translation>Tile-Bild %1 konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Failed to load tile map anim for map %1</source>
        <translation>Die Tilemap der Karte %1 konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Invalid project file</source>
        <translation>Ungültige Projektdatei</translation>
    </message>
    <message>
        <source>Project file is from a newer version of Quenmora</source>
        <translation>Die Projektdatei stammt von einer neueren Version von Quenmora</translation>
    </message>
    <message>
        <source>Project has a missing sprite anim</source>
        <translation>Im Projekt fehlt eine Sprite-Animation</translation>
    </message>
    <message>
        <source>Failed to load tile set tileImage &quot;%1&quot; from project file</source>
        <translation>Das Tile-Bild „%1“ des Tilesets konnte nicht aus der Projektdatei geladen werden</translation>
    </message>
    <message>
        <source>Error setting tile set anim - %1</source>
        <translation>Fehler beim Setzen der Tileset-Animation - %1</translation>
    </message>
</context>
<context>
    <name>ProjectExport</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… und %n weiterer</numerusform>
            <numerusform>… und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>The recipe could not be saved</source>
        <translation>Das Rezept konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Fehler beim Speichern</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Beim Exportieren der Daten ist ein Problem aufgetreten</translation>
    </message>
</context>
<context>
    <name>ProjectMenu</name>
    <message>
        <source>Import A&amp;gain</source>
        <translation>E&amp;rneut importieren</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Beim Exportieren der Daten ist ein Problem aufgetreten</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Fehler beim Speichern</translation>
    </message>
</context>
<context>
    <name>ProjectStore</name>
    <message>
        <source>Invalid project file</source>
        <translation>Ungültige Projektdatei</translation>
    </message>
    <message>
        <source>Project loaded</source>
        <translation>Projekt geladen</translation>
    </message>
    <message>
        <source>Could not create the project file</source>
        <translation>Die Projektdatei konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>%1 konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Could not finish writing the project file</source>
        <translation>Die Projektdatei konnte nicht vollständig geschrieben werden</translation>
    </message>
    <message>
        <source>Saved %1 to %2</source>
        <translation>%1 in %2 gespeichert</translation>
    </message>
    <message>
        <source>Invalid map id</source>
        <translation>Ungültige Karten-ID</translation>
    </message>
    <message>
        <source>Map exported</source>
        <translation>Karte exportiert</translation>
    </message>
    <message>
        <source>Exporting the map failed</source>
        <translation>Export der Karte fehlgeschlagen</translation>
    </message>
    <message>
        <source>Invalid tile set id</source>
        <translation>Ungültige Tileset-ID</translation>
    </message>
    <message>
        <source>Tile set exported</source>
        <translation>Tileset exportiert</translation>
    </message>
    <message>
        <source>Exporting the tile set failed</source>
        <translation>Export des Tilesets fehlgeschlagen</translation>
    </message>
    <message>
        <source>Invalid palette id</source>
        <translation>Ungültige Paletten-ID</translation>
    </message>
    <message>
        <source>Palette exported</source>
        <translation>Palette exportiert</translation>
    </message>
    <message>
        <source>Exporting the palette failed</source>
        <translation>Export der Palette fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>ProjectTree</name>
    <message>
        <source>Palettes</source>
        <translation>Paletten</translation>
    </message>
    <message>
        <source>Tile Sets</source>
        <translation>Tilesets</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Tile Set</source>
        <translation>Tileset</translation>
    </message>
    <message>
        <source>Map Objects</source>
        <translation>Kartenobjekte</translation>
    </message>
    <message>
        <source>Sprite Bank</source>
        <translation>Spritebank</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>U&amp;mbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Import A&amp;gain</source>
        <translation>E&amp;rneut importieren</translation>
    </message>
</context>
<context>
    <name>ProjectWindow</name>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>No project loaded</source>
        <translation>Kein Projekt geladen</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existiert bereits.
Soll die Datei ersetzt werden?</translation>
    </message>
</context>
<context>
    <name>RecipeTable</name>
    <message>
        <source>1 page of 8 KiB</source>
        <translation>1 Seite zu 8 KiB</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pages of 8 KiB</source>
        <translation>
            <numerusform>%Ln Seite zu 8 KiB</numerusform>
            <numerusform>%Ln Seiten zu 8 KiB</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>1 bank of 16 KiB</source>
        <translation>1 Bank zu 16 KiB</translation>
    </message>
    <message numerus="yes">
        <source>%Ln banks of 16 KiB</source>
        <translation>
            <numerusform>%Ln Bank zu 16 KiB</numerusform>
            <numerusform>%Ln Bänke zu 16 KiB</numerusform>
        </translation>
    </message>
    <message>
        <source>…</source>
        <translation>…</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>Nicht möglich: %1</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Pages of 8 KiB and banks of 16 KiB that the bytes take</source>
        <translation>Seiten zu 8 KiB und Bänke zu 16 KiB, die die Bytes belegen</translation>
    </message>
    <message>
        <source>Bytes in the game; source text is longer</source>
        <translation>Bytes im Spiel; Quelltext ist länger</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Asset</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>8K / 16K</source>
        <translation>8K / 16K</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>RecoveryKeeper</name>
    <message>
        <source>%1 cannot be written to</source>
        <translation>In %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>No copy for the time after a crash could be written: %1</source>
        <translation>Für den Fall eines Absturzes konnte keine Kopie geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>RecoveryList</name>
    <message>
        <source>Never saved</source>
        <translation>Nie gespeichert</translation>
    </message>
    <message>
        <source>As it was today at %1</source>
        <translation>Stand von heute, %1</translation>
    </message>
    <message>
        <source>As it was yesterday at %1</source>
        <translation>Stand von gestern, %1</translation>
    </message>
    <message>
        <source>As it was on %1 at %2</source>
        <translation>Stand vom %1, %2</translation>
    </message>
    <message>
        <source>A project</source>
        <translation>Ein Projekt</translation>
    </message>
    <message>
        <source>The copy is damaged and was put aside:</source>
        <translation>Die Kopie ist beschädigt und wurde beiseitegelegt:</translation>
    </message>
    <message>
        <source>Discard Copy</source>
        <translation>Kopie verwerfen</translation>
    </message>
    <message>
        <source>Discard what can be recovered of %1?</source>
        <translation>Verwerfen, was sich von %1 wiederherstellen lässt?</translation>
    </message>
    <message>
        <source>What was not saved is lost then.</source>
        <translation>Nicht Gespeichertes geht dann verloren.</translation>
    </message>
    <message>
        <source>Not saved when Quenmora stopped</source>
        <translation>Nicht gespeichert, als Quenmora beendet wurde</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Recover %1</source>
        <translation>%1 wiederherstellen</translation>
    </message>
    <message>
        <source>Opens the project with the changes that were not saved</source>
        <translation>Öffnet das Projekt mit den nicht gespeicherten Änderungen</translation>
    </message>
    <message>
        <source>Discard…</source>
        <translation>Verwerfen…</translation>
    </message>
    <message>
        <source>Discard %1</source>
        <translation>%1 verwerfen</translation>
    </message>
</context>
<context>
    <name>RectangleCanvasTool</name>
    <message>
        <source>Filled Rectangle</source>
        <translation>Gefülltes Rechteck</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
</context>
<context>
    <name>ReductionBox</name>
    <message>
        <source>No, as they come</source>
        <translation>Nein, der Reihe nach</translation>
    </message>
    <message>
        <source>To the nearest</source>
        <translation>Nächste Farbe</translation>
    </message>
    <message>
        <source>In an ordered pattern</source>
        <translation>Geordnetes Muster</translation>
    </message>
    <message>
        <source>With error diffusion</source>
        <translation>Fehlerdiffusion</translation>
    </message>
    <message>
        <source>Colours are found for the whole picture; else those that come last take the nearest of the others</source>
        <translation>Die Farben werden für das ganze Bild gesucht; sonst erhalten die zuletzt kommenden die nächste der anderen</translation>
    </message>
    <message>
        <source>Colours of the machine: %1 before, %2 after</source>
        <translation>Farben des Next: %1 vorher, %2 nachher</translation>
    </message>
    <message>
        <source>%1; mean error: %2 levels</source>
        <translation>%1; mittlerer Fehler: %2 Stufen</translation>
    </message>
    <message>
        <source>%1; none is lost</source>
        <translation>%1; keine geht verloren</translation>
    </message>
</context>
<context>
    <name>Request</name>
    <message>
        <source>Do this recipe, not the one beside the project.</source>
        <translation>Dieses Rezept ausführen, nicht das neben dem Projekt.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Write below this folder, not below the project&apos;s.</source>
        <translation>Unter diesem Ordner schreiben, nicht unter dem des Projekts.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Write nothing, but say what would be written.</source>
        <translation>Nichts schreiben, sondern sagen, was geschrieben würde.</translation>
    </message>
    <message>
        <source>Tell make or ninja in this file what was made of what.</source>
        <translation>make oder ninja in dieser Datei mitteilen, was woraus entstanden ist.</translation>
    </message>
    <message>
        <source>Say nothing unless something fails.</source>
        <translation>Nichts ausgeben, solange nichts fehlschlägt.</translation>
    </message>
    <message>
        <source>Without a recipe: write the asset of this name or id …</source>
        <translation>Ohne Rezept: das Asset dieses Namens oder dieser ID schreiben …</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>… in this form …</source>
        <translation>… in diesem Format …</translation>
    </message>
    <message>
        <source>id</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>… with this option of the form, which may be given again for others …</source>
        <translation>… mit dieser Option des Formats, die für weitere wiederholt werden kann …</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>Name=Wert</translation>
    </message>
    <message>
        <source>… to this file.</source>
        <translation>… in diese Datei.</translation>
    </message>
    <message>
        <source>List the assets: kind, id and name.</source>
        <translation>Die Assets auflisten: Art, ID und Name.</translation>
    </message>
    <message>
        <source>List the forms and their options.</source>
        <translation>Die Formate und ihre Optionen auflisten.</translation>
    </message>
    <message>
        <source>Describe the whole project as text, for git diff.</source>
        <translation>Das ganze Projekt als Text beschreiben, für git diff.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe zeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version zeigen.</translation>
    </message>
    <message>
        <source>A project file, as game.quenmora.</source>
        <translation>Eine Projektdatei, etwa game.quenmora.</translation>
    </message>
    <message>
        <source>Writes the graphics of a Quenmora project in the forms that a game takes, as its recipe says, the file
game.quenmora-export.json beside game.quenmora, which File &gt; Export Project in the editor makes.
Files whose bytes stay the same are not touched.</source>
        <translation>Schreibt die Grafik eines Quenmora-Projekts in den Formaten, die ein Spiel lädt, nach dessen Rezept, der Datei
game.quenmora-export.json neben game.quenmora, die „Datei &gt; Projekt exportieren“ im Editor anlegt.
Dateien, deren Bytes gleich bleiben, werden nicht angerührt.</translation>
    </message>
    <message>
        <source>--%1 and --%2 do not go together</source>
        <translation>--%1 und --%2 passen nicht zusammen</translation>
    </message>
    <message>
        <source>--%1 takes KEY=VALUE, not “%2”</source>
        <translation>--%1 erwartet NAME=WERT, nicht „%2“</translation>
    </message>
    <message>
        <source>--%1 is there twice</source>
        <translation>--%1 ist zweimal angegeben</translation>
    </message>
    <message>
        <source>--%1 needs a value</source>
        <translation>--%1 braucht einen Wert</translation>
    </message>
    <message>
        <source>--%1 means nothing here</source>
        <translation>--%1 hat hier keine Bedeutung</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 braucht --%2</translation>
    </message>
    <message>
        <source>“%1” is one argument too many</source>
        <translation>„%1“ ist ein Argument zu viel</translation>
    </message>
    <message>
        <source>A project file is missing</source>
        <translation>Es fehlt eine Projektdatei</translation>
    </message>
    <message>
        <source>Write a small picture of the project, as file managers show, to this PNG file …</source>
        <translation>Ein kleines Bild des Projekts, wie Dateimanager es zeigen, in diese PNG-Datei schreiben …</translation>
    </message>
    <message>
        <source>… of at most so many pixels along its sides; 256 without this.</source>
        <translation>… mit höchstens so vielen Pixeln je Seite; ohne dies 256.</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>--%1 takes a number from 1 to %2, not “%3”</source>
        <translation>--%1 erwartet eine Zahl von 1 bis %2, nicht „%3“</translation>
    </message>
</context>
<context>
    <name>RgbEditor</name>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>Red level</source>
        <translation>Rotstufe</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green level</source>
        <translation>Grünstufe</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue level</source>
        <translation>Blaustufe</translation>
    </message>
</context>
<context>
    <name>ScrollBar</name>
    <message>
        <source>Add a column on the left</source>
        <translation>Links eine Spalte hinzufügen</translation>
    </message>
    <message>
        <source>Add a row at the top</source>
        <translation>Oben eine Zeile hinzufügen</translation>
    </message>
    <message>
        <source>Remove the column on the left</source>
        <translation>Linke Spalte entfernen</translation>
    </message>
    <message>
        <source>Remove the row at the top</source>
        <translation>Oberste Zeile entfernen</translation>
    </message>
    <message>
        <source>Remove the column on the right</source>
        <translation>Rechte Spalte entfernen</translation>
    </message>
    <message>
        <source>Remove the row at the bottom</source>
        <translation>Unterste Zeile entfernen</translation>
    </message>
    <message>
        <source>Add a column on the right</source>
        <translation>Rechts eine Spalte hinzufügen</translation>
    </message>
    <message>
        <source>Add a row at the bottom</source>
        <translation>Unten eine Zeile hinzufügen</translation>
    </message>
</context>
<context>
    <name>SeveralOutputsDialog</name>
    <message>
        <source>Edit Outputs</source>
        <translation>Ausgaben bearbeiten</translation>
    </message>
    <message numerus="yes">
        <source>What %Ln outputs are to have alike</source>
        <translation>
            <numerusform>Was %Ln Ausgabe haben soll</numerusform>
            <numerusform>Was %Ln Ausgaben gemeinsam haben sollen</numerusform>
        </translation>
    </message>
    <message>
        <source>Please choose what is to change</source>
        <translation>Bitte wählen, was sich ändern soll</translation>
    </message>
</context>
<context>
    <name>ShortcutsDialog</name>
    <message>
        <source>A&amp;dd Key</source>
        <translation>Taste &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Take It Away There</source>
        <translation>Dort &amp;entfernen</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Nach Namen suchen</translation>
    </message>
    <message>
        <source>or by &amp;keys:</source>
        <translation>oder nach &amp;Tasten:</translation>
    </message>
    <message>
        <source>Search by keys</source>
        <translation>Nach Tasten suchen</translation>
    </message>
    <message>
        <source>Press keys to see what they do</source>
        <translation>Tasten drücken, um zu sehen, was sie tun</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Leaves these keys to this command alone</source>
        <translation>Überlässt diese Tasten allein diesem Befehl</translation>
    </message>
    <message>
        <source>Gives the command its usual keys</source>
        <translation>Gibt dem Befehl seine üblichen Tasten zurück</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>&amp;Alle zurücksetzen</translation>
    </message>
    <message>
        <source>Gives all commands their usual keys</source>
        <translation>Gibt allen Befehlen ihre üblichen Tasten zurück</translation>
    </message>
    <message>
        <source>Another command has these keys, too</source>
        <translation>Auch ein anderer Befehl hat diese Tasten</translation>
    </message>
    <message>
        <source>Keys of “%1”</source>
        <translation>Tasten von „%1“</translation>
    </message>
    <message>
        <source>Press the keys that shall do it</source>
        <translation>Die Tasten drücken, die es tun sollen</translation>
    </message>
    <message>
        <source>%1 is a key of “%2” (%3), too. Neither would do anything.</source>
        <translation>%1 ist auch eine Taste von „%2“ (%3). Keiner der beiden Befehle würde ausgeführt.</translation>
    </message>
</context>
<context>
    <name>ShortcutsFile</name>
    <message>
        <source>The file is too large</source>
        <translation>Die Datei ist zu groß</translation>
    </message>
    <message>
        <source>The file does not hold keys by command</source>
        <translation>Die Datei enthält keine Tasten zu Befehlen</translation>
    </message>
</context>
<context>
    <name>SlicingProgress</name>
    <message>
        <source>Processing image</source>
        <translation>Bild wird verarbeitet</translation>
    </message>
</context>
<context>
    <name>SpriteAnim</name>
    <message>
        <source>New Sprite</source>
        <translation>Neues Sprite</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (Kopie)</translation>
    </message>
</context>
<context>
    <name>SpriteDialog</name>
    <message>
        <source>New Sprites</source>
        <translation>Neue Sprites</translation>
    </message>
    <message>
        <source>Create a new sprite bank</source>
        <translation>Eine neue Spritebank anlegen</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>&amp;Tiefe</translation>
    </message>
    <message>
        <source>New palette of the same name</source>
        <translation>Neue Palette gleichen Namens</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::AnimationEditorWidget</name>
    <message>
        <source>Set the frame width in sprites</source>
        <translation>Framebreite in Sprites festlegen</translation>
    </message>
    <message>
        <source>Set the frame height in sprites</source>
        <translation>Framehöhe in Sprites festlegen</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::ImportBinaryDialog</name>
    <message>
        <source>Import Sprites</source>
        <translation>Sprites importieren</translation>
    </message>
    <message>
        <source>Make sprites of raw data</source>
        <translation>Aus Rohdaten Sprites machen</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>&amp;Tiefe</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>%L1 in the file</source>
        <translation>%L1 in der Datei</translation>
    </message>
    <message>
        <source>New standard palette</source>
        <translation>Neue Standardpalette</translation>
    </message>
    <message>
        <source>There is no sprite in this file, or it cannot be read</source>
        <translation>Diese Datei enthält keine Sprites oder kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>The file holds more sprites than fit into a bank</source>
        <translation>Die Datei enthält mehr Sprites, als in eine Bank passen</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::ImportImageDialog</name>
    <message>
        <source>Import Sprites</source>
        <translation>Sprites importieren</translation>
    </message>
    <message>
        <source>Make sprites of a picture</source>
        <translation>Aus einem Bild Sprites machen</translation>
    </message>
    <message>
        <source>Nearest colours of a &amp;palette</source>
        <translation>Nächste Farben einer &amp;Palette</translation>
    </message>
    <message>
        <source>N&amp;ew palette, and every sprite once</source>
        <translation>N&amp;eue Palette, jedes Sprite nur einmal</translation>
    </message>
    <message>
        <source>&amp;Keep the machine&apos;s colours</source>
        <translation>Farben des Next &amp;behalten</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has, and stays exactly that</source>
        <translation>Jede Farbe des Bildes ist eine, die der Next hat, und bleibt genau so</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>&amp;Tiefe</translation>
    </message>
    <message>
        <source>&amp;Fewer colours</source>
        <translation>&amp;Weniger Farben</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
    <message>
        <source>Reducing %1…</source>
        <translation>%1 wird reduziert…</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>%1 × %2 sprites, colours: %3, and transparent pixels</source>
        <translation>%1 × %2 Sprites, Farben: %3, und transparente Pixel</translation>
    </message>
    <message>
        <source>%1 × %2 sprites, colours: %3</source>
        <translation>%1 × %2 Sprites, Farben: %3</translation>
    </message>
    <message>
        <source>There is room for %1; the others take the nearest of these</source>
        <translation>Es ist Platz für %1; die übrigen nehmen die nächsten davon</translation>
    </message>
    <message>
        <source>The file is not a picture that can be read</source>
        <translation>Die Datei ist kein lesbares Bild</translation>
    </message>
    <message>
        <source>The picture is smaller than a sprite, which has 16 × 16 pixels</source>
        <translation>Das Bild ist kleiner als ein Sprite, das 16 × 16 Pixel hat</translation>
    </message>
    <message>
        <source>The picture holds more sprites than fit into a bank</source>
        <translation>Das Bild enthält mehr Sprites, als in eine Bank passen</translation>
    </message>
    <message>
        <source>There is a palette of this name already; please choose another name</source>
        <translation>Es gibt schon eine Palette dieses Namens; bitte einen anderen Namen wählen</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n colours; 4-bit sprites show 15 beside the transparent one</source>
        <translation>
            <numerusform>Das Bild hat %n Farbe; 4-Bit-Sprites zeigen neben der transparenten nur 15</numerusform>
            <numerusform>Das Bild hat %n Farben; 4-Bit-Sprites zeigen neben der transparenten nur 15</numerusform>
        </translation>
    </message>
    <message>
        <source>The colours lie in several groups of 16 of the palette; 4-bit sprites show one group</source>
        <translation>Die Farben liegen in mehreren 16er-Gruppen der Palette; 4-Bit-Sprites zeigen nur eine Gruppe</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::SpriteList</name>
    <message>
        <source>Sprite</source>
        <translation>Sprite</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>Paste Image</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Add Sprite</source>
        <translation>Sprite hinzufügen</translation>
    </message>
    <message>
        <source>Sprite %1</source>
        <translation>Sprite %1</translation>
    </message>
    <message>
        <source>Add a sprite</source>
        <translation>Ein Sprite hinzufügen</translation>
    </message>
</context>
<context>
    <name>SpriteImport</name>
    <message>
        <source>Importing %1…</source>
        <translation>%1 wird importiert…</translation>
    </message>
</context>
<context>
    <name>SpriteListModel</name>
    <message>
        <source>Sprite %1</source>
        <translation>Sprite %1</translation>
    </message>
</context>
<context>
    <name>SpriteMenu</name>
    <message>
        <source>&amp;Sprites</source>
        <translation>&amp;Sprites</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>&amp;Palette wechseln</translation>
    </message>
    <message>
        <source>&amp;Export Data</source>
        <translation>&amp;Daten exportieren</translation>
    </message>
    <message>
        <source>Select a file to import</source>
        <translation>Zu importierende Datei auswählen</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp)</source>
        <translation>Bilder (*.png *.bmp)</translation>
    </message>
    <message>
        <source>Next sprites (*.spr)</source>
        <translation>Next-Sprites (*.spr)</translation>
    </message>
    <message>
        <source>Export Sprite Data</source>
        <translation>Spritedaten exportieren</translation>
    </message>
    <message>
        <source>Next Sprites (*.spr)</source>
        <translation>Next-Sprites (*.spr)</translation>
    </message>
</context>
<context>
    <name>SpriteWindow</name>
    <message>
        <source>Sprite Editor</source>
        <translation>Sprite-Editor</translation>
    </message>
    <message>
        <source>No sprites selected</source>
        <translation>Keine Sprites ausgewählt</translation>
    </message>
    <message>
        <source>Onion Skin</source>
        <translation>Zwiebelschalen</translation>
    </message>
    <message>
        <source>Show the sprite of the frame before faintly over this one</source>
        <translation>Das Sprite des vorigen Frames schwach über diesem anzeigen</translation>
    </message>
    <message>
        <source>Replace Colour in All Sprites</source>
        <translation>Farbe in allen Sprites ersetzen</translation>
    </message>
    <message>
        <source>Does that in all sprites of the bank</source>
        <translation>Wirkt auf alle Sprites der Bank</translation>
    </message>
    <message>
        <source>Pixels of this index are not drawn on the Next, whatever their colour</source>
        <translation>Pixel mit diesem Index zeichnet der Next nicht, welche Farbe sie auch haben</translation>
    </message>
    <message>
        <source>Transparent index</source>
        <translation>Transparenter Index</translation>
    </message>
    <message>
        <source>Add Sprite</source>
        <translation>Sprite hinzufügen</translation>
    </message>
    <message>
        <source>Delete Sprite</source>
        <translation>Sprite löschen</translation>
    </message>
    <message>
        <source>Clear Sprite</source>
        <translation>Sprite leeren</translation>
    </message>
    <message>
        <source>Copy Sprite</source>
        <translation>Sprite kopieren</translation>
    </message>
    <message>
        <source>Move Sprite</source>
        <translation>Sprite verschieben</translation>
    </message>
    <message>
        <source>Sprites: %1</source>
        <translation>Sprites: %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Gekachelt</translation>
    </message>
    <message>
        <source>No animation shows this sprite</source>
        <translation>Keine Animation zeigt dieses Sprite</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Farbe ersetzen</translation>
    </message>
    <message>
        <source>Transparent Index</source>
        <translation>Transparenter Index</translation>
    </message>
    <message>
        <source>Draw the first sprite here; the last place of the list below adds another</source>
        <translation>Zeichnen Sie hier das erste Sprite; der letzte Platz der Liste unten fügt ein weiteres hinzu</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>A double click in the Project dock opens an asset</source>
        <translation>Ein Doppelklick im Bereich „Projekt“ öffnet ein Asset</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Zuletzt verwendete Projekte</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Read the guide</source>
        <translation>Anleitung lesen</translation>
    </message>
    <message>
        <source>To look at and to play with</source>
        <translation>Zum Ansehen und Ausprobieren</translation>
    </message>
    <message>
        <source>The sample project</source>
        <translation>Das Beispielprojekt</translation>
    </message>
    <message>
        <source>A level, sprites and a title screen</source>
        <translation>Ein Level, Sprites und ein Titelbild</translation>
    </message>
</context>
<context>
    <name>TileAnimation</name>
    <message>
        <source>Blocks!</source>
        <translation>Blöcke!</translation>
    </message>
    <message>
        <source>%1 (Copy)</source>
        <translation>%1 (Kopie)</translation>
    </message>
</context>
<context>
    <name>TileAnimationDialog</name>
    <message>
        <source>New Map Objects</source>
        <translation>Neue Kartenobjekte</translation>
    </message>
    <message>
        <source>Create map objects: animations for maps</source>
        <translation>Kartenobjekte anlegen: Animationen für Karten</translation>
    </message>
    <message>
        <source>&amp;Tile set</source>
        <translation>&amp;Tileset</translation>
    </message>
    <message>
        <source>Map objects are made of the tiles of a tile set; please create a tile set first</source>
        <translation>Kartenobjekte bestehen aus den Tiles eines Tilesets; bitte zuerst ein Tileset anlegen</translation>
    </message>
</context>
<context>
    <name>TileAttributesEditor</name>
    <message>
        <source>Solid top</source>
        <translation>Oben fest</translation>
    </message>
    <message>
        <source>Solid left</source>
        <translation>Links fest</translation>
    </message>
    <message>
        <source>Solid right</source>
        <translation>Rechts fest</translation>
    </message>
    <message>
        <source>Solid bottom</source>
        <translation>Unten fest</translation>
    </message>
    <message>
        <source>Deadly</source>
        <translation>Tödlich</translation>
    </message>
    <message>
        <source>Collectible</source>
        <translation>Sammelbar</translation>
    </message>
    <message>
        <source>Ladder</source>
        <translation>Leiter</translation>
    </message>
    <message>
        <source>Door</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Solid on all edges</source>
        <translation>An allen Kanten fest</translation>
    </message>
    <message>
        <source>A number of your own for the game</source>
        <translation>Eine eigene Zahl für das Spiel</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>TileEditor::ExportDialog</name>
    <message>
        <source>Export Tiles</source>
        <translation>Tiles exportieren</translation>
    </message>
    <message>
        <source>&amp;Rotate</source>
        <translation>&amp;Drehen</translation>
    </message>
    <message>
        <source>Export the pixels of tiles</source>
        <translation>Die Pixel von Tiles exportieren</translation>
    </message>
    <message>
        <source>Writes the columns of a tile as its rows</source>
        <translation>Schreibt die Spalten eines Tiles als seine Zeilen</translation>
    </message>
    <message>
        <source>&amp;First tile</source>
        <translation>&amp;Erstes Tile</translation>
    </message>
    <message>
        <source>&amp;Last tile</source>
        <translation>&amp;Letztes Tile</translation>
    </message>
    <message>
        <source>Export Tiles: %1</source>
        <translation>Tiles exportieren: %1</translation>
    </message>
    <message>
        <source>The tile set has no tiles</source>
        <translation>Das Tileset hat keine Tiles</translation>
    </message>
    <message>
        <source>The first tile comes after the last one</source>
        <translation>Das erste Tile kommt nach dem letzten</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>&amp;Tiles</source>
        <translation>&amp;Tiles</translation>
    </message>
    <message>
        <source>&amp;New Tile Set</source>
        <translation>&amp;Neues Tileset</translation>
    </message>
    <message>
        <source>&amp;Create Animations</source>
        <translation>&amp;Animationen erstellen</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>&amp;Palette wechseln</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>Export &amp;Attributes</source>
        <translation>A&amp;ttribute exportieren</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>Ne&amp;xt Tile</source>
        <translation>Nä&amp;chstes Tile</translation>
    </message>
    <message>
        <source>&amp;Previous Tile</source>
        <translation>V&amp;origes Tile</translation>
    </message>
    <message>
        <source>Tile List &amp;Magnification</source>
        <translation>&amp;Vergrößerung der Tile-Liste</translation>
    </message>
    <message>
        <source>&amp;Spectrum Chars</source>
        <translation>&amp;Spectrum-Zeichen</translation>
    </message>
    <message>
        <source>Export Tiles</source>
        <translation>Tiles exportieren</translation>
    </message>
    <message>
        <source>Tile Data (*.bin)</source>
        <translation>Tiledaten (*.bin)</translation>
    </message>
    <message>
        <source>Export tile attributes</source>
        <translation>Tile-Attribute exportieren</translation>
    </message>
    <message>
        <source>ASM Code (*.asm)</source>
        <translation>ASM-Code (*.asm)</translation>
    </message>
    <message>
        <source>Binary Data (*.bin)</source>
        <translation>Binärdaten (*.bin)</translation>
    </message>
</context>
<context>
    <name>TilePickerGrid</name>
    <message>
        <source>Tiles</source>
        <translation>Tiles</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>Paste Image</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1x</translation>
    </message>
    <message>
        <source>Index: %1
Palette Offset: %2</source>
        <translation>Index: %1
Paletten-Offset: %2</translation>
    </message>
    <message>
        <source>Tile %1, palette offset %2</source>
        <translation>Tile %1, Paletten-Offset %2</translation>
    </message>
</context>
<context>
    <name>TilePickerTool</name>
    <message>
        <source>Tiles</source>
        <translation>Tiles</translation>
    </message>
    <message>
        <source>No active tile set</source>
        <translation>Kein aktives Tileset</translation>
    </message>
    <message>
        <source>Tiles: %1</source>
        <translation>Tiles: %1</translation>
    </message>
</context>
<context>
    <name>TileSet</name>
    <message>
        <source>Copy Tile</source>
        <translation>Tile kopieren</translation>
    </message>
    <message>
        <source>Delete Tile</source>
        <translation>Tile löschen</translation>
    </message>
    <message>
        <source>Insert Tile</source>
        <translation>Tile einfügen</translation>
    </message>
    <message>
        <source>Move Tile</source>
        <translation>Tile verschieben</translation>
    </message>
</context>
<context>
    <name>TileSetDialog</name>
    <message>
        <source>New Tile Set</source>
        <translation>Neues Tileset</translation>
    </message>
    <message>
        <source>Create a new tile set</source>
        <translation>Ein neues Tileset anlegen</translation>
    </message>
    <message>
        <source>&amp;High resolution</source>
        <translation>&amp;Hohe Auflösung</translation>
    </message>
    <message>
        <source>For the tilemap of 80 columns, whose pixels are half as wide</source>
        <translation>Für die Tilemap mit 80 Spalten, deren Pixel halb so breit sind</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>&amp;Tiles</source>
        <translation>&amp;Tiles</translation>
    </message>
    <message>
        <source>New palette of the same name</source>
        <translation>Neue Palette gleichen Namens</translation>
    </message>
</context>
<context>
    <name>TileWindow</name>
    <message>
        <source>Tile Editor</source>
        <translation>Tile-Editor</translation>
    </message>
    <message>
        <source>No tile set selected</source>
        <translation>Kein Tileset ausgewählt</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Tile</translation>
    </message>
    <message>
        <source>The group of 16 colours that the tile is drawn with</source>
        <translation>Die Gruppe von 16 Farben, mit der das Tile gezeichnet wird</translation>
    </message>
    <message>
        <source>Replace Colour in All Tiles</source>
        <translation>Farbe in allen Tiles ersetzen</translation>
    </message>
    <message>
        <source>Does that in all tiles of this palette offset</source>
        <translation>Wirkt auf alle Tiles mit diesem Paletten-Offset</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Paletten-Offset</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attribute</translation>
    </message>
    <message>
        <source>Palette Editor</source>
        <translation>Paletteneditor</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Gekachelt</translation>
    </message>
    <message>
        <source>On the Map</source>
        <translation>Auf der Karte</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>No map of this tile set is in front</source>
        <translation>Keine Karte dieses Tilesets ist im Vordergrund</translation>
    </message>
    <message>
        <source>The map in front does not show this tile</source>
        <translation>Die Karte im Vordergrund zeigt dieses Tile nicht</translation>
    </message>
    <message>
        <source>No animation shows this tile</source>
        <translation>Keine Animation zeigt dieses Tile</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Farbe ersetzen</translation>
    </message>
    <message>
        <source>Draw the first tile here: the left button paints with the foreground colour, the right one with the background colour</source>
        <translation>Zeichnen Sie hier das erste Tile: Die linke Taste malt mit der Vordergrundfarbe, die rechte mit der Hintergrundfarbe</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ToolBarKeys</name>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
</context>
<context>
    <name>ToolPalette</name>
    <message>
        <source>Draw</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Filled rectangle</source>
        <translation>Gefülltes Rechteck</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Filled circle</source>
        <translation>Gefüllter Kreis</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Toggle Grid</source>
        <translation>Raster ein/aus</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Rotate clockwise</source>
        <translation>Im Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>Rotate anticlockwise</source>
        <translation>Gegen den Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Runter</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
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
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Flip top to bottom</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Reset all palette offsets</source>
        <translation>Alle Paletten-Offsets zurücksetzen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Play Animations</source>
        <translation>Animationen abspielen</translation>
    </message>
    <message>
        <source>Stop Animations</source>
        <translation>Animationen anhalten</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>An Fenster anpassen</translation>
    </message>
    <message>
        <source>Place animations</source>
        <translation>Animationen platzieren</translation>
    </message>
    <message>
        <source>Place sprites</source>
        <translation>Sprites platzieren</translation>
    </message>
    <message>
        <source>Shrink to fit</source>
        <translation>Auf Inhalt verkleinern</translation>
    </message>
    <message>
        <source>Toggle viewport</source>
        <translation>Sichtfenster ein/aus</translation>
    </message>
    <message>
        <source>Paint terrain</source>
        <translation>Terrain malen</translation>
    </message>
    <message>
        <source>Random tiles of the stamp</source>
        <translation>Zufällige Tiles des Stempels</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
</context>
<context>
    <name>UnsavedMark</name>
    <message>
        <source>● Unsaved</source>
        <translation>● Nicht gespeichert</translation>
    </message>
    <message>
        <source>The project has unsaved changes</source>
        <translation>Das Projekt hat nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>The project has changes that are not saved yet</source>
        <translation>Das Projekt hat Änderungen, die noch nicht gespeichert sind</translation>
    </message>
</context>
<context>
    <name>Update::UpdateChecker</name>
    <message>
        <source>The update feed is too large</source>
        <translation>Der Update-Feed ist zu groß</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Release Notes…</source>
        <translation>Versionshinweise…</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Herunterladen…</translation>
    </message>
    <message>
        <source>Quenmora — update available</source>
        <translation>Quenmora – Update verfügbar</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Quenmora %1 is available</source>
        <translation>Quenmora %1 ist verfügbar</translation>
    </message>
    <message>
        <source>You have %1 (built %2).
The new version was released %3.</source>
        <translation>Sie haben %1 (erstellt am %2).
Die neue Version erschien am %3.</translation>
    </message>
</context>
<context>
    <name>UpdatePresenter</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Suche nach Updates…</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Update verfügbar: %1</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>Quenmora ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Quenmora %1 is up to date.</source>
        <translation>Quenmora %1 ist auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>Could not reach the update server</source>
        <translation>Der Update-Server ist nicht erreichbar</translation>
    </message>
    <message>
        <source>Could not reach the update server.
%1</source>
        <translation>Der Update-Server ist nicht erreichbar.
%1</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>S&amp;cratch Image Editor</source>
        <translation>&amp;Skizzeneditor</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>S&amp;tatusleiste</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>A&amp;nordnung zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
</context>
<context>
    <name>WriteProblem</name>
    <message>
        <source>There is no folder %1</source>
        <translation>Es gibt keinen Ordner %1</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 ist ein Ordner</translation>
    </message>
    <message>
        <source>%1 is a pipe or a device, not a file</source>
        <translation>%1 ist eine Pipe oder ein Gerät, keine Datei</translation>
    </message>
    <message>
        <source>You may not write to %1</source>
        <translation>Sie dürfen nicht in %1 schreiben</translation>
    </message>
    <message>
        <source>%1 could not be written to its end; there may be no room left</source>
        <translation>%1 konnte nicht vollständig geschrieben werden; vielleicht ist kein Platz mehr</translation>
    </message>
    <message>
        <source>No file can be called %1: a slash would lead into another folder. Another name of the asset helps.</source>
        <translation>Keine Datei kann %1 heißen: Ein Schrägstrich würde in einen anderen Ordner führen. Ein anderer Name des Assets hilft.</translation>
    </message>
    <message>
        <source>No file can be called that: %1. Another name of the asset helps.</source>
        <translation>Keine Datei kann so heißen: %1. Ein anderer Name des Assets hilft.</translation>
    </message>
</context>
</TS>
