#include "devicefiles/CDeviceSystemMessage.h"
#include "support/Literals.h"
#include "support/MarkingTranslator.h"
#include "support/TestProgram.h"

#include <QTest>

#include <limits>
#include <type_traits>

namespace {

struct Row {
    int code;
    const char *message;
    const char *description;
};

/** The whole block, code by code. */
const Row Rows[] = {
    {1024, "System: Mount Error", "APP partition can not be mounted."},
    {1025, "Hardware not configured", "HW.xml not found."},
    {1026, "Too much errors", "Application start: execution_counter > 5."},
    {1027, "Critical boot error",
     "Critical error discovered on startup. Firmware is not started.\nSee "
     "'/var/log/handleBootError.log' or '/var/log/boot_err'."},
    {1028, "1028", ""},
    {1029, "1029", ""},
    {1030, "1030", ""},
    {1031, "1031", ""},
    {1032, "1032", ""},
    {1033, "1033", ""},
    {1034, "1034", ""},
    {1035, "1035", ""},
    {1036, "1036", ""},
    {1037, "1037", ""},
    {1038, "1038", ""},
    {1039, "1039", ""},
    {1040, "1040", ""},
    {1041, "1041", ""},
    {1042, "1042", ""},
    {1043, "1043", ""},
    {1044, "1044", ""},
    {1045, "1045", ""},
    {1046, "1046", ""},
    {1047, "1047", ""},
    {1048, "1048", ""},
    {1049, "1049", ""},
    {1050, "1050", ""},
    {1051, "1051", ""},
    {1052, "1052", ""},
    {1053, "1053", ""},
    {1054, "1054", ""},
    {1055, "1055", ""},
    {1056, "1056", ""},
    {1057, "1057", ""},
    {1058, "1058", ""},
    {1059, "1059", ""},
    {1060, "1060", ""},
    {1061, "1061", ""},
    {1062, "1062", ""},
    {1063, "1063", ""},
    {1064, "1064", ""},
    {1065, "1065", ""},
    {1066, "1066", ""},
    {1067, "1067", ""},
    {1068, "1068", ""},
    {1069, "1069", ""},
    {1070, "1070", ""},
    {1071, "1071", ""},
    {1072, "1072", ""},
    {1073, "1073", ""},
    {1074, "1074", ""},
    {1075, "1075", ""},
    {1076, "1076", ""},
    {1077, "1077", ""},
    {1078, "1078", ""},
    {1079, "1079", ""},
    {1080, "1080", ""},
    {1081, "1081", ""},
    {1082, "1082", ""},
    {1083, "1083", ""},
    {1084, "1084", ""},
    {1085, "1085", ""},
    {1086, "1086", ""},
    {1087, "1087", ""},
    {1088, "Signal 1: SIGHUP",
     "Hangup detected on controlling terminal or death of controlling process"},
    {1089, "Signal 2: SIGINT", "Interrupt from keyboard."},
    {1090, "Signal 3: SIGQUIT", "Quit from keyboard."},
    {1091, "Signal 4: SIGILL", "Illegal Instruction."},
    {1092, "Signal 5: SIGTRAP", "Trace/breakpoint trap."},
    {1093, "Signal 6: SIGABRT", "Program terminated abnormally."},
    {1094, "Signal 7: SIGBUS", "Bus error (bad memory access)."},
    {1095, "Signal 8: SIGFPE", "Floating point exception."},
    {1096, "Signal 9: SIGKILL", "Kill signal."},
    {1097, "Signal 10: SIGUSR1", "User-defined signal 1."},
    {1098, "Signal 11: SIGSEGV", "Invalid memory reference."},
    {1099, "Signal 12: SIGUSR2", "User-defined signal 2."},
    {1100, "Signal 13: SIGPIPE", "Broken pipe: write to pipe with no readers."},
    {1101, "Signal 14: SIGALRM", "Timer signal from alarm()."},
    {1102, "Signal 15: SIGTERM", "Termination signal."},
    {1103, "Signal 16: SIGSTKFLT", "Stack fault on coprocessor (unused)."},
    {1104, "Signal 17: SIGCHLD", "Child stopped or terminated."},
    {1105, "Signal 18: SIGCONT", "Continue if stopped."},
    {1106, "Signal 19: SIGSTOP", "Stop process."},
    {1107, "Signal 20: SIGTSTP", "Stop typed at terminal."},
    {1108, "Signal 21: SIGTTIN", "Terminal input for background process."},
    {1109, "Signal 22: SIGTTOU", "Terminal output for background process."},
    {1110, "Signal 23: SIGURG", "Urgent condition on socket."},
    {1111, "Signal 24: SIGXCPU", "CPU time limit exceeded."},
    {1112, "Signal 25: SIGXFSZ", "File size limit exceeded."},
    {1113, "Signal 26: SIGVTALRM", "Virtual alarm clock."},
    {1114, "Signal 27: SIGPROF", "Profiling timer expired."},
    {1115, "Signal 28: SIGWINCH", "Window resize signal."},
    {1116, "Signal 29: SIGPOLL", "Pollable event."},
    {1117, "Signal 30: SIGPWR", "Power failure."},
    {1118, "Signal 31: SIGSYS", "Bad argument to routine."},
    {1119, "Signal 32: SIGRTMIN", "Real-time 0."},
    {1120, "Signal 32: SIGRTMIN+1", "Real-time 1."},
    {1121, "Signal 32: SIGRTMIN+2", "Real-time 2."},
    {1122, "Signal 32: SIGRTMIN+3", "Real-time 3."},
    {1123, "Signal 32: SIGRTMIN+4", "Real-time 4."},
    {1124, "Signal 32: SIGRTMIN+5", "Real-time 5."},
    {1125, "Signal 32: SIGRTMIN+6", "Real-time 6."},
    {1126, "Signal 32: SIGRTMIN+7", "Real-time 7."},
    {1127, "Signal 32: SIGRTMIN+8", "Real-time 8."},
    {1128, "Signal 32: SIGRTMIN+9", "Real-time 9."},
    {1129, "Signal 32: SIGRTMIN+10", "Real-time 10."},
    {1130, "Signal 32: SIGRTMIN+11", "Real-time 11."},
    {1131, "Signal 32: SIGRTMIN+12", "Real-time 12."},
    {1132, "Signal 32: SIGRTMIN+13", "Real-time 13."},
    {1133, "Signal 32: SIGRTMIN+14", "Real-time 14."},
    {1134, "Signal 32: SIGRTMIN+15", "Real-time 15."},
    {1135, "Signal 32: SIGRTMIN+16", "Real-time 16."},
    {1136, "Signal 32: SIGRTMIN+17", "Real-time 17."},
    {1137, "Signal 32: SIGRTMIN+18", "Real-time 18."},
    {1138, "Signal 32: SIGRTMIN+19", "Real-time 19."},
    {1139, "Signal 32: SIGRTMIN+20", "Real-time 20."},
    {1140, "Signal 32: SIGRTMIN+21", "Real-time 21."},
    {1141, "Signal 32: SIGRTMIN+22", "Real-time 22."},
    {1142, "Signal 32: SIGRTMIN+23", "Real-time 23."},
    {1143, "Signal 32: SIGRTMIN+24", "Real-time 24."},
    {1144, "Signal 32: SIGRTMIN+25", "Real-time 25."},
    {1145, "Signal 32: SIGRTMIN+26", "Real-time 26."},
    {1146, "Signal 32: SIGRTMIN+27", "Real-time 27."},
    {1147, "Signal 32: SIGRTMIN+28", "Real-time 28."},
    {1148, "Signal 32: SIGRTMIN+29", "Real-time 29."},
    {1149, "Signal 32: SIGRTMIN+30", "Real-time 30."},
    {1150, "Signal 32: SIGRTMIN+31", "Real-time 31."},
    {1151, "Signal 64: SIGRTMAX", "Real-time 31 (Max)."},
};

const int Lowest = std::numeric_limits<int>::min();
const int Highest = std::numeric_limits<int>::max();

/** The codes without text: translations do not concern them. */
bool isBareNumber(const Row &row)
{
    return row.code >= 1028 && row.code <= 1087;
}

/** While it lives, it notes how translations are asked for, and gives those it was given. */
class AskedTranslator : public QTranslator
{
public:
    explicit AskedTranslator(const QHash<QString, QString> &translations = {})
        : m_translations(translations)
    {
        QCoreApplication::installTranslator(this);
    }

