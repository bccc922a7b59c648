#pragma once

#include "app/menus/projectmenu.h"
#include "model/map.h"

#include <QSize>
#include <QUuid>

class ImportPictureDialog;
class MapDialog;
struct PictureLoss;
struct TileReduction;

/// The "Map" menu: new and imported maps, and the file of the active one.
class MapMenu : public ProjectMenu
{
    Q_OBJECT

public:
    explicit MapMenu(QWidget *parent = nullptr);

    [[nodiscard]] Map *map() const { return m_map; }
    /// What the menu knows of the picture that it asks to import, while it does; null when it has not looked at it.
    [[nodiscard]] const PictureLoss *picture() const { return m_picture; }

public slots:
    /// The active map, or null.
    void setMap(const QPointer<Map> &map);
    void showNewDialog();
    void showImportDialog();
    /// Imports a file, and asks how if that is a question.
    void importFile(const QString &filePath);
    /// The same dialog, which lists pictures first.
    void showPictureDialog();
    void showExportDialog();

signals:
    void create(const QString &name, const QUuid &tileSetId, const QSize &size);
    void importRequested(const QString &filePath);
    /// A picture is to be imported as the tiles that were found for it.
    void importReductionRequested(const QString &filePath, const TileReduction &reduction);

protected:
    void updateActions() override;

private:
    [[nodiscard]] static QString nextTilesFilter();
    [[nodiscard]] static QString imagesFilter();
    void askForImport(const QStringList &nameFilters);
    void requestImport(const QString &filePath, const PictureLoss &picture);

    QPointer<Map> m_map;
    const PictureLoss *m_picture = nullptr;
    QAction *m_export;
    QPointer<MapDialog> m_dialog;
    QPointer<ImportPictureDialog> m_pictureDialog;
};
