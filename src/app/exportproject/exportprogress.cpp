#include "app/exportproject/exportprogress.h"

#include "app/exportproject/recipetable.h"
#include "model/project.h"
#include "ui/titlewidth.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

// milliseconds
constexpr int UpdateInterval = 40; // every update repaints and handles events
constexpr int Patience = 250;

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ExportProgress)
};

/// The main window, where a dialog stands over it.
QWidget *outermost(QWidget *widget)
{
    while (widget && widget->parentWidget())
        widget = widget->parentWidget();
    return widget;
}

/// What is not divided by a look at the person.
qint64 largestOutput(const Project &project, const NextData::Recipe &recipe)
{
    qint64 largest = 0;
    for (const NextData::RecipeOutput &output : recipe.outputs())
        largest = std::max(largest, RecipeTable::bytesOf(project, output));
    return largest;
}

} // namespace

ExportProgress::ExportProgress(QWidget *parent, const Project &project, const NextData::Recipe &recipe)
    : m_busy(outermost(parent), Texts::tr("Exporting %1…").arg(project.name()), largestOutput(project, recipe))
    , m_dialog(Texts::tr("Exporting the project…"), Texts::tr("&Stop"), 0, 1, parent)
{
    m_dialog.setWindowTitle(Texts::tr("Export Project"));
    m_dialog.setMinimumWidth(titleWidth(m_dialog.windowTitle()));
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setMinimumDuration(Patience);
    m_dialog.setValue(0);
    m_sinceUpdate.start();
}

bool ExportProgress::operator()(int done, int count)
{
    if (done < count && m_sinceUpdate.elapsed() >= UpdateInterval) {
        m_dialog.setMaximum(count);
        m_dialog.setValue(done);
        m_sinceUpdate.restart();
    }
    return !m_dialog.wasCanceled();
}
