#include "configfile/ItemValue.h"
#include "configfile/ShapePaths.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/Places.h"
#include "support/TestProgram.h"

#include <QDomDocument>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

using namespace ConfigurationShape;

namespace {

QByteArray source(const QString &path)
{
    return Files::read(Places::source() + u'/' + path);
}

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

/** All texts of an enumeration; empty for other kinds. */
QStringList texts(EValue kind)
{
    const QString undefined = ItemValue::undefined(kind);
    return ItemValue::choices(kind)
        + (undefined.isEmpty() ? QStringList() : QStringList(undefined));
}

// The XML schema

/** The schema of the document: its types by their names. */
class XmlSchema
{
public:
    XmlSchema() { m_document.setContent(source(u"schemas/DeviceConfiguration.xsd"_s)); }

    QDomElement named(const QString &kind, const QString &name) const
    {
        return childOf(m_document.documentElement(), kind, name);
    }

    /** The type of an element: a named one, or the one in it. */
    QDomElement typeOf(const QDomElement &element) const
    {
        const QDomElement inner = element.firstChildElement(u"xs:complexType"_s);
        return inner.isNull() ? named(u"xs:complexType"_s, element.attribute(u"type"_s)) : inner;
    }

    /** The names of child elements or attributes of a type, in their order. */
    static QStringList names(const QDomElement &type, const QString &kind)
    {
        QStringList result;
        for (const QDomElement &child : children(type, kind)) {
            result.append(child.attribute(u"name"_s));
        }
        return result;
    }

    static QList<QDomElement> children(const QDomElement &type, const QString &kind)
    {
        QList<QDomElement> result;
        for (const QDomElement &parent :
             {type, type.firstChildElement(u"xs:all"_s), type.firstChildElement(u"xs:sequence"_s),
              type.firstChildElement(u"xs:choice"_s)}) {
            for (QDomElement child = parent.firstChildElement(kind); !child.isNull();
                 child = child.nextSiblingElement(kind)) {
                result.append(child);
            }
        }
        return result;
    }

    static QDomElement child(const QDomElement &type, const QString &kind, const QString &name)
    {
        for (const QDomElement &candidate : children(type, kind)) {
            if (candidate.attribute(u"name"_s) == name) {
                return candidate;
            }
        }
        return QDomElement();
    }

    QStringList enumeration(const QString &type) const
    {
        QStringList result;
        const QDomElement restriction =
            named(u"xs:simpleType"_s, type).firstChildElement(u"xs:restriction"_s);
        for (QDomElement value = restriction.firstChildElement(u"xs:enumeration"_s);
             !value.isNull(); value = value.nextSiblingElement(u"xs:enumeration"_s)) {
            result.append(value.attribute(u"value"_s));
        }
        return result;
    }

private:
    static QDomElement childOf(const QDomElement &parent, const QString &kind, const QString &name)
    {
        QDomElement child = parent.firstChildElement(kind);
        while (!child.isNull() && child.attribute(u"name"_s) != name) {
            child = child.nextSiblingElement(kind);
        }
        return child;
    }

    QDomDocument m_document;
};

QStringList xmlTypes(EValue kind)
{
    switch (kind) {
    case EValue::DATE:
        return {u"Date"_s};
    case EValue::DEVICE_CLASS:
        return {u"DeviceClass"_s};
    case EValue::HARDWARE_ID:
        return {u"HardwareId"_s};
    case EValue::BOOLEAN:
        return {u"Boolean"_s};
    case EValue::UNSIGNED_NUMBER:
        return {u"xs:unsignedInt"_s};
    case EValue::SIGNED_NUMBER:
        return {u"xs:int"_s};
    case EValue::KEY_DRIVE_NUMBER:
        return {u"DriveNumber"_s};
    case EValue::PARAMETER_FILE_TYPE:
        return {u"ParameterFileType"_s};
    case EValue::DRIVE_TYPE:
        return {u"DriveType"_s};
    case EValue::KEY_NAME:
        return {u"xs:string"_s, u"NotEmpty"_s};
    default:
        return {u"xs:string"_s};
    }
}

/** What the element of a node holds by the description: elements and attributes. */
QStringList tagsOf(const SNode &node, bool wantsAttributes)
{
    QStringList tags;
    for (const SNode &child : node.children) {
        const bool isAttribute = child.item.isAttribute;
        if (child.kind != EKind::ALIAS && isAttribute == wantsAttributes) {
            tags.append(child.tag.isEmpty() ? child.entryTag : child.tag);
        }
    }
    return tags;
}

// The JSON schema

const QMap<EEntry, QString> Definitions = {
    {EEntry::DRIVE, u"drive"_s},   {EEntry::PARAMETER_FILE, u"parameterFile"_s},
    {EEntry::FILE, u"file"_s},     {EEntry::OPC_UA_FILE, u"file"_s},
    {EEntry::PLUGIN, u"plugin"_s},
};

QString jsonType(EValue kind)
{
    switch (kind) {
    case EValue::BOOLEAN:
        return u"boolean"_s;
    case EValue::UNSIGNED_NUMBER:
    case EValue::SIGNED_NUMBER:
    case EValue::KEY_DRIVE_NUMBER:
        return u"integer"_s;
    default:
        return u"string"_s;
    }
}

/** Words that JSON has besides those of the description, by definition. */
const QMap<QString, QStringList> OtherKeys = {{u"plugin"_s, {u"fileName"_s}}};

/** All nodes with words below a node; the lists that begin paths of their own are in the device. */
QVector<const SNode *> withWords(const SNode &node)
{
    QVector<const SNode *> result;
    for (const SNode &child : node.children) {
        if (child.word.isEmpty()) {
            result += withWords(child);
        } else if (child.kind != EKind::ALIAS) {
            result.append(&child);
        }
    }
    return result;
}

} // namespace

