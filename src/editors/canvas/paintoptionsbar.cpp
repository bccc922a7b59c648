#include "editors/canvas/paintoptionsbar.h"

#include "editors/canvas/paintsettings.h"
#include "ui/commands.h"
#include "ui/flowlayout.h"

#include <QActionGroup>
#include <QMenu>
#include <QToolButton>

PaintOptionsBar::PaintOptionsBar(QWidget *parent) : QWidget(parent), m_sizes(new QMenu(this))
{
    auto *layout = new FlowLayout(this);
    layout->setContentsMargins(2, 0, 2, 0);
    layout->setSpacing(1);

    auto *sizes = new QActionGroup(this);
    for (int size = 1; size <= Brush::MaximumSize; ++size) {
        QAction *action = sizes->addAction(m_sizes->addAction(sizeText(size)));
        action->setCheckable(true);
        action->setData(size);
        Commands::addPointed(action, QStringLiteral("brushSize.%1").arg(size)); // [ and ] are commands
    }
    connect(sizes, &QActionGroup::triggered, this, [this](const QAction *chosen) {
        if (m_settings)
            m_settings->setBrushSize(chosen->data().toInt());
    });
    m_size = insertButton(0);
    m_size->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_size->setPopupMode(QToolButton::InstantPopup);
    m_size->setMenu(m_sizes);
    m_size->setToolTip(tr("Size of the brush: [ makes it smaller, ] larger"));
    m_size->setAccessibleName(tr("Size of the brush"));
}

QString PaintOptionsBar::sizeText(int size)
{
    return tr("%1 px").arg(size);
}

QToolButton *PaintOptionsBar::insertButton(int place)
{
    auto *button = new QToolButton(this);
    button->setAutoRaise(true);
    static_cast<FlowLayout *>(layout())->insertWidget(place, button);
    return button;
}

void PaintOptionsBar::setSettings(PaintSettings *settings)
{
    if (m_settings)
        m_settings->disconnect(this);
    m_settings = settings;
    qDeleteAll(m_choices);
    m_choices.clear();
    for (const auto choice : {PaintSettings::RoundBrush, PaintSettings::Connect, PaintSettings::PixelPerfect,
                              PaintSettings::MirrorSides, PaintSettings::MirrorEnds, PaintSettings::Shade}) {
        QToolButton *button = insertButton(int(m_choices.size()) + 1); // after the size
        button->setDefaultAction(settings->action(choice));
        button->setAccessibleName(settings->action(choice)->iconText());
        m_choices.append(button);
    }
    connect(settings, &PaintSettings::changed, this, &PaintOptionsBar::showBrush);
    showBrush();
}

void PaintOptionsBar::addButton(QAction *action)
{
    QToolButton *button = insertButton(layout()->count());
    button->setDefaultAction(action);
    button->setAccessibleName(action->iconText());
}

void PaintOptionsBar::showBrush()
{
    const Brush &brush = m_settings->options().brush;
    const bool picture = brush.shape() == Brush::Picture;
    m_size->setText(picture ? tr("Picture") : sizeText(brush.size()));
    for (QAction *action : m_sizes->actions())
        action->setChecked(!picture && action->data().toInt() == brush.size());
}
