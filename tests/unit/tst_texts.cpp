#include "configfile/CDeviceConfigurationFile10.h"
#include "settings/CDeviceSettingsFileV10.h"
#include "support/Files.h"
#include "support/MessageCatcher.h"
#include "support/RandomText.h"
#include "support/SampleConfiguration.h"
#include "support/SampleSettings.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QtTest>

#include <functional>

// Every text that somebody may type into a field comes back as it was, or is refused when it is
// saved: nothing is lost in between.

namespace {

/** What both documents hold. The sub-devices stand apart: a device hands out copies alone. */
struct SModel {
    CXMLMetaData metaData;
    CDescriptionElement description;
    CDeviceElement device;
    CSubDeviceKD2Element kd2;
    CSubDeviceKD3Element kd3;
    CDeviceSettings settings;

    CDeviceElement wholeDevice() const
    {
        CDeviceElement result = device;
        result.setSubDevices({kd2, kd3});
        return result;
    }
};

enum class Document { Configuration, Settings };

const Document Documents[] = {Document::Configuration, Document::Settings};

struct SField {
    QByteArray name;
    /** Its element. */
    QString tag;
    std::function<QString(const SModel &)> get;
    std::function<void(SModel &, const QString &)> set;
    Document document = Document::Configuration;
    /** Whether its text form has escapes, so that it can hold whatever it likes. */
    bool isEscaped = false;
};

QString orOther(const QString &text)
{
    return text.isEmpty() ? u"x"_s : text;
}

/** The one file in a list of them. */
template <typename Item>
void replaceFirst(QList<Item> &items, const Item &item)
{
    items[0] = item;
}

struct SFilePlace {
    const char *name;
    std::function<CFileElement(const SModel &)> get;
    std::function<void(SModel &, const CFileElement &)> set;
    /** Whether its project path must be below the directory of the device. */
    bool isBelowDevice = false;
};

QList<SFilePlace> filePlaces()
{
    return {
        {"dictionary", [](const SModel &m) { return m.device.odictFile(); },
         [](SModel &m, const CFileElement &f) { m.device.setOdictFile(f); }, true},
        {"fault texts", [](const SModel &m) { return m.device.faultTextFile(); },
         [](SModel &m, const CFileElement &f) { m.device.setFaultTextFile(f); }, true},
        {"EtherCAT master file", [](const SModel &m) { return m.device.etherCatMasterFile(); },
         [](SModel &m, const CFileElement &f) { m.device.setEtherCatMasterFile(f); }},
        {"OPC UA file", [](const SModel &m) { return m.device.opcUaFiles().value(0); },
         [](SModel &m, const CFileElement &f) { m.device.setOpcUaFiles({f}); }},
        {"additional file", [](const SModel &m) { return m.device.additionalFile(0); },
         [](SModel &m, const CFileElement &f) { m.device.setAdditionalFiles({f}); }},
        {"KD2 parameters", [](const SModel &m) { return m.kd2.parameterFile(); },
         [](SModel &m, const CFileElement &f) { m.kd2.setParameterFile(f); }},
        {"KD2 own parameters", [](const SModel &m) { return m.kd2.kd2ParameterFile(); },
         [](SModel &m, const CFileElement &f) { m.kd2.setKd2ParameterFile(f); }},
        {"KD2 logic", [](const SModel &m) { return m.kd2.kd2LogicFile(); },
         [](SModel &m, const CFileElement &f) { m.kd2.setKd2LogicFile(f); }},
        {"KD2 firmware", [](const SModel &m) { return m.kd2.kd2FirmwareFile(); },
         [](SModel &m, const CFileElement &f) { m.kd2.setKd2FirmwareFile(f); }},
        {"KD3 parameters", [](const SModel &m) { return m.kd3.parameterFile(); },
         [](SModel &m, const CFileElement &f) { m.kd3.setParameterFile(f); }},
    };
}

/** The field @p get and @p set of the file that stands in @p place. */
template <typename Get, typename Set>
SField fileField(const SFilePlace &place, const char *name, const QString &tag, Get get, Set set)
{
    SField field;
    field.name = QByteArray(place.name) + ", " + name;
    field.tag = tag;
    field.get = [place, get](const SModel &m) { return get(place.get(m)); };
    field.set = [place, set](SModel &m, const QString &text) {
        CFileElement file = place.get(m);
        set(file, text);
        place.set(m, file);
    };
    return field;
}

QList<SField> fileFields(const SFilePlace &place)
{
    QList<SField> fields = {
        fileField(
            place, "name", u"Name"_s, [](const CFileElement &f) { return f.fileName(); },
            [](CFileElement &f, const QString &t) { f.setFileName(t); }),
        fileField(
            place, "comment", u"Comment"_s, [](const CFileElement &f) { return f.comment(); },
            [](CFileElement &f, const QString &t) { f.setComment(t); }),
        fileField(
            place, "directory on the device", u"DeviceDir"_s,
            [](const CFileElement &f) { return f.devicePath(); },
            [](CFileElement &f, const QString &t) { f.setDevicePath(t); }),
        fileField(
            place, "directory in the project", u"ProjectDir"_s,
            [](const CFileElement &f) { return f.projectPath(); },
            [](CFileElement &f, const QString &t) { f.setProjectPath(t); }),
    };
    if (place.isBelowDevice) {
        SField &projectPath = fields.last();
        const auto set = projectPath.set;
        projectPath.set = [set](SModel &m, const QString &text) {
            // As a path has it, the name would be another one.
            const bool canBePath = !m.device.name().contains(u'\\');
            set(m, canBePath ? m.device.name() + u"/"_s + text : QString());
        };
    }
    return fields;
}

/** Every text in both documents; the name of the device before the paths that begin with it. */
QList<SField> fields()
{
    const auto setFirstParamFile = [](SModel &m, const CParamFileElement &file) {
        m.device.setParameterFiles({file});
    };
    QList<SField> result = {
        {"author", u"Author"_s, [](const SModel &m) { return m.metaData.author(); },
         [](SModel &m, const QString &t) { m.metaData.setAuthor(t); }},
        {"comment of the document", u"Comment"_s,
         [](const SModel &m) { return m.metaData.comment(); },
         [](SModel &m, const QString &t) { m.metaData.setComment(t); }},
        {"description, name", u"Name"_s, [](const SModel &m) { return m.description.name(); },
         [](SModel &m, const QString &t) { m.description.setName(t); }},
        {"description, comment", u"Comment"_s,
         [](const SModel &m) { return m.description.comment(); },
         [](SModel &m, const QString &t) { m.description.setComment(t); }},
        {"description, version", u"Version"_s,
         [](const SModel &m) { return m.description.version(); },
         [](SModel &m, const QString &t) { m.description.setVersion(t); }},
        {"device, name", u"Name"_s, [](const SModel &m) { return m.device.name(); },
         [](SModel &m, const QString &t) { m.device.setName(t); }},
        {"device, comment", u"Comment"_s, [](const SModel &m) { return m.device.comment(); },
         [](SModel &m, const QString &t) { m.device.setComment(t); }},
        {"device, configuration", u"ConfigurationName"_s,
         [](const SModel &m) { return m.device.configurationName(); },
         [](SModel &m, const QString &t) { m.device.setConfigurationName(t); }},
        {"device, product", u"HardwareId"_s, [](const SModel &m) { return m.device.productName(); },
         [](SModel &m, const QString &t) { m.device.setProductName(t); }, Document::Configuration,
         true},
        {"device, option", u"Options"_s,
         [](const SModel &m) { return m.device.options().value(1); },
         [](SModel &m, const QString &t) {
             // A blank would end it.
             m.device.setOptions(QStringList{u"-v"_s, u"-"_s + QString(t).remove(u' '), u"-opc"_s});
         }},
        {"parameter file, name", u"Name"_s,
         [](const SModel &m) { return m.device.parameterFiles().value(0).name(); },
         [=](SModel &m, const QString &t) {
             CParamFileElement file = m.device.parameterFiles().value(0);
             file.setName(orOther(t));
             setFirstParamFile(m, file);
         }},
        {"parameter file, comment", u"Comment"_s,
         [](const SModel &m) { return m.device.parameterFiles().value(0).comment(); },
         [=](SModel &m, const QString &t) {
             CParamFileElement file = m.device.parameterFiles().value(0);
             file.setComment(t);
             setFirstParamFile(m, file);
         }},
        {"FPGA file", u"Name"_s, [](const SModel &m) { return m.device.fpgaFile(1); },
         [](SModel &m, const QString &t) {
             m.device.setFpgaFiles({u"main.bit"_s, t});
         }},
        {"plug-in, name", u"Name"_s,
         [](const SModel &m) { return m.device.plugins().value(0).name(); },
         [](SModel &m, const QString &t) {
             CPluginElement plugin = m.device.plugins().value(0);
             plugin.setName(t);
             m.device.setPlugins({plugin});
         }},
        {"plug-in, version", u"Version"_s,
         [](const SModel &m) { return m.device.plugins().value(0).version(); },
         [](SModel &m, const QString &t) {
             CPluginElement plugin = m.device.plugins().value(0);
             plugin.setVersion(t);
             m.device.setPlugins({plugin});
         }},
        {"plug-in that runs the application", u"ExecutionPlugin"_s,
         [](const SModel &m) { return m.device.executionPlugin(); },
         [](SModel &m, const QString &t) { m.device.setExecutionPlugin(t); }},
        {"KD2 drive, name", u"Name"_s, [](const SModel &m) { return m.kd2.name(); },
         [](SModel &m, const QString &t) { m.kd2.setName(orOther(t)); }},
        {"KD2 drive, comment", u"Comment"_s, [](const SModel &m) { return m.kd2.comment(); },
         [](SModel &m, const QString &t) { m.kd2.setComment(t); }},
        {"KD2 drive, product", u"HardwareId"_s, [](const SModel &m) { return m.kd2.productName(); },
         [](SModel &m, const QString &t) { m.kd2.setProductName(t); }, Document::Configuration,
         true},
        {"KD3 drive, name", u"Name"_s, [](const SModel &m) { return m.kd3.name(); },
         [](SModel &m, const QString &t) { m.kd3.setName(orOther(t)); }},
        {"KD3 drive, comment", u"Comment"_s, [](const SModel &m) { return m.kd3.comment(); },
         [](SModel &m, const QString &t) { m.kd3.setComment(t); }},
        {"settings, name of the device", u"Name"_s,
         [](const SModel &m) { return m.settings.deviceName(); },
         [](SModel &m, const QString &t) { m.settings.setDeviceName(t); }, Document::Settings},
        {"settings, name of drive 0", u"Name"_s,
         [](const SModel &m) { return m.settings.subDeviceName(0); },
         [](SModel &m, const QString &t) { m.settings.setSubDeviceName(t, 0); },
         Document::Settings},
        {"settings, name of drive 255", u"Name"_s,
         [](const SModel &m) { return m.settings.subDeviceName(255); },
         [](SModel &m, const QString &t) { m.settings.setSubDeviceName(t, 255); },
         Document::Settings},
    };
    for (const SFilePlace &place : filePlaces()) {
        result += fileFields(place);
    }
    return result;
}

/** A model with something in each field. */
SModel sampleModel()
{
    SModel model;
    model.metaData = SampleConfiguration::metaData();
    model.description = SampleConfiguration::description();
    model.device = SampleConfiguration::device();
    model.kd2 = SampleConfiguration::kd2SubDevice();
    model.kd3 = SampleConfiguration::kd3SubDevice();
    model.settings = SampleSettings::settings(u"Press"_s, {{0, u"Feed"_s}, {255, u"Cutter"_s}});
    return model;
}

/** One of the two documents, with its file object. */
class Storage
{
public:
    explicit Storage(Document document) : m_document(document) { }

