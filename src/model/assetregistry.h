#pragma once

#include <QHash>
#include <QList>
#include <QPointer>
#include <QUuid>

/// The assets of one kind that a project knows, found by id and listed in the order in which
/// they were registered. It holds guarded pointers and owns nothing; an asset that was destroyed
/// elsewhere is no longer found or listed.
template <class Asset>
class AssetRegistry
{
public:
    /// Registers the asset under its present id; an entry with that id is replaced in its place.
    void insert(const QPointer<Asset> &asset)
    {
        const QUuid id = asset->id();
        if (!m_assets.contains(id))
            m_order.append(id);
        m_assets.insert(id, asset);
    }

    /// The asset with that id, or null.
    [[nodiscard]] QPointer<Asset> find(const QUuid &id) const { return m_assets.value(id); }

    [[nodiscard]] QList<QPointer<Asset>> all() const
    {
        QList<QPointer<Asset>> assets;
        assets.reserve(m_order.size());
        for (const QUuid &id : m_order) {
            if (const QPointer<Asset> asset = find(id); !asset.isNull())
                assets.append(asset);
        }
        return assets;
    }

    /// Removes the entry with that id and returns its asset, or null.
    QPointer<Asset> take(const QUuid &id)
    {
        m_order.removeOne(id);
        return m_assets.take(id);
    }

    /// Destroys every asset that is still alive and forgets all entries.
    void destroyAll()
    {
        const QList<QPointer<Asset>> assets = all();
        m_order.clear();
        m_assets.clear();
        for (const QPointer<Asset> &asset : assets)
            delete asset.data();
    }

private:
    QList<QUuid> m_order;
    QHash<QUuid, QPointer<Asset>> m_assets;
};