    ~AskedTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override
    {
        const QString source = QString::fromUtf8(sourceText);
        m_asked << u"%1|%2|%3|%4"_s.arg(QString::fromUtf8(context), source,
                                        QString::fromUtf8(disambiguation), QString::number(n));
        return m_translations.value(source);
    }

    QStringList takeAsked()
    {
        const QStringList result = m_asked;
        m_asked.clear();
        return result;
    }

private:
    const QHash<QString, QString> m_translations;
    mutable QStringList m_asked;
};

} // namespace

class tst_cdevicesystemmessage : public QObject
{
    Q_OBJECT

private slots:
    void block_data();
    void block();
    void theBlockIsWhole();
    void isSystemMessage_data();
    void isSystemMessage();
    void outsideTheBlock_data();
    void outsideTheBlock();
    void hexadecimal_data();
    void hexadecimal();
    void hexadecimalOfTheWholeBlock();
    void translated();
    void catalogueKeys();
    void placesAreFilledAfterTranslation();
    void object();
};

void tst_cdevicesystemmessage::block_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("description");

    for (const Row &row : Rows) {
        QTest::newRow(QByteArray::number(row.code).constData())
            << row.code << QString::fromUtf8(row.message) << QString::fromUtf8(row.description);
    }
}

void tst_cdevicesystemmessage::block()
{
    QFETCH(int, code);
    QFETCH(QString, message);
    QFETCH(QString, description);

    QString filledMessage = u"old message"_s;
    QString filledDescription = u"old description"_s;
    CDeviceSystemMessage::text(filledMessage, filledDescription, code);
    QCOMPARE(filledMessage, message);
    QCOMPARE(filledDescription, description);
    QCOMPARE(CDeviceSystemMessage::message(code), message);
    QCOMPARE(CDeviceSystemMessage::description(code), description);
    QVERIFY(CDeviceSystemMessage::isSystemMessage(code));
}

