#include "app/exportproject/severaloutputsdialog.h"

#include "app/exportproject/optionfields.h"
#include "nextdata/output.h"

SeveralOutputsDialog::SeveralOutputsDialog(QWidget *parent)
    : DialogBase(tr("Edit Outputs"), parent)
    , m_options(new OptionFields(form(), this))
{
    connect(m_options, &OptionFields::changed, this, &SeveralOutputsDialog::revalidate);
}

void SeveralOutputsDialog::show(int count)
{
    setHeader(tr("What %Ln outputs are to have alike", nullptr, count));
    QList<NextData::Option> options = NextData::commonOptions();
    options.removeIf([](const NextData::Option &option) { // a label is one output's
        return option.kind == NextData::Option::Kind::Text;
    });
    m_options->showUndecided(options);
    open();
}

QString SeveralOutputsDialog::problem() const
{
    return m_options->values().isEmpty() ? tr("Please choose what is to change") : QString();
}

void SeveralOutputsDialog::submit()
{
    emit accepted(m_options->values());
}
