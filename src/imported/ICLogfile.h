#pragma once

#include "imported/VrnImportedExport.h"

#include <QString>

/**
 * A log that a program hands to file classes; messages about those files go into it.
 *
 * The file classes never own the log they are given and accept a null pointer. Implementations
 * must allow calls from several threads at once.
 */
class VRNLOGFILES_EXPORT ICLogfile
{
public:
    /** Severity of an entry, from the most to the least severe. */
    enum ELevel {
        LEVEL_EMERG,
        LEVEL_ALERT,
        LEVEL_CRIT,
        LEVEL_ERR,
        LEVEL_WARNING,
        LEVEL_NOTICE,
        LEVEL_INFO,
        LEVEL_DEBUG
    };

    virtual ~ICLogfile();

    /**
     * Adds one entry. Failure to write is not reported: a log never stops the work that it records.
     */
    virtual void write(ELevel level, const QString &text) = 0;

    /** Who writes this log; stands as author in the meta data of documents. May be empty. */
    virtual QString author() const = 0;

    /**
     * A log that appends to the file @p fileName, which is created when it is missing. Each entry
     * is one line, "2026-01-31T12:00:00.000Z [warn] text": the time in UTC, the name of the level,
     * the text with its line breaks and backslashes escaped as in C. Lines of several threads or
     * processes do not mix.
     *
     * @param author as author() will give it; when empty, the application's name
     * @return never null; the caller owns it
     */
    static ICLogfile *instance(const QString &fileName, const QString &author = QString());

    /** "emerg", "alert", "crit", "error", "warn", "notice", "info" or "debug". */
    static QString levelName(ELevel level);

protected:
    ICLogfile() = default;

private:
    Q_DISABLE_COPY(ICLogfile)
};
