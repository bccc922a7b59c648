#include "editors/palette/rgbeditor.h"

#include "editors/palette/channellevels.h"
#include "editors/palette/channelslider.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

namespace {

struct ChannelRow
{
    const char *initial;
    const char *name;
    const char *objectName;
    QColor accent;
};

const std::array<ChannelRow, Channel::Count> Channels{{
    {QT_TRANSLATE_NOOP("RgbEditor", "R"), QT_TRANSLATE_NOOP("RgbEditor", "Red level"), "redSlider", {221, 51, 51}},
    {QT_TRANSLATE_NOOP("RgbEditor", "G"), QT_TRANSLATE_NOOP("RgbEditor", "Green level"), "greenSlider", {51, 221, 51}},
    {QT_TRANSLATE_NOOP("RgbEditor", "B"), QT_TRANSLATE_NOOP("RgbEditor", "Blue level"), "blueSlider", {51, 51, 221}},
}};

} // namespace

RgbEditor::RgbEditor(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < Channel::Count; ++i) {
        const ChannelRow &channel = Channels[size_t(i)];
        auto *slider = new ChannelSlider(channel.accent, this);
        slider->setObjectName(QLatin1String(channel.objectName));
        slider->setAccessibleName(tr(channel.name));
        auto *number = new QSpinBox(this);
        number->setRange(0, Channel::MaximumLevel);
        number->setFixedWidth(30);
        number->setAlignment(Qt::AlignCenter);
        number->setButtonSymbols(QAbstractSpinBox::NoButtons);
        number->setAccessibleName(tr(channel.name));
        layout->addWidget(new QLabel(tr(channel.initial), this), i, 0);
        layout->addWidget(slider, i, 1);
        layout->addWidget(number, i, 2);
        connect(slider, &QSlider::valueChanged, number, &QSpinBox::setValue);
        connect(number, &QSpinBox::valueChanged, slider, &QSlider::setValue);
        connect(slider, &QSlider::valueChanged, this, &RgbEditor::sliderValuesChanged);
        m_rows[size_t(i)] = {slider, number};
    }
    showGradients();
}

void RgbEditor::setColour(const QColor &colour)
{
    m_colour = colour;
    const ChannelLevels levels = Channel::levelsOf(colour);
    for (size_t i = 0; i < m_rows.size(); ++i) {
        const QSignalBlocker sliderBlocker(m_rows[i].slider);
        const QSignalBlocker numberBlocker(m_rows[i].number);
        m_rows[i].slider->setValue(levels[i]);
        m_rows[i].number->setValue(levels[i]);
    }
    showGradients();
}

void RgbEditor::sliderValuesChanged()
{
    ChannelLevels levels{};
    for (size_t i = 0; i < m_rows.size(); ++i)
        levels[i] = m_rows[i].slider->value();
    m_colour = Channel::colourOf(levels);
    showGradients();
    emit colourChanged(m_colour);
}

void RgbEditor::showGradients()
{
    for (int i = 0; i < Channel::Count; ++i)
        m_rows[size_t(i)].slider->setGradient(Channel::withComponent(m_colour, i, 0),
                                              Channel::withComponent(m_colour, i, 255));
}
