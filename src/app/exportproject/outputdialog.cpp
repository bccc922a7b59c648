#include "app/exportproject/outputdialog.h"

#include "app/exportproject/assetkinds.h"
#include "app/exportproject/optionfields.h"
#include "app/exportproject/recipetable.h"
#include "model/plural.h"
#include "model/project.h"
#include "nextdata/usual.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

using namespace NextData;

OutputDialog::OutputDialog(QWidget *parent)
    : DialogBase(tr("Edit Output"), parent)
    , m_assetIcon(new QLabel(this))
    , m_asset(new QLabel(this))
    , m_form(new QComboBox(this))
    , m_file(new QLineEdit(this))
    , m_options(new OptionFields(form(), this))
    , m_size(new QLabel(this))
{
    m_asset->setTextFormat(Qt::PlainText);
    m_asset->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // names may be long
    auto *asset = new QHBoxLayout;
    asset->addWidget(m_assetIcon);
    asset->addWidget(m_asset, 1);
    m_form->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_form->setMinimumContentsLength(40);
    m_form->setObjectName(QStringLiteral("form"));
    m_file->setObjectName(QStringLiteral("file"));
    m_file->setToolTip(tr("Below the project's folder, with / between folders"));
    m_size->setTextFormat(Qt::PlainText);
    m_size->setForegroundRole(QPalette::PlaceholderText);
    m_size->setWordWrap(true);
    form()->addRow(tr("Asset"), asset);
    form()->addRow(tr("&Form"), m_form);
    form()->addRow(tr("F&ile"), m_file);
    body()->addWidget(m_size);

    connect(m_form, &QComboBox::activated, this, &OutputDialog::changeForm);
    connect(m_file, &QLineEdit::textChanged, this, &OutputDialog::revalidate);
    connect(m_options, &OptionFields::changed, this, &OutputDialog::follow);
}

void OutputDialog::show(const Project &project, const RecipeOutput &output, const TakenFiles &others)
{
    m_project = &project;
    m_output = output;
    m_others = others;
    const int extent = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    m_assetIcon->setPixmap(AssetKinds::iconOf(output.kind).pixmap({extent, extent}, devicePixelRatioF()));
    m_asset->setText(tr("%1 (%2)").arg(output.name, AssetKinds::nameOf(output.kind)));
    offerForms();
    const Form *form = findForm(output.form);
    m_options->show(form ? form->options : QList<Option>(), output.options);
    m_file->setText(output.file);
    m_shown = output;
    m_size->setText(sizeText());
    open();
}

void OutputDialog::offerForms()
{
    m_form->clear();
    const auto source = Source::find(*m_project, m_output.id);
    for (const Form &form : forms()) {
        // the form that it has is offered even where it cannot be
        if (form.id == m_output.form || (source ? refusalOf(form, *source).isEmpty() : form.kind == m_output.kind))
            m_form->addItem(form.title, form.id);
    }
    m_form->setMinimumWidth(m_form->sizeHint().width()); // also where windows of their own accord stay narrower
    m_form->setCurrentIndex(m_form->findData(m_output.form));
}

void OutputDialog::changeForm()
{
    const Form *form = findForm(m_form->currentData().toString());
    QMap<QString, QString> kept = m_options->values(); // as far as the other form has the same options
    for (auto option = kept.begin(); option != kept.end();) {
        const bool fits = std::any_of(form->options.cbegin(), form->options.cend(), [&](const Option &each) {
            return each.id == option.key() && each.parsed(*option);
        });
        option = fits ? std::next(option) : kept.erase(option);
    }
    m_options->show(form->options, kept);
    follow();
}

void OutputDialog::follow()
{
    RecipeOutput before = m_shown;
    before.file = m_file->text().trimmed(); // which the person may have changed
    m_shown = output();
    m_file->setText(fileAfterChange(before, m_shown, m_others));
    m_size->setText(sizeText());
    revalidate();
}

RecipeOutput OutputDialog::output() const
{
    RecipeOutput changed = m_output;
    changed.form = m_form->currentData().toString();
    changed.options = m_options->values();
    changed.file = m_file->text().trimmed();
    return changed;
}

QString OutputDialog::sizeText() const
{
    const Form *form = findForm(m_form->currentData().toString());
    const auto source = Source::find(*m_project, m_output.id);
    if (!form || !source)
        return tr("The project no longer has this asset");
    const Result<OptionValues> values = OptionValues::parse(form->options, m_options->values());
    const Result<qint64> size = values ? sizeOf(*form, *source, *values) : values.failure();
    return size ? tr("%Ln bytes: %1", nullptr, plural(*size)).arg(RecipeTable::banksText(*size))
                : tr("Cannot be: %1").arg(size.reason());
}

QString OutputDialog::problem() const
{
    const RecipeOutput changed = output();
    if (m_others.contains(changed.file))
        return tr("“%1” is the file of another output").arg(changed.file);
    return Recipe::problemOf(changed);
}

void OutputDialog::submit()
{
    emit accepted(output());
}
