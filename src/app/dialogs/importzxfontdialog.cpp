#include "app/dialogs/importzxfontdialog.h"

#include "model/palette.h"
#include "model/rawfile.h"
#include "ui/indexsuffix.h"
#include "ui/picturepreview.h"

#include <QComboBox>
#include <QFile>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int CharacterBytes = 8;
constexpr int ColoursPerOffset = 16;
constexpr int PreviewColumns = 32;

/// The characters of a font side by side, bit 7 of a byte leftmost.
QImage pictureOf(const QByteArray &font, int characters, QRgb fore, QRgb back)
{
    if (characters == 0)
        return {};
    const int columns = std::min(characters, PreviewColumns);
    const int rows = (characters + columns - 1) / columns;
    QImage picture(columns * Tile::Size, rows * Tile::Size, QImage::Format_RGB32);
    picture.fill(back);
    for (int i = 0; i < characters * CharacterBytes; ++i) {
        const int character = i / CharacterBytes;
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(character / columns * Tile::Size + i % CharacterBytes));
        for (int x = 0; x < Tile::Size; ++x) {
            if (uchar(font[i]) & 0x80 >> x)
                line[character % columns * Tile::Size + x] = fore;
        }
    }
    return picture;
}

} // namespace

ImportZXFontDialog::ImportZXFontDialog(QWidget *parent)
    : DialogBase(tr("Import Spectrum Characters"), parent)
    , m_file(new QLineEdit(this))
    , m_first(new QSpinBox(this))
    , m_fore(new QComboBox(this))
    , m_back(new QComboBox(this))
    , m_offset(new QSpinBox(this))
    , m_preview(new PicturePreview(this))
    , m_summary(new QLabel(this))
{
    setHeader(tr("Import a ZX Spectrum font into tiles"));
    auto *browse = new QPushButton(tr("&Browse…"), this);
    auto *fileRow = new QHBoxLayout;
    fileRow->addWidget(m_file, 1);
    fileRow->addWidget(browse);
    form()->addRow(tr("F&ile"), fileRow);
    if (auto *label = qobject_cast<QLabel *>(form()->labelForField(fileRow)))
        label->setBuddy(m_file);
    form()->addRow(tr("&First tile"), m_first);
    form()->addRow(tr("Palette &offset"), m_offset);
    form()->addRow(tr("I&nk"), m_fore);
    form()->addRow(tr("&Paper"), m_back);
    body()->addWidget(m_preview, 1);
    body()->addWidget(m_summary);

    QWidget *previous = m_file;
    for (QWidget *next : std::initializer_list<QWidget *>{browse, m_first, m_offset, m_fore, m_back})
        setTabOrder(std::exchange(previous, next), next);

    showIndexSuffix(*m_first);
    m_offset->setRange(0, Palette::Size / ColoursPerOffset - 1);
    for (int index = 0; index < ColoursPerOffset; ++index) {
        m_fore->addItem(QString::number(index));
        m_back->addItem(QString::number(index));
    }
    m_fore->setCurrentIndex(ColoursPerOffset - 1);

    connect(browse, &QPushButton::clicked, this, &ImportZXFontDialog::chooseFile);
    connect(m_file, &QLineEdit::textChanged, this, &ImportZXFontDialog::readFont);
    connect(m_first, &QSpinBox::valueChanged, this, &ImportZXFontDialog::updatePreview);
    connect(m_offset, &QSpinBox::valueChanged, this, &ImportZXFontDialog::updateColours);
    for (const QComboBox *box : {m_fore, m_back})
        connect(box, &QComboBox::currentIndexChanged, this, &ImportZXFontDialog::updatePreview);
}

void ImportZXFontDialog::show(TileSet &tileSet)
{
    m_tileSet = &tileSet;
    m_first->setRange(1, tileSet.count());
    readFont(); // the file may have changed since the last time
    updateColours();
    open();
}

void ImportZXFontDialog::chooseFile()
{
    const QString file = m_fileChooser({.title = tr("Import Spectrum Characters"),
                                        .nameFilters = {tr("Fonts (*.bin *.raw *.ch8)"), tr("All files (*)")}},
                                       this);
    if (!file.isEmpty())
        m_file->setText(file);
}

void ImportZXFontDialog::readFont()
{
    QFile file(m_file->text());
    m_font.clear();
    if (m_tileSet && RawFile::openForReading(file))
        m_font = file.read(qint64(m_tileSet->count()) * CharacterBytes);
    updatePreview();
}

int ImportZXFontDialog::characterCount() const
{
    const int room = m_tileSet ? m_tileSet->count() - (m_first->value() - 1) : 0;
    return std::clamp(int(m_font.size()) / CharacterBytes, 0, std::max(room, 0));
}

void ImportZXFontDialog::updateColours()
{
    const QPointer<Palette> palette = m_tileSet ? m_tileSet->palette() : nullptr;
    for (int index = 0; index < ColoursPerOffset; ++index) {
        QPixmap swatch(16, 16);
        swatch.fill(palette ? QColor(palette->colourTable()[m_offset->value() * ColoursPerOffset + index])
                            : QColor(Qt::black));
        m_fore->setItemIcon(index, swatch);
        m_back->setItemIcon(index, swatch);
    }
    updatePreview();
}

void ImportZXFontDialog::updatePreview()
{
    const int characters = characterCount();
    const QPointer<Palette> palette = m_tileSet ? m_tileSet->palette() : nullptr;
    if (palette) {
        const QList<QRgb> colours = palette->colourTable().mid(m_offset->value() * ColoursPerOffset, ColoursPerOffset);
        m_preview->setPicture(
            pictureOf(m_font, characters, colours[m_fore->currentIndex()], colours[m_back->currentIndex()]));
    } else {
        m_preview->setPicture({});
    }
    m_summary->setText(characters == 0 ? tr("No characters")
                                       : tr("Characters: %1, in tiles %2 to %3")
                                             .arg(characters)
                                             .arg(m_first->value())
                                             .arg(m_first->value() + characters - 1));
    revalidate();
}

QString ImportZXFontDialog::problem() const
{
    if (!m_tileSet || !m_tileSet->palette())
        return tr("The tile set has no palette to take colours from");
    if (m_file->text().isEmpty())
        return tr("Please choose a font file");
    if (characterCount() == 0)
        return tr("There is no character in this file, or it cannot be read");
    return {};
}

void ImportZXFontDialog::submit()
{
    emit accepted(m_first->value() - 1, m_fore->currentIndex(), m_back->currentIndex(), m_offset->value(),
                  m_file->text());
}
