#include "editors/animation/blockeditortoolbar.h"

#include <QComboBox>
#include <QSignalBlocker>

BlockEditorToolBar::BlockEditorToolBar(QWidget *parent)
    : AnimationToolBar(tr("Set the frame width in tiles"), tr("Set the frame height in tiles"), parent)
    , m_type(new QComboBox(this))
{
    m_type->addItem(tr("Normal"), int(MapObjectType::Normal));
    m_type->addItem(tr("Horizontal Platform"), int(MapObjectType::HorizontalPlatform));
    m_type->setAccessibleName(tr("Type"));
    m_type->setToolTip(tr("How the game moves the animation"));
    addControl(QString(), m_type, AfterName);
    connect(m_type, &QComboBox::currentIndexChanged, this,
            [this] { emit blockTypeChanged(MapObjectType(m_type->currentData().toInt())); });
}

void BlockEditorToolBar::setBlockType(MapObjectType type)
{
    const QSignalBlocker blocker(m_type);
    m_type->setCurrentIndex(m_type->findData(int(type)));
}
