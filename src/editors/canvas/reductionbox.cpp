#include "editors/canvas/reductionbox.h"

#include "pictures/colourreduction.h"

#include <QLocale>

namespace {

constexpr int AsTheyCome = -1;

}

ReductionBox::ReductionBox(QWidget *parent) : QComboBox(parent)
{
    addItem(tr("No, as they come"), AsTheyCome);
    addItem(tr("To the nearest"), int(Dithering::None));
    addItem(tr("In an ordered pattern"), int(Dithering::Ordered));
    addItem(tr("With error diffusion"), int(Dithering::Diffusion));
    setToolTip(tr("Colours are found for the whole picture; else those that come last take the nearest of the others"));
}

std::optional<Dithering> ReductionBox::reduction() const
{
    const int chosen = currentData().toInt();
    return chosen == AsTheyCome ? std::nullopt : std::optional(Dithering(chosen));
}

void ReductionBox::setReduction(std::optional<Dithering> reduction)
{
    setCurrentIndex(findData(reduction ? int(*reduction) : AsTheyCome));
}

QString ReductionBox::told(const ColourReduction &reduction)
{
    const QLocale locale;
    const QString colours = tr("Colours of the machine: %1 before, %2 after")
                                .arg(locale.toString(reduction.coloursBefore), locale.toString(reduction.coloursUsed));
    return reduction.error > 0 ? tr("%1; mean error: %2 levels").arg(colours, locale.toString(reduction.error, 'f', 2))
                               : tr("%1; none is lost").arg(colours);
}
