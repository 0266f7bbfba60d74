#include "configfile/CDeviceConfigurationFile10.h"
#include "configfile/ConfigurationShape.h"
#include "configfile/ItemValue.h"
#include "configfile/ShapePaths.h"
#include "support/Literals.h"
#include "support/TestProgram.h"
#include "vocabulary/NVornXmlTags.h"

#include <QSet>
#include <QTest>

using namespace ConfigurationShape;

namespace {

/** A value of that kind, other than the one of a new element. */
QString sample(EValue kind)
{
    switch (kind) {
    case EValue::DATE:
        return u"2024-02-29"_s;
    case EValue::HARDWARE_ID:
        return u"KD2:Other Drive:9:8:7"_s;
    case EValue::DEVICE_CLASS:
    case EValue::PARAMETER_FILE_TYPE:
    case EValue::DRIVE_TYPE:
    case EValue::BOOLEAN:
        return ItemValue::choices(kind).constFirst();
    case EValue::UNSIGNED_NUMBER:
        return u"4294967295"_s;
    case EValue::SIGNED_NUMBER:
        return u"-7"_s;
    case EValue::KEY_DRIVE_NUMBER:
        return u"17"_s;
    case EValue::DEVICE_DIRECTORY:
        return u"/opt/velkor/other/"_s;
    case EValue::PROJECT_DIRECTORY:
        return u"Other/directory/"_s;
    default:
        return u"Text <&> \"ü\""_s;
    }
}

/** A file with all its items; readers take it for one of the device "Line". */
CFileElement sampleFile()
{
    CFileElement file;
    for (const SField<CFileElement> &row : fileItems()) {
        row.set(file, sample(row.value));
    }
    file.setProjectPath(u"Line/directory/"_s);
    return file;
}

/** A device with every item, file and list. */
CDeviceElement sampleDevice()
{
    CDeviceElement device;
    for (const auto &rows : {deviceItems(), configItems(), opcUaItems()}) {
        for (const SField<CDeviceElement> &row : rows) {
            row.set(device, sample(row.value));
        }
    }
    device.setName(u"Line"_s);
    device.setOptions({u"-trace"_s, u"5"_s});
    for (const SFileField<CDeviceElement> &row : deviceFiles()) {
        row.set(device, sampleFile());
    }
    CParamFileElement parameters;
    for (const SField<CParamFileElement> &row : parameterFileItems()) {
        row.set(parameters, sample(row.value));
    }
    device.setParameterFiles({parameters});
    device.setFpgaFiles({u"a.bit"_s});
    device.setOpcUaFiles({sampleFile()});
    device.setAdditionalFiles({sampleFile()});
    CPluginElement plugin;
    for (const SField<CPluginElement> &row : pluginItems()) {
        row.set(plugin, sample(row.value));
    }
    device.setPlugins({plugin});
    CSubDeviceElement drive;
    for (const SField<CSubDeviceElement> &row : driveItems()) {
        row.set(drive, sample(row.value));
    }
    for (const SFileField<CSubDeviceElement> &row : driveFiles()) {
        row.set(drive, sampleFile());
    }
    device.setSubDevices({drive});
    return device;
}

CDescriptionElement sampleDescription()
{
    CDescriptionElement description;
    for (const SField<CDescriptionElement> &row : descriptionItems()) {
        row.set(description, sample(row.value));
    }
    return description;
}

QByteArray saved(const CDescriptionElement &description, const CDeviceElement &device)
{
    CDeviceConfigurationFile10 file(nullptr);
    QByteArray bytes;
    QString error;
    const bool isSaved = file.createNewDocument() && file.setDescription(description)
        && file.setConfiguration(device) && file.save(bytes, error);
    return isSaved ? bytes : error.toUtf8();
}

CDeviceElement readAgain(const CDeviceElement &device)
{
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement result;
    return file.load(saved(CDescriptionElement(), device)) && file.configuration(result)
        ? result
        : CDeviceElement();
}

/** The row by the path of its items, for the names of test rows. */
template <typename Element>
void addRows(const char *holder, const QVector<SField<Element>> &rows)
{
    for (int i = 0; i < rows.size(); ++i) {
        QTest::newRow(qPrintable(QString::fromLatin1(holder) + u'.' + rows.at(i).word))
            << QByteArray(holder) << i;
    }
}

/**
 * Sets one item of @p element, which @p throughDocument saves and reads again: the item has its
 * value, and every other one that of before. To set the type of a drive empties it.
 */
template <typename Element, typename Through>
bool isKept(const QVector<SField<Element>> &rows, int index, Element element,
            Through throughDocument)
{
    const SField<Element> &changed = rows.at(index);
    const QString value = sample(changed.value);
    const Element before = throughDocument(element);
    if (changed.get(before) == value || !changed.set(element, value)) {
        qWarning("'%s' is not another value", qPrintable(value));
        return false;
    }
    const Element after = throughDocument(element);
    for (const SField<Element> &row : rows) {
        const QString expected = &row == &changed ? value : row.get(before);
        if (row.get(after) != expected && changed.value != EValue::DRIVE_TYPE) {
            qWarning("%s: '%s' instead of '%s'", qPrintable(row.word), qPrintable(row.get(after)),
                     qPrintable(expected));
            return false;
        }
    }
    return changed.get(after) == value;
}

bool isKeptInDevice(const QVector<SField<CDeviceElement>> &rows, int index)
{
    return isKept(rows, index, CDeviceElement(), readAgain);
}

bool isKeptInDrive(int index)
{
    CSubDeviceElement drive = CSubDeviceKD3Element();
    drive.setName(u"a"_s);
    drive.setDriveId(3);
    return isKept(driveItems(), index, drive, [](const CSubDeviceElement &element) {
        CDeviceElement device;
        device.setSubDevices({element});
        return readAgain(device).subDevices().value(0);
    });
}

bool isKeptInFile(int index)
{
    CFileElement file;
    file.setFileName(u"a"_s);
    return isKept(fileItems(), index, file, [](const CFileElement &element) {
        CDeviceElement device;
        device.setAdditionalFiles({element});
        return readAgain(device).additionalFile(0);
    });
}

bool isKeptInParameterFile(int index)
{
    CParamFileElement file;
    file.setName(u"a"_s);
    file.setType(NvrnGlobal::PARAM_FILE_OEM_PARAMETERS);
    return isKept(parameterFileItems(), index, file, [](const CParamFileElement &element) {
        CDeviceElement device;
        device.setParameterFiles({element});
        return readAgain(device).parameterFiles().value(0);
    });
}

bool isKeptInPlugin(int index)
{
    return isKept(pluginItems(), index, CPluginElement(), [](const CPluginElement &element) {
        CDeviceElement device;
        device.setPlugins({element});
        return readAgain(device).plugins().value(0);
    });
}

bool isKeptInDescription(int index)
{
    return isKept(descriptionItems(), index, CDescriptionElement(),
                  [](const CDescriptionElement &element) {
                      CDeviceConfigurationFile10 file(nullptr);
                      file.load(saved(element, CDeviceElement()));
                      return file.description();
                  });
}

/** The names of the elements that @p node has in a document with everything. */
QStringList tagsIn(const SNode &node)
{
    QStringList tags;
    for (const SNode &child : node.children) {
        if (child.kind != EKind::ALIAS && !child.item.isAttribute) {
            tags << (child.tag.isEmpty() ? child.entryTag : child.tag);
        }
    }
    return tags;
}

/** Where @p element is not as @p node says: a line for each element. */
QStringList differences(const SNode &node, const QDomElement &element)
{
    QStringList found;
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (child.tagName() != NVornXmlTags::TAG_HEAD) {
            found << child.tagName();
        }
    }
    QStringList result;
    if (found != tagsIn(node)) {
        result << element.tagName() + u": "_s + found.join(u' ');
    }
    for (const SNode &child : node.children) {
        const QDomElement own =
            child.tag.isEmpty() ? element : element.firstChildElement(child.tag);
        if (child.kind == EKind::GROUP) {
            result += differences(child, own);
        } else if (child.kind == EKind::LIST || child.kind == EKind::SINGLE_FILE) {
            result += differences(child, own.firstChildElement(child.entryTag));
        }
    }
    return result;
}

