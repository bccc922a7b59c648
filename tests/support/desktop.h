#pragma once

#include <QtWidgets>

/// The desktop of the person that a program is looked at for. Its screen is the platform's, which can be asked for with
/// QT_QPA_PLATFORM=offscreen:configfile=FILE, and its scale is QT_SCALE_FACTOR.
namespace Desktop {

/// Gives the program the letters and colours that the environment asks for: QUENMORA_LETTERS=14 in points, and
/// QUENMORA_DARK=1.
inline void apply()
{
    if (const int points = qEnvironmentVariableIntValue("QUENMORA_LETTERS"); points > 0) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    if (qEnvironmentVariableIntValue("QUENMORA_DARK")) {
        QPalette dark(QColor(53, 53, 56), QColor(43, 43, 46));
        dark.setColor(QPalette::Base, QColor(30, 30, 32));
        dark.setColor(QPalette::AlternateBase, QColor(38, 38, 40));
        dark.setColor(QPalette::Highlight, QColor(48, 108, 190));
        dark.setColor(QPalette::HighlightedText, Qt::white);
        QApplication::setPalette(dark);
    }
}

} // namespace Desktop
