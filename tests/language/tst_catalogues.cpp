// That every text of the sources can be translated, and is.

#include "language/catalogues.h"
#include "support/catalogue.h"
#include "support/lupdate.h"
#include "support/modeltools.h"
#include "support/platform.h"
#include "support/testmain.h"

#include <QtTest>

#include <algorithm>

namespace {

/// The calls whose texts are translated, or are none for people who use the program.
const QSet<QString> Translating{"tr", "translate", "QT_TRANSLATE_NOOP", "QT_TR_NOOP"};
const QSet<QString> Logging{"qDebug",  "qInfo",         "qWarning",      "qCritical",
                            "fprintf", "setObjectName", "setStyleSheet", "static_assert"};

/// Calls that show people what they are given, by their names.
const QRegularExpression
    Showing("^(set(\\w*Text|\\w*Tip|WhatsThis|\\w*Title|Prefix|Suffix|Header|HeaderLabels|\\w+HeaderLabels|TextColumn|"
            "AccessibleName|AccessibleDescription)|add(Action|Menu|Item|Row|Tab|Button)|insertItem|showMessage|tell|"
            "fail|failed|Failure|information|warning|question|critical|beginMacro|QUndoCommand|QAction|QMenu|QLabel|"
            "QPushButton|QCheckBox|QRadioButton|QGroupBox|QDockWidget)$");

/// Files full of words of other languages than people's.
const QStringList FilesOfWords{"command/description.cpp", "nextdata/names.cpp", "nextdata/sourcetext.cpp",
                               "model/tilesetformats.cpp"};

/// Texts that are the same in all languages: names, words of files and of logs, and what scripts read.
const QStringList Untranslated =
    QString("Quenmora|Corvandel|Quenmora/%1 (+%2)|daily|weekly|monthly|project|paletteid|map|tileset|tile %1|"
            "Columns:|Name:|Channels:|Debug|Info|Warning|Critical|Fatal|libpng warning:|Image index out of range|"
            "Open state.json failed|Open painting.json failed|Failed to open settings json file|"
            "The recipe is empty|; nothing was written")
        .split('|');

/// The texts of a source file that look as if people should read them and are in no call of tr(), with their lines.
QStringList textsWithoutTr(const QString &source)
{
    // comments, directives, strings, characters, names, and the rest
    static const QRegularExpression tokens("//[^\\n]*|/\\*.*?\\*/|^[ \\t]*#[^\\n]*|\"((?:\\\\.|[^\"\\\\\\n])*)\"|"
                                           "'(?:\\\\.|[^'\\\\])+'|[A-Za-z_]\\w*|\\S",
                                           QRegularExpression::DotMatchesEverythingOption
                                               | QRegularExpression::MultilineOption);
    static const QRegularExpression sentence(
        QStringLiteral("[A-Za-z]{2,}[,:;]? [a-z]{2,}|[A-Za-z]{2,} %\\d|^&?[A-Z][a-z&]{2,}(…|\\.{3}|:)?$"));
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{2}"));
    const QSet<QString> wrappers{"QStringLiteral", "QLatin1String", "QString", "arg"};
    QStringList found;
    QStringList calls; // that are open, outermost first
    QString before;
    for (auto all = tokens.globalMatch(source); all.hasNext();) {
        const QRegularExpressionMatch match = all.next();
        const QString token = match.captured();
        const QChar first = token.front();
        if (first == u'#' || token.trimmed().startsWith(u'#') || token.startsWith("//") || token.startsWith("/*"))
            continue;
        if (first == u'(' || first == u'{') {
            calls.append(before);
        } else if ((first == u')' || first == u'}') && !calls.isEmpty()) {
            calls.removeLast();
        } else if (first == u'"') {
            const QString text = match.captured(1);
            const auto isIn = [&calls](const QSet<QString> &set) {
                return std::ranges::any_of(calls, [&set](const QString &call) { return set.contains(call); });
            };
            const auto taker = std::find_if(calls.crbegin(), calls.crend(),
                                            [&wrappers](const QString &call) { return !wrappers.contains(call); });
            const bool isShown =
                taker != calls.crend() && Showing.match(*taker).hasMatch() && word.match(text).hasMatch();
            if ((isShown || sentence.match(text).hasMatch()) && !isIn(Translating) && !isIn(Logging)
                && !Untranslated.contains(text))
                found.append(
                    QStringLiteral("line %1: %2").arg(source.left(match.capturedStart()).count(u'\n') + 1).arg(text));
        }
        before = token;
    }
    return found;
}

/// What stands for something else in a text, sorted: what is inserted, and tags.
QStringList insertsOf(const QString &text)
{
    static const QRegularExpression insert(QStringLiteral("%L?[0-9n]|</?[a-z]+|\\(\\*[^)]*\\)"));
    QStringList inserts;
    for (auto all = insert.globalMatch(text); all.hasNext();)
        inserts.append(all.next().captured());
    inserts.sort();
    return inserts;
}

/// What is wrong with a translation; empty when nothing is.
QString faultOf(const CatalogueMessage &message)
{
    static const QRegularExpression mnemonic(QStringLiteral("&(?![a-z]+;)\\w"),
                                             QRegularExpression::UseUnicodePropertiesOption);
    for (const QString &form : message.forms) {
        if (form.isEmpty())
            return "empty";
        if (insertsOf(form) != insertsOf(message.source))
            return "inserts something else";
        if (mnemonic.match(form).hasMatch() != mnemonic.match(message.source).hasMatch())
            return "mnemonic";
        if (message.source.endsWith(u':') != form.endsWith(u':')
            || message.source.endsWith(u' ') != form.endsWith(u' '))
            return "end";
    }
    return {};
}

} // namespace

