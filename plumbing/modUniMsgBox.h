#pragma once

#include <cstdint>
#include <string>

namespace orvanta {

// Message boxes with Unicode text, without an owner, modal for the task and above all windows. Each call returns when
// the user has answered; messages of the thread's other windows are delivered meanwhile. Text and title end at their
// first NUL.

// lStyle is a combination of the platform's MB_ values. The result is the button's code, 0 when no box could be shown.
std::int32_t UniMsgBox(const std::u16string& sText, std::uint32_t lStyle, const std::u16string& sTitle);

// With the title "Attention" and the stop or the information icon.
std::int32_t UniMsgError(const std::u16string& sText);
std::int32_t UniMsgInfo(const std::u16string& sText);

// A question with the buttons Yes and No: true for Yes. A title that is empty or blank becomes "Attention".
bool UniMsgAsk(const std::u16string& sText, const std::u16string& sTitle);

} // namespace orvanta
