<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_GB">
<context>
    <name>AboutBox</name>
    <message>
        <source>Licence of the icons</source>
        <translation>Licença dos ícones</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Sobre o %1</translation>
    </message>
    <message>
        <source>An editor for the graphics of ZX Spectrum Next games: palettes, tiles, maps, sprites, animations and pictures.</source>
        <translation>Um editor para os gráficos de jogos do ZX Spectrum Next: paletas, tiles, mapas, sprites, animações e imagens.</translation>
    </message>
    <message>
        <source>Built with Qt %1. Icons by Lucide.</source>
        <translation>Feito com Qt %1. Ícones do Lucide.</translation>
    </message>
</context>
<context>
    <name>AddOutputsDialog</name>
    <message>
        <source>Add Outputs</source>
        <translation>Adicionar saídas</translation>
    </message>
    <message>
        <source>Which assets does the game take?</source>
        <translation>Quais recursos o jogo usa?</translation>
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
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Assets</source>
        <translation>Recursos</translation>
    </message>
    <message>
        <source>The project&apos;s folder</source>
        <translation>A pasta do projeto</translation>
    </message>
    <message>
        <source>A folder below the project&apos;s, with / between folders</source>
        <translation>Uma pasta dentro da pasta do projeto, com / entre as pastas</translation>
    </message>
    <message>
        <source>&amp;Source text</source>
        <translation>&amp;Código-fonte</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Pasta</translation>
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
        <translation>Os habituais</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Adicionar</translation>
    </message>
    <message>
        <source>&amp;Add 1 Output</source>
        <translation>&amp;Adicionar 1 saída</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Add %Ln Outputs</source>
        <translation>
            <numerusform>&amp;Adicionar %Ln saída</numerusform>
            <numerusform>&amp;Adicionar %Ln saídas</numerusform>
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
        <translation>Ainda não contém nada</translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>Impossível: %1</translation>
    </message>
    <message>
        <source>The project has no assets yet</source>
        <translation>O projeto ainda não tem recursos</translation>
    </message>
    <message>
        <source>Please tick what is to be exported</source>
        <translation>Marque o que deve ser exportado</translation>
    </message>
    <message numerus="yes">
        <source>A recipe can have %n outputs</source>
        <translation>
            <numerusform>Uma receita pode ter %n saída</numerusform>
            <numerusform>Uma receita pode ter %n saídas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AnimationControlWidget</name>
    <message>
        <source>Goto first frame</source>
        <translation>Ir para o primeiro quadro</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Quadro anterior</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Pause playback</source>
        <translation>Pausar a reprodução</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Próximo quadro</translation>
    </message>
    <message>
        <source>Goto last frame</source>
        <translation>Ir para o último quadro</translation>
    </message>
    <message>
        <source>Add a frame</source>
        <translation>Adicionar um quadro</translation>
    </message>
    <message>
        <source>Delete current frame</source>
        <translation>Excluir o quadro atual</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>Ping pong</source>
        <translation>Vaivém</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Quadro %1 de %2</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationListWidget</name>
    <message>
        <source>Animations</source>
        <translation>Animações</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Add a new animation</source>
        <translation>Adicionar uma nova animação</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Delete the selected animation</source>
        <translation>Excluir a animação selecionada</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Clonar</translation>
    </message>
    <message>
        <source>Copy the selected animation</source>
        <translation>Copiar a animação selecionada</translation>
    </message>
    <message numerus="yes">
        <source>%1
%n frame(s) [%2x%3]</source>
        <translation>
            <numerusform>%1
%n quadro [%2x%3]</numerusform>
            <numerusform>%1
%n quadros [%2x%3]</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no animations yet. Add below makes the first one.</source>
        <translation>Ainda não há animações. “Adicionar”, abaixo, cria a primeira.</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationToolBar</name>
    <message>
        <source>Animation</source>
        <translation>Animação</translation>
    </message>
    <message>
        <source>The name of the animation</source>
        <translation>O nome da animação</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>W:</source>
        <translation>L:</translation>
    </message>
    <message>
        <source>H:</source>
        <translation>A:</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Delay:</source>
        <translation>Atraso:</translation>
    </message>
    <message>
        <source>Set the delay between animation frames
0 = No Delay, 1 = 25fps, 2 = 12.5fps</source>
        <translation>Define o atraso entre os quadros da animação
0 = sem atraso, 1 = 25 fps, 2 = 12,5 fps</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationView</name>
    <message>
        <source>Animations</source>
        <translation>Animações</translation>
    </message>
    <message>
        <source>No animation selected</source>
        <translation>Nenhuma animação selecionada</translation>
    </message>
    <message>
        <source>Animation: %1</source>
        <translation>Animação: %1</translation>
    </message>
    <message>
        <source>Delete?</source>
        <translation>Excluir?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this animation?</source>
        <translation>Tem certeza de que deseja remover esta animação?</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::EditorWidget</name>
    <message>
        <source>Onion Skin</source>
        <translation>Casca de cebola</translation>
    </message>
    <message>
        <source>Index:</source>
        <translation>Índice:</translation>
    </message>
    <message>
        <source>The index in the selected cell</source>
        <translation>O índice na célula selecionada</translation>
    </message>
    <message>
        <source>Show the frame before faintly over this one</source>
        <translation>Mostra o quadro anterior esmaecido sobre este</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::FrameEditorWidget</name>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Quadro</translation>
    </message>
    <message>
        <source>Cells of the frame</source>
        <translation>Células do quadro</translation>
    </message>
    <message>
        <source>Rotated</source>
        <translation>Girado</translation>
    </message>
    <message>
        <source>Flipped</source>
        <translation>Virado</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Espelhado</translation>
    </message>
    <message>
        <source>Index:	%1
Offset:	%2
Flip	%3
Mirror:	%4
Rotate:	%5</source>
        <translation>Índice:	%1
Offset:	%2
Virar:	%3
Espelhar:	%4
Girar:	%5</translation>
    </message>
    <message>
        <source>Column %1, row %2, sprite %3</source>
        <translation>Coluna %1, linha %2, sprite %3</translation>
    </message>
    <message>
        <source>Column %1, row %2, tile %3</source>
        <translation>Coluna %1, linha %2, tile %3</translation>
    </message>
</context>
<context>
    <name>AssetChooser</name>
    <message>
        <source>No palettes</source>
        <translation>Nenhuma paleta</translation>
    </message>
    <message>
        <source>No tile sets</source>
        <translation>Nenhum tileset</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>There is a palette of this name already; choose it, or another name</source>
        <translation>Já existe uma paleta com este nome; escolha-a ou use outro nome</translation>
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
        <translation>Imagens</translation>
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
        <translation>O offset de paleta da célula selecionada</translation>
    </message>
    <message>
        <source>Update palette offsets to default values</source>
        <translation>Restaura os offsets de paleta aos valores padrão</translation>
    </message>
</context>
<context>
    <name>BlockEditor::View</name>
    <message>
        <source>New Object</source>
        <translation>Novo objeto</translation>
    </message>
</context>
<context>
    <name>BlockEditorToolBar</name>
    <message>
        <source>Set the frame width in tiles</source>
        <translation>Define a largura do quadro em tiles</translation>
    </message>
    <message>
        <source>Set the frame height in tiles</source>
        <translation>Define a altura do quadro em tiles</translation>
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
        <translation>Como o jogo move a animação</translation>
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
        <translation>Nenhum tileset ativo</translation>
    </message>
    <message>
        <source>The tile set has no map objects</source>
        <translation>O tileset não tem objetos de mapa</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Paint canvas</source>
        <translation>Área de pintura</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Limpar seleção</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Apagar</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Preencher</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Desenhar</translation>
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
        <translation>Coluna %1, linha %2, cor %3, %4</translation>
    </message>
</context>
<context>
    <name>CircleCanvasTool</name>
    <message>
        <source>Filled Circle</source>
        <translation>Círculo preenchido</translation>
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
        <translation>&amp;Adicionar seleção</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>Ranges of the palette whose colours go round</source>
        <translation>Faixas da paleta cujas cores circulam</translation>
    </message>
    <message>
        <source>How many frames of the machine&apos;s screen, fifty a second, pass from step to step</source>
        <translation>Quantos quadros da tela da máquina, cinquenta por segundo, passam de um passo a outro</translation>
    </message>
    <message>
        <source>To higher entries</source>
        <translation>Para entradas maiores</translation>
    </message>
    <message>
        <source>To lower entries</source>
        <translation>Para entradas menores</translation>
    </message>
    <message>
        <source>Where colours move</source>
        <translation>Para onde vão as cores</translation>
    </message>
    <message>
        <source>The colours of a range go round: each moves to the next entry, and the one that leaves at one end comes in at the other. Neither palette nor pictures change.</source>
        <translation>As cores de uma faixa circulam: cada uma passa para a entrada seguinte, e a que sai por uma ponta entra pela outra. Nem a paleta nem as imagens mudam.</translation>
    </message>
    <message>
        <source>First entry</source>
        <translation>Primeira entrada</translation>
    </message>
    <message>
        <source>Last entry</source>
        <translation>Última entrada</translation>
    </message>
    <message>
        <source>Frames a step</source>
        <translation>Quadros por passo</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direção</translation>
    </message>
    <message>
        <source>Colour Cycles of %1</source>
        <translation>Ciclos de cores de %1</translation>
    </message>
    <message>
        <source>Colour Cycles</source>
        <translation>Ciclos de cores</translation>
    </message>
    <message>
        <source>%1 to %2, to lower entries</source>
        <translation>%1 a %2, para entradas menores</translation>
    </message>
    <message>
        <source>%1 to %2, to higher entries</source>
        <translation>%1 a %2, para entradas maiores</translation>
    </message>
    <message>
        <source>%1 steps a second</source>
        <translation>%1 passos por segundo</translation>
    </message>
    <message>
        <source>Lets the colours of the entries go round that are selected in the palette</source>
        <translation>Faz circular as cores das entradas selecionadas na paleta</translation>
    </message>
    <message>
        <source>Select two or more entries in the palette that are in no range yet</source>
        <translation>Selecione na paleta duas ou mais entradas que ainda não estejam em nenhuma faixa</translation>
    </message>
</context>
<context>
    <name>ColourCycling</name>
    <message>
        <source>&amp;Play Colour Cycles</source>
        <translation>Reproduzir &amp;ciclos de cores</translation>
    </message>
    <message>
        <source>Lets the colours of palettes&apos; ranges go round in all views; nothing is changed</source>
        <translation>Faz circular as cores das faixas das paletas em todas as vistas; nada é alterado</translation>
    </message>
</context>
<context>
    <name>ColourEditor</name>
    <message>
        <source>Colour before</source>
        <translation>Cor anterior</translation>
    </message>
    <message>
        <source>Edited colour</source>
        <translation>Cor editada</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridade</translation>
    </message>
    <message>
        <source>Layer 2 priority
If set, this colour will always appear on top</source>
        <translation>Prioridade da Layer 2
Se marcada, esta cor aparece sempre por cima</translation>
    </message>
    <message>
        <source>Apply the colour</source>
        <translation>Aplicar a cor</translation>
    </message>
    <message>
        <source>Go back to the colour before</source>
        <translation>Voltar à cor anterior</translation>
    </message>
</context>
<context>
    <name>ColourPalette</name>
    <message>
        <source>Colours</source>
        <translation>Cores</translation>
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
        <translation>Cor %1, %2, transparente</translation>
    </message>
    <message>
        <source>Colour %1, %2, background</source>
        <translation>Cor %1, %2, fundo</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Cor %1, %2</translation>
    </message>
</context>
<context>
    <name>ColourSelector</name>
    <message>
        <source>Colours</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>Left button: foreground, right button: background</source>
        <translation>Botão esquerdo: cor de frente; botão direito: cor de fundo</translation>
    </message>
    <message>
        <source>Transparent on maps</source>
        <translation>Transparente nos mapas</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Cor %1, %2, transparente</translation>
    </message>
    <message>
        <source>Colour %1, %2, background</source>
        <translation>Cor %1, %2, fundo</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Cor %1, %2</translation>
    </message>
</context>
<context>
    <name>CommandDesk</name>
    <message>
        <source>Your keyboard shortcuts could not be read. All commands have their usual keys.</source>
        <translation>Não foi possível ler os seus atalhos de teclado. Todos os comandos têm as teclas de costume.</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>%1
%2 was kept aside under a name that ends in .bad.</source>
        <translation>%1
%2 foi guardado com um nome que termina em .bad.</translation>
    </message>
    <message>
        <source>Your keyboard shortcuts could not be saved. They hold until you quit.</source>
        <translation>Não foi possível salvar os seus atalhos de teclado. Eles valem até você sair.</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Projetos recentes</translation>
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
        <translation>Paleta de comandos</translation>
    </message>
    <message>
        <source>Type a few letters of a command, an asset or a tile</source>
        <translation>Digite algumas letras de um comando, um recurso ou um tile</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>What matches</source>
        <translation>Resultados</translation>
    </message>
</context>
<context>
    <name>CommandPlaces</name>
    <message>
        <source>Window</source>
        <translation>Janela</translation>
    </message>
    <message>
        <source>Tool Bars</source>
        <translation>Barras de ferramentas</translation>
    </message>
    <message>
        <source>Map Editor</source>
        <translation>Editor de mapas</translation>
    </message>
    <message>
        <source>Layers of the Map</source>
        <translation>Camadas do mapa</translation>
    </message>
    <message>
        <source>Pixel Editors</source>
        <translation>Editores de pixels</translation>
    </message>
    <message>
        <source>Animation Editors</source>
        <translation>Editores de animações</translation>
    </message>
    <message>
        <source>List of Animations</source>
        <translation>Lista de animações</translation>
    </message>
    <message>
        <source>Tile Picker</source>
        <translation>Seletor de tiles</translation>
    </message>
    <message>
        <source>Palette Editor</source>
        <translation>Editor de paleta</translation>
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
        <translation>&amp;Nome</translation>
    </message>
    <message>
        <source>Please enter a name</source>
        <translation>Digite um nome</translation>
    </message>
</context>
<context>
    <name>DeletionQuestion</name>
    <message>
        <source>1 animation</source>
        <translation>1 animação</translation>
    </message>
    <message numerus="yes">
        <source>%n animations</source>
        <translation>
            <numerusform>%n animação</numerusform>
            <numerusform>%n animações</numerusform>
        </translation>
    </message>
    <message>
        <source>1 placed sprite</source>
        <translation>1 sprite posicionado</translation>
    </message>
    <message numerus="yes">
        <source>%n placed sprites</source>
        <translation>
            <numerusform>%n sprite posicionado</numerusform>
            <numerusform>%n sprites posicionados</numerusform>
        </translation>
    </message>
    <message>
        <source>Lost with it: %1.</source>
        <translation>Perde-se junto: %1.</translation>
    </message>
    <message>
        <source>1 placed animation</source>
        <translation>1 animação posicionada</translation>
    </message>
    <message numerus="yes">
        <source>%n placed animations</source>
        <translation>
            <numerusform>%n animação posicionada</numerusform>
            <numerusform>%n animações posicionadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Left without tiles: %1.</source>
        <translation>Fica sem tiles: %1.</translation>
    </message>
    <message>
        <source>No longer shown: %1 on 1 map.</source>
        <translation>Deixa de aparecer: %1 em 1 mapa.</translation>
    </message>
    <message numerus="yes">
        <source>No longer shown: %1 on %n maps.</source>
        <translation>
            <numerusform>Deixa de aparecer: %1 em %n mapa.</numerusform>
            <numerusform>Deixa de aparecer: %1 em %n mapas.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no undo for this.</source>
        <translation>Isto não pode ser desfeito.</translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation>Excluir %1?</translation>
    </message>
    <message>
        <source>Delete “%2” (%1)?</source>
        <translation>Excluir “%2” (%1)?</translation>
    </message>
</context>
<context>
    <name>DepthChooser</name>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bits, 256 cores</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bits, 16 cores</translation>
    </message>
</context>
<context>
    <name>DockTabs</name>
    <message>
        <source>Docks</source>
        <translation>Painéis</translation>
    </message>
</context>
<context>
    <name>DocumentTabView</name>
    <message>
        <source>Open documents</source>
        <translation>Documentos abertos</translation>
    </message>
    <message>
        <source>&amp;Close Tab</source>
        <translation>&amp;Fechar aba</translation>
    </message>
    <message>
        <source>Close &amp;Other Tabs</source>
        <translation>Fechar &amp;outras abas</translation>
    </message>
    <message>
        <source>Scratch Image Editor</source>
        <translation>Editor de rascunho</translation>
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
        <translation>Recor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Selecionar t&amp;udo</translation>
    </message>
    <message>
        <source>C&amp;lear Selection</source>
        <translation>Limpar &amp;seleção</translation>
    </message>
</context>
<context>
    <name>EditRecorder</name>
    <message>
        <source>Edit Frames</source>
        <translation>Editar quadros</translation>
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
        <translation>Não existe o recurso “%1”</translation>
    </message>
    <message>
        <source>“%1” is the name of several assets: use an id (%2)</source>
        <translation>“%1” é o nome de vários recursos: use um id (%2)</translation>
    </message>
    <message>
        <source>quenmora-export --help tells what it understands</source>
        <translation>quenmora-export --help mostra as opções disponíveis</translation>
    </message>
    <message>
        <source>Options of all forms:</source>
        <translation>Opções de todos os formatos:</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Este arquivo não existe</translation>
    </message>
    <message>
        <source>The project has no recipe; File &gt; Export Project in the editor makes one</source>
        <translation>O projeto não tem receita; no editor, Arquivo &gt; Exportar projeto cria uma</translation>
    </message>
    <message numerus="yes">
        <source>Interrupted: %n outputs were not looked at</source>
        <translation>
            <numerusform>Interrompido: %n saída não foi verificada</numerusform>
            <numerusform>Interrompido: %n saídas não foram verificadas</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no form “%1”</source>
        <translation>O formato “%1” não existe</translation>
    </message>
    <message>
        <source>This is the project itself</source>
        <translation>Este é o próprio projeto</translation>
    </message>
    <message>
        <source>This file is exported, or exported from</source>
        <translation>Este arquivo é destino ou origem da exportação</translation>
    </message>
    <message>
        <source>make cannot be told of “%1”: its name has characters that end names</source>
        <translation>não é possível informar “%1” ao make: o nome tem caracteres que encerram nomes</translation>
    </message>
    <message>
        <source>What there was to say could not be written</source>
        <translation>Não foi possível gravar as mensagens</translation>
    </message>
    <message>
        <source>There is nothing in it that a picture could show</source>
        <translation>Não contém nada que uma imagem possa mostrar</translation>
    </message>
    <message>
        <source>No picture could be made</source>
        <translation>Não foi possível criar uma imagem</translation>
    </message>
</context>
<context>
    <name>ExportMessages</name>
    <message numerus="yes">
        <source>Exported %1 to %2 (%Ln bytes)</source>
        <translation>
            <numerusform>%1 exportado para %2 (%Ln byte)</numerusform>
            <numerusform>%1 exportado para %2 (%Ln bytes)</numerusform>
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
        <translation>Exportado para %1: %2</translation>
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
        <translation>Exportando o projeto…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Parar</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Exportar projeto</translation>
    </message>
</context>
<context>
    <name>ExportProjectDialog</name>
    <message>
        <source>Preview</source>
        <translation>Prévia</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Exportar projeto</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Adicionar…</translation>
    </message>
    <message>
        <source>Adds assets of the project</source>
        <translation>Adiciona recursos do projeto</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>Changes form, options and file</source>
        <translation>Altera formato, opções e arquivo</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>&amp;Duplicar</translation>
    </message>
    <message>
        <source>Adds a copy, for another form or file</source>
        <translation>Adiciona uma cópia, para outro formato ou arquivo</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>Takes it out of the recipe; its file stays</source>
        <translation>Tira da receita; o arquivo permanece</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Saídas</translation>
    </message>
    <message>
        <source>The game takes nothing of this project yet.

Add palettes, tiles, maps with what is placed on them, sprites, animations and images, each in the form that the game loads. From then on one key writes all that has changed.</source>
        <translation>O jogo ainda não usa nada deste projeto.

Adicione paletas, tiles, mapas com o que está posicionado neles, sprites, animações e imagens, cada um no formato que o jogo carrega. A partir daí, uma única tecla grava tudo o que mudou.</translation>
    </message>
    <message>
        <source>&amp;Add Assets…</source>
        <translation>Adicionar re&amp;cursos…</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>E&amp;xportar</translation>
    </message>
    <message>
        <source>Saves the recipe and writes what is new or changed</source>
        <translation>Salva a receita e grava o que é novo ou mudou</translation>
    </message>
    <message>
        <source>Saves the recipe beside the project and writes nothing else</source>
        <translation>Salva a receita junto ao projeto e não grava mais nada</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>1 output</source>
        <translation>1 saída</translation>
    </message>
    <message numerus="yes">
        <source>%Ln outputs</source>
        <translation>
            <numerusform>%Ln saída</numerusform>
            <numerusform>%Ln saídas</numerusform>
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
            <numerusform>%Ln nova</numerusform>
            <numerusform>%Ln novas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln alterada</numerusform>
            <numerusform>%Ln alteradas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unchanged</source>
        <translation>
            <numerusform>%Ln sem alterações</numerusform>
            <numerusform>%Ln sem alterações</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cannot be</source>
        <translation>
            <numerusform>%Ln impossível</numerusform>
            <numerusform>%Ln impossíveis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln to be looked at</source>
        <translation>
            <numerusform>%Ln a verificar</numerusform>
            <numerusform>%Ln a verificar</numerusform>
        </translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Prévia de %1</translation>
    </message>
