#pragma once

#include "model/map.h"
#include "ui/dialogbase.h"

#include <QPointer>

class QLabel;
class QRadioButton;
class QSpinBox;

namespace MapEditor {

/// Asks which tile is to be put in place of which, and where.
class ReplaceTileDialog : public DialogBase
{
    Q_OBJECT

public:
    enum Scope { Selection, ThisMap, AllMaps };

    explicit ReplaceTileDialog(QWidget *parent = nullptr);

    /// Proposes to replace one tile of a map by another, in the selection if there is one.
    void propose(const QPointer<Map> &map, int from, int to, bool hasSelection);

    [[nodiscard]] int from() const;
    [[nodiscard]] int to() const;
    [[nodiscard]] Scope scope() const;

protected:
    QString problem() const override;

private:
    struct Choice
    {
        QSpinBox *index;
        QLabel *picture;
    };

    Choice addTile(const QString &label);
    void showPictures();

    QPointer<Map> m_map;
    Choice m_from;
    Choice m_to;
    QRadioButton *m_selection;
    QRadioButton *m_thisMap;
    QRadioButton *m_allMaps;
};

} // namespace MapEditor
