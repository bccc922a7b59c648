#include "app/exportproject/recipetable.h"

#include "app/exportproject/assetkinds.h"
#include "model/plural.h"
#include "model/project.h"
#include "nextdata/form.h"
#include "nextdata/takenfiles.h"
#include "nextdata/usual.h"
#include "ui/plaintext.h"
#include "ui/svgiconengine.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QFont>
#include <QLocale>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

using namespace NextData;

constexpr int Slice = 8; // milliseconds of looking, between which a person is served
constexpr qint64 PageBytes = 8192;
constexpr qint64 BankBytes = 16384;

qint64 partsOf(qint64 bytes, qint64 partBytes)
{
    return (bytes + partBytes - 1) / partBytes;
}

QString titleOfForm(const RecipeOutput &output)
{
    const Form *form = findForm(output.form);
    return form ? form->title : output.form;
}

/// The options that are not at their defaults, in the words of their form.
QString optionsText(const RecipeOutput &output)
{
    const Form *form = findForm(output.form);
    QStringList texts;
    for (const Option &option : form ? form->options : QList<Option>()) {
        const QString value = output.options.value(option.id, option.standard);
        if (value == option.standard)
            continue;
        const auto choice = std::find_if(option.choices.cbegin(), option.choices.cend(),
                                         [&](const Option::Choice &each) { return each.id == value; });
        const QString shown = choice != option.choices.cend() ? choice->title : value;
        texts.append(option.kind == Option::Kind::Flag ? option.title
                                                       : QStringLiteral("%1: %2").arg(option.title, shown));
    }
    return texts.join(u'\n');
}

QIcon iconOf(const std::optional<RecipeRun::Outcome> &outcome)
{
    if (!outcome)
        return {};
    switch (outcome->state) {
    case RecipeRun::State::New:
        return themedIcon(QStringLiteral(":/Plus"));
    case RecipeRun::State::Changed:
        return themedIcon(QStringLiteral(":/Update"));
    case RecipeRun::State::Unchanged:
        return themedIcon(QStringLiteral(":/Check"));
    case RecipeRun::State::Impossible:
        return themedIcon(QStringLiteral(":/Error"));
    }
    return {};
}

QVariant alignmentOf(RecipeTable::Column column)
{
    const Qt::Alignment horizontal = column == RecipeTable::SizeColumn ? Qt::AlignRight
        : column == RecipeTable::BanksColumn                           ? Qt::AlignHCenter
                                                                       : Qt::AlignLeft;
    return (horizontal | Qt::AlignVCenter).toInt();
}

} // namespace

RecipeTable::RecipeTable(QObject *parent) : QAbstractTableModel(parent)
{
    m_idle.setInterval(0);
    connect(&m_idle, &QTimer::timeout, this, &RecipeTable::lookOn);
}

void RecipeTable::open(const Project &project, const QString &projectFile, const Recipe &recipe)
{
    m_project = &project;
    m_projectFile = projectFile;
    m_saved = recipe;
    QList<RecipeOutput> outputs = recipe.outputs();
    QHash<QUuid, QString> names;
    for (const Source &source : Source::all(project))
        names.insert(source.id(), source.name());
    for (RecipeOutput &output : outputs)
        output.name = names.value(output.id, output.name);
    m_rows.clear();
    m_recipe = {};
    setOutputs(outputs);
}

void RecipeTable::close()
{
    beginResetModel();
    m_idle.stop();
    m_run.reset();
    m_previewRun.reset();
    m_project.clear();
    m_recipe = {};
    m_saved = {};
    m_rows.clear();
    endResetModel();
}

// What is to be exported

int RecipeTable::rowOf(const QString &file) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (output(row).file == file)
            return row;
    }
    return -1;
}

void RecipeTable::add(const QList<RecipeOutput> &outputs)
{
    setOutputs(m_recipe.outputs() + outputs);
}

void RecipeTable::replace(int row, const RecipeOutput &output)
{
    QList<RecipeOutput> outputs = m_recipe.outputs();
    outputs[row] = output;
    setOutputs(outputs);
}

QStringList RecipeTable::setOptions(const QList<int> &rows, const QMap<QString, QString> &options)
{
    QList<RecipeOutput> outputs = m_recipe.outputs();
    TakenFiles taken(outputs);
    QStringList files;
    for (const int row : rows) {
        const RecipeOutput before = outputs[row];
        const Form *form = findForm(before.form);
        QMap<QString, QString> changed = before.options;
        changed.insert(options);
        if (const Result<OptionValues> values = form ? OptionValues::parse(form->options, changed) : Failure{})
            outputs[row].options = values->changed();
        outputs[row].file = fileAfterChange(before, outputs[row], taken);
        taken.add(outputs[row].file);
        files.append(outputs[row].file);
    }
    setOutputs(outputs);
    return files;
}

