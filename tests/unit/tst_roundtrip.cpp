#include "configfile/ICDeviceConfigurationFile.h"
#include "support/Files.h"
#include "support/SampleConfiguration.h"
#include "support/TestProgram.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <cstring>
#include <memory>

namespace {

const char *const ChildArgument = "--read";

const int SubDeviceCount = 64;

/** What stands in a device's file list under @p index; all texts differ. */
CFileElement numberedFile(const QString &kind, int index)
{
    return SampleConfiguration::file(
        QStringLiteral("%1 %2 <&>.bin").arg(kind).arg(index),
        index % 3 == 0 ? QString() : QStringLiteral("軸 \"%1\"\r\n\t%2 ").arg(kind).arg(index),
        QStringLiteral("/velkor/%1/%2/").arg(kind).arg(index),
        QStringLiteral("Line/%1/%2/").arg(kind).arg(index));
}

CSubDeviceElement numberedSubDevice(int index)
{
    // Even numbers far apart, so that gaps and the highest number are among them.
    const quint8 id = static_cast<quint8>(index * 4 + 2);
    if (index % 2 == 0) {
        CSubDeviceKD2Element kd2;
        kd2.setHardwareId(QStringLiteral("KD2:Drive %1:%1:2:3").arg(index));
        kd2.setName(QStringLiteral("Axis %1").arg(index));
        kd2.setComment(QString(index, QLatin1Char(' ')));
        kd2.setDriveId(id);
        kd2.setBusId(static_cast<unsigned int>(index) * 67108863u);
        kd2.setParameterFile(numberedFile(u"param"_s, index));
        kd2.setKd2ParameterFile(numberedFile(u"kd2param"_s, index));
        kd2.setKd2LogicFile(numberedFile(u"kd2logic"_s, index));
        kd2.setKd2FirmwareFile(numberedFile(u"kd2firmware"_s, index));
        return kd2;
    }
    CSubDeviceKD3Element kd3;
    kd3.setHardwareId(QStringLiteral("KD3:Drive:%1:2:3").arg(index));
    kd3.setName(QStringLiteral("Axis %1").arg(index));
    kd3.setDriveId(id);
    kd3.setParameterFile(numberedFile(u"param"_s, index));
    return kd3;
}

/** A device with 200 files of its own and 64 sub-devices. */
CDeviceElement largeDevice()
{
    CDeviceElement device = SampleConfiguration::device();
    device.setName(u"Line"_s);
    device.setOdictFile(numberedFile(u"odict"_s, 1));
    device.setFaultTextFile(numberedFile(u"fault"_s, 2));
    device.setEtherCatMasterFile(numberedFile(u"bus"_s, 4));
    QList<CFileElement> additional;
    for (int i = 0; i < 97; ++i) {
        additional << numberedFile(u"additional"_s, i);
    }
    device.setAdditionalFiles(additional);
    QList<CFileElement> opcUa;
    QStringList fpga;
    QList<CPluginElement> plugins;
    for (int i = 0; i < 20; ++i) {
        opcUa << numberedFile(u"opcua"_s, i);
        fpga << QStringLiteral("dir %1/image.bit").arg(i);
        plugins << SampleConfiguration::plugin(QStringLiteral("plugin %1").arg(i),
                                               QString::number(i), i - 10);
    }
    device.setOpcUaFiles(opcUa);
    device.setFpgaFiles(fpga);
    device.setPlugins(plugins);
    QList<CParamFileElement> params;
    for (int i = 0; i < 60; ++i) {
        // Every type that has a text form.
        const int types[] = {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11};
        params << SampleConfiguration::paramFile(
            QStringLiteral("param %1").arg(i),
            static_cast<NvrnGlobal::EParamFileType>(types[i % 12]), QStringLiteral("c%1").arg(i));
    }
    device.setParameterFiles(params);
    QList<CSubDeviceElement> subDevices;
    for (int i = 0; i < SubDeviceCount; ++i) {
        subDevices << numberedSubDevice(i);
    }
    device.setSubDevices(subDevices);
    return device;
}

/** What the child does: read the file and write the device's stream form to standard output. */
int readAsChild(const QString &path, const QString &copyPath)
{
    const std::unique_ptr<ICDeviceConfigurationFile> file(
        ICDeviceConfigurationFile::instance(nullptr));
    CDeviceElement device;
    if (!file->open(path) || !file->configuration(device) || !file->save(copyPath)) {
        return 1;
    }
    QFile output;
    if (!output.open(stdout, QIODevice::WriteOnly)) {
        return 2;
    }
    QDataStream stream(&output);
    stream << device << file->description();
    return stream.status() == QDataStream::Ok ? 0 : 3;
}

} // namespace