/** The nodes of which a path or an element has to tell each from the others. */
void collect(const SNode &node, QVector<const SNode *> &nodes)
{
    nodes.append(&node);
    for (const SNode &child : node.children) {
        collect(child, nodes);
    }
}

} // namespace

/** The description of the document against the documents that follow from it. */
class tst_configurationshape : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsAreUnique();
    void tagsAreUnique();
    void listsHaveKeys();
    void itemsAreKept_data();
    void itemsAreKept();
    void filesAreKept();
    void orderIsThatOfTheDocument();
    void orderOfAPartlyFilledDevice();
};

void tst_configurationshape::wordsAreUnique()
{
    QVector<const SNode *> nodes;
    collect(root(), nodes);
    QVERIFY(nodes.size() > 60);
    const auto isUnique = [](const QVector<const SNode *> &children) {
        QSet<QString> words;
        for (const SNode *child : children) {
            words.insert(child->word);
        }
        return words.size() == children.size() && !words.contains(QString());
    };
    for (const SNode *node : nodes) {
        QVERIFY2(isUnique(ShapePaths::below(*node)), qPrintable(node->word));
        // What has a word is shown to users.
        QVERIFY2(node->word.isEmpty() || node->text != nullptr, qPrintable(node->word));
    }
    QVERIFY(isUnique(ShapePaths::top()));
}

