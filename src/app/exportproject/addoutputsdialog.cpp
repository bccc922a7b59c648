#include "app/exportproject/addoutputsdialog.h"

#include "app/exportproject/assetkinds.h"
#include "model/project.h"
#include "nextdata/output.h"
#include "nextdata/usual.h"
#include "ui/plaintext.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace NextData;

namespace {

enum Column { AssetColumn, FormColumn, FileColumn, ColumnCount };

constexpr int SourceRole = Qt::UserRole; ///< the place of the item's asset in the list of sources
constexpr QSize UsualSize(740, 500);

const QString TextOption = QStringLiteral("text");

/// The folder in which all outputs of a recipe are, if they are in one.
QString commonFolder(const Recipe &recipe)
{
    QStringList folders;
    for (const RecipeOutput &output : recipe.outputs())
        folders.append(output.file.left(output.file.lastIndexOf(u'/') + 1));
    folders.removeDuplicates();
    return folders.size() == 1 ? folders.constFirst() : QString();
}

} // namespace

AddOutputsDialog::AddOutputsDialog(QWidget *parent)
    : DialogBase(tr("Add Outputs"), parent)
    , m_assets(new QTreeWidget(this))
    , m_text(new QComboBox(this))
    , m_folder(new QLineEdit(this))
{
    setHeader(tr("Which assets does the game take?"));
    m_assets->setColumnCount(ColumnCount);
    m_assets->setHeaderLabels({tr("Asset"), tr("Form"), tr("File")});
    m_assets->setAlternatingRowColors(true);
    m_assets->setUniformRowHeights(true);
    m_assets->setMinimumSize(320, 160);
    m_assets->header()->setStretchLastSection(true);
    m_assets->setAccessibleName(tr("Assets"));
    body()->insertWidget(0, m_assets, 1);

    const QList<Option> options = commonOptions();
    const auto text =
        std::find_if(options.cbegin(), options.cend(), [](const Option &option) { return option.id == TextOption; });
    for (const Option::Choice &choice : text->choices)
        m_text->addItem(choice.title, choice.id);
    m_text->setObjectName(TextOption);
    m_text->setToolTip(text->description);
    m_folder->setObjectName(QStringLiteral("folder"));
    m_folder->setPlaceholderText(tr("The project's folder"));
    m_folder->setToolTip(tr("A folder below the project's, with / between folders"));
    form()->addRow(tr("&Source text"), m_text);
    form()->addRow(tr("F&older"), m_folder);

    connect(m_assets, &QTreeWidget::itemChanged, this, &AddOutputsDialog::follow);
    connect(m_text, &QComboBox::currentIndexChanged, this, &AddOutputsDialog::follow);
    connect(m_folder, &QLineEdit::textChanged, this, &AddOutputsDialog::follow);
    resize(UsualSize);
}

void AddOutputsDialog::show(const Project &project, const Recipe &recipe)
{
    m_recipe = recipe;
    m_filesOf.clear();
    for (const RecipeOutput &output : recipe.outputs())
        m_filesOf[output.id].append(output.file);
    m_sources = Source::all(project);
    {
        const QSignalBlocker untilComplete(m_assets);
        m_assets->clear();
        for (int kind = 0; kind <= int(AssetKind::Image); ++kind)
            addKind(AssetKind(kind), m_sources);
        orderFocus();
        m_assets->expandAll();
        m_assets->setCurrentItem(m_assets->topLevelItem(0));
    }
    m_folder->setText(commonFolder(recipe));
    follow();
    m_assets->setColumnWidth(AssetColumn, UsualSize.width() / 3);
    m_assets->setColumnWidth(FormColumn, UsualSize.width() / 3);
    open();
}

void AddOutputsDialog::addKind(AssetKind kind, const QList<Source> &sources)
{
    QList<Source> ofKind;
    auto *item = new QTreeWidgetItem;
    for (int i = 0; i < sources.size(); ++i) {
        const Source &source = sources[i];
        if (source.kind() != kind)
            continue;
        const bool isProposed = m_recipe.outputs().isEmpty() && !usualForms(source).isEmpty();
        auto *asset = new QTreeWidgetItem(item);
        asset->setText(AssetColumn, source.name());
        asset->setToolTip(AssetColumn, plainText(source.name()));
        asset->setIcon(AssetColumn, AssetKinds::iconOf(kind));
        asset->setData(AssetColumn, SourceRole, i);
        asset->setCheckState(AssetColumn, isProposed ? Qt::Checked : Qt::Unchecked);
        ofKind.append(source);
    }
    if (ofKind.isEmpty()) {
        delete item;
        return;
    }
    item->setFlags(item->flags() | Qt::ItemIsAutoTristate | Qt::ItemIsUserCheckable);
    item->setText(AssetColumn, tr("%1 (%2)").arg(AssetKinds::pluralOf(kind)).arg(ofKind.size()));
    m_assets->addTopLevelItem(item);
    m_assets->setItemWidget(item, FormColumn, formChooser(ofKind, AssetKinds::pluralOf(kind)));
}

/// The choosers in the list come after the list, in their order.
void AddOutputsDialog::orderFocus()
{
    QWidget *previous = m_assets;
    for (int i = 0; i < m_assets->topLevelItemCount(); ++i) {
        QWidget *chooser = m_assets->itemWidget(m_assets->topLevelItem(i), FormColumn);
        setTabOrder(previous, chooser);
        previous = chooser;
    }
    setTabOrder(previous, m_text);
    setTabOrder(m_text, m_folder);
}

