#pragma once

#include <QAbstractScrollArea>
#include <QFocusEvent>

/// A list view that the keyboard can enter without choosing anything: Qt's own views make their first item
/// the current one then, which elsewhere counts as the person's choice.
template <typename View>
class QuietList : public View
{
public:
    using View::View;

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        if (this->currentIndex().isValid())
            View::focusInEvent(event);
        else
            QAbstractScrollArea::focusInEvent(event);
    }
};
