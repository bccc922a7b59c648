#include "app/projecttree/projecttree.h"

#include "model/assetname.h"
#include "ui/commands.h"
#include "ui/svgiconengine.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QStyledItemDelegate>
#include <QTreeWidgetItemIterator>

#include <array>

namespace {

struct Group
{
    const char *text;
    Qt::GlobalColor colour;
    const char *icon; ///< of the assets in it
};

// in the order of ProjectTree::ProjectNode
constexpr std::array<Group, ProjectTree::NodeCount> Groups{{
    {QT_TRANSLATE_NOOP("ProjectTree", "Palettes"), Qt::blue, ":/Palette"},
    {QT_TRANSLATE_NOOP("ProjectTree", "Tile Sets"), Qt::red, ":/LayerTiles"},
    {QT_TRANSLATE_NOOP("ProjectTree", "Objects"), Qt::magenta, ":/MapObjects"},
    {QT_TRANSLATE_NOOP("ProjectTree", "Sprites"), Qt::green, ":/LayerSprites"},
    {QT_TRANSLATE_NOOP("ProjectTree", "Maps"), Qt::cyan, ":/Map"},
    {QT_TRANSLATE_NOOP("ProjectTree", "Images"), Qt::yellow, ":/Image"},
}};

constexpr int LighterFactor = 150;
/// Behind the light colours of the groups, which a light theme would swallow
constexpr QColor GroupBackground(56, 56, 64);

/// Lets nobody type an endless name.
class NameDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto *name = qobject_cast<QLineEdit *>(editor))
            name->setMaxLength(AssetName::MaxLength);
        return editor;
    }
};

QVariant dataOf(const QTreeWidgetItem *item)
{
    return item ? item->data(0, Qt::UserRole) : QVariant();
}

bool holdsId(const QVariant &data)
{
    return data.metaType() == QMetaType::fromType<QUuid>();
}

} // namespace

QString ProjectTree::nodeName(ProjectNode node)
{
    switch (node) {
    case PaletteNode:
        return tr("Palette");
    case TileSetNode:
        return tr("Tile Set");
    case MapObjectsNode:
        return tr("Map Objects");
    case SpriteBankNode:
        return tr("Sprite Bank");
    case MapNode:
        return tr("Map");
    case ImageNode:
        return tr("Image");
    }
    return {};
}

QIcon ProjectTree::nodeIcon(ProjectNode node)
{
    return themedIcon(QLatin1StringView(Groups[size_t(node)].icon));
}

ProjectTree::ProjectTree(QWidget *parent) : QTreeWidget(parent), m_menu(new QMenu(this))
{
    setColumnCount(1);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setExpandsOnDoubleClick(false); // it opens the asset
    setContextMenuPolicy(Qt::CustomContextMenu);
    setEditTriggers(EditKeyPressed);
    setItemDelegate(new NameDelegate(this));
    setAccessibleName(tr("Project"));
    setFrameShape(QFrame::NoFrame);
    buildMenu();
    connect(this, &QTreeWidget::customContextMenuRequested, this, &ProjectTree::showContextMenu);
    connect(this, &QTreeWidget::itemDoubleClicked, this, &ProjectTree::doubleClickFilter);
}

void ProjectTree::buildMenu()
{
    QAction *rename = m_menu->addAction(themedIcon(QStringLiteral(":/Rename")), tr("&Rename"));
    Commands::addPointed(rename, QStringLiteral("projectTree.rename"));
    connect(rename, &QAction::triggered, this, [this] { editItem(currentItem()); });
    const auto add = [this](const char *name, const QString &text, const QString &icon, auto request) {
        QAction *action = m_menu->addAction(themedIcon(icon), text);
        connect(action, &QAction::triggered, this, [this, request] {
            ProjectNode node;
            QUuid id;
            if (identify(currentItem(), node, id))
                emit(this->*request)(node, id);
        });
        return Commands::addPointed(action, QLatin1String(name));
    };
    add("projectTree.delete", tr("&Delete"), QStringLiteral(":/Trashcan"), &ProjectTree::deleteItem);
    m_copy = add("projectTree.copy", tr("&Copy"), QStringLiteral(":/Copy"), &ProjectTree::copyItem);
    m_menu->addSeparator();
    m_importAgain =
        add("projectTree.importAgain", tr("Import A&gain"), QStringLiteral(":/Import"), &ProjectTree::importItemAgain);
}

