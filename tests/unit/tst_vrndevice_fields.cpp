#include "commissioning/CConfigurationReport.h"
#include "configfile/ShapePaths.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/Places.h"
#include "support/TestProgram.h"
#include "support/Tool.h"

#include <QDir>
#include <QDomDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace ConfigurationShape;

namespace {

/** A class of elements, and where its fields are found by their own names. */
struct SElementClass {
    QString name;
    QStringList places;
};

const QList<SElementClass> Classes = {
    {u"CBaseElement"_s, {u"device"_s, u"drive"_s}},
    {u"CDescriptionElement"_s, {u"description"_s}},
    {u"CDeviceBaseElement"_s, {u"device"_s}},
    {u"CFileElement"_s, {u"files"_s}},
    {u"CParamFileElement"_s, {u"device.parameterFiles"_s}},
    {u"CPluginElement"_s, {u"device.plugins"_s}},
    {u"CSubDeviceBaseElement"_s, {u"drive"_s}},
    {u"CSubDeviceKD2Element"_s, {u"drive"_s}},
};

/** Fields that the document has under other names, or not in all places of their class. */
const QMap<QString, QStringList> Paths = {
    {u"CBaseElement::configurationName"_s, {u"device.configurationName"_s}},
    {u"CBaseElement::driveId"_s, {u"drive.driveNo"_s}},
    {u"CDeviceBaseElement::deviceClass"_s, {u"device.class"_s}},
    {u"CDeviceBaseElement::odictFile"_s, {u"device.dictionary"_s}},
    {u"CDeviceBaseElement::additionalFiles"_s, {u"files"_s}},
    {u"CFileElement::fileName"_s, {u"files.name"_s}},
    {u"CFileElement::devicePath"_s, {u"files.deviceDir"_s}},
    {u"CFileElement::projectPath"_s, {u"files.projectDir"_s}},
    {u"CSubDeviceBaseElement::parameterFile"_s, {u"drive.param"_s}},
    {u"CSubDeviceKD2Element::firmwareFile"_s, {u"drive.kd2Firmware"_s}},
    {u"CSubDeviceKD2Element::logicFile"_s, {u"drive.kd2Logic"_s}},
    {u"CSubDeviceKD2Element::parameterFile"_s, {u"drive.kd2Param"_s}},
};

/** Fields that the document does not hold, and why. */
const QMap<QString, QString> NotInDocument = {
    {u"CDeviceBaseElement::serial"_s, u"belongs to one device, not to its configuration"_s},
    {u"CDeviceBaseElement::hostAddressType"_s, u"where a program reaches the device"_s},
    {u"CDeviceBaseElement::hostAddress"_s, u"where a program reaches the device"_s},
    {u"CDeviceBaseElement::port"_s, u"where a program reaches the device"_s},
    {u"CDeviceBaseElement::preferredDeviceListNumber"_s, u"order of a list that a program shows"_s},
    {u"CParamFileElement::driveId"_s, u"follows from the place of the file"_s},
    {u"CParamFileElement::devicePath"_s, u"follows from the type of the file"_s},
    {u"CParamFileElement::projectPath"_s, u"follows from the type of the file"_s},
    {u"CSubDeviceBaseElement::deviceSerial"_s, u"belongs to one device"_s},
    {u"CSubDeviceBaseElement::deviceName"_s, u"that of the device"_s},
};

/** What each data class of the elements lists in fields(), by the name of its element class. */
QMap<QString, QStringList> listedFields()
{
    static const QRegularExpression list(
        u"class (\\w+)Data : public QSharedData\\s*\\{(?:(?!\\n\\};).)*?"
        "static auto fields\\(Self &self\\)\\s*\\{\\s*return std::tie\\(([^)]*)\\);"_s,
        QRegularExpression::DotMatchesEverythingOption);
    QMap<QString, QStringList> fields;
    const QDir elements(Places::source("src/elements"));
    for (const QFileInfo &file : elements.entryInfoList({u"*.cpp"_s, u"*.h"_s}, QDir::Files)) {
        auto matches = list.globalMatch(QString::fromUtf8(Files::read(file.filePath())));
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            for (const QString &field : match.captured(2).split(u',', Qt::SkipEmptyParts)) {
                fields[match.captured(1)].append(field.trimmed().mid(u"self."_s.size()));
            }
        }
    }
    return fields;
}

