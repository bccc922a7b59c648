<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_GB">
<context>
    <name>AboutBox</name>
    <message>
        <source>Licence of the icons</source>
        <translation>Licencia de los iconos</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>An editor for the graphics of ZX Spectrum Next games: palettes, tiles, maps, sprites, animations and pictures.</source>
        <translation>Un editor para los gráficos de los juegos de ZX Spectrum Next: paletas, tiles, mapas, sprites, animaciones e imágenes.</translation>
    </message>
    <message>
        <source>Built with Qt %1. Icons by Lucide.</source>
        <translation>Creado con Qt %1. Iconos de Lucide.</translation>
    </message>
</context>
<context>
    <name>AddOutputsDialog</name>
    <message>
        <source>Add Outputs</source>
        <translation>Añadir salidas</translation>
    </message>
    <message>
        <source>Which assets does the game take?</source>
        <translation>¿Qué recursos usa el juego?</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Recurso</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Assets</source>
        <translation>Recursos</translation>
    </message>
    <message>
        <source>The project&apos;s folder</source>
        <translation>La carpeta del proyecto</translation>
    </message>
    <message>
        <source>A folder below the project&apos;s, with / between folders</source>
        <translation>Una carpeta dentro de la del proyecto, con / entre carpetas</translation>
    </message>
    <message>
        <source>&amp;Source text</source>
        <translation>Código &amp;fuente</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Carpeta</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Form of %1</source>
        <translation>Formato de %1</translation>
    </message>
    <message>
        <source>The usual ones</source>
        <translation>Los habituales</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>&amp;Add 1 Output</source>
        <translation>&amp;Añadir 1 salida</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Add %Ln Outputs</source>
        <translation>
            <numerusform>&amp;Añadir %Ln salida</numerusform>
            <numerusform>&amp;Añadir %Ln salidas</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>Exportado: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Holds nothing yet</source>
        <translation>Aún no contiene nada</translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>No es posible: %1</translation>
    </message>
    <message>
        <source>The project has no assets yet</source>
        <translation>El proyecto aún no tiene recursos</translation>
    </message>
    <message>
        <source>Please tick what is to be exported</source>
        <translation>Marque lo que desea exportar</translation>
    </message>
    <message numerus="yes">
        <source>A recipe can have %n outputs</source>
        <translation>
            <numerusform>Una receta puede tener como máximo %n salida</numerusform>
            <numerusform>Una receta puede tener como máximo %n salidas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AnimationControlWidget</name>
    <message>
        <source>Goto first frame</source>
        <translation>Ir al primer fotograma</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Fotograma anterior</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Pause playback</source>
        <translation>Pausar la reproducción</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Fotograma siguiente</translation>
    </message>
    <message>
        <source>Goto last frame</source>
        <translation>Ir al último fotograma</translation>
    </message>
    <message>
        <source>Add a frame</source>
        <translation>Añadir un fotograma</translation>
    </message>
    <message>
        <source>Delete current frame</source>
        <translation>Eliminar el fotograma actual</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Bucle</translation>
    </message>
    <message>
        <source>Ping pong</source>
        <translation>Vaivén</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Fotograma %1 de %2</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationListWidget</name>
    <message>
        <source>Animations</source>
        <translation>Animaciones</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add a new animation</source>
        <translation>Añadir una animación</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Delete the selected animation</source>
        <translation>Eliminar la animación seleccionada</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Clonar</translation>
    </message>
    <message>
        <source>Copy the selected animation</source>
        <translation>Copiar la animación seleccionada</translation>
    </message>
    <message numerus="yes">
        <source>%1
%n frame(s) [%2x%3]</source>
        <translation>
            <numerusform>%1
%n fotograma [%2x%3]</numerusform>
            <numerusform>%1
%n fotogramas [%2x%3]</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no animations yet. Add below makes the first one.</source>
        <translation>Aún no hay animaciones. «Añadir», abajo, crea la primera.</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationToolBar</name>
    <message>
        <source>Animation</source>
        <translation>Animación</translation>
    </message>
    <message>
        <source>The name of the animation</source>
        <translation>El nombre de la animación</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>W:</source>
        <translation>An:</translation>
    </message>
    <message>
        <source>H:</source>
        <translation>Al:</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Delay:</source>
        <translation>Retardo:</translation>
    </message>
    <message>
        <source>Set the delay between animation frames
0 = No Delay, 1 = 25fps, 2 = 12.5fps</source>
        <translation>Retardo entre los fotogramas de la animación
0 = sin retardo, 1 = 25 fps, 2 = 12,5 fps</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationView</name>
    <message>
        <source>Animations</source>
        <translation>Animaciones</translation>
    </message>
    <message>
        <source>No animation selected</source>
        <translation>Ninguna animación seleccionada</translation>
    </message>
    <message>
        <source>Animation: %1</source>
        <translation>Animación: %1</translation>
    </message>
    <message>
        <source>Delete?</source>
        <translation>¿Eliminar?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this animation?</source>
        <translation>¿Seguro que desea eliminar esta animación?</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::EditorWidget</name>
    <message>
        <source>Onion Skin</source>
        <translation>Papel cebolla</translation>
    </message>
    <message>
        <source>Index:</source>
        <translation>Índice:</translation>
    </message>
    <message>
        <source>The index in the selected cell</source>
        <translation>El índice de la celda seleccionada</translation>
    </message>
    <message>
        <source>Show the frame before faintly over this one</source>
        <translation>Muestra el fotograma anterior atenuado sobre este</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::FrameEditorWidget</name>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Fotograma</translation>
    </message>
    <message>
        <source>Cells of the frame</source>
        <translation>Celdas del fotograma</translation>
    </message>
    <message>
        <source>Rotated</source>
        <translation>Rotado</translation>
    </message>
    <message>
        <source>Flipped</source>
        <translation>Volteado</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Reflejado</translation>
    </message>
    <message>
        <source>Index:	%1
Offset:	%2
Flip	%3
Mirror:	%4
Rotate:	%5</source>
        <translation>Índice:	%1
Offset:	%2
Voltear	%3
Reflejar:	%4
Rotar:	%5</translation>
    </message>
    <message>
        <source>Column %1, row %2, sprite %3</source>
        <translation>Columna %1, fila %2, sprite %3</translation>
    </message>
    <message>
        <source>Column %1, row %2, tile %3</source>
        <translation>Columna %1, fila %2, tile %3</translation>
    </message>
</context>
<context>
    <name>AssetChooser</name>
    <message>
        <source>No palettes</source>
        <translation>No hay paletas</translation>
    </message>
    <message>
        <source>No tile sets</source>
        <translation>No hay tilesets</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>There is a palette of this name already; choose it, or another name</source>
        <translation>Ya hay una paleta con este nombre; elíjala o indique otro nombre</translation>
    </message>
</context>
<context>
    <name>AssetKinds</name>
    <message>
        <source>Palettes</source>
        <translation>Paletas</translation>
    </message>
    <message>
        <source>Tile Sets</source>
        <translation>Tilesets</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Mapas</translation>
    </message>
    <message>
        <source>Map Objects</source>
        <translation>Objetos de mapa</translation>
    </message>
    <message>
        <source>Sprite Banks</source>
        <translation>Bancos de sprites</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
</context>
<context>
    <name>BlockEditor::AnimationEditorWidget</name>
    <message>
        <source>Palette offset:</source>
        <translation>Offset de paleta:</translation>
    </message>
    <message>
        <source>The palette offset of the selected cell</source>
        <translation>El offset de paleta de la celda seleccionada</translation>
    </message>
    <message>
        <source>Update palette offsets to default values</source>
        <translation>Restablecer los offsets de paleta a sus valores predeterminados</translation>
    </message>
</context>
<context>
    <name>BlockEditor::View</name>
    <message>
        <source>New Object</source>
        <translation>Objeto nuevo</translation>
    </message>
</context>
<context>
    <name>BlockEditorToolBar</name>
    <message>
        <source>Set the frame width in tiles</source>
        <translation>Anchura del fotograma en tiles</translation>
    </message>
    <message>
        <source>Set the frame height in tiles</source>
        <translation>Altura del fotograma en tiles</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Horizontal Platform</source>
        <translation>Plataforma horizontal</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>How the game moves the animation</source>
        <translation>Cómo mueve el juego la animación</translation>
    </message>
</context>
<context>
    <name>BlockSelectorWindow</name>
    <message>
        <source>Map Objects</source>
        <translation>Objetos de mapa</translation>
    </message>
    <message>
        <source>No active tile set</source>
        <translation>Ningún tileset activo</translation>
    </message>
    <message>
        <source>The tile set has no map objects</source>
        <translation>El tileset no tiene objetos de mapa</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Paint canvas</source>
        <translation>Lienzo</translation>
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
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Quitar la selección</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Dibujar</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
</context>
<context>
    <name>CanvasKeys</name>
    <message>
        <source>Column %1, row %2, colour %3, %4</source>
        <translation>Columna %1, fila %2, color %3, %4</translation>
    </message>
</context>
<context>
    <name>CircleCanvasTool</name>
    <message>
        <source>Filled Circle</source>
        <translation>Círculo relleno</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Círculo</translation>
    </message>
</context>
<context>
    <name>ColourCyclesDialog</name>
    <message>
        <source>&amp;Add Selection</source>
        <translation>&amp;Añadir la selección</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Ranges of the palette whose colours go round</source>
        <translation>Rangos de la paleta cuyos colores rotan</translation>
    </message>
    <message>
        <source>How many frames of the machine&apos;s screen, fifty a second, pass from step to step</source>
        <translation>Cuántos cuadros de la pantalla de la máquina, cincuenta por segundo, pasan de un paso a otro</translation>
    </message>
    <message>
        <source>To higher entries</source>
        <translation>Hacia entradas superiores</translation>
    </message>
    <message>
        <source>To lower entries</source>
        <translation>Hacia entradas inferiores</translation>
    </message>
    <message>
        <source>Where colours move</source>
        <translation>Hacia dónde van los colores</translation>
    </message>
    <message>
        <source>The colours of a range go round: each moves to the next entry, and the one that leaves at one end comes in at the other. Neither palette nor pictures change.</source>
        <translation>Los colores de un rango rotan: cada uno pasa a la entrada siguiente, y el que sale por un extremo entra por el otro. Ni la paleta ni las imágenes cambian.</translation>
    </message>
    <message>
        <source>First entry</source>
        <translation>Primera entrada</translation>
    </message>
    <message>
        <source>Last entry</source>
        <translation>Última entrada</translation>
    </message>
    <message>
        <source>Frames a step</source>
        <translation>Cuadros por paso</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Colour Cycles of %1</source>
        <translation>Ciclos de color de %1</translation>
    </message>
    <message>
        <source>Colour Cycles</source>
        <translation>Ciclos de color</translation>
    </message>
    <message>
        <source>%1 to %2, to lower entries</source>
        <translation>%1 a %2, hacia entradas inferiores</translation>
    </message>
    <message>
        <source>%1 to %2, to higher entries</source>
        <translation>%1 a %2, hacia entradas superiores</translation>
    </message>
    <message>
        <source>%1 steps a second</source>
        <translation>%1 pasos por segundo</translation>
    </message>
    <message>
        <source>Lets the colours of the entries go round that are selected in the palette</source>
        <translation>Hace rotar los colores de las entradas seleccionadas en la paleta</translation>
    </message>
    <message>
        <source>Select two or more entries in the palette that are in no range yet</source>
        <translation>Seleccione en la paleta dos o más entradas que aún no estén en ningún rango</translation>
    </message>
</context>
<context>
    <name>ColourCycling</name>
    <message>
        <source>&amp;Play Colour Cycles</source>
        <translation>Reproducir &amp;ciclos de color</translation>
    </message>
    <message>
        <source>Lets the colours of palettes&apos; ranges go round in all views; nothing is changed</source>
        <translation>Hace rotar los colores de los rangos de las paletas en todas las vistas; no se cambia nada</translation>
    </message>
</context>
<context>
    <name>ColourEditor</name>
    <message>
        <source>Colour before</source>
        <translation>Color anterior</translation>
    </message>
    <message>
        <source>Edited colour</source>
        <translation>Color editado</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Layer 2 priority
If set, this colour will always appear on top</source>
        <translation>Prioridad de Layer 2
Si está marcada, este color aparece siempre encima</translation>
    </message>
    <message>
        <source>Apply the colour</source>
        <translation>Aplicar el color</translation>
    </message>
    <message>
        <source>Go back to the colour before</source>
        <translation>Volver al color anterior</translation>
    </message>
</context>
<context>
    <name>ColourPalette</name>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Index: %1
Transparent</source>
        <translation>Índice: %1
Transparente</translation>
    </message>
    <message>
        <source>Index: %1</source>
        <translation>Índice: %1</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Color %1, %2, transparente</translation>
    </message>
    <message>
        <source>Colour %1, %2, background</source>
        <translation>Color %1, %2, fondo</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Color %1, %2</translation>
    </message>
</context>
<context>
    <name>ColourSelector</name>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Left button: foreground, right button: background</source>
        <translation>Botón izquierdo: color de frente; botón derecho: color de fondo</translation>
    </message>
    <message>
        <source>Transparent on maps</source>
        <translation>Transparente en los mapas</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Color %1, %2, transparente</translation>
    </message>
    <message>
        <source>Colour %1, %2, background</source>
        <translation>Color %1, %2, fondo</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Color %1, %2</translation>
    </message>
</context>
<context>
    <name>CommandDesk</name>
    <message>
        <source>Your keyboard shortcuts could not be read. All commands have their usual keys.</source>
        <translation>No se pudieron leer sus atajos de teclado. Todas las órdenes tienen sus teclas habituales.</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>%1
%2 was kept aside under a name that ends in .bad.</source>
        <translation>%1
%2 se conservó con un nombre que termina en .bad.</translation>
    </message>
    <message>
        <source>Your keyboard shortcuts could not be saved. They hold until you quit.</source>
        <translation>No se pudieron guardar sus atajos de teclado. Valen hasta que salga del programa.</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Proyectos recientes</translation>
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
        <translation>Paleta de órdenes</translation>
    </message>
    <message>
        <source>Type a few letters of a command, an asset or a tile</source>
        <translation>Escriba unas letras de una orden, un recurso o un tile</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>What matches</source>
        <translation>Coincidencias</translation>
    </message>
</context>
<context>
    <name>CommandPlaces</name>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Tool Bars</source>
        <translation>Barras de herramientas</translation>
    </message>
    <message>
        <source>Map Editor</source>
        <translation>Editor de mapas</translation>
    </message>
    <message>
        <source>Layers of the Map</source>
        <translation>Capas del mapa</translation>
    </message>
    <message>
        <source>Pixel Editors</source>
        <translation>Editores de píxeles</translation>
    </message>
    <message>
        <source>Animation Editors</source>
        <translation>Editores de animaciones</translation>
    </message>
    <message>
        <source>List of Animations</source>
        <translation>Lista de animaciones</translation>
    </message>
    <message>
        <source>Tile Picker</source>
        <translation>Selector de tiles</translation>
    </message>
    <message>
        <source>Palette Editor</source>
        <translation>Editor de paletas</translation>
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
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>Please enter a name</source>
        <translation>Indique un nombre</translation>
    </message>
</context>
<context>
    <name>DeletionQuestion</name>
    <message>
        <source>1 animation</source>
        <translation>1 animación</translation>
    </message>
    <message numerus="yes">
        <source>%n animations</source>
        <translation>
            <numerusform>%n animación</numerusform>
            <numerusform>%n animaciones</numerusform>
        </translation>
    </message>
    <message>
        <source>1 placed sprite</source>
        <translation>1 sprite colocado</translation>
    </message>
    <message numerus="yes">
        <source>%n placed sprites</source>
        <translation>
            <numerusform>%n sprite colocado</numerusform>
            <numerusform>%n sprites colocados</numerusform>
        </translation>
    </message>
    <message>
        <source>Lost with it: %1.</source>
        <translation>También se pierde: %1.</translation>
    </message>
    <message>
        <source>1 placed animation</source>
        <translation>1 animación colocada</translation>
    </message>
    <message numerus="yes">
        <source>%n placed animations</source>
        <translation>
            <numerusform>%n animación colocada</numerusform>
            <numerusform>%n animaciones colocadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Left without tiles: %1.</source>
        <translation>Quedan sin tiles: %1.</translation>
    </message>
    <message>
        <source>No longer shown: %1 on 1 map.</source>
        <translation>Deja de mostrarse: %1 en 1 mapa.</translation>
    </message>
    <message numerus="yes">
        <source>No longer shown: %1 on %n maps.</source>
        <translation>
            <numerusform>Deja de mostrarse: %1 en %n mapa.</numerusform>
            <numerusform>Deja de mostrarse: %1 en %n mapas.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no undo for this.</source>
        <translation>Esto no se puede deshacer.</translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation>¿Eliminar %1?</translation>
    </message>
    <message>
        <source>Delete “%2” (%1)?</source>
        <translation>¿Eliminar «%2» (%1)?</translation>
    </message>
</context>
<context>
    <name>DepthChooser</name>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bits, 256 colores</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bits, 16 colores</translation>
    </message>
</context>
<context>
    <name>DockTabs</name>
    <message>
        <source>Docks</source>
        <translation>Paneles</translation>
    </message>
</context>
<context>
    <name>DocumentTabView</name>
    <message>
        <source>Open documents</source>
        <translation>Documentos abiertos</translation>
    </message>
    <message>
        <source>&amp;Close Tab</source>
        <translation>&amp;Cerrar pestaña</translation>
    </message>
    <message>
        <source>Close &amp;Other Tabs</source>
        <translation>Cerrar las &amp;otras pestañas</translation>
    </message>
    <message>
        <source>Scratch Image Editor</source>
        <translation>Editor de borrador</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>C&amp;lear Selection</source>
        <translation>&amp;Quitar la selección</translation>
    </message>
</context>
<context>
    <name>EditRecorder</name>
    <message>
        <source>Edit Frames</source>
        <translation>Editar fotogramas</translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>TEXT</source>
        <translation>TEXTO</translation>
    </message>
    <message>
        <source>There is no asset “%1”</source>
        <translation>No existe el recurso «%1»</translation>
    </message>
    <message>
        <source>“%1” is the name of several assets: use an id (%2)</source>
        <translation>«%1» es el nombre de varios recursos: use un id (%2)</translation>
    </message>
    <message>
        <source>quenmora-export --help tells what it understands</source>
        <translation>quenmora-export --help muestra lo que admite</translation>
    </message>
    <message>
        <source>Options of all forms:</source>
        <translation>Opciones de todos los formatos:</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>No existe ese archivo</translation>
    </message>
    <message>
        <source>The project has no recipe; File &gt; Export Project in the editor makes one</source>
        <translation>El proyecto no tiene receta; Archivo &gt; Exportar proyecto en el editor crea una</translation>
    </message>
    <message numerus="yes">
        <source>Interrupted: %n outputs were not looked at</source>
        <translation>
            <numerusform>Interrumpido: no se revisó %n salida</numerusform>
            <numerusform>Interrumpido: no se revisaron %n salidas</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no form “%1”</source>
        <translation>No existe el formato «%1»</translation>
    </message>
    <message>
        <source>This is the project itself</source>
        <translation>Es el propio proyecto</translation>
    </message>
    <message>
        <source>This file is exported, or exported from</source>
        <translation>Este archivo es resultado u origen de una exportación</translation>
    </message>
    <message>
        <source>make cannot be told of “%1”: its name has characters that end names</source>
        <translation>No se puede indicar «%1» a make: su nombre tiene caracteres que terminan un nombre</translation>
    </message>
    <message>
        <source>What there was to say could not be written</source>
        <translation>No se pudo escribir el resultado</translation>
    </message>
    <message>
        <source>There is nothing in it that a picture could show</source>
        <translation>No contiene nada que una imagen pueda mostrar</translation>
    </message>
    <message>
        <source>No picture could be made</source>
        <translation>No se pudo crear ninguna imagen</translation>
    </message>
</context>
<context>
    <name>ExportMessages</name>
    <message numerus="yes">
        <source>Exported %1 to %2 (%Ln bytes)</source>
        <translation>
            <numerusform>Se exportó %1 a %2 (%Ln byte)</numerusform>
            <numerusform>Se exportó %1 a %2 (%Ln bytes)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln bytes)</source>
        <translation>
            <numerusform>%1 (%Ln byte)</numerusform>
            <numerusform>%1 (%Ln bytes)</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported to %1: %2</source>
        <translation>Se exportó a %1: %2</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Exporting %1…</source>
        <translation>Exportando %1…</translation>
    </message>
    <message>
        <source>Exporting the project…</source>
        <translation>Exportando el proyecto…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Exportar proyecto</translation>
    </message>
</context>
<context>
    <name>ExportProjectDialog</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Exportar proyecto</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Añadir…</translation>
    </message>
    <message>
        <source>Adds assets of the project</source>
        <translation>Añade recursos del proyecto</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>Changes form, options and file</source>
        <translation>Cambia el formato, las opciones y el archivo</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>D&amp;uplicar</translation>
    </message>
    <message>
        <source>Adds a copy, for another form or file</source>
        <translation>Añade una copia, para otro formato u otro archivo</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Takes it out of the recipe; its file stays</source>
        <translation>La quita de la receta; su archivo se conserva</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Salidas</translation>
    </message>
    <message>
        <source>The game takes nothing of this project yet.

Add palettes, tiles, maps with what is placed on them, sprites, animations and images, each in the form that the game loads. From then on one key writes all that has changed.</source>
        <translation>El juego aún no usa nada de este proyecto.

