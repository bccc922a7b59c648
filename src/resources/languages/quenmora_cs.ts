<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en_GB">
<context>
    <name>AboutBox</name>
    <message>
        <source>Licence of the icons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An editor for the graphics of ZX Spectrum Next games: palettes, tiles, maps, sprites, animations and pictures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Built with Qt %1. Icons by Lucide.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddOutputsDialog</name>
    <message>
        <source>Add Outputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which assets does the game take?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project&apos;s folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A folder below the project&apos;s, with / between folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Source text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The usual ones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add 1 Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>&amp;Add %Ln Outputs</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Holds nothing yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project has no assets yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please tick what is to be exported</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>A recipe can have %n outputs</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AnimationControlWidget</name>
    <message>
        <source>Goto first frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause playback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goto last frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete current frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ping pong</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationListWidget</name>
    <message>
        <source>Animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the selected animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the selected animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1
%n frame(s) [%2x%3]</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationToolBar</name>
    <message>
        <source>Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of the animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delay:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the delay between animation frames
0 = No Delay, 1 = 25fps, 2 = 12.5fps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationView</name>
    <message>
        <source>Animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No animation selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to remove this animation?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AnimationEditor::EditorWidget</name>
    <message>
        <source>Onion Skin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The index in the selected cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the frame before faintly over this one</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AnimationEditor::FrameEditorWidget</name>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells of the frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index:	%1
Offset:	%2
Flip	%3
Mirror:	%4
Rotate:	%5</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AssetChooser</name>
    <message>
        <source>No palettes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No tile sets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a palette of this name already; choose it, or another name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AssetKinds</name>
    <message>
        <source>Palettes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile Sets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map Objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprite Banks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BlockEditor::AnimationEditorWidget</name>
    <message>
        <source>Palette offset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The palette offset of the selected cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update palette offsets to default values</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BlockEditor::View</name>
    <message>
        <source>New Object</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BlockEditorToolBar</name>
    <message>
        <source>Set the frame width in tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the frame height in tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal Platform</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the game moves the animation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BlockSelectorWindow</name>
    <message>
        <source>Map Objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No active tile set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tile set has no map objects</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Paint canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CircleCanvasTool</name>
    <message>
        <source>Filled Circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Circle</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColourEditor</name>
    <message>
        <source>Colour before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edited colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer 2 priority
If set, this colour will always appear on top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply the colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go back to the colour before</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColourPalette</name>
    <message>
        <source>Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index: %1
Transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColourSelector</name>
    <message>
        <source>Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left button: foreground, right button: background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent on maps</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandDesk</name>
    <message>
        <source>Your keyboard shortcuts could not be read. All commands have their usual keys.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
%2 was kept aside under a name that ends in .bad.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your keyboard shortcuts could not be saved. They hold until you quit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Command Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a few letters of a command, an asset or a tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What matches</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandPlaces</name>
    <message>
        <source>Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool Bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layers of the Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel Editors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Editors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List of Animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile Picker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ▸ %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CreationDialog</name>
    <message>
        <source>&amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeletionQuestion</name>
    <message>
        <source>1 animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n animations</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 placed sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n placed sprites</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Lost with it: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 placed animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n placed animations</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Left without tiles: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No longer shown: %1 on 1 map.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>No longer shown: %1 on %n maps.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>There is no undo for this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete “%2” (%1)?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DepthChooser</name>
    <message>
        <source>8-bit, 256 colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentTabView</name>
    <message>
        <source>Open documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close Tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close &amp;Other Tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scratch Image Editor</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lear Selection</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditRecorder</name>
    <message>
        <source>Edit Frames</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>TEXT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no asset “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is the name of several assets: use an id (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quenmora-export --help tells what it understands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options of all forms:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project has no recipe; File &gt; Export Project in the editor makes one</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Interrupted: %n outputs were not looked at</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>There is no form “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is the project itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file is exported, or exported from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>make cannot be told of “%1”: its name has characters that end names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What there was to say could not be written</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportMessages</name>
    <message numerus="yes">
        <source>Exported %1 to %2 (%Ln bytes)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln bytes)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Exported to %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Exporting %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exporting the project…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportProjectDialog</name>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds assets of the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes form, options and file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds a copy, for another form or file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes it out of the recipe; its file stays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The game takes nothing of this project yet.

