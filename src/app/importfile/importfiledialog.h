#pragma once

#include "importing/filekind.h"
#include "importing/incomingassets.h"
#include "model/project.h"
#include "ui/dialogbase.h"

#include <QCache>
#include <QPointer>
#include <QTimer>

class AssetChooser;
class ExpandableSection;
class OptionFields;
class PicturePreview;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

/// Says what a file is, asks what it does not tell, and shows what will become of it.
class ImportFileDialog : public DialogBase
{
    Q_OBJECT

public:
    /// The assets that are being worked on, which are proposed where one is needed.
    struct InFront
    {
        QUuid palette{};
        QUuid tileSet{};
    };

    explicit ImportFileDialog(QWidget *parent = nullptr);

    /// Opens the dialog for a file of a project, one of a number of files.
    void show(const Project &project, const Importing::ImportFile &file, const InFront &inFront, int number = 1,
              int count = 1);

    [[nodiscard]] Importing::ImportChoices choices() const;

public slots:
    void accept() override;
    /// Brings what is shown up to date at once.
    void refresh();

signals:
    void accepted(const Importing::ImportChoices &choices, const Importing::IncomingAssets &incoming);
    /// The file is left out, but not those after it.
    void skipped();
    /// The file is of a kind that has an import of its own.
    void handedOver(const QString &kind, const QString &filePath);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    void buildForm();
    [[nodiscard]] const Importing::FileKind &kind() const;
    void offerKinds();
    void changeKind();
    void changeTarget();
    /// Shows the rows for what is to be chosen now.
    void showRows();
    void refreshSoon();
    /// What becomes of the file; what was looked at before is not made anew.
    [[nodiscard]] Result<Importing::IncomingAssets> prepared();

    QPointer<const Project> m_project;
    Importing::ImportFile m_file;
    InFront m_inFront;
    QList<Importing::Guess> m_guesses;
    Result<Importing::IncomingAssets> m_incoming = Failure{};
    QCache<QByteArray, Result<Importing::IncomingAssets>> m_prepared; ///< of the file, by the choices
    QTimer m_soon;

    QComboBox *m_kind;
    AssetChooser *m_target;
    QSpinBox *m_at;
    QLineEdit *m_name;
    AssetChooser *m_tileSet;
    AssetChooser *m_palette;
    OptionFields *m_options;
    ExpandableSection *m_more;
    OptionFields *m_rareOptions;
    PicturePreview *m_preview;
    QLabel *m_facts;
    QLabel *m_remarks;
    QPushButton *m_skip;
};
