#include "commissioning/CConfigurationCheck.h"
#include "support/AllocationCounter.h"
#include "support/BrokenDocuments.h"
#include "support/CheckedDocuments.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/Places.h"
#include "support/TestProgram.h"
#include "support/Threads.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace CheckedDocuments;

/** Each rule finds what it is there for, where it stands, and nothing else. */
class tst_cconfigurationcheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void validFiles_data();
    void validFiles();
    void exampleIsValid();
    void invalidFiles_data();
    void invalidFiles();
    void everyInvalidFileIsListed();
    void unreadable_data();
    void unreadable();
    void failuresArePosted();
    void versionsAreNotPosted();
    void oneObjectForManyDocuments();
    void longTextsAreShortened();
    void manyFindings();
    void endlessFindings();
    void deepDocument();
    void longReservedName();
    void nothingIsKept();
    void severalThreads();
};

void tst_cconfigurationcheck::validFiles_data()
{
    QTest::addColumn<QString>("path");
    const QDir directory(dataDirectory(u"valid"_s));
    for (const QString &name : directory.entryList({u"*.3deco"_s}, QDir::Files, QDir::Name)) {
        QTest::newRow(qPrintable(name)) << directory.filePath(name);
    }
}

void tst_cconfigurationcheck::validFiles()
{
    QFETCH(QString, path);
    CConfigurationCheck check;
    QVERIFY2(check.open(path), qPrintable(check.errorText()));
    QCOMPARE(told(check), QStringList());
}

void tst_cconfigurationcheck::exampleIsValid()
{
    const QString directory = Places::source("examples/packaging-line");
    CConfigurationCheck check;
    QVERIFY(check.open(directory + u"/DeviceConfiguration.3deco"_s));
    QCOMPARE(told(check), QStringList());
    QVERIFY(check.setProjectDirectory(directory));
    QVERIFY(check.open(directory + u"/DeviceConfiguration.3deco"_s));
    QCOMPARE(told(check), QStringList());
}

void tst_cconfigurationcheck::invalidFiles_data()
{
    QTest::addColumn<QStringList>("findings");
    for (const SInvalid &invalid : InvalidFiles) {
        QTest::newRow(invalid.name) << ::texts(invalid.findings);
    }
}

void tst_cconfigurationcheck::invalidFiles()
{
    QFETCH(QStringList, findings);
    const QString path = BrokenDocuments::path(QString::fromUtf8(QTest::currentDataTag()));
    CConfigurationCheck check;
    QVERIFY2(check.open(path), qPrintable(check.errorText()));
    QCOMPARE(told(check), findings);
    CConfigurationCheck fromMemory;
    QVERIFY(fromMemory.load(Files::read(path)));
    QCOMPARE(told(fromMemory), findings);
}

void tst_cconfigurationcheck::everyInvalidFileIsListed()
{
    QStringList listed;
    for (const SInvalid &invalid : InvalidFiles) {
        listed << QString::fromUtf8(invalid.name) + u".3deco"_s;
    }
    listed.sort();
    QStringList present = Files::names(BrokenDocuments::directory());
    present.sort();
    QCOMPARE(listed, present);
    QCOMPARE(BrokenDocuments::problems(), QStringList());
}

void tst_cconfigurationcheck::unreadable_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("errorText");
    QTest::newRow("not well-formed")
        << QByteArray("<VornDeviceConfig>\n <Device>\n</VornDeviceConfig>") << u":3:3: "_s;
    QTest::newRow("empty") << QByteArray() << u":1:1: "_s;
    QTest::newRow("other document type")
        << QByteArray("<VornDeviceSettings version=\"1.0\"/>")
        << u": The document type is 'VornDeviceSettings', but 'VornDeviceConfig' is required."_s;
}

void tst_cconfigurationcheck::unreadable()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, errorText);
    const MessageCatcher catcher;
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"a.3deco"_s);
    QVERIFY(Files::write(path, content));
    CConfigurationCheck check;
    QVERIFY(check.open(BrokenDocuments::path(u"many-faults"_s)));
    QVERIFY(!check.findings().isEmpty());
    QVERIFY(!check.open(path));
    QVERIFY2(check.errorText().startsWith(path + errorText), qPrintable(check.errorText()));
    QVERIFY(check.findings().isEmpty());

    QVERIFY(!check.load(content));
    const QString withoutName = errorText.mid(errorText.startsWith(u": "_s) ? 2 : 1);
    QVERIFY2(check.errorText().startsWith(withoutName), qPrintable(check.errorText()));

    QVERIFY(!check.open(directory.filePath(u"none"_s)));
    QVERIFY(check.errorText().startsWith(directory.filePath(u"none: "_s)));
    QVERIFY(!check.open(directory.path()));
    QVERIFY(!check.open(QString()));
    QVERIFY(!check.errorText().isEmpty());
    QVERIFY(check.open(validFile(u"minimal.3deco"_s)));
    QCOMPARE(check.errorText(), QString());
}

void tst_cconfigurationcheck::failuresArePosted()
{
    const MessageCatcher catcher;
    CConfigurationCheck check;
    QVERIFY(!check.load("<a/>"));
    QCOMPARE(catcher.criticals(), QStringList(check.errorText()));
    QVERIFY(catcher.warnings().isEmpty());
}

