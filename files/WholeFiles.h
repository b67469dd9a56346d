#pragma once

#include "base/FileEncoding.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

// Whole files as text. Every call opens the file shared, for itself, and closes it.

// What the first byte of the file announces. feAnsi when the file cannot be opened or has less than two bytes.
FileEncoding ufu_GetFileEncoding(std::u16string_view sFile);

// The text behind the mark, in the encoding that the file announces. The result says whether the file could be opened
// and read; sRetFile is empty when it could not. With bRaiseError a failure is raised instead: "Error reading file". A
// file of one byte, and a file of 16,385 bytes with a mark, cannot be read (see clsUniFile), nor can one of 2 GB or one
// whose text the memory does not take.
bool ufu_TextFileToString(std::u16string_view sNomeFile, std::u16string& sRetFile, bool bRaiseError);

// Replaces the file by the mark and the text; there is no temporary file, so a failure leaves a damaged one. The result
// says whether the file could be opened and took the last write; what the write cache holds is written at closing,
// whose outcome nobody learns. An iEncoding that is none, and a text whose bytes the memory does not take, fail without
// touching the file. With bRaiseError a failure is raised: "Error writing file".
bool ufu_StringToTextFile(std::u16string_view vsPathFile, std::u16string_view vsText, FileEncoding iEncoding,
                          bool bRaiseError);

// The size in bytes, 0 when the file cannot be opened.
std::int64_t ufu_FileLen(std::u16string_view sFile);

} // namespace orvanta
