#pragma once

#include <QStringList>

class QCoreApplication;

/// The languages into which the program's texts are translated, which are written in English.
namespace Catalogues {

/// Gives the application the texts of the language that the system is set to, and Qt's own texts in the same, where
/// both are there. To be called once the application exists, before any text is made.
void install(QCoreApplication &application);

/// Which of the catalogues, such as "de" and "pt_BR", serves people who want one of these languages, such as "pt-PT"
/// and "en", best first. Empty for English, and when there is none.
[[nodiscard]] QString suiting(const QStringList &wanted, const QStringList &available);

/// The languages that there are catalogues of.
[[nodiscard]] QStringList available();

} // namespace Catalogues
