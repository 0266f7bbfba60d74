#pragma once

#include "imported/VrnImportedExport.h"

#include <QString>

#include <functional>

class ICLogfile;

/**
 * The message board: where libraries post messages for the user of the program.
 *
 * A message first goes to the log, if one is given, and then to the program's handler. Without a
 * handler it becomes one line on standard error, "program: warning: text" or
 * "program: error: text", in which escape sequences stand for what a terminal would obey: control
 * characters, ends of lines and marks of direction. A handler gets the text as it was posted. All
 * operations may be called from any thread at any time.
 */
class VRNCORE_EXPORT CMessageBoardHelper
{
public:
    CMessageBoardHelper() = delete;

    enum ESeverity {
        /** The operation went on. */
        SEVERITY_WARNING,
        /** The operation failed. */
        SEVERITY_CRITICAL
    };

    /**
     * Receives every message: its severity, its text, and the log that was given with it (may be
     * null). It runs on the thread that posts and may be called from several threads at once; it
     * may itself post messages or install another handler. It must not throw.
     */
    using Handler = std::function<void(ESeverity, const QString &, ICLogfile *)>;

    /**
     * Installs @p handler for all later messages; an empty one brings back the line on standard
     * error. A message that is being posted meanwhile may still reach the previous handler.
     * @return the previous handler, empty if it was the line on standard error
     */
    static Handler installHandler(Handler handler);

    /** Posts a warning. @p log is not owned and may be null. */
    static void setDebugWarning(const QString &text, ICLogfile *log);
    /** Posts the failure of an operation. @p log is not owned and may be null. */
    static void setDebugCritical(const QString &text, ICLogfile *log);
};
