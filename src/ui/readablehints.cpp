#include "ui/readablehints.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {

/// Text of lesser weight needs a ratio of 3 to 1 to its ground.
constexpr double LeastContrast = 3;
constexpr int FadedAlpha = 170;

double luminance(const QColor &colour)
{
    const auto linear = [](double component) {
        return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

QColor over(const QColor &colour, const QColor &ground)
{
    const double alpha = colour.alphaF();
    const auto mixed = [alpha](double above, double below) { return float(above * alpha + below * (1 - alpha)); };
    return QColor::fromRgbF(mixed(colour.redF(), ground.redF()), mixed(colour.greenF(), ground.greenF()),
                            mixed(colour.blueF(), ground.blueF()));
}

/// How many times lighter the lighter of text and ground is than the darker (1 to 21).
double contrast(const QColor &text, const QColor &ground)
{
    const auto [darker, lighter] = std::minmax({luminance(over(text, ground)), luminance(ground)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

ReadableHints::ReadableHints(QWidget *window) : QObject(window)
{
    keepReadable();
    window->installEventFilter(this);
}

QPalette ReadableHints::readable(QPalette palette)
{
    const QColor hint = palette.color(QPalette::PlaceholderText);
    const bool seen =
        std::ranges::all_of(std::initializer_list{QPalette::Window, QPalette::Base}, [&](QPalette::ColorRole ground) {
            return contrast(hint, palette.color(ground)) >= LeastContrast;
        });
    if (!seen) {
        QColor faded = palette.color(QPalette::WindowText);
        faded.setAlpha(FadedAlpha);
        palette.setColor(QPalette::PlaceholderText, faded);
    }
    return palette;
}

bool ReadableHints::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange)
        keepReadable();
    return false;
}

void ReadableHints::keepReadable()
{
    const QPalette palette = QApplication::palette();
    if (const QPalette better = readable(palette); better != palette)
        QApplication::setPalette(better);
}