QComboBox *AddOutputsDialog::formChooser(const QList<Source> &sources, const QString &kind) const
{
    auto *chooser = new QComboBox(m_assets);
    chooser->setAccessibleName(tr("Form of %1").arg(kind));
    chooser->addItem(tr("The usual ones"), QString());
    for (const Form &form : forms()) {
        if (std::any_of(sources.cbegin(), sources.cend(),
                        [&form](const Source &source) { return refusalOf(form, source).isEmpty(); }))
            chooser->addItem(form.title, form.id);
    }
    chooser->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(chooser, &QComboBox::currentIndexChanged, this, &AddOutputsDialog::follow);
    return chooser;
}

QList<const Form *> AddOutputsDialog::formsOf(QTreeWidgetItem &item) const
{
    const Source &source = m_sources.at(item.data(AssetColumn, SourceRole).toInt());
    const auto *chooser = qobject_cast<const QComboBox *>(m_assets->itemWidget(item.parent(), FormColumn));
    const Form *form = chooser ? findForm(chooser->currentData().toString()) : nullptr;
    return form ? QList{form} : usualForms(source);
}

QString AddOutputsDialog::folder() const
{
    const QString folder = m_folder->text().trimmed();
    return folder.isEmpty() || folder.endsWith(u'/') ? folder : folder + u'/';
}

QList<RecipeOutput> AddOutputsDialog::outputsOf(QTreeWidgetItem &item, TakenFiles &taken) const
{
    QList<RecipeOutput> outputs;
    if (item.checkState(AssetColumn) != Qt::Checked)
        return outputs;
    const Source &source = m_sources.at(item.data(AssetColumn, SourceRole).toInt());
    for (const Form *form : formsOf(item)) {
        RecipeOutput output{source.kind(), source.id(), source.name(), form->id, {}, {}};
        if (m_text->currentIndex() > 0)
            output.options.insert(TextOption, m_text->currentData().toString());
        if (const Result<OptionValues> values = OptionValues::parse(form->options, output.options))
            output.file = taken.claim(folder() + usualFile(source.name(), *form, *values));
        outputs.append(output);
    }
    return outputs;
}

QList<RecipeOutput> AddOutputsDialog::chosen() const
{
    QList<RecipeOutput> outputs;
    TakenFiles taken(m_recipe.outputs());
    for (int i = 0; i < m_assets->topLevelItemCount(); ++i) {
        for (int j = 0; j < m_assets->topLevelItem(i)->childCount(); ++j)
            outputs += outputsOf(*m_assets->topLevelItem(i)->child(j), taken);
    }
    return outputs;
}

void AddOutputsDialog::follow()
{
    const QSignalBlocker ownChanges(m_assets);
    TakenFiles taken(m_recipe.outputs());
    qsizetype count = 0;
    for (int i = 0; i < m_assets->topLevelItemCount(); ++i) {
        for (int j = 0; j < m_assets->topLevelItem(i)->childCount(); ++j) {
            QTreeWidgetItem &item = *m_assets->topLevelItem(i)->child(j);
            const QList<RecipeOutput> outputs = outputsOf(item, taken);
            QStringList files;
            for (const RecipeOutput &output : outputs)
                files.append(output.file);
            showForms(item);
            showFiles(item, files);
            count += outputs.size();
        }
    }
    m_assets->viewport()->update();
    okButton()->setText(count == 0       ? tr("&Add")
                            : count == 1 ? tr("&Add 1 Output")
                                         : tr("&Add %Ln Outputs", nullptr, count));
    revalidate();
}

void AddOutputsDialog::showFiles(QTreeWidgetItem &item, const QStringList &files) const
{
    const Source &source = m_sources.at(item.data(AssetColumn, SourceRole).toInt());
    const QStringList exported = m_filesOf.value(source.id());
    const bool isKnown = files.isEmpty() && !exported.isEmpty();
    const QStringList &shown = isKnown ? exported : files;
    item.setText(FileColumn, isKnown ? tr("Exported: %1").arg(shown.join(tr(", "))) : shown.join(tr(", ")));
    item.setToolTip(FileColumn, plainText(shown.join(u'\n')));
}

void AddOutputsDialog::showForms(QTreeWidgetItem &item) const
{
    const Source &source = m_sources.at(item.data(AssetColumn, SourceRole).toInt());
    QStringList titles;
    QStringList refusals;
    for (const Form *form : formsOf(item)) {
        titles.append(form->title);
        if (const QString refusal = refusalOf(*form, source); !refusal.isEmpty())
            refusals.append(refusal);
    }
    if (titles.isEmpty())
        titles.append(tr("Holds nothing yet"));
    item.setText(FormColumn, refusals.isEmpty() ? titles.join(tr(", ")) : tr("Cannot be: %1").arg(refusals.first()));
    item.setToolTip(FormColumn, plainText(refusals.isEmpty() ? titles.join(u'\n') : refusals.first()));
}

QString AddOutputsDialog::problem() const
{
    const QList<RecipeOutput> outputs = chosen();
    if (outputs.isEmpty())
        return m_sources.isEmpty() ? tr("The project has no assets yet") : tr("Please tick what is to be exported");
    if (m_recipe.outputs().size() + outputs.size() > Recipe::MaxOutputs)
        return tr("A recipe can have %n outputs", nullptr, Recipe::MaxOutputs);
    for (const RecipeOutput &output : outputs) {
        if (const QString problem = Recipe::problemOf(output); !problem.isEmpty())
            return problem;
    }
    return {};
}

void AddOutputsDialog::submit()
{
    emit accepted(chosen());
}
