#include "storage/MemoryResource.h"

#include <QResource>

#include <atomic>

namespace {

// A collection of resources as rcc makes it, of version 1, which every Qt 5 reads: a head, a tree
// of the root directory and one file in it, the name of that file, and its content behind its size.
// All numbers are big-endian.
const int HeadSize = 20;
const int NodeSize = 14;
const int NameHeadSize = 6;
const quint16 DirectoryFlag = 2;
const quint16 AnyCountry = 0;
const quint16 NoLanguage = 1;

template <typename Number>
void append(Number number, QByteArray &bytes)
{
    for (int shift = static_cast<int>(sizeof(Number)) * 8; shift > 0;) {
        shift -= 8;
        bytes.append(static_cast<char>((number >> shift) & 0xFFU));
    }
}

/** By which Qt looks for a name. */
quint32 hashOf(const QString &name)
{
    quint32 hash = 0;
    for (const QChar character : name) {
        hash = (hash << 4U) + character.unicode();
        hash ^= (hash & 0xF0000000U) >> 23U;
        hash &= 0x0FFFFFFFU;
    }
    return hash;
}

QByteArray collectionOf(const QString &fileName, const QByteArray &content)
{
    const int nameSize = NameHeadSize + 2 * fileName.size();
    const quint32 names = HeadSize + 2 * NodeSize;
    QByteArray bytes;
    bytes.reserve(static_cast<int>(names) + nameSize + 4 + content.size());

    bytes += "qres";
    append<quint32>(1, bytes);
    append<quint32>(HeadSize, bytes);
    append(names + static_cast<quint32>(nameSize), bytes);
    append(names, bytes);

    append<quint32>(0, bytes); // the root, whose name nobody reads
    append(DirectoryFlag, bytes);
    append<quint32>(1, bytes); // how many nodes it has
    append<quint32>(1, bytes); // the first of them
    append<quint32>(0, bytes);
    append<quint16>(0, bytes); // not compressed
    append(AnyCountry, bytes);
    append(NoLanguage, bytes);
    append<quint32>(0, bytes);

    append(static_cast<quint16>(fileName.size()), bytes);
    append(hashOf(fileName), bytes);
    for (const QChar character : fileName) {
        append(character.unicode(), bytes);
    }

    append(static_cast<quint32>(content.size()), bytes);
    return bytes += content;
}

/**
 * Qt's settings remember what they have read by its name: no two may have the same. The address
 * tells the libraries apart that each have a count of their own.
 */
QString newName()
{
    static std::atomic<quint32> count{0};
    const auto library = reinterpret_cast<quintptr>(&count);
    return QStringLiteral("vrnDeviceCore-%1-%2")
        .arg(QString::number(library, 16), QString::number(++count));
}

} // namespace

MemoryResource::MemoryResource(const QByteArray &content)
    : m_fileName(newName()), m_collection(collectionOf(m_fileName, content)),
      m_isRegistered(QResource::registerResource(bytes()))
{
}

MemoryResource::~MemoryResource()
{
    if (m_isRegistered) {
        QResource::unregisterResource(bytes());
    }
}

bool MemoryResource::isOk() const
{
    // A resource of somebody else may have the name.
    const QResource found(name());
    return m_isRegistered && found.isValid() && found.data() >= bytes()
        && found.data() + found.size() == bytes() + m_collection.size();
}

QString MemoryResource::name() const
{
    return QStringLiteral(":/") + m_fileName;
}

const uchar *MemoryResource::bytes() const
{
    return reinterpret_cast<const uchar *>(m_collection.constData());
}
