#pragma once

#include "commissioning/CConfigurationPatch.h"
#include "commissioning/VrnCommissioningExport.h"

/**
 * What differs between two configurations, whatever their documents look like.
 *
 * Drives are the same when their numbers are; files, parameter files, FPGA images and plug-ins when
 * their names are; start options when their words are. Where several entries of a list have one
 * key, those are compared between which the least differs. The order of entries and elements, white
 * space, comments and attributes of the document have no meaning; which FPGA image comes first, and
 * is thus the active one, has one. A missing item equals an empty one, and the same holds for
 * lists, single files and the device.
 *
 * Compared is what CConfigurationItems knows. The meta data of the documents, and elements and
 * attributes that the library does not know, are outside the comparison.
 */
class VRNCOMMISSIONING_EXPORT CConfigurationComparison
{
public:
    /**
     * The changes that make a configuration that compares equal to @p after out of @p before; none
     * when they are equal. In the order of CConfigurationItems' paths.
     */
    static CConfigurationPatch compare(const CDeviceConfigurationFile10 &before,
                                       const CDeviceConfigurationFile10 &after);
    /** The same, for programs that were compiled when there was no other. */
    static CConfigurationPatch compare(CDeviceConfigurationFile10 &before,
                                       CDeviceConfigurationFile10 &after);
};
