// Every allocation of this test program is counted, and a large one can be refused.
#include "base/Failure.h"
#include "files/WholeFiles.h"
#include "tests/files/UniFileFixture.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace {

std::size_t g_nAllocations = 0;
std::size_t g_nLargest = std::numeric_limits<std::size_t>::max(); // that is granted

} // namespace

// Not inlined: the compiler would take the inlined half of a pair for one of another kind.
[[gnu::noinline]] void* operator new(std::size_t n) {
    ++g_nAllocations;
    if (n > g_nLargest) throw std::bad_alloc();
    if (void* p = std::malloc(n ? n : 1)) return p;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* p) noexcept {
    std::free(p);
}
[[gnu::noinline]] void operator delete(void* p, std::size_t) noexcept {
    std::free(p);
}

namespace orvanta {
namespace {

TEST(UniFileAllocation, ReadsAndWritesAllocateNothing) {
    const testing::TempFolder folder;
    const std::u16string sPath = folder.Write(u"a.bin", testing::Pattern(100000));
    std::vector<std::uint8_t> aBlock(20000);
    clsUniFile file;
    ASSERT_TRUE(file.OpenFileGeneric(sPath, testing::kReadWrite, OPEN_EXISTING, 0, FILE_ATTRIBUTE_NORMAL));
    const std::size_t nBefore = g_nAllocations;
    bool bAll = true;
    for (const bool bCache : {true, false}) {
        file.UseCache(bCache);
        file.SetFilePos(0, 0);
        std::uint8_t b = 0;
        std::int32_t l = 0;
        std::int16_t i = 0;
        bool bFlag = false;
        for (int n = 0; n < 20000; ++n)
            bAll &= file.ReadByte(b);
        bAll &= file.ReadLong(l) && file.ReadInt(i) && file.ReadBool(bFlag);
        bAll &= file.ReadBytes(aBlock) && file.ReadAny(aBlock.data(), 100);
        file.SetFilePos(0, 0);
        for (int n = 0; n < 20000; ++n)
            bAll &= file.WriteByte(b);
        bAll &= file.WriteLong(l) && file.WriteInt(i) && file.WriteBool(bFlag) && file.WriteDouble(4.0);
        bAll &= file.WriteBytes(aBlock) && file.WriteAny(aBlock.data(), 100) && file.Flush();
        file.SetFilePos(20007, 0);
        bAll &= file.ReadDouble(l) && file.LOF() == 100000 && !file.Eof();
    }
    EXPECT_EQ(g_nAllocations, nBefore);
    EXPECT_TRUE(bAll);
}

TEST(UniFileAllocation, AllocationsAreSeen) {
    const std::size_t nBefore = g_nAllocations;
    const std::vector<int> v(100);
    EXPECT_EQ(g_nAllocations, nBefore + 1);
    EXPECT_EQ(v.size(), 100u);
}

class LittleMemory : public testing::UniFileFixture {
protected:
    // What the call answers while no allocation may be above 100,000 bytes.
    template<typename Call>
    static bool Answer(Call call) {
        g_nLargest = 100'000;
        const bool b = call();
        g_nLargest = std::numeric_limits<std::size_t>::max();
        return b;
    }

    static bool Raises(bool (*call)(const std::u16string&), const std::u16string& sPath) {
        return Answer([&] {
            try {
                call(sPath);
            } catch (const Failure& failure) {
                return failure.Number() == Failure::kOwn;
            }
            return false;
        });
    }
};

TEST_F(LittleMemory, TextThatItDoesNotTakeCannotBeRead) {
    // The bytes of the first and the third fit, their text does not.
    const std::string contents[] = {std::string(80'000, 'x'), std::string(150'000, 'x'),
                                    "\xEF\xBB\xBF" + std::string(80'000, 'x'), "\xFF\xFE" + std::string(150'000, 'x')};
    for (const std::string& sBytes : contents) {
        const std::u16string sPath = folder.Write(u"large.txt", sBytes);
        std::u16string s = u"before";
        EXPECT_FALSE(Answer([&] { return ufu_TextFileToString(sPath, s, false); }));
        EXPECT_EQ(s, u"");
        EXPECT_TRUE(Raises(
            [](const std::u16string& sName) {
                std::u16string sRead;
                return ufu_TextFileToString(sName, sRead, true);
            },
            sPath));
        EXPECT_TRUE(ufu_TextFileToString(sPath, s, false));
    }
}

TEST_F(LittleMemory, TextWhoseBytesItDoesNotTakeCannotBeWrittenAndTheFileStays) {
    static const std::u16string sText(150'000, u'x');
    const std::u16string sPath = folder.Write(u"out.txt", "before");
    for (const FileEncoding iEncoding : {feAnsi, feUtf8})
        EXPECT_FALSE(Answer([&] { return ufu_StringToTextFile(sPath, sText, iEncoding, false); })) << iEncoding;
    EXPECT_TRUE(
        Raises([](const std::u16string& sName) { return ufu_StringToTextFile(sName, sText, feAnsi, true); }, sPath));
    EXPECT_EQ(folder.Read(sPath), "before");
    EXPECT_TRUE(Answer([&] { return ufu_StringToTextFile(sPath, sText, feUnicode, false); })) << "needs no memory";
}

} // namespace
} // namespace orvanta