Añada paletas, tiles, mapas con lo que hay colocado en ellos, sprites, animaciones e imágenes, cada uno en el formato que carga el juego. A partir de entonces, una sola tecla escribe todo lo que haya cambiado.</translation>
    </message>
    <message>
        <source>&amp;Add Assets…</source>
        <translation>Aña&amp;dir recursos…</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>E&amp;xportar</translation>
    </message>
    <message>
        <source>Saves the recipe and writes what is new or changed</source>
        <translation>Guarda la receta y escribe lo nuevo y lo modificado</translation>
    </message>
    <message>
        <source>Saves the recipe beside the project and writes nothing else</source>
        <translation>Guarda la receta junto al proyecto y no escribe nada más</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>1 output</source>
        <translation>1 salida</translation>
    </message>
    <message numerus="yes">
        <source>%Ln outputs</source>
        <translation>
            <numerusform>%Ln salida</numerusform>
            <numerusform>%Ln salidas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln byte</numerusform>
            <numerusform>%Ln bytes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln new</source>
        <translation>
            <numerusform>%Ln nueva</numerusform>
            <numerusform>%Ln nuevas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln modificada</numerusform>
            <numerusform>%Ln modificadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unchanged</source>
        <translation>
            <numerusform>%Ln sin cambios</numerusform>
            <numerusform>%Ln sin cambios</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cannot be</source>
        <translation>
            <numerusform>%Ln imposible</numerusform>
            <numerusform>%Ln imposibles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln to be looked at</source>
        <translation>
            <numerusform>%Ln por revisar</numerusform>
            <numerusform>%Ln por revisar</numerusform>
        </translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Vista previa de %1</translation>
    </message>
</context>
<context>
    <name>ExportQuestion</name>
    <message>
        <source>Save the project first?</source>
        <translation>¿Guardar antes el proyecto?</translation>
    </message>
    <message>
        <source>The files for the game are written beside the project&apos;s file, and it has none yet.</source>
        <translation>Los archivos para el juego se escriben junto al archivo del proyecto, que aún no existe.</translation>
    </message>
    <message>
        <source>&amp;Save Project…</source>
        <translation>&amp;Guardar proyecto…</translation>
    </message>
    <message>
        <source>The recipe of this project cannot be used:
%1</source>
        <translation>La receta de este proyecto no se puede usar:
%1</translation>
    </message>
    <message>
        <source>Mend the file, or start with an empty recipe: the file is then kept as %1.</source>
        <translation>Corrija el archivo o empiece con una receta vacía: el archivo se conservará entonces como %1.</translation>
    </message>
    <message>
        <source>&amp;Start Anew</source>
        <translation>&amp;Empezar de nuevo</translation>
    </message>
    <message>
        <source>Another program changed the recipe of this project:
%1</source>
        <translation>Otro programa modificó la receta de este proyecto:
%1</translation>
    </message>
    <message>
        <source>Saving it from here loses that change.</source>
        <translation>Si se guarda desde aquí, se pierde ese cambio.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Exportar proyecto</translation>
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
        <translation>1 archivo</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln archivo</numerusform>
            <numerusform>%Ln archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 byte</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln byte</numerusform>
            <numerusform>%Ln bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing to export: 1 file is unchanged in %1</source>
        <translation>Nada que exportar: 1 archivo sin cambios en %1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing to export: %Ln files are unchanged in %1</source>
        <translation>
            <numerusform>Nada que exportar: %Ln archivo sin cambios en %1</numerusform>
            <numerusform>Nada que exportar: %Ln archivos sin cambios en %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>Exportado: %1</translation>
    </message>
    <message>
        <source>Exported nothing</source>
        <translation>No se exportó nada</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln unchanged</source>
        <translation>
            <numerusform>%1, %Ln sin cambios</numerusform>
            <numerusform>%1, %Ln sin cambios</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln failed</source>
        <translation>
            <numerusform>%1, %Ln con error</numerusform>
            <numerusform>%1, %Ln con error</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>%1, to %2</source>
        <translation>%1, en %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Detenido: %1</translation>
    </message>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… y %Ln más</numerusform>
            <numerusform>… y %Ln más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExtrasFile</name>
    <message>
        <source>it is no file of at most 16 MiB</source>
        <translation>no es un archivo de 16 MiB como máximo</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>it holds no object</source>
        <translation>no contiene ningún objeto</translation>
    </message>
