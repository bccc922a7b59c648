#include "undo/numbering.h"

#include "model/spritebank.h"
#include "model/tileset.h"

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
        m_names.removeAt(index);
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
        m_names.removeAt(index);
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

void Numbering::fit(int count)
{
    if (m_names.size() > count)
        m_names.resize(std::max(count, 0));
    while (m_names.size() < count)
        m_names.append(m_nextName++);
}

Renumbering::Renumbering(const Numbering::Names &from, const Numbering::Names &to)
    : m_changesNothing(from == to)
    , m_growth(int(to.size() - from.size()))
{
    if (m_changesNothing)
        return;
    QHash<int, int> numbers;
    numbers.reserve(to.size());
    for (int number = 0; number < to.size(); ++number)
        numbers.insert(to.at(number), number);
    m_numbers.reserve(from.size());
    for (const int name : from)
        m_numbers.append(numbers.value(name, -1));
}
