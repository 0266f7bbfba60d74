#include "vocabulary/NDeviceConf.h"

namespace NDeviceConf {

const QString FACTORY_CONFIGURATION_NAME = QStringLiteral("setup");

const QString FACTORY_CONFIGURATION_PATTERN = QStringLiteral(".*(setup){1,}.*");
const QString FAILSAFE_CONFIGURATION_PATTERN = QStringLiteral(".*(failsafe){1,}.*");
const QString MOUNTERROR_CONFIGURATION_PATTERN = QStringLiteral(".*(mount error){1,}.*");
const QString NAME_CHECK_PATTERN = QStringLiteral(".*(setup|failsafe|mount error){1,}.*");
const QString NAME_INPUT_PATTERN =
    QStringLiteral(R"(([0-9a-zA-Z_\-\+]+)([\(][0-9]+[\)])?(\t\r|$))");

const QRegExp FACTORY_CONFIGURATION_REGEXP(FACTORY_CONFIGURATION_PATTERN);
const QRegExp FAILSAFE_CONFIGURATION_REGEXP(FAILSAFE_CONFIGURATION_PATTERN);
const QRegExp MOUNTERROR_CONFIGURATION_REGEXP(MOUNTERROR_CONFIGURATION_PATTERN);
const QRegExp NAME_CHECK_REGEXP(NAME_CHECK_PATTERN);

const QString PLUGIN_NAME_ETHERCAT_MASTER = QStringLiteral("CECatMaster");

} // namespace NDeviceConf
