#pragma once

#include "app/recentpictures.h"

#include <QHash>
#include <QWidget>

class FileMenu;
class MenuBar;
class QLabel;
class QToolButton;
class QVBoxLayout;

/// What stands in the middle of the window while no document is open: how to go on.
///
/// Without a project it offers the menus' ways to one, with pictures of the latest of the recent projects and of the
/// sample; with one it says where its assets are opened. What does not fit scrolls.
class StartPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int MostRecentProjects = 5;

    explicit StartPage(const MenuBar &menus, QWidget *parent = nullptr);

    void setProjectOpen(bool open);
    /// Takes the list of what can be recovered, which comes before all else.
    void setRecoveryList(QWidget *list);
    /// Where the pictures come from.
    [[nodiscard]] RecentPictures *pictures() { return &m_pictures; }

    /// It keeps nothing from being made small.
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, 0}; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void listRecentProjects();
    /// Looks for the pictures of what is listed, once that can be seen.
    void wantPictures();
    void showPicture(const QString &path);
    QToolButton *cardFor(QAction *action, const QString &name, const QString &detail, const QString &path);

    const FileMenu *m_menu;
    RecentPictures m_pictures;
    QWidget *m_beginnings; ///< shown without a project
    QWidget *m_recent;
    QVBoxLayout *m_recentEntries;
    QWidget *m_sampleGroup;
    QToolButton *m_sample;
    QString m_sampleFile;
    QHash<QString, QToolButton *> m_cards; ///< of recent projects, by their paths
    QLabel *m_hint; ///< shown with a project
};