</context>
<context>
    <name>ExportQuestion</name>
    <message>
        <source>Save the project first?</source>
        <translation>Salvar o projeto primeiro?</translation>
    </message>
    <message>
        <source>The files for the game are written beside the project&apos;s file, and it has none yet.</source>
        <translation>Os arquivos para o jogo são gravados ao lado do arquivo do projeto, que ainda não existe.</translation>
    </message>
    <message>
        <source>&amp;Save Project…</source>
        <translation>&amp;Salvar projeto…</translation>
    </message>
    <message>
        <source>The recipe of this project cannot be used:
%1</source>
        <translation>A receita deste projeto não pode ser usada:
%1</translation>
    </message>
    <message>
        <source>Mend the file, or start with an empty recipe: the file is then kept as %1.</source>
        <translation>Corrija o arquivo ou comece com uma receita vazia: o arquivo é então guardado como %1.</translation>
    </message>
    <message>
        <source>&amp;Start Anew</source>
        <translation>&amp;Começar de novo</translation>
    </message>
    <message>
        <source>Another program changed the recipe of this project:
%1</source>
        <translation>Outro programa alterou a receita deste projeto:
%1</translation>
    </message>
    <message>
        <source>Saving it from here loses that change.</source>
        <translation>Salvá-la daqui perde essa alteração.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Substituir</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Exportar projeto</translation>
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
        <translation>1 arquivo</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln arquivo</numerusform>
            <numerusform>%Ln arquivos</numerusform>
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
        <translation>Nada a exportar: 1 arquivo sem alterações em %1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing to export: %Ln files are unchanged in %1</source>
        <translation>
            <numerusform>Nada a exportar: %Ln arquivo sem alterações em %1</numerusform>
            <numerusform>Nada a exportar: %Ln arquivos sem alterações em %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>Exportado: %1</translation>
    </message>
    <message>
        <source>Exported nothing</source>
        <translation>Nada exportado</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln unchanged</source>
        <translation>
            <numerusform>%1, %Ln sem alterações</numerusform>
            <numerusform>%1, %Ln sem alterações</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln failed</source>
        <translation>
            <numerusform>%1, %Ln com falha</numerusform>
            <numerusform>%1, %Ln com falha</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 em %2</translation>
    </message>
    <message>
        <source>%1, to %2</source>
        <translation>%1, em %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Interrompido: %1</translation>
    </message>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… e mais %Ln</numerusform>
            <numerusform>… e mais %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExtrasFile</name>
    <message>
        <source>it is no file of at most 16 MiB</source>
        <translation>não é um arquivo de no máximo 16 MiB</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>linha %1: %2</translation>
    </message>
    <message>
        <source>it holds no object</source>
        <translation>não contém nenhum objeto</translation>
    </message>
