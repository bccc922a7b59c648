#include "app/commands/shortcutsdialog.h"

#include "ui/svgiconengine.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

enum Column { NameColumn, PlaceColumn, KeysColumn, ColumnCount };

constexpr QSize UsualSize(720, 560);
constexpr QSize Frame(20, 50); ///< that a window may have around it
constexpr int FieldWidth = 16; ///< in letters

QString textOf(const Commands::Keys &keys)
{
    return QKeySequence::listToString(keys, QKeySequence::NativeText);
}

} // namespace

ShortcutsDialog::ShortcutsDialog(const ShortcutTable &table, const PlaceOf &placeOf, QWidget *parent)
    : QDialog(parent)
    , m_table(table)
    , m_search(new QLineEdit)
    , m_searchKeys(new QKeySequenceEdit)
    , m_list(new QTreeWidget)
    , m_heading(new QLabel)
    , m_fields(new QVBoxLayout)
    , m_add(new QPushButton(themedIcon(QStringLiteral(":/Plus")), tr("A&dd Key")))
    , m_reset(new QPushButton(themedIcon(QStringLiteral(":/Undo")), tr("&Reset")))
    , m_warning(new QLabel)
    , m_takeAway(new QPushButton(tr("&Take It Away There")))
{
    setWindowTitle(tr("Keyboard Shortcuts"));
    resize(UsualSize.boundedTo(screen()->availableSize() - Frame));
    auto *layout = new QVBoxLayout(this);
    buildSearch(layout);
    buildList(placeOf);
    layout->addWidget(m_list, 1);
    buildEditor(layout);
    buildButtons(layout);
    showAllRows();
    m_list->setCurrentItem(itemOf(0));
    m_search->setFocus();
}

