#pragma once

#include <QByteArray>

#include <cerrno>
#include <cstdlib>

/** The name of what @p name leads to, without links; empty, with errno, when nothing is there. */
inline QByteArray canonicalName(const QByteArray &name)
{
    char *const resolved = realpath(name.constData(), nullptr);
    const int error = errno;
    QByteArray result(resolved);
    std::free(resolved);
    errno = error;
    return result;
}
