#include "imported/ICLogfile.h"
#include "support/Files.h"
#include "vocabulary/NvrnGlobal.h"

#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(ICLogfile::ELevel)

namespace {

QString timeStampPattern()
{
    return QStringLiteral("[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}\\.[0-9]{3}Z");
}

/** The lines of a log without their time stamps; a line that is not one comes back whole. */
QList<QByteArray> entriesIn(const QString &path)
{
    const QRegularExpression stamp(QStringLiteral("\\A%1 ").arg(timeStampPattern()));
    QList<QByteArray> lines = Files::read(path).split('\n');
    for (QByteArray &line : lines) {
        line = QString::fromUtf8(line).remove(stamp).toUtf8();
    }
    return lines;
}

} // namespace

class tst_iclogfile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void levelNames_data();
    void levelNames();
    void levelOrder();
    void line_data();
    void line();
    void timeStamp();
    void appends();
    void createsMissingFile();
    void unwritablePathIsSilent_data();
    void unwritablePathIsSilent();
    void author_data();
    void author();
    void linesDoNotMix();

private:
    QString path() const { return m_directory->filePath(QStringLiteral("device.log")); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_iclogfile::initTestCase()
{
    // Stamps are in UTC wherever the program runs.
    qputenv("TZ", "Asia/Kathmandu");
    QCoreApplication::setApplicationName(QStringLiteral("log test"));
}

void tst_iclogfile::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_iclogfile::levelNames_data()
{
    QTest::addColumn<ICLogfile::ELevel>("level");
    QTest::addColumn<QString>("constant");
    QTest::addColumn<QString>("name");

    const auto row = [](ICLogfile::ELevel level, const QString &constant, const char *name) {
        QTest::newRow(name) << level << constant << QString::fromLatin1(name);
    };
    row(ICLogfile::LEVEL_EMERG, NvrnGlobal::SYSLOG_EMERG_STR, "emerg");
    row(ICLogfile::LEVEL_ALERT, NvrnGlobal::SYSLOG_ALERT_STR, "alert");
    row(ICLogfile::LEVEL_CRIT, NvrnGlobal::SYSLOG_CRIT_STR, "crit");
    row(ICLogfile::LEVEL_ERR, NvrnGlobal::SYSLOG_ERR_STR, "error");
    row(ICLogfile::LEVEL_WARNING, NvrnGlobal::SYSLOG_WARNING_STR, "warn");
    row(ICLogfile::LEVEL_NOTICE, NvrnGlobal::SYSLOG_NOTICE_STR, "notice");
    row(ICLogfile::LEVEL_INFO, NvrnGlobal::SYSLOG_INFO_STR, "info");
    row(ICLogfile::LEVEL_DEBUG, NvrnGlobal::SYSLOG_DEBUG_STR, "debug");
}

void tst_iclogfile::levelNames()
{
    QFETCH(ICLogfile::ELevel, level);
    QFETCH(QString, constant);
    QFETCH(QString, name);

    QCOMPARE(ICLogfile::levelName(level), name);
    QCOMPARE(constant, name);

    const std::unique_ptr<ICLogfile> log(ICLogfile::instance(path()));
    log->write(level, QStringLiteral("text"));
    QCOMPARE(entriesIn(path()),
             (QList<QByteArray>{QStringLiteral("[%1] text").arg(name).toUtf8(), QByteArray()}));
}

void tst_iclogfile::levelOrder()
{
    // Levels are ordered from the most to the least severe.
    QVERIFY(ICLogfile::LEVEL_EMERG < ICLogfile::LEVEL_CRIT);
    QVERIFY(ICLogfile::LEVEL_CRIT < ICLogfile::LEVEL_WARNING);
    QVERIFY(ICLogfile::LEVEL_WARNING < ICLogfile::LEVEL_DEBUG);
}

void tst_iclogfile::line_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("entry");

    QTest::newRow("plain") << QStringLiteral("The text.") << QByteArray("[info] The text.");
    QTest::newRow("empty") << QString() << QByteArray("[info] ");
    QTest::newRow("line feed") << QStringLiteral("a\nb\n") << QByteArray("[info] a\\nb\\n");
    QTest::newRow("carriage return") << QStringLiteral("a\r\nb") << QByteArray("[info] a\\r\\nb");
    QTest::newRow("back-slash") << QStringLiteral("C:\\n") << QByteArray("[info] C:\\\\n");
    QTest::newRow("place markers")
        << QStringLiteral("%1 %2 %3 %%") << QByteArray("[info] %1 %2 %3 %%");
    QTest::newRow("looks like an entry") << QStringLiteral("a\n2026-01-31T12:00:00.000Z [crit] b")
                                         << QByteArray("[info] a\\n2026-01-31T12:00:00.000Z "
                                                       "[crit] b");
    QTest::newRow("non-Latin") << QString::fromUtf8("\xe8\xbb\xb8")
                               << QByteArray("[info] \xe8\xbb\xb8");
    QTest::newRow("long") << QString(100000, QLatin1Char('x'))
                          << QByteArray("[info] ") + QByteArray(100000, 'x');
}

void tst_iclogfile::line()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, entry);

    const std::unique_ptr<ICLogfile> log(ICLogfile::instance(path()));
    log->write(ICLogfile::LEVEL_INFO, text);
    // Readable at once, while the log is still open.
    QCOMPARE(entriesIn(path()), (QList<QByteArray>{entry, QByteArray()}));
}

