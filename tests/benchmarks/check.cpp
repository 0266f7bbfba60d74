#include "benchmarks/Measurements.h"
#include "commissioning/CConfigurationCheck.h"
#include "support/LargeConfiguration.h"

#include <QTemporaryDir>

namespace {

/** So many documents of one size, each in a file of its own. */
struct SDocuments {
    explicit SDocuments(int count)
    {
        const auto file = LargeConfiguration::document(LargeConfiguration::device(10, 8));
        for (int i = 0; i < count; ++i) {
            paths.append(directory.filePath(QString::number(i)));
            file->save(paths.constLast());
        }
    }

    const QTemporaryDir directory;
    QStringList paths;
};

} // namespace

void Operations::registerCheck(const SSize &size)
{
    const auto document =
        LargeConfiguration::document(LargeConfiguration::device(size.files, size.subDevices));
    const QByteArray bytes = LargeConfiguration::bytes(*document);
    const auto newCheck = [] { return std::make_unique<CConfigurationCheck>(); };
    measure("check", size, newCheck, [=](auto &check) { return check->load(bytes); });
}

void Operations::registerCheckOfDocuments(const SSize &size)
{
    const auto documents = std::make_shared<const SDocuments>(size.files);
    measure("check documents", size, [=] {
        CConfigurationCheck check;
        bool ok = true;
        for (const QString &path : documents->paths) {
            ok = check.open(path) && ok;
        }
        return ok;
    });
}
