#pragma once

#include <map>
#include <string>
#include <vector>

// The conversion engine once more, written the long way: every rule as a plain loop over lines, no index and no cache.
// It is the oracle of the tests: the fast engine has to give the same texts, rows and boxes. It uses the standard
// library alone and nothing of the engine, so that a mistake in one is no mistake in the other.
namespace orvanta::reference {

using PlainLines = std::vector<std::u16string>;

// A row of the log as the grid holds it: exactly one cell per column of the run, three in a conversion and two in an
// upgrade. The colours are those of the description cell, -1 for none.
struct PlainLogRow {
    std::vector<std::u16string> cells;
    int fore = -1;
    int back = -1;

    bool operator==(const PlainLogRow&) const = default;
};

struct PlainOptions {
    bool kinds[12] = {true, true, true, true, true, true, true, true, true, true, true, true}; // order of lstControls
    bool textCombos = false;                                                                   // bUseTextLikeCombos
    bool comboImages = false;                                                                  // bUseComboImages
};

// What became of one file. `written` tells that the file was to be saved with `text`; otherwise `text` is the text as
// read.
struct PlainResult {
    std::u16string text;
    bool written = false;
    std::vector<PlainLogRow> rows;
    std::vector<std::u16string> boxes; // texts of the message boxes, in order
};

// ---- one file; `fileName` is the name without its folder, `saves` tells whether the save is to succeed

PlainResult PlainConvertText(const std::u16string& fileName, const std::u16string& text, const PlainOptions& options,
                             bool saves = true);
PlainResult PlainUpgradeText(const std::u16string& fileName, const std::u16string& text, bool isProject,
                             bool saves = true);
PlainResult PlainConvertUnreadable(const std::u16string& fileName);
PlainResult PlainUpgradeUnreadable(const std::u16string& fileName);

// The code pass over the elements of one file, for the names of its converted text boxes. False is the overflow: there
// is a name, and the array has more than 32768 elements; the lines are then as they were.
bool PlainFixEventSignatures(const PlainLines& names, PlainLines& lines);

// ---- the project file

struct PlainProject {
    PlainLines members; // full paths, in the order of the lines
    bool libraryReferenced = false;
};

std::u16string PlainNormalizePath(const std::u16string& path);
std::u16string PlainCollapseDots(const std::u16string& path);
std::u16string PlainResolveProjectPath(const std::u16string& projectPath, const std::u16string& relPath);
PlainProject PlainReadProject(const std::u16string& projectPath, const std::u16string& text);

// ---- whole runs over files in memory: full path to text. A path that is not there cannot be read. Every save
// succeeds, and the text is kept as it is: what a code page would lose is the caller's affair.

using PlainFiles = std::map<std::u16string, std::u16string>;

struct PlainRun {
    bool result = false;
    PlainLines columns; // empty when a precondition failed, as the log is then untouched
    std::vector<PlainLogRow> rows;
    std::vector<std::u16string> boxes;
};

PlainRun PlainUpgrade(const std::u16string& projectPath, PlainFiles& files);
PlainRun PlainConvert(const std::u16string& projectPath, const PlainLines& chosen, PlainFiles& files,
                      const PlainOptions& options);

} // namespace orvanta::reference
