#include "commissioning/check/DocumentStructure.h"

#include "vocabulary/NVornXmlTags.h"

#include <QHash>

using namespace NVornXmlTags;

namespace DocumentStructure {

namespace {

SElement text(const QString &tag)
{
    SElement element;
    element.tag = tag;
    element.hasText = true;
    return element;
}

SElement parent(const QString &tag, const QVector<SChild> &children,
                EMeaning meaning = MEANING_NONE)
{
    SElement element;
    element.tag = tag;
    element.meaning = meaning;
    element.children = children;
    return element;
}

SElement entry(const QString &tag, const QVector<SChild> &children, EMeaning meaning)
{
    SElement element = parent(tag, children, meaning);
    element.keyTag = TAG_NAME;
    return element;
}

SElement list(const QString &tag, const SElement &entryElement)
{
    return parent(tag, {{&entryElement, QString(), true}});
}

SElement deepList(const QString &tag, const SElement &entryElement)
{
    SElement element = list(tag, entryElement);
    element.isReadDeep = true;
    return element;
}

SElement holder(const QString &tag, const SElement &file, EMeaning meaning = MEANING_NONE)
{
    return parent(tag, {{&file, QString(), false}}, meaning);
}

SElement withAttribute(SElement element, const QString &attribute)
{
    element.attributes.append(attribute);
    return element;
}

/** The elements from the bottom up; the later ones point at the earlier ones. */
struct SStructure {
    SStructure() = default;
    Q_DISABLE_COPY(SStructure)

    const SElement name = text(TAG_NAME);
    const SElement comment = text(TAG_COMMENT);
    const SElement version = text(TAG_VERSION);
    const SElement hardwareId = text(TAG_HARDWAREID);

    const SElement author = text(TAG_AUTHOR);
    const SElement date = text(TAG_DATE);
    const SElement head =
        parent(TAG_HEAD, {{&author, {}}, {&date, {}}, {&comment, {}}}, MEANING_HEAD);

    const SElement creationDate = text(TAG_CREATIONDATE);
    const SElement revisionDate = text(TAG_REVISIONDATE);
    const SElement description = parent(TAG_DESCRIPTION,
                                        {{&name, QStringLiteral(".name")},
                                         {&comment, QStringLiteral(".comment")},
                                         {&version, QStringLiteral(".version")},
                                         {&creationDate, QStringLiteral(".creationDate")},
                                         {&revisionDate, QStringLiteral(".revisionDate")}},
                                        MEANING_DESCRIPTION);

    const SElement deviceDir = text(TAG_DEVICE_DIR);
    const SElement projectDir = text(TAG_PROJECT_DIR);
    const QVector<SChild> fileChildren = {{&name, QStringLiteral(".name")},
                                          {&comment, QStringLiteral(".comment")},
                                          {&deviceDir, QStringLiteral(".deviceDir")},
                                          {&projectDir, QStringLiteral(".projectDir")}};
    const SElement file = parent(TAG_FILE, fileChildren, MEANING_FILE);
    const SElement fileOfDevice = parent(TAG_FILE, fileChildren, MEANING_FILE_OF_DEVICE);
    const SElement listedFile = entry(TAG_FILE, fileChildren, MEANING_FILE);
    const SElement parameterFile = withAttribute(
        entry(TAG_FILE, {{&name, QStringLiteral(".name")}, {&comment, QStringLiteral(".comment")}},
              MEANING_PARAMETER_FILE),
        ATTR_TYPE);
    const SElement fpgaFile =
        entry(TAG_FILE, {{&name, QStringLiteral(".name")}}, MEANING_FPGA_FILE);

    const SElement priority = text(TAG_PRIORITY);
    const SElement plugin = entry(TAG_PLUGIN,
                                  {{&name, QStringLiteral(".name")},
                                   {&version, QStringLiteral(".version")},
                                   {&priority, QStringLiteral(".priority")}},
                                  MEANING_PLUGIN);

