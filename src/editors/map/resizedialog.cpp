#include "editors/map/resizedialog.h"

#include "editors/map/anchorpad.h"
#include "editors/map/resizepreview.h"

#include <QFormLayout>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace MapEditor {

ResizeDialog::ResizeDialog(QWidget *parent)
    : DialogBase(tr("Resize Map"), parent)
    , m_width(addSide(tr("Width")))
    , m_height(addSide(tr("Height")))
    , m_anchor(new AnchorPad)
    , m_preview(new ResizePreview)
    , m_summary(new QLabel)
{
    form()->addRow(tr("Anchor"), m_anchor);
    body()->addWidget(m_preview, 1);
    body()->addWidget(m_summary);
    m_summary->setAlignment(Qt::AlignCenter);
    connect(m_anchor, &AnchorPad::alignmentChanged, this, &ResizeDialog::showPreview);
}

QSpinBox *ResizeDialog::addSide(const QString &label)
{
    auto *side = new QSpinBox;
    side->setRange(1, MaximumSide);
    side->setSuffix(tr(" cells"));
    form()->addRow(label, side);
    connect(side, &QSpinBox::valueChanged, this, &ResizeDialog::showPreview);
    return side;
}

void ResizeDialog::setMapSize(QSize size)
{
    m_before = size;
    // an imported map may be larger than what may be asked for
    m_width->setMaximum(std::max(MaximumSide, size.width()));
    m_height->setMaximum(std::max(MaximumSide, size.height()));
    m_width->setValue(size.width());
    m_height->setValue(size.height());
    m_anchor->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    showPreview();
}

QSize ResizeDialog::mapSize() const
{
    return {m_width->value(), m_height->value()};
}

Qt::Alignment ResizeDialog::alignment() const
{
    return m_anchor->alignment();
}

void ResizeDialog::showPreview()
{
    m_preview->showResize(m_before, mapSize(), alignment());
    const QSize kept = m_preview->kept().size();
    m_summary->setText(kept == m_before
                           ? tr("The whole map of %1×%2 cells is kept").arg(m_before.width()).arg(m_before.height())
                           : tr("%1×%2 of %3×%4 cells are kept")
                                 .arg(kept.width())
                                 .arg(kept.height())
                                 .arg(m_before.width())
                                 .arg(m_before.height()));
}

} // namespace MapEditor
