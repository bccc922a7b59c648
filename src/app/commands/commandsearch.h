#pragma once

#include <QList>
#include <QString>

/// Finds commands, and whatever else has a name, by a few letters.
///
/// Letters match beginnings of words best ("nm" and "new m" find "New Map"), then any part of the text, then letters
/// that follow each other with gaps. Case and accents do not count.
class CommandSearch
{
public:
    /// What can be found: what it is called, and what else people may type to tell it from others of that name.
    struct Item
    {
        QString text;
        QString place;
        bool isEnabled = true;
        bool needsDigit = false; ///< is one of many with numbers, and found by what has a digit only
    };

    explicit CommandSearch(const QList<Item> &items);

    /// What matches, best first; among equals what is enabled, then what comes earlier in preferred, then the order of
    /// the items. Without a query all items, in that order.
    [[nodiscard]] QList<int> find(const QString &query, const QList<int> &preferred = {}) const;

private:
    struct Prepared
    {
        QString text;
        QString place;
        bool isEnabled;
        bool needsDigit;
    };

    QList<Prepared> m_items;
};
