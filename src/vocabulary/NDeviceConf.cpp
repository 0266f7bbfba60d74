#include "vocabulary/NDeviceConf.h"

namespace {

/**
 * An expression that is compiled when it is first used: with its pattern given to the constructor
 * each program that loads the library would pay for all of them.
 */
QRegExp uncompiled(const QString &pattern)
{
    QRegExp expression;
    expression.setPattern(pattern);
    return expression;
}

} // namespace

namespace NDeviceConf {

const QString FACTORY_CONFIGURATION_NAME = QStringLiteral("setup");

const QString FACTORY_CONFIGURATION_PATTERN = QStringLiteral(".*(setup){1,}.*");
const QString FAILSAFE_CONFIGURATION_PATTERN = QStringLiteral(".*(failsafe){1,}.*");
const QString MOUNTERROR_CONFIGURATION_PATTERN = QStringLiteral(".*(mount error){1,}.*");
const QString NAME_CHECK_PATTERN = QStringLiteral(".*(setup|failsafe|mount error){1,}.*");
const QString NAME_INPUT_PATTERN =
    QStringLiteral(R"(([0-9a-zA-Z_\-\+]+)([\(][0-9]+[\)])?(\t\r|$))");

const QRegExp FACTORY_CONFIGURATION_REGEXP = uncompiled(FACTORY_CONFIGURATION_PATTERN);
const QRegExp FAILSAFE_CONFIGURATION_REGEXP = uncompiled(FAILSAFE_CONFIGURATION_PATTERN);
const QRegExp MOUNTERROR_CONFIGURATION_REGEXP = uncompiled(MOUNTERROR_CONFIGURATION_PATTERN);
const QRegExp NAME_CHECK_REGEXP = uncompiled(NAME_CHECK_PATTERN);

const QString PLUGIN_NAME_ETHERCAT_MASTER = QStringLiteral("CECatMaster");

} // namespace NDeviceConf
