#pragma once

#include "settings/CNetworkSettings.h"
#include "vocabulary/TextTables.h"

#include <QHash>
#include <QList>

/** What reading, writing and checking of network.conf have in common. */
namespace NetworkText {

const TextTables::Table<CNetworkSettings::ENetworkMode> &modes();
const TextTables::Table<CNetworkSettings::ENtpMode> &ntpModes();

/** What the value of a key has to be. */
enum EKind {
    KIND_MODE,
    KIND_NTP_MODE,
    KIND_ADDRESS,
    /** An address that may be left out. */
    KIND_OPTIONAL_ADDRESS,
    KIND_MASK,
    KIND_PORT,
    KIND_LOG_LEVEL
};

struct SKey {
    QString name;
    /** Taken when the file does not have the key. */
    QString missingValue;
    EKind kind;
    QString (*get)(const CNetworkSettings &settings);
    void (*set)(CNetworkSettings &settings, const QString &value);
    /** The comment lines and empty lines before the key in a file. */
    QString preface;
};

/** All keys, in the order of the file. */
const QList<SKey> &keys();

QStringList keyNames();

/** The key named @p name, exactly so; null when there is none. */
const SKey *findKey(const QString &name);

QByteArray withoutByteOrderMark(const QByteArray &content);
/** Where the line at @p from ends: at its carriage return or line feed, or with the content. */
int lineEnd(const QByteArray &content, int from);

/** The values of those keys() that stand in the INI text @p content; false when memory is short. */
bool readValues(const QByteArray &content, QHash<QString, QString> &values);
/** The names of all keys in it; those in a section are "section/key". Empty when memory is short.
 */
QStringList readNames(const QByteArray &content);

} // namespace NetworkText
