#include "files/FindHandle.h"

#include "plumbing/LongPath.h"
#include "plumbing/WideText.h"

#include <cwchar>
#include <iterator>

namespace orvanta {

FindHandle::FindHandle(const std::u16string& sPattern)
    : m_hFind(FindFirstFileW(WideOf(LongPathPrefix(sPattern)), &m_record)) {}

FindHandle::~FindHandle() {
    if (m_hFind != INVALID_HANDLE_VALUE) FindClose(m_hFind);
}

bool FindHandle::Next() {
    if (m_hFind == INVALID_HANDLE_VALUE) return false;
    if (m_bFirst) {
        m_bFirst = false;
        return true;
    }
    return FindNextFileW(m_hFind, &m_record) != 0;
}

std::u16string FindHandle::Name() const {
    return TextOfWide(m_record.cFileName, wcsnlen(m_record.cFileName, std::size(m_record.cFileName)));
}

} // namespace orvanta