void RecipeTable::remove(const QList<int> &rows)
{
    QList<RecipeOutput> kept;
    for (int row = 0; row < rowCount(); ++row) {
        if (!rows.contains(row))
            kept.append(output(row));
    }
    setOutputs(kept);
}

QStringList RecipeTable::duplicate(const QList<int> &rows)
{
    TakenFiles taken(m_recipe.outputs());
    QList<RecipeOutput> copies;
    QStringList files;
    for (const int row : rows) {
        copies.append(output(row));
        copies.last().file = taken.claim(output(row).file);
        files.append(copies.last().file);
    }
    add(copies);
    return files;
}

void RecipeTable::setOutputs(const QList<RecipeOutput> &outputs)
{
    // an output that stays is shown with what is known of it until it is looked at again
    const QList<Row> rowsBefore = m_rows;
    const QList<RecipeOutput> before = m_recipe.outputs();
    QHash<QString, int> rowBefore;
    for (int row = 0; row < before.size(); ++row)
        rowBefore.insert(before[row].file, row);

    beginResetModel();
    m_recipe.setOutputs(outputs);
    m_rows.clear();
    for (const RecipeOutput &output : m_recipe.outputs()) {
        const int row = rowBefore.value(output.file, -1);
        m_rows.append(row >= 0 && before[row] == output ? rowsBefore[row] : Row());
    }
    endResetModel();
    lookAgain();
}

// What exporting it would do

RecipeRun RecipeTable::runOf(const Project &project, const QString &projectFile, const Recipe &recipe)
{
    return {project, recipe, QFileInfo(projectFile).path(), {projectFile, Recipe::pathFor(projectFile)}};
}

void RecipeTable::lookAgain()
{
    if (!m_project || m_isRunning)
        return;
    m_run.emplace(runOf(*m_project, m_projectFile, m_recipe));
    m_previewRun.reset();
    m_next = 0;
    m_idle.start();
    emit looked();
}

void RecipeTable::lookOn()
{
    QElapsedTimer time;
    time.start();
    const int first = m_next;
    while (m_project && m_next < rowCount() && (m_next == first || time.elapsed() < Slice)) {
        m_rows[m_next] = {m_run->run(m_next, RecipeRun::Mode::Look), {}};
        ++m_next;
    }
    if (m_next > first)
        emit dataChanged(index(first, 0), index(m_next - 1, ColumnCount - 1));
    if (!m_project || m_next >= rowCount())
        m_idle.stop();
    emit looked();
}

const std::optional<RecipeRun::Outcome> &RecipeTable::outcome(int row) const
{
    return m_rows.at(row).outcome;
}

RecipeTable::Sum RecipeTable::sum() const
{
    Sum sum;
    for (int row = 0; row < rowCount(); ++row) {
        const auto &known = outcome(row);
        if (!known) {
            ++sum.unknown;
            continue;
        }
        ++sum.count[known->state];
        if (known->state == State::Impossible)
            continue;
        sum.bytes += bytesOf(row);
        sum.pages += partsOf(bytesOf(row), PageBytes);
    }
    return sum;
}

Result<QList<OutputFile>> RecipeTable::make(int row)
{
    if (!m_project)
        return Failure{{}};
    if (!m_previewRun)
        m_previewRun.emplace(runOf(*m_project, m_projectFile, m_recipe));
    return m_previewRun->make(row);
}

QList<RecipeRun::Outcome> RecipeTable::run(const RecipeRun::Progress &progress)
{
    QList<RecipeRun::Outcome> outcomes;
    {
        const QScopedValueRollback running(m_isRunning, true); // files are not looked at while they are written
        m_idle.stop();
        outcomes = runOf(*m_project, m_projectFile, m_recipe).runAll(RecipeRun::Mode::Write, progress);
    }
    for (int row = 0; row < std::min(int(outcomes.size()), rowCount()); ++row) {
        RecipeRun::Outcome now = outcomes[row];
        if (now.state != State::Impossible)
            now.state = State::Unchanged;
        m_rows[row].outcome = now;
    }
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    lookAgain();
    return outcomes;
}

