#include "settings/CNetworkSettingsCheck.h"

#include "settings/CNetworkSettingsFile.h"
#include "settings/NetworkText.h"
#include "vocabulary/NvrnGlobal.h"
#include "vocabulary/Texts.h"

#include <QRegExp>

#include <algorithm>

namespace {

using Check = CNetworkSettingsCheck;

using NetworkSettingsCheckTexts::Texts;

const uint HighestPort = 65535;

bool matches(const QString &pattern, const QString &value)
{
    return QRegExp(pattern).exactMatch(value);
}

/** The number that an address which matches its pattern stands for. */
quint32 toNumber(const QString &address)
{
    quint32 number = 0;
    for (const QString &octet : address.split(QLatin1Char('.'))) {
        number = (number << 8) + octet.toUInt();
    }
    return number;
}

/** Empty when @p value is one of the texts in @p table, whose first row cannot be chosen. */
template <typename Value>
QString problemOfMode(const TextTables::Table<Value> &table, const QString &value)
{
    QStringList choices;
    for (const TextTables::SRow<Value> &row : table.mid(1)) {
        choices << row.text;
    }
    if (choices.contains(value, Qt::CaseInsensitive)) {
        return QString();
    }
    return Texts::tr("'%1' is not one of %2.").arg(value, choices.join(QStringLiteral(", ")));
}

QString problemOf(const NetworkText::SKey &key, const QString &value)
{
    using namespace NetworkText;
    switch (key.kind) {
    case KIND_MODE:
        return problemOfMode(modes(), value);
    case KIND_NTP_MODE:
        return problemOfMode(ntpModes(), value);
    case KIND_OPTIONAL_ADDRESS:
        if (value.isEmpty()) {
            return QString();
        }
        Q_FALLTHROUGH();
    case KIND_ADDRESS:
        if (!matches(NvrnGlobal::IPV4_PATTERN, value)) {
            return Texts::tr("'%1' is not a valid IPv4 address; write one such as 192.168.1.10.")
                .arg(value);
        }
        break;
    case KIND_MASK:
        if (!matches(NvrnGlobal::IPV4_SUBNET_PATTERN, value)) {
            return Texts::tr("'%1' is not a valid subnet mask; write one such as 255.255.255.0.")
                .arg(value);
        }
        break;
    case KIND_PORT: {
        bool isNumber = false;
        const uint port = value.toUInt(&isNumber);
        if (!isNumber || port == 0 || port > HighestPort) {
            return Texts::tr("'%1' is not a valid port number; write a number from 1 to 65535.")
                .arg(value);
        }
        break;
    }
    case KIND_LOG_LEVEL: {
        CNetworkSettings settings;
        settings.setKernelLogLevel(value);
        if (settings.kernelLogLevel() != value) {
            return Texts::tr("'%1' is not a valid kernel log level; write a number from 0 to 7.")
                .arg(value);
        }
        break;
    }
    }
    return QString();
}

/**
 * The lines of a file as the parser sees them. It reports no lines, and whether a line counts
 * depends on quotation marks, backslashes and sections before it; so it is given a copy of the file
 * in which the name of each key carries the number of its line, and is asked what it has read.
 */
class Lines
{
public:
    explicit Lines(const QByteArray &content)
    {
        const QByteArray text = NetworkText::withoutByteOrderMark(content);
        QByteArray tagged;
        for (int from = 0; from < text.size();) {
            const int end = NetworkText::lineEnd(text, from);
            addLine(text.mid(from, end - from), tagged);
            from = end + (text.mid(end, 2) == "\r\n" ? 2 : 1);
        }
        readTagged(tagged);
        for (const SLine &line : m_lines) {
            check(line);
        }
    }

    /** The line that counts for @p key; 0 when there is none. */
    int lineOf(const QString &key) const { return m_lineOfKey.value(key); }

    void add(Check::EFinding finding, const QString &key, const QString &message)
    {
        m_findings.append({finding, lineOf(key), key, message});
    }

    QList<Check::SFinding> findings() const
    {
        QList<Check::SFinding> sorted = m_findings;
        std::stable_sort(sorted.begin(), sorted.end(), [](const auto &left, const auto &right) {
            return left.line < right.line;
        });
        return sorted;
    }

private:
    struct SLine {
        int number;
        bool isSection;
        bool isAssignment;
        QString key;
    };

    // Not in any name that means something.
    static const char Tag = '\x1F';

    static QByteArray trimmed(const QByteArray &line)
    {
        int from = 0;
        int end = line.size();
        const auto isBlank = [&line](int i) { return line.at(i) == ' ' || line.at(i) == '\t'; };
        while (from < end && isBlank(from)) {
            ++from;
        }
        while (from < end && isBlank(end - 1)) {
            --end;
        }
        return line.mid(from, end - from);
    }

    /** The name by which a section or key in the line @p number is known to the parser. */
    static QByteArray taggedName(const QByteArray &name, int number)
    {
        return name + Tag + QByteArray::number(number);
    }

