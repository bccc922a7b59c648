#include "editors/canvas/imageeditortoolbar.h"

#include <QHBoxLayout>

namespace ImageEditor {

ToolBar::ToolBar(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(5);
    layout->setAlignment(Qt::AlignRight);
}

} // namespace ImageEditor
