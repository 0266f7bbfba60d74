#include "devicefiles/CDeviceOSReleaseFile.h"
#include "settings/CNetworkSettingsFile.h"
#include "storage/MemoryResource.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/SampleXmlFile.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

const int Success = 0;
const int NetworkFailure = 1;
const int WriteFailure = 5;
const int ReadFailure = 6;

QByteArray release(const QByteArray &product)
{
    return "PRODUCT=" + product + "\nMODE=" + product + '\n';
}

} // namespace

/** A name means to our files what it means to QFile; and how large a file may be. */
class tst_cdeviceosreleasefile_names : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void opens_data();
    void opens();
    void opensDocuments();
    void saves_data();
    void saves();
    void searchPathIsSaved();

    void largestFile();
    void largestBuffer();
    void largestNetworkFile();

private:
    QString path(const QString &name) const { return m_directory->filePath(name); }

    QString m_before;
    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<MemoryResource> m_resource;
};

/** The current directory has files of names that mean something else to Qt. */
void tst_cdeviceosreleasefile_names::init()
{
    m_before = QDir::currentPath();
    m_directory = std::make_unique<QTemporaryDir>();
    m_resource = std::make_unique<MemoryResource>(release("resource"));
    const QDir directory(m_directory->path());
    QVERIFY(directory.mkpath(u"current/:"_s) && directory.mkpath(u"searched"_s));
    QVERIFY(Files::write(path(u"searched/os-release"_s), release("searched")));
    for (const QString &name :
         {u":os-release"_s, u":/os-release"_s, u"device:os-release"_s, u"device:other"_s,
          u"other:os-release"_s, u"d:os-release"_s, u"os-release"_s, u"qrc:os-release"_s}) {
        QVERIFY(Files::write(path(u"current/./"_s) + name, release("literal")));
    }
    QVERIFY(QDir::setCurrent(path(u"current"_s)));
    QDir::setSearchPaths(u"device"_s, {path(u"missing"_s), path(u"searched"_s)});
    QDir::setSearchPaths(u"inside"_s, {u":/"_s});
}

void tst_cdeviceosreleasefile_names::cleanup()
{
    QDir::setSearchPaths(u"device"_s, {});
    QDir::setSearchPaths(u"inside"_s, {});
    QVERIFY(QDir::setCurrent(m_before));
}

void tst_cdeviceosreleasefile_names::opens_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("product");

    // "RESOURCE" stands for the name of one.
    QTest::newRow("plain") << u"os-release"_s << u"literal"_s;
    QTest::newRow("resource") << u":/RESOURCE"_s << u"resource"_s;
    QTest::newRow("resource, slashes") << u"://RESOURCE"_s << u"resource"_s;
    QTest::newRow("missing resource") << u":/os-release"_s << QString();
    QTest::newRow("directory of resources") << u":/"_s << QString();
    QTest::newRow("colon") << u":os-release"_s << QString();
    QTest::newRow("colon behind a directory") << u"./:os-release"_s << u"literal"_s;
    QTest::newRow("search path") << u"device:os-release"_s << u"searched"_s;
    QTest::newRow("search path behind a directory") << u"./device:os-release"_s << u"literal"_s;
    QTest::newRow("nothing in the search path") << u"device:other"_s << u"literal"_s;
    QTest::newRow("no search path") << u"other:os-release"_s << u"literal"_s;
    QTest::newRow("prefix of one letter") << u"d:os-release"_s << u"literal"_s;
    QTest::newRow("address of a resource") << u"qrc:os-release"_s << u"literal"_s;
    QTest::newRow("search path to a resource") << u"inside:RESOURCE"_s << u"resource"_s;
    QTest::newRow("search path to no resource") << u"inside:missing"_s << QString();
}

void tst_cdeviceosreleasefile_names::opens()
{
    QFETCH(QString, name);
    QFETCH(QString, product);
    name.replace(u"RESOURCE"_s, m_resource->name().mid(2));
    const QByteArray expected = product.isEmpty() ? QByteArray() : release(product.toLatin1());
    QCOMPARE(Files::read(name), expected);

    CDeviceOSReleaseFile file;
    QCOMPARE(int(file.open(name)), product.isEmpty() ? ReadFailure : Success);
    QCOMPARE(file.product(), product);
    QCOMPARE(file.errorText().isEmpty(), !product.isEmpty());

    CNetworkSettingsFile network;
    QCOMPARE(int(network.open(name)), product.isEmpty() ? NetworkFailure : Success);
}

