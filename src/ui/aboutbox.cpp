#include "ui/aboutbox.h"

#include "ui/expandablesection.h"
#include "ui/svgiconengine.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QShowEvent>
#include <QVBoxLayout>

namespace {

constexpr int IconExtent = 96;

QPlainTextEdit *makeLicenceText(QWidget *parent)
{
    auto *text = new QPlainTextEdit(parent);
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setMinimumHeight(text->fontMetrics().height() * 12);
    text->setAccessibleName(AboutBox::tr("Licence of the icons"));
    QFile licence(QStringLiteral(":/licences/lucide"));
    if (licence.open(QIODevice::ReadOnly)) {
        // the lines of a paragraph are joined, so that they break where the window does
        static const QRegularExpression lineEnd(QStringLiteral("(?<!\\n)\\n(?!\\n)"));
        text->setPlainText(QString::fromUtf8(licence.readAll()).replace(lineEnd, QStringLiteral(" ")));
    }
    return text;
}

} // namespace

AboutBox::AboutBox(QWidget *parent) : QDialog(parent), m_status(new QLabel(this))
{
    const QString name = QApplication::applicationName();
    setWindowTitle(tr("About %1").arg(name));
    setModal(true);

    auto *icon = new QLabel(this);
    icon->setPixmap(themedIcon(QStringLiteral(":/Application")).pixmap({IconExtent, IconExtent}, devicePixelRatioF()));
    icon->setAlignment(Qt::AlignTop);

    auto *heading = new QLabel(QApplication::applicationDisplayName(), this);
    heading->setObjectName(QStringLiteral("heading"));
    QFont large = heading->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    large.setBold(true);
    heading->setFont(large);
    heading->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *purpose =
        new QLabel(tr("An editor for the graphics of ZX Spectrum Next games: palettes, tiles, maps, sprites, "
                      "animations and pictures."),
                   this);
    purpose->setWordWrap(true);
    m_status->setObjectName(QStringLiteral("status"));
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    auto *credits = new QLabel(tr("Built with Qt %1. Icons by Lucide.").arg(QString::fromLatin1(qVersion())), this);
    credits->setForegroundRole(QPalette::PlaceholderText);

    auto *texts = new QVBoxLayout;
    texts->addWidget(heading);
    texts->addWidget(purpose);
    texts->addWidget(m_status);
    texts->addWidget(credits);
    texts->addStretch();
    auto *top = new QHBoxLayout;
    top->setSpacing(top->spacing() * 2);
    top->addWidget(icon);
    top->addLayout(texts, 1);

    auto *licences = new ExpandableSection(tr("Licence of the icons"), this);
    licences->setContent(makeLicenceText(licences));
    connect(licences, &ExpandableSection::expandedChanged, this, &AboutBox::adjustSize);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &AboutBox::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(licences);
    layout->addStretch();
    layout->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 75);
}

QString AboutBox::status() const
{
    return m_status->text();
}

void AboutBox::setStatus(const QString &status)
{
    m_status->setText(status);
}

void AboutBox::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        emit shown();
    }
}
