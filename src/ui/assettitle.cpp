#include "ui/assettitle.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace {

/// Completes the title of the native window, which does not exist before the dialog is shown.
class TitleBar final : public QObject
{
public:
    TitleBar(QWidget &dialog, const QString &asset) : QObject(&dialog), m_asset(asset)
    {
        dialog.installEventFilter(this);
    }

    void setAsset(const QString &asset) { m_asset = asset; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *dialog = static_cast<QWidget *>(watched);
        if (event->type() == QEvent::Show && dialog->windowHandle()) {
            dialog->windowHandle()->setTitle(
                QCoreApplication::translate("TitleBar", "%1: %2").arg(dialog->windowTitle(), m_asset));
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QString m_asset;
};

} // namespace

void nameInTitleBar(QWidget &dialog, const QString &asset)
{
    for (QObject *child : dialog.children()) {
        if (auto *bar = dynamic_cast<TitleBar *>(child)) {
            bar->setAsset(asset);
            return;
        }
    }
    new TitleBar(dialog, asset);
}
