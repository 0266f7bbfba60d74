#include <QDir>
#include <QFile>
#include <QHash>
#include <QMap>
#include <QStringList>
#include <QTest>

#include "configfile/CDeviceConfigurationFile10.h"
#include "devicefiles/CHashMap.h"
#include "elements/CSubDeviceKD2ElementEdit.h"
#include "elements/CSubDeviceKD3ElementEdit.h"
#include "support/Places.h"
#include "support/TestProgram.h"

#include <cxxabi.h>
#include <dlfcn.h>
#include <link.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <type_traits>

namespace {

const QString PureSlot = QStringLiteral("pure");
// What compilers put in place of an abstract class's destructors, which nobody can call by slot.
const QString NullSlot = QStringLiteral("null");

QString demangled(const char *symbol)
{
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> text(
        abi::__cxa_demangle(symbol, nullptr, nullptr, &status), &std::free);
    return QString::fromLatin1(status == 0 ? text.get() : symbol);
}

QByteArray vtableSymbol(const QString &className)
{
    const QByteArray name = className.toLatin1();
    return "_ZTV" + QByteArray::number(name.size()) + name;
}

#if defined(__LP64__)
size_t symbolIndex(ElfW(Xword) info)
{
    return ELF64_R_SYM(info);
}
#else
size_t symbolIndex(ElfW(Word) info)
{
    return ELF32_R_SYM(info);
}
#endif

using SymbolNames = QHash<ElfW(Addr), const char *>;

/**
 * For each place in a loaded library that the loader filled with the address of a symbol: its name.
 * The address alone would not do, for the optimizer gives functions with equal bodies one address.
 */
class Relocations
{
public:
    explicit Relocations(const link_map *library) : m_library(library)
    {
        for (const ElfW(Dyn) *entry = library->l_ld; entry->d_tag != DT_NULL; ++entry) {
            m_dynamic.insert(static_cast<qint64>(entry->d_tag), entry->d_un.d_ptr);
        }
        collect<ElfW(Rela)>(DT_RELA, DT_RELASZ);
        collect<ElfW(Rel)>(DT_REL, DT_RELSZ);
    }

    SymbolNames names() const { return m_names; }

private:
    template <typename Entry>
    void collect(qint64 tableTag, qint64 sizeTag)
    {
        const auto *table = reinterpret_cast<const Entry *>(m_dynamic.value(tableTag));
        const auto *symbols = reinterpret_cast<const ElfW(Sym) *>(m_dynamic.value(DT_SYMTAB));
        const auto *texts = reinterpret_cast<const char *>(m_dynamic.value(DT_STRTAB));
        const size_t count = m_dynamic.value(sizeTag) / sizeof(Entry);
        for (size_t i = 0; table != nullptr && i < count; ++i) {
            const size_t index = symbolIndex(table[i].r_info);
            if (index != 0) {
                m_names.insert(m_library->l_addr + table[i].r_offset,
                               texts + symbols[index].st_name);
            }
        }
    }

    const link_map *m_library;
    QHash<qint64, ElfW(Addr)> m_dynamic;
    SymbolNames m_names;
};

/**
 * The functions in the slots of a class, as the loaded libraries have them; empty without any.
 *
 * The address sanitizer pads a table with zeros, which count into its size, and would complain
 * about reading them.
 */
__attribute__((no_sanitize("address"))) QStringList compiledSlots(const QString &className)
{
    void *const address = dlsym(RTLD_DEFAULT, vtableSymbol(className).constData());
    Dl_info info = {};
    void *symbol = nullptr;
    void *library = nullptr;
    if (address == nullptr || dladdr1(address, &info, &symbol, RTLD_DL_SYMENT) == 0
        || dladdr1(address, &info, &library, RTLD_DL_LINKMAP) == 0) {
        return QStringList();
    }
    const SymbolNames names = Relocations(static_cast<const link_map *>(library)).names();
    void *const *const words = static_cast<void *const *>(address);
    const size_t count = static_cast<const ElfW(Sym) *>(symbol)->st_size / sizeof(void *);
    // Offset to top and type information come first.
    QStringList result;
    for (size_t i = 2; i < count; ++i) {
        const char *name = names.value(reinterpret_cast<ElfW(Addr)>(words + i));
        if (name == nullptr) {
            result << (words[i] == nullptr ? NullSlot : QStringLiteral("unknown"));
        } else {
            const QString function = demangled(name);
            result << (function == QLatin1String("__cxa_pure_virtual") ? PureSlot : function);
        }
    }
    while (!result.isEmpty() && result.last() == NullSlot) {
        result.removeLast();
    }
    return result;
}

using StringMap = CHashMap<QString, QString>;

const QString StringMapName = QStringLiteral("CHashMap<QString, QString>");

class BehindStringMap : public StringMap
{
public:
    virtual void own() { }
};

/**
 * The functions in the slots of a template class. Each program compiles it for itself, and the
 * loader fills no names into it; but a derived class shows where its slots end, for there its own
 * begin, and a pointer to an operation holds the place of its slot in the table.
 */
QStringList stringMapSlots()
{
    auto operation = &BehindStringMap::own;
    size_t offset = 0;
    static_assert(sizeof(operation) >= sizeof(offset));
    std::memcpy(&offset, &operation, sizeof(offset));
    // The lowest bit only marks it as virtual.
    const int count = static_cast<int>(offset / sizeof(void *));
    const int destructors = std::has_virtual_destructor<StringMap>::value ? 2 : 0;
    QStringList result;
    for (int i = 0; i < count; ++i) {
        result << (i < destructors ? StringMapName + QStringLiteral("::~CHashMap()")
                                   : QStringLiteral("unknown"));
    }
    return result;
}

struct SExpectedClass {
    QStringList slotFunctions;
    // What each slot is called, also while it is pure.
    QStringList signatures;
};

class Table
{
public:
    bool load(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
            return false;
        }
        const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
        for (const QString &line : lines) {
            if (!line.isEmpty() && !line.startsWith(QLatin1Char('#'))) {
                takeLine(line);
            }
        }
        return m_problems.isEmpty();
    }

