#include "commissioning/items/EntryTexts.h"

#include "commissioning/Texts.h"

using ConfigurationItemsTexts::Texts;
using ConfigurationShape::EEntry;

QString EntryTexts::missing(EEntry entry, const QString &path)
{
    switch (entry) {
    case EEntry::DRIVE:
        return Texts::tr("%1: there is no such drive").arg(path);
    case EEntry::PARAMETER_FILE:
        return Texts::tr("%1: there is no such parameter file").arg(path);
    case EEntry::FPGA_FILE:
        return Texts::tr("%1: there is no such FPGA image").arg(path);
    case EEntry::OPC_UA_FILE:
        return Texts::tr("%1: there is no such OPC UA file").arg(path);
    case EEntry::PLUGIN:
        return Texts::tr("%1: there is no such plug-in").arg(path);
    case EEntry::OPTION:
        return Texts::tr("%1: there is no such option").arg(path);
    case EEntry::FILE:
    case EEntry::NONE:
        break;
    }
    return Texts::tr("%1: there is no such file").arg(path);
}

QString EntryTexts::present(EEntry entry, const QString &path)
{
    switch (entry) {
    case EEntry::DRIVE:
        return Texts::tr("%1: there is such a drive already").arg(path);
    case EEntry::PARAMETER_FILE:
        return Texts::tr("%1: there is such a parameter file already").arg(path);
    case EEntry::FPGA_FILE:
        return Texts::tr("%1: there is such an FPGA image already").arg(path);
    case EEntry::OPC_UA_FILE:
        return Texts::tr("%1: there is such an OPC UA file already").arg(path);
    case EEntry::PLUGIN:
        return Texts::tr("%1: there is such a plug-in already").arg(path);
    case EEntry::OPTION:
        return Texts::tr("%1: there is such an option already").arg(path);
    case EEntry::FILE:
    case EEntry::NONE:
        break;
    }
    return Texts::tr("%1: there is such a file already").arg(path);
}
