#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

// Rules on path names as text; nothing here looks at a disk.
//
// Local paths use the backslash, web paths the slash, and each family refuses the other's separator with a Failure
// ("Not a local path", "Not a web path") whose source is the function. A bare name is neither, a name with both is
// both.
//
// A position that is looked up in a path is a signed 16-bit number counted from 1: a separator, mark or dot that stands
// behind the 32,767th character raises Overflow. Trailing separators are taken off without a position, so the
// ...BackSlash and ...Slash functions take text of any length.

bool ufu_IsLocalPath(std::u16string_view s); // holds a backslash
bool ufu_IsWebPath(std::u16string_view s);   // holds a slash

// Begins with a known scheme, in any letter case. IsFileUrl: "file:///" and "file://" only.
bool IsLinkUrl(std::u16string_view s);
bool IsFileUrl(std::u16string_view s);

// Without its trailing separators, and with exactly one of them unless nothing else is left: the text of backslashes
// alone becomes empty. The root "C:\" loses its separator in the first form and keeps it in the second.
std::u16string ufu_NoBackSlash(std::u16string_view s);
std::u16string ufu_OneBackSlash(std::u16string_view s);
std::u16string ufu_NoSlashWeb(std::u16string_view s);
std::u16string ufu_OneSlashWeb(std::u16string_view s);

// A link or file URL as a local path. A link other than a file URL raises "Cannot Localize Link!" when bRaise is set
// and goes on as plain text otherwise. A tail behind "?" or "#" is cut only when the text holds both marks.
std::u16string ufu_LocalizePath(std::u16string_view s, bool bRaise);

// The folder: what stands up to the last backslash, empty for a bare name.
std::u16string ufu_FilePath(std::u16string_view sPathFileName, bool bFinalBackSlash);
// The parts of the name. They localize what they are given first, so links and web paths are welcome.
std::u16string ufu_FileName(std::u16string_view sPathFileName);
std::u16string ufu_FileExt(std::u16string_view sPathFileName); // without the dot
std::u16string ufu_FileNameNoExt(std::u16string_view sPathFileName);

// A path as the sequence of folders that have to be there: each level is the prefix followed by the parts so far.
struct PathLevels {
    std::u16string sPrefix; // "\\server\" of a network path, "\\" when it has no further backslash, otherwise empty
    std::vector<std::u16string> vParts; // the names up to the first empty one
};
PathLevels SplitPathLevels(std::u16string_view sAbsPath);

// The arguments behind the program's name, which stands in quotes or ends at the first blank. A quote that is never
// closed makes the whole line the name. A line without quote and blank raises InvalidProcedureCall.
std::u16string ArgumentsOfCommandLine(std::u16string_view sLine);

} // namespace orvanta
