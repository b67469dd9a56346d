// Typed values of clsUniFile.
#include "tests/files/UniFileFixture.h"

#include <cmath>
#include <limits>

namespace orvanta {
namespace {

class UniFileValues : public testing::UniFileFixture {
protected:
    UniFileValues() : sPath(folder / u"values.bin") {}

    template<typename Write>
    std::string BytesOf(Write write) {
        clsUniFile file;
        EXPECT_TRUE(file.OpenFileWrite(sPath, false));
        EXPECT_TRUE(write(file));
        file.CloseFile();
        return folder.Read(sPath);
    }

    // Puts a byte behind the value: a file of one byte could not be read.
    void Open(clsUniFile& file, std::string sBytes) {
        ASSERT_TRUE(file.OpenFileRead(folder.Write(u"in.bin", sBytes + "#"), true));
    }

    std::int32_t Double(double d) {
        clsUniFile file;
        Open(file, BytesOf([d](clsUniFile& out) { return out.WriteDouble(d); }));
        std::int32_t l = 12345;
        EXPECT_TRUE(file.ReadDouble(l)) << d;
        return l;
    }

    std::u16string sPath;
};

TEST_F(UniFileValues, LongIsFourBytesLowOneFirst) {
    EXPECT_EQ(BytesOf([](clsUniFile& f) { return f.WriteLong(0x01020304); }), "\x04\x03\x02\x01");
    EXPECT_EQ(BytesOf([](clsUniFile& f) { return f.WriteLong(-2); }), "\xFE\xFF\xFF\xFF");
    clsUniFile file;
    Open(file, "\x04\x03\x02\x01\xFE\xFF\xFF\xFF");
    std::int32_t l = 0;
    EXPECT_TRUE(file.ReadLong(l));
    EXPECT_EQ(l, 16909060);
    EXPECT_TRUE(file.ReadLong(l));
    EXPECT_EQ(l, -2);
    EXPECT_FALSE(file.ReadLong(l));
}

TEST_F(UniFileValues, IntIsTwoBytesLowOneFirst) {
    EXPECT_EQ(BytesOf([](clsUniFile& f) { return f.WriteInt(0x0102); }), "\x02\x01");
    clsUniFile file;
    Open(file, std::string("\x02\x01\x00\x80", 4));
    std::int16_t i = 0;
    EXPECT_TRUE(file.ReadInt(i));
    EXPECT_EQ(i, 258);
    EXPECT_TRUE(file.ReadInt(i));
    EXPECT_EQ(i, -32768);
    EXPECT_FALSE(file.ReadInt(i));
}

TEST_F(UniFileValues, BooleanIsOneByteAndOnlyTheByteOneIsTrue) {
    EXPECT_EQ(BytesOf([](clsUniFile& f) { return f.WriteBool(true) && f.WriteBool(false); }),
              std::string("\x01\x00", 2));
    clsUniFile file;
    Open(file, std::string("\x01\x00\x02\xFF", 4));
    bool b = false;
    EXPECT_TRUE(file.ReadBool(b));
    EXPECT_TRUE(b);
    for (int n = 0; n < 3; ++n) {
        b = true;
        EXPECT_TRUE(file.ReadBool(b));
        EXPECT_FALSE(b) << n;
    }
}

TEST_F(UniFileValues, FailedReadOfABooleanLeavesItAlone) {
    clsUniFile file;
    ASSERT_TRUE(file.OpenFileRead(folder.Write(u"empty.bin", ""), true));
    bool b = true;
    EXPECT_FALSE(file.ReadBool(b));
    EXPECT_TRUE(b);
}

TEST_F(UniFileValues, DoubleIsWrittenInEightBytes) {
    EXPECT_EQ(BytesOf([](clsUniFile& f) { return f.WriteDouble(1.5); }), std::string("\0\0\0\0\0\0\xF8\x3F", 8));
}

TEST_F(UniFileValues, DoubleIsReadAsAnIntegerRoundedHalvesToEven) {
    EXPECT_EQ(Double(2.5), 2);
    EXPECT_EQ(Double(3.5), 4);
    EXPECT_EQ(Double(-2.5), -2);
    EXPECT_EQ(Double(-3.5), -4);
    EXPECT_EQ(Double(0.49999999999999994), 0);
    EXPECT_EQ(Double(-7.6), -8);
    EXPECT_EQ(Double(2147483647.4), 2147483647);
    EXPECT_EQ(Double(-2147483648.5), std::numeric_limits<std::int32_t>::min());
}

TEST_F(UniFileValues, DoubleThatIsNoIntegerIsAFailedReadAndNothingIsRaised) {
    for (const double d : {2147483647.5, -2147483649.0, 1e300, std::nan(""), HUGE_VAL}) {
        clsUniFile file;
        Open(file, BytesOf([d](clsUniFile& out) { return out.WriteDouble(d); }));
        std::int32_t l = 12345;
        EXPECT_FALSE(file.ReadDouble(l)) << d;
        EXPECT_EQ(l, 12345);
        EXPECT_EQ(file.GetFilePos(), 8);
    }
}

TEST_F(UniFileValues, ValuesAreReadWithoutTheCacheToo) {
    clsUniFile file;
    file.UseCache(false);
    Open(file, BytesOf([](clsUniFile& f) { return f.WriteLong(-7) && f.WriteInt(300) && f.WriteDouble(9.0); }));
    platform.Forget();
    std::int32_t l = 0;
    std::int16_t i = 0;
    EXPECT_TRUE(file.ReadLong(l));
    EXPECT_EQ(l, -7);
    EXPECT_TRUE(file.ReadInt(i));
    EXPECT_EQ(i, 300);
    EXPECT_TRUE(file.ReadDouble(l));
    EXPECT_EQ(l, 9);
    EXPECT_EQ(platform.reads, (std::vector<DWORD>{4, 2, 8}));
}

} // namespace
} // namespace orvanta
