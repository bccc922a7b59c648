#include "app/recoverylist.h"

#include "app/recoveryoffers.h"
#include "app/shownpath.h"
#include "model/projectpicture.h"
#include "ui/plaintext.h"
#include "ui/question.h"
#include "ui/svgiconengine.h"

#include <QDir>
#include <QFrame>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int LeastTextWidth = 100;
constexpr int CardWidth = 400;
constexpr int MostHeight = 400; ///< of the list, in which more than a few cards scroll

/// A line of plain text, which may come from a file and be longer than there is room; then it says the whole in its
/// tool tip.
class Line final : public QLabel
{
public:
    explicit Line(const QString &text, QPalette::ColorRole role = QPalette::WindowText) : m_whole(text.simplified())
    {
        setTextFormat(Qt::PlainText);
        setForegroundRole(role);
        setMinimumWidth(LeastTextWidth);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        setText(m_whole);
    }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        const QString shown = fontMetrics().elidedText(m_whole, Qt::ElideMiddle, width());
        setText(shown);
        setToolTip(shown == m_whole ? QString() : plainText(m_whole));
        QLabel::resizeEvent(event);
    }

private:
    QString m_whole;
};

Line *heading(const QString &text)
{
    auto *line = new Line(text);
    QFont font = line->font();
    font.setBold(true);
    line->setFont(font);
    return line;
}

Line *detail(const QString &text)
{
    return new Line(text, QPalette::PlaceholderText);
}

QString whereSaved(const QString &file)
{
    return file.isEmpty() ? RecoveryList::tr("Never saved") : shownPath(file);
}

QString whenCopied(const QDateTime &time)
{
    const QDateTime local = time.toLocalTime();
    const QString format = QLocale().timeFormat(QLocale::ShortFormat).remove(QStringLiteral(":ss"));
    const QString clock = QLocale().toString(local.time(), format);
    const qint64 days = local.date().daysTo(QDate::currentDate());
    if (days == 0)
        return RecoveryList::tr("As it was today at %1").arg(clock);
    if (days == 1)
        return RecoveryList::tr("As it was yesterday at %1").arg(clock);
    return RecoveryList::tr("As it was on %1 at %2").arg(QLocale().toString(local.date(), QLocale::ShortFormat), clock);
}

/// The picture in the middle of its place, a pixel as large as a point on every screen.
QPixmap framed(const QImage &picture, qreal ratio)
{
    QPixmap place(ProjectPictureSize * ratio);
    place.setDevicePixelRatio(ratio);
    place.fill(Qt::transparent);
    QPainter painter(&place);
    painter.drawImage(QPoint((ProjectPictureSize.width() - picture.width()) / 2,
                             (ProjectPictureSize.height() - picture.height()) / 2),
                      picture);
    return place;
}

/// A picture, and what there is to say about it beside it.
QFrame *card(const QPixmap &picture, const QList<QLabel *> &lines, QLayout *buttons = nullptr)
{
    auto *image = new QLabel;
    image->setFixedSize(ProjectPictureSize);
    image->setAlignment(Qt::AlignCenter);
    image->setPixmap(picture);
    auto *text = new QVBoxLayout;
    text->setSpacing(3);
    for (QLabel *line : lines)
        text->addWidget(line);
    text->addStretch();
    if (buttons)
        text->addLayout(buttons);

    auto *frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setBackgroundRole(QPalette::Base);
    frame->setAutoFillBackground(true);
    frame->setFixedWidth(CardWidth);
    auto *layout = new QHBoxLayout(frame);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(12);
    layout->addWidget(image);
    layout->addLayout(text);
    return frame;
}

QFrame *damagedCard(const RecoveryOffers::Damaged &damaged)
{
    const QString name = damaged.projectName.isEmpty() ? RecoveryList::tr("A project") : damaged.projectName;
    return card(themedIcon(QStringLiteral(":/Warning")).pixmap(32, 32),
                {heading(name), new Line(RecoveryList::tr("The copy is damaged and was put aside:")),
                 detail(QDir::toNativeSeparators(damaged.folder))});
}

} // namespace

RecoveryList::RecoveryList(RecoveryOffers *offers, QWidget *parent)
    : QWidget(parent)
    , m_offers(offers)
    , m_mayDiscard([this](const QString &projectName) {
        return askYesOrNo(this, tr("Discard Copy"), tr("Discard what can be recovered of %1?").arg(projectName),
                          tr("What was not saved is lost then."));
    })
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 12);
    auto *title = new QLabel(tr("Not saved when Quenmora stopped"));
    title->setForegroundRole(QPalette::PlaceholderText);
    title->setContentsMargins(4, 0, 0, 0);
    layout->addWidget(title);
    m_area = new QScrollArea;
    m_area->setFocusPolicy(Qt::NoFocus); // its buttons have the keyboard
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *cards = new QWidget;
    m_cards = new QVBoxLayout(cards);
    m_cards->setContentsMargins({});
    m_area->setWidget(cards);
    layout->addWidget(m_area);
    connect(offers, &RecoveryOffers::changed, this, &RecoveryList::rebuild);
    rebuild();
}

void RecoveryList::setDiscardCallback(std::function<bool(const QString &)> mayDiscard)
{
    m_mayDiscard = std::move(mayDiscard);
}

void RecoveryList::rebuild()
{
    while (QLayoutItem *entry = m_cards->takeAt(0)) {
        entry->widget()->hide();
        entry->widget()->deleteLater(); // a button of it may have been clicked just now
        delete entry;
    }
    int index = 0;
    for (const RecoveryCopy &copy : m_offers->copies())
        m_cards->addWidget(cardFor(index++, copy));
    for (const RecoveryOffers::Damaged &damaged : m_offers->damaged())
        m_cards->addWidget(damagedCard(damaged));
    const QSize size = m_cards->sizeHint();
    const bool scrolls = size.height() > MostHeight;
    m_area->setFixedSize(size.width() + (scrolls ? m_area->verticalScrollBar()->sizeHint().width() : 0),
                         std::min(size.height(), MostHeight));
    setVisible(m_cards->count() > 0);
}

QWidget *RecoveryList::cardFor(int index, const RecoveryCopy &copy)
{
    const RecoveryManifest &manifest = copy.manifest();
    auto *recover = new QPushButton(tr("Recover"));
    recover->setAccessibleName(tr("Recover %1").arg(manifest.projectName));
    recover->setToolTip(tr("Opens the project with the changes that were not saved"));
    connect(recover, &QPushButton::clicked, m_offers, [this, index] { m_offers->recover(index); });
    auto *discard = new QPushButton(tr("Discard…"));
    discard->setAccessibleName(tr("Discard %1").arg(manifest.projectName));
    connect(discard, &QPushButton::clicked, this, [this, index] { this->discard(index); });
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(recover);
    buttons->addWidget(discard);
    buttons->addStretch();

    const QImage picture = copy.picture();
    return card(
        picture.isNull() ? themedIcon(QStringLiteral(":/Project")).pixmap(32, 32)
                         : framed(picture, devicePixelRatioF()),
        {heading(manifest.projectName), detail(whereSaved(manifest.projectFile)), detail(whenCopied(manifest.time))},
        buttons);
}

void RecoveryList::discard(int index)
{
    if (m_mayDiscard(m_offers->copies()[size_t(index)].manifest().projectName))
        m_offers->discard(index);
}
