#include "app/importfile/importfiledialog.h"

#include "app/dialogs/assetchooser.h"
#include "app/exportproject/optionfields.h"
#include "importing/addition.h"
#include "importing/preview.h"
#include "model/assetname.h"
#include "model/map.h"
#include "model/picturefile.h"
#include "model/plural.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "ui/busy.h"
#include "ui/expandablesection.h"
#include "ui/picturepreview.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Importing;
using NextData::AssetKind;

namespace {

constexpr int Delay = 120; ///< milliseconds until what was typed is looked at
constexpr int MostKept = 2'000'000; ///< cells of maps, for choices that are made again

QString newText(AssetKind kind)
{
    switch (kind) {
    case AssetKind::Palette:
        return ImportFileDialog::tr("New palette");
    case AssetKind::TileSet:
        return ImportFileDialog::tr("New tile set");
    case AssetKind::Map:
        return ImportFileDialog::tr("New map");
    case AssetKind::SpriteBank:
        return ImportFileDialog::tr("New sprites");
    case AssetKind::BlockSet:
        return ImportFileDialog::tr("New map objects");
    case AssetKind::Image:
        return ImportFileDialog::tr("New image");
    }
    return {};
}

/// A picture that is not larger than what is shown of it.
QImage thumbnail(const QImage &picture)
{
    constexpr int Side = 1024;
    return std::max(picture.width(), picture.height()) <= Side
        ? picture
        : picture.scaled(Side, Side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

/// The first of the remarks, each cut where it is too long to be read.
QString textOf(const QStringList &remarks)
{
    constexpr qsizetype Most = 6;
    constexpr int Longest = 240;
    QStringList lines;
    for (const QString &remark : remarks.first(std::min(Most, remarks.size())))
        lines.append(remark.size() > Longest ? remark.left(Longest) + u'…' : remark);
    if (remarks.size() > Most)
        lines.append(ImportFileDialog::tr("… and %n more", nullptr, plural(remarks.size() - Most)));
    return lines.join(u'\n');
}

/// How many numbered things an asset has.
int countIn(const Project &project, const QUuid &id)
{
    if (const auto tiles = project.tileSet(id))
        return tiles->count();
    const auto bank = project.spriteBank(id);
    return bank ? bank->count() : 0;
}

} // namespace

ImportFileDialog::ImportFileDialog(QWidget *parent)
    : DialogBase(tr("Import"), parent)
    , m_kind(new QComboBox(this))
    , m_target(new AssetChooser(this))
    , m_at(new QSpinBox(this))
    , m_name(new QLineEdit(this))
    , m_tileSet(new AssetChooser(this))
    , m_palette(new AssetChooser(this))
    , m_more(new ExpandableSection(tr("More"), this))
    , m_preview(new PicturePreview(this))
    , m_facts(new QLabel(this))
    , m_remarks(new QLabel(this))
{
    buildForm();
    m_prepared.setMaxCost(MostKept);
    m_soon.setSingleShot(true);
    m_soon.setInterval(Delay);
    connect(&m_soon, &QTimer::timeout, this, &ImportFileDialog::refresh);
    connect(m_kind, &QComboBox::currentIndexChanged, this, &ImportFileDialog::changeKind);
    connect(m_target, &QComboBox::currentIndexChanged, this, &ImportFileDialog::changeTarget);
    connect(m_at, &QSpinBox::valueChanged, this, &ImportFileDialog::refreshSoon);
    connect(m_name, &QLineEdit::textChanged, this, &ImportFileDialog::revalidate);
    for (AssetChooser *chooser : {m_tileSet, m_palette}) {
        connect(chooser, &QComboBox::currentIndexChanged, this, [this] {
            showRows();
            refreshSoon();
        });
    }
    for (const OptionFields *options : {m_options, m_rareOptions})
        connect(options, &OptionFields::changed, this, &ImportFileDialog::refreshSoon);
}

void ImportFileDialog::buildForm()
{
    m_kind->setObjectName(QStringLiteral("kind"));
    m_kind->setToolTip(tr("What the file is; first what it most probably is"));
    m_target->setObjectName(QStringLiteral("target"));
    m_target->setToolTip(tr("A new asset, or one of the project that takes it in, as one undo step"));
    m_at->setObjectName(QStringLiteral("at"));
    m_at->setToolTip(tr("The number from which on those that are there are replaced, counted from 0"));
    m_at->setMinimum(ImportChoices::AtTheEnd);
    m_at->setSpecialValueText(tr("Behind those that are there"));
    m_name->setObjectName(QStringLiteral("name"));
    m_name->setMaxLength(AssetName::MaxLength);
    m_tileSet->setObjectName(QStringLiteral("tileSet"));
    m_palette->setObjectName(QStringLiteral("palette"));
    form()->addRow(tr("&Kind"), m_kind);
    form()->addRow(tr("In&to"), m_target);
    form()->addRow(tr("&From number"), m_at);
    form()->addRow(tr("&Name"), m_name);
    form()->addRow(tr("Ti&le set"), m_tileSet);
    form()->addRow(tr("&Palette"), m_palette);
    m_options = new OptionFields(form(), this); // below these
    auto *rare = new QWidget;
    auto *rareOptions = new QFormLayout(rare);
    rareOptions->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_rareOptions = new OptionFields(rareOptions, this);
    m_more->setContent(rare);
    body()->addWidget(m_more);
    m_preview->setMinimumHeight(200);
    body()->addWidget(m_preview, 1);
    m_facts->setTextFormat(Qt::PlainText);
    m_remarks->setTextFormat(Qt::PlainText);
    m_remarks->setWordWrap(true);
    m_remarks->setObjectName(QStringLiteral("remarks"));
    m_facts->setObjectName(QStringLiteral("facts"));
    body()->addWidget(m_facts);
    body()->addWidget(m_remarks);
    m_skip = buttons()->addButton(tr("&Skip"), QDialogButtonBox::ActionRole);
    m_skip->setToolTip(tr("Leaves this file out and goes on with the next one"));
    connect(m_skip, &QPushButton::clicked, this, [this] {
        hide();
        emit skipped();
    });
}

void ImportFileDialog::show(const Project &project, const ImportFile &file, const InFront &inFront, int number,
                            int count)
{
    m_project = &project;
    m_file = file;
    m_prepared.clear();
    m_inFront = inFront;
    m_guesses = recognise(file);
    const QFileInfo info(file.path);
    setWindowTitle(count > 1 ? tr("Import (%1 of %2)").arg(number).arg(count) : tr("Import"));
    m_skip->setVisible(number < count);
    setHeader(tr("%1, %Ln bytes", nullptr, plural(file.size)).arg(info.fileName()));
    m_name->setText(AssetName::cut(info.completeBaseName()));
    offerKinds();
    changeKind();
    refresh();
    open();
}

void ImportFileDialog::offerKinds()
{
    const QSignalBlocker blocker(m_kind);
    m_kind->clear();
    for (const Guess &guess : std::as_const(m_guesses))
        m_kind->addItem(findFileKind(guess.kind)->title, guess.kind);
    m_kind->setCurrentIndex(0);
}

const FileKind &ImportFileDialog::kind() const
{
    return *findFileKind(m_guesses.at(m_kind->currentIndex()).kind);
}

void ImportFileDialog::changeKind()
{
    if (!m_project || m_kind->currentIndex() < 0)
        return;
    const FileKind &chosen = kind();
    m_incoming = Failure{}; // what was read as something else says nothing
    {
        const QSignalBlocker blockers[] = {QSignalBlocker(m_target), QSignalBlocker(m_tileSet),
                                           QSignalBlocker(m_palette)};
        m_target->clear(); // one of another kind says nothing
        m_target->offerAssets(*m_project, chosen.asset, chosen.needsTarget ? QString() : newText(chosen.asset));
        if (chosen.needsTarget)
            m_target->choose(m_inFront.tileSet);
        m_tileSet->offerTileSets(*m_project, tr("New tile set of blank tiles"));
        m_palette->offerPalettes(*m_project,
                                 chosen.bringsColours ? tr("New palette of its own colours")
                                                      : tr("New palette of the standard colours"));
        if (!m_inFront.tileSet.isNull())
            m_tileSet->choose(m_inFront.tileSet);
        m_palette->choose(chosen.bringsColours ? QUuid() : m_inFront.palette);
    }
    QList<NextData::Option> usual;
    QList<NextData::Option> rare;
    for (const NextData::Option &option : chosen.options)
        (chosen.rareOptions.contains(option.id) ? rare : usual).append(option);
    m_options->show(usual, m_guesses.at(m_kind->currentIndex()).options);
    m_rareOptions->show(rare, {});
    m_more->setVisible(!rare.isEmpty());
    m_more->setExpanded(false);
    okButton()->setText(chosen.prepare ? tr("&Import") : tr("C&ontinue…"));
    changeTarget();
}

void ImportFileDialog::changeTarget()
{
    if (!m_project)
        return;
    const QSignalBlocker blocker(m_at);
    m_at->setMaximum(std::max(countIn(*m_project, m_target->id()) - 1, 0));
    m_at->setValue(ImportChoices::AtTheEnd);
    showRows();
    refreshSoon();
}

void ImportFileDialog::showRows()
{
    const FileKind &chosen = kind();
    const bool isNew = m_target->id().isNull();
    const bool isNumbered = chosen.asset == AssetKind::TileSet || chosen.asset == AssetKind::SpriteBank;
    const bool needsTiles = chosen.needsTileSet && isNew;
    form()->setRowVisible(m_target, chosen.prepare && (chosen.takesTarget || chosen.needsTarget));
    form()->setRowVisible(m_at, chosen.prepare && !isNew && isNumbered && !chosen.needsTarget);
    form()->setRowVisible(m_name, chosen.prepare && isNew && !chosen.needsTarget);
    form()->setRowVisible(m_tileSet, needsTiles);
    const bool hasColours = !chosen.bringsColours && m_incoming && m_incoming->palette;
    form()->setRowVisible(m_palette,
                          isNew && chosen.needsPalette && !hasColours && (!needsTiles || m_tileSet->id().isNull()));
}

void ImportFileDialog::refreshSoon()
{
    m_soon.start();
}

ImportChoices ImportFileDialog::choices() const
{
    const FileKind &chosen = kind();
    ImportChoices choices{.kind = chosen.id, .options = m_options->values()};
    choices.options.insert(m_rareOptions->values());
    const auto isShown = [this](QWidget *field) { return form()->isRowVisible(field); };
    if (isShown(m_target))
        choices.target = m_target->id();
    if (isShown(m_at))
        choices.at = m_at->value();
    if (isShown(m_name))
        choices.name = m_name->text().trimmed();
    if (isShown(m_tileSet))
        choices.tileSet = m_tileSet->id();
    if (isShown(m_palette))
        choices.palette = m_palette->id();
    return choices;
}

Result<IncomingAssets> ImportFileDialog::prepared()
{
    const QByteArray key = QJsonDocument(choices().toJson()).toJson(QJsonDocument::Compact);
    if (const Result<IncomingAssets> *known = m_prepared.object(key))
        return *known;
    const Result<IncomingAssets> made = prepare(*m_project, m_file, choices());
    const bool hasMap = made && made->map && !made->map->rows.isEmpty();
    const qsizetype cells = hasMap ? made->map->rows.size() * made->map->rows.constFirst().size() : 0;
    m_prepared.insert(key, new Result<IncomingAssets>(made), 1 + cells);
    return made;
}

void ImportFileDialog::refresh()
{
    m_soon.stop();
    if (!m_project || m_kind->currentIndex() < 0)
        return;
    const QString path = m_file.path;
    if (!kind().prepare) {
        m_incoming = Failure{};
        m_preview->setPicture(thumbnail(PictureFile::read(path).image));
        m_facts->setText(tr("What is asked next depends on the picture"));
        m_remarks->clear();
    } else {
        const Busy busy(parentWidget(), tr("Reading %1…").arg(QFileInfo(path).fileName()), m_file.size);
        m_incoming = prepared();
        m_preview->setPicture(m_incoming ? previewOf(*m_project, *m_incoming, choices()) : QImage());
        m_facts->setText(m_incoming ? factsOf(*m_incoming).join(QStringLiteral("; ")) : QString());
        m_remarks->setText(m_incoming ? textOf(m_incoming->remarks) : m_incoming.reason());
    }
    m_remarks->setVisible(!m_remarks->text().isEmpty());
    const ImportChoices read = choices();
    showRows();
    if (choices() != read) // what the file holds decides whether there is something to choose
        refreshSoon();
    revalidate();
}

void ImportFileDialog::accept()
{
    if (m_soon.isActive()) // what was changed last has not been looked at
        refresh();
    DialogBase::accept();
}

QString ImportFileDialog::problem() const
{
    if (!m_project)
        return tr("The project was closed meanwhile");
    if (!kind().prepare)
        return {};
    if (kind().needsTarget && m_target->id().isNull())
        return tr("There is nothing in the project into which it could go");
    return m_incoming ? problemOf(*m_project, *m_incoming, choices()) : m_incoming.reason();
}

void ImportFileDialog::submit()
{
    if (kind().prepare)
        emit accepted(choices(), *m_incoming);
    else
        emit handedOver(kind().id, m_file.path);
}