/** The schemas and pages are those of the document that the description describes. */
class tst_shape : public QObject
{
    Q_OBJECT

private slots:
    void xmlSchema();
    void xmlEnumerations_data();
    void xmlEnumerations();
    void jsonSchema_data();
    void jsonSchema();
    void grammar();
    void paths();
    void rules();

private:
    void checkXml(const XmlSchema &schema, const SNode &node, const QDomElement &type);
};

void tst_shape::checkXml(const XmlSchema &schema, const SNode &node, const QDomElement &type)
{
    QVERIFY2(!type.isNull(), qPrintable(node.tag + node.word));
    QStringList elements = XmlSchema::names(type, u"xs:element"_s);
    elements.removeOne(u"Head"_s);
    // The key of a drive may stand first in the description; in the document it does not.
    const QStringList tags = tagsOf(node, false);
    const bool isDrive = node.entry == EEntry::DRIVE;
    QCOMPARE(isDrive ? sorted(elements) : elements, isDrive ? sorted(tags) : tags);
    if (&node != &root()) {
        QCOMPARE(XmlSchema::names(type, u"xs:attribute"_s), tagsOf(node, true));
    }
    for (const SNode &child : node.children) {
        const QString kind = child.item.isAttribute ? u"xs:attribute"_s : u"xs:element"_s;
        const QString tag = child.tag.isEmpty() ? child.entryTag : child.tag;
        const QDomElement element = XmlSchema::child(type, kind, tag);
        QDomElement inner = schema.typeOf(element);
        switch (child.kind) {
        case EKind::ITEM:
            QVERIFY2(xmlTypes(child.item.value).contains(element.attribute(u"type"_s)),
                     qPrintable(tag));
            break;
        case EKind::GROUP:
            checkXml(schema, child, inner);
            break;
        case EKind::SINGLE_FILE:
            inner = schema.typeOf(XmlSchema::child(inner, u"xs:element"_s, u"File"_s));
            checkXml(schema, child, inner);
            break;
        case EKind::LIST:
            if (!child.tag.isEmpty()) {
                inner = schema.typeOf(XmlSchema::child(inner, u"xs:element"_s, child.entryTag));
            }
            checkXml(schema, child, inner);
            break;
        case EKind::OPTIONS:
        case EKind::ALIAS:
            break;
        }
    }
}

void tst_shape::xmlSchema()
{
    const XmlSchema schema;
    checkXml(schema, root(), schema.typeOf(schema.named(u"xs:element"_s, root().tag)));
}

void tst_shape::xmlEnumerations_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("expected");

    for (const EValue kind :
         {EValue::DEVICE_CLASS, EValue::PARAMETER_FILE_TYPE, EValue::DRIVE_TYPE, EValue::BOOLEAN}) {
        const QString type = xmlTypes(kind).constFirst();
        QTest::newRow(qPrintable(type)) << type << texts(kind);
    }
}

void tst_shape::xmlEnumerations()
{
    QFETCH(QString, type);
    QFETCH(QStringList, expected);
    QCOMPARE(sorted(XmlSchema().enumeration(type)), sorted(expected));
}

void tst_shape::jsonSchema_data()
{
    QTest::addColumn<QString>("definition");
    QTest::addColumn<QString>("path");

    QTest::newRow("description") << u"description"_s << u"description"_s;
    QTest::newRow("device") << u"device"_s << u"device"_s;
    for (const QString &path : ShapePaths::lists()) {
        const EEntry entry = ShapePaths::find(path)->entry;
        if (Definitions.contains(entry)) {
            QTest::newRow(qPrintable(path)) << Definitions.value(entry) << path;
        }
    }
    QTest::newRow("single file") << u"file"_s << u"device.dictionary"_s;
}

