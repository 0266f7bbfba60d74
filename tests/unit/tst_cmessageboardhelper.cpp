#include "imported/CMessageBoardHelper.h"
#include "support/MessageCatcher.h"
#include "support/RecordingLog.h"
#include "support/TestProgram.h"

#include <QProcess>
#include <QThread>
#include <QtTest>

#include <atomic>
#include <cstring>
#include <functional>

namespace {

const int ThreadCount = 4;
const int MessagesPerThread = 500;

const char *const ChildArgument = "--post";

void runInThreads(const std::function<void(int)> &work)
{
    QList<QThread *> threads;
    for (int i = 0; i < ThreadCount; ++i) {
        threads << QThread::create([i, &work] { work(i); });
        threads.last()->start();
    }
    for (QThread *const thread : threads) {
        thread->wait();
        delete thread;
    }
}

/** What the child does: post on a board without handler, so that it goes to standard error. */
int postAsChild(const QStringList &arguments)
{
    const QString mode = arguments.value(0);
    const QString text = QString::fromUtf8(QByteArray::fromHex(arguments.value(1).toLatin1()));
    if (mode == QLatin1String("warning")) {
        CMessageBoardHelper::setDebugWarning(text, nullptr);
    } else if (mode == QLatin1String("critical")) {
        CMessageBoardHelper::setDebugCritical(text, nullptr);
    } else if (mode == QLatin1String("with log")) {
        RecordingLog log;
        CMessageBoardHelper::setDebugWarning(text, &log);
    } else if (mode == QLatin1String("handler taken away")) {
        CMessageBoardHelper::installHandler(
            [](CMessageBoardHelper::ESeverity, const QString &, ICLogfile *) {});
        CMessageBoardHelper::setDebugWarning(QStringLiteral("for the handler"), nullptr);
        CMessageBoardHelper::installHandler(CMessageBoardHelper::Handler());
        CMessageBoardHelper::setDebugWarning(text, nullptr);
    } else if (mode == QLatin1String("threads")) {
        runInThreads([&text](int thread) {
            for (int i = 0; i < MessagesPerThread; ++i) {
                CMessageBoardHelper::setDebugCritical(
                    QStringLiteral("%1 %2 %3").arg(thread).arg(i).arg(text), nullptr);
            }
        });
    } else {
        return 1;
    }
    return 0;
}

struct ChildResult {
    bool ok = false;
    QByteArray standardOutput;
    QByteArray standardError;
};

ChildResult runChild(const QString &mode, const QString &text)
{
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("tst_cmessageboardhelper"), QString::fromLatin1(ChildArgument),
                 mode, QString::fromLatin1(text.toUtf8().toHex())});
    ChildResult result;
    result.ok = child.waitForFinished() && child.exitStatus() == QProcess::NormalExit
        && child.exitCode() == 0;
    result.standardOutput = child.readAllStandardOutput();
    result.standardError = child.readAllStandardError();
    return result;
}

} // namespace

class tst_cmessageboardhelper : public QObject
{
    Q_OBJECT

private slots:
    void standardError_data();
    void standardError();
    void standardErrorFromThreads();
    void handlerGetsEverything_data();
    void handlerGetsEverything();
    void previousHandlerIsReturned();
    void logComesFirst();
    void handlerMayPost();
    void handlerMayInstallAnother();
    void postingFromThreads();
    void installingWhilePosting();
};

void tst_cmessageboardhelper::standardError_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("line");

    const auto row = [](const char *name, const char *mode, const char *text, const char *line) {
        QTest::newRow(name) << QString::fromLatin1(mode) << QString::fromUtf8(text)
                            << QByteArray(line);
    };
    row("warning", "warning", "The text.", "drive: warning: The text.\n");
    row("critical", "critical", "The text.", "drive: error: The text.\n");
    row("empty text", "warning", "", "drive: warning: \n");
    row("line breaks", "critical", "one\ntwo\r\n", "drive: error: one\\ntwo\\r\\n\n");
    row("control characters", "warning", "\x1b[31m\t\x7f\xc2\x9b",
        "drive: warning: "
        "\\u001b[31m\\t\\u007f\\u009b\n");
    row("other line breaks", "warning", "\xe2\x80\xa8\xe2\x80\xa9",
        "drive: warning: \\u2028\\u2029\n");
    row("directions", "warning",
        "\xe2\x80\xae"
        "cod.3deco\xd8\x9c",
        "drive: warning: \\u202ecod.3deco\\u061c\n");
    row("format characters", "critical", "100 %s %n %1 \\n", "drive: error: 100 %s %n %1 \\n\n");
    row("non-Latin", "critical", "\xe8\xbb\xb8", "drive: error: \xe8\xbb\xb8\n");
    row("with a log", "with log", "The text.", "drive: warning: The text.\n");
    row("handler taken away", "handler taken away", "The text.", "drive: warning: The text.\n");
}