</context>
<context>
    <name>FileImport</name>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… y %n más</numerusform>
            <numerusform>… y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>The file could not be imported</source>
        <translation>No se pudo importar el archivo</translation>
    </message>
    <message>
        <source>Some files could not be imported</source>
        <translation>No se pudieron importar algunos archivos</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Imported %1: %2</source>
        <translation>Se importó %1: %2</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>&amp;Recientes</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As</source>
        <translation>Guardar &amp;como</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>C&amp;errar</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importar…</translation>
    </message>
    <message>
        <source>Looks at files of any kind, shows what they are, and makes assets of them</source>
        <translation>Examina archivos de cualquier tipo, muestra qué son y los convierte en recursos</translation>
    </message>
    <message>
        <source>&amp;Export Project…</source>
        <translation>E&amp;xportar proyecto…</translation>
    </message>
    <message>
        <source>Export A&amp;gain</source>
        <translation>&amp;Volver a exportar</translation>
    </message>
    <message>
        <source>Shows what the game takes of this project, in which forms and files, and writes it</source>
        <translation>Muestra qué usa el juego de este proyecto, en qué formatos y archivos, y lo escribe</translation>
    </message>
    <message>
        <source>Writes what has changed of the files for the game, without a dialog</source>
        <translation>Escribe lo que ha cambiado de los archivos del juego, sin diálogo</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>&amp;Preferencias</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>Project file (*.quenmora)</source>
        <translation>Archivo de proyecto (*.quenmora)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Files of the Next (*.pal *.npl *.nxp *.nxt *.til *.ch8 *.map *.nxm *.nxb *.spr *.nxi *.sl2 *.slr *.bin)</source>
        <translation>Archivos del Next (*.pal *.npl *.nxp *.nxt *.til *.ch8 *.map *.nxm *.nxb *.spr *.nxi *.sl2 *.slr *.bin)</translation>
    </message>
    <message>
        <source>Sprites of Aseprite (*.aseprite *.ase)</source>
        <translation>Sprites de Aseprite (*.aseprite *.ase)</translation>
    </message>
    <message>
        <source>Palettes (*.gpl *.pal *.act *.hex)</source>
        <translation>Paletas (*.gpl *.pal *.act *.hex)</translation>
    </message>
    <message>
        <source>Pictures (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Imágenes (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Vaciar</translation>
    </message>
    <message>
        <source>Maps and tile sets of Tiled (*.tmx *.tmj *.tsx *.tsj)</source>
        <translation>Mapas y tilesets de Tiled (*.tmx *.tmj *.tsx *.tsj)</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>“%1” has a character that file names cannot have everywhere</source>
        <translation>«%1» tiene un carácter que no se admite en los nombres de archivo de todos los sistemas</translation>
    </message>
    <message>
        <source>“%1” ends in a dot or a space, which Windows takes away</source>
        <translation>«%1» termina en un punto o un espacio, que Windows elimina</translation>
    </message>
    <message>
        <source>Windows takes “%1” for a device</source>
        <translation>Windows toma «%1» por un dispositivo</translation>
    </message>
    <message>
        <source>a name in it is longer than %1 bytes</source>
        <translation>un nombre de la ruta tiene más de %1 bytes</translation>
    </message>
</context>
<context>
    <name>FillCanvasTool</name>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
</context>
<context>
    <name>ForeignChange</name>
    <message>
        <source>File Changed</source>
        <translation>Archivo modificado</translation>
    </message>
    <message>
        <source>Another program changed the file of this project:
%1</source>
        <translation>Otro programa modificó el archivo de este proyecto:
%1</translation>
    </message>
    <message>
        <source>Load File opens it as it is now and drops your unsaved changes.</source>
        <translation>«Cargar archivo» lo abre tal como está ahora y descarta los cambios sin guardar.</translation>
    </message>
    <message>
        <source>Load File opens it as it is now.</source>
        <translation>«Cargar archivo» lo abre tal como está ahora.</translation>
    </message>
    <message>
        <source>Keep Mine keeps the project as it is here; saving then replaces the file.</source>
        <translation>«Conservar el mío» mantiene el proyecto tal como está aquí; al guardar se reemplazará el archivo.</translation>
    </message>
    <message>
        <source>&amp;Load File</source>
        <translation>Ca&amp;rgar archivo</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>Conservar el &amp;mío</translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>the pixels of the file take more than %1</source>
        <translation>los píxeles del archivo ocupan más de %1</translation>
    </message>
    <message>
        <source>the pixels are damaged</source>
        <translation>los píxeles están dañados</translation>
    </message>
    <message>
        <source>Frame %1 has a picture for layer %2 of %3</source>
        <translation>El fotograma %1 tiene una imagen para la capa %2 de %3</translation>
    </message>
    <message>
        <source>Its frames have more than %1 pictures of layers together</source>
        <translation>Los fotogramas tienen en total más de %1 imágenes de capas</translation>
    </message>
    <message>
        <source>%1: there are two pictures</source>
        <translation>%1: hay dos imágenes</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the picture is of an unknown kind, %1</source>
        <translation>la imagen es de un tipo desconocido, %1</translation>
    </message>
    <message>
        <source>the picture is of another kind than the layer</source>
        <translation>la imagen es de un tipo distinto al de la capa</translation>
    </message>
    <message>
        <source>the picture is that of frame %1, which has none or comes later</source>
        <translation>la imagen es la del fotograma %1, que no tiene ninguna o viene después</translation>
    </message>
    <message>
        <source>a tile has %1 bits; only %2 can be read</source>
        <translation>un tile tiene %1 bits; solo se pueden leer %2</translation>
    </message>
    <message>
        <source>the tiles are damaged</source>
        <translation>los tiles están dañados</translation>
    </message>
    <message>
        <source>It has two tile sets of number %1, or more than %2</source>
        <translation>Tiene dos tilesets con el número %1, o más de %2</translation>
    </message>
    <message>
        <source>The tile set “%1” is in another file, and left out</source>
        <translation>El tileset «%1» está en otro archivo y se omite</translation>
    </message>
    <message>
        <source>The tile set “%1” has %2 tiles of %3 × %4 pixels</source>
        <translation>El tileset «%1» tiene %2 tiles de %3 × %4 píxeles</translation>
    </message>
    <message>
        <source>The tile set “%1”: %2</source>
        <translation>El tileset «%1»: %2</translation>
    </message>
    <message>
        <source>The layer “%1” has the tiles of a set that is not there</source>
        <translation>La capa «%1» usa los tiles de un tileset que no existe</translation>
    </message>
    <message>
        <source>The layer “%1” has tile %2 of a set of %3</source>
        <translation>La capa «%1» usa el tile %2 de un tileset de %3</translation>
    </message>
    <message>
        <source>Its layers have more than %1 million pixels in all frames together</source>
        <translation>Las capas tienen más de %1 millones de píxeles entre todos los fotogramas</translation>
    </message>
    <message>
        <source>Frame %1, layer “%2”</source>
        <translation>Fotograma %1, capa «%2»</translation>
    </message>
    <message>
        <source>It is no Aseprite file</source>
        <translation>No es un archivo de Aseprite</translation>
    </message>
    <message>
        <source>It is cut short: it has %1 of %2 bytes</source>
        <translation>Está incompleto: tiene %1 de %2 bytes</translation>
    </message>
    <message>
        <source>It says that a pixel has %1 bits; it can have 8, 16 or 32</source>
        <translation>Indica que un píxel tiene %1 bits; puede tener 8, 16 o 32</translation>
    </message>
    <message>
        <source>It says that it has %1 frames of %2 × %3 pixels</source>
        <translation>Indica que tiene %1 fotogramas de %2 × %3 píxeles</translation>
    </message>
    <message>
        <source>It has %1 frames of %2 × %3 pixels; at most %4 million pixels together can be read</source>
        <translation>Tiene %1 fotogramas de %2 × %3 píxeles; se pueden leer como máximo %4 millones de píxeles en total</translation>
    </message>
    <message>
        <source>Its pixels are not square, but %1 to %2: they become square</source>
        <translation>Los píxeles no son cuadrados, sino de proporción %1 a %2: se convierten en cuadrados</translation>
    </message>
    <message>
        <source>It is cut short: frame %1 of %2 is not there</source>
        <translation>Está incompleto: falta el fotograma %1 de %2</translation>
    </message>
    <message>
        <source>Frame %1 is damaged</source>
        <translation>El fotograma %1 está dañado</translation>
    </message>
    <message>
        <source>Frame %1 is damaged: chunk %2 of %3 has a wrong size</source>
        <translation>El fotograma %1 está dañado: el bloque de datos %2 de %3 tiene un tamaño incorrecto</translation>
    </message>
    <message>
        <source>Frame %1 is damaged: chunk %2 of %3 is cut short</source>
        <translation>El fotograma %1 está dañado: el bloque de datos %2 de %3 está incompleto</translation>
    </message>
    <message>
        <source>Its slices are left out</source>
        <translation>Los slices se omiten</translation>
    </message>
    <message>
        <source>It has more than %1 layers</source>
        <translation>Tiene más de %1 capas</translation>
    </message>
    <message>
        <source>The reference layer “%1” is left out</source>
        <translation>La capa de referencia «%1» se omite</translation>
    </message>
    <message>
        <source>The layer “%1” mixes its colours with those beneath: it is drawn as others are</source>
        <translation>La capa «%1» mezcla sus colores con los de debajo: se dibuja como las demás</translation>
    </message>
    <message>
        <source>The group “%1” is partly clear: that is done to each of its layers</source>
        <translation>El grupo «%1» es semitransparente: la transparencia se aplica a cada una de sus capas</translation>
    </message>
    <message>
        <source>The palette changes after frame %1, whose colours are taken</source>
        <translation>La paleta cambia después del fotograma %1, cuyos colores se usan</translation>
    </message>
    <message>
        <source>Frame %1 has more than %2 palettes</source>
        <translation>El fotograma %1 tiene más de %2 paletas</translation>
    </message>
    <message>
        <source>Its palette has %1 colours; at most %2 can be read</source>
        <translation>La paleta tiene %1 colores; se pueden leer como máximo %2</translation>
    </message>
    <message>
        <source>Its palette has %1 colours, of which it gives %2 to %3</source>
        <translation>La paleta tiene %1 colores, de los que define del %2 al %3</translation>
    </message>
    <message>
        <source>It has more than %1 tags</source>
        <translation>Tiene más de %1 etiquetas</translation>
    </message>
    <message>
        <source>The tag “%1” is left out: it names frames %2 to %3 of %4</source>
        <translation>La etiqueta «%1» se omite: abarca los fotogramas %2 a %3 de %4</translation>
    </message>
    <message>
        <source>”, “</source>
        <translation>», «</translation>
    </message>
    <message numerus="yes">
        <source>%n layers are hidden and left out, “%1” among them</source>
        <translation>
            <numerusform>%n capa está oculta y se omite, «%1»</numerusform>
            <numerusform>%n capas están ocultas y se omiten, entre ellas «%1»</numerusform>
        </translation>
    </message>
    <message>
        <source>Hidden layers are left out: “%1”</source>
        <translation>Las capas ocultas se omiten: «%1»</translation>
    </message>
    <message>
        <source>Its pixels are numbers of colours, and it has no palette</source>
        <translation>Los píxeles son números de color y no hay paleta</translation>
    </message>
    <message>
        <source>It has pixels of colour %1, and its palette has %2 colours: they are black</source>
        <translation>Tiene píxeles del color %1 y la paleta tiene %2 colores: serán negros</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>It has no colours</source>
        <translation>No tiene colores</translation>
    </message>
    <message>
        <source>“%1” is no colour, which is %2 numbers from 0 to 255</source>
        <translation>«%1» no es un color, que son %2 números de 0 a 255</translation>
    </message>
    <message>
        <source>“%1” stands where “%2” does</source>
        <translation>«%1» está donde debería estar «%2»</translation>
    </message>
    <message>
        <source>“%1” is no number of colours</source>
        <translation>«%1» no es un número de colores</translation>
    </message>
    <message>
        <source>It says that it has %1 colours, and has %2</source>
        <translation>Dice que tiene %1 colores y tiene %2</translation>
    </message>
    <message>
        <source>“%1” is no colour of six hexadecimal digits</source>
        <translation>«%1» no es un color de seis dígitos hexadecimales</translation>
    </message>
    <message>
        <source>It says that it has %1 colours; there is room for %2</source>
        <translation>Dice que tiene %1 colores; hay sitio para %2</translation>
    </message>
    <message>
        <source>Its transparent index is %1, and it has %2 colours</source>
        <translation>Su índice transparente es %1 y tiene %2 colores</translation>
    </message>
    <message>
        <source>It has %1; at most %2 can be read</source>
        <translation>Ocupa %1; se puede leer como máximo %2</translation>
    </message>
    <message>
        <source>It is no palette of the forms .gpl, .pal (JASC), .hex or .act</source>
        <translation>No es una paleta en formato .gpl, .pal (JASC), .hex o .act</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>There is more of this kind</source>
        <translation>Hay más avisos de este tipo</translation>
    </message>
    <message>
        <source>It is not there, or may not be read</source>
        <translation>No existe o no se permite leerlo</translation>
    </message>
    <message>
        <source>It could not be read: %1</source>
        <translation>No se pudo leer: %1</translation>
    </message>
    <message>
        <source>its cells are written as “%1”, which cannot be read</source>
        <translation>sus celdas están escritas como «%1», que no se puede leer</translation>
    </message>
    <message>
        <source>its cells are packed as “%1”, which cannot be read</source>
        <translation>sus celdas están comprimidas como «%1», que no se puede leer</translation>
    </message>
    <message>
        <source>cell %1 is no number of a tile</source>
        <translation>la celda %1 no es un número de tile</translation>
    </message>
    <message>
        <source>it has more than %1 cells</source>
        <translation>tiene más de %1 celdas</translation>
    </message>
    <message>
        <source>“%1” is among the numbers of its cells</source>
        <translation>«%1» figura entre los números de sus celdas</translation>
    </message>
    <message>
        <source>it has %1 of %2 cells</source>
        <translation>tiene %1 de %2 celdas</translation>
    </message>
    <message>
        <source>its cells are damaged, or not %1</source>
        <translation>sus celdas están dañadas, o no son %1</translation>
    </message>
    <message>
        <source>Two tile sets begin with number %1</source>
        <translation>Dos tilesets empiezan por el número %1</translation>
    </message>
    <message>
        <source>The tile set “%1” has animations of tiles that are not there</source>
        <translation>El tileset «%1» tiene animaciones de tiles que no existen</translation>
    </message>
    <message>
        <source>The tile set “%1” says no size of its tiles</source>
        <translation>El tileset «%1» no indica el tamaño de sus tiles</translation>
    </message>
    <message>
        <source>The picture of the tile set “%1” has %2 of its %3 tiles</source>
        <translation>La imagen del tileset «%1» tiene %2 de sus %3 tiles</translation>
    </message>
    <message>
        <source>The layer “%1” is partly clear: it becomes opaque</source>
        <translation>La capa «%1» es semitransparente: pasa a ser opaca</translation>
    </message>
    <message>
        <source>The layer “%1” is moved by parts of cells: it goes to the nearest</source>
        <translation>La capa «%1» está desplazada una fracción de celda: se ajusta a la celda más próxima</translation>
    </message>
    <message numerus="yes">
        <source>What shines through clear pixels of tiles above is lost, in %n cells</source>
        <translation>
            <numerusform>Lo que se ve a través de los píxeles transparentes de los tiles de encima se pierde, en %n celda</numerusform>
            <numerusform>Lo que se ve a través de los píxeles transparentes de los tiles de encima se pierde, en %n celdas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells have numbers that no tile set has: they become empty</source>
        <translation>
            <numerusform>%n celda tiene un número que ningún tileset tiene: queda vacía</numerusform>
            <numerusform>%n celdas tienen números que ningún tileset tiene: quedan vacías</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells of layers lie beyond the map: they are lost</source>
        <translation>
            <numerusform>%n celda de capas está fuera del mapa: se pierde</numerusform>
            <numerusform>%n celdas de capas están fuera del mapa: se pierden</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is not in the file&apos;s folder</source>
        <translation>«%1» no está en la carpeta del archivo</translation>
    </message>
    <message>
        <source>“%1” is not there</source>
        <translation>«%1» no existe</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message>
        <source>the pictures have more than %1 million pixels together</source>
        <translation>las imágenes tienen en total más de %1 millones de píxeles</translation>
    </message>
    <message>
        <source>it is no picture that can be read</source>
        <translation>no es una imagen que se pueda leer</translation>
    </message>
    <message>
        <source>It has more than %1 million numbers; with cells written as Base64 it has fewer</source>
        <translation>Tiene más de %1 millones de números; con las celdas escritas en Base64 tiene menos</translation>
    </message>
    <message>
        <source>It has more than %1 lists and objects</source>
        <translation>Tiene más de %1 listas y objetos</translation>
    </message>
    <message>
        <source>Byte %1: %2</source>
        <translation>Byte %1: %2</translation>
    </message>
    <message>
        <source>there are too many groups in each other</source>
        <translation>hay demasiados grupos anidados</translation>
    </message>
    <message>
        <source>“%1” is “%2”, and can be %3 to %4</source>
        <translation>«%1» es «%2», y puede ser de %3 a %4</translation>
    </message>
    <message>
        <source>“%1” is “%2”, which is no number that it can be</source>
        <translation>«%1» es «%2», que no es un número admitido</translation>
    </message>
    <message>
        <source>It is a map of the kind “%1”; only “orthogonal” ones can be read</source>
        <translation>Es un mapa de tipo «%1»; solo se pueden leer los de tipo «orthogonal»</translation>
    </message>
    <message>
        <source>It says no width and height</source>
        <translation>No indica la anchura ni la altura</translation>
    </message>
    <message>
        <source>It has %1 × %2 cells; at most %3 million can be read</source>
        <translation>Tiene %1 × %2 celdas; se pueden leer como máximo %3 millones</translation>
    </message>
    <message>
        <source>Its layers have more than %1 million cells together</source>
        <translation>Las capas tienen en total más de %1 millones de celdas</translation>
    </message>
    <message>
        <source>The layer “%1”: %2</source>
        <translation>La capa «%1»: %2</translation>
    </message>
    <message>
        <source>The image layer “%1” is left out</source>
        <translation>La capa de imagen «%1» se omite</translation>
    </message>
    <message>
        <source>Objects made from templates lack what their template says</source>
        <translation>A los objetos creados con plantillas les falta lo que indica su plantilla</translation>
    </message>
    <message>
        <source>It has more than %1 objects</source>
        <translation>Tiene más de %1 objetos</translation>
    </message>
    <message>
        <source>Its objects have more than %1 properties</source>
        <translation>Los objetos tienen más de %1 propiedades</translation>
    </message>
    <message>
        <source>It has more than %1 tile sets</source>
        <translation>Tiene más de %1 tilesets</translation>
    </message>
    <message>
        <source>Pictures inside the file cannot be read</source>
        <translation>Las imágenes incluidas en el archivo no se pueden leer</translation>
    </message>
    <message>
        <source>Its tile sets have more than %1 pictures</source>
        <translation>Los tilesets tienen más de %1 imágenes</translation>
    </message>
    <message>
        <source>Its animations have more than %1 frames</source>
        <translation>Las animaciones tienen más de %1 fotogramas</translation>
    </message>
    <message>
        <source>It is no XML in UTF-8</source>
        <translation>No es XML en UTF-8</translation>
    </message>
    <message>
        <source>It declares elements or entities of its own</source>
        <translation>Declara elementos o entidades propios</translation>
    </message>
    <message>
        <source>An element has more than %1 attributes</source>
        <translation>Un elemento tiene más de %1 atributos</translation>
    </message>
    <message>
        <source>there is no element</source>
        <translation>no hay ningún elemento</translation>
    </message>
    <message>
        <source>there are too many elements in each other</source>
        <translation>hay demasiados elementos anidados</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Create a backup when saving</source>
        <translation>Crear una copia de seguridad al guardar</translation>
    </message>
    <message>
        <source>Check for updates on startup</source>
        <translation>Buscar actualizaciones al iniciar</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Cada día</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Cada semana</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Cada mes</translation>
    </message>
    <message>
        <source>General Settings</source>
        <translation>Ajustes generales</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Check frequency</source>
        <translation>Frecuencia de búsqueda</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>The guide is not installed</source>
        <translation>La guía no está instalada</translation>
    </message>
    <message>
        <source>It comes with Quenmora&apos;s package.</source>
        <translation>Viene con el paquete de Quenmora.</translation>
    </message>
    <message>
        <source>No program was found that shows the guide</source>
        <translation>No se encontró ningún programa que muestre la guía</translation>
    </message>
    <message>
        <source>It is in this file: %1</source>
        <translation>Está en este archivo: %1</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>&amp;Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>Command &amp;Palette…</source>
        <translation>&amp;Paleta de órdenes…</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts…</source>
        <translation>Atajos de &amp;teclado…</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guía</translation>
    </message>
    <message>
        <source>Opens the guide in your browser, at the page about what you work on</source>
        <translation>Abre la guía en su navegador, en la página sobre lo que está haciendo</translation>
    </message>
    <message>
        <source>&amp;Sample Project</source>
        <translation>Proyecto de &amp;ejemplo</translation>
    </message>
    <message>
        <source>Opens a small game to look at and to play with; saving makes a copy of your own</source>
        <translation>Abre un pequeño juego para mirar y probar; al guardarlo se crea una copia propia</translation>
    </message>
</context>
<context>
    <name>ImageDialog</name>
    <message>
        <source>New Image</source>
        <translation>Imagen nueva</translation>
    </message>
    <message>
        <source>Create a new image</source>
        <translation>Crear una imagen</translation>
    </message>
    <message>
        <source>256x192 256 colours</source>
        <translation>256x192, 256 colores</translation>
    </message>
    <message>
        <source>320x256 256 colours</source>
        <translation>320x256, 256 colores</translation>
    </message>
    <message>
        <source>640x256 16 colours</source>
        <translation>640x256, 16 colores</translation>
    </message>
    <message>
        <source>128x96 256 colours</source>
        <translation>128x96, 256 colores</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Modo</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>An image needs a palette; please create a palette first</source>
        <translation>Una imagen necesita una paleta; cree primero una paleta</translation>
    </message>
</context>
<context>
    <name>ImageEditor::ImportDialog</name>
    <message>
        <source>Import Image</source>
        <translation>Importar imagen</translation>
    </message>
    <message>
        <source>Scale to fill the image</source>
        <translation>Escalar hasta llenar la imagen</translation>
    </message>
    <message>
        <source>Keep the machine&apos;s colours</source>
        <translation>Conservar los colores de la máquina</translation>
    </message>
    <message>
        <source>Keep transparent pixels</source>
        <translation>Conservar los píxeles transparentes</translation>
    </message>
    <message>
        <source>New palette of the picture&apos;s colours</source>
        <translation>Paleta nueva con los colores de la imagen</translation>
    </message>
    <message>
        <source>Import a picture</source>
        <translation>Importar una imagen</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has: those that the palette has stay exactly that, and scaling mixes no new ones</source>
        <translation>Cada color de la imagen es uno de los que tiene el Next: los que están en la paleta se conservan exactamente, y al escalar no se mezclan colores nuevos</translation>
    </message>
    <message>
        <source>They get the transparent entry of the palette, and no colour does</source>
        <translation>Reciben la entrada transparente de la paleta, que no se asigna a ningún color</translation>
    </message>
    <message>
        <source>The image is shown with it from now on; the palette that it had stays as it is</source>
        <translation>A partir de ahora la imagen se muestra con ella; la paleta que tenía queda como está</translation>
    </message>
    <message>
        <source>&amp;Fewer colours</source>
        <translation>&amp;Reducir colores</translation>
    </message>
    <message>
        <source>Picture %1 × %2, image %3 × %4</source>
        <translation>Origen %1 × %2, imagen %3 × %4</translation>
    </message>
    <message>
        <source>The picture cannot be used</source>
        <translation>La imagen no se puede usar</translation>
    </message>
</context>
<context>
    <name>ImageEditor::View</name>
    <message>
        <source>Swap Palette</source>
        <translation>Cambiar paleta</translation>
    </message>
    <message>
        <source>Import Image</source>
        <translation>Importar imagen</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Imágenes (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>Export Image</source>
        <translation>Exportar imagen</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg *.bmp)</source>
        <translation>Imágenes (*.png *.xpm *.jpg *.bmp)</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Hubo un problema al exportar los datos</translation>
    </message>
    <message>
        <source>Pictures are written as .png, .xpm, .jpg or .bmp files</source>
        <translation>Las imágenes se escriben como archivos .png, .xpm, .jpg o .bmp</translation>
    </message>
    <message>
        <source>Scratch Image</source>
        <translation>Imagen borrador</translation>
    </message>
    <message>
        <source>Paint here, or bring in a picture with Open among the tools</source>
        <translation>Pinte aquí o traiga una imagen con «Abrir», entre las herramientas</translation>
    </message>
</context>
<context>
    <name>ImageMenu</name>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Imagen</translation>
    </message>
    <message>
        <source>&amp;New Image</source>
        <translation>&amp;Nueva imagen</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>Cambiar &amp;paleta</translation>
    </message>
</context>
<context>
    <name>ImportAgain</name>
    <message>
        <source>The image has no palette any more</source>
        <translation>La imagen ya no tiene paleta</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Volver a importar</translation>
    </message>
    <message>
        <source>%1 is up to date</source>
        <translation>%1 está al día</translation>
    </message>
    <message>
        <source>The file is neither a palette nor a picture that can be read</source>
        <translation>El archivo no es una paleta ni una imagen que se pueda leer</translation>
    </message>
    <message>
        <source>Such a file makes new assets, and cannot go into those that are there</source>
        <translation>Un archivo así crea recursos nuevos y no puede ir a los que ya existen</translation>
    </message>
    <message>
        <source>%1 was imported again</source>
        <translation>%1 se volvió a importar</translation>
    </message>
    <message>
        <source>What was made of it is not there any more</source>
        <translation>Lo que se creó a partir de él ya no existe</translation>
    </message>
    <message>
        <source>The file is not there any more:
%1</source>
        <translation>El archivo ya no existe:
%1</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importando %1…</translation>
    </message>
    <message>
        <source>%1 is up to date; new tiles: %2</source>
        <translation>%1 está al día; tiles nuevos: %2</translation>
    </message>
    <message>
        <source>; pixels that took the nearest colour: %1</source>
        <translation>; píxeles que tomaron el color más próximo: %1</translation>
    </message>
    <message>
        <source>The map has no tiles or no palette any more</source>
        <translation>El mapa ya no tiene tiles o paleta</translation>
    </message>
    <message numerus="yes">
        <source>The picture needs %n more tiles, and the tile set has room for %1</source>
        <translation>
            <numerusform>La imagen necesita %n tile más y en el tileset caben %1</numerusform>
            <numerusform>La imagen necesita %n tiles más y en el tileset caben %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Resize Map</source>
        <translation>Redimensionar mapa</translation>
    </message>
    <message>
        <source>The sprites have no palette any more</source>
        <translation>Los sprites ya no tienen paleta</translation>
    </message>
    <message>
        <source>The picture is smaller than a sprite, which has 16 × 16 pixels</source>
        <translation>La imagen es más pequeña que un sprite, que tiene 16 × 16 píxeles</translation>
    </message>
    <message>
        <source>The picture holds more sprites than fit into a bank</source>
        <translation>La imagen contiene más sprites de los que caben en un banco</translation>
    </message>
    <message>
        <source>%1 is up to date; sprites that are new: %2</source>
        <translation>%1 está al día; sprites nuevos: %2</translation>
    </message>
    <message>
        <source>The map is too large to be brought up to date</source>
        <translation>El mapa es demasiado grande para ponerlo al día</translation>
    </message>
</context>
<context>
    <name>ImportFileDialog</name>
    <message>
        <source>New palette</source>
        <translation>Paleta nueva</translation>
    </message>
    <message>
        <source>New tile set</source>
        <translation>Tileset nuevo</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>Mapa nuevo</translation>
    </message>
    <message>
        <source>New sprites</source>
        <translation>Sprites nuevos</translation>
    </message>
    <message>
        <source>New map objects</source>
        <translation>Objetos de mapa nuevos</translation>
    </message>
    <message>
        <source>New image</source>
        <translation>Imagen nueva</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… y %n más</numerusform>
            <numerusform>… y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>What the file is; first what it most probably is</source>
        <translation>Qué es el archivo; primero, lo más probable</translation>
    </message>
    <message>
        <source>A new asset, or one of the project that takes it in, as one undo step</source>
        <translation>Un recurso nuevo, o uno del proyecto que lo recibe como un solo paso de deshacer</translation>
    </message>
    <message>
        <source>The number from which on those that are there are replaced, counted from 0</source>
        <translation>El número a partir del cual se reemplazan los existentes, contando desde 0</translation>
    </message>
    <message>
        <source>Behind those that are there</source>
        <translation>Detrás de los existentes</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Tipo</translation>
    </message>
    <message>
        <source>In&amp;to</source>
        <translation>&amp;Destino</translation>
    </message>
    <message>
        <source>&amp;From number</source>
        <translation>Desde el nú&amp;mero</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>Ti&amp;le set</source>
        <translation>Ti&amp;leset</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Omitir</translation>
    </message>
    <message>
        <source>Leaves this file out and goes on with the next one</source>
        <translation>Omite este archivo y continúa con el siguiente</translation>
    </message>
    <message>
        <source>Import (%1 of %2)</source>
        <translation>Importar (%1 de %2)</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln bytes</source>
        <translation>
            <numerusform>%1, %Ln byte</numerusform>
            <numerusform>%1, %Ln bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>New tile set of blank tiles</source>
        <translation>Tileset nuevo de tiles vacíos</translation>
    </message>
    <message>
        <source>New palette of its own colours</source>
        <translation>Paleta nueva con sus propios colores</translation>
    </message>
    <message>
        <source>New palette of the standard colours</source>
        <translation>Paleta nueva con los colores estándar</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>C&amp;ontinue…</source>
        <translation>&amp;Continuar…</translation>
    </message>
    <message>
        <source>What is asked next depends on the picture</source>
        <translation>Lo que se pregunta después depende de la imagen</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Leyendo %1…</translation>
    </message>
    <message>
        <source>The project was closed meanwhile</source>
        <translation>El proyecto se cerró entretanto</translation>
    </message>
    <message>
        <source>There is nothing in the project into which it could go</source>
        <translation>En el proyecto no hay ningún recurso que pueda recibirlo</translation>
    </message>
</context>
<context>
    <name>ImportKeeper</name>
    <message>
        <source>The file could not be imported again</source>
        <translation>No se pudo volver a importar el archivo</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Volver a importar</translation>
    </message>
</context>
<context>
    <name>ImportNotice</name>
    <message>
        <source>Import Again</source>
        <translation>Volver a importar</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>%1 changed since it was imported</source>
        <translation>%1 ha cambiado desde que se importó</translation>
    </message>
    <message numerus="yes">
        <source>%n files changed since they were imported</source>
        <translation>
            <numerusform>%n archivo ha cambiado desde que se importó</numerusform>
            <numerusform>%n archivos han cambiado desde que se importaron</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportPictureDialog</name>
    <message>
        <source>Import Picture</source>
        <translation>Importar imagen</translation>
    </message>
    <message>
        <source>&amp;Keep the machine&apos;s colours</source>
        <translation>&amp;Conservar los colores de la máquina</translation>
    </message>
    <message>
        <source>Keep &amp;transparent pixels</source>
        <translation>Conservar los píxeles &amp;transparentes</translation>
    </message>
    <message>
        <source>&amp;Find colours and tiles for the whole picture</source>
        <translation>&amp;Buscar colores y tiles para toda la imagen</translation>
    </message>
    <message>
        <source>Make tiles and a map of a picture</source>
        <translation>Crear tiles y un mapa a partir de una imagen</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has, and stays exactly that</source>
        <translation>Cada color de la imagen es uno de los que tiene el Next y se conserva exactamente</translation>
    </message>
    <message>
        <source>They get index %1 of their tiles, which the map does not draw</source>
        <translation>Reciben el índice %1 de sus tiles, que el mapa no dibuja</translation>
    </message>
    <message>
        <source>Groups of 16 colours that suit all tiles as well as they can, and at most %1 tiles; else tiles are served as they come, and who comes last gets what is left</source>
        <translation>Grupos de 16 colores que se ajustan lo mejor posible a todos los tiles, y como máximo %1 tiles; si no, los tiles se atienden por orden de llegada y los últimos reciben lo que queda</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Ordered pattern</source>
        <translation>Patrón ordenado</translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation>Difusión de errores</translation>
    </message>
    <message>
        <source>&amp;Dithering</source>
        <translation>Tra&amp;mado</translation>
    </message>
    <message>
        <source>Reducing %1…</source>
        <translation>Reduciendo %1…</translation>
    </message>
    <message>
        <source>Tiles: %1
Tiles that lose colours: %2</source>
        <translation>Tiles: %1
Tiles que pierden colores: %2</translation>
    </message>
    <message>
        <source>Tiles: %1, for %2 different ones
Colours: %3, for %4 of the picture; groups: %5</source>
        <translation>Tiles: %1, para %2 distintos
Colores: %3, para %4 de la imagen; grupos: %5</translation>
    </message>
    <message>
        <source>Nothing is lost</source>
        <translation>No se pierde nada</translation>
    </message>
    <message>
        <source>Nothing is lost but shades between the colours that the machine has</source>
        <translation>Solo se pierden matices entre los colores que tiene la máquina</translation>
    </message>
    <message>
        <source>Of %1 cells, %2 lose colours and %3 show a tile that is like theirs</source>
        <translation>De %1 celdas, %2 pierden colores y %3 muestran un tile parecido al suyo</translation>
    </message>
    <message>
        <source>; mean error: %1 levels</source>
        <translation>; error medio: %1 niveles</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n different tiles, and a tile set has room for %1</source>
        <translation>
            <numerusform>La imagen tiene %n tile distinto y en un tileset caben %1</numerusform>
            <numerusform>La imagen tiene %n tiles distintos y en un tileset caben %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportZXFontDialog</name>
    <message>
        <source>Import Spectrum Characters</source>
        <translation>Importar caracteres de Spectrum</translation>
    </message>
    <message>
        <source>Import a ZX Spectrum font into tiles</source>
        <translation>Importar una fuente de ZX Spectrum como tiles</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Examinar…</translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation>A&amp;rchivo</translation>
    </message>
    <message>
        <source>&amp;First tile</source>
        <translation>&amp;Primer tile</translation>
    </message>
    <message>
        <source>Palette &amp;offset</source>
        <translation>&amp;Offset de paleta</translation>
    </message>
    <message>
        <source>I&amp;nk</source>
        <translation>&amp;Tinta</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>Pape&amp;l</translation>
    </message>
    <message>
        <source>Fonts (*.bin *.raw *.ch8)</source>
        <translation>Fuentes (*.bin *.raw *.ch8)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>No characters</source>
        <translation>Sin caracteres</translation>
    </message>
    <message>
        <source>Characters: %1, in tiles %2 to %3</source>
        <translation>Caracteres: %1, en los tiles %2 a %3</translation>
    </message>
    <message>
        <source>The tile set has no palette to take colours from</source>
        <translation>El tileset no tiene una paleta de la que tomar los colores</translation>
    </message>
    <message>
        <source>Please choose a font file</source>
        <translation>Elija un archivo de fuente</translation>
    </message>
    <message>
        <source>There is no character in this file, or it cannot be read</source>
        <translation>No hay ningún carácter en este archivo, o no se puede leer</translation>
    </message>
</context>
<context>
    <name>Importing</name>
    <message>
        <source>%1 (sprites)</source>
        <translation>%1 (sprites)</translation>
    </message>
    <message>
        <source>Import Map</source>
        <translation>Importar mapa</translation>
    </message>
    <message>
        <source>Import Tiles</source>
        <translation>Importar tiles</translation>
    </message>
    <message>
        <source>Import Sprites</source>
        <translation>Importar sprites</translation>
    </message>
    <message>
        <source>There is no number %1; the last one is %2</source>
        <translation>No existe el número %1; el último es %2</translation>
    </message>
    <message>
        <source>There is room for %1, and %2 come in</source>
        <translation>Solo caben %1 y llegan %2</translation>
    </message>
    <message>
        <source>“%1” has %2 tiles, and the first number is for tile %3 (counted from 0)</source>
        <translation>«%1» tiene %2 tiles y el primer número es para el tile %3 (contando desde 0)</translation>
    </message>
    <message>
        <source>The sprites have indices above 15, and “%1” is a bank of 4 bits</source>
        <translation>Los sprites tienen índices mayores que 15 y «%1» es un banco de 4 bits</translation>
    </message>
    <message>
        <source>The asset into which it goes is not there any more, or is of another kind</source>
        <translation>El recurso de destino ya no existe o es de otro tipo</translation>
    </message>
    <message>
        <source>Choose the tile set whose tiles these are for</source>
        <translation>Elija el tileset a cuyos tiles corresponden</translation>
    </message>
    <message>
        <source>Please enter a name</source>
        <translation>Indique un nombre</translation>
    </message>
    <message>
        <source>Import Animations</source>
        <translation>Importar animaciones</translation>
    </message>
    <message>
        <source>Animation %1</source>
        <translation>Animación %1</translation>
    </message>
    <message>
        <source>“%1”: frames have times of their own, and get the mean of them</source>
        <translation>«%1»: los fotogramas tienen duraciones propias y reciben la media</translation>
    </message>
    <message>
        <source>“%1” is repeated for ever</source>
        <translation>«%1» se repite indefinidamente</translation>
    </message>
    <message numerus="yes">
        <source>The frames make %n sprites, which is more than there is room for</source>
        <translation>
            <numerusform>Los fotogramas generan %n sprite, más de los que caben</numerusform>
            <numerusform>Los fotogramas generan %n sprites, más de los que caben</numerusform>
        </translation>
    </message>
    <message>
        <source>Sprites alone go into a bank that is there; the animations are left out</source>
        <translation>En un banco existente solo entran los sprites; las animaciones se omiten</translation>
    </message>
    <message>
        <source>The frames have %1 pixels, and tiles are made of at most %2</source>
        <translation>Los fotogramas tienen %1 píxeles y para hacer tiles se admiten como máximo %2</translation>
    </message>
    <message>
        <source>Frames that are left out: %1</source>
        <translation>Fotogramas omitidos: %1</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profundidad</translation>
    </message>
    <message>
        <source>How many colours the sprites have</source>
        <translation>Cuántos colores tienen los sprites</translation>
    </message>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bits, 256 colores</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bits, 16 colores</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Fotogramas</translation>
    </message>
    <message>
        <source>Which frames become tiles</source>
        <translation>Qué fotogramas se convierten en tiles</translation>
    </message>
    <message>
        <source>The first one, with a map</source>
        <translation>El primero, con un mapa</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Aseprite file, for sprites with animations</source>
        <translation>Archivo de Aseprite, para sprites con animaciones</translation>
    </message>
    <message>
        <source>Aseprite file, for tiles</source>
        <translation>Archivo de Aseprite, para tiles</translation>
    </message>
    <message>
        <source>Aseprite file, for an image</source>
        <translation>Archivo de Aseprite, para una imagen</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 está vacío</translation>
    </message>
    <message>
        <source>“%1” is no kind of file that is read here</source>
        <translation>«%1» no es un tipo de archivo que se pueda leer aquí</translation>
    </message>
    <message>
        <source>The file has a +3DOS header, which is skipped</source>
        <translation>El archivo tiene una cabecera +3DOS, que se omite</translation>
    </message>
    <message>
        <source>The smallest that holds the picture</source>
        <translation>El menor en el que cabe la imagen</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>The mode of the image</source>
        <translation>El modo de la imagen</translation>
    </message>
    <message>
        <source>The picture has %1 × %2 pixels, and what does not fit is cut off</source>
        <translation>La imagen tiene %1 × %2 píxeles; lo que no cabe se recorta</translation>
    </message>
    <message>
        <source>Import Palette</source>
        <translation>Importar paleta</translation>
    </message>
    <message>
        <source>Colours that the Next does not have, and that become the nearest ones: %1 of %2</source>
        <translation>Colores que el Next no tiene y que pasan al más próximo: %1 de %2</translation>
    </message>
    <message>
        <source>Colours for which there is no room: %1</source>
        <translation>Colores que no caben: %1</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>Tramado</translation>
    </message>
    <message>
        <source>How colours are shown for which there is no room</source>
        <translation>Cómo se muestran los colores que no caben</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Ordered pattern</source>
        <translation>Patrón ordenado</translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation>Difusión de errores</translation>
    </message>
    <message>
        <source>Palette of another program</source>
        <translation>Paleta de otro programa</translation>
    </message>
    <message>
        <source>First entry</source>
        <translation>Primera entrada</translation>
    </message>
    <message>
        <source>The entry that the first colour becomes</source>
        <translation>La entrada que ocupa el primer color</translation>
    </message>
    <message>
        <source>Scale to that size</source>
        <translation>Escalar a ese tamaño</translation>
    </message>
    <message>
        <source>Makes the picture as large as the image</source>
        <translation>Escala la imagen importada al tamaño de la de destino</translation>
    </message>
    <message>
        <source>Picture, for tiles and a map</source>
        <translation>Imagen, para tiles y un mapa</translation>
    </message>
    <message>
        <source>Picture, for sprites</source>
        <translation>Imagen, para sprites</translation>
    </message>
    <message>
        <source>Picture, for an image</source>
        <translation>Imagen, para una imagen del Next</translation>
    </message>
    <message>
        <source>Picture, for its colours</source>
        <translation>Imagen, para sus colores</translation>
    </message>
    <message>
        <source>Palette, tiles, blocks and map of one name</source>
        <translation>Paleta, tiles, bloques y mapa con el mismo nombre</translation>
    </message>
    <message>
        <source>Cells: %1 × %2, which show %3 different tiles</source>
        <translation>Celdas: %1 × %2, que muestran %3 tiles distintos</translation>
    </message>
    <message>
        <source>Placed sprites: %1</source>
        <translation>Sprites colocados: %1</translation>
    </message>
    <message>
        <source>Tiles: %1</source>
        <translation>Tiles: %1</translation>
    </message>
    <message>
        <source>Animations of tiles: %1</source>
        <translation>Animaciones de tiles: %1</translation>
    </message>
    <message>
        <source>Numbers: %1</source>
        <translation>Números: %1</translation>
    </message>
    <message>
        <source>Sprites: %1</source>
        <translation>Sprites: %1</translation>
    </message>
    <message>
        <source>Animations: %1</source>
        <translation>Animaciones: %1</translation>
    </message>
    <message>
        <source>Pixels: %1 × %2</source>
        <translation>Píxeles: %1 × %2</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>Colores: %1</translation>
    </message>
    <message>
        <source>Tile %1 (counted from 0) has pixels of several palette offsets, and a tile has one</source>
        <translation>El tile %1 (contando desde 0) tiene píxeles de varios offsets de paleta, y un tile tiene uno</translation>
    </message>
    <message>
        <source>Tiles that lose colours, since theirs are of several palette offsets: %1 of %2</source>
        <translation>Tiles que pierden colores porque los suyos son de varios offsets de paleta: %1 de %2</translation>
    </message>
    <message>
        <source>The file has %1 bytes, which is too much for this</source>
        <translation>El archivo tiene %1 bytes, demasiados para esto</translation>
    </message>
    <message>
        <source>Several offsets</source>
        <translation>Varios offsets</translation>
    </message>
    <message>
        <source>What becomes of tiles whose pixels are of several palette offsets, which a tile map cannot show</source>
        <translation>Qué se hace con los tiles cuyos píxeles son de varios offsets de paleta, que un mapa de tiles no puede mostrar</translation>
    </message>
    <message>
        <source>The colours of the best one</source>
        <translation>Los colores del mejor</translation>
    </message>
    <message>
        <source>Nothing is imported</source>
        <translation>No se importa nada</translation>
    </message>
    <message>
        <source>Of %1 pieces of 8 × 8 pixels, %2 lose colours and %3 get a tile that is like theirs; mean error: %4 levels</source>
        <translation>De %1 piezas de 8 × 8 píxeles, %2 pierden colores y %3 reciben un tile parecido al suyo; error medio: %4 niveles</translation>
    </message>
    <message>
        <source>Colours: %1, which %2 stand for; mean error: %3 levels</source>
        <translation>Colores: %1, representados por %2; error medio: %3 niveles</translation>
    </message>
    <message>
        <source>Colours that the Next does not have become the nearest ones</source>
        <translation>Los colores que el Next no tiene pasan al más próximo</translation>
    </message>
    <message>
        <source>Tiles that are not as large as the cells, and are cut or filled: %1</source>
        <translation>Tiles que no tienen el tamaño de las celdas y se recortan o rellenan: %1</translation>
    </message>
    <message>
        <source>Cells whose animations are left out, since there are more than %1: %2</source>
        <translation>Celdas cuyas animaciones se omiten porque hay más de %1: %2</translation>
    </message>
    <message>
        <source>Animations whose frames have times of their own, and get the mean: %1</source>
        <translation>Animaciones cuyos fotogramas tienen duraciones propias y reciben la media: %1</translation>
    </message>
    <message>
        <source>Objects that are no sprites, turned, scaled, hidden or too large, and are left out: %1</source>
        <translation>Objetos que no son sprites, o están girados, escalados, ocultos o son demasiado grandes, y se omiten: %1</translation>
    </message>
    <message>
        <source>The cells of the map have %1 × %2 pixels, and tiles of the Next 8 × 8: only multiples of that can be cut</source>
        <translation>Las celdas del mapa tienen %1 × %2 píxeles y los tiles del Next 8 × 8: solo se pueden cortar múltiplos de ese tamaño</translation>
    </message>
    <message>
        <source>The map has no cells</source>
        <translation>El mapa no tiene celdas</translation>
    </message>
    <message>
        <source>That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most</source>
        <translation>El resultado sería un mapa de %1 × %2 celdas; el máximo es %3 por lado y %4 en total</translation>
    </message>
    <message>
        <source>The map shows too many different tiles: of %1 × %2 pixels, %3 are the most</source>
        <translation>El mapa muestra demasiados tiles distintos: de %1 × %2 píxeles, el máximo es %3</translation>
    </message>
    <message>
        <source>Files that are left alone because they are not below the map&apos;s folder: %1</source>
        <translation>Archivos que no se leen porque no están dentro de la carpeta del mapa: %1</translation>
    </message>
    <message>
        <source>Map of Tiled</source>
        <translation>Mapa de Tiled</translation>
    </message>
    <message>
        <source>Read files outside its folder</source>
        <translation>Leer archivos fuera de su carpeta</translation>
    </message>
    <message>
        <source>Takes tile sets and pictures from wherever the map says that they are</source>
        <translation>Toma los tilesets y las imágenes de donde el mapa indique que están</translation>
    </message>
    <message>
        <source>Import Image</source>
        <translation>Importar imagen</translation>
    </message>
    <message>
        <source>“%1” has %2 × %3 pixels, and the picture has %4 × %5</source>
        <translation>«%1» tiene %2 × %3 píxeles y la imagen tiene %4 × %5</translation>
    </message>
    <message>
        <source>Choose the map on which these are placed</source>
        <translation>Elija el mapa en el que están colocados</translation>
    </message>
    <message>
        <source>What record %1 (counted from 0) shows is not in the project, where it is looked for by its place</source>
        <translation>Lo que muestra el registro %1 (contando desde 0) no está en el proyecto, donde se busca por su posición</translation>
    </message>
    <message>
        <source>Placed animations: %1</source>
        <translation>Animaciones colocadas: %1</translation>
    </message>
    <message>
        <source>The colours are left out, since other assets are drawn with the palette of “%1” as well</source>
        <translation>Los colores se omiten, porque otros recursos también se dibujan con la paleta de «%1»</translation>
    </message>
    <message>
        <source>Tile set of Tiled</source>
        <translation>Tileset de Tiled</translation>
    </message>
</context>
<context>
    <name>IndexSuffix</name>
    <message>
        <source> (index %1)</source>
        <translation> (índice %1)</translation>
    </message>
</context>
<context>
    <name>LayerAction</name>
    <message>
        <source>Scroll</source>
        <translation>Desplazar</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotar</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Voltear</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Reflejar</translation>
    </message>
</context>
<context>
    <name>LayoutController</name>
    <message>
        <source>Next Dock</source>
        <translation>Panel siguiente</translation>
    </message>
    <message>
        <source>Previous Dock</source>
        <translation>Panel anterior</translation>
    </message>
    <message>
        <source>Next Dock Behind</source>
        <translation>Siguiente panel detrás</translation>
    </message>
    <message>
        <source>Previous Dock Behind</source>
        <translation>Panel anterior detrás</translation>
    </message>
</context>
<context>
    <name>LineCanvasTool</name>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>%2 - %1</source>
        <translation>%2 - %1</translation>
    </message>
    <message>
        <source>Its backup is from %1</source>
        <translation>Su copia de seguridad es del %1</translation>
    </message>
    <message>
        <source>Open &amp;Backup</source>
        <translation>Abrir &amp;copia de seguridad</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>Could not import the font</source>
        <translation>No se pudo importar la fuente</translation>
    </message>
</context>
<context>
    <name>MapDialog</name>
    <message>
        <source> cells</source>
        <translation> celdas</translation>
    </message>
    <message>
        <source>New Map</source>
        <translation>Mapa nuevo</translation>
    </message>
    <message>
        <source>Create a new map</source>
        <translation>Crear un mapa</translation>
    </message>
    <message>
        <source>&amp;Tile set</source>
        <translation>&amp;Tileset</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Anchura</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>A&amp;ltura</translation>
    </message>
    <message>
        <source>A map is made of the tiles of a tile set; please create a tile set first</source>
        <translation>Un mapa se compone de los tiles de un tileset; cree primero un tileset</translation>
    </message>
</context>
<context>
    <name>MapEditor::AnchorPad</name>
    <message>
        <source>Top left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo a la derecha</translation>
    </message>
</context>
<context>
    <name>MapEditor::CellDialog</name>
    <message>
        <source>Go to Cell</source>
        <translation>Ir a la celda</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Fila</translation>
    </message>
</context>
<context>
    <name>MapEditor::CellTool</name>
    <message>
        <source>Place Animation</source>
        <translation>Colocar animación</translation>
    </message>
</context>
<context>
    <name>MapEditor::DrawTool</name>
    <message>
        <source>Paint</source>
        <translation>Pintar</translation>
    </message>
</context>
<context>
    <name>MapEditor::ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Export Map Data</source>
        <translation>Exportar datos de mapa</translation>
    </message>
    <message>
        <source>Export Tile Data</source>
        <translation>Exportar datos de tiles</translation>
    </message>
    <message>
        <source>Export Palette Data</source>
        <translation>Exportar datos de paleta</translation>
    </message>
    <message>
        <source>Export: %1</source>
        <translation>Exportar: %1</translation>
    </message>
    <message>
        <source>Files in %1</source>
        <translation>Archivos en %1</translation>
    </message>
    <message>
        <source>%1 (replaces this file)</source>
        <translation>%1 (reemplaza este archivo)</translation>
    </message>
    <message>
        <source>Choose what to export</source>
        <translation>Elija qué exportar</translation>
    </message>
</context>
<context>
    <name>MapEditor::FillTool</name>
    <message>
        <source>Bucket Fill</source>
        <translation>Cubo de pintura</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapCommands</name>
    <message>
        <source>Select Same &amp;Tile</source>
        <translation>Seleccionar mismo &amp;tile</translation>
    </message>
    <message>
        <source>Selects all cells that show the current tile</source>
        <translation>Selecciona todas las celdas que muestran el tile actual</translation>
    </message>
    <message>
        <source>&amp;Replace Tile…</source>
        <translation>&amp;Reemplazar tile…</translation>
    </message>
    <message>
        <source>Puts one tile in place of another, in the selection, the map or all maps of the tile set</source>
        <translation>Pone un tile en lugar de otro en la selección, en el mapa o en todos los mapas del tileset</translation>
    </message>
    <message>
        <source>Edit Terrain&amp;s…</source>
        <translation>Editar terren&amp;os…</translation>
    </message>
    <message>
        <source>Marks tiles whose borders match when they are painted</source>
        <translation>Marca los tiles cuyos bordes encajan al pintarlos</translation>
    </message>
    <message>
        <source>Go to &amp;Cell…</source>
        <translation>Ir a la &amp;celda…</translation>
    </message>
    <message>
        <source>Scrolls the map to a cell</source>
        <translation>Desplaza el mapa hasta una celda</translation>
    </message>
    <message>
        <source>&amp;Overview</source>
        <translation>Vista &amp;general</translation>
    </message>
    <message>
        <source>Shows the whole map in a corner, with the part that is in view to drag</source>
        <translation>Muestra el mapa entero en una esquina, con la parte visible para arrastrarla</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapEditing</name>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>Copy Cells</source>
        <translation>Copiar celdas</translation>
    </message>
    <message>
        <source>Move Cells</source>
        <translation>Mover celdas</translation>
    </message>
    <message>
        <source>Sprite Properties</source>
        <translation>Propiedades del sprite</translation>
    </message>
    <message>
        <source>Delete Sprite</source>
        <translation>Eliminar sprite</translation>
    </message>
    <message>
        <source>Remove Animation</source>
        <translation>Quitar animación</translation>
    </message>
    <message>
        <source>Add Rows</source>
        <translation>Añadir filas</translation>
    </message>
    <message>
        <source>Add Columns</source>
        <translation>Añadir columnas</translation>
    </message>
    <message>
        <source>Remove Rows</source>
        <translation>Quitar filas</translation>
    </message>
    <message>
        <source>Remove Columns</source>
        <translation>Quitar columnas</translation>
    </message>
    <message>
        <source>Resize Map</source>
        <translation>Redimensionar mapa</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapExport</name>
    <message>
        <source>Choose a directory to export anim into</source>
        <translation>Elija una carpeta a la que exportar la animación</translation>
    </message>
    <message>
        <source>Exporting %1…</source>
        <translation>Exportando %1…</translation>
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
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy to new map</source>
        <translation>Copiar a un mapa nuevo</translation>
    </message>
    <message>
        <source>Copy as Image</source>
        <translation>Copiar como imagen</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapKeys</name>
    <message>
        <source>Column %1, row %2</source>
        <translation>Columna %1, fila %2</translation>
    </message>
    <message>
        <source>tile %1</source>
        <translation>tile %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacía</translation>
    </message>
    <message>
        <source>rotated</source>
        <translation>girado</translation>
    </message>
    <message>
        <source>flipped</source>
        <translation>volteado</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>reflejado</translation>
    </message>
    <message>
        <source>palette offset %1</source>
        <translation>offset de paleta %1</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>animación</translation>
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
        <translation>Vista general</translation>
    </message>
    <message>
        <source>Drag to scroll the map</source>
        <translation>Arrastre para desplazar el mapa</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapToolPalette</name>
    <message>
        <source>Rotated</source>
        <translation>Rotado</translation>
    </message>
    <message>
        <source>Flipped</source>
        <translation>Volteado</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Reflejado</translation>
    </message>
    <message>
        <source>Random tiles of the stamp</source>
        <translation>Tiles aleatorios del sello</translation>
    </message>
    <message>
        <source>Bucket fill</source>
        <translation>Cubo de pintura</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
    <message>
        <source>Filled rectangle</source>
        <translation>Rectángulo relleno</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Elipse</translation>
    </message>
    <message>
        <source>Filled ellipse</source>
        <translation>Elipse rellena</translation>
    </message>
    <message>
        <source>Paint terrain</source>
        <translation>Pintar terreno</translation>
    </message>
</context>
<context>
    <name>MapEditor::PaintBar</name>
    <message>
        <source>Painting</source>
        <translation>Pintura</translation>
    </message>
    <message>
        <source>Stamps</source>
        <translation>Sellos</translation>
    </message>
    <message>
        <source>Ctrl-drag tiles to make one</source>
        <translation>Arrastre tiles con Ctrl para crear uno</translation>
    </message>
    <message>
        <source>Stamps are made of tiles, by dragging with Ctrl in the tile picker, and of cells, by dragging with the Pick tool</source>
        <translation>Los sellos se crean con tiles, arrastrando con Ctrl en el selector de tiles, o con celdas, arrastrando con la herramienta Cuentagotas</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>Of the tile</source>
        <translation>El del tile</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Offset de paleta</translation>
    </message>
    <message>
        <source>The palette offset of painted cells. Ctrl with a painting tool paints it alone, and with the right button brings back that of the tile</source>
        <translation>El offset de paleta de las celdas pintadas. Ctrl con una herramienta de pintura pinta solo el offset, y con el botón derecho restaura el del tile</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Terreno</translation>
    </message>
    <message>
        <source>What the terrain tool paints</source>
        <translation>Lo que pinta la herramienta de terreno</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Edit Terrains…</source>
        <translation>Editar terrenos…</translation>
    </message>
    <message>
        <source>Marks the tiles of terrains</source>
        <translation>Marca los tiles de los terrenos</translation>
    </message>
    <message>
        <source>%1 × %2 cells</source>
        <translation>%1 × %2 celdas</translation>
    </message>
    <message>
        <source>Stamp of %1</source>
        <translation>Sello de %1</translation>
    </message>
    <message>
        <source>%1, a stamp of %2</source>
        <translation>%1, un sello de %2</translation>
    </message>
    <message>
        <source>Name Stamp…</source>
        <translation>Nombrar sello…</translation>
    </message>
    <message>
        <source>Forget Stamp</source>
        <translation>Descartar sello</translation>
    </message>
    <message>
        <source>Name Stamp</source>
        <translation>Nombrar sello</translation>
    </message>
    <message>
        <source>A stamp with a name stays; without one it goes when others are used</source>
        <translation>Un sello con nombre se conserva; sin nombre desaparece cuando se usan otros</translation>
    </message>
</context>
<context>
    <name>MapEditor::PaintDesk</name>
    <message>
        <source>Replace Tile</source>
        <translation>Reemplazar tile</translation>
    </message>
    <message>
        <source>Replace Tile in All Maps</source>
        <translation>Reemplazar tile en todos los mapas</translation>
    </message>
    <message>
        <source>Choose a tile in the Tiles dock and paint here: the left button paints, the right one clears</source>
        <translation>Elija un tile en el panel Tiles y pinte aquí: el botón izquierdo pinta, el derecho vacía</translation>
    </message>
</context>
<context>
    <name>MapEditor::PasteTool</name>
    <message>
        <source>Picture of %1 × %2 cells; tiles to be added: %3</source>
        <translation>Imagen de %1 × %2 celdas; tiles que se añadirán: %3</translation>
    </message>
    <message>
        <source>; pixels that take the nearest colour: %1</source>
        <translation>; píxeles que toman el color más próximo: %1</translation>
    </message>
    <message>
        <source>The picture is smaller than a tile, which has 8 × 8 pixels</source>
        <translation>La imagen es más pequeña que un tile, que tiene 8 × 8 píxeles</translation>
    </message>
    <message numerus="yes">
        <source>The picture needs %n more tiles, and the tile set has room for %1</source>
        <translation>
            <numerusform>La imagen necesita %n tile más y en el tileset caben %1</numerusform>
            <numerusform>La imagen necesita %n tiles más y en el tileset caben %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Paste Picture</source>
        <translation>Pegar imagen</translation>
    </message>
    <message>
        <source>Tiles added: %1</source>
        <translation>Tiles añadidos: %1</translation>
    </message>
    <message>
        <source>; pixels that took the nearest colour: %1</source>
        <translation>; píxeles que tomaron el color más próximo: %1</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
</context>
<context>
    <name>MapEditor::PlaceAnimationTool</name>
    <message>
        <source>Place Animation</source>
        <translation>Colocar animación</translation>
    </message>
</context>
<context>
    <name>MapEditor::PlaceSpriteTool</name>
    <message>
        <source>Place Sprite</source>
        <translation>Colocar sprite</translation>
    </message>
    <message>
        <source>Move Sprite</source>
        <translation>Mover sprite</translation>
    </message>
</context>
<context>
    <name>MapEditor::ReplaceTileDialog</name>
    <message>
        <source>Replace Tile</source>
        <translation>Reemplazar tile</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Por</translation>
    </message>
    <message>
        <source>In the selection</source>
        <translation>En la selección</translation>
    </message>
    <message>
        <source>In this map</source>
        <translation>En este mapa</translation>
    </message>
    <message>
        <source>In all maps of the tile set</source>
        <translation>En todos los mapas del tileset</translation>
    </message>
    <message>
        <source>Tile </source>
        <translation>Tile </translation>
    </message>
    <message>
        <source>These are the same tile</source>
        <translation>Son el mismo tile</translation>
    </message>
</context>
<context>
    <name>MapEditor::ResizeDialog</name>
    <message>
        <source>Resize Map</source>
        <translation>Redimensionar mapa</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation>Anclaje</translation>
    </message>
    <message>
        <source> cells</source>
        <translation> celdas</translation>
    </message>
    <message>
        <source>The whole map of %1×%2 cells is kept</source>
        <translation>Se conserva el mapa entero, de %1×%2 celdas</translation>
    </message>
    <message>
        <source>%1×%2 of %3×%4 cells are kept</source>
        <translation>Se conservan %1×%2 de %3×%4 celdas</translation>
    </message>
</context>
<context>
    <name>MapEditor::ShapeTool</name>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Elipse</translation>
    </message>
</context>
<context>
    <name>MapEditor::SpriteProperties</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Reflejar</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Voltear</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotar</translation>
    </message>
    <message>
        <source>Start frame</source>
        <translation>Fotograma inicial</translation>
    </message>
    <message>
        <source>Initial delay</source>
        <translation>Retardo inicial</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Retardo de repetición</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Offset de paleta</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainDialog</name>
    <message>
        <source>Terrains</source>
        <translation>Terrenos</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>The 4 cells beside</source>
        <translation>Las 4 celdas contiguas</translation>
    </message>
    <message>
        <source>All 8 cells around</source>
        <translation>Las 8 celdas de alrededor</translation>
    </message>
    <message>
        <source>Which neighbours decide about the tile of a cell</source>
        <translation>Qué vecinas deciden el tile de una celda</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Looks at</source>
        <translation>Considera</translation>
    </message>
    <message>
        <source>Mark the middle of each tile of the terrain, and the sides and corners where it goes on. The right button takes marks away.</source>
        <translation>Marque el centro de cada tile del terreno, y los lados y esquinas por donde continúa. El botón derecho quita marcas.</translation>
    </message>
    <message>
        <source>Terrain %1</source>
        <translation>Terreno %1</translation>
    </message>
    <message>
        <source>Every terrain needs a name</source>
        <translation>Cada terreno necesita un nombre</translation>
    </message>
    <message>
        <source>Turn tiles where none has the borders</source>
        <translation>Girar tiles donde ninguno tenga los bordes</translation>
    </message>
    <message>
        <source>Also takes tiles that have the borders when they are rotated, flipped or mirrored</source>
        <translation>También toma tiles que tienen los bordes al rotarlos, voltearlos o reflejarlos</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainMarks</name>
    <message>
        <source>Marks of the terrain</source>
        <translation>Marcas del terreno</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainTool</name>
    <message>
        <source>Paint Terrain</source>
        <translation>Pintar terreno</translation>
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
        <translation>Tiles</translation>
    </message>
    <message>
        <source>Show or hide the tile layer</source>
        <translation>Mostrar u ocultar la capa de tiles</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objetos</translation>
    </message>
    <message>
        <source>Show or hide the object layer</source>
        <translation>Mostrar u ocultar la capa de objetos</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>Show or hide the sprite layer</source>
        <translation>Mostrar u ocultar la capa de sprites</translation>
    </message>
    <message>
        <source>Size in cells of the viewport</source>
        <translation>Tamaño en celdas del área visible</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>Área visible</translation>
    </message>
    <message>
        <source>Viewport width</source>
        <translation>Anchura del área visible</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Viewport height</source>
        <translation>Altura del área visible</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Tile index to be used as a background</source>
        <translation>Índice del tile que se usa como fondo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>Sets the transparency index of the tile set (0-15) or off</source>
        <translation>Establece el índice de transparencia del tileset (0-15) o lo desactiva</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Sets the snap to grid size</source>
        <translation>Establece el tamaño del ajuste a la cuadrícula</translation>
    </message>
    <message>
        <source>Map size in tiles and bytes</source>
        <translation>Tamaño del mapa en tiles y bytes</translation>
    </message>
</context>
<context>
    <name>MapEditor::View</name>
    <message numerus="yes">
        <source>%1x%2 (%n bytes)</source>
        <translation>
            <numerusform>%1x%2 (%n byte)</numerusform>
            <numerusform>%1x%2 (%n bytes)</numerusform>
        </translation>
    </message>
    <message>
        <source>Resize or export the map</source>
        <translation>Redimensionar o exportar el mapa</translation>
    </message>
    <message>
        <source>Resize Map…</source>
        <translation>Redimensionar mapa…</translation>
    </message>
    <message>
        <source>Export to Folder…</source>
        <translation>Exportar a una carpeta…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>MapEditorPage</name>
    <message>
        <source>Render checker board beneath maps</source>
        <translation>Mostrar un tablero de ajedrez bajo los mapas</translation>
    </message>
    <message>
        <source>Enable grid line overlay</source>
        <translation>Mostrar las líneas de la cuadrícula</translation>
    </message>
    <message>
        <source>Map Editor</source>
        <translation>Editor de mapas</translation>
    </message>
    <message>
        <source>Grid colour</source>
        <translation>Color de la cuadrícula</translation>
    </message>
    <message>
        <source>Alternate colour</source>
        <translation>Color alternativo</translation>
    </message>
    <message>
        <source>Grid size (in pixels)</source>
        <translation>Tamaño de la cuadrícula (en píxeles)</translation>
    </message>
    <message>
        <source>Default magnification</source>
        <translation>Ampliación predeterminada</translation>
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
        <translation>&amp;Nuevo mapa</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>NextTiles (*.nxm *.nxt *.nxp *.nxb)</source>
        <translation>NextTiles (*.nxm *.nxt *.nxp *.nxb)</translation>
    </message>
    <message>
        <source>Image files (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Archivos de imagen (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>Import Map Data</source>
        <translation>Importar datos de mapa</translation>
    </message>
    <message>
        <source>Export Map Data</source>
        <translation>Exportar datos de mapa</translation>
    </message>
    <message>
        <source>Map Data (*.map)</source>
        <translation>Datos de mapa (*.map)</translation>
    </message>
    <message>
        <source>Exporting %1…</source>
        <translation>Exportando %1…</translation>
    </message>
</context>
<context>
    <name>MapObjects</name>
    <message>
        <source>Empty</source>
        <translation>Vacío</translation>
    </message>
</context>
<context>
    <name>MapSpritesWindow</name>
    <message>
        <source>Map Sprites</source>
        <translation>Sprites del mapa</translation>
    </message>
    <message>
        <source>No sprites</source>
        <translation>No hay sprites</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animaciones</translation>
    </message>
    <message>
        <source>Sprite bank</source>
        <translation>Banco de sprites</translation>
    </message>
    <message>
        <source>The sprite banks of the project</source>
        <translation>Los bancos de sprites del proyecto</translation>
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
        <translation>¡Atención!</translation>
    </message>
</context>
<context>
    <name>NextData</name>
    <message>
        <source>the table of animations</source>
        <translation>tabla de animaciones</translation>
    </message>
    <message>
        <source>their number</source>
        <translation>el número de animaciones</translation>
    </message>
    <message>
        <source>the place of “%1”</source>
        <translation>la posición de «%1»</translation>
    </message>
    <message>
        <source>animation “%1”</source>
        <translation>animación «%1»</translation>
    </message>
    <message>
        <source>the width</source>
        <translation>la anchura</translation>
    </message>
    <message>
        <source>the height</source>
        <translation>la altura</translation>
    </message>
    <message>
        <source>the number of frames</source>
        <translation>el número de fotogramas</translation>
    </message>
    <message>
        <source>the kind</source>
        <translation>el tipo</translation>
    </message>
    <message>
        <source>the delay</source>
        <translation>el retardo</translation>
    </message>
    <message>
        <source>it shows number %1, and %2 is the last one that fits</source>
        <translation>muestra el número %1, y el último que cabe es %2</translation>
    </message>
    <message>
        <source>it has the palette offset %1</source>
        <translation>tiene el offset de paleta %1</translation>
    </message>
    <message>
        <source>Animation “%1”, frame %2, column %3, row %4 (counted from 0): %5</source>
        <translation>Animación «%1», fotograma %2, columna %3, fila %4 (contando desde 0): %5</translation>
    </message>
    <message>
        <source>number and places of the animations</source>
        <translation>número y posiciones de las animaciones</translation>
    </message>
    <message>
        <source>animation %1 “%2”</source>
        <translation>animación %1 «%2»</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>fotograma %1</translation>
    </message>
    <message>
        <source>The animations do not lie in the file as its beginning says</source>
        <translation>Las animaciones no están en el archivo como indica su comienzo</translation>
    </message>
    <message>
        <source>Bytes behind the last animation that are left out: %1</source>
        <translation>Bytes tras la última animación, que se omiten: %1</translation>
    </message>
    <message>
        <source>Animations of blocks</source>
        <translation>Animaciones de bloques</translation>
    </message>
    <message>
        <source>Animations of sprites</source>
        <translation>Animaciones de sprites</translation>
    </message>
    <message>
        <source>it leads out of its folder</source>
        <translation>sale de su carpeta</translation>
    </message>
    <message>
        <source>a folder or file in it has no name</source>
        <translation>una carpeta o un archivo de la ruta no tiene nombre</translation>
    </message>
    <message>
        <source>There is no file name</source>
        <translation>No hay nombre de archivo</translation>
    </message>
    <message>
        <source>it is not relative</source>
        <translation>no es relativo</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>No se puede escribir «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” is %2, and the form %3 is for %4</source>
        <translation>«%1» es %2, y el formato %3 es para %4</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>“%1” has %2 pixels, and this form %3</source>
        <translation>«%1» tiene %2 píxeles, y este formato %3</translation>
    </message>
    <message>
        <source>“%1” has no palette that could stand in front</source>
        <translation>«%1» no tiene una paleta que se pueda poner delante</translation>
    </message>
    <message>
        <source>“%1”: the pixel at %2, %3 has the index %4, and only those from %5 to %6 go with the first pixel</source>
        <translation>«%1»: el píxel en %2, %3 tiene el índice %4, y con el primer píxel solo son compatibles los de %5 a %6</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and such a picture %2, or %3 or %4 with its palette</source>
        <translation>El archivo tiene %1 bytes, y una imagen así, %2, o bien %3 o %4 con su paleta</translation>
    </message>
    <message>
        <source>The file has one half of the picture, which becomes the upper one</source>
        <translation>El archivo tiene una mitad de la imagen, que pasa a ser la superior</translation>
    </message>
    <message>
        <source>By rows</source>
        <translation>Por filas</translation>
    </message>
    <message>
        <source>By columns</source>
        <translation>Por columnas</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>In which order the pixels follow each other</source>
        <translation>En qué orden se suceden los píxeles</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Offset de paleta</translation>
    </message>
    <message>
        <source>The group of sixteen colours of all pixels, which comes from a register</source>
        <translation>El grupo de dieciséis colores de todos los píxeles, que viene de un registro del hardware</translation>
    </message>
    <message>
        <source>Palette in front</source>
        <translation>Paleta delante</translation>
    </message>
    <message>
        <source>Writes the 512 bytes of the image&apos;s palette before the pixels</source>
        <translation>Escribe los 512 bytes de la paleta de la imagen antes de los píxeles</translation>
    </message>
    <message>
        <source>Two halves</source>
        <translation>Dos mitades</translation>
    </message>
    <message>
        <source>Writes the upper and the lower half into files of their own</source>
        <translation>Escribe la mitad superior y la inferior en archivos separados</translation>
    </message>
    <message>
        <source>Layer 2, 256 × 192, by rows</source>
        <translation>Layer 2, 256 × 192, por filas</translation>
    </message>
    <message>
        <source>Layer 2, 320 × 256, by columns</source>
        <translation>Layer 2, 320 × 256, por columnas</translation>
    </message>
    <message>
        <source>Layer 2, 640 × 256, by columns, two pixels a byte</source>
        <translation>Layer 2, 640 × 256, por columnas, dos píxeles por byte</translation>
    </message>
    <message>
        <source>LoRes, 128 × 96, by rows</source>
        <translation>LoRes, 128 × 96, por filas</translation>
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
        <translation>Layer 2, 640 × 256, dos píxeles por byte</translation>
    </message>
    <message>
        <source>LoRes, 128 × 96</source>
        <translation>LoRes, 128 × 96</translation>
    </message>
    <message>
        <source>screen %1, %2</source>
        <translation>pantalla %1, %2</translation>
    </message>
    <message>
        <source>“%1”: the cell in column %2, row %3 (counted from 0) %4</source>
        <translation>«%1»: la celda de la columna %2, fila %3 (contando desde 0) %4</translation>
    </message>
    <message>
        <source>shows tile %1, and %2 is the last one that fits</source>
        <translation>muestra el tile %1, y el último que cabe es %2</translation>
    </message>
    <message>
        <source>has the palette offset %1</source>
        <translation>tiene el offset de paleta %1</translation>
    </message>
    <message>
        <source>is rotated or mirrored, which one byte does not tell</source>
        <translation>está rotada o reflejada, cosa que un byte no indica</translation>
    </message>
    <message>
        <source>has the palette offset %1, others have %2, and one byte does not tell them apart</source>
        <translation>tiene el offset de paleta %1 y otras tienen %2, y un byte no los distingue</translation>
    </message>
    <message>
        <source>That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most</source>
        <translation>El resultado sería un mapa de %1 × %2 celdas; el máximo es %3 por lado y %4 en total</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and a cell takes %2</source>
        <translation>El archivo tiene %1 bytes, y una celda ocupa %2</translation>
    </message>
    <message>
        <source>Cells of the file that are outside the map: %1</source>
        <translation>Celdas del archivo que quedan fuera del mapa: %1</translation>
    </message>
    <message>
        <source>Cells of the map that the file does not have, and that stay blank: %1</source>
        <translation>Celdas del mapa que el archivo no tiene y que quedan vacías: %1</translation>
    </message>
    <message>
        <source>Half a cell at the end is left out</source>
        <translation>Se omite media celda al final</translation>
    </message>
    <message>
        <source>In which order the cells of a screen follow each other</source>
        <translation>En qué orden se suceden las celdas de una pantalla</translation>
    </message>
    <message>
        <source>Screen width</source>
        <translation>Anchura de pantalla</translation>
    </message>
    <message>
        <source>Cells across a screen into which the map is cut; 0 is the whole width</source>
        <translation>Celdas a lo ancho de cada pantalla en que se corta el mapa; 0 es la anchura total</translation>
    </message>
    <message>
        <source>Screen height</source>
        <translation>Altura de pantalla</translation>
    </message>
    <message>
        <source>Cells down a screen into which the map is cut; 0 is the whole height</source>
        <translation>Celdas a lo alto de cada pantalla en que se corta el mapa; 0 es la altura total</translation>
    </message>
    <message>
        <source>A file for each screen</source>
        <translation>Un archivo por pantalla</translation>
    </message>
    <message>
        <source>Writes the screens into numbered files of their own</source>
        <translation>Escribe las pantallas en archivos separados y numerados</translation>
    </message>
    <message>
        <source>Tile map, two bytes a cell</source>
        <translation>Mapa de tiles, dos bytes por celda</translation>
    </message>
    <message>
        <source>Tile map, one byte a cell</source>
        <translation>Mapa de tiles, un byte por celda</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Cells across the map; 0 is what most maps of so many cells have</source>
        <translation>Celdas a lo ancho del mapa; 0 es lo habitual en mapas con ese número de celdas</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Cells down the map; 0 is as far as the file goes</source>
        <translation>Celdas a lo alto del mapa; 0 es hasta el final del archivo</translation>
    </message>
    <message>
        <source>Cells across the screens into which the map was cut; 0 is the whole width</source>
        <translation>Celdas a lo ancho de las pantallas en que se cortó el mapa; 0 es la anchura total</translation>
    </message>
    <message>
        <source>Cells down the screens into which the map was cut; 0 is the whole height</source>
        <translation>Celdas a lo alto de las pantallas en que se cortó el mapa; 0 es la altura total</translation>
    </message>
    <message>
        <source>Bit 0</source>
        <translation>Bit 0</translation>
    </message>
    <message>
        <source>What the lowest bit of a cell&apos;s second byte says</source>
        <translation>Qué indica el bit más bajo del segundo byte de una celda</translation>
    </message>
    <message>
        <source>Tiles from 256 on</source>
        <translation>Tiles a partir del 256</translation>
    </message>
    <message>
        <source>The ULA&apos;s picture is in front: left out</source>
        <translation>La imagen de la ULA está delante: se omite</translation>
    </message>
    <message>
        <source>The palette offset of all cells, which comes from a register</source>
        <translation>El offset de paleta de todas las celdas, que viene de un registro del hardware</translation>
    </message>
    <message>
        <source>“%1” cannot be a label: those are a letter, then letters, digits and _, %2 at most</source>
        <translation>«%1» no puede ser una etiqueta: debe ser una letra seguida de letras, dígitos y _, con %2 caracteres como máximo</translation>
    </message>
    <message>
        <source>“%1” cannot be a label: assemblers or C give it a meaning</source>
        <translation>«%1» no puede ser una etiqueta: los ensambladores o C le dan un significado</translation>
    </message>
    <message>
        <source>The label “%1”, or a name made of it, is that of another output already</source>
        <translation>La etiqueta «%1», o un nombre formado con ella, ya es la de otra salida</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 “%3”</source>
        <translation>%1 %2 «%3»</translation>
    </message>
    <message>
        <source>“%1”, %2: its %3 is not in the project</source>
        <translation>«%1», %2: su %3 no está en el proyecto</translation>
    </message>
    <message>
        <source>the number of records</source>
        <translation>número de registros</translation>
    </message>
    <message>
        <source>it</source>
        <translation>el valor</translation>
    </message>
    <message>
        <source>number of records</source>
        <translation>número de registros</translation>
    </message>
    <message>
        <source>placed sprite</source>
        <translation>sprite colocado</translation>
    </message>
    <message>
        <source>sprite bank</source>
        <translation>banco de sprites</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>animación</translation>
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
        <translation>la posición de su banco</translation>
    </message>
    <message>
        <source>16 times the palette offset, and the flags,</source>
        <translation>16 veces el offset de paleta más los indicadores</translation>
    </message>
    <message>
        <source>the animation</source>
        <translation>la animación</translation>
    </message>
    <message>
        <source>the sprite</source>
        <translation>el sprite</translation>
    </message>
    <message>
        <source>the start frame</source>
        <translation>el fotograma inicial</translation>
    </message>
    <message>
        <source>the initial delay</source>
        <translation>el retardo inicial</translation>
    </message>
    <message>
        <source>the repeat delay</source>
        <translation>el retardo de repetición</translation>
    </message>
    <message>
        <source>the place of the name</source>
        <translation>la posición del nombre</translation>
    </message>
    <message>
        <source>names</source>
        <translation>nombres</translation>
    </message>
    <message>
        <source>placed animation</source>
        <translation>animación colocada</translation>
    </message>
    <message>
        <source>the column</source>
        <translation>la columna</translation>
    </message>
    <message>
        <source>the row</source>
        <translation>la fila</translation>
    </message>
    <message>
        <source>the place of its block set</source>
        <translation>la posición de su conjunto de bloques</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Nombres</translation>
    </message>
    <message>
        <source>Whether the names of sprites stand behind the records</source>
        <translation>Si los nombres de los sprites van detrás de los registros</translation>
    </message>
    <message>
        <source>Behind the records</source>
        <translation>Detrás de los registros</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Se omiten</translation>
    </message>
    <message>
        <source>Sprites placed on a map</source>
        <translation>Sprites colocados en un mapa</translation>
    </message>
    <message>
        <source>Animated blocks placed on a map</source>
        <translation>Bloques animados colocados en un mapa</translation>
    </message>
    <message>
        <source>Option %1: “%2” is not %3</source>
        <translation>Opción %1: «%2» no es %3</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true o false</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>un número entero de %1 a %2</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>uno de %1</translation>
    </message>
    <message>
        <source>There is no option “%1”, only %2</source>
        <translation>No existe la opción «%1», solo %2</translation>
    </message>
    <message>
        <source>“%1” would be C source and its header: another suffix is needed, as .c</source>
        <translation>«%1» sería código C y su cabecera: hace falta otra extensión, como .c</translation>
    </message>
    <message>
        <source>“%1” has nothing to write in this form</source>
        <translation>«%1» no tiene nada que escribir en este formato</translation>
    </message>
    <message>
        <source>padding</source>
        <translation>relleno</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>Código fuente</translation>
    </message>
    <message>
        <source>Bytes for incbin, or source text in the words of an assembler or of C</source>
        <translation>Bytes para incbin, o código fuente con la sintaxis de un ensamblador o de C</translation>
    </message>
    <message>
        <source>No, bytes</source>
        <translation>No, bytes</translation>
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
        <translation>C: un array y su cabecera</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>The label of the bytes in source text; made from the asset&apos;s name when there is none</source>
        <translation>La etiqueta de los bytes en el código fuente; si no se indica, se forma con el nombre del recurso</translation>
    </message>
    <message>
        <source>Pad to a multiple of</source>
        <translation>Rellenar hasta un múltiplo de</translation>
    </message>
    <message>
        <source>Adds zeros until the size is a multiple of so many bytes; 0 adds none</source>
        <translation>Añade ceros hasta que el tamaño sea múltiplo de ese número de bytes; 0 no añade ninguno</translation>
    </message>
    <message>
        <source>Cut into files</source>
        <translation>Dividir en archivos</translation>
    </message>
    <message>
        <source>Numbered files that each fit into a page of 8 KiB or a bank of 16 KiB</source>
        <translation>Archivos numerados, cada uno de los cuales cabe en una página de 8 KiB o un banco de 16 KiB</translation>
    </message>
    <message>
        <source>No, one file</source>
        <translation>No, un solo archivo</translation>
    </message>
    <message>
        <source>8 KiB each</source>
        <translation>De 8 KiB cada uno</translation>
    </message>
    <message>
        <source>16 KiB each</source>
        <translation>De 16 KiB cada uno</translation>
    </message>
    <message>
        <source>“%1” is no plain file name</source>
        <translation>«%1» no es un simple nombre de archivo</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>transparency</source>
        <translation>transparencia</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and such a palette %2</source>
        <translation>El archivo tiene %1 bytes, y una paleta así, %2</translation>
    </message>
    <message>
        <source>2 an entry, %1 in all</source>
        <translation>2 por entrada, %1 en total</translation>
    </message>
    <message>
        <source>The file has %1 entries; the others stay as they are</source>
        <translation>El archivo tiene %1 entradas; las demás quedan como están</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>What the last byte holds of the transparent entry; $E3 for a palette without one</source>
        <translation>Qué contiene el último byte sobre la entrada transparente; $E3 para una paleta que no la tenga</translation>
    </message>
    <message>
        <source>Its colour RRRGGGBB, for layers</source>
        <translation>Su color RRRGGGBB, para capas</translation>
    </message>
    <message>
        <source>Its index, for sprites</source>
        <translation>Su índice, para sprites</translation>
    </message>
    <message>
        <source>Which of the sixteen groups of sixteen entries is written</source>
        <translation>Cuál de los dieciséis grupos de dieciséis entradas se escribe</translation>
    </message>
    <message>
        <source>Palette, 9 bits a colour</source>
        <translation>Paleta, 9 bits por color</translation>
    </message>
    <message>
        <source>Palette, 9 bits a colour, and the transparency</source>
        <translation>Paleta, 9 bits por color, y la transparencia</translation>
    </message>
    <message>
        <source>Palette, 8 bits a colour</source>
        <translation>Paleta, 8 bits por color</translation>
    </message>
    <message>
        <source>Sixteen colours of a palette, 9 bits each</source>
        <translation>Dieciséis colores de una paleta, 9 bits cada uno</translation>
    </message>
    <message>
        <source>What the last byte says of the transparent entry</source>
        <translation>Qué indica el último byte sobre la entrada transparente</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>Which of the sixteen groups of sixteen entries the colours become</source>
        <translation>En cuál de los dieciséis grupos de dieciséis entradas se ponen los colores</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Primero</translation>
    </message>
    <message>
        <source>The number of the first one, counted from 0</source>
        <translation>El número del primero, contando desde 0</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>How many are written; 0 is all from the first on</source>
        <translation>Cuántos se escriben; 0 es todos a partir del primero</translation>
    </message>
    <message>
        <source>Options first and count: there are %1, and %2 from number %3 on are not</source>
        <translation>Opciones first y count: hay %1, y no existen %2 a partir del número %3</translation>
    </message>
    <message>
        <source>How many are read; 0 is all from the first on</source>
        <translation>Cuántos se leen; 0 es todos a partir del primero</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and one of these takes %2</source>
        <translation>El archivo tiene %1 bytes, y cada uno de estos ocupa %2</translation>
    </message>
    <message>
        <source>The file holds %1, and %2 go into an asset: choose which, with first and count</source>
        <translation>El archivo contiene %1 y en un recurso caben %2: elija cuáles, con first y count</translation>
    </message>
    <message>
        <source>Bytes behind the last whole one that are left out: %1</source>
        <translation>Bytes tras el último completo, que se omiten: %1</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>El archivo está vacío</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and the largest that is read as it is %2</source>
        <translation>El archivo tiene %1 bytes, y el mayor que se lee tal cual, %2</translation>
    </message>
    <message>
        <source>There is no form “%1”</source>
        <translation>No existe el formato «%1»</translation>
    </message>
    <message>
        <source>%1 is a form of %2, not of %3</source>
        <translation>%1 es un formato para %2, no para %3</translation>
    </message>
    <message>
        <source>“%1” is the file of another output as well</source>
        <translation>«%1» es también el archivo de otra salida</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>No existe ese archivo</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>No se puede leer el archivo</translation>
    </message>
    <message>
        <source>The file is too large for a recipe</source>
        <translation>El archivo es demasiado grande para una receta</translation>
    </message>
    <message>
        <source>The project no longer has %1 “%2” with the id %3, but another one of that name (%4)</source>
        <translation>En el proyecto ya no existe %1 «%2» con el id %3, pero sí otro recurso con ese nombre (%4)</translation>
    </message>
    <message>
        <source>The project no longer has %1 “%2” with the id %3</source>
        <translation>En el proyecto ya no existe %1 «%2» con el id %3</translation>
    </message>
    <message>
        <source>“%1” is the project or its recipe</source>
        <translation>«%1» es el proyecto o su receta</translation>
    </message>
    <message>
        <source>“%1” is written for “%2” already</source>
        <translation>«%1» ya se escribe para «%2»</translation>
    </message>
    <message>
        <source>This is no JSON: %1</source>
        <translation>No es JSON: %1</translation>
    </message>
    <message>
        <source>This is no recipe: “%1” is missing</source>
        <translation>No es una receta: falta «%1»</translation>
    </message>
    <message>
        <source>The recipe is from a newer version of Quenmora</source>
        <translation>La receta es de una versión más reciente de Quenmora</translation>
    </message>
    <message>
        <source>“%1” must be a list</source>
        <translation>«%1» debe ser una lista</translation>
    </message>
    <message>
        <source>“%1” means nothing here</source>
        <translation>«%1» no significa nada aquí</translation>
    </message>
    <message>
        <source>“%1” is there twice</source>
        <translation>«%1» aparece dos veces</translation>
    </message>
    <message>
        <source>There are more than %1 outputs</source>
        <translation>Hay más de %1 salidas</translation>
    </message>
    <message>
        <source>“%1” is the file of line %2 already</source>
        <translation>«%1» ya es el archivo de la línea %2</translation>
    </message>
    <message>
        <source>“%1” is missing</source>
        <translation>Falta «%1»</translation>
    </message>
    <message>
        <source>“%1” must be a text</source>
        <translation>«%1» debe ser un texto</translation>
    </message>
    <message>
        <source>An output must be an object</source>
        <translation>Una salida debe ser un objeto</translation>
    </message>
    <message>
        <source>There is no kind of asset “%1”</source>
        <translation>No existe el tipo de recurso «%1»</translation>
    </message>
    <message>
        <source>“%1” is no id</source>
        <translation>«%1» no es un id</translation>
    </message>
    <message>
        <source>“%1” must be an object</source>
        <translation>«%1» debe ser un objeto</translation>
    </message>
    <message>
        <source>%1 has no option “%2”</source>
        <translation>%1 no tiene la opción «%2»</translation>
    </message>
    <message>
        <source>The option “%1” has a value of the wrong type</source>
        <translation>La opción «%1» tiene un valor de tipo incorrecto</translation>
    </message>
    <message>
        <source>“%1”, %2: %3 is %4, and %5 to %6 fit</source>
        <translation>«%1», %2: %3 es %4, y caben de %5 a %6</translation>
    </message>
    <message>
        <source>a palette</source>
        <translation>una paleta</translation>
    </message>
    <message>
        <source>a tile set</source>
        <translation>un tileset</translation>
    </message>
    <message>
        <source>a map</source>
        <translation>un mapa</translation>
    </message>
    <message>
        <source>a block set</source>
        <translation>un conjunto de bloques</translation>
    </message>
    <message>
        <source>a sprite bank</source>
        <translation>un banco de sprites</translation>
    </message>
    <message>
        <source>an image</source>
        <translation>una imagen</translation>
    </message>
    <message>
        <source>“%1” is a bank of 8 bits: sprite %2 (counted from 0) has a pixel of index %3, and 4 bits hold 0 to 15</source>
        <translation>«%1» es un banco de 8 bits: el sprite %2 (contando desde 0) tiene un píxel de índice %3, y en 4 bits caben de 0 a 15</translation>
    </message>
    <message>
        <source>Sprites, 8 bits a pixel</source>
        <translation>Sprites, 8 bits por píxel</translation>
    </message>
    <message>
        <source>Sprites, 4 bits a pixel, packed</source>
        <translation>Sprites, 4 bits por píxel, empaquetados</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profundidad</translation>
    </message>
    <message>
        <source>How many bits of a pixel count</source>
        <translation>Cuántos bits cuentan de cada píxel</translation>
    </message>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bits, 256 colores</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bits, 16 colores</translation>
    </message>
    <message>
        <source>“%1” cannot be written: “%2” is a link that leads nowhere</source>
        <translation>No se puede escribir «%1»: «%2» es un enlace que no lleva a ninguna parte</translation>
    </message>
    <message>
        <source>“%1” cannot be written: the link “%2” leads out of the folder</source>
        <translation>No se puede escribir «%1»: el enlace «%2» sale de la carpeta</translation>
    </message>
    <message>
        <source>“%1” cannot be written: it is a folder</source>
        <translation>No se puede escribir «%1»: es una carpeta</translation>
    </message>
    <message>
        <source>“%1” cannot be written: “%2” is no folder</source>
        <translation>No se puede escribir «%1»: «%2» no es una carpeta</translation>
    </message>
    <message>
        <source>“%1”: tile %2 (counted from 0) has the value %3, and %4 to %5 fit</source>
        <translation>«%1»: el tile %2 (contando desde 0) tiene el valor %3, y caben de %4 a %5</translation>
    </message>
    <message>
        <source>The file holds numbers of %1 tiles, and a tile set has at most %2</source>
        <translation>El archivo contiene números de %1 tiles, y un tileset tiene como máximo %2</translation>
    </message>
    <message>
        <source>In which order the pixels of a tile follow each other</source>
        <translation>En qué orden se suceden los píxeles de un tile</translation>
    </message>
    <message>
        <source>How many bytes a value takes</source>
        <translation>Cuántos bytes ocupa un valor</translation>
    </message>
    <message>
        <source>One byte</source>
        <translation>Un byte</translation>
    </message>
    <message>
        <source>Two bytes</source>
        <translation>Dos bytes</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinta</translation>
    </message>
    <message>
        <source>The colour (0–15) of the pixels that are set; all others are clear</source>
        <translation>El color (0–15) de los píxeles activos; todos los demás son transparentes</translation>
    </message>
    <message>
        <source>Tiles, 4 bits a pixel</source>
        <translation>Tiles, 4 bits por píxel</translation>
    </message>
    <message>
        <source>Tiles, 8 bits a pixel</source>
        <translation>Tiles, 8 bits por píxel</translation>
    </message>
    <message>
        <source>Tiles, 1 bit a pixel</source>
        <translation>Tiles, 1 bit por píxel</translation>
    </message>
    <message>
        <source>Attributes of tiles</source>
        <translation>Atributos de tiles</translation>
    </message>
    <message>
        <source>Values of tiles</source>
        <translation>Valores de tiles</translation>
    </message>
    <message>
        <source>The group of sixteen colours in which the tiles are shown</source>
        <translation>El grupo de dieciséis colores con que se muestran los tiles</translation>
    </message>
    <message>
        <source>The colour (0–15) of the pixels that are set</source>
        <translation>El color (0–15) de los píxeles activos</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>The colour (0–15) of all others</source>
        <translation>El color (0–15) de todos los demás</translation>
    </message>
    <message>
        <source>The tile that the first number is for, counted from 0</source>
        <translation>El tile al que corresponde el primer número, contando desde 0</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation>No se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>The records do not lie in the file as its beginning says</source>
        <translation>Los registros no están en el archivo como dice su comienzo</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>rangos</translation>
    </message>
    <message>
        <source>Ranges of a palette whose colours go round</source>
        <translation>Rangos de una paleta cuyos colores rotan</translation>
    </message>
</context>
<context>
    <name>NextDataImport</name>
    <message>
        <source>Some of the required files are missing</source>
        <translation>Faltan algunos de los archivos necesarios</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importando %1…</translation>
    </message>
    <message>
        <source>Could not import the palette data</source>
        <translation>No se pudieron importar los datos de la paleta</translation>
    </message>
    <message>
        <source>Could not import the tile data</source>
        <translation>No se pudieron importar los datos de los tiles</translation>
    </message>
    <message>
        <source>Could not import the map data</source>
        <translation>No se pudieron importar los datos del mapa</translation>
    </message>
</context>
<context>
    <name>NextSteps</name>
    <message>
        <source>This project is empty. Begin with:</source>
        <translation>Este proyecto está vacío. Empiece con:</translation>
    </message>
    <message>
        <source>A map from a picture</source>
        <translation>Mapa a partir de imagen</translation>
    </message>
    <message>
        <source>Cuts a picture into tiles and makes a palette, a tile set and a map of it</source>
        <translation>Corta una imagen en tiles y crea con ella una paleta, un tileset y un mapa</translation>
    </message>
    <message>
        <source>Files that there are</source>
        <translation>Archivos existentes</translation>
    </message>
    <message>
        <source>Looks at files of any kind, shows what they are, and makes assets of them</source>
        <translation>Examina archivos de cualquier tipo, muestra qué son y los convierte en recursos</translation>
    </message>
    <message>
        <source>A new palette</source>
        <translation>Paleta nueva</translation>
    </message>
    <message>
        <source>The colours that everything else is drawn with</source>
        <translation>Los colores con los que se dibuja todo lo demás</translation>
    </message>
    <message>
        <source>A new tile set</source>
        <translation>Tileset nuevo</translation>
    </message>
    <message>
        <source>The tiles that maps are built from</source>
        <translation>Los tiles con los que se construyen los mapas</translation>
    </message>
    <message>
        <source>New sprites</source>
        <translation>Sprites nuevos</translation>
    </message>
    <message>
        <source>A bank of sprites of 16 × 16 pixels</source>
        <translation>Un banco de sprites de 16 × 16 píxeles</translation>
    </message>
</context>
<context>
    <name>NumberStepper</name>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>de %1</translation>
    </message>
    <message>
        <source>%1: previous</source>
        <translation>%1: anterior</translation>
    </message>
    <message>
        <source>%1: next</source>
        <translation>%1: siguiente</translation>
    </message>
</context>
<context>
    <name>OptionFields</name>
    <message>
        <source>As it is</source>
        <translation>Como está</translation>
    </message>
    <message>
        <source>Made from the name</source>
        <translation>Formada con el nombre</translation>
    </message>
</context>
<context>
    <name>OutputDialog</name>
    <message>
        <source>Edit Output</source>
        <translation>Editar salida</translation>
    </message>
    <message>
        <source>Below the project&apos;s folder, with / between folders</source>
        <translation>Dentro de la carpeta del proyecto, con / entre carpetas</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Recurso</translation>
    </message>
    <message>
        <source>&amp;Form</source>
        <translation>&amp;Formato</translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation>A&amp;rchivo</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The project no longer has this asset</source>
        <translation>El proyecto ya no tiene este recurso</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes: %1</source>
        <translation>
            <numerusform>%Ln byte: %1</numerusform>
            <numerusform>%Ln bytes: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>No es posible: %1</translation>
    </message>
    <message>
        <source>“%1” is the file of another output</source>
        <translation>«%1» es el archivo de otra salida</translation>
    </message>
</context>
<context>
    <name>OutputPreview</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln bytes)</source>
        <translation>
            <numerusform>%1 (%Ln byte)</numerusform>
            <numerusform>%1 (%Ln bytes)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PaintOptionsBar</name>
    <message>
        <source>Size of the brush: [ makes it smaller, ] larger</source>
        <translation>Tamaño del pincel: [ lo reduce, ] lo aumenta</translation>
    </message>
    <message>
        <source>Size of the brush</source>
        <translation>Tamaño del pincel</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
</context>
<context>
    <name>PaintSettings</name>
    <message>
        <source>Connect &amp;Strokes</source>
        <translation>Unir &amp;trazos</translation>
    </message>
    <message>
        <source>Draw without gaps, however fast the pointer moves</source>
        <translation>Dibuja sin huecos, por rápido que se mueva el puntero</translation>
    </message>
    <message>
        <source>&amp;Pixel Perfect Lines</source>
        <translation>Líneas de píxel &amp;perfecto</translation>
    </message>
    <message>
        <source>Draw freehand lines of one pixel without corners</source>
        <translation>Dibuja a mano alzada líneas de un píxel sin esquinas</translation>
    </message>
    <message>
        <source>S&amp;hade</source>
        <translation>&amp;Sombrear</translation>
    </message>
    <message>
        <source>Step pixels along the colours between foreground and background: the left button towards the foreground, the right button towards the background</source>
        <translation>Hace avanzar los píxeles por los colores entre el de frente y el de fondo: el botón izquierdo hacia el de frente, el derecho hacia el de fondo</translation>
    </message>
    <message>
        <source>&amp;Round Brush</source>
        <translation>Pincel &amp;redondo</translation>
    </message>
    <message>
        <source>Draw with a round brush</source>
        <translation>Dibuja con un pincel redondo</translation>
    </message>
    <message>
        <source>Mirror &amp;Left and Right</source>
        <translation>Simetría &amp;horizontal</translation>
    </message>
    <message>
        <source>Draw on the left and on the right at once</source>
        <translation>Dibuja a izquierda y derecha a la vez</translation>
    </message>
    <message>
        <source>Mirror &amp;Top and Bottom</source>
        <translation>Simetría &amp;vertical</translation>
    </message>
    <message>
        <source>Draw at the top and at the bottom at once</source>
        <translation>Dibuja arriba y abajo a la vez</translation>
    </message>
</context>
<context>
    <name>PaletteColourCommand</name>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
</context>
<context>
    <name>PaletteDialog</name>
    <message>
        <source>New Palette</source>
        <translation>Paleta nueva</translation>
    </message>
    <message>
        <source>Create a new palette</source>
        <translation>Crear una paleta</translation>
    </message>
    <message>
        <source>Palette Name</source>
        <translation>Nombre de la paleta</translation>
    </message>
    <message>
        <source>Copy colours from current palette</source>
        <translation>Copiar los colores de la paleta actual</translation>
    </message>
    <message>
        <source>Use the default Next palette</source>
        <translation>Usar la paleta predeterminada del Next</translation>
    </message>
    <message>
        <source>Create a blank palette</source>
        <translation>Crear una paleta vacía</translation>
    </message>
    <message>
        <source>Palette names must be unique</source>
        <translation>Los nombres de las paletas no se pueden repetir</translation>
    </message>
    <message>
        <source>Palette name is required</source>
        <translation>La paleta necesita un nombre</translation>
    </message>
</context>
<context>
    <name>PaletteEditor</name>
    <message>
        <source>Darkens the selected colour(s)</source>
        <translation>Oscurece los colores seleccionados</translation>
    </message>
    <message>
        <source>Lightens the selected colour(s)</source>
        <translation>Aclara los colores seleccionados</translation>
    </message>
    <message>
        <source>Create a gradient</source>
        <translation>Crear un degradado</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Oscurecer</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aclarar</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Degradado</translation>
    </message>
</context>
<context>
    <name>PaletteGrid</name>
    <message>
        <source>Palette Grid Colour Chooser</source>
        <translation>Selector de color de la cuadrícula de la paleta</translation>
    </message>
    <message>
        <source>Index %1: $%2</source>
        <translation>Índice %1: $%2</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Color %1, %2, transparente</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Color %1, %2</translation>
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
        <translation>&amp;Nueva paleta</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>No Palette</source>
        <translation>Ninguna paleta</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>Import Palette</source>
        <translation>Importar paleta</translation>
    </message>
    <message>
        <source>Palette (*.pal *.npl)</source>
        <translation>Paleta (*.pal *.npl)</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp)</source>
        <translation>Imágenes (*.png *.bmp)</translation>
    </message>
    <message>
        <source>Export Palette</source>
        <translation>Exportar paleta</translation>
    </message>
</context>
<context>
    <name>PaletteNotice</name>
    <message>
        <source>There is no palette yet to show colours with.
Palette ▸ New Palette makes one.</source>
        <translation>Aún no hay ninguna paleta con la que mostrar los colores.
Paleta ▸ Nueva paleta crea una.</translation>
    </message>
</context>
<context>
    <name>PaletteSelectorDialog</name>
    <message>
        <source>Swap Palette</source>
        <translation>Cambiar paleta</translation>
    </message>
    <message>
        <source>Show with another palette</source>
        <translation>Mostrar con otra paleta</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>There is no palette to choose; please create one first</source>
        <translation>No hay ninguna paleta que elegir; cree primero una</translation>
    </message>
</context>
<context>
    <name>PaletteTools</name>
    <message>
        <source>Sort by &amp;Hue</source>
        <translation>Ordenar por &amp;tono</translation>
    </message>
    <message>
        <source>Orders the selected entries from red over green to blue, greys first; pictures keep their look</source>
        <translation>Ordena las entradas seleccionadas del rojo al azul pasando por el verde, con los grises primero; las imágenes conservan su aspecto</translation>
    </message>
    <message>
        <source>Sort Palette</source>
        <translation>Ordenar paleta</translation>
    </message>
    <message>
        <source>Sort by &amp;Brightness</source>
        <translation>Ordenar por &amp;brillo</translation>
    </message>
    <message>
        <source>Orders the selected entries from dark to light; pictures keep their look</source>
        <translation>Ordena las entradas seleccionadas de oscuro a claro; las imágenes conservan su aspecto</translation>
    </message>
    <message>
        <source>Re&amp;verse</source>
        <translation>Invertir &amp;orden</translation>
    </message>
    <message>
        <source>Puts the selected entries into the opposite order; pictures keep their look</source>
        <translation>Pone las entradas seleccionadas en el orden contrario; las imágenes conservan su aspecto</translation>
    </message>
    <message>
        <source>Reverse Palette</source>
        <translation>Invertir paleta</translation>
    </message>
    <message>
        <source>E&amp;xchange Ends</source>
        <translation>Interca&amp;mbiar extremos</translation>
    </message>
    <message>
        <source>Lets the first and the last selected entry change places; pictures keep their look</source>
        <translation>Intercambia la primera y la última de las entradas seleccionadas; las imágenes conservan su aspecto</translation>
    </message>
    <message>
        <source>Exchange Palette Entries</source>
        <translation>Intercambiar entradas de la paleta</translation>
    </message>
    <message>
        <source>&amp;Gradient in Machine Steps</source>
        <translation>&amp;Degradado en pasos de la máquina</translation>
    </message>
    <message>
        <source>Spreads the selection from its first to its last colour, each channel in the nearest of its eight levels</source>
        <translation>Reparte la selección de su primer a su último color, cada canal en el más próximo de sus ocho niveles</translation>
    </message>
    <message>
        <source>Mark &amp;Unused Entries</source>
        <translation>Marcar las entradas &amp;sin uso</translation>
    </message>
    <message>
        <source>Marks the entries that no pixel has</source>
        <translation>Marca las entradas que ningún píxel usa</translation>
    </message>
    <message>
        <source>Mark E&amp;qual Entries</source>
        <translation>Marcar las entradas i&amp;guales</translation>
    </message>
    <message>
        <source>Marks the entries whose colour others have, too</source>
        <translation>Marca las entradas cuyo color tienen también otras</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 píxel</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pixels</source>
        <translation>
            <numerusform>%Ln píxel</numerusform>
            <numerusform>%Ln píxeles</numerusform>
        </translation>
    </message>
    <message>
        <source>Select the entries that are to change places</source>
        <translation>Seleccione las entradas que deben intercambiarse</translation>
    </message>
    <message>
        <source>Colour cycles whose entries are no longer next to each other were removed; undo brings them back</source>
        <translation>Se han quitado los ciclos de color cuyas entradas ya no están juntas; deshacer los recupera</translation>
    </message>
    <message>
        <source>The entries cannot change places: tiles and 4-bit sprites need theirs in their group of 16, and transparent entries, and those of tiles that are drawn with several palette offsets, must stay where they are</source>
        <translation>Las entradas no se pueden intercambiar: los tiles y los sprites de 4 bits necesitan las suyas en su grupo de 16, y las entradas transparentes, y las de tiles que se dibujan con varios offsets de paleta, deben quedarse donde están</translation>
    </message>
    <message>
        <source>Colour C&amp;ycles…</source>
        <translation>&amp;Ciclos de color…</translation>
    </message>
    <message>
        <source>Ranges of entries whose colours go round, so that water flows and fires burn</source>
        <translation>Rangos de entradas cuyos colores rotan, para que el agua corra y el fuego arda</translation>
    </message>
    <message>
        <source>Move Palette Entries</source>
        <translation>Mover entradas de la paleta</translation>
    </message>
</context>
<context>
    <name>PaletteWindow</name>
    <message>
        <source>Palette Editor</source>
        <translation>Editor de paletas</translation>
    </message>
    <message>
        <source>No palette selected</source>
        <translation>Ninguna paleta seleccionada</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>The palettes of the project</source>
        <translation>Las paletas del proyecto</translation>
    </message>
    <message>
        <source>Rename, copy, delete or sort the palette</source>
        <translation>Cambiar el nombre de la paleta, copiarla, eliminarla u ordenarla</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Cambiar &amp;nombre</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Palette: %1</source>
        <translation>Paleta: %1</translation>
    </message>
    <message>
        <source>All colours are black. Choose one and change it below, or bring in others with Palette ▸ Import.</source>
        <translation>Todos los colores son negros. Elija uno y cámbielo abajo, o traiga otros con Paleta ▸ Importar.</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>It has %1 × %2 pixels; at most %3 × %3, or as many in another shape, can be read</source>
        <translation>Tiene %1 × %2 píxeles; se pueden leer como máximo %3 × %3, o el mismo número en otra forma</translation>
    </message>
    <message>
        <source>Could not read the image file</source>
        <translation>No se pudo leer el archivo de imagen</translation>
    </message>
    <message>
        <source>It is a pipe or a device, not a file</source>
        <translation>Es una tubería o un dispositivo, no un archivo</translation>
    </message>
</context>
<context>
    <name>PictureImport</name>
    <message>
        <source>Tiles that lost colours: %1 of %2.
A tile shows 16 colours, and all of them together have 16 groups of 16. Reduce the colours of the picture, to 16 in each tile of 8 × 8 pixels and to fewer in all, and import it again.</source>
        <translation>Tiles que perdieron colores: %1 de %2.
Un tile muestra 16 colores, y todos juntos tienen 16 grupos de 16. Reduzca los colores de la imagen a 16 en cada tile de 8 × 8 píxeles y a menos en total, y vuelva a importarla.</translation>
    </message>
    <message>
        <source>Cannot import the image as it would need more than 512 tiles
%1 required</source>
        <translation>No se puede importar la imagen porque necesitaría más de 512 tiles
Necesarios: %1</translation>
    </message>
    <message>
        <source>The image is smaller than a tile, which has 8 × 8 pixels</source>
        <translation>La imagen es más pequeña que un tile, que tiene 8 × 8 píxeles</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importando %1…</translation>
    </message>
    <message>
        <source>The project was closed meanwhile</source>
        <translation>El proyecto se cerró entretanto</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Leyendo %1…</translation>
    </message>
</context>
<context>
    <name>PicturePreview</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
</context>
<context>
    <name>PixelEditor</name>
    <message>
        <source>%1, %2  colour %3</source>
        <translation>%1, %2  color %3</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Show how the picture will look</source>
        <translation>Muestra cómo quedará la imagen</translation>
    </message>
    <message>
        <source>Swap foreground and background</source>
        <translation>Intercambiar los colores de frente y de fondo</translation>
    </message>
    <message>
        <source>Smaller brush</source>
        <translation>Pincel más pequeño</translation>
    </message>
    <message>
        <source>Larger brush</source>
        <translation>Pincel más grande</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Reemplazar color</translation>
    </message>
    <message>
        <source>Gives pixels of the background colour the foreground colour, in the selection if there is one</source>
        <translation>Da el color de frente a los píxeles del color de fondo, dentro de la selección si la hay</translation>
    </message>
    <message>
        <source>Brush from Selection</source>
        <translation>Pincel desde la selección</translation>
    </message>
    <message>
        <source>Draws with what is selected, without its pixels of the background colour</source>
        <translation>Dibuja con lo seleccionado, sin los píxeles del color de fondo</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>What the preview shows</source>
        <translation>Qué muestra la vista previa</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copia)</translation>
    </message>
    <message>
        <source>New palette added: %1</source>
        <translation>Paleta nueva añadida: %1</translation>
    </message>
    <message>
        <source>New tile set added: %1</source>
        <translation>Tileset nuevo añadido: %1</translation>
    </message>
    <message>
        <source>New map added: %1</source>
        <translation>Mapa nuevo añadido: %1</translation>
    </message>
    <message>
        <source>New block set added: %1</source>
        <translation>Conjunto de bloques nuevo añadido: %1</translation>
    </message>
    <message>
        <source>New Sprite Bank Added</source>
        <translation>Banco de sprites nuevo añadido</translation>
    </message>
</context>
<context>
    <name>ProjectActions</name>
    <message>
        <source>%1 (selection)</source>
        <translation>%1 (selección)</translation>
    </message>
    <message>
        <source>Palette In Use</source>
        <translation>Paleta en uso</translation>
    </message>
    <message>
        <source>You may not delete this palette; it is used by one or more sprites, tiles or images</source>
        <translation>No se puede eliminar esta paleta; la usan sprites, tiles o imágenes</translation>
    </message>
    <message>
        <source>Tile Set In Use</source>
        <translation>Tileset en uso</translation>
    </message>
    <message>
        <source>You may not delete this Tile Set; it is used by one or more maps</source>
        <translation>No se puede eliminar este tileset; lo usan uno o varios mapas</translation>
    </message>
    <message>
        <source>Objects in use</source>
        <translation>Objetos en uso</translation>
    </message>
    <message>
        <source>You may not delete these objects; they are in use by one or more maps</source>
        <translation>No se pueden eliminar estos objetos; los usan uno o varios mapas</translation>
    </message>
    <message>
        <source>The file is neither a palette nor a picture that can be read</source>
        <translation>El archivo no es una paleta ni una imagen que se pueda leer</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n colours; the palette takes the first %1 of them</source>
        <translation>
            <numerusform>La imagen tiene %n color; la paleta toma los %1 primeros</numerusform>
            <numerusform>La imagen tiene %n colores; la paleta toma los %1 primeros</numerusform>
        </translation>
    </message>
    <message>
        <source>New Palette for the Others</source>
        <translation>Paleta nueva para los demás</translation>
    </message>
    <message>
        <source>%1, more</source>
        <translation>%1, más</translation>
    </message>
    <message>
        <source>Could not make sprites of the image file</source>
        <translation>No se pudieron crear sprites con el archivo de imagen</translation>
    </message>
    <message>
        <source>Could not import the sprite data</source>
        <translation>No se pudieron importar los datos de sprites</translation>
    </message>
    <message>
        <source>Import Incomplete</source>
        <translation>Importación incompleta</translation>
    </message>
</context>
<context>
    <name>ProjectController</name>
    <message>
        <source>Opening %1…</source>
        <translation>Abriendo %1…</translation>
    </message>
    <message>
        <source>Unable to create a new project</source>
        <translation>No se pudo crear un proyecto nuevo</translation>
    </message>
    <message>
        <source>Recovering the project…</source>
        <translation>Recuperando el proyecto…</translation>
    </message>
    <message>
        <source>loading...</source>
        <translation>cargando...</translation>
    </message>
    <message>
        <source>Saving %1…</source>
        <translation>Guardando %1…</translation>
    </message>
    <message>
        <source>What is kept beside the project cannot be read: %1
The project itself is whole.
%2</source>
        <translation>No se puede leer lo que se guarda junto al proyecto: %1
El proyecto en sí está íntegro.
%2</translation>
    </message>
    <message>
        <source>What is kept beside the project cannot be written: %1
%2</source>
        <translation>No se puede escribir lo que se guarda junto al proyecto: %1
%2</translation>
    </message>
    <message>
        <source>Another program removed or renamed the file of this project, which saving writes again:
%1</source>
        <translation>Otro programa eliminó o cambió de nombre el archivo de este proyecto; al guardar se volverá a escribir:
%1</translation>
    </message>
    <message>
        <source>The file cannot be loaded, and the project stays as it is here: %1</source>
        <translation>No se puede cargar el archivo y el proyecto queda como está aquí: %1</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>Save the changes to %1 before closing it?</source>
        <translation>¿Guardar los cambios de %1 antes de cerrarlo?</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Guardar proyecto</translation>
    </message>
    <message>
        <source>Project file (*.quenmora)</source>
        <translation>Archivo de proyecto (*.quenmora)</translation>
    </message>
    <message>
        <source>The sample project is not installed</source>
        <translation>El proyecto de ejemplo no está instalado</translation>
    </message>
</context>
<context>
    <name>ProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation>Proyecto nuevo</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>Crear un proyecto</translation>
    </message>
    <message>
        <source>Project &amp;name</source>
        <translation>&amp;Nombre del proyecto</translation>
    </message>
</context>
<context>
    <name>ProjectDocument</name>
    <message>
        <source>Failed to load tile image %1</source>
        <translation>No se pudo cargar la imagen de tiles %1</translation>
    </message>
    <message>
        <source>Failed to load tile map anim for map %1</source>
        <translation>No se pudo cargar la animación de tiles del mapa %1</translation>
    </message>
    <message>
        <source>Invalid project file</source>
        <translation>Archivo de proyecto no válido</translation>
    </message>
    <message>
        <source>Project file is from a newer version of Quenmora</source>
        <translation>El archivo de proyecto es de una versión más reciente de Quenmora</translation>
    </message>
    <message>
        <source>Project has a missing sprite anim</source>
        <translation>Al proyecto le falta una animación de sprites</translation>
    </message>
    <message>
        <source>Failed to load tile set tileImage &quot;%1&quot; from project file</source>
        <translation>No se pudo cargar la imagen «%1» del tileset desde el archivo de proyecto</translation>
    </message>
    <message>
        <source>Error setting tile set anim - %1</source>
        <translation>Error al asignar la animación del tileset: %1</translation>
    </message>
</context>
<context>
    <name>ProjectExport</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… y %n más</numerusform>
            <numerusform>… y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>The recipe could not be saved</source>
        <translation>No se pudo guardar la receta</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Error al guardar</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Hubo un problema al exportar los datos</translation>
    </message>
</context>
<context>
    <name>ProjectMenu</name>
    <message>
        <source>Import A&amp;gain</source>
        <translation>&amp;Volver a importar</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Hubo un problema al exportar los datos</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Error al guardar</translation>
    </message>
</context>
<context>
    <name>ProjectStore</name>
    <message>
        <source>Invalid project file</source>
        <translation>Archivo de proyecto no válido</translation>
    </message>
    <message>
        <source>Project loaded</source>
        <translation>Proyecto cargado</translation>
    </message>
    <message>
        <source>Could not create the project file</source>
        <translation>No se pudo crear el archivo de proyecto</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>No se pudo escribir %1</translation>
    </message>
    <message>
        <source>Could not finish writing the project file</source>
        <translation>No se pudo terminar de escribir el archivo de proyecto</translation>
    </message>
    <message>
        <source>Saved %1 to %2</source>
        <translation>Se guardó %1 en %2</translation>
    </message>
    <message>
        <source>Invalid map id</source>
        <translation>Id de mapa no válido</translation>
    </message>
    <message>
        <source>Map exported</source>
        <translation>Mapa exportado</translation>
    </message>
    <message>
        <source>Exporting the map failed</source>
        <translation>No se pudo exportar el mapa</translation>
    </message>
    <message>
        <source>Invalid tile set id</source>
        <translation>Id de tileset no válido</translation>
    </message>
    <message>
        <source>Tile set exported</source>
        <translation>Tileset exportado</translation>
    </message>
    <message>
        <source>Exporting the tile set failed</source>
        <translation>No se pudo exportar el tileset</translation>
    </message>
    <message>
        <source>Invalid palette id</source>
        <translation>Id de paleta no válido</translation>
    </message>
    <message>
        <source>Palette exported</source>
        <translation>Paleta exportada</translation>
    </message>
    <message>
        <source>Exporting the palette failed</source>
        <translation>No se pudo exportar la paleta</translation>
    </message>
</context>
<context>
    <name>ProjectTree</name>
    <message>
        <source>Palettes</source>
        <translation>Paletas</translation>
    </message>
    <message>
        <source>Tile Sets</source>
        <translation>Tilesets</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objetos</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Mapas</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Tile Set</source>
        <translation>Tileset</translation>
    </message>
    <message>
        <source>Map Objects</source>
        <translation>Objetos de mapa</translation>
    </message>
    <message>
        <source>Sprite Bank</source>
        <translation>Banco de sprites</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Cambiar &amp;nombre</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Import A&amp;gain</source>
        <translation>&amp;Volver a importar</translation>
    </message>
</context>
<context>
    <name>ProjectWindow</name>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>No project loaded</source>
        <translation>Ningún proyecto cargado</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ya existe.
¿Desea reemplazarlo?</translation>
    </message>
</context>
<context>
    <name>RecipeTable</name>
    <message>
        <source>1 page of 8 KiB</source>
        <translation>1 página de 8 KiB</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pages of 8 KiB</source>
        <translation>
            <numerusform>%Ln página de 8 KiB</numerusform>
            <numerusform>%Ln páginas de 8 KiB</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>1 bank of 16 KiB</source>
        <translation>1 banco de 16 KiB</translation>
    </message>
    <message numerus="yes">
        <source>%Ln banks of 16 KiB</source>
        <translation>
            <numerusform>%Ln banco de 16 KiB</numerusform>
            <numerusform>%Ln bancos de 16 KiB</numerusform>
        </translation>
    </message>
    <message>
        <source>…</source>
        <translation>…</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modificada</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Sin cambios</translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>No es posible: %1</translation>
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
        <translation>Páginas de 8 KiB y bancos de 16 KiB que ocupan los bytes</translation>
    </message>
    <message>
        <source>Bytes in the game; source text is longer</source>
        <translation>Bytes en el juego; el código fuente es más largo</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Recurso</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>8K / 16K</source>
        <translation>8K / 16K</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
</context>
<context>
    <name>RecoveryKeeper</name>
    <message>
        <source>%1 cannot be written to</source>
        <translation>No se puede escribir en %1</translation>
    </message>
    <message>
        <source>No copy for the time after a crash could be written: %1</source>
        <translation>No se pudo escribir una copia para recuperar tras un fallo: %1</translation>
    </message>
</context>
<context>
    <name>RecoveryList</name>
    <message>
        <source>Never saved</source>
        <translation>Nunca guardado</translation>
    </message>
    <message>
        <source>As it was today at %1</source>
        <translation>Tal como estaba hoy (%1)</translation>
    </message>
    <message>
        <source>As it was yesterday at %1</source>
        <translation>Tal como estaba ayer (%1)</translation>
    </message>
    <message>
        <source>As it was on %1 at %2</source>
        <translation>Tal como estaba el %1 (%2)</translation>
    </message>
    <message>
        <source>A project</source>
        <translation>Un proyecto</translation>
    </message>
    <message>
        <source>The copy is damaged and was put aside:</source>
        <translation>La copia está dañada y se ha apartado:</translation>
    </message>
    <message>
        <source>Discard Copy</source>
        <translation>Descartar copia</translation>
    </message>
    <message>
        <source>Discard what can be recovered of %1?</source>
        <translation>¿Descartar lo que se puede recuperar de %1?</translation>
    </message>
    <message>
        <source>What was not saved is lost then.</source>
        <translation>Lo que no se guardó se perderá.</translation>
    </message>
    <message>
        <source>Not saved when Quenmora stopped</source>
        <translation>Sin guardar cuando Quenmora se detuvo</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>Recover %1</source>
        <translation>Recuperar %1</translation>
    </message>
    <message>
        <source>Opens the project with the changes that were not saved</source>
        <translation>Abre el proyecto con los cambios que no se guardaron</translation>
    </message>
    <message>
        <source>Discard…</source>
        <translation>Descartar…</translation>
    </message>
    <message>
        <source>Discard %1</source>
        <translation>Descartar %1</translation>
    </message>
</context>
<context>
    <name>RectangleCanvasTool</name>
    <message>
        <source>Filled Rectangle</source>
        <translation>Rectángulo relleno</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
</context>
<context>
    <name>ReductionBox</name>
    <message>
        <source>No, as they come</source>
        <translation>No, por orden de llegada</translation>
    </message>
    <message>
        <source>To the nearest</source>
        <translation>Al más próximo</translation>
    </message>
    <message>
        <source>In an ordered pattern</source>
        <translation>Con un patrón ordenado</translation>
    </message>
    <message>
        <source>With error diffusion</source>
        <translation>Con difusión de errores</translation>
    </message>
    <message>
        <source>Colours are found for the whole picture; else those that come last take the nearest of the others</source>
        <translation>Se buscan colores para toda la imagen; si no, los que llegan al final toman el más próximo de los demás</translation>
    </message>
    <message>
        <source>Colours of the machine: %1 before, %2 after</source>
        <translation>Colores de la máquina: %1 antes, %2 después</translation>
    </message>
    <message>
        <source>%1; mean error: %2 levels</source>
        <translation>%1; error medio: %2 niveles</translation>
    </message>
    <message>
        <source>%1; none is lost</source>
        <translation>%1; no se pierde ninguno</translation>
    </message>
</context>
<context>
    <name>Request</name>
    <message>
        <source>Do this recipe, not the one beside the project.</source>
        <translation>Hacer esta receta y no la que está junto al proyecto.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>archivo</translation>
    </message>
    <message>
        <source>Write below this folder, not below the project&apos;s.</source>
        <translation>Escribir dentro de esta carpeta y no de la del proyecto.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>carpeta</translation>
    </message>
    <message>
        <source>Write nothing, but say what would be written.</source>
        <translation>No escribir nada, solo decir qué se escribiría.</translation>
    </message>
    <message>
        <source>Tell make or ninja in this file what was made of what.</source>
        <translation>Indicar a make o ninja en este archivo qué se hizo a partir de qué.</translation>
    </message>
    <message>
        <source>Say nothing unless something fails.</source>
        <translation>No decir nada salvo que algo falle.</translation>
    </message>
    <message>
        <source>Without a recipe: write the asset of this name or id …</source>
        <translation>Sin receta: escribir el recurso de este nombre o id …</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>… in this form …</source>
        <translation>… en este formato …</translation>
    </message>
    <message>
        <source>id</source>
        <translation>id</translation>
    </message>
    <message>
        <source>… with this option of the form, which may be given again for others …</source>
        <translation>… con esta opción del formato, que puede repetirse para otras …</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>clave=valor</translation>
    </message>
    <message>
        <source>… to this file.</source>
        <translation>… en este archivo.</translation>
    </message>
    <message>
        <source>List the assets: kind, id and name.</source>
        <translation>Listar los recursos: tipo, id y nombre.</translation>
    </message>
    <message>
        <source>List the forms and their options.</source>
        <translation>Listar los formatos y sus opciones.</translation>
    </message>
    <message>
        <source>Describe the whole project as text, for git diff.</source>
        <translation>Describir todo el proyecto como texto, para git diff.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>A project file, as game.quenmora.</source>
        <translation>Un archivo de proyecto, como game.quenmora.</translation>
    </message>
    <message>
        <source>Writes the graphics of a Quenmora project in the forms that a game takes, as its recipe says, the file
game.quenmora-export.json beside game.quenmora, which File &gt; Export Project in the editor makes.
Files whose bytes stay the same are not touched.</source>
        <translation>Escribe los gráficos de un proyecto de Quenmora en los formatos que carga un juego, según su receta, el archivo
game.quenmora-export.json junto a game.quenmora, que crea Archivo &gt; Exportar proyecto en el editor.
Los archivos cuyos bytes no cambian no se tocan.</translation>
    </message>
    <message>
        <source>--%1 and --%2 do not go together</source>
        <translation>--%1 y --%2 no son compatibles</translation>
    </message>
    <message>
        <source>--%1 takes KEY=VALUE, not “%2”</source>
        <translation>--%1 espera CLAVE=VALOR, no «%2»</translation>
    </message>
    <message>
        <source>--%1 is there twice</source>
        <translation>--%1 aparece dos veces</translation>
    </message>
    <message>
        <source>--%1 needs a value</source>
        <translation>--%1 necesita un valor</translation>
    </message>
    <message>
        <source>--%1 means nothing here</source>
        <translation>--%1 no significa nada aquí</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 necesita --%2</translation>
    </message>
    <message>
        <source>“%1” is one argument too many</source>
        <translation>«%1» es un argumento de más</translation>
    </message>
    <message>
        <source>A project file is missing</source>
        <translation>Falta un archivo de proyecto</translation>
    </message>
    <message>
        <source>Write a small picture of the project, as file managers show, to this PNG file …</source>
        <translation>Escribir una imagen pequeña del proyecto, como las que muestran los gestores de archivos, en este archivo PNG …</translation>
    </message>
    <message>
        <source>… of at most so many pixels along its sides; 256 without this.</source>
        <translation>… de como máximo tantos píxeles por lado; 256 sin esto.</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>píxeles</translation>
    </message>
    <message>
        <source>--%1 takes a number from 1 to %2, not “%3”</source>
        <translation>--%1 espera un número de 1 a %2, no «%3»</translation>
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
        <translation>Nivel de rojo</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green level</source>
        <translation>Nivel de verde</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue level</source>
        <translation>Nivel de azul</translation>
    </message>
</context>
<context>
    <name>ScrollBar</name>
    <message>
        <source>Add a column on the left</source>
        <translation>Añadir una columna a la izquierda</translation>
    </message>
    <message>
        <source>Add a row at the top</source>
        <translation>Añadir una fila arriba</translation>
    </message>
    <message>
        <source>Remove the column on the left</source>
        <translation>Quitar la columna de la izquierda</translation>
    </message>
    <message>
        <source>Remove the row at the top</source>
        <translation>Quitar la fila de arriba</translation>
    </message>
    <message>
        <source>Remove the column on the right</source>
        <translation>Quitar la columna de la derecha</translation>
    </message>
    <message>
        <source>Remove the row at the bottom</source>
        <translation>Quitar la fila de abajo</translation>
    </message>
    <message>
        <source>Add a column on the right</source>
        <translation>Añadir una columna a la derecha</translation>
    </message>
    <message>
        <source>Add a row at the bottom</source>
        <translation>Añadir una fila abajo</translation>
    </message>
</context>
<context>
    <name>SeveralOutputsDialog</name>
    <message>
        <source>Edit Outputs</source>
        <translation>Editar salidas</translation>
    </message>
    <message numerus="yes">
        <source>What %Ln outputs are to have alike</source>
        <translation>
            <numerusform>Lo que tendrá %Ln salida</numerusform>
            <numerusform>Lo que tendrán en común %Ln salidas</numerusform>
        </translation>
    </message>
    <message>
        <source>Please choose what is to change</source>
        <translation>Elija qué debe cambiar</translation>
    </message>
</context>
<context>
    <name>ShortcutsDialog</name>
    <message>
        <source>A&amp;dd Key</source>
        <translation>Añadir &amp;tecla</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>&amp;Take It Away There</source>
        <translation>&amp;Quitarla allí</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Buscar por nombre</translation>
    </message>
    <message>
        <source>or by &amp;keys:</source>
        <translation>o por te&amp;clas:</translation>
    </message>
    <message>
        <source>Search by keys</source>
        <translation>Buscar por teclas</translation>
    </message>
    <message>
        <source>Press keys to see what they do</source>
        <translation>Pulse unas teclas para ver qué hacen</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Dónde</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Órdenes</translation>
    </message>
    <message>
        <source>Leaves these keys to this command alone</source>
        <translation>Deja estas teclas solo para esta orden</translation>
    </message>
    <message>
        <source>Gives the command its usual keys</source>
        <translation>Devuelve a la orden sus teclas habituales</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>Restablecer t&amp;odo</translation>
    </message>
    <message>
        <source>Gives all commands their usual keys</source>
        <translation>Devuelve a todas las órdenes sus teclas habituales</translation>
    </message>
    <message>
        <source>Another command has these keys, too</source>
        <translation>Otra orden también tiene estas teclas</translation>
    </message>
    <message>
        <source>Keys of “%1”</source>
        <translation>Teclas de «%1»</translation>
    </message>
    <message>
        <source>Press the keys that shall do it</source>
        <translation>Pulse las teclas que deben hacerlo</translation>
    </message>
    <message>
        <source>%1 is a key of “%2” (%3), too. Neither would do anything.</source>
        <translation>%1 también es una tecla de «%2» (%3). Ninguna de las dos haría nada.</translation>
    </message>
</context>
<context>
    <name>ShortcutsFile</name>
    <message>
        <source>The file is too large</source>
        <translation>El archivo es demasiado grande</translation>
    </message>
    <message>
        <source>The file does not hold keys by command</source>
        <translation>El archivo no contiene teclas por orden</translation>
    </message>
</context>
<context>
    <name>SlicingProgress</name>
    <message>
        <source>Processing image</source>
        <translation>Procesando la imagen</translation>
    </message>
</context>
<context>
    <name>SpriteAnim</name>
    <message>
        <source>New Sprite</source>
        <translation>Sprite nuevo</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copia)</translation>
    </message>
