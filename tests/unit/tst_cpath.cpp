#include "imported/CFTPath.h"
#include "imported/CPath.h"

#include <QtTest>

Q_DECLARE_METATYPE(CFTPath::EEntryPoint)

class tst_cpath : public QObject
{
    Q_OBJECT

private slots:
    void separators_data();
    void separators();
    void directoryNames_data();
    void directoryNames();
    void roots_data();
    void roots();
    void unknownEntryPoint_data();
    void unknownEntryPoint();
    void fromPath_data();
    void fromPath();
};

void tst_cpath::separators_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("withEnd");
    QTest::addColumn<QString>("withStart");
    QTest::addColumn<QString>("withoutStart");

    const auto row = [](const char *name, const char *path, const char *withEnd,
                        const char *withStart, const char *withoutStart) {
        QTest::newRow(name) << QString::fromUtf8(path) << QString::fromUtf8(withEnd)
                            << QString::fromUtf8(withStart) << QString::fromUtf8(withoutStart);
    };
    QTest::newRow("null") << QString() << "/"
                          << "/" << QString();
    row("empty", "", "/", "/", "");
    row("separator alone", "/", "/", "/", "");
    row("two separators", "//", "//", "//", "");
    row("plain name", "a", "a/", "/a", "a");
    row("separator at end", "a/", "a/", "/a/", "a/");
    row("separator at start", "/a", "/a/", "/a", "a");
    row("several at start", "///a/b", "///a/b/", "///a/b", "a/b");
    row("several at end", "a//", "a//", "/a//", "a//");
    row("back-slash is no separator", "a\\", "a\\/", "/a\\", "a\\");
    row("blank", " ", " /", "/ ", " ");
    row("non-Latin", "\xe8\xbb\xb8", "\xe8\xbb\xb8/", "/\xe8\xbb\xb8", "\xe8\xbb\xb8");
}

void tst_cpath::separators()
{
    QFETCH(QString, path);
    QTEST(CPath::ensurePathSeparatorAtEnd(path), "withEnd");
    QTEST(CPath::ensurePathSeparatorAtStart(path), "withStart");
    QTEST(CPath::removePathSeparatorAtStart(path), "withoutStart");
}

void tst_cpath::directoryNames_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("company") << CPath::CPATH_COMPANY;
    QTest::newRow("conf") << CPath::CPATH_CONF;
    QTest::newRow("log") << CPath::CPATH_LOG;
    QTest::newRow("plug-ins") << CPath::CPATH_PLUGINS;
    QTest::newRow("configuration area") << CPath::CPATH_CCONF;
    QTest::newRow("configurations") << CFTPath::PATH_CONFIGURATIONS;
    QTest::newRow("conf of a configuration") << CFTPath::PATH_CONF;
    QTest::newRow("parameters") << CFTPath::PATH_PARAM;
    QTest::newRow("sub-devices") << CFTPath::PATH_SUBDEVICES;
    QTest::newRow("firmware") << CFTPath::PATH_FIRMWARE;
    QTest::newRow("logic") << CFTPath::PATH_LOGIC;
    QTest::newRow("autostart") << CFTPath::PATH_AUTOSTART;
    QTest::newRow("bin") << CFTPath::PATH_BIN;
}

void tst_cpath::directoryNames()
{
    QFETCH(QString, name);
    const QRegularExpression relativeDirectory(QStringLiteral("\\A([A-Za-z0-9_-]+/)+\\z"));
    QVERIFY2(relativeDirectory.match(name).hasMatch(), qPrintable(name));
}

void tst_cpath::roots_data()
{
    QTest::addColumn<CFTPath::EEntryPoint>("entryPoint");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("root");

    const QString sm = QLatin1Char('/') + CPath::CPATH_COMPANY;
    const QString opt = QStringLiteral("/opt/") + CPath::CPATH_COMPANY;
    QTest::newRow("sm") << CFTPath::ENTRY_POINT_SM << 1 << sm;
    QTest::newRow("sm configurations")
        << CFTPath::ENTRY_POINT_SM_CONFIGURATIONS << 2 << sm + CFTPath::PATH_CONFIGURATIONS;
    QTest::newRow("sm log") << CFTPath::ENTRY_POINT_SM_LOG << 3 << sm + CPath::CPATH_LOG;
    QTest::newRow("opt") << CFTPath::ENTRY_POINT_OPT << 4 << opt;
    QTest::newRow("opt configurations")
        << CFTPath::ENTRY_POINT_OPT_CONFIGURATIONS << 5 << opt + CFTPath::PATH_CONFIGURATIONS;
    QTest::newRow("opt plug-ins") << CFTPath::ENTRY_POINT_OPT_PLUGINS << 6
                                  << opt + CPath::CPATH_PLUGINS;
}

