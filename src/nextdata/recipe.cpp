#include "nextdata/recipe.h"

#include "model/rawfile.h"
#include "model/sidefile.h"
#include "nextdata/filenames.h"
#include "nextdata/form.h"
#include "nextdata/texts.h"
#include "nextdata/wholefile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace NextData {
namespace {

/// Whether two files are one on some system that the project may come to.
bool isSameFile(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

} // namespace

QString Recipe::pathFor(const QString &projectFile)
{
    return SideFile::pathFor(projectFile, QStringLiteral("export"));
}

void Recipe::setOutputs(const QList<RecipeOutput> &outputs)
{
    m_lineOfFile.clear();
    m_outputs = outputs;
    std::stable_sort(m_outputs.begin(), m_outputs.end(),
                     [](const RecipeOutput &a, const RecipeOutput &b) { return a.file < b.file; });
}

QString Recipe::problemOf(const RecipeOutput &output)
{
    const Form *form = findForm(output.form);
    if (!form)
        return Texts::tr("There is no form “%1”").arg(output.form);
    if (form->kind != output.kind)
        return Texts::tr("%1 is a form of %2, not of %3").arg(form->id, titleOf(form->kind), titleOf(output.kind));
    if (const auto values = OptionValues::parse(form->options, output.options); !values)
        return values.reason();
    return FileNames::problemOf(output.file);
}

QString Recipe::problemAt(qsizetype index) const
{
    const RecipeOutput &output = m_outputs.at(index);
    const auto others = std::count_if(m_outputs.cbegin(), m_outputs.cend(),
                                      [&](const RecipeOutput &each) { return isSameFile(each.file, output.file); });
    if (others > 1)
        return Texts::tr("“%1” is the file of another output as well").arg(output.file);
    return problemOf(output);
}

QList<Recipe::Problem> Recipe::load(const QString &path)
{
    QFile file(path);
    if (!QFileInfo::exists(path))
        return {{0, Texts::tr("There is no such file")}};
    if (!RawFile::openForReading(file))
        return {{0, Texts::tr("The file cannot be read")}};
    if (file.size() > MaxBytes)
        return {{0, Texts::tr("The file is too large for a recipe")}};
    return parse(file.read(MaxBytes));
}

QString Recipe::save(const QString &path) const
{
    const QByteArray bytes = text();
    return WholeFile::stateOf(path, bytes) == WholeFile::State::Unchanged ? QString() : WholeFile::write(path, bytes);
}

} // namespace NextData
