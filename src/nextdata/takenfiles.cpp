#include "nextdata/takenfiles.h"

#include "nextdata/filenames.h"

#include <algorithm>

namespace NextData {

TakenFiles::TakenFiles(const QList<RecipeOutput> &outputs)
{
    for (const RecipeOutput &output : outputs)
        add(output.file);
}

QString TakenFiles::claim(const QString &file)
{
    const qsizetype slash = file.lastIndexOf(u'/') + 1;
    QString free = file;
    for (int &number = m_lastNumber[file.toCaseFolded()]; contains(free);) {
        number = std::max(number + 1, 2);
        free = file.first(slash) + FileNames::withPart(file.sliced(slash), u'_' + QString::number(number));
    }
    add(free);
    return free;
}

} // namespace NextData
