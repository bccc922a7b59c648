#pragma once

#include "app/commands/commandsearch.h"

#include <QFrame>
#include <QIcon>
#include <QList>
#include <QString>

#include <functional>

class QLineEdit;
class QListView;

/// A list of all that can be done and opened, of which a few letters find what is meant and Enter runs it.
///
/// It stands over a window until something is chosen, Escape is pressed or something else is clicked. What was used
/// last comes first.
class CommandPalette : public QFrame
{
    Q_OBJECT

public:
    struct Entry
    {
        QString id; ///< by which it is remembered
        std::function<QIcon()> icon; ///< asked for when it is seen
        CommandSearch::Item item;
        QString keys;
        std::function<void()> run;
    };

    explicit CommandPalette(QWidget *window);
    ~CommandPalette() override;

    /// Shows these, of which those of the ids in recent were used last, the last one first.
    void open(const QList<Entry> &entries, const QStringList &recent);

signals:
    /// The entry of an id is going to be run.
    void chosen(const QString &id);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Rows;

    void search();
    /// Goes to another row, around at the ends, past what cannot be run.
    void step(int rows);
    void setCurrent(int row);
    void accept(int row);

    QLineEdit *m_query;
    QListView *m_list;
    Rows *m_rows;
};
