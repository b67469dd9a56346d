#include "plumbing/modUniMsgBox.h"

#include "base/Text.h"
#include "plumbing/WideText.h"

#include <windows.h>

namespace orvanta {

namespace {

constexpr const char16_t* kAttention = u"Attention";

} // namespace

std::int32_t UniMsgBox(const std::u16string& sText, std::uint32_t lStyle, const std::u16string& sTitle) {
    return MessageBoxW(nullptr, WideOf(sText), WideOf(sTitle), lStyle | MB_TASKMODAL | MB_TOPMOST);
}

std::int32_t UniMsgError(const std::u16string& sText) {
    return UniMsgBox(sText, MB_ICONHAND, kAttention);
}

std::int32_t UniMsgInfo(const std::u16string& sText) {
    return UniMsgBox(sText, MB_ICONASTERISK, kAttention);
}

bool UniMsgAsk(const std::u16string& sText, const std::u16string& sTitle) {
    return UniMsgBox(sText, MB_YESNO | MB_ICONQUESTION, TrimBlanks(sTitle).empty() ? kAttention : sTitle) == IDYES;
}

} // namespace orvanta
