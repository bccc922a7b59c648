#pragma once

#include <QWidget>

class FileMenu;
class QLabel;
class QVBoxLayout;

/// What stands in the middle of the window while no document is open: how to go on.
///
/// Without a project it offers the File menu's ways to one, the latest of the recent projects among them;
/// with one it says where its assets are opened.
class StartPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int MostRecentProjects = 5;

    explicit StartPage(const FileMenu *menu, QWidget *parent = nullptr);

    void setProjectOpen(bool open);
    /// Takes the list of what can be recovered, which comes before all else.
    void setRecoveryList(QWidget *list);

private:
    void listRecentProjects();

    const FileMenu *m_menu;
    QWidget *m_beginnings; ///< shown without a project
    QWidget *m_recent;
    QVBoxLayout *m_recentEntries;
    QLabel *m_hint; ///< shown with one
};
