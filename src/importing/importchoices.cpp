#include "importing/importchoices.h"

namespace Importing {
namespace {

const QString KindKey = QStringLiteral("kind");
const QString OptionsKey = QStringLiteral("options");
const QString NameKey = QStringLiteral("name");
const QString TargetKey = QStringLiteral("target");
const QString AtKey = QStringLiteral("at");
const QString PaletteKey = QStringLiteral("palette");
const QString TileSetKey = QStringLiteral("tileSet");

/// Reads what is there; what is not keeps its default.
class Reader
{
public:
    explicit Reader(const QJsonObject &object) : m_object(object) { }

    void read(const QString &key, QString &text)
    {
        const QJsonValue value = m_object.value(key);
        m_isGood &= value.isUndefined() || value.isString();
        text = value.toString(text);
    }

    void read(const QString &key, QUuid &id)
    {
        QString text;
        read(key, text);
        id = QUuid::fromString(text);
        m_isGood &= text.isEmpty() || !id.isNull();
    }

    void read(const QString &key, int &number)
    {
        const QJsonValue value = m_object.value(key);
        m_isGood &= value.isUndefined() || (value.isDouble() && value.toInt(-1) >= 0);
        number = value.toInt(number);
    }

    void read(const QString &key, QMap<QString, QString> &texts)
    {
        const QJsonValue value = m_object.value(key);
        m_isGood &= value.isUndefined() || value.isObject();
        const QJsonObject entries = value.toObject();
        for (auto entry = entries.constBegin(); entry != entries.constEnd(); ++entry) {
            m_isGood &= entry.value().isString();
            texts.insert(entry.key(), entry.value().toString());
        }
    }

    [[nodiscard]] bool isGood() const { return m_isGood; }

private:
    QJsonObject m_object;
    bool m_isGood = true;
};

} // namespace

QJsonObject ImportChoices::toJson() const
{
    QJsonObject object{{KindKey, kind}};
    if (!options.isEmpty()) {
        QJsonObject entries;
        for (auto option = options.cbegin(); option != options.cend(); ++option)
            entries.insert(option.key(), *option);
        object.insert(OptionsKey, entries);
    }
    if (!name.isEmpty())
        object.insert(NameKey, name);
    if (at != AtTheEnd)
        object.insert(AtKey, at);
    for (const auto &[key, id] : {std::pair(TargetKey, target), {PaletteKey, palette}, {TileSetKey, tileSet}}) {
        if (!id.isNull())
            object.insert(key, id.toString());
    }
    return object;
}

std::optional<ImportChoices> ImportChoices::fromJson(const QJsonObject &object)
{
    ImportChoices choices;
    Reader reader(object);
    reader.read(KindKey, choices.kind);
    reader.read(OptionsKey, choices.options);
    reader.read(NameKey, choices.name);
    reader.read(TargetKey, choices.target);
    reader.read(AtKey, choices.at);
    reader.read(PaletteKey, choices.palette);
    reader.read(TileSetKey, choices.tileSet);
    if (!reader.isGood() || choices.kind.isEmpty())
        return {};
    return choices;
}

} // namespace Importing
