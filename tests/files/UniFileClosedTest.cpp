// Operations of clsUniFile on an object without a file: only the opens look whether one is there.
#include "files/FileCalls.h"
#include "tests/files/UniFileFixture.h"

namespace orvanta {
namespace {

std::vector<HANDLE> g_handles; // of the calls that a transfer, a size or a position made

BOOL WINAPI KeepReadHandle(HANDLE file, LPVOID, DWORD, LPDWORD, LPOVERLAPPED) {
    g_handles.push_back(file);
    return FALSE;
}
BOOL WINAPI KeepWriteHandle(HANDLE file, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED) {
    g_handles.push_back(file);
    return FALSE;
}
DWORD WINAPI KeepSeekHandle(HANDLE file, LONG, PLONG, DWORD) {
    g_handles.push_back(file);
    return INVALID_SET_FILE_POINTER;
}
DWORD WINAPI KeepSizeHandle(HANDLE file, LPDWORD) {
    g_handles.push_back(file);
    return INVALID_FILE_SIZE;
}

class UniFileClosed : public testing::UniFileFixture {
protected:
    UniFileClosed() {
        EXPECT_TRUE(file.OpenFileRead(PatternFile(10), true)); // a handle that could be kept by mistake
        file.CloseFile();
        g_handles.clear();
        g_fileCalls.ReadFile = &KeepReadHandle;
        g_fileCalls.WriteFile = &KeepWriteHandle;
        g_fileCalls.SetFilePointer = &KeepSeekHandle;
        g_fileCalls.GetFileSize = &KeepSizeHandle;
    }

    // The calls so far came, this many of them, and all with handle 0.
    static void ExpectHandlesOfZero(std::size_t nCalls) { EXPECT_EQ(g_handles, std::vector<HANDLE>(nCalls, nullptr)); }

    clsUniFile file;
};

TEST_F(UniFileClosed, LengthAndPositionGoToThePlatformWithHandleZero) {
    EXPECT_EQ(file.LOF(), 0xFFFFFFFF);
    ExpectHandlesOfZero(1);
    file.SetFilePos(5, FILE_BEGIN);
    ExpectHandlesOfZero(2);
}

TEST_F(UniFileClosed, DirectTransfersGoToThePlatformWithHandleZeroAndFail) {
    file.UseCache(false);
    ExpectHandlesOfZero(0);
    std::uint8_t b = 77;
    EXPECT_FALSE(file.ReadByte(b));
    EXPECT_EQ(b, 77);
    ExpectHandlesOfZero(1);
    EXPECT_FALSE(file.WriteByte(1));
    ExpectHandlesOfZero(2);
}

TEST_F(UniFileClosed, BlockAboveTheCacheIsADirectTransferToo) {
    std::vector<std::uint8_t> aBlock(16385);
    EXPECT_FALSE(file.ReadBytes(aBlock));
    ExpectHandlesOfZero(1);
    EXPECT_FALSE(file.WriteBytes(aBlock));
    ExpectHandlesOfZero(2);
}

} // namespace
} // namespace orvanta
