#pragma once

#include "base/FileEncoding.h"
#include "base/TaggedValue.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

// What the conversion engine needs of the world around it: whole files, one message box, and the user's choice of
// control kinds. The program plugs in the file layer, the real box and the wizard's list; a test plugs in a fake.
class EngineWorld {
public:
    virtual ~EngineWorld() = default;

    // True only for an existing file; false for an empty path.
    virtual bool st_FileExist(std::u16string_view sPathFileName) = 0;
    // The whole file as text, its encoding found from its first byte. True on success. The engine never asks for a
    // raise.
    virtual bool st_TextFileToString(std::u16string_view sPathFileName, std::u16string& sText, bool bRaiseError) = 0;
    // Overwrites the file with the text. True on success. The engine never asks for a raise.
    virtual bool st_StringToTextFile(std::u16string_view sPathFileName, std::u16string_view sText,
                                     FileEncoding iEncoding, bool bRaiseError) = 0;

    // A modal box with a stop icon. Returns when the user has answered.
    virtual void UniMsgError(std::u16string_view sText) = 0;

    // Whether control kind iKind (0 to 11, see ControlCatalogue.h) is to be converted, asked at each control.
    virtual bool Selected(int iKind) = 0;
};

// The log of a run: the part of the grid that the engine uses. Rows count from 1. A row's text holds its cells
// separated by tab characters; cells beyond the last column are dropped, missing ones stay empty. Colours are plain
// 0x00BBGGRR values.
class LogGrid {
public:
    virtual ~LogGrid() = default;

    // Empties the rows and, when asked, removes the columns.
    virtual void Clear(bool bClearHeader) = 0;
    // iWidth in pixels, -1 for automatic; alignments 0 left, 1 right, 2 centre; iType 0 text.
    virtual void AddColumn(std::u16string_view sText, std::int32_t iWidth, std::int32_t iAlign, const TaggedValue& vKey,
                           bool bResizable, std::int32_t iHeaderAlign, bool bSortable, bool bSortWithCustomEvent,
                           bool bRightToLeft, std::int32_t iType, bool bAllowEmptyNumbers) = 0;
    // With bSelect the new row becomes the current row.
    virtual void AddRow(std::u16string_view sRowText, bool bSelect) = 0;
    virtual std::int32_t Row() const = 0;
    virtual void CellForeColor(std::int32_t iRow, const TaggedValue& vColKey, std::int32_t lColor) = 0;
    virtual void CellBackColor(std::int32_t iRow, const TaggedValue& vColKey, std::int32_t lColor) = 0;
};

} // namespace orvanta
