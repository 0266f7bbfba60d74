#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/ItemCommands.h"
#include "support/Literals.h"
#include "support/TestProgram.h"
#include "support/Tool.h"

#include <QTemporaryDir>

using namespace ItemCommands;

using Tool::SResult;

namespace {

QByteArray indented(const QByteArray &document)
{
    QByteArray result = document;
    return result.replace("\n <", "\n\t  <");
}

} // namespace

/** The command fmt. */
class tst_vrndevice_fmt : public ItemCommandTest
{
    Q_OBJECT

private slots:
    void init() { prepare(); }

    void fmtRewrites();
    void fmtChecks();
    void fmtJson();
    void fmtFilters();
    void fmtGoesOnBehindAnUnreadableFile();
    void fmtOfAFullDisk();
};

void tst_vrndevice_fmt::fmtRewrites()
{
    QVERIFY(Files::write(path(u"other"_s), indented(m_example)));
    QFile::setPermissions(path(), QFileDevice::ReadOwner);
    const QDateTime before = QFileInfo(path()).metadataChangeTime();
    const SResult result = run({u"fmt"_s, FileName, u"other"_s});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, u"other: rewritten\n"_s);
    QCOMPARE(result.errors, QString());
    QCOMPARE(Files::read(path(u"other"_s)), m_example);
    QCOMPARE(bytes(), m_example);
    QCOMPARE(QFileInfo(path()).metadataChangeTime(), before);
    const SResult again = run({u"fmt"_s, FileName, u"other"_s});
    QCOMPARE(again.exitCode, 0);
    QCOMPARE(again.output, QString());
}

void tst_vrndevice_fmt::fmtChecks()
{
    QVERIFY(Files::write(path(u"other"_s), indented(m_example)));
    const SResult result = run({u"fmt"_s, u"--check"_s, FileName, u"other"_s});
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.output, u"other: would change\n"_s);
    QCOMPARE(Files::read(path(u"other"_s)), indented(m_example));
    QCOMPARE(run({u"fmt"_s, u"--check"_s, FileName}).exitCode, 0);
    QCOMPARE(run({u"fmt"_s, u"--check"_s, u"-"_s}, m_example).exitCode, 0);
    const SResult piped = run({u"fmt"_s, u"--check"_s, u"-"_s, FileName}, indented(m_example));
    QCOMPARE(piped.exitCode, 1);
    QCOMPARE(piped.output, u"standard input: would change\n"_s);
}

void tst_vrndevice_fmt::fmtJson()
{
    QVERIFY(Files::write(path(u"other"_s), indented(m_example)));
    const auto states = [](const SResult &result) {
        QStringList list;
        for (const QJsonValue file : result.json().value(u"files"_s).toArray()) {
            list << toJson(file[u"path"].toString(), file[u"state"].toString());
        }
        return list;
    };
    const QStringList files = {FileName, u"other"_s, u"missing"_s};
    const SResult checked = run(QStringList{u"fmt"_s, u"--json"_s, u"--check"_s} + files);
    QCOMPARE(checked.exitCode, 3);
    QCOMPARE(states(checked),
             QStringList(
                 {FileName + u"=canonical"_s, u"other=notCanonical"_s, u"missing=unreadable"_s}));
    const SResult rewritten = run(QStringList{u"fmt"_s, u"--json"_s} + files);
    QCOMPARE(rewritten.exitCode, 3);
    QCOMPARE(
        states(rewritten),
        QStringList({FileName + u"=canonical"_s, u"other=rewritten"_s, u"missing=unreadable"_s}));
}

void tst_vrndevice_fmt::fmtFilters()
{
    for (const QByteArray &input : {m_example, indented(m_example)}) {
        const SResult result = run({u"fmt"_s, u"-"_s}, input);
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.output.toUtf8(), m_example);
        QCOMPARE(result.errors, QString());
    }
}

void tst_vrndevice_fmt::fmtGoesOnBehindAnUnreadableFile()
{
    QVERIFY(Files::write(path(u"broken"_s), m_example.chopped(20)));
    QVERIFY(Files::write(path(u"other"_s), indented(m_example)));
    const SResult result = run({u"fmt"_s, u"missing"_s, u"broken"_s, u"."_s, u"other"_s});
    QCOMPARE(result.exitCode, 3);
    QCOMPARE(result.output, u"other: rewritten\n"_s);
    QVERIFY2(result.errors.contains(u"error: missing: No such file"_s), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(u"broken:"_s), qPrintable(result.errors));
    QCOMPARE(Files::read(path(u"broken"_s)), m_example.chopped(20));
}

void tst_vrndevice_fmt::fmtOfAFullDisk()
{
    QVERIFY(Files::write(path(u"other"_s), indented(m_example)));
    const FullDisk disk(1000);
    const SResult result = run({u"fmt"_s, u"--json"_s, u"other"_s});
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.output.contains(u"\"notSaved\""_s));
    QCOMPARE(Files::read(path(u"other"_s)), indented(m_example));
}

REGISTER_GUILESS_TEST(tst_vrndevice_fmt)
#include "tst_vrndevice_fmt.moc"
