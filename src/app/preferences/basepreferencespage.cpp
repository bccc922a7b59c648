#include "app/preferences/basepreferencespage.h"

BasePreferencesPage::BasePreferencesPage(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
}
