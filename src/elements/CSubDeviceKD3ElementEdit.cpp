#include "elements/CSubDeviceKD3ElementEdit.h"

CSubDeviceKD3ElementEdit::CSubDeviceKD3ElementEdit() = default;
CSubDeviceKD3ElementEdit::CSubDeviceKD3ElementEdit(const CSubDeviceKD3ElementEdit &other) = default;
CSubDeviceKD3ElementEdit::~CSubDeviceKD3ElementEdit() = default;
CSubDeviceKD3ElementEdit &
CSubDeviceKD3ElementEdit::operator=(const CSubDeviceKD3ElementEdit &other) = default;

CSubDeviceKD3ElementEdit::CSubDeviceKD3ElementEdit(const CSubDeviceKD3Element &original)
    : CSubDeviceKD3Element(original), m_original(original)
{
}

CSubDeviceKD3Element CSubDeviceKD3ElementEdit::original() const
{
    return m_original;
}

bool CSubDeviceKD3ElementEdit::isChanged() const
{
    return *this != m_original;
}

CSubDeviceKD3Element CSubDeviceKD3ElementEdit::apply()
{
    m_original = *this;
    return m_original;
}

void CSubDeviceKD3ElementEdit::revert()
{
    CSubDeviceKD3Element::operator=(m_original);
}
