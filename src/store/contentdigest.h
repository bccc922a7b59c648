#pragma once

#include <QByteArrayView>
#include <QHashFunctions>

#include <memory>

/// Tells contents apart without keeping them: a strong digest of 128 bits, and the length.
struct ContentKey
{
    quint64 high = 0;
    quint64 low = 0;
    qint64 size = 0; ///< bytes of the content

    bool operator==(const ContentKey &) const = default;
};

[[nodiscard]] inline size_t qHash(const ContentKey &key, size_t seed = 0) noexcept
{
    return size_t(key.low) ^ seed;
}

/// Makes the key of a content that comes in pieces. How it is cut does not matter.
class ContentDigest
{
public:
    ContentDigest();
    ~ContentDigest();
    ContentDigest(const ContentDigest &) = delete;
    ContentDigest &operator=(const ContentDigest &) = delete;

    void add(QByteArrayView bytes);
    /// The key of what was added so far.
    [[nodiscard]] ContentKey key() const;

    [[nodiscard]] static ContentKey keyOf(QByteArrayView bytes);

private:
    struct State;
    std::unique_ptr<State> m_state;
};
