#pragma once

#include <QHash>
#include <QList>
#include <QObject>

#include <algorithm>
#include <functional>
#include <limits>
#include <optional>
#include <utility>

class SpriteBank;
class TileSet;

/// Names for the tiles of a tile set, or the sprites of a bank, that stay theirs when their numbers change.
///
/// An undo step is made at one time and applied at another, and steps of other documents may have inserted, deleted
/// or moved tiles in between: what a step calls tile 7 may be tile 6 by then. It keeps the names, which lead from the
/// numbers of the one time to those of the other. A tile whose deletion is undone has its old name again. The numbering
/// is a child of the asset, made when somebody first asks for it; until tiles change places, names are numbers.
class Numbering final : public QObject
{
    Q_OBJECT

public:
    /// The names in the order of the numbers. No two are the same.
    using Names = QList<int>;

    /// The names at some time, and what is shown in place of those that were gone by then.
    struct Roster
    {
        Names names;
        QHash<int, int> standIns; ///< of names that are gone: what had number 0 thereafter, which may be gone as well

        /// The number of each name, or the one that is shown in its place.
        [[nodiscard]] QHash<int, int> shownNumbers() const;

        bool operator==(const Roster &other) const { return names == other.names; }
    };

    ~Numbering() override;

    [[nodiscard]] static Numbering &of(TileSet &tileSet);
    [[nodiscard]] static Numbering &of(SpriteBank &bank);

    [[nodiscard]] const Names &names();
    [[nodiscard]] Roster roster() { return {names(), m_standIns}; }
    /// Sets which tile is which when the asset is given other contents.
    void setNames(const Names &names);

    /// The name of a tile or sprite; -1 outside the asset.
    [[nodiscard]] int nameAt(int number) { return names().value(number, -1); }
    /// Where the one of this name is now; -1 when it is gone.
    [[nodiscard]] int numberOf(int name) { return int(names().indexOf(name)); }

private:
    template <typename Asset>
    static Numbering &numberingOf(Asset &asset);

    Numbering(QObject *asset, std::function<int()> count);
    void follow(TileSet &tileSet);
    void follow(SpriteBank &bank);
    /// Gives names to what was appended without a word, and forgets what was cut off.
    void fit(int count);
    void remove(int number);

    std::function<int()> m_count;
    Names m_names;
    QHash<int, int> m_standIns;
    int m_nextName = 0;
};

/// What undo steps hold in place of the number of something that is gone: it tells the name, so that it is the
/// same one that comes back.
[[nodiscard]] constexpr int ghostOf(int name)
{
    return std::numeric_limits<int>::min() + name;
}
[[nodiscard]] constexpr int nameOfGhost(int ghost)
{
    return ghost - std::numeric_limits<int>::min();
}
[[nodiscard]] constexpr bool isGhost(int number)
{
    return number < std::numeric_limits<int>::min() / 2;
}

/// What becomes of the numbers when things are inserted, deleted and moved.
class Renumbering
{
public:
    Renumbering(const Numbering::Names &from, const Numbering::Names &to);
    /// What became of the numbers since a step was made; nothing when it knew no names, or there are none now because
    /// the asset is gone.
    [[nodiscard]] static Renumbering since(const Numbering::Names &made, const Numbering::Names &now)
    {
        return {made, made.isEmpty() || now.isEmpty() ? made : now};
    }

    [[nodiscard]] bool changesNothing() const { return m_changesNothing; }
    /// Whether something that had a number is gone.
    [[nodiscard]] bool losesAny() const { return std::any_of(m_numbers.cbegin(), m_numbers.cend(), isGhost); }
    /// The new number; none when what had it is gone. Numbers that the asset never had stay as far behind its
    /// end as they are.
    [[nodiscard]] std::optional<int> operator()(int number) const
    {
        if (m_changesNothing || number < 0)
            return number;
        if (number >= m_numbers.size())
            return int(std::min<qint64>(qint64(number) + m_growth, std::numeric_limits<int>::max()));
        const int renamed = m_numbers.at(number);
        return isGhost(renamed) ? std::nullopt : std::optional(renamed);
    }
    /// The new number, or a ghost where what had the number is gone; the new number of a ghost that is back.
    [[nodiscard]] int following(int number) const
    {
        if (isGhost(number) && !m_changesNothing)
            return m_byName.value(nameOfGhost(number), number);
        return (*this)(number).value_or(m_numbers.value(number));
    }

private:
    bool m_changesNothing;
    QHash<int, int> m_byName; ///< the new numbers
    QList<int> m_numbers; ///< ghosts for what is gone
    int m_growth;
};

/// A grid whose cells name tiles or sprites, renumbered, with ghosts in place of what is gone. Rows that do not change,
/// or are shared, stay so, and rows that become those of another grid share them with it: to see that two grids differ
/// by their numbers alone takes no memory.
template <typename Cell>
[[nodiscard]] QList<QList<Cell>> renumbered(const QList<QList<Cell>> &rows, const Renumbering &renumbering,
                                            const QList<QList<Cell>> &like = {})
{
    if (renumbering.changesNothing())
        return rows;
    const auto renamed = [&renumbering](Cell cell) {
        cell.index = renumbering.following(cell.index);
        return cell;
    };
    const auto result = [&renamed](const QList<Cell> &row, const QList<Cell> &wanted) {
        const auto become = [&renamed](const Cell &cell, const Cell &other) { return renamed(cell) == other; };
        for (const QList<Cell> &known : {wanted, row}) {
            if (std::equal(row.cbegin(), row.cend(), known.cbegin(), known.cend(), become))
                return known;
        }
        QList<Cell> changed = row;
        std::transform(row.cbegin(), row.cend(), changed.begin(), renamed);
        return changed;
    };
    QHash<std::pair<const Cell *, const Cell *>, QList<Cell>> results; // shared rows are looked at once
    QList<QList<Cell>> all = rows;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const QList<Cell> &row = rows.at(i);
        const QList<Cell> wanted = like.value(i);
        const std::pair key(row.constData(), wanted.constData());
        auto known = results.constFind(key);
        if (known == results.cend())
            known = results.insert(key, result(row, wanted));
        if (known->constData() != row.constData())
            all[i] = *known;
    }
    return all;
}
