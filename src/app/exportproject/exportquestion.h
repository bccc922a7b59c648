#pragma once

#include <QString>

class QWidget;

/// What a person is asked before a project is exported, or its recipe is replaced.
struct ExportQuestion
{
    enum class Kind {
        SaveProject, ///< which has no file, beside which its outputs could be
        StartAnew, ///< in place of a recipe that cannot be read
        ReplaceRecipe, ///< that another program changed meanwhile
    };

    Kind kind;
    QString recipe{}; ///< its path
    QString problems{}; ///< why it cannot be read, a line each
};

/// Asks the question over a window. What might lose something is not proposed.
[[nodiscard]] bool askAboutExport(QWidget *parent, const ExportQuestion &question);
