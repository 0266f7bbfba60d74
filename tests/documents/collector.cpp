// Loaded before the libraries, it keeps what a program saves: whenever a document of ours has been
// written, to a file or to memory, a copy goes to the directory VRN_DOCUMENTS_DIR.

#include "imported/CXmlAbstractVornFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace {

template <typename Function>
Function next(const char *mangledName)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, mangledName));
}

/** Under a name made from the content: the same document is kept once. */
void keep(const QByteArray &document, const QString &documentType)
{
    const QString suffix = documentType == QLatin1String("VornDeviceConfig")
        ? QStringLiteral("3deco")
        : documentType == QLatin1String("VornDeviceSettings") ? QStringLiteral("3conf")
                                                              : QString();
    const QString directory = qEnvironmentVariable("VRN_DOCUMENTS_DIR");
    if (suffix.isEmpty() || directory.isEmpty()) {
        return;
    }
    const QByteArray hash = QCryptographicHash::hash(document, QCryptographicHash::Sha1).toHex();
    const QString path =
        QStringLiteral("%1/%2.%3").arg(directory, QString::fromLatin1(hash), suffix);
    QFile copy(path);
    QDir().mkpath(directory);
    if (!copy.exists()
        && (!copy.open(QIODevice::WriteOnly) || copy.write(document) != document.size())) {
        qFatal("The document cannot be kept as '%s'.", qPrintable(path));
    }
}

} // namespace

bool CXmlAbstractVornFile::save(const QString &path, const QString &documentName,
                                QString &errorText)
{
    static const auto original =
        next<bool (*)(CXmlAbstractVornFile *, const QString &, const QString &, QString &)>(
            "_ZN20CXmlAbstractVornFile4saveERK7QStringS2_RS0_");
    const bool saved = original(this, path, documentName, errorText);
    QFile file(path);
    // What was written to a device is gone.
    if (saved && QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)) {
        keep(file.readAll(), documentName);
    }
    return saved;
}

bool CXmlAbstractVornFile::save(QByteArray &buffer, QString &errorText)
{
    static const auto original = next<bool (*)(CXmlAbstractVornFile *, QByteArray &, QString &)>(
        "_ZN20CXmlAbstractVornFile4saveER10QByteArrayR7QString");
    const bool saved = original(this, buffer, errorText);
    if (saved) {
        keep(buffer, domDocument().documentElement().tagName());
    }
    return saved;
}
