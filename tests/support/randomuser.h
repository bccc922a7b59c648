#pragma once

#include "support/randomhands.h"

#include <functional>
#include <initializer_list>
#include <vector>

/// Somebody who does, in a random order that a seed decides, what can be done in the main window.
class RandomUser : public RandomHands
{
public:
    enum Effect {
        None, ///< changes what is shown, not what is saved
        Undoable, ///< every change is on an undo stack
        Lasting, ///< changes that undo does not know
    };

    RandomUser(MainWindow &window, quint32 seed) : RandomHands(window, seed)
    {
        addShellActions();
        addCanvasActions();
        addMapActions();
        addListActions();
        addColourActions();
        addAnimationActions();
    }

    /// Does one thing that is possible now, and returns what kind of thing it was.
    Effect act()
    {
        while (true) {
            const Action &action = m_actions[std::size_t(number(int(m_actions.size())))];
            m_lastAction = action.name;
            if (action.run())
                return action.effect;
        }
    }

    /// What act() did last.
    [[nodiscard]] QString lastAction() const { return m_lastAction; }

private:
    struct Action
    {
        const char *name;
        Effect effect;
        std::function<bool()> run; ///< false when it cannot be done now
    };

    void add(const char *name, Effect effect, std::function<bool()> run)
    {
        m_actions.push_back({name, effect, std::move(run)});
    }

    // What can be done

    void addShellActions()
    {
        using enum ProjectTree::ProjectNode;
        ProjectActions *actions = m_window.projectActions();
        add("create palette", Lasting, [this, actions] {
            if (project().palettes().size() >= 5)
                return false;
            actions->createPalette(CreateAction(number(4)), anyName(), anyPalette());
            return true;
        });
        add("create tile set", Lasting, [this, actions] {
            if (project().tileSets().size() >= 3)
                return false;
            actions->createTileSet(anyName(), chance() ? anyPalette() : QUuid(), 1 + number(40), chance());
            return true;
        });
        add("create map", Lasting, [this, actions] {
            if (project().maps().size() >= 3 || project().tileSets().isEmpty())
                return false;
            actions->createMap(anyName(), idOf(any(project().tileSets())), {1 + number(50), 1 + number(40)});
            return true;
        });
        add("create block set", Lasting, [this, actions] {
            if (project().blockSets().size() >= 3 || project().tileSets().isEmpty())
                return false;
            actions->createBlocks(anyName(), idOf(any(project().tileSets())));
            return true;
        });
        add("create sprites", Lasting, [this, actions] {
            if (project().spriteBanks().size() >= 3)
                return false;
            const auto options = SpriteDialog::CreateOptions::fromInt(number(4));
            actions->createSprites(options, anyName(), anyPalette());
            return true;
        });
        add("create image", Lasting, [this, actions] {
            if (project().images().size() >= 2 || project().palettes().isEmpty())
                return false;
            actions->createImage(anyName(), Quenmora::ImageMode(number(4)), anyPalette());
            return true;
        });
        add("delete", Lasting, [this, actions] {
            const auto [node, id] = anyAsset();
            if (id.isNull() || number(4) > 0)
                return false;
            actions->deleteItem(node, id);
            return true;
        });
        add("copy asset", Lasting, [this, actions] {
            const auto [node, id] = anyAsset();
            const qsizetype assets =
                project().palettes().size() + project().tileSets().size() + project().maps().size();
            if (id.isNull() || assets >= 12 || (node != PaletteNode && node != TileSetNode && node != MapNode))
                return false;
            actions->copyItem(node, id);
            return true;
        });
        add("rename", Lasting, [this] {
            QTreeWidgetItem *item = views().project->tree()->itemOf(anyAsset().second);
            if (item)
                item->setText(0, anyName());
            return item != nullptr;
        });
        add("open", None, [this] {
            const auto [node, id] = anyAsset();
            if (!id.isNull())
                views().project->itemDoubleClicked(node, id);
            return !id.isNull();
        });
        add("switch tab", None, [this] {
            views().tabs->setCurrentIndex(number(std::max(views().tabs->count(), 1)));
            return true;
        });
        add("close tab", None, [this] {
            if (views().tabs->count() == 0 || chance())
                return false;
            views().tabs->closeTab(number(views().tabs->count()));
            return true;
        });
        add("scratch image", None, [this] {
            views().tabs->setScratchEditorVisible(chance());
            return true;
        });
        add("docks", None, [this] {
            const QList<QDockWidget *> docks = m_window.findChildren<QDockWidget *>();
            QDockWidget *dock = any(docks);
            if (chance())
                dock->setVisible(dock->isHidden());
            else
                dock->setFloating(!dock->isFloating());
            return true;
        });
        add("clipboard", Undoable, [this] {
            EditMenu *menu = m_window.menus()->editMenu();
            const auto commands = {&EditMenu::cut, &EditMenu::copy, &EditMenu::paste, &EditMenu::selectAll,
                                   &EditMenu::selectNone};
            emit(menu->**(commands.begin() + number(int(commands.size()))))();
            return true;
        });
        add("undo or redo", Lasting, [this] { // of one document, while others may have changed
            QUndoGroup *undo = m_window.documentController()->undoGroup();
            for (int steps = number(6); steps >= 0; --steps)
                chance() ? undo->undo() : undo->redo();
            return true;
        });
    }