void tst_cconfigurationcheck::versionsAreNotPosted()
{
    const MessageCatcher catcher;
    CConfigurationCheck check;
    for (const QString &name : {u"version-later"_s, u"version-previous"_s, u"version-missing"_s,
                                u"many-faults"_s, u"dictionary-outside-device-directory"_s}) {
        QVERIFY(check.open(BrokenDocuments::path(name)));
    }
    QVERIFY(catcher.messages().isEmpty());
}

void tst_cconfigurationcheck::oneObjectForManyDocuments()
{
    CConfigurationCheck check;
    for (const SInvalid &invalid : InvalidFiles) {
        QVERIFY(check.open(BrokenDocuments::path(QString::fromUtf8(invalid.name))));
        QCOMPARE(told(check), ::texts(invalid.findings));
    }
    QVERIFY(check.open(validFile(u"complete.3deco"_s)));
    QCOMPARE(told(check), QStringList());
}

void tst_cconfigurationcheck::longTextsAreShortened()
{
    const QByteArray name(1000000, 'x');
    CConfigurationCheck check;
    QVERIFY(check.load(document("<Files><File mode=\"" + name + "\"><Name>" + name
                                + "/</Name><Nmae/></File></Files><Options>" + name
                                + "</Options><ExecutionPlugin>" + name + "</ExecutionPlugin>")));
    QCOMPARE(check.findings().size(), 5);
    for (const SConfigurationFinding &finding : check.findings()) {
        QVERIFY2(finding.message.size() < 400, qPrintable(finding.message));
        QVERIFY(finding.found.size() < 400);
        QVERIFY(finding.item.size() < 1100);
    }
}

void tst_cconfigurationcheck::manyFindings()
{
    const int count = 20000;
    CConfigurationCheck check;
    QVERIFY(check.load(document(
        "<Files>"
        + QByteArray("<File><Name>a</Name><DeviceDir>/velkor/</DeviceDir></File>").repeated(count)
        + "</Files><Options>" + QByteArray("-a ").repeated(count) + "</Options>")));
    QCOMPARE(check.findings().size(), 2 * (count - 1));
    QCOMPARE(check.findings().constFirst().item, u"files[a][2]"_s);
    QCOMPARE(check.findings().at(count - 2).item, u"files[a][%1]"_s.arg(count));
}

void tst_cconfigurationcheck::endlessFindings()
{
    const int most = 100000;
    CConfigurationCheck check;
    QVERIFY(check.load(document(QByteArray("<a/>").repeated(most))));
    QCOMPARE(check.findings().size(), most);
    QCOMPARE(check.findings().constLast().rule, u"element-unknown"_s);
    QVERIFY(check.load(document(QByteArray("<a/>").repeated(most + 2))));
    QCOMPARE(check.findings().size(), most + 1);
    QCOMPARE(check.findings().constLast().rule, u"findings-left-out"_s);
    QCOMPARE(check.findings().at(most - 1).rule, u"element-unknown"_s);
}

void tst_cconfigurationcheck::longReservedName()
{
    // No directory has such a name: it is not even looked whether it is reserved.
    for (const int size : {256, 1000000}) {
        QByteArray bytes = document(QByteArray());
        bytes.replace("STD", "setup" + QByteArray(size, 'x'));
        CConfigurationCheck check;
        QVERIFY(check.load(bytes));
        QCOMPARE(check.findings().size(), 1);
        QCOMPARE(check.findings().constFirst().rule, u"configuration-name-invalid"_s);
    }
}

void tst_cconfigurationcheck::deepDocument()
{
    const int depth = 200;
    CConfigurationCheck check;
    QVERIFY(check.load(document("<Plugins>" + QByteArray("<x>").repeated(depth)
                                + "<Plugin><Name>p</Name><Version>1</Version></Plugin>"
                                + QByteArray("</x>").repeated(depth)
                                + "</Plugins><ExecutionPlugin>p</ExecutionPlugin>")));
    QCOMPARE(check.findings().size(), 1);
    QCOMPARE(check.findings().constFirst().rule, u"element-unknown"_s);
}

void tst_cconfigurationcheck::nothingIsKept()
{
    if (!AllocationCounter::isAvailable()) {
        QSKIP("A sanitizer brings its own heap.", 0);
    }
    CConfigurationCheck check;
    const QString path = BrokenDocuments::path(u"many-faults"_s);
    QVERIFY(check.open(path));
    AllocationCounter::start();
    QVERIFY(check.open(path));
    const qint64 peakOfOne = AllocationCounter::counts().peakBytes;
    for (int i = 0; i < 50; ++i) {
        QVERIFY(check.open(path));
    }
    QVERIFY2(AllocationCounter::counts().peakBytes < 2 * peakOfOne,
             qPrintable(QString::number(AllocationCounter::counts().peakBytes)));
}

void tst_cconfigurationcheck::severalThreads()
{
    QVERIFY(Threads::run([](int i) {
        CConfigurationCheck check;
        const SInvalid &invalid = InvalidFiles.at(i);
        bool ok = true;
        for (int n = 0; n < 20; ++n) {
            ok = ok && check.open(BrokenDocuments::path(QString::fromUtf8(invalid.name)))
                && told(check) == ::texts(invalid.findings)
                && check.open(BrokenDocuments::path(u"configuration-name-setup"_s))
                && check.findings().size() == 1;
        }
        return ok;
    }));
}

REGISTER_GUILESS_TEST(tst_cconfigurationcheck)

#include "tst_cconfigurationcheck.moc"
