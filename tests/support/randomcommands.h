#pragma once

#include "app/imports/spriteimport.h"
#include "app/projectactions.h"
#include "nextdata/source.h"
#include "support/modeltools.h"
#include "support/randomhands.h"
#include "support/usualrecipe.h"
#include "ui/commands.h"
#include "ui/messagedialog.h"

#include <QtWidgets>

/// Gives any command that the program has, whatever is in front, and does something with the dialogs that it opens.
class RandomCommands : protected virtual RandomHands
{
protected:
    RandomCommands()
    {
        addCommands<16>(
            Undoable,
            "(pixels|painting|animation|colours)\\..*|paletteEditor\\.(sort|reverse|exchange|even|mark).*"
            "|edit\\.(cut|copy|paste|selectAll|clearSelection)"
            "|mapEditor\\.(add|remove|resize|delete|cut|copyAs|fill|cancel).*|map\\.(replace|select|goTo).*");
        addCommands<8>(Lasting, ".*");
        addImports();
        addExport();
    }

private:
    /// Adds the commands of these names.
    template <int Often>
    void addCommands(Effect effect, const char *names)
    {
        const QRegularExpression given(QRegularExpression::anchoredPattern(names));
        const auto command = [this, given]() -> QAction * {
            QAction *action = any(Commands::instance()->actionsOf(any(Commands::instance()->all()).name));
            const auto *editor = action ? qobject_cast<QWidget *>(action->parent()) : nullptr;
            const bool isThere = action && action->isEnabled() && (!editor || editor->isEnabled());
            return isThere && given.match(action->objectName()).hasMatch() && isWanted(action->objectName()) ? action
                                                                                                             : nullptr;
        };
        const auto anyCommand = [command] {
            QAction *action = nullptr;
            for (int trial = 0; trial < 50 && !action; ++trial)
                action = command();
            return action;
        };
        addFor<Often>(anyCommand, "command", effect, [this](QAction &action) {
            m_lastAction = action.objectName();
            withAnswers([&action] { action.trigger(); });
        });
    }
    /// Adds imports of a picture, which is another one each time, so that importing again brings something new.
    void addImports()
    {
        const auto actions = [this] { return number(4) == 0 ? m_window.projectActions() : nullptr; };
        addFor(actions, "import", Lasting, [this](ProjectActions &does) {
            const QString file = m_folder.filePath("picture.png");
            const QSize size(16 * (1 + number(4)), 16 * (1 + number(4)));
            const QImage picture = pictureOf(size, QImage::Format_RGB32,
                                             [this](int) { return qRgb(0xff * number(2), 0xff * number(2), 0); });
            if (!picture.save(file) || isFull())
                return;
            const QUuid palette = anyId(&Project::palettes);
            const auto import = any(std::vector<std::function<void()>>{
                [&] { does.importPalette(palette, file); }, [&] { does.importMap(file); },
                [&] {
                    does.importSpritePicture({file, "Picture", Quenmora::Sprite(number(2)), palette, chance()});
                }});
            withAnswers(import);
        });
    }
    void addExport()
    {
        const auto controller = [this] { return number(4) == 0 ? m_window.projectController() : nullptr; };
        addFor(controller, "export", None, [this](ProjectController &opened) {
            const QString recipe = NextData::Recipe::pathFor(opened.filePath());
            if (!opened.filePath().isEmpty() && usualRecipe(project()).save(recipe).isEmpty())
                withAnswers([] { Commands::instance()->actionsOf("file.exportAgain").constFirst()->trigger(); });
        });
    }

    /// Does something that may open dialogs, and wait for them.
    void withAnswers(const std::function<void()> &act)
    {
        QTimer answers; // also while a dialog waits, which another one may have opened
        QObject::connect(
            &answers, &QTimer::timeout, &answers, [this] { answer(); }, Qt::QueuedConnection);
        answers.start(0);
        act();
        do
            QCoreApplication::processEvents();
        while (answer());
    }
    [[nodiscard]] bool isFull() { return NextData::Source::all(project()).size() >= 16; }
    bool isWanted(const QString &name)
    {
        static const QRegularExpression leaving( // the project, the program, what is installed
            "^(file\\.(new|open|exportAgain|save.*|close|quit)|help\\.(guide|checkForUpdates|sampleProject)|edit\\.("
            "undo|redo))$");
        static const QRegularExpression growing("\\.(new|add|clone|copy|copyToNewMap|createAnimations|importFont)$");
        return !leaving.match(name).hasMatch() && (!growing.match(name).hasMatch() || (!isFull() && chance()));
    }

    /// Fills in the dialogs that are open, or not, and closes them. Returns whether there was any.
    bool answer()
    {
        bool any = false;
        if (QWidget *menu = QApplication::activePopupWidget()) // which a button shows, and waits for
            any = menu->close();
        QList<QPointer<QDialog>> dialogs;
        for (QWidget *window : QApplication::topLevelWidgets())
            dialogs.append(qobject_cast<QDialog *>(window));
        for (const QPointer<QDialog> &dialog : std::as_const(dialogs)) {
            if (!dialog || !dialog->isVisible() || qobject_cast<MessageDialog *>(dialog))
                continue;
            any = true;
            if (!qobject_cast<QFileDialog *>(dialog) && chance()) {
                fill(*dialog);
                dialog->accept();
            }
            if (dialog && dialog->isVisible())
                dialog->reject();
        }
        return any;
    }
    void fill(const QDialog &dialog)
    {
        for (QWidget *field : dialog.findChildren<QWidget *>()) {
            if (auto *value = qobject_cast<QSpinBox *>(field))
                value->setValue(value->minimum() + number(std::min(value->maximum() - value->minimum(), 40) + 1));
            else if (auto *choice = qobject_cast<QComboBox *>(field); choice && choice->count() > 0)
                choice->setCurrentIndex(number(choice->count()));
            else if (auto *tick = qobject_cast<QAbstractButton *>(field); tick && tick->isCheckable() && chance())
                tick->click();
        }
    }

    QTemporaryDir m_folder;
};
