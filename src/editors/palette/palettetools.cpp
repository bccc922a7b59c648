#include "editors/palette/palettetools.h"

#include "editors/palette/colourcyclesdialog.h"
#include "editors/palette/paletteeditor.h"
#include "editors/palette/palettegrid.h"
#include "model/plural.h"
#include "model/projectextras.h"
#include "ui/commands.h"
#include "ui/svgiconengine.h"
#include "undo/paletteordercommand.h"
#include "undo/reorderedcycles.h"

#include <QMenu>
#include <QUndoStack>

#include <algorithm>

PaletteTools::PaletteTools(PaletteEditor *editor, QMenu *menu, QObject *parent) : QObject(parent), m_editor(editor)
{
    const auto add = [this, menu](const char *name, const QString &icon, const QString &text, const QString &toolTip,
                                  auto run) {
        QAction *action = menu->addAction(themedIcon(icon), text);
        action->setToolTip(toolTip);
        action->setStatusTip(toolTip);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        Commands::add(action, QLatin1String("paletteEditor.") + QLatin1String(name));
        connect(action, &QAction::triggered, this, run);
    };
    const auto addOrder = [&](const char *name, const QString &icon, const QString &text, const QString &toolTip,
                              Order order, const QString &step) {
        add(name, icon, text, toolTip, [this, order, step] { sort(order, step); });
    };
    menu->setToolTipsVisible(true);
    menu->addSeparator();
    addOrder("sortByHue", QStringLiteral(":/Sort"), tr("Sort by &Hue"),
             tr("Orders the selected entries from red over green to blue, greys first; pictures keep their look"),
             ByHue, tr("Sort Palette"));
    addOrder("sortByBrightness", QStringLiteral(":/Sort"), tr("Sort by &Brightness"),
             tr("Orders the selected entries from dark to light; pictures keep their look"), ByBrightness,
             tr("Sort Palette"));
    addOrder("reverse", QStringLiteral(":/Flip"), tr("Re&verse"),
             tr("Puts the selected entries into the opposite order; pictures keep their look"), Reversed,
             tr("Reverse Palette"));
    addOrder("exchangeEnds", QStringLiteral(":/Swap"), tr("E&xchange Ends"),
             tr("Lets the first and the last selected entry change places; pictures keep their look"), EndsExchanged,
             tr("Exchange Palette Entries"));
    menu->addSeparator();
    add("evenGradient", QStringLiteral(":/Gradient"), tr("&Gradient in Machine Steps"),
        tr("Spreads the selection from its first to its last colour, each channel in the nearest of its eight levels"),
        [this] { m_editor->createEvenGradient(); });
    menu->addSeparator();
    add("markUnused", QStringLiteral(":/Search"), tr("Mark &Unused Entries"), tr("Marks the entries that no pixel has"),
        [this] { mark(Unused); });
    add("markEqual", QStringLiteral(":/Search"), tr("Mark E&qual Entries"),
        tr("Marks the entries whose colour others have, too"), [this] { mark(Equal); });
    menu->addSeparator();
    add("colourCycles", QStringLiteral(":/Media/Loop"), tr("Colour C&ycles…"),
        tr("Ranges of entries whose colours go round, so that water flows and fires burn"), [this] { editCycles(); });
    m_editor->grid()->offerMoves();
    connect(m_editor->grid(), &PaletteGrid::moveRequested, this, &PaletteTools::moveSelection);
    m_editor->grid()->setNotes([this](int entry) {
        if (!m_project || !m_editor->palette())
            return QString();
        const int uses = plural(PaletteUsers(*m_project, *m_editor->palette()).counts()[size_t(entry)]);
        return uses == 1 ? tr("1 pixel") : tr("%Ln pixels", nullptr, uses);
    });
}

void PaletteTools::setProject(const QPointer<Project> &project)
{
    m_project = project;
    if (m_cyclesDialog)
        m_cyclesDialog->setProject(project);
}

void PaletteTools::editCycles()
{
    if (!m_project || !m_editor->palette())
        return;
    if (!m_cyclesDialog) {
        m_cyclesDialog = new ColourCyclesDialog(m_editor, m_cyclingAction, m_editor->window());
        m_cyclesDialog->setProject(m_project);
    }
    m_cyclesDialog->show();
    m_cyclesDialog->raise();
    m_cyclesDialog->activateWindow();
}

