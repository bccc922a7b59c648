#include "app/documenttabview.h"

#include "app/projecttree/projecttree.h"
#include "editors/animation/blockeditorview.h"
#include "editors/animation/spriteeditorview.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "model/image.h"
#include "ui/commands.h"
#include "ui/plaintext.h"
#include "ui/svgiconengine.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTabBar>

#include <algorithm>

namespace {

constexpr const char *IdProperty = "document_id";
constexpr const char *TypeProperty = "document_type";

/// Documents of one name differ by it.
QIcon iconOf(DocumentTabView::DocumentType type)
{
    switch (type) {
    case DocumentTabView::MapDocument:
        return ProjectTree::nodeIcon(ProjectTree::MapNode);
    case DocumentTabView::ScratchDocument:
    case DocumentTabView::ImageDocument:
        return ProjectTree::nodeIcon(ProjectTree::ImageNode);
    case DocumentTabView::SpriteDocument:
        return ProjectTree::nodeIcon(ProjectTree::SpriteBankNode);
    case DocumentTabView::BlocksDocument:
        return ProjectTree::nodeIcon(ProjectTree::MapObjectsNode);
    }
    return {};
}

/// A tab bar that scrolls rather than squeezing tabs until nothing of their texts is left.
class TabBar final : public QTabBar
{
protected:
    QSize minimumTabSizeHint(int index) const override
    {
        const QSize whole = tabSizeHint(index);
        const int text = fontMetrics().horizontalAdvance(tabText(index));
        const int least = std::min(text, fontMetrics().averageCharWidth() * 14);
        return {whole.width() - text + least, whole.height()};
    }
};

} // namespace

DocumentTabView::DocumentTabView(QWidget *parent)
    : QTabWidget(parent)
    , m_scratchEditor(new ImageEditor::View(this))
    , m_close(new QAction(themedIcon(QStringLiteral(":/Clear")), tr("&Close Tab"), this))
{
    setTabBar(new TabBar);
    m_scratchEditor->setProperty(IdProperty, QUuid());
    m_scratchEditor->setProperty(TypeProperty, int(ScratchDocument));
    m_scratchEditor->hide();
    buildTabBar();
    connect(this, &QTabWidget::tabCloseRequested, this, [this](int index) { closePages({widget(index)}); });
    connect(this, &QTabWidget::tabBarClicked, this, &DocumentTabView::focusPage);
    connect(this, &QTabWidget::currentChanged, this, &DocumentTabView::currentIndexChanged);
}

void DocumentTabView::setPaintSettings(PaintSettings *settings)
{
    m_paintSettings = settings;
    m_scratchEditor->setPaintSettings(settings);
}

void DocumentTabView::buildTabBar()
{
    setTabsClosable(true);
    setDocumentMode(true);
    setElideMode(Qt::ElideMiddle);
    setTabBarAutoHide(false);
    setUsesScrollButtons(true);
    setMovable(true);
    tabBar()->setExpanding(true);
    tabBar()->installEventFilter(this);
    tabBar()->setAccessibleName(tr("Open documents"));
    setAccessibleName(tabBar()->accessibleName());
    m_close->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_W);
    connect(m_close, &QAction::triggered, this, [this] { closePages({currentWidget()}); });
    addAction(Commands::add(m_close, QStringLiteral("window.closeTab")));
}

bool DocumentTabView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != tabBar() || event->type() != QEvent::ContextMenu)
        return QTabWidget::eventFilter(watched, event);
    const auto *asked = static_cast<QContextMenuEvent *>(event); // NOLINT: its type says so
    // the keyboard asks for that of the tab in front, wherever it is in the bar
    showTabMenu(asked->reason() == QContextMenuEvent::Keyboard ? tabBar()->tabRect(currentIndex()).center()
                                                               : asked->pos());
    return true;
}

void DocumentTabView::showTabMenu(const QPoint &pos)
{
    const int tab = tabBar()->tabAt(pos);
    const QPointer<QWidget> page = widget(tab >= 0 ? tab : currentIndex());
    if (!page)
        return;
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *close = menu->addAction(m_close->icon(), m_close->text());
    close->setShortcuts(m_close->shortcuts());
    connect(close, &QAction::triggered, this, [this, page] { closePages({page}); });
    QAction *others = menu->addAction(tr("Close &Other Tabs"));
    others->setEnabled(count() > 1);
    connect(others, &QAction::triggered, this, [this, page] {
        QList<QPointer<QWidget>> pages;
        for (int index = count() - 1; index >= 0; --index) {
            if (widget(index) != page)
                pages.append(widget(index));
        }
        closePages(pages);
    });
    menu->popup(tabBar()->mapToGlobal(pos));
}

void DocumentTabView::setEmptyPage(QWidget *page)
{
    m_emptyPage = page;
    page->setParent(this);
    placeEmptyPage();
}

void DocumentTabView::placeEmptyPage()
{
    if (!m_emptyPage)
        return;
    m_emptyPage->setGeometry(rect());
    m_emptyPage->setVisible(count() == 0);
}

void DocumentTabView::resizeEvent(QResizeEvent *event)
{
    QTabWidget::resizeEvent(event);
    placeEmptyPage();
}

void DocumentTabView::tabInserted(int index)
{
    QTabWidget::tabInserted(index);
    placeEmptyPage();
}

void DocumentTabView::tabRemoved(int index)
{
    QTabWidget::tabRemoved(index);
    placeEmptyPage();
}

