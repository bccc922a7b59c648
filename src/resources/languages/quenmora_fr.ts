<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en_GB">
<context>
    <name>AboutBox</name>
    <message>
        <source>Licence of the icons</source>
        <translation>Licence des icônes</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>An editor for the graphics of ZX Spectrum Next games: palettes, tiles, maps, sprites, animations and pictures.</source>
        <translation>Un éditeur pour les graphismes des jeux ZX Spectrum Next&#xa0;: palettes, tuiles, cartes, sprites, animations et images.</translation>
    </message>
    <message>
        <source>Built with Qt %1. Icons by Lucide.</source>
        <translation>Compilé avec Qt %1. Icônes de Lucide.</translation>
    </message>
</context>
<context>
    <name>AddOutputsDialog</name>
    <message>
        <source>Add Outputs</source>
        <translation>Ajouter des sorties</translation>
    </message>
    <message>
        <source>Which assets does the game take?</source>
        <translation>Quelles ressources le jeu utilise-t-il&#xa0;?</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Ressource</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Assets</source>
        <translation>Ressources</translation>
    </message>
    <message>
        <source>The project&apos;s folder</source>
        <translation>Le dossier du projet</translation>
    </message>
    <message>
        <source>A folder below the project&apos;s, with / between folders</source>
        <translation>Un dossier sous celui du projet, avec / entre les dossiers</translation>
    </message>
    <message>
        <source>&amp;Source text</source>
        <translation>&amp;Texte source</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Dossier</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Form of %1</source>
        <translation>Format&#xa0;: %1</translation>
    </message>
    <message>
        <source>The usual ones</source>
        <translation>Les plus courants</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>&amp;Add 1 Output</source>
        <translation>&amp;Ajouter 1 sortie</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Add %Ln Outputs</source>
        <translation>
            <numerusform>&amp;Ajouter %Ln sortie</numerusform>
            <numerusform>&amp;Ajouter %Ln sorties</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>Déjà exporté&#xa0;: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Holds nothing yet</source>
        <translation>Encore vide</translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>Impossible&#xa0;: %1</translation>
    </message>
    <message>
        <source>The project has no assets yet</source>
        <translation>Le projet n’a pas encore de ressources</translation>
    </message>
    <message>
        <source>Please tick what is to be exported</source>
        <translation>Cochez ce qui doit être exporté</translation>
    </message>
    <message numerus="yes">
        <source>A recipe can have %n outputs</source>
        <translation>
            <numerusform>Une recette peut avoir %n sortie</numerusform>
            <numerusform>Une recette peut avoir %n sorties</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AnimationControlWidget</name>
    <message>
        <source>Goto first frame</source>
        <translation>Aller à la première frame</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Frame précédente</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Pause playback</source>
        <translation>Suspendre la lecture</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Frame suivante</translation>
    </message>
    <message>
        <source>Goto last frame</source>
        <translation>Aller à la dernière frame</translation>
    </message>
    <message>
        <source>Add a frame</source>
        <translation>Ajouter une frame</translation>
    </message>
    <message>
        <source>Delete current frame</source>
        <translation>Supprimer la frame actuelle</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Boucle</translation>
    </message>
    <message>
        <source>Ping pong</source>
        <translation>Aller-retour</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Frame %1 sur %2</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationListWidget</name>
    <message>
        <source>Animations</source>
        <translation>Animations</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add a new animation</source>
        <translation>Ajouter une nouvelle animation</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete the selected animation</source>
        <translation>Supprimer l’animation sélectionnée</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Copy the selected animation</source>
        <translation>Copier l’animation sélectionnée</translation>
    </message>
    <message numerus="yes">
        <source>%1
%n frame(s) [%2x%3]</source>
        <translation>
            <numerusform>%1
%n frame [%2x%3]</numerusform>
            <numerusform>%1
%n frames [%2x%3]</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no animations yet. Add below makes the first one.</source>
        <translation>Il n’y a pas encore d’animation. «&#xa0;Ajouter&#xa0;», en bas, crée la première.</translation>
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
        <translation>Le nom de l’animation</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>W:</source>
        <translation>L&#xa0;:</translation>
    </message>
    <message>
        <source>H:</source>
        <translation>H&#xa0;:</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Delay:</source>
        <translation>Délai&#xa0;:</translation>
    </message>
    <message>
        <source>Set the delay between animation frames
0 = No Delay, 1 = 25fps, 2 = 12.5fps</source>
        <translation>Délai entre les frames de l’animation
0 = aucun délai, 1 = 25 i/s, 2 = 12,5 i/s</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::AnimationView</name>
    <message>
        <source>Animations</source>
        <translation>Animations</translation>
    </message>
    <message>
        <source>No animation selected</source>
        <translation>Aucune animation sélectionnée</translation>
    </message>
    <message>
        <source>Animation: %1</source>
        <translation>Animation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Delete?</source>
        <translation>Supprimer&#xa0;?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this animation?</source>
        <translation>Voulez-vous vraiment supprimer cette animation&#xa0;?</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::EditorWidget</name>
    <message>
        <source>Onion Skin</source>
        <translation>Pelure d’oignon</translation>
    </message>
    <message>
        <source>Index:</source>
        <translation>Index&#xa0;:</translation>
    </message>
    <message>
        <source>The index in the selected cell</source>
        <translation>L’index dans la case sélectionnée</translation>
    </message>
    <message>
        <source>Show the frame before faintly over this one</source>
        <translation>Affiche la frame précédente en transparence sur celle-ci</translation>
    </message>
</context>
<context>
    <name>AnimationEditor::FrameEditorWidget</name>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>Cells of the frame</source>
        <translation>Cases de la frame</translation>
    </message>
    <message>
        <source>Rotated</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Flipped</source>
        <translation>Miroir vertical</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Miroir horizontal</translation>
    </message>
    <message>
        <source>Index:	%1
Offset:	%2
Flip	%3
Mirror:	%4
Rotate:	%5</source>
        <translation>Index&#xa0;:	%1
Décalage&#xa0;:	%2
Miroir V&#xa0;:	%3
Miroir H&#xa0;:	%4
Rotation&#xa0;:	%5</translation>
    </message>
    <message>
        <source>Column %1, row %2, sprite %3</source>
        <translation>Colonne %1, ligne %2, sprite %3</translation>
    </message>
    <message>
        <source>Column %1, row %2, tile %3</source>
        <translation>Colonne %1, ligne %2, tuile %3</translation>
    </message>
</context>
<context>
    <name>AssetChooser</name>
    <message>
        <source>No palettes</source>
        <translation>Aucune palette</translation>
    </message>
    <message>
        <source>No tile sets</source>
        <translation>Aucun jeu de tuiles</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>There is a palette of this name already; choose it, or another name</source>
        <translation>Une palette porte déjà ce nom&#xa0;; choisissez-la ou prenez un autre nom</translation>
    </message>
</context>
<context>
    <name>AssetKinds</name>
    <message>
        <source>Palettes</source>
        <translation>Palettes</translation>
    </message>
    <message>
        <source>Tile Sets</source>
        <translation>Jeux de tuiles</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Cartes</translation>
    </message>
    <message>
        <source>Map Objects</source>
        <translation>Objets de carte</translation>
    </message>
    <message>
        <source>Sprite Banks</source>
        <translation>Banques de sprites</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
</context>
<context>
    <name>BlockEditor::AnimationEditorWidget</name>
    <message>
        <source>Palette offset:</source>
        <translation>Décalage de palette&#xa0;:</translation>
    </message>
    <message>
        <source>The palette offset of the selected cell</source>
        <translation>Le décalage de palette de la case sélectionnée</translation>
    </message>
    <message>
        <source>Update palette offsets to default values</source>
        <translation>Remettre les décalages de palette aux valeurs par défaut</translation>
    </message>
</context>
<context>
    <name>BlockEditor::View</name>
    <message>
        <source>New Object</source>
        <translation>Nouvel objet</translation>
    </message>
</context>
<context>
    <name>BlockEditorToolBar</name>
    <message>
        <source>Set the frame width in tiles</source>
        <translation>Largeur de la frame en tuiles</translation>
    </message>
    <message>
        <source>Set the frame height in tiles</source>
        <translation>Hauteur de la frame en tuiles</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Horizontal Platform</source>
        <translation>Plateforme horizontale</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>How the game moves the animation</source>
        <translation>Comment le jeu déplace l’animation</translation>
    </message>
</context>
<context>
    <name>BlockSelectorWindow</name>
    <message>
        <source>Map Objects</source>
        <translation>Objets de carte</translation>
    </message>
    <message>
        <source>No active tile set</source>
        <translation>Aucun jeu de tuiles actif</translation>
    </message>
    <message>
        <source>The tile set has no map objects</source>
        <translation>Le jeu de tuiles n’a pas d’objets de carte</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Paint canvas</source>
        <translation>Zone de dessin</translation>
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
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Dessiner</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
</context>
<context>
    <name>CanvasKeys</name>
    <message>
        <source>Column %1, row %2, colour %3, %4</source>
        <translation>Colonne %1, ligne %2, couleur %3, %4</translation>
    </message>
</context>
<context>
    <name>CircleCanvasTool</name>
    <message>
        <source>Filled Circle</source>
        <translation>Cercle plein</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cercle</translation>
    </message>
</context>
<context>
    <name>ColourCyclesDialog</name>
    <message>
        <source>&amp;Add Selection</source>
        <translation>&amp;Ajouter la sélection</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Ranges of the palette whose colours go round</source>
        <translation>Plages de la palette dont les couleurs tournent</translation>
    </message>
    <message>
        <source>How many frames of the machine&apos;s screen, fifty a second, pass from step to step</source>
        <translation>Nombre d’images de l’écran de la machine, cinquante par seconde, d’un pas à l’autre</translation>
    </message>
    <message>
        <source>To higher entries</source>
        <translation>Vers les entrées supérieures</translation>
    </message>
    <message>
        <source>To lower entries</source>
        <translation>Vers les entrées inférieures</translation>
    </message>
    <message>
        <source>Where colours move</source>
        <translation>Où vont les couleurs</translation>
    </message>
    <message>
        <source>The colours of a range go round: each moves to the next entry, and the one that leaves at one end comes in at the other. Neither palette nor pictures change.</source>
        <translation>Les couleurs d’une plage tournent&#xa0;: chacune passe à l’entrée suivante, et celle qui sort d’un côté rentre de l’autre. Ni la palette ni les images ne changent.</translation>
    </message>
    <message>
        <source>First entry</source>
        <translation>Première entrée</translation>
    </message>
    <message>
        <source>Last entry</source>
        <translation>Dernière entrée</translation>
    </message>
    <message>
        <source>Frames a step</source>
        <translation>Images par pas</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Colour Cycles of %1</source>
        <translation>Cycles de couleurs de %1</translation>
    </message>
    <message>
        <source>Colour Cycles</source>
        <translation>Cycles de couleurs</translation>
    </message>
    <message>
        <source>%1 to %2, to lower entries</source>
        <translation>%1 à %2, vers les entrées inférieures</translation>
    </message>
    <message>
        <source>%1 to %2, to higher entries</source>
        <translation>%1 à %2, vers les entrées supérieures</translation>
    </message>
    <message>
        <source>%1 steps a second</source>
        <translation>%1 pas par seconde</translation>
    </message>
    <message>
        <source>Lets the colours of the entries go round that are selected in the palette</source>
        <translation>Fait tourner les couleurs des entrées sélectionnées dans la palette</translation>
    </message>
    <message>
        <source>Select two or more entries in the palette that are in no range yet</source>
        <translation>Sélectionnez dans la palette deux entrées ou plus qui ne sont encore dans aucune plage</translation>
    </message>
</context>
<context>
    <name>ColourCycling</name>
    <message>
        <source>&amp;Play Colour Cycles</source>
        <translation>&amp;Jouer les cycles de couleurs</translation>
    </message>
    <message>
        <source>Lets the colours of palettes&apos; ranges go round in all views; nothing is changed</source>
        <translation>Fait tourner les couleurs des plages de palettes dans toutes les vues&#xa0;; rien n’est modifié</translation>
    </message>
</context>
<context>
    <name>ColourEditor</name>
    <message>
        <source>Colour before</source>
        <translation>Couleur précédente</translation>
    </message>
    <message>
        <source>Edited colour</source>
        <translation>Couleur modifiée</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Layer 2 priority
If set, this colour will always appear on top</source>
        <translation>Priorité Layer 2
Si l’option est cochée, cette couleur apparaît toujours au-dessus</translation>
    </message>
    <message>
        <source>Apply the colour</source>
        <translation>Appliquer la couleur</translation>
    </message>
    <message>
        <source>Go back to the colour before</source>
        <translation>Revenir à la couleur précédente</translation>
    </message>
</context>
<context>
    <name>ColourPalette</name>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Index: %1
Transparent</source>
        <translation>Index&#xa0;: %1
Transparent</translation>
    </message>
    <message>
        <source>Index: %1</source>
        <translation>Index&#xa0;: %1</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Couleur %1, %2, transparente</translation>
    </message>
    <message>
        <source>Colour %1, %2, background</source>
        <translation>Couleur %1, %2, arrière-plan</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Couleur %1, %2</translation>
    </message>
</context>
<context>
    <name>ColourSelector</name>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Left button: foreground, right button: background</source>
        <translation>Bouton gauche&#xa0;: premier plan, bouton droit&#xa0;: arrière-plan</translation>
    </message>
    <message>
        <source>Transparent on maps</source>
        <translation>Transparent sur les cartes</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Couleur %1, %2, transparente</translation>
    </message>
    <message>
        <source>Colour %1, %2, background</source>
        <translation>Couleur %1, %2, arrière-plan</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Couleur %1, %2</translation>
    </message>
</context>
<context>
    <name>CommandDesk</name>
    <message>
        <source>Your keyboard shortcuts could not be read. All commands have their usual keys.</source>
        <translation>Vos raccourcis clavier n’ont pas pu être lus. Toutes les commandes ont leurs touches habituelles.</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>%1
%2 was kept aside under a name that ends in .bad.</source>
        <translation>%1
%2 a été conservé sous un nom qui se termine par .bad.</translation>
    </message>
    <message>
        <source>Your keyboard shortcuts could not be saved. They hold until you quit.</source>
        <translation>Vos raccourcis clavier n’ont pas pu être enregistrés. Ils valent jusqu’à ce que vous quittiez.</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Projets récents</translation>
    </message>
    <message>
        <source>Tile %1</source>
        <translation>Tuile %1</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Command Palette</source>
        <translation>Palette de commandes</translation>
    </message>
    <message>
        <source>Type a few letters of a command, an asset or a tile</source>
        <translation>Saisissez quelques lettres d’une commande, d’une ressource ou d’une tuile</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>What matches</source>
        <translation>Résultats</translation>
    </message>
</context>
<context>
    <name>CommandPlaces</name>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Tool Bars</source>
        <translation>Barres d’outils</translation>
    </message>
    <message>
        <source>Map Editor</source>
        <translation>Éditeur de cartes</translation>
    </message>
    <message>
        <source>Layers of the Map</source>
        <translation>Calques de la carte</translation>
    </message>
    <message>
        <source>Pixel Editors</source>
        <translation>Éditeurs de pixels</translation>
    </message>
    <message>
        <source>Animation Editors</source>
        <translation>Éditeurs d’animations</translation>
    </message>
    <message>
        <source>List of Animations</source>
        <translation>Liste des animations</translation>
    </message>
    <message>
        <source>Tile Picker</source>
        <translation>Sélecteur de tuiles</translation>
    </message>
    <message>
        <source>Palette Editor</source>
        <translation>Éditeur de palettes</translation>
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
        <translation>&amp;Nom</translation>
    </message>
    <message>
        <source>Please enter a name</source>
        <translation>Saisissez un nom</translation>
    </message>
</context>
<context>
    <name>DeletionQuestion</name>
    <message>
        <source>1 animation</source>
        <translation>1 animation</translation>
    </message>
    <message numerus="yes">
        <source>%n animations</source>
        <translation>
            <numerusform>%n animation</numerusform>
            <numerusform>%n animations</numerusform>
        </translation>
    </message>
    <message>
        <source>1 placed sprite</source>
        <translation>1 sprite placé</translation>
    </message>
    <message numerus="yes">
        <source>%n placed sprites</source>
        <translation>
            <numerusform>%n sprite placé</numerusform>
            <numerusform>%n sprites placés</numerusform>
        </translation>
    </message>
    <message>
        <source>Lost with it: %1.</source>
        <translation>Sera aussi perdu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>1 placed animation</source>
        <translation>1 animation placée</translation>
    </message>
    <message numerus="yes">
        <source>%n placed animations</source>
        <translation>
            <numerusform>%n animation placée</numerusform>
            <numerusform>%n animations placées</numerusform>
        </translation>
    </message>
    <message>
        <source>Left without tiles: %1.</source>
        <translation>Restera sans tuiles&#xa0;: %1.</translation>
    </message>
    <message>
        <source>No longer shown: %1 on 1 map.</source>
        <translation>N’apparaîtra plus&#xa0;: %1 sur 1 carte.</translation>
    </message>
    <message numerus="yes">
        <source>No longer shown: %1 on %n maps.</source>
        <translation>
            <numerusform>N’apparaîtra plus&#xa0;: %1 sur %n carte.</numerusform>
            <numerusform>N’apparaîtra plus&#xa0;: %1 sur %n cartes.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no undo for this.</source>
        <translation>Cette action ne peut pas être annulée.</translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation>Supprimer&#xa0;: %1&#xa0;?</translation>
    </message>
    <message>
        <source>Delete “%2” (%1)?</source>
        <translation>Supprimer «&#xa0;%2&#xa0;» (%1)&#xa0;?</translation>
    </message>
</context>
<context>
    <name>DepthChooser</name>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bits, 256 couleurs</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bits, 16 couleurs</translation>
    </message>
</context>
<context>
    <name>DockTabs</name>
    <message>
        <source>Docks</source>
        <translation>Panneaux</translation>
    </message>
</context>
<context>
    <name>DocumentTabView</name>
    <message>
        <source>Open documents</source>
        <translation>Documents ouverts</translation>
    </message>
    <message>
        <source>&amp;Close Tab</source>
        <translation>&amp;Fermer l’onglet</translation>
    </message>
    <message>
        <source>Close &amp;Other Tabs</source>
        <translation>Fermer les &amp;autres onglets</translation>
    </message>
    <message>
        <source>Scratch Image Editor</source>
        <translation>Éditeur de brouillon</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cou&amp;per</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>C&amp;lear Selection</source>
        <translation>&amp;Désélectionner</translation>
    </message>
</context>
<context>
    <name>EditRecorder</name>
    <message>
        <source>Edit Frames</source>
        <translation>Modifier les frames</translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>TEXT</source>
        <translation>TEXTE</translation>
    </message>
    <message>
        <source>There is no asset “%1”</source>
        <translation>Il n’y a pas de ressource «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>“%1” is the name of several assets: use an id (%2)</source>
        <translation>«&#xa0;%1&#xa0;» est le nom de plusieurs ressources&#xa0;: utilisez un id (%2)</translation>
    </message>
    <message>
        <source>quenmora-export --help tells what it understands</source>
        <translation>quenmora-export --help indique ce qu’il comprend</translation>
    </message>
    <message>
        <source>Options of all forms:</source>
        <translation>Options de tous les formats&#xa0;:</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>The project has no recipe; File &gt; Export Project in the editor makes one</source>
        <translation>Le projet n’a pas de recette&#xa0;; Fichier &gt; Exporter le projet en crée une dans l’éditeur</translation>
    </message>
    <message numerus="yes">
        <source>Interrupted: %n outputs were not looked at</source>
        <translation>
            <numerusform>Interrompu&#xa0;: %n sortie n’a pas été examinée</numerusform>
            <numerusform>Interrompu&#xa0;: %n sorties n’ont pas été examinées</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no form “%1”</source>
        <translation>Il n’y a pas de format «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>This is the project itself</source>
        <translation>C’est le projet lui-même</translation>
    </message>
    <message>
        <source>This file is exported, or exported from</source>
        <translation>Ce fichier fait partie de l’exportation, comme cible ou comme source</translation>
    </message>
    <message>
        <source>make cannot be told of “%1”: its name has characters that end names</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être transmis à make&#xa0;: son nom a des caractères qui terminent les noms</translation>
    </message>
    <message>
        <source>What there was to say could not be written</source>
        <translation>Les messages n’ont pas pu être écrits</translation>
    </message>
    <message>
        <source>There is nothing in it that a picture could show</source>
        <translation>Il ne contient rien qu’une image puisse montrer</translation>
    </message>
    <message>
        <source>No picture could be made</source>
        <translation>Aucune image n’a pu être créée</translation>
    </message>
</context>
<context>
    <name>ExportMessages</name>
    <message numerus="yes">
        <source>Exported %1 to %2 (%Ln bytes)</source>
        <translation>
            <numerusform>Exporté&#xa0;: %1 vers %2 (%Ln octet)</numerusform>
            <numerusform>Exporté&#xa0;: %1 vers %2 (%Ln octets)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln bytes)</source>
        <translation>
            <numerusform>%1 (%Ln octet)</numerusform>
            <numerusform>%1 (%Ln octets)</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported to %1: %2</source>
        <translation>Exporté vers %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Exporting %1…</source>
        <translation>Exportation de %1…</translation>
    </message>
    <message>
        <source>Exporting the project…</source>
        <translation>Exportation du projet…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Exporter le projet</translation>
    </message>
</context>
<context>
    <name>ExportProjectDialog</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Exporter le projet</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>Adds assets of the project</source>
        <translation>Ajoute des ressources du projet</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Modifier…</translation>
    </message>
    <message>
        <source>Changes form, options and file</source>
        <translation>Modifie le format, les options et le fichier</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>&amp;Dupliquer</translation>
    </message>
    <message>
        <source>Adds a copy, for another form or file</source>
        <translation>Ajoute une copie, pour un autre format ou fichier</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Takes it out of the recipe; its file stays</source>
        <translation>Retire la sortie de la recette&#xa0;; son fichier reste</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Sorties</translation>
    </message>
    <message>
        <source>The game takes nothing of this project yet.

Add palettes, tiles, maps with what is placed on them, sprites, animations and images, each in the form that the game loads. From then on one key writes all that has changed.</source>
        <translation>Le jeu n’utilise encore rien de ce projet.