void tst_shape::jsonSchema()
{
    QFETCH(QString, definition);
    QFETCH(QString, path);
    const QJsonObject definitions =
        QJsonDocument::fromJson(source(u"schemas/common.schema.json"_s))[u"$defs"_s].toObject();
    const QJsonObject object = definitions.value(definition).toObject();
    const QJsonObject properties = object.value(u"properties"_s).toObject();
    QStringList required;
    for (const QJsonValue &key : object.value(u"required"_s).toArray()) {
        required.append(key.toString());
    }

    QStringList words = OtherKeys.value(definition);
    QStringList always = words;
    for (const SNode *const node : withWords(*ShapePaths::find(path))) {
        words.append(node->word);
        always += node->isOfKd2Only ? QStringList() : QStringList(node->word);
        QJsonObject property = properties.value(node->word).toObject();
        const QString reference = property.value(u"$ref"_s).toString().section(u'/', -1);
        if (node->isItem()) {
            // A reference is to a definition of the same kind of value.
            property = reference.isEmpty() ? property : definitions.value(reference).toObject();
            QCOMPARE(property.value(u"type"_s).toString(), jsonType(node->item.value));
        } else if (node->isList()) {
            QCOMPARE(property.value(u"type"_s).toString(), u"array"_s);
            const QJsonObject items = property.value(u"items"_s).toObject();
            QCOMPARE(items.value(u"$ref"_s).toString().section(u'/', -1),
                     Definitions.value(node->entry));
        } else {
            QCOMPARE(reference, u"file"_s);
        }
        QStringList values;
        for (const QJsonValue &value : property.value(u"enum"_s).toArray()) {
            values.append(value.toString());
        }
        if (node->isItem() && node->item.value != EValue::BOOLEAN) {
            // A drive that is read has one of the types, whatever the document says.
            const bool isDriveType = node->item.value == EValue::DRIVE_TYPE;
            QCOMPARE(sorted(values),
                     sorted(isDriveType ? ItemValue::choices(node->item.value)
                                        : texts(node->item.value)));
        }
    }
    QCOMPARE(sorted(properties.keys()), sorted(words));
    QCOMPARE(sorted(required), sorted(always));
}

namespace {

void collectTags(const SNode &node, QSet<QString> &tags)
{
    for (const SNode &child : node.children) {
        tags.insert(child.item.isAttribute || child.tag.isEmpty() ? child.entryTag : child.tag);
        tags.insert(child.entryTag);
        collectTags(child, tags);
    }
    tags.remove(QString());
}

void collectWords(const SNode &node, QStringList &words)
{
    for (const SNode &child : node.children) {
        // The keys of entries stand in brackets.
        const bool isKey = child.item.value == EValue::KEY_NAME
            || child.item.value == EValue::KEY_DRIVE_NUMBER
            || child.item.value == EValue::KEY_OPTION;
        if (!child.word.isEmpty() && !isKey) {
            words.append(child.word);
        }
        collectWords(child, words);
    }
}

} // namespace

/** The page on the format describes each element. */
void tst_shape::grammar()
{
    const QString page = QString::fromUtf8(source(u"docs/formats/configuration-document.md"_s));
    const QString grammar = page.section(u"## Grammar"_s, 1).section(u"## How it is read"_s, 0, 0);
    QSet<QString> tags;
    collectTags(root(), tags);
    QVERIFY(tags.size() > 30);
    for (const QString &tag : qAsConst(tags)) {
        QVERIFY2(grammar.contains(u'`' + tag + u'`'), qPrintable(tag));
    }
    for (const EValue kind : {EValue::DEVICE_CLASS, EValue::PARAMETER_FILE_TYPE, EValue::BOOLEAN}) {
        for (const QString &text : texts(kind)) {
            QVERIFY2(grammar.contains(u'`' + text + u'`'), qPrintable(text));
        }
    }
    // And no others: the first column of the table has elements alone.
    const QRegularExpression row(u"^\\| (`[^|]*) \\|"_s, QRegularExpression::MultilineOption);
    const QRegularExpression name(u"`(\\w+)`"_s);
    const QSet<QString> others = {root().tag, u"Head"_s, u"version"_s, u"type"_s};
    auto rows = row.globalMatch(grammar);
    while (rows.hasNext()) {
        auto names = name.globalMatch(rows.next().captured(1));
        while (names.hasNext()) {
            const QString tag = names.next().captured(1);
            QVERIFY2(tags.contains(tag) || others.contains(tag), qPrintable(tag));
        }
    }
}

/** The public header lists each word of a path. */
void tst_shape::paths()
{
    const QString header = QString::fromUtf8(source(u"src/commissioning/CConfigurationItems.h"_s));
    QStringList words;
    collectWords(root(), words);
    QVERIFY(words.size() > 60);
    for (const QString &word : qAsConst(words)) {
        const QRegularExpression whole(u"\\b"_s + word + u"\\b"_s);
        QVERIFY2(header.contains(whole), qPrintable(word));
    }
}

/** The page on the rules names what can be written instead of something unknown. */
void tst_shape::rules()
{
    const QString page = QString::fromUtf8(source(u"docs/rules.md"_s));
    for (const EValue kind : {EValue::DEVICE_CLASS, EValue::DRIVE_TYPE}) {
        for (const QString &text : ItemValue::choices(kind)) {
            QVERIFY2(page.contains(u'`' + text + u'`'), qPrintable(text));
        }
    }
}

REGISTER_GUILESS_TEST(tst_shape)
#include "tst_shape.moc"
