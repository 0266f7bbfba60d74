#include "commissioning/CConfigurationPatch.h"

#include "commissioning/compare/ConfigurationChanges.h"
#include "commissioning/compare/ConfigurationWords.h"
#include "commissioning/Texts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

namespace {

using ConfigurationPatchTexts::Texts;

using SChange = CConfigurationPatch::SChange;

const QString Format = QStringLiteral("vrn-configuration-patch");
const int Version = 1;

const QString FormatKey = QStringLiteral("format");
const QString VersionKey = QStringLiteral("version");
const QString ChangesKey = QStringLiteral("changes");
const QString ChangeKey = QStringLiteral("change");
const QString PathKey = QStringLiteral("path");
const QString BeforeKey = QStringLiteral("before");
const QString AfterKey = QStringLiteral("after");
const QString ItemsKey = QStringLiteral("items");
const QString ItemKey = QStringLiteral("item");
const QString ValueKey = QStringLiteral("value");

/** What each kind of change is called, and what is told of it. */
struct SKind {
    const char *name;
    CConfigurationPatch::EChange change;
    bool hasItems;
    bool hasAfter;
};

const SKind Kinds[] = {
    {"addEntry", CConfigurationPatch::ADD_ENTRY, true, false},
    {"removeEntry", CConfigurationPatch::REMOVE_ENTRY, true, false},
    {"setItem", CConfigurationPatch::SET_ITEM, false, true},
    {"removeItem", CConfigurationPatch::REMOVE_ITEM, false, false},
};

const SKind &kindOf(CConfigurationPatch::EChange change)
{
    return *std::find_if(std::begin(Kinds), std::end(Kinds),
                         [change](const SKind &kind) { return kind.change == change; });
}

QJsonObject toObject(const SChange &change)
{
    const SKind &kind = kindOf(change.change);
    QJsonObject object = {{ChangeKey, QLatin1String(kind.name)}, {PathKey, change.path}};
    if (kind.hasItems) {
        QJsonArray items;
        for (const CConfigurationItems::SItem &item : change.items) {
            items.append(QJsonObject{{ItemKey, item.path}, {ValueKey, item.value}});
        }
        object.insert(ItemsKey, items);
        return object;
    }
    object.insert(BeforeKey, change.before);
    if (kind.hasAfter) {
        object.insert(AfterKey, change.after);
    }
    return object;
}

/** Reads one patch; the first thing that is wrong is kept as the reason. */
class Reader
{
public:
    bool read(const QByteArray &json, QList<SChange> &changes)
    {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(json, &error);
        if (error.error != QJsonParseError::NoError) {
            return fail(Texts::tr("This is not JSON: %1, at byte %2.")
                            .arg(error.errorString(), QString::number(error.offset)));
        }
        const QJsonObject root = document.object();
        if (root.value(FormatKey) != Format) {
            return fail(
                Texts::tr("This is not a patch: \"%1\" is not \"%2\".").arg(FormatKey, Format));
        }
        if (root.value(VersionKey) != Version) {
            return fail(
                Texts::tr("The version of the patch is not supported; version %1 is required.")
                    .arg(Version));
        }
        return checkKeys(root, {FormatKey, VersionKey, ChangesKey})
            && readChanges(root.value(ChangesKey).toArray(), changes);
    }

    QString errorText() const { return m_errorText; }

private:
    bool fail(const QString &reason)
    {
        m_errorText = m_place.isEmpty() ? reason : QStringLiteral("%1: %2").arg(m_place, reason);
        return false;
    }

    /** Whether the object has these keys, with values of the right type, and no others. */
    bool checkKeys(const QJsonObject &object, const QStringList &keys)
    {
        for (const QString &key : keys) {
            const QJsonValue value = object.value(key);
            if (value.isUndefined()) {
                return fail(Texts::tr("\"%1\" is missing.").arg(key));
            }
            if ((key == ChangesKey || key == ItemsKey) && !value.isArray()) {
                return fail(Texts::tr("\"%1\" is not an array.").arg(key));
            }
            if (key != VersionKey && key != ChangesKey && key != ItemsKey && !value.isString()) {
                return fail(Texts::tr("\"%1\" is not a text.").arg(key));
            }
        }
        const QStringList present = object.keys();
        for (const QString &key : present) {
            if (!keys.contains(key)) {
                return fail(Texts::tr("\"%1\" is unknown.").arg(key));
            }
        }
        return true;
    }

    bool readChanges(const QJsonArray &array, QList<SChange> &changes)
    {
        QSet<QString> paths;
        for (const QJsonValue &value : array) {
            m_place = Texts::tr("Change %1").arg(changes.size() + 1);
            SChange change;
            if (!readChange(value, change)) {
                return false;
            }
            if (paths.contains(change.path)) {
                return fail(Texts::tr("\"%1\" is changed more than once.").arg(change.path));
            }
            paths.insert(change.path);
            changes << change;
        }
        return true;
    }