Ajoutez des palettes, des tuiles, des cartes avec ce qui y est placé, des sprites, des animations et des images, chacun dans le format que le jeu charge. Ensuite, une seule touche écrit tout ce qui a changé.</translation>
    </message>
    <message>
        <source>&amp;Add Assets…</source>
        <translation>Ajouter des re&amp;ssources…</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>E&amp;xporter</translation>
    </message>
    <message>
        <source>Saves the recipe and writes what is new or changed</source>
        <translation>Enregistre la recette et écrit ce qui est nouveau ou modifié</translation>
    </message>
    <message>
        <source>Saves the recipe beside the project and writes nothing else</source>
        <translation>Enregistre la recette à côté du projet et n’écrit rien d’autre</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>1 output</source>
        <translation>1 sortie</translation>
    </message>
    <message numerus="yes">
        <source>%Ln outputs</source>
        <translation>
            <numerusform>%Ln sortie</numerusform>
            <numerusform>%Ln sorties</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln octet</numerusform>
            <numerusform>%Ln octets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln new</source>
        <translation>
            <numerusform>%Ln nouvelle</numerusform>
            <numerusform>%Ln nouvelles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln modifiée</numerusform>
            <numerusform>%Ln modifiées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unchanged</source>
        <translation>
            <numerusform>%Ln inchangée</numerusform>
            <numerusform>%Ln inchangées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cannot be</source>
        <translation>
            <numerusform>%Ln impossible</numerusform>
            <numerusform>%Ln impossibles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln to be looked at</source>
        <translation>
            <numerusform>%Ln à examiner</numerusform>
            <numerusform>%Ln à examiner</numerusform>
        </translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Aperçu&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ExportQuestion</name>
    <message>
        <source>Save the project first?</source>
        <translation>Enregistrer d’abord le projet&#xa0;?</translation>
    </message>
    <message>
        <source>The files for the game are written beside the project&apos;s file, and it has none yet.</source>
        <translation>Les fichiers du jeu sont écrits à côté du fichier du projet, qui n’existe pas encore.</translation>
    </message>
    <message>
        <source>&amp;Save Project…</source>
        <translation>&amp;Enregistrer le projet…</translation>
    </message>
    <message>
        <source>The recipe of this project cannot be used:
%1</source>
        <translation>La recette de ce projet est inutilisable&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Mend the file, or start with an empty recipe: the file is then kept as %1.</source>
        <translation>Corrigez le fichier, ou commencez avec une recette vide&#xa0;: le fichier sera alors conservé sous le nom %1.</translation>
    </message>
    <message>
        <source>&amp;Start Anew</source>
        <translation>&amp;Recommencer</translation>
    </message>
    <message>
        <source>Another program changed the recipe of this project:
%1</source>
        <translation>Un autre programme a modifié la recette de ce projet&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Saving it from here loses that change.</source>
        <translation>L’enregistrer d’ici fait perdre cette modification.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>Rem&amp;placer</translation>
    </message>
    <message>
        <source>Export Project</source>
        <translation>Exporter le projet</translation>
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
        <translation>1 fichier</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln fichier</numerusform>
            <numerusform>%Ln fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 octet</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln octet</numerusform>
            <numerusform>%Ln octets</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Nothing to export: 1 file is unchanged in %1</source>
        <translation>Rien à exporter&#xa0;: 1 fichier inchangé dans %1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing to export: %Ln files are unchanged in %1</source>
        <translation>
            <numerusform>Rien à exporter&#xa0;: %Ln fichier inchangé dans %1</numerusform>
            <numerusform>Rien à exporter&#xa0;: %Ln fichiers inchangés dans %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>Exporté&#xa0;: %1</translation>
    </message>
    <message>
        <source>Exported nothing</source>
        <translation>Rien n’a été exporté</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln unchanged</source>
        <translation>
            <numerusform>%1, %Ln inchangé</numerusform>
            <numerusform>%1, %Ln inchangés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln failed</source>
        <translation>
            <numerusform>%1, %Ln échec</numerusform>
            <numerusform>%1, %Ln échecs</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 dans %2</translation>
    </message>
    <message>
        <source>%1, to %2</source>
        <translation>%1, dans %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Interrompu. %1</translation>
    </message>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… et encore %Ln</numerusform>
            <numerusform>… et encore %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExtrasFile</name>
    <message>
        <source>it is no file of at most 16 MiB</source>
        <translation>ce n’est pas un fichier d’au plus 16 Mio</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>it holds no object</source>
        <translation>il ne contient pas d’objet</translation>
    </message>
