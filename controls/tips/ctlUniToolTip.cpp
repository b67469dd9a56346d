#include "controls/tips/ctlUniToolTip.h"

#include "base/ResumeNext.h"
#include "controls/tips/TipPlacement.h"
#include "drawing/ComReference.h"
#include "plumbing/SharedText.h"
#include "plumbing/WindowsVersion.h"

#include <ocidl.h>

#include <algorithm>
#include <limits>

namespace orvanta {

namespace {

constexpr OleColor kSystemInfoText = static_cast<OleColor>(0x80000017u);
constexpr OleColor kSystemInfoBack = static_cast<OleColor>(0x80000018u);

// Pixels around the text. With the border it is also what a wrapped text needs on both sides together.
constexpr std::int16_t kMargin = 2;

ctlUniLabelNoFlick& AddLabel(Form& form) {
    auto& label = form.Add<ctlUniLabelNoFlick>(u"lblTip", {0, 0, 0, 0});
    label.Caption(u"");
    label.BorderStyle(1);
    label.Margin(kMargin);
    label.BackColor(kSystemInfoBack);
    label.ForeColor(kSystemInfoText);
    label.AutoSize(true);
    return label;
}

} // namespace

ctlUniToolTip::ctlUniToolTip()
    : m_form({}, true, WS_POPUP), m_label(AddLabel(m_form)), m_timer(CTimer::Create()), m_logic(*this, *this) {
    SetWindowLongPtrW(m_form.hWnd(), GWL_EXSTYLE,
                      GetWindowLongPtrW(m_form.hWnd(), GWL_EXSTYLE) | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE);
    m_form.QueryUnload.Add([](bool& Cancel) { Cancel = true; });
    m_timer->ThatTime.Add([this] {
        m_timer->Interval(0);
        m_logic.Elapsed();
    });
}

ctlUniToolTip::~ctlUniToolTip() {
    TipsOn(false);
    m_logic.Unload();
    m_timer->Interval(0);
}

void ctlUniToolTip::SetTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                           std::int32_t XMax, std::int32_t YMax) {
    m_logic.SetTip(sTip, lMaxWidth, sTag, XMax, YMax);
}

void ctlUniToolTip::UpdateTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view> sTag,
                              std::int32_t XMax, std::int32_t YMax) {
    m_logic.UpdateTip(sTip, lMaxWidth, sTag, XMax, YMax);
}

void ctlUniToolTip::SetFont(IFont* oFont) {
    if (oFont) oFont->AddRef();
    m_label.Font(OleFont(ComReference<IFont>(oFont)));
}

TipPoint ctlUniToolTip::Cursor() const {
    POINT point{};
    GetCursorPos(&point);
    return {point.x, point.y};
}

void ctlUniToolTip::Place(const TipRequest& request) {
    SizeForText(request.lMaxWidth);
    RECT window{};
    GetWindowRect(m_form.hWnd(), &window);
    const TipPoint place = PlaceTip(request, {window.right - window.left, window.bottom - window.top},
                                    {m_screens.VirtualWidth(), m_screens.VirtualHeight()});
    constexpr UINT kMove = SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_ASYNCWINDOWPOS;
    if (!Visible()) {
        ShowWindow(m_form.hWnd(), SW_SHOWNOACTIVATE);
        SetWindowPos(m_form.hWnd(), HWND_TOPMOST, place.X, place.Y, 0, 0, kMove);
    } else {
        SetWindowPos(m_form.hWnd(), HWND_TOPMOST, place.X, place.Y, 0, 0, kMove | SWP_NOZORDER);
    }
    if (m_iTransparency != TipTransparency()) {
        m_iTransparency = TipTransparency();
        TakeTransparency();
    }
}

void ctlUniToolTip::SizeForText(std::int32_t lMaxWidth) {
    ControlHost& host = m_label.Host();
    const HDC dc = m_label.Hdc();
    std::int32_t lWidth = 0;
    std::int32_t lHeight = 0;
    if (lMaxWidth >= 1) MeasureTextLine(dc, m_label.Caption(), 0, lWidth, lHeight);
    if (lMaxWidth < 1 || lWidth <= lMaxWidth) {
        m_label.AutoSize(true);
    } else {
        RECT text{0, 0, lMaxWidth, static_cast<LONG>(host.ScaleHeight())};
        DrawTextOn(dc, m_label.Caption(), text, DT_CALCRECT | DT_EXPANDTABS | DT_WORDBREAK);
        m_label.AutoSize(false);
        const LONG lMargins = 2 * m_label.Margin();
        host.Size(host.ScaleX(static_cast<float>(text.right + lMargins), ScaleUnit::Pixels, ScaleUnit::Twips),
                  host.ScaleY(static_cast<float>(text.bottom + lMargins), ScaleUnit::Pixels, ScaleUnit::Twips));
    }
    if (m_form.InnerWidth() != host.Width() || m_form.InnerHeight() != host.Height()) {
        m_form.InnerSize(host.Width(), host.Height());
    }
}

void ctlUniToolTip::TakeTransparency() {
    if (m_logic.IsUnloading() || !IsWin2000OrLater()) return;
    // The window is a wide one and stays it: this index of the narrow call touches the style bits alone.
    SetWindowLongA(m_form.hWnd(), GWL_EXSTYLE, GetWindowLongA(m_form.hWnd(), GWL_EXSTYLE) | WS_EX_LAYERED);
    SetLayeredWindowAttributes(m_form.hWnd(), 0, TipOpacity(m_iTransparency), LWA_ALPHA);
}

void ctlUniToolTip::WakeAt(std::int64_t lTime) {
    constexpr std::int64_t kLongest = std::numeric_limits<std::int32_t>::max();
    const auto lWait = static_cast<std::int32_t>(std::clamp<std::int64_t>(lTime - Now(), 1, kLongest));
    // Without a free timer there is no tip, and that is all: a mouse move is no place for a message.
    IgnoreFailure([&] {
        m_timer->Interval(0);
        m_timer->Interval(lWait);
    });
}

std::unique_ptr<TipPopup> MakeToolTip() {
    return std::make_unique<ctlUniToolTip>();
}

} // namespace orvanta
