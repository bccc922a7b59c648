#include "nextdata/option.h"

#include "nextdata/texts.h"

#include <QStringList>

#include <algorithm>

namespace NextData {
namespace {

const QString True = QStringLiteral("true");
const QString False = QStringLiteral("false");

/// The ids of options or choices, for a message.
template <typename List>
QString idsOf(const List &list)
{
    QStringList ids;
    for (const auto &item : list)
        ids.append(item.id);
    return ids.join(QStringLiteral(", "));
}

template <typename List>
auto findById(const List &list, const QString &id)
{
    return std::find_if(list.cbegin(), list.cend(), [&id](const auto &item) { return item.id == id; });
}

/// Digits alone: toInt() by itself takes spaces and a plus as well.
bool isNumber(const QString &text)
{
    const qsizetype sign = text.startsWith(u'-') ? 1 : 0;
    return text.size() > sign
        && std::all_of(text.cbegin() + sign, text.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

Option Option::flag(const QString &id, const QString &title, const QString &description)
{
    return {.id = id, .kind = Kind::Flag, .title = title, .description = description, .standard = False};
}

Option Option::number(const QString &id, const QString &title, const QString &description, int least, int most,
                      int standard)
{
    return {.id = id,
            .kind = Kind::Number,
            .title = title,
            .description = description,
            .standard = QString::number(standard),
            .least = least,
            .most = most};
}

Option Option::choice(const QString &id, const QString &title, const QString &description, const QList<Choice> &choices)
{
    return {.id = id,
            .kind = Kind::Choice,
            .title = title,
            .description = description,
            .standard = choices.first().id,
            .choices = choices};
}

Option Option::text(const QString &id, const QString &title, const QString &description)
{
    return {.id = id, .kind = Kind::Text, .title = title, .description = description, .standard = {}};
}

Result<QString> Option::parsed(const QString &value) const
{
    const auto refused = [&](const QString &wanted) {
        return Failure{Texts::tr("Option %1: “%2” is not %3").arg(id, value, wanted)};
    };
    switch (kind) {
    case Kind::Flag:
        if (value != True && value != False)
            return refused(Texts::tr("true or false"));
        return value;
    case Kind::Number: {
        bool fits = false;
        const int number = value.toInt(&fits);
        if (!fits || !isNumber(value) || number < least || number > most)
            return refused(Texts::tr("a whole number from %1 to %2").arg(least).arg(most));
        return QString::number(number);
    }
    case Kind::Choice:
        if (findById(choices, value) == choices.cend())
            return refused(Texts::tr("one of %1").arg(idsOf(choices)));
        return value;
    case Kind::Text:
        return value;
    }
    return refused({});
}

Result<OptionValues> OptionValues::parse(const QList<Option> &options, const QMap<QString, QString> &given)
{
    for (auto value = given.cbegin(); value != given.cend(); ++value) {
        if (findById(options, value.key()) == options.cend())
            return Failure{Texts::tr("There is no option “%1”, only %2").arg(value.key(), idsOf(options))};
    }
    OptionValues values;
    for (const Option &option : options) {
        const Result<QString> value = option.parsed(given.value(option.id, option.standard));
        if (!value)
            return value.failure();
        values.m_values.insert(option.id, *value);
        if (*value != option.standard)
            values.m_changed.insert(option.id, *value);
    }
    return values;
}

QString OptionValues::valueOf(const char *id) const
{
    const auto value = m_values.constFind(QString::fromLatin1(id));
    Q_ASSERT(value != m_values.cend());
    return *value;
}

} // namespace NextData