</context>
<context>
    <name>FileImport</name>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… et encore %n</numerusform>
            <numerusform>… et encore %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The file could not be imported</source>
        <translation>Le fichier n’a pas pu être importé</translation>
    </message>
    <message>
        <source>Some files could not be imported</source>
        <translation>Certains fichiers n’ont pas pu être importés</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Imported %1: %2</source>
        <translation>Importé de %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>Fichiers &amp;récents</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As</source>
        <translation>Enregistrer &amp;sous</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Fer&amp;mer</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importer…</translation>
    </message>
    <message>
        <source>Looks at files of any kind, shows what they are, and makes assets of them</source>
        <translation>Examine des fichiers de tout type, montre ce qu’ils sont et en fait des ressources</translation>
    </message>
    <message>
        <source>&amp;Export Project…</source>
        <translation>Exporter le &amp;projet…</translation>
    </message>
    <message>
        <source>Export A&amp;gain</source>
        <translation>Exporter à no&amp;uveau</translation>
    </message>
    <message>
        <source>Shows what the game takes of this project, in which forms and files, and writes it</source>
        <translation>Montre ce que le jeu utilise de ce projet, dans quels formats et fichiers, et l’écrit</translation>
    </message>
    <message>
        <source>Writes what has changed of the files for the game, without a dialog</source>
        <translation>Écrit ce qui a changé dans les fichiers du jeu, sans dialogue</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>Préféren&amp;ces</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>Project file (*.quenmora)</source>
        <translation>Fichier de projet (*.quenmora)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Files of the Next (*.pal *.npl *.nxp *.nxt *.til *.ch8 *.map *.nxm *.nxb *.spr *.nxi *.sl2 *.slr *.bin)</source>
        <translation>Fichiers du Next (*.pal *.npl *.nxp *.nxt *.til *.ch8 *.map *.nxm *.nxb *.spr *.nxi *.sl2 *.slr *.bin)</translation>
    </message>
    <message>
        <source>Sprites of Aseprite (*.aseprite *.ase)</source>
        <translation>Sprites Aseprite (*.aseprite *.ase)</translation>
    </message>
    <message>
        <source>Palettes (*.gpl *.pal *.act *.hex)</source>
        <translation>Palettes (*.gpl *.pal *.act *.hex)</translation>
    </message>
    <message>
        <source>Pictures (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Images (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Vider la liste</translation>
    </message>
    <message>
        <source>Maps and tile sets of Tiled (*.tmx *.tmj *.tsx *.tsj)</source>
        <translation>Cartes et jeux de tuiles de Tiled (*.tmx *.tmj *.tsx *.tsj)</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>“%1” has a character that file names cannot have everywhere</source>
        <translation>«&#xa0;%1&#xa0;» a un caractère qui n’est pas permis partout dans les noms de fichiers</translation>
    </message>
    <message>
        <source>“%1” ends in a dot or a space, which Windows takes away</source>
        <translation>«&#xa0;%1&#xa0;» se termine par un point ou un espace, que Windows enlève</translation>
    </message>
    <message>
        <source>Windows takes “%1” for a device</source>
        <translation>Windows prend «&#xa0;%1&#xa0;» pour un périphérique</translation>
    </message>
    <message>
        <source>a name in it is longer than %1 bytes</source>
        <translation>un nom y dépasse %1 octets</translation>
    </message>
</context>
<context>
    <name>FillCanvasTool</name>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
</context>
<context>
    <name>ForeignChange</name>
    <message>
        <source>File Changed</source>
        <translation>Fichier modifié</translation>
    </message>
    <message>
        <source>Another program changed the file of this project:
%1</source>
        <translation>Un autre programme a modifié le fichier de ce projet&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Load File opens it as it is now and drops your unsaved changes.</source>
        <translation>«&#xa0;Charger le fichier&#xa0;» l’ouvre dans son état actuel et abandonne vos modifications non enregistrées.</translation>
    </message>
    <message>
        <source>Load File opens it as it is now.</source>
        <translation>«&#xa0;Charger le fichier&#xa0;» l’ouvre dans son état actuel.</translation>
    </message>
    <message>
        <source>Keep Mine keeps the project as it is here; saving then replaces the file.</source>
        <translation>«&#xa0;Garder le mien&#xa0;» conserve le projet tel qu’il est ici&#xa0;; l’enregistrer remplacera le fichier.</translation>
    </message>
    <message>
        <source>&amp;Load File</source>
        <translation>&amp;Charger le fichier</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Garder le mien</translation>
    </message>
</context>
<context>
    <name>ForeignFile</name>
    <message>
        <source>the pixels of the file take more than %1</source>
        <translation>les pixels du fichier occupent plus de %1</translation>
    </message>
    <message>
        <source>the pixels are damaged</source>
        <translation>les pixels sont endommagés</translation>
    </message>
    <message>
        <source>Frame %1 has a picture for layer %2 of %3</source>
        <translation>La frame %1 a une image pour le calque %2 sur %3</translation>
    </message>
    <message>
        <source>Its frames have more than %1 pictures of layers together</source>
        <translation>Ses frames ont en tout plus de %1 images de calques</translation>
    </message>
    <message>
        <source>%1: there are two pictures</source>
        <translation>%1&#xa0;: il y a deux images</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the picture is of an unknown kind, %1</source>
        <translation>l’image est d’un type inconnu, %1</translation>
    </message>
    <message>
        <source>the picture is of another kind than the layer</source>
        <translation>l’image est d’un autre type que le calque</translation>
    </message>
    <message>
        <source>the picture is that of frame %1, which has none or comes later</source>
        <translation>l’image est celle de la frame %1, qui n’en a pas ou vient plus tard</translation>
    </message>
    <message>
        <source>a tile has %1 bits; only %2 can be read</source>
        <translation>une tuile a %1 bits&#xa0;; seuls %2 peuvent être lus</translation>
    </message>
    <message>
        <source>the tiles are damaged</source>
        <translation>les tuiles sont endommagées</translation>
    </message>
    <message>
        <source>It has two tile sets of number %1, or more than %2</source>
        <translation>Il a deux jeux de tuiles de numéro %1, ou plus de %2</translation>
    </message>
    <message>
        <source>The tile set “%1” is in another file, and left out</source>
        <translation>Le jeu de tuiles «&#xa0;%1&#xa0;» est dans un autre fichier&#xa0;; il est ignoré</translation>
    </message>
    <message>
        <source>The tile set “%1” has %2 tiles of %3 × %4 pixels</source>
        <translation>Le jeu de tuiles «&#xa0;%1&#xa0;» a %2 tuiles de %3 × %4 pixels</translation>
    </message>
    <message>
        <source>The tile set “%1”: %2</source>
        <translation>Le jeu de tuiles «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>The layer “%1” has the tiles of a set that is not there</source>
        <translation>Le calque «&#xa0;%1&#xa0;» contient les tuiles d’un jeu qui manque</translation>
    </message>
    <message>
        <source>The layer “%1” has tile %2 of a set of %3</source>
        <translation>Le calque «&#xa0;%1&#xa0;» contient la tuile %2 d’un jeu qui en a %3</translation>
    </message>
    <message>
        <source>Its layers have more than %1 million pixels in all frames together</source>
        <translation>Ses calques ont plus de %1 millions de pixels, toutes frames confondues</translation>
    </message>
    <message>
        <source>Frame %1, layer “%2”</source>
        <translation>Frame %1, calque «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>It is no Aseprite file</source>
        <translation>Ce n’est pas un fichier Aseprite</translation>
    </message>
    <message>
        <source>It is cut short: it has %1 of %2 bytes</source>
        <translation>Il est tronqué&#xa0;: il a %1 octets sur %2</translation>
    </message>
    <message>
        <source>It says that a pixel has %1 bits; it can have 8, 16 or 32</source>
        <translation>Il indique %1 bits par pixel&#xa0;; 8, 16 ou 32 sont possibles</translation>
    </message>
    <message>
        <source>It says that it has %1 frames of %2 × %3 pixels</source>
        <translation>Il indique %1 frames de %2 × %3 pixels</translation>
    </message>
    <message>
        <source>It has %1 frames of %2 × %3 pixels; at most %4 million pixels together can be read</source>
        <translation>Il a %1 frames de %2 × %3 pixels&#xa0;; %4 millions de pixels au plus peuvent être lus en tout</translation>
    </message>
    <message>
        <source>Its pixels are not square, but %1 to %2: they become square</source>
        <translation>Ses pixels ne sont pas carrés, mais %1 sur %2&#xa0;: ils deviennent carrés</translation>
    </message>
    <message>
        <source>It is cut short: frame %1 of %2 is not there</source>
        <translation>Il est tronqué&#xa0;: la frame %1 sur %2 manque</translation>
    </message>
    <message>
        <source>Frame %1 is damaged</source>
        <translation>La frame %1 est endommagée</translation>
    </message>
    <message>
        <source>Frame %1 is damaged: chunk %2 of %3 has a wrong size</source>
        <translation>La frame %1 est endommagée&#xa0;: le segment %2 sur %3 a une taille incorrecte</translation>
    </message>
    <message>
        <source>Frame %1 is damaged: chunk %2 of %3 is cut short</source>
        <translation>La frame %1 est endommagée&#xa0;: le segment %2 sur %3 est tronqué</translation>
    </message>
    <message>
        <source>Its slices are left out</source>
        <translation>Ses slices sont ignorées</translation>
    </message>
    <message>
        <source>It has more than %1 layers</source>
        <translation>Il a plus de %1 calques</translation>
    </message>
    <message>
        <source>The reference layer “%1” is left out</source>
        <translation>Le calque de référence «&#xa0;%1&#xa0;» est ignoré</translation>
    </message>
    <message>
        <source>The layer “%1” mixes its colours with those beneath: it is drawn as others are</source>
        <translation>Le calque «&#xa0;%1&#xa0;» mélange ses couleurs à celles du dessous&#xa0;: il est dessiné comme les autres</translation>
    </message>
    <message>
        <source>The group “%1” is partly clear: that is done to each of its layers</source>
        <translation>Le groupe «&#xa0;%1&#xa0;» est semi-transparent&#xa0;: cela s’applique à chacun de ses calques</translation>
    </message>
    <message>
        <source>The palette changes after frame %1, whose colours are taken</source>
        <translation>La palette change après la frame %1, dont les couleurs sont prises</translation>
    </message>
    <message>
        <source>Frame %1 has more than %2 palettes</source>
        <translation>La frame %1 a plus de %2 palettes</translation>
    </message>
    <message>
        <source>Its palette has %1 colours; at most %2 can be read</source>
        <translation>Sa palette a %1 couleurs&#xa0;; %2 au plus peuvent être lues</translation>
    </message>
    <message>
        <source>Its palette has %1 colours, of which it gives %2 to %3</source>
        <translation>Sa palette a %1 couleurs, dont il donne les n° %2 à %3</translation>
    </message>
    <message>
        <source>It has more than %1 tags</source>
        <translation>Il a plus de %1 tags</translation>
    </message>
    <message>
        <source>The tag “%1” is left out: it names frames %2 to %3 of %4</source>
        <translation>Le tag «&#xa0;%1&#xa0;» est ignoré&#xa0;: il désigne les frames %2 à %3 sur %4</translation>
    </message>
    <message>
        <source>”, “</source>
        <translation>&#xa0;», «&#xa0;</translation>
    </message>
    <message numerus="yes">
        <source>%n layers are hidden and left out, “%1” among them</source>
        <translation>
            <numerusform>%n calque masqué est ignoré, «&#xa0;%1&#xa0;»</numerusform>
            <numerusform>%n calques masqués sont ignorés, dont «&#xa0;%1&#xa0;»</numerusform>
        </translation>
    </message>
    <message>
        <source>Hidden layers are left out: “%1”</source>
        <translation>Calques masqués ignorés&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Its pixels are numbers of colours, and it has no palette</source>
        <translation>Ses pixels sont des numéros de couleurs, et il n’a pas de palette</translation>
    </message>
    <message>
        <source>It has pixels of colour %1, and its palette has %2 colours: they are black</source>
        <translation>Il a des pixels de la couleur %1, et sa palette a %2 couleurs&#xa0;: ils sont noirs</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>It has no colours</source>
        <translation>Il n’a pas de couleurs</translation>
    </message>
    <message>
        <source>“%1” is no colour, which is %2 numbers from 0 to 255</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une couleur, c’est-à-dire %2 nombres de 0 à 255</translation>
    </message>
    <message>
        <source>“%1” stands where “%2” does</source>
        <translation>«&#xa0;%1&#xa0;» est à la place de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>“%1” is no number of colours</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre de couleurs</translation>
    </message>
    <message>
        <source>It says that it has %1 colours, and has %2</source>
        <translation>Il annonce %1 couleurs et en a %2</translation>
    </message>
    <message>
        <source>“%1” is no colour of six hexadecimal digits</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une couleur de six chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>It says that it has %1 colours; there is room for %2</source>
        <translation>Il annonce %1 couleurs&#xa0;; il y a de la place pour %2</translation>
    </message>
    <message>
        <source>Its transparent index is %1, and it has %2 colours</source>
        <translation>Son index de transparence est %1, et il a %2 couleurs</translation>
    </message>
    <message>
        <source>It has %1; at most %2 can be read</source>
        <translation>Il fait %1&#xa0;; %2 au plus peuvent être lus</translation>
    </message>
    <message>
        <source>It is no palette of the forms .gpl, .pal (JASC), .hex or .act</source>
        <translation>Ce n’est pas une palette au format .gpl, .pal (JASC), .hex ou .act</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n octet</numerusform>
            <numerusform>%n octets</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 Mio</translation>
    </message>
    <message>
        <source>There is more of this kind</source>
        <translation>Il y a d’autres remarques de ce genre</translation>
    </message>
    <message>
        <source>It is not there, or may not be read</source>
        <translation>Il n’existe pas ou ne peut pas être lu</translation>
    </message>
    <message>
        <source>It could not be read: %1</source>
        <translation>Il n’a pas pu être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>its cells are written as “%1”, which cannot be read</source>
        <translation>ses cases sont écrites en «&#xa0;%1&#xa0;», ce qui ne peut pas être lu</translation>
    </message>
    <message>
        <source>its cells are packed as “%1”, which cannot be read</source>
        <translation>ses cases sont compressées en «&#xa0;%1&#xa0;», ce qui ne peut pas être lu</translation>
    </message>
    <message>
        <source>cell %1 is no number of a tile</source>
        <translation>la case %1 n’est pas un numéro de tuile</translation>
    </message>
    <message>
        <source>it has more than %1 cells</source>
        <translation>il a plus de %1 cases</translation>
    </message>
    <message>
        <source>“%1” is among the numbers of its cells</source>
        <translation>«&#xa0;%1&#xa0;» figure parmi les numéros de ses cases</translation>
    </message>
    <message>
        <source>it has %1 of %2 cells</source>
        <translation>il a %1 cases sur %2</translation>
    </message>
    <message>
        <source>its cells are damaged, or not %1</source>
        <translation>ses cases sont endommagées, ou leur nombre n’est pas %1</translation>
    </message>
    <message>
        <source>Two tile sets begin with number %1</source>
        <translation>Deux jeux de tuiles commencent au numéro %1</translation>
    </message>
    <message>
        <source>The tile set “%1” has animations of tiles that are not there</source>
        <translation>Le jeu de tuiles «&#xa0;%1&#xa0;» a des animations de tuiles qui n’existent pas</translation>
    </message>
    <message>
        <source>The tile set “%1” says no size of its tiles</source>
        <translation>Le jeu de tuiles «&#xa0;%1&#xa0;» n’indique pas la taille de ses tuiles</translation>
    </message>
    <message>
        <source>The picture of the tile set “%1” has %2 of its %3 tiles</source>
        <translation>L’image du jeu de tuiles «&#xa0;%1&#xa0;» a %2 de ses %3 tuiles</translation>
    </message>
    <message>
        <source>The layer “%1” is partly clear: it becomes opaque</source>
        <translation>Le calque «&#xa0;%1&#xa0;» est semi-transparent&#xa0;: il devient opaque</translation>
    </message>
    <message>
        <source>The layer “%1” is moved by parts of cells: it goes to the nearest</source>
        <translation>Le calque «&#xa0;%1&#xa0;» est décalé d’une fraction de case&#xa0;: il va à la plus proche</translation>
    </message>
    <message numerus="yes">
        <source>What shines through clear pixels of tiles above is lost, in %n cells</source>
        <translation>
            <numerusform>Ce qui se voit à travers les pixels transparents des tuiles du dessus est perdu, dans %n case</numerusform>
            <numerusform>Ce qui se voit à travers les pixels transparents des tuiles du dessus est perdu, dans %n cases</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells have numbers that no tile set has: they become empty</source>
        <translation>
            <numerusform>%n case a un numéro qu’aucun jeu de tuiles n’a&#xa0;: elle devient vide</numerusform>
            <numerusform>%n cases ont des numéros qu’aucun jeu de tuiles n’a&#xa0;: elles deviennent vides</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells of layers lie beyond the map: they are lost</source>
        <translation>
            <numerusform>%n case de calques dépasse de la carte&#xa0;: elle est perdue</numerusform>
            <numerusform>%n cases de calques dépassent de la carte&#xa0;: elles sont perdues</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is not in the file&apos;s folder</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas dans le dossier du fichier</translation>
    </message>
    <message>
        <source>“%1” is not there</source>
        <translation>«&#xa0;%1&#xa0;» n’existe pas</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>the pictures have more than %1 million pixels together</source>
        <translation>les images ont en tout plus de %1 millions de pixels</translation>
    </message>
    <message>
        <source>it is no picture that can be read</source>
        <translation>ce n’est pas une image lisible</translation>
    </message>
    <message>
        <source>It has more than %1 million numbers; with cells written as Base64 it has fewer</source>
        <translation>Il a plus de %1 millions de nombres&#xa0;; avec des cases écrites en Base64, il en a moins</translation>
    </message>
    <message>
        <source>It has more than %1 lists and objects</source>
        <translation>Il a plus de %1 listes et objets</translation>
    </message>
    <message>
        <source>Byte %1: %2</source>
        <translation>Octet %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>there are too many groups in each other</source>
        <translation>trop de groupes sont imbriqués</translation>
    </message>
    <message>
        <source>“%1” is “%2”, and can be %3 to %4</source>
        <translation>«&#xa0;%1&#xa0;» vaut «&#xa0;%2&#xa0;»&#xa0;; valeurs possibles&#xa0;: %3 à %4</translation>
    </message>
    <message>
        <source>“%1” is “%2”, which is no number that it can be</source>
        <translation>«&#xa0;%1&#xa0;» vaut «&#xa0;%2&#xa0;», qui n’est pas un nombre possible</translation>
    </message>
    <message>
        <source>It is a map of the kind “%1”; only “orthogonal” ones can be read</source>
        <translation>C’est une carte du type «&#xa0;%1&#xa0;»&#xa0;; seul le type «&#xa0;orthogonal&#xa0;» peut être lu</translation>
    </message>
    <message>
        <source>It says no width and height</source>
        <translation>Il n’indique ni largeur ni hauteur</translation>
    </message>
    <message>
        <source>It has %1 × %2 cells; at most %3 million can be read</source>
        <translation>Il a %1 × %2 cases&#xa0;; %3 millions au plus peuvent être lues</translation>
    </message>
    <message>
        <source>Its layers have more than %1 million cells together</source>
        <translation>Ses calques ont en tout plus de %1 millions de cases</translation>
    </message>
    <message>
        <source>The layer “%1”: %2</source>
        <translation>Le calque «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>The image layer “%1” is left out</source>
        <translation>Le calque d’image «&#xa0;%1&#xa0;» est ignoré</translation>
    </message>
    <message>
        <source>Objects made from templates lack what their template says</source>
        <translation>Les objets créés à partir de modèles n’ont pas ce que leur modèle indique</translation>
    </message>
    <message>
        <source>It has more than %1 objects</source>
        <translation>Il a plus de %1 objets</translation>
    </message>
    <message>
        <source>Its objects have more than %1 properties</source>
        <translation>Ses objets ont plus de %1 propriétés</translation>
    </message>
    <message>
        <source>It has more than %1 tile sets</source>
        <translation>Il a plus de %1 jeux de tuiles</translation>
    </message>
    <message>
        <source>Pictures inside the file cannot be read</source>
        <translation>Les images incluses dans le fichier ne peuvent pas être lues</translation>
    </message>
    <message>
        <source>Its tile sets have more than %1 pictures</source>
        <translation>Ses jeux de tuiles ont plus de %1 images</translation>
    </message>
    <message>
        <source>Its animations have more than %1 frames</source>
        <translation>Ses animations ont plus de %1 frames</translation>
    </message>
    <message>
        <source>It is no XML in UTF-8</source>
        <translation>Ce n’est pas du XML en UTF-8</translation>
    </message>
    <message>
        <source>It declares elements or entities of its own</source>
        <translation>Il déclare ses propres éléments ou entités</translation>
    </message>
    <message>
        <source>An element has more than %1 attributes</source>
        <translation>Un élément a plus de %1 attributs</translation>
    </message>
    <message>
        <source>there is no element</source>
        <translation>il n’y a aucun élément</translation>
    </message>
    <message>
        <source>there are too many elements in each other</source>
        <translation>trop d’éléments sont imbriqués</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Create a backup when saving</source>
        <translation>Créer une copie de sauvegarde à l’enregistrement</translation>
    </message>
    <message>
        <source>Check for updates on startup</source>
        <translation>Rechercher les mises à jour au démarrage</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Chaque jour</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Chaque semaine</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Chaque mois</translation>
    </message>
    <message>
        <source>General Settings</source>
        <translation>Paramètres généraux</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Check frequency</source>
        <translation>Fréquence de vérification</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>The guide is not installed</source>
        <translation>Le guide n’est pas installé</translation>
    </message>
    <message>
        <source>It comes with Quenmora&apos;s package.</source>
        <translation>Il est fourni avec le paquet de Quenmora.</translation>
    </message>
    <message>
        <source>No program was found that shows the guide</source>
        <translation>Aucun programme capable d’afficher le guide n’a été trouvé</translation>
    </message>
    <message>
        <source>It is in this file: %1</source>
        <translation>Il est dans ce fichier&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>&amp;Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Command &amp;Palette…</source>
        <translation>Pa&amp;lette de commandes…</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts…</source>
        <translation>Ra&amp;ccourcis clavier…</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guide</translation>
    </message>
    <message>
        <source>Opens the guide in your browser, at the page about what you work on</source>
        <translation>Ouvre le guide dans votre navigateur, à la page sur ce que vous faites</translation>
    </message>
    <message>
        <source>&amp;Sample Project</source>
        <translation>Projet d’&amp;exemple</translation>
    </message>
    <message>
        <source>Opens a small game to look at and to play with; saving makes a copy of your own</source>
        <translation>Ouvre un petit jeu à regarder et à essayer&#xa0;; l’enregistrer en fait votre propre copie</translation>
    </message>
</context>
<context>
    <name>ImageDialog</name>
    <message>
        <source>New Image</source>
        <translation>Nouvelle image</translation>
    </message>
    <message>
        <source>Create a new image</source>
        <translation>Créer une nouvelle image</translation>
    </message>
    <message>
        <source>256x192 256 colours</source>
        <translation>256x192 256 couleurs</translation>
    </message>
    <message>
        <source>320x256 256 colours</source>
        <translation>320x256 256 couleurs</translation>
    </message>
    <message>
        <source>640x256 16 colours</source>
        <translation>640x256 16 couleurs</translation>
    </message>
    <message>
        <source>128x96 256 colours</source>
        <translation>128x96 256 couleurs</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Mode</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>An image needs a palette; please create a palette first</source>
        <translation>Une image a besoin d’une palette&#xa0;; créez d’abord une palette</translation>
    </message>
</context>
<context>
    <name>ImageEditor::ImportDialog</name>
    <message>
        <source>Import Image</source>
        <translation>Importer une image</translation>
    </message>
    <message>
        <source>Scale to fill the image</source>
        <translation>Adapter à la taille de l’image</translation>
    </message>
    <message>
        <source>Keep the machine&apos;s colours</source>
        <translation>Garder les couleurs de la machine</translation>
    </message>
    <message>
        <source>Keep transparent pixels</source>
        <translation>Garder les pixels transparents</translation>
    </message>
    <message>
        <source>New palette of the picture&apos;s colours</source>
        <translation>Nouvelle palette avec les couleurs du fichier</translation>
    </message>
    <message>
        <source>Import a picture</source>
        <translation>Importer un fichier image</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has: those that the palette has stay exactly that, and scaling mixes no new ones</source>
        <translation>Toutes les couleurs du fichier existent sur le Next&#xa0;: celles de la palette restent exactement les mêmes, et la mise à l’échelle n’en mélange pas de nouvelles</translation>
    </message>
    <message>
        <source>They get the transparent entry of the palette, and no colour does</source>
        <translation>Ils prennent l’entrée transparente de la palette, et aucune couleur ne la prend</translation>
    </message>
    <message>
        <source>The image is shown with it from now on; the palette that it had stays as it is</source>
        <translation>L’image l’utilise désormais&#xa0;; la palette qu’elle avait reste inchangée</translation>
    </message>
    <message>
        <source>&amp;Fewer colours</source>
        <translation>&amp;Réduire les couleurs</translation>
    </message>
    <message>
        <source>Picture %1 × %2, image %3 × %4</source>
        <translation>Fichier %1 × %2, image %3 × %4</translation>
    </message>
    <message>
        <source>The picture cannot be used</source>
        <translation>Le fichier image ne peut pas être utilisé</translation>
    </message>
</context>
<context>
    <name>ImageEditor::View</name>
    <message>
        <source>Swap Palette</source>
        <translation>Changer de palette</translation>
    </message>
    <message>
        <source>Import Image</source>
        <translation>Importer une image</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Images (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>Export Image</source>
        <translation>Exporter l’image</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg *.bmp)</source>
        <translation>Images (*.png *.xpm *.jpg *.bmp)</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Un problème est survenu pendant l’exportation</translation>
    </message>
    <message>
        <source>Pictures are written as .png, .xpm, .jpg or .bmp files</source>
        <translation>Les images sont écrites en fichiers .png, .xpm, .jpg ou .bmp</translation>
    </message>
    <message>
        <source>Scratch Image</source>
        <translation>Brouillon</translation>
    </message>
    <message>
        <source>Paint here, or bring in a picture with Open among the tools</source>
        <translation>Dessinez ici, ou importez une image avec «&#xa0;Ouvrir&#xa0;» parmi les outils</translation>
    </message>
</context>
<context>
    <name>ImageMenu</name>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Image</translation>
    </message>
    <message>
        <source>&amp;New Image</source>
        <translation>&amp;Nouvelle image</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>Changer de &amp;palette</translation>
    </message>
</context>
<context>
    <name>ImportAgain</name>
    <message>
        <source>The image has no palette any more</source>
        <translation>L’image n’a plus de palette</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Importer à nouveau</translation>
    </message>
    <message>
        <source>%1 is up to date</source>
        <translation>%1 est à jour</translation>
    </message>
    <message>
        <source>The file is neither a palette nor a picture that can be read</source>
        <translation>Le fichier n’est ni une palette ni une image lisible</translation>
    </message>
    <message>
        <source>Such a file makes new assets, and cannot go into those that are there</source>
        <translation>Un tel fichier donne de nouvelles ressources et ne peut pas aller dans celles qui existent</translation>
    </message>
    <message>
        <source>%1 was imported again</source>
        <translation>%1 a été réimporté</translation>
    </message>
    <message>
        <source>What was made of it is not there any more</source>
        <translation>Ce qui en avait été fait n’existe plus</translation>
    </message>
    <message>
        <source>The file is not there any more:
%1</source>
        <translation>Le fichier n’existe plus&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importation de %1…</translation>
    </message>
    <message>
        <source>%1 is up to date; new tiles: %2</source>
        <translation>%1 est à jour&#xa0;; nouvelles tuiles&#xa0;: %2</translation>
    </message>
    <message>
        <source>; pixels that took the nearest colour: %1</source>
        <translation>, pixels qui ont pris la couleur la plus proche&#xa0;: %1</translation>
    </message>
    <message>
        <source>The map has no tiles or no palette any more</source>
        <translation>La carte n’a plus de tuiles ou plus de palette</translation>
    </message>
    <message numerus="yes">
        <source>The picture needs %n more tiles, and the tile set has room for %1</source>
        <translation>
            <numerusform>L’image demande %n tuile de plus, et le jeu de tuiles a de la place pour %1</numerusform>
            <numerusform>L’image demande %n tuiles de plus, et le jeu de tuiles a de la place pour %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Resize Map</source>
        <translation>Redimensionner la carte</translation>
    </message>
    <message>
        <source>The sprites have no palette any more</source>
        <translation>Les sprites n’ont plus de palette</translation>
    </message>
    <message>
        <source>The picture is smaller than a sprite, which has 16 × 16 pixels</source>
        <translation>L’image est plus petite qu’un sprite, qui fait 16 × 16 pixels</translation>
    </message>
    <message>
        <source>The picture holds more sprites than fit into a bank</source>
        <translation>L’image contient plus de sprites qu’une banque ne peut en recevoir</translation>
    </message>
    <message>
        <source>%1 is up to date; sprites that are new: %2</source>
        <translation>%1 est à jour&#xa0;; nouveaux sprites&#xa0;: %2</translation>
    </message>
    <message>
        <source>The map is too large to be brought up to date</source>
        <translation>La carte est trop grande pour être mise à jour</translation>
    </message>
</context>
<context>
    <name>ImportFileDialog</name>
    <message>
        <source>New palette</source>
        <translation>Nouvelle palette</translation>
    </message>
    <message>
        <source>New tile set</source>
        <translation>Nouveau jeu de tuiles</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>Nouvelle carte</translation>
    </message>
    <message>
        <source>New sprites</source>
        <translation>De nouveaux sprites</translation>
    </message>
    <message>
        <source>New map objects</source>
        <translation>Nouveaux objets de carte</translation>
    </message>
    <message>
        <source>New image</source>
        <translation>Nouvelle image</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… et encore %n</numerusform>
            <numerusform>… et encore %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>What the file is; first what it most probably is</source>
        <translation>Ce qu’est le fichier&#xa0;; le plus probable en premier</translation>
    </message>
    <message>
        <source>A new asset, or one of the project that takes it in, as one undo step</source>
        <translation>Une nouvelle ressource, ou une du projet qui reçoit le contenu, en une seule étape d’annulation</translation>
    </message>
    <message>
        <source>The number from which on those that are there are replaced, counted from 0</source>
        <translation>Le numéro à partir duquel les éléments existants sont remplacés, compté depuis 0</translation>
    </message>
    <message>
        <source>Behind those that are there</source>
        <translation>Après les éléments existants</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Type</translation>
    </message>
    <message>
        <source>In&amp;to</source>
        <translation>&amp;Dans</translation>
    </message>
    <message>
        <source>&amp;From number</source>
        <translation>À partir du n&amp;uméro</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nom</translation>
    </message>
    <message>
        <source>Ti&amp;le set</source>
        <translation>&amp;Jeu de tuiles</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>I&amp;gnorer</translation>
    </message>
    <message>
        <source>Leaves this file out and goes on with the next one</source>
        <translation>Ignore ce fichier et passe au suivant</translation>
    </message>
    <message>
        <source>Import (%1 of %2)</source>
        <translation>Importer (%1 sur %2)</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln bytes</source>
        <translation>
            <numerusform>%1, %Ln octet</numerusform>
            <numerusform>%1, %Ln octets</numerusform>
        </translation>
    </message>
    <message>
        <source>New tile set of blank tiles</source>
        <translation>Nouveau jeu de tuiles vides</translation>
    </message>
    <message>
        <source>New palette of its own colours</source>
        <translation>Nouvelle palette avec ses propres couleurs</translation>
    </message>
    <message>
        <source>New palette of the standard colours</source>
        <translation>Nouvelle palette avec les couleurs standard</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>C&amp;ontinue…</source>
        <translation>C&amp;ontinuer…</translation>
    </message>
    <message>
        <source>What is asked next depends on the picture</source>
        <translation>La suite dépend du fichier image</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
    <message>
        <source>The project was closed meanwhile</source>
        <translation>Le projet a été fermé entre-temps</translation>
    </message>
    <message>
        <source>There is nothing in the project into which it could go</source>
        <translation>Rien dans le projet ne peut recevoir ce contenu</translation>
    </message>
</context>
<context>
    <name>ImportKeeper</name>
    <message>
        <source>The file could not be imported again</source>
        <translation>Le fichier n’a pas pu être réimporté</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Importer à nouveau</translation>
    </message>
</context>
<context>
    <name>ImportNotice</name>
    <message>
        <source>Import Again</source>
        <translation>Importer à nouveau</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>%1 changed since it was imported</source>
        <translation>%1 a changé depuis son importation</translation>
    </message>
    <message numerus="yes">
        <source>%n files changed since they were imported</source>
        <translation>
            <numerusform>%n fichier a changé depuis son importation</numerusform>
            <numerusform>%n fichiers ont changé depuis leur importation</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportPictureDialog</name>
    <message>
        <source>Import Picture</source>
        <translation>Importer une image</translation>
    </message>
    <message>
        <source>&amp;Keep the machine&apos;s colours</source>
        <translation>&amp;Garder les couleurs de la machine</translation>
    </message>
    <message>
        <source>Keep &amp;transparent pixels</source>
        <translation>Garder les pixels &amp;transparents</translation>
    </message>
    <message>
        <source>&amp;Find colours and tiles for the whole picture</source>
        <translation>&amp;Chercher couleurs et tuiles pour toute l’image</translation>
    </message>
    <message>
        <source>Make tiles and a map of a picture</source>
        <translation>Créer des tuiles et une carte à partir d’une image</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has, and stays exactly that</source>
        <translation>Toutes les couleurs de l’image existent sur le Next et restent exactement les mêmes</translation>
    </message>
    <message>
        <source>They get index %1 of their tiles, which the map does not draw</source>
        <translation>Ils prennent l’index %1 de leurs tuiles, que la carte ne dessine pas</translation>
    </message>
    <message>
        <source>Groups of 16 colours that suit all tiles as well as they can, and at most %1 tiles; else tiles are served as they come, and who comes last gets what is left</source>
        <translation>Des groupes de 16 couleurs qui conviennent au mieux à toutes les tuiles, et au plus %1 tuiles&#xa0;; sinon les tuiles sont traitées dans l’ordre, et les dernières prennent ce qui reste</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Ordered pattern</source>
        <translation>Motif ordonné</translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation>Diffusion d’erreur</translation>
    </message>
    <message>
        <source>&amp;Dithering</source>
        <translation>Tra&amp;mage</translation>
    </message>
    <message>
        <source>Reducing %1…</source>
        <translation>Réduction de %1…</translation>
    </message>
    <message>
        <source>Tiles: %1
Tiles that lose colours: %2</source>
        <translation>Tuiles&#xa0;: %1
Tuiles qui perdent des couleurs&#xa0;: %2</translation>
    </message>
    <message>
        <source>Tiles: %1, for %2 different ones
Colours: %3, for %4 of the picture; groups: %5</source>
        <translation>Tuiles&#xa0;: %1, pour %2 différentes
Couleurs&#xa0;: %3, pour %4 dans l’image&#xa0;; groupes&#xa0;: %5</translation>
    </message>
    <message>
        <source>Nothing is lost</source>
        <translation>Rien n’est perdu</translation>
    </message>
    <message>
        <source>Nothing is lost but shades between the colours that the machine has</source>
        <translation>Rien n’est perdu, sauf des nuances entre les couleurs de la machine</translation>
    </message>
    <message>
        <source>Of %1 cells, %2 lose colours and %3 show a tile that is like theirs</source>
        <translation>Sur %1 cases, %2 perdent des couleurs et %3 affichent une tuile ressemblante</translation>
    </message>
    <message>
        <source>; mean error: %1 levels</source>
        <translation>, erreur moyenne en niveaux&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n different tiles, and a tile set has room for %1</source>
        <translation>
            <numerusform>L’image a %n tuile différente, et un jeu de tuiles n’en contient que %1</numerusform>
            <numerusform>L’image a %n tuiles différentes, et un jeu de tuiles n’en contient que %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportZXFontDialog</name>
    <message>
        <source>Import Spectrum Characters</source>
        <translation>Importer des caractères Spectrum</translation>
    </message>
    <message>
        <source>Import a ZX Spectrum font into tiles</source>
        <translation>Importer une police ZX Spectrum dans les tuiles</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>P&amp;arcourir…</translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;First tile</source>
        <translation>&amp;Première tuile</translation>
    </message>
    <message>
        <source>Palette &amp;offset</source>
        <translation>&amp;Décalage de palette</translation>
    </message>
    <message>
        <source>I&amp;nk</source>
        <translation>&amp;Encre</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>Pap&amp;ier</translation>
    </message>
    <message>
        <source>Fonts (*.bin *.raw *.ch8)</source>
        <translation>Polices (*.bin *.raw *.ch8)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>No characters</source>
        <translation>Aucun caractère</translation>
    </message>
    <message>
        <source>Characters: %1, in tiles %2 to %3</source>
        <translation>Caractères&#xa0;: %1, dans les tuiles %2 à %3</translation>
    </message>
    <message>
        <source>The tile set has no palette to take colours from</source>
        <translation>Le jeu de tuiles n’a pas de palette où prendre des couleurs</translation>
    </message>
    <message>
        <source>Please choose a font file</source>
        <translation>Choisissez un fichier de police</translation>
    </message>
    <message>
        <source>There is no character in this file, or it cannot be read</source>
        <translation>Ce fichier ne contient aucun caractère ou ne peut pas être lu</translation>
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
        <translation>Importer une carte</translation>
    </message>
    <message>
        <source>Import Tiles</source>
        <translation>Importer des tuiles</translation>
    </message>
    <message>
        <source>Import Sprites</source>
        <translation>Importer des sprites</translation>
    </message>
    <message>
        <source>There is no number %1; the last one is %2</source>
        <translation>Il n’y a pas de numéro %1&#xa0;; le dernier est %2</translation>
    </message>
    <message>
        <source>There is room for %1, and %2 come in</source>
        <translation>Place disponible&#xa0;: %1&#xa0;; à importer&#xa0;: %2</translation>
    </message>
    <message>
        <source>“%1” has %2 tiles, and the first number is for tile %3 (counted from 0)</source>
        <translation>«&#xa0;%1&#xa0;» a %2 tuiles, et le premier nombre est pour la tuile %3 (comptée depuis 0)</translation>
    </message>
    <message>
        <source>The sprites have indices above 15, and “%1” is a bank of 4 bits</source>
        <translation>Les sprites ont des index au-delà de 15, et «&#xa0;%1&#xa0;» est une banque de 4 bits</translation>
    </message>
    <message>
        <source>The asset into which it goes is not there any more, or is of another kind</source>
        <translation>La ressource de destination n’existe plus ou est d’un autre type</translation>
    </message>
    <message>
        <source>Choose the tile set whose tiles these are for</source>
        <translation>Choisissez le jeu de tuiles auquel ils sont destinés</translation>
    </message>
    <message>
        <source>Please enter a name</source>
        <translation>Saisissez un nom</translation>
    </message>
    <message>
        <source>Import Animations</source>
        <translation>Importer des animations</translation>
    </message>
    <message>
        <source>Animation %1</source>
        <translation>Animation %1</translation>
    </message>
    <message>
        <source>“%1”: frames have times of their own, and get the mean of them</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: les frames ont chacune leur durée&#xa0;; la moyenne est prise</translation>
    </message>
    <message>
        <source>“%1” is repeated for ever</source>
        <translation>«&#xa0;%1&#xa0;» se répète sans fin</translation>
    </message>
    <message numerus="yes">
        <source>The frames make %n sprites, which is more than there is room for</source>
        <translation>
            <numerusform>Les frames donnent %n sprite, plus que la place disponible</numerusform>
            <numerusform>Les frames donnent %n sprites, plus que la place disponible</numerusform>
        </translation>
    </message>
    <message>
        <source>Sprites alone go into a bank that is there; the animations are left out</source>
        <translation>Une banque existante ne reçoit que les sprites&#xa0;; les animations sont ignorées</translation>
    </message>
    <message>
        <source>The frames have %1 pixels, and tiles are made of at most %2</source>
        <translation>Les frames ont %1 pixels&#xa0;; les tuiles sont tirées de %2 au plus</translation>
    </message>
    <message>
        <source>Frames that are left out: %1</source>
        <translation>Frames ignorées&#xa0;: %1</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondeur</translation>
    </message>
    <message>
        <source>How many colours the sprites have</source>
        <translation>Combien de couleurs ont les sprites</translation>
    </message>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bits, 256 couleurs</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bits, 16 couleurs</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Frames</translation>
    </message>
    <message>
        <source>Which frames become tiles</source>
        <translation>Quelles frames deviennent des tuiles</translation>
    </message>
    <message>
        <source>The first one, with a map</source>
        <translation>La première, avec une carte</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Aseprite file, for sprites with animations</source>
        <translation>Fichier Aseprite, pour des sprites animés</translation>
    </message>
    <message>
        <source>Aseprite file, for tiles</source>
        <translation>Fichier Aseprite, pour des tuiles</translation>
    </message>
    <message>
        <source>Aseprite file, for an image</source>
        <translation>Fichier Aseprite, pour une image</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 est vide</translation>
    </message>
    <message>
        <source>“%1” is no kind of file that is read here</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un type de fichier lisible ici</translation>
    </message>
    <message>
        <source>The file has a +3DOS header, which is skipped</source>
        <translation>Le fichier a un en-tête +3DOS, qui est ignoré</translation>
    </message>
    <message>
        <source>The smallest that holds the picture</source>
        <translation>La plus petite qui contient l’image</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>The mode of the image</source>
        <translation>Le mode de l’image</translation>
    </message>
    <message>
        <source>The picture has %1 × %2 pixels, and what does not fit is cut off</source>
        <translation>Le fichier fait %1 × %2 pixels&#xa0;; ce qui dépasse est coupé</translation>
    </message>
    <message>
        <source>Import Palette</source>
        <translation>Importer une palette</translation>
    </message>
    <message>
        <source>Colours that the Next does not have, and that become the nearest ones: %1 of %2</source>
        <translation>Couleurs absentes du Next, remplacées par les plus proches&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Colours for which there is no room: %1</source>
        <translation>Couleurs sans place disponible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>Tramage</translation>
    </message>
    <message>
        <source>How colours are shown for which there is no room</source>
        <translation>Comment rendre les couleurs qui n’ont pas de place</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Ordered pattern</source>
        <translation>Motif ordonné</translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation>Diffusion d’erreur</translation>
    </message>
    <message>
        <source>Palette of another program</source>
        <translation>Palette d’un autre programme</translation>
    </message>
    <message>
        <source>First entry</source>
        <translation>Première entrée</translation>
    </message>
    <message>
        <source>The entry that the first colour becomes</source>
        <translation>L’entrée que devient la première couleur</translation>
    </message>
    <message>
        <source>Scale to that size</source>
        <translation>Adapter à cette taille</translation>
    </message>
    <message>
        <source>Makes the picture as large as the image</source>
        <translation>Agrandit ou réduit le fichier image à la taille de l’image</translation>
    </message>
    <message>
        <source>Picture, for tiles and a map</source>
        <translation>Fichier image, pour des tuiles et une carte</translation>
    </message>
    <message>
        <source>Picture, for sprites</source>
        <translation>Fichier image, pour des sprites</translation>
    </message>
    <message>
        <source>Picture, for an image</source>
        <translation>Fichier image, pour une image</translation>
    </message>
    <message>
        <source>Picture, for its colours</source>
        <translation>Fichier image, pour ses couleurs</translation>
    </message>
    <message>
        <source>Palette, tiles, blocks and map of one name</source>
        <translation>Palette, tuiles, blocs et carte du même nom</translation>
    </message>
    <message>
        <source>Cells: %1 × %2, which show %3 different tiles</source>
        <translation>Cases&#xa0;: %1 × %2, qui affichent %3 tuiles différentes</translation>
    </message>
    <message>
        <source>Placed sprites: %1</source>
        <translation>Sprites placés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Tiles: %1</source>
        <translation>Tuiles&#xa0;: %1</translation>
    </message>
    <message>
        <source>Animations of tiles: %1</source>
        <translation>Animations de tuiles&#xa0;: %1</translation>
    </message>
    <message>
        <source>Numbers: %1</source>
        <translation>Nombres&#xa0;: %1</translation>
    </message>
    <message>
        <source>Sprites: %1</source>
        <translation>Sprites&#xa0;: %1</translation>
    </message>
    <message>
        <source>Animations: %1</source>
        <translation>Animations&#xa0;: %1</translation>
    </message>
    <message>
        <source>Pixels: %1 × %2</source>
        <translation>Pixels&#xa0;: %1 × %2</translation>
    </message>
    <message>
        <source>Colours: %1</source>
        <translation>Couleurs&#xa0;: %1</translation>
    </message>
    <message>
        <source>Tile %1 (counted from 0) has pixels of several palette offsets, and a tile has one</source>
        <translation>La tuile %1 (comptée depuis 0) a des pixels de plusieurs décalages de palette, et une tuile n’en a qu’un</translation>
    </message>
    <message>
        <source>Tiles that lose colours, since theirs are of several palette offsets: %1 of %2</source>
        <translation>Tuiles qui perdent des couleurs, les leurs étant de plusieurs décalages de palette&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>The file has %1 bytes, which is too much for this</source>
        <translation>Le fichier fait %1 octets, ce qui est trop pour cet usage</translation>
    </message>
    <message>
        <source>Several offsets</source>
        <translation>Plusieurs décalages</translation>
    </message>
    <message>
        <source>What becomes of tiles whose pixels are of several palette offsets, which a tile map cannot show</source>
        <translation>Ce que deviennent les tuiles dont les pixels sont de plusieurs décalages de palette, ce qu’une carte de tuiles ne peut pas afficher</translation>
    </message>
    <message>
        <source>The colours of the best one</source>
        <translation>Les couleurs du meilleur</translation>
    </message>
    <message>
        <source>Nothing is imported</source>
        <translation>Rien n’est importé</translation>
    </message>
    <message>
        <source>Of %1 pieces of 8 × 8 pixels, %2 lose colours and %3 get a tile that is like theirs; mean error: %4 levels</source>
        <translation>Sur %1 morceaux de 8 × 8 pixels, %2 perdent des couleurs et %3 prennent une tuile ressemblante&#xa0;; erreur moyenne en niveaux&#xa0;: %4</translation>
    </message>
    <message>
        <source>Colours: %1, which %2 stand for; mean error: %3 levels</source>
        <translation>Couleurs&#xa0;: %1, représentées par %2&#xa0;; erreur moyenne en niveaux&#xa0;: %3</translation>
    </message>
    <message>
        <source>Colours that the Next does not have become the nearest ones</source>
        <translation>Les couleurs absentes du Next deviennent les plus proches</translation>
    </message>
    <message>
        <source>Tiles that are not as large as the cells, and are cut or filled: %1</source>
        <translation>Tuiles de taille différente des cases, coupées ou complétées&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cells whose animations are left out, since there are more than %1: %2</source>
        <translation>Cases dont les animations sont ignorées, car il y en a plus de %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Animations whose frames have times of their own, and get the mean: %1</source>
        <translation>Animations dont les frames ont chacune leur durée (la moyenne est prise)&#xa0;: %1</translation>
    </message>
    <message>
        <source>Objects that are no sprites, turned, scaled, hidden or too large, and are left out: %1</source>
        <translation>Objets ignorés (pas des sprites, tournés, mis à l’échelle, masqués ou trop grands)&#xa0;: %1</translation>
    </message>
    <message>
        <source>The cells of the map have %1 × %2 pixels, and tiles of the Next 8 × 8: only multiples of that can be cut</source>
        <translation>Les cases de la carte font %1 × %2 pixels, et les tuiles du Next 8 × 8&#xa0;: seuls des multiples peuvent être découpés</translation>
    </message>
    <message>
        <source>The map has no cells</source>
        <translation>La carte n’a pas de cases</translation>
    </message>
    <message>
        <source>That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most</source>
        <translation>Cela donne une carte de %1 × %2 cases&#xa0;; le maximum est de %3 par côté et de %4 en tout</translation>
    </message>
    <message>
        <source>The map shows too many different tiles: of %1 × %2 pixels, %3 are the most</source>
        <translation>La carte affiche trop de tuiles différentes&#xa0;: en %1 × %2 pixels, le maximum est de %3</translation>
    </message>
    <message>
        <source>Files that are left alone because they are not below the map&apos;s folder: %1</source>
        <translation>Fichiers laissés de côté car hors du dossier de la carte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Map of Tiled</source>
        <translation>Carte Tiled</translation>
    </message>
    <message>
        <source>Read files outside its folder</source>
        <translation>Lire les fichiers hors de son dossier</translation>
    </message>
    <message>
        <source>Takes tile sets and pictures from wherever the map says that they are</source>
        <translation>Prend les jeux de tuiles et les images là où la carte les indique</translation>
    </message>
    <message>
        <source>Import Image</source>
        <translation>Importer une image</translation>
    </message>
    <message>
        <source>“%1” has %2 × %3 pixels, and the picture has %4 × %5</source>
        <translation>«&#xa0;%1&#xa0;» a %2 × %3 pixels, et l’image %4 × %5</translation>
    </message>
    <message>
        <source>Choose the map on which these are placed</source>
        <translation>Choisissez la carte sur laquelle ils sont placés</translation>
    </message>
    <message>
        <source>What record %1 (counted from 0) shows is not in the project, where it is looked for by its place</source>
        <translation>Ce que montre l’enregistrement %1 (compté à partir de 0) n’est pas dans le projet, où on le cherche par sa place</translation>
    </message>
    <message>
        <source>Placed animations: %1</source>
        <translation>Animations placées&#xa0;: %1</translation>
    </message>
    <message>
        <source>The colours are left out, since other assets are drawn with the palette of “%1” as well</source>
        <translation>Les couleurs sont ignorées, car d’autres ressources sont aussi dessinées avec la palette de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Tile set of Tiled</source>
        <translation>Jeu de tuiles de Tiled</translation>
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
        <translation>Défilement</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Miroir vertical</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Miroir horizontal</translation>
    </message>
</context>
<context>
    <name>LayoutController</name>
    <message>
        <source>Next Dock</source>
        <translation>Panneau suivant</translation>
    </message>
    <message>
        <source>Previous Dock</source>
        <translation>Panneau précédent</translation>
    </message>
    <message>
        <source>Next Dock Behind</source>
        <translation>Panneau suivant derrière</translation>
    </message>
    <message>
        <source>Previous Dock Behind</source>
        <translation>Panneau précédent derrière</translation>
    </message>
</context>
<context>
    <name>LineCanvasTool</name>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>%2 - %1</source>
        <translation>%2 - %1</translation>
    </message>
    <message>
        <source>Its backup is from %1</source>
        <translation>Sa copie de sauvegarde date du %1</translation>
    </message>
    <message>
        <source>Open &amp;Backup</source>
        <translation>Ouvrir la &amp;copie de sauvegarde</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>Could not import the font</source>
        <translation>Impossible d’importer la police</translation>
    </message>
</context>
<context>
    <name>MapDialog</name>
    <message>
        <source> cells</source>
        <translation> cases</translation>
    </message>
    <message>
        <source>New Map</source>
        <translation>Nouvelle carte</translation>
    </message>
    <message>
        <source>Create a new map</source>
        <translation>Créer une nouvelle carte</translation>
    </message>
    <message>
        <source>&amp;Tile set</source>
        <translation>&amp;Jeu de tuiles</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Largeur</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Hauteur</translation>
    </message>
    <message>
        <source>A map is made of the tiles of a tile set; please create a tile set first</source>
        <translation>Une carte se compose des tuiles d’un jeu de tuiles&#xa0;; créez d’abord un jeu de tuiles</translation>
    </message>
</context>
<context>
    <name>MapEditor::AnchorPad</name>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Au centre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
</context>
<context>
    <name>MapEditor::CellDialog</name>
    <message>
        <source>Go to Cell</source>
        <translation>Aller à la case</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Ligne</translation>
    </message>
</context>
<context>
    <name>MapEditor::CellTool</name>
    <message>
        <source>Place Animation</source>
        <translation>Placer une animation</translation>
    </message>
</context>
<context>
    <name>MapEditor::DrawTool</name>
    <message>
        <source>Paint</source>
        <translation>Peindre</translation>
    </message>
</context>
<context>
    <name>MapEditor::ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Export Map Data</source>
        <translation>Exporter les données de la carte</translation>
    </message>
    <message>
        <source>Export Tile Data</source>
        <translation>Exporter les données des tuiles</translation>
    </message>
    <message>
        <source>Export Palette Data</source>
        <translation>Exporter les données de la palette</translation>
    </message>
    <message>
        <source>Export: %1</source>
        <translation>Exporter&#xa0;: %1</translation>
    </message>
    <message>
        <source>Files in %1</source>
        <translation>Fichiers dans %1</translation>
    </message>
    <message>
        <source>%1 (replaces this file)</source>
        <translation>%1 (remplace ce fichier)</translation>
    </message>
    <message>
        <source>Choose what to export</source>
        <translation>Choisissez ce qui doit être exporté</translation>
    </message>
</context>
<context>
    <name>MapEditor::FillTool</name>
    <message>
        <source>Bucket Fill</source>
        <translation>Pot de peinture</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapCommands</name>
    <message>
        <source>Select Same &amp;Tile</source>
        <translation>Sélectionner la même t&amp;uile</translation>
    </message>
    <message>
        <source>Selects all cells that show the current tile</source>
        <translation>Sélectionne toutes les cases qui affichent la tuile actuelle</translation>
    </message>
    <message>
        <source>&amp;Replace Tile…</source>
        <translation>Remp&amp;lacer la tuile…</translation>
    </message>
    <message>
        <source>Puts one tile in place of another, in the selection, the map or all maps of the tile set</source>
        <translation>Met une tuile à la place d’une autre, dans la sélection, la carte ou toutes les cartes du jeu de tuiles</translation>
    </message>
    <message>
        <source>Edit Terrain&amp;s…</source>
        <translation>&amp;Modifier les terrains…</translation>
    </message>
    <message>
        <source>Marks tiles whose borders match when they are painted</source>
        <translation>Marque les tuiles dont les bords s’accordent quand on les peint</translation>
    </message>
    <message>
        <source>Go to &amp;Cell…</source>
        <translation>Aller à la ca&amp;se…</translation>
    </message>
    <message>
        <source>Scrolls the map to a cell</source>
        <translation>Fait défiler la carte jusqu’à une case</translation>
    </message>
    <message>
        <source>&amp;Overview</source>
        <translation>Vue d’ensem&amp;ble</translation>
    </message>
    <message>
        <source>Shows the whole map in a corner, with the part that is in view to drag</source>
        <translation>Affiche toute la carte dans un coin, avec la partie visible à faire glisser</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapEditing</name>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Copy Cells</source>
        <translation>Copier les cases</translation>
    </message>
    <message>
        <source>Move Cells</source>
        <translation>Déplacer les cases</translation>
    </message>
    <message>
        <source>Sprite Properties</source>
        <translation>Propriétés du sprite</translation>
    </message>
    <message>
        <source>Delete Sprite</source>
        <translation>Supprimer le sprite</translation>
    </message>
    <message>
        <source>Remove Animation</source>
        <translation>Retirer l’animation</translation>
    </message>
    <message>
        <source>Add Rows</source>
        <translation>Ajouter des lignes</translation>
    </message>
    <message>
        <source>Add Columns</source>
        <translation>Ajouter des colonnes</translation>
    </message>
    <message>
        <source>Remove Rows</source>
        <translation>Retirer des lignes</translation>
    </message>
    <message>
        <source>Remove Columns</source>
        <translation>Retirer des colonnes</translation>
    </message>
    <message>
        <source>Resize Map</source>
        <translation>Redimensionner la carte</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapExport</name>
    <message>
        <source>Choose a directory to export anim into</source>
        <translation>Choisir un dossier où exporter l’animation</translation>
    </message>
    <message>
        <source>Exporting %1…</source>
        <translation>Exportation de %1…</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapGrid</name>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
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
        <source>Copy to new map</source>
        <translation>Copier vers une nouvelle carte</translation>
    </message>
    <message>
        <source>Copy as Image</source>
        <translation>Copier en tant qu’image</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapKeys</name>
    <message>
        <source>Column %1, row %2</source>
        <translation>Colonne %1, ligne %2</translation>
    </message>
    <message>
        <source>tile %1</source>
        <translation>tuile %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>rotated</source>
        <translation>pivotée</translation>
    </message>
    <message>
        <source>flipped</source>
        <translation>miroir vertical</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>miroir horizontal</translation>
    </message>
    <message>
        <source>palette offset %1</source>
        <translation>décalage de palette %1</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>animation</translation>
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
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>Drag to scroll the map</source>
        <translation>Faire glisser pour faire défiler la carte</translation>
    </message>
</context>
<context>
    <name>MapEditor::MapToolPalette</name>
    <message>
        <source>Rotated</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Flipped</source>
        <translation>Miroir vertical</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Miroir horizontal</translation>
    </message>
    <message>
        <source>Random tiles of the stamp</source>
        <translation>Tuiles du tampon au hasard</translation>
    </message>
    <message>
        <source>Bucket fill</source>
        <translation>Pot de peinture</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Filled rectangle</source>
        <translation>Rectangle plein</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Filled ellipse</source>
        <translation>Ellipse pleine</translation>
    </message>
    <message>
        <source>Paint terrain</source>
        <translation>Peindre un terrain</translation>
    </message>
</context>
<context>
    <name>MapEditor::PaintBar</name>
    <message>
        <source>Painting</source>
        <translation>Peinture</translation>
    </message>
    <message>
        <source>Stamps</source>
        <translation>Tampons</translation>
    </message>
    <message>
        <source>Ctrl-drag tiles to make one</source>
        <translation>Ctrl+glisser des tuiles en crée un</translation>
    </message>
    <message>
        <source>Stamps are made of tiles, by dragging with Ctrl in the tile picker, and of cells, by dragging with the Pick tool</source>
        <translation>Pour créer un tampon, faites glisser des tuiles avec Ctrl dans le sélecteur de tuiles, ou des cases avec la pipette</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>Of the tile</source>
        <translation>De la tuile</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Décalage de palette</translation>
    </message>
    <message>
        <source>The palette offset of painted cells. Ctrl with a painting tool paints it alone, and with the right button brings back that of the tile</source>
        <translation>Le décalage de palette des cases peintes. Ctrl avec un outil de peinture ne peint que lui, et avec le bouton droit rétablit celui de la tuile</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Terrain</translation>
    </message>
    <message>
        <source>What the terrain tool paints</source>
        <translation>Ce que peint l’outil terrain</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Edit Terrains…</source>
        <translation>Modifier les terrains…</translation>
    </message>
    <message>
        <source>Marks the tiles of terrains</source>
        <translation>Marque les tuiles des terrains</translation>
    </message>
    <message>
        <source>%1 × %2 cells</source>
        <translation>%1 × %2 cases</translation>
    </message>
    <message>
        <source>Stamp of %1</source>
        <translation>Tampon de %1</translation>
    </message>
    <message>
        <source>%1, a stamp of %2</source>
        <translation>%1, un tampon de %2</translation>
    </message>
    <message>
        <source>Name Stamp…</source>
        <translation>Nommer le tampon…</translation>
    </message>
    <message>
        <source>Forget Stamp</source>
        <translation>Oublier le tampon</translation>
    </message>
    <message>
        <source>Name Stamp</source>
        <translation>Nommer le tampon</translation>
    </message>
    <message>
        <source>A stamp with a name stays; without one it goes when others are used</source>
        <translation>Un tampon nommé est conservé&#xa0;; sans nom, il disparaît quand d’autres sont utilisés</translation>
    </message>
</context>
<context>
    <name>MapEditor::PaintDesk</name>
    <message>
        <source>Replace Tile</source>
        <translation>Remplacer la tuile</translation>
    </message>
    <message>
        <source>Replace Tile in All Maps</source>
        <translation>Remplacer la tuile dans toutes les cartes</translation>
    </message>
    <message>
        <source>Choose a tile in the Tiles dock and paint here: the left button paints, the right one clears</source>
        <translation>Choisissez une tuile dans le panneau Tuiles et dessinez ici&#xa0;: le bouton gauche dessine, le droit vide</translation>
    </message>
</context>
<context>
    <name>MapEditor::PasteTool</name>
    <message>
        <source>Picture of %1 × %2 cells; tiles to be added: %3</source>
        <translation>Image de %1 × %2 cases&#xa0;; tuiles à ajouter&#xa0;: %3</translation>
    </message>
    <message>
        <source>; pixels that take the nearest colour: %1</source>
        <translation>, pixels qui prennent la couleur la plus proche&#xa0;: %1</translation>
    </message>
    <message>
        <source>The picture is smaller than a tile, which has 8 × 8 pixels</source>
        <translation>L’image est plus petite qu’une tuile, qui fait 8 × 8 pixels</translation>
    </message>
    <message numerus="yes">
        <source>The picture needs %n more tiles, and the tile set has room for %1</source>
        <translation>
            <numerusform>L’image demande %n tuile de plus, et le jeu de tuiles a de la place pour %1</numerusform>
            <numerusform>L’image demande %n tuiles de plus, et le jeu de tuiles a de la place pour %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Paste Picture</source>
        <translation>Coller l’image</translation>
    </message>
    <message>
        <source>Tiles added: %1</source>
        <translation>Tuiles ajoutées&#xa0;: %1</translation>
    </message>
    <message>
        <source>; pixels that took the nearest colour: %1</source>
        <translation>, pixels qui ont pris la couleur la plus proche&#xa0;: %1</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
</context>
<context>
    <name>MapEditor::PlaceAnimationTool</name>
    <message>
        <source>Place Animation</source>
        <translation>Placer une animation</translation>
    </message>
</context>
<context>
    <name>MapEditor::PlaceSpriteTool</name>
    <message>
        <source>Place Sprite</source>
        <translation>Placer un sprite</translation>
    </message>
    <message>
        <source>Move Sprite</source>
        <translation>Déplacer le sprite</translation>
    </message>
</context>
<context>
    <name>MapEditor::ReplaceTileDialog</name>
    <message>
        <source>Replace Tile</source>
        <translation>Remplacer la tuile</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Par</translation>
    </message>
    <message>
        <source>In the selection</source>
        <translation>Dans la sélection</translation>
    </message>
    <message>
        <source>In this map</source>
        <translation>Dans cette carte</translation>
    </message>
    <message>
        <source>In all maps of the tile set</source>
        <translation>Dans toutes les cartes du jeu de tuiles</translation>
    </message>
    <message>
        <source>Tile </source>
        <translation>Tuile </translation>
    </message>
    <message>
        <source>These are the same tile</source>
        <translation>C’est la même tuile</translation>
    </message>
</context>
<context>
    <name>MapEditor::ResizeDialog</name>
    <message>
        <source>Resize Map</source>
        <translation>Redimensionner la carte</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation>Ancrage</translation>
    </message>
    <message>
        <source> cells</source>
        <translation> cases</translation>
    </message>
    <message>
        <source>The whole map of %1×%2 cells is kept</source>
        <translation>Toute la carte de %1×%2 cases est conservée</translation>
    </message>
    <message>
        <source>%1×%2 of %3×%4 cells are kept</source>
        <translation>%1×%2 cases sur %3×%4 sont conservées</translation>
    </message>
</context>
<context>
    <name>MapEditor::ShapeTool</name>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
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
        <translation>Nom</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Miroir horizontal</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Miroir vertical</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Start frame</source>
        <translation>Frame de départ</translation>
    </message>
    <message>
        <source>Initial delay</source>
        <translation>Délai initial</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Délai de répétition</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Décalage de palette</translation>
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
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>The 4 cells beside</source>
        <translation>Les 4 cases adjacentes</translation>
    </message>
    <message>
        <source>All 8 cells around</source>
        <translation>Les 8 cases autour</translation>
    </message>
    <message>
        <source>Which neighbours decide about the tile of a cell</source>
        <translation>Quelles voisines déterminent la tuile d’une case</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Looks at</source>
        <translation>Voisinage</translation>
    </message>
    <message>
        <source>Mark the middle of each tile of the terrain, and the sides and corners where it goes on. The right button takes marks away.</source>
        <translation>Marquez le milieu de chaque tuile du terrain, ainsi que les côtés et les coins où il se prolonge. Le bouton droit retire des marques.</translation>
    </message>
    <message>
        <source>Terrain %1</source>
        <translation>Terrain %1</translation>
    </message>
    <message>
        <source>Every terrain needs a name</source>
        <translation>Chaque terrain a besoin d’un nom</translation>
    </message>
    <message>
        <source>Turn tiles where none has the borders</source>
        <translation>Tourner des tuiles là où aucune n’a les bords voulus</translation>
    </message>
    <message>
        <source>Also takes tiles that have the borders when they are rotated, flipped or mirrored</source>
        <translation>Prend aussi les tuiles qui ont ces bords une fois pivotées ou mises en miroir</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainMarks</name>
    <message>
        <source>Marks of the terrain</source>
        <translation>Marques du terrain</translation>
    </message>
</context>
<context>
    <name>MapEditor::TerrainTool</name>
    <message>
        <source>Paint Terrain</source>
        <translation>Peindre un terrain</translation>
    </message>
</context>
<context>
    <name>MapEditor::ToolBar</name>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Tuiles</translation>
    </message>
    <message>
        <source>Show or hide the tile layer</source>
        <translation>Afficher ou masquer le calque des tuiles</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objets</translation>
    </message>
    <message>
        <source>Show or hide the object layer</source>
        <translation>Afficher ou masquer le calque des objets</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>Show or hide the sprite layer</source>
        <translation>Afficher ou masquer le calque des sprites</translation>
    </message>
    <message>
        <source>Size in cells of the viewport</source>
        <translation>Taille de la zone visible, en cases</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>Zone visible</translation>
    </message>
    <message>
        <source>Viewport width</source>
        <translation>Largeur de la zone visible</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Viewport height</source>
        <translation>Hauteur de la zone visible</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Tile index to be used as a background</source>
        <translation>Index de la tuile utilisée comme arrière-plan</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparence</translation>
    </message>
    <message>
        <source>Sets the transparency index of the tile set (0-15) or off</source>
        <translation>Index de transparence du jeu de tuiles (0-15) ou aucun</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Aimantation</translation>
    </message>
    <message>
        <source>Sets the snap to grid size</source>
        <translation>Taille de la grille d’aimantation</translation>
    </message>
    <message>
        <source>Map size in tiles and bytes</source>
        <translation>Taille de la carte en tuiles et en octets</translation>
    </message>
</context>
<context>
    <name>MapEditor::View</name>
    <message numerus="yes">
        <source>%1x%2 (%n bytes)</source>
        <translation>
            <numerusform>%1x%2 (%n octet)</numerusform>
            <numerusform>%1x%2 (%n octets)</numerusform>
        </translation>
    </message>
    <message>
        <source>Resize or export the map</source>
        <translation>Redimensionner ou exporter la carte</translation>
    </message>
    <message>
        <source>Resize Map…</source>
        <translation>Redimensionner la carte…</translation>
    </message>
    <message>
        <source>Export to Folder…</source>
        <translation>Exporter vers un dossier…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>MapEditorPage</name>
    <message>
        <source>Render checker board beneath maps</source>
        <translation>Afficher un damier sous les cartes</translation>
    </message>
    <message>
        <source>Enable grid line overlay</source>
        <translation>Superposer les lignes de la grille</translation>
    </message>
    <message>
        <source>Map Editor</source>
        <translation>Éditeur de cartes</translation>
    </message>
    <message>
        <source>Grid colour</source>
        <translation>Couleur de la grille</translation>
    </message>
    <message>
        <source>Alternate colour</source>
        <translation>Couleur alternée</translation>
    </message>
    <message>
        <source>Grid size (in pixels)</source>
        <translation>Taille de la grille (en pixels)</translation>
    </message>
    <message>
        <source>Default magnification</source>
        <translation>Zoom par défaut</translation>
    </message>
</context>
<context>
    <name>MapMenu</name>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Carte</translation>
    </message>
    <message>
        <source>&amp;New Map</source>
        <translation>&amp;Nouvelle carte</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>NextTiles (*.nxm *.nxt *.nxp *.nxb)</source>
        <translation>NextTiles (*.nxm *.nxt *.nxp *.nxb)</translation>
    </message>
    <message>
        <source>Image files (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</source>
        <translation>Fichiers image (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)</translation>
    </message>
    <message>
        <source>Import Map Data</source>
        <translation>Importer des données de carte</translation>
    </message>
    <message>
        <source>Export Map Data</source>
        <translation>Exporter les données de la carte</translation>
    </message>
    <message>
        <source>Map Data (*.map)</source>
        <translation>Données de carte (*.map)</translation>
    </message>
    <message>
        <source>Exporting %1…</source>
        <translation>Exportation de %1…</translation>
    </message>
</context>
<context>
    <name>MapObjects</name>
    <message>
        <source>Empty</source>
        <translation>Vide</translation>
    </message>
</context>
<context>
    <name>MapSpritesWindow</name>
    <message>
        <source>Map Sprites</source>
        <translation>Sprites de la carte</translation>
    </message>
    <message>
        <source>No sprites</source>
        <translation>Aucun sprite</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animations</translation>
    </message>
    <message>
        <source>Sprite bank</source>
        <translation>Banque de sprites</translation>
    </message>
    <message>
        <source>The sprite banks of the project</source>
        <translation>Les banques de sprites du projet</translation>
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
        <translation>Attention&#xa0;!</translation>
    </message>
</context>
<context>
    <name>NextData</name>
    <message>
        <source>the table of animations</source>
        <translation>la table des animations</translation>
    </message>
    <message>
        <source>their number</source>
        <translation>leur nombre</translation>
    </message>
    <message>
        <source>the place of “%1”</source>
        <translation>la position de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>animation “%1”</source>
        <translation>animation «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the width</source>
        <translation>la largeur</translation>
    </message>
    <message>
        <source>the height</source>
        <translation>la hauteur</translation>
    </message>
    <message>
        <source>the number of frames</source>
        <translation>le nombre de frames</translation>
    </message>
    <message>
        <source>the kind</source>
        <translation>le type</translation>
    </message>
    <message>
        <source>the delay</source>
        <translation>le délai</translation>
    </message>
    <message>
        <source>it shows number %1, and %2 is the last one that fits</source>
        <translation>elle affiche le numéro %1, et %2 est le dernier possible</translation>
    </message>
    <message>
        <source>it has the palette offset %1</source>
        <translation>elle a le décalage de palette %1</translation>
    </message>
    <message>
        <source>Animation “%1”, frame %2, column %3, row %4 (counted from 0): %5</source>
        <translation>Animation «&#xa0;%1&#xa0;», frame %2, colonne %3, ligne %4 (comptées depuis 0)&#xa0;: %5</translation>
    </message>
    <message>
        <source>number and places of the animations</source>
        <translation>nombre et positions des animations</translation>
    </message>
    <message>
        <source>animation %1 “%2”</source>
        <translation>animation %1 «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>frame %1</translation>
    </message>
    <message>
        <source>The animations do not lie in the file as its beginning says</source>
        <translation>Les animations ne sont pas disposées dans le fichier comme son début l’indique</translation>
    </message>
    <message>
        <source>Bytes behind the last animation that are left out: %1</source>
        <translation>Octets ignorés après la dernière animation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Animations of blocks</source>
        <translation>Animations de blocs</translation>
    </message>
    <message>
        <source>Animations of sprites</source>
        <translation>Animations de sprites</translation>
    </message>
    <message>
        <source>it leads out of its folder</source>
        <translation>le chemin sort de son dossier</translation>
    </message>
    <message>
        <source>a folder or file in it has no name</source>
        <translation>un dossier ou un fichier y est sans nom</translation>
    </message>
    <message>
        <source>There is no file name</source>
        <translation>Il manque un nom de fichier</translation>
    </message>
    <message>
        <source>it is not relative</source>
        <translation>le chemin n’est pas relatif</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: %2</translation>
    </message>
    <message>
        <source>“%1” is %2, and the form %3 is for %4</source>
        <translation>«&#xa0;%1&#xa0;» est %2, et le format %3 est pour %4</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>“%1” has %2 pixels, and this form %3</source>
        <translation>«&#xa0;%1&#xa0;» fait %2 pixels, et ce format %3</translation>
    </message>
    <message>
        <source>“%1” has no palette that could stand in front</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas de palette à placer devant</translation>
    </message>
    <message>
        <source>“%1”: the pixel at %2, %3 has the index %4, and only those from %5 to %6 go with the first pixel</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: le pixel en %2, %3 a l’index %4, et seuls ceux de %5 à %6 vont avec le premier pixel</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and such a picture %2, or %3 or %4 with its palette</source>
        <translation>Le fichier fait %1 octets, et une telle image %2, ou %3 ou %4 avec sa palette</translation>
    </message>
    <message>
        <source>The file has one half of the picture, which becomes the upper one</source>
        <translation>Le fichier contient une moitié de l’image, qui devient celle du haut</translation>
    </message>
    <message>
        <source>By rows</source>
        <translation>Par lignes</translation>
    </message>
    <message>
        <source>By columns</source>
        <translation>Par colonnes</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordre</translation>
    </message>
    <message>
        <source>In which order the pixels follow each other</source>
        <translation>L’ordre dans lequel les pixels se suivent</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Décalage de palette</translation>
    </message>
    <message>
        <source>The group of sixteen colours of all pixels, which comes from a register</source>
        <translation>Le groupe de seize couleurs de tous les pixels, donné par un registre</translation>
    </message>
    <message>
        <source>Palette in front</source>
        <translation>Palette devant</translation>
    </message>
    <message>
        <source>Writes the 512 bytes of the image&apos;s palette before the pixels</source>
        <translation>Écrit les 512 octets de la palette de l’image avant les pixels</translation>
    </message>
    <message>
        <source>Two halves</source>
        <translation>Deux moitiés</translation>
    </message>
    <message>
        <source>Writes the upper and the lower half into files of their own</source>
        <translation>Écrit les moitiés haute et basse dans des fichiers distincts</translation>
    </message>
    <message>
        <source>Layer 2, 256 × 192, by rows</source>
        <translation>Layer 2, 256 × 192, par lignes</translation>
    </message>
    <message>
        <source>Layer 2, 320 × 256, by columns</source>
        <translation>Layer 2, 320 × 256, par colonnes</translation>
    </message>
    <message>
        <source>Layer 2, 640 × 256, by columns, two pixels a byte</source>
        <translation>Layer 2, 640 × 256, par colonnes, deux pixels par octet</translation>
    </message>
    <message>
        <source>LoRes, 128 × 96, by rows</source>
        <translation>LoRes, 128 × 96, par lignes</translation>
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
        <translation>Layer 2, 640 × 256, deux pixels par octet</translation>
    </message>
    <message>
        <source>LoRes, 128 × 96</source>
        <translation>LoRes, 128 × 96</translation>
    </message>
    <message>
        <source>screen %1, %2</source>
        <translation>écran %1, %2</translation>
    </message>
    <message>
        <source>“%1”: the cell in column %2, row %3 (counted from 0) %4</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: la case en colonne %2, ligne %3 (comptées depuis 0) %4</translation>
    </message>
    <message>
        <source>shows tile %1, and %2 is the last one that fits</source>
        <translation>affiche la tuile %1, et %2 est la dernière possible</translation>
    </message>
    <message>
        <source>has the palette offset %1</source>
        <translation>a le décalage de palette %1</translation>
    </message>
    <message>
        <source>is rotated or mirrored, which one byte does not tell</source>
        <translation>est pivotée ou en miroir, ce qu’un octet ne peut pas indiquer</translation>
    </message>
    <message>
        <source>has the palette offset %1, others have %2, and one byte does not tell them apart</source>
        <translation>a le décalage de palette %1, d’autres ont %2, et un octet ne les distingue pas</translation>
    </message>
    <message>
        <source>That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most</source>
        <translation>Cela donne une carte de %1 × %2 cases&#xa0;; le maximum est de %3 par côté et de %4 en tout</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and a cell takes %2</source>
        <translation>Le fichier fait %1 octets, et une case en prend %2</translation>
    </message>
    <message>
        <source>Cells of the file that are outside the map: %1</source>
        <translation>Cases du fichier situées hors de la carte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cells of the map that the file does not have, and that stay blank: %1</source>
        <translation>Cases de la carte absentes du fichier, qui restent vides&#xa0;: %1</translation>
    </message>
    <message>
        <source>Half a cell at the end is left out</source>
        <translation>Une demi-case à la fin est ignorée</translation>
    </message>
    <message>
        <source>In which order the cells of a screen follow each other</source>
        <translation>L’ordre dans lequel les cases d’un écran se suivent</translation>
    </message>
    <message>
        <source>Screen width</source>
        <translation>Largeur d’écran</translation>
    </message>
    <message>
        <source>Cells across a screen into which the map is cut; 0 is the whole width</source>
        <translation>Cases en largeur d’un écran, quand la carte est découpée en écrans&#xa0;; 0&#xa0;: toute la largeur</translation>
    </message>
    <message>
        <source>Screen height</source>
        <translation>Hauteur d’écran</translation>
    </message>
    <message>
        <source>Cells down a screen into which the map is cut; 0 is the whole height</source>
        <translation>Cases en hauteur d’un écran, quand la carte est découpée en écrans&#xa0;; 0&#xa0;: toute la hauteur</translation>
    </message>
    <message>
        <source>A file for each screen</source>
        <translation>Un fichier par écran</translation>
    </message>
    <message>
        <source>Writes the screens into numbered files of their own</source>
        <translation>Écrit les écrans dans des fichiers numérotés distincts</translation>
    </message>
    <message>
        <source>Tile map, two bytes a cell</source>
        <translation>Carte de tuiles, deux octets par case</translation>
    </message>
    <message>
        <source>Tile map, one byte a cell</source>
        <translation>Carte de tuiles, un octet par case</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Cells across the map; 0 is what most maps of so many cells have</source>
        <translation>Cases en largeur de la carte&#xa0;; 0&#xa0;: la largeur la plus courante pour ce nombre de cases</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Cells down the map; 0 is as far as the file goes</source>
        <translation>Cases en hauteur de la carte&#xa0;; 0&#xa0;: jusqu’à la fin du fichier</translation>
    </message>
    <message>
        <source>Cells across the screens into which the map was cut; 0 is the whole width</source>
        <translation>Cases en largeur d’un écran, si la carte a été découpée en écrans&#xa0;; 0&#xa0;: toute la largeur</translation>
    </message>
    <message>
        <source>Cells down the screens into which the map was cut; 0 is the whole height</source>
        <translation>Cases en hauteur d’un écran, si la carte a été découpée en écrans&#xa0;; 0&#xa0;: toute la hauteur</translation>
    </message>
    <message>
        <source>Bit 0</source>
        <translation>Bit 0</translation>
    </message>
    <message>
        <source>What the lowest bit of a cell&apos;s second byte says</source>
        <translation>Ce qu’indique le bit le plus bas du second octet d’une case</translation>
    </message>
    <message>
        <source>Tiles from 256 on</source>
        <translation>Tuiles à partir de 256</translation>
    </message>
    <message>
        <source>The ULA&apos;s picture is in front: left out</source>
        <translation>L’image de l’ULA est devant&#xa0;: ignoré</translation>
    </message>
    <message>
        <source>The palette offset of all cells, which comes from a register</source>
        <translation>Le décalage de palette de toutes les cases, donné par un registre</translation>
    </message>
    <message>
        <source>“%1” cannot be a label: those are a letter, then letters, digits and _, %2 at most</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être une étiquette&#xa0;: il faut une lettre, puis des lettres, des chiffres et _, %2 au plus</translation>
    </message>
    <message>
        <source>“%1” cannot be a label: assemblers or C give it a meaning</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être une étiquette&#xa0;: les assembleurs ou le C lui donnent un sens</translation>
    </message>
    <message>
        <source>The label “%1”, or a name made of it, is that of another output already</source>
        <translation>L’étiquette «&#xa0;%1&#xa0;», ou un nom qui en est tiré, est déjà celle d’une autre sortie</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 “%3”</source>
        <translation>%1 %2 «&#xa0;%3&#xa0;»</translation>
    </message>
    <message>
        <source>“%1”, %2: its %3 is not in the project</source>
        <translation>«&#xa0;%1&#xa0;», %2&#xa0;: élément absent du projet (%3)</translation>
    </message>
    <message>
        <source>the number of records</source>
        <translation>le nombre d’enregistrements</translation>
    </message>
    <message>
        <source>it</source>
        <translation>il</translation>
    </message>
    <message>
        <source>number of records</source>
        <translation>nombre d’enregistrements</translation>
    </message>
    <message>
        <source>placed sprite</source>
        <translation>sprite placé</translation>
    </message>
    <message>
        <source>sprite bank</source>
        <translation>banque de sprites</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>animation</translation>
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
        <translation>la position de sa banque</translation>
    </message>
    <message>
        <source>16 times the palette offset, and the flags,</source>
        <translation>16 fois le décalage de palette, avec les drapeaux,</translation>
    </message>
    <message>
        <source>the animation</source>
        <translation>l’animation</translation>
    </message>
    <message>
        <source>the sprite</source>
        <translation>le sprite</translation>
    </message>
    <message>
        <source>the start frame</source>
        <translation>la frame de départ</translation>
    </message>
    <message>
        <source>the initial delay</source>
        <translation>le délai initial</translation>
    </message>
    <message>
        <source>the repeat delay</source>
        <translation>le délai de répétition</translation>
    </message>
    <message>
        <source>the place of the name</source>
        <translation>la position du nom</translation>
    </message>
    <message>
        <source>names</source>
        <translation>noms</translation>
    </message>
    <message>
        <source>placed animation</source>
        <translation>animation placée</translation>
    </message>
    <message>
        <source>the column</source>
        <translation>la colonne</translation>
    </message>
    <message>
        <source>the row</source>
        <translation>la ligne</translation>
    </message>
    <message>
        <source>the place of its block set</source>
        <translation>la position de son jeu de blocs</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Noms</translation>
    </message>
    <message>
        <source>Whether the names of sprites stand behind the records</source>
        <translation>Indique si les noms des sprites suivent les enregistrements</translation>
    </message>
    <message>
        <source>Behind the records</source>
        <translation>Après les enregistrements</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omis</translation>
    </message>
    <message>
        <source>Sprites placed on a map</source>
        <translation>Sprites placés sur une carte</translation>
    </message>
    <message>
        <source>Animated blocks placed on a map</source>
        <translation>Blocs animés placés sur une carte</translation>
    </message>
    <message>
        <source>Option %1: “%2” is not %3</source>
        <translation>Option %1&#xa0;: «&#xa0;%2&#xa0;»&#xa0;; valeur attendue&#xa0;: %3</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ou false</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>nombre entier de %1 à %2</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>une parmi %1</translation>
    </message>
    <message>
        <source>There is no option “%1”, only %2</source>
        <translation>Il n’y a pas d’option «&#xa0;%1&#xa0;», seulement %2</translation>
    </message>
    <message>
        <source>“%1” would be C source and its header: another suffix is needed, as .c</source>
        <translation>«&#xa0;%1&#xa0;» serait le source C et son en-tête&#xa0;: il faut une autre extension, comme .c</translation>
    </message>
    <message>
        <source>“%1” has nothing to write in this form</source>
        <translation>«&#xa0;%1&#xa0;» n’a rien à écrire dans ce format</translation>
    </message>
    <message>
        <source>padding</source>
        <translation>remplissage</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>Texte source</translation>
    </message>
    <message>
        <source>Bytes for incbin, or source text in the words of an assembler or of C</source>
        <translation>Des octets pour incbin, ou du texte source dans la syntaxe d’un assembleur ou du C</translation>
    </message>
    <message>
        <source>No, bytes</source>
        <translation>Non, des octets</translation>
    </message>
    <message>
        <source>sjasmplus, Zeus: db $12</source>
        <translation>sjasmplus, Zeus&#xa0;: db $12</translation>
    </message>
    <message>
        <source>z80asm, z88dk: defb $12</source>
        <translation>z80asm, z88dk&#xa0;: defb $12</translation>
    </message>
    <message>
        <source>GNU as: .byte 0x12</source>
        <translation>GNU as&#xa0;: .byte 0x12</translation>
    </message>
    <message>
        <source>C: an array and its header</source>
        <translation>C&#xa0;: un tableau et son en-tête</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>The label of the bytes in source text; made from the asset&apos;s name when there is none</source>
        <translation>L’étiquette des octets dans le texte source&#xa0;; tirée du nom de la ressource s’il n’y en a pas</translation>
    </message>
    <message>
        <source>Pad to a multiple of</source>
        <translation>Compléter à un multiple de</translation>
    </message>
    <message>
        <source>Adds zeros until the size is a multiple of so many bytes; 0 adds none</source>
        <translation>Ajoute des zéros jusqu’à ce que la taille soit un multiple de ce nombre d’octets&#xa0;; 0 n’en ajoute pas</translation>
    </message>
    <message>
        <source>Cut into files</source>
        <translation>Découper en fichiers</translation>
    </message>
    <message>
        <source>Numbered files that each fit into a page of 8 KiB or a bank of 16 KiB</source>
        <translation>Des fichiers numérotés qui tiennent chacun dans une page de 8 Kio ou une banque de 16 Kio</translation>
    </message>
    <message>
        <source>No, one file</source>
        <translation>Non, un seul fichier</translation>
    </message>
    <message>
        <source>8 KiB each</source>
        <translation>De 8 Kio chacun</translation>
    </message>
    <message>
        <source>16 KiB each</source>
        <translation>De 16 Kio chacun</translation>
    </message>
    <message>
        <source>“%1” is no plain file name</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un simple nom de fichier</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>transparency</source>
        <translation>transparence</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and such a palette %2</source>
        <translation>Le fichier fait %1 octets, et une telle palette %2</translation>
    </message>
    <message>
        <source>2 an entry, %1 in all</source>
        <translation>2 par entrée, %1 en tout</translation>
    </message>
    <message>
        <source>The file has %1 entries; the others stay as they are</source>
        <translation>Le fichier a %1 entrées&#xa0;; les autres restent inchangées</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparence</translation>
    </message>
    <message>
        <source>What the last byte holds of the transparent entry; $E3 for a palette without one</source>
        <translation>Ce que le dernier octet contient de l’entrée transparente&#xa0;; $E3 pour une palette qui n’en a pas</translation>
    </message>
    <message>
        <source>Its colour RRRGGGBB, for layers</source>
        <translation>Sa couleur RRRGGGBB, pour les couches</translation>
    </message>
    <message>
        <source>Its index, for sprites</source>
        <translation>Son index, pour les sprites</translation>
    </message>
    <message>
        <source>Which of the sixteen groups of sixteen entries is written</source>
        <translation>Lequel des seize groupes de seize entrées est écrit</translation>
    </message>
    <message>
        <source>Palette, 9 bits a colour</source>
        <translation>Palette, 9 bits par couleur</translation>
    </message>
    <message>
        <source>Palette, 9 bits a colour, and the transparency</source>
        <translation>Palette, 9 bits par couleur, et la transparence</translation>
    </message>
    <message>
        <source>Palette, 8 bits a colour</source>
        <translation>Palette, 8 bits par couleur</translation>
    </message>
    <message>
        <source>Sixteen colours of a palette, 9 bits each</source>
        <translation>Seize couleurs d’une palette, de 9 bits chacune</translation>
    </message>
    <message>
        <source>What the last byte says of the transparent entry</source>
        <translation>Ce que le dernier octet indique de l’entrée transparente</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Rien</translation>
    </message>
    <message>
        <source>Which of the sixteen groups of sixteen entries the colours become</source>
        <translation>Lequel des seize groupes de seize entrées les couleurs deviennent</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Premier</translation>
    </message>
    <message>
        <source>The number of the first one, counted from 0</source>
        <translation>Le numéro du premier, compté depuis 0</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>How many are written; 0 is all from the first on</source>
        <translation>Combien sont écrits&#xa0;; 0&#xa0;: tous à partir du premier</translation>
    </message>
    <message>
        <source>Options first and count: there are %1, and %2 from number %3 on are not</source>
        <translation>Options first et count&#xa0;: il y en a %1, on ne peut donc pas en prendre %2 à partir du numéro %3</translation>
    </message>
    <message>
        <source>How many are read; 0 is all from the first on</source>
        <translation>Combien sont lus&#xa0;; 0&#xa0;: tous à partir du premier</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and one of these takes %2</source>
        <translation>Le fichier fait %1 octets, et un seul élément en prend %2</translation>
    </message>
    <message>
        <source>The file holds %1, and %2 go into an asset: choose which, with first and count</source>
        <translation>Le fichier contient %1 éléments, et une ressource en reçoit %2&#xa0;: choisissez lesquels avec «&#xa0;Premier&#xa0;» (first) et «&#xa0;Nombre&#xa0;» (count)</translation>
    </message>
    <message>
        <source>Bytes behind the last whole one that are left out: %1</source>
        <translation>Octets ignorés après le dernier élément complet&#xa0;: %1</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Le fichier est vide</translation>
    </message>
    <message>
        <source>The file has %1 bytes, and the largest that is read as it is %2</source>
        <translation>Le fichier fait %1 octets, et le plus grand qui soit lu tel quel %2</translation>
    </message>
    <message>
        <source>There is no form “%1”</source>
        <translation>Il n’y a pas de format «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 is a form of %2, not of %3</source>
        <translation>%1 est un format pour %2, pas pour %3</translation>
    </message>
    <message>
        <source>“%1” is the file of another output as well</source>
        <translation>«&#xa0;%1&#xa0;» est aussi le fichier d’une autre sortie</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Le fichier ne peut pas être lu</translation>
    </message>
    <message>
        <source>The file is too large for a recipe</source>
        <translation>Le fichier est trop grand pour une recette</translation>
    </message>
    <message>
        <source>The project no longer has %1 “%2” with the id %3, but another one of that name (%4)</source>
        <translation>Il manque désormais au projet %1 «&#xa0;%2&#xa0;» d’id %3, mais il y a un autre élément de ce nom (%4)</translation>
    </message>
    <message>
        <source>The project no longer has %1 “%2” with the id %3</source>
        <translation>Il manque désormais au projet %1 «&#xa0;%2&#xa0;» d’id %3</translation>
    </message>
    <message>
        <source>“%1” is the project or its recipe</source>
        <translation>«&#xa0;%1&#xa0;» est le projet ou sa recette</translation>
    </message>
    <message>
        <source>“%1” is written for “%2” already</source>
        <translation>«&#xa0;%1&#xa0;» est déjà écrit pour «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>This is no JSON: %1</source>
        <translation>Ce n’est pas du JSON&#xa0;: %1</translation>
    </message>
    <message>
        <source>This is no recipe: “%1” is missing</source>
        <translation>Ce n’est pas une recette&#xa0;: «&#xa0;%1&#xa0;» manque</translation>
    </message>
    <message>
        <source>The recipe is from a newer version of Quenmora</source>
        <translation>La recette provient d’une version plus récente de Quenmora</translation>
    </message>
    <message>
        <source>“%1” must be a list</source>
        <translation>«&#xa0;%1&#xa0;» doit être une liste</translation>
    </message>
    <message>
        <source>“%1” means nothing here</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas de sens ici</translation>
    </message>
    <message>
        <source>“%1” is there twice</source>
        <translation>«&#xa0;%1&#xa0;» figure deux fois</translation>
    </message>
    <message>
        <source>There are more than %1 outputs</source>
        <translation>Il y a plus de %1 sorties</translation>
    </message>
    <message>
        <source>“%1” is the file of line %2 already</source>
        <translation>«&#xa0;%1&#xa0;» est déjà le fichier de la ligne %2</translation>
    </message>
    <message>
        <source>“%1” is missing</source>
        <translation>«&#xa0;%1&#xa0;» manque</translation>
    </message>
    <message>
        <source>“%1” must be a text</source>
        <translation>«&#xa0;%1&#xa0;» doit être un texte</translation>
    </message>
    <message>
        <source>An output must be an object</source>
        <translation>Une sortie doit être un objet</translation>
    </message>
    <message>
        <source>There is no kind of asset “%1”</source>
        <translation>Il n’y a pas de type de ressource «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>“%1” is no id</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un id</translation>
    </message>
    <message>
        <source>“%1” must be an object</source>
        <translation>«&#xa0;%1&#xa0;» doit être un objet</translation>
    </message>
    <message>
        <source>%1 has no option “%2”</source>
        <translation>%1 n’a pas d’option «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>The option “%1” has a value of the wrong type</source>
        <translation>L’option «&#xa0;%1&#xa0;» a une valeur du mauvais type</translation>
    </message>
    <message>
        <source>“%1”, %2: %3 is %4, and %5 to %6 fit</source>
        <translation>«&#xa0;%1&#xa0;», %2&#xa0;: %3 vaut %4&#xa0;; valeurs possibles&#xa0;: %5 à %6</translation>
    </message>
    <message>
        <source>a palette</source>
        <translation>une palette</translation>
    </message>
    <message>
        <source>a tile set</source>
        <translation>un jeu de tuiles</translation>
    </message>
    <message>
        <source>a map</source>
        <translation>une carte</translation>
    </message>
    <message>
        <source>a block set</source>
        <translation>un jeu de blocs</translation>
    </message>
    <message>
        <source>a sprite bank</source>
        <translation>une banque de sprites</translation>
    </message>
    <message>
        <source>an image</source>
        <translation>une image</translation>
    </message>
    <message>
        <source>“%1” is a bank of 8 bits: sprite %2 (counted from 0) has a pixel of index %3, and 4 bits hold 0 to 15</source>
        <translation>«&#xa0;%1&#xa0;» est une banque de 8 bits&#xa0;: le sprite %2 (compté depuis 0) a un pixel d’index %3, et 4 bits vont de 0 à 15</translation>
    </message>
    <message>
        <source>Sprites, 8 bits a pixel</source>
        <translation>Sprites, 8 bits par pixel</translation>
    </message>
    <message>
        <source>Sprites, 4 bits a pixel, packed</source>
        <translation>Sprites, 4 bits par pixel, compacts</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondeur</translation>
    </message>
    <message>
        <source>How many bits of a pixel count</source>
        <translation>Combien de bits d’un pixel comptent</translation>
    </message>
    <message>
        <source>8-bit, 256 colours</source>
        <translation>8 bits, 256 couleurs</translation>
    </message>
    <message>
        <source>4-bit, 16 colours</source>
        <translation>4 bits, 16 couleurs</translation>
    </message>
    <message>
        <source>“%1” cannot be written: “%2” is a link that leads nowhere</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: «&#xa0;%2&#xa0;» est un lien qui ne mène nulle part</translation>
    </message>
    <message>
        <source>“%1” cannot be written: the link “%2” leads out of the folder</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: le lien «&#xa0;%2&#xa0;» sort du dossier</translation>
    </message>
    <message>
        <source>“%1” cannot be written: it is a folder</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: c’est un dossier</translation>
    </message>
    <message>
        <source>“%1” cannot be written: “%2” is no folder</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: «&#xa0;%2&#xa0;» n’est pas un dossier</translation>
    </message>
    <message>
        <source>“%1”: tile %2 (counted from 0) has the value %3, and %4 to %5 fit</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: la tuile %2 (comptée depuis 0) a la valeur %3&#xa0;; valeurs possibles&#xa0;: %4 à %5</translation>
    </message>
    <message>
        <source>The file holds numbers of %1 tiles, and a tile set has at most %2</source>
        <translation>Le fichier contient les nombres de %1 tuiles, et un jeu de tuiles en a %2 au plus</translation>
    </message>
    <message>
        <source>In which order the pixels of a tile follow each other</source>
        <translation>L’ordre dans lequel les pixels d’une tuile se suivent</translation>
    </message>
    <message>
        <source>How many bytes a value takes</source>
        <translation>Combien d’octets prend une valeur</translation>
    </message>
    <message>
        <source>One byte</source>
        <translation>Un octet</translation>
    </message>
    <message>
        <source>Two bytes</source>
        <translation>Deux octets</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Encre</translation>
    </message>
    <message>
        <source>The colour (0–15) of the pixels that are set; all others are clear</source>
        <translation>La couleur (0–15) des pixels activés&#xa0;; tous les autres sont transparents</translation>
    </message>
    <message>
        <source>Tiles, 4 bits a pixel</source>
        <translation>Tuiles, 4 bits par pixel</translation>
    </message>
    <message>
        <source>Tiles, 8 bits a pixel</source>
        <translation>Tuiles, 8 bits par pixel</translation>
    </message>
    <message>
        <source>Tiles, 1 bit a pixel</source>
        <translation>Tuiles, 1 bit par pixel</translation>
    </message>
    <message>
        <source>Attributes of tiles</source>
        <translation>Attributs des tuiles</translation>
    </message>
    <message>
        <source>Values of tiles</source>
        <translation>Valeurs des tuiles</translation>
    </message>
    <message>
        <source>The group of sixteen colours in which the tiles are shown</source>
        <translation>Le groupe de seize couleurs dans lequel les tuiles sont affichées</translation>
    </message>
    <message>
        <source>The colour (0–15) of the pixels that are set</source>
        <translation>La couleur (0–15) des pixels activés</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>The colour (0–15) of all others</source>
        <translation>La couleur (0–15) de tous les autres</translation>
    </message>
    <message>
        <source>The tile that the first number is for, counted from 0</source>
        <translation>La tuile du premier nombre, comptée depuis 0</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation>Le dossier %1 ne peut pas être créé</translation>
    </message>
    <message>
        <source>The records do not lie in the file as its beginning says</source>
        <translation>Les enregistrements ne sont pas dans le fichier comme le dit son début</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>plages</translation>
    </message>
    <message>
        <source>Ranges of a palette whose colours go round</source>
        <translation>Plages d’une palette dont les couleurs tournent</translation>
    </message>
</context>
<context>
    <name>NextDataImport</name>
    <message>
        <source>Some of the required files are missing</source>
        <translation>Certains des fichiers nécessaires manquent</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importation de %1…</translation>
    </message>
    <message>
        <source>Could not import the palette data</source>
        <translation>Impossible d’importer les données de la palette</translation>
    </message>
    <message>
        <source>Could not import the tile data</source>
        <translation>Impossible d’importer les données des tuiles</translation>
    </message>
    <message>
        <source>Could not import the map data</source>
        <translation>Impossible d’importer les données de la carte</translation>
    </message>
</context>
<context>
    <name>NextSteps</name>
    <message>
        <source>This project is empty. Begin with:</source>
        <translation>Ce projet est vide. Commencez par&#xa0;:</translation>
    </message>
    <message>
        <source>A map from a picture</source>
        <translation>Carte d’après une image</translation>
    </message>
    <message>
        <source>Cuts a picture into tiles and makes a palette, a tile set and a map of it</source>
        <translation>Découpe une image en tuiles et en fait une palette, un jeu de tuiles et une carte</translation>
    </message>
    <message>
        <source>Files that there are</source>
        <translation>Fichiers existants</translation>
    </message>
    <message>
        <source>Looks at files of any kind, shows what they are, and makes assets of them</source>
        <translation>Examine des fichiers de tout type, montre ce qu’ils sont et en fait des ressources</translation>
    </message>
    <message>
        <source>A new palette</source>
        <translation>Nouvelle palette</translation>
    </message>
    <message>
        <source>The colours that everything else is drawn with</source>
        <translation>Les couleurs avec lesquelles tout le reste est dessiné</translation>
    </message>
    <message>
        <source>A new tile set</source>
        <translation>Nouveau jeu de tuiles</translation>
    </message>
    <message>
        <source>The tiles that maps are built from</source>
        <translation>Les tuiles dont les cartes sont composées</translation>
    </message>
    <message>
        <source>New sprites</source>
        <translation>Nouveaux sprites</translation>
    </message>
    <message>
        <source>A bank of sprites of 16 × 16 pixels</source>
        <translation>Une banque de sprites de 16 × 16 pixels</translation>
    </message>
</context>
<context>
    <name>NumberStepper</name>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>sur %1</translation>
    </message>
    <message>
        <source>%1: previous</source>
        <translation>%1&#xa0;: précédent</translation>
    </message>
    <message>
        <source>%1: next</source>
        <translation>%1&#xa0;: suivant</translation>
    </message>
</context>
<context>
    <name>OptionFields</name>
    <message>
        <source>As it is</source>
        <translation>Sans changement</translation>
    </message>
    <message>
        <source>Made from the name</source>
        <translation>Tirée du nom</translation>
    </message>
</context>
<context>
    <name>OutputDialog</name>
    <message>
        <source>Edit Output</source>
        <translation>Modifier la sortie</translation>
    </message>
    <message>
        <source>Below the project&apos;s folder, with / between folders</source>
        <translation>Sous le dossier du projet, avec / entre les dossiers</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Ressource</translation>
    </message>
    <message>
        <source>&amp;Form</source>
        <translation>F&amp;ormat</translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The project no longer has this asset</source>
        <translation>Le projet n’a plus cette ressource</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes: %1</source>
        <translation>
            <numerusform>%Ln octet&#xa0;: %1</numerusform>
            <numerusform>%Ln octets&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>Impossible&#xa0;: %1</translation>
    </message>
    <message>
        <source>“%1” is the file of another output</source>
        <translation>«&#xa0;%1&#xa0;» est le fichier d’une autre sortie</translation>
    </message>
</context>
<context>
    <name>OutputPreview</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln bytes)</source>
        <translation>
            <numerusform>%1 (%Ln octet)</numerusform>
            <numerusform>%1 (%Ln octets)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PaintOptionsBar</name>
    <message>
        <source>Size of the brush: [ makes it smaller, ] larger</source>
        <translation>Taille du pinceau&#xa0;: [ le rapetisse, ] l’agrandit</translation>
    </message>
    <message>
        <source>Size of the brush</source>
        <translation>Taille du pinceau</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
</context>
<context>
    <name>PaintSettings</name>
    <message>
        <source>Connect &amp;Strokes</source>
        <translation>&amp;Relier les traits</translation>
    </message>
    <message>
        <source>Draw without gaps, however fast the pointer moves</source>
        <translation>Dessine sans trous, même quand le pointeur va vite</translation>
    </message>
    <message>
        <source>&amp;Pixel Perfect Lines</source>
        <translation>Lignes &amp;pixel perfect</translation>
    </message>
    <message>
        <source>Draw freehand lines of one pixel without corners</source>
        <translation>Dessine à main levée des lignes d’un pixel, sans coins</translation>
    </message>
    <message>
        <source>S&amp;hade</source>
        <translation>&amp;Ombrer</translation>
    </message>
    <message>
        <source>Step pixels along the colours between foreground and background: the left button towards the foreground, the right button towards the background</source>
        <translation>Décale les pixels d’un pas parmi les couleurs entre premier plan et arrière-plan&#xa0;: bouton gauche vers le premier plan, bouton droit vers l’arrière-plan</translation>
    </message>
    <message>
        <source>&amp;Round Brush</source>
        <translation>Pinceau ro&amp;nd</translation>
    </message>
    <message>
        <source>Draw with a round brush</source>
        <translation>Dessine avec un pinceau rond</translation>
    </message>
    <message>
        <source>Mirror &amp;Left and Right</source>
        <translation>Symétrie &amp;gauche-droite</translation>
    </message>
    <message>
        <source>Draw on the left and on the right at once</source>
        <translation>Dessine à gauche et à droite en même temps</translation>
    </message>
    <message>
        <source>Mirror &amp;Top and Bottom</source>
        <translation>Symétrie &amp;haut-bas</translation>
    </message>
    <message>
        <source>Draw at the top and at the bottom at once</source>
        <translation>Dessine en haut et en bas en même temps</translation>
    </message>
</context>
<context>
    <name>PaletteColourCommand</name>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
</context>
<context>
    <name>PaletteDialog</name>
    <message>
        <source>New Palette</source>
        <translation>Nouvelle palette</translation>
    </message>
    <message>
        <source>Create a new palette</source>
        <translation>Créer une nouvelle palette</translation>
    </message>
    <message>
        <source>Palette Name</source>
        <translation>Nom de la palette</translation>
    </message>
    <message>
        <source>Copy colours from current palette</source>
        <translation>Copier les couleurs de la palette actuelle</translation>
    </message>
    <message>
        <source>Use the default Next palette</source>
        <translation>Utiliser la palette par défaut du Next</translation>
    </message>
    <message>
        <source>Create a blank palette</source>
        <translation>Créer une palette vierge</translation>
    </message>
    <message>
        <source>Palette names must be unique</source>
        <translation>Les noms de palettes doivent être uniques</translation>
    </message>
    <message>
        <source>Palette name is required</source>
        <translation>La palette a besoin d’un nom</translation>
    </message>
</context>
<context>
    <name>PaletteEditor</name>
    <message>
        <source>Darkens the selected colour(s)</source>
        <translation>Assombrit les couleurs sélectionnées</translation>
    </message>
    <message>
        <source>Lightens the selected colour(s)</source>
        <translation>Éclaircit les couleurs sélectionnées</translation>
    </message>
    <message>
        <source>Create a gradient</source>
        <translation>Crée un dégradé</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Assombrir</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Éclaircir</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Dégradé</translation>
    </message>
</context>
<context>
    <name>PaletteGrid</name>
    <message>
        <source>Palette Grid Colour Chooser</source>
        <translation>Sélecteur de couleurs de la palette</translation>
    </message>
    <message>
        <source>Index %1: $%2</source>
        <translation>Index %1&#xa0;: $%2</translation>
    </message>
    <message>
        <source>Colour %1, %2, transparent</source>
        <translation>Couleur %1, %2, transparente</translation>
    </message>
    <message>
        <source>Colour %1, %2</source>
        <translation>Couleur %1, %2</translation>
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
        <translation>&amp;Nouvelle palette</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>No Palette</source>
        <translation>Aucune palette</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>Import Palette</source>
        <translation>Importer une palette</translation>
    </message>
    <message>
        <source>Palette (*.pal *.npl)</source>
        <translation>Palette (*.pal *.npl)</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp)</source>
        <translation>Images (*.png *.bmp)</translation>
    </message>
    <message>
        <source>Export Palette</source>
        <translation>Exporter la palette</translation>
    </message>
</context>
<context>
    <name>PaletteNotice</name>
    <message>
        <source>There is no palette yet to show colours with.
Palette ▸ New Palette makes one.</source>
        <translation>Il n’y a pas encore de palette pour afficher des couleurs.
Palette ▸ Nouvelle palette en crée une.</translation>
    </message>
</context>
<context>
    <name>PaletteSelectorDialog</name>
    <message>
        <source>Swap Palette</source>
        <translation>Changer de palette</translation>
    </message>
    <message>
        <source>Show with another palette</source>
        <translation>Afficher avec une autre palette</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>There is no palette to choose; please create one first</source>
        <translation>Il n’y a aucune palette à choisir&#xa0;; créez-en d’abord une</translation>
    </message>
</context>
<context>
    <name>PaletteTools</name>
    <message>
        <source>Sort by &amp;Hue</source>
        <translation>Trier par &amp;teinte</translation>
    </message>
    <message>
        <source>Orders the selected entries from red over green to blue, greys first; pictures keep their look</source>
        <translation>Classe les entrées sélectionnées du rouge au bleu en passant par le vert, les gris d’abord&#xa0;; les images gardent leur aspect</translation>
    </message>
    <message>
        <source>Sort Palette</source>
        <translation>Trier la palette</translation>
    </message>
    <message>
        <source>Sort by &amp;Brightness</source>
        <translation>Trier par &amp;luminosité</translation>
    </message>
    <message>
        <source>Orders the selected entries from dark to light; pictures keep their look</source>
        <translation>Classe les entrées sélectionnées du sombre au clair&#xa0;; les images gardent leur aspect</translation>
    </message>
    <message>
        <source>Re&amp;verse</source>
        <translation>&amp;Inverser l’ordre</translation>
    </message>
    <message>
        <source>Puts the selected entries into the opposite order; pictures keep their look</source>
        <translation>Met les entrées sélectionnées dans l’ordre inverse&#xa0;; les images gardent leur aspect</translation>
    </message>
    <message>
        <source>Reverse Palette</source>
        <translation>Inverser la palette</translation>
    </message>
    <message>
        <source>E&amp;xchange Ends</source>
        <translation>Éc&amp;hanger les extrémités</translation>
    </message>
    <message>
        <source>Lets the first and the last selected entry change places; pictures keep their look</source>
        <translation>Échange les places de la première et de la dernière entrée sélectionnée&#xa0;; les images gardent leur aspect</translation>
    </message>
    <message>
        <source>Exchange Palette Entries</source>
        <translation>Échanger des entrées de palette</translation>
    </message>
    <message>
        <source>&amp;Gradient in Machine Steps</source>
        <translation>Dégradé par paliers de la &amp;machine</translation>
    </message>
    <message>
        <source>Spreads the selection from its first to its last colour, each channel in the nearest of its eight levels</source>
        <translation>Étale la sélection de sa première à sa dernière couleur, chaque canal au plus proche de ses huit niveaux</translation>
    </message>
    <message>
        <source>Mark &amp;Unused Entries</source>
        <translation>Marquer les entrées i&amp;nutilisées</translation>
    </message>
    <message>
        <source>Marks the entries that no pixel has</source>
        <translation>Marque les entrées qu’aucun pixel n’utilise</translation>
    </message>
    <message>
        <source>Mark E&amp;qual Entries</source>
        <translation>Marquer les entrées identi&amp;ques</translation>
    </message>
    <message>
        <source>Marks the entries whose colour others have, too</source>
        <translation>Marque les entrées dont la couleur figure aussi ailleurs</translation>
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
        <translation>Sélectionnez les entrées à permuter</translation>
    </message>
    <message>
        <source>Colour cycles whose entries are no longer next to each other were removed; undo brings them back</source>
        <translation>Les cycles de couleurs dont les entrées ne se suivent plus ont été retirés ; annuler les rétablit</translation>
    </message>
    <message>
        <source>The entries cannot change places: tiles and 4-bit sprites need theirs in their group of 16, and transparent entries, and those of tiles that are drawn with several palette offsets, must stay where they are</source>
        <translation>Les entrées ne peuvent pas être permutées&#xa0;: les tuiles et les sprites de 4 bits ont besoin des leurs dans leur groupe de 16, et les entrées transparentes, ainsi que celles des tuiles dessinées avec plusieurs décalages de palette, doivent rester en place</translation>
    </message>
    <message>
        <source>Colour C&amp;ycles…</source>
        <translation>C&amp;ycles de couleurs…</translation>
    </message>
    <message>
        <source>Ranges of entries whose colours go round, so that water flows and fires burn</source>
        <translation>Plages d’entrées dont les couleurs tournent, pour que l’eau coule et que le feu brûle</translation>
    </message>
    <message>
        <source>Move Palette Entries</source>
        <translation>Déplacer des entrées de la palette</translation>
    </message>
</context>
<context>
    <name>PaletteWindow</name>
    <message>
        <source>Palette Editor</source>
        <translation>Éditeur de palettes</translation>
    </message>
    <message>
        <source>No palette selected</source>
        <translation>Aucune palette sélectionnée</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>The palettes of the project</source>
        <translation>Les palettes du projet</translation>
    </message>
    <message>
        <source>Rename, copy, delete or sort the palette</source>
        <translation>Renommer, copier, supprimer ou trier la palette</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Palette: %1</source>
        <translation>Palette&#xa0;: %1</translation>
    </message>
    <message>
        <source>All colours are black. Choose one and change it below, or bring in others with Palette ▸ Import.</source>
        <translation>Toutes les couleurs sont noires. Choisissez-en une et modifiez-la en bas, ou importez-en d’autres avec Palette ▸ Importer.</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>It has %1 × %2 pixels; at most %3 × %3, or as many in another shape, can be read</source>
        <translation>Il fait %1 × %2 pixels&#xa0;; %3 × %3 au plus, ou autant dans une autre forme, peuvent être lus</translation>
    </message>
    <message>
        <source>Could not read the image file</source>
        <translation>Impossible de lire le fichier image</translation>
    </message>
    <message>
        <source>It is a pipe or a device, not a file</source>
        <translation>C’est un tube ou un périphérique, pas un fichier</translation>
    </message>
</context>
<context>
    <name>PictureImport</name>
    <message>
        <source>Tiles that lost colours: %1 of %2.
A tile shows 16 colours, and all of them together have 16 groups of 16. Reduce the colours of the picture, to 16 in each tile of 8 × 8 pixels and to fewer in all, and import it again.</source>
        <translation>Tuiles qui ont perdu des couleurs&#xa0;: %1 sur %2.
Une tuile montre 16 couleurs, et toutes ensemble ont 16 groupes de 16. Réduisez les couleurs de l’image à 16 par tuile de 8 × 8 pixels et à moins en tout, puis importez-la de nouveau.</translation>
    </message>
    <message>
        <source>Cannot import the image as it would need more than 512 tiles
%1 required</source>
        <translation>Impossible d’importer l’image&#xa0;: il faudrait plus de 512 tuiles
Nécessaires&#xa0;: %1</translation>
    </message>
    <message>
        <source>The image is smaller than a tile, which has 8 × 8 pixels</source>
        <translation>L’image est plus petite qu’une tuile, qui fait 8 × 8 pixels</translation>
    </message>
    <message>
        <source>Importing %1…</source>
        <translation>Importation de %1…</translation>
    </message>
    <message>
        <source>The project was closed meanwhile</source>
        <translation>Le projet a été fermé entre-temps</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
</context>
<context>
    <name>PicturePreview</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
</context>
<context>
    <name>PixelEditor</name>
    <message>
        <source>%1, %2  colour %3</source>
        <translation>%1, %2  couleur %3</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Show how the picture will look</source>
        <translation>Affiche le résultat à l’avance</translation>
    </message>
    <message>
        <source>Swap foreground and background</source>
        <translation>Permuter premier plan et arrière-plan</translation>
    </message>
    <message>
        <source>Smaller brush</source>
        <translation>Pinceau plus petit</translation>
    </message>
    <message>
        <source>Larger brush</source>
        <translation>Pinceau plus grand</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Remplacer la couleur</translation>
    </message>
    <message>
        <source>Gives pixels of the background colour the foreground colour, in the selection if there is one</source>
        <translation>Donne aux pixels de la couleur d’arrière-plan celle de premier plan, dans la sélection s’il y en a une</translation>
    </message>
    <message>
        <source>Brush from Selection</source>
        <translation>Pinceau depuis la sélection</translation>
    </message>
    <message>
        <source>Draws with what is selected, without its pixels of the background colour</source>
        <translation>Dessine avec ce qui est sélectionné, sans ses pixels de la couleur d’arrière-plan</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>What the preview shows</source>
        <translation>Ce que montre l’aperçu</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copie)</translation>
    </message>
    <message>
        <source>New palette added: %1</source>
        <translation>Nouvelle palette ajoutée&#xa0;: %1</translation>
    </message>
    <message>
        <source>New tile set added: %1</source>
        <translation>Nouveau jeu de tuiles ajouté&#xa0;: %1</translation>
    </message>
    <message>
        <source>New map added: %1</source>
        <translation>Nouvelle carte ajoutée&#xa0;: %1</translation>
    </message>
    <message>
        <source>New block set added: %1</source>
        <translation>Nouveau jeu de blocs ajouté&#xa0;: %1</translation>
    </message>
    <message>
        <source>New Sprite Bank Added</source>
        <translation>Nouvelle banque de sprites ajoutée</translation>
    </message>