void tst_cdevicesystemmessage::theBlockIsWhole()
{
    int code = 1024;
    for (const Row &row : Rows) {
        QCOMPARE(row.code, code++);
    }
    QCOMPARE(code, 1152);
}

void tst_cdevicesystemmessage::isSystemMessage_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("expected");

    QTest::newRow("lowest number") << Lowest << false;
    QTest::newRow("negative") << -1024 << false;
    QTest::newRow("zero") << 0 << false;
    QTest::newRow("a signal's number") << 9 << false;
    QTest::newRow("before the first") << 1023 << false;
    QTest::newRow("first") << 1024 << true;
    QTest::newRow("without text") << 1050 << true;
    QTest::newRow("last") << 1151 << true;
    QTest::newRow("behind the last") << 1152 << false;
    QTest::newRow("first and 64 K") << 1024 + 65536 << false;
    QTest::newRow("highest number") << Highest << false;
}

void tst_cdevicesystemmessage::isSystemMessage()
{
    QFETCH(int, code);
    QTEST(CDeviceSystemMessage::isSystemMessage(code), "expected");
}

void tst_cdevicesystemmessage::outsideTheBlock_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("message");

    QTest::newRow("lowest number") << Lowest << u"-2147483648"_s;
    QTest::newRow("the first, negative") << -1024 << u"-1024"_s;
    QTest::newRow("negative") << -5 << u"-5"_s;
    QTest::newRow("zero") << 0 << u"0"_s;
    QTest::newRow("a signal's number") << 9 << u"9"_s;
    QTest::newRow("before the first") << 1023 << u"1023"_s;
    QTest::newRow("behind the last") << 1152 << u"1152"_s;
    QTest::newRow("four digits") << 4132 << u"4132"_s;
    QTest::newRow("no group separators") << 1234567 << u"1234567"_s;
    QTest::newRow("first and 64 K") << 1024 + 65536 << u"66560"_s;
    QTest::newRow("highest number") << Highest << u"2147483647"_s;
}