QStringList fieldsOf(const QString &elementClass)
{
    static const QMap<QString, QStringList> fields = listedFields();
    return fields.value(elementClass);
}

/** Another value than those in the sample document, which every reader takes as it is. */
QString otherValue(EValue kind, const QString &value)
{
    switch (kind) {
    case EValue::DATE:
        return u"2001-02-03"_s;
    case EValue::DEVICE_CLASS:
        return u"kc2"_s;
    case EValue::HARDWARE_ID:
        return u"KD3:Altered:4:5:6"_s;
    case EValue::BOOLEAN:
        return value == u"true"_s ? u"false"_s : u"true"_s;
    case EValue::UNSIGNED_NUMBER:
    case EValue::SIGNED_NUMBER:
        return u"4711"_s;
    case EValue::KEY_DRIVE_NUMBER:
        return u"99"_s;
    case EValue::PARAMETER_FILE_TYPE:
        return u"VornOemParameters"_s;
    case EValue::DRIVE_TYPE:
        return u"KD3_drive"_s;
    case EValue::DEVICE_DIRECTORY:
        return u"/velkor/altered/"_s;
    case EValue::PROJECT_DIRECTORY:
        return u"Press/altered/"_s;
    case EValue::KEY_OPTION:
        return u"-altered"_s;
    default:
        return u"altered"_s;
    }
}

/** Whether it is one of the directories above, which 'show' leaves out. */
bool hasPlace(const QString &value)
{
    return value.contains(u'/');
}

/** A document with one item in another state than in the sample. */
struct SVariant {
    /** Of the item in the variant, and in the sample. */
    QString path;
    QString samplePath;
    QString value;
    QByteArray document;
    /** With the element of the item, or its attribute, where readers do not expect it. */
    QByteArray misplaced;
};

QByteArray sample()
{
    return Files::read(Places::data("configuration/valid/full.3deco"));
}

/** The first child of that name, which is created where there is none. */
QDomElement child(QDomElement parent, const QString &tag)
{
    const QDomElement present = parent.firstChildElement(tag);
    return present.isNull()
        ? parent.appendChild(parent.ownerDocument().createElement(tag)).toElement()
        : present;
}

QString textOf(const SItem &item, const QDomElement &parent)
{
    return item.isAttribute ? parent.attribute(item.tag)
                            : parent.firstChildElement(item.tag).text();
}

void setText(const SItem &item, QDomElement parent, const QString &text)
{
    if (item.isAttribute) {
        parent.setAttribute(item.tag, text);
        return;
    }
    QDomElement element = child(parent, item.tag);
    while (element.hasChildNodes()) {
        element.removeChild(element.firstChild());
    }
    element.appendChild(element.ownerDocument().createTextNode(text));
}

bool isKey(const SItem &item)
{
    return item.value == EValue::KEY_NAME || item.value == EValue::KEY_DRIVE_NUMBER;
}

/** Makes a variant of the sample for each item of the description. */
class Variants
{
public:
    QList<SVariant> all()
    {
        visit(root(), {}, QString(), QString());
        return m_variants;
    }

private:
    /** The element that a way of tags leads to. */
    static QDomElement follow(const QDomDocument &document, const QStringList &tags)
    {
        QDomElement element = document.documentElement();
        for (const QString &tag : tags) {
            element = child(element, tag);
        }
        return element;
    }

    void visit(const SNode &node, const QStringList &tags, const QString &path,
               const QString &sampleKey)
    {
        for (const SNode &next : node.children) {
            const QString inner =
                next.isAtTop || path.isEmpty() ? next.word : path + QLatin1Char('.') + next.word;
            const QStringList holder = next.tag.isEmpty() ? tags : tags + QStringList(next.tag);
            switch (next.kind) {
            case EKind::GROUP:
                visit(next, holder, next.word.isEmpty() ? path : inner, QString());
                break;
            case EKind::SINGLE_FILE:
                visit(next, holder + QStringList(u"File"_s), inner, QString());
                break;
            case EKind::LIST:
                visitEntry(next, holder + QStringList(next.entryTag), inner);
                break;
            case EKind::ITEM:
                add(next.item, tags, path, sampleKey);
                break;
            case EKind::OPTIONS:
            case EKind::ALIAS:
                break;
            }
        }
    }

