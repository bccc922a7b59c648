#pragma once

#include <QMenu>

/// The "Help" menu.
class HelpMenu : public QMenu
{
    Q_OBJECT

public:
    explicit HelpMenu(QWidget *parent = nullptr);

    // For whoever offers the same elsewhere.
    [[nodiscard]] QAction *guideAction() const { return m_guide; }
    [[nodiscard]] QAction *sampleAction() const { return m_sample; }

signals:
    void checkForUpdates();
    void displayAbout();
    void showCommandPalette();
    void showShortcuts();
    void openSample();

private:
    QAction *m_guide;
    QAction *m_sample;
};
