#include "settings/NetworkText.h"

#include "storage/MemoryResource.h"

#include <QSettings>

#include <algorithm>
#include <cctype>
#include <iterator>

namespace NetworkText {

namespace {

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
 * The character that the escape at @p from of a line stands for, a backslash with hexadecimal or
 * octal digits; -1 for any other. @p end is behind the escape.
 */
int escapedCharacter(const QByteArray &line, int from, int &end)
{
    const bool isHexadecimal = line.mid(from + 1, 1) == "x";
    const int base = isHexadecimal ? 16 : 8;
    const int digits = from + (isHexadecimal ? 2 : 1);
    quint32 code = 0;
    for (end = digits; end < line.size() && digitValue(line.at(end)) < base; ++end) {
        code = code * static_cast<quint32>(base) + static_cast<quint32>(digitValue(line.at(end)));
    }
    if (end == digits && !isHexadecimal) {
        end = qMin(digits + 1, line.size());
        return -1;
    }
    // The parser keeps the low 16 bits, too.
    return static_cast<quint16>(code);
}

void appendWithoutObjects(const QByteArray &line, QByteArray &result)
{
    for (int i = 0; i < line.size();) {
        int end = i + 1;
        int character = static_cast<uchar>(line.at(i));
        if (character == '\\') {
            character = escapedCharacter(line, i, end);
        }
        if (character == '@') {
            result += MarkBytes;
        } else {
            result.append(line.constData() + i, end - i);
        }
        i = end;
    }
}

void appendPrepared(QByteArray line, QByteArray &result)
{
    int start = 0;
    while (start < line.size() && (line.at(start) == ' ' || line.at(start) == '\t')) {
        ++start;
    }
    const QByteArray first = line.mid(start, 1);
    if (first == "#") {
        line[start] = ';';
    }
    appendWithoutObjects(line, result);
    if (first == "[" && !line.contains(']')) {
        result += ']';
    }
}

/**
 * The content in a form in which QSettings reads it as it is meant:
 * - "#" begins a comment; to QSettings only ";" does, and it would take a quotation mark in such a
 *   line for one.
 * - A value such as "@Variant(...)" is a text; QSettings would build the object that it describes,
 *   however large or deep that is. So each "@" is hidden.
 * - A section is closed; otherwise QSettings would look for its end in all that follows, again with
 *   each such line.
 */
QByteArray prepared(const QByteArray &content)
{
    QByteArray result;
    result.reserve(content.size());
    for (int from = 0; from < content.size();) {
        const int end = lineEnd(content, from);
        appendPrepared(content.mid(from, end - from), result);
        result += content.mid(end, 1);
        from = end + 1;
    }
    return result;
}

/** A value with commas is a list to QSettings; its parts are put together again. */
QString toText(const QVariant &value)
{
    return value.toStringList().join(QLatin1Char(',')).replace(QChar(Mark), QLatin1Char('@'));
}

/** Has @p content parsed, and @p use the parser: QSettings & -> void. @return whether it could */
template <typename Use>
bool parse(const QByteArray &content, Use use)
{
    const MemoryResource resource(prepared(withoutByteOrderMark(content)));
    if (!resource.isOk()) {
        return false;
    }
    QSettings parser(resource.name(), QSettings::IniFormat);
    parser.setIniCodec("UTF-8");
    use(parser);
    return parser.status() != QSettings::AccessError;
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

/** The keys in the order of the file, each with the lines of comment before it: one long table. */
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
        // "DISABLED" is deliberately not an NTP mode: without this key the mode is unknown.
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

QStringList keyNames()
{
    QStringList names;
    for (const SKey &key : keys()) {
        names << key.name;
    }
    return names;
}

const SKey *findKey(const QString &name)
{
    const QList<SKey> &table = keys();
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&name](const SKey &key) { return key.name == name; });
    return found == table.end() ? nullptr : &*found;
}

QByteArray withoutByteOrderMark(const QByteArray &content)
{
    const QByteArray mark("\xEF\xBB\xBF");
    return content.startsWith(mark) ? content.mid(mark.size()) : content;
}

int lineEnd(const QByteArray &content, int from)
{
    int end = from;
    while (end < content.size() && content.at(end) != '\n' && content.at(end) != '\r') {
        ++end;
    }
    return end;
}

bool readValues(const QByteArray &content, QHash<QString, QString> &values)
{
    values.clear();
    return parse(content, [&values](const QSettings &parser) {
        for (const SKey &key : keys()) {
            const QVariant value = parser.value(key.name);
            if (value.isValid()) {
                values.insert(key.name, toText(value));
            }
        }
    });
}

QStringList readNames(const QByteArray &content)
{
    QStringList names;
    parse(content, [&names](const QSettings &parser) { names = parser.allKeys(); });
    return names;
}

} // namespace NetworkText