    CXmlAbstractVornFile &file()
    {
        return m_document == Document::Configuration
            ? static_cast<CXmlAbstractVornFile &>(m_configuration)
            : static_cast<CXmlAbstractVornFile &>(m_settings);
    }

    bool put(const SModel &model)
    {
        if (m_document == Document::Settings) {
            const bool created = m_settings.createNewDocument(u"VornDeviceSettings"_s, u"1.0"_s);
            m_settings.setDeviceSettings(model.settings);
            return created;
        }
        const bool created = m_configuration.createNewDocument();
        m_configuration.setMetaData(model.metaData);
        return created && m_configuration.setDescription(model.description)
            && m_configuration.setConfiguration(model.wholeDevice());
    }

    bool load(const QByteArray &bytes)
    {
        return m_document == Document::Configuration
            ? m_configuration.load(bytes)
            : m_settings.openFromBuffer(bytes, u"1.0"_s) == NvrnGlobal::FILE_RESULT_SUCCESS;
    }

    /** What of the model stands in this document. */
    SModel model() const
    {
        SModel result;
        if (m_document == Document::Settings) {
            result.settings = m_settings.deviceSettings();
            return result;
        }
        result.metaData = m_configuration.metaData();
        result.description = m_configuration.description();
        m_configuration.configuration(result.device);
        result.kd2 = result.device.subDevice(sampleModel().kd2.driveId()).toKD2();
        result.kd3 = result.device.subDevice(sampleModel().kd3.driveId()).toKD3();
        return result;
    }

