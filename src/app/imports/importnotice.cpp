#include "app/imports/importnotice.h"

#include "model/plural.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

ImportNotice::ImportNotice(QWidget *parent) : QWidget(parent), m_text(new QLabel)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    m_text->setTextFormat(Qt::PlainText);
    layout->addWidget(m_text);
    const auto add = [this, layout](const QString &text, void (ImportNotice::*chosen)()) {
        auto *button = new QToolButton;
        button->setText(text);
        button->setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard where it is
        layout->addWidget(button);
        connect(button, &QToolButton::clicked, this, chosen);
    };
    add(tr("Import Again"), &ImportNotice::accepted);
    add(tr("Not Now"), &ImportNotice::dismissed);
    hide();
}

void ImportNotice::tell(const QStringList &files)
{
    if (!files.isEmpty()) {
        m_text->setText(files.size() == 1
                            ? tr("%1 changed since it was imported").arg(files.constFirst())
                            : tr("%n files changed since they were imported", nullptr, plural(files.size())));
        m_text->setToolTip(files.join(u'\n'));
    }
    setVisible(!files.isEmpty());
}
