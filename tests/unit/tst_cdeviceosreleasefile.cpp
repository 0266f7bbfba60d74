#include "devicefiles/CDeviceOSReleaseFile.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/OrdinaryUser.h"
#include "support/Places.h"
#include "support/RecordingLog.h"
#include "support/ReleaseTexts.h"
#include "support/TestProgram.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using namespace ReleaseTexts;

namespace {

struct Accessor {
    const char *key;
    QString (CDeviceOSReleaseFile::*get)() const;
    void (CDeviceOSReleaseFile::*set)(const QString &);
};

using File = CDeviceOSReleaseFile;

const Accessor Accessors[] = {
    {"PRODUCT", &File::product, &File::setProduct},
    {"PLATFORM", &File::platform, &File::setPlatform},
    {"PTXDIST_VERSION", &File::ptxdistVersion, &File::setPtxdistVersion},
    {"PTXDIST_BSP", &File::ptxdistBsp, &File::setPtxdistBsp},
    {"BUILD_DATE", &File::buildDate, &File::setBuildDate},
    {"TOOLCHAIN_VERSION", &File::toolchainVersion, &File::setToolchainVersion},
    {"KERNEL_IMAGE", &File::kernelImage, &File::setKernelImage},
    {"QT_VERSION", &File::qtVersion, &File::setQtVersion},
};

const int ReadFailure = 6;

} // namespace

class tst_cdeviceosreleasefile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void withoutFile();
    void constructors();
    void constructorsThatFail();
    void logfile();
    void keys_data();
    void keys();
    void setOrder();
    void setValuesStay();

    void lines_data();
    void lines();
    void null_data();
    void null();
    void lineEndsAnywhere();
    void releaseFile_data();
    void releaseFile();
    void openReplaces();
    void garbage();
    void manyKeys();

    void openFails_data();
    void openFails();
    void openUnreadableFile();

