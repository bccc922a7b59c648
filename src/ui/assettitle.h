#pragma once

#include <QString>

class QWidget;

/// Says in a dialog's title bar which asset it is about, behind the title itself. windowTitle() stays as it is.
void nameInTitleBar(QWidget &dialog, const QString &asset);
