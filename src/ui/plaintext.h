#pragma once

#include <QObject>
#include <QString>

/// A text that somebody else wrote, such as a name from a file, for a place where Qt guesses whether a text is
/// rich: nothing in it looks like a tag or an entity any more, and it still reads the same.
///
/// Rich text fetches the pictures that it names, which may be any file, a pipe or a device among them.
[[nodiscard]] QString plainText(const QString &text);

/// A text as that of an action or a tab, where an ampersand would mark the letter behind it as a mnemonic.
[[nodiscard]] inline QString withoutMnemonic(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

/// Shows every tool tip of the application as it is written, also those that Qt makes of titles and file names.
class PlainToolTips : public QObject
{
    Q_OBJECT

public:
    /// Begins with it, for as long as the application runs.
    static void enforce();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;
};
