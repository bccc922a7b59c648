// The text of a recipe, read and written.

#include "nextdata/form.h"
#include "nextdata/quoted.h"
#include "nextdata/recipe.h"
#include "nextdata/texts.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <optional>

namespace NextData {
namespace {

constexpr int FormatVersion = 1;
constexpr int Indent = 4;

constexpr QLatin1String Version("formatVersion");
constexpr QLatin1String Outputs("outputs");
constexpr QLatin1String Kind("kind");
constexpr QLatin1String Id("id");
constexpr QLatin1String Name("name");
constexpr QLatin1String FormId("form");
constexpr QLatin1String Options("options");
constexpr QLatin1String File("file");

std::optional<AssetKind> kindOf(const QString &word)
{
    for (int kind = 0; kind <= int(AssetKind::Image); ++kind) {
        if (wordOf(AssetKind(kind)) == word)
            return AssetKind(kind);
    }
    return std::nullopt;
}

/// The lines on which the values begin that are in an array of the outermost object, for JSON that is well formed.
QList<int> linesOfElements(const QByteArray &text)
{
    QList<int> lines;
    QByteArray open; // the brackets around the present character
    bool isAwaited = false; // whether what comes next is an element
    int line = 1;
    for (const char *c = text.cbegin(); c != text.cend(); ++c) {
        line += *c == '\n';
        if (std::isspace(uchar(*c)))
            continue;
        if (isAwaited && *c != ']')
            lines.append(line);
        isAwaited = false;
        if (*c == '"') {
            for (++c; *c != '"'; ++c)
                c += *c == '\\';
        } else if (*c == '{' || *c == '[') {
            open.append(*c);
            isAwaited = open == "{[";
        } else if (*c == '}' || *c == ']') {
            open.chop(1);
        } else if (*c == ',') {
            isAwaited = open == "{[";
        }
    }
    return lines;
}

/// Reads the outputs of a recipe, and notes what is wrong with them.
class Reader
{
public:
    QList<RecipeOutput> outputs;
    QHash<QString, int> lineOfFile;
    QList<Recipe::Problem> problems;

    void read(const QByteArray &text)
    {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(text, &error);
        if (error.error != QJsonParseError::NoError) {
            m_line = 1 + int(text.left(error.offset).count('\n'));
            return note(Texts::tr("This is no JSON: %1").arg(error.errorString()));
        }
        const QJsonObject object = document.object();
        if (!object.value(Version).isDouble())
            return note(Texts::tr("This is no recipe: “%1” is missing").arg(Version));
        if (object.value(Version).toInteger(FormatVersion + 1) > FormatVersion)
            return note(Texts::tr("The recipe is from a newer version of Quenmora"));
        checkKeys(object, {Version, Outputs});
        const QJsonValue list = object.value(Outputs);
        if (!list.isArray())
            return note(Texts::tr("“%1” must be a list").arg(Outputs));
        readOutputs(list.toArray(), linesOfElements(text));
    }

private:
    void note(const QString &reason) { problems.append({m_line, reason}); }

    void checkKeys(const QJsonObject &object, const QStringList &known)
    {
        for (const QString &key : object.keys()) {
            if (!known.contains(key))
                note(Texts::tr("“%1” means nothing here").arg(key));
        }
    }

    void readOutputs(const QJsonArray &list, const QList<int> &lines)
    {
        if (lines.size() != list.size())
            return note(Texts::tr("“%1” is there twice").arg(Outputs));
        if (list.size() > Recipe::MaxOutputs)
            return note(Texts::tr("There are more than %1 outputs").arg(Recipe::MaxOutputs));
        QHash<QString, int> lineOfCase; // some systems take names for one that differ in their case
        for (qsizetype i = 0; i < list.size(); ++i) {
            m_line = lines[i];
            const qsizetype before = problems.size();
            const RecipeOutput output = readOutput(list[i]);
            if (problems.size() == before) {
                if (const QString problem = Recipe::problemOf(output); !problem.isEmpty())
                    note(problem);
            }
            const QString file = output.file.toCaseFolded();
            if (lineOfCase.contains(file) && !file.isEmpty())
                note(Texts::tr("“%1” is the file of line %2 already")
                         .arg(output.file, QString::number(lineOfCase.value(file))));
            lineOfCase.insert(file, m_line);
            lineOfFile.insert(output.file, m_line);
            outputs.append(output);
        }
    }

    QString readText(const QJsonObject &object, QLatin1String key)
    {
        const QJsonValue value = object.value(key);
        if (!value.isString())
            note(value.isUndefined() ? Texts::tr("“%1” is missing").arg(key)
                                     : Texts::tr("“%1” must be a text").arg(key));
        return value.toString();
    }

