#include "settings/CNetworkSettingsCheck.h"

#include "settings/CNetworkSettingsFile.h"
#include "settings/NetworkText.h"
#include "vocabulary/NvrnGlobal.h"

#include <QCoreApplication>
#include <QRegExp>
#include <QTextStream>

#include <algorithm>

namespace {

using Check = CNetworkSettingsCheck;

/** The texts of this class, under the context in which they are translated. */
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CNetworkSettingsCheck)
};

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

/** Empty when @p value is one of the texts in @p table, whose first row is no choice. */
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
    return Texts::tr("'%1' is none of %2.").arg(value, choices.join(QStringLiteral(", ")));
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
            return Texts::tr("'%1' is no IPv4 address, such as 192.168.1.10.").arg(value);
        }
        break;
    case KIND_MASK:
        if (!matches(NvrnGlobal::IPV4_SUBNET_PATTERN, value)) {
            return Texts::tr("'%1' is no subnet mask, such as 255.255.255.0.").arg(value);
        }
        break;
    case KIND_PORT: {
        bool isNumber = false;
        const uint port = value.toUInt(&isNumber);
        if (!isNumber || port == 0 || port > HighestPort) {
            return Texts::tr("'%1' is no port number, 1 to 65535.").arg(value);
        }
        break;
    }
    case KIND_LOG_LEVEL: {
        CNetworkSettings settings;
        settings.setKernelLogLevel(value);
        if (settings.kernelLogLevel() != value) {
            return Texts::tr("'%1' is no kernel log level, 0 to 7.").arg(value);
        }
        break;
    }
    }
    return QString();
}

/** Where each key stands, and what is wrong with the lines themselves. */
class Lines
{
public:
    explicit Lines(const QByteArray &content)
    {
        // Not QTextStream::readLine(): a lone carriage return ends a line, too.
        QString text = QString::fromUtf8(content);
        text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
        const QVector<QStringRef> lines = text.splitRef(QLatin1Char('\n'));
        for (int i = 0; i < lines.size(); ++i) {
            take(lines.at(i).trimmed().toString(), i + 1);
        }
    }

    int lineOf(const QString &key) const { return m_lines.value(key); }

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
    void take(const QString &line, int number)
    {
        const int equals = line.indexOf(QLatin1Char('='));
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))
            || line.startsWith(QLatin1Char(';'))) {
            return;
        }
        if (line.startsWith(QLatin1Char('['))) {
            // The one section that is the same to the parser as none.
            m_inSection = line.compare(QLatin1String("[General]"), Qt::CaseInsensitive) != 0;
            if (m_inSection) {
                m_findings.append({Check::FINDING_SECTION, number, QString(),
                                   Texts::tr("A section begins: no key in it is read.")});
            }
        } else if (equals < 0) {
            m_findings.append({Check::FINDING_NO_ASSIGNMENT, number, QString(),
                               Texts::tr("This is neither KEY=value nor a comment.")});
        } else if (!m_inSection) {
            takeKey(line.left(equals).trimmed(), number);
        }
    }

    void takeKey(const QString &key, int number)
    {
        if (NetworkText::findKey(key) == nullptr) {
            m_findings.append(
                {Check::FINDING_UNKNOWN_KEY, number, key, Texts::tr("There is no such key.")});
            return;
        }
        if (m_lines.contains(key)) {
            m_findings.append(
                {Check::FINDING_REPEATED_KEY, number, key,
                 Texts::tr("This replaces what line %1 tells.").arg(QString::number(lineOf(key)))});
        }
        m_lines.insert(key, number);
    }

    QHash<QString, int> m_lines;
    QList<Check::SFinding> m_findings;
    bool m_inSection = false;
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
        key.set(settings, values.value(key.name, key.missingValue));
        if (values.contains(key.name)) {
            const QString problem = problemOf(key, values.value(key.name));
            if (!problem.isEmpty()) {
                lines.add(FINDING_BAD_VALUE, key.name, problem);
            }
        } else if (lines.lineOf(key.name) > 0) {
            lines.add(
                FINDING_NOT_READ, key.name,
                Texts::tr("This line is not read: it belongs to a quotation mark or backslash "
                          "before it."));
        }
    }
    checkSubnet(settings, lines);
    return lines.findings();
}

QString CNetworkSettingsCheck::problem(const QString &key, const QString &value)
{
    const NetworkText::SKey *const found = NetworkText::findKey(key);
    return found == nullptr ? Texts::tr("There is no such key.") : problemOf(*found, value);
}
