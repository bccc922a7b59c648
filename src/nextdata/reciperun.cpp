#include "nextdata/reciperun.h"

#include "nextdata/form.h"
#include "nextdata/texts.h"
#include "nextdata/wholefile.h"

#include <QDir>
#include <QFileInfo>

namespace NextData {
namespace {

using State = RecipeRun::State;
using Outcome = RecipeRun::Outcome;

constexpr qsizetype KeptFile = -1;

/// A key that is the same for names that are one file on some system.
QString keyOf(const QString &place)
{
    return place.toCaseFolded();
}

Outcome impossible(const QString &reason)
{
    return {.state = State::Impossible, .reason = reason};
}

/// Brings a file to what it should be and adds it to the outcome; false, with the reason, when it cannot be written.
bool settle(Outcome &outcome, const OutputFile &file, const QString &place, RecipeRun::Mode mode)
{
    const WholeFile::State state = WholeFile::stateOf(place, file.bytes);
    if (state != WholeFile::State::Unchanged && mode == RecipeRun::Mode::Write) {
        if (const QString problem = WholeFile::write(place, file.bytes); !problem.isEmpty()) {
            outcome.state = State::Impossible;
            outcome.reason = problem;
            return false;
        }
    }
    const State fileState = state == WholeFile::State::New ? State::New
        : state == WholeFile::State::Changed               ? State::Changed
                                                           : State::Unchanged;
    if (outcome.files.isEmpty())
        outcome.state = fileState;
    else if (outcome.state != fileState)
        outcome.state = State::Changed;
    outcome.files.append({file.name, fileState, file.bytes.size()});
    return true;
}

} // namespace

RecipeRun::RecipeRun(const Project &project, const Recipe &recipe, const QString &folder, const QStringList &keptFiles)
    : m_outputs(recipe.outputs())
    , m_sources(Source::all(project))
    , m_folder(folder)
{
    for (qsizetype i = 0; i < m_sources.size(); ++i)
        m_sourceOfId.insert(m_sources[i].id(), i);
    for (const QString &file : keptFiles)
        m_places.insert(keyOf(QFileInfo(file).canonicalFilePath()), KeptFile);
    m_places.remove(QString()); // of a file that is not there
}

Result<Source> RecipeRun::sourceOf(const RecipeOutput &output) const
{
    if (const auto source = m_sourceOfId.constFind(output.id); source != m_sourceOfId.cend())
        return m_sources[*source];
    const QString id = output.id.toString(QUuid::WithoutBraces);
    for (const Source &source : m_sources) {
        if (source.kind() == output.kind && source.name() == output.name) {
            return Failure{
                Texts::tr("The project no longer has %1 “%2” with the id %3, but another one of that name (%4)")
                    .arg(titleOf(output.kind), output.name, id, source.id().toString(QUuid::WithoutBraces))};
        }
    }
    return Failure{
        Texts::tr("The project no longer has %1 “%2” with the id %3").arg(titleOf(output.kind), output.name, id)};
}

Result<RecipeRun::Task> RecipeRun::taskOf(const RecipeOutput &output) const
{
    if (const QString problem = Recipe::problemOf(output); !problem.isEmpty())
        return Failure{problem};
    const Result<Source> source = sourceOf(output);
    if (!source)
        return source.failure();
    const Form *form = findForm(output.form);
    const Result<OptionValues> values = OptionValues::parse(form->options, output.options);
    if (!values)
        return values.failure();
    return Task{form, *source, *values};
}

void RecipeRun::claimNamesBefore(qsizetype index)
{
    if (index < m_named) {
        m_names = Names();
        m_named = 0;
    }
    for (; m_named < index; ++m_named) {
        if (const Result<Task> task = taskOf(m_outputs.at(m_named)))
            claimNames(*task->form, task->source, task->values, m_names);
    }
}

Result<QList<OutputFile>> RecipeRun::make(qsizetype index)
{
    claimNamesBefore(index);
    ++m_named; // with this one, whatever comes of it
    const RecipeOutput &output = m_outputs.at(index);
    const Result<Task> task = taskOf(output);
    if (!task)
        return task.failure();
    const qsizetype slash = output.file.lastIndexOf(u'/') + 1;
    Result<QList<OutputFile>> files =
        write(*task->form, task->source, task->values, output.file.sliced(slash), m_names);
    if (!files)
        return files;
    QList<OutputFile> placed = *std::move(files);
    for (OutputFile &file : placed)
        file.name.prepend(QStringView(output.file).first(slash));
    return placed;
}

QString RecipeRun::claim(const QString &place, qsizetype index)
{
    const auto owner = m_places.constFind(keyOf(place));
    if (owner == m_places.cend()) {
        m_places.insert(keyOf(place), index);
        return {};
    }
    if (*owner == index)
        return {};
    if (*owner == KeptFile)
        return Texts::tr("“%1” is the project or its recipe").arg(QDir::toNativeSeparators(place));
    return Texts::tr("“%1” is written for “%2” already")
        .arg(QDir::toNativeSeparators(place), m_outputs.at(*owner).file);
}

Outcome RecipeRun::run(qsizetype index, Mode mode)
{
    const Result<QList<OutputFile>> files = make(index);
    if (!files)
        return impossible(files.reason());
    QStringList places;
    for (const OutputFile &file : *files) {
        const Result<QString> place = m_folder.placeOf(file.name);
        if (!place)
            return impossible(place.reason());
        if (const QString problem = claim(*place, index); !problem.isEmpty())
            return impossible(problem);
        places.append(*place);
    }
    Outcome outcome;
    for (qsizetype i = 0; i < files->size(); ++i) {
        if (!settle(outcome, files->at(i), places[i], mode))
            break;
    }
    return outcome;
}

QList<Outcome> RecipeRun::runAll(Mode mode, const Progress &progress)
{
    QList<Outcome> outcomes;
    const int count = int(m_outputs.size());
    for (int i = 0; i < count; ++i) {
        if (progress && !progress(i, count))
            return outcomes;
        outcomes.append(run(i, mode));
    }
    if (progress)
        static_cast<void>(progress(count, count));
    return outcomes;
}

Outcome runSingle(const Source &source, const Form &form, const OptionValues &values, const QString &path,
                  RecipeRun::Mode mode)
{
    const QFileInfo target(path);
    Names names;
    const Result<QList<OutputFile>> files = write(form, source, values, target.fileName(), names);
    if (!files)
        return impossible(files.reason());
    Outcome outcome;
    for (const OutputFile &file : *files) {
        if (!settle(outcome, file, target.dir().filePath(file.name), mode))
            break;
    }
    return outcome;
}

} // namespace NextData
