#pragma once

#include "grid/GridLocale.h"
#include "grid/GridModel.h"
#include "grid/GridPicture.h"
#include "grid/GridView.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::testing {

// Text of a made-up font: 6 pixels a unit, "i" and "l" 2, capitals 8, a line 13 high.
inline std::int32_t FakeTextWidth(std::u16string_view s) {
    std::int32_t w = 0;
    for (const char16_t c : s)
        w += c == u'i' || c == u'l' ? 2 : c >= u'A' && c <= u'Z' ? 8 : 6;
    return w;
}
inline constexpr std::int32_t kFakeLineHeight = 13;

// Lines end at CR and CR LF; with bKeepWidth also at the last blank that fits into w.
inline void FakeTextBlock(std::u16string_view s, bool bKeepWidth, std::int32_t& w, std::int32_t& h) {
    std::int32_t lWidest = 0;
    std::int32_t lLines = 0;
    std::u16string sLine;
    const auto end = [&] {
        lWidest = std::max(lWidest, FakeTextWidth(sLine));
        ++lLines;
        sLine.clear();
    };
    for (std::size_t n = 0; n < s.size(); ++n) {
        if (s[n] == u'\r') {
            if (n + 1 < s.size() && s[n + 1] == u'\n') ++n;
            end();
        } else if (bKeepWidth && s[n] == u' ' && !sLine.empty()) {
            const std::size_t nWordEnd = std::min(s.find_first_of(u" \r", n + 1), s.size());
            if (FakeTextWidth(sLine) + FakeTextWidth(s.substr(n, nWordEnd - n)) > w) {
                end();
            } else {
                sLine += u' ';
            }
        } else {
            sLine += s[n];
        }
    }
    end();
    if (!bKeepWidth) w = lWidest;
    h = lLines * kFakeLineHeight;
}

// A bar with the manners of the platform's: it clamps, and tells when its value changes.
class FakeBar : public GridBar {
public:
    std::int16_t Max() const override { return m_iMax; }
    void Max(std::int16_t iMax) override {
        m_iMax = iMax;
        if (m_iValue > iMax) Value(iMax);
    }
    std::int16_t Value() const override { return m_iValue; }
    void Value(std::int16_t iValue) override {
        const std::int16_t iClamped = std::clamp(iValue, std::int16_t{0}, std::max(m_iMax, std::int16_t{0}));
        if (iClamped == m_iValue) return;
        m_iValue = iClamped;
        if (change) change();
    }
    void Steps(std::int16_t iSmallChange, std::int16_t iLargeChange) override {
        iSmall = iSmallChange;
        iLarge = iLargeChange;
    }

    std::function<void()> change;
    std::int16_t iSmall = 0;
    std::int16_t iLarge = 0;

private:
    std::int16_t m_iMax = 0;
    std::int16_t m_iValue = 0;
};

// A window without pixels. It counts what it is asked for.
class FakeGridView : public GridView {
public:
    bool UserMode() const override { return bUserMode; }
    std::int32_t ScaleWidth() const override { return lWidth; }
    std::int32_t ScaleHeight() const override { return lHeight; }
    std::int32_t HScrollHeight() const override { return 16; }
    void MeasureTextLine(std::u16string_view s, std::int32_t& w, std::int32_t& h) override {
        ++nMeasured;
        w = FakeTextWidth(s) * lZoom;
        h = kFakeLineHeight * lZoom;
    }
    void MeasureTextBlock(std::u16string_view s, bool bKeepWidth, std::int32_t& w, std::int32_t& h) override {
        ++nMeasured;
        std::int32_t lWithin = w / lZoom;
        FakeTextBlock(s, bKeepWidth, lWithin, h);
        if (!bKeepWidth) w = lWithin * lZoom;
        h *= lZoom;
    }
    std::uint64_t FontStamp() const override { return static_cast<std::uint64_t>(lZoom); }
    GridBar& VScrollBar() override { return vertical; }
    GridBar& HScrollBar() override { return horizontal; }
    void ShowHScroll(bool bVisible) override { bHScrollVisible = bVisible; }
    void Paint(bool bRefreshNow) override {
        paints.push_back(bRefreshNow);
        if (onPaint) onPaint();
    }
    void PaintPreview() override { ++nPreviews; }
    void EdgePointer(bool bOnEdge) override { bEdgePointer = bOnEdge; }
    void ShowTip() override { ++nTips; }
    std::int16_t KeyShiftState() const override { return iShift; }

    // The pictures since the last question, with their bRefreshNow.
    std::vector<bool> TakePaints() { return std::exchange(paints, {}); }
    std::int32_t TakeMeasured() { return std::exchange(nMeasured, 0); }

    bool bUserMode = true;
    std::int32_t lWidth = 300;
    std::int32_t lHeight = 200;
    std::int32_t lZoom = 1; // stands for the font
    std::int16_t iShift = 0;
    FakeBar vertical;
    FakeBar horizontal;
    bool bHScrollVisible = true;
    std::vector<bool> paints;
    std::function<void()> onPaint;
    std::int32_t nPreviews = 0;
    std::int32_t nTips = 0;
    bool bEdgePointer = false;
    std::int32_t nMeasured = 0;
};

class FakeLocale : public GridLocale {
public:
    char16_t DecimalSeparator() const override { return cDecimal; }
    void AppendSortKey(std::u16string_view s, std::string& sKey) const override { AppendFoldedSortKey(s, sKey); }

    char16_t cDecimal = u'.';
};

class FakePicture : public GridPicture {
public:
    FakePicture(std::int32_t iWidth, std::int32_t iHeight) : m_iWidth(iWidth), m_iHeight(iHeight) {}
    std::int32_t Width() const override { return m_iWidth; }
    std::int32_t Height() const override { return m_iHeight; }

private:
    std::int32_t m_iWidth;
    std::int32_t m_iHeight;
};

inline GridPictureRef MakePicture(std::int32_t iWidth, std::int32_t iHeight) {
    return std::make_shared<const FakePicture>(iWidth, iHeight);
}

// A grid in run mode on a fake window, as a control would hold it.
struct GridOnFake {
    GridOnFake() {
        view.vertical.change = [this] { grid->VScrollChange(); };
        view.horizontal.change = [this] { grid->HScrollChange(); };
        grid->InitRuntime();
        grid->SelectionChange.Add([this] { ++nSelectionChanges; });
        view.TakePaints();
    }

    // A text column with that key.
    void Column(const char16_t* sKey, std::int32_t iWidth = -1, std::int32_t iType = 0) {
        grid->AddColumn(sKey, iWidth, 0, sKey, true, 2, true, false, false, iType, true);
    }
    std::int32_t TakeSelectionChanges() { return std::exchange(nSelectionChanges, 0); }
    std::vector<std::u16string> Texts(const TaggedValue& vKey) const {
        std::vector<std::u16string> texts;
        for (std::int32_t iRow = 1; iRow <= grid->Rows(); ++iRow)
            texts.push_back(grid->CellValue(iRow, vKey).ToText());
        return texts;
    }

    FakeGridView view;
    FakeLocale locale;
    std::int32_t nSelectionChanges = 0;
    std::unique_ptr<GridModel> grid = std::make_unique<GridModel>(view, locale);
};

} // namespace orvanta::testing
