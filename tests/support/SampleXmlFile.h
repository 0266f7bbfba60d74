#pragma once

#include "imported/CXmlAbstractVornFile.h"

#include <QByteArray>
#include <QDomElement>
#include <QString>
#include <QStringList>

/** A file class that notes versions, and the documents that it reads. */
namespace SampleXmlFile {

inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

const QString Type = QStringLiteral("VornDeviceConfig");
const QString Version = QStringLiteral("1.0");
const QByteArray Declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

/** A file that notes the version errors it is asked about, and accepts or refuses them. */
class TestFile : public CXmlAbstractVornFile
{
public:
    explicit TestFile(ICLogfile *log = nullptr) : CXmlAbstractVornFile(log) { }

    bool handleVersionError(const QString &required, const QString &existing) override
    {
        versionErrors << QStringLiteral("%1/%2").arg(required, existing);
        return acceptsVersions;
    }

    bool openBytes(const QByteArray &bytes, QString *error = nullptr)
    {
        QString errorText;
        const bool ok = open(bytes, Type, Version, errorText);
        if (error != nullptr) {
            *error = errorText;
        }
        return ok;
    }

    /** The bytes of the document; empty when it cannot be written. */
    QByteArray bytes()
    {
        QByteArray result;
        QString errorText;
        return save(result, errorText) ? result : QByteArray();
    }

    QDomElement root() const { return domDocument().documentElement(); }

    QStringList versionErrors;
    bool acceptsVersions = true;
};

/** A whole document around @p content; the indentation is that of saved documents. */
inline QByteArray document(const QByteArray &content)
{
    return Declaration + "<VornDeviceConfig version=\"1.0\">\n" + content + "</VornDeviceConfig>\n";
}

} // namespace SampleXmlFile
