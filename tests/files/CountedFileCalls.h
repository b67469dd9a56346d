#pragma once

#include "files/FileCalls.h"

#include <string>
#include <vector>

namespace orvanta::testing {

// Puts itself between clsUniFile and the platform for its lifetime: notes each call and can make calls fail. One at a
// time.
class CountedFileCalls {
public:
    CountedFileCalls();
    ~CountedFileCalls();
    CountedFileCalls(const CountedFileCalls&) = delete;
    CountedFileCalls& operator=(const CountedFileCalls&) = delete;

    // The calls in their order, as "read 16384", "write 3", "seek 10 from 0", "size", "cut", "flush", "close". A
    // SetFilePointer that only asks for the position is "where".
    std::vector<std::string> calls;
    // The byte counts asked for, of ReadFile and of WriteFile.
    std::vector<DWORD> reads;
    std::vector<DWORD> writes;
    // The arguments of the last CreateFileW.
    struct Open {
        std::u16string sPath;
        DWORD iAccess, iShareMode, iCreationDisposition, iAttributes;
        bool bSecurityOrTemplate;
    };
    std::vector<Open> opens;

    void Forget();

    // Reads, writes and flushes answer with this platform error while it is not 0.
    DWORD lReadError = 0;
    DWORD lWriteError = 0;
    DWORD lFlushError = 0;
    // How many bytes a call transfers at most, without an error.
    DWORD lReadLimit = 0xFFFFFFFF;
    DWORD lWriteLimit = 0xFFFFFFFF;

private:
    FileCalls m_saved;
};

} // namespace orvanta::testing