QList<int> PaletteTools::ordered(const QList<int> &entries, Order order) const
{
    const Palette &palette = *m_editor->palette();
    QList<int> sorted = entries;
    const auto by = [&sorted](auto key) { std::ranges::stable_sort(sorted, {}, key); };
    const auto brightness = [&palette](int entry) { return qGray(palette.colour(entry).rgb()); };
    switch (order) {
    case ByHue:
        by([&](int entry) { return std::pair(palette.colour(entry).hsvHue(), brightness(entry)); }); // -1 of greys
        break;
    case ByBrightness:
        by(brightness);
        break;
    case Reversed:
        std::ranges::reverse(sorted);
        break;
    case EndsExchanged:
        sorted.swapItemsAt(0, sorted.size() - 1);
        break;
    }
    return sorted;
}

void PaletteTools::sort(Order order, const QString &text)
{
    const QPointer<Palette> palette = m_editor->palette();
    if (!m_project || !palette)
        return;
    const PaletteUsers users(*m_project, *palette);
    const int first = m_editor->first();
    const int last = m_editor->last();
    PaletteOrder moves;
    bool canMove = false;
    QList<QList<int>> lists = users.movable(first, last);
    if (order == EndsExchanged) {
        // these two or none
        const bool both = lists.size() == 1 && !users.fixed().test(size_t(first)) && !users.fixed().test(size_t(last));
        lists = both ? lists : QList<QList<int>>();
    }
    for (const QList<int> &entries : lists) {
        if (entries.size() < 2)
            continue;
        canMove = true;
        moves = moves.then(PaletteOrder(entries, ordered(entries, order)));
    }
    if (canMove)
        reorder(text, moves);
    else if (first == last)
        emit refused(tr("Select the entries that are to change places"));
    else
        refuseMoves();
}

void PaletteTools::moveSelection(int first)
{
    const QPointer<Palette> palette = m_editor->palette();
    if (!m_project || !palette)
        return;
    const int behind = m_editor->last() - m_editor->first();
    const int least = std::min(first, m_editor->first());
    const int most = std::max(first, m_editor->first()) + behind;
    QList<int> moved; // from least to most, as they come to stand
    for (int entry = least; entry <= most; ++entry) {
        if (entry < m_editor->first() || entry > m_editor->last())
            moved.append(entry);
    }
    for (int i = 0; i <= behind; ++i)
        moved.insert(first - least + i, m_editor->first() + i);
    QList<int> places(moved);
    std::ranges::sort(places);
    if (PaletteUsers(*m_project, *palette).movable(least, most) != QList<QList<int>>{places}) {
        refuseMoves();
        return;
    }
    reorder(tr("Move Palette Entries"), PaletteOrder(places, moved));
    m_editor->setSelection(first, first + behind);
}

void PaletteTools::reorder(const QString &text, const PaletteOrder &moves)
{
    const QPointer<Palette> palette = m_editor->palette();
    QUndoStack *stack = m_stackFor ? m_stackFor(palette->id()) : nullptr;
    if (!stack || moves.changesNothing())
        return;
    const auto cycles = ReorderedCycles::of(ColourCycles::of(*m_project->extras(), palette->id()), moves);
    stack->push(new PaletteOrderCommand(text, m_project, palette, moves));
    if (!cycles.lost.isEmpty())
        emit m_project->showMessage(
            tr("Colour cycles whose entries are no longer next to each other were removed; undo "
               "brings them back"));
}

void PaletteTools::refuseMoves()
{
    emit refused(tr("The entries cannot change places: tiles and 4-bit sprites need theirs in their group of 16, and "
                    "transparent entries, and those of tiles that are drawn with several palette offsets, must stay "
                    "where they are"));
}

void PaletteTools::mark(Mark mark)
{
    const QPointer<Palette> palette = m_editor->palette();
    if (!palette || !m_project)
        return;
    QSet<int> marked;
    const auto counts = PaletteUsers(*m_project, *palette).counts();
    QHash<quint16, int> found;
    for (int entry = 0; entry < Palette::Size; ++entry)
        ++found[palette->rawColour(entry)];
    for (int entry = 0; entry < Palette::Size; ++entry) {
        if (mark == Unused ? counts[size_t(entry)] == 0 : found.value(palette->rawColour(entry)) > 1)
            marked.insert(entry);
    }
    m_editor->grid()->setMarks(marked);
}