</context>
<context>
    <name>SpriteDialog</name>
    <message>
        <source>New Sprites</source>
        <translation>Sprites nuevos</translation>
    </message>
    <message>
        <source>Create a new sprite bank</source>
        <translation>Crear un banco de sprites</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>Pro&amp;fundidad</translation>
    </message>
    <message>
        <source>New palette of the same name</source>
        <translation>Paleta nueva con el mismo nombre</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::AnimationEditorWidget</name>
    <message>
        <source>Set the frame width in sprites</source>
        <translation>Anchura del fotograma en sprites</translation>
    </message>
    <message>
        <source>Set the frame height in sprites</source>
        <translation>Altura del fotograma en sprites</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::ImportBinaryDialog</name>
    <message>
        <source>Import Sprites</source>
        <translation>Importar sprites</translation>
    </message>
    <message>
        <source>Make sprites of raw data</source>
        <translation>Crear sprites a partir de datos en bruto</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>Pro&amp;fundidad</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>%L1 in the file</source>
        <translation>%L1 en el archivo</translation>
    </message>
    <message>
        <source>New standard palette</source>
        <translation>Paleta estándar nueva</translation>
    </message>
    <message>
        <source>There is no sprite in this file, or it cannot be read</source>
        <translation>No hay ningún sprite en este archivo, o no se puede leer</translation>
    </message>
    <message>
        <source>The file holds more sprites than fit into a bank</source>
        <translation>El archivo contiene más sprites de los que caben en un banco</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::ImportImageDialog</name>
    <message>
        <source>Import Sprites</source>
        <translation>Importar sprites</translation>
    </message>
    <message>
        <source>Make sprites of a picture</source>
        <translation>Crear sprites a partir de una imagen</translation>
    </message>
    <message>
        <source>Nearest colours of a &amp;palette</source>
        <translation>Colores más próximos de una &amp;paleta</translation>
    </message>
    <message>
        <source>N&amp;ew palette, and every sprite once</source>
        <translation>Paleta n&amp;ueva y cada sprite una sola vez</translation>
    </message>
    <message>
        <source>&amp;Keep the machine&apos;s colours</source>
        <translation>&amp;Conservar los colores de la máquina</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has, and stays exactly that</source>
        <translation>Cada color de la imagen es uno de los que tiene el Next y se conserva exactamente</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>Pro&amp;fundidad</translation>
    </message>
    <message>
        <source>&amp;Fewer colours</source>
        <translation>&amp;Reducir colores</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Leyendo %1…</translation>
    </message>
    <message>
        <source>Reducing %1…</source>
        <translation>Reduciendo %1…</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Ninguna imagen</translation>
    </message>
    <message>
        <source>%1 × %2 sprites, colours: %3, and transparent pixels</source>
        <translation>%1 × %2 sprites, colores: %3, y píxeles transparentes</translation>
    </message>
    <message>
        <source>%1 × %2 sprites, colours: %3</source>
        <translation>%1 × %2 sprites, colores: %3</translation>
    </message>
    <message>
        <source>There is room for %1; the others take the nearest of these</source>
        <translation>Caben %1; los demás toman el más próximo de estos</translation>
    </message>
    <message>
        <source>The file is not a picture that can be read</source>
        <translation>El archivo no es una imagen que se pueda leer</translation>
    </message>
    <message>
        <source>The picture is smaller than a sprite, which has 16 × 16 pixels</source>
        <translation>La imagen es más pequeña que un sprite, que tiene 16 × 16 píxeles</translation>
    </message>
    <message>
        <source>The picture holds more sprites than fit into a bank</source>
        <translation>La imagen contiene más sprites de los que caben en un banco</translation>
    </message>
    <message>
        <source>There is a palette of this name already; please choose another name</source>
        <translation>Ya hay una paleta con este nombre; elija otro nombre</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n colours; 4-bit sprites show 15 beside the transparent one</source>
        <translation>
            <numerusform>La imagen tiene %n color; los sprites de 4 bits muestran 15 además del transparente</numerusform>
            <numerusform>La imagen tiene %n colores; los sprites de 4 bits muestran 15 además del transparente</numerusform>
        </translation>
    </message>
    <message>
        <source>The colours lie in several groups of 16 of the palette; 4-bit sprites show one group</source>
        <translation>Los colores están en varios grupos de 16 de la paleta; los sprites de 4 bits muestran un solo grupo</translation>
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
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Copiar imagen</translation>
    </message>
    <message>
        <source>Paste Image</source>
        <translation>Pegar imagen</translation>
    </message>
    <message>
        <source>Add Sprite</source>
        <translation>Añadir sprite</translation>
    </message>
    <message>
        <source>Sprite %1</source>
        <translation>Sprite %1</translation>
    </message>
    <message>
        <source>Add a sprite</source>
        <translation>Añadir un sprite</translation>
    </message>
