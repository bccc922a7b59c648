#pragma once

#include "nextdata/source.h"

#include <QComboBox>
#include <QString>
#include <QUuid>

class Project;

/// Chooses one of a project's palettes or tile sets, by name.
class AssetChooser : public QComboBox
{
    Q_OBJECT

public:
    explicit AssetChooser(QWidget *parent = nullptr);

    /// Offers the palettes, each with its colours in small; with a text for it, a new palette (null id) on
    /// top. The asset chosen before stays chosen if it is still there.
    void offerPalettes(const Project &project, const QString &newPalette = {});
    /// Offers the tile sets, as offerPalettes() does.
    void offerTileSets(const Project &project, const QString &newTileSet = {});
    /// Offers all assets of a kind, with a text for a new one on top if there is one.
    void offerAssets(const Project &project, NextData::AssetKind kind, const QString &newAsset = {});

    /// The id of the chosen asset; null for a new one and when there is none.
    [[nodiscard]] QUuid id() const { return currentData().toUuid(); }
    /// Chooses an asset, if it is offered.
    void choose(const QUuid &id);

    /// What keeps a new palette from having this name, as a sentence; empty when a palette of the project is
    /// chosen, or when no other has the name.
    [[nodiscard]] QString newPaletteProblem(const QString &name) const;

private:
    /// Offers a new asset, by a text that is always seen as a whole.
    void addNew(const QString &text);
};
