#pragma once

#include <QWidget>

namespace ImageEditor {

/// The strip above an image, with room for what belongs to it at its right end.
class ToolBar : public QWidget
{
    Q_OBJECT

public:
    explicit ToolBar(QWidget *parent = nullptr);
};

} // namespace ImageEditor
