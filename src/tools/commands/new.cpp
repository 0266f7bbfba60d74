#include "commissioning/CConfigurationItems.h"
#include "tools/Command.h"
#include "tools/ConfigurationJson.h"
#include "tools/Input.h"
#include "tools/Output.h"
#include "vocabulary/NVornXmlTags.h"

#include <QDate>
#include <QFileInfo>

namespace {

const QString ClassOption = QStringLiteral("class");
const QString NameOption = QStringLiteral("name");
const QString TemplateOption = QStringLiteral("template");
const QString ListTemplatesOption = QStringLiteral("list-templates");

struct STemplate {
    QString name;
    /** Untranslated. */
    const char *description;

    QString path() const { return QStringLiteral(":/vrndevice/templates/%1.3deco").arg(name); }
};

const STemplate Templates[] = {
    {QStringLiteral("kc2-kd2-drive"),
     QT_TRANSLATE_NOOP("vrndevice", "A KC2 controller with one KD2 drive")},
    {QStringLiteral("kd3-drive"), QT_TRANSLATE_NOOP("vrndevice", "A single KD3 drive")},
    {QStringLiteral("kd3-ethercat"),
     QT_TRANSLATE_NOOP("vrndevice",
                       "A KD3 controller with two KD3 drives and an EtherCAT master plug-in")},
};

QStringList templateNames()
{
    QStringList names;
    for (const STemplate &entry : Templates) {
        names.append(entry.name);
    }
    return names;
}

int listTemplates(const CommandLine &line)
{
    Output out;
    QJsonArray array;
    QList<QStringList> rows;
    for (const STemplate &entry : Templates) {
        const QString description = Texts::tr(entry.description);
        rows.append({entry.name, description});
        array.append(QJsonObject{{QStringLiteral("name"), entry.name},
                                 {QStringLiteral("description"), description}});
    }
    if (line.wantsJson()) {
        out.print({{QStringLiteral("templates"), array}});
    } else {
        out.printColumns(rows);
    }
    return out.finish();
}

/** Opens a built-in template, or the configuration of that path; a failure has been printed. */
bool openTemplate(const QString &nameOrPath, CDeviceConfigurationFile10 &file)
{
    for (const STemplate &entry : Templates) {
        if (entry.name == nameOrPath) {
            return file.open(entry.path());
        }
    }
    if (!isStandardStream(nameOrPath) && !QFileInfo::exists(nameOrPath)) {
        printError(
            Texts::tr(
                "'%1' is neither a built-in template nor a file. The built-in templates are: %2.")
                .arg(nameOrPath, templateNames().join(QStringLiteral(", "))));
        return false;
    }
    return openConfiguration(nameOrPath, file);
}

/** Reads a template, and refuses one without device or, if a class is given, of another class. */
int openTemplateOfClass(const QString &nameOrPath, NDeviceConf::EDeviceClass deviceClass,
                        CDeviceConfigurationFile10 &file)
{
    if (!openTemplate(nameOrPath, file)) {
        return EXIT_UNREADABLE_INPUT;
    }
    const QDomElement device = file.findDeviceElement();
    if (device.isNull()) {
        printError(Texts::tr("%1: The configuration has no device.").arg(shownName(nameOrPath)));
        return EXIT_UNREADABLE_INPUT;
    }
    const QString present = file.getNodeValue(NVornXmlTags::TAG_CLASS, device);
    if (deviceClass != NDeviceConf::DEVICE_CLASS_UNDEFINED
        && file.strToDeviceClass(present) != deviceClass) {
        printError(Texts::tr("The template %1 is for the class '%2', not for %3.")
                       .arg(shownName(nameOrPath), present, file.deviceClassToStr(deviceClass)));
        return EXIT_NOT_DONE;
    }
    return EXIT_DONE;
}

/** Where a file of the device named @p oldName lies in the project of the one named @p newName. */
QString adaptedProjectDirectory(const QString &directory, const QString &oldName,
                                const QString &newName)
{
    CFileElement file;
    file.setProjectPath(directory);
    CDeviceElement device;
    device.setName(oldName);
    device.setOdictFile(file);
    device.setNameAndAdaptProjectPaths(newName);
    return device.odictFile().projectPath();
}

void adaptProjectDirectories(CDeviceConfigurationFile10 &file, const QString &oldName,
                             const QString &newName)
{
    using namespace NVornXmlTags;
    // Collected first: QDom rebuilds its list after each change of the document.
    const QDomNodeList found = file.findDeviceElement().elementsByTagName(TAG_PROJECT_DIR);
    QList<QDomElement> directories;
    for (int i = 0; i < found.size(); ++i) {
        directories.append(found.at(i).toElement());
    }
    for (const QDomElement &directory : directories) {
        if (directory.parentNode().nodeName() == TAG_FILE) {
            const QString present = file.getNodeValue(directory);
            file.setNodeValue(directory, adaptedProjectDirectory(present, oldName, newName));
        }
    }
}

/**
 * Makes the template the new device's own: names, directories in the project and the dates of the
 * description. Author and date of the template itself go; all else stays, also what only other
 * programs understand.
 */
bool adaptTemplate(CDeviceConfigurationFile10 &file, const QString &name)
{
    CConfigurationItems items(file);
    const QString today = QDate::currentDate().toString(Qt::ISODate);
    QString oldName;
    items.value(QStringLiteral("device.name"), oldName);
    const bool done = items.setValue(QStringLiteral("description.name"), name)
        && items.setValue(QStringLiteral("description.creationDate"), today)
        && items.setValue(QStringLiteral("description.revisionDate"), today)
        && items.setValue(QStringLiteral("device.name"), name);
    if (!done) {
        printError(items.errorText());
        return false;
    }
    adaptProjectDirectories(file, oldName, name);
    CXMLMetaData meta = file.metaData();
    meta.setDate(QDate());
    meta.setAuthor(QString());
    file.setMetaData(meta);
    return true;
}

/** Without template: a device without anything. */
bool createDevice(CDeviceConfigurationFile10 &file, NDeviceConf::EDeviceClass deviceClass,
                  const QString &name)
{
    CDescriptionElement description;
    description.setName(name);
    CDeviceElement device;
    device.setDeviceClass(deviceClass);
    device.setName(name);
    return file.createNewDocument() && file.setDescription(description)
        && file.setConfiguration(device);
}

void describe(CommandLine &line)
{
    line.addOptionalArgument(
        QStringLiteral("FILE"),
        Texts::tr(
            "The configuration to create; - prints it. Required except with --list-templates."));
    line.addOption(ClassOption,
                   Texts::tr("Class of the device: kc2 or kd3. Not required with a template."),
                   QStringLiteral("CLASS"), {QStringLiteral("kc2"), QStringLiteral("kd3")});
    line.addOption(NameOption, Texts::tr("Name of the device."), QStringLiteral("NAME"));
    line.addOption(
        TemplateOption,
        Texts::tr("The template: the name of a built-in one, or the file of a configuration."),
        QStringLiteral("TEMPLATE"), templateNames());
    line.setFileNames({QStringLiteral("*.3deco")});
    line.addOption(ListTemplatesOption, Texts::tr("Print the built-in templates."));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco --class kd3 --name Wrapper"));
    line.addExample(
        QStringLiteral("DeviceConfiguration.3deco --template kd3-ethercat --name Wrapper"));
}

int run(const CommandLine &line)
{
    if (line.isSet(ListTemplatesOption)) {
        return listTemplates(line);
    }
    const QString path = line.argument(0);
    if (path.isEmpty()) {
        return line.badUsage(Texts::tr("FILE is missing."));
    }
    const QString name = line.value(NameOption);
    const bool hasTemplate = line.isSet(TemplateOption);
    CDeviceConfigurationFile10 file(nullptr);
    const NDeviceConf::EDeviceClass deviceClass = file.strToDeviceClass(line.value(ClassOption));
    if (deviceClass == NDeviceConf::DEVICE_CLASS_UNDEFINED
        && (!hasTemplate || line.isSet(ClassOption))) {
        return line.badUsage(Texts::tr("--class must be kc2 or kd3."));
    }
    if (name.isEmpty()) {
        return line.badUsage(Texts::tr("--name is missing."));
    }
    if (isStandardStream(path) && line.wantsJson()) {
        return line.badUsage(
            Texts::tr("--json cannot be combined with the document on standard output."));
    }
    if (!isStandardStream(path) && QFileInfo::exists(path)) {
        printError(Texts::tr("%1 already exists and is not changed.").arg(path));
        return EXIT_NOT_DONE;
    }

    if (hasTemplate) {
        const int opened = openTemplateOfClass(line.value(TemplateOption), deviceClass, file);
        if (opened != EXIT_DONE) {
            return opened;
        }
    }
    if (!(hasTemplate ? adaptTemplate(file, name) : createDevice(file, deviceClass, name))) {
        return EXIT_NOT_DONE;
    }
    const int saved = saveConfiguration(path, file);
    if (saved != EXIT_DONE || isStandardStream(path)) {
        return saved;
    }
    Output out;
    if (line.wantsJson()) {
        out.print(toJson(file));
    } else {
        out.text() << Texts::tr("Created %1: device %2").arg(path, name) << '\n';
    }
    return out.finish();
}

const CommandRegistration
    Registration("new", QT_TRANSLATE_NOOP("vrndevice", "Create a configuration with one device."),
                 describe, run);

} // namespace
