<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en_GB">
<context>
    <name>AboutBox</name>
    <message>
        <source>Licence of the icons</source>
        <translation>Licence ikon</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>O programu %1</translation>
    </message>
    <message>
        <source>An editor for the graphics of ZX Spectrum Next games: palettes, tiles, maps, sprites, animations and pictures.</source>
        <translation>Editor grafiky pro hry na ZX Spectrum Next: palety, dlaždice, mapy, sprity, animace a obrázky.</translation>
    </message>
    <message>
        <source>Built with Qt %1. Icons by Lucide.</source>
        <translation>Vytvořeno v Qt %1. Ikony: Lucide.</translation>
    </message>
</context>
<context>
    <name>AddOutputsDialog</name>
    <message>
        <source>Add Outputs</source>
        <translation>Přidat výstupy</translation>
    </message>
    <message>
        <source>Which assets does the game take?</source>
        <translation>Které položky hra načítá?</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Položka</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formát</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Assets</source>
        <translation>Položky</translation>
    </message>
    <message>
        <source>The project&apos;s folder</source>
        <translation>Složka projektu</translation>
    </message>
    <message>
        <source>A folder below the project&apos;s, with / between folders</source>
        <translation>Složka uvnitř složky projektu; složky se oddělují znakem /</translation>
    </message>
    <message>
        <source>&amp;Source text</source>
        <translation>&amp;Zdrojový kód</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Složka</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Form of %1</source>
        <translation>Formát: %1</translation>
    </message>
    <message>
        <source>The usual ones</source>
        <translation>Obvyklé</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Přidat</translation>
    </message>
    <message>
        <source>&amp;Add 1 Output</source>
        <translation>&amp;Přidat 1 výstup</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Add %Ln Outputs</source>
        <translation>
            <numerusform>&amp;Přidat %Ln výstup</numerusform>
            <numerusform>&amp;Přidat %Ln výstupy</numerusform>
            <numerusform>&amp;Přidat %Ln výstupů</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>Exportováno: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Holds nothing yet</source>
        <translation>Zatím nic neobsahuje</translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>Nelze: %1</translation>
    </message>
    <message>
        <source>The project has no assets yet</source>
        <translation>Projekt zatím nemá žádné položky</translation>
    </message>
    <message>
        <source>Please tick what is to be exported</source>
        <translation>Zaškrtněte, co se má exportovat</translation>
    </message>
    <message numerus="yes">
        <source>A recipe can have %n outputs</source>
        <translation>
            <numerusform>Recept může mít %n výstup</numerusform>
            <numerusform>Recept může mít %n výstupy</numerusform>
            <numerusform>Recept může mít %n výstupů</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AnimationControlWidget</name>
    <message>
        <source>Goto first frame</source>
        <translation>Na první snímek</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Předchozí snímek</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Přehrát</translation>
    </message>
    <message>
        <source>Pause playback</source>
        <translation>Pozastavit přehrávání</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Další snímek</translation>
    </message>
    <message>
        <source>Goto last frame</source>
        <translation>Na poslední snímek</translation>
    </message>
    <message>
        <source>Add a frame</source>
        <translation>Přidat snímek</translation>
    </message>
    <message>
        <source>Delete current frame</source>
        <translation>Odstranit aktuální snímek</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Smyčka</translation>
    </message>
    <message>
        <source>Ping pong</source>
        <translation>Tam a zpět</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Snímek %1 z %2</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationListWidget</name>
    <message>
        <source>Animations</source>
        <translation>Animace</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Add a new animation</source>
        <translation>Přidat novou animaci</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Delete the selected animation</source>
        <translation>Odstranit vybranou animaci</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Duplikovat</translation>
    </message>
    <message>
        <source>Copy the selected animation</source>
        <translation>Vytvořit kopii vybrané animace</translation>
    </message>
    <message numerus="yes">
        <source>%1
%n frame(s) [%2x%3]</source>
        <translation>
            <numerusform>%1
%n snímek [%2x%3]</numerusform>
            <numerusform>%1
%n snímky [%2x%3]</numerusform>
            <numerusform>%1
%n snímků [%2x%3]</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no animations yet. Add below makes the first one.</source>
        <translation>Zatím tu nejsou žádné animace. První vytvoří „Přidat“ níže.</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationToolBar</name>
    <message>
        <source>Animation</source>
        <translation>Animace</translation>
    </message>
    <message>
        <source>The name of the animation</source>
        <translation>Název animace</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>W:</source>
        <translation>Š:</translation>
    </message>
    <message>
        <source>H:</source>
        <translation>V:</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Šířka</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Výška</translation>
    </message>
    <message>
        <source>Delay:</source>
        <translation>Prodleva:</translation>
    </message>
    <message>
        <source>Set the delay between animation frames
0 = No Delay, 1 = 25fps, 2 = 12.5fps</source>
        <translation>Prodleva mezi snímky animace
0 = žádná, 1 = 25 sn./s, 2 = 12,5 sn./s</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádné</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationView</name>
    <message>
        <source>Animations</source>
        <translation>Animace</translation>
    </message>
    <message>
        <source>No animation selected</source>
        <translation>Není vybrána animace</translation>
    </message>
    <message>
        <source>Animation: %1</source>
        <translation>Animace: %1</translation>
    </message>
    <message>
        <source>Delete?</source>
        <translation>Odstranit?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this animation?</source>
        <translation>Opravdu chcete tuto animaci odstranit?</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::EditorWidget</name>
    <message>
        <source>Onion Skin</source>
        <translation>Cibulová slupka</translation>
    </message>
    <message>
        <source>Index:</source>
        <translation>Index:</translation>
    </message>
    <message>
        <source>The index in the selected cell</source>
        <translation>Index ve vybrané buňce</translation>
    </message>
    <message>
        <source>Show the frame before faintly over this one</source>
        <translation>Předchozí snímek slabě prosvítá přes tento</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::FrameEditorWidget</name>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Snímek</translation>
    </message>
    <message>
        <source>Cells of the frame</source>
        <translation>Buňky snímku</translation>
    </message>
    <message>
        <source>Rotated</source>
        <translation>Otočeno</translation>
    </message>
    <message>
        <source>Flipped</source>
        <translation>Překlopeno svisle</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Překlopeno vodorovně</translation>
    </message>
    <message>
        <source>Index:	%1
Offset:	%2
Flip	%3
Mirror:	%4
Rotate:	%5</source>
        <translation>Index:	%1
Posun:	%2
Překlopeno svisle:	%3
Překlopeno vodorovně:	%4
Otočeno:	%5</translation>
    </message>
    <message>
        <source>Column %1, row %2, sprite %3</source>
        <translation>Sloupec %1, řádek %2, sprite %3</translation>
    </message>
    <message>
        <source>Column %1, row %2, tile %3</source>
        <translation>Sloupec %1, řádek %2, dlaždice %3</translation>
    </message>
</context>
<context>
    <name>AssetChooser</name>
    <message>
        <source>No palettes</source>
        <translation>Žádné palety</translation>
    </message>
    <message>
        <source>No tile sets</source>
        <translation>Žádné sady dlaždic</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádné</translation>
    </message>
    <message>
        <source>There is a palette of this name already; choose it, or another name</source>
        <translation>Paleta s tímto názvem už existuje; vyberte ji, nebo zvolte jiný název</translation>
    </message>
</context>
<context>
    <name>AssetKinds</name>
    <message>
        <source>Palettes</source>
        <translation>Palety</translation>
    </message>
    <message>
        <source>Tile Sets</source>
        <translation>Sady dlaždic</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Mapy</translation>
    </message>
    <message>
        <source>Map Objects</source>
        <translation>Objekty mapy</translation>
    </message>
    <message>
        <source>Sprite Banks</source>
        <translation>Banky spritů</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Obrázky</translation>
    </message>
</context>
<context>
    <name>BlockEditor::AnimationEditorWidget</name>
    <message>
        <source>Palette offset:</source>
        <translation>Posun palety:</translation>
    </message>
    <message>
        <source>The palette offset of the selected cell</source>
        <translation>Posun palety vybrané buňky</translation>
    </message>
    <message>
        <source>Update palette offsets to default values</source>
        <translation>Vrátit posuny palety na výchozí hodnoty</translation>
    </message>
</context>
<context>
    <name>BlockEditor::View</name>
    <message>
        <source>New Object</source>
        <translation>Nový objekt</translation>
    </message>
</context>
<context>
    <name>BlockEditorToolBar</name>
    <message>
        <source>Set the frame width in tiles</source>
        <translation>Šířka snímku v dlaždicích</translation>
    </message>
    <message>
        <source>Set the frame height in tiles</source>
        <translation>Výška snímku v dlaždicích</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normální</translation>
    </message>
    <message>
        <source>Horizontal Platform</source>
        <translation>Vodorovná plošina</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>How the game moves the animation</source>
        <translation>Jak hra animací pohybuje</translation>
    </message>
</context>
<context>
    <name>BlockSelectorWindow</name>
    <message>
        <source>Map Objects</source>
        <translation>Objekty mapy</translation>
    </message>
    <message>
        <source>No active tile set</source>
        <translation>Žádná aktivní sada dlaždic</translation>
    </message>
    <message>
        <source>The tile set has no map objects</source>
        <translation>Sada dlaždic nemá objekty mapy</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Paint canvas</source>
        <translation>Malířské plátno</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Vyjmout</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopírovat</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Vložit</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Vybrat vše</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Zrušit výběr</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Guma</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Vyplnit</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Kreslit</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Přesunout</translation>
    </message>
</context>
<context>
    <name>CanvasKeys</name>
    <message>
        <source>Column %1, row %2, colour %3, %4</source>
        <translation>Sloupec %1, řádek %2, barva %3, %4</translation>
    </message>
</context>
<context>
    <name>CircleCanvasTool</name>
    <message>
        <source>Filled Circle</source>
        <translation>Vyplněný kruh</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kružnice</translation>
    </message>
</context>
<context>
    <name>ColourCyclesDialog</name>
    <message>
        <source>&amp;Add Selection</source>
        <translation>&amp;Přidat výběr</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Odebrat</translation>
    </message>
    <message>
        <source>Ranges of the palette whose colours go round</source>
        <translation>Rozsahy palety, jejichž barvy obíhají</translation>
    </message>
    <message>
        <source>How many frames of the machine&apos;s screen, fifty a second, pass from step to step</source>
        <translation>Kolik snímků obrazovky stroje, padesát za sekundu, uplyne mezi kroky</translation>
    </message>
    <message>
        <source>To higher entries</source>
        <translation>K vyšším políčkům</translation>
    </message>
    <message>
        <source>To lower entries</source>
        <translation>K nižším políčkům</translation>
    </message>
    <message>
        <source>Where colours move</source>
        <translation>Kam se barvy posouvají</translation>
    </message>
    <message>
        <source>The colours of a range go round: each moves to the next entry, and the one that leaves at one end comes in at the other. Neither palette nor pictures change.</source>
        <translation>Barvy rozsahu obíhají: každá se posune na další políčko a ta, která na jednom konci odejde, přijde na druhém. Paleta ani obrázky se nemění.</translation>
    </message>
    <message>
        <source>First entry</source>
        <translation>První políčko</translation>
    </message>
    <message>
        <source>Last entry</source>
        <translation>Poslední políčko</translation>
    </message>
    <message>
        <source>Frames a step</source>
        <translation>Snímků na krok</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Směr</translation>
    </message>
    <message>
        <source>Colour Cycles of %1</source>
        <translation>Barevné cykly: %1</translation>
    </message>
    <message>
        <source>Colour Cycles</source>
        <translation>Barevné cykly</translation>
    </message>
    <message>
        <source>%1 to %2, to lower entries</source>
        <translation>%1 až %2, k nižším políčkům</translation>
    </message>
    <message>
        <source>%1 to %2, to higher entries</source>
        <translation>%1 až %2, k vyšším políčkům</translation>
    </message>
    <message>
        <source>%1 steps a second</source>
        <translation>Kroků za sekundu: %1</translation>
    </message>
    <message>
        <source>Lets the colours of the entries go round that are selected in the palette</source>
        <translation>Nechá obíhat barvy políček vybraných v paletě</translation>
    </message>
    <message>
        <source>Select two or more entries in the palette that are in no range yet</source>
        <translation>Vyberte v paletě dvě nebo více políček, která ještě nejsou v žádném rozsahu</translation>
    </message>
</context>
<context>
    <name>ColourCycling</name>
    <message>
        <source>&amp;Play Colour Cycles</source>
        <translation>Přehrávat &amp;barevné cykly</translation>
    </message>
    <message>
        <source>Lets the colours of palettes&apos; ranges go round in all views; nothing is changed</source>
        <translation>Nechá obíhat barvy rozsahů palet ve všech pohledech; nic se nemění</translation>
    </message>
</context>
<context>
    <name>ColourEditor</name>
    <message>
        <source>Colour before</source>
        <translation>Původní barva</translation>
    </message>
    <message>
        <source>Edited colour</source>
        <translation>Upravená barva</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorita</translation>
    </message>
    <message>
        <source>Layer 2 priority
If set, this colour will always appear on top</source>
        <translation>Priorita Layer 2
Je-li zapnuta, bude tato barva vždy navrchu</translation>
    </message>
    <message>
        <source>Apply the colour</source>
        <translation>Použít barvu</translation>
    </message>
    <message>
        <source>Go back to the colour before</source>
        <translation>Vrátit se k původní barvě</translation>
    </message>
</context>
<context>
    <name>ColourPalette</name>
    <message>
        <source>Colours</source>
        <translation>Barvy</translation>
    </message>
    <message>
        <source>Index: %1
Transparent</source>
        <translation>Index: %1
Průhledná</translation>
    </message>
    <message>
        <source>Index: %1</source>
        <translation>Index: %1</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Barva %1, %2, průhledná</translation>
    </message>
    <message>
        <source>Colour %1, %2, background</source>
        <translation>Barva %1, %2, pozadí</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Barva %1, %2</translation>
    </message>
</context>
<context>
    <name>ColourSelector</name>
    <message>
        <source>Colours</source>
        <translation>Barvy</translation>
    </message>
    <message>
        <source>Left button: foreground, right button: background</source>
        <translation>Levé tlačítko: popředí, pravé tlačítko: pozadí</translation>
    </message>
    <message>
        <source>Transparent on maps</source>
        <translation>Průhledná na mapách</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Barva %1, %2, průhledná</translation>
    </message>
    <message>
        <source>Colour %1, %2, background</source>
        <translation>Barva %1, %2, pozadí</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Barva %1, %2</translation>
    </message>
</context>
<context>
    <name>CommandDesk</name>
    <message>
        <source>Your keyboard shortcuts could not be read. All commands have their usual keys.</source>
        <translation>Vaše klávesové zkratky se nepodařilo načíst. Všechny příkazy mají obvyklé klávesy.</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Klávesové zkratky</translation>
    </message>
    <message>
        <source>%1
%2 was kept aside under a name that ends in .bad.</source>
        <translation>%1
Soubor %2 byl odložen pod názvem, který končí na .bad.</translation>
    </message>
    <message>
        <source>Your keyboard shortcuts could not be saved. They hold until you quit.</source>
        <translation>Vaše klávesové zkratky se nepodařilo uložit. Platí, dokud program neukončíte.</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Poslední projekty</translation>
    </message>
    <message>
        <source>Tile %1</source>
        <translation>Dlaždice %1</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Command Palette</source>
        <translation>Paleta příkazů</translation>
    </message>
    <message>
        <source>Type a few letters of a command, an asset or a tile</source>
        <translation>Napište několik písmen příkazu, položky nebo dlaždice</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>What matches</source>
        <translation>Nalezeno</translation>
    </message>
</context>
<context>
    <name>CommandPlaces</name>
    <message>
        <source>Window</source>
        <translation>Okno</translation>
    </message>
    <message>
        <source>Tool Bars</source>
        <translation>Panely nástrojů</translation>
    </message>
    <message>
        <source>Map Editor</source>
        <translation>Editor map</translation>
    </message>
    <message>
        <source>Layers of the Map</source>
        <translation>Vrstvy mapy</translation>
    </message>
    <message>
        <source>Pixel Editors</source>
        <translation>Editory pixelů</translation>
    </message>
    <message>
        <source>Animation Editors</source>
        <translation>Editory animací</translation>
    </message>
    <message>
        <source>List of Animations</source>
        <translation>Seznam animací</translation>
    </message>
    <message>
        <source>Tile Picker</source>
        <translation>Výběr dlaždic</translation>
    </message>
    <message>
        <source>Palette Editor</source>
        <translation>Editor palety</translation>
    </message>
    <message>
        <source>%1 ▸ %2</source>
        <translation>%1 ▸ %2</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprity</translation>
    </message>
</context>
<context>
    <name>CreationDialog</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Název</translation>
    </message>
    <message>
        <source>Please enter a name</source>
        <translation>Zadejte název</translation>
    </message>
</context>
<context>
    <name>DeletionQuestion</name>
    <message>
        <source>1 animation</source>
        <translation>1 animace</translation>
    </message>
    <message numerus="yes">
        <source>%n animations</source>
        <translation>
            <numerusform>%n animace</numerusform>
            <numerusform>%n animace</numerusform>
            <numerusform>%n animací</numerusform>
        </translation>
    </message>
    <message>
        <source>1 placed sprite</source>
        <translation>1 umístěný sprite</translation>
    </message>
    <message numerus="yes">
        <source>%n placed sprites</source>
        <translation>
            <numerusform>%n umístěný sprite</numerusform>
            <numerusform>%n umístěné sprity</numerusform>
            <numerusform>%n umístěných spritů</numerusform>
        </translation>
    </message>
    <message>
        <source>Lost with it: %1.</source>
        <translation>Zároveň se ztratí: %1.</translation>
    </message>
    <message>
        <source>1 placed animation</source>
        <translation>1 umístěná animace</translation>
    </message>
    <message numerus="yes">
        <source>%n placed animations</source>
        <translation>
            <numerusform>%n umístěná animace</numerusform>
            <numerusform>%n umístěné animace</numerusform>
            <numerusform>%n umístěných animací</numerusform>
        </translation>
    </message>
    <message>
        <source>Left without tiles: %1.</source>
        <translation>Bez dlaždic zůstanou: %1.</translation>
    </message>
    <message>
        <source>No longer shown: %1 on 1 map.</source>
        <translation>Přestane se zobrazovat: %1 na 1 mapě.</translation>
    </message>
    <message numerus="yes">
        <source>No longer shown: %1 on %n maps.</source>
        <translation>
            <numerusform>Přestane se zobrazovat: %1 na %n mapě.</numerusform>
            <numerusform>Přestane se zobrazovat: %1 na %n mapách.</numerusform>
            <numerusform>Přestane se zobrazovat: %1 na %n mapách.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no undo for this.</source>
        <translation>Tento krok nelze vzít zpět.</translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation>Odstranění: %1</translation>
    </message>
    <message>
        <source>Delete “%2” (%1)?</source>
        <translation>Odstranit „%2“ (%1)?</translation>
    </message>
</context>
<context>
    <name>DepthChooser</name>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bitů, 256 barev</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bity, 16 barev</translation>
    </message>
</context>
<context>
    <name>DockTabs</name>
    <message>
        <source>Docks</source>
        <translation>Panely</translation>
    </message>
</context>
<context>
    <name>DocumentTabView</name>
    <message>
        <source>Open documents</source>
        <translation>Otevřené dokumenty</translation>
    </message>
    <message>
        <source>&amp;Close Tab</source>
        <translation>&amp;Zavřít kartu</translation>
    </message>
    <message>
        <source>Close &amp;Other Tabs</source>
        <translation>Zavřít &amp;ostatní karty</translation>
    </message>
    <message>
        <source>Scratch Image Editor</source>
        <translation>Editor náčrtníku</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>Úpr&amp;avy</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Vyj&amp;mout</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopírovat</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>V&amp;ložit</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Vybrat &amp;vše</translation>
    </message>
    <message>
        <source>C&amp;lear Selection</source>
        <translation>Zr&amp;ušit výběr</translation>
    </message>
</context>
<context>
    <name>EditRecorder</name>
    <message>
        <source>Edit Frames</source>
        <translation>Úprava snímků</translation>
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
        <translation>Položka „%1“ neexistuje</translation>
    </message>
    <message>
        <source>“%1” is the name of several assets: use an id (%2)</source>
        <translation>„%1“ je název několika položek: použijte id (%2)</translation>
    </message>
    <message>
        <source>quenmora-export --help tells what it understands</source>
        <translation>Nápovědu vypíše quenmora-export --help</translation>
    </message>
    <message>
        <source>Options of all forms:</source>
        <translation>Volby všech formátů:</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Takový soubor neexistuje</translation>
    </message>
    <message>
        <source>The project has no recipe; File &gt; Export Project in the editor makes one</source>
        <translation>Projekt nemá recept; vytvoří ho v editoru příkaz Soubor &gt; Exportovat projekt</translation>
    </message>
    <message numerus="yes">
        <source>Interrupted: %n outputs were not looked at</source>
        <translation>
            <numerusform>Přerušeno: %n výstup nebyl zkontrolován</numerusform>
            <numerusform>Přerušeno: %n výstupy nebyly zkontrolovány</numerusform>
            <numerusform>Přerušeno: %n výstupů nebylo zkontrolováno</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no form “%1”</source>
        <translation>Formát „%1“ neexistuje</translation>
    </message>
    <message>
        <source>This is the project itself</source>
        <translation>Toto je samotný projekt</translation>
    </message>
    <message>
        <source>This file is exported, or exported from</source>
        <translation>Tento soubor se exportuje, nebo se z něj exportuje</translation>
    </message>
    <message>
        <source>make cannot be told of “%1”: its name has characters that end names</source>
        <translation>Programu make nelze předat „%1“: název obsahuje znaky, které názvy ukončují</translation>
    </message>
    <message>
        <source>What there was to say could not be written</source>
        <translation>Výpis se nepodařilo zapsat</translation>
    </message>
    <message>
        <source>There is nothing in it that a picture could show</source>
        <translation>Není v něm nic, co by obrázek mohl ukázat</translation>
    </message>
    <message>
        <source>No picture could be made</source>
        <translation>Obrázek se nepodařilo vytvořit</translation>
    </message>
</context>
<context>
    <name>ExportMessages</name>
    <message numerus="yes">
        <source>Exported %1 to %2 (%Ln bytes)</source>
        <translation>
            <numerusform>%1 exportováno do %2 (%Ln bajt)</numerusform>
            <numerusform>%1 exportováno do %2 (%Ln bajty)</numerusform>
            <numerusform>%1 exportováno do %2 (%Ln bajtů)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln bytes)</source>
        <translation>
            <numerusform>%1 (%Ln bajt)</numerusform>
            <numerusform>%1 (%Ln bajty)</numerusform>
            <numerusform>%1 (%Ln bajtů)</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported to %1: %2</source>
        <translation>Exportováno do %1: %2</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Exporting %1…</source>
        <translation>Exportuje se %1…</translation>
    </message>
    <message>
        <source>Exporting the project…</source>
        <translation>Exportuje se projekt…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Zastavit</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Export projektu</translation>
    </message>
</context>
<context>
    <name>ExportProjectDialog</name>
    <message>
        <source>Preview</source>
        <translation>Náhled</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Export projektu</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Přidat…</translation>
    </message>
    <message>
        <source>Adds assets of the project</source>
        <translation>Přidá položky projektu</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Upravit…</translation>
    </message>
    <message>
        <source>Changes form, options and file</source>
        <translation>Změní formát, volby a soubor</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>&amp;Duplikovat</translation>
    </message>
    <message>
        <source>Adds a copy, for another form or file</source>
        <translation>Přidá kopii pro jiný formát nebo soubor</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Odebrat</translation>
    </message>
    <message>
        <source>Takes it out of the recipe; its file stays</source>
        <translation>Vyřadí výstup z receptu; jeho soubor zůstane</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Výstupy</translation>
    </message>
    <message>
        <source>The game takes nothing of this project yet.

