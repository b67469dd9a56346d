// The gallery's inspector over real controls, and the pages themselves.
#include "gallery/Inspector.h"
#include "controls/basic/ctlUniImage.h"
#include "controls/contract/ObjectValues.h"
#include "gallery/Pages.h"
#include "gallery/PngFile.h"
#include "gallery/ValueText.h"

#include "tests/support/GdiCensus.h"
#include "tests/support/NumberRaisedBy.h"
#include "tests/support/Unicode.h"
#include "tests/support/WindowCensus.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace orvanta::gallery {
namespace {

class GalleryInspector : public ::testing::Test {
protected:
    GalleryInspector() {
        page.Show<ctlUniImage>(u"plain", 40, 40, [](ctlUniImage&) {});
        inspector.Specimens(page.Specimens());
    }
    // The n-th control on show: first in run mode, then in design mode.
    ctlUniImage& Image(std::size_t n) { return static_cast<ctlUniImage&>(*page.Specimens()[n].control); }
    HWND Child(const wchar_t* sClass) { return FindWindowExW(inspector.Window(), nullptr, sClass, nullptr); }

    Form form{u"", true, WS_POPUP};
    PageBuilder page{form, Inspector::kWidth, 0, u"page"};
    Inspector inspector{form.hWnd(), 600, {u"one", u"two"}};
};

TEST_F(GalleryInspector, APageShowsEachControlInRunModeAndBesideItInDesignMode) {
    ASSERT_EQ(page.Specimens().size(), 2U);
    EXPECT_EQ(page.Specimens()[0].sCaption, u"plain (run)");
    EXPECT_EQ(page.Specimens()[1].sCaption, u"plain (design)");
    EXPECT_TRUE(Image(0).Host().Ambient().UserMode());
    EXPECT_FALSE(Image(1).Host().Ambient().UserMode());
    EXPECT_EQ(Image(0).Host().Extender().Top(), Image(1).Host().Extender().Top());
}

TEST_F(GalleryInspector, SetsAPropertyOfTheChosenControlByItsName) {
    EXPECT_TRUE(inspector.SetProperty(u"BORDER", u"True"));
    EXPECT_TRUE(Image(0).Border());
    EXPECT_FALSE(Image(1).Border());
    inspector.ChooseSpecimen(1);
    EXPECT_TRUE(inspector.SetProperty(u"BackColor", u"0x80000005"));
    EXPECT_EQ(Image(1).BackColor(), kSystemWindow);
    EXPECT_EQ(Image(0).BackColor(), kSystemButtonFace);
}

TEST_F(GalleryInspector, SetsWhatStandsInTheEditWhenTheButtonIsPressed) {
    SetWindowTextW(Child(L"COMBOBOX"), L"xtransp");
    SetWindowTextW(Child(L"EDIT"), L"12");
    SendMessageW(Child(L"BUTTON"), BM_CLICK, 0, 0);
    EXPECT_EQ(Image(0).xTranspColor(), 12);
}

TEST_F(GalleryInspector, OffersTheNamesOfTheTableAndShowsThePresentValue) {
    HWND names = Child(L"COMBOBOX");
    const auto keys = Image(0).PropertyNames();
    ASSERT_EQ(SendMessageW(names, CB_GETCOUNT, 0, 0), static_cast<LRESULT>(keys.size()));
    SendMessageW(names, CB_SETCURSEL, 4, 0); // BackColor
    SendMessageW(inspector.Window(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(names), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(names));
    wchar_t sValue[32] = {};
    GetWindowTextW(Child(L"EDIT"), sValue, 32);
    EXPECT_STREQ(sValue, L"0x8000000F");
}

TEST_F(GalleryInspector, StartsWithTheFirstPropertyOfTheFirstControlAndKeepsTheNameForTheNextControl) {
    wchar_t sName[32] = {};
    GetWindowTextW(Child(L"COMBOBOX"), sName, 32);
    EXPECT_STREQ(sName, L"Picture");
    inspector.SetProperty(u"Border", u"True");
    inspector.ChooseSpecimen(1);
    GetWindowTextW(Child(L"COMBOBOX"), sName, 32);
    EXPECT_STREQ(sName, L"Border");
    wchar_t sValue[32] = {};
    GetWindowTextW(Child(L"EDIT"), sValue, 32);
    EXPECT_STREQ(sValue, L"False");
}

TEST_F(GalleryInspector, ItsPanelHasTheColourOfButtons) {
    form.Show();
    UpdateWindow(inspector.Window());
    const WindowDc dc(inspector.Window());
    EXPECT_EQ(GetPixel(dc.Get(), 2, 2), GetSysColor(COLOR_BTNFACE));
}

TEST_F(GalleryInspector, AnswersAWrongNameAndAWrongValueAndChangesNothing) {
    EXPECT_FALSE(inspector.SetProperty(u"Bordure", u"True"));
    EXPECT_FALSE(inspector.SetProperty(u"Border", u"maybe"));
    EXPECT_FALSE(inspector.SetProperty(u"XTransp", u"32768"));
    EXPECT_FALSE(inspector.SetProperty(u"Picture", u"a house"));
    EXPECT_FALSE(Image(0).Border());
    EXPECT_EQ(Image(0).xTranspColor(), 0);
}

TEST_F(GalleryInspector, SetsAPictureByTheNameOfASample) {
    EXPECT_TRUE(inspector.SetProperty(u"Picture", u"landscape"));
    EXPECT_EQ(Image(0).Picture().Type(), OlePicture::kTypeBitmap);
    EXPECT_TRUE(inspector.SetProperty(u"Picture", u"icon"));
    EXPECT_EQ(Image(0).Picture().Type(), OlePicture::kTypeIcon);
    EXPECT_TRUE(inspector.SetProperty(u"Picture", u"none"));
    EXPECT_TRUE(Image(0).Picture().IsEmpty());
}

TEST_F(GalleryInspector, TabGoesRoundItsOwnFieldsAndEnterPressesSetWhateverTheDefaultOfThePageIs) {
    Image(0).Host().Extender().Default(true);
    form.Show();
    SetForegroundWindow(form.hWnd());
    HWND lists = Child(L"LISTBOX");
    const auto press = [this](WPARAM vk) {
        PostMessageW(GetFocus(), WM_KEYDOWN, vk, 1);
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (Form::DialogStep(message) || inspector.TakeKey(message)) continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    };
    SetFocus(lists);
    press(VK_TAB);
    EXPECT_EQ(GetFocus(), FindWindowExW(inspector.Window(), lists, L"LISTBOX", nullptr));
    press(VK_TAB);
    EXPECT_TRUE(IsChild(Child(L"COMBOBOX"), GetFocus()));
    press(VK_TAB);
    EXPECT_EQ(GetFocus(), Child(L"EDIT"));
    SetWindowTextW(Child(L"COMBOBOX"), L"xtransp");
    SetWindowTextW(Child(L"EDIT"), L"34");
    press(VK_RETURN);
    EXPECT_EQ(Image(0).xTranspColor(), 34);
    SetFocus(Child(L"EDIT"));
    press(VK_TAB);
    EXPECT_EQ(GetFocus(), Child(L"BUTTON"));
    press(VK_TAB);
    EXPECT_EQ(GetFocus(), lists);
}

TEST_F(GalleryInspector, TellsThePageThatTheUserChooses) {
    std::size_t nPage = 0;
    inspector.PageChosen.Add([&](std::size_t n) { nPage = n; });
    HWND pages = Child(L"LISTBOX");
    SendMessageW(pages, LB_SETCURSEL, 1, 0);
    SendMessageW(inspector.Window(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(pages), LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(pages));
    EXPECT_EQ(nPage, 1U);
}

TEST(GalleryValues, AreShownAsTextThatReadsBackAsTheSameValue) {
    const struct {
        PropertyValue value;
        const char16_t* sText;
    } kCases[] = {
        {PropertyValue(7), u"7"},
        {PropertyValue(-1), u"-1"},
        {PropertyValue(-2), u"0xFFFFFFFE"},
        {PropertyValue(0x123456), u"0x00123456"},
        {PropertyValue(std::u16string(u"a\r\nb")), u"a\\nb"},
    };
    for (const auto& each : kCases) {
        EXPECT_EQ(TextOfValue(each.value), each.sText);
        const PropertyValue back = ValueOfText(each.sText, each.value);
        if (each.value.Plain().IsInteger()) {
            EXPECT_EQ(back.Plain().ToInteger(), each.value.Plain().ToInteger());
        } else {
            EXPECT_EQ(back.Plain().ToText(), each.value.Plain().ToText());
        }
    }
    EXPECT_EQ(testing::NumberRaisedBy(
                  [] { ValueOfText(u"Tahoma", PropertyKind<OleFont>::Make(OleFont::Create(u"Tahoma", 8))); }),
              13U);
    const PropertyValue font = ValueOfText(u"Tahoma, 12", PropertyKind<OleFont>::Make(OleFont::Create(u"Tahoma", 8)));
    EXPECT_EQ(TextOfValue(font), u"Tahoma, 12");
}

TEST(GalleryPages, EachCanBeShownAndTakenAwayAgain) {
    Form form(u"", true, WS_POPUP);
    const auto round = [&form] {
        for (const Page& page : Pages()) {
            PageBuilder builder(form, 0, 0, page.sName);
            page.build(builder);
            EXPECT_FALSE(builder.Specimens().empty()) << testing::ToUtf8(page.sName);
            EXPECT_LE(builder.Extent().cx, 1000) << testing::ToUtf8(page.sName);
            EXPECT_LE(builder.Extent().cy, 620) << testing::ToUtf8(page.sName);
        }
    };
    round();
    const int nWindows = testing::CountOwnWindows();
    const testing::GdiCensus before = testing::GdiCensus::Take();
    round();
    EXPECT_TRUE(form.Controls().empty());
    EXPECT_EQ(testing::CountOwnWindows(), nWindows);
    EXPECT_EQ(testing::GdiCensus::Take(), before);
}

TEST(GalleryPng, IsWrittenInTheSizeOfTheBitmap) {
    wchar_t sFolder[MAX_PATH], sFile[MAX_PATH];
    ASSERT_NE(GetTempPathW(MAX_PATH, sFolder), 0U);
    ASSERT_NE(GetTempFileNameW(sFolder, L"png", 0, sFile), 0U);
    const OwnedBitmap bitmap(CreateBitmap(258, 3, 1, 32, nullptr));
    const PngWriter writer;
    ASSERT_TRUE(writer.Save(bitmap.Get(), reinterpret_cast<const char16_t*>(sFile)));
    std::FILE* file = _wfopen(sFile, L"rb");
    char head[24] = {};
    EXPECT_EQ(std::fread(head, 1, sizeof head, file), sizeof head);
    std::fclose(file);
    DeleteFileW(sFile);
    EXPECT_EQ(std::string(head, sizeof head), std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\1\2\0\0\0\3", 24));
    EXPECT_FALSE(writer.Save(bitmap.Get(), u"Z:\\no such folder\\a.png"));
}

} // namespace
} // namespace orvanta::gallery