    const SElement options = text(TAG_OPTIONS);
    const SElement parameterFiles = deepList(TAG_PARAMETERFILES, parameterFile);
    const SElement dictionary = holder(TAG_DICTIONARY, fileOfDevice);
    const SElement faultTextFile = holder(TAG_FAULTTEXT_FILE, fileOfDevice);
    const SElement fpgaFiles = list(TAG_FPGA_FILES, fpgaFile);
    const SElement opcUaEnabled = text(TAG_OPCUA_ENABLED);
    const SElement opcUaFiles = list(TAG_OPCUA_FILES, listedFile);
    const SElement opcUa = parent(TAG_OPCUA,
                                  {{&opcUaEnabled, QStringLiteral(".opcUaEnabled")},
                                   {&opcUaFiles, QStringLiteral(".opcUaFiles")}},
                                  MEANING_OPC_UA);
    const SElement etherCatMaster = holder(TAG_ETHERCATMASTER, file, MEANING_ETHERCAT_MASTER);
    const SElement files = list(TAG_FILES, listedFile);
    const SElement plugins = deepList(TAG_PLUGINS, plugin);
    const SElement executionPlugin = text(TAG_EXECUTIONPLUGIN);
    const SElement config = parent(TAG_CONFIG,
                                   {{&options, QStringLiteral(".options")},
                                    {&parameterFiles, QStringLiteral(".parameterFiles")},
                                    {&dictionary, QStringLiteral(".dictionary")},
                                    {&faultTextFile, QStringLiteral(".faultTextFile")},
                                    {&fpgaFiles, QStringLiteral(".fpgaFiles")},
                                    {&opcUa, {}},
                                    {&etherCatMaster, QStringLiteral(".etherCatMasterFile")},
                                    {&files, QStringLiteral("files")},
                                    {&plugins, QStringLiteral(".plugins")},
                                    {&executionPlugin, QStringLiteral(".executionPlugin")}},
                                   MEANING_CONFIG);

    const SElement driveNumber = text(TAG_DRIVE_NO);
    const SElement busId = text(TAG_BUS_ID);
    const SElement param = holder(TAG_PARAM, file);
    const SElement kd2Param = holder(TAG_KD2_PARAM, file);
    const SElement kd2Logic = holder(TAG_KD2_LOGIC, file);
    const SElement kd2Firmware = holder(TAG_KD2_FIRMWARE, file);
    const SElement subDevice = withAttribute(drive(), ATTR_TYPE);

    const SElement deviceClass = text(TAG_CLASS);
    const SElement configurationName = text(TAG_CONFIGNAME);
    const SElement device = parent(TAG_DEVICE,
                                   {{&hardwareId, QStringLiteral(".hardwareId")},
                                    {&deviceClass, QStringLiteral(".class")},
                                    {&name, QStringLiteral(".name")},
                                    {&comment, QStringLiteral(".comment")},
                                    {&configurationName, QStringLiteral(".configurationName")},
                                    {&config, {}},
                                    {&subDevice, QStringLiteral("drive"), true}},
                                   MEANING_DEVICE);

    const SElement root = withAttribute(parent(TAG_ROOT_DEVICECONFIG,
                                               {{&head, {}},
                                                {&description, QStringLiteral("description")},
                                                {&device, QStringLiteral("device")}},
                                               MEANING_ROOT),
                                        ATTR_VERSION);

private:
    SElement drive() const
    {
        SElement element = parent(TAG_SUB_DEVICE,
                                  {{&hardwareId, QStringLiteral(".hardwareId")},
                                   {&name, QStringLiteral(".name")},
                                   {&comment, QStringLiteral(".comment")},
                                   {&driveNumber, QStringLiteral(".driveNo")},
                                   {&busId, QStringLiteral(".busId")},
                                   {&param, QStringLiteral(".param")},
                                   {&kd2Param, QStringLiteral(".kd2Param")},
                                   {&kd2Logic, QStringLiteral(".kd2Logic")},
                                   {&kd2Firmware, QStringLiteral(".kd2Firmware")}},
                                  MEANING_DRIVE);
        element.keyTag = TAG_DRIVE_NO;
        return element;
    }
};

using Parents = QHash<QString, QStringList>;

void collect(const SElement &element, Parents &parents)
{
    for (const SChild &child : element.children) {
        QStringList &list = parents[child.element->tag];
        if (!list.contains(element.tag)) {
            list.append(element.tag);
        }
        collect(*child.element, parents);
    }
}

Parents allParents()
{
    Parents parents;
    collect(root(), parents);
    return parents;
}

QHash<QString, QString> tagsByFoldedTag()
{
    QHash<QString, QString> tags;
    const Parents parents = allParents();
    for (auto it = parents.cbegin(); it != parents.cend(); ++it) {
        tags.insert(it.key().toCaseFolded(), it.key());
    }
    return tags;
}

} // namespace

const SElement &root()
{
    static const SStructure structure;
    return structure.root;
}

QStringList parents(const QString &tag)
{
    static const Parents parents = allParents();
    return parents.value(tag);
}

QString similar(const QString &tag)
{
    static const QHash<QString, QString> tags = tagsByFoldedTag();
    return tags.value(tag.toCaseFolded());
}

} // namespace DocumentStructure
