#pragma once

#include "editors/canvas/paintoptions.h"

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QObject>

class QAction;

/// How people want to paint in the pixel editors: the options, and the actions that choose them.
///
/// The three editors share one of these, so that a choice made in one of them holds in all. What is a habit rather
/// than a part of the work at hand is remembered: toJson().
class PaintSettings : public QObject
{
    Q_OBJECT

public:
    enum Choice { Connect, PixelPerfect, Shade, RoundBrush, MirrorSides, MirrorEnds };

    /// As people find it at first: with strokes that are connected.
    explicit PaintSettings(QObject *parent = nullptr);

    [[nodiscard]] const PaintOptions &options() const { return m_options; }
    /// The action that makes a choice, or takes it back.
    [[nodiscard]] QAction *action(Choice choice) const { return m_actions.value(choice); }

    /// Side or diameter of the brush, 1 to Brush::MaximumSize.
    [[nodiscard]] int brushSize() const { return m_size; }
    void setBrushSize(int size);
    /// Paints with a brush that is a picture, until a size or another shape is chosen.
    void setBrush(const Brush &picture);

    [[nodiscard]] QJsonObject toJson() const;
    /// Takes over what was remembered; what is missing or of another kind stays as it is.
    void fromJson(const QJsonObject &json);

signals:
    void changed();
    /// Something was chosen that is to be remembered.
    void habitChanged();

private:
    void addChoice(Choice choice, const QString &name, const QString &icon, const QString &text,
                   const QString &toolTip);
    void choose(Choice choice, bool on);
    void setUsualBrush();

    PaintOptions m_options;
    int m_size = 1;
    QHash<Choice, QAction *> m_actions;
};
