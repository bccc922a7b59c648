#pragma once

#include "model/spritebank.h"

#include <QAbstractListModel>
#include <QPointer>

/// The sprites of a bank as pictures, in the order of their numbers.
class SpriteListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit SpriteListModel(QObject *parent = nullptr);

    [[nodiscard]] QPointer<SpriteBank> bank() const { return m_bank; }
    /// Null shows nothing.
    void setBank(const QPointer<SpriteBank> &bank);
    /// The side of the pictures in device pixels.
    void setPictureExtent(int extent) { m_extent = extent; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

private:
    void picturesChanged();
    void reset();

    QPointer<SpriteBank> m_bank;
    int m_rows = 0; ///< what the views know of
    int m_extent = SpriteBank::SpriteSize;
};