void tst_configurationshape::tagsAreUnique()
{
    QVector<const SNode *> nodes;
    collect(root(), nodes);
    for (const SNode *node : nodes) {
        const QStringList tags = tagsIn(*node);
        QCOMPARE(QSet<QString>(tags.begin(), tags.end()).size(), tags.size());
        QVERIFY(!tags.contains(QString()));
    }
}

void tst_configurationshape::listsHaveKeys()
{
    QVector<const SNode *> nodes;
    collect(root(), nodes);
    for (const SNode *node : nodes) {
        int keys = 0;
        for (const SNode &child : node->children) {
            keys += child.isKey() ? 1 : 0;
        }
        QCOMPARE(keys, node->isList() ? 1 : 0);
        QVERIFY(!node->isList() || node->entry != EEntry::NONE);
        QVERIFY(!node->isList() || QByteArray(node->text).contains("%1"));
    }
}

void tst_configurationshape::itemsAreKept_data()
{
    QTest::addColumn<QByteArray>("holder");
    QTest::addColumn<int>("index");
    addRows("description", descriptionItems());
    addRows("device", deviceItems());
    addRows("config", configItems());
    addRows("opcUa", opcUaItems());
    addRows("drive", driveItems());
    addRows("file", fileItems());
    addRows("parameterFile", parameterFileItems());
    addRows("plugin", pluginItems());
}

void tst_configurationshape::itemsAreKept()
{
    QFETCH(QByteArray, holder);
    QFETCH(int, index);
    const bool isKept = holder == "description" ? isKeptInDescription(index)
        : holder == "device"                    ? isKeptInDevice(deviceItems(), index)
        : holder == "config"                    ? isKeptInDevice(configItems(), index)
        : holder == "opcUa"                     ? isKeptInDevice(opcUaItems(), index)
        : holder == "drive"                     ? isKeptInDrive(index)
        : holder == "file"                      ? isKeptInFile(index)
        : holder == "parameterFile"             ? isKeptInParameterFile(index)
                                                : isKeptInPlugin(index);
    QVERIFY(isKept);
}

void tst_configurationshape::filesAreKept()
{
    const CDeviceElement device = readAgain(sampleDevice());
    for (const SFileField<CDeviceElement> &row : deviceFiles()) {
        QCOMPARE(row.get(device), sampleFile());
    }
    for (const SFileField<CSubDeviceElement> &row : driveFiles()) {
        QCOMPARE(row.get(device.subDevices().value(0)), sampleFile());
    }
    // Each is in its own place: without it all the others are still there.
    for (const SFileField<CDeviceElement> &left : deviceFiles()) {
        CDeviceElement without = sampleDevice();
        left.set(without, CFileElement());
        without = readAgain(without);
        for (const SFileField<CDeviceElement> &row : deviceFiles()) {
            QCOMPARE(row.get(without).isNull(), &row == &left);
        }
    }
    for (const SFileField<CSubDeviceElement> &left : driveFiles()) {
        CDeviceElement without = sampleDevice();
        CSubDeviceElement drive = without.subDevices().value(0);
        left.set(drive, CFileElement());
        without.setSubDevices({drive});
        drive = readAgain(without).subDevices().value(0);
        for (const SFileField<CSubDeviceElement> &row : driveFiles()) {
            QCOMPARE(row.get(drive).isNull(), &row == &left);
        }
    }
}

void tst_configurationshape::orderIsThatOfTheDocument()
{
    QDomDocument document;
    QVERIFY(document.setContent(saved(sampleDescription(), sampleDevice())));
    const QDomElement element = document.documentElement();
    QCOMPARE(element.tagName(), root().tag);
    QCOMPARE(differences(root(), element), QStringList());
}

void tst_configurationshape::orderOfAPartlyFilledDevice()
{
    // An absent item, file or list takes no place, and an absent drive none, either.
    CDeviceElement device;
    device.setPlugins({CPluginElement()});
    device.setOptions({u"-trace"_s});
    QDomDocument document;
    QVERIFY(document.setContent(saved(CDescriptionElement(), device)));
    const QDomElement own =
        document.documentElement().firstChildElement(ConfigurationShape::device().tag);
    QStringList found;
    for (QDomElement child = own.firstChildElement(config().tag).firstChildElement();
         !child.isNull(); child = child.nextSiblingElement()) {
        found << child.tagName();
    }
    QCOMPARE(found, QStringList({u"Options"_s, u"Plugins"_s}));
    QVERIFY(own.firstChildElement(u"SubDevice"_s).isNull());
}

REGISTER_APPLESS_TEST(tst_configurationshape)
#include "tst_configurationshape.moc"
