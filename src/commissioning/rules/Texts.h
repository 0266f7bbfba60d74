#pragma once

#include <QCoreApplication>

/** The texts of the check, under the context in which they are translated. */
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CConfigurationCheck)
};
