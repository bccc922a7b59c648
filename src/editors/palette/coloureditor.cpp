#include "editors/palette/coloureditor.h"

#include "editors/palette/channellevels.h"
#include "editors/palette/rgbeditor.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

constexpr QSize SwatchSize(48, 32);
constexpr int LastFactor = 198;

QLabel *makeSwatch(const QString &name, QWidget *parent)
{
    auto *swatch = new QLabel(parent);
    swatch->setFixedSize(SwatchSize);
    swatch->setFrameStyle(QFrame::Box | QFrame::Plain);
    swatch->setAutoFillBackground(true);
    swatch->setToolTip(name);
    swatch->setAccessibleName(name);
    return swatch;
}

void paintSwatch(QLabel *swatch, const QColor &colour)
{
    QPixmap pixmap(SwatchSize);
    pixmap.fill(colour);
    swatch->setPixmap(pixmap);
}

/// The first of ever darker or lighter colours in which a channel has another level; colour itself
/// when no factor that is tried reaches one.
QColor nextDistinct(const QColor &colour, QColor (QColor::*change)(int) const)
{
    const ChannelLevels levels = Channel::levelsOf(colour);
    for (int factor = 100; factor <= LastFactor; ++factor) {
        const QColor candidate = (colour.*change)(factor).toRgb();
        if (Channel::levelsOf(candidate) != levels)
            return candidate;
    }
    return colour;
}

} // namespace

ColourEditor::ColourEditor(QWidget *parent)
    : QWidget(parent)
    , m_rgb(new RgbEditor(this))
    , m_initialSwatch(makeSwatch(tr("Colour before"), this))
    , m_editedSwatch(makeSwatch(tr("Edited colour"), this))
    , m_priority(new QCheckBox(tr("Priority"), this))
    , m_ok(new QPushButton(QStringLiteral("✓"), this))
{
    m_priority->setToolTip(tr("Layer 2 priority\nIf set, this colour will always appear on top"));
    m_ok->setToolTip(tr("Apply the colour"));
    m_ok->setAccessibleName(tr("Apply the colour"));
    auto *cancel = new QPushButton(QStringLiteral("✗"), this);
    cancel->setToolTip(tr("Go back to the colour before"));
    cancel->setAccessibleName(tr("Go back to the colour before"));
    for (QPushButton *button : {m_ok, cancel}) {
        button->setAutoDefault(false);
        button->setFixedWidth(SwatchSize.height() + 8);
    }

    auto *row = new QHBoxLayout;
    row->setSpacing(4);
    row->addWidget(m_initialSwatch);
    row->addWidget(m_editedSwatch);
    row->addStretch();
    row->addWidget(m_ok);
    row->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_rgb);
    layout->addWidget(m_priority);
    layout->addLayout(row);

    connect(m_rgb, &RgbEditor::colourChanged, this, &ColourEditor::rgbValueChanged);
    connect(m_priority, &QCheckBox::toggled, this, &ColourEditor::priorityChanged);
    connect(m_ok, &QPushButton::clicked, this, &ColourEditor::okClick);
    connect(cancel, &QPushButton::clicked, this, &ColourEditor::cancelClick);
    setColour(Qt::black, false);
}

bool ColourEditor::priority() const
{
    return m_priority->isChecked();
}

void ColourEditor::setColour(const QColor &colour, bool priority)
{
    // The transparent entry is edited like any other: what is transparent is the palette's business.
    m_initialColour = QColor(colour.red(), colour.green(), colour.blue());
    m_initialPriority = priority;
    load(m_initialColour);
    const QSignalBlocker blocker(m_priority);
    m_priority->setChecked(priority);
    showState();
}

void ColourEditor::load(const QColor &colour)
{
    m_colour = colour;
    m_rgb->setColour(colour);
}

void ColourEditor::showState()
{
    paintSwatch(m_initialSwatch, m_initialColour);
    paintSwatch(m_editedSwatch, m_colour);
    m_ok->setEnabled(m_colour.rgb() != m_initialColour.rgb() || priority() != m_initialPriority);
}

void ColourEditor::rgbValueChanged(QColor colour)
{
    m_colour = colour;
    showState();
}

void ColourEditor::priorityChanged(bool)
{
    showState();
}

void ColourEditor::okClick()
{
    m_initialColour = m_colour;
    m_initialPriority = priority();
    showState();
    emit colourChanged(m_colour, priority());
}

void ColourEditor::cancelClick()
{
    setColour(m_initialColour, m_initialPriority);
    m_priority->setEnabled(true);
    emit cancelled();
}

void ColourEditor::darken()
{
    load(nextDistinct(m_colour, &QColor::darker));
    showState();
}

void ColourEditor::lighten()
{
    load(nextDistinct(m_colour, &QColor::lighter));
    showState();
}
