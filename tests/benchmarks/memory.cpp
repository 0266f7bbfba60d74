// The memory of an open document beside that of a QDomDocument that was read from the same bytes.

#include "benchmarks/Sizes.h"
#include "benchmarks/Table.h"
#include "support/AllocationCounter.h"
#include "support/LargeConfiguration.h"

#include <QDomDocument>

namespace {

using Counts = AllocationCounter::SCounts;

Counts countsOfOpening(const QByteArray &bytes, bool keepPositions)
{
    AllocationCounter::start();
    const std::unique_ptr<ICDeviceConfigurationFile> file(
        ICDeviceConfigurationFile::instance(nullptr));
    file->keepPositions(keepPositions);
    return file->load(bytes) ? AllocationCounter::counts() : Counts();
}

Counts countsOfSetContent(const QByteArray &bytes)
{
    AllocationCounter::start();
    QDomDocument document;
    return document.setContent(bytes) ? AllocationCounter::counts() : Counts();
}

bool row(const char *what, const SSize &size, qint64 ours, const char *reference, qint64 theirs,
         Table::EUnit unit, double goal)
{
    return Table::row(what, size.text(), static_cast<double>(ours), reference,
                      static_cast<double>(theirs), unit,
                      size.files < GoalFiles ? Table::NoGoal : goal);
}

/** @return whether the goals were met */
bool measure(const SSize &size, const QByteArray &bytes)
{
    using Table::EUnit;

    const Counts ours = countsOfOpening(bytes, false);
    const Counts withPositions = countsOfOpening(bytes, true);
    const Counts theirs = countsOfSetContent(bytes);
    const char *const reference = "QDomDocument::setContent";

    const bool met = row("memory of the open document", size, ours.currentBytes, reference,
                         theirs.currentBytes, EUnit::BYTES, 0.85);
    row("the same, positions kept", size, withPositions.currentBytes, reference,
        theirs.currentBytes, EUnit::BYTES, Table::NoGoal);
    row("highest memory while opening", size, ours.peakBytes, reference, theirs.peakBytes,
        EUnit::BYTES, Table::NoGoal);
    row("allocations of opening", size, ours.allocations, reference, theirs.allocations,
        EUnit::COUNT, Table::NoGoal);
    return met;
}

} // namespace

int main(int argc, char *argv[])
{
    if (!AllocationCounter::isAvailable()) {
        std::fputs("Allocations cannot be counted here.\n", stderr);
        return 2;
    }
    bool met = true;
    for (const SSize &size : sizes(isQuick(argc, argv))) {
        const CDeviceElement device = LargeConfiguration::device(size.files, size.subDevices);
        const QByteArray bytes = LargeConfiguration::bytes(*LargeConfiguration::document(device));
        // What is set up once for all documents belongs to none.
        countsOfOpening(bytes, true);
        countsOfSetContent(bytes);
        met = measure(size, bytes) && met;
    }
    return met ? 0 : 1;
}