qint64 RecipeTable::bytesOf(const Project &project, const RecipeOutput &output)
{
    const Form *form = findForm(output.form);
    const auto source = Source::find(project, output.id);
    if (!form || !source)
        return -1;
    const Result<OptionValues> values = OptionValues::parse(form->options, output.options);
    const Result<qint64> size = values ? sizeOf(*form, *source, *values) : values.failure();
    return size ? *size : -1;
}

qint64 RecipeTable::bytesOf(int row) const
{
    std::optional<qint64> &bytes = m_rows.at(row).bytes;
    if (!bytes)
        bytes = m_project ? bytesOf(*m_project, output(row)) : -1;
    return *bytes;
}

// What is shown

int RecipeTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_recipe.outputs().size());
}

int RecipeTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString RecipeTable::pagesText(qint64 pages)
{
    return pages == 1 ? tr("1 page of 8 KiB") : tr("%Ln pages of 8 KiB", nullptr, plural(pages));
}

QString RecipeTable::banksText(qint64 bytes)
{
    const int banks = plural(partsOf(bytes, BankBytes));
    return tr("%1, %2").arg(pagesText(partsOf(bytes, PageBytes)),
                            banks == 1 ? tr("1 bank of 16 KiB") : tr("%Ln banks of 16 KiB", nullptr, banks));
}

QString RecipeTable::stateText(int row) const
{
    const auto &known = outcome(row);
    if (!known)
        return tr("…");
    switch (known->state) {
    case State::New:
        return tr("New");
    case State::Changed:
        return tr("Changed");
    case State::Unchanged:
        return tr("Unchanged");
    case State::Impossible:
        return tr("Cannot be: %1").arg(known->reason);
    }
    return {};
}

QString RecipeTable::text(int row, Column column) const
{
    switch (column) {
    case AssetColumn:
        return output(row).name;
    case FormColumn:
        return titleOfForm(output(row));
    case FileColumn:
        return output(row).file;
    case SizeColumn:
        return bytesOf(row) < 0 ? QString() : QLocale().toString(bytesOf(row));
    case BanksColumn:
        return bytesOf(row) < 0
            ? QString()
            : tr("%1 / %2").arg(partsOf(bytesOf(row), PageBytes)).arg(partsOf(bytesOf(row), BankBytes));
    case StateColumn:
        return stateText(row);
    case ColumnCount:
        break;
    }
    return {};
}

QString RecipeTable::toolTip(int row, Column column) const
{
    const RecipeOutput &shown = output(row);
    if (column == AssetColumn)
        return tr("%1 (%2)").arg(shown.name, AssetKinds::nameOf(shown.kind));
    if (column == FormColumn) {
        const QString options = optionsText(shown);
        return titleOfForm(shown) + (options.isEmpty() ? QString() : u'\n' + options);
    }
    if (column == FileColumn && outcome(row)) {
        QStringList files;
        for (const RecipeRun::File &file : outcome(row)->files)
            files.append(file.name);
        return files.size() > 1 ? files.join(u'\n') : shown.file;
    }
    if (column == BanksColumn)
        return bytesOf(row) < 0 ? QString() : banksText(bytesOf(row));
    return text(row, column);
}

QVariant RecipeTable::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const auto column = Column(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), column);
    case Qt::ToolTipRole:
        return plainText(toolTip(index.row(), column));
    case Qt::AccessibleTextRole:
        return column == AssetColumn || column == BanksColumn ? toolTip(index.row(), column)
                                                              : text(index.row(), column);
    case Qt::DecorationRole:
        if (column == AssetColumn)
            return AssetKinds::iconOf(output(index.row()).kind);
        return column == StateColumn ? QVariant(iconOf(outcome(index.row()))) : QVariant();
    case Qt::TextAlignmentRole:
        return alignmentOf(column);
    case Qt::FontRole: // what is to be seen at a glance
        if (const auto &known = outcome(index.row());
            column == StateColumn && known && known->state != State::Unchanged) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    default:
        return {};
    }
}

QVariant RecipeTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignmentOf(Column(section));
    if (role == Qt::ToolTipRole && section == BanksColumn)
        return tr("Pages of 8 KiB and banks of 16 KiB that the bytes take");
    if (role == Qt::ToolTipRole && section == SizeColumn)
        return tr("Bytes in the game; source text is longer");
    if (role != Qt::DisplayRole)
        return {};
    switch (Column(section)) {
    case AssetColumn:
        return tr("Asset");
    case FormColumn:
        return tr("Form");
    case FileColumn:
        return tr("File");
    case SizeColumn:
        return tr("Size");
    case BanksColumn:
        return tr("8K / 16K");
    case StateColumn:
        return tr("State");
    case ColumnCount:
        break;
    }
    return {};
}
