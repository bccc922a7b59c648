#pragma once

#include <QList>
#include <QPointer>
#include <QStringList>
#include <QTabWidget>
#include <QUuid>

class Image;
class Map;
class MapObjects;
class PaintSettings;
class SpriteBank;

namespace BlockEditor {
class View;
}
namespace ImageEditor {
class View;
}
namespace MapEditor {
class View;
}
namespace SpriteEditor {
class View;
}

/// The tabs in which documents are edited, among them that of the scratch image, whose editor is always
/// there and only shown and hidden.
///
/// Every page carries the dynamic properties "document_id" (QUuid; null for the scratch image) and
/// "document_type" (DocumentType as int).
class DocumentTabView : public QTabWidget
{
    Q_OBJECT

public:
    enum DocumentType {
        MapDocument = 0,
        ScratchDocument = 1,
        ImageDocument = 2,
        SpriteDocument = 3,
        BlocksDocument = 4
    };
    Q_ENUM(DocumentType)

    explicit DocumentTabView(QWidget *parent = nullptr);

    /// What is shown while there is no tab; the view takes it.
    void setEmptyPage(QWidget *page);

    [[nodiscard]] ImageEditor::View *scratchEditor() const { return m_scratchEditor; }
    /// How the image editors paint, those that are opened later as well.
    void setPaintSettings(PaintSettings *settings);

    /// The tab of a document, −1 when none shows it.
    [[nodiscard]] int indexOfDocument(const QUuid &id) const;
    /// The id of the document on a page; null for no page and the scratch image.
    [[nodiscard]] static QUuid documentId(const QWidget *page);

    // Each adds a tab for the asset, which becomes the current one, and returns its page.
    MapEditor::View *openMapEditor(const QPointer<Map> &map);
    ImageEditor::View *openImageEditor(const QPointer<Image> &image);
    SpriteEditor::View *openSpriteEditor(const QPointer<SpriteBank> &bank);
    BlockEditor::View *openBlockEditor(const QPointer<MapObjects> &blocks);

    /// Gives the keyboard to the page in front, unless something on it has it.
    void focusPage();

    void closeAllTabs();
    /// Closes the tab of a document if it has one.
    void closeDocument(const QUuid &id);
    /// The same for one that was deleted: the keyboard stays where that was asked for.
    void closeDeleted(const QWidget *page);
    void renameDocument(const QUuid &id, const QString &name);

    /// The documents that have tabs, in tab order; the scratch image, which has no id, is not among them.
    [[nodiscard]] QStringList openDocumentIds() const;
    [[nodiscard]] QList<MapEditor::View *> mapEditors() const;

public slots:
    /// Destroys the page; only that of the scratch image is kept for the next time.
    void closeTab(int index);
    /// Tells by a signal of its kind which document came to the front, and gives it the keyboard.
    void currentIndexChanged(int index);
    void setScratchEditorVisible(bool visible);

signals:
    void MapEditorActivated(QUuid id);
    void ScratchEditorActivated();
    void ImageEditorActivated(QUuid id);
    void SpriteEditorActivated(QUuid id);
    void BlockEditorActivated(QUuid id);
    /// A map editor began to place animations, and needs the dock to choose one.
    void showAnimPicker();
    void scratchEditorVisibleChanged(bool visible);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;

private:
    void buildTabBar();
    void placeEmptyPage();
    void showTabMenu(const QPoint &pos);
    void open(QWidget *page, DocumentType type, const QUuid &id, const QString &name);
    /// Closes tabs that a person is done with, who goes on in the one that is in front then.
    void closePages(const QList<QPointer<QWidget>> &pages);

    ImageEditor::View *m_scratchEditor;
    QAction *m_close; ///< of the tab in front
    PaintSettings *m_paintSettings = nullptr;
    QWidget *m_emptyPage = nullptr;
    /// A page that comes to the front because those after it are closed is not activated.
    bool m_closingAll = false;
    /// The page that comes to the front now was not asked for.
    bool m_leavesKeyboard = false;
};
