#include "imported/CXmlAbstractVornFile.h"

#include "imported/CDomDoc.h"
#include "imported/CMessageBoardHelper.h"
#include "imported/xml/CExpatXmlReader.h"
#include "imported/xml/CIndentingXmlWriter.h"
#include "imported/xml/XmlText.h"
#include "storage/FileStorage.h"

#include <QCoreApplication>
#include <QDir>

namespace {

const QLatin1String VersionAttribute("version");
const QLatin1String HeadTag("Head");
const QLatin1String AuthorTag("Author");
const QLatin1String DateTag("Date");
const QLatin1String CommentTag("Comment");

} // namespace

class CXmlAbstractVornFilePrivate
{
    Q_DECLARE_TR_FUNCTIONS(CXmlAbstractVornFile)

public:
    CXmlAbstractVornFilePrivate(CXmlAbstractVornFile *file, ICLogfile *log) : q(file), logfile(log)
    {
    }

    /** Posts and hands out an error. @return false, so that callers can return the result */
    bool fail(const QString &origin, const QString &reason, QString &errorText) const
    {
        errorText = origin.isEmpty() ? reason : QStringLiteral("%1: %2").arg(origin, reason);
        CMessageBoardHelper::setDebugCritical(errorText, logfile);
        return false;
    }

    void drop()
    {
        document = QDomDocument();
        positions.clear();
    }

    bool load(const QByteArray &bytes, const QString &origin, const QString &documentType,
              const QString &requiredVersion, QString &errorText)
    {
        if (bytes.size() > limits.fileSize) {
            return fail(origin, FileStorage::tooLarge(limits.fileSize), errorText);
        }
        QDomDocument loaded;
        SXmlError error;
        if (!reader->read(bytes, limits, loaded, keepsPositions ? &positions : nullptr, error)) {
            positions.clear();
            QStringList place = {origin};
            if (error.position.isKnown()) {
                place << QString::number(error.position.line)
                      << QString::number(error.position.column);
            }
            place.removeAll(QString());
            return fail(place.join(QLatin1Char(':')), error.reason, errorText);
        }
        QDomElement root = loaded.documentElement();
        if (root.tagName() != documentType) {
            return fail(origin,
                        tr("The document type is '%1', but '%2' is required.")
                            .arg(root.tagName(), documentType),
                        errorText);
        }
        const QString version = root.attribute(VersionAttribute);
        if (version != requiredVersion) {
            if (!q->handleVersionError(requiredVersion, version)) {
                // Posted by the handler, which knows how its users call the document.
                errorText =
                    tr("The version is '%1', but '%2' is required.").arg(version, requiredVersion);
                return false;
            }
            root.setAttribute(VersionAttribute, requiredVersion);
        }
        document = loaded;
        return true;
    }

    bool toBytes(const QString &origin, const QString &rootName, QByteArray &bytes,
                 QString &errorText) const
    {
        if (document.documentElement().isNull()) {
            return fail(origin, tr("The file object has no document to save."), errorText);
        }
        if (!XmlText::isName(rootName)) {
            return fail(origin, tr("'%1' is not a valid document type.").arg(rootName), errorText);
        }
        QString reason;
        return writer->write(document, rootName, limits, bytes, reason)
            || fail(origin, reason, errorText);
    }

    CXmlAbstractVornFile *const q;
    ICLogfile *const logfile;
    QDomDocument document;
    QFileDevice::Permissions permissions;
    SXmlLimits limits;
    bool keepsPositions = false;
    CXmlPositions positions;
    const std::unique_ptr<const IXmlReader> reader = std::make_unique<CExpatXmlReader>();
    const std::unique_ptr<const IXmlWriter> writer = std::make_unique<CIndentingXmlWriter>();
};

CXmlAbstractVornFile::CXmlAbstractVornFile(ICLogfile *logfile)
    : d(std::make_unique<CXmlAbstractVornFilePrivate>(this, logfile))
{
}

CXmlAbstractVornFile::~CXmlAbstractVornFile() = default;

bool CXmlAbstractVornFile::open(const QString &path, const QString &documentType,
                                const QString &requiredVersion, QString &errorText)
{
    d->drop();
    const QString nativePath = QDir::toNativeSeparators(path);
    QByteArray bytes;
    const FileStorage::SResult read = FileStorage::read(path, bytes, d->limits.fileSize);
    if (!read) {
        return d->fail(nativePath, read.reason, errorText);
    }
    return d->load(bytes, nativePath, documentType, requiredVersion, errorText);
}

bool CXmlAbstractVornFile::open(const QByteArray &buffer, const QString &documentType,
                                const QString &requiredVersion, QString &errorText)
{
    d->drop();
    return d->load(buffer, QString(), documentType, requiredVersion, errorText);
}

QFileDevice::Permissions CXmlAbstractVornFile::permissions() const
{
    return d->permissions;
}

