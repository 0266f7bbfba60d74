#include "imported/CStr.h"

#include <QRegularExpression>

namespace {
const quint32 PartFactor = 1000;
const quint32 HighestMajor = 4293;
} // namespace

quint32 CStr::stringToRevision(const QString &text, bool *ok)
{
    static const QRegularExpression revision(
        QStringLiteral("\\A0*([0-9]{1,4})(?:\\.0*([0-9]{1,3}))?(?:\\.0*([0-9]{1,3}))?\\z"));
    const QRegularExpressionMatch match = revision.match(text);
    const quint32 major = match.capturedRef(1).toUInt();
    const bool isRevision = match.hasMatch() && major <= HighestMajor;
    if (ok != nullptr) {
        *ok = isRevision;
    }
    if (!isRevision) {
        return 0;
    }
    return (major * PartFactor + match.capturedRef(2).toUInt()) * PartFactor
        + match.capturedRef(3).toUInt();
}