Add palettes, tiles, maps with what is placed on them, sprites, animations and images, each in the form that the game loads. From then on one key writes all that has changed.</source>
        <translation>Hra zatím z tohoto projektu nic nenačítá.

Přidejte palety, dlaždice, mapy s tím, co je na nich umístěno, sprity, animace a obrázky, vše ve formátu, který hra načítá. Pak stačí jedna klávesa a zapíše se vše, co se změnilo.</translation>
    </message>
    <message>
        <source>&amp;Add Assets…</source>
        <translation>Přidat po&amp;ložky…</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>&amp;Exportovat</translation>
    </message>
    <message>
        <source>Saves the recipe and writes what is new or changed</source>
        <translation>Uloží recept a zapíše, co je nové nebo změněné</translation>
    </message>
    <message>
        <source>Saves the recipe beside the project and writes nothing else</source>
        <translation>Uloží recept vedle projektu a nic jiného nezapíše</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>1 output</source>
        <translation>1 výstup</translation>
    </message>
    <message numerus="yes">
        <source>%Ln outputs</source>
        <translation>
            <numerusform>%Ln výstup</numerusform>
            <numerusform>%Ln výstupy</numerusform>
            <numerusform>%Ln výstupů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln bajt</numerusform>
            <numerusform>%Ln bajty</numerusform>
            <numerusform>%Ln bajtů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln new</source>
        <translation>
            <numerusform>%Ln nový</numerusform>
            <numerusform>%Ln nové</numerusform>
            <numerusform>%Ln nových</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln změněný</numerusform>
            <numerusform>%Ln změněné</numerusform>
            <numerusform>%Ln změněných</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unchanged</source>
        <translation>
            <numerusform>%Ln beze změny</numerusform>
            <numerusform>%Ln beze změny</numerusform>
            <numerusform>%Ln beze změny</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cannot be</source>
        <translation>
            <numerusform>%Ln nelze</numerusform>
            <numerusform>%Ln nelze</numerusform>
            <numerusform>%Ln nelze</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln to be looked at</source>
        <translation>
            <numerusform>%Ln ke kontrole</numerusform>
            <numerusform>%Ln ke kontrole</numerusform>
            <numerusform>%Ln ke kontrole</numerusform>
        </translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Náhled: %1</translation>
    </message>
</context>
<context>
    <name>ExportQuestion</name>
    <message>
        <source>Save the project first?</source>
        <translation>Nejdřív uložit projekt?</translation>
    </message>
    <message>
        <source>The files for the game are written beside the project&apos;s file, and it has none yet.</source>
        <translation>Soubory pro hru se zapisují vedle souboru projektu, a ten ještě neexistuje.</translation>
    </message>
    <message>
        <source>&amp;Save Project…</source>
        <translation>&amp;Uložit projekt…</translation>
    </message>
    <message>
        <source>The recipe of this project cannot be used:
%1</source>
        <translation>Recept tohoto projektu nelze použít:
%1</translation>
    </message>
    <message>
        <source>Mend the file, or start with an empty recipe: the file is then kept as %1.</source>
        <translation>Opravte soubor, nebo začněte s prázdným receptem: soubor pak zůstane zachován jako %1.</translation>
    </message>
    <message>
        <source>&amp;Start Anew</source>
        <translation>&amp;Začít znovu</translation>
    </message>
    <message>
        <source>Another program changed the recipe of this project:
%1</source>
        <translation>Jiný program změnil recept tohoto projektu:
%1</translation>
    </message>
    <message>
        <source>Saving it from here loses that change.</source>
        <translation>Uložením odsud se tato změna ztratí.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Nahradit</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Export projektu</translation>
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
        <translation>1 soubor</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln soubor</numerusform>
            <numerusform>%Ln soubory</numerusform>
            <numerusform>%Ln souborů</numerusform>
        </translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 bajt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln bajt</numerusform>
            <numerusform>%Ln bajty</numerusform>
            <numerusform>%Ln bajtů</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing to export: 1 file is unchanged in %1</source>
        <translation>Není co exportovat: 1 soubor beze změny v %1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing to export: %Ln files are unchanged in %1</source>
        <translation>
            <numerusform>Není co exportovat: %Ln soubor beze změny v %1</numerusform>
            <numerusform>Není co exportovat: %Ln soubory beze změny v %1</numerusform>
            <numerusform>Není co exportovat: %Ln souborů beze změny v %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>Exportováno: %1</translation>
    </message>
    <message>
        <source>Exported nothing</source>
        <translation>Nic se neexportovalo</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln unchanged</source>
        <translation>
            <numerusform>%1, %Ln beze změny</numerusform>
            <numerusform>%1, %Ln beze změny</numerusform>
            <numerusform>%1, %Ln beze změny</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln failed</source>
        <translation>
            <numerusform>%1, neúspěšné: %Ln</numerusform>
            <numerusform>%1, neúspěšné: %Ln</numerusform>
            <numerusform>%1, neúspěšné: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 do %2</translation>
    </message>
    <message>
        <source>%1, to %2</source>
        <translation>%1, do %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Zastaveno: %1</translation>
    </message>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… a %Ln další</numerusform>
            <numerusform>… a %Ln další</numerusform>
            <numerusform>… a %Ln dalších</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExtrasFile</name>
    <message>
        <source>it is no file of at most 16 MiB</source>
        <translation>není to soubor o velikosti nejvýše 16 MiB</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>řádek %1: %2</translation>
    </message>
    <message>
        <source>it holds no object</source>
        <translation>neobsahuje žádný objekt</translation>
    </message>
