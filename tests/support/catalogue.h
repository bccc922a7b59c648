#pragma once

#include <QtCore>

/// A text of a .ts file.
struct CatalogueMessage
{
    QString context;
    QString source;
    QString comment; ///< that tells texts apart
    QStringList forms; ///< translations: one, or as many as the language has plural forms
    bool isCounted = false; ///< has plural forms
    bool isFinished = true;

    [[nodiscard]] QString name() const { return context + QStringLiteral(": ") + source + comment; }

    [[nodiscard]] static QList<CatalogueMessage> allOf(const QString &fileName)
    {
        QList<CatalogueMessage> messages;
        QFile file(fileName);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QXmlStreamReader xml(&file);
        QString context;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == u"name") {
                context = xml.readElementText();
            } else if (xml.name() == u"message") {
                messages.append({context, {}, {}, {}, xml.attributes().value("numerus") == u"yes"});
            } else if (xml.name() == u"source") {
                messages.last().source = xml.readElementText();
            } else if (xml.name() == u"comment") {
                messages.last().comment = xml.readElementText();
            } else if (xml.name() == u"translation") {
                messages.last().isFinished = !xml.attributes().hasAttribute("type");
                if (!messages.last().isCounted)
                    messages.last().forms.append(xml.readElementText());
            } else if (xml.name() == u"numerusform") {
                messages.last().forms.append(xml.readElementText());
            }
        }
        return messages;
    }
};
