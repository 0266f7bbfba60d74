#pragma once

#include <QCoreApplication>
#include <QTest>

/**
 * A program of tests/unit holds several test classes and runs one of them, in a process of its own:
 *
 *     PROGRAM TEST [ARGUMENTS OF QT TEST]
 *
 * TEST is the name of the source file without ".cpp". Each file registers its class once, at its
 * end.
 */
namespace TestProgram {

using Run = int (*)(int argc, char *argv[]);

/** Registers the test of the source file @p fileName. */
bool add(const char *fileName, Run run);

/** Runs the test, without an application object. */
template <typename Test>
int runAppless(int argc, char *argv[])
{
    Test test;
    return QTest::qExec(&test, argc, argv);
}

/** Runs the test with an application object, which some classes of Qt need. */
template <typename Test>
int runGuiless(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    return runAppless<Test>(argc, argv);
}

} // namespace TestProgram

/** For a test that decides by itself what it does with the arguments behind its name. */
#define REGISTER_TEST_FUNCTION(function) \
    [[maybe_unused]] static const bool isRegistered = TestProgram::add(__FILE__, function);

#define REGISTER_APPLESS_TEST(Test) REGISTER_TEST_FUNCTION(TestProgram::runAppless<Test>)
#define REGISTER_GUILESS_TEST(Test) REGISTER_TEST_FUNCTION(TestProgram::runGuiless<Test>)