    /** The bytes of the document; empty, with @p error, when it cannot be written. */
    QByteArray bytes(QString *error = nullptr)
    {
        QByteArray result;
        QString reason;
        file().save(result, reason);
        if (error != nullptr) {
            *error = reason;
        }
        return result;
    }

private:
    const Document m_document;
    CDeviceConfigurationFile10 m_configuration{nullptr};
    CDeviceSettingsFileV10 m_settings{nullptr};
};

QByteArray codes(const QString &text)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(text.utf16()), text.size() * 2)
        .toHex(' ');
}

} // namespace

class tst_texts : public QObject
{
    Q_OBJECT

private slots:
    void everyTextSurvives_data();
    void everyTextSurvives();
    void oneChangeOneLine_data();
    void oneChangeOneLine();
    void illegalText_data();
    void illegalText();
    void everyElementIsListed();

private:
    static SField field(const QByteArray &name);
};

SField tst_texts::field(const QByteArray &name)
{
    const QList<SField> all = fields();
    return *std::find_if(all.cbegin(), all.cend(),
                         [&](const SField &candidate) { return candidate.name == name; });
}

void tst_texts::everyTextSurvives_data()
{
    QTest::addColumn<uint>("seed");

    // Each gives a text to each of the fields, some 6,000 in all.
    for (uint seed = 1; seed <= 100; ++seed) {
        QTest::newRow(("seed " + QByteArray::number(seed)).constData()) << seed;
    }
}

