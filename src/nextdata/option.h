#pragma once

#include "nextdata/result.h"

#include <QList>
#include <QMap>
#include <QString>

namespace NextData {

/// Something about a form that people choose, under an id that recipes and command lines use. Every value has a form
/// as text: "true" or "false", a decimal number, the id of a choice, or the text itself.
struct Option
{
    enum class Kind { Flag, Number, Choice, Text };

    struct Choice
    {
        QString id;
        QString title; ///< for people
    };

    QString id;
    Kind kind;
    QString title; ///< for people, a few words
    QString description; ///< for people, a sentence
    QString standard; ///< the default, as text
    int least = 0; ///< of a number
    int most = 0;
    QList<Choice> choices{};

    [[nodiscard]] static Option flag(const QString &id, const QString &title, const QString &description);
    [[nodiscard]] static Option number(const QString &id, const QString &title, const QString &description, int least,
                                       int most, int standard);
    /// The first choice is the default.
    [[nodiscard]] static Option choice(const QString &id, const QString &title, const QString &description,
                                       const QList<Choice> &choices);
    [[nodiscard]] static Option text(const QString &id, const QString &title, const QString &description);

    /// The value that a text names, in its one form; a failure names option and value.
    [[nodiscard]] Result<QString> parsed(const QString &value) const;
};

/// A checked value for every option of a form.
class OptionValues
{
public:
    /// The values that are given by their options' ids, and defaults for the rest. A failure names an unknown option,
    /// or the option and value that does not go with it.
    [[nodiscard]] static Result<OptionValues> parse(const QList<Option> &options, const QMap<QString, QString> &given);

    // The option must exist and be of that kind.
    [[nodiscard]] bool flag(const char *id) const { return valueOf(id) == QLatin1String("true"); }
    [[nodiscard]] int number(const char *id) const { return valueOf(id).toInt(); }
    [[nodiscard]] bool is(const char *id, const char *choice) const { return valueOf(id) == QLatin1String(choice); }
    [[nodiscard]] QString text(const char *id) const { return valueOf(id); }

    /// Those that are not the default, sorted by id: what a recipe keeps.
    [[nodiscard]] QMap<QString, QString> changed() const { return m_changed; }

private:
    [[nodiscard]] QString valueOf(const char *id) const;

    QMap<QString, QString> m_values;
    QMap<QString, QString> m_changed;
};

} // namespace NextData