</context>
<context>
    <name>ProjectActions</name>
    <message>
        <source>%1 (selection)</source>
        <translation>%1 (sélection)</translation>
    </message>
    <message>
        <source>Palette In Use</source>
        <translation>Palette utilisée</translation>
    </message>
    <message>
        <source>You may not delete this palette; it is used by one or more sprites, tiles or images</source>
        <translation>Vous ne pouvez pas supprimer cette palette&#xa0;; elle est utilisée par des sprites, des tuiles ou des images</translation>
    </message>
    <message>
        <source>Tile Set In Use</source>
        <translation>Jeu de tuiles utilisé</translation>
    </message>
    <message>
        <source>You may not delete this Tile Set; it is used by one or more maps</source>
        <translation>Vous ne pouvez pas supprimer ce jeu de tuiles&#xa0;; il est utilisé par une ou plusieurs cartes</translation>
    </message>
    <message>
        <source>Objects in use</source>
        <translation>Objets utilisés</translation>
    </message>
    <message>
        <source>You may not delete these objects; they are in use by one or more maps</source>
        <translation>Vous ne pouvez pas supprimer ces objets&#xa0;; ils sont utilisés par une ou plusieurs cartes</translation>
    </message>
    <message>
        <source>The file is neither a palette nor a picture that can be read</source>
        <translation>Le fichier n’est ni une palette ni une image lisible</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n colours; the palette takes the first %1 of them</source>
        <translation>
            <numerusform>L’image a %n couleur&#xa0;; la palette en prend les %1 premières</numerusform>
            <numerusform>L’image a %n couleurs&#xa0;; la palette en prend les %1 premières</numerusform>
        </translation>
    </message>
    <message>
        <source>New Palette for the Others</source>
        <translation>Nouvelle palette pour les autres</translation>
    </message>
    <message>
        <source>%1, more</source>
        <translation>%1, suite</translation>
    </message>
    <message>
        <source>Could not make sprites of the image file</source>
        <translation>Impossible de créer des sprites à partir du fichier image</translation>
    </message>
    <message>
        <source>Could not import the sprite data</source>
        <translation>Impossible d’importer les données de sprites</translation>
    </message>
    <message>
        <source>Import Incomplete</source>
        <translation>Importation incomplète</translation>
    </message>
