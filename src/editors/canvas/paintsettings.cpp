#include "editors/canvas/paintsettings.h"

#include "ui/commands.h"
#include "ui/svgiconengine.h"

#include <QAction>

#include <algorithm>
#include <utility>

namespace {

/// What is remembered, and under which key.
constexpr std::pair<PaintSettings::Choice, const char *> Habits[] = {
    {PaintSettings::Connect, "connectStrokes"},
    {PaintSettings::PixelPerfect, "pixelPerfect"},
};

} // namespace

PaintSettings::PaintSettings(QObject *parent) : QObject(parent)
{
    addChoice(Connect, QStringLiteral("connectStrokes"), QStringLiteral(":/Connect"), tr("Connect &Strokes"),
              tr("Draw without gaps, however fast the pointer moves"));
    addChoice(PixelPerfect, QStringLiteral("pixelPerfect"), QStringLiteral(":/PixelPerfect"),
              tr("&Pixel Perfect Lines"), tr("Draw freehand lines of one pixel without corners"));
    addChoice(Shade, QStringLiteral("shade"), QStringLiteral(":/Shade"), tr("S&hade"),
              tr("Step pixels along the colours between foreground and background: the left button towards the "
                 "foreground, the right button towards the background"));
    addChoice(RoundBrush, QStringLiteral("roundBrush"), QStringLiteral(":/RoundBrush"), tr("&Round Brush"),
              tr("Draw with a round brush"));
    addChoice(MirrorSides, QStringLiteral("mirrorSides"), QStringLiteral(":/MirrorSides"), tr("Mirror &Left and Right"),
              tr("Draw on the left and on the right at once"));
    addChoice(MirrorEnds, QStringLiteral("mirrorEnds"), QStringLiteral(":/MirrorEnds"), tr("Mirror &Top and Bottom"),
              tr("Draw at the top and at the bottom at once"));
    action(Connect)->setChecked(true);
}

void PaintSettings::addChoice(Choice choice, const QString &name, const QString &icon, const QString &text,
                              const QString &toolTip)
{
    auto *action = new QAction(themedIcon(icon), text, this);
    action->setCheckable(true);
    action->setToolTip(toolTip);
    action->setStatusTip(toolTip);
    connect(action, &QAction::toggled, this, [this, choice](bool on) { choose(choice, on); });
    Commands::add(action, QLatin1String("painting.") + name);
    m_actions.insert(choice, action);
}

void PaintSettings::choose(Choice choice, bool on)
{
    switch (choice) {
    case Connect:
        m_options.connect = on;
        break;
    case PixelPerfect:
        m_options.pixelPerfect = on;
        break;
    case Shade:
        m_options.shade = on;
        break;
    case RoundBrush:
        setUsualBrush();
        break;
    case MirrorSides:
        m_options.symmetry.upright = on;
        break;
    case MirrorEnds:
        m_options.symmetry.level = on;
        break;
    }
    emit changed();
    if (std::ranges::any_of(Habits, [choice](const auto &habit) { return habit.first == choice; }))
        emit habitChanged();
}

void PaintSettings::setUsualBrush()
{
    m_options.brush = {action(RoundBrush)->isChecked() ? Brush::Round : Brush::Square, m_size};
}

void PaintSettings::setBrushSize(int size)
{
    m_size = std::clamp(size, 1, Brush::MaximumSize);
    setUsualBrush();
    emit changed();
}

void PaintSettings::setBrush(const Brush &picture)
{
    m_options.brush = picture;
    emit changed();
}

QJsonObject PaintSettings::toJson() const
{
    QJsonObject json;
    for (const auto &[choice, key] : Habits)
        json.insert(QLatin1String(key), action(choice)->isChecked());
    return json;
}

void PaintSettings::fromJson(const QJsonObject &json)
{
    for (const auto &[choice, key] : Habits)
        action(choice)->setChecked(json.value(QLatin1String(key)).toBool(action(choice)->isChecked()));
}
