#include "editors/palette/paletteeditor.h"

#include "editors/palette/channellevels.h"
#include "editors/palette/coloureditor.h"
#include "editors/palette/palettegrid.h"
#include "ui/commands.h"
#include "ui/svgiconengine.h"

#include <QAction>
#include <QHBoxLayout>
#include <QToolButton>

#include <algorithm>

PaletteEditor::PaletteEditor(QWidget *parent)
    : QWidget(parent)
    , m_grid(new PaletteGrid(this))
    , m_editor(new ColourEditor(this))
    , m_darken(addTool("darken", QStringLiteral(":/Darken"), tr("Darken"), tr("Darkens the selected colour(s)")))
    , m_lighten(addTool("lighten", QStringLiteral(":/Lighten"), tr("Lighten"), tr("Lightens the selected colour(s)")))
    , m_gradient(addTool("gradient", QStringLiteral(":/Gradient"), tr("Gradient"), tr("Create a gradient")))
{
    m_grid->setObjectName(QStringLiteral("paletteWidget"));

    auto *tools = new QHBoxLayout;
    tools->setSpacing(2);
    for (QAction *tool : {m_darken, m_lighten, m_gradient})
        tools->addWidget(buttonFor(tool));
    tools->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(tools);
    layout->addWidget(m_grid, 0, Qt::AlignHCenter);
    layout->addWidget(m_editor);
    layout->addStretch();

    connect(m_grid, &PaletteGrid::selectionChanged, this, &PaletteEditor::setSelection);
    connect(m_editor, &ColourEditor::colourChanged, this, &PaletteEditor::applyColour);
    connect(m_darken, &QAction::triggered, m_editor, &ColourEditor::darken);
    connect(m_lighten, &QAction::triggered, m_editor, &ColourEditor::lighten);
    connect(m_gradient, &QAction::triggered, this, &PaletteEditor::createGradient);
    setPalette(nullptr);
}

QAction *PaletteEditor::addTool(const char *name, const QString &icon, const QString &text, const QString &toolTip)
{
    auto *tool = new QAction(themedIcon(icon), text, this);
    tool->setToolTip(toolTip);
    tool->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(Commands::add(tool, QLatin1String("colours.") + QLatin1String(name)));
    return tool;
}

QToolButton *PaletteEditor::buttonFor(QAction *tool)
{
    auto *button = new QToolButton(this);
    button->setDefaultAction(tool);
    button->setIconSize({24, 24});
    button->setAutoRaise(true);
    button->setAccessibleName(tool->toolTip());
    return button;
}

void PaletteEditor::setPalette(const QPointer<Palette> &palette)
{
    if (m_palette)
        m_palette->disconnect(this);
    m_palette = palette;
    if (m_palette) {
        // Undo and other editors change the entry that is being edited, too.
        connect(m_palette, &Palette::colourChanged, this, [this](int index) {
            if (index == m_first)
                loadSelection();
        });
        connect(m_palette, &QObject::destroyed, this, [this] { setPalette(nullptr); });
    }
    m_grid->setPalette(palette);
    m_grid->setEnabled(palette);
    m_editor->setEnabled(palette);
    updateTools();
    loadSelection();
    emit paletteChanged();
}

void PaletteEditor::setSelectedIndex(int index)
{
    setSelection(index, index);
}

void PaletteEditor::setSelection(int first, int last)
{
    m_first = std::clamp(first, 0, Palette::Size - 1);
    m_last = std::clamp(last, m_first, Palette::Size - 1);
    m_hasSelection = true;
    if (m_grid->firstSelected() != m_first || m_grid->lastSelected() != m_last)
        m_grid->setSelection(m_first, m_last);
    updateTools();
    loadSelection();
    emit selectionChanged(m_first, m_last);
}

void PaletteEditor::updateTools()
{
    const bool enabled = m_palette && m_hasSelection;
    m_darken->setEnabled(enabled);
    m_lighten->setEnabled(enabled);
    m_gradient->setEnabled(enabled && m_last != m_first);
}

void PaletteEditor::loadSelection()
{
    if (m_palette)
        m_editor->setColour(m_palette->colour(m_first), m_palette->priority(m_first));
}

void PaletteEditor::applyColour(const QColor &colour, bool priority)
{
    for (int index = m_first; index <= m_last && m_palette; ++index)
        m_palette->setColour(index, Channel::keepingLevels(colour), priority);
    m_grid->update();
    emit colourChanged(colour, priority);
}

void PaletteEditor::createGradient()
{
    if (!m_palette)
        return;
    const QColor start = m_palette->colour(m_first);
    const QColor end = m_palette->colour(m_last);
    const int steps = m_last - m_first;
    if (start == end || steps < 2)
        return;
    const int red = (end.red() - start.red()) / steps;
    const int green = (end.green() - start.green()) / steps;
    const int blue = (end.blue() - start.blue()) / steps;
    for (int k = 1; k < steps; ++k) {
        const QColor colour(start.red() + k * red, start.green() + k * green, start.blue() + k * blue);
        m_palette->setColour(m_first + k, colour, m_palette->priority(m_first + k));
    }
}

void PaletteEditor::createEvenGradient()
{
    if (!m_palette)
        return;
    const ChannelLevels start = Channel::levelsOf(m_palette->colour(m_first));
    const ChannelLevels end = Channel::levelsOf(m_palette->colour(m_last));
    const int steps = m_last - m_first;
    for (int k = 1; k < steps; ++k) {
        ChannelLevels levels;
        for (size_t channel = 0; channel < levels.size(); ++channel)
            levels[channel] = (start[channel] * (steps - k) * 2 + end[channel] * k * 2 + steps) / (2 * steps);
        const int entry = m_first + k;
        m_palette->setColour(entry, Channel::keepingLevels(Channel::colourOf(levels)), m_palette->priority(entry));
    }
}
