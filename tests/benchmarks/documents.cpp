#include "benchmarks/Measurements.h"
#include "support/LargeConfiguration.h"

#include <QDomDocument>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <libxml/parser.h>
#include <pugixml.hpp>

namespace {

using File = ICDeviceConfigurationFile;
using FilePointer = std::unique_ptr<File>;

FilePointer newFile()
{
    return FilePointer(File::instance(nullptr));
}

/** One device in all the forms from which the operations start. */
struct SInput {
    explicit SInput(const SSize &size)
        : device(LargeConfiguration::device(size.files, size.subDevices)),
          opened(LargeConfiguration::document(device)), bytes(LargeConfiguration::bytes(*opened)),
          path(directory.filePath(u"DeviceConfiguration.3deco"_s)),
          referencePath(directory.filePath(u"reference.xml"_s))
    {
        // What was built tag by tag lies otherwise in memory than what was read.
        opened->load(bytes);
        reference.setContent(bytes);
        opened->save(path);
    }

    const CDeviceElement device;
    const FilePointer opened;
    const QByteArray bytes;
    QDomDocument reference;
    const QTemporaryDir directory;
    const QString path;
    const QString referencePath;
};

bool readTokens(const QByteArray &bytes)
{
    QXmlStreamReader reader(bytes);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return !reader.hasError();
}

bool saveWithQt(const QDomDocument &document, const QString &path)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(document.toByteArray(2)) > 0
        && file.commit();
}

struct FreeXmlDoc {
    void operator()(xmlDoc *document) const { xmlFreeDoc(document); }
};

void registerOpening(const SSize &size, const std::shared_ptr<const SInput> &input)
{
    using Operations::measure;

    measure("open", size, newFile, [=](FilePointer &file) { return file->load(input->bytes); });
    measure("open, from a file", size, newFile,
            [=](FilePointer &file) { return file->open(input->path); });
    const auto withPositions = [] {
        FilePointer file = newFile();
        file->keepPositions(true);
        return file;
    };
    measure("open, positions kept", size, withPositions,
            [=](FilePointer &file) { return file->load(input->bytes); });
    const auto fileAndDevice = [] { return std::make_pair(newFile(), CDeviceElement()); };
    measure("open + configuration", size, fileAndDevice, [=](auto &subject) {
        return subject.first->load(input->bytes) && subject.first->configuration(subject.second);
    });

    const auto newDom = [] { return QDomDocument(); };
    measure("QDomDocument::setContent", size, newDom,
            [=](QDomDocument &document) { return document.setContent(input->bytes); });
    measure("QXmlStreamReader", size, [=] { return readTokens(input->bytes); });
    const auto newXml2 = [] { return std::unique_ptr<xmlDoc, FreeXmlDoc>(); };
    measure("xmlReadMemory (libxml2)", size, newXml2, [=](auto &document) {
        document.reset(xmlReadMemory(input->bytes.constData(), input->bytes.size(), nullptr,
                                     nullptr, XML_PARSE_HUGE));
        return document != nullptr;
    });
    const auto newPugi = [] { return std::make_unique<pugi::xml_document>(); };
    measure("load_buffer (pugixml)", size, newPugi, [=](auto &document) {
        return static_cast<bool>(document->load_buffer(
            input->bytes.constData(), static_cast<std::size_t>(input->bytes.size())));
    });
}

void registerReading(const SSize &size, const std::shared_ptr<const SInput> &input)
{
    const auto newDevice = [] { return CDeviceElement(); };
    Operations::measure("configuration", size, newDevice, [=](CDeviceElement &device) {
        return input->opened->configuration(device);
    });
}

void registerWriting(const SSize &size, const std::shared_ptr<const SInput> &input)
{
    using Operations::measure;

    const auto newDocument = [] {
        FilePointer file = newFile();
        file->createNewDocument();
        return file;
    };
    measure("setConfiguration", size, newDocument,
            [=](FilePointer &file) { return file->setConfiguration(input->device); });

    const auto newBytes = [] { return QByteArray(); };
    measure("save", size, newBytes, [=](QByteArray &bytes) {
        QString errorText;
        return input->opened->save(bytes, errorText);
    });
    measure("QDomDocument::toByteArray", size, newBytes, [=](QByteArray &bytes) {
        bytes = input->reference.toByteArray(2);
        return !bytes.isEmpty();
    });

    measure("save to a file, unchanged", size, [=] { return input->opened->save(input->path); });
    const auto otherContent = [=] {
        return QFile::resize(input->path, 0) ? input->opened.get() : nullptr;
    };
    measure("save to a file", size, otherContent,
            [=](File *file) { return file != nullptr && file->save(input->path); });
    measure("toByteArray and QSaveFile", size,
            [=] { return saveWithQt(input->reference, input->referencePath); });
}

} // namespace

void Operations::registerDocuments(const SSize &size)
{
    const auto input = std::make_shared<const SInput>(size);
    registerOpening(size, input);
    registerReading(size, input);
    registerWriting(size, input);
}

void Operations::registerAppending(const SSize &size)
{
    const std::shared_ptr<File> file =
        LargeConfiguration::document(LargeConfiguration::device(size.files - 1));
    const CFileElement appended = LargeConfiguration::file(size.files - 1);
    measure("append to the document", size, [=] {
        const bool ok = file->appendAdditionalFile(appended);
        QDomElement files = file->findFilesElement();
        files.removeChild(files.lastChild());
        return ok;
    });

    const auto device =
        std::make_shared<CDeviceElement>(LargeConfiguration::device(size.files - 1));
    measure("append to the device", size, [=] {
        device->appendAdditionalFile(appended);
        return device->removeAdditionalFile(size.files - 1);
    });
}
