#pragma once

#include <QFrame>
#include <QPointer>

class QAction;
class QLabel;
class QMenu;
class RecentPictures;

/// The tool tip of an entry of File > Recent with the picture of its project above the path. Where there is no picture,
/// the usual tool tip says the path alone.
///
/// Tool tips are shown as plain text everywhere, since names in them come from files; this one keeps to that.
class RecentPreview : public QFrame
{
    Q_OBJECT

public:
    /// A child of the menu.
    RecentPreview(QMenu *menu, RecentPictures *pictures);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool showFor(QAction *entry, QPoint at);

    QMenu *m_menu;
    RecentPictures *m_pictures;
    QLabel *m_picture;
    QLabel *m_path;
    QPointer<QAction> m_shown;
};
