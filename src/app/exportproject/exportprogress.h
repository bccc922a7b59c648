#pragma once

#include "nextdata/recipe.h"
#include "ui/busy.h"

#include <QElapsedTimer>
#include <QProgressDialog>

class Project;

/// Shows over a window how far an export is, as soon as it takes a moment, and stops it when the person wants that.
class ExportProgress
{
public:
    /// The window's status bar names the project where an output is so large that it takes a moment by itself.
    ExportProgress(QWidget *parent, const Project &project, const NextData::Recipe &recipe);

    /// Told how many outputs are done, of how many; false when it is to stop.
    [[nodiscard]] bool operator()(int done, int count);

private:
    Busy m_busy;
    QProgressDialog m_dialog;
    QElapsedTimer m_sinceUpdate;
};
