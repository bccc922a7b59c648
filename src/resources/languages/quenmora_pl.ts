<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en_GB">
<context>
    <name>AboutBox</name>
    <message>
        <source>Licence of the icons</source>
        <translation>Licencja ikon</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>O programie %1</translation>
    </message>
    <message>
        <source>An editor for the graphics of ZX Spectrum Next games: palettes, tiles, maps, sprites, animations and pictures.</source>
        <translation>Edytor grafiki do gier na ZX Spectrum Next: palety, kafelki, mapy, sprite’y, animacje i obrazy.</translation>
    </message>
    <message>
        <source>Built with Qt %1. Icons by Lucide.</source>
        <translation>Zbudowano z Qt %1. Ikony: Lucide.</translation>
    </message>
</context>
<context>
    <name>AddOutputsDialog</name>
    <message>
        <source>Add Outputs</source>
        <translation>Dodawanie pozycji eksportu</translation>
    </message>
    <message>
        <source>Which assets does the game take?</source>
        <translation>Których zasobów używa gra?</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Zasób</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Assets</source>
        <translation>Zasoby</translation>
    </message>
    <message>
        <source>The project&apos;s folder</source>
        <translation>Folder projektu</translation>
    </message>
    <message>
        <source>A folder below the project&apos;s, with / between folders</source>
        <translation>Folder wewnątrz folderu projektu; foldery oddziela się znakiem /</translation>
    </message>
    <message>
        <source>&amp;Source text</source>
        <translation>&amp;Kod źródłowy</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Folder</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Form of %1</source>
        <translation>Format: %1</translation>
    </message>
    <message>
        <source>The usual ones</source>
        <translation>Typowe</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Dodaj</translation>
    </message>
    <message>
        <source>&amp;Add 1 Output</source>
        <translation>&amp;Dodaj 1 pozycję</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Add %Ln Outputs</source>
        <translation>
            <numerusform>&amp;Dodaj %Ln pozycję</numerusform>
            <numerusform>&amp;Dodaj %Ln pozycje</numerusform>
            <numerusform>&amp;Dodaj %Ln pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>Wyeksportowano: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Holds nothing yet</source>
        <translation>Jeszcze nic nie zawiera</translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>Niemożliwe: %1</translation>
    </message>
    <message>
        <source>The project has no assets yet</source>
        <translation>Projekt nie ma jeszcze zasobów</translation>
    </message>
    <message>
        <source>Please tick what is to be exported</source>
        <translation>Zaznacz, co ma być eksportowane</translation>
    </message>
    <message numerus="yes">
        <source>A recipe can have %n outputs</source>
        <translation>
            <numerusform>Receptura może mieć %n pozycję</numerusform>
            <numerusform>Receptura może mieć %n pozycje</numerusform>
            <numerusform>Receptura może mieć %n pozycji</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AnimationControlWidget</name>
    <message>
        <source>Goto first frame</source>
        <translation>Przejdź do pierwszej klatki</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Poprzednia klatka</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>Pause playback</source>
        <translation>Wstrzymaj odtwarzanie</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Następna klatka</translation>
    </message>
    <message>
        <source>Goto last frame</source>
        <translation>Przejdź do ostatniej klatki</translation>
    </message>
    <message>
        <source>Add a frame</source>
        <translation>Dodaj klatkę</translation>
    </message>
    <message>
        <source>Delete current frame</source>
        <translation>Usuń bieżącą klatkę</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Pętla</translation>
    </message>
    <message>
        <source>Ping pong</source>
        <translation>Tam i z powrotem</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Klatka %1 z %2</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationListWidget</name>
    <message>
        <source>Animations</source>
        <translation>Animacje</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Add a new animation</source>
        <translation>Dodaj nową animację</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Delete the selected animation</source>
        <translation>Usuń zaznaczoną animację</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Duplikuj</translation>
    </message>
    <message>
        <source>Copy the selected animation</source>
        <translation>Utwórz kopię zaznaczonej animacji</translation>
    </message>
    <message numerus="yes">
        <source>%1
%n frame(s) [%2x%3]</source>
        <translation>
            <numerusform>%1
%n klatka [%2x%3]</numerusform>
            <numerusform>%1
%n klatki [%2x%3]</numerusform>
            <numerusform>%1
%n klatek [%2x%3]</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no animations yet. Add below makes the first one.</source>
        <translation>Nie ma jeszcze animacji. „Dodaj” poniżej tworzy pierwszą.</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationToolBar</name>
    <message>
        <source>Animation</source>
        <translation>Animacja</translation>
    </message>
    <message>
        <source>The name of the animation</source>
        <translation>Nazwa animacji</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>W:</source>
        <translation>Szer.:</translation>
    </message>
    <message>
        <source>H:</source>
        <translation>Wys.:</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Szerokość</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Wysokość</translation>
    </message>
    <message>
        <source>Delay:</source>
        <translation>Opóźnienie:</translation>
    </message>
    <message>
        <source>Set the delay between animation frames
0 = No Delay, 1 = 25fps, 2 = 12.5fps</source>
        <translation>Ustaw opóźnienie między klatkami animacji
0 = bez opóźnienia, 1 = 25 kl./s, 2 = 12,5 kl./s</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationView</name>
    <message>
        <source>Animations</source>
        <translation>Animacje</translation>
    </message>
    <message>
        <source>No animation selected</source>
        <translation>Nie wybrano animacji</translation>
    </message>
    <message>
        <source>Animation: %1</source>
        <translation>Animacja: %1</translation>
    </message>
    <message>
        <source>Delete?</source>
        <translation>Usunąć?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this animation?</source>
        <translation>Czy na pewno usunąć tę animację?</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::EditorWidget</name>
    <message>
        <source>Onion Skin</source>
        <translation>Skórka cebuli</translation>
    </message>
    <message>
        <source>Index:</source>
        <translation>Indeks:</translation>
    </message>
    <message>
        <source>The index in the selected cell</source>
        <translation>Indeks w zaznaczonej komórce</translation>
    </message>
    <message>
        <source>Show the frame before faintly over this one</source>
        <translation>Pokazuje blado poprzednią klatkę na bieżącej</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::FrameEditorWidget</name>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Klatka</translation>
    </message>
    <message>
        <source>Cells of the frame</source>
        <translation>Komórki klatki</translation>
    </message>
    <message>
        <source>Rotated</source>
        <translation>Obrót</translation>
    </message>
    <message>
        <source>Flipped</source>
        <translation>Odbicie w pionie</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Odbicie w poziomie</translation>
    </message>
    <message>
        <source>Index:	%1
Offset:	%2
Flip	%3
Mirror:	%4
Rotate:	%5</source>
        <translation>Indeks:	%1
Przesunięcie:	%2
Odbicie w pionie:	%3
Odbicie w poziomie:	%4
Obrót:	%5</translation>
    </message>
    <message>
        <source>Column %1, row %2, sprite %3</source>
        <translation>Kolumna %1, wiersz %2, sprite %3</translation>
    </message>
    <message>
        <source>Column %1, row %2, tile %3</source>
        <translation>Kolumna %1, wiersz %2, kafelek %3</translation>
    </message>
</context>
<context>
    <name>AssetChooser</name>
    <message>
        <source>No palettes</source>
        <translation>Brak palet</translation>
    </message>
    <message>
        <source>No tile sets</source>
        <translation>Brak zestawów kafelków</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>There is a palette of this name already; choose it, or another name</source>
        <translation>Paleta o tej nazwie już istnieje; wybierz ją albo podaj inną nazwę</translation>
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
        <translation>Zestawy kafelków</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Mapy</translation>
    </message>
    <message>
        <source>Map Objects</source>
        <translation>Obiekty mapy</translation>
    </message>
    <message>
        <source>Sprite Banks</source>
        <translation>Banki sprite’ów</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Obrazy</translation>
    </message>
</context>
<context>
    <name>BlockEditor::AnimationEditorWidget</name>
    <message>
        <source>Palette offset:</source>
        <translation>Przesunięcie palety:</translation>
    </message>
    <message>
        <source>The palette offset of the selected cell</source>
        <translation>Przesunięcie palety zaznaczonej komórki</translation>
    </message>
    <message>
        <source>Update palette offsets to default values</source>
        <translation>Przywróć domyślne przesunięcia palety</translation>
    </message>
</context>
<context>
    <name>BlockEditor::View</name>
    <message>
        <source>New Object</source>
        <translation>Nowy obiekt</translation>
    </message>
</context>
<context>
    <name>BlockEditorToolBar</name>
    <message>
        <source>Set the frame width in tiles</source>
        <translation>Ustaw szerokość klatki w kafelkach</translation>
    </message>
    <message>
        <source>Set the frame height in tiles</source>
        <translation>Ustaw wysokość klatki w kafelkach</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Zwykły</translation>
    </message>
    <message>
        <source>Horizontal Platform</source>
        <translation>Platforma pozioma</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>How the game moves the animation</source>
        <translation>Jak gra porusza animacją</translation>
    </message>
</context>
<context>
    <name>BlockSelectorWindow</name>
    <message>
        <source>Map Objects</source>
        <translation>Obiekty mapy</translation>
    </message>
    <message>
        <source>No active tile set</source>
        <translation>Brak aktywnego zestawu kafelków</translation>
    </message>
    <message>
        <source>The tile set has no map objects</source>
        <translation>Zestaw kafelków nie ma obiektów mapy</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Paint canvas</source>
        <translation>Obszar rysowania</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Wytnij</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Wklej</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Odznacz wszystko</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Wymaż</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Wypełnij</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Rysowanie</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Przesunięcie</translation>
    </message>
</context>
<context>
    <name>CanvasKeys</name>
    <message>
        <source>Column %1, row %2, colour %3, %4</source>
        <translation>Kolumna %1, wiersz %2, kolor %3, %4</translation>
    </message>
</context>
<context>
    <name>CircleCanvasTool</name>
    <message>
        <source>Filled Circle</source>
        <translation>Wypełniony okrąg</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Okrąg</translation>
    </message>
</context>
<context>
    <name>ColourCyclesDialog</name>
    <message>
        <source>&amp;Add Selection</source>
        <translation>&amp;Dodaj zaznaczenie</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Ranges of the palette whose colours go round</source>
        <translation>Zakresy palety, w których kolory krążą</translation>
    </message>
    <message>
        <source>How many frames of the machine&apos;s screen, fifty a second, pass from step to step</source>
        <translation>Ile klatek ekranu maszyny, po pięćdziesiąt na sekundę, mija między krokami</translation>
    </message>
    <message>
        <source>To higher entries</source>
        <translation>Ku wyższym wpisom</translation>
    </message>
    <message>
        <source>To lower entries</source>
        <translation>Ku niższym wpisom</translation>
    </message>
    <message>
        <source>Where colours move</source>
        <translation>Dokąd przesuwają się kolory</translation>
    </message>
    <message>
        <source>The colours of a range go round: each moves to the next entry, and the one that leaves at one end comes in at the other. Neither palette nor pictures change.</source>
        <translation>Kolory zakresu krążą: każdy przechodzi do następnego wpisu, a ten, który wychodzi z jednego końca, wchodzi z drugiego. Ani paleta, ani obrazy się nie zmieniają.</translation>
    </message>
    <message>
        <source>First entry</source>
        <translation>Pierwszy wpis</translation>
    </message>
    <message>
        <source>Last entry</source>
        <translation>Ostatni wpis</translation>
    </message>
    <message>
        <source>Frames a step</source>
        <translation>Klatek na krok</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Kierunek</translation>
    </message>
    <message>
        <source>Colour Cycles of %1</source>
        <translation>Cykle kolorów: %1</translation>
    </message>
    <message>
        <source>Colour Cycles</source>
        <translation>Cykle kolorów</translation>
    </message>
    <message>
        <source>%1 to %2, to lower entries</source>
        <translation>%1 do %2, ku niższym wpisom</translation>
    </message>
    <message>
        <source>%1 to %2, to higher entries</source>
        <translation>%1 do %2, ku wyższym wpisom</translation>
    </message>
    <message>
        <source>%1 steps a second</source>
        <translation>Kroki na sekundę: %1</translation>
    </message>
    <message>
        <source>Lets the colours of the entries go round that are selected in the palette</source>
        <translation>Wprawia w obieg kolory wpisów zaznaczonych w palecie</translation>
    </message>
    <message>
        <source>Select two or more entries in the palette that are in no range yet</source>
        <translation>Zaznacz w palecie co najmniej dwa wpisy, które nie należą jeszcze do żadnego zakresu</translation>
    </message>
</context>
<context>
    <name>ColourCycling</name>
    <message>
        <source>&amp;Play Colour Cycles</source>
        <translation>Odtwarzaj &amp;cykle kolorów</translation>
    </message>
    <message>
        <source>Lets the colours of palettes&apos; ranges go round in all views; nothing is changed</source>
        <translation>Wprawia w obieg kolory zakresów palet we wszystkich widokach; nic się nie zmienia</translation>
    </message>
</context>
<context>
    <name>ColourEditor</name>
    <message>
        <source>Colour before</source>
        <translation>Poprzedni kolor</translation>
    </message>
    <message>
        <source>Edited colour</source>
        <translation>Edytowany kolor</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorytet</translation>
    </message>
    <message>
        <source>Layer 2 priority
If set, this colour will always appear on top</source>
        <translation>Priorytet Layer 2
Jeśli włączony, kolor zawsze jest na wierzchu</translation>
    </message>
    <message>
        <source>Apply the colour</source>
        <translation>Zastosuj kolor</translation>
    </message>
    <message>
        <source>Go back to the colour before</source>
        <translation>Wróć do poprzedniego koloru</translation>
    </message>
</context>
<context>
    <name>ColourPalette</name>
    <message>
        <source>Colours</source>
        <translation>Kolory</translation>
    </message>
    <message>
        <source>Index: %1
Transparent</source>
        <translation>Indeks: %1
Przezroczysty</translation>
    </message>
    <message>
        <source>Index: %1</source>
        <translation>Indeks: %1</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Kolor %1, %2, przezroczysty</translation>
    </message>
    <message>
        <source>Colour %1, %2, background</source>
        <translation>Kolor %1, %2, tło</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Kolor %1, %2</translation>
    </message>
</context>
<context>
    <name>ColourSelector</name>
    <message>
        <source>Colours</source>
        <translation>Kolory</translation>
    </message>
    <message>
        <source>Left button: foreground, right button: background</source>
        <translation>Lewy przycisk: pierwszy plan, prawy przycisk: tło</translation>
    </message>
    <message>
        <source>Transparent on maps</source>
        <translation>Przezroczysty na mapach</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Kolor %1, %2, przezroczysty</translation>
    </message>
    <message>
        <source>Colour %1, %2, background</source>
        <translation>Kolor %1, %2, tło</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Kolor %1, %2</translation>
    </message>
</context>
<context>
    <name>CommandDesk</name>
    <message>
        <source>Your keyboard shortcuts could not be read. All commands have their usual keys.</source>
        <translation>Nie udało się odczytać własnych skrótów klawiszowych. Wszystkie polecenia mają zwykłe klawisze.</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Skróty klawiszowe</translation>
    </message>
    <message>
        <source>%1
%2 was kept aside under a name that ends in .bad.</source>
        <translation>%1
Plik %2 zachowano pod nazwą kończącą się na .bad.</translation>
    </message>
    <message>
        <source>Your keyboard shortcuts could not be saved. They hold until you quit.</source>
        <translation>Nie udało się zapisać własnych skrótów klawiszowych. Obowiązują do zamknięcia programu.</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Ostatnie projekty</translation>
    </message>
    <message>
        <source>Tile %1</source>
        <translation>Kafelek %1</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Command Palette</source>
        <translation>Paleta poleceń</translation>
    </message>
    <message>
        <source>Type a few letters of a command, an asset or a tile</source>
        <translation>Wpisz kilka liter nazwy polecenia, zasobu lub kafelka</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>What matches</source>
        <translation>Wyniki</translation>
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
        <translation>Paski narzędzi</translation>
    </message>
    <message>
        <source>Map Editor</source>
        <translation>Edytor map</translation>
    </message>
    <message>
        <source>Layers of the Map</source>
        <translation>Warstwy mapy</translation>
    </message>
    <message>
        <source>Pixel Editors</source>
        <translation>Edytory pikseli</translation>
    </message>
    <message>
        <source>Animation Editors</source>
        <translation>Edytory animacji</translation>
    </message>
    <message>
        <source>List of Animations</source>
        <translation>Lista animacji</translation>
    </message>
    <message>
        <source>Tile Picker</source>
        <translation>Wybór kafelków</translation>
    </message>
    <message>
        <source>Palette Editor</source>
        <translation>Edytor palety</translation>
    </message>
    <message>
        <source>%1 ▸ %2</source>
        <translation>%1 ▸ %2</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprite’y</translation>
    </message>
</context>
<context>
    <name>CreationDialog</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nazwa</translation>
    </message>
    <message>
        <source>Please enter a name</source>
        <translation>Podaj nazwę</translation>
    </message>
</context>
<context>
    <name>DeletionQuestion</name>
    <message>
        <source>1 animation</source>
        <translation>1 animacja</translation>
    </message>
    <message numerus="yes">
        <source>%n animations</source>
        <translation>
            <numerusform>%n animacja</numerusform>
            <numerusform>%n animacje</numerusform>
            <numerusform>%n animacji</numerusform>
        </translation>
    </message>
    <message>
        <source>1 placed sprite</source>
        <translation>1 umieszczony sprite</translation>
    </message>
    <message numerus="yes">
        <source>%n placed sprites</source>
        <translation>
            <numerusform>%n umieszczony sprite</numerusform>
            <numerusform>%n umieszczone sprite’y</numerusform>
            <numerusform>%n umieszczonych sprite’ów</numerusform>
        </translation>
    </message>
    <message>
        <source>Lost with it: %1.</source>
        <translation>Utracone zostaną też: %1.</translation>
    </message>
    <message>
        <source>1 placed animation</source>
        <translation>1 umieszczona animacja</translation>
    </message>
    <message numerus="yes">
        <source>%n placed animations</source>
        <translation>
            <numerusform>%n umieszczona animacja</numerusform>
            <numerusform>%n umieszczone animacje</numerusform>
            <numerusform>%n umieszczonych animacji</numerusform>
        </translation>
    </message>
    <message>
        <source>Left without tiles: %1.</source>
        <translation>Bez kafelków zostaną: %1.</translation>
    </message>
    <message>
        <source>No longer shown: %1 on 1 map.</source>
        <translation>Przestaną być widoczne: %1 na 1 mapie.</translation>
    </message>
    <message numerus="yes">
        <source>No longer shown: %1 on %n maps.</source>
        <translation>
            <numerusform>Przestaną być widoczne: %1 na %n mapie.</numerusform>
            <numerusform>Przestaną być widoczne: %1 na %n mapach.</numerusform>
            <numerusform>Przestaną być widoczne: %1 na %n mapach.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no undo for this.</source>
        <translation>Tego nie można cofnąć.</translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation>Usuwanie: %1</translation>
    </message>
    <message>
        <source>Delete “%2” (%1)?</source>
        <translation>Usunąć „%2” (%1)?</translation>
    </message>
</context>
<context>
    <name>DepthChooser</name>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bitów, 256 kolorów</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bity, 16 kolorów</translation>
    </message>
</context>
<context>
    <name>DockTabs</name>
    <message>
        <source>Docks</source>
        <translation>Panele</translation>
    </message>
</context>
<context>
    <name>DocumentTabView</name>
    <message>
        <source>Open documents</source>
        <translation>Otwarte dokumenty</translation>
    </message>
    <message>
        <source>&amp;Close Tab</source>
        <translation>&amp;Zamknij kartę</translation>
    </message>
    <message>
        <source>Close &amp;Other Tabs</source>
        <translation>Zamknij p&amp;ozostałe karty</translation>
    </message>
    <message>
        <source>Scratch Image Editor</source>
        <translation>Edytor brudnopisu</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Wy&amp;tnij</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Wklej</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Z&amp;aznacz wszystko</translation>
    </message>
    <message>
        <source>C&amp;lear Selection</source>
        <translation>&amp;Odznacz wszystko</translation>
    </message>
</context>
<context>
    <name>EditRecorder</name>
    <message>
        <source>Edit Frames</source>
        <translation>Edycja klatek</translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>TEXT</source>
        <translation>TEKST</translation>
    </message>
    <message>
        <source>There is no asset “%1”</source>
        <translation>Nie ma zasobu „%1”</translation>
    </message>
    <message>
        <source>“%1” is the name of several assets: use an id (%2)</source>
        <translation>„%1” to nazwa kilku zasobów: podaj identyfikator (%2)</translation>
    </message>
    <message>
        <source>quenmora-export --help tells what it understands</source>
        <translation>quenmora-export --help wyświetla dostępne opcje</translation>
    </message>
    <message>
        <source>Options of all forms:</source>
        <translation>Opcje wszystkich formatów:</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Nie ma takiego pliku</translation>
    </message>
    <message>
        <source>The project has no recipe; File &gt; Export Project in the editor makes one</source>
        <translation>Projekt nie ma receptury; utworzysz ją w edytorze poleceniem Plik &gt; Eksportuj projekt</translation>
    </message>
    <message numerus="yes">
        <source>Interrupted: %n outputs were not looked at</source>
        <translation>
            <numerusform>Przerwano: nie sprawdzono %n pozycji</numerusform>
            <numerusform>Przerwano: nie sprawdzono %n pozycji</numerusform>
            <numerusform>Przerwano: nie sprawdzono %n pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no form “%1”</source>
        <translation>Nie ma formatu „%1”</translation>
    </message>
    <message>
        <source>This is the project itself</source>
        <translation>To jest sam projekt</translation>
    </message>
    <message>
        <source>This file is exported, or exported from</source>
        <translation>Ten plik jest eksportowany albo jest źródłem eksportu</translation>
    </message>
    <message>
        <source>make cannot be told of “%1”: its name has characters that end names</source>
        <translation>nie można przekazać „%1” do make: nazwa zawiera znaki, które kończą nazwy</translation>
    </message>
    <message>
        <source>What there was to say could not be written</source>
        <translation>Nie udało się wypisać komunikatów</translation>
    </message>
    <message>
        <source>There is nothing in it that a picture could show</source>
        <translation>Nie ma w nim niczego, co można pokazać na obrazie</translation>
    </message>
    <message>
        <source>No picture could be made</source>
        <translation>Nie udało się utworzyć obrazu</translation>
    </message>
</context>
<context>
    <name>ExportMessages</name>
    <message numerus="yes">
        <source>Exported %1 to %2 (%Ln bytes)</source>
        <translation>
            <numerusform>Wyeksportowano %1 do %2 (%Ln bajt)</numerusform>
            <numerusform>Wyeksportowano %1 do %2 (%Ln bajty)</numerusform>
            <numerusform>Wyeksportowano %1 do %2 (%Ln bajtów)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln bytes)</source>
        <translation>
            <numerusform>%1 (%Ln bajt)</numerusform>
            <numerusform>%1 (%Ln bajty)</numerusform>
            <numerusform>%1 (%Ln bajtów)</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported to %1: %2</source>
        <translation>Wyeksportowano do %1: %2</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Exporting %1…</source>
        <translation>Eksportowanie %1…</translation>
    </message>
    <message>
        <source>Exporting the project…</source>
        <translation>Eksportowanie projektu…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Zatrzymaj</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Eksport projektu</translation>
    </message>
</context>
<context>
    <name>ExportProjectDialog</name>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Eksport projektu</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Dodaj…</translation>
    </message>
    <message>
        <source>Adds assets of the project</source>
        <translation>Dodaje zasoby projektu</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Edytuj…</translation>
    </message>
    <message>
        <source>Changes form, options and file</source>
        <translation>Zmienia format, opcje i plik</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>Dup&amp;likuj</translation>
    </message>
    <message>
        <source>Adds a copy, for another form or file</source>
        <translation>Dodaje kopię dla innego formatu lub pliku</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Takes it out of the recipe; its file stays</source>
        <translation>Usuwa z receptury; plik pozostaje</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Pozycje eksportu</translation>
    </message>
    <message>
        <source>The game takes nothing of this project yet.

Add palettes, tiles, maps with what is placed on them, sprites, animations and images, each in the form that the game loads. From then on one key writes all that has changed.</source>
        <translation>Gra nie używa jeszcze niczego z tego projektu.