    /** The first entry of a list, in the sample. */
    void visitEntry(const SNode &list, const QStringList &tags, const QString &path)
    {
        QDomDocument document;
        document.setContent(sample());
        m_list = path;
        const auto key = std::find_if(list.children.begin(), list.children.end(),
                                      [](const SNode &child) { return isKey(child.item); });
        m_key = textOf(key->item, follow(document, tags));
        visit(list, tags, entryPath(m_key), m_key);
        m_list.clear();
    }

    QString entryPath(const QString &key) const
    {
        return m_list + QLatin1Char('[') + key + QLatin1Char(']');
    }

    void add(const SItem &item, const QStringList &tags, const QString &path, const QString &key)
    {
        QDomDocument document;
        document.setContent(sample());
        const QDomElement parent = follow(document, tags);
        SVariant variant;
        variant.value = otherValue(item.value, textOf(item, parent));
        setText(item, parent, variant.value);
        const QString word = QLatin1Char('.') + item.word;
        variant.samplePath = path + word;
        variant.path =
            isKey(item) && !key.isEmpty() ? entryPath(variant.value) + word : variant.samplePath;
        variant.document = document.toByteArray(1);
        setText(item, document.documentElement(), variant.value);
        variant.misplaced = document.toByteArray(1);
        m_variants.append(variant);
    }

    QString m_list;
    QString m_key;
    QList<SVariant> m_variants;
};

} // namespace

/**
 * Each field of an element is in the description of the document, and each item of the description
 * is found by all that works on documents.
 */
class tst_vrndevice_fields : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void fields_data();
    void fields();
    void tablesNameFields();
    void consumers_data();
    void consumers();
    void startOptions();

private:
    Tool::SResult run(const QStringList &arguments) const
    {
        return Tool::run(m_directory->path(), arguments);
    }
    bool write(const QString &name, const QByteArray &content) const
    {
        return Files::write(m_directory->filePath(name), content);
    }
    void checkDifference(const QString &path, const QString &value);
    void checkShown(const QString &value);
    QString shown(const QStringList &command, const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_directory;
    /** What each command prints for the sample. */
    QMap<QString, QString> m_outputs;
};

void tst_vrndevice_fields::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(write(u"sample.3deco"_s, sample()));
}

void tst_vrndevice_fields::fields_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QStringList>("paths");

    for (const SElementClass &element : Classes) {
        const QStringList fields = fieldsOf(element.name);
        QVERIFY2(!fields.isEmpty(), qPrintable(element.name));
        for (const QString &field : fields) {
            QStringList paths;
            for (const QString &place : element.places) {
                paths.append(place + QLatin1Char('.') + field);
            }
            const QString name = element.name + u"::"_s + field;
            QTest::newRow(qPrintable(name)) << name << Paths.value(name, paths);
        }
    }
}

void tst_vrndevice_fields::fields()
{
    QFETCH(QString, field);
    QFETCH(QStringList, paths);
    for (const QString &path : paths) {
        const bool isInDocument = ShapePaths::find(path) != nullptr;
        QVERIFY2(isInDocument != NotInDocument.contains(field), qPrintable(path));
    }
}

/** Rows of the tables above that no field has, and element classes that are not in them. */
void tst_vrndevice_fields::tablesNameFields()
{
    QStringList names = Paths.keys() + NotInDocument.keys();
    QStringList classes = listedFields().keys();
    for (const SElementClass &element : Classes) {
        classes.removeAll(element.name);
        for (const QString &field : fieldsOf(element.name)) {
            names.removeAll(element.name + u"::"_s + field);
        }
    }
    QCOMPARE(names, QStringList());
    QCOMPARE(classes, QStringList());
}

void tst_vrndevice_fields::consumers_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("samplePath");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("misplaced");

    for (const SVariant &variant : Variants().all()) {
        QTest::newRow(qPrintable(variant.samplePath))
            << variant.path << variant.samplePath << variant.value << variant.document
            << variant.misplaced;
    }
}