Add palettes, tiles, maps with what is placed on them, sprites, animations and images, each in the form that the game loads. From then on one key writes all that has changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Assets…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves the recipe and writes what is new or changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves the recipe beside the project and writes nothing else</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 output</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln outputs</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln new</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unchanged</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cannot be</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln to be looked at</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportQuestion</name>
    <message>
        <source>Save the project first?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files for the game are written beside the project&apos;s file, and it has none yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Project…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recipe of this project cannot be used:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mend the file, or start with an empty recipe: the file is then kept as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start Anew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program changed the recipe of this project:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving it from here loses that change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportReport</name>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 file</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to export: 1 file is unchanged in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Nothing to export: %Ln files are unchanged in %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln unchanged</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln failed</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExtrasFile</name>
    <message>
        <source>it is no file of at most 16 MiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it holds no object</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileImport</name>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The file could not be imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some files could not be imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks at files of any kind, shows what they are, and makes assets of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export Project…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export A&amp;gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows what the game takes of this project, in which forms and files, and writes it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes what has changed of the files for the game, without a dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project file (*.quenmora)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files of the Next (*.pal *.npl *.nxp *.nxt *.til *.ch8 *.map *.nxm *.nxb *.spr *.nxi *.sl2 *.slr *.bin)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maps of Tiled (*.tmx *.tmj)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprites of Aseprite (*.aseprite *.ase)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palettes (*.gpl *.pal *.act *.hex)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>“%1” has a character that file names cannot have everywhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” ends in a dot or a space, which Windows takes away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows takes “%1” for a device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a name in it is longer than %1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FillCanvasTool</name>
    <message>
        <source>Fill</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ForeignChange</name>
    <message>
        <source>File Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program changed the file of this project:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load File opens it as it is now and drops your unsaved changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load File opens it as it is now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Mine keeps the project as it is here; saving then replaces the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>the pixels of the file take more than %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the pixels are damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1 has a picture for layer %2 of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its frames have more than %1 pictures of layers together</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there are two pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the picture is of an unknown kind, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the picture is of another kind than the layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the picture is that of frame %1, which has none or comes later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a tile has %1 bits; only %2 can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the tiles are damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has two tile sets of number %1, or more than %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tile set “%1” is in another file, and left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tile set “%1” has %2 tiles of %3 × %4 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tile set “%1”: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layer “%1” has the tiles of a set that is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layer “%1” has tile %2 of a set of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its layers have more than %1 million pixels in all frames together</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1, layer “%2”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is no Aseprite file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is cut short: it has %1 of %2 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It says that a pixel has %1 bits; it can have 8, 16 or 32</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It says that it has %1 frames of %2 × %3 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has %1 frames of %2 × %3 pixels; at most %4 million pixels together can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its pixels are not square, but %1 to %2: they become square</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is cut short: frame %1 of %2 is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1 is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1 is damaged: chunk %2 of %3 has a wrong size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1 is damaged: chunk %2 of %3 is cut short</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its slices are left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has more than %1 layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reference layer “%1” is left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layer “%1” mixes its colours with those beneath: it is drawn as others are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The group “%1” is partly clear: that is done to each of its layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The palette changes after frame %1, whose colours are taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1 has more than %2 palettes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its palette has %1 colours; at most %2 can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its palette has %1 colours, of which it gives %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has more than %1 tags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tag “%1” is left out: it names frames %2 to %3 of %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>”, “</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n layers are hidden and left out, “%1” among them</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Hidden layers are left out: “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its pixels are numbers of colours, and it has no palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has pixels of colour %1, and its palette has %2 colours: they are black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has no colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no colour, which is %2 numbers from 0 to 255</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” stands where “%2” does</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no number of colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It says that it has %1 colours, and has %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no colour of six hexadecimal digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It says that it has %1 colours; there is room for %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its transparent index is %1, and it has %2 colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has %1; at most %2 can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is no palette of the forms .gpl, .pal (JASC), .hex or .act</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is more of this kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not there, or may not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It could not be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its cells are written as “%1”, which cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its cells are packed as “%1”, which cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cell %1 is no number of a tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has more than %1 cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is among the numbers of its cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has %1 of %2 cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its cells are damaged, or not %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two tile sets begin with number %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tile set “%1” has animations of tiles that are not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tile set “%1” says no size of its tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture of the tile set “%1” has %2 of its %3 tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layer “%1” is partly clear: it becomes opaque</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layer “%1” is moved by parts of cells: it goes to the nearest</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>What shines through clear pixels of tiles above is lost, in %n cells</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells have numbers that no tile set has: they become empty</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells of layers lie beyond the map: they are lost</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is not in the file&apos;s folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the pictures have more than %1 million pixels together</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no picture that can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has more than %1 million numbers; with cells written as Base64 it has fewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has more than %1 lists and objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Byte %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are too many groups in each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is “%2”, and can be %3 to %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is “%2”, which is no number that it can be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is a map of the kind “%1”; only “orthogonal” ones can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It says no width and height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has %1 × %2 cells; at most %3 million can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its layers have more than %1 million cells together</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layer “%1”: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image layer “%1” is left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects made from templates lack what their template says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has more than %1 objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its objects have more than %1 properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has more than %1 tile sets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures inside the file cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its tile sets have more than %1 pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its animations have more than %1 frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is no XML in UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It declares elements or entities of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An element has more than %1 attributes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are too many elements in each other</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Create a backup when saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for updates on startup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Daily</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check frequency</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command &amp;Palette…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageDialog</name>
    <message>
        <source>New Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a new image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>256x192 256 colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>320x256 256 colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>640x256 16 colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>128x96 256 colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An image needs a palette; please create a palette first</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageEditor::ImportDialog</name>
    <message>
        <source>Import Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale to fill the image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the machine&apos;s colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep transparent pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New palette of the picture&apos;s colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import a picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has: those that the palette has stay exactly that, and scaling mixes no new ones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They get the transparent entry of the palette, and no colour does</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image is shown with it from now on; the palette that it had stays as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fewer colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture %1 × %2, image %3 × %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture cannot be used</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageEditor::View</name>
    <message>
        <source>Swap Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg *.bmp)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures are written as .png, .xpm, .jpg or .bmp files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scratch Image</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageMenu</name>
    <message>
        <source>&amp;Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportAgain</name>
    <message>
        <source>The image has no palette any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is up to date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is neither a palette nor a picture that can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Such a file makes new assets, and cannot go into those that are there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was imported again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was made of it is not there any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not there any more:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is up to date; new tiles: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; pixels that took the nearest colour: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The map has no tiles or no palette any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The picture needs %n more tiles, and the tile set has room for %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Resize Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sprites have no palette any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is smaller than a sprite, which has 16 × 16 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture holds more sprites than fit into a bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is up to date; sprites that are new: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportFileDialog</name>
    <message>
        <source>New palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New tile set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New map objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New image</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the file is; first what it most probably is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new asset, or one of the project that takes it in, as one undo step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number from which on those that are there are replaced, counted from 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Behind those that are there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In&amp;to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;From number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ti&amp;le set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leaves this file out and goes on with the next one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import (%1 of %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln bytes</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>New tile set of blank tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New palette of its own colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New palette of the standard colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ontinue…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is asked next depends on the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project was closed meanwhile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing in the project into which it could go</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportKeeper</name>
    <message>
        <source>The file could not be imported again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportNotice</name>
    <message>
        <source>Import Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 changed since it was imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n files changed since they were imported</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportPictureDialog</name>
    <message>
        <source>Import Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep the machine&apos;s colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep &amp;transparent pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find colours and tiles for the whole picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make tiles and a map of a picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has, and stays exactly that</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They get index %1 of their tiles, which the map does not draw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups of 16 colours that suit all tiles as well as they can, and at most %1 tiles; else tiles are served as they come, and who comes last gets what is left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordered pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dithering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reducing %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiles: %1
Tiles that lose colours: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiles: %1, for %2 different ones
Colours: %3, for %4 of the picture; groups: %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is lost but shades between the colours that the machine has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of %1 cells, %2 lose colours and %3 show a tile that is like theirs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; mean error: %1 levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n different tiles, and a tile set has room for %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportZXFontDialog</name>
    <message>
        <source>Import Spectrum Characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import a ZX Spectrum font into tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;First tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette &amp;offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;nk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fonts (*.bin *.raw *.ch8)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Characters: %1, in tiles %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tile set has no palette to take colours from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please choose a font file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no character in this file, or it cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Importing</name>
    <message>
        <source>%1 (sprites)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no number %1; the last one is %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is room for %1, and %2 come in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has %2 tiles, and the first number is for tile %3 (counted from 0)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sprites have indices above 15, and “%1” is a bank of 4 bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The asset into which it goes is not there any more, or is of another kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the tile set whose tiles these are for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”: frames have times of their own, and get the mean of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is repeated for ever</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The frames make %n sprites, which is more than there is room for</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Sprites alone go into a bank that is there; the animations are left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The frames have %1 pixels, and tiles are made of at most %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames that are left out: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many colours the sprites have</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8-bit, 256 colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which frames become tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first one, with a map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aseprite file, for sprites with animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aseprite file, for tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aseprite file, for an image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no kind of file that is read here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has a +3DOS header, which is skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The smallest that holds the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mode of the image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture has %1 × %2 pixels, and what does not fit is cut off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours that the Next does not have, and that become the nearest ones: %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours for which there is no room: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How colours are shown for which there is no room</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordered pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette of another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The entry that the first colour becomes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale to that size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes the picture as large as the image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture, for tiles and a map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture, for sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture, for an image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture, for its colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette, tiles, blocks and map of one name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells: %1 × %2, which show %3 different tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Placed sprites: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiles: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animations of tiles: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprites: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animations: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixels: %1 × %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile %1 (counted from 0) has pixels of several palette offsets, and a tile has one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiles that lose colours, since theirs are of several palette offsets: %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has %1 bytes, which is too much for this</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several offsets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What becomes of tiles whose pixels are of several palette offsets, which a tile map cannot show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colours of the best one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of %1 pieces of 8 × 8 pixels, %2 lose colours and %3 get a tile that is like theirs; mean error: %4 levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours: %1, which %2 stand for; mean error: %3 levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours that the Next does not have become the nearest ones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiles that are not as large as the cells, and are cut or filled: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells whose animations are left out, since there are more than %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animations whose frames have times of their own, and get the mean: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects that are no sprites, turned, scaled, hidden or too large, and are left out: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cells of the map have %1 × %2 pixels, and tiles of the Next 8 × 8: only multiples of that can be cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The map has no cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The map shows too many different tiles: of %1 × %2 pixels, %3 are the most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files that are left alone because they are not below the map&apos;s folder: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map of Tiled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read files outside its folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes tile sets and pictures from wherever the map says that they are</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IndexSuffix</name>
    <message>
        <source> (index %1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LayerAction</name>
    <message>
        <source>Scroll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LayoutController</name>
    <message>
        <source>Next Dock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous Dock</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LineCanvasTool</name>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%2 - %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its backup is from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not import the font</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapDialog</name>
    <message>
        <source> cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a new map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tile set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A map is made of the tiles of a tile set; please create a tile set first</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::AnchorPad</name>
    <message>
        <source>Top left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::CellDialog</name>
    <message>
        <source>Go to Cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::CellTool</name>
    <message>
        <source>Place Animation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::DrawTool</name>
    <message>
        <source>Paint</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::ExportDialog</name>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Map Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Tile Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Palette Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (replaces this file)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose what to export</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::FillTool</name>
    <message>
        <source>Bucket Fill</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::MapCommands</name>
    <message>
        <source>Select Same &amp;Tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects all cells that show the current tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace Tile…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts one tile in place of another, in the selection, the map or all maps of the tile set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Terrain&amp;s…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marks tiles whose borders match when they are painted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to &amp;Cell…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scrolls the map to a cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the whole map in a corner, with the part that is in view to drag</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::MapEditing</name>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprite Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize Map</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::MapExport</name>
    <message>
        <source>Choose a directory to export anim into</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exporting %1…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::MapGrid</name>
    <message>
        <source>Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to new map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::MapOverview</name>
    <message>
        <source>Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag to scroll the map</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::MapToolPalette</name>
    <message>
        <source>Rotated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random tiles of the stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bucket fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filled rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filled ellipse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint terrain</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::PaintBar</name>
    <message>
        <source>Painting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stamps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl-drag tiles to make one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stamps are made of tiles, by dragging with Ctrl in the tile picker, and of cells, by dragging with the Pick tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The palette offset of painted cells. Ctrl with a painting tool paints it alone, and with the right button brings back that of the tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the terrain tool paints</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Terrains…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marks the tiles of terrains</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stamp of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, a stamp of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name Stamp…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forget Stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name Stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A stamp with a name stays; without one it goes when others are used</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::PaintDesk</name>
    <message>
        <source>Replace Tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace Tile in All Maps</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::PasteTool</name>
    <message>
        <source>Picture of %1 × %2 cells; tiles to be added: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; pixels that take the nearest colour: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is smaller than a tile, which has 8 × 8 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The picture needs %n more tiles, and the tile set has room for %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Paste Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiles added: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; pixels that took the nearest colour: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::PlaceAnimationTool</name>
    <message>
        <source>Place Animation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::PlaceSpriteTool</name>
    <message>
        <source>Place Sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Sprite</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::ReplaceTileDialog</name>
    <message>
        <source>Replace Tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In this map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In all maps of the tile set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These are the same tile</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::ResizeDialog</name>
    <message>
        <source>Resize Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The whole map of %1×%2 cells is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1×%2 of %3×%4 cells are kept</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::ShapeTool</name>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::SpriteProperties</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainDialog</name>
    <message>
        <source>Terrains</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The 4 cells beside</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All 8 cells around</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which neighbours decide about the tile of a cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark the middle of each tile of the terrain, and the sides and corners where it goes on. The right button takes marks away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Terrain %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every terrain needs a name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainMarks</name>
    <message>
        <source>Marks of the terrain</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainTool</name>
    <message>
        <source>Paint Terrain</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::ToolBar</name>
    <message>
        <source>Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or hide the tile layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or hide the object layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or hide the sprite layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size in cells of the viewport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Viewport width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>×</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Viewport height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile index to be used as a background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the transparency index of the tile set (0-15) or off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the snap to grid size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map size in tiles and bytes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditor::View</name>
    <message numerus="yes">
        <source>%1x%2 (%n bytes)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Resize or export the map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize Map…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export to Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapEditorPage</name>
    <message>
        <source>Render checker board beneath maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable grid line overlay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alternate colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid size (in pixels)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default magnification</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapMenu</name>
    <message>
        <source>&amp;Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NextTiles (*.nxm *.nxt *.nxp *.nxb)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image files (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Map Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Map Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map Data (*.map)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exporting %1…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapObjects</name>
    <message>
        <source>Empty</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapSpritesWindow</name>
    <message>
        <source>Map Sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprite bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sprite banks of the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>Warning!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NextData</name>
    <message>
        <source>the table of animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>their number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the place of “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>animation “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the number of frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it shows number %1, and %2 is the last one that fits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has the palette offset %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation “%1”, frame %2, column %3, row %4 (counted from 0): %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>number and places of the animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>animation %1 “%2”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animations do not lie in the file as its beginning says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes behind the last animation that are left out: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animations of blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animations of sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it leads out of its folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a folder or file in it has no name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not relative</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is %2, and the form %3 is for %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has %2 pixels, and this form %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has no palette that could stand in front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”: the pixel at %2, %3 has the index %4, and only those from %5 to %6 go with the first pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has %1 bytes, and such a picture %2, or %3 or %4 with its palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has one half of the picture, which becomes the upper one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In which order the pixels follow each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The group of sixteen colours of all pixels, which comes from a register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette in front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the 512 bytes of the image&apos;s palette before the pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two halves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the upper and the lower half into files of their own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer 2, 256 × 192, by rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer 2, 320 × 256, by columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer 2, 640 × 256, by columns, two pixels a byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LoRes, 128 × 96, by rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer 2, 256 × 192</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer 2, 320 × 256</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer 2, 640 × 256, two pixels a byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LoRes, 128 × 96</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>screen %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”: the cell in column %2, row %3 (counted from 0) %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shows tile %1, and %2 is the last one that fits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has the palette offset %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is rotated or mirrored, which one byte does not tell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has the palette offset %1, others have %2, and one byte does not tell them apart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has %1 bytes, and a cell takes %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells of the file that are outside the map: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells of the map that the file does not have, and that stay blank: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Half a cell at the end is left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In which order the cells of a screen follow each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells across a screen into which the map is cut; 0 is the whole width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells down a screen into which the map is cut; 0 is the whole height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file for each screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the screens into numbered files of their own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile map, two bytes a cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile map, one byte a cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells across the map; 0 is what most maps of so many cells have</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells down the map; 0 is as far as the file goes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells across the screens into which the map was cut; 0 is the whole width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells down the screens into which the map was cut; 0 is the whole height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bit 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the lowest bit of a cell&apos;s second byte says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiles from 256 on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The ULA&apos;s picture is in front: left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The palette offset of all cells, which comes from a register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be a label: those are a letter, then letters, digits and _, %2 at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be a label: assemblers or C give it a meaning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label “%1”, or a name made of it, is that of another output already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 “%3”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”, %2: its %3 is not in the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the number of records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>number of records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>placed sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sprite bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the place of its bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>16 times the palette offset, and the flags,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the start frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the initial delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the repeat delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the place of the name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>placed animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the place of its block set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the names of sprites stand behind the records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Behind the records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprites placed on a map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animated blocks placed on a map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Option %1: “%2” is not %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no option “%1”, only %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” would be C source and its header: another suffix is needed, as .c</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has nothing to write in this form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>padding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes for incbin, or source text in the words of an assembler or of C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No, bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sjasmplus, Zeus: db $12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>z80asm, z88dk: defb $12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GNU as: .byte 0x12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C: an array and its header</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label of the bytes in source text; made from the asset&apos;s name when there is none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pad to a multiple of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds zeros until the size is a multiple of so many bytes; 0 adds none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut into files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbered files that each fit into a page of 8 KiB or a bank of 16 KiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No, one file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8 KiB each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>16 KiB each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no plain file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has %1 bytes, and such a palette %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 an entry, %1 in all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has %1 entries; the others stay as they are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the last byte holds of the transparent entry; $E3 for a palette without one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its colour RRRGGGBB, for layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its index, for sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which of the sixteen groups of sixteen entries is written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette, 9 bits a colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette, 9 bits a colour, and the transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette, 8 bits a colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sixteen colours of a palette, 9 bits each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the last byte says of the transparent entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which of the sixteen groups of sixteen entries the colours become</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of the first one, counted from 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many are written; 0 is all from the first on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options first and count: there are %1, and %2 from number %3 on are not</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many are read; 0 is all from the first on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has %1 bytes, and one of these takes %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds %1, and %2 go into an asset: choose which, with first and count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes behind the last whole one that are left out: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has %1 bytes, and the largest that is read as it is %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no form “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a form of %2, not of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is the file of another output as well</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is too large for a recipe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project no longer has %1 “%2” with the id %3, but another one of that name (%4)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project no longer has %1 “%2” with the id %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is the project or its recipe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is written for “%2” already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no JSON: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no recipe: “%1” is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recipe is from a newer version of Quenmora</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” must be a list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” means nothing here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is there twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are more than %1 outputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is the file of line %2 already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” must be a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An output must be an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no kind of asset “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” must be an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no option “%2”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option “%1” has a value of the wrong type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”, %2: %3 is %4, and %5 to %6 fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a tile set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a block set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a sprite bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is a bank of 8 bits: sprite %2 (counted from 0) has a pixel of index %3, and 4 bits hold 0 to 15</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprites, 8 bits a pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprites, 4 bits a pixel, packed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many bits of a pixel count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8-bit, 256 colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be written: “%2” is a link that leads nowhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be written: the link “%2” leads out of the folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be written: it is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be written: “%2” is no folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”: tile %2 (counted from 0) has the value %3, and %4 to %5 fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds numbers of %1 tiles, and a tile set has at most %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In which order the pixels of a tile follow each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many bytes a value takes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour (0–15) of the pixels that are set; all others are clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiles, 4 bits a pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiles, 8 bits a pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiles, 1 bit a pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attributes of tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values of tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The group of sixteen colours in which the tiles are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour (0–15) of the pixels that are set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour (0–15) of all others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tile that the first number is for, counted from 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NextDataImport</name>
    <message>
        <source>Some of the required files are missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not import the palette data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not import the tile data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not import the map data</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NextSteps</name>
    <message>
        <source>This project is empty. Begin with:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A map from a picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cuts a picture into tiles and makes a palette, a tile set and a map of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files that there are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks at files of any kind, shows what they are, and makes assets of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colours that everything else is drawn with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new tile set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tiles that maps are built from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A bank of sprites of 16 × 16 pixels</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NumberStepper</name>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: next</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OptionFields</name>
    <message>
        <source>As it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made from the name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OutputDialog</name>
    <message>
        <source>Edit Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Below the project&apos;s folder, with / between folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project no longer has this asset</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes: %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is the file of another output</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OutputPreview</name>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln bytes)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PaintOptionsBar</name>
    <message>
        <source>Size of the brush: [ makes it smaller, ] larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaintSettings</name>
    <message>
        <source>Connect &amp;Strokes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw without gaps, however fast the pointer moves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pixel Perfect Lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw freehand lines of one pixel without corners</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;hade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step pixels along the colours between foreground and background: the left button towards the foreground, the right button towards the background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Round Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw with a round brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror &amp;Left and Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw on the left and on the right at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror &amp;Top and Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw at the top and at the bottom at once</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaletteColourCommand</name>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaletteDialog</name>
    <message>
        <source>New Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a new palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy colours from current palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the default Next palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a blank palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette names must be unique</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette name is required</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaletteEditor</name>
    <message>
        <source>Darkens the selected colour(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lightens the selected colour(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Darken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaletteGrid</name>
    <message>
        <source>Palette Grid Colour Chooser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index %1: $%2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaletteMenu</name>
    <message>
        <source>&amp;Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette (*.pal *.npl)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images (*.png *.bmp)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Palette</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaletteNotice</name>
    <message>
        <source>There is no palette yet to show colours with.
Palette ▸ New Palette makes one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaletteSelectorDialog</name>
    <message>
        <source>Swap Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show with another palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no palette to choose; please create one first</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaletteTools</name>
    <message>
        <source>Sort by &amp;Hue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orders the selected entries from red over green to blue, greys first; pictures keep their look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by &amp;Brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orders the selected entries from dark to light; pictures keep their look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;verse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the selected entries into the opposite order; pictures keep their look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reverse Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xchange Ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lets the first and the last selected entry change places; pictures keep their look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exchange Palette Entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Gradient in Machine Steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spreads the selection from its first to its last colour, each channel in the nearest of its eight levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark &amp;Unused Entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marks the entries that no pixel has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark E&amp;qual Entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marks the entries whose colour others have, too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln pixels</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Select the entries that are to change places</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The entries cannot change places: tiles and 4-bit sprites need theirs in their group of 16, and transparent entries, and those of tiles that are drawn with several palette offsets, must stay where they are</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaletteWindow</name>
    <message>
        <source>Palette Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No palette selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The palettes of the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename, copy, delete or sort the palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>It has %1 × %2 pixels; at most %3 × %3, or as many in another shape, can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not read the image file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is a pipe or a device, not a file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureImport</name>
    <message>
        <source>Tiles that lost colours: %1 of %2.
A tile shows 16 colours, and all of them together have 16 groups of 16. Reduce the colours of the picture, to 16 in each tile of 8 × 8 pixels and to fewer in all, and import it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot import the image as it would need more than 512 tiles
%1 required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image is smaller than a tile, which has 8 × 8 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project was closed meanwhile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PicturePreview</name>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PixelEditor</name>
    <message>
        <source>%1, %2  colour %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show how the picture will look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap foreground and background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives pixels of the background colour the foreground colour, in the selection if there is one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brush from Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws with what is selected, without its pixels of the background colour</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the preview shows</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>%1 (copy)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New palette added: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New tile set added: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New map added: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New block set added: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Sprite Bank Added</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectActions</name>
    <message>
        <source>%1 (selection)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette In Use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You may not delete this palette; it is used by one or more sprites, tiles or images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile Set In Use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You may not delete this Tile Set; it is used by one or more maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You may not delete these objects; they are in use by one or more maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is neither a palette nor a picture that can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n colours; the palette takes the first %1 of them</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>New Palette for the Others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not make sprites of the image file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not import the sprite data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Incomplete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectController</name>
    <message>
        <source>Opening %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to create a new project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recovering the project…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>loading...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is kept beside the project cannot be read: %1
The project itself is whole.
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is kept beside the project cannot be written: %1
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program removed or renamed the file of this project, which saving writes again:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be loaded, and the project stays as it is here: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the changes to %1 before closing it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project file (*.quenmora)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project &amp;name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectDocument</name>
    <message>
        <source>Failed to load tile image %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to load tile map anim for map %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid project file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project file is from a newer version of Quenmora</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project has a missing sprite anim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to load tile set tileImage &quot;%1&quot; from project file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error setting tile set anim - %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectExport</name>
    <message>
        <source>Line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The recipe could not be saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectMenu</name>
    <message>
        <source>Import A&amp;gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectStore</name>
    <message>
        <source>Invalid project file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not create the project file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not finish writing the project file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid map id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map exported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exporting the map failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid tile set id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile set exported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exporting the tile set failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid palette id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette exported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exporting the palette failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectTree</name>
    <message>
        <source>Palettes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile Sets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map Objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprite Bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import A&amp;gain</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectWindow</name>
    <message>
        <source>Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No project loaded</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecipeTable</name>
    <message>
        <source>1 page of 8 KiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln pages of 8 KiB</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 bank of 16 KiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln banks of 16 KiB</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages of 8 KiB and banks of 16 KiB that the bytes take</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes in the game; source text is longer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8K / 16K</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecoveryKeeper</name>
    <message>
        <source>%1 cannot be written to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No copy for the time after a crash could be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecoveryList</name>
    <message>
        <source>Never saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As it was today at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As it was yesterday at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As it was on %1 at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy is damaged and was put aside:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard what can be recovered of %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was not saved is lost then.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved when Quenmora stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recover %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the project with the changes that were not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RectangleCanvasTool</name>
    <message>
        <source>Filled Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReductionBox</name>
    <message>
        <source>No, as they come</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To the nearest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In an ordered pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With error diffusion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours are found for the whole picture; else those that come last take the nearest of the others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours of the machine: %1 before, %2 after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; mean error: %2 levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; none is lost</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Request</name>
    <message>
        <source>Do this recipe, not the one beside the project.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write below this folder, not below the project&apos;s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write nothing, but say what would be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell make or ninja in this file what was made of what.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say nothing unless something fails.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without a recipe: write the asset of this name or id …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>… in this form …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>… with this option of the form, which may be given again for others …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>key=value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>… to this file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the assets: kind, id and name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the forms and their options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Describe the whole project as text, for git diff.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A project file, as game.quenmora.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the graphics of a Quenmora project in the forms that a game takes, as its recipe says, the file
game.quenmora-export.json beside game.quenmora, which File &gt; Export Project in the editor makes.
Files whose bytes stay the same are not touched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 and --%2 do not go together</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 takes KEY=VALUE, not “%2”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 is there twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 needs a value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 means nothing here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is one argument too many</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A project file is missing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RgbEditor</name>
    <message>
        <source>R</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>G</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue level</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScrollBar</name>
    <message>
        <source>Add a column on the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a row at the top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the column on the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the row at the top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the column on the right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the row at the bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a column on the right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a row at the bottom</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SeveralOutputsDialog</name>
    <message>
        <source>Edit Outputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>What %Ln outputs are to have alike</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Please choose what is to change</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShortcutsDialog</name>
    <message>
        <source>A&amp;dd Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take It Away There</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>or by &amp;keys:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search by keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press keys to see what they do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leaves these keys to this command alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives the command its usual keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives all commands their usual keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another command has these keys, too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys of “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press the keys that shall do it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a key of “%2” (%3), too. Neither would do anything.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShortcutsFile</name>
    <message>
        <source>The file is too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file does not hold keys by command</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SlicingProgress</name>
    <message>
        <source>Processing image</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpriteAnim</name>
    <message>
        <source>New Sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpriteDialog</name>
    <message>
        <source>New Sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a new sprite bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New palette of the same name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpriteEditor::AnimationEditorWidget</name>
    <message>
        <source>Set the frame width in sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the frame height in sprites</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpriteEditor::ImportBinaryDialog</name>
    <message>
        <source>Import Sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make sprites of raw data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 in the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New standard palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no sprite in this file, or it cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds more sprites than fit into a bank</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpriteEditor::ImportImageDialog</name>
    <message>
        <source>Import Sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make sprites of a picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nearest colours of a &amp;palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N&amp;ew palette, and every sprite once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep the machine&apos;s colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has, and stays exactly that</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fewer colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reducing %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 sprites, colours: %3, and transparent pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 sprites, colours: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is room for %1; the others take the nearest of these</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not a picture that can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is smaller than a sprite, which has 16 × 16 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture holds more sprites than fit into a bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a palette of this name already; please choose another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n colours; 4-bit sprites show 15 beside the transparent one</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The colours lie in several groups of 16 of the palette; 4-bit sprites show one group</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpriteEditor::SpriteList</name>
    <message>
        <source>Sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste Image</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpriteImport</name>
    <message>
        <source>Importing %1…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpriteListModel</name>
    <message>
        <source>Sprite %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpriteMenu</name>
    <message>
        <source>&amp;Sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a file to import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images (*.png *.bmp)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next sprites (*.spr)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Sprite Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next Sprites (*.spr)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpriteWindow</name>
    <message>
        <source>Sprite Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sprites selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Onion Skin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the sprite of the frame before faintly over this one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace Colour in All Sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Does that in all sprites of the bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixels of this index are not drawn on the Next, whatever their colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sprites: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No animation shows this sprite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent Index</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>A double click in the Project dock opens an asset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TileAnimation</name>
    <message>
        <source>Blocks!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (Copy)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TileAnimationDialog</name>
    <message>
        <source>New Map Objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create map objects: animations for maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tile set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map objects are made of the tiles of a tile set; please create a tile set first</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TileAttributesEditor</name>
    <message>
        <source>Solid top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solid left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solid right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solid bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deadly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collectible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ladder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Door</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solid on all edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number of your own for the game</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TileEditor::ExportDialog</name>
    <message>
        <source>Export Tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export the pixels of tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the columns of a tile as its rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;First tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Last tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Tiles: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tile set has no tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first tile comes after the last one</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>&amp;Tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Tile Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Create Animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export &amp;Attributes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;xt Tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous Tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile List &amp;Magnification</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Spectrum Chars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile Data (*.bin)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export tile attributes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ASM Code (*.asm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Binary Data (*.bin)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TilePickerGrid</name>
    <message>
        <source>Tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index: %1
Palette Offset: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TilePickerTool</name>
    <message>
        <source>Tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No active tile set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiles: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TileSet</name>
    <message>
        <source>Copy Tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Tile</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TileSetDialog</name>
    <message>
        <source>New Tile Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a new tile set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;High resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For the tilemap of 80 columns, whose pixels are half as wide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New palette of the same name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TileWindow</name>
    <message>
        <source>Tile Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No tile set selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The group of 16 colours that the tile is drawn with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace Colour in All Tiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Does that in all tiles of this palette offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No map of this tile set is in front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The map in front does not show this tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No animation shows this tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolPalette</name>
    <message>
        <source>Draw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filled rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filled circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toggle Grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate clockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate anticlockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip top to bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset all palette offsets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place sprites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shrink to fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toggle viewport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint terrain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random tiles of the stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UnsavedMark</name>
    <message>
        <source>● Unsaved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project has unsaved changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project has changes that are not saved yet</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Update::UpdateChecker</name>
    <message>
        <source>The update feed is too large</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Release Notes…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quenmora — update available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quenmora %1 is available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have %1 (built %2).
The new version was released %3.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdatePresenter</name>
    <message>
        <source>Checking for updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quenmora %1 is up to date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not reach the update server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not reach the update server.
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;cratch Image Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WriteProblem</name>
    <message>
        <source>There is no folder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a pipe or a device, not a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You may not write to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be written to its end; there may be no room left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file can be called %1: a slash would lead into another folder. Another name of the asset helps.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file can be called that: %1. Another name of the asset helps.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
