#include "app/importfile/fileimport.h"

#include "app/importfile/importfiledialog.h"
#include "app/menus/mapmenu.h"
#include "app/menus/menubar.h"
#include "app/menus/palettemenu.h"
#include "app/menus/spritemenu.h"
#include "app/menus/tilemenu.h"
#include "app/projectactions.h"
#include "importing/kinds.h"
#include "importing/preview.h"
#include "model/plural.h"

#include <QApplication>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

using namespace Importing;

FileImport::FileImport(ProjectProvider project, MenuBar *menus, ProjectActions *actions, QWidget *dialogParent)
    : QObject(dialogParent)
    , m_project(std::move(project))
    , m_menus(menus)
    , m_actions(actions)
    , m_dialogParent(dialogParent)
{ }

ImportFileDialog *FileImport::dialog()
{
    if (!m_dialog) {
        m_dialog = new ImportFileDialog(m_dialogParent);
        connect(m_dialog, &ImportFileDialog::accepted, this, &FileImport::add);
        connect(m_dialog, &ImportFileDialog::handedOver, this, &FileImport::handOver);
        connect(m_dialog, &ImportFileDialog::skipped, this, &FileImport::next);
        connect(m_dialog, &QDialog::rejected, this, [this] {
            m_files.clear();
            finish();
        });
    }
    return m_dialog;
}

QStringList FileImport::draggedFiles(const QMimeData *data)
{
    QStringList files;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        const QFileInfo file(url.toLocalFile());
        if (file.suffix() == QStringLiteral("quenmora"))
            return {};
        if (url.isLocalFile() && file.isFile())
            files.append(file.filePath());
    }
    return files;
}

void FileImport::importFiles(const QStringList &filePaths)
{
    m_files = filePaths;
    m_failures.clear();
    m_next = 0;
    next();
}

void FileImport::stop()
{
    m_files.clear();
    m_failures.clear();
    m_next = 0;
    if (m_dialog)
        m_dialog->reject();
}

void FileImport::next()
{
    const Project *project = m_project();
    while (project && m_next < m_files.size()) {
        const QString path = m_files.at(m_next++);
        const Result<ImportFile> file = ImportFile::open(path);
        if (!file) {
            m_failures.append(file.reason());
            continue;
        }
        const Palette *palette = m_menus->paletteMenu()->palette();
        const TileSet *tileSet = m_menus->tileMenu()->tileSet();
        dialog()->show(*project, *file, {palette ? palette->id() : QUuid(), tileSet ? tileSet->id() : QUuid()},
                       int(m_next), int(m_files.size()));
        return;
    }
    finish();
}

void FileImport::finish()
{
    constexpr qsizetype Most = 8; // that a message shows
    if (m_failures.isEmpty())
        return;
    QStringList reasons = m_failures.first(std::min(Most, m_failures.size()));
    if (m_failures.size() > Most)
        reasons.append(tr("… and %n more", nullptr, plural(m_failures.size() - Most)));
    m_failures.clear();
    emit failed(reasons.size() == 1 ? tr("The file could not be imported") : tr("Some files could not be imported"),
                tr("Import"), reasons.join(u'\n'));
}

void FileImport::nextAfterDialog()
{
    if (auto *other = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
        connect(other, &QDialog::finished, this, &FileImport::next,
                Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
    else
        next();
}

void FileImport::add(const ImportChoices &choices, const IncomingAssets &incoming)
{
    Project *project = m_project();
    if (!project)
        return;
    const QString path = m_files.value(m_next - 1);
    ImportChoices done = choices;
    done.at = beginningIn(*project, choices); // where it goes when it is imported again
    const Result<AddedAssets> added = addTo(*project, incoming, choices, m_stackFor);
    if (added) {
        show(*added);
        emit imported(path, done, *added);
        emit message(
            tr("Imported %1: %2").arg(QFileInfo(path).fileName(), factsOf(incoming).join(QStringLiteral("; "))));
    } else {
        m_failures.append(added.reason());
    }
    next();
}

void FileImport::show(const AddedAssets &added)
{
    if (!added.map.isNull())
        emit mapReady(added.map);
    else if (!added.sprites.isNull())
        emit spritesReady(added.sprites);
    else if (!added.blocks.isNull())
        emit blocksReady(added.blocks);
    else if (!added.tileSet.isNull())
        emit tileSetReady(added.tileSet);
    else if (!added.image.isNull())
        emit imageReady(added.image);
    else
        emit paletteReady(added.palette);
}

void FileImport::handOver(const QString &kind, const QString &filePath)
{
    if (kind == Kinds::DataSet)
        m_actions->importMap(filePath);
    else if (kind == Kinds::PicturePalette)
        m_actions->importPalette({}, filePath);
    else if (kind == Kinds::PictureMap)
        m_menus->mapMenu()->importFile(filePath);
    else if (kind == Kinds::PictureSprites)
        m_menus->spriteMenu()->importFile(filePath);
    nextAfterDialog();
}
