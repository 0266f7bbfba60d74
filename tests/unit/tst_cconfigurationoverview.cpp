#include "commissioning/CConfigurationItems.h"
#include "commissioning/CConfigurationOverview.h"
#include "support/LargeConfiguration.h"
#include "support/MessageCatcher.h"
#include "support/SampleConfiguration.h"
#include "support/TestProgram.h"

#include <QTest>

namespace {

QByteArray document(const QByteArray &config, const QByteArray &subDevices = QByteArray())
{
    return "<VornDeviceConfig version=\"1.0\"><Device><Name>Press</Name><Config>" + config
        + "</Config>" + subDevices + "</Device></VornDeviceConfig>";
}

QByteArray files(const QByteArray &names)
{
    QByteArray result;
    for (const QByteArray &name : names.split(',')) {
        result += name.isEmpty() ? QByteArray("<File/>")
                                 : "<File><Name>" + name + "</Name><Comment>c</Comment></File>";
    }
    return result;
}

QStringList itemsOf(const QList<CConfigurationOverview::SFile> &list)
{
    QStringList items;
    for (const CConfigurationOverview::SFile &file : list) {
        items.append(file.item);
    }
    return items;
}

} // namespace

class tst_cconfigurationoverview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeDevice();
    void placesAreThoseOfTheDevice();
    void itemsAreThoseOfTheDocument();
    void driveItems_data();
    void driveItems();
    void keysThatRepeat();
    void optionsWithArguments();
    void directoriesOfTheDocument();
    void withoutDescription();
    void withoutDevice();
};

void tst_cconfigurationoverview::wholeDevice()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setDescription(SampleConfiguration::description()));
    QVERIFY(file.setConfiguration(SampleConfiguration::device()));
    file.setMetaData(SampleConfiguration::metaData());
    CDeviceElement device;
    QVERIFY(file.configuration(device));

    const CConfigurationOverview overview(file);
    QCOMPARE(overview.description(), SampleConfiguration::description());
    QCOMPARE(overview.metaData(), SampleConfiguration::metaData());
    QVERIFY(overview.hasDevice());
    QVERIFY(overview.device() == device);
    QCOMPARE(overview.dictionary().file, SampleConfiguration::odictFile());
    QCOMPARE(overview.faultTexts().file, SampleConfiguration::faultTextFile());
    QCOMPARE(overview.etherCatMaster().file, SampleConfiguration::etherCatMasterFile());
    QCOMPARE(overview.opcUaFiles().size(), 1);
    QCOMPARE(overview.opcUaFiles().first().file, SampleConfiguration::opcUaFiles().first());
    QCOMPARE(overview.additionalFiles().size(), 2);
    QCOMPARE(overview.additionalFiles().last().file, SampleConfiguration::additionalFiles().last());
    QCOMPARE(overview.plugins().size(), 2);
    QVERIFY(overview.plugins().first().isExecuted);
    QVERIFY(!overview.plugins().last().isExecuted);
    QCOMPARE(overview.parameterFiles().first().typeText, u"VornParameters"_s);
    QCOMPARE(overview.drives().size(), 2);
    QCOMPARE(itemsOf(overview.drives().first().files),
             (QStringList{u"drive[0].param"_s, u"drive[0].kd2Firmware"_s, u"drive[0].kd2Logic"_s,
                          u"drive[0].kd2Param"_s}));
    QCOMPARE(itemsOf(overview.drives().last().files), QStringList{u"drive[7].param"_s});
}