</context>
<context>
    <name>SpriteImport</name>
    <message>
        <source>Importing %1…</source>
        <translation>Importando %1…</translation>
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
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>Cambiar &amp;paleta</translation>
    </message>
    <message>
        <source>&amp;Export Data</source>
        <translation>&amp;Exportar datos</translation>
    </message>
    <message>
        <source>Select a file to import</source>
        <translation>Seleccione un archivo para importar</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp)</source>
        <translation>Imágenes (*.png *.bmp)</translation>
    </message>
    <message>
        <source>Next sprites (*.spr)</source>
        <translation>Sprites del Next (*.spr)</translation>
    </message>
    <message>
        <source>Export Sprite Data</source>
        <translation>Exportar datos de sprites</translation>
    </message>
    <message>
        <source>Next Sprites (*.spr)</source>
        <translation>Sprites del Next (*.spr)</translation>
    </message>
</context>
<context>
    <name>SpriteWindow</name>
    <message>
        <source>Sprite Editor</source>
        <translation>Editor de sprites</translation>
    </message>
    <message>
        <source>No sprites selected</source>
        <translation>Ningún sprite seleccionado</translation>
    </message>
    <message>
        <source>Onion Skin</source>
        <translation>Papel cebolla</translation>
    </message>
    <message>
        <source>Show the sprite of the frame before faintly over this one</source>
        <translation>Muestra el sprite del fotograma anterior atenuado sobre este</translation>
    </message>
    <message>
        <source>Replace Colour in All Sprites</source>
        <translation>Reemplazar color en todos los sprites</translation>
    </message>
    <message>
        <source>Does that in all sprites of the bank</source>
        <translation>Lo hace en todos los sprites del banco</translation>
    </message>
    <message>
        <source>Pixels of this index are not drawn on the Next, whatever their colour</source>
        <translation>Los píxeles con este índice no se dibujan en el Next, sea cual sea su color</translation>
    </message>
    <message>
        <source>Transparent index</source>
        <translation>Índice transparente</translation>
    </message>
    <message>
        <source>Add Sprite</source>
        <translation>Añadir sprite</translation>
    </message>
    <message>
        <source>Delete Sprite</source>
        <translation>Eliminar sprite</translation>
    </message>
    <message>
        <source>Clear Sprite</source>
        <translation>Vaciar sprite</translation>
    </message>
    <message>
        <source>Copy Sprite</source>
        <translation>Copiar sprite</translation>
    </message>
    <message>
        <source>Move Sprite</source>
        <translation>Mover sprite</translation>
    </message>
    <message>
        <source>Sprites: %1</source>
        <translation>Sprites: %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animación</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Repetido</translation>
    </message>
    <message>
        <source>No animation shows this sprite</source>
        <translation>Ninguna animación muestra este sprite</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Reemplazar color</translation>
    </message>
    <message>
        <source>Transparent Index</source>
        <translation>Índice transparente</translation>
    </message>
    <message>
        <source>Draw the first sprite here; the last place of the list below adds another</source>
        <translation>Dibuje aquí el primer sprite; el último sitio de la lista de abajo añade otro</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>A double click in the Project dock opens an asset</source>
        <translation>Un doble clic en el panel Proyecto abre un recurso</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Proyectos recientes</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Proyecto nuevo</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Abrir un proyecto</translation>
    </message>
    <message>
        <source>Read the guide</source>
        <translation>Leer la guía</translation>
    </message>
    <message>
        <source>To look at and to play with</source>
        <translation>Para mirar y probar</translation>
    </message>
    <message>
        <source>The sample project</source>
        <translation>El proyecto de ejemplo</translation>
    </message>
    <message>
        <source>A level, sprites and a title screen</source>
        <translation>Un nivel, sprites y una pantalla de título</translation>
    </message>
