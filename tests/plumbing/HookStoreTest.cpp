#include "plumbing/HookStore.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace orvanta {
namespace {

constexpr HookStore::Address kWindow = 0x10A2E;
constexpr std::uint32_t kSize = 5;
constexpr std::uint32_t kPaint = 15;

TEST(HookStore, WhatWasNeverWrittenIsZero) {
    const HookStore store;
    EXPECT_EQ(store.Find(kWindow), nullptr);
    EXPECT_EQ(store.Previous(kWindow), 0u);
    EXPECT_EQ(store.Pairs(kWindow), 0);
    EXPECT_EQ(store.ClientCount(kWindow, kSize), 0);
    EXPECT_EQ(store.Client(kWindow, kSize, 1), 0u);
    EXPECT_EQ(store.Response(kWindow, kSize, 1), 0);
}

TEST(HookStore, KeepsEachValueForItself) {
    HookStore store;
    EXPECT_TRUE(store.SetPrevious(kWindow, 0x7F00));
    EXPECT_TRUE(store.SetPairs(kWindow, 3));
    EXPECT_TRUE(store.SetClientCount(kWindow, kSize, 2));
    EXPECT_TRUE(store.SetClient(kWindow, kSize, 2, 0xBEEF));
    EXPECT_TRUE(store.SetResponse(kWindow, kSize, 2, 10));
    EXPECT_EQ(store.Previous(kWindow), 0x7F00u);
    EXPECT_EQ(store.Pairs(kWindow), 3);
    EXPECT_EQ(store.ClientCount(kWindow, kSize), 2);
    EXPECT_EQ(store.Client(kWindow, kSize, 1), 0u);
    EXPECT_EQ(store.Client(kWindow, kSize, 2), 0xBEEFu);
    EXPECT_EQ(store.Response(kWindow, kSize, 2), 10);
    EXPECT_EQ(store.ClientCount(kWindow, kPaint), 0);
    EXPECT_EQ(store.ClientCount(kWindow + 1, kSize), 0);
}

TEST(HookStore, AnIndexBelowOneOrBehindTheLastIsZero) {
    HookStore store;
    store.SetClient(kWindow, kSize, 1, 0xBEEF);
    EXPECT_EQ(store.Client(kWindow, kSize, 0), 0u);
    EXPECT_EQ(store.Client(kWindow, kSize, -1), 0u);
    EXPECT_EQ(store.Client(kWindow, kSize, 2), 0u);
}

TEST(HookStore, AWindowWhoseLastValueBecomesZeroIsNotKept) {
    HookStore store;
    store.SetPairs(kWindow, 1);
    store.SetClientCount(kWindow, kSize, 1);
    store.SetClient(kWindow, kSize, 1, 0xBEEF);
    store.SetPairs(kWindow, 0);
    store.SetClientCount(kWindow, kSize, 0);
    EXPECT_EQ(store.WindowCount(), 1u);
    store.SetClient(kWindow, kSize, 1, 0);
    EXPECT_EQ(store.WindowCount(), 0u);
}

TEST(HookStore, WritingZeroKeepsNoWindow) {
    HookStore store;
    EXPECT_TRUE(store.SetPrevious(kWindow, 0));
    EXPECT_TRUE(store.SetPairs(kWindow, 0));
    EXPECT_TRUE(store.SetClientCount(kWindow, kSize, 0));
    EXPECT_TRUE(store.SetClient(kWindow, kSize, 1, 0));
    EXPECT_TRUE(store.SetResponse(kWindow, kSize, 1, 0));
    EXPECT_EQ(store.WindowCount(), 0u);
}

TEST(HookStore, DropForgetsTheWholeWindow) {
    HookStore store;
    store.SetPairs(kWindow, 1);
    store.SetClient(kWindow, kSize, 1, 0xBEEF);
    store.SetPairs(kWindow + 4, 1);
    store.Drop(kWindow);
    EXPECT_EQ(store.Client(kWindow, kSize, 1), 0u);
    EXPECT_EQ(store.Pairs(kWindow + 4), 1);
    EXPECT_EQ(store.WindowCount(), 1u);
}

TEST(HookStore, ATracedChangeIsOneLineOfText) {
    HookStore store;
    std::vector<std::u16string> lines;
    store.SetTrace([&lines](std::u16string_view s) { lines.emplace_back(s); });
    store.SetClientCount(kWindow, kSize, 1);
    store.SetClient(kWindow, kSize, 1, 0xBEEF);
    store.SetResponse(kWindow, kSize, 1, 10);
    store.SetPrevious(kWindow, 0x7F00);
    store.SetPairs(kWindow, 1);
    store.SetPrevious(kWindow, 0);
    const std::vector<std::u16string> wanted = {
        u"Changed message count for 10A2E Message 5 to 1",
        u"Changed message class for 10A2E Message 5 Index 1 to BEEF",
        u"Changed message response for 10A2E Message 5 Index 1 to 10",
        u"Changed Window Proc for 10A2E to 7F00",
        u"Changed message count for 10A2E to 1",
        u"Changed Window Proc for 10A2E to 0",
    };
    EXPECT_EQ(lines, wanted);
}

TEST(HookStore, ForgettingWhatIsNotThereIsNoChange) {
    HookStore store;
    int nLines = 0;
    store.SetTrace([&nLines](std::u16string_view) { ++nLines; });
    store.SetClient(kWindow, kSize, 1, 0);
    store.SetPairs(kWindow, 0);
    EXPECT_EQ(nLines, 0);
}

TEST(HookStore, AMessageWithoutClientsCostsOneLookUp) {
    HookStore store;
    store.SetPrevious(kWindow, 0x7F00);
    store.SetClientCount(kWindow, kSize, 1);
    const std::uint64_t nBefore = store.LookUps();
    const HookStore::Window* window = store.Find(kWindow);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->Previous(), 0x7F00u);
    EXPECT_EQ(window->ClientCount(kPaint), 0);
    EXPECT_EQ(store.LookUps(), nBefore + 1);
    EXPECT_EQ(window->ClientCount(kSize), 1);
    EXPECT_EQ(store.LookUps(), nBefore + 2);
    // Numbers that differ in their upper bits alone are not taken for each other.
    for (const std::uint32_t uOther : {0x0405u, 0x8005u, 0xC005u}) {
        EXPECT_EQ(store.Find(kWindow)->ClientCount(uOther), 0);
    }
    EXPECT_EQ(store.LookUps(), nBefore + 5);
}

