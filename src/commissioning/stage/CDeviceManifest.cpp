#include "commissioning/CDeviceManifest.h"

#include "commissioning/Texts.h"
#include "elements/FilePlaces.h"
#include "storage/Descriptor.h"
#include "storage/FileStorage.h"

#include <QCryptographicHash>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using DeviceManifestTexts::Texts;

const int Version = 1;
/** From the next number on, several numbers in JSON are read as one. */
const double LargestSize = 9007199254740991.0;
const int SumDigits = 64;
const int BlockSize = 64 * 1024;
/** Its JSON takes up to thirty times as much while it is read. */
const qint64 MaximumSize = Q_INT64_C(8) * 1024 * 1024;

QString format()
{
    return QStringLiteral("vrn-device-manifest");
}

namespace Key {
const QLatin1String FORMAT("format");
const QLatin1String VERSION("version");
const QLatin1String DIRECTORIES("directories");
const QLatin1String FILES("files");
const QLatin1String DEVICE_PATH("devicePath");
const QLatin1String PROJECT_PATH("projectPath");
const QLatin1String SHA256("sha256");
const QLatin1String SIZE("size");
} // namespace Key

/** A text as it stands in JSON, in quotes. */
QByteArray quoted(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

QByteArray toLine(const CDeviceManifest::SEntry &entry)
{
    return "{\"devicePath\": " + quoted(entry.devicePath) + ", \"projectPath\": "
        + quoted(entry.projectPath) + ", \"sha256\": " + quoted(QString::fromLatin1(entry.sha256))
        + ", \"size\": " + QByteArray::number(entry.size) + '}';
}

/** A JSON array with a line for each of @p lines. */
QByteArray listed(const QList<QByteArray> &lines)
{
    QByteArray result = "[";
    const char *separator = "\n        ";
    for (const QByteArray &line : lines) {
        result += separator + line;
        separator = ",\n        ";
    }
    return result + (lines.isEmpty() ? "]" : "\n    ]");
}

/** The same JSON without white space between its tokens. */
QByteArray withoutSpaces(const QByteArray &json)
{
    QByteArray result;
    result.reserve(json.size());
    bool isText = false;
    bool isEscaped = false;
    for (const char c : json) {
        if (isText || (c != ' ' && c != '\t' && c != '\n' && c != '\r')) {
            result += c;
        }
        if (c == '"' && !isEscaped) {
            isText = !isText;
        }
        isEscaped = isText && c == '\\' && !isEscaped;
    }
    return result;
}

bool isSum(const QString &text)
{
    return text.size() == SumDigits && std::all_of(text.begin(), text.end(), [](QChar c) {
               return (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
                   || (c >= QLatin1Char('a') && c <= QLatin1Char('f'));
           });
}

bool isSize(const QJsonValue &value)
{
    const double size = value.toDouble(-1);
    return size >= 0 && size <= LargestSize && std::floor(size) == size;
}

/** Whether @p object has exactly @p keys. */
bool hasKeys(const QJsonObject &object, const QStringList &keys, QString &errorText)
{
    for (const QString &key : keys) {
        if (!object.contains(key)) {
            errorText = Texts::tr("The key \"%1\" is missing.").arg(key);
            return false;
        }
    }
    for (const QString &key : object.keys()) {
        if (!keys.contains(key)) {
            errorText = Texts::tr("The key \"%1\" is unknown.").arg(key);
            return false;
        }
    }
    return true;
}

bool readEntry(const QJsonValue &value, CDeviceManifest::SEntry &entry, QString &errorText)
{
    const QJsonObject object = value.toObject();
    if (!hasKeys(object, {Key::DEVICE_PATH, Key::PROJECT_PATH, Key::SHA256, Key::SIZE},
                 errorText)) {
        return false;
    }
    entry.devicePath = object.value(Key::DEVICE_PATH).toString();
    entry.projectPath = object.value(Key::PROJECT_PATH).toString();
    entry.sha256 = object.value(Key::SHA256).toString().toLatin1();
    if (!CDeviceManifest::isDevicePath(entry.devicePath)) {
        errorText = Texts::tr("\"%1\" is not a valid path on a device.").arg(entry.devicePath);
        return false;
    }
    if (!object.value(Key::PROJECT_PATH).isString()
        || !(entry.projectPath.isEmpty() || FilePlaces::isStorable(entry.projectPath))) {
        errorText = Texts::tr("The project path \"%2\" of \"%1\" is not valid.")
                        .arg(entry.devicePath, entry.projectPath);
        return false;
    }
    if (!isSize(object.value(Key::SIZE))) {
        errorText = Texts::tr("The size of \"%1\" is not valid.").arg(entry.devicePath);
        return false;
    }
    entry.size = static_cast<qint64>(object.value(Key::SIZE).toDouble());
    if (!isSum(object.value(Key::SHA256).toString())) {
        errorText = Texts::tr("The checksum of \"%1\" is not valid.").arg(entry.devicePath);
        return false;
    }
    return true;
}

bool readDirectory(const QJsonValue &value, QString &directory, QString &errorText)
{
    directory = value.toString();
    if (!CDeviceManifest::isDevicePath(directory)) {
        errorText = Texts::tr("\"%1\" is not a valid path on a device.").arg(directory);
        return false;
    }
    return true;
}

/** Reads the elements of an array, until one is wrong. */
template <typename Item>
bool readEach(const QJsonValue &array, bool (*readItem)(const QJsonValue &, Item &, QString &),
              QList<Item> &items, QString &errorText)
{
    const QJsonArray values = array.toArray();
    for (const QJsonValue &value : values) {
        Item item;
        if (!readItem(value, item, errorText)) {
            return false;
        }
        items.append(item);
    }
    return true;
}

struct SNode {
    /** With NUL for each slash, so that what is in a directory follows right behind it. */
    QString key;
    bool isFile;

    QString path() const { return QString(key).replace(QChar(QChar::Null), QLatin1Char('/')); }
};

SNode node(QString path, bool isFile)
{
    return {path.replace(QLatin1Char('/'), QChar(QChar::Null)), isFile};
}

/** Whether the paths can be those of one tree. */
bool isTree(const QStringList &directories, const QList<CDeviceManifest::SEntry> &entries,
            QString &errorText)
{
    std::vector<SNode> nodes;
    for (const QString &directory : directories) {
        nodes.push_back(node(directory, false));
    }
    for (const CDeviceManifest::SEntry &entry : entries) {
        nodes.push_back(node(entry.devicePath, true));
    }
    std::sort(nodes.begin(), nodes.end(),
              [](const SNode &a, const SNode &b) { return a.key < b.key; });
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        const SNode &parent = nodes[i - 1];
        const QString &key = nodes[i].key;
        if (key == parent.key) {
            errorText = Texts::tr("\"%1\" occurs more than once.").arg(parent.path());
            return false;
        }
        if (parent.isFile && key.startsWith(parent.key) && key.at(parent.key.size()).isNull()) {
            errorText = Texts::tr("\"%1\" is both a file and a directory.").arg(parent.path());
            return false;
        }
    }
    return true;
}

bool isHeader(const QJsonObject &root, QString &errorText)
{
    if (root.value(Key::FORMAT) != format()) {
        errorText = Texts::tr("This is not a manifest of a device tree.");
        return false;
    }
    if (root.value(Key::VERSION) != Version) {
        errorText =
            Texts::tr("The version of the manifest is not supported; version %1 is required.")
                .arg(Version);
        return false;
    }
    if (!hasKeys(root, {Key::FORMAT, Key::VERSION, Key::DIRECTORIES, Key::FILES}, errorText)) {
        return false;
    }
    if (!root.value(Key::DIRECTORIES).isArray() || !root.value(Key::FILES).isArray()) {
        errorText = Texts::tr("The directories and the files must be lists.");
        return false;
    }
    return true;
}

} // namespace

