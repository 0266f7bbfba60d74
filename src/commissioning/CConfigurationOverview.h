#pragma once

#include "commissioning/VrnCommissioningExport.h"
#include "configfile/CDeviceConfigurationFile10.h"

#include <QList>
#include <QString>

#include <memory>

class CConfigurationOverviewPrivate;

/**
 * Everything that a configuration holds, ready to be shown: the device as configuration() of the
 * file reads it, each entry beside the path of its item in the document (see CConfigurationItems),
 * and each file with the directories that the document contains or the directory layout gives it.
 *
 * The overview is taken once; it does not follow later changes of the document. What the reading
 * warns of is posted to the message board as always. Entries stand in the order of the document,
 * drives in that of their numbers. Copies are not made; an overview may be read from any thread.
 */
class VRNCOMMISSIONING_EXPORT CConfigurationOverview
{
public:
    struct SFile {
        QString item;
        NvrnDeviceCore::EDeviceFile kind = NvrnDeviceCore::DEVICE_FILE_NONE;
        CFileElement file;
    };

    struct SParameterFile {
        QString item;
        CParamFileElement parameters;
        /** The text form of the type. */
        QString typeText;
        /** Values and definition, as far as there are such files. */
        QList<SFile> files;
    };

    struct SPlugin {
        QString item;
        CPluginElement plugin;
        /** Its library; null for a plug-in without a name. */
        CFileElement library;
        /** Whether it runs the application. */
        bool isExecuted = false;
    };

    struct SOption {
        QString item;
        /** The option, with its argument after a space. */
        QString text;
    };

    struct SDrive {
        QString item;
        CSubDeviceElement drive;
        /** Parameters; for a KD2 drive also firmware, logic, and its own parameters. */
        QList<SFile> files;
    };

    explicit CConfigurationOverview(const CDeviceConfigurationFile10 &file);
    ~CConfigurationOverview();

    /** Empty texts and invalid dates when the document has none. */
    const CDescriptionElement &description() const;
    const CXMLMetaData &metaData() const;

    /** Without a device all that follows is empty. */
    bool hasDevice() const;
    const CDeviceElement &device() const;
    /** The document itself, where the directory layout puts it. */
    const SFile &configurationFile() const;
    const QList<SDrive> &drives() const;
    const QList<SParameterFile> &parameterFiles() const;
    /** Each null when the document has none. The project path is the one in the document. */
    const SFile &dictionary() const;
    const SFile &faultTexts() const;
    const SFile &etherCatMaster() const;
    /** The first one is the active one. */
    const QList<SFile> &fpgaFiles() const;
    const QList<SFile> &opcUaFiles() const;
    const QList<SFile> &additionalFiles() const;
    const QList<SPlugin> &plugins() const;
    const QList<SOption> &options() const;

    /** Files of all kinds; what is left out has no name. */
    int fileCount() const;

private:
    Q_DISABLE_COPY(CConfigurationOverview)

    std::unique_ptr<CConfigurationOverviewPrivate> d;
};
