#include "imported/CMessageBoardHelper.h"

#include "imported/ICLogfile.h"
#include "storage/PrintableText.h"

#include <QCoreApplication>

#include <cstdio>
#include <mutex>

namespace {

struct HandlerSlot {
    std::mutex mutex;
    CMessageBoardHelper::Handler handler;
};

HandlerSlot &handlerSlot()
{
    static HandlerSlot slot;
    return slot;
}

void writeToStandardError(CMessageBoardHelper::ESeverity severity, const QString &text)
{
    QString line = QCoreApplication::applicationName();
    if (line.isEmpty()) {
        line = QStringLiteral("vrnDeviceCore");
    }
    line += severity == CMessageBoardHelper::SEVERITY_WARNING ? QLatin1String(": warning: ")
                                                              : QLatin1String(": error: ");
    // One message is one line, so that programs which read standard error can rely on it. Names and
    // values in it come from anywhere.
    line += PrintableText::of(text) + QLatin1Char('\n');
    const QByteArray bytes = line.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stderr);
}

void post(CMessageBoardHelper::ESeverity severity, const QString &text, ICLogfile *log)
{
    if (log != nullptr) {
        log->write(severity == CMessageBoardHelper::SEVERITY_WARNING ? ICLogfile::LEVEL_WARNING
                                                                     : ICLogfile::LEVEL_CRIT,
                   text);
    }
    // Called on a copy and outside the lock: a handler may post or install another handler.
    CMessageBoardHelper::Handler handler;
    {
        HandlerSlot &slot = handlerSlot();
        const std::lock_guard<std::mutex> lock(slot.mutex);
        handler = slot.handler;
    }
    if (handler) {
        handler(severity, text, log);
    } else {
        writeToStandardError(severity, text);
    }
}

} // namespace

CMessageBoardHelper::Handler CMessageBoardHelper::installHandler(Handler handler)
{
    HandlerSlot &slot = handlerSlot();
    const std::lock_guard<std::mutex> lock(slot.mutex);
    std::swap(slot.handler, handler);
    return handler;
}

void CMessageBoardHelper::setDebugWarning(const QString &text, ICLogfile *log)
{
    post(SEVERITY_WARNING, text, log);
}

void CMessageBoardHelper::setDebugCritical(const QString &text, ICLogfile *log)
{
    post(SEVERITY_CRITICAL, text, log);
}