private:
    QString path(const QString &name = u"os-release"_s) const
    {
        return m_directory->filePath(name);
    }
    QStringList names() const { return Files::names(m_directory->path()); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_cdeviceosreleasefile::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_cdeviceosreleasefile::withoutFile()
{
    CDeviceOSReleaseFile file;
    QVERIFY(file.isNull());
    QVERIFY(file.isValid());
    QVERIFY(!file.logfile());
    for (const Accessor &accessor : Accessors) {
        QCOMPARE((file.*accessor.get)(), QString());
    }
    QVERIFY(std::has_virtual_destructor<CDeviceOSReleaseFile>::value);
}

void tst_cdeviceosreleasefile::constructors()
{
    QVERIFY(Files::write(path(), Content));
    RecordingLog log;
    CDeviceOSReleaseFile empty(&log);
    QVERIFY(empty.isNull());
    QVERIFY(empty.logfile() == &log);

    CDeviceOSReleaseFile opened(path(), &log);
    QCOMPARE(saved(opened), SavedContent);
    QVERIFY(opened.logfile() == &log);

    CDeviceOSReleaseFile loaded(Content, &log);
    QCOMPARE(saved(loaded), SavedContent);
    QVERIFY(loaded.logfile() == &log);

    CDeviceOSReleaseFile withoutLog(path(), nullptr);
    QCOMPARE(saved(withoutLog), SavedContent);
    QVERIFY(!withoutLog.logfile());
}

void tst_cdeviceosreleasefile::constructorsThatFail()
{
    const MessageCatcher catcher;
    RecordingLog log;
    CDeviceOSReleaseFile file(path(u"missing"_s), &log);
    QVERIFY(file.isNull());
    QVERIFY(file.isValid());
    QVERIFY(file.logfile() == &log);
    QVERIFY(CDeviceOSReleaseFile(path(u"missing"_s), nullptr).isNull());
    QVERIFY(CDeviceOSReleaseFile(QByteArray(), nullptr).isNull());
    QVERIFY(catcher.messages().isEmpty());
    QVERIFY(log.entries().isEmpty());
}

void tst_cdeviceosreleasefile::logfile()
{
    RecordingLog first;
    RecordingLog second;
    CDeviceOSReleaseFile file(&first);
    file.setLogfile(&second);
    QVERIFY(file.logfile() == &second);
    file.setLogfile(nullptr);
    QVERIFY(!file.logfile());
}

void tst_cdeviceosreleasefile::keys_data()
{
    QTest::addColumn<int>("index");

    int index = 0;
    for (const Accessor &accessor : Accessors) {
        QTest::newRow(accessor.key) << index++;
    }
}

void tst_cdeviceosreleasefile::keys()
{
    QFETCH(int, index);

    const Accessor &accessor = Accessors[index];
    const QByteArray key = accessor.key;
    CDeviceOSReleaseFile read;
    QCOMPARE(static_cast<int>(read.openFromBuffer(key + "=from the file\n")), Success);
    QCOMPARE((read.*accessor.get)(), u"from the file"_s);

    CDeviceOSReleaseFile set;
    (set.*accessor.set)(u"set"_s);
    QCOMPARE(saved(set), key + "=set");

    // It is this key and no other.
    for (const Accessor &other : Accessors) {
        if (other.key != accessor.key) {
            QCOMPARE((read.*other.get)(), QString());
            QCOMPARE((set.*other.get)(), QString());
        }
    }

    const QByteArray lowerCase = key.toLower() + "=lower\n";
    QCOMPARE(static_cast<int>(read.openFromBuffer(lowerCase)), Success);
    QCOMPARE((read.*accessor.get)(), QString());
    QVERIFY(!read.isNull());
}

void tst_cdeviceosreleasefile::setOrder()
{
    CDeviceOSReleaseFile file(Content, nullptr);
    file.setQtVersion(u"5"_s);
    file.setProduct(u"new"_s);
    file.setBuildDate(u"d"_s);
    file.setQtVersion(u"6"_s);
    QCOMPARE(saved(file), QByteArray("PRODUCT=newOTHER=bPLATFORM=cQT_VERSION=6BUILD_DATE=d"));
    QVERIFY(file.isValid());
    file.setPlatform(u""_s);
    QVERIFY(!file.isValid());
    QCOMPARE(saved(file), QByteArray("PRODUCT=newOTHER=bPLATFORM=QT_VERSION=6BUILD_DATE=d"));
    QCOMPARE(file.platform(), QString());
}

void tst_cdeviceosreleasefile::setValuesStay()
{
    // Only reading strips characters and splits at "=".
    const QString value = u" (\"a\"=^$) %1\nb"_s;
    CDeviceOSReleaseFile file;
    file.setBuildDate(value);
    QCOMPARE(file.buildDate(), value);
    QCOMPARE(saved(file), "BUILD_DATE=" + value.toUtf8());
}

void tst_cdeviceosreleasefile::lines_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("pairs");

    const auto row = [](const char *name, const QByteArray &content, const QByteArray &pairs) {
        QTest::newRow(name) << content << pairs;
    };
    row("empty", "", "");
    row("empty lines", "\n\r\n\n", "");
    row("blanks", "  \n\t\n", "");
    row("without equals sign", "PRODUCT\nPRODUCT a\n# comment\n", "");
    row("one pair", "A=1\n", "A=1");
    row("without final newline", "A=1\nB=2", "A=1B=2");
    row("only an equals sign", "=\n", "=");
    row("no value", "A=\n", "A=");
    row("no key", "=1\n", "=1");
    row("skipped between pairs", "A=1\n\nskipped\nB=2\n", "A=1B=2");
    row("not sorted", "Z=1\nA=2\nM=3\n", "Z=1A=2M=3");
    row("key twice", "A=1\nB=2\nA=3\n", "A=3B=2");
    row("key twice, last without value", "A=1\nB=2\nA=\n", "A=B=2");
    row("empty key twice", "=1\nB=2\n=3\n", "=3B=2");
    row("keys in two cases", "a=1\nA=2\n", "a=1A=2");
    row("values in two cases", "A=v\nB=V\n", "A=vB=V");
    row("second equals sign", "A=1=2\n", "A=1");
    row("many equals signs", "A=1=2=3=4\n", "A=1");
    row("two equals signs in a row", "A==1\n", "A=");
    row("equals signs only", "===\n", "=");
    row("equals sign at the end", "A=1=\n", "A=1");
    row("quotes and a second equals sign", "A=\"x=y\"\n", "A=x");
    row("quoted", "A=\"b c\"\n", "A=b c");
    row("quotes inside", "A=b\"c\"d\n", "A=bcd");
    row("one quote", "A=\"b\n", "A=b");
    row("quotes only", "A=\"\"\n", "A=");
    row("parentheses", "A=a (b) c\n", "A=a b c");
    row("quotes and parentheses", "A=\"KD3 (Servo)\"\n", "A=KD3 Servo");
    row("caret", "A=^a^b^\n", "A=ab");
    row("dollar sign", "A=$a$b$\n", "A=ab");
    row("all that is stripped", "A=(^\")(\"$)x$)(^\"\n", "A=x");
    row("nothing else is stripped", "A=[]{}<>'`|\\/.,:;!?*+-_#%&@~0aZ\n",
        "A=[]{}<>'`|\\/.,:;!?*+-_#%&@~0aZ");
    row("single quotes", "A='b'\n", "A='b'");
    row("nothing stripped from a key", "\"(A)^$\"=1\n", "\"(A)^$\"=1");
    row("blanks around", " A = 1 \n", " A = 1 ");
    row("tabs around", "\tA\t=\t1\t\n", "\tA\t=\t1\t");
    row("blanks inside quotes", "A=\" 1 \"\n", "A= 1 ");
    row("commented pair", "#A=1\n", "#A=1");
    row("exported pair", "export A=1\n", "export A=1");
    row("continued line", "A=1\\\n2\n", "A=1\\");
    row("carriage returns and line feeds", "A=1\r\nB=2\r\n", "A=1B=2");
    row("line ends mixed", "A=1\r\nB=2\nC=3\r\n", "A=1B=2C=3");
    row("carriage return inside", "A=1\r2\n", "A=1\r2");
    row("carriage returns only", "A=1\rB\rC\n", "A=1\rB\rC");
    row("two carriage returns", "A=1\r\r\n", "A=1\r");
    row("form feed and vertical tab", "A=1\f2\v3\n", "A=1\f2\v3");
    row("byte-order mark",
        "\xef\xbb\xbf"
        "A=1\n",
        "A=1");
    row("byte-order mark alone", "\xef\xbb\xbf", "");
    row("UTF-8",
        "Schl\xc3\xbcssel=Gr\xc3\xb6\xc3\x9f"
        "e\n",
        "Schl\xc3\xbcssel=Gr\xc3\xb6\xc3\x9f"
        "e");
    row("behind the basic plane", "A=\xf0\x9f\x94\xa7\n", "A=\xf0\x9f\x94\xa7");
    row("line separator of Unicode",
        "A=1\xe2\x80\xa8"
        "2\n",
        "A=1\xe2\x80\xa8"
        "2");
    row("no UTF-8", "A=\xff\nB=2\n",
        "A=\xef\xbf\xbd"
        "B=2");
    row("null character",
        QByteArray("A=1\0"
                   "2\nB=3\n",
                   10),
        QByteArray("A=1\0"
                   "2B=3",
                   8));
    row("place markers", "A=%1 %2\n", "A=%1 %2");
}

