#include "editors/map/anchorpad.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QToolButton>

#include <array>
#include <cstdlib>

namespace MapEditor {

namespace {

constexpr int Side = 3;
constexpr std::array Rows{Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
constexpr std::array Columns{Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};

/// The arrow of a neighbour of the chosen button; nothing for one further away.
QString arrow(int rows, int columns)
{
    static const QString arrows = QStringLiteral("↖↑↗←●→↙↓↘");
    if (std::abs(rows) > 1 || std::abs(columns) > 1)
        return {};
    return arrows.mid((rows + 1) * Side + columns + 1, 1);
}

} // namespace

QString AnchorPad::nameOf(int place)
{
    const std::array names{tr("Top left"), tr("Top"),         tr("Top right"), tr("Left"),        tr("Centre"),
                           tr("Right"),    tr("Bottom left"), tr("Bottom"),    tr("Bottom right")};
    return names.at(size_t(place));
}

AnchorPad::AnchorPad(QWidget *parent) : QWidget(parent), m_buttons(new QButtonGroup(this))
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(1);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    const int extent = fontMetrics().height() * 7 / 4;
    for (int id = 0; id < Side * Side; ++id) {
        auto *button = new QToolButton;
        button->setCheckable(true);
        button->setFixedSize(extent, extent);
        button->setAccessibleName(nameOf(id));
        button->setToolTip(nameOf(id));
        m_buttons->addButton(button, id);
        layout->addWidget(button, id / Side, id % Side);
    }
    m_buttons->button(0)->setChecked(true);
    showArrows();
    connect(m_buttons, &QButtonGroup::idToggled, this, [this](int, bool checked) {
        if (!checked)
            return;
        showArrows();
        emit alignmentChanged(alignment());
    });
}

Qt::Alignment AnchorPad::alignment() const
{
    const auto id = size_t(m_buttons->checkedId());
    return Rows.at(id / Side) | Columns.at(id % Side);
}

void AnchorPad::setAlignment(Qt::Alignment alignment)
{
    for (int id = 0; id < Side * Side; ++id) {
        if (alignment == (Rows.at(size_t(id / Side)) | Columns.at(size_t(id % Side))))
            m_buttons->button(id)->setChecked(true);
    }
}

void AnchorPad::showArrows()
{
    const int chosen = m_buttons->checkedId();
    for (int id = 0; id < Side * Side; ++id)
        m_buttons->button(id)->setText(arrow(id / Side - chosen / Side, id % Side - chosen % Side));
}

} // namespace MapEditor
