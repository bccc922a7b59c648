#include "ui/titlewidth.h"

#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMessageBox>

namespace {

constexpr int FrameButtons = 130; ///< the icon of the window and its buttons

}

int titleWidth(const QString &title)
{
    QFont font = QApplication::font("QMdiSubWindowTitleBar");
    font.setBold(true);
    const QString shown = title + QString::fromUtf8(" — ") + QGuiApplication::applicationDisplayName();
    return QFontMetrics(font).horizontalAdvance(shown) + FrameButtons;
}

void widenForTitle(QMessageBox &box)
{
    // a box decides about its size itself, by its texts and whatever else is in its layout
    if (auto *grid = qobject_cast<QGridLayout *>(box.layout()))
        grid->addItem(new QSpacerItem(titleWidth(box.windowTitle()), 0), grid->rowCount(), 0, 1, grid->columnCount());
}
