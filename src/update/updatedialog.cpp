#include "update/updatedialog.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace {

/// The address when it is one of the web, else none: the feed must not start other programs or open
/// files of this machine.
QUrl webAddress(const QString &text)
{
    const QUrl address(text, QUrl::StrictMode);
    const bool web = address.scheme() == QLatin1String("https") || address.scheme() == QLatin1String("http");
    return web && !address.host().isEmpty() ? address : QUrl();
}

void browse(const QString &text)
{
    if (const QUrl address = webAddress(text); !address.isEmpty())
        QDesktopServices::openUrl(address);
}

/// A text of the feed, short enough for a label.
QString shortened(const QString &text)
{
    constexpr qsizetype longest = 60;
    return text.size() <= longest ? text : text.first(longest) + QChar(0x2026);
}

} // namespace

UpdateDialog::UpdateDialog(QWidget *parent)
    : QDialog(parent)
    , m_heading(new QLabel)
    , m_detail(new QLabel)
    , m_releaseNotes(new QPushButton(tr("Release Notes…")))
    , m_download(new QPushButton(tr("Download…")))
{
    setWindowTitle(tr("Quenmora — update available"));

    auto *skip = new QPushButton(tr("Skip This Version"));
    auto *later = new QPushButton(tr("Later"));
    m_heading->setObjectName(QStringLiteral("heading"));
    m_detail->setObjectName(QStringLiteral("detail"));
    m_releaseNotes->setObjectName(QStringLiteral("releaseNotes"));
    m_download->setObjectName(QStringLiteral("download"));
    skip->setObjectName(QStringLiteral("skip"));
    later->setObjectName(QStringLiteral("later"));

    QFont large = m_heading->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.2);
    m_heading->setFont(large);
    for (QLabel *label : {m_heading, m_detail}) {
        // The texts come from a server: markup in them is no markup.
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    // Otherwise the button that has the focus would take the place of the default one.
    for (QPushButton *button : {m_releaseNotes, m_download, skip})
        button->setAutoDefault(false);
    later->setDefault(true);

    connect(m_releaseNotes, &QPushButton::clicked, this, [this] { browse(m_release.notesUrl); });
    connect(m_download, &QPushButton::clicked, this, [this] { browse(m_release.downloadsUrl); });
    connect(skip, &QPushButton::clicked, this, [this] {
        emit skipVersion(m_release.latest);
        reject();
    });
    connect(later, &QPushButton::clicked, this, &QDialog::reject);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_releaseNotes);
    buttons->addWidget(m_download);
    buttons->addStretch();
    buttons->addWidget(skip);
    buttons->addWidget(later);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_heading);
    layout->addWidget(m_detail);
    layout->addStretch();
    layout->addLayout(buttons);
    later->setFocus();
}

void UpdateDialog::setRelease(const Update::Release &release, const QString &currentVersion,
                              const QString &currentReleaseDate)
{
    m_release = release;
    m_heading->setText(tr("Quenmora %1 is available").arg(shortened(release.latest)));
    m_detail->setText(tr("You have %1 (built %2).\nThe new version was released %3.")
                          .arg(currentVersion, currentReleaseDate, shortened(release.released)));
    m_releaseNotes->setEnabled(!webAddress(release.notesUrl).isEmpty());
    m_download->setEnabled(!webAddress(release.downloadsUrl).isEmpty());
}
