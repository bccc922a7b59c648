#pragma once

#include <QScrollArea>

class MenuBar;

/// What to begin with in a project that is still empty: the menus' ways to its first assets.
class NextSteps : public QScrollArea
{
    Q_OBJECT

public:
    explicit NextSteps(const MenuBar &menus, QWidget *parent = nullptr);

    /// It takes what room there is, and keeps nothing from being made small.
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, 0}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override { return widget()->heightForWidth(width); }
};
