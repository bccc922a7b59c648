#include "editors/map/replacetiledialog.h"

#include "editors/map/paintbar.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace MapEditor {

ReplaceTileDialog::ReplaceTileDialog(QWidget *parent)
    : DialogBase(tr("Replace Tile"), parent)
    , m_from(addTile(tr("Replace")))
    , m_to(addTile(tr("By")))
    , m_selection(new QRadioButton(tr("In the selection")))
    , m_thisMap(new QRadioButton(tr("In this map")))
    , m_allMaps(new QRadioButton(tr("In all maps of the tile set")))
{
    auto *where = new QVBoxLayout;
    for (QRadioButton *button : {m_selection, m_thisMap, m_allMaps})
        where->addWidget(button);
    form()->addRow(QString(), where);
}

ReplaceTileDialog::Choice ReplaceTileDialog::addTile(const QString &label)
{
    const Choice choice{new QSpinBox, new QLabel};
    auto *row = new QHBoxLayout;
    row->addWidget(choice.picture);
    row->addWidget(choice.index, 1);
    choice.index->setAccessibleName(label);
    choice.index->setPrefix(tr("Tile "));
    form()->addRow(label, row);
    connect(choice.index, &QSpinBox::valueChanged, this, &ReplaceTileDialog::showPictures);
    return choice;
}

void ReplaceTileDialog::propose(const QPointer<Map> &map, int from, int to, bool hasSelection)
{
    m_map = map;
    const QPointer<TileSet> tiles = map ? map->tileSet() : nullptr;
    for (const Choice &choice : {m_from, m_to})
        choice.index->setRange(0, tiles ? tiles->count() - 1 : 0);
    m_from.index->setValue(from);
    m_to.index->setValue(to);
    m_selection->setEnabled(hasSelection);
    (hasSelection ? m_selection : m_thisMap)->setChecked(true);
    showPictures();
}

void ReplaceTileDialog::showPictures()
{
    constexpr int Extent = 32;
    const QPointer<TileSet> tiles = m_map ? m_map->tileSet() : nullptr;
    for (const Choice &choice : {m_from, m_to}) {
        const int index = choice.index->value();
        const Stamp tile({.index = index, .offset = tiles ? tiles->tileOffset(index) : 0, .used = true});
        choice.picture->setPixmap(PaintBar::pictureOf(tile, tiles, Extent, devicePixelRatioF()));
    }
    revalidate();
}

QString ReplaceTileDialog::problem() const
{
    return from() == to() ? tr("These are the same tile") : QString();
}

int ReplaceTileDialog::from() const
{
    return m_from.index->value();
}

int ReplaceTileDialog::to() const
{
    return m_to.index->value();
}

ReplaceTileDialog::Scope ReplaceTileDialog::scope() const
{
    return m_selection->isChecked() ? Selection : m_allMaps->isChecked() ? AllMaps : ThisMap;
}

} // namespace MapEditor
