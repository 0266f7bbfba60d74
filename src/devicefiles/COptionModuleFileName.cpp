#include "devicefiles/COptionModuleFileName.h"

#include "elements/FieldList.h"
#include "vocabulary/Texts.h"

#include <tuple>

namespace {

const QLatin1Char Separator('_');
const QLatin1Char Dot('.');
const QString SlotPrefix = QStringLiteral("OM");
const QString HardwarePrefix = QStringLiteral("H");
const QString SoftwarePrefix = QStringLiteral("V");

using OptionModuleFileNameTexts::Texts;

// Built for each use: matching changes a QRegExp, and the threads' names are independent.

QRegExp slotRegExp()
{
    return QRegExp(QStringLiteral(R"(^(OM\d+)$)"));
}

QRegExp interfaceRegExp()
{
    return QRegExp(QStringLiteral(R"(^([a-zA-Z]{2,})$)"));
}

QRegExp hardwareVersionRegExp()
{
    return QRegExp(QStringLiteral(R"(^(H\d+)$)"));
}

QRegExp softwareVersionRegExp()
{
    return QRegExp(QStringLiteral(R"(^(V\d+_\d+)$)"));
}

bool setIfMatching(const QRegExp &grammar, const QString &value, QString &field)
{
    const bool matches = grammar.exactMatch(value);
    if (matches) {
        field = value;
    }
    return matches;
}

/** Not by QFileInfo, which loses count in texts of more than 32767 characters. */
QString fileNameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

QString without(const QString &prefix, const QString &text)
{
    return text.startsWith(prefix) ? text.mid(prefix.size()) : text;
}

int orMinusOne(const QString &digits)
{
    bool isNumber = false;
    const int number = digits.toInt(&isNumber);
    return isNumber ? number : -1;
}

} // namespace

COptionModuleFileName::SOMFileName::~SOMFileName() = default;

template <typename Self>
auto COptionModuleFileName::SOMFileName::fields(Self &self)
{
    return std::tie(self.slot, self.interface, self.hardwareVersion, self.softwareVersion,
                    self.text, self.suffix);
}

COptionModuleFileName::COptionModuleFileName() = default;

COptionModuleFileName::COptionModuleFileName(const QString &path)
{
    setFileName(path);
}

COptionModuleFileName::COptionModuleFileName(const COptionModuleFileName &other) = default;
COptionModuleFileName::~COptionModuleFileName() = default;

COptionModuleFileName &
COptionModuleFileName::operator=(const COptionModuleFileName &other) = default;

COptionModuleFileName &COptionModuleFileName::operator=(const QString &path)
{
    setFileName(path);
    return *this;
}

bool COptionModuleFileName::operator==(const COptionModuleFileName &other) const
{
    return SOMFileName::fields(m_name) == SOMFileName::fields(other.m_name);
}

bool COptionModuleFileName::operator!=(const COptionModuleFileName &other) const
{
    return !(*this == other);
}

QString COptionModuleFileName::slot() const
{
    return m_name.slot;
}

bool COptionModuleFileName::setSlot(const QString &slot)
{
    return setIfMatching(slotRegExp(), slot, m_name.slot);
}

QString COptionModuleFileName::interface() const
{
    return m_name.interface;
}

bool COptionModuleFileName::setInterface(const QString &interface)
{
    return setIfMatching(interfaceRegExp(), interface, m_name.interface);
}

QString COptionModuleFileName::hardwareVersion() const
{
    return m_name.hardwareVersion;
}

bool COptionModuleFileName::setHardwareVersion(const QString &version)
{
    return setIfMatching(hardwareVersionRegExp(), version, m_name.hardwareVersion);
}

QString COptionModuleFileName::softwareVersion() const
{
    return m_name.softwareVersion;
}

bool COptionModuleFileName::setSoftwareVersion(const QString &version)
{
    return setIfMatching(softwareVersionRegExp(), version, m_name.softwareVersion);
}

QString COptionModuleFileName::text() const
{
    return m_name.text;
}

void COptionModuleFileName::setText(const QString &text)
{
    m_name.text = text;
}

QString COptionModuleFileName::suffix() const
{
    return m_name.suffix;
}

void COptionModuleFileName::setSuffix(const QString &suffix)
{
    m_name.suffix = suffix.mid(suffix.lastIndexOf(Dot) + 1);
}

int COptionModuleFileName::hardwareVersionAsInt() const
{
    return orMinusOne(without(HardwarePrefix, m_name.hardwareVersion));
}

int COptionModuleFileName::softwareMajorVersionAsInt() const
{
    return orMinusOne(without(SoftwarePrefix, m_name.softwareVersion.section(Separator, 0, 0)));
}

