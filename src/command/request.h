#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// What the command line asks for.
struct Request
{
    enum class Action {
        Help,
        Version,
        Formats, ///< list the forms
        List, ///< list the assets
        Describe,
        Recipe,
        Single, ///< one asset, without a recipe
        Thumbnail, ///< a picture of the project
    };

    Action action = Action::Recipe;
    QString project;

    QString recipe; ///< empty for the one beside the project
    QString output; ///< empty for the project's folder

    QString asset; ///< of Single, a name or an id
    QString form;
    QMap<QString, QString> options;
    QString target;

    QString thumbnail; ///< the file of a picture of the project
    int size = 256; ///< pixels along the longer side of that, at most

    QString depfile; ///< none when empty
    bool isDryRun = false;
    bool isQuiet = false;

    /// The words of a command line, the program's name first. What is wrong with them is in error; the request is then
    /// of no use.
    [[nodiscard]] static Request parse(const QStringList &arguments, QString &error);

    [[nodiscard]] static QString helpText();
};
