#include "editors/canvas/tilepickertool.h"

#include "editors/canvas/tilepickergrid.h"
#include "ui/sectionheader.h"

#include <QScrollArea>

TilePickerTool::TilePickerTool(QWidget *parent)
    : DockWidget(tr("Tiles"), tr("No active tile set"), parent)
    , m_header(new SectionHeader(tr("Tiles: %1").arg(QString())))
    , m_scroller(new QScrollArea)
    , m_grid(new TilePickerGrid)
{
    setObjectName(QStringLiteral("TilePickerTool"));
    m_scroller->setFocusPolicy(Qt::NoFocus); // the grid has the keyboard
    m_scroller->setWidget(m_grid);
    m_scroller->setWidgetResizable(true);
    m_scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setContent(SectionHeader::over(m_scroller, m_header));

    connect(m_grid, &TilePickerGrid::selectedIndexChanged, this, &TilePickerTool::selectedTileChanged);
    connect(m_grid, &TilePickerGrid::selectedIndexChanged, this, &TilePickerTool::scrollTo);
    connect(m_grid, &TilePickerGrid::itemDoubleClicked, this, &TilePickerTool::tileDoubleClicked);
}

void TilePickerTool::setTileSet(const QPointer<TileSet> &tileSet)
{
    if (tileSet && tileSet == m_tileSet)
        return; // and keep the selection
    if (m_tileSet)
        m_tileSet->disconnect(this);
    m_tileSet = tileSet;
    m_grid->setTileSet(tileSet);
    setActive(tileSet);
    if (m_tileSet) {
        connect(m_tileSet, &TileSet::nameChanged, this, &TilePickerTool::showName);
        connect(m_tileSet, &QObject::destroyed, this, &TilePickerTool::deactivate);
    }
    showName();
}

void TilePickerTool::showName()
{
    m_header->setText(tr("Tiles: %1").arg(m_tileSet ? m_tileSet->name() : QString()));
}

int TilePickerTool::magnification() const
{
    return m_grid->magnification();
}

void TilePickerTool::setMagnification(int magnification)
{
    m_grid->setMagnification(magnification);
}

QList<QAction *> TilePickerTool::magnificationActions() const
{
    return m_grid->magnificationActions();
}

void TilePickerTool::setSelectedIndex(int index)
{
    m_grid->setSelectedIndex(index);
    scrollTo(m_grid->selectedIndex());
}

void TilePickerTool::scrollTo(int index)
{
    if (index < 0)
        return;
    const QPoint centre = m_grid->cellRect(index).center();
    const int margin = m_grid->cellRect(index).height() / 2;
    m_scroller->ensureVisible(centre.x(), centre.y(), margin, margin);
}