/** However it is put together, it is what allFiles() tells. */
void tst_cconfigurationoverview::placesAreThoseOfTheDevice()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setConfiguration(SampleConfiguration::device()));
    CDeviceElement device;
    QVERIFY(file.configuration(device));
    const CConfigurationOverview overview(file);

    QList<CConfigurationOverview::SFile> all;
    for (const auto &parameters : overview.parameterFiles()) {
        all += parameters.files;
    }
    all += {overview.dictionary(), overview.faultTexts()};
    all += overview.additionalFiles();
    for (const auto &plugin : overview.plugins()) {
        all.append({plugin.item, NvrnDeviceCore::DEVICE_FILE_PLUGIN, plugin.library});
    }
    all += overview.fpgaFiles() + overview.opcUaFiles();
    all.append(overview.etherCatMaster());
    for (const auto &drive : overview.drives()) {
        all += drive.files;
    }
    const QList<CFileElement> expected = device.allFiles();
    QCOMPARE(all.size(), expected.size());
    for (int i = 0; i < all.size(); ++i) {
        QCOMPARE(all.at(i).file, expected.at(i));
        QVERIFY(device.allFiles(QFlags<NvrnDeviceCore::EDeviceFile>(all.at(i).kind))
                    .contains(expected.at(i)));
    }
    QCOMPARE(overview.configurationFile().file, device.configurationFile());
    QCOMPARE(overview.fileCount(), expected.size() + 1);
}

void tst_cconfigurationoverview::itemsAreThoseOfTheDocument()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.createNewDocument());
    QVERIFY(file.setConfiguration(SampleConfiguration::device()));
    const CConfigurationOverview overview(file);

    QStringList shown;
    for (const auto &option : overview.options()) {
        shown.append(option.item);
    }
    for (const auto &parameters : overview.parameterFiles()) {
        shown.append(parameters.item);
    }
    shown += itemsOf(overview.fpgaFiles()) + itemsOf(overview.opcUaFiles());
    for (const auto &plugin : overview.plugins()) {
        shown.append(plugin.item);
    }
    for (const auto &drive : overview.drives()) {
        shown.append(drive.item);
    }
    shown += itemsOf(overview.additionalFiles());
    QCOMPARE(shown, CConfigurationItems(file).entries());
}

void tst_cconfigurationoverview::driveItems_data()
{
    QTest::addColumn<QString>("numbers");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << QString() << QString();
    QTest::newRow("in order") << u"0 1 2"_s << u"0=drive[0] 1=drive[1] 2=drive[2]"_s;
    QTest::newRow("out of order") << u"7 3"_s << u"3=drive[3] 7=drive[7]"_s;
    QTest::newRow("twice") << u"2 2"_s << u"2=drive[2] 3=drive[2][2]"_s;
    QTest::newRow("thrice") << u"2 2 2"_s << u"2=drive[2] 3=drive[2][2] 4=drive[2][3]"_s;
    QTest::newRow("twice, others between")
        << u"1 0 1 5"_s << u"0=drive[0] 1=drive[1] 5=drive[5] 6=drive[1][2]"_s;
    QTest::newRow("no numbers") << u"x -1"_s << u"0=drive[x] 1=drive[-1]"_s;
    QTest::newRow("too high") << u"256 0"_s << u"0=drive[0] 1=drive[256]"_s;
    QTest::newRow("gaps behind the highest one")
        << u"253 x y z"_s << u"0=drive[y] 1=drive[z] 253=drive[253] 254=drive[x]"_s;
    QTest::newRow("gaps alone") << u"254 x y"_s << u"0=drive[x] 1=drive[y] 254=drive[254]"_s;
    QTest::newRow("255 is none") << u"255 x"_s << u"0=drive[255] 1=drive[x]"_s;
    QTest::newRow("written otherwise") << u"01 1"_s << u"1=drive[1] 2=drive[1][2]"_s;
}

void tst_cconfigurationoverview::driveItems()
{
    QFETCH(QString, numbers);
    QByteArray subDevices;
    int count = 0;
    for (const QString &number : numbers.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        subDevices += "<SubDevice type=\"KD3_drive\"><Name>name" + QByteArray::number(count++)
            + "</Name><DriveNo>" + number.toUtf8() + "</DriveNo></SubDevice>";
    }
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(document(QByteArray(), subDevices)));
    const CConfigurationOverview overview(file);
    const CConfigurationItems items(file);
    QStringList found;
    for (const auto &drive : overview.drives()) {
        found.append(u"%1=%2"_s.arg(QString::number(drive.drive.driveId()), drive.item));
        QString name;
        QVERIFY2(items.value(drive.item + u".name"_s, name), qPrintable(items.errorText()));
        QCOMPARE(name, drive.drive.name());
    }
    QTEST(found.join(QLatin1Char(' ')), "expected");
}

