#include "preferences/basepreferencespage.h"

BasePreferencesPage::BasePreferencesPage(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // its fields have the keyboard
    setWidgetResizable(true);
}