void tst_cmessageboardhelper::standardError()
{
    QFETCH(QString, mode);
    QFETCH(QString, text);

    const ChildResult result = runChild(mode, text);
    QVERIFY(result.ok);
    QTEST(result.standardError, "line");
    QVERIFY(result.standardOutput.isEmpty());
}

void tst_cmessageboardhelper::standardErrorFromThreads()
{
    const QString text(200, QLatin1Char('x'));
    const ChildResult result = runChild(QStringLiteral("threads"), text);
    QVERIFY(result.ok);

    QList<QByteArray> expected;
    for (int thread = 0; thread < ThreadCount; ++thread) {
        for (int i = 0; i < MessagesPerThread; ++i) {
            expected
                << QStringLiteral("drive: error: %1 %2 %3").arg(thread).arg(i).arg(text).toLatin1();
        }
    }
    QList<QByteArray> lines = result.standardError.split('\n');
    QVERIFY(lines.takeLast().isEmpty());
    std::sort(lines.begin(), lines.end());
    std::sort(expected.begin(), expected.end());
    QCOMPARE(lines, expected);
}

void tst_cmessageboardhelper::handlerGetsEverything_data()
{
    QTest::addColumn<bool>("critical");
    QTest::addColumn<bool>("withLog");

    QTest::newRow("warning") << false << false;
    QTest::newRow("warning with log") << false << true;
    QTest::newRow("critical") << true << false;
    QTest::newRow("critical with log") << true << true;
}

void tst_cmessageboardhelper::handlerGetsEverything()
{
    QFETCH(bool, critical);
    QFETCH(bool, withLog);

    RecordingLog log;
    ICLogfile *const given = withLog ? &log : nullptr;
    const QString text = QStringLiteral("one\ntwo %1");
    const MessageCatcher catcher;
    if (critical) {
        CMessageBoardHelper::setDebugCritical(text, given);
    } else {
        CMessageBoardHelper::setDebugWarning(text, given);
    }

    QCOMPARE(catcher.messages().size(), 1);
    const MessageCatcher::Message message = catcher.messages().first();
    QCOMPARE(message.severity,
             critical ? CMessageBoardHelper::SEVERITY_CRITICAL
                      : CMessageBoardHelper::SEVERITY_WARNING);
    QCOMPARE(message.text, text);
    QCOMPARE(message.log, given);

    QList<RecordingLog::Entry> entries;
    if (withLog) {
        entries.append({critical ? ICLogfile::LEVEL_CRIT : ICLogfile::LEVEL_WARNING, text});
    }
    QCOMPARE(log.entries(), entries);
}

void tst_cmessageboardhelper::previousHandlerIsReturned()
{
    QString received;
    const auto handler = [&received](const QString &mark) {
        return [&received, mark](CMessageBoardHelper::ESeverity, const QString &text, ICLogfile *) {
            received += mark + text;
        };
    };
    QVERIFY(!CMessageBoardHelper::installHandler(handler(QStringLiteral("A"))));
    const CMessageBoardHelper::Handler first =
        CMessageBoardHelper::installHandler(handler(QStringLiteral("B")));
    QVERIFY(first);
    CMessageBoardHelper::setDebugWarning(QStringLiteral("1"), nullptr);
    const CMessageBoardHelper::Handler second = CMessageBoardHelper::installHandler(first);
    QVERIFY(second);
    CMessageBoardHelper::setDebugWarning(QStringLiteral("2"), nullptr);
    second(CMessageBoardHelper::SEVERITY_WARNING, QStringLiteral("3"), nullptr);
    QVERIFY(CMessageBoardHelper::installHandler(CMessageBoardHelper::Handler()));
    QVERIFY(!CMessageBoardHelper::installHandler(CMessageBoardHelper::Handler()));
    QCOMPARE(received, QStringLiteral("B1A2B3"));
}

void tst_cmessageboardhelper::logComesFirst()
{
    RecordingLog log;
    int entriesSeenByHandler = -1;
    const CMessageBoardHelper::Handler previous = CMessageBoardHelper::installHandler(
        [&](CMessageBoardHelper::ESeverity, const QString &, ICLogfile *) {
            entriesSeenByHandler = log.entries().size();
        });
    CMessageBoardHelper::setDebugCritical(QStringLiteral("text"), &log);
    CMessageBoardHelper::installHandler(previous);
    QCOMPARE(entriesSeenByHandler, 1);
}

