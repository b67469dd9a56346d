#include "gallery/PageBuilder.h"

#include "base/Text.h"
#include "plumbing/WideText.h"

namespace orvanta::gallery {

namespace {

constexpr int kPageHeight = 580;
constexpr int kHeadingHeight = 24;
constexpr int kHeadingWidth = 300;
constexpr int kTextHeight = 15;
constexpr int kLeastBlockWidth = 170;
constexpr int kColumnGap = 24;

} // namespace

PageBuilder::PageBuilder(Form& form, int left, int top, std::u16string_view sName)
    : m_form(form), m_top(top + kHeadingHeight), m_x(left), m_y(top) {
    form.ScaleMode(ScaleUnit::Pixels);
    // It has more scripts than the font that a form starts with.
    form.Font(OleFont::Create(u"Tahoma", 8.25));
    Text(Concat({sName, u": run mode left, design mode right"}), kHeadingWidth);
    m_right = left + kHeadingWidth;
    m_y = m_top;
}

PageBuilder::~PageBuilder() {
    for (const Specimen& specimen : m_specimens) {
        const auto alive = m_form.Controls();
        if (std::find(alive.begin(), alive.end(), specimen.control) != alive.end()) m_form.Remove(*specimen.control);
    }
    for (HWND text : m_texts)
        DestroyWindow(text);
}

void PageBuilder::StartBlock(std::u16string_view sCaption, int width, int height) {
    if (m_y > m_top && m_y + kTextHeight + height > m_top + kPageHeight) {
        m_x += m_columnWidth + kColumnGap;
        m_y = m_top;
        m_columnWidth = 0;
    }
    width = std::max(width, kLeastBlockWidth);
    m_columnWidth = std::max(m_columnWidth, width);
    Text(sCaption, width);
    m_y += kTextHeight;
    m_right = std::max(m_right, m_x + width);
    m_bottom = std::max(m_bottom, m_y + height);
}

void PageBuilder::Text(std::u16string_view s, int width) {
    const std::u16string sText(s);
    HWND text = CreateWindowExW(0, L"STATIC", WideOf(sText), WS_CHILD | WS_VISIBLE | SS_NOPREFIX, m_x, m_y, width,
                                kTextHeight, m_form.hWnd(), nullptr, GetModuleHandleW(nullptr), nullptr);
    SendMessageW(text, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    m_texts.push_back(text);
}

std::u16string PageBuilder::NextName() {
    return Concat({u"ctl", DecimalText(++m_nNames)});
}

} // namespace orvanta::gallery
