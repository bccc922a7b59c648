#pragma once

#include <QByteArray>

#include <random>

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