void tst_cmessageboardhelper::handlerMayPost()
{
    QStringList received;
    const CMessageBoardHelper::Handler previous = CMessageBoardHelper::installHandler(
        [&received](CMessageBoardHelper::ESeverity, const QString &text, ICLogfile *) {
            received << text;
            if (received.size() < 3) {
                CMessageBoardHelper::setDebugWarning(text + QLatin1Char('+'), nullptr);
            }
        });
    CMessageBoardHelper::setDebugWarning(QStringLiteral("a"), nullptr);
    CMessageBoardHelper::installHandler(previous);
    QCOMPARE(received,
             (QStringList{QStringLiteral("a"), QStringLiteral("a+"), QStringLiteral("a++")}));
}

void tst_cmessageboardhelper::handlerMayInstallAnother()
{
    QStringList received;
    const auto last = [&received](CMessageBoardHelper::ESeverity, const QString &text,
                                  ICLogfile *) { received << QStringLiteral("last ") + text; };
    const CMessageBoardHelper::Handler previous = CMessageBoardHelper::installHandler(
        [&received, last](CMessageBoardHelper::ESeverity, const QString &text, ICLogfile *) {
            CMessageBoardHelper::installHandler(last);
            // What this handler captured must still be there although it was replaced.
            received << QStringLiteral("first ") + text;
        });
    CMessageBoardHelper::setDebugWarning(QStringLiteral("1"), nullptr);
    CMessageBoardHelper::setDebugWarning(QStringLiteral("2"), nullptr);
    CMessageBoardHelper::installHandler(previous);
    QCOMPARE(received, (QStringList{QStringLiteral("first 1"), QStringLiteral("last 2")}));
}

void tst_cmessageboardhelper::postingFromThreads()
{
    RecordingLog handled;
    RecordingLog log;
    const CMessageBoardHelper::Handler previous = CMessageBoardHelper::installHandler(
        [&](CMessageBoardHelper::ESeverity severity, const QString &text, ICLogfile *given) {
            if (given == &log) {
                handled.write(severity == CMessageBoardHelper::SEVERITY_WARNING
                                  ? ICLogfile::LEVEL_WARNING
                                  : ICLogfile::LEVEL_CRIT,
                              text);
            }
        });
    runInThreads([&log](int thread) {
        for (int i = 0; i < MessagesPerThread; ++i) {
            const QString text = QStringLiteral("%1 %2").arg(thread).arg(i);
            if (i % 2 == 0) {
                CMessageBoardHelper::setDebugWarning(text, &log);
            } else {
                CMessageBoardHelper::setDebugCritical(text, &log);
            }
        }
    });
    CMessageBoardHelper::installHandler(previous);

    QList<RecordingLog::Entry> fromHandler = handled.entries();
    QList<RecordingLog::Entry> fromLog = log.entries();
    QCOMPARE(fromHandler.size(), ThreadCount * MessagesPerThread);
    std::sort(fromHandler.begin(), fromHandler.end());
    std::sort(fromLog.begin(), fromLog.end());
    QCOMPARE(fromHandler, fromLog);
}

void tst_cmessageboardhelper::installingWhilePosting()
{
    std::atomic<int> first{0};
    std::atomic<int> second{0};
    const auto counting = [](std::atomic<int> &counter) {
        return
            [&counter](CMessageBoardHelper::ESeverity, const QString &, ICLogfile *) { ++counter; };
    };
    const CMessageBoardHelper::Handler previous =
        CMessageBoardHelper::installHandler(counting(first));
    runInThreads([&](int thread) {
        for (int i = 0; i < MessagesPerThread; ++i) {
            if (thread == 0) {
                CMessageBoardHelper::installHandler(i % 2 == 0 ? counting(second)
                                                               : counting(first));
            }
            CMessageBoardHelper::setDebugWarning(QStringLiteral("text"), nullptr);
        }
    });
    CMessageBoardHelper::installHandler(previous);
    QCOMPARE(first + second, ThreadCount * MessagesPerThread);
}

namespace {

int run(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc > 1 && std::strcmp(argv[1], ChildArgument) == 0) {
        QCoreApplication::setApplicationName(QStringLiteral("drive"));
        return postAsChild(QCoreApplication::arguments().mid(2));
    }
    tst_cmessageboardhelper test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace

REGISTER_TEST_FUNCTION(run)

#include "tst_cmessageboardhelper.moc"
