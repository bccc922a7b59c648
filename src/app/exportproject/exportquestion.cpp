#include "app/exportproject/exportquestion.h"

#include "ui/plaintext.h"
#include "ui/titlewidth.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace {

struct Words
{
    QString text;
    QString details;
    QString yes;
    bool isProposed;
};

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ExportQuestion)
};

Words wordsOf(const ExportQuestion &question)
{
    const QString path = QDir::toNativeSeparators(question.recipe);
    switch (question.kind) {
    case ExportQuestion::Kind::SaveProject:
        return {Texts::tr("Save the project first?"),
                Texts::tr("The files for the game are written beside the project's file, and it has none yet."),
                Texts::tr("&Save Project…"), true};
    case ExportQuestion::Kind::StartAnew:
        return {Texts::tr("The recipe of this project cannot be used:\n%1").arg(path),
                question.problems + QStringLiteral("\n\n")
                    + Texts::tr("Mend the file, or start with an empty recipe: the file is then kept as %1.")
                          .arg(QFileInfo(question.recipe).fileName() + QStringLiteral(".bad")),
                Texts::tr("&Start Anew"), false};
    case ExportQuestion::Kind::ReplaceRecipe:
        break;
    }
    return {Texts::tr("Another program changed the recipe of this project:\n%1").arg(path),
            Texts::tr("Saving it from here loses that change."), Texts::tr("&Replace"), false};
}

} // namespace

bool askAboutExport(QWidget *parent, const ExportQuestion &question)
{
    const Words words = wordsOf(question);
    // not on the stack: it goes with its parent
    const QPointer<QMessageBox> box =
        new QMessageBox(words.isProposed ? QMessageBox::Question : QMessageBox::Warning, Texts::tr("Export Project"),
                        words.text, QMessageBox::Cancel, parent);
    QPushButton *yes = box->addButton(words.yes, QMessageBox::AcceptRole);
    box->setDefaultButton(words.isProposed ? yes : qobject_cast<QPushButton *>(box->button(QMessageBox::Cancel)));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(plainText(words.details)); // whose format is always guessed
    widenForTitle(*box);
    box->exec();
    const bool isAccepted = box && box->clickedButton() == yes;
    if (box)
        box->deleteLater();
    return isAccepted;
}
