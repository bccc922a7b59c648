#pragma once

#include <QLayout>
#include <QList>

/// Places widgets in rows like words in a paragraph: a row that is full continues in the next.
///
/// The height depends on the width; hidden widgets take no room. Rows run from right to left where
/// the language does.
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    explicit FlowLayout(QWidget *parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    /// Puts a widget before the item of that index, or at the end.
    void insertWidget(int index, QWidget *widget);
    [[nodiscard]] int count() const override { return static_cast<int>(m_items.size()); }
    [[nodiscard]] QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

    /// All items in one row.
    [[nodiscard]] QSize sizeHint() const override;

    /// Room for the largest item.
    [[nodiscard]] QSize minimumSize() const override;

    void setGeometry(const QRect &rect) override;

private:
    /// Breaks the items into rows inside rect, moves them there unless dry, and returns the height.
    int arrange(const QRect &rect, bool dry) const;

    QList<QLayoutItem *> m_items;
};
