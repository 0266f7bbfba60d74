#include "commissioning/items/EntryTexts.h"

#include "commissioning/Texts.h"

using ConfigurationItemsTexts::Texts;
using ConfigurationShape::EEntry;

QString EntryTexts::missing(EEntry entry, const QString &path)
{
    switch (entry) {
    case EEntry::DRIVE:
        return Texts::tr("%1: the drive does not exist").arg(path);
    case EEntry::PARAMETER_FILE:
        return Texts::tr("%1: the parameter file does not exist").arg(path);
    case EEntry::FPGA_FILE:
        return Texts::tr("%1: the FPGA image does not exist").arg(path);
    case EEntry::OPC_UA_FILE:
        return Texts::tr("%1: the OPC UA file does not exist").arg(path);
    case EEntry::PLUGIN:
        return Texts::tr("%1: the plug-in does not exist").arg(path);
    case EEntry::OPTION:
        return Texts::tr("%1: the option does not exist").arg(path);
    case EEntry::FILE:
    case EEntry::NONE:
        break;
    }
    return Texts::tr("%1: the file does not exist").arg(path);
}

QString EntryTexts::present(EEntry entry, const QString &path)
{
    switch (entry) {
    case EEntry::DRIVE:
        return Texts::tr("%1: the drive already exists").arg(path);
    case EEntry::PARAMETER_FILE:
        return Texts::tr("%1: the parameter file already exists").arg(path);
    case EEntry::FPGA_FILE:
        return Texts::tr("%1: the FPGA image already exists").arg(path);
    case EEntry::OPC_UA_FILE:
        return Texts::tr("%1: the OPC UA file already exists").arg(path);
    case EEntry::PLUGIN:
        return Texts::tr("%1: the plug-in already exists").arg(path);
    case EEntry::OPTION:
        return Texts::tr("%1: the option already exists").arg(path);
    case EEntry::FILE:
    case EEntry::NONE:
        break;
    }
    return Texts::tr("%1: the file already exists").arg(path);
}
