#pragma once

#include "editors/canvas/paintsettings.h"
#include "editors/canvas/previewwindow.h"
#include "editors/common/edittarget.h"
#include "ui/enums.h"
#include "undo/pixeleditcommand.h"

#include <QList>
#include <QPointer>
#include <QUuid>

#include <utility>

class Canvas;
class Layer2Image;
class PaintOptionsBar;
class QAction;
class QEvent;
class QLayout;
class QUndoStack;
class QWidget;
class ToolPalette;

/// What the tile, sprite and image editors have in common: a canvas with its tool palette, the Edit
/// menu's requests, and the way of an edit onto an undo stack.
class PixelEditor : public EditTarget
{
public:
    Canvas *canvas() const { return m_canvas; }
    PaintSettings *paintSettings() const { return m_settings; }
    /// Paints as these settings say, which others may share; until then, as settings of the editor's own say.
    void setPaintSettings(PaintSettings *settings);

    void cut() override;
    void copy() override;
    void paste() override;
    void selectAll() override;
    void selectNone() override;

protected:
    /// The editor takes canvas and tool palette into its layout. The palette offers the tools and actions
    /// of every canvas, and more after them.
    PixelEditor(QSize imageSize, Qt::Orientation toolPalette, const QList<Quenmora::Ui::ToolButton> &more);

    ToolPalette *tools() const { return m_tools; }
    PaintOptionsBar *optionsBar() const { return m_optionsBar; }
    /// Adds a button behind those of the bar. The action is checkable, a child of page, and a command of the pixel
    /// editors.
    QAction *addOption(QWidget *page, const QString &name, const QString &icon, const QString &text,
                       const QString &toolTip);
    /// A picture with the foreground colour in place of the background colour.
    QImage withColourReplaced(const QImage &picture) const;
    /// Adds an entry, a command of the pixel editors, to the end of the canvas's menu.
    void addMenuEntry(const QString &name, const QString &icon, const QString &text, const QString &toolTip,
                      const std::function<void()> &run);
    /// Offers a window that shows these pictures of what is being painted.
    void offerPreviews(QWidget *page, const QList<std::pair<QString, PreviewWindow::Source>> &sources);
    /// The tools with the bar close below them.
    QLayout *toolRows() const;

    /// Lets the tool palette show the tool in use, keys choose tools and exchange the two colours while the keyboard is
    /// in page, and the window's status line tell the pixel under the pointer.
    void connectCanvas(QWidget *page);

    /// Says the next step over the canvas while isBlank() finds nothing drawn in the whole asset.
    void sayNextStep(const QString &text, const std::function<bool()> &isBlank);
    /// Whether all pixels are the same.
    static bool isBlank(const QImage &pixels);

    /// Shows pixels of the asset; isLoading() tells them from those that were painted.
    void load(const QImage &pixels);
    bool isLoading() const { return m_loading; }
    /// Shows the pixels of a stroke or shape that is being drawn wherever the picture is seen; null pixels when it has
    /// ended.
    virtual void showStroke(const QImage &pixels) { Q_UNUSED(pixels) }

    /// Pushes a finished edit; without a stack it stays applied and is not recorded.
    void push(QUndoStack *stack, const QString &text, const QImage &before, const QImage &after,
              const PixelEditCommand::Apply &apply, const QVariant &mergeKey, PixelEditCommand::Kind kind) const;
    /// Names an element of an asset for merging: steps of one tile or sprite merge, those of two do not.
    static QString mergeKey(const QUuid &asset, int index);

    /// Scrolls the canvas when event is an arrow key on its way past it. A canvas that has the keyboard
    /// scrolls by the key press that follows, and is left alone here.
    void scrollByShortcutOverride(QEvent *event);

private:
    void addTools(const QList<Quenmora::Ui::ToolButton> &more);
    void addMenuEntries();
    /// Lets the keys of all commands count while the keyboard is in page.
    void addKeys(QWidget *page);
    void followStrokes();
    void replaceColour();
    void replaceColourIn(Layer2Image &layer, const QRect &area) const;
    void takeBrush();

    Canvas *const m_canvas;
    ToolPalette *const m_tools;
    PaintOptionsBar *const m_optionsBar;
    QPointer<PaintSettings> m_settings;
    QPointer<QWidget> m_keys; ///< the page in which keys count, once it is known
    bool m_loading = false;
};