    std::pair<ProjectTree::ProjectNode, QUuid> anyAsset()
    {
        switch (const auto node = ProjectTree::ProjectNode(number(ProjectTree::NodeCount))) {
        case ProjectTree::PaletteNode:
            return {node, anyPalette()};
        case ProjectTree::TileSetNode:
            return {node, idOf(any(project().tileSets()))};
        case ProjectTree::MapObjectsNode:
            return {node, idOf(any(project().blockSets()))};
        case ProjectTree::SpriteBankNode:
            return {node, idOf(any(project().spriteBanks()))};
        case ProjectTree::MapNode:
            return {node, idOf(any(project().maps()))};
        case ProjectTree::ImageNode:
            return {node, idOf(any(project().images()))};
        }
        return {};
    }

    void addCanvasActions()
    {
        using namespace Quenmora::Ui;
        for (int repeat = 0; repeat < 4; ++repeat) { // what people do most
            add("draw", Undoable, [this] {
                Canvas *canvas = anyCanvas();
                if (!canvas)
                    return false;
                // Paste stays as it is, so that a paste ends in a click
                if (canvas->mode() != Paste)
                    canvas->setMode(any(QList{Draw, Line, Rectangle, RectangleFill, Circle, Fill, Pick}));
                drag(canvas, chance() ? Qt::LeftButton : Qt::RightButton);
                if (canvas->mode() == Paste)
                    canvas->setMode(Draw);
                return true;
            });
        }
        add("select pixels", None, [this] {
            Canvas *canvas = anyCanvas();
            if (!canvas)
                return false;
            canvas->setMode(Select);
            drag(canvas);
            return true;
        });
        add("pixel action", Undoable, [this] {
            Canvas *canvas = anyCanvas();
            if (!canvas)
                return false;
            canvas->setMode(any(QList{RotateCW, RotateCCW, Flip, Mirror, MoveUp, MoveDown, MoveLeft, MoveRight, Erase,
                                      ZoomIn, ZoomOut, Grid}),
                            chance());
            return true;
        });
        add("canvas menu", Undoable, [this] {
            Canvas *canvas = anyCanvas();
            if (!canvas)
                return false;
            any(canvas->contextMenu()->actions())->trigger();
            return true;
        });
        add("choose tile", None, [this] {
            if (!views().tileEditor->tileSet())
                return false;
            views().tileEditor->setTileIndex(1 + number(std::max(views().tileEditor->tileSet()->count(), 1)));
            return true;
        });
        add("palette offset", Lasting, [this] {
            auto *offset = views().tileEditor->findChild<QSpinBox *>();
            if (!views().tileEditor->tileSet() || !offset)
                return false;
            offset->setValue(offset->minimum() + number(offset->maximum()));
            return true;
        });
        add("swap palette", Lasting, [this] {
            chance() ? m_window.changeTilePalette(anyPalette()) : m_window.changeSpritePalette(anyPalette());
            return true;
        });
    }

