#pragma once

#include <windows.h>

#include <string>

namespace orvanta {

// A find operation of the platform on one pattern, closed on destruction. Next goes to the first record too:
//
//   for (FindHandle find(sPattern); find.Next();) use(find.Record());
class FindHandle {
public:
    explicit FindHandle(const std::u16string& sPattern);
    ~FindHandle();
    FindHandle(const FindHandle&) = delete;
    FindHandle& operator=(const FindHandle&) = delete;

    bool Next(); // false behind the last record, at once when nothing matches

    const WIN32_FIND_DATAW& Record() const { return m_record; }
    std::u16string Name() const;

private:
    WIN32_FIND_DATAW m_record;
    HANDLE m_hFind;
    bool m_bFirst = true;
};

} // namespace orvanta