class TestCatalogues : public QObject
{
    Q_OBJECT

private slots:
    void choosesALanguage()
    {
        const std::pair<QStringList, const char *> cases[]{{{"de-DE", "de"}, "de"},
                                                           {{"de-AT"}, "de"},
                                                           {{"pt-BR", "pt"}, "pt_BR"},
                                                           {{"pt-PT"}, "pt_BR"},
                                                           {{"ja-JP", "cs"}, "cs"},
                                                           {{"en-GB", "de"}, ""},
                                                           {{"C"}, ""},
                                                           {{"ja"}, ""},
                                                           {{}, ""}};
        for (const auto &[wanted, chosen] : cases)
            QCOMPARE(Catalogues::suiting(wanted, Catalogues::available()), chosen);
    }

    void catalogueIsComplete_data()
    {
        QTest::addColumn<QString>("file");
        const QDir folder(SOURCE_FOLDER "/resources/languages");
        for (const QString &file : folder.entryList({"quenmora_*.ts"}))
            QTest::newRow(qPrintable(file)) << folder.filePath(file);
        QCOMPARE(folder.entryList({"quenmora_*.ts"}).size(), Catalogues::available().size());
    }

    /// All texts of the sources are there, and no others; nothing is left open, and what is inserted stays.
    void catalogueIsComplete()
    {
        if (!Platform::HasLupdate)
            QSKIP("There is no lupdate, which finds all texts");
        QFETCH(const QString, file);
        const QString copy = m_folder.filePath(QFileInfo(file).fileName());
        QVERIFY(QFile::copy(file, copy));
        QCOMPARE(Lupdate::run(copy), QString());
        QStringList faults;
        QSet<QString> wanted;
        for (const CatalogueMessage &message : CatalogueMessage::allOf(copy)) {
            wanted.insert(message.name());
            if (const QString fault = message.isFinished ? faultOf(message) : "not translated"; !fault.isEmpty())
                faults.append(fault + " - " + message.name() + " - " + message.forms.join(" | "));
        }
        QVERIFY(wanted.size() > 1000);
        for (const CatalogueMessage &message : CatalogueMessage::allOf(file)) {
            if (!wanted.contains(message.name()))
                faults.append("in no source any more - " + message.name());
        }
        for (const QString &fault : faults)
            qWarning("%s", qPrintable(fault.simplified()));
        QVERIFY2(faults.isEmpty(), "see docs/translating.md; the target catalogues takes the texts of the sources");
    }

    void textsGoThroughTr()
    {
        // what the search finds, and what it does not
        QCOMPARE(textsWithoutTr("f(\"Two words\"); // \"No text here\"\nlabel->setText(QStringLiteral(\"tile\"));"),
                 QStringList({"line 1: Two words", "line 2: tile"}));
        QCOMPARE(
            textsWithoutTr("#include \"a b.h\"\nf(tr(\"Two words\").arg(\"x\")); qInfo(\"Two words\"); g(\"id\");"),
            QStringList());
        QStringList found;
        const QDir folder(SOURCE_FOLDER);
        for (QDirIterator files(folder.path(), {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
             files.hasNext();) {
            const QString path = files.next();
            const QString name = folder.relativeFilePath(path);
            for (const QString &text :
                 FilesOfWords.contains(name) ? QStringList() : textsWithoutTr(QString::fromUtf8(readFile(path))))
                found.append(name + ' ' + text);
        }
        for (const QString &text : found)
            qWarning("%s", qPrintable(text));
        QVERIFY2(found.isEmpty(), "texts for people without tr(); what is the same in all languages is listed above");
    }

private:
    QTemporaryDir m_folder;
};

QUENMORA_TEST_MAIN(TestCatalogues)
#include "tst_catalogues.moc"
