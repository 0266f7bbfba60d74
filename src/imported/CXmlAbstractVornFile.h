#pragma once

#include "imported/CXMLMetaData.h"
#include "imported/SXmlLimits.h"
#include "imported/SXmlPosition.h"
#include "imported/VrnImportedExport.h"

#include <QByteArray>
#include <QDomDocument>
#include <QDomElement>
#include <QFileDevice>
#include <QString>

#include <memory>

class CXmlAbstractVornFilePrivate;
class ICLogfile;

/**
 * Base of every XML file: one document with a type, a version and meta data.
 *
 * The type of a document is the name of its root element; the root's attribute "version" carries
 * the version, its child "Head" the meta data. Reading keeps unknown elements, attributes,
 * comments, CDATA sections and processing instructions, and all text except white space that only
 * indents child elements. Read is XML 1.0, in UTF-8, UTF-16, US-ASCII, ISO-8859-1, ISO-8859-15 and
 * windows-1250 to windows-1258, also under names such as "utf8", "latin1" or "cp1252"; what
 * declares no encoding is UTF-8 or UTF-16. Refused are what is not well-formed, whatever declares
 * or needs entities of its own, and what exceeds limits().
 *
 * Saving writes UTF-8, the same bytes for the same document in every process: one element a line,
 * indented by one space per level, attributes in the order of their names (by UTF-16 units). A text
 * that XML cannot carry, like a control character, makes it fail and is named by element and code.
 *
 * open() and save() report failures by their result and an error text, which is also posted as
 * critical messages to the message board together with the log.
 *
 * Elements are handles: changing one changes the document it belongs to. A null parent element
 * stands for the document's root everywhere below.
 *
 * The virtual operations stand in the order that binary compatibility demands. Thread-safe as every
 * file object: see docs/architecture.md.
 */
class VRNXML_EXPORT CXmlAbstractVornFile
{
public:
    /** A file without document. @p logfile is not owned, may be null, and must outlive the file. */
    explicit CXmlAbstractVornFile(ICLogfile *logfile);
    virtual ~CXmlAbstractVornFile();

    /**
     * Reads the regular file @p path, or one of Qt's resources. Its root must be named @p
     * documentType. When its version is not @p requiredVersion, handleVersionError() decides: if
     * that accepts the document, it is from then on a document of the required version, and is
     * saved as one.
     *
     * @param errorText on failure "file:line:column: reason", without line and column where the
     *                  failure has no place in the file
     * @return false on failure; the file object then holds no document, also when it held one
     */
    virtual bool open(const QString &path, const QString &documentType,
                      const QString &requiredVersion, QString &errorText);
    /** Opens a document from memory; the error text names no file. */
    virtual bool open(const QByteArray &buffer, const QString &documentType,
                      const QString &requiredVersion, QString &errorText);

    /** The permissions that a saved file gets; none (the default) leaves them as they are. */
    virtual QFileDevice::Permissions permissions() const;
    virtual void setPermissions(QFileDevice::Permissions permissions);

    /**
     * Replaces the file @p path by the document in one step: when saving fails, also half-way, the
     * old file is still there, whole. Where the file can be written but its directory cannot, it
     * is written in place instead, and a power cut half-way may leave it damaged.
     *
     * @param errorText on failure the file and the reason
     * @return false on failure, also when there is no document
     */
    virtual bool save(const QString &path, QString &errorText);
    /** Saves with @p documentName as document type in the file; the document keeps its own. */
    virtual bool save(const QString &path, const QString &documentName, QString &errorText);
    /** Saves into memory; @p buffer is unchanged on failure. */
    virtual bool save(QByteArray &buffer, QString &errorText);

    /** The document's meta data; null when it has none. */
    virtual CXMLMetaData metaData() const;
    /** Writes the meta data, creating the "Head" element; does nothing without a document. */
    virtual void setMetaData(const CXMLMetaData &metaData);

    /** The child @p tag of @p parent, appended if absent; null without a document. */
    virtual QDomElement domElement(const QString &tag, QDomElement parent);
    /** The child @p tag of @p parent; null if absent. */
    virtual QDomElement existingDomElement(const QString &tag, QDomElement parent) const;

    /**
     * Called while opening when the version in the file (@p existing, empty if it has none) is not
     * the required one.
     * @return true to accept the document, false to refuse it
     */
    virtual bool handleVersionError(const QString &required, const QString &existing) = 0;

    /** The meta data in @p element; @p ok (may be null) is set to whether there are any. */
    virtual CXMLMetaData metaData(const QDomElement &element, bool *ok) const;
    /** Writes the meta data into @p element, as its first child. */
    virtual void setMetaData(const CXMLMetaData &metaData, QDomElement element);

    /** The log given at construction; may be null. */
    ICLogfile *logfile() const;

    /**
     * What a document may ask for, from the next opening or saving on; the defaults are those of
     * SXmlLimits. Saving refuses what opening would refuse.
     */
    SXmlLimits limits() const;
    void setLimits(const SXmlLimits &limits);

    /**
     * Whether the next opening remembers where the elements stand in the file; off by default, for
     * it costs time and memory.
     */
    void keepPositions(bool keep);
    /**
     * Where the start tag of @p element stood when the document was opened, however much has been
     * changed since; unknown for a new element and when positions were not kept.
     */
    SXmlPosition position(const QDomElement &element) const;

    /** A handle on the document in hand; null when there is none. */
    QDomDocument domDocument() const;

    /**
     * Starts a document that holds only a root element named @p documentType.
     * @return false, and the file then holds no document, if that is not a valid XML name
     */
    bool createNewDocument(const QString &documentType, const QString &version);

    /** Sets the text of the child @p tag of @p parent, creating it if absent. */
    void setNodeValue(const QString &tag, const QString &value, const QDomElement &parent);
    /** Sets the text of @p element; child elements and comments stay. */
    void setNodeValue(const QDomElement &element, const QString &value);
    void setNodeValue(const QDomElement &element, int value);

    /** The text of the child @p tag of @p parent; empty if absent. */
    QString getNodeValue(const QString &tag, const QDomElement &parent) const;
    /** The text of @p element, without that of elements below it. */
    QString getNodeValue(const QDomElement &element) const;

private:
    Q_DISABLE_COPY(CXmlAbstractVornFile)

    std::unique_ptr<CXmlAbstractVornFilePrivate> d;
};