</context>
<context>
    <name>TileAnimation</name>
    <message>
        <source>Blocks!</source>
        <translation>¡Bloques!</translation>
    </message>
    <message>
        <source>%1 (Copy)</source>
        <translation>%1 (copia)</translation>
    </message>
</context>
<context>
    <name>TileAnimationDialog</name>
    <message>
        <source>New Map Objects</source>
        <translation>Objetos de mapa nuevos</translation>
    </message>
    <message>
        <source>Create map objects: animations for maps</source>
        <translation>Crear objetos de mapa: animaciones para los mapas</translation>
    </message>
    <message>
        <source>&amp;Tile set</source>
        <translation>&amp;Tileset</translation>
    </message>
    <message>
        <source>Map objects are made of the tiles of a tile set; please create a tile set first</source>
        <translation>Los objetos de mapa se componen de los tiles de un tileset; cree primero un tileset</translation>
    </message>
</context>
<context>
    <name>TileAttributesEditor</name>
    <message>
        <source>Solid top</source>
        <translation>Sólido arriba</translation>
    </message>
    <message>
        <source>Solid left</source>
        <translation>Sólido izquierda</translation>
    </message>
    <message>
        <source>Solid right</source>
        <translation>Sólido derecha</translation>
    </message>
    <message>
        <source>Solid bottom</source>
        <translation>Sólido abajo</translation>
    </message>
    <message>
        <source>Deadly</source>
        <translation>Mortal</translation>
    </message>
    <message>
        <source>Collectible</source>
        <translation>Coleccionable</translation>
    </message>
    <message>
        <source>Ladder</source>
        <translation>Escalera</translation>
    </message>
    <message>
        <source>Door</source>
        <translation>Puerta</translation>
    </message>
    <message>
        <source>Solid on all edges</source>
        <translation>Sólido en todos los bordes</translation>
    </message>
    <message>
        <source>A number of your own for the game</source>
        <translation>Un número propio para el juego</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
