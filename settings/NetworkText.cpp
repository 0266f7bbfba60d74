#include "settings/NetworkText.h"

#include <QSettings>

#include <algorithm>
#include <atomic>
#include <cctype>
#include <iterator>

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace NetworkText {

namespace {

/** A file in memory that can be opened by name while it lives. */
class MemoryFile
{
public:
    explicit MemoryFile(const QByteArray &content) : m_fd(memfd_create("network.conf", MFD_CLOEXEC))
    {
        const auto size = static_cast<size_t>(content.size());
        size_t done = 0;
        ssize_t written = 0;
        while (m_fd >= 0 && done < size && written >= 0) {
            written = write(m_fd, content.constData() + done, size - done);
            done += static_cast<size_t>(qMax<ssize_t>(written, 0));
        }
        m_isOk = m_fd >= 0 && done == size && setTime();
    }

    ~MemoryFile()
    {
        if (m_fd >= 0) {
            close(m_fd);
        }
    }

    bool isOk() const { return m_isOk; }
    QString name() const { return QStringLiteral("/proc/self/fd/%1").arg(m_fd); }

private:
    Q_DISABLE_COPY(MemoryFile)

    /** QSettings remembers a file by name, size and time: no two may have the same. */
    bool setTime() const
    {
        static std::atomic<long> second{0};
        const timespec time = {++second, 0};
        const timespec times[] = {time, time};
        return futimens(m_fd, times) == 0;
    }

    const int m_fd;
    bool m_isOk = false;
};

// A character that no text has, in place of "@" while the text is parsed.
const char16_t Mark = 0xFDD0;
const char MarkBytes[] = "\xEF\xB7\x90";

/** The value of a digit to the base 16; 16 for any other byte. */
int digitValue(char digit)
{
    const char digits[] = "0123456789abcdef";
    const char *const found = std::find(std::begin(digits), std::end(digits) - 1,
                                        static_cast<char>(std::tolower(uchar(digit))));
    return static_cast<int>(found - digits);
}

/**
 * The character that the escape at @p from stands for, a backslash with hexadecimal or octal
 * digits; @p end is then behind it. -1 for any other escape, which is two bytes long.
 */
int escapedCharacter(const QByteArray &content, int from, int &end)
{
    const bool isHexadecimal = from + 1 < content.size() && content.at(from + 1) == 'x';
    const int base = isHexadecimal ? 16 : 8;
    const int digits = from + (isHexadecimal ? 2 : 1);
    quint32 code = 0;
    for (end = digits; end < content.size() && digitValue(content.at(end)) < base; ++end) {
        code =
            code * static_cast<quint32>(base) + static_cast<quint32>(digitValue(content.at(end)));
    }
    if (end == digits && !isHexadecimal) {
        end = qMin(from + 2, content.size());
        return -1;
    }
    // The parser keeps the low 16 bits, too.
    return static_cast<quint16>(code);
}

/**
 * QSettings builds any object that a value such as "@Variant(...)" describes, however large or deep
 * it is. Here it is a text like any other, so each "@" is hidden from it.
 */
QByteArray withoutObjects(const QByteArray &content)
{
    QByteArray result;
    result.reserve(content.size());
    for (int i = 0; i < content.size();) {
        int end = i + 1;
        int character = static_cast<uchar>(content.at(i));
        if (character == '\\') {
            character = escapedCharacter(content, i, end);
        }
        if (character == '@') {
            result += MarkBytes;
        } else {
            result.append(content.constData() + i, end - i);
        }
        i = end;
    }
    return result;
}

/** A value with commas is a list to QSettings; its parts are put together again. */
QString toText(const QVariant &value)
{
    return value.toStringList().join(QLatin1Char(',')).replace(QChar(Mark), QLatin1Char('@'));
}

} // namespace

const TextTables::Table<CNetworkSettings::ENetworkMode> &modes()
{
    static const TextTables::Table<CNetworkSettings::ENetworkMode> table = {
        {CNetworkSettings::NETWORK_MODE_UNKNOWN, QStringLiteral("UNKNOWN")},
        {CNetworkSettings::NETWORK_MODE_DISABLED, QStringLiteral("DISABLED")},
        {CNetworkSettings::NETWORK_MODE_STATIC, QStringLiteral("STATIC")},
        {CNetworkSettings::NETWORK_MODE_ID_SWITCH, QStringLiteral("ID_SWITCH")},
        {CNetworkSettings::NETWORK_MODE_DHCP, QStringLiteral("DHCP")},
    };
    return table;
}

const TextTables::Table<CNetworkSettings::ENtpMode> &ntpModes()
{
    static const TextTables::Table<CNetworkSettings::ENtpMode> table = {
        {CNetworkSettings::NTP_MODE_UNKNOWN, QStringLiteral("UNKNOWN")},
        {CNetworkSettings::NTP_MODE_DISABLE, QStringLiteral("NTP_DISABLE")},
        {CNetworkSettings::NTP_MODE_DAEMON, QStringLiteral("NTP_DAEMON")},
        {CNetworkSettings::NTP_MODE_SET_ON_STARTUP, QStringLiteral("NTP_SET_ON_STARTUP")},
    };
    return table;
}

const QList<SKey> &keys()
{
    using S = CNetworkSettings;
    static const QList<SKey> table = {
        {QStringLiteral("MODE"), QStringLiteral("DISABLED"), KIND_MODE,
         [](const S &s) { return s.modeStr(); }, [](S &s, const QString &v) { s.setModeStr(v); },
         QStringLiteral("# KD3/KC2 Ethernet configuration\n"
                        "\n"
                        "# Mode: Mode of IP-Setting\n"
                        "# Available options: STATIC, DHCP, DISABLED (default), ID_SWITCH\n")},
        {QStringLiteral("ADDRESS"), QStringLiteral("0.0.0.0"), KIND_ADDRESS,
         [](const S &s) { return s.address(); }, [](S &s, const QString &v) { s.setAddress(v); },
         QStringLiteral("\n"
                        "# Address, subnet mask and gateway are only relevant in STATIC or "
                        "ID_SWITCH mode\n")},
        {QStringLiteral("SUBNETMASK"), QStringLiteral("255.255.0.0"), KIND_MASK,
         [](const S &s) { return s.subnetMask(); },
         [](S &s, const QString &v) { s.setSubnetMask(v); }, QString()},
        {QStringLiteral("GATEWAY"), QStringLiteral("0.0.0.0"), KIND_ADDRESS,
         [](const S &s) { return s.gateway(); }, [](S &s, const QString &v) { s.setGateway(v); },
         QString()},
        {QStringLiteral("SYSLOGTARGET"), QStringLiteral("0.0.0.0"), KIND_ADDRESS,
         [](const S &s) { return s.syslogAddress(); },
         [](S &s, const QString &v) { s.setSyslogAddress(v); },
         QStringLiteral("\n"
                        "# Syslog Receiver IP Address\n")},
        {QStringLiteral("NTP_TIMESERVER"), QStringLiteral("0.0.0.0"), KIND_OPTIONAL_ADDRESS,
         [](const S &s) { return s.ntpAddress(); },
         [](S &s, const QString &v) { s.setNtpAddress(v); },
         QStringLiteral("\n"
                        "\n"
                        "# NTP Time Server\n")},
        // "DISABLED" is no NTP mode, and is meant so: without this key the mode is unknown.
        {QStringLiteral("NTP_MODE"), QStringLiteral("DISABLED"), KIND_NTP_MODE,
         [](const S &s) { return s.ntpModeStr(); },
         [](S &s, const QString &v) { s.setNtpModeStr(v); },
         QStringLiteral("\n"
                        "# Available modes are:\n"
                        "#   NTP_DISABLE, Disable (default)\n"
                        "#   NTP_DAEMON, Run as daemon\n"
                        "#   NTP_SET_ON_STARTUP, Set time on system start up\n")},
        {QStringLiteral("NETCON_TARGET"), QStringLiteral("0.0.0.0"), KIND_ADDRESS,
         [](const S &s) { return s.netConsoleAddress(); },
         [](S &s, const QString &v) { s.setNetConsoleAddress(v); },
         QStringLiteral("\n"
                        "# Network Console Receiver IP and Port\n")},
        {QStringLiteral("NETCON_PORT"), QStringLiteral("6666"), KIND_PORT,
         [](const S &s) { return QString::number(s.netConsolePort()); },
         [](S &s, const QString &v) { s.setNetConsolePort(v.toUInt()); }, QString()},
        {QStringLiteral("KERNEL_LOGLEVEL"), QStringLiteral("4"), KIND_LOG_LEVEL,
         [](const S &s) { return s.kernelLogLevel(); },
         [](S &s, const QString &v) { s.setKernelLogLevel(v); },
         QStringLiteral("\n"
                        "# Kernel log\n")},
    };
    return table;
}

const SKey *findKey(const QString &name)
{
    const QList<SKey> &table = keys();
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&name](const SKey &key) { return key.name == name; });
    return found == table.end() ? nullptr : &*found;
}

bool readValues(const QByteArray &content, QHash<QString, QString> &values)
{
    const QByteArray byteOrderMark("\xEF\xBB\xBF");
    const bool isMarked = content.startsWith(byteOrderMark);
    const MemoryFile file(withoutObjects(isMarked ? content.mid(byteOrderMark.size()) : content));
    values.clear();
    if (!file.isOk()) {
        return false;
    }
    QSettings parser(file.name(), QSettings::IniFormat);
    parser.setIniCodec("UTF-8");
    for (const SKey &key : keys()) {
        const QVariant value = parser.value(key.name);
        if (value.isValid()) {
            values.insert(key.name, toText(value));
        }
    }
    return parser.status() != QSettings::AccessError;
}

} // namespace NetworkText