void tst_texts::everyTextSurvives()
{
    QFETCH(uint, seed);

    const QList<SField> all = fields();
    RandomText texts(seed);
    SModel model = sampleModel();
    for (const SField &field : all) {
        field.set(model, texts.next());
    }
    for (const Document document : Documents) {
        const MessageCatcher catcher;
        Storage storage(document);
        QVERIFY(storage.put(model));
        QString error;
        const QByteArray bytes = storage.bytes(&error);
        QVERIFY2(!bytes.isEmpty(), qPrintable(error));
        QCOMPARE(storage.bytes(), bytes);

        QVERIFY2(storage.load(bytes), qPrintable(catcher.criticals().join(u'\n')));
        const SModel read = storage.model();
        for (const SField &field : all) {
            if (field.document == document && field.get(read) != field.get(model)) {
                QFAIL(("seed " + QByteArray::number(seed) + ", " + field.name + ": "
                       + codes(field.get(model)) + " became " + codes(field.get(read)))
                          .constData());
            }
        }
        // What no setter touched is as it was, too, and so it stays however often it is saved.
        QCOMPARE(storage.bytes(), bytes);
        Storage other(document);
        QVERIFY(other.put(read));
        QCOMPARE(other.bytes(), bytes);
        QVERIFY2(catcher.messages().isEmpty(), qPrintable(catcher.warnings().join(u'\n')));
        if (document == Document::Configuration) {
            QVERIFY(read.device == model.wholeDevice());
            QVERIFY(read.description == model.description);
            QVERIFY(read.metaData == model.metaData);
        } else {
            QVERIFY(read.settings == model.settings);
        }
    }
}

void tst_texts::oneChangeOneLine_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const SField &field : fields()) {
        QTest::newRow(field.name.constData()) << field.name;
    }
}

void tst_texts::oneChangeOneLine()
{
    QFETCH(QByteArray, name);
    const SField changed = field(name);

    SModel model = sampleModel();
    Storage storage(changed.document);
    changed.set(model, u"first <&> value "_s);
    QVERIFY(storage.put(model));
    const QList<QByteArray> before = storage.bytes().split('\n');
    for (const QString &value : {u"second"_s, u" third\r\t\u2028 "_s, u"\U0001F600"_s}) {
        changed.set(model, value);
        QVERIFY(storage.put(model));
        const QList<QByteArray> after = storage.bytes().split('\n');
        QCOMPARE(after.size(), before.size());
        int differences = 0;
        for (int i = 0; i < after.size(); ++i) {
            if (after.at(i) != before.at(i)) {
                ++differences;
                QVERIFY2(after.at(i).trimmed().startsWith("<" + changed.tag.toUtf8() + ">"),
                         after.at(i).constData());
            }
        }
        QCOMPARE(differences, 1);
    }
}

