#include "settings/CNetworkSettingsCheck.h"
#include "settings/CNetworkSettingsFile.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/NetworkTexts.h"
#include "support/TestProgram.h"
#include "support/WithoutProc.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace NetworkTexts;

/** Reading and checking where nothing is mounted at /proc, as on a small device. */
class tst_cnetworksettingsfile_withoutproc : public QObject
{
    Q_OBJECT

private slots:
    void reads();
    void finds();
};

void tst_cnetworksettingsfile_withoutproc::reads()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"network.conf"_s);
    QVERIFY(Files::write(path, fullText()));
    CNetworkSettingsFile file;
    int result = -1;
    if (!WithoutProc::call([&] { result = file.open(path); })) {
        QSKIP("/proc cannot be hidden here.", 0);
    }
    QCOMPARE(result, 0);
    QVERIFY2(file.errorText().isEmpty(), qPrintable(file.errorText()));
    QVERIFY(file.networkSettings() == full());
    QCOMPARE(Files::names(directory.path()), QStringList{u"network.conf"_s});
}

void tst_cnetworksettingsfile_withoutproc::finds()
{
    QList<CNetworkSettingsCheck::SFinding> findings;
    if (!WithoutProc::call(
            [&] { findings = CNetworkSettingsCheck::check("ADDRESS=here\nCOLOR=green\n"); })) {
        QSKIP("/proc cannot be hidden here.", 0);
    }
    QCOMPARE(findings.size(), 2);
    QCOMPARE(findings.at(0).line, 1);
    QCOMPARE(int(findings.at(0).finding), int(CNetworkSettingsCheck::FINDING_BAD_VALUE));
    QCOMPARE(findings.at(1).line, 2);
    QCOMPARE(int(findings.at(1).finding), int(CNetworkSettingsCheck::FINDING_UNKNOWN_KEY));
}

REGISTER_GUILESS_TEST(tst_cnetworksettingsfile_withoutproc)
#include "tst_cnetworksettingsfile_withoutproc.moc"
