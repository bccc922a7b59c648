#include "command/exportcommand.h"

#include "command/depfile.h"
#include "command/description.h"
#include "model/plural.h"
#include "model/project.h"
#include "model/projectpicture.h"
#include "nextdata/form.h"
#include "nextdata/quoted.h"
#include "nextdata/wholefile.h"
#include "store/extrasfile.h"
#include "store/projectstore.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QTextStream>

#include <algorithm>

using namespace NextData;
using State = RecipeRun::State;

namespace {

constexpr int KindWidth = 8;
constexpr int StateWidth = 10;

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ExportCommand)
};

/// Scripts read it, so it is the same in all languages, as is all of the lines that it stands in.
QString wordOf(State state)
{
    switch (state) {
    case State::New:
        return QStringLiteral("new");
    case State::Changed:
        return QStringLiteral("changed");
    case State::Unchanged:
        return QStringLiteral("unchanged");
    case State::Impossible:
        return QStringLiteral("failed");
    }
    return {};
}

/// The file in a folder, as people and build tools name it: without a folder where that is the current one.
QString pathIn(const QString &folder, const QString &file)
{
    return folder == QStringLiteral(".") ? file : QDir::cleanPath(folder + u'/' + file);
}

/// A line of a file, as compilers name it.
QString placeIn(const QString &file, int line)
{
    return line > 0 ? file + u':' + QString::number(line) : file;
}

/// The values that an option takes.
QString valuesOf(const Option &option)
{
    switch (option.kind) {
    case Option::Kind::Flag:
        return QStringLiteral("true|false");
    case Option::Kind::Number:
        return QStringLiteral("%1…%2").arg(option.least).arg(option.most);
    case Option::Kind::Choice: {
        QStringList ids;
        for (const Option::Choice &choice : option.choices)
            ids.append(choice.id);
        return ids.join(u'|');
    }
    case Option::Kind::Text:
        return Texts::tr("TEXT");
    }
    return {};
}

/// The asset that a name or id means in a form; a failure when there is none, or more than one.
Result<Source> assetFor(const Project &project, const QString &nameOrId, const Form &form)
{
    const QUuid id = QUuid::fromString(nameOrId);
    QList<Source> found;
    for (const Source &source : Source::all(project)) {
        if (source.name() == nameOrId || (!id.isNull() && source.id() == id))
            found.append(source);
    }
    if (found.isEmpty())
        return Failure{Texts::tr("There is no asset “%1”").arg(nameOrId)};
    const auto last = std::stable_partition(found.begin(), found.end(),
                                            [&](const Source &source) { return source.kind() == form.kind; });
    const auto fitting = std::distance(found.begin(), last);
    if (fitting == 0)
        return Failure{refusalOf(form, found.first())};
    if (fitting == 1)
        return found.first();
    QStringList ids;
    for (qsizetype i = 0; i < fitting; ++i)
        ids.append(found[i].id().toString(QUuid::WithoutBraces));
    return Failure{
        Texts::tr("“%1” is the name of several assets: use an id (%2)").arg(nameOrId, ids.join(QStringLiteral(", ")))};
}

} // namespace

ExportCommand::ExportCommand(QTextStream &out, QTextStream &errors, Interruption isInterrupted)
    : m_out(out)
    , m_errors(errors)
    , m_isInterrupted(std::move(isInterrupted))
{ }

int ExportCommand::run(const QStringList &arguments)
{
    QString error;
    m_request = Request::parse(arguments, error);
    if (!error.isEmpty()) {
        m_errors << "quenmora-export: " << error << '\n'
                 << Texts::tr("quenmora-export --help tells what it understands") << '\n';
        return WrongUsage;
    }
    switch (m_request.action) {
    case Request::Action::Help:
        m_out << Request::helpText();
        return Done;
    case Request::Action::Version:
        m_out << "quenmora-export " << QStringLiteral(QUENMORA_VERSION) << '\n';
        return Done;
    case Request::Action::Formats:
        return listForms();
    default:
        return withProject();
    }
}