void tst_texts::illegalText_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("code");

    struct SText {
        QString text;
        const char *code;
    };
    const SText texts[] = {
        {u"a"_s + QChar(0) + u"b"_s, "U+0000"},
        {QChar(0), "U+0000"},
        {u"a\u0001"_s, "U+0001"},
        {u"\u0008a"_s, "U+0008"},
        {u"\u000b"_s, "U+000B"},
        {u"a\u001fb"_s, "U+001F"},
        {u"a"_s + QChar(0xd800), "U+D800"},
        {QChar(0xd83d) + u"a"_s, "U+D83D"},
        {QChar(0xdbff) + QString(QChar(0xd83d)) + QChar(0xde00), "U+DBFF"},
        {u"a"_s + QChar(0xdc00) + u"b"_s, "U+DC00"},
        {QChar(0xde00) + QString(QChar(0xd83d)), "U+DE00"},
        {u"\ufffe"_s, "U+FFFE"},
        {u"a\uffff"_s, "U+FFFF"},
    };
    for (const SField &field : fields()) {
        int index = 0;
        for (const SText &text : texts) {
            const QByteArray row =
                field.name + ": " + text.code + " (" + QByteArray::number(++index) + ")";
            QTest::newRow(row.constData())
                << field.name << text.text << QString::fromLatin1(text.code);
        }
    }
}

void tst_texts::illegalText()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, text);
    QFETCH(QString, code);
    const SField changed = field(name);

    QTemporaryDir directory;
    const QString path = directory.filePath(u"a"_s);
    SModel model = sampleModel();
    Storage storage(changed.document);
    QString error;
    QVERIFY(storage.put(model));
    const QByteArray good = storage.bytes();
    QVERIFY(Files::write(path, good));

    changed.set(model, text);
    QVERIFY(changed.get(model).contains(text));
    QVERIFY(storage.put(model));
    const MessageCatcher catcher;
    if (changed.isEscaped) {
        QVERIFY(storage.load(storage.bytes()));
        QCOMPARE(changed.get(storage.model()), text);
        return;
    }
    QByteArray buffer = "before";
    QVERIFY(!storage.file().save(buffer, error));
    QCOMPARE(buffer, QByteArray("before"));
    QVERIFY2(error.contains(u"'"_s + changed.tag + u"'"_s), qPrintable(error));
    QVERIFY2(error.contains(code), qPrintable(error));

    QString fileError;
    QVERIFY(!storage.file().save(path, fileError));
    QVERIFY2(fileError.startsWith(path + u": "_s), qPrintable(fileError));
    QCOMPARE(fileError.mid(path.size() + 2), error);
    QCOMPARE(catcher.criticals(), (QStringList{error, fileError}));
    QCOMPARE(Files::read(path), good);
    QCOMPARE(Files::names(directory.path()), QStringList{u"a"_s});

    // The fault is in the model: once it is gone all is well.
    changed.set(model, u"good"_s);
    QVERIFY(storage.put(model));
    QVERIFY2(storage.file().save(path, error), qPrintable(error));
}

void tst_texts::everyElementIsListed()
{
    // Every element of both documents that holds a text is a field, or holds a number, a date or
    // a word of its own.
    const QStringList others = {u"Date"_s,     u"CreationDate"_s, u"RevisionDate"_s, u"Class"_s,
                                u"Priority"_s, u"OpcUaEnabled"_s, u"DriveNo"_s,      u"BusId"_s};
    SModel model = sampleModel();
    int index = 0;
    for (const SField &field : fields()) {
        field.set(model, QStringLiteral("field-%1-").arg(index++));
    }
    // Those that stand first in their lists are not fields, and tell nothing that these do not.
    model.device.setFpgaFiles({model.device.fpgaFile(1)});
    for (const Document document : Documents) {
        Storage storage(document);
        QVERIFY(storage.put(model));
        const QDomNodeList elements = storage.file().domDocument().elementsByTagName(u"*"_s);
        for (int i = 0; i < elements.size(); ++i) {
            const QDomElement element = elements.at(i).toElement();
            const QString text = storage.file().getNodeValue(element);
            if (!text.isEmpty() && !others.contains(element.tagName())) {
                QVERIFY2(text.contains(u"field-"_s),
                         qPrintable(element.tagName() + u": "_s + text));
            }
        }
    }
}

REGISTER_GUILESS_TEST(tst_texts)
#include "tst_texts.moc"