/** What 'get', 'set', 'diff' and 'merge' make of the document "changed.3deco". */
void tst_vrndevice_fields::checkDifference(const QString &path, const QString &value)
{
    QFETCH(QString, samplePath);
    const QString sampleName = u"sample.3deco"_s;
    const QString changedName = u"changed.3deco"_s;
    const Tool::SResult get = run({u"get"_s, changedName, path});
    // The item that renames an entry is not listed: its value is in the entry's own path.
    QVERIFY2(get.output.contains(value), qPrintable(get.output + get.errors));

    const Tool::SResult diff = run({u"diff"_s, sampleName, changedName});
    QCOMPARE(diff.exitCode, 1);
    QVERIFY2(diff.output.contains(value), qPrintable(diff.output));

    QVERIFY(write(u"set.3deco"_s, sample()));
    const Tool::SResult set = run({u"set"_s, u"set.3deco"_s, samplePath, value});
    QVERIFY2(set.exitCode == 0, qPrintable(set.errors));
    QCOMPARE(run({u"diff"_s, u"set.3deco"_s, changedName}).exitCode, 0);

    QVERIFY(write(u"ours.3deco"_s, sample()));
    const Tool::SResult merge = run({u"merge"_s, sampleName, u"ours.3deco"_s, changedName});
    QVERIFY2(merge.exitCode == 0, qPrintable(merge.output + merge.errors));
    QCOMPARE(run({u"diff"_s, u"ours.3deco"_s, changedName}).exitCode, 0);
}

/** What shows a whole document; each without findings, which quote values, too. */
void tst_vrndevice_fields::checkShown(const QString &value)
{
    const QList<QStringList> commands = {
        {u"show"_s, u"--json"_s}, {hasPlace(value) ? u"tree"_s : u"show"_s}, {u"report"_s}};
    for (const QStringList &command : commands) {
        QString &before = m_outputs[command.join(u' ')];
        if (before.isEmpty()) {
            before = shown(command, u"sample.3deco"_s);
        }
        const QString after = shown(command, u"changed.3deco"_s);
        // The tree says nothing about what is false, and the report shows the series of a drive
        // alone.
        const QString text = value == u"KD3_drive"_s ? u"KD3"_s : value;
        QVERIFY2(after != before && (after.contains(text) || value == u"false"_s),
                 qPrintable(command.join(u' ')));
    }
}

QString tst_vrndevice_fields::shown(const QStringList &command, const QString &name) const
{
    if (command.first() != u"report"_s) {
        return run(command + QStringList(name)).output;
    }
    CDeviceConfigurationFile10 file(nullptr);
    file.open(m_directory->filePath(name));
    const CConfigurationOverview overview(file);
    // The page lets the reader's program wrap a path behind each separator. The drawing repeats
    // some values, so that it would hide that one is missing in the tables.
    static const QRegularExpression drawing(u"<svg.*?</svg>"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    return QString::fromUtf8(CConfigurationReport(overview).toHtml())
        .remove(u"<wbr/>"_s)
        .remove(drawing);
}

void tst_vrndevice_fields::consumers()
{
    QFETCH(QString, path);
    QFETCH(QString, value);
    QFETCH(QByteArray, document);
    QFETCH(QByteArray, misplaced);
    QVERIFY(write(u"changed.3deco"_s, document));
    checkDifference(path, value);
    checkShown(value);
    if (QTest::currentTestFailed()) {
        return;
    }
    // Where it belongs the structure is as expected; elsewhere it is refused.
    const QString atPlace = run({u"check"_s, u"changed.3deco"_s}).output;
    QVERIFY2(!atPlace.contains(u"[element-"_s) && !atPlace.contains(u"[attribute-"_s),
             qPrintable(atPlace));
    QVERIFY(write(u"misplaced.3deco"_s, misplaced));
    const QString elsewhere = run({u"check"_s, u"misplaced.3deco"_s}).output;
    QVERIFY2(elsewhere.contains(u"[element-misplaced]"_s)
                 || elsewhere.contains(u"[attribute-unknown]"_s),
             qPrintable(elsewhere));
}

/** They are one text, in which an entry has no element of its own. */
void tst_vrndevice_fields::startOptions()
{
    QVERIFY(write(u"changed.3deco"_s, sample().replace("-v -log -opc", "-v -log altered -opc")));
    QCOMPARE(run({u"get"_s, u"changed.3deco"_s, u"device.options[-log]"_s}).output.trimmed(),
             u"altered"_s);
    const Tool::SResult diff = run({u"diff"_s, u"sample.3deco"_s, u"changed.3deco"_s});
    QCOMPARE(diff.exitCode, 1);
    QVERIFY(diff.output.contains(u"altered"_s));
    checkShown(u"altered"_s);
}

REGISTER_GUILESS_TEST(tst_vrndevice_fields)
#include "tst_vrndevice_fields.moc"
