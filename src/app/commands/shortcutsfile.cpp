#include "app/commands/shortcutsfile.h"

#include "model/sidefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

#include <optional>

namespace {

constexpr qint64 LargestFile = 1 << 20; // of what this program never fills with a tenth

/// Keys from their portable names; nothing when there is something else among them.
std::optional<Commands::Keys> keysFrom(const QJsonValue &value)
{
    if (!value.isArray())
        return {};
    Commands::Keys keys;
    const QJsonArray names = value.toArray();
    for (const QJsonValue &name : names) {
        const QKeySequence key = QKeySequence::fromString(name.toString(), QKeySequence::PortableText);
        bool isKnown = !key.isEmpty();
        for (int i = 0; i < key.count(); ++i)
            isKnown = isKnown && key[uint(i)].key() != Qt::Key_unknown && key[uint(i)].key() != 0;
        if (!isKnown)
            return {};
        if (!keys.contains(key))
            keys.append(key);
    }
    return keys;
}

} // namespace

QString ShortcutsFile::load()
{
    m_choices.clear();
    m_foreign = {};
    QFile file(m_path);
    if (!file.exists())
        return {};
    QString problem;
    QJsonDocument document;
    if (!file.open(QIODevice::ReadOnly)) {
        problem = file.errorString();
    } else {
        QJsonParseError error;
        document = QJsonDocument::fromJson(file.read(LargestFile + 1), &error);
        if (file.size() > LargestFile)
            problem = QCoreApplication::translate("ShortcutsFile", "The file is too large");
        else if (error.error != QJsonParseError::NoError)
            problem = error.errorString();
        else if (!document.isObject())
            problem = QCoreApplication::translate("ShortcutsFile", "The file does not hold keys by command");
        file.close();
    }
    if (!problem.isEmpty()) {
        const QString kept = SideFile::keepAside(m_path);
        return kept.isEmpty() ? problem : problem + u'\n' + kept;
    }
    const QJsonObject object = document.object();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        if (const auto keys = keysFrom(entry.value()))
            m_choices.insert(entry.key(), *keys);
        else
            m_foreign.insert(entry.key(), entry.value());
    }
    return {};
}

QString ShortcutsFile::save(const Commands::Choices &choices)
{
    m_choices = choices;
    QJsonObject object = m_foreign;
    for (auto choice = choices.begin(); choice != choices.end(); ++choice) {
        QJsonArray names;
        for (const QKeySequence &key : choice.value())
            names.append(key.toString(QKeySequence::PortableText));
        object.insert(choice.key(), names);
    }
    if (object.isEmpty()) {
        QFile file(m_path);
        return !file.exists() || file.remove() ? QString() : file.errorString();
    }
    QSaveFile file(m_path);
    file.setDirectWriteFallback(true); // for a file that is writable in a folder that is not
    if (file.open(QIODevice::WriteOnly))
        file.write(QJsonDocument(object).toJson());
    return file.commit() ? QString() : file.errorString();
}