</context>
<context>
    <name>ProjectController</name>
    <message>
        <source>Opening %1…</source>
        <translation>Ouverture de %1…</translation>
    </message>
    <message>
        <source>Unable to create a new project</source>
        <translation>Impossible de créer un nouveau projet</translation>
    </message>
    <message>
        <source>Recovering the project…</source>
        <translation>Récupération du projet…</translation>
    </message>
    <message>
        <source>loading...</source>
        <translation>chargement...</translation>
    </message>
    <message>
        <source>Saving %1…</source>
        <translation>Enregistrement de %1…</translation>
    </message>
    <message>
        <source>What is kept beside the project cannot be read: %1
The project itself is whole.
%2</source>
        <translation>Les données annexes du projet ne peuvent pas être lues&#xa0;: %1
Le projet lui-même est intact.
%2</translation>
    </message>
    <message>
        <source>What is kept beside the project cannot be written: %1
%2</source>
        <translation>Les données annexes du projet ne peuvent pas être écrites&#xa0;: %1
%2</translation>
    </message>
    <message>
        <source>Another program removed or renamed the file of this project, which saving writes again:
%1</source>
        <translation>Un autre programme a supprimé ou renommé le fichier de ce projet&#xa0;; l’enregistrement le réécrira&#xa0;:
%1</translation>
    </message>
    <message>
        <source>The file cannot be loaded, and the project stays as it is here: %1</source>
        <translation>Le fichier ne peut pas être chargé, et le projet reste tel qu’il est ici&#xa0;: %1</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>Save the changes to %1 before closing it?</source>
        <translation>Enregistrer les modifications de %1 avant de le fermer&#xa0;?</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <source>Project file (*.quenmora)</source>
        <translation>Fichier de projet (*.quenmora)</translation>
    </message>
    <message>
        <source>The sample project is not installed</source>
        <translation>Le projet d’exemple n’est pas installé</translation>
    </message>
</context>
<context>
    <name>ProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation>Nouveau projet</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>Créer un nouveau projet</translation>
    </message>
    <message>
        <source>Project &amp;name</source>
        <translation>&amp;Nom du projet</translation>
    </message>
</context>
<context>
    <name>ProjectDocument</name>
    <message>
        <source>Failed to load tile image %1</source>
        <translation>Échec du chargement de l’image de tuiles %1</translation>
    </message>
    <message>
        <source>Failed to load tile map anim for map %1</source>
        <translation>Échec du chargement de l’animation de tuiles de la carte %1</translation>
    </message>
    <message>
        <source>Invalid project file</source>
        <translation>Fichier de projet non valide</translation>
    </message>
    <message>
        <source>Project file is from a newer version of Quenmora</source>
        <translation>Le fichier de projet provient d’une version plus récente de Quenmora</translation>
    </message>
    <message>
        <source>Project has a missing sprite anim</source>
        <translation>Il manque une animation de sprites au projet</translation>
    </message>
    <message>
        <source>Failed to load tile set tileImage &quot;%1&quot; from project file</source>
        <translation>Échec du chargement de l’image (tileImage) du jeu de tuiles «&#xa0;%1&#xa0;» depuis le fichier de projet</translation>
    </message>
    <message>
        <source>Error setting tile set anim - %1</source>
        <translation>Erreur lors de la définition de l’animation du jeu de tuiles - %1</translation>
    </message>