</context>
<context>
    <name>TileEditor::ExportDialog</name>
    <message>
        <source>Export Tiles</source>
        <translation>Exportar tiles</translation>
    </message>
    <message>
        <source>&amp;Rotate</source>
        <translation>&amp;Rotar</translation>
    </message>
    <message>
        <source>Export the pixels of tiles</source>
        <translation>Exportar los píxeles de los tiles</translation>
    </message>
    <message>
        <source>Writes the columns of a tile as its rows</source>
        <translation>Escribe las columnas de un tile como sus filas</translation>
    </message>
    <message>
        <source>&amp;First tile</source>
        <translation>&amp;Primer tile</translation>
    </message>
    <message>
        <source>&amp;Last tile</source>
        <translation>Últi&amp;mo tile</translation>
    </message>
    <message>
        <source>Export Tiles: %1</source>
        <translation>Exportar tiles: %1</translation>
    </message>
    <message>
        <source>The tile set has no tiles</source>
        <translation>El tileset no tiene tiles</translation>
    </message>
    <message>
        <source>The first tile comes after the last one</source>
        <translation>El primer tile va después del último</translation>
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
        <translation>&amp;Nuevo tileset</translation>
    </message>
    <message>
        <source>&amp;Create Animations</source>
        <translation>&amp;Crear animaciones</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>Cambiar &amp;paleta</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>Export &amp;Attributes</source>
        <translation>Exportar &amp;atributos</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>Ne&amp;xt Tile</source>
        <translation>Tile &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous Tile</source>
        <translation>Tile an&amp;terior</translation>
    </message>
    <message>
        <source>Tile List &amp;Magnification</source>
        <translation>A&amp;mpliación de la lista de tiles</translation>
    </message>
    <message>
        <source>&amp;Spectrum Chars</source>
        <translation>Ca&amp;racteres de Spectrum</translation>
    </message>
    <message>
        <source>Export Tiles</source>
        <translation>Exportar tiles</translation>
    </message>
    <message>
        <source>Tile Data (*.bin)</source>
        <translation>Datos de tiles (*.bin)</translation>
    </message>
    <message>
        <source>Export tile attributes</source>
        <translation>Exportar atributos de tiles</translation>
    </message>
    <message>
        <source>ASM Code (*.asm)</source>
        <translation>Código ASM (*.asm)</translation>
    </message>
    <message>
        <source>Binary Data (*.bin)</source>
        <translation>Datos binarios (*.bin)</translation>
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
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Copiar imagen</translation>
    </message>
    <message>
        <source>Paste Image</source>
        <translation>Pegar imagen</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insertar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1x</translation>
    </message>
    <message>
        <source>Index: %1
