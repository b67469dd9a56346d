#include "wizard/EngineServices.h"

#include "files/clsUniFile.h"
#include "plumbing/modUniMsgBox.h"

namespace orvanta {

bool EngineServices::st_FileExist(std::u16string_view sPathFileName) {
    return clsUniFile::st_FileExist(sPathFileName);
}

bool EngineServices::st_TextFileToString(std::u16string_view sPathFileName, std::u16string& sText, bool bRaiseError) {
    return clsUniFile::st_TextFileToString(sPathFileName, sText, bRaiseError);
}

bool EngineServices::st_StringToTextFile(std::u16string_view sPathFileName, std::u16string_view sText,
                                         FileEncoding iEncoding, bool bRaiseError) {
    return clsUniFile::st_StringToTextFile(sPathFileName, sText, iEncoding, bRaiseError);
}

void EngineServices::UniMsgError(std::u16string_view sText) {
    orvanta::UniMsgError(std::u16string(sText));
}

bool EngineServices::Selected(int iKind) {
    return m_lstControls(iKind);
}

} // namespace orvanta
