#pragma once

#include "engine/EngineWorld.h"

#include <functional>
#include <utility>

namespace orvanta {

// The conversion engine's world in the running program: files through the file layer, real message boxes. Which kinds
// of controls are to be converted is the caller's to say.
class EngineServices final : public EngineWorld {
public:
    // lstControls tells for a control kind (0 to 11) whether it is selected; it is asked anew at each control.
    explicit EngineServices(std::function<bool(int)> lstControls) : m_lstControls(std::move(lstControls)) {}

    bool st_FileExist(std::u16string_view sPathFileName) override;
    bool st_TextFileToString(std::u16string_view sPathFileName, std::u16string& sText, bool bRaiseError) override;
    bool st_StringToTextFile(std::u16string_view sPathFileName, std::u16string_view sText, FileEncoding iEncoding,
                             bool bRaiseError) override;
    void UniMsgError(std::u16string_view sText) override;
    bool Selected(int iKind) override;

private:
    std::function<bool(int)> m_lstControls;
};

} // namespace orvanta
