#include "app/imports/slicingprogress.h"

#include "model/imageslicer.h"

#include <QCoreApplication>

namespace {

// milliseconds
constexpr int UpdateInterval = 40; // every update repaints and handles events, which costs more than many cells
constexpr int Patience = 500; // told at once where the beginning lets it expect more than this

} // namespace

SlicingProgress::SlicingProgress(ImageSlicer &slicer, QWidget *parent)
    : m_dialog(QCoreApplication::translate("SlicingProgress", "Processing image"), QString(), 0, slicer.cellCount(),
               parent)
{
    m_dialog.setCancelButton(nullptr);
    m_dialog.setWindowModality(Qt::ApplicationModal);
    m_dialog.setMinimumDuration(Patience);
    m_dialog.setValue(0);
    m_sinceUpdate.start();
    QObject::connect(&slicer, &ImageSlicer::processed, &m_dialog, [this](int cell) {
        if (m_sinceUpdate.elapsed() < UpdateInterval)
            return;
        m_dialog.setValue(cell);
        m_sinceUpdate.restart();
    });
}