void tst_cdeviceosreleasefile_names::opensDocuments()
{
    const MemoryResource resource(SampleXmlFile::document(" <Name>a</Name>\n"));
    const MessageCatcher catcher;
    SampleXmlFile::TestFile file;
    QString error;
    QVERIFY2(file.open(resource.name(), SampleXmlFile::Type, SampleXmlFile::Version, error),
             qPrintable(error));
    QCOMPARE(file.getNodeValue(u"Name"_s, QDomElement()), u"a"_s);
}

void tst_cdeviceosreleasefile_names::saves_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("new resource") << u":/os-release"_s;
    QTest::newRow("colon") << u":os-release"_s;
    QTest::newRow("resource") << u":/RESOURCE"_s;
    QTest::newRow("search path to a resource") << u"inside:RESOURCE"_s;
}

void tst_cdeviceosreleasefile_names::saves()
{
    QFETCH(QString, name);
    name.replace(u"RESOURCE"_s, m_resource->name().mid(2));
    QFile other(name);
    QVERIFY(!other.open(QIODevice::WriteOnly));

    const QStringList before = Files::names(QDir::currentPath());
    CDeviceOSReleaseFile file(release("new"), nullptr);
    QCOMPARE(int(file.save(name)), WriteFailure);
    QVERIFY(!file.errorText().isEmpty());
    QCOMPARE(Files::names(QDir::currentPath()), before);
    QCOMPARE(Files::read(u"./:os-release"_s), release("literal"));
    QCOMPARE(Files::read(u"./:/os-release"_s), release("literal"));
    QCOMPARE(Files::read(m_resource->name()), release("resource"));
}

void tst_cdeviceosreleasefile_names::searchPathIsSaved()
{
    CDeviceOSReleaseFile file(QByteArray("PRODUCT=new"), nullptr);
    QCOMPARE(int(file.save(u"device:os-release"_s)), Success);
    QCOMPARE(Files::read(path(u"searched/os-release"_s)), QByteArray("PRODUCT=new"));
    QCOMPARE(Files::read(u"./device:os-release"_s), release("literal"));
}

void tst_cdeviceosreleasefile_names::largestFile()
{
    QFile bytes(u"large"_s);
    QVERIFY(bytes.open(QIODevice::WriteOnly) && bytes.write("PRODUCT=a\n") > 0);
    QVERIFY(bytes.resize(CDeviceOSReleaseFile::MaximumSize) && bytes.flush());
    CDeviceOSReleaseFile file;
    QCOMPARE(int(file.open(u"large"_s)), Success);
    QCOMPARE(file.product(), u"a"_s);

    QVERIFY(bytes.resize(CDeviceOSReleaseFile::MaximumSize + 1));
    QCOMPARE(int(file.open(u"large"_s)), ReadFailure);
    QVERIFY(file.isNull());
    QCOMPARE(file.errorText(), u"The file is larger than 16777216 bytes."_s);
}

void tst_cdeviceosreleasefile_names::largestBuffer()
{
    QByteArray bytes("PRODUCT=a\n");
    bytes.append(static_cast<int>(CDeviceOSReleaseFile::MaximumSize) - bytes.size(), '\n');
    CDeviceOSReleaseFile file;
    QCOMPARE(int(file.openFromBuffer(bytes)), Success);
    QCOMPARE(file.product(), u"a"_s);

    QCOMPARE(int(file.openFromBuffer(bytes + '\n')), ReadFailure);
    QVERIFY(file.isNull());
    QCOMPARE(file.errorText(), u"The file is larger than 16777216 bytes."_s);
    QVERIFY(CDeviceOSReleaseFile(bytes + '\n', nullptr).isNull());

    QCOMPARE(int(file.openFromBuffer("PRODUCT=b")), Success);
    QVERIFY(file.errorText().isEmpty());
}

void tst_cdeviceosreleasefile_names::largestNetworkFile()
{
    QFile bytes(u"large"_s);
    QVERIFY(bytes.open(QIODevice::WriteOnly) && bytes.write("MODE=DHCP\n#") > 0);
    QVERIFY(bytes.resize(CNetworkSettingsFile::MaximumSize) && bytes.flush());
    CNetworkSettingsFile file;
    QCOMPARE(int(file.open(u"large"_s)), Success);
    QCOMPARE(file.value(u"MODE"_s), u"DHCP"_s);

    QVERIFY(bytes.resize(CNetworkSettingsFile::MaximumSize + 1));
    QCOMPARE(int(file.open(u"large"_s)), NetworkFailure);
    QCOMPARE(file.value(u"MODE"_s), u"DHCP"_s);
}

REGISTER_GUILESS_TEST(tst_cdeviceosreleasefile_names)
#include "tst_cdeviceosreleasefile_names.moc"