void tst_cdeviceosreleasefile::lines()
{
    QFETCH(QByteArray, content);

    CDeviceOSReleaseFile loaded;
    QCOMPARE(static_cast<int>(loaded.openFromBuffer(content)), Success);
    QTEST(saved(loaded), "pairs");

    QVERIFY(Files::write(path(), content));
    CDeviceOSReleaseFile opened;
    QCOMPARE(static_cast<int>(opened.open(path())), Success);
    QTEST(saved(opened), "pairs");
    QCOMPARE(Files::read(path()), content);
}

void tst_cdeviceosreleasefile::null_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isNull");
    QTest::addColumn<bool>("isValid");

    QTest::newRow("empty") << QByteArray() << true << true;
    QTest::newRow("nothing but skipped lines") << QByteArray("a\n\n# b\n") << true << true;
    QTest::newRow("one pair") << QByteArray("A=1\n") << false << true;
    QTest::newRow("blanks are something") << QByteArray(" = \n") << false << true;
    QTest::newRow("empty value") << QByteArray("A=\n") << false << false;
    QTest::newRow("empty value first") << QByteArray("A=\nB=1\nC=2\n") << false << false;
    QTest::newRow("empty value last") << QByteArray("A=1\nB=2\nC=\n") << false << false;
    QTest::newRow("value of stripped characters") << QByteArray("A=\"\"\n") << false << false;
    QTest::newRow("empty key") << QByteArray("=1\n") << false << false;
    QTest::newRow("empty key last") << QByteArray("A=1\n=2\n") << false << false;
    QTest::newRow("both empty") << QByteArray("=\n") << false << false;
    QTest::newRow("empty value that is replaced") << QByteArray("A=\nA=1\n") << false << true;
}

