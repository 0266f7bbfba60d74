#pragma once

#include "elements/CSubDeviceKD2Element.h"

/**
 * A KD2 sub-device while it is being edited. The object itself is the working copy, with every
 * accessor of CSubDeviceKD2Element; beside it stands the sub-device as it was, until the changes
 * are applied or reverted.
 */
class VRNDEVICECORE_EXPORT CSubDeviceKD2ElementEdit : public CSubDeviceKD2Element
{
public:
    /** Edits a null sub-device. */
    CSubDeviceKD2ElementEdit();
    /** Edits a copy of @p original, which itself stays as it is. */
    explicit CSubDeviceKD2ElementEdit(const CSubDeviceKD2Element &original);
    CSubDeviceKD2ElementEdit(const CSubDeviceKD2ElementEdit &other);
    ~CSubDeviceKD2ElementEdit() override;

    /** The sub-device without the changes since the last apply(). */
    CSubDeviceKD2Element original() const;

    /** Whether the working copy differs from the original. */
    bool isChanged() const;

    /** Makes the working copy the original and returns it, to be stored where it came from. */
    CSubDeviceKD2Element apply();
    /** Makes the original the working copy. */
    void revert();

    CSubDeviceKD2ElementEdit &operator=(const CSubDeviceKD2ElementEdit &other);

private:
    CSubDeviceKD2Element m_original;
};
