// A tree of thousands of levels, walked on a small stack: its depth is the business of the heap.
#include "files/clsSearchFiles.h"
#include "files/modUniFileUtils.h"
#include "tests/support/PatchedImport.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cwchar>
#include <functional>

namespace orvanta {
namespace {

using testing::PatchedImport;

constexpr std::size_t kLongestPattern = 7000;
constexpr SIZE_T kSmallStack = 1024 * 1024;

int g_nOpened = 0;
int g_nClosed = 0;
int g_nRemoved = 0;

// Every folder holds one folder more, until the path is full.
HANDLE WINAPI FindOneFolder(LPCWSTR pattern, WIN32_FIND_DATAW* record) {
    if (std::wcslen(pattern) > kLongestPattern) return INVALID_HANDLE_VALUE;
    *record = {};
    record->dwFileAttributes = FILE_ATTRIBUTE_DIRECTORY;
    record->cFileName[0] = L'd';
    ++g_nOpened;
    return reinterpret_cast<HANDLE>(std::intptr_t{0x7ff0});
}
BOOL WINAPI NoFurther(HANDLE, WIN32_FIND_DATAW*) {
    return FALSE;
}
BOOL WINAPI CountClose(HANDLE) {
    return ++g_nClosed;
}
BOOL WINAPI CountRemoved(LPCWSTR) {
    return ++g_nRemoved;
}

DWORD WINAPI RunWork(void* work) {
    (*static_cast<const std::function<void()>*>(work))();
    return 0;
}

void OnASmallStack(std::function<void()> work) {
    const HANDLE hThread =
        CreateThread(nullptr, kSmallStack, RunWork, &work, STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
    ASSERT_NE(hThread, nullptr);
    WaitForSingleObject(hThread, INFINITE);
    CloseHandle(hThread);
}

class FolderDepth : public ::testing::Test {
protected:
    FolderDepth() { g_nOpened = g_nClosed = g_nRemoved = 0; }

    PatchedImport<decltype(FindFirstFileW)> first{"FindFirstFileW", FindOneFolder};
    PatchedImport<decltype(FindNextFileW)> next{"FindNextFileW", NoFurther};
    PatchedImport<decltype(FindClose)> close{"FindClose", CountClose};
    PatchedImport<decltype(RemoveDirectoryW)> remove{"RemoveDirectoryW", CountRemoved};
};

// "\\?\C:\*.*" has 10 characters and each level 2 more: 3,496 patterns of at most 7,000.
TEST_F(FolderDepth, IsSearchedToTheEnd) {
    OnASmallStack(
        [] { EXPECT_TRUE(clsSearchFiles().SearchInPath(u"C:", kSearchFiles, true, false, false, -1, false).Empty()); });
    EXPECT_EQ(g_nOpened, 3496);
    EXPECT_EQ(g_nClosed, 3496);
}

TEST_F(FolderDepth, IsRemovedToTheEnd) {
    OnASmallStack([] { EXPECT_TRUE(ufu_RmDirRic(u"C:")); });
    EXPECT_EQ(g_nRemoved, 3496 + 1) << "the folder in each of those that can be listed, and the base";
}

} // namespace
} // namespace orvanta
