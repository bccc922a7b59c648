#include "app/editfocus.h"

#include "app/documenttabview.h"
#include "app/menus/editmenu.h"
#include "app/menus/menubar.h"
#include "editors/canvas/spritewindow.h"
#include "editors/canvas/tilewindow.h"
#include "editors/map/mapeditortoolbar.h"
#include "editors/map/mapeditorview.h"
#include "editors/palette/palettewindow.h"

#include <QApplication>
#include <QUndoGroup>

#include <utility>

EditFocus::EditFocus(const DocumentViews &views, QUndoGroup *undoGroup, EditRecorder::StackProvider stackFor,
                     QObject *parent)
    : QObject(parent)
    , m_views(views)
    , m_undoGroup(undoGroup)
    , m_stackFor(std::move(stackFor))
{
    connectEditMenu();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { followKeyboard(now); });
    connect(m_views.tabs, &QTabWidget::currentChanged, this, &EditFocus::followTab);
}

void EditFocus::connectEditMenu()
{
    EditMenu *menu = m_views.menuBar->editMenu();
    const auto forward = [this, menu](auto command, void (EditTarget::*operation)()) {
        connect(menu, command, this, [this, operation] {
            if (EditTarget *editor = target())
                (editor->*operation)();
        });
    };
    forward(&EditMenu::cut, &EditTarget::cut);
    forward(&EditMenu::copy, &EditTarget::copy);
    forward(&EditMenu::paste, &EditTarget::paste);
    forward(&EditMenu::selectAll, &EditTarget::selectAll);
    forward(&EditMenu::selectNone, &EditTarget::selectNone);
}

void EditFocus::setProject(const QPointer<Project> &project)
{
    m_project = project;
    followTab();
}

EditTarget *EditFocus::target() const
{
    return dynamic_cast<EditTarget *>(m_active.data());
}

void EditFocus::followKeyboard(QWidget *widget)
{
    if (!widget)
        return;
    for (QWidget *dock : std::initializer_list<QWidget *>{m_views.tileEditor, m_views.spriteEditor, m_views.palette}) {
        const std::optional<QUuid> shown = dock->isAncestorOf(widget) ? assetIn(dock) : std::nullopt;
        // with no document in front, colours have steps of their own
        if (shown && (dock != m_views.palette || !m_undoGroup->activeStack()))
            return activate(dock, *shown);
    }
    if (m_views.tabs->isAncestorOf(widget))
        followTab();
}

std::optional<QUuid> EditFocus::assetIn(const QWidget *dock) const
{
    const auto idOf = [](const auto &asset) { return asset ? std::optional(asset->id()) : std::nullopt; };
    if (dock == m_views.tileEditor)
        return idOf(m_views.tileEditor->tileSet());
    if (dock == m_views.spriteEditor)
        return idOf(m_views.spriteEditor->sprites());
    return dock && dock == m_views.palette ? idOf(m_views.palette->palette()) : std::nullopt;
}

void EditFocus::refresh()
{
    QWidget *dock = qobject_cast<QDockWidget *>(m_active);
    if (!dock)
        return;
    const std::optional<QUuid> shown = dock->isHidden() ? std::nullopt : assetIn(dock);
    if (shown)
        activate(dock, *shown);
    else
        followTab();
    if (dock->isHidden())
        m_views.tabs->focusPage();
}

void EditFocus::followTab()
{
    QWidget *page = m_views.tabs->currentWidget();
    serveMapEditor(page);
    if (page && m_project)
        activate(page, DocumentTabView::documentId(page));
    else
        activateNone();
}

void EditFocus::serveMapEditor(QWidget *page)
{
    auto *mapEditor = qobject_cast<MapEditor::View *>(page);
    if (m_mapEditor != mapEditor) {
        if (m_mapEditor)
            m_mapEditor->detachToolBar();
        m_mapEditor = mapEditor;
        if (mapEditor)
            mapEditor->attachToolBar(m_views.mapToolBar);
    }
    m_views.mapToolBar->setEnabled(mapEditor);
}

void EditFocus::activate(QWidget *editor, const QUuid &documentId)
{
    m_active = editor;
    m_undoGroup->setActiveStack(m_stackFor(documentId));
    m_views.menuBar->editMenu()->setClipboardEnabled(target());
}

void EditFocus::activateNone()
{
    m_active.clear();
    m_undoGroup->setActiveStack(nullptr);
    m_views.menuBar->editMenu()->setClipboardEnabled(false);
}