    QMap<QString, SExpectedClass> classes() const { return m_classes; }
    QStringList plainClasses() const { return m_plainClasses; }
    QString problems() const { return m_problems.join(QLatin1Char('\n')); }

private:
    void takeLine(const QString &line)
    {
        const QString kind = line.section(QLatin1Char(' '), 0, 0);
        const QString rest = line.section(QLatin1Char(' '), 1);
        if (kind == QLatin1String("class")) {
            m_current = rest.section(QStringLiteral(" : "), 0, 0);
            m_classes.insert(m_current, m_classes.value(rest.section(QStringLiteral(" : "), 1)));
        } else if (kind == QLatin1String("plain")) {
            m_plainClasses << rest;
        } else if (kind == QLatin1String("=")) {
            overrideSlot(rest);
        } else {
            addSlot(rest, kind == QLatin1String("+0"));
        }
    }

    void overrideSlot(const QString &signature)
    {
        SExpectedClass &current = m_classes[m_current];
        bool found = false;
        for (int i = 0; i < current.signatures.size(); ++i) {
            const bool isDestructor = signature.startsWith(QLatin1Char('~'))
                && current.signatures.at(i).startsWith(QLatin1Char('~'));
            if (isDestructor || current.signatures.at(i) == signature) {
                current.signatures[i] = signature;
                current.slotFunctions[i] = m_current + QStringLiteral("::") + signature;
                found = true;
            }
        }
        if (!found) {
            m_problems << QStringLiteral("%1 has no slot %2").arg(m_current, signature);
        }
    }

    void addSlot(const QString &signature, bool pure)
    {
        SExpectedClass &current = m_classes[m_current];
        const int count = signature.startsWith(QLatin1Char('~')) ? 2 : 1;
        for (int i = 0; i < count; ++i) {
            current.signatures << signature;
            current.slotFunctions << (pure ? PureSlot
                                           : m_current + QStringLiteral("::") + signature);
        }
    }

    QString m_current;
    QMap<QString, SExpectedClass> m_classes;
    QStringList m_plainClasses;
    QStringList m_problems;
};

} // namespace

/** Compares the compiled tables of virtual operations with tests/data/vtables.txt. */
class tst_vtables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void slotOrder_data();
    void slotOrder();
    void plainClasses();
    void everyPolymorphicClassIsListed();
    void comparisonSeesDifferences();

private:
    Table m_table;
};

void tst_vtables::initTestCase()
{
    // Keeps the linker from dropping the library.
    const CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.logfile() == nullptr);
    QVERIFY2(m_table.load(Places::data("vtables.txt")), qPrintable(m_table.problems()));
    QVERIFY(m_table.classes().size() > 15);
}

void tst_vtables::slotOrder_data()
{
    QTest::addColumn<QString>("className");
    for (const QString &className : m_table.classes().keys()) {
        QTest::newRow(qPrintable(className)) << className;
    }
}

void tst_vtables::slotOrder()
{
    QFETCH(QString, className);
    const QStringList expected = m_table.classes().value(className).slotFunctions;
    QStringList compiled = className == StringMapName ? stringMapSlots() : compiledSlots(className);
    if (expected.contains(PureSlot)) {
        for (int i = 0; i < compiled.size() && compiled.at(i) == NullSlot; ++i) {
            compiled[i] = expected.value(i);
        }
    }
    for (int i = 0; i < qMax(expected.size(), compiled.size()); ++i) {
        QVERIFY2(compiled.value(i) == expected.value(i),
                 qPrintable(QStringLiteral("slot %1 is '%2', expected is '%3'")
                                .arg(i + 1)
                                .arg(compiled.value(i), expected.value(i))));
    }
}

void tst_vtables::plainClasses()
{
    for (const QString &className : m_table.plainClasses()) {
        QVERIFY2(compiledSlots(className).isEmpty(), qPrintable(className));
    }
}

void tst_vtables::everyPolymorphicClassIsListed()
{
    for (const QString &folderName : {QStringLiteral("elements"), QStringLiteral("configfile"),
                                      QStringLiteral("devicefiles"), QStringLiteral("settings")}) {
        const QDir folder(Places::source("src/") + folderName);
        for (const QString &fileName : folder.entryList({QStringLiteral("*C*.h")}, QDir::Files)) {
            const QString className = fileName.section(QLatin1Char('.'), 0, 0);
            const bool hasVTable = !compiledSlots(className).isEmpty();
            QVERIFY2(!hasVTable || m_table.classes().contains(className), qPrintable(className));
        }
    }
}

void tst_vtables::comparisonSeesDifferences()
{
    // Two overloads differ only in their arguments; the comparison must tell them apart.
    const QStringList compiled = compiledSlots(QStringLiteral("CBaseElement"));
    const int byIdentity =
        compiled.indexOf(QStringLiteral("CBaseElement::setHardwareId(CDeviceHardwareId const&)"));
    const int byText =
        compiled.indexOf(QStringLiteral("CBaseElement::setHardwareId(QString const&)"));
    QVERIFY(byIdentity > 0);
    QCOMPARE(byText, byIdentity + 1);
}

REGISTER_APPLESS_TEST(tst_vtables)
#include "tst_vtables.moc"
