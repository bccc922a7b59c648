#include "editors/palette/colourcyclesdialog.h"

#include "editors/palette/paletteeditor.h"
#include "model/projectextras.h"
#include "ui/svgiconengine.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QToolButton>

#include <algorithm>

ColourCyclesDialog::ColourCyclesDialog(PaletteEditor *editor, QAction *cycling, QWidget *parent)
    : QDialog(parent)
    , m_editor(editor)
    , m_list(new QListWidget)
    , m_add(new QPushButton(themedIcon(QStringLiteral(":/Plus")), tr("&Add Selection")))
    , m_remove(new QPushButton(themedIcon(QStringLiteral(":/Trashcan")), tr("&Remove")))
    , m_first(new QSpinBox)
    , m_last(new QSpinBox)
    , m_frames(new QSpinBox)
    , m_direction(new QComboBox)
    , m_speed(new QLabel)
{
    m_list->setAccessibleName(tr("Ranges of the palette whose colours go round"));
    m_frames->setAccessibleName(tr("Frames a step")); // its label stands beside two widgets
    m_list->setMinimumHeight(80);
    m_add->setAutoDefault(false);
    m_remove->setAutoDefault(false);
    m_frames->setRange(1, ColourCycle::MaxFrames);
    m_frames->setToolTip(tr("How many frames of the machine's screen, fifty a second, pass from step to step"));
    m_direction->addItems({tr("To higher entries"), tr("To lower entries")});
    m_direction->setToolTip(tr("Where colours move"));

    auto *layout = new QVBoxLayout(this);
    auto *explanation = new QLabel(tr("The colours of a range go round: each moves to the next entry, and the one that "
                                      "leaves at one end comes in at the other. Neither palette nor pictures change."));
    explanation->setWordWrap(true);
    layout->addWidget(explanation);
    auto *buttons = new QVBoxLayout;
    buttons->addWidget(m_add);
    buttons->addWidget(m_remove);
    buttons->addStretch();
    auto *row = new QHBoxLayout;
    row->addWidget(m_list, 1);
    row->addLayout(buttons);
    layout->addLayout(row, 1);
    auto *speed = new QHBoxLayout;
    speed->addWidget(m_frames);
    speed->addWidget(m_speed, 1);
    auto *form = new QFormLayout;
    form->addRow(tr("First entry"), m_first);
    form->addRow(tr("Last entry"), m_last);
    form->addRow(tr("Frames a step"), speed);
    form->addRow(tr("Direction"), m_direction);
    layout->addLayout(form);
    auto *box = new QDialogButtonBox(QDialogButtonBox::Close);
    if (cycling) {
        auto *play = new QToolButton;
        play->setDefaultAction(cycling);
        play->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        box->addButton(play, QDialogButtonBox::ActionRole);
    }
    layout->addWidget(box);

    connect(box, &QDialogButtonBox::rejected, this, &QDialog::close);
    connect(m_add, &QPushButton::clicked, this, &ColourCyclesDialog::add);
    connect(m_remove, &QPushButton::clicked, this, &ColourCyclesDialog::remove);
    connect(m_list, &QListWidget::currentRowChanged, this, &ColourCyclesDialog::showCycle);
    for (QSpinBox *field : {m_first, m_last, m_frames})
        connect(field, &QSpinBox::valueChanged, this, &ColourCyclesDialog::store);
    connect(m_direction, &QComboBox::currentIndexChanged, this, &ColourCyclesDialog::store);
    connect(m_editor, &PaletteEditor::paletteChanged, this, &ColourCyclesDialog::readPalette);
    connect(m_editor, &PaletteEditor::selectionChanged, this, &ColourCyclesDialog::updateAdd);
    readPalette();
}

void ColourCyclesDialog::setProject(const QPointer<Project> &project)
{
    if (m_project)
        m_project->extras()->disconnect(this);
    m_project = project;
    if (m_project) {
        connect(m_project->extras(), &ProjectExtras::sectionChanged, this, [this](const QString &name) {
            if (name == ColourCycles::Section && !m_showing)
                readPalette();
        });
    }
    readPalette();
}

