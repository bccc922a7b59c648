#pragma once

#include <QWidget>

#include <functional>

class QScrollArea;
class QVBoxLayout;
class RecoveryCopy;
class RecoveryOffers;

/// Offers on the start page what can be recovered: what it is, where it was saved, how old the copy is, a picture of
/// it. Hidden while there is nothing.
class RecoveryList : public QWidget
{
    Q_OBJECT

public:
    explicit RecoveryList(RecoveryOffers *offers, QWidget *parent = nullptr);

    /// Replaces the message box that asks before the copy of the project of that name is discarded.
    void setDiscardCallback(std::function<bool(const QString &projectName)> mayDiscard);

private:
    void rebuild();
    [[nodiscard]] QWidget *cardFor(int index, const RecoveryCopy &copy);
    void discard(int index);

    RecoveryOffers *m_offers;
    std::function<bool(const QString &)> m_mayDiscard;
    QScrollArea *m_area;
    QVBoxLayout *m_cards; ///< in it
};
