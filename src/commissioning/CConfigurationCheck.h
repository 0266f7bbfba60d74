#pragma once

#include "commissioning/SConfigurationFinding.h"
#include "commissioning/VrnCommissioningExport.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>

class CConfigurationCheckPrivate;

/**
 * Finds everything that is wrong with a configuration document, in one pass: its structure, its
 * values, what contradicts each other in it and, when a project directory is given, the files that
 * it refers to. Nothing is changed, neither the document nor the project.
 *
 * The document is judged by how the device and the tools read it: what they would ignore, read as
 * something else, or cannot do is an error; what works but is hardly meant is a warning.
 *
 * Files are judged by the rules by which CStagingPlan judges them, too.
 *
 * The hardware identity of a drive fits when its prefix, name and platform are those of the
 * device's (see CDeviceBaseElement::isParameterHardwareIdCompatible()); version and revision may
 * differ. A drive or a device without an identity fits any.
 *
 * One object checks any number of documents, one after the other, and keeps nothing of a document
 * but its findings. Thread-safe as every file object: see docs/architecture.md.
 */
class VRNCOMMISSIONING_EXPORT CConfigurationCheck
{
public:
    struct SRule {
        /** As in SConfigurationFinding::rule. */
        QString id;
        SConfigurationFinding::ESeverity severity = SConfigurationFinding::ERROR;
        /** What is wrong when the rule finds something; one sentence for the user. */
        QString description;
        /** How to correct it; the hint of its findings, unless they have a more specific one. */
        QString hint;
    };

    CConfigurationCheck();
    ~CConfigurationCheck();

    /** Every rule there is, in a fixed order that puts together what belongs together. */
    static QList<SRule> rules();

    /**
     * From the next document on, also looks for the files in the project's directory, the one to
     * which the project paths are relative. When a CDeviceManifest::fileName() lies in it, sizes
     * and checksums must match it. An empty text, the default, leaves the files alone.
     * @return false if the directory does not exist or cannot be read; see errorText()
     */
    bool setProjectDirectory(const QString &directory);
    QString projectDirectory() const;

    /**
     * Checks the file @p path. A document that is not well-formed, or of another document type, or
     * beyond SXmlLimits, is not checked but refused; that is posted to the message board, too.
     * @return false when the file cannot be read or is refused; there are no findings then
     */
    bool open(const QString &path);
    /** As open(), from memory; errorText() contains no file name. */
    bool load(const QByteArray &buffer);

    /**
     * What was found in the last document, by position, then by rule; what has no position comes
     * first. Texts of the document that are very long are shortened in messages, and of more than
     * 100,000 findings the rest is left out, which the rule "findings-left-out" reports.
     */
    QList<SConfigurationFinding> findings() const;
    /** "file:line:column: reason", as far as known; empty when the last call did not fail. */
    QString errorText() const;

private:
    Q_DISABLE_COPY(CConfigurationCheck)

    const std::unique_ptr<CConfigurationCheckPrivate> d;
};
