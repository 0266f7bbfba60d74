#include "commissioning/stage/DeviceArchive.h"

#include "commissioning/stage/TreeConstants.h"
#include "commissioning/Texts.h"
#include "storage/Descriptor.h"

#include <QtEndian>

#include <array>

#include <archive.h>
#include <archive_entry.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

namespace {

using StagedTreeTexts::Texts;

QString reasonOf(archive *broken)
{
    const char *const text = archive_error_string(broken);
    return text != nullptr ? QString::fromUtf8(text) : Texts::tr("The archive is truncated.");
}

std::unique_ptr<archive, int (*)(archive *)> reader()
{
    return {archive_read_new(), archive_read_free};
}

bool openForReading(archive *read, int fd)
{
    return archive_read_support_filter_gzip(read) == ARCHIVE_OK && lseek(fd, 0, SEEK_SET) == 0
        && archive_read_open_fd(read, fd, BlockSize) == ARCHIVE_OK;
}

bool isGzip(archive *read)
{
    return archive_filter_code(read, 0) == ARCHIVE_FILTER_GZIP;
}

QString noArchive()
{
    return Texts::tr("This is not a tar archive compressed with gzip.");
}

} // namespace

Utf8Names::Utf8Names()
    : m_utf8(newlocale(LC_CTYPE_MASK, "C.UTF-8", locale_t())),
      m_previous(m_utf8 != locale_t() ? uselocale(m_utf8) : locale_t())
{
}

Utf8Names::~Utf8Names()
{
    if (m_utf8 != locale_t()) {
        uselocale(m_previous);
        freelocale(m_utf8);
    }
}

ArchiveWriter::ArchiveWriter(int fd) : m_fd(fd), m_archive(archive_write_new(), archive_write_free)
{
    archive *const written = m_archive.get();
    m_isOk = written != nullptr && archive_write_set_format_pax_restricted(written) == ARCHIVE_OK
        && archive_write_add_filter_gzip(written) == ARCHIVE_OK
        && archive_write_set_filter_option(written, "gzip", "timestamp", nullptr) == ARCHIVE_OK
        && archive_write_set_filter_option(written, "gzip", "compression-level", "6") == ARCHIVE_OK
        && archive_write_set_bytes_in_last_block(written, 1) == ARCHIVE_OK
        && archive_write_open(written, this, nullptr, takeBlock, nullptr) == ARCHIVE_OK;
}

ArchiveWriter::~ArchiveWriter()
{
    m_isEnding = true;
}

/**
 * libarchive never frees all of an archive for which writing failed, so a failure is kept from it
 * until it finishes. An archive that is not finished ends at the next block: nobody wants its rest.
 */
ssize_t ArchiveWriter::takeBlock(archive *, void *self, const void *bytes, size_t size)
{
    auto *const writer = static_cast<ArchiveWriter *>(self);
    if (writer->m_isEnding) {
        return -1;
    }
    if (writer->m_error == 0
        && writeAll(writer->m_fd, static_cast<const char *>(bytes), static_cast<qint64>(size))
            != 0) {
        writer->m_error = errno;
    }
    return static_cast<ssize_t>(size);
}

bool ArchiveWriter::addHeader(const QByteArray &name, unsigned int type, unsigned int mode,
                              qint64 size)
{
    const std::unique_ptr<archive_entry, void (*)(archive_entry *)> entry(archive_entry_new(),
                                                                          archive_entry_free);
    if (!m_isOk || !entry) {
        return false;
    }
    archive_entry_set_pathname(entry.get(), name.constData());
    archive_entry_set_filetype(entry.get(), type);
    archive_entry_set_perm(entry.get(), mode);
    archive_entry_set_size(entry.get(), size);
    archive_entry_set_mtime(entry.get(), TreeTime, 0);
    archive_entry_set_uid(entry.get(), 0);
    archive_entry_set_gid(entry.get(), 0);
    m_isOk = archive_write_header(m_archive.get(), entry.get()) == ARCHIVE_OK && m_error == 0;
    return m_isOk;
}

bool ArchiveWriter::addDirectory(const QByteArray &name)
{
    return addHeader(name + '/', AE_IFDIR, DirectoryMode, 0);
}

bool ArchiveWriter::addFile(const QByteArray &name, qint64 size)
{
    return addHeader(name, AE_IFREG, FileMode, size);
}

bool ArchiveWriter::write(const char *bytes, int size)
{
    m_isOk = m_isOk && archive_write_data(m_archive.get(), bytes, static_cast<size_t>(size)) == size
        && m_error == 0;
    return m_isOk;
}

