#pragma once

#include "model/map.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QUuid>

class QFileDialog;
class QWidget;

namespace MapEditor {

class ExportDialog;

/// Asks into which folder a map is to be exported and what of it, and tells what was chosen.
class MapExport : public QObject
{
    Q_OBJECT

public:
    /// The dialogs belong to the window.
    MapExport(const QPointer<Map> &map, QWidget *window);

    /// Shows the first dialog, unless the map is gone.
    void start();

signals:
    // Data files of the map, its tile set and the palette of that are to be written into a folder.
    void exportTileMap(QString dir, QUuid id);
    void exportTiles(QString dir, QUuid id);
    void exportTilePalette(QString dir, QUuid id);

private:
    void folderChosen(const QString &folder);
    void accepted();

    QPointer<Map> m_map;
    QWidget *m_window;
    ExportDialog *m_dialog;
    QFileDialog *m_folderDialog = nullptr; ///< made when first needed
    QString m_folder;
};

} // namespace MapEditor
