#include "editors/palette/palettewindow.h"

#include "editors/palette/paletteeditor.h"
#include "editors/palette/palettegrid.h"
#include "editors/palette/palettetools.h"
#include "model/assetname.h"
#include "ui/commands.h"
#include "ui/emptyhint.h"
#include "ui/svgiconengine.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QToolButton>

PaletteWindow::PaletteWindow(QWidget *parent)
    : DockWidget(tr("Palette Editor"), tr("No palette selected"), parent)
    , m_chooser(new QComboBox)
    , m_menu(new QMenu(this))
    , m_editor(new PaletteEditor)
{
    setObjectName(QStringLiteral("paletteWindow"));
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    m_chooser->setAccessibleName(tr("Palette"));
    m_chooser->setToolTip(tr("The palettes of the project"));
    m_chooser->setMinimumContentsLength(8);
    m_chooser->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    buildMenu();
    m_tools = new PaletteTools(m_editor, m_menu, this);
    connect(m_tools, &PaletteTools::refused, this, &PaletteWindow::refused);

    auto *more = new QToolButton;
    more->setIcon(themedIcon(QStringLiteral(":/More")));
    more->setAutoRaise(true);
    more->setPopupMode(QToolButton::InstantPopup);
    more->setMenu(m_menu);
    more->setToolTip(tr("Rename, copy, delete or sort the palette"));
    more->setAccessibleName(more->toolTip());

    auto *header = new QHBoxLayout;
    header->addWidget(m_chooser, 1);
    header->addWidget(more);
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addLayout(header);
    layout->addWidget(m_editor, 1);
    auto *scroller = new QScrollArea;
    scroller->setFocusPolicy(Qt::NoFocus); // what is in it has the keyboard
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setWidgetResizable(true);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setWidget(page);
    scroller->setMinimumWidth(page->minimumSizeHint().width()
                              + scroller->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    setContent(scroller);
    scroller->addActions(m_menu->actions());

    new EmptyHint(m_editor->grid(), [this] {
        return isBlack()
            ? tr("All colours are black. Choose one and change it below, or bring in others with Palette ▸ "
                 "Import.")
            : QString();
    });

    connect(m_chooser, &QComboBox::activated, this, [this](int row) {
        if (!m_renaming)
            emit paletteChosen(m_chooser->itemData(row).toUuid());
    });
    connect(m_editor, &PaletteEditor::paletteChanged, this, &PaletteWindow::paletteChanged);
}

bool PaletteWindow::isBlack() const
{
    for (int index = 0; m_palette && index < Palette::Size; ++index) {
        if (m_palette->colour(index).rgb() != qRgb(0, 0, 0))
            return false;
    }
    return m_palette;
}

void PaletteWindow::buildMenu()
{
    const auto add = [this](const char *name, const QString &text, const QString &icon, auto request) {
        QAction *action = m_menu->addAction(themedIcon(icon), text);
        connect(action, &QAction::triggered, this, [this, request] {
            if (m_palette)
                request();
        });
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        Commands::add(action, QLatin1String(name));
    };
    add("paletteEditor.rename", tr("&Rename"), QStringLiteral(":/Rename"), [this] { startRenaming(); });
    add("paletteEditor.copy", tr("&Copy"), QStringLiteral(":/Copy"), [this] { emit copyRequested(m_palette->id()); });
    add("paletteEditor.delete", tr("&Delete"), QStringLiteral(":/Trashcan"),
        [this] { emit deleteRequested(m_palette->id()); });
}

void PaletteWindow::setUndoStackProvider(const EditRecorder::StackProvider &stackFor)
{
    m_tools->setUndoStackProvider(stackFor);
}

void PaletteWindow::setCyclingAction(QAction *action)
{
    m_tools->setCyclingAction(action);
}

void PaletteWindow::setProject(const QPointer<Project> &project)
{
    m_tools->setProject(project);
    if (m_project)
        m_project->disconnect(this);
    m_project = project;
    if (m_project) {
        for (const QPointer<Palette> &palette : m_project->palettes())
            follow(palette);
        connect(m_project, &Project::paletteCreated, this, [this](const QPointer<Palette> &palette) {
            follow(palette);
            refreshChooser();
        });
    }
    refreshChooser();
}

void PaletteWindow::follow(const QPointer<Palette> &palette)
{
    if (!palette)
        return;
    connect(palette, &Palette::nameChanged, this, [this] {
        refreshChooser();
        updateTitle();
    });
    // The project's list is without the palette once it is gone altogether.
    connect(palette, &QObject::destroyed, this, &PaletteWindow::refreshChooser, Qt::QueuedConnection);
}

void PaletteWindow::refreshChooser()
{
    const QSignalBlocker blocker(m_chooser);
    m_chooser->clear();
    if (m_project) {
        for (const QPointer<Palette> &palette : m_project->palettes())
            m_chooser->addItem(palette->name(), palette->id());
    }
    m_chooser->setCurrentIndex(m_palette ? m_chooser->findData(m_palette->id()) : -1);
}

void PaletteWindow::setPalette(const QPointer<Palette> &palette)
{
    if (m_palette)
        disconnect(m_palette, &QObject::destroyed, this, &PaletteWindow::updateTitle);
    m_palette = palette;
    if (m_palette)
        connect(m_palette, &QObject::destroyed, this, &PaletteWindow::updateTitle);
    m_editor->setPalette(palette);
    refreshChooser();
    updateTitle();
}

void PaletteWindow::updateTitle()
{
    setActive(m_palette);
    setWindowTitle(m_palette ? tr("Palette: %1").arg(m_palette->name()) : tr("Palette Editor"));
}

void PaletteWindow::colourChanged(const QColor &color, bool priority)
{
    m_editor->applyColour(color, priority);
}

void PaletteWindow::selectionChanged(int first, int last)
{
    m_editor->setSelection(first, last);
}

void PaletteWindow::createGradient()
{
    m_editor->createGradient();
}

void PaletteWindow::startRenaming()
{
    // The name is edited where it stands.
    m_renaming = true;
    m_chooser->setEditable(true);
    m_chooser->setInsertPolicy(QComboBox::NoInsert);
    m_chooser->setCompleter(nullptr);
    m_chooser->lineEdit()->setMaxLength(AssetName::MaxLength);
    m_chooser->lineEdit()->setText(m_palette->name());
    m_chooser->lineEdit()->selectAll();
    m_chooser->setFocus(Qt::OtherFocusReason);
    connect(m_chooser->lineEdit(), &QLineEdit::editingFinished, this, &PaletteWindow::finishRenaming);
}

void PaletteWindow::finishRenaming()
{
    if (!m_renaming)
        return;
    m_renaming = false;
    const QString name = m_chooser->lineEdit()->text().trimmed();
    // Clearing the field's editability deletes the line edit, whose signal this is.
    QMetaObject::invokeMethod(
        this, [this] { m_chooser->setEditable(m_renaming); }, Qt::QueuedConnection);
    const bool taken = m_project && m_project->paletteNames().contains(name);
    if (m_palette && !name.isEmpty() && !taken)
        m_palette->setName(name);
    refreshChooser();
}