bool ArchiveWriter::finish()
{
    m_isOk = m_isOk && archive_write_close(m_archive.get()) == ARCHIVE_OK && m_error == 0;
    return m_isOk;
}

QString ArchiveWriter::errorText() const
{
    const int ofArchive = m_archive ? archive_errno(m_archive.get()) : ENOMEM;
    const int error = m_error != 0 ? m_error : ofArchive;
    return error > 0 ? qt_error_string(error) : reasonOf(m_archive.get());
}

ArchiveReader::ArchiveReader(int fd) : m_archive(reader())
{
    m_isOk = m_archive && archive_read_support_format_tar(m_archive.get()) == ARCHIVE_OK
        && openForReading(m_archive.get(), fd);
}

ArchiveReader::~ArchiveReader() = default;

ArchiveReader::EStep ArchiveReader::broken()
{
    m_isOk = false;
    if (m_errorText.isEmpty()) {
        m_errorText = m_archive ? reasonOf(m_archive.get()) : qt_error_string(ENOMEM);
    }
    return BROKEN;
}

ArchiveReader::EStep ArchiveReader::next()
{
    archive_entry *entry = nullptr;
    const int result = m_isOk ? archive_read_next_header(m_archive.get(), &entry) : ARCHIVE_FATAL;
    if (m_isOk && !isGzip(m_archive.get())) {
        m_errorText = noArchive();
        return broken();
    }
    if (result == ARCHIVE_EOF) {
        return END;
    }
    if (result != ARCHIVE_OK && result != ARCHIVE_WARN) {
        return broken();
    }
    m_name = archive_entry_pathname(entry);
    const mode_t type = archive_entry_filetype(entry);
    const bool isLink =
        archive_entry_hardlink(entry) != nullptr || archive_entry_symlink(entry) != nullptr;
    m_kind = isLink ? OTHER : type == S_IFDIR ? DIRECTORY : type == S_IFREG ? FILE : OTHER;
    m_size = archive_entry_size(entry);
    if (m_kind == DIRECTORY && m_name.endsWith('/')) {
        m_name.chop(1);
    }
    return ENTRY;
}

bool ArchiveReader::read(const std::function<bool(const char *, int)> &take)
{
    qint64 done = 0;
    for (;;) {
        const void *block = nullptr;
        size_t size = 0;
        la_int64_t offset = 0;
        const int result = archive_read_data_block(m_archive.get(), &block, &size, &offset);
        if (result == ARCHIVE_EOF) {
            break;
        }
        if (result != ARCHIVE_OK) {
            broken();
            return false;
        }
        done += static_cast<qint64>(size);
        if (!take(static_cast<const char *>(block), static_cast<int>(size))) {
            return false;
        }
    }
    // Holes do not come as bytes: one may be of any size, and costs nothing in the archive.
    if (done != m_size) {
        m_errorText =
            Texts::tr("%1 is a sparse file or is truncated.").arg(QString::fromUtf8(m_name));
        broken();
        return false;
    }
    return true;
}

bool isWholeGzip(int fd, const std::function<bool()> &step, QString &errorText)
{
    const std::unique_ptr<archive, int (*)(archive *)> raw = reader();
    archive_entry *entry = nullptr;
    if (!raw || archive_read_support_format_raw(raw.get()) != ARCHIVE_OK
        || !openForReading(raw.get(), fd)
        || archive_read_next_header(raw.get(), &entry) != ARCHIVE_OK || !isGzip(raw.get())) {
        errorText = noArchive();
        return false;
    }
    uLong crc = crc32(0, nullptr, 0);
    quint32 length = 0; // modulo its width, as it stands in the stream
    QByteArray block(BlockSize, Qt::Uninitialized);
    for (;;) {
        const ssize_t size =
            archive_read_data(raw.get(), block.data(), static_cast<size_t>(block.size()));
        if (size < 0) {
            errorText = reasonOf(raw.get());
            return false;
        }
        if (size == 0) {
            break;
        }
        crc = crc32_z(crc, reinterpret_cast<const Bytef *>(block.constData()),
                      static_cast<size_t>(size));
        length += static_cast<quint32>(size);
        if (!step()) {
            return false;
        }
    }
    std::array<char, 8> trailer = {};
    const off_t trailerSize = trailer.size();
    if (lseek(fd, -trailerSize, SEEK_END) < 0
        || ::read(fd, trailer.data(), trailer.size()) != trailerSize
        || qFromLittleEndian<quint32>(trailer.data()) != crc
        || qFromLittleEndian<quint32>(trailer.data() + sizeof(quint32)) != length) {
        errorText = Texts::tr("The checksum of the archive is wrong.");
        return false;
    }
    return true;
}
