#pragma once

#include <QJsonObject>
#include <QScrollArea>

/// One page of the preferences dialog. Its widgets are the settings: the rest of the program reads
/// them from the page, and the page writes and reads them as one JSON object.
///
/// The window title and icon are those of the page's entry in the dialog's list.
class BasePreferencesPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit BasePreferencesPage(QWidget *parent = nullptr);

    [[nodiscard]] virtual QJsonObject toJson() const = 0;
    /// Applies settings; what a missing member, or one of the wrong type, means is the page's own rule.
    virtual void fromJson(const QJsonObject &settings) = 0;
};
