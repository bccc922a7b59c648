#include "language/catalogues.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

namespace {

const QString Folder = QStringLiteral(":/languages");
const QString Prefix = QStringLiteral("quenmora_");
const QString Suffix = QStringLiteral(".qm");

void add(QCoreApplication &application, const QString &file, const QString &folder)
{
    auto *translator = new QTranslator(&application);
    if (translator->load(file, folder))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

} // namespace

void Catalogues::install(QCoreApplication &application)
{
    const QString language = suiting(QLocale::system().uiLanguages(), available());
    if (language.isEmpty())
        return;
    // ours after Qt's, since what was installed last is asked first
    add(application, QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    add(application, Prefix + language, Folder);
}

QString Catalogues::suiting(const QStringList &wanted, const QStringList &available)
{
    for (QString name : wanted) {
        const QLocale::Language language = QLocale(name).language();
        if (name == QStringLiteral("C") || language == QLocale::English)
            return {};
        if (available.contains(name.replace(u'-', u'_')))
            return name;
        const auto isOfIt = [language](const QString &catalogue) { return QLocale(catalogue).language() == language; };
        if (const auto found = std::ranges::find_if(available, isOfIt); found != available.cend())
            return *found;
    }
    return {};
}

QStringList Catalogues::available()
{
    QStringList languages;
    const QStringList files = QDir(Folder).entryList({Prefix + u'*' + Suffix}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        languages.append(file.sliced(Prefix.size()).chopped(Suffix.size()));
    return languages;
}
