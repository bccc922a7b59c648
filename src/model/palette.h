#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QObject>
#include <QString>
#include <QUuid>

#include <array>

/// A list of 256 colours of the ZX Spectrum Next with an optional transparent entry.
///
/// Pixel assets refer to a palette by its id and draw with colourTable(). Every change of an entry
/// is announced by colourChanged(); changes made by editing operations are announced by
/// colourEdited() as well, which is what undo listens to. Entries are stored as colour words
/// (NextColour); an index is 0–255 everywhere and is not checked.
class Palette : public QObject
{
    Q_OBJECT

public:
    static constexpr int Size = 256;

    /// For each entry the one whose colour it shows.
    using ShownEntries = std::array<quint8, Size>;

    explicit Palette(QObject *parent = nullptr);

    [[nodiscard]] QUuid id() const { return m_id; }
    /// Takes over the id of a stored palette.
    void setId(const QUuid &id) { m_id = id; }

    [[nodiscard]] QString name() const { return m_name; }

    /// The entry expanded to 8 bits a component; alpha is 0 for the transparent entry, else 255.
    [[nodiscard]] QColor colour(int index) const;
    /// All entries as colour() gives them.
    [[nodiscard]] QList<QColor> colours() const;
    /// The colour table for indexed images that are drawn with this palette: 256 opaque colours.
    [[nodiscard]] QList<QRgb> colourTable() const;
    /// Whether the entry stands in front of the other layers.
    [[nodiscard]] bool priority(int index) const;

    [[nodiscard]] quint16 rawColour(int index) const;
    /// Stores a word as it is and announces the change, but not as an edit: undo writes with this.
    void setRawColour(int index, quint16 word);
    /// Stores a word without a signal, while a project is being read.
    void storeRawColour(int index, quint16 word);

    /// Edits every entry that differs, in order, as setColour() does.
    void fill(const QColor &colour, bool priority);
    /// Takes over the words of another palette, without signals.
    void copyColours(const Palette &other);
    /// Sets the hardware's start-up palette, in which index and 8-bit colour are the same, without signals.
    void loadStandardNext();

    /// The colour with every component moved to the nearest of 0, 16, 32, …, 240, 255; opaque.
    [[nodiscard]] static QColor snapColour(const QColor &colour);
    /// The first entry that equals a colour, alpha included, or else the first one at the least squared RGB distance.
    [[nodiscard]] int nearestIndex(const QColor &colour) const;

    // Drawing. While colours of a range go round (ColourClock), entries show others' colours; nothing else knows of it.

    [[nodiscard]] static ShownEntries ownEntries();
    /// Lets entries show the colours of these from now on.
    void showEntries(const ShownEntries &entries);
    /// colour() and colourTable() as they are shown.
    [[nodiscard]] QColor shownColour(int index) const;
    [[nodiscard]] QList<QRgb> shownColourTable() const { return shown(colourTable()); }
    [[nodiscard]] QList<QRgb> shown(const QList<QRgb> &colourTable) const;
    /// A picture of this palette's indices as it is shown; one of colours as it is.
    [[nodiscard]] QImage shown(const QImage &picture) const;

    /// The entry that is drawn as transparent, or -1.
    [[nodiscard]] int transparencyIndex() const { return m_transparencyIndex; }
    void setTransparencyIndex(int index) { m_transparencyIndex = index; }

    /// The name of the file that exportToDirectory() writes, NAME_palette.bin.
    [[nodiscard]] QString exportFileName() const;
    /// Writes that file into a folder; false also when the name cannot be part of a file's name.
    [[nodiscard]] bool exportToDirectory(const QString &folder) const;

signals:
    void colourChanged(int index, QColor colour, bool priority);
    void colourEdited(int index, quint16 before, quint16 after);
    void nameChanged(QString name);
    /// Entries show other colours, but no entry changed.
    void shownColoursChanged();

public slots:
    void setName(const QString &name);
    /// Edits an entry: snaps the colour to the hardware's levels, stores it, and emits colourChanged()
    /// with the snapped colour, then colourEdited(); nothing when the entry has that word already.
    void setColour(int index, const QColor &colour, bool priority);
    /// Writes a palette file (.pal, .nxp, .bin, .npl); false when it cannot be written whole.
    [[nodiscard]] bool exportData(const QString &fileName) const;
    /// Reads a palette file without signals; false, and nothing changes, when it is not one.
    [[nodiscard]] bool importData(const QString &fileName);

private:
    void edit(int index, quint16 word, const QColor &snapped);
    [[nodiscard]] QRgb rgb(int index) const;

    QUuid m_id = QUuid::createUuid();
    QString m_name = QStringLiteral("untitled");
    std::array<quint16, Size> m_words{};
    int m_transparencyIndex = -1;
    ShownEntries m_shown = ownEntries();
};