Palette Offset: %2</source>
        <translation>Índice: %1
Offset de paleta: %2</translation>
    </message>
    <message>
        <source>Tile %1, palette offset %2</source>
        <translation>Tile %1, offset de paleta %2</translation>
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
        <translation>Ningún tileset activo</translation>
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
        <translation>Copiar tile</translation>
    </message>
    <message>
        <source>Delete Tile</source>
        <translation>Eliminar tile</translation>
    </message>
    <message>
        <source>Insert Tile</source>
        <translation>Insertar tile</translation>
    </message>
    <message>
        <source>Move Tile</source>
        <translation>Mover tile</translation>
    </message>
</context>
<context>
    <name>TileSetDialog</name>
    <message>
        <source>New Tile Set</source>
        <translation>Tileset nuevo</translation>
    </message>
    <message>
        <source>Create a new tile set</source>
        <translation>Crear un tileset</translation>
    </message>
    <message>
        <source>&amp;High resolution</source>
        <translation>&amp;Alta resolución</translation>
    </message>
    <message>
        <source>For the tilemap of 80 columns, whose pixels are half as wide</source>
        <translation>Para el mapa de tiles de 80 columnas, cuyos píxeles tienen la mitad de anchura</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>&amp;Tiles</source>
        <translation>&amp;Tiles</translation>
    </message>
    <message>
        <source>New palette of the same name</source>
        <translation>Paleta nueva con el mismo nombre</translation>
    </message>
</context>
<context>
    <name>TileWindow</name>
    <message>
        <source>Tile Editor</source>
        <translation>Editor de tiles</translation>
    </message>
    <message>
        <source>No tile set selected</source>
        <translation>Ningún tileset seleccionado</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Tile</translation>
    </message>
    <message>
        <source>The group of 16 colours that the tile is drawn with</source>
        <translation>El grupo de 16 colores con que se dibuja el tile</translation>
    </message>
    <message>
        <source>Replace Colour in All Tiles</source>
        <translation>Reemplazar color en todos los tiles</translation>
    </message>
    <message>
        <source>Does that in all tiles of this palette offset</source>
        <translation>Lo hace en todos los tiles de este offset de paleta</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Offset de paleta</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Atributos</translation>
    </message>
    <message>
        <source>Palette Editor</source>
        <translation>Editor de paletas</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Repetido</translation>
    </message>
    <message>
        <source>On the Map</source>
        <translation>En el mapa</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animación</translation>
    </message>
    <message>
        <source>No map of this tile set is in front</source>
        <translation>No hay ningún mapa de este tileset en primer plano</translation>
    </message>
    <message>
        <source>The map in front does not show this tile</source>
        <translation>El mapa en primer plano no muestra este tile</translation>
    </message>
    <message>
        <source>No animation shows this tile</source>
        <translation>Ninguna animación muestra este tile</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Reemplazar color</translation>
    </message>
    <message>
        <source>Draw the first tile here: the left button paints with the foreground colour, the right one with the background colour</source>
        <translation>Dibuje aquí el primer tile: el botón izquierdo pinta con el color de frente, el derecho con el de fondo</translation>
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
        <translation>Más</translation>
    </message>
</context>
<context>
    <name>ToolPalette</name>
    <message>
        <source>Draw</source>
        <translation>Dibujar</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
    <message>
        <source>Filled rectangle</source>
        <translation>Rectángulo relleno</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Círculo</translation>
    </message>
    <message>
        <source>Filled circle</source>
        <translation>Círculo relleno</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Cuentagotas</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Redimensionar</translation>
    </message>
    <message>
        <source>Toggle Grid</source>
        <translation>Mostrar cuadrícula</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Rotate clockwise</source>
        <translation>Rotar en sentido horario</translation>
    </message>
    <message>
        <source>Rotate anticlockwise</source>
        <translation>Rotar en sentido antihorario</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Down</source>
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
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Flip top to bottom</source>
        <translation>Voltear de arriba abajo</translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation>Reflejar de izquierda a derecha</translation>
    </message>
    <message>
        <source>Reset all palette offsets</source>
        <translation>Restablecer los offsets de paleta</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Play Animations</source>
        <translation>Reproducir animaciones</translation>
    </message>
    <message>
        <source>Stop Animations</source>
        <translation>Detener animaciones</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Ajustar a la ventana</translation>
    </message>
    <message>
        <source>Place animations</source>
        <translation>Colocar animaciones</translation>
    </message>
    <message>
        <source>Place sprites</source>
        <translation>Colocar sprites</translation>
    </message>
    <message>
        <source>Shrink to fit</source>
        <translation>Reducir hasta ajustar</translation>
    </message>
    <message>
        <source>Toggle viewport</source>
        <translation>Mostrar área visible</translation>
    </message>
    <message>
        <source>Paint terrain</source>
        <translation>Pintar terreno</translation>
    </message>
    <message>
        <source>Random tiles of the stamp</source>
        <translation>Tiles aleatorios del sello</translation>
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
        <translation>● Sin guardar</translation>
    </message>
    <message>
        <source>The project has unsaved changes</source>
        <translation>El proyecto tiene cambios sin guardar</translation>
    </message>
    <message>
        <source>The project has changes that are not saved yet</source>
        <translation>El proyecto tiene cambios que aún no se han guardado</translation>
    </message>
</context>
<context>
    <name>Update::UpdateChecker</name>
    <message>
        <source>The update feed is too large</source>
        <translation>La lista de actualizaciones es demasiado grande</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Release Notes…</source>
        <translation>Notas de la versión…</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Descargar…</translation>
    </message>
    <message>
        <source>Quenmora — update available</source>
        <translation>Quenmora — actualización disponible</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Quenmora %1 is available</source>
        <translation>Quenmora %1 está disponible</translation>
    </message>
    <message>
        <source>You have %1 (built %2).
The new version was released %3.</source>
        <translation>Tiene la versión %1 (compilada el %2).
La nueva versión se publicó el %3.</translation>
    </message>
</context>
<context>
    <name>UpdatePresenter</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Actualización disponible: %1</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>Ya tiene la última versión</translation>
    </message>
    <message>
        <source>Quenmora %1 is up to date.</source>
        <translation>Quenmora %1 está actualizado.</translation>
    </message>
    <message>
        <source>Could not reach the update server</source>
        <translation>No se pudo acceder al servidor de actualizaciones</translation>
    </message>
    <message>
        <source>Could not reach the update server.
%1</source>
        <translation>No se pudo acceder al servidor de actualizaciones.
%1</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>S&amp;cratch Image Editor</source>
        <translation>Editor de borra&amp;dor</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>&amp;Barra de estado</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>&amp;Restablecer disposición</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Ventana</translation>
    </message>
</context>
<context>
    <name>WriteProblem</name>
    <message>
        <source>There is no folder %1</source>
        <translation>No existe la carpeta %1</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 es una carpeta</translation>
    </message>
    <message>
        <source>%1 is a pipe or a device, not a file</source>
        <translation>%1 es una tubería o un dispositivo, no un archivo</translation>
    </message>
    <message>
        <source>You may not write to %1</source>
        <translation>No tiene permiso para escribir en %1</translation>
    </message>
    <message>
        <source>%1 could not be written to its end; there may be no room left</source>
        <translation>%1 no se pudo escribir hasta el final; quizá no quede espacio</translation>
    </message>
    <message>
        <source>No file can be called %1: a slash would lead into another folder. Another name of the asset helps.</source>
        <translation>Ningún archivo puede llamarse %1: una barra llevaría a otra carpeta. Basta con otro nombre del recurso.</translation>
    </message>
    <message>
        <source>No file can be called that: %1. Another name of the asset helps.</source>
        <translation>Ningún archivo puede llamarse así: %1. Basta con otro nombre del recurso.</translation>
    </message>
</context>
</TS>
