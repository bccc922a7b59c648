#pragma once

#include "support/catalogue.h"

#include <QtCore>

#include <algorithm>

/// A language that shows which texts are not translated, and which are cut where others are longer than the English:
/// each text of a catalogue has accents, is half as long again, and stands between brackets. Of the program's texts
/// only those are in it that stand in the catalogue under the context by which the program asks for them; Qt's are all.
class PseudoLanguage : public QTranslator
{
public:
    static constexpr QChar Open = u'⟦';
    static constexpr QChar Close = u'⟧';

    explicit PseudoLanguage(const QString &catalogue)
    {
        for (const CatalogueMessage &message : CatalogueMessage::allOf(catalogue))
            m_texts.insert({message.context, message.source});
    }

    [[nodiscard]] bool isEmpty() const override { return m_texts.isEmpty(); }

    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        const QString place = QString::fromLatin1(context);
        const bool isQts = place.startsWith(u'Q') || place == QStringLiteral("CloseButton");
        if (m_texts.contains({place, text}))
            return translated(text);
        if (!isQts && !text.isEmpty())
            m_strangers.insert(place + QStringLiteral(": ") + text);
        const bool isDirection = text.startsWith(QStringLiteral("QT_"));
        return isQts && !isDirection ? translated(text) : QString();
    }

    /// What was asked for and is not in the catalogue.
    [[nodiscard]] QStringList strangers() const { return QStringList(m_strangers.cbegin(), m_strangers.cend()); }

    [[nodiscard]] static QString translated(const QString &text)
    {
        static const QString plain = QStringLiteral("aceginorsuyzACEGINORSUYZ");
        static const QString accented = QStringLiteral("áčéğíñöřšüýžÁČÉĞÍÑÖŘŠÜÝŽ");
        QString result = Open;
        bool isFilter = false;
        bool isTag = false;
        for (qsizetype i = 0; i < text.size(); ++i) {
            const QChar letter = text[i];
            const QChar before = i > 0 ? text[i - 1] : QChar();
            isFilter = (isFilter || (before == u'(' && letter == u'*')) && letter != u')';
            isTag = (isTag || (letter == u'<' && i + 1 < text.size() && text[i + 1].isLetter())) && before != u'>';
            const bool isKept =
                isFilter || isTag || before == u'%' || before == u'&' || (before == u'L' && letter == u'n');
            const qsizetype place = isKept ? -1 : plain.indexOf(letter);
            result += place < 0 ? letter : accented[place];
        }
        const qsizetype letters =
            std::count_if(text.cbegin(), text.cend(), [](QChar letter) { return letter.isLetter(); });
        return result + QString((letters * 2 + 3) / 5, u'·') + Close;
    }

    /// What of a text is not between brackets.
    [[nodiscard]] static QString untranslated(const QString &text)
    {
        QString rest;
        int depth = 0;
        for (const QChar letter : text) {
            if (letter == Close)
                depth = std::max(depth - 1, 0);
            else if (letter == Open)
                ++depth;
            else if (depth == 0)
                rest += letter;
        }
        return rest;
    }

private:
    QSet<std::pair<QString, QString>> m_texts; ///< with their contexts
    mutable QSet<QString> m_strangers;
};
