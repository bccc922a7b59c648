#include "app/exportproject/optionfields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>

using NextData::Option;

OptionFields::OptionFields(QFormLayout *layout, QObject *parent) : QObject(parent), m_layout(layout) { }

void OptionFields::show(const QList<Option> &options, const QMap<QString, QString> &given)
{
    m_isUndecided = false;
    replaceRows(options, given);
}

void OptionFields::showUndecided(const QList<Option> &options)
{
    m_isUndecided = true;
    replaceRows(options, {});
}

void OptionFields::replaceRows(const QList<Option> &options, const QMap<QString, QString> &given)
{
    for (const Field &field : std::as_const(m_fields))
        m_layout->removeRow(field.widget);
    m_fields.clear();
    for (const Option &option : options) {
        const Field field = fieldFor(option, given.value(option.id, option.standard));
        field.widget->setObjectName(option.id);
        field.widget->setToolTip(option.description);
        m_layout->addRow(option.kind == Option::Kind::Flag ? QString() : option.title, field.widget);
        m_fields.append(field);
    }
    updateLabel();
}

OptionFields::Field OptionFields::fieldFor(const Option &option, const QString &value)
{
    QWidget *parent = m_layout->parentWidget();
    switch (option.kind) {
    case Option::Kind::Flag: {
        auto *box = new QCheckBox(option.title, parent);
        box->setChecked(value == QStringLiteral("true"));
        connect(box, &QCheckBox::toggled, this, &OptionFields::changed);
        return {option, box, [box] { return box->isChecked() ? QStringLiteral("true") : QStringLiteral("false"); }};
    }
    case Option::Kind::Number: {
        auto *box = new QSpinBox(parent);
        box->setRange(m_isUndecided ? option.least - 1 : option.least, option.most);
        if (m_isUndecided)
            box->setSpecialValueText(tr("As it is"));
        box->setValue(m_isUndecided ? box->minimum() : value.toInt());
        connect(box, &QSpinBox::valueChanged, this, &OptionFields::changed);
        return {option, box, [box, least = option.least] {
                    return box->value() < least ? QString() : QString::number(box->value());
                }};
    }
    case Option::Kind::Choice: {
        auto *box = new QComboBox(parent);
        for (const Option::Choice &choice : option.choices)
            box->addItem(choice.title, choice.id);
        if (m_isUndecided)
            box->insertItem(0, tr("As it is"));
        box->setCurrentIndex(m_isUndecided ? 0 : box->findData(value));
        connect(box, &QComboBox::currentIndexChanged, this, [this] {
            updateLabel();
            emit changed();
        });
        return {option, box, [box] { return box->currentData().toString(); }};
    }
    case Option::Kind::Text:
        break;
    }
    auto *line = new QLineEdit(value, parent);
    line->setPlaceholderText(tr("Made from the name"));
    connect(line, &QLineEdit::textChanged, this, &OptionFields::changed);
    return {option, line, [line] { return line->text().trimmed(); }};
}

/// Bytes have no label.
void OptionFields::updateLabel()
{
    bool isText = false;
    for (const Field &field : std::as_const(m_fields)) {
        if (field.option.id == QStringLiteral("text"))
            isText = field.value() != field.option.standard;
        if (field.option.id == QStringLiteral("label"))
            field.widget->setEnabled(isText);
    }
}

QMap<QString, QString> OptionFields::values() const
{
    QMap<QString, QString> values;
    for (const Field &field : m_fields) {
        const QString value = field.value();
        if (m_isUndecided ? !value.isNull() : value != field.option.standard)
            values.insert(field.option.id, value);
    }
    return values;
}