</context>
<context>
    <name>FileImport</name>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… a %n další</numerusform>
            <numerusform>… a %n další</numerusform>
            <numerusform>… a %n dalších</numerusform>
        </translation>
    </message>
    <message>
        <source>The file could not be imported</source>
        <translation>Soubor se nepodařilo importovat</translation>
    </message>
    <message>
        <source>Some files could not be imported</source>
        <translation>Některé soubory se nepodařilo importovat</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Imported %1: %2</source>
        <translation>Importován soubor %1: %2</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Soubor</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nový</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Otevřít</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>Posl&amp;ední</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Uložit</translation>
    </message>
    <message>
        <source>Save &amp;As</source>
        <translation>Uložit j&amp;ako</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zavřít</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importovat…</translation>
    </message>
    <message>
        <source>Looks at files of any kind, shows what they are, and makes assets of them</source>
        <translation>Prohlédne soubory všech druhů, ukáže, co obsahují, a vytvoří z nich položky</translation>
    </message>
    <message>
        <source>&amp;Export Project…</source>
        <translation>E&amp;xportovat projekt…</translation>
    </message>
    <message>
        <source>Export A&amp;gain</source>
        <translation>Expo&amp;rtovat znovu</translation>
    </message>
    <message>
        <source>Shows what the game takes of this project, in which forms and files, and writes it</source>
        <translation>Ukáže, co hra z tohoto projektu načítá, v jakých formátech a souborech, a zapíše to</translation>
    </message>
    <message>
        <source>Writes what has changed of the files for the game, without a dialog</source>
        <translation>Zapíše, co se v souborech pro hru změnilo, bez dialogu</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>&amp;Předvolby</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>U&amp;končit</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Otevřít projekt</translation>
    </message>
    <message>
        <source>Project file (*.quenmora)</source>
        <translation>Soubor projektu (*.quenmora)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Files of the Next (*.pal *.npl *.nxp *.nxt *.til *.ch8 *.map *.nxm *.nxb *.spr *.nxi *.sl2 *.slr *.bin)</source>
        <translation>Soubory pro Next (*.pal *.npl *.nxp *.nxt *.til *.ch8 *.map *.nxm *.nxb *.spr *.nxi *.sl2 *.slr *.bin)</translation>
    </message>
    <message>
        <source>Sprites of Aseprite (*.aseprite *.ase)</source>
        <translation>Sprity Aseprite (*.aseprite *.ase)</translation>
    </message>
    <message>
        <source>Palettes (*.gpl *.pal *.act *.hex)</source>
        <translation>Palety (*.gpl *.pal *.act *.hex)</translation>
    </message>
    <message>
        <source>Pictures (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Obrázky (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádné</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Vymazat</translation>
    </message>
    <message>
        <source>Maps and tile sets of Tiled (*.tmx *.tmj *.tsx *.tsj)</source>
        <translation>Mapy a sady dlaždic z Tiled (*.tmx *.tmj *.tsx *.tsj)</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>“%1” has a character that file names cannot have everywhere</source>
        <translation>„%1“ obsahuje znak, který názvy souborů všude mít nemohou</translation>
    </message>
    <message>
        <source>“%1” ends in a dot or a space, which Windows takes away</source>
        <translation>„%1“ končí tečkou nebo mezerou, které Windows odstraní</translation>
    </message>
    <message>
        <source>Windows takes “%1” for a device</source>
        <translation>„%1“ považuje Windows za zařízení</translation>
    </message>
    <message>
        <source>a name in it is longer than %1 bytes</source>
        <translation>některý název v něm je delší než %1 bajtů</translation>
    </message>
</context>
<context>
    <name>FillCanvasTool</name>
    <message>
        <source>Fill</source>
        <translation>Vyplnit</translation>
    </message>
</context>
<context>
    <name>ForeignChange</name>
    <message>
        <source>File Changed</source>
        <translation>Soubor se změnil</translation>
    </message>
    <message>
        <source>Another program changed the file of this project:
%1</source>
        <translation>Jiný program změnil soubor tohoto projektu:
%1</translation>
    </message>
    <message>
        <source>Load File opens it as it is now and drops your unsaved changes.</source>
        <translation>„Načíst soubor“ otevře jeho současnou podobu a zahodí vaše neuložené změny.</translation>
    </message>
    <message>
        <source>Load File opens it as it is now.</source>
        <translation>„Načíst soubor“ otevře jeho současnou podobu.</translation>
    </message>
    <message>
        <source>Keep Mine keeps the project as it is here; saving then replaces the file.</source>
        <translation>„Ponechat mou verzi“ zachová projekt tak, jak je zde; uložením se pak soubor přepíše.</translation>
    </message>
    <message>
        <source>&amp;Load File</source>
        <translation>&amp;Načíst soubor</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Ponechat mou verzi</translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>the pixels of the file take more than %1</source>
        <translation>pixely souboru zabírají víc než %1</translation>
    </message>
    <message>
        <source>the pixels are damaged</source>
        <translation>pixely jsou poškozené</translation>
    </message>
    <message>
        <source>Frame %1 has a picture for layer %2 of %3</source>
        <translation>Snímek %1 má obrázek pro vrstvu %2, vrstev je však %3</translation>
    </message>
    <message>
        <source>Its frames have more than %1 pictures of layers together</source>
        <translation>Snímky mají dohromady víc než %1 obrázků vrstev</translation>
    </message>
    <message>
        <source>%1: there are two pictures</source>
        <translation>%1: obsahuje dva obrázky</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the picture is of an unknown kind, %1</source>
        <translation>obrázek je neznámého druhu (%1)</translation>
    </message>
    <message>
        <source>the picture is of another kind than the layer</source>
        <translation>obrázek je jiného druhu než vrstva</translation>
    </message>
    <message>
        <source>the picture is that of frame %1, which has none or comes later</source>
        <translation>obrázek se přebírá ze snímku %1, který žádný nemá nebo následuje až později</translation>
    </message>
    <message>
        <source>a tile has %1 bits; only %2 can be read</source>
        <translation>bitů na dlaždici: %1; načíst lze jen %2</translation>
    </message>
    <message>
        <source>the tiles are damaged</source>
        <translation>dlaždice jsou poškozené</translation>
    </message>
    <message>
        <source>It has two tile sets of number %1, or more than %2</source>
        <translation>Soubor má dvě sady dlaždic s číslem %1, nebo víc než %2</translation>
    </message>
    <message>
        <source>The tile set “%1” is in another file, and left out</source>
        <translation>Sada dlaždic „%1“ je v jiném souboru a vynechává se</translation>
    </message>
    <message>
        <source>The tile set “%1” has %2 tiles of %3 × %4 pixels</source>
        <translation>Sada dlaždic „%1“: počet dlaždic %2, rozměry %3 × %4 pixelů</translation>
    </message>
    <message>
        <source>The tile set “%1”: %2</source>
        <translation>Sada dlaždic „%1“: %2</translation>
    </message>
    <message>
        <source>The layer “%1” has the tiles of a set that is not there</source>
        <translation>Vrstva „%1“ používá dlaždice ze sady, která chybí</translation>
    </message>
    <message>
        <source>The layer “%1” has tile %2 of a set of %3</source>
        <translation>Vrstva „%1“ používá dlaždici %2, ale v sadě jich je %3</translation>
    </message>
    <message>
        <source>Its layers have more than %1 million pixels in all frames together</source>
        <translation>Vrstvy mají ve všech snímcích dohromady víc než %1 milionů pixelů</translation>
    </message>
    <message>
        <source>Frame %1, layer “%2”</source>
        <translation>Snímek %1, vrstva „%2“</translation>
    </message>
    <message>
        <source>It is no Aseprite file</source>
        <translation>Není to soubor Aseprite</translation>
    </message>
    <message>
        <source>It is cut short: it has %1 of %2 bytes</source>
        <translation>Soubor je neúplný: má %1 z %2 bajtů</translation>
    </message>
    <message>
        <source>It says that a pixel has %1 bits; it can have 8, 16 or 32</source>
        <translation>Soubor udává %1 bitů na pixel; může jich být 8, 16 nebo 32</translation>
    </message>
    <message>
        <source>It says that it has %1 frames of %2 × %3 pixels</source>
        <translation>Soubor udává snímky: %1, rozměry %2 × %3 pixelů</translation>
    </message>
    <message>
        <source>It has %1 frames of %2 × %3 pixels; at most %4 million pixels together can be read</source>
        <translation>Snímky: %1, rozměry %2 × %3 pixelů; načíst lze dohromady nejvýše %4 milionů pixelů</translation>
    </message>
    <message>
        <source>Its pixels are not square, but %1 to %2: they become square</source>
        <translation>Pixely nejsou čtvercové, ale v poměru %1 : %2; změní se na čtvercové</translation>
    </message>
    <message>
        <source>It is cut short: frame %1 of %2 is not there</source>
        <translation>Soubor je neúplný: chybí snímek %1 z %2</translation>
    </message>
    <message>
        <source>Frame %1 is damaged</source>
        <translation>Snímek %1 je poškozený</translation>
    </message>
    <message>
        <source>Frame %1 is damaged: chunk %2 of %3 has a wrong size</source>
        <translation>Snímek %1 je poškozený: blok dat %2 z %3 má chybnou velikost</translation>
    </message>
    <message>
        <source>Frame %1 is damaged: chunk %2 of %3 is cut short</source>
        <translation>Snímek %1 je poškozený: blok dat %2 z %3 je neúplný</translation>
    </message>
    <message>
        <source>Its slices are left out</source>
        <translation>Řezy se vynechávají</translation>
    </message>
    <message>
        <source>It has more than %1 layers</source>
        <translation>Soubor má víc než %1 vrstev</translation>
    </message>
    <message>
        <source>The reference layer “%1” is left out</source>
        <translation>Referenční vrstva „%1“ se vynechává</translation>
    </message>
    <message>
        <source>The layer “%1” mixes its colours with those beneath: it is drawn as others are</source>
        <translation>Vrstva „%1“ mísí barvy s vrstvami pod ní: vykreslí se jako ostatní</translation>
    </message>
    <message>
        <source>The group “%1” is partly clear: that is done to each of its layers</source>
        <translation>Skupina „%1“ je částečně průhledná: průhlednost se použije na každou její vrstvu</translation>
    </message>
    <message>
        <source>The palette changes after frame %1, whose colours are taken</source>
        <translation>Paleta se mění po snímku %1; použijí se jeho barvy</translation>
    </message>
    <message>
        <source>Frame %1 has more than %2 palettes</source>
        <translation>Snímek %1 má víc než %2 palet</translation>
    </message>
    <message>
        <source>Its palette has %1 colours; at most %2 can be read</source>
        <translation>Počet barev palety: %1; načíst lze nejvýše %2</translation>
    </message>
    <message>
        <source>Its palette has %1 colours, of which it gives %2 to %3</source>
        <translation>Počet barev palety: %1; soubor udává barvy %2 až %3</translation>
    </message>
    <message>
        <source>It has more than %1 tags</source>
        <translation>Soubor má víc než %1 štítků</translation>
    </message>
    <message>
        <source>The tag “%1” is left out: it names frames %2 to %3 of %4</source>
        <translation>Štítek „%1“ se vynechává: uvádí snímky %2 až %3 z %4</translation>
    </message>
    <message>
        <source>”, “</source>
        <translation>“, „</translation>
    </message>
    <message numerus="yes">
        <source>%n layers are hidden and left out, “%1” among them</source>
        <translation>
            <numerusform>%n vrstva je skrytá a vynechává se, „%1“</numerusform>
            <numerusform>%n vrstvy jsou skryté a vynechávají se, mezi nimi „%1“</numerusform>
            <numerusform>%n vrstev je skrytých a vynechává se, mezi nimi „%1“</numerusform>
        </translation>
    </message>
    <message>
        <source>Hidden layers are left out: “%1”</source>
        <translation>Skryté vrstvy se vynechávají: „%1“</translation>
    </message>
    <message>
        <source>Its pixels are numbers of colours, and it has no palette</source>
        <translation>Pixely jsou čísla barev a soubor nemá paletu</translation>
    </message>
    <message>
        <source>It has pixels of colour %1, and its palette has %2 colours: they are black</source>
        <translation>Některé pixely mají barvu %1, ale barev v paletě je %2: budou černé</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Řádek %1: %2</translation>
    </message>
    <message>
        <source>It has no colours</source>
        <translation>Nemá žádné barvy</translation>
    </message>
    <message>
        <source>“%1” is no colour, which is %2 numbers from 0 to 255</source>
        <translation>„%1“ není barva; tu tvoří čísla od 0 do 255 (%2)</translation>
    </message>
    <message>
        <source>“%1” stands where “%2” does</source>
        <translation>Místo „%2“ je zde „%1“</translation>
    </message>
    <message>
        <source>“%1” is no number of colours</source>
        <translation>„%1“ není počet barev</translation>
    </message>
    <message>
        <source>It says that it has %1 colours, and has %2</source>
        <translation>Udaný počet barev je %1, skutečný %2</translation>
    </message>
    <message>
        <source>“%1” is no colour of six hexadecimal digits</source>
        <translation>„%1“ není barva ze šesti hexadecimálních číslic</translation>
    </message>
    <message>
        <source>It says that it has %1 colours; there is room for %2</source>
        <translation>Udaný počet barev je %1; místo je pro %2</translation>
    </message>
    <message>
        <source>Its transparent index is %1, and it has %2 colours</source>
        <translation>Průhledný index je %1 a počet barev %2</translation>
    </message>
    <message>
        <source>It has %1; at most %2 can be read</source>
        <translation>Soubor má %1; načíst lze nejvýše %2</translation>
    </message>
    <message>
        <source>It is no palette of the forms .gpl, .pal (JASC), .hex or .act</source>
        <translation>Není to paleta ve formátu .gpl, .pal (JASC), .hex ani .act</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n bajt</numerusform>
            <numerusform>%n bajty</numerusform>
            <numerusform>%n bajtů</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>There is more of this kind</source>
        <translation>Podobných zpráv je víc</translation>
    </message>
    <message>
        <source>It is not there, or may not be read</source>
        <translation>Soubor neexistuje, nebo ho nelze číst</translation>
    </message>
    <message>
        <source>It could not be read: %1</source>
        <translation>Soubor se nepodařilo načíst: %1</translation>
    </message>
    <message>
        <source>its cells are written as “%1”, which cannot be read</source>
        <translation>buňky jsou zapsány jako „%1“, což nelze načíst</translation>
    </message>
    <message>
        <source>its cells are packed as “%1”, which cannot be read</source>
        <translation>buňky jsou zkomprimovány jako „%1“, což nelze načíst</translation>
    </message>
    <message>
        <source>cell %1 is no number of a tile</source>
        <translation>buňka %1 není číslo dlaždice</translation>
    </message>
    <message>
        <source>it has more than %1 cells</source>
        <translation>má víc než %1 buněk</translation>
    </message>
    <message>
        <source>“%1” is among the numbers of its cells</source>
        <translation>mezi čísly buněk je „%1“</translation>
    </message>
    <message>
        <source>it has %1 of %2 cells</source>
        <translation>buněk je %1 z %2</translation>
    </message>
    <message>
        <source>its cells are damaged, or not %1</source>
        <translation>buňky jsou poškozené, nebo jich není %1</translation>
    </message>
    <message>
        <source>Two tile sets begin with number %1</source>
        <translation>Dvě sady dlaždic začínají číslem %1</translation>
    </message>
    <message>
        <source>The tile set “%1” has animations of tiles that are not there</source>
        <translation>Sada dlaždic „%1“ má animace dlaždic, které neexistují</translation>
    </message>
    <message>
        <source>The tile set “%1” says no size of its tiles</source>
        <translation>Sada dlaždic „%1“ neudává velikost dlaždic</translation>
    </message>
    <message>
        <source>The picture of the tile set “%1” has %2 of its %3 tiles</source>
        <translation>Obrázek sady dlaždic „%1“ obsahuje %2 z jejích %3 dlaždic</translation>
    </message>
    <message>
        <source>The layer “%1” is partly clear: it becomes opaque</source>
        <translation>Vrstva „%1“ je částečně průhledná: stane se neprůhlednou</translation>
    </message>
    <message>
        <source>The layer “%1” is moved by parts of cells: it goes to the nearest</source>
        <translation>Vrstva „%1“ je posunutá o část buňky: přesune se na nejbližší celou</translation>
    </message>
    <message numerus="yes">
        <source>What shines through clear pixels of tiles above is lost, in %n cells</source>
        <translation>
            <numerusform>Co prosvítá průhlednými pixely dlaždic nad tím, se ztratí v %n buňce</numerusform>
            <numerusform>Co prosvítá průhlednými pixely dlaždic nad tím, se ztratí v %n buňkách</numerusform>
            <numerusform>Co prosvítá průhlednými pixely dlaždic nad tím, se ztratí v %n buňkách</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells have numbers that no tile set has: they become empty</source>
        <translation>
            <numerusform>%n buňka má číslo, které žádná sada dlaždic nemá: bude prázdná</numerusform>
            <numerusform>%n buňky mají čísla, která žádná sada dlaždic nemá: budou prázdné</numerusform>
            <numerusform>%n buněk má čísla, která žádná sada dlaždic nemá: budou prázdné</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells of layers lie beyond the map: they are lost</source>
        <translation>
            <numerusform>%n buňka vrstev leží mimo mapu: ztratí se</numerusform>
            <numerusform>%n buňky vrstev leží mimo mapu: ztratí se</numerusform>
            <numerusform>%n buněk vrstev leží mimo mapu: ztratí se</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is not in the file&apos;s folder</source>
        <translation>„%1“ není ve složce souboru</translation>
    </message>
    <message>
        <source>“%1” is not there</source>
        <translation>„%1“ chybí</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>the pictures have more than %1 million pixels together</source>
        <translation>obrázky mají dohromady víc než %1 milionů pixelů</translation>
    </message>
    <message>
        <source>it is no picture that can be read</source>
        <translation>není to obrázek, který by šlo načíst</translation>
    </message>
    <message>
        <source>It has more than %1 million numbers; with cells written as Base64 it has fewer</source>
        <translation>Soubor má víc než %1 milionů čísel; s buňkami zapsanými jako Base64 jich bude méně</translation>
    </message>
    <message>
        <source>It has more than %1 lists and objects</source>
        <translation>Soubor má víc než %1 seznamů a objektů</translation>
    </message>
    <message>
        <source>Byte %1: %2</source>
        <translation>Bajt %1: %2</translation>
    </message>
    <message>
        <source>there are too many groups in each other</source>
        <translation>příliš mnoho skupin vnořených do sebe</translation>
    </message>
    <message>
        <source>“%1” is “%2”, and can be %3 to %4</source>
        <translation>„%1“ je „%2“, dovoleno je %3 až %4</translation>
    </message>
    <message>
        <source>“%1” is “%2”, which is no number that it can be</source>
        <translation>„%1“ je „%2“, což není přípustné číslo</translation>
    </message>
    <message>
        <source>It is a map of the kind “%1”; only “orthogonal” ones can be read</source>
        <translation>Je to mapa druhu „%1“; načíst lze jen „orthogonal“</translation>
    </message>
    <message>
        <source>It says no width and height</source>
        <translation>Soubor neudává šířku a výšku</translation>
    </message>
    <message>
        <source>It has %1 × %2 cells; at most %3 million can be read</source>
        <translation>Mapa má %1 × %2 buněk; načíst lze nejvýše %3 milionů</translation>
    </message>
    <message>
        <source>Its layers have more than %1 million cells together</source>
        <translation>Vrstvy mají dohromady víc než %1 milionů buněk</translation>
    </message>
    <message>
        <source>The layer “%1”: %2</source>
        <translation>Vrstva „%1“: %2</translation>
    </message>
    <message>
        <source>The image layer “%1” is left out</source>
        <translation>Obrázková vrstva „%1“ se vynechává</translation>
    </message>
    <message>
        <source>Objects made from templates lack what their template says</source>
        <translation>Objektům vytvořeným ze šablon chybí, co udává šablona</translation>
    </message>
    <message>
        <source>It has more than %1 objects</source>
        <translation>Mapa má víc než %1 objektů</translation>
    </message>
    <message>
        <source>Its objects have more than %1 properties</source>
        <translation>Objekty mají víc než %1 vlastností</translation>
    </message>
    <message>
        <source>It has more than %1 tile sets</source>
        <translation>Mapa má víc než %1 sad dlaždic</translation>
    </message>
    <message>
        <source>Pictures inside the file cannot be read</source>
        <translation>Obrázky uvnitř souboru nelze načíst</translation>
    </message>
    <message>
        <source>Its tile sets have more than %1 pictures</source>
        <translation>Sady dlaždic mají víc než %1 obrázků</translation>
    </message>
    <message>
        <source>Its animations have more than %1 frames</source>
        <translation>Animace mají víc než %1 snímků</translation>
    </message>
    <message>
        <source>It is no XML in UTF-8</source>
        <translation>Není to XML v UTF-8</translation>
    </message>
    <message>
        <source>It declares elements or entities of its own</source>
        <translation>Soubor deklaruje vlastní prvky nebo entity</translation>
    </message>
    <message>
        <source>An element has more than %1 attributes</source>
        <translation>Některý prvek má víc než %1 atributů</translation>
    </message>
    <message>
        <source>there is no element</source>
        <translation>chybí prvek</translation>
    </message>
    <message>
        <source>there are too many elements in each other</source>
        <translation>příliš mnoho prvků vnořených do sebe</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Create a backup when saving</source>
        <translation>Při ukládání vytvořit zálohu</translation>
    </message>
    <message>
        <source>Check for updates on startup</source>
        <translation>Při spuštění zkontrolovat aktualizace</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Obecné</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Denně</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Týdně</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Měsíčně</translation>
    </message>
    <message>
        <source>General Settings</source>
        <translation>Obecná nastavení</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualizace</translation>
    </message>
    <message>
        <source>Check frequency</source>
        <translation>Jak často kontrolovat</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>The guide is not installed</source>
        <translation>Příručka není nainstalovaná</translation>
    </message>
    <message>
        <source>It comes with Quenmora&apos;s package.</source>
        <translation>Je součástí balíčku programu Quenmora.</translation>
    </message>
    <message>
        <source>No program was found that shows the guide</source>
        <translation>Nebyl nalezen program, který příručku zobrazí</translation>
    </message>
    <message>
        <source>It is in this file: %1</source>
        <translation>Je v tomto souboru: %1</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Nápověda</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>&amp;Zkontrolovat aktualizace…</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;O programu</translation>
    </message>
    <message>
        <source>Command &amp;Palette…</source>
        <translation>&amp;Paleta příkazů…</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts…</source>
        <translation>&amp;Klávesové zkratky…</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>P&amp;říručka</translation>
    </message>
    <message>
        <source>Opens the guide in your browser, at the page about what you work on</source>
        <translation>Otevře příručku v prohlížeči na stránce o tom, na čem pracujete</translation>
    </message>
    <message>
        <source>&amp;Sample Project</source>
        <translation>&amp;Ukázkový projekt</translation>
    </message>
    <message>
        <source>Opens a small game to look at and to play with; saving makes a copy of your own</source>
        <translation>Otevře malou hru k prohlédnutí a vyzkoušení; uložením vznikne vaše vlastní kopie</translation>
    </message>
</context>
<context>
    <name>ImageDialog</name>
    <message>
        <source>New Image</source>
        <translation>Nový obrázek</translation>
    </message>
    <message>
        <source>Create a new image</source>
        <translation>Vytvořit nový obrázek</translation>
    </message>
    <message>
        <source>256x192 256 colours</source>
        <translation>256x192, 256 barev</translation>
    </message>
    <message>
        <source>320x256 256 colours</source>
        <translation>320x256, 256 barev</translation>
    </message>
    <message>
        <source>640x256 16 colours</source>
        <translation>640x256, 16 barev</translation>
    </message>
    <message>
        <source>128x96 256 colours</source>
        <translation>128x96, 256 barev</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Režim</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>An image needs a palette; please create a palette first</source>
        <translation>Obrázek potřebuje paletu; nejdřív nějakou vytvořte</translation>
    </message>
</context>
<context>
    <name>ImageEditor::ImportDialog</name>
    <message>
        <source>Import Image</source>
        <translation>Import obrázku</translation>
    </message>
    <message>
        <source>Scale to fill the image</source>
        <translation>Roztáhnout na celý obrázek</translation>
    </message>
    <message>
        <source>Keep the machine&apos;s colours</source>
        <translation>Zachovat barvy stroje</translation>
    </message>
    <message>
        <source>Keep transparent pixels</source>
        <translation>Zachovat průhledné pixely</translation>
    </message>
    <message>
        <source>New palette of the picture&apos;s colours</source>
        <translation>Nová paleta z barev předlohy</translation>
    </message>
    <message>
        <source>Import a picture</source>
        <translation>Importovat obrázek</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has: those that the palette has stay exactly that, and scaling mixes no new ones</source>
        <translation>Každá barva předlohy je barvou, kterou Next má: ty, které jsou v paletě, zůstanou přesně zachovány a změna velikosti nové nenamíchá</translation>
    </message>
    <message>
        <source>They get the transparent entry of the palette, and no colour does</source>
        <translation>Dostanou průhledné políčko palety a žádná barva ho nepoužije</translation>
    </message>
    <message>
        <source>The image is shown with it from now on; the palette that it had stays as it is</source>
        <translation>Obrázek se bude nadále zobrazovat s ní; dosavadní paleta zůstane beze změny</translation>
    </message>
    <message>
        <source>&amp;Fewer colours</source>
        <translation>Méně &amp;barev</translation>
    </message>
    <message>
        <source>Picture %1 × %2, image %3 × %4</source>
        <translation>Předloha %1 × %2, obrázek %3 × %4</translation>
    </message>
    <message>
        <source>The picture cannot be used</source>
        <translation>Předlohu nelze použít</translation>
    </message>
</context>
<context>
    <name>ImageEditor::View</name>
    <message>
        <source>Swap Palette</source>
        <translation>Vyměnit paletu</translation>
    </message>
    <message>
        <source>Import Image</source>
        <translation>Import obrázku</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Obrázky (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>Export Image</source>
        <translation>Export obrázku</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg *.bmp)</source>
        <translation>Obrázky (*.png *.xpm *.jpg *.bmp)</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Při exportu dat došlo k chybě</translation>
    </message>
    <message>
        <source>Pictures are written as .png, .xpm, .jpg or .bmp files</source>
        <translation>Obrázky se zapisují jako soubory .png, .xpm, .jpg nebo .bmp</translation>
    </message>
    <message>
        <source>Scratch Image</source>
        <translation>Náčrtník</translation>
    </message>
    <message>
        <source>Paint here, or bring in a picture with Open among the tools</source>
        <translation>Malujte zde, nebo načtěte obrázek tlačítkem „Otevřít“ mezi nástroji</translation>
    </message>
</context>
<context>
    <name>ImageMenu</name>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Obrázek</translation>
    </message>
    <message>
        <source>&amp;New Image</source>
        <translation>&amp;Nový obrázek</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>&amp;Vyměnit paletu</translation>
    </message>
</context>
<context>
    <name>ImportAgain</name>
    <message>
        <source>The image has no palette any more</source>
        <translation>Obrázek už nemá paletu</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Importovat znovu</translation>
    </message>
    <message>
        <source>%1 is up to date</source>
        <translation>Aktuální: %1</translation>
    </message>
    <message>
        <source>The file is neither a palette nor a picture that can be read</source>
        <translation>Soubor není paleta ani obrázek, který by šlo načíst</translation>
    </message>
    <message>
        <source>Such a file makes new assets, and cannot go into those that are there</source>
        <translation>Z takového souboru vznikají nové položky a nelze jej načíst do stávajících</translation>
    </message>
    <message>
        <source>%1 was imported again</source>
        <translation>Znovu importováno: %1</translation>
    </message>
    <message>
        <source>What was made of it is not there any more</source>
        <translation>Co z něj vzniklo, už neexistuje</translation>
    </message>
    <message>
        <source>The file is not there any more:
%1</source>
        <translation>Soubor už neexistuje:
%1</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importuje se %1…</translation>
    </message>
    <message>
        <source>%1 is up to date; new tiles: %2</source>
        <translation>Aktuální: %1; nové dlaždice: %2</translation>
    </message>
    <message>
        <source>; pixels that took the nearest colour: %1</source>
        <translation>; pixely, které dostaly nejbližší barvu: %1</translation>
    </message>
    <message>
        <source>The map has no tiles or no palette any more</source>
        <translation>Mapa už nemá dlaždice nebo paletu</translation>
    </message>
    <message numerus="yes">
        <source>The picture needs %n more tiles, and the tile set has room for %1</source>
        <translation>
            <numerusform>Obrázek potřebuje ještě %n dlaždici a v sadě je místo pro %1</numerusform>
            <numerusform>Obrázek potřebuje ještě %n dlaždice a v sadě je místo pro %1</numerusform>
            <numerusform>Obrázek potřebuje ještě %n dlaždic a v sadě je místo pro %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Resize Map</source>
        <translation>Změna velikosti mapy</translation>
    </message>
    <message>
        <source>The sprites have no palette any more</source>
        <translation>Sprity už nemají paletu</translation>
    </message>
    <message>
        <source>The picture is smaller than a sprite, which has 16 × 16 pixels</source>
        <translation>Obrázek je menší než sprite, který má 16 × 16 pixelů</translation>
    </message>
    <message>
        <source>The picture holds more sprites than fit into a bank</source>
        <translation>Obrázek obsahuje víc spritů, než se vejde do banky</translation>
    </message>
    <message>
        <source>%1 is up to date; sprites that are new: %2</source>
        <translation>Aktuální: %1; nové sprity: %2</translation>
    </message>
    <message>
        <source>The map is too large to be brought up to date</source>
        <translation>Mapa je na aktualizaci příliš velká</translation>
    </message>
</context>
<context>
    <name>ImportFileDialog</name>
    <message>
        <source>New palette</source>
        <translation>Nová paleta</translation>
    </message>
    <message>
        <source>New tile set</source>
        <translation>Nová sada dlaždic</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>Nová mapa</translation>
    </message>
    <message>
        <source>New sprites</source>
        <translation>Nové sprity</translation>
    </message>
    <message>
        <source>New map objects</source>
        <translation>Nové objekty mapy</translation>
    </message>
    <message>
        <source>New image</source>
        <translation>Nový obrázek</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… a %n další</numerusform>
            <numerusform>… a %n další</numerusform>
            <numerusform>… a %n dalších</numerusform>
        </translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>What the file is; first what it most probably is</source>
        <translation>Co je to za soubor; první je nejpravděpodobnější možnost</translation>
    </message>
    <message>
        <source>A new asset, or one of the project that takes it in, as one undo step</source>
        <translation>Nová položka, nebo položka projektu, do které se soubor načte jako jeden krok historie</translation>
    </message>
    <message>
        <source>The number from which on those that are there are replaced, counted from 0</source>
        <translation>Číslo, od kterého se nahrazují stávající, počítáno od 0</translation>
    </message>
    <message>
        <source>Behind those that are there</source>
        <translation>Za stávající</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Druh</translation>
    </message>
    <message>
        <source>In&amp;to</source>
        <translation>&amp;Kam</translation>
    </message>
    <message>
        <source>&amp;From number</source>
        <translation>&amp;Od čísla</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Název</translation>
    </message>
    <message>
        <source>Ti&amp;le set</source>
        <translation>&amp;Sada dlaždic</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>Př&amp;eskočit</translation>
    </message>
    <message>
        <source>Leaves this file out and goes on with the next one</source>
        <translation>Tento soubor vynechá a pokračuje dalším</translation>
    </message>
    <message>
        <source>Import (%1 of %2)</source>
        <translation>Import (%1 z %2)</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln bytes</source>
        <translation>
            <numerusform>%1, %Ln bajt</numerusform>
            <numerusform>%1, %Ln bajty</numerusform>
            <numerusform>%1, %Ln bajtů</numerusform>
        </translation>
    </message>
    <message>
        <source>New tile set of blank tiles</source>
        <translation>Nová sada prázdných dlaždic</translation>
    </message>
    <message>
        <source>New palette of its own colours</source>
        <translation>Nová paleta z vlastních barev</translation>
    </message>
    <message>
        <source>New palette of the standard colours</source>
        <translation>Nová paleta ze standardních barev</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importovat</translation>
    </message>
    <message>
        <source>C&amp;ontinue…</source>
        <translation>Pokr&amp;ačovat…</translation>
    </message>
    <message>
        <source>What is asked next depends on the picture</source>
        <translation>Další dotazy závisejí na obrázku</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Čte se %1…</translation>
    </message>
    <message>
        <source>The project was closed meanwhile</source>
        <translation>Projekt byl mezitím zavřen</translation>
    </message>
    <message>
        <source>There is nothing in the project into which it could go</source>
        <translation>V projektu není nic, kam by se dal soubor načíst</translation>
    </message>
</context>
<context>
    <name>ImportKeeper</name>
    <message>
        <source>The file could not be imported again</source>
        <translation>Soubor se nepodařilo znovu importovat</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Importovat znovu</translation>
    </message>
</context>
<context>
    <name>ImportNotice</name>
    <message>
        <source>Import Again</source>
        <translation>Importovat znovu</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Teď ne</translation>
    </message>
    <message>
        <source>%1 changed since it was imported</source>
        <translation>Soubor %1 se od importu změnil</translation>
    </message>
    <message numerus="yes">
        <source>%n files changed since they were imported</source>
        <translation>
            <numerusform>%n soubor se od importu změnil</numerusform>
            <numerusform>%n soubory se od importu změnily</numerusform>
            <numerusform>%n souborů se od importu změnilo</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportPictureDialog</name>
    <message>
        <source>Import Picture</source>
        <translation>Import obrázku</translation>
    </message>
    <message>
        <source>&amp;Keep the machine&apos;s colours</source>
        <translation>&amp;Zachovat barvy stroje</translation>
    </message>
    <message>
        <source>Keep &amp;transparent pixels</source>
        <translation>Zachovat p&amp;růhledné pixely</translation>
    </message>
    <message>
        <source>&amp;Find colours and tiles for the whole picture</source>
        <translation>Hledat barvy a dlaždice pro &amp;celý obrázek</translation>
    </message>
    <message>
        <source>Make tiles and a map of a picture</source>
        <translation>Vytvořit z obrázku dlaždice a mapu</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has, and stays exactly that</source>
        <translation>Každá barva obrázku je barvou, kterou Next má, a zůstane přesně zachována</translation>
    </message>
    <message>
        <source>They get index %1 of their tiles, which the map does not draw</source>
        <translation>Dostanou ve svých dlaždicích index %1, který mapa nevykresluje</translation>
    </message>
    <message>
        <source>Groups of 16 colours that suit all tiles as well as they can, and at most %1 tiles; else tiles are served as they come, and who comes last gets what is left</source>
        <translation>Skupiny po 16 barvách, které co nejlépe vyhovují všem dlaždicím, a dlaždic nejvýše %1; jinak se dlaždice zpracují popořadě a na poslední zbude, co je volné</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádné</translation>
    </message>
    <message>
        <source>Ordered pattern</source>
        <translation>Uspořádaný vzor</translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation>Difuze chyby</translation>
    </message>
    <message>
        <source>&amp;Dithering</source>
        <translation>Rozptyl &amp;barev</translation>
    </message>
    <message>
        <source>Reducing %1…</source>
        <translation>Snižuje se počet barev: %1…</translation>
    </message>
    <message>
        <source>Tiles: %1
Tiles that lose colours: %2</source>
        <translation>Dlaždice: %1
Dlaždice, které ztrácejí barvy: %2</translation>
    </message>
    <message>
        <source>Tiles: %1, for %2 different ones
Colours: %3, for %4 of the picture; groups: %5</source>
        <translation>Dlaždice: %1, různých v předloze: %2
Barvy: %3, v předloze: %4; skupiny: %5</translation>
    </message>
    <message>
        <source>Nothing is lost</source>
        <translation>Nic se neztrácí</translation>
    </message>
    <message>
        <source>Nothing is lost but shades between the colours that the machine has</source>
        <translation>Ztrácejí se jen odstíny mezi barvami, které stroj má</translation>
    </message>
    <message>
        <source>Of %1 cells, %2 lose colours and %3 show a tile that is like theirs</source>
        <translation>Buňky: %1; ztrácejí barvy: %2; zobrazují podobnou dlaždici: %3</translation>
    </message>
    <message>
        <source>; mean error: %1 levels</source>
        <translation>; průměrná chyba: %1 úrovně</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n different tiles, and a tile set has room for %1</source>
        <translation>
            <numerusform>Obrázek má %n různou dlaždici a v sadě je místo pro %1</numerusform>
            <numerusform>Obrázek má %n různé dlaždice a v sadě je místo pro %1</numerusform>
            <numerusform>Obrázek má %n různých dlaždic a v sadě je místo pro %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportZXFontDialog</name>
    <message>
        <source>Import Spectrum Characters</source>
        <translation>Import znaků Spectra</translation>
    </message>
    <message>
        <source>Import a ZX Spectrum font into tiles</source>
        <translation>Importovat písmo ZX Spectra do dlaždic</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>Pro&amp;cházet…</translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation>&amp;Soubor</translation>
    </message>
    <message>
        <source>&amp;First tile</source>
        <translation>&amp;První dlaždice</translation>
    </message>
    <message>
        <source>Palette &amp;offset</source>
        <translation>P&amp;osun palety</translation>
    </message>
    <message>
        <source>I&amp;nk</source>
        <translation>&amp;Inkoust</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>P&amp;apír</translation>
    </message>
    <message>
        <source>Fonts (*.bin *.raw *.ch8)</source>
        <translation>Písma (*.bin *.raw *.ch8)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Všechny soubory (*)</translation>
    </message>
    <message>
        <source>No characters</source>
        <translation>Žádné znaky</translation>
    </message>
    <message>
        <source>Characters: %1, in tiles %2 to %3</source>
        <translation>Znaky: %1, v dlaždicích %2 až %3</translation>
    </message>
    <message>
        <source>The tile set has no palette to take colours from</source>
        <translation>Sada dlaždic nemá paletu, ze které by se vzaly barvy</translation>
    </message>
    <message>
        <source>Please choose a font file</source>
        <translation>Vyberte soubor písma</translation>
    </message>
    <message>
        <source>There is no character in this file, or it cannot be read</source>
        <translation>V souboru není žádný znak, nebo ho nelze přečíst</translation>
    </message>
</context>
<context>
    <name>Importing</name>
    <message>
        <source>%1 (sprites)</source>
        <translation>%1 (sprity)</translation>
    </message>
    <message>
        <source>Import Map</source>
        <translation>Import mapy</translation>
    </message>
    <message>
        <source>Import Tiles</source>
        <translation>Import dlaždic</translation>
    </message>
    <message>
        <source>Import Sprites</source>
        <translation>Import spritů</translation>
    </message>
    <message>
        <source>There is no number %1; the last one is %2</source>
        <translation>Číslo %1 neexistuje; poslední je %2</translation>
    </message>
    <message>
        <source>There is room for %1, and %2 come in</source>
        <translation>Volných míst: %1, importuje se: %2</translation>
    </message>
    <message>
        <source>“%1” has %2 tiles, and the first number is for tile %3 (counted from 0)</source>
        <translation>Počet dlaždic v „%1“: %2; první číslo je pro dlaždici %3 (počítáno od 0)</translation>
    </message>
    <message>
        <source>The sprites have indices above 15, and “%1” is a bank of 4 bits</source>
        <translation>Sprity mají indexy nad 15 a „%1“ je 4bitová banka</translation>
    </message>
    <message>
        <source>The asset into which it goes is not there any more, or is of another kind</source>
        <translation>Položka, do které se má importovat, už neexistuje, nebo je jiného druhu</translation>
    </message>
    <message>
        <source>Choose the tile set whose tiles these are for</source>
        <translation>Vyberte sadu dlaždic, pro jejíž dlaždice jsou určeny</translation>
    </message>
    <message>
        <source>Please enter a name</source>
        <translation>Zadejte název</translation>
    </message>
    <message>
        <source>Import Animations</source>
        <translation>Import animací</translation>
    </message>
    <message>
        <source>Animation %1</source>
        <translation>Animace %1</translation>
    </message>
    <message>
        <source>“%1”: frames have times of their own, and get the mean of them</source>
        <translation>„%1“: snímky mají každý svůj čas; použije se průměr</translation>
    </message>
    <message>
        <source>“%1” is repeated for ever</source>
        <translation>„%1“ se opakuje donekonečna</translation>
    </message>
    <message numerus="yes">
        <source>The frames make %n sprites, which is more than there is room for</source>
        <translation>
            <numerusform>Ze snímků vznikne %n sprite, na což není místo</numerusform>
            <numerusform>Ze snímků vzniknou %n sprity, na což není místo</numerusform>
            <numerusform>Ze snímků vznikne %n spritů, na což není místo</numerusform>
        </translation>
    </message>
    <message>
        <source>Sprites alone go into a bank that is there; the animations are left out</source>
        <translation>Do stávající banky se načtou jen sprity; animace se vynechávají</translation>
    </message>
    <message>
        <source>The frames have %1 pixels, and tiles are made of at most %2</source>
        <translation>Počet pixelů snímků: %1; z dlaždic lze složit nejvýše %2</translation>
    </message>
    <message>
        <source>Frames that are left out: %1</source>
        <translation>Vynechané snímky: %1</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Hloubka</translation>
    </message>
    <message>
        <source>How many colours the sprites have</source>
        <translation>Kolik barev sprity mají</translation>
    </message>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bitů, 256 barev</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bity, 16 barev</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Snímky</translation>
    </message>
    <message>
        <source>Which frames become tiles</source>
        <translation>Ze kterých snímků budou dlaždice</translation>
    </message>
    <message>
        <source>The first one, with a map</source>
        <translation>Jen první, s mapou</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Všechny</translation>
    </message>
    <message>
        <source>Aseprite file, for sprites with animations</source>
        <translation>Soubor Aseprite, pro sprity s animacemi</translation>
    </message>
    <message>
        <source>Aseprite file, for tiles</source>
        <translation>Soubor Aseprite, pro dlaždice</translation>
    </message>
    <message>
        <source>Aseprite file, for an image</source>
        <translation>Soubor Aseprite, pro obrázek</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 nelze načíst: %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>není to soubor</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>Soubor %1 je prázdný</translation>
    </message>
    <message>
        <source>“%1” is no kind of file that is read here</source>
        <translation>„%1“ není druh souboru, který by zde šlo načíst</translation>
    </message>
    <message>
        <source>The file has a +3DOS header, which is skipped</source>
        <translation>Soubor má hlavičku +3DOS, která se přeskočí</translation>
    </message>
    <message>
        <source>The smallest that holds the picture</source>
        <translation>Nejmenší, do kterého se obrázek vejde</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>The mode of the image</source>
        <translation>Režim obrázku</translation>
    </message>
    <message>
        <source>The picture has %1 × %2 pixels, and what does not fit is cut off</source>
        <translation>Obrázek má %1 × %2 pixelů; co se nevejde, ořízne se</translation>
    </message>
    <message>
        <source>Import Palette</source>
        <translation>Import palety</translation>
    </message>
    <message>
        <source>Colours that the Next does not have, and that become the nearest ones: %1 of %2</source>
        <translation>Barvy, které Next nemá a nahradí se nejbližšími: %1 z %2</translation>
    </message>
    <message>
        <source>Colours for which there is no room: %1</source>
        <translation>Barvy, na které není místo: %1</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>Rozptyl barev</translation>
    </message>
    <message>
        <source>How colours are shown for which there is no room</source>
        <translation>Jak se zobrazí barvy, na které není místo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádné</translation>
    </message>
    <message>
        <source>Ordered pattern</source>
        <translation>Uspořádaný vzor</translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation>Difuze chyby</translation>
    </message>
    <message>
        <source>Palette of another program</source>
        <translation>Paleta jiného programu</translation>
    </message>
    <message>
        <source>First entry</source>
        <translation>První políčko</translation>
    </message>
    <message>
        <source>The entry that the first colour becomes</source>
        <translation>Políčko, které dostane první barvu</translation>
    </message>
    <message>
        <source>Scale to that size</source>
        <translation>Přizpůsobit velikost</translation>
    </message>
    <message>
        <source>Makes the picture as large as the image</source>
        <translation>Zvětší nebo zmenší předlohu na velikost obrázku</translation>
    </message>
    <message>
        <source>Picture, for tiles and a map</source>
        <translation>Předloha pro dlaždice a mapu</translation>
    </message>
    <message>
        <source>Picture, for sprites</source>
        <translation>Předloha pro sprity</translation>
    </message>
    <message>
        <source>Picture, for an image</source>
        <translation>Předloha pro obrázek</translation>
    </message>
    <message>
        <source>Picture, for its colours</source>
        <translation>Předloha kvůli barvám</translation>
    </message>
    <message>
        <source>Palette, tiles, blocks and map of one name</source>
        <translation>Paleta, dlaždice, bloky a mapa stejného názvu</translation>
    </message>
    <message>
        <source>Cells: %1 × %2, which show %3 different tiles</source>
        <translation>Buňky: %1 × %2, různé dlaždice: %3</translation>
    </message>
    <message>
        <source>Placed sprites: %1</source>
        <translation>Umístěné sprity: %1</translation>
    </message>
    <message>
        <source>Tiles: %1</source>
        <translation>Dlaždice: %1</translation>
    </message>
    <message>
        <source>Animations of tiles: %1</source>
        <translation>Animace dlaždic: %1</translation>
    </message>
    <message>
        <source>Numbers: %1</source>
        <translation>Čísla: %1</translation>
    </message>
    <message>
        <source>Sprites: %1</source>
        <translation>Sprity: %1</translation>
    </message>
    <message>
        <source>Animations: %1</source>
        <translation>Animace: %1</translation>
    </message>
    <message>
        <source>Pixels: %1 × %2</source>
        <translation>Pixely: %1 × %2</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>Barvy: %1</translation>
    </message>
    <message>
        <source>Tile %1 (counted from 0) has pixels of several palette offsets, and a tile has one</source>
        <translation>Dlaždice %1 (počítáno od 0) má pixely z několika posunů palety; dlaždice může mít jen jeden</translation>
    </message>
    <message>
        <source>Tiles that lose colours, since theirs are of several palette offsets: %1 of %2</source>
        <translation>Dlaždice, které ztrácejí barvy, protože mají několik posunů palety: %1 z %2</translation>
    </message>
    <message>
        <source>The file has %1 bytes, which is too much for this</source>
        <translation>Soubor má %1 B, což je příliš mnoho</translation>
    </message>
    <message>
        <source>Several offsets</source>
        <translation>Více posunů</translation>
    </message>
    <message>
        <source>What becomes of tiles whose pixels are of several palette offsets, which a tile map cannot show</source>
        <translation>Co s dlaždicemi, jejichž pixely mají několik posunů palety, což dlaždicová mapa neumí zobrazit</translation>
    </message>
    <message>
        <source>The colours of the best one</source>
        <translation>Barvy nejlepšího z nich</translation>
    </message>
    <message>
        <source>Nothing is imported</source>
        <translation>Nic se neimportuje</translation>
    </message>
    <message>
        <source>Of %1 pieces of 8 × 8 pixels, %2 lose colours and %3 get a tile that is like theirs; mean error: %4 levels</source>
        <translation>Části 8 × 8 pixelů: %1; ztrácejí barvy: %2; dostanou podobnou dlaždici: %3; průměrná chyba: %4 úrovně</translation>
    </message>
    <message>
        <source>Colours: %1, which %2 stand for; mean error: %3 levels</source>
        <translation>Barvy: %1, zastupuje je %2; průměrná chyba: %3 úrovně</translation>
    </message>
    <message>
        <source>Colours that the Next does not have become the nearest ones</source>
        <translation>Barvy, které Next nemá, se nahradí nejbližšími</translation>
    </message>
    <message>
        <source>Tiles that are not as large as the cells, and are cut or filled: %1</source>
        <translation>Dlaždice jiné velikosti než buňky, které se oříznou nebo doplní: %1</translation>
    </message>
    <message>
        <source>Cells whose animations are left out, since there are more than %1: %2</source>
        <translation>Buňky, jejichž animace se vynechávají, protože je jich víc než %1: %2</translation>
    </message>
    <message>
        <source>Animations whose frames have times of their own, and get the mean: %1</source>
        <translation>Animace, jejichž snímky mají každý svůj čas a dostanou průměr: %1</translation>
    </message>
    <message>
        <source>Objects that are no sprites, turned, scaled, hidden or too large, and are left out: %1</source>
        <translation>Vynechané objekty (nejsou to sprity, nebo jsou otočené, zvětšené či zmenšené, skryté nebo příliš velké): %1</translation>
    </message>
    <message>
        <source>The cells of the map have %1 × %2 pixels, and tiles of the Next 8 × 8: only multiples of that can be cut</source>
        <translation>Buňky mapy mají %1 × %2 pixelů a dlaždice na Nextu 8 × 8: rozdělit lze jen násobky</translation>
    </message>
    <message>
        <source>The map has no cells</source>
        <translation>Mapa nemá buňky</translation>
    </message>
    <message>
        <source>That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most</source>
        <translation>Vznikla by mapa %1 × %2 buněk; nejvíce je %3 na stranu a %4 celkem</translation>
    </message>
    <message>
        <source>The map shows too many different tiles: of %1 × %2 pixels, %3 are the most</source>
        <translation>Mapa zobrazuje příliš mnoho různých dlaždic: u rozměrů %1 × %2 pixelů jich může být nejvýše %3</translation>
    </message>
    <message>
        <source>Files that are left alone because they are not below the map&apos;s folder: %1</source>
        <translation>Soubory vynechané, protože neleží ve složce mapy: %1</translation>
    </message>
    <message>
        <source>Map of Tiled</source>
        <translation>Mapa Tiled</translation>
    </message>
    <message>
        <source>Read files outside its folder</source>
        <translation>Číst soubory mimo její složku</translation>
    </message>
    <message>
        <source>Takes tile sets and pictures from wherever the map says that they are</source>
        <translation>Načte sady dlaždic a obrázky odkudkoli, kam mapa ukazuje</translation>
    </message>
    <message>
        <source>Import Image</source>
        <translation>Import obrázku</translation>
    </message>
    <message>
        <source>“%1” has %2 × %3 pixels, and the picture has %4 × %5</source>
        <translation>„%1“ má %2 × %3 pixelů a obrázek %4 × %5</translation>
    </message>
    <message>
        <source>Choose the map on which these are placed</source>
        <translation>Zvolte mapu, na které jsou umístěny</translation>
    </message>
    <message>
        <source>What record %1 (counted from 0) shows is not in the project, where it is looked for by its place</source>
        <translation>To, co ukazuje záznam %1 (počítáno od 0), v projektu není; hledá se tam podle pořadí</translation>
    </message>
    <message>
        <source>Placed animations: %1</source>
        <translation>Umístěné animace: %1</translation>
    </message>
    <message>
        <source>The colours are left out, since other assets are drawn with the palette of “%1” as well</source>
        <translation>Barvy se vynechávají, protože paletou položky „%1“ se kreslí i jiné položky</translation>
    </message>
    <message>
        <source>Tile set of Tiled</source>
        <translation>Sada dlaždic z Tiled</translation>
    </message>
</context>
<context>
    <name>IndexSuffix</name>
    <message>
        <source> (index %1)</source>
        <translation> (index %1)</translation>
    </message>
</context>
<context>
    <name>LayerAction</name>
    <message>
        <source>Scroll</source>
        <translation>Posunout</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Otočit</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Překlopit svisle</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Překlopit vodorovně</translation>
    </message>
</context>
<context>
    <name>LayoutController</name>
    <message>
        <source>Next Dock</source>
        <translation>Další panel</translation>
    </message>
    <message>
        <source>Previous Dock</source>
        <translation>Předchozí panel</translation>
    </message>
    <message>
        <source>Next Dock Behind</source>
        <translation>Další panel vzadu</translation>
    </message>
    <message>
        <source>Previous Dock Behind</source>
        <translation>Předchozí panel vzadu</translation>
    </message>
</context>
<context>
    <name>LineCanvasTool</name>
    <message>
        <source>Line</source>
        <translation>Čára</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Zpět</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Z&amp;novu</translation>
    </message>
    <message>
        <source>%2 - %1</source>
        <translation>%2 - %1</translation>
    </message>
    <message>
        <source>Its backup is from %1</source>
        <translation>Jeho záloha je z %1</translation>
    </message>
    <message>
        <source>Open &amp;Backup</source>
        <translation>Otevřít &amp;zálohu</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>Could not import the font</source>
        <translation>Písmo se nepodařilo importovat</translation>
    </message>
</context>
<context>
    <name>MapDialog</name>
    <message>
        <source> cells</source>
        <translation> buněk</translation>
    </message>
    <message>
        <source>New Map</source>
        <translation>Nová mapa</translation>
    </message>
    <message>
        <source>Create a new map</source>
        <translation>Vytvořit novou mapu</translation>
    </message>
    <message>
        <source>&amp;Tile set</source>
        <translation>&amp;Sada dlaždic</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>Šíř&amp;ka</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Výška</translation>
    </message>
    <message>
        <source>A map is made of the tiles of a tile set; please create a tile set first</source>
        <translation>Mapa se skládá z dlaždic nějaké sady; nejdřív vytvořte sadu dlaždic</translation>
    </message>
</context>
<context>
    <name>MapEditor::AnchorPad</name>
    <message>
        <source>Top left</source>
        <translation>Vlevo nahoře</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Nahoře</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Vpravo nahoře</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vlevo</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Uprostřed</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Vpravo</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Vlevo dole</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dole</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Vpravo dole</translation>
    </message>
</context>
<context>
    <name>MapEditor::CellDialog</name>
    <message>
        <source>Go to Cell</source>
        <translation>Přejít na buňku</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Sloupec</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Řádek</translation>
    </message>
</context>
<context>
    <name>MapEditor::CellTool</name>
    <message>
        <source>Place Animation</source>
        <translation>Umístit animaci</translation>
    </message>
</context>
<context>
    <name>MapEditor::DrawTool</name>
    <message>
        <source>Paint</source>
        <translation>Malovat</translation>
    </message>
</context>
<context>
    <name>MapEditor::ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Export Map Data</source>
        <translation>Export dat mapy</translation>
    </message>
    <message>
        <source>Export Tile Data</source>
        <translation>Export dat dlaždic</translation>
    </message>
    <message>
        <source>Export Palette Data</source>
        <translation>Export dat palety</translation>
    </message>
    <message>
        <source>Export: %1</source>
        <translation>Export: %1</translation>
    </message>
    <message>
        <source>Files in %1</source>
        <translation>Soubory v %1</translation>
    </message>
    <message>
        <source>%1 (replaces this file)</source>
        <translation>%1 (nahradí tento soubor)</translation>
    </message>
    <message>
        <source>Choose what to export</source>
        <translation>Vyberte, co exportovat</translation>
    </message>
</context>
<context>
    <name>MapEditor::FillTool</name>
    <message>
        <source>Bucket Fill</source>
        <translation>Vyplnění plechovkou</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapCommands</name>
    <message>
        <source>Select Same &amp;Tile</source>
        <translation>Vybrat s&amp;tejné dlaždice</translation>
    </message>
    <message>
        <source>Selects all cells that show the current tile</source>
        <translation>Vybere všechny buňky, které zobrazují aktuální dlaždici</translation>
    </message>
    <message>
        <source>&amp;Replace Tile…</source>
        <translation>Nahradit &amp;dlaždici…</translation>
    </message>
    <message>
        <source>Puts one tile in place of another, in the selection, the map or all maps of the tile set</source>
        <translation>Nahradí jednu dlaždici jinou ve výběru, na mapě nebo na všech mapách sady dlaždic</translation>
    </message>
    <message>
        <source>Edit Terrain&amp;s…</source>
        <translation>&amp;Upravit terény…</translation>
    </message>
    <message>
        <source>Marks tiles whose borders match when they are painted</source>
        <translation>Označí dlaždice, jejichž okraje na sebe při malování navazují</translation>
    </message>
    <message>
        <source>Go to &amp;Cell…</source>
        <translation>Přejít na &amp;buňku…</translation>
    </message>
    <message>
        <source>Scrolls the map to a cell</source>
        <translation>Posune mapu na buňku</translation>
    </message>
    <message>
        <source>&amp;Overview</source>
        <translation>&amp;Přehled</translation>
    </message>
    <message>
        <source>Shows the whole map in a corner, with the part that is in view to drag</source>
        <translation>Zobrazí v rohu celou mapu; viditelnou část lze přetáhnout</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapEditing</name>
    <message>
        <source>Clear</source>
        <translation>Vymazat</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Vyplnit</translation>
    </message>
    <message>
        <source>Copy Cells</source>
        <translation>Kopírovat buňky</translation>
    </message>
    <message>
        <source>Move Cells</source>
        <translation>Přesunout buňky</translation>
    </message>
    <message>
        <source>Sprite Properties</source>
        <translation>Vlastnosti spritu</translation>
    </message>
    <message>
        <source>Delete Sprite</source>
        <translation>Odstranit sprite</translation>
    </message>
    <message>
        <source>Remove Animation</source>
        <translation>Odebrat animaci</translation>
    </message>
    <message>
        <source>Add Rows</source>
        <translation>Přidat řádky</translation>
    </message>
    <message>
        <source>Add Columns</source>
        <translation>Přidat sloupce</translation>
    </message>
    <message>
        <source>Remove Rows</source>
        <translation>Odebrat řádky</translation>
    </message>
    <message>
        <source>Remove Columns</source>
        <translation>Odebrat sloupce</translation>
    </message>
    <message>
        <source>Resize Map</source>
        <translation>Změna velikosti mapy</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapExport</name>
    <message>
        <source>Choose a directory to export anim into</source>
        <translation>Vyberte složku, do které se animace exportují</translation>
    </message>
    <message>
        <source>Exporting %1…</source>
        <translation>Exportuje se %1…</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapGrid</name>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Vyjmout</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopírovat</translation>
    </message>
    <message>
        <source>Copy to new map</source>
        <translation>Kopírovat do nové mapy</translation>
    </message>
    <message>
        <source>Copy as Image</source>
        <translation>Kopírovat jako obrázek</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Vyplnit</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Vložit</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapKeys</name>
    <message>
        <source>Column %1, row %2</source>
        <translation>Sloupec %1, řádek %2</translation>
    </message>
    <message>
        <source>tile %1</source>
        <translation>dlaždice %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>prázdná</translation>
    </message>
    <message>
        <source>rotated</source>
        <translation>otočená</translation>
    </message>
    <message>
        <source>flipped</source>
        <translation>překlopená svisle</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>překlopená vodorovně</translation>
    </message>
    <message>
        <source>palette offset %1</source>
        <translation>posun palety %1</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>animace</translation>
    </message>
    <message>
        <source>sprite</source>
        <translation>sprite</translation>
    </message>
    <message>
        <source>sprite %1</source>
        <translation>sprite %1</translation>
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
        <translation>Přehled</translation>
    </message>
    <message>
        <source>Drag to scroll the map</source>
        <translation>Tažením se posouvá mapa</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapToolPalette</name>
    <message>
        <source>Rotated</source>
        <translation>Otočeno</translation>
    </message>
    <message>
        <source>Flipped</source>
        <translation>Překlopeno svisle</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Překlopeno vodorovně</translation>
    </message>
    <message>
        <source>Random tiles of the stamp</source>
        <translation>Náhodné dlaždice z razítka</translation>
    </message>
    <message>
        <source>Bucket fill</source>
        <translation>Vyplnění plechovkou</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Čára</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Obdélník</translation>
    </message>
    <message>
        <source>Filled rectangle</source>
        <translation>Vyplněný obdélník</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Elipsa</translation>
    </message>
    <message>
        <source>Filled ellipse</source>
        <translation>Vyplněná elipsa</translation>
    </message>
    <message>
        <source>Paint terrain</source>
        <translation>Malovat terén</translation>
    </message>
</context>
<context>
    <name>MapEditor::PaintBar</name>
    <message>
        <source>Painting</source>
        <translation>Malování</translation>
    </message>
    <message>
        <source>Stamps</source>
        <translation>Razítka</translation>
    </message>
    <message>
        <source>Ctrl-drag tiles to make one</source>
        <translation>Nové: Ctrl + tažení přes dlaždice</translation>
    </message>
    <message>
        <source>Stamps are made of tiles, by dragging with Ctrl in the tile picker, and of cells, by dragging with the Pick tool</source>
        <translation>Razítka se vytvářejí z dlaždic, tažením s Ctrl ve výběru dlaždic, a z buněk, tažením s nástrojem Kapátko</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Posun</translation>
    </message>
    <message>
        <source>Of the tile</source>
        <translation>Podle dlaždice</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Posun palety</translation>
    </message>
    <message>
        <source>The palette offset of painted cells. Ctrl with a painting tool paints it alone, and with the right button brings back that of the tile</source>
        <translation>Posun palety malovaných buněk. S Ctrl maluje nástroj jen posun a pravým tlačítkem vrací posun podle dlaždice</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Terén</translation>
    </message>
    <message>
        <source>What the terrain tool paints</source>
        <translation>Co maluje nástroj pro terén</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádné</translation>
    </message>
    <message>
        <source>Edit Terrains…</source>
        <translation>Upravit terény…</translation>
    </message>
    <message>
        <source>Marks the tiles of terrains</source>
        <translation>Označí dlaždice terénů</translation>
    </message>
    <message>
        <source>%1 × %2 cells</source>
        <translation>%1 × %2 buněk</translation>
    </message>
    <message>
        <source>Stamp of %1</source>
        <translation>Razítko %1</translation>
    </message>
    <message>
        <source>%1, a stamp of %2</source>
        <translation>%1, razítko %2</translation>
    </message>
    <message>
        <source>Name Stamp…</source>
        <translation>Pojmenovat razítko…</translation>
    </message>
    <message>
        <source>Forget Stamp</source>
        <translation>Zapomenout razítko</translation>
    </message>
    <message>
        <source>Name Stamp</source>
        <translation>Pojmenovat razítko</translation>
    </message>
    <message>
        <source>A stamp with a name stays; without one it goes when others are used</source>
        <translation>Pojmenované razítko zůstane; nepojmenované zmizí, až se použijí jiná</translation>
    </message>
</context>
<context>
    <name>MapEditor::PaintDesk</name>
    <message>
        <source>Replace Tile</source>
        <translation>Nahradit dlaždici</translation>
    </message>
    <message>
        <source>Replace Tile in All Maps</source>
        <translation>Nahradit dlaždici na všech mapách</translation>
    </message>
    <message>
        <source>Choose a tile in the Tiles dock and paint here: the left button paints, the right one clears</source>
        <translation>Zvolte dlaždici v panelu Dlaždice a malujte zde: levé tlačítko maluje, pravé maže</translation>
    </message>
</context>
<context>
    <name>MapEditor::PasteTool</name>
    <message>
        <source>Picture of %1 × %2 cells; tiles to be added: %3</source>
        <translation>Obrázek %1 × %2 buněk; přidají se dlaždice: %3</translation>
    </message>
    <message>
        <source>; pixels that take the nearest colour: %1</source>
        <translation>; pixely, které dostanou nejbližší barvu: %1</translation>
    </message>
    <message>
        <source>The picture is smaller than a tile, which has 8 × 8 pixels</source>
        <translation>Obrázek je menší než dlaždice, která má 8 × 8 pixelů</translation>
    </message>
    <message numerus="yes">
        <source>The picture needs %n more tiles, and the tile set has room for %1</source>
        <translation>
            <numerusform>Obrázek potřebuje ještě %n dlaždici a v sadě je místo pro %1</numerusform>
            <numerusform>Obrázek potřebuje ještě %n dlaždice a v sadě je místo pro %1</numerusform>
            <numerusform>Obrázek potřebuje ještě %n dlaždic a v sadě je místo pro %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Paste Picture</source>
        <translation>Vložit obrázek</translation>
    </message>
    <message>
        <source>Tiles added: %1</source>
        <translation>Přidané dlaždice: %1</translation>
    </message>
    <message>
        <source>; pixels that took the nearest colour: %1</source>
        <translation>; pixely, které dostaly nejbližší barvu: %1</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Vložit</translation>
    </message>
</context>
<context>
    <name>MapEditor::PlaceAnimationTool</name>
    <message>
        <source>Place Animation</source>
        <translation>Umístit animaci</translation>
    </message>
</context>
<context>
    <name>MapEditor::PlaceSpriteTool</name>
    <message>
        <source>Place Sprite</source>
        <translation>Umístit sprite</translation>
    </message>
    <message>
        <source>Move Sprite</source>
        <translation>Přesunout sprite</translation>
    </message>
</context>
<context>
    <name>MapEditor::ReplaceTileDialog</name>
    <message>
        <source>Replace Tile</source>
        <translation>Nahradit dlaždici</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Nahradit</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Čím</translation>
    </message>
    <message>
        <source>In the selection</source>
        <translation>Ve výběru</translation>
    </message>
    <message>
        <source>In this map</source>
        <translation>Na této mapě</translation>
    </message>
    <message>
        <source>In all maps of the tile set</source>
        <translation>Na všech mapách sady dlaždic</translation>
    </message>
    <message>
        <source>Tile </source>
        <translation>Dlaždice </translation>
    </message>
    <message>
        <source>These are the same tile</source>
        <translation>Obě dlaždice jsou stejné</translation>
    </message>
</context>
<context>
    <name>MapEditor::ResizeDialog</name>
    <message>
        <source>Resize Map</source>
        <translation>Změna velikosti mapy</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Šířka</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Výška</translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation>Ukotvení</translation>
    </message>
    <message>
        <source> cells</source>
        <translation> buněk</translation>
    </message>
    <message>
        <source>The whole map of %1×%2 cells is kept</source>
        <translation>Zůstane zachována celá mapa, %1×%2 buněk</translation>
    </message>
    <message>
        <source>%1×%2 of %3×%4 cells are kept</source>
        <translation>Zůstane zachováno %1×%2 z %3×%4 buněk</translation>
    </message>
</context>
<context>
    <name>MapEditor::ShapeTool</name>
    <message>
        <source>Line</source>
        <translation>Čára</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Obdélník</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Elipsa</translation>
    </message>
</context>
<context>
    <name>MapEditor::SpriteProperties</name>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Překlopit vodorovně</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Překlopit svisle</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Otočit</translation>
    </message>
    <message>
        <source>Start frame</source>
        <translation>Počáteční snímek</translation>
    </message>
    <message>
        <source>Initial delay</source>
        <translation>Úvodní prodleva</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Prodleva opakování</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Posun palety</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainDialog</name>
    <message>
        <source>Terrains</source>
        <translation>Terény</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>The 4 cells beside</source>
        <translation>4 sousední buňky</translation>
    </message>
    <message>
        <source>All 8 cells around</source>
        <translation>Všech 8 buněk okolo</translation>
    </message>
    <message>
        <source>Which neighbours decide about the tile of a cell</source>
        <translation>Které sousední buňky rozhodují o dlaždici buňky</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Looks at</source>
        <translation>Bere v úvahu</translation>
    </message>
    <message>
        <source>Mark the middle of each tile of the terrain, and the sides and corners where it goes on. The right button takes marks away.</source>
        <translation>U každé dlaždice terénu označte střed a ty strany a rohy, kde terén pokračuje. Pravé tlačítko značky odebírá.</translation>
    </message>
    <message>
        <source>Terrain %1</source>
        <translation>Terén %1</translation>
    </message>
    <message>
        <source>Every terrain needs a name</source>
        <translation>Každý terén musí mít název</translation>
    </message>
    <message>
        <source>Turn tiles where none has the borders</source>
        <translation>Otáčet dlaždice tam, kde žádná nemá potřebné okraje</translation>
    </message>
    <message>
        <source>Also takes tiles that have the borders when they are rotated, flipped or mirrored</source>
        <translation>Použije i dlaždice, které mají tyto okraje po otočení nebo překlopení</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainMarks</name>
    <message>
        <source>Marks of the terrain</source>
        <translation>Značky terénu</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainTool</name>
    <message>
        <source>Paint Terrain</source>
        <translation>Malovat terén</translation>
    </message>
</context>
<context>
    <name>MapEditor::ToolBar</name>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Dlaždice</translation>
    </message>
    <message>
        <source>Show or hide the tile layer</source>
        <translation>Zobrazit nebo skrýt vrstvu dlaždic</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objekty</translation>
    </message>
    <message>
        <source>Show or hide the object layer</source>
        <translation>Zobrazit nebo skrýt vrstvu objektů</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprity</translation>
    </message>
    <message>
        <source>Show or hide the sprite layer</source>
        <translation>Zobrazit nebo skrýt vrstvu spritů</translation>
    </message>
    <message>
        <source>Size in cells of the viewport</source>
        <translation>Velikost výřezu v buňkách</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>Výřez</translation>
    </message>
    <message>
        <source>Viewport width</source>
        <translation>Šířka výřezu</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Viewport height</source>
        <translation>Výška výřezu</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Pozadí</translation>
    </message>
    <message>
        <source>Tile index to be used as a background</source>
        <translation>Index dlaždice použité jako pozadí</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádné</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Průhlednost</translation>
    </message>
    <message>
        <source>Sets the transparency index of the tile set (0-15) or off</source>
        <translation>Nastaví průhledný index sady dlaždic (0–15), nebo ho vypne</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Vypnuto</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Přichytávání</translation>
    </message>
    <message>
        <source>Sets the snap to grid size</source>
        <translation>Nastaví velikost mřížky pro přichytávání</translation>
    </message>
    <message>
        <source>Map size in tiles and bytes</source>
        <translation>Velikost mapy v dlaždicích a bajtech</translation>
    </message>
</context>
<context>
    <name>MapEditor::View</name>
    <message numerus="yes">
        <source>%1x%2 (%n bytes)</source>
        <translation>
            <numerusform>%1x%2 (%n bajt)</numerusform>
            <numerusform>%1x%2 (%n bajty)</numerusform>
            <numerusform>%1x%2 (%n bajtů)</numerusform>
        </translation>
    </message>
    <message>
        <source>Resize or export the map</source>
        <translation>Změnit velikost mapy nebo ji exportovat</translation>
    </message>
    <message>
        <source>Resize Map…</source>
        <translation>Změnit velikost mapy…</translation>
    </message>
    <message>
        <source>Export to Folder…</source>
        <translation>Exportovat do složky…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstranit</translation>
    </message>
</context>
<context>
    <name>MapEditorPage</name>
    <message>
        <source>Render checker board beneath maps</source>
        <translation>Vykreslovat pod mapami šachovnici</translation>
    </message>
    <message>
        <source>Enable grid line overlay</source>
        <translation>Zobrazovat čáry mřížky</translation>
    </message>
    <message>
        <source>Map Editor</source>
        <translation>Editor map</translation>
    </message>
    <message>
        <source>Grid colour</source>
        <translation>Barva mřížky</translation>
    </message>
    <message>
        <source>Alternate colour</source>
        <translation>Střídavá barva</translation>
    </message>
    <message>
        <source>Grid size (in pixels)</source>
        <translation>Velikost mřížky (v pixelech)</translation>
    </message>
    <message>
        <source>Default magnification</source>
        <translation>Výchozí zvětšení</translation>
    </message>
</context>
<context>
    <name>MapMenu</name>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Mapa</translation>
    </message>
    <message>
        <source>&amp;New Map</source>
        <translation>&amp;Nová mapa</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importovat</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportovat</translation>
    </message>
    <message>
        <source>NextTiles (*.nxm *.nxt *.nxp *.nxb)</source>
        <translation>NextTiles (*.nxm *.nxt *.nxp *.nxb)</translation>
    </message>
    <message>
        <source>Image files (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Soubory obrázků (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>Import Map Data</source>
        <translation>Import dat mapy</translation>
    </message>
    <message>
        <source>Export Map Data</source>
        <translation>Export dat mapy</translation>
    </message>
    <message>
        <source>Map Data (*.map)</source>
        <translation>Data mapy (*.map)</translation>
    </message>
    <message>
        <source>Exporting %1…</source>
        <translation>Exportuje se %1…</translation>
    </message>
</context>
<context>
    <name>MapObjects</name>
    <message>
        <source>Empty</source>
        <translation>Prázdné</translation>
    </message>
</context>
<context>
    <name>MapSpritesWindow</name>
    <message>
        <source>Map Sprites</source>
        <translation>Sprity mapy</translation>
    </message>
    <message>
        <source>No sprites</source>
        <translation>Žádné sprity</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animace</translation>
    </message>
    <message>
        <source>Sprite bank</source>
        <translation>Banka spritů</translation>
    </message>
    <message>
        <source>The sprite banks of the project</source>
        <translation>Banky spritů v projektu</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprity</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>Warning!</source>
        <translation>Varování!</translation>
    </message>
</context>
<context>
    <name>NextData</name>
    <message>
        <source>the table of animations</source>
        <translation>tabulka animací</translation>
    </message>
    <message>
        <source>their number</source>
        <translation>jejich počet</translation>
    </message>
    <message>
        <source>the place of “%1”</source>
        <translation>poloha „%1“</translation>
    </message>
    <message>
        <source>animation “%1”</source>
        <translation>animace „%1“</translation>
    </message>
    <message>
        <source>the width</source>
        <translation>šířka</translation>
    </message>
    <message>
        <source>the height</source>
        <translation>výška</translation>
    </message>
    <message>
        <source>the number of frames</source>
        <translation>počet snímků</translation>
    </message>
    <message>
        <source>the kind</source>
        <translation>druh</translation>
    </message>
    <message>
        <source>the delay</source>
        <translation>prodleva</translation>
    </message>
    <message>
        <source>it shows number %1, and %2 is the last one that fits</source>
        <translation>zobrazuje číslo %1, nejvyšší možné je %2</translation>
    </message>
    <message>
        <source>it has the palette offset %1</source>
        <translation>má posun palety %1</translation>
    </message>
    <message>
        <source>Animation “%1”, frame %2, column %3, row %4 (counted from 0): %5</source>
        <translation>Animace „%1“, snímek %2, sloupec %3, řádek %4 (počítáno od 0): %5</translation>
    </message>
    <message>
        <source>number and places of the animations</source>
        <translation>počet a polohy animací</translation>
    </message>
    <message>
        <source>animation %1 “%2”</source>
        <translation>animace %1 „%2“</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>snímek %1</translation>
    </message>
    <message>
        <source>The animations do not lie in the file as its beginning says</source>
        <translation>Animace neleží v souboru tak, jak udává jeho začátek</translation>
    </message>
    <message>
        <source>Bytes behind the last animation that are left out: %1</source>
        <translation>Vynechané bajty za poslední animací: %1</translation>
    </message>
    <message>
        <source>Animations of blocks</source>
        <translation>Animace bloků</translation>
    </message>
    <message>
        <source>Animations of sprites</source>
        <translation>Animace spritů</translation>
    </message>
    <message>
        <source>it leads out of its folder</source>
        <translation>vede mimo svou složku</translation>
    </message>
    <message>
        <source>a folder or file in it has no name</source>
        <translation>některá složka nebo soubor v něm nemá název</translation>
    </message>
    <message>
        <source>There is no file name</source>
        <translation>Chybí název souboru</translation>
    </message>
    <message>
        <source>it is not relative</source>
        <translation>není relativní</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>„%1“ nelze zapsat: %2</translation>
    </message>
    <message>
        <source>“%1” is %2, and the form %3 is for %4</source>
        <translation>„%1“ je %2, ale formát %3 je pro druh „%4“</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>“%1” has %2 pixels, and this form %3</source>
        <translation>„%1“ má %2 pixelů, ale tento formát %3</translation>
    </message>
    <message>
        <source>“%1” has no palette that could stand in front</source>
        <translation>„%1“ nemá paletu, která by mohla být na začátku</translation>
    </message>
    <message>
        <source>“%1”: the pixel at %2, %3 has the index %4, and only those from %5 to %6 go with the first pixel</source>
        <translation>„%1“: pixel na %2, %3 má index %4, ale s prvním pixelem se slučují jen indexy %5 až %6</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and such a picture %2, or %3 or %4 with its palette</source>
        <translation>Soubor má %1 B; takový obrázek má %2, nebo s paletou %3 či %4</translation>
    </message>
    <message>
        <source>The file has one half of the picture, which becomes the upper one</source>
        <translation>V souboru je jen polovina obrázku; použije se jako horní</translation>
    </message>
    <message>
        <source>By rows</source>
        <translation>Po řádcích</translation>
    </message>
    <message>
        <source>By columns</source>
        <translation>Po sloupcích</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Pořadí</translation>
    </message>
    <message>
        <source>In which order the pixels follow each other</source>
        <translation>V jakém pořadí jdou pixely za sebou</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Posun palety</translation>
    </message>
    <message>
        <source>The group of sixteen colours of all pixels, which comes from a register</source>
        <translation>Skupina šestnácti barev všech pixelů, která se bere z registru</translation>
    </message>
    <message>
        <source>Palette in front</source>
        <translation>Paleta na začátku</translation>
    </message>
    <message>
        <source>Writes the 512 bytes of the image&apos;s palette before the pixels</source>
        <translation>Před pixely zapíše 512 bajtů palety obrázku</translation>
    </message>
    <message>
        <source>Two halves</source>
        <translation>Dvě poloviny</translation>
    </message>
    <message>
        <source>Writes the upper and the lower half into files of their own</source>
        <translation>Zapíše horní a dolní polovinu do samostatných souborů</translation>
    </message>
    <message>
        <source>Layer 2, 256 × 192, by rows</source>
        <translation>Layer 2, 256 × 192, po řádcích</translation>
    </message>
    <message>
        <source>Layer 2, 320 × 256, by columns</source>
        <translation>Layer 2, 320 × 256, po sloupcích</translation>
    </message>
    <message>
        <source>Layer 2, 640 × 256, by columns, two pixels a byte</source>
        <translation>Layer 2, 640 × 256, po sloupcích, dva pixely na bajt</translation>
    </message>
    <message>
        <source>LoRes, 128 × 96, by rows</source>
        <translation>LoRes, 128 × 96, po řádcích</translation>
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
        <translation>Layer 2, 640 × 256, dva pixely na bajt</translation>
    </message>
    <message>
        <source>LoRes, 128 × 96</source>
        <translation>LoRes, 128 × 96</translation>
    </message>
    <message>
        <source>screen %1, %2</source>
        <translation>obrazovka %1, %2</translation>
    </message>
    <message>
        <source>“%1”: the cell in column %2, row %3 (counted from 0) %4</source>
        <translation>„%1“: buňka ve sloupci %2, řádku %3 (počítáno od 0) %4</translation>
    </message>
    <message>
        <source>shows tile %1, and %2 is the last one that fits</source>
        <translation>zobrazuje dlaždici %1, nejvyšší možná je %2</translation>
    </message>
    <message>
        <source>has the palette offset %1</source>
        <translation>má posun palety %1</translation>
    </message>
    <message>
        <source>is rotated or mirrored, which one byte does not tell</source>
        <translation>je otočená nebo překlopená, což jeden bajt nevyjádří</translation>
    </message>
    <message>
        <source>has the palette offset %1, others have %2, and one byte does not tell them apart</source>
        <translation>má posun palety %1, jiné mají %2, a jeden bajt je nerozliší</translation>
    </message>
    <message>
        <source>That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most</source>
        <translation>Vznikla by mapa %1 × %2 buněk; nejvíce je %3 na stranu a %4 celkem</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and a cell takes %2</source>
        <translation>Soubor má %1 B a buňka zabírá %2</translation>
    </message>
    <message>
        <source>Cells of the file that are outside the map: %1</source>
        <translation>Buňky souboru mimo mapu: %1</translation>
    </message>
    <message>
        <source>Cells of the map that the file does not have, and that stay blank: %1</source>
        <translation>Buňky mapy, které v souboru nejsou a zůstanou prázdné: %1</translation>
    </message>
    <message>
        <source>Half a cell at the end is left out</source>
        <translation>Polovina buňky na konci se vynechává</translation>
    </message>
    <message>
        <source>In which order the cells of a screen follow each other</source>
        <translation>V jakém pořadí jdou buňky obrazovky za sebou</translation>
    </message>
    <message>
        <source>Screen width</source>
        <translation>Šířka obrazovky</translation>
    </message>
    <message>
        <source>Cells across a screen into which the map is cut; 0 is the whole width</source>
        <translation>Kolik buněk na šířku mají obrazovky, na které se mapa rozdělí; 0 je celá šířka</translation>
    </message>
    <message>
        <source>Screen height</source>
        <translation>Výška obrazovky</translation>
    </message>
    <message>
        <source>Cells down a screen into which the map is cut; 0 is the whole height</source>
        <translation>Kolik buněk na výšku mají obrazovky, na které se mapa rozdělí; 0 je celá výška</translation>
    </message>
    <message>
        <source>A file for each screen</source>
        <translation>Každá obrazovka ve svém souboru</translation>
    </message>
    <message>
        <source>Writes the screens into numbered files of their own</source>
        <translation>Zapíše obrazovky do samostatných číslovaných souborů</translation>
    </message>
    <message>
        <source>Tile map, two bytes a cell</source>
        <translation>Dlaždicová mapa, dva bajty na buňku</translation>
    </message>
    <message>
        <source>Tile map, one byte a cell</source>
        <translation>Dlaždicová mapa, jeden bajt na buňku</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Šířka</translation>
    </message>
    <message>
        <source>Cells across the map; 0 is what most maps of so many cells have</source>
        <translation>Počet buněk mapy na šířku; 0 je šířka, jakou má většina map s tolika buňkami</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Výška</translation>
    </message>
    <message>
        <source>Cells down the map; 0 is as far as the file goes</source>
        <translation>Počet buněk mapy na výšku; 0 je až do konce souboru</translation>
    </message>
    <message>
        <source>Cells across the screens into which the map was cut; 0 is the whole width</source>
        <translation>Kolik buněk na šířku mají obrazovky, na které byla mapa rozdělena; 0 je celá šířka</translation>
    </message>
    <message>
        <source>Cells down the screens into which the map was cut; 0 is the whole height</source>
        <translation>Kolik buněk na výšku mají obrazovky, na které byla mapa rozdělena; 0 je celá výška</translation>
    </message>
    <message>
        <source>Bit 0</source>
        <translation>Bit 0</translation>
    </message>
    <message>
        <source>What the lowest bit of a cell&apos;s second byte says</source>
        <translation>Co udává nejnižší bit druhého bajtu buňky</translation>
    </message>
    <message>
        <source>Tiles from 256 on</source>
        <translation>Dlaždice od 256 výš</translation>
    </message>
    <message>
        <source>The ULA&apos;s picture is in front: left out</source>
        <translation>Obraz ULA je vpředu: vynechává se</translation>
    </message>
    <message>
        <source>The palette offset of all cells, which comes from a register</source>
        <translation>Posun palety všech buněk, který se bere z registru</translation>
    </message>
    <message>
        <source>“%1” cannot be a label: those are a letter, then letters, digits and _, %2 at most</source>
        <translation>„%1“ nemůže být návěští: to začíná písmenem, pak jsou písmena, číslice a _, nejvýše %2 znaků</translation>
    </message>
    <message>
        <source>“%1” cannot be a label: assemblers or C give it a meaning</source>
        <translation>„%1“ nemůže být návěští: v assembleru nebo v C má jiný význam</translation>
    </message>
    <message>
        <source>The label “%1”, or a name made of it, is that of another output already</source>
        <translation>Návěští „%1“, nebo název z něj vytvořený, už má jiný výstup</translation>
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
        <translation>„%1“, %2: v projektu chybí %3</translation>
    </message>
    <message>
        <source>the number of records</source>
        <translation>počet záznamů</translation>
    </message>
    <message>
        <source>it</source>
        <translation>hodnota</translation>
    </message>
    <message>
        <source>number of records</source>
        <translation>počet záznamů</translation>
    </message>
    <message>
        <source>placed sprite</source>
        <translation>umístěný sprite</translation>
    </message>
    <message>
        <source>sprite bank</source>
        <translation>banka spritů</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>animace</translation>
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
        <translation>poloha jeho banky</translation>
    </message>
    <message>
        <source>16 times the palette offset, and the flags,</source>
        <translation>16násobek posunu palety plus příznaky</translation>
    </message>
    <message>
        <source>the animation</source>
        <translation>animace</translation>
    </message>
    <message>
        <source>the sprite</source>
        <translation>sprite</translation>
    </message>
    <message>
        <source>the start frame</source>
        <translation>počáteční snímek</translation>
    </message>
    <message>
        <source>the initial delay</source>
        <translation>úvodní prodleva</translation>
    </message>
    <message>
        <source>the repeat delay</source>
        <translation>prodleva opakování</translation>
    </message>
    <message>
        <source>the place of the name</source>
        <translation>poloha názvu</translation>
    </message>
    <message>
        <source>names</source>
        <translation>názvy</translation>
    </message>
    <message>
        <source>placed animation</source>
        <translation>umístěná animace</translation>
    </message>
    <message>
        <source>the column</source>
        <translation>sloupec</translation>
    </message>
    <message>
        <source>the row</source>
        <translation>řádek</translation>
    </message>
    <message>
        <source>the place of its block set</source>
        <translation>poloha její sady bloků</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Názvy</translation>
    </message>
    <message>
        <source>Whether the names of sprites stand behind the records</source>
        <translation>Zda za záznamy následují názvy spritů</translation>
    </message>
    <message>
        <source>Behind the records</source>
        <translation>Za záznamy</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Vynechat</translation>
    </message>
    <message>
        <source>Sprites placed on a map</source>
        <translation>Sprity umístěné na mapě</translation>
    </message>
    <message>
        <source>Animated blocks placed on a map</source>
        <translation>Animované bloky umístěné na mapě</translation>
    </message>
    <message>
        <source>Option %1: “%2” is not %3</source>
        <translation>Volba %1: „%2“ není %3</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ani false</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>celé číslo od %1 do %2</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>žádná z hodnot %1</translation>
    </message>
    <message>
        <source>There is no option “%1”, only %2</source>
        <translation>Volba „%1“ neexistuje, jen %2</translation>
    </message>
    <message>
        <source>“%1” would be C source and its header: another suffix is needed, as .c</source>
        <translation>„%1“ by byl zdrojový soubor C i jeho hlavičkový soubor: je třeba jiná přípona, například .c</translation>
    </message>
    <message>
        <source>“%1” has nothing to write in this form</source>
        <translation>„%1“ nemá v tomto formátu co zapsat</translation>
    </message>
    <message>
        <source>padding</source>
        <translation>doplnění</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>Zdrojový kód</translation>
    </message>
    <message>
        <source>Bytes for incbin, or source text in the words of an assembler or of C</source>
        <translation>Bajty pro incbin, nebo zdrojový kód v zápisu některého assembleru či jazyka C</translation>
    </message>
    <message>
        <source>No, bytes</source>
        <translation>Ne, bajty</translation>
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
        <translation>C: pole a jeho hlavičkový soubor</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Návěští</translation>
    </message>
    <message>
        <source>The label of the bytes in source text; made from the asset&apos;s name when there is none</source>
        <translation>Návěští bajtů ve zdrojovém kódu; není-li zadáno, vytvoří se z názvu položky</translation>
    </message>
    <message>
        <source>Pad to a multiple of</source>
        <translation>Doplnit na násobek</translation>
    </message>
    <message>
        <source>Adds zeros until the size is a multiple of so many bytes; 0 adds none</source>
        <translation>Přidává nuly, dokud velikost není násobkem tolika bajtů; 0 nepřidá žádné</translation>
    </message>
    <message>
        <source>Cut into files</source>
        <translation>Rozdělit na soubory</translation>
    </message>
    <message>
        <source>Numbered files that each fit into a page of 8 KiB or a bank of 16 KiB</source>
        <translation>Číslované soubory, z nichž se každý vejde na stránku 8 KiB nebo do banky 16 KiB</translation>
    </message>
    <message>
        <source>No, one file</source>
        <translation>Ne, jeden soubor</translation>
    </message>
    <message>
        <source>8 KiB each</source>
        <translation>Po 8 KiB</translation>
    </message>
    <message>
        <source>16 KiB each</source>
        <translation>Po 16 KiB</translation>
    </message>
    <message>
        <source>“%1” is no plain file name</source>
        <translation>„%1“ není prostý název souboru</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>transparency</source>
        <translation>průhlednost</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and such a palette %2</source>
        <translation>Soubor má %1 B, taková paleta %2</translation>
    </message>
    <message>
        <source>2 an entry, %1 in all</source>
        <translation>2 na políčko, celkem %1</translation>
    </message>
    <message>
        <source>The file has %1 entries; the others stay as they are</source>
        <translation>Počet políček v souboru: %1; ostatní zůstanou beze změny</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Průhlednost</translation>
    </message>
    <message>
        <source>What the last byte holds of the transparent entry; $E3 for a palette without one</source>
        <translation>Co obsahuje poslední bajt o průhledném políčku; $E3 u palety bez něj</translation>
    </message>
    <message>
        <source>Its colour RRRGGGBB, for layers</source>
        <translation>Jeho barva RRRGGGBB, pro vrstvy</translation>
    </message>
    <message>
        <source>Its index, for sprites</source>
        <translation>Jeho index, pro sprity</translation>
    </message>
    <message>
        <source>Which of the sixteen groups of sixteen entries is written</source>
        <translation>Která ze šestnácti skupin po šestnácti políčkách se zapíše</translation>
    </message>
    <message>
        <source>Palette, 9 bits a colour</source>
        <translation>Paleta, 9 bitů na barvu</translation>
    </message>
    <message>
        <source>Palette, 9 bits a colour, and the transparency</source>
        <translation>Paleta, 9 bitů na barvu, a průhlednost</translation>
    </message>
    <message>
        <source>Palette, 8 bits a colour</source>
        <translation>Paleta, 8 bitů na barvu</translation>
    </message>
    <message>
        <source>Sixteen colours of a palette, 9 bits each</source>
        <translation>Šestnáct barev palety, po 9 bitech</translation>
    </message>
    <message>
        <source>What the last byte says of the transparent entry</source>
        <translation>Co udává poslední bajt o průhledném políčku</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nic</translation>
    </message>
    <message>
        <source>Which of the sixteen groups of sixteen entries the colours become</source>
        <translation>Do které ze šestnácti skupin po šestnácti políčkách se barvy načtou</translation>
    </message>
    <message>
        <source>First</source>
        <translation>První</translation>
    </message>
    <message>
        <source>The number of the first one, counted from 0</source>
        <translation>Číslo prvního prvku, počítáno od 0</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Počet</translation>
    </message>
    <message>
        <source>How many are written; 0 is all from the first on</source>
        <translation>Kolik se zapíše; 0 znamená všechny od prvního</translation>
    </message>
    <message>
        <source>Options first and count: there are %1, and %2 from number %3 on are not</source>
        <translation>Volby První a Počet: prvků je %1, takže od čísla %3 jich není %2</translation>
    </message>
    <message>
        <source>How many are read; 0 is all from the first on</source>
        <translation>Kolik se načte; 0 znamená všechny od prvního</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and one of these takes %2</source>
        <translation>Soubor má %1 B a jeden prvek zabírá %2</translation>
    </message>
    <message>
        <source>The file holds %1, and %2 go into an asset: choose which, with first and count</source>
        <translation>Počet prvků v souboru: %1; do položky se jich vejde %2: vyberte je volbami První a Počet</translation>
    </message>
    <message>
        <source>Bytes behind the last whole one that are left out: %1</source>
        <translation>Vynechané bajty za posledním celým prvkem: %1</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Soubor je prázdný</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and the largest that is read as it is %2</source>
        <translation>Soubor má %1 B, největší, který lze takto načíst, má %2</translation>
    </message>
    <message>
        <source>There is no form “%1”</source>
        <translation>Formát „%1“ neexistuje</translation>
    </message>
    <message>
        <source>%1 is a form of %2, not of %3</source>
        <translation>%1 je formát pro druh „%2“, ne „%3“</translation>
    </message>
    <message>
        <source>“%1” is the file of another output as well</source>
        <translation>„%1“ je i soubor jiného výstupu</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Takový soubor neexistuje</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Soubor nelze načíst</translation>
    </message>
    <message>
        <source>The file is too large for a recipe</source>
        <translation>Soubor je na recept příliš velký</translation>
    </message>
    <message>
        <source>The project no longer has %1 “%2” with the id %3, but another one of that name (%4)</source>
        <translation>V projektu už není %1 „%2“ s id %3, ale je v něm jiná položka téhož názvu (%4)</translation>
    </message>
    <message>
        <source>The project no longer has %1 “%2” with the id %3</source>
        <translation>V projektu už není %1 „%2“ s id %3</translation>
    </message>
    <message>
        <source>“%1” is the project or its recipe</source>
        <translation>„%1“ je projekt nebo jeho recept</translation>
    </message>
    <message>
        <source>“%1” is written for “%2” already</source>
        <translation>„%1“ už se zapisuje pro „%2“</translation>
    </message>
    <message>
        <source>This is no JSON: %1</source>
        <translation>Není to JSON: %1</translation>
    </message>
    <message>
        <source>This is no recipe: “%1” is missing</source>
        <translation>Není to recept: chybí „%1“</translation>
    </message>
    <message>
        <source>The recipe is from a newer version of Quenmora</source>
        <translation>Recept pochází z novější verze programu Quenmora</translation>
    </message>
    <message>
        <source>“%1” must be a list</source>
        <translation>„%1“ musí být seznam</translation>
    </message>
    <message>
        <source>“%1” means nothing here</source>
        <translation>„%1“ zde nemá význam</translation>
    </message>
    <message>
        <source>“%1” is there twice</source>
        <translation>„%1“ je uvedeno dvakrát</translation>
    </message>
    <message>
        <source>There are more than %1 outputs</source>
        <translation>Výstupů je víc než %1</translation>
    </message>
    <message>
        <source>“%1” is the file of line %2 already</source>
        <translation>„%1“ už je soubor z řádku %2</translation>
    </message>
    <message>
        <source>“%1” is missing</source>
        <translation>Chybí „%1“</translation>
    </message>
    <message>
        <source>“%1” must be a text</source>
        <translation>„%1“ musí být text</translation>
    </message>
    <message>
        <source>An output must be an object</source>
        <translation>Výstup musí být objekt</translation>
    </message>
    <message>
        <source>There is no kind of asset “%1”</source>
        <translation>Druh položky „%1“ neexistuje</translation>
    </message>
    <message>
        <source>“%1” is no id</source>
        <translation>„%1“ není id</translation>
    </message>
    <message>
        <source>“%1” must be an object</source>
        <translation>„%1“ musí být objekt</translation>
    </message>
    <message>
        <source>%1 has no option “%2”</source>
        <translation>%1 nemá volbu „%2“</translation>
    </message>
    <message>
        <source>The option “%1” has a value of the wrong type</source>
        <translation>Volba „%1“ má hodnotu nesprávného typu</translation>
    </message>
    <message>
        <source>“%1”, %2: %3 is %4, and %5 to %6 fit</source>
        <translation>„%1“, %2: %3 je %4, dovoleno je %5 až %6</translation>
    </message>
    <message>
        <source>a palette</source>
        <translation>paleta</translation>
    </message>
    <message>
        <source>a tile set</source>
        <translation>sada dlaždic</translation>
    </message>
    <message>
        <source>a map</source>
        <translation>mapa</translation>
    </message>
    <message>
        <source>a block set</source>
        <translation>sada bloků</translation>
    </message>
    <message>
        <source>a sprite bank</source>
        <translation>banka spritů</translation>
    </message>
    <message>
        <source>an image</source>
        <translation>obrázek</translation>
    </message>
    <message>
        <source>“%1” is a bank of 8 bits: sprite %2 (counted from 0) has a pixel of index %3, and 4 bits hold 0 to 15</source>
        <translation>„%1“ je 8bitová banka: sprite %2 (počítáno od 0) má pixel s indexem %3, ale 4 bity pojmou 0 až 15</translation>
    </message>
    <message>
        <source>Sprites, 8 bits a pixel</source>
        <translation>Sprity, 8 bitů na pixel</translation>
    </message>
    <message>
        <source>Sprites, 4 bits a pixel, packed</source>
        <translation>Sprity, 4 bity na pixel, zhuštěné</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Hloubka</translation>
    </message>
    <message>
        <source>How many bits of a pixel count</source>
        <translation>Kolik bitů pixelu se použije</translation>
    </message>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bitů, 256 barev</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bity, 16 barev</translation>
    </message>
    <message>
        <source>“%1” cannot be written: “%2” is a link that leads nowhere</source>
        <translation>„%1“ nelze zapsat: odkaz „%2“ nikam nevede</translation>
    </message>
    <message>
        <source>“%1” cannot be written: the link “%2” leads out of the folder</source>
        <translation>„%1“ nelze zapsat: odkaz „%2“ vede mimo složku</translation>
    </message>
    <message>
        <source>“%1” cannot be written: it is a folder</source>
        <translation>„%1“ nelze zapsat: je to složka</translation>
    </message>
    <message>
        <source>“%1” cannot be written: “%2” is no folder</source>
        <translation>„%1“ nelze zapsat: „%2“ není složka</translation>
    </message>
    <message>
        <source>“%1”: tile %2 (counted from 0) has the value %3, and %4 to %5 fit</source>
        <translation>„%1“: dlaždice %2 (počítáno od 0) má hodnotu %3, dovoleno je %4 až %5</translation>
    </message>
    <message>
        <source>The file holds numbers of %1 tiles, and a tile set has at most %2</source>
        <translation>Soubor obsahuje čísla dlaždic: %1; v sadě jich může být nejvýše %2</translation>
    </message>
    <message>
        <source>In which order the pixels of a tile follow each other</source>
        <translation>V jakém pořadí jdou pixely dlaždice za sebou</translation>
    </message>
    <message>
        <source>How many bytes a value takes</source>
        <translation>Kolik bajtů zabírá hodnota</translation>
    </message>
    <message>
        <source>One byte</source>
        <translation>Jeden bajt</translation>
    </message>
    <message>
        <source>Two bytes</source>
        <translation>Dva bajty</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Inkoust</translation>
    </message>
    <message>
        <source>The colour (0–15) of the pixels that are set; all others are clear</source>
        <translation>Barva (0–15) nastavených pixelů; všechny ostatní jsou průhledné</translation>
    </message>
    <message>
        <source>Tiles, 4 bits a pixel</source>
        <translation>Dlaždice, 4 bity na pixel</translation>
    </message>
    <message>
        <source>Tiles, 8 bits a pixel</source>
        <translation>Dlaždice, 8 bitů na pixel</translation>
    </message>
    <message>
        <source>Tiles, 1 bit a pixel</source>
        <translation>Dlaždice, 1 bit na pixel</translation>
    </message>
    <message>
        <source>Attributes of tiles</source>
        <translation>Atributy dlaždic</translation>
    </message>
    <message>
        <source>Values of tiles</source>
        <translation>Hodnoty dlaždic</translation>
    </message>
    <message>
        <source>The group of sixteen colours in which the tiles are shown</source>
        <translation>Skupina šestnácti barev, ve které se dlaždice zobrazují</translation>
    </message>
    <message>
        <source>The colour (0–15) of the pixels that are set</source>
        <translation>Barva (0–15) nastavených pixelů</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papír</translation>
    </message>
    <message>
        <source>The colour (0–15) of all others</source>
        <translation>Barva (0–15) všech ostatních</translation>
    </message>
    <message>
        <source>The tile that the first number is for, counted from 0</source>
        <translation>Dlaždice, pro kterou je první číslo, počítáno od 0</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation>Složku %1 nelze vytvořit</translation>
    </message>
    <message>
        <source>The records do not lie in the file as its beginning says</source>
        <translation>Záznamy neleží v souboru tak, jak říká jeho začátek</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>rozsahy</translation>
    </message>
    <message>
        <source>Ranges of a palette whose colours go round</source>
        <translation>Rozsahy palety, jejichž barvy obíhají</translation>
    </message>
</context>
<context>
    <name>NextDataImport</name>
    <message>
        <source>Some of the required files are missing</source>
        <translation>Některé z potřebných souborů chybějí</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importuje se %1…</translation>
    </message>
    <message>
        <source>Could not import the palette data</source>
        <translation>Data palety se nepodařilo importovat</translation>
    </message>
    <message>
        <source>Could not import the tile data</source>
        <translation>Data dlaždic se nepodařilo importovat</translation>
    </message>
    <message>
        <source>Could not import the map data</source>
        <translation>Data mapy se nepodařilo importovat</translation>
    </message>
</context>
<context>
    <name>NextSteps</name>
    <message>
        <source>This project is empty. Begin with:</source>
        <translation>Tento projekt je prázdný. Začněte takto:</translation>
    </message>
    <message>
        <source>A map from a picture</source>
        <translation>Mapa z obrázku</translation>
    </message>
    <message>
        <source>Cuts a picture into tiles and makes a palette, a tile set and a map of it</source>
        <translation>Rozřeže obrázek na dlaždice a vytvoří z něj paletu, sadu dlaždic a mapu</translation>
    </message>
    <message>
        <source>Files that there are</source>
        <translation>Stávající soubory</translation>
    </message>
    <message>
        <source>Looks at files of any kind, shows what they are, and makes assets of them</source>
        <translation>Prohlédne soubory všech druhů, ukáže, co obsahují, a vytvoří z nich položky</translation>
    </message>
    <message>
        <source>A new palette</source>
        <translation>Nová paleta</translation>
    </message>
    <message>
        <source>The colours that everything else is drawn with</source>
        <translation>Barvy, kterými se kreslí vše ostatní</translation>
    </message>
    <message>
        <source>A new tile set</source>
        <translation>Nová sada dlaždic</translation>
    </message>
    <message>
        <source>The tiles that maps are built from</source>
        <translation>Dlaždice, ze kterých se skládají mapy</translation>
    </message>
    <message>
        <source>New sprites</source>
        <translation>Nové sprity</translation>
    </message>
    <message>
        <source>A bank of sprites of 16 × 16 pixels</source>
        <translation>Banka spritů 16 × 16 pixelů</translation>
    </message>
</context>
<context>
    <name>NumberStepper</name>
    <message>
        <source>Number</source>
        <translation>Číslo</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>z %1</translation>
    </message>
    <message>
        <source>%1: previous</source>
        <translation>%1: předchozí</translation>
    </message>
    <message>
        <source>%1: next</source>
        <translation>%1: další</translation>
    </message>
</context>
<context>
    <name>OptionFields</name>
    <message>
        <source>As it is</source>
        <translation>Beze změny</translation>
    </message>
    <message>
        <source>Made from the name</source>
        <translation>Odvodit z názvu</translation>
    </message>
</context>
<context>
    <name>OutputDialog</name>
    <message>
        <source>Edit Output</source>
        <translation>Úprava výstupu</translation>
    </message>
    <message>
        <source>Below the project&apos;s folder, with / between folders</source>
        <translation>Uvnitř složky projektu; složky se oddělují znakem /</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Položka</translation>
    </message>
    <message>
        <source>&amp;Form</source>
        <translation>&amp;Formát</translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation>&amp;Soubor</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The project no longer has this asset</source>
        <translation>Projekt už tuto položku nemá</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes: %1</source>
        <translation>
            <numerusform>%Ln bajt: %1</numerusform>
            <numerusform>%Ln bajty: %1</numerusform>
            <numerusform>%Ln bajtů: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>Nelze: %1</translation>
    </message>
    <message>
        <source>“%1” is the file of another output</source>
        <translation>„%1“ je soubor jiného výstupu</translation>
    </message>
</context>
<context>
    <name>OutputPreview</name>
    <message>
        <source>Preview</source>
        <translation>Náhled</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln bytes)</source>
        <translation>
            <numerusform>%1 (%Ln bajt)</numerusform>
            <numerusform>%1 (%Ln bajty)</numerusform>
            <numerusform>%1 (%Ln bajtů)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PaintOptionsBar</name>
    <message>
        <source>Size of the brush: [ makes it smaller, ] larger</source>
        <translation>Velikost štětce: [ ho zmenší, ] zvětší</translation>
    </message>
    <message>
        <source>Size of the brush</source>
        <translation>Velikost štětce</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Obrázek</translation>
    </message>
</context>
<context>
    <name>PaintSettings</name>
    <message>
        <source>Connect &amp;Strokes</source>
        <translation>&amp;Spojovat tahy</translation>
    </message>
    <message>
        <source>Draw without gaps, however fast the pointer moves</source>
        <translation>Kreslí bez mezer, i když se ukazatel pohybuje rychle</translation>
    </message>
    <message>
        <source>&amp;Pixel Perfect Lines</source>
        <translation>&amp;Pixelově přesné čáry</translation>
    </message>
    <message>
        <source>Draw freehand lines of one pixel without corners</source>
        <translation>Kreslí čáry od ruky o šířce jednoho pixelu bez rohů</translation>
    </message>
    <message>
        <source>S&amp;hade</source>
        <translation>S&amp;tínování</translation>
    </message>
    <message>
        <source>Step pixels along the colours between foreground and background: the left button towards the foreground, the right button towards the background</source>
        <translation>Posouvá pixely po barvách mezi popředím a pozadím: levé tlačítko k popředí, pravé k pozadí</translation>
    </message>
    <message>
        <source>&amp;Round Brush</source>
        <translation>&amp;Kulatý štětec</translation>
    </message>
    <message>
        <source>Draw with a round brush</source>
        <translation>Kreslí kulatým štětcem</translation>
    </message>
    <message>
        <source>Mirror &amp;Left and Right</source>
        <translation>Zrcadlit &amp;vlevo a vpravo</translation>
    </message>
    <message>
        <source>Draw on the left and on the right at once</source>
        <translation>Kreslí vlevo i vpravo zároveň</translation>
    </message>
    <message>
        <source>Mirror &amp;Top and Bottom</source>
        <translation>Zrcadlit &amp;nahoře a dole</translation>
    </message>
    <message>
        <source>Draw at the top and at the bottom at once</source>
        <translation>Kreslí nahoře i dole zároveň</translation>
    </message>
</context>
<context>
    <name>PaletteColourCommand</name>
    <message>
        <source>Colour</source>
        <translation>Barva</translation>
    </message>
</context>
<context>
    <name>PaletteDialog</name>
    <message>
        <source>New Palette</source>
        <translation>Nová paleta</translation>
    </message>
    <message>
        <source>Create a new palette</source>
        <translation>Vytvořit novou paletu</translation>
    </message>
    <message>
        <source>Palette Name</source>
        <translation>Název palety</translation>
    </message>
    <message>
        <source>Copy colours from current palette</source>
        <translation>Kopírovat barvy z aktuální palety</translation>
    </message>
    <message>
        <source>Use the default Next palette</source>
        <translation>Použít výchozí paletu Nextu</translation>
    </message>
    <message>
        <source>Create a blank palette</source>
        <translation>Vytvořit prázdnou paletu</translation>
    </message>
    <message>
        <source>Palette names must be unique</source>
        <translation>Názvy palet musí být jedinečné</translation>
    </message>
    <message>
        <source>Palette name is required</source>
        <translation>Zadejte název palety</translation>
    </message>
</context>
<context>
    <name>PaletteEditor</name>
    <message>
        <source>Darkens the selected colour(s)</source>
        <translation>Ztmaví vybrané barvy</translation>
    </message>
    <message>
        <source>Lightens the selected colour(s)</source>
        <translation>Zesvětlí vybrané barvy</translation>
    </message>
    <message>
        <source>Create a gradient</source>
        <translation>Vytvoří přechod</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Ztmavit</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Zesvětlit</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Přechod</translation>
    </message>
</context>
<context>
    <name>PaletteGrid</name>
    <message>
        <source>Palette Grid Colour Chooser</source>
        <translation>Výběr barvy v mřížce palety</translation>
    </message>
    <message>
        <source>Index %1: $%2</source>
        <translation>Index %1: $%2</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Barva %1, %2, průhledná</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Barva %1, %2</translation>
    </message>
</context>
<context>
    <name>PaletteMenu</name>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>&amp;New Palette</source>
        <translation>&amp;Nová paleta</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importovat</translation>
    </message>
    <message>
        <source>No Palette</source>
        <translation>Žádná paleta</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportovat</translation>
    </message>
    <message>
        <source>Import Palette</source>
        <translation>Import palety</translation>
    </message>
    <message>
        <source>Palette (*.pal *.npl)</source>
        <translation>Paleta (*.pal *.npl)</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp)</source>
        <translation>Obrázky (*.png *.bmp)</translation>
    </message>
    <message>
        <source>Export Palette</source>
        <translation>Export palety</translation>
    </message>
</context>
<context>
    <name>PaletteNotice</name>
    <message>
        <source>There is no palette yet to show colours with.
Palette ▸ New Palette makes one.</source>
        <translation>Zatím není žádná paleta, která by dala barvy.
Vytvoříte ji příkazem Paleta ▸ Nová paleta.</translation>
    </message>
</context>
<context>
    <name>PaletteSelectorDialog</name>
    <message>
        <source>Swap Palette</source>
        <translation>Vyměnit paletu</translation>
    </message>
    <message>
        <source>Show with another palette</source>
        <translation>Zobrazit s jinou paletou</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>There is no palette to choose; please create one first</source>
        <translation>Není z čeho vybírat; nejdřív vytvořte paletu</translation>
    </message>
</context>
<context>
    <name>PaletteTools</name>
    <message>
        <source>Sort by &amp;Hue</source>
        <translation>Seřadit podle od&amp;stínu</translation>
    </message>
    <message>
        <source>Orders the selected entries from red over green to blue, greys first; pictures keep their look</source>
        <translation>Seřadí vybraná políčka od červené přes zelenou po modrou, šedé první; vzhled obrázků se nezmění</translation>
    </message>
    <message>
        <source>Sort Palette</source>
        <translation>Seřazení palety</translation>
    </message>
    <message>
        <source>Sort by &amp;Brightness</source>
        <translation>Seřadit podle j&amp;asu</translation>
    </message>
    <message>
        <source>Orders the selected entries from dark to light; pictures keep their look</source>
        <translation>Seřadí vybraná políčka od tmavých po světlé; vzhled obrázků se nezmění</translation>
    </message>
    <message>
        <source>Re&amp;verse</source>
        <translation>O&amp;brátit pořadí</translation>
    </message>
    <message>
        <source>Puts the selected entries into the opposite order; pictures keep their look</source>
        <translation>Obrátí pořadí vybraných políček; vzhled obrázků se nezmění</translation>
    </message>
    <message>
        <source>Reverse Palette</source>
        <translation>Obrácení palety</translation>
    </message>
    <message>
        <source>E&amp;xchange Ends</source>
        <translation>Proho&amp;dit konce</translation>
    </message>
    <message>
        <source>Lets the first and the last selected entry change places; pictures keep their look</source>
        <translation>Vymění první a poslední vybrané políčko; vzhled obrázků se nezmění</translation>
    </message>
    <message>
        <source>Exchange Palette Entries</source>
        <translation>Prohození políček palety</translation>
    </message>
    <message>
        <source>&amp;Gradient in Machine Steps</source>
        <translation>&amp;Přechod v krocích stroje</translation>
    </message>
    <message>
        <source>Spreads the selection from its first to its last colour, each channel in the nearest of its eight levels</source>
        <translation>Vyplní výběr přechodem od první barvy k poslední, každá složka dostane nejbližší z osmi úrovní</translation>
    </message>
    <message>
        <source>Mark &amp;Unused Entries</source>
        <translation>Označit &amp;nepoužitá políčka</translation>
    </message>
    <message>
        <source>Marks the entries that no pixel has</source>
        <translation>Označí políčka, která nepoužívá žádný pixel</translation>
    </message>
    <message>
        <source>Mark E&amp;qual Entries</source>
        <translation>Označit s&amp;tejná políčka</translation>
    </message>
    <message>
        <source>Marks the entries whose colour others have, too</source>
        <translation>Označí políčka, jejichž barvu mají i jiná</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 pixel</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pixels</source>
        <translation>
            <numerusform>%Ln pixel</numerusform>
            <numerusform>%Ln pixely</numerusform>
            <numerusform>%Ln pixelů</numerusform>
        </translation>
    </message>
    <message>
        <source>Select the entries that are to change places</source>
        <translation>Vyberte políčka, která se mají prohodit</translation>
    </message>
    <message>
        <source>Colour cycles whose entries are no longer next to each other were removed; undo brings them back</source>
        <translation>Barevné cykly, jejichž položky už neleží vedle sebe, byly odebrány; krok zpět je vrátí</translation>
    </message>
    <message>
        <source>The entries cannot change places: tiles and 4-bit sprites need theirs in their group of 16, and transparent entries, and those of tiles that are drawn with several palette offsets, must stay where they are</source>
        <translation>Políčka nelze prohodit: dlaždice a 4bitové sprity potřebují svá políčka ve své skupině 16, a průhledná políčka i políčka dlaždic kreslených s několika posuny palety musí zůstat na místě</translation>
    </message>
    <message>
        <source>Colour C&amp;ycles…</source>
        <translation>Barevné c&amp;ykly…</translation>
    </message>
    <message>
        <source>Ranges of entries whose colours go round, so that water flows and fires burn</source>
        <translation>Rozsahy políček, jejichž barvy obíhají, aby voda tekla a oheň hořel</translation>
    </message>
    <message>
        <source>Move Palette Entries</source>
        <translation>Přesunutí políček palety</translation>
    </message>
</context>
<context>
    <name>PaletteWindow</name>
    <message>
        <source>Palette Editor</source>
        <translation>Editor palety</translation>
    </message>
    <message>
        <source>No palette selected</source>
        <translation>Není vybrána paleta</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>The palettes of the project</source>
        <translation>Palety projektu</translation>
    </message>
    <message>
        <source>Rename, copy, delete or sort the palette</source>
        <translation>Přejmenovat, kopírovat, odstranit nebo seřadit paletu</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Pře&amp;jmenovat</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopírovat</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Odstranit</translation>
    </message>
    <message>
        <source>Palette: %1</source>
        <translation>Paleta: %1</translation>
    </message>
    <message>
        <source>All colours are black. Choose one and change it below, or bring in others with Palette ▸ Import.</source>
        <translation>Všechny barvy jsou černé. Zvolte některou a změňte ji níže, nebo načtěte jiné pomocí Paleta ▸ Importovat.</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>It has %1 × %2 pixels; at most %3 × %3, or as many in another shape, can be read</source>
        <translation>Rozměry jsou %1 × %2 pixelů; načíst lze nejvýše %3 × %3, nebo stejný počet v jiném tvaru</translation>
    </message>
    <message>
        <source>Could not read the image file</source>
        <translation>Soubor obrázku se nepodařilo načíst</translation>
    </message>
    <message>
        <source>It is a pipe or a device, not a file</source>
        <translation>Je to roura nebo zařízení, ne soubor</translation>
    </message>
</context>
<context>
    <name>PictureImport</name>
    <message>
        <source>Tiles that lost colours: %1 of %2.
A tile shows 16 colours, and all of them together have 16 groups of 16. Reduce the colours of the picture, to 16 in each tile of 8 × 8 pixels and to fewer in all, and import it again.</source>
        <translation>Dlaždice, které přišly o barvy: %1 z %2.
Dlaždice zobrazí 16 barev a všechny dohromady mají 16 skupin po 16. Snižte počet barev obrázku na 16 v každé dlaždici 8 × 8 pixelů i celkově a importujte jej znovu.</translation>
    </message>
    <message>
        <source>Cannot import the image as it would need more than 512 tiles
%1 required</source>
        <translation>Obrázek nelze importovat, protože by potřeboval více než 512 dlaždic
Potřeba: %1</translation>
    </message>
    <message>
        <source>The image is smaller than a tile, which has 8 × 8 pixels</source>
        <translation>Obrázek je menší než dlaždice, která má 8 × 8 pixelů</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importuje se %1…</translation>
    </message>
    <message>
        <source>The project was closed meanwhile</source>
        <translation>Projekt byl mezitím zavřen</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Čte se %1…</translation>
    </message>
</context>
<context>
    <name>PicturePreview</name>
    <message>
        <source>Preview</source>
        <translation>Náhled</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Před</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Po</translation>
    </message>
</context>
<context>
    <name>PixelEditor</name>
    <message>
        <source>%1, %2  colour %3</source>
        <translation>%1, %2  barva %3</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Náhled</translation>
    </message>
    <message>
        <source>Show how the picture will look</source>
        <translation>Ukázat, jak bude obrázek vypadat</translation>
    </message>
    <message>
        <source>Swap foreground and background</source>
        <translation>Prohodit popředí a pozadí</translation>
    </message>
    <message>
        <source>Smaller brush</source>
        <translation>Menší štětec</translation>
    </message>
    <message>
        <source>Larger brush</source>
        <translation>Větší štětec</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Nahradit barvu</translation>
    </message>
    <message>
        <source>Gives pixels of the background colour the foreground colour, in the selection if there is one</source>
        <translation>Pixely s barvou pozadí dostanou barvu popředí, případně jen ve výběru</translation>
    </message>
    <message>
        <source>Brush from Selection</source>
        <translation>Štětec z výběru</translation>
    </message>
    <message>
        <source>Draws with what is selected, without its pixels of the background colour</source>
        <translation>Kreslí tím, co je vybráno, bez pixelů s barvou pozadí</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Předvolby</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Stránky</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>Preview</source>
        <translation>Náhled</translation>
    </message>
    <message>
        <source>What the preview shows</source>
        <translation>Co ukazuje náhled</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (kopie)</translation>
    </message>
    <message>
        <source>New palette added: %1</source>
        <translation>Přidána nová paleta: %1</translation>
    </message>
    <message>
        <source>New tile set added: %1</source>
        <translation>Přidána nová sada dlaždic: %1</translation>
    </message>
    <message>
        <source>New map added: %1</source>
        <translation>Přidána nová mapa: %1</translation>
    </message>
    <message>
        <source>New block set added: %1</source>
        <translation>Přidána nová sada bloků: %1</translation>
    </message>
    <message>
        <source>New Sprite Bank Added</source>
        <translation>Přidána nová banka spritů</translation>
    </message>
</context>
<context>
    <name>ProjectActions</name>
    <message>
        <source>%1 (selection)</source>
        <translation>%1 (výběr)</translation>
    </message>
    <message>
        <source>Palette In Use</source>
        <translation>Paleta se používá</translation>
    </message>
    <message>
        <source>You may not delete this palette; it is used by one or more sprites, tiles or images</source>
        <translation>Tuto paletu nelze odstranit; používají ji sprity, dlaždice nebo obrázky</translation>
    </message>
    <message>
        <source>Tile Set In Use</source>
        <translation>Sada dlaždic se používá</translation>
    </message>
    <message>
        <source>You may not delete this Tile Set; it is used by one or more maps</source>
        <translation>Tuto sadu dlaždic nelze odstranit; používá ji alespoň jedna mapa</translation>
    </message>
    <message>
        <source>Objects in use</source>
        <translation>Objekty se používají</translation>
    </message>
    <message>
        <source>You may not delete these objects; they are in use by one or more maps</source>
        <translation>Tyto objekty nelze odstranit; používá je alespoň jedna mapa</translation>
    </message>
    <message>
        <source>The file is neither a palette nor a picture that can be read</source>
        <translation>Soubor není paleta ani obrázek, který by šlo načíst</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n colours; the palette takes the first %1 of them</source>
        <translation>
            <numerusform>Obrázek má %n barvu; paleta z nich převezme prvních %1</numerusform>
            <numerusform>Obrázek má %n barvy; paleta z nich převezme prvních %1</numerusform>
            <numerusform>Obrázek má %n barev; paleta z nich převezme prvních %1</numerusform>
        </translation>
    </message>
    <message>
        <source>New Palette for the Others</source>
        <translation>Nová paleta pro ostatní</translation>
    </message>
    <message>
        <source>%1, more</source>
        <translation>%1, další</translation>
    </message>
    <message>
        <source>Could not make sprites of the image file</source>
        <translation>Ze souboru obrázku se nepodařilo vytvořit sprity</translation>
    </message>
    <message>
        <source>Could not import the sprite data</source>
        <translation>Data spritů se nepodařilo importovat</translation>
    </message>
    <message>
        <source>Import Incomplete</source>
        <translation>Neúplný import</translation>
    </message>
</context>
<context>
    <name>ProjectController</name>
    <message>
        <source>Opening %1…</source>
        <translation>Otevírá se %1…</translation>
    </message>
    <message>
        <source>Unable to create a new project</source>
        <translation>Nový projekt nelze vytvořit</translation>
    </message>
    <message>
        <source>Recovering the project…</source>
        <translation>Obnovuje se projekt…</translation>
    </message>
    <message>
        <source>loading...</source>
        <translation>načítá se...</translation>
    </message>
    <message>
        <source>Saving %1…</source>
        <translation>Ukládá se %1…</translation>
    </message>
    <message>
        <source>What is kept beside the project cannot be read: %1
The project itself is whole.
%2</source>
        <translation>Data uložená vedle projektu nelze načíst: %1
Samotný projekt je v pořádku.
%2</translation>
    </message>
    <message>
        <source>What is kept beside the project cannot be written: %1
%2</source>
        <translation>Data ukládaná vedle projektu nelze zapsat: %1
%2</translation>
    </message>
    <message>
        <source>Another program removed or renamed the file of this project, which saving writes again:
%1</source>
        <translation>Jiný program odstranil nebo přejmenoval soubor tohoto projektu; uložením se zapíše znovu:
%1</translation>
    </message>
    <message>
        <source>The file cannot be loaded, and the project stays as it is here: %1</source>
        <translation>Soubor nelze načíst a projekt zůstává tak, jak je zde: %1</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Neuložené změny</translation>
    </message>
    <message>
        <source>Save the changes to %1 before closing it?</source>
        <translation>Uložit změny v %1 před zavřením?</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Uložit projekt</translation>
    </message>
    <message>
        <source>Project file (*.quenmora)</source>
        <translation>Soubor projektu (*.quenmora)</translation>
    </message>
    <message>
        <source>The sample project is not installed</source>
        <translation>Ukázkový projekt není nainstalovaný</translation>
    </message>
</context>
<context>
    <name>ProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation>Nový projekt</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>Vytvořit nový projekt</translation>
    </message>
    <message>
        <source>Project &amp;name</source>
        <translation>&amp;Název projektu</translation>
    </message>
</context>
<context>
    <name>ProjectDocument</name>
    <message>
        <source>Failed to load tile image %1</source>
        <translation>Obrázek dlaždic %1 se nepodařilo načíst</translation>
    </message>
    <message>
        <source>Failed to load tile map anim for map %1</source>
        <translation>Animace mapy %1 se nepodařilo načíst</translation>
    </message>
    <message>
        <source>Invalid project file</source>
        <translation>Neplatný soubor projektu</translation>
    </message>
    <message>
        <source>Project file is from a newer version of Quenmora</source>
        <translation>Soubor projektu pochází z novější verze programu Quenmora</translation>
    </message>
    <message>
        <source>Project has a missing sprite anim</source>
        <translation>V projektu chybí animace spritů</translation>
    </message>
    <message>
        <source>Failed to load tile set tileImage &quot;%1&quot; from project file</source>
        <translation>Obrázek dlaždic sady „%1“ se nepodařilo načíst ze souboru projektu</translation>
    </message>
    <message>
        <source>Error setting tile set anim - %1</source>
        <translation>Chyba při nastavení animací sady dlaždic – %1</translation>
    </message>
</context>
<context>
    <name>ProjectExport</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Řádek %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… a %n další</numerusform>
            <numerusform>… a %n další</numerusform>
            <numerusform>… a %n dalších</numerusform>
        </translation>
    </message>
    <message>
        <source>The recipe could not be saved</source>
        <translation>Recept se nepodařilo uložit</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Chyba při ukládání</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Při exportu dat došlo k chybě</translation>
    </message>
</context>
<context>
    <name>ProjectMenu</name>
    <message>
        <source>Import A&amp;gain</source>
        <translation>I&amp;mportovat znovu</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Při exportu dat došlo k chybě</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Chyba při ukládání</translation>
    </message>
</context>
<context>
    <name>ProjectStore</name>
    <message>
        <source>Invalid project file</source>
        <translation>Neplatný soubor projektu</translation>
    </message>
    <message>
        <source>Project loaded</source>
        <translation>Projekt načten</translation>
    </message>
    <message>
        <source>Could not create the project file</source>
        <translation>Soubor projektu se nepodařilo vytvořit</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>%1 se nepodařilo zapsat</translation>
    </message>
    <message>
        <source>Could not finish writing the project file</source>
        <translation>Zápis souboru projektu se nepodařilo dokončit</translation>
    </message>
    <message>
        <source>Saved %1 to %2</source>
        <translation>Projekt %1 uložen do %2</translation>
    </message>
    <message>
        <source>Invalid map id</source>
        <translation>Neplatné id mapy</translation>
    </message>
    <message>
        <source>Map exported</source>
        <translation>Mapa exportována</translation>
    </message>
    <message>
        <source>Exporting the map failed</source>
        <translation>Export mapy se nezdařil</translation>
    </message>
    <message>
        <source>Invalid tile set id</source>
        <translation>Neplatné id sady dlaždic</translation>
    </message>
    <message>
        <source>Tile set exported</source>
        <translation>Sada dlaždic exportována</translation>
    </message>
    <message>
        <source>Exporting the tile set failed</source>
        <translation>Export sady dlaždic se nezdařil</translation>
    </message>
    <message>
        <source>Invalid palette id</source>
        <translation>Neplatné id palety</translation>
    </message>
    <message>
        <source>Palette exported</source>
        <translation>Paleta exportována</translation>
    </message>
    <message>
        <source>Exporting the palette failed</source>
        <translation>Export palety se nezdařil</translation>
    </message>
</context>
<context>
    <name>ProjectTree</name>
    <message>
        <source>Palettes</source>
        <translation>Palety</translation>
    </message>
    <message>
        <source>Tile Sets</source>
        <translation>Sady dlaždic</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objekty</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprity</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Mapy</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Obrázky</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Tile Set</source>
        <translation>Sada dlaždic</translation>
    </message>
    <message>
        <source>Map Objects</source>
        <translation>Objekty mapy</translation>
    </message>
    <message>
        <source>Sprite Bank</source>
        <translation>Banka spritů</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Obrázek</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Pře&amp;jmenovat</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Odstranit</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopírovat</translation>
    </message>
    <message>
        <source>Import A&amp;gain</source>
        <translation>I&amp;mportovat znovu</translation>
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
        <translation>Není načten žádný projekt</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 už existuje.
Chcete jej nahradit?</translation>
    </message>
</context>
<context>
    <name>RecipeTable</name>
    <message>
        <source>1 page of 8 KiB</source>
        <translation>1 stránka po 8 KiB</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pages of 8 KiB</source>
        <translation>
            <numerusform>%Ln stránka po 8 KiB</numerusform>
            <numerusform>%Ln stránky po 8 KiB</numerusform>
            <numerusform>%Ln stránek po 8 KiB</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>1 bank of 16 KiB</source>
        <translation>1 banka po 16 KiB</translation>
    </message>
    <message numerus="yes">
        <source>%Ln banks of 16 KiB</source>
        <translation>
            <numerusform>%Ln banka po 16 KiB</numerusform>
            <numerusform>%Ln banky po 16 KiB</numerusform>
            <numerusform>%Ln bank po 16 KiB</numerusform>
        </translation>
    </message>
    <message>
        <source>…</source>
        <translation>…</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nový</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Změněný</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Beze změny</translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>Nelze: %1</translation>
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
        <translation>Stránky po 8 KiB a banky po 16 KiB, které bajty zaberou</translation>
    </message>
    <message>
        <source>Bytes in the game; source text is longer</source>
        <translation>Bajty ve hře; zdrojový kód je delší</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Položka</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formát</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>8K / 16K</source>
        <translation>8K / 16K</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stav</translation>
    </message>
</context>
<context>
    <name>RecoveryKeeper</name>
    <message>
        <source>%1 cannot be written to</source>
        <translation>Do %1 nelze zapisovat</translation>
    </message>
    <message>
        <source>No copy for the time after a crash could be written: %1</source>
        <translation>Kopii pro případ pádu se nepodařilo zapsat: %1</translation>
    </message>
</context>
<context>
    <name>RecoveryList</name>
    <message>
        <source>Never saved</source>
        <translation>Nikdy neuložený</translation>
    </message>
    <message>
        <source>As it was today at %1</source>
        <translation>Stav z dneška, %1</translation>
    </message>
    <message>
        <source>As it was yesterday at %1</source>
        <translation>Stav ze včerejška, %1</translation>
    </message>
    <message>
        <source>As it was on %1 at %2</source>
        <translation>Stav z %1, %2</translation>
    </message>
    <message>
        <source>A project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>The copy is damaged and was put aside:</source>
        <translation>Kopie je poškozená a byla odložena stranou:</translation>
    </message>
    <message>
        <source>Discard Copy</source>
        <translation>Zahodit kopii</translation>
    </message>
    <message>
        <source>Discard what can be recovered of %1?</source>
        <translation>Zahodit, co lze z %1 obnovit?</translation>
    </message>
    <message>
        <source>What was not saved is lost then.</source>
        <translation>Co nebylo uloženo, se tím ztratí.</translation>
    </message>
    <message>
        <source>Not saved when Quenmora stopped</source>
        <translation>Neuloženo, když Quenmora skončila</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Obnovit</translation>
    </message>
    <message>
        <source>Recover %1</source>
        <translation>Obnovit %1</translation>
    </message>
    <message>
        <source>Opens the project with the changes that were not saved</source>
        <translation>Otevře projekt i se změnami, které nebyly uloženy</translation>
    </message>
    <message>
        <source>Discard…</source>
        <translation>Zahodit…</translation>
    </message>
    <message>
        <source>Discard %1</source>
        <translation>Zahodit %1</translation>
    </message>
</context>
<context>
    <name>RectangleCanvasTool</name>
    <message>
        <source>Filled Rectangle</source>
        <translation>Vyplněný obdélník</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Obdélník</translation>
    </message>
</context>
<context>
    <name>ReductionBox</name>
    <message>
        <source>No, as they come</source>
        <translation>Ne, popořadě</translation>
    </message>
    <message>
        <source>To the nearest</source>
        <translation>Na nejbližší</translation>
    </message>
    <message>
        <source>In an ordered pattern</source>
        <translation>Uspořádaným vzorem</translation>
    </message>
    <message>
        <source>With error diffusion</source>
        <translation>Difuzí chyby</translation>
    </message>
    <message>
        <source>Colours are found for the whole picture; else those that come last take the nearest of the others</source>
        <translation>Barvy se hledají pro celý obrázek; jinak poslední dostanou nejbližší z ostatních</translation>
    </message>
    <message>
        <source>Colours of the machine: %1 before, %2 after</source>
        <translation>Barvy stroje: původně %1, nově %2</translation>
    </message>
    <message>
        <source>%1; mean error: %2 levels</source>
        <translation>%1; průměrná chyba: %2 úrovně</translation>
    </message>
    <message>
        <source>%1; none is lost</source>
        <translation>%1; žádná se neztrácí</translation>
    </message>
</context>
<context>
    <name>Request</name>
    <message>
        <source>Do this recipe, not the one beside the project.</source>
        <translation>Provést tento recept, ne ten vedle projektu.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>Write below this folder, not below the project&apos;s.</source>
        <translation>Zapisovat do této složky, ne do složky projektu.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>složka</translation>
    </message>
    <message>
        <source>Write nothing, but say what would be written.</source>
        <translation>Nic nezapisovat, jen vypsat, co by se zapsalo.</translation>
    </message>
    <message>
        <source>Tell make or ninja in this file what was made of what.</source>
        <translation>Zapsat do tohoto souboru pro make nebo ninja, co z čeho vzniklo.</translation>
    </message>
    <message>
        <source>Say nothing unless something fails.</source>
        <translation>Nic nevypisovat, pokud se něco nepovede.</translation>
    </message>
    <message>
        <source>Without a recipe: write the asset of this name or id …</source>
        <translation>Bez receptu: zapsat položku tohoto názvu nebo id …</translation>
    </message>
    <message>
        <source>name</source>
        <translation>název</translation>
    </message>
    <message>
        <source>… in this form …</source>
        <translation>… v tomto formátu …</translation>
    </message>
    <message>
        <source>id</source>
        <translation>id</translation>
    </message>
    <message>
        <source>… with this option of the form, which may be given again for others …</source>
        <translation>… s touto volbou formátu, kterou lze pro další zopakovat …</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>klíč=hodnota</translation>
    </message>
    <message>
        <source>… to this file.</source>
        <translation>… do tohoto souboru.</translation>
    </message>
    <message>
        <source>List the assets: kind, id and name.</source>
        <translation>Vypsat položky: druh, id a název.</translation>
    </message>
    <message>
        <source>List the forms and their options.</source>
        <translation>Vypsat formáty a jejich volby.</translation>
    </message>
    <message>
        <source>Describe the whole project as text, for git diff.</source>
        <translation>Popsat celý projekt jako text, pro git diff.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Zobrazit tuto nápovědu.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Zobrazit verzi.</translation>
    </message>
    <message>
        <source>A project file, as game.quenmora.</source>
        <translation>Soubor projektu, například game.quenmora.</translation>
    </message>
    <message>
        <source>Writes the graphics of a Quenmora project in the forms that a game takes, as its recipe says, the file
game.quenmora-export.json beside game.quenmora, which File &gt; Export Project in the editor makes.
Files whose bytes stay the same are not touched.</source>
        <translation>Zapíše grafiku projektu Quenmora ve formátech, které načítá hra, podle jeho receptu, souboru
game.quenmora-export.json vedle game.quenmora, který vytvoří Soubor &gt; Exportovat projekt v editoru.
Souborů, jejichž bajty se nemění, se nedotkne.</translation>
    </message>
    <message>
        <source>--%1 and --%2 do not go together</source>
        <translation>--%1 a --%2 nelze použít současně</translation>
    </message>
    <message>
        <source>--%1 takes KEY=VALUE, not “%2”</source>
        <translation>--%1 očekává KLÍČ=HODNOTA, ne „%2“</translation>
    </message>
    <message>
        <source>--%1 is there twice</source>
        <translation>--%1 je uvedeno dvakrát</translation>
    </message>
    <message>
        <source>--%1 needs a value</source>
        <translation>--%1 potřebuje hodnotu</translation>
    </message>
    <message>
        <source>--%1 means nothing here</source>
        <translation>--%1 tu nic neznamená</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 potřebuje --%2</translation>
    </message>
    <message>
        <source>“%1” is one argument too many</source>
        <translation>„%1“ je o jeden argument víc</translation>
    </message>
    <message>
        <source>A project file is missing</source>
        <translation>Chybí soubor projektu</translation>
    </message>
    <message>
        <source>Write a small picture of the project, as file managers show, to this PNG file …</source>
        <translation>Zapsat malý obrázek projektu, jaký ukazují správci souborů, do tohoto souboru PNG …</translation>
    </message>
    <message>
        <source>… of at most so many pixels along its sides; 256 without this.</source>
        <translation>… o nejvýše tolika pixelech na stranu; bez toho 256.</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixely</translation>
    </message>
    <message>
        <source>--%1 takes a number from 1 to %2, not “%3”</source>
        <translation>--%1 očekává číslo od 1 do %2, ne „%3“</translation>
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
        <translation>Úroveň červené</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green level</source>
        <translation>Úroveň zelené</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue level</source>
        <translation>Úroveň modré</translation>
    </message>
</context>
<context>
    <name>ScrollBar</name>
    <message>
        <source>Add a column on the left</source>
        <translation>Přidat sloupec vlevo</translation>
    </message>
    <message>
        <source>Add a row at the top</source>
        <translation>Přidat řádek nahoře</translation>
    </message>
    <message>
        <source>Remove the column on the left</source>
        <translation>Odebrat sloupec vlevo</translation>
    </message>
    <message>
        <source>Remove the row at the top</source>
        <translation>Odebrat řádek nahoře</translation>
    </message>
    <message>
        <source>Remove the column on the right</source>
        <translation>Odebrat sloupec vpravo</translation>
    </message>
    <message>
        <source>Remove the row at the bottom</source>
        <translation>Odebrat řádek dole</translation>
    </message>
    <message>
        <source>Add a column on the right</source>
        <translation>Přidat sloupec vpravo</translation>
    </message>
    <message>
        <source>Add a row at the bottom</source>
        <translation>Přidat řádek dole</translation>
    </message>
</context>
<context>
    <name>SeveralOutputsDialog</name>
    <message>
        <source>Edit Outputs</source>
        <translation>Úprava výstupů</translation>
    </message>
    <message numerus="yes">
        <source>What %Ln outputs are to have alike</source>
        <translation>
            <numerusform>Nastavení %Ln výstupu</numerusform>
            <numerusform>Společné nastavení %Ln výstupů</numerusform>
            <numerusform>Společné nastavení %Ln výstupů</numerusform>
        </translation>
    </message>
    <message>
        <source>Please choose what is to change</source>
        <translation>Vyberte, co se má změnit</translation>
    </message>
</context>
<context>
    <name>ShortcutsDialog</name>
    <message>
        <source>A&amp;dd Key</source>
        <translation>&amp;Přidat klávesu</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Obnovit</translation>
    </message>
    <message>
        <source>&amp;Take It Away There</source>
        <translation>Odebrat ji &amp;tam</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Klávesové zkratky</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Hledat podle názvu</translation>
    </message>
    <message>
        <source>or by &amp;keys:</source>
        <translation>nebo podle &amp;kláves:</translation>
    </message>
    <message>
        <source>Search by keys</source>
        <translation>Hledat podle kláves</translation>
    </message>
    <message>
        <source>Press keys to see what they do</source>
        <translation>Stiskněte klávesy a uvidíte, co dělají</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Příkaz</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Kde</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Klávesy</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Příkazy</translation>
    </message>
    <message>
        <source>Leaves these keys to this command alone</source>
        <translation>Ponechá tyto klávesy jen tomuto příkazu</translation>
    </message>
    <message>
        <source>Gives the command its usual keys</source>
        <translation>Vrátí příkazu obvyklé klávesy</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>Obnovit &amp;vše</translation>
    </message>
    <message>
        <source>Gives all commands their usual keys</source>
        <translation>Vrátí všem příkazům obvyklé klávesy</translation>
    </message>
    <message>
        <source>Another command has these keys, too</source>
        <translation>Tyto klávesy má i jiný příkaz</translation>
    </message>
    <message>
        <source>Keys of “%1”</source>
        <translation>Klávesy příkazu „%1“</translation>
    </message>
    <message>
        <source>Press the keys that shall do it</source>
        <translation>Stiskněte klávesy, které to mají dělat</translation>
    </message>
    <message>
        <source>%1 is a key of “%2” (%3), too. Neither would do anything.</source>
        <translation>%1 je i klávesa příkazu „%2“ (%3). Žádný z nich by nic neudělal.</translation>
    </message>
</context>
<context>
    <name>ShortcutsFile</name>
    <message>
        <source>The file is too large</source>
        <translation>Soubor je příliš velký</translation>
    </message>
    <message>
        <source>The file does not hold keys by command</source>
        <translation>Soubor neobsahuje klávesy příkazů</translation>
    </message>
</context>
<context>
    <name>SlicingProgress</name>
    <message>
        <source>Processing image</source>
        <translation>Zpracovává se obrázek</translation>
    </message>
</context>
<context>
    <name>SpriteAnim</name>
    <message>
        <source>New Sprite</source>
        <translation>Nový sprite</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (kopie)</translation>
    </message>
</context>
<context>
    <name>SpriteDialog</name>
    <message>
        <source>New Sprites</source>
        <translation>Nové sprity</translation>
    </message>
    <message>
        <source>Create a new sprite bank</source>
        <translation>Vytvořit novou banku spritů</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>&amp;Hloubka</translation>
    </message>
    <message>
        <source>New palette of the same name</source>
        <translation>Nová paleta stejného názvu</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::AnimationEditorWidget</name>
    <message>
        <source>Set the frame width in sprites</source>
        <translation>Šířka snímku ve spritech</translation>
    </message>
    <message>
        <source>Set the frame height in sprites</source>
        <translation>Výška snímku ve spritech</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::ImportBinaryDialog</name>
    <message>
        <source>Import Sprites</source>
        <translation>Import spritů</translation>
    </message>
    <message>
        <source>Make sprites of raw data</source>
        <translation>Vytvořit sprity ze surových dat</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>&amp;Hloubka</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprity</translation>
    </message>
    <message>
        <source>%L1 in the file</source>
        <translation>%L1 v souboru</translation>
    </message>
    <message>
        <source>New standard palette</source>
        <translation>Nová standardní paleta</translation>
    </message>
    <message>
        <source>There is no sprite in this file, or it cannot be read</source>
        <translation>V souboru není žádný sprite, nebo ho nelze přečíst</translation>
    </message>
    <message>
        <source>The file holds more sprites than fit into a bank</source>
        <translation>Soubor obsahuje víc spritů, než se vejde do banky</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::ImportImageDialog</name>
    <message>
        <source>Import Sprites</source>
        <translation>Import spritů</translation>
    </message>
    <message>
        <source>Make sprites of a picture</source>
        <translation>Vytvořit sprity z obrázku</translation>
    </message>
    <message>
        <source>Nearest colours of a &amp;palette</source>
        <translation>Nejbližší barvy z &amp;palety</translation>
    </message>
    <message>
        <source>N&amp;ew palette, and every sprite once</source>
        <translation>No&amp;vá paleta a každý sprite jen jednou</translation>
    </message>
    <message>
        <source>&amp;Keep the machine&apos;s colours</source>
        <translation>&amp;Zachovat barvy stroje</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Barvy</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has, and stays exactly that</source>
        <translation>Každá barva obrázku je barvou, kterou Next má, a zůstane přesně zachována</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>&amp;Hloubka</translation>
    </message>
    <message>
        <source>&amp;Fewer colours</source>
        <translation>Méně &amp;barev</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Čte se %1…</translation>
    </message>
    <message>
        <source>Reducing %1…</source>
        <translation>Snižuje se počet barev: %1…</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Žádný obrázek</translation>
    </message>
    <message>
        <source>%1 × %2 sprites, colours: %3, and transparent pixels</source>
        <translation>Sprity: %1 × %2, barvy: %3 a průhledné pixely</translation>
    </message>
    <message>
        <source>%1 × %2 sprites, colours: %3</source>
        <translation>Sprity: %1 × %2, barvy: %3</translation>
    </message>
    <message>
        <source>There is room for %1; the others take the nearest of these</source>
        <translation>Místo je pro %1; ostatní se nahradí nejbližšími z nich</translation>
    </message>
    <message>
        <source>The file is not a picture that can be read</source>
        <translation>Soubor není obrázek, který by šlo načíst</translation>
    </message>
    <message>
        <source>The picture is smaller than a sprite, which has 16 × 16 pixels</source>
        <translation>Obrázek je menší než sprite, který má 16 × 16 pixelů</translation>
    </message>
    <message>
        <source>The picture holds more sprites than fit into a bank</source>
        <translation>Obrázek obsahuje víc spritů, než se vejde do banky</translation>
    </message>
    <message>
        <source>There is a palette of this name already; please choose another name</source>
        <translation>Paleta s tímto názvem už existuje; zvolte jiný název</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n colours; 4-bit sprites show 15 beside the transparent one</source>
        <translation>
            <numerusform>Obrázek má %n barvu; 4bitové sprity zobrazí kromě průhledné jen 15</numerusform>
            <numerusform>Obrázek má %n barvy; 4bitové sprity zobrazí kromě průhledné jen 15</numerusform>
            <numerusform>Obrázek má %n barev; 4bitové sprity zobrazí kromě průhledné jen 15</numerusform>
        </translation>
    </message>
    <message>
        <source>The colours lie in several groups of 16 of the palette; 4-bit sprites show one group</source>
        <translation>Barvy leží v několika skupinách 16 barev palety; 4bitové sprity zobrazí jen jednu skupinu</translation>
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
        <translation>Sprity</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vymazat</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Kopírovat obrázek</translation>
    </message>
    <message>
        <source>Paste Image</source>
        <translation>Vložit obrázek</translation>
    </message>
    <message>
        <source>Add Sprite</source>
        <translation>Přidat sprite</translation>
    </message>
    <message>
        <source>Sprite %1</source>
        <translation>Sprite %1</translation>
    </message>
    <message>
        <source>Add a sprite</source>
        <translation>Přidat sprite</translation>
    </message>
</context>
<context>
    <name>SpriteImport</name>
    <message>
        <source>Importing %1…</source>
        <translation>Importuje se %1…</translation>
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
        <translation>Sp&amp;rity</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nový</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importovat</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>&amp;Vyměnit paletu</translation>
    </message>
    <message>
        <source>&amp;Export Data</source>
        <translation>&amp;Exportovat data</translation>
    </message>
    <message>
        <source>Select a file to import</source>
        <translation>Vyberte soubor k importu</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp)</source>
        <translation>Obrázky (*.png *.bmp)</translation>
    </message>
    <message>
        <source>Next sprites (*.spr)</source>
        <translation>Sprity Nextu (*.spr)</translation>
    </message>
    <message>
        <source>Export Sprite Data</source>
        <translation>Export dat spritů</translation>
    </message>
    <message>
        <source>Next Sprites (*.spr)</source>
        <translation>Sprity Nextu (*.spr)</translation>
    </message>
</context>
<context>
    <name>SpriteWindow</name>
    <message>
        <source>Sprite Editor</source>
        <translation>Editor spritů</translation>
    </message>
    <message>
        <source>No sprites selected</source>
        <translation>Nejsou vybrány sprity</translation>
    </message>
    <message>
        <source>Onion Skin</source>
        <translation>Cibulová slupka</translation>
    </message>
    <message>
        <source>Show the sprite of the frame before faintly over this one</source>
        <translation>Přes tento sprite slabě prosvítá sprite předchozího snímku</translation>
    </message>
    <message>
        <source>Replace Colour in All Sprites</source>
        <translation>Nahradit barvu ve všech spritech</translation>
    </message>
    <message>
        <source>Does that in all sprites of the bank</source>
        <translation>Provede to ve všech spritech banky</translation>
    </message>
    <message>
        <source>Pixels of this index are not drawn on the Next, whatever their colour</source>
        <translation>Pixely s tímto indexem Next nevykresluje, ať mají jakoukoli barvu</translation>
    </message>
    <message>
        <source>Transparent index</source>
        <translation>Průhledný index</translation>
    </message>
    <message>
        <source>Add Sprite</source>
        <translation>Přidat sprite</translation>
    </message>
    <message>
        <source>Delete Sprite</source>
        <translation>Odstranit sprite</translation>
    </message>
    <message>
        <source>Clear Sprite</source>
        <translation>Vymazat sprite</translation>
    </message>
    <message>
        <source>Copy Sprite</source>
        <translation>Kopírovat sprite</translation>
    </message>
    <message>
        <source>Move Sprite</source>
        <translation>Přesunout sprite</translation>
    </message>
    <message>
        <source>Sprites: %1</source>
        <translation>Sprity: %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádné</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animace</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Opakovaně</translation>
    </message>
    <message>
        <source>No animation shows this sprite</source>
        <translation>Tento sprite není v žádné animaci</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Nahradit barvu</translation>
    </message>
    <message>
        <source>Transparent Index</source>
        <translation>Průhledný index</translation>
    </message>
    <message>
        <source>Draw the first sprite here; the last place of the list below adds another</source>
        <translation>Nakreslete zde první sprite; poslední místo v seznamu níže přidá další</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>A double click in the Project dock opens an asset</source>
        <translation>Dvojklik v panelu Projekt otevře položku</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Poslední projekty</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Nový projekt</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Otevřít projekt</translation>
    </message>
    <message>
        <source>Read the guide</source>
        <translation>Přečíst příručku</translation>
    </message>
    <message>
        <source>To look at and to play with</source>
        <translation>K prohlédnutí a vyzkoušení</translation>
    </message>
    <message>
        <source>The sample project</source>
        <translation>Ukázkový projekt</translation>
    </message>
    <message>
        <source>A level, sprites and a title screen</source>
        <translation>Úroveň, sprity a titulní obrazovka</translation>
    </message>
</context>
<context>
    <name>TileAnimation</name>
    <message>
        <source>Blocks!</source>
        <translation>Bloky!</translation>
    </message>
    <message>
        <source>%1 (Copy)</source>
        <translation>%1 (kopie)</translation>
    </message>
</context>
<context>
    <name>TileAnimationDialog</name>
    <message>
        <source>New Map Objects</source>
        <translation>Nové objekty mapy</translation>
    </message>
    <message>
        <source>Create map objects: animations for maps</source>
        <translation>Vytvořit objekty mapy: animace pro mapy</translation>
    </message>
    <message>
        <source>&amp;Tile set</source>
        <translation>&amp;Sada dlaždic</translation>
    </message>
    <message>
        <source>Map objects are made of the tiles of a tile set; please create a tile set first</source>
        <translation>Objekty mapy se skládají z dlaždic nějaké sady; nejdřív vytvořte sadu dlaždic</translation>
    </message>
</context>
<context>
    <name>TileAttributesEditor</name>
    <message>
        <source>Solid top</source>
        <translation>Pevná nahoře</translation>
    </message>
    <message>
        <source>Solid left</source>
        <translation>Pevná vlevo</translation>
    </message>
    <message>
        <source>Solid right</source>
        <translation>Pevná vpravo</translation>
    </message>
    <message>
        <source>Solid bottom</source>
        <translation>Pevná dole</translation>
    </message>
    <message>
        <source>Deadly</source>
        <translation>Smrtící</translation>
    </message>
    <message>
        <source>Collectible</source>
        <translation>Lze sebrat</translation>
    </message>
    <message>
        <source>Ladder</source>
        <translation>Žebřík</translation>
    </message>
    <message>
        <source>Door</source>
        <translation>Dveře</translation>
    </message>
    <message>
        <source>Solid on all edges</source>
        <translation>Pevná na všech okrajích</translation>
    </message>
    <message>
        <source>A number of your own for the game</source>
        <translation>Vaše vlastní číslo pro hru</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
</context>
<context>
    <name>TileEditor::ExportDialog</name>
    <message>
        <source>Export Tiles</source>
        <translation>Export dlaždic</translation>
    </message>
    <message>
        <source>&amp;Rotate</source>
        <translation>&amp;Otočit</translation>
    </message>
    <message>
        <source>Export the pixels of tiles</source>
        <translation>Exportovat pixely dlaždic</translation>
    </message>
    <message>
        <source>Writes the columns of a tile as its rows</source>
        <translation>Zapíše sloupce dlaždice jako její řádky</translation>
    </message>
    <message>
        <source>&amp;First tile</source>
        <translation>&amp;První dlaždice</translation>
    </message>
    <message>
        <source>&amp;Last tile</source>
        <translation>Pos&amp;lední dlaždice</translation>
    </message>
    <message>
        <source>Export Tiles: %1</source>
        <translation>Export dlaždic: %1</translation>
    </message>
    <message>
        <source>The tile set has no tiles</source>
        <translation>Sada dlaždic nemá žádné dlaždice</translation>
    </message>
    <message>
        <source>The first tile comes after the last one</source>
        <translation>První dlaždice je až za poslední</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>&amp;Tiles</source>
        <translation>&amp;Dlaždice</translation>
    </message>
    <message>
        <source>&amp;New Tile Set</source>
        <translation>&amp;Nová sada dlaždic</translation>
    </message>
    <message>
        <source>&amp;Create Animations</source>
        <translation>Vytvořit &amp;animace</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>&amp;Vyměnit paletu</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportovat</translation>
    </message>
    <message>
        <source>Export &amp;Attributes</source>
        <translation>Exportovat at&amp;ributy</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importovat</translation>
    </message>
    <message>
        <source>Ne&amp;xt Tile</source>
        <translation>Další d&amp;laždice</translation>
    </message>
    <message>
        <source>&amp;Previous Tile</source>
        <translation>&amp;Předchozí dlaždice</translation>
    </message>
    <message>
        <source>Tile List &amp;Magnification</source>
        <translation>Zvětšení &amp;seznamu dlaždic</translation>
    </message>
    <message>
        <source>&amp;Spectrum Chars</source>
        <translation>&amp;Znaky Spectra</translation>
    </message>
    <message>
        <source>Export Tiles</source>
        <translation>Export dlaždic</translation>
    </message>
    <message>
        <source>Tile Data (*.bin)</source>
        <translation>Data dlaždic (*.bin)</translation>
    </message>
    <message>
        <source>Export tile attributes</source>
        <translation>Export atributů dlaždic</translation>
    </message>
    <message>
        <source>ASM Code (*.asm)</source>
        <translation>Kód ASM (*.asm)</translation>
    </message>
    <message>
        <source>Binary Data (*.bin)</source>
        <translation>Binární data (*.bin)</translation>
    </message>
</context>
<context>
    <name>TilePickerGrid</name>
    <message>
        <source>Tiles</source>
        <translation>Dlaždice</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Přiblížit</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Oddálit</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vymazat</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Kopírovat obrázek</translation>
    </message>
    <message>
        <source>Paste Image</source>
        <translation>Vložit obrázek</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Vsunout</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1x</translation>
    </message>
    <message>
        <source>Index: %1
Palette Offset: %2</source>
        <translation>Index: %1
Posun palety: %2</translation>
    </message>
    <message>
        <source>Tile %1, palette offset %2</source>
        <translation>Dlaždice %1, posun palety %2</translation>
    </message>
</context>
<context>
    <name>TilePickerTool</name>
    <message>
        <source>Tiles</source>
        <translation>Dlaždice</translation>
    </message>
    <message>
        <source>No active tile set</source>
        <translation>Žádná aktivní sada dlaždic</translation>
    </message>
    <message>
        <source>Tiles: %1</source>
        <translation>Dlaždice: %1</translation>
    </message>
</context>
<context>
    <name>TileSet</name>
    <message>
        <source>Copy Tile</source>
        <translation>Kopírovat dlaždici</translation>
    </message>
    <message>
        <source>Delete Tile</source>
        <translation>Odstranit dlaždici</translation>
    </message>
    <message>
        <source>Insert Tile</source>
        <translation>Vsunout dlaždici</translation>
    </message>
    <message>
        <source>Move Tile</source>
        <translation>Přesunout dlaždici</translation>
    </message>
</context>
<context>
    <name>TileSetDialog</name>
    <message>
        <source>New Tile Set</source>
        <translation>Nová sada dlaždic</translation>
    </message>
    <message>
        <source>Create a new tile set</source>
        <translation>Vytvořit novou sadu dlaždic</translation>
    </message>
    <message>
        <source>&amp;High resolution</source>
        <translation>&amp;Vysoké rozlišení</translation>
    </message>
    <message>
        <source>For the tilemap of 80 columns, whose pixels are half as wide</source>
        <translation>Pro dlaždicovou mapu o 80 sloupcích, jejíž pixely mají poloviční šířku</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>&amp;Tiles</source>
        <translation>&amp;Dlaždice</translation>
    </message>
    <message>
        <source>New palette of the same name</source>
        <translation>Nová paleta stejného názvu</translation>
    </message>
</context>
<context>
    <name>TileWindow</name>
    <message>
        <source>Tile Editor</source>
        <translation>Editor dlaždic</translation>
    </message>
    <message>
        <source>No tile set selected</source>
        <translation>Není vybrána sada dlaždic</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Dlaždice</translation>
    </message>
    <message>
        <source>The group of 16 colours that the tile is drawn with</source>
        <translation>Skupina 16 barev, kterými se dlaždice kreslí</translation>
    </message>
    <message>
        <source>Replace Colour in All Tiles</source>
        <translation>Nahradit barvu ve všech dlaždicích</translation>
    </message>
    <message>
        <source>Does that in all tiles of this palette offset</source>
        <translation>Provede to ve všech dlaždicích s tímto posunem palety</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Posun palety</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Atributy</translation>
    </message>
    <message>
        <source>Palette Editor</source>
        <translation>Editor palety</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Opakovaně</translation>
    </message>
    <message>
        <source>On the Map</source>
        <translation>Na mapě</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animace</translation>
    </message>
    <message>
        <source>No map of this tile set is in front</source>
        <translation>Není zobrazena žádná mapa této sady dlaždic</translation>
    </message>
    <message>
        <source>The map in front does not show this tile</source>
        <translation>Zobrazená mapa tuto dlaždici neobsahuje</translation>
    </message>
    <message>
        <source>No animation shows this tile</source>
        <translation>Tato dlaždice není v žádné animaci</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Nahradit barvu</translation>
    </message>
    <message>
        <source>Draw the first tile here: the left button paints with the foreground colour, the right one with the background colour</source>
        <translation>Nakreslete zde první dlaždici: levé tlačítko maluje barvou popředí, pravé barvou pozadí</translation>
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
        <translation>Další</translation>
    </message>
</context>
<context>
    <name>ToolPalette</name>
    <message>
        <source>Draw</source>
        <translation>Kreslit</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Čára</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Obdélník</translation>
    </message>
    <message>
        <source>Filled rectangle</source>
        <translation>Vyplněný obdélník</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kružnice</translation>
    </message>
    <message>
        <source>Filled circle</source>
        <translation>Vyplněný kruh</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vybrat</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Vložit</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Vyplnit</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Kapátko</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Změnit velikost</translation>
    </message>
    <message>
        <source>Toggle Grid</source>
        <translation>Přepnout mřížku</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Přiblížit</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Oddálit</translation>
    </message>
    <message>
        <source>Rotate clockwise</source>
        <translation>Otočit po směru hodin</translation>
    </message>
    <message>
        <source>Rotate anticlockwise</source>
        <translation>Otočit proti směru hodin</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nahoru</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Dolů</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vlevo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Vpravo</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Vyjmout</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopírovat</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Oříznout</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Guma</translation>
    </message>
    <message>
        <source>Flip top to bottom</source>
        <translation>Překlopit svisle</translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation>Překlopit vodorovně</translation>
    </message>
    <message>
        <source>Reset all palette offsets</source>
        <translation>Obnovit všechny posuny palety</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Uložit</translation>
    </message>
    <message>
        <source>Play Animations</source>
        <translation>Přehrát animace</translation>
    </message>
    <message>
        <source>Stop Animations</source>
        <translation>Zastavit animace</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Přizpůsobit oknu</translation>
    </message>
    <message>
        <source>Place animations</source>
        <translation>Umístit animace</translation>
    </message>
    <message>
        <source>Place sprites</source>
        <translation>Umístit sprity</translation>
    </message>
    <message>
        <source>Shrink to fit</source>
        <translation>Zmenšit do okna</translation>
    </message>
    <message>
        <source>Toggle viewport</source>
        <translation>Přepnout výřez</translation>
    </message>
    <message>
        <source>Paint terrain</source>
        <translation>Malovat terén</translation>
    </message>
    <message>
        <source>Random tiles of the stamp</source>
        <translation>Náhodné dlaždice z razítka</translation>
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
        <translation>● Neuloženo</translation>
    </message>
    <message>
        <source>The project has unsaved changes</source>
        <translation>Projekt má neuložené změny</translation>
    </message>
    <message>
        <source>The project has changes that are not saved yet</source>
        <translation>Projekt má změny, které ještě nejsou uložené</translation>
    </message>
</context>
<context>
    <name>Update::UpdateChecker</name>
    <message>
        <source>The update feed is too large</source>
        <translation>Seznam aktualizací je příliš velký</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Release Notes…</source>
        <translation>Poznámky k vydání…</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Stáhnout…</translation>
    </message>
    <message>
        <source>Quenmora — update available</source>
        <translation>Quenmora – dostupná aktualizace</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Přeskočit tuto verzi</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Později</translation>
    </message>
    <message>
        <source>Quenmora %1 is available</source>
        <translation>Je dostupná Quenmora %1</translation>
    </message>
    <message>
        <source>You have %1 (built %2).
The new version was released %3.</source>
        <translation>Máte verzi %1 (sestavena %2).
Nová verze vyšla %3.</translation>
    </message>
</context>
<context>
    <name>UpdatePresenter</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Kontrolují se aktualizace…</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Dostupná aktualizace: %1</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>Máte aktuální verzi</translation>
    </message>
    <message>
        <source>Quenmora %1 is up to date.</source>
        <translation>Quenmora %1 je aktuální.</translation>
    </message>
    <message>
        <source>Could not reach the update server</source>
        <translation>Nelze se spojit s aktualizačním serverem</translation>
    </message>
    <message>
        <source>Could not reach the update server.
%1</source>
        <translation>Nelze se spojit s aktualizačním serverem.
%1</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Kontrola aktualizací</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Zobrazit</translation>
    </message>
    <message>
        <source>S&amp;cratch Image Editor</source>
        <translation>Edito&amp;r náčrtníku</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>&amp;Stavový řádek</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>&amp;Obnovit rozložení</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>O&amp;kno</translation>
    </message>
</context>
<context>
    <name>WriteProblem</name>
    <message>
        <source>There is no folder %1</source>
        <translation>Složka %1 neexistuje</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 je složka</translation>
    </message>
    <message>
        <source>%1 is a pipe or a device, not a file</source>
        <translation>%1 je roura nebo zařízení, ne soubor</translation>
    </message>
    <message>
        <source>You may not write to %1</source>
        <translation>Do %1 nesmíte zapisovat</translation>
    </message>
    <message>
        <source>%1 could not be written to its end; there may be no room left</source>
        <translation>%1 se nepodařilo zapsat až do konce; možná už není místo</translation>
    </message>
    <message>
        <source>No file can be called %1: a slash would lead into another folder. Another name of the asset helps.</source>
        <translation>Žádný soubor se nemůže jmenovat %1: lomítko by vedlo do jiné složky. Pomůže jiný název položky.</translation>
    </message>
    <message>
        <source>No file can be called that: %1. Another name of the asset helps.</source>
        <translation>Takto se žádný soubor nemůže jmenovat: %1. Pomůže jiný název položky.</translation>
    </message>
</context>
</TS>