void CXmlAbstractVornFile::setPermissions(QFileDevice::Permissions permissions)
{
    d->permissions = permissions;
}

bool CXmlAbstractVornFile::save(const QString &path, QString &errorText)
{
    return save(path, d->document.documentElement().tagName(), errorText);
}

bool CXmlAbstractVornFile::save(const QString &path, const QString &documentName,
                                QString &errorText)
{
    const QString nativePath = QDir::toNativeSeparators(path);
    QByteArray bytes;
    if (!d->toBytes(nativePath, documentName, bytes, errorText)) {
        return false;
    }
    const FileStorage::SResult saved = FileStorage::replace(path, bytes, d->permissions);
    return saved || d->fail(nativePath, saved.reason, errorText);
}

bool CXmlAbstractVornFile::save(QByteArray &buffer, QString &errorText)
{
    return d->toBytes(QString(), d->document.documentElement().tagName(), buffer, errorText);
}

CXMLMetaData CXmlAbstractVornFile::metaData() const
{
    return metaData(d->document.documentElement(), nullptr);
}

void CXmlAbstractVornFile::setMetaData(const CXMLMetaData &metaData)
{
    setMetaData(metaData, d->document.documentElement());
}

QDomElement CXmlAbstractVornFile::domElement(const QString &tag, QDomElement parent)
{
    return CDomDoc::child(tag, parent.isNull() ? d->document.documentElement() : parent);
}

QDomElement CXmlAbstractVornFile::existingDomElement(const QString &tag, QDomElement parent) const
{
    return CDomDoc::existingChild(tag, parent.isNull() ? d->document.documentElement() : parent);
}

CXMLMetaData CXmlAbstractVornFile::metaData(const QDomElement &element, bool *ok) const
{
    const QDomElement head = existingDomElement(HeadTag, element);
    if (ok != nullptr) {
        *ok = !head.isNull();
    }
    CXMLMetaData result;
    if (!head.isNull()) {
        result.setAuthor(getNodeValue(AuthorTag, head));
        result.setDate(QDate::fromString(getNodeValue(DateTag, head), Qt::ISODate));
        result.setComment(getNodeValue(CommentTag, head));
    }
    return result;
}

void CXmlAbstractVornFile::setMetaData(const CXMLMetaData &metaData, QDomElement element)
{
    QDomElement parent = element.isNull() ? d->document.documentElement() : element;
    if (parent.isNull()) {
        return;
    }
    QDomElement head = existingDomElement(HeadTag, parent);
    if (head.isNull()) {
        head = parent.ownerDocument().createElement(HeadTag);
        parent.insertBefore(head, parent.firstChild());
    }
    setNodeValue(AuthorTag, metaData.author(), head);
    setNodeValue(DateTag, metaData.date().toString(Qt::ISODate), head);
    setNodeValue(CommentTag, metaData.comment(), head);
}

ICLogfile *CXmlAbstractVornFile::logfile() const
{
    return d->logfile;
}

QDomDocument CXmlAbstractVornFile::domDocument() const
{
    // Whoever holds a handle may have removed the root: what is left is not a document.
    return d->document.documentElement().isNull() ? QDomDocument() : d->document;
}

SXmlLimits CXmlAbstractVornFile::limits() const
{
    return d->limits;
}

void CXmlAbstractVornFile::setLimits(const SXmlLimits &limits)
{
    d->limits = limits;
    d->limits.depth = qMin(limits.depth, SXmlLimits::MaximumDepth);
}

void CXmlAbstractVornFile::keepPositions(bool keep)
{
    d->keepsPositions = keep;
}

SXmlPosition CXmlAbstractVornFile::position(const QDomElement &element) const
{
    return d->positions.position(element);
}

bool CXmlAbstractVornFile::createNewDocument(const QString &documentType, const QString &version)
{
    d->drop();
    if (!XmlText::isName(documentType)) {
        return false;
    }
    QDomDocument created;
    QDomElement root = created.createElement(documentType);
    root.setAttribute(VersionAttribute, version);
    created.appendChild(root);
    d->document = created;
    return true;
}

void CXmlAbstractVornFile::setNodeValue(const QString &tag, const QString &value,
                                        const QDomElement &parent)
{
    setNodeValue(domElement(tag, parent), value);
}

void CXmlAbstractVornFile::setNodeValue(const QDomElement &element, const QString &value)
{
    CDomDoc::setText(value, element);
}

void CXmlAbstractVornFile::setNodeValue(const QDomElement &element, int value)
{
    setNodeValue(element, QString::number(value));
}

QString CXmlAbstractVornFile::getNodeValue(const QString &tag, const QDomElement &parent) const
{
    return getNodeValue(existingDomElement(tag, parent));
}

QString CXmlAbstractVornFile::getNodeValue(const QDomElement &element) const
{
    return CDomDoc::text(element);
}
