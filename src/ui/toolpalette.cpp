#include "ui/toolpalette.h"

#include "ui/commands.h"
#include "ui/flowlayout.h"
#include "ui/svgiconengine.h"

#include <QAction>
#include <QActionGroup>
#include <QGridLayout>
#include <QMetaEnum>
#include <QToolButton>

#include <algorithm>

using Quenmora::Ui::ToolButton;

namespace {

constexpr int IconExtent = 24; // the size that the pictures are drawn on: whole pixels, crisp lines
constexpr int UsualColumns = 2; // of a vertical palette
constexpr int LeastRows = 5;
constexpr int StretchedRow = 100; // behind all buttons

int rowsOf(qsizetype count, int columns)
{
    return int((count + columns - 1) / columns);
}

/// "mapEditor.rectangleFill" of "mapEditor" and RectangleFill.
QString nameOf(const QString &place, ToolButton button)
{
    QString name = QLatin1String(QMetaEnum::fromType<ToolButton>().valueToKey(button));
    name[0] = name.at(0).toLower();
    return place + u'.' + name;
}

} // namespace

ToolPalette::ToolPalette(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , m_orientation(orientation)
    , m_tools(new QActionGroup(this))
    , m_columns(UsualColumns)
{
    QLayout *layout = nullptr;
    if (orientation == Qt::Vertical) {
        auto *grid = new QGridLayout(this);
        grid->setRowStretch(StretchedRow, 1);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
        layout = grid;
    } else {
        layout = new FlowLayout(this);
    }
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(1);
}

ToolPalette::Entry ToolPalette::entryOf(ToolButton button)
{
    const auto entry = [button](const char *icon, const QString &text, Kind kind = Command) {
        return Entry{button, QLatin1String(icon), text, kind, {}};
    };
    switch (button) {
    case Quenmora::Ui::Draw:
        return entry(":/Draw", tr("Draw"), Tool);
    case Quenmora::Ui::Line:
        return entry(":/Line", tr("Line"), Tool);
    case Quenmora::Ui::Rectangle:
        return entry(":/Rectangle", tr("Rectangle"), Tool);
    case Quenmora::Ui::RectangleFill:
        return entry(":/RectangleFill", tr("Filled rectangle"), Tool);
    case Quenmora::Ui::Circle:
        return entry(":/Circle", tr("Circle"), Tool);
    case Quenmora::Ui::CircleFill:
        return entry(":/CircleFill", tr("Filled circle"), Tool);
    case Quenmora::Ui::Select:
        return entry(":/Select", tr("Select"), Tool);
    case Quenmora::Ui::Paste:
        return entry(":/Paste", tr("Paste"));
    case Quenmora::Ui::Fill:
        return entry(":/Fill", tr("Fill"), Tool);
    case Quenmora::Ui::Pick:
        return entry(":/Picker", tr("Pick"), Tool);
    case Quenmora::Ui::Resize:
        return entry(":/Resize", tr("Resize"));
    case Quenmora::Ui::Grid:
        return entry(":/Grid", tr("Toggle Grid"), Toggle);
    case Quenmora::Ui::ZoomIn:
        return entry(":/ZoomIn", tr("Zoom In"));
    case Quenmora::Ui::ZoomOut:
        return entry(":/ZoomOut", tr("Zoom Out"));
    case Quenmora::Ui::RotateCW:
        return entry(":/RotateCW", tr("Rotate clockwise"));
    case Quenmora::Ui::RotateCCW:
        return entry(":/RotateCCW", tr("Rotate anticlockwise"));
    case Quenmora::Ui::MoveUp:
        return entry(":/Arrow/N", tr("Up"));
    case Quenmora::Ui::MoveDown:
        return entry(":/Arrow/S", tr("Down"));
    case Quenmora::Ui::MoveLeft:
        return entry(":/Arrow/W", tr("Left"));
    case Quenmora::Ui::MoveRight:
        return entry(":/Arrow/E", tr("Right"));
    case Quenmora::Ui::Cut:
        return entry(":/Cut", tr("Cut"));
    case Quenmora::Ui::Copy:
        return entry(":/Copy", tr("Copy"));
    case Quenmora::Ui::Crop:
        return entry(":/Crop", tr("Crop"));
    case Quenmora::Ui::Erase:
        return entry(":/Erase", tr("Erase"));
    case Quenmora::Ui::Flip:
        return entry(":/Flip", tr("Flip top to bottom"));
    case Quenmora::Ui::Mirror:
        return entry(":/Mirror", tr("Mirror left to right"));
    case Quenmora::Ui::PaintPalette:
        return entry(":/Palette", tr("Reset all palette offsets"));
    case Quenmora::Ui::Open:
        return entry(":/Open", tr("Open"));
    case Quenmora::Ui::Save:
        return entry(":/Save", tr("Save"));
    case Quenmora::Ui::AnimPlay:
        return entry(":/AnimPlay", tr("Play Animations"), Toggle);
    case Quenmora::Ui::AnimStop:
        return entry(":/AnimStop", tr("Stop Animations"));
    case Quenmora::Ui::ExpandToFit:
        return entry(":/ExpandToFit", tr("Fit to window"));
    case Quenmora::Ui::PlaceAnim:
        return entry(":/PlaceAnim", tr("Place animations"), Tool);
    case Quenmora::Ui::PlaceSprite:
        return entry(":/PlaceSprite", tr("Place sprites"), Tool);
    case Quenmora::Ui::ShrinkToFit:
        return entry(":/ShrinkToFit", tr("Shrink to fit"));
    case Quenmora::Ui::ToggleViewport:
        return entry(":/ToggleViewport", tr("Toggle viewport"), Toggle);
    case Quenmora::Ui::PaintTerrain:
        return entry(":/Terrain", tr("Paint terrain"), Tool);
    case Quenmora::Ui::RandomTiles:
        return entry(":/Random", tr("Random tiles of the stamp"), Toggle);
    case Quenmora::Ui::_end_toggles:
        break;
    }
    Q_UNREACHABLE();
}

QAction *ToolPalette::addEntry(const Entry &entry)
{
    if (QAction *present = action(entry.button)) {
        return present;
    }
    auto *added = new QAction(themedIcon(entry.icon), entry.text, this);
    added->setCheckable(entry.kind != Command);
    added->setShortcuts(entry.shortcuts);
    added->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    if (!m_place.isEmpty())
        Commands::add(added, nameOf(m_place, entry.button));
    showKeys(added, entry.text);
    if (entry.kind == Tool) {
        m_tools->addAction(added);
    }
    connect(added, &QAction::triggered, this,
            [this, button = entry.button](bool checked) { emit actionActivated(button, checked); });
    m_actions.insert(entry.button, added);
    addAction(added);

    auto *button = new QToolButton(this);
    button->setDefaultAction(added);
    button->setAccessibleName(entry.text);
    button->setIconSize({IconExtent, IconExtent});
    button->setAutoRaise(true);
    m_buttons.append(button);
    place(int(m_buttons.size()) - 1);
    return added;
}

void ToolPalette::showKeys(QAction *action, const QString &text)
{
    const auto tip = [action, text] {
        const QList<QKeySequence> keys = action->shortcuts();
        return keys.isEmpty() ? text : tr("%1 [%2]").arg(text, keys.first().toString(QKeySequence::NativeText));
    };
    action->setToolTip(tip());
    connect(Commands::instance(), &Commands::keysChanged, action, [action, tip, shown = tip()]() mutable {
        if (action->toolTip() == shown) // else the editor says something of its own
            action->setToolTip(shown = tip());
    });
}

ToolButton ToolPalette::mode() const
{
    return m_actions.key(m_tools->checkedAction(), Quenmora::Ui::_end_toggles);
}

void ToolPalette::setMode(ToolButton mode)
{
    QAction *const tool = action(mode);
    if (tool && tool->actionGroup() == m_tools) {
        tool->setChecked(true);
    }
}

void ToolPalette::toggleAction(ToolButton mode)
{
    if (QAction *const found = action(mode)) {
        found->trigger();
    }
}

void ToolPalette::setActionChecked(ToolButton mode, bool checked)
{
    QAction *const found = action(mode);
    if (found && found->isCheckable()) {
        found->setChecked(checked);
        emit actionActivated(mode, checked);
    }
}

void ToolPalette::setToolEnabled(ToolButton mode, bool enabled)
{
    if (QAction *const found = action(mode)) {
        found->setEnabled(enabled);
    }
}

void ToolPalette::setShowGridChecked(bool checked)
{
    if (QAction *const grid = action(Quenmora::Ui::Grid); grid && grid->isCheckable()) {
        grid->setChecked(checked);
    }
}

// Layout

void ToolPalette::place(int index)
{
    if (m_orientation == Qt::Horizontal)
        layout()->addWidget(m_buttons.at(index));
    else
        static_cast<QGridLayout *>(layout())->addWidget(m_buttons.at(index), index / m_columns, index % m_columns);
}

QSize ToolPalette::sizeOfRows(int rows) const
{
    const QSize button = m_buttons.isEmpty() ? QSize() : m_buttons.first()->sizeHint();
    const QSize pitch = button + QSize(layout()->spacing(), layout()->spacing());
    const QSize cells(m_columns * pitch.width(), rows * pitch.height());
    return (cells - (pitch - button)).grownBy(layout()->contentsMargins());
}

QSize ToolPalette::sizeHint() const
{
    return m_orientation == Qt::Vertical ? sizeOfRows(rowsOf(m_buttons.size(), UsualColumns)) : QWidget::sizeHint();
}

QSize ToolPalette::minimumSizeHint() const
{
    return m_orientation == Qt::Vertical ? sizeOfRows(std::min(LeastRows, rowsOf(m_buttons.size(), UsualColumns)))
                                         : QWidget::minimumSizeHint();
}

void ToolPalette::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_orientation == Qt::Horizontal || m_buttons.isEmpty())
        return;
    int rows = LeastRows;
    while (rows < m_buttons.size() && sizeOfRows(rows + 1).height() <= height())
        ++rows;
    const int columns = std::max(UsualColumns, rowsOf(m_buttons.size(), rows));
    if (columns == m_columns)
        return;
    m_columns = columns;
    for (int index = 0; index < m_buttons.size(); ++index)
        place(index);
    updateGeometry(); // it is wider now, or narrower
}
