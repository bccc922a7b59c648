#pragma once

#include "app/commands/shortcuttable.h"

#include <QDialog>
#include <QList>

#include <functional>

class QKeySequenceEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class QVBoxLayout;

/// Shows all commands with their keys, finds them by name or by keys, and lets a person choose other keys.
///
/// Nothing is chosen before the dialog is accepted.
class ShortcutsDialog : public QDialog
{
    Q_OBJECT

public:
    using PlaceOf = std::function<QString(const Commands::Command &)>;

    ShortcutsDialog(const ShortcutTable &table, const PlaceOf &placeOf, QWidget *parent);

    [[nodiscard]] const Commands::Choices &choices() const { return m_table.choices(); }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildList(const PlaceOf &placeOf);
    void buildSearch(QVBoxLayout *layout);
    void buildEditor(QVBoxLayout *layout);
    void buildButtons(QVBoxLayout *layout);

    /// Hides the rows that are not searched for.
    void filter();
    [[nodiscard]] int current() const;
    [[nodiscard]] QTreeWidgetItem *itemOf(int command) const { return m_items.at(command); }
    void showRow(int command);
    void showAllRows();
    /// Offers the keys of the command that is selected.
    void showEditor();
    void addField(const QKeySequence &key);
    /// Takes what the fields hold.
    void takeFields();
    /// Says which other commands have these keys, too.
    void showDoubles();
    void takeAwayDoubles();

    ShortcutTable m_table;
    QLineEdit *m_search;
    QKeySequenceEdit *m_searchKeys;
    QTreeWidget *m_list;
    QList<QTreeWidgetItem *> m_items; ///< by command
    QLabel *m_heading;
    QVBoxLayout *m_fields;
    QList<QKeySequenceEdit *> m_edits;
    QPushButton *m_add;
    QPushButton *m_reset;
    QLabel *m_warning;
    QPushButton *m_takeAway;
};
