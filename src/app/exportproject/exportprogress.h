#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

/// Shows over a window how far an export is, as soon as it takes a moment, and stops it when the person wants that.
class ExportProgress
{
public:
    explicit ExportProgress(QWidget *parent);

    /// Told how many outputs are done, of how many; false when it is to stop.
    [[nodiscard]] bool operator()(int done, int count);

private:
    QProgressDialog m_dialog;
    QElapsedTimer m_sinceUpdate;
};