void tst_cdeviceosreleasefile::null()
{
    QFETCH(QByteArray, content);

    const CDeviceOSReleaseFile file(content, nullptr);
    QTEST(file.isNull(), "isNull");
    QTEST(file.isValid(), "isValid");
}

void tst_cdeviceosreleasefile::lineEndsAnywhere()
{
    // A stream is read in portions; none of their borders may be seen.
    for (int length = 16370; length <= 16400; ++length) {
        const QByteArray value(length, 'x');
        for (const QByteArray &inside : {QByteArray("\r"), QByteArray("\xc3\xb6"),
                                         QByteArray("\r\r"), QByteArray("\xf0\x9f\x94\xa7")}) {
            const QByteArray pair = "A=" + value + inside + "b";
            CDeviceOSReleaseFile file(pair + "\r\nPRODUCT=a\r\n", nullptr);
            QVERIFY2(saved(file) == pair + "PRODUCT=a", QByteArray::number(length).constData());
        }
    }
}

void tst_cdeviceosreleasefile::releaseFile_data()
{
    QTest::addColumn<QString>("fileName");

    QTest::newRow("line feeds") << u"os-release"_s;
    QTest::newRow("carriage returns and line feeds") << u"os-release-crlf"_s;
    QTest::newRow("with byte-order mark") << u"os-release-bom-crlf"_s;
}

void tst_cdeviceosreleasefile::releaseFile()
{
    QFETCH(QString, fileName);

    const QString source = Places::data("os-release/") + fileName;
    CDeviceOSReleaseFile file;
    QCOMPARE(static_cast<int>(file.open(source)), Success);
    QCOMPARE(file.product(), u"KD3 Servo Drive 8A"_s);
    QCOMPARE(file.platform(), u"kd3-imx6q"_s);
    QCOMPARE(file.ptxdistVersion(), u"2019.09.0"_s);
    QCOMPARE(file.ptxdistBsp(), u"velkor-bsp-3.2.1"_s);
    QCOMPARE(file.buildDate(), u"2026-01-31T08:15:00+00:00"_s);
    QCOMPARE(file.toolchainVersion(), u"gcc-8.2.1 glibc 2.28 Id: 4711"_s);
    QCOMPARE(file.kernelImage(), u"zImage-4.19rt"_s);
    QCOMPARE(file.qtVersion(), u"'5.12.4'"_s);
    QVERIFY(!file.isNull());
    QVERIFY(!file.isValid());

    QCOMPARE(static_cast<int>(file.save(path())), Success);
    QCOMPARE(Files::read(path()),
             QByteArray("PRODUCT=KD3 Servo Drive 8A"
                        "PLATFORM=kd3-imx6q"
                        "PTXDIST_VERSION=2019.09.0"
                        "PTXDIST_BSP=velkor-bsp-3.2.1"
                        "BUILD_DATE=2026-01-31T08:15:00+00:00"
                        "TOOLCHAIN_VERSION=gcc-8.2.1 glibc 2.28 Id: 4711"
                        "KERNEL_IMAGE=zImage-4.19rt"
                        "QT_VERSION='5.12.4'"
                        "NAME=Velkor Linux"
                        "HOME_URL=https://velkor.example/?id"
                        "EXTRA_ARGS="
                        "PRETTY_NAME=Gr\xc3\xb6\xc3\x9f"
                        "e [M] {1}"));
}

void tst_cdeviceosreleasefile::openReplaces()
{
    QVERIFY(Files::write(path(), "PLATFORM=new\n"));
    CDeviceOSReleaseFile opened(Content, nullptr);
    QCOMPARE(static_cast<int>(opened.open(path())), Success);
    QCOMPARE(saved(opened), QByteArray("PLATFORM=new"));

    CDeviceOSReleaseFile loaded(Content, nullptr);
    QCOMPARE(static_cast<int>(loaded.openFromBuffer("PLATFORM=new\n")), Success);
    QCOMPARE(saved(loaded), QByteArray("PLATFORM=new"));
    QCOMPARE(static_cast<int>(loaded.openFromBuffer(QByteArray())), Success);
    QVERIFY(loaded.isNull());
}

