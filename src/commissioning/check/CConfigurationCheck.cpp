#include "commissioning/CConfigurationCheck.h"

#include "commissioning/check/ConfigurationRules.h"
#include "commissioning/check/DocumentCheck.h"
#include "vocabulary/NVornXmlTags.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <tuple>

namespace {

/** The texts of this class, under the context in which they are translated. */
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CConfigurationCheck)
};

/** A document that is to be checked: its version is a finding, and no message to the user. */
class CheckedFile : public CDeviceConfigurationFile10
{
public:
    CheckedFile() : CDeviceConfigurationFile10(nullptr) { keepPositions(true); }

    bool handleVersionError(const QString &required, const QString &existing) override
    {
        Q_UNUSED(required)
        m_version = existing;
        return true;
    }

    /** As the document tells it. */
    QString version() const { return m_version; }

    template <typename Source>
    bool read(const Source &source, QString &errorText)
    {
        m_version = requiredFileVersion();
        return open(source, NVornXmlTags::TAG_ROOT_DEVICECONFIG, requiredFileVersion(), errorText);
    }

private:
    QString m_version;
};

bool isBefore(const SConfigurationFinding &left, const SConfigurationFinding &right)
{
    const auto key = [](const SConfigurationFinding &finding) {
        return std::tie(finding.position.line, finding.position.column, finding.rule, finding.item,
                        finding.found, finding.message);
    };
    return key(left) < key(right);
}

} // namespace

class CConfigurationCheckPrivate
{
public:
    template <typename Source>
    bool check(const Source &source)
    {
        findings.clear();
        errorText.clear();
        CheckedFile file;
        if (!file.read(source, errorText)) {
            return false;
        }
        std::unique_ptr<ProjectFiles> project;
        if (!projectDirectory.isEmpty()) {
            project = std::make_unique<ProjectFiles>(projectDirectory);
        }
        findings = DocumentCheck(file, file.version(), project.get()).run();
        std::stable_sort(findings.begin(), findings.end(), isBefore);
        return true;
    }

    QString projectDirectory;
    QList<SConfigurationFinding> findings;
    QString errorText;
};

CConfigurationCheck::CConfigurationCheck() : d(std::make_unique<CConfigurationCheckPrivate>()) { }

CConfigurationCheck::~CConfigurationCheck() = default;

QList<CConfigurationCheck::SRule> CConfigurationCheck::rules()
{
    QList<SRule> result;
    for (int i = 0; i < ConfigurationRules::RULE_COUNT; ++i) {
        const auto rule = static_cast<ConfigurationRules::ERule>(i);
        result.append({ConfigurationRules::id(rule), ConfigurationRules::severity(rule),
                       ConfigurationRules::description(rule), ConfigurationRules::hint(rule)});
    }
    return result;
}

bool CConfigurationCheck::setProjectDirectory(const QString &directory)
{
    d->errorText.clear();
    const QFileInfo info(directory);
    if (!directory.isEmpty() && !(info.isDir() && info.isReadable() && info.isExecutable())) {
        const QString shown = QDir::toNativeSeparators(directory);
        d->errorText = info.isDir() ? Texts::tr("%1: The directory cannot be read.").arg(shown)
                                    : Texts::tr("%1: The directory does not exist.").arg(shown);
        return false;
    }
    d->projectDirectory = directory;
    return true;
}

QString CConfigurationCheck::projectDirectory() const
{
    return d->projectDirectory;
}

bool CConfigurationCheck::open(const QString &path)
{
    return d->check(path);
}

bool CConfigurationCheck::load(const QByteArray &buffer)
{
    return d->check(buffer);
}

QList<SConfigurationFinding> CConfigurationCheck::findings() const
{
    return d->findings;
}

QString CConfigurationCheck::errorText() const
{
    return d->errorText;
}