class tst_roundtrip : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void freshProcess_data();
    void freshProcess();
    void savingTwice();
    void writingWhatWasRead();

private:
    QString path(const QString &name) const { return m_directory->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_roundtrip::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_roundtrip::freshProcess_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("hashSeed");

    // QDom keeps attributes in a hash; without a seed their order is another in every process.
    QTest::newRow("fixed order of attributes") << u"C"_s << u"0"_s;
    QTest::newRow("random order of attributes") << u"C"_s << QString();
    QTest::newRow("other locale") << u"tr_TR.UTF-8"_s << QString();
}

void tst_roundtrip::freshProcess()
{
    QFETCH(QString, locale);
    QFETCH(QString, hashSeed);

    const CDeviceElement device = largeDevice();
    QCOMPARE(device.subDeviceCount(), SubDeviceCount);
    QCOMPARE(3 + device.additionalFileCount() + device.opcUaFiles().size() + device.fpgaFileCount()
                 + device.parameterFiles().size(),
             200);
    const std::unique_ptr<ICDeviceConfigurationFile> file(
        ICDeviceConfigurationFile::instance(nullptr));
    QVERIFY(file->createNewDocument());
    QVERIFY(file->setDescription(SampleConfiguration::description()));
    QVERIFY(file->setConfiguration(device));
    QVERIFY(file->save(path(u"a.3deco"_s)));

    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, locale);
    environment.remove(u"QT_HASH_SEED"_s);
    if (!hashSeed.isEmpty()) {
        environment.insert(u"QT_HASH_SEED"_s, hashSeed);
    }
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(),
                {u"tst_roundtrip"_s, QString::fromLatin1(ChildArgument), path(u"a.3deco"_s),
                 path(u"copy.3deco"_s)});
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 0);
    QCOMPARE(child.readAllStandardError(), QByteArray());

    QDataStream stream(child.readAllStandardOutput());
    CDeviceElement read;
    CDescriptionElement description;
    stream >> read >> description;
    QCOMPARE(stream.status(), QDataStream::Ok);
    QVERIFY(stream.atEnd());
    QVERIFY(read == device);
    QVERIFY(description == SampleConfiguration::description());
    // Comments of parameter files do not take part in their comparison.
    for (int i = 0; i < device.parameterFiles().size(); ++i) {
        QCOMPARE(read.parameterFiles().at(i).comment(), device.parameterFiles().at(i).comment());
    }
    QCOMPARE(Files::read(path(u"copy.3deco"_s)), Files::read(path(u"a.3deco"_s)));
    QCOMPARE(Files::names(m_directory->path()), (QStringList{u"a.3deco"_s, u"copy.3deco"_s}));
}

void tst_roundtrip::savingTwice()
{
    const std::unique_ptr<ICDeviceConfigurationFile> file(
        ICDeviceConfigurationFile::instance(nullptr));
    QVERIFY(file->createNewDocument());
    QVERIFY(file->setConfiguration(largeDevice()));
    QVERIFY(file->save(path(u"1"_s)));
    QVERIFY(file->save(path(u"2"_s)));
    QVERIFY(Files::read(path(u"1"_s)).size() > 50000);
    QCOMPARE(Files::read(path(u"2"_s)), Files::read(path(u"1"_s)));

    // Another object with the same content writes the same.
    const std::unique_ptr<ICDeviceConfigurationFile> other(
        ICDeviceConfigurationFile::instance(nullptr));
    QVERIFY(other->createNewDocument());
    other->setMetaData(file->metaData());
    QVERIFY(other->setConfiguration(largeDevice()));
    QVERIFY(other->save(path(u"3"_s)));
    QCOMPARE(Files::read(path(u"3"_s)), Files::read(path(u"1"_s)));
}

void tst_roundtrip::writingWhatWasRead()
{
    const std::unique_ptr<ICDeviceConfigurationFile> file(
        ICDeviceConfigurationFile::instance(nullptr));
    QVERIFY(file->createNewDocument());
    QVERIFY(file->setConfiguration(largeDevice()));
    QVERIFY(file->save(path(u"1"_s)));
    QVERIFY(file->open(path(u"1"_s)));
    CDeviceElement device;
    QVERIFY(file->configuration(device));
    QVERIFY(file->setConfiguration(device));
    QVERIFY(file->save(path(u"2"_s)));
    QCOMPARE(Files::read(path(u"2"_s)), Files::read(path(u"1"_s)));
}

namespace {

int run(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc > 3 && std::strcmp(argv[1], ChildArgument) == 0) {
        const QStringList arguments = QCoreApplication::arguments();
        return readAsChild(arguments.at(2), arguments.at(3));
    }
    tst_roundtrip test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace

REGISTER_TEST_FUNCTION(run)

#include "tst_roundtrip.moc"