int ExportCommand::listForms()
{
    const QList<Option> common = commonOptions();
    for (const Form &form : forms()) {
        m_out << NextData::wordOf(form.kind).leftJustified(KindWidth) << ' ' << form.id << " (." << form.suffix
              << "): " << form.title << '\n';
        listOptions(form.options.first(form.options.size() - common.size()));
    }
    m_out << Texts::tr("Options of all forms:") << '\n';
    listOptions(common);
    return Done;
}

void ExportCommand::listOptions(const QList<Option> &options)
{
    for (const Option &option : options) {
        m_out << "    " << option.id << '=' << valuesOf(option) << " [" << option.standard
              << "]: " << option.description << '\n';
    }
}

int ExportCommand::withProject()
{
    ProjectStore store;
    QString error;
    QObject::connect(&store, &ProjectStore::loadError, &store, [&error](const QString &message) { error = message; });
    store.newProject({});
    if (!QFileInfo::exists(m_request.project))
        return fail(m_request.project, Texts::tr("There is no such file"));
    if (!store.load(m_request.project))
        return fail(m_request.project, error);
    const Project &project = *store.project();
    if (const QString problem = ExtrasFile().load(*project.extras(), m_request.project); !problem.isEmpty())
        fail(ExtrasFile::pathFor(m_request.project), problem); // which costs what it held, and nothing else
    switch (m_request.action) {
    case Request::Action::List:
        return listAssets(project);
    case Request::Action::Describe:
        describe(project, m_out);
        return Done;
    case Request::Action::Single:
        return doSingle(project);
    case Request::Action::Thumbnail:
        return writeThumbnail(project);
    default:
        return doRecipe(project);
    }
}

QStringList ExportCommand::sources() const
{
    QStringList files{m_request.project};
    if (const QString extras = ExtrasFile::pathFor(m_request.project); QFileInfo::exists(extras))
        files.append(extras);
    return files;
}

int ExportCommand::listAssets(const Project &project)
{
    for (const Source &source : Source::all(project)) {
        m_out << NextData::wordOf(source.kind()).leftJustified(KindWidth) << ' '
              << source.id().toString(QUuid::WithoutBraces) << ' ' << QString::fromUtf8(quoted(source.name())) << '\n';
    }
    return Done;
}

int ExportCommand::doRecipe(const Project &project)
{
    const QString file = m_request.recipe.isEmpty() ? Recipe::pathFor(m_request.project) : m_request.recipe;
    if (m_request.recipe.isEmpty() && !QFileInfo::exists(file))
        return fail(file, Texts::tr("The project has no recipe; File > Export Project in the editor makes one"));
    Recipe recipe;
    const QList<Recipe::Problem> problems = recipe.load(file);
    for (const Recipe::Problem &problem : problems)
        fail(placeIn(file, problem.line), problem.reason);
    if (!problems.isEmpty())
        return Failed;

    const QString folder = m_request.output.isEmpty() ? QFileInfo(m_request.project).path() : m_request.output;
    RecipeRun run(project, recipe, folder, sources() + QStringList{file});
    const QList<RecipeRun::Outcome> outcomes =
        run.runAll(mode(), [this](int, int) { return !m_isInterrupted || !m_isInterrupted(); });
    QStringList targets;
    bool hasFailed = outcomes.size() < recipe.outputs().size();
    for (qsizetype i = 0; i < outcomes.size(); ++i) {
        const RecipeOutput &output = recipe.outputs()[i];
        report(outcomes[i], folder, placeIn(file, recipe.lineOf(output)) + QStringLiteral(": ") + output.file);
        hasFailed = hasFailed || outcomes[i].state == State::Impossible;
        for (const RecipeRun::File &written : outcomes[i].files)
            targets.append(pathIn(folder, written.name));
    }
    if (outcomes.size() < recipe.outputs().size())
        fail(file,
             Texts::tr("Interrupted: %n outputs were not looked at", nullptr,
                       plural(recipe.outputs().size() - outcomes.size())));
    if (!hasFailed && !writeDepfile(targets, sources() + QStringList{file}))
        hasFailed = true;
    sum(outcomes);
    return hasFailed ? Failed : Done;
}