QUuid DocumentTabView::documentId(const QWidget *page)
{
    return page ? page->property(IdProperty).toUuid() : QUuid();
}

int DocumentTabView::indexOfDocument(const QUuid &id) const
{
    for (int index = 0; index < count(); ++index) {
        if (documentId(widget(index)) == id)
            return index;
    }
    return -1;
}

void DocumentTabView::open(QWidget *page, DocumentType type, const QUuid &id, const QString &name)
{
    // before it becomes current and is announced
    page->setProperty(IdProperty, id);
    page->setProperty(TypeProperty, int(type));
    setCurrentIndex(addTab(page, iconOf(type), withoutMnemonic(name)));
}

MapEditor::View *DocumentTabView::openMapEditor(const QPointer<Map> &map)
{
    auto *page = new MapEditor::View(map, this);
    page->grid()->setPaintsOnPress(true);
    connect(page, &MapEditor::View::placeAnimModeEnabled, this, &DocumentTabView::showAnimPicker);
    open(page, MapDocument, map->id(), map->name());
    return page;
}

ImageEditor::View *DocumentTabView::openImageEditor(const QPointer<Image> &image)
{
    auto *page = new ImageEditor::View(this);
    if (m_paintSettings)
        page->setPaintSettings(m_paintSettings);
    page->setImage(image);
    open(page, ImageDocument, image->id(), image->name());
    return page;
}

SpriteEditor::View *DocumentTabView::openSpriteEditor(const QPointer<SpriteBank> &bank)
{
    auto *page = new SpriteEditor::View(bank, this);
    open(page, SpriteDocument, bank->id(), bank->name());
    return page;
}

BlockEditor::View *DocumentTabView::openBlockEditor(const QPointer<MapObjects> &blocks)
{
    auto *page = new BlockEditor::View(blocks, this);
    open(page, BlocksDocument, blocks->id(), blocks->name());
    return page;
}

void DocumentTabView::closeTab(int index)
{
    QWidget *page = widget(index);
    if (page == m_scratchEditor)
        setScratchEditorVisible(false);
    else
        delete page;
}

void DocumentTabView::closePages(const QList<QPointer<QWidget>> &pages)
{
    for (const QPointer<QWidget> &page : pages)
        closeTab(indexOf(page));
    focusPage();
}

void DocumentTabView::closeDeleted(const QWidget *page)
{
    const QWidget *focus = window()->focusWidget();
    const QScopedValueRollback leaving(m_leavesKeyboard, focus && !isAncestorOf(focus));
    closeTab(indexOf(page));
}

void DocumentTabView::closeAllTabs()
{
    const QScopedValueRollback closing(m_closingAll, true);
    setUpdatesEnabled(false);
    while (count() > 0)
        closeTab(count() - 1);
    setUpdatesEnabled(true);
}

void DocumentTabView::closeDocument(const QUuid &id)
{
    if (!id.isNull())
        closeTab(indexOfDocument(id));
}

void DocumentTabView::renameDocument(const QUuid &id, const QString &name)
{
    if (const int index = indexOfDocument(id); !id.isNull() && index >= 0)
        setTabText(index, withoutMnemonic(name));
}

QStringList DocumentTabView::openDocumentIds() const
{
    QStringList ids;
    for (int index = 0; index < count(); ++index) {
        if (const QUuid id = documentId(widget(index)); !id.isNull())
            ids.append(id.toString());
    }
    return ids;
}

QList<MapEditor::View *> DocumentTabView::mapEditors() const
{
    QList<MapEditor::View *> editors;
    for (int index = 0; index < count(); ++index) {
        if (auto *editor = qobject_cast<MapEditor::View *>(widget(index)))
            editors.append(editor);
    }
    return editors;
}

void DocumentTabView::focusPage()
{
    QWidget *page = currentWidget();
    if (page && !page->isAncestorOf(window()->focusWidget()))
        page->setFocus(Qt::OtherFocusReason);
}

void DocumentTabView::keyPressEvent(QKeyEvent *event)
{
    const QWidget *before = currentWidget();
    QTabWidget::keyPressEvent(event);
    if (currentWidget() != before) // by Ctrl+Tab
        focusPage();
}

void DocumentTabView::currentIndexChanged(int index)
{
    QWidget *page = widget(index);
    bool isNumber = false;
    const int type = page ? page->property(TypeProperty).toInt(&isNumber) : 0;
    if (!isNumber || m_closingAll)
        return;
    // who goes from tab to tab on the bar stays there
    if (!m_leavesKeyboard && !tabBar()->hasFocus())
        page->setFocus(Qt::OtherFocusReason);
    const QUuid id = documentId(page);
    switch (type) {
    case MapDocument:
        emit MapEditorActivated(id);
        break;
    case ScratchDocument:
        emit ScratchEditorActivated();
        break;
    case ImageDocument:
        emit ImageEditorActivated(id);
        break;
    case SpriteDocument:
        emit SpriteEditorActivated(id);
        break;
    case BlocksDocument:
        emit BlockEditorActivated(id);
        break;
    default:
        break;
    }
}

void DocumentTabView::setScratchEditorVisible(bool visible)
{
    const int index = indexOf(m_scratchEditor);
    if (visible) {
        setCurrentIndex(index >= 0 ? index
                                   : addTab(m_scratchEditor, iconOf(ScratchDocument), tr("Scratch Image Editor")));
    } else if (index >= 0) {
        removeTab(index);
        m_scratchEditor->hide();
    }
    if (visible != (index >= 0))
        emit scratchEditorVisibleChanged(visible);
}
