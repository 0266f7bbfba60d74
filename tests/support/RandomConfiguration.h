#pragma once

#include "configfile/CDeviceConfigurationFile10.h"
#include "RandomText.h"

#include <QSet>

#include <memory>
#include <random>

/**
 * Configurations of every kind, the same ones in every run. Their keys come from a small stock, so
 * that two of them have much in common.
 */
class RandomConfiguration
{
public:
    explicit RandomConfiguration(quint32 seed) : m_generator(seed), m_text(seed) { }

    CDescriptionElement description()
    {
        CDescriptionElement result;
        result.setName(text());
        result.setComment(text());
        result.setVersion(text());
        result.setCreationDate(QDate(2026, 1, 1 + static_cast<int>(below(3))));
        return result;
    }

    CDeviceElement device()
    {
        CDeviceElement result;
        result.setDeviceClass(below(2) == 0 ? NDeviceConf::DEVICE_CLASS_KC2
                                            : NDeviceConf::DEVICE_CLASS_KD3);
        change(result, 1);
        return result;
    }

    /** Gives each part of the device, with a chance of one to @p rarity, a new content. */
    void change(CDeviceElement &device, uint rarity)
    {
        const auto isChosen = [&]() { return below(rarity) == 0; };
        if (isChosen()) {
            device.setName(text());
        }
        if (isChosen()) {
            device.setComment(text());
        }
        if (isChosen()) {
            device.setHardwareId(hardwareId());
        }
        if (isChosen()) {
            device.setConfigurationName(text());
        }
        if (isChosen()) {
            device.setExecutionPlugin(text());
        }
        if (isChosen()) {
            device.setOpcUaEnabled(below(2) == 0);
        }
        if (isChosen()) {
            device.setOptions(options());
        }
        if (isChosen()) {
            device.setParameterFiles(parameterFiles());
        }
        if (isChosen()) {
            device.setOdictFile(singleFile());
        }
        if (isChosen()) {
            device.setFaultTextFile(singleFile());
        }
        if (isChosen()) {
            device.setEtherCatMasterFile(singleFile());
        }
        if (isChosen()) {
            device.setFpgaFiles(names());
        }
        if (isChosen()) {
            device.setOpcUaFiles(files());
        }
        if (isChosen()) {
            device.setAdditionalFiles(files());
        }
        if (isChosen()) {
            device.setPlugins(plugins());
        }
        if (isChosen()) {
            device.setSubDevices(drives());
        }
    }

    /** A file object that holds them; null on failure. */
    static std::unique_ptr<CDeviceConfigurationFile10>
    document(const CDescriptionElement &description, const CDeviceElement &device)
    {
        auto file = std::make_unique<CDeviceConfigurationFile10>(nullptr);
        const bool isMade = file->createNewDocument() && file->setDescription(description)
            && file->setConfiguration(device);
        return isMade ? std::move(file) : nullptr;
    }

    std::unique_ptr<CDeviceConfigurationFile10> document()
    {
        const CDescriptionElement text = description();
        return document(text, device());
    }

    // Not by a distribution, whose results the C++ library chooses.
    uint below(uint limit) { return static_cast<uint>(m_generator()) % limit; }

private:
    /** Often the same one, often none. */
    QString text()
    {
        switch (below(4)) {
        case 0:
            return QString();
        case 1:
            return u"Stacker"_s;
        default:
            return m_text.next();
        }
    }

    /** Some of the stock, each once, in any order. */
    QStringList names()
    {
        static const QStringList stock = {
            u"a.xml"_s, u"dir/a.xml"_s, u"a.xml[2]"_s, u"]"_s,          u"\\"_s,
            u"\\]."_s,  u"größe <&>"_s, u" b "_s,      u"two\nlines"_s, u"["_s,
            u"%1"_s,    u"\u202e"_s,    u"İ"_s,        u".name"_s,
        };
        QStringList rest = stock;
        QStringList result;
        for (uint count = below(6); count > 0; --count) {
            result << rest.takeAt(static_cast<int>(below(static_cast<uint>(rest.size()))));
        }
        return result;
    }

    QStringList options()
    {
        QStringList result;
        for (const QString &word : {u"-trace"_s, u"-x]"_s, u"-\\"_s, u"-log"_s, u"-["_s}) {
            if (below(2) == 0) {
                result.insert(static_cast<int>(below(static_cast<uint>(result.size()) + 1)),
                              below(2) == 0 ? word : word + u" 4 %1"_s.arg(below(3)));
            }
        }
        return result;
    }

    QString hardwareId() { return below(3) == 0 ? QString() : u"KD3:Drive:1:2:%1"_s.arg(below(4)); }

    CFileElement file(const QString &name)
    {
        CFileElement result;
        result.setFileName(name);
        result.setComment(text());
        result.setDevicePath(text());
        result.setProjectPath(text());
        return result;
    }

    CFileElement singleFile() { return below(3) == 0 ? CFileElement() : file(text()); }

    QList<CFileElement> files()
    {
        QList<CFileElement> result;
        for (const QString &name : names()) {
            result << file(name);
        }
        return result;
    }

    QList<CParamFileElement> parameterFiles()
    {
        QList<CParamFileElement> result;
        for (const QString &name : names()) {
            CParamFileElement parameters;
            parameters.setName(name);
            parameters.setComment(text());
            parameters.setType(below(2) == 0 ? NvrnGlobal::PARAM_FILE_PARAMETERS
                                             : NvrnGlobal::PARAM_FILE_MOTOR_PARAMETERS);
            result << parameters;
        }
        return result;
    }

    QList<CPluginElement> plugins()
    {
        QList<CPluginElement> result;
        for (const QString &name : names()) {
            CPluginElement plugin;
            plugin.setName(name);
            plugin.setVersion(text());
            if (below(3) > 0) {
                plugin.setPriority(static_cast<int>(below(5)) - 2);
            }
            result << plugin;
        }
        return result;
    }

    template <typename Drive>
    Drive drive(quint8 number)
    {
        Drive result;
        result.setDriveId(number);
        result.setName(text());
        result.setComment(text());
        result.setHardwareId(hardwareId());
        result.setBusId(below(3));
        result.setParameterFile(singleFile());
        return result;
    }

    QList<CSubDeviceElement> drives()
    {
        QList<CSubDeviceElement> result;
        for (const int number : {2, 0, 1, 254}) {
            switch (below(3)) {
            case 0:
                result << drive<CSubDeviceKD3Element>(static_cast<quint8>(number));
                break;
            case 1: {
                auto kd2 = drive<CSubDeviceKD2Element>(static_cast<quint8>(number));
                kd2.setKd2ParameterFile(singleFile());
                kd2.setKd2LogicFile(singleFile());
                kd2.setKd2FirmwareFile(singleFile());
                result << kd2;
                break;
            }
            default:
                break;
            }
        }
        return result;
    }

    std::mt19937 m_generator;
    RandomText m_text;
};
