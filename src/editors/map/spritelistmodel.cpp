#include "editors/map/spritelistmodel.h"

#include <QPixmap>

SpriteListModel::SpriteListModel(QObject *parent) : QAbstractListModel(parent) { }

void SpriteListModel::setBank(const QPointer<SpriteBank> &bank)
{
    if (m_bank)
        m_bank->disconnect(this);
    m_bank = bank;
    if (m_bank) {
        connect(m_bank, &SpriteBank::countChanged, this, &SpriteListModel::reset);
        connect(m_bank, &QObject::destroyed, this, &SpriteListModel::reset);
        connect(m_bank, &SpriteBank::imageChanged, this, &SpriteListModel::picturesChanged);
        connect(m_bank, &SpriteBank::spriteMoved, this, &SpriteListModel::picturesChanged);
        connect(m_bank, &SpriteBank::restored, this, &SpriteListModel::picturesChanged);
        connect(m_bank, &SpriteBank::coloursChanged, this, &SpriteListModel::picturesChanged);
        connect(m_bank, &SpriteBank::shownColoursChanged, this, &SpriteListModel::picturesChanged);
    }
    reset();
}

void SpriteListModel::reset()
{
    beginResetModel();
    m_rows = m_bank ? m_bank->count() : 0;
    endResetModel();
}

void SpriteListModel::picturesChanged()
{
    if (m_rows > 0)
        emit dataChanged(index(0), index(m_rows - 1), {Qt::DecorationRole});
}

int SpriteListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

QVariant SpriteListModel::data(const QModelIndex &index, int role) const
{
    if (!m_bank || !index.isValid() || index.row() >= m_bank->count())
        return {};
    switch (role) {
    case Qt::DecorationRole:
        return QPixmap::fromImage(m_bank->renderSprite(index.row(), 0, false, false, false).scaled(m_extent, m_extent));
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return tr("Sprite %1").arg(index.row());
    default:
        return {};
    }
}
