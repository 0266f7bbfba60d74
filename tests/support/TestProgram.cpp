#include "support/TestProgram.h"

#include <cstdio>
#include <map>
#include <string>

namespace {

/** Filled while the program starts, whichever source file comes first. */
std::map<std::string, TestProgram::Run> &tests()
{
    static std::map<std::string, TestProgram::Run> tests;
    return tests;
}

} // namespace

bool TestProgram::add(const char *fileName, Run run)
{
    std::string name(fileName);
    name.erase(0, name.rfind('/') + 1);
    name.erase(name.rfind('.'));
    return tests().emplace(name, run).second;
}

int main(int argc, char *argv[])
{
    const auto test = argc > 1 ? tests().find(argv[1]) : tests().end();
    if (test == tests().end()) {
        std::fprintf(stderr, "usage: %s TEST [ARGUMENTS OF QT TEST]\n\nThe tests are:\n", argv[0]);
        for (const auto &known : tests()) {
            std::fprintf(stderr, "    %s\n", known.first.c_str());
        }
        return 2;
    }
    // Qt Test, and a test with a main function of its own, see only what follows the name.
    for (int i = 1; i < argc; ++i) {
        argv[i] = argv[i + 1];
    }
    return test->second(argc - 1, argv);
}