void ShortcutsDialog::buildSearch(QVBoxLayout *layout)
{
    m_search->setPlaceholderText(tr("Search by name"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_search->setClearButtonEnabled(true);
    m_searchKeys->setClearButtonEnabled(true);
    auto *label = new QLabel(tr("or by &keys:"));
    label->setBuddy(m_searchKeys);
    m_searchKeys->setAccessibleName(tr("Search by keys"));
    m_searchKeys->setToolTip(tr("Press keys to see what they do"));
    auto *row = new QHBoxLayout;
    row->addWidget(m_search, 3);
    row->addWidget(label);
    row->addWidget(m_searchKeys, 2);
    layout->addLayout(row);
    connect(m_search, &QLineEdit::textChanged, this, &ShortcutsDialog::filter);
    connect(m_search, &QLineEdit::returnPressed, m_list, qOverload<>(&QWidget::setFocus));
    connect(m_searchKeys, &QKeySequenceEdit::keySequenceChanged, this, &ShortcutsDialog::filter);
}

void ShortcutsDialog::buildList(const PlaceOf &placeOf)
{
    m_list->setColumnCount(ColumnCount);
    m_list->setHeaderLabels({tr("Command"), tr("Where"), tr("Keys")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->setAccessibleName(tr("Commands"));
    for (const Commands::Command &command : m_table.commands()) {
        auto *item = new QTreeWidgetItem(m_list, {command.text, placeOf(command)});
        item->setIcon(NameColumn, command.icon);
        item->setData(NameColumn, Qt::UserRole, int(m_items.size()));
        m_items.append(item);
    }
    m_list->header()->setStretchLastSection(true);
    for (const auto &[column, percent] : {std::pair(NameColumn, 45), {PlaceColumn, 30}}) {
        m_list->resizeColumnToContents(column);
        m_list->setColumnWidth(column, std::min(m_list->columnWidth(column), width() * percent / 100)); // keys are seen
    }
    connect(m_list, &QTreeWidget::currentItemChanged, this, &ShortcutsDialog::showEditor);
    connect(m_list, &QTreeWidget::itemActivated, this, [this] {
        if (m_edits.isEmpty())
            addField({});
        m_edits.constFirst()->setFocus();
    });
}

void ShortcutsDialog::buildEditor(QVBoxLayout *layout)
{
    QFont bold = font();
    bold.setBold(true);
    m_heading->setFont(bold);
    m_heading->setTextFormat(Qt::PlainText);
    m_warning->setTextFormat(Qt::PlainText);
    m_warning->setWordWrap(true);
    auto *icon = new QLabel;
    icon->setPixmap(themedIcon(QStringLiteral(":/Warning")).pixmap(16));
    auto *warning = new QWidget;
    auto *warningRow = new QHBoxLayout(warning);
    warningRow->setContentsMargins({});
    warningRow->addWidget(icon, 0, Qt::AlignTop);
    warningRow->addWidget(m_warning, 1);
    warningRow->addWidget(m_takeAway, 0, Qt::AlignTop);
    m_takeAway->setToolTip(tr("Leaves these keys to this command alone"));

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_add);
    buttons->addWidget(m_reset);
    buttons->addStretch();
    m_reset->setToolTip(tr("Gives the command its usual keys"));
    layout->addWidget(m_heading);
    layout->addLayout(m_fields);
    layout->addLayout(buttons);
    layout->addWidget(warning);
    connect(m_add, &QPushButton::clicked, this, [this] {
        addField({});
        m_edits.constLast()->setFocus();
    });
    connect(m_reset, &QPushButton::clicked, this, [this] {
        m_table.reset(current());
        showAllRows();
        showEditor();
    });
    connect(m_takeAway, &QPushButton::clicked, this, &ShortcutsDialog::takeAwayDoubles);
}

void ShortcutsDialog::buildButtons(QVBoxLayout *layout)
{
    auto *box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton *resetAll = box->addButton(tr("Reset &All"), QDialogButtonBox::ResetRole);
    resetAll->setToolTip(tr("Gives all commands their usual keys"));
    layout->addWidget(box);
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(resetAll, &QPushButton::clicked, this, [this] {
        m_table.resetAll();
        showAllRows();
        showEditor();
    });
}

void ShortcutsDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || qobject_cast<QPushButton *>(focusWidget())) // in the search and the list it leads on
        QDialog::keyPressEvent(event);
}

void ShortcutsDialog::filter()
{
    const QStringList words = m_search->text().simplified().split(u' ');
    const QKeySequence keys = m_searchKeys->keySequence();
    QTreeWidgetItem *first = nullptr;
    for (int command = 0; command < m_items.size(); ++command) {
        QTreeWidgetItem *item = itemOf(command);
        const QString text = item->text(NameColumn) + u' ' + item->text(PlaceColumn);
        const bool isMeant = (keys.isEmpty() || m_table.answersTo(command, keys))
            && std::ranges::all_of(words,
                                   [&](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
        item->setHidden(!isMeant);
        if (isMeant && !first)
            first = item;
    }
    if (first && (!m_list->currentItem() || m_list->currentItem()->isHidden()))
        m_list->setCurrentItem(first);
    if (m_list->currentItem())
        m_list->scrollToItem(m_list->currentItem());
}

int ShortcutsDialog::current() const
{
    return m_list->currentItem()->data(NameColumn, Qt::UserRole).toInt();
}

void ShortcutsDialog::showRow(int command)
{
    QTreeWidgetItem *item = itemOf(command);
    QFont font = m_list->font();
    font.setBold(m_table.isChanged(command));
    const bool hasDoubles = m_table.hasDoubles(command);
    item->setFont(KeysColumn, font);
    item->setText(KeysColumn, textOf(m_table.keysOf(command)));
    item->setIcon(KeysColumn, hasDoubles ? themedIcon(QStringLiteral(":/Warning")) : QIcon());
    item->setToolTip(KeysColumn, hasDoubles ? tr("Another command has these keys, too") : QString());
    item->setData(KeysColumn, Qt::AccessibleDescriptionRole, item->toolTip(KeysColumn));
}

void ShortcutsDialog::showAllRows()
{
    for (int command = 0; command < m_items.size(); ++command)
        showRow(command);
}

void ShortcutsDialog::showEditor()
{
    qDeleteAll(m_edits);
    m_edits.clear();
    const bool isShown = m_list->currentItem();
    for (QWidget *part : std::initializer_list<QWidget *>{m_heading, m_add})
        part->setEnabled(isShown);
    if (!isShown)
        return;
    const Commands::Command &command = m_table.commands().at(current());
    m_heading->setText(tr("Keys of “%1”").arg(command.text));
    const Commands::Keys keys = m_table.keysOf(current());
    for (const QKeySequence &key : keys)
        addField(key);
    if (keys.isEmpty())
        addField({});
    m_reset->setEnabled(m_table.isChanged(current()));
    showDoubles();
}

void ShortcutsDialog::addField(const QKeySequence &key)
{
    auto *edit = new QKeySequenceEdit(key);
    edit->setClearButtonEnabled(true);
    edit->setMinimumWidth(fontMetrics().averageCharWidth() * FieldWidth);
    edit->setAccessibleName(m_heading->text());
    edit->setToolTip(tr("Press the keys that shall do it"));
    m_fields->addWidget(edit, 0, Qt::AlignLeading);
    m_edits.append(edit);
    connect(edit, &QKeySequenceEdit::keySequenceChanged, this, &ShortcutsDialog::takeFields);
    if (m_edits.size() > 1)
        setTabOrder(m_edits.at(m_edits.size() - 2), edit);
    else
        setTabOrder(m_list, edit);
}

void ShortcutsDialog::takeFields()
{
    Commands::Keys keys;
    for (const QKeySequenceEdit *edit : std::as_const(m_edits))
        keys.append(edit->keySequence());
    m_table.setKeys(current(), keys);
    m_reset->setEnabled(m_table.isChanged(current()));
    showAllRows();
    showDoubles();
}

void ShortcutsDialog::showDoubles()
{
    QStringList lines;
    const Commands::Keys keys = m_table.keysOf(current());
    for (const QKeySequence &key : keys) {
        const QList<int> doubles = m_table.doublesOf(current(), key);
        for (const int other : doubles)
            lines.append(tr("%1 is a key of “%2” (%3), too. Neither would do anything.")
                             .arg(key.toString(QKeySequence::NativeText), itemOf(other)->text(NameColumn),
                                  itemOf(other)->text(PlaceColumn)));
    }
    m_warning->setText(lines.join(u'\n'));
    m_warning->parentWidget()->setVisible(!lines.isEmpty());
}

void ShortcutsDialog::takeAwayDoubles()
{
    const Commands::Keys keys = m_table.keysOf(current());
    for (const QKeySequence &key : keys) {
        const QList<int> doubles = m_table.doublesOf(current(), key);
        for (const int other : doubles)
            m_table.removeKey(other, key);
    }
    showAllRows();
    showDoubles();
}