void ProjectTree::showProject(const QPointer<Project> &project)
{
    clear();
    if (!project)
        return;
    auto *root = new QTreeWidgetItem(this, {project->name()});
    root->setIcon(0, themedIcon(QStringLiteral(":/Project")));
    QFont bold = font();
    bold.setBold(true);
    for (int node = 0; node < NodeCount; ++node) {
        const Group &group = Groups[size_t(node)];
        auto *item = new QTreeWidgetItem(root, {tr(group.text)});
        item->setFont(0, bold);
        item->setForeground(0, QColor(group.colour).lighter(LighterFactor));
        item->setBackground(0, GroupBackground);
        item->setData(0, Qt::UserRole, node);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        item->setHidden(true);
    }
    expandAll();
}

QTreeWidgetItem *ProjectTree::group(ProjectNode node) const
{
    return topLevelItem(0)->child(node);
}

void ProjectTree::addAsset(ProjectNode node, const QUuid &id, const QString &name, const QUuid &parent)
{
    if (!topLevelItem(0))
        return;
    QTreeWidgetItem *above = node == MapObjectsNode ? itemOf(parent) : nullptr;
    if (!above)
        above = group(node);
    auto *item = new QTreeWidgetItem({name});
    item->setIcon(0, nodeIcon(node));
    item->setData(0, Qt::UserRole, id);
    item->setData(0, Qt::AccessibleDescriptionRole, nodeName(node)); // the icon says it to those who see it
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    place(item, above);
}

void ProjectTree::place(QTreeWidgetItem *item, QTreeWidgetItem *above)
{
    above->addChild(item);
    above->setHidden(above == group(PaletteNode));
    above->sortChildren(0, Qt::AscendingOrder);
    above->setExpanded(true);
}

void ProjectTree::removeAsset(const QUuid &id)
{
    QTreeWidgetItem *item = itemOf(id);
    if (!item)
        return;
    while (item->childCount() > 0) // block sets outlive their tile set
        place(item->takeChild(0), group(MapObjectsNode));
    QTreeWidgetItem *above = item->parent();
    delete item;
    if (above->childCount() == 0 && !holdsId(dataOf(above)))
        above->setHidden(true);
}

bool ProjectTree::isEmpty() const
{
    for (int node = PaletteNode + 1; node < NodeCount && topLevelItem(0); ++node) {
        if (group(ProjectNode(node))->childCount() > 0)
            return false;
    }
    return true;
}

QTreeWidgetItem *ProjectTree::itemOf(const QUuid &id) const
{
    if (id.isNull())
        return nullptr;
    for (QTreeWidgetItemIterator item(const_cast<ProjectTree *>(this)); *item; ++item) {
        if (dataOf(*item) == QVariant(id))
            return *item;
    }
    return nullptr;
}

bool ProjectTree::identify(const QTreeWidgetItem *item, ProjectNode &node, QUuid &id)
{
    const QVariant data = dataOf(item);
    const QVariant above = item ? dataOf(item->parent()) : QVariant();
    if (!holdsId(data) || data.toUuid().isNull() || !above.isValid())
        return false;
    node = holdsId(above) ? MapObjectsNode : ProjectNode(above.toInt());
    id = data.toUuid();
    return true;
}

void ProjectTree::doubleClickFilter(QTreeWidgetItem *item, int)
{
    ProjectNode node;
    QUuid id;
    if (identify(item, node, id))
        emit itemDoubleClicked(node, id);
}

void ProjectTree::showContextMenu(QPoint pos)
{
    openMenu(itemAt(pos), viewport()->mapToGlobal(pos));
}

void ProjectTree::showItemContextMenu()
{
    openMenu(currentItem(), viewport()->mapToGlobal(visualItemRect(currentItem()).bottomLeft()));
}

void ProjectTree::openMenu(QTreeWidgetItem *item, const QPoint &globalPos)
{
    ProjectNode node;
    QUuid id;
    if (!identify(item, node, id))
        return;
    setCurrentItem(item);
    m_copy->setEnabled(node == PaletteNode || node == TileSetNode || node == MapNode); // there is no copy of others
    m_importAgain->setEnabled(m_canImportAgain(id));
    m_menu->popup(globalPos);
}

void ProjectTree::keyPressEvent(QKeyEvent *event)
{
    ProjectNode node;
    QUuid id;
    const bool editing = state() == EditingState;
    if (!editing && identify(currentItem(), node, id)) {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            emit itemDoubleClicked(node, id);
            return;
        }
        if (event->matches(QKeySequence::Delete)) {
            if (!event->isAutoRepeat()) // one press, one asset
                emit deleteItem(node, id);
            return;
        }
    }
    QTreeWidget::keyPressEvent(event);
}