void tst_cconfigurationoverview::keysThatRepeat()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(document("<FPGA_FileNames>" + files("a,a,b]\\") + "</FPGA_FileNames>"
                               + "<OpcUa><OpcUaFiles>" + files("x,y,x") + "</OpcUaFiles></OpcUa>"
                               + "<Files>" + files("n") + "<File/><File><Comment>c</Comment></File>"
                               + files("n") + "</Files>")));
    const CConfigurationOverview overview(file);
    QCOMPARE(itemsOf(overview.fpgaFiles()),
             (QStringList{u"device.fpgaFiles[a]"_s, u"device.fpgaFiles[a][2]"_s,
                          u"device.fpgaFiles[b\\]\\\\]"_s}));
    QCOMPARE(itemsOf(overview.opcUaFiles()),
             (QStringList{u"device.opcUaFiles[x]"_s, u"device.opcUaFiles[y]"_s,
                          u"device.opcUaFiles[x][2]"_s}));
    // An empty entry is none.
    QCOMPARE(itemsOf(overview.additionalFiles()),
             (QStringList{u"files[n]"_s, u"files[]"_s, u"files[n][2]"_s}));
    const CConfigurationItems items(file);
    for (const auto &additional : overview.additionalFiles()) {
        QVERIFY2(items.contains(additional.item), qPrintable(additional.item));
    }
    QCOMPARE(overview.fileCount(), 1 + 3 + 3 + 2);
}

void tst_cconfigurationoverview::optionsWithArguments()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(document("<Options>first -log a b -v -log c</Options>")));
    const CConfigurationOverview overview(file);
    QStringList found;
    for (const auto &option : overview.options()) {
        found.append(option.item + QLatin1Char('=') + option.text);
    }
    QCOMPARE(found,
             (QStringList{u"device.options[first]=first"_s, u"device.options[-log]=-log a b"_s,
                          u"device.options[-v]=-v"_s, u"device.options[-log][2]=-log c"_s}));
}

/** Where the document tells a directory that reading the device removes, it is shown all the same.
 */
void tst_cconfigurationoverview::directoriesOfTheDocument()
{
    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(document("<Dictionary><File><Name>d.xml</Name><ProjectDir>Other/conf/"
                               "</ProjectDir></File></Dictionary>")));
    const CConfigurationOverview overview(file);
    QCOMPARE(overview.dictionary().file.projectPath(), u"Other/conf/"_s);
    QVERIFY(overview.faultTexts().file.isNull());
    QCOMPARE(catcher.warnings().size(), 1);
}

void tst_cconfigurationoverview::withoutDescription()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(document(QByteArray())));
    const CConfigurationOverview overview(file);
    QVERIFY(!overview.description().creationDate().isValid());
    QVERIFY(!overview.description().revisionDate().isValid());
    QVERIFY(overview.description().version().isEmpty());
}

void tst_cconfigurationoverview::withoutDevice()
{
    CDeviceConfigurationFile10 file(nullptr);
    const CConfigurationOverview withoutDocument(file);
    QVERIFY(!withoutDocument.hasDevice());
    QVERIFY(file.createNewDocument());
    const CConfigurationOverview overview(file);
    QVERIFY(!overview.hasDevice());
    QVERIFY(overview.drives().isEmpty());
    QVERIFY(overview.dictionary().file.isNull());
    QCOMPARE(overview.fileCount(), 0);
}

REGISTER_GUILESS_TEST(tst_cconfigurationoverview)
#include "tst_cconfigurationoverview.moc"
