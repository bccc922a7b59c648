#pragma once

#include <QImage>
#include <QUndoCommand>
#include <QVariant>

#include <functional>

/// Undo step of one finished pixel edit of a tile, a sprite or an image.
///
/// The edit has been applied when the command is pushed, so the first redo does nothing. Steps of a
/// mergeable kind with equal merge keys become one, however much time lies between them.
class PixelEditCommand final : public QUndoCommand
{
public:
    /// What was done, as far as merging is concerned; the value is the command's id.
    enum Kind : int {
        None = -1, ///< a stroke, shape or paste: a step of its own
        Scroll = 1, ///< moved by a pixel, with wrap-around
        Nudge = 2, ///< a selection was moved by a key
        NextNudge = 3, ///< the same: moves of one selection and of the next have the two kinds by turns
    };

    /// Writes an image back into the edited asset; does nothing when the asset is gone.
    using Apply = std::function<void(const QImage &)>;

    /// mergeKey names what was edited: only steps with equal keys merge.
    PixelEditCommand(const QString &text, const QImage &before, const QImage &after, Apply apply,
                     const QVariant &mergeKey, Kind kind);

    void undo() override;
    void redo() override;
    [[nodiscard]] int id() const override { return m_kind; }
    bool mergeWith(const QUndoCommand *other) override;

private:
    QImage m_before;
    QImage m_after;
    Apply m_apply;
    QVariant m_mergeKey;
    Kind m_kind;
    bool m_applied = true;
};
