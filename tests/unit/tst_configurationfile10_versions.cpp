#include "configfile/CDeviceConfigurationFile10.h"
#include "support/Files.h"
#include "support/FullDocument.h"
#include "support/MessageCatcher.h"
#include "support/RecordingLog.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace FullDocument;

/** What is said about documents of other versions. */
class tst_configurationfile10_versions : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void versions_data();
    void versions();
    void versionIsSaved();
    void versionErrorDirectly_data();
    void versionErrorDirectly();
    void versionErrorOfBase_data();
    void versionErrorOfBase();

private:
    QString path(const QString &name = QStringLiteral("a.3deco")) const
    {
        return m_directory->filePath(name);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_configurationfile10_versions::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_configurationfile10_versions::versions_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::addColumn<QStringList>("warnings");

    const QStringList none;
    QTest::newRow("same") << QByteArray(" version=\"1.0\"") << none;
    QTest::newRow("previous") << QByteArray(" version=\"0.9\"") << QStringList{Previous};
    QTest::newRow("just before") << QByteArray(" version=\"0.999.999\"") << QStringList{Previous};
    QTest::newRow("zero") << QByteArray(" version=\"0\"") << QStringList{Previous};
    QTest::newRow("later") << QByteArray(" version=\"1.1\"") << QStringList{Later};
    QTest::newRow("later with two digits") << QByteArray(" version=\"1.10\"") << QStringList{Later};
    QTest::newRow("just behind") << QByteArray(" version=\"1.0.1\"") << QStringList{Later};
    QTest::newRow("much later") << QByteArray(" version=\"10\"") << QStringList{Later};
    QTest::newRow("same in one part") << QByteArray(" version=\"1\"") << none;
    QTest::newRow("same in three parts") << QByteArray(" version=\"1.0.0\"") << none;
    QTest::newRow("no revision") << QByteArray(" version=\"new\"") << none;
    QTest::newRow("blank behind") << QByteArray(" version=\"2.0 \"") << none;
    QTest::newRow("too large") << QByteArray(" version=\"5000.0\"") << none;
    QTest::newRow("empty") << QByteArray(" version=\"\"") << none;
    QTest::newRow("missing") << QByteArray() << none;
}

void tst_configurationfile10_versions::versions()
{
    QFETCH(QByteArray, attribute);
    QFETCH(QStringList, warnings);

    const QByteArray bytes = documentOfVersion(attribute);
    QVERIFY(Files::write(path(), bytes));
    RecordingLog log;
    for (const bool fromBuffer : {false, true}) {
        const MessageCatcher catcher;
        CDeviceConfigurationFile10 file(&log);
        QVERIFY(fromBuffer ? file.load(bytes) : file.open(path()));
        QCOMPARE(catcher.warnings(), warnings);
        QVERIFY(catcher.criticals().isEmpty());
        for (const MessageCatcher::Message &message : catcher.messages()) {
            QCOMPARE(message.log, static_cast<ICLogfile *>(&log));
        }
        // A version never refuses a document, which is one of version 1.0 from then on.
        QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_SUCCESS);
        QCOMPARE(file.currentFileVersion(), u"1.0"_s);
        CDeviceElement device;
        QVERIFY(file.configuration(device));
        QCOMPARE(device.name(), u"Press"_s);
    }
}

void tst_configurationfile10_versions::versionIsSaved()
{
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(documentOfVersion(" version=\"2.5\"")));
    QVERIFY(bytesOf(file).contains("<VornDeviceConfig version=\"1.0\">"));
    QVERIFY(file.save(path()));
    CDeviceConfigurationFile10 again(nullptr);
    QVERIFY(again.open(path()));
    QCOMPARE(catcher.warnings(), QStringList{Later});
}

void tst_configurationfile10_versions::versionErrorDirectly_data()
{
    QTest::addColumn<QString>("required");
    QTest::addColumn<QString>("existing");
    QTest::addColumn<QStringList>("warnings");
    QTest::addColumn<bool>("converts");

    const QStringList none;
    QTest::newRow("previous") << u"1.10"_s << u"1.9"_s << QStringList{Previous} << true;
    QTest::newRow("later") << u"1.9"_s << u"1.10"_s << QStringList{Later} << true;
    QTest::newRow("same") << u"1.0"_s << u"1"_s << none << true;
    QTest::newRow("existing is no revision") << u"1.0"_s << u"x"_s << none << false;
    QTest::newRow("existing is empty") << u"1.0"_s << QString() << none << false;
    QTest::newRow("required is no revision") << u"x"_s << u"1.0"_s << none << false;
    QTest::newRow("neither is a revision") << u"x"_s << u"y"_s << none << false;
}

void tst_configurationfile10_versions::versionErrorDirectly()
{
    QFETCH(QString, required);
    QFETCH(QString, existing);
    QFETCH(QStringList, warnings);
    QFETCH(bool, converts);

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    file.setCurrentFileVersion(u"before"_s);
    QVERIFY(file.handleVersionError(required, existing));
    QCOMPARE(catcher.warnings(), warnings);
    QCOMPARE(catcher.messages().size(), warnings.size());
    QCOMPARE(file.currentFileVersion(), converts ? existing : u"before"_s);
}

void tst_configurationfile10_versions::versionErrorOfBase_data()
{
    versionErrorDirectly_data();
}

void tst_configurationfile10_versions::versionErrorOfBase()
{
    QFETCH(QString, required);
    QFETCH(QString, existing);
    QFETCH(QStringList, warnings);
    QFETCH(bool, converts);

    RecordingLog log;
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(&log);
    file.setCurrentFileVersion(u"before"_s);
    QVERIFY(file.CDeviceConfigurationFileBase::handleVersionError(required, existing));
    QStringList expected;
    for (const QString &warning : warnings) {
        expected << (warning == Previous
                         ? u"The device configuration file was created with a previous version"_s
                         : u"The device configuration file was created with a later version"_s);
    }
    QCOMPARE(catcher.warnings(), expected);
    QCOMPARE(log.entries().size(), expected.size());
    QCOMPARE(file.currentFileVersion(), converts ? existing : u"before"_s);
}

QTEST_GUILESS_MAIN(tst_configurationfile10_versions)
#include "tst_configurationfile10_versions.moc"