    void addMapActions()
    {
        using namespace Quenmora::Ui;
        for (int repeat = 0; repeat < 4; ++repeat) {
            add("use map tool", Undoable, [this] {
                auto *page = front<MapEditor::View>();
                if (!page || !page->map())
                    return false;
                if (page->grid()->mode() != Paste || chance())
                    page->toolPaletteClicked(any(QList{Draw, Draw, Select, Pick, PlaceAnim, PlaceSprite}));
                drag(page->grid());
                return true;
            });
        }
        add("choose for the map", Lasting, [this] {
            auto *page = front<MapEditor::View>();
            if (!page || !page->map())
                return false;
            const QPointer<SpriteBank> bank = any(project().spriteBanks());
            const QPointer<MapObjects> blocks = any(project().blockSets());
            switch (number(4)) {
            case 0:
                page->setTileIndex(page->map()->tileSet() ? number(std::max(page->map()->tileSet()->count(), 1)) : 0);
                break;
            case 1:
                if (bank)
                    emit views().mapSprites->spriteSelected(bank->id(), number(bank->count()));
                break;
            case 2:
                if (bank)
                    emit views().mapSprites->spriteAnimationSelected(any(bank->animations()));
                break;
            default: // the dock offers those of the map's tile set alone
                if (blocks && blocks->tileSet() == page->map()->tileSet())
                    emit views().mapObjects->animationSelected(any(blocks->animations()));
            }
            return true;
        });
        add("map menu", Undoable, [this] {
            auto *page = front<MapEditor::View>();
            const auto *menu = page ? page->grid()->findChild<QMenu *>() : nullptr;
            return menu && choose(menu, any(QStringList{"Cut", "Copy", "Copy as Image", "Fill"}));
        });
        add("map from selection", Lasting, [this] {
            auto *page = front<MapEditor::View>();
            const auto *menu = page ? page->grid()->findChild<QMenu *>() : nullptr;
            return menu && project().maps().size() < 4 && choose(menu, "Copy to new map");
        });
        add("rows and columns", Undoable, [this] {
            auto *page = front<MapEditor::View>();
            if (!page)
                return false;
            const auto where = Quenmora::Position(number(2));
            const auto operations = {&MapEditor::View::addRow, &MapEditor::View::addColumn, &MapEditor::View::removeRow,
                                     &MapEditor::View::removeColumn};
            (page->**(operations.begin() + number(int(operations.size()))))(where);
            return true;
        });
        add("resize map", Undoable, [this] {
            auto *page = front<MapEditor::View>();
            if (!page || chance())
                return false;
            page->grid()->resizeMap({1 + number(60), 1 + number(50)},
                                    any(QList<Qt::Alignment>{Qt::AlignLeft | Qt::AlignTop, Qt::AlignCenter,
                                                             Qt::AlignRight | Qt::AlignBottom}));
            return true;
        });
        add("map key", Undoable, [this] { // Delete, Escape
            auto *page = front<MapEditor::View>();
            if (!page)
                return false;
            const QString text = any(QStringList{"Delete", "Delete", "Cancel"});
            for (QAction *action : page->actions()) {
                if (action->text() == text)
                    action->trigger();
            }
            return true;
        });
        add("edit placed sprite", Undoable, [this] {
            auto *page = front<MapEditor::View>();
            const int index = page ? page->grid()->selectedSprite() : -1;
            if (!page || !page->map() || index < 0 || index >= page->map()->sprites().size())
                return false;
            Map::PlacedSprite sprite = page->map()->sprites().at(index);
            sprite.mirror = chance();
            sprite.rotate = chance();
            sprite.paletteOffset = number(16);
            sprite.startFrame = number(4);
            page->grid()->setSpriteProperties(sprite);
            return true;
        });
        add("map view", Lasting, [this] { // some of it is kept with the map
            auto *page = front<MapEditor::View>();
            if (!page)
                return false;
            page->toolPaletteClicked(any(QList{RotateCW, Flip, Mirror, Grid, MoveUp, MoveLeft, MoveRight, MoveDown,
                                               ZoomIn, ZoomOut, ExpandToFit, ToggleViewport, PaintPalette}),
                                     chance());
            return true;
        });
        add("layers", Lasting, [this] {
            auto *page = front<MapEditor::View>();
            if (!page)
                return false;
            page->grid()->setMapVisibility(number(4) > 0);
            page->grid()->setObjectVisibility(number(4) > 0);
            page->grid()->setSpriteVisibility(number(4) > 0);
            return true;
        });
        add("play map", Lasting, [this] {
            auto *page = front<MapEditor::View>();
            if (!page)
                return false;
            page->toolPaletteClicked(AnimPlay, true);
            for (int ticks = number(60); ticks > 0; --ticks)
                page->animator()->tick();
            page->toolPaletteClicked(AnimPlay, false);
            return true;
        });
    }

    void addListActions()
    {
        add("tile list", Undoable, [this] {
            TilePickerGrid *grid = views().tilePicker->grid();
            const int count = grid->tileSet() ? grid->tileSet()->count() : 0;
            if (count == 0)
                return false;
            bringToFront(grid);
            click(grid, grid->cellRect(number(count)).center(), Qt::RightButton);
            grid->contextMenu()->close();
            QStringList entries{"Copy Image", "Paste Image", "Zoom In", "Zoom Out"};
            if (count > 1)
                entries.append("Delete");
            if (count < 50)
                entries.append("Insert");
            return choose(grid->contextMenu(), any(entries));
        });
        add("clear tile", Lasting, [this] {
            TilePickerGrid *grid = views().tilePicker->grid();
            return grid->tileSet() && number(4) == 0 && choose(grid->contextMenu(), "Clear");
        });
        add("move tile", Undoable, [this] {
            TilePickerGrid *grid = views().tilePicker->grid();
            const int count = grid->tileSet() ? grid->tileSet()->count() : 0;
            if (count == 0)
                return false;
            drop(grid, TileDrag{number(count), 0}.toMimeData(), grid->cellRect(number(count)).center(),
                 chance() ? Qt::ShiftModifier : Qt::NoModifier);
            return true;
        });
        add("choose sprite", None, [this] {
            if (views().spriteEditor->sprites())
                views().spriteEditor->list()->setSelectedIndex(number(views().spriteEditor->sprites()->count()));
            return views().spriteEditor->sprites() != nullptr;
        });
        add("sprite list", Undoable, [this] {
            SpriteEditor::SpriteList *list = views().spriteEditor->list();
            const int count = list->sprites() ? list->sprites()->count() : 0;
            if (count == 0)
                return false;
            switch (number(6)) {
            case 0:
                emit list->copySprite(number(count), number(count));
                break;
            case 1:
                emit list->moveSprite(number(count), number(count));
                break;
            case 2:
                emit list->deleteRequested(number(count));
                break;
            case 3:
                emit list->clearRequested(number(count));
                break;
            default:
                if (count < 12)
                    emit list->addSprite();
            }
            return true;
        });
    }