Dodaj palety, kafelki, mapy z umieszczonymi na nich elementami, sprite’y, animacje i obrazy, każde w formacie wczytywanym przez grę. Odtąd jeden klawisz zapisze wszystko, co się zmieniło.</translation>
    </message>
    <message>
        <source>&amp;Add Assets…</source>
        <translation>Dodaj &amp;zasoby…</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>Ekspor&amp;tuj</translation>
    </message>
    <message>
        <source>Saves the recipe and writes what is new or changed</source>
        <translation>Zapisuje recepturę oraz wszystko, co nowe lub zmienione</translation>
    </message>
    <message>
        <source>Saves the recipe beside the project and writes nothing else</source>
        <translation>Zapisuje recepturę obok projektu i nic więcej</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>1 output</source>
        <translation>1 pozycja</translation>
    </message>
    <message numerus="yes">
        <source>%Ln outputs</source>
        <translation>
            <numerusform>%Ln pozycja</numerusform>
            <numerusform>%Ln pozycje</numerusform>
            <numerusform>%Ln pozycji</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln bajt</numerusform>
            <numerusform>%Ln bajty</numerusform>
            <numerusform>%Ln bajtów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln new</source>
        <translation>
            <numerusform>%Ln nowa</numerusform>
            <numerusform>%Ln nowe</numerusform>
            <numerusform>%Ln nowych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln zmieniona</numerusform>
            <numerusform>%Ln zmienione</numerusform>
            <numerusform>%Ln zmienionych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unchanged</source>
        <translation>
            <numerusform>%Ln bez zmian</numerusform>
            <numerusform>%Ln bez zmian</numerusform>
            <numerusform>%Ln bez zmian</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cannot be</source>
        <translation>
            <numerusform>%Ln niemożliwa</numerusform>
            <numerusform>%Ln niemożliwe</numerusform>
            <numerusform>%Ln niemożliwych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln to be looked at</source>
        <translation>
            <numerusform>%Ln do sprawdzenia</numerusform>
            <numerusform>%Ln do sprawdzenia</numerusform>
            <numerusform>%Ln do sprawdzenia</numerusform>
        </translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Podgląd: %1</translation>
    </message>
</context>
<context>
    <name>ExportQuestion</name>
    <message>
        <source>Save the project first?</source>
        <translation>Zapisać najpierw projekt?</translation>
    </message>
    <message>
        <source>The files for the game are written beside the project&apos;s file, and it has none yet.</source>
        <translation>Pliki dla gry są zapisywane obok pliku projektu, a tego jeszcze nie ma.</translation>
    </message>
    <message>
        <source>&amp;Save Project…</source>
        <translation>&amp;Zapisz projekt…</translation>
    </message>
    <message>
        <source>The recipe of this project cannot be used:
%1</source>
        <translation>Nie można użyć receptury tego projektu:
%1</translation>
    </message>
    <message>
        <source>Mend the file, or start with an empty recipe: the file is then kept as %1.</source>
        <translation>Napraw plik albo zacznij od pustej receptury: plik zostanie wtedy zachowany jako %1.</translation>
    </message>
    <message>
        <source>&amp;Start Anew</source>
        <translation>Zacznij od &amp;nowa</translation>
    </message>
    <message>
        <source>Another program changed the recipe of this project:
%1</source>
        <translation>Inny program zmienił recepturę tego projektu:
%1</translation>
    </message>
    <message>
        <source>Saving it from here loses that change.</source>
        <translation>Zapisanie jej stąd usunie tę zmianę.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Zastąp</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Eksport projektu</translation>
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
        <translation>1 plik</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln plik</numerusform>
            <numerusform>%Ln pliki</numerusform>
            <numerusform>%Ln plików</numerusform>
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
            <numerusform>%Ln bajtów</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing to export: 1 file is unchanged in %1</source>
        <translation>Nie ma czego eksportować: 1 plik bez zmian w %1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing to export: %Ln files are unchanged in %1</source>
        <translation>
            <numerusform>Nie ma czego eksportować: %Ln plik bez zmian w %1</numerusform>
            <numerusform>Nie ma czego eksportować: %Ln pliki bez zmian w %1</numerusform>
            <numerusform>Nie ma czego eksportować: %Ln plików bez zmian w %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>Wyeksportowano: %1</translation>
    </message>
    <message>
        <source>Exported nothing</source>
        <translation>Niczego nie wyeksportowano</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln unchanged</source>
        <translation>
            <numerusform>%1, bez zmian: %Ln</numerusform>
            <numerusform>%1, bez zmian: %Ln</numerusform>
            <numerusform>%1, bez zmian: %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln failed</source>
        <translation>
            <numerusform>%1, nieudane: %Ln</numerusform>
            <numerusform>%1, nieudane: %Ln</numerusform>
            <numerusform>%1, nieudane: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 w %2</translation>
    </message>
    <message>
        <source>%1, to %2</source>
        <translation>%1, w %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Zatrzymano: %1</translation>
    </message>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… i jeszcze %Ln</numerusform>
            <numerusform>… i jeszcze %Ln</numerusform>
            <numerusform>… i jeszcze %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExtrasFile</name>
    <message>
        <source>it is no file of at most 16 MiB</source>
        <translation>to nie jest plik o rozmiarze do 16 MiB</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>wiersz %1: %2</translation>
    </message>
    <message>
        <source>it holds no object</source>
        <translation>nie zawiera obiektu</translation>
    </message>
