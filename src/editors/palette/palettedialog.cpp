#include "editors/palette/palettedialog.h"

#include "model/assetname.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QLineEdit>
#include <QRadioButton>

PaletteDialog::PaletteDialog(QWidget *parent)
    : DialogBase(tr("New Palette"), parent)
    , m_name(new QLineEdit(this))
    , m_choice(new QButtonGroup(this))
{
    setHeader(tr("Create a new palette"));
    form()->addRow(tr("Palette Name"), m_name);
    const auto addChoice = [this](CreateAction action, const QString &text) {
        auto *button = new QRadioButton(text, this);
        m_choice->addButton(button, int(action));
        form()->addRow(button);
    };
    addChoice(CreateAction::CopyCurrent, tr("Copy colours from current palette"));
    addChoice(CreateAction::DefaultNext, tr("Use the default Next palette"));
    addChoice(CreateAction::Blank, tr("Create a blank palette"));
    m_choice->button(int(CreateAction::DefaultNext))->setChecked(true);
    m_name->setMaxLength(AssetName::MaxLength);
    connect(m_name, &QLineEdit::textChanged, this, &PaletteDialog::revalidate);
}

void PaletteDialog::show(const QStringList &items)
{
    m_taken = items;
    m_name->clear();
    DialogBase::open();
}

QString PaletteDialog::problem() const
{
    if (m_taken.contains(m_name->text()))
        return tr("Palette names must be unique");
    if (m_name->text().isEmpty())
        return tr("Palette name is required");
    return {};
}

void PaletteDialog::submit()
{
    emit accepted(CreateAction(m_choice->checkedId()), m_name->text());
}
