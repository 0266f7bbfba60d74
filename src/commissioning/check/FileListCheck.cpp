#include "commissioning/check/FileListCheck.h"

#include "commissioning/check/ValueChecks.h"
#include "commissioning/Texts.h"
#include "vocabulary/NVornXmlTags.h"

using ConfigurationCheckTexts::Texts;

using namespace ConfigurationRules;
using namespace FaultTexts;
using namespace NVornXmlTags;

void FileListCheck::checkParameterFile(const Fields &fields, const QString &item)
{
    const NvrnGlobal::EParamFileType type = checkParameterType(fields, item);
    if (!m_files.checkName(fields, item)) {
        return;
    }
    CParamFileElement file;
    file.setName(fields.text(TAG_NAME));
    file.setType(type);
    const QPair<QString, int> key(file.name(), type);
    if (m_parameterFiles.contains(key)) {
        m_context.findings.report(
            PARAMETER_FILE_TWICE, {fields.place(TAG_NAME), item},
            {Texts::tr("The parameter file '%1' is listed more than once.").arg(shown(file.name())),
             file.name(), QString(), Texts::tr("Remove all but one.")});
        return;
    }
    m_parameterFiles.insert(key);
    file = placed(file);
    m_files.checkPlaced({file.valueFile(), file.defFile()}, {fields.parent(), item});
}

NvrnGlobal::EParamFileType FileListCheck::checkParameterType(const Fields &fields,
                                                             const QString &item)
{
    const QString text = fields.parent().attribute(ATTR_TYPE);
    const std::optional<SFault> fault =
        ValueChecks::of(ConfigurationShape::EValue::PARAMETER_FILE_TYPE, text);
    m_context.findings.report(fault, {fields.parent(), item + QStringLiteral(".type")});
    return fault ? NvrnGlobal::PARAM_FILE_UNDEFINED : m_context.file.strToType(text);
}

CParamFileElement FileListCheck::placed(const CParamFileElement &file)
{
    if (!m_placedTypes.contains(file.type())) {
        CDeviceElement device = m_context.device;
        device.setParameterFiles({file});
        const QList<CFileElement> files =
            device.parameterFiles(NvrnDeviceCore::DEVICE_FILE_PARAMETER);
        CParamFileElement directories;
        directories.setDevicePath(files.value(0).devicePath());
        directories.setProjectPath(files.value(0).projectPath());
        m_placedTypes.insert(file.type(), directories);
    }
    const CParamFileElement directories = m_placedTypes.value(file.type());
    CParamFileElement result = file;
    result.setDevicePath(directories.devicePath());
    result.setProjectPath(directories.projectPath());
    return result;
}

void FileListCheck::checkFpgaFile(const Fields &fields, const QString &item)
{
    const QString name = fields.text(TAG_NAME);
    if (!m_files.checkName(fields, item)) {
        return;
    }
    if (m_fpgaFiles.contains(name)) {
        m_context.findings.report(
            FPGA_FILE_TWICE, {fields.place(TAG_NAME), item},
            {Texts::tr("The FPGA image '%1' is listed more than once.").arg(shown(name)), name,
             QString(), Texts::tr("Remove all but one; the first image is the active one.")});
        return;
    }
    m_fpgaFiles.insert(name);
    if (m_placedFpgaFile.isNull()) {
        CDeviceElement device = m_context.device;
        device.setFpgaFiles({name});
        m_placedFpgaFile = device.fpgaFileElement(0);
    }
    CFileElement file = m_placedFpgaFile;
    file.setFileName(name);
    m_files.checkPlaced({file}, {fields.parent(), item});
}
