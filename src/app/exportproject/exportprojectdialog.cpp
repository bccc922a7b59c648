#include "app/exportproject/exportprojectdialog.h"

#include "app/exportproject/addoutputsdialog.h"
#include "app/exportproject/exportprogress.h"
#include "app/exportproject/exportreport.h"
#include "app/exportproject/outputdialog.h"
#include "app/exportproject/outputpreview.h"
#include "app/exportproject/recipetable.h"
#include "app/exportproject/severaloutputsdialog.h"
#include "model/plural.h"
#include "model/project.h"
#include "ui/assettitle.h"
#include "ui/sectionheader.h"
#include "ui/svgiconengine.h"
#include "ui/titlewidth.h"
#include "ui/toolbarkeys.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <utility>

using namespace NextData;

namespace {

constexpr QSize UsualSize(920, 600);
constexpr int ColumnWidths[RecipeTable::ColumnCount] = {150, 215, 215, 80, 80, 120}; // the last one stretches
constexpr int NarrowestColumn = 60;

} // namespace

ExportProjectDialog::ExportProjectDialog(QWidget *parent)
    : QDialog(parent)
    , m_save([](const Recipe &) { return false; })
    , m_table(new RecipeTable(this))
    , m_view(new QTableView(this))
    , m_pages(new QStackedWidget(this))
    , m_previewTitle(new SectionHeader(tr("Preview"), this))
    , m_preview(new OutputPreview(this))
    , m_sum(new QLabel(this))
{
    setWindowTitle(tr("Export Project"));
    setModal(true);
    setMinimumWidth(titleWidth(windowTitle()));
    buildActions();

    m_previewPart = SectionHeader::over(m_preview, m_previewTitle);
    auto *split = new QSplitter(Qt::Vertical, this);
    split->addWidget(buildTable());
    split->addWidget(m_previewPart);
    split->setStretchFactor(0, 3);
    split->setStretchFactor(1, 1);
    split->setCollapsible(0, false);
    m_sum->setTextFormat(Qt::PlainText);
    m_sum->setWordWrap(true);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(split, 1);
    layout->addWidget(m_sum);
    layout->addWidget(buildButtons());

    m_previewDelay.setSingleShot(true);
    m_previewDelay.setInterval(0);
    connect(&m_previewDelay, &QTimer::timeout, this, &ExportProjectDialog::showPreview);
    connect(m_table, &RecipeTable::looked, this, [this] {
        showSum();
        if (m_awaitsPreview || !m_table->isLooking())
            m_previewDelay.start();
    });
    connect(m_table, &RecipeTable::modelReset, this, [this] {
        m_result.clear();
        follow();
    });
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ExportProjectDialog::follow);
    resize(UsualSize.boundedTo(screen()->availableSize() - QSize(40, 60)));
}

// How it is built

void ExportProjectDialog::buildActions()
{
    const auto action = [this](const QString &text, const QString &icon, const QString &toolTip,
                               const QList<QKeySequence> &shortcuts, auto slot) {
        auto *made = new QAction(themedIcon(icon), text, this);
        made->setToolTip(tr("%1 [%2]").arg(toolTip, shortcuts.first().toString(QKeySequence::NativeText)));
        made->setShortcuts(shortcuts);
        // for the table alone: Enter and Delete mean other things in other places
        made->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(made, &QAction::triggered, this, slot);
        m_view->addAction(made);
        return made;
    };
    m_add = action(tr("&Add…"), QStringLiteral(":/Plus"), tr("Adds assets of the project"), {Qt::Key_Insert},
                   &ExportProjectDialog::addOutputs);
    m_edit = action(tr("&Edit…"), QStringLiteral(":/Draw"), tr("Changes form, options and file"),
                    {Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2}, &ExportProjectDialog::editOutput);
    m_duplicate = action(tr("D&uplicate"), QStringLiteral(":/Copy"), tr("Adds a copy, for another form or file"),
                         {Qt::CTRL | Qt::Key_D}, &ExportProjectDialog::duplicateOutputs);
    m_remove = action(tr("&Remove"), QStringLiteral(":/Trashcan"), tr("Takes it out of the recipe; its file stays"),
                      {Qt::Key_Delete}, &ExportProjectDialog::removeOutputs);
}

