#include "tests/reference/PlainEngine.h"

namespace orvanta::reference {

namespace {

std::u16string NameOf(const std::u16string& path) {
    const std::size_t at = path.rfind(u'\\');
    return at == std::u16string::npos ? path : path.substr(at + 1);
}

PlainProject Intake(const std::u16string& projectPath, const PlainFiles& files) {
    const auto file = files.find(projectPath);
    return file == files.end() ? PlainProject() : PlainReadProject(projectPath, file->second);
}

// False when a precondition fails; its box is then in the run.
bool MayRun(const PlainProject& project, PlainRun& run) {
    if (project.members.empty()) {
        run.boxes.push_back(u"An error occured while reading the project files, no files found.");
        return false;
    }
    if (!project.libraryReferenced) {
        run.boxes.push_back(u"Library \"Orvanta\" not referenced, please add the reference to the project first.");
        return false;
    }
    return true;
}

void Keep(const PlainResult& result, PlainRun& run) {
    run.rows.insert(run.rows.end(), result.rows.begin(), result.rows.end());
    run.boxes.insert(run.boxes.end(), result.boxes.begin(), result.boxes.end());
}

void UpgradeFile(const std::u16string& path, bool isProject, PlainFiles& files, PlainRun& run) {
    const auto file = files.find(path);
    if (file == files.end()) {
        Keep(PlainUpgradeUnreadable(NameOf(path)), run);
        return;
    }
    const PlainResult result = PlainUpgradeText(NameOf(path), file->second, isProject);
    if (result.written) file->second = result.text;
    Keep(result, run);
}

void ConvertFile(const std::u16string& path, PlainFiles& files, const PlainOptions& options, PlainRun& run) {
    const auto file = files.find(path);
    if (file == files.end()) {
        Keep(PlainConvertUnreadable(NameOf(path)), run);
        return;
    }
    const PlainResult result = PlainConvertText(NameOf(path), file->second, options);
    file->second = result.text;
    Keep(result, run);
}

} // namespace

PlainRun PlainUpgrade(const std::u16string& projectPath, PlainFiles& files) {
    PlainRun run;
    const PlainProject project = Intake(projectPath, files);
    if (!MayRun(project, run)) return run;
    run.columns = {u"Source", u"Description"};
    for (const std::u16string& member : project.members)
        UpgradeFile(member, false, files, run);
    UpgradeFile(projectPath, true, files, run);
    run.result = true;
    return run;
}

PlainRun PlainConvert(const std::u16string& projectPath, const PlainLines& chosen, PlainFiles& files,
                      const PlainOptions& options) {
    PlainRun run;
    if (!MayRun(Intake(projectPath, files), run)) return run;
    run.columns = {u"Source", u"Line", u"Description"};
    for (const std::u16string& path : chosen)
        ConvertFile(path, files, options, run);
    run.result = true;
    return run;
}

} // namespace orvanta::reference
