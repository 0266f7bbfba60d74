#pragma once

#include "elements/CSubDeviceKD3Element.h"

/**
 * A KD3 sub-device while it is being edited. The object itself is the working copy, with every
 * accessor of CSubDeviceKD3Element; beside it stands the sub-device as it was, until the changes
 * are applied or reverted.
 */
class VRNDEVICECORE_EXPORT CSubDeviceKD3ElementEdit : public CSubDeviceKD3Element
{
public:
    /** Edits a null sub-device. */
    CSubDeviceKD3ElementEdit();
    /** Edits a copy of @p original, which itself stays as it is. */
    explicit CSubDeviceKD3ElementEdit(const CSubDeviceKD3Element &original);
    CSubDeviceKD3ElementEdit(const CSubDeviceKD3ElementEdit &other);
    ~CSubDeviceKD3ElementEdit() override;

    /** The sub-device without the changes since the last apply(). */
    CSubDeviceKD3Element original() const;

    /** Whether the working copy differs from the original. */
    bool isChanged() const;

    /** Makes the working copy the original and returns it, to be stored where it came from. */
    CSubDeviceKD3Element apply();
    /** Makes the original the working copy. */
    void revert();

    CSubDeviceKD3ElementEdit &operator=(const CSubDeviceKD3ElementEdit &other);

private:
    CSubDeviceKD3Element m_original;
};
