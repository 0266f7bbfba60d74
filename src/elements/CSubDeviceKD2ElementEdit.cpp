#include "elements/CSubDeviceKD2ElementEdit.h"

CSubDeviceKD2ElementEdit::CSubDeviceKD2ElementEdit() = default;
CSubDeviceKD2ElementEdit::CSubDeviceKD2ElementEdit(const CSubDeviceKD2ElementEdit &other) = default;
CSubDeviceKD2ElementEdit::~CSubDeviceKD2ElementEdit() = default;
CSubDeviceKD2ElementEdit &
CSubDeviceKD2ElementEdit::operator=(const CSubDeviceKD2ElementEdit &other) = default;

CSubDeviceKD2ElementEdit::CSubDeviceKD2ElementEdit(const CSubDeviceKD2Element &original)
    : CSubDeviceKD2Element(original), m_original(original)
{
}

CSubDeviceKD2Element CSubDeviceKD2ElementEdit::original() const
{
    return m_original;
}

bool CSubDeviceKD2ElementEdit::isChanged() const
{
    return *this != m_original;
}

CSubDeviceKD2Element CSubDeviceKD2ElementEdit::apply()
{
    m_original = *this;
    return m_original;
}

void CSubDeviceKD2ElementEdit::revert()
{
    CSubDeviceKD2Element::operator=(m_original);
}