int COptionModuleFileName::softwareMinorVersionAsInt() const
{
    return orMinusOne(m_name.softwareVersion.section(Separator, -1));
}

QString COptionModuleFileName::descriptionForSlot(const QString &slot)
{
    bool isNumber = false;
    const int number = without(SlotPrefix, slot).toInt(&isNumber);
    return isNumber ? Texts::tr("Option Modul slot %1").arg(QString::number(number))
                    : Texts::tr("Unknown");
}

QString COptionModuleFileName::descriptionForInterface(const QString &interface)
{
    const struct {
        QLatin1String interface;
        QString description;
    } rows[] = {
        {QLatin1String("AI"), Texts::tr("Analog interface")},
        {QLatin1String("IO"), Texts::tr("Expansion IO modul")},
        {QLatin1String("EC"), Texts::tr("EtherCAT")},
        {QLatin1String("CA"), Texts::tr("CAN-Bus")},
    };
    for (const auto &row : rows) {
        if (interface.compare(row.interface, Qt::CaseInsensitive) == 0) {
            return row.description;
        }
    }
    return Texts::tr("Unknown interface");
}

QString COptionModuleFileName::slotDescription(const QString &slot)
{
    return slotRegExp().exactMatch(slot) ? descriptionForSlot(slot) : QString();
}

QString COptionModuleFileName::interfaceDescription(const QString &interface)
{
    return interfaceRegExp().exactMatch(interface) ? descriptionForInterface(interface) : QString();
}

QString COptionModuleFileName::slotDescription() const
{
    return descriptionForSlot(m_name.slot);
}

QString COptionModuleFileName::interfaceDescription() const
{
    return descriptionForInterface(m_name.interface);
}

QRegExp COptionModuleFileName::fullRegExp()
{
    return QRegExp(QStringLiteral(
        R"(^(OM\d+_){1}([a-zA-Z]{2,}_){1}(H\d+_){1}(V\d+_\d+){1}(_{1}\w+)?(\.\w+){1}$)"));
}

QString COptionModuleFileName::standardSuffix()
{
    return QStringLiteral("bin");
}

QString COptionModuleFileName::fileName() const
{
    if (isEmpty()) {
        return QString();
    }
    // All at once: a part that holds a place marker must not be taken for one.
    QString name =
        QStringLiteral("%1_%2_%3_%4")
            .arg(m_name.slot, m_name.interface, m_name.hardwareVersion, m_name.softwareVersion);
    if (!m_name.text.isEmpty()) {
        name += Separator + m_name.text;
    }
    return name + Dot + (m_name.suffix.isEmpty() ? standardSuffix() : m_name.suffix);
}

COptionModuleFileName::operator QString() const
{
    return fileName();
}

void COptionModuleFileName::setFileName(const QString &path)
{
    clear();
    const QString fileName = fileNameOf(path);
    if (!isValid(fileName)) {
        return;
    }
    try {
        const int dot = fileName.lastIndexOf(Dot);
        setSuffix(fileName.mid(dot + 1));
        // Slot, interface, hardware version, two numbers of the software version, text.
        const QStringList parts = fileName.left(dot).split(Separator);
        setSoftwareVersion(parts.at(3) + Separator + parts.at(4));
        setHardwareVersion(parts.at(2));
        setInterface(parts.at(1));
        setSlot(parts.at(0));
        setText(QStringList(parts.mid(5)).join(Separator));
    } catch (...) {
        clear();
        throw;
    }
}

bool COptionModuleFileName::isValid() const
{
    return fullRegExp().exactMatch(fileName());
}

bool COptionModuleFileName::isValid(const QString &path)
{
    return fullRegExp().exactMatch(fileNameOf(path));
}

void COptionModuleFileName::clear()
{
    m_name = SOMFileName();
}

bool COptionModuleFileName::isEmpty() const
{
    const SOMFileName empty;
    return SOMFileName::fields(m_name) == SOMFileName::fields(empty);
}

bool COptionModuleFileName::isNull() const
{
    return isEmpty();
}

QDataStream &operator<<(QDataStream &stream, const COptionModuleFileName &name)
{
    std::apply([&stream](const auto &...field) { (stream << ... << field); },
               COptionModuleFileName::SOMFileName::fields(name.m_name));
    return stream;
}

QDataStream &operator>>(QDataStream &stream, COptionModuleFileName &name)
{
    std::apply([&stream](auto &...field) { (FieldList::readField(stream, field), ...); },
               COptionModuleFileName::SOMFileName::fields(name.m_name));
    return stream;
}