    RecipeOutput readOutput(const QJsonValue &value)
    {
        RecipeOutput output;
        if (!value.isObject()) {
            note(Texts::tr("An output must be an object"));
            return output;
        }
        const QJsonObject object = value.toObject();
        checkKeys(object, {Kind, Id, Name, FormId, Options, File});
        const QString kind = readText(object, Kind);
        if (const auto known = kindOf(kind))
            output.kind = *known;
        else if (!kind.isEmpty())
            note(Texts::tr("There is no kind of asset “%1”").arg(kind));
        const QString id = readText(object, Id);
        output.id = QUuid::fromString(id);
        if (output.id.isNull() && !id.isEmpty())
            note(Texts::tr("“%1” is no id").arg(id));
        output.name = readText(object, Name);
        output.form = readText(object, FormId);
        output.file = readText(object, File);
        readOptions(output, object.value(Options));
        return output;
    }

    void readOptions(RecipeOutput &output, const QJsonValue &options)
    {
        if (!options.isObject() && !options.isUndefined())
            return note(Texts::tr("“%1” must be an object").arg(Options));
        const Form *form = findForm(output.form);
        if (!form)
            return; // which is a problem by itself
        const QJsonObject object = options.toObject();
        for (auto value = object.begin(); value != object.end(); ++value) {
            const auto known = std::find_if(form->options.cbegin(), form->options.cend(),
                                            [&](const Option &option) { return option.id == value.key(); });
            if (known == form->options.cend())
                note(Texts::tr("%1 has no option “%2”").arg(form->id, value.key()));
            else if (const auto text = textOf(value.value(), known->kind))
                output.options.insert(value.key(), *text);
            else
                note(Texts::tr("The option “%1” has a value of the wrong type").arg(value.key()));
        }
    }

    /// The value of an option; nothing when it has not the option's type.
    static std::optional<QString> textOf(const QJsonValue &value, Option::Kind kind)
    {
        switch (kind) {
        case Option::Kind::Flag:
            if (value.isBool())
                return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
            return std::nullopt;
        case Option::Kind::Number:
            if (value.isDouble() && value.toDouble() == std::floor(value.toDouble()))
                return QString::number(value.toInteger());
            return std::nullopt;
        case Option::Kind::Choice:
        case Option::Kind::Text:
            return value.isString() ? std::optional(value.toString()) : std::nullopt;
        }
        return std::nullopt;
    }

    int m_line = 0;
};

QByteArray optionsText(const RecipeOutput &output)
{
    const Form *form = findForm(output.form);
    const auto values = form ? OptionValues::parse(form->options, output.options) : Failure{};
    QByteArrayList entries;
    // an option that is at its default needs no place, and may get another one
    const QMap<QString, QString> kept = values ? values->changed() : output.options;
    for (auto option = kept.cbegin(); option != kept.cend(); ++option) {
        const bool isText =
            !values || std::any_of(form->options.cbegin(), form->options.cend(), [&](const Option &each) {
                return each.id == option.key()
                    && (each.kind == Option::Kind::Text || each.kind == Option::Kind::Choice);
            });
        entries.append(quoted(option.key()) + ": " + (isText ? quoted(*option) : option->toUtf8()));
    }
    return '{' + entries.join(", ") + '}';
}

QByteArray textLine(const RecipeOutput &output)
{
    const auto entry = [](QLatin1String key, const QString &value) { return quoted(key) + ": " + quoted(value); };
    const QByteArrayList entries{
        entry(Kind, wordOf(output.kind)), entry(Id, output.id.toString(QUuid::WithoutBraces)), entry(Name, output.name),
        entry(FormId, output.form),       quoted(Options) + ": " + optionsText(output),        entry(File, output.file),
    };
    return QByteArray(2 * Indent, ' ') + '{' + entries.join(", ") + '}';
}

} // namespace

QList<Recipe::Problem> Recipe::parse(const QByteArray &text)
{
    Reader reader;
    reader.read(text);
    if (reader.problems.isEmpty()) {
        setOutputs(reader.outputs);
        m_lineOfFile = reader.lineOfFile;
    }
    return reader.problems;
}

QByteArray Recipe::text() const
{
    QByteArrayList lines;
    for (const RecipeOutput &output : m_outputs)
        lines.append(textLine(output));
    const QByteArray indent(Indent, ' ');
    const QByteArray list = lines.isEmpty() ? QByteArray() : '\n' + lines.join(",\n") + '\n' + indent;
    return "{\n" + indent + quoted(Version) + ": " + QByteArray::number(FormatVersion) + ",\n" + indent
        + quoted(Outputs) + ": [" + list + "]\n}\n";
}

} // namespace NextData
