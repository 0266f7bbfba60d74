#pragma once

#include <QCoreApplication>

/** The texts of the tool, all under one context. */
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(vrndevice)
};
