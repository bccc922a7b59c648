#include "nextdata/takenfiles.h"

#include "nextdata/filenames.h"

#include <QRegularExpression>

#include <algorithm>

namespace NextData {

TakenFiles::TakenFiles(const QList<RecipeOutput> &outputs)
{
    for (const RecipeOutput &output : outputs)
        add(output.file);
}

QString TakenFiles::claim(const QString &file)
{
    QString free = file;
    if (contains(free)) {
        static const QRegularExpression numbered(QStringLiteral("_([0-9]{1,6})(\\.[^./]*)?$"));
        const QRegularExpressionMatch match = numbered.match(file);
        const QString plain = match.hasMatch() ? file.first(match.capturedStart()) + match.captured(2) : file;
        const qsizetype slash = plain.lastIndexOf(u'/') + 1;
        int &number = m_lastNumber[plain.toCaseFolded()];
        number = std::max({number, match.captured(1).toInt(), 1});
        while (contains(free))
            free = plain.first(slash) + FileNames::withPart(plain.sliced(slash), u'_' + QString::number(++number));
    }
    add(free);
    return free;
}

} // namespace NextData