// The rule in its plainest form: one map of texts to numbers for each window.
class PlainStore {
public:
    std::uintptr_t Read(std::uintptr_t hwnd, const std::string& sKey) const {
        const auto window = m_windows.find(hwnd);
        if (window == m_windows.end()) return 0;
        const auto value = window->second.find(sKey);
        return value == window->second.end() ? 0 : value->second;
    }
    void Write(std::uintptr_t hwnd, const std::string& sKey, std::uintptr_t lValue) {
        m_windows[hwnd][sKey] = lValue;
        if (lValue == 0) m_windows[hwnd].erase(sKey);
        if (m_windows[hwnd].empty()) m_windows.erase(hwnd);
    }
    std::size_t WindowCount() const { return m_windows.size(); }

private:
    std::map<std::uintptr_t, std::map<std::string, std::uintptr_t>> m_windows;
};

TEST(HookStore, AnswersAsAMapOfTextsOnRandomWrites) {
    constexpr std::uint32_t kSeed = 41;
    SCOPED_TRACE(kSeed);
    std::mt19937 random(kSeed);
    HookStore store;
    PlainStore plain;
    // 1029 shares its mark with 5.
    const std::vector<std::uint32_t> messages = {5, 15, 1029};
    for (int nRound = 0; nRound < 20000; ++nRound) {
        const HookStore::Address hwnd = 2 + random() % 3;
        const std::uint32_t uMsg = messages[random() % messages.size()];
        const auto i = static_cast<std::int32_t>(1 + random() % 4);
        const std::uintptr_t lValue = random() % 2 * (random() % 5);
        const auto lSmall = static_cast<std::int32_t>(lValue);
        const std::string sMessage = "#" + std::to_string(uMsg);
        switch (random() % 5) {
        case 0:
            store.SetPrevious(hwnd, lValue);
            plain.Write(hwnd, "", lValue);
            break;
        case 1:
            store.SetPairs(hwnd, lSmall);
            plain.Write(hwnd, "C", lValue);
            break;
        case 2:
            store.SetClientCount(hwnd, uMsg, lSmall);
            plain.Write(hwnd, sMessage + "C", lValue);
            break;
        case 3:
            store.SetClient(hwnd, uMsg, i, lValue);
            plain.Write(hwnd, sMessage + "#" + std::to_string(i), lValue);
            break;
        default:
            store.SetResponse(hwnd, uMsg, i, lSmall);
            plain.Write(hwnd, sMessage + "R" + std::to_string(i), lValue);
            break;
        }
        ASSERT_EQ(store.WindowCount(), plain.WindowCount()) << nRound;
        ASSERT_EQ(store.Previous(hwnd), plain.Read(hwnd, "")) << nRound;
        ASSERT_EQ(store.Pairs(hwnd), static_cast<std::int32_t>(plain.Read(hwnd, "C"))) << nRound;
        for (const std::uint32_t uRead : messages) {
            const std::string sRead = "#" + std::to_string(uRead);
            ASSERT_EQ(store.ClientCount(hwnd, uRead), static_cast<std::int32_t>(plain.Read(hwnd, sRead + "C")));
            for (std::int32_t n = 1; n <= 4; ++n) {
                ASSERT_EQ(store.Client(hwnd, uRead, n), plain.Read(hwnd, sRead + "#" + std::to_string(n)));
                ASSERT_EQ(store.Response(hwnd, uRead, n),
                          static_cast<std::int32_t>(plain.Read(hwnd, sRead + "R" + std::to_string(n))));
            }
        }
    }
}

} // namespace
} // namespace orvanta
