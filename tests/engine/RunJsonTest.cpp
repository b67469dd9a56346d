#include "bench/driver/RunJson.h"

#include <gtest/gtest.h>

#include <string>

namespace orvanta::driver {
namespace {

testing::RecordedLog LogOf(const std::u16string& sRow) {
    testing::RecordedLog log;
    log.AddColumn(u"Source", -1, 0, TaggedValue(u"src"), true, 2, false, false, false, 0, true);
    log.AddColumn(u"Description", -1, 0, TaggedValue(u"descr"), true, 2, false, false, false, 0, true);
    log.AddRow(sRow, true);
    return log;
}

TEST(RunJson, ARunWithoutRowsHasEmptyLists) {
    EXPECT_EQ(RunJson(false, {}, {}), "{\"result\":false,\n\"columns\":[],\n\"rows\":[],\n\"boxes\":[]}\n");
}

TEST(RunJson, RowsHaveTheirCellsAndTheColoursOfTheDescription) {
    testing::RecordedLog log = LogOf(u"a.frm\tx");
    log.AddRow(u"\ty", true);
    log.CellForeColor(2, TaggedValue(u"descr"), 255);
    log.CellBackColor(2, TaggedValue(u"descr"), 65535);
    log.CellForeColor(1, TaggedValue(u"src"), 7); // not the description's
    EXPECT_EQ(RunJson(true, log, {u"one", u"two"}),
              "{\"result\":true,\n\"columns\":[\"Source\",\"Description\"],\n\"rows\":["
              "\n{\"cells\":[\"a.frm\",\"x\"],\"fore\":-1,\"back\":-1},"
              "\n{\"cells\":[\"\",\"y\"],\"fore\":255,\"back\":65535}],\n\"boxes\":[\"one\",\"two\"]}\n");
}

TEST(RunJson, TextIsEscapedAndComesOutInUtf8) {
    const std::u16string sText = u"\"\\/\n\r\x01\x1F\x7F\u00FC\u20AC\U0001F600\xD800";
    const std::string sJson = RunJson(true, {}, {sText + u'\0'});
    EXPECT_NE(sJson.find("[\"\\\"\\\\/\\u000a\\u000d\\u0001\\u001f\x7F"
                         "\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80\xEF\xBF\xBD\\u0000\"]"),
              std::string::npos)
        << sJson;
}

} // namespace
} // namespace orvanta::driver