void tst_cdevicesystemmessage::outsideTheBlock()
{
    QFETCH(int, code);
    QFETCH(QString, message);

    QString filledMessage = u"old message"_s;
    QString filledDescription = u"old description"_s;
    CDeviceSystemMessage::text(filledMessage, filledDescription, code);
    QCOMPARE(filledMessage, message);
    QCOMPARE(filledDescription, QString());
    QCOMPARE(CDeviceSystemMessage::message(code), message);
    QCOMPARE(CDeviceSystemMessage::description(code), QString());
}

void tst_cdevicesystemmessage::hexadecimal_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("description");

    const auto row = [](const char *name, const QString &code, const QString &message,
                        const QString &description = QString()) {
        QTest::newRow(name) << code << message << description;
    };
    const QString mountError = u"System: Mount Error"_s;
    const QString mountErrorDescription = u"APP partition can not be mounted."_s;
    row("first code", u"400"_s, mountError, mountErrorDescription);
    row("0x", u"0x400"_s, mountError, mountErrorDescription);
    row("0X", u"0X400"_s, mountError, mountErrorDescription);
    row("leading zeros", u"00000400"_s, mountError, mountErrorDescription);
    row("leading blank", u" 400"_s, mountError, mountErrorDescription);
    row("last code without text", u"43F"_s, u"1087"_s);
    row("lower case", u"43f"_s, u"1087"_s);
    row("first signal", u"440"_s, u"Signal 1: SIGHUP"_s,
        u"Hangup detected on controlling terminal or death of controlling process"_s);
    row("real-time signal", u"465"_s, u"Signal 32: SIGRTMIN+6"_s, u"Real-time 6."_s);
    row("last code", u"47F"_s, u"Signal 64: SIGRTMAX"_s, u"Real-time 31 (Max)."_s);
    row("last code, lower case", u"0x47f"_s, u"Signal 64: SIGRTMAX"_s, u"Real-time 31 (Max)."_s);
    row("behind the last", u"480"_s, u"1152"_s);
    row("looks like a decimal code", u"1024"_s, u"4132"_s);
    row("looks like an octal code", u"02000"_s, u"8192"_s);
    row("zero", u"0"_s, u"0"_s);
    row("negative", u"-1"_s, u"-1"_s);
    row("highest number", u"7fffffff"_s, u"2147483647"_s);
    row("lowest number", u"-80000000"_s, u"-2147483648"_s);
    row("too high", u"80000000"_s, QString());
    row("32 bits", u"ffffffff"_s, QString());
    row("too low", u"-80000001"_s, QString());
    row("more than 64 bits", u"10000000000000400"_s, QString());
    row("no number", u"xyz"_s, QString());
    row("g", u"40g"_s, QString());
    row("trailing h", u"400h"_s, QString());
    row("dollar sign", u"$400"_s, QString());
    row("blank inside", u"4 00"_s, QString());
    row("fraction", u"400.0"_s, QString());
    row("group separator", u"1,024"_s, QString());
    row("0x alone", u"0x"_s, QString());
    row("blank alone", u" "_s, QString());
    row("empty", u""_s, QString());
    row("null", QString(), QString());
}

