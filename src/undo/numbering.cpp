#include "undo/numbering.h"

#include "model/spritebank.h"
#include "model/tileset.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace {

/// All that there are, by asset: a tile set has hundreds of children to search.
QHash<const QObject *, Numbering *> &numberings()
{
    static QHash<const QObject *, Numbering *> all;
    return all;
}

} // namespace

Numbering::Numbering(QObject *asset, std::function<int()> count) : QObject(asset), m_count(std::move(count))
{
    numberings().insert(asset, this);
}

Numbering::~Numbering()
{
    numberings().remove(parent());
}

template <typename Asset>
Numbering &Numbering::numberingOf(Asset &asset)
{
    Numbering *numbering = numberings().value(&asset);
    if (!numbering) {
        numbering = new Numbering(&asset, [&asset] { return asset.count(); });
        numbering->follow(asset);
    }
    return *numbering;
}

Numbering &Numbering::of(TileSet &tileSet)
{
    return numberingOf(tileSet);
}

Numbering &Numbering::of(SpriteBank &bank)
{
    return numberingOf(bank);
}

void Numbering::follow(TileSet &tileSet)
{
    fit(tileSet.count());
    connect(&tileSet, &TileSet::tileDeleted, this, [this](int index) {
        fit(m_count() + 1);
        remove(index);
    });
    connect(&tileSet, &TileSet::tileInserted, this, [this](int index) {
        fit(m_count() - 1);
        m_names.insert(index, m_nextName++);
    });
    connect(&tileSet, &TileSet::tileSwapped, this, [this](int first, int second) {
        fit(m_count());
        m_names.swapItemsAt(first, second);
    });
}

void Numbering::follow(SpriteBank &bank)
{
    fit(bank.count());
    connect(&bank, &SpriteBank::spriteDeleted, this, [this](int index) {
        fit(m_count() + 1);
        remove(index);
    });
    connect(&bank, &SpriteBank::spriteMoved, this, [this](int from, int to) {
        fit(m_count());
        m_names.move(from, to);
    });
}

const Numbering::Names &Numbering::names()
{
    fit(m_count());
    return m_names;
}

void Numbering::setNames(const Names &names)
{
    const QSet<int> present(names.cbegin(), names.cend());
    for (const int name : std::as_const(m_names)) {
        if (!present.contains(name))
            m_standIns.insert(name, names.value(0, -1));
    }
    m_names = names;
}

void Numbering::remove(int number)
{
    const int name = m_names.takeAt(number);
    m_standIns.insert(name, m_names.value(0, -1));
}

void Numbering::fit(int count)
{
    while (m_names.size() > std::max(count, 0))
        remove(int(m_names.size()) - 1);
    while (m_names.size() < count)
        m_names.append(m_nextName++);
}

QHash<int, int> Numbering::Roster::shownNumbers() const
{
    QHash<int, int> numbers;
    numbers.reserve(names.size() + standIns.size());
    for (int number = 0; number < names.size(); ++number)
        numbers.insert(names.at(number), number);
    for (auto standIn = standIns.cbegin(); standIn != standIns.cend(); ++standIn) {
        QList<int> gone;
        int name = standIn.key();
        for (; name >= 0 && !numbers.contains(name); name = standIns.value(name, -1))
            gone.append(name);
        for (const int each : std::as_const(gone))
            numbers.insert(each, numbers.value(name));
    }
    return numbers;
}

Renumbering::Renumbering(const Numbering::Names &from, const Numbering::Names &to)
    : m_changesNothing(from == to)
    , m_growth(int(to.size() - from.size()))
{
    if (m_changesNothing)
        return;
    m_byName.reserve(to.size());
    for (int number = 0; number < to.size(); ++number)
        m_byName.insert(to.at(number), number);
    m_numbers.reserve(from.size());
    for (const int name : from)
        m_numbers.append(m_byName.value(name, ghostOf(name)));
}
