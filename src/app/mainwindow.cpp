#include "app/mainwindow.h"

#include <QCloseEvent>
#include <QCoreApplication>

MainWindow::MainWindow(QWidget *parent) : QMainWindow(parent)
{
    setWindowTitle(QCoreApplication::applicationName());
    resize(1024, 768);
    show();
}

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (!m_firstShow)
        return;
    m_firstShow = false;
    m_state.loadState();
    restoreState(m_state.windowState());
    restoreGeometry(m_state.windowGeometry());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    m_state.setWindowState(saveState());
    m_state.setWindowGeometry(saveGeometry());
    m_state.saveState();
    event->accept();
}
