#include "wizard/ProgramResources.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {
namespace {

HMODULE Program() {
    return GetModuleHandleW(nullptr);
}

// A bitmap among the program's resources, as its pixels.
struct LoadedBitmap {
    LONG lWidth = 0, lHeight = 0;
    std::vector<COLORREF> pixels;

    explicit LoadedBitmap(int iResource) {
        HANDLE bitmap = LoadImageW(Program(), MAKEINTRESOURCEW(iResource), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
        BITMAP info{};
        if (!bitmap || !GetObjectW(bitmap, sizeof info, &info)) return;
        lWidth = info.bmWidth;
        lHeight = info.bmHeight;
        HDC dc = CreateCompatibleDC(nullptr);
        HGDIOBJ previous = SelectObject(dc, bitmap);
        for (int y = 0; y < lHeight; ++y) {
            for (int x = 0; x < lWidth; ++x)
                pixels.push_back(GetPixel(dc, x, y));
        }
        SelectObject(dc, previous);
        DeleteDC(dc);
        DeleteObject(bitmap);
    }

    // How many pixels differ from the first one, which the button takes as transparent.
    std::size_t Drawn() const {
        std::size_t nDrawn = 0;
        for (const COLORREF pixel : pixels)
            if (pixel != pixels.front()) ++nDrawn;
        return nDrawn;
    }
};

std::string_view ResourceBytes(LPCWSTR name, LPCWSTR type) {
    HRSRC found = FindResourceW(Program(), name, type);
    if (!found) return {};
    return {static_cast<const char*>(LockResource(LoadResource(Program(), found))), SizeofResource(Program(), found)};
}

std::string_view Manifest() {
    return ResourceBytes(MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(24));
}
bool ManifestHas(std::string_view s) {
    return Manifest().find(s) != std::string_view::npos;
}

std::wstring VersionText(const wchar_t* name) {
    std::string block(ResourceBytes(MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(16)));
    const std::wstring path = std::wstring(L"\\StringFileInfo\\040904B0\\") + name;
    void* value = nullptr;
    UINT nLength = 0;
    if (!VerQueryValueW(block.data(), path.c_str(), &value, &nLength)) return L"";
    return static_cast<const wchar_t*>(value);
}

TEST(ProgramResourcesTest, CloseBitmapIsTwelveByTwelve) {
    const LoadedBitmap bitmap(ORVANTA_BITMAP_CLOSE);
    EXPECT_EQ(bitmap.lWidth, 12);
    EXPECT_EQ(bitmap.lHeight, 12);
}

TEST(ProgramResourcesTest, BrowseBitmapIsSixteenByFourteen) {
    const LoadedBitmap bitmap(ORVANTA_BITMAP_BROWSE);
    EXPECT_EQ(bitmap.lWidth, 16);
    EXPECT_EQ(bitmap.lHeight, 14);
}

TEST(ProgramResourcesTest, FirstPixelOfBothBitmapsIsATransparentColorThatTheDrawingDoesNotUse) {
    EXPECT_EQ(LoadedBitmap(ORVANTA_BITMAP_CLOSE).Drawn(), 52u);
    EXPECT_EQ(LoadedBitmap(ORVANTA_BITMAP_BROWSE).Drawn(), 148u);
    EXPECT_EQ(LoadedBitmap(ORVANTA_BITMAP_CLOSE).pixels.front(), RGB(255, 0, 255));
    EXPECT_EQ(LoadedBitmap(ORVANTA_BITMAP_BROWSE).pixels.front(), RGB(255, 0, 255));
}

TEST(ProgramResourcesTest, IconLoadsInEverySizeOfScaledScreens) {
    for (const int iSize : {16, 20, 24, 32, 48}) {
        auto* icon = static_cast<HICON>(
            LoadImageW(Program(), MAKEINTRESOURCEW(ORVANTA_ICON_PROGRAM), IMAGE_ICON, iSize, iSize, 0));
        ASSERT_NE(icon, nullptr) << iSize;
        ICONINFO info{};
        BITMAP bitmap{};
        GetIconInfo(icon, &info);
        GetObjectW(info.hbmColor, sizeof bitmap, &bitmap);
        EXPECT_EQ(bitmap.bmWidth, iSize);
        DeleteObject(info.hbmColor);
        DeleteObject(info.hbmMask);
        DestroyIcon(icon);
    }
}

TEST(ProgramResourcesTest, IconHasAPictureOfItsOwnForEachSize) {
    const std::string_view group = ResourceBytes(MAKEINTRESOURCEW(ORVANTA_ICON_PROGRAM), MAKEINTRESOURCEW(14));
    ASSERT_GE(group.size(), 6u + 5 * 14);
    std::set<int> sizes;
    for (std::size_t n = 0; n < static_cast<unsigned char>(group[4]); ++n)
        sizes.insert(static_cast<unsigned char>(group[6 + n * 14]));
    EXPECT_EQ(sizes, (std::set<int>{16, 20, 24, 32, 48}));
}

TEST(ProgramResourcesTest, VersionInformationNamesTheProgram) {
    EXPECT_EQ(VersionText(L"ProductName"), L"Vbp Migrator");
    EXPECT_EQ(VersionText(L"FileDescription"), L"Vbp Migrator - Upgrader");
    EXPECT_EQ(VersionText(L"OriginalFilename"), L"VbpMigrator.exe");
    EXPECT_EQ(VersionText(L"FileVersion"), L"1.0.0.0");
    EXPECT_EQ(VersionText(L"ProductVersion"), L"1.0.0.0");
}

TEST(ProgramResourcesTest, ManifestRunsTheProgramAsItsCaller) {
    EXPECT_TRUE(ManifestHas(R"(<requestedExecutionLevel level="asInvoker" uiAccess="false"/>)"));
}

TEST(ProgramResourcesTest, ManifestTakesScalingPerMonitor) {
    EXPECT_TRUE(ManifestHas(">PerMonitorV2, PerMonitor</dpiAwareness>"));
    EXPECT_TRUE(ManifestHas(">true/pm</dpiAware>"));
}

TEST(ProgramResourcesTest, ManifestTakesLongPaths) {
    EXPECT_TRUE(ManifestHas(">true</longPathAware>"));
}

TEST(ProgramResourcesTest, ManifestLeavesTheCommonControlsAtTheirPlainLook) {
    ASSERT_FALSE(Manifest().empty());
    EXPECT_FALSE(ManifestHas("Microsoft.Windows.Common-Controls"));
}

TEST(ProgramResourcesTest, AnsiCodePageStaysTheSystems) {
    ASSERT_FALSE(Manifest().empty());
    EXPECT_FALSE(ManifestHas("activeCodePage"));
    DWORD lSystem = 0;
    GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                   reinterpret_cast<LPWSTR>(&lSystem), sizeof lSystem / sizeof(wchar_t));
    EXPECT_EQ(GetACP(), lSystem);
}

} // namespace
} // namespace orvanta
