#include "support/Files.h"
#include "support/Literals.h"
#include "support/TestProgram.h"
#include "support/Tool.h"

#include <QTemporaryDir>
#include <QTest>

using Tool::SResult;

namespace {

QByteArray documentWith(const QByteArray &entry)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<VornDeviceConfig version=\"1.0\">\n <Device>\n"
           "  <HardwareId>KD3:KD3 Controller 8A:3:2:1</HardwareId>\n"
           "  <Class>kd3</Class>\n  <Name>Line</Name>\n"
           "  <ConfigurationName>STD</ConfigurationName>\n"
           "  <Config>\n   <Files>\n    <File>\n"
        + entry + "    </File>\n   </Files>\n  </Config>\n </Device>\n</VornDeviceConfig>\n";
}

QByteArray fieldsOf(const QByteArray &name)
{
    return "<Name>" + name + ".csv</Name><Comment>" + name + " comment</Comment><DeviceDir>/velkor/"
        + name + "/</DeviceDir><ProjectDir>" + name + "/</ProjectDir>";
}

} // namespace

/** Of two elements of one name in an entry the first one counts, for every command. */
class tst_vrndevice_repeated : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void firstIsShown_data();
    void firstIsShown();
    void firstIsChecked();
    void firstIsStaged();
    void firstIsCompared();
    void firstIsSet();

private:
    SResult run(const QString &invocation) const
    {
        return Tool::run(m_directory.path(), invocation.split(u' '));
    }
    QString at(const QString &name) const { return m_directory.filePath(name); }

    QTemporaryDir m_directory;
};

void tst_vrndevice_repeated::initTestCase()
{
    QVERIFY(m_directory.isValid());
    QVERIFY(Files::write(at(u"both"_s), documentWith(fieldsOf("first") + fieldsOf("second"))));
    QVERIFY(Files::write(at(u"one"_s), documentWith(fieldsOf("first"))));
    for (const QString &name : {u"first"_s, u"second"_s}) {
        QVERIFY(QDir().mkpath(at(name + u'/' + name)));
        QVERIFY(Files::write(at(name + u'/' + name + u'/' + name + u".csv"_s), "content"));
    }
}

void tst_vrndevice_repeated::firstIsShown_data()
{
    QTest::addColumn<QString>("invocation");
    for (const QString &invocation :
         {u"get both"_s, u"get both files[first.csv]"_s, u"show both"_s, u"show both --json"_s,
          u"place both"_s, u"place both --json"_s, u"tree both"_s, u"tree both --json"_s}) {
        QTest::newRow(qPrintable(invocation)) << invocation;
    }
}

void tst_vrndevice_repeated::firstIsShown()
{
    QFETCH(const QString, invocation);
    const SResult result = run(invocation);
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.output.contains(u"first"_s), qPrintable(result.output));
    QVERIFY2(!result.output.contains(u"second"_s), qPrintable(result.output));
}

void tst_vrndevice_repeated::firstIsChecked()
{
    QCOMPARE(run(u"check one --project first"_s).exitCode, 0);
    const SResult found = run(u"check both --project first"_s);
    QVERIFY2(!found.output.contains(u"missing"_s), qPrintable(found.output));
    const SResult missing = run(u"check both --project second"_s);
    QCOMPARE(missing.exitCode, 1);
    QVERIFY2(missing.output.contains(u"first/first.csv"_s), qPrintable(missing.output));
}

void tst_vrndevice_repeated::firstIsStaged()
{
    const SResult result = run(u"stage both --project first --to root"_s);
    QVERIFY2(result.exitCode == 0, qPrintable(result.errors));
    QCOMPARE(Files::read(at(u"root/velkor/first/first.csv"_s)), QByteArray("content"));
    QVERIFY(!QFileInfo::exists(at(u"root/velkor/second"_s)));
}

void tst_vrndevice_repeated::firstIsCompared()
{
    QVERIFY(Files::write(at(u"other"_s), documentWith(fieldsOf("second"))));
    const SResult same = run(u"diff both one"_s);
    QCOMPARE(same.output, QString());
    QCOMPARE(same.exitCode, 0);
    QCOMPARE(run(u"diff both other"_s).output, run(u"diff one other"_s).output);
}

void tst_vrndevice_repeated::firstIsSet()
{
    QVERIFY(QFile::copy(at(u"both"_s), at(u"changed"_s)));
    QCOMPARE(run(u"set changed files[first.csv].comment third"_s).exitCode, 0);
    QByteArray expected = Files::read(at(u"both"_s));
    expected.replace("first comment", "third");
    QVERIFY2(Files::read(at(u"changed"_s)).simplified().replace("> <", "><")
                 == expected.simplified().replace("> <", "><"),
             Files::read(at(u"changed"_s)).constData());
}

REGISTER_GUILESS_TEST(tst_vrndevice_repeated)
#include "tst_vrndevice_repeated.moc"
