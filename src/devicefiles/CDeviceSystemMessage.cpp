#include "devicefiles/CDeviceSystemMessage.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace {

const int FirstCode = 1024;
const int LastCode = 1151;

// Between SIGRTMIN and SIGRTMAX the texts are made from the number of the real-time signal.
const int FirstRealTimeCode = 1120;
const int LastRealTimeCode = 1150;
const int CodeOfRealTime0 = 1119;
// Fixed: the texts count from SIGRTMIN and name its number, not that of the signal.
const int SignalMinNumber = 32;

const int HexadecimalBase = 16;

struct SRow {
    int code;
    const char *message;
    const char *description;
};

// In the order of the codes. The texts are the keys of the translations, spelling included.
const SRow Rows[] = {
    {1024, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "System: Mount Error"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "APP partition can not be mounted.")},
    {1025, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Hardware not configured"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "HW.xml not found.")},
    {1026, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Too much errors"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Application start: execution_counter > 5.")},
    {1027, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Critical boot error"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage",
                       "Critical error discovered on startup. Firmware is not started.\nSee "
                       "'/var/log/handleBootError.log' or '/var/log/boot_err'.")},
    {1088, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 1: SIGHUP"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage",
                       "Hangup detected on controlling terminal or death of controlling process")},
    {1089, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 2: SIGINT"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Interrupt from keyboard.")},
    {1090, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 3: SIGQUIT"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Quit from keyboard.")},
    {1091, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 4: SIGILL"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Illegal Instruction.")},
    {1092, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 5: SIGTRAP"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Trace/breakpoint trap.")},
    {1093, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 6: SIGABRT"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Program terminated abnormally.")},
    {1094, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 7: SIGBUS"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Bus error (bad memory access).")},
    {1095, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 8: SIGFPE"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Floating point exception.")},
    {1096, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 9: SIGKILL"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Kill signal.")},
    {1097, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 10: SIGUSR1"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "User-defined signal 1.")},
    {1098, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 11: SIGSEGV"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Invalid memory reference.")},
    {1099, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 12: SIGUSR2"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "User-defined signal 2.")},
    {1100, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 13: SIGPIPE"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Broken pipe: write to pipe with no readers.")},
    {1101, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 14: SIGALRM"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Timer signal from alarm().")},
    {1102, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 15: SIGTERM"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Termination signal.")},
    {1103, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 16: SIGSTKFLT"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Stack fault on coprocessor (unused).")},
    {1104, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 17: SIGCHLD"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Child stopped or terminated.")},
    {1105, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 18: SIGCONT"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Continue if stopped.")},
    {1106, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 19: SIGSTOP"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Stop process.")},
    {1107, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 20: SIGTSTP"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Stop typed at terminal.")},
    {1108, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 21: SIGTTIN"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Terminal input for background process.")},
    {1109, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 22: SIGTTOU"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Terminal output for background process.")},
    {1110, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 23: SIGURG"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Urgent condition on socket.")},
    {1111, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 24: SIGXCPU"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "CPU time limit exceeded.")},
    {1112, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 25: SIGXFSZ"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "File size limit exceeded.")},
    {1113, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 26: SIGVTALRM"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Virtual alarm clock.")},
    {1114, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 27: SIGPROF"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Profiling timer expired.")},
    {1115, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 28: SIGWINCH"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Window resize signal.")},
    {1116, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 29: SIGPOLL"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Pollable event.")},
    {1117, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 30: SIGPWR"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Power failure.")},
    {1118, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 31: SIGSYS"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Bad argument to routine.")},
    {1119, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 32: SIGRTMIN"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Real-time 0.")},
    {1151, QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal 64: SIGRTMAX"),
     QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Real-time 31 (Max).")},
};

QString translated(const char *text)
{
    return QCoreApplication::translate("CDeviceSystemMessage", text);
}

/** The result of @p text for the code in hexadecimal digits, empty if it is not a valid code. */
QString forCode(const QString &code, QString (*text)(int))
{
    bool isNumber = false;
    const int number = code.toInt(&isNumber, HexadecimalBase);
    return isNumber ? text(number) : QString();
}

} // namespace

CDeviceSystemMessage::CDeviceSystemMessage() = default;
CDeviceSystemMessage::~CDeviceSystemMessage() = default;

bool CDeviceSystemMessage::isSystemMessage(int code)
{
    return code >= FirstCode && code <= LastCode;
}

void CDeviceSystemMessage::text(QString &message, QString &description, int code)
{
    const auto row =
        std::lower_bound(std::begin(Rows), std::end(Rows), code,
                         [](const SRow &left, int right) { return left.code < right; });
    if (row != std::end(Rows) && row->code == code) {
        message = translated(row->message);
        description = translated(row->description);
    } else if (code >= FirstRealTimeCode && code <= LastRealTimeCode) {
        const QString number = QString::number(code - CodeOfRealTime0);
        message = translated(QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Signal %1: SIGRTMIN+%2"))
                      .arg(QString::number(SignalMinNumber), number);
        description =
            translated(QT_TRANSLATE_NOOP("CDeviceSystemMessage", "Real-time %1.")).arg(number);
    } else {
        message = QString::number(code);
        description.clear();
    }
}

QString CDeviceSystemMessage::message(int code)
{
    QString message;
    QString description;
    text(message, description, code);
    return message;
}

QString CDeviceSystemMessage::description(int code)
{
    QString message;
    QString description;
    text(message, description, code);
    return description;
}

QString CDeviceSystemMessage::message(const QString &code)
{
    return forCode(code, &CDeviceSystemMessage::message);
}

QString CDeviceSystemMessage::description(const QString &code)
{
    return forCode(code, &CDeviceSystemMessage::description);
}
