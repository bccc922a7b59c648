#pragma once

#include <QWidget>

class MenuBar;

/// What to begin with in a project that is still empty: the menus' ways to its first assets.
class NextSteps : public QWidget
{
    Q_OBJECT

public:
    explicit NextSteps(const MenuBar &menus, QWidget *parent = nullptr);

    /// It takes what room there is, and keeps nothing from being made small.
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, 0}; }
};
