#pragma once

#include "nextdata/option.h"

#include <QObject>

#include <functional>

class QFormLayout;
class QWidget;

/// The fields for the options of a form, as rows of a form layout: a check box, a number, a list or a line each.
class OptionFields : public QObject
{
    Q_OBJECT

public:
    /// The rows come to the end of the layout.
    explicit OptionFields(QFormLayout *layout, QObject *parent = nullptr);

    /// Replaces the rows. What is not given has its default.
    void show(const QList<NextData::Option> &options, const QMap<QString, QString> &given);

    /// Replaces the rows by some that leave each option as it is until something is chosen.
    void showUndecided(const QList<NextData::Option> &options);

    /// The values that are not the default, by the options' ids; of undecided ones, all that were chosen.
    [[nodiscard]] QMap<QString, QString> values() const;

signals:
    void changed();

private:
    struct Field
    {
        NextData::Option option;
        QWidget *widget;
        std::function<QString()> value;
    };

    void replaceRows(const QList<NextData::Option> &options, const QMap<QString, QString> &given);
    [[nodiscard]] Field fieldFor(const NextData::Option &option, const QString &value);
    void updateLabel();

    QFormLayout *m_layout;
    QList<Field> m_fields;
    bool m_isUndecided = false; ///< a null value is then one that was not chosen
};