</context>
<context>
    <name>FileImport</name>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… i jeszcze %n</numerusform>
            <numerusform>… i jeszcze %n</numerusform>
            <numerusform>… i jeszcze %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The file could not be imported</source>
        <translation>Nie udało się zaimportować pliku</translation>
    </message>
    <message>
        <source>Some files could not be imported</source>
        <translation>Nie udało się zaimportować niektórych plików</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Imported %1: %2</source>
        <translation>Zaimportowano %1: %2</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nowy</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Otwórz</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>Os&amp;tatnie</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Zapisz</translation>
    </message>
    <message>
        <source>Save &amp;As</source>
        <translation>Zapisz &amp;jako</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Za&amp;mknij</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importuj…</translation>
    </message>
    <message>
        <source>Looks at files of any kind, shows what they are, and makes assets of them</source>
        <translation>Sprawdza dowolne pliki, pokazuje, czym są, i tworzy z nich zasoby</translation>
    </message>
    <message>
        <source>&amp;Export Project…</source>
        <translation>&amp;Eksportuj projekt…</translation>
    </message>
    <message>
        <source>Export A&amp;gain</source>
        <translation>Eksportuj &amp;ponownie</translation>
    </message>
    <message>
        <source>Shows what the game takes of this project, in which forms and files, and writes it</source>
        <translation>Pokazuje, czego z tego projektu używa gra, w jakich formatach i plikach, i zapisuje to</translation>
    </message>
    <message>
        <source>Writes what has changed of the files for the game, without a dialog</source>
        <translation>Zapisuje zmienione pliki dla gry bez wyświetlania okna</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>P&amp;referencje</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Otwieranie projektu</translation>
    </message>
    <message>
        <source>Project file (*.quenmora)</source>
        <translation>Plik projektu (*.quenmora)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Files of the Next (*.pal *.npl *.nxp *.nxt *.til *.ch8 *.map *.nxm *.nxb *.spr *.nxi *.sl2 *.slr *.bin)</source>
        <translation>Pliki Next (*.pal *.npl *.nxp *.nxt *.til *.ch8 *.map *.nxm *.nxb *.spr *.nxi *.sl2 *.slr *.bin)</translation>
    </message>
    <message>
        <source>Sprites of Aseprite (*.aseprite *.ase)</source>
        <translation>Sprite’y Aseprite (*.aseprite *.ase)</translation>
    </message>
    <message>
        <source>Palettes (*.gpl *.pal *.act *.hex)</source>
        <translation>Palety (*.gpl *.pal *.act *.hex)</translation>
    </message>
    <message>
        <source>Pictures (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Obrazy (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Wyczyść</translation>
    </message>
    <message>
        <source>Maps and tile sets of Tiled (*.tmx *.tmj *.tsx *.tsj)</source>
        <translation>Mapy i zestawy kafelków programu Tiled (*.tmx *.tmj *.tsx *.tsj)</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>“%1” has a character that file names cannot have everywhere</source>
        <translation>„%1” zawiera znak, który nie wszędzie jest dozwolony w nazwach plików</translation>
    </message>
    <message>
        <source>“%1” ends in a dot or a space, which Windows takes away</source>
        <translation>„%1” kończy się kropką lub spacją, którą Windows usuwa</translation>
    </message>
    <message>
        <source>Windows takes “%1” for a device</source>
        <translation>Windows traktuje „%1” jako urządzenie</translation>
    </message>
    <message>
        <source>a name in it is longer than %1 bytes</source>
        <translation>jedna z nazw jest dłuższa niż %1 B</translation>
    </message>
</context>
<context>
    <name>FillCanvasTool</name>
    <message>
        <source>Fill</source>
        <translation>Wypełnij</translation>
    </message>
</context>
<context>
    <name>ForeignChange</name>
    <message>
        <source>File Changed</source>
        <translation>Plik zmieniony</translation>
    </message>
    <message>
        <source>Another program changed the file of this project:
%1</source>
        <translation>Inny program zmienił plik tego projektu:
%1</translation>
    </message>
    <message>
        <source>Load File opens it as it is now and drops your unsaved changes.</source>
        <translation>„Wczytaj plik” otwiera go w obecnej postaci i odrzuca niezapisane zmiany.</translation>
    </message>
    <message>
        <source>Load File opens it as it is now.</source>
        <translation>„Wczytaj plik” otwiera go w obecnej postaci.</translation>
    </message>
    <message>
        <source>Keep Mine keeps the project as it is here; saving then replaces the file.</source>
        <translation>„Zachowaj moje” pozostawia projekt taki, jaki jest tutaj; zapisanie zastąpi plik.</translation>
    </message>
    <message>
        <source>&amp;Load File</source>
        <translation>&amp;Wczytaj plik</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Zachowaj moje</translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>the pixels of the file take more than %1</source>
        <translation>piksele pliku zajmują więcej niż %1</translation>
    </message>
    <message>
        <source>the pixels are damaged</source>
        <translation>piksele są uszkodzone</translation>
    </message>
    <message>
        <source>Frame %1 has a picture for layer %2 of %3</source>
        <translation>Klatka %1 ma obraz warstwy %2, a warstw jest %3</translation>
    </message>
    <message>
        <source>Its frames have more than %1 pictures of layers together</source>
        <translation>Klatki mają razem zbyt wiele obrazów warstw (maksimum: %1)</translation>
    </message>
    <message>
        <source>%1: there are two pictures</source>
        <translation>%1: są dwa obrazy</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the picture is of an unknown kind, %1</source>
        <translation>obraz jest nieznanego rodzaju: %1</translation>
    </message>
    <message>
        <source>the picture is of another kind than the layer</source>
        <translation>obraz jest innego rodzaju niż warstwa</translation>
    </message>
    <message>
        <source>the picture is that of frame %1, which has none or comes later</source>
        <translation>obraz jest taki jak w klatce %1, która go nie ma albo jest dalej</translation>
    </message>
    <message>
        <source>a tile has %1 bits; only %2 can be read</source>
        <translation>liczba bitów kafelka to %1; odczytać można tylko %2</translation>
    </message>
    <message>
        <source>the tiles are damaged</source>
        <translation>kafelki są uszkodzone</translation>
    </message>
    <message>
        <source>It has two tile sets of number %1, or more than %2</source>
        <translation>Plik ma dwa zestawy kafelków o numerze %1 albo zestawów jest więcej niż %2</translation>
    </message>
    <message>
        <source>The tile set “%1” is in another file, and left out</source>
        <translation>Zestaw kafelków „%1” jest w innym pliku i został pominięty</translation>
    </message>
    <message>
        <source>The tile set “%1” has %2 tiles of %3 × %4 pixels</source>
        <translation>Zestaw kafelków „%1” ma kafelki (%2) o wymiarach %3 × %4 pikseli</translation>
    </message>
    <message>
        <source>The tile set “%1”: %2</source>
        <translation>Zestaw kafelków „%1”: %2</translation>
    </message>
    <message>
        <source>The layer “%1” has the tiles of a set that is not there</source>
        <translation>Warstwa „%1” ma kafelki z zestawu, którego nie ma</translation>
    </message>
    <message>
        <source>The layer “%1” has tile %2 of a set of %3</source>
        <translation>Warstwa „%1” ma kafelek %2, a zestaw liczy ich %3</translation>
    </message>
    <message>
        <source>Its layers have more than %1 million pixels in all frames together</source>
        <translation>Warstwy we wszystkich klatkach mają razem więcej niż %1 mln pikseli</translation>
    </message>
    <message>
        <source>Frame %1, layer “%2”</source>
        <translation>Klatka %1, warstwa „%2”</translation>
    </message>
    <message>
        <source>It is no Aseprite file</source>
        <translation>To nie jest plik Aseprite</translation>
    </message>
    <message>
        <source>It is cut short: it has %1 of %2 bytes</source>
        <translation>Plik jest ucięty: ma %1 z %2 B</translation>
    </message>
    <message>
        <source>It says that a pixel has %1 bits; it can have 8, 16 or 32</source>
        <translation>Plik podaje, że liczba bitów piksela to %1; może to być 8, 16 lub 32</translation>
    </message>
    <message>
        <source>It says that it has %1 frames of %2 × %3 pixels</source>
        <translation>Plik podaje, że liczba klatek o wymiarach %2 × %3 pikseli to %1</translation>
    </message>
    <message>
        <source>It has %1 frames of %2 × %3 pixels; at most %4 million pixels together can be read</source>
        <translation>Liczba klatek o wymiarach %2 × %3 pikseli: %1; odczytać można razem najwyżej %4 mln pikseli</translation>
    </message>
    <message>
        <source>Its pixels are not square, but %1 to %2: they become square</source>
        <translation>Piksele nie są kwadratowe, lecz %1 do %2: staną się kwadratowe</translation>
    </message>
    <message>
        <source>It is cut short: frame %1 of %2 is not there</source>
        <translation>Plik jest ucięty: brakuje klatki %1 z %2</translation>
    </message>
    <message>
        <source>Frame %1 is damaged</source>
        <translation>Klatka %1 jest uszkodzona</translation>
    </message>
    <message>
        <source>Frame %1 is damaged: chunk %2 of %3 has a wrong size</source>
        <translation>Klatka %1 jest uszkodzona: fragment %2 z %3 ma zły rozmiar</translation>
    </message>
    <message>
        <source>Frame %1 is damaged: chunk %2 of %3 is cut short</source>
        <translation>Klatka %1 jest uszkodzona: fragment %2 z %3 jest ucięty</translation>
    </message>
    <message>
        <source>Its slices are left out</source>
        <translation>Wycinki (slices) zostały pominięte</translation>
    </message>
    <message>
        <source>It has more than %1 layers</source>
        <translation>Plik ma więcej warstw niż %1</translation>
    </message>
    <message>
        <source>The reference layer “%1” is left out</source>
        <translation>Warstwa referencyjna „%1” została pominięta</translation>
    </message>
    <message>
        <source>The layer “%1” mixes its colours with those beneath: it is drawn as others are</source>
        <translation>Warstwa „%1” miesza swoje kolory z kolorami pod nią: zostanie narysowana zwyczajnie</translation>
    </message>
    <message>
        <source>The group “%1” is partly clear: that is done to each of its layers</source>
        <translation>Grupa „%1” jest półprzezroczysta: dotyczy to każdej z jej warstw</translation>
    </message>
    <message>
        <source>The palette changes after frame %1, whose colours are taken</source>
        <translation>Paleta zmienia się po klatce %1, której kolory zostaną użyte</translation>
    </message>
    <message>
        <source>Frame %1 has more than %2 palettes</source>
        <translation>Klatka %1 ma więcej palet niż %2</translation>
    </message>
    <message>
        <source>Its palette has %1 colours; at most %2 can be read</source>
        <translation>Liczba kolorów palety: %1; odczytać można najwyżej %2</translation>
    </message>
    <message>
        <source>Its palette has %1 colours, of which it gives %2 to %3</source>
        <translation>Liczba kolorów palety: %1, z czego podane są od %2 do %3</translation>
    </message>
    <message>
        <source>It has more than %1 tags</source>
        <translation>Plik ma więcej znaczników niż %1</translation>
    </message>
    <message>
        <source>The tag “%1” is left out: it names frames %2 to %3 of %4</source>
        <translation>Znacznik „%1” został pominięty: wskazuje klatki od %2 do %3, a jest ich %4</translation>
    </message>
    <message>
        <source>”, “</source>
        <translation>”, „</translation>
    </message>
    <message numerus="yes">
        <source>%n layers are hidden and left out, “%1” among them</source>
        <translation>
            <numerusform>%n ukryta warstwa została pominięta, „%1”</numerusform>
            <numerusform>%n ukryte warstwy zostały pominięte, w tym „%1”</numerusform>
            <numerusform>%n ukrytych warstw zostało pominiętych, w tym „%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>Hidden layers are left out: “%1”</source>
        <translation>Ukryte warstwy zostały pominięte: „%1”</translation>
    </message>
    <message>
        <source>Its pixels are numbers of colours, and it has no palette</source>
        <translation>Piksele są numerami kolorów, a palety brak</translation>
    </message>
    <message>
        <source>It has pixels of colour %1, and its palette has %2 colours: they are black</source>
        <translation>Są piksele koloru %1, a liczba kolorów palety to %2: będą czarne</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Wiersz %1: %2</translation>
    </message>
    <message>
        <source>It has no colours</source>
        <translation>Nie ma w nim kolorów</translation>
    </message>
    <message>
        <source>“%1” is no colour, which is %2 numbers from 0 to 255</source>
        <translation>„%1” to nie kolor; kolor to liczby od 0 do 255 (%2)</translation>
    </message>
    <message>
        <source>“%1” stands where “%2” does</source>
        <translation>Znaleziono „%1” zamiast „%2”</translation>
    </message>
    <message>
        <source>“%1” is no number of colours</source>
        <translation>„%1” to nie liczba kolorów</translation>
    </message>
    <message>
        <source>It says that it has %1 colours, and has %2</source>
        <translation>Podana liczba kolorów to %1, a rzeczywista %2</translation>
    </message>
    <message>
        <source>“%1” is no colour of six hexadecimal digits</source>
        <translation>„%1” to nie kolor z sześciu cyfr szesnastkowych</translation>
    </message>
    <message>
        <source>It says that it has %1 colours; there is room for %2</source>
        <translation>Podana liczba kolorów to %1; miejsca jest na %2</translation>
    </message>
    <message>
        <source>Its transparent index is %1, and it has %2 colours</source>
        <translation>Indeks przezroczystości to %1, a liczba kolorów to %2</translation>
    </message>
    <message>
        <source>It has %1; at most %2 can be read</source>
        <translation>Plik ma %1; odczytać można najwyżej %2</translation>
    </message>
    <message>
        <source>It is no palette of the forms .gpl, .pal (JASC), .hex or .act</source>
        <translation>To nie jest paleta w formacie .gpl, .pal (JASC), .hex ani .act</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n bajt</numerusform>
            <numerusform>%n bajty</numerusform>
            <numerusform>%n bajtów</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>There is more of this kind</source>
        <translation>Jest tego więcej</translation>
    </message>
    <message>
        <source>It is not there, or may not be read</source>
        <translation>Pliku nie ma albo nie wolno go czytać</translation>
    </message>
    <message>
        <source>It could not be read: %1</source>
        <translation>Nie udało się odczytać: %1</translation>
    </message>
    <message>
        <source>its cells are written as “%1”, which cannot be read</source>
        <translation>komórki są zapisane jako „%1”, czego nie można odczytać</translation>
    </message>
    <message>
        <source>its cells are packed as “%1”, which cannot be read</source>
        <translation>komórki są skompresowane jako „%1”, czego nie można odczytać</translation>
    </message>
    <message>
        <source>cell %1 is no number of a tile</source>
        <translation>komórka %1 nie jest numerem kafelka</translation>
    </message>
    <message>
        <source>it has more than %1 cells</source>
        <translation>ma więcej komórek niż %1</translation>
    </message>
    <message>
        <source>“%1” is among the numbers of its cells</source>
        <translation>wśród numerów komórek jest „%1”</translation>
    </message>
    <message>
        <source>it has %1 of %2 cells</source>
        <translation>liczba komórek: %1 z %2</translation>
    </message>
    <message>
        <source>its cells are damaged, or not %1</source>
        <translation>komórki są uszkodzone albo ich liczba to nie %1</translation>
    </message>
    <message>
        <source>Two tile sets begin with number %1</source>
        <translation>Dwa zestawy kafelków zaczynają się od numeru %1</translation>
    </message>
    <message>
        <source>The tile set “%1” has animations of tiles that are not there</source>
        <translation>Zestaw kafelków „%1” ma animacje kafelków, których nie ma</translation>
    </message>
    <message>
        <source>The tile set “%1” says no size of its tiles</source>
        <translation>Zestaw kafelków „%1” nie podaje rozmiaru kafelków</translation>
    </message>
    <message>
        <source>The picture of the tile set “%1” has %2 of its %3 tiles</source>
        <translation>Obraz zestawu kafelków „%1” ma %2 z %3 kafelków</translation>
    </message>
    <message>
        <source>The layer “%1” is partly clear: it becomes opaque</source>
        <translation>Warstwa „%1” jest półprzezroczysta: stanie się nieprzezroczysta</translation>
    </message>
    <message>
        <source>The layer “%1” is moved by parts of cells: it goes to the nearest</source>
        <translation>Warstwa „%1” jest przesunięta o część komórki: trafi do najbliższej</translation>
    </message>
    <message numerus="yes">
        <source>What shines through clear pixels of tiles above is lost, in %n cells</source>
        <translation>
            <numerusform>To, co prześwituje przez przezroczyste piksele kafelków powyżej, przepada w %n komórce</numerusform>
            <numerusform>To, co prześwituje przez przezroczyste piksele kafelków powyżej, przepada w %n komórkach</numerusform>
            <numerusform>To, co prześwituje przez przezroczyste piksele kafelków powyżej, przepada w %n komórkach</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells have numbers that no tile set has: they become empty</source>
        <translation>
            <numerusform>%n komórka ma numer, którego nie ma żaden zestaw kafelków: będzie pusta</numerusform>
            <numerusform>%n komórki mają numery, których nie ma żaden zestaw kafelków: będą puste</numerusform>
            <numerusform>%n komórek ma numery, których nie ma żaden zestaw kafelków: będą puste</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells of layers lie beyond the map: they are lost</source>
        <translation>
            <numerusform>%n komórka warstw leży poza mapą: zostanie utracona</numerusform>
            <numerusform>%n komórki warstw leżą poza mapą: zostaną utracone</numerusform>
            <numerusform>%n komórek warstw leży poza mapą: zostaną utracone</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is not in the file&apos;s folder</source>
        <translation>„%1” nie jest w folderze pliku</translation>
    </message>
    <message>
        <source>“%1” is not there</source>
        <translation>Nie ma „%1”</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1”: %2</translation>
    </message>
    <message>
        <source>the pictures have more than %1 million pixels together</source>
        <translation>obrazy mają razem więcej niż %1 mln pikseli</translation>
    </message>
    <message>
        <source>it is no picture that can be read</source>
        <translation>to nie jest obraz, który można odczytać</translation>
    </message>
    <message>
        <source>It has more than %1 million numbers; with cells written as Base64 it has fewer</source>
        <translation>Plik ma więcej niż %1 mln liczb; jest ich mniej, gdy komórki są zapisane w Base64</translation>
    </message>
    <message>
        <source>It has more than %1 lists and objects</source>
        <translation>Plik ma list i obiektów więcej niż %1</translation>
    </message>
    <message>
        <source>Byte %1: %2</source>
        <translation>Bajt %1: %2</translation>
    </message>
    <message>
        <source>there are too many groups in each other</source>
        <translation>jest zbyt wiele zagnieżdżonych grup</translation>
    </message>
    <message>
        <source>“%1” is “%2”, and can be %3 to %4</source>
        <translation>„%1” to „%2”, a może być od %3 do %4</translation>
    </message>
    <message>
        <source>“%1” is “%2”, which is no number that it can be</source>
        <translation>„%1” to „%2”, czyli niedozwolona liczba</translation>
    </message>
    <message>
        <source>It is a map of the kind “%1”; only “orthogonal” ones can be read</source>
        <translation>To mapa rodzaju „%1”; odczytać można tylko „orthogonal”</translation>
    </message>
    <message>
        <source>It says no width and height</source>
        <translation>Plik nie podaje szerokości i wysokości</translation>
    </message>
    <message>
        <source>It has %1 × %2 cells; at most %3 million can be read</source>
        <translation>Wymiary to %1 × %2 komórek; odczytać można najwyżej %3 mln</translation>
    </message>
    <message>
        <source>Its layers have more than %1 million cells together</source>
        <translation>Warstwy mają razem więcej niż %1 mln komórek</translation>
    </message>
    <message>
        <source>The layer “%1”: %2</source>
        <translation>Warstwa „%1”: %2</translation>
    </message>
    <message>
        <source>The image layer “%1” is left out</source>
        <translation>Warstwa obrazu „%1” została pominięta</translation>
    </message>
    <message>
        <source>Objects made from templates lack what their template says</source>
        <translation>Obiektom utworzonym z szablonów brakuje tego, co podają szablony</translation>
    </message>
    <message>
        <source>It has more than %1 objects</source>
        <translation>Plik ma więcej obiektów niż %1</translation>
    </message>
    <message>
        <source>Its objects have more than %1 properties</source>
        <translation>Obiekty mają więcej właściwości niż %1</translation>
    </message>
    <message>
        <source>It has more than %1 tile sets</source>
        <translation>Plik ma więcej zestawów kafelków niż %1</translation>
    </message>
    <message>
        <source>Pictures inside the file cannot be read</source>
        <translation>Nie można odczytać obrazów osadzonych w pliku</translation>
    </message>
    <message>
        <source>Its tile sets have more than %1 pictures</source>
        <translation>Zestawy kafelków mają więcej obrazów niż %1</translation>
    </message>
    <message>
        <source>Its animations have more than %1 frames</source>
        <translation>Animacje mają więcej klatek niż %1</translation>
    </message>
    <message>
        <source>It is no XML in UTF-8</source>
        <translation>To nie jest XML w UTF-8</translation>
    </message>
    <message>
        <source>It declares elements or entities of its own</source>
        <translation>Plik deklaruje własne elementy lub encje</translation>
    </message>
    <message>
        <source>An element has more than %1 attributes</source>
        <translation>Jeden z elementów ma więcej atrybutów niż %1</translation>
    </message>
    <message>
        <source>there is no element</source>
        <translation>brak elementu</translation>
    </message>
    <message>
        <source>there are too many elements in each other</source>
        <translation>jest zbyt wiele zagnieżdżonych elementów</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Create a backup when saving</source>
        <translation>Twórz kopię zapasową przy zapisywaniu</translation>
    </message>
    <message>
        <source>Check for updates on startup</source>
        <translation>Sprawdzaj aktualizacje przy uruchamianiu</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Codziennie</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Co tydzień</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Co miesiąc</translation>
    </message>
    <message>
        <source>General Settings</source>
        <translation>Ustawienia ogólne</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualizacje</translation>
    </message>
    <message>
        <source>Check frequency</source>
        <translation>Częstotliwość sprawdzania</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>The guide is not installed</source>
        <translation>Przewodnik nie jest zainstalowany</translation>
    </message>
    <message>
        <source>It comes with Quenmora&apos;s package.</source>
        <translation>Znajduje się w pakiecie programu Quenmora.</translation>
    </message>
    <message>
        <source>No program was found that shows the guide</source>
        <translation>Nie znaleziono programu, który wyświetli przewodnik</translation>
    </message>
    <message>
        <source>It is in this file: %1</source>
        <translation>Jest w tym pliku: %1</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>&amp;Sprawdź aktualizacje…</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;O programie</translation>
    </message>
    <message>
        <source>Command &amp;Palette…</source>
        <translation>&amp;Paleta poleceń…</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts…</source>
        <translation>Skróty &amp;klawiszowe…</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>P&amp;rzewodnik</translation>
    </message>
    <message>
        <source>Opens the guide in your browser, at the page about what you work on</source>
        <translation>Otwiera przewodnik w przeglądarce na stronie o tym, nad czym pracujesz</translation>
    </message>
    <message>
        <source>&amp;Sample Project</source>
        <translation>Projekt przykła&amp;dowy</translation>
    </message>
    <message>
        <source>Opens a small game to look at and to play with; saving makes a copy of your own</source>
        <translation>Otwiera małą grę do obejrzenia i wypróbowania; zapisanie tworzy własną kopię</translation>
    </message>
</context>
<context>
    <name>ImageDialog</name>
    <message>
        <source>New Image</source>
        <translation>Nowy obraz</translation>
    </message>
    <message>
        <source>Create a new image</source>
        <translation>Utwórz nowy obraz</translation>
    </message>
    <message>
        <source>256x192 256 colours</source>
        <translation>256x192, 256 kolorów</translation>
    </message>
    <message>
        <source>320x256 256 colours</source>
        <translation>320x256, 256 kolorów</translation>
    </message>
    <message>
        <source>640x256 16 colours</source>
        <translation>640x256, 16 kolorów</translation>
    </message>
    <message>
        <source>128x96 256 colours</source>
        <translation>128x96, 256 kolorów</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Tryb</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>P&amp;aleta</translation>
    </message>
    <message>
        <source>An image needs a palette; please create a palette first</source>
        <translation>Obraz wymaga palety; najpierw utwórz paletę</translation>
    </message>
</context>
<context>
    <name>ImageEditor::ImportDialog</name>
    <message>
        <source>Import Image</source>
        <translation>Import obrazu</translation>
    </message>
    <message>
        <source>Scale to fill the image</source>
        <translation>Skaluj, aby wypełnić obraz</translation>
    </message>
    <message>
        <source>Keep the machine&apos;s colours</source>
        <translation>Zachowaj kolory maszyny</translation>
    </message>
    <message>
        <source>Keep transparent pixels</source>
        <translation>Zachowaj przezroczyste piksele</translation>
    </message>
    <message>
        <source>New palette of the picture&apos;s colours</source>
        <translation>Nowa paleta z kolorów obrazu źródłowego</translation>
    </message>
    <message>
        <source>Import a picture</source>
        <translation>Zaimportuj obraz z pliku</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has: those that the palette has stay exactly that, and scaling mixes no new ones</source>
        <translation>Każdy kolor obrazu źródłowego jest kolorem Nexta: te, które są w palecie, pozostaną dokładnie takie, a skalowanie nie miesza nowych</translation>
    </message>
    <message>
        <source>They get the transparent entry of the palette, and no colour does</source>
        <translation>Dostają przezroczysty wpis palety, którego nie dostaje żaden kolor</translation>
    </message>
    <message>
        <source>The image is shown with it from now on; the palette that it had stays as it is</source>
        <translation>Odtąd obraz jest z nią wyświetlany; jego dotychczasowa paleta pozostaje bez zmian</translation>
    </message>
    <message>
        <source>&amp;Fewer colours</source>
        <translation>&amp;Mniej kolorów</translation>
    </message>
    <message>
        <source>Picture %1 × %2, image %3 × %4</source>
        <translation>Obraz źródłowy %1 × %2, obraz %3 × %4</translation>
    </message>
    <message>
        <source>The picture cannot be used</source>
        <translation>Tego obrazu nie można użyć</translation>
    </message>
</context>
<context>
    <name>ImageEditor::View</name>
    <message>
        <source>Swap Palette</source>
        <translation>Zmień paletę</translation>
    </message>
    <message>
        <source>Import Image</source>
        <translation>Import obrazu</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Obrazy (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>Export Image</source>
        <translation>Eksport obrazu</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg *.bmp)</source>
        <translation>Obrazy (*.png *.xpm *.jpg *.bmp)</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Wystąpił problem z eksportem danych</translation>
    </message>
    <message>
        <source>Pictures are written as .png, .xpm, .jpg or .bmp files</source>
        <translation>Obrazy zapisuje się jako pliki .png, .xpm, .jpg lub .bmp</translation>
    </message>
    <message>
        <source>Scratch Image</source>
        <translation>Brudnopis</translation>
    </message>
    <message>
        <source>Paint here, or bring in a picture with Open among the tools</source>
        <translation>Maluj tutaj albo wczytaj obraz przyciskiem „Otwórz” wśród narzędzi</translation>
    </message>
</context>
<context>
    <name>ImageMenu</name>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Obraz</translation>
    </message>
    <message>
        <source>&amp;New Image</source>
        <translation>&amp;Nowy obraz</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>Zmień &amp;paletę</translation>
    </message>
</context>
<context>
    <name>ImportAgain</name>
    <message>
        <source>The image has no palette any more</source>
        <translation>Obraz nie ma już palety</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Importuj ponownie</translation>
    </message>
    <message>
        <source>%1 is up to date</source>
        <translation>Aktualne: %1</translation>
    </message>
    <message>
        <source>The file is neither a palette nor a picture that can be read</source>
        <translation>Plik nie jest ani paletą, ani obrazem, który można odczytać</translation>
    </message>
    <message>
        <source>Such a file makes new assets, and cannot go into those that are there</source>
        <translation>Z takiego pliku powstają nowe zasoby; nie można go wczytać do istniejących</translation>
    </message>
    <message>
        <source>%1 was imported again</source>
        <translation>Zaimportowano ponownie: %1</translation>
    </message>
    <message>
        <source>What was made of it is not there any more</source>
        <translation>Tego, co z niego powstało, już nie ma</translation>
    </message>
    <message>
        <source>The file is not there any more:
%1</source>
        <translation>Tego pliku już nie ma:
%1</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importowanie %1…</translation>
    </message>
    <message>
        <source>%1 is up to date; new tiles: %2</source>
        <translation>Aktualne: %1; nowe kafelki: %2</translation>
    </message>
    <message>
        <source>; pixels that took the nearest colour: %1</source>
        <translation>; piksele, które otrzymały najbliższy kolor: %1</translation>
    </message>
    <message>
        <source>The map has no tiles or no palette any more</source>
        <translation>Mapa nie ma już kafelków albo palety</translation>
    </message>
    <message numerus="yes">
        <source>The picture needs %n more tiles, and the tile set has room for %1</source>
        <translation>
            <numerusform>Obraz wymaga dodania %n kafelka, a w zestawie zmieści się tyle: %1</numerusform>
            <numerusform>Obraz wymaga dodania %n kafelków, a w zestawie zmieści się tyle: %1</numerusform>
            <numerusform>Obraz wymaga dodania %n kafelków, a w zestawie zmieści się tyle: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Resize Map</source>
        <translation>Zmiana rozmiaru mapy</translation>
    </message>
    <message>
        <source>The sprites have no palette any more</source>
        <translation>Sprite’y nie mają już palety</translation>
    </message>
    <message>
        <source>The picture is smaller than a sprite, which has 16 × 16 pixels</source>
        <translation>Obraz jest mniejszy niż sprite, który ma 16 × 16 pikseli</translation>
    </message>
    <message>
        <source>The picture holds more sprites than fit into a bank</source>
        <translation>Obraz zawiera więcej sprite’ów, niż mieści bank</translation>
    </message>
    <message>
        <source>%1 is up to date; sprites that are new: %2</source>
        <translation>Aktualne: %1; nowe sprite’y: %2</translation>
    </message>
    <message>
        <source>The map is too large to be brought up to date</source>
        <translation>Mapa jest za duża, aby ją zaktualizować</translation>
    </message>
</context>
<context>
    <name>ImportFileDialog</name>
    <message>
        <source>New palette</source>
        <translation>Nowa paleta</translation>
    </message>
    <message>
        <source>New tile set</source>
        <translation>Nowy zestaw kafelków</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>Nowa mapa</translation>
    </message>
    <message>
        <source>New sprites</source>
        <translation>Nowe sprite’y</translation>
    </message>
    <message>
        <source>New map objects</source>
        <translation>Nowe obiekty mapy</translation>
    </message>
    <message>
        <source>New image</source>
        <translation>Nowy obraz</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… i jeszcze %n</numerusform>
            <numerusform>… i jeszcze %n</numerusform>
            <numerusform>… i jeszcze %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Więcej</translation>
    </message>
    <message>
        <source>What the file is; first what it most probably is</source>
        <translation>Czym jest plik; na początku to, co najbardziej prawdopodobne</translation>
    </message>
    <message>
        <source>A new asset, or one of the project that takes it in, as one undo step</source>
        <translation>Nowy zasób albo zasób projektu, który przyjmie zawartość w jednym kroku cofania</translation>
    </message>
    <message>
        <source>The number from which on those that are there are replaced, counted from 0</source>
        <translation>Numer, od którego istniejące elementy są zastępowane, licząc od 0</translation>
    </message>
    <message>
        <source>Behind those that are there</source>
        <translation>Za istniejącymi</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Rodzaj</translation>
    </message>
    <message>
        <source>In&amp;to</source>
        <translation>&amp;Do</translation>
    </message>
    <message>
        <source>&amp;From number</source>
        <translation>&amp;Od numeru</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nazwa</translation>
    </message>
    <message>
        <source>Ti&amp;le set</source>
        <translation>Zestaw &amp;kafelków</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>P&amp;aleta</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>Po&amp;miń</translation>
    </message>
    <message>
        <source>Leaves this file out and goes on with the next one</source>
        <translation>Pomija ten plik i przechodzi do następnego</translation>
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
            <numerusform>%1, %Ln bajtów</numerusform>
        </translation>
    </message>
    <message>
        <source>New tile set of blank tiles</source>
        <translation>Nowy zestaw pustych kafelków</translation>
    </message>
    <message>
        <source>New palette of its own colours</source>
        <translation>Nowa paleta z własnych kolorów</translation>
    </message>
    <message>
        <source>New palette of the standard colours</source>
        <translation>Nowa paleta z kolorów standardowych</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importuj</translation>
    </message>
    <message>
        <source>C&amp;ontinue…</source>
        <translation>Da&amp;lej…</translation>
    </message>
    <message>
        <source>What is asked next depends on the picture</source>
        <translation>Następne pytania zależą od obrazu</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Wczytywanie %1…</translation>
    </message>
    <message>
        <source>The project was closed meanwhile</source>
        <translation>W międzyczasie projekt został zamknięty</translation>
    </message>
    <message>
        <source>There is nothing in the project into which it could go</source>
        <translation>W projekcie nie ma nic, do czego można by to dodać</translation>
    </message>
</context>
<context>
    <name>ImportKeeper</name>
    <message>
        <source>The file could not be imported again</source>
        <translation>Nie udało się ponownie zaimportować pliku</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Importuj ponownie</translation>
    </message>
</context>
<context>
    <name>ImportNotice</name>
    <message>
        <source>Import Again</source>
        <translation>Importuj ponownie</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nie teraz</translation>
    </message>
    <message>
        <source>%1 changed since it was imported</source>
        <translation>Plik zmieniony od czasu importu: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n files changed since they were imported</source>
        <translation>
            <numerusform>%n plik zmienił się od czasu importu</numerusform>
            <numerusform>%n pliki zmieniły się od czasu importu</numerusform>
            <numerusform>%n plików zmieniło się od czasu importu</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportPictureDialog</name>
    <message>
        <source>Import Picture</source>
        <translation>Import obrazu</translation>
    </message>
    <message>
        <source>&amp;Keep the machine&apos;s colours</source>
        <translation>&amp;Zachowaj kolory maszyny</translation>
    </message>
    <message>
        <source>Keep &amp;transparent pixels</source>
        <translation>Zachowaj &amp;przezroczyste piksele</translation>
    </message>
    <message>
        <source>&amp;Find colours and tiles for the whole picture</source>
        <translation>&amp;Dobierz kolory i kafelki do całego obrazu</translation>
    </message>
    <message>
        <source>Make tiles and a map of a picture</source>
        <translation>Utwórz z obrazu kafelki i mapę</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has, and stays exactly that</source>
        <translation>Każdy kolor obrazu jest kolorem Nexta i pozostaje dokładnie taki</translation>
    </message>
    <message>
        <source>They get index %1 of their tiles, which the map does not draw</source>
        <translation>Dostają indeks %1 swoich kafelków, którego mapa nie rysuje</translation>
    </message>
    <message>
        <source>Groups of 16 colours that suit all tiles as well as they can, and at most %1 tiles; else tiles are served as they come, and who comes last gets what is left</source>
        <translation>Grupy po 16 kolorów, możliwie najlepsze dla wszystkich kafelków, i najwyżej tyle kafelków: %1; w przeciwnym razie kafelki są obsługiwane po kolei, a ostatnie dostają to, co zostało</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Ordered pattern</source>
        <translation>Wzór uporządkowany</translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation>Dyfuzja błędu</translation>
    </message>
    <message>
        <source>&amp;Dithering</source>
        <translation>Di&amp;thering</translation>
    </message>
    <message>
        <source>Reducing %1…</source>
        <translation>Redukowanie %1…</translation>
    </message>
    <message>
        <source>Tiles: %1
Tiles that lose colours: %2</source>
        <translation>Kafelki: %1
Kafelki, które tracą kolory: %2</translation>
    </message>
    <message>
        <source>Tiles: %1, for %2 different ones
Colours: %3, for %4 of the picture; groups: %5</source>
        <translation>Kafelki: %1, różne na obrazie: %2
Kolory: %3, na obrazie: %4; grupy: %5</translation>
    </message>
    <message>
        <source>Nothing is lost</source>
        <translation>Nic nie zostaje utracone</translation>
    </message>
    <message>
        <source>Nothing is lost but shades between the colours that the machine has</source>
        <translation>Utracone zostają tylko odcienie pośrednie między kolorami maszyny</translation>
    </message>
    <message>
        <source>Of %1 cells, %2 lose colours and %3 show a tile that is like theirs</source>
        <translation>Komórki: %1, w tym tracą kolory: %2, pokazują podobny kafelek: %3</translation>
    </message>
    <message>
        <source>; mean error: %1 levels</source>
        <translation>; średni błąd (w poziomach): %1</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n different tiles, and a tile set has room for %1</source>
        <translation>
            <numerusform>Obraz ma %n różny kafelek, a w zestawie mieści się ich %1</numerusform>
            <numerusform>Obraz ma %n różne kafelki, a w zestawie mieści się ich %1</numerusform>
            <numerusform>Obraz ma %n różnych kafelków, a w zestawie mieści się ich %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportZXFontDialog</name>
    <message>
        <source>Import Spectrum Characters</source>
        <translation>Import znaków Spectrum</translation>
    </message>
    <message>
        <source>Import a ZX Spectrum font into tiles</source>
        <translation>Zaimportuj czcionkę ZX Spectrum do kafelków</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>P&amp;rzeglądaj…</translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;First tile</source>
        <translation>Pi&amp;erwszy kafelek</translation>
    </message>
    <message>
        <source>Palette &amp;offset</source>
        <translation>Prze&amp;sunięcie palety</translation>
    </message>
    <message>
        <source>I&amp;nk</source>
        <translation>A&amp;trament</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>Pap&amp;ier</translation>
    </message>
    <message>
        <source>Fonts (*.bin *.raw *.ch8)</source>
        <translation>Czcionki (*.bin *.raw *.ch8)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>No characters</source>
        <translation>Brak znaków</translation>
    </message>
    <message>
        <source>Characters: %1, in tiles %2 to %3</source>
        <translation>Znaki: %1, w kafelkach od %2 do %3</translation>
    </message>
    <message>
        <source>The tile set has no palette to take colours from</source>
        <translation>Zestaw kafelków nie ma palety, z której można by wziąć kolory</translation>
    </message>
    <message>
        <source>Please choose a font file</source>
        <translation>Wybierz plik czcionki</translation>
    </message>
    <message>
        <source>There is no character in this file, or it cannot be read</source>
        <translation>W tym pliku nie ma żadnego znaku albo nie można go odczytać</translation>
    </message>
</context>
<context>
    <name>Importing</name>
    <message>
        <source>%1 (sprites)</source>
        <translation>%1 (sprite’y)</translation>
    </message>
    <message>
        <source>Import Map</source>
        <translation>Import mapy</translation>
    </message>
    <message>
        <source>Import Tiles</source>
        <translation>Import kafelków</translation>
    </message>
    <message>
        <source>Import Sprites</source>
        <translation>Import sprite’ów</translation>
    </message>
    <message>
        <source>There is no number %1; the last one is %2</source>
        <translation>Nie ma numeru %1; ostatni to %2</translation>
    </message>
    <message>
        <source>There is room for %1, and %2 come in</source>
        <translation>Wolne miejsca: %1, do dodania: %2</translation>
    </message>
    <message>
        <source>“%1” has %2 tiles, and the first number is for tile %3 (counted from 0)</source>
        <translation>Liczba kafelków w „%1”: %2, a pierwsza liczba jest dla kafelka %3 (licząc od 0)</translation>
    </message>
    <message>
        <source>The sprites have indices above 15, and “%1” is a bank of 4 bits</source>
        <translation>Sprite’y mają indeksy powyżej 15, a „%1” to bank 4-bitowy</translation>
    </message>
    <message>
        <source>The asset into which it goes is not there any more, or is of another kind</source>
        <translation>Zasobu docelowego już nie ma albo jest innego rodzaju</translation>
    </message>
    <message>
        <source>Choose the tile set whose tiles these are for</source>
        <translation>Wybierz zestaw kafelków, do którego należą te dane</translation>
    </message>
    <message>
        <source>Please enter a name</source>
        <translation>Podaj nazwę</translation>
    </message>
    <message>
        <source>Import Animations</source>
        <translation>Import animacji</translation>
    </message>
    <message>
        <source>Animation %1</source>
        <translation>Animacja %1</translation>
    </message>
    <message>
        <source>“%1”: frames have times of their own, and get the mean of them</source>
        <translation>„%1”: klatki mają różne czasy, więc otrzymają ich średnią</translation>
    </message>
    <message>
        <source>“%1” is repeated for ever</source>
        <translation>„%1” będzie powtarzana bez końca</translation>
    </message>
    <message numerus="yes">
        <source>The frames make %n sprites, which is more than there is room for</source>
        <translation>
            <numerusform>Z klatek powstaje %n sprite, na co nie ma dość miejsca</numerusform>
            <numerusform>Z klatek powstają %n sprite’y, na co nie ma dość miejsca</numerusform>
            <numerusform>Z klatek powstaje %n sprite’ów, na co nie ma dość miejsca</numerusform>
        </translation>
    </message>
    <message>
        <source>Sprites alone go into a bank that is there; the animations are left out</source>
        <translation>Do istniejącego banku trafiają tylko sprite’y; animacje zostaną pominięte</translation>
    </message>
    <message>
        <source>The frames have %1 pixels, and tiles are made of at most %2</source>
        <translation>Liczba pikseli klatek: %1, a z kafelków można ułożyć najwyżej %2</translation>
    </message>
    <message>
        <source>Frames that are left out: %1</source>
        <translation>Pominięte klatki: %1</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Głębia</translation>
    </message>
    <message>
        <source>How many colours the sprites have</source>
        <translation>Ile kolorów mają sprite’y</translation>
    </message>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bitów, 256 kolorów</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bity, 16 kolorów</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Klatki</translation>
    </message>
    <message>
        <source>Which frames become tiles</source>
        <translation>Które klatki staną się kafelkami</translation>
    </message>
    <message>
        <source>The first one, with a map</source>
        <translation>Pierwsza, z mapą</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>Aseprite file, for sprites with animations</source>
        <translation>Plik Aseprite na sprite’y z animacjami</translation>
    </message>
    <message>
        <source>Aseprite file, for tiles</source>
        <translation>Plik Aseprite na kafelki</translation>
    </message>
    <message>
        <source>Aseprite file, for an image</source>
        <translation>Plik Aseprite na obraz</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Nie można odczytać %1: %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>to nie jest plik</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>Plik %1 jest pusty</translation>
    </message>
    <message>
        <source>“%1” is no kind of file that is read here</source>
        <translation>„%1” nie jest rodzajem pliku, który można tu odczytać</translation>
    </message>
    <message>
        <source>The file has a +3DOS header, which is skipped</source>
        <translation>Plik ma nagłówek +3DOS, który zostanie pominięty</translation>
    </message>
    <message>
        <source>The smallest that holds the picture</source>
        <translation>Najmniejszy, który pomieści obraz</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>The mode of the image</source>
        <translation>Tryb obrazu</translation>
    </message>
    <message>
        <source>The picture has %1 × %2 pixels, and what does not fit is cut off</source>
        <translation>Obraz źródłowy ma %1 × %2 pikseli; to, co się nie zmieści, zostanie obcięte</translation>
    </message>
    <message>
        <source>Import Palette</source>
        <translation>Import palety</translation>
    </message>
    <message>
        <source>Colours that the Next does not have, and that become the nearest ones: %1 of %2</source>
        <translation>Kolory, których Next nie ma, zastąpione najbliższymi: %1 z %2</translation>
    </message>
    <message>
        <source>Colours for which there is no room: %1</source>
        <translation>Kolory, dla których brak miejsca: %1</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>Dithering</translation>
    </message>
    <message>
        <source>How colours are shown for which there is no room</source>
        <translation>Jak pokazywać kolory, dla których brak miejsca</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Ordered pattern</source>
        <translation>Wzór uporządkowany</translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation>Dyfuzja błędu</translation>
    </message>
    <message>
        <source>Palette of another program</source>
        <translation>Paleta z innego programu</translation>
    </message>
    <message>
        <source>First entry</source>
        <translation>Pierwszy wpis</translation>
    </message>
    <message>
        <source>The entry that the first colour becomes</source>
        <translation>Wpis, do którego trafi pierwszy kolor</translation>
    </message>
    <message>
        <source>Scale to that size</source>
        <translation>Skaluj do tego rozmiaru</translation>
    </message>
    <message>
        <source>Makes the picture as large as the image</source>
        <translation>Dopasowuje wielkość obrazu źródłowego do obrazu</translation>
    </message>
    <message>
        <source>Picture, for tiles and a map</source>
        <translation>Obraz na kafelki i mapę</translation>
    </message>
    <message>
        <source>Picture, for sprites</source>
        <translation>Obraz na sprite’y</translation>
    </message>
    <message>
        <source>Picture, for an image</source>
        <translation>Obraz na obraz pełnoekranowy</translation>
    </message>
    <message>
        <source>Picture, for its colours</source>
        <translation>Obraz jako źródło kolorów</translation>
    </message>
    <message>
        <source>Palette, tiles, blocks and map of one name</source>
        <translation>Paleta, kafelki, bloki i mapa o tej samej nazwie</translation>
    </message>
    <message>
        <source>Cells: %1 × %2, which show %3 different tiles</source>
        <translation>Komórki: %1 × %2, różne kafelki: %3</translation>
    </message>
    <message>
        <source>Placed sprites: %1</source>
        <translation>Umieszczone sprite’y: %1</translation>
    </message>
    <message>
        <source>Tiles: %1</source>
        <translation>Kafelki: %1</translation>
    </message>
    <message>
        <source>Animations of tiles: %1</source>
        <translation>Animacje kafelków: %1</translation>
    </message>
    <message>
        <source>Numbers: %1</source>
        <translation>Liczby: %1</translation>
    </message>
    <message>
        <source>Sprites: %1</source>
        <translation>Sprite’y: %1</translation>
    </message>
    <message>
        <source>Animations: %1</source>
        <translation>Animacje: %1</translation>
    </message>
    <message>
        <source>Pixels: %1 × %2</source>
        <translation>Piksele: %1 × %2</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>Kolory: %1</translation>
    </message>
    <message>
        <source>Tile %1 (counted from 0) has pixels of several palette offsets, and a tile has one</source>
        <translation>Kafelek %1 (licząc od 0) ma piksele o różnych przesunięciach palety, a może mieć tylko jedno</translation>
    </message>
    <message>
        <source>Tiles that lose colours, since theirs are of several palette offsets: %1 of %2</source>
        <translation>Kafelki, które tracą kolory, bo mają różne przesunięcia palety: %1 z %2</translation>
    </message>
    <message>
        <source>The file has %1 bytes, which is too much for this</source>
        <translation>Plik ma %1 B, czyli za dużo do tego celu</translation>
    </message>
    <message>
        <source>Several offsets</source>
        <translation>Różne przesunięcia</translation>
    </message>
    <message>
        <source>What becomes of tiles whose pixels are of several palette offsets, which a tile map cannot show</source>
        <translation>Co zrobić z kafelkami, których piksele mają różne przesunięcia palety, bo mapa kafelków nie może ich pokazać</translation>
    </message>
    <message>
        <source>The colours of the best one</source>
        <translation>Kolory najlepszego przesunięcia</translation>
    </message>
    <message>
        <source>Nothing is imported</source>
        <translation>Niczego nie importuj</translation>
    </message>
    <message>
        <source>Of %1 pieces of 8 × 8 pixels, %2 lose colours and %3 get a tile that is like theirs; mean error: %4 levels</source>
        <translation>Fragmenty 8 × 8 pikseli: %1, w tym tracą kolory: %2, dostają podobny kafelek: %3; średni błąd (w poziomach): %4</translation>
    </message>
    <message>
        <source>Colours: %1, which %2 stand for; mean error: %3 levels</source>
        <translation>Kolory: %1, zastąpione przez: %2; średni błąd (w poziomach): %3</translation>
    </message>
    <message>
        <source>Colours that the Next does not have become the nearest ones</source>
        <translation>Kolory, których Next nie ma, są zastępowane najbliższymi</translation>
    </message>
    <message>
        <source>Tiles that are not as large as the cells, and are cut or filled: %1</source>
        <translation>Kafelki o innym rozmiarze niż komórki, przycięte lub uzupełnione: %1</translation>
    </message>
    <message>
        <source>Cells whose animations are left out, since there are more than %1: %2</source>
        <translation>Komórki, których animacje pominięto, bo jest ich więcej niż %1: %2</translation>
    </message>
    <message>
        <source>Animations whose frames have times of their own, and get the mean: %1</source>
        <translation>Animacje, których klatki mają różne czasy i otrzymają ich średnią: %1</translation>
    </message>
    <message>
        <source>Objects that are no sprites, turned, scaled, hidden or too large, and are left out: %1</source>
        <translation>Pominięte obiekty, które nie są sprite’ami albo są obrócone, przeskalowane, ukryte lub za duże: %1</translation>
    </message>
    <message>
        <source>The cells of the map have %1 × %2 pixels, and tiles of the Next 8 × 8: only multiples of that can be cut</source>
        <translation>Komórki mapy mają %1 × %2 pikseli, a kafelki Nexta 8 × 8: pociąć można tylko ich wielokrotności</translation>
    </message>
    <message>
        <source>The map has no cells</source>
        <translation>Mapa nie ma komórek</translation>
    </message>
    <message>
        <source>That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most</source>
        <translation>Powstałaby mapa o wymiarach %1 × %2 komórek; maksimum to %3 wzdłuż boku i %4 ogółem</translation>
    </message>
    <message>
        <source>The map shows too many different tiles: of %1 × %2 pixels, %3 are the most</source>
        <translation>Mapa pokazuje zbyt wiele różnych kafelków: przy wymiarach %1 × %2 pikseli maksimum to %3</translation>
    </message>
    <message>
        <source>Files that are left alone because they are not below the map&apos;s folder: %1</source>
        <translation>Pominięte pliki spoza folderu mapy: %1</translation>
    </message>
    <message>
        <source>Map of Tiled</source>
        <translation>Mapa Tiled</translation>
    </message>
    <message>
        <source>Read files outside its folder</source>
        <translation>Czytaj pliki spoza jej folderu</translation>
    </message>
    <message>
        <source>Takes tile sets and pictures from wherever the map says that they are</source>
        <translation>Pobiera zestawy kafelków i obrazy z każdego miejsca wskazanego w mapie</translation>
    </message>
    <message>
        <source>Import Image</source>
        <translation>Import obrazu</translation>
    </message>
    <message>
        <source>“%1” has %2 × %3 pixels, and the picture has %4 × %5</source>
        <translation>„%1” ma %2 × %3 pikseli, a obraz %4 × %5</translation>
    </message>
    <message>
        <source>Choose the map on which these are placed</source>
        <translation>Wybierz mapę, na której są one umieszczone</translation>
    </message>
    <message>
        <source>What record %1 (counted from 0) shows is not in the project, where it is looked for by its place</source>
        <translation>Tego, co pokazuje rekord %1 (licząc od 0), nie ma w projekcie, gdzie szuka się tego według miejsca</translation>
    </message>
    <message>
        <source>Placed animations: %1</source>
        <translation>Umieszczone animacje: %1</translation>
    </message>
    <message>
        <source>The colours are left out, since other assets are drawn with the palette of “%1” as well</source>
        <translation>Kolory pominięto, ponieważ paleta zasobu „%1” służy też innym zasobom</translation>
    </message>
    <message>
        <source>Tile set of Tiled</source>
        <translation>Zestaw kafelków programu Tiled</translation>
    </message>
</context>
<context>
    <name>IndexSuffix</name>
    <message>
        <source> (index %1)</source>
        <translation> (indeks %1)</translation>
    </message>
</context>
<context>
    <name>LayerAction</name>
    <message>
        <source>Scroll</source>
        <translation>Przewiń</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Obróć</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Odbij w pionie</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Odbij w poziomie</translation>
    </message>
</context>
<context>
    <name>LayoutController</name>
    <message>
        <source>Next Dock</source>
        <translation>Następny panel</translation>
    </message>
    <message>
        <source>Previous Dock</source>
        <translation>Poprzedni panel</translation>
    </message>
    <message>
        <source>Next Dock Behind</source>
        <translation>Następny panel pod spodem</translation>
    </message>
    <message>
        <source>Previous Dock Behind</source>
        <translation>Poprzedni panel pod spodem</translation>
    </message>
</context>
<context>
    <name>LineCanvasTool</name>
    <message>
        <source>Line</source>
        <translation>Linia</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>%2 - %1</source>
        <translation>%2 – %1</translation>
    </message>
    <message>
        <source>Its backup is from %1</source>
        <translation>Kopia zapasowa pochodzi z %1</translation>
    </message>
    <message>
        <source>Open &amp;Backup</source>
        <translation>Otwórz &amp;kopię zapasową</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>Could not import the font</source>
        <translation>Nie udało się zaimportować czcionki</translation>
    </message>
</context>
<context>
    <name>MapDialog</name>
    <message>
        <source> cells</source>
        <translation> kom.</translation>
    </message>
    <message>
        <source>New Map</source>
        <translation>Nowa mapa</translation>
    </message>
    <message>
        <source>Create a new map</source>
        <translation>Utwórz nową mapę</translation>
    </message>
    <message>
        <source>&amp;Tile set</source>
        <translation>&amp;Zestaw kafelków</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Szerokość</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Wysokość</translation>
    </message>
    <message>
        <source>A map is made of the tiles of a tile set; please create a tile set first</source>
        <translation>Mapa składa się z kafelków zestawu; najpierw utwórz zestaw kafelków</translation>
    </message>
</context>
<context>
    <name>MapEditor::AnchorPad</name>
    <message>
        <source>Top left</source>
        <translation>Lewy górny róg</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Góra</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Prawy górny róg</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lewo</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Środek</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Prawo</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Lewy dolny róg</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dół</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Prawy dolny róg</translation>
    </message>
</context>
<context>
    <name>MapEditor::CellDialog</name>
    <message>
        <source>Go to Cell</source>
        <translation>Przejście do komórki</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Kolumna</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Wiersz</translation>
    </message>
</context>
<context>
    <name>MapEditor::CellTool</name>
    <message>
        <source>Place Animation</source>
        <translation>Umieszczenie animacji</translation>
    </message>
</context>
<context>
    <name>MapEditor::DrawTool</name>
    <message>
        <source>Paint</source>
        <translation>Malowanie</translation>
    </message>
</context>
<context>
    <name>MapEditor::ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Eksport</translation>
    </message>
    <message>
        <source>Export Map Data</source>
        <translation>Eksport danych mapy</translation>
    </message>
    <message>
        <source>Export Tile Data</source>
        <translation>Eksport danych kafelków</translation>
    </message>
    <message>
        <source>Export Palette Data</source>
        <translation>Eksport danych palety</translation>
    </message>
    <message>
        <source>Export: %1</source>
        <translation>Eksport: %1</translation>
    </message>
    <message>
        <source>Files in %1</source>
        <translation>Pliki w %1</translation>
    </message>
    <message>
        <source>%1 (replaces this file)</source>
        <translation>%1 (zastępuje ten plik)</translation>
    </message>
    <message>
        <source>Choose what to export</source>
        <translation>Wybierz, co wyeksportować</translation>
    </message>
</context>
<context>
    <name>MapEditor::FillTool</name>
    <message>
        <source>Bucket Fill</source>
        <translation>Wypełnianie kubełkiem</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapCommands</name>
    <message>
        <source>Select Same &amp;Tile</source>
        <translation>Zaznacz &amp;takie same kafelki</translation>
    </message>
    <message>
        <source>Selects all cells that show the current tile</source>
        <translation>Zaznacza wszystkie komórki, które pokazują bieżący kafelek</translation>
    </message>
    <message>
        <source>&amp;Replace Tile…</source>
        <translation>&amp;Zamień kafelek…</translation>
    </message>
    <message>
        <source>Puts one tile in place of another, in the selection, the map or all maps of the tile set</source>
        <translation>Wstawia jeden kafelek w miejsce innego: w zaznaczeniu, na mapie lub na wszystkich mapach zestawu kafelków</translation>
    </message>
    <message>
        <source>Edit Terrain&amp;s…</source>
        <translation>Edytuj te&amp;reny…</translation>
    </message>
    <message>
        <source>Marks tiles whose borders match when they are painted</source>
        <translation>Oznacza kafelki, których krawędzie pasują do siebie podczas malowania</translation>
    </message>
    <message>
        <source>Go to &amp;Cell…</source>
        <translation>Przejdź do &amp;komórki…</translation>
    </message>
    <message>
        <source>Scrolls the map to a cell</source>
        <translation>Przewija mapę do komórki</translation>
    </message>
    <message>
        <source>&amp;Overview</source>
        <translation>Minim&amp;apa</translation>
    </message>
    <message>
        <source>Shows the whole map in a corner, with the part that is in view to drag</source>
        <translation>Pokazuje w rogu całą mapę; widoczną część można przeciągać</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapEditing</name>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Wypełnij</translation>
    </message>
    <message>
        <source>Copy Cells</source>
        <translation>Kopiowanie komórek</translation>
    </message>
    <message>
        <source>Move Cells</source>
        <translation>Przeniesienie komórek</translation>
    </message>
    <message>
        <source>Sprite Properties</source>
        <translation>Właściwości sprite’a</translation>
    </message>
    <message>
        <source>Delete Sprite</source>
        <translation>Usunięcie sprite’a</translation>
    </message>
    <message>
        <source>Remove Animation</source>
        <translation>Usunięcie animacji</translation>
    </message>
    <message>
        <source>Add Rows</source>
        <translation>Dodanie wierszy</translation>
    </message>
    <message>
        <source>Add Columns</source>
        <translation>Dodanie kolumn</translation>
    </message>
    <message>
        <source>Remove Rows</source>
        <translation>Usunięcie wierszy</translation>
    </message>
    <message>
        <source>Remove Columns</source>
        <translation>Usunięcie kolumn</translation>
    </message>
    <message>
        <source>Resize Map</source>
        <translation>Zmiana rozmiaru mapy</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapExport</name>
    <message>
        <source>Choose a directory to export anim into</source>
        <translation>Wybierz folder, do którego wyeksportować animacje</translation>
    </message>
    <message>
        <source>Exporting %1…</source>
        <translation>Eksportowanie %1…</translation>
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
        <translation>Wytnij</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Copy to new map</source>
        <translation>Kopiuj do nowej mapy</translation>
    </message>
    <message>
        <source>Copy as Image</source>
        <translation>Kopiuj jako obraz</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Wypełnij</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Wklej</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edycja</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapKeys</name>
    <message>
        <source>Column %1, row %2</source>
        <translation>Kolumna %1, wiersz %2</translation>
    </message>
    <message>
        <source>tile %1</source>
        <translation>kafelek %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>pusta</translation>
    </message>
    <message>
        <source>rotated</source>
        <translation>obrócony</translation>
    </message>
    <message>
        <source>flipped</source>
        <translation>odbity w pionie</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>odbity w poziomie</translation>
    </message>
    <message>
        <source>palette offset %1</source>
        <translation>przesunięcie palety %1</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>animacja</translation>
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
        <translation>Minimapa</translation>
    </message>
    <message>
        <source>Drag to scroll the map</source>
        <translation>Przeciągnij, aby przewinąć mapę</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapToolPalette</name>
    <message>
        <source>Rotated</source>
        <translation>Obrót</translation>
    </message>
    <message>
        <source>Flipped</source>
        <translation>Odbicie w pionie</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Odbicie w poziomie</translation>
    </message>
    <message>
        <source>Random tiles of the stamp</source>
        <translation>Losowe kafelki stempla</translation>
    </message>
    <message>
        <source>Bucket fill</source>
        <translation>Wypełnianie kubełkiem</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linia</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Prostokąt</translation>
    </message>
    <message>
        <source>Filled rectangle</source>
        <translation>Wypełniony prostokąt</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Elipsa</translation>
    </message>
    <message>
        <source>Filled ellipse</source>
        <translation>Wypełniona elipsa</translation>
    </message>
    <message>
        <source>Paint terrain</source>
        <translation>Malowanie terenem</translation>
    </message>
</context>
<context>
    <name>MapEditor::PaintBar</name>
    <message>
        <source>Painting</source>
        <translation>Malowanie</translation>
    </message>
    <message>
        <source>Stamps</source>
        <translation>Stemple</translation>
    </message>
    <message>
        <source>Ctrl-drag tiles to make one</source>
        <translation>Przeciągnij kafelki z Ctrl, aby utworzyć stempel</translation>
    </message>
    <message>
        <source>Stamps are made of tiles, by dragging with Ctrl in the tile picker, and of cells, by dragging with the Pick tool</source>
        <translation>Stempel tworzy się z kafelków, przeciągając z Ctrl na liście kafelków, albo z komórek, przeciągając narzędziem Pipeta</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Przesunięcie</translation>
    </message>
    <message>
        <source>Of the tile</source>
        <translation>Z kafelka</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Przesunięcie palety</translation>
    </message>
    <message>
        <source>The palette offset of painted cells. Ctrl with a painting tool paints it alone, and with the right button brings back that of the tile</source>
        <translation>Przesunięcie palety malowanych komórek. Narzędzie malowania z Ctrl maluje samo przesunięcie, a z prawym przyciskiem przywraca przesunięcie kafelka</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Teren</translation>
    </message>
    <message>
        <source>What the terrain tool paints</source>
        <translation>Co maluje narzędzie terenu</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Edit Terrains…</source>
        <translation>Edytuj tereny…</translation>
    </message>
    <message>
        <source>Marks the tiles of terrains</source>
        <translation>Oznacza kafelki terenów</translation>
    </message>
    <message>
        <source>%1 × %2 cells</source>
        <translation>%1 × %2 kom.</translation>
    </message>
    <message>
        <source>Stamp of %1</source>
        <translation>Stempel %1</translation>
    </message>
    <message>
        <source>%1, a stamp of %2</source>
        <translation>%1, stempel %2</translation>
    </message>
    <message>
        <source>Name Stamp…</source>
        <translation>Nazwij stempel…</translation>
    </message>
    <message>
        <source>Forget Stamp</source>
        <translation>Usuń stempel</translation>
    </message>
    <message>
        <source>Name Stamp</source>
        <translation>Nazwa stempla</translation>
    </message>
    <message>
        <source>A stamp with a name stays; without one it goes when others are used</source>
        <translation>Stempel z nazwą pozostaje; bez nazwy znika, gdy użyte zostaną inne</translation>
    </message>
</context>
<context>
    <name>MapEditor::PaintDesk</name>
    <message>
        <source>Replace Tile</source>
        <translation>Zamiana kafelka</translation>
    </message>
    <message>
        <source>Replace Tile in All Maps</source>
        <translation>Zamiana kafelka na wszystkich mapach</translation>
    </message>
    <message>
        <source>Choose a tile in the Tiles dock and paint here: the left button paints, the right one clears</source>
        <translation>Wybierz kafelek w panelu Kafelki i maluj tutaj: lewy przycisk maluje, prawy czyści</translation>
    </message>
</context>
<context>
    <name>MapEditor::PasteTool</name>
    <message>
        <source>Picture of %1 × %2 cells; tiles to be added: %3</source>
        <translation>Obraz %1 × %2 kom.; kafelki do dodania: %3</translation>
    </message>
    <message>
        <source>; pixels that take the nearest colour: %1</source>
        <translation>; piksele, które otrzymają najbliższy kolor: %1</translation>
    </message>
    <message>
        <source>The picture is smaller than a tile, which has 8 × 8 pixels</source>
        <translation>Obraz jest mniejszy niż kafelek, który ma 8 × 8 pikseli</translation>
    </message>
    <message numerus="yes">
        <source>The picture needs %n more tiles, and the tile set has room for %1</source>
        <translation>
            <numerusform>Obraz wymaga dodania %n kafelka, a w zestawie zmieści się tyle: %1</numerusform>
            <numerusform>Obraz wymaga dodania %n kafelków, a w zestawie zmieści się tyle: %1</numerusform>
            <numerusform>Obraz wymaga dodania %n kafelków, a w zestawie zmieści się tyle: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Paste Picture</source>
        <translation>Wklejenie obrazu</translation>
    </message>
    <message>
        <source>Tiles added: %1</source>
        <translation>Dodane kafelki: %1</translation>
    </message>
    <message>
        <source>; pixels that took the nearest colour: %1</source>
        <translation>; piksele, które otrzymały najbliższy kolor: %1</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Wklej</translation>
    </message>
</context>
<context>
    <name>MapEditor::PlaceAnimationTool</name>
    <message>
        <source>Place Animation</source>
        <translation>Umieszczenie animacji</translation>
    </message>
</context>
<context>
    <name>MapEditor::PlaceSpriteTool</name>
    <message>
        <source>Place Sprite</source>
        <translation>Umieszczenie sprite’a</translation>
    </message>
    <message>
        <source>Move Sprite</source>
        <translation>Przeniesienie sprite’a</translation>
    </message>
</context>
<context>
    <name>MapEditor::ReplaceTileDialog</name>
    <message>
        <source>Replace Tile</source>
        <translation>Zamiana kafelka</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Zamień</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Na</translation>
    </message>
    <message>
        <source>In the selection</source>
        <translation>W zaznaczeniu</translation>
    </message>
    <message>
        <source>In this map</source>
        <translation>Na tej mapie</translation>
    </message>
    <message>
        <source>In all maps of the tile set</source>
        <translation>Na wszystkich mapach zestawu kafelków</translation>
    </message>
    <message>
        <source>Tile </source>
        <translation>Kafelek </translation>
    </message>
    <message>
        <source>These are the same tile</source>
        <translation>To ten sam kafelek</translation>
    </message>
</context>
<context>
    <name>MapEditor::ResizeDialog</name>
    <message>
        <source>Resize Map</source>
        <translation>Zmiana rozmiaru mapy</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Szerokość</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Wysokość</translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation>Kotwica</translation>
    </message>
    <message>
        <source> cells</source>
        <translation> kom.</translation>
    </message>
    <message>
        <source>The whole map of %1×%2 cells is kept</source>
        <translation>Cała mapa %1×%2 kom. zostanie zachowana</translation>
    </message>
    <message>
        <source>%1×%2 of %3×%4 cells are kept</source>
        <translation>Zachowane komórki: %1×%2 z %3×%4</translation>
    </message>
</context>
<context>
    <name>MapEditor::ShapeTool</name>
    <message>
        <source>Line</source>
        <translation>Linia</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Prostokąt</translation>
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
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Odbij w poziomie</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Odbij w pionie</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Obróć</translation>
    </message>
    <message>
        <source>Start frame</source>
        <translation>Klatka początkowa</translation>
    </message>
    <message>
        <source>Initial delay</source>
        <translation>Opóźnienie początkowe</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Opóźnienie powtórzeń</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Przesunięcie palety</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainDialog</name>
    <message>
        <source>Terrains</source>
        <translation>Tereny</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>The 4 cells beside</source>
        <translation>4 sąsiednie komórki</translation>
    </message>
    <message>
        <source>All 8 cells around</source>
        <translation>8 komórek wokół</translation>
    </message>
    <message>
        <source>Which neighbours decide about the tile of a cell</source>
        <translation>Którzy sąsiedzi decydują o kafelku komórki</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Looks at</source>
        <translation>Uwzględnia</translation>
    </message>
    <message>
        <source>Mark the middle of each tile of the terrain, and the sides and corners where it goes on. The right button takes marks away.</source>
        <translation>Oznacz środek każdego kafelka terenu oraz te boki i rogi, w których teren ciągnie się dalej. Prawy przycisk usuwa oznaczenia.</translation>
    </message>
    <message>
        <source>Terrain %1</source>
        <translation>Teren %1</translation>
    </message>
    <message>
        <source>Every terrain needs a name</source>
        <translation>Każdy teren musi mieć nazwę</translation>
    </message>
    <message>
        <source>Turn tiles where none has the borders</source>
        <translation>Obracaj kafelki tam, gdzie żaden nie ma takich krawędzi</translation>
    </message>
    <message>
        <source>Also takes tiles that have the borders when they are rotated, flipped or mirrored</source>
        <translation>Bierze też kafelki, które mają te krawędzie po obróceniu lub odbiciu</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainMarks</name>
    <message>
        <source>Marks of the terrain</source>
        <translation>Oznaczenia terenu</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainTool</name>
    <message>
        <source>Paint Terrain</source>
        <translation>Malowanie terenem</translation>
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
        <translation>Kafelki</translation>
    </message>
    <message>
        <source>Show or hide the tile layer</source>
        <translation>Pokaż lub ukryj warstwę kafelków</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Obiekty</translation>
    </message>
    <message>
        <source>Show or hide the object layer</source>
        <translation>Pokaż lub ukryj warstwę obiektów</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprite’y</translation>
    </message>
    <message>
        <source>Show or hide the sprite layer</source>
        <translation>Pokaż lub ukryj warstwę sprite’ów</translation>
    </message>
    <message>
        <source>Size in cells of the viewport</source>
        <translation>Rozmiar obszaru widoku w komórkach</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>Obszar widoku</translation>
    </message>
    <message>
        <source>Viewport width</source>
        <translation>Szerokość obszaru widoku</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Viewport height</source>
        <translation>Wysokość obszaru widoku</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Tło</translation>
    </message>
    <message>
        <source>Tile index to be used as a background</source>
        <translation>Indeks kafelka używanego jako tło</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Przezroczystość</translation>
    </message>
    <message>
        <source>Sets the transparency index of the tile set (0-15) or off</source>
        <translation>Ustawia indeks przezroczystości zestawu kafelków (0-15) lub ją wyłącza</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Wył.</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Przyciąganie</translation>
    </message>
    <message>
        <source>Sets the snap to grid size</source>
        <translation>Ustawia krok przyciągania do siatki</translation>
    </message>
    <message>
        <source>Map size in tiles and bytes</source>
        <translation>Rozmiar mapy w kafelkach i bajtach</translation>
    </message>
</context>
<context>
    <name>MapEditor::View</name>
    <message numerus="yes">
        <source>%1x%2 (%n bytes)</source>
        <translation>
            <numerusform>%1x%2 (%n bajt)</numerusform>
            <numerusform>%1x%2 (%n bajty)</numerusform>
            <numerusform>%1x%2 (%n bajtów)</numerusform>
        </translation>
    </message>
    <message>
        <source>Resize or export the map</source>
        <translation>Zmień rozmiar mapy lub ją wyeksportuj</translation>
    </message>
    <message>
        <source>Resize Map…</source>
        <translation>Zmień rozmiar mapy…</translation>
    </message>
    <message>
        <source>Export to Folder…</source>
        <translation>Eksportuj do folderu…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
</context>
<context>
    <name>MapEditorPage</name>
    <message>
        <source>Render checker board beneath maps</source>
        <translation>Rysuj szachownicę pod mapami</translation>
    </message>
    <message>
        <source>Enable grid line overlay</source>
        <translation>Wyświetlaj linie siatki</translation>
    </message>
    <message>
        <source>Map Editor</source>
        <translation>Edytor map</translation>
    </message>
    <message>
        <source>Grid colour</source>
        <translation>Kolor siatki</translation>
    </message>
    <message>
        <source>Alternate colour</source>
        <translation>Drugi kolor</translation>
    </message>
    <message>
        <source>Grid size (in pixels)</source>
        <translation>Rozmiar siatki (w pikselach)</translation>
    </message>
    <message>
        <source>Default magnification</source>
        <translation>Domyślne powiększenie</translation>
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
        <translation>&amp;Nowa mapa</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importuj</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Eksportuj</translation>
    </message>
    <message>
        <source>NextTiles (*.nxm *.nxt *.nxp *.nxb)</source>
        <translation>NextTiles (*.nxm *.nxt *.nxp *.nxb)</translation>
    </message>
    <message>
        <source>Image files (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Pliki obrazów (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>Import Map Data</source>
        <translation>Import danych mapy</translation>
    </message>
    <message>
        <source>Export Map Data</source>
        <translation>Eksport danych mapy</translation>
    </message>
    <message>
        <source>Map Data (*.map)</source>
        <translation>Dane mapy (*.map)</translation>
    </message>
    <message>
        <source>Exporting %1…</source>
        <translation>Eksportowanie %1…</translation>
    </message>
</context>
<context>
    <name>MapObjects</name>
    <message>
        <source>Empty</source>
        <translation>Pusty</translation>
    </message>
</context>
<context>
    <name>MapSpritesWindow</name>
    <message>
        <source>Map Sprites</source>
        <translation>Sprite’y mapy</translation>
    </message>
    <message>
        <source>No sprites</source>
        <translation>Brak sprite’ów</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animacje</translation>
    </message>
    <message>
        <source>Sprite bank</source>
        <translation>Bank sprite’ów</translation>
    </message>
    <message>
        <source>The sprite banks of the project</source>
        <translation>Banki sprite’ów w projekcie</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprite’y</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>Warning!</source>
        <translation>Uwaga!</translation>
    </message>
</context>
<context>
    <name>NextData</name>
    <message>
        <source>the table of animations</source>
        <translation>tabela animacji</translation>
    </message>
    <message>
        <source>their number</source>
        <translation>ich liczba</translation>
    </message>
    <message>
        <source>the place of “%1”</source>
        <translation>położenie „%1”</translation>
    </message>
    <message>
        <source>animation “%1”</source>
        <translation>animacja „%1”</translation>
    </message>
    <message>
        <source>the width</source>
        <translation>szerokość</translation>
    </message>
    <message>
        <source>the height</source>
        <translation>wysokość</translation>
    </message>
    <message>
        <source>the number of frames</source>
        <translation>liczba klatek</translation>
    </message>
    <message>
        <source>the kind</source>
        <translation>rodzaj</translation>
    </message>
    <message>
        <source>the delay</source>
        <translation>opóźnienie</translation>
    </message>
    <message>
        <source>it shows number %1, and %2 is the last one that fits</source>
        <translation>pokazuje numer %1, a ostatni dozwolony to %2</translation>
    </message>
    <message>
        <source>it has the palette offset %1</source>
        <translation>ma przesunięcie palety %1</translation>
    </message>
    <message>
        <source>Animation “%1”, frame %2, column %3, row %4 (counted from 0): %5</source>
        <translation>Animacja „%1”, klatka %2, kolumna %3, wiersz %4 (licząc od 0): %5</translation>
    </message>
    <message>
        <source>number and places of the animations</source>
        <translation>liczba i położenia animacji</translation>
    </message>
    <message>
        <source>animation %1 “%2”</source>
        <translation>animacja %1 „%2”</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>klatka %1</translation>
    </message>
    <message>
        <source>The animations do not lie in the file as its beginning says</source>
        <translation>Animacje nie leżą w pliku tak, jak podaje jego początek</translation>
    </message>
    <message>
        <source>Bytes behind the last animation that are left out: %1</source>
        <translation>Pominięte bajty za ostatnią animacją: %1</translation>
    </message>
    <message>
        <source>Animations of blocks</source>
        <translation>Animacje bloków</translation>
    </message>
    <message>
        <source>Animations of sprites</source>
        <translation>Animacje sprite’ów</translation>
    </message>
    <message>
        <source>it leads out of its folder</source>
        <translation>wychodzi poza swój folder</translation>
    </message>
    <message>
        <source>a folder or file in it has no name</source>
        <translation>folder lub plik w ścieżce nie ma nazwy</translation>
    </message>
    <message>
        <source>There is no file name</source>
        <translation>Brak nazwy pliku</translation>
    </message>
    <message>
        <source>it is not relative</source>
        <translation>ścieżka nie jest względna</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>Nie można zapisać „%1”: %2</translation>
    </message>
    <message>
        <source>“%1” is %2, and the form %3 is for %4</source>
        <translation>„%1” to %2, a format %3 jest dla rodzaju „%4”</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>“%1” has %2 pixels, and this form %3</source>
        <translation>„%1” ma %2 pikseli, a ten format %3</translation>
    </message>
    <message>
        <source>“%1” has no palette that could stand in front</source>
        <translation>„%1” nie ma palety, którą można by umieścić na początku</translation>
    </message>
    <message>
        <source>“%1”: the pixel at %2, %3 has the index %4, and only those from %5 to %6 go with the first pixel</source>
        <translation>„%1”: piksel w punkcie %2, %3 ma indeks %4, a do pierwszego piksela pasują tylko od %5 do %6</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and such a picture %2, or %3 or %4 with its palette</source>
        <translation>Plik ma %1 B, a taki obraz %2 albo, z paletą, %3 lub %4</translation>
    </message>
    <message>
        <source>The file has one half of the picture, which becomes the upper one</source>
        <translation>Plik zawiera jedną połowę obrazu, która stanie się górną</translation>
    </message>
    <message>
        <source>By rows</source>
        <translation>Wierszami</translation>
    </message>
    <message>
        <source>By columns</source>
        <translation>Kolumnami</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Kolejność</translation>
    </message>
    <message>
        <source>In which order the pixels follow each other</source>
        <translation>W jakiej kolejności następują po sobie piksele</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Przesunięcie palety</translation>
    </message>
    <message>
        <source>The group of sixteen colours of all pixels, which comes from a register</source>
        <translation>Grupa szesnastu kolorów wszystkich pikseli, którą określa rejestr</translation>
    </message>
    <message>
        <source>Palette in front</source>
        <translation>Paleta na początku</translation>
    </message>
    <message>
        <source>Writes the 512 bytes of the image&apos;s palette before the pixels</source>
        <translation>Zapisuje 512 bajtów palety obrazu przed pikselami</translation>
    </message>
    <message>
        <source>Two halves</source>
        <translation>Dwie połowy</translation>
    </message>
    <message>
        <source>Writes the upper and the lower half into files of their own</source>
        <translation>Zapisuje górną i dolną połowę w osobnych plikach</translation>
    </message>
    <message>
        <source>Layer 2, 256 × 192, by rows</source>
        <translation>Layer 2, 256 × 192, wierszami</translation>
    </message>
    <message>
        <source>Layer 2, 320 × 256, by columns</source>
        <translation>Layer 2, 320 × 256, kolumnami</translation>
    </message>
    <message>
        <source>Layer 2, 640 × 256, by columns, two pixels a byte</source>
        <translation>Layer 2, 640 × 256, kolumnami, dwa piksele na bajt</translation>
    </message>
    <message>
        <source>LoRes, 128 × 96, by rows</source>
        <translation>LoRes, 128 × 96, wierszami</translation>
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
        <translation>Layer 2, 640 × 256, dwa piksele na bajt</translation>
    </message>
    <message>
        <source>LoRes, 128 × 96</source>
        <translation>LoRes, 128 × 96</translation>
    </message>
    <message>
        <source>screen %1, %2</source>
        <translation>ekran %1, %2</translation>
    </message>
    <message>
        <source>“%1”: the cell in column %2, row %3 (counted from 0) %4</source>
        <translation>„%1”: komórka w kolumnie %2, wierszu %3 (licząc od 0) %4</translation>
    </message>
    <message>
        <source>shows tile %1, and %2 is the last one that fits</source>
        <translation>pokazuje kafelek %1, a ostatni dozwolony to %2</translation>
    </message>
    <message>
        <source>has the palette offset %1</source>
        <translation>ma przesunięcie palety %1</translation>
    </message>
    <message>
        <source>is rotated or mirrored, which one byte does not tell</source>
        <translation>jest obrócona lub odbita, czego jeden bajt nie wyraża</translation>
    </message>
    <message>
        <source>has the palette offset %1, others have %2, and one byte does not tell them apart</source>
        <translation>ma przesunięcie palety %1, inne mają %2, a jeden bajt ich nie rozróżnia</translation>
    </message>
    <message>
        <source>That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most</source>
        <translation>Powstałaby mapa o wymiarach %1 × %2 komórek; maksimum to %3 wzdłuż boku i %4 ogółem</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and a cell takes %2</source>
        <translation>Plik ma %1 B, a komórka zajmuje %2</translation>
    </message>
    <message>
        <source>Cells of the file that are outside the map: %1</source>
        <translation>Komórki pliku poza mapą: %1</translation>
    </message>
    <message>
        <source>Cells of the map that the file does not have, and that stay blank: %1</source>
        <translation>Komórki mapy, których nie ma w pliku i które pozostaną puste: %1</translation>
    </message>
    <message>
        <source>Half a cell at the end is left out</source>
        <translation>Połowa komórki na końcu została pominięta</translation>
    </message>
    <message>
        <source>In which order the cells of a screen follow each other</source>
        <translation>W jakiej kolejności następują po sobie komórki ekranu</translation>
    </message>
    <message>
        <source>Screen width</source>
        <translation>Szerokość ekranu</translation>
    </message>
    <message>
        <source>Cells across a screen into which the map is cut; 0 is the whole width</source>
        <translation>Szerokość w komórkach ekranów, na które dzielona jest mapa; 0 oznacza całą szerokość</translation>
    </message>
    <message>
        <source>Screen height</source>
        <translation>Wysokość ekranu</translation>
    </message>
    <message>
        <source>Cells down a screen into which the map is cut; 0 is the whole height</source>
        <translation>Wysokość w komórkach ekranów, na które dzielona jest mapa; 0 oznacza całą wysokość</translation>
    </message>
    <message>
        <source>A file for each screen</source>
        <translation>Osobny plik dla każdego ekranu</translation>
    </message>
    <message>
        <source>Writes the screens into numbered files of their own</source>
        <translation>Zapisuje ekrany w osobnych, numerowanych plikach</translation>
    </message>
    <message>
        <source>Tile map, two bytes a cell</source>
        <translation>Mapa kafelków, dwa bajty na komórkę</translation>
    </message>
    <message>
        <source>Tile map, one byte a cell</source>
        <translation>Mapa kafelków, jeden bajt na komórkę</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Szerokość</translation>
    </message>
    <message>
        <source>Cells across the map; 0 is what most maps of so many cells have</source>
        <translation>Szerokość mapy w komórkach; 0 oznacza taką, jaką ma większość map o tej liczbie komórek</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Wysokość</translation>
    </message>
    <message>
        <source>Cells down the map; 0 is as far as the file goes</source>
        <translation>Wysokość mapy w komórkach; 0 oznacza tyle, na ile starczy pliku</translation>
    </message>
    <message>
        <source>Cells across the screens into which the map was cut; 0 is the whole width</source>
        <translation>Szerokość w komórkach ekranów, na które podzielono mapę; 0 oznacza całą szerokość</translation>
    </message>
    <message>
        <source>Cells down the screens into which the map was cut; 0 is the whole height</source>
        <translation>Wysokość w komórkach ekranów, na które podzielono mapę; 0 oznacza całą wysokość</translation>
    </message>
    <message>
        <source>Bit 0</source>
        <translation>Bit 0</translation>
    </message>
    <message>
        <source>What the lowest bit of a cell&apos;s second byte says</source>
        <translation>Co oznacza najniższy bit drugiego bajtu komórki</translation>
    </message>
    <message>
        <source>Tiles from 256 on</source>
        <translation>Kafelki od 256</translation>
    </message>
    <message>
        <source>The ULA&apos;s picture is in front: left out</source>
        <translation>Obraz ULA jest na wierzchu: pominięto</translation>
    </message>
    <message>
        <source>The palette offset of all cells, which comes from a register</source>
        <translation>Przesunięcie palety wszystkich komórek, które określa rejestr</translation>
    </message>
    <message>
        <source>“%1” cannot be a label: those are a letter, then letters, digits and _, %2 at most</source>
        <translation>„%1” nie może być etykietą: ta składa się z litery, a po niej z liter, cyfr i _; maksymalna liczba znaków: %2</translation>
    </message>
    <message>
        <source>“%1” cannot be a label: assemblers or C give it a meaning</source>
        <translation>„%1” nie może być etykietą: ma znaczenie w asemblerach lub w C</translation>
    </message>
    <message>
        <source>The label “%1”, or a name made of it, is that of another output already</source>
        <translation>Etykieta „%1” lub utworzona z niej nazwa należy już do innej pozycji</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 “%3”</source>
        <translation>%1 %2 „%3”</translation>
    </message>
    <message>
        <source>“%1”, %2: its %3 is not in the project</source>
        <translation>„%1”, %2: w projekcie brakuje: %3</translation>
    </message>
    <message>
        <source>the number of records</source>
        <translation>liczba rekordów</translation>
    </message>
    <message>
        <source>it</source>
        <translation>wartość</translation>
    </message>
    <message>
        <source>number of records</source>
        <translation>liczba rekordów</translation>
    </message>
    <message>
        <source>placed sprite</source>
        <translation>umieszczony sprite</translation>
    </message>
    <message>
        <source>sprite bank</source>
        <translation>bank sprite’ów</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>animacja</translation>
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
        <translation>położenie banku</translation>
    </message>
    <message>
        <source>16 times the palette offset, and the flags,</source>
        <translation>16 × przesunięcie palety + flagi</translation>
    </message>
    <message>
        <source>the animation</source>
        <translation>animacja</translation>
    </message>
    <message>
        <source>the sprite</source>
        <translation>sprite</translation>
    </message>
    <message>
        <source>the start frame</source>
        <translation>klatka początkowa</translation>
    </message>
    <message>
        <source>the initial delay</source>
        <translation>opóźnienie początkowe</translation>
    </message>
    <message>
        <source>the repeat delay</source>
        <translation>opóźnienie powtórzeń</translation>
    </message>
    <message>
        <source>the place of the name</source>
        <translation>położenie nazwy</translation>
    </message>
    <message>
        <source>names</source>
        <translation>nazwy</translation>
    </message>
    <message>
        <source>placed animation</source>
        <translation>umieszczona animacja</translation>
    </message>
    <message>
        <source>the column</source>
        <translation>kolumna</translation>
    </message>
    <message>
        <source>the row</source>
        <translation>wiersz</translation>
    </message>
    <message>
        <source>the place of its block set</source>
        <translation>położenie zestawu bloków</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Nazwy</translation>
    </message>
    <message>
        <source>Whether the names of sprites stand behind the records</source>
        <translation>Czy za rekordami znajdują się nazwy sprite’ów</translation>
    </message>
    <message>
        <source>Behind the records</source>
        <translation>Za rekordami</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Pominięte</translation>
    </message>
    <message>
        <source>Sprites placed on a map</source>
        <translation>Sprite’y umieszczone na mapie</translation>
    </message>
    <message>
        <source>Animated blocks placed on a map</source>
        <translation>Animowane bloki umieszczone na mapie</translation>
    </message>
    <message>
        <source>Option %1: “%2” is not %3</source>
        <translation>Opcja %1: „%2” to nie %3</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true lub false</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>liczba całkowita od %1 do %2</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>jedna z wartości %1</translation>
    </message>
    <message>
        <source>There is no option “%1”, only %2</source>
        <translation>Nie ma opcji „%1”, są tylko %2</translation>
    </message>
    <message>
        <source>“%1” would be C source and its header: another suffix is needed, as .c</source>
        <translation>„%1” byłby kodem C wraz z nagłówkiem: potrzebne jest inne rozszerzenie, np. .c</translation>
    </message>
    <message>
        <source>“%1” has nothing to write in this form</source>
        <translation>„%1” nie ma nic do zapisania w tym formacie</translation>
    </message>
    <message>
        <source>padding</source>
        <translation>dopełnienie</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>Kod źródłowy</translation>
    </message>
    <message>
        <source>Bytes for incbin, or source text in the words of an assembler or of C</source>
        <translation>Bajty dla incbin albo kod źródłowy w składni asemblera lub C</translation>
    </message>
    <message>
        <source>No, bytes</source>
        <translation>Nie, bajty</translation>
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
        <translation>C: tablica i jej nagłówek</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etykieta</translation>
    </message>
    <message>
        <source>The label of the bytes in source text; made from the asset&apos;s name when there is none</source>
        <translation>Etykieta bajtów w kodzie źródłowym; gdy jej brak, tworzona z nazwy zasobu</translation>
    </message>
    <message>
        <source>Pad to a multiple of</source>
        <translation>Dopełnij do wielokrotności</translation>
    </message>
    <message>
        <source>Adds zeros until the size is a multiple of so many bytes; 0 adds none</source>
        <translation>Dodaje zera, aż rozmiar będzie wielokrotnością tylu bajtów; 0 nie dodaje żadnych</translation>
    </message>
    <message>
        <source>Cut into files</source>
        <translation>Podziel na pliki</translation>
    </message>
    <message>
        <source>Numbered files that each fit into a page of 8 KiB or a bank of 16 KiB</source>
        <translation>Numerowane pliki, z których każdy mieści się na stronie 8 KiB lub w banku 16 KiB</translation>
    </message>
    <message>
        <source>No, one file</source>
        <translation>Nie, jeden plik</translation>
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
        <translation>„%1” nie jest zwykłą nazwą pliku</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>transparency</source>
        <translation>przezroczystość</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and such a palette %2</source>
        <translation>Plik ma %1 B, a taka paleta %2</translation>
    </message>
    <message>
        <source>2 an entry, %1 in all</source>
        <translation>po 2 na wpis, łącznie %1</translation>
    </message>
    <message>
        <source>The file has %1 entries; the others stay as they are</source>
        <translation>Liczba wpisów w pliku: %1; pozostałe nie zmienią się</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Przezroczystość</translation>
    </message>
    <message>
        <source>What the last byte holds of the transparent entry; $E3 for a palette without one</source>
        <translation>Co ostatni bajt zawiera o przezroczystym wpisie; $E3 w palecie bez takiego wpisu</translation>
    </message>
    <message>
        <source>Its colour RRRGGGBB, for layers</source>
        <translation>Jego kolor RRRGGGBB, dla warstw</translation>
    </message>
    <message>
        <source>Its index, for sprites</source>
        <translation>Jego indeks, dla sprite’ów</translation>
    </message>
    <message>
        <source>Which of the sixteen groups of sixteen entries is written</source>
        <translation>Która z szesnastu grup po szesnaście wpisów jest zapisywana</translation>
    </message>
    <message>
        <source>Palette, 9 bits a colour</source>
        <translation>Paleta, 9 bitów na kolor</translation>
    </message>
    <message>
        <source>Palette, 9 bits a colour, and the transparency</source>
        <translation>Paleta, 9 bitów na kolor, i przezroczystość</translation>
    </message>
    <message>
        <source>Palette, 8 bits a colour</source>
        <translation>Paleta, 8 bitów na kolor</translation>
    </message>
    <message>
        <source>Sixteen colours of a palette, 9 bits each</source>
        <translation>Szesnaście kolorów palety, po 9 bitów</translation>
    </message>
    <message>
        <source>What the last byte says of the transparent entry</source>
        <translation>Co ostatni bajt mówi o przezroczystym wpisie</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nic</translation>
    </message>
    <message>
        <source>Which of the sixteen groups of sixteen entries the colours become</source>
        <translation>Do której z szesnastu grup po szesnaście wpisów trafią kolory</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Pierwszy</translation>
    </message>
    <message>
        <source>The number of the first one, counted from 0</source>
        <translation>Numer pierwszego, licząc od 0</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Liczba</translation>
    </message>
    <message>
        <source>How many are written; 0 is all from the first on</source>
        <translation>Ile zapisać; 0 oznacza wszystkie od pierwszego</translation>
    </message>
    <message>
        <source>Options first and count: there are %1, and %2 from number %3 on are not</source>
        <translation>Opcje Pierwszy i Liczba: elementów jest %1, a żądana liczba od numeru %3 to %2</translation>
    </message>
    <message>
        <source>How many are read; 0 is all from the first on</source>
        <translation>Ile odczytać; 0 oznacza wszystkie od pierwszego</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and one of these takes %2</source>
        <translation>Plik ma %1 B, a jeden element zajmuje %2</translation>
    </message>
    <message>
        <source>The file holds %1, and %2 go into an asset: choose which, with first and count</source>
        <translation>Liczba elementów w pliku: %1, a w zasobie mieści się %2: wybierz je opcjami Pierwszy i Liczba</translation>
    </message>
    <message>
        <source>Bytes behind the last whole one that are left out: %1</source>
        <translation>Pominięte bajty za ostatnim całym elementem: %1</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Plik jest pusty</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and the largest that is read as it is %2</source>
        <translation>Plik ma %1 B, a największy odczytywany w tej postaci %2</translation>
    </message>
    <message>
        <source>There is no form “%1”</source>
        <translation>Nie ma formatu „%1”</translation>
    </message>
    <message>
        <source>%1 is a form of %2, not of %3</source>
        <translation>Format %1 jest dla rodzaju „%2”, a nie „%3”</translation>
    </message>
    <message>
        <source>“%1” is the file of another output as well</source>
        <translation>„%1” jest także plikiem innej pozycji</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Nie ma takiego pliku</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Nie można odczytać pliku</translation>
    </message>
    <message>
        <source>The file is too large for a recipe</source>
        <translation>Plik jest za duży na recepturę</translation>
    </message>
    <message>
        <source>The project no longer has %1 “%2” with the id %3, but another one of that name (%4)</source>
        <translation>W projekcie nie ma już zasobu: %1 „%2” o identyfikatorze %3, ale jest inny o tej nazwie (%4)</translation>
    </message>
    <message>
        <source>The project no longer has %1 “%2” with the id %3</source>
        <translation>W projekcie nie ma już zasobu: %1 „%2” o identyfikatorze %3</translation>
    </message>
    <message>
        <source>“%1” is the project or its recipe</source>
        <translation>„%1” to projekt lub jego receptura</translation>
    </message>
    <message>
        <source>“%1” is written for “%2” already</source>
        <translation>„%1” jest już zapisywany dla „%2”</translation>
    </message>
    <message>
        <source>This is no JSON: %1</source>
        <translation>To nie jest JSON: %1</translation>
    </message>
    <message>
        <source>This is no recipe: “%1” is missing</source>
        <translation>To nie jest receptura: brakuje „%1”</translation>
    </message>
    <message>
        <source>The recipe is from a newer version of Quenmora</source>
        <translation>Receptura pochodzi z nowszej wersji programu Quenmora</translation>
    </message>
    <message>
        <source>“%1” must be a list</source>
        <translation>„%1” musi być listą</translation>
    </message>
    <message>
        <source>“%1” means nothing here</source>
        <translation>„%1” nic tu nie oznacza</translation>
    </message>
    <message>
        <source>“%1” is there twice</source>
        <translation>„%1” występuje dwukrotnie</translation>
    </message>
    <message>
        <source>There are more than %1 outputs</source>
        <translation>Pozycji jest więcej niż %1</translation>
    </message>
    <message>
        <source>“%1” is the file of line %2 already</source>
        <translation>„%1” jest już plikiem z wiersza %2</translation>
    </message>
    <message>
        <source>“%1” is missing</source>
        <translation>Brakuje „%1”</translation>
    </message>
    <message>
        <source>“%1” must be a text</source>
        <translation>„%1” musi być tekstem</translation>
    </message>
    <message>
        <source>An output must be an object</source>
        <translation>Pozycja musi być obiektem</translation>
    </message>
    <message>
        <source>There is no kind of asset “%1”</source>
        <translation>Nie ma rodzaju zasobu „%1”</translation>
    </message>
    <message>
        <source>“%1” is no id</source>
        <translation>„%1” nie jest identyfikatorem</translation>
    </message>
    <message>
        <source>“%1” must be an object</source>
        <translation>„%1” musi być obiektem</translation>
    </message>
    <message>
        <source>%1 has no option “%2”</source>
        <translation>%1 nie ma opcji „%2”</translation>
    </message>
    <message>
        <source>The option “%1” has a value of the wrong type</source>
        <translation>Opcja „%1” ma wartość niewłaściwego typu</translation>
    </message>
    <message>
        <source>“%1”, %2: %3 is %4, and %5 to %6 fit</source>
        <translation>„%1”, %2: %3 = %4, a dozwolone są od %5 do %6</translation>
    </message>
    <message>
        <source>a palette</source>
        <translation>paleta</translation>
    </message>
    <message>
        <source>a tile set</source>
        <translation>zestaw kafelków</translation>
    </message>
    <message>
        <source>a map</source>
        <translation>mapa</translation>
    </message>
    <message>
        <source>a block set</source>
        <translation>zestaw bloków</translation>
    </message>
    <message>
        <source>a sprite bank</source>
        <translation>bank sprite’ów</translation>
    </message>
    <message>
        <source>an image</source>
        <translation>obraz</translation>
    </message>
    <message>
        <source>“%1” is a bank of 8 bits: sprite %2 (counted from 0) has a pixel of index %3, and 4 bits hold 0 to 15</source>
        <translation>„%1” to bank 8-bitowy: sprite %2 (licząc od 0) ma piksel o indeksie %3, a 4 bity mieszczą od 0 do 15</translation>
    </message>
    <message>
        <source>Sprites, 8 bits a pixel</source>
        <translation>Sprite’y, 8 bitów na piksel</translation>
    </message>
    <message>
        <source>Sprites, 4 bits a pixel, packed</source>
        <translation>Sprite’y, 4 bity na piksel, spakowane</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Głębia</translation>
    </message>
    <message>
        <source>How many bits of a pixel count</source>
        <translation>Ile bitów piksela się liczy</translation>
    </message>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bitów, 256 kolorów</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bity, 16 kolorów</translation>
    </message>
    <message>
        <source>“%1” cannot be written: “%2” is a link that leads nowhere</source>
        <translation>Nie można zapisać „%1”: „%2” to dowiązanie, które donikąd nie prowadzi</translation>
    </message>
    <message>
        <source>“%1” cannot be written: the link “%2” leads out of the folder</source>
        <translation>Nie można zapisać „%1”: dowiązanie „%2” wychodzi poza folder</translation>
    </message>
    <message>
        <source>“%1” cannot be written: it is a folder</source>
        <translation>Nie można zapisać „%1”: to folder</translation>
    </message>
    <message>
        <source>“%1” cannot be written: “%2” is no folder</source>
        <translation>Nie można zapisać „%1”: „%2” nie jest folderem</translation>
    </message>
    <message>
        <source>“%1”: tile %2 (counted from 0) has the value %3, and %4 to %5 fit</source>
        <translation>„%1”: kafelek %2 (licząc od 0) ma wartość %3, a dozwolone są od %4 do %5</translation>
    </message>
    <message>
        <source>The file holds numbers of %1 tiles, and a tile set has at most %2</source>
        <translation>Liczba kafelków, których wartości zawiera plik: %1; zestaw kafelków mieści najwyżej %2</translation>
    </message>
    <message>
        <source>In which order the pixels of a tile follow each other</source>
        <translation>W jakiej kolejności następują po sobie piksele kafelka</translation>
    </message>
    <message>
        <source>How many bytes a value takes</source>
        <translation>Ile bajtów zajmuje wartość</translation>
    </message>
    <message>
        <source>One byte</source>
        <translation>Jeden bajt</translation>
    </message>
    <message>
        <source>Two bytes</source>
        <translation>Dwa bajty</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Atrament</translation>
    </message>
    <message>
        <source>The colour (0–15) of the pixels that are set; all others are clear</source>
        <translation>Kolor (0–15) ustawionych pikseli; wszystkie inne są przezroczyste</translation>
    </message>
    <message>
        <source>Tiles, 4 bits a pixel</source>
        <translation>Kafelki, 4 bity na piksel</translation>
    </message>
    <message>
        <source>Tiles, 8 bits a pixel</source>
        <translation>Kafelki, 8 bitów na piksel</translation>
    </message>
    <message>
        <source>Tiles, 1 bit a pixel</source>
        <translation>Kafelki, 1 bit na piksel</translation>
    </message>
    <message>
        <source>Attributes of tiles</source>
        <translation>Atrybuty kafelków</translation>
    </message>
    <message>
        <source>Values of tiles</source>
        <translation>Wartości kafelków</translation>
    </message>
    <message>
        <source>The group of sixteen colours in which the tiles are shown</source>
        <translation>Grupa szesnastu kolorów, w której pokazywane są kafelki</translation>
    </message>
    <message>
        <source>The colour (0–15) of the pixels that are set</source>
        <translation>Kolor (0–15) ustawionych pikseli</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>The colour (0–15) of all others</source>
        <translation>Kolor (0–15) wszystkich pozostałych</translation>
    </message>
    <message>
        <source>The tile that the first number is for, counted from 0</source>
        <translation>Kafelek, którego dotyczy pierwsza liczba, licząc od 0</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation>Nie można utworzyć folderu %1</translation>
    </message>
    <message>
        <source>The records do not lie in the file as its beginning says</source>
        <translation>Rekordy nie leżą w pliku tak, jak podaje jego początek</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>zakresy</translation>
    </message>
    <message>
        <source>Ranges of a palette whose colours go round</source>
        <translation>Zakresy palety, w których kolory krążą</translation>
    </message>
</context>
<context>
    <name>NextDataImport</name>
    <message>
        <source>Some of the required files are missing</source>
        <translation>Brakuje niektórych wymaganych plików</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importowanie %1…</translation>
    </message>
    <message>
        <source>Could not import the palette data</source>
        <translation>Nie udało się zaimportować danych palety</translation>
    </message>
    <message>
        <source>Could not import the tile data</source>
        <translation>Nie udało się zaimportować danych kafelków</translation>
    </message>
    <message>
        <source>Could not import the map data</source>
        <translation>Nie udało się zaimportować danych mapy</translation>
    </message>
</context>
<context>
    <name>NextSteps</name>
    <message>
        <source>This project is empty. Begin with:</source>
        <translation>Ten projekt jest pusty. Zacznij od:</translation>
    </message>
    <message>
        <source>A map from a picture</source>
        <translation>Mapa z obrazu</translation>
    </message>
    <message>
        <source>Cuts a picture into tiles and makes a palette, a tile set and a map of it</source>
        <translation>Tnie obraz na kafelki i tworzy z nich paletę, zestaw kafelków i mapę</translation>
    </message>
    <message>
        <source>Files that there are</source>
        <translation>Istniejące pliki</translation>
    </message>
    <message>
        <source>Looks at files of any kind, shows what they are, and makes assets of them</source>
        <translation>Sprawdza dowolne pliki, pokazuje, czym są, i tworzy z nich zasoby</translation>
    </message>
    <message>
        <source>A new palette</source>
        <translation>Nowa paleta</translation>
    </message>
    <message>
        <source>The colours that everything else is drawn with</source>
        <translation>Kolory, którymi rysuje się całą resztę</translation>
    </message>
    <message>
        <source>A new tile set</source>
        <translation>Nowy zestaw kafelków</translation>
    </message>
    <message>
        <source>The tiles that maps are built from</source>
        <translation>Kafelki, z których buduje się mapy</translation>
    </message>
    <message>
        <source>New sprites</source>
        <translation>Nowe sprite’y</translation>
    </message>
    <message>
        <source>A bank of sprites of 16 × 16 pixels</source>
        <translation>Bank sprite’ów 16 × 16 pikseli</translation>
    </message>
</context>
<context>
    <name>NumberStepper</name>
    <message>
        <source>Number</source>
        <translation>Numer</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>z %1</translation>
    </message>
    <message>
        <source>%1: previous</source>
        <translation>%1: wstecz</translation>
    </message>
    <message>
        <source>%1: next</source>
        <translation>%1: dalej</translation>
    </message>
</context>
<context>
    <name>OptionFields</name>
    <message>
        <source>As it is</source>
        <translation>Bez zmian</translation>
    </message>
    <message>
        <source>Made from the name</source>
        <translation>Utworzona z nazwy</translation>
    </message>
</context>
<context>
    <name>OutputDialog</name>
    <message>
        <source>Edit Output</source>
        <translation>Edycja pozycji</translation>
    </message>
    <message>
        <source>Below the project&apos;s folder, with / between folders</source>
        <translation>Wewnątrz folderu projektu; foldery oddziela się znakiem /</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Zasób</translation>
    </message>
    <message>
        <source>&amp;Form</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The project no longer has this asset</source>
        <translation>Projekt nie ma już tego zasobu</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes: %1</source>
        <translation>
            <numerusform>%Ln bajt: %1</numerusform>
            <numerusform>%Ln bajty: %1</numerusform>
            <numerusform>%Ln bajtów: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>Niemożliwe: %1</translation>
    </message>
    <message>
        <source>“%1” is the file of another output</source>
        <translation>„%1” jest plikiem innej pozycji</translation>
    </message>
</context>
<context>
    <name>OutputPreview</name>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln bytes)</source>
        <translation>
            <numerusform>%1 (%Ln bajt)</numerusform>
            <numerusform>%1 (%Ln bajty)</numerusform>
            <numerusform>%1 (%Ln bajtów)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PaintOptionsBar</name>
    <message>
        <source>Size of the brush: [ makes it smaller, ] larger</source>
        <translation>Rozmiar pędzla: [ zmniejsza, ] zwiększa</translation>
    </message>
    <message>
        <source>Size of the brush</source>
        <translation>Rozmiar pędzla</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Obraz</translation>
    </message>
</context>
<context>
    <name>PaintSettings</name>
    <message>
        <source>Connect &amp;Strokes</source>
        <translation>Łącz pociągn&amp;ięcia</translation>
    </message>
    <message>
        <source>Draw without gaps, however fast the pointer moves</source>
        <translation>Rysuj bez przerw, niezależnie od szybkości wskaźnika</translation>
    </message>
    <message>
        <source>&amp;Pixel Perfect Lines</source>
        <translation>&amp;Linie pixel perfect</translation>
    </message>
    <message>
        <source>Draw freehand lines of one pixel without corners</source>
        <translation>Rysuj odręcznie linie o grubości jednego piksela bez narożników</translation>
    </message>
    <message>
        <source>S&amp;hade</source>
        <translation>Cie&amp;niowanie</translation>
    </message>
    <message>
        <source>Step pixels along the colours between foreground and background: the left button towards the foreground, the right button towards the background</source>
        <translation>Przesuwa piksele po kolorach między pierwszym planem a tłem: lewy przycisk w stronę pierwszego planu, prawy w stronę tła</translation>
    </message>
    <message>
        <source>&amp;Round Brush</source>
        <translation>Okrągły pę&amp;dzel</translation>
    </message>
    <message>
        <source>Draw with a round brush</source>
        <translation>Rysuj okrągłym pędzlem</translation>
    </message>
    <message>
        <source>Mirror &amp;Left and Right</source>
        <translation>Symetria l&amp;ewo–prawo</translation>
    </message>
    <message>
        <source>Draw on the left and on the right at once</source>
        <translation>Rysuj jednocześnie po lewej i po prawej stronie</translation>
    </message>
    <message>
        <source>Mirror &amp;Top and Bottom</source>
        <translation>Symetria &amp;góra–dół</translation>
    </message>
    <message>
        <source>Draw at the top and at the bottom at once</source>
        <translation>Rysuj jednocześnie u góry i u dołu</translation>
    </message>
</context>
<context>
    <name>PaletteColourCommand</name>
    <message>
        <source>Colour</source>
        <translation>Kolor</translation>
    </message>
</context>
<context>
    <name>PaletteDialog</name>
    <message>
        <source>New Palette</source>
        <translation>Nowa paleta</translation>
    </message>
    <message>
        <source>Create a new palette</source>
        <translation>Utwórz nową paletę</translation>
    </message>
    <message>
        <source>Palette Name</source>
        <translation>Nazwa palety</translation>
    </message>
    <message>
        <source>Copy colours from current palette</source>
        <translation>Skopiuj kolory z bieżącej palety</translation>
    </message>
    <message>
        <source>Use the default Next palette</source>
        <translation>Użyj domyślnej palety Nexta</translation>
    </message>
    <message>
        <source>Create a blank palette</source>
        <translation>Utwórz pustą paletę</translation>
    </message>
    <message>
        <source>Palette names must be unique</source>
        <translation>Nazwy palet nie mogą się powtarzać</translation>
    </message>
    <message>
        <source>Palette name is required</source>
        <translation>Wymagana jest nazwa palety</translation>
    </message>
</context>
<context>
    <name>PaletteEditor</name>
    <message>
        <source>Darkens the selected colour(s)</source>
        <translation>Przyciemnia zaznaczone kolory</translation>
    </message>
    <message>
        <source>Lightens the selected colour(s)</source>
        <translation>Rozjaśnia zaznaczone kolory</translation>
    </message>
    <message>
        <source>Create a gradient</source>
        <translation>Utwórz gradient</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Przyciemnij</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Rozjaśnij</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Gradient</translation>
    </message>
</context>
<context>
    <name>PaletteGrid</name>
    <message>
        <source>Palette Grid Colour Chooser</source>
        <translation>Wybór koloru siatki palety</translation>
    </message>
    <message>
        <source>Index %1: $%2</source>
        <translation>Indeks %1: $%2</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Kolor %1, %2, przezroczysty</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Kolor %1, %2</translation>
    </message>
</context>
<context>
    <name>PaletteMenu</name>
    <message>
        <source>&amp;Palette</source>
        <translation>P&amp;aleta</translation>
    </message>
    <message>
        <source>&amp;New Palette</source>
        <translation>&amp;Nowa paleta</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importuj</translation>
    </message>
    <message>
        <source>No Palette</source>
        <translation>Brak palety</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Eksportuj</translation>
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
        <translation>Obrazy (*.png *.bmp)</translation>
    </message>
    <message>
        <source>Export Palette</source>
        <translation>Eksport palety</translation>
    </message>
</context>
<context>
    <name>PaletteNotice</name>
    <message>
        <source>There is no palette yet to show colours with.
Palette ▸ New Palette makes one.</source>
        <translation>Nie ma jeszcze palety do pokazywania kolorów.
Utworzysz ją poleceniem Paleta ▸ Nowa paleta.</translation>
    </message>
</context>
<context>
    <name>PaletteSelectorDialog</name>
    <message>
        <source>Swap Palette</source>
        <translation>Zmień paletę</translation>
    </message>
    <message>
        <source>Show with another palette</source>
        <translation>Pokaż z inną paletą</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>P&amp;aleta</translation>
    </message>
    <message>
        <source>There is no palette to choose; please create one first</source>
        <translation>Nie ma palety do wyboru; najpierw ją utwórz</translation>
    </message>
</context>
<context>
    <name>PaletteTools</name>
    <message>
        <source>Sort by &amp;Hue</source>
        <translation>Sortuj według &amp;odcienia</translation>
    </message>
    <message>
        <source>Orders the selected entries from red over green to blue, greys first; pictures keep their look</source>
        <translation>Porządkuje zaznaczone wpisy od czerwieni przez zieleń do błękitu, szarości na początku; obrazy zachowują wygląd</translation>
    </message>
    <message>
        <source>Sort Palette</source>
        <translation>Sortowanie palety</translation>
    </message>
    <message>
        <source>Sort by &amp;Brightness</source>
        <translation>Sortuj według &amp;jasności</translation>
    </message>
    <message>
        <source>Orders the selected entries from dark to light; pictures keep their look</source>
        <translation>Porządkuje zaznaczone wpisy od ciemnych do jasnych; obrazy zachowują wygląd</translation>
    </message>
    <message>
        <source>Re&amp;verse</source>
        <translation>Od&amp;wróć</translation>
    </message>
    <message>
        <source>Puts the selected entries into the opposite order; pictures keep their look</source>
        <translation>Ustawia zaznaczone wpisy w odwrotnej kolejności; obrazy zachowują wygląd</translation>
    </message>
    <message>
        <source>Reverse Palette</source>
        <translation>Odwrócenie palety</translation>
    </message>
    <message>
        <source>E&amp;xchange Ends</source>
        <translation>&amp;Zamień końce</translation>
    </message>
    <message>
        <source>Lets the first and the last selected entry change places; pictures keep their look</source>
        <translation>Zamienia miejscami pierwszy i ostatni zaznaczony wpis; obrazy zachowują wygląd</translation>
    </message>
    <message>
        <source>Exchange Palette Entries</source>
        <translation>Zamiana wpisów palety</translation>
    </message>
    <message>
        <source>&amp;Gradient in Machine Steps</source>
        <translation>&amp;Gradient w stopniach maszyny</translation>
    </message>
    <message>
        <source>Spreads the selection from its first to its last colour, each channel in the nearest of its eight levels</source>
        <translation>Tworzy w zaznaczeniu przejście od pierwszego do ostatniego koloru, z każdym kanałem na najbliższym z ośmiu poziomów</translation>
    </message>
    <message>
        <source>Mark &amp;Unused Entries</source>
        <translation>Zaznacz nieuż&amp;ywane wpisy</translation>
    </message>
    <message>
        <source>Marks the entries that no pixel has</source>
        <translation>Zaznacza wpisy, których nie używa żaden piksel</translation>
    </message>
    <message>
        <source>Mark E&amp;qual Entries</source>
        <translation>Zaznacz iden&amp;tyczne wpisy</translation>
    </message>
    <message>
        <source>Marks the entries whose colour others have, too</source>
        <translation>Zaznacza wpisy, których kolor mają też inne</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 piksel</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pixels</source>
        <translation>
            <numerusform>%Ln piksel</numerusform>
            <numerusform>%Ln piksele</numerusform>
            <numerusform>%Ln pikseli</numerusform>
        </translation>
    </message>
    <message>
        <source>Select the entries that are to change places</source>
        <translation>Zaznacz wpisy, które mają zamienić się miejscami</translation>
    </message>
    <message>
        <source>Colour cycles whose entries are no longer next to each other were removed; undo brings them back</source>
        <translation>Usunięto cykle kolorów, których pozycje nie leżą już obok siebie; cofnięcie je przywróci</translation>
    </message>
    <message>
        <source>The entries cannot change places: tiles and 4-bit sprites need theirs in their group of 16, and transparent entries, and those of tiles that are drawn with several palette offsets, must stay where they are</source>
        <translation>Wpisy nie mogą zamienić się miejscami: kafelki i sprite’y 4-bitowe potrzebują swoich wpisów we własnej grupie 16, a wpisy przezroczyste oraz wpisy kafelków rysowanych z różnymi przesunięciami palety muszą pozostać na miejscu</translation>
    </message>
    <message>
        <source>Colour C&amp;ycles…</source>
        <translation>Cykle &amp;kolorów…</translation>
    </message>
    <message>
        <source>Ranges of entries whose colours go round, so that water flows and fires burn</source>
        <translation>Zakresy wpisów, w których kolory krążą, aby woda płynęła, a ogień płonął</translation>
    </message>
    <message>
        <source>Move Palette Entries</source>
        <translation>Przesunięcie wpisów palety</translation>
    </message>
</context>
<context>
    <name>PaletteWindow</name>
    <message>
        <source>Palette Editor</source>
        <translation>Edytor palety</translation>
    </message>
    <message>
        <source>No palette selected</source>
        <translation>Nie wybrano palety</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>The palettes of the project</source>
        <translation>Palety w projekcie</translation>
    </message>
    <message>
        <source>Rename, copy, delete or sort the palette</source>
        <translation>Zmień nazwę palety, kopiuj ją, usuń lub posortuj</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Z&amp;mień nazwę</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Palette: %1</source>
        <translation>Paleta: %1</translation>
    </message>
    <message>
        <source>All colours are black. Choose one and change it below, or bring in others with Palette ▸ Import.</source>
        <translation>Wszystkie kolory są czarne. Wybierz jeden i zmień go poniżej albo wczytaj inne poleceniem Paleta ▸ Importuj.</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>It has %1 × %2 pixels; at most %3 × %3, or as many in another shape, can be read</source>
        <translation>Wymiary to %1 × %2 pikseli; odczytać można najwyżej %3 × %3 albo tyle samo w innych proporcjach</translation>
    </message>
    <message>
        <source>Could not read the image file</source>
        <translation>Nie udało się odczytać pliku obrazu</translation>
    </message>
    <message>
        <source>It is a pipe or a device, not a file</source>
        <translation>To potok lub urządzenie, a nie plik</translation>
    </message>
</context>
<context>
    <name>PictureImport</name>
    <message>
        <source>Tiles that lost colours: %1 of %2.
A tile shows 16 colours, and all of them together have 16 groups of 16. Reduce the colours of the picture, to 16 in each tile of 8 × 8 pixels and to fewer in all, and import it again.</source>
        <translation>Kafelki, które straciły kolory: %1 z %2.
Kafelek pokazuje 16 kolorów, a wszystkie razem mają 16 grup po 16. Zmniejsz liczbę kolorów obrazu do 16 w każdym kafelku 8 × 8 pikseli i łącznie, po czym zaimportuj go ponownie.</translation>
    </message>
    <message>
        <source>Cannot import the image as it would need more than 512 tiles
%1 required</source>
        <translation>Nie można zaimportować obrazu, bo wymagałby więcej niż 512 kafelków
Wymagane: %1</translation>
    </message>
    <message>
        <source>The image is smaller than a tile, which has 8 × 8 pixels</source>
        <translation>Obraz jest mniejszy niż kafelek, który ma 8 × 8 pikseli</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importowanie %1…</translation>
    </message>
    <message>
        <source>The project was closed meanwhile</source>
        <translation>W międzyczasie projekt został zamknięty</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Wczytywanie %1…</translation>
    </message>
</context>
<context>
    <name>PicturePreview</name>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Przed</translation>
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
        <translation>%1, %2  kolor %3</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Show how the picture will look</source>
        <translation>Pokaż, jak będzie wyglądał obraz</translation>
    </message>
    <message>
        <source>Swap foreground and background</source>
        <translation>Zamień kolory pierwszego planu i tła</translation>
    </message>
    <message>
        <source>Smaller brush</source>
        <translation>Mniejszy pędzel</translation>
    </message>
    <message>
        <source>Larger brush</source>
        <translation>Większy pędzel</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Zamień kolor</translation>
    </message>
    <message>
        <source>Gives pixels of the background colour the foreground colour, in the selection if there is one</source>
        <translation>Nadaje pikselom w kolorze tła kolor pierwszego planu, tylko w zaznaczeniu, jeśli istnieje</translation>
    </message>
    <message>
        <source>Brush from Selection</source>
        <translation>Pędzel z zaznaczenia</translation>
    </message>
    <message>
        <source>Draws with what is selected, without its pixels of the background colour</source>
        <translation>Rysuje tym, co zaznaczono, bez pikseli w kolorze tła</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencje</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>What the preview shows</source>
        <translation>Co pokazuje podgląd</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (kopia)</translation>
    </message>
    <message>
        <source>New palette added: %1</source>
        <translation>Dodano nową paletę: %1</translation>
    </message>
    <message>
        <source>New tile set added: %1</source>
        <translation>Dodano nowy zestaw kafelków: %1</translation>
    </message>
    <message>
        <source>New map added: %1</source>
        <translation>Dodano nową mapę: %1</translation>
    </message>
    <message>
        <source>New block set added: %1</source>
        <translation>Dodano nowy zestaw bloków: %1</translation>
    </message>
    <message>
        <source>New Sprite Bank Added</source>
        <translation>Dodano nowy bank sprite’ów</translation>
    </message>
</context>
<context>
    <name>ProjectActions</name>
    <message>
        <source>%1 (selection)</source>
        <translation>%1 (zaznaczenie)</translation>
    </message>
    <message>
        <source>Palette In Use</source>
        <translation>Paleta w użyciu</translation>
    </message>
    <message>
        <source>You may not delete this palette; it is used by one or more sprites, tiles or images</source>
        <translation>Nie można usunąć tej palety; używają jej sprite’y, kafelki lub obrazy</translation>
    </message>
    <message>
        <source>Tile Set In Use</source>
        <translation>Zestaw kafelków w użyciu</translation>
    </message>
    <message>
        <source>You may not delete this Tile Set; it is used by one or more maps</source>
        <translation>Nie można usunąć tego zestawu kafelków; używa go co najmniej jedna mapa</translation>
    </message>
    <message>
        <source>Objects in use</source>
        <translation>Obiekty w użyciu</translation>
    </message>
    <message>
        <source>You may not delete these objects; they are in use by one or more maps</source>
        <translation>Nie można usunąć tych obiektów; używa ich co najmniej jedna mapa</translation>
    </message>
    <message>
        <source>The file is neither a palette nor a picture that can be read</source>
        <translation>Plik nie jest ani paletą, ani obrazem, który można odczytać</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n colours; the palette takes the first %1 of them</source>
        <translation>
            <numerusform>Obraz ma %n kolor; do palety trafi pierwszych %1</numerusform>
            <numerusform>Obraz ma %n kolory; do palety trafi pierwszych %1</numerusform>
            <numerusform>Obraz ma %n kolorów; do palety trafi pierwszych %1</numerusform>
        </translation>
    </message>
    <message>
        <source>New Palette for the Others</source>
        <translation>Nowa paleta dla pozostałych</translation>
    </message>
    <message>
        <source>%1, more</source>
        <translation>%1, dalsze</translation>
    </message>
    <message>
        <source>Could not make sprites of the image file</source>
        <translation>Nie udało się utworzyć sprite’ów z pliku obrazu</translation>
    </message>
    <message>
        <source>Could not import the sprite data</source>
        <translation>Nie udało się zaimportować danych sprite’ów</translation>
    </message>
    <message>
        <source>Import Incomplete</source>
        <translation>Import niepełny</translation>
    </message>
</context>
<context>
    <name>ProjectController</name>
    <message>
        <source>Opening %1…</source>
        <translation>Otwieranie %1…</translation>
    </message>
    <message>
        <source>Unable to create a new project</source>
        <translation>Nie można utworzyć nowego projektu</translation>
    </message>
    <message>
        <source>Recovering the project…</source>
        <translation>Odzyskiwanie projektu…</translation>
    </message>
    <message>
        <source>loading...</source>
        <translation>wczytywanie...</translation>
    </message>
    <message>
        <source>Saving %1…</source>
        <translation>Zapisywanie %1…</translation>
    </message>
    <message>
        <source>What is kept beside the project cannot be read: %1
The project itself is whole.
%2</source>
        <translation>Nie można odczytać danych przechowywanych obok projektu: %1
Sam projekt jest nienaruszony.
%2</translation>
    </message>
    <message>
        <source>What is kept beside the project cannot be written: %1
%2</source>
        <translation>Nie można zapisać danych przechowywanych obok projektu: %1
%2</translation>
    </message>
    <message>
        <source>Another program removed or renamed the file of this project, which saving writes again:
%1</source>
        <translation>Inny program usunął plik tego projektu lub zmienił jego nazwę; zapisanie utworzy go ponownie:
%1</translation>
    </message>
    <message>
        <source>The file cannot be loaded, and the project stays as it is here: %1</source>
        <translation>Nie można wczytać pliku, więc projekt pozostaje taki, jaki jest tutaj: %1</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Niezapisane zmiany</translation>
    </message>
    <message>
        <source>Save the changes to %1 before closing it?</source>
        <translation>Zapisać zmiany w projekcie %1 przed zamknięciem?</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Zapisywanie projektu</translation>
    </message>
    <message>
        <source>Project file (*.quenmora)</source>
        <translation>Plik projektu (*.quenmora)</translation>
    </message>
    <message>
        <source>The sample project is not installed</source>
        <translation>Projekt przykładowy nie jest zainstalowany</translation>
    </message>
</context>
<context>
    <name>ProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation>Nowy projekt</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>Utwórz nowy projekt</translation>
    </message>
    <message>
        <source>Project &amp;name</source>
        <translation>&amp;Nazwa projektu</translation>
    </message>
</context>
<context>
    <name>ProjectDocument</name>
    <message>
        <source>Failed to load tile image %1</source>
        <translation>Nie udało się wczytać obrazu kafelków %1</translation>
    </message>
    <message>
        <source>Failed to load tile map anim for map %1</source>
        <translation>Nie udało się wczytać animacji mapy %1</translation>
    </message>
    <message>
        <source>Invalid project file</source>
        <translation>Nieprawidłowy plik projektu</translation>
    </message>
    <message>
        <source>Project file is from a newer version of Quenmora</source>
        <translation>Plik projektu pochodzi z nowszej wersji programu Quenmora</translation>
    </message>
    <message>
        <source>Project has a missing sprite anim</source>
        <translation>W projekcie brakuje animacji sprite’ów</translation>
    </message>
    <message>
        <source>Failed to load tile set tileImage &quot;%1&quot; from project file</source>
        <translation>Nie udało się wczytać obrazu zestawu kafelków „%1” z pliku projektu</translation>
    </message>
    <message>
        <source>Error setting tile set anim - %1</source>
        <translation>Błąd przy ustawianiu animacji zestawu kafelków – %1</translation>
    </message>
</context>
<context>
    <name>ProjectExport</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Wiersz %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… i jeszcze %n</numerusform>
            <numerusform>… i jeszcze %n</numerusform>
            <numerusform>… i jeszcze %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The recipe could not be saved</source>
        <translation>Nie udało się zapisać receptury</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Błąd zapisu</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Wystąpił problem z eksportem danych</translation>
    </message>
</context>
<context>
    <name>ProjectMenu</name>
    <message>
        <source>Import A&amp;gain</source>
        <translation>Importuj pono&amp;wnie</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Wystąpił problem z eksportem danych</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Błąd zapisu</translation>
    </message>
</context>
<context>
    <name>ProjectStore</name>
    <message>
        <source>Invalid project file</source>
        <translation>Nieprawidłowy plik projektu</translation>
    </message>
    <message>
        <source>Project loaded</source>
        <translation>Wczytano projekt</translation>
    </message>
    <message>
        <source>Could not create the project file</source>
        <translation>Nie udało się utworzyć pliku projektu</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>Nie udało się zapisać %1</translation>
    </message>
    <message>
        <source>Could not finish writing the project file</source>
        <translation>Nie udało się dokończyć zapisu pliku projektu</translation>
    </message>
    <message>
        <source>Saved %1 to %2</source>
        <translation>Zapisano %1 w %2</translation>
    </message>
    <message>
        <source>Invalid map id</source>
        <translation>Nieprawidłowy identyfikator mapy</translation>
    </message>
    <message>
        <source>Map exported</source>
        <translation>Wyeksportowano mapę</translation>
    </message>
    <message>
        <source>Exporting the map failed</source>
        <translation>Nie udało się wyeksportować mapy</translation>
    </message>
    <message>
        <source>Invalid tile set id</source>
        <translation>Nieprawidłowy identyfikator zestawu kafelków</translation>
    </message>
    <message>
        <source>Tile set exported</source>
        <translation>Wyeksportowano zestaw kafelków</translation>
    </message>
    <message>
        <source>Exporting the tile set failed</source>
        <translation>Nie udało się wyeksportować zestawu kafelków</translation>
    </message>
    <message>
        <source>Invalid palette id</source>
        <translation>Nieprawidłowy identyfikator palety</translation>
    </message>
    <message>
        <source>Palette exported</source>
        <translation>Wyeksportowano paletę</translation>
    </message>
    <message>
        <source>Exporting the palette failed</source>
        <translation>Nie udało się wyeksportować palety</translation>
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
        <translation>Zestawy kafelków</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Obiekty</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprite’y</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Mapy</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Obrazy</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Tile Set</source>
        <translation>Zestaw kafelków</translation>
    </message>
    <message>
        <source>Map Objects</source>
        <translation>Obiekty mapy</translation>
    </message>
    <message>
        <source>Sprite Bank</source>
        <translation>Bank sprite’ów</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Z&amp;mień nazwę</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>Import A&amp;gain</source>
        <translation>Importuj pono&amp;wnie</translation>
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
        <translation>Nie wczytano projektu</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 już istnieje.
Czy chcesz go zastąpić?</translation>
    </message>
</context>
<context>
    <name>RecipeTable</name>
    <message>
        <source>1 page of 8 KiB</source>
        <translation>1 strona 8 KiB</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pages of 8 KiB</source>
        <translation>
            <numerusform>%Ln strona 8 KiB</numerusform>
            <numerusform>%Ln strony 8 KiB</numerusform>
            <numerusform>%Ln stron 8 KiB</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>1 bank of 16 KiB</source>
        <translation>1 bank 16 KiB</translation>
    </message>
    <message numerus="yes">
        <source>%Ln banks of 16 KiB</source>
        <translation>
            <numerusform>%Ln bank 16 KiB</numerusform>
            <numerusform>%Ln banki 16 KiB</numerusform>
            <numerusform>%Ln banków 16 KiB</numerusform>
        </translation>
    </message>
    <message>
        <source>…</source>
        <translation>…</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nowy</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Zmieniony</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Bez zmian</translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>Niemożliwe: %1</translation>
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
        <translation>Strony 8 KiB i banki 16 KiB, które zajmują bajty</translation>
    </message>
    <message>
        <source>Bytes in the game; source text is longer</source>
        <translation>Bajty w grze; kod źródłowy jest dłuższy</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Zasób</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>8K / 16K</source>
        <translation>8K / 16K</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
</context>
<context>
    <name>RecoveryKeeper</name>
    <message>
        <source>%1 cannot be written to</source>
        <translation>Nie można zapisywać w %1</translation>
    </message>
    <message>
        <source>No copy for the time after a crash could be written: %1</source>
        <translation>Nie udało się zapisać kopii na wypadek awarii: %1</translation>
    </message>
</context>
<context>
    <name>RecoveryList</name>
    <message>
        <source>Never saved</source>
        <translation>Nigdy nie zapisany</translation>
    </message>
    <message>
        <source>As it was today at %1</source>
        <translation>Stan z dzisiaj, godz. %1</translation>
    </message>
    <message>
        <source>As it was yesterday at %1</source>
        <translation>Stan z wczoraj, godz. %1</translation>
    </message>
    <message>
        <source>As it was on %1 at %2</source>
        <translation>Stan z dnia %1, godz. %2</translation>
    </message>
    <message>
        <source>A project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>The copy is damaged and was put aside:</source>
        <translation>Kopia jest uszkodzona i została odłożona na bok:</translation>
    </message>
    <message>
        <source>Discard Copy</source>
        <translation>Odrzuć kopię</translation>
    </message>
    <message>
        <source>Discard what can be recovered of %1?</source>
        <translation>Odrzucić to, co można odzyskać z %1?</translation>
    </message>
    <message>
        <source>What was not saved is lost then.</source>
        <translation>To, co nie zostało zapisane, zostanie wtedy utracone.</translation>
    </message>
    <message>
        <source>Not saved when Quenmora stopped</source>
        <translation>Niezapisane w chwili zakończenia programu Quenmora</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Odzyskaj</translation>
    </message>
    <message>
        <source>Recover %1</source>
        <translation>Odzyskaj %1</translation>
    </message>
    <message>
        <source>Opens the project with the changes that were not saved</source>
        <translation>Otwiera projekt ze zmianami, które nie zostały zapisane</translation>
    </message>
    <message>
        <source>Discard…</source>
        <translation>Odrzuć…</translation>
    </message>
    <message>
        <source>Discard %1</source>
        <translation>Odrzuć %1</translation>
    </message>
</context>
<context>
    <name>RectangleCanvasTool</name>
    <message>
        <source>Filled Rectangle</source>
        <translation>Wypełniony prostokąt</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Prostokąt</translation>
    </message>
</context>
<context>
    <name>ReductionBox</name>
    <message>
        <source>No, as they come</source>
        <translation>Nie, w kolejności</translation>
    </message>
    <message>
        <source>To the nearest</source>
        <translation>Do najbliższego</translation>
    </message>
    <message>
        <source>In an ordered pattern</source>
        <translation>Wzorem uporządkowanym</translation>
    </message>
    <message>
        <source>With error diffusion</source>
        <translation>Dyfuzją błędu</translation>
    </message>
    <message>
        <source>Colours are found for the whole picture; else those that come last take the nearest of the others</source>
        <translation>Kolory są dobierane do całego obrazu; w przeciwnym razie ostatnie dostają najbliższe z pozostałych</translation>
    </message>
    <message>
        <source>Colours of the machine: %1 before, %2 after</source>
        <translation>Kolory maszyny: przed: %1, po: %2</translation>
    </message>
    <message>
        <source>%1; mean error: %2 levels</source>
        <translation>%1; średni błąd (w poziomach): %2</translation>
    </message>
    <message>
        <source>%1; none is lost</source>
        <translation>%1; żaden nie zostaje utracony</translation>
    </message>
</context>
<context>
    <name>Request</name>
    <message>
        <source>Do this recipe, not the one beside the project.</source>
        <translation>Wykonaj tę recepturę, a nie tę obok projektu.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>plik</translation>
    </message>
    <message>
        <source>Write below this folder, not below the project&apos;s.</source>
        <translation>Zapisuj w tym folderze, a nie w folderze projektu.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>folder</translation>
    </message>
    <message>
        <source>Write nothing, but say what would be written.</source>
        <translation>Niczego nie zapisuj, tylko pokaż, co zostałoby zapisane.</translation>
    </message>
    <message>
        <source>Tell make or ninja in this file what was made of what.</source>
        <translation>Zapisz w tym pliku dla make lub ninja, co z czego powstało.</translation>
    </message>
    <message>
        <source>Say nothing unless something fails.</source>
        <translation>Nic nie wypisuj, chyba że coś się nie powiedzie.</translation>
    </message>
    <message>
        <source>Without a recipe: write the asset of this name or id …</source>
        <translation>Bez receptury: zapisz zasób o tej nazwie lub identyfikatorze …</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nazwa</translation>
    </message>
    <message>
        <source>… in this form …</source>
        <translation>… w tym formacie …</translation>
    </message>
    <message>
        <source>id</source>
        <translation>id</translation>
    </message>
    <message>
        <source>… with this option of the form, which may be given again for others …</source>
        <translation>… z tą opcją formatu, którą można powtórzyć dla innych …</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>klucz=wartość</translation>
    </message>
    <message>
        <source>… to this file.</source>
        <translation>… do tego pliku.</translation>
    </message>
    <message>
        <source>List the assets: kind, id and name.</source>
        <translation>Wypisz zasoby: rodzaj, identyfikator i nazwę.</translation>
    </message>
    <message>
        <source>List the forms and their options.</source>
        <translation>Wypisz formaty i ich opcje.</translation>
    </message>
    <message>
        <source>Describe the whole project as text, for git diff.</source>
        <translation>Opisz cały projekt jako tekst, dla git diff.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Pokaż tę pomoc.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Pokaż wersję.</translation>
    </message>
    <message>
        <source>A project file, as game.quenmora.</source>
        <translation>Plik projektu, na przykład game.quenmora.</translation>
    </message>
    <message>
        <source>Writes the graphics of a Quenmora project in the forms that a game takes, as its recipe says, the file
game.quenmora-export.json beside game.quenmora, which File &gt; Export Project in the editor makes.
Files whose bytes stay the same are not touched.</source>
        <translation>Zapisuje grafikę projektu programu Quenmora w formatach, które wczytuje gra, według jego receptury: pliku
game.quenmora-export.json obok game.quenmora, który tworzy polecenie Plik &gt; Eksportuj projekt w edytorze.
Pliki, których bajty się nie zmieniają, pozostają nietknięte.</translation>
    </message>
    <message>
        <source>--%1 and --%2 do not go together</source>
        <translation>--%1 i --%2 nie mogą występować razem</translation>
    </message>
    <message>
        <source>--%1 takes KEY=VALUE, not “%2”</source>
        <translation>--%1 przyjmuje KLUCZ=WARTOŚĆ, a nie „%2”</translation>
    </message>
    <message>
        <source>--%1 is there twice</source>
        <translation>--%1 występuje dwa razy</translation>
    </message>
    <message>
        <source>--%1 needs a value</source>
        <translation>--%1 wymaga wartości</translation>
    </message>
    <message>
        <source>--%1 means nothing here</source>
        <translation>--%1 nic tu nie znaczy</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 wymaga --%2</translation>
    </message>
    <message>
        <source>“%1” is one argument too many</source>
        <translation>„%1” to o jeden argument za dużo</translation>
    </message>
    <message>
        <source>A project file is missing</source>
        <translation>Brakuje pliku projektu</translation>
    </message>
    <message>
        <source>Write a small picture of the project, as file managers show, to this PNG file …</source>
        <translation>Zapisz mały obraz projektu, jaki pokazują menedżery plików, do tego pliku PNG …</translation>
    </message>
    <message>
        <source>… of at most so many pixels along its sides; 256 without this.</source>
        <translation>… o bokach mających najwyżej tyle pikseli; bez tego 256.</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>piksele</translation>
    </message>
    <message>
        <source>--%1 takes a number from 1 to %2, not “%3”</source>
        <translation>--%1 przyjmuje liczbę od 1 do %2, a nie „%3”</translation>
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
        <translation>Poziom czerwieni</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green level</source>
        <translation>Poziom zieleni</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue level</source>
        <translation>Poziom błękitu</translation>
    </message>
</context>
<context>
    <name>ScrollBar</name>
    <message>
        <source>Add a column on the left</source>
        <translation>Dodaj kolumnę po lewej</translation>
    </message>
    <message>
        <source>Add a row at the top</source>
        <translation>Dodaj wiersz u góry</translation>
    </message>
    <message>
        <source>Remove the column on the left</source>
        <translation>Usuń kolumnę po lewej</translation>
    </message>
    <message>
        <source>Remove the row at the top</source>
        <translation>Usuń wiersz u góry</translation>
    </message>
    <message>
        <source>Remove the column on the right</source>
        <translation>Usuń kolumnę po prawej</translation>
    </message>
    <message>
        <source>Remove the row at the bottom</source>
        <translation>Usuń wiersz u dołu</translation>
    </message>
    <message>
        <source>Add a column on the right</source>
        <translation>Dodaj kolumnę po prawej</translation>
    </message>
    <message>
        <source>Add a row at the bottom</source>
        <translation>Dodaj wiersz u dołu</translation>
    </message>
</context>
<context>
    <name>SeveralOutputsDialog</name>
    <message>
        <source>Edit Outputs</source>
        <translation>Edycja pozycji</translation>
    </message>
    <message numerus="yes">
        <source>What %Ln outputs are to have alike</source>
        <translation>
            <numerusform>Ustawienia %Ln pozycji</numerusform>
            <numerusform>Wspólne ustawienia %Ln pozycji</numerusform>
            <numerusform>Wspólne ustawienia %Ln pozycji</numerusform>
        </translation>
    </message>
    <message>
        <source>Please choose what is to change</source>
        <translation>Wybierz, co ma się zmienić</translation>
    </message>
</context>
<context>
    <name>ShortcutsDialog</name>
    <message>
        <source>A&amp;dd Key</source>
        <translation>&amp;Dodaj klawisz</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>P&amp;rzywróć</translation>
    </message>
    <message>
        <source>&amp;Take It Away There</source>
        <translation>&amp;Usuń tam</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Skróty klawiszowe</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Szukaj według nazwy</translation>
    </message>
    <message>
        <source>or by &amp;keys:</source>
        <translation>lub według &amp;klawiszy:</translation>
    </message>
    <message>
        <source>Search by keys</source>
        <translation>Szukaj według klawiszy</translation>
    </message>
    <message>
        <source>Press keys to see what they do</source>
        <translation>Naciśnij klawisze, aby zobaczyć, co robią</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Polecenie</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Gdzie</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Klawisze</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Polecenia</translation>
    </message>
    <message>
        <source>Leaves these keys to this command alone</source>
        <translation>Pozostawia te klawisze tylko temu poleceniu</translation>
    </message>
    <message>
        <source>Gives the command its usual keys</source>
        <translation>Przywraca poleceniu zwykłe klawisze</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>Przywróć &amp;wszystkie</translation>
    </message>
    <message>
        <source>Gives all commands their usual keys</source>
        <translation>Przywraca wszystkim poleceniom zwykłe klawisze</translation>
    </message>
    <message>
        <source>Another command has these keys, too</source>
        <translation>Te klawisze ma też inne polecenie</translation>
    </message>
    <message>
        <source>Keys of “%1”</source>
        <translation>Klawisze polecenia „%1”</translation>
    </message>
    <message>
        <source>Press the keys that shall do it</source>
        <translation>Naciśnij klawisze, które mają to robić</translation>
    </message>
    <message>
        <source>%1 is a key of “%2” (%3), too. Neither would do anything.</source>
        <translation>%1 to także klawisz polecenia „%2” (%3). Żadne z nich by nie działało.</translation>
    </message>
</context>
<context>
    <name>ShortcutsFile</name>
    <message>
        <source>The file is too large</source>
        <translation>Plik jest za duży</translation>
    </message>
    <message>
        <source>The file does not hold keys by command</source>
        <translation>Plik nie zawiera klawiszy poleceń</translation>
    </message>
</context>
<context>
    <name>SlicingProgress</name>
    <message>
        <source>Processing image</source>
        <translation>Przetwarzanie obrazu</translation>
    </message>
</context>
<context>
    <name>SpriteAnim</name>
    <message>
        <source>New Sprite</source>
        <translation>Nowy sprite</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (kopia)</translation>
    </message>
</context>
<context>
    <name>SpriteDialog</name>
    <message>
        <source>New Sprites</source>
        <translation>Nowe sprite’y</translation>
    </message>
    <message>
        <source>Create a new sprite bank</source>
        <translation>Utwórz nowy bank sprite’ów</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>P&amp;aleta</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>&amp;Głębia</translation>
    </message>
    <message>
        <source>New palette of the same name</source>
        <translation>Nowa paleta o tej samej nazwie</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::AnimationEditorWidget</name>
    <message>
        <source>Set the frame width in sprites</source>
        <translation>Ustaw szerokość klatki w sprite’ach</translation>
    </message>
    <message>
        <source>Set the frame height in sprites</source>
        <translation>Ustaw wysokość klatki w sprite’ach</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::ImportBinaryDialog</name>
    <message>
        <source>Import Sprites</source>
        <translation>Import sprite’ów</translation>
    </message>
    <message>
        <source>Make sprites of raw data</source>
        <translation>Utwórz sprite’y z surowych danych</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>&amp;Głębia</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>P&amp;aleta</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprite’y</translation>
    </message>
    <message>
        <source>%L1 in the file</source>
        <translation>W pliku: %L1</translation>
    </message>
    <message>
        <source>New standard palette</source>
        <translation>Nowa standardowa paleta</translation>
    </message>
    <message>
        <source>There is no sprite in this file, or it cannot be read</source>
        <translation>W tym pliku nie ma żadnego sprite’a albo nie można go odczytać</translation>
    </message>
    <message>
        <source>The file holds more sprites than fit into a bank</source>
        <translation>Plik zawiera więcej sprite’ów, niż mieści bank</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::ImportImageDialog</name>
    <message>
        <source>Import Sprites</source>
        <translation>Import sprite’ów</translation>
    </message>
    <message>
        <source>Make sprites of a picture</source>
        <translation>Utwórz sprite’y z obrazu</translation>
    </message>
    <message>
        <source>Nearest colours of a &amp;palette</source>
        <translation>Najbliższe kolory &amp;palety</translation>
    </message>
    <message>
        <source>N&amp;ew palette, and every sprite once</source>
        <translation>Nowa pal&amp;eta, każdy sprite tylko raz</translation>
    </message>
    <message>
        <source>&amp;Keep the machine&apos;s colours</source>
        <translation>&amp;Zachowaj kolory maszyny</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Kolory</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has, and stays exactly that</source>
        <translation>Każdy kolor obrazu jest kolorem Nexta i pozostaje dokładnie taki</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>&amp;Głębia</translation>
    </message>
    <message>
        <source>&amp;Fewer colours</source>
        <translation>&amp;Mniej kolorów</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Wczytywanie %1…</translation>
    </message>
    <message>
        <source>Reducing %1…</source>
        <translation>Redukowanie %1…</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Brak obrazu</translation>
    </message>
    <message>
        <source>%1 × %2 sprites, colours: %3, and transparent pixels</source>
        <translation>Sprite’y: %1 × %2, kolory: %3 oraz przezroczyste piksele</translation>
    </message>
    <message>
        <source>%1 × %2 sprites, colours: %3</source>
        <translation>Sprite’y: %1 × %2, kolory: %3</translation>
    </message>
    <message>
        <source>There is room for %1; the others take the nearest of these</source>
        <translation>Wolne miejsca: %1; pozostałe kolory otrzymają najbliższy z nich</translation>
    </message>
    <message>
        <source>The file is not a picture that can be read</source>
        <translation>Plik nie jest obrazem, który można odczytać</translation>
    </message>
    <message>
        <source>The picture is smaller than a sprite, which has 16 × 16 pixels</source>
        <translation>Obraz jest mniejszy niż sprite, który ma 16 × 16 pikseli</translation>
    </message>
    <message>
        <source>The picture holds more sprites than fit into a bank</source>
        <translation>Obraz zawiera więcej sprite’ów, niż mieści bank</translation>
    </message>
    <message>
        <source>There is a palette of this name already; please choose another name</source>
        <translation>Paleta o tej nazwie już istnieje; wybierz inną nazwę</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n colours; 4-bit sprites show 15 beside the transparent one</source>
        <translation>
            <numerusform>Obraz ma %n kolor; sprite’y 4-bitowe pokazują 15 oprócz przezroczystego</numerusform>
            <numerusform>Obraz ma %n kolory; sprite’y 4-bitowe pokazują 15 oprócz przezroczystego</numerusform>
            <numerusform>Obraz ma %n kolorów; sprite’y 4-bitowe pokazują 15 oprócz przezroczystego</numerusform>
        </translation>
    </message>
    <message>
        <source>The colours lie in several groups of 16 of the palette; 4-bit sprites show one group</source>
        <translation>Kolory leżą w różnych grupach 16 kolorów palety; sprite’y 4-bitowe pokazują jedną grupę</translation>
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
        <translation>Sprite’y</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Kopiuj obraz</translation>
    </message>
    <message>
        <source>Paste Image</source>
        <translation>Wklej obraz</translation>
    </message>
    <message>
        <source>Add Sprite</source>
        <translation>Dodanie sprite’a</translation>
    </message>
    <message>
        <source>Sprite %1</source>
        <translation>Sprite %1</translation>
    </message>
    <message>
        <source>Add a sprite</source>
        <translation>Dodaj sprite</translation>
    </message>
</context>
<context>
    <name>SpriteImport</name>
    <message>
        <source>Importing %1…</source>
        <translation>Importowanie %1…</translation>
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
        <translation>&amp;Sprite’y</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nowy</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importuj</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>Zmień &amp;paletę</translation>
    </message>
    <message>
        <source>&amp;Export Data</source>
        <translation>&amp;Eksportuj dane</translation>
    </message>
    <message>
        <source>Select a file to import</source>
        <translation>Wybierz plik do zaimportowania</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp)</source>
        <translation>Obrazy (*.png *.bmp)</translation>
    </message>
    <message>
        <source>Next sprites (*.spr)</source>
        <translation>Sprite’y Next (*.spr)</translation>
    </message>
    <message>
        <source>Export Sprite Data</source>
        <translation>Eksport danych sprite’ów</translation>
    </message>
    <message>
        <source>Next Sprites (*.spr)</source>
        <translation>Sprite’y Next (*.spr)</translation>
    </message>
</context>
<context>
    <name>SpriteWindow</name>
    <message>
        <source>Sprite Editor</source>
        <translation>Edytor sprite’ów</translation>
    </message>
    <message>
        <source>No sprites selected</source>
        <translation>Nie wybrano sprite’ów</translation>
    </message>
    <message>
        <source>Onion Skin</source>
        <translation>Skórka cebuli</translation>
    </message>
    <message>
        <source>Show the sprite of the frame before faintly over this one</source>
        <translation>Pokazuje blado sprite z poprzedniej klatki na bieżącym</translation>
    </message>
    <message>
        <source>Replace Colour in All Sprites</source>
        <translation>Zamień kolor we wszystkich sprite’ach</translation>
    </message>
    <message>
        <source>Does that in all sprites of the bank</source>
        <translation>Robi to we wszystkich sprite’ach banku</translation>
    </message>
    <message>
        <source>Pixels of this index are not drawn on the Next, whatever their colour</source>
        <translation>Piksele o tym indeksie nie są rysowane na Nexcie, niezależnie od koloru</translation>
    </message>
    <message>
        <source>Transparent index</source>
        <translation>Indeks przezroczysty</translation>
    </message>
    <message>
        <source>Add Sprite</source>
        <translation>Dodanie sprite’a</translation>
    </message>
    <message>
        <source>Delete Sprite</source>
        <translation>Usunięcie sprite’a</translation>
    </message>
    <message>
        <source>Clear Sprite</source>
        <translation>Wyczyszczenie sprite’a</translation>
    </message>
    <message>
        <source>Copy Sprite</source>
        <translation>Kopiowanie sprite’a</translation>
    </message>
    <message>
        <source>Move Sprite</source>
        <translation>Przeniesienie sprite’a</translation>
    </message>
    <message>
        <source>Sprites: %1</source>
        <translation>Sprite’y: %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animacja</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Powielony</translation>
    </message>
    <message>
        <source>No animation shows this sprite</source>
        <translation>Żadna animacja nie pokazuje tego sprite’a</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Zamień kolor</translation>
    </message>
    <message>
        <source>Transparent Index</source>
        <translation>Indeks przezroczysty</translation>
    </message>
    <message>
        <source>Draw the first sprite here; the last place of the list below adds another</source>
        <translation>Narysuj tutaj pierwszego sprite’a; ostatnie miejsce listy poniżej dodaje następnego</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>A double click in the Project dock opens an asset</source>
        <translation>Dwukrotne kliknięcie w panelu Projekt otwiera zasób</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Ostatnie projekty</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Nowy projekt</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Otwórz projekt</translation>
    </message>
    <message>
        <source>Read the guide</source>
        <translation>Przeczytaj przewodnik</translation>
    </message>
    <message>
        <source>To look at and to play with</source>
        <translation>Do obejrzenia i wypróbowania</translation>
    </message>
    <message>
        <source>The sample project</source>
        <translation>Projekt przykładowy</translation>
    </message>
    <message>
        <source>A level, sprites and a title screen</source>
        <translation>Poziom, sprite’y i ekran tytułowy</translation>
    </message>
</context>
<context>
    <name>TileAnimation</name>
    <message>
        <source>Blocks!</source>
        <translation>Bloki!</translation>
    </message>
    <message>
        <source>%1 (Copy)</source>
        <translation>%1 (kopia)</translation>
    </message>
</context>
<context>
    <name>TileAnimationDialog</name>
    <message>
        <source>New Map Objects</source>
        <translation>Nowe obiekty mapy</translation>
    </message>
    <message>
        <source>Create map objects: animations for maps</source>
        <translation>Utwórz obiekty mapy: animacje do umieszczania na mapach</translation>
    </message>
    <message>
        <source>&amp;Tile set</source>
        <translation>&amp;Zestaw kafelków</translation>
    </message>
    <message>
        <source>Map objects are made of the tiles of a tile set; please create a tile set first</source>
        <translation>Obiekty mapy składają się z kafelków zestawu; najpierw utwórz zestaw kafelków</translation>
    </message>
</context>
<context>
    <name>TileAttributesEditor</name>
    <message>
        <source>Solid top</source>
        <translation>Kolizja z góry</translation>
    </message>
    <message>
        <source>Solid left</source>
        <translation>Kolizja z lewej</translation>
    </message>
    <message>
        <source>Solid right</source>
        <translation>Kolizja z prawej</translation>
    </message>
    <message>
        <source>Solid bottom</source>
        <translation>Kolizja z dołu</translation>
    </message>
    <message>
        <source>Deadly</source>
        <translation>Zabójczy</translation>
    </message>
    <message>
        <source>Collectible</source>
        <translation>Do zebrania</translation>
    </message>
    <message>
        <source>Ladder</source>
        <translation>Drabina</translation>
    </message>
    <message>
        <source>Door</source>
        <translation>Drzwi</translation>
    </message>
    <message>
        <source>Solid on all edges</source>
        <translation>Kolizja ze wszystkich stron</translation>
    </message>
    <message>
        <source>A number of your own for the game</source>
        <translation>Własna liczba na potrzeby gry</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
</context>
<context>
    <name>TileEditor::ExportDialog</name>
    <message>
        <source>Export Tiles</source>
        <translation>Eksport kafelków</translation>
    </message>
    <message>
        <source>&amp;Rotate</source>
        <translation>Ob&amp;róć</translation>
    </message>
    <message>
        <source>Export the pixels of tiles</source>
        <translation>Wyeksportuj piksele kafelków</translation>
    </message>
    <message>
        <source>Writes the columns of a tile as its rows</source>
        <translation>Zapisuje kolumny kafelka jako jego wiersze</translation>
    </message>
    <message>
        <source>&amp;First tile</source>
        <translation>Pi&amp;erwszy kafelek</translation>
    </message>
    <message>
        <source>&amp;Last tile</source>
        <translation>O&amp;statni kafelek</translation>
    </message>
    <message>
        <source>Export Tiles: %1</source>
        <translation>Eksport kafelków: %1</translation>
    </message>
    <message>
        <source>The tile set has no tiles</source>
        <translation>Zestaw kafelków nie ma kafelków</translation>
    </message>
    <message>
        <source>The first tile comes after the last one</source>
        <translation>Pierwszy kafelek jest za ostatnim</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>&amp;Tiles</source>
        <translation>&amp;Kafelki</translation>
    </message>
    <message>
        <source>&amp;New Tile Set</source>
        <translation>&amp;Nowy zestaw kafelków</translation>
    </message>
    <message>
        <source>&amp;Create Animations</source>
        <translation>&amp;Utwórz animacje</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>Zmień &amp;paletę</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Eksportuj</translation>
    </message>
    <message>
        <source>Export &amp;Attributes</source>
        <translation>Eksportuj &amp;atrybuty</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importuj</translation>
    </message>
    <message>
        <source>Ne&amp;xt Tile</source>
        <translation>Na&amp;stępny kafelek</translation>
    </message>
    <message>
        <source>&amp;Previous Tile</source>
        <translation>Poprze&amp;dni kafelek</translation>
    </message>
    <message>
        <source>Tile List &amp;Magnification</source>
        <translation>Po&amp;większenie listy kafelków</translation>
    </message>
    <message>
        <source>&amp;Spectrum Chars</source>
        <translation>&amp;Znaki Spectrum</translation>
    </message>
    <message>
        <source>Export Tiles</source>
        <translation>Eksport kafelków</translation>
    </message>
    <message>
        <source>Tile Data (*.bin)</source>
        <translation>Dane kafelków (*.bin)</translation>
    </message>
    <message>
        <source>Export tile attributes</source>
        <translation>Eksport atrybutów kafelków</translation>
    </message>
    <message>
        <source>ASM Code (*.asm)</source>
        <translation>Kod ASM (*.asm)</translation>
    </message>
    <message>
        <source>Binary Data (*.bin)</source>
        <translation>Dane binarne (*.bin)</translation>
    </message>
</context>
<context>
    <name>TilePickerGrid</name>
    <message>
        <source>Tiles</source>
        <translation>Kafelki</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Powiększ</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Pomniejsz</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Kopiuj obraz</translation>
    </message>
    <message>
        <source>Paste Image</source>
        <translation>Wklej obraz</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Wstaw</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1x</translation>
    </message>
    <message>
        <source>Index: %1
Palette Offset: %2</source>
        <translation>Indeks: %1
Przesunięcie palety: %2</translation>
    </message>
    <message>
        <source>Tile %1, palette offset %2</source>
        <translation>Kafelek %1, przesunięcie palety %2</translation>
    </message>
</context>
<context>
    <name>TilePickerTool</name>
    <message>
        <source>Tiles</source>
        <translation>Kafelki</translation>
    </message>
    <message>
        <source>No active tile set</source>
        <translation>Brak aktywnego zestawu kafelków</translation>
    </message>
    <message>
        <source>Tiles: %1</source>
        <translation>Kafelki: %1</translation>
    </message>
</context>
<context>
    <name>TileSet</name>
    <message>
        <source>Copy Tile</source>
        <translation>Kopiowanie kafelka</translation>
    </message>
    <message>
        <source>Delete Tile</source>
        <translation>Usunięcie kafelka</translation>
    </message>
    <message>
        <source>Insert Tile</source>
        <translation>Wstawienie kafelka</translation>
    </message>
    <message>
        <source>Move Tile</source>
        <translation>Przeniesienie kafelka</translation>
    </message>
</context>
<context>
    <name>TileSetDialog</name>
    <message>
        <source>New Tile Set</source>
        <translation>Nowy zestaw kafelków</translation>
    </message>
    <message>
        <source>Create a new tile set</source>
        <translation>Utwórz nowy zestaw kafelków</translation>
    </message>
    <message>
        <source>&amp;High resolution</source>
        <translation>&amp;Wysoka rozdzielczość</translation>
    </message>
    <message>
        <source>For the tilemap of 80 columns, whose pixels are half as wide</source>
        <translation>Dla mapy kafelków o 80 kolumnach, której piksele są o połowę węższe</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>P&amp;aleta</translation>
    </message>
    <message>
        <source>&amp;Tiles</source>
        <translation>&amp;Kafelki</translation>
    </message>
    <message>
        <source>New palette of the same name</source>
        <translation>Nowa paleta o tej samej nazwie</translation>
    </message>
</context>
<context>
    <name>TileWindow</name>
    <message>
        <source>Tile Editor</source>
        <translation>Edytor kafelków</translation>
    </message>
    <message>
        <source>No tile set selected</source>
        <translation>Nie wybrano zestawu kafelków</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Kafelek</translation>
    </message>
    <message>
        <source>The group of 16 colours that the tile is drawn with</source>
        <translation>Grupa 16 kolorów, którą rysowany jest kafelek</translation>
    </message>
    <message>
        <source>Replace Colour in All Tiles</source>
        <translation>Zamień kolor we wszystkich kafelkach</translation>
    </message>
    <message>
        <source>Does that in all tiles of this palette offset</source>
        <translation>Robi to we wszystkich kafelkach o tym przesunięciu palety</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Przesunięcie palety</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Atrybuty</translation>
    </message>
    <message>
        <source>Palette Editor</source>
        <translation>Edytor palety</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Powielony</translation>
    </message>
    <message>
        <source>On the Map</source>
        <translation>Na mapie</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animacja</translation>
    </message>
    <message>
        <source>No map of this tile set is in front</source>
        <translation>Na wierzchu nie ma mapy tego zestawu kafelków</translation>
    </message>
    <message>
        <source>The map in front does not show this tile</source>
        <translation>Mapa na wierzchu nie pokazuje tego kafelka</translation>
    </message>
    <message>
        <source>No animation shows this tile</source>
        <translation>Żadna animacja nie pokazuje tego kafelka</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Zamień kolor</translation>
    </message>
    <message>
        <source>Draw the first tile here: the left button paints with the foreground colour, the right one with the background colour</source>
        <translation>Narysuj tutaj pierwszy kafelek: lewy przycisk maluje kolorem pierwszego planu, prawy kolorem tła</translation>
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
        <translation>Więcej</translation>
    </message>
</context>
<context>
    <name>ToolPalette</name>
    <message>
        <source>Draw</source>
        <translation>Rysowanie</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linia</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Prostokąt</translation>
    </message>
    <message>
        <source>Filled rectangle</source>
        <translation>Wypełniony prostokąt</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Okrąg</translation>
    </message>
    <message>
        <source>Filled circle</source>
        <translation>Wypełniony okrąg</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Zaznaczanie</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Wklej</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Wypełnij</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Pipeta</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Zmień rozmiar</translation>
    </message>
    <message>
        <source>Toggle Grid</source>
        <translation>Przełącz siatkę</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Powiększ</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Pomniejsz</translation>
    </message>
    <message>
        <source>Rotate clockwise</source>
        <translation>Obróć w prawo</translation>
    </message>
    <message>
        <source>Rotate anticlockwise</source>
        <translation>Obróć w lewo</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Góra</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Dół</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lewo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Prawo</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Wytnij</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Przytnij</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Wymaż</translation>
    </message>
    <message>
        <source>Flip top to bottom</source>
        <translation>Odbij w pionie</translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation>Odbij w poziomie</translation>
    </message>
    <message>
        <source>Reset all palette offsets</source>
        <translation>Zresetuj wszystkie przesunięcia palety</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Play Animations</source>
        <translation>Odtwórz animacje</translation>
    </message>
    <message>
        <source>Stop Animations</source>
        <translation>Zatrzymaj animacje</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Dopasuj do okna</translation>
    </message>
    <message>
        <source>Place animations</source>
        <translation>Umieszczanie animacji</translation>
    </message>
    <message>
        <source>Place sprites</source>
        <translation>Umieszczanie sprite’ów</translation>
    </message>
    <message>
        <source>Shrink to fit</source>
        <translation>Zmniejsz do okna</translation>
    </message>
    <message>
        <source>Toggle viewport</source>
        <translation>Przełącz obszar widoku</translation>
    </message>
    <message>
        <source>Paint terrain</source>
        <translation>Malowanie terenem</translation>
    </message>
    <message>
        <source>Random tiles of the stamp</source>
        <translation>Losowe kafelki stempla</translation>
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
        <translation>● Niezapisane</translation>
    </message>
    <message>
        <source>The project has unsaved changes</source>
        <translation>Projekt ma niezapisane zmiany</translation>
    </message>
    <message>
        <source>The project has changes that are not saved yet</source>
        <translation>Projekt ma zmiany, które nie zostały jeszcze zapisane</translation>
    </message>
</context>
<context>
    <name>Update::UpdateChecker</name>
    <message>
        <source>The update feed is too large</source>
        <translation>Kanał aktualizacji jest za duży</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Release Notes…</source>
        <translation>Informacje o wydaniu…</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Pobierz…</translation>
    </message>
    <message>
        <source>Quenmora — update available</source>
        <translation>Quenmora — dostępna aktualizacja</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pomiń tę wersję</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Później</translation>
    </message>
    <message>
        <source>Quenmora %1 is available</source>
        <translation>Dostępna jest Quenmora %1</translation>
    </message>
    <message>
        <source>You have %1 (built %2).
The new version was released %3.</source>
        <translation>Masz wersję %1 (z dnia %2).
Nowa wersja została wydana %3.</translation>
    </message>
</context>
<context>
    <name>UpdatePresenter</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Sprawdzanie aktualizacji…</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Dostępna aktualizacja: %1</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>Masz najnowszą wersję</translation>
    </message>
    <message>
        <source>Quenmora %1 is up to date.</source>
        <translation>Quenmora %1 jest aktualna.</translation>
    </message>
    <message>
        <source>Could not reach the update server</source>
        <translation>Nie udało się połączyć z serwerem aktualizacji</translation>
    </message>
    <message>
        <source>Could not reach the update server.
%1</source>
        <translation>Nie udało się połączyć z serwerem aktualizacji.
%1</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Sprawdzanie aktualizacji</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>S&amp;cratch Image Editor</source>
        <translation>Edytor &amp;brudnopisu</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>&amp;Pasek stanu</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>P&amp;rzywróć układ</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Okno</translation>
    </message>
</context>
<context>
    <name>WriteProblem</name>
    <message>
        <source>There is no folder %1</source>
        <translation>Nie ma folderu %1</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 to folder</translation>
    </message>
    <message>
        <source>%1 is a pipe or a device, not a file</source>
        <translation>%1 to potok lub urządzenie, a nie plik</translation>
    </message>
    <message>
        <source>You may not write to %1</source>
        <translation>Brak prawa zapisu w %1</translation>
    </message>
    <message>
        <source>%1 could not be written to its end; there may be no room left</source>
        <translation>Nie udało się zapisać %1 do końca; być może zabrakło miejsca</translation>
    </message>
    <message>
        <source>No file can be called %1: a slash would lead into another folder. Another name of the asset helps.</source>
        <translation>Żaden plik nie może nazywać się %1: ukośnik prowadziłby do innego folderu. Pomoże inna nazwa zasobu.</translation>
    </message>
    <message>
        <source>No file can be called that: %1. Another name of the asset helps.</source>
        <translation>Żaden plik nie może się tak nazywać: %1. Pomoże inna nazwa zasobu.</translation>
    </message>
</context>
</TS>