    bool readChange(const QJsonValue &value, SChange &change)
    {
        if (!value.isObject()) {
            return fail(Texts::tr("This is not an object."));
        }
        const QJsonObject object = value.toObject();
        const QString name = object.value(ChangeKey).toString();
        const auto kind =
            std::find_if(std::begin(Kinds), std::end(Kinds), [&](const SKind &candidate) {
                return name == QLatin1String(candidate.name);
            });
        if (kind == std::end(Kinds)) {
            return fail(
                Texts::tr("The value of \"%1\" is not a known kind of change.").arg(ChangeKey));
        }
        QStringList keys = {ChangeKey, PathKey, kind->hasItems ? ItemsKey : BeforeKey};
        if (kind->hasAfter) {
            keys << AfterKey;
        }
        if (!checkKeys(object, keys)) {
            return false;
        }
        change.change = kind->change;
        change.path = object.value(PathKey).toString();
        change.before = object.value(BeforeKey).toString();
        change.after = object.value(AfterKey).toString();
        SItemPath path;
        return (SItemPath::parse(change.path, path)
                || fail(Texts::tr("\"%1\" is not a valid path.").arg(change.path)))
            && readItems(object.value(ItemsKey).toArray(), change.items);
    }

    bool readItems(const QJsonArray &array, QList<CConfigurationItems::SItem> &items)
    {
        QSet<QString> paths;
        for (const QJsonValue &value : array) {
            const QJsonObject object = value.toObject();
            if (!checkKeys(object, {ItemKey, ValueKey})) {
                return false;
            }
            const CConfigurationItems::SItem item = {object.value(ItemKey).toString(),
                                                     object.value(ValueKey).toString()};
            if (paths.contains(item.path)) {
                return fail(Texts::tr("The item \"%1\" occurs more than once.").arg(item.path));
            }
            paths.insert(item.path);
            items << item;
        }
        return true;
    }

    QString m_place;
    QString m_errorText;
};

/** The name that is not the key: that of a drive or of a single file. */
QString nameOf(const SItemPath &path, const SChange &change)
{
    SSnapshotEntry entry;
    entry.items = change.items;
    const bool isNamed = ConfigurationChanges::isDriveList(path.list) || !path.item.isEmpty();
    return isNamed ? entry.value(QStringLiteral("name")) : QString();
}

bool makeAll(const QList<SChange> &changes, CDeviceConfigurationFile10 &file,
             QStringList &mismatches)
{
    CConfigurationItems items(file);
    bool isDone = true;
    for (const SChange &change : changes) {
        isDone = ConfigurationChanges::make(change, items, mismatches) && isDone;
    }
    return isDone;
}

} // namespace

QList<CConfigurationPatch::SChange> CConfigurationPatch::changes() const
{
    return m_changes;
}

void CConfigurationPatch::setChanges(const QList<SChange> &changes)
{
    m_changes = changes;
}

bool CConfigurationPatch::isEmpty() const
{
    return m_changes.isEmpty();
}

QByteArray CConfigurationPatch::toJson() const
{
    QJsonArray changes;
    for (const SChange &change : m_changes) {
        changes.append(toObject(change));
    }
    const QJsonObject root = {{FormatKey, Format}, {VersionKey, Version}, {ChangesKey, changes}};
    // At the beginning of a text the parser would take this character for a byte-order mark.
    return QJsonDocument(root).toJson().replace("\xef\xbb\xbf", "\\ufeff");
}

bool CConfigurationPatch::readJson(const QByteArray &json, QString &errorText)
{
    Reader reader;
    QList<SChange> changes;
    const bool isRead = reader.read(json, changes);
    errorText = reader.errorText();
    if (isRead) {
        m_changes = changes;
    }
    return isRead;
}

QStringList CConfigurationPatch::describe() const
{
    QStringList lines;
    for (const SChange &change : m_changes) {
        lines << describe(change);
        SItemPath path;
        SItemPath::parse(change.path, path);
        const bool isNamed = !nameOf(path, change).isEmpty();
        for (const CConfigurationItems::SItem &item : change.items) {
            if (!isNamed || item.path != QLatin1String("name")) {
                lines << QStringLiteral("    %1 %2")
                             .arg(ConfigurationWords::item(path, item.path),
                                  ConfigurationWords::shown(item.value));
            }
        }
    }
    return lines;
}

QString CConfigurationPatch::describe(const SChange &change)
{
    SItemPath path;
    SItemPath::parse(change.path, path);
    if (change.change == ADD_ENTRY) {
        return Texts::tr("%1 added").arg(ConfigurationWords::subject(path, nameOf(path, change)));
    }
    if (change.change == REMOVE_ENTRY) {
        return Texts::tr("%1 removed").arg(ConfigurationWords::subject(path, nameOf(path, change)));
    }
    return QStringLiteral("%1: %2 %3 -> %4")
        .arg(ConfigurationWords::subject(path), ConfigurationWords::item(path),
             ConfigurationWords::shown(change.before), ConfigurationWords::shown(change.after));
}

bool CConfigurationPatch::apply(CDeviceConfigurationFile10 &file, QStringList &mismatches) const
{
    // What was done on the copy can be done again.
    return check(file, mismatches) && makeAll(m_changes, file, mismatches);
}

bool CConfigurationPatch::check(const CDeviceConfigurationFile10 &file,
                                QStringList &mismatches) const
{
    mismatches.clear();
    const auto copy = ConfigurationChanges::copyOf(file);
    if (copy == nullptr) {
        mismatches << Texts::tr("The document contains no configuration.");
        return false;
    }
    return makeAll(m_changes, *copy, mismatches);
}
