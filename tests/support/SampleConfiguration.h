#pragma once

#include "configfile/ICDeviceConfigurationFile.h"
#include "Literals.h"

#include <QDataStream>
#include <QMap>

#include <functional>

/** A device and a description in which every field differs from its default and from the others. */
namespace SampleConfiguration {

inline CFileElement file(const QString &name, const QString &comment, const QString &devicePath,
                         const QString &projectPath)
{
    CFileElement result;
    result.setFileName(name);
    result.setComment(comment);
    result.setDevicePath(devicePath);
    result.setProjectPath(projectPath);
    return result;
}

inline CParamFileElement paramFile(const QString &name, NvrnGlobal::EParamFileType type,
                                   const QString &comment = QString())
{
    CParamFileElement result;
    result.setName(name);
    result.setType(type);
    result.setComment(comment);
    return result;
}

inline CPluginElement plugin(const QString &name, const QString &version, int priority)
{
    CPluginElement result;
    result.setName(name);
    result.setVersion(version);
    result.setPriority(priority);
    return result;
}

inline CXMLMetaData metaData()
{
    CXMLMetaData result;
    result.setAuthor(u"A. Engineer"_s);
    result.setDate(QDate(2026, 1, 31));
    result.setComment(u"Device Configuration File"_s);
    return result;
}

inline CDescriptionElement description()
{
    CDescriptionElement result;
    result.setName(u"Packaging line"_s);
    result.setComment(u"Hall 3"_s);
    result.setVersion(u"2.1"_s);
    result.setCreationDate(QDate(2025, 12, 24));
    result.setRevisionDate(QDate(2026, 1, 30));
    return result;
}

inline QStringList options()
{
    return {u"-v"_s, u"-log"_s, u"-opc"_s};
}

inline QList<CParamFileElement> paramFiles()
{
    return {paramFile(u"Machine"_s, NvrnGlobal::PARAM_FILE_PARAMETERS, u"all axes"_s),
            paramFile(u"Legacy"_s, NvrnGlobal::PARAM_FILE_KC2_PARAMETERS)};
}

inline CFileElement odictFile()
{
    return file(u"KD3_Dictionary_V1.xml"_s, u"as delivered"_s, u"/velkor/conf/"_s,
                u"Press/conf/"_s);
}

inline CFileElement faultTextFile()
{
    return file(u"KD3_Messages_int.xml"_s, u"in two languages"_s, u"/opt/velkor/etc/conf/"_s,
                u"Press/text/"_s);
}

inline QStringList fpgaFiles()
{
    return {u"main.bit"_s, u"spare.bit"_s};
}

inline QList<CFileElement> opcUaFiles()
{
    return {file(u"kd3NodeSet.xml"_s, u"nodes"_s, u"/velkor/opcua/"_s, u"Press/opcua/"_s)};
}

inline CFileElement etherCatMasterFile()
{
    return file(u"EC_BusConfiguration.xml"_s, u"bus"_s, u"/velkor/bus/"_s, u"Press/bus/"_s);
}

inline QList<CFileElement> additionalFiles()
{
    return {
        file(u"recipe 1.csv"_s, u"first\nline break"_s, u"/velkor/recipes/"_s, u"Press/recipes/"_s),
        file(u"Größe <&>.txt"_s, QString(), QString(), QString())};
}

inline QList<CPluginElement> plugins()
{
    return {plugin(u"Motion"_s, u"1.2.3"_s, 10), plugin(u"CECatMaster"_s, u"4"_s, -1)};
}

inline QString executionPlugin()
{
    return u"Motion"_s;
}

inline CSubDeviceKD2Element kd2SubDevice()
{
    CSubDeviceKD2Element result;
    result.setHardwareId(u"KD2:Feed Drive:1:0:2"_s);
    result.setName(u"Feed"_s);
    result.setComment(u"left"_s);
    result.setDriveId(0);
    result.setBusId(1001);
    result.setParameterFile(
        file(u"Feed.3param"_s, u"p"_s, u"/velkor/subdevices/0/param/"_s, u"Press/0/param/"_s));
    result.setKd2ParameterFile(
        file(u"parameter.xml"_s, u"kp"_s, u"/velkor/subdevices/0/kd2/"_s, u"Press/0/kd2/"_s));
    result.setKd2LogicFile(
        file(u"logic.bit"_s, u"kl"_s, u"/velkor/subdevices/0/logic/"_s, u"Press/0/logic/"_s));
    result.setKd2FirmwareFile(file(u"firmware.bin"_s, u"kf"_s, u"/velkor/subdevices/0/firmware/"_s,
                                   u"Press/0/firmware/"_s));
    return result;
}

inline CSubDeviceKD3Element kd3SubDevice()
{
    CSubDeviceKD3Element result;
    result.setHardwareId(u"KD3:Servo Drive 8A:3:2:1"_s);
    result.setName(u"Cutter"_s);
    result.setComment(u"right"_s);
    result.setDriveId(7);
    result.setBusId(4294967295u);
    result.setParameterFile(
        file(u"Cutter.3param"_s, QString(), u"/velkor/subdevices/7/param/"_s, u"Press/7/param/"_s));
    return result;
}

/** Without what the document does not carry: serial number, network endpoint, list position. */
inline CDeviceElement device()
{
    CDeviceElement result;
    result.setHardwareId(u"KD3:Servo Drive 8A:3:2:1"_s);
    result.setDeviceClass(NDeviceConf::DEVICE_CLASS_KD3);
    result.setName(u"Press"_s);
    result.setComment(u"the big one"_s);
    result.setConfigurationName(u"production"_s);
    result.setOpcUaEnabled(true);
    result.setOptions(options());
    result.setParameterFiles(paramFiles());
    result.setOdictFile(odictFile());
    result.setFaultTextFile(faultTextFile());
    result.setFpgaFiles(fpgaFiles());
    result.setOpcUaFiles(opcUaFiles());
    result.setEtherCatMasterFile(etherCatMasterFile());
    result.setAdditionalFiles(additionalFiles());
    result.setPlugins(plugins());
    result.setExecutionPlugin(executionPlugin());
    result.setSubDevices({kd2SubDevice(), kd3SubDevice()});
    return result;
}

} // namespace SampleConfiguration