QString CDeviceManifest::fileName()
{
    return QStringLiteral("manifest.json");
}

QList<CDeviceManifest::SEntry> CDeviceManifest::entries() const
{
    return m_entries;
}

void CDeviceManifest::setEntries(const QList<SEntry> &entries)
{
    m_entries = entries;
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [](const SEntry &a, const SEntry &b) { return a.devicePath < b.devicePath; });
}

QStringList CDeviceManifest::directories() const
{
    return m_directories;
}

void CDeviceManifest::setDirectories(const QStringList &directories)
{
    m_directories = directories;
    std::sort(m_directories.begin(), m_directories.end());
}

QByteArray CDeviceManifest::toJson() const
{
    QList<QByteArray> directories;
    for (const QString &directory : m_directories) {
        directories.append(quoted(directory));
    }
    QList<QByteArray> files;
    for (const SEntry &entry : m_entries) {
        files.append(toLine(entry));
    }
    return "{\n    \"format\": " + quoted(format()) + ",\n    \"version\": "
        + QByteArray::number(Version) + ",\n    \"directories\": " + listed(directories)
        + ",\n    \"files\": " + listed(files) + "\n}\n";
}

bool CDeviceManifest::readJson(const QByteArray &json, QString &errorText)
{
    if (json.size() > maximumSize()) {
        errorText = FileStorage::tooLarge(maximumSize());
        return false;
    }
    QJsonParseError error;
    const QJsonObject root = QJsonDocument::fromJson(json, &error).object();
    if (error.error != QJsonParseError::NoError) {
        errorText = Texts::tr("This is not JSON: %1.").arg(error.errorString());
        return false;
    }
    if (!isHeader(root, errorText)) {
        return false;
    }
    QStringList directories;
    QList<SEntry> entries;
    if (!readEach(root.value(Key::DIRECTORIES), readDirectory, directories, errorText)
        || !readEach(root.value(Key::FILES), readEntry, entries, errorText)
        || !isTree(directories, entries, errorText)) {
        return false;
    }
    CDeviceManifest read;
    read.setDirectories(directories);
    read.setEntries(entries);
    // What is left: keys that appear twice, another order, other forms of numbers and texts.
    if (withoutSpaces(json) != withoutSpaces(read.toJson())) {
        errorText = Texts::tr(
            "The manifest was changed: it does not have the form in which manifests are written.");
        return false;
    }
    *this = read;
    return true;
}

