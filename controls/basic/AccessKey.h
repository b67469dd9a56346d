#pragma once

#include <string>
#include <string_view>

namespace orvanta {

// The access key that a caption names: the character behind the first ampersand, "" when there is none. A second
// ampersand leaves the first one waiting, so behind two of them the next character is the key, though it is not
// underlined.
std::u16string AccessKeyOf(std::u16string_view sCaption);

// Gives the host of a control the key that the caption names. A host that has none is left alone without one.
template<typename Host>
void pvSetAccessKey(Host& host, std::u16string_view sCaption) {
    const std::u16string sKey = AccessKeyOf(sCaption);
    if (!sKey.empty() || !host.AccessKeys().empty()) host.AccessKeys(sKey);
}

} // namespace orvanta
