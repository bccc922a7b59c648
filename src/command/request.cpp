#include "command/request.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Request)
};

const QString Help = QStringLiteral("help");
const QString Version = QStringLiteral("version");
const QString Formats = QStringLiteral("formats");
const QString List = QStringLiteral("list");
const QString Describe = QStringLiteral("describe");
const QString Recipe = QStringLiteral("recipe");
const QString Output = QStringLiteral("output");
const QString Asset = QStringLiteral("asset");
const QString Format = QStringLiteral("format");
const QString OptionKey = QStringLiteral("option");
const QString To = QStringLiteral("to");
const QString Thumbnail = QStringLiteral("thumbnail");
const QString Size = QStringLiteral("size");
const QString Depfile = QStringLiteral("depfile");
const QString DryRun = QStringLiteral("dry-run");
const QString Quiet = QStringLiteral("quiet");

const QString ShortHelp = QStringLiteral("h");

void addOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        {Recipe, Texts::tr("Do this recipe, not the one beside the project."), Texts::tr("file")},
        {Output, Texts::tr("Write below this folder, not below the project's."), Texts::tr("folder")},
        {{DryRun, QStringLiteral("n")}, Texts::tr("Write nothing, but say what would be written.")},
        {Depfile, Texts::tr("Tell make or ninja in this file what was made of what."), Texts::tr("file")},
        {{Quiet, QStringLiteral("q")}, Texts::tr("Say nothing unless something fails.")},
        {Asset, Texts::tr("Without a recipe: write the asset of this name or id …"), Texts::tr("name")},
        {Format, Texts::tr("… in this form …"), Texts::tr("id")},
        {OptionKey, Texts::tr("… with this option of the form, which may be given again for others …"),
         Texts::tr("key=value")},
        {To, Texts::tr("… to this file."), Texts::tr("file")},
        {List, Texts::tr("List the assets: kind, id and name.")},
        {Formats, Texts::tr("List the forms and their options.")},
        {Describe, Texts::tr("Describe the whole project as text, for git diff.")},
        {Thumbnail, Texts::tr("Write a small picture of the project, as file managers show, to this PNG file …"),
         Texts::tr("file")},
        {Size, Texts::tr("… of at most so many pixels along its sides; 256 without this."), Texts::tr("pixels")},
        {{ShortHelp, Help}, Texts::tr("Show this help.")},
        {{QStringLiteral("v"), Version}, Texts::tr("Show the version.")},
    });
    parser.addPositionalArgument(QStringLiteral("project"), Texts::tr("A project file, as game.quenmora."));
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(Texts::tr(
        "Writes the graphics of a Quenmora project in the forms that a game takes, as its recipe says, the file\n"
        "game.quenmora-export.json beside game.quenmora, which File > Export Project in the editor makes.\n"
        "Files whose bytes stay the same are not touched."));
}

/// Options that ask for something else than each other, of which there can be one.
Request::Action actionOf(const QCommandLineParser &parser, QString &error)
{
    using Action = Request::Action;
    const std::pair<QString, Action> choices[] = {{Formats, Action::Formats},
                                                  {List, Action::List},
                                                  {Describe, Action::Describe},
                                                  {Asset, Action::Single},
                                                  {Thumbnail, Action::Thumbnail}};
    if (parser.isSet(Help))
        return Action::Help;
    if (parser.isSet(Version))
        return Action::Version;
    Action action = Action::Recipe;
    QString first;
    for (const auto &[option, meant] : choices) {
        if (!parser.isSet(option))
            continue;
        if (!first.isEmpty())
            error = Texts::tr("--%1 and --%2 do not go together").arg(first, option);
        first = option;
        action = meant;
    }
    return action;
}

/// Options that mean nothing for what is asked for.
QString strayOption(const QCommandLineParser &parser, Request::Action action)
{
    using Action = Request::Action;
    QStringList stray;
    if (action != Action::Recipe)
        stray << Recipe << Output;
    if (action != Action::Single)
        stray << Format << OptionKey << To;
    if (action != Action::Thumbnail)
        stray << Size;
    if (action != Action::Recipe && action != Action::Single)
        stray << DryRun << Depfile;
    for (const QString &option : stray) {
        if (parser.isSet(option))
            return option;
    }
    return {};
}

QString takeSize(Request &request, const QString &pixels)
{
    constexpr int MostPixels = 4096;
    bool isNumber = false;
    request.size = pixels.toInt(&isNumber);
    if (isNumber && request.size > 0 && request.size <= MostPixels)
        return {};
    return Texts::tr("--%1 takes a number from 1 to %2, not “%3”").arg(Size).arg(MostPixels).arg(pixels);
}

QString takeOptions(Request &request, const QStringList &pairs)
{
    for (const QString &pair : pairs) {
        const qsizetype equals = pair.indexOf(u'=');
        if (equals < 1)
            return Texts::tr("--%1 takes KEY=VALUE, not “%2”").arg(OptionKey, pair);
        request.options.insert(pair.first(equals), pair.sliced(equals + 1));
    }
    return {};
}

/// What is wrong with the values of options, and with what stands beside options.
QString problemOf(const QCommandLineParser &parser, Request::Action action)
{
    for (const QString &option : {Recipe, Output, Asset, Format, To, Thumbnail, Size, Depfile}) {
        if (parser.values(option).size() > 1)
            return Texts::tr("--%1 is there twice").arg(option);
        if (parser.isSet(option) && parser.value(option).isEmpty())
            return Texts::tr("--%1 needs a value").arg(option);
    }
    if (const QString stray = strayOption(parser, action); !stray.isEmpty())
        return Texts::tr("--%1 means nothing here").arg(stray);
    for (const QString &option : {Format, To}) {
        if (action == Request::Action::Single && !parser.isSet(option))
            return Texts::tr("--%1 needs --%2").arg(Asset, option);
    }
    const QStringList projects = parser.positionalArguments();
    const qsizetype wanted = action == Request::Action::Formats ? 0 : 1;
    if (projects.size() > wanted)
        return Texts::tr("“%1” is one argument too many").arg(projects[wanted]);
    if (projects.size() < wanted || projects.contains(QString()))
        return Texts::tr("A project file is missing");
    return {};
}

} // namespace

Request Request::parse(const QStringList &arguments, QString &error)
{
    QCommandLineParser parser;
    addOptions(parser);
    Request request;
    if (!parser.parse(arguments)) {
        error = parser.errorText();
        return request;
    }
    error.clear();
    request.action = actionOf(parser, error);
    if (request.action == Action::Help || request.action == Action::Version || !error.isEmpty())
        return request;
    error = problemOf(parser, request.action);
    if (error.isEmpty())
        error = takeOptions(request, parser.values(OptionKey));
    if (error.isEmpty() && parser.isSet(Size))
        error = takeSize(request, parser.value(Size));
    request.thumbnail = parser.value(Thumbnail);
    request.project = parser.positionalArguments().value(0);
    request.recipe = parser.value(Recipe);
    request.output = parser.value(Output);
    request.asset = parser.value(Asset);
    request.form = parser.value(Format);
    request.target = parser.value(To);
    request.depfile = parser.value(Depfile);
    request.isDryRun = parser.isSet(DryRun);
    request.isQuiet = parser.isSet(Quiet);
    return request;
}

QString Request::helpText()
{
    QCommandLineParser parser;
    addOptions(parser);
    describe(parser);
    return parser.helpText();
}
