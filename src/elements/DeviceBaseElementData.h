#pragma once

#include "elements/CDeviceBaseElement.h"

#include <QSharedData>

#include <tuple>

/** Shared by the sources of CDeviceBaseElement. */
class CDeviceBaseElementData : public QSharedData
{
public:
    virtual ~CDeviceBaseElementData() = default;

    quint32 serial = 0;
    NDeviceConf::EDeviceClass deviceClass = NDeviceConf::DEVICE_CLASS_UNDEFINED;
    QStringList options;
    QList<CParamFileElement> parameterFiles;
    CFileElement odictFile;
    CFileElement faultTextFile;
    QList<CFileElement> additionalFiles;
    QList<CPluginElement> plugins;
    QString executionPlugin;
    QStringList fpgaFiles;
    bool opcUaEnabled = false;
    QList<CFileElement> opcUaFiles;
    CFileElement etherCatMasterFile;
    CDeviceItem::EHostAddrType hostAddressType = CDeviceItem::HOST_ADDRESS_UNDEFINED;
    QHostAddress hostAddress;
    quint16 port = 0;
    qint32 preferredDeviceListNumber = -1;

    template <typename Self>
    static auto fields(Self &self)
    {
        return std::tie(self.serial, self.deviceClass, self.options, self.parameterFiles,
                        self.odictFile, self.faultTextFile, self.additionalFiles, self.plugins,
                        self.executionPlugin, self.fpgaFiles, self.opcUaEnabled, self.opcUaFiles,
                        self.etherCatMasterFile, self.hostAddressType, self.hostAddress, self.port,
                        self.preferredDeviceListNumber);
    }
};