int ExportCommand::doSingle(const Project &project)
{
    const Form *form = findForm(m_request.form);
    if (!form)
        return fail(m_request.target, Texts::tr("There is no form “%1”").arg(m_request.form));
    const Result<OptionValues> values = OptionValues::parse(form->options, m_request.options);
    if (!values)
        return fail(m_request.target, values.reason());
    const Result<Source> source = assetFor(project, m_request.asset, *form);
    if (!source)
        return fail(m_request.project, source.reason());
    if (QFileInfo(m_request.target).canonicalFilePath() == QFileInfo(m_request.project).canonicalFilePath())
        return fail(m_request.target, Texts::tr("This is the project itself"));
    const RecipeRun::Outcome outcome = runSingle(*source, *form, *values, m_request.target, mode());
    const QString folder = QFileInfo(m_request.target).path();
    report(outcome, folder, m_request.target);
    QStringList targets;
    for (const RecipeRun::File &written : outcome.files)
        targets.append(pathIn(folder, written.name));
    return outcome.state != State::Impossible && writeDepfile(targets, sources()) ? Done : Failed;
}

int ExportCommand::writeThumbnail(const Project &project)
{
    if (QFileInfo(m_request.thumbnail).canonicalFilePath() == QFileInfo(m_request.project).canonicalFilePath())
        return fail(m_request.thumbnail, Texts::tr("This is the project itself"));
    const QImage picture = projectThumbnail(project, {m_request.size, m_request.size});
    if (picture.isNull())
        return fail(m_request.project, Texts::tr("There is nothing in it that a picture could show"));
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    if (!picture.save(&png, "PNG"))
        return fail(m_request.thumbnail, Texts::tr("No picture could be made"));
    const QString problem = WholeFile::write(m_request.thumbnail, png.data());
    return problem.isEmpty() ? Done : fail(m_request.thumbnail, problem);
}

RecipeRun::Mode ExportCommand::mode() const
{
    return m_request.isDryRun ? RecipeRun::Mode::Look : RecipeRun::Mode::Write;
}

void ExportCommand::report(const RecipeRun::Outcome &outcome, const QString &folder, const QString &place)
{
    if (outcome.state == State::Impossible)
        fail(place, outcome.reason);
    for (const RecipeRun::File &file : outcome.files) {
        if (!m_request.isQuiet && (file.state != State::Unchanged || m_request.isDryRun))
            m_out << wordOf(file.state).leftJustified(StateWidth) << pathIn(folder, file.name) << '\n';
    }
}

void ExportCommand::sum(const QList<RecipeRun::Outcome> &outcomes)
{
    if (m_request.isQuiet)
        return;
    QStringList counts;
    for (const State state : {State::New, State::Changed, State::Unchanged, State::Impossible}) {
        const auto count = std::count_if(outcomes.cbegin(), outcomes.cend(),
                                         [state](const RecipeRun::Outcome &outcome) { return outcome.state == state; });
        if (count > 0)
            counts.append(QStringLiteral("%1 %2").arg(count).arg(wordOf(state)));
    }
    m_out << (counts.isEmpty() ? QStringLiteral("The recipe is empty") : counts.join(QStringLiteral(", ")))
          << (m_request.isDryRun ? QStringLiteral("; nothing was written") : QString()) << '\n';
}

bool ExportCommand::writeDepfile(const QStringList &targets, const QStringList &prerequisites)
{
    if (m_request.depfile.isEmpty() || m_request.isDryRun || targets.isEmpty())
        return true;
    const QString place = QFileInfo(m_request.depfile).canonicalFilePath();
    for (const QString &path : targets + prerequisites) {
        if (!place.isEmpty() && QFileInfo(path).canonicalFilePath() == place) {
            fail(m_request.depfile, Texts::tr("This file is exported, or exported from"));
            return false;
        }
        if (!Depfile::canName(path)) {
            fail(m_request.depfile,
                 Texts::tr("make cannot be told of “%1”: its name has characters that end names").arg(path));
            return false;
        }
    }
    const QByteArray rule = Depfile::rule(targets, prerequisites);
    if (WholeFile::stateOf(m_request.depfile, rule) == WholeFile::State::Unchanged)
        return true;
    const QString problem = WholeFile::write(m_request.depfile, rule);
    if (!problem.isEmpty())
        fail(m_request.depfile, problem);
    return problem.isEmpty();
}

int ExportCommand::fail(const QString &file, const QString &reason)
{
    m_errors << file << ": " << reason << '\n';
    return Failed;
}