void tst_cdevicesystemmessage::hexadecimal()
{
    QFETCH(QString, code);

    QTEST(CDeviceSystemMessage::message(code), "message");
    QTEST(CDeviceSystemMessage::description(code), "description");
}

void tst_cdevicesystemmessage::hexadecimalOfTheWholeBlock()
{
    for (const Row &row : Rows) {
        const QString code = QString::number(row.code, 16);
        QCOMPARE(CDeviceSystemMessage::message(code), QString::fromUtf8(row.message));
        QCOMPARE(CDeviceSystemMessage::description(code), QString::fromUtf8(row.description));
    }
}

void tst_cdevicesystemmessage::translated()
{
    const MarkingTranslator translator("CDeviceSystemMessage");
    for (const Row &row : Rows) {
        const QString marked = isBareNumber(row) ? u"%1"_s : u"<%1>"_s;
        const QString message = marked.arg(QString::fromUtf8(row.message));
        const QString description = marked.arg(QString::fromUtf8(row.description));
        QCOMPARE(CDeviceSystemMessage::message(row.code), message);
        QCOMPARE(CDeviceSystemMessage::description(row.code), description);
    }
    QCOMPARE(CDeviceSystemMessage::message(1125), u"<Signal 32: SIGRTMIN+6>"_s);
    QCOMPARE(CDeviceSystemMessage::description(1125), u"<Real-time 6.>"_s);
    QCOMPARE(CDeviceSystemMessage::message(u"400"_s), u"<System: Mount Error>"_s);
    QCOMPARE(CDeviceSystemMessage::message(-5), u"-5"_s);
    QCOMPARE(CDeviceSystemMessage::message(u"xyz"_s), QString());
}

void tst_cdevicesystemmessage::catalogueKeys()
{
    // The context, the text, no disambiguation, no count.
    AskedTranslator translator;
    const QStringList realTime = {u"CDeviceSystemMessage|Signal %1: SIGRTMIN+%2||-1"_s,
                                  u"CDeviceSystemMessage|Real-time %1.||-1"_s};
    for (const Row &row : Rows) {
        QString message;
        QString description;
        CDeviceSystemMessage::text(message, description, row.code);
        const QStringList asked = translator.takeAsked();
        if (isBareNumber(row)) {
            QCOMPARE(asked, QStringList());
        } else if (row.code >= 1120 && row.code <= 1150) {
            QCOMPARE(asked, realTime);
        } else {
            const QString call = u"CDeviceSystemMessage|%1||-1"_s;
            QCOMPARE(asked,
                     (QStringList{call.arg(QString::fromUtf8(row.message)),
                                  call.arg(QString::fromUtf8(row.description))}));
        }
    }
}

void tst_cdevicesystemmessage::placesAreFilledAfterTranslation()
{
    const AskedTranslator translator({
        {u"Signal %1: SIGRTMIN+%2"_s, u"SIGRTMIN+%2 (Signal %1)"_s},
        {u"Real-time %1."_s, u"%1. Echtzeitsignal"_s},
    });
    QCOMPARE(CDeviceSystemMessage::message(1120), u"SIGRTMIN+1 (Signal 32)"_s);
    QCOMPARE(CDeviceSystemMessage::description(1120), u"1. Echtzeitsignal"_s);
    QCOMPARE(CDeviceSystemMessage::message(1150), u"SIGRTMIN+31 (Signal 32)"_s);
    QCOMPARE(CDeviceSystemMessage::description(1150), u"31. Echtzeitsignal"_s);
}

void tst_cdevicesystemmessage::object()
{
    QVERIFY(std::is_default_constructible<CDeviceSystemMessage>::value);
    QVERIFY(std::has_virtual_destructor<CDeviceSystemMessage>::value);
    const CDeviceSystemMessage object;
    QCOMPARE(object.message(1089), u"Signal 2: SIGINT"_s);
}

REGISTER_GUILESS_TEST(tst_cdevicesystemmessage)
#include "tst_cdevicesystemmessage.moc"