</context>
<context>
    <name>ProjectExport</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more</source>
        <translation>
            <numerusform>… et encore %n</numerusform>
            <numerusform>… et encore %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The recipe could not be saved</source>
        <translation>La recette n’a pas pu être enregistrée</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Erreur d’enregistrement</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Un problème est survenu pendant l’exportation</translation>
    </message>
</context>
<context>
    <name>ProjectMenu</name>
    <message>
        <source>Import A&amp;gain</source>
        <translation>Importer à nou&amp;veau</translation>
    </message>
    <message>
        <source>There was a problem exporting data</source>
        <translation>Un problème est survenu pendant l’exportation</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Erreur d’enregistrement</translation>
    </message>
</context>
<context>
    <name>ProjectStore</name>
    <message>
        <source>Invalid project file</source>
        <translation>Fichier de projet non valide</translation>
    </message>
    <message>
        <source>Project loaded</source>
        <translation>Projet chargé</translation>
    </message>
    <message>
        <source>Could not create the project file</source>
        <translation>Impossible de créer le fichier de projet</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>Impossible d’écrire %1</translation>
    </message>
    <message>
        <source>Could not finish writing the project file</source>
        <translation>Impossible d’achever l’écriture du fichier de projet</translation>
    </message>
    <message>
        <source>Saved %1 to %2</source>
        <translation>%1 enregistré dans %2</translation>
    </message>
    <message>
        <source>Invalid map id</source>
        <translation>Id de carte non valide</translation>
    </message>
    <message>
        <source>Map exported</source>
        <translation>Carte exportée</translation>
    </message>
    <message>
        <source>Exporting the map failed</source>
        <translation>L’exportation de la carte a échoué</translation>
    </message>
    <message>
        <source>Invalid tile set id</source>
        <translation>Id de jeu de tuiles non valide</translation>
    </message>
    <message>
        <source>Tile set exported</source>
        <translation>Jeu de tuiles exporté</translation>
    </message>
    <message>
        <source>Exporting the tile set failed</source>
        <translation>L’exportation du jeu de tuiles a échoué</translation>
    </message>
    <message>
        <source>Invalid palette id</source>
        <translation>Id de palette non valide</translation>
    </message>
    <message>
        <source>Palette exported</source>
        <translation>Palette exportée</translation>
    </message>
    <message>
        <source>Exporting the palette failed</source>
        <translation>L’exportation de la palette a échoué</translation>
    </message>
</context>
<context>
    <name>ProjectTree</name>
    <message>
        <source>Palettes</source>
        <translation>Palettes</translation>
    </message>
    <message>
        <source>Tile Sets</source>
        <translation>Jeux de tuiles</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objets</translation>
    </message>
    <message>
        <source>Sprites</source>
        <translation>Sprites</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Cartes</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Tile Set</source>
        <translation>Jeu de tuiles</translation>
    </message>
    <message>
        <source>Map Objects</source>
        <translation>Objets de carte</translation>
    </message>
    <message>
        <source>Sprite Bank</source>
        <translation>Banque de sprites</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Import A&amp;gain</source>
        <translation>Importer à nou&amp;veau</translation>
    </message>
</context>
<context>
    <name>ProjectWindow</name>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>No project loaded</source>
        <translation>Aucun projet chargé</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existe déjà.
Voulez-vous le remplacer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>RecipeTable</name>
    <message>
        <source>1 page of 8 KiB</source>
        <translation>1 page de 8 Kio</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pages of 8 KiB</source>
        <translation>
            <numerusform>%Ln page de 8 Kio</numerusform>
            <numerusform>%Ln pages de 8 Kio</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>1 bank of 16 KiB</source>
        <translation>1 banque de 16 Kio</translation>
    </message>
    <message numerus="yes">
        <source>%Ln banks of 16 KiB</source>
        <translation>
            <numerusform>%Ln banque de 16 Kio</numerusform>
            <numerusform>%Ln banques de 16 Kio</numerusform>
        </translation>
    </message>
    <message>
        <source>…</source>
        <translation>…</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouvelle</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifiée</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Inchangée</translation>
    </message>
    <message>
        <source>Cannot be: %1</source>
        <translation>Impossible&#xa0;: %1</translation>
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
        <translation>Pages de 8 Kio et banques de 16 Kio qu’occupent les octets</translation>
    </message>
    <message>
        <source>Bytes in the game; source text is longer</source>
        <translation>Octets dans le jeu&#xa0;; le texte source est plus long</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Ressource</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>8K / 16K</source>
        <translation>8K / 16K</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
</context>
<context>
    <name>RecoveryKeeper</name>
    <message>
        <source>%1 cannot be written to</source>
        <translation>Impossible d’écrire dans %1</translation>
    </message>
    <message>
        <source>No copy for the time after a crash could be written: %1</source>
        <translation>Aucune copie de secours en cas de plantage n’a pu être écrite&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>RecoveryList</name>
    <message>
        <source>Never saved</source>
        <translation>Jamais enregistré</translation>
    </message>
    <message>
        <source>As it was today at %1</source>
        <translation>État d’aujourd’hui à %1</translation>
    </message>
    <message>
        <source>As it was yesterday at %1</source>
        <translation>État d’hier à %1</translation>
    </message>
    <message>
        <source>As it was on %1 at %2</source>
        <translation>État du %1 à %2</translation>
    </message>
    <message>
        <source>A project</source>
        <translation>Un projet</translation>
    </message>
    <message>
        <source>The copy is damaged and was put aside:</source>
        <translation>La copie est endommagée et a été mise de côté&#xa0;:</translation>
    </message>
    <message>
        <source>Discard Copy</source>
        <translation>Abandonner la copie</translation>
    </message>
    <message>
        <source>Discard what can be recovered of %1?</source>
        <translation>Abandonner ce qui est récupérable de %1&#xa0;?</translation>
    </message>
    <message>
        <source>What was not saved is lost then.</source>
        <translation>Ce qui n’a pas été enregistré sera alors perdu.</translation>
    </message>
    <message>
        <source>Not saved when Quenmora stopped</source>
        <translation>Non enregistré à l’arrêt de Quenmora</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>Recover %1</source>
        <translation>Récupérer %1</translation>
    </message>
    <message>
        <source>Opens the project with the changes that were not saved</source>
        <translation>Ouvre le projet avec les modifications non enregistrées</translation>
    </message>
    <message>
        <source>Discard…</source>
        <translation>Abandonner…</translation>
    </message>
    <message>
        <source>Discard %1</source>
        <translation>Abandonner %1</translation>
    </message>
</context>
<context>
    <name>RectangleCanvasTool</name>
    <message>
        <source>Filled Rectangle</source>
        <translation>Rectangle plein</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
</context>
<context>
    <name>ReductionBox</name>
    <message>
        <source>No, as they come</source>
        <translation>Non, telles quelles</translation>
    </message>
    <message>
        <source>To the nearest</source>
        <translation>À la plus proche</translation>
    </message>
    <message>
        <source>In an ordered pattern</source>
        <translation>Par motif ordonné</translation>
    </message>
    <message>
        <source>With error diffusion</source>
        <translation>Par diffusion d’erreur</translation>
    </message>
    <message>
        <source>Colours are found for the whole picture; else those that come last take the nearest of the others</source>
        <translation>Les couleurs sont cherchées pour toute l’image&#xa0;; sinon celles qui viennent en dernier prennent la plus proche des autres</translation>
    </message>
    <message>
        <source>Colours of the machine: %1 before, %2 after</source>
        <translation>Couleurs de la machine&#xa0;: %1 avant, %2 après</translation>
    </message>
    <message>
        <source>%1; mean error: %2 levels</source>
        <translation>%1&#xa0;; erreur moyenne en niveaux&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1; none is lost</source>
        <translation>%1&#xa0;; aucune perte</translation>
    </message>
</context>
<context>
    <name>Request</name>
    <message>
        <source>Do this recipe, not the one beside the project.</source>
        <translation>Exécuter cette recette, et non celle à côté du projet.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>Write below this folder, not below the project&apos;s.</source>
        <translation>Écrire sous ce dossier, et non sous celui du projet.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>Write nothing, but say what would be written.</source>
        <translation>Ne rien écrire, mais dire ce qui le serait.</translation>
    </message>
    <message>
        <source>Tell make or ninja in this file what was made of what.</source>
        <translation>Indiquer à make ou ninja dans ce fichier ce qui a été fait à partir de quoi.</translation>
    </message>
    <message>
        <source>Say nothing unless something fails.</source>
        <translation>Ne rien dire sauf en cas d’échec.</translation>
    </message>
    <message>
        <source>Without a recipe: write the asset of this name or id …</source>
        <translation>Sans recette&#xa0;: écrire la ressource de ce nom ou de cet id …</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>… in this form …</source>
        <translation>… dans ce format …</translation>
    </message>
    <message>
        <source>id</source>
        <translation>id</translation>
    </message>
    <message>
        <source>… with this option of the form, which may be given again for others …</source>
        <translation>… avec cette option du format, à répéter pour d’autres …</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>clé=valeur</translation>
    </message>
    <message>
        <source>… to this file.</source>
        <translation>… dans ce fichier.</translation>
    </message>
    <message>
        <source>List the assets: kind, id and name.</source>
        <translation>Lister les ressources&#xa0;: type, id et nom.</translation>
    </message>
    <message>
        <source>List the forms and their options.</source>
        <translation>Lister les formats et leurs options.</translation>
    </message>
    <message>
        <source>Describe the whole project as text, for git diff.</source>
        <translation>Décrire tout le projet en texte, pour git diff.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>A project file, as game.quenmora.</source>
        <translation>Un fichier de projet, comme game.quenmora.</translation>
    </message>
    <message>
        <source>Writes the graphics of a Quenmora project in the forms that a game takes, as its recipe says, the file
game.quenmora-export.json beside game.quenmora, which File &gt; Export Project in the editor makes.
Files whose bytes stay the same are not touched.</source>
        <translation>Écrit les graphismes d’un projet Quenmora dans les formats que charge un jeu, selon sa recette, le fichier
game.quenmora-export.json à côté de game.quenmora, que crée Fichier &gt; Exporter le projet dans l’éditeur.
Les fichiers dont les octets restent les mêmes ne sont pas touchés.</translation>
    </message>
    <message>
        <source>--%1 and --%2 do not go together</source>
        <translation>--%1 et --%2 sont incompatibles</translation>
    </message>
    <message>
        <source>--%1 takes KEY=VALUE, not “%2”</source>
        <translation>--%1 attend CLÉ=VALEUR, et non «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>--%1 is there twice</source>
        <translation>--%1 est donné deux fois</translation>
    </message>
    <message>
        <source>--%1 needs a value</source>
        <translation>--%1 demande une valeur</translation>
    </message>
    <message>
        <source>--%1 means nothing here</source>
        <translation>--%1 ne signifie rien ici</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 demande --%2</translation>
    </message>
    <message>
        <source>“%1” is one argument too many</source>
        <translation>«&#xa0;%1&#xa0;» est un argument de trop</translation>
    </message>
    <message>
        <source>A project file is missing</source>
        <translation>Il manque un fichier de projet</translation>
    </message>
    <message>
        <source>Write a small picture of the project, as file managers show, to this PNG file …</source>
        <translation>Écrire une petite image du projet, comme en montrent les gestionnaires de fichiers, dans ce fichier PNG …</translation>
    </message>
    <message>
        <source>… of at most so many pixels along its sides; 256 without this.</source>
        <translation>… d’au plus autant de pixels par côté&#xa0;; 256 sans cela.</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>--%1 takes a number from 1 to %2, not “%3”</source>
        <translation>--%1 attend un nombre de 1 à %2, et non «&#xa0;%3&#xa0;»</translation>
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
        <translation>Niveau de rouge</translation>
    </message>
    <message>
        <source>G</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Green level</source>
        <translation>Niveau de vert</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue level</source>
        <translation>Niveau de bleu</translation>
    </message>
</context>
<context>
    <name>ScrollBar</name>
    <message>
        <source>Add a column on the left</source>
        <translation>Ajouter une colonne à gauche</translation>
    </message>
    <message>
        <source>Add a row at the top</source>
        <translation>Ajouter une ligne en haut</translation>
    </message>
    <message>
        <source>Remove the column on the left</source>
        <translation>Retirer la colonne de gauche</translation>
    </message>
    <message>
        <source>Remove the row at the top</source>
        <translation>Retirer la ligne du haut</translation>
    </message>
    <message>
        <source>Remove the column on the right</source>
        <translation>Retirer la colonne de droite</translation>
    </message>
    <message>
        <source>Remove the row at the bottom</source>
        <translation>Retirer la ligne du bas</translation>
    </message>
    <message>
        <source>Add a column on the right</source>
        <translation>Ajouter une colonne à droite</translation>
    </message>
    <message>
        <source>Add a row at the bottom</source>
        <translation>Ajouter une ligne en bas</translation>
    </message>
</context>
<context>
    <name>SeveralOutputsDialog</name>
    <message>
        <source>Edit Outputs</source>
        <translation>Modifier les sorties</translation>
    </message>
    <message numerus="yes">
        <source>What %Ln outputs are to have alike</source>
        <translation>
            <numerusform>Réglages de %Ln sortie</numerusform>
            <numerusform>Réglages communs à %Ln sorties</numerusform>
        </translation>
    </message>
    <message>
        <source>Please choose what is to change</source>
        <translation>Choisissez ce qui doit changer</translation>
    </message>
</context>
<context>
    <name>ShortcutsDialog</name>
    <message>
        <source>A&amp;dd Key</source>
        <translation>A&amp;jouter une touche</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Réinitialiser</translation>
    </message>
    <message>
        <source>&amp;Take It Away There</source>
        <translation>L’&amp;y retirer</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Rechercher par nom</translation>
    </message>
    <message>
        <source>or by &amp;keys:</source>
        <translation>ou par &amp;touches&#xa0;:</translation>
    </message>
    <message>
        <source>Search by keys</source>
        <translation>Rechercher par touches</translation>
    </message>
    <message>
        <source>Press keys to see what they do</source>
        <translation>Appuyez sur des touches pour voir ce qu’elles font</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Où</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Leaves these keys to this command alone</source>
        <translation>Laisse ces touches à cette seule commande</translation>
    </message>
    <message>
        <source>Gives the command its usual keys</source>
        <translation>Rend à la commande ses touches habituelles</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>Réinitialiser to&amp;ut</translation>
    </message>
    <message>
        <source>Gives all commands their usual keys</source>
        <translation>Rend à toutes les commandes leurs touches habituelles</translation>
    </message>
    <message>
        <source>Another command has these keys, too</source>
        <translation>Une autre commande a aussi ces touches</translation>
    </message>
    <message>
        <source>Keys of “%1”</source>
        <translation>Touches de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Press the keys that shall do it</source>
        <translation>Appuyez sur les touches qui doivent le faire</translation>
    </message>
    <message>
        <source>%1 is a key of “%2” (%3), too. Neither would do anything.</source>
        <translation>%1 est aussi une touche de «&#xa0;%2&#xa0;» (%3). Aucune des deux commandes ne ferait rien.</translation>
    </message>
