#include "app/commands/commandpalette.h"

#include <QAbstractListModel>
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr int UsualWidth = 640;
constexpr int MostRows = 12;
constexpr int Gap = 8;

enum Role { PlaceRole = Qt::UserRole, KeysRole };

/// A row: icon, text, its place faintly, and the keys at the end.
class RowDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        return {option.fontMetrics.averageCharWidth() * 20, option.fontMetrics.lineSpacing() + Gap};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        const bool isEnabled = index.flags() & Qt::ItemIsEnabled;
        const bool isCurrent = row.state & QStyle::State_Selected;
        row.text.clear();
        row.icon = {};
        row.widget->style()->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

        const QPalette::ColorGroup group = isEnabled ? QPalette::Active : QPalette::Disabled;
        const QColor text = row.palette.color(group, isCurrent ? QPalette::HighlightedText : QPalette::Text);
        QColor faint = isCurrent || !isEnabled ? text : row.palette.color(group, QPalette::PlaceholderText);
        const bool isRightToLeft = row.direction == Qt::RightToLeft;
        QRect left = row.rect.adjusted(Gap, 0, -Gap, 0);
        const auto take = [&](int width, bool atEnd) {
            QRect part(left.topLeft(), QSize(std::min(width, left.width()), left.height()));
            if (atEnd)
                part.moveRight(left.right());
            atEnd ? left.setRight(part.left() - 1) : left.setLeft(part.right() + 1);
            return QStyle::visualRect(row.direction, row.rect, part);
        };
        const auto draw = [&](const QString &words, const QColor &colour, bool atEnd) {
            if (words.isEmpty())
                return;
            const QRect part = take(row.fontMetrics.horizontalAdvance(words) + 1, atEnd);
            painter->setPen(colour);
            painter->drawText(part,
                              Qt::TextSingleLine | Qt::AlignVCenter | (isRightToLeft ? Qt::AlignRight : Qt::AlignLeft),
                              row.fontMetrics.elidedText(words, Qt::ElideRight, part.width()));
            take(2 * Gap, atEnd);
        };
        const int extent = row.widget->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, row.widget);
        const QRect place = take(extent, false);
        qvariant_cast<QIcon>(index.data(Qt::DecorationRole))
            .paint(painter, place, Qt::AlignCenter,
                   !isEnabled ? QIcon::Disabled : (isCurrent ? QIcon::Selected : QIcon::Normal));
        take(Gap, false);
        draw(index.data(KeysRole).toString(), text, true);
        draw(index.data(Qt::DisplayRole).toString(), text, false);
        draw(index.data(PlaceRole).toString(), faint, false);
    }
};

} // namespace

/// The entries that match, best first.
class CommandPalette::Rows final : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    void setEntries(const QList<Entry> &entries, const QStringList &recent)
    {
        m_entries = entries;
        QList<CommandSearch::Item> items;
        items.reserve(entries.size());
        m_recent.clear();
        QHash<QString, int> byId;
        for (int i = 0; i < entries.size(); ++i) {
            items.append(entries.at(i).item);
            byId.insert(entries.at(i).id, i);
        }
        for (const QString &id : recent) {
            if (const auto known = byId.constFind(id); known != byId.cend())
                m_recent.append(*known);
        }
        m_search.emplace(items);
    }

    void find(const QString &query)
    {
        beginResetModel();
        m_shown = m_search->find(query, m_recent);
        endResetModel();
    }

    [[nodiscard]] const Entry &entry(int row) const { return m_entries.at(m_shown.at(row)); }

    [[nodiscard]] int rowCount(const QModelIndex &above = {}) const override
    {
        return above.isValid() ? 0 : int(m_shown.size());
    }

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        const bool isEnabled = index.isValid() && entry(index.row()).item.isEnabled;
        return isEnabled ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
    }

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override
    {
        if (!index.isValid())
            return {};
        const Entry &shown = entry(index.row());
        switch (role) {
        case Qt::DisplayRole:
            return shown.item.text;
        case Qt::DecorationRole:
            return shown.icon ? shown.icon() : QIcon();
        case PlaceRole:
        case Qt::AccessibleDescriptionRole:
            return shown.item.place;
        case KeysRole:
            return shown.keys;
        default:
            return {};
        }
    }

