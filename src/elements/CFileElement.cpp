#include "elements/CFileElement.h"

#include "elements/ElementPaths.h"
#include "elements/FieldList.h"

#include <QDir>

class CFileElementData : public QSharedData
{
public:
    virtual ~CFileElementData() = default;

    QString fileName;
    QString devicePath;
    QString projectPath;
    QString comment;

    template <typename Self>
    static auto fields(Self &self)
    {
        return std::tie(self.fileName, self.devicePath, self.projectPath, self.comment);
    }
};

CFileElement::CFileElement() : d(new CFileElementData) { }
CFileElement::CFileElement(const CFileElement &other) = default;
CFileElement::~CFileElement() = default;
CFileElement &CFileElement::operator=(const CFileElement &other) = default;

QString CFileElement::fileName() const
{
    return d->fileName;
}

void CFileElement::setFileName(const QString &fileName)
{
    d->fileName = fileName;
}

CFTPath::EEntryPoint CFileElement::deviceEntryPoint() const
{
    return CFTPath::fromPath(devicePath());
}

QString CFileElement::devicePath() const
{
    return d->devicePath;
}

void CFileElement::setDevicePath(const QString &devicePath)
{
    d->devicePath = ElementPaths::deviceDirectory(devicePath);
}

QString CFileElement::projectPath() const
{
    return d->projectPath;
}

void CFileElement::setProjectPath(const QString &projectPath)
{
    d->projectPath = ElementPaths::projectDirectory(projectPath);
}

QString CFileElement::projectFilePath() const
{
    const QString name = fileName();
    return name.isEmpty() ? QString() : projectPath() + name;
}

QString CFileElement::deviceFilePath() const
{
    return devicePath() + fileName();
}

QString CFileElement::relativeDeviceFilePath(CFTPath::EEntryPoint entryPoint) const
{
    const QString root = CFTPath::toPath(entryPoint);
    if (root.isEmpty()) {
        return devicePath() + fileName();
    }
    return QDir(root).relativeFilePath(deviceFilePath());
}

QString CFileElement::comment() const
{
    return d->comment;
}

void CFileElement::setComment(const QString &comment)
{
    d->comment = comment;
}

bool CFileElement::operator==(const CFileElement &other) const
{
    return FieldList::equal(d, other.d);
}

bool CFileElement::operator!=(const CFileElement &other) const
{
    return !(*this == other);
}

bool CFileElement::isNull() const
{
    return FieldList::isDefault(d);
}

void CFileElement::clear()
{
    *this = CFileElement();
}

QDataStream &operator<<(QDataStream &stream, const CFileElement &file)
{
    return FieldList::write(stream, file.d);
}

QDataStream &operator>>(QDataStream &stream, CFileElement &file)
{
    return FieldList::read(stream, file.d);
}
