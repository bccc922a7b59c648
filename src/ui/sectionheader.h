#pragma once

#include <QWidget>

class QLabel;

/// The line above a part of a window: its title in bold.
class SectionHeader : public QWidget
{
    Q_OBJECT

public:
    explicit SectionHeader(const QString &text, QWidget *parent = nullptr);

    /// The part of a window that has this line at the top and the content below it, both of which it takes over.
    [[nodiscard]] static QWidget *over(QWidget *content, SectionHeader *header);

    [[nodiscard]] QString text() const;

public slots:
    void setText(const QString &text);

private:
    QLabel *m_text;
};