void ColourCyclesDialog::readPalette()
{
    const Palette *palette = m_editor->palette();
    setWindowTitle(palette ? tr("Colour Cycles of %1").arg(palette->name()) : tr("Colour Cycles"));
    m_cycles = m_project && palette ? ColourCycles::of(*m_project->extras(), palette->id()) : ColourCycles::List();
    showList(0);
}

QString ColourCyclesDialog::textOf(const ColourCycle &cycle) const
{
    const QString text = cycle.backwards ? tr("%1 to %2, to lower entries") : tr("%1 to %2, to higher entries");
    return text.arg(cycle.first).arg(cycle.last);
}

void ColourCyclesDialog::showList(int row)
{
    {
        const QScopedValueRollback showing(m_showing, true);
        m_list->clear();
        for (const ColourCycle &cycle : std::as_const(m_cycles))
            m_list->addItem(textOf(cycle));
        m_list->setCurrentRow(std::min<int>(row, int(m_cycles.size()) - 1));
    }
    showCycle();
    updateAdd();
}

void ColourCyclesDialog::showCycle()
{
    if (m_showing)
        return;
    const QScopedValueRollback showing(m_showing, true);
    const int row = m_list->currentRow();
    const bool some = row >= 0 && row < m_cycles.size();
    const ColourCycle cycle = m_cycles.value(row);
    // no further than to the ranges beside it
    const int least = some && row > 0 ? m_cycles[row - 1].last + 1 : 0;
    const int most = some && row + 1 < m_cycles.size() ? m_cycles[row + 1].first - 1 : Palette::Size - 1;
    m_first->setRange(least, std::max(cycle.last - 1, least));
    m_last->setRange(cycle.first + 1, most);
    m_first->setValue(cycle.first);
    m_last->setValue(cycle.last);
    m_frames->setValue(cycle.frames);
    m_direction->setCurrentIndex(cycle.backwards ? 1 : 0);
    const double steps = 1000.0 / ColourCycle::FrameTime / cycle.frames;
    m_speed->setText(some ? tr("%1 steps a second").arg(QLocale().toString(steps, 'f', 1)) : QString());
    for (QWidget *field : std::initializer_list<QWidget *>{m_first, m_last, m_frames, m_direction, m_remove})
        field->setEnabled(some);
    if (some && isVisible() && m_editor->palette())
        m_editor->setSelection(cycle.first, cycle.last);
}

ColourCycle ColourCyclesDialog::selectedEntries() const
{
    return {.first = m_editor->first(), .last = m_editor->last()};
}

void ColourCyclesDialog::updateAdd()
{
    const ColourCycle wanted = selectedEntries();
    const bool isFree =
        std::ranges::none_of(m_cycles, [&](const ColourCycle &cycle) { return cycle.overlaps(wanted); });
    m_add->setEnabled(m_project && m_editor->palette() && wanted.isValid() && isFree);
    m_add->setToolTip(m_add->isEnabled()
                          ? tr("Lets the colours of the entries go round that are selected in the palette")
                          : tr("Select two or more entries in the palette that are in no range yet"));
}

void ColourCyclesDialog::add()
{
    const ColourCycle added = selectedEntries();
    write(m_cycles + ColourCycles::List{added});
    showList(int(m_cycles.indexOf(added)));
}

void ColourCyclesDialog::remove()
{
    const int row = m_list->currentRow();
    if (row < 0 || row >= m_cycles.size())
        return;
    ColourCycles::List cycles = m_cycles;
    cycles.removeAt(row);
    write(cycles);
    showList(row);
}

void ColourCyclesDialog::store()
{
    const int row = m_list->currentRow();
    if (m_showing || row < 0 || row >= m_cycles.size())
        return;
    ColourCycles::List cycles = m_cycles;
    cycles[row] = {m_first->value(), m_last->value(), m_frames->value(), m_direction->currentIndex() == 1};
    write(cycles);
    m_list->item(row)->setText(textOf(m_cycles[row]));
    showCycle();
}

void ColourCyclesDialog::write(const ColourCycles::List &cycles)
{
    if (!m_project || !m_editor->palette())
        return;
    const QScopedValueRollback showing(m_showing, true);
    ColourCycles::set(*m_project->extras(), m_editor->palette()->id(), cycles);
    m_cycles = ColourCycles::sound(cycles);
}
