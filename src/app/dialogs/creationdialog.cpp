#include "app/dialogs/creationdialog.h"

#include "model/assetname.h"

#include <QFormLayout>
#include <QLineEdit>

CreationDialog::CreationDialog(const QString &title, const QString &header, QWidget *parent)
    : DialogBase(title, parent)
    , m_name(new QLineEdit(this))
{
    setHeader(header);
    form()->addRow(tr("&Name"), m_name);
    m_name->setMaxLength(AssetName::MaxLength);
    connect(m_name, &QLineEdit::textChanged, this, &CreationDialog::revalidate);
}

void CreationDialog::openWithName(const QString &name)
{
    m_name->setText(name);
    open();
}

QString CreationDialog::name() const
{
    return m_name->text().trimmed();
}

QString CreationDialog::problem() const
{
    return name().isEmpty() ? tr("Please enter a name") : QString();
}