QWidget *ExportProjectDialog::buildTable()
{
    m_view->setModel(m_table);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setTabKeyNavigation(false);
    m_view->setAlternatingRowColors(true);
    m_view->setShowGrid(false);
    m_view->setWordWrap(false);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_view->setAccessibleName(tr("Outputs"));
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    m_view->horizontalHeader()->setHighlightSections(false);
    m_view->horizontalHeader()->setStretchLastSection(true);
    for (int column = 0; column < RecipeTable::ColumnCount; ++column)
        m_view->setColumnWidth(column,
                               std::max(ColumnWidths[column], m_view->horizontalHeader()->sectionSizeHint(column)));
    m_width = UsualSize.width();
    connect(m_view, &QTableView::doubleClicked, this, &ExportProjectDialog::editOutput);

    m_pages->addWidget(m_view);
    m_pages->addWidget(buildFirstStep());

    m_tools = new QToolBar(this);
    m_tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_tools->setIconSize({16, 16});
    m_tools->addActions({m_add, m_edit, m_duplicate, m_remove});
    letKeysReach(m_tools);
    auto *part = new QWidget(this);
    auto *layout = new QVBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tools);
    layout->addWidget(m_pages, 1);
    return part;
}

/// What to begin with, in place of an empty table.
QWidget *ExportProjectDialog::buildFirstStep()
{
    auto *picture = new QLabel;
    picture->setPixmap(themedIcon(QStringLiteral(":/Export")).pixmap(QSize(48, 48), devicePixelRatioF()));
    auto *text = new QLabel(tr("The game takes nothing of this project yet.\n\nAdd palettes, tiles, maps with what is "
                               "placed on them, sprites, animations and images, each in the form that the game loads. "
                               "From then on one key writes all that has changed."));
    text->setAlignment(Qt::AlignCenter);
    text->setWordWrap(true);
    m_firstStep = new QPushButton(themedIcon(QStringLiteral(":/Plus")), tr("&Add Assets…"));
    connect(m_firstStep, &QPushButton::clicked, this, &ExportProjectDialog::addOutputs);

    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    layout->setSpacing(16);
    layout->addStretch(1);
    layout->addWidget(picture, 0, Qt::AlignHCenter);
    layout->addWidget(text);
    layout->addWidget(m_firstStep, 0, Qt::AlignHCenter);
    layout->addStretch(2);
    return page;
}

QWidget *ExportProjectDialog::buildButtons()
{
    auto *buttons = new QDialogButtonBox(this);
    m_exportButton = buttons->addButton(tr("E&xport"), QDialogButtonBox::ActionRole);
    m_exportButton->setIcon(themedIcon(QStringLiteral(":/Export")));
    m_exportButton->setToolTip(tr("Saves the recipe and writes what is new or changed"));
    m_saveButton = buttons->addButton(QDialogButtonBox::Save);
    m_saveButton->setToolTip(tr("Saves the recipe beside the project and writes nothing else"));
    m_closeButton = buttons->addButton(QDialogButtonBox::Cancel);
    m_exportButton->setDefault(true);
    connect(m_exportButton, &QPushButton::clicked, this, &ExportProjectDialog::exportAll);
    connect(m_saveButton, &QPushButton::clicked, this, &ExportProjectDialog::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportProjectDialog::reject);
    return buttons;
}

void ExportProjectDialog::show(const Project &project, const QString &projectFile, const Recipe &recipe, bool isNew)
{
    m_project = &project;
    m_projectFile = projectFile;
    m_isNew = isNew;
    nameInTitleBar(*this, project.name());
    m_table->open(project, projectFile, recipe);
    if (m_table->rowCount() > 0)
        m_view->selectRow(0);
    follow();
    (m_table->rowCount() > 0 ? static_cast<QWidget *>(m_view) : m_firstStep)->setFocus();
    open();
}

void ExportProjectDialog::done(int result)
{
    QDialog::done(result);
    m_table->close();
    m_project.clear();
}

void ExportProjectDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    // the columns of words share what there is more or less than before
    const int before = std::exchange(m_width, width());
    for (const auto &[column, percent] :
         {std::pair(RecipeTable::AssetColumn, 26), {RecipeTable::FormColumn, 37}, {RecipeTable::FileColumn, 37}}) {
        const int more = width() * percent / 100 - before * percent / 100; // which add up, however small the steps
        m_view->setColumnWidth(column, std::max(m_view->columnWidth(column) + more, NarrowestColumn));
    }
}

bool ExportProjectDialog::event(QEvent *event)
{
    // a build may have written or removed files meanwhile
    if (event->type() == QEvent::WindowActivate)
        m_table->lookAgain();
    return QDialog::event(event);
}

// What is done with outputs

QList<int> ExportProjectDialog::selectedRows() const
{
    QList<int> rows;
    for (const QModelIndex &index : m_view->selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

int ExportProjectDialog::shownRow() const
{
    const QList<int> rows = selectedRows();
    const int current = m_view->currentIndex().row();
    return rows.contains(current) ? current : rows.value(0, -1);
}

void ExportProjectDialog::select(const QStringList &files)
{
    QItemSelection selection;
    const QSet<QString> wanted(files.cbegin(), files.cend());
    for (int row = 0; row < m_table->rowCount(); ++row) {
        if (wanted.contains(m_table->output(row).file))
            selection.select(m_table->index(row, 0), m_table->index(row, RecipeTable::ColumnCount - 1));
    }
    if (selection.isEmpty())
        return;
    const QModelIndex first = m_table->index(selection.constFirst().top(), 0);
    m_view->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    m_view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    m_view->scrollTo(first);
    m_view->setFocus();
}

void ExportProjectDialog::addOutputs()
{
    if (!m_addDialog) {
        m_addDialog = new AddOutputsDialog(this);
        connect(m_addDialog, &AddOutputsDialog::accepted, this, [this](const QList<RecipeOutput> &outputs) {
            m_table->add(outputs);
            QStringList files;
            for (const RecipeOutput &output : outputs)
                files.append(output.file);
            select(files);
        });
    }
    if (m_project)
        m_addDialog->show(*m_project, m_table->recipe());
}

void ExportProjectDialog::editOutput()
{
    const int row = shownRow();
    if (row < 0 || !m_project)
        return;
    if (selectedRows().size() > 1)
        return editSeveral();
    if (!m_outputDialog) {
        m_outputDialog = new OutputDialog(this);
        connect(m_outputDialog, &OutputDialog::accepted, this, &ExportProjectDialog::replaceOutput);
    }
    QList<RecipeOutput> others = m_table->recipe().outputs();
    const RecipeOutput edited = others.takeAt(row);
    m_edited = edited.file;
    m_outputDialog->show(*m_project, edited, TakenFiles(others));
}

void ExportProjectDialog::editSeveral()
{
    if (!m_severalDialog) {
        m_severalDialog = new SeveralOutputsDialog(this);
        connect(m_severalDialog, &SeveralOutputsDialog::accepted, this, [this](const QMap<QString, QString> &options) {
            select(m_table->setOptions(selectedRows(), options));
        });
    }
    m_severalDialog->show(int(selectedRows().size()));
}

void ExportProjectDialog::replaceOutput(const RecipeOutput &output)
{
    if (const int row = m_table->rowOf(m_edited); row >= 0) {
        m_table->replace(row, output);
        select({output.file});
    }
}

void ExportProjectDialog::duplicateOutputs()
{
    if (const QList<int> rows = selectedRows(); !rows.isEmpty())
        select(m_table->duplicate(rows));
}

void ExportProjectDialog::removeOutputs()
{
    const QList<int> rows = selectedRows();
    if (rows.isEmpty())
        return;
    m_table->remove(rows);
    if (m_table->rowCount() > 0)
        select({m_table->output(std::min(rows.first(), m_table->rowCount() - 1)).file});
    else
        m_firstStep->setFocus();
}

// What is done with all of them

bool ExportProjectDialog::saveRecipe()
{
    if (!m_isNew && !m_table->isModified())
        return true;
    if (!m_save(m_table->recipe()))
        return false;
    m_isNew = false;
    m_table->setSaved();
    follow();
    return true;
}

void ExportProjectDialog::save()
{
    if (saveRecipe())
        accept();
}

void ExportProjectDialog::exportAll()
{
    if (!m_project || !saveRecipe())
        return;
    QList<RecipeRun::Outcome> outcomes;
    {
        ExportProgress progress(this, *m_project, m_table->recipe());
        outcomes = m_table->run(std::ref(progress));
    }
    QStringList failed;
    for (int row = 0; row < outcomes.size(); ++row) {
        if (outcomes[row].state == RecipeRun::State::Impossible)
            failed.append(m_table->output(row).file);
    }
    select(failed);
    const ExportReport report(m_table->recipe(), outcomes, QFileInfo(m_projectFile).path());
    m_result = report.text();
    showSum();
    emit exported(report);
}

// What is shown

void ExportProjectDialog::follow()
{
    const QList<int> rows = selectedRows();
    const bool isEmpty = m_table->rowCount() == 0;
    m_pages->setCurrentIndex(isEmpty ? 1 : 0);
    m_tools->setVisible(!isEmpty);
    m_previewPart->setVisible(!isEmpty);
    (isEmpty ? m_firstStep : m_exportButton)->setDefault(true);
    m_edit->setEnabled(!rows.isEmpty());
    m_duplicate->setEnabled(!rows.isEmpty());
    m_remove->setEnabled(!rows.isEmpty());
    m_exportButton->setEnabled(m_table->rowCount() > 0);
    const bool isModified = m_isNew || m_table->isModified();
    m_saveButton->setEnabled(isModified);
    m_closeButton->setText(isModified ? tr("Cancel") : tr("Close"));
    showSum();
    m_previewDelay.start();
}

void ExportProjectDialog::showSum()
{
    const RecipeTable::Sum sum = m_table->sum();
    const int outputs = m_table->rowCount();
    QStringList parts{outputs == 1 ? tr("1 output") : tr("%Ln outputs", nullptr, outputs),
                      tr("%Ln bytes", nullptr, plural(sum.bytes)), RecipeTable::pagesText(sum.pages)};
    if (const int count = sum.count.value(RecipeTable::State::New))
        parts.append(tr("%Ln new", nullptr, count));
    if (const int count = sum.count.value(RecipeTable::State::Changed))
        parts.append(tr("%Ln changed", nullptr, count));
    if (const int count = sum.count.value(RecipeTable::State::Unchanged))
        parts.append(tr("%Ln unchanged", nullptr, count));
    if (const int count = sum.count.value(RecipeTable::State::Impossible))
        parts.append(tr("%Ln cannot be", nullptr, count));
    if (sum.unknown > 0)
        parts.append(tr("%Ln to be looked at", nullptr, sum.unknown));
    const QString text = parts.join(QStringLiteral(" · "));
    m_sum->setText(m_result.isEmpty() ? text : m_result + u'\n' + text);
    m_sum->setVisible(m_table->rowCount() > 0);
}

void ExportProjectDialog::showPreview()
{
    const int row = shownRow();
    // before its turn it would take all the labels of source text in front of it
    m_awaitsPreview = row >= 0 && !m_table->outcome(row);
    if (row < 0 || m_awaitsPreview) {
        m_previewTitle->setText(tr("Preview"));
        m_preview->clear();
        return;
    }
    const RecipeOutput &output = m_table->output(row);
    m_previewTitle->setText(tr("Preview of %1").arg(output.file));
    if (const RecipeRun::Outcome &outcome = *m_table->outcome(row); outcome.state == RecipeRun::State::Impossible)
        return m_preview->setPlainText(outcome.reason);
    const Result<QList<OutputFile>> files = m_table->make(row);
    if (files)
        m_preview->showFiles(*files, output.options.contains(QStringLiteral("text")));
    else
        m_preview->setPlainText(files.reason());
}
