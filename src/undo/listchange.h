#pragma once

#include "undo/editside.h"

#include <QList>

#include <algorithm>
#include <numeric>
#include <utility>

/// The difference between two lists: which entries an edit added, removed, moved or changed.
///
/// Applied to a list that is as the edit left it, it gives the other one. In a list that was changed since, it takes
/// out, puts in and replaces only those entries; what comes in follows the entry that it followed.
template <typename Entry>
class ListChange
{
public:
    using List = QList<Entry>;

    /// Both are kept only when they differ.
    ListChange(const List &before, const List &after)
    {
        if (before == after)
            return;
        m_before = before;
        m_after = after;
    }

    [[nodiscard]] const List &before() const { return m_before; }
    [[nodiscard]] const List &after() const { return m_after; }
    [[nodiscard]] bool changesNothing() const { return m_before.isEmpty() && m_after.isEmpty(); }

    void apply(EditSide side, List &list) const
    {
        const bool back = side == EditSide::Before;
        const List &from = back ? m_after : m_before;
        const List &to = back ? m_before : m_after;
        if (list == from)
            list = to;
        else if (!changesNothing())
            change(list, from, to);
    }

private:
    using Positions = QList<qsizetype>;

    static void change(List &list, const List &from, const List &to)
    {
        // what differs lies between the same beginning and the same end
        const qsizetype head = std::mismatch(from.cbegin(), from.cend(), to.cbegin(), to.cend()).first - from.cbegin();
        const qsizetype rest = std::min(from.size(), to.size()) - head;
        const qsizetype tail =
            std::mismatch(from.crbegin(), from.crbegin() + rest, to.crbegin()).first - from.crbegin();
        const List old = from.sliced(head, from.size() - head - tail);
        const List now = to.sliced(head, to.size() - head - tail);

        if (old.size() > 1 && old.size() == now.size() && old.sliced(1) == now.first(now.size() - 1)) {
            remove(list, from, {head}); // moved towards the end
            insert(list, to, {head + now.size() - 1});
        } else if (old.size() > 1 && old.size() == now.size() && now.sliced(1) == old.first(old.size() - 1)) {
            remove(list, from, {head + old.size() - 1}); // moved towards the beginning
            insert(list, to, {head});
        } else if (old.size() == now.size()) {
            replace(list, old, now);
        } else {
            remove(list, from, positionsBeside(old, now, head));
            insert(list, to, positionsBeside(now, old, head));
        }
    }

    /// Where a list has entries that another has not: none when it is part of the other one, all when neither is.
    static Positions positionsBeside(const List &list, const List &other, qsizetype offset)
    {
        const List &longer = list.size() > other.size() ? list : other;
        const List &shorter = list.size() > other.size() ? other : list;
        Positions beside;
        qsizetype matched = 0;
        for (qsizetype i = 0; i < longer.size(); ++i) {
            if (matched < shorter.size() && longer.at(i) == shorter.at(matched))
                ++matched;
            else
                beside.append(i + offset);
        }
        if (matched == shorter.size())
            return &list == &longer ? beside : Positions();
        Positions all(list.size());
        std::iota(all.begin(), all.end(), offset);
        return all;
    }

    static void replace(List &list, const List &old, const List &now)
    {
        QList<std::pair<qsizetype, qsizetype>> places; // in the list, and in the two others
        for (qsizetype i = 0; i < old.size(); ++i) {
            const auto taken = [&places](qsizetype at) {
                return std::any_of(places.cbegin(), places.cend(),
                                   [at](const auto &place) { return place.first == at; });
            };
            qsizetype at = list.indexOf(old.at(i));
            while (at >= 0 && taken(at))
                at = list.indexOf(old.at(i), at + 1);
            if (at >= 0)
                places.append({at, i});
        }
        for (const auto &[at, i] : std::as_const(places))
            list[at] = now.at(i);
    }

    static void remove(List &list, const List &from, const Positions &positions)
    {
        for (const qsizetype position : positions)
            list.removeOne(from.at(position));
    }

    static void insert(List &list, const List &to, const Positions &positions)
    {
        for (const qsizetype position : positions)
            list.insert(placeFor(list, to, position), to.at(position));
    }

    /// Behind the nearest entry that is before it in `to`, or before the nearest one that is behind it.
    static qsizetype placeFor(const List &list, const List &to, qsizetype position)
    {
        for (qsizetype i = position - 1; i >= 0; --i) {
            if (const qsizetype at = list.lastIndexOf(to.at(i)); at >= 0)
                return at + 1;
        }
        for (qsizetype i = position + 1; i < to.size(); ++i) {
            if (const qsizetype at = list.indexOf(to.at(i)); at >= 0)
                return at;
        }
        return list.size();
    }

    List m_before;
    List m_after;
};
