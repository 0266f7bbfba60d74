#pragma once

#include "storage/Descriptor.h"

#include <QByteArray>

/**
 * A new directory or file with a hidden name, in which something is made ready before it takes its
 * real name in one step. When it never does, it is removed in the end.
 *
 * It is locked as long as this object lives. What is not locked was left behind by a program that
 * was killed, and is removed when the next area is made in the same directory.
 */
class StagingArea
{
public:
    enum EKind { DIRECTORY, FILE };

    /** Leaves nothing open, and errno, on failure. */
    StagingArea(const QByteArray &parent, EKind kind);
    ~StagingArea();

    bool isOpen() const { return m_opened.isOpen(); }
    int get() const { return m_opened.get(); }

    /**
     * Gives it the name @p name in the same directory, instead of a file or an empty directory
     * that has the name. @return 0, or -1 with errno
     */
    int rename(const QByteArray &name);
    /** As rename(), but a directory that has the name may hold files; it is removed in the end. */
    int exchange(const QByteArray &name);

private:
    Q_DISABLE_COPY(StagingArea)

    void removeLeftovers() const;
    int create();
    int createOnce();

    const QByteArray m_parent;
    const EKind m_kind;
    QByteArray m_name;
    Descriptor m_opened;
};
