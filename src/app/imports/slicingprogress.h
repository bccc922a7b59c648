#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

class ImageSlicer;

/// Shows how far a slicer is with a picture, in a dialog over the window, as soon as it takes a moment.
class SlicingProgress
{
public:
    /// To be made before the slicer begins.
    SlicingProgress(ImageSlicer &slicer, QWidget *parent);

private:
    QProgressDialog m_dialog;
    QElapsedTimer m_sinceUpdate;
};