void tst_iclogfile::timeStamp()
{
    const std::unique_ptr<ICLogfile> log(ICLogfile::instance(path()));
    const QDateTime before = QDateTime::currentDateTimeUtc();
    log->write(ICLogfile::LEVEL_INFO, QStringLiteral("text"));
    const QDateTime after = QDateTime::currentDateTimeUtc();

    const QString line = QString::fromUtf8(Files::read(path()));
    const QRegularExpressionMatch match =
        QRegularExpression(QStringLiteral("\\A(%1) \\[info\\] text\n\\z").arg(timeStampPattern()))
            .match(line);
    QVERIFY2(match.hasMatch(), qPrintable(line));
    const QDateTime stamp = QDateTime::fromString(match.captured(1), Qt::ISODateWithMs);
    QCOMPARE(stamp.timeSpec(), Qt::UTC);
    QVERIFY(before <= stamp);
    QVERIFY(stamp <= after);
}

void tst_iclogfile::appends()
{
    QVERIFY(Files::write(path(), "an older line\n"));
    {
        const std::unique_ptr<ICLogfile> log(ICLogfile::instance(path()));
        log->write(ICLogfile::LEVEL_INFO, QStringLiteral("first"));
    }
    const std::unique_ptr<ICLogfile> log(ICLogfile::instance(path()));
    log->write(ICLogfile::LEVEL_ERR, QStringLiteral("second"));
    log->write(ICLogfile::LEVEL_WARNING, QStringLiteral("third"));
    QCOMPARE(entriesIn(path()),
             (QList<QByteArray>{"an older line", "[info] first", "[error] second", "[warn] third",
                                QByteArray()}));
}

void tst_iclogfile::createsMissingFile()
{
    const std::unique_ptr<ICLogfile> log(ICLogfile::instance(path()));
    QVERIFY(log != nullptr);
    log->write(ICLogfile::LEVEL_DEBUG, QStringLiteral("text"));
    QCOMPARE(Files::names(m_directory->path()), QStringList{QStringLiteral("device.log")});
}

void tst_iclogfile::unwritablePathIsSilent_data()
{
    QTest::addColumn<QString>("relativePath");

    QTest::newRow("missing directory") << QStringLiteral("missing/device.log");
    QTest::newRow("directory") << QStringLiteral(".");
}

void tst_iclogfile::unwritablePathIsSilent()
{
    QFETCH(QString, relativePath);

    const std::unique_ptr<ICLogfile> log(ICLogfile::instance(m_directory->filePath(relativePath)));
    QVERIFY(log != nullptr);
    log->write(ICLogfile::LEVEL_CRIT, QStringLiteral("text"));
    QCOMPARE(log->author(), QStringLiteral("log test"));
    QCOMPARE(Files::names(m_directory->path()), QStringList());

    // As soon as it can be written, it is.
    if (relativePath.startsWith(QLatin1String("missing"))) {
        QVERIFY(QDir(m_directory->path()).mkdir(QStringLiteral("missing")));
        log->write(ICLogfile::LEVEL_CRIT, QStringLiteral("later"));
        QCOMPARE(entriesIn(m_directory->filePath(relativePath)),
                 (QList<QByteArray>{"[crit] later", QByteArray()}));
    }
}

void tst_iclogfile::author_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("author");

    QTest::newRow("null") << QString() << QStringLiteral("log test");
    QTest::newRow("empty") << QStringLiteral("") << QStringLiteral("log test");
    QTest::newRow("given") << QStringLiteral("A. Engineer") << QStringLiteral("A. Engineer");
    QTest::newRow("blank") << QStringLiteral(" ") << QStringLiteral(" ");
}

void tst_iclogfile::author()
{
    QFETCH(QString, given);
    const std::unique_ptr<ICLogfile> log(ICLogfile::instance(path(), given));
    QTEST(log->author(), "author");
}

void tst_iclogfile::linesDoNotMix()
{
    // Two threads share a log; two more have one of their own on the same file, as processes do.
    const int threadCount = 4;
    const int entryCount = 250;
    const std::unique_ptr<ICLogfile> shared(ICLogfile::instance(path()));
    QList<QThread *> threads;
    QList<QByteArray> expected{QByteArray()};
    for (int thread = 0; thread < threadCount; ++thread) {
        const QString text = QString(150, QLatin1Char(static_cast<char>('a' + thread)));
        for (int i = 0; i < entryCount; ++i) {
            expected << QStringLiteral("[info] %1 %2").arg(i).arg(text).toUtf8();
        }
        threads << QThread::create([&, thread, text] {
            const std::unique_ptr<ICLogfile> own(ICLogfile::instance(path()));
            ICLogfile &log = thread < 2 ? *shared : *own;
            for (int i = 0; i < entryCount; ++i) {
                log.write(ICLogfile::LEVEL_INFO, QStringLiteral("%1 %2").arg(i).arg(text));
            }
        });
    }
    for (QThread *const thread : threads) {
        thread->start();
    }
    for (QThread *const thread : threads) {
        thread->wait();
        delete thread;
    }
    QList<QByteArray> entries = entriesIn(path());
    std::sort(entries.begin(), entries.end());
    std::sort(expected.begin(), expected.end());
    QCOMPARE(entries, expected);
}

QTEST_GUILESS_MAIN(tst_iclogfile)
#include "tst_iclogfile.moc"
