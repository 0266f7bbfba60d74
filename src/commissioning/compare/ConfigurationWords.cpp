#include "commissioning/compare/ConfigurationWords.h"

#include "commissioning/Texts.h"

#include <algorithm>

namespace {

using ConfigurationPatchTexts::Texts;

/** A word of a path, and what stands for it; the text is translated when it is used. */
struct SWord {
    const char *word;
    const char *text;
};

/** Entries of lists; %1 is the key. */
const SWord Entries[] = {
    {"device.options", QT_TRANSLATE_NOOP("CConfigurationPatch", "option %1")},
    {"device.parameterFiles", QT_TRANSLATE_NOOP("CConfigurationPatch", "parameter file %1")},
    {"device.fpgaFiles", QT_TRANSLATE_NOOP("CConfigurationPatch", "FPGA image %1")},
    {"device.opcUaFiles", QT_TRANSLATE_NOOP("CConfigurationPatch", "OPC UA file %1")},
    {"device.plugins", QT_TRANSLATE_NOOP("CConfigurationPatch", "plug-in %1")},
    {"drive", QT_TRANSLATE_NOOP("CConfigurationPatch", "drive %1")},
    {"files", QT_TRANSLATE_NOOP("CConfigurationPatch", "file %1")},
};

/** What is there once, and single files. */
const SWord Holders[] = {
    {"description", QT_TRANSLATE_NOOP("CConfigurationPatch", "description")},
    {"device", QT_TRANSLATE_NOOP("CConfigurationPatch", "device")},
    {"dictionary", QT_TRANSLATE_NOOP("CConfigurationPatch", "object dictionary")},
    {"faultTextFile", QT_TRANSLATE_NOOP("CConfigurationPatch", "fault texts")},
    {"etherCatMasterFile", QT_TRANSLATE_NOOP("CConfigurationPatch", "EtherCAT master file")},
    {"param", QT_TRANSLATE_NOOP("CConfigurationPatch", "parameter file")},
    {"kd2Param", QT_TRANSLATE_NOOP("CConfigurationPatch", "KD2 parameter file")},
    {"kd2Logic", QT_TRANSLATE_NOOP("CConfigurationPatch", "KD2 logic")},
    {"kd2Firmware", QT_TRANSLATE_NOOP("CConfigurationPatch", "KD2 firmware")},
};

const SWord Items[] = {
    {"", QT_TRANSLATE_NOOP("CConfigurationPatch", "argument")},
    {"name", QT_TRANSLATE_NOOP("CConfigurationPatch", "name")},
    {"comment", QT_TRANSLATE_NOOP("CConfigurationPatch", "comment")},
    {"version", QT_TRANSLATE_NOOP("CConfigurationPatch", "version")},
    {"creationDate", QT_TRANSLATE_NOOP("CConfigurationPatch", "creation date")},
    {"revisionDate", QT_TRANSLATE_NOOP("CConfigurationPatch", "revision date")},
    {"class", QT_TRANSLATE_NOOP("CConfigurationPatch", "class")},
    {"hardwareId", QT_TRANSLATE_NOOP("CConfigurationPatch", "hardware identity")},
    {"configurationName", QT_TRANSLATE_NOOP("CConfigurationPatch", "configuration name")},
    {"executionPlugin", QT_TRANSLATE_NOOP("CConfigurationPatch", "execution plug-in")},
    {"opcUaEnabled", QT_TRANSLATE_NOOP("CConfigurationPatch", "OPC UA enabled")},
    {"activeFpgaFile", QT_TRANSLATE_NOOP("CConfigurationPatch", "active FPGA image")},
    {"type", QT_TRANSLATE_NOOP("CConfigurationPatch", "type")},
    {"busId", QT_TRANSLATE_NOOP("CConfigurationPatch", "bus identifier")},
    {"priority", QT_TRANSLATE_NOOP("CConfigurationPatch", "priority")},
    {"deviceDir", QT_TRANSLATE_NOOP("CConfigurationPatch", "device directory")},
    {"projectDir", QT_TRANSLATE_NOOP("CConfigurationPatch", "project directory")},
};

template <std::size_t Size>
const SWord *find(const SWord (&table)[Size], const QString &word)
{
    const auto row = std::find_if(std::begin(table), std::end(table), [&](const SWord &candidate) {
        return word == QLatin1String(candidate.word);
    });
    return row == std::end(table) ? nullptr : row;
}

/** Words that are in no table stand for themselves. */
template <std::size_t Size>
QString translated(const SWord (&table)[Size], const QString &word)
{
    const SWord *const row = find(table, word);
    return row == nullptr ? ConfigurationWords::shown(word) : Texts::tr(row->text);
}

QString entry(const SItemPath &path)
{
    if (!path.isInList()) {
        return translated(Holders, path.list);
    }
    QString key = ConfigurationWords::shown(path.key);
    if (path.number > 1) {
        key = QStringLiteral("%1 [%2]").arg(key, QString::number(path.number));
    }
    const SWord *const row = find(Entries, path.list);
    return row == nullptr ? QStringLiteral("%1 %2").arg(ConfigurationWords::shown(path.list), key)
                          : Texts::tr(row->text).arg(key);
}

QString partOf(const QString &item)
{
    return item.left(qMax(item.indexOf(QLatin1Char('.')), 0));
}

QString joined(const QString &outer, const QString &inner)
{
    return QStringLiteral("%1: %2").arg(outer, inner);
}

QString subjectOfPart(const SItemPath &path, const QString &part)
{
    if (part.isEmpty()) {
        return entry(path);
    }
    const QString text = translated(Holders, part);
    return path.isInList() ? joined(entry(path), text) : text;
}

bool needsEscape(QChar c)
{
    switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

QString escaped(QChar c)
{
    switch (c.unicode()) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        return QStringLiteral("\\u%1").arg(static_cast<uint>(c.unicode()), 4, 16, QLatin1Char('0'));
    }
}

} // namespace

QString ConfigurationWords::subject(const SItemPath &path)
{
    return subjectOfPart(path, partOf(path.item));
}

QString ConfigurationWords::subject(const SItemPath &path, const QString &name)
{
    const QString text = subjectOfPart(path, path.item);
    return name.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, shown(name));
}

QString ConfigurationWords::item(const QString &item)
{
    const QString part = partOf(item);
    if (part.isEmpty()) {
        return translated(Items, item);
    }
    return joined(translated(Holders, part), translated(Items, item.mid(part.size() + 1)));
}

QString ConfigurationWords::shown(const QString &text)
{
    if (text.isEmpty()) {
        return Texts::tr("(empty)");
    }
    bool isPlain = !text.startsWith(QLatin1Char('"')) && text != Texts::tr("(empty)")
        && !text.front().isSpace() && !text.back().isSpace()
        && !text.contains(QLatin1String(" -> "));
    QString quoted;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isPair =
            c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair) {
            quoted += c;
            quoted += text.at(++i);
        } else if (needsEscape(c)) {
            quoted += escaped(c);
            isPlain = false;
        } else {
            if (c == QLatin1Char('"') || c == QLatin1Char('\\')) {
                quoted += QLatin1Char('\\');
            }
            quoted += c;
        }
    }
    return isPlain ? text : QStringLiteral("\"%1\"").arg(quoted);
}
