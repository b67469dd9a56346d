// A whole project of generated forms through run_engine, beside sed and perl doing nothing but the renames of types, on
// copies of the same files; and the memory that the conversion of one large form takes.
#include "bench/support/Processes.h"
#include "tests/support/FormGenerator.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace orvanta;
using Arguments = std::vector<std::string>;

constexpr std::size_t kForms = 100;
constexpr std::size_t kFormSize = 1'000'000;
constexpr std::size_t kLargeForm = 50'000'000;

constexpr std::array<std::pair<const char*, const char*>, 20> kRenames = {{
    {"VB.Frame", "ctlUniFrameXP"},
    {"MSForms.Frame", "ctlUniFrameXP"},
    {"VB.CommandButton", "ctlUniButtonImageXP"},
    {"MSForms.CommandButton", "ctlUniButtonImageXP"},
    {"VB.TextBox", "ctlUniTextBoxXP"},
    {"MSForms.TextBox", "ctlUniTextBoxXP"},
    {"VB.Label", "ctlUniLabel"},
    {"MSForms.Label", "ctlUniLabel"},
    {"VB.CheckBox", "ctlUniCheckXP"},
    {"MSForms.CheckBox", "ctlUniCheckXP"},
    {"VB.ComboBox", "ctlUniComboBoxXP"},
    {"MSForms.ComboBox", "ctlUniComboBoxXP"},
    {"VB.OptionButton", "ctlUniRadioXP"},
    {"MSForms.OptionButton", "ctlUniRadioXP"},
    {"VB.ListBox", "ctlUniListBoxXP"},
    {"MSForms.ListBox", "ctlUniListBoxXP"},
    {"VB.DriveListBox", "ctlUniDriveBoxXP"},
    {"VB.FileListBox", "ctlUniFileBoxXP"},
    {"VB.DirListBox", "ctlUniFileBoxXP"},
    {"MSComctlLib.ProgressBar", "ctlProgressXP"},
}};

std::string Escaped(const std::string& sName) {
    const std::size_t nDot = sName.find('.');
    return sName.substr(0, nDot).append("\\").append(sName.substr(nDot));
}

void WriteFile(const fs::path& path, const std::string& sBytes) {
    std::ofstream(path, std::ios::binary) << sBytes;
}

std::string SedScript() {
    std::string s;
    for (const auto& [szOld, szNew] : kRenames) {
        s.append("s/").append(Escaped(szOld)).append("/Orvanta.").append(szNew).append("/g\n");
    }
    return s;
}

std::string PerlScript() {
    std::string sMap;
    std::string sPattern;
    for (const auto& [szOld, szNew] : kRenames) {
        sMap.append("'").append(szOld).append("' => 'Orvanta.").append(szNew).append("', ");
        sPattern.append(sPattern.empty() ? "" : "|").append(Escaped(szOld));
    }
    std::string s("our %to; BEGIN { %to = (");
    return s.append(sMap).append("); }\ns/(").append(sPattern).append(")/$to{$1}/g;\n");
}

void MakeProject(const fs::path& folder, std::size_t nForms, std::size_t nFormSize) {
    fs::create_directories(folder);
    std::string sProject = "Type=Exe\r\nObject={00000000-0000-0000-0000-000000000000}#1.0#0; Orvanta28.ocx\r\n";
    for (std::size_t n = 1; n <= nForms; ++n) {
        const std::string sName = std::string("frm").append(std::to_string(n)).append(".frm");
        WriteFile(folder / sName, testing::GenerateFormOfSize(nFormSize, n));
        sProject.append("Form=").append(sName).append("\r\n");
    }
    WriteFile(folder / "App.vbp", sProject);
}

// The best of three runs, each over a fresh copy of the project.
template<typename Command>
bench::ProcessCost Best(const fs::path& master, Command&& command) {
    const fs::path work = master.parent_path() / "work";
    bench::ProcessCost best{1e9, 1e9};
    for (int n = 0; n < 3; ++n) {
        fs::remove_all(work);
        fs::copy(master, work);
        Arguments arguments = command(work);
        for (const auto& entry : fs::directory_iterator(work)) {
            if (arguments[0] != RUN_ENGINE && entry.path().extension() == ".frm") arguments.push_back(entry.path());
        }
        const bench::ProcessCost cost = bench::RunProcess(arguments);
        best = {std::min(best.dSeconds, cost.dSeconds), std::min(best.dMegabyte, cost.dMegabyte)};
    }
    fs::remove_all(work);
    return best;
}

Arguments Engine(const fs::path& work) {
    return {RUN_ENGINE, "convert",          "--project", "C:\\work\\App.vbp",
            "--root",   work.parent_path(), "--json",    work.parent_path() / "run.json"};
}

} // namespace

int main() {
    const fs::path root = fs::temp_directory_path() / std::string("bench_project.").append(std::to_string(::getpid()));
    fs::create_directories(root);
    WriteFile(root / "renames.sed", SedScript());
    WriteFile(root / "renames.pl", PerlScript());
    const std::string sSed = root / "renames.sed";
    const std::string sPerl = root / "renames.pl";

    MakeProject(root / "many", kForms, kFormSize);
    const double dOurs = Best(root / "many", Engine).dSeconds;
    const auto row = [dOurs](const char* szPeer, double dPeer, int nWanted) {
        std::printf("RATIO | conversion of 100 MB of forms | ours %.2f s | peer %s %.2f s | ratio %.2f times as fast | "
                    "wanted at least %d\n",
                    dOurs, szPeer, dPeer, dPeer / dOurs, nWanted);
    };
    const Arguments sed = {"env", "LC_ALL=C", "sed", "-i", "-f", sSed};
    row("sed, renames only", Best(root / "many", [&](const fs::path&) { return sed; }).dSeconds, 8);
    const Arguments perl = {"perl", "-pi", sPerl};
    row("perl, renames only", Best(root / "many", [&](const fs::path&) { return perl; }).dSeconds, 5);

    MakeProject(root / "large", 1, kLargeForm);
    const double dSize = static_cast<double>(fs::file_size(root / "large" / "frm1.frm")) / 1e6;
    const double dHeld = Best(root / "large", Engine).dMegabyte;
    std::printf(
        "RATIO | memory of one conversion | ours %.0f MB | peer the file itself %.0f MB | ratio %.2f | wanted at "
        "most 12\n",
        dHeld, dSize, dHeld / dSize);
    fs::remove_all(root);
    return 0;
}
