#pragma once

#include <QtCore>

#include <algorithm>
#include <ctime>
#include <random>

/// Counts the damaged files that are tried: as many as QUENMORA_DAMAGED_FILES says, and then the slowest is told, or
/// the usual number.
class DamagedFiles
{
public:
    explicit DamagedFiles(int usual)
        : m_isAsked(qEnvironmentVariableIntValue("QUENMORA_DAMAGED_FILES") > 0)
        , m_count(m_isAsked ? qEnvironmentVariableIntValue("QUENMORA_DAMAGED_FILES") : usual)
    { }

    [[nodiscard]] int count() const { return m_count; }
    /// Whether there is another one.
    bool next()
    {
        const std::clock_t now = std::clock();
        m_slowest = m_tried > 0 ? std::max(m_slowest, now - m_before) : 0;
        m_before = now;
        if (m_tried++ < m_count)
            return true;
        if (m_isAsked)
            qInfo("%d files, the slowest in %.3f s of the processor", m_count, double(m_slowest) / CLOCKS_PER_SEC);
        return false;
    }

private:
    bool m_isAsked;
    int m_count;
    int m_tried = 0;
    std::clock_t m_before = 0;
    std::clock_t m_slowest = 0;
};

/// A copy of a file with some of its bytes changed, repeated or lost, as the random numbers have it.
[[nodiscard]] inline QByteArray damaged(QByteArray bytes, std::minstd_rand &random)
{
    const auto below = [&random](qsizetype count) { return qsizetype(random() % quint32(qMax(count, qsizetype(1)))); };
    for (int rounds = 1 + int(below(4)); rounds > 0 && !bytes.isEmpty(); --rounds) {
        const qsizetype at = below(bytes.size());
        const qsizetype length = qMin(1 + below(8), bytes.size() - at);
        switch (below(6)) {
        case 0: // any byte
            bytes[at] = char(random());
            break;
        case 1: // one bit
            bytes[at] = char(bytes[at] ^ 1 << below(8));
            break;
        case 2: // the largest numbers, and negative ones
            bytes.replace(at, length, QByteArray(length, below(2) ? '\xff' : '\x7f'));
            break;
        case 3: // digits for numbers that are written
            bytes.replace(at, length, QByteArray(length, char('0' + below(10))));
            break;
        case 4:
            bytes.insert(at, bytes.sliced(at, length));
            break;
        case 5:
            bytes.remove(at, below(4) ? length : bytes.size() - at);
            break;
        }
    }
    return bytes;
}
