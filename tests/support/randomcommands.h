#pragma once

#include "support/randomhands.h"
#include "ui/commands.h"
#include "ui/messagedialog.h"

#include <QComboBox>
#include <QFileDialog>
#include <QPointer>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTimer>

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
            QTimer answers; // also while a dialog waits, which another one may have opened
            const auto answer = [this] { this->answer(); };
            QObject::connect(&answers, &QTimer::timeout, &answers, answer, Qt::QueuedConnection);
            answers.start(0);
            action.trigger();
            do
                QCoreApplication::processEvents();
            while (this->answer());
        });
    }
    bool isWanted(const QString &name)
    {
        static const QRegularExpression leaving( // the project, the program, what is installed
            "^(file\\.(new|open|save.*|close|quit)|help\\.(guide|checkForUpdates|sampleProject)|edit\\.(undo|redo))$");
        static const QRegularExpression growing("\\.(new|add|clone|copy|copyToNewMap|createAnimations|importFont)$");
        const qsizetype assets = project().palettes().size() + project().tileSets().size() + project().maps().size()
            + project().blockSets().size() + project().spriteBanks().size() + project().images().size();
        return !leaving.match(name).hasMatch() && (!growing.match(name).hasMatch() || (assets < 16 && chance()));
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
};