/** What the getters and setters of a configuration file have in common, each under its name. */
namespace ConfigurationItems {

template <typename Value>
QByteArray bytesOf(const Value &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

/** What every getter gives, by the name of the getter. */
inline QMap<QString, QByteArray> read(const ICDeviceConfigurationFile &file)
{
    QMap<QString, QByteArray> items;
    items.insert(u"description"_s, bytesOf(file.description()));
    CDeviceElement device;
    const bool hasDevice = file.configuration(device);
    items.insert(u"configuration"_s, bytesOf(hasDevice) + bytesOf(device));
    items.insert(u"odictFile"_s, bytesOf(file.odictFile()));
    items.insert(u"faultTextFile"_s, bytesOf(file.faultTextFile()));
    items.insert(u"paramFiles"_s, bytesOf(file.paramFiles()));
    QList<CParamFileElement> paramFiles;
    const bool hasParamFiles = file.paramFiles(paramFiles);
    items.insert(u"paramFiles, list"_s, bytesOf(hasParamFiles) + bytesOf(paramFiles));
    items.insert(u"containsParamFile"_s,
                 bytesOf(file.containsParamFile(SampleConfiguration::paramFiles().constFirst())));
    items.insert(u"fpgaFiles"_s, bytesOf(file.fpgaFiles()));
    items.insert(u"containsFpgaFile"_s,
                 bytesOf(file.containsFpgaFile(SampleConfiguration::fpgaFiles().constFirst())));
    items.insert(u"activeFpgaFile"_s, bytesOf(file.activeFpgaFile()));
    items.insert(u"additionalFiles"_s, bytesOf(file.additionalFiles()));
    items.insert(
        u"containsAdditionalFile"_s,
        bytesOf(file.containsAdditionalFile(SampleConfiguration::additionalFiles().constFirst())));
    items.insert(u"plugins"_s, bytesOf(file.plugins()));
    QList<CPluginElement> plugins;
    const bool hasPlugins = file.plugins(plugins);
    items.insert(u"plugins, list"_s, bytesOf(hasPlugins) + bytesOf(plugins));
    items.insert(u"executionPlugin"_s, bytesOf(file.executionPlugin()));
    items.insert(u"isOpcUaEnabled"_s, bytesOf(file.isOpcUaEnabled()));
    QList<CFileElement> opcUaFiles;
    const bool hasOpcUaFiles = file.opcUaFiles(opcUaFiles);
    items.insert(u"opcUaFiles"_s, bytesOf(hasOpcUaFiles) + bytesOf(opcUaFiles));
    items.insert(u"etherCatMasterFile"_s, bytesOf(file.etherCatMasterFile()));
    items.insert(u"options"_s, bytesOf(file.options()));
    items.insert(u"metaData"_s, bytesOf(file.metaData().author()));
    return items;
}

struct Setter {
    const char *name;
    std::function<bool(ICDeviceConfigurationFile &)> set;
    /** The getters whose result it changes, besides that of the whole configuration. */
    QStringList concerned;
    /** It builds a part of the document anew: the marks of unknown content that goes with it. */
    QStringList rebuilt;
};

/**
 * Every setter, with a value that is none of SampleConfiguration's; in the sample's document each
 * returns true. One long table, a row a setter.
 */
inline QList<Setter> setters()
{
    using File = ICDeviceConfigurationFile;
    using namespace SampleConfiguration;
    const CFileElement other = file(u"other.xml"_s, u"oc"_s, u"/other/"_s, u"Press/other/"_s);
    const CParamFileElement otherParam = paramFile(u"Other"_s, NvrnGlobal::PARAM_FILE_PARAMETERS);
    const QStringList param = {u"paramFiles"_s, u"paramFiles, list"_s, u"containsParamFile"_s};
    const QStringList fpga = {u"fpgaFiles"_s, u"containsFpgaFile"_s, u"activeFpgaFile"_s};
    const QStringList additional = {u"additionalFiles"_s, u"containsAdditionalFile"_s};
    const QStringList pluginItems = {u"plugins"_s, u"plugins, list"_s};
    return {
        {"setDescription",
         [](File &f) { return f.setDescription(CDescriptionElement()); },
         {u"description"_s},
         {}},
        {"setOdictFile",
         [=](File &f) { return f.setOdictFile(other); },
         {u"odictFile"_s},
         {u"odict-file"_s}},
        {"setOdictFile, null",
         [](File &f) { return f.setOdictFile(CFileElement()); },
         {u"odictFile"_s},
         {u"odict-file"_s}},
        {"setFaultTextFile",
         [=](File &f) { return f.setFaultTextFile(other); },
         {u"faultTextFile"_s},
         {u"fault-file"_s}},
        {"setFaultTextFile, null",
         [](File &f) { return f.setFaultTextFile(CFileElement()); },
         {u"faultTextFile"_s},
         {u"fault-file"_s}},
        {"setParamFiles",
         [=](File &f) { return f.setParamFiles({otherParam}); },
         param,
         {u"params"_s, u"params-file"_s}},
        {"addParamFile", [=](File &f) { return f.addParamFile(otherParam); }, param, {}},
        {"addParamFile, present",
         [](File &f) {
             return f.addParamFile(paramFile(u"Machine"_s, NvrnGlobal::PARAM_FILE_OEM_PARAMETERS));
         },
         param,
         {}},
        {"addParamFile, name and type",
         [](File &f) { return f.addParamFile(u"Other"_s, NvrnGlobal::PARAM_FILE_PARAMETERS); },
         param,
         {}},
        {"removeParamFile",
         [](File &f) { return f.removeParamFile(SampleConfiguration::paramFiles().constFirst()); },
         param,
         {u"params-file"_s}},
        {"removeParamFile, name and type",
         [](File &f) { return f.removeParamFile(u"Machine"_s, NvrnGlobal::PARAM_FILE_PARAMETERS); },
         param,
         {u"params-file"_s}},
        {"setFpgaFiles",
         [](File &f) { return f.setFpgaFiles({u"other.bit"_s}); },
         fpga,
         {u"fpga"_s, u"fpga-file"_s}},
        {"appendFpgaFile", [](File &f) { return f.appendFpgaFile(u"other.bit"_s); }, fpga, {}},
        {"removeFpgaFile",
         [](File &f) { return f.removeFpgaFile(u"main.bit"_s); },
         fpga,
         {u"fpga-file"_s}},
        {"setActiveFpgaFile",
         [](File &f) { return f.setActiveFpgaFile(u"other.bit"_s); },
         fpga,
         {}},
        {"setActiveFpgaFile, present",
         [](File &f) { return f.setActiveFpgaFile(u"dir/main.bit"_s); },
         fpga,
         {}},
        {"setAdditionalFiles",
         [=](File &f) { return f.setAdditionalFiles({other}); },
         additional,
         {u"files"_s, u"files-file"_s}},
        {"appendAdditionalFile",
         [=](File &f) { return f.appendAdditionalFile(other); },
         additional,
         {}},
        {"removeAdditionalFile",
         [](File &f) {
             return f.removeAdditionalFile(SampleConfiguration::additionalFiles().constFirst());
         },
         additional,
         {u"files-file"_s}},
        {"setPlugins",
         [](File &f) { return f.setPlugins({plugin(u"Other"_s, u"1"_s, 5)}); },
         pluginItems,
         {u"plugins"_s, u"plugins-plugin"_s}},
        {"setExecutionPlugin",
         [](File &f) { return f.setExecutionPlugin(u"Other"_s); },
         {u"executionPlugin"_s},
         {}},
        {"setOpcUaEnabled",
         [](File &f) { return f.setOpcUaEnabled(false); },
         {u"isOpcUaEnabled"_s},
         {}},
        {"setOpcUaFiles",
         [=](File &f) {
             return f.setOpcUaFiles({other, other});
         },
         {u"opcUaFiles"_s},
         {u"opcua-files"_s, u"opcua-file"_s}},
        {"setEtherCatMasterFile",
         [=](File &f) { return f.setEtherCatMasterFile(other); },
         {u"etherCatMasterFile"_s},
         {u"ethercat-file"_s}},
        {"setEtherCatMasterFile, null",
         [](File &f) { return f.setEtherCatMasterFile(CFileElement()); },
         {u"etherCatMasterFile"_s},
         {u"ethercat-file"_s}},
    };
}

} // namespace ConfigurationItems