void tst_cpath::roots()
{
    QFETCH(CFTPath::EEntryPoint, entryPoint);
    QFETCH(QString, root);

    QTEST(static_cast<int>(entryPoint), "number");
    QCOMPARE(CFTPath::toPath(entryPoint), root);
    QVERIFY(root.startsWith(QLatin1Char('/')));
    QVERIFY(root.endsWith(QLatin1Char('/')));
    QVERIFY(!root.contains(QLatin1String("//")));

    QCOMPARE(CFTPath::fromPath(root), entryPoint);
    QCOMPARE(CFTPath::fromPath(root.chopped(1)), entryPoint);
    QCOMPARE(CFTPath::fromPath(root + QStringLiteral("file.txt")), entryPoint);
    QCOMPARE(CFTPath::fromPath(root + QStringLiteral("a/b/")), entryPoint);

    if (entryPoint == CFTPath::ENTRY_POINT_SM) {
        QCOMPARE(root.count(QLatin1Char('/')), 2);
    }
}

void tst_cpath::unknownEntryPoint_data()
{
    QTest::addColumn<int>("number");

    QTest::newRow("unknown") << int(CFTPath::ENTRY_POINT_UNKNOWN);
    QTest::newRow("one above the last") << 7;
    QTest::newRow("negative") << -1;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_cpath::unknownEntryPoint()
{
    QFETCH(int, number);
    QVERIFY(CFTPath::toPath(static_cast<CFTPath::EEntryPoint>(number)).isEmpty());
}

void tst_cpath::fromPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<CFTPath::EEntryPoint>("entryPoint");

    const QString company = CPath::CPATH_COMPANY;
    const QString sm = QLatin1Char('/') + company;
    const QString opt = QStringLiteral("/opt/") + company;

    QTest::newRow("null") << QString() << CFTPath::ENTRY_POINT_UNKNOWN;
    QTest::newRow("empty") << QStringLiteral("") << CFTPath::ENTRY_POINT_UNKNOWN;
    QTest::newRow("file system root") << QStringLiteral("/") << CFTPath::ENTRY_POINT_UNKNOWN;
    QTest::newRow("relative") << company << CFTPath::ENTRY_POINT_UNKNOWN;
    QTest::newRow("relative below")
        << company + CFTPath::PATH_CONFIGURATIONS << CFTPath::ENTRY_POINT_UNKNOWN;
    QTest::newRow("opt without the company")
        << QStringLiteral("/opt/") << CFTPath::ENTRY_POINT_UNKNOWN;
    QTest::newRow("other company in opt")
        << QStringLiteral("/opt/other/") << CFTPath::ENTRY_POINT_UNKNOWN;
    QTest::newRow("company below another root")
        << QStringLiteral("/srv/") + company << CFTPath::ENTRY_POINT_UNKNOWN;
    QTest::newRow("name that begins as the root does")
        << sm.chopped(1) + QStringLiteral("x/") << CFTPath::ENTRY_POINT_UNKNOWN;
    QTest::newRow("root cut by one character") << sm.chopped(2) << CFTPath::ENTRY_POINT_UNKNOWN;
    QTest::newRow("upper case") << sm.toUpper() << CFTPath::ENTRY_POINT_UNKNOWN;

    QTest::newRow("name that begins as configurations does")
        << sm + CFTPath::PATH_CONFIGURATIONS.chopped(1) + QStringLiteral("2/")
        << CFTPath::ENTRY_POINT_SM;
    QTest::newRow("configurations cut by one character")
        << sm + CFTPath::PATH_CONFIGURATIONS.chopped(2) << CFTPath::ENTRY_POINT_SM;
    QTest::newRow("configurations below another directory")
        << sm + QStringLiteral("x/") + CFTPath::PATH_CONFIGURATIONS << CFTPath::ENTRY_POINT_SM;
    QTest::newRow("plug-ins in the sm tree")
        << sm + CPath::CPATH_PLUGINS << CFTPath::ENTRY_POINT_SM;
    QTest::newRow("log in the opt tree") << opt + CPath::CPATH_LOG << CFTPath::ENTRY_POINT_OPT;
    QTest::newRow("configuration area in the opt tree")
        << opt + CPath::CPATH_CCONF << CFTPath::ENTRY_POINT_OPT;
    QTest::newRow("file in a configuration")
        << sm + CFTPath::PATH_CONFIGURATIONS + QStringLiteral("STD/param/a.3param")
        << CFTPath::ENTRY_POINT_SM_CONFIGURATIONS;
    QTest::newRow("plug-in") << opt + CPath::CPATH_PLUGINS + QStringLiteral("pi_Motion.so.1")
                             << CFTPath::ENTRY_POINT_OPT_PLUGINS;
}

void tst_cpath::fromPath()
{
    QFETCH(QString, path);
    QTEST(CFTPath::fromPath(path), "entryPoint");
}

QTEST_GUILESS_MAIN(tst_cpath)
#include "tst_cpath.moc"
