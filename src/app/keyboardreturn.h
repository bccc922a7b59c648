#pragma once

#include "app/documentviews.h"

#include <QObject>

/// Gives the keyboard back to the map editor in front when a dock that serves it was clicked: a person who
/// chooses a tile with the mouse goes on with the map's keys. Who comes to the dock by keys, or types in it,
/// stays there.
class KeyboardReturn : public QObject
{
    Q_OBJECT

public:
    explicit KeyboardReturn(const DocumentViews &views, QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Whether a widget is in one of the docks, or in a list that drops down there.
    [[nodiscard]] bool serves(const QWidget *widget) const;
    void giveBack();

    DocumentViews m_views;
};
