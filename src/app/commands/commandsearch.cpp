#include "app/commands/commandsearch.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

namespace {

/// How letters can match, best first. A class is worth more than any gap within one.
enum Match { Whole, Beginning, Words, Initials, Part, WordsAnywhere, Letters, LettersAnywhere };

constexpr int ClassWeight = 1000;
constexpr int MostGaps = ClassWeight - 1;

/// In the letters that are compared.
QString plain(const QString &text)
{
    QString letters;
    const QString taken = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    letters.reserve(taken.size());
    for (const QChar c : taken) {
        if (!c.isMark())
            letters.append(c);
    }
    return letters;
}

bool beginsWord(const QString &text, qsizetype at)
{
    return text.at(at).isLetterOrNumber()
        && (at == 0 || !text.at(at - 1).isLetterOrNumber() || text.at(at).isDigit() != text.at(at - 1).isDigit());
}

/// Whether words begin in the text as these do, one after the other.
bool haveWordsInOrder(const QString &text, const QStringList &words)
{
    qsizetype from = 0;
    for (const QString &word : words) {
        qsizetype at = text.indexOf(word, from);
        while (at >= 0 && !beginsWord(text, at))
            at = text.indexOf(word, at + 1);
        if (at < 0)
            return false;
        from = at + word.size();
    }
    return true;
}

bool haveWords(const QString &text, const QStringList &words)
{
    return std::ranges::all_of(words, [&text](const QString &word) { return haveWordsInOrder(text, {word}); });
}

/// Whether each letter goes on in the word that the one before is in, or begins a later one.
bool areInitials(const QString &text, const QString &letters)
{
    std::set<qsizetype> ends{0}; // behind what matches the letters so far, in every way in which they can
    for (qsizetype i = 0; i < letters.size(); ++i) {
        std::set<qsizetype> next;
        for (qsizetype at = *ends.begin(); at < text.size(); ++at) {
            if (text.at(at) == letters.at(i) && (beginsWord(text, at) || (i > 0 && ends.contains(at))))
                next.insert(at + 1);
        }
        if (next.empty())
            return false;
        ends = std::move(next);
    }
    return true;
}

/// How many letters are skipped between the first and the last that match, each one taken as early as possible; -1 when
/// they are not in the text.
int gapsOf(const QString &text, const QString &letters)
{
    qsizetype first = -1;
    qsizetype at = -1;
    for (const QChar letter : letters) {
        at = text.indexOf(letter, at + 1);
        if (at < 0)
            return -1;
        if (first < 0)
            first = at;
    }
    return int(std::min<qsizetype>(at - first + 1 - letters.size(), MostGaps));
}

int rankOfPlain(const QString &text, const QString &place, const QString &query, const QStringList &words,
                const QString &letters)
{
    if (gapsOf(place + u' ' + text, letters) < 0 && !haveWords(text + u' ' + place, words))
        return -1; // most of them
    if (text == query)
        return Whole * ClassWeight;
    if (text.startsWith(query))
        return Beginning * ClassWeight;
    if (haveWordsInOrder(text, words))
        return Words * ClassWeight;
    if (areInitials(text, letters))
        return Initials * ClassWeight;
    if (text.contains(query))
        return Part * ClassWeight;
    if (haveWords(text + u' ' + place, words))
        return WordsAnywhere * ClassWeight;
    if (const int gaps = gapsOf(text, letters); gaps >= 0)
        return Letters * ClassWeight + gaps;
    return LettersAnywhere * ClassWeight + gapsOf(place + u' ' + text, letters);
}

} // namespace

CommandSearch::CommandSearch(const QList<Item> &items)
{
    m_items.reserve(items.size());
    for (const Item &item : items)
        m_items.append({plain(item.text), plain(item.place), item.isEnabled, item.needsDigit});
}

QList<int> CommandSearch::find(const QString &query, const QList<int> &preferred) const
{
    const QString asked = plain(query).simplified();
    const QStringList words = asked.split(u' ');
    const QString letters = QString(asked).remove(u' ');
    const bool hasDigit = std::ranges::any_of(asked, [](QChar c) { return c.isDigit(); });
    QHash<int, int> preference;
    for (int i = 0; i < preferred.size(); ++i)
        preference.insert(preferred.at(i), i);

    using Key = std::tuple<int, bool, int, int>; // the last is the item
    QList<Key> found;
    for (int i = 0; i < m_items.size(); ++i) {
        const Prepared &item = m_items.at(i);
        if (item.needsDigit && !hasDigit)
            continue;
        const int rank = asked.isEmpty() ? 0 : rankOfPlain(item.text, item.place, asked, words, letters);
        if (rank >= 0)
            found.append({rank, !item.isEnabled, preference.value(i, int(preferred.size())), i});
    }
    std::ranges::sort(found);
    QList<int> items;
    items.reserve(found.size());
    for (const Key &key : found)
        items.append(std::get<3>(key));
    return items;
}
