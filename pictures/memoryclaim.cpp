#include "pictures/memoryclaim.h"

qint64 MemoryClaim::s_taken = 0;

MemoryClaim::~MemoryClaim()
{
    s_taken -= m_bytes;
}

bool MemoryClaim::take(qint64 bytes)
{
    if (bytes - m_bytes > left())
        return false;
    s_taken += bytes - m_bytes;
    m_bytes = bytes;
    return true;
}
