#include "model/tilerows.h"

#include <numeric>
#include <utility>

void TileRows::setRows(const Rows &rows)
{
    m_numbers.clear();
    m_rows = rows;
}

bool TileRows::swapTiles(int a, int b)
{
    if (a == b)
        return false;
    if (std::min(a, b) < 0 || std::max(a, b) >= MostTiles)
        return changeCells([a, b](Cell cell) {
            cell.index = cell.index == a ? b : cell.index == b ? a : cell.index;
            return cell;
        });
    if (m_numbers.empty()) {
        m_inCells.clear();
        m_seen.assign(MostTiles, false);
        m_looked = 0;
    }
    const size_t known = m_numbers.size();
    if (const size_t needed = size_t(std::max(a, b)) + 1; needed > known) {
        for (std::vector<int> *numbers : {&m_numbers, &m_inCells}) {
            numbers->resize(needed);
            std::iota(numbers->begin() + qsizetype(known), numbers->end(), int(known));
        }
    }
    int &first = m_inCells[size_t(a)];
    int &second = m_inCells[size_t(b)];
    std::swap(m_numbers[size_t(first)], m_numbers[size_t(second)]);
    std::swap(first, second);
    return shows(first) || shows(second);
}

/// Whether a cell has a number, which is usually found in the first row that is looked at.
bool TileRows::shows(int number)
{
    for (; !m_seen[size_t(number)] && m_looked < height(); ++m_looked) {
        const Row &row = std::as_const(m_rows)[m_looked];
        if (m_looked > 0 && row.constData() == std::as_const(m_rows)[m_looked - 1].constData())
            continue; // a large map has many of these
        for (const Cell &cell : row) {
            if (cell.index >= 0 && cell.index < MostTiles)
                m_seen[size_t(cell.index)] = true;
        }
    }
    return m_seen[size_t(number)];
}

void TileRows::follow()
{
    const std::vector<int> numbers = std::exchange(m_numbers, {});
    changeCells([&numbers](Cell cell) {
        if (cell.index >= 0 && size_t(cell.index) < numbers.size())
            cell.index = numbers[size_t(cell.index)];
        return cell;
    });
}
