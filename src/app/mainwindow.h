#pragma once

#include "app/appstate.h"

#include <QMainWindow>

/// The program's one window. It shows itself, in the place and size in which it was last closed.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    AppState m_state;
    bool m_firstShow = true;
};