</context>
<context>
    <name>FileImport</name>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… e mais %n</numerusform>
            <numerusform>… e mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The file could not be imported</source>
        <translation>Não foi possível importar o arquivo</translation>
    </message>
    <message>
        <source>Some files could not be imported</source>
        <translation>Não foi possível importar alguns arquivos</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Imported %1: %2</source>
        <translation>Importado “%1”: %2</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Novo</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>Recen&amp;tes</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salvar</translation>
    </message>
    <message>
        <source>Save &amp;As</source>
        <translation>Salvar &amp;como</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importar…</translation>
    </message>
    <message>
        <source>Looks at files of any kind, shows what they are, and makes assets of them</source>
        <translation>Examina arquivos de qualquer tipo, mostra o que são e cria recursos a partir deles</translation>
    </message>
    <message>
        <source>&amp;Export Project…</source>
        <translation>&amp;Exportar projeto…</translation>
    </message>
    <message>
        <source>Export A&amp;gain</source>
        <translation>Exportar n&amp;ovamente</translation>
    </message>
    <message>
        <source>Shows what the game takes of this project, in which forms and files, and writes it</source>
        <translation>Mostra o que o jogo usa deste projeto, em quais formatos e arquivos, e grava tudo</translation>
    </message>
    <message>
        <source>Writes what has changed of the files for the game, without a dialog</source>
        <translation>Grava o que mudou nos arquivos do jogo, sem abrir diálogo</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>&amp;Preferências</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Sai&amp;r</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Abrir projeto</translation>
    </message>
    <message>
        <source>Project file (*.quenmora)</source>
        <translation>Arquivo de projeto (*.quenmora)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Files of the Next (*.pal *.npl *.nxp *.nxt *.til *.ch8 *.map *.nxm *.nxb *.spr *.nxi *.sl2 *.slr *.bin)</source>
        <translation>Arquivos do Next (*.pal *.npl *.nxp *.nxt *.til *.ch8 *.map *.nxm *.nxb *.spr *.nxi *.sl2 *.slr *.bin)</translation>
    </message>
    <message>
        <source>Sprites of Aseprite (*.aseprite *.ase)</source>
        <translation>Sprites do Aseprite (*.aseprite *.ase)</translation>
    </message>
    <message>
        <source>Palettes (*.gpl *.pal *.act *.hex)</source>
        <translation>Paletas (*.gpl *.pal *.act *.hex)</translation>
    </message>
    <message>
        <source>Pictures (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Imagens (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Limpar</translation>
    </message>
    <message>
        <source>Maps and tile sets of Tiled (*.tmx *.tmj *.tsx *.tsj)</source>
        <translation>Mapas e tilesets do Tiled (*.tmx *.tmj *.tsx *.tsj)</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>“%1” has a character that file names cannot have everywhere</source>
        <translation>“%1” tem um caractere que nomes de arquivo não podem ter em todos os sistemas</translation>
    </message>
    <message>
        <source>“%1” ends in a dot or a space, which Windows takes away</source>
        <translation>“%1” termina em ponto ou espaço, que o Windows remove</translation>
    </message>
    <message>
        <source>Windows takes “%1” for a device</source>
        <translation>o Windows toma “%1” por um dispositivo</translation>
    </message>
    <message>
        <source>a name in it is longer than %1 bytes</source>
        <translation>o caminho contém um nome com mais de %1 bytes</translation>
    </message>
</context>
<context>
    <name>FillCanvasTool</name>
    <message>
        <source>Fill</source>
        <translation>Preencher</translation>
    </message>
</context>
<context>
    <name>ForeignChange</name>
    <message>
        <source>File Changed</source>
        <translation>Arquivo alterado</translation>
    </message>
    <message>
        <source>Another program changed the file of this project:
%1</source>
        <translation>Outro programa alterou o arquivo deste projeto:
%1</translation>
    </message>
    <message>
        <source>Load File opens it as it is now and drops your unsaved changes.</source>
        <translation>“Carregar arquivo” abre-o como está agora e descarta suas alterações não salvas.</translation>
    </message>
    <message>
        <source>Load File opens it as it is now.</source>
        <translation>“Carregar arquivo” abre-o como está agora.</translation>
    </message>
    <message>
        <source>Keep Mine keeps the project as it is here; saving then replaces the file.</source>
        <translation>“Manter o meu” mantém o projeto como está aqui; ao salvar, o arquivo será substituído.</translation>
    </message>
    <message>
        <source>&amp;Load File</source>
        <translation>&amp;Carregar arquivo</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Manter o meu</translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>the pixels of the file take more than %1</source>
        <translation>os pixels do arquivo ocupam mais de %1</translation>
    </message>
    <message>
        <source>the pixels are damaged</source>
        <translation>os pixels estão danificados</translation>
    </message>
    <message>
        <source>Frame %1 has a picture for layer %2 of %3</source>
        <translation>O quadro %1 tem uma imagem para a camada %2 de %3</translation>
    </message>
    <message>
        <source>Its frames have more than %1 pictures of layers together</source>
        <translation>Os quadros têm juntos mais de %1 imagens de camadas</translation>
    </message>
    <message>
        <source>%1: there are two pictures</source>
        <translation>%1: há duas imagens</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the picture is of an unknown kind, %1</source>
        <translation>a imagem é de um tipo desconhecido, %1</translation>
    </message>
    <message>
        <source>the picture is of another kind than the layer</source>
        <translation>a imagem não é do mesmo tipo que a camada</translation>
    </message>
    <message>
        <source>the picture is that of frame %1, which has none or comes later</source>
        <translation>a imagem é a do quadro %1, que não tem nenhuma ou vem depois</translation>
    </message>
    <message>
        <source>a tile has %1 bits; only %2 can be read</source>
        <translation>um tile tem %1 bits; só é possível ler %2</translation>
    </message>
    <message>
        <source>the tiles are damaged</source>
        <translation>os tiles estão danificados</translation>
    </message>
    <message>
        <source>It has two tile sets of number %1, or more than %2</source>
        <translation>O arquivo tem dois tilesets de número %1, ou mais de %2</translation>
    </message>
    <message>
        <source>The tile set “%1” is in another file, and left out</source>
        <translation>O tileset “%1” está em outro arquivo e foi omitido</translation>
    </message>
    <message>
        <source>The tile set “%1” has %2 tiles of %3 × %4 pixels</source>
        <translation>O tileset “%1” tem %2 tiles de %3 × %4 pixels</translation>
    </message>
    <message>
        <source>The tile set “%1”: %2</source>
        <translation>O tileset “%1”: %2</translation>
    </message>
    <message>
        <source>The layer “%1” has the tiles of a set that is not there</source>
        <translation>A camada “%1” usa os tiles de um tileset que não existe</translation>
    </message>
    <message>
        <source>The layer “%1” has tile %2 of a set of %3</source>
        <translation>A camada “%1” usa o tile %2 de um tileset de %3</translation>
    </message>
    <message>
        <source>Its layers have more than %1 million pixels in all frames together</source>
        <translation>As camadas têm mais de %1 milhões de pixels na soma de todos os quadros</translation>
    </message>
    <message>
        <source>Frame %1, layer “%2”</source>
        <translation>Quadro %1, camada “%2”</translation>
    </message>
    <message>
        <source>It is no Aseprite file</source>
        <translation>Não é um arquivo Aseprite</translation>
    </message>
    <message>
        <source>It is cut short: it has %1 of %2 bytes</source>
        <translation>O arquivo está truncado: tem %1 de %2 bytes</translation>
    </message>
    <message>
        <source>It says that a pixel has %1 bits; it can have 8, 16 or 32</source>
        <translation>O arquivo indica %1 bits por pixel; só podem ser 8, 16 ou 32</translation>
    </message>
    <message>
        <source>It says that it has %1 frames of %2 × %3 pixels</source>
        <translation>O arquivo indica %1 quadros de %2 × %3 pixels</translation>
    </message>
    <message>
        <source>It has %1 frames of %2 × %3 pixels; at most %4 million pixels together can be read</source>
        <translation>O arquivo tem %1 quadros de %2 × %3 pixels; é possível ler no máximo %4 milhões de pixels no total</translation>
    </message>
    <message>
        <source>Its pixels are not square, but %1 to %2: they become square</source>
        <translation>Os pixels não são quadrados (proporção de %1 para %2): eles passam a ser quadrados</translation>
    </message>
    <message>
        <source>It is cut short: frame %1 of %2 is not there</source>
        <translation>O arquivo está truncado: falta o quadro %1 de %2</translation>
    </message>
    <message>
        <source>Frame %1 is damaged</source>
        <translation>O quadro %1 está danificado</translation>
    </message>
    <message>
        <source>Frame %1 is damaged: chunk %2 of %3 has a wrong size</source>
        <translation>O quadro %1 está danificado: o bloco de dados %2 de %3 tem um tamanho errado</translation>
    </message>
    <message>
        <source>Frame %1 is damaged: chunk %2 of %3 is cut short</source>
        <translation>O quadro %1 está danificado: o bloco de dados %2 de %3 está truncado</translation>
    </message>
    <message>
        <source>Its slices are left out</source>
        <translation>As fatias são omitidas</translation>
    </message>
    <message>
        <source>It has more than %1 layers</source>
        <translation>O arquivo tem mais de %1 camadas</translation>
    </message>
    <message>
        <source>The reference layer “%1” is left out</source>
        <translation>A camada de referência “%1” é omitida</translation>
    </message>
    <message>
        <source>The layer “%1” mixes its colours with those beneath: it is drawn as others are</source>
        <translation>A camada “%1” mistura suas cores com as de baixo: ela é desenhada como as outras</translation>
    </message>
    <message>
        <source>The group “%1” is partly clear: that is done to each of its layers</source>
        <translation>O grupo “%1” é parcialmente transparente: isso é aplicado a cada uma de suas camadas</translation>
    </message>
    <message>
        <source>The palette changes after frame %1, whose colours are taken</source>
        <translation>A paleta muda depois do quadro %1, cujas cores são usadas</translation>
    </message>
    <message>
        <source>Frame %1 has more than %2 palettes</source>
        <translation>O quadro %1 tem mais de %2 paletas</translation>
    </message>
    <message>
        <source>Its palette has %1 colours; at most %2 can be read</source>
        <translation>A paleta tem %1 cores; é possível ler no máximo %2</translation>
    </message>
    <message>
        <source>Its palette has %1 colours, of which it gives %2 to %3</source>
        <translation>A paleta tem %1 cores, das quais define de %2 a %3</translation>
    </message>
    <message>
        <source>It has more than %1 tags</source>
        <translation>O arquivo tem mais de %1 tags</translation>
    </message>
    <message>
        <source>The tag “%1” is left out: it names frames %2 to %3 of %4</source>
        <translation>A tag “%1” é omitida: ela indica os quadros %2 a %3 de %4</translation>
    </message>
    <message>
        <source>”, “</source>
        <translation>”, “</translation>
    </message>
    <message numerus="yes">
        <source>%n layers are hidden and left out, “%1” among them</source>
        <translation>
            <numerusform>%n camada está oculta e fica de fora, “%1”</numerusform>
            <numerusform>%n camadas estão ocultas e ficam de fora, entre elas “%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>Hidden layers are left out: “%1”</source>
        <translation>As camadas ocultas são omitidas: “%1”</translation>
    </message>
    <message>
        <source>Its pixels are numbers of colours, and it has no palette</source>
        <translation>Os pixels são números de cores, e o arquivo não tem paleta</translation>
    </message>
    <message>
        <source>It has pixels of colour %1, and its palette has %2 colours: they are black</source>
        <translation>Há pixels da cor %1, e a paleta tem %2 cores: eles ficam pretos</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Linha %1: %2</translation>
    </message>
    <message>
        <source>It has no colours</source>
        <translation>Não tem cores</translation>
    </message>
    <message>
        <source>“%1” is no colour, which is %2 numbers from 0 to 255</source>
        <translation>“%1” não é uma cor, que são %2 números de 0 a 255</translation>
    </message>
    <message>
        <source>“%1” stands where “%2” does</source>
        <translation>há “%1” onde deveria estar “%2”</translation>
    </message>
    <message>
        <source>“%1” is no number of colours</source>
        <translation>“%1” não é um número de cores</translation>
    </message>
    <message>
        <source>It says that it has %1 colours, and has %2</source>
        <translation>Diz que tem %1 cores e tem %2</translation>
    </message>
    <message>
        <source>“%1” is no colour of six hexadecimal digits</source>
        <translation>“%1” não é uma cor de seis dígitos hexadecimais</translation>
    </message>
    <message>
        <source>It says that it has %1 colours; there is room for %2</source>
        <translation>Diz que tem %1 cores; há lugar para %2</translation>
    </message>
    <message>
        <source>Its transparent index is %1, and it has %2 colours</source>
        <translation>O índice transparente é %1, e há %2 cores</translation>
    </message>
    <message>
        <source>It has %1; at most %2 can be read</source>
        <translation>O arquivo tem %1; é possível ler no máximo %2</translation>
    </message>
    <message>
        <source>It is no palette of the forms .gpl, .pal (JASC), .hex or .act</source>
        <translation>Não é uma paleta nos formatos .gpl, .pal (JASC), .hex ou .act</translation>
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
        <translation>Há mais deste tipo</translation>
    </message>
    <message>
        <source>It is not there, or may not be read</source>
        <translation>O arquivo não existe ou não pode ser lido</translation>
    </message>
    <message>
        <source>It could not be read: %1</source>
        <translation>Não foi possível ler o arquivo: %1</translation>
    </message>
    <message>
        <source>its cells are written as “%1”, which cannot be read</source>
        <translation>as células estão gravadas como “%1”, que não pode ser lido</translation>
    </message>
    <message>
        <source>its cells are packed as “%1”, which cannot be read</source>
        <translation>as células estão compactadas como “%1”, que não pode ser lido</translation>
    </message>
    <message>
        <source>cell %1 is no number of a tile</source>
        <translation>a célula %1 não é um número de tile</translation>
    </message>
    <message>
        <source>it has more than %1 cells</source>
        <translation>há mais de %1 células</translation>
    </message>
    <message>
        <source>“%1” is among the numbers of its cells</source>
        <translation>“%1” está entre os números das células</translation>
    </message>
    <message>
        <source>it has %1 of %2 cells</source>
        <translation>há %1 de %2 células</translation>
    </message>
    <message>
        <source>its cells are damaged, or not %1</source>
        <translation>as células estão danificadas ou não são %1</translation>
    </message>
    <message>
        <source>Two tile sets begin with number %1</source>
        <translation>Dois tilesets começam com o número %1</translation>
    </message>
    <message>
        <source>The tile set “%1” has animations of tiles that are not there</source>
        <translation>O tileset “%1” tem animações de tiles que não existem</translation>
    </message>
    <message>
        <source>The tile set “%1” says no size of its tiles</source>
        <translation>O tileset “%1” não informa o tamanho dos tiles</translation>
    </message>
    <message>
        <source>The picture of the tile set “%1” has %2 of its %3 tiles</source>
        <translation>A imagem do tileset “%1” tem %2 dos seus %3 tiles</translation>
    </message>
    <message>
        <source>The layer “%1” is partly clear: it becomes opaque</source>
        <translation>A camada “%1” é parcialmente transparente: ela se torna opaca</translation>
    </message>
    <message>
        <source>The layer “%1” is moved by parts of cells: it goes to the nearest</source>
        <translation>A camada “%1” está deslocada por frações de célula: ela vai para a mais próxima</translation>
    </message>
    <message numerus="yes">
        <source>What shines through clear pixels of tiles above is lost, in %n cells</source>
        <translation>
            <numerusform>O que aparece através dos pixels transparentes dos tiles de cima se perde, em %n célula</numerusform>
            <numerusform>O que aparece através dos pixels transparentes dos tiles de cima se perde, em %n células</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells have numbers that no tile set has: they become empty</source>
        <translation>
            <numerusform>%n célula tem um número que nenhum tileset tem: fica vazia</numerusform>
            <numerusform>%n células têm números que nenhum tileset tem: ficam vazias</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells of layers lie beyond the map: they are lost</source>
        <translation>
            <numerusform>%n célula de camadas está fora do mapa: será perdida</numerusform>
            <numerusform>%n células de camadas estão fora do mapa: serão perdidas</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is not in the file&apos;s folder</source>
        <translation>“%1” não está na pasta do arquivo</translation>
    </message>
    <message>
        <source>“%1” is not there</source>
        <translation>“%1” não existe</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>“%1”: %2</translation>
    </message>
    <message>
        <source>the pictures have more than %1 million pixels together</source>
        <translation>as imagens têm juntas mais de %1 milhões de pixels</translation>
    </message>
    <message>
        <source>it is no picture that can be read</source>
        <translation>não é uma imagem que possa ser lida</translation>
    </message>
    <message>
        <source>It has more than %1 million numbers; with cells written as Base64 it has fewer</source>
        <translation>O arquivo tem mais de %1 milhões de números; com as células gravadas em Base64, tem menos</translation>
    </message>
    <message>
        <source>It has more than %1 lists and objects</source>
        <translation>O arquivo tem mais de %1 listas e objetos</translation>
    </message>
    <message>
        <source>Byte %1: %2</source>
        <translation>Byte %1: %2</translation>
    </message>
    <message>
        <source>there are too many groups in each other</source>
        <translation>há grupos demais uns dentro dos outros</translation>
    </message>
    <message>
        <source>“%1” is “%2”, and can be %3 to %4</source>
        <translation>“%1” é “%2”, e pode ser de %3 a %4</translation>
    </message>
    <message>
        <source>“%1” is “%2”, which is no number that it can be</source>
        <translation>“%1” é “%2”, que não é um número possível aqui</translation>
    </message>
    <message>
        <source>It is a map of the kind “%1”; only “orthogonal” ones can be read</source>
        <translation>É um mapa do tipo “%1”; só é possível ler os do tipo “orthogonal”</translation>
    </message>
    <message>
        <source>It says no width and height</source>
        <translation>O arquivo não informa largura nem altura</translation>
    </message>
    <message>
        <source>It has %1 × %2 cells; at most %3 million can be read</source>
        <translation>O mapa tem %1 × %2 células; é possível ler no máximo %3 milhões</translation>
    </message>
    <message>
        <source>Its layers have more than %1 million cells together</source>
        <translation>As camadas têm juntas mais de %1 milhões de células</translation>
    </message>
    <message>
        <source>The layer “%1”: %2</source>
        <translation>A camada “%1”: %2</translation>
    </message>
    <message>
        <source>The image layer “%1” is left out</source>
        <translation>A camada de imagem “%1” é omitida</translation>
    </message>
    <message>
        <source>Objects made from templates lack what their template says</source>
        <translation>Objetos criados a partir de modelos ficam sem o que o modelo define</translation>
    </message>
    <message>
        <source>It has more than %1 objects</source>
        <translation>O arquivo tem mais de %1 objetos</translation>
    </message>
    <message>
        <source>Its objects have more than %1 properties</source>
        <translation>Os objetos têm mais de %1 propriedades</translation>
    </message>
    <message>
        <source>It has more than %1 tile sets</source>
        <translation>O arquivo tem mais de %1 tilesets</translation>
    </message>
    <message>
        <source>Pictures inside the file cannot be read</source>
        <translation>Não é possível ler imagens embutidas no arquivo</translation>
    </message>
    <message>
        <source>Its tile sets have more than %1 pictures</source>
        <translation>Os tilesets têm mais de %1 imagens</translation>
    </message>
    <message>
        <source>Its animations have more than %1 frames</source>
        <translation>As animações têm mais de %1 quadros</translation>
    </message>
    <message>
        <source>It is no XML in UTF-8</source>
        <translation>Não é XML em UTF-8</translation>
    </message>
    <message>
        <source>It declares elements or entities of its own</source>
        <translation>O arquivo declara elementos ou entidades próprios</translation>
    </message>
    <message>
        <source>An element has more than %1 attributes</source>
        <translation>Um elemento tem mais de %1 atributos</translation>
    </message>
    <message>
        <source>there is no element</source>
        <translation>não há nenhum elemento</translation>
    </message>
    <message>
        <source>there are too many elements in each other</source>
        <translation>há elementos demais uns dentro dos outros</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Create a backup when saving</source>
        <translation>Criar um backup ao salvar</translation>
    </message>
    <message>
        <source>Check for updates on startup</source>
        <translation>Verificar atualizações ao iniciar</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Diária</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Semanal</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Mensal</translation>
    </message>
    <message>
        <source>General Settings</source>
        <translation>Configurações gerais</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Check frequency</source>
        <translation>Frequência</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>The guide is not installed</source>
        <translation>O guia não está instalado</translation>
    </message>
    <message>
        <source>It comes with Quenmora&apos;s package.</source>
        <translation>Ele vem com o pacote do Quenmora.</translation>
    </message>
    <message>
        <source>No program was found that shows the guide</source>
        <translation>Nenhum programa que mostre o guia foi encontrado</translation>
    </message>
    <message>
        <source>It is in this file: %1</source>
        <translation>Está neste arquivo: %1</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>Verificar &amp;atualizações…</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Sobre</translation>
    </message>
    <message>
        <source>Command &amp;Palette…</source>
        <translation>&amp;Paleta de comandos…</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts…</source>
        <translation>Atalhos de &amp;teclado…</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guia</translation>
    </message>
    <message>
        <source>Opens the guide in your browser, at the page about what you work on</source>
        <translation>Abre o guia no navegador, na página sobre o que você está fazendo</translation>
    </message>
    <message>
        <source>&amp;Sample Project</source>
        <translation>Projeto de &amp;exemplo</translation>
    </message>
    <message>
        <source>Opens a small game to look at and to play with; saving makes a copy of your own</source>
        <translation>Abre um pequeno jogo para ver e experimentar; ao salvar, cria-se uma cópia sua</translation>
    </message>
</context>
<context>
    <name>ImageDialog</name>
    <message>
        <source>New Image</source>
        <translation>Nova imagem</translation>
    </message>
    <message>
        <source>Create a new image</source>
        <translation>Criar uma nova imagem</translation>
    </message>
    <message>
        <source>256x192 256 colours</source>
        <translation>256x192, 256 cores</translation>
    </message>
    <message>
        <source>320x256 256 colours</source>
        <translation>320x256, 256 cores</translation>
    </message>
    <message>
        <source>640x256 16 colours</source>
        <translation>640x256, 16 cores</translation>
    </message>
    <message>
        <source>128x96 256 colours</source>
        <translation>128x96, 256 cores</translation>
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
        <translation>Uma imagem precisa de uma paleta; crie uma paleta primeiro</translation>
    </message>
</context>
<context>
    <name>ImageEditor::ImportDialog</name>
    <message>
        <source>Import Image</source>
        <translation>Importar imagem</translation>
    </message>
    <message>
        <source>Scale to fill the image</source>
        <translation>Redimensionar para preencher a imagem</translation>
    </message>
    <message>
        <source>Keep the machine&apos;s colours</source>
        <translation>Manter as cores da máquina</translation>
    </message>
    <message>
        <source>Keep transparent pixels</source>
        <translation>Manter os pixels transparentes</translation>
    </message>
    <message>
        <source>New palette of the picture&apos;s colours</source>
        <translation>Nova paleta com as cores da imagem</translation>
    </message>
    <message>
        <source>Import a picture</source>
        <translation>Importar uma imagem</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has: those that the palette has stay exactly that, and scaling mixes no new ones</source>
        <translation>Cada cor da imagem é uma que o Next tem: as que estão na paleta ficam exatamente iguais, e o redimensionamento não mistura novas</translation>
    </message>
    <message>
        <source>They get the transparent entry of the palette, and no colour does</source>
        <translation>Eles recebem a entrada transparente da paleta, e nenhuma cor a recebe</translation>
    </message>
    <message>
        <source>The image is shown with it from now on; the palette that it had stays as it is</source>
        <translation>A imagem passa a ser exibida com ela; a paleta anterior permanece como está</translation>
    </message>
    <message>
        <source>&amp;Fewer colours</source>
        <translation>Menos co&amp;res</translation>
    </message>
    <message>
        <source>Picture %1 × %2, image %3 × %4</source>
        <translation>Origem: %1 × %2, imagem: %3 × %4</translation>
    </message>
    <message>
        <source>The picture cannot be used</source>
        <translation>A imagem não pode ser usada</translation>
    </message>
</context>
<context>
    <name>ImageEditor::View</name>
    <message>
        <source>Swap Palette</source>
        <translation>Trocar paleta</translation>
    </message>
    <message>
        <source>Import Image</source>
        <translation>Importar imagem</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Imagens (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>Export Image</source>
        <translation>Exportar imagem</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg *.bmp)</source>
        <translation>Imagens (*.png *.xpm *.jpg *.bmp)</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Houve um problema ao exportar os dados</translation>
    </message>
    <message>
        <source>Pictures are written as .png, .xpm, .jpg or .bmp files</source>
        <translation>As imagens são gravadas como arquivos .png, .xpm, .jpg ou .bmp</translation>
    </message>
    <message>
        <source>Scratch Image</source>
        <translation>Imagem de rascunho</translation>
    </message>
    <message>
        <source>Paint here, or bring in a picture with Open among the tools</source>
        <translation>Pinte aqui ou traga uma imagem com “Abrir”, entre as ferramentas</translation>
    </message>
</context>
<context>
    <name>ImageMenu</name>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Imagem</translation>
    </message>
    <message>
        <source>&amp;New Image</source>
        <translation>&amp;Nova imagem</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>&amp;Trocar paleta</translation>
    </message>
</context>
<context>
    <name>ImportAgain</name>
    <message>
        <source>The image has no palette any more</source>
        <translation>A imagem não tem mais paleta</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Importar novamente</translation>
    </message>
    <message>
        <source>%1 is up to date</source>
        <translation>%1 está em dia</translation>
    </message>
    <message>
        <source>The file is neither a palette nor a picture that can be read</source>
        <translation>O arquivo não é uma paleta nem uma imagem que possa ser lida</translation>
    </message>
    <message>
        <source>Such a file makes new assets, and cannot go into those that are there</source>
        <translation>Um arquivo assim cria recursos novos e não pode entrar nos que já existem</translation>
    </message>
    <message>
        <source>%1 was imported again</source>
        <translation>%1 foi importado novamente</translation>
    </message>
    <message>
        <source>What was made of it is not there any more</source>
        <translation>O que foi feito dele não existe mais</translation>
    </message>
    <message>
        <source>The file is not there any more:
%1</source>
        <translation>O arquivo não existe mais:
%1</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importando %1…</translation>
    </message>
    <message>
        <source>%1 is up to date; new tiles: %2</source>
        <translation>%1 está em dia; tiles novos: %2</translation>
    </message>
    <message>
        <source>; pixels that took the nearest colour: %1</source>
        <translation>; pixels que receberam a cor mais próxima: %1</translation>
    </message>
    <message>
        <source>The map has no tiles or no palette any more</source>
        <translation>O mapa não tem mais tiles ou paleta</translation>
    </message>
    <message numerus="yes">
        <source>The picture needs %n more tiles, and the tile set has room for %1</source>
        <translation>
            <numerusform>A imagem precisa de mais %n tile, e no tileset cabem %1</numerusform>
            <numerusform>A imagem precisa de mais %n tiles, e no tileset cabem %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Resize Map</source>
        <translation>Redimensionar mapa</translation>
    </message>
    <message>
        <source>The sprites have no palette any more</source>
        <translation>Os sprites não têm mais paleta</translation>
    </message>
    <message>
        <source>The picture is smaller than a sprite, which has 16 × 16 pixels</source>
        <translation>A imagem é menor que um sprite, que tem 16 × 16 pixels</translation>
    </message>
    <message>
        <source>The picture holds more sprites than fit into a bank</source>
        <translation>A imagem contém mais sprites do que cabem em um banco</translation>
    </message>
    <message>
        <source>%1 is up to date; sprites that are new: %2</source>
        <translation>%1 está em dia; sprites novos: %2</translation>
    </message>
    <message>
        <source>The map is too large to be brought up to date</source>
        <translation>O mapa é grande demais para ser atualizado</translation>
    </message>
</context>
<context>
    <name>ImportFileDialog</name>
    <message>
        <source>New palette</source>
        <translation>Nova paleta</translation>
    </message>
    <message>
        <source>New tile set</source>
        <translation>Novo tileset</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>Novo mapa</translation>
    </message>
    <message>
        <source>New sprites</source>
        <translation>Novos sprites</translation>
    </message>
    <message>
        <source>New map objects</source>
        <translation>Novos objetos de mapa</translation>
    </message>
    <message>
        <source>New image</source>
        <translation>Nova imagem</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… e mais %n</numerusform>
            <numerusform>… e mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
    <message>
        <source>What the file is; first what it most probably is</source>
        <translation>O que o arquivo é; primeiro, o mais provável</translation>
    </message>
    <message>
        <source>A new asset, or one of the project that takes it in, as one undo step</source>
        <translation>Um novo recurso, ou um do projeto que recebe o conteúdo, como um único passo de desfazer</translation>
    </message>
    <message>
        <source>The number from which on those that are there are replaced, counted from 0</source>
        <translation>O número a partir do qual os existentes são substituídos, contado a partir de 0</translation>
    </message>
    <message>
        <source>Behind those that are there</source>
        <translation>Depois dos existentes</translation>
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
        <translation>A partir do nú&amp;mero</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nome</translation>
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
        <translation>P&amp;ular</translation>
    </message>
    <message>
        <source>Leaves this file out and goes on with the next one</source>
        <translation>Omite este arquivo e continua com o próximo</translation>
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
        <translation>Novo tileset de tiles vazios</translation>
    </message>
    <message>
        <source>New palette of its own colours</source>
        <translation>Nova paleta com suas próprias cores</translation>
    </message>
    <message>
        <source>New palette of the standard colours</source>
        <translation>Nova paleta com as cores padrão</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>C&amp;ontinue…</source>
        <translation>C&amp;ontinuar…</translation>
    </message>
    <message>
        <source>What is asked next depends on the picture</source>
        <translation>O que será perguntado a seguir depende da imagem</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lendo %1…</translation>
    </message>
    <message>
        <source>The project was closed meanwhile</source>
        <translation>O projeto foi fechado nesse meio-tempo</translation>
    </message>
    <message>
        <source>There is nothing in the project into which it could go</source>
        <translation>Não há nada no projeto que possa receber o conteúdo</translation>
    </message>
</context>
<context>
    <name>ImportKeeper</name>
    <message>
        <source>The file could not be imported again</source>
        <translation>Não foi possível importar o arquivo novamente</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Importar novamente</translation>
    </message>
</context>
<context>
    <name>ImportNotice</name>
    <message>
        <source>Import Again</source>
        <translation>Importar novamente</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Agora não</translation>
    </message>
    <message>
        <source>%1 changed since it was imported</source>
        <translation>%1 mudou desde que foi importado</translation>
    </message>
    <message numerus="yes">
        <source>%n files changed since they were imported</source>
        <translation>
            <numerusform>%n arquivo mudou desde que foi importado</numerusform>
            <numerusform>%n arquivos mudaram desde que foram importados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportPictureDialog</name>
    <message>
        <source>Import Picture</source>
        <translation>Importar imagem</translation>
    </message>
    <message>
        <source>&amp;Keep the machine&apos;s colours</source>
        <translation>&amp;Manter as cores da máquina</translation>
    </message>
    <message>
        <source>Keep &amp;transparent pixels</source>
        <translation>Manter os pixels &amp;transparentes</translation>
    </message>
    <message>
        <source>&amp;Find colours and tiles for the whole picture</source>
        <translation>&amp;Buscar cores e tiles para a imagem inteira</translation>
    </message>
    <message>
        <source>Make tiles and a map of a picture</source>
        <translation>Criar tiles e um mapa a partir de uma imagem</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has, and stays exactly that</source>
        <translation>Cada cor da imagem é uma que o Next tem e fica exatamente igual</translation>
    </message>
    <message>
        <source>They get index %1 of their tiles, which the map does not draw</source>
        <translation>Eles recebem o índice %1 de seus tiles, que o mapa não desenha</translation>
    </message>
    <message>
        <source>Groups of 16 colours that suit all tiles as well as they can, and at most %1 tiles; else tiles are served as they come, and who comes last gets what is left</source>
        <translation>Grupos de 16 cores que servem a todos os tiles o melhor possível, e no máximo %1 tiles; caso contrário, os tiles são atendidos na ordem em que aparecem, e os últimos ficam com o que restar</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Ordered pattern</source>
        <translation>Padrão ordenado</translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation>Difusão de erro</translation>
    </message>
    <message>
        <source>&amp;Dithering</source>
        <translation>&amp;Dithering</translation>
    </message>
    <message>
        <source>Reducing %1…</source>
        <translation>Reduzindo %1…</translation>
    </message>
    <message>
        <source>Tiles: %1
Tiles that lose colours: %2</source>
        <translation>Tiles: %1
Tiles que perdem cores: %2</translation>
    </message>
    <message>
        <source>Tiles: %1, for %2 different ones
Colours: %3, for %4 of the picture; groups: %5</source>
        <translation>Tiles: %1, para %2 diferentes
Cores: %3, para %4 da imagem; grupos: %5</translation>
    </message>
    <message>
        <source>Nothing is lost</source>
        <translation>Nada se perde</translation>
    </message>
    <message>
        <source>Nothing is lost but shades between the colours that the machine has</source>
        <translation>Nada se perde, exceto tons intermediários entre as cores da máquina</translation>
    </message>
    <message>
        <source>Of %1 cells, %2 lose colours and %3 show a tile that is like theirs</source>
        <translation>De %1 células, %2 perdem cores e %3 mostram um tile parecido com o seu</translation>
    </message>
    <message>
        <source>; mean error: %1 levels</source>
        <translation>; erro médio: %1 níveis</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n different tiles, and a tile set has room for %1</source>
        <translation>
            <numerusform>A imagem tem %n tile diferente, e em um tileset cabem %1</numerusform>
            <numerusform>A imagem tem %n tiles diferentes, e em um tileset cabem %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportZXFontDialog</name>
    <message>
        <source>Import Spectrum Characters</source>
        <translation>Importar caracteres do Spectrum</translation>
    </message>
    <message>
        <source>Import a ZX Spectrum font into tiles</source>
        <translation>Importar uma fonte do ZX Spectrum para tiles</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Procurar…</translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;First tile</source>
        <translation>P&amp;rimeiro tile</translation>
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
        <translation>Fontes (*.bin *.raw *.ch8)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>No characters</source>
        <translation>Nenhum caractere</translation>
    </message>
    <message>
        <source>Characters: %1, in tiles %2 to %3</source>
        <translation>Caracteres: %1, nos tiles %2 a %3</translation>
    </message>
    <message>
        <source>The tile set has no palette to take colours from</source>
        <translation>O tileset não tem uma paleta de onde tirar as cores</translation>
    </message>
    <message>
        <source>Please choose a font file</source>
        <translation>Escolha um arquivo de fonte</translation>
    </message>
    <message>
        <source>There is no character in this file, or it cannot be read</source>
        <translation>Não há nenhum caractere neste arquivo, ou ele não pode ser lido</translation>
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
        <translation>O número %1 não existe; o último é %2</translation>
    </message>
    <message>
        <source>There is room for %1, and %2 come in</source>
        <translation>Há espaço para %1, e chegam %2</translation>
    </message>
    <message>
        <source>“%1” has %2 tiles, and the first number is for tile %3 (counted from 0)</source>
        <translation>“%1” tem %2 tiles, e o primeiro número é para o tile %3 (contado a partir de 0)</translation>
    </message>
    <message>
        <source>The sprites have indices above 15, and “%1” is a bank of 4 bits</source>
        <translation>Os sprites têm índices acima de 15, e “%1” é um banco de 4 bits</translation>
    </message>
    <message>
        <source>The asset into which it goes is not there any more, or is of another kind</source>
        <translation>O recurso de destino não existe mais ou é de outro tipo</translation>
    </message>
    <message>
        <source>Choose the tile set whose tiles these are for</source>
        <translation>Escolha o tileset ao qual estes dados pertencem</translation>
    </message>
    <message>
        <source>Please enter a name</source>
        <translation>Digite um nome</translation>
    </message>
    <message>
        <source>Import Animations</source>
        <translation>Importar animações</translation>
    </message>
    <message>
        <source>Animation %1</source>
        <translation>Animação %1</translation>
    </message>
    <message>
        <source>“%1”: frames have times of their own, and get the mean of them</source>
        <translation>“%1”: os quadros têm tempos próprios e recebem a média deles</translation>
    </message>
    <message>
        <source>“%1” is repeated for ever</source>
        <translation>“%1” se repete para sempre</translation>
    </message>
    <message numerus="yes">
        <source>The frames make %n sprites, which is more than there is room for</source>
        <translation>
            <numerusform>Os quadros geram %n sprite, mais do que cabe</numerusform>
            <numerusform>Os quadros geram %n sprites, mais do que cabe</numerusform>
        </translation>
    </message>
    <message>
        <source>Sprites alone go into a bank that is there; the animations are left out</source>
        <translation>Em um banco existente entram apenas sprites; as animações são omitidas</translation>
    </message>
    <message>
        <source>The frames have %1 pixels, and tiles are made of at most %2</source>
        <translation>Os quadros têm %1 pixels, e tiles são criados de no máximo %2</translation>
    </message>
    <message>
        <source>Frames that are left out: %1</source>
        <translation>Quadros omitidos: %1</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profundidade</translation>
    </message>
    <message>
        <source>How many colours the sprites have</source>
        <translation>Quantas cores os sprites têm</translation>
    </message>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bits, 256 cores</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bits, 16 cores</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Quadros</translation>
    </message>
    <message>
        <source>Which frames become tiles</source>
        <translation>Quais quadros se tornam tiles</translation>
    </message>
    <message>
        <source>The first one, with a map</source>
        <translation>O primeiro, com um mapa</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Aseprite file, for sprites with animations</source>
        <translation>Arquivo Aseprite, para sprites com animações</translation>
    </message>
    <message>
        <source>Aseprite file, for tiles</source>
        <translation>Arquivo Aseprite, para tiles</translation>
    </message>
    <message>
        <source>Aseprite file, for an image</source>
        <translation>Arquivo Aseprite, para uma imagem</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Não é possível ler %1: %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>não é um arquivo</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 está vazio</translation>
    </message>
    <message>
        <source>“%1” is no kind of file that is read here</source>
        <translation>“%1” não é um tipo de arquivo que possa ser lido aqui</translation>
    </message>
    <message>
        <source>The file has a +3DOS header, which is skipped</source>
        <translation>O arquivo tem um cabeçalho +3DOS, que é ignorado</translation>
    </message>
    <message>
        <source>The smallest that holds the picture</source>
        <translation>O menor que contém a imagem</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>The mode of the image</source>
        <translation>O modo da imagem</translation>
    </message>
    <message>
        <source>The picture has %1 × %2 pixels, and what does not fit is cut off</source>
        <translation>A imagem tem %1 × %2 pixels, e o que não cabe é cortado</translation>
    </message>
    <message>
        <source>Import Palette</source>
        <translation>Importar paleta</translation>
    </message>
    <message>
        <source>Colours that the Next does not have, and that become the nearest ones: %1 of %2</source>
        <translation>Cores que o Next não tem e que são trocadas pelas mais próximas: %1 de %2</translation>
    </message>
    <message>
        <source>Colours for which there is no room: %1</source>
        <translation>Cores para as quais não há espaço: %1</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>Dithering</translation>
    </message>
    <message>
        <source>How colours are shown for which there is no room</source>
        <translation>Como são exibidas as cores para as quais não há espaço</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Ordered pattern</source>
        <translation>Padrão ordenado</translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation>Difusão de erro</translation>
    </message>
    <message>
        <source>Palette of another program</source>
        <translation>Paleta de outro programa</translation>
    </message>
    <message>
        <source>First entry</source>
        <translation>Primeira entrada</translation>
    </message>
    <message>
        <source>The entry that the first colour becomes</source>
        <translation>A entrada que a primeira cor ocupa</translation>
    </message>
    <message>
        <source>Scale to that size</source>
        <translation>Redimensionar para esse tamanho</translation>
    </message>
    <message>
        <source>Makes the picture as large as the image</source>
        <translation>Deixa a imagem importada do tamanho da imagem de destino</translation>
    </message>
    <message>
        <source>Picture, for tiles and a map</source>
        <translation>Imagem, para tiles e um mapa</translation>
    </message>
    <message>
        <source>Picture, for sprites</source>
        <translation>Imagem, para sprites</translation>
    </message>
    <message>
        <source>Picture, for an image</source>
        <translation>Imagem, para uma imagem do projeto</translation>
    </message>
    <message>
        <source>Picture, for its colours</source>
        <translation>Imagem, para suas cores</translation>
    </message>
    <message>
        <source>Palette, tiles, blocks and map of one name</source>
        <translation>Paleta, tiles, blocos e mapa de mesmo nome</translation>
    </message>
    <message>
        <source>Cells: %1 × %2, which show %3 different tiles</source>
        <translation>Células: %1 × %2, que mostram %3 tiles diferentes</translation>
    </message>
    <message>
        <source>Placed sprites: %1</source>
        <translation>Sprites posicionados: %1</translation>
    </message>
    <message>
        <source>Tiles: %1</source>
        <translation>Tiles: %1</translation>
    </message>
    <message>
        <source>Animations of tiles: %1</source>
        <translation>Animações de tiles: %1</translation>
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
        <translation>Animações: %1</translation>
    </message>
    <message>
        <source>Pixels: %1 × %2</source>
        <translation>Pixels: %1 × %2</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>Cores: %1</translation>
    </message>
    <message>
        <source>Tile %1 (counted from 0) has pixels of several palette offsets, and a tile has one</source>
        <translation>O tile %1 (contado a partir de 0) tem pixels de vários offsets de paleta, e um tile só tem um</translation>
    </message>
    <message>
        <source>Tiles that lose colours, since theirs are of several palette offsets: %1 of %2</source>
        <translation>Tiles que perdem cores, pois as suas são de vários offsets de paleta: %1 de %2</translation>
    </message>
    <message>
        <source>The file has %1 bytes, which is too much for this</source>
        <translation>O arquivo tem %1 bytes, o que é demais para isto</translation>
    </message>
    <message>
        <source>Several offsets</source>
        <translation>Vários offsets</translation>
    </message>
    <message>
        <source>What becomes of tiles whose pixels are of several palette offsets, which a tile map cannot show</source>
        <translation>O que acontece com tiles cujos pixels são de vários offsets de paleta, algo que um mapa de tiles não pode mostrar</translation>
    </message>
    <message>
        <source>The colours of the best one</source>
        <translation>As cores do melhor</translation>
    </message>
    <message>
        <source>Nothing is imported</source>
        <translation>Nada é importado</translation>
    </message>
    <message>
        <source>Of %1 pieces of 8 × 8 pixels, %2 lose colours and %3 get a tile that is like theirs; mean error: %4 levels</source>
        <translation>De %1 partes de 8 × 8 pixels, %2 perdem cores e %3 recebem um tile parecido com o seu; erro médio: %4 níveis</translation>
    </message>
    <message>
        <source>Colours: %1, which %2 stand for; mean error: %3 levels</source>
        <translation>Cores: %1, representadas por %2; erro médio: %3 níveis</translation>
    </message>
    <message>
        <source>Colours that the Next does not have become the nearest ones</source>
        <translation>As cores que o Next não tem são trocadas pelas mais próximas</translation>
    </message>
    <message>
        <source>Tiles that are not as large as the cells, and are cut or filled: %1</source>
        <translation>Tiles que não têm o tamanho das células e são cortados ou completados: %1</translation>
    </message>
    <message>
        <source>Cells whose animations are left out, since there are more than %1: %2</source>
        <translation>Células cujas animações são omitidas, pois há mais de %1: %2</translation>
    </message>
    <message>
        <source>Animations whose frames have times of their own, and get the mean: %1</source>
        <translation>Animações cujos quadros têm tempos próprios e recebem a média: %1</translation>
    </message>
    <message>
        <source>Objects that are no sprites, turned, scaled, hidden or too large, and are left out: %1</source>
        <translation>Objetos que não são sprites, ou estão girados, redimensionados, ocultos ou são grandes demais, e são omitidos: %1</translation>
    </message>
    <message>
        <source>The cells of the map have %1 × %2 pixels, and tiles of the Next 8 × 8: only multiples of that can be cut</source>
        <translation>As células do mapa têm %1 × %2 pixels, e os tiles do Next, 8 × 8: só múltiplos disso podem ser cortados</translation>
    </message>
    <message>
        <source>The map has no cells</source>
        <translation>O mapa não tem células</translation>
    </message>
    <message>
        <source>That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most</source>
        <translation>Isso resulta em um mapa de %1 × %2 células; o máximo é %3 por lado e %4 no total</translation>
    </message>
    <message>
        <source>The map shows too many different tiles: of %1 × %2 pixels, %3 are the most</source>
        <translation>O mapa mostra tiles diferentes demais: de %1 × %2 pixels, o máximo é %3</translation>
    </message>
    <message>
        <source>Files that are left alone because they are not below the map&apos;s folder: %1</source>
        <translation>Arquivos ignorados por não estarem dentro da pasta do mapa: %1</translation>
    </message>
    <message>
        <source>Map of Tiled</source>
        <translation>Mapa do Tiled</translation>
    </message>
    <message>
        <source>Read files outside its folder</source>
        <translation>Ler arquivos fora da pasta</translation>
    </message>
    <message>
        <source>Takes tile sets and pictures from wherever the map says that they are</source>
        <translation>Busca tilesets e imagens onde quer que o mapa diga que estão</translation>
    </message>
    <message>
        <source>Import Image</source>
        <translation>Importar imagem</translation>
    </message>
    <message>
        <source>“%1” has %2 × %3 pixels, and the picture has %4 × %5</source>
        <translation>“%1” tem %2 × %3 pixels, e a imagem tem %4 × %5</translation>
    </message>
    <message>
        <source>Choose the map on which these are placed</source>
        <translation>Escolha o mapa em que estão posicionados</translation>
    </message>
    <message>
        <source>What record %1 (counted from 0) shows is not in the project, where it is looked for by its place</source>
        <translation>O que o registro %1 (contado a partir de 0) mostra não está no projeto, onde é procurado pela posição</translation>
    </message>
    <message>
        <source>Placed animations: %1</source>
        <translation>Animações posicionadas: %1</translation>
    </message>
    <message>
        <source>The colours are left out, since other assets are drawn with the palette of “%1” as well</source>
        <translation>As cores ficam de fora, pois outros recursos também são desenhados com a paleta de “%1”</translation>
    </message>
    <message>
        <source>Tile set of Tiled</source>
        <translation>Tileset do Tiled</translation>
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
        <translation>Deslocar</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Virar</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Espelhar</translation>
    </message>
</context>
<context>
    <name>LayoutController</name>
    <message>
        <source>Next Dock</source>
        <translation>Próximo painel</translation>
    </message>
    <message>
        <source>Previous Dock</source>
        <translation>Painel anterior</translation>
    </message>
    <message>
        <source>Next Dock Behind</source>
        <translation>Próximo painel atrás</translation>
    </message>
    <message>
        <source>Previous Dock Behind</source>
        <translation>Painel anterior atrás</translation>
    </message>
</context>
<context>
    <name>LineCanvasTool</name>
    <message>
        <source>Line</source>
        <translation>Linha</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>%2 - %1</source>
        <translation>%2 - %1</translation>
    </message>
    <message>
        <source>Its backup is from %1</source>
        <translation>O backup é de %1</translation>
    </message>
    <message>
        <source>Open &amp;Backup</source>
        <translation>Abrir &amp;backup</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>Could not import the font</source>
        <translation>Não foi possível importar a fonte</translation>
    </message>
</context>
<context>
    <name>MapDialog</name>
    <message>
        <source> cells</source>
        <translation> células</translation>
    </message>
    <message>
        <source>New Map</source>
        <translation>Novo mapa</translation>
    </message>
    <message>
        <source>Create a new map</source>
        <translation>Criar um novo mapa</translation>
    </message>
    <message>
        <source>&amp;Tile set</source>
        <translation>&amp;Tileset</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Largura</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Altura</translation>
    </message>
    <message>
        <source>A map is made of the tiles of a tile set; please create a tile set first</source>
        <translation>Um mapa é feito dos tiles de um tileset; crie um tileset primeiro</translation>
    </message>
</context>
<context>
    <name>MapEditor::AnchorPad</name>
    <message>
        <source>Top left</source>
        <translation>Superior esquerdo</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Superior</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Superior direito</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Inferior esquerdo</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Inferior</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Inferior direito</translation>
    </message>
</context>
<context>
    <name>MapEditor::CellDialog</name>
    <message>
        <source>Go to Cell</source>
        <translation>Ir para a célula</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Coluna</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Linha</translation>
    </message>
</context>
<context>
    <name>MapEditor::CellTool</name>
    <message>
        <source>Place Animation</source>
        <translation>Posicionar animação</translation>
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
        <translation>Exportar dados do mapa</translation>
    </message>
    <message>
        <source>Export Tile Data</source>
        <translation>Exportar dados dos tiles</translation>
    </message>
    <message>
        <source>Export Palette Data</source>
        <translation>Exportar dados da paleta</translation>
    </message>
    <message>
        <source>Export: %1</source>
        <translation>Exportar: %1</translation>
    </message>
    <message>
        <source>Files in %1</source>
        <translation>Arquivos em %1</translation>
    </message>
    <message>
        <source>%1 (replaces this file)</source>
        <translation>%1 (substitui este arquivo)</translation>
    </message>
    <message>
        <source>Choose what to export</source>
        <translation>Escolha o que exportar</translation>
    </message>
</context>
<context>
    <name>MapEditor::FillTool</name>
    <message>
        <source>Bucket Fill</source>
        <translation>Balde de tinta</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapCommands</name>
    <message>
        <source>Select Same &amp;Tile</source>
        <translation>Selecionar o mesmo &amp;tile</translation>
    </message>
    <message>
        <source>Selects all cells that show the current tile</source>
        <translation>Seleciona todas as células que mostram o tile atual</translation>
    </message>
    <message>
        <source>&amp;Replace Tile…</source>
        <translation>&amp;Substituir tile…</translation>
    </message>
    <message>
        <source>Puts one tile in place of another, in the selection, the map or all maps of the tile set</source>
        <translation>Coloca um tile no lugar de outro, na seleção, no mapa ou em todos os mapas do tileset</translation>
    </message>
    <message>
        <source>Edit Terrain&amp;s…</source>
        <translation>Edita&amp;r terrenos…</translation>
    </message>
    <message>
        <source>Marks tiles whose borders match when they are painted</source>
        <translation>Marca tiles cujas bordas se encaixam ao serem pintados</translation>
    </message>
    <message>
        <source>Go to &amp;Cell…</source>
        <translation>Ir para a &amp;célula…</translation>
    </message>
    <message>
        <source>Scrolls the map to a cell</source>
        <translation>Rola o mapa até uma célula</translation>
    </message>
    <message>
        <source>&amp;Overview</source>
        <translation>&amp;Visão geral</translation>
    </message>
    <message>
        <source>Shows the whole map in a corner, with the part that is in view to drag</source>
        <translation>Mostra o mapa inteiro em um canto, com a parte visível para arrastar</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapEditing</name>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Preencher</translation>
    </message>
    <message>
        <source>Copy Cells</source>
        <translation>Copiar células</translation>
    </message>
    <message>
        <source>Move Cells</source>
        <translation>Mover células</translation>
    </message>
    <message>
        <source>Sprite Properties</source>
        <translation>Propriedades do sprite</translation>
    </message>
    <message>
        <source>Delete Sprite</source>
        <translation>Excluir sprite</translation>
    </message>
    <message>
        <source>Remove Animation</source>
        <translation>Remover animação</translation>
    </message>
    <message>
        <source>Add Rows</source>
        <translation>Adicionar linhas</translation>
    </message>
    <message>
        <source>Add Columns</source>
        <translation>Adicionar colunas</translation>
    </message>
    <message>
        <source>Remove Rows</source>
        <translation>Remover linhas</translation>
    </message>
    <message>
        <source>Remove Columns</source>
        <translation>Remover colunas</translation>
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
        <translation>Escolha uma pasta para a qual exportar os dados</translation>
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
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy to new map</source>
        <translation>Copiar para um novo mapa</translation>
    </message>
    <message>
        <source>Copy as Image</source>
        <translation>Copiar como imagem</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Preencher</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
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
        <translation>Coluna %1, linha %2</translation>
    </message>
    <message>
        <source>tile %1</source>
        <translation>tile %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vazia</translation>
    </message>
    <message>
        <source>rotated</source>
        <translation>girado</translation>
    </message>
    <message>
        <source>flipped</source>
        <translation>virado</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>espelhado</translation>
    </message>
    <message>
        <source>palette offset %1</source>
        <translation>offset de paleta %1</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>animação</translation>
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
        <translation>Visão geral</translation>
    </message>
    <message>
        <source>Drag to scroll the map</source>
        <translation>Arraste para rolar o mapa</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapToolPalette</name>
    <message>
        <source>Rotated</source>
        <translation>Girado</translation>
    </message>
    <message>
        <source>Flipped</source>
        <translation>Virado</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Espelhado</translation>
    </message>
    <message>
        <source>Random tiles of the stamp</source>
        <translation>Tiles aleatórios do carimbo</translation>
    </message>
    <message>
        <source>Bucket fill</source>
        <translation>Balde de tinta</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Retângulo</translation>
    </message>
    <message>
        <source>Filled rectangle</source>
        <translation>Retângulo preenchido</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Elipse</translation>
    </message>
    <message>
        <source>Filled ellipse</source>
        <translation>Elipse preenchida</translation>
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
        <translation>Carimbos</translation>
    </message>
    <message>
        <source>Ctrl-drag tiles to make one</source>
        <translation>Ctrl + arrastar tiles para criar um</translation>
    </message>
    <message>
        <source>Stamps are made of tiles, by dragging with Ctrl in the tile picker, and of cells, by dragging with the Pick tool</source>
        <translation>Carimbos são feitos de tiles, arrastando com Ctrl no seletor de tiles, e de células, arrastando com o conta-gotas</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>Of the tile</source>
        <translation>Do tile</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Offset de paleta</translation>
    </message>
    <message>
        <source>The palette offset of painted cells. Ctrl with a painting tool paints it alone, and with the right button brings back that of the tile</source>
        <translation>O offset de paleta das células pintadas. Ctrl com uma ferramenta de pintura pinta só o offset e, com o botão direito, restaura o do tile</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Terreno</translation>
    </message>
    <message>
        <source>What the terrain tool paints</source>
        <translation>O que a ferramenta de terreno pinta</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Edit Terrains…</source>
        <translation>Editar terrenos…</translation>
    </message>
    <message>
        <source>Marks the tiles of terrains</source>
        <translation>Marca os tiles dos terrenos</translation>
    </message>
    <message>
        <source>%1 × %2 cells</source>
        <translation>%1 × %2 células</translation>
    </message>
    <message>
        <source>Stamp of %1</source>
        <translation>Carimbo de %1</translation>
    </message>
    <message>
        <source>%1, a stamp of %2</source>
        <translation>%1, um carimbo de %2</translation>
    </message>
    <message>
        <source>Name Stamp…</source>
        <translation>Nomear carimbo…</translation>
    </message>
    <message>
        <source>Forget Stamp</source>
        <translation>Esquecer carimbo</translation>
    </message>
    <message>
        <source>Name Stamp</source>
        <translation>Nomear carimbo</translation>
    </message>
    <message>
        <source>A stamp with a name stays; without one it goes when others are used</source>
        <translation>Um carimbo com nome permanece; sem nome, desaparece quando outros são usados</translation>
    </message>
</context>
<context>
    <name>MapEditor::PaintDesk</name>
    <message>
        <source>Replace Tile</source>
        <translation>Substituir tile</translation>
    </message>
    <message>
        <source>Replace Tile in All Maps</source>
        <translation>Substituir tile em todos os mapas</translation>
    </message>
    <message>
        <source>Choose a tile in the Tiles dock and paint here: the left button paints, the right one clears</source>
        <translation>Escolha um tile no painel Tiles e pinte aqui: o botão esquerdo pinta, o direito limpa</translation>
    </message>
</context>
<context>
    <name>MapEditor::PasteTool</name>
    <message>
        <source>Picture of %1 × %2 cells; tiles to be added: %3</source>
        <translation>Imagem de %1 × %2 células; tiles a adicionar: %3</translation>
    </message>
    <message>
        <source>; pixels that take the nearest colour: %1</source>
        <translation>; pixels que recebem a cor mais próxima: %1</translation>
    </message>
    <message>
        <source>The picture is smaller than a tile, which has 8 × 8 pixels</source>
        <translation>A imagem é menor que um tile, que tem 8 × 8 pixels</translation>
    </message>
    <message numerus="yes">
        <source>The picture needs %n more tiles, and the tile set has room for %1</source>
        <translation>
            <numerusform>A imagem precisa de mais %n tile, e no tileset cabem %1</numerusform>
            <numerusform>A imagem precisa de mais %n tiles, e no tileset cabem %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Paste Picture</source>
        <translation>Colar imagem</translation>
    </message>
    <message>
        <source>Tiles added: %1</source>
        <translation>Tiles adicionados: %1</translation>
    </message>
    <message>
        <source>; pixels that took the nearest colour: %1</source>
        <translation>; pixels que receberam a cor mais próxima: %1</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
</context>
<context>
    <name>MapEditor::PlaceAnimationTool</name>
    <message>
        <source>Place Animation</source>
        <translation>Posicionar animação</translation>
    </message>
</context>
<context>
    <name>MapEditor::PlaceSpriteTool</name>
    <message>
        <source>Place Sprite</source>
        <translation>Posicionar sprite</translation>
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
        <translation>Substituir tile</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Por</translation>
    </message>
    <message>
        <source>In the selection</source>
        <translation>Na seleção</translation>
    </message>
    <message>
        <source>In this map</source>
        <translation>Neste mapa</translation>
    </message>
    <message>
        <source>In all maps of the tile set</source>
        <translation>Em todos os mapas do tileset</translation>
    </message>
    <message>
        <source>Tile </source>
        <translation>Tile </translation>
    </message>
    <message>
        <source>These are the same tile</source>
        <translation>São o mesmo tile</translation>
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
        <translation>Largura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation>Âncora</translation>
    </message>
    <message>
        <source> cells</source>
        <translation> células</translation>
    </message>
    <message>
        <source>The whole map of %1×%2 cells is kept</source>
        <translation>O mapa inteiro de %1×%2 células é mantido</translation>
    </message>
    <message>
        <source>%1×%2 of %3×%4 cells are kept</source>
        <translation>São mantidas %1×%2 de %3×%4 células</translation>
    </message>
</context>
<context>
    <name>MapEditor::ShapeTool</name>
    <message>
        <source>Line</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Retângulo</translation>
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
        <translation>Nome</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Espelhar</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Virar</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Start frame</source>
        <translation>Quadro inicial</translation>
    </message>
    <message>
        <source>Initial delay</source>
        <translation>Atraso inicial</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Atraso da repetição</translation>
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
        <translation>Remover</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>The 4 cells beside</source>
        <translation>As 4 células ao lado</translation>
    </message>
    <message>
        <source>All 8 cells around</source>
        <translation>Todas as 8 células ao redor</translation>
    </message>
    <message>
        <source>Which neighbours decide about the tile of a cell</source>
        <translation>Quais vizinhas decidem o tile de uma célula</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Looks at</source>
        <translation>Considera</translation>
    </message>
    <message>
        <source>Mark the middle of each tile of the terrain, and the sides and corners where it goes on. The right button takes marks away.</source>
        <translation>Marque o meio de cada tile do terreno, e os lados e cantos onde ele continua. O botão direito remove marcas.</translation>
    </message>
    <message>
        <source>Terrain %1</source>
        <translation>Terreno %1</translation>
    </message>
    <message>
        <source>Every terrain needs a name</source>
        <translation>Todo terreno precisa de um nome</translation>
    </message>
    <message>
        <source>Turn tiles where none has the borders</source>
        <translation>Girar tiles onde nenhum tiver as bordas</translation>
    </message>
    <message>
        <source>Also takes tiles that have the borders when they are rotated, flipped or mirrored</source>
        <translation>Também usa tiles que têm as bordas ao serem girados, virados ou espelhados</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainMarks</name>
    <message>
        <source>Marks of the terrain</source>
        <translation>Marcas do terreno</translation>
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
        <translation>Mostra ou oculta a camada de tiles</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objetos</translation>
    </message>
    <message>
        <source>Show or hide the object layer</source>
        <translation>Mostra ou oculta a camada de objetos</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>Show or hide the sprite layer</source>
        <translation>Mostra ou oculta a camada de sprites</translation>
    </message>
    <message>
        <source>Size in cells of the viewport</source>
        <translation>Tamanho da área visível em células</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>Área visível</translation>
    </message>
    <message>
        <source>Viewport width</source>
        <translation>Largura da área visível</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Viewport height</source>
        <translation>Altura da área visível</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fundo</translation>
    </message>
    <message>
        <source>Tile index to be used as a background</source>
        <translation>Índice do tile usado como fundo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparência</translation>
    </message>
    <message>
        <source>Sets the transparency index of the tile set (0-15) or off</source>
        <translation>Define o índice de transparência do tileset (0-15) ou o desativa</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Encaixe</translation>
    </message>
    <message>
        <source>Sets the snap to grid size</source>
        <translation>Define o tamanho do encaixe na grade</translation>
    </message>
    <message>
        <source>Map size in tiles and bytes</source>
        <translation>Tamanho do mapa em tiles e bytes</translation>
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
        <translation>Redimensiona ou exporta o mapa</translation>
    </message>
    <message>
        <source>Resize Map…</source>
        <translation>Redimensionar mapa…</translation>
    </message>
    <message>
        <source>Export to Folder…</source>
        <translation>Exportar para pasta…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
</context>
<context>
    <name>MapEditorPage</name>
    <message>
        <source>Render checker board beneath maps</source>
        <translation>Mostrar xadrez sob os mapas</translation>
    </message>
    <message>
        <source>Enable grid line overlay</source>
        <translation>Mostrar linhas da grade</translation>
    </message>
    <message>
        <source>Map Editor</source>
        <translation>Editor de mapas</translation>
    </message>
    <message>
        <source>Grid colour</source>
        <translation>Cor da grade</translation>
    </message>
    <message>
        <source>Alternate colour</source>
        <translation>Cor alternativa</translation>
    </message>
    <message>
        <source>Grid size (in pixels)</source>
        <translation>Tamanho da grade (em pixels)</translation>
    </message>
    <message>
        <source>Default magnification</source>
        <translation>Ampliação padrão</translation>
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
        <translation>&amp;Novo mapa</translation>
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
        <translation>Arquivos de imagem (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>Import Map Data</source>
        <translation>Importar dados de mapa</translation>
    </message>
    <message>
        <source>Export Map Data</source>
        <translation>Exportar dados do mapa</translation>
    </message>
    <message>
        <source>Map Data (*.map)</source>
        <translation>Dados de mapa (*.map)</translation>
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
        <translation>Vazio</translation>
    </message>
</context>
<context>
    <name>MapSpritesWindow</name>
    <message>
        <source>Map Sprites</source>
        <translation>Sprites do mapa</translation>
    </message>
    <message>
        <source>No sprites</source>
        <translation>Nenhum sprite</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animações</translation>
    </message>
    <message>
        <source>Sprite bank</source>
        <translation>Banco de sprites</translation>
    </message>
    <message>
        <source>The sprite banks of the project</source>
        <translation>Os bancos de sprites do projeto</translation>
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
        <translation>Atenção!</translation>
    </message>
</context>
<context>
    <name>NextData</name>
    <message>
        <source>the table of animations</source>
        <translation>a tabela de animações</translation>
    </message>
    <message>
        <source>their number</source>
        <translation>a quantidade</translation>
    </message>
    <message>
        <source>the place of “%1”</source>
        <translation>a posição de “%1”</translation>
    </message>
    <message>
        <source>animation “%1”</source>
        <translation>animação “%1”</translation>
    </message>
    <message>
        <source>the width</source>
        <translation>a largura</translation>
    </message>
    <message>
        <source>the height</source>
        <translation>a altura</translation>
    </message>
    <message>
        <source>the number of frames</source>
        <translation>o número de quadros</translation>
    </message>
    <message>
        <source>the kind</source>
        <translation>o tipo</translation>
    </message>
    <message>
        <source>the delay</source>
        <translation>o atraso</translation>
    </message>
    <message>
        <source>it shows number %1, and %2 is the last one that fits</source>
        <translation>mostra o número %1, e o último que cabe é %2</translation>
    </message>
    <message>
        <source>it has the palette offset %1</source>
        <translation>tem o offset de paleta %1</translation>
    </message>
    <message>
        <source>Animation “%1”, frame %2, column %3, row %4 (counted from 0): %5</source>
        <translation>Animação “%1”, quadro %2, coluna %3, linha %4 (contados a partir de 0): %5</translation>
    </message>
    <message>
        <source>number and places of the animations</source>
        <translation>quantidade e posições das animações</translation>
    </message>
    <message>
        <source>animation %1 “%2”</source>
        <translation>animação %1 “%2”</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>quadro %1</translation>
    </message>
    <message>
        <source>The animations do not lie in the file as its beginning says</source>
        <translation>As animações não estão no arquivo como seu início indica</translation>
    </message>
    <message>
        <source>Bytes behind the last animation that are left out: %1</source>
        <translation>Bytes omitidos depois da última animação: %1</translation>
    </message>
    <message>
        <source>Animations of blocks</source>
        <translation>Animações de blocos</translation>
    </message>
    <message>
        <source>Animations of sprites</source>
        <translation>Animações de sprites</translation>
    </message>
    <message>
        <source>it leads out of its folder</source>
        <translation>o caminho leva para fora da pasta</translation>
    </message>
    <message>
        <source>a folder or file in it has no name</source>
        <translation>o caminho contém uma pasta ou um arquivo sem nome</translation>
    </message>
    <message>
        <source>There is no file name</source>
        <translation>Não há nome de arquivo</translation>
    </message>
    <message>
        <source>it is not relative</source>
        <translation>o caminho não é relativo</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>Não é possível gravar “%1”: %2</translation>
    </message>
    <message>
        <source>“%1” is %2, and the form %3 is for %4</source>
        <translation>“%1” é %2, e o formato %3 é para %4</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>“%1” has %2 pixels, and this form %3</source>
        <translation>“%1” tem %2 pixels, e este formato, %3</translation>
    </message>
    <message>
        <source>“%1” has no palette that could stand in front</source>
        <translation>“%1” não tem uma paleta que possa vir na frente</translation>
    </message>
    <message>
        <source>“%1”: the pixel at %2, %3 has the index %4, and only those from %5 to %6 go with the first pixel</source>
        <translation>“%1”: o pixel em %2, %3 tem o índice %4, e só os de %5 a %6 combinam com o primeiro pixel</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and such a picture %2, or %3 or %4 with its palette</source>
        <translation>O arquivo tem %1 bytes, e uma imagem assim tem %2, ou %3 ou %4 com sua paleta</translation>
    </message>
    <message>
        <source>The file has one half of the picture, which becomes the upper one</source>
        <translation>O arquivo tem metade da imagem, que se torna a metade superior</translation>
    </message>
    <message>
        <source>By rows</source>
        <translation>Por linhas</translation>
    </message>
    <message>
        <source>By columns</source>
        <translation>Por colunas</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordem</translation>
    </message>
    <message>
        <source>In which order the pixels follow each other</source>
        <translation>Em que ordem os pixels se sucedem</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Offset de paleta</translation>
    </message>
    <message>
        <source>The group of sixteen colours of all pixels, which comes from a register</source>
        <translation>O grupo de dezesseis cores de todos os pixels, que vem de um registrador</translation>
    </message>
    <message>
        <source>Palette in front</source>
        <translation>Paleta na frente</translation>
    </message>
    <message>
        <source>Writes the 512 bytes of the image&apos;s palette before the pixels</source>
        <translation>Grava os 512 bytes da paleta da imagem antes dos pixels</translation>
    </message>
    <message>
        <source>Two halves</source>
        <translation>Duas metades</translation>
    </message>
    <message>
        <source>Writes the upper and the lower half into files of their own</source>
        <translation>Grava as metades superior e inferior em arquivos separados</translation>
    </message>
    <message>
        <source>Layer 2, 256 × 192, by rows</source>
        <translation>Layer 2, 256 × 192, por linhas</translation>
    </message>
    <message>
        <source>Layer 2, 320 × 256, by columns</source>
        <translation>Layer 2, 320 × 256, por colunas</translation>
    </message>
    <message>
        <source>Layer 2, 640 × 256, by columns, two pixels a byte</source>
        <translation>Layer 2, 640 × 256, por colunas, dois pixels por byte</translation>
    </message>
    <message>
        <source>LoRes, 128 × 96, by rows</source>
        <translation>LoRes, 128 × 96, por linhas</translation>
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
        <translation>Layer 2, 640 × 256, dois pixels por byte</translation>
    </message>
    <message>
        <source>LoRes, 128 × 96</source>
        <translation>LoRes, 128 × 96</translation>
    </message>
    <message>
        <source>screen %1, %2</source>
        <translation>tela %1, %2</translation>
    </message>
    <message>
        <source>“%1”: the cell in column %2, row %3 (counted from 0) %4</source>
        <translation>“%1”: a célula na coluna %2, linha %3 (contadas a partir de 0) %4</translation>
    </message>
    <message>
        <source>shows tile %1, and %2 is the last one that fits</source>
        <translation>mostra o tile %1, e o último que cabe é %2</translation>
    </message>
    <message>
        <source>has the palette offset %1</source>
        <translation>tem o offset de paleta %1</translation>
    </message>
    <message>
        <source>is rotated or mirrored, which one byte does not tell</source>
        <translation>está girada ou espelhada, o que um byte não indica</translation>
    </message>
    <message>
        <source>has the palette offset %1, others have %2, and one byte does not tell them apart</source>
        <translation>tem o offset de paleta %1, outras têm %2, e um byte não os distingue</translation>
    </message>
    <message>
        <source>That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most</source>
        <translation>Isso resulta em um mapa de %1 × %2 células; o máximo é %3 por lado e %4 no total</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and a cell takes %2</source>
        <translation>O arquivo tem %1 bytes, e uma célula ocupa %2</translation>
    </message>
    <message>
        <source>Cells of the file that are outside the map: %1</source>
        <translation>Células do arquivo que ficam fora do mapa: %1</translation>
    </message>
    <message>
        <source>Cells of the map that the file does not have, and that stay blank: %1</source>
        <translation>Células do mapa que o arquivo não tem e que ficam vazias: %1</translation>
    </message>
    <message>
        <source>Half a cell at the end is left out</source>
        <translation>Meia célula no final é omitida</translation>
    </message>
    <message>
        <source>In which order the cells of a screen follow each other</source>
        <translation>Em que ordem as células de uma tela se sucedem</translation>
    </message>
    <message>
        <source>Screen width</source>
        <translation>Largura da tela</translation>
    </message>
    <message>
        <source>Cells across a screen into which the map is cut; 0 is the whole width</source>
        <translation>Células na largura de cada tela em que o mapa é dividido; 0 é a largura toda</translation>
    </message>
    <message>
        <source>Screen height</source>
        <translation>Altura da tela</translation>
    </message>
    <message>
        <source>Cells down a screen into which the map is cut; 0 is the whole height</source>
        <translation>Células na altura de cada tela em que o mapa é dividido; 0 é a altura toda</translation>
    </message>
    <message>
        <source>A file for each screen</source>
        <translation>Um arquivo por tela</translation>
    </message>
    <message>
        <source>Writes the screens into numbered files of their own</source>
        <translation>Grava as telas em arquivos numerados separados</translation>
    </message>
    <message>
        <source>Tile map, two bytes a cell</source>
        <translation>Mapa de tiles, dois bytes por célula</translation>
    </message>
    <message>
        <source>Tile map, one byte a cell</source>
        <translation>Mapa de tiles, um byte por célula</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largura</translation>
    </message>
    <message>
        <source>Cells across the map; 0 is what most maps of so many cells have</source>
        <translation>Células na largura do mapa; 0 é a largura mais comum em mapas com essa quantidade de células</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Cells down the map; 0 is as far as the file goes</source>
        <translation>Células na altura do mapa; 0 é até o fim do arquivo</translation>
    </message>
    <message>
        <source>Cells across the screens into which the map was cut; 0 is the whole width</source>
        <translation>Células na largura das telas em que o mapa foi dividido; 0 é a largura toda</translation>
    </message>
    <message>
        <source>Cells down the screens into which the map was cut; 0 is the whole height</source>
        <translation>Células na altura das telas em que o mapa foi dividido; 0 é a altura toda</translation>
    </message>
    <message>
        <source>Bit 0</source>
        <translation>Bit 0</translation>
    </message>
    <message>
        <source>What the lowest bit of a cell&apos;s second byte says</source>
        <translation>O que indica o bit mais baixo do segundo byte de uma célula</translation>
    </message>
    <message>
        <source>Tiles from 256 on</source>
        <translation>Tiles a partir de 256</translation>
    </message>
    <message>
        <source>The ULA&apos;s picture is in front: left out</source>
        <translation>A imagem da ULA fica na frente: omitido</translation>
    </message>
    <message>
        <source>The palette offset of all cells, which comes from a register</source>
        <translation>O offset de paleta de todas as células, que vem de um registrador</translation>
    </message>
    <message>
        <source>“%1” cannot be a label: those are a letter, then letters, digits and _, %2 at most</source>
        <translation>“%1” não pode ser um rótulo: ele consiste em uma letra e depois letras, dígitos e _, no máximo %2</translation>
    </message>
    <message>
        <source>“%1” cannot be a label: assemblers or C give it a meaning</source>
        <translation>“%1” não pode ser um rótulo: assemblers ou C lhe dão um significado</translation>
    </message>
    <message>
        <source>The label “%1”, or a name made of it, is that of another output already</source>
        <translation>O rótulo “%1”, ou um nome derivado dele, já é de outra saída</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 “%3”</source>
        <translation>%1 %2 “%3”</translation>
    </message>
    <message>
        <source>“%1”, %2: its %3 is not in the project</source>
        <translation>“%1”, %2: não está no projeto: %3</translation>
    </message>
    <message>
        <source>the number of records</source>
        <translation>o número de registros</translation>
    </message>
    <message>
        <source>it</source>
        <translation>o valor</translation>
    </message>
    <message>
        <source>number of records</source>
        <translation>número de registros</translation>
    </message>
    <message>
        <source>placed sprite</source>
        <translation>sprite posicionado</translation>
    </message>
    <message>
        <source>sprite bank</source>
        <translation>banco de sprites</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>animação</translation>
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
        <translation>a posição do banco</translation>
    </message>
    <message>
        <source>16 times the palette offset, and the flags,</source>
        <translation>16 × offset de paleta + flags</translation>
    </message>
    <message>
        <source>the animation</source>
        <translation>a animação</translation>
    </message>
    <message>
        <source>the sprite</source>
        <translation>o sprite</translation>
    </message>
    <message>
        <source>the start frame</source>
        <translation>o quadro inicial</translation>
    </message>
    <message>
        <source>the initial delay</source>
        <translation>o atraso inicial</translation>
    </message>
    <message>
        <source>the repeat delay</source>
        <translation>o atraso da repetição</translation>
    </message>
    <message>
        <source>the place of the name</source>
        <translation>a posição do nome</translation>
    </message>
    <message>
        <source>names</source>
        <translation>nomes</translation>
    </message>
    <message>
        <source>placed animation</source>
        <translation>animação posicionada</translation>
    </message>
    <message>
        <source>the column</source>
        <translation>a coluna</translation>
    </message>
    <message>
        <source>the row</source>
        <translation>a linha</translation>
    </message>
    <message>
        <source>the place of its block set</source>
        <translation>a posição do conjunto de blocos</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Nomes</translation>
    </message>
    <message>
        <source>Whether the names of sprites stand behind the records</source>
        <translation>Se os nomes dos sprites ficam depois dos registros</translation>
    </message>
    <message>
        <source>Behind the records</source>
        <translation>Depois dos registros</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omitidos</translation>
    </message>
    <message>
        <source>Sprites placed on a map</source>
        <translation>Sprites posicionados em um mapa</translation>
    </message>
    <message>
        <source>Animated blocks placed on a map</source>
        <translation>Blocos animados posicionados em um mapa</translation>
    </message>
    <message>
        <source>Option %1: “%2” is not %3</source>
        <translation>Opção %1: “%2” não é %3</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true nem false</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>um número inteiro de %1 a %2</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>um destes valores: %1</translation>
    </message>
    <message>
        <source>There is no option “%1”, only %2</source>
        <translation>A opção “%1” não existe, apenas %2</translation>
    </message>
    <message>
        <source>“%1” would be C source and its header: another suffix is needed, as .c</source>
        <translation>“%1” resultaria em código C e seu cabeçalho: é preciso outra extensão, como .c</translation>
    </message>
    <message>
        <source>“%1” has nothing to write in this form</source>
        <translation>“%1” não tem nada a gravar neste formato</translation>
    </message>
    <message>
        <source>padding</source>
        <translation>preenchimento</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>Código-fonte</translation>
    </message>
    <message>
        <source>Bytes for incbin, or source text in the words of an assembler or of C</source>
        <translation>Bytes para incbin, ou código-fonte na sintaxe de um assembler ou de C</translation>
    </message>
    <message>
        <source>No, bytes</source>
        <translation>Não, bytes</translation>
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
        <translation>C: um array e seu cabeçalho</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Rótulo</translation>
    </message>
    <message>
        <source>The label of the bytes in source text; made from the asset&apos;s name when there is none</source>
        <translation>O rótulo dos bytes no código-fonte; criado a partir do nome do recurso quando não há nenhum</translation>
    </message>
    <message>
        <source>Pad to a multiple of</source>
        <translation>Completar até múltiplo de</translation>
    </message>
    <message>
        <source>Adds zeros until the size is a multiple of so many bytes; 0 adds none</source>
        <translation>Adiciona zeros até que o tamanho seja múltiplo desse número de bytes; 0 não adiciona nada</translation>
    </message>
    <message>
        <source>Cut into files</source>
        <translation>Dividir em arquivos</translation>
    </message>
    <message>
        <source>Numbered files that each fit into a page of 8 KiB or a bank of 16 KiB</source>
        <translation>Arquivos numerados que cabem, cada um, em uma página de 8 KiB ou em um banco de 16 KiB</translation>
    </message>
    <message>
        <source>No, one file</source>
        <translation>Não, um arquivo</translation>
    </message>
    <message>
        <source>8 KiB each</source>
        <translation>8 KiB cada</translation>
    </message>
    <message>
        <source>16 KiB each</source>
        <translation>16 KiB cada</translation>
    </message>
    <message>
        <source>“%1” is no plain file name</source>
        <translation>“%1” não é um nome de arquivo simples</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>transparency</source>
        <translation>transparência</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and such a palette %2</source>
        <translation>O arquivo tem %1 bytes, e uma paleta assim, %2</translation>
    </message>
    <message>
        <source>2 an entry, %1 in all</source>
        <translation>2 por entrada, %1 no total</translation>
    </message>
    <message>
        <source>The file has %1 entries; the others stay as they are</source>
        <translation>O arquivo tem %1 entradas; as outras ficam como estão</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparência</translation>
    </message>
    <message>
        <source>What the last byte holds of the transparent entry; $E3 for a palette without one</source>
        <translation>O que o último byte guarda da entrada transparente; $E3 para uma paleta sem ela</translation>
    </message>
    <message>
        <source>Its colour RRRGGGBB, for layers</source>
        <translation>Sua cor RRRGGGBB, para camadas</translation>
    </message>
    <message>
        <source>Its index, for sprites</source>
        <translation>Seu índice, para sprites</translation>
    </message>
    <message>
        <source>Which of the sixteen groups of sixteen entries is written</source>
        <translation>Qual dos dezesseis grupos de dezesseis entradas é gravado</translation>
    </message>
    <message>
        <source>Palette, 9 bits a colour</source>
        <translation>Paleta, 9 bits por cor</translation>
    </message>
    <message>
        <source>Palette, 9 bits a colour, and the transparency</source>
        <translation>Paleta, 9 bits por cor, e a transparência</translation>
    </message>
    <message>
        <source>Palette, 8 bits a colour</source>
        <translation>Paleta, 8 bits por cor</translation>
    </message>
    <message>
        <source>Sixteen colours of a palette, 9 bits each</source>
        <translation>Dezesseis cores de uma paleta, 9 bits cada</translation>
    </message>
    <message>
        <source>What the last byte says of the transparent entry</source>
        <translation>O que o último byte diz da entrada transparente</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>Which of the sixteen groups of sixteen entries the colours become</source>
        <translation>Qual dos dezesseis grupos de dezesseis entradas as cores ocupam</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Primeiro</translation>
    </message>
    <message>
        <source>The number of the first one, counted from 0</source>
        <translation>O número do primeiro, contado a partir de 0</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Quantidade</translation>
    </message>
    <message>
        <source>How many are written; 0 is all from the first on</source>
        <translation>Quantos são gravados; 0 são todos a partir do primeiro</translation>
    </message>
    <message>
        <source>Options first and count: there are %1, and %2 from number %3 on are not</source>
        <translation>Opções “Primeiro” e “Quantidade”: há %1, e não %2 a partir do número %3</translation>
    </message>
    <message>
        <source>How many are read; 0 is all from the first on</source>
        <translation>Quantos são lidos; 0 são todos a partir do primeiro</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and one of these takes %2</source>
        <translation>O arquivo tem %1 bytes, e um destes elementos ocupa %2</translation>
    </message>
    <message>
        <source>The file holds %1, and %2 go into an asset: choose which, with first and count</source>
        <translation>O arquivo contém %1, e em um recurso cabem %2: escolha quais com “Primeiro” e “Quantidade”</translation>
    </message>
    <message>
        <source>Bytes behind the last whole one that are left out: %1</source>
        <translation>Bytes omitidos depois do último elemento completo: %1</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>O arquivo está vazio</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and the largest that is read as it is %2</source>
        <translation>O arquivo tem %1 bytes, e o maior que é lido diretamente tem %2</translation>
    </message>
    <message>
        <source>There is no form “%1”</source>
        <translation>O formato “%1” não existe</translation>
    </message>
    <message>
        <source>%1 is a form of %2, not of %3</source>
        <translation>%1 é um formato para %2, não para %3</translation>
    </message>
    <message>
        <source>“%1” is the file of another output as well</source>
        <translation>“%1” também é o arquivo de outra saída</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Este arquivo não existe</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Não é possível ler o arquivo</translation>
    </message>
    <message>
        <source>The file is too large for a recipe</source>
        <translation>O arquivo é grande demais para uma receita</translation>
    </message>
    <message>
        <source>The project no longer has %1 “%2” with the id %3, but another one of that name (%4)</source>
        <translation>O projeto não tem mais %1 “%2” com o id %3, e sim outro recurso com esse nome (%4)</translation>
    </message>
    <message>
        <source>The project no longer has %1 “%2” with the id %3</source>
        <translation>O projeto não tem mais %1 “%2” com o id %3</translation>
    </message>
    <message>
        <source>“%1” is the project or its recipe</source>
        <translation>“%1” é o projeto ou sua receita</translation>
    </message>
    <message>
        <source>“%1” is written for “%2” already</source>
        <translation>“%1” já é gravado para “%2”</translation>
    </message>
    <message>
        <source>This is no JSON: %1</source>
        <translation>Isto não é JSON: %1</translation>
    </message>
    <message>
        <source>This is no recipe: “%1” is missing</source>
        <translation>Isto não é uma receita: falta “%1”</translation>
    </message>
    <message>
        <source>The recipe is from a newer version of Quenmora</source>
        <translation>A receita é de uma versão mais nova do Quenmora</translation>
    </message>
    <message>
        <source>“%1” must be a list</source>
        <translation>“%1” deve ser uma lista</translation>
    </message>
    <message>
        <source>“%1” means nothing here</source>
        <translation>“%1” não significa nada aqui</translation>
    </message>
    <message>
        <source>“%1” is there twice</source>
        <translation>“%1” aparece duas vezes</translation>
    </message>
    <message>
        <source>There are more than %1 outputs</source>
        <translation>Há mais de %1 saídas</translation>
    </message>
    <message>
        <source>“%1” is the file of line %2 already</source>
        <translation>“%1” já é o arquivo da linha %2</translation>
    </message>
    <message>
        <source>“%1” is missing</source>
        <translation>Falta “%1”</translation>
    </message>
    <message>
        <source>“%1” must be a text</source>
        <translation>“%1” deve ser um texto</translation>
    </message>
    <message>
        <source>An output must be an object</source>
        <translation>Uma saída deve ser um objeto</translation>
    </message>
    <message>
        <source>There is no kind of asset “%1”</source>
        <translation>O tipo de recurso “%1” não existe</translation>
    </message>
    <message>
        <source>“%1” is no id</source>
        <translation>“%1” não é um id</translation>
    </message>
    <message>
        <source>“%1” must be an object</source>
        <translation>“%1” deve ser um objeto</translation>
    </message>
    <message>
        <source>%1 has no option “%2”</source>
        <translation>%1 não tem a opção “%2”</translation>
    </message>
    <message>
        <source>The option “%1” has a value of the wrong type</source>
        <translation>A opção “%1” tem um valor do tipo errado</translation>
    </message>
    <message>
        <source>“%1”, %2: %3 is %4, and %5 to %6 fit</source>
        <translation>“%1”, %2: %3 é %4, e cabem %5 a %6</translation>
    </message>
    <message>
        <source>a palette</source>
        <translation>uma paleta</translation>
    </message>
    <message>
        <source>a tile set</source>
        <translation>um tileset</translation>
    </message>
    <message>
        <source>a map</source>
        <translation>um mapa</translation>
    </message>
    <message>
        <source>a block set</source>
        <translation>um conjunto de blocos</translation>
    </message>
    <message>
        <source>a sprite bank</source>
        <translation>um banco de sprites</translation>
    </message>
    <message>
        <source>an image</source>
        <translation>uma imagem</translation>
    </message>
    <message>
        <source>“%1” is a bank of 8 bits: sprite %2 (counted from 0) has a pixel of index %3, and 4 bits hold 0 to 15</source>
        <translation>“%1” é um banco de 8 bits: o sprite %2 (contado a partir de 0) tem um pixel de índice %3, e em 4 bits cabem 0 a 15</translation>
    </message>
    <message>
        <source>Sprites, 8 bits a pixel</source>
        <translation>Sprites, 8 bits por pixel</translation>
    </message>
    <message>
        <source>Sprites, 4 bits a pixel, packed</source>
        <translation>Sprites, 4 bits por pixel, compactados</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profundidade</translation>
    </message>
    <message>
        <source>How many bits of a pixel count</source>
        <translation>Quantos bits de um pixel contam</translation>
    </message>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bits, 256 cores</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bits, 16 cores</translation>
    </message>
    <message>
        <source>“%1” cannot be written: “%2” is a link that leads nowhere</source>
        <translation>Não é possível gravar “%1”: “%2” é um link que não leva a lugar nenhum</translation>
    </message>
    <message>
        <source>“%1” cannot be written: the link “%2” leads out of the folder</source>
        <translation>Não é possível gravar “%1”: o link “%2” leva para fora da pasta</translation>
    </message>
    <message>
        <source>“%1” cannot be written: it is a folder</source>
        <translation>Não é possível gravar “%1”: é uma pasta</translation>
    </message>
    <message>
        <source>“%1” cannot be written: “%2” is no folder</source>
        <translation>Não é possível gravar “%1”: “%2” não é uma pasta</translation>
    </message>
    <message>
        <source>“%1”: tile %2 (counted from 0) has the value %3, and %4 to %5 fit</source>
        <translation>“%1”: o tile %2 (contado a partir de 0) tem o valor %3, e cabem %4 a %5</translation>
    </message>
    <message>
        <source>The file holds numbers of %1 tiles, and a tile set has at most %2</source>
        <translation>O arquivo contém números de %1 tiles, e um tileset tem no máximo %2</translation>
    </message>
    <message>
        <source>In which order the pixels of a tile follow each other</source>
        <translation>Em que ordem os pixels de um tile se sucedem</translation>
    </message>
    <message>
        <source>How many bytes a value takes</source>
        <translation>Quantos bytes um valor ocupa</translation>
    </message>
    <message>
        <source>One byte</source>
        <translation>Um byte</translation>
    </message>
    <message>
        <source>Two bytes</source>
        <translation>Dois bytes</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinta</translation>
    </message>
    <message>
        <source>The colour (0–15) of the pixels that are set; all others are clear</source>
        <translation>A cor (0–15) dos pixels ligados; todos os outros são transparentes</translation>
    </message>
    <message>
        <source>Tiles, 4 bits a pixel</source>
        <translation>Tiles, 4 bits por pixel</translation>
    </message>
    <message>
        <source>Tiles, 8 bits a pixel</source>
        <translation>Tiles, 8 bits por pixel</translation>
    </message>
    <message>
        <source>Tiles, 1 bit a pixel</source>
        <translation>Tiles, 1 bit por pixel</translation>
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
        <translation>O grupo de dezesseis cores em que os tiles são exibidos</translation>
    </message>
    <message>
        <source>The colour (0–15) of the pixels that are set</source>
        <translation>A cor (0–15) dos pixels ligados</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>The colour (0–15) of all others</source>
        <translation>A cor (0–15) de todos os outros</translation>
    </message>
    <message>
        <source>The tile that the first number is for, counted from 0</source>
        <translation>O tile ao qual o primeiro número se refere, contado a partir de 0</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation>Não é possível criar a pasta %1</translation>
    </message>
    <message>
        <source>The records do not lie in the file as its beginning says</source>
        <translation>Os registros não estão no arquivo como diz o seu começo</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>faixas</translation>
    </message>
    <message>
        <source>Ranges of a palette whose colours go round</source>
        <translation>Faixas de uma paleta cujas cores circulam</translation>
    </message>
</context>
<context>
    <name>NextDataImport</name>
    <message>
        <source>Some of the required files are missing</source>
        <translation>Faltam alguns dos arquivos necessários</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importando %1…</translation>
    </message>
    <message>
        <source>Could not import the palette data</source>
        <translation>Não foi possível importar os dados da paleta</translation>
    </message>
    <message>
        <source>Could not import the tile data</source>
        <translation>Não foi possível importar os dados dos tiles</translation>
    </message>
    <message>
        <source>Could not import the map data</source>
        <translation>Não foi possível importar os dados do mapa</translation>
    </message>
</context>
<context>
    <name>NextSteps</name>
    <message>
        <source>This project is empty. Begin with:</source>
        <translation>Este projeto está vazio. Comece com:</translation>
    </message>
    <message>
        <source>A map from a picture</source>
        <translation>Mapa a partir de imagem</translation>
    </message>
    <message>
        <source>Cuts a picture into tiles and makes a palette, a tile set and a map of it</source>
        <translation>Corta uma imagem em tiles e cria a partir dela uma paleta, um tileset e um mapa</translation>
    </message>
    <message>
        <source>Files that there are</source>
        <translation>Arquivos existentes</translation>
    </message>
    <message>
        <source>Looks at files of any kind, shows what they are, and makes assets of them</source>
        <translation>Examina arquivos de qualquer tipo, mostra o que são e cria recursos a partir deles</translation>
    </message>
    <message>
        <source>A new palette</source>
        <translation>Nova paleta</translation>
    </message>
    <message>
        <source>The colours that everything else is drawn with</source>
        <translation>As cores com que todo o resto é desenhado</translation>
    </message>
    <message>
        <source>A new tile set</source>
        <translation>Novo tileset</translation>
    </message>
    <message>
        <source>The tiles that maps are built from</source>
        <translation>Os tiles com que os mapas são construídos</translation>
    </message>
    <message>
        <source>New sprites</source>
        <translation>Novos sprites</translation>
    </message>
    <message>
        <source>A bank of sprites of 16 × 16 pixels</source>
        <translation>Um banco de sprites de 16 × 16 pixels</translation>
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
        <translation>%1: próximo</translation>
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
        <translation>Criado a partir do nome</translation>
    </message>
</context>
<context>
    <name>OutputDialog</name>
    <message>
        <source>Edit Output</source>
        <translation>Editar saída</translation>
    </message>
    <message>
        <source>Below the project&apos;s folder, with / between folders</source>
        <translation>Dentro da pasta do projeto, com / entre as pastas</translation>
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
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The project no longer has this asset</source>
        <translation>O projeto não tem mais este recurso</translation>
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
        <translation>Impossível: %1</translation>
    </message>
    <message>
        <source>“%1” is the file of another output</source>
        <translation>“%1” é o arquivo de outra saída</translation>
    </message>
</context>
<context>
    <name>OutputPreview</name>
    <message>
        <source>Preview</source>
        <translation>Prévia</translation>
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
        <translation>Tamanho do pincel: [ diminui, ] aumenta</translation>
    </message>
    <message>
        <source>Size of the brush</source>
        <translation>Tamanho do pincel</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagem</translation>
    </message>
</context>
<context>
    <name>PaintSettings</name>
    <message>
        <source>Connect &amp;Strokes</source>
        <translation>Conectar &amp;traços</translation>
    </message>
    <message>
        <source>Draw without gaps, however fast the pointer moves</source>
        <translation>Desenha sem lacunas, por mais rápido que o ponteiro se mova</translation>
    </message>
    <message>
        <source>&amp;Pixel Perfect Lines</source>
        <translation>Linhas &amp;pixel perfect</translation>
    </message>
    <message>
        <source>Draw freehand lines of one pixel without corners</source>
        <translation>Desenha linhas à mão livre de um pixel, sem cantos</translation>
    </message>
    <message>
        <source>S&amp;hade</source>
        <translation>&amp;Sombrear</translation>
    </message>
    <message>
        <source>Step pixels along the colours between foreground and background: the left button towards the foreground, the right button towards the background</source>
        <translation>Avança os pixels pelas cores entre a de frente e a de fundo: o botão esquerdo em direção à de frente, o direito em direção à de fundo</translation>
    </message>
    <message>
        <source>&amp;Round Brush</source>
        <translation>Pincel &amp;redondo</translation>
    </message>
    <message>
        <source>Draw with a round brush</source>
        <translation>Desenha com um pincel redondo</translation>
    </message>
    <message>
        <source>Mirror &amp;Left and Right</source>
        <translation>Espelhar &amp;esquerda e direita</translation>
    </message>
    <message>
        <source>Draw on the left and on the right at once</source>
        <translation>Desenha à esquerda e à direita ao mesmo tempo</translation>
    </message>
    <message>
        <source>Mirror &amp;Top and Bottom</source>
        <translation>Espelhar em cim&amp;a e embaixo</translation>
    </message>
    <message>
        <source>Draw at the top and at the bottom at once</source>
        <translation>Desenha em cima e embaixo ao mesmo tempo</translation>
    </message>
</context>
<context>
    <name>PaletteColourCommand</name>
    <message>
        <source>Colour</source>
        <translation>Cor</translation>
    </message>
</context>
<context>
    <name>PaletteDialog</name>
    <message>
        <source>New Palette</source>
        <translation>Nova paleta</translation>
    </message>
    <message>
        <source>Create a new palette</source>
        <translation>Criar uma nova paleta</translation>
    </message>
    <message>
        <source>Palette Name</source>
        <translation>Nome da paleta</translation>
    </message>
    <message>
        <source>Copy colours from current palette</source>
        <translation>Copiar as cores da paleta atual</translation>
    </message>
    <message>
        <source>Use the default Next palette</source>
        <translation>Usar a paleta padrão do Next</translation>
    </message>
    <message>
        <source>Create a blank palette</source>
        <translation>Criar uma paleta vazia</translation>
    </message>
    <message>
        <source>Palette names must be unique</source>
        <translation>Os nomes das paletas não podem se repetir</translation>
    </message>
    <message>
        <source>Palette name is required</source>
        <translation>O nome da paleta é obrigatório</translation>
    </message>
</context>
<context>
    <name>PaletteEditor</name>
    <message>
        <source>Darkens the selected colour(s)</source>
        <translation>Escurece a(s) cor(es) selecionada(s)</translation>
    </message>
    <message>
        <source>Lightens the selected colour(s)</source>
        <translation>Clareia a(s) cor(es) selecionada(s)</translation>
    </message>
    <message>
        <source>Create a gradient</source>
        <translation>Cria um gradiente</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Escurecer</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Clarear</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Gradiente</translation>
    </message>
</context>
<context>
    <name>PaletteGrid</name>
    <message>
        <source>Palette Grid Colour Chooser</source>
        <translation>Seletor de cores da paleta</translation>
    </message>
    <message>
        <source>Index %1: $%2</source>
        <translation>Índice %1: $%2</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Cor %1, %2, transparente</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Cor %1, %2</translation>
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
        <translation>&amp;Nova paleta</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>No Palette</source>
        <translation>Nenhuma paleta</translation>
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
        <translation>Imagens (*.png *.bmp)</translation>
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
        <translation>Ainda não há uma paleta para mostrar cores.
Paleta ▸ Nova paleta cria uma.</translation>
    </message>
</context>
<context>
    <name>PaletteSelectorDialog</name>
    <message>
        <source>Swap Palette</source>
        <translation>Trocar paleta</translation>
    </message>
    <message>
        <source>Show with another palette</source>
        <translation>Mostrar com outra paleta</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>There is no palette to choose; please create one first</source>
        <translation>Não há paleta para escolher; crie uma primeiro</translation>
    </message>
</context>
<context>
    <name>PaletteTools</name>
    <message>
        <source>Sort by &amp;Hue</source>
        <translation>Ordenar por &amp;matiz</translation>
    </message>
    <message>
        <source>Orders the selected entries from red over green to blue, greys first; pictures keep their look</source>
        <translation>Ordena as entradas selecionadas do vermelho ao azul passando pelo verde, com os cinzas primeiro; as imagens mantêm a aparência</translation>
    </message>
    <message>
        <source>Sort Palette</source>
        <translation>Ordenar paleta</translation>
    </message>
    <message>
        <source>Sort by &amp;Brightness</source>
        <translation>Ordenar por &amp;brilho</translation>
    </message>
    <message>
        <source>Orders the selected entries from dark to light; pictures keep their look</source>
        <translation>Ordena as entradas selecionadas da mais escura à mais clara; as imagens mantêm a aparência</translation>
    </message>
    <message>
        <source>Re&amp;verse</source>
        <translation>&amp;Inverter ordem</translation>
    </message>
    <message>
        <source>Puts the selected entries into the opposite order; pictures keep their look</source>
        <translation>Coloca as entradas selecionadas na ordem inversa; as imagens mantêm a aparência</translation>
    </message>
    <message>
        <source>Reverse Palette</source>
        <translation>Inverter paleta</translation>
    </message>
    <message>
        <source>E&amp;xchange Ends</source>
        <translation>Trocar &amp;extremos</translation>
    </message>
    <message>
        <source>Lets the first and the last selected entry change places; pictures keep their look</source>
        <translation>Troca de lugar a primeira e a última entrada selecionada; as imagens mantêm a aparência</translation>
    </message>
    <message>
        <source>Exchange Palette Entries</source>
        <translation>Trocar entradas da paleta</translation>
    </message>
    <message>
        <source>&amp;Gradient in Machine Steps</source>
        <translation>&amp;Gradiente em passos da máquina</translation>
    </message>
    <message>
        <source>Spreads the selection from its first to its last colour, each channel in the nearest of its eight levels</source>
        <translation>Distribui a seleção da primeira à última cor, cada canal no mais próximo de seus oito níveis</translation>
    </message>
    <message>
        <source>Mark &amp;Unused Entries</source>
        <translation>Marcar entradas não &amp;usadas</translation>
    </message>
    <message>
        <source>Marks the entries that no pixel has</source>
        <translation>Marca as entradas que nenhum pixel usa</translation>
    </message>
    <message>
        <source>Mark E&amp;qual Entries</source>
        <translation>Marcar entradas igu&amp;ais</translation>
    </message>
    <message>
        <source>Marks the entries whose colour others have, too</source>
        <translation>Marca as entradas cuja cor outras também têm</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 pixel</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pixels</source>
        <translation>
            <numerusform>%Ln pixel</numerusform>
            <numerusform>%Ln pixels</numerusform>
        </translation>
    </message>
    <message>
        <source>Select the entries that are to change places</source>
        <translation>Selecione as entradas que devem trocar de lugar</translation>
    </message>
    <message>
        <source>Colour cycles whose entries are no longer next to each other were removed; undo brings them back</source>
        <translation>Foram removidos os ciclos de cores cujas entradas não estão mais lado a lado; desfazer os traz de volta</translation>
    </message>
    <message>
        <source>The entries cannot change places: tiles and 4-bit sprites need theirs in their group of 16, and transparent entries, and those of tiles that are drawn with several palette offsets, must stay where they are</source>
        <translation>As entradas não podem trocar de lugar: tiles e sprites de 4 bits precisam das suas no seu grupo de 16, e as entradas transparentes, assim como as de tiles desenhados com vários offsets de paleta, devem ficar onde estão</translation>
    </message>
    <message>
        <source>Colour C&amp;ycles…</source>
        <translation>&amp;Ciclos de cores…</translation>
    </message>
    <message>
        <source>Ranges of entries whose colours go round, so that water flows and fires burn</source>
        <translation>Faixas de entradas cujas cores circulam, para que a água corra e o fogo arda</translation>
    </message>
    <message>
        <source>Move Palette Entries</source>
        <translation>Mover entradas da paleta</translation>
    </message>
</context>
<context>
    <name>PaletteWindow</name>
    <message>
        <source>Palette Editor</source>
        <translation>Editor de paleta</translation>
    </message>
    <message>
        <source>No palette selected</source>
        <translation>Nenhuma paleta selecionada</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>The palettes of the project</source>
        <translation>As paletas do projeto</translation>
    </message>
    <message>
        <source>Rename, copy, delete or sort the palette</source>
        <translation>Renomeia, copia, exclui ou ordena a paleta</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renomear</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;xcluir</translation>
    </message>
    <message>
        <source>Palette: %1</source>
        <translation>Paleta: %1</translation>
    </message>
    <message>
        <source>All colours are black. Choose one and change it below, or bring in others with Palette ▸ Import.</source>
        <translation>Todas as cores são pretas. Escolha uma e altere-a abaixo, ou traga outras com Paleta ▸ Importar.</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>It has %1 × %2 pixels; at most %3 × %3, or as many in another shape, can be read</source>
        <translation>A imagem tem %1 × %2 pixels; é possível ler no máximo %3 × %3, ou a mesma quantidade em outra proporção</translation>
    </message>
    <message>
        <source>Could not read the image file</source>
        <translation>Não foi possível ler o arquivo de imagem</translation>
    </message>
    <message>
        <source>It is a pipe or a device, not a file</source>
        <translation>É um pipe ou um dispositivo, não um arquivo</translation>
    </message>
</context>
<context>
    <name>PictureImport</name>
    <message>
        <source>Tiles that lost colours: %1 of %2.
A tile shows 16 colours, and all of them together have 16 groups of 16. Reduce the colours of the picture, to 16 in each tile of 8 × 8 pixels and to fewer in all, and import it again.</source>
        <translation>Tiles que perderam cores: %1 de %2.
Um tile mostra 16 cores, e todos juntos têm 16 grupos de 16. Reduza as cores da imagem a 16 em cada tile de 8 × 8 pixels e a menos no total, e importe-a novamente.</translation>
    </message>
    <message>
        <source>Cannot import the image as it would need more than 512 tiles
%1 required</source>
        <translation>Não é possível importar a imagem, pois ela precisaria de mais de 512 tiles
Necessários: %1</translation>
    </message>
    <message>
        <source>The image is smaller than a tile, which has 8 × 8 pixels</source>
        <translation>A imagem é menor que um tile, que tem 8 × 8 pixels</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importando %1…</translation>
    </message>
    <message>
        <source>The project was closed meanwhile</source>
        <translation>O projeto foi fechado nesse meio-tempo</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lendo %1…</translation>
    </message>
</context>
<context>
    <name>PicturePreview</name>
    <message>
        <source>Preview</source>
        <translation>Prévia</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Depois</translation>
    </message>
</context>
<context>
    <name>PixelEditor</name>
    <message>
        <source>%1, %2  colour %3</source>
        <translation>%1, %2  cor %3</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Prévia</translation>
    </message>
    <message>
        <source>Show how the picture will look</source>
        <translation>Mostra como a imagem vai ficar</translation>
    </message>
    <message>
        <source>Swap foreground and background</source>
        <translation>Trocar cor de frente e de fundo</translation>
    </message>
    <message>
        <source>Smaller brush</source>
        <translation>Pincel menor</translation>
    </message>
    <message>
        <source>Larger brush</source>
        <translation>Pincel maior</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Substituir cor</translation>
    </message>
    <message>
        <source>Gives pixels of the background colour the foreground colour, in the selection if there is one</source>
        <translation>Dá aos pixels da cor de fundo a cor de frente, na seleção, se houver uma</translation>
    </message>
    <message>
        <source>Brush from Selection</source>
        <translation>Pincel da seleção</translation>
    </message>
    <message>
        <source>Draws with what is selected, without its pixels of the background colour</source>
        <translation>Desenha com o que está selecionado, sem os pixels da cor de fundo</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
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
        <translation>Prévia</translation>
    </message>
    <message>
        <source>What the preview shows</source>
        <translation>O que a prévia mostra</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (cópia)</translation>
    </message>
    <message>
        <source>New palette added: %1</source>
        <translation>Nova paleta adicionada: %1</translation>
    </message>
    <message>
        <source>New tile set added: %1</source>
        <translation>Novo tileset adicionado: %1</translation>
    </message>
    <message>
        <source>New map added: %1</source>
        <translation>Novo mapa adicionado: %1</translation>
    </message>
    <message>
        <source>New block set added: %1</source>
        <translation>Novo conjunto de blocos adicionado: %1</translation>
    </message>
    <message>
        <source>New Sprite Bank Added</source>
        <translation>Novo banco de sprites adicionado</translation>
    </message>
</context>
<context>
    <name>ProjectActions</name>
    <message>
        <source>%1 (selection)</source>
        <translation>%1 (seleção)</translation>
    </message>
    <message>
        <source>Palette In Use</source>
        <translation>Paleta em uso</translation>
    </message>
    <message>
        <source>You may not delete this palette; it is used by one or more sprites, tiles or images</source>
        <translation>Não é possível excluir esta paleta; ela é usada por um ou mais sprites, tiles ou imagens</translation>
    </message>
    <message>
        <source>Tile Set In Use</source>
        <translation>Tileset em uso</translation>
    </message>
    <message>
        <source>You may not delete this Tile Set; it is used by one or more maps</source>
        <translation>Não é possível excluir este tileset; ele é usado por um ou mais mapas</translation>
    </message>
    <message>
        <source>Objects in use</source>
        <translation>Objetos em uso</translation>
    </message>
    <message>
        <source>You may not delete these objects; they are in use by one or more maps</source>
        <translation>Não é possível excluir estes objetos; eles são usados por um ou mais mapas</translation>
    </message>
    <message>
        <source>The file is neither a palette nor a picture that can be read</source>
        <translation>O arquivo não é uma paleta nem uma imagem que possa ser lida</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n colours; the palette takes the first %1 of them</source>
        <translation>
            <numerusform>A imagem tem %n cor; a paleta fica com as primeiras %1</numerusform>
            <numerusform>A imagem tem %n cores; a paleta fica com as primeiras %1</numerusform>
        </translation>
    </message>
    <message>
        <source>New Palette for the Others</source>
        <translation>Nova paleta para as outras</translation>
    </message>
    <message>
        <source>%1, more</source>
        <translation>%1, restante</translation>
    </message>
    <message>
        <source>Could not make sprites of the image file</source>
        <translation>Não foi possível criar sprites a partir do arquivo de imagem</translation>
    </message>
    <message>
        <source>Could not import the sprite data</source>
        <translation>Não foi possível importar os dados dos sprites</translation>
    </message>
    <message>
        <source>Import Incomplete</source>
        <translation>Importação incompleta</translation>
    </message>
</context>
<context>
    <name>ProjectController</name>
    <message>
        <source>Opening %1…</source>
        <translation>Abrindo %1…</translation>
    </message>
    <message>
        <source>Unable to create a new project</source>
        <translation>Não foi possível criar um novo projeto</translation>
    </message>
    <message>
        <source>Recovering the project…</source>
        <translation>Recuperando o projeto…</translation>
    </message>
    <message>
        <source>loading...</source>
        <translation>carregando...</translation>
    </message>
    <message>
        <source>Saving %1…</source>
        <translation>Salvando %1…</translation>
    </message>
    <message>
        <source>What is kept beside the project cannot be read: %1
The project itself is whole.
%2</source>
        <translation>Não é possível ler o que é guardado junto ao projeto: %1
O projeto em si está intacto.
%2</translation>
    </message>
    <message>
        <source>What is kept beside the project cannot be written: %1
%2</source>
        <translation>Não é possível gravar o que é guardado junto ao projeto: %1
%2</translation>
    </message>
    <message>
        <source>Another program removed or renamed the file of this project, which saving writes again:
%1</source>
        <translation>Outro programa removeu ou renomeou o arquivo deste projeto, que será gravado de novo ao salvar:
%1</translation>
    </message>
    <message>
        <source>The file cannot be loaded, and the project stays as it is here: %1</source>
        <translation>Não é possível carregar o arquivo, e o projeto fica como está aqui: %1</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Alterações não salvas</translation>
    </message>
    <message>
        <source>Save the changes to %1 before closing it?</source>
        <translation>Salvar as alterações em %1 antes de fechar?</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Salvar projeto</translation>
    </message>
    <message>
        <source>Project file (*.quenmora)</source>
        <translation>Arquivo de projeto (*.quenmora)</translation>
    </message>
    <message>
        <source>The sample project is not installed</source>
        <translation>O projeto de exemplo não está instalado</translation>
    </message>
</context>
<context>
    <name>ProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation>Novo projeto</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>Criar um novo projeto</translation>
    </message>
    <message>
        <source>Project &amp;name</source>
        <translation>&amp;Nome do projeto</translation>
    </message>
</context>
<context>
    <name>ProjectDocument</name>
    <message>
        <source>Failed to load tile image %1</source>
        <translation>Falha ao carregar a imagem de tiles %1</translation>
    </message>
    <message>
        <source>Failed to load tile map anim for map %1</source>
        <translation>Falha ao carregar os dados do mapa %1</translation>
    </message>
    <message>
        <source>Invalid project file</source>
        <translation>Arquivo de projeto inválido</translation>
    </message>
    <message>
        <source>Project file is from a newer version of Quenmora</source>
        <translation>O arquivo de projeto é de uma versão mais nova do Quenmora</translation>
    </message>
    <message>
        <source>Project has a missing sprite anim</source>
        <translation>Faltam dados de sprites no projeto</translation>
    </message>
    <message>
        <source>Failed to load tile set tileImage &quot;%1&quot; from project file</source>
        <translation>Falha ao carregar do arquivo de projeto a imagem do tileset “%1”</translation>
    </message>
    <message>
        <source>Error setting tile set anim - %1</source>
        <translation>Erro ao definir os dados do tileset - %1</translation>
    </message>
</context>
<context>
    <name>ProjectExport</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Linha %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… e mais %n</numerusform>
            <numerusform>… e mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The recipe could not be saved</source>
        <translation>Não foi possível salvar a receita</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Erro ao salvar</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Houve um problema ao exportar os dados</translation>
    </message>
</context>
<context>
    <name>ProjectMenu</name>
    <message>
        <source>Import A&amp;gain</source>
        <translation>Importar nova&amp;mente</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Houve um problema ao exportar os dados</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Erro ao salvar</translation>
    </message>
</context>
<context>
    <name>ProjectStore</name>
    <message>
        <source>Invalid project file</source>
        <translation>Arquivo de projeto inválido</translation>
    </message>
    <message>
        <source>Project loaded</source>
        <translation>Projeto carregado</translation>
    </message>
    <message>
        <source>Could not create the project file</source>
        <translation>Não foi possível criar o arquivo de projeto</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>Não foi possível gravar %1</translation>
    </message>
    <message>
        <source>Could not finish writing the project file</source>
        <translation>Não foi possível concluir a gravação do arquivo de projeto</translation>
    </message>
    <message>
        <source>Saved %1 to %2</source>
        <translation>%1 salvo em %2</translation>
    </message>
    <message>
        <source>Invalid map id</source>
        <translation>Id de mapa inválido</translation>
    </message>
    <message>
        <source>Map exported</source>
        <translation>Mapa exportado</translation>
    </message>
    <message>
        <source>Exporting the map failed</source>
        <translation>Falha ao exportar o mapa</translation>
    </message>
    <message>
        <source>Invalid tile set id</source>
        <translation>Id de tileset inválido</translation>
    </message>
    <message>
        <source>Tile set exported</source>
        <translation>Tileset exportado</translation>
    </message>
    <message>
        <source>Exporting the tile set failed</source>
        <translation>Falha ao exportar o tileset</translation>
    </message>
    <message>
        <source>Invalid palette id</source>
        <translation>Id de paleta inválido</translation>
    </message>
    <message>
        <source>Palette exported</source>
        <translation>Paleta exportada</translation>
    </message>
    <message>
        <source>Exporting the palette failed</source>
        <translation>Falha ao exportar a paleta</translation>
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
        <translation>Imagens</translation>
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
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projeto</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renomear</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;xcluir</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Import A&amp;gain</source>
        <translation>Importar nova&amp;mente</translation>
    </message>
</context>
<context>
    <name>ProjectWindow</name>
    <message>
        <source>Project</source>
        <translation>Projeto</translation>
    </message>
    <message>
        <source>No project loaded</source>
        <translation>Nenhum projeto carregado</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 já existe.
Deseja substituí-lo?</translation>
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
        <translation>Nova</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Alterada</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Inalterada</translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>Impossível: %1</translation>
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
        <translation>Páginas de 8 KiB e bancos de 16 KiB que os bytes ocupam</translation>
    </message>
    <message>
        <source>Bytes in the game; source text is longer</source>
        <translation>Bytes no jogo; o código-fonte é mais longo</translation>
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
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
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
        <translation>Não é possível gravar em %1</translation>
    </message>
    <message>
        <source>No copy for the time after a crash could be written: %1</source>
        <translation>Não foi possível gravar a cópia de recuperação: %1</translation>
    </message>
</context>
<context>
    <name>RecoveryList</name>
    <message>
        <source>Never saved</source>
        <translation>Nunca salvo</translation>
    </message>
    <message>
        <source>As it was today at %1</source>
        <translation>Como estava hoje às %1</translation>
    </message>
    <message>
        <source>As it was yesterday at %1</source>
        <translation>Como estava ontem às %1</translation>
    </message>
    <message>
        <source>As it was on %1 at %2</source>
        <translation>Como estava em %1 às %2</translation>
    </message>
    <message>
        <source>A project</source>
        <translation>Um projeto</translation>
    </message>
    <message>
        <source>The copy is damaged and was put aside:</source>
        <translation>A cópia está danificada e foi posta de lado:</translation>
    </message>
    <message>
        <source>Discard Copy</source>
        <translation>Descartar cópia</translation>
    </message>
    <message>
        <source>Discard what can be recovered of %1?</source>
        <translation>Descartar o que pode ser recuperado de %1?</translation>
    </message>
    <message>
        <source>What was not saved is lost then.</source>
        <translation>O que não foi salvo será perdido.</translation>
    </message>
    <message>
        <source>Not saved when Quenmora stopped</source>
        <translation>Não salvo quando o Quenmora parou</translation>
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
        <translation>Abre o projeto com as alterações que não foram salvas</translation>
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
        <translation>Retângulo preenchido</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Retângulo</translation>
    </message>
</context>
<context>
    <name>ReductionBox</name>
    <message>
        <source>No, as they come</source>
        <translation>Não, na ordem em que vêm</translation>
    </message>
    <message>
        <source>To the nearest</source>
        <translation>Para as mais próximas</translation>
    </message>
    <message>
        <source>In an ordered pattern</source>
        <translation>Em um padrão ordenado</translation>
    </message>
    <message>
        <source>With error diffusion</source>
        <translation>Com difusão de erro</translation>
    </message>
    <message>
        <source>Colours are found for the whole picture; else those that come last take the nearest of the others</source>
        <translation>As cores são buscadas para a imagem inteira; caso contrário, as últimas são trocadas pelas mais próximas entre as outras</translation>
    </message>
    <message>
        <source>Colours of the machine: %1 before, %2 after</source>
        <translation>Cores da máquina: %1 antes, %2 depois</translation>
    </message>
    <message>
        <source>%1; mean error: %2 levels</source>
        <translation>%1; erro médio: %2 níveis</translation>
    </message>
    <message>
        <source>%1; none is lost</source>
        <translation>%1; nenhuma se perde</translation>
    </message>
</context>
<context>
    <name>Request</name>
    <message>
        <source>Do this recipe, not the one beside the project.</source>
        <translation>Executar esta receita, e não a que está ao lado do projeto.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>arquivo</translation>
    </message>
    <message>
        <source>Write below this folder, not below the project&apos;s.</source>
        <translation>Gravar dentro desta pasta, e não da pasta do projeto.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>pasta</translation>
    </message>
    <message>
        <source>Write nothing, but say what would be written.</source>
        <translation>Não gravar nada, só dizer o que seria gravado.</translation>
    </message>
    <message>
        <source>Tell make or ninja in this file what was made of what.</source>
        <translation>Dizer neste arquivo a make ou ninja o que foi feito a partir de quê.</translation>
    </message>
    <message>
        <source>Say nothing unless something fails.</source>
        <translation>Não dizer nada, a menos que algo falhe.</translation>
    </message>
    <message>
        <source>Without a recipe: write the asset of this name or id …</source>
        <translation>Sem receita: gravar o recurso com este nome ou id …</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nome</translation>
    </message>
    <message>
        <source>… in this form …</source>
        <translation>… neste formato …</translation>
    </message>
    <message>
        <source>id</source>
        <translation>id</translation>
    </message>
    <message>
        <source>… with this option of the form, which may be given again for others …</source>
        <translation>… com esta opção do formato, que pode ser repetida para outras …</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>chave=valor</translation>
    </message>
    <message>
        <source>… to this file.</source>
        <translation>… neste arquivo.</translation>
    </message>
    <message>
        <source>List the assets: kind, id and name.</source>
        <translation>Listar os recursos: tipo, id e nome.</translation>
    </message>
    <message>
        <source>List the forms and their options.</source>
        <translation>Listar os formatos e suas opções.</translation>
    </message>
    <message>
        <source>Describe the whole project as text, for git diff.</source>
        <translation>Descrever todo o projeto como texto, para git diff.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ajuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar a versão.</translation>
    </message>
    <message>
        <source>A project file, as game.quenmora.</source>
        <translation>Um arquivo de projeto, como game.quenmora.</translation>
    </message>
    <message>
        <source>Writes the graphics of a Quenmora project in the forms that a game takes, as its recipe says, the file
game.quenmora-export.json beside game.quenmora, which File &gt; Export Project in the editor makes.
Files whose bytes stay the same are not touched.</source>
        <translation>Grava os gráficos de um projeto do Quenmora nos formatos que um jogo carrega, conforme a sua receita, o arquivo
game.quenmora-export.json ao lado de game.quenmora, criado por Arquivo &gt; Exportar projeto no editor.
Arquivos cujos bytes continuam iguais não são tocados.</translation>
    </message>
    <message>
        <source>--%1 and --%2 do not go together</source>
        <translation>--%1 e --%2 não podem ser usados juntos</translation>
    </message>
    <message>
        <source>--%1 takes KEY=VALUE, not “%2”</source>
        <translation>--%1 espera CHAVE=VALOR, e não “%2”</translation>
    </message>
    <message>
        <source>--%1 is there twice</source>
        <translation>--%1 aparece duas vezes</translation>
    </message>
    <message>
        <source>--%1 needs a value</source>
        <translation>--%1 precisa de um valor</translation>
    </message>
    <message>
        <source>--%1 means nothing here</source>
        <translation>--%1 não significa nada aqui</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 precisa de --%2</translation>
    </message>
    <message>
        <source>“%1” is one argument too many</source>
        <translation>“%1” é um argumento a mais</translation>
    </message>
    <message>
        <source>A project file is missing</source>
        <translation>Falta um arquivo de projeto</translation>
    </message>
    <message>
        <source>Write a small picture of the project, as file managers show, to this PNG file …</source>
        <translation>Gravar neste arquivo PNG uma imagem pequena do projeto, como mostram os gerenciadores de arquivos …</translation>
    </message>
    <message>
        <source>… of at most so many pixels along its sides; 256 without this.</source>
        <translation>… com no máximo tantos pixels de lado; 256 sem isto.</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>--%1 takes a number from 1 to %2, not “%3”</source>
        <translation>--%1 espera um número de 1 a %2, e não “%3”</translation>
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
        <translation>Nível de vermelho</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green level</source>
        <translation>Nível de verde</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue level</source>
        <translation>Nível de azul</translation>
    </message>
</context>
<context>
    <name>ScrollBar</name>
    <message>
        <source>Add a column on the left</source>
        <translation>Adicionar uma coluna à esquerda</translation>
    </message>
    <message>
        <source>Add a row at the top</source>
        <translation>Adicionar uma linha em cima</translation>
    </message>
    <message>
        <source>Remove the column on the left</source>
        <translation>Remover a coluna da esquerda</translation>
    </message>
    <message>
        <source>Remove the row at the top</source>
        <translation>Remover a linha de cima</translation>
    </message>
    <message>
        <source>Remove the column on the right</source>
        <translation>Remover a coluna da direita</translation>
    </message>
    <message>
        <source>Remove the row at the bottom</source>
        <translation>Remover a linha de baixo</translation>
    </message>
    <message>
        <source>Add a column on the right</source>
        <translation>Adicionar uma coluna à direita</translation>
    </message>
    <message>
        <source>Add a row at the bottom</source>
        <translation>Adicionar uma linha embaixo</translation>
    </message>
</context>
<context>
    <name>SeveralOutputsDialog</name>
    <message>
        <source>Edit Outputs</source>
        <translation>Editar saídas</translation>
    </message>
    <message numerus="yes">
        <source>What %Ln outputs are to have alike</source>
        <translation>
            <numerusform>O que %Ln saída terá</numerusform>
            <numerusform>O que %Ln saídas terão em comum</numerusform>
        </translation>
    </message>
    <message>
        <source>Please choose what is to change</source>
        <translation>Escolha o que deve mudar</translation>
    </message>
</context>
<context>
    <name>ShortcutsDialog</name>
    <message>
        <source>A&amp;dd Key</source>
        <translation>A&amp;dicionar tecla</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>&amp;Take It Away There</source>
        <translation>T&amp;irá-la de lá</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Buscar por nome</translation>
    </message>
    <message>
        <source>or by &amp;keys:</source>
        <translation>ou por &amp;teclas:</translation>
    </message>
    <message>
        <source>Search by keys</source>
        <translation>Buscar por teclas</translation>
    </message>
    <message>
        <source>Press keys to see what they do</source>
        <translation>Pressione teclas para ver o que fazem</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Onde</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>Leaves these keys to this command alone</source>
        <translation>Deixa estas teclas só para este comando</translation>
    </message>
    <message>
        <source>Gives the command its usual keys</source>
        <translation>Devolve ao comando as teclas de costume</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>Restaurar t&amp;udo</translation>
    </message>
    <message>
        <source>Gives all commands their usual keys</source>
        <translation>Devolve a todos os comandos as teclas de costume</translation>
    </message>
    <message>
        <source>Another command has these keys, too</source>
        <translation>Outro comando também tem estas teclas</translation>
    </message>
    <message>
        <source>Keys of “%1”</source>
        <translation>Teclas de “%1”</translation>
    </message>
    <message>
        <source>Press the keys that shall do it</source>
        <translation>Pressione as teclas que devem fazê-lo</translation>
    </message>
    <message>
        <source>%1 is a key of “%2” (%3), too. Neither would do anything.</source>
        <translation>%1 também é uma tecla de “%2” (%3). Nenhum dos dois faria nada.</translation>
    </message>
</context>
<context>
    <name>ShortcutsFile</name>
    <message>
        <source>The file is too large</source>
        <translation>O arquivo é grande demais</translation>
    </message>
    <message>
        <source>The file does not hold keys by command</source>
        <translation>O arquivo não contém teclas por comando</translation>
    </message>
</context>
<context>
    <name>SlicingProgress</name>
    <message>
        <source>Processing image</source>
        <translation>Processando a imagem</translation>
    </message>
</context>
<context>
    <name>SpriteAnim</name>
    <message>
        <source>New Sprite</source>
        <translation>Novo sprite</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (cópia)</translation>
    </message>
</context>
<context>
    <name>SpriteDialog</name>
    <message>
        <source>New Sprites</source>
        <translation>Novos sprites</translation>
    </message>
    <message>
        <source>Create a new sprite bank</source>
        <translation>Criar um novo banco de sprites</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>Pro&amp;fundidade</translation>
    </message>
    <message>
        <source>New palette of the same name</source>
        <translation>Nova paleta de mesmo nome</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::AnimationEditorWidget</name>
    <message>
        <source>Set the frame width in sprites</source>
        <translation>Define a largura do quadro em sprites</translation>
    </message>
    <message>
        <source>Set the frame height in sprites</source>
        <translation>Define a altura do quadro em sprites</translation>
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
        <translation>Criar sprites a partir de dados brutos</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>Pro&amp;fundidade</translation>
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
        <translation>%L1 no arquivo</translation>
    </message>
    <message>
        <source>New standard palette</source>
        <translation>Nova paleta padrão</translation>
    </message>
    <message>
        <source>There is no sprite in this file, or it cannot be read</source>
        <translation>Não há nenhum sprite neste arquivo, ou ele não pode ser lido</translation>
    </message>
    <message>
        <source>The file holds more sprites than fit into a bank</source>
        <translation>O arquivo contém mais sprites do que cabem em um banco</translation>
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
        <translation>Criar sprites a partir de uma imagem</translation>
    </message>
    <message>
        <source>Nearest colours of a &amp;palette</source>
        <translation>Cores mais pró&amp;ximas de uma paleta</translation>
    </message>
    <message>
        <source>N&amp;ew palette, and every sprite once</source>
        <translation>Nova pal&amp;eta, e cada sprite só uma vez</translation>
    </message>
    <message>
        <source>&amp;Keep the machine&apos;s colours</source>
        <translation>&amp;Manter as cores da máquina</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has, and stays exactly that</source>
        <translation>Cada cor da imagem é uma que o Next tem e fica exatamente igual</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>Pro&amp;fundidade</translation>
    </message>
    <message>
        <source>&amp;Fewer colours</source>
        <translation>Menos co&amp;res</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lendo %1…</translation>
    </message>
    <message>
        <source>Reducing %1…</source>
        <translation>Reduzindo %1…</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Nenhuma imagem</translation>
    </message>
    <message>
        <source>%1 × %2 sprites, colours: %3, and transparent pixels</source>
        <translation>%1 × %2 sprites, cores: %3, e pixels transparentes</translation>
    </message>
    <message>
        <source>%1 × %2 sprites, colours: %3</source>
        <translation>%1 × %2 sprites, cores: %3</translation>
    </message>
    <message>
        <source>There is room for %1; the others take the nearest of these</source>
        <translation>Há espaço para %1; as outras são trocadas pelas mais próximas destas</translation>
    </message>
    <message>
        <source>The file is not a picture that can be read</source>
        <translation>O arquivo não é uma imagem que possa ser lida</translation>
    </message>
    <message>
        <source>The picture is smaller than a sprite, which has 16 × 16 pixels</source>
        <translation>A imagem é menor que um sprite, que tem 16 × 16 pixels</translation>
    </message>
    <message>
        <source>The picture holds more sprites than fit into a bank</source>
        <translation>A imagem contém mais sprites do que cabem em um banco</translation>
    </message>
    <message>
        <source>There is a palette of this name already; please choose another name</source>
        <translation>Já existe uma paleta com este nome; escolha outro nome</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n colours; 4-bit sprites show 15 beside the transparent one</source>
        <translation>
            <numerusform>A imagem tem %n cor; sprites de 4 bits mostram 15 além da transparente</numerusform>
            <numerusform>A imagem tem %n cores; sprites de 4 bits mostram 15 além da transparente</numerusform>
        </translation>
    </message>
    <message>
        <source>The colours lie in several groups of 16 of the palette; 4-bit sprites show one group</source>
        <translation>As cores estão em vários grupos de 16 da paleta; sprites de 4 bits mostram um único grupo</translation>
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
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Copiar imagem</translation>
    </message>
    <message>
        <source>Paste Image</source>
        <translation>Colar imagem</translation>
    </message>
    <message>
        <source>Add Sprite</source>
        <translation>Adicionar sprite</translation>
    </message>
    <message>
        <source>Sprite %1</source>
        <translation>Sprite %1</translation>
    </message>
    <message>
        <source>Add a sprite</source>
        <translation>Adicionar um sprite</translation>
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
        <translation>&amp;Novo</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>&amp;Trocar paleta</translation>
    </message>
    <message>
        <source>&amp;Export Data</source>
        <translation>&amp;Exportar dados</translation>
    </message>
    <message>
        <source>Select a file to import</source>
        <translation>Selecione um arquivo para importar</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp)</source>
        <translation>Imagens (*.png *.bmp)</translation>
    </message>
    <message>
        <source>Next sprites (*.spr)</source>
        <translation>Sprites do Next (*.spr)</translation>
    </message>
    <message>
        <source>Export Sprite Data</source>
        <translation>Exportar dados dos sprites</translation>
    </message>
    <message>
        <source>Next Sprites (*.spr)</source>
        <translation>Sprites do Next (*.spr)</translation>
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
        <translation>Nenhum sprite selecionado</translation>
    </message>
    <message>
        <source>Onion Skin</source>
        <translation>Casca de cebola</translation>
    </message>
    <message>
        <source>Show the sprite of the frame before faintly over this one</source>
        <translation>Mostra o sprite do quadro anterior esmaecido sobre este</translation>
    </message>
    <message>
        <source>Replace Colour in All Sprites</source>
        <translation>Substituir cor em todos os sprites</translation>
    </message>
    <message>
        <source>Does that in all sprites of the bank</source>
        <translation>Faz isso em todos os sprites do banco</translation>
    </message>
    <message>
        <source>Pixels of this index are not drawn on the Next, whatever their colour</source>
        <translation>Pixels deste índice não são desenhados no Next, seja qual for sua cor</translation>
    </message>
    <message>
        <source>Transparent index</source>
        <translation>Índice transparente</translation>
    </message>
    <message>
        <source>Add Sprite</source>
        <translation>Adicionar sprite</translation>
    </message>
    <message>
        <source>Delete Sprite</source>
        <translation>Excluir sprite</translation>
    </message>
    <message>
        <source>Clear Sprite</source>
        <translation>Limpar sprite</translation>
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
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animação</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Repetido</translation>
    </message>
    <message>
        <source>No animation shows this sprite</source>
        <translation>Nenhuma animação mostra este sprite</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Substituir cor</translation>
    </message>
    <message>
        <source>Transparent Index</source>
        <translation>Índice transparente</translation>
    </message>
    <message>
        <source>Draw the first sprite here; the last place of the list below adds another</source>
        <translation>Desenhe aqui o primeiro sprite; o último lugar da lista abaixo adiciona outro</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>A double click in the Project dock opens an asset</source>
        <translation>Um duplo clique no painel Projeto abre um recurso</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Projetos recentes</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Novo projeto</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Abrir um projeto</translation>
    </message>
    <message>
        <source>Read the guide</source>
        <translation>Ler o guia</translation>
    </message>
    <message>
        <source>To look at and to play with</source>
        <translation>Para ver e experimentar</translation>
    </message>
    <message>
        <source>The sample project</source>
        <translation>O projeto de exemplo</translation>
    </message>
    <message>
        <source>A level, sprites and a title screen</source>
        <translation>Uma fase, sprites e uma tela de título</translation>
    </message>
</context>
<context>
    <name>TileAnimation</name>
    <message>
        <source>Blocks!</source>
        <translation>Blocos!</translation>
    </message>
    <message>
        <source>%1 (Copy)</source>
        <translation>%1 (cópia)</translation>
    </message>
</context>
<context>
    <name>TileAnimationDialog</name>
    <message>
        <source>New Map Objects</source>
        <translation>Novos objetos de mapa</translation>
    </message>
    <message>
        <source>Create map objects: animations for maps</source>
        <translation>Criar objetos de mapa: animações para mapas</translation>
    </message>
    <message>
        <source>&amp;Tile set</source>
        <translation>&amp;Tileset</translation>
    </message>
    <message>
        <source>Map objects are made of the tiles of a tile set; please create a tile set first</source>
        <translation>Objetos de mapa são feitos dos tiles de um tileset; crie um tileset primeiro</translation>
    </message>
</context>
<context>
    <name>TileAttributesEditor</name>
    <message>
        <source>Solid top</source>
        <translation>Sólido em cima</translation>
    </message>
    <message>
        <source>Solid left</source>
        <translation>Sólido à esquerda</translation>
    </message>
    <message>
        <source>Solid right</source>
        <translation>Sólido à direita</translation>
    </message>
    <message>
        <source>Solid bottom</source>
        <translation>Sólido embaixo</translation>
    </message>
    <message>
        <source>Deadly</source>
        <translation>Mortal</translation>
    </message>
    <message>
        <source>Collectible</source>
        <translation>Coletável</translation>
    </message>
    <message>
        <source>Ladder</source>
        <translation>Escada</translation>
    </message>
    <message>
        <source>Door</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Solid on all edges</source>
        <translation>Sólido em todas as bordas</translation>
    </message>
    <message>
        <source>A number of your own for the game</source>
        <translation>Um número à sua escolha para o jogo</translation>
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
        <translation>&amp;Girar</translation>
    </message>
    <message>
        <source>Export the pixels of tiles</source>
        <translation>Exportar os pixels dos tiles</translation>
    </message>
    <message>
        <source>Writes the columns of a tile as its rows</source>
        <translation>Grava as colunas de um tile como suas linhas</translation>
    </message>
    <message>
        <source>&amp;First tile</source>
        <translation>P&amp;rimeiro tile</translation>
    </message>
    <message>
        <source>&amp;Last tile</source>
        <translation>Ú&amp;ltimo tile</translation>
    </message>
    <message>
        <source>Export Tiles: %1</source>
        <translation>Exportar tiles: %1</translation>
    </message>
    <message>
        <source>The tile set has no tiles</source>
        <translation>O tileset não tem tiles</translation>
    </message>
    <message>
        <source>The first tile comes after the last one</source>
        <translation>O primeiro tile vem depois do último</translation>
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
        <translation>&amp;Novo tileset</translation>
    </message>
    <message>
        <source>&amp;Create Animations</source>
        <translation>&amp;Criar animações</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>&amp;Trocar paleta</translation>
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
        <translation>P&amp;róximo tile</translation>
    </message>
    <message>
        <source>&amp;Previous Tile</source>
        <translation>Tile anteri&amp;or</translation>
    </message>
    <message>
        <source>Tile List &amp;Magnification</source>
        <translation>A&amp;mpliação da lista de tiles</translation>
    </message>
    <message>
        <source>&amp;Spectrum Chars</source>
        <translation>Caracteres do &amp;Spectrum</translation>
    </message>
    <message>
        <source>Export Tiles</source>
        <translation>Exportar tiles</translation>
    </message>
    <message>
        <source>Tile Data (*.bin)</source>
        <translation>Dados de tiles (*.bin)</translation>
    </message>
    <message>
        <source>Export tile attributes</source>
        <translation>Exportar atributos dos tiles</translation>
    </message>
    <message>
        <source>ASM Code (*.asm)</source>
        <translation>Código ASM (*.asm)</translation>
    </message>
    <message>
        <source>Binary Data (*.bin)</source>
        <translation>Dados binários (*.bin)</translation>
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
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Copiar imagem</translation>
    </message>
    <message>
        <source>Paste Image</source>
        <translation>Colar imagem</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inserir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
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
        <translation>Nenhum tileset ativo</translation>
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
        <translation>Excluir tile</translation>
    </message>
    <message>
        <source>Insert Tile</source>
        <translation>Inserir tile</translation>
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
        <translation>Novo tileset</translation>
    </message>
    <message>
        <source>Create a new tile set</source>
        <translation>Criar um novo tileset</translation>
    </message>
    <message>
        <source>&amp;High resolution</source>
        <translation>&amp;Alta resolução</translation>
    </message>
    <message>
        <source>For the tilemap of 80 columns, whose pixels are half as wide</source>
        <translation>Para o tilemap de 80 colunas, cujos pixels têm metade da largura</translation>
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
        <translation>Nova paleta de mesmo nome</translation>
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
        <translation>Nenhum tileset selecionado</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Tile</translation>
    </message>
    <message>
        <source>The group of 16 colours that the tile is drawn with</source>
        <translation>O grupo de 16 cores com que o tile é desenhado</translation>
    </message>
    <message>
        <source>Replace Colour in All Tiles</source>
        <translation>Substituir cor em todos os tiles</translation>
    </message>
    <message>
        <source>Does that in all tiles of this palette offset</source>
        <translation>Faz isso em todos os tiles deste offset de paleta</translation>
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
        <translation>Editor de paleta</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Repetido</translation>
    </message>
    <message>
        <source>On the Map</source>
        <translation>No mapa</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animação</translation>
    </message>
    <message>
        <source>No map of this tile set is in front</source>
        <translation>Nenhum mapa deste tileset está na frente</translation>
    </message>
    <message>
        <source>The map in front does not show this tile</source>
        <translation>O mapa na frente não mostra este tile</translation>
    </message>
    <message>
        <source>No animation shows this tile</source>
        <translation>Nenhuma animação mostra este tile</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Substituir cor</translation>
    </message>
    <message>
        <source>Draw the first tile here: the left button paints with the foreground colour, the right one with the background colour</source>
        <translation>Desenhe aqui o primeiro tile: o botão esquerdo pinta com a cor de frente, o direito com a de fundo</translation>
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
        <translation>Mais</translation>
    </message>
</context>
<context>
    <name>ToolPalette</name>
    <message>
        <source>Draw</source>
        <translation>Desenhar</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Retângulo</translation>
    </message>
    <message>
        <source>Filled rectangle</source>
        <translation>Retângulo preenchido</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Círculo</translation>
    </message>
    <message>
        <source>Filled circle</source>
        <translation>Círculo preenchido</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selecionar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Preencher</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Conta-gotas</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Redimensionar</translation>
    </message>
    <message>
        <source>Toggle Grid</source>
        <translation>Mostrar/ocultar grade</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Rotate clockwise</source>
        <translation>Girar no sentido horário</translation>
    </message>
    <message>
        <source>Rotate anticlockwise</source>
        <translation>Girar no sentido anti-horário</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Para cima</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Para baixo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Apagar</translation>
    </message>
    <message>
        <source>Flip top to bottom</source>
        <translation>Virar de cima para baixo</translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation>Espelhar da esquerda para a direita</translation>
    </message>
    <message>
        <source>Reset all palette offsets</source>
        <translation>Redefinir todos os offsets de paleta</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Play Animations</source>
        <translation>Reproduzir animações</translation>
    </message>
    <message>
        <source>Stop Animations</source>
        <translation>Parar animações</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Ajustar à janela</translation>
    </message>
    <message>
        <source>Place animations</source>
        <translation>Posicionar animações</translation>
    </message>
    <message>
        <source>Place sprites</source>
        <translation>Posicionar sprites</translation>
    </message>
    <message>
        <source>Shrink to fit</source>
        <translation>Reduzir para caber</translation>
    </message>
    <message>
        <source>Toggle viewport</source>
        <translation>Mostrar/ocultar área visível</translation>
    </message>
    <message>
        <source>Paint terrain</source>
        <translation>Pintar terreno</translation>
    </message>
    <message>
        <source>Random tiles of the stamp</source>
        <translation>Tiles aleatórios do carimbo</translation>
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
        <translation>● Não salvo</translation>
    </message>
    <message>
        <source>The project has unsaved changes</source>
        <translation>O projeto tem alterações não salvas</translation>
    </message>
    <message>
        <source>The project has changes that are not saved yet</source>
        <translation>O projeto tem alterações que ainda não foram salvas</translation>
    </message>
</context>
<context>
    <name>Update::UpdateChecker</name>
    <message>
        <source>The update feed is too large</source>
        <translation>O feed de atualizações é grande demais</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Release Notes…</source>
        <translation>Notas da versão…</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Baixar…</translation>
    </message>
    <message>
        <source>Quenmora — update available</source>
        <translation>Quenmora — atualização disponível</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pular esta versão</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>Quenmora %1 is available</source>
        <translation>O Quenmora %1 está disponível</translation>
    </message>
    <message>
        <source>You have %1 (built %2).
The new version was released %3.</source>
        <translation>Você tem a versão %1 (compilada em %2).
A nova versão foi lançada em %3.</translation>
    </message>
</context>
<context>
    <name>UpdatePresenter</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Verificando atualizações…</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Atualização disponível: %1</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>Tudo atualizado</translation>
    </message>
    <message>
        <source>Quenmora %1 is up to date.</source>
        <translation>O Quenmora %1 está atualizado.</translation>
    </message>
    <message>
        <source>Could not reach the update server</source>
        <translation>Não foi possível acessar o servidor de atualizações</translation>
    </message>
    <message>
        <source>Could not reach the update server.
%1</source>
        <translation>Não foi possível acessar o servidor de atualizações.
%1</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Verificar atualizações</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>S&amp;cratch Image Editor</source>
        <translation>Editor de &amp;rascunho</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>&amp;Barra de status</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>Redefinir &amp;layout</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Janela</translation>
    </message>
</context>
<context>
    <name>WriteProblem</name>
    <message>
        <source>There is no folder %1</source>
        <translation>Não existe a pasta %1</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 é uma pasta</translation>
    </message>
    <message>
        <source>%1 is a pipe or a device, not a file</source>
        <translation>%1 é um pipe ou um dispositivo, e não um arquivo</translation>
    </message>
    <message>
        <source>You may not write to %1</source>
        <translation>Você não tem permissão para gravar em %1</translation>
    </message>
    <message>
        <source>%1 could not be written to its end; there may be no room left</source>
        <translation>%1 não pôde ser gravado até o fim; talvez não haja mais espaço</translation>
    </message>
    <message>
        <source>No file can be called %1: a slash would lead into another folder. Another name of the asset helps.</source>
        <translation>Nenhum arquivo pode se chamar %1: uma barra levaria a outra pasta. Basta dar outro nome ao recurso.</translation>
    </message>
    <message>
        <source>No file can be called that: %1. Another name of the asset helps.</source>
        <translation>Nenhum arquivo pode se chamar assim: %1. Basta dar outro nome ao recurso.</translation>
    </message>
</context>
</TS>