    void addLine(const QByteArray &text, QByteArray &tagged)
    {
        ++m_count;
        const QByteArray line = trimmed(text);
        const bool isComment = line.isEmpty() || line.startsWith('#') || line.startsWith(';');
        const bool isSection = line.startsWith('[');
        const int equals = line.indexOf('=');
        // As the parser, which knows keys with "%" and two hexadecimal digits for a character.
        const QByteArray key = isSection || equals < 0
            ? QByteArray()
            : QByteArray::fromPercentEncoding(trimmed(line.left(equals)));
        const QString name = QString::fromUtf8(key);
        if (!isComment) {
            m_lines.append({m_count, isSection, equals >= 0, name});
        }
        if (!isComment && NetworkText::findKey(name) != nullptr) {
            tagged += taggedName(key, m_count) + line.mid(equals);
        } else {
            tagged += line;
        }
        tagged += '\n';
        if (isSection) {
            tagged += taggedName(QByteArray(), m_count) + "=\n";
        }
    }

    void readTagged(const QByteArray &tagged)
    {
        for (const QString &name : NetworkText::readNames(tagged)) {
            const int behindSection = name.lastIndexOf(QLatin1Char('/')) + 1;
            m_isInSectionByName.insert(name.mid(behindSection), behindSection > 0);
        }
    }

    void check(const SLine &line)
    {
        const QString name = line.key + QLatin1Char(Tag) + QString::number(line.number);
        const bool isRead = m_isInSectionByName.contains(name);
        if (line.isSection) {
            m_isInSection = m_isInSectionByName.value(name, m_isInSection);
            if (isRead && m_isInSection) {
                tell(Check::FINDING_SECTION, line,
                     Texts::tr("A section begins here; its keys are ignored."));
            }
        } else if (!line.isAssignment) {
            tell(Check::FINDING_NO_ASSIGNMENT, line,
                 Texts::tr("This is neither KEY=value nor a comment."));
        } else if (m_isInSection) {
            return;
        } else if (NetworkText::findKey(line.key) == nullptr) {
            tell(Check::FINDING_UNKNOWN_KEY, line, Texts::tr("Unknown key."));
        } else if (!isRead) {
            tell(Check::FINDING_NOT_READ, line,
                 Texts::tr("This line is ignored: it belongs to a quotation mark or backslash "
                           "before it."));
        } else {
            takeKey(line);
        }
    }

    void takeKey(const SLine &line)
    {
        if (m_lineOfKey.contains(line.key)) {
            tell(Check::FINDING_REPEATED_KEY, line,
                 Texts::tr("This overrides the value in line %1.")
                     .arg(QString::number(lineOf(line.key))));
        }
        m_lineOfKey.insert(line.key, line.number);
    }

    void tell(Check::EFinding finding, const SLine &line, const QString &message)
    {
        m_findings.append({finding, line.number, line.key, message});
    }

    QList<SLine> m_lines;
    /** Of what the parser has read, by its name with the number of its line. */
    QHash<QString, bool> m_isInSectionByName;
    QHash<QString, int> m_lineOfKey;
    QList<Check::SFinding> m_findings;
    int m_count = 0;
    bool m_isInSection = false;
};

void checkSubnet(const CNetworkSettings &settings, Lines &lines)
{
    const QString address = settings.address();
    const QString gateway = settings.gateway();
    const QString mask = settings.subnetMask();
    if (settings.mode() != CNetworkSettings::NETWORK_MODE_STATIC
        || !matches(NvrnGlobal::IPV4_PATTERN, address)
        || !matches(NvrnGlobal::IPV4_PATTERN, gateway)
        || !matches(NvrnGlobal::IPV4_SUBNET_PATTERN, mask)) {
        return;
    }
    if (toNumber(address) == 0) {
        lines.add(Check::FINDING_NO_ADDRESS, QStringLiteral("ADDRESS"),
                  Texts::tr("The mode STATIC needs an address."));
    } else if (toNumber(gateway) != 0
               && ((toNumber(address) ^ toNumber(gateway)) & toNumber(mask)) != 0) {
        lines.add(Check::FINDING_OTHER_SUBNET, QStringLiteral("GATEWAY"),
                  Texts::tr("The gateway %1 is not in the subnet of the address %2, mask %3.")
                      .arg(gateway, address, mask));
    }
}

} // namespace

QList<CNetworkSettingsCheck::SFinding> CNetworkSettingsCheck::check(const QByteArray &content)
{
    Lines lines(content);
    QHash<QString, QString> values;
    NetworkText::readValues(content, values);
    CNetworkSettings settings;
    for (const NetworkText::SKey &key : NetworkText::keys()) {
        const QString value = values.value(key.name, key.missingValue);
        key.set(settings, value);
        const QString problem = values.contains(key.name) ? problemOf(key, value) : QString();
        if (!problem.isEmpty()) {
            lines.add(FINDING_BAD_VALUE, key.name, problem);
        }
    }
    checkSubnet(settings, lines);
    return lines.findings();
}

QString CNetworkSettingsCheck::problem(const QString &key, const QString &value)
{
    const NetworkText::SKey *const found = NetworkText::findKey(key);
    return found == nullptr ? Texts::tr("Unknown key.") : problemOf(*found, value);
}
