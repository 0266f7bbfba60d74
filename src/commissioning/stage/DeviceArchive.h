#pragma once

#include <QByteArray>
#include <QString>

#include <clocale>
#include <functional>
#include <memory>
#include <sys/types.h>

struct archive;

/**
 * While it lives, libarchive takes names in this thread for UTF-8, as they are on the device, and
 * not for what the user's locale tells.
 */
class Utf8Names
{
public:
    Utf8Names();
    ~Utf8Names();

private:
    Q_DISABLE_COPY(Utf8Names)

    const locale_t m_utf8;
    const locale_t m_previous;
};

/** Writes a tar archive, compressed by gzip: the same bytes for the same content. */
class ArchiveWriter
{
public:
    /** @param fd stays open, and must outlive the writer */
    explicit ArchiveWriter(int fd);
    ~ArchiveWriter();

    bool addDirectory(const QByteArray &name);
    /** As many bytes must be written then. */
    bool addFile(const QByteArray &name, qint64 size);
    bool write(const char *bytes, int size);
    bool finish();

    /** Why something failed. */
    QString errorText() const;

private:
    Q_DISABLE_COPY(ArchiveWriter)

    bool addHeader(const QByteArray &name, unsigned int type, unsigned int mode, qint64 size);
    static ssize_t takeBlock(archive *, void *self, const void *bytes, size_t size);

    const Utf8Names m_names;
    const int m_fd;
    /** Of writing; 0 for none. */
    int m_error = 0;
    bool m_isEnding = false;
    bool m_isOk = false;
    // The last one, for it calls the writer while it is freed.
    const std::unique_ptr<archive, int (*)(archive *)> m_archive;
};

/** Reads what ArchiveWriter wrote, in small memory; everything else is told as what it is. */
class ArchiveReader
{
public:
    enum EKind { DIRECTORY, FILE, OTHER };
    enum EStep { ENTRY, END, BROKEN };

    /** @param fd of a regular file, which is read from its start; stays open */
    explicit ArchiveReader(int fd);
    ~ArchiveReader();

    EStep next();
    /** Of the entry; without the slash that directories end in. */
    QByteArray name() const { return m_name; }
    EKind kind() const { return m_kind; }
    qint64 size() const { return m_size; }

    /** Hands over the content of the entry in pieces until @p take returns false. */
    bool read(const std::function<bool(const char *bytes, int size)> &take);

    /** Why something failed. */
    QString errorText() const { return m_errorText; }

private:
    Q_DISABLE_COPY(ArchiveReader)

    EStep broken();

    const Utf8Names m_names;
    const std::unique_ptr<archive, int (*)(archive *)> m_archive;
    bool m_isOk = false;
    QByteArray m_name;
    EKind m_kind = OTHER;
    qint64 m_size = 0;
    QString m_errorText;
};

/**
 * Whether the file @p fd is one whole gzip stream, with the length and the check sum at its end,
 * which the reader does not look at. @param step is called now and then; false ends it
 */
bool isWholeGzip(int fd, const std::function<bool()> &step, QString &errorText);
