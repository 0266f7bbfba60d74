#include "elements/CParamFileElement.h"

#include "elements/ElementPaths.h"
#include "elements/FieldList.h"
#include "vocabulary/NvrFileNames.h"

#include <QFileInfo>

class CParamFileElementData : public QSharedData
{
public:
    virtual ~CParamFileElementData() = default;

    QString name;
    QString comment;
    NvrnGlobal::EParamFileType type = NvrnGlobal::PARAM_FILE_UNDEFINED;
    qint32 driveId = -1;
    QString devicePath;
    QString projectPath;

    template <typename Self>
    static auto fields(Self &self)
    {
        return std::tie(self.name, self.comment, self.type, self.driveId, self.devicePath,
                        self.projectPath);
    }

    /** Everything but the comment, which does not make it another file. */
    static auto identity(const CParamFileElementData &self)
    {
        return std::tie(self.name, self.type, self.driveId, self.devicePath, self.projectPath);
    }
};

namespace {

QString withExtension(const QString &name, const QString &extension)
{
    return name + QLatin1Char('.') + extension;
}

bool existsInProject(const CFileElement &file)
{
    return QFileInfo::exists(file.projectFilePath());
}

} // namespace

CParamFileElement::CParamFileElement() : d(new CParamFileElementData) { }
CParamFileElement::CParamFileElement(const CParamFileElement &other) = default;
CParamFileElement::~CParamFileElement() = default;
CParamFileElement &CParamFileElement::operator=(const CParamFileElement &other) = default;

QString CParamFileElement::name() const
{
    return d->name;
}

void CParamFileElement::setName(const QString &name)
{
    d->name = name;
}

QString CParamFileElement::comment() const
{
    return d->comment;
}

void CParamFileElement::setComment(const QString &comment)
{
    d->comment = comment;
}

NvrnGlobal::EParamFileType CParamFileElement::type() const
{
    return d->type;
}

void CParamFileElement::setType(NvrnGlobal::EParamFileType type)
{
    d->type = type;
}

int CParamFileElement::driveId() const
{
    return d->driveId;
}

void CParamFileElement::setDriveId(int driveId)
{
    d->driveId = driveId;
}

int CParamFileElement::subDeviceId() const
{
    return driveId();
}

void CParamFileElement::setSubDeviceId(int subDeviceId)
{
    setDriveId(subDeviceId);
}

QString CParamFileElement::devicePath() const
{
    return d->devicePath;
}

void CParamFileElement::setDevicePath(const QString &devicePath)
{
    d->devicePath = ElementPaths::deviceDirectory(devicePath);
}

QString CParamFileElement::projectPath() const
{
    return d->projectPath;
}

void CParamFileElement::setProjectPath(const QString &projectPath)
{
    d->projectPath = ElementPaths::projectDirectory(projectPath);
}

QString CParamFileElement::valueFileName() const
{
    switch (d->type) {
    case NvrnGlobal::PARAM_FILE_KC2_PARAMETERS:
        return withExtension(d->name, QStringLiteral("xml"));
    case NvrnGlobal::PARAM_FILE_KC2_COMPENSATION:
        return d->name;
    default:
        return withExtension(d->name, NvrFileNames::PARAMETER_VALUE_EXTENSION);
    }
}

QString CParamFileElement::defFileName() const
{
    switch (d->type) {
    case NvrnGlobal::PARAM_FILE_KC2_PARAMETERS:
    case NvrnGlobal::PARAM_FILE_KC2_COMPENSATION:
        return QString();
    default:
        return withExtension(d->name, NvrFileNames::PARAMETER_DEFINITION_EXTENSION);
    }
}

CFileElement CParamFileElement::valueFile() const
{
    CFileElement file;
    file.setFileName(valueFileName());
    file.setDevicePath(devicePath());
    file.setProjectPath(projectPath());
    return file;
}

CFileElement CParamFileElement::defFile() const
{
    CFileElement file = valueFile();
    file.setFileName(defFileName());
    return file;
}

bool CParamFileElement::exits() const
{
    return existsInProject(defFile()) && existsInProject(valueFile());
}

bool CParamFileElement::isValid() const
{
    return d->type >= NvrnGlobal::PARAM_FILE_UNDEFINED && !d->name.isEmpty();
}

bool CParamFileElement::isNull() const
{
    return d->type == NvrnGlobal::PARAM_FILE_UNDEFINED && d->name.isEmpty() && d->comment.isEmpty();
}

void CParamFileElement::clear()
{
    *this = CParamFileElement();
}

bool CParamFileElement::operator==(const CParamFileElement &other) const
{
    return FieldList::equalIdentity(d, other.d);
}

bool CParamFileElement::operator!=(const CParamFileElement &other) const
{
    return !(*this == other);
}

QDataStream &operator<<(QDataStream &stream, const CParamFileElement &file)
{
    return FieldList::write(stream, file.d);
}

QDataStream &operator>>(QDataStream &stream, CParamFileElement &file)
{
    return FieldList::read(stream, file.d);
}