void tst_cdeviceosreleasefile::garbage()
{
    QByteArray bytes(2 * 1024 * 1024, Qt::Uninitialized);
    QRandomGenerator random(20260131);
    for (char &byte : bytes) {
        byte = static_cast<char>(random.bounded(256));
    }
    bytes.prepend("PRODUCT=a\n");
    bytes.append("\nPLATFORM=b");
    QVERIFY(Files::write(path(), bytes));
    CDeviceOSReleaseFile file;
    QCOMPARE(static_cast<int>(file.open(path())), Success);
    QCOMPARE(file.product(), u"a"_s);
    QCOMPARE(file.platform(), u"b"_s);
    QVERIFY(saved(file).startsWith("PRODUCT=a"));

    // One line of nothing but separators, and one of what is stripped.
    CDeviceOSReleaseFile lines("PRODUCT=a" + QByteArray(200000, '=')
                                   + "\nPLATFORM=" + QByteArray(200000, '"') + "b\n",
                               nullptr);
    QCOMPARE(saved(lines), QByteArray("PRODUCT=aPLATFORM=b"));
}

void tst_cdeviceosreleasefile::manyKeys()
{
    // Were each key searched among all others, this would take minutes.
    QByteArray content;
    QByteArray pairs;
    for (int i = 0; i < 200000; ++i) {
        const QByteArray pair =
            "A_KEY_OF_THE_FILE_" + QByteArray::number(i) + "=" + QByteArray::number(-i);
        content += pair + "\n";
        pairs += pair;
    }
    CDeviceOSReleaseFile file;
    QCOMPARE(static_cast<int>(file.openFromBuffer(content + content + "PRODUCT=a\n")), Success);
    QCOMPARE(file.product(), u"a"_s);
    QVERIFY(file.isValid());
    QVERIFY(saved(file) == pairs + "PRODUCT=a");
}

void tst_cdeviceosreleasefile::openFails_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("missing file") << u"missing"_s;
    QTest::newRow("missing directory") << u"missing/os-release"_s;
    QTest::newRow("directory") << u"."_s;
    QTest::newRow("file as directory") << u"file/os-release"_s;
    QTest::newRow("link to nothing") << u"dangling"_s;
    QTest::newRow("pipe that nobody writes") << u"pipe"_s;
    QTest::newRow("null character in the name") << u"file\0"_s;
    QTest::newRow("name with place markers") << u"%1 %2"_s;
    // A regular file whose beginning cannot be read: no memory is there.
    QTest::newRow("failure while reading") << u"/proc/self/mem"_s;
    QTest::newRow("no name") << QString();
}

void tst_cdeviceosreleasefile::openFails()
{
    QFETCH(QString, name);

    QVERIFY(Files::write(path(u"file"_s), Content));
    QVERIFY(QFile::link(path(u"missing"_s), path(u"dangling"_s)));
    QCOMPARE(mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
    const QStringList before = names();

    const MessageCatcher catcher;
    RecordingLog log;
    CDeviceOSReleaseFile file(Content, &log);
    const QString fileName = name.isEmpty() ? name : QDir(m_directory->path()).filePath(name);
    QCOMPARE(static_cast<int>(file.open(fileName)), ReadFailure);
    QVERIFY(file.isNull());
    QCOMPARE(file.product(), QString());
    QCOMPARE(saved(file), QByteArray());
    QVERIFY(catcher.messages().isEmpty());
    QVERIFY(log.entries().isEmpty());
    QCOMPARE(names(), before);

    // The object can go on.
    QCOMPARE(static_cast<int>(file.open(path(u"file"_s))), Success);
    QCOMPARE(saved(file), SavedContent);
}

void tst_cdeviceosreleasefile::openUnreadableFile()
{
    QVERIFY(Files::write(path(), Content));
    const OrdinaryUser user(m_directory->path(), {u"os-release"_s});
    QVERIFY(user.isOk());
    QVERIFY(QFile::setPermissions(path(), QFileDevice::WriteOwner));
    CDeviceOSReleaseFile file(Content, nullptr);
    QCOMPARE(static_cast<int>(file.open(path())), ReadFailure);
    QVERIFY(file.isNull());
}

REGISTER_APPLESS_TEST(tst_cdeviceosreleasefile)
#include "tst_cdeviceosreleasefile.moc"
