#include "store/extrasfile.h"

#include "model/projectextras.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QtTest>

#include <optional>

class TestExtrasFile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        m_project = (*m_folder)("game.quenmora");
        QCOMPARE(ExtrasFile::pathFor(m_project), path());
    }

    void writesOneTextAndOnlyWhenThereIsSomething()
    {
        ProjectExtras extras;
        ExtrasFile file;
        QCOMPARE(file.save(extras, m_project), QString());
        QVERIFY(!QFile::exists(path()));
        extras.setSection("stamps", QJsonArray{1, 2});
        extras.setSection("imports", QJsonObject{{"b", 1}, {"a", true}});
        QCOMPARE(file.save(extras, m_project), QString());
        QCOMPARE(readFile(path()),
                 QByteArray("{\n    \"imports\": {\n        \"a\": true,\n        \"b\": 1\n    },\n"
                            "    \"stamps\": [\n        1,\n        2\n    ]\n}\n"));
        QVERIFY(extras.changedSections().isEmpty());

        ProjectExtras again;
        ExtrasFile other;
        QCOMPARE(other.load(again, m_project), QString());
        QCOMPARE(again.sections(), extras.sections());
        QVERIFY(again.changedSections().isEmpty());
        const QString copy = (*m_folder)("copy.quenmora");
        QCOMPARE(other.save(again, copy), QString());
        QVERIFY2(QFile::exists(ExtrasFile::pathFor(copy)), "another file has all of it, though nothing changed");
    }

    void takesOverWhatAnotherProgramChanged()
    {
        (void)writeFile(path(), R"({"ours": 1, "theirs": 1, "gone": 1, "unknown": {"x": null}})");
        ProjectExtras extras;
        ExtrasFile file;
        QCOMPARE(file.load(extras, m_project), QString());
        extras.setSection("ours", 2);
        extras.setSection("gone", QJsonValue::Undefined);
        (void)writeFile(path(), R"({"ours": 3, "theirs": 4, "gone": 5, "unknown": {"x": null}, "new": 6})");
        QStringList told;
        connect(&extras, &ProjectExtras::sectionChanged, this, [&told](const QString &name) { told.append(name); });
        QCOMPARE(file.save(extras, m_project), QString());
        const QJsonObject expected = object(R"({"ours": 2, "theirs": 4, "unknown": {"x": null}, "new": 6})");
        QCOMPARE(object(readFile(path())), expected);
        QCOMPARE(extras.sections(), expected);
        told.sort();
        QCOMPARE(told, QStringList({"new", "theirs"}));
    }

    void costsOnlyWhatItHeldWhenItIsDamaged_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        QTest::newRow("cut off") << QByteArray("{\n\"a\": 1,\n") << "line 3";
        QTest::newRow("a list") << QByteArray("[1]") << "it holds no object";
        QTest::newRow("too deep") << QByteArray(100'000, '[') << "line 1";
        QTest::newRow("too large") << QByteArray(ExtrasFile::MaxBytes + 1, ' ') << "at most 16 MiB";
    }
    void costsOnlyWhatItHeldWhenItIsDamaged()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, reason);
        (void)writeFile(path(), bytes);
        ProjectExtras extras;
        ExtrasFile file;
        const QString problem = file.load(extras, m_project);
        QVERIFY2(problem.contains(reason), qPrintable(problem));
        QVERIFY(extras.sections().isEmpty());
        QCOMPARE(file.save(extras, m_project), QString());
        QCOMPARE(readFile(path()), bytes); // nothing to write: it stays
        extras.setSection("a", 1);
        QCOMPARE(file.save(extras, m_project), QString());
        QCOMPARE(object(readFile(path())), (QJsonObject{{"a", 1}}));
        QCOMPARE(readFile(path() + ".bad"), bytes);
    }

private:
    [[nodiscard]] QString path() const { return (*m_folder)("game.quenmora-extras.json"); }
    [[nodiscard]] static QJsonObject object(const QByteArray &text) { return QJsonDocument::fromJson(text).object(); }

    std::optional<TemporaryFolder> m_folder;
    QString m_project;
};

QUENMORA_TEST_MAIN(TestExtrasFile)

#include "tst_extrasfile.moc"