    void addColourActions()
    {
        for (int repeat = 0; repeat < 2; ++repeat) {
            add("colour", Undoable, [this] {
                PaletteEditor *editor = views().palette->editor();
                if (!editor->palette())
                    return false;
                const int first = number(Palette::Size);
                editor->setSelection(first, first + number(Palette::Size - first));
                if (chance())
                    editor->applyColour(anyColour(), chance());
                else
                    editor->createGradient();
                return true;
            });
        }
        add("choose palette", Lasting, [this] { // with the scratch image in front it becomes that one's
            const QUuid palette = anyPalette();
            if (!palette.isNull())
                emit views().palette->paletteChosen(palette);
            return !palette.isNull();
        });
    }

    void addAnimationActions()
    {
        add("animation list", Lasting, [this] {
            auto *page = front<AnimationEditor::AnimationView>();
            if (!page)
                return false;
            page->setQuestion([](const QString &, const QString &) { return true; });
            AnimationEditor::AnimationListWidget *list = page->list();
            const QPointer<Animation> animation = any(list->animations());
            list->select(animation);
            switch (number(8)) {
            case 0:
                emit list->removeRequested();
                break;
            case 1:
                if (list->animations().size() < 6)
                    emit list->cloneRequested(animation);
                break;
            case 2:
            case 3:
                if (list->animations().size() < 6)
                    emit list->addRequested();
                break;
            default:
                break; // chosen
            }
            return true;
        });
        for (int repeat = 0; repeat < 2; ++repeat) {
            add("animation cell", Undoable, [this] {
                AnimationEditor::EditorWidget *editor = animationEditor();
                if (!editor)
                    return false;
                AnimationEditor::FrameEditorWidget *frame = editor->frameEditor();
                const QSize size = editor->animation()->size();
                if (size.isEmpty())
                    return false;
                const QPoint cell(number(size.width()), number(size.height()));
                click(frame, frame->cellRect(cell).center());
                switch (number(4)) {
                case 0:
                    dropOn(*frame, *editor->animation(), cell);
                    break;
                case 1:
                    frame->setIndex(number(8));
                    break;
                case 2:
                    editor->tools()->toggleAction(
                        any(QList{Quenmora::Ui::RotateCW, Quenmora::Ui::Flip, Quenmora::Ui::Mirror}));
                    break;
                default:
                    frame->setOffset(number(16));
                }
                return true;
            });
        }
        add("frames", Undoable, [this] {
            AnimationEditor::EditorWidget *editor = animationEditor();
            if (!editor)
                return false;
            using enum AnimationControlWidget::Action;
            QList actions{First, Previous, Next, Last, DeleteFrame, Loop, PingPong};
            if (editor->animation()->frameCount() < 8)
                actions << AddFrame << AddFrame;
            if (QAction *action = editor->control()->action(any(actions)))
                action->trigger();
            return true;
        });
        add("size and delay", Undoable, [this] {
            AnimationEditor::EditorWidget *editor = animationEditor();
            if (!editor)
                return false;
            const QList<QSpinBox *> numbers = editor->toolBar()->findChildren<QSpinBox *>();
            QSpinBox *field = any(numbers);
            if (field)
                field->setValue(field->minimum() + number(6));
            return field != nullptr;
        });
        add("play animation", None, [this] {
            AnimationEditor::EditorWidget *editor = animationEditor();
            if (editor)
                chance() ? editor->play() : editor->stop();
            return editor != nullptr;
        });
    }

    void dropOn(AnimationEditor::FrameEditorWidget &frame, const Animation &animation, QPoint cell)
    {
        QMimeData *data = animation.kind() == Animation::Tiles ? TileDrag{number(8), number(16)}.toMimeData()
                                                               : SpriteDrag{number(4)}.toMimeData();
        drop(&frame, data, frame.cellRect(cell).center(), Qt::NoModifier);
    }

    std::vector<Action> m_actions;
    QString m_lastAction;
};
