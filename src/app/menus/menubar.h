#pragma once

#include "app/dialogs/filechooser.h"
#include "model/project.h"

#include <QMenuBar>
#include <QPointer>

class EditMenu;
class FileMenu;
class HelpMenu;
class ImageMenu;
class MapMenu;
class PaletteMenu;
class SpriteMenu;
class TileMenu;
class ViewMenu;

/// The nine menus of the main window.
class MenuBar : public QMenuBar
{
    Q_OBJECT

public:
    explicit MenuBar(QWidget *parent = nullptr);

    [[nodiscard]] FileMenu *fileMenu() const { return m_file; }
    [[nodiscard]] EditMenu *editMenu() const { return m_edit; }
    [[nodiscard]] PaletteMenu *paletteMenu() const { return m_palette; }
    [[nodiscard]] TileMenu *tileMenu() const { return m_tile; }
    [[nodiscard]] MapMenu *mapMenu() const { return m_map; }
    [[nodiscard]] SpriteMenu *spriteMenu() const { return m_sprite; }
    [[nodiscard]] ImageMenu *imageMenu() const { return m_image; }
    [[nodiscard]] ViewMenu *viewMenu() const { return m_view; }
    [[nodiscard]] HelpMenu *helpMenu() const { return m_help; }

    /// Who answers the questions for files of all menus.
    void setFileChooser(const FileChooser &chooser);

    /// Who knows whether an asset can be imported again.
    void setImportAgainCheck(const std::function<bool(const QUuid &)> &canImport);

public slots:
    /// Looks again whether the active assets can be imported again.
    void refreshImportAgain();
    /// Hands the open project, or null, to the menus that need it.
    void setProject(const QPointer<Project> &project);

signals:
    /// A menu could not do what was asked for: a text for the user, its title, and why.
    void failed(const QString &text, const QString &title, const QString &reason);
    /// An asset is to be brought up to date with the file that it was made of.
    void importAgainRequested(const QUuid &id);
    /// A menu wrote an asset of that name to a file.
    void exported(const QString &asset, const QString &filePath);

private:
    FileMenu *m_file;
    EditMenu *m_edit;
    PaletteMenu *m_palette;
    TileMenu *m_tile;
    MapMenu *m_map;
    SpriteMenu *m_sprite;
    ImageMenu *m_image;
    ViewMenu *m_view;
    HelpMenu *m_help;
};