</context>
<context>
    <name>ShortcutsFile</name>
    <message>
        <source>The file is too large</source>
        <translation>Le fichier est trop grand</translation>
    </message>
    <message>
        <source>The file does not hold keys by command</source>
        <translation>Le fichier ne contient pas de touches par commande</translation>
    </message>
</context>
<context>
    <name>SlicingProgress</name>
    <message>
        <source>Processing image</source>
        <translation>Traitement de l’image</translation>
    </message>
</context>
<context>
    <name>SpriteAnim</name>
    <message>
        <source>New Sprite</source>
        <translation>Nouveau sprite</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copie)</translation>
    </message>
</context>
<context>
    <name>SpriteDialog</name>
    <message>
        <source>New Sprites</source>
        <translation>Nouveaux sprites</translation>
    </message>
    <message>
        <source>Create a new sprite bank</source>
        <translation>Créer une nouvelle banque de sprites</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>Pr&amp;ofondeur</translation>
    </message>
    <message>
        <source>New palette of the same name</source>
        <translation>Nouvelle palette du même nom</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::AnimationEditorWidget</name>
    <message>
        <source>Set the frame width in sprites</source>
        <translation>Largeur de la frame en sprites</translation>
    </message>
    <message>
        <source>Set the frame height in sprites</source>
        <translation>Hauteur de la frame en sprites</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::ImportBinaryDialog</name>
    <message>
        <source>Import Sprites</source>
        <translation>Importer des sprites</translation>
    </message>
    <message>
        <source>Make sprites of raw data</source>
        <translation>Créer des sprites à partir de données brutes</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>Pr&amp;ofondeur</translation>
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
        <translation>%L1 dans le fichier</translation>
    </message>
    <message>
        <source>New standard palette</source>
        <translation>Nouvelle palette standard</translation>
    </message>
    <message>
        <source>There is no sprite in this file, or it cannot be read</source>
        <translation>Ce fichier ne contient aucun sprite ou ne peut pas être lu</translation>
    </message>
    <message>
        <source>The file holds more sprites than fit into a bank</source>
        <translation>Le fichier contient plus de sprites qu’une banque ne peut en recevoir</translation>
    </message>
</context>
<context>
    <name>SpriteEditor::ImportImageDialog</name>
    <message>
        <source>Import Sprites</source>
        <translation>Importer des sprites</translation>
    </message>
    <message>
        <source>Make sprites of a picture</source>
        <translation>Créer des sprites à partir d’une image</translation>
    </message>
    <message>
        <source>Nearest colours of a &amp;palette</source>
        <translation>Couleurs les plus proches d’&amp;une palette</translation>
    </message>
    <message>
        <source>N&amp;ew palette, and every sprite once</source>
        <translation>Nouvelle palette, chaque &amp;sprite une seule fois</translation>
    </message>
    <message>
        <source>&amp;Keep the machine&apos;s colours</source>
        <translation>&amp;Garder les couleurs de la machine</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Every colour of the picture is one that the Next has, and stays exactly that</source>
        <translation>Toutes les couleurs de l’image existent sur le Next et restent exactement les mêmes</translation>
    </message>
    <message>
        <source>&amp;Depth</source>
        <translation>Pr&amp;ofondeur</translation>
    </message>
    <message>
        <source>&amp;Fewer colours</source>
        <translation>&amp;Réduire les couleurs</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
    <message>
        <source>Reducing %1…</source>
        <translation>Réduction de %1…</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Aucune image</translation>
    </message>
    <message>
        <source>%1 × %2 sprites, colours: %3, and transparent pixels</source>
        <translation>%1 × %2 sprites, couleurs&#xa0;: %3, et des pixels transparents</translation>
    </message>
    <message>
        <source>%1 × %2 sprites, colours: %3</source>
        <translation>%1 × %2 sprites, couleurs&#xa0;: %3</translation>
    </message>
    <message>
        <source>There is room for %1; the others take the nearest of these</source>
        <translation>Il y a de la place pour %1&#xa0;; les autres prennent la plus proche</translation>
    </message>
    <message>
        <source>The file is not a picture that can be read</source>
        <translation>Le fichier n’est pas une image lisible</translation>
    </message>
    <message>
        <source>The picture is smaller than a sprite, which has 16 × 16 pixels</source>
        <translation>L’image est plus petite qu’un sprite, qui fait 16 × 16 pixels</translation>
    </message>
    <message>
        <source>The picture holds more sprites than fit into a bank</source>
        <translation>L’image contient plus de sprites qu’une banque ne peut en recevoir</translation>
    </message>
    <message>
        <source>There is a palette of this name already; please choose another name</source>
        <translation>Une palette porte déjà ce nom&#xa0;; choisissez un autre nom</translation>
    </message>
    <message numerus="yes">
        <source>The picture has %n colours; 4-bit sprites show 15 beside the transparent one</source>
        <translation>
            <numerusform>L’image a %n couleur&#xa0;; les sprites de 4 bits en affichent 15 en plus de la transparente</numerusform>
            <numerusform>L’image a %n couleurs&#xa0;; les sprites de 4 bits en affichent 15 en plus de la transparente</numerusform>
        </translation>
    </message>
    <message>
        <source>The colours lie in several groups of 16 of the palette; 4-bit sprites show one group</source>
        <translation>Les couleurs sont dans plusieurs groupes de 16 de la palette&#xa0;; les sprites de 4 bits n’affichent qu’un groupe</translation>
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
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Copier l’image</translation>
    </message>
    <message>
        <source>Paste Image</source>
        <translation>Coller l’image</translation>
    </message>
    <message>
        <source>Add Sprite</source>
        <translation>Ajouter un sprite</translation>
    </message>
    <message>
        <source>Sprite %1</source>
        <translation>Sprite %1</translation>
    </message>
    <message>
        <source>Add a sprite</source>
        <translation>Ajouter un sprite</translation>
    </message>
</context>
<context>
    <name>SpriteImport</name>
    <message>
        <source>Importing %1…</source>
        <translation>Importation de %1…</translation>
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
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>Changer de &amp;palette</translation>
    </message>
    <message>
        <source>&amp;Export Data</source>
        <translation>&amp;Exporter les données</translation>
    </message>
    <message>
        <source>Select a file to import</source>
        <translation>Choisir un fichier à importer</translation>
    </message>
    <message>
        <source>Images (*.png *.bmp)</source>
        <translation>Images (*.png *.bmp)</translation>
    </message>
    <message>
        <source>Next sprites (*.spr)</source>
        <translation>Sprites Next (*.spr)</translation>
    </message>
    <message>
        <source>Export Sprite Data</source>
        <translation>Exporter les données des sprites</translation>
    </message>
    <message>
        <source>Next Sprites (*.spr)</source>
        <translation>Sprites Next (*.spr)</translation>
    </message>
</context>
<context>
    <name>SpriteWindow</name>
    <message>
        <source>Sprite Editor</source>
        <translation>Éditeur de sprites</translation>
    </message>
    <message>
        <source>No sprites selected</source>
        <translation>Aucun sprite sélectionné</translation>
    </message>
    <message>
        <source>Onion Skin</source>
        <translation>Pelure d’oignon</translation>
    </message>
    <message>
        <source>Show the sprite of the frame before faintly over this one</source>
        <translation>Affiche le sprite de la frame précédente en transparence sur celui-ci</translation>
    </message>
    <message>
        <source>Replace Colour in All Sprites</source>
        <translation>Remplacer la couleur dans tous les sprites</translation>
    </message>
    <message>
        <source>Does that in all sprites of the bank</source>
        <translation>Le fait dans tous les sprites de la banque</translation>
    </message>
    <message>
        <source>Pixels of this index are not drawn on the Next, whatever their colour</source>
        <translation>Les pixels de cet index ne sont pas dessinés sur le Next, quelle que soit leur couleur</translation>
    </message>
    <message>
        <source>Transparent index</source>
        <translation>Index de transparence</translation>
    </message>
    <message>
        <source>Add Sprite</source>
        <translation>Ajouter un sprite</translation>
    </message>
    <message>
        <source>Delete Sprite</source>
        <translation>Supprimer le sprite</translation>
    </message>
    <message>
        <source>Clear Sprite</source>
        <translation>Vider le sprite</translation>
    </message>
    <message>
        <source>Copy Sprite</source>
        <translation>Copier le sprite</translation>
    </message>
    <message>
        <source>Move Sprite</source>
        <translation>Déplacer le sprite</translation>
    </message>
    <message>
        <source>Sprites: %1</source>
        <translation>Sprites&#xa0;: %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Répétition</translation>
    </message>
    <message>
        <source>No animation shows this sprite</source>
        <translation>Aucune animation n’affiche ce sprite</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Remplacer la couleur</translation>
    </message>
    <message>
        <source>Transparent Index</source>
        <translation>Index de transparence</translation>
    </message>
    <message>
        <source>Draw the first sprite here; the last place of the list below adds another</source>
        <translation>Dessinez ici le premier sprite&#xa0;; la dernière place de la liste en bas en ajoute un autre</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>A double click in the Project dock opens an asset</source>
        <translation>Un double clic dans le panneau Projet ouvre une ressource</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Projets récents</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Nouveau projet</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>Read the guide</source>
        <translation>Lire le guide</translation>
    </message>
    <message>
        <source>To look at and to play with</source>
        <translation>À regarder et à essayer</translation>
    </message>
    <message>
        <source>The sample project</source>
        <translation>Le projet d’exemple</translation>
    </message>
    <message>
        <source>A level, sprites and a title screen</source>
        <translation>Un niveau, des sprites et un écran de titre</translation>
    </message>
</context>
<context>
    <name>TileAnimation</name>
    <message>
        <source>Blocks!</source>
        <translation>Blocs&#xa0;!</translation>
    </message>
    <message>
        <source>%1 (Copy)</source>
        <translation>%1 (copie)</translation>
    </message>
</context>
<context>
    <name>TileAnimationDialog</name>
    <message>
        <source>New Map Objects</source>
        <translation>Nouveaux objets de carte</translation>
    </message>
    <message>
        <source>Create map objects: animations for maps</source>
        <translation>Créer des objets de carte&#xa0;: des animations pour les cartes</translation>
    </message>
    <message>
        <source>&amp;Tile set</source>
        <translation>&amp;Jeu de tuiles</translation>
    </message>
    <message>
        <source>Map objects are made of the tiles of a tile set; please create a tile set first</source>
        <translation>Les objets de carte se composent des tuiles d’un jeu de tuiles&#xa0;; créez d’abord un jeu de tuiles</translation>
    </message>
</context>
<context>
    <name>TileAttributesEditor</name>
    <message>
        <source>Solid top</source>
        <translation>Solide en haut</translation>
    </message>
    <message>
        <source>Solid left</source>
        <translation>Solide à gauche</translation>
    </message>
    <message>
        <source>Solid right</source>
        <translation>Solide à droite</translation>
    </message>
    <message>
        <source>Solid bottom</source>
        <translation>Solide en bas</translation>
    </message>
    <message>
        <source>Deadly</source>
        <translation>Mortelle</translation>
    </message>
    <message>
        <source>Collectible</source>
        <translation>À ramasser</translation>
    </message>
    <message>
        <source>Ladder</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Door</source>
        <translation>Porte</translation>
    </message>
    <message>
        <source>Solid on all edges</source>
        <translation>Solide sur tous les bords</translation>
    </message>
    <message>
        <source>A number of your own for the game</source>
        <translation>Un nombre de votre choix pour le jeu</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>TileEditor::ExportDialog</name>
    <message>
        <source>Export Tiles</source>
        <translation>Exporter les tuiles</translation>
    </message>
    <message>
        <source>&amp;Rotate</source>
        <translation>Pi&amp;voter</translation>
    </message>
    <message>
        <source>Export the pixels of tiles</source>
        <translation>Exporter les pixels des tuiles</translation>
    </message>
    <message>
        <source>Writes the columns of a tile as its rows</source>
        <translation>Écrit les colonnes d’une tuile comme ses lignes</translation>
    </message>
    <message>
        <source>&amp;First tile</source>
        <translation>&amp;Première tuile</translation>
    </message>
    <message>
        <source>&amp;Last tile</source>
        <translation>&amp;Dernière tuile</translation>
    </message>
    <message>
        <source>Export Tiles: %1</source>
        <translation>Exporter les tuiles&#xa0;: %1</translation>
    </message>
    <message>
        <source>The tile set has no tiles</source>
        <translation>Le jeu de tuiles n’a pas de tuiles</translation>
    </message>
    <message>
        <source>The first tile comes after the last one</source>
        <translation>La première tuile vient après la dernière</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>&amp;Tiles</source>
        <translation>&amp;Tuiles</translation>
    </message>
    <message>
        <source>&amp;New Tile Set</source>
        <translation>&amp;Nouveau jeu de tuiles</translation>
    </message>
    <message>
        <source>&amp;Create Animations</source>
        <translation>&amp;Créer des animations</translation>
    </message>
    <message>
        <source>&amp;Swap Palette</source>
        <translation>Changer de &amp;palette</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>Export &amp;Attributes</source>
        <translation>Exporter les &amp;attributs</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>Ne&amp;xt Tile</source>
        <translation>Tuile &amp;suivante</translation>
    </message>
    <message>
        <source>&amp;Previous Tile</source>
        <translation>Tuile p&amp;récédente</translation>
    </message>
    <message>
        <source>Tile List &amp;Magnification</source>
        <translation>Zoo&amp;m de la liste de tuiles</translation>
    </message>
    <message>
        <source>&amp;Spectrum Chars</source>
        <translation>Caractères Spectr&amp;um</translation>
    </message>
    <message>
        <source>Export Tiles</source>
        <translation>Exporter les tuiles</translation>
    </message>
    <message>
        <source>Tile Data (*.bin)</source>
        <translation>Données de tuiles (*.bin)</translation>
    </message>
    <message>
        <source>Export tile attributes</source>
        <translation>Exporter les attributs des tuiles</translation>
    </message>
    <message>
        <source>ASM Code (*.asm)</source>
        <translation>Code ASM (*.asm)</translation>
    </message>
    <message>
        <source>Binary Data (*.bin)</source>
        <translation>Données binaires (*.bin)</translation>
    </message>
</context>
<context>
    <name>TilePickerGrid</name>
    <message>
        <source>Tiles</source>
        <translation>Tuiles</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Copy Image</source>
        <translation>Copier l’image</translation>
    </message>
    <message>
        <source>Paste Image</source>
        <translation>Coller l’image</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1x</translation>
    </message>
    <message>
        <source>Index: %1
Palette Offset: %2</source>
        <translation>Index&#xa0;: %1
Décalage de palette&#xa0;: %2</translation>
    </message>
    <message>
        <source>Tile %1, palette offset %2</source>
        <translation>Tuile %1, décalage de palette %2</translation>
    </message>
</context>
<context>
    <name>TilePickerTool</name>
    <message>
        <source>Tiles</source>
        <translation>Tuiles</translation>
    </message>
    <message>
        <source>No active tile set</source>
        <translation>Aucun jeu de tuiles actif</translation>
    </message>
    <message>
        <source>Tiles: %1</source>
        <translation>Tuiles&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>TileSet</name>
    <message>
        <source>Copy Tile</source>
        <translation>Copier la tuile</translation>
    </message>
    <message>
        <source>Delete Tile</source>
        <translation>Supprimer la tuile</translation>
    </message>
    <message>
        <source>Insert Tile</source>
        <translation>Insérer une tuile</translation>
    </message>
    <message>
        <source>Move Tile</source>
        <translation>Déplacer la tuile</translation>
    </message>
</context>
<context>
    <name>TileSetDialog</name>
    <message>
        <source>New Tile Set</source>
        <translation>Nouveau jeu de tuiles</translation>
    </message>
    <message>
        <source>Create a new tile set</source>
        <translation>Créer un nouveau jeu de tuiles</translation>
    </message>
    <message>
        <source>&amp;High resolution</source>
        <translation>&amp;Haute résolution</translation>
    </message>
    <message>
        <source>For the tilemap of 80 columns, whose pixels are half as wide</source>
        <translation>Pour la tilemap de 80 colonnes, dont les pixels sont deux fois moins larges</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>&amp;Tiles</source>
        <translation>&amp;Tuiles</translation>
    </message>
    <message>
        <source>New palette of the same name</source>
        <translation>Nouvelle palette du même nom</translation>
    </message>
</context>
<context>
    <name>TileWindow</name>
    <message>
        <source>Tile Editor</source>
        <translation>Éditeur de tuiles</translation>
    </message>
    <message>
        <source>No tile set selected</source>
        <translation>Aucun jeu de tuiles sélectionné</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Tuile</translation>
    </message>
    <message>
        <source>The group of 16 colours that the tile is drawn with</source>
        <translation>Le groupe de 16 couleurs avec lequel la tuile est dessinée</translation>
    </message>
    <message>
        <source>Replace Colour in All Tiles</source>
        <translation>Remplacer la couleur dans toutes les tuiles</translation>
    </message>
    <message>
        <source>Does that in all tiles of this palette offset</source>
        <translation>Le fait dans toutes les tuiles de ce décalage de palette</translation>
    </message>
    <message>
        <source>Palette offset</source>
        <translation>Décalage de palette</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attributs</translation>
    </message>
    <message>
        <source>Palette Editor</source>
        <translation>Éditeur de palettes</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Répétition</translation>
    </message>
    <message>
        <source>On the Map</source>
        <translation>Sur la carte</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>No map of this tile set is in front</source>
        <translation>Aucune carte de ce jeu de tuiles n’est au premier plan</translation>
    </message>
    <message>
        <source>The map in front does not show this tile</source>
        <translation>La carte au premier plan n’affiche pas cette tuile</translation>
    </message>
    <message>
        <source>No animation shows this tile</source>
        <translation>Aucune animation n’affiche cette tuile</translation>
    </message>
    <message>
        <source>Replace Colour</source>
        <translation>Remplacer la couleur</translation>
    </message>
    <message>
        <source>Draw the first tile here: the left button paints with the foreground colour, the right one with the background colour</source>
        <translation>Dessinez ici la première tuile&#xa0;: le bouton gauche peint avec la couleur de premier plan, le droit avec celle d’arrière-plan</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>ToolBarKeys</name>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
</context>
<context>
    <name>ToolPalette</name>
    <message>
        <source>Draw</source>
        <translation>Dessiner</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Filled rectangle</source>
        <translation>Rectangle plein</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cercle</translation>
    </message>
    <message>
        <source>Filled circle</source>
        <translation>Cercle plein</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Redimensionner</translation>
    </message>
    <message>
        <source>Toggle Grid</source>
        <translation>Afficher/masquer la grille</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Rotate clockwise</source>
        <translation>Pivoter à droite</translation>
    </message>
    <message>
        <source>Rotate anticlockwise</source>
        <translation>Pivoter à gauche</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
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
        <source>Crop</source>
        <translation>Rogner</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Flip top to bottom</source>
        <translation>Miroir vertical</translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation>Miroir horizontal</translation>
    </message>
    <message>
        <source>Reset all palette offsets</source>
        <translation>Réinitialiser tous les décalages de palette</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Play Animations</source>
        <translation>Lire les animations</translation>
    </message>
    <message>
        <source>Stop Animations</source>
        <translation>Arrêter les animations</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Ajuster à la fenêtre</translation>
    </message>
    <message>
        <source>Place animations</source>
        <translation>Placer des animations</translation>
    </message>
    <message>
        <source>Place sprites</source>
        <translation>Placer des sprites</translation>
    </message>
    <message>
        <source>Shrink to fit</source>
        <translation>Réduire pour ajuster</translation>
    </message>
    <message>
        <source>Toggle viewport</source>
        <translation>Afficher/masquer la zone visible</translation>
    </message>
    <message>
        <source>Paint terrain</source>
        <translation>Peindre un terrain</translation>
    </message>
    <message>
        <source>Random tiles of the stamp</source>
        <translation>Tuiles du tampon au hasard</translation>
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
        <translation>● Non enregistré</translation>
    </message>
    <message>
        <source>The project has unsaved changes</source>
        <translation>Le projet a des modifications non enregistrées</translation>
    </message>
    <message>
        <source>The project has changes that are not saved yet</source>
        <translation>Le projet a des modifications qui ne sont pas encore enregistrées</translation>
    </message>
</context>
<context>
    <name>Update::UpdateChecker</name>
    <message>
        <source>The update feed is too large</source>
        <translation>Le flux de mises à jour est trop grand</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Release Notes…</source>
        <translation>Notes de version…</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Télécharger…</translation>
    </message>
    <message>
        <source>Quenmora — update available</source>
        <translation>Quenmora — mise à jour disponible</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Quenmora %1 is available</source>
        <translation>Quenmora %1 est disponible</translation>
    </message>
    <message>
        <source>You have %1 (built %2).
The new version was released %3.</source>
        <translation>Vous avez la version %1 (compilée le %2).
La nouvelle version est sortie le %3.</translation>
    </message>
</context>
<context>
    <name>UpdatePresenter</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Update available: %1</source>
        <translation>Mise à jour disponible&#xa0;: %1</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>Vous êtes à jour</translation>
    </message>
    <message>
        <source>Quenmora %1 is up to date.</source>
        <translation>Quenmora %1 est à jour.</translation>
    </message>
    <message>
        <source>Could not reach the update server</source>
        <translation>Impossible de joindre le serveur de mises à jour</translation>
    </message>
    <message>
        <source>Could not reach the update server.
%1</source>
        <translation>Impossible de joindre le serveur de mises à jour.
%1</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>S&amp;cratch Image Editor</source>
        <translation>Éditeur de &amp;brouillon</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>Barre d’éta&amp;t</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>&amp;Réinitialiser la disposition</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
</context>
<context>
    <name>WriteProblem</name>
    <message>
        <source>There is no folder %1</source>
        <translation>Il n’y a pas de dossier %1</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 est un dossier</translation>
    </message>
    <message>
        <source>%1 is a pipe or a device, not a file</source>
        <translation>%1 est un tube ou un périphérique, pas un fichier</translation>
    </message>
    <message>
        <source>You may not write to %1</source>
        <translation>Vous n’avez pas le droit d’écrire dans %1</translation>
    </message>
    <message>
        <source>%1 could not be written to its end; there may be no room left</source>
        <translation>%1 n’a pas pu être écrit jusqu’au bout&#xa0;; il n’y a peut-être plus de place</translation>
    </message>
    <message>
        <source>No file can be called %1: a slash would lead into another folder. Another name of the asset helps.</source>
        <translation>Aucun fichier ne peut s’appeler %1&#xa0;: une barre oblique mènerait à un autre dossier. Il suffit d’un autre nom de la ressource.</translation>
    </message>
    <message>
        <source>No file can be called that: %1. Another name of the asset helps.</source>
        <translation>Aucun fichier ne peut s’appeler ainsi&#xa0;: %1. Il suffit d’un autre nom de la ressource.</translation>
    </message>
</context>
</TS>
