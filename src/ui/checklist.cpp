#include "ui/checklist.h"

#include <QMouseEvent>

CheckList::CheckList(QWidget *parent) : QListWidget(parent)
{
    setUniformItemSizes(true);
    setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    connect(this, &QListWidget::itemChanged, this, [this](QListWidgetItem *changed) {
        emit checkChanged(row(changed), changed->checkState() == Qt::Checked);
    });
}

int CheckList::addCheck(const QString &text, bool checked)
{
    auto *added = new QListWidgetItem(text);
    added->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    added->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    addItem(added);
    return count() - 1;
}

bool CheckList::isChecked(int index) const
{
    const QListWidgetItem *found = item(index);
    return found && found->checkState() == Qt::Checked;
}

void CheckList::setChecked(int index, bool checked)
{
    if (item(index) && isChecked(index) != checked) {
        item(index)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    }
}

void CheckList::mouseReleaseEvent(QMouseEvent *event)
{
    QListWidgetItem *const clicked = itemAt(event->position().toPoint());
    const Qt::CheckState before = clicked ? clicked->checkState() : Qt::Unchecked;
    QListWidget::mouseReleaseEvent(event);
    // on the box itself the list has done this already
    if (clicked && event->button() == Qt::LeftButton && clicked == currentItem())
        setChecked(row(clicked), before != Qt::Checked);
}
