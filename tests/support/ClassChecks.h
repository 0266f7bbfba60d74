#pragma once

#include <QStringList>
#include <QTest>

/** A check without arguments; one is made for each class of a list, and runs as a row of its own.
 */
using Check = void (*)();
Q_DECLARE_METATYPE(Check)

/** Makes the same checks for each class of a list; a class without a name does not compile. */
namespace ClassChecks {

template <typename... Class>
struct ClassList {
};

/** Each class of a list has its own, see CLASS_NAME(). */
template <typename T>
const char *className() = delete;

template <typename T>
struct Tag {
    using Type = T;
};

/** Adds the column "check", and a row for each class; see CHECK_OF(). */
template <typename CheckOf, typename... Class>
void rowsOf(CheckOf checkOf, ClassList<Class...>)
{
    QTest::addColumn<Check>("check");
    ((QTest::newRow(className<Class>()) << checkOf(Tag<Class>())), ...);
}

template <typename... Class>
QStringList classNames(ClassList<Class...>)
{
    return {QString::fromLatin1(className<Class>())...};
}

/** Makes the check of the row. */
inline void run()
{
    QFETCH(Check, check);
    check();
}

} // namespace ClassChecks

/** What rowsOf() takes for the function template @p check. */
#define CHECK_OF(check) [](auto type) -> Check { return &check<typename decltype(type)::Type>; }

#define CLASS_NAME(Class) \
    template <> \
    inline const char *ClassChecks::className<Class>() \
    { \
        return #Class; \
    }