qint64 CDeviceManifest::maximumSize()
{
    return MaximumSize;
}

bool CDeviceManifest::isDevicePath(const QString &path)
{
    return FilePlaces::isStorable(path) && path.section(QLatin1Char('/'), 0, 0) != fileName();
}

bool CDeviceManifest::measure(const QString &path, qint64 &size, QByteArray &sha256,
                              QString &errorText)
{
    const QByteArray name = QFile::encodeName(path);
    if (name.contains('\0')) {
        errorText = qt_error_string(ENOENT);
        return false;
    }
    const Descriptor file(open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    struct stat status = {};
    if (!file.isOpen() || fstat(file.get(), &status) != 0) {
        errorText = qt_error_string(errno);
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        errorText = Texts::tr("This is not a regular file.");
        return false;
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QByteArray block(BlockSize, Qt::Uninitialized);
    qint64 done = 0;
    for (;;) {
        const ssize_t count = read(file.get(), block.data(), static_cast<size_t>(block.size()));
        if (count == 0) {
            break;
        }
        if (count < 0 && errno != EINTR) {
            errorText = qt_error_string(errno);
            return false;
        }
        hash.addData(block.constData(), static_cast<int>(qMax<ssize_t>(count, 0)));
        done += qMax<ssize_t>(count, 0);
    }
    size = done;
    sha256 = hash.result().toHex();
    return true;
}
