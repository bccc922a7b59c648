#pragma once

#include <QDialog>
#include <QHash>
#include <QJsonDocument>
#include <QPointer>

class BasePreferencesPage;
class GeneralPage;
class MapEditorPage;
class QListWidget;
class QStackedWidget;

/// The user's settings, gathered on pages.
///
/// The pages' widgets are the settings and take effect at once; rejecting the dialog puts back what
/// they held when it was shown, but for what update checks noted meanwhile. Reading and writing the preferences file is
/// the owner's part.
class PreferencesDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit PreferencesDialog(QWidget *parent = nullptr);

    [[nodiscard]] GeneralPage *generalPage() const { return m_generalPage; }
    [[nodiscard]] MapEditorPage *mapEditorPage() const { return m_mapEditorPage; }

    /// An object with the settings of every page under the page's key.
    [[nodiscard]] QJsonDocument toJson() const;
    /// Applies such a document; a null or empty one changes nothing.
    void fromJson(const QJsonDocument &document);

public slots:
    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    /// Shows the page that is selected in the list.
    void changePage();

private:
    void addPage(const QString &key, BasePreferencesPage *page);

    QListWidget *m_pageList;
    QStackedWidget *m_pageStack;
    GeneralPage *m_generalPage;
    MapEditorPage *m_mapEditorPage;
    QHash<QString, QPointer<BasePreferencesPage>> m_pages;
    /// All settings as they were when the dialog was shown.
    QJsonDocument m_snapshot;
};
