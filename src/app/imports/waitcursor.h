#pragma once

#include <QGuiApplication>

/// Shows the wait cursor for as long as it lives.
class WaitCursor
{
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }

private:
    Q_DISABLE_COPY_MOVE(WaitCursor)
};