private:
    QList<Entry> m_entries;
    QList<int> m_recent; ///< entries
    QList<int> m_shown; ///< entries by row
    std::optional<CommandSearch> m_search;
};

CommandPalette::CommandPalette(QWidget *window)
    : QFrame(window, Qt::Popup)
    , m_query(new QLineEdit)
    , m_list(new QListView)
    , m_rows(new Rows(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName(tr("Command Palette"));
    setWindowTitle(tr("Command Palette"));
    m_query->setPlaceholderText(tr("Type a few letters of a command, an asset or a tile"));
    m_query->setAccessibleName(tr("Search"));
    m_query->setClearButtonEnabled(true);
    m_query->installEventFilter(this);
    m_list->setModel(m_rows);
    m_list->setItemDelegate(new RowDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setMouseTracking(true);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setAccessibleName(tr("What matches"));
    setFocusProxy(m_query);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_query);
    layout->addWidget(m_list);
    connect(m_query, &QLineEdit::textChanged, this, &CommandPalette::search);
    connect(m_list, &QListView::clicked, this, [this](const QModelIndex &index) { accept(index.row()); });
}

CommandPalette::~CommandPalette() = default;

void CommandPalette::open(const QList<Entry> &entries, const QStringList &recent)
{
    m_rows->setEntries(entries, recent);
    m_query->clear();
    search();
    const QWidget *window = parentWidget();
    const QRect room = QRect(window->mapToGlobal(QPoint()), window->size()) & window->screen()->availableGeometry();
    const int row = fontMetrics().lineSpacing() + Gap;
    const int rowsRoom = room.height() - m_query->sizeHint().height() - 4 * Gap;
    m_list->setFixedHeight(std::clamp(rowsRoom / row, 1, MostRows) * row);
    adjustSize();
    resize(std::min(UsualWidth, room.width()), height());
    move(room.left() + (room.width() - width()) / 2, room.top() + std::clamp(room.height() - height(), 0, 4 * row));
    show();
    m_query->setFocus(Qt::PopupFocusReason);
}

void CommandPalette::search()
{
    m_rows->find(m_query->text());
    m_list->scrollToTop();
    setCurrent(-1);
    step(1);
}

void CommandPalette::setCurrent(int row)
{
    const QModelIndex index = m_rows->index(row);
    m_list->setCurrentIndex(index);
    if (!index.isValid())
        return;
    m_list->scrollTo(index);
    QAccessibleEvent told(m_list, QAccessible::Focus); // the keyboard stays in the field
    told.setChild(row);
    QAccessible::updateAccessibility(&told);
}

void CommandPalette::step(int rows)
{
    const int count = m_rows->rowCount();
    const int current = m_list->currentIndex().row();
    for (int tried = 1; tried <= count; ++tried) {
        const int row = ((current < 0 && rows < 0 ? 0 : current) + rows * tried % count + count) % count;
        if (m_rows->entry(row).item.isEnabled) {
            setCurrent(row);
            return;
        }
    }
}

void CommandPalette::accept(int row)
{
    if (row < 0 || row >= m_rows->rowCount() || !m_rows->entry(row).item.isEnabled)
        return;
    const Entry entry = m_rows->entry(row);
    hide();
    emit chosen(entry.id);
    // when the keyboard is back where it was
    QMetaObject::invokeMethod(parentWidget(), entry.run, Qt::QueuedConnection);
}

bool CommandPalette::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Up:
        step(-1);
        return true;
    case Qt::Key_Down:
        step(1);
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QApplication::sendEvent(m_list, event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        accept(m_list->currentIndex().row());
        return true;
    case Qt::Key_Escape:
        hide();
        return true;
    default:
        return QFrame::eventFilter(watched, event);
    }
}
