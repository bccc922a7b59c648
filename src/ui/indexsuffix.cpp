#include "ui/indexsuffix.h"

#include <QCoreApplication>
#include <QSpinBox>

void showIndexSuffix(QSpinBox &number)
{
    const auto update = [&number] {
        number.setSuffix(QCoreApplication::translate("IndexSuffix", " (index %1)").arg(number.value() - 1));
    };
    QObject::connect(&number, &QSpinBox::valueChanged, &number, update);
    update();
}
