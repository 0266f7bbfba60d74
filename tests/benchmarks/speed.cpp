// CPU times of the library, beside those of what it is built on and of what could do the same. The
// exit code tells whether every goal was met; with --quick there are none.

#include "benchmarks/Measurements.h"
#include "benchmarks/Table.h"

#include <iostream>

namespace {

struct SComparison {
    const char *operation;
    const char *reference;
    double goal;
};

const SComparison comparisons[] = {
    {"open", "QDomDocument::setContent", 0.6},
    {"open", "QXmlStreamReader", Table::NoGoal},
    {"open", "xmlReadMemory (libxml2)", Table::NoGoal},
    {"open", "load_buffer (pugixml)", Table::NoGoal},
    {"open, from a file", "QDomDocument::setContent", Table::NoGoal},
    {"open, positions kept", "open", Table::NoGoal},
    {"open + configuration", "QDomDocument::setContent", 0.8},
    {"configuration", "open", Table::NoGoal},
    {"setConfiguration", "QDomDocument::setContent", Table::NoGoal},
    {"save", "QDomDocument::toByteArray", 0.5},
    {"save to a file", "toByteArray and QSaveFile", Table::NoGoal},
    {"save to a file, unchanged", "toByteArray and QSaveFile", Table::NoGoal},
    {"compare devices that share data", "without shared data", Table::NoGoal},
    {"write a device to a stream", "write its texts as QStringList", Table::NoGoal},
    {"read a device from a stream", "read its texts as QStringList", Table::NoGoal},
    {"check", "open, positions kept", Table::NoGoal},
};

const char *const operationsAlone[] = {"copy a device", "read a const device"};

struct SGrowth {
    const char *operation;
    SSize from;
    SSize to;
    double goal;
};

const SGrowth growths[] = {
    {"open", {1000, 8}, {100000, 8}, 130},
    {"configuration", {1000, 8}, {100000, 8}, 130},
    {"setConfiguration", {1000, 8}, {100000, 8}, 130},
    {"save", {1000, 8}, {100000, 8}, 130},
    {"copy a device", {10, 0}, {100000, 8}, Table::NoGoal},
    {"read a const device", {10, 0}, {100000, 8}, Table::NoGoal},
    {"compare devices that share data", {10, 0}, {100000, 8}, Table::NoGoal},
    {"append to the device", {1, 0}, {10000, 0}, 1.5},
    {"append to the document", {1, 0}, {10000, 0}, 1.5},
    {"check", {10000, 8}, {100000, 8}, 13},
    {"check documents", {100, 0}, {1000, 0}, 13},
};

bool printTable(const Measurements &measurements, bool quick)
{
    using Table::EUnit;

    bool met = true;
    for (const SComparison &comparison : comparisons) {
        for (const SSize &size : sizes(quick)) {
            met = Table::row(comparison.operation, size.text(),
                             measurements.time(comparison.operation, size), comparison.reference,
                             measurements.time(comparison.reference, size), EUnit::NANOSECONDS,
                             size.files < GoalFiles ? Table::NoGoal : comparison.goal)
                && met;
        }
    }
    for (const char *operation : operationsAlone) {
        for (const SSize &size : sizes(quick)) {
            Table::row(operation, size.text(), measurements.time(operation, size),
                       EUnit::NANOSECONDS);
        }
    }
    for (const SGrowth &growth : growths) {
        if (measurements.contains(growth.operation, growth.from)
            && measurements.contains(growth.operation, growth.to)) {
            met = Table::row(growth.operation, growth.to.text(),
                             measurements.time(growth.operation, growth.to),
                             "with " + growth.from.text(),
                             measurements.time(growth.operation, growth.from), EUnit::NANOSECONDS,
                             quick ? Table::NoGoal : growth.goal)
                && met;
        }
    }
    return met;
}

} // namespace

int main(int argc, char *argv[])
{
    const bool quick = isQuick(argc, argv);
    for (const SSize &size : sizes(quick)) {
        Operations::registerDocuments(size);
        Operations::registerElements(size);
        Operations::registerCheck(size);
    }
    for (const int number : {100, 1000}) {
        Operations::registerCheckOfDocuments({number, 0});
    }
    for (const int number : {1, quick ? 1000 : 10000}) {
        Operations::registerAppending({number, 0});
    }

    Measurements measurements;
    if (!measurements.run(quick)) {
        std::cerr << "Not everything could be measured.\n";
        return 2;
    }
    return printTable(measurements, quick) ? 0 : 1;
}
