#pragma once

#include "commissioning/CConfigurationItems.h"
#include "configfile/CDeviceConfigurationFile10.h"
#include "support/Files.h"
#include "support/LargeConfiguration.h"
#include "support/Literals.h"
#include "support/Places.h"
#include "support/SampleConfiguration.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QList>
#include <QPair>
#include <QString>

/** Documents whose items are read and set. */
namespace ItemDocuments {

using SItem = CConfigurationItems::SItem;

/** Around the example, which has every item, things that no reader of this library understands. */
inline QByteArray sampleDocument()
{
    QByteArray bytes =
        Files::read(Places::source("examples/packaging-line/DeviceConfiguration.3deco"));
    const QList<QPair<QByteArray, QByteArray>> marks = {
        {" <Device>\n", " <!--before the device-->\n <Device note=\"kept\">\n"},
        {"  <Config>\n", "  <Config a=\"1\" b=\"2\">\n   <Vendor>\n    <Deep/>\n   </Vendor>\n"},
        {"    <File type=\"VornParameters\">\n",
         "    <!--formats-->\n    <File lang=\"de\" type=\"VornParameters\">\n"},
        {"     <Name>recipes.csv</Name>\n",
         "     <Size>12</Size>\n     <Name>recipes.csv</Name>\n"},
        {"   <Name>Folder</Name>\n",
         "   <Name>Folder</Name>\n   <!--gantry-->\n   <Axis>Y</Axis>\n"},
        {"</VornDeviceConfig>\n", " <Other/>\n</VornDeviceConfig>\n"},
    };
    for (const auto &mark : marks) {
        const int count = bytes.count(mark.first);
        if (count != 1) {
            qWarning("%s stands %d times in the example", mark.first.constData(), count);
            return QByteArray();
        }
        bytes.replace(mark.first, mark.second);
    }
    return bytes;
}

inline QByteArray documentOf(const QByteArray &device)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VornDeviceConfig version=\"1.0\">\n"
        + device + "</VornDeviceConfig>\n";
}

inline QByteArray configurationOf(const QByteArray &config)
{
    return documentOf("<Device><Name>D</Name><Config>" + config + "</Config></Device>");
}

/** A document that is open, with its items. */
struct SOpened {
    CDeviceConfigurationFile10 file{nullptr};
    CConfigurationItems items{file};

    explicit SOpened(const QByteArray &bytes) { isOpen = file.load(bytes); }

    QByteArray bytes()
    {
        QByteArray result;
        QString error;
        return file.save(result, error) ? result : error.toUtf8();
    }

    QString value(const QString &path) const
    {
        QString result = u"(none)"_s;
        items.value(path, result);
        return result;
    }

    bool isOpen = false;
};

/** The lines that are in one of two documents alone, if they stand in one place. */
struct SDifference {
    QByteArrayList removed;
    QByteArrayList added;

    SDifference(const QByteArray &before, const QByteArray &after)
        : removed(before.split('\n')), added(after.split('\n'))
    {
        while (!removed.isEmpty() && !added.isEmpty() && removed.first() == added.first()) {
            removed.removeFirst();
            added.removeFirst();
        }
        while (!removed.isEmpty() && !added.isEmpty() && removed.last() == added.last()) {
            removed.removeLast();
            added.removeLast();
        }
    }
};

inline QString text(const QList<SItem> &items)
{
    QString result;
    for (const SItem &item : items) {
        result += item.path + u" = "_s + item.value + u"\n"_s;
    }
    return result;
}

} // namespace ItemDocuments
