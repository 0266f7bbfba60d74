#include "commissioning/compare/ConfigurationWords.h"

#include "commissioning/items/ItemPath.h"
#include "commissioning/Texts.h"
#include "configfile/ShapePaths.h"
#include "storage/PrintableText.h"

namespace {

using ConfigurationPatchTexts::Texts;

/** Lists, and words that the description of the document does not have, stand for themselves. */
QString translated(const QString &path, const QString &word)
{
    const ConfigurationShape::SNode *const node = ShapePaths::find(path);
    return node == nullptr || node->isList() ? ConfigurationWords::shown(word)
                                             : ConfigurationShape::label(node->text);
}

QString entry(const SItemPath &path)
{
    if (!path.isInList()) {
        return translated(path.list, path.list);
    }
    QString key = ConfigurationWords::shown(path.key);
    if (path.number > 1) {
        key = QStringLiteral("%1 [%2]").arg(key, QString::number(path.number));
    }
    const ConfigurationShape::SNode *const node = ShapePaths::find(path.list);
    return node == nullptr ? QStringLiteral("%1 %2").arg(ConfigurationWords::shown(path.list), key)
                           : ConfigurationShape::label(node->text).arg(key);
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
    const QString text = translated(ItemPath::joined(path.list, part), part);
    return path.isInList() ? joined(entry(path), text) : text;
}

QString lastWord(const QString &item)
{
    return item.section(QLatin1Char('.'), -1);
}

bool needsEscape(QChar c)
{
    switch (c.category()) {
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_NotAssigned:
        return true;
    default:
        return PrintableText::isCommand(c);
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

QString ConfigurationWords::item(const SItemPath &path)
{
    return path.item.isEmpty()
        ? Texts::tr("argument")
        : translated(ItemPath::joined(path.list, path.item), lastWord(path.item));
}

QString ConfigurationWords::item(const SItemPath &path, const QString &below)
{
    SItemPath itemPath = path;
    itemPath.item = ItemPath::joined(path.item, below);
    const QString part = path.item.isEmpty() ? partOf(below) : QString();
    return part.isEmpty()
        ? item(itemPath)
        : joined(translated(ItemPath::joined(path.list, part), part), item(itemPath));
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
            quoted += PrintableText::escaped(c);
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
